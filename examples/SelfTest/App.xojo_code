#tag Class
Protected Class App
Inherits ConsoleApplication
	#tag Event
		Function Run(args() as String) As Integer
		  #Pragma Unused args
		  #If RBVersion >= 2013 Then
		    Print "Host: " + Str(XojoVersion)
		  #Else
		    Print "Host: " + Str(RBVersion)
		  #EndIf
		  Print "Platform: " + PlatformName
		  If IntegerHas64Bits Then
		    Print "Word size: 64 bits"
		  Else
		    Print "Word size: 32 bits"
		  End If
		  ' The library does not tell its version to programs; this is the one whose results are expected.
		  Print "Results recorded with: library " + kLibraryVersion
		  #If kHiddenMembers Then
		    Print "LibTypeStr: " + BigNumberVQZ.LibTypeStr
		  #EndIf
		  
		  Compiles.Run
		  HostObjects.Run
		  HostValues.Run
		  HostVariants.Run
		  HostTexts.Run
		  BigNumberChecks.Run
		  BiggerNumberChecks.Run
		  HostObjects.RunLast
		  
		  #If DebugBuild Then
		    Print "Enter closes this window."
		  #EndIf
		  Print Str(Checks.Count) + " checks, " + Str(Checks.Failed) + " failed"
		  #If DebugBuild Then
		    ' The console window of a program that the IDE runs is gone with the program.
		    Call Input
		  #EndIf
		  If Checks.Failed > 0 Then
		    Return 1
		  End If
		  Return 0
		End Function
	#tag EndEvent

	#tag Method, Flags = &h21
		Private Function PlatformName() As String
		  ' Hosts before 2015.03 know fewer of these constants, and no other processor.
		  #If RBVersion >= 2015.03 Then
		    Dim name As String = "another system"
		    #If TargetWindows Then
		      name = "Windows"
		    #ElseIf TargetMacOS Then
		      name = "macOS"
		    #ElseIf TargetLinux Then
		      name = "Linux"
		    #EndIf
		    #If TargetARM Then
		      name = name + " on ARM"
		    #EndIf
		    Return name
		  #Else
		    #If TargetWin32 Then
		      Return "Windows"
		    #ElseIf TargetMacOS Then
		      Return "macOS"
		    #Else
		      Return "Linux"
		    #EndIf
		  #EndIf
		End Function
	#tag EndMethod


	#tag ViewBehavior
	#tag EndViewBehavior
End Class
#tag EndClass
