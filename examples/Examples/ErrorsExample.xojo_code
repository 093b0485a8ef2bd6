#tag Module
Protected Module ErrorsExample
	#tag Method, Flags = &h1
		Protected Sub Run()
		  #Pragma BreakOnExceptions False
		  ' What goes wrong, and how a program notices it: errors, numbers that are none, and Nil.
		  
		  Section("An operation that has no result raises an error, which names it and its numbers")
		  Dim seven As New BigNumberVQZ(7)
		  Dim minusTwo As New BigNumberVQZ(-2)
		  Try
		    Print seven / BigNumberVQZ.Zero
		  Catch e As BigNumberErrorExceptionVQZ
		    Print e.Message
		  End Try
		  Try
		    Print BigNumberVQZ.Ln(minusTwo)
		  Catch e As BigNumberErrorExceptionVQZ
		    Print e.Message
		  End Try
		  
		  Section("So does a number that the wanted type cannot hold")
		  Dim large As BigNumberVQZ = "1e30"
		  Try
		    Print Str(large.Int64Value)
		  Catch e As BigNumberErrorExceptionVQZ
		    Print e.Message
		  End Try
		  
		  Section("What a user types: a number and nothing else (a comma is taken as a point)")
		  
		  For Each typed As String In Array(" 12.50 ", "-1e6", "12,50", "twelve", "")
		    Try
		      Print ReadNumber(typed)
		    Catch e As RuntimeException
		      Print e.Message
		    End Try
		  Next
		  
		  Section("NaN and Nil: both say IsNan, and computing with them fails")
		  Print "NaN: " + Str(BigNumberVQZ.Nan.IsNan)
		  Dim unassigned As BigNumberVQZ
		  Try
		    Print "Nil: " + Str(unassigned.IsNan)
		  Catch e As NilObjectException
		    Print "Nil: this version of Xojo calls no methods of it"
		  End Try
		  For Each x As BigNumberVQZ In Array(BigNumberVQZ.Nan, unassigned)
		    Try
		      Print seven + x
		    Catch e As BigNumberErrorExceptionVQZ
		      Print e.Message
		    End Try
		  Next
		  Print "Beware, they compare as 0: " + Str(BigNumberVQZ.Nan = BigNumberVQZ.Zero)
		  
		  Section("One place for the errors of a whole computation, and what is done in any case")
		  
		  Try
		    Print Mean(Array(seven, minusTwo))
		    Dim none() As BigNumberVQZ
		    Print Mean(none)
		  Catch e As BigNumberErrorExceptionVQZ
		    Print "no mean: " + e.Message
		  Finally
		    Print "done"
		  End Try
		End Sub
	#tag EndMethod


	#tag Method, Flags = &h21
		Private Sub Section(title As String)
		  Print "-- " + title
		End Sub
	#tag EndMethod


	#tag Method, Flags = &h21
		Private Function ReadNumber(typed As String) As BigNumberVQZ
		  Dim x As New BigNumberVQZ
		  Dim rest As String
		  Dim found As Boolean
		  x.SetStringValue(Trim(typed), 10, rest, found)
		  If Not found Or rest <> "" Then
		    Dim mistake As New RuntimeException
		    mistake.Message = "'" + typed + "' is not a number"
		    Raise mistake
		  End If
		  Return x
		End Function
	#tag EndMethod


	#tag Method, Flags = &h21
		Private Function Mean(values() As BigNumberVQZ) As BigNumberVQZ
		  Dim sum As New BigNumberVQZ
		  For Each value As BigNumberVQZ In values
		    sum = sum + value
		  Next
		  Return sum / Str(values.Ubound + 1)
		End Function
	#tag EndMethod


	#tag ViewBehavior
	#tag EndViewBehavior
End Module
#tag EndModule
