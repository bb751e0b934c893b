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
misses='*read back as a similarity (Helmert), which misses them by 141.421 (70.71 pixels) on the average'
check 'rows go down, a similarity cannot' 1 '' "$misses; --accept-misfit*" convert map.tif.zrr map.rsf
check 'to an RSF file' 0 '' "$misses" convert map.tif.zrr map.rsf --accept-misfit
expect 'what it misses' "$("$zrproj" info map.rsf | grep -i miss)" 'Missed by       141.421 (70.71 pixels) on the average'
check 'warned of' 0 '-80.998792336 42.010121453' '*that places "map.png" misses its control points by 141.421*' locate map.png --utm 17N <<<'0 0'
expect 'RSF file' "$(head -n 3 map.rsf | tail -n 2)" "'Point 0' 0 0 0.0 500000 4651000 0.0 1
'Point 1' 100 0 0.0 500200 4651000 0.0 1"
check 'and back to a world file' 0 '' '*misses them by 0.000 (0.00 pixels) on the average' convert map.rsf back.wld
expect 'world file' "$(tr '\n' ' ' <back.wld)" '2 0 0 -2 500001 4650999 '
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
check 'no such file' 1 '' '*cannot read "none.zrr": No such file*' info none.zrr
mkfifo pipe.zrr pipe.tif
for pipe in pipe.zrr pipe.tif; do # no writer comes
    timeout 5 "$zrproj" info $pipe 2>err </dev/null
    expect "$pipe is not waited for" $? 1
done
check 'a pipe stays' 1 '' '*cannot write "pipe.zrr": it is no plain file' convert both.tfw pipe.zrr
rm pipe.*
check 'no world file' 1 '' 'zrproj: nothing is known of "odd.raw"*' info odd.raw < <(cp both.tfw odd.raw)
rm odd.raw
check 'directory' 1 '' '*no side file or tag says*' info .
check 'kind of file' 2 '' 'zrproj: "out.png" is no TIFF file that is there*' convert map.rsf out.png
check 'no such directory' 1 '' '*cannot write "none/out.wld": No such file*' convert map.rsf none/out.wld
said=$( (trap '' XFSZ && ulimit -f 0 && "$zrproj" convert both.tfw whole.wld) 2>&1 | cat)
expect 'full disk' "$said" 'zrproj: cannot write "whole.wld": File too large'
expect 'the good file stays' "$(head -n 1 whole.wld)" '2'
expect 'nothing is left behind' "$(here)" "$before"

# Links and modes stay.
ln -s whole.wld link.wld && chmod 600 whole.wld
check 'through a link' 0 '' '' convert both.tfw link.wld
expect 'link and mode' "$(readlink link.wld) $(stat -c %a whole.wld) $(head -n 1 whole.wld)" 'whole.wld 600 3'

# Of an image, what cannot be read is passed over.
printf '1\n0\n0\n-1\n5.5' >bad.tfw && cp both.tfw bad.wld && echo junk >bad.tif.zrr && printf '2 4\n' >bad.RSF
expect 'the next one counts' "$("$zrproj" info bad.tif 2>err | tail -n 2)" 'X             3 x + 0 y + 5
Y             0 x + 3 y + 6'
expect 'what is passed over' "$(grep -c 'cannot read "bad.*; passed over' err)" 3
exit $failed
