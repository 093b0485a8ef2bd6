' In both precisions: rounding, cutting and the parts of a number.

Sub Show(x As BigNumberVQZ)
  Print x.StringValue + ": Round " + x.Round.StringValue + ", Ceil " + x.Ceil.StringValue _
      + ", Floor " + x.Floor.StringValue + ", SkipFraction " + x.SkipFraction.StringValue _
      + ", Frac " + x.Frac.StringValue + ", Abs " + x.Abs.StringValue
End Sub

Show("0")
Show("0.25")
Show("0.5")
Show("0.75")
Show("-0.25")
Show("-0.5")
Show("-0.75")
Show("1.5")
Show("2.5")
Show("-1.5")
Show("-2.5")
Show("7")
Show("-7")
Show("1e20")
Show("-1e-20")
Show("1234567890123456789012345678.5")
Show("-1606938044258990275541962092341162602522202993782792835301376.25")

Print "-- no negative zero"
Dim x As BigNumberVQZ = "-0.25"
Print Str(x.Round.IsZero) + " " + Str(x.Round.IsNegative) + " " + Str(x.Ceil.IsNegative) + " " _
    + Str(x.SkipFraction.IsNegative)
x = "-3"
Print Str(x.Frac.IsZero) + " " + Str(x.Frac.IsNegative)

Print "-- the shared forms"
Print BigNumberVQZ.Abs("-2.5").StringValue + " " + BigNumberVQZ.Abs("2.5").StringValue + " " _
    + BigNumberVQZ.Abs("0").StringValue
Print BigNumberVQZ.Sgn("-2.5").StringValue + " " + BigNumberVQZ.Sgn("2.5").StringValue + " " _
    + BigNumberVQZ.Sgn("0").StringValue

Print "-- not a number"
Dim missing As BigNumberVQZ
Print missing.Abs.StringValue + " " + missing.Frac.StringValue + " " _
    + missing.SkipFraction.StringValue + " " + BigNumberVQZ.Abs(missing).StringValue + " " _
    + BigNumberVQZ.Sgn(missing).StringValue
x = BigNumberVQZ.Nan
Print x.Abs.StringValue + " " + x.Frac.StringValue + " " + x.SkipFraction.StringValue + " " _
    + BigNumberVQZ.Abs(x).StringValue + " " + BigNumberVQZ.Sgn(x).StringValue
