#!/bin/bash
# grids.sh COMMAND CITIES: grids of the usual convention, imported, checked and used, beside a copy of the command.
source "$(dirname "${BASH_SOURCE[0]}")/check.bash"
mkdir "$work/bin" "$work/download"
cp "$zrproj" "$work/bin/"
zrproj=$work/bin/zrproj
refused() { check "$1" 2 '' "zrproj: $2" "${@:3}" </dev/null; }

# grid VALUE [XMIN [YMIN STEP]]: 30 columns and 12 rows with one value, every half degree from 80 west, 38 north.
grid() {
    perl -e 'my ($value, $xmin, $ymin, $step) = @ARGV; my $record = pack("a56 a8 l< l< l< f< f< f< f<", "Test", "zrproj", 30, 12, 1, $xmin,
             $step, $ymin, $step); print $record, "\0" x (31 * 4 - length $record), pack("f<*", (0, ($value) x 30) x 12)' \
        -- "$1" "${2:--80}" "${3:-38}" "${4:-0.5}"
}
# What three shifts say near the middle, in arcseconds: a pair of the usual convention has the longitude's west positive.
grid 0.125 >"$work/download/conus.las"
grid -1.75 >"$work/download/conus.los"

missing="\"NAD 1927 - CONUS (NADCON)\" needs a grid that is not there: $work/bin/conus.LAS"
refused 'no grid' "$missing" datum --from 232 --to wgs84
refused 'no grid beside a projection' "$missing" inverse --datum 232 --to-datum wgs84 --utm 17N
refused 'no source' "there is no grid $work/nothing.LAS: *" grid import "$work/nothing.las"

for ending in las los; do cp "$work/download/conus.$ending" "$work/download/usual.${ending^^}"; done
"$zrproj" grid check "$work/download/usual" >/dev/null 2>"$work/err"
[[ $? == 1 && $(<"$work/err") == *'looks like one of the usual convention'* ]] || fail 'usual pair' "$(<"$work/err")"

report="Files                       $work/bin/conus.LAS
                            $work/bin/conus.LOS
Identification              Test                                                    zrproj
Grid                        30 columns, 12 rows
Longitudes                  -80 to -65.5 degrees, every 0.5
Latitudes                   38 to 43.5 degrees, every 0.5
Added to longitudes (.LAS)  1.75 to 1.75 arcseconds, east positive
Added to latitudes (.LOS)   0.125 to 0.125 arcseconds, north positive"
check 'imported' 0 "$report" '' grid import "$work/download/conus" </dev/null
[[ $(ls "$work/bin" | wc -l) == 3 ]] || fail 'nothing else is left' "$(ls "$work/bin")"
refused 'there already' "$work/bin/conus.LAS is there already; --replace replaces it" grid import "$work/download/conus"
check 'replaced' 0 "$report" '' grid import --replace "$work/download/conus.los" </dev/null

# What is this library's already is not turned round, neither in its place nor elsewhere.
mkdir "$work/other"
refused 'itself' "$work/bin/conus.LAS is itself what would be written;*" grid import --replace "$work/bin/conus"
refused 'converted' "*conus.LOS look like one of this library's, *; copy them as they are" \
    grid import --to "$work/other" "$work/bin/conus"
refused 'a name of a path' '--name: "../x" is no name of files;*' grid import --name ../x "$work/download/conus"
[[ $(ls "$work/bin" "$work/other" | wc -l) == 6 ]] || fail 'nothing is written' "$(ls "$work/bin" "$work/other")"
# The same shifts as a "CTABLE V2.0": radians from the south-west, pairs of a longitude's, west positive, and a latitude's.
ctable() {
    perl -e 'my $r = atan2(1, 1) / 45; my $s = $r / 3600;
             print pack("a16 a80 d<4 l<2 x24", "CTABLE V2.0", "Test\n", -80 * $r, 38 * $r, 0.5 * $r, 0.5 * $r, 30, 12),
                   pack("f<*", (-1.75 * $s, 0.125 * $s) x 360)'
}
ctable >"$work/download/table"
check 'imported from a table' 0 "${report//bin/other}" '' grid import --to "$work/other" --name conus "$work/download/table" </dev/null
for ending in LAS LOS; do
    cmp <(tail -c +125 "$work/bin/conus.$ending") <(tail -c +125 "$work/other/conus.$ending") || fail 'two ways' "$ending"
done
refused 'there already' "$work/other/conus.LAS is there already;*" \
    grid import --to "$work/other" --name conus "$work/download/table"
rm "$work/other/conus".*
for length in 100 170 3000; do
    head -c $length <(ctable) >"$work/download/short"
    refused "cut at $length" "$work/download/short *" grid import --to "$work/other" "$work/download/short"
done

# The last point is west of the grid, in the column of the leading word.
check 'shifted' 0 $'-74.999513889 40.000034722\n285.000486111 40.000034722\n-80.249513889 40.000034722' '' \
    datum --from 232 --to wgs84 <<<$'-75 40\n285 40\n-80.25 40'
check 'outside' 1 $'-120.000000000 40.000000000\n* *' \
    '*1 point not converted: already marked*1 point not shifted to another datum: outside its grid (<stdin>:1)' \
    datum --strict --from 232 --to wgs84 <<<$'-120 40\n* *'
map=$("$zrproj" forward --utm 18N --ellipsoid 'clarke 1866' --precision 6 <<<'-75 40')
check 'from a map' 0 '-74.99951389 40.00003472' '' inverse --precision 8 --utm 18N --datum 232 --to-datum wgs84 <<<"$map"
check 'outside, onto a map' 0 "$("$zrproj" forward --utm 11N <<<'-118 40')" '*1 point not shifted*' \
    forward --utm 11N --from-datum 232 --datum wgs84 <<<'-118 40'

cp "$work/bin/conus.LAS" "$work/whole"
head -c 1000 "$work/whole" >"$work/bin/conus.LAS"
check 'cut short' 1 '' "zrproj: $work/bin/conus.LAS ends before its row 8 of 12" grid check conus </dev/null
check 'cut short' 1 '' 'zrproj: the datum conversion fails: a file of its grid ends too early' \
    datum --from 232 --to wgs84 <<<'-75 43'
head -c 90 "$work/whole" >"$work/bin/conus.LAS"
refused 'no header' "$work/bin/conus.LAS is too short for a grid's header" datum --from 232 --to wgs84
cp "$work/whole" "$work/bin/conus.LAS"
grid 0.25 -81 >"$work/bin/conus.LOS"
"$zrproj" grid check conus >/dev/null 2>"$work/err"
[[ $? == 1 && $(<"$work/err") == *'different headers'* ]] || fail 'two grids' "$(<"$work/err")"
check 'not written' 1 '' 'zrproj: cannot write "/proc/conus.LAS": *' grid import "$work/download/conus" --to /proc </dev/null
exit $failed
