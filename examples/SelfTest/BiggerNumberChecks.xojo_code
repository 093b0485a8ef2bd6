#tag Module
Protected Module BiggerNumberChecks
	#tag Note, Name = About
		Each member of BiggerNumberVQZ with results that were computed elsewhere. This module is made by
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
		Private Function N(digits As String) As BiggerNumberVQZ
		  Return BiggerNumberVQZ.NumberWithString(digits)
		End Function
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Function Shown(number As BiggerNumberVQZ) As String
		  ' All digits, and never an exponent.
		  If number Is Nil Then
		    Return "Nil"
		  End If
		  Return number.GetStringValue(10, False, 99999, -1, True, ".")
		End Function
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Function InMessage(number As BiggerNumberVQZ) As String
		  ' As messages show a number.
		  Return number.GetStringValue(10, False, 15, -1, True, ".")
		End Function
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfIsZero()
		  #Pragma BreakOnExceptions False
		  Try
		    CheckTrue("BiggerNumberVQZ.IsZero", N("0").IsZero)
		    CheckTrue("BiggerNumberVQZ.IsZero", Not (N("2").IsZero))
		  Catch e As RuntimeException
		    Unexpected("BiggerNumberVQZ.IsZero", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfIsNegative()
		  #Pragma BreakOnExceptions False
		  Try
		    CheckTrue("BiggerNumberVQZ.IsNegative", N("-2").IsNegative)
		    CheckTrue("BiggerNumberVQZ.IsNegative", Not (N("2").IsNegative))
		  Catch e As RuntimeException
		    Unexpected("BiggerNumberVQZ.IsNegative", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfIsNan()
		  #Pragma BreakOnExceptions False
		  Try
		    CheckTrue("BiggerNumberVQZ.IsNan", BiggerNumberVQZ.Nan.IsNan)
		    CheckTrue("BiggerNumberVQZ.IsNan", Not (N("2").IsNan))
		  Catch e As RuntimeException
		    Unexpected("BiggerNumberVQZ.IsNan", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfIsInteger()
		  #Pragma BreakOnExceptions False
		  Try
		    CheckTrue("BiggerNumberVQZ.IsInteger", N("-2").IsInteger)
		    CheckTrue("BiggerNumberVQZ.IsInteger", Not (N("2.5").IsInteger))
		  Catch e As RuntimeException
		    Unexpected("BiggerNumberVQZ.IsInteger", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfIntegerValue()
		  #Pragma BreakOnExceptions False
		  Dim x As BiggerNumberVQZ
		  Try
		    CheckTrue("BiggerNumberVQZ.IntegerValue", N("-123456789").IntegerValue = -123456789)
		    Dim given As Integer = -123456789
		    x = N("1")
		    x.IntegerValue = given
		    CheckText("BiggerNumberVQZ.IntegerValue set", Shown(x), "-123456789")
		    Try
		      Dim got As Integer = N("1e30").IntegerValue
		      MissFailure("BiggerNumberVQZ.IntegerValue of 1e30")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.IntegerValue of 1e30", e, "BigNumberErrorExceptionVQZ", "IntegerValue operation failed with number 1e+30.")
		    End Try
		  Catch e As RuntimeException
		    Unexpected("BiggerNumberVQZ.IntegerValue", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfInt64Value()
		  #Pragma BreakOnExceptions False
		  Dim x As BiggerNumberVQZ
		  Try
		    CheckTrue("BiggerNumberVQZ.Int64Value", N("-9007199254740993").Int64Value = -9007199254740993)
		    Dim given As Int64 = -9007199254740993
		    x = N("1")
		    x.Int64Value = given
		    CheckText("BiggerNumberVQZ.Int64Value set", Shown(x), "-9007199254740993")
		    Try
		      Dim got As Int64 = N("1e30").Int64Value
		      MissFailure("BiggerNumberVQZ.Int64Value of 1e30")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.Int64Value of 1e30", e, "BigNumberErrorExceptionVQZ", "Int64Value operation failed with number 1e+30.")
		    End Try
		  Catch e As RuntimeException
		    Unexpected("BiggerNumberVQZ.Int64Value", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfUInt64Value()
		  #Pragma BreakOnExceptions False
		  Dim x As BiggerNumberVQZ
		  Try
		    CheckTrue("BiggerNumberVQZ.UInt64Value", N("9007199254740993").UInt64Value = 9007199254740993)
		    Dim given As UInt64 = 9007199254740993
		    x = N("1")
		    x.UInt64Value = given
		    CheckText("BiggerNumberVQZ.UInt64Value set", Shown(x), "9007199254740993")
		    Try
		      Dim got As UInt64 = N("1e30").UInt64Value
		      MissFailure("BiggerNumberVQZ.UInt64Value of 1e30")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.UInt64Value of 1e30", e, "BigNumberErrorExceptionVQZ", "UInt64Value operation failed with number 1e+30.")
		    End Try
		  Catch e As RuntimeException
		    Unexpected("BiggerNumberVQZ.UInt64Value", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfDoubleValue()
		  #Pragma BreakOnExceptions False
		  Dim x As BiggerNumberVQZ
		  Try
		    CheckReal("BiggerNumberVQZ.DoubleValue", N("-0.375").DoubleValue, -0.375)
		    x = N("1")
		    x.DoubleValue = 0.1
		    CheckText("BiggerNumberVQZ.DoubleValue set", Shown(x), "0.1000000000000000055511151231257827021181583404541015625")
		    Try
		      Dim got As Double = N("1e400").DoubleValue
		      MissFailure("BiggerNumberVQZ.DoubleValue of 1e400")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.DoubleValue of 1e400", e, "BigNumberErrorExceptionVQZ", "DoubleValue operation failed with number 1e+400.")
		    End Try
		  Catch e As RuntimeException
		    Unexpected("BiggerNumberVQZ.DoubleValue", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfStringValue()
		  #If kPropertyAndMethod Then
		    #Pragma BreakOnExceptions False
		    Dim x As BiggerNumberVQZ
		    Try
		      CheckText("BiggerNumberVQZ.StringValue", N("-12.25").StringValue, "-12.25")
		      CheckText("BiggerNumberVQZ.StringValue", N("1e100").StringValue, "1e+100")
		      x = N("1")
		      x.StringValue = "-2,5 metres"
		      CheckText("BiggerNumberVQZ.StringValue set", Shown(x), "-2.5")
		      Try
		        x = N("2")
		        x.StringValue = "1e" + ManyNines()
		        MissFailure("BiggerNumberVQZ.StringValue set to 1e999...")
		      Catch e As RuntimeException
		        CheckFailed("BiggerNumberVQZ.StringValue set to 1e999...", e, "BigNumberErrorExceptionVQZ", "StringValue operation failed with number 2.")
		      End Try
		    Catch e As RuntimeException
		      Unexpected("BiggerNumberVQZ.StringValue", e)
		    End Try
		  #EndIf
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfStringValueInBase()
		  #If kPropertyAndMethod Then
		    #Pragma BreakOnExceptions False
		    Try
		      CheckText("BiggerNumberVQZ.StringValue(16)", N("-255.5").StringValue(16), "-FF.8")
		      CheckText("BiggerNumberVQZ.StringValue(2)", N("5").StringValue(2), "101")
		      Try
		        Dim digits As String = N("2").StringValue(99)
		        MissFailure("BiggerNumberVQZ.StringValue(99)")
		      Catch e As RuntimeException
		        CheckFailed("BiggerNumberVQZ.StringValue(99)", e, "BigNumberErrorExceptionVQZ", "StringValue operation failed with number 2.")
		      End Try
		    Catch e As RuntimeException
		      Unexpected("BiggerNumberVQZ.StringValue(16)", e)
		    End Try
		  #EndIf
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfStringValueInBaseSet()
		  #If kAssignmentToMethod And kPropertyAndMethod Then
		    #Pragma BreakOnExceptions False
		    Dim x As BiggerNumberVQZ
		    Try
		      x = N("1")
		      x.StringValue(16) = "-FF.8"
		      CheckText("BiggerNumberVQZ.StringValue(16) =", Shown(x), "-255.5")
		      Try
		        x = N("2")
		        x.StringValue(99) = "1"
		        MissFailure("BiggerNumberVQZ.StringValue(99) =")
		      Catch e As RuntimeException
		        CheckFailed("BiggerNumberVQZ.StringValue(99) =", e, "BigNumberErrorExceptionVQZ", "StringValue operation failed with number 2.")
		      End Try
		    Catch e As RuntimeException
		      Unexpected("BiggerNumberVQZ.StringValue(16) =", e)
		    End Try
		  #EndIf
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfCurrencyValue()
		  #Pragma BreakOnExceptions False
		  Dim x As BiggerNumberVQZ
		  Try
		    Dim amount As Currency = 12.3456
		    CheckTrue("BiggerNumberVQZ.CurrencyValue", N("12.34556").CurrencyValue = amount)
		    x = N("1")
		    x.CurrencyValue = amount
		    CheckText("BiggerNumberVQZ.CurrencyValue set", x.GetStringValue(10, False, 15, 40, True, "."), "12.3456")
		    Try
		      Dim got As Currency = N("1e30").CurrencyValue
		      MissFailure("BiggerNumberVQZ.CurrencyValue of 1e30")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.CurrencyValue of 1e30", e, "BigNumberErrorExceptionVQZ", "CurrencyValue operation failed.")
		    End Try
		  Catch e As RuntimeException
		    Unexpected("BiggerNumberVQZ.CurrencyValue", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfVariantValue()
		  #Pragma BreakOnExceptions False
		  Dim x As BiggerNumberVQZ
		  Try
		    Dim got As Variant = N("-5").VariantValue
		    CheckInteger("BiggerNumberVQZ.VariantValue", got.IntegerValue, -5)
		    got = N("2.75").VariantValue
		    CheckText("BiggerNumberVQZ.VariantValue", got.StringValue, "2.75")
		    x = N("1")
		    x.VariantValue = got
		    CheckText("BiggerNumberVQZ.VariantValue set", Shown(x), "2.75")
		    Try
		      x.VariantValue = New MemoryBlock(4)
		      MissFailure("BiggerNumberVQZ.VariantValue set to a MemoryBlock")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.VariantValue set to a MemoryBlock", e, "UnsupportedOperationException", "Conversion not supported.")
		    End Try
		    Try
		      x.VariantValue = "1e" + ManyNines()
		      MissFailure("BiggerNumberVQZ.VariantValue set to 1e999...")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.VariantValue set to 1e999...", e, "BigNumberErrorExceptionVQZ", "StringValue operation failed with number 0.")
		    End Try
		  Catch e As RuntimeException
		    Unexpected("BiggerNumberVQZ.VariantValue", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfDataMantissa()
		  #Pragma BreakOnExceptions False
		  Dim x As BiggerNumberVQZ
		  Try
		    Dim size As String = Str(N("1").DataMantissa.Size)
		    Dim block As MemoryBlock = N("12.5").DataMantissa
		    x = BiggerNumberVQZ.NumberWithString("-7")
		    x.DataMantissa = block
		    CheckText("BiggerNumberVQZ.DataMantissa", HexOf(x.DataMantissa), HexOf(block))
		    Try
		      x.DataMantissa = New MemoryBlock(3)
		      MissFailure("BiggerNumberVQZ.DataMantissa too small")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.DataMantissa too small", e, "OutOfBoundsException", "The parameter MemoryBlock.Size to method DataMantissa is too small. Range is " + size + " to " + size + ", but value is 3.")
		    End Try
		    Try
		      x.DataMantissa = New MemoryBlock(999)
		      MissFailure("BiggerNumberVQZ.DataMantissa too big")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.DataMantissa too big", e, "OutOfBoundsException", "The parameter MemoryBlock.Size to method DataMantissa is too big. Range is " + size + " to " + size + ", but value is 999.")
		    End Try
		    Try
		      Dim noBlock As MemoryBlock
		      x.DataMantissa = noBlock
		      MissFailure("BiggerNumberVQZ.DataMantissa Nil")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.DataMantissa Nil", e, "NilObjectException", "MemoryBlock is nil")
		    End Try
		  Catch e As RuntimeException
		    Unexpected("BiggerNumberVQZ.DataMantissa", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfDataExponent()
		  #Pragma BreakOnExceptions False
		  Dim x As BiggerNumberVQZ
		  Try
		    Dim size As String = Str(N("1").DataExponent.Size)
		    Dim block As MemoryBlock = N("12.5").DataExponent
		    x = BiggerNumberVQZ.NumberWithString("-7")
		    x.DataExponent = block
		    CheckText("BiggerNumberVQZ.DataExponent", HexOf(x.DataExponent), HexOf(block))
		    Try
		      x.DataExponent = New MemoryBlock(3)
		      MissFailure("BiggerNumberVQZ.DataExponent too small")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.DataExponent too small", e, "OutOfBoundsException", "The parameter MemoryBlock.Size to method DataMantissa is too small. Range is " + size + " to " + size + ", but value is 3.")
		    End Try
		    Try
		      x.DataExponent = New MemoryBlock(999)
		      MissFailure("BiggerNumberVQZ.DataExponent too big")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.DataExponent too big", e, "OutOfBoundsException", "The parameter MemoryBlock.Size to method DataMantissa is too big. Range is " + size + " to " + size + ", but value is 999.")
		    End Try
		    Try
		      Dim noBlock As MemoryBlock
		      x.DataExponent = noBlock
		      MissFailure("BiggerNumberVQZ.DataExponent Nil")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.DataExponent Nil", e, "NilObjectException", "MemoryBlock is nil")
		    End Try
		  Catch e As RuntimeException
		    Unexpected("BiggerNumberVQZ.DataExponent", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfDataFlags()
		  #Pragma BreakOnExceptions False
		  Dim x As BiggerNumberVQZ
		  Try
		    CheckInteger("BiggerNumberVQZ.DataFlags", N("-2").DataFlags, 128)
		    CheckInteger("BiggerNumberVQZ.DataFlags", N("0").DataFlags, 32)
		    CheckInteger("BiggerNumberVQZ.DataFlags", BiggerNumberVQZ.Nan.DataFlags, 96)
		    x = BiggerNumberVQZ.NumberWithString("2.5")
		    x.DataFlags = 128
		    CheckText("BiggerNumberVQZ.DataFlags set", Shown(x), "-2.5")
		  Catch e As RuntimeException
		    Unexpected("BiggerNumberVQZ.DataFlags", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfDebugging()
		  #If kHiddenMembers Then
		    #Pragma BreakOnExceptions False
		    Try
		      Dim before As Boolean = BiggerNumberVQZ.Debugging
		      BiggerNumberVQZ.Debugging = True
		      CheckTrue("BiggerNumberVQZ.Debugging", BiggerNumberVQZ.Debugging)
		      BiggerNumberVQZ.Debugging = False
		      CheckTrue("BiggerNumberVQZ.Debugging", Not (BiggerNumberVQZ.Debugging))
		      BiggerNumberVQZ.Debugging = before
		    Catch e As RuntimeException
		      Unexpected("BiggerNumberVQZ.Debugging", e)
		    End Try
		  #EndIf
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfLibTypeStr()
		  #If kHiddenMembers Then
		    #Pragma BreakOnExceptions False
		    Try
		      CheckText("BiggerNumberVQZ.LibTypeStr", BiggerNumberVQZ.LibTypeStr, "no_asm_32")
		    Catch e As RuntimeException
		      Unexpected("BiggerNumberVQZ.LibTypeStr", e)
		    End Try
		  #EndIf
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfGetStringValue()
		  #Pragma BreakOnExceptions False
		  Try
		    CheckText("BiggerNumberVQZ.GetStringValue", N("255.5").GetStringValue(16, False, 15, -1, True, "."), "FF.8")
		    CheckText("BiggerNumberVQZ.GetStringValue", N("1234.5").GetStringValue(10, True, 15, -1, True, "."), "1.2345e+3")
		    CheckText("BiggerNumberVQZ.GetStringValue", N("1234.5").GetStringValue(10, False, 2, -1, True, "."), "1.2345e+3")
		    CheckText("BiggerNumberVQZ.GetStringValue", N("3.14159").GetStringValue(10, False, 15, 2, True, "."), "3.14")
		    CheckText("BiggerNumberVQZ.GetStringValue", N("5").GetStringValue(10, False, 15, 2, False, "."), "5.00")
		    CheckText("BiggerNumberVQZ.GetStringValue", N("2.5").GetStringValue(10, False, 15, -1, True, ","), "2,5")
		    Try
		      Dim digits As String = N("2").GetStringValue(99, False, 15, -1, True, ".")
		      MissFailure("BiggerNumberVQZ.GetStringValue(99)")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.GetStringValue(99)", e, "BigNumberErrorExceptionVQZ", "DoubleValue operation failed with number 2.")
		    End Try
		  Catch e As RuntimeException
		    Unexpected("BiggerNumberVQZ.GetStringValue", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfSetStringValue()
		  #Pragma BreakOnExceptions False
		  Dim x As BiggerNumberVQZ
		  Try
		    x = N("1")
		    Dim rest As String
		    Dim wasRead As Boolean
		    x.SetStringValue("-ff.8 hours", 16, rest, wasRead)
		    CheckText("BiggerNumberVQZ.SetStringValue", Shown(x), "-255.5")
		    CheckText("BiggerNumberVQZ.SetStringValue", rest, " hours")
		    CheckTrue("BiggerNumberVQZ.SetStringValue", wasRead)
		    Try
		      x = N("2")
		      x.SetStringValue("1e" + ManyNines(), 10, rest, wasRead)
		      MissFailure("BiggerNumberVQZ.SetStringValue of 1e999...")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.SetStringValue of 1e999...", e, "BigNumberErrorExceptionVQZ", "SetStringValue operation failed with number 2.")
		    End Try
		  Catch e As RuntimeException
		    Unexpected("BiggerNumberVQZ.SetStringValue", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfCeil()
		  #Pragma BreakOnExceptions False
		  Dim x As BiggerNumberVQZ
		  Try
		    CheckText("BiggerNumberVQZ.Ceil", Shown(N("-2.5").Ceil), "-2")
		    CheckText("BiggerNumberVQZ.Ceil", Shown(N("2.25").Ceil), "3")
		    Try
		      x = BiggerNumberVQZ.Nan.Ceil
		      MissFailure("BiggerNumberVQZ.Ceil of BiggerNumberVQZ.Nan")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.Ceil of BiggerNumberVQZ.Nan", e, "BigNumberErrorExceptionVQZ", "Ceil operation failed with number NaN.")
		    End Try
		  Catch e As RuntimeException
		    Unexpected("BiggerNumberVQZ.Ceil", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfFloor()
		  #Pragma BreakOnExceptions False
		  Dim x As BiggerNumberVQZ
		  Try
		    CheckText("BiggerNumberVQZ.Floor", Shown(N("-2.5").Floor), "-3")
		    CheckText("BiggerNumberVQZ.Floor", Shown(N("2.75").Floor), "2")
		    Try
		      x = BiggerNumberVQZ.Nan.Floor
		      MissFailure("BiggerNumberVQZ.Floor of BiggerNumberVQZ.Nan")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.Floor of BiggerNumberVQZ.Nan", e, "BigNumberErrorExceptionVQZ", "Floor operation failed with number NaN.")
		    End Try
		  Catch e As RuntimeException
		    Unexpected("BiggerNumberVQZ.Floor", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfRound()
		  #Pragma BreakOnExceptions False
		  Dim x As BiggerNumberVQZ
		  Try
		    CheckText("BiggerNumberVQZ.Round", Shown(N("2.5").Round), "3")
		    CheckText("BiggerNumberVQZ.Round", Shown(N("-2.5").Round), "-3")
		    CheckText("BiggerNumberVQZ.Round", Shown(N("2.25").Round), "2")
		    Try
		      x = BiggerNumberVQZ.Nan.Round
		      MissFailure("BiggerNumberVQZ.Round of BiggerNumberVQZ.Nan")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.Round of BiggerNumberVQZ.Nan", e, "BigNumberErrorExceptionVQZ", "Round operation failed with number NaN.")
		    End Try
		  Catch e As RuntimeException
		    Unexpected("BiggerNumberVQZ.Round", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfSkipFraction()
		  #Pragma BreakOnExceptions False
		  Try
		    CheckText("BiggerNumberVQZ.SkipFraction", Shown(N("-2.75").SkipFraction), "-2")
		  Catch e As RuntimeException
		    Unexpected("BiggerNumberVQZ.SkipFraction", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfFrac()
		  #Pragma BreakOnExceptions False
		  Try
		    CheckText("BiggerNumberVQZ.Frac", Shown(N("-2.75").Frac), "-0.75")
		  Catch e As RuntimeException
		    Unexpected("BiggerNumberVQZ.Frac", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfEquals()
		  #Pragma BreakOnExceptions False
		  Dim none As BiggerNumberVQZ
		  Try
		    CheckTrue("BiggerNumberVQZ.Equals", N("2.5").Equals(N("2.50")))
		    CheckTrue("BiggerNumberVQZ.Equals", Not (N("2.5").Equals(N("-2.5"))))
		    CheckTrue("BiggerNumberVQZ.Equals", Not (N("2.5").Equals(none)))
		  Catch e As RuntimeException
		    Unexpected("BiggerNumberVQZ.Equals", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfSqrt()
		  #Pragma BreakOnExceptions False
		  Dim x As BiggerNumberVQZ
		  Try
		    CheckText("BiggerNumberVQZ.Sqrt", Shown(N("6.25").Sqrt), "2.5")
		    x = N("2").Sqrt
		    CheckText("BiggerNumberVQZ.Sqrt", x.GetStringValue(10, False, 99999, 600, True, "."), "1.414213562373095048801688724209698078569671875376948073176679737990732478462107038850387534327641572735013846230912297024924836055850737212644121497099935831413222665927505592755799950501152782060571470109559971605970274534596862014728517418640889198609552329230484308714321450839762603627995251407989687253396546331808829640620615258352395054745750287759961729835575220337531857011354374603408498847160386899970699004815030544027790316454247823068492936918621580578463111596668713013015618568987237235288509264861249497715421833420428568606014682472077143585487415565706967765372022648544701585880162")
		    CheckBytes("BiggerNumberVQZ.Sqrt", x.DataMantissa, "E1E333E6A5607C4D3BA33ECA7B8FCF5F237095925E7846C205287F7941CEACF980F7B1D30F17FEFD82B8AC3F764A4FD2B2F3F5AF2E8A831833DCF7A2DEBDFCC1C281AAF74162A0DE071322CA3FBEA1F6BF1EDA7B9F5E2A332F3532FE01DC0401C736826F1B34CFB851B628D5BCDA64420C3EC9EB2CA0D3F4FD0EFDD8B64A39814ACA409089A0A4EA2E586E830F122FF54DC8F33143632ACBDCE9B78BA3A8D5C6334E7C2F72BC0A468A45881691BCB1CA7B33BC11609C05534E1FAF42872E20D26827FA3D368704784A7B9C435EA8740F39DB83DC6FFEB1A8C3A2B83A0483FC4A1599338385AC17ED4CA83B89BA606F1D9FBE4A75B3897D598464DEF933F304B5")
		    Try
		      x = N("-1").Sqrt
		      MissFailure("BiggerNumberVQZ.Sqrt of N('-1')")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.Sqrt of N('-1')", e, "BigNumberErrorExceptionVQZ", "Sqrt operation failed with number -1.")
		    End Try
		    Try
		      x = BiggerNumberVQZ.Nan.Sqrt
		      MissFailure("BiggerNumberVQZ.Sqrt of BiggerNumberVQZ.Nan")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.Sqrt of BiggerNumberVQZ.Nan", e, "BigNumberErrorExceptionVQZ", "Sqrt operation failed with number NaN.")
		    End Try
		  Catch e As RuntimeException
		    Unexpected("BiggerNumberVQZ.Sqrt", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfPow()
		  #Pragma BreakOnExceptions False
		  Dim x As BiggerNumberVQZ
		  Dim none As BiggerNumberVQZ
		  Try
		    CheckText("BiggerNumberVQZ.Pow", Shown(N("-1.5").Pow(N("3"))), "-3.375")
		    x = N("2").Pow(N("0.25"))
		    CheckText("BiggerNumberVQZ.Pow", x.GetStringValue(10, False, 99999, 600, True, "."), "1.189207115002721066717499970560475915292972092463817413019002224719466668226917159870781344538137673716037394774769213186063726361789847756785360862538017775070151511403557092273162342868889924175446071908710503849972559105009837104492015484573567458090483994093090003497795908038489658843005041198717009379079820984625235373981281740818113780828552014842210060958932412445931035057519196302941383263474280279824408022800821729272058615366639370400238207308545653067447714859888733457627186783811654704587276127111269988678434930175861424970170054131455143891998743766762178516178317798730704823631873")
		    CheckBytes("BiggerNumberVQZ.Pow", x.DataMantissa, "108380C90EA313E4EB11989AFE9C1B91B48261930FB24CCC7DA175E774A676859794256B928E835AE51453CFE2B874187A87111D26CB89C25394206F893B4579AD47CB648C951441EC121581A4036A1BE2C3AC67E66BA86D55AAB5785009DDCE77C94C846401CA1FC4777FE0498FADF79A57CCD9EDB0DA1C9995F439C9BEEB701D1183668AFA9C5BAFB74D98A24FE42A5CCA3E34CF8FF0D60CDC9EDC4E594209401F247EA2E1A219E5B754FB1A7BE801FFC98EB788829C884B8A86D6405A45F4DF7A456F3E837A5EE29AD207247BCD64BDDB900CEE949F4EA85002384DC347BE6FBBA7EFCB658BD77881FA141B9A135EF6F6422E1823AD466FA9B88D51F03798")
		    Try
		      x = N("-2").Pow(N("0.5"))
		      MissFailure("BiggerNumberVQZ.Pow of N('-2') and N('0.5')")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.Pow of N('-2') and N('0.5')", e, "BigNumberErrorExceptionVQZ", "Pow operation failed with numbers -2 and 0.5.")
		    End Try
		    Try
		      x = BiggerNumberVQZ.Nan.Pow(N("3"))
		      MissFailure("BiggerNumberVQZ.Pow of BiggerNumberVQZ.Nan and N('3')")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.Pow of BiggerNumberVQZ.Nan and N('3')", e, "BigNumberErrorExceptionVQZ", "Pow operation failed with numbers NaN and 3.")
		    End Try
		    Try
		      x = N("3").Pow(BiggerNumberVQZ.Nan)
		      MissFailure("BiggerNumberVQZ.Pow of N('3') and BiggerNumberVQZ.Nan")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.Pow of N('3') and BiggerNumberVQZ.Nan", e, "BigNumberErrorExceptionVQZ", "Pow operation failed with numbers 3 and NaN.")
		    End Try
		    Try
		      x = N("3").Pow(none)
		      MissFailure("BiggerNumberVQZ.Pow of N('3') and none")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.Pow of N('3') and none", e, "BigNumberErrorExceptionVQZ", "Pow operation failed with numbers 3 and nil.")
		    End Try
		  Catch e As RuntimeException
		    Unexpected("BiggerNumberVQZ.Pow", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfModulate2()
		  #Pragma BreakOnExceptions False
		  Try
		    CheckInteger("BiggerNumberVQZ.Modulate2", N("7").Modulate2, 1)
		    CheckInteger("BiggerNumberVQZ.Modulate2", N("8").Modulate2, 0)
		  Catch e As RuntimeException
		    Unexpected("BiggerNumberVQZ.Modulate2", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfModulate()
		  #Pragma BreakOnExceptions False
		  Dim x As BiggerNumberVQZ
		  Dim none As BiggerNumberVQZ
		  Try
		    CheckText("BiggerNumberVQZ.Modulate", Shown(N("7.5").Modulate(N("2"))), "1.5")
		    CheckText("BiggerNumberVQZ.Modulate", Shown(N("-7").Modulate(N("3"))), "-1")
		    Try
		      x = N("7").Modulate(N("0"))
		      MissFailure("BiggerNumberVQZ.Modulate of N('7') and N('0')")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.Modulate of N('7') and N('0')", e, "BigNumberErrorExceptionVQZ", "Mod operation failed with numbers 7 and 0.")
		    End Try
		    Try
		      x = BiggerNumberVQZ.Nan.Modulate(N("3"))
		      MissFailure("BiggerNumberVQZ.Modulate of BiggerNumberVQZ.Nan and N('3')")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.Modulate of BiggerNumberVQZ.Nan and N('3')", e, "BigNumberErrorExceptionVQZ", "Mod operation failed with numbers NaN and 3.")
		    End Try
		    Try
		      x = N("3").Modulate(BiggerNumberVQZ.Nan)
		      MissFailure("BiggerNumberVQZ.Modulate of N('3') and BiggerNumberVQZ.Nan")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.Modulate of N('3') and BiggerNumberVQZ.Nan", e, "BigNumberErrorExceptionVQZ", "Mod operation failed with numbers 3 and NaN.")
		    End Try
		    Try
		      x = N("3").Modulate(none)
		      MissFailure("BiggerNumberVQZ.Modulate of N('3') and none")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.Modulate of N('3') and none", e, "BigNumberErrorExceptionVQZ", "Mod operation failed with numbers 3 and nil.")
		    End Try
		  Catch e As RuntimeException
		    Unexpected("BiggerNumberVQZ.Modulate", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfDivide()
		  #Pragma BreakOnExceptions False
		  Dim x As BiggerNumberVQZ
		  Dim none As BiggerNumberVQZ
		  Try
		    CheckText("BiggerNumberVQZ.Divide", Shown(N("-7").Divide(N("8"), True)), "-0.875")
		    x = N("2").Divide(N("3"), True)
		    CheckText("BiggerNumberVQZ.Divide 2 / 3", x.GetStringValue(10, False, 99999, 600, True, "."), "0.666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666667")
		    CheckBytes("BiggerNumberVQZ.Divide 2 / 3", x.DataMantissa, "AAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAA")
		    x = N("2").Divide(N("3"), False)
		    CheckText("BiggerNumberVQZ.Divide 2 / 3, cut", x.GetStringValue(10, False, 99999, 600, True, "."), "0.666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666666667")
		    CheckBytes("BiggerNumberVQZ.Divide 2 / 3, cut", x.DataMantissa, "AAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAA")
		    Try
		      x = N("7").Divide(N("0"), True)
		      MissFailure("BiggerNumberVQZ.Divide of N('7') and N('0')")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.Divide of N('7') and N('0')", e, "BigNumberErrorExceptionVQZ", "Div operation failed with numbers 7 and 0.")
		    End Try
		    Try
		      x = BiggerNumberVQZ.Nan.Divide(N("3"), True)
		      MissFailure("BiggerNumberVQZ.Divide of BiggerNumberVQZ.Nan and N('3')")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.Divide of BiggerNumberVQZ.Nan and N('3')", e, "BigNumberErrorExceptionVQZ", "Div operation failed with numbers NaN and 3.")
		    End Try
		    Try
		      x = N("3").Divide(BiggerNumberVQZ.Nan, True)
		      MissFailure("BiggerNumberVQZ.Divide of N('3') and BiggerNumberVQZ.Nan")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.Divide of N('3') and BiggerNumberVQZ.Nan", e, "BigNumberErrorExceptionVQZ", "Div operation failed with numbers 3 and NaN.")
		    End Try
		    Try
		      x = N("3").Divide(none, True)
		      MissFailure("BiggerNumberVQZ.Divide of N('3') and none")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.Divide of N('3') and none", e, "BigNumberErrorExceptionVQZ", "Div operation failed with numbers 3 and nil.")
		    End Try
		  Catch e As RuntimeException
		    Unexpected("BiggerNumberVQZ.Divide", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfMultiply()
		  #Pragma BreakOnExceptions False
		  Dim x As BiggerNumberVQZ
		  Dim none As BiggerNumberVQZ
		  Try
		    CheckText("BiggerNumberVQZ.Multiply", Shown(N("-2.5").Multiply(N("1.5"), True)), "-3.75")
		    Try
		      x = BiggerNumberVQZ.Max.Multiply(N("2"), True)
		      MissFailure("BiggerNumberVQZ.Multiply of BiggerNumberVQZ.Max and N('2')")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.Multiply of BiggerNumberVQZ.Max and N('2')", e, "BigNumberErrorExceptionVQZ", "Mul operation failed with numbers " + InMessage(BiggerNumberVQZ.Max) + " and 2.")
		    End Try
		    Try
		      x = BiggerNumberVQZ.Nan.Multiply(N("3"), True)
		      MissFailure("BiggerNumberVQZ.Multiply of BiggerNumberVQZ.Nan and N('3')")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.Multiply of BiggerNumberVQZ.Nan and N('3')", e, "BigNumberErrorExceptionVQZ", "Mul operation failed with numbers NaN and 3.")
		    End Try
		    Try
		      x = N("3").Multiply(BiggerNumberVQZ.Nan, True)
		      MissFailure("BiggerNumberVQZ.Multiply of N('3') and BiggerNumberVQZ.Nan")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.Multiply of N('3') and BiggerNumberVQZ.Nan", e, "BigNumberErrorExceptionVQZ", "Mul operation failed with numbers 3 and NaN.")
		    End Try
		    Try
		      x = N("3").Multiply(none, True)
		      MissFailure("BiggerNumberVQZ.Multiply of N('3') and none")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.Multiply of N('3') and none", e, "BigNumberErrorExceptionVQZ", "Mul operation failed with numbers 3 and nil.")
		    End Try
		  Catch e As RuntimeException
		    Unexpected("BiggerNumberVQZ.Multiply", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfMultiplyByInteger()
		  #If kConstructorOfValue Then
		    #Pragma BreakOnExceptions False
		    Dim x As BiggerNumberVQZ
		    Try
		      Dim factor As Integer = -4
		      CheckText("BiggerNumberVQZ.Multiply(Integer)", Shown(N("2.5").Multiply(factor)), "-10")
		      Try
		        x = BiggerNumberVQZ.Max.Multiply(factor)
		        MissFailure("BiggerNumberVQZ.Multiply(Integer) of Max")
		      Catch e As RuntimeException
		        CheckFailed("BiggerNumberVQZ.Multiply(Integer) of Max", e, "BigNumberErrorExceptionVQZ", "Multiply operation failed with numbers NaN and -4.")
		      End Try
		    Catch e As RuntimeException
		      Unexpected("BiggerNumberVQZ.Multiply(Integer)", e)
		    End Try
		  #EndIf
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfMultiplyByUInt32()
		  #If kConstructorOfValue Then
		    #Pragma BreakOnExceptions False
		    Dim x As BiggerNumberVQZ
		    Try
		      Dim factor As UInt32 = 4294967295
		      CheckText("BiggerNumberVQZ.Multiply(UInt32)", Shown(N("2").Multiply(factor)), "8589934590")
		      Try
		        x = BiggerNumberVQZ.Max.Multiply(factor)
		        MissFailure("BiggerNumberVQZ.Multiply(UInt32) of Max")
		      Catch e As RuntimeException
		        CheckFailed("BiggerNumberVQZ.Multiply(UInt32) of Max", e, "BigNumberErrorExceptionVQZ", "Multiply operation failed with numbers NaN and 4294967295.")
		      End Try
		    Catch e As RuntimeException
		      Unexpected("BiggerNumberVQZ.Multiply(UInt32)", e)
		    End Try
		  #EndIf
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfBitXOr()
		  #Pragma BreakOnExceptions False
		  Dim x As BiggerNumberVQZ
		  Dim none As BiggerNumberVQZ
		  Try
		    CheckText("BiggerNumberVQZ.BitXOr", Shown(N("12").BitXOr(N("10"))), "6")
		    Try
		      x = N("-1").BitXOr(N("1"))
		      MissFailure("BiggerNumberVQZ.BitXOr of N('-1') and N('1')")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.BitXOr of N('-1') and N('1')", e, "BigNumberErrorExceptionVQZ", "BitwiseXor operation failed with numbers -1 and 1.")
		    End Try
		    Try
		      x = BiggerNumberVQZ.Nan.BitXOr(N("3"))
		      MissFailure("BiggerNumberVQZ.BitXOr of BiggerNumberVQZ.Nan and N('3')")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.BitXOr of BiggerNumberVQZ.Nan and N('3')", e, "BigNumberErrorExceptionVQZ", "BitwiseXor operation failed with numbers NaN and 3.")
		    End Try
		    Try
		      x = N("3").BitXOr(BiggerNumberVQZ.Nan)
		      MissFailure("BiggerNumberVQZ.BitXOr of N('3') and BiggerNumberVQZ.Nan")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.BitXOr of N('3') and BiggerNumberVQZ.Nan", e, "BigNumberErrorExceptionVQZ", "BitwiseXor operation failed with numbers 3 and NaN.")
		    End Try
		    Try
		      x = N("3").BitXOr(none)
		      MissFailure("BiggerNumberVQZ.BitXOr of N('3') and none")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.BitXOr of N('3') and none", e, "BigNumberErrorExceptionVQZ", "BitwiseXor operation failed with numbers 3 and nil.")
		    End Try
		  Catch e As RuntimeException
		    Unexpected("BiggerNumberVQZ.BitXOr", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfBitOr()
		  #Pragma BreakOnExceptions False
		  Dim x As BiggerNumberVQZ
		  Dim none As BiggerNumberVQZ
		  Try
		    CheckText("BiggerNumberVQZ.BitOr", Shown(N("12").BitOr(N("10"))), "14")
		    Try
		      x = N("-1").BitOr(N("1"))
		      MissFailure("BiggerNumberVQZ.BitOr of N('-1') and N('1')")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.BitOr of N('-1') and N('1')", e, "BigNumberErrorExceptionVQZ", "BitwiseOr operation failed with numbers -1 and 1.")
		    End Try
		    Try
		      x = BiggerNumberVQZ.Nan.BitOr(N("3"))
		      MissFailure("BiggerNumberVQZ.BitOr of BiggerNumberVQZ.Nan and N('3')")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.BitOr of BiggerNumberVQZ.Nan and N('3')", e, "BigNumberErrorExceptionVQZ", "BitwiseOr operation failed with numbers NaN and 3.")
		    End Try
		    Try
		      x = N("3").BitOr(BiggerNumberVQZ.Nan)
		      MissFailure("BiggerNumberVQZ.BitOr of N('3') and BiggerNumberVQZ.Nan")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.BitOr of N('3') and BiggerNumberVQZ.Nan", e, "BigNumberErrorExceptionVQZ", "BitwiseOr operation failed with numbers 3 and NaN.")
		    End Try
		    Try
		      x = N("3").BitOr(none)
		      MissFailure("BiggerNumberVQZ.BitOr of N('3') and none")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.BitOr of N('3') and none", e, "BigNumberErrorExceptionVQZ", "BitwiseOr operation failed with numbers 3 and nil.")
		    End Try
		  Catch e As RuntimeException
		    Unexpected("BiggerNumberVQZ.BitOr", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfBitAnd()
		  #Pragma BreakOnExceptions False
		  Dim x As BiggerNumberVQZ
		  Dim none As BiggerNumberVQZ
		  Try
		    CheckText("BiggerNumberVQZ.BitAnd", Shown(N("12").BitAnd(N("10"))), "8")
		    Try
		      x = N("-1").BitAnd(N("1"))
		      MissFailure("BiggerNumberVQZ.BitAnd of N('-1') and N('1')")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.BitAnd of N('-1') and N('1')", e, "BigNumberErrorExceptionVQZ", "BitwiseAnd operation failed with numbers -1 and 1.")
		    End Try
		    Try
		      x = BiggerNumberVQZ.Nan.BitAnd(N("3"))
		      MissFailure("BiggerNumberVQZ.BitAnd of BiggerNumberVQZ.Nan and N('3')")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.BitAnd of BiggerNumberVQZ.Nan and N('3')", e, "BigNumberErrorExceptionVQZ", "BitwiseAnd operation failed with numbers NaN and 3.")
		    End Try
		    Try
		      x = N("3").BitAnd(BiggerNumberVQZ.Nan)
		      MissFailure("BiggerNumberVQZ.BitAnd of N('3') and BiggerNumberVQZ.Nan")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.BitAnd of N('3') and BiggerNumberVQZ.Nan", e, "BigNumberErrorExceptionVQZ", "BitwiseAnd operation failed with numbers 3 and NaN.")
		    End Try
		    Try
		      x = N("3").BitAnd(none)
		      MissFailure("BiggerNumberVQZ.BitAnd of N('3') and none")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.BitAnd of N('3') and none", e, "BigNumberErrorExceptionVQZ", "BitwiseAnd operation failed with numbers 3 and nil.")
		    End Try
		  Catch e As RuntimeException
		    Unexpected("BiggerNumberVQZ.BitAnd", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfSubtract()
		  #Pragma BreakOnExceptions False
		  Dim x As BiggerNumberVQZ
		  Dim none As BiggerNumberVQZ
		  Try
		    CheckText("BiggerNumberVQZ.Subtract", Shown(N("2.5").Subtract(N("4"), True)), "-1.5")
		    Try
		      x = BiggerNumberVQZ.Min.Subtract(BiggerNumberVQZ.Max, True)
		      MissFailure("BiggerNumberVQZ.Subtract of BiggerNumberVQZ.Min and BiggerNumberVQZ.Max")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.Subtract of BiggerNumberVQZ.Min and BiggerNumberVQZ.Max", e, "BigNumberErrorExceptionVQZ", "Sub operation failed with numbers " + InMessage(BiggerNumberVQZ.Min) + " and " + InMessage(BiggerNumberVQZ.Max) + ".")
		    End Try
		    Try
		      x = BiggerNumberVQZ.Nan.Subtract(N("3"), True)
		      MissFailure("BiggerNumberVQZ.Subtract of BiggerNumberVQZ.Nan and N('3')")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.Subtract of BiggerNumberVQZ.Nan and N('3')", e, "BigNumberErrorExceptionVQZ", "Sub operation failed with numbers NaN and 3.")
		    End Try
		    Try
		      x = N("3").Subtract(BiggerNumberVQZ.Nan, True)
		      MissFailure("BiggerNumberVQZ.Subtract of N('3') and BiggerNumberVQZ.Nan")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.Subtract of N('3') and BiggerNumberVQZ.Nan", e, "BigNumberErrorExceptionVQZ", "Sub operation failed with numbers 3 and NaN.")
		    End Try
		    Try
		      x = N("3").Subtract(none, True)
		      MissFailure("BiggerNumberVQZ.Subtract of N('3') and none")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.Subtract of N('3') and none", e, "BigNumberErrorExceptionVQZ", "Sub operation failed with numbers 3 and nil.")
		    End Try
		  Catch e As RuntimeException
		    Unexpected("BiggerNumberVQZ.Subtract", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfAdd()
		  #Pragma BreakOnExceptions False
		  Dim x As BiggerNumberVQZ
		  Dim none As BiggerNumberVQZ
		  Try
		    CheckText("BiggerNumberVQZ.Add", Shown(N("2.5").Add(N("-4"), True)), "-1.5")
		    CheckText("BiggerNumberVQZ.Add", Shown(N("2").Pow(N("200")).Add(N("1"), True)), "1606938044258990275541962092341162602522202993782792835301377")
		    Try
		      x = BiggerNumberVQZ.Max.Add(BiggerNumberVQZ.Max, True)
		      MissFailure("BiggerNumberVQZ.Add of BiggerNumberVQZ.Max and BiggerNumberVQZ.Max")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.Add of BiggerNumberVQZ.Max and BiggerNumberVQZ.Max", e, "BigNumberErrorExceptionVQZ", "Add operation failed with numbers " + InMessage(BiggerNumberVQZ.Max) + " and " + InMessage(BiggerNumberVQZ.Max) + ".")
		    End Try
		    Try
		      x = BiggerNumberVQZ.Nan.Add(N("3"), True)
		      MissFailure("BiggerNumberVQZ.Add of BiggerNumberVQZ.Nan and N('3')")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.Add of BiggerNumberVQZ.Nan and N('3')", e, "BigNumberErrorExceptionVQZ", "Add operation failed with numbers NaN and 3.")
		    End Try
		    Try
		      x = N("3").Add(BiggerNumberVQZ.Nan, True)
		      MissFailure("BiggerNumberVQZ.Add of N('3') and BiggerNumberVQZ.Nan")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.Add of N('3') and BiggerNumberVQZ.Nan", e, "BigNumberErrorExceptionVQZ", "Add operation failed with numbers 3 and NaN.")
		    End Try
		    Try
		      x = N("3").Add(none, True)
		      MissFailure("BiggerNumberVQZ.Add of N('3') and none")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.Add of N('3') and none", e, "BigNumberErrorExceptionVQZ", "Add operation failed with numbers 3 and nil.")
		    End Try
		  Catch e As RuntimeException
		    Unexpected("BiggerNumberVQZ.Add", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfAbs()
		  #If kSharedAndInstance Then
		    #Pragma BreakOnExceptions False
		    Try
		      CheckText("BiggerNumberVQZ.Abs", Shown(N("-2.5").Abs), "2.5")
		      CheckText("BiggerNumberVQZ.Abs shared", Shown(BiggerNumberVQZ.Abs(N("-2.5"))), "2.5")
		    Catch e As RuntimeException
		      Unexpected("BiggerNumberVQZ.Abs", e)
		    End Try
		  #EndIf
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfNegate()
		  #Pragma BreakOnExceptions False
		  Try
		    CheckText("BiggerNumberVQZ.Negate", Shown(N("-2.5").Negate), "2.5")
		  Catch e As RuntimeException
		    Unexpected("BiggerNumberVQZ.Negate", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfConstructor()
		  #Pragma BreakOnExceptions False
		  Try
		    CheckText("BiggerNumberVQZ.Constructor", Shown(New BiggerNumberVQZ), "0")
		  Catch e As RuntimeException
		    Unexpected("BiggerNumberVQZ.Constructor", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfConstructorOfString()
		  #If kConstructorOfString Then
		    #Pragma BreakOnExceptions False
		    Dim x As BiggerNumberVQZ
		    Try
		      CheckText("BiggerNumberVQZ.Constructor(String)", Shown(New BiggerNumberVQZ("-12.25")), "-12.25")
		      Try
		        x = New BiggerNumberVQZ("1e" + ManyNines())
		        MissFailure("BiggerNumberVQZ.Constructor(String) of 1e999...")
		      Catch e As RuntimeException
		        CheckFailed("BiggerNumberVQZ.Constructor(String) of 1e999...", e, "BigNumberErrorExceptionVQZ", "Constructor operation failed with number nil.")
		      End Try
		    Catch e As RuntimeException
		      Unexpected("BiggerNumberVQZ.Constructor(String)", e)
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
		      CheckText("BiggerNumberVQZ.Constructor(Int32)", Shown(New BiggerNumberVQZ(narrow)), "-2147483647")
		      Dim wide As Int64 = -9007199254740993
		      CheckText("BiggerNumberVQZ.Constructor(Int64)", Shown(New BiggerNumberVQZ(wide)), "-9007199254740993")
		      Dim narrowUnsigned As UInt32 = 4294967295
		      CheckText("BiggerNumberVQZ.Constructor(UInt32)", Shown(New BiggerNumberVQZ(narrowUnsigned)), "4294967295")
		      Dim wideUnsigned As UInt64 = 9007199254740993
		      CheckText("BiggerNumberVQZ.Constructor(UInt64)", Shown(New BiggerNumberVQZ(wideUnsigned)), "9007199254740993")
		      Dim real As Double = 0.1
		      CheckText("BiggerNumberVQZ.Constructor(Double)", Shown(New BiggerNumberVQZ(real)), "0.1000000000000000055511151231257827021181583404541015625")
		      Dim shortReal As Single = 0.1
		      CheckText("BiggerNumberVQZ.Constructor(Single)", Shown(New BiggerNumberVQZ(shortReal)), "0.100000001490116119384765625")
		      Dim amount As Currency = 12.5
		      CheckText("BiggerNumberVQZ.Constructor(Currency)", Shown(New BiggerNumberVQZ(amount)), "12.5")
		      CheckText("BiggerNumberVQZ.Constructor(other)", Shown(New BiggerNumberVQZ(N("-2.5"))), "-2.5")
		    Catch e As RuntimeException
		      Unexpected("BiggerNumberVQZ.Constructor", e)
		    End Try
		  #EndIf
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfNumberWith()
		  #Pragma BreakOnExceptions False
		  Dim x As BiggerNumberVQZ
		  Try
		    Dim whole As Integer = -5
		    CheckText("BiggerNumberVQZ.NumberWithInteger", Shown(BiggerNumberVQZ.NumberWithInteger(whole)), "-5")
		    Dim narrow As Int32 = -2147483647
		    CheckText("BiggerNumberVQZ.NumberWithInt32", Shown(BiggerNumberVQZ.NumberWithInt32(narrow)), "-2147483647")
		    Dim wide As Int64 = -9007199254740993
		    CheckText("BiggerNumberVQZ.NumberWithInt64", Shown(BiggerNumberVQZ.NumberWithInt64(wide)), "-9007199254740993")
		    Dim narrowUnsigned As UInt32 = 4294967295
		    CheckText("BiggerNumberVQZ.NumberWithUInt32", Shown(BiggerNumberVQZ.NumberWithUInt32(narrowUnsigned)), "4294967295")
		    Dim wideUnsigned As UInt64 = 9007199254740993
		    CheckText("BiggerNumberVQZ.NumberWithUInt64", Shown(BiggerNumberVQZ.NumberWithUInt64(wideUnsigned)), "9007199254740993")
		    Dim real As Double = 0.1
		    CheckText("BiggerNumberVQZ.NumberWithDouble", Shown(BiggerNumberVQZ.NumberWithDouble(real)), "0.1000000000000000055511151231257827021181583404541015625")
		    Dim shortReal As Single = 0.1
		    CheckText("BiggerNumberVQZ.NumberWithSingle", Shown(BiggerNumberVQZ.NumberWithSingle(shortReal)), "0.100000001490116119384765625")
		    Dim amount As Currency = 12.5
		    CheckText("BiggerNumberVQZ.NumberWithCurrency", Shown(BiggerNumberVQZ.NumberWithCurrency(amount)), "12.5")
		    CheckText("BiggerNumberVQZ.NumberWithString", Shown(BiggerNumberVQZ.NumberWithString("-12.25")), "-12.25")
		    Try
		      x = BiggerNumberVQZ.NumberWithString("1e" + ManyNines())
		      MissFailure("BiggerNumberVQZ.NumberWithString of 1e999...")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.NumberWithString of 1e999...", e, "BigNumberErrorExceptionVQZ", "Constructor operation failed.")
		    End Try
		  Catch e As RuntimeException
		    Unexpected("BiggerNumberVQZ.NumberWith", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfNumberWithVariant()
		  #Pragma BreakOnExceptions False
		  Dim x As BiggerNumberVQZ
		  Try
		    Dim held As Variant = "-12.25"
		    CheckText("BiggerNumberVQZ.NumberWithVariant", Shown(BiggerNumberVQZ.NumberWithVariant(held)), "-12.25")
		    held = -5
		    CheckText("BiggerNumberVQZ.NumberWithVariant", Shown(BiggerNumberVQZ.NumberWithVariant(held)), "-5")
		    Try
		      x = BiggerNumberVQZ.NumberWithVariant(New MemoryBlock(4))
		      MissFailure("BiggerNumberVQZ.NumberWithVariant of a MemoryBlock")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.NumberWithVariant of a MemoryBlock", e, "UnsupportedOperationException", "Conversion not supported.")
		    End Try
		    Try
		      x = BiggerNumberVQZ.NumberWithVariant("1e" + ManyNines())
		      MissFailure("BiggerNumberVQZ.NumberWithVariant of 1e999...")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.NumberWithVariant of 1e999...", e, "BigNumberErrorExceptionVQZ", "Constructor operation failed.")
		    End Try
		  Catch e As RuntimeException
		    Unexpected("BiggerNumberVQZ.NumberWithVariant", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfNumberWithUInteger()
		  #If RBVersion >= 2015 Then
		    #Pragma BreakOnExceptions False
		    Try
		      Dim whole As UInteger = 4294967295
		      CheckText("BiggerNumberVQZ.NumberWithUInteger", Shown(BiggerNumberVQZ.NumberWithUInteger(whole)), "4294967295")
		    Catch e As RuntimeException
		      Unexpected("BiggerNumberVQZ.NumberWithUInteger", e)
		    End Try
		  #EndIf
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfConversionIn()
		  #If kConversionIn Then
		    #Pragma BreakOnExceptions False
		    Dim x As BiggerNumberVQZ
		    Try
		      x = "-12.25"
		      CheckText("BiggerNumberVQZ.Operator_Convert(String)", Shown(x), "-12.25")
		      Try
		        x = "1e" + ManyNines()
		        MissFailure("BiggerNumberVQZ.Operator_Convert(String) of 1e999...")
		      Catch e As RuntimeException
		        CheckFailed("BiggerNumberVQZ.Operator_Convert(String) of 1e999...", e, "BigNumberErrorExceptionVQZ", "Constructor operation failed with number nil.")
		      End Try
		    Catch e As RuntimeException
		      Unexpected("BiggerNumberVQZ.Operator_Convert(String)", e)
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
		      CheckText("BiggerNumberVQZ.Operator_Convert", digits, "-12.25")
		    Catch e As RuntimeException
		      Unexpected("BiggerNumberVQZ.Operator_Convert", e)
		    End Try
		  #EndIf
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfOperators()
		  #If kOperatorLeft Then
		    #Pragma BreakOnExceptions False
		    Dim x As BiggerNumberVQZ
		    Dim none As BiggerNumberVQZ
		    Try
		      CheckText("BiggerNumberVQZ.Operator_Add", Shown(N("2.5") + N("4")), "6.5")
		      Try
		        x = BiggerNumberVQZ.Max + BiggerNumberVQZ.Max
		        MissFailure("BiggerNumberVQZ.Operator_Add of BiggerNumberVQZ.Max and BiggerNumberVQZ.Max")
		      Catch e As RuntimeException
		        CheckFailed("BiggerNumberVQZ.Operator_Add of BiggerNumberVQZ.Max and BiggerNumberVQZ.Max", e, "BigNumberErrorExceptionVQZ", "Operator_Add operation failed with numbers " + InMessage(BiggerNumberVQZ.Max) + " and " + InMessage(BiggerNumberVQZ.Max) + ".")
		      End Try
		      Try
		        x = BiggerNumberVQZ.Nan + N("3")
		        MissFailure("BiggerNumberVQZ.Operator_Add of BiggerNumberVQZ.Nan and N('3')")
		      Catch e As RuntimeException
		        CheckFailed("BiggerNumberVQZ.Operator_Add of BiggerNumberVQZ.Nan and N('3')", e, "BigNumberErrorExceptionVQZ", "Operator_Add operation failed with numbers NaN and 3.")
		      End Try
		      Try
		        x = N("3") + BiggerNumberVQZ.Nan
		        MissFailure("BiggerNumberVQZ.Operator_Add of N('3') and BiggerNumberVQZ.Nan")
		      Catch e As RuntimeException
		        CheckFailed("BiggerNumberVQZ.Operator_Add of N('3') and BiggerNumberVQZ.Nan", e, "BigNumberErrorExceptionVQZ", "Operator_Add operation failed with numbers 3 and NaN.")
		      End Try
		      Try
		        x = N("3") + none
		        MissFailure("BiggerNumberVQZ.Operator_Add of N('3') and none")
		      Catch e As RuntimeException
		        CheckFailed("BiggerNumberVQZ.Operator_Add of N('3') and none", e, "BigNumberErrorExceptionVQZ", "Operator_Add operation failed with numbers 3 and nil.")
		      End Try
		      CheckText("BiggerNumberVQZ.Operator_Subtract", Shown(N("2.5") - N("4")), "-1.5")
		      Try
		        x = BiggerNumberVQZ.Min - BiggerNumberVQZ.Max
		        MissFailure("BiggerNumberVQZ.Operator_Subtract of BiggerNumberVQZ.Min and BiggerNumberVQZ.Max")
		      Catch e As RuntimeException
		        CheckFailed("BiggerNumberVQZ.Operator_Subtract of BiggerNumberVQZ.Min and BiggerNumberVQZ.Max", e, "BigNumberErrorExceptionVQZ", "Operator_Subtract operation failed with numbers " + InMessage(BiggerNumberVQZ.Min) + " and " + InMessage(BiggerNumberVQZ.Max) + ".")
		      End Try
		      Try
		        x = BiggerNumberVQZ.Nan - N("3")
		        MissFailure("BiggerNumberVQZ.Operator_Subtract of BiggerNumberVQZ.Nan and N('3')")
		      Catch e As RuntimeException
		        CheckFailed("BiggerNumberVQZ.Operator_Subtract of BiggerNumberVQZ.Nan and N('3')", e, "BigNumberErrorExceptionVQZ", "Operator_Subtract operation failed with numbers NaN and 3.")
		      End Try
		      Try
		        x = N("3") - BiggerNumberVQZ.Nan
		        MissFailure("BiggerNumberVQZ.Operator_Subtract of N('3') and BiggerNumberVQZ.Nan")
		      Catch e As RuntimeException
		        CheckFailed("BiggerNumberVQZ.Operator_Subtract of N('3') and BiggerNumberVQZ.Nan", e, "BigNumberErrorExceptionVQZ", "Operator_Subtract operation failed with numbers 3 and NaN.")
		      End Try
		      Try
		        x = N("3") - none
		        MissFailure("BiggerNumberVQZ.Operator_Subtract of N('3') and none")
		      Catch e As RuntimeException
		        CheckFailed("BiggerNumberVQZ.Operator_Subtract of N('3') and none", e, "BigNumberErrorExceptionVQZ", "Operator_Subtract operation failed with numbers 3 and nil.")
		      End Try
		      CheckText("BiggerNumberVQZ.Operator_Multiply", Shown(N("2.5") * N("-4")), "-10")
		      Try
		        x = BiggerNumberVQZ.Max * N("2")
		        MissFailure("BiggerNumberVQZ.Operator_Multiply of BiggerNumberVQZ.Max and N('2')")
		      Catch e As RuntimeException
		        CheckFailed("BiggerNumberVQZ.Operator_Multiply of BiggerNumberVQZ.Max and N('2')", e, "BigNumberErrorExceptionVQZ", "Operator_Multiply operation failed with numbers " + InMessage(BiggerNumberVQZ.Max) + " and 2.")
		      End Try
		      Try
		        x = BiggerNumberVQZ.Nan * N("3")
		        MissFailure("BiggerNumberVQZ.Operator_Multiply of BiggerNumberVQZ.Nan and N('3')")
		      Catch e As RuntimeException
		        CheckFailed("BiggerNumberVQZ.Operator_Multiply of BiggerNumberVQZ.Nan and N('3')", e, "BigNumberErrorExceptionVQZ", "Operator_Multiply operation failed with numbers NaN and 3.")
		      End Try
		      Try
		        x = N("3") * BiggerNumberVQZ.Nan
		        MissFailure("BiggerNumberVQZ.Operator_Multiply of N('3') and BiggerNumberVQZ.Nan")
		      Catch e As RuntimeException
		        CheckFailed("BiggerNumberVQZ.Operator_Multiply of N('3') and BiggerNumberVQZ.Nan", e, "BigNumberErrorExceptionVQZ", "Operator_Multiply operation failed with numbers 3 and NaN.")
		      End Try
		      Try
		        x = N("3") * none
		        MissFailure("BiggerNumberVQZ.Operator_Multiply of N('3') and none")
		      Catch e As RuntimeException
		        CheckFailed("BiggerNumberVQZ.Operator_Multiply of N('3') and none", e, "BigNumberErrorExceptionVQZ", "Operator_Multiply operation failed with numbers 3 and nil.")
		      End Try
		      CheckText("BiggerNumberVQZ.Operator_Divide", Shown(N("2.5") / N("4")), "0.625")
		      Try
		        x = N("7") / N("0")
		        MissFailure("BiggerNumberVQZ.Operator_Divide of N('7') and N('0')")
		      Catch e As RuntimeException
		        CheckFailed("BiggerNumberVQZ.Operator_Divide of N('7') and N('0')", e, "BigNumberErrorExceptionVQZ", "Operator_Divide operation failed with numbers 7 and 0.")
		      End Try
		      Try
		        x = BiggerNumberVQZ.Nan / N("3")
		        MissFailure("BiggerNumberVQZ.Operator_Divide of BiggerNumberVQZ.Nan and N('3')")
		      Catch e As RuntimeException
		        CheckFailed("BiggerNumberVQZ.Operator_Divide of BiggerNumberVQZ.Nan and N('3')", e, "BigNumberErrorExceptionVQZ", "Operator_Divide operation failed with numbers NaN and 3.")
		      End Try
		      Try
		        x = N("3") / BiggerNumberVQZ.Nan
		        MissFailure("BiggerNumberVQZ.Operator_Divide of N('3') and BiggerNumberVQZ.Nan")
		      Catch e As RuntimeException
		        CheckFailed("BiggerNumberVQZ.Operator_Divide of N('3') and BiggerNumberVQZ.Nan", e, "BigNumberErrorExceptionVQZ", "Operator_Divide operation failed with numbers 3 and NaN.")
		      End Try
		      Try
		        x = N("3") / none
		        MissFailure("BiggerNumberVQZ.Operator_Divide of N('3') and none")
		      Catch e As RuntimeException
		        CheckFailed("BiggerNumberVQZ.Operator_Divide of N('3') and none", e, "BigNumberErrorExceptionVQZ", "Operator_Divide operation failed with numbers 3 and nil.")
		      End Try
		      CheckText("BiggerNumberVQZ.Operator_Modulo", Shown(N("7.5") Mod N("2")), "1.5")
		      Try
		        x = N("7") Mod N("0")
		        MissFailure("BiggerNumberVQZ.Operator_Modulo of N('7') and N('0')")
		      Catch e As RuntimeException
		        CheckFailed("BiggerNumberVQZ.Operator_Modulo of N('7') and N('0')", e, "BigNumberErrorExceptionVQZ", "Mod operation failed with numbers 7 and 0.")
		      End Try
		      Try
		        x = BiggerNumberVQZ.Nan Mod N("3")
		        MissFailure("BiggerNumberVQZ.Operator_Modulo of BiggerNumberVQZ.Nan and N('3')")
		      Catch e As RuntimeException
		        CheckFailed("BiggerNumberVQZ.Operator_Modulo of BiggerNumberVQZ.Nan and N('3')", e, "BigNumberErrorExceptionVQZ", "Mod operation failed with numbers NaN and 3.")
		      End Try
		      Try
		        x = N("3") Mod BiggerNumberVQZ.Nan
		        MissFailure("BiggerNumberVQZ.Operator_Modulo of N('3') and BiggerNumberVQZ.Nan")
		      Catch e As RuntimeException
		        CheckFailed("BiggerNumberVQZ.Operator_Modulo of N('3') and BiggerNumberVQZ.Nan", e, "BigNumberErrorExceptionVQZ", "Mod operation failed with numbers 3 and NaN.")
		      End Try
		      Try
		        x = N("3") Mod none
		        MissFailure("BiggerNumberVQZ.Operator_Modulo of N('3') and none")
		      Catch e As RuntimeException
		        CheckFailed("BiggerNumberVQZ.Operator_Modulo of N('3') and none", e, "BigNumberErrorExceptionVQZ", "Mod operation failed with numbers 3 and nil.")
		      End Try
		      CheckText("BiggerNumberVQZ.Operator_Power", Shown(N("1.5") ^ N("3")), "3.375")
		      Try
		        x = N("-2") ^ N("0.5")
		        MissFailure("BiggerNumberVQZ.Operator_Power of N('-2') and N('0.5')")
		      Catch e As RuntimeException
		        CheckFailed("BiggerNumberVQZ.Operator_Power of N('-2') and N('0.5')", e, "BigNumberErrorExceptionVQZ", "Pow operation failed with numbers -2 and 0.5.")
		      End Try
		      Try
		        x = BiggerNumberVQZ.Nan ^ N("3")
		        MissFailure("BiggerNumberVQZ.Operator_Power of BiggerNumberVQZ.Nan and N('3')")
		      Catch e As RuntimeException
		        CheckFailed("BiggerNumberVQZ.Operator_Power of BiggerNumberVQZ.Nan and N('3')", e, "BigNumberErrorExceptionVQZ", "Pow operation failed with numbers NaN and 3.")
		      End Try
		      Try
		        x = N("3") ^ BiggerNumberVQZ.Nan
		        MissFailure("BiggerNumberVQZ.Operator_Power of N('3') and BiggerNumberVQZ.Nan")
		      Catch e As RuntimeException
		        CheckFailed("BiggerNumberVQZ.Operator_Power of N('3') and BiggerNumberVQZ.Nan", e, "BigNumberErrorExceptionVQZ", "Pow operation failed with numbers 3 and NaN.")
		      End Try
		      Try
		        x = N("3") ^ none
		        MissFailure("BiggerNumberVQZ.Operator_Power of N('3') and none")
		      Catch e As RuntimeException
		        CheckFailed("BiggerNumberVQZ.Operator_Power of N('3') and none", e, "BigNumberErrorExceptionVQZ", "Pow operation failed with numbers 3 and nil.")
		      End Try
		      CheckText("BiggerNumberVQZ.Operator_IntegerDivide", Shown(N("-7.5") \ N("2")), "-3")
		      Try
		        x = N("5") \ N("0")
		        MissFailure("BiggerNumberVQZ.Operator_IntegerDivide of N('5') and N('0')")
		      Catch e As RuntimeException
		        CheckFailed("BiggerNumberVQZ.Operator_IntegerDivide of N('5') and N('0')", e, "BigNumberErrorExceptionVQZ", "Operator_IntegerDivide operation failed with numbers NaN and 0.")
		      End Try
		      Try
		        x = N("5") \ BiggerNumberVQZ.Nan
		        MissFailure("BiggerNumberVQZ.Operator_IntegerDivide of N('5') and BiggerNumberVQZ.Nan")
		      Catch e As RuntimeException
		        CheckFailed("BiggerNumberVQZ.Operator_IntegerDivide of N('5') and BiggerNumberVQZ.Nan", e, "BigNumberErrorExceptionVQZ", "Operator_IntegerDivide operation failed with numbers NaN and NaN.")
		      End Try
		      Try
		        x = N("5") \ none
		        MissFailure("BiggerNumberVQZ.Operator_IntegerDivide of N('5') and none")
		      Catch e As RuntimeException
		        CheckFailed("BiggerNumberVQZ.Operator_IntegerDivide of N('5') and none", e, "BigNumberErrorExceptionVQZ", "Operator_IntegerDivide operation failed with numbers NaN and nil.")
		      End Try
		    Catch e As RuntimeException
		      Unexpected("operators of BiggerNumberVQZ", e)
		    End Try
		  #EndIf
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfOperatorsRight()
		  #If kOperatorRight And kConversionIn Then
		    #Pragma BreakOnExceptions False
		    Dim x As BiggerNumberVQZ
		    Try
		      CheckText("BiggerNumberVQZ.Operator_AddRight", Shown("2" + N("10")), "12")
		      Try
		        x = "3" + BiggerNumberVQZ.Nan
		        MissFailure("BiggerNumberVQZ.Operator_AddRight of NaN")
		      Catch e As RuntimeException
		        CheckFailed("BiggerNumberVQZ.Operator_AddRight of NaN", e, "BigNumberErrorExceptionVQZ", "Operator_Add operation failed with numbers NaN and 3.")
		      End Try
		      CheckText("BiggerNumberVQZ.Operator_SubtractRight", Shown("2" - N("10")), "8")
		      Try
		        x = "3" - BiggerNumberVQZ.Nan
		        MissFailure("BiggerNumberVQZ.Operator_SubtractRight of NaN")
		      Catch e As RuntimeException
		        CheckFailed("BiggerNumberVQZ.Operator_SubtractRight of NaN", e, "BigNumberErrorExceptionVQZ", "Operator_Subtract operation failed with numbers NaN and 3.")
		      End Try
		      CheckText("BiggerNumberVQZ.Operator_MultiplyRight", Shown("2" * N("10")), "20")
		      Try
		        x = "2" * BiggerNumberVQZ.Max
		        MissFailure("BiggerNumberVQZ.Operator_MultiplyRight")
		      Catch e As RuntimeException
		        CheckFailed("BiggerNumberVQZ.Operator_MultiplyRight", e, "BigNumberErrorExceptionVQZ", "Operator_Multiply operation failed with numbers " + InMessage(BiggerNumberVQZ.Max) + " and 2.")
		      End Try
		      Try
		        x = "3" * BiggerNumberVQZ.Nan
		        MissFailure("BiggerNumberVQZ.Operator_MultiplyRight of NaN")
		      Catch e As RuntimeException
		        CheckFailed("BiggerNumberVQZ.Operator_MultiplyRight of NaN", e, "BigNumberErrorExceptionVQZ", "Operator_Multiply operation failed with numbers NaN and 3.")
		      End Try
		      CheckText("BiggerNumberVQZ.Operator_DivideRight", Shown("2" / N("10")), "5")
		      Try
		        x = "0" / N("7")
		        MissFailure("BiggerNumberVQZ.Operator_DivideRight")
		      Catch e As RuntimeException
		        CheckFailed("BiggerNumberVQZ.Operator_DivideRight", e, "BigNumberErrorExceptionVQZ", "Operator_Divide operation failed with numbers 7 and 0.")
		      End Try
		      Try
		        x = "3" / BiggerNumberVQZ.Nan
		        MissFailure("BiggerNumberVQZ.Operator_DivideRight of NaN")
		      Catch e As RuntimeException
		        CheckFailed("BiggerNumberVQZ.Operator_DivideRight of NaN", e, "BigNumberErrorExceptionVQZ", "Operator_Divide operation failed with numbers NaN and 3.")
		      End Try
		      CheckText("BiggerNumberVQZ.Operator_IntegerDivideRight", Shown("2" \ N("10")), "5")
		      Try
		        x = "0" \ N("7")
		        MissFailure("BiggerNumberVQZ.Operator_IntegerDivideRight")
		      Catch e As RuntimeException
		        CheckFailed("BiggerNumberVQZ.Operator_IntegerDivideRight", e, "BigNumberErrorExceptionVQZ", "Operator_IntegerDivide operation failed with numbers NaN and 0.")
		      End Try
		      Try
		        x = "3" \ BiggerNumberVQZ.Nan
		        MissFailure("BiggerNumberVQZ.Operator_IntegerDivideRight of NaN")
		      Catch e As RuntimeException
		        CheckFailed("BiggerNumberVQZ.Operator_IntegerDivideRight of NaN", e, "BigNumberErrorExceptionVQZ", "Operator_IntegerDivide operation failed with numbers NaN and 3.")
		      End Try
		      CheckText("BiggerNumberVQZ.Operator_ModuloRight", Shown("2" Mod N("10")), "0")
		      Try
		        x = "0" Mod N("7")
		        MissFailure("BiggerNumberVQZ.Operator_ModuloRight")
		      Catch e As RuntimeException
		        CheckFailed("BiggerNumberVQZ.Operator_ModuloRight", e, "BigNumberErrorExceptionVQZ", "Mod operation failed with numbers 7 and 0.")
		      End Try
		      Try
		        x = "3" Mod BiggerNumberVQZ.Nan
		        MissFailure("BiggerNumberVQZ.Operator_ModuloRight of NaN")
		      Catch e As RuntimeException
		        CheckFailed("BiggerNumberVQZ.Operator_ModuloRight of NaN", e, "BigNumberErrorExceptionVQZ", "Mod operation failed with numbers NaN and 3.")
		      End Try
		      CheckText("BiggerNumberVQZ.Operator_PowerRight", Shown("2" ^ N("10")), "100")
		      Try
		        x = "0.5" ^ N("-2")
		        MissFailure("BiggerNumberVQZ.Operator_PowerRight")
		      Catch e As RuntimeException
		        CheckFailed("BiggerNumberVQZ.Operator_PowerRight", e, "BigNumberErrorExceptionVQZ", "Pow operation failed with numbers -2 and 0.5.")
		      End Try
		      Try
		        x = "3" ^ BiggerNumberVQZ.Nan
		        MissFailure("BiggerNumberVQZ.Operator_PowerRight of NaN")
		      Catch e As RuntimeException
		        CheckFailed("BiggerNumberVQZ.Operator_PowerRight of NaN", e, "BigNumberErrorExceptionVQZ", "Pow operation failed with numbers NaN and 3.")
		      End Try
		    Catch e As RuntimeException
		      Unexpected("operators with a text left of BiggerNumberVQZ", e)
		    End Try
		  #EndIf
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfNegation()
		  #If kNegation Then
		    #Pragma BreakOnExceptions False
		    Try
		      CheckText("BiggerNumberVQZ.Operator_Negate", Shown(-N("2.5")), "-2.5")
		    Catch e As RuntimeException
		      Unexpected("BiggerNumberVQZ.Operator_Negate", e)
		    End Try
		  #EndIf
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfComparison()
		  #If kComparison Then
		    #Pragma BreakOnExceptions False
		    Try
		      CheckTrue("BiggerNumberVQZ.Operator_Compare", N("2.5") > N("-4"))
		      CheckTrue("BiggerNumberVQZ.Operator_Compare", N("2.5") = N("2.50"))
		      CheckTrue("BiggerNumberVQZ.Operator_Compare", Not (N("2.5") < N("-4")))
		      CheckTrue("BiggerNumberVQZ.Operator_Compare", N("2.5") <> N("4"))
		      CheckTrue("BiggerNumberVQZ.Operator_Compare", BiggerNumberVQZ.Nan = N("0"))
		    Catch e As RuntimeException
		      Unexpected("BiggerNumberVQZ.Operator_Compare", e)
		    End Try
		  #EndIf
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfSgn()
		  #Pragma BreakOnExceptions False
		  Try
		    CheckText("BiggerNumberVQZ.Sgn", Shown(BiggerNumberVQZ.Sgn(N("-2.5"))), "-1")
		    CheckText("BiggerNumberVQZ.Sgn", Shown(BiggerNumberVQZ.Sgn(N("0"))), "0")
		  Catch e As RuntimeException
		    Unexpected("BiggerNumberVQZ.Sgn", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfRoot()
		  #Pragma BreakOnExceptions False
		  Dim x As BiggerNumberVQZ
		  Try
		    CheckText("BiggerNumberVQZ.Root", Shown(BiggerNumberVQZ.Root(N("0.125"), N("3"))), "0.5")
		    x = BiggerNumberVQZ.Root(N("2"), N("4"))
		    CheckText("BiggerNumberVQZ.Root", x.GetStringValue(10, False, 99999, 600, True, "."), "1.189207115002721066717499970560475915292972092463817413019002224719466668226917159870781344538137673716037394774769213186063726361789847756785360862538017775070151511403557092273162342868889924175446071908710503849972559105009837104492015484573567458090483994093090003497795908038489658843005041198717009379079820984625235373981281740818113780828552014842210060958932412445931035057519196302941383263474280279824408022800821729272058615366639370400238207308545653067447714859888733457627186783811654704587276127111269988678434930175861424970170054131455143891998743766762178516178317798730704823631873")
		    CheckBytes("BiggerNumberVQZ.Root", x.DataMantissa, "108380C90EA313E4EB11989AFE9C1B91B48261930FB24CCC7DA175E774A676859794256B928E835AE51453CFE2B874187A87111D26CB89C25394206F893B4579AD47CB648C951441EC121581A4036A1BE2C3AC67E66BA86D55AAB5785009DDCE77C94C846401CA1FC4777FE0498FADF79A57CCD9EDB0DA1C9995F439C9BEEB701D1183668AFA9C5BAFB74D98A24FE42A5CCA3E34CF8FF0D60CDC9EDC4E594209401F247EA2E1A219E5B754FB1A7BE801FFC98EB788829C884B8A86D6405A45F4DF7A456F3E837A5EE29AD207247BCD64BDDB900CEE949F4EA85002384DC347BE6FBBA7EFCB658BD77881FA141B9A135EF6F6422E1823AD466FA9B88D51F03798")
		    Try
		      x = BiggerNumberVQZ.Root(N("-1"), N("2"))
		      MissFailure("BiggerNumberVQZ.Root of a negative number")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.Root of a negative number", e, "BigNumberErrorExceptionVQZ", "Root operation failed.")
		    End Try
		  Catch e As RuntimeException
		    Unexpected("BiggerNumberVQZ.Root", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfDegToDeg()
		  #Pragma BreakOnExceptions False
		  Dim x As BiggerNumberVQZ
		  Try
		    x = BiggerNumberVQZ.DegToDeg(N("12"), N("30"), N("36"))
		    CheckText("BiggerNumberVQZ.DegToDeg", x.GetStringValue(10, False, 99999, 600, True, "."), "12.51")
		    CheckBytes("BiggerNumberVQZ.DegToDeg", x.DataMantissa, "5C8FC2F5285C8FC2F5285C8FC2F5285C8FC2F5285C8FC2F5285C8FC2F5285C8FC2F5285C8FC2F5285C8FC2F5285C8FC2F5285C8FC2F5285C8FC2F5285C8FC2F5285C8FC2F5285C8FC2F5285C8FC2F5285C8FC2F5285C8FC2F5285C8FC2F5285C8FC2F5285C8FC2F5285C8FC2F5285C8FC2F5285C8FC2F5285C8FC2F5285C8FC2F5285C8FC2F5285C8FC2F5285C8FC2F5285C8FC2F5285C8FC2F5285C8FC2F5285C8FC2F5285C8FC2F5285C8FC2F5285C8FC2F5285C8FC2F5285C8FC2F5285C8FC2F5285C8FC2F5285C8FC2F5285C8FC2F5285C8FC2F5285C8FC2F5285C8FC2F5285C8FC2F5285C8FC2F5285C8FC2F5285C8FC2F5285C8FC2F5285C8FC2F528C8")
		    Try
		      x = BiggerNumberVQZ.DegToDeg(N("12"), N("-30"), N("36"))
		      MissFailure("BiggerNumberVQZ.DegToDeg of negative minutes")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.DegToDeg of negative minutes", e, "BigNumberErrorExceptionVQZ", "DegToDeg operation failed.")
		    End Try
		  Catch e As RuntimeException
		    Unexpected("BiggerNumberVQZ.DegToDeg", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfDegToRadOfMinutes()
		  #If kOverloadByCount Then
		    #Pragma BreakOnExceptions False
		    Dim x As BiggerNumberVQZ
		    Try
		      x = BiggerNumberVQZ.DegToRad(N("90"), N("30"), N("0"))
		      CheckText("BiggerNumberVQZ.DegToRad of minutes", x.GetStringValue(10, False, 99999, 600, True, "."), "1.579522973054868267115940145482194505665799059130261537767958253354763248716121746532428620519231081402135565719178048619788849650912931622061916813531264117384726173858474645333628599102093780117775376560041073876483204859039145361987243758094687626542673307258739786384700647564796178452539180818251511528467210397559610148764685261866930529445780418301552375450141183414823623445473696106392815559187176016489451350398638015797905916118707088962381115215807703493532474142559008903645157808681007756944152440560441256662694090236937599103976436373763418917226298884191414069422726739283729578228691")
		      CheckBytes("BiggerNumberVQZ.DegToRad of minutes", x.DataMantissa, "73161001C5F5058097DB3FD8E337F6BAFAA51AB6851A4776EF07F060E83F02671CA021D54BF0FDA577005AEE5CD11D8078E12EB420492EDDC0025DC8AD3E156D50EA089B30A8591CF58DD35E93D060BB3F605F48259A3D0F71D7706A94DA0A69542853F819EC943D7B32A8EA1080631FAF90495F5EFE36B06F647037091B125011B4BC85FDD330AC7BE63DECFDBB6958E7D8731733617FB824F1B11D9A3953AB77CFCB31D9B002A7155BA05E1E56A40A12042A42650AFDCA03880C055C2F429D1B1ACB8BDB97C42C1B468A5BBBB3ECC29CE574FACCA3B6FD0627375D9CF4B7762C34A6A4F9C3D57341386B7466BD03DB5A28055E78EEE320C69592460CCF2DCA")
		      Try
		        x = BiggerNumberVQZ.DegToRad(N("12"), N("-30"), N("36"))
		        MissFailure("BiggerNumberVQZ.DegToRad of negative minutes")
		      Catch e As RuntimeException
		        CheckFailed("BiggerNumberVQZ.DegToRad of negative minutes", e, "BigNumberErrorExceptionVQZ", "DegToRad operation failed.")
		      End Try
		    Catch e As RuntimeException
		      Unexpected("BiggerNumberVQZ.DegToRad of minutes", e)
		    End Try
		  #EndIf
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfDegToGradOfMinutes()
		  #If kOverloadByCount Then
		    #Pragma BreakOnExceptions False
		    Dim x As BiggerNumberVQZ
		    Try
		      CheckText("BiggerNumberVQZ.DegToGrad of minutes", Shown(BiggerNumberVQZ.DegToGrad(N("90"), N("0"), N("0"))), "100")
		      Try
		        x = BiggerNumberVQZ.DegToGrad(N("12"), N("-30"), N("36"))
		        MissFailure("BiggerNumberVQZ.DegToGrad of negative minutes")
		      Catch e As RuntimeException
		        CheckFailed("BiggerNumberVQZ.DegToGrad of negative minutes", e, "BigNumberErrorExceptionVQZ", "DegToGrad operation failed.")
		      End Try
		    Catch e As RuntimeException
		      Unexpected("BiggerNumberVQZ.DegToGrad of minutes", e)
		    End Try
		  #EndIf
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfDegToGrad()
		  #If kOverloadByCount Then
		    #Pragma BreakOnExceptions False
		    Dim x As BiggerNumberVQZ
		    Dim none As BiggerNumberVQZ
		    Try
		      x = BiggerNumberVQZ.DegToGrad(N("45.5"))
		      CheckText("BiggerNumberVQZ.DegToGrad", x.GetStringValue(10, False, 99999, 600, True, "."), "50.555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555555556")
		      CheckBytes("BiggerNumberVQZ.DegToGrad", x.DataMantissa, "8EE3388EE3388EE3388EE3388EE3388EE3388EE3388EE3388EE3388EE3388EE3388EE3388EE3388EE3388EE3388EE3388EE3388EE3388EE3388EE3388EE3388EE3388EE3388EE3388EE3388EE3388EE3388EE3388EE3388EE3388EE3388EE3388EE3388EE3388EE3388EE3388EE3388EE3388EE3388EE3388EE3388EE3388EE3388EE3388EE3388EE3388EE3388EE3388EE3388EE3388EE3388EE3388EE3388EE3388EE3388EE3388EE3388EE3388EE3388EE3388EE3388EE3388EE3388EE3388EE3388EE3388EE3388EE3388EE3388EE3388EE3388EE3388EE3388EE3388EE3388EE3388EE3388EE3388EE3388EE3388EE3388EE3388EE3388EE3388EE338CA")
		      Try
		        x = BiggerNumberVQZ.DegToGrad(BiggerNumberVQZ.Max)
		        MissFailure("BiggerNumberVQZ.DegToGrad of BiggerNumberVQZ.Max")
		      Catch e As RuntimeException
		        CheckFailed("BiggerNumberVQZ.DegToGrad of BiggerNumberVQZ.Max", e, "BigNumberErrorExceptionVQZ", "DegToGrad operation failed with number " + InMessage(BiggerNumberVQZ.Max) + ".")
		      End Try
		      Try
		        x = BiggerNumberVQZ.DegToGrad(BiggerNumberVQZ.Nan)
		        MissFailure("BiggerNumberVQZ.DegToGrad of BiggerNumberVQZ.Nan")
		      Catch e As RuntimeException
		        CheckFailed("BiggerNumberVQZ.DegToGrad of BiggerNumberVQZ.Nan", e, "BigNumberErrorExceptionVQZ", "DegToGrad operation failed with number NaN.")
		      End Try
		      Try
		        x = BiggerNumberVQZ.DegToGrad(none)
		        MissFailure("BiggerNumberVQZ.DegToGrad of none")
		      Catch e As RuntimeException
		        CheckFailed("BiggerNumberVQZ.DegToGrad of none", e, "BigNumberErrorExceptionVQZ", "DegToGrad operation failed with number nil.")
		      End Try
		    Catch e As RuntimeException
		      Unexpected("BiggerNumberVQZ.DegToGrad", e)
		    End Try
		  #EndIf
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfGradToDeg()
		  #Pragma BreakOnExceptions False
		  Dim x As BiggerNumberVQZ
		  Dim none As BiggerNumberVQZ
		  Try
		    x = BiggerNumberVQZ.GradToDeg(N("50.5"))
		    CheckText("BiggerNumberVQZ.GradToDeg", x.GetStringValue(10, False, 99999, 600, True, "."), "45.45")
		    CheckBytes("BiggerNumberVQZ.GradToDeg", x.DataMantissa, "CCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCCB5")
		    Try
		      x = BiggerNumberVQZ.GradToDeg(BiggerNumberVQZ.Max)
		      MissFailure("BiggerNumberVQZ.GradToDeg of BiggerNumberVQZ.Max")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.GradToDeg of BiggerNumberVQZ.Max", e, "BigNumberErrorExceptionVQZ", "GradToDeg operation failed with number " + InMessage(BiggerNumberVQZ.Max) + ".")
		    End Try
		    Try
		      x = BiggerNumberVQZ.GradToDeg(BiggerNumberVQZ.Nan)
		      MissFailure("BiggerNumberVQZ.GradToDeg of BiggerNumberVQZ.Nan")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.GradToDeg of BiggerNumberVQZ.Nan", e, "BigNumberErrorExceptionVQZ", "GradToDeg operation failed with number NaN.")
		    End Try
		    Try
		      x = BiggerNumberVQZ.GradToDeg(none)
		      MissFailure("BiggerNumberVQZ.GradToDeg of none")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.GradToDeg of none", e, "BigNumberErrorExceptionVQZ", "GradToDeg operation failed with number nil.")
		    End Try
		  Catch e As RuntimeException
		    Unexpected("BiggerNumberVQZ.GradToDeg", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfGradToRad()
		  #Pragma BreakOnExceptions False
		  Dim x As BiggerNumberVQZ
		  Dim none As BiggerNumberVQZ
		  Try
		    x = BiggerNumberVQZ.GradToRad(N("100"))
		    CheckText("BiggerNumberVQZ.GradToRad", x.GetStringValue(10, False, 99999, 600, True, "."), "1.570796326794896619231321691639751442098584699687552910487472296153908203143104499314017412671058533991074043256641153323546922304775291115862679704064240558725142051350969260552779822311474477465190982214405487832966723064237824116893391582635600954572824283461730174305227163324106696803630124570636862293503303157794087440760460481414627045857682183946295180005665265274410233260692073475970755804716528635182879795976546093058690966305896552559274037231189981374783675942876362445613969091505974564916836681220328321543010697473197612368595351089930471851385269608588146588376192337409233834702566")
		    CheckBytes("BiggerNumberVQZ.GradToRad", x.DataMantissa, "65BA1CDFAB2155A8337A50040D1733AD2DC4AA8A5A8E72151005FA981826D215E56A95EA7C49953918175895F6CB2BDEC9524C6FF05DC5B58FA207ECA283279B03860E182C779EE33BCE362E465E90327C2118CA086C74F10498BC4A4E350C676D9696700729D59EBB52852056F3621C96ADA3DC235D65835FCF24FDA83F16699AD3551C3648DA9805BF63A1B87C00C23D5BE4EC51662849E61F4B7C11249FAEA59F895AFB6B38EEEDB706F4B65CFF0B6BED37A6E9424CF4C67E5E6276B585E445C2516D6D35E14F37145FF26D0A2B301B433ACDB31995EFDD04348E79084A51229B133BA6BE0B0274CC678A084E0229D11CDC808B62C6C434C26821A2DA0FC9")
		    Try
		      x = BiggerNumberVQZ.GradToRad(BiggerNumberVQZ.Max)
		      MissFailure("BiggerNumberVQZ.GradToRad of BiggerNumberVQZ.Max")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.GradToRad of BiggerNumberVQZ.Max", e, "BigNumberErrorExceptionVQZ", "GradToRad operation failed with number " + InMessage(BiggerNumberVQZ.Max) + ".")
		    End Try
		    Try
		      x = BiggerNumberVQZ.GradToRad(BiggerNumberVQZ.Nan)
		      MissFailure("BiggerNumberVQZ.GradToRad of BiggerNumberVQZ.Nan")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.GradToRad of BiggerNumberVQZ.Nan", e, "BigNumberErrorExceptionVQZ", "GradToRad operation failed with number NaN.")
		    End Try
		    Try
		      x = BiggerNumberVQZ.GradToRad(none)
		      MissFailure("BiggerNumberVQZ.GradToRad of none")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.GradToRad of none", e, "BigNumberErrorExceptionVQZ", "GradToRad operation failed with number nil.")
		    End Try
		  Catch e As RuntimeException
		    Unexpected("BiggerNumberVQZ.GradToRad", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfRadToGrad()
		  #Pragma BreakOnExceptions False
		  Dim x As BiggerNumberVQZ
		  Dim none As BiggerNumberVQZ
		  Try
		    x = BiggerNumberVQZ.RadToGrad(N("1"))
		    CheckText("BiggerNumberVQZ.RadToGrad", x.GetStringValue(10, False, 99999, 600, True, "."), "63.661977236758134307553505349005744813783858296182579499066937623558719053690614036045521106501234382429137090703183214757164738445831461151186964292679935691695986774963631029231098558770123075486957158486959064677344956096689451604732952045689079902286376184756034761069582448195764374775137634211489239978577360099468939095783844359329238713229962466794585121879779460875152629914626785696415598349655739443993547239679984977150234068471543372447007506864218619014795203895784145903733507223720997798654122130862710201288129911126558866409178699247839266336242406721214399253564794999533114661774112")
		    CheckBytes("BiggerNumberVQZ.RadToGrad", x.DataMantissa, "9EE61A0DC4D0CA7864745F17D68C0F6175E4CE5D5C7B50CF1A313533F87A5EE33118171887DB61BAC48C1A3AF9423C6D528E2AA93152416822A067DB5CE161A7BAB7549C578169993CED037948C2DFDDE4A23A9064E0BF1E3D8A4724289373598E941DF2F29544A83CD880EA6EFB64065DE14CC184C5B8488E0521C8924A5B8F50499760D8130E07E7DD755710C3DD6B2E3F2DAE2326A51A814AB0BC698BB9E598BDE8CA7F6DF461DC4ED5584AD58E348E0A32DDB9DEF3E94535D5793C6F04AD0F9B04194F744B4B5215D1D45CBF0E4D4D7457AF4D59D2097E9999073BEC28AE6864058CBC2B5F1D6791296EBF09CA567D9A220F3879FD9911614A5A5CDDA5FE")
		    Try
		      x = BiggerNumberVQZ.RadToGrad(BiggerNumberVQZ.Max)
		      MissFailure("BiggerNumberVQZ.RadToGrad of BiggerNumberVQZ.Max")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.RadToGrad of BiggerNumberVQZ.Max", e, "BigNumberErrorExceptionVQZ", "RadToGrad operation failed with number " + InMessage(BiggerNumberVQZ.Max) + ".")
		    End Try
		    Try
		      x = BiggerNumberVQZ.RadToGrad(BiggerNumberVQZ.Nan)
		      MissFailure("BiggerNumberVQZ.RadToGrad of BiggerNumberVQZ.Nan")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.RadToGrad of BiggerNumberVQZ.Nan", e, "BigNumberErrorExceptionVQZ", "RadToGrad operation failed with number NaN.")
		    End Try
		    Try
		      x = BiggerNumberVQZ.RadToGrad(none)
		      MissFailure("BiggerNumberVQZ.RadToGrad of none")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.RadToGrad of none", e, "BigNumberErrorExceptionVQZ", "RadToGrad operation failed with number nil.")
		    End Try
		  Catch e As RuntimeException
		    Unexpected("BiggerNumberVQZ.RadToGrad", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfDegToRad()
		  #If kOverloadByCount Then
		    #Pragma BreakOnExceptions False
		    Dim x As BiggerNumberVQZ
		    Dim none As BiggerNumberVQZ
		    Try
		      x = BiggerNumberVQZ.DegToRad(N("30"))
		      CheckText("BiggerNumberVQZ.DegToRad", x.GetStringValue(10, False, 99999, 600, True, "."), "0.523598775598298873077107230546583814032861566562517636829157432051302734381034833104672470890352844663691347752213717774515640768258430371954226568021413519575047350450323086850926607437158159155063660738135162610988907688079274705631130527545200318190941427820576724768409054441368898934543374856878954097834434385931362480253486827138209015285894061315431726668555088424803411086897357825323585268238842878394293265325515364352896988768632184186424679077063327124927891980958787481871323030501991521638945560406776107181003565824399204122865117029976823950461756536196048862792064112469744611567522")
		      CheckBytes("BiggerNumberVQZ.DegToRad", x.DataMantissa, "ED2613EAC76BE31ACDA63558B36477731ED8715C3CB4A163B55851BB65198C0EEEF1B8F1FD300ED1BA64E5B8F98772E9DBE1324AA03E2E790A17054817AD6F6702045F651DFABE97D2DE79C92E94B521A86B65315B9D4DF6ADBA7DDCDE785DEF486464A0AF70E369D2E158C08EF74168B973C23D6D93430295DF6D531BD50E46BC37396879859110597F42167BA855817EE742F38B99C530441532A80B186A746E6A06E7FC47D09E9E7A04F879E8545D479E7A19F181DDA284549441A42359982E2CE1489E23968ACF623F4C495CC7CABC2C7C33CDBBB89F3E03780951B0868BC1BCB77C197FB2564D889AB10534AC708B683DAB0797D92D232C9B6BC1910A86")
		      Try
		        x = BiggerNumberVQZ.DegToRad(BiggerNumberVQZ.Max)
		        MissFailure("BiggerNumberVQZ.DegToRad of BiggerNumberVQZ.Max")
		      Catch e As RuntimeException
		        CheckFailed("BiggerNumberVQZ.DegToRad of BiggerNumberVQZ.Max", e, "BigNumberErrorExceptionVQZ", "DegToRad operation failed with number " + InMessage(BiggerNumberVQZ.Max) + ".")
		      End Try
		      Try
		        x = BiggerNumberVQZ.DegToRad(BiggerNumberVQZ.Nan)
		        MissFailure("BiggerNumberVQZ.DegToRad of BiggerNumberVQZ.Nan")
		      Catch e As RuntimeException
		        CheckFailed("BiggerNumberVQZ.DegToRad of BiggerNumberVQZ.Nan", e, "BigNumberErrorExceptionVQZ", "DegToRad operation failed with number NaN.")
		      End Try
		      Try
		        x = BiggerNumberVQZ.DegToRad(none)
		        MissFailure("BiggerNumberVQZ.DegToRad of none")
		      Catch e As RuntimeException
		        CheckFailed("BiggerNumberVQZ.DegToRad of none", e, "BigNumberErrorExceptionVQZ", "DegToRad operation failed with number nil.")
		      End Try
		    Catch e As RuntimeException
		      Unexpected("BiggerNumberVQZ.DegToRad", e)
		    End Try
		  #EndIf
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfRadToDeg()
		  #Pragma BreakOnExceptions False
		  Dim x As BiggerNumberVQZ
		  Dim none As BiggerNumberVQZ
		  Try
		    x = BiggerNumberVQZ.RadToDeg(N("1"))
		    CheckText("BiggerNumberVQZ.RadToDeg", x.GetStringValue(10, False, 99999, 600, True, "."), "57.295779513082320876798154814105170332405472466564321549160243861202847148321552632440968995851110944186223381632864893281448264601248315036068267863411942122526388097467267926307988702893110767938261442638263158209610460487020506444259656841120171912057738566280431284962624203376187937297623870790340315980719624089522045186205459923396314841906966220115126609691801514787637366923164107126774038514690165499594192515711986479435210661624389035202306756177796757113315683506205731313360156501348898018788709917776439181159316920013902979768260829323055339702618166049092959328208315499579803195596701")
		    CheckBytes("BiggerNumberVQZ.RadToDeg", x.DataMantissa, "C10265A5E3BBE99F8DB5A2AEC0FE8D0AD00007EE9F086287FE784961DFA16E19602F7B62C678BEA74A184BB4463CB6C8E34CA67EF9C93AC4EBDC76C5067E3E305BA5B20C028E78F01CEFE96C74C8AFC79A9201B58DE3DFCE039673ED7004E8B6196CE7D98D20A4CA698F0DD3E37BF4B8D3CA5E14917ED9A7991E841A8429D24D955BBB23A9DEBFEC4FE1B64E28C97AC7A985F54F53A2943174A99EF6AB305A68D6DD37D0BF95F524936026835C261AFC7F09ADE04015F5B88B49A66DB6FD83E85A58B7C9E01BF77630932259A0125AC578B5CE1DF9E9D6088B703DED013B8B69910D38B12974A2CDDC02BF7C5FA28234D757D2407F53970AC3BD0F1ED3E02EE5")
		    Try
		      x = BiggerNumberVQZ.RadToDeg(BiggerNumberVQZ.Max)
		      MissFailure("BiggerNumberVQZ.RadToDeg of BiggerNumberVQZ.Max")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.RadToDeg of BiggerNumberVQZ.Max", e, "BigNumberErrorExceptionVQZ", "RadToDeg operation failed with number " + InMessage(BiggerNumberVQZ.Max) + ".")
		    End Try
		    Try
		      x = BiggerNumberVQZ.RadToDeg(BiggerNumberVQZ.Nan)
		      MissFailure("BiggerNumberVQZ.RadToDeg of BiggerNumberVQZ.Nan")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.RadToDeg of BiggerNumberVQZ.Nan", e, "BigNumberErrorExceptionVQZ", "RadToDeg operation failed with number NaN.")
		    End Try
		    Try
		      x = BiggerNumberVQZ.RadToDeg(none)
		      MissFailure("BiggerNumberVQZ.RadToDeg of none")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.RadToDeg of none", e, "BigNumberErrorExceptionVQZ", "RadToDeg operation failed with number nil.")
		    End Try
		  Catch e As RuntimeException
		    Unexpected("BiggerNumberVQZ.RadToDeg", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfACoth()
		  #Pragma BreakOnExceptions False
		  Dim x As BiggerNumberVQZ
		  Dim none As BiggerNumberVQZ
		  Try
		    x = BiggerNumberVQZ.ACoth(N("2"))
		    CheckText("BiggerNumberVQZ.ACoth", x.GetStringValue(10, False, 99999, 600, True, "."), "0.549306144334054845697622618461262852323745278911374725867347166818747146609304483436807877406866044393985014532978932871184002112965259910526400935383638705301581384591690683589686849422180479951871285158397955760572795958875335673527470083387790111101585126473448780345053260752821434069018158686649288891183495827396065909074510015051911815061124326374099112995548726245448229026733504422982542874222059509428543823747433539806542914705801083060592000704912757195974384446839924715112786576766484267264762572960693824734296628139720827847078913615517758443305105923494521997153156912764286823344141")
		    CheckBytes("BiggerNumberVQZ.ACoth", x.DataMantissa, "11E89CF51EE7108DEBFE4369FC29F393F42D6810D75A6CE3628D12B926D01E2DCE01448A513762F13EFC6B2FA57204179B6EB1B0C5CCC8CA6CA244D86141E53125A248A7AE5A02E56885D2A1763B966484694C993E8E410C3F8B8D9109BB014B65A4B9EDEC0D8D56B9C259E41697EC5451EDA0E089EBA016AFF076C0DD4C527FD1B8EC1DC436E2E4534C088289FD357A8CEF513C2760AEF2A632F83C62204C6832321F5A41B7C094730041DC9197858FA5BA48FE48B7EFA352683A0F714A68433263128878EC9BE750DE538F830A2EB16A47CD8199FB3828284C630669C14B55C69AA42875F7CB1EF846F0DB6C210ADF5ABE9D82AAC60C52BB541868D5539F8C")
		    Try
		      x = BiggerNumberVQZ.ACoth(N("1"))
		      MissFailure("BiggerNumberVQZ.ACoth of N('1')")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.ACoth of N('1')", e, "BigNumberErrorExceptionVQZ", "ACoth operation failed with number 1.")
		    End Try
		    Try
		      x = BiggerNumberVQZ.ACoth(BiggerNumberVQZ.Nan)
		      MissFailure("BiggerNumberVQZ.ACoth of BiggerNumberVQZ.Nan")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.ACoth of BiggerNumberVQZ.Nan", e, "BigNumberErrorExceptionVQZ", "ACoth operation failed with number NaN.")
		    End Try
		    Try
		      x = BiggerNumberVQZ.ACoth(none)
		      MissFailure("BiggerNumberVQZ.ACoth of none")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.ACoth of none", e, "BigNumberErrorExceptionVQZ", "ACoth operation failed with number nil.")
		    End Try
		  Catch e As RuntimeException
		    Unexpected("BiggerNumberVQZ.ACoth", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfATanh()
		  #Pragma BreakOnExceptions False
		  Dim x As BiggerNumberVQZ
		  Dim none As BiggerNumberVQZ
		  Try
		    x = BiggerNumberVQZ.ATanh(N("0.5"))
		    CheckText("BiggerNumberVQZ.ATanh", x.GetStringValue(10, False, 99999, 600, True, "."), "0.549306144334054845697622618461262852323745278911374725867347166818747146609304483436807877406866044393985014532978932871184002112965259910526400935383638705301581384591690683589686849422180479951871285158397955760572795958875335673527470083387790111101585126473448780345053260752821434069018158686649288891183495827396065909074510015051911815061124326374099112995548726245448229026733504422982542874222059509428543823747433539806542914705801083060592000704912757195974384446839924715112786576766484267264762572960693824734296628139720827847078913615517758443305105923494521997153156912764286823344141")
		    CheckBytes("BiggerNumberVQZ.ATanh", x.DataMantissa, "11E89CF51EE7108DEBFE4369FC29F393F42D6810D75A6CE3628D12B926D01E2DCE01448A513762F13EFC6B2FA57204179B6EB1B0C5CCC8CA6CA244D86141E53125A248A7AE5A02E56885D2A1763B966484694C993E8E410C3F8B8D9109BB014B65A4B9EDEC0D8D56B9C259E41697EC5451EDA0E089EBA016AFF076C0DD4C527FD1B8EC1DC436E2E4534C088289FD357A8CEF513C2760AEF2A632F83C62204C6832321F5A41B7C094730041DC9197858FA5BA48FE48B7EFA352683A0F714A68433263128878EC9BE750DE538F830A2EB16A47CD8199FB3828284C630669C14B55C69AA42875F7CB1EF846F0DB6C210ADF5ABE9D82AAC60C52BB541868D5539F8C")
		    Try
		      x = BiggerNumberVQZ.ATanh(N("1"))
		      MissFailure("BiggerNumberVQZ.ATanh of N('1')")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.ATanh of N('1')", e, "BigNumberErrorExceptionVQZ", "ATanh operation failed with number 1.")
		    End Try
		    Try
		      x = BiggerNumberVQZ.ATanh(BiggerNumberVQZ.Nan)
		      MissFailure("BiggerNumberVQZ.ATanh of BiggerNumberVQZ.Nan")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.ATanh of BiggerNumberVQZ.Nan", e, "BigNumberErrorExceptionVQZ", "ATanh operation failed with number NaN.")
		    End Try
		    Try
		      x = BiggerNumberVQZ.ATanh(none)
		      MissFailure("BiggerNumberVQZ.ATanh of none")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.ATanh of none", e, "BigNumberErrorExceptionVQZ", "ATanh operation failed with number nil.")
		    End Try
		  Catch e As RuntimeException
		    Unexpected("BiggerNumberVQZ.ATanh", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfACosh()
		  #Pragma BreakOnExceptions False
		  Dim x As BiggerNumberVQZ
		  Dim none As BiggerNumberVQZ
		  Try
		    x = BiggerNumberVQZ.ACosh(N("2"))
		    CheckText("BiggerNumberVQZ.ACosh", x.GetStringValue(10, False, 99999, 600, True, "."), "1.316957896924816708625046347307968444026981971467516479768472256920460185416443976074219013450101783556465436565604979319809816862106371532726763345709920676905831128776256958170470437336863711940955650446796732000825937475377912890426772092633344421560844241189766870663034696512893614993749953769802862780873159940981142809766344237947668230734996192527815363036970894838990449628871022481651182883057284818951973440873184036652434288979554886514419904768654294164574178950672118581644555883147002267660087432223313664552320431493923673382776483400537431236003209726851866487291274731731854784137385")
		    CheckBytes("BiggerNumberVQZ.ACosh", x.DataMantissa, "C079326B9088FA498C7486814896294BC4D2D9159AC8F15894ECA98171C9385AAB75573A8DE4B044EAED4C54BABDCB37E4E4E2C6403D834379B6CCB95CE7A26ACB0C23C38FEFC942C16BF223406EE1E40CA875759940C8E96FA52A0EC14B976E8D2F523A2C09F76623926E09B26BE95CE2D64F3952EF69DF936C999DAF1BA5A13E907E9BE0A41BAB224D9A7DE8E4DBB478A363DF4D1F1B4EEAC734E59D4E65B80329E0341B80AF6764BC473A8315E1156FAFB64AA078855D1DD421C094586FEC696AC155DA18192910B1752E92DA5B0CC3481DB93DF1EBBDCEC342E9AE20E8ECD6E855A77756C874BB8C6394AD057F536667A9460CE82534DFA421C08C1392A8")
		    Try
		      x = BiggerNumberVQZ.ACosh(N("0.5"))
		      MissFailure("BiggerNumberVQZ.ACosh of N('0.5')")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.ACosh of N('0.5')", e, "BigNumberErrorExceptionVQZ", "ACosh operation failed with number 0.5.")
		    End Try
		    Try
		      x = BiggerNumberVQZ.ACosh(BiggerNumberVQZ.Nan)
		      MissFailure("BiggerNumberVQZ.ACosh of BiggerNumberVQZ.Nan")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.ACosh of BiggerNumberVQZ.Nan", e, "BigNumberErrorExceptionVQZ", "ACosh operation failed with number NaN.")
		    End Try
		    Try
		      x = BiggerNumberVQZ.ACosh(none)
		      MissFailure("BiggerNumberVQZ.ACosh of none")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.ACosh of none", e, "BigNumberErrorExceptionVQZ", "ACosh operation failed with number nil.")
		    End Try
		  Catch e As RuntimeException
		    Unexpected("BiggerNumberVQZ.ACosh", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfASinh()
		  #Pragma BreakOnExceptions False
		  Dim x As BiggerNumberVQZ
		  Dim none As BiggerNumberVQZ
		  Try
		    x = BiggerNumberVQZ.ASinh(N("0.5"))
		    CheckText("BiggerNumberVQZ.ASinh", x.GetStringValue(10, False, 99999, 600, True, "."), "0.48121182505960344749775891342436842313518433438566051966101816884016386760822177441200942912272347499723183995829365641127256832372673762275305924186440975418241700721183715022382393746918727524327919301879707900356172679694454575230534543418876528553256490207399693496618755630102123996367930820635997798850998015682579785264932866665111624171380827259278847902609653311324722751493140649850889321763660025666619532106796817576618473073515986039848457545412056323413570047800639487224315261789680045093639052503490478543352197865370437193903357677241670370417641767978031965232099656758795421613176")
		    CheckBytes("BiggerNumberVQZ.ASinh", x.DataMantissa, "E2EAACDA56FDE60135FAC6C52CEE9992B42036CBF77353B460B106DE8253B7BFCB057D83FCC3DF9B6BD36AC227890E2008FC29B5E1C9E7425BA82903EB523242027CD659C52B9502E3ED0504643109D960C1565D0E94B4AE2723AA5094414A1D76EBFFC2B0858C4D8EE4E25A6B84CBC33D9790609F3B30146F553D034A89EE7ADB8E37814BFFA648B2363BA539A905CC26BE58FD93AB44C4868D2CBAA87C87EDDEC5F4C8DE8A568363A8D29EAC8D3568D7AEEE68FECFC2B535A67FA45647C08EC4B992082199D5D0229440EFE0AE149325C1146D248985CF9A56FC36CBD8930F85FA9B3ACE4101DEBE93EF6866643D99068163B4540221F0A54CB028766561F6")
		    Try
		      x = BiggerNumberVQZ.ASinh(BiggerNumberVQZ.Max)
		      MissFailure("BiggerNumberVQZ.ASinh of BiggerNumberVQZ.Max")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.ASinh of BiggerNumberVQZ.Max", e, "BigNumberErrorExceptionVQZ", "ASinh operation failed with number " + InMessage(BiggerNumberVQZ.Max) + ".")
		    End Try
		    Try
		      x = BiggerNumberVQZ.ASinh(BiggerNumberVQZ.Nan)
		      MissFailure("BiggerNumberVQZ.ASinh of BiggerNumberVQZ.Nan")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.ASinh of BiggerNumberVQZ.Nan", e, "BigNumberErrorExceptionVQZ", "ASinh operation failed with number NaN.")
		    End Try
		    Try
		      x = BiggerNumberVQZ.ASinh(none)
		      MissFailure("BiggerNumberVQZ.ASinh of none")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.ASinh of none", e, "BigNumberErrorExceptionVQZ", "ASinh operation failed with number nil.")
		    End Try
		  Catch e As RuntimeException
		    Unexpected("BiggerNumberVQZ.ASinh", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfCoth()
		  #Pragma BreakOnExceptions False
		  Dim x As BiggerNumberVQZ
		  Dim none As BiggerNumberVQZ
		  Try
		    x = BiggerNumberVQZ.Coth(N("0.5"))
		    CheckText("BiggerNumberVQZ.Coth", x.GetStringValue(10, False, 99999, 600, True, "."), "2.163953413738652848770004010218023117093738602150792272533574119296087634783339486574409418809750115309240477161408091706658526910383823901982058895483358923228188086368706146841260275049474171386079091135747993480328432160813986139588081533319762627323209247136059916305241921413381311045640311005232215563927669331991989701216533720972553094914301034378289151018330006388249139511233675502922303623864208855853260967231287155287606950677655269072995483440319902194018636480281248914856740058811099079454217510427268976097563259247314316862341636106333526269826707862406510330399905207272822661178621")
		    CheckBytes("BiggerNumberVQZ.Coth", x.DataMantissa, "6A31DE1A4BC7E1B3A71A42B311324C0042634ACF37431306B4FBC908BE471433387BECB464BF91F12F3F0091A1301E04280A35DE0F3EE21F89C293B3C9F7A857BC110986B30563C3327AC7A2B57E5B0B22B1D33D807A2B0322F9580E2B79B73303C5369826BF3BBF232F3FC658CE153D32094BFBBF4D772DB5A140F844710B1A44A79001ACA7233BF23DCE1293E3F9AB29ECE981A040C948D2E502E05200DF9881F6008E2D18AFF8F9533003717BAA62BB51F9742B26DDEE53A69F4C1899AE3A9FB6467D2C385820642DF2328FBA3877C9CB2C984BA2E432A0B34B7B1B006CBCCA498FB8326D32BBBF19F53C8E5B9469F21153652B2A0EAEEAF6CD8475367E8A")
		    Try
		      x = BiggerNumberVQZ.Coth(N("0"))
		      MissFailure("BiggerNumberVQZ.Coth of N('0')")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.Coth of N('0')", e, "BigNumberErrorExceptionVQZ", "Coth operation failed with number 0.")
		    End Try
		    Try
		      x = BiggerNumberVQZ.Coth(BiggerNumberVQZ.Nan)
		      MissFailure("BiggerNumberVQZ.Coth of BiggerNumberVQZ.Nan")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.Coth of BiggerNumberVQZ.Nan", e, "BigNumberErrorExceptionVQZ", "Coth operation failed with number NaN.")
		    End Try
		    Try
		      x = BiggerNumberVQZ.Coth(none)
		      MissFailure("BiggerNumberVQZ.Coth of none")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.Coth of none", e, "BigNumberErrorExceptionVQZ", "Coth operation failed with number nil.")
		    End Try
		  Catch e As RuntimeException
		    Unexpected("BiggerNumberVQZ.Coth", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfTanh()
		  #Pragma BreakOnExceptions False
		  Dim x As BiggerNumberVQZ
		  Dim none As BiggerNumberVQZ
		  Try
		    x = BiggerNumberVQZ.Tanh(N("0.5"))
		    CheckText("BiggerNumberVQZ.Tanh", x.GetStringValue(10, False, 99999, 600, True, "."), "0.462117157260009758502318483643672548730289280330113038552731815838080906140409278774949064151962490584348932986281549132882265461869597895957144611615878563329132704166776939197372567930770270037301448608599262409581783611892899146703802769221335681782847733322189941264788013079341287738074200200095929575677598434351332514722712799602433375707360452669503027489529555316440305068020083077194675568505406909816368232345006278289766034464409251901766049175430686230723148366028773434837519661027877583650460266437512998787131559727566949675009677691175729640606240666067426372291663477078971582233321")
		    CheckBytes("BiggerNumberVQZ.Tanh", x.DataMantissa, "1BD0E2FFDB0F6A3A259247E5B6AF4F2D92AD552808E76FCD936B042BF74245F5DB3FE5DA595AF520E0DC149D3737B3A25A1B3F36279357A84FE55BD23496F4D3FA87E7B65B367531392A3B0AB297D192F2FCAB689AEED00BEFBA1A1232A9EA9BF20DD9A81E86060209B958FF59830EDA37CAE9D9152CC5DF4DDAEB3402B35EE47406D64FC9DDBFF7C0F3BDEC05DB9D424FDF618828D3C69450490C43003C7135A91408D36F43E242C1A55AF84DC4B730D8A73554221918D7B659C78A05C593739859594AF09F17037BDE2E007659F4E326638BC67E9133170E413F926258D88CAFBB24B6407F395B8234AD6F41AF4CE6D369842DE3107794289B57B4BA9E9AEC")
		    Try
		      x = BiggerNumberVQZ.Tanh(BiggerNumberVQZ.Max)
		      MissFailure("BiggerNumberVQZ.Tanh of BiggerNumberVQZ.Max")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.Tanh of BiggerNumberVQZ.Max", e, "BigNumberErrorExceptionVQZ", "Tanh operation failed with number " + InMessage(BiggerNumberVQZ.Max) + ".")
		    End Try
		    Try
		      x = BiggerNumberVQZ.Tanh(BiggerNumberVQZ.Nan)
		      MissFailure("BiggerNumberVQZ.Tanh of BiggerNumberVQZ.Nan")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.Tanh of BiggerNumberVQZ.Nan", e, "BigNumberErrorExceptionVQZ", "Tanh operation failed with number NaN.")
		    End Try
		    Try
		      x = BiggerNumberVQZ.Tanh(none)
		      MissFailure("BiggerNumberVQZ.Tanh of none")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.Tanh of none", e, "BigNumberErrorExceptionVQZ", "Tanh operation failed with number nil.")
		    End Try
		  Catch e As RuntimeException
		    Unexpected("BiggerNumberVQZ.Tanh", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfCosh()
		  #Pragma BreakOnExceptions False
		  Dim x As BiggerNumberVQZ
		  Dim none As BiggerNumberVQZ
		  Try
		    x = BiggerNumberVQZ.Cosh(N("0.5"))
		    CheckText("BiggerNumberVQZ.Cosh", x.GetStringValue(10, False, 99999, 600, True, "."), "1.127625965206380785226225161402672012547847118098667483628985735187858770303982016315712065782178049514645213775173661090604487530391277846591075637718868610818501952807625927996232181753694900070628738593585802103842632987787742310250151050909942513952044679123231130796974545012507189831230079020211733923734421307132086579757512012101435777239876502355092587041825901796168317819763863347998078152904887312404756160053823416482993713071631351248712072467147096586902372455830054358614446680326014747651305180710622159059748217553949060202214943527696288113227128154672054802685229340780618259646526")
		    CheckBytes("BiggerNumberVQZ.Cosh", x.DataMantissa, "4C99932CFBE8C9E1BF26B5E53A3BB48EFB27CCCD934E79A36EDB61D086C7B3FF5803CAE727BABB829F3679C86D7293DA8FEF8B7595D8560343CB470CBEE342818BB2C2EBAADF93B95F80776BD4C24766271DC97220B61EA734907CC12D27FE99C48FD25B29E1F058A12AA7F16C76C309DAD6C0FD244E283815E549D809A0A4FF7B78EF80FF1A44E138DDFDD6302B30648246B331D3DCBEED00457AF3305EB5B8E840C698AB0A3AF24F1439B9682C247576C8B6763904386624610A5E8115CA9A31FB1681A1557A5FD931036563044915F166CE4167A1F573B4F4FE7662900E2A794D1A317AB9A56485D4FCB83D6C66764674000483271DC122834657310C5690")
		    Try
		      x = BiggerNumberVQZ.Cosh(BiggerNumberVQZ.Max)
		      MissFailure("BiggerNumberVQZ.Cosh of BiggerNumberVQZ.Max")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.Cosh of BiggerNumberVQZ.Max", e, "BigNumberErrorExceptionVQZ", "Cosh operation failed with number " + InMessage(BiggerNumberVQZ.Max) + ".")
		    End Try
		    Try
		      x = BiggerNumberVQZ.Cosh(BiggerNumberVQZ.Nan)
		      MissFailure("BiggerNumberVQZ.Cosh of BiggerNumberVQZ.Nan")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.Cosh of BiggerNumberVQZ.Nan", e, "BigNumberErrorExceptionVQZ", "Cosh operation failed with number NaN.")
		    End Try
		    Try
		      x = BiggerNumberVQZ.Cosh(none)
		      MissFailure("BiggerNumberVQZ.Cosh of none")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.Cosh of none", e, "BigNumberErrorExceptionVQZ", "Cosh operation failed with number nil.")
		    End Try
		  Catch e As RuntimeException
		    Unexpected("BiggerNumberVQZ.Cosh", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfSinh()
		  #Pragma BreakOnExceptions False
		  Dim x As BiggerNumberVQZ
		  Dim none As BiggerNumberVQZ
		  Try
		    x = BiggerNumberVQZ.Sinh(N("0.5"))
		    CheckText("BiggerNumberVQZ.Sinh", x.GetStringValue(10, False, 99999, 600, True, "."), "0.521095305493747361622425626411491559105928982611480527946093576452802250890233592317064454274188593488221423981134135914066679444828331313249895814771191186110920706290777986723716282905794344826240166742832663616998433669072057778674830160802344861262927516388740478237116570607292680008730563634880020650891883175943108178501270613338496178472813574190230294434275055943620168361679401860205346017199831026186754470071838059050814538954430049724179886616903052328127068239803059418149354278154878547471167082845920495112009306554409637074377663087703479554375663460662416305602980186181960780847043")
		    CheckBytes("BiggerNumberVQZ.Sinh", x.DataMantissa, "F05D115BEA7F55BAA2AD61BEDA8F2DE33C3706E3BD3FB12E9D7BD4CAA9B40C36B119F68A035C5AC51D3E8BF08327EFBEF6D288232C6CFC7B90F35A6C259E3D7EE5588EF41EF95D13A9223C7D2722BBB5BD028769240F982A1DEE9372A3C2440C1A5399C40A9A8C75B694BFE6EC883EE944861F6D55FAA6C7C657EEE20EAEAA914BF60D507E35F785DD036494C91933A8E145817DDBE656AED775162AFE90EB377CFD6F13C6BB15EEBBEF7FC1C79E6C230396AF42D02A89B0EF18CF41AC486CBE30683429BDC93E9D888E5B2CC6505B1F35CB781329998356B84414BBB451D8DAD95733019C8900FB4E9E11A1F0188509251133D7B0ABC4AB51B6DC317F806685")
		    Try
		      x = BiggerNumberVQZ.Sinh(BiggerNumberVQZ.Max)
		      MissFailure("BiggerNumberVQZ.Sinh of BiggerNumberVQZ.Max")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.Sinh of BiggerNumberVQZ.Max", e, "BigNumberErrorExceptionVQZ", "Sinh operation failed with number " + InMessage(BiggerNumberVQZ.Max) + ".")
		    End Try
		    Try
		      x = BiggerNumberVQZ.Sinh(BiggerNumberVQZ.Nan)
		      MissFailure("BiggerNumberVQZ.Sinh of BiggerNumberVQZ.Nan")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.Sinh of BiggerNumberVQZ.Nan", e, "BigNumberErrorExceptionVQZ", "Sinh operation failed with number NaN.")
		    End Try
		    Try
		      x = BiggerNumberVQZ.Sinh(none)
		      MissFailure("BiggerNumberVQZ.Sinh of none")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.Sinh of none", e, "BigNumberErrorExceptionVQZ", "Sinh operation failed with number nil.")
		    End Try
		  Catch e As RuntimeException
		    Unexpected("BiggerNumberVQZ.Sinh", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfACot()
		  #Pragma BreakOnExceptions False
		  Dim x As BiggerNumberVQZ
		  Try
		    x = BiggerNumberVQZ.ACot(N("2"))
		    CheckText("BiggerNumberVQZ.ACot", x.GetStringValue(10, False, 99999, 600, True, "."), "0.463647609000806116214256231461214402028537054286120263810933088720197864165741705300600283984887892556529852251190837513505818181625011155471530569944105620719336266164880101532502755987925805516853889167478237286538793918012517199484013955838185115095021633306493872154609732078555557208601463227565242673052180457464008697450583897363896489002648687785378012823633121716457814683690099334052888248624456238811909015894976799719701149677600164500625301681212560933530413493966301293192427484029316111949206162084415937236127316687698168702759318951033397332592903851289254594592246321560978363800954")
		    CheckBytes("BiggerNumberVQZ.ACot", x.DataMantissa, "3C3E1142B335EF047A95540BDD3903F40CED47348B29E267921A81554404C3BDD129332BE9616B9C80D5E21D72B93B49BAD0893892E2E60E8F3E8E82D6D6F9B77653879C8F580B2A0E3B31460FE45739B2E1C6813AF3DDC3643E91C845262FBE6AFB758AB8D3EE2B3BBBC76307E047CC057B96D975C53E335E92C612BAF76C19A7F6BAA32664D3F056D80B40B0A6363C4D05EEBFB1B8AEEF5BBED74BC39E68C1917754E15B6CD2DF3875690709DD365307CB6C0802EABF6E659BB24153471379BD8D2286365ED8D613003CFD0EE8E1CE8261A4C6F812C8876C512B8917599CFA094762E9E616CFE200DF1C268715146E038D3ABCEC45E46F457BDA0D2B3863ED")
		  Catch e As RuntimeException
		    Unexpected("BiggerNumberVQZ.ACot", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfATan()
		  #Pragma BreakOnExceptions False
		  Dim x As BiggerNumberVQZ
		  Try
		    x = BiggerNumberVQZ.ATan(N("2"))
		    CheckText("BiggerNumberVQZ.ATan", x.GetStringValue(10, False, 99999, 600, True, "."), "1.107148717794090503017065460178537040070047645401432646676539207433710338977362794013417128686170641434544191005450315810041104123150279960391149134120134938005805785186089159020277066323548671948337093046927250546427929146225306917409377626797415839477802650155236302150617431245551139595028661343071619620451122700330078743309876584050730556855033496160917167182032143557952418577001974141917867556092072396370970780081569293338989816628296388058648735549977420441253262448910061152421541607476658452967630519135912384306883380785499443665836032138897074518792365757298891993783946015848255470901612")
		    CheckBytes("BiggerNumberVQZ.ATan", x.DataMantissa, "D66A980E3F541927D5547BC195483270EAC898BDF7037A7B6BBE9983076561A670A0C89F02717A12B861DF0D9ADDDC4B9BDE29E14BA50BF2EB12644BED0D29ED25B1EC3008A11B59787FAA5C42653AA40F69A6293AEF7CC06B4898D8BC6B80B79217F94D1974D9D3EC63934754FB50A9D40E3E66C6AB95F6C72A7378BA01BBA2F01567732C6FA5DCEFC860910CD3F272EAD9E87C25B83C4D4F3055A960FC443EC1813462E4D043B69F5A2CB274A53137A9BA1C2469489C98EDD7F191A1E34086D61EC9CBDF1D2B5A321410336A90727CBA2A919BF514A3CD8230E9AB33F2A2D25F09BB80ECF857C9B394E0C0A6487D4D9079CD511051CD686323F25D970CB78D")
		  Catch e As RuntimeException
		    Unexpected("BiggerNumberVQZ.ATan", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfACos()
		  #Pragma BreakOnExceptions False
		  Dim x As BiggerNumberVQZ
		  Dim none As BiggerNumberVQZ
		  Try
		    x = BiggerNumberVQZ.ACos(N("0.5"))
		    CheckText("BiggerNumberVQZ.ACos", x.GetStringValue(10, False, 99999, 600, True, "."), "1.047197551196597746154214461093167628065723133125035273658314864102605468762069666209344941780705689327382695504427435549031281536516860743908453136042827039150094700900646173701853214874316318310127321476270325221977815376158549411262261055090400636381882855641153449536818108882737797869086749713757908195668868771862724960506973654276418030571788122630863453337110176849606822173794715650647170536477685756788586530651030728705793977537264368372849358154126654249855783961917574963742646061003983043277891120813552214362007131648798408245730234059953647900923513072392097725584128224939489223135044")
		    CheckBytes("BiggerNumberVQZ.ACos", x.DataMantissa, "F22613EAC76BE31ACDA63558B36477731ED8715C3CB4A163B55851BB65198C0EEEF1B8F1FD300ED1BA64E5B8F98772E9DBE1324AA03E2E790A17054817AD6F6702045F651DFABE97D2DE79C92E94B521A86B65315B9D4DF6ADBA7DDCDE785DEF486464A0AF70E369D2E158C08EF74168B973C23D6D93430295DF6D531BD50E46BC37396879859110597F42167BA855817EE742F38B99C530441532A80B186A746E6A06E7FC47D09E9E7A04F879E8545D479E7A19F181DDA284549441A42359982E2CE1489E23968ACF623F4C495CC7CABC2C7C33CDBBB89F3E03780951B0868BC1BCB77C197FB2564D889AB10534AC708B683DAB0797D92D232C9B6BC1910A86")
		    Try
		      x = BiggerNumberVQZ.ACos(N("1.1"))
		      MissFailure("BiggerNumberVQZ.ACos of N('1.1')")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.ACos of N('1.1')", e, "BigNumberErrorExceptionVQZ", "ACos operation failed with number 1.1.")
		    End Try
		    Try
		      x = BiggerNumberVQZ.ACos(BiggerNumberVQZ.Nan)
		      MissFailure("BiggerNumberVQZ.ACos of BiggerNumberVQZ.Nan")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.ACos of BiggerNumberVQZ.Nan", e, "BigNumberErrorExceptionVQZ", "ACos operation failed with number NaN.")
		    End Try
		    Try
		      x = BiggerNumberVQZ.ACos(none)
		      MissFailure("BiggerNumberVQZ.ACos of none")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.ACos of none", e, "BigNumberErrorExceptionVQZ", "ACos operation failed with number nil.")
		    End Try
		  Catch e As RuntimeException
		    Unexpected("BiggerNumberVQZ.ACos", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfASin()
		  #Pragma BreakOnExceptions False
		  Dim x As BiggerNumberVQZ
		  Dim none As BiggerNumberVQZ
		  Try
		    x = BiggerNumberVQZ.ASin(N("0.5"))
		    CheckText("BiggerNumberVQZ.ASin", x.GetStringValue(10, False, 99999, 600, True, "."), "0.523598775598298873077107230546583814032861566562517636829157432051302734381034833104672470890352844663691347752213717774515640768258430371954226568021413519575047350450323086850926607437158159155063660738135162610988907688079274705631130527545200318190941427820576724768409054441368898934543374856878954097834434385931362480253486827138209015285894061315431726668555088424803411086897357825323585268238842878394293265325515364352896988768632184186424679077063327124927891980958787481871323030501991521638945560406776107181003565824399204122865117029976823950461756536196048862792064112469744611567522")
		    CheckBytes("BiggerNumberVQZ.ASin", x.DataMantissa, "E52613EAC76BE31ACDA63558B36477731ED8715C3CB4A163B55851BB65198C0EEEF1B8F1FD300ED1BA64E5B8F98772E9DBE1324AA03E2E790A17054817AD6F6702045F651DFABE97D2DE79C92E94B521A86B65315B9D4DF6ADBA7DDCDE785DEF486464A0AF70E369D2E158C08EF74168B973C23D6D93430295DF6D531BD50E46BC37396879859110597F42167BA855817EE742F38B99C530441532A80B186A746E6A06E7FC47D09E9E7A04F879E8545D479E7A19F181DDA284549441A42359982E2CE1489E23968ACF623F4C495CC7CABC2C7C33CDBBB89F3E03780951B0868BC1BCB77C197FB2564D889AB10534AC708B683DAB0797D92D232C9B6BC1910A86")
		    Try
		      x = BiggerNumberVQZ.ASin(N("1.1"))
		      MissFailure("BiggerNumberVQZ.ASin of N('1.1')")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.ASin of N('1.1')", e, "BigNumberErrorExceptionVQZ", "ASin operation failed with number 1.1.")
		    End Try
		    Try
		      x = BiggerNumberVQZ.ASin(BiggerNumberVQZ.Nan)
		      MissFailure("BiggerNumberVQZ.ASin of BiggerNumberVQZ.Nan")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.ASin of BiggerNumberVQZ.Nan", e, "BigNumberErrorExceptionVQZ", "ASin operation failed with number NaN.")
		    End Try
		    Try
		      x = BiggerNumberVQZ.ASin(none)
		      MissFailure("BiggerNumberVQZ.ASin of none")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.ASin of none", e, "BigNumberErrorExceptionVQZ", "ASin operation failed with number nil.")
		    End Try
		  Catch e As RuntimeException
		    Unexpected("BiggerNumberVQZ.ASin", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfCot()
		  #Pragma BreakOnExceptions False
		  Dim x As BiggerNumberVQZ
		  Dim none As BiggerNumberVQZ
		  Try
		    x = BiggerNumberVQZ.Cot(N("1"))
		    CheckText("BiggerNumberVQZ.Cot", x.GetStringValue(10, False, 99999, 600, True, "."), "0.642092615934330703006419986594265620230278113918171379101162280426276856839164672198482919760196804658143065960471415739183569634937059331223787843100562027965901779525839931444312269210221209970923945748130603547776586855266615709568267543188726546597807106104926294896267092950811609524834270163541376995415614589528607011078582272593760886708270679705906871374911850819692604258145541985589974375686906078792752522808121268519996616771465318330953348632462237217465539799820979617114418729124512193196617790943736473273202548587251789635662401422424213824468295404441911053114219068194442835253914")
		    CheckBytes("BiggerNumberVQZ.Cot", x.DataMantissa, "FD3C03FAE13CAA42A2E81F24058673DA74C712B5893E82D9740347FEE1DA352E2D48FECC50E04903771CAD37B5351355566153F2103560E56791A4DF2348490041A50E5C6937BF034446D116E371158FD8191D0C56E30375F29C7ADC5A4E0C4F46555BC834CD5D752C2052B5EA4CE2660734AC2D82D02691BFA1A5B4F5313B7D038F6DA7B3C97EFF99BD9904282CAD63257D70C4B2C173C38E1080B743A1E1248A67547CD1043C3D63C4878D797C657F233ACC2576C05CD7C67B496177D6A798A544DA42EA753C53C84047F634D4B74C23E1FE63AC731873E11B51031E51F8C46388A070BB3B606361B0429AFE7255B92BEEEA81A15BD9291AECE770822E60A4")
		    Try
		      x = BiggerNumberVQZ.Cot(N("0"))
		      MissFailure("BiggerNumberVQZ.Cot of N('0')")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.Cot of N('0')", e, "BigNumberErrorExceptionVQZ", "Cot operation failed with number 0.")
		    End Try
		    Try
		      x = BiggerNumberVQZ.Cot(BiggerNumberVQZ.Nan)
		      MissFailure("BiggerNumberVQZ.Cot of BiggerNumberVQZ.Nan")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.Cot of BiggerNumberVQZ.Nan", e, "BigNumberErrorExceptionVQZ", "Cot operation failed with number NaN.")
		    End Try
		    Try
		      x = BiggerNumberVQZ.Cot(none)
		      MissFailure("BiggerNumberVQZ.Cot of none")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.Cot of none", e, "BigNumberErrorExceptionVQZ", "Cot operation failed with number nil.")
		    End Try
		  Catch e As RuntimeException
		    Unexpected("BiggerNumberVQZ.Cot", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfTan()
		  #Pragma BreakOnExceptions False
		  Dim x As BiggerNumberVQZ
		  Dim none As BiggerNumberVQZ
		  Try
		    x = BiggerNumberVQZ.Tan(N("1"))
		    CheckText("BiggerNumberVQZ.Tan", x.GetStringValue(10, False, 99999, 600, True, "."), "1.55740772465490223050697480745836017308725077238152003838394660569886139715172728955509996520224298380463382141174816661332355461812455893760607168454890443929358604316714790803682461327470695559734164061077553524730250679685050704135238514491762148162757002788602245077201401618577213067394166432236901667567179509626108823302248521311483505916296925876161117326501004594563482156433538505325978086315498242890618922107588488789242213852090536561044344723628619254465787782735148507739088807003721590703087914325170582091362696195343774789401660074563161578816956816146143618665672922863309770967692")
		    CheckBytes("BiggerNumberVQZ.Tan", x.DataMantissa, "7848231D58A1F9AEC3E55DF157A7A8894ED3685ACC906B2B96165B88DAD168FF446199EB2BE32085CE78F82A0A252C1EC711D0DBEC053D1CCFF61426486F07625674071DAD150A376F8867CA5386F2B39E9B7D4165E664A198C0FA560BCE1D5123FE39C367684EE7FECDCBECAA87390F0F9A24B830CFCC9F94CB07AAA603E1DA3B0C8A5B4D78DF72F52FE545F3EE2AEDFF7EF63D4B2400F1E8BB73FC0137F61C1684BE94153B4697E5064F790C0EB125E876844A992308DC728FAA6D8C85033C3E56BFF5BD06B5B17C427FC8D744CBE062B89D91AC7BD7E0ECB01CD7CF9D40B6966A6DCE76ACE95EC954666346BF12A9DA59A01899A03E66C52D1DF7E52259C7")
		    Try
		      x = BiggerNumberVQZ.Tan(BiggerNumberVQZ.Max)
		      MissFailure("BiggerNumberVQZ.Tan of BiggerNumberVQZ.Max")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.Tan of BiggerNumberVQZ.Max", e, "BigNumberErrorExceptionVQZ", "Tan operation failed with number " + InMessage(BiggerNumberVQZ.Max) + ".")
		    End Try
		    Try
		      x = BiggerNumberVQZ.Tan(BiggerNumberVQZ.Nan)
		      MissFailure("BiggerNumberVQZ.Tan of BiggerNumberVQZ.Nan")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.Tan of BiggerNumberVQZ.Nan", e, "BigNumberErrorExceptionVQZ", "Tan operation failed with number NaN.")
		    End Try
		    Try
		      x = BiggerNumberVQZ.Tan(none)
		      MissFailure("BiggerNumberVQZ.Tan of none")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.Tan of none", e, "BigNumberErrorExceptionVQZ", "Tan operation failed with number nil.")
		    End Try
		  Catch e As RuntimeException
		    Unexpected("BiggerNumberVQZ.Tan", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfCos()
		  #Pragma BreakOnExceptions False
		  Dim x As BiggerNumberVQZ
		  Dim none As BiggerNumberVQZ
		  Try
		    x = BiggerNumberVQZ.Cos(N("1"))
		    CheckText("BiggerNumberVQZ.Cos", x.GetStringValue(10, False, 99999, 600, True, "."), "0.540302305868139717400936607442976603732310420617922227670097255381100394774471764517951856087183089343571731160030089097860633760021663456406512265417318584717971164474479494233117924551393254335943517756702892596375736154327549641754491775115131222730100631357078232236771401517468995936678730674227620245077637440675874981617842720216455851115632968890571081242729331698685247145689490434237543309442302409359623958318245472817366407807124343362174810032202712975788229176446835987269942649134439182656945351575076278251380499160730638031721445034986129488336335655779909793015287927884038980097455")
		    CheckBytes("BiggerNumberVQZ.Cos", x.DataMantissa, "295F9CBE453C1CEEBFC660281413B85159F3436952D6F8ABE8819FA2EE0B5E5254203FFCEB8933BF58060C3475A2594E099EE95AA1313A9A7176BEDC4BD342839953CFD31410A66B58352DB01D269110077F9C8171F14DDDCED9195A64BC3387E087EF4C8CD22774849A90DC72E0E4F9BC58503D4D5310D2451634CC22DB64B14A92E3B498CCB53E1EEAB456FB0A224D891F646766B6F8FB541568865416596BD20BF6933F50A9BA1C0742750587CEAF4E687B9F7F0D61A7532710F601F8507B7563B45223FA0696040282DB414034C99BF98F3B0E45F3439E0E2DA53044A996FAE660B7400230F2B7C3964F893A37A229BD7168976D46C2915C34A87D40518A")
		    Try
		      x = BiggerNumberVQZ.Cos(BiggerNumberVQZ.Max)
		      MissFailure("BiggerNumberVQZ.Cos of BiggerNumberVQZ.Max")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.Cos of BiggerNumberVQZ.Max", e, "BigNumberErrorExceptionVQZ", "Cos operation failed with number " + InMessage(BiggerNumberVQZ.Max) + ".")
		    End Try
		    Try
		      x = BiggerNumberVQZ.Cos(BiggerNumberVQZ.Nan)
		      MissFailure("BiggerNumberVQZ.Cos of BiggerNumberVQZ.Nan")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.Cos of BiggerNumberVQZ.Nan", e, "BigNumberErrorExceptionVQZ", "Cos operation failed with number NaN.")
		    End Try
		    Try
		      x = BiggerNumberVQZ.Cos(none)
		      MissFailure("BiggerNumberVQZ.Cos of none")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.Cos of none", e, "BigNumberErrorExceptionVQZ", "Cos operation failed with number nil.")
		    End Try
		  Catch e As RuntimeException
		    Unexpected("BiggerNumberVQZ.Cos", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfSin()
		  #Pragma BreakOnExceptions False
		  Dim x As BiggerNumberVQZ
		  Dim none As BiggerNumberVQZ
		  Try
		    x = BiggerNumberVQZ.Sin(N("1"))
		    CheckText("BiggerNumberVQZ.Sin", x.GetStringValue(10, False, 99999, 600, True, "."), "0.841470984807896506652502321630298999622563060798371065672751709991910404391239668948639743543052695854349037907920674293259118920991898881193410327729212409480791955826766606999907764011978408782732566347484802870298656157017962455394893572924670127086486281053382030561377218203868449667761674266239013382753397956764255565477963989764824328690275696429120630058303651523031278255289853264851398193452135970955962062172114814441781057601075674136648055008916726605804140078062393070371877956261288804636081734524656391420252404187763420749206952007713347809814279021452682556632082335215441609164421")
		    CheckBytes("BiggerNumberVQZ.Sin", x.DataMantissa, "2B7BB79D82B14F7CD9E74F53588B26AC2EE439FB024676770C8D6F244B0D9903F3BF3737346B52F5EF1D53F33E03BF92DA8FD33BC4CD4C421A40BCCD326625C5EEFA7D8DAA2D16FA05A4E911A05375650EA5624AA0F238E71450121872DE0E67FE9BF1D43EC479D13F0E43D47BE974835F8CE2F106CCF851F4C2B60D0EB61B61E7ED7536023DC26830BCB2887CEC01AF06369875640EFCDCEB245D3045D64DE4312784349591E713C59229551327E4EB764DC76D617CA0319B595B0FD8E839291704EB0C25A689FEEB0CFD5D635563C2503B3D6A82B5557657D4DC1EFFD90BFBBD49C6D65FCAB6EF4D8B512F1311E589323C0FC509E9E9C62070674878A46AD7")
		    Try
		      x = BiggerNumberVQZ.Sin(BiggerNumberVQZ.Max)
		      MissFailure("BiggerNumberVQZ.Sin of BiggerNumberVQZ.Max")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.Sin of BiggerNumberVQZ.Max", e, "BigNumberErrorExceptionVQZ", "Sin operation failed with number " + InMessage(BiggerNumberVQZ.Max) + ".")
		    End Try
		    Try
		      x = BiggerNumberVQZ.Sin(BiggerNumberVQZ.Nan)
		      MissFailure("BiggerNumberVQZ.Sin of BiggerNumberVQZ.Nan")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.Sin of BiggerNumberVQZ.Nan", e, "BigNumberErrorExceptionVQZ", "Sin operation failed with number NaN.")
		    End Try
		    Try
		      x = BiggerNumberVQZ.Sin(none)
		      MissFailure("BiggerNumberVQZ.Sin of none")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.Sin of none", e, "BigNumberErrorExceptionVQZ", "Sin operation failed with number nil.")
		    End Try
		  Catch e As RuntimeException
		    Unexpected("BiggerNumberVQZ.Sin", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfLog()
		  #Pragma BreakOnExceptions False
		  Dim x As BiggerNumberVQZ
		  Dim none As BiggerNumberVQZ
		  Try
		    CheckText("BiggerNumberVQZ.Log", Shown(BiggerNumberVQZ.Log(N("1024"), N("2"))), "10")
		    x = BiggerNumberVQZ.Log(N("3"), N("2"))
		    CheckText("BiggerNumberVQZ.Log", x.GetStringValue(10, False, 99999, 600, True, "."), "1.584962500721156181453738943947816508759814407692481060455752654541098227794358562522280474918088242090980662475059167343717552441060924822142083950621698299493657592238585234441582536302747685306978051687599554473726683462461236424885004758181067696131640480713082323328126244524867063389801483723423578366247839011897700646631263422336334182127010609804917747254135733011049902626881825170357699471215711363891249413575219299869904076708153950540448836005036823127541914749100173257866898925697744774938240861996356515529792799178520148475921953751611260057205378865301368537607619852674211740645714")
		    CheckBytes("BiggerNumberVQZ.Log", x.DataMantissa, "1E0757CE7B875BAEE45E05CF996AE74C369E98F9D2B8E5EE0806BFF5D67460A9366F65AA81A737372DC0CB2ADAF219F0798A982FC260FA828FAE96762D629F562E36D41CEAC31DF69AEDB3D567BAEC403BB03883122146812192873B85351B27B01956DC595DCF960B15B75DF190F2A7B8EEAEB072C46E04D5A58661D046900759DA17C7DC3278C30D70BF762CE748FFD9AF59F143C8602E6999E345B2BD429380EF526D53FDB25F5F02575E641255DF587EEDBE726B368C829E6468BBD9FBABD6152901F294B2430CFCED9130DBA46C51B2EB7DB8FCC5334CB762D8FFE67D8AFB20FD9226C8F23D20D82CD151F37992E8D64503058905D0CF43EBFD1C0DE0CA")
		    Try
		      x = BiggerNumberVQZ.Log(N("8"), N("1"))
		      MissFailure("BiggerNumberVQZ.Log of N('8') and N('1')")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.Log of N('8') and N('1')", e, "BigNumberErrorExceptionVQZ", "Log operation failed with numbers 8 and 1.")
		    End Try
		    Try
		      x = BiggerNumberVQZ.Log(BiggerNumberVQZ.Nan, N("3"))
		      MissFailure("BiggerNumberVQZ.Log of BiggerNumberVQZ.Nan and N('3')")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.Log of BiggerNumberVQZ.Nan and N('3')", e, "BigNumberErrorExceptionVQZ", "Log operation failed with numbers NaN and 3.")
		    End Try
		    Try
		      x = BiggerNumberVQZ.Log(N("3"), BiggerNumberVQZ.Nan)
		      MissFailure("BiggerNumberVQZ.Log of N('3') and BiggerNumberVQZ.Nan")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.Log of N('3') and BiggerNumberVQZ.Nan", e, "BigNumberErrorExceptionVQZ", "Log operation failed with numbers 3 and NaN.")
		    End Try
		    Try
		      x = BiggerNumberVQZ.Log(N("3"), none)
		      MissFailure("BiggerNumberVQZ.Log of N('3') and none")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.Log of N('3') and none", e, "BigNumberErrorExceptionVQZ", "Log operation failed with numbers 3 and nil.")
		    End Try
		    Try
		      x = BiggerNumberVQZ.Log(none, N("3"))
		      MissFailure("BiggerNumberVQZ.Log of Nil")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.Log of Nil", e, "BigNumberErrorExceptionVQZ", "Log operation failed with numbers nil and 3.")
		    End Try
		  Catch e As RuntimeException
		    Unexpected("BiggerNumberVQZ.Log", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfLn()
		  #Pragma BreakOnExceptions False
		  Dim x As BiggerNumberVQZ
		  Dim none As BiggerNumberVQZ
		  Try
		    x = BiggerNumberVQZ.Ln(N("3"))
		    CheckText("BiggerNumberVQZ.Ln", x.GetStringValue(10, False, 99999, 600, True, "."), "1.098612288668109691395245236922525704647490557822749451734694333637494293218608966873615754813732088787970029065957865742368004225930519821052801870767277410603162769183381367179373698844360959903742570316795911521145591917750671347054940166775580222203170252946897560690106521505642868138036317373298577782366991654792131818149020030103823630122248652748198225991097452490896458053467008845965085748444119018857087647494867079613085829411602166121184001409825514391948768893679849430225573153532968534529525145921387649468593256279441655694157827231035516886610211846989043994306313825528573646688282")
		    CheckBytes("BiggerNumberVQZ.Ln", x.DataMantissa, "11E89CF51EE7108DEBFE4369FC29F393F42D6810D75A6CE3628D12B926D01E2DCE01448A513762F13EFC6B2FA57204179B6EB1B0C5CCC8CA6CA244D86141E53125A248A7AE5A02E56885D2A1763B966484694C993E8E410C3F8B8D9109BB014B65A4B9EDEC0D8D56B9C259E41697EC5451EDA0E089EBA016AFF076C0DD4C527FD1B8EC1DC436E2E4534C088289FD357A8CEF513C2760AEF2A632F83C62204C6832321F5A41B7C094730041DC9197858FA5BA48FE48B7EFA352683A0F714A68433263128878EC9BE750DE538F830A2EB16A47CD8199FB3828284C630669C14B55C69AA42875F7CB1EF846F0DB6C210ADF5ABE9D82AAC60C52BB541868D5539F8C")
		    Try
		      x = BiggerNumberVQZ.Ln(N("0"))
		      MissFailure("BiggerNumberVQZ.Ln of N('0')")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.Ln of N('0')", e, "BigNumberErrorExceptionVQZ", "Ln operation failed with number 0.")
		    End Try
		    Try
		      x = BiggerNumberVQZ.Ln(BiggerNumberVQZ.Nan)
		      MissFailure("BiggerNumberVQZ.Ln of BiggerNumberVQZ.Nan")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.Ln of BiggerNumberVQZ.Nan", e, "BigNumberErrorExceptionVQZ", "Ln operation failed with number NaN.")
		    End Try
		    Try
		      x = BiggerNumberVQZ.Ln(none)
		      MissFailure("BiggerNumberVQZ.Ln of none")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.Ln of none", e, "BigNumberErrorExceptionVQZ", "Ln operation failed with number nil.")
		    End Try
		  Catch e As RuntimeException
		    Unexpected("BiggerNumberVQZ.Ln", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfExp()
		  #Pragma BreakOnExceptions False
		  Dim x As BiggerNumberVQZ
		  Dim none As BiggerNumberVQZ
		  Try
		    x = BiggerNumberVQZ.Exp(N("0.5"))
		    CheckText("BiggerNumberVQZ.Exp", x.GetStringValue(10, False, 99999, 600, True, "."), "1.648721270700128146848650787814163571653776100710148011575079311640661021194215608632776520056366643002866637756307797004671166975219609159840971452490059796929422659098403914719948464659489244896868905336418465720841066656859800088924981211712287375214972195511971609034091115619799869839960642655091754574626304483075194758258782625439931955712690076545322881476100957739788486181443265208203424170104718338591510630125661475533808252026061400972891959084050148915029440695633113776763800958480893295122472263556542654171757524108358697276592606615399767667602791615334471108288209526962579040493569")
		    CheckBytes("BiggerNumberVQZ.Exp", x.DataMantissa, "44481C5AF0A8F43E91FDE54428034B009A434FBF72EED13A3D19CCB5DB21BA9A311045AD29E86865AED5BEC02F060B3A0B595087AB0E55410B4575C2D0B26140FEDE09663ADC4243B491152AE8532541869E8CA7B2BD6A3C4387C67A7F8820A051391FBE2E2EB793FCF40665E3BA627EFC9950B44FCBFB9BF810C14911F779C8A173F6A8BEB53FA427DF2FA115B8493873E973F04050EAC4EC7F8508B026ABD4A63F7EA28EE844E92D0CF999CC7BDA0678930E98A1997C3E9CEDF17ED73900FA492FB11580BA19AE1DF9307BC6ACF6A48BCC8ACBFB6D379F101789D43CB97A1766F9B33148FE25E2ACA38509B6F828FBD8FC996F5B7DFF964BDE34F0704C09D3")
		    Try
		      x = BiggerNumberVQZ.Exp(BiggerNumberVQZ.Max)
		      MissFailure("BiggerNumberVQZ.Exp of BiggerNumberVQZ.Max")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.Exp of BiggerNumberVQZ.Max", e, "BigNumberErrorExceptionVQZ", "Exp operation failed with number " + InMessage(BiggerNumberVQZ.Max) + ".")
		    End Try
		    Try
		      x = BiggerNumberVQZ.Exp(BiggerNumberVQZ.Nan)
		      MissFailure("BiggerNumberVQZ.Exp of BiggerNumberVQZ.Nan")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.Exp of BiggerNumberVQZ.Nan", e, "BigNumberErrorExceptionVQZ", "Exp operation failed with number NaN.")
		    End Try
		    Try
		      x = BiggerNumberVQZ.Exp(none)
		      MissFailure("BiggerNumberVQZ.Exp of none")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.Exp of none", e, "BigNumberErrorExceptionVQZ", "Exp operation failed with number nil.")
		    End Try
		  Catch e As RuntimeException
		    Unexpected("BiggerNumberVQZ.Exp", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfMinAndMax()
		  #Pragma BreakOnExceptions False
		  Try
		    CheckText("BiggerNumberVQZ.Max", HexOf(BiggerNumberVQZ.Max.DataMantissa), AllOnes(BiggerNumberVQZ.Max.DataMantissa.Size))
		    Dim top As MemoryBlock = BiggerNumberVQZ.Max.DataExponent
		    CheckInteger("BiggerNumberVQZ.Max", top.Byte(top.Size - 1), 127)
		    CheckTrue("BiggerNumberVQZ.Max", BiggerNumberVQZ.Max.Add(BiggerNumberVQZ.Min, True).IsZero)
		    CheckTrue("BiggerNumberVQZ.Min", BiggerNumberVQZ.Min.IsNegative)
		    CheckTrue("BiggerNumberVQZ.Min", BiggerNumberVQZ.Min.Negate.Equals(BiggerNumberVQZ.Max))
		  Catch e As RuntimeException
		    Unexpected("BiggerNumberVQZ.Max", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfZeroAndOne()
		  #Pragma BreakOnExceptions False
		  Try
		    CheckText("BiggerNumberVQZ.Zero", Shown(BiggerNumberVQZ.Zero), "0")
		    CheckText("BiggerNumberVQZ.One", Shown(BiggerNumberVQZ.One), "1")
		    CheckText("BiggerNumberVQZ.Nan", Shown(BiggerNumberVQZ.Nan), "NaN")
		  Catch e As RuntimeException
		    Unexpected("BiggerNumberVQZ.Zero", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfPi()
		  #Pragma BreakOnExceptions False
		  Dim x As BiggerNumberVQZ
		  Try
		    x = BiggerNumberVQZ.Pi
		    CheckText("BiggerNumberVQZ.Pi", x.GetStringValue(10, False, 99999, 600, True, "."), "3.141592653589793238462643383279502884197169399375105820974944592307816406286208998628034825342117067982148086513282306647093844609550582231725359408128481117450284102701938521105559644622948954930381964428810975665933446128475648233786783165271201909145648566923460348610454326648213393607260249141273724587006606315588174881520920962829254091715364367892590360011330530548820466521384146951941511609433057270365759591953092186117381932611793105118548074462379962749567351885752724891227938183011949129833673362440656643086021394946395224737190702179860943702770539217176293176752384674818467669405132")
		    CheckBytes("BiggerNumberVQZ.Pi", x.DataMantissa, "65BA1CDFAB2155A8337A50040D1733AD2DC4AA8A5A8E72151005FA981826D215E56A95EA7C49953918175895F6CB2BDEC9524C6FF05DC5B58FA207ECA283279B03860E182C779EE33BCE362E465E90327C2118CA086C74F10498BC4A4E350C676D9696700729D59EBB52852056F3621C96ADA3DC235D65835FCF24FDA83F16699AD3551C3648DA9805BF63A1B87C00C23D5BE4EC51662849E61F4B7C11249FAEA59F895AFB6B38EEEDB706F4B65CFF0B6BED37A6E9424CF4C67E5E6276B585E445C2516D6D35E14F37145FF26D0A2B301B433ACDB31995EFDD04348E79084A51229B133BA6BE0B0274CC678A084E0229D11CDC808B62C6C434C26821A2DA0FC9")
		  Catch e As RuntimeException
		    Unexpected("BiggerNumberVQZ.Pi", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfHalfPi()
		  #Pragma BreakOnExceptions False
		  Dim x As BiggerNumberVQZ
		  Try
		    x = BiggerNumberVQZ.HalfPi
		    CheckText("BiggerNumberVQZ.HalfPi", x.GetStringValue(10, False, 99999, 600, True, "."), "1.570796326794896619231321691639751442098584699687552910487472296153908203143104499314017412671058533991074043256641153323546922304775291115862679704064240558725142051350969260552779822311474477465190982214405487832966723064237824116893391582635600954572824283461730174305227163324106696803630124570636862293503303157794087440760460481414627045857682183946295180005665265274410233260692073475970755804716528635182879795976546093058690966305896552559274037231189981374783675942876362445613969091505974564916836681220328321543010697473197612368595351089930471851385269608588146588376192337409233834702566")
		    CheckBytes("BiggerNumberVQZ.HalfPi", x.DataMantissa, "65BA1CDFAB2155A8337A50040D1733AD2DC4AA8A5A8E72151005FA981826D215E56A95EA7C49953918175895F6CB2BDEC9524C6FF05DC5B58FA207ECA283279B03860E182C779EE33BCE362E465E90327C2118CA086C74F10498BC4A4E350C676D9696700729D59EBB52852056F3621C96ADA3DC235D65835FCF24FDA83F16699AD3551C3648DA9805BF63A1B87C00C23D5BE4EC51662849E61F4B7C11249FAEA59F895AFB6B38EEEDB706F4B65CFF0B6BED37A6E9424CF4C67E5E6276B585E445C2516D6D35E14F37145FF26D0A2B301B433ACDB31995EFDD04348E79084A51229B133BA6BE0B0274CC678A084E0229D11CDC808B62C6C434C26821A2DA0FC9")
		  Catch e As RuntimeException
		    Unexpected("BiggerNumberVQZ.HalfPi", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfTwoPi()
		  #Pragma BreakOnExceptions False
		  Dim x As BiggerNumberVQZ
		  Try
		    x = BiggerNumberVQZ.TwoPi
		    CheckText("BiggerNumberVQZ.TwoPi", x.GetStringValue(10, False, 99999, 600, True, "."), "6.283185307179586476925286766559005768394338798750211641949889184615632812572417997256069650684234135964296173026564613294187689219101164463450718816256962234900568205403877042211119289245897909860763928857621951331866892256951296467573566330542403818291297133846920697220908653296426787214520498282547449174013212631176349763041841925658508183430728735785180720022661061097640933042768293903883023218866114540731519183906184372234763865223586210237096148924759925499134703771505449782455876366023898259667346724881313286172042789892790449474381404359721887405541078434352586353504769349636935338810264")
		    CheckBytes("BiggerNumberVQZ.TwoPi", x.DataMantissa, "65BA1CDFAB2155A8337A50040D1733AD2DC4AA8A5A8E72151005FA981826D215E56A95EA7C49953918175895F6CB2BDEC9524C6FF05DC5B58FA207ECA283279B03860E182C779EE33BCE362E465E90327C2118CA086C74F10498BC4A4E350C676D9696700729D59EBB52852056F3621C96ADA3DC235D65835FCF24FDA83F16699AD3551C3648DA9805BF63A1B87C00C23D5BE4EC51662849E61F4B7C11249FAEA59F895AFB6B38EEEDB706F4B65CFF0B6BED37A6E9424CF4C67E5E6276B585E445C2516D6D35E14F37145FF26D0A2B301B433ACDB31995EFDD04348E79084A51229B133BA6BE0B0274CC678A084E0229D11CDC808B62C6C434C26821A2DA0FC9")
		  Catch e As RuntimeException
		    Unexpected("BiggerNumberVQZ.TwoPi", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfE()
		  #Pragma BreakOnExceptions False
		  Dim x As BiggerNumberVQZ
		  Try
		    x = BiggerNumberVQZ.E
		    CheckText("BiggerNumberVQZ.E", x.GetStringValue(10, False, 99999, 600, True, "."), "2.718281828459045235360287471352662497757247093699959574966967627724076630353547594571382178525166427427466391932003059921817413596629043572900334295260595630738132328627943490763233829880753195251019011573834187930702154089149934884167509244761460668082264800168477411853742345442437107539077744992069551702761838606261331384583000752044933826560297606737113200709328709127443747047230696977209310141692836819025515108657463772111252389784425056953696770785449969967946864454905987931636889230098793127736178215424999229576351482208269895193668033182528869398496465105820939239829488793320362509443117")
		    CheckBytes("BiggerNumberVQZ.E", x.DataMantissa, "38029CF9DEF434BC5B0319653B5B35DEDCCF1F6138426B88FAEFB2C1264AF3C6B283167D83F18EC50520C22EBCFCB53B73AD6F4C1B3BFEC38381F2EE32124F8EFF8385E99CFE7291612F3428CD0434C0ECE2F7CDE1FC029E706D0AEEC8A7070B19BB7263E7ED56AEF44D39DEA3424F1D68F4D760B7DA6AB9FBE3C8B24BA908D161FB24B382B10ABC7A793A484FCAAC3035E7AD36A158F11D72E8EFF3DA89A6E2778BE6E0700C4F9835C9577F5E1357B5F31AED3D55656385D06E065F1FF533246165FDD5D51EDFD37A61C4AE02B281F6D8750C6363E32F7DF93E9B24CE9D93CCFB3364144136E1A995362DCE83C5B9D8F13C3D272056DCAF9A4ABBA25854F8AD")
		  Catch e As RuntimeException
		    Unexpected("BiggerNumberVQZ.E", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfLn2()
		  #Pragma BreakOnExceptions False
		  Dim x As BiggerNumberVQZ
		  Try
		    x = BiggerNumberVQZ.Ln2
		    CheckText("BiggerNumberVQZ.Ln2", x.GetStringValue(10, False, 99999, 600, True, "."), "0.693147180559945309417232121458176568075500134360255254120680009493393621969694715605863326996418687542001481020570685733685520235758130557032670751635075961930727570828371435190307038623891673471123350115364497955239120475172681574932065155524734139525882950453007095326366642654104239157814952043740430385500801944170641671518644712839968171784546957026271631064546150257207402481637773389638550695260668341137273873722928956493547025762652098859693201965058554764703306793654432547632744951250406069438147104689946506220167720424524529612687946546193165174681392672504103802546259656869144192871608")
		    CheckBytes("BiggerNumberVQZ.Ln2", x.DataMantissa, "8BC1645018B5505F1BB32D1B5D738F07B16C606CDB3C31AE9D7BE1B179515D952C0D3517540A480CA37AFE5C01B64D07828E145E8A7F9C6A37A36435339B66255D09D6D10B1E1A4C4C519393654ECCCC33CD79B432E743C9E59089DB7507461796B30014DE232E7D15FA1EFC6D9D56EEA251E58FF8300D6190FB5BFB11CAF407C6D53F0FC5972DDAA2E3202F87A15F6548323038BDA6DFF5CA48659DB187CE724BF75776ECA06F253B6036B1C39BEAB97E387C3111DACB1AC5E84A2216CA963E25B86911293B5727442138C135AE2EED101BFA4AFB52955598ACEB6D2076B8E72BFAAA8B5B170D8A2DB698722643F340AFF6F20398B3E3C9AB79CFD1F71772B1")
		  Catch e As RuntimeException
		    Unexpected("BiggerNumberVQZ.Ln2", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfLn10()
		  #Pragma BreakOnExceptions False
		  Dim x As BiggerNumberVQZ
		  Try
		    x = BiggerNumberVQZ.Ln10
		    CheckText("BiggerNumberVQZ.Ln10", x.GetStringValue(10, False, 99999, 600, True, "."), "2.302585092994045684017991454684364207601101488628772976033327900967572609677352480235997205089598298341967784042286248633409525465082806756666287369098781689482907208325554680843799894826233198528393505308965377732628846163366222287698219886746543667474404243274365155048934314939391479619404400222105101714174800368808401264708068556774321622835522011480466371565912137345074785694768346361679210180644507064800027750268491674655058685693567342067058113642922455440575892572420824131469568901675894025677631135691929203337658714166023010570308963457207544037084746994016826928280848118428931484852495")
		    CheckBytes("BiggerNumberVQZ.Ln10", x.DataMantissa, "8F64BA616D46B04C0ABA21D8FFFB6BADB12DDEFF00578AE36039944E60377EF7A5E869DFAAEA49A9509B0D7BF14780E8CA1BAF5FD2C848386E6D8E74513CFD3D1E40B7A96E4888AF601027EB6DA97FF4DB398326DE5C76456A12141ECCF30BE4C0FDD457EA281DDB4F5D8C9726CB7EA41916276A2EB4D59C98EE3AADCA8F47E281E905938EA59E460FE2EDD557B0085B4F9C78448D36938E855060235BB367CABBC719D249BB6151FAC6B34AB0CE66EFFB31D8B0C3A65A761E918C8AA2F82C78D616E50284788FFBDAE20B411824622C680D5F2CC0CB70CC5C10A8B1D7022F96722DF001821EC6830EF95DDAF9EC8FE2280AD3822BD656EA16ACA8AADD8D5D93")
		  Catch e As RuntimeException
		    Unexpected("BiggerNumberVQZ.Ln10", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfRand()
		  #Pragma BreakOnExceptions False
		  Dim x As BiggerNumberVQZ
		  Try
		    x = BiggerNumberVQZ.Rand
		    CheckTrue("BiggerNumberVQZ.Rand", Not (x.IsNan))
		    CheckTrue("BiggerNumberVQZ.Rand", Not (x.IsNegative))
		    CheckTrue("BiggerNumberVQZ.Rand", Not (x.IsZero))
		    CheckTrue("BiggerNumberVQZ.Rand", Not (x.Equals(BiggerNumberVQZ.Rand)))
		  Catch e As RuntimeException
		    Unexpected("BiggerNumberVQZ.Rand", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfNilLeftOfOperators()
		  #If kOperatorLeft Then
		    #Pragma BreakOnExceptions False
		    Dim x As BiggerNumberVQZ
		    Dim none As BiggerNumberVQZ
		    Try
		      Try
		        x = none + N("3")
		        MissFailure("BiggerNumberVQZ.Operator_Add of Nil")
		      Catch e As RuntimeException
		        CheckFailed("BiggerNumberVQZ.Operator_Add of Nil", e, "BigNumberErrorExceptionVQZ", "Operator_Add operation failed with numbers nil and 3.")
		      End Try
		      Try
		        x = none - N("3")
		        MissFailure("BiggerNumberVQZ.Operator_Subtract of Nil")
		      Catch e As RuntimeException
		        CheckFailed("BiggerNumberVQZ.Operator_Subtract of Nil", e, "BigNumberErrorExceptionVQZ", "Operator_Subtract operation failed with numbers nil and 3.")
		      End Try
		      Try
		        x = none * N("3")
		        MissFailure("BiggerNumberVQZ.Operator_Multiply of Nil")
		      Catch e As RuntimeException
		        CheckFailed("BiggerNumberVQZ.Operator_Multiply of Nil", e, "BigNumberErrorExceptionVQZ", "Operator_Multiply operation failed with numbers nil and 3.")
		      End Try
		      Try
		        x = none / N("3")
		        MissFailure("BiggerNumberVQZ.Operator_Divide of Nil")
		      Catch e As RuntimeException
		        CheckFailed("BiggerNumberVQZ.Operator_Divide of Nil", e, "BigNumberErrorExceptionVQZ", "Operator_Divide operation failed with numbers nil and 3.")
		      End Try
		    Catch e As RuntimeException
		      Unexpected("Nil left of an operator of BiggerNumberVQZ", e)
		    End Try
		  #EndIf
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfNilRightOfOperators()
		  #If kOperatorRight And kConversionIn Then
		    #Pragma BreakOnExceptions False
		    Dim x As BiggerNumberVQZ
		    Dim none As BiggerNumberVQZ
		    Try
		      Try
		        x = "3" + none
		        MissFailure("BiggerNumberVQZ.Operator_AddRight of Nil")
		      Catch e As RuntimeException
		        CheckFailed("BiggerNumberVQZ.Operator_AddRight of Nil", e, "BigNumberErrorExceptionVQZ", "Operator_Add operation failed with numbers nil and 3.")
		      End Try
		      Try
		        x = "3" - none
		        MissFailure("BiggerNumberVQZ.Operator_SubtractRight of Nil")
		      Catch e As RuntimeException
		        CheckFailed("BiggerNumberVQZ.Operator_SubtractRight of Nil", e, "BigNumberErrorExceptionVQZ", "Operator_Subtract operation failed with numbers nil and 3.")
		      End Try
		      Try
		        x = "3" * none
		        MissFailure("BiggerNumberVQZ.Operator_MultiplyRight of Nil")
		      Catch e As RuntimeException
		        CheckFailed("BiggerNumberVQZ.Operator_MultiplyRight of Nil", e, "BigNumberErrorExceptionVQZ", "Operator_Multiply operation failed with numbers nil and 3.")
		      End Try
		      Try
		        x = "3" / none
		        MissFailure("BiggerNumberVQZ.Operator_DivideRight of Nil")
		      Catch e As RuntimeException
		        CheckFailed("BiggerNumberVQZ.Operator_DivideRight of Nil", e, "BigNumberErrorExceptionVQZ", "Operator_Divide operation failed with numbers nil and 3.")
		      End Try
		    Catch e As RuntimeException
		      Unexpected("Nil right of an operator of BiggerNumberVQZ", e)
		    End Try
		  #EndIf
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OfNilReceivers()
		  #Pragma BreakOnExceptions False
		  Dim x As BiggerNumberVQZ
		  Dim none As BiggerNumberVQZ
		  Try
		    CheckTrue("BiggerNumberVQZ.IsNan of Nil", none.IsNan)
		    CheckText("BiggerNumberVQZ.GetStringValue of Nil", none.GetStringValue(10, False, 15, -1, True, "."), "NaN")
		    Try
		      x = none.Ceil
		      MissFailure("BiggerNumberVQZ.Ceil of Nil")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.Ceil of Nil", e, "BigNumberErrorExceptionVQZ", "Ceil operation failed with number nil.")
		    End Try
		    Try
		      x = none.Floor
		      MissFailure("BiggerNumberVQZ.Floor of Nil")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.Floor of Nil", e, "BigNumberErrorExceptionVQZ", "Floor operation failed with number nil.")
		    End Try
		    Try
		      x = none.Round
		      MissFailure("BiggerNumberVQZ.Round of Nil")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.Round of Nil", e, "BigNumberErrorExceptionVQZ", "Round operation failed with number nil.")
		    End Try
		    Try
		      x = none.Sqrt
		      MissFailure("BiggerNumberVQZ.Sqrt of Nil")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.Sqrt of Nil", e, "BigNumberErrorExceptionVQZ", "Sqrt operation failed with number nil.")
		    End Try
		    Try
		      x = none.Add(N("3"), True)
		      MissFailure("BiggerNumberVQZ.Add of Nil")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.Add of Nil", e, "BigNumberErrorExceptionVQZ", "Add operation failed with numbers nil and 3.")
		    End Try
		    Try
		      x = none.Subtract(N("3"), True)
		      MissFailure("BiggerNumberVQZ.Subtract of Nil")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.Subtract of Nil", e, "BigNumberErrorExceptionVQZ", "Sub operation failed with numbers nil and 3.")
		    End Try
		    Try
		      x = none.Multiply(N("3"), True)
		      MissFailure("BiggerNumberVQZ.Multiply of Nil")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.Multiply of Nil", e, "BigNumberErrorExceptionVQZ", "Mul operation failed with numbers nil and 3.")
		    End Try
		    Try
		      x = none.Divide(N("3"), True)
		      MissFailure("BiggerNumberVQZ.Divide of Nil")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.Divide of Nil", e, "BigNumberErrorExceptionVQZ", "Div operation failed with numbers nil and 3.")
		    End Try
		    Try
		      x = none.Modulate(N("3"))
		      MissFailure("BiggerNumberVQZ.Modulate of Nil")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.Modulate of Nil", e, "BigNumberErrorExceptionVQZ", "Mod operation failed with numbers nil and 3.")
		    End Try
		    Try
		      x = none.Pow(N("3"))
		      MissFailure("BiggerNumberVQZ.Pow of Nil")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.Pow of Nil", e, "BigNumberErrorExceptionVQZ", "Pow operation failed with numbers nil and 3.")
		    End Try
		    Try
		      x = none.BitAnd(N("3"))
		      MissFailure("BiggerNumberVQZ.BitAnd of Nil")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.BitAnd of Nil", e, "BigNumberErrorExceptionVQZ", "BitwiseAnd operation failed with numbers nil and 3.")
		    End Try
		    Try
		      x = none.BitOr(N("3"))
		      MissFailure("BiggerNumberVQZ.BitOr of Nil")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.BitOr of Nil", e, "BigNumberErrorExceptionVQZ", "BitwiseOr operation failed with numbers nil and 3.")
		    End Try
		    Try
		      x = none.BitXOr(N("3"))
		      MissFailure("BiggerNumberVQZ.BitXOr of Nil")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.BitXOr of Nil", e, "BigNumberErrorExceptionVQZ", "BitwiseXor operation failed with numbers nil and 3.")
		    End Try
		    Try
		      Dim blockDataMantissa As MemoryBlock = none.DataMantissa
		      MissFailure("BiggerNumberVQZ.DataMantissa of Nil")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.DataMantissa of Nil", e, "NilObjectException", "Not initialized")
		    End Try
		    Try
		      Dim blockDataExponent As MemoryBlock = none.DataExponent
		      MissFailure("BiggerNumberVQZ.DataExponent of Nil")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.DataExponent of Nil", e, "NilObjectException", "Not initialized")
		    End Try
		    Try
		      Dim flags As Integer = none.DataFlags
		      MissFailure("BiggerNumberVQZ.DataFlags of Nil")
		    Catch e As RuntimeException
		      CheckFailed("BiggerNumberVQZ.DataFlags of Nil", e, "NilObjectException", "Not initialized")
		    End Try
		  Catch e As RuntimeException
		    Unexpected("Nil as a receiver of BiggerNumberVQZ", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag ViewBehavior
	#tag EndViewBehavior
End Module
#tag EndModule
