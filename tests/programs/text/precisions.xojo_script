' How many digits each precision keeps.

Function Smaller(text As String) As BigNumberVQZ
  Return text
End Function
Function Bigger(text As String) As BiggerNumberVQZ
  Return text
End Function

Print "-- one third"
Dim small As BigNumberVQZ = Smaller("1") / "3"
Dim big As BiggerNumberVQZ = Bigger("1") / "3"
Print Left(small.StringValue, 78)
Print Left(big.StringValue, 612)

Print "-- the largest integer with every bit"
' 2^256 - 1 and 2^2048 - 1, each as (2^n - 1) * (2^n + 1).
Function SmallerPower(exponent As String) As BigNumberVQZ
  Return Smaller("2") ^ exponent
End Function
Function BiggerPower(exponent As String) As BiggerNumberVQZ
  Return Bigger("2") ^ exponent
End Function
small = (SmallerPower("128") - "1") * (SmallerPower("128") + "1")
Print small.GetStringValue(10, False, 1000)
Print Str(small.IsInteger) + " " + Str(small + "1" > small) + " " + Str(small - "1" < small)
Print small.StringValue(16)
big = (BiggerPower("1024") - "1") * (BiggerPower("1024") + "1")
Print big.GetStringValue(10, False, 1000)
Print Str(big.IsInteger) + " " + Str(big + "1" > big) + " " + Str(big - "1" < big)
