' In both precisions: numbers whose parts make no sense: a mantissa without its top bit, flags that
' contradict the rest, exponents at the ends. Every operation with one gives a result or one of the
' stated exceptions, and leaves the bytes of its operands alone.

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
    Return Str((x + y).DataFlags)
  Case 2
    Return Str((x - y).DataFlags)
  Case 3
    Return Str((x * y).DataFlags)
  Case 4
    Return Str((x / y).DataFlags)
  Case 5
    Return Str((x \ y).DataFlags)
  Case 6
    Return Str((x Mod y).DataFlags)
  Case 7
    Return Str((x.BitAnd(y)).DataFlags)
  Case 8
    Return Str((x.BitOr(y)).DataFlags)
  Case 9
    Return Str((x.BitXOr(y)).DataFlags)
  Case 10
    Return Str((x.Round).DataFlags)
  Case 11
    Return Str((x.Ceil).DataFlags)
  Case 12
    Return Str((x.Floor).DataFlags)
  Case 13
    Return Str((x.Abs).DataFlags)
  Case 14
    Return Str((x.Frac).DataFlags)
  Case 15
    Return Str((x.SkipFraction).DataFlags)
  Case 16
    Return Str((x.Multiply(3)).DataFlags)
  Case 17
    Return Str((BigNumberVQZ.Sgn(x)).DataFlags)
  Case 18
    Return Str((BigNumberVQZ.DegToGrad(x)).DataFlags)
  Case 19
    Return Str((BigNumberVQZ.GradToDeg(x)).DataFlags)
  Case 20
    Return Str((BigNumberVQZ.GradToRad(x)).DataFlags)
  Case 21
    Return Str((BigNumberVQZ.RadToGrad(x)).DataFlags)
  Case 22
    Return Str((BigNumberVQZ.DegToRad(x)).DataFlags)
  Case 23
    Return Str((BigNumberVQZ.RadToDeg(x)).DataFlags)
  Case 24
    Return x.StringValue
  Case 25
    Return x.StringValue(16)
  Case 26
    Return x.StringValue(3)
  Case 27
    Return x.GetStringValue(10, True, 15, 3)
  Case 28
    Return Str(x.IntegerValue)
  Case 29
    Return Str(x.Int64Value)
  Case 30
    Return Str(x.UInt64Value)
  Case 31
    Return Str(x.DoubleValue)
  Case 32
    Return Str(x.CurrencyValue)
  Case 33
    Return x.VariantValue
  Case 34
    Return Str(x.IsInteger)
  Case 35
    Return Str(x.Modulate2)
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
  For operation As Integer = 1 To 35
    Run(operation, x, y)
    If operation <= 9 Then Run(operation, y, x)
    If operation <= 9 Then Run(operation, x, x)
  Next
  Print label + ": zero " + Str(x.IsZero) + ", negative " + Str(x.IsNegative) + ", NaN " _
      + Str(x.IsNan) + ", equal to a copy " + Str(x.Equals(New BigNumberVQZ(x))) _
      + ", flags negated " + Str(x.Negate.DataFlags) + ", compared with 0: " _
      + Str(x.Operator_Compare("0")) + ", operations: " + Str(results + failures)
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
