#!/bin/bash
# georef.sh COMMAND CITIES: fitting maps to control points, telling which is wrong, and converting points.
source "$(dirname "${BASH_SOURCE[0]}")/check.bash"
samples=$(dirname "$cities")

prints() { # prints NAME PATTERN ARGUMENT...
    local printed
    printed=$("$zrproj" "${@:3}" 2>&1) || fail "$1" "status $?; $printed"
    # shellcheck disable=SC2053
    [[ $printed == $2 ]] || fail "$1" "$printed"
}
refused() { check "$1" 1 '' "zrproj: $2" georef fit - "${@:3}"; }

prints 'the wrong point' '*B2 *<-- stands out*worst: "B2" (line 6), 100*stands out: "B2"*without it*' \
    georef fit "$samples/scanned_map_wrong.csv" --method affine
"$zrproj" georef fit "$samples/scanned_map.csv" --method affine | grep -q 'stands out' && fail 'no wrong point' 'blamed'
prints 'all methods' '*helmert *affine *"B2"*stands out*second *thin-plate *inverse-distance *' \
    georef fit "$samples/scanned_map_wrong.csv" --compare
[[ $("$zrproj" georef fit "$samples/scanned_map.csv" --compare) != *third* ]] || fail 'third order of 8 points' ''
prints 'the affine map judging' '*B2 *stands out*too few points for second *: it needs 9; judged by affine*worst: "B2" * by affine*' \
    georef fit "$samples/scanned_map_wrong.csv" --method second
prints 'a mirror' '*a similarity cannot mirror*' georef fit "$samples/scanned_map.csv" --method Helmert
prints 'coefficients' $'Affine Polynomial, 3*\n1 * 10 * 20\nx * 2 * 4\ny * -0.5 * -*needs 6*' georef fit - \
    <<<$'0 0 10 20 a\n1 0 12 24 b\n0 1 9.5 19 c'

refused 'too few' 'third needs 10 control points, there are 8' --method third <"$samples/scanned_map.csv"
refused 'broken lines' $'<stdin>:2: source y "4x" is not a number\n<stdin>:3: target x is missing\nnothing is fitted*' \
    <<<$'1,2,3,4\n2,4x,5,6\n3,6'
check 'no such file' 1 '' 'zrproj: cannot open *none: No such file or directory' georef fit "$work/none"
check 'no such method' 2 '' 'zrproj: --method: "wild" is none of helmert, affine,*' georef fit - --method wild
check 'no subcommand' 2 '' 'zrproj: georef needs fit or apply*' georef

printf 'mapX,mapY,pixelX,pixelY,enable\n10,20,0,0,1\n20,20,10,0,1\n10,30,0,10,1\n' >"$work/map.points"
check 'columns by their names' 0 '15.000 25.000' '' georef apply "$work/map.points" <<<'5 5'
check 'standard input twice' 2 '' 'zrproj: standard input can be read only once*' georef apply - <<<'1 2 3 4'
check 'columns by option' 0 '5.0;5.0;x' '' georef apply "$work/map.points" --control-columns 1,2,3,4 --columns 1,2 \
    --precision 1 <<<'15;25;x'
check 'points of a table' 1 $'id,x,y,target_x,target_y\na,1,2,11.000,22.000\nb,,4,*,*\nc,2,2,12.000,22.000' \
    '<stdin>:3: *'$'\n''zrproj: 1 line could not be read' georef apply "$work/map.points" <<<$'id,x,y\na,1,2\nb,,4\nc,2,2'
for strict in 0 1; do
    ((strict)) && flag=(--strict) || flag=()
    check 'a point beyond' "$strict" '* *' 'zrproj: 1 point not converted: the formulas have no result*' \
        georef apply "$samples/scanned_map.csv" --method second "${flag[@]}" <<<'1e200 1e200'
done

plot=$work/plot.svg
"$zrproj" georef fit "$samples/scanned_map_wrong.csv" --method second --plot "$plot" >/dev/null || fail 'plot' "status $?"
[[ $(grep -c '<circle' "$plot") == 8 && $(grep -c '<polyline' "$plot") == 22 && $(tail -n 1 "$plot") == '</svg>' ]] ||
    fail 'plot' "$(<"$plot")"
printf '0 0 5 5\n1 1 7 7 <K\xf6ln>\n2 2 9 9.5 \xc3\xa9\n' >"$work/line.txt" # on a line, names in two encodings
"$zrproj" georef fit "$work/line.txt" --method helmert --plot "$plot" >/dev/null || fail 'plot of a line' "status $?"
iconv -f UTF-8 -t UTF-8 "$plot" >/dev/null || fail 'plot of a line' 'not UTF-8'
grep -q $'&#60;K\xef\xbf\xbdln&#62;' "$plot" && grep -q $'>\xc3\xa9<' "$plot" || fail 'names in a plot' "$(<"$plot")"
printf '%s 5 5\n' '0 0' '1 0' '0 1' '4 4' >"$work/place.txt"
said=$("$zrproj" georef fit "$work/place.txt" --plot "$work/place.svg" 2>&1 >/dev/null)
[[ $? == 1 && $said == 'zrproj: the target points are all in one place: there is nothing to draw' && ! -e $work/place.svg ]] ||
    fail 'a plot of one place' "$said"
said=$("$zrproj" georef fit "$samples/scanned_map.csv" --plot "$work/none/plot.svg" 2>&1 >/dev/null)
[[ $? == 1 && $said == 'zrproj: cannot write '*': No such file or directory' ]] || fail 'a plot that cannot be written' "$said"
exit $failed
