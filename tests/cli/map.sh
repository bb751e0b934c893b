#!/bin/bash
# map.sh COMMAND CITIES: maps of every projection, what is drawn on them, and what cannot be drawn.
source "$(dirname "${BASH_SOURCE[0]}")/check.bash"
command -v python3 >/dev/null || exit 77
checker=$(dirname "${BASH_SOURCE[0]}")/check_maps.py

draw() { # draw NAME ARGUMENT...: into $work/NAME.svg
    "$zrproj" map "${@:2}" --output "$work/$1.svg" || fail "$1" "status $?"
}
looks_right() { # looks_right NAME ARGUMENT...
    local said
    said=$(python3 "$checker" "${@:2}" 2>&1) || fail "$1" "$said"
}

draw all --all --tissot
looks_right 'all projections' "$work/all.svg"
count=$(grep -c '<clipPath' "$work/all.svg")
[[ $count == $("$zrproj" list projections | grep -c '^ *[1-9]') ]] || fail 'all projections' "$count of them"

# Equal-area maps, wherever their edges are, show what part of the globe the file says is land: its rings, integrated on the
# sphere, hold 0.2887 of it.
maps=()
equal_area() {
    draw "$1" --size 400 "${@:2}"
    maps+=("$work/$1.svg")
}
for lon0 in 0 100 180 -30; do
    for name in mollweide sinusoidal 'eckert iv' 'eckert vi'; do
        equal_area "$name$lon0" --projection "$name" --lon0=$lon0
    done
    equal_area "bonne$lon0" --projection bonne --lon0=$lon0 --lat1 40
    equal_area "albers$lon0" --projection albers --lon0=$lon0 --lat1 20 --lat2 60
    for lat in 90 0 -35; do
        equal_area "lambert$lon0$lat" --projection 'lambert azimuthal' --lon0=$lon0 --lat1=$lat
    done
done
looks_right 'equal areas' land=0.2887 "${maps[@]}"

# Maps that are cut where land is, at poles and on both sides of the antimeridian.
maps=()
for lon0 in 100 179 180 -90; do
    for name in mercator polyconic cassini 'transverse mercator' gnomonic orthographic stereographic 'azimuthal equidistant'; do
        draw "$name$lon0" --size 400 --projection "$name" --lon0=$lon0
        maps+=("$work/$name$lon0.svg")
    done
done
looks_right 'cut land' "${maps[@]}"
maps=()
for lon0 in 0 -150 90 180; do
    draw "miller$lon0" --projection miller --lon0=$lon0 --size 400
    maps+=("$work/miller$lon0.svg")
done
looks_right 'edges of cylindrical maps' cylindrical "${maps[@]}"

draw cities --projection robinson --points "$cities" --title 'Cities <&"> of the world' --graticule 0
draw few --utm 17N --points - --bounds=-85,40,-74,47 --land none <<<$'lon;lat;label\n-79.38;43.65;A & B\n10;10;far'
grep -q '<text[^>]*>Cities &#60;&#38;&#34;&#62; of the world</text>' "$work/cities.svg" || fail 'title' ''
[[ $(grep -c '<circle' "$work/cities.svg") == 418 && $(grep -c '<circle' "$work/few.svg") == 1 ]] || fail 'points' ''
grep -q '>A &#38; B</text>' "$work/few.svg" && ! grep -q far "$work/few.svg" || fail 'names' "$(<"$work/few.svg")"
# All around, and over the antimeridian.
extent() { "$zrproj" map --projection miller --bounds="$1" --lon0="${2:-0}" --title '' | sed -n 's/.*viewBox="0 0 \([^"]*\)".*/\1/p'; }
for bounds in -180,-30,180,30 180,-30,-180,30 0,-30,360,30; do
    [[ $(extent $bounds) == "$(extent -180,-30,180,30)" ]] || fail "bounds $bounds" "$(extent $bounds)"
done
[[ $(extent 120,-30,-120,30 180) == "$(extent -60,-30,60,30)" ]] || fail 'bounds over the antimeridian' "$(extent 120,-30,-120,30 180)"

# A title has the room that its characters need, and is no larger than usual.
title_size() { "$zrproj" map --projection robinson --size 400 --title "$1" | sed -n 's/.*<text[^>]*font-size="\([0-9]*\)".*/\1/p'; }
for letter in W é 東; do
    sizes=$(for count in 20 60; do title_size "$(printf "%${count}s" '' | sed "s/ /$letter/g")"; done)
    [[ $sizes == $'150\n113' ]] || fail "titles of $letter" "$sizes"
done
python3 -c 'import sys, xml.etree.ElementTree as xml; [xml.parse(f) for f in sys.argv[1:]]' "$work"/{cities,few}.svg ||
    fail 'valid XML' ''
said=$(grep -lE '="[^"]*(nan|inf|[0-9]e[+-]?[0-9]|[0-9]{6})' "$work"/*.svg) && fail 'numbers' "$said"
cmp -s <("$zrproj" map --projection robinson) <("$zrproj" map --projection robinson --output - --size 900) ||
    fail 'standard output' ''
cmp -s <("$zrproj" map --projection robinson) \
    <("$zrproj" map --projection robinson --land "${BASH_SOURCE[0]%/*}/../../samples/land-110m.csv") || fail 'land' ''

check 'no projection' 2 '' 'zrproj: no projection*' map
check 'all and one' 2 '' 'zrproj: --all has no place*' map --all --projection 1
check 'no map' 2 '' 'zrproj: Unprojected*there is no map' map --projection 0
check 'azimuth without its flag' 2 '' 'zrproj: *has no map; --alpha counts only with --use-alpha' map --projection hotine --lat0 45 --alpha 60
check 'every zone' 2 '' 'zrproj: --utm auto*' map --utm auto
check 'nothing there' 2 '' 'zrproj: --bounds: the map shows nothing there' map --projection orthographic --bounds 170,-5,-170,5
check 'bad bounds' 2 '' 'zrproj: --bounds: "1,2,3"*' map --projection robinson --bounds 1,2,3
check 'bounds without width' 2 '' 'zrproj: --bounds: the west is the east' map --projection robinson --bounds 0,0,0,10
check 'bounds without height' 2 '' 'zrproj: --bounds: the south is not below*' map --projection robinson --bounds 0,10,10,10
check 'bad step' 2 '' 'zrproj: --graticule: "0.01"*' map --projection robinson --graticule 0.01
check 'no such file' 1 '' 'zrproj: cannot open *: No such file or directory' map --projection robinson --land "$work/none"
check 'no land' 1 '' 'zrproj: <stdin>:2: "a,b" is not*' map --projection robinson --land - <<<$'1,2\na,b'
check 'no ring' 1 '' 'zrproj: <stdin>:3: a ring of fewer*' map --projection robinson --land - <<<$'1,2\n3,4\n'
check 'a bad point' 1 '' 'zrproj: <stdin>:2: *' map --projection robinson --points - <<<$'lon,lat\n1,100'
"$zrproj" map --projection robinson --output /dev/stdout | cmp -s - <("$zrproj" map --projection robinson) && [[ -c /dev/null ]] &&
    "$zrproj" map --projection robinson --output /dev/null && [[ -c /dev/null ]] || fail 'a device' ''
check 'nowhere to write' 1 '' 'zrproj: cannot write *' map --projection robinson --output "$work/none/map.svg"
exit $failed
