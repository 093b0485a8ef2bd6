' In both precisions: the messages of failed operations with one number.

Function Compute(operation As String, x As BigNumberVQZ) As BigNumberVQZ
  Select Case operation
  Case "Sqrt"
    Return x.Sqrt
  Case "Round"
    Return x.Round
  Case "Ceil"
    Return x.Ceil
  Case "Floor"
    Return x.Floor
  Case "Ln"
    Return BigNumberVQZ.Ln(x)
  Case "ACos"
    Return BigNumberVQZ.ACos(x)
  Case "Cos"
    Return BigNumberVQZ.Cos(x)
  End Select
End Function

Sub Show(operation As String, x As BigNumberVQZ)
  Try
    Print operation + " gives " + Compute(operation, x).StringValue
  Catch e As BigNumberErrorExceptionVQZ
    Print e.Message
  End Try
End Sub

Show("Sqrt", "-4")
Show("Sqrt", "-0.0625")
Show("Sqrt", "-1e-50")
Show("Ln", "0")
Show("Ln", "-2.5")
Show("ACos", "1.5")
Show("ACos", "-2")

Print "-- not a number"
Dim nan As BigNumberVQZ = BigNumberVQZ.Nan
Show("Sqrt", nan)
Show("Round", nan)
Show("Ceil", nan)
Show("Floor", nan)
Show("Ln", nan)
Show("Cos", nan)

Print "-- Nil"
Show("Sqrt", Nil)
Show("Round", Nil)
Show("Ceil", Nil)
Show("Floor", Nil)
Show("Ln", Nil)
Show("Cos", Nil)

Print "-- the name alone"
Sub ShowRoot(x As BigNumberVQZ, index As BigNumberVQZ)
  Try
    Print BigNumberVQZ.Root(x, index)
  Catch e As BigNumberErrorExceptionVQZ
    Print e.Message
  End Try
End Sub
ShowRoot("-16", "4")
ShowRoot("0", "0")
ShowRoot("16", "1.5")
ShowRoot("16", Nil)
ShowRoot(Nil, "2")
Try
  Print BigNumberVQZ.DegToRad("1", "-2", "3")
Catch e As BigNumberErrorExceptionVQZ
  Print e.Message
End Try
Try
  Print BigNumberVQZ.DegToDeg("1", "2", Nil)
Catch e As BigNumberErrorExceptionVQZ
  Print e.Message
End Try
Try
  Print BigNumberVQZ.DegToGrad("1", "2", "-3")
Catch e As BigNumberErrorExceptionVQZ
  Print e.Message
End Try

Print "-- two numbers"
Try
  Print BigNumberVQZ.Log("-8", "2")
Catch e As BigNumberErrorExceptionVQZ
  Print e.Message
End Try
Try
  Print BigNumberVQZ.Log("8", "0")
Catch e As BigNumberErrorExceptionVQZ
  Print e.Message
End Try
Try
  Print BigNumberVQZ.Log(Nil, "2")
Catch e As BigNumberErrorExceptionVQZ
  Print e.Message
End Try
