Dim a As New BigNumberVQZ
a.IsZero = True
