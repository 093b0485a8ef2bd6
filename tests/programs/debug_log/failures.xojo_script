' In both precisions: what failed operations write to the debug log.

' An exponent that neither precision has.
Dim huge As String = "1e"
For i As Integer = 1 To 160
  huge = huge + "9"
Next

Dim x As New BigNumberVQZ("12.5")
Dim y As New BigNumberVQZ
Dim large As New BigNumberVQZ("1e20")
Dim price As New BigNumberVQZ("1e16")
Dim largest As BigNumberVQZ = BigNumberVQZ.Max
Dim missing As BigNumberVQZ
Dim result As BigNumberVQZ
Dim text As String
Dim rest As String
Dim flag As Boolean
Dim i32 As Int32
Dim i64 As Int64
Dim u64 As UInt64
Dim u32 As UInt32 = 2
Dim d As Double
Dim amount As Currency

For i As Integer = 1 To 31
  BigNumberVQZ.Debugging = True
  Try
    Select Case i
    Case 1
      result = x.Divide(y)
    Case 2
      result = x / y
    Case 3
      result = x \ y
    Case 4
      result = x Mod y
    Case 5
      result = y ^ y
    Case 6
      result = x.Add(missing)
    Case 7
      result = missing - x
    Case 8
      result = largest.Multiply(2)
    Case 9
      result = largest.Multiply(u32)
    Case 10
      result = missing.Sqrt
    Case 11
      result = missing.Round
    Case 12
      result = missing.Ceil
    Case 13
      result = missing.Floor
    Case 14
      result = x.BitAnd(missing)
    Case 15
      result = BigNumberVQZ.Ln(y)
    Case 16
      result = BigNumberVQZ.Log(y, x)
    Case 17
      result = BigNumberVQZ.Root(y, y)
    Case 18
      result = BigNumberVQZ.DegToRad(x, x, missing)
    Case 19
      i32 = large.IntegerValue
    Case 20
      i64 = large.Int64Value
    Case 21
      u64 = large.UInt64Value
    Case 22
      d = largest.DoubleValue
    Case 23
      amount = price.CurrencyValue
    Case 24
      text = x.StringValue(17)
    Case 25
      text = x.GetStringValue(1)
    Case 26
      y.StringValue(1) = "5"
    Case 27
      y.StringValue = huge
    Case 28
      y.SetStringValue("5", 17, rest, flag)
    Case 29
      y.Constructor(huge)
    Case 30
      i32 = missing.DataFlags
    Case 31
      result = BigNumberVQZ.NumberWithString(huge)
    End Select
    Print Str(i) + " has not failed"
  Catch e As RuntimeException
    result = Nil
  Finally
    BigNumberVQZ.Debugging = False
  End Try
  y.Constructor
Next
