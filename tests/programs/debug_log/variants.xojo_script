' In both precisions: what the conversions from and to Variants write to the debug log.

' An exponent that neither precision has.
Dim hundred As New Date
hundred.TotalSeconds = 100.5
Dim huge As String = "1e"
For i As Integer = 1 To 160
  huge = huge + "9"
Next

Dim x As New BigNumberVQZ("77")
Dim result As BigNumberVQZ
Dim out As Variant

Dim u32 As UInt32 = 4294967295
Dim i64 As Int64 = -64
Dim u64 As UInt64 = 18446744073709551615
Dim d As Double = 1.5
Dim s As Single = 0.25
Dim amount As Currency = -1.25
Dim number As New BigNumberVQZ("2.5")

For i As Integer = 1 To 15
  Dim value As Variant
  Select Case i
  Case 2
    value = 32
  Case 3
    value = True
  Case 4
    value = u32
  Case 5
    value = i64
  Case 6
    value = u64
  Case 7
    value = s
  Case 8
    value = d
  Case 9
    value = amount
  Case 10
    value = hundred
  Case 11
    value = New DateTime(-100.5)
  Case 12
    value = "12.5 m"
  Case 13
    value = number
  Case 14
    value = New MemoryBlock(4)
  Case 15
    value = huge
  End Select
  Try
    BigNumberVQZ.Debugging = True
    x.VariantValue = value
    BigNumberVQZ.Debugging = False
  Catch e As RuntimeException
    BigNumberVQZ.Debugging = False
  End Try
  Try
    BigNumberVQZ.Debugging = True
    result = BigNumberVQZ.NumberWithVariant(value)
    BigNumberVQZ.Debugging = False
  Catch e As RuntimeException
    BigNumberVQZ.Debugging = False
  End Try
  result = Nil
Next

BigNumberVQZ.Debugging = True
out = number.VariantValue
BigNumberVQZ.Debugging = False
x.StringValue = "5"
BigNumberVQZ.Debugging = True
out = x.VariantValue
BigNumberVQZ.Debugging = False
Print Str(VarType(out))
