// The State Plane definitions of 1983: one row a zone, in StateZoneType order; an empty row where a zone has none.
// Angles are text in degrees, minutes and seconds, and lengths are metres.
#include "zone_definition.h"

namespace ZrProj {

using enum ZoneMethod;
using enum ZoneEllipsoid;

// clang-format off
constinit std::array<ZoneDefinition, 142> const zones1983{{
    {.method = TM, .ellipsoid = Grs1980, .Lon0 = "-85D50", .Lat0 = "30D30", .K0 = 0.99996, .xOrg = 200000, .yOrg = 0}, // 0 Alabama East
    {.method = TM, .ellipsoid = Grs1980, .Lon0 = "-87D30", .Lat0 = "30", .K0 = 0.9999333333333333, .xOrg = 600000, .yOrg = 0}, // 1 Alabama West
    {.method = HOM, .ellipsoid = Grs1980, .Lat0 = "57", .Lon1 = "-133d40", .Alpha = "-36d52'11.6315", .K0 = 0.9999, .xOrg = 818676.7344011232, .yOrg = 575097.6888751927, .bUseAlpha = true, .bRotate = true, .bUOffset = true}, // 2 Alaska 1
    {.method = TM, .ellipsoid = Grs1980, .Lon0 = "-142", .Lat0 = "54", .K0 = 0.9999, .xOrg = 500000, .yOrg = 0}, // 3 Alaska 2
    {.method = TM, .ellipsoid = Grs1980, .Lon0 = "-146", .Lat0 = "54", .K0 = 0.9999, .xOrg = 500000, .yOrg = 0}, // 4 Alaska 3
    {.method = TM, .ellipsoid = Grs1980, .Lon0 = "-150", .Lat0 = "54", .K0 = 0.9999, .xOrg = 500000, .yOrg = 0}, // 5 Alaska 4
    {.method = TM, .ellipsoid = Grs1980, .Lon0 = "-154", .Lat0 = "54", .K0 = 0.9999, .xOrg = 500000, .yOrg = 0}, // 6 Alaska 5
    {.method = TM, .ellipsoid = Grs1980, .Lon0 = "-158", .Lat0 = "54", .K0 = 0.9999, .xOrg = 500000, .yOrg = 0}, // 7 Alaska 6
    {.method = TM, .ellipsoid = Grs1980, .Lon0 = "-162", .Lat0 = "54", .K0 = 0.9999, .xOrg = 500000, .yOrg = 0}, // 8 Alaska 7
    {.method = TM, .ellipsoid = Grs1980, .Lon0 = "-166", .Lat0 = "54", .K0 = 0.9999, .xOrg = 500000, .yOrg = 0}, // 9 Alaska 8
    {.method = TM, .ellipsoid = Grs1980, .Lon0 = "-170", .Lat0 = "54", .K0 = 0.9999, .xOrg = 500000, .yOrg = 0}, // 10 Alaska 9
    {.method = LCC, .ellipsoid = Grs1980, .Lon0 = "-176", .Lat0 = "51", .Lat1 = "53D50", .Lat2 = "51D50", .xOrg = 1000000, .yOrg = 0}, // 11 Alaska 10
    {.method = TM, .ellipsoid = Grs1980, .Lon0 = "-110D10", .Lat0 = "31", .K0 = 0.9999, .xOrg = 213360, .yOrg = 0}, // 12 Arizona East
    {.method = TM, .ellipsoid = Grs1980, .Lon0 = "-111D55", .Lat0 = "31", .K0 = 0.9999, .xOrg = 213360, .yOrg = 0}, // 13 Arizona Central
    {.method = TM, .ellipsoid = Grs1980, .Lon0 = "-113D45", .Lat0 = "31", .K0 = 0.9999333333333333, .xOrg = 213360, .yOrg = 0}, // 14 Arizona West
    {.method = LCC, .ellipsoid = Grs1980, .Lon0 = "-92", .Lat0 = "34D20", .Lat1 = "36D14", .Lat2 = "34D56", .xOrg = 400000, .yOrg = 0}, // 15 Arkansas North
    {.method = LCC, .ellipsoid = Grs1980, .Lon0 = "-92", .Lat0 = "32D40", .Lat1 = "34D46", .Lat2 = "33D18", .xOrg = 400000, .yOrg = 400000}, // 16 Arkansas South
    {.method = LCC, .ellipsoid = Grs1980, .Lon0 = "-122", .Lat0 = "39D20", .Lat1 = "41D40", .Lat2 = "40", .xOrg = 2000000, .yOrg = 500000}, // 17 California I
    {.method = LCC, .ellipsoid = Grs1980, .Lon0 = "-122", .Lat0 = "37D40", .Lat1 = "39D50", .Lat2 = "38D20", .xOrg = 2000000, .yOrg = 500000}, // 18 California II
    {.method = LCC, .ellipsoid = Grs1980, .Lon0 = "-120D30", .Lat0 = "36D30", .Lat1 = "38D26", .Lat2 = "37D4", .xOrg = 2000000, .yOrg = 500000}, // 19 California III
    {.method = LCC, .ellipsoid = Grs1980, .Lon0 = "-119", .Lat0 = "35D20", .Lat1 = "37D15", .Lat2 = "36", .xOrg = 2000000, .yOrg = 500000}, // 20 California IV
    {.method = LCC, .ellipsoid = Grs1980, .Lon0 = "-118", .Lat0 = "33D30", .Lat1 = "35D28", .Lat2 = "34D2", .xOrg = 2000000, .yOrg = 500000}, // 21 California V
    {.method = LCC, .ellipsoid = Grs1980, .Lon0 = "-116D15", .Lat0 = "32D10", .Lat1 = "33D53", .Lat2 = "32D47", .xOrg = 2000000, .yOrg = 500000}, // 22 California VI
    {}, // 23 California VII
    {.method = LCC, .ellipsoid = Grs1980, .Lon0 = "-105D30", .Lat0 = "39D20", .Lat1 = "40D47", .Lat2 = "39D43", .xOrg = 914401.8289, .yOrg = 304800.6096}, // 24 Colorado North
    {.method = LCC, .ellipsoid = Grs1980, .Lon0 = "-105D30", .Lat0 = "37D50", .Lat1 = "39D45", .Lat2 = "38D27", .xOrg = 914401.8289, .yOrg = 304800.6096}, // 25 Colorado Central
    {.method = LCC, .ellipsoid = Grs1980, .Lon0 = "-105D30", .Lat0 = "36D40", .Lat1 = "38D26", .Lat2 = "37D14", .xOrg = 914401.8289, .yOrg = 304800.6096}, // 26 Colorado South
    {.method = LCC, .ellipsoid = Grs1980, .Lon0 = "-72D45", .Lat0 = "40D50", .Lat1 = "41D52", .Lat2 = "41D12", .xOrg = 304800.6096, .yOrg = 152400.3048}, // 27 Connecticut
    {.method = TM, .ellipsoid = Grs1980, .Lon0 = "-75D25", .Lat0 = "38", .K0 = 0.999995, .xOrg = 200000, .yOrg = 0}, // 28 Deleware
    {.method = LCC, .ellipsoid = Grs1980, .Lon0 = "-84D30", .Lat0 = "29", .Lat1 = "30D45", .Lat2 = "29D35", .xOrg = 600000, .yOrg = 0}, // 29 Florida North
    {.method = TM, .ellipsoid = Grs1980, .Lon0 = "-81", .Lat0 = "24D20", .K0 = 0.9999411764705882, .xOrg = 200000, .yOrg = 0}, // 30 Florida East
    {.method = TM, .ellipsoid = Grs1980, .Lon0 = "-82", .Lat0 = "24D20", .K0 = 0.9999411764705882, .xOrg = 200000, .yOrg = 0}, // 31 Florida West
    {.method = TM, .ellipsoid = Grs1980, .Lon0 = "-82D10", .Lat0 = "30", .K0 = 0.9999, .xOrg = 200000, .yOrg = 0}, // 32 Georgia East
    {.method = TM, .ellipsoid = Grs1980, .Lon0 = "-84D10", .Lat0 = "30", .K0 = 0.9999, .xOrg = 700000, .yOrg = 0}, // 33 Georgia West
    {}, // 34 Guam Island
    {.method = TM, .ellipsoid = Grs1980, .Lon0 = "-155D30", .Lat0 = "18D50", .K0 = 0.9999666666666667, .xOrg = 500000, .yOrg = 0}, // 35 Hawaii 1
    {.method = TM, .ellipsoid = Grs1980, .Lon0 = "-156D40", .Lat0 = "20D20", .K0 = 0.9999666666666667, .xOrg = 500000, .yOrg = 0}, // 36 Hawaii 2
    {.method = TM, .ellipsoid = Grs1980, .Lon0 = "-158", .Lat0 = "21D10", .K0 = 0.99999, .xOrg = 500000, .yOrg = 0}, // 37 Hawaii 3
    {.method = TM, .ellipsoid = Grs1980, .Lon0 = "-159D30", .Lat0 = "21D50", .K0 = 0.99999, .xOrg = 500000, .yOrg = 0}, // 38 Hawaii 4
    {.method = TM, .ellipsoid = Grs1980, .Lon0 = "-160D10", .Lat0 = "21D40", .K0 = 1, .xOrg = 500000, .yOrg = 0}, // 39 Hawaii 5
    {.method = TM, .ellipsoid = Grs1980, .Lon0 = "-112D10", .Lat0 = "41D40", .K0 = 0.9999473684210526, .xOrg = 200000, .yOrg = 0}, // 40 Idaho East
    {.method = TM, .ellipsoid = Grs1980, .Lon0 = "-114", .Lat0 = "41D40", .K0 = 0.9999473684210526, .xOrg = 500000, .yOrg = 0}, // 41 Idaho Central
    {.method = TM, .ellipsoid = Grs1980, .Lon0 = "-115D45", .Lat0 = "41D40", .K0 = 0.9999333333333333, .xOrg = 800000, .yOrg = 0}, // 42 Idaho West
    {.method = TM, .ellipsoid = Grs1980, .Lon0 = "-88D20", .Lat0 = "36D40", .K0 = 0.999975, .xOrg = 300000, .yOrg = 0}, // 43 Illinois East
    {.method = TM, .ellipsoid = Grs1980, .Lon0 = "-90D10", .Lat0 = "36D40", .K0 = 0.9999411764705882, .xOrg = 700000, .yOrg = 0}, // 44 Illinois West
    {.method = TM, .ellipsoid = Grs1980, .Lon0 = "-85D40", .Lat0 = "37D30", .K0 = 0.9999666666666667, .xOrg = 100000, .yOrg = 250000}, // 45 Indiana East
    {.method = TM, .ellipsoid = Grs1980, .Lon0 = "-87D5", .Lat0 = "37D30", .K0 = 0.9999666666666667, .xOrg = 900000, .yOrg = 250000}, // 46 Indiana West
    {.method = LCC, .ellipsoid = Grs1980, .Lon0 = "-93D30", .Lat0 = "41D30", .Lat1 = "43D16", .Lat2 = "42D4", .xOrg = 1500000, .yOrg = 1000000}, // 47 Iowa North
    {.method = LCC, .ellipsoid = Grs1980, .Lon0 = "-93D30", .Lat0 = "40", .Lat1 = "41D47", .Lat2 = "40D37", .xOrg = 500000, .yOrg = 0}, // 48 Iowa South
    {.method = LCC, .ellipsoid = Grs1980, .Lon0 = "-98", .Lat0 = "38D20", .Lat1 = "39D47", .Lat2 = "38D43", .xOrg = 400000, .yOrg = 0}, // 49 Kansas North
    {.method = LCC, .ellipsoid = Grs1980, .Lon0 = "-98D30", .Lat0 = "36D40", .Lat1 = "38D34", .Lat2 = "37D16", .xOrg = 400000, .yOrg = 400000}, // 50 Kansas South
    {.method = LCC, .ellipsoid = Grs1980, .Lon0 = "-84D15", .Lat0 = "37D30", .Lat1 = "38D58", .Lat2 = "37D58", .xOrg = 500000, .yOrg = 0}, // 51 Kentucky North
    {.method = LCC, .ellipsoid = Grs1980, .Lon0 = "-85D45", .Lat0 = "36D20", .Lat1 = "37D56", .Lat2 = "36D44", .xOrg = 500000, .yOrg = 500000}, // 52 Kentucky South
    {.method = LCC, .ellipsoid = Grs1980, .Lon0 = "-92D30", .Lat0 = "30D30", .Lat1 = "32D40", .Lat2 = "31D10", .xOrg = 1000000, .yOrg = 0}, // 53 Louisiana North
    {.method = LCC, .ellipsoid = Grs1980, .Lon0 = "-91D20", .Lat0 = "28D30", .Lat1 = "30D42", .Lat2 = "29D18", .xOrg = 1000000, .yOrg = 0}, // 54 Louisiana South
    {.method = LCC, .ellipsoid = Grs1980, .Lon0 = "-91D20", .Lat0 = "25D30", .Lat1 = "27D50", .Lat2 = "26D10", .xOrg = 1000000, .yOrg = 0}, // 55 Louisiana Offshore
    {.method = TM, .ellipsoid = Grs1980, .Lon0 = "-68D30", .Lat0 = "43D40", .K0 = 0.9999, .xOrg = 300000, .yOrg = 0}, // 56 Maine East
    {.method = TM, .ellipsoid = Grs1980, .Lon0 = "-70D10", .Lat0 = "42D50", .K0 = 0.9999666666666667, .xOrg = 900000, .yOrg = 0}, // 57 Maine West
    {.method = LCC, .ellipsoid = Grs1980, .Lon0 = "-77", .Lat0 = "37D40", .Lat1 = "39D27", .Lat2 = "38D18", .xOrg = 400000, .yOrg = 0}, // 58 Maryland
    {.method = LCC, .ellipsoid = Grs1980, .Lon0 = "-71D30", .Lat0 = "41", .Lat1 = "42D41", .Lat2 = "41D43", .xOrg = 200000, .yOrg = 750000}, // 59 Massachusetts Mainland
    {.method = LCC, .ellipsoid = Grs1980, .Lon0 = "-70D30", .Lat0 = "41", .Lat1 = "41D29", .Lat2 = "41D17", .xOrg = 500000, .yOrg = 0}, // 60 Massachusetts Island
    {}, // 61 Michigan East (old)
    {}, // 62 Michigan Central (old)
    {}, // 63 Michigan West (old)
    {.method = LCC, .ellipsoid = Grs1980, .Lon0 = "-87", .Lat0 = "44D47", .Lat1 = "47D5", .Lat2 = "45D29", .xOrg = 8000000, .yOrg = 0}, // 64 Michigan North
    {.method = LCC, .ellipsoid = Grs1980, .Lon0 = "-84D22", .Lat0 = "43D19", .Lat1 = "45D42", .Lat2 = "44D11", .xOrg = 6000000, .yOrg = 0}, // 65 Michigan Central
    {.method = LCC, .ellipsoid = Grs1980, .Lon0 = "-84D22", .Lat0 = "41D30", .Lat1 = "43D40", .Lat2 = "42D6", .xOrg = 4000000, .yOrg = 0}, // 66 Michigan South
    {.method = LCC, .ellipsoid = Grs1980, .Lon0 = "-93D6", .Lat0 = "46D30", .Lat1 = "48D38", .Lat2 = "47D2", .xOrg = 800000, .yOrg = 100000}, // 67 Minnesota North
    {.method = LCC, .ellipsoid = Grs1980, .Lon0 = "-94D15", .Lat0 = "45", .Lat1 = "47D3", .Lat2 = "45D37", .xOrg = 800000, .yOrg = 100000}, // 68 Minnesota Central
    {.method = LCC, .ellipsoid = Grs1980, .Lon0 = "-94", .Lat0 = "43", .Lat1 = "45D13", .Lat2 = "43D47", .xOrg = 800000, .yOrg = 100000}, // 69 Minnesota South
    {.method = TM, .ellipsoid = Grs1980, .Lon0 = "-88D50", .Lat0 = "29D30", .K0 = 0.99995, .xOrg = 300000, .yOrg = 0}, // 70 Missippippi East
    {.method = TM, .ellipsoid = Grs1980, .Lon0 = "-90D20", .Lat0 = "29D30", .K0 = 0.99995, .xOrg = 700000, .yOrg = 0}, // 71 Missippippi West
    {.method = TM, .ellipsoid = Grs1980, .Lon0 = "-90D30", .Lat0 = "35D50", .K0 = 0.9999333333333333, .xOrg = 250000, .yOrg = 0}, // 72 Missouri East
    {.method = TM, .ellipsoid = Grs1980, .Lon0 = "-92D30", .Lat0 = "35D50", .K0 = 0.9999333333333333, .xOrg = 500000, .yOrg = 0}, // 73 Missouri Central
    {.method = TM, .ellipsoid = Grs1980, .Lon0 = "-94D30", .Lat0 = "36D10", .K0 = 0.9999411764705882, .xOrg = 850000, .yOrg = 0}, // 74 Missouri West
    {.method = LCC, .ellipsoid = Grs1980, .Lon0 = "-109D30", .Lat0 = "44D15", .Lat1 = "49", .Lat2 = "45", .xOrg = 600000, .yOrg = 0}, // 75 Montana
    {}, // 76 Montana North
    {}, // 77 Montana Central
    {}, // 78 Montana South
    {.method = LCC, .ellipsoid = Grs1980, .Lon0 = "-100", .Lat0 = "39D50", .Lat1 = "43", .Lat2 = "40", .xOrg = 500000, .yOrg = 0}, // 79 Nebraska
    {}, // 80 Nebraska North
    {}, // 81 Nebraska South
    {.method = TM, .ellipsoid = Grs1980, .Lon0 = "-115D35", .Lat0 = "34D45", .K0 = 0.9999, .xOrg = 200000, .yOrg = 8000000}, // 82 Nevada East
    {.method = TM, .ellipsoid = Grs1980, .Lon0 = "-116D40", .Lat0 = "34D45", .K0 = 0.9999, .xOrg = 500000, .yOrg = 6000000}, // 83 Nevada Central
    {.method = TM, .ellipsoid = Grs1980, .Lon0 = "-118D35", .Lat0 = "34D45", .K0 = 0.9999, .xOrg = 800000, .yOrg = 4000000}, // 84 Nevada West
    {.method = TM, .ellipsoid = Grs1980, .Lon0 = "-71D40", .Lat0 = "42D30", .K0 = 0.9999666666666667, .xOrg = 300000, .yOrg = 0}, // 85 New Hampshire
    {.method = TM, .ellipsoid = Grs1980, .Lon0 = "-74D30", .Lat0 = "38D50", .K0 = 0.9999, .xOrg = 150000, .yOrg = 0}, // 86 New Jersey
    {.method = TM, .ellipsoid = Grs1980, .Lon0 = "-104D20", .Lat0 = "31", .K0 = 0.9999090909090909, .xOrg = 165000, .yOrg = 0}, // 87 New Mexico East
    {.method = TM, .ellipsoid = Grs1980, .Lon0 = "-106D15", .Lat0 = "31", .K0 = 0.9999, .xOrg = 500000, .yOrg = 0}, // 88 New Mexico Central
    {.method = TM, .ellipsoid = Grs1980, .Lon0 = "-107D50", .Lat0 = "31", .K0 = 0.9999166666666667, .xOrg = 830000, .yOrg = 0}, // 89 New Mexico West
    {.method = TM, .ellipsoid = Grs1980, .Lon0 = "-74D30", .Lat0 = "38D50", .K0 = 0.9999, .xOrg = 150000, .yOrg = 0}, // 90 New York East
    {.method = TM, .ellipsoid = Grs1980, .Lon0 = "-76D35", .Lat0 = "40", .K0 = 0.9999375, .xOrg = 250000, .yOrg = 0}, // 91 New York Central
    {.method = TM, .ellipsoid = Grs1980, .Lon0 = "-78D35", .Lat0 = "40", .K0 = 0.9999375, .xOrg = 350000, .yOrg = 0}, // 92 New York West
    {.method = LCC, .ellipsoid = Grs1980, .Lon0 = "-74", .Lat0 = "40D10", .Lat1 = "41D2", .Lat2 = "40D40", .xOrg = 300000, .yOrg = 0}, // 93 New York Long Island
    {.method = LCC, .ellipsoid = Grs1980, .Lon0 = "-79", .Lat0 = "33D45", .Lat1 = "36D10", .Lat2 = "34D20", .xOrg = 609601.22, .yOrg = 0}, // 94 North Carolina
    {.method = LCC, .ellipsoid = Grs1980, .Lon0 = "-100D30", .Lat0 = "47", .Lat1 = "48D44", .Lat2 = "47D26", .xOrg = 600000, .yOrg = 0}, // 95 North Dakota North
    {.method = LCC, .ellipsoid = Grs1980, .Lon0 = "-100D30", .Lat0 = "45D40", .Lat1 = "47D29", .Lat2 = "46D11", .xOrg = 600000, .yOrg = 0}, // 96 North Dakota South
    {.method = LCC, .ellipsoid = Grs1980, .Lon0 = "-82D30", .Lat0 = "39D40", .Lat1 = "41D42", .Lat2 = "40D26", .xOrg = 600000, .yOrg = 0}, // 97 Ohio North
    {.method = LCC, .ellipsoid = Grs1980, .Lon0 = "-82D30", .Lat0 = "38", .Lat1 = "40D2", .Lat2 = "38D44", .xOrg = 600000, .yOrg = 0}, // 98 Ohio South
    {.method = LCC, .ellipsoid = Grs1980, .Lon0 = "-98", .Lat0 = "35", .Lat1 = "36D46", .Lat2 = "35D34", .xOrg = 600000, .yOrg = 0}, // 99 Oklahoma North
    {.method = LCC, .ellipsoid = Grs1980, .Lon0 = "-98", .Lat0 = "33D20", .Lat1 = "35D14", .Lat2 = "33D56", .xOrg = 600000, .yOrg = 0}, // 100 Oklahoma South
    {.method = LCC, .ellipsoid = Grs1980, .Lon0 = "-120D30", .Lat0 = "43D40", .Lat1 = "46", .Lat2 = "44D20", .xOrg = 2500000, .yOrg = 0}, // 101 Oregon North
    {.method = LCC, .ellipsoid = Grs1980, .Lon0 = "-120D30", .Lat0 = "41D40", .Lat1 = "44", .Lat2 = "42D20", .xOrg = 1500000, .yOrg = 0}, // 102 Oregon South
    {.method = LCC, .ellipsoid = Grs1980, .Lon0 = "-77D45", .Lat0 = "40D10", .Lat1 = "41D57", .Lat2 = "40D53", .xOrg = 600000, .yOrg = 0}, // 103 Pennsylvania North
    {.method = LCC, .ellipsoid = Grs1980, .Lon0 = "-77D45", .Lat0 = "39D20", .Lat1 = "40D58", .Lat2 = "39D56", .xOrg = 600000, .yOrg = 0}, // 104 Pennsylvania South
    {.method = LCC, .ellipsoid = Grs1980, .Lon0 = "-66D26", .Lat0 = "17D50", .Lat1 = "18D26", .Lat2 = "18D2", .xOrg = 200000, .yOrg = 200000}, // 105 Puerto Rico and Virgin Islands (1983)
    {}, // 106 Puerto Rico and Virgin Islands (1927)
    {}, // 107 Virgin Islands St. Croix (1927)
    {.method = TM, .ellipsoid = Grs1980, .Lon0 = "-71D30", .Lat0 = "41D5", .K0 = 0.99999375, .xOrg = 100000, .yOrg = 0}, // 108 Rhode Island
    {}, // 109 American Samoa
    {.method = LCC, .ellipsoid = Grs1980, .Lon0 = "-81", .Lat0 = "31D50", .Lat1 = "34D50", .Lat2 = "32D30", .xOrg = 609600, .yOrg = 0}, // 110 South Carolina
    {}, // 111 South Carolina North
    {}, // 112 South Carolina South
    {.method = LCC, .ellipsoid = Grs1980, .Lon0 = "-100", .Lat0 = "43D50", .Lat1 = "45D41", .Lat2 = "44D25", .xOrg = 600000, .yOrg = 0}, // 113 South Dakota North
    {.method = LCC, .ellipsoid = Grs1980, .Lon0 = "-100D20", .Lat0 = "42D20", .Lat1 = "44D24", .Lat2 = "42D50", .xOrg = 600000, .yOrg = 0}, // 114 South Dakota South
    {.method = LCC, .ellipsoid = Grs1980, .Lon0 = "-86", .Lat0 = "34D20", .Lat1 = "36D25", .Lat2 = "35D15", .xOrg = 600000, .yOrg = 0}, // 115 Tennessee
    {.method = LCC, .ellipsoid = Grs1980, .Lon0 = "-101D30", .Lat0 = "34", .Lat1 = "36D11", .Lat2 = "34D39", .xOrg = 200000, .yOrg = 1000000}, // 116 Texas North
    {.method = LCC, .ellipsoid = Grs1980, .Lon0 = "-98D30", .Lat0 = "31D40", .Lat1 = "33D58", .Lat2 = "32D8", .xOrg = 600000, .yOrg = 2000000}, // 117 Texas North Central
    {.method = LCC, .ellipsoid = Grs1980, .Lon0 = "-100D20", .Lat0 = "29D40", .Lat1 = "31D53", .Lat2 = "30D7", .xOrg = 700000, .yOrg = 3000000}, // 118 Texas Central
    {.method = LCC, .ellipsoid = Grs1980, .Lon0 = "-99", .Lat0 = "27D50", .Lat1 = "30D17", .Lat2 = "28D23", .xOrg = 600000, .yOrg = 4000000}, // 119 Texas South Central
    {.method = LCC, .ellipsoid = Grs1980, .Lon0 = "-98D30", .Lat0 = "25D40", .Lat1 = "27D50", .Lat2 = "26D10", .xOrg = 300000, .yOrg = 5000000}, // 120 Texas South
    {.method = LCC, .ellipsoid = Grs1980, .Lon0 = "-111D30", .Lat0 = "40D20", .Lat1 = "41D47", .Lat2 = "40D43", .xOrg = 500000, .yOrg = 1000000}, // 121 Utah North
    {.method = LCC, .ellipsoid = Grs1980, .Lon0 = "-111D30", .Lat0 = "38D20", .Lat1 = "40D39", .Lat2 = "39D1", .xOrg = 500000, .yOrg = 2000000}, // 122 Utah Central
    {.method = LCC, .ellipsoid = Grs1980, .Lon0 = "-111D30", .Lat0 = "36D40", .Lat1 = "38D21", .Lat2 = "37D13", .xOrg = 500000, .yOrg = 3000000}, // 123 Utah South
    {.method = TM, .ellipsoid = Grs1980, .Lon0 = "-72D30", .Lat0 = "42D30", .K0 = 0.9999642857142857, .xOrg = 500000, .yOrg = 0}, // 124 Vermont
    {.method = LCC, .ellipsoid = Grs1980, .Lon0 = "-78D30", .Lat0 = "37D40", .Lat1 = "39D12", .Lat2 = "38D2", .xOrg = 3500000, .yOrg = 2000000}, // 125 Virginia North
    {.method = LCC, .ellipsoid = Grs1980, .Lon0 = "-78D30", .Lat0 = "36D20", .Lat1 = "37D58", .Lat2 = "36D46", .xOrg = 3500000, .yOrg = 1000000}, // 126 Virginia South
    {.method = LCC, .ellipsoid = Grs1980, .Lon0 = "-120D50", .Lat0 = "47", .Lat1 = "48D44", .Lat2 = "47D30", .xOrg = 500000, .yOrg = 0}, // 127 Washington North
    {.method = LCC, .ellipsoid = Grs1980, .Lon0 = "-120D30", .Lat0 = "45D20", .Lat1 = "47D20", .Lat2 = "45D50", .xOrg = 500000, .yOrg = 0}, // 128 Washington South
    {.method = LCC, .ellipsoid = Grs1980, .Lon0 = "-79D30", .Lat0 = "38D30", .Lat1 = "40D15", .Lat2 = "39", .xOrg = 600000, .yOrg = 0}, // 129 West Virginia North
    {.method = LCC, .ellipsoid = Grs1980, .Lon0 = "-81", .Lat0 = "37", .Lat1 = "38D53", .Lat2 = "37D29", .xOrg = 600000, .yOrg = 0}, // 130 West Virginia South
    {.method = LCC, .ellipsoid = Grs1980, .Lon0 = "-90", .Lat0 = "45D10", .Lat1 = "46D46", .Lat2 = "45D34", .xOrg = 600000, .yOrg = 0}, // 131 Wisconsin North
    {.method = LCC, .ellipsoid = Grs1980, .Lon0 = "-90", .Lat0 = "43D50", .Lat1 = "45D30", .Lat2 = "44D15", .xOrg = 600000, .yOrg = 0}, // 132 Wisconsin Central
    {.method = LCC, .ellipsoid = Grs1980, .Lon0 = "-90", .Lat0 = "42", .Lat1 = "44D4", .Lat2 = "42D44", .xOrg = 600000, .yOrg = 0}, // 133 Wisconsin South
    {.method = TM, .ellipsoid = Grs1980, .Lon0 = "-105D10", .Lat0 = "40D30", .K0 = 0.9999375, .xOrg = 200000, .yOrg = 0}, // 134 Wyoming East
    {.method = TM, .ellipsoid = Grs1980, .Lon0 = "-107D20", .Lat0 = "40D30", .K0 = 0.9999375, .xOrg = 400000, .yOrg = 100000}, // 135 Wyoming East Central
    {.method = TM, .ellipsoid = Grs1980, .Lon0 = "-108D45", .Lat0 = "40D30", .K0 = 0.9999375, .xOrg = 600000, .yOrg = 0}, // 136 Wyoming West Central
    {.method = TM, .ellipsoid = Grs1980, .Lon0 = "-110D5", .Lat0 = "40D30", .K0 = 0.9999375, .xOrg = 800000, .yOrg = 100000}, // 137 Wyoming West
    {.method = HOM, .ellipsoid = Clarke1866, .Lat0 = "55d40", .Lon1 = "78", .Lat1 = "44", .K0 = 0.9999, .xOrg = -3950000, .yOrg = -5000000, .bRotate = true, .bUOffset = true}, // 138 Great Lakes Survey 1
    {.method = HOM, .ellipsoid = Clarke1866, .Lat0 = "350d37", .Lon1 = "82d30", .Lat1 = "43", .K0 = 0.9999, .xOrg = 1200000, .yOrg = -3500000, .bRotate = true, .bUOffset = true}, // 139 Great Lakes Survey 2
    {.method = HOM, .ellipsoid = Clarke1866, .Lat0 = "15", .Lon1 = "87", .Lat1 = "44", .K0 = 0.9999, .xOrg = -1000000, .yOrg = -4300000, .bRotate = true, .bUOffset = true}, // 140 Great Lakes Survey 3
    {.method = HOM, .ellipsoid = Clarke1866, .Lat0 = "285d41", .Lon1 = "88d50", .Lat1 = "47d12", .K0 = 0.9999, .xOrg = 9000000, .yOrg = -1600000, .bRotate = true, .bUOffset = true}, // 141 Great Lakes Survey 4
}};
// clang-format on

} // namespace ZrProj
