Dim s As New Sample
Print "before"
s.Abort
