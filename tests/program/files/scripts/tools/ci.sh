nice -n 5 timeout --signal=KILL 60 pack --output=a .
nice -n 5 timeout -s KILL 60 pack --outp=a .
command pack --compressor=gzip -o a .
PACK_OUTPUT=x nohup pack -v --undefined .
exec pack -v -o a --format=rar .
x=`pack --verbose -o a .`
(cd /tmp && pack --max-size=3 -o x .)
