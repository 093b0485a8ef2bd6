' In both precisions: dates on a host that cannot read their properties count as 0.
Dim x As New BigNumberVQZ("77")
Dim day As New Date
day.TotalSeconds = 100.5
Dim seconds As Variant = day
BigNumberVQZ.Debugging = True
x.VariantValue = seconds
BigNumberVQZ.Debugging = False
Print x
seconds = New DateTime(100.5)
BigNumberVQZ.Debugging = True
x.VariantValue = seconds
BigNumberVQZ.Debugging = False
Print x
