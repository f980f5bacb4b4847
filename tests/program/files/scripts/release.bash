#!/bin/bash
archive() {
    local name=$1
    shift
    if ! pack --output="$name" --format=tar "$@"; then
        pack --outp="$name" --form=tar "$@"
    fi
}

size=$(pack -o - --max-size=5 . | wc -c)
size=$(pack -o - --max=5 . | wc -c)
nested="$(basename "$(pack --lev 9 -o "$t")")"

cat <<END
$(pack --outpu=here.tar .)
pack --out=this is text
END
cat <<'END'
$(pack --out=nothing is run here)
END

for level in 1 2 3; do
    pack -l "$level" -o "level-$level.tar" . &
    pack --leve="$level" -o "level-$level.tar" . || exit 1
done
case $1 in
zip) pack -o x --format=z . ;;
tar) pack -o x --format=tar . ;;
esac
archive --out=not a call of pack
options="--exc=tmp"
pack $options "--$1" -o x . -- --out=behind
pack -o x \
    --exclude=a \
    --no-verb \
    .
[[ -n $(pack '--out'='quoted name' .) ]] && pack --out\
put=split .
