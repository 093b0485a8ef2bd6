#tag Module
Protected Module BigNumberChecks
	#tag Note, Name = About
		Each member of BigNumberVQZ with results that were computed elsewhere. This module is made by
		tests/self_test/make_checks.py, which says how; what it is made from stands in members.py there.
	#tag EndNote

	#tag Method, Flags = &h1
		Protected Sub Run()
		  OfIsZero
		  OfIsNegative
		  OfIsNan
		  OfIsInteger
		  OfIntegerValue
		  OfInt64Value
		  OfUInt64Value
		  OfDoubleValue
		  OfStringValue
		  OfStringValueInBase
		  OfStringValueInBaseSet
		  OfCurrencyValue
		  OfVariantValue
		  OfDataMantissa
		  OfDataExponent
		  OfDataFlags
		  OfDebugging
		  OfLibTypeStr
		  OfGetStringValue
		  OfSetStringValue
		  OfCeil
		  OfFloor
		  OfRound
		  OfSkipFraction
		  OfFrac
		  OfEquals
		  OfSqrt
		  OfPow
		  OfModulate2
		  OfModulate
		  OfDivide
		  OfMultiply
		  OfMultiplyByInteger
		  OfMultiplyByUInt32
		  OfBitXOr
		  OfBitOr
		  OfBitAnd
		  OfSubtract
		  OfAdd
		  OfAbs
		  OfNegate
		  OfConstructor
		  OfConstructorOfString
		  OfConstructorOfValue
		  OfNumberWith
		  OfNumberWithVariant
		  OfNumberWithUInteger
		  OfConversionIn
		  OfConversionOut
		  OfOperators
		  OfOperatorsRight
		  OfNegation
		  OfComparison
		  OfSgn
		  OfRoot
		  OfDegToDeg
		  OfDegToRadOfMinutes
		  OfDegToGradOfMinutes
		  OfDegToGrad
		  OfGradToDeg
		  OfGradToRad
		  OfRadToGrad
		  OfDegToRad
		  OfRadToDeg
		  OfACoth
		  OfATanh
		  OfACosh
		  OfASinh
		  OfCoth
		  OfTanh
		  OfCosh
		  OfSinh
		  OfACot
		  OfATan
		  OfACos
		  OfASin
		  OfCot
		  OfTan
		  OfCos
		  OfSin
		  OfLog
		  OfLn
		  OfExp
		  OfMinAndMax
		  OfZeroAndOne
		  OfPi
		  OfHalfPi
		  OfTwoPi
		  OfE
		  OfLn2
		  OfLn10
		  OfRand
		  OfNilLeftOfOperators
		  OfNilRightOfOperators
		  OfNilReceivers
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Function N(digits As String) As BigNumberVQZ
		  Return BigNumberVQZ.NumberWithString(digits)
		End Function
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Function Shown(number As BigNumberVQZ) As String
		  ' All digits, and never an exponent.
		  If number Is Nil Then
		    Return "Nil"
		  End If
		  Return number.GetStringValue(10, False, 99999, -1, True, ".")
		End Function
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Function InMessage(number As BigNumberVQZ) As String
		  ' As messages show a number.
		  Return number.GetStringValue(10, False, 15, -1, True, ".")
		End Function
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfIsZero()
		  #Pragma BreakOnExceptions False
		  Try
		    CheckTrue("BigNumberVQZ.IsZero", N("0").IsZero)
		    CheckTrue("BigNumberVQZ.IsZero", Not (N("2").IsZero))
		  Catch e As RuntimeException
		    Unexpected("BigNumberVQZ.IsZero", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfIsNegative()
		  #Pragma BreakOnExceptions False
		  Try
		    CheckTrue("BigNumberVQZ.IsNegative", N("-2").IsNegative)
		    CheckTrue("BigNumberVQZ.IsNegative", Not (N("2").IsNegative))
		  Catch e As RuntimeException
		    Unexpected("BigNumberVQZ.IsNegative", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfIsNan()
		  #Pragma BreakOnExceptions False
		  Try
		    CheckTrue("BigNumberVQZ.IsNan", BigNumberVQZ.Nan.IsNan)
		    CheckTrue("BigNumberVQZ.IsNan", Not (N("2").IsNan))
		  Catch e As RuntimeException
		    Unexpected("BigNumberVQZ.IsNan", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfIsInteger()
		  #Pragma BreakOnExceptions False
		  Try
		    CheckTrue("BigNumberVQZ.IsInteger", N("-2").IsInteger)
		    CheckTrue("BigNumberVQZ.IsInteger", Not (N("2.5").IsInteger))
		  Catch e As RuntimeException
		    Unexpected("BigNumberVQZ.IsInteger", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfIntegerValue()
		  #Pragma BreakOnExceptions False
		  Dim x As BigNumberVQZ
		  Try
		    CheckTrue("BigNumberVQZ.IntegerValue", N("-123456789").IntegerValue = -123456789)
		    Dim given As Integer = -123456789
		    x = N("1")
		    x.IntegerValue = given
		    CheckText("BigNumberVQZ.IntegerValue set", Shown(x), "-123456789")
		    Try
		      Dim got As Integer = N("1e30").IntegerValue
		      MissFailure("BigNumberVQZ.IntegerValue of 1e30")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.IntegerValue of 1e30", e, "BigNumberErrorExceptionVQZ", "IntegerValue operation failed with number 1e+30.")
		    End Try
		  Catch e As RuntimeException
		    Unexpected("BigNumberVQZ.IntegerValue", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfInt64Value()
		  #Pragma BreakOnExceptions False
		  Dim x As BigNumberVQZ
		  Try
		    CheckTrue("BigNumberVQZ.Int64Value", N("-9007199254740993").Int64Value = -9007199254740993)
		    Dim given As Int64 = -9007199254740993
		    x = N("1")
		    x.Int64Value = given
		    CheckText("BigNumberVQZ.Int64Value set", Shown(x), "-9007199254740993")
		    Try
		      Dim got As Int64 = N("1e30").Int64Value
		      MissFailure("BigNumberVQZ.Int64Value of 1e30")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.Int64Value of 1e30", e, "BigNumberErrorExceptionVQZ", "Int64Value operation failed with number 1e+30.")
		    End Try
		  Catch e As RuntimeException
		    Unexpected("BigNumberVQZ.Int64Value", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfUInt64Value()
		  #Pragma BreakOnExceptions False
		  Dim x As BigNumberVQZ
		  Try
		    CheckTrue("BigNumberVQZ.UInt64Value", N("9007199254740993").UInt64Value = 9007199254740993)
		    Dim given As UInt64 = 9007199254740993
		    x = N("1")
		    x.UInt64Value = given
		    CheckText("BigNumberVQZ.UInt64Value set", Shown(x), "9007199254740993")
		    Try
		      Dim got As UInt64 = N("1e30").UInt64Value
		      MissFailure("BigNumberVQZ.UInt64Value of 1e30")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.UInt64Value of 1e30", e, "BigNumberErrorExceptionVQZ", "UInt64Value operation failed with number 1e+30.")
		    End Try
		  Catch e As RuntimeException
		    Unexpected("BigNumberVQZ.UInt64Value", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfDoubleValue()
		  #Pragma BreakOnExceptions False
		  Dim x As BigNumberVQZ
		  Try
		    CheckReal("BigNumberVQZ.DoubleValue", N("-0.375").DoubleValue, -0.375)
		    x = N("1")
		    x.DoubleValue = 0.1
		    CheckText("BigNumberVQZ.DoubleValue set", Shown(x), "0.1000000000000000055511151231257827021181583404541015625")
		    Try
		      Dim got As Double = N("1e400").DoubleValue
		      MissFailure("BigNumberVQZ.DoubleValue of 1e400")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.DoubleValue of 1e400", e, "BigNumberErrorExceptionVQZ", "DoubleValue operation failed with number 1e+400.")
		    End Try
		  Catch e As RuntimeException
		    Unexpected("BigNumberVQZ.DoubleValue", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfStringValue()
		  #If kPropertyAndMethod Then
		    #Pragma BreakOnExceptions False
		    Dim x As BigNumberVQZ
		    Try
		      CheckText("BigNumberVQZ.StringValue", N("-12.25").StringValue, "-12.25")
		      CheckText("BigNumberVQZ.StringValue", N("1e100").StringValue, "1e+100")
		      x = N("1")
		      x.StringValue = "-2,5 metres"
		      CheckText("BigNumberVQZ.StringValue set", Shown(x), "-2.5")
		      Try
		        x = N("2")
		        x.StringValue = "1e" + ManyNines()
		        MissFailure("BigNumberVQZ.StringValue set to 1e999...")
		      Catch e As RuntimeException
		        CheckFailed("BigNumberVQZ.StringValue set to 1e999...", e, "BigNumberErrorExceptionVQZ", "StringValue operation failed with number 2.")
		      End Try
		    Catch e As RuntimeException
		      Unexpected("BigNumberVQZ.StringValue", e)
		    End Try
		  #EndIf
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfStringValueInBase()
		  #If kPropertyAndMethod Then
		    #Pragma BreakOnExceptions False
		    Try
		      CheckText("BigNumberVQZ.StringValue(16)", N("-255.5").StringValue(16), "-FF.8")
		      CheckText("BigNumberVQZ.StringValue(2)", N("5").StringValue(2), "101")
		      Try
		        Dim digits As String = N("2").StringValue(99)
		        MissFailure("BigNumberVQZ.StringValue(99)")
		      Catch e As RuntimeException
		        CheckFailed("BigNumberVQZ.StringValue(99)", e, "BigNumberErrorExceptionVQZ", "StringValue operation failed with number 2.")
		      End Try
		    Catch e As RuntimeException
		      Unexpected("BigNumberVQZ.StringValue(16)", e)
		    End Try
		  #EndIf
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfStringValueInBaseSet()
		  #If kAssignmentToMethod And kPropertyAndMethod Then
		    #Pragma BreakOnExceptions False
		    Dim x As BigNumberVQZ
		    Try
		      x = N("1")
		      x.StringValue(16) = "-FF.8"
		      CheckText("BigNumberVQZ.StringValue(16) =", Shown(x), "-255.5")
		      Try
		        x = N("2")
		        x.StringValue(99) = "1"
		        MissFailure("BigNumberVQZ.StringValue(99) =")
		      Catch e As RuntimeException
		        CheckFailed("BigNumberVQZ.StringValue(99) =", e, "BigNumberErrorExceptionVQZ", "StringValue operation failed with number 2.")
		      End Try
		    Catch e As RuntimeException
		      Unexpected("BigNumberVQZ.StringValue(16) =", e)
		    End Try
		  #EndIf
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfCurrencyValue()
		  #Pragma BreakOnExceptions False
		  Dim x As BigNumberVQZ
		  Try
		    Dim amount As Currency = 12.3456
		    CheckTrue("BigNumberVQZ.CurrencyValue", N("12.34556").CurrencyValue = amount)
		    x = N("1")
		    x.CurrencyValue = amount
		    CheckText("BigNumberVQZ.CurrencyValue set", x.GetStringValue(10, False, 15, 40, True, "."), "12.3456")
		    Try
		      Dim got As Currency = N("1e30").CurrencyValue
		      MissFailure("BigNumberVQZ.CurrencyValue of 1e30")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.CurrencyValue of 1e30", e, "BigNumberErrorExceptionVQZ", "CurrencyValue operation failed.")
		    End Try
		  Catch e As RuntimeException
		    Unexpected("BigNumberVQZ.CurrencyValue", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfVariantValue()
		  #Pragma BreakOnExceptions False
		  Dim x As BigNumberVQZ
		  Try
		    Dim got As Variant = N("-5").VariantValue
		    CheckInteger("BigNumberVQZ.VariantValue", got.IntegerValue, -5)
		    got = N("2.75").VariantValue
		    CheckText("BigNumberVQZ.VariantValue", got.StringValue, "2.75")
		    x = N("1")
		    x.VariantValue = got
		    CheckText("BigNumberVQZ.VariantValue set", Shown(x), "2.75")
		    Try
		      x.VariantValue = New MemoryBlock(4)
		      MissFailure("BigNumberVQZ.VariantValue set to a MemoryBlock")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.VariantValue set to a MemoryBlock", e, "UnsupportedOperationException", "Conversion not supported.")
		    End Try
		    Try
		      x.VariantValue = "1e" + ManyNines()
		      MissFailure("BigNumberVQZ.VariantValue set to 1e999...")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.VariantValue set to 1e999...", e, "BigNumberErrorExceptionVQZ", "StringValue operation failed with number 0.")
		    End Try
		  Catch e As RuntimeException
		    Unexpected("BigNumberVQZ.VariantValue", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfDataMantissa()
		  #Pragma BreakOnExceptions False
		  Dim x As BigNumberVQZ
		  Try
		    Dim size As String = Str(N("1").DataMantissa.Size)
		    Dim block As MemoryBlock = N("12.5").DataMantissa
		    x = BigNumberVQZ.NumberWithString("-7")
		    x.DataMantissa = block
		    CheckText("BigNumberVQZ.DataMantissa", HexOf(x.DataMantissa), HexOf(block))
		    Try
		      x.DataMantissa = New MemoryBlock(3)
		      MissFailure("BigNumberVQZ.DataMantissa too small")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.DataMantissa too small", e, "OutOfBoundsException", "The parameter MemoryBlock.Size to method DataMantissa is too small. Range is " + size + " to " + size + ", but value is 3.")
		    End Try
		    Try
		      x.DataMantissa = New MemoryBlock(999)
		      MissFailure("BigNumberVQZ.DataMantissa too big")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.DataMantissa too big", e, "OutOfBoundsException", "The parameter MemoryBlock.Size to method DataMantissa is too big. Range is " + size + " to " + size + ", but value is 999.")
		    End Try
		    Try
		      Dim noBlock As MemoryBlock
		      x.DataMantissa = noBlock
		      MissFailure("BigNumberVQZ.DataMantissa Nil")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.DataMantissa Nil", e, "NilObjectException", "MemoryBlock is nil")
		    End Try
		  Catch e As RuntimeException
		    Unexpected("BigNumberVQZ.DataMantissa", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfDataExponent()
		  #Pragma BreakOnExceptions False
		  Dim x As BigNumberVQZ
		  Try
		    Dim size As String = Str(N("1").DataExponent.Size)
		    Dim block As MemoryBlock = N("12.5").DataExponent
		    x = BigNumberVQZ.NumberWithString("-7")
		    x.DataExponent = block
		    CheckText("BigNumberVQZ.DataExponent", HexOf(x.DataExponent), HexOf(block))
		    Try
		      x.DataExponent = New MemoryBlock(3)
		      MissFailure("BigNumberVQZ.DataExponent too small")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.DataExponent too small", e, "OutOfBoundsException", "The parameter MemoryBlock.Size to method DataMantissa is too small. Range is " + size + " to " + size + ", but value is 3.")
		    End Try
		    Try
		      x.DataExponent = New MemoryBlock(999)
		      MissFailure("BigNumberVQZ.DataExponent too big")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.DataExponent too big", e, "OutOfBoundsException", "The parameter MemoryBlock.Size to method DataMantissa is too big. Range is " + size + " to " + size + ", but value is 999.")
		    End Try
		    Try
		      Dim noBlock As MemoryBlock
		      x.DataExponent = noBlock
		      MissFailure("BigNumberVQZ.DataExponent Nil")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.DataExponent Nil", e, "NilObjectException", "MemoryBlock is nil")
		    End Try
		  Catch e As RuntimeException
		    Unexpected("BigNumberVQZ.DataExponent", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfDataFlags()
		  #Pragma BreakOnExceptions False
		  Dim x As BigNumberVQZ
		  Try
		    CheckInteger("BigNumberVQZ.DataFlags", N("-2").DataFlags, 128)
		    CheckInteger("BigNumberVQZ.DataFlags", N("0").DataFlags, 32)
		    CheckInteger("BigNumberVQZ.DataFlags", BigNumberVQZ.Nan.DataFlags, 96)
		    x = BigNumberVQZ.NumberWithString("2.5")
		    x.DataFlags = 128
		    CheckText("BigNumberVQZ.DataFlags set", Shown(x), "-2.5")
		  Catch e As RuntimeException
		    Unexpected("BigNumberVQZ.DataFlags", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfDebugging()
		  #If kHiddenMembers Then
		    #Pragma BreakOnExceptions False
		    Try
		      Dim before As Boolean = BigNumberVQZ.Debugging
		      BigNumberVQZ.Debugging = True
		      CheckTrue("BigNumberVQZ.Debugging", BigNumberVQZ.Debugging)
		      BigNumberVQZ.Debugging = False
		      CheckTrue("BigNumberVQZ.Debugging", Not (BigNumberVQZ.Debugging))
		      BigNumberVQZ.Debugging = before
		    Catch e As RuntimeException
		      Unexpected("BigNumberVQZ.Debugging", e)
		    End Try
		  #EndIf
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfLibTypeStr()
		  #If kHiddenMembers Then
		    #Pragma BreakOnExceptions False
		    Try
		      CheckText("BigNumberVQZ.LibTypeStr", BigNumberVQZ.LibTypeStr, "no_asm_32")
		    Catch e As RuntimeException
		      Unexpected("BigNumberVQZ.LibTypeStr", e)
		    End Try
		  #EndIf
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfGetStringValue()
		  #Pragma BreakOnExceptions False
		  Try
		    CheckText("BigNumberVQZ.GetStringValue", N("255.5").GetStringValue(16, False, 15, -1, True, "."), "FF.8")
		    CheckText("BigNumberVQZ.GetStringValue", N("1234.5").GetStringValue(10, True, 15, -1, True, "."), "1.2345e+3")
		    CheckText("BigNumberVQZ.GetStringValue", N("1234.5").GetStringValue(10, False, 2, -1, True, "."), "1.2345e+3")
		    CheckText("BigNumberVQZ.GetStringValue", N("3.14159").GetStringValue(10, False, 15, 2, True, "."), "3.14")
		    CheckText("BigNumberVQZ.GetStringValue", N("5").GetStringValue(10, False, 15, 2, False, "."), "5.00")
		    CheckText("BigNumberVQZ.GetStringValue", N("2.5").GetStringValue(10, False, 15, -1, True, ","), "2,5")
		    Try
		      Dim digits As String = N("2").GetStringValue(99, False, 15, -1, True, ".")
		      MissFailure("BigNumberVQZ.GetStringValue(99)")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.GetStringValue(99)", e, "BigNumberErrorExceptionVQZ", "DoubleValue operation failed with number 2.")
		    End Try
		  Catch e As RuntimeException
		    Unexpected("BigNumberVQZ.GetStringValue", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfSetStringValue()
		  #Pragma BreakOnExceptions False
		  Dim x As BigNumberVQZ
		  Try
		    x = N("1")
		    Dim rest As String
		    Dim wasRead As Boolean
		    x.SetStringValue("-ff.8 hours", 16, rest, wasRead)
		    CheckText("BigNumberVQZ.SetStringValue", Shown(x), "-255.5")
		    CheckText("BigNumberVQZ.SetStringValue", rest, " hours")
		    CheckTrue("BigNumberVQZ.SetStringValue", wasRead)
		    Try
		      x = N("2")
		      x.SetStringValue("1e" + ManyNines(), 10, rest, wasRead)
		      MissFailure("BigNumberVQZ.SetStringValue of 1e999...")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.SetStringValue of 1e999...", e, "BigNumberErrorExceptionVQZ", "SetStringValue operation failed with number 2.")
		    End Try
		  Catch e As RuntimeException
		    Unexpected("BigNumberVQZ.SetStringValue", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfCeil()
		  #Pragma BreakOnExceptions False
		  Dim x As BigNumberVQZ
		  Try
		    CheckText("BigNumberVQZ.Ceil", Shown(N("-2.5").Ceil), "-2")
		    CheckText("BigNumberVQZ.Ceil", Shown(N("2.25").Ceil), "3")
		    Try
		      x = BigNumberVQZ.Nan.Ceil
		      MissFailure("BigNumberVQZ.Ceil of BigNumberVQZ.Nan")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.Ceil of BigNumberVQZ.Nan", e, "BigNumberErrorExceptionVQZ", "Ceil operation failed with number NaN.")
		    End Try
		  Catch e As RuntimeException
		    Unexpected("BigNumberVQZ.Ceil", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfFloor()
		  #Pragma BreakOnExceptions False
		  Dim x As BigNumberVQZ
		  Try
		    CheckText("BigNumberVQZ.Floor", Shown(N("-2.5").Floor), "-3")
		    CheckText("BigNumberVQZ.Floor", Shown(N("2.75").Floor), "2")
		    Try
		      x = BigNumberVQZ.Nan.Floor
		      MissFailure("BigNumberVQZ.Floor of BigNumberVQZ.Nan")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.Floor of BigNumberVQZ.Nan", e, "BigNumberErrorExceptionVQZ", "Floor operation failed with number NaN.")
		    End Try
		  Catch e As RuntimeException
		    Unexpected("BigNumberVQZ.Floor", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfRound()
		  #Pragma BreakOnExceptions False
		  Dim x As BigNumberVQZ
		  Try
		    CheckText("BigNumberVQZ.Round", Shown(N("2.5").Round), "3")
		    CheckText("BigNumberVQZ.Round", Shown(N("-2.5").Round), "-3")
		    CheckText("BigNumberVQZ.Round", Shown(N("2.25").Round), "2")
		    Try
		      x = BigNumberVQZ.Nan.Round
		      MissFailure("BigNumberVQZ.Round of BigNumberVQZ.Nan")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.Round of BigNumberVQZ.Nan", e, "BigNumberErrorExceptionVQZ", "Round operation failed with number NaN.")
		    End Try
		  Catch e As RuntimeException
		    Unexpected("BigNumberVQZ.Round", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfSkipFraction()
		  #Pragma BreakOnExceptions False
		  Try
		    CheckText("BigNumberVQZ.SkipFraction", Shown(N("-2.75").SkipFraction), "-2")
		  Catch e As RuntimeException
		    Unexpected("BigNumberVQZ.SkipFraction", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfFrac()
		  #Pragma BreakOnExceptions False
		  Try
		    CheckText("BigNumberVQZ.Frac", Shown(N("-2.75").Frac), "-0.75")
		  Catch e As RuntimeException
		    Unexpected("BigNumberVQZ.Frac", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfEquals()
		  #Pragma BreakOnExceptions False
		  Dim none As BigNumberVQZ
		  Try
		    CheckTrue("BigNumberVQZ.Equals", N("2.5").Equals(N("2.50")))
		    CheckTrue("BigNumberVQZ.Equals", Not (N("2.5").Equals(N("-2.5"))))
		    CheckTrue("BigNumberVQZ.Equals", Not (N("2.5").Equals(none)))
		  Catch e As RuntimeException
		    Unexpected("BigNumberVQZ.Equals", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfSqrt()
		  #Pragma BreakOnExceptions False
		  Dim x As BigNumberVQZ
		  Try
		    CheckText("BigNumberVQZ.Sqrt", Shown(N("6.25").Sqrt), "2.5")
		    x = N("2").Sqrt
		    CheckText("BigNumberVQZ.Sqrt", x.GetStringValue(10, False, 99999, 60, True, "."), "1.41421356237309504880168872420969807856967187537694807317668")
		    CheckBytes("BigNumberVQZ.Sqrt", x.DataMantissa, "1699338385AC17ED4CA83B89BA606F1D9FBE4A75B3897D598464DEF933F304B5")
		    Try
		      x = N("-1").Sqrt
		      MissFailure("BigNumberVQZ.Sqrt of N('-1')")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.Sqrt of N('-1')", e, "BigNumberErrorExceptionVQZ", "Sqrt operation failed with number -1.")
		    End Try
		    Try
		      x = BigNumberVQZ.Nan.Sqrt
		      MissFailure("BigNumberVQZ.Sqrt of BigNumberVQZ.Nan")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.Sqrt of BigNumberVQZ.Nan", e, "BigNumberErrorExceptionVQZ", "Sqrt operation failed with number NaN.")
		    End Try
		  Catch e As RuntimeException
		    Unexpected("BigNumberVQZ.Sqrt", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfPow()
		  #Pragma BreakOnExceptions False
		  Dim x As BigNumberVQZ
		  Dim none As BigNumberVQZ
		  Try
		    CheckText("BigNumberVQZ.Pow", Shown(N("-1.5").Pow(N("3"))), "-3.375")
		    x = N("2").Pow(N("0.25"))
		    CheckText("BigNumberVQZ.Pow", x.GetStringValue(10, False, 99999, 60, True, "."), "1.189207115002721066717499970560475915292972092463817413019002")
		    CheckBytes("BigNumberVQZ.Pow", x.DataMantissa, "70BBA7EFCB658BD77881FA141B9A135EF6F6422E1823AD466FA9B88D51F03798")
		    Try
		      x = N("-2").Pow(N("0.5"))
		      MissFailure("BigNumberVQZ.Pow of N('-2') and N('0.5')")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.Pow of N('-2') and N('0.5')", e, "BigNumberErrorExceptionVQZ", "Pow operation failed with numbers -2 and 0.5.")
		    End Try
		    Try
		      x = BigNumberVQZ.Nan.Pow(N("3"))
		      MissFailure("BigNumberVQZ.Pow of BigNumberVQZ.Nan and N('3')")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.Pow of BigNumberVQZ.Nan and N('3')", e, "BigNumberErrorExceptionVQZ", "Pow operation failed with numbers NaN and 3.")
		    End Try
		    Try
		      x = N("3").Pow(BigNumberVQZ.Nan)
		      MissFailure("BigNumberVQZ.Pow of N('3') and BigNumberVQZ.Nan")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.Pow of N('3') and BigNumberVQZ.Nan", e, "BigNumberErrorExceptionVQZ", "Pow operation failed with numbers 3 and NaN.")
		    End Try
		    Try
		      x = N("3").Pow(none)
		      MissFailure("BigNumberVQZ.Pow of N('3') and none")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.Pow of N('3') and none", e, "BigNumberErrorExceptionVQZ", "Pow operation failed with numbers 3 and nil.")
		    End Try
		  Catch e As RuntimeException
		    Unexpected("BigNumberVQZ.Pow", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfModulate2()
		  #Pragma BreakOnExceptions False
		  Try
		    CheckInteger("BigNumberVQZ.Modulate2", N("7").Modulate2, 1)
		    CheckInteger("BigNumberVQZ.Modulate2", N("8").Modulate2, 0)
		  Catch e As RuntimeException
		    Unexpected("BigNumberVQZ.Modulate2", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfModulate()
		  #Pragma BreakOnExceptions False
		  Dim x As BigNumberVQZ
		  Dim none As BigNumberVQZ
		  Try
		    CheckText("BigNumberVQZ.Modulate", Shown(N("7.5").Modulate(N("2"))), "1.5")
		    CheckText("BigNumberVQZ.Modulate", Shown(N("-7").Modulate(N("3"))), "-1")
		    Try
		      x = N("7").Modulate(N("0"))
		      MissFailure("BigNumberVQZ.Modulate of N('7') and N('0')")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.Modulate of N('7') and N('0')", e, "BigNumberErrorExceptionVQZ", "Mod operation failed with numbers 7 and 0.")
		    End Try
		    Try
		      x = BigNumberVQZ.Nan.Modulate(N("3"))
		      MissFailure("BigNumberVQZ.Modulate of BigNumberVQZ.Nan and N('3')")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.Modulate of BigNumberVQZ.Nan and N('3')", e, "BigNumberErrorExceptionVQZ", "Mod operation failed with numbers NaN and 3.")
		    End Try
		    Try
		      x = N("3").Modulate(BigNumberVQZ.Nan)
		      MissFailure("BigNumberVQZ.Modulate of N('3') and BigNumberVQZ.Nan")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.Modulate of N('3') and BigNumberVQZ.Nan", e, "BigNumberErrorExceptionVQZ", "Mod operation failed with numbers 3 and NaN.")
		    End Try
		    Try
		      x = N("3").Modulate(none)
		      MissFailure("BigNumberVQZ.Modulate of N('3') and none")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.Modulate of N('3') and none", e, "BigNumberErrorExceptionVQZ", "Mod operation failed with numbers 3 and nil.")
		    End Try
		  Catch e As RuntimeException
		    Unexpected("BigNumberVQZ.Modulate", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfDivide()
		  #Pragma BreakOnExceptions False
		  Dim x As BigNumberVQZ
		  Dim none As BigNumberVQZ
		  Try
		    CheckText("BigNumberVQZ.Divide", Shown(N("-7").Divide(N("8"), True)), "-0.875")
		    x = N("2").Divide(N("3"), True)
		    CheckText("BigNumberVQZ.Divide 2 / 3", x.GetStringValue(10, False, 99999, 60, True, "."), "0.666666666666666666666666666666666666666666666666666666666667")
		    CheckBytes("BigNumberVQZ.Divide 2 / 3", x.DataMantissa, "AAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAA")
		    x = N("2").Divide(N("3"), False)
		    CheckText("BigNumberVQZ.Divide 2 / 3, cut", x.GetStringValue(10, False, 99999, 60, True, "."), "0.666666666666666666666666666666666666666666666666666666666667")
		    CheckBytes("BigNumberVQZ.Divide 2 / 3, cut", x.DataMantissa, "AAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAA")
		    Try
		      x = N("7").Divide(N("0"), True)
		      MissFailure("BigNumberVQZ.Divide of N('7') and N('0')")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.Divide of N('7') and N('0')", e, "BigNumberErrorExceptionVQZ", "Div operation failed with numbers 7 and 0.")
		    End Try
		    Try
		      x = BigNumberVQZ.Nan.Divide(N("3"), True)
		      MissFailure("BigNumberVQZ.Divide of BigNumberVQZ.Nan and N('3')")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.Divide of BigNumberVQZ.Nan and N('3')", e, "BigNumberErrorExceptionVQZ", "Div operation failed with numbers NaN and 3.")
		    End Try
		    Try
		      x = N("3").Divide(BigNumberVQZ.Nan, True)
		      MissFailure("BigNumberVQZ.Divide of N('3') and BigNumberVQZ.Nan")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.Divide of N('3') and BigNumberVQZ.Nan", e, "BigNumberErrorExceptionVQZ", "Div operation failed with numbers 3 and NaN.")
		    End Try
		    Try
		      x = N("3").Divide(none, True)
		      MissFailure("BigNumberVQZ.Divide of N('3') and none")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.Divide of N('3') and none", e, "BigNumberErrorExceptionVQZ", "Div operation failed with numbers 3 and nil.")
		    End Try
		  Catch e As RuntimeException
		    Unexpected("BigNumberVQZ.Divide", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfMultiply()
		  #Pragma BreakOnExceptions False
		  Dim x As BigNumberVQZ
		  Dim none As BigNumberVQZ
		  Try
		    CheckText("BigNumberVQZ.Multiply", Shown(N("-2.5").Multiply(N("1.5"), True)), "-3.75")
		    Try
		      x = BigNumberVQZ.Max.Multiply(N("2"), True)
		      MissFailure("BigNumberVQZ.Multiply of BigNumberVQZ.Max and N('2')")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.Multiply of BigNumberVQZ.Max and N('2')", e, "BigNumberErrorExceptionVQZ", "Mul operation failed with numbers " + InMessage(BigNumberVQZ.Max) + " and 2.")
		    End Try
		    Try
		      x = BigNumberVQZ.Nan.Multiply(N("3"), True)
		      MissFailure("BigNumberVQZ.Multiply of BigNumberVQZ.Nan and N('3')")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.Multiply of BigNumberVQZ.Nan and N('3')", e, "BigNumberErrorExceptionVQZ", "Mul operation failed with numbers NaN and 3.")
		    End Try
		    Try
		      x = N("3").Multiply(BigNumberVQZ.Nan, True)
		      MissFailure("BigNumberVQZ.Multiply of N('3') and BigNumberVQZ.Nan")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.Multiply of N('3') and BigNumberVQZ.Nan", e, "BigNumberErrorExceptionVQZ", "Mul operation failed with numbers 3 and NaN.")
		    End Try
		    Try
		      x = N("3").Multiply(none, True)
		      MissFailure("BigNumberVQZ.Multiply of N('3') and none")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.Multiply of N('3') and none", e, "BigNumberErrorExceptionVQZ", "Mul operation failed with numbers 3 and nil.")
		    End Try
		  Catch e As RuntimeException
		    Unexpected("BigNumberVQZ.Multiply", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfMultiplyByInteger()
		  #If kConstructorOfValue Then
		    #Pragma BreakOnExceptions False
		    Dim x As BigNumberVQZ
		    Try
		      Dim factor As Integer = -4
		      CheckText("BigNumberVQZ.Multiply(Integer)", Shown(N("2.5").Multiply(factor)), "-10")
		      Try
		        x = BigNumberVQZ.Max.Multiply(factor)
		        MissFailure("BigNumberVQZ.Multiply(Integer) of Max")
		      Catch e As RuntimeException
		        CheckFailed("BigNumberVQZ.Multiply(Integer) of Max", e, "BigNumberErrorExceptionVQZ", "Multiply operation failed with numbers NaN and -4.")
		      End Try
		    Catch e As RuntimeException
		      Unexpected("BigNumberVQZ.Multiply(Integer)", e)
		    End Try
		  #EndIf
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfMultiplyByUInt32()
		  #If kConstructorOfValue Then
		    #Pragma BreakOnExceptions False
		    Dim x As BigNumberVQZ
		    Try
		      Dim factor As UInt32 = 4294967295
		      CheckText("BigNumberVQZ.Multiply(UInt32)", Shown(N("2").Multiply(factor)), "8589934590")
		      Try
		        x = BigNumberVQZ.Max.Multiply(factor)
		        MissFailure("BigNumberVQZ.Multiply(UInt32) of Max")
		      Catch e As RuntimeException
		        CheckFailed("BigNumberVQZ.Multiply(UInt32) of Max", e, "BigNumberErrorExceptionVQZ", "Multiply operation failed with numbers NaN and 4294967295.")
		      End Try
		    Catch e As RuntimeException
		      Unexpected("BigNumberVQZ.Multiply(UInt32)", e)
		    End Try
		  #EndIf
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfBitXOr()
		  #Pragma BreakOnExceptions False
		  Dim x As BigNumberVQZ
		  Dim none As BigNumberVQZ
		  Try
		    CheckText("BigNumberVQZ.BitXOr", Shown(N("12").BitXOr(N("10"))), "6")
		    Try
		      x = N("-1").BitXOr(N("1"))
		      MissFailure("BigNumberVQZ.BitXOr of N('-1') and N('1')")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.BitXOr of N('-1') and N('1')", e, "BigNumberErrorExceptionVQZ", "BitwiseXor operation failed with numbers -1 and 1.")
		    End Try
		    Try
		      x = BigNumberVQZ.Nan.BitXOr(N("3"))
		      MissFailure("BigNumberVQZ.BitXOr of BigNumberVQZ.Nan and N('3')")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.BitXOr of BigNumberVQZ.Nan and N('3')", e, "BigNumberErrorExceptionVQZ", "BitwiseXor operation failed with numbers NaN and 3.")
		    End Try
		    Try
		      x = N("3").BitXOr(BigNumberVQZ.Nan)
		      MissFailure("BigNumberVQZ.BitXOr of N('3') and BigNumberVQZ.Nan")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.BitXOr of N('3') and BigNumberVQZ.Nan", e, "BigNumberErrorExceptionVQZ", "BitwiseXor operation failed with numbers 3 and NaN.")
		    End Try
		    Try
		      x = N("3").BitXOr(none)
		      MissFailure("BigNumberVQZ.BitXOr of N('3') and none")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.BitXOr of N('3') and none", e, "BigNumberErrorExceptionVQZ", "BitwiseXor operation failed with numbers 3 and nil.")
		    End Try
		  Catch e As RuntimeException
		    Unexpected("BigNumberVQZ.BitXOr", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfBitOr()
		  #Pragma BreakOnExceptions False
		  Dim x As BigNumberVQZ
		  Dim none As BigNumberVQZ
		  Try
		    CheckText("BigNumberVQZ.BitOr", Shown(N("12").BitOr(N("10"))), "14")
		    Try
		      x = N("-1").BitOr(N("1"))
		      MissFailure("BigNumberVQZ.BitOr of N('-1') and N('1')")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.BitOr of N('-1') and N('1')", e, "BigNumberErrorExceptionVQZ", "BitwiseOr operation failed with numbers -1 and 1.")
		    End Try
		    Try
		      x = BigNumberVQZ.Nan.BitOr(N("3"))
		      MissFailure("BigNumberVQZ.BitOr of BigNumberVQZ.Nan and N('3')")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.BitOr of BigNumberVQZ.Nan and N('3')", e, "BigNumberErrorExceptionVQZ", "BitwiseOr operation failed with numbers NaN and 3.")
		    End Try
		    Try
		      x = N("3").BitOr(BigNumberVQZ.Nan)
		      MissFailure("BigNumberVQZ.BitOr of N('3') and BigNumberVQZ.Nan")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.BitOr of N('3') and BigNumberVQZ.Nan", e, "BigNumberErrorExceptionVQZ", "BitwiseOr operation failed with numbers 3 and NaN.")
		    End Try
		    Try
		      x = N("3").BitOr(none)
		      MissFailure("BigNumberVQZ.BitOr of N('3') and none")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.BitOr of N('3') and none", e, "BigNumberErrorExceptionVQZ", "BitwiseOr operation failed with numbers 3 and nil.")
		    End Try
		  Catch e As RuntimeException
		    Unexpected("BigNumberVQZ.BitOr", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfBitAnd()
		  #Pragma BreakOnExceptions False
		  Dim x As BigNumberVQZ
		  Dim none As BigNumberVQZ
		  Try
		    CheckText("BigNumberVQZ.BitAnd", Shown(N("12").BitAnd(N("10"))), "8")
		    Try
		      x = N("-1").BitAnd(N("1"))
		      MissFailure("BigNumberVQZ.BitAnd of N('-1') and N('1')")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.BitAnd of N('-1') and N('1')", e, "BigNumberErrorExceptionVQZ", "BitwiseAnd operation failed with numbers -1 and 1.")
		    End Try
		    Try
		      x = BigNumberVQZ.Nan.BitAnd(N("3"))
		      MissFailure("BigNumberVQZ.BitAnd of BigNumberVQZ.Nan and N('3')")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.BitAnd of BigNumberVQZ.Nan and N('3')", e, "BigNumberErrorExceptionVQZ", "BitwiseAnd operation failed with numbers NaN and 3.")
		    End Try
		    Try
		      x = N("3").BitAnd(BigNumberVQZ.Nan)
		      MissFailure("BigNumberVQZ.BitAnd of N('3') and BigNumberVQZ.Nan")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.BitAnd of N('3') and BigNumberVQZ.Nan", e, "BigNumberErrorExceptionVQZ", "BitwiseAnd operation failed with numbers 3 and NaN.")
		    End Try
		    Try
		      x = N("3").BitAnd(none)
		      MissFailure("BigNumberVQZ.BitAnd of N('3') and none")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.BitAnd of N('3') and none", e, "BigNumberErrorExceptionVQZ", "BitwiseAnd operation failed with numbers 3 and nil.")
		    End Try
		  Catch e As RuntimeException
		    Unexpected("BigNumberVQZ.BitAnd", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfSubtract()
		  #Pragma BreakOnExceptions False
		  Dim x As BigNumberVQZ
		  Dim none As BigNumberVQZ
		  Try
		    CheckText("BigNumberVQZ.Subtract", Shown(N("2.5").Subtract(N("4"), True)), "-1.5")
		    Try
		      x = BigNumberVQZ.Min.Subtract(BigNumberVQZ.Max, True)
		      MissFailure("BigNumberVQZ.Subtract of BigNumberVQZ.Min and BigNumberVQZ.Max")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.Subtract of BigNumberVQZ.Min and BigNumberVQZ.Max", e, "BigNumberErrorExceptionVQZ", "Sub operation failed with numbers " + InMessage(BigNumberVQZ.Min) + " and " + InMessage(BigNumberVQZ.Max) + ".")
		    End Try
		    Try
		      x = BigNumberVQZ.Nan.Subtract(N("3"), True)
		      MissFailure("BigNumberVQZ.Subtract of BigNumberVQZ.Nan and N('3')")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.Subtract of BigNumberVQZ.Nan and N('3')", e, "BigNumberErrorExceptionVQZ", "Sub operation failed with numbers NaN and 3.")
		    End Try
		    Try
		      x = N("3").Subtract(BigNumberVQZ.Nan, True)
		      MissFailure("BigNumberVQZ.Subtract of N('3') and BigNumberVQZ.Nan")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.Subtract of N('3') and BigNumberVQZ.Nan", e, "BigNumberErrorExceptionVQZ", "Sub operation failed with numbers 3 and NaN.")
		    End Try
		    Try
		      x = N("3").Subtract(none, True)
		      MissFailure("BigNumberVQZ.Subtract of N('3') and none")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.Subtract of N('3') and none", e, "BigNumberErrorExceptionVQZ", "Sub operation failed with numbers 3 and nil.")
		    End Try
		  Catch e As RuntimeException
		    Unexpected("BigNumberVQZ.Subtract", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfAdd()
		  #Pragma BreakOnExceptions False
		  Dim x As BigNumberVQZ
		  Dim none As BigNumberVQZ
		  Try
		    CheckText("BigNumberVQZ.Add", Shown(N("2.5").Add(N("-4"), True)), "-1.5")
		    CheckText("BigNumberVQZ.Add", Shown(N("2").Pow(N("200")).Add(N("1"), True)), "1606938044258990275541962092341162602522202993782792835301377")
		    Try
		      x = BigNumberVQZ.Max.Add(BigNumberVQZ.Max, True)
		      MissFailure("BigNumberVQZ.Add of BigNumberVQZ.Max and BigNumberVQZ.Max")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.Add of BigNumberVQZ.Max and BigNumberVQZ.Max", e, "BigNumberErrorExceptionVQZ", "Add operation failed with numbers " + InMessage(BigNumberVQZ.Max) + " and " + InMessage(BigNumberVQZ.Max) + ".")
		    End Try
		    Try
		      x = BigNumberVQZ.Nan.Add(N("3"), True)
		      MissFailure("BigNumberVQZ.Add of BigNumberVQZ.Nan and N('3')")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.Add of BigNumberVQZ.Nan and N('3')", e, "BigNumberErrorExceptionVQZ", "Add operation failed with numbers NaN and 3.")
		    End Try
		    Try
		      x = N("3").Add(BigNumberVQZ.Nan, True)
		      MissFailure("BigNumberVQZ.Add of N('3') and BigNumberVQZ.Nan")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.Add of N('3') and BigNumberVQZ.Nan", e, "BigNumberErrorExceptionVQZ", "Add operation failed with numbers 3 and NaN.")
		    End Try
		    Try
		      x = N("3").Add(none, True)
		      MissFailure("BigNumberVQZ.Add of N('3') and none")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.Add of N('3') and none", e, "BigNumberErrorExceptionVQZ", "Add operation failed with numbers 3 and nil.")
		    End Try
		  Catch e As RuntimeException
		    Unexpected("BigNumberVQZ.Add", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfAbs()
		  #If kSharedAndInstance Then
		    #Pragma BreakOnExceptions False
		    Try
		      CheckText("BigNumberVQZ.Abs", Shown(N("-2.5").Abs), "2.5")
		      CheckText("BigNumberVQZ.Abs shared", Shown(BigNumberVQZ.Abs(N("-2.5"))), "2.5")
		    Catch e As RuntimeException
		      Unexpected("BigNumberVQZ.Abs", e)
		    End Try
		  #EndIf
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfNegate()
		  #Pragma BreakOnExceptions False
		  Try
		    CheckText("BigNumberVQZ.Negate", Shown(N("-2.5").Negate), "2.5")
		  Catch e As RuntimeException
		    Unexpected("BigNumberVQZ.Negate", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfConstructor()
		  #Pragma BreakOnExceptions False
		  Try
		    CheckText("BigNumberVQZ.Constructor", Shown(New BigNumberVQZ), "0")
		  Catch e As RuntimeException
		    Unexpected("BigNumberVQZ.Constructor", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfConstructorOfString()
		  #If kConstructorOfString Then
		    #Pragma BreakOnExceptions False
		    Dim x As BigNumberVQZ
		    Try
		      CheckText("BigNumberVQZ.Constructor(String)", Shown(New BigNumberVQZ("-12.25")), "-12.25")
		      Try
		        x = New BigNumberVQZ("1e" + ManyNines())
		        MissFailure("BigNumberVQZ.Constructor(String) of 1e999...")
		      Catch e As RuntimeException
		        CheckFailed("BigNumberVQZ.Constructor(String) of 1e999...", e, "BigNumberErrorExceptionVQZ", "Constructor operation failed with number nil.")
		      End Try
		    Catch e As RuntimeException
		      Unexpected("BigNumberVQZ.Constructor(String)", e)
		    End Try
		  #EndIf
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfConstructorOfValue()
		  #If kConstructorOfValue Then
		    #Pragma BreakOnExceptions False
		    Try
		      Dim narrow As Int32 = -2147483647
		      CheckText("BigNumberVQZ.Constructor(Int32)", Shown(New BigNumberVQZ(narrow)), "-2147483647")
		      Dim wide As Int64 = -9007199254740993
		      CheckText("BigNumberVQZ.Constructor(Int64)", Shown(New BigNumberVQZ(wide)), "-9007199254740993")
		      Dim narrowUnsigned As UInt32 = 4294967295
		      CheckText("BigNumberVQZ.Constructor(UInt32)", Shown(New BigNumberVQZ(narrowUnsigned)), "4294967295")
		      Dim wideUnsigned As UInt64 = 9007199254740993
		      CheckText("BigNumberVQZ.Constructor(UInt64)", Shown(New BigNumberVQZ(wideUnsigned)), "9007199254740993")
		      Dim real As Double = 0.1
		      CheckText("BigNumberVQZ.Constructor(Double)", Shown(New BigNumberVQZ(real)), "0.1000000000000000055511151231257827021181583404541015625")
		      Dim shortReal As Single = 0.1
		      CheckText("BigNumberVQZ.Constructor(Single)", Shown(New BigNumberVQZ(shortReal)), "0.100000001490116119384765625")
		      Dim amount As Currency = 12.5
		      CheckText("BigNumberVQZ.Constructor(Currency)", Shown(New BigNumberVQZ(amount)), "12.5")
		      CheckText("BigNumberVQZ.Constructor(other)", Shown(New BigNumberVQZ(N("-2.5"))), "-2.5")
		    Catch e As RuntimeException
		      Unexpected("BigNumberVQZ.Constructor", e)
		    End Try
		  #EndIf
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfNumberWith()
		  #Pragma BreakOnExceptions False
		  Dim x As BigNumberVQZ
		  Try
		    Dim whole As Integer = -5
		    CheckText("BigNumberVQZ.NumberWithInteger", Shown(BigNumberVQZ.NumberWithInteger(whole)), "-5")
		    Dim narrow As Int32 = -2147483647
		    CheckText("BigNumberVQZ.NumberWithInt32", Shown(BigNumberVQZ.NumberWithInt32(narrow)), "-2147483647")
		    Dim wide As Int64 = -9007199254740993
		    CheckText("BigNumberVQZ.NumberWithInt64", Shown(BigNumberVQZ.NumberWithInt64(wide)), "-9007199254740993")
		    Dim narrowUnsigned As UInt32 = 4294967295
		    CheckText("BigNumberVQZ.NumberWithUInt32", Shown(BigNumberVQZ.NumberWithUInt32(narrowUnsigned)), "4294967295")
		    Dim wideUnsigned As UInt64 = 9007199254740993
		    CheckText("BigNumberVQZ.NumberWithUInt64", Shown(BigNumberVQZ.NumberWithUInt64(wideUnsigned)), "9007199254740993")
		    Dim real As Double = 0.1
		    CheckText("BigNumberVQZ.NumberWithDouble", Shown(BigNumberVQZ.NumberWithDouble(real)), "0.1000000000000000055511151231257827021181583404541015625")
		    Dim shortReal As Single = 0.1
		    CheckText("BigNumberVQZ.NumberWithSingle", Shown(BigNumberVQZ.NumberWithSingle(shortReal)), "0.100000001490116119384765625")
		    Dim amount As Currency = 12.5
		    CheckText("BigNumberVQZ.NumberWithCurrency", Shown(BigNumberVQZ.NumberWithCurrency(amount)), "12.5")
		    CheckText("BigNumberVQZ.NumberWithString", Shown(BigNumberVQZ.NumberWithString("-12.25")), "-12.25")
		    Try
		      x = BigNumberVQZ.NumberWithString("1e" + ManyNines())
		      MissFailure("BigNumberVQZ.NumberWithString of 1e999...")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.NumberWithString of 1e999...", e, "BigNumberErrorExceptionVQZ", "Constructor operation failed.")
		    End Try
		  Catch e As RuntimeException
		    Unexpected("BigNumberVQZ.NumberWith", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfNumberWithVariant()
		  #Pragma BreakOnExceptions False
		  Dim x As BigNumberVQZ
		  Try
		    Dim held As Variant = "-12.25"
		    CheckText("BigNumberVQZ.NumberWithVariant", Shown(BigNumberVQZ.NumberWithVariant(held)), "-12.25")
		    held = -5
		    CheckText("BigNumberVQZ.NumberWithVariant", Shown(BigNumberVQZ.NumberWithVariant(held)), "-5")
		    Try
		      x = BigNumberVQZ.NumberWithVariant(New MemoryBlock(4))
		      MissFailure("BigNumberVQZ.NumberWithVariant of a MemoryBlock")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.NumberWithVariant of a MemoryBlock", e, "UnsupportedOperationException", "Conversion not supported.")
		    End Try
		    Try
		      x = BigNumberVQZ.NumberWithVariant("1e" + ManyNines())
		      MissFailure("BigNumberVQZ.NumberWithVariant of 1e999...")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.NumberWithVariant of 1e999...", e, "BigNumberErrorExceptionVQZ", "Constructor operation failed.")
		    End Try
		  Catch e As RuntimeException
		    Unexpected("BigNumberVQZ.NumberWithVariant", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfNumberWithUInteger()
		  #If RBVersion >= 2015 Then
		    #Pragma BreakOnExceptions False
		    Try
		      Dim whole As UInteger = 4294967295
		      CheckText("BigNumberVQZ.NumberWithUInteger", Shown(BigNumberVQZ.NumberWithUInteger(whole)), "4294967295")
		    Catch e As RuntimeException
		      Unexpected("BigNumberVQZ.NumberWithUInteger", e)
		    End Try
		  #EndIf
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfConversionIn()
		  #If kConversionIn Then
		    #Pragma BreakOnExceptions False
		    Dim x As BigNumberVQZ
		    Try
		      x = "-12.25"
		      CheckText("BigNumberVQZ.Operator_Convert(String)", Shown(x), "-12.25")
		      Try
		        x = "1e" + ManyNines()
		        MissFailure("BigNumberVQZ.Operator_Convert(String) of 1e999...")
		      Catch e As RuntimeException
		        CheckFailed("BigNumberVQZ.Operator_Convert(String) of 1e999...", e, "BigNumberErrorExceptionVQZ", "Constructor operation failed with number nil.")
		      End Try
		    Catch e As RuntimeException
		      Unexpected("BigNumberVQZ.Operator_Convert(String)", e)
		    End Try
		  #EndIf
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfConversionOut()
		  #If kConversionOut Then
		    #Pragma BreakOnExceptions False
		    Try
		      Dim digits As String = N("-12.25")
		      CheckText("BigNumberVQZ.Operator_Convert", digits, "-12.25")
		    Catch e As RuntimeException
		      Unexpected("BigNumberVQZ.Operator_Convert", e)
		    End Try
		  #EndIf
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfOperators()
		  #If kOperatorLeft Then
		    #Pragma BreakOnExceptions False
		    Dim x As BigNumberVQZ
		    Dim none As BigNumberVQZ
		    Try
		      CheckText("BigNumberVQZ.Operator_Add", Shown(N("2.5") + N("4")), "6.5")
		      Try
		        x = BigNumberVQZ.Max + BigNumberVQZ.Max
		        MissFailure("BigNumberVQZ.Operator_Add of BigNumberVQZ.Max and BigNumberVQZ.Max")
		      Catch e As RuntimeException
		        CheckFailed("BigNumberVQZ.Operator_Add of BigNumberVQZ.Max and BigNumberVQZ.Max", e, "BigNumberErrorExceptionVQZ", "Operator_Add operation failed with numbers " + InMessage(BigNumberVQZ.Max) + " and " + InMessage(BigNumberVQZ.Max) + ".")
		      End Try
		      Try
		        x = BigNumberVQZ.Nan + N("3")
		        MissFailure("BigNumberVQZ.Operator_Add of BigNumberVQZ.Nan and N('3')")
		      Catch e As RuntimeException
		        CheckFailed("BigNumberVQZ.Operator_Add of BigNumberVQZ.Nan and N('3')", e, "BigNumberErrorExceptionVQZ", "Operator_Add operation failed with numbers NaN and 3.")
		      End Try
		      Try
		        x = N("3") + BigNumberVQZ.Nan
		        MissFailure("BigNumberVQZ.Operator_Add of N('3') and BigNumberVQZ.Nan")
		      Catch e As RuntimeException
		        CheckFailed("BigNumberVQZ.Operator_Add of N('3') and BigNumberVQZ.Nan", e, "BigNumberErrorExceptionVQZ", "Operator_Add operation failed with numbers 3 and NaN.")
		      End Try
		      Try
		        x = N("3") + none
		        MissFailure("BigNumberVQZ.Operator_Add of N('3') and none")
		      Catch e As RuntimeException
		        CheckFailed("BigNumberVQZ.Operator_Add of N('3') and none", e, "BigNumberErrorExceptionVQZ", "Operator_Add operation failed with numbers 3 and nil.")
		      End Try
		      CheckText("BigNumberVQZ.Operator_Subtract", Shown(N("2.5") - N("4")), "-1.5")
		      Try
		        x = BigNumberVQZ.Min - BigNumberVQZ.Max
		        MissFailure("BigNumberVQZ.Operator_Subtract of BigNumberVQZ.Min and BigNumberVQZ.Max")
		      Catch e As RuntimeException
		        CheckFailed("BigNumberVQZ.Operator_Subtract of BigNumberVQZ.Min and BigNumberVQZ.Max", e, "BigNumberErrorExceptionVQZ", "Operator_Subtract operation failed with numbers " + InMessage(BigNumberVQZ.Min) + " and " + InMessage(BigNumberVQZ.Max) + ".")
		      End Try
		      Try
		        x = BigNumberVQZ.Nan - N("3")
		        MissFailure("BigNumberVQZ.Operator_Subtract of BigNumberVQZ.Nan and N('3')")
		      Catch e As RuntimeException
		        CheckFailed("BigNumberVQZ.Operator_Subtract of BigNumberVQZ.Nan and N('3')", e, "BigNumberErrorExceptionVQZ", "Operator_Subtract operation failed with numbers NaN and 3.")
		      End Try
		      Try
		        x = N("3") - BigNumberVQZ.Nan
		        MissFailure("BigNumberVQZ.Operator_Subtract of N('3') and BigNumberVQZ.Nan")
		      Catch e As RuntimeException
		        CheckFailed("BigNumberVQZ.Operator_Subtract of N('3') and BigNumberVQZ.Nan", e, "BigNumberErrorExceptionVQZ", "Operator_Subtract operation failed with numbers 3 and NaN.")
		      End Try
		      Try
		        x = N("3") - none
		        MissFailure("BigNumberVQZ.Operator_Subtract of N('3') and none")
		      Catch e As RuntimeException
		        CheckFailed("BigNumberVQZ.Operator_Subtract of N('3') and none", e, "BigNumberErrorExceptionVQZ", "Operator_Subtract operation failed with numbers 3 and nil.")
		      End Try
		      CheckText("BigNumberVQZ.Operator_Multiply", Shown(N("2.5") * N("-4")), "-10")
		      Try
		        x = BigNumberVQZ.Max * N("2")
		        MissFailure("BigNumberVQZ.Operator_Multiply of BigNumberVQZ.Max and N('2')")
		      Catch e As RuntimeException
		        CheckFailed("BigNumberVQZ.Operator_Multiply of BigNumberVQZ.Max and N('2')", e, "BigNumberErrorExceptionVQZ", "Operator_Multiply operation failed with numbers " + InMessage(BigNumberVQZ.Max) + " and 2.")
		      End Try
		      Try
		        x = BigNumberVQZ.Nan * N("3")
		        MissFailure("BigNumberVQZ.Operator_Multiply of BigNumberVQZ.Nan and N('3')")
		      Catch e As RuntimeException
		        CheckFailed("BigNumberVQZ.Operator_Multiply of BigNumberVQZ.Nan and N('3')", e, "BigNumberErrorExceptionVQZ", "Operator_Multiply operation failed with numbers NaN and 3.")
		      End Try
		      Try
		        x = N("3") * BigNumberVQZ.Nan
		        MissFailure("BigNumberVQZ.Operator_Multiply of N('3') and BigNumberVQZ.Nan")
		      Catch e As RuntimeException
		        CheckFailed("BigNumberVQZ.Operator_Multiply of N('3') and BigNumberVQZ.Nan", e, "BigNumberErrorExceptionVQZ", "Operator_Multiply operation failed with numbers 3 and NaN.")
		      End Try
		      Try
		        x = N("3") * none
		        MissFailure("BigNumberVQZ.Operator_Multiply of N('3') and none")
		      Catch e As RuntimeException
		        CheckFailed("BigNumberVQZ.Operator_Multiply of N('3') and none", e, "BigNumberErrorExceptionVQZ", "Operator_Multiply operation failed with numbers 3 and nil.")
		      End Try
		      CheckText("BigNumberVQZ.Operator_Divide", Shown(N("2.5") / N("4")), "0.625")
		      Try
		        x = N("7") / N("0")
		        MissFailure("BigNumberVQZ.Operator_Divide of N('7') and N('0')")
		      Catch e As RuntimeException
		        CheckFailed("BigNumberVQZ.Operator_Divide of N('7') and N('0')", e, "BigNumberErrorExceptionVQZ", "Operator_Divide operation failed with numbers 7 and 0.")
		      End Try
		      Try
		        x = BigNumberVQZ.Nan / N("3")
		        MissFailure("BigNumberVQZ.Operator_Divide of BigNumberVQZ.Nan and N('3')")
		      Catch e As RuntimeException
		        CheckFailed("BigNumberVQZ.Operator_Divide of BigNumberVQZ.Nan and N('3')", e, "BigNumberErrorExceptionVQZ", "Operator_Divide operation failed with numbers NaN and 3.")
		      End Try
		      Try
		        x = N("3") / BigNumberVQZ.Nan
		        MissFailure("BigNumberVQZ.Operator_Divide of N('3') and BigNumberVQZ.Nan")
		      Catch e As RuntimeException
		        CheckFailed("BigNumberVQZ.Operator_Divide of N('3') and BigNumberVQZ.Nan", e, "BigNumberErrorExceptionVQZ", "Operator_Divide operation failed with numbers 3 and NaN.")
		      End Try
		      Try
		        x = N("3") / none
		        MissFailure("BigNumberVQZ.Operator_Divide of N('3') and none")
		      Catch e As RuntimeException
		        CheckFailed("BigNumberVQZ.Operator_Divide of N('3') and none", e, "BigNumberErrorExceptionVQZ", "Operator_Divide operation failed with numbers 3 and nil.")
		      End Try
		      CheckText("BigNumberVQZ.Operator_Modulo", Shown(N("7.5") Mod N("2")), "1.5")
		      Try
		        x = N("7") Mod N("0")
		        MissFailure("BigNumberVQZ.Operator_Modulo of N('7') and N('0')")
		      Catch e As RuntimeException
		        CheckFailed("BigNumberVQZ.Operator_Modulo of N('7') and N('0')", e, "BigNumberErrorExceptionVQZ", "Mod operation failed with numbers 7 and 0.")
		      End Try
		      Try
		        x = BigNumberVQZ.Nan Mod N("3")
		        MissFailure("BigNumberVQZ.Operator_Modulo of BigNumberVQZ.Nan and N('3')")
		      Catch e As RuntimeException
		        CheckFailed("BigNumberVQZ.Operator_Modulo of BigNumberVQZ.Nan and N('3')", e, "BigNumberErrorExceptionVQZ", "Mod operation failed with numbers NaN and 3.")
		      End Try
		      Try
		        x = N("3") Mod BigNumberVQZ.Nan
		        MissFailure("BigNumberVQZ.Operator_Modulo of N('3') and BigNumberVQZ.Nan")
		      Catch e As RuntimeException
		        CheckFailed("BigNumberVQZ.Operator_Modulo of N('3') and BigNumberVQZ.Nan", e, "BigNumberErrorExceptionVQZ", "Mod operation failed with numbers 3 and NaN.")
		      End Try
		      Try
		        x = N("3") Mod none
		        MissFailure("BigNumberVQZ.Operator_Modulo of N('3') and none")
		      Catch e As RuntimeException
		        CheckFailed("BigNumberVQZ.Operator_Modulo of N('3') and none", e, "BigNumberErrorExceptionVQZ", "Mod operation failed with numbers 3 and nil.")
		      End Try
		      CheckText("BigNumberVQZ.Operator_Power", Shown(N("1.5") ^ N("3")), "3.375")
		      Try
		        x = N("-2") ^ N("0.5")
		        MissFailure("BigNumberVQZ.Operator_Power of N('-2') and N('0.5')")
		      Catch e As RuntimeException
		        CheckFailed("BigNumberVQZ.Operator_Power of N('-2') and N('0.5')", e, "BigNumberErrorExceptionVQZ", "Pow operation failed with numbers -2 and 0.5.")
		      End Try
		      Try
		        x = BigNumberVQZ.Nan ^ N("3")
		        MissFailure("BigNumberVQZ.Operator_Power of BigNumberVQZ.Nan and N('3')")
		      Catch e As RuntimeException
		        CheckFailed("BigNumberVQZ.Operator_Power of BigNumberVQZ.Nan and N('3')", e, "BigNumberErrorExceptionVQZ", "Pow operation failed with numbers NaN and 3.")
		      End Try
		      Try
		        x = N("3") ^ BigNumberVQZ.Nan
		        MissFailure("BigNumberVQZ.Operator_Power of N('3') and BigNumberVQZ.Nan")
		      Catch e As RuntimeException
		        CheckFailed("BigNumberVQZ.Operator_Power of N('3') and BigNumberVQZ.Nan", e, "BigNumberErrorExceptionVQZ", "Pow operation failed with numbers 3 and NaN.")
		      End Try
		      Try
		        x = N("3") ^ none
		        MissFailure("BigNumberVQZ.Operator_Power of N('3') and none")
		      Catch e As RuntimeException
		        CheckFailed("BigNumberVQZ.Operator_Power of N('3') and none", e, "BigNumberErrorExceptionVQZ", "Pow operation failed with numbers 3 and nil.")
		      End Try
		      CheckText("BigNumberVQZ.Operator_IntegerDivide", Shown(N("-7.5") \ N("2")), "-3")
		      Try
		        x = N("5") \ N("0")
		        MissFailure("BigNumberVQZ.Operator_IntegerDivide of N('5') and N('0')")
		      Catch e As RuntimeException
		        CheckFailed("BigNumberVQZ.Operator_IntegerDivide of N('5') and N('0')", e, "BigNumberErrorExceptionVQZ", "Operator_IntegerDivide operation failed with numbers NaN and 0.")
		      End Try
		      Try
		        x = N("5") \ BigNumberVQZ.Nan
		        MissFailure("BigNumberVQZ.Operator_IntegerDivide of N('5') and BigNumberVQZ.Nan")
		      Catch e As RuntimeException
		        CheckFailed("BigNumberVQZ.Operator_IntegerDivide of N('5') and BigNumberVQZ.Nan", e, "BigNumberErrorExceptionVQZ", "Operator_IntegerDivide operation failed with numbers NaN and NaN.")
		      End Try
		      Try
		        x = N("5") \ none
		        MissFailure("BigNumberVQZ.Operator_IntegerDivide of N('5') and none")
		      Catch e As RuntimeException
		        CheckFailed("BigNumberVQZ.Operator_IntegerDivide of N('5') and none", e, "BigNumberErrorExceptionVQZ", "Operator_IntegerDivide operation failed with numbers NaN and nil.")
		      End Try
		    Catch e As RuntimeException
		      Unexpected("operators of BigNumberVQZ", e)
		    End Try
		  #EndIf
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfOperatorsRight()
		  #If kOperatorRight And kConversionIn Then
		    #Pragma BreakOnExceptions False
		    Dim x As BigNumberVQZ
		    Try
		      CheckText("BigNumberVQZ.Operator_AddRight", Shown("2" + N("10")), "12")
		      Try
		        x = "3" + BigNumberVQZ.Nan
		        MissFailure("BigNumberVQZ.Operator_AddRight of NaN")
		      Catch e As RuntimeException
		        CheckFailed("BigNumberVQZ.Operator_AddRight of NaN", e, "BigNumberErrorExceptionVQZ", "Operator_Add operation failed with numbers NaN and 3.")
		      End Try
		      CheckText("BigNumberVQZ.Operator_SubtractRight", Shown("2" - N("10")), "8")
		      Try
		        x = "3" - BigNumberVQZ.Nan
		        MissFailure("BigNumberVQZ.Operator_SubtractRight of NaN")
		      Catch e As RuntimeException
		        CheckFailed("BigNumberVQZ.Operator_SubtractRight of NaN", e, "BigNumberErrorExceptionVQZ", "Operator_Subtract operation failed with numbers NaN and 3.")
		      End Try
		      CheckText("BigNumberVQZ.Operator_MultiplyRight", Shown("2" * N("10")), "20")
		      Try
		        x = "2" * BigNumberVQZ.Max
		        MissFailure("BigNumberVQZ.Operator_MultiplyRight")
		      Catch e As RuntimeException
		        CheckFailed("BigNumberVQZ.Operator_MultiplyRight", e, "BigNumberErrorExceptionVQZ", "Operator_Multiply operation failed with numbers " + InMessage(BigNumberVQZ.Max) + " and 2.")
		      End Try
		      Try
		        x = "3" * BigNumberVQZ.Nan
		        MissFailure("BigNumberVQZ.Operator_MultiplyRight of NaN")
		      Catch e As RuntimeException
		        CheckFailed("BigNumberVQZ.Operator_MultiplyRight of NaN", e, "BigNumberErrorExceptionVQZ", "Operator_Multiply operation failed with numbers NaN and 3.")
		      End Try
		      CheckText("BigNumberVQZ.Operator_DivideRight", Shown("2" / N("10")), "5")
		      Try
		        x = "0" / N("7")
		        MissFailure("BigNumberVQZ.Operator_DivideRight")
		      Catch e As RuntimeException
		        CheckFailed("BigNumberVQZ.Operator_DivideRight", e, "BigNumberErrorExceptionVQZ", "Operator_Divide operation failed with numbers 7 and 0.")
		      End Try
		      Try
		        x = "3" / BigNumberVQZ.Nan
		        MissFailure("BigNumberVQZ.Operator_DivideRight of NaN")
		      Catch e As RuntimeException
		        CheckFailed("BigNumberVQZ.Operator_DivideRight of NaN", e, "BigNumberErrorExceptionVQZ", "Operator_Divide operation failed with numbers NaN and 3.")
		      End Try
		      CheckText("BigNumberVQZ.Operator_IntegerDivideRight", Shown("2" \ N("10")), "5")
		      Try
		        x = "0" \ N("7")
		        MissFailure("BigNumberVQZ.Operator_IntegerDivideRight")
		      Catch e As RuntimeException
		        CheckFailed("BigNumberVQZ.Operator_IntegerDivideRight", e, "BigNumberErrorExceptionVQZ", "Operator_IntegerDivide operation failed with numbers NaN and 0.")
		      End Try
		      Try
		        x = "3" \ BigNumberVQZ.Nan
		        MissFailure("BigNumberVQZ.Operator_IntegerDivideRight of NaN")
		      Catch e As RuntimeException
		        CheckFailed("BigNumberVQZ.Operator_IntegerDivideRight of NaN", e, "BigNumberErrorExceptionVQZ", "Operator_IntegerDivide operation failed with numbers NaN and 3.")
		      End Try
		      CheckText("BigNumberVQZ.Operator_ModuloRight", Shown("2" Mod N("10")), "0")
		      Try
		        x = "0" Mod N("7")
		        MissFailure("BigNumberVQZ.Operator_ModuloRight")
		      Catch e As RuntimeException
		        CheckFailed("BigNumberVQZ.Operator_ModuloRight", e, "BigNumberErrorExceptionVQZ", "Mod operation failed with numbers 7 and 0.")
		      End Try
		      Try
		        x = "3" Mod BigNumberVQZ.Nan
		        MissFailure("BigNumberVQZ.Operator_ModuloRight of NaN")
		      Catch e As RuntimeException
		        CheckFailed("BigNumberVQZ.Operator_ModuloRight of NaN", e, "BigNumberErrorExceptionVQZ", "Mod operation failed with numbers NaN and 3.")
		      End Try
		      CheckText("BigNumberVQZ.Operator_PowerRight", Shown("2" ^ N("10")), "100")
		      Try
		        x = "0.5" ^ N("-2")
		        MissFailure("BigNumberVQZ.Operator_PowerRight")
		      Catch e As RuntimeException
		        CheckFailed("BigNumberVQZ.Operator_PowerRight", e, "BigNumberErrorExceptionVQZ", "Pow operation failed with numbers -2 and 0.5.")
		      End Try
		      Try
		        x = "3" ^ BigNumberVQZ.Nan
		        MissFailure("BigNumberVQZ.Operator_PowerRight of NaN")
		      Catch e As RuntimeException
		        CheckFailed("BigNumberVQZ.Operator_PowerRight of NaN", e, "BigNumberErrorExceptionVQZ", "Pow operation failed with numbers NaN and 3.")
		      End Try
		    Catch e As RuntimeException
		      Unexpected("operators with a text left of BigNumberVQZ", e)
		    End Try
		  #EndIf
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfNegation()
		  #If kNegation Then
		    #Pragma BreakOnExceptions False
		    Try
		      CheckText("BigNumberVQZ.Operator_Negate", Shown(-N("2.5")), "-2.5")
		    Catch e As RuntimeException
		      Unexpected("BigNumberVQZ.Operator_Negate", e)
		    End Try
		  #EndIf
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfComparison()
		  #If kComparison Then
		    #Pragma BreakOnExceptions False
		    Try
		      CheckTrue("BigNumberVQZ.Operator_Compare", N("2.5") > N("-4"))
		      CheckTrue("BigNumberVQZ.Operator_Compare", N("2.5") = N("2.50"))
		      CheckTrue("BigNumberVQZ.Operator_Compare", Not (N("2.5") < N("-4")))
		      CheckTrue("BigNumberVQZ.Operator_Compare", N("2.5") <> N("4"))
		      CheckTrue("BigNumberVQZ.Operator_Compare", BigNumberVQZ.Nan = N("0"))
		    Catch e As RuntimeException
		      Unexpected("BigNumberVQZ.Operator_Compare", e)
		    End Try
		  #EndIf
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfSgn()
		  #Pragma BreakOnExceptions False
		  Try
		    CheckText("BigNumberVQZ.Sgn", Shown(BigNumberVQZ.Sgn(N("-2.5"))), "-1")
		    CheckText("BigNumberVQZ.Sgn", Shown(BigNumberVQZ.Sgn(N("0"))), "0")
		  Catch e As RuntimeException
		    Unexpected("BigNumberVQZ.Sgn", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfRoot()
		  #Pragma BreakOnExceptions False
		  Dim x As BigNumberVQZ
		  Try
		    CheckText("BigNumberVQZ.Root", Shown(BigNumberVQZ.Root(N("0.125"), N("3"))), "0.5")
		    x = BigNumberVQZ.Root(N("2"), N("4"))
		    CheckText("BigNumberVQZ.Root", x.GetStringValue(10, False, 99999, 60, True, "."), "1.189207115002721066717499970560475915292972092463817413019002")
		    CheckBytes("BigNumberVQZ.Root", x.DataMantissa, "70BBA7EFCB658BD77881FA141B9A135EF6F6422E1823AD466FA9B88D51F03798")
		    Try
		      x = BigNumberVQZ.Root(N("-1"), N("2"))
		      MissFailure("BigNumberVQZ.Root of a negative number")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.Root of a negative number", e, "BigNumberErrorExceptionVQZ", "Root operation failed.")
		    End Try
		  Catch e As RuntimeException
		    Unexpected("BigNumberVQZ.Root", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfDegToDeg()
		  #Pragma BreakOnExceptions False
		  Dim x As BigNumberVQZ
		  Try
		    x = BigNumberVQZ.DegToDeg(N("12"), N("30"), N("36"))
		    CheckText("BigNumberVQZ.DegToDeg", x.GetStringValue(10, False, 99999, 60, True, "."), "12.51")
		    CheckBytes("BigNumberVQZ.DegToDeg", x.DataMantissa, "295C8FC2F5285C8FC2F5285C8FC2F5285C8FC2F5285C8FC2F5285C8FC2F528C8")
		    Try
		      x = BigNumberVQZ.DegToDeg(N("12"), N("-30"), N("36"))
		      MissFailure("BigNumberVQZ.DegToDeg of negative minutes")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.DegToDeg of negative minutes", e, "BigNumberErrorExceptionVQZ", "DegToDeg operation failed.")
		    End Try
		  Catch e As RuntimeException
		    Unexpected("BigNumberVQZ.DegToDeg", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfDegToRadOfMinutes()
		  #If kOverloadByCount Then
		    #Pragma BreakOnExceptions False
		    Dim x As BigNumberVQZ
		    Try
		      x = BigNumberVQZ.DegToRad(N("90"), N("30"), N("0"))
		      CheckText("BigNumberVQZ.DegToRad of minutes", x.GetStringValue(10, False, 99999, 60, True, "."), "1.579522973054868267115940145482194505665799059130261537767958")
		      CheckBytes("BigNumberVQZ.DegToRad of minutes", x.DataMantissa, "2C34A6A4F9C3D57341386B7466BD03DB5A28055E78EEE320C69592460CCF2DCA")
		      Try
		        x = BigNumberVQZ.DegToRad(N("12"), N("-30"), N("36"))
		        MissFailure("BigNumberVQZ.DegToRad of negative minutes")
		      Catch e As RuntimeException
		        CheckFailed("BigNumberVQZ.DegToRad of negative minutes", e, "BigNumberErrorExceptionVQZ", "DegToRad operation failed.")
		      End Try
		    Catch e As RuntimeException
		      Unexpected("BigNumberVQZ.DegToRad of minutes", e)
		    End Try
		  #EndIf
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfDegToGradOfMinutes()
		  #If kOverloadByCount Then
		    #Pragma BreakOnExceptions False
		    Dim x As BigNumberVQZ
		    Try
		      CheckText("BigNumberVQZ.DegToGrad of minutes", Shown(BigNumberVQZ.DegToGrad(N("90"), N("0"), N("0"))), "100")
		      Try
		        x = BigNumberVQZ.DegToGrad(N("12"), N("-30"), N("36"))
		        MissFailure("BigNumberVQZ.DegToGrad of negative minutes")
		      Catch e As RuntimeException
		        CheckFailed("BigNumberVQZ.DegToGrad of negative minutes", e, "BigNumberErrorExceptionVQZ", "DegToGrad operation failed.")
		      End Try
		    Catch e As RuntimeException
		      Unexpected("BigNumberVQZ.DegToGrad of minutes", e)
		    End Try
		  #EndIf
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfDegToGrad()
		  #If kOverloadByCount Then
		    #Pragma BreakOnExceptions False
		    Dim x As BigNumberVQZ
		    Dim none As BigNumberVQZ
		    Try
		      x = BigNumberVQZ.DegToGrad(N("45.5"))
		      CheckText("BigNumberVQZ.DegToGrad", x.GetStringValue(10, False, 99999, 60, True, "."), "50.555555555555555555555555555555555555555555555555555555555556")
		      CheckBytes("BigNumberVQZ.DegToGrad", x.DataMantissa, "388EE3388EE3388EE3388EE3388EE3388EE3388EE3388EE3388EE3388EE338CA")
		      Try
		        x = BigNumberVQZ.DegToGrad(BigNumberVQZ.Max)
		        MissFailure("BigNumberVQZ.DegToGrad of BigNumberVQZ.Max")
		      Catch e As RuntimeException
		        CheckFailed("BigNumberVQZ.DegToGrad of BigNumberVQZ.Max", e, "BigNumberErrorExceptionVQZ", "DegToGrad operation failed with number " + InMessage(BigNumberVQZ.Max) + ".")
		      End Try
		      Try
		        x = BigNumberVQZ.DegToGrad(BigNumberVQZ.Nan)
		        MissFailure("BigNumberVQZ.DegToGrad of BigNumberVQZ.Nan")
		      Catch e As RuntimeException
		        CheckFailed("BigNumberVQZ.DegToGrad of BigNumberVQZ.Nan", e, "BigNumberErrorExceptionVQZ", "DegToGrad operation failed with number NaN.")
		      End Try
		      Try
		        x = BigNumberVQZ.DegToGrad(none)
		        MissFailure("BigNumberVQZ.DegToGrad of none")
		      Catch e As RuntimeException
		        CheckFailed("BigNumberVQZ.DegToGrad of none", e, "BigNumberErrorExceptionVQZ", "DegToGrad operation failed with number nil.")
		      End Try
		    Catch e As RuntimeException
		      Unexpected("BigNumberVQZ.DegToGrad", e)
		    End Try
		  #EndIf
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfGradToDeg()
		  #Pragma BreakOnExceptions False
		  Dim x As BigNumberVQZ
		  Dim none As BigNumberVQZ
		  Try
		    x = BigNumberVQZ.GradToDeg(N("50.5"))
		    CheckText("BigNumberVQZ.GradToDeg", x.GetStringValue(10, False, 99999, 60, True, "."), "45.45")
		    CheckBytes("BigNumberVQZ.GradToDeg", x.DataMantissa, "CCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCB5")
		    Try
		      x = BigNumberVQZ.GradToDeg(BigNumberVQZ.Max)
		      MissFailure("BigNumberVQZ.GradToDeg of BigNumberVQZ.Max")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.GradToDeg of BigNumberVQZ.Max", e, "BigNumberErrorExceptionVQZ", "GradToDeg operation failed with number " + InMessage(BigNumberVQZ.Max) + ".")
		    End Try
		    Try
		      x = BigNumberVQZ.GradToDeg(BigNumberVQZ.Nan)
		      MissFailure("BigNumberVQZ.GradToDeg of BigNumberVQZ.Nan")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.GradToDeg of BigNumberVQZ.Nan", e, "BigNumberErrorExceptionVQZ", "GradToDeg operation failed with number NaN.")
		    End Try
		    Try
		      x = BigNumberVQZ.GradToDeg(none)
		      MissFailure("BigNumberVQZ.GradToDeg of none")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.GradToDeg of none", e, "BigNumberErrorExceptionVQZ", "GradToDeg operation failed with number nil.")
		    End Try
		  Catch e As RuntimeException
		    Unexpected("BigNumberVQZ.GradToDeg", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfGradToRad()
		  #Pragma BreakOnExceptions False
		  Dim x As BigNumberVQZ
		  Dim none As BigNumberVQZ
		  Try
		    x = BigNumberVQZ.GradToRad(N("100"))
		    CheckText("BigNumberVQZ.GradToRad", x.GetStringValue(10, False, 99999, 60, True, "."), "1.570796326794896619231321691639751442098584699687552910487472")
		    CheckBytes("BigNumberVQZ.GradToRad", x.DataMantissa, "229B133BA6BE0B0274CC678A084E0229D11CDC808B62C6C434C26821A2DA0FC9")
		    Try
		      x = BigNumberVQZ.GradToRad(BigNumberVQZ.Max)
		      MissFailure("BigNumberVQZ.GradToRad of BigNumberVQZ.Max")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.GradToRad of BigNumberVQZ.Max", e, "BigNumberErrorExceptionVQZ", "GradToRad operation failed with number " + InMessage(BigNumberVQZ.Max) + ".")
		    End Try
		    Try
		      x = BigNumberVQZ.GradToRad(BigNumberVQZ.Nan)
		      MissFailure("BigNumberVQZ.GradToRad of BigNumberVQZ.Nan")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.GradToRad of BigNumberVQZ.Nan", e, "BigNumberErrorExceptionVQZ", "GradToRad operation failed with number NaN.")
		    End Try
		    Try
		      x = BigNumberVQZ.GradToRad(none)
		      MissFailure("BigNumberVQZ.GradToRad of none")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.GradToRad of none", e, "BigNumberErrorExceptionVQZ", "GradToRad operation failed with number nil.")
		    End Try
		  Catch e As RuntimeException
		    Unexpected("BigNumberVQZ.GradToRad", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfRadToGrad()
		  #Pragma BreakOnExceptions False
		  Dim x As BigNumberVQZ
		  Dim none As BigNumberVQZ
		  Try
		    x = BigNumberVQZ.RadToGrad(N("1"))
		    CheckText("BigNumberVQZ.RadToGrad", x.GetStringValue(10, False, 99999, 60, True, "."), "63.661977236758134307553505349005744813783858296182579499066938")
		    CheckBytes("BigNumberVQZ.RadToGrad", x.DataMantissa, "6964058CBC2B5F1D6791296EBF09CA567D9A220F3879FD9911614A5A5CDDA5FE")
		    Try
		      x = BigNumberVQZ.RadToGrad(BigNumberVQZ.Max)
		      MissFailure("BigNumberVQZ.RadToGrad of BigNumberVQZ.Max")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.RadToGrad of BigNumberVQZ.Max", e, "BigNumberErrorExceptionVQZ", "RadToGrad operation failed with number " + InMessage(BigNumberVQZ.Max) + ".")
		    End Try
		    Try
		      x = BigNumberVQZ.RadToGrad(BigNumberVQZ.Nan)
		      MissFailure("BigNumberVQZ.RadToGrad of BigNumberVQZ.Nan")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.RadToGrad of BigNumberVQZ.Nan", e, "BigNumberErrorExceptionVQZ", "RadToGrad operation failed with number NaN.")
		    End Try
		    Try
		      x = BigNumberVQZ.RadToGrad(none)
		      MissFailure("BigNumberVQZ.RadToGrad of none")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.RadToGrad of none", e, "BigNumberErrorExceptionVQZ", "RadToGrad operation failed with number nil.")
		    End Try
		  Catch e As RuntimeException
		    Unexpected("BigNumberVQZ.RadToGrad", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfDegToRad()
		  #If kOverloadByCount Then
		    #Pragma BreakOnExceptions False
		    Dim x As BigNumberVQZ
		    Dim none As BigNumberVQZ
		    Try
		      x = BigNumberVQZ.DegToRad(N("30"))
		      CheckText("BigNumberVQZ.DegToRad", x.GetStringValue(10, False, 99999, 60, True, "."), "0.523598775598298873077107230546583814032861566562517636829157")
		      CheckBytes("BigNumberVQZ.DegToRad", x.DataMantissa, "C1BCB77C197FB2564D889AB10534AC708B683DAB0797D92D232C9B6BC1910A86")
		      Try
		        x = BigNumberVQZ.DegToRad(BigNumberVQZ.Max)
		        MissFailure("BigNumberVQZ.DegToRad of BigNumberVQZ.Max")
		      Catch e As RuntimeException
		        CheckFailed("BigNumberVQZ.DegToRad of BigNumberVQZ.Max", e, "BigNumberErrorExceptionVQZ", "DegToRad operation failed with number " + InMessage(BigNumberVQZ.Max) + ".")
		      End Try
		      Try
		        x = BigNumberVQZ.DegToRad(BigNumberVQZ.Nan)
		        MissFailure("BigNumberVQZ.DegToRad of BigNumberVQZ.Nan")
		      Catch e As RuntimeException
		        CheckFailed("BigNumberVQZ.DegToRad of BigNumberVQZ.Nan", e, "BigNumberErrorExceptionVQZ", "DegToRad operation failed with number NaN.")
		      End Try
		      Try
		        x = BigNumberVQZ.DegToRad(none)
		        MissFailure("BigNumberVQZ.DegToRad of none")
		      Catch e As RuntimeException
		        CheckFailed("BigNumberVQZ.DegToRad of none", e, "BigNumberErrorExceptionVQZ", "DegToRad operation failed with number nil.")
		      End Try
		    Catch e As RuntimeException
		      Unexpected("BigNumberVQZ.DegToRad", e)
		    End Try
		  #EndIf
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfRadToDeg()
		  #Pragma BreakOnExceptions False
		  Dim x As BigNumberVQZ
		  Dim none As BigNumberVQZ
		  Try
		    x = BigNumberVQZ.RadToDeg(N("1"))
		    CheckText("BigNumberVQZ.RadToDeg", x.GetStringValue(10, False, 99999, 60, True, "."), "57.295779513082320876798154814105170332405472466564321549160244")
		    CheckBytes("BigNumberVQZ.RadToDeg", x.DataMantissa, "910D38B12974A2CDDC02BF7C5FA28234D757D2407F53970AC3BD0F1ED3E02EE5")
		    Try
		      x = BigNumberVQZ.RadToDeg(BigNumberVQZ.Max)
		      MissFailure("BigNumberVQZ.RadToDeg of BigNumberVQZ.Max")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.RadToDeg of BigNumberVQZ.Max", e, "BigNumberErrorExceptionVQZ", "RadToDeg operation failed with number " + InMessage(BigNumberVQZ.Max) + ".")
		    End Try
		    Try
		      x = BigNumberVQZ.RadToDeg(BigNumberVQZ.Nan)
		      MissFailure("BigNumberVQZ.RadToDeg of BigNumberVQZ.Nan")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.RadToDeg of BigNumberVQZ.Nan", e, "BigNumberErrorExceptionVQZ", "RadToDeg operation failed with number NaN.")
		    End Try
		    Try
		      x = BigNumberVQZ.RadToDeg(none)
		      MissFailure("BigNumberVQZ.RadToDeg of none")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.RadToDeg of none", e, "BigNumberErrorExceptionVQZ", "RadToDeg operation failed with number nil.")
		    End Try
		  Catch e As RuntimeException
		    Unexpected("BigNumberVQZ.RadToDeg", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfACoth()
		  #Pragma BreakOnExceptions False
		  Dim x As BigNumberVQZ
		  Dim none As BigNumberVQZ
		  Try
		    x = BigNumberVQZ.ACoth(N("2"))
		    CheckText("BigNumberVQZ.ACoth", x.GetStringValue(10, False, 99999, 60, True, "."), "0.549306144334054845697622618461262852323745278911374725867347")
		    CheckBytes("BigNumberVQZ.ACoth", x.DataMantissa, "C79AA42875F7CB1EF846F0DB6C210ADF5ABE9D82AAC60C52BB541868D5539F8C")
		    Try
		      x = BigNumberVQZ.ACoth(N("1"))
		      MissFailure("BigNumberVQZ.ACoth of N('1')")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.ACoth of N('1')", e, "BigNumberErrorExceptionVQZ", "ACoth operation failed with number 1.")
		    End Try
		    Try
		      x = BigNumberVQZ.ACoth(BigNumberVQZ.Nan)
		      MissFailure("BigNumberVQZ.ACoth of BigNumberVQZ.Nan")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.ACoth of BigNumberVQZ.Nan", e, "BigNumberErrorExceptionVQZ", "ACoth operation failed with number NaN.")
		    End Try
		    Try
		      x = BigNumberVQZ.ACoth(none)
		      MissFailure("BigNumberVQZ.ACoth of none")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.ACoth of none", e, "BigNumberErrorExceptionVQZ", "ACoth operation failed with number nil.")
		    End Try
		  Catch e As RuntimeException
		    Unexpected("BigNumberVQZ.ACoth", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfATanh()
		  #Pragma BreakOnExceptions False
		  Dim x As BigNumberVQZ
		  Dim none As BigNumberVQZ
		  Try
		    x = BigNumberVQZ.ATanh(N("0.5"))
		    CheckText("BigNumberVQZ.ATanh", x.GetStringValue(10, False, 99999, 60, True, "."), "0.549306144334054845697622618461262852323745278911374725867347")
		    CheckBytes("BigNumberVQZ.ATanh", x.DataMantissa, "C79AA42875F7CB1EF846F0DB6C210ADF5ABE9D82AAC60C52BB541868D5539F8C")
		    Try
		      x = BigNumberVQZ.ATanh(N("1"))
		      MissFailure("BigNumberVQZ.ATanh of N('1')")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.ATanh of N('1')", e, "BigNumberErrorExceptionVQZ", "ATanh operation failed with number 1.")
		    End Try
		    Try
		      x = BigNumberVQZ.ATanh(BigNumberVQZ.Nan)
		      MissFailure("BigNumberVQZ.ATanh of BigNumberVQZ.Nan")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.ATanh of BigNumberVQZ.Nan", e, "BigNumberErrorExceptionVQZ", "ATanh operation failed with number NaN.")
		    End Try
		    Try
		      x = BigNumberVQZ.ATanh(none)
		      MissFailure("BigNumberVQZ.ATanh of none")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.ATanh of none", e, "BigNumberErrorExceptionVQZ", "ATanh operation failed with number nil.")
		    End Try
		  Catch e As RuntimeException
		    Unexpected("BigNumberVQZ.ATanh", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfACosh()
		  #Pragma BreakOnExceptions False
		  Dim x As BigNumberVQZ
		  Dim none As BigNumberVQZ
		  Try
		    x = BigNumberVQZ.ACosh(N("2"))
		    CheckText("BigNumberVQZ.ACosh", x.GetStringValue(10, False, 99999, 60, True, "."), "1.316957896924816708625046347307968444026981971467516479768472")
		    CheckBytes("BigNumberVQZ.ACosh", x.DataMantissa, "D8E855A77756C874BB8C6394AD057F536667A9460CE82534DFA421C08C1392A8")
		    Try
		      x = BigNumberVQZ.ACosh(N("0.5"))
		      MissFailure("BigNumberVQZ.ACosh of N('0.5')")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.ACosh of N('0.5')", e, "BigNumberErrorExceptionVQZ", "ACosh operation failed with number 0.5.")
		    End Try
		    Try
		      x = BigNumberVQZ.ACosh(BigNumberVQZ.Nan)
		      MissFailure("BigNumberVQZ.ACosh of BigNumberVQZ.Nan")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.ACosh of BigNumberVQZ.Nan", e, "BigNumberErrorExceptionVQZ", "ACosh operation failed with number NaN.")
		    End Try
		    Try
		      x = BigNumberVQZ.ACosh(none)
		      MissFailure("BigNumberVQZ.ACosh of none")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.ACosh of none", e, "BigNumberErrorExceptionVQZ", "ACosh operation failed with number nil.")
		    End Try
		  Catch e As RuntimeException
		    Unexpected("BigNumberVQZ.ACosh", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfASinh()
		  #Pragma BreakOnExceptions False
		  Dim x As BigNumberVQZ
		  Dim none As BigNumberVQZ
		  Try
		    x = BigNumberVQZ.ASinh(N("0.5"))
		    CheckText("BigNumberVQZ.ASinh", x.GetStringValue(10, False, 99999, 60, True, "."), "0.481211825059603447497758913424368423135184334385660519661018")
		    CheckBytes("BigNumberVQZ.ASinh", x.DataMantissa, "83FA9B3ACE4101DEBE93EF6866643D99068163B4540221F0A54CB028766561F6")
		    Try
		      x = BigNumberVQZ.ASinh(BigNumberVQZ.Max)
		      MissFailure("BigNumberVQZ.ASinh of BigNumberVQZ.Max")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.ASinh of BigNumberVQZ.Max", e, "BigNumberErrorExceptionVQZ", "ASinh operation failed with number " + InMessage(BigNumberVQZ.Max) + ".")
		    End Try
		    Try
		      x = BigNumberVQZ.ASinh(BigNumberVQZ.Nan)
		      MissFailure("BigNumberVQZ.ASinh of BigNumberVQZ.Nan")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.ASinh of BigNumberVQZ.Nan", e, "BigNumberErrorExceptionVQZ", "ASinh operation failed with number NaN.")
		    End Try
		    Try
		      x = BigNumberVQZ.ASinh(none)
		      MissFailure("BigNumberVQZ.ASinh of none")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.ASinh of none", e, "BigNumberErrorExceptionVQZ", "ASinh operation failed with number nil.")
		    End Try
		  Catch e As RuntimeException
		    Unexpected("BigNumberVQZ.ASinh", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfCoth()
		  #Pragma BreakOnExceptions False
		  Dim x As BigNumberVQZ
		  Dim none As BigNumberVQZ
		  Try
		    x = BigNumberVQZ.Coth(N("0.5"))
		    CheckText("BigNumberVQZ.Coth", x.GetStringValue(10, False, 99999, 60, True, "."), "2.163953413738652848770004010218023117093738602150792272533574")
		    CheckBytes("BigNumberVQZ.Coth", x.DataMantissa, "CA498FB8326D32BBBF19F53C8E5B9469F21153652B2A0EAEEAF6CD8475367E8A")
		    Try
		      x = BigNumberVQZ.Coth(N("0"))
		      MissFailure("BigNumberVQZ.Coth of N('0')")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.Coth of N('0')", e, "BigNumberErrorExceptionVQZ", "Coth operation failed with number 0.")
		    End Try
		    Try
		      x = BigNumberVQZ.Coth(BigNumberVQZ.Nan)
		      MissFailure("BigNumberVQZ.Coth of BigNumberVQZ.Nan")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.Coth of BigNumberVQZ.Nan", e, "BigNumberErrorExceptionVQZ", "Coth operation failed with number NaN.")
		    End Try
		    Try
		      x = BigNumberVQZ.Coth(none)
		      MissFailure("BigNumberVQZ.Coth of none")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.Coth of none", e, "BigNumberErrorExceptionVQZ", "Coth operation failed with number nil.")
		    End Try
		  Catch e As RuntimeException
		    Unexpected("BigNumberVQZ.Coth", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfTanh()
		  #Pragma BreakOnExceptions False
		  Dim x As BigNumberVQZ
		  Dim none As BigNumberVQZ
		  Try
		    x = BigNumberVQZ.Tanh(N("0.5"))
		    CheckText("BigNumberVQZ.Tanh", x.GetStringValue(10, False, 99999, 60, True, "."), "0.462117157260009758502318483643672548730289280330113038552732")
		    CheckBytes("BigNumberVQZ.Tanh", x.DataMantissa, "B0BB24B6407F395B8234AD6F41AF4CE6D369842DE3107794289B57B4BA9E9AEC")
		    Try
		      x = BigNumberVQZ.Tanh(BigNumberVQZ.Max)
		      MissFailure("BigNumberVQZ.Tanh of BigNumberVQZ.Max")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.Tanh of BigNumberVQZ.Max", e, "BigNumberErrorExceptionVQZ", "Tanh operation failed with number " + InMessage(BigNumberVQZ.Max) + ".")
		    End Try
		    Try
		      x = BigNumberVQZ.Tanh(BigNumberVQZ.Nan)
		      MissFailure("BigNumberVQZ.Tanh of BigNumberVQZ.Nan")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.Tanh of BigNumberVQZ.Nan", e, "BigNumberErrorExceptionVQZ", "Tanh operation failed with number NaN.")
		    End Try
		    Try
		      x = BigNumberVQZ.Tanh(none)
		      MissFailure("BigNumberVQZ.Tanh of none")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.Tanh of none", e, "BigNumberErrorExceptionVQZ", "Tanh operation failed with number nil.")
		    End Try
		  Catch e As RuntimeException
		    Unexpected("BigNumberVQZ.Tanh", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfCosh()
		  #Pragma BreakOnExceptions False
		  Dim x As BigNumberVQZ
		  Dim none As BigNumberVQZ
		  Try
		    x = BigNumberVQZ.Cosh(N("0.5"))
		    CheckText("BigNumberVQZ.Cosh", x.GetStringValue(10, False, 99999, 60, True, "."), "1.127625965206380785226225161402672012547847118098667483628986")
		    CheckBytes("BigNumberVQZ.Cosh", x.DataMantissa, "7A4D1A317AB9A56485D4FCB83D6C66764674000483271DC122834657310C5690")
		    Try
		      x = BigNumberVQZ.Cosh(BigNumberVQZ.Max)
		      MissFailure("BigNumberVQZ.Cosh of BigNumberVQZ.Max")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.Cosh of BigNumberVQZ.Max", e, "BigNumberErrorExceptionVQZ", "Cosh operation failed with number " + InMessage(BigNumberVQZ.Max) + ".")
		    End Try
		    Try
		      x = BigNumberVQZ.Cosh(BigNumberVQZ.Nan)
		      MissFailure("BigNumberVQZ.Cosh of BigNumberVQZ.Nan")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.Cosh of BigNumberVQZ.Nan", e, "BigNumberErrorExceptionVQZ", "Cosh operation failed with number NaN.")
		    End Try
		    Try
		      x = BigNumberVQZ.Cosh(none)
		      MissFailure("BigNumberVQZ.Cosh of none")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.Cosh of none", e, "BigNumberErrorExceptionVQZ", "Cosh operation failed with number nil.")
		    End Try
		  Catch e As RuntimeException
		    Unexpected("BigNumberVQZ.Cosh", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfSinh()
		  #Pragma BreakOnExceptions False
		  Dim x As BigNumberVQZ
		  Dim none As BigNumberVQZ
		  Try
		    x = BigNumberVQZ.Sinh(N("0.5"))
		    CheckText("BigNumberVQZ.Sinh", x.GetStringValue(10, False, 99999, 60, True, "."), "0.521095305493747361622425626411491559105928982611480527946094")
		    CheckBytes("BigNumberVQZ.Sinh", x.DataMantissa, "DB5733019C8900FB4E9E11A1F0188509251133D7B0ABC4AB51B6DC317F806685")
		    Try
		      x = BigNumberVQZ.Sinh(BigNumberVQZ.Max)
		      MissFailure("BigNumberVQZ.Sinh of BigNumberVQZ.Max")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.Sinh of BigNumberVQZ.Max", e, "BigNumberErrorExceptionVQZ", "Sinh operation failed with number " + InMessage(BigNumberVQZ.Max) + ".")
		    End Try
		    Try
		      x = BigNumberVQZ.Sinh(BigNumberVQZ.Nan)
		      MissFailure("BigNumberVQZ.Sinh of BigNumberVQZ.Nan")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.Sinh of BigNumberVQZ.Nan", e, "BigNumberErrorExceptionVQZ", "Sinh operation failed with number NaN.")
		    End Try
		    Try
		      x = BigNumberVQZ.Sinh(none)
		      MissFailure("BigNumberVQZ.Sinh of none")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.Sinh of none", e, "BigNumberErrorExceptionVQZ", "Sinh operation failed with number nil.")
		    End Try
		  Catch e As RuntimeException
		    Unexpected("BigNumberVQZ.Sinh", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfACot()
		  #Pragma BreakOnExceptions False
		  Dim x As BigNumberVQZ
		  Try
		    x = BigNumberVQZ.ACot(N("2"))
		    CheckText("BigNumberVQZ.ACot", x.GetStringValue(10, False, 99999, 60, True, "."), "0.463647609000806116214256231461214402028537054286120263810933")
		    CheckBytes("BigNumberVQZ.ACot", x.DataMantissa, "0C4762E9E616CFE200DF1C268715146E038D3ABCEC45E46F457BDA0D2B3863ED")
		  Catch e As RuntimeException
		    Unexpected("BigNumberVQZ.ACot", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfATan()
		  #Pragma BreakOnExceptions False
		  Dim x As BigNumberVQZ
		  Try
		    x = BigNumberVQZ.ATan(N("2"))
		    CheckText("BigNumberVQZ.ATan", x.GetStringValue(10, False, 99999, 60, True, "."), "1.107148717794090503017065460178537040070047645401432646676539")
		    CheckBytes("BigNumberVQZ.ATan", x.DataMantissa, "5F09BB80ECF857C9B394E0C0A6487D4D9079CD511051CD686323F25D970CB78D")
		  Catch e As RuntimeException
		    Unexpected("BigNumberVQZ.ATan", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfACos()
		  #Pragma BreakOnExceptions False
		  Dim x As BigNumberVQZ
		  Dim none As BigNumberVQZ
		  Try
		    x = BigNumberVQZ.ACos(N("0.5"))
		    CheckText("BigNumberVQZ.ACos", x.GetStringValue(10, False, 99999, 60, True, "."), "1.047197551196597746154214461093167628065723133125035273658315")
		    CheckBytes("BigNumberVQZ.ACos", x.DataMantissa, "C0BCB77C197FB2564D889AB10534AC708B683DAB0797D92D232C9B6BC1910A86")
		    Try
		      x = BigNumberVQZ.ACos(N("1.1"))
		      MissFailure("BigNumberVQZ.ACos of N('1.1')")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.ACos of N('1.1')", e, "BigNumberErrorExceptionVQZ", "ACos operation failed with number 1.1.")
		    End Try
		    Try
		      x = BigNumberVQZ.ACos(BigNumberVQZ.Nan)
		      MissFailure("BigNumberVQZ.ACos of BigNumberVQZ.Nan")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.ACos of BigNumberVQZ.Nan", e, "BigNumberErrorExceptionVQZ", "ACos operation failed with number NaN.")
		    End Try
		    Try
		      x = BigNumberVQZ.ACos(none)
		      MissFailure("BigNumberVQZ.ACos of none")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.ACos of none", e, "BigNumberErrorExceptionVQZ", "ACos operation failed with number nil.")
		    End Try
		  Catch e As RuntimeException
		    Unexpected("BigNumberVQZ.ACos", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfASin()
		  #Pragma BreakOnExceptions False
		  Dim x As BigNumberVQZ
		  Dim none As BigNumberVQZ
		  Try
		    x = BigNumberVQZ.ASin(N("0.5"))
		    CheckText("BigNumberVQZ.ASin", x.GetStringValue(10, False, 99999, 60, True, "."), "0.523598775598298873077107230546583814032861566562517636829157")
		    CheckBytes("BigNumberVQZ.ASin", x.DataMantissa, "C4BCB77C197FB2564D889AB10534AC708B683DAB0797D92D232C9B6BC1910A86")
		    Try
		      x = BigNumberVQZ.ASin(N("1.1"))
		      MissFailure("BigNumberVQZ.ASin of N('1.1')")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.ASin of N('1.1')", e, "BigNumberErrorExceptionVQZ", "ASin operation failed with number 1.1.")
		    End Try
		    Try
		      x = BigNumberVQZ.ASin(BigNumberVQZ.Nan)
		      MissFailure("BigNumberVQZ.ASin of BigNumberVQZ.Nan")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.ASin of BigNumberVQZ.Nan", e, "BigNumberErrorExceptionVQZ", "ASin operation failed with number NaN.")
		    End Try
		    Try
		      x = BigNumberVQZ.ASin(none)
		      MissFailure("BigNumberVQZ.ASin of none")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.ASin of none", e, "BigNumberErrorExceptionVQZ", "ASin operation failed with number nil.")
		    End Try
		  Catch e As RuntimeException
		    Unexpected("BigNumberVQZ.ASin", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfCot()
		  #Pragma BreakOnExceptions False
		  Dim x As BigNumberVQZ
		  Dim none As BigNumberVQZ
		  Try
		    x = BigNumberVQZ.Cot(N("1"))
		    CheckText("BigNumberVQZ.Cot", x.GetStringValue(10, False, 99999, 60, True, "."), "0.642092615934330703006419986594265620230278113918171379101162")
		    CheckBytes("BigNumberVQZ.Cot", x.DataMantissa, "6188A070BB3B606361B0429AFE7255B92BEEEA81A15BD9291AECE770822E60A4")
		    Try
		      x = BigNumberVQZ.Cot(N("0"))
		      MissFailure("BigNumberVQZ.Cot of N('0')")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.Cot of N('0')", e, "BigNumberErrorExceptionVQZ", "Cot operation failed with number 0.")
		    End Try
		    Try
		      x = BigNumberVQZ.Cot(BigNumberVQZ.Nan)
		      MissFailure("BigNumberVQZ.Cot of BigNumberVQZ.Nan")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.Cot of BigNumberVQZ.Nan", e, "BigNumberErrorExceptionVQZ", "Cot operation failed with number NaN.")
		    End Try
		    Try
		      x = BigNumberVQZ.Cot(none)
		      MissFailure("BigNumberVQZ.Cot of none")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.Cot of none", e, "BigNumberErrorExceptionVQZ", "Cot operation failed with number nil.")
		    End Try
		  Catch e As RuntimeException
		    Unexpected("BigNumberVQZ.Cot", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfTan()
		  #Pragma BreakOnExceptions False
		  Dim x As BigNumberVQZ
		  Dim none As BigNumberVQZ
		  Try
		    x = BigNumberVQZ.Tan(N("1"))
		    CheckText("BigNumberVQZ.Tan", x.GetStringValue(10, False, 99999, 60, True, "."), "1.557407724654902230506974807458360173087250772381520038383947")
		    CheckBytes("BigNumberVQZ.Tan", x.DataMantissa, "996A6DCE76ACE95EC954666346BF12A9DA59A01899A03E66C52D1DF7E52259C7")
		    Try
		      x = BigNumberVQZ.Tan(BigNumberVQZ.Max)
		      MissFailure("BigNumberVQZ.Tan of BigNumberVQZ.Max")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.Tan of BigNumberVQZ.Max", e, "BigNumberErrorExceptionVQZ", "Tan operation failed with number " + InMessage(BigNumberVQZ.Max) + ".")
		    End Try
		    Try
		      x = BigNumberVQZ.Tan(BigNumberVQZ.Nan)
		      MissFailure("BigNumberVQZ.Tan of BigNumberVQZ.Nan")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.Tan of BigNumberVQZ.Nan", e, "BigNumberErrorExceptionVQZ", "Tan operation failed with number NaN.")
		    End Try
		    Try
		      x = BigNumberVQZ.Tan(none)
		      MissFailure("BigNumberVQZ.Tan of none")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.Tan of none", e, "BigNumberErrorExceptionVQZ", "Tan operation failed with number nil.")
		    End Try
		  Catch e As RuntimeException
		    Unexpected("BigNumberVQZ.Tan", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfCos()
		  #Pragma BreakOnExceptions False
		  Dim x As BigNumberVQZ
		  Dim none As BigNumberVQZ
		  Try
		    x = BigNumberVQZ.Cos(N("1"))
		    CheckText("BigNumberVQZ.Cos", x.GetStringValue(10, False, 99999, 60, True, "."), "0.540302305868139717400936607442976603732310420617922227670097")
		    CheckBytes("BigNumberVQZ.Cos", x.DataMantissa, "FAE660B7400230F2B7C3964F893A37A229BD7168976D46C2915C34A87D40518A")
		    Try
		      x = BigNumberVQZ.Cos(BigNumberVQZ.Max)
		      MissFailure("BigNumberVQZ.Cos of BigNumberVQZ.Max")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.Cos of BigNumberVQZ.Max", e, "BigNumberErrorExceptionVQZ", "Cos operation failed with number " + InMessage(BigNumberVQZ.Max) + ".")
		    End Try
		    Try
		      x = BigNumberVQZ.Cos(BigNumberVQZ.Nan)
		      MissFailure("BigNumberVQZ.Cos of BigNumberVQZ.Nan")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.Cos of BigNumberVQZ.Nan", e, "BigNumberErrorExceptionVQZ", "Cos operation failed with number NaN.")
		    End Try
		    Try
		      x = BigNumberVQZ.Cos(none)
		      MissFailure("BigNumberVQZ.Cos of none")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.Cos of none", e, "BigNumberErrorExceptionVQZ", "Cos operation failed with number nil.")
		    End Try
		  Catch e As RuntimeException
		    Unexpected("BigNumberVQZ.Cos", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfSin()
		  #Pragma BreakOnExceptions False
		  Dim x As BigNumberVQZ
		  Dim none As BigNumberVQZ
		  Try
		    x = BigNumberVQZ.Sin(N("1"))
		    CheckText("BigNumberVQZ.Sin", x.GetStringValue(10, False, 99999, 60, True, "."), "0.841470984807896506652502321630298999622563060798371065672752")
		    CheckBytes("BigNumberVQZ.Sin", x.DataMantissa, "C049C6D65FCAB6EF4D8B512F1311E589323C0FC509E9E9C62070674878A46AD7")
		    Try
		      x = BigNumberVQZ.Sin(BigNumberVQZ.Max)
		      MissFailure("BigNumberVQZ.Sin of BigNumberVQZ.Max")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.Sin of BigNumberVQZ.Max", e, "BigNumberErrorExceptionVQZ", "Sin operation failed with number " + InMessage(BigNumberVQZ.Max) + ".")
		    End Try
		    Try
		      x = BigNumberVQZ.Sin(BigNumberVQZ.Nan)
		      MissFailure("BigNumberVQZ.Sin of BigNumberVQZ.Nan")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.Sin of BigNumberVQZ.Nan", e, "BigNumberErrorExceptionVQZ", "Sin operation failed with number NaN.")
		    End Try
		    Try
		      x = BigNumberVQZ.Sin(none)
		      MissFailure("BigNumberVQZ.Sin of none")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.Sin of none", e, "BigNumberErrorExceptionVQZ", "Sin operation failed with number nil.")
		    End Try
		  Catch e As RuntimeException
		    Unexpected("BigNumberVQZ.Sin", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfLog()
		  #Pragma BreakOnExceptions False
		  Dim x As BigNumberVQZ
		  Dim none As BigNumberVQZ
		  Try
		    CheckText("BigNumberVQZ.Log", Shown(BigNumberVQZ.Log(N("1024"), N("2"))), "10")
		    x = BigNumberVQZ.Log(N("3"), N("2"))
		    CheckText("BigNumberVQZ.Log", x.GetStringValue(10, False, 99999, 60, True, "."), "1.584962500721156181453738943947816508759814407692481060455753")
		    CheckBytes("BigNumberVQZ.Log", x.DataMantissa, "FC20FD9226C8F23D20D82CD151F37992E8D64503058905D0CF43EBFD1C0DE0CA")
		    Try
		      x = BigNumberVQZ.Log(N("8"), N("1"))
		      MissFailure("BigNumberVQZ.Log of N('8') and N('1')")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.Log of N('8') and N('1')", e, "BigNumberErrorExceptionVQZ", "Log operation failed with numbers 8 and 1.")
		    End Try
		    Try
		      x = BigNumberVQZ.Log(BigNumberVQZ.Nan, N("3"))
		      MissFailure("BigNumberVQZ.Log of BigNumberVQZ.Nan and N('3')")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.Log of BigNumberVQZ.Nan and N('3')", e, "BigNumberErrorExceptionVQZ", "Log operation failed with numbers NaN and 3.")
		    End Try
		    Try
		      x = BigNumberVQZ.Log(N("3"), BigNumberVQZ.Nan)
		      MissFailure("BigNumberVQZ.Log of N('3') and BigNumberVQZ.Nan")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.Log of N('3') and BigNumberVQZ.Nan", e, "BigNumberErrorExceptionVQZ", "Log operation failed with numbers 3 and NaN.")
		    End Try
		    Try
		      x = BigNumberVQZ.Log(N("3"), none)
		      MissFailure("BigNumberVQZ.Log of N('3') and none")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.Log of N('3') and none", e, "BigNumberErrorExceptionVQZ", "Log operation failed with numbers 3 and nil.")
		    End Try
		    Try
		      x = BigNumberVQZ.Log(none, N("3"))
		      MissFailure("BigNumberVQZ.Log of Nil")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.Log of Nil", e, "BigNumberErrorExceptionVQZ", "Log operation failed with numbers nil and 3.")
		    End Try
		  Catch e As RuntimeException
		    Unexpected("BigNumberVQZ.Log", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfLn()
		  #Pragma BreakOnExceptions False
		  Dim x As BigNumberVQZ
		  Dim none As BigNumberVQZ
		  Try
		    x = BigNumberVQZ.Ln(N("3"))
		    CheckText("BigNumberVQZ.Ln", x.GetStringValue(10, False, 99999, 60, True, "."), "1.098612288668109691395245236922525704647490557822749451734694")
		    CheckBytes("BigNumberVQZ.Ln", x.DataMantissa, "C79AA42875F7CB1EF846F0DB6C210ADF5ABE9D82AAC60C52BB541868D5539F8C")
		    Try
		      x = BigNumberVQZ.Ln(N("0"))
		      MissFailure("BigNumberVQZ.Ln of N('0')")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.Ln of N('0')", e, "BigNumberErrorExceptionVQZ", "Ln operation failed with number 0.")
		    End Try
		    Try
		      x = BigNumberVQZ.Ln(BigNumberVQZ.Nan)
		      MissFailure("BigNumberVQZ.Ln of BigNumberVQZ.Nan")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.Ln of BigNumberVQZ.Nan", e, "BigNumberErrorExceptionVQZ", "Ln operation failed with number NaN.")
		    End Try
		    Try
		      x = BigNumberVQZ.Ln(none)
		      MissFailure("BigNumberVQZ.Ln of none")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.Ln of none", e, "BigNumberErrorExceptionVQZ", "Ln operation failed with number nil.")
		    End Try
		  Catch e As RuntimeException
		    Unexpected("BigNumberVQZ.Ln", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfExp()
		  #Pragma BreakOnExceptions False
		  Dim x As BigNumberVQZ
		  Dim none As BigNumberVQZ
		  Try
		    x = BigNumberVQZ.Exp(N("0.5"))
		    CheckText("BigNumberVQZ.Exp", x.GetStringValue(10, False, 99999, 60, True, "."), "1.648721270700128146848650787814163571653776100710148011575079")
		    CheckBytes("BigNumberVQZ.Exp", x.DataMantissa, "68F9B33148FE25E2ACA38509B6F828FBD8FC996F5B7DFF964BDE34F0704C09D3")
		    Try
		      x = BigNumberVQZ.Exp(BigNumberVQZ.Max)
		      MissFailure("BigNumberVQZ.Exp of BigNumberVQZ.Max")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.Exp of BigNumberVQZ.Max", e, "BigNumberErrorExceptionVQZ", "Exp operation failed with number " + InMessage(BigNumberVQZ.Max) + ".")
		    End Try
		    Try
		      x = BigNumberVQZ.Exp(BigNumberVQZ.Nan)
		      MissFailure("BigNumberVQZ.Exp of BigNumberVQZ.Nan")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.Exp of BigNumberVQZ.Nan", e, "BigNumberErrorExceptionVQZ", "Exp operation failed with number NaN.")
		    End Try
		    Try
		      x = BigNumberVQZ.Exp(none)
		      MissFailure("BigNumberVQZ.Exp of none")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.Exp of none", e, "BigNumberErrorExceptionVQZ", "Exp operation failed with number nil.")
		    End Try
		  Catch e As RuntimeException
		    Unexpected("BigNumberVQZ.Exp", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfMinAndMax()
		  #Pragma BreakOnExceptions False
		  Try
		    CheckText("BigNumberVQZ.Max", HexOf(BigNumberVQZ.Max.DataMantissa), AllOnes(BigNumberVQZ.Max.DataMantissa.Size))
		    Dim top As MemoryBlock = BigNumberVQZ.Max.DataExponent
		    CheckInteger("BigNumberVQZ.Max", top.Byte(top.Size - 1), 127)
		    CheckTrue("BigNumberVQZ.Max", BigNumberVQZ.Max.Add(BigNumberVQZ.Min, True).IsZero)
		    CheckTrue("BigNumberVQZ.Min", BigNumberVQZ.Min.IsNegative)
		    CheckTrue("BigNumberVQZ.Min", BigNumberVQZ.Min.Negate.Equals(BigNumberVQZ.Max))
		  Catch e As RuntimeException
		    Unexpected("BigNumberVQZ.Max", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfZeroAndOne()
		  #Pragma BreakOnExceptions False
		  Try
		    CheckText("BigNumberVQZ.Zero", Shown(BigNumberVQZ.Zero), "0")
		    CheckText("BigNumberVQZ.One", Shown(BigNumberVQZ.One), "1")
		    CheckText("BigNumberVQZ.Nan", Shown(BigNumberVQZ.Nan), "NaN")
		  Catch e As RuntimeException
		    Unexpected("BigNumberVQZ.Zero", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfPi()
		  #Pragma BreakOnExceptions False
		  Dim x As BigNumberVQZ
		  Try
		    x = BigNumberVQZ.Pi
		    CheckText("BigNumberVQZ.Pi", x.GetStringValue(10, False, 99999, 60, True, "."), "3.141592653589793238462643383279502884197169399375105820974945")
		    CheckBytes("BigNumberVQZ.Pi", x.DataMantissa, "229B133BA6BE0B0274CC678A084E0229D11CDC808B62C6C434C26821A2DA0FC9")
		  Catch e As RuntimeException
		    Unexpected("BigNumberVQZ.Pi", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfHalfPi()
		  #Pragma BreakOnExceptions False
		  Dim x As BigNumberVQZ
		  Try
		    x = BigNumberVQZ.HalfPi
		    CheckText("BigNumberVQZ.HalfPi", x.GetStringValue(10, False, 99999, 60, True, "."), "1.570796326794896619231321691639751442098584699687552910487472")
		    CheckBytes("BigNumberVQZ.HalfPi", x.DataMantissa, "229B133BA6BE0B0274CC678A084E0229D11CDC808B62C6C434C26821A2DA0FC9")
		  Catch e As RuntimeException
		    Unexpected("BigNumberVQZ.HalfPi", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfTwoPi()
		  #Pragma BreakOnExceptions False
		  Dim x As BigNumberVQZ
		  Try
		    x = BigNumberVQZ.TwoPi
		    CheckText("BigNumberVQZ.TwoPi", x.GetStringValue(10, False, 99999, 60, True, "."), "6.283185307179586476925286766559005768394338798750211641949889")
		    CheckBytes("BigNumberVQZ.TwoPi", x.DataMantissa, "229B133BA6BE0B0274CC678A084E0229D11CDC808B62C6C434C26821A2DA0FC9")
		  Catch e As RuntimeException
		    Unexpected("BigNumberVQZ.TwoPi", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfE()
		  #Pragma BreakOnExceptions False
		  Dim x As BigNumberVQZ
		  Try
		    x = BigNumberVQZ.E
		    CheckText("BigNumberVQZ.E", x.GetStringValue(10, False, 99999, 60, True, "."), "2.718281828459045235360287471352662497757247093699959574966968")
		    CheckBytes("BigNumberVQZ.E", x.DataMantissa, "FC3364144136E1A995362DCE83C5B9D8F13C3D272056DCAF9A4ABBA25854F8AD")
		  Catch e As RuntimeException
		    Unexpected("BigNumberVQZ.E", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfLn2()
		  #Pragma BreakOnExceptions False
		  Dim x As BigNumberVQZ
		  Try
		    x = BigNumberVQZ.Ln2
		    CheckText("BigNumberVQZ.Ln2", x.GetStringValue(10, False, 99999, 60, True, "."), "0.69314718055994530941723212145817656807550013436025525412068")
		    CheckBytes("BigNumberVQZ.Ln2", x.DataMantissa, "2CFAAA8B5B170D8A2DB698722643F340AFF6F20398B3E3C9AB79CFD1F71772B1")
		  Catch e As RuntimeException
		    Unexpected("BigNumberVQZ.Ln2", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfLn10()
		  #Pragma BreakOnExceptions False
		  Dim x As BigNumberVQZ
		  Try
		    x = BigNumberVQZ.Ln10
		    CheckText("BigNumberVQZ.Ln10", x.GetStringValue(10, False, 99999, 60, True, "."), "2.302585092994045684017991454684364207601101488628772976033328")
		    CheckBytes("BigNumberVQZ.Ln10", x.DataMantissa, "732DF001821EC6830EF95DDAF9EC8FE2280AD3822BD656EA16ACA8AADD8D5D93")
		  Catch e As RuntimeException
		    Unexpected("BigNumberVQZ.Ln10", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfRand()
		  #Pragma BreakOnExceptions False
		  Dim x As BigNumberVQZ
		  Try
		    x = BigNumberVQZ.Rand
		    CheckTrue("BigNumberVQZ.Rand", Not (x.IsNan))
		    CheckTrue("BigNumberVQZ.Rand", Not (x.IsNegative))
		    CheckTrue("BigNumberVQZ.Rand", Not (x.IsZero))
		    CheckTrue("BigNumberVQZ.Rand", Not (x.Equals(BigNumberVQZ.Rand)))
		  Catch e As RuntimeException
		    Unexpected("BigNumberVQZ.Rand", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfNilLeftOfOperators()
		  #If kOperatorLeft Then
		    #Pragma BreakOnExceptions False
		    Dim x As BigNumberVQZ
		    Dim none As BigNumberVQZ
		    Try
		      Try
		        x = none + N("3")
		        MissFailure("BigNumberVQZ.Operator_Add of Nil")
		      Catch e As RuntimeException
		        CheckFailed("BigNumberVQZ.Operator_Add of Nil", e, "BigNumberErrorExceptionVQZ", "Operator_Add operation failed with numbers nil and 3.")
		      End Try
		      Try
		        x = none - N("3")
		        MissFailure("BigNumberVQZ.Operator_Subtract of Nil")
		      Catch e As RuntimeException
		        CheckFailed("BigNumberVQZ.Operator_Subtract of Nil", e, "BigNumberErrorExceptionVQZ", "Operator_Subtract operation failed with numbers nil and 3.")
		      End Try
		      Try
		        x = none * N("3")
		        MissFailure("BigNumberVQZ.Operator_Multiply of Nil")
		      Catch e As RuntimeException
		        CheckFailed("BigNumberVQZ.Operator_Multiply of Nil", e, "BigNumberErrorExceptionVQZ", "Operator_Multiply operation failed with numbers nil and 3.")
		      End Try
		      Try
		        x = none / N("3")
		        MissFailure("BigNumberVQZ.Operator_Divide of Nil")
		      Catch e As RuntimeException
		        CheckFailed("BigNumberVQZ.Operator_Divide of Nil", e, "BigNumberErrorExceptionVQZ", "Operator_Divide operation failed with numbers nil and 3.")
		      End Try
		    Catch e As RuntimeException
		      Unexpected("Nil left of an operator of BigNumberVQZ", e)
		    End Try
		  #EndIf
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfNilRightOfOperators()
		  #If kOperatorRight And kConversionIn Then
		    #Pragma BreakOnExceptions False
		    Dim x As BigNumberVQZ
		    Dim none As BigNumberVQZ
		    Try
		      Try
		        x = "3" + none
		        MissFailure("BigNumberVQZ.Operator_AddRight of Nil")
		      Catch e As RuntimeException
		        CheckFailed("BigNumberVQZ.Operator_AddRight of Nil", e, "BigNumberErrorExceptionVQZ", "Operator_Add operation failed with numbers nil and 3.")
		      End Try
		      Try
		        x = "3" - none
		        MissFailure("BigNumberVQZ.Operator_SubtractRight of Nil")
		      Catch e As RuntimeException
		        CheckFailed("BigNumberVQZ.Operator_SubtractRight of Nil", e, "BigNumberErrorExceptionVQZ", "Operator_Subtract operation failed with numbers nil and 3.")
		      End Try
		      Try
		        x = "3" * none
		        MissFailure("BigNumberVQZ.Operator_MultiplyRight of Nil")
		      Catch e As RuntimeException
		        CheckFailed("BigNumberVQZ.Operator_MultiplyRight of Nil", e, "BigNumberErrorExceptionVQZ", "Operator_Multiply operation failed with numbers nil and 3.")
		      End Try
		      Try
		        x = "3" / none
		        MissFailure("BigNumberVQZ.Operator_DivideRight of Nil")
		      Catch e As RuntimeException
		        CheckFailed("BigNumberVQZ.Operator_DivideRight of Nil", e, "BigNumberErrorExceptionVQZ", "Operator_Divide operation failed with numbers nil and 3.")
		      End Try
		    Catch e As RuntimeException
		      Unexpected("Nil right of an operator of BigNumberVQZ", e)
		    End Try
		  #EndIf
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfNilReceivers()
		  #Pragma BreakOnExceptions False
		  Dim x As BigNumberVQZ
		  Dim none As BigNumberVQZ
		  Try
		    CheckTrue("BigNumberVQZ.IsNan of Nil", none.IsNan)
		    CheckText("BigNumberVQZ.GetStringValue of Nil", none.GetStringValue(10, False, 15, -1, True, "."), "NaN")
		    Try
		      x = none.Ceil
		      MissFailure("BigNumberVQZ.Ceil of Nil")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.Ceil of Nil", e, "BigNumberErrorExceptionVQZ", "Ceil operation failed with number nil.")
		    End Try
		    Try
		      x = none.Floor
		      MissFailure("BigNumberVQZ.Floor of Nil")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.Floor of Nil", e, "BigNumberErrorExceptionVQZ", "Floor operation failed with number nil.")
		    End Try
		    Try
		      x = none.Round
		      MissFailure("BigNumberVQZ.Round of Nil")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.Round of Nil", e, "BigNumberErrorExceptionVQZ", "Round operation failed with number nil.")
		    End Try
		    Try
		      x = none.Sqrt
		      MissFailure("BigNumberVQZ.Sqrt of Nil")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.Sqrt of Nil", e, "BigNumberErrorExceptionVQZ", "Sqrt operation failed with number nil.")
		    End Try
		    Try
		      x = none.Add(N("3"), True)
		      MissFailure("BigNumberVQZ.Add of Nil")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.Add of Nil", e, "BigNumberErrorExceptionVQZ", "Add operation failed with numbers nil and 3.")
		    End Try
		    Try
		      x = none.Subtract(N("3"), True)
		      MissFailure("BigNumberVQZ.Subtract of Nil")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.Subtract of Nil", e, "BigNumberErrorExceptionVQZ", "Sub operation failed with numbers nil and 3.")
		    End Try
		    Try
		      x = none.Multiply(N("3"), True)
		      MissFailure("BigNumberVQZ.Multiply of Nil")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.Multiply of Nil", e, "BigNumberErrorExceptionVQZ", "Mul operation failed with numbers nil and 3.")
		    End Try
		    Try
		      x = none.Divide(N("3"), True)
		      MissFailure("BigNumberVQZ.Divide of Nil")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.Divide of Nil", e, "BigNumberErrorExceptionVQZ", "Div operation failed with numbers nil and 3.")
		    End Try
		    Try
		      x = none.Modulate(N("3"))
		      MissFailure("BigNumberVQZ.Modulate of Nil")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.Modulate of Nil", e, "BigNumberErrorExceptionVQZ", "Mod operation failed with numbers nil and 3.")
		    End Try
		    Try
		      x = none.Pow(N("3"))
		      MissFailure("BigNumberVQZ.Pow of Nil")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.Pow of Nil", e, "BigNumberErrorExceptionVQZ", "Pow operation failed with numbers nil and 3.")
		    End Try
		    Try
		      x = none.BitAnd(N("3"))
		      MissFailure("BigNumberVQZ.BitAnd of Nil")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.BitAnd of Nil", e, "BigNumberErrorExceptionVQZ", "BitwiseAnd operation failed with numbers nil and 3.")
		    End Try
		    Try
		      x = none.BitOr(N("3"))
		      MissFailure("BigNumberVQZ.BitOr of Nil")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.BitOr of Nil", e, "BigNumberErrorExceptionVQZ", "BitwiseOr operation failed with numbers nil and 3.")
		    End Try
		    Try
		      x = none.BitXOr(N("3"))
		      MissFailure("BigNumberVQZ.BitXOr of Nil")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.BitXOr of Nil", e, "BigNumberErrorExceptionVQZ", "BitwiseXor operation failed with numbers nil and 3.")
		    End Try
		    Try
		      Dim blockDataMantissa As MemoryBlock = none.DataMantissa
		      MissFailure("BigNumberVQZ.DataMantissa of Nil")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.DataMantissa of Nil", e, "NilObjectException", "Not initialized")
		    End Try
		    Try
		      Dim blockDataExponent As MemoryBlock = none.DataExponent
		      MissFailure("BigNumberVQZ.DataExponent of Nil")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.DataExponent of Nil", e, "NilObjectException", "Not initialized")
		    End Try
		    Try
		      Dim flags As Integer = none.DataFlags
		      MissFailure("BigNumberVQZ.DataFlags of Nil")
		    Catch e As RuntimeException
		      CheckFailed("BigNumberVQZ.DataFlags of Nil", e, "NilObjectException", "Not initialized")
		    End Try
		  Catch e As RuntimeException
		    Unexpected("Nil as a receiver of BigNumberVQZ", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag ViewBehavior
	#tag EndViewBehavior
End Module
#tag EndModule
