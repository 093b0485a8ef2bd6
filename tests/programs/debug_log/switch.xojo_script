' The switch of the debug log, which both classes share. It is off, unless the environment says "1",
' "true" or "yes" in any letter case.
Print "at the start: " + Str(BigNumberVQZ.Debugging)
Dim x As New BigNumberVQZ
x.StringValue = "1"
BigNumberVQZ.Debugging = Not BigNumberVQZ.Debugging
Print "switched: " + Str(BigNumberVQZ.Debugging) + ", in the other class: " _
    + Str(BiggerNumberVQZ.Debugging)
x.StringValue = "2"
BiggerNumberVQZ.Debugging = Not BiggerNumberVQZ.Debugging
Print "switched back: " + Str(BigNumberVQZ.Debugging)
x = Nil
