' What long chains of operations come to, as far as each precision reaches.

Print "-- exact integers"
Function Factorial(n As Integer) As BiggerNumberVQZ
  Dim product As BiggerNumberVQZ = "1"
  For i As Integer = 2 To n
    product = product * Str(i)
  Next
  Return product
End Function
Print Factorial(250).GetStringValue(10, False, 1000)
Print (Factorial(250) / Factorial(248)).StringValue

Function Fibonacci(n As Integer) As BigNumberVQZ
  Dim current As BigNumberVQZ = "0"
  Dim following As BigNumberVQZ = "1"
  For i As Integer = 1 To n
    Dim sum As BigNumberVQZ = current + following
    current = following
    following = sum
  Next
  Return current
End Function
Print Fibonacci(360).GetStringValue(10, False, 1000)

' The Lucas-Lehmer test: is 2^p - 1 a prime?
Function IsMersennePrime(p As Integer) As Boolean
  Dim two As BigNumberVQZ = "2"
  Dim number As BigNumberVQZ = two ^ Str(p) - "1"
  Dim s As BigNumberVQZ = "4"
  For i As Integer = 1 To p - 2
    s = (s * s - two) Mod number
  Next
  Return s.IsZero
End Function
Dim primes As String
For p As Integer = 3 To 127 Step 2
  If IsMersennePrime(p) Then primes = primes + " " + Str(p)
Next
Print "2^p - 1 is a prime for p =" + primes

Print "-- pi by Machin's formula, 16 atan 1/5 - 4 atan 1/239"
Function SmallerArcTangent(n As BigNumberVQZ) As BigNumberVQZ
  Dim power As BigNumberVQZ = "1"
  power = power / n
  Dim square As BigNumberVQZ = n * n
  Dim sum As BigNumberVQZ = power
  Dim i As Integer = 1
  Dim before As New BigNumberVQZ
  Do
    before = sum
    power = -power / square
    i = i + 2
    sum = sum + power / Str(i)
  Loop Until sum = before
  Return sum
End Function
Print Left((SmallerArcTangent("5") * "16" - SmallerArcTangent("239") * "4").StringValue, 75)
Function BiggerArcTangent(n As BiggerNumberVQZ) As BiggerNumberVQZ
  Dim power As BiggerNumberVQZ = "1"
  power = power / n
  Dim square As BiggerNumberVQZ = n * n
  Dim sum As BiggerNumberVQZ = power
  Dim i As Integer = 1
  Dim before As New BiggerNumberVQZ
  Do
    before = sum
    power = -power / square
    i = i + 2
    sum = sum + power / Str(i)
  Loop Until sum = before
  Return sum
End Function
Print Left((BiggerArcTangent("5") * "16" - BiggerArcTangent("239") * "4").StringValue, 610)

Print "-- the square root of 2 by Newton's method"
Dim two As BigNumberVQZ = "2"
Dim root As BigNumberVQZ = "1.5"
For i As Integer = 1 To 10
  root = (root + two / root) / "2"
Next
Print Left(root.StringValue, 76)
Dim bigTwo As BiggerNumberVQZ = "2"
Dim bigRoot As BiggerNumberVQZ = "1.5"
For i As Integer = 1 To 12
  bigRoot = (bigRoot + bigTwo / bigRoot) / "2"
Next
Print Left(bigRoot.StringValue, 612)

Print "-- e as the sum of 1 / n!"
Dim e As BigNumberVQZ = "1"
Dim term As BigNumberVQZ = "1"
For n As Integer = 1 To 80
  term = term / Str(n)
  e = e + term
Next
Print Left(e.StringValue, 75)

Print "-- the harmonic sum of 1000, forwards and backwards"
Dim forwards As BigNumberVQZ = "0"
Dim backwards As BigNumberVQZ = "0"
Dim one As BigNumberVQZ = "1"
For n As Integer = 1 To 1000
  forwards = forwards + one / Str(n)
  backwards = backwards + one / Str(1001 - n)
Next
Print Left(forwards.StringValue, 72)
Print Left(backwards.StringValue, 72)
