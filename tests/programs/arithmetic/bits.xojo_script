' In both precisions: and, or, exclusive or of integers that are not negative.

Sub Show(left As String, right As String)
  Dim x As New BigNumberVQZ
  x.StringValue(16) = left
  Dim y As New BigNumberVQZ
  y.StringValue(16) = right
  Dim digits As Integer = 1000
  Print left + " and " + right + ": " + x.BitAnd(y).GetStringValue(16, False, digits) + " " _
      + x.BitOr(y).GetStringValue(16, False, digits) + " " _
      + x.BitXOr(y).GetStringValue(16, False, digits)
End Sub

Show("C", "A")
Show("A", "C")
Show("0", "0")
Show("0", "F")
Show("F", "0")
Show("F", "F")
Show("1", "1000000000000000000000000000000000000000000000000")
Show("FFFFFFFFFFFFFFFFFFFFFFFFFFFFFFFFFFFFFFFF", "123456789ABCDEF0")
Show("AAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAA", _
    "5555555555555555555555555555555555555555555555555555555555555555")
Show("FEDCBA98765432100123456789ABCDEF", "F0F0F0F0F0F0F0F0F0F0F0F0F0F0F0F0")

Print "-- bits after the point count as well"
Show("C.8", "A.8")
Show("1.8", "0.4")

Print "-- a number with itself"
Dim x As BigNumberVQZ = "1000"
Print x.BitAnd(x).StringValue + " " + x.BitOr(x).StringValue + " " + x.BitXOr(x).StringValue

Print "-- a list of flags"
Dim flags As BigNumberVQZ = "0"
For i As Integer = 0 To 240 Step 40
  Dim bit As BigNumberVQZ = "2"
  flags = flags.BitOr(bit ^ Str(i))
Next
Print flags.GetStringValue(16, False, 1000)
