#tag Module
Protected Module SavingExample
	#tag Method, Flags = &h1
		Protected Sub Run()
		  ' Saving numbers bit for bit, and loading them again. The decimal text of a number is rounded to its
		  ' last digit; the three Data properties are the number itself. A record of them is 324 bytes long:
		  '
		  '   offset    0: the flags (sign, zero, not a number), 4 bytes
		  '   offset    4: the exponent, 64 bytes
		  '   offset   68: the mantissa, 256 bytes
		  '
		  ' For a BigNumberVQZ the exponent has 8 bytes and the mantissa 32.
		  
		  Dim three As New BiggerNumberVQZ(3)
		  Dim numbers() As BiggerNumberVQZ = Array(BiggerNumberVQZ.One / three, -three.Sqrt, _
		      BiggerNumberVQZ.Zero, BiggerNumberVQZ.Nan, BiggerNumberVQZ.Max)
		  
		  ' In an application this MemoryBlock is what a BinaryStream writes to a file and reads from it.
		  Dim count As Integer = numbers.Ubound + 1
		  Dim file As New MemoryBlock(count * RecordSize)
		  For i As Integer = 0 To numbers.Ubound
		    Save(numbers(i), file, i * RecordSize)
		  Next
		  Print Str(count) + " numbers in " + Str(file.Size) + " bytes"
		  
		  For i As Integer = 0 To numbers.Ubound
		    Dim x As BiggerNumberVQZ = Load(file, i * RecordSize)
		    Dim again As New MemoryBlock(RecordSize)
		    Save(x, again, 0)
		    Print "The same bytes: " + Str(SameBytes(again, file, i * RecordSize)) + ", " + Left(x.StringValue, 20)
		  Next
		  
		  ' Through text, the last bits can change: 1/3 has no end in base 10.
		  Dim third As BiggerNumberVQZ = numbers(0)
		  Dim copy As New BiggerNumberVQZ(third.StringValue)
		  Print "1/3 through decimal text, the same: " + Str(copy.Equals(third))
		  copy.StringValue(16) = third.StringValue(16)
		  Print "1/3 through base 16, the same: " + Str(copy.Equals(third))
		End Sub
	#tag EndMethod


	#tag Method, Flags = &h21
		Private Sub Save(x As BiggerNumberVQZ, target As MemoryBlock, offset As Integer)
		  target.Int32Value(offset) = x.DataFlags
		  target.StringValue(offset + 4, ExponentSize) = x.DataExponent.StringValue(0, ExponentSize)
		  target.StringValue(offset + 68, MantissaSize) = x.DataMantissa.StringValue(0, MantissaSize)
		End Sub
	#tag EndMethod


	#tag Method, Flags = &h21
		Private Function Block(source As MemoryBlock, offset As Integer, size As Integer) As MemoryBlock
		  Dim result As New MemoryBlock(size)
		  result.StringValue(0, size) = source.StringValue(offset, size)
		  Return result
		End Function
	#tag EndMethod


	#tag Method, Flags = &h21
		Private Function Load(source As MemoryBlock, offset As Integer) As BiggerNumberVQZ
		  Dim x As New BiggerNumberVQZ
		  x.DataFlags = source.Int32Value(offset)
		  x.DataExponent = Block(source, offset + 4, ExponentSize)
		  x.DataMantissa = Block(source, offset + 68, MantissaSize)
		  Return x
		End Function
	#tag EndMethod


	#tag Method, Flags = &h21
		Private Function SameBytes(record As MemoryBlock, file As MemoryBlock, offset As Integer) As Boolean
		  For i As Integer = 0 To record.Size - 1
		    If record.Byte(i) <> file.Byte(offset + i) Then Return False
		  Next
		  Return True
		End Function
	#tag EndMethod


	#tag Constant, Name = ExponentSize, Type = Double, Dynamic = False, Default = \"64", Scope = Private
	#tag EndConstant


	#tag Constant, Name = MantissaSize, Type = Double, Dynamic = False, Default = \"256", Scope = Private
	#tag EndConstant


	#tag Constant, Name = RecordSize, Type = Double, Dynamic = False, Default = \"324", Scope = Private
	#tag EndConstant


	#tag ViewBehavior
	#tag EndViewBehavior
End Module
#tag EndModule
