' A loop without an end, whose body is empty: no Catch keeps the program from being ended.
Dim turns As Integer
Try
  While True
    turns = turns + 1
    If turns = 5 Then Print "five"
  Wend
Catch e As RuntimeException
  Print "not reached"
Finally
  Print "not reached either"
End Try
