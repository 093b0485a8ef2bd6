' In both precisions: the formats that a number is written in.

Dim x As BigNumberVQZ

Print "-- all digits, and an exponent from 10^16 on and below 10^-15"
Sub ShowAll(text As String)
  Dim x As BigNumberVQZ = text
  Dim converted As String = x
  Print text + " is " + x.StringValue + ", " + converted + ", " + x.StringValue(10) + ", " _
      + x.GetStringValue
End Sub
ShowAll("123.4500")
ShowAll("0")
ShowAll("-0.000")
ShowAll("1000000000000000")
ShowAll("9999999999999999")
ShowAll("10000000000000000")
ShowAll("-12345678901234567890")
ShowAll("0.000000000000001")
ShowAll("0.0000000000000001")
ShowAll("-0.00000000000000012")
ShowAll("1e-100")
ShowAll("1e60")
ShowAll("12345678901234567890123456789012345678901234567890123456789012345678901234567")

Print "-- from which exponent on"
Sub ShowFrom(text As String, limit As Integer)
  Dim x As BigNumberVQZ = text
  Print text + " from " + Str(limit) + ": " + x.GetStringValue(10, False, limit)
End Sub
ShowFrom("1000", 3)
ShowFrom("1000", 2)
ShowFrom("1234.5", 3)
ShowFrom("1234.5", 2)
ShowFrom("0.001", 3)
ShowFrom("0.001", 2)
ShowFrom("0.0012", 2)
ShowFrom("7", 0)
ShowFrom("70", 0)
ShowFrom("0.7", 0)
ShowFrom("7", -1)
ShowFrom("1e20", 30)
ShowFrom("1e-20", 30)
ShowFrom("12345678901234567890.5", 2147483647)

Print "-- scientific"
Sub ShowScientific(text As String, base As Integer = 10)
  Dim x As BigNumberVQZ = text
  Print text + ": " + x.GetStringValue(base, True)
End Sub
ShowScientific("0")
ShowScientific("1")
ShowScientific("-1")
ShowScientific("12.5")
ShowScientific("-0.00125")
ShowScientific("100")
ShowScientific("255", 16)
ShowScientific("0.0625", 16)
ShowScientific("-10", 2)

Print "-- digits after the point"
Sub ShowRounded(text As String, digits As Integer, trim As Boolean = True)
  Dim x As BigNumberVQZ = text
  Print text + " to " + Str(digits) + ": " + x.GetStringValue(10, False, 15, digits, trim)
End Sub
ShowRounded("3.14159", 2)
ShowRounded("3.14159", 4)
ShowRounded("3.14159", 0)
ShowRounded("3.14159", 5)
ShowRounded("3.14159", 60)
ShowRounded("3.14159", -1)
ShowRounded("3.14159", -2)
ShowRounded("2.5", 0)
ShowRounded("-2.5", 0)
ShowRounded("2.4", 0)
ShowRounded("9.996", 2)
ShowRounded("9.996", 2, False)
ShowRounded("-999.96", 1)
ShowRounded("0.996", 2)
ShowRounded("0.04", 1)
ShowRounded("0.05", 1)
ShowRounded("1.2", 1, False)
ShowRounded("1200", 1, False)

Print "-- zeros at the end, where rounding leaves them"
ShowRounded("1.5003", 2)
ShowRounded("1.5003", 2, False)
ShowRounded("1.0003", 2)
ShowRounded("1.0003", 2, False)
ShowRounded("1.5000", 4, False)

Print "-- rounded and scientific"
x = "123456"
Print x.GetStringValue(10, True, 15, 2)
Print x.GetStringValue(10, True, 15, 0)
x = "999999"
Print x.GetStringValue(10, True, 15, 2)

Print "-- the sign of the decimal point"
Sub ShowComma(comma As String)
  Dim x As BigNumberVQZ = "3.14159"
  Print "'" + comma + "': " + x.GetStringValue(10, False, 15, 2, True, comma)
End Sub
ShowComma(",")
ShowComma(".")
ShowComma("")
ShowComma(";-")
ShowComma(" ")
ShowComma("decimal")
Dim nothing As String
ShowComma(nothing)
x = "123456"
Print "NUL: " + x.GetStringValue(10, True, 15, 2, True, Chr(0) + ",")
Print "scientific: " + x.GetStringValue(10, True, 15, 2, True, ",")

Print "-- not a number"
x = BigNumberVQZ.Nan
Dim missing As BigNumberVQZ
Print x.StringValue + " " + x.StringValue(16) + " " + x.StringValue(99) + " " _
    + x.GetStringValue(1, True, 0, 0, False, ",")
Print missing.StringValue + " " + missing.StringValue(2) + " " + missing.GetStringValue(10, True)
Dim text As String = missing
Print text + " " + Str(Len(text))
