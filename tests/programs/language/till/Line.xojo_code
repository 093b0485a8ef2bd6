#tag Class
Protected Class Line
	#tag Method, Flags = &h0
		Sub Constructor(what As String, net As BigNumberVQZ, rate As Bills.Rate)
		  Name = what
		  Price = net * Bills.Factor(rate)
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h0
		Function Shown() As String
		  Return Name + " " + Price.GetStringValue(10, False, 15, 2, False)
		End Function
	#tag EndMethod


	#tag Property, Flags = &h0
		Name As String
	#tag EndProperty

	#tag Property, Flags = &h0
		Price As BigNumberVQZ
	#tag EndProperty


	#tag ViewBehavior
	#tag EndViewBehavior
End Class
#tag EndClass
