' In both precisions: sums, differences, products and quotients, by method and by operator.

Sub Show(left As BigNumberVQZ, right As BigNumberVQZ)
  Print "-- " + left.StringValue + " and " + right.StringValue
  Print left.Add(right).StringValue + " " + left.Add(right, True).StringValue + " " _
      + left.Add(right, False).StringValue + " " + (left + right).StringValue
  Print left.Subtract(right).StringValue + " " + left.Subtract(right, True).StringValue + " " _
      + left.Subtract(right, False).StringValue + " " + (left - right).StringValue
  Print left.Multiply(right).StringValue + " " + left.Multiply(right, True).StringValue + " " _
      + left.Multiply(right, False).StringValue + " " + (left * right).StringValue
  If Not right.IsZero Then
    Print left.Divide(right).StringValue + " " + left.Divide(right, True).StringValue + " " _
        + left.Divide(right, False).StringValue + " " + (left / right).StringValue
  End If
End Sub

Show("12.5", "-4")
Show("-12.5", "-4")
Show("0", "7")
Show("7", "0")
Show("0", "0")
Show("-1", "1")
Show("0.5", "0.5")
Show("1e30", "1e-30")
Show("123456789012345678901234567890", "-1000000")

Print "-- a number with itself"
Dim x As BigNumberVQZ = "-2.5"
Print (x + x).StringValue + " " + (x - x).StringValue + " " + (x * x).StringValue + " " _
    + (x / x).StringValue
Print x.Add(x).StringValue + " " + x.Subtract(x).StringValue + " " + x.Multiply(x).StringValue _
    + " " + x.Divide(x).StringValue

Print "-- products with machine integers"
Dim u As UInt32 = 4294967295
Print x.Multiply(-3).StringValue + " " + x.Multiply(0).StringValue + " " _
    + x.Multiply(2147483647).StringValue + " " + x.Multiply(u).StringValue
u = 0
Print x.Multiply(u).StringValue
Dim lowest As Int32 = -2147483647
lowest = lowest - 1
Print x.Multiply(lowest).StringValue
Dim zero As New BigNumberVQZ
Print zero.Multiply(5).StringValue + " " + zero.Multiply(lowest).StringValue + " " _
    + Str(zero.Multiply(lowest).IsNegative)

Print "-- precedence"
Dim two As BigNumberVQZ = "2"
Dim three As BigNumberVQZ = "3"
Dim four As BigNumberVQZ = "4"
Print (two + three * four).StringValue + " " + ((two + three) * four).StringValue + " " _
    + (two - three - four).StringValue + " " + (-two ^ two).StringValue + " " _
    + (two ^ three ^ two).StringValue
Print (four * three \ two).StringValue + " " + (-four + two).StringValue

Print "-- text on either side"
Print (two + "0.5").StringValue + " " + ("0.5" + two).StringValue + " " _
    + (two * "-3").StringValue + " " + ("-3" * two).StringValue

Print "-- the receiver stays on the left, also when the text stands there"
Print ("10" - two).StringValue + " " + ("10" / two).StringValue + " " + ("11" \ two).StringValue _
    + " " + ("10" Mod three).StringValue + " " + ("10" ^ two).StringValue
