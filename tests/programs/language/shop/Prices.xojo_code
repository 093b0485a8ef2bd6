#tag Module
Protected Module Prices
	#tag Method, Flags = &h1
		Protected Sub Add(price As BigNumberVQZ)
		  mSum = mSum + price
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h1
		Protected Function Sum() As BigNumberVQZ
		  Return mSum
		End Function
	#tag EndMethod


	#tag Property, Flags = &h21
		Private mSum As BigNumberVQZ = "0"
	#tag EndProperty


	#tag Constant, Name = kCurrency, Type = String, Dynamic = False, Default = \"euro \x3D cents", Scope = Protected
	#tag EndConstant

	#tag Constant, Name = kSign, Type = String, Dynamic = False, Default = \"EUR", Scope = Public
	#tag EndConstant

	#tag Constant, Name = kWithFailure, Type = Boolean, Dynamic = False, Default = \"False", Scope = Public
	#tag EndConstant


	#tag ViewBehavior
		#tag ViewProperty
			Name="Name"
			EditorType="String"
		#tag EndViewProperty
	#tag EndViewBehavior
End Module
#tag EndModule
