' In both precisions: how far text is read, what is left of it, and whether there were digits.

Function Quoted(text As String) As String
  Return "'" + text + "'"
End Function

Sub Read(text As String, base As Integer = 10)
  Dim x As New BigNumberVQZ("77")
  Dim rest As String = "what was here before"
  Dim found As Boolean = True
  x.SetStringValue(text, base, rest, found)
  Print Quoted(text) + " is " + x.StringValue + ", the rest " + Quoted(rest) + ", digits: " _
      + Str(found)
End Sub

Print "-- as far as it is a number"
Read("12.5abc")
Read("12.5")
Read("abc")
Read("")
Read("12 metres")
Read("1 000")
Read("1'000")
Read("12.5.5")
Read("0x10")

Print "-- signs"
Read("+5")
Read("-5")
Read("- 5")
Read("-")
Read("+")
Read("--5")
Read("+-5")
Read("5-")
Read("-0")

Print "-- blanks"
Read("   7")
Read(Chr(9) + Chr(10) + Chr(13) + " 7")
Read(" - 7")
Read("7   ")
Read("   ")

Print "-- decimal points, and commas as well"
Read("1.5")
Read("1,5")
Read("1.5,5")
Read(".5")
Read(",5")
Read("-.5")
Read("5.")
Read(".")
Read(". 5")
Read("000012.500")

Print "-- exponents"
Read("12e3")
Read("12E3")
Read("12e+3")
Read("125e-2")
Read("1.5e1")
Read("12 e3")
Read("12e 3")
Read("12e - 1 x")
Read("12e")
Read("12e+")
Read("12ex")
Read("e5")
Read("12e3.5")
Read("12e3e4")
Read("-12e2z")

Print "-- other bases"
Read("ff", 16)
Read("FF.8", 16)
Read("-Ff.fg", 16)
Read("1e5", 16)
Read("1012", 2)
Read("1.1e1", 2)
Read("789", 8)
Read("a9ba", 11)
Read("2102", 3)
Read("5.3", 6)
Read("g", 16)

Print "-- one variable for the text and for its rest"
Dim x As New BigNumberVQZ
Dim line As String = "3 4.5 -6 7"
Dim found As Boolean
Dim sum As New BigNumberVQZ
Do
  x.SetStringValue(line, 10, line, found)
  If Not found Then Exit
  sum = sum + x
  Print x.StringValue + ", then " + Quoted(line)
Loop
Print "the sum is " + sum.StringValue

Print "-- a rest that is passed by another routine's reference"
Sub ReadOn(x As BigNumberVQZ, ByRef text As String, ByRef more As Boolean)
  x.SetStringValue(text, 10, text, more)
End Sub
line = "1;2"
ReadOn(x, line, found)
Print x.StringValue + " " + Quoted(line) + " " + Str(found)
ReadOn(x, line, found)
Print x.StringValue + " " + Quoted(line) + " " + Str(found)
