' In both precisions: text in the bases 2 to 16, out and in again.

Print "-- integers"
Sub ShowInteger(text As String)
  Dim limit As Integer = 2147483647
  Dim x As BigNumberVQZ = text
  Dim y As New BigNumberVQZ
  For base As Integer = 2 To 16
    Dim written As String = x.GetStringValue(base, False, limit)
    y.StringValue(base) = written
    Print Str(base) + ": " + written + ", read back: " + Str(y.Equals(x))
  Next
End Sub
ShowInteger("0")
ShowInteger("255")
ShowInteger("-1234567890")
ShowInteger("1606938044258990275541962092341162602522202993782792835301377")

Print "-- fractions that end in their base"
Sub ShowFraction(text As String, base As Integer)
  Dim x As New BigNumberVQZ
  x.StringValue(base) = text
  Print text + " in base " + Str(base) + " is " + x.StringValue + ", written again " _
      + x.StringValue(base)
End Sub
ShowFraction("-1010.1", 2)
ShowFraction("0.0001", 2)
ShowFraction("1.3", 4)
ShowFraction("-5.3", 6)
ShowFraction("7.04", 8)
ShowFraction("1.6", 12)
ShowFraction("ABC.DEF", 16)
ShowFraction("abc.def", 16)
ShowFraction("-0.8", 16)

Print "-- digits of another base end the number"
ShowFraction("12", 2)
ShowFraction("89", 9)
ShowFraction("1g", 16)

Print "-- large and small numbers in other bases"
Dim x As BigNumberVQZ = "65536"
Print x.StringValue(2) + " " + x.StringValue(4) + " " + x.StringValue(16)
x = "-0.00390625"
Print x.StringValue(2) + " " + x.StringValue(16) + " " + x.GetStringValue(2, False, 3)
