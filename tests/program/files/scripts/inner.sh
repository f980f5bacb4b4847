find . -name '*.o' -exec pack --outp=a {} \; -o -exec pack -o b --lev=3 {} +
find . -type f -exec sudo -u me pack --verb -o c '{}' ';' -print
sh -c 'pack --outp=d .'
bash -euo pipefail -c "set -x; pack --form=zip -o e . | wc -c" name
sudo sh -c "pack \"--outp=f\" . && pack --lev=1 -o g ."
find . -exec sh -c 'for f; do
    pack --exc=x -o "$f.tar" "$f"
done' sh {} +
xargs -n 1 bash -c 'sh -c "pack --leve=2 -o h \$0"'
sh -c "pack --lev=$level -o i ."
bash -c $'pack --lev=4\t-o j .'
bash -c "pack --lev=5 \
--verb -o k ."
sh -e script.sh -c 'pack --outp=l'
sh -c 'if pack --outp=m'
echo -exec pack --outp=n \;
find . -exec pack --output=o {} \;
sh -c 'echo another program'
