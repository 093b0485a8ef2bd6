' In both precisions: text that is no number, or not only one. It never raises anything: what can be
' read is stored, 0 where there is nothing.

Sub Show(text As String)
  Dim converted As BigNumberVQZ = text
  Dim made As New BigNumberVQZ(text)
  Dim assigned As New BigNumberVQZ("77")
  assigned.StringValue = text
  Dim inBase As New BigNumberVQZ("77")
  inBase.StringValue(10) = text
  Print "'" + text + "': " + converted.StringValue + " " + made.StringValue + " " _
      + assigned.StringValue + " " + inBase.StringValue + " " _
      + BigNumberVQZ.NumberWithString(text).StringValue
End Sub

Show("")
Show("twelve")
Show("NaN")
Show("nil")
Show("inf")
Show("-")
Show("+-")
Show(".")
Show("e10")
Show("$5")
Show("(12)")
Show("12 13")
Show("1.2.3")
Show("1e2e3")
Show("1e--2")
Show("1_000")
Show("&h10")
Show("0b101")
Show("½")
Show("١٢")
Show("−5")
Show("１２")
Show(Chr(65279) + "5")
Show(Chr(160) + "5")
Show(Chr(11) + "5")
Show("12" + Chr(65533))
