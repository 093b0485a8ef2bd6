' One function that would make more text than there is room for.
Dim text As String = "aaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaa"
For turn As Integer = 1 To 8
  text = text + text
Next
Print Str(text.Len)
Print ReplaceAll(text, "a", text)
