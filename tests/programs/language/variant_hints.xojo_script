' In both precisions: what to write where a Variant, or an array, leaves open what is meant.
Dim v As Variant = "2"
Dim b As New BigNumberVQZ(v)
b = b.Multiply(v)
Dim a() As BigNumberVQZ
a.Sort
