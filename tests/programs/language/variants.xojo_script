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
