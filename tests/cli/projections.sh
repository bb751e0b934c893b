#!/bin/bash
# projections.sh COMMAND CITIES: choosing a projection, the lists, and the record that options make.
source "$(dirname "${BASH_SOURCE[0]}")/check.bash"
refused() { check "$1" 2 '' "zrproj: $2" "${@:3}" </dev/null; }

refused 'none' 'no projection; give --crs, --utm*' forward
refused 'two' 'more than one projection*' forward --utm 17N -p 4
refused 'ambiguous' '"lambert" fits more than one projection: "Lambert Conformal Conic", "Lambert Azimuthal Equal Area"' \
    forward -p lambert
refused 'the library refuses' '--lat1: Standard parallels (Lat1, Lat2) cannot be similar*' forward -p 5
refused 'no words of the library' '--lat1: not a value*' forward -p 'oblique mercator (' --lat2 1 --lat1 0
refused 'units' '--units: "yards" is none of*' forward --utm 17N --units yards
refused 'precision' '--precision: "1.5" *' forward --utm 17N --precision 1.5
refused 'nothing to convert' 'Unprojected Lat/Long leaves points*' forward -p 0
refused 'unknown option' '*--frob*' forward --frob
refused 'no command' 'no command*'

refused 'misspelt' 'unknown State Plane zone "Delaware"; the nearest: "Deleware"' forward --state-plane Delaware
refused 'no such code' 'no State Plane zone has the USGS or POSC code 5;*' forward --state-plane 5
refused 'year' '--year: "1984" is neither*' forward --state-plane 401 --year 1984

shows() { # shows NAME PATTERN ARGUMENT...
    local printed
    printed=$("$zrproj" "${@:3}" 2>&1)
    # shellcheck disable=SC2053
    [[ $printed == $2 ]] || fail "$1" "$printed"
}
shows 'USGS code' '*State Zone  Wyoming East *Lon*-105.16666666666667 degrees (-105d10*' show --state-plane 4901
shows 'POSC code with its year' '*State Plane 1927*State Zone  Wyoming East *40d40*' show --state-plane 32055
shows 'POSC code of two zones' '*State Zone  South Dakota North*' show --state-plane 32134
shows 'the zone that the year leaves' '*Puerto Rico and Virgin Islands (1927)*' show --state-plane puerto --year 1927
shows 'the completed record' '*WGS 84*6378137 metres*1/298.257223563*0.9996*-81 degrees*500000 metres*10000000 metres' \
    show --utm 17S
shows 'projections' '* 4 *Universal Transverse Mercator (UTM)*--k0 --lon0*28 *' list projections
shows 'ellipsoids' '*Ellipsoid*47  WGS 84 *6378137.000*298.257223563*7030' list ellipsoids wgs84
shows 'zones' '*USGS*407*26747*-*California VII' list zones 'california vii'
shows 'parameters' '*--2nd-standard-parallel *--lat2*degrees*' list param parallel
refused 'list of nothing' 'nothing in the list of zones has the text "xyzzy"' list zones xyzzy
shows 'version' 'zrproj [0-9]*.[0-9]*.[0-9]*' --version
for command in forward inverse list show; do
    shows "help of $command" "*Usage: zrproj $command*Example*" "$command" --help
done
exit $failed
