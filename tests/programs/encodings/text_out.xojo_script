' In both precisions: the encodings of texts that come out, and the bytes of a decimal point.

Function NameOf(text As String) As String
  If Encoding(text) = Encodings.UTF8 Then Return "UTF-8"
  If Encoding(text) = Encodings.ASCII Then Return "ASCII"
  Return "another one"
End Function

Dim x As BigNumberVQZ = "3.25"
Dim text As String = x
Print NameOf(text) + " " + NameOf(x.StringValue) + " " + NameOf(x.StringValue(16)) + " " _
    + NameOf(x.GetStringValue)
Print NameOf(BigNumberVQZ.LibTypeStr)

Print "-- a decimal point of any encoding"
Sub ShowPoint(label As String, point As String)
  Dim x As BigNumberVQZ = "3.25"
  Print label + ": " + x.GetStringValue(10, False, 15, -1, True, point)
End Sub
ShowPoint("UTF-8", ",")
ShowPoint("UTF-16", ConvertEncoding(",", Encodings.UTF16))
ShowPoint("UTF-16, big-endian", ConvertEncoding(",;", Encodings.UTF16BE))
ShowPoint("UTF-32", ConvertEncoding(";", Encodings.UTF32))
ShowPoint("MacRoman", ConvertEncoding(";é", Encodings.MacRoman))
ShowPoint("empty UTF-16", ConvertEncoding("", Encodings.UTF16))
ShowPoint("NUL", Chr(0))

Print "-- only the first byte of its UTF-8 form counts"
Sub ShowBytes(text As String)
  Dim line As String
  For i As Integer = 1 To LenB(text)
    line = line + Hex(AscB(MidB(text, i, 1))) + " "
  Next
  Print line
End Sub
ShowBytes(x.GetStringValue(10, False, 15, -1, True, "é"))
ShowBytes(x.GetStringValue(10, False, 15, -1, True, ConvertEncoding("é", Encodings.ISOLatin1)))
ShowBytes(x.GetStringValue(10, False, 15, -1, True, Chr(1632)))

Print "-- NUL inside of a text"
Dim rest As String
Dim found As Boolean
x.SetStringValue("12" + Chr(0) + "34", 10, rest, found)
Print x.StringValue + " " + Str(found) + " " + Str(LenB(rest))
ShowBytes(rest)
x.SetStringValue(Chr(0) + "34", 10, rest, found)
Print x.StringValue + " " + Str(found) + " " + Str(LenB(rest))
x.SetStringValue(ConvertEncoding("5" + Chr(0) + "é", Encodings.UTF16), 10, rest, found)
Print x.StringValue + " " + Str(found) + " " + Str(LenB(rest))
ShowBytes(rest)
x.StringValue = "-1.5" + Chr(0) + "9"
Print x.StringValue
x = "1" + Chr(0) + "e5"
Print x.StringValue
