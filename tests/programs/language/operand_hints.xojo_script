' In both precisions: what to write in place of operands, functions and methods that do not fit.
Dim b As BigNumberVQZ = "2"
Dim c As BigNumberVQZ = 1 / b
c = 10 - b
c = 2 ^ b
c = 7 \ b
c = 1.5 Mod b
c = 7 * b
c = b - 7
c = b And "1"
c = b Or 7
c = b.Sin
c = b.Log
c = BigNumberVQZ.Sqrt(b)
c = Sin(b)
Print Chr(b)
Print Max(b, c)
Print b.Text
Print b.Squareroot
c = BigNumberVQZ.Parse("2")
c = b.Multiply(2.5)
