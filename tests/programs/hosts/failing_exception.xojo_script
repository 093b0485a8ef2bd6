' In both precisions: where the host cannot make the exception, it is asked for a RuntimeException
' in its place.
Dim x As New BigNumberVQZ("12.5")
Dim zero As New BigNumberVQZ
Try
  Print x / zero
Catch e As RuntimeException
  Print Str(e IsA BigNumberErrorExceptionVQZ) + " " + e.Message
End Try
Try
  Print x / zero
Catch e As RuntimeException
  Print Str(e IsA BigNumberErrorExceptionVQZ) + " " + e.Message
End Try
