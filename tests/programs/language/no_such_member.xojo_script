Dim a As New BigNumberVQZ
Print a.Sqroot
