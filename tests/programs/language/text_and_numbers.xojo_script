' How text and numbers meet the operators of a class.
Dim a As BigNumberVQZ = "12"
Print "8" + a
Print "20" - a
Print a - "20"
Print "144" / a
Print a = "12.0"
Print "11" < a
Print a <> Nil
Print a Is Nil
Print -a * a ^ "2"
Print "a = " + Str(Val(a))
Dim text As String = a
Print text + text
Print Len(BigNumberVQZ.Pi)
