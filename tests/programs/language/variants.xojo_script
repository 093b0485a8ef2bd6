' What a Variant, a MemoryBlock and Currency carry to a big number and back.
Dim a As BigNumberVQZ = "300"
Dim v As Variant = a.VariantValue
Print v
Print Str(VarType(v))
Print BigNumberVQZ.NumberWithVariant("12.5")
Print BigNumberVQZ.NumberWithVariant(3000000000)
Print BigNumberVQZ.NumberWithVariant(a)
Dim c As Currency = 3.25
Print New BigNumberVQZ(c)
a.CurrencyValue = c
Print Str(a.CurrencyValue + 1)
Dim exponent As MemoryBlock = a.DataExponent
Print Str(exponent.Size)
exponent.Int64Value(0) = exponent.Int64Value(0) + 1
a.DataExponent = exponent
Print a
' A number in a Variant is an object there: it is assigned before it is used.
Dim counts As New Dictionary
counts.Value("seen") = 1
counts.Value("seen") = counts.Value("seen") + 1
Print counts.Value("seen")
v = BigNumberVQZ.NumberWithString("2.5")
Try
  Print v + 1
Catch e As TypeMismatchException
  Print e.Message
End
Try
  Print v
Catch e As TypeMismatchException
  Print e.Message
End
a = v
Print a + "1"
