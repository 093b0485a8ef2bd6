#tag Module
Protected Module ValuesExample
	#tag Method, Flags = &h1
		Protected Sub Run()
		  #Pragma BreakOnExceptions False
		  ' Values of the host as big numbers, and big numbers as values of the host. Both number classes have
		  ' the same conversions.
		  
		  Print "-- Integers are exact, from the smallest to the largest"
		  Dim most As UInt64 = 9223372036854775807         ' the largest literal of every version of Xojo
		  most = most + most + 1
		  Dim least As Int64 = -9223372036854775807 - 1
		  Dim x As New BigNumberVQZ(most)
		  Print x.GetStringValue(10, False, 20)            ' written out up to 10^20, not as 1.8...e+19
		  Print BigNumberVQZ.NumberWithInt64(least).GetStringValue(10, False, 20)
		  
		  Print "-- A property for each type sets the number and reads it"
		  x.IntegerValue = 40
		  x = x + "2.75"
		  Print "as a String: " + x.StringValue
		  Print "as an Integer: " + Str(x.IntegerValue)    ' integers cut the fraction
		  Print "as an Int64: " + Str(x.Int64Value)
		  Print "as a UInt64: " + Str(x.UInt64Value)
		  Print "as a Double: " + Str(x.DoubleValue)
		  Print "as a Currency: " + Str(x.CurrencyValue)
		  
		  Print "-- What does not fit is an error"
		  x.UInt64Value = most
		  Try
		    Print Str(x.Int64Value)
		  Catch e As BigNumberErrorExceptionVQZ
		    Print e.Message
		  End Try
		  x = "-1"
		  Try
		    Print Str(x.UInt64Value)
		  Catch e As BigNumberErrorExceptionVQZ
		    Print e.Message
		  End Try
		  
		  Print "-- A Double brings all of its bits, also those that its text does not show"
		  Dim tenth As Double = 0.1
		  Print New BigNumberVQZ(tenth)
		  Print New BigNumberVQZ("0.1")                    ' text is closer to what was meant
		  x.DoubleValue = tenth
		  Print "back again: " + Str(x.DoubleValue)
		  Dim narrow As Single = 0.1
		  Print BigNumberVQZ.NumberWithSingle(narrow)
		  
		  Print "-- A Currency has four decimal places"
		  Dim price As Currency = 19.99
		  x = New BigNumberVQZ(price)
		  x = x * "3" / "7"
		  Print Left(x.StringValue, 40) + "..."
		  price = x.CurrencyValue                          ' rounded, halves away from zero
		  Print Str(price)
		  
		  Print "-- A Variant says what it holds"
		  Dim value As Variant = 1099511627776
		  Print BigNumberVQZ.NumberWithVariant(value)
		  value = "12.5 metres"
		  Print BigNumberVQZ.NumberWithVariant(value)
		  Dim day As New Date                              ' dates count as their seconds
		  day.TotalSeconds = 3847219200.5
		  value = day
		  Print BigNumberVQZ.NumberWithVariant(value)
		  value = x
		  Print Str(BigNumberVQZ.NumberWithVariant(value).Equals(x))
		  value = New MemoryBlock(8)
		  Try
		    Print BigNumberVQZ.NumberWithVariant(value)
		  Catch e As UnsupportedOperationException
		    Print e.Message
		  End Try
		  
		  Print "-- NumberWithVariant reads a Double as a Single, the property VariantValue all of it"
		  value = tenth
		  Print BigNumberVQZ.NumberWithVariant(value)
		  x.VariantValue = value
		  Print x
		  
		  Print "-- A number as a Variant is an Integer or Int64 where it is one, else text"
		  
		  ShowVariant("5")
		  ShowVariant("1099511627776")
		  ShowVariant("9223372036854775808")
		  ShowVariant("1.5")
		  
		  Print "-- From one precision to the other"
		  Dim big As BiggerNumberVQZ = BiggerNumberVQZ.Pi
		  x = big.GetStringValue(10, False, 15, 80)        ' 80 decimal places are all that fit
		  Print Left(x.StringValue, 72) + "..."
		  big = x.StringValue
		  Print Left(big.StringValue, 72) + "..."
		  
		  Print "-- Bit for bit: the exponent, the mantissa and the flags"
		  Dim third As BigNumberVQZ = "1"
		  third = third / "3"
		  Dim exponent As MemoryBlock = third.DataExponent
		  Dim mantissa As MemoryBlock = third.DataMantissa
		  Dim flags As Integer = third.DataFlags
		  Print Str(exponent.Size) + " bytes, " + Str(mantissa.Size) + " bytes and " + Str(flags)
		  Dim restored As New BigNumberVQZ
		  restored.DataExponent = exponent
		  restored.DataMantissa = mantissa
		  restored.DataFlags = flags
		  Print "restored: " + Str(restored.Equals(third)) + ", from its text: " _
		      + Str(third.Equals(third.StringValue))
		End Sub
	#tag EndMethod


	#tag Method, Flags = &h21
		Private Sub ShowVariant(x As BigNumberVQZ)
		  Dim value As Variant = x.VariantValue
		  Dim shown As String = value
		  Print "type " + Str(VarType(value)) + ": " + shown
		End Sub
	#tag EndMethod


	#tag ViewBehavior
	#tag EndViewBehavior
End Module
#tag EndModule
