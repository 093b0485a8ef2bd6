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
		Private Function TextOfBytes(itsEncoding As TextEncoding, ParamArray bytes As Integer) As String
		  ' Up to eight bytes as a text that is said to be in that encoding.
		  Dim block As New MemoryBlock(8)
		  Dim size As Integer = 0
		  For Each code As Integer In bytes
		    block.Byte(size) = code
		    size = size + 1
		  Next
		  Return DefineEncoding(block.StringValue(0, size), itsEncoding)
		End Function
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Function Accented12Point5() As String
		  Return TextOfBytes(Encodings.UTF8, 49, 50, 46, 53, 195, 169)
		End Function
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Function InUTF16(given As String) As String
		  ' Without the byte order mark that a host may put in front: two bytes for each character. Only the bytes of
		  ' such a mark are that large.
		  Dim converted As String = ConvertEncoding(given, Encodings.UTF16)
		  If AscB(converted) >= 254 Then
		    converted = DefineEncoding(MidB(converted, 3, LenB(converted) - 2), Encodings.UTF16)
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
		    CheckText(name, rest, TextOfBytes(Encodings.UTF8, 195, 169))
		  Catch e As RuntimeException
		    Unexpected(name, e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub EncodingsIn()
		  #Pragma BreakOnExceptions False
		  CheckRead("text-in-utf8", Accented12Point5)
		  CheckRead("text-in-utf16", InUTF16(Accented12Point5))
		  CheckRead("text-in-latin1", TextOfBytes(Encodings.ISOLatin1, 49, 50, 46, 53, 233))
		  Try
		    CheckText("text-of-unknown-encoding", TextOf(N(DefineEncoding("-12.5", Nil))), "-12.5")
		    CheckText("text-of-unknown-encoding", TextOf(N(DefineEncoding(Accented12Point5, Nil))), "12.5")
		  Catch e As RuntimeException
		    Unexpected("text-of-unknown-encoding", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub EncodingsOut()
		  #Pragma BreakOnExceptions False
		  Try
		    ' The letter is two bytes in UTF-8, and counts as one character only where the text is known to be UTF-8.
		    Dim number As New BigNumberVQZ
		    Dim rest As String
		    Dim wasRead As Boolean
		    number.SetStringValue(Accented12Point5, 10, rest, wasRead)
		    CheckInteger("text-returned-as-utf8", Len(rest), 1)
		    CheckText("text-returned-as-utf8", number.GetStringValue(10, False, 15, -1, True, "."), "12.5")
		  Catch e As RuntimeException
		    Unexpected("text-returned-as-utf8", e)
		  End Try
		  #If kHiddenMembers Then
		    Try
		      ' A host converts only what has a known encoding; then each character is two bytes.
		      Dim kind As String = BigNumberVQZ.LibTypeStr
		      CheckInteger("text-returned-as-ascii", LenB(InUTF16(kind)), 2 * LenB(kind))
		    Catch e As RuntimeException
		      Unexpected("text-returned-as-ascii", e)
		    End Try
		  #EndIf
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
