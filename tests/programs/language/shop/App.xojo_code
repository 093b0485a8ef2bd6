#tag Class
Protected Class App
Inherits ConsoleApplication
	#tag Event
		Function Run(args() as String) As Integer
		  #Pragma Unused args
		  #Pragma BreakOnExceptions False
		  Print "words: " + Str(args.Count)
		  
		  mCount = mCount + 1
		  Report("apples", "1.25")
		  App.Report("pears", "2.5")
		  #If kWithFailure Then
		    Print nothing like this
		  #Else
		    Print Prices.kCurrency + " " + kSign
		  #EndIf
		  Prices.Add("0.1")
		  Print "sum: " + Prices.Sum.StringValue
		  Return mCount
		End Function
	#tag EndEvent


	#tag Method, Flags = &h0
		Sub Report(what As String, price As BigNumberVQZ)
		  Static calls As Integer = 0
		  calls = calls + 1
		  Prices.Add(price)
		  Print Str(calls) + ". " + what + " " + price.StringValue
		End Sub
	#tag EndMethod


	#tag Property, Flags = &h21
		Private mCount As Integer = 2
	#tag EndProperty


	#tag ViewBehavior
		#tag ViewProperty
			Name="Name"
			Visible=true
		#tag EndViewProperty
	#tag EndViewBehavior
End Class
#tag EndClass
