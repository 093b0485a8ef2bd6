' Text that doubles until there is no room for it.
Dim text As String = "0123456789"
Try
  Do
    text = text + text
  Loop
Catch e As OutOfMemoryException
  Print "not reached"
End Try
