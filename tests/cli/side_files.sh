#!/bin/bash
# side_files.sh COMMAND CITIES: what files say of a map, one kind of file as another, and --like.
source "$(dirname "${BASH_SOURCE[0]}")/check.bash"
cd "$work" || exit 1
here() { ls -A | grep -v -x -E 'out|err' | tr '\n' ' '; }
expect() { [[ $2 == "$3" ]] || fail "$1" "$2"; } # expect NAME TEXT EXPECTED

# World files give the centre of the first pixel; the command counts from its corner.
printf '2\n0\n0\n-2\n500001\n4650999\n' >'sc an.tfw'
check 'world file' 0 'sc an.tfw: world file

Georeference  Precalculated Affine Coefficients
X             2 x + 0 y + 500000
Y             0 x + -2 y + 4651000' '' info 'sc an.tfw'
check 'image' 0 'sc an.tfw  world file  used for georeference

Georeference  Precalculated Affine Coefficients
X             2 x + 0 y + 500000
Y             0 x + -2 y + 4651000' '' info 'sc an.tif'

check 'coefficients to a reference file' 0 '' '*written as four control points of an affine fit*' \
    convert 'sc an.tfw' map.tif.zrr
check 'to an RSF file' 0 '' '*Affine Polynomial is read back as Helmert' convert map.tif.zrr map.rsf
expect 'RSF file' "$(head -n 3 map.rsf | tail -n 2)" "'Point 0' 0 0 0.0 500000 4651000 0.0 1
'Point 1' 100 0 0.0 500200 4651000 0.0 1"
check 'and back to a world file' 0 '' '*misses them by 0.000 on the average' convert map.rsf back.wld
expect 'world file' "$(sed -n '1p;4,6p' back.wld | tr '\n' ' ')" '2 -2 500001 4650999 '
expect 'which file counts' "$("$zrproj" info map.tif | head -n 2)" 'map.tif.zrr  reference file  used for georeference
map.rsf      RSF file        not used'

# The very file that is named counts, whatever stands beside it.
printf '1\n0\n0\n1\n7\n8\n' >both.WLD
printf '3\n0\n0\n3\n6.5\n7.5\n' >both.tfw
expect 'named file' "$("$zrproj" info both.tfw | grep X)" 'X             3 x + 0 y + 5'
expect 'image with both' "$("$zrproj" info both.tif | head -n 2)" 'both.WLD  world file  used for georeference
both.tfw  world file  not used'

{
    echo 'Zorvane Cartographic Reference Information : Version 1.10'
    printf '%s : %s\n' 'Projection Name' 'Universal Transverse Mercator (UTM)' 'Projection Scale' 1 \
        'Projection Lon0 (degrees)' -81 'Projection Ellipsoid Type' 'WGS 84' 'Datum Name' Tokyo
} >utm.zrr
check 'like' 0 '630084.301,4833438.586' '' forward --like utm.zrr <<<'-79.387139,43.642567'
check 'like, back' 0 '-79.387138998,43.642567002' '' inverse --like utm.zrr <<<'630084.301,4833438.586'
check 'like a file without projection' 2 '' '*tells no projection' forward --like both.tfw </dev/null
check 'like, and more' 2 '' '*--lon0 has no place beside --like*' forward --like utm.zrr --lon0 4 </dev/null
cp map.tif.zrr whole.zrr
sed -n '2,$p' utm.zrr >>whole.zrr
check 'what a world file cannot carry' 0 '' '*the projection is left out*the datum is left out*' convert whole.zrr whole.wld

before=$(here)
check 'nothing to write' 1 '' '*no georeference to write to "utm.wld"' convert utm.zrr utm.wld
check 'no such file' 1 '' '*cannot read "none.zrr": No such file*' info none.zrr
check 'directory' 1 '' '*no side file or tag says*' info .
cp map.rsf damaged.zrr
check 'damaged' 1 '' '*cannot read "damaged.zrr": it is no reference file, or damaged' convert damaged.zrr out.wld
rm damaged.zrr
check 'kind of file' 2 '' 'zrproj: "out.png" is no TIFF file that is there*' convert map.rsf out.png
check 'no such directory' 1 '' '*cannot write in "none": No such file*' convert map.rsf none/out.wld
said=$( (trap '' XFSZ && ulimit -f 0 && "$zrproj" convert both.tfw map.rsf) 2>&1 | cat)
expect 'full disk' "$said" 'zrproj: cannot write "map.rsf"'
expect 'the good file stays' "$(head -n 1 map.rsf)" '2 4'
expect 'nothing is left behind' "$(here)" "$before"
exit $failed
