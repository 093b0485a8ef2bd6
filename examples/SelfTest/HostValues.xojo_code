#tag Module
Protected Module HostValues
	#tag Note, Name = About
		Whether the values of each type arrive in the library and come back from it: arguments, results, ByRef
		parameters.
	#tag EndNote

	#tag Method, Flags = &h1
		Protected Sub Run()
		  Booleans
		  NarrowIntegers
		  WideIntegers
		  RealNumbers
		  OverloadByType
		  ByRefParameters
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Function N(digits As String) As BigNumberVQZ
		  Return BigNumberVQZ.NumberWithString(digits)
		End Function
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub Booleans()
		  #Pragma BreakOnExceptions False
		  Try
		    Dim yes As Boolean = True
		    Dim no As Boolean = False
		    CheckText("argument-boolean", N("5").GetStringValue(10, yes, 15, -1, True, "."), "5e+0")
		    CheckText("argument-boolean", N("5").GetStringValue(10, no, 15, -1, True, "."), "5")
		    CheckText("argument-boolean", N("5").GetStringValue(10, False, 15, 2, no, "."), "5.00")
		    CheckTrue("result-boolean", N("0").IsZero)
		    CheckTrue("result-boolean", Not N("1").IsZero)
		    CheckTrue("result-boolean", N("5").Equals(N("5")))
		    CheckTrue("result-boolean", Not N("5").Equals(N("6")))
		  Catch e As RuntimeException
		    Unexpected("argument-boolean", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub NarrowIntegers()
		  #Pragma BreakOnExceptions False
		  Try
		    Dim signed As Int32 = -2147483647
		    CheckText("argument-int32", TextOf(BigNumberVQZ.NumberWithInt32(signed)), "-2147483647")
		    Dim unsigned As UInt32 = 4294967295
		    CheckText("argument-uint32", TextOf(BigNumberVQZ.NumberWithUInt32(unsigned)), "4294967295")
		  Catch e As RuntimeException
		    Unexpected("argument-int32", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub WideIntegers()
		  #Pragma BreakOnExceptions False
		  Try
		    Dim signed As Int64 = -9007199254740993
		    CheckText("argument-int64", TextOf(BigNumberVQZ.NumberWithInt64(signed)), "-9007199254740993")
		    CheckTrue("result-int64", N("-9007199254740993").Int64Value = signed)
		    Dim unsigned As UInt64 = 9223372036854775807
		    unsigned = unsigned + unsigned + 1
		    CheckText("argument-uint64", TextOf(BigNumberVQZ.NumberWithUInt64(unsigned)), "18446744073709551615")
		    CheckTrue("result-uint64", N("18446744073709551615").UInt64Value = unsigned)
		    Dim whole As Integer = -2147483647
		    Dim wholeDigits As String = "-2147483647"
		    If IntegerHas64Bits Then
		      whole = signed
		      wholeDigits = "-9007199254740993"
		    End If
		    CheckText("argument-integer", TextOf(BigNumberVQZ.NumberWithInteger(whole)), wholeDigits)
		    CheckTrue("result-integer", N(wholeDigits).IntegerValue = whole)
		    Dim changed As New BigNumberVQZ
		    changed.IntegerValue = whole
		    CheckText("argument-integer", TextOf(changed), wholeDigits)
		    #If RBVersion >= 2015 Then
		      Dim unsignedWhole As UInteger = 4294967295
		      Dim unsignedDigits As String = "4294967295"
		      If IntegerHas64Bits Then
		        unsignedWhole = unsigned
		        unsignedDigits = "18446744073709551615"
		      End If
		      CheckText("argument-uinteger", TextOf(BigNumberVQZ.NumberWithUInteger(unsignedWhole)), unsignedDigits)
		    #EndIf
		  Catch e As RuntimeException
		    Unexpected("argument-integer", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub RealNumbers()
		  #Pragma BreakOnExceptions False
		  Try
		    Dim shortReal As Single = -0.75
		    CheckText("argument-single", TextOf(BigNumberVQZ.NumberWithSingle(shortReal)), "-0.75")
		    Dim real As Double = 0.1
		    CheckText("argument-double", TextOf(BigNumberVQZ.NumberWithDouble(real)), "0.1000000000000000055511151231257827021181583404541015625")
		    CheckReal("result-double", BigNumberVQZ.NumberWithDouble(real).DoubleValue, real)
		    Dim amount As Currency = -1234.5678
		    CheckText("argument-currency", TextOf(BigNumberVQZ.NumberWithCurrency(amount)), "-1234.5678")
		    CheckTrue("result-currency", N("-1234.5678").CurrencyValue = amount)
		    Dim changed As New BigNumberVQZ
		    changed.DoubleValue = real
		    CheckReal("argument-double", changed.DoubleValue, real)
		    changed.CurrencyValue = amount
		    CheckText("argument-currency", TextOf(changed), "-1234.5678")
		  Catch e As RuntimeException
		    Unexpected("argument-double", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OverloadByType()
		  #If kConstructorOfValue Then
		    #Pragma BreakOnExceptions False
		    Try
		      Dim unsigned As UInt32 = 4294967295
		      CheckText("overload-by-type", TextOf(N("2").Multiply(unsigned)), "8589934590")
		      Dim whole As Integer = -3
		      CheckText("overload-by-type", TextOf(N("2").Multiply(whole)), "-6")
		      CheckText("overload-by-type", TextOf(N("2").Multiply(N("1.5"), True)), "3")
		    Catch e As RuntimeException
		      Unexpected("overload-by-type", e)
		    End Try
		  #EndIf
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub ByRefParameters()
		  #Pragma BreakOnExceptions False
		  Try
		    Dim number As New BigNumberVQZ
		    Dim rest As String = "before"
		    Dim wasRead As Boolean = False
		    number.SetStringValue("12.5 metres", 10, rest, wasRead)
		    CheckText("byref-text", TextOf(number), "12.5")
		    CheckText("byref-text", rest, " metres")
		    CheckTrue("byref-boolean", wasRead)
		    ' One variable may be the text and what is left of it.
		    Dim both As String = "7 left"
		    number.SetStringValue(both, 10, both, wasRead)
		    CheckText("byref-text", TextOf(number), "7")
		    CheckText("byref-text", both, " left")
		    wasRead = True
		    number.SetStringValue("none", 10, rest, wasRead)
		    CheckText("byref-text", rest, "none")
		    CheckTrue("byref-boolean", Not wasRead)
		  Catch e As RuntimeException
		    Unexpected("byref-text", e)
		  End Try
		End Sub
	#tag EndMethod


	#tag ViewBehavior
	#tag EndViewBehavior
End Module
#tag EndModule
