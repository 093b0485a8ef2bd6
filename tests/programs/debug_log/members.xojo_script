' In both precisions: what each member writes to the debug log.

Dim x As New BigNumberVQZ("12.5")
Dim y As New BigNumberVQZ("3")
Dim result As BigNumberVQZ
Dim text As String
Dim rest As String
Dim flag As Boolean
Dim whole As Integer
Dim i32 As Int32 = -32
Dim i64 As Int64 = -64
Dim u32 As UInt32 = 32
Dim u64 As UInt64 = 64
Dim d As Double = 1.5
Dim s As Single = 0.25
Dim amount As Currency = 1.25

BigNumberVQZ.Debugging = True
' Constructors, on an object that lives on.
x.Constructor
x.Constructor("12.5")
x.Constructor(i32)
x.Constructor(i64)
x.Constructor(u32)
x.Constructor(u64)
x.Constructor(d)
x.Constructor(s)
x.Constructor(amount)
x.Constructor(y)
x.Operator_Convert("12.5")
' Tests.
flag = x.IsZero
flag = x.IsNegative
flag = x.IsNan
flag = x.IsInteger
flag = x.Equals(y)
whole = x.Operator_Compare(y)
whole = x.Modulate2
' Text.
text = x.StringValue
text = x.StringValue(16)
text = x.GetStringValue
text = x.Operator_Convert
x.StringValue = "7"
x.StringValue(8) = "7"
x.SetStringValue("12.5 m", 10, rest, flag)
' Values.
whole = x.IntegerValue
i64 = x.Int64Value
u64 = x.UInt64Value
d = x.DoubleValue
amount = x.CurrencyValue
x.IntegerValue = -32
x.Int64Value = i64
x.UInt64Value = u64
x.DoubleValue = d
x.CurrencyValue = amount
' The flags are read and written without a word.
x.DataFlags = x.DataFlags
BigNumberVQZ.Debugging = False

' Each result takes the place of the one before it, which ends.
Dim operations As Integer = 25
For i As Integer = 1 To operations
  result = Nil
  BigNumberVQZ.Debugging = True
  Select Case i
  Case 1
    result = x.Add(y)
  Case 2
    result = x.Subtract(y)
  Case 3
    result = x.Multiply(y)
  Case 4
    result = x.Divide(y)
  Case 5
    result = x.Multiply(5)
  Case 6
    result = x.Multiply(u32)
  Case 7
    result = x.Modulate(y)
  Case 8
    result = x.Pow(y)
  Case 9
    result = x.BitAnd(y)
  Case 10
    result = x.BitOr(y)
  Case 11
    result = x.BitXOr(y)
  Case 12
    result = x.Sqrt
  Case 13
    result = x.Round
  Case 14
    result = x.Abs
  Case 15
    result = x.Frac
  Case 16
    result = x.SkipFraction
  Case 17
    result = x.Ceil
  Case 18
    result = x.Floor
  Case 19
    result = x.Negate
  Case 20
    result = x + y
  Case 21
    result = x - y
  Case 22
    result = x * y
  Case 23
    result = x / y
  Case 24
    result = x \ y
  Case 25
    result = -x
  End Select
  BigNumberVQZ.Debugging = False
Next
result = Nil
BigNumberVQZ.Debugging = True
result = x Mod y
result = Nil
result = x ^ y
result = Nil
flag = x < y
BigNumberVQZ.Debugging = False
Print x
