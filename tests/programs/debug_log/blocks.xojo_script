' The parts of a number are read and written without a word, unless that fails.
Dim x As New BigNumberVQZ("2.5")
Dim mantissa As MemoryBlock
Dim nothing As BigNumberVQZ
BigNumberVQZ.Debugging = True
x.DataFlags = 128
x.DataExponent = New MemoryBlock(8)
Try
  mantissa = x.DataMantissa
Catch e As OutOfMemoryException
End Try
Try
  mantissa = nothing.DataExponent
Catch e As NilObjectException
End Try
Try
  x.DataMantissa = mantissa
Catch e As NilObjectException
End Try
BigNumberVQZ.Debugging = False
