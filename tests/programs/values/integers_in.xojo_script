' In both precisions: integers of the host as numbers, by constructor, property and shared method,
' and back again.

Dim x As New BigNumberVQZ

Sub ShowInt32(value As Int32)
  x.IntegerValue = value
  Dim made As New BigNumberVQZ(value)
  Print "Int32 " + Str(value) + ": " + x.GetStringValue(10, False, 30) + " " _
      + Str(x.IntegerValue = value) + " " + Str(made = x) + " " _
      + Str(BigNumberVQZ.NumberWithInteger(value) = x) + " " _
      + Str(BigNumberVQZ.NumberWithInt32(value) = x) + " " + Str(x.IsNegative) + " " + Str(x.IsZero)
End Sub
Sub ShowInt64(value As Int64)
  x.Int64Value = value
  Dim made As New BigNumberVQZ(value)
  Print "Int64 " + Str(value) + ": " + x.GetStringValue(10, False, 30) + " " _
      + Str(x.Int64Value = value) + " " + Str(made = x) + " " _
      + Str(BigNumberVQZ.NumberWithInt64(value) = x) + " " + Str(x.IsNegative) + " " + Str(x.IsZero)
End Sub
Sub ShowUInt32(value As UInt32)
  Dim made As New BigNumberVQZ(value)
  Print "UInt32 " + Str(value) + ": " + made.GetStringValue(10, False, 30) + " " _
      + Str(BigNumberVQZ.NumberWithUInteger(value) = made) + " " _
      + Str(BigNumberVQZ.NumberWithUInt32(value) = made) + " " + Str(made.IsNegative) + " " _
      + Str(made.IsZero)
End Sub
Sub ShowUInt64(value As UInt64)
  x.UInt64Value = value
  Dim made As New BigNumberVQZ(value)
  Print "UInt64 " + Str(value) + ": " + x.GetStringValue(10, False, 30) + " " _
      + Str(x.UInt64Value = value) + " " + Str(made = x) + " " _
      + Str(BigNumberVQZ.NumberWithUInt64(value) = x) + " " + Str(x.IsNegative) + " " _
      + Str(x.IsZero)
End Sub

ShowInt32(-2147483647 - 1)
ShowInt32(-2147483647)
ShowInt32(-65536)
ShowInt32(-1)
ShowInt32(0)
ShowInt32(1)
ShowInt32(2147483646)
ShowInt32(2147483647)

ShowInt64(-9223372036854775807 - 1)
ShowInt64(-9223372036854775807)
ShowInt64(-9007199254740993)
ShowInt64(-4294967297)
ShowInt64(-4294967296)
ShowInt64(-2147483649)
ShowInt64(-1)
ShowInt64(0)
ShowInt64(1)
ShowInt64(2147483648)
ShowInt64(4294967295)
ShowInt64(4294967296)
ShowInt64(9007199254740993)
ShowInt64(9223372036854775807)

ShowUInt32(0)
ShowUInt32(1)
ShowUInt32(2147483647)
ShowUInt32(2147483648)
ShowUInt32(4294967295)

ShowUInt64(0)
ShowUInt64(1)
ShowUInt64(4294967295)
ShowUInt64(4294967296)
ShowUInt64(9007199254740993)
ShowUInt64(9223372036854775807)
ShowUInt64(9223372036854775808)
ShowUInt64(18446744073709551615)
