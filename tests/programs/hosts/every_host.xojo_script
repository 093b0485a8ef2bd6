' In both precisions: hosts of every age and kind run the same program with the same result.

Print "-- text"
Dim x As New BigNumberVQZ("123.4500")
Dim y As BigNumberVQZ = "-4"
Print x.StringValue + " " + x.GetStringValue(10, True, 15, 2, False, ",")
x.StringValue(16) = "-FF.8"
Print x.StringValue + " " + x.StringValue(2)
Dim rest As String
Dim found As Boolean
x.SetStringValue("12.5 metres", 10, rest, found)
Print x.StringValue + "," + rest + " " + Str(found)
x.SetStringValue(ConvertEncoding("7.25 €", Encodings.UTF16), 10, rest, found)
Print x.StringValue + "," + rest + " " + Str(found)
' The byte after a text is none of it.
Dim two As String = Left("27", 1)
x.StringValue = two
Print x

Print "-- arithmetic"
x = "12.5"
Print (x + y).StringValue + " " + (x - y).StringValue + " " + (x * y).StringValue + " " _
    + (x / y).StringValue + " " + (x \ y).StringValue + " " + (x Mod y).StringValue + " " _
    + (y ^ "3").StringValue + " " + (-x).StringValue
Print x.Multiply(3).StringValue + " " + x.Round.StringValue + " " + x.Floor.StringValue + " " _
    + x.Abs.StringValue + " " + Str(x.Modulate2)
Print Str(x > y) + " " + Str(x = "12.50") + " " + Str(x.Equals(y)) + " " + Str(x.IsNegative) _
    + " " + Str(y.IsNegative) + " " + Str(y.IsInteger)

Print "-- values of the host"
Dim d As Double = 0.1
Dim s As Single = 1.5
Dim i64 As Int64 = -9223372036854775807
Dim u64 As UInt64 = 0
u64 = u64 - 1
Dim amount As Currency = 12.3456
Print BigNumberVQZ.NumberWithDouble(d).StringValue
Print BigNumberVQZ.NumberWithSingle(s).StringValue + " " _
    + BigNumberVQZ.NumberWithInt64(i64).StringValue + " " _
    + BigNumberVQZ.NumberWithUInt64(u64).StringValue + " " _
    + BigNumberVQZ.NumberWithCurrency(amount).StringValue
x = New BigNumberVQZ(d)
Print Str(x.DoubleValue) + " " + Str(x.DoubleValue = d)
x.DoubleValue = 1 / 3
Print Str(x.DoubleValue = 1 / 3)
x.CurrencyValue = amount
Print Str(x.CurrencyValue) + " " + x.StringValue
x.Int64Value = i64
Print Str(x.Int64Value)
x.UInt64Value = u64
Print Str(x.UInt64Value)
x.IntegerValue = -7
Print Str(x.IntegerValue)

Print "-- functions"
Print Left(BigNumberVQZ.Pi.StringValue, 70)
Print Left(BigNumberVQZ.Exp("1").StringValue, 70)
Print Left(BigNumberVQZ.Root("2", "2").StringValue, 70)
Print BigNumberVQZ.LibTypeStr

Print "-- failures"
Try
  Print y / "0"
Catch e As BigNumberErrorExceptionVQZ
  Print e.Message
End Try
Try
  Print BigNumberVQZ.Ln(y)
Catch e As BigNumberErrorExceptionVQZ
  Print e.Message + " " + Str(e.ErrorNumber)
End Try
Try
  Print BigNumberVQZ.Root(y, "2")
Catch e As BigNumberErrorExceptionVQZ
  Print e.Message
End Try
Dim nothing As BigNumberVQZ
Print nothing.StringValue + " " + Str(nothing = Nil)
