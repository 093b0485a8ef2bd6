Dim s As New Sample
Print "before"
s.Crash
Print "never"
