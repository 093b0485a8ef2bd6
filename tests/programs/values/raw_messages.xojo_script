' What a block of the wrong size is told, in full.
Dim small As New BigNumberVQZ
Dim big As New BiggerNumberVQZ
For i As Integer = 1 To 5
  Try
    Select Case i
    Case 1
      small.DataMantissa = New MemoryBlock(31)
    Case 2
      small.DataExponent = New MemoryBlock(9)
    Case 3
      big.DataMantissa = New MemoryBlock(100)
    Case 4
      big.DataMantissa = New MemoryBlock(257)
    Case 5
      big.DataExponent = New MemoryBlock(65)
    End Select
  Catch e As OutOfBoundsException
    Print e.Message
  End Try
Next
