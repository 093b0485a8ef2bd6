Dim s As String = "first"
Try
s = "second"
Catch e As OutOfMemoryException
Print "caught"
End Try
Print s
