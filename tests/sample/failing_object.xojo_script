Dim s As New Sample
Try
  s = New Sample
Catch e As OutOfMemoryException
  Print e.Message
End Try
Print Str(s.Value)
