Dim a() As BigNumberVQZ
a.Append("5")
a.Append(5)
