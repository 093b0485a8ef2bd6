' In both precisions: hosts from 2015.0 on know the type UInteger, and so the method that takes one.
Dim most As UInt32 = 4294967295
Print BigNumberVQZ.NumberWithUInteger(most)
