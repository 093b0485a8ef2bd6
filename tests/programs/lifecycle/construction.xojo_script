' In both precisions: what each constructor makes of its argument.

Function Describe(x As BigNumberVQZ) As String
  Dim text As String = x.StringValue
  If x.IsZero Then text = text + " zero"
  If x.IsNegative Then text = text + " negative"
  If x.IsNan Then text = text + " nan"
  If x.IsInteger Then text = text + " integer"
  Return text
End Function

Sub Show(label As String, x As BigNumberVQZ)
  Print label + ": " + Describe(x)
End Sub

Show("no argument", New BigNumberVQZ)
Show("a text", New BigNumberVQZ("-12.50"))
Show("a text with an exponent", New BigNumberVQZ("125e-1"))
Show("an empty text", New BigNumberVQZ(""))

Print "-- integers, the smallest and largest of each type"
Dim i32 As Int32 = -2147483647
Show("Int32", New BigNumberVQZ(i32 - 1))
i32 = 2147483647
Show("Int32", New BigNumberVQZ(i32))
Show("Integer literal", New BigNumberVQZ(42))
Dim i64 As Int64 = -9223372036854775807
Show("Int64", New BigNumberVQZ(i64 - 1))
i64 = 9223372036854775807
Show("Int64", New BigNumberVQZ(i64))
i64 = -1
Show("Int64", New BigNumberVQZ(i64))
i64 = 0
Show("Int64", New BigNumberVQZ(i64))
Dim u32 As UInt32 = 4294967295
Show("UInt32", New BigNumberVQZ(u32))
Dim u64 As UInt64 = 0
Show("UInt64", New BigNumberVQZ(u64))
u64 = u64 - 1
Show("UInt64", New BigNumberVQZ(u64))

Print "-- real numbers, every bit of them"
Dim d As Double = 0.1
Show("Double", New BigNumberVQZ(d))
d = -2.5
Show("Double", New BigNumberVQZ(d))
d = 0
Show("Double", New BigNumberVQZ(d))
Show("Double, minus zero", New BigNumberVQZ(-d))
Show("Double, infinite", New BigNumberVQZ(1 / d))
Show("Double, not a number", New BigNumberVQZ(d / d))
Dim s As Single = 0.1
Show("Single", New BigNumberVQZ(s))
s = -1.5
Show("Single", New BigNumberVQZ(s))

Print "-- amounts of money"
Dim amount As Currency = 12.3456
Show("Currency", New BigNumberVQZ(amount))
amount = -0.0001
Show("Currency", New BigNumberVQZ(amount))
amount = 0
Show("Currency", New BigNumberVQZ(amount))

Print "-- copies"
Dim first As New BigNumberVQZ("7.25")
Dim second As New BigNumberVQZ(first)
Show("a copy", second)
second.StringValue = "8"
Show("the copy, changed", second)
Show("the first one", first)
Dim missing As BigNumberVQZ
Show("a copy of Nil", New BigNumberVQZ(missing))

Print "-- another constructor on a number that has a value"
first.Constructor("9")
Show("a text", first)
first.Constructor(i32)
Show("an Int32", first)
first.Constructor(second)
Show("a copy", first)
first.Constructor(missing)
Show("a copy of Nil", first)
first.Constructor
Show("no argument", first)
second = Nil
Print "second is gone: " + Str(second Is Nil)
