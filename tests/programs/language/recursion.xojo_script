' A binomial coefficient by recursion over big numbers, in both precisions.
Function Binomial(n As Integer, k As Integer) As BiggerNumberVQZ
  If k = 0 Then Return BiggerNumberVQZ.One
  Return Binomial(n - 1, k - 1) * Str(n) / Str(k)
End Function

Print Binomial(10, 3)
Print Binomial(200, 100).GetStringValue(10, False, 100)
Print Factorial(25)

Function Factorial(n As Integer) As BigNumberVQZ
  If n < 2 Then Return "1"
  Return Factorial(n - 1) * Str(n)
End Function

Sub Forever(n As Integer)
  Forever(n + 1)
End Sub

Try
  Forever(1)
Catch e As StackOverflowException
  Print e.Message
End Try
