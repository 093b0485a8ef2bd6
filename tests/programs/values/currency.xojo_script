' In both precisions: amounts of money. A Currency counts ten-thousandths in 64 bits.

Dim x As New BigNumberVQZ

Print "-- from a Currency and back"
Sub Show(amount As Currency)
  Dim made As New BigNumberVQZ(amount)
  x.CurrencyValue = amount
  Print Str(amount) + ": " + x.GetStringValue(10, False, 30) + " " _
      + Str(x.CurrencyValue = amount) + " " + Str(made = x) + " " _
      + Str(BigNumberVQZ.NumberWithCurrency(amount) = x) + " " + Str(x.IsNegative) + " " _
      + Str(x.IsZero)
End Sub
Dim tick As Currency = 0.0001
Dim most As Currency = 922337203685477
most = most + 0.5807
Dim least As Currency = -most
least = least - tick
Show(0)
Show(tick)
Show(-tick)
Show(0.5)
Show(1)
Show(-1)
Show(12.3456)
Show(-99999.9999)
Show(most)
Show(most - tick)
Show(least)
Show(least + tick)

Print "-- a number as a Currency, rounded to four places, halves away from zero"
Sub ShowRounded(text As String)
  For sign As Integer = 1 To 2
    x = text
    If sign = 2 Then x = -x
    Try
      Print x.GetStringValue(10, False, 30) + ": " + Str(x.CurrencyValue)
    Catch e As BigNumberErrorExceptionVQZ
      Print x.GetStringValue(10, False, 30) + ": " + e.Message
    End Try
  Next
End Sub
ShowRounded("0")
ShowRounded("1.23456")
ShowRounded("1.2345")
ShowRounded("1.23444999999")
ShowRounded("0.03125")
ShowRounded("0.09375")
ShowRounded("0.00004999999999")
ShowRounded("0.00015625")
ShowRounded("2.5")
ShowRounded("922337203685477.5807")
ShowRounded("922337203685477.58074999")
ShowRounded("922337203685477.5808")
ShowRounded("922337203685477.58084999")
ShowRounded("922337203685477.5809")
ShowRounded("922337203685478")
ShowRounded("1e30")
