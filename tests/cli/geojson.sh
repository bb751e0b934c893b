#!/bin/bash
# geojson.sh COMMAND CITIES: GeoJSON in and out.
source "$(dirname "${BASH_SOURCE[0]}")/check.bash"
forward=(forward --utm 17N --geojson)
toronto='[-79.387139,43.642567]' projected='[630084.301,4833438.586]'
point() { printf '{"type":"Point","coordinates":%s}' "$1"; }
feature() { printf '{"type":"Feature","properties":null,"geometry":%s}' "$1"; }

check 'members and numbers are kept as they are written, heights too' 0 \
    $'{"type":"FeatureCollection","name":"a\\"b","features":[\n{"type":"Feature","id":7,"properties":{"n":1.10,"big":123456789012345678901,"b":[1,{"c":null},[],{},true]},"geometry":{"type":"Point","coordinates":[630084.301,4833438.586,12.50,7]}}\n],"after":{"z":"\\u0000\xC3\xA9"}}' '' \
    "${forward[@]}" <<<'{"type":"FeatureCollection","name":"a\"b","bbox":[1,2,3,4],"crs":{"x":[]},"features":[{"type":"Feature","id":7,"bbox":[],"geometry":{"type":"Point","coordinates":[-79.387139,43.642567,12.50,7]},
 "properties":{"n":1.10,"big":123456789012345678901,"b":[1,{"c":null},[],{},true]}}],"after":{"z":"\u0000\u00e9"}}'

sequence=$(point "$projected")$'\n'$(feature null)$'\n'$(point "$projected")
check 'a sequence of texts' 0 "$sequence" '' "${forward[@]}" \
    < <(printf '\x1E%s\n\n\x1E%s\n\r\n%s' "$(point "$toronto")" "$(feature null)" "$(point "$toronto")")
check 'nothing at all' 0 '' '' "${forward[@]}" </dev/null
check 'members twice: the last one counts' 0 "$(point "$projected")" '' "${forward[@]}" \
    <<<"{\"type\":\"LineString\",\"coordinates\":[[1,2],[3,4]],\"type\":\"Point\",\"coordinates\":$toronto}"
for name in a.geojson a.JSON; do
    point "$toronto" >"$work/$name"
    check "by the name $name" 0 "$(point "$projected")" '' forward --utm 17N "$work/$name"
done
check 'there and back, in feet' 0 "$(point '[-79.3871390,43.6425670]')" '' inverse --utm 17N --units ft --precision 7 --geojson \
    <<<"$("$zrproj" "${forward[@]}" --units ft <<<"$(point "$toronto")")"
check 'to another datum' 0 "$(point '[-100.000417609,40.000009468]')" '' datum --from nad27 --to wgs84 --geojson <<<"$(point '[-100,40]')"

# A geometry with a point that has no result is left out; with --clip the rest of it stays.
lost='zrproj: 1 point not converted: outside the projection'"'"'s usable area (<stdin>: feature 1)'
two="{\"type\":\"MultiPoint\",\"coordinates\":[$toronto,[170,20]]}"
check 'a point outside' 0 "$(feature null)" "$lost" "${forward[@]}" <<<"$(feature "$two")"
check 'a point outside, strictly' 1 "$(feature null)" "$lost" "${forward[@]}" --strict <<<"$(feature "$two")"
check 'a point cut off' 0 "{\"type\":\"MultiPoint\",\"coordinates\":[$projected]}" '' "${forward[@]}" --strict --clip <<<"$two"
check 'a feature is told once' 0 '{"type":"LineString","coordinates":[[4130834.162,129066.954],[4001820.296,127742.848]]}' \
    'zrproj: 2 points converted, but off by metres to kilometres: more than 10 degrees from the central meridian (<stdin>: feature 1)' \
    "${forward[@]}" <<<'{"type":"LineString","coordinates":[[-50,1],[-51,1]]}'

# Lines and areas over the map's edge.
cut=(forward --projection sinusoidal --ellipsoid "clarke 1866" --geojson --clip --precision 0)
count=32000 # of holes that are all cut
holes=$(awk -v n=$count 'BEGIN { printf "[[150,-81],[-150,-81],[-150,81],[150,81],[150,-81]]"
    for (i = 0; i < n; ++i) { s = -80 + 160 * i / n; t = s + 80 / n
        printf ",[[179,%.9f],[179,%.9f],[-179,%.9f],[-179,%.9f],[179,%.9f]]", s, t, t, s, s } }')
holes=$(timeout 15 "$zrproj" "${cut[@]}" <<<"{\"type\":\"Polygon\",\"coordinates\":[$holes]}")
[[ $holes == '{"type":"MultiPolygon"'* ]] || fail 'many holes in little time' "${holes::100}"

# Not a feature's fault: what follows it is converted.
bad() { # NAME GEOMETRY REASON
    check "$1" 1 "$(feature null)"$'\n'"$(point "$projected")" \
        "<stdin>: feature 1: $3*"$'\n'"zrproj: 1 feature could not be read" "${forward[@]}" <<<"$(feature "$2")$(point "$toronto")"
}
bad 'no list' '{"type":"Point","coordinates":"x"}' '"coordinates" is no list (line 1, byte *)'
check 'members of a collection that are no features' 1 $'{"type":"FeatureCollection","features":[\n'"$(feature null)"$'\n]}' \
    '<stdin>: feature 1: "features" holds*feature 2: a feature is a Point*zrproj: 2 features could not be read' \
    "${forward[@]}" <<<"{\"type\":\"FeatureCollection\",\"features\":[[{\"a\":1}],$(point "$toronto"),$(feature null)]}"

# The end of all.
fatal() { # NAME TEXT MESSAGE
    check "$1" 1 '' "zrproj: <stdin>: after 0 features: $3" "${forward[@]}" <<<"$2"
}
fatal 'not a number' "$(point '[NaN,2]')" 'no JSON: *'
fatal 'no object' '[1,2]' 'the text is no object of GeoJSON (line 1, byte 1)'
fatal 'deep nesting of coordinates' "$(printf '{"type":"Point","coordinates":%0100000d' 0 | tr 0 '[')" 'nested deeper than 200 levels*'

check 'no columns' 2 '' 'zrproj: --columns: *' "${forward[@]}" --columns 1,2
check 'no zones' 2 '' 'zrproj: --utm auto: *' forward --utm auto --geojson
check 'points are not cut' 2 '' 'zrproj: --clip: *' forward --utm 17N --clip
check 'no mixture' 2 '' 'zrproj: files of GeoJSON and files of points*' forward --utm 17N a.json b.csv

# Memory does not grow with the number of features, and each is written before the next one is there.
coproc "$zrproj" "${forward[@]}"
answer=
point "$toronto" >&"${COPROC[1]}"
read -r -t 20 answer <&"${COPROC[0]}"
[[ $answer == "$(point "$projected")" ]] || fail 'a text is answered at once' "$answer"
eval "exec ${COPROC[1]}>&-"
wait
many() {
    printf '{"type":"FeatureCollection","features":['
    yes "$(feature "$(point "$toronto")")," | head -n 300000
    printf '%s]}' "$(feature null)"
}
little() { (ulimit -v 200000; "$zrproj" "$@"); }
if little --version &>/dev/null; then # not so under a sanitizer, which maps the whole address space
    lines=$(many | little "${forward[@]}" | grep -cF "$projected")
    [[ $lines == 300000 ]] || fail 'many features in little memory' "$lines"
fi
exit $failed
