#!/bin/bash
# geotiff.sh ZRPROJ: what the command writes into TIFF files, GDAL and libgeotiff read as the same system and the same
# place: points go to the map by zrproj, and back by PROJ with the system that gdalsrsinfo finds in the file; and listgeo's
# corner is where the image was placed. Ends with status 77 (skipped) where these programs are not installed.
set -euo pipefail
zrproj=$(realpath "$1")
for program in gdalsrsinfo gdalinfo listgeo proj; do
    command -v "$program" >/dev/null || { echo "skipped: $program is not installed (gdal-bin, geotiff-bin, proj-bin)"; exit 77; }
done
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work"
failed=0 checked=0

# The smallest TIFF file: one grey pixel.
blank_tiff() {
    printf 'II*\0\10\0\0\0\11\0'
    printf '\0\1\4\0\1\0\0\0\1\0\0\0\1\1\4\0\1\0\0\0\1\0\0\0\2\1\3\0\1\0\0\0\10\0\0\0\3\1\3\0\1\0\0\0\1\0\0\0'
    printf '\6\1\3\0\1\0\0\0\1\0\0\0\21\1\4\0\1\0\0\0\172\0\0\0\25\1\3\0\1\0\0\0\1\0\0\0\26\1\4\0\1\0\0\0\1\0\0\0'
    printf '\27\1\4\0\1\0\0\0\1\0\0\0\0\0\0\0\0'
}

fail() {
    printf '%s: %s\n' "$name" "$*"
    failed=1
}

# near "A B" "C D" TOLERANCE
near() { awk -v p="$1 $2" -v t="$3" 'BEGIN { n = split(p, v, " "); exit !(n == 4 && (v[1]-v[3])^2 + (v[2]-v[4])^2 < t^2) }'; }

# With `want` GDAL's definition has this in it. With `says` listgeo's does, and its corner is not looked at: libgeotiff drops
# or rounds scale factors, and cannot compute oblique Mercators, in files that GDAL wrote as well.
# check NAME LON LAT DATUM PARAMETER... : PARAMETER as in "Lat0 (degrees)=40"; the first is the projection's name.
check() {
    name=$1
    local lon=$2 lat=$3 datum=$4 line map back origin corner definition
    shift 4
    {
        echo "Zorvane Cartographic Reference Information : Version 1.10"
        echo "Projection Name : $1"
        for line in "${@:2}"; do echo "Projection ${line%%=*} : ${line#*=}"; done
        [[ $datum == none ]] || printf 'Datum Name : %s\nDatum Method : Molodensky\n' "$datum"
    } >map.zrr
    blank_tiff >map.tif
    if [[ $1 == Unprojected* ]]; then map="$lon $lat"; else map=$("$zrproj" forward --like map.zrr --precision 6 <<<"$lon $lat"); fi
    "$zrproj" convert map.zrr map.tif || { fail "not written"; return; }
    # The world file gives the centre of the pixel, whose corner is to lie at the point.
    awk '{ printf "0.5\n0\n0\n-0.5\n%.6f\n%.6f\n", $1 + 0.25, $2 - 0.25 }' <<<"$map" >map.wld
    "$zrproj" convert map.wld map.tif
    origin=$(gdalinfo map.tif | sed -n 's/^Origin = (\(.*\),\(.*\))/\1 \2/p')
    near "$map" "$origin" 1e-5 || fail "gdalinfo's origin is $origin, and not $map"
    corner=$(listgeo -d map.tif | sed -n 's/^Upper Left  *(\([^)]*\))  *(\([^)]*\))/\2/p' | tr , ' ')
    [[ $1 == Unprojected* ]] && corner=$(listgeo -d map.tif | sed -n 's/^Upper Left  *(\([^)]*\)).*/\1/p' | tr , ' ')
    if [[ -n ${says:-} ]]; then
        listgeo map.tif | grep -q -F "$says" || fail "listgeo does not say $says"
    else
        near "$lon $lat" "$corner" 2e-7 || fail "listgeo's corner is $corner, and not $lon $lat"
    fi
    definition=$(gdalsrsinfo --single-line -o proj4 map.tif 2>/dev/null | head -n 1)
    if [[ $1 != Unprojected* ]]; then
        # shellcheck disable=SC2086 # words of a definition
        back=$(proj -I -f %.10f ${definition/+no_defs/} <<<"$map")
        near "$lon $lat" "$back" 2e-8 || fail "GDAL brings the point back as $back, and not as $lon $lat, by $definition"
    fi
    [[ $definition == *"${want:-}"* ]] || fail "GDAL reads $definition, without $want"
    checked=$((checked + 1))
}

wgs84="World Geodetic System 1984" nad27="North American Datum 1927" nad83="North American Datum 1983"
us_foot="Scale=3.28083333333333" foot="Scale=3.28083989501312"
ellipsoid() { echo "Ellipsoid Type=$1"; }
w=$(ellipsoid "WGS 84") g=$(ellipsoid "GRS 1980 / IUGG 1980") c=$(ellipsoid "Clarke 1866") i=$(ellipsoid "International 1924")
b=$(ellipsoid "Bessel 1841") s=$(ellipsoid "Standard Sphere of 6370997 Meters")
utm="Universal Transverse Mercator (UTM)" lambert="Lambert Conformal Conic" hotine="Hotine Oblique Mercator"

want="+zone=17 +datum=WGS84" check "UTM 17N" -80 43 "$wgs84" "$utm" "$w" "Lon0 (degrees)=-81"
want="+zone=33 +south" check "UTM 33S" 14 -22 "$wgs84" "$utm" "$w" "Lon0 (degrees)=15" "In Southern Hemisphere (UTM only)=true"
want="+zone=17 +datum=NAD27" check "UTM 17N on NAD 27" -80 43 "$nad27" "$utm" "$c" "Lon0 (degrees)=-81"
want="+zone=31 +ellps=intl" check "UTM 31N on ED 50" 4 52 "European 1950 - Mean" "$utm" "$i" "Lon0 (degrees)=3"
want="+datum=NAD27 +units=us-ft" check "Alabama East 1927" -86 32 "$nad27" "State Plane 1927" "$us_foot" "State Zone=Alabama East" "$c"
want="+datum=NAD27 +units=us-ft" check "Tennessee 1927, without a code" -86 35.5 "$nad27" "State Plane 1927" "$us_foot" "State Zone=Tennessee" "$c"
want="+datum=NAD27 +units=m" check "Alabama East 1927 in metres" -86 32 "$nad27" "State Plane 1927" "Scale=1" "State Zone=Alabama East" "$c"
want="+units=m" check "California I" -122 40 "$nad83" "State Plane 1983" "Scale=1" "State Zone=California I" "$g"
want="+units=us-ft" check "California I in US feet" -122 40 "$nad83" "State Plane 1983" "$us_foot" "State Zone=California I" "$g"
want="+units=ft" check "Arizona East in feet" -110 33 "$nad83" "State Plane 1983" "$foot" "State Zone=Arizona East" "$g"
says="PCS = 26931" want="+proj=omerc" check "Alaska 1" -134 57 "$nad83" "State Plane 1983" "Scale=1" "State Zone=Alaska 1" "$g"
want="+proj=lcc" check "Lambert" 3 46 none "$lambert" "$g" "Lat0 (degrees)=46.5" "Lon0 (degrees)=3" "Lat1 (degrees)=44" "Lat2 (degrees)=49" "False Easting (meters)=700000" "False Northing (meters)=6600000"
want="+proj=aea" check "Albers" -90 38 "$nad83" "Albers Equal Area Conic" "$g" "Lat0 (degrees)=23" "Lon0 (degrees)=-96" "Lat1 (degrees)=29.5" "Lat2 (degrees)=45.5" "$us_foot"
says="ProjScaleAtNatOriginGeoKey: 0.999601" want="+proj=tmerc" check "Transverse Mercator" -2.5 52 none "Transverse Mercator" "$(ellipsoid "Airy 1830")" "Lat0 (degrees)=49" "Lon0 (degrees)=-2" "Central Scale=0.9996012717" "False Easting (meters)=400000" "False Northing (meters)=-100000"
want="+proj=tmerc" check "Gauss-Kruger" 9.5 50 none "Gauss-Kruger / Gauss Conformal" "$b" "Lon0 (degrees)=9" "Central Scale=1" "False Easting (meters)=3500000"
want="+proj=merc" check "Mercator" 100 41 "$wgs84" "Mercator" "$w" "Lon0 (degrees)=110" "False Easting (meters)=3900000"
want="+proj=merc" check "Mercator from 40 degrees" 100 41 "$wgs84" "Mercator" "$w" "Lat0 (degrees)=40" "Lon0 (degrees)=110"
says="ProjScaleAtNatOriginGeoKey: 0.997" want="+proj=merc" check "Mercator with a scale" 100 41 "$wgs84" "Mercator" "$w" "Lon0 (degrees)=110" "Scale=0.997"
want="+proj=poly" check "Polyconic" -50 -10 "South American 1969" "Polyconic" "$(ellipsoid "Australian Natl & S. Amer. 1969")" "Lon0 (degrees)=-54" "False Easting (meters)=5000000" "False Northing (meters)=10000000"
says="ProjRectifiedGridAngleGeoKey: 337.25556" want="+proj=omerc +no_uoff" check "Hotine from the equator" -86 44 "$nad83" "$hotine" "$g" "Lat0 (degrees)=45.309166666667" "Lon0 (degrees)=-86" "Central Scale=0.9996" "Uses Alpha Parameter (Hotine only)=true" "Alpha=337.25556" "Rotates UV to XY (Hotine only)=true" "False Easting (meters)=2546731.496" "False Northing (meters)=-4354009.816"
want="+proj=omerc" check "Hotine from the centre" 8 47 none "$hotine" "$b" "Lat0 (degrees)=46.952405555556" "Lon0 (degrees)=7.439583333333" "Central Scale=1" "Uses Alpha Parameter (Hotine only)=true" "Alpha=60" "Rotates UV to XY (Hotine only)=true" "Offets by U (Hotine only)=true"
want="+proj=stere +lat_0=90" check "Stereographic, north" 20 75 "$wgs84" "Stereographic" "$w" "Lat0 (degrees)=90" "Lon0 (degrees)=-45" "Central Scale=0.994"
want="+proj=stere +lat_0=-90" check "Stereographic, south" 20 -75 "$wgs84" "Stereographic" "$w" "Lat0 (degrees)=-90" "Lon0 (degrees)=0" "Central Scale=0.97"
says="ProjScaleAtNatOriginGeoKey: 0.9999" want="+proj=stere" check "Stereographic, oblique" 6 52 none "Stereographic" "$b" "Lat0 (degrees)=50" "Lon0 (degrees)=5" "Central Scale=0.9999"
want="+proj=laea" check "Lambert azimuthal" 11 50 none "Lambert Azimuthal Equal Area" "$g" "Lat1 (degrees)=52" "Lon0 (degrees)=10" "False Easting (meters)=4321000" "False Northing (meters)=3210000"
want="+proj=aeqd" check "Azimuthal equidistant" -90 40 "$wgs84" "Azimuthal Equidistant" "$w" "Lat1 (degrees)=38" "Lon0 (degrees)=-95"
want="+proj=gnom" check "Gnomonic" -90 40 none "Gnomonic" "$s" "Lat1 (degrees)=38" "Lon0 (degrees)=-95"
want="+proj=ortho" check "Orthographic" -90 40 "$wgs84" "Orthographic" "$w" "Lat0 (degrees)=38" "Lon0 (degrees)=-95"
want="+proj=cass" check "Cassini" -61 10.5 none "Cassini" "$i" "Lat0 (degrees)=10.441666666667" "Lon0 (degrees)=-61.333333333333"
want="+proj=eqdc" check "Equidistant conic" -90 40 "$nad83" "Equidistant Conic" "$g" "Lat0 (degrees)=40" "Lon0 (degrees)=-96" "Lat1 (degrees)=20" "Lat2 (degrees)=60"
want="+proj=eqc" check "Equidistant cylindrical" 11 50 none "Equidistant Cylindrical" "$s" "Lat1 (degrees)=40" "Lon0 (degrees)=10"
want="+proj=sinu" check "Sinusoidal" 25 -20 "$wgs84" "Sinusoidal" "$w" "Lon0 (degrees)=20"
want="+proj=mill" check "Miller" 25 -20 none "Miller Cylindrical" "$s" "Lon0 (degrees)=20"
want="+proj=vandg" check "Van der Grinten" 25 -20 none "Van Der Grinten" "$s" "Lon0 (degrees)=20"
want="+proj=longlat +datum=WGS84" check "Unprojected" 25 -20 "$wgs84" "Unprojected Lat/Long"
want="+towgs84=-107,-88,-149" check "A datum without a code" 14 36 "European 1950 - Malta" "Transverse Mercator" "$i" "Lon0 (degrees)=14" "Central Scale=1"

# Systems of the register go by their codes, though no record says most of these.
for code in 27700 3035 2193 2154 2056 27572 28191 28992 5514 5513 2065 6933 8857 27200 2054 29873 3375 3844 3857 2229 4275 4807; do
    name="EPSG:$code"
    blank_tiff >map.tif
    "$zrproj" convert map.wld map.tif --crs "$name"
    gdalinfo map.tif | grep -q -F "    ID[\"EPSG\",$code]]" || fail "GDAL reads another system"
    listgeo map.tif | grep -q -E "^(PCS = $code |GCS: $code/)" || fail "libgeotiff reads another system"
    checked=$((checked + 1))
done

# Numbers of one's own on the code of a datum: the same places by GDAL's definition, from Paris as well.
on_base() { # on_base NAME BASE LON LAT DEFINITION...
    name=$1
    local map back definition
    map=$("$zrproj" forward --crs "${*:5}" --precision 6 <<<"$3 $4")
    blank_tiff >map.tif
    "$zrproj" convert map.wld map.tif --crs "${*:5}"
    gdalinfo map.tif | grep -q -F "        ID[\"EPSG\",$2]]" || fail "GDAL reads another geographic system"
    definition=$(gdalsrsinfo --single-line -o proj4 map.tif 2>/dev/null | head -n 1)
    # shellcheck disable=SC2086 # words of a definition
    back=$(proj -I -f %.10f ${definition/+no_defs/} <<<"$map")
    near "$3 $4" "$back" 2e-8 || fail "GDAL brings the point back as $back, and not as $3 $4, by $definition"
    checked=$((checked + 1))
}
on_base "Transverse Mercator on NAD 27" 4267 -99 41 +proj=tmerc +lat_0=40 +lon_0=-100 +k=0.9999 +x_0=1000 +y_0=2000 +datum=NAD27 +units=us-ft +type=crs
on_base "Albers on WGS 84" 4326 21 51 +proj=aea +lat_0=50 +lon_0=20 +lat_1=48 +lat_2=53 +x_0=1000 +datum=WGS84 +type=crs
printf '%d systems\n' "$checked"
exit $failed
