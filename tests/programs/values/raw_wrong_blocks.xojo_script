' In both precisions: memory blocks that do not fit, and none at all. The number stays as it is.

Dim x As New BigNumberVQZ("-12.5")
Dim mantissas As Integer = x.DataMantissa.Size
Dim exponents As Integer = x.DataExponent.Size

' Tells how a message differs from the one of that size, in which both parts bear one name.
Function MessageIs(message As String, right As Integer, given As Integer) As Boolean
  Dim word As String = "big"
  If given < right Then word = "small"
  Return message = "The parameter MemoryBlock.Size to method DataMantissa is too " + word _
      + ". Range is " + Str(right) + " to " + Str(right) + ", but value is " + Str(given) + "."
End Function

Sub ShowMantissa(size As Integer)
  Try
    x.DataMantissa = New MemoryBlock(size)
    Print "the mantissa was set"
  Catch e As OutOfBoundsException
    Print Str(MessageIs(e.Message, mantissas, size)) + ", still " + x.StringValue
  End Try
End Sub
Sub ShowExponent(size As Integer)
  Try
    x.DataExponent = New MemoryBlock(size)
    Print "the exponent was set"
  Catch e As OutOfBoundsException
    Print Str(MessageIs(e.Message, exponents, size)) + ", still " + x.StringValue
  End Try
End Sub

Print "-- mantissa"
ShowMantissa(0)
ShowMantissa(1)
ShowMantissa(exponents)
ShowMantissa(mantissas - 1)
ShowMantissa(mantissas + 1)
ShowMantissa(mantissas * 2)
ShowMantissa(100000)

Print "-- exponent"
ShowExponent(0)
ShowExponent(1)
ShowExponent(exponents - 1)
ShowExponent(exponents + 1)
ShowExponent(mantissas)
ShowExponent(100000)

Print "-- Nil"
Try
  x.DataMantissa = Nil
Catch e As NilObjectException
  Print e.Message + ", still " + x.StringValue
End Try
Try
  x.DataExponent = Nil
Catch e As NilObjectException
  Print e.Message + ", still " + x.StringValue
End Try

Print "-- of a variable that holds Nil"
Dim missing As BigNumberVQZ
Try
  Print Str(missing.DataMantissa Is Nil)
Catch e As NilObjectException
  Print e.Message
End Try
Try
  Print Str(missing.DataExponent Is Nil)
Catch e As NilObjectException
  Print e.Message
End Try
Try
  Print Str(missing.DataFlags)
Catch e As NilObjectException
  Print e.Message
End Try
