' In both precisions: a host that runs the empty constructor of the objects that the plug-in asks
' for. Its value gives way to the result.
Dim x As New BigNumberVQZ("12.5")
Dim sum As BigNumberVQZ
BigNumberVQZ.Debugging = True
sum = x + x
BigNumberVQZ.Debugging = False
Print sum
Print x.Negate
Print BigNumberVQZ.NumberWithInteger(-3)
Print BigNumberVQZ.One
