' In both precisions: what a Variant holds as a number, by the property VariantValue and by
' NumberWithVariant.

' An exponent that neither precision has.
Dim huge As String = "1e"
For i As Integer = 1 To 160
  huge = huge + "9"
Next

Function TextOf(x As BigNumberVQZ) As String
  If x Is Nil Then Return "Nil"
  Return x.StringValue
End Function

Function MadeOf(value As Variant) As String
  Try
    Return TextOf(BigNumberVQZ.NumberWithVariant(value))
  Catch e As BigNumberErrorExceptionVQZ
    Return e.Message
  Catch e As UnsupportedOperationException
    Return "unsupported: " + e.Message
  End Try
End Function

Sub Show(label As String, value As Variant)
  Dim x As New BigNumberVQZ("77")
  Dim failure As String
  Try
    x.VariantValue = value
  Catch e As BigNumberErrorExceptionVQZ
    failure = ", " + e.Message
  Catch e As UnsupportedOperationException
    failure = ", unsupported: " + e.Message
  End Try
  Print label + ": type " + Str(VarType(value)) + ", VariantValue " + x.StringValue + failure _
      + ", NumberWithVariant " + MadeOf(value)
End Sub

Print "-- nothing"
Show("Nil", Nil)

Print "-- integers"
Dim i32 As Int32 = -2147483647
Show("Int32", i32 - 1)
i32 = 2147483647
Show("Int32", i32)
Show("Integer", 0)
Dim i64 As Int64 = -9223372036854775807
Show("Int64", i64 - 1)
i64 = 9223372036854775807
Show("Int64", i64)
i64 = 5
Show("Int64", i64)
Dim u32 As UInt32 = 4294967295
Show("UInt32", u32)
u32 = 0
Show("UInt32", u32)
Dim u64 As UInt64 = 18446744073709551615
Show("UInt64", u64)
u64 = 9223372036854775808
Show("UInt64", u64)
u64 = 7
Show("UInt64", u64)
Show("Boolean", True)
Show("Boolean", False)

Print "-- real numbers: VariantValue reads all of a Double, NumberWithVariant a Single"
Dim d As Double = 0.1
Show("Double", d)
d = -2.5
Show("Double", d)
d = 0
Show("Double", d)
d = 16777217
Show("Double", d)
Show("Double, too large for a Single", 2 ^ 200)
d = 0
Show("Double, infinite", 1 / d)
Show("Double, not a number", d / d)
Dim tiny As Variant = 2 ^ -152
Dim small As New BigNumberVQZ
small.VariantValue = tiny
Print "Double, too small for a Single: VariantValue in base 16 " + small.StringValue(16) _
    + ", NumberWithVariant " + MadeOf(tiny)
Dim s As Single = 0.1
Show("Single", s)
s = -1.5
Show("Single", s)

Print "-- amounts of money"
Dim amount As Currency = 12.3456
Show("Currency", amount)
amount = -0.0001
Show("Currency", amount)
amount = -922337203685477
amount = amount - 0.5808
Show("Currency", amount)

Print "-- dates"
Dim day As New Date(2025, 11, 29)
day.TotalSeconds = day.TotalSeconds + 0.5
Show("Date", day)
Show("Date", New Date(1904, 1, 1))
Show("DateTime", New DateTime(1637496000.25))
Show("DateTime", New DateTime(-1))

Print "-- text"
Show("String", "-12.5 metres")
Show("String", "")
Show("String", "abc")
Show("String", ConvertEncoding("12.5é", Encodings.UTF16))
Show("String", huge)

Print "-- numbers"
Dim same As New BigNumberVQZ("-1606938044258990275541962092341162602522202993782792835301377.5")
Show("a number", same)
Show("not a number", BigNumberVQZ.Nan)

Print "-- other objects"
Show("MemoryBlock", New MemoryBlock(8))
Show("an exception", New BigNumberErrorExceptionVQZ)
Dim made As BigNumberVQZ = BigNumberVQZ.NumberWithVariant(same)
Print "a number is copied: " + Str(made Is same) + " " + Str(made = same)
