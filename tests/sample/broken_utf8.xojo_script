Print "ok"
Print "aÿb"
