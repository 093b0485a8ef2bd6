' In both precisions: text of every encoding is read, and its rest comes back as UTF-8.

Sub Read(label As String, text As String)
  Dim x As New BigNumberVQZ
  Dim rest As String
  Dim found As Boolean
  x.SetStringValue(text, 10, rest, found)
  Dim line As String = label + ": " + x.StringValue + ", digits: " + Str(found)
  If rest = "" Then
    Print line + ", no rest"
  Else
    Print line + ", rest '" + rest + "' of " + Str(LenB(rest)) + " bytes, UTF-8: " _
        + Str(Encoding(rest) = Encodings.UTF8)
  End If
End Sub

Sub ReadAll(text As String)
  Read("UTF-8", ConvertEncoding(text, Encodings.UTF8))
  Read("UTF-16", ConvertEncoding(text, Encodings.UTF16))
  Read("UTF-16, big-endian", ConvertEncoding(text, Encodings.UTF16BE))
  Read("UTF-16, little-endian", ConvertEncoding(text, Encodings.UTF16LE))
  Read("UTF-32", ConvertEncoding(text, Encodings.UTF32))
  Read("UTF-32, big-endian", ConvertEncoding(text, Encodings.UTF32BE))
  Read("UTF-32, little-endian", ConvertEncoding(text, Encodings.UTF32LE))
End Sub

Sub ReadBytes(text As String)
  Read("ISO Latin 1", ConvertEncoding(text, Encodings.ISOLatin1))
  Read("Windows", ConvertEncoding(text, Encodings.WindowsANSI))
  Read("MacRoman", ConvertEncoding(text, Encodings.MacRoman))
End Sub

Print "-- plain characters"
ReadAll("-12.5 kg")
ReadBytes("-12.5 kg")
Read("ASCII", ConvertEncoding("-12.5 kg", Encodings.ASCII))
Read("unknown", DefineEncoding("-12.5 kg", GetTextEncoding(65535)))

Print "-- characters of one byte elsewhere"
ReadAll("-12.5é")
ReadBytes("-12.5é")

Print "-- the unknown encoding is taken for Windows'"
Read("unknown", DefineEncoding(ConvertEncoding("7 €", Encodings.WindowsANSI), _
    GetTextEncoding(65535)))

Print "-- characters of three and four bytes"
ReadAll("3.25 €" + Chr(128512) + "!")

Print "-- an encoding that nobody knows gives no text"
Read("&h7777", DefineEncoding("12", GetTextEncoding(30583)))

Print "-- no text at all"
Dim nothing As String
Read("no text", nothing)
Read("empty UTF-16", ConvertEncoding("", Encodings.UTF16))

Print "-- other ways in"
Sub Show(text As String)
  Dim x As BigNumberVQZ = text
  Dim y As New BigNumberVQZ
  y.StringValue = text
  Dim z As New BigNumberVQZ
  z.StringValue(16) = text
  Print x.StringValue + " " + y.StringValue + " " + z.StringValue + " " _
      + BigNumberVQZ.NumberWithString(text).StringValue + " " + (y + text).StringValue
End Sub
Show(ConvertEncoding("-12.5", Encodings.UTF16))
Show(ConvertEncoding("-12.5", Encodings.UTF32BE))
Show(ConvertEncoding("10é", Encodings.ISOLatin1))
Show(ConvertEncoding("10é", Encodings.UTF8))
