' Where the environment says so, the debug log is on from the start.
Print Str(BigNumberVQZ.Debugging) + " " + Str(BiggerNumberVQZ.Debugging)
Dim x As New BigNumberVQZ
x = Nil
