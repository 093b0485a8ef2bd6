' Finding roots by Newton's method: follow the tangent of the curve to where it crosses zero, and do so
' again from there. Each step about doubles the number of right digits.

Function CommonLength(a As String, b As String) As Integer
  Dim count As Integer
  While count < Len(a) And Mid(a, count + 1, 1) = Mid(b, count + 1, 1)
    count = count + 1
  Wend
  Return count
End Function

Sub PrintLines(digits As String, width As Integer)
  For i As Integer = 1 To Len(digits) Step width
    Print "  " + Mid(digits, i, width)
  Next
End Sub

' The equation that Newton himself took as his example in 1669: x^3 - 2x - 5 = 0.
Function Curve(x As BiggerNumberVQZ) As BiggerNumberVQZ
  Return x * x * x - x.Multiply(2) - "5"
End Function

Function Slope(x As BiggerNumberVQZ) As BiggerNumberVQZ
  Return (x * x).Multiply(3) - "2"
End Function

Dim guesses() As String
Dim x As BiggerNumberVQZ = "2"
Dim previous As BiggerNumberVQZ
Do
  previous = x
  x = x - Curve(x) / Slope(x)
  guesses.Append(x.GetStringValue(10, False, 15, 610))
Loop Until (x - previous).Abs < "1e-610"           ' as far as the 616 digits of the class go, nearly

Dim root As String = guesses(guesses.Ubound)
For i As Integer = 0 To guesses.Ubound - 1
  Print "Right digits after step " + Str(i + 1) + ": " + Str(CommonLength(guesses(i), root) - 1)
Next
Print "x^3 - 2x - 5 = 0 where x ="
PrintLines(root, 76)
