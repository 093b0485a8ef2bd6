' An array that grows until there is no room for it; one that fits is given back before.
Sub Fill(count As Integer)
  Dim numbers() As Integer
  For i As Integer = 1 To count
    numbers.Append i
  Next
End Sub

For turn As Integer = 1 To 100
  Fill 1000
Next
Print "a hundred small ones"
Fill 1000000
