#tag Module
Protected Module Compiles
	#tag Note, Name = About
		What a compiler could refuse, a method for each fact. The method has the fact's name, so that an error of
		the compiler tells the fact.
	#tag EndNote

	#tag Method, Flags = &h1
		Protected Sub Run()
		  OperatorLeft
		  OperatorRight
		  Negation
		  Comparison
		  ConversionIn
		  ConversionOut
		  AssignmentToMethod
		  LeftOutArguments
		  ConstructorOfString
		  ConstructorOfValue
		  ConstructorOfLiteral
		  OverloadByCount
		  SharedAndInstance
		  PropertyAndMethod
		  NilArgument
		  HiddenMembers
		  NumberInVariant
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Function N(digits As String) As BigNumberVQZ
		  Return BigNumberVQZ.NumberWithString(digits)
		End Function
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OperatorLeft()
		  #If kOperatorLeft Then
		    #Pragma BreakOnExceptions False
		    Try
		      Dim a As BigNumberVQZ = N("17")
		      Dim b As BigNumberVQZ = N("5")
		      CheckText("compiles-operator-left", TextOf(a + b), "22")
		      CheckText("compiles-operator-left", TextOf(a - b), "12")
		      CheckText("compiles-operator-left", TextOf(a * b), "85")
		      CheckText("compiles-operator-left", TextOf(a / N("8")), "2.125")
		      CheckText("compiles-operator-left", TextOf(a \ b), "3")
		      CheckText("compiles-operator-left", TextOf(a Mod b), "2")
		      CheckText("compiles-operator-left", TextOf(a ^ b), "1419857")
		      #If kConversionIn Then
		        Dim five As String = "5"
		        CheckText("compiles-operator-left", TextOf(a + "5"), "22")
		        CheckText("compiles-operator-left", TextOf(a - five), "12")
		        CheckText("compiles-operator-left", TextOf(a ^ five), "1419857")
		      #EndIf
		    Catch e As RuntimeException
		      Unexpected("compiles-operator-left", e)
		    End Try
		  #EndIf
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OperatorRight()
		  #If kOperatorRight And kConversionIn Then
		    #Pragma BreakOnExceptions False
		    Try
		      ' A text on the left goes to the number's own operator, which takes the number as its left side.
		      Dim b As BigNumberVQZ = N("5")
		      Dim text17 As String = "17"
		      CheckText("compiles-operator-right", TextOf("17" + b), "22")
		      CheckText("compiles-operator-right", TextOf(text17 + b), "22")
		      CheckText("compiles-operator-right", TextOf("17" * b), "85")
		      CheckText("order-of-operands", TextOf("17" - b), "-12")
		      CheckText("order-of-operands", TextOf(text17 - b), "-12")
		      CheckText("order-of-operands", TextOf("8" / b), "0.625")
		      CheckText("order-of-operands", TextOf("17" \ b), "0")
		      CheckText("order-of-operands", TextOf("17" Mod b), "5")
		      CheckText("order-of-operands", TextOf("2" ^ b), "25")
		    Catch e As RuntimeException
		      Unexpected("compiles-operator-right", e)
		    End Try
		  #EndIf
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub Negation()
		  #If kNegation Then
		    #Pragma BreakOnExceptions False
		    Try
		      Dim a As BigNumberVQZ = N("17")
		      CheckText("compiles-negation", TextOf(-a), "-17")
		    Catch e As RuntimeException
		      Unexpected("compiles-negation", e)
		    End Try
		  #EndIf
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub Comparison()
		  #If kComparison Then
		    #Pragma BreakOnExceptions False
		    Try
		      Dim a As BigNumberVQZ = N("17")
		      Dim b As BigNumberVQZ = N("5")
		      Dim same As BigNumberVQZ = N("17")
		      CheckTrue("compiles-comparison", a > b)
		      CheckTrue("compiles-comparison", a >= same)
		      CheckTrue("compiles-comparison", b < a)
		      CheckTrue("compiles-comparison", a <= same)
		      CheckTrue("compiles-comparison", a = same)
		      CheckTrue("compiles-comparison", a <> b)
		      #If kConversionIn Then
		        Dim five As String = "5"
		        CheckTrue("compiles-comparison", a > five)
		        CheckTrue("compiles-comparison", b = "5.0")
		        CheckTrue("order-of-comparison", five < a)
		        CheckTrue("order-of-comparison", "20" > a)
		      #EndIf
		      #If kNilArgument Then
		        ' Nil is no number, and that compares as equal to 0.
		        CheckTrue("nil-compared", N("0") = Nil)
		        CheckTrue("nil-compared", a <> Nil)
		      #EndIf
		    Catch e As RuntimeException
		      Unexpected("compiles-comparison", e)
		    End Try
		  #EndIf
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub ConversionIn()
		  #If kConversionIn Then
		    #Pragma BreakOnExceptions False
		    Try
		      Dim digits As String = "-2.5"
		      Dim a As BigNumberVQZ = "12.25"
		      CheckText("compiles-conversion-in", TextOf(a), "12.25")
		      a = digits
		      CheckText("compiles-conversion-in", TextOf(a), "-2.5")
		      CheckText("compiles-conversion-in", TextOf(BigNumberVQZ.Sgn("-3")), "-1")
		    Catch e As RuntimeException
		      Unexpected("compiles-conversion-in", e)
		    End Try
		  #EndIf
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub ConversionOut()
		  #If kConversionOut Then
		    #Pragma BreakOnExceptions False
		    Try
		      Dim digits As String = N("12.25")
		      CheckText("compiles-conversion-out", digits, "12.25")
		      digits = N("-3")
		      CheckText("compiles-conversion-out", digits, "-3")
		    Catch e As RuntimeException
		      Unexpected("compiles-conversion-out", e)
		    End Try
		  #EndIf
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub AssignmentToMethod()
		  #If kAssignmentToMethod Then
		    #Pragma BreakOnExceptions False
		    Try
		      Dim a As New BigNumberVQZ
		      a.StringValue(16) = "FF"
		      CheckText("compiles-assignment-to-method", TextOf(a), "255")
		      a.StringValue(2) = "-101"
		      CheckText("compiles-assignment-to-method", TextOf(a), "-5")
		    Catch e As RuntimeException
		      Unexpected("compiles-assignment-to-method", e)
		    End Try
		  #EndIf
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub LeftOutArguments()
		  #If kLeftOutArguments Then
		    #Pragma BreakOnExceptions False
		    Try
		      Dim a As BigNumberVQZ = N("255.5")
		      CheckText("compiles-left-out-arguments", a.GetStringValue(16), "FF.8")
		      CheckText("default-values", a.GetStringValue, "255.5")
		      CheckText("default-values", N("12345678901234567890").GetStringValue(10), "1.234567890123456789e+19")
		      CheckText("default-values", N("0.5").GetStringValue(10, True), "5e-1")
		      CheckText("default-values", N("0.50").GetStringValue(10, False, 15, 4), "0.5")
		      CheckText("default-values", HexOf(N("2").Divide(N("3")).DataMantissa), HexOf(N("2").Divide(N("3"), True).DataMantissa))
		      CheckText("default-values", HexOf(N("1").Add(BigNumberVQZ.Pi).DataMantissa), HexOf(N("1").Add(BigNumberVQZ.Pi, True).DataMantissa))
		    Catch e As RuntimeException
		      Unexpected("default-values", e)
		    End Try
		  #EndIf
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub ConstructorOfString()
		  #If kConstructorOfString Then
		    #Pragma BreakOnExceptions False
		    Try
		      Dim digits As String = "12.25"
		      CheckText("compiles-constructor-of-string", TextOf(New BigNumberVQZ("0.1")), "0.1")
		      CheckText("compiles-constructor-of-string", TextOf(New BigNumberVQZ(digits)), "12.25")
		      CheckText("compiles-constructor-of-string", TextOf(New BigNumberVQZ("")), "0")
		    Catch e As RuntimeException
		      Unexpected("compiles-constructor-of-string", e)
		    End Try
		  #EndIf
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub ConstructorOfValue()
		  #If kConstructorOfValue Then
		    #Pragma BreakOnExceptions False
		    Try
		      ' Values that only the constructor of their own type takes as they are.
		      Dim narrow As Int32 = -2147483647
		      narrow = narrow - 1
		      CheckText("constructor-of-int32", TextOf(New BigNumberVQZ(narrow)), "-2147483648")
		      Dim wide As Int64 = -9007199254740993
		      CheckText("constructor-of-int64", TextOf(New BigNumberVQZ(wide)), "-9007199254740993")
		      Dim narrowUnsigned As UInt32 = 4294967295
		      CheckText("constructor-of-uint32", TextOf(New BigNumberVQZ(narrowUnsigned)), "4294967295")
		      Dim wideUnsigned As UInt64 = 9223372036854775807
		      wideUnsigned = wideUnsigned + wideUnsigned + 1
		      CheckText("constructor-of-uint64", TextOf(New BigNumberVQZ(wideUnsigned)), "18446744073709551615")
		      Dim shortReal As Single = 0.1
		      CheckText("constructor-of-single", TextOf(New BigNumberVQZ(shortReal)), "0.100000001490116119384765625")
		      Dim real As Double = 0.1
		      CheckText("constructor-of-double", TextOf(New BigNumberVQZ(real)), "0.1000000000000000055511151231257827021181583404541015625")
		      Dim amount As Currency = 0.1
		      CheckText("constructor-of-currency", TextOf(New BigNumberVQZ(amount)), "0.1")
		      Dim whole As Integer = -5
		      CheckText("compiles-constructor-of-value", TextOf(New BigNumberVQZ(whole)), "-5")
		      ' By way of a text this would be 0.
		      CheckText("constructor-of-number", TextOf(New BigNumberVQZ(BigNumberVQZ.Nan)), "NaN")
		      CheckText("constructor-of-number", TextOf(New BigNumberVQZ(N("1.5"))), "1.5")
		    Catch e As RuntimeException
		      Unexpected("compiles-constructor-of-value", e)
		    End Try
		  #EndIf
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub ConstructorOfLiteral()
		  #If kConstructorOfLiteral Then
		    #Pragma BreakOnExceptions False
		    Try
		      CheckText("compiles-constructor-of-literal", TextOf(New BigNumberVQZ(12)), "12")
		      CheckText("constructor-of-whole-literal", TextOf(New BigNumberVQZ(-12)), "-12")
		      CheckText("constructor-of-wide-literal", TextOf(New BigNumberVQZ(9007199254740993)), "9007199254740993")
		      CheckText("constructor-of-real-literal", TextOf(New BigNumberVQZ(0.1)), "0.1000000000000000055511151231257827021181583404541015625")
		    Catch e As RuntimeException
		      Unexpected("compiles-constructor-of-literal", e)
		    End Try
		  #EndIf
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OverloadByCount()
		  #If kOverloadByCount Then
		    #Pragma BreakOnExceptions False
		    Try
		      CheckTrue("compiles-overload-by-count", BigNumberVQZ.DegToRad(N("180")).Equals(BigNumberVQZ.Pi))
		      CheckText("compiles-overload-by-count", TextOf(BigNumberVQZ.DegToGrad(N("90"), N("0"), N("0"))), "100")
		    Catch e As RuntimeException
		      Unexpected("compiles-overload-by-count", e)
		    End Try
		  #EndIf
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub SharedAndInstance()
		  #If kSharedAndInstance Then
		    #Pragma BreakOnExceptions False
		    Try
		      ' Abs is a method of each number and a shared one as well.
		      CheckText("compiles-shared-and-instance", TextOf(N("-7").Abs), "7")
		      CheckText("compiles-shared-and-instance", TextOf(BigNumberVQZ.Abs(N("-7"))), "7")
		    Catch e As RuntimeException
		      Unexpected("compiles-shared-and-instance", e)
		    End Try
		  #EndIf
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub PropertyAndMethod()
		  #If kPropertyAndMethod Then
		    #Pragma BreakOnExceptions False
		    Try
		      ' StringValue is a property, and with a base a method.
		      Dim a As New BigNumberVQZ
		      a.StringValue = "255"
		      CheckText("compiles-property-and-method", a.StringValue, "255")
		      CheckText("compiles-property-and-method", a.StringValue(16), "FF")
		    Catch e As RuntimeException
		      Unexpected("compiles-property-and-method", e)
		    End Try
		  #EndIf
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub NilArgument()
		  #If kNilArgument Then
		    #Pragma BreakOnExceptions False
		    Try
		      CheckTrue("compiles-nil-argument", BigNumberVQZ.ATan(Nil).IsNan)
		      CheckTrue("compiles-nil-argument", Not N("1").Equals(Nil))
		    Catch e As RuntimeException
		      Unexpected("compiles-nil-argument", e)
		    End Try
		  #EndIf
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub HiddenMembers()
		  #If kHiddenMembers Then
		    #Pragma BreakOnExceptions False
		    Try
		      CheckText("compiles-hidden-members", BigNumberVQZ.LibTypeStr, "no_asm_32")
		      CheckText("compiles-hidden-members", BiggerNumberVQZ.LibTypeStr, "no_asm_32")
		      Dim before As Boolean = BigNumberVQZ.Debugging
		      BigNumberVQZ.Debugging = True
		      CheckTrue("compiles-hidden-members", BiggerNumberVQZ.Debugging)
		      BigNumberVQZ.Debugging = False
		      CheckTrue("compiles-hidden-members", Not BiggerNumberVQZ.Debugging)
		      BigNumberVQZ.Debugging = before
		    Catch e As RuntimeException
		      Unexpected("compiles-hidden-members", e)
		    End Try
		  #EndIf
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub NumberInVariant()
		  #If kNumberInVariant Then
		    #Pragma BreakOnExceptions False
		    Try
		      ' The number itself goes into the Variant, not its text.
		      Dim held As Variant = N("1.5")
		      CheckInteger("compiles-number-in-variant", VarType(held), 9)
		      CheckText("variant-of-number", TextOf(BigNumberVQZ.NumberWithVariant(held)), "1.5")
		    Catch e As RuntimeException
		      Unexpected("variant-of-number", e)
		    End Try
		  #EndIf
		End Sub
	#tag EndMethod


	#tag ViewBehavior
	#tag EndViewBehavior
End Module
#tag EndModule
