' In both precisions: Nil as the argument of every shared function.

Function Compute(name As String, x As BigNumberVQZ, y As BigNumberVQZ, _
    z As BigNumberVQZ) As BigNumberVQZ
  Select Case name
  Case "Abs"
    Return BigNumberVQZ.Abs(x)
  Case "Sgn"
    Return BigNumberVQZ.Sgn(x)
  Case "Root"
    Return BigNumberVQZ.Root(x, y)
  Case "DegToDeg, three"
    Return BigNumberVQZ.DegToDeg(x, y, z)
  Case "DegToRad, three"
    Return BigNumberVQZ.DegToRad(x, y, z)
  Case "DegToGrad, three"
    Return BigNumberVQZ.DegToGrad(x, y, z)
  Case "DegToGrad"
    Return BigNumberVQZ.DegToGrad(x)
  Case "GradToDeg"
    Return BigNumberVQZ.GradToDeg(x)
  Case "GradToRad"
    Return BigNumberVQZ.GradToRad(x)
  Case "RadToGrad"
    Return BigNumberVQZ.RadToGrad(x)
  Case "DegToRad"
    Return BigNumberVQZ.DegToRad(x)
  Case "RadToDeg"
    Return BigNumberVQZ.RadToDeg(x)
  Case "ACoth"
    Return BigNumberVQZ.ACoth(x)
  Case "ATanh"
    Return BigNumberVQZ.ATanh(x)
  Case "ACosh"
    Return BigNumberVQZ.ACosh(x)
  Case "ASinh"
    Return BigNumberVQZ.ASinh(x)
  Case "Coth"
    Return BigNumberVQZ.Coth(x)
  Case "Tanh"
    Return BigNumberVQZ.Tanh(x)
  Case "Cosh"
    Return BigNumberVQZ.Cosh(x)
  Case "Sinh"
    Return BigNumberVQZ.Sinh(x)
  Case "ACot"
    Return BigNumberVQZ.ACot(x)
  Case "ATan"
    Return BigNumberVQZ.ATan(x)
  Case "ACos"
    Return BigNumberVQZ.ACos(x)
  Case "ASin"
    Return BigNumberVQZ.ASin(x)
  Case "Cot"
    Return BigNumberVQZ.Cot(x)
  Case "Tan"
    Return BigNumberVQZ.Tan(x)
  Case "Cos"
    Return BigNumberVQZ.Cos(x)
  Case "Sin"
    Return BigNumberVQZ.Sin(x)
  Case "Log"
    Return BigNumberVQZ.Log(x, y)
  Case "Ln"
    Return BigNumberVQZ.Ln(x)
  Case "Exp"
    Return BigNumberVQZ.Exp(x)
  End Select
End Function

Sub Show(name As String, x As BigNumberVQZ, y As BigNumberVQZ, z As BigNumberVQZ)
  Try
    Print name + " gives " + Compute(name, x, y, z).StringValue
  Catch e As BigNumberErrorExceptionVQZ
    Print e.Message
  End Try
End Sub

Dim names As String = "DegToGrad GradToDeg GradToRad RadToGrad DegToRad RadToDeg " _
    + "ACoth ATanh ACosh ASinh Coth Tanh Cosh Sinh ACot ATan ACos ASin Cot Tan Cos Sin Ln Exp Abs Sgn "
Dim name As String
For i As Integer = 1 To Len(names)
  If Mid(names, i, 1) = " " Then
    Show(name, Nil, Nil, Nil)
    name = ""
  Else
    name = name + Mid(names, i, 1)
  End If
Next

Print "-- two and three numbers"
Show("Root", Nil, "2", Nil)
Show("Root", "2", Nil, Nil)
Show("Log", Nil, "2", Nil)
Show("Log", "2", Nil, Nil)
Show("Log", Nil, Nil, Nil)
Show("DegToDeg, three", Nil, "1", "1")
Show("DegToDeg, three", "1", Nil, "1")
Show("DegToDeg, three", "1", "1", Nil)
Show("DegToRad, three", Nil, "1", "1")
Show("DegToRad, three", "1", "1", Nil)
Show("DegToGrad, three", Nil, "1", "1")
Show("DegToGrad, three", "1", "1", Nil)

Print "-- arguments that a method does not compute with"
Dim x As New BigNumberVQZ("5")
Print Str(x.Equals(Nil)) + " " + Str(x.Operator_Compare(Nil))
Dim nothing As String
x.StringValue = nothing
Print x
