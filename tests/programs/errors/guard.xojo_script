' In both precisions: an error inside of the library's own text handling arrives as an exception.
Dim x As BigNumberVQZ = "1e2147483645"
Try
  Print x.GetStringValue(10, False, 2147483647)
Catch e As BigNumberErrorExceptionVQZ
  Print "this is wrong"
Catch e As RuntimeException
  Print Left(e.Message, 15)
End Try
Print x.GetStringValue(10, True, 15, 3)
