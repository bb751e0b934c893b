#!/bin/bash
# level.sh LEVEL OBJECT...: code built for a processor level defines no symbol that other code could share. A function
# that two sources define, an inline one of the standard library say, exists once in the library; were the kept copy the
# one of a higher level, lower processors would crash in it. So every symbol carries the level in its name.
set -euo pipefail
level=$1
shift
(($#)) || { echo "no objects"; exit 1; }
defined=$(nm --defined-only --extern-only --format=posix "$@" | awk 'NF > 1 { print $1 }' | LC_ALL=C sort -u)
[[ $defined == *"$level"* ]] || { echo "nothing of level $level in the objects"; exit 1; }
shared=$(grep -v -F -e "$level" -e DW.ref.__gxx_personality_v0 <<<"$defined" || true)
if [[ -n $shared ]]; then
    echo "defined for level $level without its name:"
    c++filt <<<"$shared"
    exit 1
fi
