#tag Class
Protected Class App
Inherits ConsoleApplication
	#tag Event
		Function Run(args() as String) As Integer
		  #Pragma Unused args
		  Dim bill() As Bills.Line
		  bill.Append(New Bills.Line("tea", "2.40", Bills.Rate.Reduced))
		  bill.Append(New Bills.Line("cup", "7.99", Bills.Rate.Full))
		  For Each item As Bills.Line In bill
		    Print item.Shown
		  Next
		  Print "share: " + (bill(0).Price / BigNumberVQZ.Zero)
		  Return 1
		End Function
	#tag EndEvent

	#tag Event
		Function UnhandledException(error As RuntimeException) As Boolean
		  Print "left: " + error.Message
		  Quit(4)
		  Return True
		End Function
	#tag EndEvent


	#tag ViewBehavior
	#tag EndViewBehavior
End Class
#tag EndClass
