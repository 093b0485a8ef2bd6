Dim s As New Sample
Print "before"

Call s.Fail("no way")
