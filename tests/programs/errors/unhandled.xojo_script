' In both precisions: a failure that nobody catches ends the program, with everything released.
Dim x As BigNumberVQZ = "12.5"
Dim words As String = "price " + x.StringValue
Print words
Try
  Print x.Divide(New BigNumberVQZ)
Finally
  Print "on the way out"
End Try
Print "never printed"
