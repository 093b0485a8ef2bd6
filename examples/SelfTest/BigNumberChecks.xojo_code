#tag Module
Protected Module BigNumberChecks
	#tag Method, Flags = &h1
		Protected Sub Run()
		End Sub
	#tag EndMethod
End Module
#tag EndModule
