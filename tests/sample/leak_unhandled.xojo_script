Dim s As New Sample
s.LeakString
Raise New SampleException("gone wrong")
