' A value of 2048 bits in several bases. It is a famous one: a prime number by which computers all
' over the world agree on secret keys. Its middle bits are those of pi, to show that nobody chose
' them to hide a weakness:
'
'   2^2048 - 2^1984 - 1 + 2^64 * (whole part of 2^1918 * pi + 124476)

Function PowerOfTwo(exponent As Integer) As BiggerNumberVQZ
  Dim two As New BiggerNumberVQZ(2)
  Return two ^ Str(exponent)
End Function

Sub PrintLines(digits As String, width As Integer)
  For i As Integer = 1 To Len(digits) Step width
    Print "  " + Mid(digits, i, width)
  Next
End Sub

Dim middle As BiggerNumberVQZ = (PowerOfTwo(1918) * BiggerNumberVQZ.Pi).Floor + "124476"
Dim prime As BiggerNumberVQZ = PowerOfTwo(2048) - PowerOfTwo(1984) - "1" + PowerOfTwo(64) * middle

' The number in full, instead of as mantissa and exponent.
Function InFull(x As BiggerNumberVQZ, base As Integer) As String
  Return x.GetStringValue(base, False, 3000)
End Function

Print "Base 16, " + Str(Len(InFull(prime, 16))) + " digits:"
PrintLines(InFull(prime, 16), 64)
Print "Base 10, " + Str(Len(InFull(prime, 10))) + " digits:"
PrintLines(InFull(prime, 10), 64)

' From each text back to a number, which is the same in every bit.
Dim same As Integer
For base As Integer = 2 To 16
  Dim copy As New BiggerNumberVQZ
  copy.StringValue(base) = InFull(prime, base)
  If copy.Equals(prime) Then same = same + 1
Next
Print "Read back from the bases 2 to 16, the same number: " + Str(same) + " times of 15"
