' A tour of big numbers: BigNumberVQZ has a 256-bit mantissa, about 77 decimal digits,
' BiggerNumberVQZ one of 2048 bits, about 616 digits. Both have the same members.

Print "-- Text in, text out"
Dim price As New BigNumberVQZ("123.4500")
Print price                                      ' zeros at the end are not kept
Dim big As BiggerNumberVQZ = "123456789012345678901234567890"
Print big

Print "-- Arithmetic has operators and methods"
Dim a As BigNumberVQZ = "12.5"
Dim b As BigNumberVQZ = "-4"
Print "a + b = " + (a + b).StringValue           ' text + number would be a sum: ask for the text
Print "a - b = " + (a - b).StringValue
Print "a * b = " + (a * b).StringValue
Print "a / b = " + (a / b).StringValue
Print "-(a + b) = " + a.Add(b).Negate.StringValue
Print a + "0.1"                                  ' text becomes a number where one is asked for

Print "-- Two precisions"
Dim one As BigNumberVQZ = "1"
Dim three As BigNumberVQZ = "3"
Print one / three
Dim biggerOne As BiggerNumberVQZ = "1"
Print Left((biggerOne / "3").StringValue, 72) + "..."

Print "-- Comparison"
If b < a And a = "12.50" Then
  Print "b < a, and 12.5 equals 12.50"
End If
Print "b is negative: " + Str(b.IsNegative) + ", an integer: " + Str(b.IsInteger)

Print "-- Other bases, from 2 to 16"
Print big.StringValue(16)
a.StringValue(2) = "-1010.1"
Print a

Print "-- Formats"
Dim pi As New BigNumberVQZ("3.14159265358979")
Print pi.GetStringValue(10, False, 15, 2, True, ",")
Print big.GetStringValue(10, True, 15, 5)

Print "-- Reading as far as the number goes"
Dim rest As String
Dim found As Boolean
a.SetStringValue("12.5 metres", 10, rest, found)
Print a.StringValue + " and '" + rest + "', found: " + Str(found)

Print "-- A factorial of 62 digits, all of them exact"
Dim factorial As BigNumberVQZ = "1"
For i As Integer = 1 To 48
  factorial = factorial * Str(i)
Next
Print "48! = " + factorial.GetStringValue(10, False, 100)

Print "-- Errors tell what went wrong"
Try
  Print price / "0"
Catch e As BigNumberErrorExceptionVQZ
  Print e.Message
End Try
Try
  Print price.Divide(New BigNumberVQZ)
Catch e As BigNumberErrorExceptionVQZ
  Print e.Message
End Try

Print "-- Nil reads as not a number"
Dim unassigned As BigNumberVQZ
Try
  Print "unassigned.IsNan: " + Str(unassigned.IsNan)
  Print one + unassigned
Catch e As RuntimeException
  Print e.Message
End Try
