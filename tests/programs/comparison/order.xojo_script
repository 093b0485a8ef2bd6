' In both precisions: the order of numbers, by the operators and by Operator_Compare itself.

Dim missing As BigNumberVQZ

Sub Show(label As String, x As BigNumberVQZ, y As BigNumberVQZ)
  Dim signs As String
  If x < y Then signs = signs + " <"
  If x <= y Then signs = signs + " <="
  If x = y Then signs = signs + " ="
  If x <> y Then signs = signs + " <>"
  If x >= y Then signs = signs + " >="
  If x > y Then signs = signs + " >"
  Print label + ": " + Str(x.Operator_Compare(y)) + signs
End Sub

Show("1 and 2", "1", "2")
Show("2 and 1", "2", "1")
Show("1 and 1", "1", "1.0")
Show("-1 and 1", "-1", "1")
Show("1 and -1", "1", "-1")
Show("-1 and -2", "-1", "-2")
Show("-2 and -1", "-2", "-1")
Show("-1 and -1", "-1", "-1")
Show("0 and 1", "0", "1")
Show("0 and -1", "0", "-1")
Show("1 and 0", "1", "0")
Show("-1 and 0", "-1", "0")
Show("0 and -0", "0", "-0")
Show("0.1 and 0.10000000000000000000000000001", "0.1", "0.10000000000000000000000000001")
Show("1e50 and 1e49", "1e50", "1e49")
Show("-1e50 and -1e49", "-1e50", "-1e49")
Show("1e-50 and 0", "1e-50", "0")
Show("-1e-50 and 0", "-1e-50", "0")
Show("largest and 1", BigNumberVQZ.Max, "1")
Show("smallest and -1", BigNumberVQZ.Min, "-1")
Show("smallest and largest", BigNumberVQZ.Min, BigNumberVQZ.Max)

Print "-- NaN and Nil compare as 0"
Show("NaN and 0", BigNumberVQZ.Nan, "0")
Show("0 and NaN", "0", BigNumberVQZ.Nan)
Show("NaN and NaN", BigNumberVQZ.Nan, BigNumberVQZ.Nan)
Show("NaN and 5", BigNumberVQZ.Nan, "5")
Show("5 and NaN", "5", BigNumberVQZ.Nan)
Show("-5 and NaN", "-5", BigNumberVQZ.Nan)
Show("5 and Nil", "5", missing)
Show("0 and Nil", "0", missing)
Show("-5 and Nil", "-5", missing)
Show("Nil and 5", missing, "5")
Show("Nil and Nil", missing, missing)
Show("Nil and NaN", missing, BigNumberVQZ.Nan)

Print "-- Nil as a literal; Is looks at the object alone"
Dim zero As New BigNumberVQZ
Dim five As New BigNumberVQZ("5")
Print Str(zero = Nil) + " " + Str(zero Is Nil) + " " + Str(five = Nil) + " " + Str(five > Nil) _
    + " " + Str(five Is Nil)
Print Str(missing = Nil) + " " + Str(missing Is Nil) + " " + Str(Nil = zero) + " " + Str(Nil < five)
Dim sameFive As New BigNumberVQZ("5")
Print Str(five = sameFive) + " " + Str(five Is sameFive) + " " + Str(five Is five)

Print "-- text beside a number becomes a number"
Print Str(five = "5.000") + " " + Str(five < "10") + " " + Str(five > "abc") + " " _
    + Str("10" > five) + " " + Str("5" = five) + " " + Str("4" < five)

Print "-- the largest of a list"
Dim largest As BigNumberVQZ = "-1e100"
Dim numbers As String = "3 -7 22 1e3 999.99 -1e99 1000.5 12"
Dim number As New BigNumberVQZ
Dim found As Boolean
Do
  number.SetStringValue(numbers, 10, numbers, found)
  If Not found Then Exit
  If number > largest Then largest = New BigNumberVQZ(number)
Loop
Print largest
