Dim a As BigNumberVQZ = "2"
Dim b As BiggerNumberVQZ = "3"
Print a * b
Print b * a
