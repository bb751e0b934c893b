#!/bin/bash
# gallery.sh GENERATOR SOURCE_DIR COMMAND: docs/gallery.md and its pictures are what ./dev docs would write, and what the
# options on the page make.
set -euo pipefail
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
"$1" "$work"
diff -rq "$2/docs/gallery" "$work/gallery"
diff -u "$2/docs/gallery.md" "$work/gallery.md"
zrproj() { "$command" "$@"; }
command=$3 count=0
while read -r picture; do
    read -r line
    eval "$line" | cmp - "$2/docs/$picture"
    ((++count))
done < <(sed -n 's/^!\[.*](\(.*\))$/\1/p; s/^    \(zrproj map .*\)/\1/p' "$2/docs/gallery.md")
((count == $(ls "$2/docs/gallery" | wc -l)))
