Dim a As New BigNumberVQZ
If a.IsZero Then
  Print "zero"
