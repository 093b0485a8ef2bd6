#tag Module
Protected Module HostTexts
	#tag Note, Name = About
		Whether text arrives in the library in each encoding, and how it comes back. What the library leaves unread
		of "12.5", an e with an acute accent, shows whether it understood the text.
	#tag EndNote

	#tag Method, Flags = &h1
		Protected Sub Run()
		  EncodingsIn
		  EncodingsOut
		  EmptyTexts
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Function N(digits As String) As BigNumberVQZ
		  Return BigNumberVQZ.NumberWithString(digits)
		End Function
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub CheckRead(name As String, given As String)
		  #Pragma BreakOnExceptions False
		  Try
		    Dim number As New BigNumberVQZ
		    Dim rest As String
		    Dim wasRead As Boolean
		    number.SetStringValue(given, 10, rest, wasRead)
		    CheckText(name, TextOf(number), "12.5")
		    CheckText(name, rest, Chr(233))
		  Catch e As RuntimeException
		    Unexpected(name, e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub EncodingsIn()
		  #Pragma BreakOnExceptions False
		  Dim accented As String = "12.5" + Chr(233)
		  CheckRead("text-in-utf8", accented)
		  CheckRead("text-in-utf16", ConvertEncoding(accented, Encodings.UTF16))
		  CheckRead("text-in-latin1", ConvertEncoding(accented, Encodings.ISOLatin1))
		  Try
		    CheckText("text-of-unknown-encoding", TextOf(N(DefineEncoding("-12.5", Nil))), "-12.5")
		    CheckText("text-of-unknown-encoding", TextOf(N(DefineEncoding("12.5" + Chr(233), Nil))), "12.5")
		  Catch e As RuntimeException
		    Unexpected("text-of-unknown-encoding", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub EncodingsOut()
		  #Pragma BreakOnExceptions False
		  Try
		    Dim given As String = N("12.5").GetStringValue(10, False, 15, -1, True, ".")
		    CheckText("text-returned-as-utf8", given, "12.5")
		    CheckTrue("text-returned-as-utf8", Encoding(given) = Encodings.UTF8)
		    #If kHiddenMembers Then
		      CheckTrue("text-returned-as-ascii", Encoding(BigNumberVQZ.LibTypeStr) = Encodings.ASCII)
		    #EndIf
		  Catch e As RuntimeException
		    Unexpected("text-returned-as-utf8", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub EmptyTexts()
		  #Pragma BreakOnExceptions False
		  Try
		    Dim nothing As String
		    CheckText("text-empty", TextOf(N(nothing)), "0")
		    CheckText("text-empty", TextOf(N("")), "0")
		    CheckText("text-empty", N("2.5").GetStringValue(10, False, 15, -1, True, nothing), "2.5")
		    Dim number As New BigNumberVQZ
		    Dim rest As String = "before"
		    Dim wasRead As Boolean
		    number.SetStringValue("12", 10, rest, wasRead)
		    CheckText("text-empty", rest, "")
		  Catch e As RuntimeException
		    Unexpected("text-empty", e)
		  End Try
		End Sub
	#tag EndMethod


	#tag ViewBehavior
	#tag EndViewBehavior
End Module
#tag EndModule
