#!/bin/bash
# gallery.sh GENERATOR SOURCE_DIR: docs/gallery.md and its pictures are what ./dev docs would write.
set -euo pipefail
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
"$1" "$work"
diff -rq "$2/docs/gallery" "$work/gallery"
diff -u "$2/docs/gallery.md" "$work/gallery.md"
