// The State Plane definitions of 1927: one row a zone, in StateZoneType order; an empty row where a zone has none.
// Angles are text in degrees, minutes and seconds, and lengths are metres.
#include "zone_definition.h"

namespace ZrProj {

using enum ZoneMethod;
using enum ZoneEllipsoid;

// clang-format off
constinit std::array<ZoneDefinition, 142> const zones1927{{
    {.method = TM, .ellipsoid = Clarke1866, .Lon0 = "-85d50'", .Lat0 = "30d30'", .K0 = 0.99996, .xOrg = 152400.3048006096, .yOrg = 0}, // 0 Alabama East
    {.method = TM, .ellipsoid = Clarke1866, .Lon0 = "-87d30'", .Lat0 = "30", .K0 = 0.9999333333333333, .xOrg = 152400.3048006096, .yOrg = 0}, // 1 Alabama West
    {.method = HOM, .ellipsoid = Clarke1866, .Lat0 = "57", .Lon1 = "-133d40'", .Alpha = "-36d52'11.6315", .K0 = 0.9999, .xOrg = 818585.5672270928, .yOrg = 575219.2451072643, .bUseAlpha = true, .bRotate = true, .bUOffset = true}, // 2 Alaska 1
    {.method = TM, .ellipsoid = Clarke1866, .Lon0 = "-142", .Lat0 = "54", .K0 = 0.9999, .xOrg = 152400.3048006096, .yOrg = 0}, // 3 Alaska 2
    {.method = TM, .ellipsoid = Clarke1866, .Lon0 = "-146", .Lat0 = "54", .K0 = 0.9999, .xOrg = 152400.3048006096, .yOrg = 0}, // 4 Alaska 3
    {.method = TM, .ellipsoid = Clarke1866, .Lon0 = "-150", .Lat0 = "54", .K0 = 0.9999, .xOrg = 152400.3048006096, .yOrg = 0}, // 5 Alaska 4
    {.method = TM, .ellipsoid = Clarke1866, .Lon0 = "-154", .Lat0 = "54", .K0 = 0.9999, .xOrg = 152400.3048006096, .yOrg = 0}, // 6 Alaska 5
    {.method = TM, .ellipsoid = Clarke1866, .Lon0 = "-158", .Lat0 = "54", .K0 = 0.9999, .xOrg = 152400.3048006096, .yOrg = 0}, // 7 Alaska 6
    {.method = TM, .ellipsoid = Clarke1866, .Lon0 = "-162", .Lat0 = "54", .K0 = 0.9999, .xOrg = 213360.4267208534, .yOrg = 0}, // 8 Alaska 7
    {.method = TM, .ellipsoid = Clarke1866, .Lon0 = "-166", .Lat0 = "54", .K0 = 0.9999, .xOrg = 152400.3048006096, .yOrg = 0}, // 9 Alaska 8
    {.method = TM, .ellipsoid = Clarke1866, .Lon0 = "-170", .Lat0 = "54", .K0 = 0.9999, .xOrg = 182880.3657607315, .yOrg = 0}, // 10 Alaska 9
    {.method = LCC, .ellipsoid = Clarke1866, .Lon0 = "-176", .Lat0 = "51", .Lat1 = "53d50'", .Lat2 = "51d50'", .xOrg = 914401.8288036576}, // 11 Alaska 10
    {.method = TM, .ellipsoid = Clarke1866, .Lon0 = "-110d10'", .Lat0 = "31", .K0 = 0.9999, .xOrg = 152400.3048006096, .yOrg = 0}, // 12 Arizona East
    {.method = TM, .ellipsoid = Clarke1866, .Lon0 = "-111d55'", .Lat0 = "31", .K0 = 0.9999, .xOrg = 152400.3048006096, .yOrg = 0}, // 13 Arizona Central
    {.method = TM, .ellipsoid = Clarke1866, .Lon0 = "-113d45'", .Lat0 = "31", .K0 = 0.9999333333333333, .xOrg = 152400.3048006096, .yOrg = 0}, // 14 Arizona West
    {.method = LCC, .ellipsoid = Clarke1866, .Lon0 = "-92", .Lat0 = "34d20'", .Lat1 = "36d14'", .Lat2 = "34d56'", .xOrg = 609601.2192024384, .yOrg = 0}, // 15 Arkansas North
    {.method = LCC, .ellipsoid = Clarke1866, .Lon0 = "-92", .Lat0 = "32d40'", .Lat1 = "34d46'", .Lat2 = "33d18'", .xOrg = 609601.2192024384, .yOrg = 0}, // 16 Arkansas South
    {.method = LCC, .ellipsoid = Clarke1866, .Lon0 = "-122", .Lat0 = "39d20'", .Lat1 = "41d40'", .Lat2 = "40", .xOrg = 609601.2192024384, .yOrg = 0}, // 17 California I
    {.method = LCC, .ellipsoid = Clarke1866, .Lon0 = "-122", .Lat0 = "37d40'", .Lat1 = "39d50'", .Lat2 = "38d20'", .xOrg = 609601.2192024384, .yOrg = 0}, // 18 California II
    {.method = LCC, .ellipsoid = Clarke1866, .Lon0 = "-120d30'", .Lat0 = "36d30'", .Lat1 = "38d26'", .Lat2 = "37d4'", .xOrg = 609601.2192024384, .yOrg = 0}, // 19 California III
    {.method = LCC, .ellipsoid = Clarke1866, .Lon0 = "-119", .Lat0 = "35d20'", .Lat1 = "37d15'", .Lat2 = "36", .xOrg = 609601.2192024384, .yOrg = 0}, // 20 California IV
    {.method = LCC, .ellipsoid = Clarke1866, .Lon0 = "-118", .Lat0 = "33d30'", .Lat1 = "35d28'", .Lat2 = "34d2'", .xOrg = 609601.2192024384, .yOrg = 0}, // 21 California V
    {.method = LCC, .ellipsoid = Clarke1866, .Lon0 = "-116d15", .Lat0 = "32d10", .Lat1 = "33d53", .Lat2 = "32d47", .xOrg = 609601.2192024384, .yOrg = 0}, // 22 California VI
    {.method = LCC, .ellipsoid = Clarke1866, .Lon0 = "-118d20", .Lat0 = "34d8", .Lat1 = "34d25", .Lat2 = "33d52", .xOrg = 1276106.450596901, .yOrg = 1268253.006858014}, // 23 California VII
    {.method = LCC, .ellipsoid = Clarke1866, .Lon0 = "-105d30", .Lat0 = "39d20", .Lat1 = "40d47", .Lat2 = "39d43", .xOrg = 609601.2192024384, .yOrg = 0}, // 24 Colorado North
    {.method = LCC, .ellipsoid = Clarke1866, .Lon0 = "-105d30", .Lat0 = "37d50", .Lat1 = "39d45", .Lat2 = "38d27", .xOrg = 609601.2192024384, .yOrg = 0}, // 25 Colorado Central
    {.method = LCC, .ellipsoid = Clarke1866, .Lon0 = "-105d30", .Lat0 = "36d40", .Lat1 = "38d26", .Lat2 = "37d14", .xOrg = 609601.2192024384, .yOrg = 0}, // 26 Colorado South
    {.method = LCC, .ellipsoid = Clarke1866, .Lon0 = "-72d45", .Lat0 = "40d50", .Lat1 = "41d52", .Lat2 = "41d12", .xOrg = 182880.3657607315, .yOrg = 0}, // 27 Connecticut
    {.method = TM, .ellipsoid = Clarke1866, .Lon0 = "-75d25", .Lat0 = "38", .K0 = 0.999995, .xOrg = 152400.3048006096, .yOrg = 0}, // 28 Deleware
    {.method = LCC, .ellipsoid = Clarke1866, .Lon0 = "-84d30", .Lat0 = "29", .Lat1 = "30d45", .Lat2 = "29d35", .xOrg = 609601.2192024384, .yOrg = 0}, // 29 Florida North
    {.method = TM, .ellipsoid = Clarke1866, .Lon0 = "-81", .Lat0 = "24d20", .K0 = 0.9999411764705882, .xOrg = 152400.3048006096, .yOrg = 0}, // 30 Florida East
    {.method = TM, .ellipsoid = Clarke1866, .Lon0 = "-82", .Lat0 = "24d20", .K0 = 0.9999411764705882, .xOrg = 152400.3048006096, .yOrg = 0}, // 31 Florida West
    {.method = TM, .ellipsoid = Clarke1866, .Lon0 = "-82d10", .Lat0 = "30", .K0 = 0.9999, .xOrg = 152400.3048006096, .yOrg = 0}, // 32 Georgia East
    {.method = TM, .ellipsoid = Clarke1866, .Lon0 = "-84d10", .Lat0 = "30", .K0 = 0.9999, .xOrg = 152400.3048006096, .yOrg = 0}, // 33 Georgia West
    {.method = Poly, .ellipsoid = Clarke1866, .Lon0 = "144d44'55.50254", .Lat0 = "13d28'20.87887", .xOrg = 50000, .yOrg = 50000}, // 34 Guam Island
    {.method = TM, .ellipsoid = Clarke1866, .Lon0 = "-155d30", .Lat0 = "18d50", .K0 = 0.9999666666666667, .xOrg = 152400.3048006096, .yOrg = 0}, // 35 Hawaii 1
    {.method = TM, .ellipsoid = Clarke1866, .Lon0 = "-156d40", .Lat0 = "20d20", .K0 = 0.9999666666666667, .xOrg = 152400.3048006096, .yOrg = 0}, // 36 Hawaii 2
    {.method = TM, .ellipsoid = Clarke1866, .Lon0 = "-158", .Lat0 = "21d10", .K0 = 0.99999, .xOrg = 152400.3048006096, .yOrg = 0}, // 37 Hawaii 3
    {.method = TM, .ellipsoid = Clarke1866, .Lon0 = "-159d30", .Lat0 = "21d50", .K0 = 0.99999, .xOrg = 152400.3048006096, .yOrg = 0}, // 38 Hawaii 4
    {.method = TM, .ellipsoid = Clarke1866, .Lon0 = "-160d10", .Lat0 = "21d40", .K0 = 1, .xOrg = 152400.3048006096, .yOrg = 0}, // 39 Hawaii 5
    {.method = TM, .ellipsoid = Clarke1866, .Lon0 = "-112d10", .Lat0 = "41d40", .K0 = 0.9999473684210526, .xOrg = 152400.3048006096, .yOrg = 0}, // 40 Idaho East
    {.method = TM, .ellipsoid = Clarke1866, .Lon0 = "-114", .Lat0 = "41d40", .K0 = 0.9999473684210526, .xOrg = 152400.3048006096, .yOrg = 0}, // 41 Idaho Central
    {.method = TM, .ellipsoid = Clarke1866, .Lon0 = "-115d45", .Lat0 = "41d40", .K0 = 0.9999333333333333, .xOrg = 152400.3048006096, .yOrg = 0}, // 42 Idaho West
    {.method = TM, .ellipsoid = Clarke1866, .Lon0 = "-88d20", .Lat0 = "36d40", .K0 = 0.999975, .xOrg = 152400.3048006096, .yOrg = 0}, // 43 Illinois East
    {.method = TM, .ellipsoid = Clarke1866, .Lon0 = "-90d10", .Lat0 = "36d40", .K0 = 0.9999411764705882, .xOrg = 152400.3048006096, .yOrg = 0}, // 44 Illinois West
    {.method = TM, .ellipsoid = Clarke1866, .Lon0 = "-85d40", .Lat0 = "37d30", .K0 = 0.9999666666666667, .xOrg = 152400.3048006096, .yOrg = 0}, // 45 Indiana East
    {.method = TM, .ellipsoid = Clarke1866, .Lon0 = "-87d5", .Lat0 = "37d30", .K0 = 0.9999666666666667, .xOrg = 152400.3048006096, .yOrg = 0}, // 46 Indiana West
    {.method = LCC, .ellipsoid = Clarke1866, .Lon0 = "-93d30", .Lat0 = "41d30", .Lat1 = "43d16", .Lat2 = "42d4", .xOrg = 609601.2192024384, .yOrg = 0}, // 47 Iowa North
    {.method = LCC, .ellipsoid = Clarke1866, .Lon0 = "-93d30", .Lat0 = "40", .Lat1 = "41d47", .Lat2 = "40d37", .xOrg = 609601.2192024384, .yOrg = 0}, // 48 Iowa South
    {.method = LCC, .ellipsoid = Clarke1866, .Lon0 = "-98", .Lat0 = "38d20", .Lat1 = "39d47", .Lat2 = "38d43", .xOrg = 609601.2192024384, .yOrg = 0}, // 49 Kansas North
    {.method = LCC, .ellipsoid = Clarke1866, .Lon0 = "-98d30", .Lat0 = "36d40", .Lat1 = "38d34", .Lat2 = "37d16", .xOrg = 609601.2192024384, .yOrg = 0}, // 50 Kansas South
    {.method = LCC, .ellipsoid = Clarke1866, .Lon0 = "-84d15", .Lat0 = "37d30", .Lat1 = "38d58", .Lat2 = "37d58", .xOrg = 609601.2192024384, .yOrg = 0}, // 51 Kentucky North
    {.method = LCC, .ellipsoid = Clarke1866, .Lon0 = "-85d45", .Lat0 = "36d20", .Lat1 = "37d56", .Lat2 = "36d44", .xOrg = 609601.2192024384, .yOrg = 0}, // 52 Kentucky South
    {.method = LCC, .ellipsoid = Clarke1866, .Lon0 = "-92d30", .Lat0 = "30d40", .Lat1 = "32d40", .Lat2 = "31d10", .xOrg = 609601.2192024384, .yOrg = 0}, // 53 Louisiana North
    {.method = LCC, .ellipsoid = Clarke1866, .Lon0 = "-91d20", .Lat0 = "28d40", .Lat1 = "30d42", .Lat2 = "29d18", .xOrg = 609601.2192024384, .yOrg = 0}, // 54 Louisiana South
    {.method = LCC, .ellipsoid = Clarke1866, .Lon0 = "-91d20", .Lat0 = "25d40", .Lat1 = "27d50", .Lat2 = "26d10", .xOrg = 609601.2192024384, .yOrg = 0}, // 55 Louisiana Offshore
    {.method = TM, .ellipsoid = Clarke1866, .Lon0 = "-68d30", .Lat0 = "43d50", .K0 = 0.9999, .xOrg = 152400.3048006096, .yOrg = 0}, // 56 Maine East
    {.method = TM, .ellipsoid = Clarke1866, .Lon0 = "-70d10", .Lat0 = "42d50", .K0 = 0.9999666666666667, .xOrg = 152400.3048006096, .yOrg = 0}, // 57 Maine West
    {.method = LCC, .ellipsoid = Clarke1866, .Lon0 = "-77", .Lat0 = "37d50", .Lat1 = "39d27", .Lat2 = "38d18", .xOrg = 243840.4876809754, .yOrg = 0}, // 58 Maryland
    {.method = LCC, .ellipsoid = Clarke1866, .Lon0 = "-71d30", .Lat0 = "41", .Lat1 = "42d41", .Lat2 = "41d43", .xOrg = 182880.3657607315, .yOrg = 0}, // 59 Massachusetts Mainland
    {.method = LCC, .ellipsoid = Clarke1866, .Lon0 = "-70d30", .Lat0 = "41", .Lat1 = "41d29", .Lat2 = "41d17", .xOrg = 60960.12192024384, .yOrg = 0}, // 60 Massachusetts Island
    {.method = TM, .ellipsoid = Clarke1866, .Lon0 = "-83d40", .Lat0 = "41d30", .K0 = 0.9999428571428571, .xOrg = 152400.3048006096, .yOrg = 0}, // 61 Michigan East (old)
    {.method = TM, .ellipsoid = Clarke1866, .Lon0 = "-85d45", .Lat0 = "41d30", .K0 = 0.9999090909090909, .xOrg = 152400.3048006096, .yOrg = 0}, // 62 Michigan Central (old)
    {.method = TM, .ellipsoid = Clarke1866, .Lon0 = "-88d45", .Lat0 = "41d30", .K0 = 0.9999090909090909, .xOrg = 152400.3048006096, .yOrg = 0}, // 63 Michigan West (old)
    {.method = LCC, .ellipsoid = Michigan, .Lon0 = "-87", .Lat0 = "44d47", .Lat1 = "47d5", .Lat2 = "45d29", .xOrg = 609601.2192024384, .yOrg = 0}, // 64 Michigan North
    {.method = LCC, .ellipsoid = Michigan, .Lon0 = "-84d20", .Lat0 = "43d19", .Lat1 = "45d42", .Lat2 = "44d11", .xOrg = 609601.2192024384, .yOrg = 0}, // 65 Michigan Central
    {.method = LCC, .ellipsoid = Michigan, .Lon0 = "-84d20", .Lat0 = "41d30", .Lat1 = "43d40", .Lat2 = "42d6", .xOrg = 609601.2192024384, .yOrg = 0}, // 66 Michigan South
    {.method = LCC, .ellipsoid = Clarke1866, .Lon0 = "-93d6", .Lat0 = "46d30", .Lat1 = "48d38", .Lat2 = "47d2", .xOrg = 609601.2192024384, .yOrg = 0}, // 67 Minnesota North
    {.method = LCC, .ellipsoid = Clarke1866, .Lon0 = "-94d15", .Lat0 = "45", .Lat1 = "47d3", .Lat2 = "45d37", .xOrg = 609601.2192024384, .yOrg = 0}, // 68 Minnesota Central
    {.method = LCC, .ellipsoid = Clarke1866, .Lon0 = "-94", .Lat0 = "43", .Lat1 = "45d13", .Lat2 = "43d47", .xOrg = 609601.2192024384, .yOrg = 0}, // 69 Minnesota South
    {.method = TM, .ellipsoid = Clarke1866, .Lon0 = "-88d50", .Lat0 = "29d40", .K0 = 0.99996, .xOrg = 152400.3048006096, .yOrg = 0}, // 70 Missippippi East
    {.method = TM, .ellipsoid = Clarke1866, .Lon0 = "-90d20", .Lat0 = "30d30", .K0 = 0.9999411764705882, .xOrg = 152400.3048006096, .yOrg = 0}, // 71 Missippippi West
    {.method = TM, .ellipsoid = Clarke1866, .Lon0 = "-90d30", .Lat0 = "35d50", .K0 = 0.9999333333333333, .xOrg = 152400.3048006096, .yOrg = 0}, // 72 Missouri East
    {.method = TM, .ellipsoid = Clarke1866, .Lon0 = "-92d30", .Lat0 = "35d50", .K0 = 0.9999333333333333, .xOrg = 152400.3048006096, .yOrg = 0}, // 73 Missouri Central
    {.method = TM, .ellipsoid = Clarke1866, .Lon0 = "-94d30", .Lat0 = "36d10", .K0 = 0.9999411764705882, .xOrg = 152400.3048006096, .yOrg = 0}, // 74 Missouri West
    {}, // 75 Montana
    {.method = LCC, .ellipsoid = Clarke1866, .Lon0 = "-109d30", .Lat0 = "47", .Lat1 = "48d43", .Lat2 = "47d51", .xOrg = 609601.2192024384, .yOrg = 0}, // 76 Montana North
    {.method = LCC, .ellipsoid = Clarke1866, .Lon0 = "-109d30", .Lat0 = "45d50", .Lat1 = "47d53", .Lat2 = "46d27", .xOrg = 609601.2192024384, .yOrg = 0}, // 77 Montana Central
    {.method = LCC, .ellipsoid = Clarke1866, .Lon0 = "-109d30", .Lat0 = "44", .Lat1 = "46d24", .Lat2 = "44d52", .xOrg = 609601.2192024384, .yOrg = 0}, // 78 Montana South
    {}, // 79 Nebraska
    {.method = LCC, .ellipsoid = Clarke1866, .Lon0 = "-100", .Lat0 = "41d20", .Lat1 = "42d49", .Lat2 = "41d51", .xOrg = 609601.2192024384, .yOrg = 0}, // 80 Nebraska North
    {.method = LCC, .ellipsoid = Clarke1866, .Lon0 = "-99d30", .Lat0 = "39d40", .Lat1 = "41d43", .Lat2 = "40d17", .xOrg = 609601.2192024384, .yOrg = 0}, // 81 Nebraska South
    {.method = TM, .ellipsoid = Clarke1866, .Lon0 = "-115d35", .Lat0 = "34d45", .K0 = 0.9999, .xOrg = 152400.3048006096, .yOrg = 0}, // 82 Nevada East
    {.method = TM, .ellipsoid = Clarke1866, .Lon0 = "-116d40", .Lat0 = "34d45", .K0 = 0.9999, .xOrg = 152400.3048006096, .yOrg = 0}, // 83 Nevada Central
    {.method = TM, .ellipsoid = Clarke1866, .Lon0 = "-118d35", .Lat0 = "34d45", .K0 = 0.9999, .xOrg = 152400.3048006096, .yOrg = 0}, // 84 Nevada West
    {.method = TM, .ellipsoid = Clarke1866, .Lon0 = "-71d40", .Lat0 = "42d30", .K0 = 0.9999666666666667, .xOrg = 152400.3048006096, .yOrg = 0}, // 85 New Hampshire
    {.method = TM, .ellipsoid = Clarke1866, .Lon0 = "-74d40", .Lat0 = "38d50", .K0 = 0.999975, .xOrg = 609601.2192024384, .yOrg = 0}, // 86 New Jersey
    {.method = TM, .ellipsoid = Clarke1866, .Lon0 = "-104d20", .Lat0 = "31", .K0 = 0.9999090909090909, .xOrg = 152400.3048006096, .yOrg = 0}, // 87 New Mexico East
    {.method = TM, .ellipsoid = Clarke1866, .Lon0 = "-106d15", .Lat0 = "31", .K0 = 0.9999, .xOrg = 152400.3048006096, .yOrg = 0}, // 88 New Mexico Central
    {.method = TM, .ellipsoid = Clarke1866, .Lon0 = "-107d50", .Lat0 = "31", .K0 = 0.9999166666666667, .xOrg = 152400.3048006096, .yOrg = 0}, // 89 New Mexico West
    {.method = TM, .ellipsoid = Clarke1866, .Lon0 = "-74d20", .Lat0 = "40", .K0 = 0.9999666666666667, .xOrg = 152400.3048006096, .yOrg = 0}, // 90 New York East
    {.method = TM, .ellipsoid = Clarke1866, .Lon0 = "-76d35", .Lat0 = "40", .K0 = 0.9999375, .xOrg = 152400.3048006096, .yOrg = 0}, // 91 New York Central
    {.method = TM, .ellipsoid = Clarke1866, .Lon0 = "-78d35", .Lat0 = "40", .K0 = 0.9999375, .xOrg = 152400.3048006096, .yOrg = 0}, // 92 New York West
    {.method = LCC, .ellipsoid = Clarke1866, .Lon0 = "-74", .Lat0 = "40d30", .Lat1 = "41d2", .Lat2 = "40d40", .xOrg = 609601.2192024384, .yOrg = 30480.06096012192}, // 93 New York Long Island
    {.method = LCC, .ellipsoid = Clarke1866, .Lon0 = "-79", .Lat0 = "33d45", .Lat1 = "36d10", .Lat2 = "34d20", .xOrg = 609601.2192024384, .yOrg = 0}, // 94 North Carolina
    {.method = LCC, .ellipsoid = Clarke1866, .Lon0 = "-100d30", .Lat0 = "47", .Lat1 = "48d44", .Lat2 = "47d26", .xOrg = 609601.2192024384, .yOrg = 0}, // 95 North Dakota North
    {.method = LCC, .ellipsoid = Clarke1866, .Lon0 = "-100d30", .Lat0 = "45d40", .Lat1 = "47d29", .Lat2 = "46d11", .xOrg = 609601.2192024384, .yOrg = 0}, // 96 North Dakota South
    {.method = LCC, .ellipsoid = Clarke1866, .Lon0 = "-82d30", .Lat0 = "39d40", .Lat1 = "41d42", .Lat2 = "40d26", .xOrg = 609601.2192024384, .yOrg = 0}, // 97 Ohio North
    {.method = LCC, .ellipsoid = Clarke1866, .Lon0 = "-82d30", .Lat0 = "38", .Lat1 = "40d2", .Lat2 = "38d44", .xOrg = 609601.2192024384, .yOrg = 0}, // 98 Ohio South
    {.method = LCC, .ellipsoid = Clarke1866, .Lon0 = "-98", .Lat0 = "35", .Lat1 = "36d46", .Lat2 = "35d34", .xOrg = 609601.2192024384, .yOrg = 0}, // 99 Oklahoma North
    {.method = LCC, .ellipsoid = Clarke1866, .Lon0 = "-98", .Lat0 = "33d20", .Lat1 = "35d14", .Lat2 = "33d56", .xOrg = 609601.2192024384, .yOrg = 0}, // 100 Oklahoma South
    {.method = LCC, .ellipsoid = Clarke1866, .Lon0 = "-120d30", .Lat0 = "43d40", .Lat1 = "46", .Lat2 = "44d20", .xOrg = 609601.2192024384, .yOrg = 0}, // 101 Oregon North
    {.method = LCC, .ellipsoid = Clarke1866, .Lon0 = "-120d30", .Lat0 = "41d40", .Lat1 = "44", .Lat2 = "42d20", .xOrg = 609601.2192024384, .yOrg = 0}, // 102 Oregon South
    {.method = LCC, .ellipsoid = Clarke1866, .Lon0 = "-77d45", .Lat0 = "40d10", .Lat1 = "41d57", .Lat2 = "40d53", .xOrg = 609601.2192024384, .yOrg = 0}, // 103 Pennsylvania North
    {.method = LCC, .ellipsoid = Clarke1866, .Lon0 = "-77d45", .Lat0 = "39d20", .Lat1 = "40d58", .Lat2 = "39d56", .xOrg = 609601.2192024384, .yOrg = 0}, // 104 Pennsylvania South
    {}, // 105 Puerto Rico and Virgin Islands (1983)
    {.method = LCC, .ellipsoid = Clarke1866, .Lon0 = "-66d26", .Lat0 = "17d50", .Lat1 = "18d26", .Lat2 = "18d2", .xOrg = 152400.3048006096, .yOrg = 0}, // 106 Puerto Rico and Virgin Islands (1927)
    {.method = LCC, .ellipsoid = Clarke1866, .Lon0 = "-66d26", .Lat0 = "17d50", .Lat1 = "18d26", .Lat2 = "18d2", .xOrg = 152400.3048006096, .yOrg = 30480.06096012192}, // 107 Virgin Islands St. Croix (1927)
    {.method = TM, .ellipsoid = Clarke1866, .Lon0 = "-71d30", .Lat0 = "41d5", .K0 = 0.99999375, .xOrg = 152400.3048006096, .yOrg = 0}, // 108 Rhode Island
    {.method = LCC, .ellipsoid = Clarke1866, .Lon0 = "-170", .Lat0 = "-14d16", .Lat1 = "-14d16", .Lat2 = "-14d16", .xOrg = 152400.3048006096, .yOrg = 95169.31165862332}, // 109 American Samoa
    {}, // 110 South Carolina
    {.method = LCC, .ellipsoid = Clarke1866, .Lon0 = "-81", .Lat0 = "33", .Lat1 = "34d58", .Lat2 = "33d46", .xOrg = 609601.2192024384, .yOrg = 0}, // 111 South Carolina North
    {.method = LCC, .ellipsoid = Clarke1866, .Lon0 = "-81", .Lat0 = "31d50", .Lat1 = "33d40", .Lat2 = "32d20", .xOrg = 609601.2192024384, .yOrg = 0}, // 112 South Carolina South
    {.method = LCC, .ellipsoid = Clarke1866, .Lon0 = "-100", .Lat0 = "43d50", .Lat1 = "45d41", .Lat2 = "44d25", .xOrg = 609601.2192024384, .yOrg = 0}, // 113 South Dakota North
    {.method = LCC, .ellipsoid = Clarke1866, .Lon0 = "-100d20", .Lat0 = "42d20", .Lat1 = "44d24", .Lat2 = "42d50", .xOrg = 609601.2192024384, .yOrg = 0}, // 114 South Dakota South
    {.method = LCC, .ellipsoid = Clarke1866, .Lon0 = "-86", .Lat0 = "34d40", .Lat1 = "36d25", .Lat2 = "35d15", .xOrg = 609601.2192024384, .yOrg = 30480.06096012192}, // 115 Tennessee
    {.method = LCC, .ellipsoid = Clarke1866, .Lon0 = "-101d30", .Lat0 = "34", .Lat1 = "36d11", .Lat2 = "34d39", .xOrg = 609601.2192024384, .yOrg = 0}, // 116 Texas North
    {.method = LCC, .ellipsoid = Clarke1866, .Lon0 = "-97d30", .Lat0 = "31d40", .Lat1 = "33d58", .Lat2 = "32d8", .xOrg = 609601.2192024384, .yOrg = 0}, // 117 Texas North Central
    {.method = LCC, .ellipsoid = Clarke1866, .Lon0 = "-100d20", .Lat0 = "29d40", .Lat1 = "31d53", .Lat2 = "30d7", .xOrg = 609601.2192024384, .yOrg = 0}, // 118 Texas Central
    {.method = LCC, .ellipsoid = Clarke1866, .Lon0 = "-99", .Lat0 = "27d50", .Lat1 = "30d17", .Lat2 = "28d23", .xOrg = 609601.2192024384, .yOrg = 0}, // 119 Texas South Central
    {.method = LCC, .ellipsoid = Clarke1866, .Lon0 = "-98d30", .Lat0 = "25d40", .Lat1 = "27d50", .Lat2 = "26d10", .xOrg = 609601.2192024384, .yOrg = 0}, // 120 Texas South
    {.method = LCC, .ellipsoid = Clarke1866, .Lon0 = "-111d30", .Lat0 = "40d20", .Lat1 = "41d47", .Lat2 = "40d43", .xOrg = 609601.2192024384, .yOrg = 0}, // 121 Utah North
    {.method = LCC, .ellipsoid = Clarke1866, .Lon0 = "-111d30", .Lat0 = "38d20", .Lat1 = "40d39", .Lat2 = "39d1", .xOrg = 609601.2192024384, .yOrg = 0}, // 122 Utah Central
    {.method = LCC, .ellipsoid = Clarke1866, .Lon0 = "-111d30", .Lat0 = "36d40", .Lat1 = "38d21", .Lat2 = "37d13", .xOrg = 609601.2192024384, .yOrg = 0}, // 123 Utah South
    {.method = TM, .ellipsoid = Clarke1866, .Lon0 = "-72d30", .Lat0 = "42d30", .K0 = 0.9999642857142857, .xOrg = 152400.3048006096, .yOrg = 0}, // 124 Vermont
    {.method = LCC, .ellipsoid = Clarke1866, .Lon0 = "-78d30", .Lat0 = "37d40", .Lat1 = "39d12", .Lat2 = "38d2", .xOrg = 609601.2192024384, .yOrg = 0}, // 125 Virginia North
    {.method = LCC, .ellipsoid = Clarke1866, .Lon0 = "-78d30", .Lat0 = "36d20", .Lat1 = "37d58", .Lat2 = "36d46", .xOrg = 609601.2192024384, .yOrg = 0}, // 126 Virginia South
    {.method = LCC, .ellipsoid = Clarke1866, .Lon0 = "-120d50", .Lat0 = "47", .Lat1 = "48d44", .Lat2 = "47d30", .xOrg = 609601.2192024384, .yOrg = 0}, // 127 Washington North
    {.method = LCC, .ellipsoid = Clarke1866, .Lon0 = "-120d30", .Lat0 = "45d20", .Lat1 = "47d20", .Lat2 = "45d50", .xOrg = 609601.2192024384, .yOrg = 0}, // 128 Washington South
    {.method = LCC, .ellipsoid = Clarke1866, .Lon0 = "-79d30", .Lat0 = "38d30", .Lat1 = "40d15", .Lat2 = "39", .xOrg = 609601.2192024384, .yOrg = 0}, // 129 West Virginia North
    {.method = LCC, .ellipsoid = Clarke1866, .Lon0 = "-81", .Lat0 = "37", .Lat1 = "38d53", .Lat2 = "37d29", .xOrg = 609601.2192024384, .yOrg = 0}, // 130 West Virginia South
    {.method = LCC, .ellipsoid = Clarke1866, .Lon0 = "-90", .Lat0 = "45d10", .Lat1 = "46d46", .Lat2 = "45d34", .xOrg = 609601.2192024384, .yOrg = 0}, // 131 Wisconsin North
    {.method = LCC, .ellipsoid = Clarke1866, .Lon0 = "-90", .Lat0 = "43d50", .Lat1 = "45d30", .Lat2 = "44d15", .xOrg = 609601.2192024384, .yOrg = 0}, // 132 Wisconsin Central
    {.method = LCC, .ellipsoid = Clarke1866, .Lon0 = "-90", .Lat0 = "42", .Lat1 = "44d4", .Lat2 = "42d44", .xOrg = 609601.2192024384, .yOrg = 0}, // 133 Wisconsin South
    {.method = TM, .ellipsoid = Clarke1866, .Lon0 = "-105d10", .Lat0 = "40d40", .K0 = 0.9999411764705882, .xOrg = 152400.3048006096, .yOrg = 0}, // 134 Wyoming East
    {.method = TM, .ellipsoid = Clarke1866, .Lon0 = "-107d20", .Lat0 = "40d40", .K0 = 0.9999411764705882, .xOrg = 152400.3048006096, .yOrg = 0}, // 135 Wyoming East Central
    {.method = TM, .ellipsoid = Clarke1866, .Lon0 = "-108d45", .Lat0 = "40d40", .K0 = 0.9999411764705882, .xOrg = 152400.3048006096, .yOrg = 0}, // 136 Wyoming West Central
    {.method = TM, .ellipsoid = Clarke1866, .Lon0 = "-110d5", .Lat0 = "40d40", .K0 = 0.9999411764705882, .xOrg = 152400.3048006096, .yOrg = 0}, // 137 Wyoming West
    {.method = HOM, .ellipsoid = Clarke1866, .Lat0 = "55d40", .Lon1 = "78", .Lat1 = "44", .K0 = 0.9999, .xOrg = -3950000, .yOrg = -5000000, .bRotate = true, .bUOffset = true}, // 138 Great Lakes Survey 1
    {.method = HOM, .ellipsoid = Clarke1866, .Lat0 = "350d37", .Lon1 = "82d30", .Lat1 = "43", .K0 = 0.9999, .xOrg = 1200000, .yOrg = -3500000, .bRotate = true, .bUOffset = true}, // 139 Great Lakes Survey 2
    {.method = HOM, .ellipsoid = Clarke1866, .Lat0 = "15", .Lon1 = "87", .Lat1 = "44", .K0 = 0.9999, .xOrg = -1000000, .yOrg = -4300000, .bRotate = true, .bUOffset = true}, // 140 Great Lakes Survey 3
    {.method = HOM, .ellipsoid = Clarke1866, .Lat0 = "285d41", .Lon1 = "88d50", .Lat1 = "47d12", .K0 = 0.9999, .xOrg = 9000000, .yOrg = -1600000, .bRotate = true, .bUOffset = true}, // 141 Great Lakes Survey 4
}};
// clang-format on

} // namespace ZrProj
