#!/bin/bash
# coordinates.sh COMMAND CITIES: angles, units, zones, and points without a result. The numbers are those of PROJ 9.1.1 for
# the same parameters.
source "$(dirname "${BASH_SOURCE[0]}")/check.bash"

check 'degrees, minutes and seconds' 0 $'630084.301,4833438.586\n630084.301,4833438.586\n630084.301,4833438.586' '' \
    forward --utm 17N <<'END'
79d23'13.7004"W,43°38'33.2412"N
W79:23:13.7004,n 43:38:33.2412
"-79°23'13.7004""","43.642567"
END
check 'letters, ranges, commas' 1 $'*,*\n*,*\n*,*\n*,*' \
    $'*:1: longitude "43N" *\n*:2: latitude "91" is out of range*\n*:3: latitude "43d61\'" *60 or more\n*:4: longitude "400"*' \
    forward --utm 17N <<<$'43N,79W\n-79,91\n-79,43d61\'\n400,43'
check 'a decimal comma' 1 '*;*' '*decimal comma*' forward --utm 17N <<<'-79,5;43,5'
check 'precision' 0 $'663019\t4762756' '' forward --utm 17N --precision 0 <<<$'-79\t43'

arizona=(--state-plane 'arizona central')
check 'metres' 0 '198732.974 271488.990' '' forward "${arizona[@]}" <<<'-112.074 33.4484'
check 'feet' 0 $'lon,lat,easting_ft,northing_ft\n-112.074,33.4484,652011.069,890711.909' '' \
    forward "${arizona[@]}" --units ft <<<$'lon,lat\n-112.074,33.4484'
check 'survey feet of 1927' 0 $'lon,lat,easting_us_ft,northing_us_ft\n-112.074,33.4484,452010.101,890681.492' '' \
    forward "${arizona[@]}" --year 1927 --units us-ft <<<$'lon,lat\n-112.074,33.4484'
check 'back from feet' 0 '-112.074000000 33.448400000' '' inverse "${arizona[@]}" --units ft <<<'652011.0693 890711.9092'
check 'the header tells the unit' 0 \
    $'easting_ft,northing_ft,longitude,latitude\n652011.0693,890711.9092,-112.074000000,33.448400000' '' \
    inverse "${arizona[@]}" <<<$'easting_ft,northing_ft\n652011.0693,890711.9092'
check 'and contradicts the option' 2 '' '*"easting" and "northing" in metres*' inverse "${arizona[@]}" --units m \
    <<<$'easting_ft,northing_ft\n652011.0693,890711.9092'

check 'the whole catalogue of parameters' 0 '3607528.402 5541357.896' '' forward --projection gauss \
    --central-longitude 9d --central-scale-factor 1 --false-easting 3500000 --ellipsoid bessel1841 <<<'10.5 50'
check 'an ellipsoid of the user, short forms' 0 '3607528.402 5541357.896' '' forward -p 'transverse mercator' \
    --lon0 009E --k0 1 --x0 3500000 --radius 6377397.155 --flattening 1/299.1528128 <<<'10.5 50'
check 'south' 0 '333471.815 6253018.169' '' forward --utm 56S <<<'151.2 -33.85'

check 'each point in its own zone' 0 $'333471.815 6253018.169 56S Sydney\n630084.301 4833438.586 17N' '' \
    forward --utm auto <<<$'151.2 -33.85 Sydney\n-79.387139 43.642567'
check 'and back' 1 $'151.2000000 -33.8500000 56S Sydney\n* * 33U' '<stdin>:2: zone "33U" is not 1 to 60*' \
    inverse --utm auto --precision 7 <<<$'333471.8149 6253018.1693 56S Sydney\n1 2 33U'
"$zrproj" forward --utm auto --precision 6 "$cities" | "$zrproj" inverse --utm auto >"$work/back.csv" ||
    fail 'cities' 'failed'
awk -F, 'function off(a, b) { return (a - b) ^ 2 > 4e-16 } # 2e-8 degrees, 2 mm
    NR > 1 && NR < 6000 && (off($3, $9) || off($4, $8)) { print; bad = 1 } END { exit bad || NR != 419 }' "$work/back.csv" ||
    fail 'cities come back' ''

check 'points without a result' 0 $'* *\n* *\n663019.070 4762755.642\n1618480.920 0.000' \
    $'zrproj: 1 point not converted: outside * (<stdin>:1)\nzrproj: 1 point not converted: already marked * (<stdin>:2)' \
    forward --utm 17N <<<$'10 10\n* *\n-79 43\n-71 0'
check 'far points' 0 '2772401.608 0.000' 'zrproj: 1 point converted, but off *more than 10 degrees* (<stdin>:1)' \
    forward --utm 17N <<<'-61 0'
check 'strict' 1 '* *' '*outside*' forward --utm 17N --strict <<<'10 10'
check 'only the first places are told' 0 "$(seq 7 | sed 's/.*/* */')" \
    '*7 points* (<stdin>:1, 2, 3, 4, 5, ...)' forward --utm 17N < <(seq 7 | sed 's/.*/10 10/')
check 'coordinates that belong to no point' 0 $'* *\n* *' '*2 points*outside*' inverse --utm 17N <<<$'2e7 0\n5e5 1.5e7'
check 'the other side of the antimeridian' 0 $'166476.933 332050.475' '' forward --utm 1N <<<'180 3.000000000'
exit $failed
