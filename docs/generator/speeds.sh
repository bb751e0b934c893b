#!/bin/bash
# speeds.sh ZRPROJ_BENCH: measures every projection at the highest processor level and prints docs/generator/speeds.txt.
# Only on a quiet machine do the numbers mean anything.
set -euo pipefail
rows=$(mktemp)
trap 'rm -f "$rows"' EXIT
"$1" --benchmark_filter='/(scalar|baseline|avx2|avx512)/1048576' --benchmark_min_time=0.2 \
    --benchmark_out="$rows" --benchmark_out_format=csv >&2

processor=$(sed -n 's/^model name[^:]*: //p' /proc/cpuinfo | head -n 1)
# A row is called PROJECTION/DIRECTION/LEVEL/COUNT/manual_time, and PROJECTION may have a slash in it; the levels come
# in rising order, so that the last one stays. Its last field is in seconds a point.
tr -d '"' <"$rows" | awk -F , -v processor="${processor:-unknown processor}" -v day="$(date -u +%F)" '
    /\/manual_time,/ {
        n = split($1, part, "/")
        name = part[1]
        for (i = 2; i < n - 3; ++i) name = name "/" part[i]
        if (!(name in seen)) { seen[name] = 1; order[++count] = name }
        ns[name, part[n - 3]] = 1e9 * $NF
        level = part[n - 2]
    }
    END {
        if (!count) exit 1
        printf "# Measured on %s on one core of %s at the level %s.\n", day, processor, level
        for (i = 1; i <= count; ++i)
            printf "%s %.1f %.1f\n", order[i], ns[order[i], "forward"], ns[order[i], "inverse"]
    }'
