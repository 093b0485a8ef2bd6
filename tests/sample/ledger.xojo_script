Dim s As New Sample("5")
Print s
