#tag Module
Protected Module Checks
	#tag Note, Name = About
		What the checks of all modules are made with. A check that fails prints one line, which begins with the
		name of the check; one that succeeds prints nothing. With kTrace each name is printed before the check,
		which shows where a program ended that did not come to its last line.
	#tag EndNote

	#tag Method, Flags = &h1
		Protected Function Count() As Integer
		  Return mCount
		End Function
	#tag EndMethod

	#tag Method, Flags = &h1
		Protected Function Failed() As Integer
		  Return mFailed
		End Function
	#tag EndMethod

	#tag Method, Flags = &h0
		Sub CheckTrue(name As String, condition As Boolean)
		  CountCheck(name)
		  If Not condition Then
		    Fail(name, "is not so")
		  End If
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h0
		Sub CheckText(name As String, got As String, expected As String)
		  ' "=" knows no letter case; this compares byte by byte.
		  CountCheck(name)
		  If StrComp(got, expected, 0) <> 0 Then
		    Fail(name, """" + got + """ instead of """ + expected + """")
		  End If
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h0
		Sub CheckInteger(name As String, got As Int64, expected As Int64)
		  CountCheck(name)
		  If got <> expected Then
		    Fail(name, Str(got) + " instead of " + Str(expected))
		  End If
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h0
		Sub CheckReal(name As String, got As Double, expected As Double)
		  // Str shows too few digits to tell neighbours apart, so the difference stands behind them.
		  Const Pattern = "-0.0###############e+000"
		  CountCheck(name)
		  If got <> expected Then
		    Fail(name, Format(got, Pattern) + " instead of " + Format(expected, Pattern) + ", off by " + Format(got - expected, Pattern))
		  End If
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h0
		Sub CheckBytes(name As String, got As MemoryBlock, expectedHex As String)
		  CheckText(name, HexOf(got), expectedHex)
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h0
		Sub CheckFailed(name As String, e As RuntimeException, expectedClass As String, expectedMessage As String)
		  ' What a failing call raised.
		  CheckText(name, ClassOf(e) + ": " + e.Message + " (" + Str(e.ErrorNumber) + ")", expectedClass + ": " + expectedMessage + " (0)")
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h0
		Sub MissFailure(name As String)
		  ' Stands behind a call that should have failed.
		  CountCheck(name)
		  Fail(name, "no exception")
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h0
		Sub Unexpected(name As String, e As RuntimeException)
		  ' An exception where there should be none.
		  CountCheck(name)
		  Fail(name, ClassOf(e) + ": " + e.Message)
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h0
		Function ClassOf(e As RuntimeException) As String
		  If e IsA BigNumberErrorExceptionVQZ Then
		    Return "BigNumberErrorExceptionVQZ"
		  ElseIf e IsA NilObjectException Then
		    Return "NilObjectException"
		  ElseIf e IsA OutOfBoundsException Then
		    Return "OutOfBoundsException"
		  ElseIf e IsA UnsupportedOperationException Then
		    Return "UnsupportedOperationException"
		  ElseIf e IsA OutOfMemoryException Then
		    Return "OutOfMemoryException"
		  ElseIf e IsA IllegalCastException Then
		    Return "IllegalCastException"
		  ElseIf e IsA StackOverflowException Then
		    Return "StackOverflowException"
		  End If
		  Return "RuntimeException or another class of it"
		End Function
	#tag EndMethod

	#tag Method, Flags = &h0
		Function IntegerHas64Bits() As Boolean
		  ' Found out while it runs: old hosts have no constant for it.
		  Dim wide As Int64 = 4294967296
		  Dim whole As Integer = wide
		  Return whole <> 0
		End Function
	#tag EndMethod

	#tag Method, Flags = &h0
		Function HexOf(block As MemoryBlock) As String
		  If block Is Nil Then
		    Return "Nil"
		  End If
		  Dim digits() As String
		  For i As Integer = 0 To block.Size - 1
		    digits.Append(Right("0" + Hex(block.Byte(i)), 2))
		  Next
		  Return Join(digits, "")
		End Function
	#tag EndMethod

	#tag Method, Flags = &h0
		Function TextOf(number As BigNumberVQZ) As String
		  ' All digits, and never an exponent. All arguments are given, so that this relies on no default.
		  If number Is Nil Then
		    Return "Nil"
		  End If
		  Return number.GetStringValue(10, False, 99999, -1, True, ".")
		End Function
	#tag EndMethod

	#tag Method, Flags = &h0
		Function ManyNines() As String
		  ' The digits of an exponent that no number has.
		  Dim nines As String = "9999999999"
		  For i As Integer = 1 To 4
		    nines = nines + nines
		  Next
		  Return nines
		End Function
	#tag EndMethod

	#tag Method, Flags = &h0
		Function AllOnes(size As Integer) As String
		  ' So many bytes with all bits set, in hexadecimal.
		  Dim digits() As String
		  For i As Integer = 1 To size
		    digits.Append("FF")
		  Next
		  Return Join(digits, "")
		End Function
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub CountCheck(name As String)
		  mCount = mCount + 1
		  #If kTrace Then
		    Print "- " + name
		  #Else
		    #Pragma Unused name
		  #EndIf
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub Fail(name As String, what As String)
		  mFailed = mFailed + 1
		  Print "FAILED " + name + ": " + what
		End Sub
	#tag EndMethod

	#tag Property, Flags = &h21
		Private mCount As Integer = 0
	#tag EndProperty

	#tag Property, Flags = &h21
		Private mFailed As Integer = 0
	#tag EndProperty

	#tag Constant, Name = kTrace, Type = Boolean, Dynamic = False, Default = \"False", Scope = Public
	#tag EndConstant


	#tag ViewBehavior
	#tag EndViewBehavior
End Module
#tag EndModule
