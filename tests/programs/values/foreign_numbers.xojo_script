' A Variant with a number of the other precision is no number for this one, but its text is.
Dim small As New BigNumberVQZ("12.5")
Dim big As New BiggerNumberVQZ("-7.25")
Dim value As Variant = big
Try
  small.VariantValue = value
Catch e As UnsupportedOperationException
  Print e.Message + " " + small.StringValue
End Try
Try
  small = BigNumberVQZ.NumberWithVariant(value)
Catch e As UnsupportedOperationException
  Print e.Message
End Try
small = New BigNumberVQZ("12.5")
value = small
Try
  big.VariantValue = value
Catch e As UnsupportedOperationException
  Print e.Message + " " + big.StringValue
End Try
Try
  Print BiggerNumberVQZ.NumberWithVariant(value)
Catch e As UnsupportedOperationException
  Print e.Message
End Try
big.VariantValue = small.StringValue
Print big
Print BigNumberVQZ.NumberWithVariant(big.VariantValue)
