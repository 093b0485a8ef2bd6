' In both precisions: Doubles and Singles as numbers, bit for bit, and numbers as Doubles, cut to
' the bits that one has.

Dim x As New BigNumberVQZ

Print "-- from a Double and back; the bits in base 16"
Sub ShowDouble(value As Double)
  Dim made As New BigNumberVQZ(value)
  x.DoubleValue = value
  Print Str(value) + ": " + x.GetStringValue(16, True) + " " + Str(x.DoubleValue = value) + " " _
      + Str(made = x) + " " + Str(BigNumberVQZ.NumberWithDouble(value) = x)
End Sub
ShowDouble(0)
ShowDouble(1)
ShowDouble(-1)
ShowDouble(0.5)
ShowDouble(-0.5)
ShowDouble(0.1)
ShowDouble(-0.1)
ShowDouble(3.141592653589793)
ShowDouble(2147483647.5)
ShowDouble(-4294967296.25)
ShowDouble(9007199254740991.0)
ShowDouble(9007199254740992.0)
ShowDouble(9223372036854775808.0)
ShowDouble(18446744073709551616.0)
ShowDouble(1e22)
ShowDouble(1e100)
ShowDouble(-1e-100)

Print "-- the largest ones, the smallest normal and subnormal ones"
ShowDouble(1.7976931348623157e308)
ShowDouble(-1.7976931348623157e308)
ShowDouble(2.2250738585072014e-308)
ShowDouble(2.225073858507201e-308)
ShowDouble(-1e-310)
ShowDouble(1.5e-323)
ShowDouble(5e-324)
ShowDouble(-5e-324)

Print "-- no numbers"
Sub ShowNone(label As String, value As Double)
  Dim made As New BigNumberVQZ(value)
  x = "77"
  x.DoubleValue = value
  Print label + ": " + x.StringValue + " " + Str(x.IsNan) + " " + Str(made.IsNan) + " " _
      + Str(BigNumberVQZ.NumberWithDouble(value).IsNan) + ", as a Double " + Str(x.DoubleValue)
End Sub
Dim zero As Double = 0
ShowNone("infinite", 1 / zero)
ShowNone("minus infinite", -1 / zero)
ShowNone("not a number", zero / zero)
x.DoubleValue = -zero
Print "minus zero: " + x.StringValue + " " + Str(x.IsZero) + " " + Str(x.IsNegative)

Print "-- from a Single"
Sub ShowSingle(value As Single)
  Dim made As New BigNumberVQZ(value)
  x = BigNumberVQZ.NumberWithSingle(value)
  Dim wide As Double = value
  Print Str(value) + ": " + x.GetStringValue(16, True) + " " + Str(made = x) + " " _
      + Str(x.DoubleValue = wide)
End Sub
ShowSingle(0)
ShowSingle(1)
ShowSingle(-0.5)
ShowSingle(0.1)
ShowSingle(16777217)
ShowSingle(3.4028234663852886e38)
ShowSingle(-1.1754943508222875e-38)
ShowSingle(1e-45)
Dim narrow As Single = 1 / zero
Print "infinite: " + BigNumberVQZ.NumberWithSingle(narrow).StringValue
narrow = zero / zero
Print "not a number: " + BigNumberVQZ.NumberWithSingle(narrow).StringValue

Print "-- a number as a Double"
Sub ShowCut(text As String)
  x = text
  Try
    Print text + ": " + Str(x.DoubleValue)
  Catch e As BigNumberErrorExceptionVQZ
    Print e.Message
  End Try
  x = -x
  Try
    Print "-" + text + ": " + Str(x.DoubleValue)
  Catch e As BigNumberErrorExceptionVQZ
    Print e.Message
  End Try
End Sub
ShowCut("0.1")
ShowCut("0.3")
ShowCut("2.5")
ShowCut("9007199254740993")
ShowCut("9007199254740994.999999")
ShowCut("123456789012345678901234567890")
ShowCut("1.7976931348623157e308")
ShowCut("1.7976931348623159e308")
ShowCut("1.797693134862316e308")
ShowCut("1e400")
ShowCut("2.3e-308")
ShowCut("2.2e-308")
ShowCut("1e-320")
ShowCut("5e-324")
ShowCut("4.9e-324")
ShowCut("1e-400")
