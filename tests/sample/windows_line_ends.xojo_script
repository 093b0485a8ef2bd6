Print "one" ' comment
If True Then _
  Print "twö"
Dim t As String = "a" + _
  "b"
Print t