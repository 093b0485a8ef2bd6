' In both precisions: where the host cannot make the object of a result, the result is Nil, and
' nothing is raised.
Dim x As New BigNumberVQZ("12.5")
Dim y As New BigNumberVQZ("4")
Dim sum As BigNumberVQZ = x + y
Print "a sum is Nil: " + Str(sum Is Nil)
sum = x + y
Print "the next one is " + sum.StringValue
