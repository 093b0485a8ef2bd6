' The parts of a number on hosts whose memory blocks fail.
Dim x As New BigNumberVQZ("-12.5")
For i As Integer = 1 To 3
  Try
    Select Case i
    Case 1
      Print "mantissa of " + Str(x.DataMantissa.Size)
    Case 2
      Print "exponent of " + Str(x.DataExponent.Size)
    Case 3
      x.DataMantissa = New MemoryBlock(32)
      Print "set"
    End Select
  Catch e As OutOfMemoryException
    Print "out of memory: " + e.Message
  Catch e As OutOfBoundsException
    Print "out of bounds: " + e.Message
  End Try
Next
x.DataFlags = 32
Print x
