' In both precisions: Variants on hosts that cannot tell all of what is in them. Nothing is raised
' for it: unsigned integers are taken for signed ones, what cannot be read is 0, what has no type
' is Nil.

Sub Show(label As String, value As Variant)
  Dim x As New BigNumberVQZ("77")
  Dim made As BigNumberVQZ
  Try
    x.VariantValue = value
    made = BigNumberVQZ.NumberWithVariant(value)
    If made Is Nil Then
      Print label + ": " + x.StringValue + " Nil"
    Else
      Print label + ": " + x.StringValue + " " + made.StringValue
    End If
  Catch e As UnsupportedOperationException
    Print label + ": " + x.StringValue + " " + e.Message
  End Try
End Sub

Dim hundred As New Date
hundred.TotalSeconds = 100.5
Dim u32 As UInt32 = 4294967295
Dim u64 As UInt64 = 18446744073709551615
Dim d As Double = 0.1
Dim amount As Currency = 12.3456
Show("Int32", CType(-5, Int32))
Show("UInt32", u32)
Show("UInt64", u64)
Show("Double", d)
Show("Currency", amount)
Show("String", "12.5")
Show("Date", hundred)
Show("DateTime", New DateTime(-100.5))
Show("a number", New BigNumberVQZ("2.5"))
