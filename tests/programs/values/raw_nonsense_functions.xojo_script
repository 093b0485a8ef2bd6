' The functions of numbers whose parts make no sense give a result or one of the stated
' exceptions, and leave the bytes of their operands alone.

Dim mantissas As Integer = BigNumberVQZ.One.DataMantissa.Size
Dim exponents As Integer = BigNumberVQZ.One.DataExponent.Size

' A number of the bytes at the ends of its mantissa, those of its exponent, and its flags.
Function MakeNumber(lowest As Integer, highest As Integer, exponentLow As Integer, _
    exponentFill As Integer, exponentHigh As Integer, flags As Integer) As BigNumberVQZ
  Dim x As New BigNumberVQZ
  Dim mantissa As New MemoryBlock(mantissas)
  mantissa.Byte(0) = lowest
  mantissa.Byte(mantissas - 1) = highest
  x.DataMantissa = mantissa
  Dim exponent As New MemoryBlock(exponents)
  For i As Integer = 1 To exponents - 2
    exponent.Byte(i) = exponentFill
  Next
  exponent.Byte(0) = exponentLow
  exponent.Byte(exponents - 1) = exponentHigh
  x.DataExponent = exponent
  x.DataFlags = flags
  Return x
End Function

Function SameBytes(a As MemoryBlock, b As MemoryBlock) As Boolean
  For i As Integer = 0 To a.Size - 1 Step 8
    If a.Int64Value(i) <> b.Int64Value(i) Then Return False
  Next
  Return True
End Function

Function Result(operation As Integer, x As BigNumberVQZ, y As BigNumberVQZ) As String
  Select Case operation
  Case 1
    Return (x ^ y).StringValue
  Case 2
    Return (BigNumberVQZ.Root(x, y)).StringValue
  Case 3
    Return (BigNumberVQZ.Log(x, y)).StringValue
  Case 4
    Return (x.Sqrt).StringValue
  Case 5
    Return (BigNumberVQZ.ACoth(x)).StringValue
  Case 6
    Return (BigNumberVQZ.ATanh(x)).StringValue
  Case 7
    Return (BigNumberVQZ.ACosh(x)).StringValue
  Case 8
    Return (BigNumberVQZ.ASinh(x)).StringValue
  Case 9
    Return (BigNumberVQZ.Coth(x)).StringValue
  Case 10
    Return (BigNumberVQZ.Tanh(x)).StringValue
  Case 11
    Return (BigNumberVQZ.Cosh(x)).StringValue
  Case 12
    Return (BigNumberVQZ.Sinh(x)).StringValue
  Case 13
    Return (BigNumberVQZ.ACot(x)).StringValue
  Case 14
    Return (BigNumberVQZ.ATan(x)).StringValue
  Case 15
    Return (BigNumberVQZ.ACos(x)).StringValue
  Case 16
    Return (BigNumberVQZ.ASin(x)).StringValue
  Case 17
    Return (BigNumberVQZ.Cot(x)).StringValue
  Case 18
    Return (BigNumberVQZ.Tan(x)).StringValue
  Case 19
    Return (BigNumberVQZ.Cos(x)).StringValue
  Case 20
    Return (BigNumberVQZ.Sin(x)).StringValue
  Case 21
    Return (BigNumberVQZ.Ln(x)).StringValue
  Case 22
    Return (BigNumberVQZ.Exp(x)).StringValue
  End Select
End Function

Dim results, failures, others, changes As Integer

Sub Run(operation As Integer, x As BigNumberVQZ, y As BigNumberVQZ)
  Dim xBefore As New BigNumberVQZ(x)
  Dim yBefore As New BigNumberVQZ(y)
  Try
    If Result(operation, x, y) = "" Then others = others + 1
    results = results + 1
  Catch e As BigNumberErrorExceptionVQZ
    failures = failures + 1
  Catch e As RuntimeException
    others = others + 1
    Print Str(operation) + ": " + e.Message
  End Try
  If Not (SameBytes(x.DataMantissa, xBefore.DataMantissa) And SameBytes(x.DataExponent, _
      xBefore.DataExponent) And x.DataFlags = xBefore.DataFlags) Then changes = changes + 1
  If Not (SameBytes(y.DataMantissa, yBefore.DataMantissa) And SameBytes(y.DataExponent, _
      yBefore.DataExponent) And y.DataFlags = yBefore.DataFlags) Then changes = changes + 1
End Sub

Sub Show(label As String, x As BigNumberVQZ)
  Dim y As New BigNumberVQZ("2.5")
  results = 0
  failures = 0
  For operation As Integer = 1 To 22
    Run(operation, x, y)
    If operation <= 3 Then Run(operation, y, x)
    If operation <= 3 Then Run(operation, x, x)
  Next
  Print label + ": " + Str(results + failures) + " operations"
End Sub

Show("no bits at all", MakeNumber(0, 0, 0, 0, 0, 0))
Show("no bits, negative", MakeNumber(0, 0, 1, 255, 255, 128))
Show("the lowest bit, exponent 0", MakeNumber(1, 0, 0, 0, 0, 0))
Show("the lowest bit, exponent -1", MakeNumber(1, 0, 255, 255, 255, 0))
Show("the lowest bit, largest exponent", MakeNumber(1, 0, 255, 255, 127, 0))
Show("the lowest bit, smallest exponent", MakeNumber(1, 0, 0, 0, 128, 0))
Show("largest exponent", MakeNumber(0, 128, 255, 255, 127, 0))
Show("smallest exponent", MakeNumber(0, 128, 0, 0, 128, 0))
Show("smallest exponent, negative", MakeNumber(0, 128, 0, 0, 128, 128))
Show("zero with a mantissa", MakeNumber(0, 128, 1, 255, 255, 32))
Show("negative zero with a mantissa", MakeNumber(0, 128, 1, 255, 255, 160))
Show("NaN that is not zero", MakeNumber(0, 128, 1, 255, 255, 64))
Show("undefined flags", MakeNumber(0, 128, 1, 255, 255, 31))
Show("all flags", MakeNumber(255, 255, 255, 255, 255, 255))
Print "other exceptions: " + Str(others) + ", changed operands: " + Str(changes)
