' In both precisions: the tests of a number's flags, and changing its sign.

Function Flags(x As BigNumberVQZ) As String
  Dim text As String
  If x.IsZero Then text = text + " zero"
  If x.IsNegative Then text = text + " negative"
  If x.IsNan Then text = text + " nan"
  If x.IsInteger Then text = text + " integer"
  Return text
End Function

Sub Show(x As BigNumberVQZ)
  Print x.StringValue + ":" + Flags(x) + " | negated " + x.Negate.StringValue + ":" _
      + Flags(x.Negate) + " | -x " + (-x).StringValue + ":" + Flags(-x)
End Sub

Show("0")
Show("-0")
Show("5")
Show("-5")
Show("0.5")
Show("-0.5")
Show("-5.000")
Show("1e60")
Show("1e-60")
Show(BigNumberVQZ.Nan)
Dim missing As BigNumberVQZ
Print "Nil:" + Flags(missing)
Show(missing)
Print "the negated Nil is an object: " + Str(Not (missing.Negate Is Nil))
Dim x As New BigNumberVQZ("3")
Dim negated As BigNumberVQZ = x.Negate
Print "x stays " + x.StringValue + ", its negation is " + negated.StringValue + ", twice " _
    + negated.Negate.StringValue

Print "-- where fractions end"
' 2^255 plus a half needs 257 bits. Both precisions hold 2^200 plus a half.
Dim large As BigNumberVQZ = "1606938044258990275541962092341162602522202993782792835301376"
Print Str(large.IsInteger) + " " + Str(large.Add("0.5").IsInteger) + " " _
    + Str(large.Add("0.5").Add("0.5").IsInteger)
