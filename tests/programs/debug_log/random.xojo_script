' A random number tells the sizes of the parts that it fills.
Dim small As BigNumberVQZ
Dim big As BiggerNumberVQZ
BigNumberVQZ.Debugging = True
small = BigNumberVQZ.Rand
big = BiggerNumberVQZ.Rand
BigNumberVQZ.Debugging = False
Print Str(small.IsNegative Or small.IsZero Or small.IsNan) + " " _
    + Str(big.IsNegative Or big.IsZero Or big.IsNan)
