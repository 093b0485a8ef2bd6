' In both precisions: saving numbers bit for bit into memory blocks and restoring them.

Dim exponents As Integer
Dim mantissas As Integer
Dim one As New BigNumberVQZ("1")
exponents = one.DataExponent.Size
mantissas = one.DataMantissa.Size

' The exponent, the mantissa and the flags, one after the other.
Function Saved(x As BigNumberVQZ) As MemoryBlock
  Dim record As New MemoryBlock(exponents + mantissas + 1)
  Dim part As MemoryBlock = x.DataExponent
  For i As Integer = 0 To exponents - 1
    record.Byte(i) = part.Byte(i)
  Next
  part = x.DataMantissa
  For i As Integer = 0 To mantissas - 1
    record.Byte(exponents + i) = part.Byte(i)
  Next
  record.Byte(exponents + mantissas) = x.DataFlags
  Return record
End Function

Function Restored(record As MemoryBlock) As BigNumberVQZ
  Dim x As New BigNumberVQZ
  Dim part As New MemoryBlock(exponents)
  For i As Integer = 0 To exponents - 1
    part.Byte(i) = record.Byte(i)
  Next
  x.DataExponent = part
  part = New MemoryBlock(mantissas)
  For i As Integer = 0 To mantissas - 1
    part.Byte(i) = record.Byte(exponents + i)
  Next
  x.DataMantissa = part
  x.DataFlags = record.Byte(exponents + mantissas)
  Return x
End Function

Function SameBytes(a As MemoryBlock, b As MemoryBlock) As Boolean
  If a.Size <> b.Size Then Return False
  For i As Integer = 0 To a.Size - 1
    If a.Byte(i) <> b.Byte(i) Then Return False
  Next
  Return True
End Function

Sub Show(label As String, x As BigNumberVQZ)
  Dim record As MemoryBlock = Saved(x)
  Dim y As BigNumberVQZ = Restored(record)
  Print label + ": flags " + Str(y.DataFlags) + ", equal: " + Str(y.Equals(x)) _
      + ", the same text: " + Str(y.StringValue = x.StringValue) + ", the same bytes: " _
      + Str(SameBytes(Saved(y), record))
End Sub

Show("0", New BigNumberVQZ)
Show("1", "1")
Show("-1", "-1")
Show("0.1", "0.1")
Show("-1e100", "-1e100")
Show("1e-100", "1e-100")
Show("pi", BigNumberVQZ.Pi)
Show("largest", BigNumberVQZ.Max)
Show("smallest", BigNumberVQZ.Min)
Show("NaN", BigNumberVQZ.Nan)
Dim missing As BigNumberVQZ
Show("a copy of Nil", New BigNumberVQZ(missing))
For i As Integer = 1 To 20
  Dim random As BigNumberVQZ = BigNumberVQZ.Rand
  If Not SameBytes(Saved(Restored(Saved(random))), _
      Saved(random)) Then Print "a random number has changed"
Next

Print "-- blocks are copies"
Dim x As New BigNumberVQZ("3")
Dim mantissa As MemoryBlock = x.DataMantissa
Print "two reads give two blocks: " + Str(Not (mantissa Is x.DataMantissa))
mantissa.Byte(mantissas - 1) = 128
Print x
x.DataMantissa = mantissa
Print x
mantissa.Byte(mantissas - 1) = 255
Print x

Print "-- a setter writes into the number itself, and only there"
Dim copy As New BigNumberVQZ(x)
Dim same As BigNumberVQZ = x
x.DataFlags = 128
Print x.StringValue + " " + same.StringValue + " " + copy.StringValue
