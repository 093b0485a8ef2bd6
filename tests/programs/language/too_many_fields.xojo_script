' The fields of a text need several times the memory of the text.
Dim text As String = ","
For i As Integer = 1 To 17
  text = text + text
Next
Print Str(Len(text))
Print Str(CountFields(Left(text, 1000), ","))
Print Str(CountFields(text, ","))
