' In both precisions: the byte of flags. 128 is negative, 64 not a number, 32 zero; any bits can
' be set.

Dim x As New BigNumberVQZ

Sub Show(label As String, x As BigNumberVQZ)
  Print label + ": " + Str(x.DataFlags)
End Sub
Show("no argument", New BigNumberVQZ)
Show("1", "1")
Show("-1", "-1")
Show("NaN", BigNumberVQZ.Nan)
Dim missing As BigNumberVQZ
Show("a copy of Nil", New BigNumberVQZ(missing))
Show("-0", "-0")

Print "-- the low byte is stored"
Sub SetFlags(flags As Integer)
  x.StringValue = "5"
  x.DataFlags = flags
  Print Str(flags) + ": " + Str(x.DataFlags) + ", zero " + Str(x.IsZero) + ", negative " _
      + Str(x.IsNegative) + ", NaN " + Str(x.IsNan) + ", " + x.StringValue + " " _
      + x.Negate.StringValue + " " + Str(x.Negate.DataFlags) + " " + Str(x.Abs.DataFlags)
End Sub
SetFlags(0)
SetFlags(128)
SetFlags(64)
SetFlags(32)
SetFlags(96)
SetFlags(160)
SetFlags(192)
SetFlags(224)
SetFlags(1)
SetFlags(31)
SetFlags(255)
SetFlags(256)
SetFlags(288)
SetFlags(384)
SetFlags(-1)
SetFlags(-128)

Print "-- other setters begin anew"
x.DataFlags = 255
x.StringValue = "5"
Print Str(x.DataFlags)
x.DataFlags = 255
x.IntegerValue = -5
Print Str(x.DataFlags)
x.DataFlags = 255
x.DoubleValue = 0
Print Str(x.DataFlags)
x.DataFlags = 255
x.Constructor
Print Str(x.DataFlags)
