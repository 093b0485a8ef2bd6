Dim a As New BigNumberVQZ("2")

Print a + 1
