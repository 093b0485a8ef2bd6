' In both precisions: the operators for the right side are those for the left one. The receiver is
' the left operand of both.

Sub Show(x As BigNumberVQZ, y As BigNumberVQZ)
  Print "-- " + x.StringValue + " and " + y.StringValue
  Print "+ " + x.Operator_Add(y).StringValue + " " + x.Operator_AddRight(y).StringValue
  Print "- " + x.Operator_Subtract(y).StringValue + " " + x.Operator_SubtractRight(y).StringValue
  Print "* " + x.Operator_Multiply(y).StringValue + " " + x.Operator_MultiplyRight(y).StringValue
  Print "/ " + x.Operator_Divide(y).StringValue + " " + x.Operator_DivideRight(y).StringValue
  Print "\ " + x.Operator_IntegerDivide(y).StringValue + " " _
      + x.Operator_IntegerDivideRight(y).StringValue
  Print "Mod " + x.Operator_Modulo(y).StringValue + " " + x.Operator_ModuloRight(y).StringValue
  Print "^ " + x.Operator_Power(y).StringValue + " " + x.Operator_PowerRight(y).StringValue
End Sub

Show("10", "4")
Show("-7", "2")
Show("2.5", "-2")

Print "-- their failures bear the name of the left form"
Dim one As BigNumberVQZ = "1"
Dim zero As New BigNumberVQZ
For i As Integer = 1 To 7
  Try
    Select Case i
    Case 1
      Print one.Operator_AddRight(Nil)
    Case 2
      Print one.Operator_SubtractRight(Nil)
    Case 3
      Print one.Operator_MultiplyRight(Nil)
    Case 4
      Print one.Operator_DivideRight(zero)
    Case 5
      Print one.Operator_IntegerDivideRight(zero)
    Case 6
      Print one.Operator_ModuloRight(zero)
    Case 7
      Print zero.Operator_PowerRight(zero)
    End Select
  Catch e As BigNumberErrorExceptionVQZ
    Print e.Message
  End Try
Next
