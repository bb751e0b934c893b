#!/bin/bash
# page.sh COMPILER PAGE WORK_DIR PREFIX: what a page of the documentation shows is true. Every complete C++ or C example
# is built against the installed package and run; a ```text block that follows it is what it prints. In a ```console block
# every line after "$ " is run in the repository, with the installed command, and prints the lines below it.
set -euo pipefail
compiler=$1 page=$(realpath "$2") work=$3 prefix=$4
rm -rf "$work"
mkdir -p "$work"
library=$(dirname "$(find "$prefix" -name libzrproj.so)")
export LD_LIBRARY_PATH=$library PATH=$prefix/bin:$PATH
failed=0 checked=0

# Cuts the page into WORK_DIR/N.KIND, one file a block of code, numbered in order.
awk -v work="$work" '
    /^```/ && !inside { inside = 1; kind = substr($0, 4); file = sprintf("%s/%03d.%s", work, ++n, kind); next }
    /^```/            { inside = 0; close(file); next }
    inside            { print > file }
' "$page"

compare() {
    diff --label "$page" --label printed -u "$1" "$2" || failed=1
    checked=$((checked + 1))
}

run_example() {
    local source=$1 program=${1%.*} language=(-std=c++11) next
    [[ $source != *.c ]] || language=(-x c -std=c99)
    "$compiler" "${language[@]}" -Wall -Wextra -Wpedantic -Werror -pthread -I "$prefix/include" "$source" -x none -o "$program" \
        -L "$library" -lzrproj || { failed=1; return; }
    (cd "$work" && "$program" >"$program.printed") || { echo "$page: example $program fails"; failed=1; }
    checked=$((checked + 1))
    next=$(printf '%s/%03d.text' "$work" $((10#${program##*/} + 1)))
    [[ ! -e $next ]] || compare "$next" "$program.printed"
}

# Each command's output is put below it, so that the whole block can be compared.
run_console() {
    local line
    while IFS= read -r line; do
        [[ $line == '$ '* ]] || continue
        printf '%s\n' "$line"
        (cd "$(dirname "${BASH_SOURCE[0]}")/../.." && eval "${line#'$ '}") 2>&1 </dev/null || true
    done <"$1" >"$1.printed"
    compare "$1" "$1.printed"
}

for block in "$work"/*; do
    case $block in
    *.cpp | *.c) if grep -q 'int main' "$block"; then run_example "$block"; fi ;;
    *.console) run_console "$block" ;;
    esac
done
printf '%d checks\n' "$checked"
exit $failed
