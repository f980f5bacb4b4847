#!/bin/sh
# Packs what matters. A comment such as pack --out=x is no call.
set -e

pack --output=home.tar --exclude=*.o,build /home
pack --out=etc.tar /etc
sudo pack -o root.tar --max-s=1000 /root
sudo -u backup -- pack --outp=var.tar /var
env LEVEL=3 pack --lev=3 -o opt.tar /opt
/usr/local/bin/pack --exc=tmp -o srv.tar /srv
ls /srv | xargs -n 1 pack --ver -o all.tar
find . -name '*.c' -print0 | xargs -0 pack "--form=zip" -o "$1"
echo pack --out=x
packer --out=x
pack --no-verbose -o x . 2>&1 | tail -n 1
