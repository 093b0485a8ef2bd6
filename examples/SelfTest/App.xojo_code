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
		  #If Target64Bit Then
		    Print "Word size: 64 bits"
		  #Else
		    Print "Word size: 32 bits"
		  #EndIf
		  Print "Library: " + kLibraryVersion
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
		  
		  Print Str(Checks.Count) + " checks, " + Str(Checks.Failed) + " failed"
		  If Checks.Failed > 0 Then
		    Return 1
		  End If
		  Return 0
		End Function
	#tag EndEvent


	#tag ViewBehavior
	#tag EndViewBehavior
End Class
#tag EndClass
