#tag Module
Protected Module FunctionsExample
	#tag Method, Flags = &h1
		Protected Sub Run()
		  #Pragma BreakOnExceptions False
		  ' Every operation, function and constant, each with its result, in the smaller precision. All of them
		  ' are there for BiggerNumberVQZ as well, with about 616 digits instead of 77.
		  
		  Dim a As BigNumberVQZ = "17.5"
		  Dim b As BigNumberVQZ = "-4"
		  Dim c As BigNumberVQZ = "12"
		  Dim d As BigNumberVQZ = "10"
		  Dim half As BigNumberVQZ = "0.5"
		  Dim two As BigNumberVQZ = "2"
		  Dim three As BigNumberVQZ = "3"
		  
		  Print "-- Arithmetic"
		  Show("17.5 + -4", a + b)
		  Show("17.5 - -4", a - b)
		  Show("17.5 * -4", a * b)
		  Show("17.5 / -4", a / b)
		  Show("17.5 \ -4", a \ b)
		  Show("17.5 Mod -4", a Mod b)
		  Show("17.5 ^ -4", a ^ b)
		  Show("-(17.5)", -a)
		  Show("1 / 3 unrounded", BigNumberVQZ.One.Divide(three, False))
		  Dim factor As Integer = -3
		  Show("17.5 times the Integer -3", a.Multiply(factor))
		  Show("Abs of -4", b.Abs)
		  Show("Sgn of -4", BigNumberVQZ.Sgn(b))
		  Print "12 Mod 2 = " + Str(c.Modulate2)
		  
		  Print "-- Whole numbers"
		  Dim fraction As BigNumberVQZ = "-2.5"
		  Show("Round of -2.5", fraction.Round)
		  Show("Floor of -2.5", fraction.Floor)
		  Show("Ceil of -2.5", fraction.Ceil)
		  Show("SkipFraction of -2.5", fraction.SkipFraction)
		  Show("Frac of -2.5", fraction.Frac)
		  
		  Print "-- Bits of 12 and 10"
		  Show("And", c.BitAnd(d))
		  Show("Or", c.BitOr(d))
		  Show("XOr", c.BitXOr(d))
		  
		  Print "-- Roots, powers and logarithms"
		  Show("Sqrt of 2", two.Sqrt)
		  Show("Root of 10 with index 3", BigNumberVQZ.Root(d, three))
		  Show("2 to the power of 0.5", two.Pow(half))
		  Show("Exp of 0.5", BigNumberVQZ.Exp(half))
		  Show("Ln of 10", BigNumberVQZ.Ln(d))
		  Show("Log of 2 to the base 10", BigNumberVQZ.Log(two, d))
		  
		  Print "-- Angles in radians"
		  Show("Sin of 0.5", BigNumberVQZ.Sin(half))
		  Show("Cos of 0.5", BigNumberVQZ.Cos(half))
		  Show("Tan of 0.5", BigNumberVQZ.Tan(half))
		  Show("Cot of 0.5", BigNumberVQZ.Cot(half))
		  Show("ASin of 0.5", BigNumberVQZ.ASin(half))
		  Show("ACos of 0.5", BigNumberVQZ.ACos(half))
		  Show("ATan of 0.5", BigNumberVQZ.ATan(half))
		  Show("ACot of 0.5", BigNumberVQZ.ACot(half))
		  
		  Print "-- Hyperbolic functions"
		  Show("Sinh of 0.5", BigNumberVQZ.Sinh(half))
		  Show("Cosh of 0.5", BigNumberVQZ.Cosh(half))
		  Show("Tanh of 0.5", BigNumberVQZ.Tanh(half))
		  Show("Coth of 0.5", BigNumberVQZ.Coth(half))
		  Show("ASinh of 0.5", BigNumberVQZ.ASinh(half))
		  Show("ACosh of 2", BigNumberVQZ.ACosh(two))
		  Show("ATanh of 0.5", BigNumberVQZ.ATanh(half))
		  Show("ACoth of 2", BigNumberVQZ.ACoth(two))
		  
		  Print "-- Degrees, radians and grads"
		  Show("10 degrees in radians", BigNumberVQZ.DegToRad(d))
		  Show("10 degrees in grads", BigNumberVQZ.DegToGrad(d))
		  Show("10 grads in degrees", BigNumberVQZ.GradToDeg(d))
		  Show("10 grads in radians", BigNumberVQZ.GradToRad(d))
		  Show("2 radians in degrees", BigNumberVQZ.RadToDeg(two))
		  Show("2 radians in grads", BigNumberVQZ.RadToGrad(two))
		  Show("10 degrees 30' 36'' in degrees", BigNumberVQZ.DegToDeg(d, "30", "36"))
		  Show("10 degrees 30' 36'' in radians", BigNumberVQZ.DegToRad(d, "30", "36"))
		  Show("10 degrees 30' 36'' in grads", BigNumberVQZ.DegToGrad(d, "30", "36"))
		  
		  Print "-- Constants"
		  Show("Pi", BigNumberVQZ.Pi)
		  Show("HalfPi", BigNumberVQZ.HalfPi)
		  Show("TwoPi", BigNumberVQZ.TwoPi)
		  Show("E", BigNumberVQZ.E)
		  Show("Ln2", BigNumberVQZ.Ln2)
		  Show("Ln10", BigNumberVQZ.Ln10)
		  Show("Zero", BigNumberVQZ.Zero)
		  Show("One", BigNumberVQZ.One)
		  Show("Nan", BigNumberVQZ.Nan)
		  Print "Max = " + BigNumberVQZ.Max.GetStringValue(10, True, 15, 20)
		  Print "Min = " + BigNumberVQZ.Min.GetStringValue(10, True, 15, 20)
		  
		  Print "-- A random number is positive and can be of any size"
		  Dim r As BigNumberVQZ = BigNumberVQZ.Rand
		  Print "negative: " + Str(r.IsNegative) + ", zero: " + Str(r.IsZero)
		  
		  Print "-- Outside of a function's domain"
		  Try
		    Show("Ln of -4", BigNumberVQZ.Ln(b))
		  Catch e As BigNumberErrorExceptionVQZ
		    Print e.Message
		  End Try
		  Try
		    Show("ASin of 2", BigNumberVQZ.ASin(two))
		  Catch e As BigNumberErrorExceptionVQZ
		    Print e.Message
		  End Try
		  Try
		    Show("Root of -4 with index 2", BigNumberVQZ.Root(b, two))
		  Catch e As BigNumberErrorExceptionVQZ
		    Print e.Message
		  End Try
		End Sub
	#tag EndMethod


	#tag Method, Flags = &h21
		Private Function Shortened(x As BigNumberVQZ) As String
		  ' The number with 40 digits after the point at the most.
		  If x Is Nil Then Return "Nil"
		  Return x.GetStringValue(10, False, 50, 40)
		End Function
	#tag EndMethod


	#tag Method, Flags = &h21
		Private Sub Show(label As String, x As BigNumberVQZ)
		  Print label + " = " + Shortened(x)
		End Sub
	#tag EndMethod


	#tag ViewBehavior
	#tag EndViewBehavior
End Module
#tag EndModule
