' In both precisions: the exception itself, who catches it, and that the program goes on after it.

Dim x As BigNumberVQZ = "12.5"
Dim zero As New BigNumberVQZ
Dim result As BigNumberVQZ = "1"

Print "-- what it carries"
Try
  result = x / zero
Catch e As BigNumberErrorExceptionVQZ
  Print e.Message
  Print Str(e.ErrorNumber)
End Try
Print "the result stays " + result.StringValue

Print "-- it is a RuntimeException"
Try
  result = x / zero
Catch e As RuntimeException
  Print e.Message
  Print Str(e IsA BigNumberErrorExceptionVQZ) + " " + Str(e IsA OutOfBoundsException)
End Try

Print "-- and no other one"
Try
  Try
    result = x / zero
  Catch e As OutOfBoundsException
    Print "this is wrong"
  Catch e As NilObjectException
    Print "this is wrong too"
  Finally
    Print "in between"
  End Try
Catch e As RuntimeException
  Print "outside: " + e.Message
End Try

Print "-- raised again"
Try
  Try
    result = x Mod zero
  Catch e As BigNumberErrorExceptionVQZ
    Print "seen: " + e.Message
    Raise e
  End Try
Catch e As BigNumberErrorExceptionVQZ
  Print "seen again: " + e.Message
End Try

Print "-- raised by the program itself"
Try
  Dim own As New BigNumberErrorExceptionVQZ
  own.Message = "no such price"
  own.ErrorNumber = 7
  Raise own
Catch e As BigNumberErrorExceptionVQZ
  Print e.Message + " " + Str(e.ErrorNumber)
End Try

Print "-- out of functions and loops"
Function Quotient(x As BigNumberVQZ, y As BigNumberVQZ) As BigNumberVQZ
  Dim kept As New BigNumberVQZ(x)
  Return kept / y
End Function
Dim failures As Integer
For i As Integer = -2 To 2
  Try
    Print Quotient(x, Str(i))
  Catch e As BigNumberErrorExceptionVQZ
    failures = failures + 1
  End Try
Next
Print Str(failures) + " failed"

Print "-- in the middle of an expression"
Try
  Print (x + "1") * (x / zero) + (x - "1")
Catch e As BigNumberErrorExceptionVQZ
  Print e.Message
End Try

Print "-- the first failure ends the statement"
Try
  Print (x Mod zero) + (x / zero)
Catch e As BigNumberErrorExceptionVQZ
  Print e.Message
End Try
