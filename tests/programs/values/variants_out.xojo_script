' In both precisions: a number as a Variant. It is an Integer, else an Int64, where the number is
' one of these, else its text.

Sub Show(x As BigNumberVQZ)
  Dim value As Variant = x.VariantValue
  Dim text As String = value
  Dim back As New BigNumberVQZ
  back.VariantValue = value
  Print x.StringValue + ": type " + Str(VarType(value)) + ", " + text + ", back again: " _
      + Str(back.StringValue = x.StringValue) + " " _
      + Str(BigNumberVQZ.NumberWithVariant(value).StringValue = x.StringValue)
End Sub

Show("0")
Show("1")
Show("-1")
Show("5")
Show("2147483646")
Show("2147483647")
Show("2147483648")
Show("2147483649")
Show("-2147483647")
Show("-2147483648")
Show("-2147483649")
Show("4294967295")
Show("4294967296")
Show("1099511627776")
Show("9007199254740993")
Show("9223372036854775806")
Show("9223372036854775807")
Show("9223372036854775808")
Show("-9223372036854775807")
Show("-9223372036854775808")
Show("-9223372036854775809")
Show("18446744073709551615")
Show("18446744073709551616")
Show("10000000000000000000000000")
Show("1.5")
Show("-0.5")
Show("2147483647.5")
Show("0.000000000000000000000000000001")

Print "-- not a number, and Nil, are the integer 0"
Show(BigNumberVQZ.Nan)
Dim missing As BigNumberVQZ
Print Str(VarType(missing.VariantValue)) + " " + Str(VarType(BigNumberVQZ.Nan.VariantValue))

Print "-- out of the Variant into the types of the host"
Dim x As BigNumberVQZ = "41"
Dim whole As Integer = x.VariantValue
x = "1099511627777"
Dim wide As Int64 = x.VariantValue
x = "2.75"
Dim real As Double = x.VariantValue
Print Str(whole) + " " + Str(wide) + " " + Str(real)

Print "-- a number in a Variant"
Dim boxed As Variant = x
Print Str(VarType(boxed)) + " " + Str(BigNumberVQZ(boxed) Is x)
boxed = Nil
Print Str(VarType(boxed))
