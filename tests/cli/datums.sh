#!/bin/bash
# datums.sh COMMAND CITIES: datums by name, code, definition and profile, alone and beside a projection.
source "$(dirname "${BASH_SOURCE[0]}")/check.bash"
export XDG_CONFIG_HOME=$work/settings
refused() { check "$1" 2 '' "zrproj: $2" "${@:3}" </dev/null; }
shifts() { check "$1" 0 "$2" '' datum "${@:3}" <<<'-100 40'; }

# From PROJ 9: cct +proj=molodensky +a=6378206.4 +rf=294.978698213898 +da=-69.4 +df=-3.726463909e-05 +dx=-8 +dy=160 +dz=176
expected='-100.000417609 40.000009468'
for name in nad27 NAD27 6267 2 'north american datum 1927'; do
    shifts "by $name" "$expected" --from "$name" --to 'WGS 84'
done
refused 'ambiguous' '"1927 - CONUS" fits more than one datum: "NAD 1927 - CONUS", *' datum --from '1927 - CONUS' --to wgs84
shifts 'one-off' "$expected" --from site --to 3 \
    --define 'Site: Method = molod, radius = 6378206.4, flattening=1/294.978698213898, dx=-8, dy=160, dz=176'
shifts 'same' '-100.000000000 40.000000000' --from tokyo --to tokyo
check 'header, angles and lines' 1 $'id,lon,lat,longitude,latitude\n1,100W,40N,-100.000417609,40.000009468\n2,x,40,*,*' \
    '<stdin>:3: longitude "x" is not a number*1 line could not be read' \
    datum --from nad27 --to wgs84 <<<$'id,lon,lat\n1,100W,40N\n2,x,40'

refused 'no datums' 'the datums are missing; give --from and --to' datum --from nad27
refused 'one way' 'points can be converted from "NAD 1927 - CONUS (NADCON)", not to it: NADCON *' datum --from nad27 --to 232
refused 'one way' 'points can be converted from "*\(MRE\)", not to it: regression *' datum --from nad27 --to 229
refused 'no name' '"method=none" is no datum;*' datum --define method=none --from x --to wgs84


# The Amazon is beyond the equations of Brazil's east, and Tokyo beyond everything.
check 'equations beyond their area' 1 "$("$zrproj" datum --from 227 --to wgs84 2>/dev/null <<<$'-40 -20\n-67 -1\n140 36')" \
    'zrproj: 2 points shifted to another datum, but off by 50 metres or far more: * (<stdin>:2, 3)' \
    datum --strict --from 227 --to wgs84 <<<$'-40 -20\n-67 -1\n140 36'
check 'equations beyond their area, onto a map' 1 "$("$zrproj" datum --from 227 --to wgs84 2>/dev/null <<<'-67 -1' |
    "$zrproj" forward --utm 19S)" 'zrproj: 1 point shifted*' forward --strict --utm 19S --from-datum 227 --datum wgs84 <<<'-67 -1'

# The datum gives the projection its ellipsoid; there and back is where it was.
utm=$("$zrproj" forward --from-datum wgs84 --datum nad27 --utm 14N <<<'-100 40')
moved=$("$zrproj" datum --from wgs84 --to nad27 --precision 12 <<<'-100 40')
check 'datum before projection' 0 "$utm" '' forward --utm 14N --ellipsoid 'clarke 1866' <<<"$moved"
check 'projection before datum' 0 '-100.000000 40.000000' '' inverse --datum nad27 --to-datum wgs84 --utm 14N \
    --precision 6 <<<"$("$zrproj" forward --from-datum wgs84 --datum nad27 --utm 14N --precision 6 <<<'-100 40')"
check 'ellipsoid of a one-off' 0 "$("$zrproj" forward --utm 14N --ellipsoid 5 <<<'-100 40')" '' \
    forward --datum d --define 'd: method=none, ellipsoid=airy 1830' --utm 14N <<<'-100 40'
check 'units and zones' 0 "$("$zrproj" forward --state-plane 407 --year 1927 --units us-ft <<<"$moved")" '' \
    forward --from-datum wgs84 --datum nad27 --state-plane 407 --year 1927 --units us-ft <<<'-100 40'
# A survey in feet: by the foot of 1200/3937 metres onto the 1927 zone, and by three shifts, each step alone.
feet=$("$zrproj" inverse --state-plane 'wyoming east' --year 1927 --precision 12 \
    <<<"$(perl -e 'printf "%.9f %.9f", 620000 * 1200 / 3937, 680000 * 1200 / 3937')")
check 'a survey to GPS' 0 "$("$zrproj" datum --from nad27 --to wgs84 <<<"$feet")" '' inverse --state-plane 'wyoming east' \
    --year 1927 --units us-ft --datum nad27 --to-datum wgs84 <<<'620000 680000'
refused 'map without a datum' '--from-datum goes with --datum*' forward --from-datum wgs84 --utm 14N
refused 'map without a datum' '--to-datum goes with --datum*' inverse --to-datum wgs84 --utm 14N

definition='Mine: method=molodensky, ellipsoid=clarke 1866, dx=-8, dy=160, dz=176'
check 'added' 0 '' '' datum add "$definition" </dev/null
shifts 'of the profile' "$expected" --from mine --to wgs84
refused 'there already' 'there is a datum "Mine" already;*' datum add "$definition"
check 'replaced' 0 '' '' datum add --replace 'MINE: method=none, ellipsoid=15' </dev/null
shifts 'replaced' '-100.000000000 40.000000000' --from mine --to wgs84
listed=$("$zrproj" list datums own)
[[ $listed == *'own '*'Mine '*'none '*'Clarke 1866' ]] || fail 'listed' "$listed"
refused 'a name of the catalogue' 'the name "WGS-84" is one of the catalogue*' datum add 'WGS-84: method=none'
check 'a name of signs' 0 '' '' datum add '= ]: method=none, ellipsoid=15' </dev/null
shifts 'a name of signs' '-100.000000000 40.000000000' --from '= ]' --to wgs84
check 'removed' 0 '' '' datum remove mine </dev/null
refused 'gone' 'there is no datum "mine" of your own;*' datum remove mine
shown=$("$zrproj" datum show 147)
[[ $shown == *'NTF France - Paris Meridian'*6275*Molodensky*-83\ metres*2.337229167\ degrees* ]] || fail 'shown' "$shown"
echo 'TOKYO=method=None' >>"$work/settings/zrproj/zrproj.ini"
refused 'one name of two' 'the name "tokyo" is the catalogue*' datum --from tokyo --to wgs84
XDG_CONFIG_HOME=/proc check 'a profile that cannot be written' 1 '' \
    'zrproj: the datum cannot be stored in the file zrproj/zrproj.ini*' datum add "$definition" </dev/null
exit $failed
