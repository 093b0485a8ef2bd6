' In both precisions: what the reading of text of different encodings writes to the debug log.
Dim x As New BigNumberVQZ
Dim rest As String
Dim found As Boolean
Dim texts As Integer = 6
For i As Integer = 1 To texts
  Dim text As String
  Select Case i
  Case 1
    text = ConvertEncoding("12", Encodings.UTF8)
  Case 2
    text = ConvertEncoding("12é", Encodings.UTF8)
  Case 3
    text = ConvertEncoding("12", Encodings.ISOLatin1)
  Case 4
    text = ConvertEncoding("12é", Encodings.ISOLatin1)
  Case 5
    text = ConvertEncoding("12", Encodings.UTF16)
  Case 6
    text = DefineEncoding("12", GetTextEncoding(30583))
  End Select
  BigNumberVQZ.Debugging = True
  x.StringValue = text
  BigNumberVQZ.Debugging = False
  Print x
Next
Dim unknown As String = DefineEncoding(ConvertEncoding("12é", Encodings.WindowsANSI), _
    GetTextEncoding(65535))
BigNumberVQZ.Debugging = True
x.SetStringValue(unknown, 10, rest, found)
BigNumberVQZ.Debugging = False
Print rest
