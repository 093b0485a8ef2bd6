' Modules, classes, enumerations, directives and what else newer programs use.
Module Tools
  Const kMax = 7
  Dim counter As Integer = 5
  Private secret As Integer
  Function Twice(Extends n As Integer) As Integer
    Return n * 2
  End Function
  Function Sum(ParamArray values() As Integer) As Integer
    Dim s As Integer
    For Each v As Integer In values
      s = s + v
    Next
    Return s
  End Function
  Sub Count()
    Static calls As Integer = 10
    calls = calls + 1
    counter = counter + calls
  End Sub
End Module
Enum Paint
  Red
  Green = 5
  Blue
End Enum
Class Account
  Dim balance As Currency
  Private log() As String
  Dim grid(2, 3) As Integer
  Sub Constructor(start As Currency)
    balance = start
    log.Append("open")
  End Sub
  Sub Pay(amount As Currency, Optional note As String)
    balance = balance - amount
    log.Append(Str(amount) + note)
    grid(1, 2) = grid(1, 2) + 1
  End Sub
  Function Lines() As Integer
    Return log.Count
  End Function
End Class
#If XojoVersion > 2000 Then
  Print "this host"
#Else
  Print nonsense at all (
#EndIf
#Pragma BreakOnExceptions False
Print Str(kMax) + " " + Str(Tools.counter)
Tools.Count
Count
Print Str(counter)
Print Str(21.Twice) + " " + Str(Sum(1, 2, 3)) + " " + Str(Sum())
Dim a As New Account(100)
a.Pay(12.5)
a.Pay 1, "x"
Print Str(a.balance) + " " + Str(a.Lines) + " " + Str(a.grid(1, 2))
Dim c As Paint = Paint.Blue
Print Str(Integer(c)) + " " + If(c = Paint.Blue, "blue", "no")
Dim m(2, 3) As Integer
m(1, 2) = 5
Redim m(3, 4)
Print Str(m(1, 2)) + " " + Str(Ubound(m, 2)) + " " + Str(m.LastIndex(1))
Function Down(x As Integer, y As Integer) As Integer
  Return y - x
End Function
Dim l() As Integer = Array(3, 1, 2)
l.Sort(AddressOf Down)
Print Str(l(0)) + Str(l(1)) + Str(l(2))
Dim d As New Dictionary
d.Value("a") = 1
d.Value(2) = "two"
Print d.Value("A") + " " + d.Value(2) + " " + d.Lookup("z", "none") + Str(d.Count)
For Each k As Variant In d.Keys
  Print k
Next
Print Format(1234567.891, "#,##0.00") + " " + Format(-0.5, "0.0##") + " " + Format(0.25, "0%") + " " + Format(12345, "0.00E+00")
Dim b As Byte = 255
b = b + 1
Print Str(b)
Dim mb As MemoryBlock = "AB"
mb.LittleEndian = False
Print Str(mb.UInt16Value(0)) + " " + mb
MsgBox "message"
System.DebugLog "log"
Print Str(Runtime.ObjectCount > 0) + " " + Str(Runtime.MemoryUsed > 1000)
Print "abcdef".Middle(1, 2) + " " + String.FromArray("a,b".ToArray(","), "-") + " " + Str(Integer.FromString("12"))
