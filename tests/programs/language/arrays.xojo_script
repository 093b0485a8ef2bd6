' Arrays of everything, and loops over them.
Dim squares() As Integer
For i As Integer = 1 To 5
  squares.Append(i * i)
Next
squares(0) += 100
squares.RemoveAt(1)
For Each n As Integer In squares
  Print Str(n)
Next
Print "last index " + Str(Ubound(squares)) + ", first 16 at " + Str(squares.IndexOf(16))

' Text becomes numbers where numbers are wanted.
Dim numbers() As BigNumberVQZ = Array("1e9", "-1", "0.5")
numbers.Append("1")
numbers(1) = numbers(1) * "3"
Print Total(numbers)
Redim numbers(1)
Print Total(numbers)
DoubleAll(numbers)
Print Total(numbers)

Dim mixed() As Variant = Array(1, "two", numbers(0), Nil)
For Each v As Variant In mixed
  Print Str(VarType(v)) + If(v IsA BigNumberVQZ, " a number", "")
Next

Dim words() As String = Split("the quick brown fox", " ")
words.Sort
Print Join(words, ", ")

Dim matrix(3) As MemoryBlock
For row As Integer = 0 To matrix.LastIndex
  matrix(row) = New MemoryBlock(4)
  matrix(row).Byte(row) = 255
Next
Print Hex(matrix(2).UInt32Value(0))

Try
  Print numbers(2)
Catch e As OutOfBoundsException
  Print e.Message
End Try
Try
  Redim numbers(-2)
Catch e As OutOfBoundsException
  Print e.Message
End Try
Print Str(numbers.Count)

Function Total(list() As BigNumberVQZ) As BigNumberVQZ
  Dim sum As New BigNumberVQZ
  For Each x As BigNumberVQZ In list
    sum += x
  Next
  Return sum
End Function

Sub DoubleAll(list() As BigNumberVQZ)
  For i As Integer = 0 To list.LastIndex
    list(i) *= "2"
  Next
End Sub
