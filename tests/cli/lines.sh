#!/bin/bash
# lines.sh COMMAND CITIES: what becomes of the lines of a file: their layout, and lines that cannot be read.
source "$(dirname "${BASH_SOURCE[0]}")/check.bash"
forward=(forward --utm 17N)

check 'fields are replaced where they stand' 0 '630084.301, 4833438.586 , "a, ""b""" ' '' "${forward[@]}" \
    <<<'-79.387139, 43.642567 , "a, ""b""" '
check 'blanks stay as they are' 0 $'  630084.301\t 4833438.586  Toronto, Ontario' '' "${forward[@]}" \
    <<<$'  -79.387139\t 43.642567  Toronto, Ontario'
check 'other columns' 0 'a;4833438.586;b;630084.301' '' "${forward[@]}" --columns 4,2 <<<'a;43.642567;b;-79.387139'

check 'no line end at the end' 0 $'663019.070 4762755.642\n663019.070 4762755.642\n' '' "${forward[@]}" \
    < <(printf -- '-79 43\n-79 43')
check 'carriage returns' 0 $'663019.070,4762755.642,x\r\n\r\n663019.070,4762755.642\r\n' '' "${forward[@]}" \
    < <(printf -- '-79,43,x\r\n\r\n-79,43')
check 'empty input' 0 '' '' "${forward[@]}" </dev/null

check 'header in another order, quoted, kept' 0 \
    $'"Place, name";latitude;LON;easting_m;northing_m\n"Toronto; ""TO""";43.642567;-79.387139;630084.301;4833438.586' '' \
    "${forward[@]}" <<<$'"Place, name";latitude;LON\n"Toronto; ""TO""";43.642567;-79.387139'
check 'new columns have free names' 0 $'x,y,Easting_M,easting_m_2,easting_m_3,northing_m\n-79,43,,,663019.070,4762755.642' '' \
    "${forward[@]}" <<<$'x,y,Easting_M,easting_m_2\n-79,43,,'
check 'header by option' 0 $'b,a,easting_m,northing_m\n43,-79,663019.070,4762755.642' '' \
    "${forward[@]}" --columns a,b <<<$'b,a\n43,-79'
check 'byte order mark' 0 $'\xEF\xBB\xBFlon,lat,easting_m,northing_m\n-79,43,663019.070,4762755.642' '' \
    "${forward[@]}" <<<$'\xEF\xBB\xBFlon,lat\n-79,43'
check 'comments stay where they are' 0 $'# a,b\n663019.070,4762755.642\n\n # c\n663019.070,4762755.642' '' \
    "${forward[@]}" <<<$'# a,b\n-79,43\n\n # c\n-79,43'
check 'header that tells nothing' 2 '' 'zrproj: <stdin>:1: the header has no columns "longitude"*--columns' \
    "${forward[@]}" <<<$'name,where\nToronto,Ontario'
check 'UTF-16' 2 '' '*UTF-16*' "${forward[@]}" <<<$'\xFF\xFE1'

check 'a broken line in the middle' 1 $'663019.070,4762755.642\n*,*,x\n663019.070,4762755.642' \
    $'<stdin>:2: longitude "7o" is not an angle\nzrproj: 1 line could not be read' \
    "${forward[@]}" <<<$'-79,43\n7o,43,x\n-79,43'
check 'broken lines of a file with a header' 1 \
    $'id,lon,lat,easting_m,northing_m\n1,-79,43,663019.070,4762755.642\n2,,,*,*\n3,43N,79W,*,*\n4,-79,43,x,*,*\n"5,-79,43,,,*,*' \
    $'<stdin>:3: *1 field*3 are needed\n<stdin>:4: longitude "43N" has a latitude\'s letter
<stdin>:5: 4 fields under a header of 3\n<stdin>:6: quoted field without an end*\nzrproj: 4 lines*' \
    "${forward[@]}" <<<$'id,lon,lat\n1,-79,43\n2\n3,43N,79W\n4,-79,43,x\n"5,-79,43'
check 'a line that lacks its coordinates' 1 $'*,*\n663019.070,4762755.642' $'<stdin>:1: latitude is empty\n*' \
    "${forward[@]}" <<<$'-79,\n-79,43'
check 'the first line is broken' 1 $'* *\n663019.070,4762755.642' '<stdin>:1: *' "${forward[@]}" <<<$'oops\n-79,43'
check 'a line of 3 MB' 1 $'663019.070 4762755.642\n* *\n663019.070 4762755.642' '<stdin>:2: line of more than 1 MiB*' \
    "${forward[@]}" < <(echo -79 43; head -c 3000000 /dev/zero; echo; echo -79 43)

seq 1 150 | sed 's/$/ x/' >"$work/bad"
check 'reports of bad lines come to an end' 1 "$(seq 1 150 | sed 's/.*/* */')" \
    "*bad:100: *could not be read; the first 100 are shown above" "${forward[@]}" "$work/bad"
[[ $(wc -l <"$work/err") == 101 ]] || fail 'reports of bad lines' "$(wc -l <"$work/err") lines"

printf 'lon,lat\n-79,43\n' >"$work/a.csv"
printf 'lon,lat\n-79.387139,43.642567\n' >"$work/b.csv"
check 'files with one header' 1 \
    $'lon,lat,easting_m,northing_m\n-79,43,663019.070,4762755.642\n-79.387139,43.642567,630084.301,4833438.586' \
    'zrproj: cannot open *none.csv: No such file or directory' \
    "${forward[@]}" "$work/a.csv" "$work/none.csv" "$work/b.csv"
check 'a directory' 1 '' 'zrproj: cannot read *: Is a directory' "${forward[@]}" "$work"
exit $failed
