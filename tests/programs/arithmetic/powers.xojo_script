' In both precisions: powers and square roots.

Sub Show(base As BigNumberVQZ, exponent As BigNumberVQZ)
  Print base.StringValue + " ^ " + exponent.StringValue + " = " + (base ^ exponent).StringValue _
      + " = " + base.Pow(exponent).StringValue
End Sub

Show("2", "10")
Show("2", "0")
Show("2", "-2")
Show("-2", "3")
Show("-2", "4")
Show("-2", "-1")
Show("1.5", "2")
Show("-0.5", "3")
Show("0", "5")
Show("1", "1000000000000")
Show("-1", "1000000000001")
Show("10", "30")
Show("2", "200")
Show("3", "100")

Print "-- exponents with a fraction, near enough"
' Whether x and y differ by less than their 10^70th part.
Function IsNear(x As BigNumberVQZ, y As BigNumberVQZ) As Boolean
  Return (x - y).Abs < y.Abs * "1e-70"
End Function
Dim two As BigNumberVQZ = "2"
Print Str(IsNear(two ^ "0.5", _
    "1.41421356237309504880168872420969807856967187537694807317667973799073247846211"))
Print Str(IsNear(two ^ "-0.5", _
    "0.707106781186547524400844362104849039284835937688474036588339868995366239231053"))
Print Str(IsNear(two ^ "2.5", _
    "5.65685424949238019520675489683879231427868750150779229270671895196292991384843"))

Print "-- square roots"
Sub ShowRoot(x As BigNumberVQZ)
  Dim root As BigNumberVQZ = x.Sqrt
  Print x.StringValue + ": " + root.StringValue + ", its square is " + (root * root).StringValue
End Sub
ShowRoot("0")
ShowRoot("1")
ShowRoot("81")
ShowRoot("1522756")
ShowRoot("1e40")
ShowRoot("152415787532388367501905199875019052100")
Dim x As BigNumberVQZ = "2"
Print Str(IsNear(x.Sqrt * x.Sqrt, x))
x = "0.0001"
Print Str(IsNear(x.Sqrt, "0.01"))
x = "1e-40"
Print Str(IsNear(x.Sqrt * x.Sqrt, x))
x = "123456.789"
Print Str(IsNear(x.Sqrt * x.Sqrt, x))
