pack \--out=a .
pack "\--out=b" .
pack $'--out=c' .
pack $'--\x6fut=d' .
pack "--o\"ut=e" .
