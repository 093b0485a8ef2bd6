#tag Module
Protected Module CompoundInterestExample
	#tag Method, Flags = &h1
		Protected Sub Run()
		  ' Compound interest, exact to the cent. Amounts are whole numbers of cents, which a big number holds
		  ' exactly, and the rate is a whole number of hundredths of a percent. So the only rounding is the one
		  ' that the bank does itself: each year's interest, to whole cents, half a cent upwards.
		  
		  Print "1,000.00 at 3.75 % a year, interest rounded to the cent each year:"
		  Dim balance As New BigNumberVQZ(100000)
		  For year As Integer = 1 To 30
		    Dim earned As BigNumberVQZ = Interest(balance, 375)
		    balance = balance + earned
		    If year <= 3 Or year Mod 10 = 0 Then
		      Print "  year " + Str(year) + ": interest " + Amount(earned) + ", balance " + Amount(balance)
		    End If
		  Next
		  
		  Print "The same 1,000.00 put aside in the year 1, at 5 % until the year 2026:"
		  balance = New BigNumberVQZ(100000)
		  Dim inDoubles As Double = 100000
		  For year As Integer = 2 To 2026
		    balance = balance + Interest(balance, 500)
		    inDoubles = inDoubles + Round(inDoubles * 500 / 10000)
		  Next
		  Print "  exactly: " + Amount(balance)
		  Print "  Double:  " + Amount(New BigNumberVQZ(inDoubles))
		  
		  ' Text is read exactly as far as the mantissa goes; a literal with a point is a Double already.
		  Print "1.15 as text and as a Double:"
		  Print "  " + (New BigNumberVQZ("1.15")).StringValue
		  Print "  " + (New BigNumberVQZ(1.15)).StringValue
		End Sub
	#tag EndMethod


	#tag Method, Flags = &h21
		Private Function Interest(cents As BigNumberVQZ, basisPoints As Integer) As BigNumberVQZ
		  Return (cents.Multiply(basisPoints) / "10000").Round
		End Function
	#tag EndMethod


	#tag Method, Flags = &h21
		Private Function Amount(cents As BigNumberVQZ) As String
		  ' Cents as text: 123456789 is 1,234,567.89.
		  Dim digits As String = cents.GetStringValue(10, False, 100)
		  While Len(digits) < 3
		    digits = "0" + digits
		  Wend
		  Dim grouped As String = "." + Right(digits, 2)
		  digits = Left(digits, Len(digits) - 2)
		  While Len(digits) > 3
		    grouped = "," + Right(digits, 3) + grouped
		    digits = Left(digits, Len(digits) - 3)
		  Wend
		  Return digits + grouped
		End Function
	#tag EndMethod


	#tag ViewBehavior
	#tag EndViewBehavior
End Module
#tag EndModule
