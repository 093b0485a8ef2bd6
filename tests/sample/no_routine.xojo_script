Dim s As New Sample
Print "never"
Print s.Missing(1)
