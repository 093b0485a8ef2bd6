' In both precisions: what the shared methods write to the debug log.

Dim x As New BigNumberVQZ("1.25")
Dim two As New BigNumberVQZ("2")
Dim half As New BigNumberVQZ("0.5")
Dim result As BigNumberVQZ
Dim text As String
Dim i32 As Int32 = -32
Dim i64 As Int64 = -64
Dim u32 As UInt32 = 32
Dim u64 As UInt64 = 64
Dim d As Double = 1.5
Dim s As Single = 0.25
Dim amount As Currency = 1.25

For i As Integer = 1 To 47
  result = Nil
  BigNumberVQZ.Debugging = True
  Select Case i
  Case 1
    result = BigNumberVQZ.NumberWithInteger(1)
  Case 2
    result = BigNumberVQZ.NumberWithInt64(i64)
  Case 3
    result = BigNumberVQZ.NumberWithInt32(i32)
  Case 4
    result = BigNumberVQZ.NumberWithUInt64(u64)
  Case 5
    result = BigNumberVQZ.NumberWithUInt32(u32)
  Case 6
    result = BigNumberVQZ.NumberWithSingle(s)
  Case 7
    result = BigNumberVQZ.NumberWithDouble(d)
  Case 8
    result = BigNumberVQZ.NumberWithCurrency(amount)
  Case 9
    result = BigNumberVQZ.NumberWithString("12.5 metres")
  Case 10
    result = BigNumberVQZ.NumberWithUInteger(u32)
  Case 11
    result = BigNumberVQZ.Abs(x)
  Case 12
    result = BigNumberVQZ.Sgn(x)
  Case 13
    result = BigNumberVQZ.Root(x, two)
  Case 14
    result = BigNumberVQZ.DegToDeg(x, x, x)
  Case 15
    result = BigNumberVQZ.DegToRad(x, x, x)
  Case 16
    result = BigNumberVQZ.DegToGrad(x, x, x)
  Case 17
    result = BigNumberVQZ.DegToGrad(x)
  Case 18
    result = BigNumberVQZ.GradToDeg(x)
  Case 19
    result = BigNumberVQZ.GradToRad(x)
  Case 20
    result = BigNumberVQZ.RadToGrad(x)
  Case 21
    result = BigNumberVQZ.DegToRad(x)
  Case 22
    result = BigNumberVQZ.RadToDeg(x)
  Case 23
    result = BigNumberVQZ.ACoth(x)
  Case 24
    result = BigNumberVQZ.ATanh(half)
  Case 25
    result = BigNumberVQZ.ACosh(x)
  Case 26
    result = BigNumberVQZ.ASinh(x)
  Case 27
    result = BigNumberVQZ.Coth(x)
  Case 28
    result = BigNumberVQZ.Tanh(x)
  Case 29
    result = BigNumberVQZ.Cosh(x)
  Case 30
    result = BigNumberVQZ.Sinh(x)
  Case 31
    result = BigNumberVQZ.ACot(x)
  Case 32
    result = BigNumberVQZ.ATan(x)
  Case 33
    result = BigNumberVQZ.ACos(half)
  Case 34
    result = BigNumberVQZ.ASin(half)
  Case 35
    result = BigNumberVQZ.Cot(x)
  Case 36
    result = BigNumberVQZ.Tan(x)
  Case 37
    result = BigNumberVQZ.Cos(x)
  Case 38
    result = BigNumberVQZ.Sin(x)
  Case 39
    result = BigNumberVQZ.Log(x, half)
  Case 40
    result = BigNumberVQZ.Ln(x)
  Case 41
    result = BigNumberVQZ.Exp(x)
  Case 42
    result = BigNumberVQZ.Pi
  Case 43
    result = BigNumberVQZ.Max
  Case 44
    result = BigNumberVQZ.Zero
  Case 45
    result = BigNumberVQZ.Ln2
  Case 46
    text = BigNumberVQZ.LibTypeStr
  Case 47
    result = BigNumberVQZ.NumberWithString("")
  End Select
  BigNumberVQZ.Debugging = False
Next
Print text
