Dim s As New Sample
s.LeakString
Print "on"
