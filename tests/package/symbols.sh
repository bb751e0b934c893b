#!/bin/bash
# symbols.sh LIST LIBRARY: what the library exports is what the list says; prints the difference.
# After a wanted change of the interface:  tests/package/symbols.sh --write tests/package/symbols.txt LIBRARY
set -euo pipefail

exported() { nm --dynamic --defined-only --demangle "$1" | cut -d ' ' -f 3- | LC_ALL=C sort -u; }

if [[ $1 == --write ]]; then
    exported "$3" >"$2"
else
    exported "$2" | diff --label "$1" --label exported -U 0 "$1" -
fi
