' In both precisions: numbers as integers of the host. The fraction is cut; what does not fit, or
' has no integer part but a sign, is refused.

Dim x As New BigNumberVQZ

Function IntegerText() As String
  Try
    Return Str(x.IntegerValue)
  Catch e As BigNumberErrorExceptionVQZ
    Return e.Message
  End Try
End Function
Function Int64Text() As String
  Try
    Return Str(x.Int64Value)
  Catch e As BigNumberErrorExceptionVQZ
    Return e.Message
  End Try
End Function
Function UInt64Text() As String
  Try
    Return Str(x.UInt64Value)
  Catch e As BigNumberErrorExceptionVQZ
    Return e.Message
  End Try
End Function

' Shows the number without and with its sign.
Sub Show(text As String)
  For sign As Integer = 1 To 2
    x.StringValue = text
    If sign = 2 Then x = -x
    Print x.GetStringValue(10, False, 100)
    Print "  Integer: " + IntegerText
    Print "  Int64: " + Int64Text
    Print "  UInt64: " + UInt64Text
    Print "  unchanged: " + Str(x.Abs = text)
  Next
End Sub

Show("0")
Show("0.4")
Show("0.999999999999999999999999999999")
Show("1")
Show("1.5")
Show("255")
Show("2147483647")
Show("2147483647.75")
Show("2147483648")
Show("2147483648.5")
Show("2147483649")
Show("4294967295")
Show("4294967296")
Show("4294967297")
Show("9007199254740991")
Show("9007199254740992")
Show("9007199254740993")
Show("9223372036854775807")
Show("9223372036854775807.5")
Show("9223372036854775808")
Show("9223372036854775809")
Show("18446744073709551615")
Show("18446744073709551615.25")
Show("18446744073709551616")
Show("18446744073709551617")
Show("1000000000000000000000000000000")
Show("0.0000000000000000000000000000000001")
