' In both precisions: results that are too large or too small for the exponent.

Dim largest As BigNumberVQZ = BigNumberVQZ.Max
Dim smallest As BigNumberVQZ = BigNumberVQZ.Min

Function NumbersOf(operation As String, x As BigNumberVQZ, y As BigNumberVQZ) As String
  Return operation + " operation failed with numbers " + x.StringValue + " and " + y.StringValue _
      + "."
End Function

Print "-- sums and products of the largest number"
Try
  Print largest + largest
Catch e As BigNumberErrorExceptionVQZ
  Print Str(e.Message = NumbersOf("Operator_Add", largest, largest))
End Try
Try
  Print smallest.Subtract(largest)
Catch e As BigNumberErrorExceptionVQZ
  Print Str(e.Message = NumbersOf("Sub", smallest, largest))
End Try
Try
  Print smallest * largest
Catch e As BigNumberErrorExceptionVQZ
  Print Str(e.Message = NumbersOf("Operator_Multiply", smallest, largest))
End Try
Try
  Print largest ^ "2"
Catch e As BigNumberErrorExceptionVQZ
  Print Str(e.Message = NumbersOf("Pow", largest, "2"))
End Try
Print "the largest number stays: " + Str(largest = BigNumberVQZ.Max) + " " _
    + Str(-smallest = largest)
Print "their sum is " + (largest + smallest).StringValue + ", the quotient " _
    + (largest / smallest).StringValue

Print "-- products with machine integers report the product as it was left"
Sub MultiplyByInteger(x As BigNumberVQZ, factor As Int32)
  Try
    Print x.Multiply(factor)
  Catch e As BigNumberErrorExceptionVQZ
    Print e.Message
  End Try
End Sub
Sub MultiplyByUnsigned(x As BigNumberVQZ, factor As UInt32)
  Try
    Print x.Multiply(factor)
  Catch e As BigNumberErrorExceptionVQZ
    Print e.Message
  End Try
End Sub
Dim lowest As Int32 = -2147483647
lowest = lowest - 1
MultiplyByInteger(largest, 2)
MultiplyByInteger(largest, -3)
MultiplyByInteger(smallest, lowest)
MultiplyByInteger(largest, 0)
MultiplyByUnsigned(largest, 4294967295)
MultiplyByUnsigned(smallest, 4294967295)
MultiplyByInteger(BigNumberVQZ.Nan, 7)
MultiplyByInteger(BigNumberVQZ.Nan, lowest)
MultiplyByInteger(Nil, 7)
MultiplyByUnsigned(Nil, 4294967295)
MultiplyByInteger(Nil, 0)

Print "-- too small"
Dim one As BigNumberVQZ = "1"
Dim tiny As BigNumberVQZ = one / largest.Sqrt
Print "tiny is zero: " + Str(tiny.IsZero) + ", its square root is not: " + Str(tiny.Sqrt > tiny)
Dim tinier As BigNumberVQZ = tiny / "1e50"
Try
  Print tinier * tinier
Catch e As BigNumberErrorExceptionVQZ
  Print Str(e.Message = NumbersOf("Operator_Multiply", tinier, tinier))
End Try
Try
  Print tinier / largest
Catch e As BigNumberErrorExceptionVQZ
  Print Str(e.Message = NumbersOf("Operator_Divide", tinier, largest))
End Try

Print "-- an exponential"
Try
  Print BigNumberVQZ.Exp(largest)
Catch e As BigNumberErrorExceptionVQZ
  Print Str(e.Message = "Exp operation failed with number " + largest.StringValue + ".")
End Try
