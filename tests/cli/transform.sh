#!/bin/bash
# transform.sh COMMAND CITIES: from one coordinate system to another, and which one coordinates are in.
source "$(dirname "${BASH_SOURCE[0]}")/check.bash"
cd "$work" || exit 1
export ZRPROJ_GRIDS=
refused() { check "$1" 2 '' "zrproj: $2" "${@:3}" </dev/null; }
failed() { check "$1" 1 '' "zrproj: $2" "${@:3}" </dev/null; }

# Between systems of one datum no shift comes in: a zone's place in another zone, and in the units of each.
check 'map to map' 0 '146143.608 4841534.048' '' transform --from EPSG:32617 --to EPSG:32618 <<<'630084.301 4833438.586'
check 'feet to degrees' 0 $'id,easting_us_ft,northing_us_ft,longitude,latitude\n7,6561666.667,1822382.141,-118.000000,34.000000' \
    '' transform --from EPSG:2229 --to NAD83 --precision 6 <<<$'id,easting_us_ft,northing_us_ft\n7,6561666.667,1822382.141'
check 'metres in the header' 0 $'easting_m,northing_m,longitude,latitude\n2000000.000,555463.188,-118.0000,34.0000' \
    '' transform --from EPSG:2229 --to NAD83 --precision 4 <<<$'easting_m,northing_m\n2000000.000,555463.188'
check 'in its own unit' 0 '6561666.667,1822382.141' '' transform --from NAD83 --to EPSG:2229 <<<'-118,34'
check 'in metres' 0 '2000000.000,555463.188' '' transform --from NAD83 --to EPSG:2229 --units m <<<'-118,34'

# A shift with its area, to which points are held.
printf 'name,lon,lat\nLondon,-0.1276,51.5072\nLisbon,-9.14,38.72\n' >photos.csv
"$zrproj" transform --from WGS84 --to EPSG:27700 photos.csv >out 2>err || fail 'out of the area' "$(<err)"
[[ $(<err) == 'zrproj: 1 point converted, but outside the area that the way between the datums is stated for (photos.csv:3)' ]] ||
    fail 'out of the area is told' "$(<err)"
grep -q '^London,-0.1276,51.5072,53004[2-4]\.[0-9]*,18035[6-9]\.' out || fail 'the British grid' "$(<out)"
grep -q '^Lisbon.*,-[0-9.]*,-[0-9.]*$' out || fail 'outside it is computed' "$(<out)"
"$zrproj" transform --from WGS84 --to EPSG:27700 --strict photos.csv >/dev/null 2>&1
[[ $? == 1 ]] || fail 'strict' ''
"$zrproj" transform --from WGS84 --to EPSG:27700 --explain >out || fail 'explain' ''
[[ $(head -n 1 out) == 'from WGS 84 (EPSG:4326)' && $(tail -n 1 out) == 'accuracy of the way between the datums: '*' m' ]] ||
    fail 'explain' "$(<out)"
failed 'rough ways refused' '*' transform --from WGS84 --to EPSG:27700 --refuse-rough
failed 'no way' '*' transform --from 'NAD27(76)' --to EPSG:4314

# --from as files have it.
printf '630084.301 4833438.586\n' >survey.txt
"$zrproj" show --crs EPSG:32617 --as esri >survey.prj
"$zrproj" show --crs EPSG:32618 --as wkt2 >other.txt
check 'the .prj file beside' 0 '-79.387139 43.642567' '' transform --to WGS84 --precision 6 survey.txt
check 'a file of a definition' 0 '146143.608 4841534.048' '' transform --from survey.prj --to other.txt <survey.txt
check 'a map' 0 '-79.387139 43.642567' '' transform --from survey.txt --to WGS84 --precision 6 <survey.txt
refused 'no system' '--from is missing, and no .prj file beside standard input tells the system' transform --to WGS84
cp survey.txt second.txt && "$zrproj" show --crs EPSG:32618 --as esri >second.prj
refused 'two systems' 'the .prj files of "survey.txt" and "second.txt" differ*' transform --to WGS84 survey.txt second.txt

# GeoJSON, cut to a map.
line='{"type":"LineString","coordinates":[[170,-85],[170,85]]}'
check 'geojson' 0 '{"type":"Point","coordinates":[0.000,0.000]}' '' \
    transform --from WGS84 --to EPSG:3857 --geojson <<<'{"type":"Point","coordinates":[0,0]}'
check 'clipped' 0 '{"type":"Point","coordinates":[500000.0,0.0]}' '' transform --from EPSG:32617 --to EPSG:32617 --clip --geojson \
    --precision 1 <<<'{"type":"Point","coordinates":[500000,0]}'
"$zrproj" transform --from '+proj=longlat +R=6371000' --to '+proj=ortho +R=6371000' --clip --geojson <<<"$line" | grep -q '"coordinates":\[\]\|"LineString"' ||
    fail 'cut' "$("$zrproj" transform --from '+proj=longlat +R=6371000' --to '+proj=ortho +R=6371000' --clip --geojson <<<"$line" 2>&1)"

refused 'units of degrees' '--units has no place beside --to "WGS84", which is no map' \
    transform --from EPSG:32617 --to WGS84 --units ft
refused 'cut to nothing' '--clip has no place beside --to "WGS84", which is no map' \
    transform --from EPSG:32617 --to WGS84 --clip --geojson
refused 'nothing to cut' '--clip has no place beside --explain, which converts nothing' \
    transform --from WGS84 --to EPSG:27700 --clip --explain
refused 'threads' '--threads: "0" is not a whole number from 1 to 256' transform --from WGS84 --to EPSG:27700 --threads 0

# Any number of threads writes the same.
awk 'BEGIN { for (i = 0; i < 100000; i++) printf "%.6f %.6f%s\n", -84 + i / 17000, i / 2000, i % 30011 == 7 ? "x" : "" }' >many
for threads in 1 2 7; do
    "$zrproj" transform --from WGS84 --to EPSG:32617 --threads $threads many >out$threads 2>err$threads
    [[ $? == 1 ]] || fail "status of $threads threads" "$(<err$threads)"
    cmp -s out1 out$threads && cmp -s err1 err$threads || fail "$threads threads" "$(<err$threads)"
done
[[ $(wc -l <out1) == 100000 ]] || fail 'every line' "$(wc -l <out1)"

# Which system is it?
check 'identified' 0 'Code        System                          Off by  Remarks
EPSG:27700  OSGB36 / British National Grid  2.1 km' '' identify - --at -0.1,51.5 <<<'530043.195 180358.209'
[[ $("$zrproj" identify - --at -0.1,51.5 <<<'180358.209 530043.195') == *'British National Grid  2.1 km  x and y swapped' ]] ||
    fail 'swapped' ''
printf 'lon,lat\n-79.387139,43.642567\n' >known.csv
"$zrproj" identify survey.txt --like-points known.csv >out
[[ $(sed -n 2p out) == 'EPSG:32617  WGS 84 / UTM zone 17N'*'0.00 m'* ]] || fail 'by known points' "$(<out)"
failed 'nowhere' 'no system of the register puts them within 20.0 km' identify survey.txt --at 100,0 --within 20
refused 'where' 'where are they? give --at or --like-points' identify survey.txt
refused 'twice where' '--like-points has no place beside --at*' identify survey.txt --at 1,2 --like-points known.csv
refused 'no place' '--at: "1" is no longitude and latitude*' identify survey.txt --at 1
printf '1,2\n3,4\n' >two.csv
failed 'pairs' '"survey.txt" has 1 points, and "two.csv" has 2' identify survey.txt --like-points two.csv
exit $failed
