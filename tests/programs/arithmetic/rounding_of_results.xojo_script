' What the argument `round` changes: the last bit of a result that needs more bits than there are.
' The smaller precision has 256 of them, the larger one 2048.

Sub Smaller(label As String, rounded As BigNumberVQZ, cut As BigNumberVQZ, power As String)
  Dim unit As BigNumberVQZ = "2"
  unit = unit ^ power
  Print label + ": rounded is above cut: " + Str(rounded > cut) + ", by 2^" + power + ": " _
      + Str((rounded - cut) = unit)
End Sub
Sub Bigger(label As String, rounded As BiggerNumberVQZ, cut As BiggerNumberVQZ, power As String)
  Dim unit As BiggerNumberVQZ = "2"
  unit = unit ^ power
  Print label + ": rounded is above cut: " + Str(rounded > cut) + ", by 2^" + power + ": " _
      + Str((rounded - cut) = unit)
End Sub

Print "-- 256 bits"
Dim one As BigNumberVQZ = "1"
Dim two As BigNumberVQZ = "2"
Dim seven As BigNumberVQZ = "7"
Dim odd As BigNumberVQZ = one + two ^ "-255"
Dim small As BigNumberVQZ = two ^ "-256" + two ^ "-257"
' The bits of 35/33 that are kept end in 1, and the next one is 1 too.
Dim n As BigNumberVQZ = "35"
Smaller("35 / 33", n.Divide("33"), n.Divide("33", False), "-255")
Smaller("35 / 33, the operator", n / "33", n.Divide("33", False), "-255")
' 7 * (1 + 2^-255) is 7 and 1.75 units.
Smaller("7 * odd", seven.Multiply(odd), seven.Multiply(odd, False), "-253")
Smaller("7 * odd, the operator", seven * odd, seven.Multiply(odd, False), "-253")
' 1 + 3 * 2^-257 is 1 and 0.75 units.
Smaller("1 + 3 * 2^-257", one.Add(small), one.Add(small, False), "-255")
Smaller("1 + 3 * 2^-257, the operator", one + small, one.Add(small, False), "-255")
Print "1 / 3, the same either way: " + Str(one.Divide("3") = one.Divide("3", False))

Print "-- 2048 bits"
Dim bigOne As BiggerNumberVQZ = "1"
Dim bigTwo As BiggerNumberVQZ = "2"
Dim bigSeven As BiggerNumberVQZ = "7"
Dim bigOdd As BiggerNumberVQZ = bigOne + bigTwo ^ "-2047"
Dim bigSmall As BiggerNumberVQZ = bigTwo ^ "-2048" + bigTwo ^ "-2049"
Dim bigN As BiggerNumberVQZ = "35"
Bigger("35 / 33", bigN.Divide("33"), bigN.Divide("33", False), "-2047")
Bigger("35 / 33, the operator", bigN / "33", bigN.Divide("33", False), "-2047")
Bigger("7 * odd", bigSeven.Multiply(bigOdd), bigSeven.Multiply(bigOdd, False), "-2045")
Bigger("7 * odd, the operator", bigSeven * bigOdd, bigSeven.Multiply(bigOdd, False), "-2045")
Bigger("1 + 3 * 2^-2049", bigOne.Add(bigSmall), bigOne.Add(bigSmall, False), "-2047")
Bigger("1 + 3 * 2^-2049, the operator", bigOne + bigSmall, bigOne.Add(bigSmall, False), "-2047")
Print "1 / 3, the same either way: " + Str(bigOne.Divide("3") = bigOne.Divide("3", False))
