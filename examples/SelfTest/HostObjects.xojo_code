#tag Module
Protected Module HostObjects
	#tag Note, Name = About
		Objects, Nil, exceptions, and what stays behind. What may end the program on a host that is wrong about it
		comes first or last: first what all failing calls need.
	#tag EndNote

	#tag Method, Flags = &h1
		Protected Sub Run()
		  ExceptionsHaveASuperClass
		  Construction
		  NilArgument
		  ExceptionsAreRaised
		  ExceptionsHaveClasses
		  Results
		  Texts
		  Arguments
		  Failures
		  NilReceiver
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h1
		Protected Sub RunLast()
		  NilReceiverOfSetter
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Function N(digits As String) As BigNumberVQZ
		  Return BigNumberVQZ.NumberWithString(digits)
		End Function
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub Construction()
		  #Pragma BreakOnExceptions False
		  Try
		    Dim fresh As New BigNumberVQZ
		    CheckText("constructor-runs", TextOf(fresh), "0")
		  Catch e As RuntimeException
		    Unexpected("constructor-runs", e)
		  End Try
		  #If kConstructorOfString Then
		    Try
		      ' The message shows what was in the object before: nothing.
		      Call TextOf(New BigNumberVQZ("1e99999999999999999999"))
		      MissFailure("instance-zero")
		    Catch e As RuntimeException
		      CheckFailed("instance-zero", e, "BigNumberErrorExceptionVQZ", "Constructor operation failed with number nil.")
		    End Try
		  #EndIf
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub NilArgument()
		  #Pragma BreakOnExceptions False
		  Dim none As BigNumberVQZ
		  Try
		    CheckTrue("nil-argument", BigNumberVQZ.ATan(none).IsNan)
		    CheckTrue("nil-argument", Not N("1").Equals(none))
		  Catch e As RuntimeException
		    Unexpected("nil-argument", e)
		  End Try
		  Try
		    Call N("1").Add(none, True)
		    MissFailure("nil-argument")
		  Catch e As RuntimeException
		    CheckFailed("nil-argument", e, "BigNumberErrorExceptionVQZ", "Add operation failed with numbers 1 and nil.")
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub ExceptionsAreRaised()
		  #Pragma BreakOnExceptions False
		  Try
		    Call N("-4").Sqrt
		    MissFailure("exception-raised")
		  Catch e As RuntimeException
		    CheckText("exception-message", e.Message, "Sqrt operation failed with number -4.")
		    CheckInteger("exception-number", e.ErrorNumber, 0)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub ExceptionsHaveClasses()
		  #Pragma BreakOnExceptions False
		  Try
		    Call N("1").Divide(N("0"), True)
		    MissFailure("exception-raised")
		  Catch mine As BigNumberErrorExceptionVQZ
		    CheckText("exception-class", mine.Message, "Div operation failed with numbers 1 and 0.")
		  Catch other As RuntimeException
		    CheckText("exception-class", ClassOf(other), "BigNumberErrorExceptionVQZ")
		  End Try
		  Try
		    Dim none As BigNumberVQZ
		    Dim bytes As MemoryBlock = none.DataMantissa
		    MissFailure("nil-receiver")
		  Catch missing As NilObjectException
		    CheckText("exception-class", missing.Message, "Not initialized")
		  Catch other As RuntimeException
		    CheckText("exception-class", ClassOf(other), "NilObjectException")
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub CheckBytesKept(name As String, before As Int64)
		  ' Whether kRounds rounds left less than kBytesPerRound bytes each behind.
		  Dim grown As Int64 = Runtime.MemoryUsed - before
		  If grown < kRounds * kBytesPerRound Then
		    CheckTrue(name, True)
		  Else
		    CheckText(name, Str(grown) + " bytes more", "none")
		  End If
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub Results()
		  #Pragma BreakOnExceptions False
		  Try
		    Dim a As BigNumberVQZ = N("17")
		    Dim made As BigNumberVQZ = a.Floor
		    ' The first rounds fill what the host keeps for later.
		    For i As Integer = 1 To kRounds
		      made = a.Floor
		    Next
		    Dim objects As Integer = Runtime.ObjectCount
		    Dim memory As Int64 = Runtime.MemoryUsed
		    For i As Integer = 1 To kRounds
		      made = a.Floor
		    Next
		    CheckInteger("result-object-reference", Runtime.ObjectCount, objects)
		    CheckBytesKept("destructor-runs", memory)
		  Catch e As RuntimeException
		    Unexpected("result-object-reference", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub Texts()
		  #Pragma BreakOnExceptions False
		  Try
		    Dim a As BigNumberVQZ = N("1234567890123456789012345678901234567890")
		    Dim digits As String = TextOf(a)
		    Dim rest As String
		    Dim wasRead As Boolean
		    For i As Integer = 1 To kRounds
		      digits = TextOf(a)
		    Next
		    Dim memory As Int64 = Runtime.MemoryUsed
		    For i As Integer = 1 To kRounds
		      digits = TextOf(a)
		    Next
		    CheckBytesKept("result-text-reference", memory)
		    memory = Runtime.MemoryUsed
		    For i As Integer = 1 To kRounds
		      rest = "a text of its own, " + Str(i)
		      a.SetStringValue("12", 10, rest, wasRead)
		    Next
		    CheckBytesKept("byref-text-released", memory)
		  Catch e As RuntimeException
		    Unexpected("result-text-reference", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub Arguments()
		  #Pragma BreakOnExceptions False
		  Try
		    Dim a As BigNumberVQZ = N("17")
		    Dim isSame As Boolean = a.Equals(N("17"))
		    Dim objects As Integer = Runtime.ObjectCount
		    For i As Integer = 1 To kRounds
		      isSame = a.Equals(a.Floor)
		    Next
		    CheckInteger("argument-object-reference", Runtime.ObjectCount, objects)
		    Dim memory As Int64 = Runtime.MemoryUsed
		    For i As Integer = 1 To kRounds
		      a = N("12 and a text of its own, " + Str(i))
		    Next
		    CheckBytesKept("argument-text-reference", memory)
		  Catch e As RuntimeException
		    Unexpected("argument-object-reference", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub FailAndForget(a As BigNumberVQZ)
		  #Pragma BreakOnExceptions False
		  Try
		    Call a.Sqrt
		  Catch e As RuntimeException
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub Failures()
		  Dim a As BigNumberVQZ = N("-17")
		  FailAndForget(a)
		  Dim objects As Integer = Runtime.ObjectCount
		  Dim memory As Int64 = Runtime.MemoryUsed
		  For i As Integer = 1 To kRounds
		    FailAndForget(a)
		  Next
		  CheckInteger("exception-reference", Runtime.ObjectCount, objects)
		  CheckBytesKept("exception-reference", memory)
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub NilReceiver()
		  #Pragma BreakOnExceptions False
		  Try
		    Dim none As BigNumberVQZ
		    CheckTrue("nil-receiver", none.IsNan)
		    CheckText("nil-receiver", none.GetStringValue(10, False, 15, -1, True, "."), "NaN")
		  Catch e As RuntimeException
		    Unexpected("nil-receiver", e)
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub NilReceiverOfSetter()
		  #Pragma BreakOnExceptions False
		  Try
		    ' The host itself has to refuse this: the library has no object to write to.
		    Dim none As BigNumberVQZ
		    none.IntegerValue = 5
		    MissFailure("nil-receiver-of-setter")
		  Catch e As RuntimeException
		    CheckText("nil-receiver-of-setter", ClassOf(e), "NilObjectException")
		  End Try
		End Sub
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Sub ExceptionsHaveASuperClass()
		  #Pragma BreakOnExceptions False
		  Try
		    Call N("-4").Sqrt
		    MissFailure("exception-super-class")
		  Catch e As RuntimeException
		    CheckText("exception-super-class", ClassOf(e), "BigNumberErrorExceptionVQZ")
		  Catch mine As BigNumberErrorExceptionVQZ
		    CheckText("exception-super-class", "no RuntimeException", "")
		  End Try
		End Sub
	#tag EndMethod


	#tag ViewBehavior
	#tag EndViewBehavior
End Module
#tag EndModule
