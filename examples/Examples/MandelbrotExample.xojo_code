#tag Module
Protected Module MandelbrotExample
	#tag Method, Flags = &h1
		Protected Sub Run()
		  ' A deep look into the Mandelbrot set: the surroundings of the point i, magnified so far that the whole
		  ' picture is 2 * 10^-30 wide. Doubles, which have 16 digits, could not tell one point of it from another.
		  '
		  ' The set's rule: start at 0, and go from z to z^2 + c again and again. The point c belongs to the set
		  ' when z never gets farther than 2 from 0. The shades show how many steps the other points take.
		  
		  Const Shades = " .,:;=+*%#@"
		  
		  Dim pixel As New BigNumberVQZ("2e-30")
		  pixel = pixel / Str(Width)
		  Dim shallowest As Integer = 1000
		  Dim deepest As Integer
		  For row As Integer = -(Height \ 2) To Height \ 2
		    Dim line As String
		    Dim cy As BigNumberVQZ = pixel.Multiply(-2 * row) + "1"   ' a character is twice as high as wide
		    For column As Integer = -(Width \ 2) To Width \ 2
		      Dim steps As Integer = StepsToEscape(pixel.Multiply(column), cy, 200)
		      If steps > 0 Then
		        shallowest = Min(shallowest, steps)
		        deepest = Max(deepest, steps)
		      End If
		      line = line + Mid(Shades, steps Mod Len(Shades) + 1, 1)
		    Next
		    Print line
		  Next
		  Print "Steps to escape: " + Str(shallowest) + " to " + Str(deepest)
		  
		  Dim beside As New BigNumberVQZ("1e-70")
		  Dim one As New BigNumberVQZ(1)
		  Print "The point i itself, after 1000 steps: " + Str(StepsToEscape(BigNumberVQZ.Zero, one, 1000))
		  Print "A point 10^-70 beside it escapes after " + Str(StepsToEscape(beside, one, 1000)) + " steps."
		End Sub
	#tag EndMethod


	#tag Method, Flags = &h21
		Private Function StepsToEscape(cx As BigNumberVQZ, cy As BigNumberVQZ, most As Integer) As Integer
		  ' The steps until z is farther than 2 from 0, or 0 when it stays for as long as we look.
		  Dim x As BigNumberVQZ = cx
		  Dim y As BigNumberVQZ = cy
		  Dim four As New BigNumberVQZ(4)
		  For steps As Integer = 1 To most
		    Dim xx As BigNumberVQZ = x * x
		    Dim yy As BigNumberVQZ = y * y
		    If xx + yy > four Then Return steps
		    y = (x + x) * y + cy
		    x = xx - yy + cx
		  Next
		  Return 0
		End Function
	#tag EndMethod


	#tag Constant, Name = Width, Type = Double, Dynamic = False, Default = \"29", Scope = Private
	#tag EndConstant


	#tag Constant, Name = Height, Type = Double, Dynamic = False, Default = \"11", Scope = Private
	#tag EndConstant


	#tag ViewBehavior
	#tag EndViewBehavior
End Module
#tag EndModule
