' In both precisions: exponents beyond all measure. The number becomes not a number.

Dim nines As String = "9999999999"
For i As Integer = 1 To 7
  nines = nines + nines
Next
nines = Left(nines, 1000)

Sub Show(label As String, text As String)
  Print "-- " + label
  Dim assigned As New BigNumberVQZ("77")
  Try
    assigned.StringValue = text
  Catch e As BigNumberErrorExceptionVQZ
    Print e.Message
  End Try
  Dim inBase As New BigNumberVQZ("78")
  Try
    inBase.StringValue(10) = text
  Catch e As BigNumberErrorExceptionVQZ
    Print e.Message
  End Try
  Dim read As New BigNumberVQZ("79")
  Dim rest As String
  Dim found As Boolean
  Try
    read.SetStringValue(text + " metres", 10, rest, found)
  Catch e As BigNumberErrorExceptionVQZ
    Print e.Message
  End Try
  Dim again As New BigNumberVQZ("80")
  Try
    again.Constructor(text)
  Catch e As BigNumberErrorExceptionVQZ
    Print e.Message
  End Try
  Try
    Dim made As New BigNumberVQZ(text)
    Print "made " + made.StringValue
  Catch e As BigNumberErrorExceptionVQZ
    Print e.Message
  End Try
  Try
    Dim converted As BigNumberVQZ = text
    Print "converted " + converted.StringValue
  Catch e As BigNumberErrorExceptionVQZ
    Print e.Message
  End Try
  Try
    Print BigNumberVQZ.NumberWithString(text)
  Catch e As BigNumberErrorExceptionVQZ
    Print e.Message
  End Try
  Print assigned.StringValue + " " + inBase.StringValue + " " + read.StringValue + " " _
      + again.StringValue + ", the rest '" + rest + "', digits: " + Str(found)
End Sub

Show("a large exponent of a thousand digits", "1e" + nines)
Show("a small one", "-12.5e-" + nines)
Show("of nothing", "0e" + nines)

Print "-- exponents that are only long"
Dim zeros As String = "0000000000"
For i As Integer = 1 To 7
  zeros = zeros + zeros
Next
Dim x As BigNumberVQZ = "12.5e" + zeros + "3"
Print x
x = "12400e-" + zeros + "3"
Print x.Round
x = "12.5e" + zeros
Print x
