' In both precisions: hosts that cannot make a Variant of every type hand out Nil in its place.
Sub Show(text As String)
  Dim x As BigNumberVQZ = text
  Print text + ": type " + Str(VarType(x.VariantValue))
End Sub
Show("5")
Show("1099511627776")
Show("2.5")
