Print 5
Dim x As BigNumberVQZ = 
Print x.Sqr
Dim a As New BigNumberVQZ("1")
Print a.Sqr
a.Add("1")
Interface Foo
  Sub Bar
End Interface
If a > "0" The
  Print "x"
End If
For i As Integer = 1 To lenght
  Print i
Next
Print "abc
Dim f As FolderItem
