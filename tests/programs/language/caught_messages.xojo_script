' What the messages of exceptions say of the variable or the member that was wrong.
Dim v As Variant = "123"
Dim b As BigNumberVQZ
Try
  b = v
Catch e As IllegalCastException
  Print e.Message
End Try
Dim prices As New Dictionary("a" : 1.5)
Try
  b = prices.Value("a")
Catch e As IllegalCastException
  Print e.Message
End Try
Try
  v = New Date
  b = v
Catch e As IllegalCastException
  Print e.Message
End Try
v = "123"
b = BigNumberVQZ.NumberWithVariant(v)
Print b
Dim c As BigNumberVQZ
Try
  c.DoubleValue = 5
Catch e As NilObjectException
  Print e.Message
End Try
