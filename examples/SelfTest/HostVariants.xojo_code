#tag Module
Protected Module HostVariants
	#tag Note, Name = About
		Whether the library reads each kind of Variant, makes Variants, and shares memory blocks with the host.
		NumberWithVariant reads a Double as a Single, the property VariantValue all of it.
	#tag EndNote

	#tag Method, Flags = &h1
		Protected Sub Run()
		  Integers
		  RealNumbers
		  OtherValues
		  Dates
		  MadeByLibrary
		  Blocks
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Function N(digits As String) As BigNumberVQZ
		  Return BigNumberVQZ.NumberWithString(digits)
		End Function
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub CheckVariant(name As String, value As Variant, expected As String)
		  ' By NumberWithVariant and by the property.
		  #Pragma BreakOnExceptions False
		  Try
		    CheckText(name, TextOf(BigNumberVQZ.NumberWithVariant(value)), expected)
		    Dim number As BigNumberVQZ = N("77")
		    number.VariantValue = value
		    CheckText(name, TextOf(number), expected)
		  Catch e As RuntimeException
		    Unexpected(name, e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub Integers()
		  Dim narrow As Int32 = -2147483647
		  CheckVariant("variant-of-int32", narrow, "-2147483647")
		  Dim wide As Int64 = -9007199254740993
		  CheckVariant("variant-of-int64", wide, "-9007199254740993")
		  Dim narrowUnsigned As UInt32 = 4294967295
		  CheckVariant("variant-of-uint32", narrowUnsigned, "4294967295")
		  Dim wideUnsigned As UInt64 = 9223372036854775807
		  wideUnsigned = wideUnsigned + wideUnsigned + 1
		  CheckVariant("variant-of-uint64", wideUnsigned, "18446744073709551615")
		  Dim whole As Integer = -5
		  If IntegerHas64Bits Then
		    CheckVariant("variant-of-int64", whole, "-5")
		  Else
		    CheckVariant("variant-of-int32", whole, "-5")
		  End If
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub RealNumbers()
		  Dim shortReal As Single = 0.75
		  CheckVariant("variant-of-single", shortReal, "0.75")
		  Dim real As Double = -2.5
		  CheckVariant("variant-of-double", real, "-2.5")
		  Dim amount As Currency = 12.3456
		  CheckVariant("variant-of-currency", amount, "12.3456")
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub OtherValues()
		  #Pragma BreakOnExceptions False
		  CheckVariant("variant-of-boolean", True, "1")
		  CheckVariant("variant-of-boolean", False, "0")
		  CheckVariant("variant-of-string", "-12.5 metres", "-12.5")
		  CheckVariant("variant-of-color", RGB(1, 2, 3), "66051")
		  Try
		    Dim unassigned As Variant
		    CheckTrue("variant-of-nil", BigNumberVQZ.NumberWithVariant(unassigned) Is Nil)
		    Dim number As BigNumberVQZ = N("77")
		    number.VariantValue = unassigned
		    CheckText("variant-of-nil", TextOf(number), "0")
		  Catch e As RuntimeException
		    Unexpected("variant-of-nil", e)
		  End Try
		  Try
		    Dim block As New MemoryBlock(8)
		    Call BigNumberVQZ.NumberWithVariant(block)
		    MissFailure("variant-of-number")
		  Catch e As RuntimeException
		    CheckFailed("variant-of-number", e, "UnsupportedOperationException", "Conversion not supported.")
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub Dates()
		  #Pragma BreakOnExceptions False
		  Dim day As New Date
		  day.TotalSeconds = 3847219200
		  CheckVariant("variant-of-date", day, "3847219200")
		  #If RBVersion >= 2019.02 Then
		    Dim moment As New DateTime(1637496000.0)
		    CheckVariant("variant-of-datetime", moment, "1637496000")
		  #EndIf
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub MadeByLibrary()
		  #Pragma BreakOnExceptions False
		  Try
		    Dim made As Variant = N("-5").VariantValue
		    CheckInteger("variant-from-int32", VarType(made), 2)
		    CheckInteger("variant-from-int32", made.IntegerValue, -5)
		    made = N("-9007199254740993").VariantValue
		    CheckInteger("variant-from-int64", VarType(made), 3)
		    CheckTrue("variant-from-int64", made.Int64Value = -9007199254740993)
		    made = N("2.75").VariantValue
		    CheckInteger("variant-from-string", VarType(made), 8)
		    CheckText("variant-from-string", made.StringValue, "2.75")
		  Catch e As RuntimeException
		    Unexpected("variant-from-int32", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub Blocks()
		  #Pragma BreakOnExceptions False
		  Try
		    Dim mantissa As MemoryBlock = N("1").DataMantissa
		    CheckInteger("block-returned", mantissa.Size, 32)
		    CheckBytes("block-returned", mantissa, "0000000000000000000000000000000000000000000000000000000000000080")
		    ' 1.5 times the power of two is half of it more.
		    mantissa.Byte(31) = 192
		    Dim number As BigNumberVQZ = N("1")
		    number.DataMantissa = mantissa
		    CheckText("block-passed", TextOf(number), "1.5")
		  Catch e As RuntimeException
		    Unexpected("block-passed", e)
		  End Try
		End Sub
	#tag EndMethod


	#tag ViewBehavior
	#tag EndViewBehavior
End Module
#tag EndModule
