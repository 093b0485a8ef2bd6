' In both precisions: bases that there are not. What is read in one becomes not a number.

Sub Read(base As Integer)
  Dim x As New BigNumberVQZ("77")
  Print "-- base " + Str(base)
  Try
    Print x.StringValue(base)
  Catch e As BigNumberErrorExceptionVQZ
    Print e.Message
  End Try
  Try
    Print x.GetStringValue(base)
  Catch e As BigNumberErrorExceptionVQZ
    Print e.Message
  End Try
  Try
    Print x.GetStringValue(base, True, 3, 2, False, ",")
  Catch e As BigNumberErrorExceptionVQZ
    Print e.Message
  End Try
  Print "still " + x.StringValue
  Dim rest As String = "before"
  Dim found As Boolean = True
  Try
    x.SetStringValue(" 12 m", base, rest, found)
  Catch e As BigNumberErrorExceptionVQZ
    Print e.Message
  End Try
  Print "now " + x.StringValue + ", the rest '" + rest + "', digits: " + Str(found)
  x.StringValue = "-5"
  Try
    x.StringValue(base) = "12"
  Catch e As BigNumberErrorExceptionVQZ
    Print e.Message
  End Try
  Print "now " + x.StringValue + " " + Str(x.IsNan) + Str(x.IsZero)
  Try
    x.StringValue(base) = ""
  Catch e As BigNumberErrorExceptionVQZ
    Print e.Message
  End Try
  Print "not a number has the same text in this base: " + x.StringValue(base)
End Sub

Read(0)
Read(1)
Read(17)
Read(-1)
Read(-10)
Read(2147483647)

Print "-- zero in base 17"
Dim zero As New BigNumberVQZ
Try
  Print zero.StringValue(17)
Catch e As BigNumberErrorExceptionVQZ
  Print e.Message
End Try
