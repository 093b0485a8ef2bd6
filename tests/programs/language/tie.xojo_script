Dim a As New BigNumberVQZ
Print a.Multiply(1.5)
