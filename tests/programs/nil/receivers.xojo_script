' In both precisions: members of a variable that holds Nil. What reads works on not-a-number; what
' writes is refused.

Dim x As BigNumberVQZ

Print "-- tests"
Print Str(x.IsZero) + " " + Str(x.IsNan) + " " + Str(x.IsNegative) + " " + Str(x.IsInteger)
Print Str(x.Equals("0")) + " " + Str(x.Equals("1")) + " " + Str(x.Operator_Compare("1")) + " " _
    + Str(x.Modulate2)

Print "-- texts"
Print x.StringValue + " " + x.StringValue(2) + " " + x.GetStringValue(16, True) + " " _
    + x.Operator_Convert
Print x

Print "-- operations that cannot fail give objects"
Print x.Abs.StringValue + " " + x.Negate.StringValue + " " + x.Frac.StringValue + " " _
    + x.SkipFraction.StringValue + " " + (-x).StringValue

Print "-- values"
Sub ShowFailure(e As RuntimeException)
  If e IsA BigNumberErrorExceptionVQZ Then
    Print "failed: " + e.Message
  ElseIf e IsA NilObjectException Then
    Print "refused: " + e.Message
  Else
    Print "something else: " + e.Message
  End If
End Sub
Try
  Print Str(x.IntegerValue)
Catch e As RuntimeException
  ShowFailure(e)
End Try
Try
  Print Str(x.Int64Value)
Catch e As RuntimeException
  ShowFailure(e)
End Try
Try
  Print Str(x.UInt64Value)
Catch e As RuntimeException
  ShowFailure(e)
End Try
Try
  Print Str(x.DoubleValue)
Catch e As RuntimeException
  ShowFailure(e)
End Try
Try
  Print Str(x.CurrencyValue)
Catch e As RuntimeException
  ShowFailure(e)
End Try
Try
  Print Str(x.DataFlags)
Catch e As RuntimeException
  ShowFailure(e)
End Try

Print "-- writing is refused"
Dim refusals As Integer
Dim rest As String
Dim found As Boolean
For i As Integer = 1 To 13
  Try
    Select Case i
    Case 1
      x.StringValue = "1"
    Case 2
      x.StringValue(16) = "1"
    Case 3
      x.IntegerValue = 1
    Case 4
      x.Int64Value = 1
    Case 5
      x.UInt64Value = 1
    Case 6
      x.DoubleValue = 1
    Case 7
      x.CurrencyValue = 1
    Case 8
      x.DataFlags = 1
    Case 9
      x.Constructor
    Case 10
      x.Constructor("1")
    Case 11
      x.Constructor(1)
    Case 12
      x.Constructor(x)
    Case 13
      x.SetStringValue("1", 10, rest, found)
    End Select
    Print "not refused: " + Str(i)
  Catch e As NilObjectException
    refusals = refusals + 1
  End Try
Next
Print Str(refusals) + " of 13, and x is still Nil: " + Str(x Is Nil)
