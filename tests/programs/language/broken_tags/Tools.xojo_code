#tag Module
Protected Module Tool
	#tag ComputedProperty, Flags = &h0
		#tag Getter
			Get
			  Return 5
			End Get
		#tag EndGetter
		Total As Integer
	#tag EndComputedProperty
	#tag Property, Flags = &h0
		Name As String
	#tag EndProperty
End Module
