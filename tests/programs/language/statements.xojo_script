' Every statement of the language once, on big numbers.
Const Limit = 5
Dim total As BigNumberVQZ = "0", step_ As New BigNumberVQZ("0.5")

For i As Integer = 1 To 3 // counting up
  total = total + Times(step_, i)
Next
Print total

FOR i As Integer = 9 DOWNTO 1 STEP 4 Rem in any letter case
  If i = 5 Then Continue For
  Print "i = " + Str(i)
NEXT i

Dim n As BigNumberVQZ = "1"
While n < "1e6"
  n = n * "10"
  If n = "1000" Then
    Print "a thousand"
  ElseIf n > "99999" Then
    Exit While
  Else
    Print n
  End If
Wend
Print n

Dim rounds As Integer
Do
  rounds = rounds + 1
  Select Case rounds
  Case 1, 2
    Print "early"
  Case 3 To 4
    Print "later"
  Case Is >= Limit
    Print "last"
  Case Else
    Print "never"
  End Select
Loop Until rounds = Limit

Try
  Halve(total, 0)
Catch e As BigNumberErrorExceptionVQZ
  Print e.Message + " " + Str(e.ErrorNumber)
Finally
  Print "tried"
End Try
Halve total, 2
Print total

Function Times(number As BigNumberVQZ, factor As Integer) As BigNumberVQZ
  If factor = 0 Then Return Nil
  Return number.Multiply( _
    factor)
End Function

Sub Halve(ByRef number As BigNumberVQZ, divisor As Integer)
  number = number / New BigNumberVQZ(divisor)
End Sub
