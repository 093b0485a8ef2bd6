' In both precisions: the messages of failed operations, and that their operands stay as they are.

Function Compute(operation As String, x As BigNumberVQZ, y As BigNumberVQZ) As BigNumberVQZ
  Select Case operation
  Case "Add"
    Return x.Add(y)
  Case "Add, not rounded"
    Return x.Add(y, False)
  Case "Subtract"
    Return x.Subtract(y)
  Case "Multiply"
    Return x.Multiply(y)
  Case "Divide"
    Return x.Divide(y)
  Case "Divide, not rounded"
    Return x.Divide(y, False)
  Case "Modulate"
    Return x.Modulate(y)
  Case "Pow"
    Return x.Pow(y)
  Case "BitAnd"
    Return x.BitAnd(y)
  Case "BitOr"
    Return x.BitOr(y)
  Case "BitXOr"
    Return x.BitXOr(y)
  Case "+"
    Return x + y
  Case "-"
    Return x - y
  Case "*"
    Return x * y
  Case "/"
    Return x / y
  Case "\"
    Return x \ y
  Case "Mod"
    Return x Mod y
  Case "^"
    Return x ^ y
  End Select
End Function

Sub Show(operation As String, x As BigNumberVQZ, y As BigNumberVQZ)
  Try
    Dim before As String = x.StringValue + " and " + y.StringValue
    Try
      Print operation + " gives " + Compute(operation, x, y).StringValue
    Finally
      If before <> x.StringValue + " and " + y.StringValue Then Print "the operands have changed"
    End Try
  Catch e As BigNumberErrorExceptionVQZ
    Print e.Message
  End Try
End Sub

Print "-- by zero"
Show("Divide", "12.5", "0")
Show("Divide, not rounded", "-12.5", "0")
Show("/", "12.5", "0")
Show("/", "0", "0")
Show("\", "12.5", "0")
Show("Modulate", "7", "0")
Show("Mod", "-7", "0")

Print "-- powers"
Show("Pow", "0", "0")
Show("^", "0", "-1")
Show("Pow", "-2", "0.5")
Show("^", "-2.5", "-1.5")

Print "-- bits of negative numbers"
Show("BitAnd", "-1", "1")
Show("BitOr", "1", "-1")
Show("BitXOr", "-1", "-1")

Dim operations As String = "Add|Add, not rounded|Subtract|Multiply|Divide|Divide, not rounded|" _
    + "Modulate|Pow|BitAnd|BitOr|BitXOr|+|-|*|/|\|Mod|^|"

' Cuts the next of the texts between bars off a list.
Function TakeNext(ByRef list As String) As String
  For i As Integer = 1 To Len(list)
    If Mid(list, i, 1) = "|" Then
      Dim word As String = Left(list, i - 1)
      list = Mid(list, i + 1)
      Return word
    End If
  Next
End Function

Print "-- not a number, on the left and on the right"
Dim nan As BigNumberVQZ = BigNumberVQZ.Nan
Dim rest As String = operations
While rest <> ""
  Dim operation As String = TakeNext(rest)
  Show(operation, nan, "2")
  Show(operation, "2", nan)
Wend

Print "-- Nil, on the left and on the right"
Dim missing As BigNumberVQZ
rest = operations
While rest <> ""
  Dim operation As String = TakeNext(rest)
  Show(operation, missing, "2")
  Show(operation, "2", missing)
  Show(operation, missing, missing)
Wend
