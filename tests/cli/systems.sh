#!/bin/bash
# systems.sh COMMAND CITIES: coordinate systems by their names, in options, lists and .prj files.
source "$(dirname "${BASH_SOURCE[0]}")/check.bash"
cd "$work" || exit 1
refused() { check "$1" 2 '' "zrproj: $2" "${@:3}" </dev/null; }
failed() { check "$1" 1 '' "zrproj: $2" "${@:3}" </dev/null; }

# Guidance Note 7-2's example of the oblique stereographic projection.
check 'by code' 0 '196105.283,557057.739' '' forward --crs EPSG:28992 <<<'6,53'
check 'by name, back' 0 '6.000000000,52.999999997' '' inverse --crs 'Amersfoort / RD New' <<<'196105.283,557057.739'
check 'in its own unit' 0 $'lon,lat,easting_us_ft,northing_us_ft\n-118,34,6561666.667,1822382.141' '' \
    forward --crs EPSG:2229 <<<$'lon,lat\n-118,34'
check 'in another unit' 0 '2000000.000,555463.188' '' forward --crs EPSG:2229 --units m <<<'-118,34'
check 'from feet' 0 '-118.000000000,33.999999999' '' inverse --crs EPSG:2229 <<<'6561666.667,1822382.141'

# In whatever form `show` writes it, and from a file, too.
for form in wkt2 wkt1 esri projjson code name; do
    "$zrproj" show --crs 28992 --as "$form" >definition || fail "show as $form" ''
    check "as $form" 0 '196105.283,557057.739' '' forward --crs "$(<definition)" <<<'6,53'
    check "$form in a file" 0 '196105.283,557057.739' '' forward --crs definition <<<'6,53'
done
check 'shown' 0 'System               NAD83 / California zone 5 (ftUS) (EPSG:2229)
Longitude, latitude  NAD83 (EPSG:4269)
Unit                 US survey feet
Ellipsoid            6378137 metres, 1/298.257222101
Area of use          -121.42 to -114.12, 32.76 to 35.81 degrees' '' show --crs 2229
[[ $("$zrproj" show --utm 17N --as proj) == '+proj=utm +zone=17 +ellps=WGS84 +units=m +no_defs +type=crs' ]] ||
    fail 'parameters as a PROJ string' "$("$zrproj" show --utm 17N --as proj)"

failed 'unknown' 'the register has no system "Amersfort RD"; near it are "Amersfoort"*' show --crs 'Amersfort RD'
failed 'no definition' 'line 1, column *' show --crs 'PROJCS["a",'
refused 'no such form' '--as: "wkt" is none of wkt2,*' show --crs 28992 --as wkt
refused 'nothing to convert' 'WGS 84 has longitudes and latitudes already*' forward --crs 4326
failed 'no such file' 'cannot read "nofile.prj": No such file*' show --crs nofile.prj
failed 'no such path' 'cannot read "../none/x": No such file*' show --crs ../none/x
failed 'a directory' 'cannot read "..": it is a directory' show --crs ..
failed 'a name with a stroke' 'the register has no system "Amersfort / RD"*' show --crs 'Amersfort / RD'
check 'beyond the series of a record' 0 '4729426.335,0.000' 'zrproj: 1 point converted, but off by metres to kilometres*' \
    forward --utm 17N <<<'-45.5,0'
check 'beyond what is stated' 0 '4732634.779,0.000' \
    'zrproj: 1 point converted, but more than 3,900 km from the central meridian, as far as the accuracy is stated (<stdin>:1)' \
    forward --crs EPSG:32617 <<<'-45.5,0'
refused 'a year on another datum' '--year: the zone is defined on the North American Datum 1927, and --datum says WGS 84' \
    forward --state-plane 'california i' --year 1927 --datum wgs84
refused 'an ellipsoid on another datum' '--ellipsoid: WGS 84 is another ellipsoid than that of --datum, Clarke 1866' \
    forward --utm 14N --datum nad27 --ellipsoid 'WGS 84'
refused 'a datum' '--datum has no place beside --crs*' forward --crs 2229 --datum nad27

# Zones on the datum that is told.
check 'of 1927' 0 '2560292.091,249259.300' '' \
    forward --state-plane 'california i' --datum nad27 --units us-ft <<<'-120,40'

check 'list by words' 0 ' Code  Kind       System
28992  projected  Amersfoort / RD New' '' list systems 'rd new'
check 'list by place' 0 ' Code  Kind       System
32632  projected  WGS 84 / UTM zone 32N
32600  projected  WGS 84 / UTM grid system (northern hemisphere)' '' list systems '84 utm' --at 6.5,53.2
refused 'list of nothing' 'nothing in the list of systems has the text "xyzzy" at 1,2' list systems xyzzy --at 1,2
refused 'no place' '--at: "1" is no place*' list systems --at 1
refused 'place of others' '--at goes with the list of systems' list datums --at 1,2

# .prj files beside images, found and written.
printf '1\n0\n0\n-1\n155000.5\n462999.5\n' >scan.wld
"$zrproj" show --crs 28992 --as esri >scan.prj
check 'info' 0 'scan.wld  world file         used for georeference
scan.prj  coordinate system  used for projection

System        Amersfoort / RD New (EPSG:28992)
Georeference  Precalculated Affine Coefficients
X             1 x + 0 y + 155000
Y             0 x + -1 y + 463000' '' info scan.png
check 'locate' 0 '5.387638889 52.156160556' '' locate scan.png <<<'0 0'
check 'like a .prj file' 0 '196105.283,557057.739' '' forward --like scan.prj <<<'6,53'
check 'like an image' 0 '196105.283,557057.739' '' forward --like scan.png <<<'6,53'
check 'written' 0 '' '' convert scan.prj copy.prj
cmp -s scan.prj copy.prj || fail 'copy of a .prj file' "$(<copy.prj)"
check 'written from options' 0 '' '*the georeference is left out*' convert scan.png utm.prj --utm 31N --datum wgs84
[[ $("$zrproj" show --crs utm.prj --as code) == EPSG:32631 ]] || fail 'a zone as a .prj file' "$(<utm.prj)"
failed 'damaged' 'cannot read "bad.prj": line *' info bad.prj < <(echo 'PROJCS[' >bad.prj)
exit $failed
