' In both precisions: every method gives a new object, and no operation touches its operands.

Dim a As New BigNumberVQZ("-12.75")
Dim b As New BigNumberVQZ("3.5")

Sub CheckNew(label As String, result As BigNumberVQZ, left As BigNumberVQZ, right As BigNumberVQZ)
  Dim news As Boolean = Not (result Is left) And Not (result Is right)
  Print label + " = " + result.StringValue + ", a new object: " + Str(news) + ", operands " _
      + left.StringValue + " and " + right.StringValue
End Sub

CheckNew("Add", a.Add(b), a, b)
CheckNew("Subtract", a.Subtract(b), a, b)
CheckNew("Multiply", a.Multiply(b), a, b)
CheckNew("Divide", a.Divide("-0.5"), a, b)
CheckNew("+", a + b, a, b)
CheckNew("-", a - b, a, b)
CheckNew("*", a * b, a, b)
CheckNew("\", a \ b, a, b)
CheckNew("Mod", a Mod b, a, b)
CheckNew("negated", -a, a, b)
CheckNew("Negate", a.Negate, a, b)
CheckNew("Abs", a.Abs, a, b)
CheckNew("Abs of a positive number", b.Abs, a, b)
CheckNew("Round", a.Round, a, b)
CheckNew("Frac", a.Frac, a, b)
CheckNew("SkipFraction", a.SkipFraction, a, b)
CheckNew("Ceil", a.Ceil, a, b)
CheckNew("Floor", a.Floor, a, b)
CheckNew("a number with itself", a.Add(a), a, a)
CheckNew("an integer rounded", b.Round.Round, a, b)

Print "-- two variables, one object"
Dim other As BigNumberVQZ = a
Print "the same object: " + Str(other Is a)
other.StringValue = "1"
Print "a is " + a.StringValue
a = a + "1"
Print "a is " + a.StringValue + ", the other one " + other.StringValue

Print "-- objects through functions"
Function Twice(x As BigNumberVQZ) As BigNumberVQZ
  Return x + x
End Function
Sub Replace(ByRef x As BigNumberVQZ, y As BigNumberVQZ)
  x = Twice(y)
End Sub
Sub Change(x As BigNumberVQZ)
  x.StringValue = "100"
  x = "200"
End Sub
Dim c As BigNumberVQZ
Replace(c, b)
Print c
Change(c)
Print c
For i As Integer = 1 To 1000
  c = Twice(c)
  If c > "1e6" Then c = "1"
Next
Print c
