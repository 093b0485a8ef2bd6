' Objects with many fields, until there is no room for them; those that nobody holds make room.
Class Row
  Dim a, b, c, d, e, f, g, h As Integer
  Dim i, j, k, l, m, n, o, p As Integer
End Class

For turn As Integer = 1 To 10000
  Dim row As New Row
  row.p = turn
Next
Print "ten thousand, one after the other"
Dim rows() As Row
For turn As Integer = 1 To 8000
  rows.Append New Row
Next
