' A thousand digits of pi, twice: by the formulas of John Machin (1706) and Carl Størmer (1896).
'
' A BiggerNumberVQZ holds about 616 digits. For a thousand, two of them share the work: each holds a
' block of 510 digits, as each place holds one digit when we calculate on paper. The 20 digits beyond
' a thousand take up what is cut off on the way.

Const BlockDigits = 510

' A block counts from 0 to one less than this.
Function BlockBase() As BiggerNumberVQZ
  Return New BiggerNumberVQZ("1e" + Str(BlockDigits))
End Function

' A long number: its whole part, then its blocks.
Function LongNumber(whole As Integer) As BiggerNumberVQZ()
  Return Array(New BiggerNumberVQZ(whole), New BiggerNumberVQZ, New BiggerNumberVQZ)
End Function

' Long division: what one block leaves over goes on into the next.
Function Quotient(dividend() As BiggerNumberVQZ, divisor As Integer) As BiggerNumberVQZ()
  Dim result() As BiggerNumberVQZ
  Dim d As New BiggerNumberVQZ(divisor)
  Dim rest As New BiggerNumberVQZ
  Dim base As BiggerNumberVQZ = BlockBase
  For Each block As BiggerNumberVQZ In dividend
    Dim part As BiggerNumberVQZ = rest * base + block
    Dim q As BiggerNumberVQZ = part \ d
    rest = part - q * d
    result.Append(q)
  Next
  Return result
End Function

Function IsZero(number() As BiggerNumberVQZ) As Boolean
  For Each block As BiggerNumberVQZ In number
    If Not block.IsZero Then Return False
  Next
  Return True
End Function

' Adds factor * arctan(1/x) to the sum: factor * (1/x - 1/(3 x^3) + 1/(5 x^5) - ...)
Sub AddArcTangent(sum() As BiggerNumberVQZ, factor As Integer, x As Integer)
  Dim power() As BiggerNumberVQZ = Quotient(LongNumber(factor), x)
  Dim n As Integer = 1
  While Not IsZero(power)
    Dim term() As BiggerNumberVQZ = Quotient(power, n)
    For i As Integer = 0 To term.Ubound
      sum(i) = If(n Mod 4 = 1, sum(i) + term(i), sum(i) - term(i))
    Next
    power = Quotient(power, x * x)
    n = n + 2
  Wend
End Sub

' The sum as text. Its blocks have become too large or negative: from the last one on, what is too
' much or missing is carried over to the block before.
Function Digits(sum() As BiggerNumberVQZ) As String
  Dim written As String
  Dim base As BiggerNumberVQZ = BlockBase
  For i As Integer = sum.Ubound DownTo 1
    Dim carry As BiggerNumberVQZ = (sum(i) / base).Floor
    sum(i - 1) = sum(i - 1) + carry
    Dim block As BiggerNumberVQZ = sum(i) - carry * base
    written = Right((block + base).GetStringValue(10, False, 1000), BlockDigits) + written
  Next
  Return sum(0).StringValue + "." + Left(written, 1000)
End Function

Function CommonLength(a As String, b As String) As Integer
  Dim count As Integer
  While count < Len(a) And Mid(a, count + 1, 1) = Mid(b, count + 1, 1)
    count = count + 1
  Wend
  Return count
End Function

Dim machin() As BiggerNumberVQZ = LongNumber(0)      ' pi = 16 arctan 1/5 - 4 arctan 1/239
AddArcTangent(machin, 16, 5)
AddArcTangent(machin, -4, 239)
Dim digitsOfPi As String = Digits(machin)

Dim stormer() As BiggerNumberVQZ = LongNumber(0)     ' pi = 24 arctan 1/8 + 8 arctan 1/57 + 4 arctan 1/239
AddArcTangent(stormer, 24, 8)
AddArcTangent(stormer, 8, 57)
AddArcTangent(stormer, 4, 239)

Print "pi = " + Left(digitsOfPi, 2)
For i As Integer = 3 To 1002 Step 50
  Print "     " + Mid(digitsOfPi, i, 50)
Next
Print "Both formulas agree on all 1000 digits: " + Str(digitsOfPi = Digits(stormer))

' One number alone, as far as it goes:
Dim pi As String = BiggerNumberVQZ.Pi.GetStringValue(10, False, 15)
Print "BiggerNumberVQZ.Pi agrees on " + Str(CommonLength(digitsOfPi, pi) - 2) + " digits after the point."
Dim smallerPi As String = BigNumberVQZ.Pi.GetStringValue(10, False, 15)
Print "BigNumberVQZ.Pi agrees on " + Str(CommonLength(digitsOfPi, smallerPi) - 2) + " digits after the point."
