// Deprecated systems and what replaces them.
//
// Made by src/systems/make_register.py from the EPSG Geodetic Parameter Dataset v10.076 of 2022-08-31, which
// is IOGP's, as proj-data carries it, under the terms of use at https://epsg.org/terms-of-use.html. Other makers' names
// are of ArcGIS Pro 3.0 of 2022-07-09 and of PROJ 9.1.1.
#pragma once

#include "systems/register/rows.h"

namespace ZrProj::systems::rows {

// clang-format off
inline constexpr ReplacementRow replacements[] = {
    {2036, 2953}, // NAD83(CSRS98) / New Brunswick Stereo
    {2037, 2960}, // NAD83(CSRS98) / UTM zone 19N
    {2038, 2961}, // NAD83(CSRS98) / UTM zone 20N
    {2063, 3461}, // Dabola 1981 / UTM zone 28N
    {2064, 3462}, // Dabola 1981 / UTM zone 29N
    {2085, 3795}, // NAD27 / Cuba Norte
    {2086, 3796}, // NAD27 / Cuba Sur
    {2091, 2395}, // South Yemen / Gauss Kruger zone 8
    {2092, 2396}, // South Yemen / Gauss Kruger zone 9
    {2139, 2944}, // NAD83(CSRS98) / SCoPQ zone 2
    {2140, 2945}, // NAD83(CSRS98) / MTM zone 3
    {2141, 2946}, // NAD83(CSRS98) / MTM zone 4
    {2142, 2947}, // NAD83(CSRS98) / MTM zone 5
    {2143, 2948}, // NAD83(CSRS98) / MTM zone 6
    {2144, 2949}, // NAD83(CSRS98) / MTM zone 7
    {2145, 2950}, // NAD83(CSRS98) / MTM zone 8
    {2146, 2951}, // NAD83(CSRS98) / MTM zone 9
    {2147, 2952}, // NAD83(CSRS98) / MTM zone 10
    {2148, 2962}, // NAD83(CSRS98) / UTM zone 21N
    {2149, 2959}, // NAD83(CSRS98) / UTM zone 18N
    {2150, 2958}, // NAD83(CSRS98) / UTM zone 17N
    {2151, 2957}, // NAD83(CSRS98) / UTM zone 13N
    {2152, 2956}, // NAD83(CSRS98) / UTM zone 12N
    {2153, 2955}, // NAD83(CSRS98) / UTM zone 11N
    {2155, 2194}, // American Samoa 1962 / American Samoa Lambert
    {2156, 2195}, // NAD83(HARN) / UTM zone 59S
    {2163, 9311}, // US National Atlas Equal Area
    {2166, 2397}, // Pulkovo 1942(83) / Gauss Kruger zone 3
    {2167, 2398}, // Pulkovo 1942(83) / Gauss Kruger zone 4
    {2168, 2399}, // Pulkovo 1942(83) / Gauss Kruger zone 5
    {2170, 3911}, // MGI / Slovenia Grid
    {2171, 3120}, // Pulkovo 1942(58) / Poland zone I
    {2191, 2942}, // Madeira 1936 / UTM zone 28N
    {2192, 2154}, // ED50 / France EuroLambert
    {2194, 3102}, // American Samoa 1962 / American Samoa Lambert
    {2199, 2462}, // Albanian 1987 / Gauss Kruger zone 4
    {2214, 3119}, // Douala 1948 / AOF west
    {2244, 2965}, // NAD83 / Indiana East (ftUS)
    {2245, 2966}, // NAD83 / Indiana West (ftUS)
    {2291, 2292}, // NAD83(CSRS98) / Prince Edward Isl. Stereographic (NAD83)
    {2292, 2954}, // NAD83(CSRS98) / Prince Edward Isl. Stereographic (NAD83)
    {2400, 3021}, // RT90 2.5 gon W
    {2550, 2933}, // Samboja / UTM zone 50S
    {2577, 3389}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 60
    {2600, 3346}, // Lietuvos Koordinoei Sistema 1994
    {2694, 3390}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 60
    {2889, 2967}, // NAD83(HARN) / Indiana East (ftUS)
    {2890, 2968}, // NAD83(HARN) / Indiana West (ftUS)
    {2934, 3000}, // Segara (Jakarta) / NEIEZ
    {2979, 3336}, // K0 1949 / UTM zone 42S
    {2982, 3060}, // IGN72 Grand Terre / UTM zone 58S
    {2983, 3164}, // ST87 Ouvea / UTM zone 58S
    {2984, 3163}, // RGNC 1991 / Lambert New Caledonia
    {2989, 4559}, // RRAF 1991 / UTM zone 20N
    {2990, 3727}, // Reunion 1947 / TM Reunion
    {3073, 3463}, // NAD83 / Maine CS2000 Central
    {3076, 3464}, // NAD83(HARN) / Maine CS2000 Central
    {3103, 3343}, // Mauritania 1999 / UTM zone 28N
    {3104, 3344}, // Mauritania 1999 / UTM zone 29N
    {3105, 3345}, // Mauritania 1999 / UTM zone 30N
    {3143, 3460}, // Fiji 1986 / Fiji Map Grid
    {3314, 3985}, // Katanga 1955 / Katanga Lambert
    {3315, 3989}, // Katanga 1955 / Katanga TM
    {3349, 3832}, // WGS 84 / PDC Mercator
    {3356, 6128}, // Grand Cayman 1959 / UTM zone 17N
    {3357, 6129}, // Little Cayman 1961 / UTM zone 17N
    {3359, 3404}, // NAD83(HARN) / North Carolina (ftUS)
    {3366, 3407}, // Hong Kong 1963 Grid System
    {3408, 6931}, // NSIDC EASE-Grid North
    {3409, 6932}, // NSIDC EASE-Grid South
    {3410, 6933}, // NSIDC EASE-Grid Global
    {3411, 3413}, // NSIDC Sea Ice Polar Stereographic North
    {3412, 3976}, // NSIDC Sea Ice Polar Stereographic South
    {3454, 4457}, // NAD83 / South Dakota North (ftUS)
    {3752, 3994}, // WGS 84 / Mercator 41
    {3774, 3800}, // NAD27 / Alberta 3TM ref merid 120 W
    {3778, 3801}, // NAD83 / Alberta 3TM ref merid 120 W
    {3782, 3802}, // NAD83(CSRS) / Alberta 3TM ref merid 120 W
    {3785, 3857}, // Popular Visualisation CRS / Mercator
    {3786, 4088}, // World Equidistant Cylindrical (Sphere)
    {3787, 3912}, // MGI / Slovene National Grid
    {3842, 4417}, // Pulkovo 1942(83) / 3-degree Gauss-Kruger zone 7
    {3843, 4434}, // Pulkovo 1942(83) / 3-degree Gauss-Kruger zone 8
    {3907, 8677}, // MGI 1901 / Balkans zone 5
    {3908, 8678}, // MGI 1901 / Balkans zone 6
    {3909, 6316}, // MGI 1901 / Balkans zone 7
    {3910, 8679}, // MGI 1901 / Balkans zone 8
    {3911, 8686}, // MGI 1901 / Slovenia Grid
    {3973, 6931}, // WGS 84 / NSIDC EASE-Grid North
    {3974, 6932}, // WGS 84 / NSIDC EASE-Grid South
    {3975, 6933}, // WGS 84 / NSIDC EASE-Grid Global
    {3985, 4415}, // Katanga 1955 / Katanga Lambert
    {4035, 4047}, // Unknown datum based upon the Authalic Sphere
    {4088, 4087}, // World Equidistant Cylindrical (Sphere)
    {4125, 4613}, // Samboja
    {4126, 4669}, // LKS94 (ETRS89)
    {4140, 4617}, // NAD83(CSRS98)
    {4172, 4190}, // POSGAR
    {4185, 4615}, // Madeira 1936
    {4226, 4142}, // Cote d'Ivoire
    {4228, 4192}, // Douala
    {4233, 4684}, // Gandajika 1970
    {4234, 4197}, // Garoua
    {4235, 4623}, // Guyane Francaise
    {4260, 4193}, // Manoca
    {4264, 4704}, // Mhast
    {4268, 4267}, // NAD27 Michigan
    {4280, 4211}, // Padang
    {4287, 4194}, // Qornoq
    {4291, 4618}, // SAD69
    {4294, 4613}, // Segora
    {4296, 4201}, // Sudan
    {4317, 4179}, // Dealul Piscului 1970
    {4474, 5879}, // Cadastre 1997 / UTM zone 38S
    {4631, 4698}, // K0 1949
    {4634, 4662}, // IGN72 Grand Terre
    {4635, 4750}, // ST87 Ouvea
    {4640, 4558}, // RRAF 1991
    {4645, 4749}, // RGNC 1991
    {4681, 4700}, // Mauritania 1999
    {4685, 4696}, // Gandajika
    {4731, 4752}, // Viti Levu 1916
    {4808, 4813}, // Padang (Jakarta)
    {4819, 4307}, // Nord Sahara 1959 (Paris)
    {4855, 5105}, // ETRS89 / NTM zone 5
    {4856, 5106}, // ETRS89 / NTM zone 6
    {4857, 5107}, // ETRS89 / NTM zone 7
    {4858, 5108}, // ETRS89 / NTM zone 8
    {4859, 5109}, // ETRS89 / NTM zone 9
    {4860, 5110}, // ETRS89 / NTM zone 10
    {4861, 5111}, // ETRS89 / NTM zone 11
    {4862, 5112}, // ETRS89 / NTM zone 12
    {4863, 5113}, // ETRS89 / NTM zone 13
    {4864, 5114}, // ETRS89 / NTM zone 14
    {4865, 5115}, // ETRS89 / NTM zone 15
    {4866, 5116}, // ETRS89 / NTM zone 16
    {4867, 5117}, // ETRS89 / NTM zone 17
    {4868, 5118}, // ETRS89 / NTM zone 18
    {4869, 5119}, // ETRS89 / NTM zone 19
    {4870, 5120}, // ETRS89 / NTM zone 20
    {4871, 5121}, // ETRS89 / NTM zone 21
    {4872, 5122}, // ETRS89 / NTM zone 22
    {4873, 5123}, // ETRS89 / NTM zone 23
    {4874, 5124}, // ETRS89 / NTM zone 24
    {4875, 5125}, // ETRS89 / NTM zone 25
    {4876, 5126}, // ETRS89 / NTM zone 26
    {4877, 5127}, // ETRS89 / NTM zone 27
    {4878, 5128}, // ETRS89 / NTM zone 28
    {4879, 5129}, // ETRS89 / NTM zone 29
    {4880, 5130}, // ETRS89 / NTM zone 30
    {4902, 4901}, // NDG (Paris)
    {5388, 5839}, // Peru96 / UTM zone 17S
    {5458, 5559}, // Ocotepeque 1935 / Guatemala Norte
    {5466, 5589}, // Sibun Gorge 1922 / Colony Grid
    {5532, 5858}, // SAD69(96) / UTM zone 22S
    {5570, 6381}, // UCS-2000 / 3-degree Gauss-Kruger zone 7
    {5571, 6382}, // UCS-2000 / 3-degree Gauss-Kruger zone 8
    {5572, 6383}, // UCS-2000 / 3-degree Gauss-Kruger zone 9
    {5573, 6384}, // UCS-2000 / 3-degree Gauss-Kruger zone 10
    {5574, 6385}, // UCS-2000 / 3-degree Gauss-Kruger zone 11
    {5575, 6386}, // UCS-2000 / 3-degree Gauss-Kruger zone 12
    {5576, 6387}, // UCS-2000 / 3-degree Gauss-Kruger zone 13
    {5577, 6381}, // UCS-2000 / 3-degree Gauss-Kruger CM 21E
    {5578, 6382}, // UCS-2000 / 3-degree Gauss-Kruger CM 24E
    {5579, 6383}, // UCS-2000 / 3-degree Gauss-Kruger CM 27E
    {5580, 6384}, // UCS-2000 / 3-degree Gauss-Kruger CM 30E
    {5581, 6385}, // UCS-2000 / 3-degree Gauss-Kruger CM 33E
    {5582, 6386}, // UCS-2000 / 3-degree Gauss-Kruger CM 36E
    {5583, 6387}, // UCS-2000 / 3-degree Gauss-Kruger CM 39E
    {6141, 6391}, // Cayman Islands National Grid 2011
    {6200, 6966}, // NAD27 / Michigan North
    {6517, 6880}, // NAD83(2011) / Nebraska (ftUS)
    {6604, 6879}, // NAD83(2011) / Wisconsin Central
    {6956, 5896}, // VN-2000 / TM-3 zone 481
    {6957, 5897}, // VN-2000 / TM-3 zone 482
    {6958, 5898}, // VN-2000 / TM-3 zone 491
    {6959, 5899}, // VN-2000 / TM-3 Da Nang zone
    {6980, 7136}, // IGD05
    {6987, 7139}, // IGD05/12
    {6996, 7131}, // NAD83(2011) / San Francisco CS13
    {6997, 7132}, // NAD83(2011) / San Francisco CS13 (ftUS)
    {7082, 8456}, // RGTAAF07 / Terre Adelie Polar Stereographic
    {7088, 7133}, // RGTAAF07 (lon-lat)
    {7804, 9391}, // BGS2005 / UTM zone 35N
    {8449, 8860}, // NAD83(FBN)
    {20064, 2463}, // Pulkovo 1995 / Gauss-Kruger 4N
    {20065, 2464}, // Pulkovo 1995 / Gauss-Kruger 5N
    {20066, 2465}, // Pulkovo 1995 / Gauss-Kruger 6N
    {20067, 2466}, // Pulkovo 1995 / Gauss-Kruger 7N
    {20068, 2467}, // Pulkovo 1995 / Gauss-Kruger 8N
    {20069, 2468}, // Pulkovo 1995 / Gauss-Kruger 9N
    {20070, 2469}, // Pulkovo 1995 / Gauss-Kruger 10N
    {20071, 2470}, // Pulkovo 1995 / Gauss-Kruger 11N
    {20072, 2471}, // Pulkovo 1995 / Gauss-Kruger 12N
    {20073, 2472}, // Pulkovo 1995 / Gauss-Kruger 13N
    {20074, 2473}, // Pulkovo 1995 / Gauss-Kruger 14N
    {20075, 2474}, // Pulkovo 1995 / Gauss-Kruger 15N
    {20076, 2475}, // Pulkovo 1995 / Gauss-Kruger 16N
    {20077, 2476}, // Pulkovo 1995 / Gauss-Kruger 17N
    {20078, 2477}, // Pulkovo 1995 / Gauss-Kruger 18N
    {20079, 2478}, // Pulkovo 1995 / Gauss-Kruger 19N
    {20080, 2479}, // Pulkovo 1995 / Gauss-Kruger 20N
    {20081, 2480}, // Pulkovo 1995 / Gauss-Kruger 21N
    {20082, 2481}, // Pulkovo 1995 / Gauss-Kruger 22N
    {20083, 2482}, // Pulkovo 1995 / Gauss-Kruger 23N
    {20084, 2483}, // Pulkovo 1995 / Gauss-Kruger 24N
    {20085, 2484}, // Pulkovo 1995 / Gauss-Kruger 25N
    {20086, 2485}, // Pulkovo 1995 / Gauss-Kruger 26N
    {20087, 2486}, // Pulkovo 1995 / Gauss-Kruger 27N
    {20088, 2487}, // Pulkovo 1995 / Gauss-Kruger 28N
    {20089, 2488}, // Pulkovo 1995 / Gauss-Kruger 29N
    {20090, 2489}, // Pulkovo 1995 / Gauss-Kruger 30N
    {20091, 2490}, // Pulkovo 1995 / Gauss-Kruger 31N
    {20092, 2491}, // Pulkovo 1995 / Gauss-Kruger 32N
    {21100, 3001}, // Batavia (Jakarta) / NEIEZ
    {21473, 21453}, // Beijing 1954 / Gauss-Kruger 13N
    {21474, 21454}, // Beijing 1954 / Gauss-Kruger 14N
    {21475, 21455}, // Beijing 1954 / Gauss-Kruger 15N
    {21476, 21456}, // Beijing 1954 / Gauss-Kruger 16N
    {21477, 21457}, // Beijing 1954 / Gauss-Kruger 17N
    {21478, 21458}, // Beijing 1954 / Gauss-Kruger 18N
    {21479, 21459}, // Beijing 1954 / Gauss-Kruger 19N
    {21480, 21460}, // Beijing 1954 / Gauss-Kruger 20N
    {21481, 21461}, // Beijing 1954 / Gauss-Kruger 21N
    {21482, 21462}, // Beijing 1954 / Gauss-Kruger 22N
    {21483, 21463}, // Beijing 1954 / Gauss-Kruger 23N
    {21891, 21896}, // Bogota 1975 / Colombia West zone
    {21892, 21897}, // Bogota 1975 / Colombia Bogota zone
    {21893, 21898}, // Bogota 1975 / Colombia East Central zone
    {21894, 21899}, // Bogota 1975 / Colombia East
    {22832, 2214}, // Douala / UTM zone 32N
    {23433, 2312}, // Garoua / UTM zone 33N
    {24571, 3167}, // Kertau / R.S.O. Malaya (ch)
    {25700, 3002}, // Makassar (Jakarta) / NEIEZ
    {26193, 26194}, // Merchich / Sahara
    {26432, 3353}, // Mhast / UTM zone 32S
    {26591, 3003}, // Monte Mario (Rome) / Italy zone 1
    {26592, 3004}, // Monte Mario (Rome) / Italy zone 2
    {26747, 26799}, // NAD27 / California zone VII
    {26801, 5623}, // NAD Michigan / Michigan East
    {26802, 5624}, // NAD Michigan / Michigan Old Central
    {26803, 5625}, // NAD Michigan / Michigan West
    {26811, 6200}, // NAD Michigan / Michigan North
    {26812, 6201}, // NAD Michigan / Michigan Central
    {26813, 6202}, // NAD Michigan / Michigan South
    {26814, 26847}, // NAD83 / Maine East (ftUS)
    {26815, 26848}, // NAD83 / Maine West (ftUS)
    {26819, 26849}, // NAD83 / Minnesota North (ftUS)
    {26820, 26850}, // NAD83 / Minnesota Central (ftUS)
    {26821, 26851}, // NAD83 / Minnesota South (ftUS)
    {26822, 26852}, // NAD83 / Nebraska (ftUS)
    {26823, 26853}, // NAD83 / West Virginia North (ftUS)
    {26824, 26854}, // NAD83 / West Virginia South (ftUS)
    {26825, 26855}, // NAD83(HARN) / Maine East (ftUS)
    {26826, 26856}, // NAD83(HARN) / Maine West (ftUS)
    {26830, 26857}, // NAD83(HARN) / Minnesota North (ftUS)
    {26831, 26858}, // NAD83(HARN) / Minnesota Central (ftUS)
    {26832, 26859}, // NAD83(HARN) / Minnesota South (ftUS)
    {26833, 26860}, // NAD83(HARN) / Nebraska (ftUS)
    {26834, 26861}, // NAD83(HARN) / West Virginia North (ftUS)
    {26835, 26862}, // NAD83(HARN) / West Virginia South (ftUS)
    {26836, 26863}, // NAD83(NSRS2007) / Maine East (ftUS)
    {26837, 26864}, // NAD83(NSRS2007) / Maine West (ftUS)
    {26841, 26865}, // NAD83(NSRS2007) / Minnesota North (ftUS)
    {26842, 26866}, // NAD83(NSRS2007) / Minnesota Central (ftUS)
    {26843, 26867}, // NAD83(NSRS2007) / Minnesota South (ftUS)
    {26844, 26868}, // NAD83(NSRS2007) / Nebraska (ftUS)
    {26845, 26869}, // NAD83(NSRS2007) / West Virginia North (ftUS)
    {26846, 26870}, // NAD83(NSRS2007) / West Virginia South (ftUS)
    {26979, 2205}, // NAD83 / Kentucky North
    {27037, 7005}, // Nahrwan 1967 / UTM zone 37N
    {27038, 7006}, // Nahrwan 1967 / UTM zone 38N
    {27492, 27493}, // Datum 73 / Modified Portuguese Grid
    {27581, 27571}, // NTF (Paris) / France I
    {27582, 27572}, // NTF (Paris) / France II
    {27583, 27573}, // NTF (Paris) / France III
    {27584, 27574}, // NTF (Paris) / France IV
    {27591, 27561}, // NTF (Paris) / Nord France
    {27592, 27562}, // NTF (Paris) / Centre France
    {27593, 27563}, // NTF (Paris) / Sud France
    {27594, 27564}, // NTF (Paris) / Corse
    {28402, 3833}, // Pulkovo 1942 / Gauss-Kruger zone 2
    {28403, 3333}, // Pulkovo 1942 / Gauss-Kruger zone 3
    {28462, 2492}, // Pulkovo 1942 / Gauss-Kruger 2N
    {28463, 2493}, // Pulkovo 1942 / Gauss-Kruger 3N
    {28464, 2494}, // Pulkovo 1942 / Gauss-Kruger 4N
    {28465, 2495}, // Pulkovo 1942 / Gauss-Kruger 5N
    {28466, 2496}, // Pulkovo 1942 / Gauss-Kruger 6N
    {28467, 2497}, // Pulkovo 1942 / Gauss-Kruger 7N
    {28468, 2498}, // Pulkovo 1942 / Gauss-Kruger 8N
    {28469, 2499}, // Pulkovo 1942 / Gauss-Kruger 9N
    {28470, 2500}, // Pulkovo 1942 / Gauss-Kruger 10N
    {28471, 2501}, // Pulkovo 1942 / Gauss-Kruger 11N
    {28472, 2502}, // Pulkovo 1942 / Gauss-Kruger 12N
    {28473, 2503}, // Pulkovo 1942 / Gauss-Kruger 13N
    {28474, 2504}, // Pulkovo 1942 / Gauss-Kruger 14N
    {28475, 2505}, // Pulkovo 1942 / Gauss-Kruger 15N
    {28476, 2506}, // Pulkovo 1942 / Gauss-Kruger 16N
    {28477, 2507}, // Pulkovo 1942 / Gauss-Kruger 17N
    {28478, 2508}, // Pulkovo 1942 / Gauss-Kruger 18N
    {28479, 2509}, // Pulkovo 1942 / Gauss-Kruger 19N
    {28480, 2510}, // Pulkovo 1942 / Gauss-Kruger 20N
    {28481, 2511}, // Pulkovo 1942 / Gauss-Kruger 21N
    {28482, 2512}, // Pulkovo 1942 / Gauss-Kruger 22N
    {28483, 2513}, // Pulkovo 1942 / Gauss-Kruger 23N
    {28484, 2514}, // Pulkovo 1942 / Gauss-Kruger 24N
    {28485, 2515}, // Pulkovo 1942 / Gauss-Kruger 25N
    {28486, 2516}, // Pulkovo 1942 / Gauss-Kruger 26N
    {28487, 2517}, // Pulkovo 1942 / Gauss-Kruger 27N
    {28488, 2518}, // Pulkovo 1942 / Gauss-Kruger 28N
    {28489, 2519}, // Pulkovo 1942 / Gauss-Kruger 29N
    {28490, 2520}, // Pulkovo 1942 / Gauss-Kruger 30N
    {28491, 2521}, // Pulkovo 1942 / Gauss-Kruger 31N
    {28492, 2522}, // Pulkovo 1942 / Gauss-Kruger 32N
    {29100, 29101}, // SAD69 / Brazil Polyconic
    {29118, 29168}, // SAD69 / UTM zone 18N
    {29119, 29169}, // SAD69 / UTM zone 19N
    {29120, 29170}, // SAD69 / UTM zone 20N
    {29121, 29171}, // SAD69 / UTM zone 21N
    {29122, 29172}, // SAD69 / UTM zone 22N
    {29177, 29187}, // SAD69 / UTM zone 17S
    {29178, 29188}, // SAD69 / UTM zone 18S
    {29179, 29189}, // SAD69 / UTM zone 19S
    {29180, 29190}, // SAD69 / UTM zone 20S
    {29181, 29191}, // SAD69 / UTM zone 21S
    {29182, 29192}, // SAD69 / UTM zone 22S
    {29183, 29193}, // SAD69 / UTM zone 23S
    {29184, 29194}, // SAD69 / UTM zone 24S
    {29185, 29195}, // SAD69 / UTM zone 25S
    {29635, 20135}, // Sudan / UTM zone 35N
    {29636, 20136}, // Sudan / UTM zone 36N
    {29700, 29701}, // Tananarive (Paris) / Laborde Grid
    {29900, 29902}, // TM65 / Irish National Grid
    {30800, 3027}, // RT38 2.5 gon W
    {31265, 31275}, // MGI / 3-degree Gauss zone 5
    {31266, 31276}, // MGI / 3-degree Gauss zone 6
    {31267, 31277}, // MGI / 3-degree Gauss zone 7
    {31268, 31278}, // MGI / 3-degree Gauss zone 8
    {31275, 3907}, // MGI / Balkans zone 5
    {31276, 3908}, // MGI / Balkans zone 6
    {31277, 3909}, // MGI / Balkans zone 7
    {31278, 31279}, // MGI / Balkans zone 8
    {31279, 3910}, // MGI / Balkans zone 8
    {31291, 31281}, // MGI (Ferro) / Austria West Zone
    {31292, 31282}, // MGI (Ferro) / Austria Central Zone
    {31293, 31283}, // MGI (Ferro) / Austria East Zone
    {31294, 31284}, // MGI / M28
    {31295, 31285}, // MGI / M31
    {31296, 31286}, // MGI / M34
    {31297, 31287}, // MGI / Austria Lambert
    {31462, 31466}, // DHDN / 3-degree Gauss zone 2
    {31463, 31467}, // DHDN / 3-degree Gauss zone 3
    {31464, 31468}, // DHDN / 3-degree Gauss zone 4
    {31465, 31469}, // DHDN / 3-degree Gauss zone 5
    {31700, 3844}, // Dealul Piscului 1970/ Stereo 70
    {31900, 31901}, // KUDAMS / KTM
    {32018, 4456}, // NAD27 / New York Long Island
    {32029, 4455}, // NAD27 / Pennsylvania South
    {32036, 2204}, // NAD27 / Tennessee
    {32061, 5458}, // NAD27 / Guatemala Norte
    {32062, 5459}, // NAD27 / Guatemala Sur
    {32074, 32064}, // NAD27 / BLM 14N (feet)
    {32075, 32065}, // NAD27 / BLM 15N (feet)
    {32076, 32066}, // NAD27 / BLM 16N (feet)
    {32077, 32067}, // NAD27 / BLM 17N (feet)
    {32662, 32663}, // WGS 84 / Plate Carree
    {32663, 4087}, // WGS 84 / World Equidistant Cylindrical
};
// clang-format on

} // namespace ZrProj::systems::rows
