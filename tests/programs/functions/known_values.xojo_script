' In both precisions: a value of each function and constant, to 60 digits. The expected digits
' come from a computation of their own with twice as many.

Sub Show(label As String, x As BigNumberVQZ)
  Print label + " = " + x.GetStringValue(10, True, 15, 59)
End Sub

Print "-- constants"
Show("Pi", BigNumberVQZ.Pi)
Show("HalfPi", BigNumberVQZ.HalfPi)
Show("TwoPi", BigNumberVQZ.TwoPi)
Show("E", BigNumberVQZ.E)
Show("Ln2", BigNumberVQZ.Ln2)
Show("Ln10", BigNumberVQZ.Ln10)
Show("One", BigNumberVQZ.One)
Show("Zero", BigNumberVQZ.Zero)
Show("Nan", BigNumberVQZ.Nan)

Print "-- powers, roots and logarithms"
Show("Exp(1.5)", BigNumberVQZ.Exp("1.5"))
Show("Exp(-20)", BigNumberVQZ.Exp("-20"))
Show("Exp(0)", BigNumberVQZ.Exp("0"))
Show("Ln(3)", BigNumberVQZ.Ln("3"))
Show("Ln(0.125)", BigNumberVQZ.Ln("0.125"))
Show("Log(3, 10)", BigNumberVQZ.Log("3", "10"))
Show("Log(1024, 2)", BigNumberVQZ.Log("1024", "2"))
Show("Root(2, 2)", BigNumberVQZ.Root("2", "2"))
Show("Root(10, 3)", BigNumberVQZ.Root("10", "3"))
Show("Root(-27, 3)", BigNumberVQZ.Root("-27", "3"))
Show("Sqrt of 3", BigNumberVQZ.NumberWithInteger(3).Sqrt)
Show("2.5 ^ 0.25", BigNumberVQZ.NumberWithString("2.5") ^ "0.25")

Print "-- angles"
Show("Sin(1.25)", BigNumberVQZ.Sin("1.25"))
Show("Cos(1.25)", BigNumberVQZ.Cos("1.25"))
Show("Tan(1.25)", BigNumberVQZ.Tan("1.25"))
Show("Cot(1.25)", BigNumberVQZ.Cot("1.25"))
Show("Sin(-100)", BigNumberVQZ.Sin("-100"))
Show("ASin(0.75)", BigNumberVQZ.ASin("0.75"))
Show("ACos(0.75)", BigNumberVQZ.ACos("0.75"))
Show("ACos(-0.75)", BigNumberVQZ.ACos("-0.75"))
Show("ATan(2.5)", BigNumberVQZ.ATan("2.5"))
Show("ACot(2.5)", BigNumberVQZ.ACot("2.5"))
Show("ATan(-0.125)", BigNumberVQZ.ATan("-0.125"))

Print "-- hyperbolic functions"
Show("Sinh(1.25)", BigNumberVQZ.Sinh("1.25"))
Show("Cosh(1.25)", BigNumberVQZ.Cosh("1.25"))
Show("Tanh(1.25)", BigNumberVQZ.Tanh("1.25"))
Show("Coth(1.25)", BigNumberVQZ.Coth("1.25"))
Show("ASinh(1.25)", BigNumberVQZ.ASinh("1.25"))
Show("ACosh(1.25)", BigNumberVQZ.ACosh("1.25"))
Show("ATanh(0.75)", BigNumberVQZ.ATanh("0.75"))
Show("ACoth(1.25)", BigNumberVQZ.ACoth("1.25"))

Print "-- units of angles"
Show("DegToRad(90)", BigNumberVQZ.DegToRad("90"))
Show("RadToDeg(2.5)", BigNumberVQZ.RadToDeg("2.5"))
Show("GradToRad(100)", BigNumberVQZ.GradToRad("100"))
Show("RadToGrad(2.5)", BigNumberVQZ.RadToGrad("2.5"))
Show("DegToGrad(45)", BigNumberVQZ.DegToGrad("45"))
Show("GradToDeg(50)", BigNumberVQZ.GradToDeg("50"))
Show("DegToDeg(12, 30, 45)", BigNumberVQZ.DegToDeg("12", "30", "45"))
Show("DegToDeg(-12, 30, 45)", BigNumberVQZ.DegToDeg("-12", "30", "45"))
Show("DegToRad(12, 30, 45)", BigNumberVQZ.DegToRad("12", "30", "45"))
Show("DegToGrad(12, 30, 45)", BigNumberVQZ.DegToGrad("12", "30", "45"))

Print "-- the largest and the smallest number"
Dim largest As BigNumberVQZ = BigNumberVQZ.Max
Print Str(largest.Negate = BigNumberVQZ.Min) + " " + Str(BigNumberVQZ.Min.IsNegative) + " " _
    + Str(largest > "1e1000000") + " " + Str(largest.IsInteger)

Print "-- random numbers"
Dim first As BigNumberVQZ = BigNumberVQZ.Rand
Dim second As BigNumberVQZ = BigNumberVQZ.Rand
Print Str(first.IsNegative) + " " + Str(first.IsZero) + " " + Str(first.IsNan) + " " _
    + Str(first.Equals(second))
