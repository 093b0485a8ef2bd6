' In both precisions: a host that lacks a function. The plug-in goes on as well as it can: what it
' cannot make is Nil or empty.

Function TextOf(x As BigNumberVQZ) As String
  If x Is Nil Then Return "Nil"
  Return "'" + x.StringValue + "'"
End Function

Print "-- text in and out"
Dim x As New BigNumberVQZ("12.5")
Print TextOf(x)
Sub Read(label As String, text As String)
  Dim x As New BigNumberVQZ
  Dim rest As String
  Dim found As Boolean
  x.SetStringValue(text, 10, rest, found)
  Print label + " " + Str(x = "12.5") + " " + Str(found) + ", rest of " + Str(LenB(rest)) + " bytes"
End Sub
Read("ASCII", ConvertEncoding("12.5 m", Encodings.ASCII))
Read("UTF-8", ConvertEncoding("12.5 é", Encodings.UTF8))
Read("ISO Latin 1", ConvertEncoding("12.5 é", Encodings.ISOLatin1))
Read("UTF-16", ConvertEncoding("12.5 m", Encodings.UTF16))
Read("unknown", DefineEncoding(ConvertEncoding("12.5 é", Encodings.WindowsANSI), _
    GetTextEncoding(65535)))

Print "-- results"
Print TextOf(x + x)
Print TextOf(x.Negate)
Print TextOf(BigNumberVQZ.NumberWithInteger(7))

Print "-- failures"
Dim zero As New BigNumberVQZ
Try
  Print TextOf(x / zero)
Catch e As RuntimeException
  Print Str(e IsA BigNumberErrorExceptionVQZ) + " '" + e.Message + "' " + Str(e.ErrorNumber)
End Try
Try
  Print TextOf(BigNumberVQZ.Root(zero, zero))
Catch e As RuntimeException
  Print Str(e IsA BigNumberErrorExceptionVQZ) + " '" + e.Message + "' " + Str(e.ErrorNumber)
End Try
Try
  x.Constructor("1e20")
  Print Str(x.Int64Value)
Catch e As RuntimeException
  Print Str(e IsA BigNumberErrorExceptionVQZ) + " '" + e.Message + "' " + Str(e.ErrorNumber)
End Try
Try
  x = Nil
  Print Str(x.DataFlags)
Catch e As RuntimeException
  Print Str(e IsA NilObjectException) + " '" + e.Message + "' " + Str(e.ErrorNumber)
End Try
