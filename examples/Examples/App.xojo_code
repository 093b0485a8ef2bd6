#tag Class
Protected Class App
Inherits ConsoleApplication
	#tag Event
		Function Run(args() as String) As Integer
		  ' Runs the example that the first argument names; without one, all of them.
		  #Pragma BreakOnExceptions False
		  Dim name As String
		  If Ubound(args) >= 1 Then name = args(1)
		  Dim found As Boolean = (name = "")
		  
		  If name = "" Or name = "tour" Then
		    TourExample.Run
		    found = True
		  End If
		  If name = "" Or name = "base_conversion" Then
		    BaseConversionExample.Run
		    found = True
		  End If
		  If name = "" Or name = "compound_interest" Then
		    CompoundInterestExample.Run
		    found = True
		  End If
		  If name = "" Or name = "errors" Then
		    ErrorsExample.Run
		    found = True
		  End If
		  If name = "" Or name = "factorial" Then
		    FactorialExample.Run
		    found = True
		  End If
		  If name = "" Or name = "functions" Then
		    FunctionsExample.Run
		    found = True
		  End If
		  If name = "" Or name = "mandelbrot" Then
		    MandelbrotExample.Run
		    found = True
		  End If
		  If name = "" Or name = "newton" Then
		    NewtonExample.Run
		    found = True
		  End If
		  If name = "" Or name = "saving" Then
		    SavingExample.Run
		    found = True
		  End If
		  If name = "" Or name = "thousand_digits" Then
		    ThousandDigitsExample.Run
		    found = True
		  End If
		  If name = "" Or name = "values" Then
		    ValuesExample.Run
		    found = True
		  End If
		  
		  If Not found Then
		    Print "There is no example " + name + "; there are:"
		    Print "  tour"
		    Print "  base_conversion"
		    Print "  compound_interest"
		    Print "  errors"
		    Print "  factorial"
		    Print "  functions"
		    Print "  mandelbrot"
		    Print "  newton"
		    Print "  saving"
		    Print "  thousand_digits"
		    Print "  values"
		    Return 1
		  End If
		  #If DebugBuild Then
		    ' The console window of a program that the IDE runs is gone with the program.
		    Print "Enter closes this window."
		    Call Input
		  #EndIf
		  Return 0
		End Function
	#tag EndEvent


	#tag ViewBehavior
	#tag EndViewBehavior
End Class
#tag EndClass
