' Nobody catches the exception; what the array held is released all the same.
Dim a(1) As BigNumberVQZ
a(0) = "1"
a(1) = "2"
Print a(0) + a(1)
For i As Integer = 0 To 2
  Print a(i)
Next
