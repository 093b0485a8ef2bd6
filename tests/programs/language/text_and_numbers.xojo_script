' How text and numbers meet the operators of a class.
Dim a As BigNumberVQZ = "12"
Print "8" + a
Print "20" - a
Print a - "20"
Print "144" / a
Print Str(a = "12.0")
Print Str("11" < a)
Print Str(a <> Nil)
Print Str(a Is Nil)
Print -a * a ^ "2"
Print "a = " + Str(Val(a))
Dim text As String = a
Print text + text
Print Str(Len(BigNumberVQZ.Pi))
