' In both precisions: what to write in place of what users of numbers write first.
Dim a As BigNumberVQZ = 5
Dim b As BigNumberVQZ = 2.5
a = 7
Dim n As Integer = 3
a = n
Print Str(a)
Print a.ToString
Print Format(a, "0.00")
Print Sqrt(a)
Print a.Power("2")
Print a.Round(2)
Dim d As Double = a
Dim i As Integer = a
If a > 5 Then
  Print a + 5
End If
