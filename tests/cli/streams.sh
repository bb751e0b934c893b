#!/bin/bash
# streams.sh COMMAND CITIES: pipes, full devices and large input.
source "$(dirname "${BASH_SOURCE[0]}")/check.bash"

# A line sent is answered before the next one is.
coproc "$zrproj" forward --utm 17N
answer=
echo '-79 43' >&"${COPROC[1]}"
read -r -t 20 answer <&"${COPROC[0]}"
[[ $answer == '663019.070 4762755.642' ]] || fail 'a line is answered at once' "$answer"
eval "exec ${COPROC[1]}>&-"
wait

yes -- '-79 43' 2>/dev/null | "$zrproj" forward --utm 17N 2>"$work/err" | head -n 1 >"$work/out"
[[ ! -s $work/err && $(<"$work/out") == 663019.070* ]] || fail 'a pipe closed early is no error' "$(<"$work/err")"
(trap '' PIPE; yes -- '-79 43' 2>/dev/null | "$zrproj" forward --utm 17N 2>"$work/err" | head -n 1 >/dev/null)
[[ ! -s $work/err ]] || fail 'nor where the signal is ignored' "$(<"$work/err")"

for arguments in "forward --utm 17N $cities" '--help' 'list zones'; do
    # shellcheck disable=SC2086
    "$zrproj" $arguments >/dev/full 2>"$work/err"
    [[ $? == 1 && $(<"$work/err") == 'zrproj: cannot write standard output: No space left on device' ]] ||
        fail "full device: $arguments" "$(<"$work/err")"
done

# Blocks of lines: every line of a large input comes out once, in order, whatever block it fell into.
awk 'BEGIN { for (i = 0; i < 30000; i++) printf "%.6f,%.6f,%d\n", -84 + i / 5000, i / 1000 * 2.8, i }' >"$work/points"
"$zrproj" forward --utm 17N --precision 6 "$work/points" | "$zrproj" inverse --utm 17N --precision 7 >"$work/back"
paste -d, "$work/points" "$work/back" | awk -F, '
    function off(a, b) { return (a - b) ^ 2 > 1e-12 } # the series lose longitude near the pole
    $3 != $6 || off($2, $5) || $2 < 80 && off($1, $4) { bad++ } END { exit bad || NR != 30000 }' ||
    fail 'a large input comes back' "$(wc -l <"$work/back") lines"
exit $failed
