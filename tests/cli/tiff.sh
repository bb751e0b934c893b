#!/bin/bash
# tiff.sh COMMAND CITIES: the tags of TIFF files, read and written, and places in images.
source "$(dirname "${BASH_SOURCE[0]}")/check.bash"
cd "$work" || exit 1
here() { ls -A | grep -v -x -E 'out|err' | tr '\n' ' '; }
expect() { [[ $2 == "$3" ]] || fail "$1" "$2"; } # expect NAME TEXT EXPECTED

# The smallest TIFF file, one grey pixel: little-endian, and the same big-endian.
little_tiff() {
    printf 'II*\0\10\0\0\0\11\0'
    printf '\0\1\4\0\1\0\0\0\1\0\0\0\1\1\4\0\1\0\0\0\1\0\0\0\2\1\3\0\1\0\0\0\10\0\0\0\3\1\3\0\1\0\0\0\1\0\0\0'
    printf '\6\1\3\0\1\0\0\0\1\0\0\0\21\1\4\0\1\0\0\0\172\0\0\0\25\1\3\0\1\0\0\0\1\0\0\0\26\1\4\0\1\0\0\0\1\0\0\0'
    printf '\27\1\4\0\1\0\0\0\1\0\0\0\0\0\0\0\0'
}
big_tiff() {
    printf 'MM\0*\0\0\0\10\0\11'
    printf '\1\0\0\4\0\0\0\1\0\0\0\1\1\1\0\4\0\0\0\1\0\0\0\1\1\2\0\3\0\0\0\1\0\10\0\0\1\3\0\3\0\0\0\1\0\1\0\0'
    printf '\1\6\0\3\0\0\0\1\0\1\0\0\1\21\0\4\0\0\0\1\0\0\0\172\1\25\0\3\0\0\0\1\0\1\0\0\1\26\0\4\0\0\0\1\0\0\0\1'
    printf '\1\27\0\4\0\0\0\1\0\0\0\1\0\0\0\0\0'
}
reference() { # reference NAME VALUE...
    echo 'Zorvane Cartographic Reference Information : Version 1.10'
    printf '%s : %s\n' "$@"
}

# A scanned map with a world file: what is known of it, its place with a projection told, and all of it into its tags.
little_tiff >'my scan.tif'
printf '2\n0\n0\n-2\n630001\n4834999\n' >'my scan.tfw'
check 'a scan' 0 'my scan.tfw  world file  used for georeference

Georeference  Precalculated Affine Coefficients
X             2 x + 0 y + 630000
Y             0 x + -2 y + 4835000' '' info 'my scan.tif'
check 'no projection' 2 '' '*in which projection "my scan.tif" is; give --crs, --utm*' locate 'my scan.tif' </dev/null
check 'projection told' 0 '-79.387807849 43.656635239' '' locate 'my scan.tif' --utm 17N <<<'0 0'
reference 'Projection Name' 'Universal Transverse Mercator (UTM)' 'Projection Lon0 (degrees)' -81 'Projection Ellipsoid Type' \
    'GRS 1980 / IUGG 1980' 'Datum Name' 'North American Datum 1983' 'Datum Method' Molodensky >'my scan.tif.zrr'
check 'into the tags' 0 '' '' convert 'my scan.tif' 'my scan.tif'
rm 'my scan.tif.zrr' 'my scan.tfw'
expect 'tags alone' "$("$zrproj" info 'my scan.tif' | grep -E 'scan|Projection  |Datum  |^[XY]')" \
    'my scan.tif  GeoTIFF tags  used for projection, datum, georeference
Projection                         Universal Transverse Mercator (UTM)
Datum                              North American Datum 1983
X                                  2 x + 0 y + 630000
Y                                  0 x + -2 y + 4835000'
check 'place' 1 'name,x,y,longitude,latitude
a,0,0,-79.387807849,43.656635241
b,n,2,*,*' '<stdin>:3: *"n" is not a number*' locate 'my scan.tif' <<<$'name,x,y\na,0,0\nb,n,2'
check 'like an image' 0 '630084.301,4833438.586' '' forward --like 'my scan.tif' <<<'-79.387139,43.642567'

# A projection and a datum for a scan of which only the place is known; without them there is a word of it.
little_tiff >lone.tif
printf '2\n0\n0\n-2\n630001\n4834999\n' >lone.tfw
check 'no system' 0 '' 'zrproj: "lone.tif": nothing says in which projection it is*' convert lone.tif lone.tif
check 'a parameter of nothing' 2 '' '*no projection; give --crs, --utm*' convert lone.tif lone.tif --lon0 4
check 'system told' 0 '' '' convert lone.tif lone.tif --utm 17N --datum nad27
expect 'datum and its ellipsoid' "$("$zrproj" info lone.tif | grep -E '^(Projection|Ellipsoid|Datum)  ')" \
    'Projection                         Universal Transverse Mercator (UTM)
Ellipsoid                          Clarke 1866
Datum                              North American Datum 1927'
little_tiff >bare.tif
check 'like another' 0 '' '' convert bare.tif bare.tif --like lone.tif
expect 'projection and datum' "$("$zrproj" info bare.tif | grep -c -E '^(Projection|Datum)  ')" 2
check 'ellipsoids that differ' 1 '' '*have different ellipsoids' convert lone.tif lone.tif --utm 17N --ellipsoid 'wgs 84'
check 'coefficients by way of a reference file' 0 '' '*four control points*' convert lone.tif lone.zrr
check 'and into tags again' 0 '' '' convert lone.zrr bare.tif
expect 'are coefficients again' "$("$zrproj" info bare.tif | grep '^[XY] ')" \
    'X                                  2 x + 0 y + 630000
Y                                  0 x + -2 y + 4835000'
rm lone.* bare.*

# A side file over tags that are there: what it does not tell stays.
printf '1\n0\n0\n-1\n500.5\n799.5\n' >new.wld
check 'a new place' 0 '' '' convert new.wld 'my scan.tif'
expect 'the system stays' "$("$zrproj" info 'my scan.tif' | grep -E 'used|^X')" \
    'my scan.tif  GeoTIFF tags  used for projection, datum, georeference
X                                  1 x + 0 y + 500'
check 'from tags to a world file' 0 '' '*the projection is left out*the datum is left out*' convert 'my scan.tif' back.wld
expect 'world file' "$(cat back.wld)" "$(cat new.wld)"

# Feet, and the other byte order.
big_tiff >feet.tif
reference 'Projection Name' 'State Plane 1927' 'Projection Scale' 3.28083333333333 'Projection State Zone' 'Alabama East' \
    'Projection Ellipsoid Type' 'Clarke 1866' 'Datum Name' 'North American Datum 1927' 'Datum Method' Molodensky >feet.zrr
check 'feet' 0 '' '' convert feet.zrr feet.tif
printf '10\n0\n0\n-10\n500005\n999995\n' >feet.tfw
expect 'like feet' "$("$zrproj" forward --like feet.tif <<<$'lon,lat\n-86,32')" "$("$zrproj" forward --state-plane \
    'alabama east' --year 1927 --units us-ft <<<$'lon,lat\n-86,32')"
expect 'place by feet' "$("$zrproj" locate feet.tif <<<'0 0')" "$("$zrproj" inverse --state-plane 'alabama east' --year 1927 \
    --units us-ft <<<'500000 1000000')"
reference 'Projection Name' 'Unprojected Lat/Long' 'Datum Name' 'World Geodetic System 1984' 'Datum Method' Molodensky >geo.zrr
check 'degrees' 0 '' '' convert geo.zrr feet.tif
printf '0.1\n0\n0\n-0.1\n10.05\n49.95\n' >feet.tfw
check 'place by degrees' 0 '10.500000000 49.000000000' '' locate feet.tif <<<'5 10'

# Systems of the register go by their codes, whether or not a record can say them; numbers on a datum that has a code.
printf '2\n0\n0\n-2\n400001\n299999\n' >crs.tfw
for code in 27700 3035 2193 2154 2056 27572 28191 28992 5514 5513 2065 6933 8857 27200 2054 29873 3375 3844 4275 4807 3857; do
    little_tiff >crs.tif
    check "into the tags, EPSG:$code" 0 '' '' convert crs.tfw crs.tif --crs "EPSG:$code"
    expect "EPSG:$code" "$("$zrproj" info crs.tif | grep -o -E '^System.*EPSG:[0-9]+|^[XY] .*' | sed 's/.*EPSG:/EPSG:/;s/   */ /')" \
        "EPSG:$code
X 2 x + 0 y + 400000
Y 0 x + -2 y + 300000"
done
check 'the horizontal part' 0 '' '' convert crs.tfw crs.tif --crs EPSG:7405
expect 'is its own system' "$("$zrproj" info crs.tif | grep -c -F '(EPSG:27700)')" 1
for base in EPSG:4277 EPSG:4807; do
    "$zrproj" show --crs "$([[ $base == EPSG:4277 ]] && echo 27700 || echo 27572)" --as wkt2 |
        sed -E 's/"(False easting|Easting at false origin)",[0-9]+/"\1",500000/;s/,ID\["EPSG",27[0-9]*\]\]$/]/' >numbers.prj
    little_tiff >own.tif
    check "numbers on $base" 0 '' '*' convert crs.tfw own.tif --crs numbers.prj
    expect "places on $base" "$("$zrproj" inverse --like own.tif <<<'400000,300000')" \
        "$("$zrproj" inverse --crs numbers.prj 2>err <<<'400000,300000')"
done
check 'told of a side file' 0 '' '*the datum Ordnance Survey of Great Britain 1936 is left out: datum 6277*' convert crs.tfw crs.zrr --crs EPSG:27700
check 'of a system' 0 '' '*the system Amersfoort / RD New (EPSG:28992) is left out: no record says*' convert crs.tfw crs.zrr --crs EPSG:28992
rm crs.* own.* numbers.prj

# The tags of a file go before definitions beside it, and a contradiction is told.
little_tiff >a.tif
printf '2\n0\n0\n-2\n630001\n4834999\n' >a.wld
check 'tags' 0 '' '' convert a.wld a.tif --crs EPSG:32617
"$zrproj" show --crs EPSG:28992 --as esri >a.prj
contradiction='zrproj: "a.prj" says Amersfoort / RD New (EPSG:28992), but WGS 84 / UTM zone 17N (EPSG:32617) is taken, as the tags of "a.tif" say'
check 'contradicted' 0 '-79.387807849 43.656635240' "$contradiction" locate a.tif <<<'0 0'
check 'contradicted, like' 0 '630084.301,4833438.586' "$contradiction" forward --like a.tif <<<'-79.387139,43.642567'
expect 'which is used' "$("$zrproj" info a.tif 2>err | sed -n '2,3s/  *//gp;s/^System *//p')" 'a.tifGeoTIFFtagsusedforprojection,datum
a.prjcoordinatesystemnotused
WGS 84 / UTM zone 17N (EPSG:32617)'
expect 'and told' "$(<err)" "$contradiction"
"$zrproj" show --crs EPSG:32617 --as esri >a.prj
check 'not contradicted' 0 '-79.387807849 43.656635240' '' locate a.tif <<<'0 0'
little_tiff >a.tif && rm a.prj
check 'a place alone' 0 '' '*nothing says in which*' convert a.wld a.tif
rm a.wld
expect 'no system is told' "$("$zrproj" info a.tif | grep '^System')" \
    'System        not told: the tags say where the image lies, and not in which system'
printf '<PAMDataset>\n  <SRS dataAxisToSRSAxisMapping="1,2">%s</SRS>\n</PAMDataset>\n' \
    "$("$zrproj" show --crs EPSG:8857 --as wkt2 | sed 's/"/\&quot;/g')" >a.tif.aux.xml
expect 'what stands beside it' "$("$zrproj" info a.tif | grep '^System')" \
    'System        WGS 84 / Equal Earth Greenwich (EPSG:8857)'
rm a.*

# What cannot be done, and leaves everything as it was.
before=$(here) bytes=$(cksum 'my scan.tif')
reference 'Projection Name' Mollweide 'Projection Ellipsoid Type' 'WGS 84' >mollweide.zrr
check 'no name in GeoTIFF' 1 '' '*GeoTIFF has no name for the projection Mollweide' convert mollweide.zrr 'my scan.tif'
rm mollweide.zrr
check 'damaged' 1 '' '*"cut.tif"*' info cut.tif < <(head -c 60 'my scan.tif' >cut.tif)
rm cut.tif
said=$( (trap '' XFSZ && ulimit -f 0 && "$zrproj" convert new.wld 'my scan.tif') 2>&1 | cat)
[[ $said == 'zrproj: cannot write "my scan.tif"'* ]] || fail 'full disk' "$said"
expect 'the good file stays' "$(cksum 'my scan.tif')" "$bytes"
expect 'nothing is left behind' "$(here)" "$before"
exit $failed
