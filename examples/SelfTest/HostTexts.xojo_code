#tag Module
Protected Module HostTexts
	#tag Note, Name = About
		Whether text arrives in the library in each encoding, and how it comes back. Each text is 12.5 and an e with
		an acute accent; what the library leaves unread of it shows whether it understood the text. The texts are made
		of bytes, so that they are the same whatever a host takes Chr(233) for.
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
		Private Function TextOf12Point5(itsEncoding As TextEncoding, ParamArray accented As Integer) As String
		  ' The text 12.5 and the bytes of the accented letter, said to be in that encoding.
		  Dim block As New MemoryBlock(5 + UBound(accented))
		  block.StringValue(0, 4) = "12.5"
		  For i As Integer = 0 To UBound(accented)
		    block.Byte(4 + i) = accented(i)
		  Next
		  Return DefineEncoding(block.StringValue(0, block.Size), itsEncoding)
		End Function
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Function AccentedLetter() As String
		  Return DefineEncoding(ChrB(195) + ChrB(169), Encodings.UTF8)
		End Function
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Function InUTF16(given As String) As String
		  ' Without the byte order mark that a host may put in front: two bytes for each character.
		  Dim converted As String = ConvertEncoding(given, Encodings.UTF16)
		  If LenB(converted) > 2 * Len(given) Then
		    converted = DefineEncoding(MidB(converted, 3), Encodings.UTF16)
		  End If
		  Return converted
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
		    CheckText(name, rest, AccentedLetter)
		  Catch e As RuntimeException
		    Unexpected(name, e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub EncodingsIn()
		  #Pragma BreakOnExceptions False
		  Dim inUTF8 As String = TextOf12Point5(Encodings.UTF8, 195, 169)
		  CheckRead("text-in-utf8", inUTF8)
		  CheckRead("text-in-utf16", InUTF16(inUTF8))
		  CheckRead("text-in-latin1", TextOf12Point5(Encodings.ISOLatin1, 233))
		  Try
		    CheckText("text-of-unknown-encoding", TextOf(N(DefineEncoding("-12.5", Nil))), "-12.5")
		    CheckText("text-of-unknown-encoding", TextOf(N(TextOf12Point5(Nil, 195, 169))), "12.5")
		  Catch e As RuntimeException
		    Unexpected("text-of-unknown-encoding", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub CheckEncoding(name As String, given As String, expected As TextEncoding)
		  ' A text of unknown encoding raises: its encoding is Nil.
		  #Pragma BreakOnExceptions False
		  Try
		    CheckTrue(name, Encoding(given).Equals(expected))
		  Catch e As RuntimeException
		    Unexpected(name, e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub EncodingsOut()
		  #Pragma BreakOnExceptions False
		  Try
		    Dim given As String = N("12.5").GetStringValue(10, False, 15, -1, True, ".")
		    CheckText("text-returned-as-utf8", given, "12.5")
		    CheckEncoding("text-returned-as-utf8", given, Encodings.UTF8)
		    #If kHiddenMembers Then
		      CheckEncoding("text-returned-as-ascii", BigNumberVQZ.LibTypeStr, Encodings.ASCII)
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
		    Dim unassigned As String
		    CheckText("text-empty", TextOf(N(unassigned)), "0")
		    CheckText("text-empty", TextOf(N("")), "0")
		    CheckText("text-empty", N("2.5").GetStringValue(10, False, 15, -1, True, unassigned), "2.5")
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
