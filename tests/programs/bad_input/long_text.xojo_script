' In both precisions: texts of more than a million characters.

Function Repeated(text As String, doublings As Integer) As String
  For i As Integer = 1 To doublings
    text = text + text
  Next
  Return text
End Function

Dim x As New BigNumberVQZ
Dim rest As String
Dim found As Boolean

Print "-- digits before the point"
Dim digits As String = Repeated("1234567890", 17)
Print Str(LenB(digits))
x.StringValue = digits
Print Left(x.StringValue, 61) + "... " + Right(x.StringValue, 9)
Dim made As New BigNumberVQZ("-" + digits)
Print Str(made = -x)

Print "-- digits behind it, which count as far as there is room for them"
x.SetStringValue("0." + digits + " rest", 10, rest, found)
Print Left(x.StringValue, 62) + "..., '" + rest + "' " + Str(found)

Print "-- zeros, blanks, letters"
x.StringValue = Repeated("0000000000", 17) + "12.5"
Print x
x.SetStringValue("0." + Repeated("0000000000", 17) + "1 rest", 10, rest, found)
Print x.StringValue + " '" + rest + "' " + Str(found)
x.StringValue = Repeated("          ", 17) + "-12.5"
Print x
x.SetStringValue(Repeated("zzzzzzzzzz", 17), 10, rest, found)
Print x.StringValue + " " + Str(LenB(rest)) + " " + Str(found)
x.SetStringValue("12" + Repeated("é", 20), 10, rest, found)
Print x.StringValue + " " + Str(LenB(rest)) + " " + Str(found)
x.SetStringValue(ConvertEncoding("12" + Repeated("é", 20), Encodings.UTF16), 10, rest, found)
Print x.StringValue + " " + Str(LenB(rest)) + " " + Str(found)

Print "-- the digits of an exponent"
Try
  x.StringValue = "1e" + digits
Catch e As BigNumberErrorExceptionVQZ
  Print e.Message + " " + x.StringValue
End Try

Print "-- the bits of an integer"
x.StringValue(2) = Repeated("1", 20)
Print Str(x.IsInteger) + " " + x.StringValue(16)
