#tag Module
Protected Module FactorialExample
	#tag Method, Flags = &h1
		Protected Sub Run()
		  ' Factorials: all 615 digits of 300!, and the point where the precision ends.
		  
		  Dim digits As String = Factorial(300).GetStringValue(10, False, 1000)
		  Print "300! has " + Str(Len(digits)) + " digits:"
		  PrintLines(digits, 75)
		  
		  Print "Exact factorials: BigNumberVQZ up to " + Str(LastExactFactorial(256)) + "!, BiggerNumberVQZ up to " _
		      + Str(LastExactFactorial(2048)) + "!"
		  
		  ' Beyond, the leading digits are right, and the size is right for a very long time.
		  For Each n As Integer In Array(500, 1000, 5000)
		    Print Str(n) + "! = " + Factorial(n).GetStringValue(10, True, 15, 40)
		  Next
		End Sub
	#tag EndMethod


	#tag Method, Flags = &h21
		Private Function Factorial(n As Integer) As BiggerNumberVQZ
		  Dim result As New BiggerNumberVQZ(1)
		  For i As Integer = 2 To n
		    result = result.Multiply(i)
		  Next
		  Return result
		End Function
	#tag EndMethod


	#tag Method, Flags = &h21
		Private Sub PrintLines(digits As String, width As Integer)
		  For i As Integer = 1 To Len(digits) Step width
		    Print "  " + Mid(digits, i, width)
		  Next
		End Sub
	#tag EndMethod


	#tag Method, Flags = &h21
		Private Function LastExactFactorial(bits As Integer) As Integer
		  ' A number is a mantissa of 2048 bits times a power of two. So factors of two cost nothing, and a
		  ' product is exact as long as the rest of it stays below 2^2048. The smaller class has 256 bits.
		  Dim limit As BiggerNumberVQZ = "2"
		  limit = limit ^ Str(bits)
		  Dim odd As New BiggerNumberVQZ(1)
		  Dim n As Integer = 1
		  While odd < limit
		    n = n + 1
		    Dim factor As Integer = n
		    While factor Mod 2 = 0
		      factor = factor \ 2
		    Wend
		    odd = odd.Multiply(factor)
		  Wend
		  Return n - 1
		End Function
	#tag EndMethod


	#tag ViewBehavior
	#tag EndViewBehavior
End Module
#tag EndModule
