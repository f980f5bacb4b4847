tarv comp a b
tarv compare a b
tarv compa --form=json a b
tarv undo
tarv lint --wi=a --fix b
