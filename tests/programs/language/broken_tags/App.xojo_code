#tag Class
Protected Class App
Inherits ConsoleApplication
	#tag Event
		Function Run(args() as String) As Integer
		  Print Tools.Name + Str(Tools.Total)
		End Function
	#tag EndEvent
	#tag Method, Flags = &h0
		Sub First()
		End Sub
	#tag EndMethd
	#tag Method, Flags = &h0
		Sub Second()
		End Sub
	#tag Metod, Flags = &h0
		Sub Third()
		End Sub
	#tag EndMethod
End Class
#tag EndClass
