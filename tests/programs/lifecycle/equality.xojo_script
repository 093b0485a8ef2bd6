' In both precisions: which numbers are equal.

Dim missing As BigNumberVQZ

Sub Compare(label As String, left As BigNumberVQZ, right As BigNumberVQZ)
  Print label + ": " + Str(left.Equals(right)) + " and " + Str(right.Equals(left))
End Sub

Compare("1 and 1", "1", "1.000")
Compare("1 and 2", "1", "2")
Compare("1 and -1", "1", "-1")
Compare("-1 and -1", "-1", "-1.0")
Compare("0 and -0", "0", "-0")
Compare("0 and 1", "0", "1")
Compare("0 and -1", "0", "-1")
Compare("1250 and 125e1", "1250", "125e1")
Compare("0.5 and 0.25", "0.5", "0.25")
Compare("2^200 and 2^200 + 1", "1606938044258990275541962092341162602522202993782792835301376", _
    "1606938044258990275541962092341162602522202993782792835301377")
Compare("1 and Nil", "1", missing)
Compare("-1 and Nil", "-1", missing)
Compare("0 and Nil", "0", missing)
Compare("Nil and Nil", missing, missing)
Compare("NaN and 0", BigNumberVQZ.Nan, "0")
Compare("NaN and 1", BigNumberVQZ.Nan, "1")
Compare("NaN and NaN", BigNumberVQZ.Nan, BigNumberVQZ.Nan)
Compare("NaN and Nil", BigNumberVQZ.Nan, missing)
Dim x As New BigNumberVQZ("0.1")
Compare("a number and itself", x, x)
Compare("a number and its copy", x, New BigNumberVQZ(x))
