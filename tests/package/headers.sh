#!/bin/bash
# headers.sh COMPILER INCLUDE_DIR: every public header compiles alone as C++11 without a warning, c.h as C99 as well,
# includes nothing but standard headers and its neighbours, and leaves no macro behind but its guard, ZRPROJ_API and
# ZR_STDCALL.
set -euo pipefail
compiler=$1 include_dir=$2
failed=0

fail() {
    printf '%s\n' "$*"
    failed=1
}

macros() { "$compiler" -std=c++11 -dM -E -x c++ "$@" | awk '{ sub(/\(.*/, "", $2); print $2 }' | LC_ALL=C sort -u; }

compiles() { "$compiler" -Wall -Wextra -Wpedantic -Werror -fsyntax-only "$@"; }

compiles -std=c99 -x c "$include_dir/zrproj/c.h" || fail "c.h: does not compile as C99"
for header in "$include_dir"/zrproj/*.h; do
    name=${header##*/}
    compiles -std=c++11 -x c++ "$header" || fail "$name: does not compile"

    foreign=$(sed -n 's/^ *# *include *//p' "$header" | grep -v -x -E '<[a-z]+>|<stddef\.h>|"[a-z0-9]+\.h"' || true)
    [[ -z $foreign ]] || fail "$name: includes $foreign"

    standard=$(sed -n 's/^ *# *include *\(<.*>\)/#include \1/p' "$include_dir"/zrproj/*.h)
    left=$(macros "$header" | grep -v -x -F -e "$(macros - <<<"$standard")" |
        grep -v -x -E 'ZRPROJ_[A-Z0-9]+_H|ZRPROJ_API|ZR_STDCALL' || true)
    [[ -z $left ]] || fail "$name: leaves the macros ${left//$'\n'/ }"
done
exit $failed
