' The bytes of numbers in both precisions, from the least significant one on.

' Bytes with how often each stands there in a row.
Function Runs(block As MemoryBlock) As String
  Dim text As String
  Dim count As Integer
  For i As Integer = 0 To block.Size - 1
    count = count + 1
    Dim ends As Boolean = i = block.Size - 1
    If Not ends Then ends = block.Byte(i) <> block.Byte(i + 1)
    If ends Then
      text = text + " " + Hex(block.Byte(i)) + "*" + Str(count)
      count = 0
    End If
  Next
  Return text
End Function

Sub ShowSmall(label As String, x As BigNumberVQZ)
  Print label + ": mantissa" + Runs(x.DataMantissa) + ", exponent" + Runs(x.DataExponent) _
      + ", flags " + Str(x.DataFlags)
End Sub
Sub ShowBig(label As String, x As BiggerNumberVQZ)
  Print label + ": mantissa" + Runs(x.DataMantissa) + ", exponent" + Runs(x.DataExponent) _
      + ", flags " + Str(x.DataFlags)
End Sub

ShowSmall("0", "0")
ShowSmall("1", "1")
ShowSmall("-1", "-1")
ShowSmall("0.1", "0.1")
ShowSmall("-3.5", "-3.5")
ShowSmall("2^255", BigNumberVQZ.NumberWithInteger(2) ^ "255")
ShowSmall("2^256", BigNumberVQZ.NumberWithInteger(2) ^ "256")
ShowSmall("NaN", BigNumberVQZ.Nan)
ShowSmall("Max", BigNumberVQZ.Max)
ShowSmall("Min", BigNumberVQZ.Min)

ShowBig("0", "0")
ShowBig("1", "1")
ShowBig("-1", "-1")
ShowBig("0.1", "0.1")
ShowBig("-3.5", "-3.5")
ShowBig("2^2047", BiggerNumberVQZ.NumberWithInteger(2) ^ "2047")
ShowBig("2^2048", BiggerNumberVQZ.NumberWithInteger(2) ^ "2048")
ShowBig("NaN", BiggerNumberVQZ.Nan)
ShowBig("Max", BiggerNumberVQZ.Max)
ShowBig("Min", BiggerNumberVQZ.Min)

Print "-- a number made by hand"
Dim mantissa As New MemoryBlock(32)
mantissa.Byte(31) = &hA0
Dim exponent As New MemoryBlock(8)
exponent.Int64Value(0) = -255 + 10
Dim x As New BigNumberVQZ
x.DataMantissa = mantissa
Print x
x.DataExponent = exponent
Print x
x.DataFlags = 128
Print x
x.DataFlags = 0
Print Str(x = "1280")
exponent.Int64Value(0) = 0
x.DataExponent = exponent
Print x.StringValue(16)

Print "-- the name of the arithmetic library's build"
Print BigNumberVQZ.LibTypeStr + " " + BiggerNumberVQZ.LibTypeStr
