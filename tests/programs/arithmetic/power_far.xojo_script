' Powers of 2 whose exponents leave 32 bits: at once, and by squaring. `far` is 2^(2^20).
Dim far As New BiggerNumberVQZ("2")
far = far.Pow("1048576")
Dim atOnce As BiggerNumberVQZ = far.Pow("2048")
Dim squared As BiggerNumberVQZ = far
For i As Integer = 1 To 11
  squared = squared * squared
Next
Print atOnce.GetStringValue(10, True, 15, 20)
If atOnce = squared Then
  Print "the same"
End If
Print (BiggerNumberVQZ.One / atOnce).GetStringValue(10, True, 15, 20)
