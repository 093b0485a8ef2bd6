#tag Module
Protected Module Bills
	#tag Method, Flags = &h0
		Function Factor(rate As Bills.Rate) As BigNumberVQZ
		  Select Case rate
		  Case Bills.Rate.Full
		    Return "1.19"
		  Else
		    Return "1.07"
		  End Select
		End Function
	#tag EndMethod


	#tag Enum, Name = Rate, Type = Integer, Flags = &h0
		Full
		Reduced
	#tag EndEnum


	#tag ViewBehavior
	#tag EndViewBehavior
End Module
#tag EndModule
