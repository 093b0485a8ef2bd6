' In both precisions: integer quotients, remainders and the parity.

Sub Show(left As BigNumberVQZ, right As BigNumberVQZ)
  Dim quotient As BigNumberVQZ = left \ right
  Dim remainder As BigNumberVQZ = left Mod right
  Print left.StringValue + " by " + right.StringValue + ": " + quotient.StringValue _
      + ", remainder " + remainder.StringValue + " " + left.Modulate(right).StringValue _
      + ", together again: " + Str(quotient * right + remainder = left)
End Sub

Show("7", "2")
Show("-7", "2")
Show("7", "-2")
Show("-7", "-2")
Show("6", "2")
Show("1", "2")
Show("-1", "2")
Show("0", "5")
Show("5.5", "2")
Show("-5.5", "2")
Show("5.5", "0.25")
Show("2", "2.5")
Show("123456789012345678901234567890", "1000000007")
Show("1606938044258990275541962092341162602522202993782792835301376", "1000003")

Print "-- the remainder of 2"
Sub ShowParity(x As BigNumberVQZ)
  Print x.StringValue + ": " + Str(x.Modulate2)
End Sub
ShowParity("0")
ShowParity("1")
ShowParity("2")
ShowParity("-3")
ShowParity("-4")
ShowParity("2.5")
ShowParity("3.5")
ShowParity("0.5")
ShowParity("1e20")
ShowParity("1606938044258990275541962092341162602522202993782792835301377")
ShowParity(BigNumberVQZ.Nan)
ShowParity(Nil)

Print "-- the greatest common divisor"
Function CommonDivisor(a As BigNumberVQZ, b As BigNumberVQZ) As BigNumberVQZ
  If b.IsZero Then Return a
  Return CommonDivisor(b, a Mod b)
End Function
Print CommonDivisor("123456789012345678901234567890", "987654321098765432109876543210")
Print CommonDivisor("1606938044258990275541962092341162602522202993782792835301376", _
    "265252859812191058636308480000000")
