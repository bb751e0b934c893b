// Geographic systems of two dimensions and projected systems.
//
// Made by src/systems/make_register.py from the EPSG Geodetic Parameter Dataset v10.076 of 2022-08-31, which
// is IOGP's, as proj-data carries it, under the terms of use at https://epsg.org/terms-of-use.html. Other makers' names
// are of ArcGIS Pro 3.0 of 2022-07-09 and of PROJ 9.1.1.
#pragma once

#include "systems/register/rows.h"

namespace ZrProj::systems::rows {

// clang-format off
inline constexpr SystemRow systems[] = {
    {2000, 4600, 7637, 2331, 1715, 4, false}, // Anguilla 1957 / British West Indies Grid
    {2001, 4601, 10663, 2331, 144, 4, false}, // Antigua 1943 / British West Indies Grid
    {2002, 4602, 40810, 2331, 1732, 4, false}, // Dominica 1945 / British West Indies Grid
    {2003, 4603, 65631, 2331, 405, 4, false}, // Grenada 1953 / British West Indies Grid
    {2004, 4604, 96691, 2331, 1762, 4, false}, // Montserrat 1958 / British West Indies Grid
    {2005, 4605, 189780, 2331, 1774, 4, false}, // St. Kitts 1955 / British West Indies Grid
    {2006, 4606, 189820, 2331, 1775, 4, false}, // St. Lucia 1955 / British West Indies Grid
    {2007, 4607, 189929, 2331, 1777, 4, false}, // St. Vincent 45 / British West Indies Grid
    {2008, 4609, 100300, 1922, 276, 4, true}, // NAD27(CGQ77) / SCoPQ zone 2
    {2009, 4609, 100316, 1925, 302, 4, false}, // NAD27(CGQ77) / SCoPQ zone 3
    {2010, 4609, 100332, 1926, 278, 4, false}, // NAD27(CGQ77) / SCoPQ zone 4
    {2011, 4609, 100348, 1927, 279, 4, false}, // NAD27(CGQ77) / SCoPQ zone 5
    {2012, 4609, 100364, 1928, 280, 4, false}, // NAD27(CGQ77) / SCoPQ zone 6
    {2013, 4609, 100380, 1929, 281, 4, false}, // NAD27(CGQ77) / SCoPQ zone 7
    {2014, 4609, 100396, 1930, 282, 4, false}, // NAD27(CGQ77) / SCoPQ zone 8
    {2015, 4609, 100412, 1931, 283, 4, false}, // NAD27(CGQ77) / SCoPQ zone 9
    {2016, 4609, 100283, 1932, 284, 4, false}, // NAD27(CGQ77) / SCoPQ zone 10
    {2017, 4608, 100162, 1930, 285, 4, false}, // NAD27(76) / MTM zone 8
    {2018, 4608, 100173, 1931, 286, 4, false}, // NAD27(76) / MTM zone 9
    {2019, 4608, 100066, 1932, 287, 4, false}, // NAD27(76) / MTM zone 10
    {2020, 4608, 100078, 1933, 288, 4, false}, // NAD27(76) / MTM zone 11
    {2021, 4608, 100090, 1934, 289, 4, false}, // NAD27(76) / MTM zone 12
    {2022, 4608, 100102, 1935, 290, 4, false}, // NAD27(76) / MTM zone 13
    {2023, 4608, 100114, 1936, 291, 4, false}, // NAD27(76) / MTM zone 14
    {2024, 4608, 100126, 1937, 292, 4, false}, // NAD27(76) / MTM zone 15
    {2025, 4608, 100138, 1938, 293, 4, false}, // NAD27(76) / MTM zone 16
    {2026, 4608, 100150, 1939, 294, 4, false}, // NAD27(76) / MTM zone 17
    {2027, 4608, 100184, 1324, 295, 4, false}, // NAD27(76) / UTM zone 15N
    {2028, 4608, 100197, 1325, 296, 4, false}, // NAD27(76) / UTM zone 16N
    {2029, 4608, 100210, 1326, 297, 4, false}, // NAD27(76) / UTM zone 17N
    {2030, 4608, 100223, 1327, 298, 4, false}, // NAD27(76) / UTM zone 18N
    {2031, 4609, 100428, 1326, 284, 4, false}, // NAD27(CGQ77) / UTM zone 17N
    {2032, 4609, 100444, 1327, 299, 4, false}, // NAD27(CGQ77) / UTM zone 18N
    {2033, 4609, 100460, 1328, 300, 4, false}, // NAD27(CGQ77) / UTM zone 19N
    {2034, 4609, 100476, 1329, 301, 4, false}, // NAD27(CGQ77) / UTM zone 20N
    {2035, 4609, 100491, 1330, 302, 4, false}, // NAD27(CGQ77) / UTM zone 21N
    {2036, 4140, 119128, 2335, 303, 5, true}, // NAD83(CSRS98) / New Brunswick Stereo
    {2037, 4140, 119261, 1328, 304, 4, true}, // NAD83(CSRS98) / UTM zone 19N
    {2038, 4140, 119274, 1329, 305, 4, true}, // NAD83(CSRS98) / UTM zone 20N
    {2039, 4141, 75373, 2144, 1288, 4, false}, // Israel 1993 / Israeli TM Grid
    {2040, 4142, 87226, 1339, 306, 4, false}, // Locodjo 1965 / UTM zone 30N
    {2041, 4143, 4640, 1339, 306, 4, false}, // Abidjan 1987 / UTM zone 30N
    {2042, 4142, 87208, 1338, 307, 4, false}, // Locodjo 1965 / UTM zone 29N
    {2043, 4143, 4624, 1338, 307, 4, false}, // Abidjan 1987 / UTM zone 29N
    {2044, 4147, 66913, 1489, 308, 5, false}, // Hanoi 1972 / Gauss-Kruger zone 18
    {2045, 4147, 66935, 1490, 309, 5, false}, // Hanoi 1972 / Gauss-Kruger zone 19
    {2046, 4148, 67069, 1904, 310, 0, false}, // Hartebeesthoek94 / Lo15
    {2047, 4148, 67089, 1905, 311, 0, false}, // Hartebeesthoek94 / Lo17
    {2048, 4148, 67109, 1906, 312, 0, false}, // Hartebeesthoek94 / Lo19
    {2049, 4148, 67129, 1907, 313, 0, false}, // Hartebeesthoek94 / Lo21
    {2050, 4148, 67149, 1908, 314, 0, false}, // Hartebeesthoek94 / Lo23
    {2051, 4148, 67169, 1909, 315, 0, false}, // Hartebeesthoek94 / Lo25
    {2052, 4148, 67189, 1910, 316, 0, false}, // Hartebeesthoek94 / Lo27
    {2053, 4148, 67209, 1911, 317, 0, false}, // Hartebeesthoek94 / Lo29
    {2054, 4148, 67229, 1912, 318, 0, false}, // Hartebeesthoek94 / Lo31
    {2055, 4148, 67249, 1913, 319, 0, false}, // Hartebeesthoek94 / Lo33
    {2056, 4150, 27973, 2339, 155, 4, false}, // CH1903+ / LV95
    {2057, 4153, 171929, 2340, 200, 4, false}, // Rassadiran / Nakhl e Taqi
    {2058, 4154, 41812, 1347, 320, 4, false}, // ED50(ED77) / UTM zone 38N
    {2059, 4154, 41829, 1348, 321, 4, false}, // ED50(ED77) / UTM zone 39N
    {2060, 4154, 41846, 1349, 322, 4, false}, // ED50(ED77) / UTM zone 40N
    {2061, 4154, 41863, 1350, 323, 4, false}, // ED50(ED77) / UTM zone 41N
    {2062, 4903, 91115, 2311, 1194, 4, false}, // Madrid 1870 (Madrid) / Spain LCC
    {2063, 4315, 39551, 1337, 324, 4, true}, // Dabola 1981 / UTM zone 28N
    {2064, 4315, 39567, 1338, 325, 4, true}, // Dabola 1981 / UTM zone 29N
    {2065, 4818, 174999, 2341, 171, 1, false}, // S-JTSK (Ferro) / Krovak
    {2066, 4157, 96907, 2314, 185, 14, false}, // Mount Dillon / Tobago Grid
    {2067, 4158, 133096, 1329, 1661, 4, false}, // Naparima 1955 / UTM zone 20N
    {2068, 4159, 42056, 2164, 326, 4, false}, // ELD79 / Libya zone 5
    {2069, 4159, 42070, 2165, 327, 4, false}, // ELD79 / Libya zone 6
    {2070, 4159, 42084, 2166, 328, 4, false}, // ELD79 / Libya zone 7
    {2071, 4159, 42098, 2167, 329, 4, false}, // ELD79 / Libya zone 8
    {2072, 4159, 42112, 2168, 330, 4, false}, // ELD79 / Libya zone 9
    {2073, 4159, 41996, 2169, 331, 4, false}, // ELD79 / Libya zone 10
    {2074, 4159, 42011, 2170, 332, 4, false}, // ELD79 / Libya zone 11
    {2075, 4159, 42026, 2171, 333, 4, false}, // ELD79 / Libya zone 12
    {2076, 4159, 42041, 2172, 334, 4, false}, // ELD79 / Libya zone 13
    {2077, 4159, 42140, 1341, 335, 4, false}, // ELD79 / UTM zone 32N
    {2078, 4159, 42153, 1342, 336, 4, false}, // ELD79 / UTM zone 33N
    {2079, 4159, 42166, 1343, 337, 4, false}, // ELD79 / UTM zone 34N
    {2080, 4159, 42179, 1344, 334, 4, false}, // ELD79 / UTM zone 35N
    {2081, 4160, 33371, 2044, 339, 5, false}, // Chos Malal 1914 / Argentina 2
    {2082, 4161, 148342, 2044, 340, 5, false}, // Pampa del Castillo / Argentina 2
    {2083, 4254, 67848, 2044, 341, 5, false}, // Hito XVIII 1963 / Argentina 2
    {2084, 4254, 67868, 1417, 1282, 4, false}, // Hito XVIII 1963 / UTM zone 19S
    {2085, 4267, 98440, 2068, 342, 5, true}, // NAD27 / Cuba Norte
    {2086, 4267, 98451, 2069, 343, 5, true}, // NAD27 / Cuba Sur
    {2087, 4159, 42126, 1595, 338, 4, false}, // ELD79 / TM 12 NE
    {2088, 4223, 31754, 1594, 344, 4, false}, // Carthage / TM 11 NE
    {2089, 4163, 229816, 1347, 345, 4, false}, // Yemen NGN96 / UTM zone 38N
    {2090, 4163, 229833, 1348, 346, 4, false}, // Yemen NGN96 / UTM zone 39N
    {2091, 4164, 188646, 1479, 347, 5, true}, // South Yemen / Gauss Kruger zone 8
    {2092, 4164, 188664, 1480, 348, 5, true}, // South Yemen / Gauss Kruger zone 9
    {2093, 4147, 66896, 1600, 349, 5, false}, // Hanoi 1972 / GK 106 NE
    {2094, 4324, 211655, 1599, 350, 4, false}, // WGS 72BE / TM 106 NE
    {2095, 4165, 23659, 1337, 1745, 4, false}, // Bissau / UTM zone 28N
    {2096, 4162, 83004, 2173, 351, 5, false}, // Korean 1985 / East Belt
    {2097, 4162, 82969, 2174, 2131, 5, false}, // Korean 1985 / Central Belt
    {2098, 4162, 83172, 2175, 353, 5, false}, // Korean 1985 / West Belt
    {2099, 4286, 167116, 2342, 208, 4, false}, // Qatar 1948 / Qatar Grid
    {2100, 4121, 56019, 2320, 1742, 4, false}, // GGRS87 / Greek Grid
    {2101, 4249, 84795, 2176, 183, 4, false}, // Lake / Maracaibo Grid M1
    {2102, 4249, 84778, 2177, 183, 4, false}, // Lake / Maracaibo Grid
    {2103, 4249, 84815, 2178, 183, 4, false}, // Lake / Maracaibo Grid M3
    {2104, 4249, 84835, 2179, 354, 4, false}, // Lake / Maracaibo La Rosa Grid
    {2105, 4167, 131571, 1994, 2172, 5, false}, // NZGD2000 / Mount Eden 2000
    {2106, 4167, 131295, 1995, 2170, 5, false}, // NZGD2000 / Bay of Plenty 2000
    {2107, 4167, 131759, 1996, 2171, 5, false}, // NZGD2000 / Poverty Bay 2000
    {2108, 4167, 131460, 1997, 2164, 5, false}, // NZGD2000 / Hawkes Bay 2000
    {2109, 4167, 131797, 1998, 2168, 5, false}, // NZGD2000 / Taranaki 2000
    {2110, 4167, 131830, 1999, 2169, 5, false}, // NZGD2000 / Tuhirangi 2000
    {2111, 4167, 131920, 2000, 2167, 5, false}, // NZGD2000 / Wanganui 2000
    {2112, 4167, 131903, 2001, 2166, 5, false}, // NZGD2000 / Wairarapa 2000
    {2113, 4167, 131937, 2002, 2165, 5, false}, // NZGD2000 / Wellington 2000
    {2114, 4167, 131411, 2003, 2173, 5, false}, // NZGD2000 / Collingwood 2000
    {2115, 4167, 131661, 2004, 2175, 5, false}, // NZGD2000 / Nelson 2000
    {2116, 4167, 131517, 2005, 2174, 5, false}, // NZGD2000 / Karamea 2000
    {2117, 4167, 131330, 2006, 2177, 5, false}, // NZGD2000 / Buller 2000
    {2118, 4167, 131447, 2007, 2178, 5, false}, // NZGD2000 / Grey 2000
    {2119, 4167, 131236, 2008, 2179, 5, false}, // NZGD2000 / Amuri 2000
    {2120, 4167, 131552, 2009, 2176, 5, false}, // NZGD2000 / Marlborough 2000
    {2121, 4167, 131479, 2010, 2180, 5, false}, // NZGD2000 / Hokitika 2000
    {2122, 4167, 131744, 2011, 2182, 5, false}, // NZGD2000 / Okarito 2000
    {2123, 4167, 131496, 2012, 2185, 5, false}, // NZGD2000 / Jacksons Bay 2000
    {2124, 4167, 131609, 2013, 2181, 5, false}, // NZGD2000 / Mount Pleasant 2000
    {2125, 4167, 131431, 2014, 2183, 5, false}, // NZGD2000 / Gawler 2000
    {2126, 4167, 131814, 2015, 2184, 5, false}, // NZGD2000 / Timaru 2000
    {2127, 4167, 131532, 2016, 2186, 5, false}, // NZGD2000 / Lindis Peak 2000
    {2128, 4167, 131589, 2017, 2188, 5, false}, // NZGD2000 / Mount Nicholas 2000
    {2129, 4167, 131630, 2018, 2190, 5, false}, // NZGD2000 / Mount York 2000
    {2130, 4167, 131721, 2019, 2187, 5, false}, // NZGD2000 / Observation Point 2000
    {2131, 4167, 131704, 2020, 2189, 5, false}, // NZGD2000 / North Taieri 2000
    {2132, 4167, 131314, 2021, 2191, 5, false}, // NZGD2000 / Bluff 2000
    {2133, 4167, 131861, 1456, 356, 4, false}, // NZGD2000 / UTM zone 58S
    {2134, 4167, 131875, 1457, 357, 4, false}, // NZGD2000 / UTM zone 59S
    {2135, 4167, 131889, 1458, 358, 4, false}, // NZGD2000 / UTM zone 60S
    {2136, 4168, 4724, 2348, 1741, 20, false}, // Accra / Ghana National Grid
    {2137, 4168, 4741, 1665, 359, 4, false}, // Accra / TM 1 NW
    {2138, 4609, 100261, 2333, 228, 4, false}, // NAD27(CGQ77) / Quebec Lambert
    {2139, 4140, 119183, 1922, 276, 4, true}, // NAD83(CSRS98) / SCoPQ zone 2
    {2140, 4140, 119051, 1925, 277, 4, true}, // NAD83(CSRS98) / MTM zone 3
    {2141, 4140, 119062, 1926, 278, 4, true}, // NAD83(CSRS98) / MTM zone 4
    {2142, 4140, 119073, 1927, 279, 4, true}, // NAD83(CSRS98) / MTM zone 5
    {2143, 4140, 119084, 1928, 280, 4, true}, // NAD83(CSRS98) / MTM zone 6
    {2144, 4140, 119095, 1929, 281, 4, true}, // NAD83(CSRS98) / MTM zone 7
    {2145, 4140, 119106, 1930, 282, 4, true}, // NAD83(CSRS98) / MTM zone 8
    {2146, 4140, 119117, 1931, 283, 4, true}, // NAD83(CSRS98) / MTM zone 9
    {2147, 4140, 119039, 1932, 284, 4, true}, // NAD83(CSRS98) / MTM zone 10
    {2148, 4140, 119286, 1330, 302, 4, true}, // NAD83(CSRS98) / UTM zone 21N
    {2149, 4140, 119248, 1327, 299, 4, true}, // NAD83(CSRS98) / UTM zone 18N
    {2150, 4140, 119235, 1326, 284, 4, true}, // NAD83(CSRS98) / UTM zone 17N
    {2151, 4140, 119222, 1322, 360, 4, true}, // NAD83(CSRS98) / UTM zone 13N
    {2152, 4140, 119209, 1321, 361, 4, true}, // NAD83(CSRS98) / UTM zone 12N
    {2153, 4140, 119196, 1320, 362, 4, true}, // NAD83(CSRS98) / UTM zone 11N
    {2154, 4171, 168682, 2080, 47, 4, false}, // RGF93 v1 / Lambert-93
    {2155, 4169, 6936, 1204, 3, 8, true}, // American Samoa 1962 / American Samoa Lambert
    {2156, 4152, 121808, 1457, 3, 4, true}, // NAD83(HARN) / UTM zone 59S
    {2157, 4173, 70414, 2351, 170, 4, false}, // IRENET95 / Irish Transverse Mercator
    {2158, 4173, 70441, 1338, 170, 4, false}, // IRENET95 / UTM zone 29N
    {2159, 4174, 185410, 2352, 204, 20, false}, // Sierra Leone 1924 / New Colony Grid
    {2160, 4174, 185432, 2353, 204, 20, false}, // Sierra Leone 1924 / New War Office Grid
    {2161, 4175, 185472, 1337, 363, 4, false}, // Sierra Leone 1968 / UTM zone 28N
    {2162, 4175, 185492, 1338, 364, 4, false}, // Sierra Leone 1968 / UTM zone 29N
    {2163, 4052, 99575, 22, 130, 4, true}, // US National Atlas Equal Area
    {2164, 4142, 87190, 1666, 1137, 4, false}, // Locodjo 1965 / TM 5 NW
    {2165, 4143, 4608, 1666, 1137, 4, false}, // Abidjan 1987 / TM 5 NW
    {2166, 4178, 160073, 1506, 366, 5, true}, // Pulkovo 1942(83) / Gauss Kruger zone 3
    {2167, 4178, 160099, 1507, 367, 5, true}, // Pulkovo 1942(83) / Gauss Kruger zone 4
    {2168, 4178, 160125, 1508, 366, 5, true}, // Pulkovo 1942(83) / Gauss Kruger zone 5
    {2169, 4181, 84436, 2354, 77, 5, false}, // LUREF / Luxembourg TM
    {2170, 4312, 89597, 2355, 115, 5, true}, // MGI / Slovenia Grid
    {2171, 4179, 159621, 2185, 369, 5, true}, // Pulkovo 1942(58) / Poland zone I
    {2172, 4179, 159641, 2186, 370, 5, false}, // Pulkovo 1942(58) / Poland zone II
    {2173, 4179, 159662, 2187, 371, 5, false}, // Pulkovo 1942(58) / Poland zone III
    {2174, 4179, 159684, 2188, 372, 5, false}, // Pulkovo 1942(58) / Poland zone IV
    {2175, 4179, 159705, 2189, 373, 5, false}, // Pulkovo 1942(58) / Poland zone V
    {2176, 9702, 44119, 2192, 374, 5, false}, // ETRF2000-PL / CS2000/15
    {2177, 9702, 44136, 2193, 375, 5, false}, // ETRF2000-PL / CS2000/18
    {2178, 9702, 44153, 2194, 376, 5, false}, // ETRF2000-PL / CS2000/21
    {2179, 9702, 44170, 2195, 377, 5, false}, // ETRF2000-PL / CS2000/24
    {2180, 9702, 44187, 2191, 106, 5, false}, // ETRF2000-PL / CS92
    {2188, 4182, 18136, 1334, 206, 4, false}, // Azores Occidental 1939 / UTM zone 25N
    {2189, 4183, 18047, 1335, 167, 4, false}, // Azores Central 1948 / UTM zone 26N
    {2190, 4184, 18192, 1335, 207, 4, false}, // Azores Oriental 1940 / UTM zone 26N
    {2191, 4185, 90990, 1337, 178, 4, true}, // Madeira 1936 / UTM zone 28N
    {2192, 4230, 41510, 2081, 188, 4, true}, // ED50 / France EuroLambert
    {2193, 4167, 131675, 2358, 2318, 5, false}, // NZGD2000 / New Zealand Transverse Mercator 2000
    {2194, 4169, 6936, 1205, 3, 8, true}, // American Samoa 1962 / American Samoa Lambert
    {2195, 4152, 121794, 1400, 1635, 4, false}, // NAD83(HARN) / UTM zone 2S
    {2196, 4258, 45351, 2206, 1253, 4, false}, // ETRS89 / Kp2000 Jutland
    {2197, 4258, 45367, 2207, 1254, 4, false}, // ETRS89 / Kp2000 Zealand
    {2198, 4258, 45333, 2208, 1255, 4, false}, // ETRS89 / Kp2000 Bornholm
    {2199, 4191, 6298, 1475, 1, 5, true}, // Albanian 1987 / Gauss Kruger zone 4
    {2200, 4122, 4230, 2334, 303, 5, false}, // ATS77 / New Brunswick Stereographic (ATS77)
    {2201, 4189, 168314, 1327, 545, 4, false}, // REGVEN / UTM zone 18N
    {2202, 4189, 168328, 1328, 2232, 4, false}, // REGVEN / UTM zone 19N
    {2203, 4189, 168342, 1329, 2231, 4, false}, // REGVEN / UTM zone 20N
    {2204, 4267, 99503, 1206, 268, 8, false}, // NAD27 / Tennessee
    {2205, 4269, 102326, 1207, 1047, 4, false}, // NAD83 / Kentucky North
    {2206, 4230, 41485, 1512, 378, 5, false}, // ED50 / 3-degree Gauss-Kruger zone 9
    {2207, 4230, 41329, 1513, 379, 5, false}, // ED50 / 3-degree Gauss-Kruger zone 10
    {2208, 4230, 41355, 1514, 380, 5, false}, // ED50 / 3-degree Gauss-Kruger zone 11
    {2209, 4230, 41381, 1515, 381, 5, false}, // ED50 / 3-degree Gauss-Kruger zone 12
    {2210, 4230, 41407, 1516, 382, 5, false}, // ED50 / 3-degree Gauss-Kruger zone 13
    {2211, 4230, 41433, 1517, 383, 5, false}, // ED50 / 3-degree Gauss-Kruger zone 14
    {2212, 4230, 41459, 1518, 384, 5, false}, // ED50 / 3-degree Gauss-Kruger zone 15
    {2213, 4258, 45748, 1597, 1261, 4, false}, // ETRS89 / TM 30 NE
    {2214, 4192, 40944, 2209, 1262, 4, true}, // Douala 1948 / AOF west
    {2215, 4193, 92103, 1341, 1262, 4, false}, // Manoca 1962 / UTM zone 32N
    {2216, 4194, 167437, 1331, 1270, 4, false}, // Qornoq 1927 / UTM zone 22N
    {2217, 4194, 167452, 1332, 1269, 4, false}, // Qornoq 1927 / UTM zone 23N
    {2218, 4195, 184715, 2214, 1820, 3, false}, // Scoresbysund 1952 / Greenland zone 5 east
    {2219, 4122, 4300, 1328, 385, 4, false}, // ATS77 / UTM zone 19N
    {2220, 4122, 4313, 1329, 386, 4, false}, // ATS77 / UTM zone 20N
    {2221, 4195, 184740, 2215, 1819, 3, false}, // Scoresbysund 1952 / Greenland zone 6 east
    {2222, 4269, 101087, 1208, 1012, 6, false}, // NAD83 / Arizona East (ft)
    {2223, 4269, 101065, 1209, 1011, 6, false}, // NAD83 / Arizona Central (ft)
    {2224, 4269, 101108, 1210, 1013, 6, false}, // NAD83 / Arizona West (ft)
    {2225, 4269, 101501, 1211, 1020, 8, false}, // NAD83 / California zone 1 (ftUS)
    {2226, 4269, 101529, 1212, 1021, 8, false}, // NAD83 / California zone 2 (ftUS)
    {2227, 4269, 101557, 1213, 1022, 8, false}, // NAD83 / California zone 3 (ftUS)
    {2228, 4269, 101585, 1214, 1023, 8, false}, // NAD83 / California zone 4 (ftUS)
    {2229, 4269, 101613, 1215, 1027, 8, false}, // NAD83 / California zone 5 (ftUS)
    {2230, 4269, 101641, 1216, 1025, 8, false}, // NAD83 / California zone 6 (ftUS)
    {2231, 4269, 101707, 1217, 1029, 8, false}, // NAD83 / Colorado North (ftUS)
    {2232, 4269, 101684, 1218, 1028, 8, false}, // NAD83 / Colorado Central (ftUS)
    {2233, 4269, 101729, 1219, 1030, 8, false}, // NAD83 / Colorado South (ftUS)
    {2234, 4269, 101752, 1220, 235, 8, false}, // NAD83 / Connecticut (ftUS)
    {2235, 4269, 101786, 1221, 236, 8, false}, // NAD83 / Delaware (ftUS)
    {2236, 4269, 101809, 1222, 1031, 8, false}, // NAD83 / Florida East (ftUS)
    {2237, 4269, 101869, 1223, 1033, 8, false}, // NAD83 / Florida West (ftUS)
    {2238, 4269, 101846, 1224, 1032, 8, false}, // NAD83 / Florida North (ftUS)
    {2239, 4269, 101893, 1225, 1034, 8, false}, // NAD83 / Georgia East (ftUS)
    {2240, 4269, 101917, 1226, 1035, 8, false}, // NAD83 / Georgia West (ftUS)
    {2241, 4269, 102070, 1227, 1037, 8, false}, // NAD83 / Idaho East (ftUS)
    {2242, 4269, 102047, 1228, 1036, 8, false}, // NAD83 / Idaho Central (ftUS)
    {2243, 4269, 102110, 1229, 1038, 8, false}, // NAD83 / Idaho West (ftUS)
    {2244, 4269, 102187, 1230, 1041, 8, true}, // NAD83 / Indiana East (ftUS)
    {2245, 4269, 102207, 1231, 1042, 8, true}, // NAD83 / Indiana West (ftUS)
    {2246, 4269, 102336, 1232, 1047, 8, false}, // NAD83 / Kentucky North (ftUS)
    {2247, 4269, 102401, 1233, 1048, 8, false}, // NAD83 / Kentucky South (ftUS)
    {2248, 4269, 102699, 1234, 247, 8, false}, // NAD83 / Maryland (ftUS)
    {2249, 4269, 102762, 1235, 1054, 8, false}, // NAD83 / Massachusetts Mainland (ftUS)
    {2250, 4269, 102725, 1236, 1053, 8, false}, // NAD83 / Massachusetts Island (ftUS)
    {2251, 4269, 102822, 1237, 573, 6, false}, // NAD83 / Michigan North (ft)
    {2252, 4269, 102797, 1238, 574, 6, false}, // NAD83 / Michigan Central (ft)
    {2253, 4269, 102867, 1239, 575, 6, false}, // NAD83 / Michigan South (ft)
    {2254, 4269, 102970, 1240, 1061, 8, false}, // NAD83 / Mississippi East (ftUS)
    {2255, 4269, 103017, 1241, 1062, 8, false}, // NAD83 / Mississippi West (ftUS)
    {2256, 4269, 103079, 1242, 252, 6, false}, // NAD83 / Montana (ft)
    {2257, 4269, 103358, 1243, 1073, 8, false}, // NAD83 / New Mexico East (ftUS)
    {2258, 4269, 103329, 1244, 1076, 8, false}, // NAD83 / New Mexico Central (ftUS)
    {2259, 4269, 103386, 1245, 1077, 8, false}, // NAD83 / New Mexico West (ftUS)
    {2260, 4269, 103439, 1246, 1079, 8, false}, // NAD83 / New York East (ftUS)
    {2261, 4269, 103413, 1247, 1078, 8, false}, // NAD83 / New York Central (ftUS)
    {2262, 4269, 103497, 1248, 1081, 8, false}, // NAD83 / New York West (ftUS)
    {2263, 4269, 103467, 1249, 1080, 8, false}, // NAD83 / New York Long Island (ftUS)
    {2264, 4269, 103520, 1250, 259, 8, false}, // NAD83 / North Carolina (ftUS)
    {2265, 4269, 103542, 1251, 1082, 6, false}, // NAD83 / North Dakota North (ft)
    {2266, 4269, 103565, 1252, 1083, 6, false}, // NAD83 / North Dakota South (ft)
    {2267, 4269, 103626, 1253, 1086, 8, false}, // NAD83 / Oklahoma North (ftUS)
    {2268, 4269, 103650, 1254, 1087, 8, false}, // NAD83 / Oklahoma South (ftUS)
    {2269, 4269, 103713, 1255, 1088, 6, false}, // NAD83 / Oregon North (ft)
    {2270, 4269, 103728, 1256, 1089, 6, false}, // NAD83 / Oregon South (ft)
    {2271, 4269, 103750, 1257, 1090, 8, false}, // NAD83 / Pennsylvania North (ftUS)
    {2272, 4269, 103780, 1258, 1091, 8, false}, // NAD83 / Pennsylvania South (ftUS)
    {2273, 4269, 103881, 1259, 266, 6, false}, // NAD83 / South Carolina (ft)
    {2274, 4269, 103967, 1260, 268, 8, false}, // NAD83 / Tennessee (ftUS)
    {2275, 4269, 104073, 1261, 1098, 8, false}, // NAD83 / Texas North (ftUS)
    {2276, 4269, 104097, 1262, 1099, 8, false}, // NAD83 / Texas North Central (ftUS)
    {2277, 4269, 104008, 1263, 1097, 8, false}, // NAD83 / Texas Central (ftUS)
    {2278, 4269, 104145, 1264, 1249, 8, false}, // NAD83 / Texas South Central (ftUS)
    {2279, 4269, 104121, 1265, 1250, 8, false}, // NAD83 / Texas South (ftUS)
    {2280, 4269, 104432, 1266, 1103, 6, false}, // NAD83 / Utah North (ft)
    {2281, 4269, 104400, 1267, 1102, 6, false}, // NAD83 / Utah Central (ft)
    {2282, 4269, 104462, 1268, 1104, 6, false}, // NAD83 / Utah South (ft)
    {2283, 4269, 104525, 1269, 1105, 8, false}, // NAD83 / Virginia North (ftUS)
    {2284, 4269, 104547, 1270, 1106, 8, false}, // NAD83 / Virginia South (ftUS)
    {2285, 4269, 104570, 1271, 1118, 8, false}, // NAD83 / Washington North (ftUS)
    {2286, 4269, 104596, 1272, 1119, 8, false}, // NAD83 / Washington South (ftUS)
    {2287, 4269, 104701, 1273, 1112, 8, false}, // NAD83 / Wisconsin North (ftUS)
    {2288, 4269, 104675, 1274, 1111, 8, false}, // NAD83 / Wisconsin Central (ftUS)
    {2289, 4269, 104726, 1275, 1113, 8, false}, // NAD83 / Wisconsin South (ftUS)
    {2290, 4122, 4263, 2322, 387, 4, false}, // ATS77 / Prince Edward Isl. Stereographic (ATS77)
    {2291, 4122, 119150, 2349, 387, 4, true}, // NAD83(CSRS98) / Prince Edward Isl. Stereographic (NAD83)
    {2292, 4140, 119150, 2349, 387, 4, true}, // NAD83(CSRS98) / Prince Edward Isl. Stereographic (NAD83)
    {2294, 4122, 4190, 1945, 388, 4, false}, // ATS77 / MTM Nova Scotia zone 4
    {2295, 4122, 4210, 1946, 389, 4, false}, // ATS77 / MTM Nova Scotia zone 5
    {2296, 4196, 7042, 2216, 1268, 3, false}, // Ammassalik 1958 / Greenland zone 7 east
    {2297, 4194, 167228, 2210, 1263, 3, true}, // Qornoq 1927 / Greenland zone 1 east
    {2298, 4194, 167247, 2211, 1264, 3, true}, // Qornoq 1927 / Greenland zone 2 east
    {2299, 4194, 167266, 2218, 1818, 3, false}, // Qornoq 1927 / Greenland zone 2 west
    {2300, 4194, 167285, 2212, 1265, 3, true}, // Qornoq 1927 / Greenland zone 3 east
    {2301, 4194, 167304, 2219, 1817, 3, false}, // Qornoq 1927 / Greenland zone 3 west
    {2302, 4194, 167323, 2213, 1266, 3, true}, // Qornoq 1927 / Greenland zone 4 east
    {2303, 4194, 167342, 2220, 1816, 3, false}, // Qornoq 1927 / Greenland zone 4 west
    {2304, 4194, 167361, 2221, 1815, 3, false}, // Qornoq 1927 / Greenland zone 5 west
    {2305, 4194, 167380, 2222, 1814, 3, false}, // Qornoq 1927 / Greenland zone 6 west
    {2306, 4194, 167399, 2223, 1813, 3, false}, // Qornoq 1927 / Greenland zone 7 west
    {2307, 4194, 167418, 2217, 2222, 3, false}, // Qornoq 1927 / Greenland zone 8 east
    {2308, 4211, 19937, 1604, 1274, 4, false}, // Batavia / TM 109 SE
    {2309, 4326, 217968, 1605, 1275, 4, false}, // WGS 84 / TM 116 SE
    {2310, 4326, 217996, 1606, 1276, 4, false}, // WGS 84 / TM 132 SE
    {2311, 4326, 218025, 1593, 1506, 4, false}, // WGS 84 / TM 6 NE
    {2312, 4197, 63375, 1342, 1277, 4, false}, // Garoua / UTM zone 33N
    {2313, 4198, 83333, 1342, 1278, 4, false}, // Kousseri / UTM zone 33N
    {2314, 4302, 195383, 2362, 201, 9, false}, // Trinidad 1903 / Trinidad Grid (ftCla)
    {2315, 4221, 29458, 1417, 1282, 4, false}, // Campo Inchauspe / UTM zone 19S
    {2316, 4221, 29477, 1418, 1283, 4, false}, // Campo Inchauspe / UTM zone 20S
    {2317, 4248, 147248, 2363, 1793, 4, false}, // PSAD56 / ICN Regional
    {2318, 4204, 5690, 2364, 1778, 4, false}, // Ain el Abd / Aramco Lambert
    {2319, 4230, 41606, 1546, 378, 5, false}, // ED50 / TM27
    {2320, 4230, 41615, 1576, 379, 5, false}, // ED50 / TM30
    {2321, 4230, 41624, 1547, 380, 5, false}, // ED50 / TM33
    {2322, 4230, 41633, 1577, 381, 5, false}, // ED50 / TM36
    {2323, 4230, 41642, 1548, 382, 5, false}, // ED50 / TM39
    {2324, 4230, 41651, 1578, 383, 5, false}, // ED50 / TM42
    {2325, 4230, 41660, 1549, 384, 5, false}, // ED50 / TM45
    {2326, 4611, 68166, 2365, 56, 5, false}, // Hong Kong 1980 Grid System
    {2327, 4610, 229262, 1484, 441, 5, false}, // Xian 1980 / Gauss-Kruger zone 13
    {2328, 4610, 229282, 1485, 442, 5, false}, // Xian 1980 / Gauss-Kruger zone 14
    {2329, 4610, 229302, 1486, 443, 5, false}, // Xian 1980 / Gauss-Kruger zone 15
    {2330, 4610, 229322, 1487, 444, 5, false}, // Xian 1980 / Gauss-Kruger zone 16
    {2331, 4610, 229342, 1488, 445, 5, false}, // Xian 1980 / Gauss-Kruger zone 17
    {2332, 4610, 229362, 1489, 446, 5, false}, // Xian 1980 / Gauss-Kruger zone 18
    {2333, 4610, 229382, 1490, 447, 5, false}, // Xian 1980 / Gauss-Kruger zone 19
    {2334, 4610, 229402, 1491, 448, 5, false}, // Xian 1980 / Gauss-Kruger zone 20
    {2335, 4610, 229422, 1492, 449, 5, false}, // Xian 1980 / Gauss-Kruger zone 21
    {2336, 4610, 229442, 1493, 450, 5, false}, // Xian 1980 / Gauss-Kruger zone 22
    {2337, 4610, 229462, 1494, 451, 5, false}, // Xian 1980 / Gauss-Kruger zone 23
    {2338, 4610, 229147, 1554, 441, 5, false}, // Xian 1980 / Gauss-Kruger CM 75E
    {2339, 4610, 229170, 1555, 442, 5, false}, // Xian 1980 / Gauss-Kruger CM 81E
    {2340, 4610, 229193, 1556, 443, 5, false}, // Xian 1980 / Gauss-Kruger CM 87E
    {2341, 4610, 229216, 1557, 444, 5, false}, // Xian 1980 / Gauss-Kruger CM 93E
    {2342, 4610, 229239, 1558, 445, 5, false}, // Xian 1980 / Gauss-Kruger CM 99E
    {2343, 4610, 229006, 1559, 446, 5, false}, // Xian 1980 / Gauss-Kruger CM 105E
    {2344, 4610, 229029, 1560, 447, 5, false}, // Xian 1980 / Gauss-Kruger CM 111E
    {2345, 4610, 229052, 1561, 448, 5, false}, // Xian 1980 / Gauss-Kruger CM 117E
    {2346, 4610, 229075, 1562, 449, 5, false}, // Xian 1980 / Gauss-Kruger CM 123E
    {2347, 4610, 229099, 1563, 450, 5, false}, // Xian 1980 / Gauss-Kruger CM 129E
    {2348, 4610, 229123, 1564, 451, 5, false}, // Xian 1980 / Gauss-Kruger CM 135E
    {2349, 4610, 228439, 1528, 1347, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger zone 25
    {2350, 4610, 228466, 1529, 1348, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger zone 26
    {2351, 4610, 228493, 1530, 1349, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger zone 27
    {2352, 4610, 228520, 1531, 1350, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger zone 28
    {2353, 4610, 228547, 1532, 1351, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger zone 29
    {2354, 4610, 228574, 1533, 1352, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger zone 30
    {2355, 4610, 228601, 1534, 1353, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger zone 31
    {2356, 4610, 228628, 1535, 1354, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger zone 32
    {2357, 4610, 228655, 1536, 1355, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger zone 33
    {2358, 4610, 228682, 1537, 1356, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger zone 34
    {2359, 4610, 228709, 1538, 1357, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger zone 35
    {2360, 4610, 228736, 1539, 1358, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger zone 36
    {2361, 4610, 228763, 1540, 1359, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger zone 37
    {2362, 4610, 228790, 1541, 1360, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger zone 38
    {2363, 4610, 228817, 1542, 1361, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger zone 39
    {2364, 4610, 228844, 1372, 1362, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger zone 40
    {2365, 4610, 228871, 1373, 1363, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger zone 41
    {2366, 4610, 228898, 1374, 1364, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger zone 42
    {2367, 4610, 228925, 1375, 1365, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger zone 43
    {2368, 4610, 228952, 1376, 1366, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger zone 44
    {2369, 4610, 228979, 1377, 1367, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger zone 45
    {2370, 4610, 228169, 1554, 1347, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger CM 75E
    {2371, 4610, 228199, 1584, 1348, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger CM 78E
    {2372, 4610, 228229, 1555, 1349, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger CM 81E
    {2373, 4610, 228259, 1585, 1350, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger CM 84E
    {2374, 4610, 228289, 1556, 1351, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger CM 87E
    {2375, 4610, 228319, 1586, 1352, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger CM 90E
    {2376, 4610, 228349, 1557, 1353, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger CM 93E
    {2377, 4610, 228379, 1587, 1354, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger CM 96E
    {2378, 4610, 228409, 1558, 1355, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger CM 99E
    {2379, 4610, 227804, 1588, 1356, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger CM 102E
    {2380, 4610, 227834, 1559, 1357, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger CM 105E
    {2381, 4610, 227864, 1589, 1358, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger CM 108E
    {2382, 4610, 227894, 1560, 1359, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger CM 111E
    {2383, 4610, 227924, 1590, 1360, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger CM 114E
    {2384, 4610, 227954, 1561, 1361, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger CM 117E
    {2385, 4610, 227984, 1460, 1362, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger CM 120E
    {2386, 4610, 228014, 1562, 1363, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger CM 123E
    {2387, 4610, 228045, 1461, 1364, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger CM 126E
    {2388, 4610, 228076, 1563, 1365, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger CM 129E
    {2389, 4610, 228107, 1462, 1366, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger CM 132E
    {2390, 4610, 228138, 1564, 1367, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger CM 135E
    {2391, 4123, 79138, 2132, 390, 5, false}, // KKJ / Finland zone 1
    {2392, 4123, 79148, 2133, 391, 5, false}, // KKJ / Finland zone 2
    {2393, 4123, 79102, 2134, 392, 5, false}, // KKJ / Finland Uniform Coordinate System
    {2394, 4123, 79158, 2135, 393, 5, false}, // KKJ / Finland zone 4
    {2395, 4164, 188682, 1479, 347, 5, false}, // South Yemen / Gauss-Kruger zone 8
    {2396, 4164, 188700, 1480, 348, 5, false}, // South Yemen / Gauss-Kruger zone 9
    {2397, 4178, 159761, 1506, 366, 5, false}, // Pulkovo 1942(83) / 3-degree Gauss-Kruger zone 3
    {2398, 4178, 159832, 1507, 367, 5, false}, // Pulkovo 1942(83) / 3-degree Gauss-Kruger zone 4
    {2399, 4178, 159903, 1508, 368, 5, false}, // Pulkovo 1942(83) / 3-degree Gauss-Kruger zone 5
    {2400, 4124, 171439, 2319, 120, 5, true}, // RT90 2.5 gon W
    {2401, 4214, 20937, 1528, 1347, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger zone 25
    {2402, 4214, 20968, 1529, 1348, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger zone 26
    {2403, 4214, 20999, 1530, 1349, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger zone 27
    {2404, 4214, 21030, 1531, 1350, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger zone 28
    {2405, 4214, 21061, 1532, 1351, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger zone 29
    {2406, 4214, 21092, 1533, 1352, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger zone 30
    {2407, 4214, 21123, 1534, 1353, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger zone 31
    {2408, 4214, 21154, 1535, 1354, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger zone 32
    {2409, 4214, 21185, 1536, 1355, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger zone 33
    {2410, 4214, 21216, 1537, 1356, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger zone 34
    {2411, 4214, 21247, 1538, 1357, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger zone 35
    {2412, 4214, 21278, 1539, 1358, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger zone 36
    {2413, 4214, 21309, 1540, 1359, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger zone 37
    {2414, 4214, 21340, 1541, 1360, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger zone 38
    {2415, 4214, 21371, 1542, 1361, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger zone 39
    {2416, 4214, 21402, 1372, 1362, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger zone 40
    {2417, 4214, 21433, 1373, 1363, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger zone 41
    {2418, 4214, 21464, 1374, 1364, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger zone 42
    {2419, 4214, 21495, 1375, 1365, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger zone 43
    {2420, 4214, 21526, 1376, 1366, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger zone 44
    {2421, 4214, 21557, 1377, 1367, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger zone 45
    {2422, 4214, 20631, 1554, 1347, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger CM 75E
    {2423, 4214, 20665, 1584, 1348, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger CM 78E
    {2424, 4214, 20699, 1555, 1349, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger CM 81E
    {2425, 4214, 20733, 1585, 1350, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger CM 84E
    {2426, 4214, 20767, 1556, 1351, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger CM 87E
    {2427, 4214, 20801, 1586, 1352, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger CM 90E
    {2428, 4214, 20835, 1557, 1353, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger CM 93E
    {2429, 4214, 20869, 1587, 1354, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger CM 96E
    {2430, 4214, 20903, 1558, 1355, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger CM 99E
    {2431, 4214, 20218, 1588, 1356, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger CM 102E
    {2432, 4214, 20252, 1559, 1357, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger CM 105E
    {2433, 4214, 20286, 1589, 1358, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger CM 108E
    {2434, 4214, 20320, 1560, 1359, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger CM 111E
    {2435, 4214, 20354, 1590, 1360, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger CM 114E
    {2436, 4214, 20388, 1561, 1361, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger CM 117E
    {2437, 4214, 20422, 1460, 1362, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger CM 120E
    {2438, 4214, 20456, 1562, 1363, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger CM 123E
    {2439, 4214, 20491, 1461, 1364, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger CM 126E
    {2440, 4214, 20526, 1563, 1365, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger CM 129E
    {2441, 4214, 20561, 1462, 1366, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger CM 132E
    {2442, 4214, 20596, 1564, 1367, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger CM 135E
    {2443, 4612, 76181, 1947, 699, 5, false}, // JGD2000 / Japan Plane Rectangular CS I
    {2444, 4612, 76209, 1948, 700, 5, false}, // JGD2000 / Japan Plane Rectangular CS II
    {2445, 4612, 76238, 1949, 701, 5, false}, // JGD2000 / Japan Plane Rectangular CS III
    {2446, 4612, 76268, 1950, 702, 5, false}, // JGD2000 / Japan Plane Rectangular CS IV
    {2447, 4612, 76326, 1951, 703, 5, false}, // JGD2000 / Japan Plane Rectangular CS V
    {2448, 4612, 76354, 1952, 704, 5, false}, // JGD2000 / Japan Plane Rectangular CS VI
    {2449, 4612, 76383, 1953, 705, 5, false}, // JGD2000 / Japan Plane Rectangular CS VII
    {2450, 4612, 76413, 1954, 706, 5, false}, // JGD2000 / Japan Plane Rectangular CS VIII
    {2451, 4612, 76297, 1955, 707, 5, false}, // JGD2000 / Japan Plane Rectangular CS IX
    {2452, 4612, 76444, 1956, 708, 5, false}, // JGD2000 / Japan Plane Rectangular CS X
    {2453, 4612, 76472, 1957, 709, 5, false}, // JGD2000 / Japan Plane Rectangular CS XI
    {2454, 4612, 76501, 1958, 710, 5, false}, // JGD2000 / Japan Plane Rectangular CS XII
    {2455, 4612, 76531, 1959, 711, 5, false}, // JGD2000 / Japan Plane Rectangular CS XIII
    {2456, 4612, 76562, 1960, 712, 5, false}, // JGD2000 / Japan Plane Rectangular CS XIV
    {2457, 4612, 76622, 1961, 713, 5, false}, // JGD2000 / Japan Plane Rectangular CS XV
    {2458, 4612, 76651, 1962, 714, 5, false}, // JGD2000 / Japan Plane Rectangular CS XVI
    {2459, 4612, 76681, 1963, 715, 5, false}, // JGD2000 / Japan Plane Rectangular CS XVII
    {2460, 4612, 76712, 1964, 716, 5, false}, // JGD2000 / Japan Plane Rectangular CS XVIII
    {2461, 4612, 76592, 1965, 717, 5, false}, // JGD2000 / Japan Plane Rectangular CS XIX
    {2462, 4191, 6320, 1475, 1713, 5, false}, // Albanian 1987 / Gauss-Kruger zone 4
    {2463, 4200, 165452, 1545, 609, 5, false}, // Pulkovo 1995 / Gauss-Kruger CM 21E
    {2464, 4200, 165480, 1546, 610, 5, false}, // Pulkovo 1995 / Gauss-Kruger CM 27E
    {2465, 4200, 165507, 1547, 611, 5, false}, // Pulkovo 1995 / Gauss-Kruger CM 33E
    {2466, 4200, 165535, 1548, 612, 5, false}, // Pulkovo 1995 / Gauss-Kruger CM 39E
    {2467, 4200, 165563, 1549, 613, 5, false}, // Pulkovo 1995 / Gauss-Kruger CM 45E
    {2468, 4200, 165591, 1550, 614, 5, false}, // Pulkovo 1995 / Gauss-Kruger CM 51E
    {2469, 4200, 165619, 1551, 615, 5, false}, // Pulkovo 1995 / Gauss-Kruger CM 57E
    {2470, 4200, 165647, 1552, 616, 5, false}, // Pulkovo 1995 / Gauss-Kruger CM 63E
    {2471, 4200, 165675, 1553, 617, 5, false}, // Pulkovo 1995 / Gauss-Kruger CM 69E
    {2472, 4200, 165703, 1554, 618, 5, false}, // Pulkovo 1995 / Gauss-Kruger CM 75E
    {2473, 4200, 165731, 1555, 619, 5, false}, // Pulkovo 1995 / Gauss-Kruger CM 81E
    {2474, 4200, 165759, 1556, 620, 5, false}, // Pulkovo 1995 / Gauss-Kruger CM 87E
    {2475, 4200, 165787, 1557, 621, 5, false}, // Pulkovo 1995 / Gauss-Kruger CM 93E
    {2476, 4200, 165815, 1558, 622, 5, false}, // Pulkovo 1995 / Gauss-Kruger CM 99E
    {2477, 4200, 165020, 1559, 623, 5, false}, // Pulkovo 1995 / Gauss-Kruger CM 105E
    {2478, 4200, 165048, 1560, 624, 5, false}, // Pulkovo 1995 / Gauss-Kruger CM 111E
    {2479, 4200, 165076, 1561, 625, 5, false}, // Pulkovo 1995 / Gauss-Kruger CM 117E
    {2480, 4200, 165104, 1562, 626, 5, false}, // Pulkovo 1995 / Gauss-Kruger CM 123E
    {2481, 4200, 165133, 1563, 627, 5, false}, // Pulkovo 1995 / Gauss-Kruger CM 129E
    {2482, 4200, 165162, 1564, 628, 5, false}, // Pulkovo 1995 / Gauss-Kruger CM 135E
    {2483, 4200, 165191, 1565, 629, 5, false}, // Pulkovo 1995 / Gauss-Kruger CM 141E
    {2484, 4200, 165220, 1566, 630, 5, false}, // Pulkovo 1995 / Gauss-Kruger CM 147E
    {2485, 4200, 165249, 1567, 631, 5, false}, // Pulkovo 1995 / Gauss-Kruger CM 153E
    {2486, 4200, 165278, 1568, 632, 5, false}, // Pulkovo 1995 / Gauss-Kruger CM 159E
    {2487, 4200, 165307, 1569, 633, 5, false}, // Pulkovo 1995 / Gauss-Kruger CM 165E
    {2488, 4200, 165336, 1570, 634, 5, false}, // Pulkovo 1995 / Gauss-Kruger CM 171E
    {2489, 4200, 165394, 1571, 635, 5, false}, // Pulkovo 1995 / Gauss-Kruger CM 177E
    {2490, 4200, 165423, 1572, 636, 5, false}, // Pulkovo 1995 / Gauss-Kruger CM 177W
    {2491, 4200, 165365, 1573, 637, 5, false}, // Pulkovo 1995 / Gauss-Kruger CM 171W
    {2492, 4284, 158197, 1543, 651, 5, true}, // Pulkovo 1942 / Gauss-Kruger CM 9E
    {2493, 4284, 157633, 1544, 638, 5, true}, // Pulkovo 1942 / Gauss-Kruger CM 15E
    {2494, 4284, 157806, 1545, 639, 5, false}, // Pulkovo 1942 / Gauss-Kruger CM 21E
    {2495, 4284, 157834, 1546, 640, 5, false}, // Pulkovo 1942 / Gauss-Kruger CM 27E
    {2496, 4284, 157861, 1547, 641, 5, false}, // Pulkovo 1942 / Gauss-Kruger CM 33E
    {2497, 4284, 157889, 1548, 642, 5, false}, // Pulkovo 1942 / Gauss-Kruger CM 39E
    {2498, 4284, 157917, 1549, 643, 5, false}, // Pulkovo 1942 / Gauss-Kruger CM 45E
    {2499, 4284, 157945, 1550, 644, 5, false}, // Pulkovo 1942 / Gauss-Kruger CM 51E
    {2500, 4284, 157973, 1551, 645, 5, false}, // Pulkovo 1942 / Gauss-Kruger CM 57E
    {2501, 4284, 158001, 1552, 646, 5, false}, // Pulkovo 1942 / Gauss-Kruger CM 63E
    {2502, 4284, 158029, 1553, 647, 5, false}, // Pulkovo 1942 / Gauss-Kruger CM 69E
    {2503, 4284, 158057, 1554, 648, 5, false}, // Pulkovo 1942 / Gauss-Kruger CM 75E
    {2504, 4284, 158085, 1555, 649, 5, false}, // Pulkovo 1942 / Gauss-Kruger CM 81E
    {2505, 4284, 158113, 1556, 650, 5, false}, // Pulkovo 1942 / Gauss-Kruger CM 87E
    {2506, 4284, 158141, 1557, 621, 5, false}, // Pulkovo 1942 / Gauss-Kruger CM 93E
    {2507, 4284, 158169, 1558, 622, 5, false}, // Pulkovo 1942 / Gauss-Kruger CM 99E
    {2508, 4284, 157346, 1559, 623, 5, false}, // Pulkovo 1942 / Gauss-Kruger CM 105E
    {2509, 4284, 157374, 1560, 624, 5, false}, // Pulkovo 1942 / Gauss-Kruger CM 111E
    {2510, 4284, 157402, 1561, 625, 5, false}, // Pulkovo 1942 / Gauss-Kruger CM 117E
    {2511, 4284, 157430, 1562, 626, 5, false}, // Pulkovo 1942 / Gauss-Kruger CM 123E
    {2512, 4284, 157459, 1563, 627, 5, false}, // Pulkovo 1942 / Gauss-Kruger CM 129E
    {2513, 4284, 157488, 1564, 628, 5, false}, // Pulkovo 1942 / Gauss-Kruger CM 135E
    {2514, 4284, 157517, 1565, 629, 5, false}, // Pulkovo 1942 / Gauss-Kruger CM 141E
    {2515, 4284, 157546, 1566, 630, 5, false}, // Pulkovo 1942 / Gauss-Kruger CM 147E
    {2516, 4284, 157575, 1567, 631, 5, false}, // Pulkovo 1942 / Gauss-Kruger CM 153E
    {2517, 4284, 157604, 1568, 632, 5, false}, // Pulkovo 1942 / Gauss-Kruger CM 159E
    {2518, 4284, 157661, 1569, 633, 5, false}, // Pulkovo 1942 / Gauss-Kruger CM 165E
    {2519, 4284, 157690, 1570, 634, 5, false}, // Pulkovo 1942 / Gauss-Kruger CM 171E
    {2520, 4284, 157748, 1571, 635, 5, false}, // Pulkovo 1942 / Gauss-Kruger CM 177E
    {2521, 4284, 157777, 1572, 636, 5, false}, // Pulkovo 1942 / Gauss-Kruger CM 177W
    {2522, 4284, 157719, 1573, 637, 5, false}, // Pulkovo 1942 / Gauss-Kruger CM 171W
    {2523, 4284, 156127, 1510, 1289, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 7
    {2524, 4284, 156158, 1511, 1290, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 8
    {2525, 4284, 156189, 1512, 1291, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 9
    {2526, 4284, 154336, 1513, 1292, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 10
    {2527, 4284, 154368, 1514, 1293, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 11
    {2528, 4284, 154400, 1515, 1294, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 12
    {2529, 4284, 154432, 1516, 1295, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 13
    {2530, 4284, 154464, 1517, 1296, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 14
    {2531, 4284, 154496, 1518, 1297, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 15
    {2532, 4284, 154528, 1519, 1298, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 16
    {2533, 4284, 154560, 1520, 1299, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 17
    {2534, 4284, 154592, 1521, 1300, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 18
    {2535, 4284, 154624, 1522, 1301, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 19
    {2536, 4284, 154656, 1523, 1302, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 20
    {2537, 4284, 154688, 1524, 1303, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 21
    {2538, 4284, 154720, 1525, 1304, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 22
    {2539, 4284, 154752, 1526, 1305, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 23
    {2540, 4284, 154784, 1527, 1306, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 24
    {2541, 4284, 154816, 1528, 1307, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 25
    {2542, 4284, 154848, 1529, 1308, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 26
    {2543, 4284, 154880, 1530, 1309, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 27
    {2544, 4284, 154912, 1531, 1310, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 28
    {2545, 4284, 154944, 1532, 1311, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 29
    {2546, 4284, 154976, 1533, 1312, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 30
    {2547, 4284, 155008, 1534, 1313, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 31
    {2548, 4284, 155040, 1535, 1314, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 32
    {2549, 4284, 155072, 1536, 1315, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 33
    {2550, 4125, 183901, 1448, 190, 4, true}, // Samboja / UTM zone 50S
    {2551, 4284, 155104, 1537, 1316, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 34
    {2552, 4284, 155136, 1538, 1317, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 35
    {2553, 4284, 155168, 1539, 1318, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 36
    {2554, 4284, 155200, 1540, 1319, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 37
    {2555, 4284, 155232, 1541, 1320, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 38
    {2556, 4284, 155264, 1542, 1321, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 39
    {2557, 4284, 155296, 1372, 1322, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 40
    {2558, 4284, 155328, 1373, 1323, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 41
    {2559, 4284, 155360, 1374, 1324, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 42
    {2560, 4284, 155392, 1375, 1325, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 43
    {2561, 4284, 155424, 1376, 1326, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 44
    {2562, 4284, 155456, 1377, 1327, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 45
    {2563, 4284, 155488, 1378, 1328, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 46
    {2564, 4284, 155520, 1379, 1329, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 47
    {2565, 4284, 155552, 1380, 1330, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 48
    {2566, 4284, 155584, 1381, 1331, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 49
    {2567, 4284, 155616, 1382, 1332, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 50
    {2568, 4284, 155648, 1383, 1333, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 51
    {2569, 4284, 155680, 1384, 1334, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 52
    {2570, 4284, 155712, 1385, 1335, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 53
    {2571, 4284, 155744, 1386, 1336, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 54
    {2572, 4284, 155776, 1387, 1337, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 55
    {2573, 4284, 155808, 1388, 1338, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 56
    {2574, 4284, 155840, 1389, 1339, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 57
    {2575, 4284, 155872, 1390, 1340, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 58
    {2576, 4284, 155904, 1391, 1341, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 59
    {2577, 4284, 155967, 1392, 1342, 5, true}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 60
    {2578, 4284, 155999, 1393, 1343, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 61
    {2579, 4284, 156031, 1394, 1344, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 62
    {2580, 4284, 156063, 1395, 1345, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 63
    {2581, 4284, 156095, 1396, 1346, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 64
    {2582, 4284, 153392, 1545, 1289, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 21E
    {2583, 4284, 153427, 1575, 1290, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 24E
    {2584, 4284, 153462, 1546, 1291, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 27E
    {2585, 4284, 153496, 1576, 1292, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 30E
    {2586, 4284, 153531, 1547, 1293, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 33E
    {2587, 4284, 153566, 1577, 1294, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 36E
    {2588, 4284, 153601, 1548, 1295, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 39E
    {2589, 4284, 153636, 1578, 1296, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 42E
    {2590, 4284, 153671, 1549, 1297, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 45E
    {2591, 4284, 153706, 1579, 1298, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 48E
    {2592, 4284, 153741, 1550, 1299, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 51E
    {2593, 4284, 153776, 1580, 1300, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 54E
    {2594, 4284, 153811, 1551, 1301, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 57E
    {2595, 4284, 153846, 1581, 1302, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 60E
    {2596, 4284, 153881, 1552, 1303, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 63E
    {2597, 4284, 153916, 1582, 1304, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 66E
    {2598, 4284, 153951, 1553, 1305, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 69E
    {2599, 4284, 153986, 1583, 1306, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 72E
    {2600, 4669, 85864, 2323, 76, 5, true}, // Lietuvos Koordinoei Sistema 1994
    {2601, 4284, 154021, 1554, 1307, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 75E
    {2602, 4284, 154056, 1584, 1308, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 78E
    {2603, 4284, 154091, 1555, 1309, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 81E
    {2604, 4284, 154126, 1585, 1310, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 84E
    {2605, 4284, 154161, 1556, 1311, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 87E
    {2606, 4284, 154196, 1586, 1312, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 90E
    {2607, 4284, 154231, 1557, 1313, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 93E
    {2608, 4284, 154266, 1587, 1314, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 96E
    {2609, 4284, 154301, 1558, 1315, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 99E
    {2610, 4284, 152248, 1588, 1316, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 102E
    {2611, 4284, 152283, 1559, 1317, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 105E
    {2612, 4284, 152318, 1589, 1318, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 108E
    {2613, 4284, 152353, 1560, 1319, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 111E
    {2614, 4284, 152388, 1590, 1320, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 114E
    {2615, 4284, 152423, 1561, 1321, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 117E
    {2616, 4284, 152458, 1460, 1322, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 120E
    {2617, 4284, 152493, 1562, 1323, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 123E
    {2618, 4284, 152529, 1461, 1324, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 126E
    {2619, 4284, 152565, 1563, 1325, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 129E
    {2620, 4284, 152601, 1462, 1326, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 132E
    {2621, 4284, 152637, 1564, 1327, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 135E
    {2622, 4284, 152673, 1463, 1328, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 138E
    {2623, 4284, 152709, 1565, 1329, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 141E
    {2624, 4284, 152745, 1464, 1330, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 144E
    {2625, 4284, 152781, 1566, 1331, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 147E
    {2626, 4284, 152817, 1465, 1332, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 150E
    {2627, 4284, 152853, 1567, 1333, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 153E
    {2628, 4284, 152889, 1466, 1334, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 156E
    {2629, 4284, 152925, 1568, 1335, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 159E
    {2630, 4284, 152961, 1467, 1336, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 162E
    {2631, 4284, 152997, 1569, 1337, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 165E
    {2632, 4284, 153033, 1468, 1338, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 168E
    {2633, 4284, 153105, 1570, 1339, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 171E
    {2634, 4284, 153177, 1469, 1340, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 174E
    {2635, 4284, 153249, 1571, 1341, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 177E
    {2636, 4284, 153321, 1470, 1342, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 180E
    {2637, 4284, 153285, 1572, 1343, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 177W
    {2638, 4284, 153213, 1471, 1344, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 174W
    {2639, 4284, 153141, 1573, 1345, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 171W
    {2640, 4284, 153069, 1472, 1346, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 168W
    {2641, 4200, 164181, 1510, 1368, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 7
    {2642, 4200, 164212, 1511, 1369, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 8
    {2643, 4200, 164243, 1512, 1370, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 9
    {2644, 4200, 162390, 1513, 1371, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 10
    {2645, 4200, 162422, 1514, 1372, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 11
    {2646, 4200, 162454, 1515, 1373, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 12
    {2647, 4200, 162486, 1516, 1374, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 13
    {2648, 4200, 162518, 1517, 1375, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 14
    {2649, 4200, 162550, 1518, 1376, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 15
    {2650, 4200, 162582, 1519, 1377, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 16
    {2651, 4200, 162614, 1520, 1378, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 17
    {2652, 4200, 162646, 1521, 1379, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 18
    {2653, 4200, 162678, 1522, 1380, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 19
    {2654, 4200, 162710, 1523, 1381, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 20
    {2655, 4200, 162742, 1524, 1382, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 21
    {2656, 4200, 162774, 1525, 1383, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 22
    {2657, 4200, 162806, 1526, 1384, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 23
    {2658, 4200, 162838, 1527, 1385, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 24
    {2659, 4200, 162870, 1528, 1386, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 25
    {2660, 4200, 162902, 1529, 1387, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 26
    {2661, 4200, 162934, 1530, 1388, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 27
    {2662, 4200, 162966, 1531, 1389, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 28
    {2663, 4200, 162998, 1532, 1390, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 29
    {2664, 4200, 163030, 1533, 1312, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 30
    {2665, 4200, 163062, 1534, 1313, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 31
    {2666, 4200, 163094, 1535, 1314, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 32
    {2667, 4200, 163126, 1536, 1315, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 33
    {2668, 4200, 163158, 1537, 1316, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 34
    {2669, 4200, 163190, 1538, 1317, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 35
    {2670, 4200, 163222, 1539, 1318, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 36
    {2671, 4200, 163254, 1540, 1319, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 37
    {2672, 4200, 163286, 1541, 1320, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 38
    {2673, 4200, 163318, 1542, 1321, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 39
    {2674, 4200, 163350, 1372, 1322, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 40
    {2675, 4200, 163382, 1373, 1323, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 41
    {2676, 4200, 163414, 1374, 1324, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 42
    {2677, 4200, 163446, 1375, 1325, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 43
    {2678, 4200, 163478, 1376, 1326, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 44
    {2679, 4200, 163510, 1377, 1327, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 45
    {2680, 4200, 163542, 1378, 1328, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 46
    {2681, 4200, 163574, 1379, 1329, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 47
    {2682, 4200, 163606, 1380, 1330, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 48
    {2683, 4200, 163638, 1381, 1331, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 49
    {2684, 4200, 163670, 1382, 1332, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 50
    {2685, 4200, 163702, 1383, 1333, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 51
    {2686, 4200, 163734, 1384, 1334, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 52
    {2687, 4200, 163766, 1385, 1335, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 53
    {2688, 4200, 163798, 1386, 1336, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 54
    {2689, 4200, 163830, 1387, 1337, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 55
    {2690, 4200, 163862, 1388, 1338, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 56
    {2691, 4200, 163894, 1389, 1339, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 57
    {2692, 4200, 163926, 1390, 1340, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 58
    {2693, 4200, 163958, 1391, 1341, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 59
    {2694, 4200, 164021, 1392, 1342, 5, true}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 60
    {2695, 4200, 164053, 1393, 1343, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 61
    {2696, 4200, 164085, 1394, 1344, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 62
    {2697, 4200, 164117, 1395, 1345, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 63
    {2698, 4200, 164149, 1396, 1346, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 64
    {2699, 4200, 161446, 1545, 1368, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 21E
    {2700, 4200, 161481, 1575, 1369, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 24E
    {2701, 4200, 161516, 1546, 1370, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 27E
    {2702, 4200, 161550, 1576, 1371, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 30E
    {2703, 4200, 161585, 1547, 1372, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 33E
    {2704, 4200, 161620, 1577, 1373, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 36E
    {2705, 4200, 161655, 1548, 1374, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 39E
    {2706, 4200, 161690, 1578, 1375, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 42E
    {2707, 4200, 161725, 1549, 1376, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 45E
    {2708, 4200, 161760, 1579, 1377, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 48E
    {2709, 4200, 161795, 1550, 1378, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 51E
    {2710, 4200, 161830, 1580, 1379, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 54E
    {2711, 4200, 161865, 1551, 1380, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 57E
    {2712, 4200, 161900, 1581, 1381, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 60E
    {2713, 4200, 161935, 1552, 1382, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 63E
    {2714, 4200, 161970, 1582, 1383, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 66E
    {2715, 4200, 162005, 1553, 1384, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 69E
    {2716, 4200, 162040, 1583, 1385, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 72E
    {2717, 4200, 162075, 1554, 1386, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 75E
    {2718, 4200, 162110, 1584, 1387, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 78E
    {2719, 4200, 162145, 1555, 1388, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 81E
    {2720, 4200, 162180, 1585, 1389, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 84E
    {2721, 4200, 162215, 1556, 1390, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 87E
    {2722, 4200, 162250, 1586, 1312, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 90E
    {2723, 4200, 162285, 1557, 1313, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 93E
    {2724, 4200, 162320, 1587, 1314, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 96E
    {2725, 4200, 162355, 1558, 1315, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 99E
    {2726, 4200, 160302, 1588, 1316, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 102E
    {2727, 4200, 160337, 1559, 1317, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 105E
    {2728, 4200, 160372, 1589, 1318, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 108E
    {2729, 4200, 160407, 1560, 1319, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 111E
    {2730, 4200, 160442, 1590, 1320, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 114E
    {2731, 4200, 160477, 1561, 1321, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 117E
    {2732, 4200, 160512, 1460, 1322, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 120E
    {2733, 4200, 160547, 1562, 1323, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 123E
    {2734, 4200, 160583, 1461, 1324, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 126E
    {2735, 4200, 160619, 1563, 1325, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 129E
    {2736, 4127, 193668, 1434, 394, 4, false}, // Tete / UTM zone 36S
    {2737, 4127, 193679, 1435, 395, 4, false}, // Tete / UTM zone 37S
    {2738, 4200, 160655, 1462, 1326, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 132E
    {2739, 4200, 160691, 1564, 1327, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 135E
    {2740, 4200, 160727, 1463, 1328, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 138E
    {2741, 4200, 160763, 1565, 1329, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 141E
    {2742, 4200, 160799, 1464, 1330, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 144E
    {2743, 4200, 160835, 1566, 1331, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 147E
    {2744, 4200, 160871, 1465, 1332, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 150E
    {2745, 4200, 160907, 1567, 1333, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 153E
    {2746, 4200, 160943, 1466, 1334, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 156E
    {2747, 4200, 160979, 1568, 1335, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 159E
    {2748, 4200, 161015, 1467, 1336, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 162E
    {2749, 4200, 161051, 1569, 1337, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 165E
    {2750, 4200, 161087, 1468, 1338, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 168E
    {2751, 4200, 161159, 1570, 1339, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 171E
    {2752, 4200, 161231, 1469, 1340, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 174E
    {2753, 4200, 161303, 1571, 1341, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 177E
    {2754, 4200, 161375, 1470, 1342, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 180E
    {2755, 4200, 161339, 1572, 1343, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 177W
    {2756, 4200, 161267, 1471, 1344, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 174W
    {2757, 4200, 161195, 1573, 1345, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 171W
    {2758, 4200, 161123, 1472, 1346, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 168W
    {2759, 4152, 119317, 911, 999, 4, false}, // NAD83(HARN) / Alabama East
    {2760, 4152, 119328, 912, 1000, 4, false}, // NAD83(HARN) / Alabama West
    {2761, 4152, 119361, 918, 1012, 4, false}, // NAD83(HARN) / Arizona East
    {2762, 4152, 119339, 919, 1011, 4, false}, // NAD83(HARN) / Arizona Central
    {2763, 4152, 119382, 920, 1013, 4, false}, // NAD83(HARN) / Arizona West
    {2764, 4152, 119403, 923, 1014, 4, false}, // NAD83(HARN) / Arkansas North
    {2765, 4152, 119426, 924, 1015, 4, false}, // NAD83(HARN) / Arkansas South
    {2766, 4152, 119462, 934, 1020, 4, false}, // NAD83(HARN) / California zone 1
    {2767, 4152, 119490, 935, 1021, 4, false}, // NAD83(HARN) / California zone 2
    {2768, 4152, 119518, 936, 1022, 4, false}, // NAD83(HARN) / California zone 3
    {2769, 4152, 119546, 937, 1023, 4, false}, // NAD83(HARN) / California zone 4
    {2770, 4152, 119574, 938, 1027, 4, false}, // NAD83(HARN) / California zone 5
    {2771, 4152, 119602, 939, 1025, 4, false}, // NAD83(HARN) / California zone 6
    {2772, 4152, 119655, 943, 1029, 4, false}, // NAD83(HARN) / Colorado North
    {2773, 4152, 119630, 944, 1028, 4, false}, // NAD83(HARN) / Colorado Central
    {2774, 4152, 119676, 945, 1030, 4, false}, // NAD83(HARN) / Colorado South
    {2775, 4152, 119698, 947, 235, 4, false}, // NAD83(HARN) / Connecticut
    {2776, 4152, 119734, 949, 236, 4, false}, // NAD83(HARN) / Delaware
    {2777, 4152, 119755, 953, 1031, 4, false}, // NAD83(HARN) / Florida East
    {2778, 4152, 119815, 954, 1033, 4, false}, // NAD83(HARN) / Florida West
    {2779, 4152, 119794, 955, 1032, 4, false}, // NAD83(HARN) / Florida North
    {2780, 4152, 119839, 959, 1034, 4, false}, // NAD83(HARN) / Georgia East
    {2781, 4152, 119863, 960, 1035, 4, false}, // NAD83(HARN) / Georgia West
    {2782, 4152, 119900, 1192, 400, 4, false}, // NAD83(HARN) / Hawaii zone 1
    {2783, 4152, 119910, 1193, 401, 4, false}, // NAD83(HARN) / Hawaii zone 2
    {2784, 4152, 119920, 1194, 402, 4, false}, // NAD83(HARN) / Hawaii zone 3
    {2785, 4152, 119946, 1195, 403, 4, false}, // NAD83(HARN) / Hawaii zone 4
    {2786, 4152, 119956, 1196, 404, 4, false}, // NAD83(HARN) / Hawaii zone 5
    {2787, 4152, 119989, 964, 1037, 4, false}, // NAD83(HARN) / Idaho East
    {2788, 4152, 119966, 965, 1036, 4, false}, // NAD83(HARN) / Idaho Central
    {2789, 4152, 120011, 966, 1038, 4, false}, // NAD83(HARN) / Idaho West
    {2790, 4152, 120033, 969, 1039, 4, false}, // NAD83(HARN) / Illinois East
    {2791, 4152, 120061, 970, 1040, 4, false}, // NAD83(HARN) / Illinois West
    {2792, 4152, 120089, 973, 1041, 4, false}, // NAD83(HARN) / Indiana East
    {2793, 4152, 120109, 974, 1042, 4, false}, // NAD83(HARN) / Indiana West
    {2794, 4152, 120129, 977, 1043, 4, false}, // NAD83(HARN) / Iowa North
    {2795, 4152, 120148, 978, 1044, 4, false}, // NAD83(HARN) / Iowa South
    {2796, 4152, 120168, 981, 1045, 4, false}, // NAD83(HARN) / Kansas North
    {2797, 4152, 120189, 982, 1046, 4, false}, // NAD83(HARN) / Kansas South
    {2798, 4152, 120210, 1207, 1047, 4, false}, // NAD83(HARN) / Kentucky North
    {2799, 4152, 120274, 987, 1048, 4, false}, // NAD83(HARN) / Kentucky South
    {2800, 4152, 120301, 991, 1049, 4, false}, // NAD83(HARN) / Louisiana North
    {2801, 4152, 120322, 992, 1251, 4, false}, // NAD83(HARN) / Louisiana South
    {2802, 4152, 120383, 996, 1051, 4, false}, // NAD83(HARN) / Maine East
    {2803, 4152, 120405, 997, 1052, 4, false}, // NAD83(HARN) / Maine West
    {2804, 4152, 120427, 1005, 247, 4, false}, // NAD83(HARN) / Maryland
    {2805, 4152, 120479, 1008, 1054, 4, false}, // NAD83(HARN) / Massachusetts Mainland
    {2806, 4152, 120445, 1009, 1053, 4, false}, // NAD83(HARN) / Massachusetts Island
    {2807, 4152, 120546, 1016, 573, 4, false}, // NAD83(HARN) / Michigan North
    {2808, 4152, 120519, 1017, 574, 4, false}, // NAD83(HARN) / Michigan Central
    {2809, 4152, 120591, 1018, 575, 4, false}, // NAD83(HARN) / Michigan South
    {2810, 4152, 120642, 1023, 1059, 4, false}, // NAD83(HARN) / Minnesota North
    {2811, 4152, 120615, 1024, 1058, 4, false}, // NAD83(HARN) / Minnesota Central
    {2812, 4152, 120665, 1025, 1060, 4, false}, // NAD83(HARN) / Minnesota South
    {2813, 4152, 120689, 1031, 1061, 4, false}, // NAD83(HARN) / Mississippi East
    {2814, 4152, 120736, 1032, 1062, 4, false}, // NAD83(HARN) / Mississippi West
    {2815, 4152, 120782, 1036, 1064, 4, false}, // NAD83(HARN) / Missouri East
    {2816, 4152, 120770, 1037, 1063, 4, false}, // NAD83(HARN) / Missouri Central
    {2817, 4152, 120794, 1038, 1065, 4, false}, // NAD83(HARN) / Missouri West
    {2818, 4152, 120806, 1042, 252, 4, false}, // NAD83(HARN) / Montana
    {2819, 4152, 120824, 1045, 253, 4, false}, // NAD83(HARN) / Nebraska
    {2820, 4152, 120868, 1049, 1069, 4, false}, // NAD83(HARN) / Nevada East
    {2821, 4152, 120845, 1050, 1068, 4, false}, // NAD83(HARN) / Nevada Central
    {2822, 4152, 120890, 1051, 1070, 4, false}, // NAD83(HARN) / Nevada West
    {2823, 4152, 120912, 1053, 255, 4, false}, // NAD83(HARN) / New Hampshire
    {2824, 4152, 120937, 1055, 256, 4, false}, // NAD83(HARN) / New Jersey
    {2825, 4152, 120987, 1059, 1073, 4, false}, // NAD83(HARN) / New Mexico East
    {2826, 4152, 120958, 1060, 1076, 4, false}, // NAD83(HARN) / New Mexico Central
    {2827, 4152, 121015, 1061, 1077, 4, false}, // NAD83(HARN) / New Mexico West
    {2828, 4152, 121069, 1066, 1079, 4, false}, // NAD83(HARN) / New York East
    {2829, 4152, 121043, 1067, 1078, 4, false}, // NAD83(HARN) / New York Central
    {2830, 4152, 121127, 1068, 1081, 4, false}, // NAD83(HARN) / New York West
    {2831, 4152, 121095, 1069, 1080, 4, false}, // NAD83(HARN) / New York Long Island
    {2832, 4152, 121174, 1074, 1082, 4, false}, // NAD83(HARN) / North Dakota North
    {2833, 4152, 121196, 1075, 1083, 4, false}, // NAD83(HARN) / North Dakota South
    {2834, 4152, 121219, 1078, 1084, 4, false}, // NAD83(HARN) / Ohio North
    {2835, 4152, 121238, 1079, 1085, 4, false}, // NAD83(HARN) / Ohio South
    {2836, 4152, 121258, 1084, 1086, 4, false}, // NAD83(HARN) / Oklahoma North
    {2837, 4152, 121281, 1085, 1087, 4, false}, // NAD83(HARN) / Oklahoma South
    {2838, 4152, 121333, 1088, 1088, 4, false}, // NAD83(HARN) / Oregon North
    {2839, 4152, 121347, 1089, 1089, 4, false}, // NAD83(HARN) / Oregon South
    {2840, 4152, 121440, 1096, 265, 4, false}, // NAD83(HARN) / Rhode Island
    {2841, 4152, 121482, 1102, 1094, 4, false}, // NAD83(HARN) / South Dakota North
    {2842, 4152, 121505, 1103, 1095, 4, false}, // NAD83(HARN) / South Dakota South
    {2843, 4152, 121529, 1105, 268, 4, false}, // NAD83(HARN) / Tennessee
    {2844, 4152, 121619, 1111, 1098, 4, false}, // NAD83(HARN) / Texas North
    {2845, 4152, 121640, 1112, 1099, 4, false}, // NAD83(HARN) / Texas North Central
    {2846, 4152, 121552, 1113, 1097, 4, false}, // NAD83(HARN) / Texas Central
    {2847, 4152, 121688, 1114, 1249, 4, false}, // NAD83(HARN) / Texas South Central
    {2848, 4152, 121667, 1115, 1250, 4, false}, // NAD83(HARN) / Texas South
    {2849, 4152, 121857, 1123, 1103, 4, false}, // NAD83(HARN) / Utah North
    {2850, 4152, 121823, 1124, 1102, 4, false}, // NAD83(HARN) / Utah Central
    {2851, 4152, 121887, 1125, 1104, 4, false}, // NAD83(HARN) / Utah South
    {2852, 4152, 121917, 1127, 271, 4, false}, // NAD83(HARN) / Vermont
    {2853, 4152, 121949, 1130, 1105, 4, false}, // NAD83(HARN) / Virginia North
    {2854, 4152, 121970, 1131, 1106, 4, false}, // NAD83(HARN) / Virginia South
    {2855, 4152, 124148, 1134, 1118, 4, false}, // NAD83(HARN) / Washington North
    {2856, 4152, 124173, 1135, 1119, 4, false}, // NAD83(HARN) / Washington South
    {2857, 4152, 124200, 1138, 1109, 4, false}, // NAD83(HARN) / West Virginia North
    {2858, 4152, 124225, 1139, 1110, 4, false}, // NAD83(HARN) / West Virginia South
    {2859, 4152, 124279, 1148, 1112, 4, false}, // NAD83(HARN) / Wisconsin North
    {2860, 4152, 124251, 1149, 1111, 4, false}, // NAD83(HARN) / Wisconsin Central
    {2861, 4152, 124304, 1150, 1113, 4, false}, // NAD83(HARN) / Wisconsin South
    {2862, 4152, 124350, 1157, 1114, 4, false}, // NAD83(HARN) / Wyoming East
    {2863, 4152, 124376, 1158, 1115, 4, false}, // NAD83(HARN) / Wyoming East Central
    {2864, 4152, 124433, 1159, 1117, 4, false}, // NAD83(HARN) / Wyoming West Central
    {2865, 4152, 124407, 1160, 1116, 4, false}, // NAD83(HARN) / Wyoming West
    {2866, 4152, 121422, 1200, 2063, 4, false}, // NAD83(HARN) / Puerto Rico and Virgin Is.
    {2867, 4152, 119370, 1208, 1012, 6, false}, // NAD83(HARN) / Arizona East (ft)
    {2868, 4152, 119348, 1209, 1011, 6, false}, // NAD83(HARN) / Arizona Central (ft)
    {2869, 4152, 119391, 1210, 1013, 6, false}, // NAD83(HARN) / Arizona West (ft)
    {2870, 4152, 119473, 1211, 1020, 8, false}, // NAD83(HARN) / California zone 1 (ftUS)
    {2871, 4152, 119501, 1212, 1021, 8, false}, // NAD83(HARN) / California zone 2 (ftUS)
    {2872, 4152, 119529, 1213, 1022, 8, false}, // NAD83(HARN) / California zone 3 (ftUS)
    {2873, 4152, 119557, 1214, 1023, 8, false}, // NAD83(HARN) / California zone 4 (ftUS)
    {2874, 4152, 119585, 1215, 1027, 8, false}, // NAD83(HARN) / California zone 5 (ftUS)
    {2875, 4152, 119613, 1216, 1025, 8, false}, // NAD83(HARN) / California zone 6 (ftUS)
    {2876, 4152, 119663, 1217, 1029, 8, false}, // NAD83(HARN) / Colorado North (ftUS)
    {2877, 4152, 119640, 1218, 1028, 8, false}, // NAD83(HARN) / Colorado Central (ftUS)
    {2878, 4152, 119685, 1219, 1030, 8, false}, // NAD83(HARN) / Colorado South (ftUS)
    {2879, 4152, 119708, 1220, 235, 8, false}, // NAD83(HARN) / Connecticut (ftUS)
    {2880, 4152, 119742, 1221, 236, 8, false}, // NAD83(HARN) / Delaware (ftUS)
    {2881, 4152, 119765, 1222, 1031, 8, false}, // NAD83(HARN) / Florida East (ftUS)
    {2882, 4152, 119825, 1223, 1033, 8, false}, // NAD83(HARN) / Florida West (ftUS)
    {2883, 4152, 119802, 1224, 1032, 8, false}, // NAD83(HARN) / Florida North (ftUS)
    {2884, 4152, 119849, 1225, 1034, 8, false}, // NAD83(HARN) / Georgia East (ftUS)
    {2885, 4152, 119873, 1226, 1035, 8, false}, // NAD83(HARN) / Georgia West (ftUS)
    {2886, 4152, 119998, 1227, 1037, 8, false}, // NAD83(HARN) / Idaho East (ftUS)
    {2887, 4152, 119975, 1228, 1036, 8, false}, // NAD83(HARN) / Idaho Central (ftUS)
    {2888, 4152, 120020, 1229, 1038, 8, false}, // NAD83(HARN) / Idaho West (ftUS)
    {2889, 4152, 120097, 1230, 1041, 8, true}, // NAD83(HARN) / Indiana East (ftUS)
    {2890, 4152, 120117, 1231, 1042, 8, true}, // NAD83(HARN) / Indiana West (ftUS)
    {2891, 4152, 120220, 1232, 1047, 8, false}, // NAD83(HARN) / Kentucky North (ftUS)
    {2892, 4152, 120285, 1233, 1048, 8, false}, // NAD83(HARN) / Kentucky South (ftUS)
    {2893, 4152, 120433, 1234, 247, 8, false}, // NAD83(HARN) / Maryland (ftUS)
    {2894, 4152, 120496, 1235, 1054, 8, false}, // NAD83(HARN) / Massachusetts Mainland (ftUS)
    {2895, 4152, 120459, 1236, 1053, 8, false}, // NAD83(HARN) / Massachusetts Island (ftUS)
    {2896, 4152, 120556, 1237, 573, 6, false}, // NAD83(HARN) / Michigan North (ft)
    {2897, 4152, 120531, 1238, 574, 6, false}, // NAD83(HARN) / Michigan Central (ft)
    {2898, 4152, 120601, 1239, 575, 6, false}, // NAD83(HARN) / Michigan South (ft)
    {2899, 4152, 120704, 1240, 1061, 8, false}, // NAD83(HARN) / Mississippi East (ftUS)
    {2900, 4152, 120751, 1241, 1062, 8, false}, // NAD83(HARN) / Mississippi West (ftUS)
    {2901, 4152, 120813, 1242, 252, 6, false}, // NAD83(HARN) / Montana (ft)
    {2902, 4152, 120999, 1243, 1073, 8, false}, // NAD83(HARN) / New Mexico East (ftUS)
    {2903, 4152, 120970, 1244, 1076, 8, false}, // NAD83(HARN) / New Mexico Central (ftUS)
    {2904, 4152, 121027, 1245, 1077, 8, false}, // NAD83(HARN) / New Mexico West (ftUS)
    {2905, 4152, 121080, 1246, 1079, 8, false}, // NAD83(HARN) / New York East (ftUS)
    {2906, 4152, 121054, 1247, 1078, 8, false}, // NAD83(HARN) / New York Central (ftUS)
    {2907, 4152, 121138, 1248, 1081, 8, false}, // NAD83(HARN) / New York West (ftUS)
    {2908, 4152, 121108, 1249, 1080, 8, false}, // NAD83(HARN) / New York Long Island (ftUS)
    {2909, 4152, 121183, 1251, 1082, 6, false}, // NAD83(HARN) / North Dakota North (ft)
    {2910, 4152, 121206, 1252, 1083, 6, false}, // NAD83(HARN) / North Dakota South (ft)
    {2911, 4152, 121267, 1253, 1086, 8, false}, // NAD83(HARN) / Oklahoma North (ftUS)
    {2912, 4152, 121291, 1254, 1087, 8, false}, // NAD83(HARN) / Oklahoma South (ftUS)
    {2913, 4152, 121338, 1255, 1088, 6, false}, // NAD83(HARN) / Oregon North (ft)
    {2914, 4152, 121353, 1256, 1089, 6, false}, // NAD83(HARN) / Oregon South (ft)
    {2915, 4152, 121538, 1260, 268, 8, false}, // NAD83(HARN) / Tennessee (ftUS)
    {2916, 4152, 121627, 1261, 1098, 8, false}, // NAD83(HARN) / Texas North (ftUS)
    {2917, 4152, 121651, 1262, 1099, 8, false}, // NAD83(HARN) / Texas North Central (ftUS)
    {2918, 4152, 121562, 1263, 1097, 8, false}, // NAD83(HARN) / Texas Central (ftUS)
    {2919, 4152, 121699, 1264, 1249, 8, false}, // NAD83(HARN) / Texas South Central (ftUS)
    {2920, 4152, 121675, 1265, 1250, 8, false}, // NAD83(HARN) / Texas South (ftUS)
    {2921, 4152, 121864, 1266, 1103, 6, false}, // NAD83(HARN) / Utah North (ft)
    {2922, 4152, 121832, 1267, 1102, 6, false}, // NAD83(HARN) / Utah Central (ft)
    {2923, 4152, 121894, 1268, 1104, 6, false}, // NAD83(HARN) / Utah South (ft)
    {2924, 4152, 121957, 1269, 1105, 8, false}, // NAD83(HARN) / Virginia North (ftUS)
    {2925, 4152, 121979, 1270, 1106, 8, false}, // NAD83(HARN) / Virginia South (ftUS)
    {2926, 4152, 124158, 1271, 1118, 8, false}, // NAD83(HARN) / Washington North (ftUS)
    {2927, 4152, 124184, 1272, 1119, 8, false}, // NAD83(HARN) / Washington South (ftUS)
    {2928, 4152, 124289, 1273, 1112, 8, false}, // NAD83(HARN) / Wisconsin North (ftUS)
    {2929, 4152, 124263, 1274, 1111, 8, false}, // NAD83(HARN) / Wisconsin Central (ftUS)
    {2930, 4152, 124314, 1275, 1113, 8, false}, // NAD83(HARN) / Wisconsin South (ftUS)
    {2931, 4213, 20180, 1596, 1392, 4, false}, // Beduaram / TM 13 NE
    {2932, 4614, 167033, 2309, 208, 4, false}, // QND95 / Qatar National Grid
    {2933, 4613, 184822, 1448, 190, 4, false}, // Segara / UTM zone 50S
    {2934, 4820, 184791, 2298, 220, 4, true}, // Segara (Jakarta) / NEIEZ
    {2935, 4284, 156220, 2224, 1393, 5, false}, // Pulkovo 1942 / CS63 zone A1
    {2936, 4284, 156238, 2225, 1394, 5, false}, // Pulkovo 1942 / CS63 zone A2
    {2937, 4284, 156256, 2226, 1395, 5, false}, // Pulkovo 1942 / CS63 zone A3
    {2938, 4284, 156274, 2227, 1396, 5, false}, // Pulkovo 1942 / CS63 zone A4
    {2939, 4284, 156346, 2228, 1397, 5, false}, // Pulkovo 1942 / CS63 zone K2
    {2940, 4284, 156364, 2229, 1398, 5, false}, // Pulkovo 1942 / CS63 zone K3
    {2941, 4284, 156382, 2230, 1399, 5, false}, // Pulkovo 1942 / CS63 zone K4
    {2942, 4615, 150921, 1337, 178, 4, false}, // Porto Santo / UTM zone 28N
    {2943, 4616, 184916, 1337, 1400, 4, false}, // Selvagem Grande / UTM zone 28N
    {2944, 4617, 116658, 1922, 276, 4, true}, // NAD83(CSRS) / SCoPQ zone 2
    {2945, 4617, 116460, 1925, 1135, 4, false}, // NAD83(CSRS) / MTM zone 3
    {2946, 4617, 116469, 1926, 1121, 4, false}, // NAD83(CSRS) / MTM zone 4
    {2947, 4617, 116478, 1927, 1122, 4, false}, // NAD83(CSRS) / MTM zone 5
    {2948, 4617, 116487, 1928, 1123, 4, false}, // NAD83(CSRS) / MTM zone 6
    {2949, 4617, 116496, 1929, 281, 4, false}, // NAD83(CSRS) / MTM zone 7
    {2950, 4617, 116505, 1930, 1124, 4, false}, // NAD83(CSRS) / MTM zone 8
    {2951, 4617, 116514, 1931, 1125, 4, false}, // NAD83(CSRS) / MTM zone 9
    {2952, 4617, 116371, 1932, 1126, 4, false}, // NAD83(CSRS) / MTM zone 10
    {2953, 4617, 116551, 2335, 303, 5, false}, // NAD83(CSRS) / New Brunswick Stereographic
    {2954, 4617, 116594, 2349, 387, 4, false}, // NAD83(CSRS) / Prince Edward Isl. Stereographic (NAD83)
    {2955, 4617, 116720, 1320, 1963, 4, false}, // NAD83(CSRS) / UTM zone 11N
    {2956, 4617, 116731, 1321, 1962, 4, false}, // NAD83(CSRS) / UTM zone 12N
    {2957, 4617, 116742, 1322, 1961, 4, false}, // NAD83(CSRS) / UTM zone 13N
    {2958, 4617, 116786, 1326, 1863, 4, false}, // NAD83(CSRS) / UTM zone 17N
    {2959, 4617, 116797, 1327, 1864, 4, false}, // NAD83(CSRS) / UTM zone 18N
    {2960, 4617, 116808, 1328, 1959, 4, false}, // NAD83(CSRS) / UTM zone 19N
    {2961, 4617, 116819, 1329, 1960, 4, false}, // NAD83(CSRS) / UTM zone 20N
    {2962, 4617, 116829, 1330, 996, 4, false}, // NAD83(CSRS) / UTM zone 21N
    {2963, 4904, 86151, 2366, 162, 1, false}, // Lisbon 1890 (Lisbon) / Portugal Bonne
    {2964, 4267, 97591, 1175, 192, 8, false}, // NAD27 / Alaska Albers
    {2965, 4269, 102187, 1276, 1041, 8, false}, // NAD83 / Indiana East (ftUS)
    {2966, 4269, 102207, 1277, 1042, 8, false}, // NAD83 / Indiana West (ftUS)
    {2967, 4152, 120097, 1276, 1041, 8, false}, // NAD83(HARN) / Indiana East (ftUS)
    {2968, 4152, 120117, 1277, 1042, 8, false}, // NAD83(HARN) / Indiana West (ftUS)
    {2969, 4621, 52672, 1329, 1431, 4, false}, // Fort Marigot / UTM zone 20N
    {2970, 4622, 65812, 1329, 1432, 4, false}, // Guadeloupe 1948 / UTM zone 20N
    {2971, 4623, 28667, 1331, 2161, 4, false}, // CSG67 / UTM zone 22N
    {2972, 4624, 169155, 1331, 1662, 4, false}, // RGFG95 / UTM zone 22N
    {2973, 4625, 92784, 1329, 1759, 4, false}, // Martinique 1938 / UTM zone 20N
    {2975, 4627, 169735, 1438, 2277, 4, false}, // RGR92 / UTM zone 40S
    {2976, 4628, 192962, 1404, 1415, 4, false}, // Tahiti 52 / UTM zone 6S
    {2977, 4629, 192919, 1403, 1416, 4, false}, // Tahaa 54 / UTM zone 5S
    {2978, 4630, 69978, 1405, 1652, 4, false}, // IGN72 Nuku Hiva / UTM zone 7S
    {2979, 4631, 79085, 1440, 1420, 4, true}, // K0 1949 / UTM zone 42S
    {2980, 4632, 35293, 1436, 1800, 4, false}, // Combani 1950 / UTM zone 38S
    {2981, 4633, 69779, 1456, 1418, 4, false}, // IGN56 Lifou / UTM zone 58S
    {2982, 4634, 69905, 1456, 1426, 4, true}, // IGN72 Grand Terre / UTM zone 58S
    {2983, 4635, 183113, 1456, 1417, 4, true}, // ST87 Ouvea / UTM zone 58S
    {2984, 4645, 169338, 2367, 95, 4, true}, // RGNC 1991 / Lambert New Caledonia
    {2985, 4636, 149654, 2369, 1421, 4, false}, // Petrels 1972 / Terre Adelie Polar Stereographic
    {2986, 4637, 149381, 2369, 1422, 4, false}, // Perroud 1950 / Terre Adelie Polar Stereographic
    {2987, 4638, 183692, 1330, 1776, 4, false}, // Saint Pierre et Miquelon 1950 / UTM zone 21N
    {2988, 4639, 90204, 1399, 1419, 4, false}, // MOP78 / UTM zone 1S
    {2989, 4640, 170661, 1329, 1428, 4, true}, // RRAF 1991 / UTM zone 20N
    {2990, 4626, 173221, 2368, 1798, 4, true}, // Reunion 1947 / TM Reunion
    {2991, 4269, 103697, 1090, 263, 4, false}, // NAD83 / Oregon LCC (m)
    {2992, 4269, 103680, 1278, 263, 6, false}, // NAD83 / Oregon GIC Lambert (ft)
    {2993, 4152, 121322, 1090, 263, 4, false}, // NAD83(HARN) / Oregon LCC (m)
    {2994, 4152, 121305, 1278, 263, 6, false}, // NAD83(HARN) / Oregon GIC Lambert (ft)
    {2995, 4641, 69689, 1456, 1881, 4, false}, // IGN53 Mare / UTM zone 58S
    {2996, 4642, 183043, 1456, 1424, 4, false}, // ST84 Ile des Pins / UTM zone 58S
    {2997, 4643, 182984, 1456, 1425, 4, false}, // ST71 Belep / UTM zone 58S
    {2998, 4644, 130088, 1456, 1427, 4, false}, // NEA74 Noumea / UTM zone 58S
    {2999, 4646, 64674, 1436, 1413, 4, false}, // Grand Comoros / UTM zone 38S
    {3000, 4613, 184810, 2298, 220, 4, false}, // Segara / NEIEZ
    {3001, 4211, 19924, 2298, 154, 4, false}, // Batavia / NEIEZ
    {3002, 4257, 91529, 2298, 180, 4, false}, // Makassar / NEIEZ
    {3003, 4265, 96518, 2101, 569, 4, false}, // Monte Mario / Italy zone 1
    {3004, 4265, 96534, 2102, 570, 4, false}, // Monte Mario / Italy zone 2
    {3005, 4269, 101166, 2370, 1434, 4, false}, // NAD83 / BC Albers
    {3006, 4619, 183580, 1835, 120, 5, false}, // SWEREF99 TM
    {3007, 4619, 183401, 1823, 1435, 5, false}, // SWEREF99 12 00
    {3008, 4619, 183416, 1824, 1436, 5, false}, // SWEREF99 13 30
    {3009, 4619, 183446, 1825, 1437, 5, false}, // SWEREF99 15 00
    {3010, 4619, 183476, 1826, 1438, 5, false}, // SWEREF99 16 30
    {3011, 4619, 183506, 1827, 1439, 5, false}, // SWEREF99 18 00
    {3012, 4619, 183431, 1828, 1440, 5, false}, // SWEREF99 14 15
    {3013, 4619, 183461, 1829, 1441, 5, false}, // SWEREF99 15 45
    {3014, 4619, 183491, 1830, 1442, 5, false}, // SWEREF99 17 15
    {3015, 4619, 183521, 1831, 1443, 5, false}, // SWEREF99 18 45
    {3016, 4619, 183536, 1832, 1444, 5, false}, // SWEREF99 20 15
    {3017, 4619, 183550, 1833, 1445, 5, false}, // SWEREF99 21 45
    {3018, 4619, 183565, 1834, 1446, 5, false}, // SWEREF99 23 15
    {3019, 4124, 171507, 1836, 1447, 5, false}, // RT90 7.5 gon V
    {3020, 4124, 171479, 1837, 1448, 5, false}, // RT90 5 gon V
    {3021, 4124, 171409, 2319, 1449, 5, false}, // RT90 2.5 gon V
    {3022, 4124, 171354, 1838, 1450, 5, false}, // RT90 0 gon
    {3023, 4124, 171379, 1839, 1451, 5, false}, // RT90 2.5 gon O
    {3024, 4124, 171451, 1840, 1452, 5, false}, // RT90 5 gon O
    {3025, 4308, 171250, 1836, 1447, 5, false}, // RT38 7.5 gon V
    {3026, 4308, 171222, 1837, 1448, 5, false}, // RT38 5 gon V
    {3027, 4308, 171170, 2319, 1449, 5, false}, // RT38 2.5 gon V
    {3028, 4308, 171115, 1838, 1450, 5, false}, // RT38 0 gon
    {3029, 4308, 171140, 1839, 1451, 5, false}, // RT38 2.5 gon O
    {3030, 4308, 171194, 1840, 1452, 5, false}, // RT38 5 gon O
    {3031, 4326, 213725, 2378, 5, 4, false}, // WGS 84 / Antarctic Polar Stereographic
    {3032, 4326, 213832, 2379, 149, 4, false}, // WGS 84 / Australian Antarctic Polar Stereographic
    {3033, 4326, 213807, 2380, 1472, 4, false}, // WGS 84 / Australian Antarctic Lambert
    {3034, 4258, 46472, 2371, 1473, 5, false}, // ETRS89-extended / LCC Europe
    {3035, 4258, 46448, 2372, 1473, 5, false}, // ETRS89-extended / LAEA Europe
    {3036, 4130, 97215, 1434, 2282, 4, false}, // Moznet / UTM zone 36S
    {3037, 4130, 97228, 1435, 2283, 4, false}, // Moznet / UTM zone 37S
    {3038, 4258, 45777, 1335, 1456, 5, true}, // ETRS89 / TM26
    {3039, 4258, 45787, 1336, 1457, 5, true}, // ETRS89 / TM27
    {3040, 4258, 45866, 1337, 967, 5, false}, // ETRS89 / UTM zone 28N (N-E)
    {3041, 4258, 45897, 1338, 968, 5, false}, // ETRS89 / UTM zone 29N (N-E)
    {3042, 4258, 45928, 1339, 969, 5, false}, // ETRS89 / UTM zone 30N (N-E)
    {3043, 4258, 45959, 1340, 970, 5, false}, // ETRS89 / UTM zone 31N (N-E)
    {3044, 4258, 46028, 1341, 971, 5, false}, // ETRS89 / UTM zone 32N (N-E)
    {3045, 4258, 46097, 1342, 972, 5, false}, // ETRS89 / UTM zone 33N (N-E)
    {3046, 4258, 46153, 1343, 973, 5, false}, // ETRS89 / UTM zone 34N (N-E)
    {3047, 4258, 46184, 1344, 974, 5, false}, // ETRS89 / UTM zone 35N (N-E)
    {3048, 4258, 46215, 1345, 975, 5, false}, // ETRS89 / UTM zone 36N (N-E)
    {3049, 4258, 46246, 1346, 976, 5, false}, // ETRS89 / UTM zone 37N (N-E)
    {3050, 4258, 45833, 1347, 1461, 5, true}, // ETRS89 / TM38
    {3051, 4258, 45843, 1348, 1462, 5, true}, // ETRS89 / TM39
    {3052, 4657, 173278, 2373, 1747, 2, false}, // Reykjavik 1900 / Lambert 1900
    {3053, 4658, 67970, 2374, 1747, 2, false}, // Hjorsey 1955 / Lambert 1955
    {3054, 4658, 67989, 1335, 1453, 4, false}, // Hjorsey 1955 / UTM zone 26N
    {3055, 4658, 68006, 1336, 1454, 4, false}, // Hjorsey 1955 / UTM zone 27N
    {3056, 4658, 68023, 1337, 1455, 4, false}, // Hjorsey 1955 / UTM zone 28N
    {3057, 4659, 70707, 2375, 58, 4, false}, // ISN93 / Lambert 1993
    {3058, 4660, 67695, 2377, 1463, 5, false}, // Helle 1954 / Jan Mayen Grid
    {3059, 4661, 84324, 2376, 72, 5, false}, // LKS92 / Latvia TM
    {3060, 4662, 69940, 1456, 1426, 4, false}, // IGN72 Grande Terre / UTM zone 58S
    {3061, 4663, 150961, 1337, 178, 4, false}, // Porto Santo 1995 / UTM zone 28N
    {3062, 4664, 18229, 1335, 207, 4, false}, // Azores Oriental 1995 / UTM zone 26N
    {3063, 4665, 18076, 1335, 167, 4, false}, // Azores Central 1995 / UTM zone 26N
    {3064, 4670, 69486, 1341, 569, 4, false}, // IGM95 / UTM zone 32N
    {3065, 4670, 69499, 1342, 2503, 4, false}, // IGM95 / UTM zone 33N
    {3066, 4230, 41546, 2381, 67, 4, false}, // ED50 / Jordan TM
    {3067, 4258, 45797, 1371, 46, 4, false}, // ETRS89 / TM35FIN(E,N)
    {3068, 4314, 38937, 2382, 1483, 5, false}, // DHDN / Soldner Berlin
    {3069, 4267, 99970, 1147, 274, 4, false}, // NAD27 / Wisconsin Transverse Mercator
    {3070, 4269, 104741, 1151, 274, 4, false}, // NAD83 / Wisconsin Transverse Mercator
    {3071, 4152, 124329, 1151, 274, 4, false}, // NAD83(HARN) / Wisconsin Transverse Mercator
    {3072, 4269, 102623, 1000, 1493, 4, false}, // NAD83 / Maine CS2000 East
    {3073, 4269, 102610, 1001, 1492, 4, true}, // NAD83 / Maine CS2000 Central
    {3074, 4269, 102636, 1002, 1491, 4, false}, // NAD83 / Maine CS2000 West
    {3075, 4152, 120357, 1000, 1493, 4, false}, // NAD83(HARN) / Maine CS2000 East
    {3076, 4152, 120344, 1001, 1492, 4, true}, // NAD83(HARN) / Maine CS2000 Central
    {3077, 4152, 120370, 1002, 1491, 4, false}, // NAD83(HARN) / Maine CS2000 West
    {3078, 4269, 102836, 1019, 248, 4, false}, // NAD83 / Michigan Oblique Mercator
    {3079, 4152, 120570, 1019, 248, 4, false}, // NAD83(HARN) / Michigan Oblique Mercator
    {3080, 4267, 99443, 1117, 269, 6, false}, // NAD27 / Shackleford
    {3081, 4269, 104161, 1116, 269, 4, false}, // NAD83 / Texas State Mapping System
    {3082, 4269, 104044, 1118, 269, 4, false}, // NAD83 / Texas Centric Lambert Conformal
    {3083, 4269, 104022, 1119, 269, 4, false}, // NAD83 / Texas Centric Albers Equal Area
    {3084, 4152, 121598, 1118, 269, 4, false}, // NAD83(HARN) / Texas Centric Lambert Conformal
    {3085, 4152, 121576, 1119, 269, 4, false}, // NAD83(HARN) / Texas Centric Albers Equal Area
    {3086, 4269, 101823, 956, 237, 4, false}, // NAD83 / Florida GDL Albers
    {3087, 4152, 119779, 956, 237, 4, false}, // NAD83(HARN) / Florida GDL Albers
    {3088, 4269, 102351, 985, 244, 4, false}, // NAD83 / Kentucky Single Zone
    {3089, 4269, 102368, 1279, 244, 8, false}, // NAD83 / Kentucky Single Zone (ftUS)
    {3090, 4152, 120235, 985, 244, 4, false}, // NAD83(HARN) / Kentucky Single Zone
    {3091, 4152, 120252, 1279, 244, 8, false}, // NAD83(HARN) / Kentucky Single Zone (ftUS)
    {3092, 4301, 195034, 1360, 1484, 4, false}, // Tokyo / UTM zone 51N
    {3093, 4301, 195047, 1361, 1485, 4, false}, // Tokyo / UTM zone 52N
    {3094, 4301, 195060, 1362, 1486, 4, false}, // Tokyo / UTM zone 53N
    {3095, 4301, 195073, 1363, 1487, 4, false}, // Tokyo / UTM zone 54N
    {3096, 4301, 195086, 1364, 1488, 4, false}, // Tokyo / UTM zone 55N
    {3097, 4612, 76744, 1360, 2304, 4, false}, // JGD2000 / UTM zone 51N
    {3098, 4612, 76757, 1361, 2305, 4, false}, // JGD2000 / UTM zone 52N
    {3099, 4612, 76770, 1362, 2306, 4, false}, // JGD2000 / UTM zone 53N
    {3100, 4612, 76783, 1363, 2307, 4, false}, // JGD2000 / UTM zone 54N
    {3101, 4612, 76796, 1364, 2308, 4, false}, // JGD2000 / UTM zone 55N
    {3102, 4169, 6936, 1280, 1634, 8, false}, // American Samoa 1962 / American Samoa Lambert
    {3103, 4681, 93209, 1337, 1504, 4, true}, // Mauritania 1999 / UTM zone 28N
    {3104, 4681, 93226, 1338, 1503, 4, true}, // Mauritania 1999 / UTM zone 29N
    {3105, 4681, 93243, 1339, 1502, 4, true}, // Mauritania 1999 / UTM zone 30N
    {3106, 4682, 66083, 1598, 1717, 4, false}, // Gulshan 303 / TM 90 NE
    {3107, 4283, 55476, 1858, 1511, 4, false}, // GDA94 / SA Lambert
    {3108, 4258, 45293, 2384, 1514, 4, false}, // ETRS89 / Guernsey Grid
    {3109, 4258, 45310, 2385, 1513, 4, false}, // ETRS89 / Jersey Transverse Mercator
    {3110, 4202, 3835, 1859, 1130, 4, false}, // AGD66 / Vicgrid66
    {3111, 4283, 55491, 1860, 1130, 4, false}, // GDA94 / Vicgrid
    {3112, 4283, 55201, 1861, 1272, 4, false}, // GDA94 / Geoscience Australia Lambert
    {3113, 4283, 55164, 1862, 1515, 4, false}, // GDA94 / BCSG02
    {3114, 4686, 88099, 2063, 1616, 5, false}, // MAGNA-SIRGAS / Colombia Far West zone
    {3115, 4686, 88125, 2064, 1615, 5, false}, // MAGNA-SIRGAS / Colombia West zone
    {3116, 4686, 88024, 2065, 453, 5, false}, // MAGNA-SIRGAS / Colombia Bogota zone
    {3117, 4686, 88050, 2066, 454, 5, false}, // MAGNA-SIRGAS / Colombia East Central zone
    {3118, 4686, 88076, 2067, 455, 5, false}, // MAGNA-SIRGAS / Colombia East zone
    {3119, 4192, 40928, 2209, 1262, 4, false}, // Douala 1948 / AEF west
    {3120, 4179, 159621, 2184, 369, 5, false}, // Pulkovo 1942(58) / Poland zone I
    {3121, 4683, 147137, 2116, 550, 4, false}, // PRS92 / Philippines zone 1
    {3122, 4683, 147153, 2117, 551, 4, false}, // PRS92 / Philippines zone 2
    {3123, 4683, 147169, 2118, 552, 4, false}, // PRS92 / Philippines zone 3
    {3124, 4683, 147185, 2119, 553, 4, false}, // PRS92 / Philippines zone 4
    {3125, 4683, 147201, 2120, 554, 4, false}, // PRS92 / Philippines zone 5
    {3126, 4258, 44833, 2124, 1617, 5, false}, // ETRS89 / ETRS-GK19FIN
    {3127, 4258, 44850, 2125, 1618, 5, false}, // ETRS89 / ETRS-GK20FIN
    {3128, 4258, 44867, 2126, 1619, 5, false}, // ETRS89 / ETRS-GK21FIN
    {3129, 4258, 44885, 2127, 1620, 5, false}, // ETRS89 / ETRS-GK22FIN
    {3130, 4258, 44903, 2128, 1621, 5, false}, // ETRS89 / ETRS-GK23FIN
    {3131, 4258, 44921, 2129, 1622, 5, false}, // ETRS89 / ETRS-GK24FIN
    {3132, 4258, 44939, 2130, 1623, 5, false}, // ETRS89 / ETRS-GK25FIN
    {3133, 4258, 44957, 2131, 1624, 5, false}, // ETRS89 / ETRS-GK26FIN
    {3134, 4258, 44975, 2136, 1625, 5, false}, // ETRS89 / ETRS-GK27FIN
    {3135, 4258, 44992, 2137, 1626, 5, false}, // ETRS89 / ETRS-GK28FIN
    {3136, 4258, 45010, 2138, 1627, 5, false}, // ETRS89 / ETRS-GK29FIN
    {3137, 4258, 45028, 2139, 1628, 5, false}, // ETRS89 / ETRS-GK30FIN
    {3138, 4258, 45046, 2140, 1629, 5, false}, // ETRS89 / ETRS-GK31FIN
    {3139, 4748, 208056, 2271, 1848, 21, false}, // Vanua Levu 1915 / Vanua Levu Grid
    {3140, 4752, 209578, 2272, 1700, 21, false}, // Viti Levu 1912 / Viti Levu Grid
    {3141, 4721, 51249, 1458, 1846, 4, false}, // Fiji 1956 / UTM zone 60S
    {3142, 4721, 51235, 1399, 1847, 4, false}, // Fiji 1956 / UTM zone 1S
    {3143, 4720, 51272, 2273, 45, 4, true}, // Fiji 1986 / Fiji Map Grid
    {3144, 4741, 50425, 2263, 1738, 3, false}, // FD54 / Faroe Lambert
    {3145, 4258, 45064, 2263, 1738, 3, false}, // ETRS89 / Faroe Lambert
    {3146, 4284, 155936, 1509, 1850, 5, true}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 6
    {3147, 4284, 153357, 1574, 1850, 5, true}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 18E
    {3148, 4131, 72603, 1357, 396, 4, false}, // Indian 1960 / UTM zone 48N
    {3149, 4131, 72616, 1358, 309, 4, false}, // Indian 1960 / UTM zone 49N
    {3150, 4200, 163990, 1509, 1850, 5, true}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 6
    {3151, 4200, 161411, 1574, 1850, 5, true}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 18E
    {3152, 4619, 37231, 2269, 1855, 5, false}, // ST74
    {3153, 4617, 116042, 2370, 1434, 4, false}, // NAD83(CSRS) / BC Albers
    {3154, 4617, 116873, 1316, 1856, 4, false}, // NAD83(CSRS) / UTM zone 7N
    {3155, 4617, 116883, 1317, 1857, 4, false}, // NAD83(CSRS) / UTM zone 8N
    {3156, 4617, 116893, 1318, 1858, 4, false}, // NAD83(CSRS) / UTM zone 9N
    {3157, 4617, 116710, 1319, 1859, 4, false}, // NAD83(CSRS) / UTM zone 10N
    {3158, 4617, 116753, 1323, 1860, 4, false}, // NAD83(CSRS) / UTM zone 14N
    {3159, 4617, 116764, 1324, 1861, 4, false}, // NAD83(CSRS) / UTM zone 15N
    {3160, 4617, 116775, 1325, 1862, 4, false}, // NAD83(CSRS) / UTM zone 16N
    {3161, 4269, 103664, 2268, 227, 4, false}, // NAD83 / Ontario MNR Lambert
    {3162, 4617, 116575, 2268, 227, 4, false}, // NAD83(CSRS) / Ontario MNR Lambert
    {3163, 4749, 169425, 2367, 1877, 4, false}, // RGNC91-93 / Lambert New Caledonia
    {3164, 4750, 183113, 1456, 1417, 4, false}, // ST87 Ouvea / UTM zone 58S
    {3165, 4644, 130040, 2266, 1427, 4, false}, // NEA74 Noumea / Noumea Lambert
    {3166, 4644, 130063, 2267, 1427, 4, false}, // NEA74 Noumea / Noumea Lambert 2
    {3167, 4751, 81688, 2264, 542, 26, false}, // Kertau (RSO) / RSO Malaya (ch)
    {3168, 4751, 81710, 2265, 542, 4, false}, // Kertau (RSO) / RSO Malaya (m)
    {3169, 4749, 169449, 1455, 1878, 4, false}, // RGNC91-93 / UTM zone 57S
    {3170, 4749, 169466, 1456, 1879, 4, false}, // RGNC91-93 / UTM zone 58S
    {3171, 4749, 169483, 1457, 1880, 4, false}, // RGNC91-93 / UTM zone 59S
    {3172, 4641, 69706, 1457, 1882, 4, false}, // IGN53 Mare / UTM zone 59S
    {3173, 4753, 230985, 2270, 1738, 3, false}, // fk89 / Faroe Lambert FK89
    {3174, 4269, 101931, 1301, 1914, 4, false}, // NAD83 / Great Lakes Albers
    {3175, 4269, 101946, 1302, 1915, 4, false}, // NAD83 / Great Lakes and St Lawrence Albers
    {3176, 4131, 72589, 1599, 350, 4, false}, // Indian 1960 / TM 106 NE
    {3177, 4754, 84071, 2205, 74, 4, false}, // LGD2006 / Libya TM
    {3178, 4747, 56472, 1327, 1896, 4, false}, // GR96 / UTM zone 18N
    {3179, 4747, 56484, 1328, 1897, 4, false}, // GR96 / UTM zone 19N
    {3180, 4747, 56496, 1329, 1898, 4, false}, // GR96 / UTM zone 20N
    {3181, 4747, 56507, 1330, 1899, 4, false}, // GR96 / UTM zone 21N
    {3182, 4747, 56519, 1331, 1900, 4, false}, // GR96 / UTM zone 22N
    {3183, 4747, 56531, 1332, 1901, 4, false}, // GR96 / UTM zone 23N
    {3184, 4747, 56543, 1333, 1902, 4, false}, // GR96 / UTM zone 24N
    {3185, 4747, 56555, 1334, 1903, 4, false}, // GR96 / UTM zone 25N
    {3186, 4747, 56567, 1335, 1904, 4, false}, // GR96 / UTM zone 26N
    {3187, 4747, 56579, 1336, 1905, 4, false}, // GR96 / UTM zone 27N
    {3188, 4747, 56591, 1337, 1906, 4, false}, // GR96 / UTM zone 28N
    {3189, 4747, 56603, 1338, 1907, 4, false}, // GR96 / UTM zone 29N
    {3190, 4754, 84148, 2196, 326, 4, false}, // LGD2006 / Libya TM zone 5
    {3191, 4754, 84163, 2197, 327, 4, false}, // LGD2006 / Libya TM zone 6
    {3192, 4754, 84178, 2198, 328, 4, false}, // LGD2006 / Libya TM zone 7
    {3193, 4754, 84193, 2199, 329, 4, false}, // LGD2006 / Libya TM zone 8
    {3194, 4754, 84208, 2200, 330, 4, false}, // LGD2006 / Libya TM zone 9
    {3195, 4754, 84084, 2201, 331, 4, false}, // LGD2006 / Libya TM zone 10
    {3196, 4754, 84100, 2202, 332, 4, false}, // LGD2006 / Libya TM zone 11
    {3197, 4754, 84116, 2203, 333, 4, false}, // LGD2006 / Libya TM zone 12
    {3198, 4754, 84132, 2204, 334, 4, false}, // LGD2006 / Libya TM zone 13
    {3199, 4754, 84223, 1341, 2294, 4, false}, // LGD2006 / UTM zone 32N
    {3200, 4132, 50458, 2299, 166, 4, false}, // FD58 / Iraq zone
    {3201, 4754, 84236, 1342, 2295, 4, false}, // LGD2006 / UTM zone 33N
    {3202, 4754, 84249, 1343, 2296, 4, false}, // LGD2006 / UTM zone 34N
    {3203, 4754, 84262, 1344, 2287, 4, false}, // LGD2006 / UTM zone 35N
    {3204, 4326, 216053, 1726, 1516, 4, false}, // WGS 84 / SCAR IMW SP19-20
    {3205, 4326, 216073, 1727, 1517, 4, false}, // WGS 84 / SCAR IMW SP21-22
    {3206, 4326, 216094, 1728, 1518, 4, false}, // WGS 84 / SCAR IMW SP23-24
    {3207, 4326, 216115, 1729, 1519, 4, false}, // WGS 84 / SCAR IMW SQ01-02
    {3208, 4326, 216136, 1730, 1520, 4, false}, // WGS 84 / SCAR IMW SQ19-20
    {3209, 4326, 216156, 1731, 1521, 4, false}, // WGS 84 / SCAR IMW SQ21-22
    {3210, 4326, 216177, 1732, 1522, 4, false}, // WGS 84 / SCAR IMW SQ37-38
    {3211, 4326, 216198, 1733, 1523, 4, false}, // WGS 84 / SCAR IMW SQ39-40
    {3212, 4326, 216219, 1734, 1524, 4, false}, // WGS 84 / SCAR IMW SQ41-42
    {3213, 4326, 216240, 1735, 1525, 4, false}, // WGS 84 / SCAR IMW SQ43-44
    {3214, 4326, 216261, 1736, 1526, 4, false}, // WGS 84 / SCAR IMW SQ45-46
    {3215, 4326, 216282, 1737, 1527, 4, false}, // WGS 84 / SCAR IMW SQ47-48
    {3216, 4326, 216303, 1738, 1528, 4, false}, // WGS 84 / SCAR IMW SQ49-50
    {3217, 4326, 216324, 1739, 1529, 4, false}, // WGS 84 / SCAR IMW SQ51-52
    {3218, 4326, 216345, 1740, 1530, 4, false}, // WGS 84 / SCAR IMW SQ53-54
    {3219, 4326, 216366, 1741, 1531, 4, false}, // WGS 84 / SCAR IMW SQ55-56
    {3220, 4326, 216387, 1742, 1532, 4, false}, // WGS 84 / SCAR IMW SQ57-58
    {3221, 4326, 216408, 1743, 1533, 4, false}, // WGS 84 / SCAR IMW SR13-14
    {3222, 4326, 216429, 1744, 1534, 4, false}, // WGS 84 / SCAR IMW SR15-16
    {3223, 4326, 216450, 1745, 1535, 4, false}, // WGS 84 / SCAR IMW SR17-18
    {3224, 4326, 216471, 1746, 1536, 4, false}, // WGS 84 / SCAR IMW SR19-20
    {3225, 4326, 216491, 1747, 1537, 4, false}, // WGS 84 / SCAR IMW SR27-28
    {3226, 4326, 216511, 1748, 1538, 4, false}, // WGS 84 / SCAR IMW SR29-30
    {3227, 4326, 216532, 1749, 1539, 4, false}, // WGS 84 / SCAR IMW SR31-32
    {3228, 4326, 216553, 1750, 1540, 4, false}, // WGS 84 / SCAR IMW SR33-34
    {3229, 4326, 216574, 1751, 1541, 4, false}, // WGS 84 / SCAR IMW SR35-36
    {3230, 4326, 216595, 1752, 1542, 4, false}, // WGS 84 / SCAR IMW SR37-38
    {3231, 4326, 216616, 1753, 1543, 4, false}, // WGS 84 / SCAR IMW SR39-40
    {3232, 4326, 216637, 1754, 1544, 4, false}, // WGS 84 / SCAR IMW SR41-42
    {3233, 4326, 216658, 1755, 1545, 4, false}, // WGS 84 / SCAR IMW SR43-44
    {3234, 4326, 216679, 1756, 1546, 4, false}, // WGS 84 / SCAR IMW SR45-46
    {3235, 4326, 216700, 1757, 1547, 4, false}, // WGS 84 / SCAR IMW SR47-48
    {3236, 4326, 216721, 1758, 1548, 4, false}, // WGS 84 / SCAR IMW SR49-50
    {3237, 4326, 216742, 1759, 1549, 4, false}, // WGS 84 / SCAR IMW SR51-52
    {3238, 4326, 216763, 1760, 1550, 4, false}, // WGS 84 / SCAR IMW SR53-54
    {3239, 4326, 216784, 1761, 1551, 4, false}, // WGS 84 / SCAR IMW SR55-56
    {3240, 4326, 216805, 1762, 1552, 4, false}, // WGS 84 / SCAR IMW SR57-58
    {3241, 4326, 216826, 1763, 1553, 4, false}, // WGS 84 / SCAR IMW SR59-60
    {3242, 4326, 216847, 1764, 1554, 4, false}, // WGS 84 / SCAR IMW SS04-06
    {3243, 4326, 216868, 1765, 1555, 4, false}, // WGS 84 / SCAR IMW SS07-09
    {3244, 4326, 216889, 1766, 1556, 4, false}, // WGS 84 / SCAR IMW SS10-12
    {3245, 4326, 216909, 1767, 1557, 4, false}, // WGS 84 / SCAR IMW SS13-15
    {3246, 4326, 216930, 1768, 1558, 4, false}, // WGS 84 / SCAR IMW SS16-18
    {3247, 4326, 216951, 1769, 1559, 4, false}, // WGS 84 / SCAR IMW SS19-21
    {3248, 4326, 216971, 1770, 1560, 4, false}, // WGS 84 / SCAR IMW SS25-27
    {3249, 4326, 216992, 1771, 1561, 4, false}, // WGS 84 / SCAR IMW SS28-30
    {3250, 4326, 217013, 1772, 1562, 4, false}, // WGS 84 / SCAR IMW SS31-33
    {3251, 4326, 217034, 1773, 1563, 4, false}, // WGS 84 / SCAR IMW SS34-36
    {3252, 4326, 217055, 1774, 1564, 4, false}, // WGS 84 / SCAR IMW SS37-39
    {3253, 4326, 217076, 1775, 1565, 4, false}, // WGS 84 / SCAR IMW SS40-42
    {3254, 4326, 217097, 1776, 1566, 4, false}, // WGS 84 / SCAR IMW SS43-45
    {3255, 4326, 217118, 1777, 1567, 4, false}, // WGS 84 / SCAR IMW SS46-48
    {3256, 4326, 217139, 1778, 1568, 4, false}, // WGS 84 / SCAR IMW SS49-51
    {3257, 4326, 217160, 1779, 1569, 4, false}, // WGS 84 / SCAR IMW SS52-54
    {3258, 4326, 217181, 1780, 1570, 4, false}, // WGS 84 / SCAR IMW SS55-57
    {3259, 4326, 217202, 1781, 1571, 4, false}, // WGS 84 / SCAR IMW SS58-60
    {3260, 4326, 217223, 1782, 1572, 4, false}, // WGS 84 / SCAR IMW ST01-04
    {3261, 4326, 217244, 1783, 1573, 4, false}, // WGS 84 / SCAR IMW ST05-08
    {3262, 4326, 217265, 1784, 1574, 4, false}, // WGS 84 / SCAR IMW ST09-12
    {3263, 4326, 217286, 1785, 1575, 4, false}, // WGS 84 / SCAR IMW ST13-16
    {3264, 4326, 217307, 1786, 1576, 4, false}, // WGS 84 / SCAR IMW ST17-20
    {3265, 4326, 217328, 1787, 1577, 4, false}, // WGS 84 / SCAR IMW ST21-24
    {3266, 4326, 217349, 1788, 1578, 4, false}, // WGS 84 / SCAR IMW ST25-28
    {3267, 4326, 217370, 1789, 1579, 4, false}, // WGS 84 / SCAR IMW ST29-32
    {3268, 4326, 217391, 1790, 1580, 4, false}, // WGS 84 / SCAR IMW ST33-36
    {3269, 4326, 217412, 1791, 1581, 4, false}, // WGS 84 / SCAR IMW ST37-40
    {3270, 4326, 217433, 1792, 1582, 4, false}, // WGS 84 / SCAR IMW ST41-44
    {3271, 4326, 217454, 1793, 1583, 4, false}, // WGS 84 / SCAR IMW ST45-48
    {3272, 4326, 217475, 1794, 1584, 4, false}, // WGS 84 / SCAR IMW ST49-52
    {3273, 4326, 217496, 1795, 1585, 4, false}, // WGS 84 / SCAR IMW ST53-56
    {3274, 4326, 217517, 1796, 1586, 4, false}, // WGS 84 / SCAR IMW ST57-60
    {3275, 4326, 217538, 1797, 1587, 4, false}, // WGS 84 / SCAR IMW SU01-05
    {3276, 4326, 217559, 1798, 1588, 4, false}, // WGS 84 / SCAR IMW SU06-10
    {3277, 4326, 217580, 1799, 1589, 4, false}, // WGS 84 / SCAR IMW SU11-15
    {3278, 4326, 217600, 1800, 1590, 4, false}, // WGS 84 / SCAR IMW SU16-20
    {3279, 4326, 217621, 1801, 1591, 4, false}, // WGS 84 / SCAR IMW SU21-25
    {3280, 4326, 217642, 1802, 1592, 4, false}, // WGS 84 / SCAR IMW SU26-30
    {3281, 4326, 217663, 1803, 1593, 4, false}, // WGS 84 / SCAR IMW SU31-35
    {3282, 4326, 217684, 1804, 1594, 4, false}, // WGS 84 / SCAR IMW SU36-40
    {3283, 4326, 217705, 1805, 1595, 4, false}, // WGS 84 / SCAR IMW SU41-45
    {3284, 4326, 217726, 1806, 1596, 4, false}, // WGS 84 / SCAR IMW SU46-50
    {3285, 4326, 217747, 1807, 1597, 4, false}, // WGS 84 / SCAR IMW SU51-55
    {3286, 4326, 217768, 1808, 1598, 4, false}, // WGS 84 / SCAR IMW SU56-60
    {3287, 4326, 217789, 1809, 1599, 4, false}, // WGS 84 / SCAR IMW SV01-10
    {3288, 4326, 217810, 1810, 1600, 4, false}, // WGS 84 / SCAR IMW SV11-20
    {3289, 4326, 217830, 1811, 1601, 4, false}, // WGS 84 / SCAR IMW SV21-30
    {3290, 4326, 217851, 1812, 1602, 4, false}, // WGS 84 / SCAR IMW SV31-40
    {3291, 4326, 217872, 1813, 1603, 4, false}, // WGS 84 / SCAR IMW SV41-50
    {3292, 4326, 217893, 1814, 1604, 4, false}, // WGS 84 / SCAR IMW SV51-60
    {3293, 4326, 217914, 1815, 1605, 4, false}, // WGS 84 / SCAR IMW SW01-60
    {3294, 4326, 218236, 1816, 1606, 4, false}, // WGS 84 / USGS Transantarctic Mountains
    {3295, 4675, 65856, 1303, 1633, 4, false}, // Guam 1963 / Yap Islands
    {3296, 4687, 169590, 1403, 1643, 4, false}, // RGPF / UTM zone 5S
    {3297, 4687, 169601, 1404, 1644, 4, false}, // RGPF / UTM zone 6S
    {3298, 4687, 169612, 1405, 1645, 4, false}, // RGPF / UTM zone 7S
    {3299, 4687, 169623, 1406, 1646, 4, false}, // RGPF / UTM zone 8S
    {3300, 4133, 47610, 2327, 1736, 5, false}, // Estonian Coordinate System of 1992
    {3301, 4180, 47631, 2327, 42, 5, false}, // Estonian Coordinate System of 1997
    {3302, 4689, 69839, 1405, 1653, 4, false}, // IGN63 Hiva Oa / UTM zone 7S
    {3303, 4688, 50869, 1405, 1656, 4, false}, // Fatu Iva 72 / UTM zone 7S
    {3304, 4690, 192984, 1404, 1647, 4, false}, // Tahiti 79 / UTM zone 6S
    {3305, 4691, 96777, 1404, 1648, 4, false}, // Moorea 87 / UTM zone 6S
    {3306, 4692, 93044, 1403, 1649, 4, false}, // Maupiti 83 / UTM zone 5S
    {3307, 4693, 132917, 1348, 1190, 4, false}, // Nakhl-e Ghanem / UTM zone 39N
    {3308, 4283, 55461, 1863, 1657, 4, false}, // GDA94 / NSW Lambert
    {3309, 4267, 98270, 933, 233, 4, false}, // NAD27 / California Albers
    {3310, 4269, 101477, 933, 233, 4, false}, // NAD83 / California Albers
    {3311, 4152, 119449, 933, 233, 4, false}, // NAD83(HARN) / California Albers
    {3312, 4623, 28655, 1330, 2160, 4, false}, // CSG67 / UTM zone 21N
    {3313, 4624, 169141, 1330, 1663, 4, false}, // RGFG95 / UTM zone 21N
    {3314, 4695, 81148, 1865, 1664, 4, true}, // Katanga 1955 / Katanga Lambert
    {3315, 4695, 81168, 1866, 1664, 4, true}, // Katanga 1955 / Katanga TM
    {3316, 4696, 80973, 1872, 2885, 4, false}, // Kasai 1953 / Congo TM zone 22
    {3317, 4696, 80990, 1873, 1673, 4, false}, // Kasai 1953 / Congo TM zone 24
    {3318, 4697, 69011, 1867, 1667, 4, false}, // IGC 1962 / Congo TM zone 12
    {3319, 4697, 69027, 1868, 1668, 4, false}, // IGC 1962 / Congo TM zone 14
    {3320, 4697, 69043, 1869, 1669, 4, false}, // IGC 1962 / Congo TM zone 16
    {3321, 4697, 69059, 1870, 1670, 4, false}, // IGC 1962 / Congo TM zone 18
    {3322, 4697, 69075, 1871, 1671, 4, false}, // IGC 1962 / Congo TM zone 20
    {3323, 4697, 69091, 1872, 1672, 4, false}, // IGC 1962 / Congo TM zone 22
    {3324, 4697, 69107, 1873, 1673, 4, false}, // IGC 1962 / Congo TM zone 24
    {3325, 4697, 69123, 1874, 1674, 4, false}, // IGC 1962 / Congo TM zone 26
    {3326, 4697, 69139, 1875, 1675, 4, false}, // IGC 1962 / Congo TM zone 28
    {3327, 4697, 69155, 1876, 1676, 4, false}, // IGC 1962 / Congo TM zone 30
    {3328, 4179, 159426, 2190, 1770, 5, false}, // Pulkovo 1942(58) / GUGiK-80
    {3329, 4179, 159217, 1508, 2010, 5, false}, // Pulkovo 1942(58) / 3-degree Gauss-Kruger zone 5
    {3330, 4179, 159290, 1509, 2011, 5, false}, // Pulkovo 1942(58) / 3-degree Gauss-Kruger zone 6
    {3331, 4179, 159324, 1510, 2013, 5, false}, // Pulkovo 1942(58) / 3-degree Gauss-Kruger zone 7
    {3332, 4179, 159358, 1511, 2015, 5, false}, // Pulkovo 1942(58) / 3-degree Gauss-Kruger zone 8
    {3333, 4179, 159508, 1474, 638, 5, false}, // Pulkovo 1942(58) / Gauss-Kruger zone 3
    {3334, 4179, 159567, 1475, 2007, 5, false}, // Pulkovo 1942(58) / Gauss-Kruger zone 4
    {3335, 4179, 159594, 1476, 2009, 5, false}, // Pulkovo 1942(58) / Gauss-Kruger zone 5
    {3336, 4698, 69587, 1440, 1420, 4, false}, // IGN 1962 Kerguelen / UTM zone 42S
    {3337, 4699, 85353, 2292, 1712, 4, false}, // Le Pouce 1934 / Mauritius Grid
    {3338, 4269, 100830, 1176, 192, 4, false}, // NAD83 / Alaska Albers
    {3339, 4701, 69220, 1867, 1667, 4, false}, // IGCB 1955 / Congo TM zone 12
    {3340, 4701, 69237, 1868, 1668, 4, false}, // IGCB 1955 / Congo TM zone 14
    {3341, 4701, 69254, 1869, 2347, 4, false}, // IGCB 1955 / Congo TM zone 16
    {3342, 4701, 69271, 1431, 1677, 4, false}, // IGCB 1955 / UTM zone 33S
    {3343, 4702, 93209, 1337, 2286, 4, false}, // Mauritania 1999 / UTM zone 28N
    {3344, 4702, 93226, 1338, 1503, 4, false}, // Mauritania 1999 / UTM zone 29N
    {3345, 4702, 93243, 1339, 1502, 4, false}, // Mauritania 1999 / UTM zone 30N
    {3346, 4669, 84355, 2323, 76, 5, false}, // LKS94 / Lithuania TM
    {3347, 4269, 103940, 2290, 23, 4, false}, // NAD83 / Statistics Canada Lambert
    {3348, 4617, 116669, 2290, 23, 4, false}, // NAD83(CSRS) / Statistics Canada Lambert
    {3349, 4326, 215971, 2291, 1678, 4, true}, // WGS 84 / PDC Mercator
    {3350, 4284, 156292, 2231, 1679, 5, false}, // Pulkovo 1942 / CS63 zone C0
    {3351, 4284, 156310, 2232, 1680, 5, false}, // Pulkovo 1942 / CS63 zone C1
    {3352, 4284, 156328, 2233, 1681, 5, false}, // Pulkovo 1942 / CS63 zone C2
    {3353, 4704, 94300, 1430, 1685, 4, false}, // Mhast (onshore) / UTM zone 32S
    {3354, 4705, 94277, 1430, 1686, 4, false}, // Mhast (offshore) / UTM zone 32S
    {3355, 4706, 47145, 2073, 1171, 4, false}, // Egypt Gulf of Suez S-650 TL / Red Belt
    {3356, 4723, 64602, 1326, 1691, 4, true}, // Grand Cayman 1959 / UTM zone 17N
    {3357, 4726, 86400, 1326, 1692, 4, true}, // Little Cayman 1961 / UTM zone 17N
    {3358, 4152, 121153, 1071, 259, 4, false}, // NAD83(HARN) / North Carolina
    {3359, 4152, 121161, 1250, 259, 6, true}, // NAD83(HARN) / North Carolina (ftUS)
    {3360, 4152, 121462, 1099, 266, 4, false}, // NAD83(HARN) / South Carolina
    {3361, 4152, 121470, 1259, 266, 6, false}, // NAD83(HARN) / South Carolina (ft)
    {3362, 4152, 121363, 1093, 1090, 4, false}, // NAD83(HARN) / Pennsylvania North
    {3363, 4152, 121375, 1257, 1090, 8, false}, // NAD83(HARN) / Pennsylvania North (ftUS)
    {3364, 4152, 121392, 1094, 1091, 4, false}, // NAD83(HARN) / Pennsylvania South
    {3365, 4152, 121405, 1258, 1091, 8, false}, // NAD83(HARN) / Pennsylvania South (ftUS)
    {3366, 4738, 68106, 2289, 56, 5, true}, // Hong Kong 1963 Grid System
    {3367, 4700, 69619, 1337, 1504, 4, false}, // IGN Astro 1960 / UTM zone 28N
    {3368, 4700, 69637, 1338, 1503, 4, false}, // IGN Astro 1960 / UTM zone 29N
    {3369, 4700, 69655, 1339, 1502, 4, false}, // IGN Astro 1960 / UTM zone 30N
    {3370, 4267, 99758, 1368, 1821, 4, false}, // NAD27 / UTM zone 59N
    {3371, 4267, 99777, 1369, 1822, 4, false}, // NAD27 / UTM zone 60N
    {3372, 4269, 104340, 1368, 1821, 4, false}, // NAD83 / UTM zone 59N
    {3373, 4269, 104355, 1369, 1822, 4, false}, // NAD83 / UTM zone 60N
    {3374, 4741, 50440, 1338, 1738, 4, false}, // FD54 / UTM zone 29N
    {3375, 4742, 55796, 2288, 2300, 4, false}, // GDM2000 / Peninsula RSO
    {3376, 4742, 55713, 2287, 2321, 4, false}, // GDM2000 / East Malaysia BRSO
    {3377, 4742, 55731, 2286, 1825, 4, false}, // GDM2000 / Johor Grid
    {3378, 4742, 55858, 2285, 1826, 4, false}, // GDM2000 / Sembilan and Melaka Grid
    {3379, 4742, 55781, 2284, 1827, 4, false}, // GDM2000 / Pahang Grid
    {3380, 4742, 55842, 2283, 1828, 4, false}, // GDM2000 / Selangor Grid
    {3381, 4742, 55879, 2282, 1829, 4, false}, // GDM2000 / Terengganu Grid
    {3382, 4742, 55827, 2281, 1830, 4, false}, // GDM2000 / Pinang Grid
    {3383, 4742, 55746, 2280, 1831, 4, false}, // GDM2000 / Kedah and Perlis Grid
    {3384, 4742, 55812, 2279, 1832, 4, false}, // GDM2000 / Perak Grid
    {3385, 4742, 55765, 2278, 1833, 4, false}, // GDM2000 / Kelantan Grid
    {3386, 4123, 79128, 2121, 1617, 5, false}, // KKJ / Finland zone 0
    {3387, 4123, 79168, 2145, 1834, 5, false}, // KKJ / Finland zone 5
    {3388, 4284, 156526, 2277, 159, 5, false}, // Pulkovo 1942 / Caspian Sea Mercator
    {3389, 4284, 155967, 1397, 1342, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 60
    {3390, 4200, 164021, 1397, 1342, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 60
    {3391, 4743, 80769, 1346, 1836, 4, false}, // Karbala 1979 / UTM zone 37N
    {3392, 4743, 80785, 1347, 1837, 4, false}, // Karbala 1979 / UTM zone 38N
    {3393, 4743, 80801, 1348, 1838, 4, false}, // Karbala 1979 / UTM zone 39N
    {3394, 4744, 132677, 2299, 2553, 4, false}, // Nahrwan 1934 / Iraq zone
    {3395, 4326, 220051, 2276, 1839, 4, false}, // WGS 84 / World Mercator
    {3396, 4746, 145946, 1506, 1840, 5, false}, // PD/83 / 3-degree Gauss-Kruger zone 3
    {3397, 4746, 146001, 1507, 1841, 5, false}, // PD/83 / 3-degree Gauss-Kruger zone 4
    {3398, 4745, 167645, 1507, 1843, 5, false}, // RD/83 / 3-degree Gauss-Kruger zone 4
    {3399, 4745, 167700, 1508, 1842, 5, false}, // RD/83 / 3-degree Gauss-Kruger zone 5
    {3400, 4269, 100932, 2274, 1202, 4, false}, // NAD83 / Alberta 10-TM (Forest)
    {3401, 4269, 100949, 2275, 1202, 4, false}, // NAD83 / Alberta 10-TM (Resource)
    {3402, 4617, 115900, 2274, 1202, 4, false}, // NAD83(CSRS) / Alberta 10-TM (Forest)
    {3403, 4617, 115920, 2275, 1202, 4, false}, // NAD83(CSRS) / Alberta 10-TM (Resource)
    {3404, 4152, 121161, 1250, 259, 8, false}, // NAD83(HARN) / North Carolina (ftUS)
    {3405, 4756, 207838, 1357, 308, 4, false}, // VN-2000 / UTM zone 48N
    {3406, 4756, 207851, 1358, 309, 4, false}, // VN-2000 / UTM zone 49N
    {3407, 4738, 68106, 2289, 56, 10, false}, // Hong Kong 1963 Grid System
    {3408, 4053, 215708, 20, 1919, 4, true}, // NSIDC EASE-Grid North
    {3409, 4053, 215731, 21, 1918, 4, true}, // NSIDC EASE-Grid South
    {3410, 4053, 215681, 2262, 1910, 4, true}, // NSIDC EASE-Grid Global
    {3411, 4054, 215754, 2260, 841, 4, true}, // NSIDC Sea Ice Polar Stereographic North
    {3412, 4054, 215786, 2261, 842, 4, true}, // NSIDC Sea Ice Polar Stereographic South
    {3413, 4326, 215747, 2260, 841, 4, false}, // WGS 84 / NSIDC Sea Ice Polar Stereographic North
    {3414, 4757, 183171, 2259, 113, 5, false}, // SVY21 / Singapore TM
    {3415, 4324, 211632, 2258, 1917, 4, false}, // WGS 72BE / South China Sea Lambert
    {3416, 4258, 44600, 2336, 8, 5, false}, // ETRS89 / Austria Lambert
    {3417, 4269, 102226, 1281, 1043, 8, false}, // NAD83 / Iowa North (ftUS)
    {3418, 4269, 102246, 1282, 1044, 8, false}, // NAD83 / Iowa South (ftUS)
    {3419, 4269, 102292, 1283, 1045, 8, false}, // NAD83 / Kansas North (ftUS)
    {3420, 4269, 102313, 1284, 1046, 8, false}, // NAD83 / Kansas South (ftUS)
    {3421, 4269, 103236, 1285, 1069, 8, false}, // NAD83 / Nevada East (ftUS)
    {3422, 4269, 103213, 1286, 1068, 8, false}, // NAD83 / Nevada Central (ftUS)
    {3423, 4269, 103258, 1287, 1070, 8, false}, // NAD83 / Nevada West (ftUS)
    {3424, 4269, 103304, 1288, 256, 8, false}, // NAD83 / New Jersey (ftUS)
    {3425, 4152, 120136, 1281, 1043, 8, false}, // NAD83(HARN) / Iowa North (ftUS)
    {3426, 4152, 120156, 1282, 1044, 8, false}, // NAD83(HARN) / Iowa South (ftUS)
    {3427, 4152, 120176, 1283, 1045, 8, false}, // NAD83(HARN) / Kansas North (ftUS)
    {3428, 4152, 120197, 1284, 1046, 8, false}, // NAD83(HARN) / Kansas South (ftUS)
    {3429, 4152, 120877, 1285, 1069, 8, false}, // NAD83(HARN) / Nevada East (ftUS)
    {3430, 4152, 120854, 1286, 1068, 8, false}, // NAD83(HARN) / Nevada Central (ftUS)
    {3431, 4152, 120899, 1287, 1070, 8, false}, // NAD83(HARN) / Nevada West (ftUS)
    {3432, 4152, 120945, 1288, 256, 8, false}, // NAD83(HARN) / New Jersey (ftUS)
    {3433, 4269, 101129, 1289, 1014, 8, false}, // NAD83 / Arkansas North (ftUS)
    {3434, 4269, 101152, 1290, 1015, 8, false}, // NAD83 / Arkansas South (ftUS)
    {3435, 4269, 102135, 1291, 1039, 8, false}, // NAD83 / Illinois East (ftUS)
    {3436, 4269, 102163, 1292, 1040, 8, false}, // NAD83 / Illinois West (ftUS)
    {3437, 4269, 103281, 1293, 255, 8, false}, // NAD83 / New Hampshire (ftUS)
    {3438, 4269, 103851, 1294, 265, 8, false}, // NAD83 / Rhode Island (ftUS)
    {3439, 4134, 147484, 1348, 398, 4, false}, // PSD93 / UTM zone 39N
    {3440, 4134, 147496, 1349, 399, 4, false}, // PSD93 / UTM zone 40N
    {3441, 4152, 119412, 1289, 1014, 8, false}, // NAD83(HARN) / Arkansas North (ftUS)
    {3442, 4152, 119435, 1290, 1015, 8, false}, // NAD83(HARN) / Arkansas South (ftUS)
    {3443, 4152, 120045, 1291, 1039, 8, false}, // NAD83(HARN) / Illinois East (ftUS)
    {3444, 4152, 120073, 1292, 1040, 8, false}, // NAD83(HARN) / Illinois West (ftUS)
    {3445, 4152, 120922, 1293, 255, 8, false}, // NAD83(HARN) / New Hampshire (ftUS)
    {3446, 4152, 121448, 1294, 265, 8, false}, // NAD83(HARN) / Rhode Island (ftUS)
    {3447, 4258, 44616, 2257, 209, 4, false}, // ETRS89 / Belgian Lambert 2005
    {3448, 4758, 75969, 2255, 1802, 4, false}, // JAD2001 / Jamaica Metric Grid
    {3449, 4758, 75988, 1326, 1921, 4, false}, // JAD2001 / UTM zone 17N
    {3450, 4758, 76000, 1327, 1922, 4, false}, // JAD2001 / UTM zone 18N
    {3451, 4269, 102425, 1295, 1049, 8, false}, // NAD83 / Louisiana North (ftUS)
    {3452, 4269, 102476, 1296, 1251, 8, false}, // NAD83 / Louisiana South (ftUS)
    {3453, 4269, 102450, 1297, 245, 8, false}, // NAD83 / Louisiana Offshore (ftUS)
    {3454, 4269, 103902, 1299, 1094, 8, true}, // NAD83 / South Dakota North (ftUS)
    {3455, 4269, 103926, 1299, 1095, 8, false}, // NAD83 / South Dakota South (ftUS)
    {3456, 4152, 120309, 1295, 1049, 8, false}, // NAD83(HARN) / Louisiana North (ftUS)
    {3457, 4152, 120331, 1296, 1251, 8, false}, // NAD83(HARN) / Louisiana South (ftUS)
    {3458, 4152, 121491, 1298, 1094, 8, false}, // NAD83(HARN) / South Dakota North (ftUS)
    {3459, 4152, 121515, 1299, 1095, 8, false}, // NAD83(HARN) / South Dakota South (ftUS)
    {3460, 4720, 51272, 2254, 45, 4, false}, // Fiji 1986 / Fiji Map Grid
    {3461, 4155, 39551, 1337, 324, 4, false}, // Dabola 1981 / UTM zone 28N
    {3462, 4155, 39567, 1338, 325, 4, false}, // Dabola 1981 / UTM zone 29N
    {3463, 4269, 102610, 1003, 1492, 4, false}, // NAD83 / Maine CS2000 Central
    {3464, 4152, 120344, 1003, 1492, 4, false}, // NAD83(HARN) / Maine CS2000 Central
    {3465, 4759, 124546, 911, 999, 4, false}, // NAD83(NSRS2007) / Alabama East
    {3466, 4759, 124562, 912, 1000, 4, false}, // NAD83(NSRS2007) / Alabama West
    {3467, 4759, 124578, 1176, 192, 4, false}, // NAD83(NSRS2007) / Alaska Albers
    {3468, 4759, 124594, 1177, 1001, 4, false}, // NAD83(NSRS2007) / Alaska zone 1
    {3469, 4759, 124623, 1178, 1003, 4, false}, // NAD83(NSRS2007) / Alaska zone 2
    {3470, 4759, 124637, 1179, 1004, 4, false}, // NAD83(NSRS2007) / Alaska zone 3
    {3471, 4759, 124651, 1180, 1005, 4, false}, // NAD83(NSRS2007) / Alaska zone 4
    {3472, 4759, 124665, 1181, 1006, 4, false}, // NAD83(NSRS2007) / Alaska zone 5
    {3473, 4759, 124679, 1182, 1007, 4, false}, // NAD83(NSRS2007) / Alaska zone 6
    {3474, 4759, 124693, 1183, 1008, 4, false}, // NAD83(NSRS2007) / Alaska zone 7
    {3475, 4759, 124707, 1184, 1009, 4, false}, // NAD83(NSRS2007) / Alaska zone 8
    {3476, 4759, 124721, 1185, 1010, 4, false}, // NAD83(NSRS2007) / Alaska zone 9
    {3477, 4759, 124608, 1186, 1002, 4, false}, // NAD83(NSRS2007) / Alaska zone 10
    {3478, 4759, 124735, 919, 1011, 4, false}, // NAD83(NSRS2007) / Arizona Central
    {3479, 4759, 124749, 1209, 1011, 6, false}, // NAD83(NSRS2007) / Arizona Central (ft)
    {3480, 4759, 124767, 918, 1012, 4, false}, // NAD83(NSRS2007) / Arizona East
    {3481, 4759, 124781, 1208, 1012, 6, false}, // NAD83(NSRS2007) / Arizona East (ft)
    {3482, 4759, 124798, 920, 1013, 4, false}, // NAD83(NSRS2007) / Arizona West
    {3483, 4759, 124812, 1210, 1013, 6, false}, // NAD83(NSRS2007) / Arizona West (ft)
    {3484, 4759, 124829, 923, 1014, 4, false}, // NAD83(NSRS2007) / Arkansas North
    {3485, 4759, 124843, 1289, 1014, 8, false}, // NAD83(NSRS2007) / Arkansas North (ftUS)
    {3486, 4759, 124862, 924, 1015, 4, false}, // NAD83(NSRS2007) / Arkansas South
    {3487, 4759, 124876, 1290, 1015, 8, false}, // NAD83(NSRS2007) / Arkansas South (ftUS)
    {3488, 4759, 124895, 933, 233, 4, false}, // NAD83(NSRS2007) / California Albers
    {3489, 4759, 124913, 934, 1020, 4, false}, // NAD83(NSRS2007) / California zone 1
    {3490, 4759, 124929, 1211, 1020, 8, false}, // NAD83(NSRS2007) / California zone 1 (ftUS)
    {3491, 4759, 124951, 935, 1021, 4, false}, // NAD83(NSRS2007) / California zone 2
    {3492, 4759, 124967, 1212, 1021, 8, false}, // NAD83(NSRS2007) / California zone 2 (ftUS)
    {3493, 4759, 124989, 936, 1022, 4, false}, // NAD83(NSRS2007) / California zone 3
    {3494, 4759, 125005, 1213, 1022, 8, false}, // NAD83(NSRS2007) / California zone 3 (ftUS)
    {3495, 4759, 125027, 937, 1023, 4, false}, // NAD83(NSRS2007) / California zone 4
    {3496, 4759, 125043, 1214, 1023, 8, false}, // NAD83(NSRS2007) / California zone 4 (ftUS)
    {3497, 4759, 125065, 938, 1027, 4, false}, // NAD83(NSRS2007) / California zone 5
    {3498, 4759, 125081, 1215, 1027, 8, false}, // NAD83(NSRS2007) / California zone 5 (ftUS)
    {3499, 4759, 125103, 939, 1025, 4, false}, // NAD83(NSRS2007) / California zone 6
    {3500, 4759, 125119, 1216, 1025, 8, false}, // NAD83(NSRS2007) / California zone 6 (ftUS)
    {3501, 4759, 125141, 944, 1028, 4, false}, // NAD83(NSRS2007) / Colorado Central
    {3502, 4759, 125156, 1218, 1028, 8, false}, // NAD83(NSRS2007) / Colorado Central (ftUS)
    {3503, 4759, 125176, 943, 1029, 4, false}, // NAD83(NSRS2007) / Colorado North
    {3504, 4759, 125189, 1217, 1029, 8, false}, // NAD83(NSRS2007) / Colorado North (ftUS)
    {3505, 4759, 125207, 945, 1030, 4, false}, // NAD83(NSRS2007) / Colorado South
    {3506, 4759, 125221, 1219, 1030, 8, false}, // NAD83(NSRS2007) / Colorado South (ftUS)
    {3507, 4759, 125239, 947, 235, 4, false}, // NAD83(NSRS2007) / Connecticut
    {3508, 4759, 125254, 1220, 235, 8, false}, // NAD83(NSRS2007) / Connecticut (ftUS)
    {3509, 4759, 125290, 949, 236, 4, false}, // NAD83(NSRS2007) / Delaware
    {3510, 4759, 125303, 1221, 236, 8, false}, // NAD83(NSRS2007) / Delaware (ftUS)
    {3511, 4759, 125397, 953, 1031, 4, false}, // NAD83(NSRS2007) / Florida East
    {3512, 4759, 125412, 1222, 1031, 8, false}, // NAD83(NSRS2007) / Florida East (ftUS)
    {3513, 4759, 125431, 956, 237, 4, false}, // NAD83(NSRS2007) / Florida GDL Albers
    {3514, 4759, 125451, 955, 1032, 4, false}, // NAD83(NSRS2007) / Florida North
    {3515, 4759, 125464, 1224, 1032, 8, false}, // NAD83(NSRS2007) / Florida North (ftUS)
    {3516, 4759, 125482, 954, 1033, 4, false}, // NAD83(NSRS2007) / Florida West
    {3517, 4759, 125497, 1223, 1033, 8, false}, // NAD83(NSRS2007) / Florida West (ftUS)
    {3518, 4759, 125516, 959, 1034, 4, false}, // NAD83(NSRS2007) / Georgia East
    {3519, 4759, 125531, 1225, 1034, 8, false}, // NAD83(NSRS2007) / Georgia East (ftUS)
    {3520, 4759, 125550, 960, 1035, 4, false}, // NAD83(NSRS2007) / Georgia West
    {3521, 4759, 125565, 1226, 1035, 8, false}, // NAD83(NSRS2007) / Georgia West (ftUS)
    {3522, 4759, 125584, 965, 1036, 4, false}, // NAD83(NSRS2007) / Idaho Central
    {3523, 4759, 125598, 1228, 1036, 8, false}, // NAD83(NSRS2007) / Idaho Central (ftUS)
    {3524, 4759, 125617, 964, 1037, 4, false}, // NAD83(NSRS2007) / Idaho East
    {3525, 4759, 125631, 1227, 1037, 8, false}, // NAD83(NSRS2007) / Idaho East (ftUS)
    {3526, 4759, 125649, 966, 1038, 4, false}, // NAD83(NSRS2007) / Idaho West
    {3527, 4759, 125663, 1229, 1038, 8, false}, // NAD83(NSRS2007) / Idaho West (ftUS)
    {3528, 4759, 125681, 969, 1039, 4, false}, // NAD83(NSRS2007) / Illinois East
    {3529, 4759, 125698, 1291, 1039, 8, false}, // NAD83(NSRS2007) / Illinois East (ftUS)
    {3530, 4759, 125719, 970, 1040, 4, false}, // NAD83(NSRS2007) / Illinois West
    {3531, 4759, 125736, 1292, 1040, 8, false}, // NAD83(NSRS2007) / Illinois West (ftUS)
    {3532, 4759, 125757, 973, 1041, 4, false}, // NAD83(NSRS2007) / Indiana East
    {3533, 4759, 125770, 1276, 1041, 8, false}, // NAD83(NSRS2007) / Indiana East (ftUS)
    {3534, 4759, 125787, 974, 1042, 4, false}, // NAD83(NSRS2007) / Indiana West
    {3535, 4759, 125800, 1277, 1042, 8, false}, // NAD83(NSRS2007) / Indiana West (ftUS)
    {3536, 4759, 125817, 977, 1043, 4, false}, // NAD83(NSRS2007) / Iowa North
    {3537, 4759, 125829, 1281, 1043, 8, false}, // NAD83(NSRS2007) / Iowa North (ftUS)
    {3538, 4759, 125846, 978, 1044, 4, false}, // NAD83(NSRS2007) / Iowa South
    {3539, 4759, 125859, 1282, 1044, 8, false}, // NAD83(NSRS2007) / Iowa South (ftUS)
    {3540, 4759, 125876, 981, 1045, 4, false}, // NAD83(NSRS2007) / Kansas North
    {3541, 4759, 125889, 1283, 1045, 8, false}, // NAD83(NSRS2007) / Kansas North (ftUS)
    {3542, 4759, 125907, 982, 1046, 4, false}, // NAD83(NSRS2007) / Kansas South
    {3543, 4759, 125920, 1284, 1046, 8, false}, // NAD83(NSRS2007) / Kansas South (ftUS)
    {3544, 4759, 125938, 1207, 1047, 4, false}, // NAD83(NSRS2007) / Kentucky North
    {3545, 4759, 125953, 1232, 1047, 8, false}, // NAD83(NSRS2007) / Kentucky North (ftUS)
    {3546, 4759, 125973, 985, 244, 4, false}, // NAD83(NSRS2007) / Kentucky Single Zone
    {3547, 4759, 125995, 1279, 244, 8, false}, // NAD83(NSRS2007) / Kentucky Single Zone (ftUS)
    {3548, 4759, 126022, 987, 1048, 4, false}, // NAD83(NSRS2007) / Kentucky South
    {3549, 4759, 126038, 1233, 1048, 8, false}, // NAD83(NSRS2007) / Kentucky South (ftUS)
    {3550, 4759, 126059, 991, 1049, 4, false}, // NAD83(NSRS2007) / Louisiana North
    {3551, 4759, 126072, 1295, 1049, 8, false}, // NAD83(NSRS2007) / Louisiana North (ftUS)
    {3552, 4759, 126090, 992, 1251, 4, false}, // NAD83(NSRS2007) / Louisiana South
    {3553, 4759, 126104, 1296, 1251, 8, false}, // NAD83(NSRS2007) / Louisiana South (ftUS)
    {3554, 4759, 126122, 1003, 1492, 4, false}, // NAD83(NSRS2007) / Maine CS2000 Central
    {3555, 4759, 126140, 1000, 1493, 4, false}, // NAD83(NSRS2007) / Maine CS2000 East
    {3556, 4759, 126158, 1002, 1491, 4, false}, // NAD83(NSRS2007) / Maine CS2000 West
    {3557, 4759, 126176, 996, 1051, 4, false}, // NAD83(NSRS2007) / Maine East
    {3558, 4759, 126208, 997, 1052, 4, false}, // NAD83(NSRS2007) / Maine West
    {3559, 4759, 126240, 1005, 247, 4, false}, // NAD83(NSRS2007) / Maryland
    {3560, 4269, 104443, 1201, 1103, 8, false}, // NAD83 / Utah North (ftUS)
    {3561, 4135, 143573, 1187, 400, 8, false}, // Old Hawaiian / Hawaii zone 1
    {3562, 4135, 143592, 1188, 401, 8, false}, // Old Hawaiian / Hawaii zone 2
    {3563, 4135, 143611, 1189, 402, 8, false}, // Old Hawaiian / Hawaii zone 3
    {3564, 4135, 143630, 1190, 403, 8, false}, // Old Hawaiian / Hawaii zone 4
    {3565, 4135, 143649, 1191, 404, 8, false}, // Old Hawaiian / Hawaii zone 5
    {3566, 4269, 104412, 1202, 1102, 8, false}, // NAD83 / Utah Central (ftUS)
    {3567, 4269, 104473, 1203, 1104, 8, false}, // NAD83 / Utah South (ftUS)
    {3568, 4152, 121875, 1201, 1103, 8, false}, // NAD83(HARN) / Utah North (ftUS)
    {3569, 4152, 121844, 1202, 1102, 8, false}, // NAD83(HARN) / Utah Central (ftUS)
    {3570, 4152, 121905, 1203, 1104, 8, false}, // NAD83(HARN) / Utah South (ftUS)
    {3571, 4326, 215869, 1817, 1923, 4, false}, // WGS 84 / North Pole LAEA Bering Sea
    {3572, 4326, 215824, 1818, 1923, 4, false}, // WGS 84 / North Pole LAEA Alaska
    {3573, 4326, 215893, 1819, 1923, 4, false}, // WGS 84 / North Pole LAEA Canada
    {3574, 4326, 215846, 1820, 1923, 4, false}, // WGS 84 / North Pole LAEA Atlantic
    {3575, 4326, 215914, 1821, 1923, 4, false}, // WGS 84 / North Pole LAEA Europe
    {3576, 4326, 215936, 1822, 1923, 4, false}, // WGS 84 / North Pole LAEA Russia
    {3577, 4283, 55147, 1864, 1272, 4, false}, // GDA94 / Australian Albers
    {3578, 4269, 104889, 2253, 1242, 4, false}, // NAD83 / Yukon Albers
    {3579, 4617, 116903, 2253, 1242, 4, false}, // NAD83(CSRS) / Yukon Albers
    {3580, 4269, 103172, 2252, 1924, 4, false}, // NAD83 / NWT Lambert
    {3581, 4617, 116537, 2252, 1924, 4, false}, // NAD83(CSRS) / NWT Lambert
    {3582, 4759, 126251, 1234, 247, 8, false}, // NAD83(NSRS2007) / Maryland (ftUS)
    {3583, 4759, 126268, 1009, 1053, 4, false}, // NAD83(NSRS2007) / Massachusetts Island
    {3584, 4759, 126287, 1236, 1053, 8, false}, // NAD83(NSRS2007) / Massachusetts Island (ftUS)
    {3585, 4759, 126312, 1008, 1054, 4, false}, // NAD83(NSRS2007) / Massachusetts Mainland
    {3586, 4759, 126334, 1235, 1054, 8, false}, // NAD83(NSRS2007) / Massachusetts Mainland (ftUS)
    {3587, 4759, 126362, 1017, 574, 4, false}, // NAD83(NSRS2007) / Michigan Central
    {3588, 4759, 126379, 1238, 574, 6, false}, // NAD83(NSRS2007) / Michigan Central (ft)
    {3589, 4759, 126399, 1016, 573, 4, false}, // NAD83(NSRS2007) / Michigan North
    {3590, 4759, 126414, 1237, 573, 6, false}, // NAD83(NSRS2007) / Michigan North (ft)
    {3591, 4759, 126433, 1019, 248, 4, false}, // NAD83(NSRS2007) / Michigan Oblique Mercator
    {3592, 4759, 126459, 1018, 575, 4, false}, // NAD83(NSRS2007) / Michigan South
    {3593, 4759, 126474, 1239, 575, 6, false}, // NAD83(NSRS2007) / Michigan South (ft)
    {3594, 4759, 126493, 1024, 1058, 4, false}, // NAD83(NSRS2007) / Minnesota Central
    {3595, 4759, 126530, 1023, 1059, 4, false}, // NAD83(NSRS2007) / Minnesota North
    {3596, 4759, 126563, 1025, 1060, 4, false}, // NAD83(NSRS2007) / Minnesota South
    {3597, 4759, 126597, 1031, 1061, 4, false}, // NAD83(NSRS2007) / Mississippi East
    {3598, 4759, 126617, 1240, 1061, 8, false}, // NAD83(NSRS2007) / Mississippi East (ftUS)
    {3599, 4759, 126659, 1032, 1062, 4, false}, // NAD83(NSRS2007) / Mississippi West
    {3600, 4759, 126679, 1241, 1062, 8, false}, // NAD83(NSRS2007) / Mississippi West (ftUS)
    {3601, 4759, 126703, 1037, 1063, 4, false}, // NAD83(NSRS2007) / Missouri Central
    {3602, 4759, 126720, 1036, 1064, 4, false}, // NAD83(NSRS2007) / Missouri East
    {3603, 4759, 126737, 1038, 1065, 4, false}, // NAD83(NSRS2007) / Missouri West
    {3604, 4759, 126754, 1042, 252, 4, false}, // NAD83(NSRS2007) / Montana
    {3605, 4759, 126766, 1242, 252, 6, false}, // NAD83(NSRS2007) / Montana (ft)
    {3606, 4759, 126782, 1045, 253, 4, false}, // NAD83(NSRS2007) / Nebraska
    {3607, 4759, 126813, 1050, 1068, 4, false}, // NAD83(NSRS2007) / Nevada Central
    {3608, 4759, 126827, 1286, 1068, 8, false}, // NAD83(NSRS2007) / Nevada Central (ftUS)
    {3609, 4759, 126846, 1049, 1069, 4, false}, // NAD83(NSRS2007) / Nevada East
    {3610, 4759, 126860, 1285, 1069, 8, false}, // NAD83(NSRS2007) / Nevada East (ftUS)
    {3611, 4759, 126878, 1051, 1070, 4, false}, // NAD83(NSRS2007) / Nevada West
    {3612, 4759, 126892, 1287, 1070, 8, false}, // NAD83(NSRS2007) / Nevada West (ftUS)
    {3613, 4759, 126910, 1053, 255, 4, false}, // NAD83(NSRS2007) / New Hampshire
    {3614, 4759, 126925, 1293, 255, 8, false}, // NAD83(NSRS2007) / New Hampshire (ftUS)
    {3615, 4759, 126945, 1055, 256, 4, false}, // NAD83(NSRS2007) / New Jersey
    {3616, 4759, 126958, 1288, 256, 8, false}, // NAD83(NSRS2007) / New Jersey (ftUS)
    {3617, 4759, 126976, 1060, 1076, 4, false}, // NAD83(NSRS2007) / New Mexico Central
    {3618, 4759, 126993, 1244, 1076, 8, false}, // NAD83(NSRS2007) / New Mexico Central (ftUS)
    {3619, 4759, 127015, 1059, 1073, 4, false}, // NAD83(NSRS2007) / New Mexico East
    {3620, 4759, 127032, 1243, 1073, 8, false}, // NAD83(NSRS2007) / New Mexico East (ftUS)
    {3621, 4759, 127053, 1061, 1077, 4, false}, // NAD83(NSRS2007) / New Mexico West
    {3622, 4759, 127070, 1245, 1077, 8, false}, // NAD83(NSRS2007) / New Mexico West (ftUS)
    {3623, 4759, 127091, 1067, 1078, 4, false}, // NAD83(NSRS2007) / New York Central
    {3624, 4759, 127107, 1247, 1078, 8, false}, // NAD83(NSRS2007) / New York Central (ftUS)
    {3625, 4759, 127127, 1066, 1079, 4, false}, // NAD83(NSRS2007) / New York East
    {3626, 4759, 127143, 1246, 1079, 8, false}, // NAD83(NSRS2007) / New York East (ftUS)
    {3627, 4759, 127163, 1069, 1080, 4, false}, // NAD83(NSRS2007) / New York Long Island
    {3628, 4759, 127181, 1249, 1080, 8, false}, // NAD83(NSRS2007) / New York Long Island (ftUS)
    {3629, 4759, 127205, 1068, 1081, 4, false}, // NAD83(NSRS2007) / New York West
    {3630, 4759, 127221, 1248, 1081, 8, false}, // NAD83(NSRS2007) / New York West (ftUS)
    {3631, 4759, 127241, 1071, 259, 4, false}, // NAD83(NSRS2007) / North Carolina
    {3632, 4759, 127254, 1250, 259, 8, false}, // NAD83(NSRS2007) / North Carolina (ftUS)
    {3633, 4759, 127272, 1074, 1082, 4, false}, // NAD83(NSRS2007) / North Dakota North
    {3634, 4759, 127286, 1251, 1082, 6, false}, // NAD83(NSRS2007) / North Dakota North (ft)
    {3635, 4759, 127304, 1075, 1083, 4, false}, // NAD83(NSRS2007) / North Dakota South
    {3636, 4759, 127319, 1252, 1083, 6, false}, // NAD83(NSRS2007) / North Dakota South (ft)
    {3637, 4759, 127337, 1078, 1084, 4, false}, // NAD83(NSRS2007) / Ohio North
    {3638, 4759, 127366, 1079, 1085, 4, false}, // NAD83(NSRS2007) / Ohio South
    {3639, 4759, 127396, 1084, 1086, 4, false}, // NAD83(NSRS2007) / Oklahoma North
    {3640, 4759, 127410, 1253, 1086, 8, false}, // NAD83(NSRS2007) / Oklahoma North (ftUS)
    {3641, 4759, 127429, 1085, 1087, 4, false}, // NAD83(NSRS2007) / Oklahoma South
    {3642, 4759, 127444, 1254, 1087, 8, false}, // NAD83(NSRS2007) / Oklahoma South (ftUS)
    {3643, 4759, 127485, 1090, 263, 4, false}, // NAD83(NSRS2007) / Oregon LCC (m)
    {3644, 4759, 127463, 1278, 263, 6, false}, // NAD83(NSRS2007) / Oregon GIC Lambert (ft)
    {3645, 4759, 127501, 1088, 1088, 4, false}, // NAD83(NSRS2007) / Oregon North
    {3646, 4759, 127511, 1255, 1088, 6, false}, // NAD83(NSRS2007) / Oregon North (ft)
    {3647, 4759, 127525, 1089, 1089, 4, false}, // NAD83(NSRS2007) / Oregon South
    {3648, 4759, 127536, 1256, 1089, 6, false}, // NAD83(NSRS2007) / Oregon South (ft)
    {3649, 4759, 127551, 1093, 1090, 4, false}, // NAD83(NSRS2007) / Pennsylvania North
    {3650, 4759, 127568, 1257, 1090, 8, false}, // NAD83(NSRS2007) / Pennsylvania North (ftUS)
    {3651, 4759, 127590, 1094, 1091, 4, false}, // NAD83(NSRS2007) / Pennsylvania South
    {3652, 4759, 127608, 1258, 1091, 8, false}, // NAD83(NSRS2007) / Pennsylvania South (ftUS)
    {3653, 4759, 127653, 1096, 265, 4, false}, // NAD83(NSRS2007) / Rhode Island
    {3654, 4759, 127666, 1294, 265, 8, false}, // NAD83(NSRS2007) / Rhode Island (ftUS)
    {3655, 4759, 127685, 1099, 266, 4, false}, // NAD83(NSRS2007) / South Carolina
    {3656, 4759, 127698, 1259, 266, 6, false}, // NAD83(NSRS2007) / South Carolina (ft)
    {3657, 4759, 127715, 1102, 1094, 4, false}, // NAD83(NSRS2007) / South Dakota North
    {3658, 4759, 127729, 1298, 1094, 8, false}, // NAD83(NSRS2007) / South Dakota North (ftUS)
    {3659, 4759, 127748, 1103, 1095, 4, false}, // NAD83(NSRS2007) / South Dakota South
    {3660, 4759, 127763, 1299, 1095, 8, false}, // NAD83(NSRS2007) / South Dakota South (ftUS)
    {3661, 4759, 127782, 1105, 268, 4, false}, // NAD83(NSRS2007) / Tennessee
    {3662, 4759, 127796, 1260, 268, 8, false}, // NAD83(NSRS2007) / Tennessee (ftUS)
    {3663, 4759, 127815, 1113, 1097, 4, false}, // NAD83(NSRS2007) / Texas Central
    {3664, 4759, 127830, 1263, 1097, 8, false}, // NAD83(NSRS2007) / Texas Central (ftUS)
    {3665, 4759, 127849, 1119, 269, 4, false}, // NAD83(NSRS2007) / Texas Centric Albers Equal Area
    {3666, 4759, 127876, 1118, 269, 4, false}, // NAD83(NSRS2007) / Texas Centric Lambert Conformal
    {3667, 4759, 127902, 1111, 1098, 4, false}, // NAD83(NSRS2007) / Texas North
    {3668, 4759, 127915, 1261, 1098, 8, false}, // NAD83(NSRS2007) / Texas North (ftUS)
    {3669, 4759, 127933, 1112, 1099, 4, false}, // NAD83(NSRS2007) / Texas North Central
    {3670, 4759, 127949, 1262, 1099, 8, false}, // NAD83(NSRS2007) / Texas North Central (ftUS)
    {3671, 4759, 127970, 1115, 1250, 4, false}, // NAD83(NSRS2007) / Texas South
    {3672, 4759, 127983, 1265, 1250, 8, false}, // NAD83(NSRS2007) / Texas South (ftUS)
    {3673, 4759, 128001, 1114, 1249, 4, false}, // NAD83(NSRS2007) / Texas South Central
    {3674, 4759, 128017, 1264, 1249, 8, false}, // NAD83(NSRS2007) / Texas South Central (ftUS)
    {3675, 4759, 128301, 1124, 1102, 4, false}, // NAD83(NSRS2007) / Utah Central
    {3676, 4759, 128315, 1267, 1102, 6, false}, // NAD83(NSRS2007) / Utah Central (ft)
    {3677, 4759, 128332, 1202, 1102, 8, false}, // NAD83(NSRS2007) / Utah Central (ftUS)
    {3678, 4759, 128350, 1123, 1103, 4, false}, // NAD83(NSRS2007) / Utah North
    {3679, 4759, 128362, 1266, 1103, 6, false}, // NAD83(NSRS2007) / Utah North (ft)
    {3680, 4759, 128378, 1201, 1103, 8, false}, // NAD83(NSRS2007) / Utah North (ftUS)
    {3681, 4759, 128395, 1125, 1104, 4, false}, // NAD83(NSRS2007) / Utah South
    {3682, 4759, 128407, 1268, 1104, 6, false}, // NAD83(NSRS2007) / Utah South (ft)
    {3683, 4759, 128423, 1203, 1104, 8, false}, // NAD83(NSRS2007) / Utah South (ftUS)
    {3684, 4759, 128440, 1127, 271, 4, false}, // NAD83(NSRS2007) / Vermont
    {3685, 4759, 128487, 1130, 1105, 4, false}, // NAD83(NSRS2007) / Virginia North
    {3686, 4759, 128500, 1269, 1105, 8, false}, // NAD83(NSRS2007) / Virginia North (ftUS)
    {3687, 4759, 128518, 1131, 1106, 4, false}, // NAD83(NSRS2007) / Virginia South
    {3688, 4759, 128532, 1270, 1106, 8, false}, // NAD83(NSRS2007) / Virginia South (ftUS)
    {3689, 4759, 128550, 1134, 1118, 4, false}, // NAD83(NSRS2007) / Washington North
    {3690, 4759, 128565, 1271, 1118, 8, false}, // NAD83(NSRS2007) / Washington North (ftUS)
    {3691, 4759, 128585, 1135, 1119, 4, false}, // NAD83(NSRS2007) / Washington South
    {3692, 4759, 128601, 1272, 1119, 8, false}, // NAD83(NSRS2007) / Washington South (ftUS)
    {3693, 4759, 128622, 1138, 1109, 4, false}, // NAD83(NSRS2007) / West Virginia North
    {3694, 4759, 128657, 1139, 1110, 4, false}, // NAD83(NSRS2007) / West Virginia South
    {3695, 4759, 128693, 1149, 1111, 4, false}, // NAD83(NSRS2007) / Wisconsin Central
    {3696, 4759, 128710, 1274, 1111, 8, false}, // NAD83(NSRS2007) / Wisconsin Central (ftUS)
    {3697, 4759, 128731, 1148, 1112, 4, false}, // NAD83(NSRS2007) / Wisconsin North
    {3698, 4759, 128746, 1273, 1112, 8, false}, // NAD83(NSRS2007) / Wisconsin North (ftUS)
    {3699, 4759, 128766, 1150, 1113, 4, false}, // NAD83(NSRS2007) / Wisconsin South
    {3700, 4759, 128781, 1275, 1113, 8, false}, // NAD83(NSRS2007) / Wisconsin South (ftUS)
    {3701, 4759, 128801, 1151, 274, 4, false}, // NAD83(NSRS2007) / Wisconsin Transverse Mercator
    {3702, 4759, 128827, 1157, 1114, 4, false}, // NAD83(NSRS2007) / Wyoming East
    {3703, 4759, 128863, 1158, 1115, 4, false}, // NAD83(NSRS2007) / Wyoming East Central
    {3704, 4759, 128940, 1159, 1117, 4, false}, // NAD83(NSRS2007) / Wyoming West Central
    {3705, 4759, 128904, 1160, 1116, 4, false}, // NAD83(NSRS2007) / Wyoming West
    {3706, 4759, 128215, 1368, 1821, 4, false}, // NAD83(NSRS2007) / UTM zone 59N
    {3707, 4759, 128240, 1369, 1822, 4, false}, // NAD83(NSRS2007) / UTM zone 60N
    {3708, 4759, 128167, 1310, 1823, 4, false}, // NAD83(NSRS2007) / UTM zone 1N
    {3709, 4759, 128179, 1311, 1824, 4, false}, // NAD83(NSRS2007) / UTM zone 2N
    {3710, 4759, 128191, 1312, 978, 4, false}, // NAD83(NSRS2007) / UTM zone 3N
    {3711, 4759, 128203, 1313, 979, 4, false}, // NAD83(NSRS2007) / UTM zone 4N
    {3712, 4759, 128228, 1314, 980, 4, false}, // NAD83(NSRS2007) / UTM zone 5N
    {3713, 4759, 128253, 1315, 981, 4, false}, // NAD83(NSRS2007) / UTM zone 6N
    {3714, 4759, 128265, 1316, 1929, 4, false}, // NAD83(NSRS2007) / UTM zone 7N
    {3715, 4759, 128277, 1317, 1930, 4, false}, // NAD83(NSRS2007) / UTM zone 8N
    {3716, 4759, 128289, 1318, 1931, 4, false}, // NAD83(NSRS2007) / UTM zone 9N
    {3717, 4759, 128038, 1319, 1932, 4, false}, // NAD83(NSRS2007) / UTM zone 10N
    {3718, 4759, 128050, 1320, 1933, 4, false}, // NAD83(NSRS2007) / UTM zone 11N
    {3719, 4759, 128063, 1321, 1934, 4, false}, // NAD83(NSRS2007) / UTM zone 12N
    {3720, 4759, 128076, 1322, 1935, 4, false}, // NAD83(NSRS2007) / UTM zone 13N
    {3721, 4759, 128089, 1323, 1936, 4, false}, // NAD83(NSRS2007) / UTM zone 14N
    {3722, 4759, 128102, 1324, 1937, 4, false}, // NAD83(NSRS2007) / UTM zone 15N
    {3723, 4759, 128115, 1325, 1938, 4, false}, // NAD83(NSRS2007) / UTM zone 16N
    {3724, 4759, 128128, 1326, 1939, 4, false}, // NAD83(NSRS2007) / UTM zone 17N
    {3725, 4759, 128141, 1327, 1940, 4, false}, // NAD83(NSRS2007) / UTM zone 18N
    {3726, 4759, 128154, 1328, 1941, 4, false}, // NAD83(NSRS2007) / UTM zone 19N
    {3727, 4626, 173221, 2251, 1798, 4, false}, // Reunion 1947 / TM Reunion
    {3728, 4759, 127349, 1080, 1084, 8, false}, // NAD83(NSRS2007) / Ohio North (ftUS)
    {3729, 4759, 127379, 1081, 1085, 8, false}, // NAD83(NSRS2007) / Ohio South (ftUS)
    {3730, 4759, 128843, 1161, 1114, 8, false}, // NAD83(NSRS2007) / Wyoming East (ftUS)
    {3731, 4759, 128881, 1162, 1115, 8, false}, // NAD83(NSRS2007) / Wyoming East Central (ftUS)
    {3732, 4759, 128958, 1163, 1117, 8, false}, // NAD83(NSRS2007) / Wyoming West Central (ftUS)
    {3733, 4759, 128920, 1164, 1116, 8, false}, // NAD83(NSRS2007) / Wyoming West (ftUS)
    {3734, 4269, 103585, 1080, 1084, 8, false}, // NAD83 / Ohio North (ftUS)
    {3735, 4269, 103605, 1081, 1085, 8, false}, // NAD83 / Ohio South (ftUS)
    {3736, 4269, 104773, 1161, 1114, 8, false}, // NAD83 / Wyoming East (ftUS)
    {3737, 4269, 104801, 1162, 1115, 8, false}, // NAD83 / Wyoming East Central (ftUS)
    {3738, 4269, 104871, 1163, 1117, 8, false}, // NAD83 / Wyoming West Central (ftUS)
    {3739, 4269, 104843, 1164, 1116, 8, false}, // NAD83 / Wyoming West (ftUS)
    {3740, 4152, 121715, 1319, 2230, 4, false}, // NAD83(HARN) / UTM zone 10N
    {3741, 4152, 121722, 1320, 2225, 4, false}, // NAD83(HARN) / UTM zone 11N
    {3742, 4152, 121730, 1321, 1934, 4, false}, // NAD83(HARN) / UTM zone 12N
    {3743, 4152, 121738, 1322, 1935, 4, false}, // NAD83(HARN) / UTM zone 13N
    {3744, 4152, 121746, 1323, 2233, 4, false}, // NAD83(HARN) / UTM zone 14N
    {3745, 4152, 121754, 1324, 2234, 4, false}, // NAD83(HARN) / UTM zone 15N
    {3746, 4152, 121762, 1325, 2235, 4, false}, // NAD83(HARN) / UTM zone 16N
    {3747, 4152, 121770, 1326, 2236, 4, false}, // NAD83(HARN) / UTM zone 17N
    {3748, 4152, 121778, 1327, 2241, 4, false}, // NAD83(HARN) / UTM zone 18N
    {3749, 4152, 121786, 1328, 2244, 4, false}, // NAD83(HARN) / UTM zone 19N
    {3750, 4152, 121801, 1313, 1925, 4, false}, // NAD83(HARN) / UTM zone 4N
    {3751, 4152, 121816, 1314, 1927, 4, false}, // NAD83(HARN) / UTM zone 5N
    {3752, 4326, 215543, 2250, 1943, 4, true}, // WGS 84 / Mercator 41
    {3753, 4152, 121226, 1080, 1084, 8, false}, // NAD83(HARN) / Ohio North (ftUS)
    {3754, 4152, 121246, 1081, 1085, 8, false}, // NAD83(HARN) / Ohio South (ftUS)
    {3755, 4152, 124361, 1161, 1114, 8, false}, // NAD83(HARN) / Wyoming East (ftUS)
    {3756, 4152, 124389, 1162, 1115, 8, false}, // NAD83(HARN) / Wyoming East Central (ftUS)
    {3757, 4152, 124446, 1163, 1117, 8, false}, // NAD83(HARN) / Wyoming West Central (ftUS)
    {3758, 4152, 124418, 1164, 1116, 8, false}, // NAD83(HARN) / Wyoming West (ftUS)
    {3759, 4269, 102002, 1197, 402, 8, false}, // NAD83 / Hawaii zone 3 (ftUS)
    {3760, 4152, 119930, 1197, 402, 8, false}, // NAD83(HARN) / Hawaii zone 3 (ftUS)
    {3761, 4617, 116840, 1331, 997, 4, false}, // NAD83(CSRS) / UTM zone 22N
    {3762, 4326, 217949, 2249, 1964, 4, false}, // WGS 84 / South Georgia Lambert
    {3763, 4258, 45732, 2248, 162, 4, false}, // ETRS89 / Portugal TM06
    {3764, 4167, 131367, 2022, 1481, 5, false}, // NZGD2000 / Chatham Island Circuit 2000
    {3765, 4761, 66595, 2246, 1727, 4, false}, // HTRS96 / Croatia TM
    {3766, 4761, 66580, 2247, 33, 4, false}, // HTRS96 / Croatia LCC
    {3767, 4761, 66608, 1342, 1970, 4, false}, // HTRS96 / UTM zone 33N
    {3768, 4761, 66621, 1343, 1969, 4, false}, // HTRS96 / UTM zone 34N
    {3769, 4216, 22755, 1329, 1720, 4, false}, // Bermuda 1957 / UTM zone 20N
    {3770, 4762, 18770, 2245, 12, 4, false}, // BDA2000 / Bermuda 2000 National Grid
    {3771, 4267, 97715, 1940, 1974, 4, false}, // NAD27 / Alberta 3TM ref merid 111 W
    {3772, 4267, 97739, 1941, 1973, 4, false}, // NAD27 / Alberta 3TM ref merid 114 W
    {3773, 4267, 97763, 1942, 1972, 4, false}, // NAD27 / Alberta 3TM ref merid 117 W
    {3774, 4267, 97787, 1943, 1971, 4, true}, // NAD27 / Alberta 3TM ref merid 120 W
    {3775, 4269, 100968, 1940, 1974, 4, false}, // NAD83 / Alberta 3TM ref merid 111 W
    {3776, 4269, 100990, 1941, 1973, 4, false}, // NAD83 / Alberta 3TM ref merid 114 W
    {3777, 4269, 101012, 1942, 1972, 4, false}, // NAD83 / Alberta 3TM ref merid 117 W
    {3778, 4269, 101034, 1943, 1971, 4, true}, // NAD83 / Alberta 3TM ref merid 120 W
    {3779, 4617, 115942, 1940, 1974, 4, false}, // NAD83(CSRS) / Alberta 3TM ref merid 111 W
    {3780, 4617, 115967, 1941, 1973, 4, false}, // NAD83(CSRS) / Alberta 3TM ref merid 114 W
    {3781, 4617, 115992, 1942, 1972, 4, false}, // NAD83(CSRS) / Alberta 3TM ref merid 117 W
    {3782, 4617, 116017, 1943, 1971, 4, true}, // NAD83(CSRS) / Alberta 3TM ref merid 120 W
    {3783, 4763, 150298, 2244, 1711, 4, false}, // Pitcairn 2006 / Pitcairn TM 2006
    {3784, 4729, 150272, 1407, 1711, 4, false}, // Pitcairn 1967 / UTM zone 9S
    {3785, 4055, 150741, 2243, 1975, 4, true}, // Popular Visualisation CRS / Mercator
    {3786, 4047, 227137, 2356, 138, 4, true}, // World Equidistant Cylindrical (Sphere)
    {3787, 4312, 89579, 2241, 115, 4, true}, // MGI / Slovene National Grid
    {3788, 4167, 131274, 2023, 1985, 5, false}, // NZGD2000 / Auckland Islands TM 2000
    {3789, 4167, 131346, 2024, 1986, 5, false}, // NZGD2000 / Campbell Island TM 2000
    {3790, 4167, 131251, 2025, 1987, 5, false}, // NZGD2000 / Antipodes Islands TM 2000
    {3791, 4167, 131778, 2026, 1988, 5, false}, // NZGD2000 / Raoul Island TM 2000
    {3793, 4167, 131390, 2028, 1481, 5, false}, // NZGD2000 / Chatham Islands TM 2000
    {3794, 4765, 186350, 2241, 115, 4, false}, // Slovenia 1996 / Slovene National Grid
    {3795, 4267, 98440, 2070, 342, 5, false}, // NAD27 / Cuba Norte
    {3796, 4267, 98451, 2071, 343, 5, false}, // NAD27 / Cuba Sur
    {3797, 4267, 98791, 2240, 228, 4, false}, // NAD27 / MTQ Lambert
    {3798, 4269, 102599, 2240, 228, 4, false}, // NAD83 / MTQ Lambert
    {3799, 4617, 116523, 2240, 228, 4, false}, // NAD83(CSRS) / MTQ Lambert
    {3800, 4267, 97787, 1944, 1971, 4, false}, // NAD27 / Alberta 3TM ref merid 120 W
    {3801, 4269, 101034, 1944, 1971, 4, false}, // NAD83 / Alberta 3TM ref merid 120 W
    {3802, 4617, 116017, 1944, 1971, 4, false}, // NAD83(CSRS) / Alberta 3TM ref merid 120 W
    {3812, 4258, 44636, 0, 209, 4, false}, // ETRS89 / Belgian Lambert 2008
    {3814, 4269, 102989, 1, 250, 4, false}, // NAD83 / Mississippi TM
    {3815, 4152, 120723, 1, 250, 4, false}, // NAD83(HARN) / Mississippi TM
    {3816, 4759, 126641, 1, 250, 4, false}, // NAD83(NSRS2007) / Mississippi TM
    {3819, 1024, 66404, geographic, 57, 25, false}, // HD1909
    {3821, 1025, 192773, geographic, 1789, 25, false}, // TWD67
    {3824, 1026, 192805, geographic, 122, 25, false}, // TWD97
    {3825, 3824, 192811, 2, 1993, 4, false}, // TWD97 / TM2 zone 119
    {3826, 3824, 192824, 3, 1992, 4, false}, // TWD97 / TM2 zone 121
    {3827, 3821, 192779, 2, 2021, 4, false}, // TWD67 / TM2 zone 119
    {3828, 3821, 192792, 3, 2326, 4, false}, // TWD67 / TM2 zone 121
    {3829, 4236, 68391, 1360, 1789, 4, false}, // Hu Tzu Shan 1950 / UTM zone 51N
    {3832, 4326, 215971, 4, 1678, 4, false}, // WGS 84 / PDC Mercator
    {3833, 4179, 159449, 1473, 2005, 5, false}, // Pulkovo 1942(58) / Gauss-Kruger zone 2
    {3834, 4178, 160151, 1473, 2005, 5, false}, // Pulkovo 1942(83) / Gauss-Kruger zone 2
    {3835, 4178, 160208, 1474, 2006, 5, false}, // Pulkovo 1942(83) / Gauss-Kruger zone 3
    {3836, 4178, 160265, 1475, 2008, 5, false}, // Pulkovo 1942(83) / Gauss-Kruger zone 4
    {3837, 4179, 159071, 1506, 366, 5, false}, // Pulkovo 1942(58) / 3-degree Gauss-Kruger zone 3
    {3838, 4179, 159144, 1507, 367, 5, false}, // Pulkovo 1942(58) / 3-degree Gauss-Kruger zone 4
    {3839, 4179, 159392, 1512, 2017, 5, false}, // Pulkovo 1942(58) / 3-degree Gauss-Kruger zone 9
    {3840, 4179, 159036, 1513, 2018, 5, false}, // Pulkovo 1942(58) / 3-degree Gauss-Kruger zone 10
    {3841, 4178, 159974, 1509, 2012, 5, false}, // Pulkovo 1942(83) / 3-degree Gauss-Kruger zone 6
    {3842, 4178, 160007, 1509, 2014, 5, true}, // Pulkovo 1942(83) / 3-degree Gauss-Kruger zone 7
    {3843, 4178, 160040, 1509, 2016, 5, true}, // Pulkovo 1942(83) / 3-degree Gauss-Kruger zone 8
    {3844, 4179, 159725, 2316, 109, 5, false}, // Pulkovo 1942(58) / Stereo70
    {3845, 4619, 183374, 1841, 1447, 5, false}, // SWEREF99 / RT90 7.5 gon V emulation
    {3846, 4619, 183348, 1842, 1448, 5, false}, // SWEREF99 / RT90 5 gon V emulation
    {3847, 4619, 183295, 1843, 1449, 5, false}, // SWEREF99 / RT90 2.5 gon V emulation
    {3848, 4619, 183244, 1844, 1450, 5, false}, // SWEREF99 / RT90 0 gon emulation
    {3849, 4619, 183268, 1845, 1451, 5, false}, // SWEREF99 / RT90 2.5 gon O emulation
    {3850, 4619, 183322, 1846, 1452, 5, false}, // SWEREF99 / RT90 5 gon O emulation
    {3851, 4167, 131648, 2027, 2023, 5, false}, // NZGD2000 / NZCS2000
    {3852, 4764, 170945, 2029, 2022, 5, false}, // RSRGD2000 / DGLC2000
    {3854, 4619, 37227, 5, 2037, 5, false}, // County ST74
    {3857, 4326, 216004, 6, 1975, 4, false}, // WGS 84 / Pseudo-Mercator
    {3873, 4258, 45092, 7, 2024, 5, false}, // ETRS89 / GK19FIN
    {3874, 4258, 45105, 8, 2025, 5, false}, // ETRS89 / GK20FIN
    {3875, 4258, 45118, 9, 2026, 5, false}, // ETRS89 / GK21FIN
    {3876, 4258, 45132, 10, 2027, 5, false}, // ETRS89 / GK22FIN
    {3877, 4258, 45146, 11, 2028, 5, false}, // ETRS89 / GK23FIN
    {3878, 4258, 45160, 12, 2029, 5, false}, // ETRS89 / GK24FIN
    {3879, 4258, 45174, 13, 2030, 5, false}, // ETRS89 / GK25FIN
    {3880, 4258, 45188, 14, 2031, 5, false}, // ETRS89 / GK26FIN
    {3881, 4258, 45202, 15, 2032, 5, false}, // ETRS89 / GK27FIN
    {3882, 4258, 45215, 16, 2033, 5, false}, // ETRS89 / GK28FIN
    {3883, 4258, 45229, 17, 2034, 5, false}, // ETRS89 / GK29FIN
    {3884, 4258, 45243, 18, 2035, 5, false}, // ETRS89 / GK30FIN
    {3885, 4258, 45257, 19, 2036, 5, false}, // ETRS89 / GK31FIN
    {3889, 1029, 70112, geographic, 62, 25, false}, // IGRS
    {3890, 3889, 70116, 1346, 1836, 4, false}, // IGRS / UTM zone 37N
    {3891, 3889, 70127, 1347, 1837, 4, false}, // IGRS / UTM zone 38N
    {3892, 3889, 70138, 1348, 2301, 4, false}, // IGRS / UTM zone 39N
    {3893, 4230, 41529, 2300, 2054, 4, false}, // ED50 / Iraq National Grid
    {3906, 1031, 89611, geographic, 1196, 25, false}, // MGI 1901
    {3907, 3906, 89618, 2180, 560, 5, true}, // MGI 1901 / Balkans zone 5
    {3908, 3906, 89633, 2181, 561, 5, true}, // MGI 1901 / Balkans zone 6
    {3909, 3906, 89648, 2182, 562, 5, true}, // MGI 1901 / Balkans zone 7
    {3910, 3906, 89663, 2183, 563, 5, true}, // MGI 1901 / Balkans zone 8
    {3911, 3906, 89699, 2355, 115, 5, true}, // MGI 1901 / Slovenia Grid
    {3912, 3906, 89678, 2241, 115, 4, false}, // MGI 1901 / Slovene National Grid
    {3920, 4139, 151985, 1329, 1795, 4, false}, // Puerto Rico / UTM zone 20N
    {3942, 4171, 168556, 2086, 1976, 4, false}, // RGF93 v1 / CC42
    {3943, 4171, 168570, 2087, 1977, 4, false}, // RGF93 v1 / CC43
    {3944, 4171, 168584, 2088, 1978, 4, false}, // RGF93 v1 / CC44
    {3945, 4171, 168598, 2089, 1979, 4, false}, // RGF93 v1 / CC45
    {3946, 4171, 168612, 2090, 1980, 4, false}, // RGF93 v1 / CC46
    {3947, 4171, 168626, 2091, 1981, 4, false}, // RGF93 v1 / CC47
    {3948, 4171, 168640, 2092, 1982, 4, false}, // RGF93 v1 / CC48
    {3949, 4171, 168654, 2093, 1983, 4, false}, // RGF93 v1 / CC49
    {3950, 4171, 168668, 2094, 1984, 4, false}, // RGF93 v1 / CC50
    {3968, 4269, 104505, 23, 272, 4, false}, // NAD83 / Virginia Lambert
    {3969, 4152, 121937, 23, 272, 4, false}, // NAD83(HARN) / Virginia Lambert
    {3970, 4759, 128470, 23, 272, 4, false}, // NAD83(NSRS2007) / Virginia Lambert
    {3973, 4326, 215701, 20, 1919, 4, true}, // WGS 84 / NSIDC EASE-Grid North
    {3974, 4326, 215724, 21, 1918, 4, true}, // WGS 84 / NSIDC EASE-Grid South
    {3975, 4326, 215674, 2262, 1910, 4, true}, // WGS 84 / NSIDC EASE-Grid Global
    {3976, 4326, 215779, 2261, 842, 4, false}, // WGS 84 / NSIDC Sea Ice Polar Stereographic South
    {3978, 4269, 101658, 24, 23, 4, false}, // NAD83 / Canada Atlas Lambert
    {3979, 4617, 116054, 24, 23, 4, false}, // NAD83(CSRS) / Canada Atlas Lambert
    {3985, 4695, 81148, 25, 1664, 4, true}, // Katanga 1955 / Katanga Lambert
    {3986, 4695, 81064, 26, 2041, 4, false}, // Katanga 1955 / Katanga Gauss zone A
    {3987, 4695, 81085, 27, 2040, 4, false}, // Katanga 1955 / Katanga Gauss zone B
    {3988, 4695, 81106, 28, 2039, 4, false}, // Katanga 1955 / Katanga Gauss zone C
    {3989, 4695, 81127, 29, 2038, 4, false}, // Katanga 1955 / Katanga Gauss zone D
    {3991, 4139, 152025, 1198, 1771, 8, false}, // Puerto Rico State Plane CS of 1927
    {3992, 4139, 151967, 1199, 1796, 8, false}, // Puerto Rico / St. Croix
    {3993, 4675, 65842, 1304, 1743, 4, false}, // Guam 1963 / Guam SPCS
    {3994, 4326, 215543, 2239, 1943, 4, false}, // WGS 84 / Mercator 41
    {3995, 4326, 213751, 2238, 841, 4, false}, // WGS 84 / Arctic Polar Stereographic
    {3996, 4326, 215324, 2236, 841, 4, false}, // WGS 84 / IBCAO Polar Stereographic
    {3997, 4326, 214070, 2235, 1966, 4, false}, // WGS 84 / Dubai Local TM
    {4001, 6001, 205318, geographic, 139, 25, true}, // Unknown datum based upon the Airy 1830 ellipsoid
    {4002, 6002, 205356, geographic, 139, 25, true}, // Unknown datum based upon the Airy Modified 1849 ellipsoid
    {4003, 6003, 205403, geographic, 139, 25, true}, // Unknown datum based upon the Australian National Spheroid
    {4004, 6004, 205525, geographic, 139, 25, true}, // Unknown datum based upon the Bessel 1841 ellipsoid
    {4005, 6005, 205566, geographic, 139, 25, true}, // Unknown datum based upon the Bessel Modified ellipsoid
    {4006, 6006, 205610, geographic, 139, 25, true}, // Unknown datum based upon the Bessel Namibia ellipsoid
    {4007, 6007, 205651, geographic, 139, 25, true}, // Unknown datum based upon the Clarke 1858 ellipsoid
    {4008, 6008, 205740, geographic, 139, 25, true}, // Unknown datum based upon the Clarke 1866 ellipsoid
    {4009, 6009, 205692, geographic, 139, 25, true}, // Unknown datum based upon the Clarke 1866 Michigan ellipsoid
    {4010, 6010, 205826, geographic, 139, 25, true}, // Unknown datum based upon the Clarke 1880 (Benoit) ellipsoid
    {4011, 6011, 205873, geographic, 139, 25, true}, // Unknown datum based upon the Clarke 1880 (IGN) ellipsoid
    {4012, 6012, 205919, geographic, 139, 25, true}, // Unknown datum based upon the Clarke 1880 (RGS) ellipsoid
    {4013, 6013, 205781, geographic, 139, 25, true}, // Unknown datum based upon the Clarke 1880 (Arc) ellipsoid
    {4014, 6014, 205965, geographic, 139, 25, true}, // Unknown datum based upon the Clarke 1880 (SGA 1922) ellipsoid
    {4015, 6015, 206103, geographic, 139, 25, true}, // Unknown datum based upon the Everest 1830 (1937 Adjustment) ellipsoid
    {4016, 6016, 206207, geographic, 139, 25, true}, // Unknown datum based upon the Everest 1830 (1967 Definition) ellipsoid
    {4018, 6018, 206309, geographic, 139, 25, true}, // Unknown datum based upon the Everest 1830 Modified ellipsoid
    {4019, 6019, 206431, geographic, 139, 25, true}, // Unknown datum based upon the GRS 1980 ellipsoid
    {4020, 6020, 206468, geographic, 139, 25, true}, // Unknown datum based upon the Helmert 1906 ellipsoid
    {4021, 6021, 206508, geographic, 139, 25, true}, // Unknown datum based upon the Indonesian National Spheroid
    {4022, 6022, 206545, geographic, 139, 25, true}, // Unknown datum based upon the International 1924 ellipsoid
    {4023, 1032, 90091, geographic, 89, 25, false}, // MOLDREF99
    {4024, 6024, 206587, geographic, 139, 25, true}, // Unknown datum based upon the Krassowsky 1940 ellipsoid
    {4025, 6025, 206631, geographic, 139, 25, true}, // Unknown datum based upon the NWL 9D ellipsoid
    {4026, 4023, 90101, 30, 89, 5, false}, // MOLDREF99 / Moldova TM
    {4027, 6027, 206745, geographic, 139, 25, true}, // Unknown datum based upon the Plessis 1817 ellipsoid
    {4028, 6028, 206787, geographic, 139, 25, true}, // Unknown datum based upon the Struve 1860 ellipsoid
    {4029, 6029, 206905, geographic, 139, 25, true}, // Unknown datum based upon the War Office ellipsoid
    {4030, 6030, 206867, geographic, 139, 25, true}, // Unknown datum based upon the WGS 84 ellipsoid
    {4031, 6031, 206356, geographic, 139, 25, true}, // Unknown datum based upon the GEM 10C ellipsoid
    {4032, 6032, 206669, geographic, 139, 25, true}, // Unknown datum based upon the OSU86F ellipsoid
    {4033, 6033, 206707, geographic, 139, 25, true}, // Unknown datum based upon the OSU91A ellipsoid
    {4034, 6034, 206014, geographic, 139, 25, true}, // Unknown datum based upon the Clarke 1880 ellipsoid
    {4035, 6035, 205441, geographic, 139, 23, true}, // Unknown datum based upon the Authalic Sphere
    {4036, 6036, 206394, geographic, 139, 25, true}, // Unknown datum based upon the GRS 1967 ellipsoid
    {4037, 4326, 218111, 1344, 2044, 5, false}, // WGS 84 / TMzn35N
    {4038, 4326, 218125, 1345, 2045, 5, false}, // WGS 84 / TMzn36N
    {4041, 6041, 205474, geographic, 139, 25, true}, // Unknown datum based upon the Average Terrestrial System 1977 ellipsoid
    {4042, 6042, 206055, geographic, 139, 25, true}, // Unknown datum based upon the Everest (1830 Definition) ellipsoid
    {4043, 6043, 206829, geographic, 139, 25, true}, // Unknown datum based upon the WGS 72 ellipsoid
    {4044, 6044, 206156, geographic, 139, 25, true}, // Unknown datum based upon the Everest 1830 (1962 Definition) ellipsoid
    {4045, 6045, 206258, geographic, 139, 25, true}, // Unknown datum based upon the Everest 1830 (1975 Definition) ellipsoid
    {4046, 1033, 169783, geographic, 2042, 25, false}, // RGRDC 2005
    {4047, 6047, 206990, geographic, 139, 25, true}, // Unspecified datum based upon the GRS 1980 Authalic Sphere
    {4048, 4046, 169792, 1867, 2285, 4, false}, // RGRDC 2005 / Congo TM zone 12
    {4049, 4046, 169810, 1868, 1668, 4, false}, // RGRDC 2005 / Congo TM zone 14
    {4050, 4046, 169828, 1869, 2046, 4, false}, // RGRDC 2005 / Congo TM zone 16
    {4051, 4046, 169846, 1870, 2047, 4, false}, // RGRDC 2005 / Congo TM zone 18
    {4052, 6052, 206944, geographic, 139, 25, true}, // Unspecified datum based upon the Clarke 1866 Authalic Sphere
    {4053, 6053, 207075, geographic, 139, 25, true}, // Unspecified datum based upon the International 1924 Authalic Sphere
    {4054, 6054, 207032, geographic, 139, 25, true}, // Unspecified datum based upon the Hughes 1980 ellipsoid
    {4055, 6055, 150723, geographic, 138, 25, true}, // Popular Visualisation CRS
    {4056, 4046, 169864, 1871, 2049, 4, false}, // RGRDC 2005 / Congo TM zone 20
    {4057, 4046, 169882, 1872, 2050, 4, false}, // RGRDC 2005 / Congo TM zone 22
    {4058, 4046, 169900, 1873, 2051, 4, false}, // RGRDC 2005 / Congo TM zone 24
    {4059, 4046, 169918, 1874, 2052, 4, false}, // RGRDC 2005 / Congo TM zone 26
    {4060, 4046, 169936, 1875, 2053, 4, false}, // RGRDC 2005 / Congo TM zone 28
    {4061, 4046, 169972, 1431, 2055, 4, false}, // RGRDC 2005 / UTM zone 33S
    {4062, 4046, 169988, 1432, 2056, 4, false}, // RGRDC 2005 / UTM zone 34S
    {4063, 4046, 170004, 1433, 2057, 4, false}, // RGRDC 2005 / UTM zone 35S
    {4071, 4224, 33494, 1421, 2048, 4, false}, // Chua / UTM zone 23S
    {4075, 1034, 182720, geographic, 2846, 25, false}, // SREF98
    {4081, 1035, 168130, geographic, 1704, 25, false}, // REGCAN95
    {4082, 4081, 168205, 1336, 2058, 4, false}, // REGCAN95 / UTM zone 27N
    {4083, 4081, 168221, 1337, 2059, 4, false}, // REGCAN95 / UTM zone 28N
    {4087, 4326, 220025, 31, 138, 4, false}, // WGS 84 / World Equidistant Cylindrical
    {4088, 4047, 227137, 32, 138, 4, true}, // World Equidistant Cylindrical (Sphere)
    {4093, 4258, 44656, 33, 2060, 4, false}, // ETRS89 / DKTM1
    {4094, 4258, 44667, 34, 2061, 4, false}, // ETRS89 / DKTM2
    {4095, 4258, 44678, 35, 1254, 4, false}, // ETRS89 / DKTM3
    {4096, 4258, 44689, 36, 1255, 4, false}, // ETRS89 / DKTM4
    {4120, 6120, 64883, geographic, 1742, 25, false}, // Greek
    {4121, 6121, 56013, geographic, 1742, 25, false}, // GGRS87
    {4122, 6122, 4173, geographic, 153, 25, false}, // ATS77
    {4123, 6123, 79098, geographic, 1797, 25, false}, // KKJ
    {4124, 6124, 171349, geographic, 120, 25, false}, // RT90
    {4125, 6125, 183879, geographic, 190, 23, true}, // Samboja
    {4126, 6126, 84342, geographic, 76, 23, true}, // LKS94 (ETRS89)
    {4127, 6127, 193664, geographic, 1764, 25, false}, // Tete
    {4128, 6128, 91184, geographic, 179, 25, false}, // Madzansua
    {4129, 6129, 142894, geographic, 191, 25, false}, // Observatario
    {4130, 6130, 97195, geographic, 91, 25, false}, // Moznet
    {4131, 6131, 72583, geographic, 2344, 25, false}, // Indian 1960
    {4132, 6132, 74914, geographic, 166, 25, false}, // FD58
    {4133, 6133, 44036, geographic, 1736, 25, false}, // EST92
    {4134, 6134, 147479, geographic, 1766, 25, false}, // PSD93
    {4135, 6135, 143563, geographic, 196, 25, false}, // Old Hawaiian
    {4136, 6136, 198751, geographic, 194, 25, false}, // St. Lawrence Island
    {4137, 6137, 198770, geographic, 195, 25, false}, // St. Paul Island
    {4138, 6138, 198734, geographic, 193, 25, false}, // St. George Island
    {4139, 6139, 151947, geographic, 197, 25, false}, // Puerto Rico
    {4140, 6140, 119032, geographic, 198, 23, true}, // NAD83(CSRS98)
    {4141, 6141, 75365, geographic, 1288, 25, false}, // Israel 1993
    {4142, 6142, 87179, geographic, 32, 25, false}, // Locodjo 1965
    {4143, 6143, 4599, geographic, 32, 25, false}, // Abidjan 1987
    {4144, 6144, 79600, geographic, 173, 25, false}, // Kalianpur 1937
    {4145, 6145, 79657, geographic, 100, 25, false}, // Kalianpur 1962
    {4146, 6146, 79744, geographic, 1801, 25, false}, // Kalianpur 1975
    {4147, 6147, 66888, geographic, 1794, 25, false}, // Hanoi 1972
    {4148, 6148, 67054, geographic, 2843, 25, false}, // Hartebeesthoek94
    {4149, 6149, 27924, geographic, 155, 25, false}, // CH1903
    {4150, 6150, 27966, geographic, 155, 25, false}, // CH1903+
    {4151, 6151, 28061, geographic, 155, 25, false}, // CHTRS95
    {4152, 6152, 119314, geographic, 199, 25, false}, // NAD83(HARN)
    {4153, 6153, 171922, geographic, 200, 25, false}, // Rassadiran
    {4154, 6154, 41801, geographic, 61, 25, false}, // ED50(ED77)
    {4155, 6155, 39542, geographic, 1744, 25, false}, // Dabola 1981
    {4156, 6156, 174979, geographic, 171, 25, false}, // S-JTSK
    {4157, 6157, 96898, geographic, 185, 25, false}, // Mount Dillon
    {4158, 6158, 133085, geographic, 1661, 25, false}, // Naparima 1955
    {4159, 6159, 41990, geographic, 74, 25, false}, // ELD79
    {4160, 6160, 33359, geographic, 2863, 25, false}, // Chos Malal 1914
    {4161, 6161, 148308, geographic, 2864, 25, false}, // Pampa del Castillo
    {4162, 6162, 82961, geographic, 1749, 25, false}, // Korean 1985
    {4163, 6163, 229789, geographic, 134, 25, false}, // Yemen NGN96
    {4164, 6164, 188641, geographic, 202, 25, false}, // South Yemen
    {4165, 6165, 23653, geographic, 1745, 25, false}, // Bissau
    {4166, 6166, 83186, geographic, 1749, 25, false}, // Korean 1995
    {4167, 6167, 131217, geographic, 96, 25, false}, // NZGD2000
    {4168, 6168, 4719, geographic, 51, 25, false}, // Accra
    {4169, 6169, 6923, geographic, 1634, 25, false}, // American Samoa 1962
    {4170, 6170, 176011, geographic, 1895, 25, false}, // SIRGAS 1995
    {4171, 6171, 168515, geographic, 47, 25, false}, // RGF93 v1
    {4172, 6172, 146559, geographic, 6, 23, true}, // POSGAR
    {4173, 6173, 70405, geographic, 170, 25, false}, // IRENET95
    {4174, 6174, 185397, geographic, 204, 25, false}, // Sierra Leone 1924
    {4175, 6175, 185459, geographic, 1780, 25, false}, // Sierra Leone 1968
    {4176, 6176, 17165, geographic, 149, 25, false}, // Australian Antarctic
    {4178, 6178, 159747, geographic, 2268, 25, false}, // Pulkovo 1942(83)
    {4179, 6179, 159021, geographic, 2004, 25, false}, // Pulkovo 1942(58)
    {4180, 6180, 44042, geographic, 42, 25, false}, // EST97
    {4181, 6181, 84430, geographic, 77, 25, false}, // LUREF
    {4182, 6182, 18120, geographic, 206, 25, false}, // Azores Occidental 1939
    {4183, 6183, 18036, geographic, 167, 25, false}, // Azores Central 1948
    {4184, 6184, 18177, geographic, 207, 25, false}, // Azores Oriental 1940
    {4185, 6185, 90981, geographic, 178, 23, true}, // Madeira 1936
    {4188, 6188, 142754, geographic, 1252, 25, false}, // OSNI 1952
    {4189, 6189, 178192, geographic, 132, 25, false}, // REGVEN
    {4190, 6190, 146874, geographic, 6, 25, false}, // POSGAR 98
    {4191, 6191, 6289, geographic, 1713, 25, false}, // Albanian 1987
    {4192, 6192, 40920, geographic, 1262, 25, false}, // Douala 1948
    {4193, 6193, 92094, geographic, 1262, 25, false}, // Manoca 1962
    {4194, 6194, 167218, geographic, 1812, 25, false}, // Qornoq 1927
    {4195, 6195, 184701, geographic, 1267, 25, false}, // Scoresbysund 1952
    {4196, 6196, 7030, geographic, 1268, 25, false}, // Ammassalik 1958
    {4197, 6197, 63370, geographic, 1277, 25, false}, // Garoua
    {4198, 6198, 83326, geographic, 1278, 25, false}, // Kousseri
    {4199, 6199, 47074, geographic, 1734, 25, false}, // Egypt 1930
    {4200, 6200, 160291, geographic, 110, 25, false}, // Pulkovo 1995
    {4201, 6201, 4844, geographic, 142, 25, false}, // Adindan
    {4202, 6202, 16226, geographic, 150, 25, false}, // AGD66
    {4203, 6203, 16413, geographic, 1273, 25, false}, // AGD84
    {4204, 6204, 5681, geographic, 143, 25, false}, // Ain el Abd
    {4205, 6205, 4936, geographic, 1782, 25, false}, // Afgooye
    {4206, 6206, 5675, geographic, 97, 25, false}, // Agadez
    {4207, 6207, 86284, geographic, 162, 25, false}, // Lisbon
    {4208, 6208, 24315, geographic, 145, 25, false}, // Aratu
    {4209, 6209, 10833, geographic, 147, 25, false}, // Arc 1950
    {4210, 6210, 10878, geographic, 148, 25, false}, // Arc 1960
    {4211, 6211, 19856, geographic, 2091, 25, false}, // Batavia
    {4212, 6212, 19627, geographic, 1718, 25, false}, // Barbados 1938
    {4213, 6213, 20174, geographic, 1392, 25, false}, // Beduaram
    {4214, 6214, 20208, geographic, 27, 25, false}, // Beijing 1954
    {4215, 6215, 18679, geographic, 209, 25, false}, // BD50
    {4216, 6216, 22745, geographic, 1720, 25, false}, // Bermuda 1957
    {4217, 4269, 101377, 57, 1821, 8, false}, // NAD83 / BLM 59N (ftUS)
    {4218, 6218, 23796, geographic, 2111, 25, false}, // Bogota 1975
    {4219, 6219, 25738, geographic, 156, 25, false}, // Bukit Rimpah
    {4220, 6220, 29066, geographic, 157, 25, false}, // Camacupa 1948
    {4221, 6221, 29306, geographic, 2220, 25, false}, // Campo Inchauspe
    {4222, 6222, 31247, geographic, 158, 25, false}, // Cape
    {4223, 6223, 31675, geographic, 126, 25, false}, // Carthage
    {4224, 6224, 33489, geographic, 1806, 25, false}, // Chua
    {4225, 6225, 36742, geographic, 161, 25, false}, // Corrego Alegre 1970-72
    {4226, 6226, 37073, geographic, 32, 23, true}, // Cote d'Ivoire
    {4227, 6227, 40273, geographic, 475, 25, false}, // Deir ez Zor
    {4228, 6228, 40903, geographic, 22, 23, true}, // Douala
    {4229, 6229, 46989, geographic, 39, 25, false}, // Egypt 1907
    {4230, 6230, 41324, geographic, 163, 25, false}, // ED50
    {4231, 6231, 41945, geographic, 164, 25, false}, // ED87
    {4232, 6232, 50617, geographic, 2346, 25, false}, // Fahud
    {4233, 6233, 63348, geographic, 83, 25, true}, // Gandajika 1970
    {4234, 6234, 63370, geographic, 22, 23, true}, // Garoua
    {4235, 6235, 66378, geographic, 48, 23, true}, // Guyane Francaise
    {4236, 6236, 68378, geographic, 1789, 25, false}, // Hu Tzu Shan 1950
    {4237, 6237, 66410, geographic, 57, 25, false}, // HD72
    {4238, 6238, 68643, geographic, 2352, 25, false}, // ID74
    {4239, 6239, 72538, geographic, 169, 25, false}, // Indian 1954
    {4240, 6240, 72629, geographic, 2139, 25, false}, // Indian 1975
    {4241, 6241, 77622, geographic, 1802, 25, false}, // Jamaica 1875
    {4242, 6242, 76012, geographic, 1802, 25, false}, // JAD69
    {4243, 6243, 79484, geographic, 172, 25, false}, // Kalianpur 1880
    {4244, 6244, 80023, geographic, 1784, 25, false}, // Kandawala
    {4245, 6245, 81754, geographic, 2538, 25, false}, // Kertau 1968
    {4246, 6246, 79202, geographic, 1750, 25, false}, // KOC
    {4247, 6247, 84497, geographic, 1793, 25, false}, // La Canoa
    {4248, 6248, 147243, geographic, 210, 25, false}, // PSAD56
    {4249, 6249, 202422, geographic, 176, 25, false}, // Lake
    {4250, 6250, 85413, geographic, 51, 25, false}, // Leigon
    {4251, 6251, 85480, geographic, 1753, 25, false}, // Liberia 1964
    {4252, 6252, 87335, geographic, 123, 25, false}, // Lome
    {4253, 6253, 87575, geographic, 2314, 25, false}, // Luzon 1911
    {4254, 6254, 67836, geographic, 168, 25, false}, // Hito XVIII 1963
    {4255, 6255, 67781, geographic, 0, 25, false}, // Herat North
    {4256, 6256, 91207, geographic, 1195, 25, false}, // Mahe 1971
    {4257, 6257, 91487, geographic, 180, 25, false}, // Makassar
    {4258, 6258, 182678, geographic, 165, 25, false}, // ETRS89
    {4259, 6259, 91967, geographic, 1686, 25, false}, // Malongo 1987
    {4260, 6260, 92088, geographic, 22, 23, true}, // Manoca
    {4261, 6261, 93519, geographic, 2880, 25, false}, // Merchich
    {4262, 6262, 92997, geographic, 41, 25, false}, // Massawa
    {4263, 6263, 95027, geographic, 98, 25, false}, // Minna
    {4264, 6264, 94262, geographic, 182, 25, true}, // Mhast
    {4265, 6265, 96455, geographic, 1803, 25, false}, // Monte Mario
    {4266, 6266, 87717, geographic, 50, 25, false}, // M'poraloko
    {4267, 6267, 29741, geographic, 211, 25, false}, // NAD27
    {4268, 6268, 100049, geographic, 248, 25, true}, // NAD27 Michigan
    {4269, 6269, 138824, geographic, 212, 25, false}, // NAD83
    {4270, 6270, 132741, geographic, 213, 25, false}, // Nahrwan 1967
    {4271, 6271, 133113, geographic, 185, 25, false}, // Naparima 1972
    {4272, 6272, 131954, geographic, 1765, 25, false}, // NZGD49
    {4273, 6273, 130227, geographic, 214, 25, false}, // NGO 1948
    {4274, 6274, 39692, geographic, 162, 25, false}, // Datum 73
    {4275, 6275, 130715, geographic, 2119, 25, false}, // NTF
    {4276, 6276, 130688, geographic, 138, 25, false}, // NSWC 9Z-2
    {4277, 6277, 142700, geographic, 2703, 25, false}, // OSGB36
    {4278, 6278, 142728, geographic, 140, 25, false}, // OSGB70
    {4279, 6279, 142671, geographic, 215, 25, false}, // OS(SN)80
    {4280, 6280, 147882, geographic, 216, 25, true}, // Padang
    {4281, 6281, 148155, geographic, 217, 25, false}, // Palestine 1923
    {4282, 6282, 35479, geographic, 30, 25, false}, // Pointe Noire
    {4283, 6283, 55130, geographic, 2494, 25, false}, // GDA94
    {4284, 6284, 152237, geographic, 1247, 25, false}, // Pulkovo 1942
    {4285, 6285, 167131, geographic, 107, 25, false}, // Qatar 1974
    {4286, 6286, 167109, geographic, 208, 25, false}, // Qatar 1948
    {4287, 6287, 167212, geographic, 54, 23, true}, // Qornoq
    {4288, 6288, 87315, geographic, 177, 25, false}, // Loma Quintana
    {4289, 6289, 6978, geographic, 146, 25, false}, // Amersfoort
    {4291, 6291, 24490, geographic, 218, 23, true}, // SAD69
    {4292, 6292, 184159, geographic, 1737, 25, false}, // Sapper Hill 1943
    {4293, 6293, 184510, geographic, 92, 25, false}, // Schwarzeck
    {4294, 6294, 184883, geographic, 219, 23, true}, // Segora
    {4295, 6295, 185148, geographic, 2342, 25, false}, // Serindung
    {4296, 6296, 5389, geographic, 221, 23, true}, // Sudan
    {4297, 6297, 193222, geographic, 80, 25, false}, // Tananarive
    {4298, 6298, 194219, geographic, 222, 25, false}, // Timbalai 1948
    {4299, 6299, 191665, geographic, 170, 25, false}, // TM65
    {4300, 6300, 191712, geographic, 170, 25, false}, // TM75
    {4301, 6301, 194465, geographic, 224, 25, false}, // Tokyo
    {4302, 6302, 195355, geographic, 201, 25, false}, // Trinidad 1903
    {4303, 6303, 191496, geographic, 223, 25, false}, // TC(1948)
    {4304, 6304, 209639, geographic, 225, 25, false}, // Voirol 1875
    {4306, 6306, 22911, geographic, 155, 25, false}, // Bern 1938
    {4307, 6307, 137947, geographic, 2, 25, false}, // Nord Sahara 1959
    {4308, 6308, 171067, geographic, 1787, 25, false}, // RT38
    {4309, 6309, 229546, geographic, 1792, 25, false}, // Yacare
    {4310, 6310, 229922, geographic, 112, 25, false}, // Yoff
    {4311, 6311, 230055, geographic, 118, 25, false}, // Zanderij
    {4312, 6312, 89045, geographic, 8, 25, false}, // MGI
    {4313, 6313, 18722, geographic, 209, 25, false}, // BD72
    {4314, 6314, 38562, geographic, 1158, 25, false}, // DHDN
    {4315, 6315, 35358, geographic, 1744, 25, false}, // Conakry 1905
    {4316, 6316, 39995, geographic, 1772, 25, false}, // Dealul Piscului 1930
    {4317, 6317, 40079, geographic, 109, 25, true}, // Dealul Piscului 1970
    {4318, 6318, 130173, geographic, 1750, 25, false}, // NGN
    {4319, 6319, 79442, geographic, 175, 25, false}, // KUDAMS
    {4322, 6322, 209942, geographic, 138, 25, false}, // WGS 72
    {4324, 6324, 224248, geographic, 138, 25, false}, // WGS 72BE
    {4326, 6326, 213570, geographic, 138, 25, false}, // WGS 84
    {4390, 4245, 81763, 50, 1825, 4, false}, // Kertau 1968 / Johor Grid
    {4391, 4245, 81901, 51, 1826, 4, false}, // Kertau 1968 / Sembilan and Melaka Grid
    {4392, 4245, 81822, 52, 1827, 4, false}, // Kertau 1968 / Pahang Grid
    {4393, 4245, 81882, 53, 1828, 4, false}, // Kertau 1968 / Selangor Grid
    {4394, 4245, 81945, 56, 1829, 4, false}, // Kertau 1968 / Terengganu Grid
    {4395, 4245, 81864, 59, 1830, 4, false}, // Kertau 1968 / Pinang Grid
    {4396, 4245, 81781, 60, 1831, 4, false}, // Kertau 1968 / Kedah and Perlis Grid
    {4397, 4245, 81840, 61, 1832, 4, false}, // Kertau 1968 / Perak Revised Grid
    {4398, 4245, 81803, 62, 1833, 4, false}, // Kertau 1968 / Kelantan Grid
    {4399, 4267, 98156, 57, 1821, 8, false}, // NAD27 / BLM 59N (ftUS)
    {4400, 4267, 98189, 58, 1822, 8, false}, // NAD27 / BLM 60N (ftUS)
    {4401, 4267, 98092, 37, 1823, 8, false}, // NAD27 / BLM 1N (ftUS)
    {4402, 4267, 98108, 38, 1824, 8, false}, // NAD27 / BLM 2N (ftUS)
    {4403, 4267, 98124, 39, 978, 8, false}, // NAD27 / BLM 3N (ftUS)
    {4404, 4267, 98140, 40, 979, 8, false}, // NAD27 / BLM 4N (ftUS)
    {4405, 4267, 98173, 41, 980, 8, false}, // NAD27 / BLM 5N (ftUS)
    {4406, 4267, 98206, 42, 981, 8, false}, // NAD27 / BLM 6N (ftUS)
    {4407, 4267, 98222, 43, 1929, 8, false}, // NAD27 / BLM 7N (ftUS)
    {4408, 4267, 98238, 44, 1930, 8, false}, // NAD27 / BLM 8N (ftUS)
    {4409, 4267, 98254, 45, 1931, 8, false}, // NAD27 / BLM 9N (ftUS)
    {4410, 4267, 97866, 46, 1932, 8, false}, // NAD27 / BLM 10N (ftUS)
    {4411, 4267, 97882, 47, 1933, 8, false}, // NAD27 / BLM 11N (ftUS)
    {4412, 4267, 97898, 48, 1934, 8, false}, // NAD27 / BLM 12N (ftUS)
    {4413, 4267, 97915, 49, 1935, 8, false}, // NAD27 / BLM 13N (ftUS)
    {4414, 4152, 119887, 63, 1743, 4, false}, // NAD83(HARN) / Guam Map Grid
    {4415, 4695, 81148, 64, 1664, 4, false}, // Katanga 1955 / Katanga Lambert
    {4417, 4178, 160007, 1510, 2014, 5, false}, // Pulkovo 1942(83) / 3-degree Gauss-Kruger zone 7
    {4418, 4267, 98060, 54, 1940, 8, false}, // NAD27 / BLM 18N (ftUS)
    {4419, 4267, 98077, 55, 1941, 8, false}, // NAD27 / BLM 19N (ftUS)
    {4420, 4269, 101406, 58, 1822, 8, false}, // NAD83 / BLM 60N (ftUS)
    {4421, 4269, 101321, 37, 1823, 8, false}, // NAD83 / BLM 1N (ftUS)
    {4422, 4269, 101335, 38, 1824, 8, false}, // NAD83 / BLM 2N (ftUS)
    {4423, 4269, 101349, 39, 978, 8, false}, // NAD83 / BLM 3N (ftUS)
    {4424, 4269, 101363, 40, 979, 8, false}, // NAD83 / BLM 4N (ftUS)
    {4425, 4269, 101392, 41, 980, 8, false}, // NAD83 / BLM 5N (ftUS)
    {4426, 4269, 101421, 42, 981, 8, false}, // NAD83 / BLM 6N (ftUS)
    {4427, 4269, 101435, 43, 1929, 8, false}, // NAD83 / BLM 7N (ftUS)
    {4428, 4269, 101449, 44, 1930, 8, false}, // NAD83 / BLM 8N (ftUS)
    {4429, 4269, 101463, 45, 1931, 8, false}, // NAD83 / BLM 9N (ftUS)
    {4430, 4269, 101175, 46, 1932, 8, false}, // NAD83 / BLM 10N (ftUS)
    {4431, 4269, 101189, 47, 1933, 8, false}, // NAD83 / BLM 11N (ftUS)
    {4432, 4269, 101203, 48, 1934, 8, false}, // NAD83 / BLM 12N (ftUS)
    {4433, 4269, 101218, 49, 1935, 8, false}, // NAD83 / BLM 13N (ftUS)
    {4434, 4178, 160040, 1511, 2016, 5, false}, // Pulkovo 1942(83) / 3-degree Gauss-Kruger zone 8
    {4437, 4759, 127630, 1200, 2063, 4, false}, // NAD83(NSRS2007) / Puerto Rico and Virgin Is.
    {4438, 4269, 101293, 54, 1940, 8, false}, // NAD83 / BLM 18N (ftUS)
    {4439, 4269, 101308, 55, 1941, 8, false}, // NAD83 / BLM 19N (ftUS)
    {4455, 4267, 99402, 65, 1091, 8, false}, // NAD27 / Pennsylvania South
    {4456, 4267, 99270, 66, 1080, 8, false}, // NAD27 / New York Long Island
    {4457, 4269, 103902, 1298, 1094, 8, false}, // NAD83 / South Dakota North (ftUS)
    {4462, 4326, 213864, 67, 1272, 4, false}, // WGS 84 / Australian Centre for Remote Sensing Lambert
    {4463, 1038, 170141, geographic, 117, 25, false}, // RGSPM06
    {4467, 4463, 170176, 1330, 117, 4, false}, // RGSPM06 / UTM zone 21N
    {4470, 1036, 169241, geographic, 87, 25, false}, // RGM04
    {4471, 4470, 169273, 1436, 87, 4, false}, // RGM04 / UTM zone 38S
    {4474, 4632, 28743, 1436, 1800, 4, true}, // Cadastre 1997 / UTM zone 38S
    {4475, 1037, 28734, geographic, 1800, 25, false}, // Cadastre 1997
    {4483, 1042, 93997, geographic, 88, 25, false}, // Mexico ITRF92
    {4484, 4483, 94025, 1320, 1870, 4, false}, // Mexico ITRF92 / UTM zone 11N
    {4485, 4483, 94044, 1321, 1871, 4, false}, // Mexico ITRF92 / UTM zone 12N
    {4486, 4483, 94063, 1322, 1872, 4, false}, // Mexico ITRF92 / UTM zone 13N
    {4487, 4483, 94082, 1323, 1873, 4, false}, // Mexico ITRF92 / UTM zone 14N
    {4488, 4483, 94101, 1324, 2062, 4, false}, // Mexico ITRF92 / UTM zone 15N
    {4489, 4483, 94120, 1325, 2064, 4, false}, // Mexico ITRF92 / UTM zone 16N
    {4490, 1043, 33242, geographic, 27, 25, false}, // China Geodetic Coordinate System 2000
    {4491, 4490, 27571, 1484, 441, 5, false}, // CGCS2000 / Gauss-Kruger zone 13
    {4492, 4490, 27591, 1485, 442, 5, false}, // CGCS2000 / Gauss-Kruger zone 14
    {4493, 4490, 27611, 1486, 443, 5, false}, // CGCS2000 / Gauss-Kruger zone 15
    {4494, 4490, 27631, 1487, 444, 5, false}, // CGCS2000 / Gauss-Kruger zone 16
    {4495, 4490, 27651, 1488, 445, 5, false}, // CGCS2000 / Gauss-Kruger zone 17
    {4496, 4490, 27671, 1489, 2289, 5, false}, // CGCS2000 / Gauss-Kruger zone 18
    {4497, 4490, 27691, 1490, 2290, 5, false}, // CGCS2000 / Gauss-Kruger zone 19
    {4498, 4490, 27711, 1491, 2291, 5, false}, // CGCS2000 / Gauss-Kruger zone 20
    {4499, 4490, 27731, 1492, 2292, 5, false}, // CGCS2000 / Gauss-Kruger zone 21
    {4500, 4490, 27751, 1493, 2293, 5, false}, // CGCS2000 / Gauss-Kruger zone 22
    {4501, 4490, 27771, 1494, 451, 5, false}, // CGCS2000 / Gauss-Kruger zone 23
    {4502, 4490, 27456, 1554, 441, 5, false}, // CGCS2000 / Gauss-Kruger CM 75E
    {4503, 4490, 27479, 1555, 442, 5, false}, // CGCS2000 / Gauss-Kruger CM 81E
    {4504, 4490, 27502, 1556, 443, 5, false}, // CGCS2000 / Gauss-Kruger CM 87E
    {4505, 4490, 27525, 1557, 444, 5, false}, // CGCS2000 / Gauss-Kruger CM 93E
    {4506, 4490, 27548, 1558, 445, 5, false}, // CGCS2000 / Gauss-Kruger CM 99E
    {4507, 4490, 27315, 1559, 2289, 5, false}, // CGCS2000 / Gauss-Kruger CM 105E
    {4508, 4490, 27338, 1560, 2290, 5, false}, // CGCS2000 / Gauss-Kruger CM 111E
    {4509, 4490, 27361, 1561, 2291, 5, false}, // CGCS2000 / Gauss-Kruger CM 117E
    {4510, 4490, 27384, 1562, 2292, 5, false}, // CGCS2000 / Gauss-Kruger CM 123E
    {4511, 4490, 27408, 1563, 2293, 5, false}, // CGCS2000 / Gauss-Kruger CM 129E
    {4512, 4490, 27432, 1564, 451, 5, false}, // CGCS2000 / Gauss-Kruger CM 135E
    {4513, 4490, 26748, 1528, 1347, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger zone 25
    {4514, 4490, 26775, 1529, 1348, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger zone 26
    {4515, 4490, 26802, 1530, 1349, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger zone 27
    {4516, 4490, 26829, 1531, 1350, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger zone 28
    {4517, 4490, 26856, 1532, 1351, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger zone 29
    {4518, 4490, 26883, 1533, 1352, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger zone 30
    {4519, 4490, 26910, 1534, 1353, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger zone 31
    {4520, 4490, 26937, 1535, 1354, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger zone 32
    {4521, 4490, 26964, 1536, 1355, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger zone 33
    {4522, 4490, 26991, 1537, 1356, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger zone 34
    {4523, 4490, 27018, 1538, 1357, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger zone 35
    {4524, 4490, 27045, 1539, 1358, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger zone 36
    {4525, 4490, 27072, 1540, 1359, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger zone 37
    {4526, 4490, 27099, 1541, 1360, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger zone 38
    {4527, 4490, 27126, 1542, 1361, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger zone 39
    {4528, 4490, 27153, 1372, 1362, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger zone 40
    {4529, 4490, 27180, 1373, 1363, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger zone 41
    {4530, 4490, 27207, 1374, 1364, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger zone 42
    {4531, 4490, 27234, 1375, 1365, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger zone 43
    {4532, 4490, 27261, 1376, 1366, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger zone 44
    {4533, 4490, 27288, 1377, 1367, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger zone 45
    {4534, 4490, 26478, 1554, 1347, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger CM 75E
    {4535, 4490, 26508, 1584, 1348, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger CM 78E
    {4536, 4490, 26538, 1555, 1349, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger CM 81E
    {4537, 4490, 26568, 1585, 1350, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger CM 84E
    {4538, 4490, 26598, 1556, 1351, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger CM 87E
    {4539, 4490, 26628, 1586, 1352, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger CM 90E
    {4540, 4490, 26658, 1557, 1353, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger CM 93E
    {4541, 4490, 26688, 1587, 1354, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger CM 96E
    {4542, 4490, 26718, 1558, 1355, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger CM 99E
    {4543, 4490, 26113, 1588, 1356, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger CM 102E
    {4544, 4490, 26143, 1559, 1357, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger CM 105E
    {4545, 4490, 26173, 1589, 1358, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger CM 108E
    {4546, 4490, 26203, 1560, 1359, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger CM 111E
    {4547, 4490, 26233, 1590, 1360, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger CM 114E
    {4548, 4490, 26263, 1561, 1361, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger CM 117E
    {4549, 4490, 26293, 1460, 1362, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger CM 120E
    {4550, 4490, 26323, 1562, 1363, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger CM 123E
    {4551, 4490, 26354, 1461, 1364, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger CM 126E
    {4552, 4490, 26385, 1563, 1365, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger CM 129E
    {4553, 4490, 26416, 1462, 1366, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger CM 132E
    {4554, 4490, 26447, 1564, 1367, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger CM 135E
    {4555, 1045, 133660, geographic, 1724, 25, false}, // New Beijing
    {4558, 1047, 170652, geographic, 1428, 25, false}, // RRAF 1991
    {4559, 4558, 170661, 1329, 2202, 4, false}, // RRAF 1991 / UTM zone 20N
    {4568, 4555, 135286, 1484, 441, 5, false}, // New Beijing / Gauss-Kruger zone 13
    {4569, 4555, 135309, 1485, 442, 5, false}, // New Beijing / Gauss-Kruger zone 14
    {4570, 4555, 135332, 1486, 443, 5, false}, // New Beijing / Gauss-Kruger zone 15
    {4571, 4555, 135355, 1487, 444, 5, false}, // New Beijing / Gauss-Kruger zone 16
    {4572, 4555, 135378, 1488, 445, 5, false}, // New Beijing / Gauss-Kruger zone 17
    {4573, 4555, 135401, 1489, 446, 5, false}, // New Beijing / Gauss-Kruger zone 18
    {4574, 4555, 135424, 1490, 447, 5, false}, // New Beijing / Gauss-Kruger zone 19
    {4575, 4555, 135447, 1491, 448, 5, false}, // New Beijing / Gauss-Kruger zone 20
    {4576, 4555, 135470, 1492, 449, 5, false}, // New Beijing / Gauss-Kruger zone 21
    {4577, 4555, 135493, 1493, 450, 5, false}, // New Beijing / Gauss-Kruger zone 22
    {4578, 4555, 135516, 1494, 451, 5, false}, // New Beijing / Gauss-Kruger zone 23
    {4579, 4555, 135156, 1554, 441, 5, false}, // New Beijing / Gauss-Kruger CM 75E
    {4580, 4555, 135182, 1555, 442, 5, false}, // New Beijing / Gauss-Kruger CM 81E
    {4581, 4555, 135208, 1556, 443, 5, false}, // New Beijing / Gauss-Kruger CM 87E
    {4582, 4555, 135234, 1557, 444, 5, false}, // New Beijing / Gauss-Kruger CM 93E
    {4583, 4555, 135260, 1558, 445, 5, false}, // New Beijing / Gauss-Kruger CM 99E
    {4584, 4555, 134997, 1559, 446, 5, false}, // New Beijing / Gauss-Kruger CM 105E
    {4585, 4555, 135023, 1560, 447, 5, false}, // New Beijing / Gauss-Kruger CM 111E
    {4586, 4555, 135049, 1561, 448, 5, false}, // New Beijing / Gauss-Kruger CM 117E
    {4587, 4555, 135075, 1562, 449, 5, false}, // New Beijing / Gauss-Kruger CM 123E
    {4588, 4555, 135102, 1563, 450, 5, false}, // New Beijing / Gauss-Kruger CM 129E
    {4589, 4555, 135129, 1564, 451, 5, false}, // New Beijing / Gauss-Kruger CM 135E
    {4600, 6600, 7626, geographic, 1715, 25, false}, // Anguilla 1957
    {4601, 6601, 10653, geographic, 144, 25, false}, // Antigua 1943
    {4602, 6602, 40801, geographic, 1732, 25, false}, // Dominica 1945
    {4603, 6603, 65622, geographic, 405, 25, false}, // Grenada 1953
    {4604, 6604, 96680, geographic, 1762, 25, false}, // Montserrat 1958
    {4605, 6605, 189768, geographic, 1774, 25, false}, // St. Kitts 1955
    {4606, 6606, 189808, geographic, 1775, 25, false}, // St. Lucia 1955
    {4607, 6607, 189916, geographic, 1777, 25, false}, // St. Vincent 1945
    {4608, 6608, 100059, geographic, 227, 25, false}, // NAD27(76)
    {4609, 6609, 100236, geographic, 228, 25, false}, // NAD27(CGQ77)
    {4610, 6610, 227798, geographic, 1724, 25, false}, // Xian 1980
    {4611, 6611, 68140, geographic, 56, 25, false}, // Hong Kong 1980
    {4612, 6612, 76164, geographic, 66, 25, false}, // JGD2000
    {4613, 6613, 66169, geographic, 220, 25, false}, // Segara
    {4614, 6614, 167027, geographic, 208, 25, false}, // QND95
    {4615, 6615, 150912, geographic, 178, 25, false}, // Porto Santo
    {4616, 6616, 184904, geographic, 1400, 25, false}, // Selvagem Grande
    {4617, 6140, 115889, geographic, 23, 25, false}, // NAD83(CSRS)
    {4618, 6618, 24490, geographic, 218, 25, false}, // SAD69
    {4619, 6619, 183235, geographic, 120, 25, false}, // SWEREF99
    {4620, 6620, 150423, geographic, 1410, 25, false}, // Point 58
    {4621, 6621, 52662, geographic, 1431, 25, false}, // Fort Marigot
    {4622, 6622, 65801, geographic, 1432, 25, false}, // Guadeloupe 1948
    {4623, 6623, 28650, geographic, 1630, 25, false}, // CSG67
    {4624, 6624, 169106, geographic, 48, 25, false}, // RGFG95
    {4625, 6625, 92772, geographic, 1759, 25, false}, // Martinique 1938
    {4626, 6626, 173211, geographic, 1798, 25, false}, // Reunion 1947
    {4627, 6627, 169690, geographic, 2269, 25, false}, // RGR92
    {4628, 6628, 192954, geographic, 1415, 25, false}, // Tahiti 52
    {4629, 6629, 192912, geographic, 1416, 25, false}, // Tahaa 54
    {4630, 6630, 69962, geographic, 1652, 25, false}, // IGN72 Nuku Hiva
    {4631, 6631, 79079, geographic, 1420, 25, true}, // K0 1949
    {4632, 6632, 35284, geographic, 1800, 25, false}, // Combani 1950
    {4633, 6633, 69768, geographic, 1418, 25, false}, // IGN56 Lifou
    {4634, 6634, 69892, geographic, 1426, 23, true}, // IGN72 Grand Terre
    {4635, 6635, 183102, geographic, 1417, 25, true}, // ST87 Ouvea
    {4636, 6636, 149645, geographic, 1421, 25, false}, // Petrels 1972
    {4637, 6637, 150451, geographic, 1422, 25, false}, // Perroud 1950
    {4638, 6638, 183670, geographic, 1776, 25, false}, // Saint Pierre et Miquelon 1950
    {4639, 6639, 90198, geographic, 1419, 25, false}, // MOP78
    {4640, 6640, 170652, geographic, 1428, 25, true}, // RRAF 1991
    {4641, 6641, 69679, geographic, 1423, 25, false}, // IGN53 Mare
    {4642, 6642, 183028, geographic, 1424, 25, false}, // ST84 Ile des Pins
    {4643, 6643, 182974, geographic, 1425, 25, false}, // ST71 Belep
    {4644, 6644, 130028, geographic, 1427, 25, false}, // NEA74 Noumea
    {4645, 6645, 169329, geographic, 95, 25, true}, // RGNC 1991
    {4646, 6646, 64665, geographic, 1413, 25, false}, // Grand Comoros
    {4647, 4258, 46065, 68, 1459, 4, false}, // ETRS89 / UTM zone 32N (zE-N)
    {4652, 4555, 134367, 1528, 1347, 5, false}, // New Beijing / 3-degree Gauss-Kruger zone 25
    {4653, 4555, 134397, 1529, 1348, 5, false}, // New Beijing / 3-degree Gauss-Kruger zone 26
    {4654, 4555, 134427, 1530, 1349, 5, false}, // New Beijing / 3-degree Gauss-Kruger zone 27
    {4655, 4555, 134457, 1531, 1350, 5, false}, // New Beijing / 3-degree Gauss-Kruger zone 28
    {4656, 4555, 134487, 1532, 1351, 5, false}, // New Beijing / 3-degree Gauss-Kruger zone 29
    {4657, 6657, 173265, geographic, 1747, 25, false}, // Reykjavik 1900
    {4658, 6658, 67960, geographic, 1747, 25, false}, // Hjorsey 1955
    {4659, 6659, 70701, geographic, 58, 25, false}, // ISN93
    {4660, 6660, 67687, geographic, 1463, 25, false}, // Helle 1954
    {4661, 6661, 84318, geographic, 72, 25, false}, // LKS92
    {4662, 6634, 69926, geographic, 1426, 25, false}, // IGN72 Grande Terre
    {4663, 6663, 150949, geographic, 178, 25, false}, // Porto Santo 1995
    {4664, 6664, 18214, geographic, 207, 25, false}, // Azores Oriental 1995
    {4665, 6665, 18065, geographic, 167, 25, false}, // Azores Central 1995
    {4666, 6666, 86127, geographic, 162, 25, false}, // Lisbon 1890
    {4667, 6667, 70388, geographic, 1470, 25, false}, // IKBD-92
    {4668, 6668, 41940, geographic, 164, 25, false}, // ED79
    {4669, 6126, 84336, geographic, 76, 25, false}, // LKS94
    {4670, 6670, 69480, geographic, 1803, 25, false}, // IGM95
    {4671, 6671, 209721, geographic, 225, 25, false}, // Voirol 1879
    {4672, 6672, 32264, geographic, 1481, 25, false}, // Chatham Islands 1971
    {4673, 6673, 32276, geographic, 1481, 25, false}, // Chatham Islands 1979
    {4674, 6674, 176274, geographic, 1865, 25, false}, // SIRGAS 2000
    {4675, 6675, 65835, geographic, 2829, 25, false}, // Guam 1963
    {4676, 6676, 208403, geographic, 71, 25, false}, // Vientiane 1982
    {4677, 6677, 84981, geographic, 71, 25, false}, // Lao 1993
    {4678, 6678, 84988, geographic, 71, 25, false}, // Lao 1997
    {4679, 6679, 79050, geographic, 1500, 25, false}, // Jouik 1961
    {4680, 6680, 141957, geographic, 1501, 25, false}, // Nouakchott 1965
    {4681, 6681, 93199, geographic, 86, 25, true}, // Mauritania 1999
    {4682, 6682, 66042, geographic, 10, 25, false}, // Gulshan 303
    {4683, 6683, 147132, geographic, 105, 25, false}, // PRS92
    {4684, 6684, 63328, geographic, 1757, 25, false}, // Gan 1970
    {4685, 6685, 63340, geographic, 135, 25, true}, // Gandajika
    {4686, 6686, 87822, geographic, 29, 25, false}, // MAGNA-SIRGAS
    {4687, 6687, 169585, geographic, 49, 25, false}, // RGPF
    {4688, 6688, 50859, geographic, 1656, 25, false}, // Fatu Iva 72
    {4689, 6689, 69826, geographic, 1653, 25, false}, // IGN63 Hiva Oa
    {4690, 6690, 192976, geographic, 1647, 25, false}, // Tahiti 79
    {4691, 6691, 96769, geographic, 1648, 25, false}, // Moorea 87
    {4692, 6692, 93034, geographic, 1649, 25, false}, // Maupiti 83
    {4693, 6693, 132905, geographic, 1190, 25, false}, // Nakhl-e Ghanem
    {4694, 6694, 146727, geographic, 6, 25, false}, // POSGAR 94
    {4695, 6695, 81055, geographic, 1664, 25, false}, // Katanga 1955
    {4696, 6696, 80965, geographic, 1665, 25, false}, // Kasai 1953
    {4697, 6697, 69171, geographic, 1666, 25, false}, // IGC 1962 6th Parallel South
    {4698, 6698, 69573, geographic, 1420, 25, false}, // IGN 1962 Kerguelen
    {4699, 6699, 85343, geographic, 1712, 25, false}, // Le Pouce 1934
    {4700, 6700, 69608, geographic, 1760, 25, false}, // IGN Astro 1960
    {4701, 6701, 69212, geographic, 1677, 25, false}, // IGCB 1955
    {4702, 6702, 93199, geographic, 86, 25, false}, // Mauritania 1999
    {4703, 6703, 94325, geographic, 182, 25, false}, // Mhast 1951
    {4704, 6704, 94293, geographic, 1685, 25, false}, // Mhast (onshore)
    {4705, 6705, 94267, geographic, 1686, 25, false}, // Mhast (offshore)
    {4706, 6706, 47119, geographic, 1171, 25, false}, // Egypt Gulf of Suez S-650 TL
    {4707, 6707, 193646, geographic, 1687, 25, false}, // Tern Island 1961
    {4708, 6708, 34074, geographic, 28, 25, false}, // Cocos Islands 1965
    {4709, 6709, 75953, geographic, 1705, 25, false}, // Iwo Jima 1945
    {4710, 6710, 15921, geographic, 1689, 25, false}, // Astro DOS 71
    {4711, 6711, 92655, geographic, 717, 25, false}, // Marcus Island 1952
    {4712, 6712, 14494, geographic, 1688, 25, false}, // Ascension Island 1958
    {4713, 6713, 17984, geographic, 37, 25, false}, // Ayabelle Lighthouse
    {4714, 6714, 22669, geographic, 1698, 25, false}, // Bellevue
    {4715, 6715, 29248, geographic, 1709, 25, false}, // Camp Area Astro
    {4716, 6716, 149985, geographic, 1701, 25, false}, // Phoenix Islands 1966
    {4717, 6717, 31388, geographic, 1710, 25, false}, // Cape Canaveral
    {4718, 6718, 186494, geographic, 116, 25, false}, // Solomon 1968
    {4719, 6719, 46759, geographic, 1693, 25, false}, // Easter Island 1967
    {4720, 6720, 51264, geographic, 45, 25, false}, // Fiji 1986
    {4721, 6721, 51227, geographic, 1845, 25, false}, // Fiji 1956
    {4722, 6722, 188452, geographic, 1964, 25, false}, // South Georgia 1968
    {4723, 6723, 54511, geographic, 1691, 25, false}, // GCGD59
    {4724, 6724, 40732, geographic, 1694, 25, false}, // Diego Garcia 1969
    {4725, 6725, 78983, geographic, 1706, 25, false}, // Johnston Island 1961
    {4726, 6726, 175901, geographic, 1692, 25, false}, // SIGD61
    {4727, 6727, 94805, geographic, 1707, 25, false}, // Midway 1961
    {4728, 6728, 146351, geographic, 2888, 25, false}, // PN84
    {4729, 6729, 150262, geographic, 1711, 25, false}, // Pitcairn 1967
    {4730, 6730, 184084, geographic, 1699, 25, false}, // Santo 1965
    {4731, 6731, 209603, geographic, 1700, 25, true}, // Viti Levu 1916
    {4732, 6732, 92741, geographic, 1696, 25, false}, // Marshall Islands 1960
    {4733, 6733, 222844, geographic, 1695, 25, false}, // Wake Island 1952
    {4734, 6734, 195619, geographic, 1690, 25, false}, // Tristan 1968
    {4735, 6735, 83496, geographic, 1697, 25, false}, // Kusaie 1951
    {4736, 6736, 10530, geographic, 1708, 25, false}, // Deception Island
    {4737, 6737, 82249, geographic, 69, 25, false}, // Korea 2000
    {4738, 6738, 68080, geographic, 56, 25, false}, // Hong Kong 1963
    {4739, 6739, 68125, geographic, 56, 25, false}, // Hong Kong 1963(67)
    {4740, 6740, 147678, geographic, 138, 25, false}, // PZ-90
    {4741, 6741, 50420, geographic, 1738, 25, false}, // FD54
    {4742, 6742, 55707, geographic, 82, 25, false}, // GDM2000
    {4743, 6743, 80721, geographic, 2054, 25, false}, // Karbala 1979
    {4744, 6744, 132668, geographic, 2553, 25, false}, // Nahrwan 1934
    {4745, 6745, 167639, geographic, 1260, 25, false}, // RD/83
    {4746, 6746, 145940, geographic, 1259, 25, false}, // PD/83
    {4747, 6747, 56125, geographic, 54, 25, false}, // GR96
    {4748, 6748, 208044, geographic, 1848, 25, false}, // Vanua Levu 1915
    {4749, 6749, 169415, geographic, 95, 25, false}, // RGNC91-93
    {4750, 6750, 183102, geographic, 1417, 25, false}, // ST87 Ouvea
    {4751, 6751, 81678, geographic, 174, 25, false}, // Kertau (RSO)
    {4752, 6752, 209566, geographic, 1700, 25, false}, // Viti Levu 1912
    {4753, 6753, 50820, geographic, 1738, 25, false}, // fk89
    {4754, 6754, 84065, geographic, 74, 25, false}, // LGD2006
    {4755, 6755, 38016, geographic, 60, 25, false}, // DGN95
    {4756, 6756, 207531, geographic, 1794, 25, false}, // VN-2000
    {4757, 6757, 183165, geographic, 113, 25, false}, // SVY21
    {4758, 6758, 75964, geographic, 65, 25, false}, // JAD2001
    {4759, 6759, 124539, geographic, 365, 25, false}, // NAD83(NSRS2007)
    {4760, 6760, 209935, geographic, 138, 25, false}, // WGS 66
    {4761, 6761, 66574, geographic, 33, 25, false}, // HTRS96
    {4762, 6762, 18764, geographic, 12, 25, false}, // BDA2000
    {4763, 6763, 150288, geographic, 1711, 25, false}, // Pitcairn 2006
    {4764, 6764, 170924, geographic, 1989, 25, false}, // RSRGD2000
    {4765, 6765, 186340, geographic, 115, 25, false}, // Slovenia 1996
    {4766, 4555, 134517, 1533, 1352, 5, false}, // New Beijing / 3-degree Gauss-Kruger zone 30
    {4767, 4555, 134547, 1534, 1353, 5, false}, // New Beijing / 3-degree Gauss-Kruger zone 31
    {4768, 4555, 134577, 1535, 1354, 5, false}, // New Beijing / 3-degree Gauss-Kruger zone 32
    {4769, 4555, 134607, 1536, 1355, 5, false}, // New Beijing / 3-degree Gauss-Kruger zone 33
    {4770, 4555, 134637, 1537, 1356, 5, false}, // New Beijing / 3-degree Gauss-Kruger zone 34
    {4771, 4555, 134667, 1538, 1357, 5, false}, // New Beijing / 3-degree Gauss-Kruger zone 35
    {4772, 4555, 134697, 1539, 1358, 5, false}, // New Beijing / 3-degree Gauss-Kruger zone 36
    {4773, 4555, 134727, 1540, 1359, 5, false}, // New Beijing / 3-degree Gauss-Kruger zone 37
    {4774, 4555, 134757, 1541, 1360, 5, false}, // New Beijing / 3-degree Gauss-Kruger zone 38
    {4775, 4555, 134787, 1542, 1361, 5, false}, // New Beijing / 3-degree Gauss-Kruger zone 39
    {4776, 4555, 134817, 1372, 1362, 5, false}, // New Beijing / 3-degree Gauss-Kruger zone 40
    {4777, 4555, 134847, 1373, 1363, 5, false}, // New Beijing / 3-degree Gauss-Kruger zone 41
    {4778, 4555, 134877, 1374, 1364, 5, false}, // New Beijing / 3-degree Gauss-Kruger zone 42
    {4779, 4555, 134907, 1375, 1365, 5, false}, // New Beijing / 3-degree Gauss-Kruger zone 43
    {4780, 4555, 134937, 1376, 1366, 5, false}, // New Beijing / 3-degree Gauss-Kruger zone 44
    {4781, 4555, 134967, 1377, 1367, 5, false}, // New Beijing / 3-degree Gauss-Kruger zone 45
    {4782, 4555, 134070, 1554, 1347, 5, false}, // New Beijing / 3-degree Gauss-Kruger CM 75E
    {4783, 4555, 134103, 1584, 1348, 5, false}, // New Beijing / 3-degree Gauss-Kruger CM 78E
    {4784, 4555, 134136, 1555, 1349, 5, false}, // New Beijing / 3-degree Gauss-Kruger CM 81E
    {4785, 4555, 134169, 1585, 1350, 5, false}, // New Beijing / 3-degree Gauss-Kruger CM 84E
    {4786, 4555, 134202, 1556, 1351, 5, false}, // New Beijing / 3-degree Gauss-Kruger CM 87E
    {4787, 4555, 134235, 1586, 1352, 5, false}, // New Beijing / 3-degree Gauss-Kruger CM 90E
    {4788, 4555, 134268, 1557, 1353, 5, false}, // New Beijing / 3-degree Gauss-Kruger CM 93E
    {4789, 4555, 134301, 1587, 1354, 5, false}, // New Beijing / 3-degree Gauss-Kruger CM 96E
    {4790, 4555, 134334, 1558, 1355, 5, false}, // New Beijing / 3-degree Gauss-Kruger CM 99E
    {4791, 4555, 133669, 1588, 1356, 5, false}, // New Beijing / 3-degree Gauss-Kruger CM 102E
    {4792, 4555, 133702, 1559, 1357, 5, false}, // New Beijing / 3-degree Gauss-Kruger CM 105E
    {4793, 4555, 133735, 1589, 1358, 5, false}, // New Beijing / 3-degree Gauss-Kruger CM 108E
    {4794, 4555, 133768, 1560, 1359, 5, false}, // New Beijing / 3-degree Gauss-Kruger CM 111E
    {4795, 4555, 133801, 1590, 1360, 5, false}, // New Beijing / 3-degree Gauss-Kruger CM 114E
    {4796, 4555, 133834, 1561, 1361, 5, false}, // New Beijing / 3-degree Gauss-Kruger CM 117E
    {4797, 4555, 133867, 1460, 1362, 5, false}, // New Beijing / 3-degree Gauss-Kruger CM 120E
    {4798, 4555, 133900, 1562, 1363, 5, false}, // New Beijing / 3-degree Gauss-Kruger CM 123E
    {4799, 4555, 133934, 1461, 1364, 5, false}, // New Beijing / 3-degree Gauss-Kruger CM 126E
    {4800, 4555, 133968, 1563, 1365, 5, false}, // New Beijing / 3-degree Gauss-Kruger CM 129E
    {4801, 6801, 22850, geographic, 155, 25, false}, // Bern 1898 (Bern)
    {4802, 6802, 23805, geographic, 1725, 25, false}, // Bogota 1975 (Bogota)
    {4803, 6803, 86025, geographic, 162, 25, false}, // Lisbon (Lisbon)
    {4804, 6804, 91494, geographic, 180, 25, false}, // Makassar (Jakarta)
    {4805, 6805, 89049, geographic, 184, 25, false}, // MGI (Ferro)
    {4806, 6806, 96464, geographic, 1803, 25, false}, // Monte Mario (Rome)
    {4807, 6807, 130719, geographic, 2119, 22, false}, // NTF (Paris)
    {4808, 6808, 147887, geographic, 216, 25, true}, // Padang (Jakarta)
    {4809, 6809, 18684, geographic, 209, 25, false}, // BD50 (Brussels)
    {4810, 6810, 193230, geographic, 1756, 22, false}, // Tananarive (Paris)
    {4811, 6811, 209649, geographic, 225, 22, false}, // Voirol 1875 (Paris)
    {4812, 4555, 134002, 1462, 1366, 5, false}, // New Beijing / 3-degree Gauss-Kruger CM 132E
    {4813, 6813, 19863, geographic, 154, 25, false}, // Batavia (Jakarta)
    {4814, 6814, 171072, geographic, 1787, 25, false}, // RT38 (Stockholm)
    {4815, 6815, 64888, geographic, 1742, 25, false}, // Greek (Athens)
    {4816, 6816, 31682, geographic, 472, 22, false}, // Carthage (Paris)
    {4817, 6817, 130234, geographic, 214, 25, false}, // NGO 1948 (Oslo)
    {4818, 6818, 174986, geographic, 171, 25, false}, // S-JTSK (Ferro)
    {4819, 6819, 137957, geographic, 226, 22, true}, // Nord Sahara 1959 (Paris)
    {4820, 6820, 66182, geographic, 220, 25, false}, // Segara (Jakarta)
    {4821, 6821, 209731, geographic, 225, 22, false}, // Voirol 1879 (Paris)
    {4822, 4555, 134036, 1564, 1367, 5, false}, // New Beijing / 3-degree Gauss-Kruger CM 135E
    {4823, 1044, 184144, geographic, 2072, 25, false}, // Sao Tome
    {4824, 1046, 184120, geographic, 2073, 25, false}, // Principe
    {4826, 4326, 214021, 69, 24, 4, false}, // WGS 84 / Cape Verde National
    {4839, 4258, 45404, 70, 1799, 5, false}, // ETRS89 / LCC Germany (N-E)
    {4855, 4258, 45677, 75, 2065, 5, true}, // ETRS89 / NTM zone 5
    {4856, 4258, 45688, 76, 2068, 5, true}, // ETRS89 / NTM zone 6
    {4857, 4258, 45699, 77, 2074, 5, true}, // ETRS89 / NTM zone 7
    {4858, 4258, 45710, 78, 2075, 5, true}, // ETRS89 / NTM zone 8
    {4859, 4258, 45721, 79, 2076, 5, true}, // ETRS89 / NTM zone 9
    {4860, 4258, 45425, 80, 2077, 5, true}, // ETRS89 / NTM zone 10
    {4861, 4258, 45437, 81, 2078, 5, true}, // ETRS89 / NTM zone 11
    {4862, 4258, 45449, 82, 2080, 5, true}, // ETRS89 / NTM zone 12
    {4863, 4258, 45461, 83, 2081, 5, true}, // ETRS89 / NTM zone 13
    {4864, 4258, 45473, 84, 2082, 5, true}, // ETRS89 / NTM zone 14
    {4865, 4258, 45485, 71, 2083, 5, true}, // ETRS89 / NTM zone 15
    {4866, 4258, 45497, 72, 2084, 5, true}, // ETRS89 / NTM zone 16
    {4867, 4258, 45509, 73, 2085, 5, true}, // ETRS89 / NTM zone 17
    {4868, 4258, 45521, 74, 2086, 5, true}, // ETRS89 / NTM zone 18
    {4869, 4258, 45533, 85, 2087, 5, true}, // ETRS89 / NTM zone 19
    {4870, 4258, 45545, 86, 2088, 5, true}, // ETRS89 / NTM zone 20
    {4871, 4258, 45557, 87, 2089, 5, true}, // ETRS89 / NTM zone 21
    {4872, 4258, 45569, 88, 2090, 5, true}, // ETRS89 / NTM zone 22
    {4873, 4258, 45581, 89, 2092, 5, true}, // ETRS89 / NTM zone 23
    {4874, 4258, 45593, 90, 2093, 5, true}, // ETRS89 / NTM zone 24
    {4875, 4258, 45605, 91, 2094, 5, true}, // ETRS89 / NTM zone 25
    {4876, 4258, 45617, 92, 2096, 5, true}, // ETRS89 / NTM zone 26
    {4877, 4258, 45629, 93, 2097, 5, true}, // ETRS89 / NTM zone 27
    {4878, 4258, 45641, 94, 2098, 5, true}, // ETRS89 / NTM zone 28
    {4879, 4258, 45653, 95, 2099, 5, true}, // ETRS89 / NTM zone 29
    {4880, 4258, 45665, 96, 2101, 5, true}, // ETRS89 / NTM zone 30
    {4901, 6901, 4117, geographic, 188, 22, false}, // ATF (Paris)
    {4902, 6902, 130019, geographic, 229, 22, true}, // NDG (Paris)
    {4903, 6903, 91099, geographic, 1194, 25, false}, // Madrid 1870 (Madrid)
    {4904, 6904, 86136, geographic, 162, 25, false}, // Lisbon 1890 (Lisbon)
    {5013, 1041, 147508, geographic, 2095, 25, false}, // PTRA08
    {5014, 5013, 147550, 1334, 2107, 4, false}, // PTRA08 / UTM zone 25N
    {5015, 5013, 147564, 1335, 2102, 4, false}, // PTRA08 / UTM zone 26N
    {5016, 5013, 147578, 1337, 2103, 4, false}, // PTRA08 / UTM zone 28N
    {5017, 4666, 86176, 97, 162, 1, false}, // Lisbon 1890 / Portugal Bonne New
    {5018, 4207, 86108, 98, 162, 4, false}, // Lisbon / Portuguese Grid New
    {5041, 4326, 218168, 1370, 841, 4, false}, // WGS 84 / UPS North (E,N)
    {5042, 4326, 218202, 1459, 842, 4, false}, // WGS 84 / UPS South (E,N)
    {5048, 4258, 45815, 1371, 46, 5, false}, // ETRS89 / TM35FIN(N,E)
    {5069, 4267, 98428, 100, 186, 4, false}, // NAD27 / Conus Albers
    {5070, 4269, 101768, 100, 186, 4, false}, // NAD83 / Conus Albers
    {5071, 4152, 119724, 100, 186, 4, false}, // NAD83(HARN) / Conus Albers
    {5072, 4759, 125275, 100, 186, 4, false}, // NAD83(NSRS2007) / Conus Albers
    {5105, 4258, 45677, 107, 2065, 5, false}, // ETRS89 / NTM zone 5
    {5106, 4258, 45688, 108, 2068, 5, false}, // ETRS89 / NTM zone 6
    {5107, 4258, 45699, 109, 2074, 5, false}, // ETRS89 / NTM zone 7
    {5108, 4258, 45710, 110, 2075, 5, false}, // ETRS89 / NTM zone 8
    {5109, 4258, 45721, 111, 2076, 5, false}, // ETRS89 / NTM zone 9
    {5110, 4258, 45425, 112, 2077, 5, false}, // ETRS89 / NTM zone 10
    {5111, 4258, 45437, 113, 2078, 5, false}, // ETRS89 / NTM zone 11
    {5112, 4258, 45449, 114, 2080, 5, false}, // ETRS89 / NTM zone 12
    {5113, 4258, 45461, 115, 2081, 5, false}, // ETRS89 / NTM zone 13
    {5114, 4258, 45473, 116, 2082, 5, false}, // ETRS89 / NTM zone 14
    {5115, 4258, 45485, 117, 2083, 5, false}, // ETRS89 / NTM zone 15
    {5116, 4258, 45497, 118, 2084, 5, false}, // ETRS89 / NTM zone 16
    {5117, 4258, 45509, 119, 2085, 5, false}, // ETRS89 / NTM zone 17
    {5118, 4258, 45521, 120, 2086, 5, false}, // ETRS89 / NTM zone 18
    {5119, 4258, 45533, 121, 2087, 5, false}, // ETRS89 / NTM zone 19
    {5120, 4258, 45545, 122, 2088, 5, false}, // ETRS89 / NTM zone 20
    {5121, 4258, 45557, 123, 2089, 5, false}, // ETRS89 / NTM zone 21
    {5122, 4258, 45569, 124, 2090, 5, false}, // ETRS89 / NTM zone 22
    {5123, 4258, 45581, 125, 2092, 5, false}, // ETRS89 / NTM zone 23
    {5124, 4258, 45593, 126, 2093, 5, false}, // ETRS89 / NTM zone 24
    {5125, 4258, 45605, 127, 2094, 5, false}, // ETRS89 / NTM zone 25
    {5126, 4258, 45617, 128, 2096, 5, false}, // ETRS89 / NTM zone 26
    {5127, 4258, 45629, 129, 2097, 5, false}, // ETRS89 / NTM zone 27
    {5128, 4258, 45641, 130, 2098, 5, false}, // ETRS89 / NTM zone 28
    {5129, 4258, 45653, 131, 2099, 5, false}, // ETRS89 / NTM zone 29
    {5130, 4258, 45665, 132, 2101, 5, false}, // ETRS89 / NTM zone 30
    {5132, 1048, 195099, geographic, 224, 25, false}, // Tokyo 1892
    {5167, 4162, 83018, 99, 2127, 5, false}, // Korean 1985 / East Sea Belt
    {5168, 4162, 82984, 106, 2128, 5, false}, // Korean 1985 / Central Belt Jeju
    {5169, 5132, 195174, 2175, 2125, 5, false}, // Tokyo 1892 / Korea West Belt
    {5170, 5132, 195109, 2174, 2126, 5, false}, // Tokyo 1892 / Korea Central Belt
    {5171, 5132, 195130, 2173, 2129, 5, false}, // Tokyo 1892 / Korea East Belt
    {5172, 5132, 195150, 99, 2130, 5, false}, // Tokyo 1892 / Korea East Sea Belt
    {5173, 4162, 83133, 133, 353, 5, false}, // Korean 1985 / Modified West Belt
    {5174, 4162, 83036, 134, 2131, 5, false}, // Korean 1985 / Modified Central Belt
    {5175, 4162, 83058, 135, 2128, 5, false}, // Korean 1985 / Modified Central Belt Jeju
    {5176, 4162, 83085, 136, 351, 5, false}, // Korean 1985 / Modified East Belt
    {5177, 4162, 83107, 137, 2127, 5, false}, // Korean 1985 / Modified East Sea Belt
    {5178, 4162, 83155, 101, 1749, 5, false}, // Korean 1985 / Unified CS
    {5179, 4737, 82375, 101, 69, 5, false}, // Korea 2000 / Unified CS
    {5180, 4737, 82391, 2175, 353, 5, false}, // Korea 2000 / West Belt
    {5181, 4737, 82256, 2174, 2131, 5, false}, // Korea 2000 / Central Belt
    {5182, 4737, 82288, 106, 2128, 5, false}, // Korea 2000 / Central Belt Jeju
    {5183, 4737, 82307, 2173, 351, 5, false}, // Korea 2000 / East Belt
    {5184, 4737, 82337, 99, 2127, 5, false}, // Korea 2000 / East Sea Belt
    {5185, 4737, 82404, 102, 353, 5, false}, // Korea 2000 / West Belt 2010
    {5186, 4737, 82270, 103, 352, 5, false}, // Korea 2000 / Central Belt 2010
    {5187, 4737, 82320, 104, 351, 5, false}, // Korea 2000 / East Belt 2010
    {5188, 4737, 82354, 105, 2127, 5, false}, // Korea 2000 / East Sea Belt 2010
    {5221, 4818, 175018, 138, 171, 4, false}, // S-JTSK (Ferro) / Krovak East North
    {5223, 4326, 215237, 141, 1739, 4, false}, // WGS 84 / Gabon TM
    {5224, 5229, 175165, 139, 36, 1, false}, // S-JTSK/05 (Ferro) / Modified Krovak
    {5225, 5229, 175195, 140, 36, 4, false}, // S-JTSK/05 (Ferro) / Modified Krovak East North
    {5228, 1052, 175139, geographic, 36, 25, false}, // S-JTSK/05
    {5229, 1055, 175149, geographic, 36, 25, false}, // S-JTSK/05 (Ferro)
    {5233, 1053, 178568, geographic, 1784, 25, false}, // SLD99
    {5234, 4244, 80030, 142, 1784, 4, false}, // Kandawala / Sri Lanka Grid
    {5235, 5233, 178574, 143, 1784, 4, false}, // SLD99 / Sri Lanka Grid 1999
    {5243, 4258, 45383, 70, 1799, 4, false}, // ETRS89 / LCC Germany (E-N)
    {5246, 1056, 55669, geographic, 18, 25, false}, // GDBD2009
    {5247, 5246, 55676, 2287, 18, 4, false}, // GDBD2009 / Brunei BRSO
    {5252, 1057, 192449, geographic, 127, 25, false}, // TUREF
    {5253, 5252, 192676, 1546, 378, 5, false}, // TUREF / TM27
    {5254, 5252, 192686, 1576, 379, 5, false}, // TUREF / TM30
    {5255, 5252, 192696, 1547, 380, 5, false}, // TUREF / TM33
    {5256, 5252, 192706, 1577, 381, 5, false}, // TUREF / TM36
    {5257, 5252, 192716, 1548, 382, 5, false}, // TUREF / TM39
    {5258, 5252, 192726, 1578, 383, 5, false}, // TUREF / TM42
    {5259, 5252, 192736, 1549, 384, 5, false}, // TUREF / TM45
    {5264, 1058, 39036, geographic, 13, 25, false}, // DRUKREF 03
    {5266, 5264, 39047, 144, 13, 4, false}, // DRUKREF 03 / Bhutan National Grid
    {5269, 5252, 192617, 1512, 378, 5, false}, // TUREF / 3-degree Gauss-Kruger zone 9
    {5270, 5252, 192455, 1513, 379, 5, false}, // TUREF / 3-degree Gauss-Kruger zone 10
    {5271, 5252, 192482, 1514, 380, 5, false}, // TUREF / 3-degree Gauss-Kruger zone 11
    {5272, 5252, 192509, 1515, 381, 5, false}, // TUREF / 3-degree Gauss-Kruger zone 12
    {5273, 5252, 192536, 1516, 382, 5, false}, // TUREF / 3-degree Gauss-Kruger zone 13
    {5274, 5252, 192563, 1517, 383, 5, false}, // TUREF / 3-degree Gauss-Kruger zone 14
    {5275, 5252, 192590, 1518, 384, 5, false}, // TUREF / 3-degree Gauss-Kruger zone 15
    {5292, 5264, 39072, 145, 2134, 4, false}, // DRUKREF 03 / Bumthang TM
    {5293, 5264, 39092, 146, 2136, 4, false}, // DRUKREF 03 / Chhukha TM
    {5294, 5264, 39112, 147, 2137, 4, false}, // DRUKREF 03 / Dagana TM
    {5295, 5264, 39130, 148, 2138, 4, false}, // DRUKREF 03 / Gasa TM
    {5296, 5264, 39146, 149, 2140, 4, false}, // DRUKREF 03 / Ha TM
    {5297, 5264, 39161, 150, 2141, 4, false}, // DRUKREF 03 / Lhuentse TM
    {5298, 5264, 39181, 151, 2142, 4, false}, // DRUKREF 03 / Mongar TM
    {5299, 5264, 39199, 152, 2143, 4, false}, // DRUKREF 03 / Paro TM
    {5300, 5264, 39215, 153, 2144, 4, false}, // DRUKREF 03 / Pemagatshel TM
    {5301, 5264, 39236, 163, 2146, 4, false}, // DRUKREF 03 / Punakha TM
    {5302, 5264, 39256, 155, 2147, 4, false}, // DRUKREF 03 / Samdrup Jongkhar TM
    {5303, 5264, 39283, 156, 2148, 4, false}, // DRUKREF 03 / Samtse TM
    {5304, 5264, 39301, 157, 2149, 4, false}, // DRUKREF 03 / Sarpang TM
    {5305, 5264, 39320, 162, 2150, 4, false}, // DRUKREF 03 / Thimphu TM
    {5306, 5264, 39340, 159, 2151, 4, false}, // DRUKREF 03 / Trashigang TM
    {5307, 5264, 39361, 160, 2152, 4, false}, // DRUKREF 03 / Trongsa TM
    {5308, 5264, 39380, 154, 2154, 4, false}, // DRUKREF 03 / Tsirang TM
    {5309, 5264, 39399, 158, 2155, 4, false}, // DRUKREF 03 / Wangdue Phodrang TM
    {5310, 5264, 39426, 164, 2157, 4, false}, // DRUKREF 03 / Yangtse TM
    {5311, 5264, 39445, 161, 2158, 4, false}, // DRUKREF 03 / Zhemgang TM
    {5316, 4258, 45080, 165, 44, 4, false}, // ETRS89 / Faroe TM
    {5320, 4269, 103981, 166, 227, 4, false}, // NAD83 / Teranet Ontario Lambert
    {5321, 4617, 116690, 166, 227, 4, false}, // NAD83(CSRS) / Teranet Ontario Lambert
    {5324, 1060, 70503, geographic, 58, 25, false}, // ISN2004
    {5325, 5324, 70558, 167, 58, 4, false}, // ISN2004 / Lambert 2004
    {5329, 4820, 184791, 168, 220, 4, false}, // Segara (Jakarta) / NEIEZ
    {5330, 4813, 19877, 168, 154, 4, false}, // Batavia (Jakarta) / NEIEZ
    {5331, 4804, 91509, 168, 180, 4, false}, // Makassar (Jakarta) / NEIEZ
    {5337, 4208, 10803, 1423, 2192, 4, false}, // Aratu / UTM zone 25S
    {5340, 1062, 146565, geographic, 6, 25, false}, // POSGAR 2007
    {5343, 5340, 146574, 2043, 462, 5, false}, // POSGAR 2007 / Argentina 1
    {5344, 5340, 146591, 2044, 463, 5, false}, // POSGAR 2007 / Argentina 2
    {5345, 5340, 146608, 2045, 464, 5, false}, // POSGAR 2007 / Argentina 3
    {5346, 5340, 146625, 2046, 465, 5, false}, // POSGAR 2007 / Argentina 4
    {5347, 5340, 146642, 2047, 466, 5, false}, // POSGAR 2007 / Argentina 5
    {5348, 5340, 146659, 2048, 467, 5, false}, // POSGAR 2007 / Argentina 6
    {5349, 5340, 146676, 2049, 468, 5, false}, // POSGAR 2007 / Argentina 7
    {5354, 1063, 88893, geographic, 14, 25, false}, // MARGEN
    {5355, 5354, 88912, 1418, 607, 4, false}, // MARGEN / UTM zone 20S
    {5356, 5354, 88899, 1417, 2204, 4, false}, // MARGEN / UTM zone 19S
    {5357, 5354, 88924, 1419, 2133, 4, false}, // MARGEN / UTM zone 21S
    {5360, 1064, 177712, geographic, 26, 25, false}, // SIRGAS-Chile 2002
    {5361, 5360, 177747, 1417, 2193, 4, false}, // SIRGAS-Chile 2002 / UTM zone 19S
    {5362, 5360, 177726, 1416, 2206, 4, false}, // SIRGAS-Chile 2002 / UTM zone 18S
    {5365, 1065, 28577, geographic, 31, 25, false}, // CR05
    {5367, 5365, 28582, 169, 2224, 5, false}, // CR05 / CRTM05
    {5371, 1066, 185906, geographic, 101, 25, false}, // MACARIO SOLIS
    {5373, 1067, 149552, geographic, 104, 25, false}, // Peru96
    {5381, 1068, 178199, geographic, 131, 25, false}, // SIRGAS-ROU98
    {5382, 5381, 178212, 1419, 2203, 4, false}, // SIRGAS-ROU98 / UTM zone 21S
    {5383, 5381, 178232, 1420, 2205, 4, false}, // SIRGAS-ROU98 / UTM zone 22S
    {5387, 5373, 149571, 1416, 2215, 4, false}, // Peru96 / UTM zone 18S
    {5388, 5373, 149558, 1326, 2214, 4, true}, // Peru96 / UTM zone 17S
    {5389, 5373, 149584, 1417, 2213, 4, false}, // Peru96 / UTM zone 19S
    {5393, 1069, 178486, geographic, 40, 25, false}, // SIRGAS_ES2007.8
    {5396, 4674, 176716, 1424, 2219, 4, false}, // SIRGAS 2000 / UTM zone 26S
    {5451, 1070, 143093, geographic, 2249, 25, false}, // Ocotepeque 1935
    {5456, 5451, 143106, 170, 2242, 4, false}, // Ocotepeque 1935 / Costa Rica Norte
    {5457, 5451, 143130, 171, 2243, 4, false}, // Ocotepeque 1935 / Costa Rica Sur
    {5458, 4267, 143180, 2146, 965, 4, true}, // Ocotepeque 1935 / Guatemala Norte
    {5459, 5451, 143203, 2147, 966, 4, false}, // Ocotepeque 1935 / Guatemala Sur
    {5460, 5451, 143153, 172, 1735, 4, false}, // Ocotepeque 1935 / El Salvador Lambert
    {5461, 5451, 143225, 173, 2221, 4, false}, // Ocotepeque 1935 / Nicaragua Norte
    {5462, 5451, 143249, 174, 2223, 4, false}, // Ocotepeque 1935 / Nicaragua Sur
    {5463, 4618, 175308, 1326, 2207, 4, false}, // SAD69 / UTM zone 17N
    {5464, 1071, 185258, geographic, 1719, 25, false}, // Sibun Gorge 1922
    {5466, 5464, 185272, 175, 1719, 4, true}, // Sibun Gorge 1922 / Colony Grid
    {5467, 1072, 148439, geographic, 1768, 25, false}, // Panama-Colon 1911
    {5469, 5467, 148451, 176, 1768, 4, false}, // Panama-Colon 1911 / Panama Lambert
    {5472, 5467, 148472, 177, 1768, 13, false}, // Panama-Colon 1911 / Panama Polyconic
    {5479, 4764, 170959, 178, 2226, 5, false}, // RSRGD2000 / MSLC2000
    {5480, 4764, 170931, 179, 2227, 5, false}, // RSRGD2000 / BCLC2000
    {5481, 4764, 170973, 180, 2228, 5, false}, // RSRGD2000 / PCLC2000
    {5482, 4764, 170987, 181, 2229, 5, false}, // RSRGD2000 / RSPS2000
    {5489, 1073, 168414, geographic, 1428, 25, false}, // RGAF09
    {5490, 5489, 168449, 1329, 2202, 4, false}, // RGAF09 / UTM zone 20N
    {5513, 4156, 175041, 182, 171, 1, false}, // S-JTSK / Krovak
    {5514, 4156, 175055, 183, 171, 4, false}, // S-JTSK / Krovak East North
    {5515, 5228, 175229, 184, 36, 1, false}, // S-JTSK/05 / Modified Krovak
    {5516, 5228, 175254, 185, 36, 4, false}, // S-JTSK/05 / Modified Krovak East North
    {5518, 4672, 28074, 186, 1481, 5, false}, // CI1971 / Chatham Islands Map Grid
    {5519, 4673, 28119, 186, 1481, 5, false}, // CI1979 / Chatham Islands Map Grid
    {5520, 4314, 38662, 1504, 2261, 5, false}, // DHDN / 3-degree Gauss-Kruger zone 1
    {5523, 4326, 215250, 187, 50, 4, false}, // WGS 84 / Gabon TM 2011
    {5524, 1074, 24626, geographic, 2247, 25, false}, // Corrego Alegre 1961
    {5527, 1075, 175526, geographic, 17, 25, false}, // SAD69(96)
    {5530, 5527, 175535, 2330, 17, 4, false}, // SAD69(96) / Brazil Polyconic
    {5531, 5527, 175599, 1419, 2253, 4, false}, // SAD69(96) / UTM zone 21S
    {5532, 4618, 175614, 1420, 2251, 4, true}, // SAD69(96) / UTM zone 22S
    {5533, 5527, 175629, 1421, 1892, 4, false}, // SAD69(96) / UTM zone 23S
    {5534, 5527, 175644, 1422, 1893, 4, false}, // SAD69(96) / UTM zone 24S
    {5535, 5527, 175659, 1423, 1894, 4, false}, // SAD69(96) / UTM zone 25S
    {5536, 5524, 36658, 1419, 2874, 4, false}, // Corrego Alegre 1961 / UTM zone 21S
    {5537, 5524, 36679, 1420, 2875, 4, false}, // Corrego Alegre 1961 / UTM zone 22S
    {5538, 5524, 36700, 1421, 1683, 4, false}, // Corrego Alegre 1961 / UTM zone 23S
    {5539, 5524, 36721, 1422, 2250, 4, false}, // Corrego Alegre 1961 / UTM zone 24S
    {5546, 1076, 146408, geographic, 102, 25, false}, // PNG94
    {5550, 5546, 146414, 188, 2254, 4, false}, // PNG94 / PNGMG94 zone 54
    {5551, 5546, 146431, 189, 2256, 4, false}, // PNG94 / PNGMG94 zone 55
    {5552, 5546, 146448, 190, 2258, 4, false}, // PNG94 / PNGMG94 zone 56
    {5559, 5451, 143180, 2146, 965, 4, false}, // Ocotepeque 1935 / Guatemala Norte
    {5561, 1077, 196158, geographic, 128, 25, false}, // UCS-2000
    {5562, 5561, 196650, 1475, 2263, 5, false}, // UCS-2000 / Gauss-Kruger zone 4
    {5563, 5561, 196669, 1476, 2266, 5, false}, // UCS-2000 / Gauss-Kruger zone 5
    {5564, 5561, 196688, 1477, 2270, 5, false}, // UCS-2000 / Gauss-Kruger zone 6
    {5565, 5561, 196707, 1478, 2271, 5, false}, // UCS-2000 / Gauss-Kruger zone 7
    {5566, 5561, 196559, 1545, 2263, 5, false}, // UCS-2000 / Gauss-Kruger CM 21E
    {5567, 5561, 196582, 1546, 2266, 5, false}, // UCS-2000 / Gauss-Kruger CM 27E
    {5568, 5561, 196604, 1547, 2270, 5, false}, // UCS-2000 / Gauss-Kruger CM 33E
    {5569, 5561, 196627, 1548, 2271, 5, false}, // UCS-2000 / Gauss-Kruger CM 39E
    {5570, 5561, 196481, 1510, 2272, 5, true}, // UCS-2000 / 3-degree Gauss-Kruger zone 7
    {5571, 5561, 196507, 1511, 2273, 5, true}, // UCS-2000 / 3-degree Gauss-Kruger zone 8
    {5572, 5561, 196533, 1512, 2274, 5, true}, // UCS-2000 / 3-degree Gauss-Kruger zone 9
    {5573, 5561, 196373, 1513, 2275, 5, true}, // UCS-2000 / 3-degree Gauss-Kruger zone 10
    {5574, 5561, 196400, 1514, 2276, 5, true}, // UCS-2000 / 3-degree Gauss-Kruger zone 11
    {5575, 5561, 196427, 1515, 2278, 5, true}, // UCS-2000 / 3-degree Gauss-Kruger zone 12
    {5576, 5561, 196454, 1516, 2279, 5, true}, // UCS-2000 / 3-degree Gauss-Kruger zone 13
    {5577, 5561, 196164, 1545, 2272, 5, true}, // UCS-2000 / 3-degree Gauss-Kruger CM 21E
    {5578, 5561, 196194, 1575, 2273, 5, true}, // UCS-2000 / 3-degree Gauss-Kruger CM 24E
    {5579, 5561, 196224, 1546, 2274, 5, true}, // UCS-2000 / 3-degree Gauss-Kruger CM 27E
    {5580, 5561, 196253, 1576, 2275, 5, true}, // UCS-2000 / 3-degree Gauss-Kruger CM 30E
    {5581, 5561, 196283, 1547, 2276, 5, true}, // UCS-2000 / 3-degree Gauss-Kruger CM 33E
    {5582, 5561, 196313, 1577, 2278, 5, true}, // UCS-2000 / 3-degree Gauss-Kruger CM 36E
    {5583, 5561, 196343, 1548, 2279, 5, true}, // UCS-2000 / 3-degree Gauss-Kruger CM 39E
    {5588, 4267, 99153, 191, 303, 7, false}, // NAD27 / New Brunswick Stereographic (NAD27)
    {5589, 5464, 185272, 175, 1719, 9, false}, // Sibun Gorge 1922 / Colony Grid
    {5593, 1078, 50514, geographic, 2259, 25, false}, // FEH2010
    {5596, 5593, 50521, 192, 2259, 4, false}, // FEH2010 / Fehmarnbelt TM
    {5623, 4267, 98883, 1010, 571, 8, false}, // NAD27 / Michigan East
    {5624, 4267, 98909, 1011, 572, 8, false}, // NAD27 / Michigan Old Central
    {5625, 4267, 98938, 1012, 2079, 8, false}, // NAD27 / Michigan West
    {5627, 4230, 41594, 1593, 2265, 4, false}, // ED50 / TM 6 NE
    {5629, 4130, 97241, 1436, 395, 4, false}, // Moznet / UTM zone 38S
    {5631, 4179, 159476, 1473, 2005, 4, false}, // Pulkovo 1942(58) / Gauss-Kruger zone 2 (E-N)
    {5632, 5013, 147533, 2371, 2095, 5, false}, // PTRA08 / LCC Europe
    {5633, 5013, 147515, 2372, 2095, 5, false}, // PTRA08 / LAEA Europe
    {5634, 4081, 168186, 2371, 1704, 5, false}, // REGCAN95 / LCC Europe
    {5635, 4081, 168166, 2372, 1704, 5, false}, // REGCAN95 / LAEA Europe
    {5636, 5252, 192643, 2372, 127, 5, false}, // TUREF / LAEA Europe
    {5637, 5252, 192660, 2371, 127, 5, false}, // TUREF / LCC Europe
    {5638, 5324, 70509, 2372, 58, 5, false}, // ISN2004 / LAEA Europe
    {5639, 5324, 70542, 2371, 58, 5, false}, // ISN2004 / LCC Europe
    {5641, 4674, 176284, 193, 2264, 4, false}, // SIRGAS 2000 / Brazil Mercator
    {5643, 4230, 41558, 194, 2267, 4, false}, // ED50 / SPBA LCC
    {5644, 4627, 169722, 1437, 2280, 4, false}, // RGR92 / UTM zone 39S
    {5646, 4269, 104492, 195, 271, 8, false}, // NAD83 / Vermont (ftUS)
    {5649, 4258, 45996, 196, 1458, 4, false}, // ETRS89 / UTM zone 31N (zE-N)
    {5650, 4258, 46134, 197, 1460, 4, false}, // ETRS89 / UTM zone 33N (zE-N)
    {5651, 4258, 45977, 196, 1458, 5, false}, // ETRS89 / UTM zone 31N (N-zE)
    {5652, 4258, 46046, 68, 1459, 5, false}, // ETRS89 / UTM zone 32N (N-zE)
    {5653, 4258, 46115, 197, 1460, 5, false}, // ETRS89 / UTM zone 33N (N-zE)
    {5654, 4152, 121924, 195, 271, 8, false}, // NAD83(HARN) / Vermont (ftUS)
    {5655, 4759, 128452, 195, 271, 8, false}, // NAD83(NSRS2007) / Vermont (ftUS)
    {5659, 4265, 96550, 198, 2366, 4, false}, // Monte Mario / TM Emilia-Romagna
    {5663, 4179, 159535, 1474, 638, 4, false}, // Pulkovo 1942(58) / Gauss-Kruger zone 3 (E-N)
    {5664, 4178, 160177, 1473, 2005, 4, false}, // Pulkovo 1942(83) / Gauss-Kruger zone 2 (E-N)
    {5665, 4178, 160234, 1474, 2006, 4, false}, // Pulkovo 1942(83) / Gauss-Kruger zone 3 (E-N)
    {5666, 4746, 145971, 1506, 1840, 4, false}, // PD/83 / 3-degree Gauss-Kruger zone 3 (E-N)
    {5667, 4746, 146026, 1507, 1841, 4, false}, // PD/83 / 3-degree Gauss-Kruger zone 4 (E-N)
    {5668, 4745, 167670, 1507, 1843, 4, false}, // RD/83 / 3-degree Gauss-Kruger zone 4 (E-N)
    {5669, 4745, 167725, 1508, 1842, 4, false}, // RD/83 / 3-degree Gauss-Kruger zone 5 (E-N)
    {5670, 4179, 159105, 1506, 366, 4, false}, // Pulkovo 1942(58) / 3-degree Gauss-Kruger zone 3 (E-N)
    {5671, 4179, 159178, 1507, 367, 4, false}, // Pulkovo 1942(58) / 3-degree Gauss-Kruger zone 4 (E-N)
    {5672, 4179, 159251, 1508, 2010, 4, false}, // Pulkovo 1942(58) / 3-degree Gauss-Kruger zone 5 (E-N)
    {5673, 4178, 159794, 1506, 366, 4, false}, // Pulkovo 1942(83) / 3-degree Gauss-Kruger zone 3 (E-N)
    {5674, 4178, 159865, 1507, 367, 4, false}, // Pulkovo 1942(83) / 3-degree Gauss-Kruger zone 4 (E-N)
    {5675, 4178, 159936, 1508, 368, 4, false}, // Pulkovo 1942(83) / 3-degree Gauss-Kruger zone 5 (E-N)
    {5676, 4314, 38742, 1505, 476, 4, false}, // DHDN / 3-degree Gauss-Kruger zone 2 (E-N)
    {5677, 4314, 38797, 1506, 477, 4, false}, // DHDN / 3-degree Gauss-Kruger zone 3 (E-N)
    {5678, 4314, 38852, 1507, 478, 4, false}, // DHDN / 3-degree Gauss-Kruger zone 4 (E-N)
    {5679, 4314, 38907, 1508, 479, 4, false}, // DHDN / 3-degree Gauss-Kruger zone 5 (E-N)
    {5680, 4314, 38687, 1504, 2261, 4, false}, // DHDN / 3-degree Gauss-Kruger zone 1 (E-N)
    {5681, 1081, 37715, geographic, 1799, 25, false}, // DB_REF
    {5682, 5681, 37722, 1505, 476, 4, false}, // DB_REF / 3-degree Gauss-Kruger zone 2 (E-N)
    {5683, 5681, 37754, 1506, 2337, 4, false}, // DB_REF / 3-degree Gauss-Kruger zone 3 (E-N)
    {5684, 5681, 37786, 1507, 2339, 4, false}, // DB_REF / 3-degree Gauss-Kruger zone 4 (E-N)
    {5685, 5681, 37818, 1508, 2340, 4, false}, // DB_REF / 3-degree Gauss-Kruger zone 5 (E-N)
    {5700, 4167, 131848, 1399, 2336, 4, false}, // NZGD2000 / UTM zone 1S
    {5825, 4202, 3673, 199, 1128, 4, false}, // AGD66 / ACT Standard Grid
    {5836, 4163, 229799, 1346, 2343, 4, false}, // Yemen NGN96 / UTM zone 37N
    {5837, 4163, 229850, 1349, 2341, 4, false}, // Yemen NGN96 / UTM zone 40N
    {5839, 5373, 149558, 1415, 2214, 4, false}, // Peru96 / UTM zone 17S
    {5842, 4326, 217982, 1602, 2356, 4, false}, // WGS 84 / TM 12 SE
    {5844, 4046, 169954, 1876, 2350, 4, false}, // RGRDC 2005 / Congo TM zone 30
    {5858, 5527, 175614, 1420, 2251, 4, false}, // SAD69(96) / UTM zone 22S
    {5875, 5527, 175555, 1416, 2354, 4, false}, // SAD69(96) / UTM zone 18S
    {5876, 5527, 175570, 1417, 2355, 4, false}, // SAD69(96) / UTM zone 19S
    {5877, 5527, 175585, 1418, 2357, 4, false}, // SAD69(96) / UTM zone 20S
    {5879, 4475, 28743, 1436, 1800, 4, false}, // Cadastre 1997 / UTM zone 38S
    {5880, 4674, 176305, 2330, 17, 4, false}, // SIRGAS 2000 / Brazil Polyconic
    {5886, 1095, 191564, geographic, 124, 25, false}, // TGD2005
    {5887, 5886, 191570, 200, 124, 4, false}, // TGD2005 / Tonga Map Grid
    {5890, 4054, 76105, 201, 841, 4, true}, // JAXA Snow Depth Polar Stereographic North
    {5896, 4756, 207796, 202, 2509, 4, false}, // VN-2000 / TM-3 zone 481
    {5897, 4756, 207810, 203, 2530, 4, false}, // VN-2000 / TM-3 zone 482
    {5898, 4756, 207824, 204, 2532, 4, false}, // VN-2000 / TM-3 zone 491
    {5899, 4756, 207729, 205, 2533, 4, false}, // VN-2000 / TM-3 107-45
    {5921, 4326, 214118, 211, 2351, 4, false}, // WGS 84 / EPSG Arctic Regional zone A1
    {5922, 4326, 214142, 212, 2358, 4, false}, // WGS 84 / EPSG Arctic Regional zone A2
    {5923, 4326, 214166, 213, 2359, 4, false}, // WGS 84 / EPSG Arctic Regional zone A3
    {5924, 4326, 214190, 214, 2360, 4, false}, // WGS 84 / EPSG Arctic Regional zone A4
    {5925, 4326, 214214, 215, 2362, 4, false}, // WGS 84 / EPSG Arctic Regional zone A5
    {5926, 4326, 214238, 216, 2363, 4, false}, // WGS 84 / EPSG Arctic Regional zone B1
    {5927, 4326, 214262, 217, 2364, 4, false}, // WGS 84 / EPSG Arctic Regional zone B2
    {5928, 4326, 214286, 218, 2365, 4, false}, // WGS 84 / EPSG Arctic Regional zone B3
    {5929, 4326, 214310, 219, 2368, 4, false}, // WGS 84 / EPSG Arctic Regional zone B4
    {5930, 4326, 214334, 220, 2369, 4, false}, // WGS 84 / EPSG Arctic Regional zone B5
    {5931, 4326, 214358, 221, 2371, 4, false}, // WGS 84 / EPSG Arctic Regional zone C1
    {5932, 4326, 214382, 222, 2372, 4, false}, // WGS 84 / EPSG Arctic Regional zone C2
    {5933, 4326, 214406, 223, 2373, 4, false}, // WGS 84 / EPSG Arctic Regional zone C3
    {5934, 4326, 214430, 224, 2374, 4, false}, // WGS 84 / EPSG Arctic Regional zone C4
    {5935, 4326, 214454, 225, 2376, 4, false}, // WGS 84 / EPSG Arctic Regional zone C5
    {5936, 4326, 214089, 206, 841, 4, false}, // WGS 84 / EPSG Alaska Polar Stereographic
    {5937, 4326, 215058, 207, 841, 4, false}, // WGS 84 / EPSG Canada Polar Stereographic
    {5938, 4326, 215085, 208, 841, 4, false}, // WGS 84 / EPSG Greenland Polar Stereographic
    {5939, 4326, 215114, 209, 841, 4, false}, // WGS 84 / EPSG Norway Polar Stereographic
    {5940, 4326, 215142, 210, 841, 4, false}, // WGS 84 / EPSG Russia Polar Stereographic
    {6050, 4747, 56130, 230, 2379, 4, false}, // GR96 / EPSG Arctic zone 1-25
    {6051, 4747, 56148, 238, 2370, 4, false}, // GR96 / EPSG Arctic zone 2-18
    {6052, 4747, 56166, 239, 2377, 4, false}, // GR96 / EPSG Arctic zone 2-20
    {6053, 4747, 56184, 253, 2399, 4, false}, // GR96 / EPSG Arctic zone 3-29
    {6054, 4747, 56202, 254, 2400, 4, false}, // GR96 / EPSG Arctic zone 3-31
    {6055, 4747, 56220, 255, 2401, 4, false}, // GR96 / EPSG Arctic zone 3-33
    {6056, 4747, 56238, 260, 2406, 4, false}, // GR96 / EPSG Arctic zone 4-20
    {6057, 4747, 56256, 261, 2407, 4, false}, // GR96 / EPSG Arctic zone 4-22
    {6058, 4747, 56274, 262, 2408, 4, false}, // GR96 / EPSG Arctic zone 4-24
    {6059, 4747, 56292, 286, 2432, 4, false}, // GR96 / EPSG Arctic zone 5-41
    {6060, 4747, 56310, 287, 2433, 4, false}, // GR96 / EPSG Arctic zone 5-43
    {6061, 4747, 56328, 288, 2434, 4, false}, // GR96 / EPSG Arctic zone 5-45
    {6062, 4747, 56346, 296, 2442, 4, false}, // GR96 / EPSG Arctic zone 6-26
    {6063, 4747, 56364, 297, 2443, 4, false}, // GR96 / EPSG Arctic zone 6-28
    {6064, 4747, 56382, 298, 2444, 4, false}, // GR96 / EPSG Arctic zone 6-30
    {6065, 4747, 56400, 299, 2445, 4, false}, // GR96 / EPSG Arctic zone 7-11
    {6066, 4747, 56418, 300, 2446, 4, false}, // GR96 / EPSG Arctic zone 7-13
    {6067, 4747, 56436, 226, 2448, 4, false}, // GR96 / EPSG Arctic zone 8-20
    {6068, 4747, 56454, 227, 2449, 4, false}, // GR96 / EPSG Arctic zone 8-22
    {6069, 4258, 44700, 240, 2384, 4, false}, // ETRS89 / EPSG Arctic zone 2-22
    {6070, 4258, 44719, 244, 2389, 4, false}, // ETRS89 / EPSG Arctic zone 3-11
    {6071, 4258, 44738, 263, 2409, 4, false}, // ETRS89 / EPSG Arctic zone 4-26
    {6072, 4258, 44757, 264, 2410, 4, false}, // ETRS89 / EPSG Arctic zone 4-28
    {6073, 4258, 44776, 271, 2417, 4, false}, // ETRS89 / EPSG Arctic zone 5-11
    {6074, 4258, 44795, 272, 2418, 4, false}, // ETRS89 / EPSG Arctic zone 5-13
    {6075, 4326, 214598, 241, 2385, 4, false}, // WGS 84 / EPSG Arctic zone 2-24
    {6076, 4326, 214618, 242, 2386, 4, false}, // WGS 84 / EPSG Arctic zone 2-26
    {6077, 4326, 214658, 245, 2390, 4, false}, // WGS 84 / EPSG Arctic zone 3-13
    {6078, 4326, 214678, 246, 2391, 4, false}, // WGS 84 / EPSG Arctic zone 3-15
    {6079, 4326, 214698, 247, 2392, 4, false}, // WGS 84 / EPSG Arctic zone 3-17
    {6080, 4326, 214718, 248, 2393, 4, false}, // WGS 84 / EPSG Arctic zone 3-19
    {6081, 4326, 214798, 265, 2411, 4, false}, // WGS 84 / EPSG Arctic zone 4-30
    {6082, 4326, 214818, 266, 2412, 4, false}, // WGS 84 / EPSG Arctic zone 4-32
    {6083, 4326, 214838, 267, 2413, 4, false}, // WGS 84 / EPSG Arctic zone 4-34
    {6084, 4326, 214858, 268, 2414, 4, false}, // WGS 84 / EPSG Arctic zone 4-36
    {6085, 4326, 214878, 269, 2415, 4, false}, // WGS 84 / EPSG Arctic zone 4-38
    {6086, 4326, 214898, 270, 2416, 4, false}, // WGS 84 / EPSG Arctic zone 4-40
    {6087, 4326, 214918, 273, 2419, 4, false}, // WGS 84 / EPSG Arctic zone 5-15
    {6088, 4326, 214938, 274, 2420, 4, false}, // WGS 84 / EPSG Arctic zone 5-17
    {6089, 4326, 214958, 275, 2421, 4, false}, // WGS 84 / EPSG Arctic zone 5-19
    {6090, 4326, 214978, 276, 2422, 4, false}, // WGS 84 / EPSG Arctic zone 5-21
    {6091, 4326, 214998, 277, 2423, 4, false}, // WGS 84 / EPSG Arctic zone 5-23
    {6092, 4326, 215018, 278, 2424, 4, false}, // WGS 84 / EPSG Arctic zone 5-25
    {6093, 4326, 215038, 279, 2425, 4, false}, // WGS 84 / EPSG Arctic zone 5-27
    {6094, 4759, 125321, 280, 2426, 4, false}, // NAD83(NSRS2007) / EPSG Arctic zone 5-29
    {6095, 4759, 125340, 281, 2427, 4, false}, // NAD83(NSRS2007) / EPSG Arctic zone 5-31
    {6096, 4759, 125359, 290, 2436, 4, false}, // NAD83(NSRS2007) / EPSG Arctic zone 6-14
    {6097, 4759, 125378, 291, 2437, 4, false}, // NAD83(NSRS2007) / EPSG Arctic zone 6-16
    {6098, 4617, 116073, 229, 2378, 4, false}, // NAD83(CSRS) / EPSG Arctic zone 1-23
    {6099, 4617, 116090, 236, 2361, 4, false}, // NAD83(CSRS) / EPSG Arctic zone 2-14
    {6100, 4617, 116107, 237, 2367, 4, false}, // NAD83(CSRS) / EPSG Arctic zone 2-16
    {6101, 4617, 116124, 251, 2396, 4, false}, // NAD83(CSRS) / EPSG Arctic zone 3-25
    {6102, 4617, 116141, 252, 2397, 4, false}, // NAD83(CSRS) / EPSG Arctic zone 3-27
    {6103, 4617, 116158, 253, 2398, 4, false}, // NAD83(CSRS) / EPSG Arctic zone 3-29
    {6104, 4617, 116175, 257, 2403, 4, false}, // NAD83(CSRS) / EPSG Arctic zone 4-14
    {6105, 4617, 116192, 258, 2404, 4, false}, // NAD83(CSRS) / EPSG Arctic zone 4-16
    {6106, 4617, 116209, 259, 2405, 4, false}, // NAD83(CSRS) / EPSG Arctic zone 4-18
    {6107, 4617, 116226, 282, 2428, 4, false}, // NAD83(CSRS) / EPSG Arctic zone 5-33
    {6108, 4617, 116243, 283, 2429, 4, false}, // NAD83(CSRS) / EPSG Arctic zone 5-35
    {6109, 4617, 116260, 284, 2430, 4, false}, // NAD83(CSRS) / EPSG Arctic zone 5-37
    {6110, 4617, 116277, 285, 2431, 4, false}, // NAD83(CSRS) / EPSG Arctic zone 5-39
    {6111, 4617, 116294, 292, 2438, 4, false}, // NAD83(CSRS) / EPSG Arctic zone 6-18
    {6112, 4617, 116311, 293, 2439, 4, false}, // NAD83(CSRS) / EPSG Arctic zone 6-20
    {6113, 4617, 116328, 294, 2440, 4, false}, // NAD83(CSRS) / EPSG Arctic zone 6-22
    {6114, 4617, 116345, 295, 2441, 4, false}, // NAD83(CSRS) / EPSG Arctic zone 6-24
    {6115, 4326, 214498, 231, 2380, 4, false}, // WGS 84 / EPSG Arctic zone 1-27
    {6116, 4326, 214518, 232, 2381, 4, false}, // WGS 84 / EPSG Arctic zone 1-29
    {6117, 4326, 214538, 233, 2382, 4, false}, // WGS 84 / EPSG Arctic zone 1-31
    {6118, 4326, 214478, 228, 2375, 4, false}, // WGS 84 / EPSG Arctic zone 1-21
    {6119, 4326, 214638, 243, 2387, 4, false}, // WGS 84 / EPSG Arctic zone 2-28
    {6120, 4326, 214558, 234, 2388, 4, false}, // WGS 84 / EPSG Arctic zone 2-10
    {6121, 4326, 214578, 235, 2383, 4, false}, // WGS 84 / EPSG Arctic zone 2-12
    {6122, 4326, 214738, 249, 2394, 4, false}, // WGS 84 / EPSG Arctic zone 3-21
    {6123, 4326, 214758, 250, 2395, 4, false}, // WGS 84 / EPSG Arctic zone 3-23
    {6124, 4326, 214778, 256, 2402, 4, false}, // WGS 84 / EPSG Arctic zone 4-12
    {6125, 4258, 44814, 289, 2435, 4, false}, // ETRS89 / EPSG Arctic zone 5-47
    {6128, 4723, 64645, 302, 1691, 6, false}, // Grand Cayman National Grid 1959
    {6129, 4726, 186072, 302, 1692, 6, false}, // Sister Islands National Grid 1961
    {6135, 1100, 28174, geographic, 25, 25, false}, // CIGD11
    {6141, 6135, 31938, 301, 25, 6, true}, // Cayman Islands National Grid 2011
    {6200, 4267, 98897, 303, 573, 8, true}, // NAD27 / Michigan North
    {6201, 4267, 98869, 304, 574, 8, false}, // NAD27 / Michigan Central
    {6202, 4267, 98926, 305, 575, 8, false}, // NAD27 / Michigan South
    {6204, 3906, 90816, 306, 79, 4, false}, // Macedonia State Coordinate System
    {6207, 1111, 133407, geographic, 93, 25, false}, // Nepal 1981
    {6210, 4674, 176631, 1332, 2452, 4, false}, // SIRGAS 2000 / UTM zone 23N
    {6211, 4674, 176665, 1333, 2456, 4, false}, // SIRGAS 2000 / UTM zone 24N
    {6244, 4686, 87835, 307, 2447, 5, false}, // MAGNA-SIRGAS / Arauca urban grid
    {6245, 4686, 87861, 308, 2455, 5, false}, // MAGNA-SIRGAS / Armenia urban grid
    {6246, 4686, 87886, 309, 2457, 5, false}, // MAGNA-SIRGAS / Barranquilla urban grid
    {6247, 4686, 87916, 310, 2458, 5, false}, // MAGNA-SIRGAS / Bogota urban grid
    {6248, 4686, 87942, 311, 2459, 5, false}, // MAGNA-SIRGAS / Bucaramanga urban grid
    {6249, 4686, 87971, 312, 2460, 5, false}, // MAGNA-SIRGAS / Cali urban grid
    {6250, 4686, 87996, 313, 2461, 5, false}, // MAGNA-SIRGAS / Cartagena urban grid
    {6251, 4686, 88148, 314, 2462, 5, false}, // MAGNA-SIRGAS / Cucuta urban grid
    {6252, 4686, 88175, 315, 2463, 5, false}, // MAGNA-SIRGAS / Florencia urban grid
    {6253, 4686, 88202, 316, 2464, 5, false}, // MAGNA-SIRGAS / Ibague urban grid
    {6254, 4686, 88229, 317, 2465, 5, false}, // MAGNA-SIRGAS / Inirida urban grid
    {6255, 4686, 88254, 318, 2466, 5, false}, // MAGNA-SIRGAS / Leticia urban grid
    {6256, 4686, 88279, 319, 2467, 5, false}, // MAGNA-SIRGAS / Manizales urban grid
    {6257, 4686, 88307, 320, 2468, 5, false}, // MAGNA-SIRGAS / Medellin urban grid
    {6258, 4686, 88334, 321, 2469, 5, false}, // MAGNA-SIRGAS / Mitu urban grid
    {6259, 4686, 88359, 322, 2470, 5, false}, // MAGNA-SIRGAS / Mocoa urban grid
    {6260, 4686, 88385, 323, 2471, 5, false}, // MAGNA-SIRGAS / Monteria urban grid
    {6261, 4686, 88411, 324, 2472, 5, false}, // MAGNA-SIRGAS / Neiva urban grid
    {6262, 4686, 88461, 325, 2473, 5, false}, // MAGNA-SIRGAS / Pasto urban grid
    {6263, 4686, 88486, 326, 2474, 5, false}, // MAGNA-SIRGAS / Pereira urban grid
    {6264, 4686, 88512, 327, 2475, 5, false}, // MAGNA-SIRGAS / Popayan urban grid
    {6265, 4686, 88540, 328, 2476, 5, false}, // MAGNA-SIRGAS / Puerto Carreno urban grid
    {6266, 4686, 88571, 329, 2477, 5, false}, // MAGNA-SIRGAS / Quibdo urban grid
    {6267, 4686, 88598, 330, 2478, 5, false}, // MAGNA-SIRGAS / Riohacha urban grid
    {6268, 4686, 88627, 331, 2479, 5, false}, // MAGNA-SIRGAS / San Andres urban grid
    {6269, 4686, 88657, 332, 2480, 5, false}, // MAGNA-SIRGAS / San Jose del Guaviare urban grid
    {6270, 4686, 88695, 333, 2451, 5, false}, // MAGNA-SIRGAS / Santa Marta urban grid
    {6271, 4686, 88724, 334, 2453, 5, false}, // MAGNA-SIRGAS / Sucre urban grid
    {6272, 4686, 88750, 335, 2454, 5, false}, // MAGNA-SIRGAS / Tunja urban grid
    {6273, 4686, 88776, 336, 2481, 5, false}, // MAGNA-SIRGAS / Valledupar urban grid
    {6274, 4686, 88805, 337, 2482, 5, false}, // MAGNA-SIRGAS / Villavicencio urban grid
    {6275, 4686, 88836, 338, 2483, 5, false}, // MAGNA-SIRGAS / Yopal urban grid
    {6307, 6783, 115865, 1200, 2063, 4, false}, // NAD83(CORS96) / Puerto Rico and Virgin Is.
    {6311, 1112, 27851, geographic, 1729, 25, false}, // CGRS93
    {6312, 6311, 27857, 339, 1729, 4, false}, // CGRS93 / Cyprus Local Transverse Mercator
    {6316, 3906, 89648, 2182, 562, 4, false}, // MGI 1901 / Balkans zone 7
    {6318, 1116, 104997, geographic, 365, 25, false}, // NAD83(2011)
    {6322, 1117, 128991, geographic, 2484, 25, false}, // NAD83(PA11)
    {6325, 1118, 124484, geographic, 2487, 25, false}, // NAD83(MA11)
    {6328, 6318, 112141, 1368, 1821, 4, false}, // NAD83(2011) / UTM zone 59N
    {6329, 6318, 112156, 1369, 1822, 4, false}, // NAD83(2011) / UTM zone 60N
    {6330, 6318, 112113, 1310, 1823, 4, false}, // NAD83(2011) / UTM zone 1N
    {6331, 6318, 112120, 1311, 1824, 4, false}, // NAD83(2011) / UTM zone 2N
    {6332, 6318, 112127, 1312, 978, 4, false}, // NAD83(2011) / UTM zone 3N
    {6333, 6318, 112134, 1313, 979, 4, false}, // NAD83(2011) / UTM zone 4N
    {6334, 6318, 112149, 1314, 980, 4, false}, // NAD83(2011) / UTM zone 5N
    {6335, 6318, 112164, 1315, 981, 4, false}, // NAD83(2011) / UTM zone 6N
    {6336, 6318, 112171, 1316, 1929, 4, false}, // NAD83(2011) / UTM zone 7N
    {6337, 6318, 112178, 1317, 1930, 4, false}, // NAD83(2011) / UTM zone 8N
    {6338, 6318, 112185, 1318, 1931, 4, false}, // NAD83(2011) / UTM zone 9N
    {6339, 6318, 112034, 1319, 1932, 4, false}, // NAD83(2011) / UTM zone 10N
    {6340, 6318, 112041, 1320, 1933, 4, false}, // NAD83(2011) / UTM zone 11N
    {6341, 6318, 112049, 1321, 1934, 4, false}, // NAD83(2011) / UTM zone 12N
    {6342, 6318, 112057, 1322, 1935, 4, false}, // NAD83(2011) / UTM zone 13N
    {6343, 6318, 112065, 1323, 1936, 4, false}, // NAD83(2011) / UTM zone 14N
    {6344, 6318, 112073, 1324, 1937, 4, false}, // NAD83(2011) / UTM zone 15N
    {6345, 6318, 112081, 1325, 1938, 4, false}, // NAD83(2011) / UTM zone 16N
    {6346, 6318, 112089, 1326, 1939, 4, false}, // NAD83(2011) / UTM zone 17N
    {6347, 6318, 112097, 1327, 1940, 4, false}, // NAD83(2011) / UTM zone 18N
    {6348, 6318, 112105, 1328, 1941, 4, false}, // NAD83(2011) / UTM zone 19N
    {6350, 6318, 105557, 100, 186, 4, false}, // NAD83(2011) / Conus Albers
    {6351, 6318, 105588, 280, 2426, 4, false}, // NAD83(2011) / EPSG Arctic zone 5-29
    {6352, 6318, 105602, 281, 2427, 4, false}, // NAD83(2011) / EPSG Arctic zone 5-31
    {6353, 6318, 105616, 290, 2436, 4, false}, // NAD83(2011) / EPSG Arctic zone 6-14
    {6354, 6318, 105630, 291, 2437, 4, false}, // NAD83(2011) / EPSG Arctic zone 6-16
    {6355, 6318, 105000, 911, 999, 4, false}, // NAD83(2011) / Alabama East
    {6356, 6318, 105026, 912, 1000, 4, false}, // NAD83(2011) / Alabama West
    {6362, 4483, 94009, 340, 88, 5, false}, // Mexico ITRF92 / LCC
    {6365, 1120, 93855, geographic, 88, 25, false}, // Mexico ITRF2008
    {6366, 6365, 93883, 1320, 1870, 4, false}, // Mexico ITRF2008 / UTM zone 11N
    {6367, 6365, 93902, 1321, 1871, 4, false}, // Mexico ITRF2008 / UTM zone 12N
    {6368, 6365, 93921, 1322, 1872, 4, false}, // Mexico ITRF2008 / UTM zone 13N
    {6369, 6365, 93940, 1323, 1873, 4, false}, // Mexico ITRF2008 / UTM zone 14N
    {6370, 6365, 93959, 1324, 2062, 4, false}, // Mexico ITRF2008 / UTM zone 15N
    {6371, 6365, 93978, 1325, 2064, 4, false}, // Mexico ITRF2008 / UTM zone 16N
    {6372, 6365, 93867, 340, 88, 5, false}, // Mexico ITRF2008 / LCC
    {6381, 5561, 197328, 341, 2272, 5, false}, // UCS-2000 / Ukraine TM zone 7
    {6382, 5561, 197343, 342, 2273, 5, false}, // UCS-2000 / Ukraine TM zone 8
    {6383, 5561, 197358, 343, 2274, 5, false}, // UCS-2000 / Ukraine TM zone 9
    {6384, 5561, 197264, 344, 2275, 5, false}, // UCS-2000 / Ukraine TM zone 10
    {6385, 5561, 197280, 345, 2276, 5, false}, // UCS-2000 / Ukraine TM zone 11
    {6386, 5561, 197296, 346, 2278, 5, false}, // UCS-2000 / Ukraine TM zone 12
    {6387, 5561, 197312, 347, 2279, 5, false}, // UCS-2000 / Ukraine TM zone 13
    {6391, 6135, 31938, 348, 25, 6, false}, // Cayman Islands National Grid 2011
    {6393, 6318, 105052, 1176, 192, 4, false}, // NAD83(2011) / Alaska Albers
    {6394, 6318, 105063, 1177, 1001, 4, false}, // NAD83(2011) / Alaska zone 1
    {6395, 6318, 105082, 1178, 1003, 4, false}, // NAD83(2011) / Alaska zone 2
    {6396, 6318, 105091, 1179, 1004, 4, false}, // NAD83(2011) / Alaska zone 3
    {6397, 6318, 105100, 1180, 1005, 4, false}, // NAD83(2011) / Alaska zone 4
    {6398, 6318, 105109, 1181, 1006, 4, false}, // NAD83(2011) / Alaska zone 5
    {6399, 6318, 105118, 1182, 1007, 4, false}, // NAD83(2011) / Alaska zone 6
    {6400, 6318, 105127, 1183, 1008, 4, false}, // NAD83(2011) / Alaska zone 7
    {6401, 6318, 105136, 1184, 1009, 4, false}, // NAD83(2011) / Alaska zone 8
    {6402, 6318, 105145, 1185, 1010, 4, false}, // NAD83(2011) / Alaska zone 9
    {6403, 6318, 105072, 1186, 1002, 4, false}, // NAD83(2011) / Alaska zone 10
    {6404, 6318, 105172, 919, 1011, 4, false}, // NAD83(2011) / Arizona Central
    {6405, 6318, 105181, 1209, 1011, 6, false}, // NAD83(2011) / Arizona Central (ft)
    {6406, 6318, 105194, 918, 1012, 4, false}, // NAD83(2011) / Arizona East
    {6407, 6318, 105203, 1208, 1012, 6, false}, // NAD83(2011) / Arizona East (ft)
    {6408, 6318, 105215, 920, 1013, 4, false}, // NAD83(2011) / Arizona West
    {6409, 6318, 105224, 1210, 1013, 6, false}, // NAD83(2011) / Arizona West (ft)
    {6410, 6318, 105236, 923, 1014, 4, false}, // NAD83(2011) / Arkansas North
    {6411, 6318, 105245, 1289, 1014, 8, false}, // NAD83(2011) / Arkansas North (ftUS)
    {6412, 6318, 105259, 924, 1015, 4, false}, // NAD83(2011) / Arkansas South
    {6413, 6318, 105268, 1290, 1015, 8, false}, // NAD83(2011) / Arkansas South (ftUS)
    {6414, 6318, 105282, 933, 233, 4, false}, // NAD83(2011) / California Albers
    {6415, 6318, 105295, 934, 1020, 4, false}, // NAD83(2011) / California zone 1
    {6416, 6318, 105306, 1211, 1020, 8, false}, // NAD83(2011) / California zone 1 (ftUS)
    {6417, 6318, 105323, 935, 1021, 4, false}, // NAD83(2011) / California zone 2
    {6418, 6318, 105334, 1212, 1021, 8, false}, // NAD83(2011) / California zone 2 (ftUS)
    {6419, 6318, 105351, 936, 1022, 4, false}, // NAD83(2011) / California zone 3
    {6420, 6318, 105362, 1213, 1022, 8, false}, // NAD83(2011) / California zone 3 (ftUS)
    {6421, 6318, 105379, 937, 1023, 4, false}, // NAD83(2011) / California zone 4
    {6422, 6318, 105390, 1214, 1023, 8, false}, // NAD83(2011) / California zone 4 (ftUS)
    {6423, 6318, 105407, 938, 1027, 4, false}, // NAD83(2011) / California zone 5
    {6424, 6318, 105418, 1215, 1027, 8, false}, // NAD83(2011) / California zone 5 (ftUS)
    {6425, 6318, 105435, 939, 1025, 4, false}, // NAD83(2011) / California zone 6
    {6426, 6318, 105446, 1216, 1025, 8, false}, // NAD83(2011) / California zone 6 (ftUS)
    {6427, 6318, 105463, 944, 1028, 4, false}, // NAD83(2011) / Colorado Central
    {6428, 6318, 105473, 1218, 1028, 8, false}, // NAD83(2011) / Colorado Central (ftUS)
    {6429, 6318, 105488, 943, 1029, 4, false}, // NAD83(2011) / Colorado North
    {6430, 6318, 105496, 1217, 1029, 8, false}, // NAD83(2011) / Colorado North (ftUS)
    {6431, 6318, 105509, 945, 1030, 4, false}, // NAD83(2011) / Colorado South
    {6432, 6318, 105518, 1219, 1030, 8, false}, // NAD83(2011) / Colorado South (ftUS)
    {6433, 6318, 105531, 947, 235, 4, false}, // NAD83(2011) / Connecticut
    {6434, 6318, 105541, 1220, 235, 8, false}, // NAD83(2011) / Connecticut (ftUS)
    {6435, 6318, 105567, 949, 236, 4, false}, // NAD83(2011) / Delaware
    {6436, 6318, 105575, 1221, 236, 8, false}, // NAD83(2011) / Delaware (ftUS)
    {6437, 6318, 105644, 953, 1031, 4, false}, // NAD83(2011) / Florida East
    {6438, 6318, 105654, 1222, 1031, 8, false}, // NAD83(2011) / Florida East (ftUS)
    {6439, 6318, 105668, 956, 237, 4, false}, // NAD83(2011) / Florida GDL Albers
    {6440, 6318, 105683, 955, 1032, 4, false}, // NAD83(2011) / Florida North
    {6441, 6318, 105691, 1224, 1032, 8, false}, // NAD83(2011) / Florida North (ftUS)
    {6442, 6318, 105704, 954, 1033, 4, false}, // NAD83(2011) / Florida West
    {6443, 6318, 105714, 1223, 1033, 8, false}, // NAD83(2011) / Florida West (ftUS)
    {6444, 6318, 105728, 959, 1034, 4, false}, // NAD83(2011) / Georgia East
    {6445, 6318, 105738, 1225, 1034, 8, false}, // NAD83(2011) / Georgia East (ftUS)
    {6446, 6318, 105752, 960, 1035, 4, false}, // NAD83(2011) / Georgia West
    {6447, 6318, 105762, 1226, 1035, 8, false}, // NAD83(2011) / Georgia West (ftUS)
    {6448, 6318, 105893, 965, 1036, 4, false}, // NAD83(2011) / Idaho Central
    {6449, 6318, 105902, 1228, 1036, 8, false}, // NAD83(2011) / Idaho Central (ftUS)
    {6450, 6318, 105916, 964, 1037, 4, false}, // NAD83(2011) / Idaho East
    {6451, 6318, 105925, 1227, 1037, 8, false}, // NAD83(2011) / Idaho East (ftUS)
    {6452, 6318, 105938, 966, 1038, 4, false}, // NAD83(2011) / Idaho West
    {6453, 6318, 105947, 1229, 1038, 8, false}, // NAD83(2011) / Idaho West (ftUS)
    {6454, 6318, 105960, 969, 1039, 4, false}, // NAD83(2011) / Illinois East
    {6455, 6318, 105972, 1291, 1039, 8, false}, // NAD83(2011) / Illinois East (ftUS)
    {6456, 6318, 105988, 970, 1040, 4, false}, // NAD83(2011) / Illinois West
    {6457, 6318, 106000, 1292, 1040, 8, false}, // NAD83(2011) / Illinois West (ftUS)
    {6458, 6318, 108208, 973, 1041, 4, false}, // NAD83(2011) / Indiana East
    {6459, 6318, 108216, 1276, 1041, 8, false}, // NAD83(2011) / Indiana East (ftUS)
    {6460, 6318, 108228, 974, 1042, 4, false}, // NAD83(2011) / Indiana West
    {6461, 6318, 108236, 1277, 1042, 8, false}, // NAD83(2011) / Indiana West (ftUS)
    {6462, 6318, 108248, 977, 1043, 4, false}, // NAD83(2011) / Iowa North
    {6463, 6318, 108255, 1281, 1043, 8, false}, // NAD83(2011) / Iowa North (ftUS)
    {6464, 6318, 108267, 978, 1044, 4, false}, // NAD83(2011) / Iowa South
    {6465, 6318, 108275, 1282, 1044, 8, false}, // NAD83(2011) / Iowa South (ftUS)
    {6466, 6318, 108504, 981, 1045, 4, false}, // NAD83(2011) / Kansas North
    {6467, 6318, 108512, 1283, 1045, 8, false}, // NAD83(2011) / Kansas North (ftUS)
    {6468, 6318, 108525, 982, 1046, 4, false}, // NAD83(2011) / Kansas South
    {6469, 6318, 108533, 1284, 1046, 8, false}, // NAD83(2011) / Kansas South (ftUS)
    {6470, 6318, 108546, 1207, 1047, 4, false}, // NAD83(2011) / Kentucky North
    {6471, 6318, 108556, 1232, 1047, 8, false}, // NAD83(2011) / Kentucky North (ftUS)
    {6472, 6318, 108571, 985, 244, 4, false}, // NAD83(2011) / Kentucky Single Zone
    {6473, 6318, 108588, 1279, 244, 8, false}, // NAD83(2011) / Kentucky Single Zone (ftUS)
    {6474, 6318, 108610, 987, 1048, 4, false}, // NAD83(2011) / Kentucky South
    {6475, 6318, 108621, 1233, 1048, 8, false}, // NAD83(2011) / Kentucky South (ftUS)
    {6476, 6318, 108637, 991, 1049, 4, false}, // NAD83(2011) / Louisiana North
    {6477, 6318, 108645, 1295, 1049, 8, false}, // NAD83(2011) / Louisiana North (ftUS)
    {6478, 6318, 108658, 992, 1251, 4, false}, // NAD83(2011) / Louisiana South
    {6479, 6318, 108667, 1296, 1251, 8, false}, // NAD83(2011) / Louisiana South (ftUS)
    {6480, 6318, 108680, 1003, 1492, 4, false}, // NAD83(2011) / Maine CS2000 Central
    {6481, 6318, 108693, 1000, 1493, 4, false}, // NAD83(2011) / Maine CS2000 East
    {6482, 6318, 108706, 1002, 1491, 4, false}, // NAD83(2011) / Maine CS2000 West
    {6483, 6318, 108719, 996, 1051, 4, false}, // NAD83(2011) / Maine East
    {6484, 6318, 108728, 998, 1051, 8, false}, // NAD83(2011) / Maine East (ftUS)
    {6485, 6318, 108741, 997, 1052, 4, false}, // NAD83(2011) / Maine West
    {6486, 6318, 108750, 999, 1052, 8, false}, // NAD83(2011) / Maine West (ftUS)
    {6487, 6318, 108763, 1005, 247, 4, false}, // NAD83(2011) / Maryland
    {6488, 6318, 108769, 1234, 247, 8, false}, // NAD83(2011) / Maryland (ftUS)
    {6489, 6318, 108781, 1009, 1053, 4, false}, // NAD83(2011) / Massachusetts Island
    {6490, 6318, 108795, 1236, 1053, 8, false}, // NAD83(2011) / Massachusetts Island (ftUS)
    {6491, 6318, 108815, 1008, 1054, 4, false}, // NAD83(2011) / Massachusetts Mainland
    {6492, 6318, 108832, 1235, 1054, 8, false}, // NAD83(2011) / Massachusetts Mainland (ftUS)
    {6493, 6318, 108855, 1017, 574, 4, false}, // NAD83(2011) / Michigan Central
    {6494, 6318, 108867, 1238, 574, 6, false}, // NAD83(2011) / Michigan Central (ft)
    {6495, 6318, 108882, 1016, 573, 4, false}, // NAD83(2011) / Michigan North
    {6496, 6318, 108892, 1237, 573, 6, false}, // NAD83(2011) / Michigan North (ft)
    {6497, 6318, 108906, 1019, 248, 4, false}, // NAD83(2011) / Michigan Oblique Mercator
    {6498, 6318, 108927, 1018, 575, 4, false}, // NAD83(2011) / Michigan South
    {6499, 6318, 108937, 1239, 575, 6, false}, // NAD83(2011) / Michigan South (ft)
    {6500, 6318, 108951, 1024, 1058, 4, false}, // NAD83(2011) / Minnesota Central
    {6501, 6318, 108962, 1027, 1058, 8, false}, // NAD83(2011) / Minnesota Central (ftUS)
    {6502, 6318, 108978, 1023, 1059, 4, false}, // NAD83(2011) / Minnesota North
    {6503, 6318, 108987, 1026, 1059, 8, false}, // NAD83(2011) / Minnesota North (ftUS)
    {6504, 6318, 109001, 1025, 1060, 4, false}, // NAD83(2011) / Minnesota South
    {6505, 6318, 109011, 1028, 1060, 8, false}, // NAD83(2011) / Minnesota South (ftUS)
    {6506, 6318, 109025, 1031, 1061, 4, false}, // NAD83(2011) / Mississippi East
    {6507, 6318, 109040, 1240, 1061, 8, false}, // NAD83(2011) / Mississippi East (ftUS)
    {6508, 6318, 109059, 1, 250, 4, false}, // NAD83(2011) / Mississippi TM
    {6509, 6318, 109072, 1032, 1062, 4, false}, // NAD83(2011) / Mississippi West
    {6510, 6318, 109087, 1241, 1062, 8, false}, // NAD83(2011) / Mississippi West (ftUS)
    {6511, 6318, 109106, 1037, 1063, 4, false}, // NAD83(2011) / Missouri Central
    {6512, 6318, 109118, 1036, 1064, 4, false}, // NAD83(2011) / Missouri East
    {6513, 6318, 109130, 1038, 1065, 4, false}, // NAD83(2011) / Missouri West
    {6514, 6318, 109142, 1042, 252, 4, false}, // NAD83(2011) / Montana
    {6515, 6318, 109149, 1242, 252, 6, false}, // NAD83(2011) / Montana (ft)
    {6516, 6318, 109242, 1045, 253, 4, false}, // NAD83(2011) / Nebraska
    {6517, 4759, 109250, 1300, 253, 8, true}, // NAD83(2011) / Nebraska (ftUS)
    {6518, 6318, 109263, 1050, 1068, 4, false}, // NAD83(2011) / Nevada Central
    {6519, 6318, 109272, 1286, 1068, 8, false}, // NAD83(2011) / Nevada Central (ftUS)
    {6520, 6318, 109286, 1049, 1069, 4, false}, // NAD83(2011) / Nevada East
    {6521, 6318, 109295, 1285, 1069, 8, false}, // NAD83(2011) / Nevada East (ftUS)
    {6522, 6318, 109308, 1051, 1070, 4, false}, // NAD83(2011) / Nevada West
    {6523, 6318, 109317, 1287, 1070, 8, false}, // NAD83(2011) / Nevada West (ftUS)
    {6524, 6318, 109330, 1053, 255, 4, false}, // NAD83(2011) / New Hampshire
    {6525, 6318, 109340, 1293, 255, 8, false}, // NAD83(2011) / New Hampshire (ftUS)
    {6526, 6318, 109355, 1055, 256, 4, false}, // NAD83(2011) / New Jersey
    {6527, 6318, 109363, 1288, 256, 8, false}, // NAD83(2011) / New Jersey (ftUS)
    {6528, 6318, 109376, 1060, 1076, 4, false}, // NAD83(2011) / New Mexico Central
    {6529, 6318, 109388, 1244, 1076, 8, false}, // NAD83(2011) / New Mexico Central (ftUS)
    {6530, 6318, 109405, 1059, 1073, 4, false}, // NAD83(2011) / New Mexico East
    {6531, 6318, 109417, 1243, 1073, 8, false}, // NAD83(2011) / New Mexico East (ftUS)
    {6532, 6318, 109433, 1061, 1077, 4, false}, // NAD83(2011) / New Mexico West
    {6533, 6318, 109445, 1245, 1077, 8, false}, // NAD83(2011) / New Mexico West (ftUS)
    {6534, 6318, 109461, 1067, 1078, 4, false}, // NAD83(2011) / New York Central
    {6535, 6318, 109472, 1247, 1078, 8, false}, // NAD83(2011) / New York Central (ftUS)
    {6536, 6318, 109487, 1066, 1079, 4, false}, // NAD83(2011) / New York East
    {6537, 6318, 109498, 1246, 1079, 8, false}, // NAD83(2011) / New York East (ftUS)
    {6538, 6318, 109513, 1069, 1080, 4, false}, // NAD83(2011) / New York Long Island
    {6539, 6318, 109526, 1249, 1080, 8, false}, // NAD83(2011) / New York Long Island (ftUS)
    {6540, 6318, 109545, 1068, 1081, 4, false}, // NAD83(2011) / New York West
    {6541, 6318, 109556, 1248, 1081, 8, false}, // NAD83(2011) / New York West (ftUS)
    {6542, 6318, 109571, 1071, 259, 4, false}, // NAD83(2011) / North Carolina
    {6543, 6318, 109579, 1250, 259, 8, false}, // NAD83(2011) / North Carolina (ftUS)
    {6544, 6318, 109592, 1074, 1082, 4, false}, // NAD83(2011) / North Dakota North
    {6545, 6318, 109601, 1251, 1082, 6, false}, // NAD83(2011) / North Dakota North (ft)
    {6546, 6318, 109614, 1075, 1083, 4, false}, // NAD83(2011) / North Dakota South
    {6547, 6318, 109624, 1252, 1083, 6, false}, // NAD83(2011) / North Dakota South (ft)
    {6548, 6318, 109637, 1078, 1084, 4, false}, // NAD83(2011) / Ohio North
    {6549, 6318, 109644, 1080, 1084, 8, false}, // NAD83(2011) / Ohio North (ftUS)
    {6550, 6318, 109656, 1079, 1085, 4, false}, // NAD83(2011) / Ohio South
    {6551, 6318, 109664, 1081, 1085, 8, false}, // NAD83(2011) / Ohio South (ftUS)
    {6552, 6318, 109676, 1084, 1086, 4, false}, // NAD83(2011) / Oklahoma North
    {6553, 6318, 109685, 1253, 1086, 8, false}, // NAD83(2011) / Oklahoma North (ftUS)
    {6554, 6318, 109699, 1085, 1087, 4, false}, // NAD83(2011) / Oklahoma South
    {6555, 6318, 109709, 1254, 1087, 8, false}, // NAD83(2011) / Oklahoma South (ftUS)
    {6556, 6318, 110476, 1090, 263, 4, false}, // NAD83(2011) / Oregon LCC (m)
    {6557, 6318, 110343, 1278, 263, 6, false}, // NAD83(2011) / Oregon GIC Lambert (ft)
    {6558, 6318, 110592, 1088, 1088, 4, false}, // NAD83(2011) / Oregon North
    {6559, 6318, 110597, 1255, 1088, 6, false}, // NAD83(2011) / Oregon North (ft)
    {6560, 6318, 111044, 1089, 1089, 4, false}, // NAD83(2011) / Oregon South
    {6561, 6318, 111050, 1256, 1089, 6, false}, // NAD83(2011) / Oregon South (ft)
    {6562, 6318, 111242, 1093, 1090, 4, false}, // NAD83(2011) / Pennsylvania North
    {6563, 6318, 111254, 1257, 1090, 8, false}, // NAD83(2011) / Pennsylvania North (ftUS)
    {6564, 6318, 111271, 1094, 1091, 4, false}, // NAD83(2011) / Pennsylvania South
    {6565, 6318, 111284, 1258, 1091, 8, false}, // NAD83(2011) / Pennsylvania South (ftUS)
    {6566, 6318, 111301, 1200, 2063, 4, false}, // NAD83(2011) / Puerto Rico and Virgin Is.
    {6567, 6318, 111723, 1096, 265, 4, false}, // NAD83(2011) / Rhode Island
    {6568, 6318, 111731, 1294, 265, 8, false}, // NAD83(2011) / Rhode Island (ftUS)
    {6569, 6318, 111781, 1099, 266, 4, false}, // NAD83(2011) / South Carolina
    {6570, 6318, 111789, 1259, 266, 6, false}, // NAD83(2011) / South Carolina (ft)
    {6571, 6318, 111801, 1102, 1094, 4, false}, // NAD83(2011) / South Dakota North
    {6572, 6318, 111810, 1298, 1094, 8, false}, // NAD83(2011) / South Dakota North (ftUS)
    {6573, 6318, 111824, 1103, 1095, 4, false}, // NAD83(2011) / South Dakota South
    {6574, 6318, 111834, 1299, 1095, 8, false}, // NAD83(2011) / South Dakota South (ftUS)
    {6575, 6318, 111848, 1105, 268, 4, false}, // NAD83(2011) / Tennessee
    {6576, 6318, 111857, 1260, 268, 8, false}, // NAD83(2011) / Tennessee (ftUS)
    {6577, 6318, 111871, 1113, 1097, 4, false}, // NAD83(2011) / Texas Central
    {6578, 6318, 111881, 1263, 1097, 8, false}, // NAD83(2011) / Texas Central (ftUS)
    {6579, 6318, 111895, 1119, 269, 4, false}, // NAD83(2011) / Texas Centric Albers Equal Area
    {6580, 6318, 111917, 1118, 269, 4, false}, // NAD83(2011) / Texas Centric Lambert Conformal
    {6581, 6318, 111938, 1111, 1098, 4, false}, // NAD83(2011) / Texas North
    {6582, 6318, 111946, 1261, 1098, 8, false}, // NAD83(2011) / Texas North (ftUS)
    {6583, 6318, 111959, 1112, 1099, 4, false}, // NAD83(2011) / Texas North Central
    {6584, 6318, 111970, 1262, 1099, 8, false}, // NAD83(2011) / Texas North Central (ftUS)
    {6585, 6318, 111986, 1115, 1250, 4, false}, // NAD83(2011) / Texas South
    {6586, 6318, 111994, 1265, 1250, 8, false}, // NAD83(2011) / Texas South (ftUS)
    {6587, 6318, 112007, 1114, 1249, 4, false}, // NAD83(2011) / Texas South Central
    {6588, 6318, 112018, 1264, 1249, 8, false}, // NAD83(2011) / Texas South Central (ftUS)
    {6589, 6318, 112252, 1127, 271, 4, false}, // NAD83(2011) / Vermont
    {6590, 6318, 112259, 195, 271, 8, false}, // NAD83(2011) / Vermont (ftUS)
    {6591, 6318, 112272, 23, 272, 4, false}, // NAD83(2011) / Virginia Lambert
    {6592, 6318, 112284, 1130, 1105, 4, false}, // NAD83(2011) / Virginia North
    {6593, 6318, 112292, 1269, 1105, 8, false}, // NAD83(2011) / Virginia North (ftUS)
    {6594, 6318, 112305, 1131, 1106, 4, false}, // NAD83(2011) / Virginia South
    {6595, 6318, 112314, 1270, 1106, 8, false}, // NAD83(2011) / Virginia South (ftUS)
    {6596, 6318, 114483, 1134, 1118, 4, false}, // NAD83(2011) / Washington North
    {6597, 6318, 114493, 1271, 1118, 8, false}, // NAD83(2011) / Washington North (ftUS)
    {6598, 6318, 114508, 1135, 1119, 4, false}, // NAD83(2011) / Washington South
    {6599, 6318, 114519, 1272, 1119, 8, false}, // NAD83(2011) / Washington South (ftUS)
    {6600, 6318, 114535, 1138, 1109, 4, false}, // NAD83(2011) / West Virginia North
    {6601, 6318, 114545, 1142, 1109, 8, false}, // NAD83(2011) / West Virginia North (ftUS)
    {6602, 6318, 114560, 1139, 1110, 4, false}, // NAD83(2011) / West Virginia South
    {6603, 6318, 114571, 1143, 1110, 8, false}, // NAD83(2011) / West Virginia South (ftUS)
    {6604, 4759, 114586, 1149, 1111, 4, true}, // NAD83(2011) / Wisconsin Central
    {6605, 6318, 114598, 1274, 1111, 8, false}, // NAD83(2011) / Wisconsin Central (ftUS)
    {6606, 6318, 114614, 1148, 1112, 4, false}, // NAD83(2011) / Wisconsin North
    {6607, 6318, 114624, 1273, 1112, 8, false}, // NAD83(2011) / Wisconsin North (ftUS)
    {6608, 6318, 114639, 1150, 1113, 4, false}, // NAD83(2011) / Wisconsin South
    {6609, 6318, 114649, 1275, 1113, 8, false}, // NAD83(2011) / Wisconsin South (ftUS)
    {6610, 6318, 114664, 1151, 274, 4, false}, // NAD83(2011) / Wisconsin Transverse Mercator
    {6611, 6318, 114685, 1157, 1114, 4, false}, // NAD83(2011) / Wyoming East
    {6612, 6318, 114696, 1161, 1114, 8, false}, // NAD83(2011) / Wyoming East (ftUS)
    {6613, 6318, 114711, 1158, 1115, 4, false}, // NAD83(2011) / Wyoming East Central
    {6614, 6318, 114724, 1162, 1115, 8, false}, // NAD83(2011) / Wyoming East Central (ftUS)
    {6615, 6318, 114742, 1160, 1116, 4, false}, // NAD83(2011) / Wyoming West
    {6616, 6318, 114753, 1164, 1116, 8, false}, // NAD83(2011) / Wyoming West (ftUS)
    {6617, 6318, 114768, 1159, 1117, 4, false}, // NAD83(2011) / Wyoming West Central
    {6618, 6318, 114781, 1163, 1117, 8, false}, // NAD83(2011) / Wyoming West Central (ftUS)
    {6619, 6318, 112192, 1124, 1102, 4, false}, // NAD83(2011) / Utah Central
    {6620, 6318, 112214, 1123, 1103, 4, false}, // NAD83(2011) / Utah North
    {6621, 6318, 112233, 1125, 1104, 4, false}, // NAD83(2011) / Utah South
    {6622, 4617, 116641, 2333, 228, 4, false}, // NAD83(CSRS) / Quebec Lambert
    {6623, 4269, 103816, 349, 228, 4, false}, // NAD83 / Quebec Albers
    {6624, 4617, 116625, 349, 228, 4, false}, // NAD83(CSRS) / Quebec Albers
    {6625, 6318, 112201, 1202, 1102, 8, false}, // NAD83(2011) / Utah Central (ftUS)
    {6626, 6318, 112221, 1201, 1103, 8, false}, // NAD83(2011) / Utah North (ftUS)
    {6627, 6318, 112240, 1203, 1104, 8, false}, // NAD83(2011) / Utah South (ftUS)
    {6628, 6322, 128997, 1192, 400, 4, false}, // NAD83(PA11) / Hawaii zone 1
    {6629, 6322, 129011, 1193, 401, 4, false}, // NAD83(PA11) / Hawaii zone 2
    {6630, 6322, 129025, 1194, 402, 4, false}, // NAD83(PA11) / Hawaii zone 3
    {6631, 6322, 129059, 1195, 403, 4, false}, // NAD83(PA11) / Hawaii zone 4
    {6632, 6322, 129073, 1196, 404, 4, false}, // NAD83(PA11) / Hawaii zone 5
    {6633, 6322, 129039, 1197, 402, 8, false}, // NAD83(PA11) / Hawaii zone 3 (ftUS)
    {6634, 6322, 129098, 1313, 1925, 4, false}, // NAD83(PA11) / UTM zone 4N
    {6635, 6322, 129109, 1314, 1927, 4, false}, // NAD83(PA11) / UTM zone 5N
    {6636, 6322, 129087, 1400, 1635, 4, false}, // NAD83(PA11) / UTM zone 2S
    {6637, 6325, 124490, 63, 1743, 4, false}, // NAD83(MA11) / Guam Map Grid
    {6646, 4743, 80748, 2300, 2054, 4, false}, // Karbala 1979 / Iraq National Grid
    {6668, 1128, 76809, geographic, 66, 25, false}, // JGD2011
    {6669, 6668, 76826, 1947, 699, 5, false}, // JGD2011 / Japan Plane Rectangular CS I
    {6670, 6668, 76853, 1948, 700, 5, false}, // JGD2011 / Japan Plane Rectangular CS II
    {6671, 6668, 76881, 1949, 701, 5, false}, // JGD2011 / Japan Plane Rectangular CS III
    {6672, 6668, 76910, 1950, 702, 5, false}, // JGD2011 / Japan Plane Rectangular CS IV
    {6673, 6668, 76966, 1951, 703, 5, false}, // JGD2011 / Japan Plane Rectangular CS V
    {6674, 6668, 76993, 1952, 704, 5, false}, // JGD2011 / Japan Plane Rectangular CS VI
    {6675, 6668, 77021, 1953, 705, 5, false}, // JGD2011 / Japan Plane Rectangular CS VII
    {6676, 6668, 77050, 1954, 706, 5, false}, // JGD2011 / Japan Plane Rectangular CS VIII
    {6677, 6668, 76938, 1955, 707, 5, false}, // JGD2011 / Japan Plane Rectangular CS IX
    {6678, 6668, 77080, 1956, 708, 5, false}, // JGD2011 / Japan Plane Rectangular CS X
    {6679, 6668, 77107, 1957, 709, 5, false}, // JGD2011 / Japan Plane Rectangular CS XI
    {6680, 6668, 77135, 1958, 710, 5, false}, // JGD2011 / Japan Plane Rectangular CS XII
    {6681, 6668, 77164, 1959, 711, 5, false}, // JGD2011 / Japan Plane Rectangular CS XIII
    {6682, 6668, 77194, 1960, 712, 5, false}, // JGD2011 / Japan Plane Rectangular CS XIV
    {6683, 6668, 77252, 1961, 713, 5, false}, // JGD2011 / Japan Plane Rectangular CS XV
    {6684, 6668, 77280, 1962, 714, 5, false}, // JGD2011 / Japan Plane Rectangular CS XVI
    {6685, 6668, 77309, 1963, 715, 5, false}, // JGD2011 / Japan Plane Rectangular CS XVII
    {6686, 6668, 77339, 1964, 716, 5, false}, // JGD2011 / Japan Plane Rectangular CS XVIII
    {6687, 6668, 77223, 1965, 717, 5, false}, // JGD2011 / Japan Plane Rectangular CS XIX
    {6688, 6668, 77370, 1360, 2304, 4, false}, // JGD2011 / UTM zone 51N
    {6689, 6668, 77382, 1361, 2305, 4, false}, // JGD2011 / UTM zone 52N
    {6690, 6668, 77394, 1362, 2306, 4, false}, // JGD2011 / UTM zone 53N
    {6691, 6668, 77406, 1363, 2307, 4, false}, // JGD2011 / UTM zone 54N
    {6692, 6668, 77418, 1364, 2308, 4, false}, // JGD2011 / UTM zone 55N
    {6703, 4326, 218039, 350, 2490, 4, false}, // WGS 84 / TM 60 SW
    {6706, 1132, 167829, geographic, 1803, 25, false}, // RDN2008
    {6707, 6706, 167880, 1341, 569, 5, false}, // RDN2008 / UTM zone 32N (N-E)
    {6708, 6706, 167911, 1342, 2503, 5, false}, // RDN2008 / UTM zone 33N (N-E)
    {6709, 6706, 167942, 1343, 2504, 5, false}, // RDN2008 / UTM zone 34N (N-E)
    {6720, 4326, 213994, 351, 2488, 4, false}, // WGS 84 / CIG92
    {6721, 4283, 55176, 352, 2488, 4, false}, // GDA94 / CIG94
    {6722, 4326, 214007, 353, 28, 4, false}, // WGS 84 / CKIG92
    {6723, 4283, 55188, 354, 28, 4, false}, // GDA94 / CKIG94
    {6732, 4283, 55227, 355, 2491, 4, true}, // GDA94 / MGA zone 41
    {6733, 4283, 55240, 356, 2498, 4, true}, // GDA94 / MGA zone 42
    {6734, 4283, 55253, 357, 2501, 4, true}, // GDA94 / MGA zone 43
    {6735, 4283, 55266, 358, 2502, 4, true}, // GDA94 / MGA zone 44
    {6736, 4283, 55279, 359, 2505, 4, false}, // GDA94 / MGA zone 46
    {6737, 4283, 55292, 360, 2506, 4, false}, // GDA94 / MGA zone 47
    {6738, 4283, 55448, 361, 2496, 4, false}, // GDA94 / MGA zone 59
    {6783, 1133, 114799, geographic, 365, 25, false}, // NAD83(CORS96)
    {6784, 6783, 114826, 362, 2497, 4, false}, // NAD83(CORS96) / Oregon Baker zone (m)
    {6785, 6783, 114807, 363, 2497, 6, false}, // NAD83(CORS96) / Oregon Baker zone (ft)
    {6786, 6318, 109736, 362, 2497, 4, false}, // NAD83(2011) / Oregon Baker zone (m)
    {6787, 6318, 109723, 363, 2497, 6, false}, // NAD83(2011) / Oregon Baker zone (ft)
    {6788, 6783, 114917, 364, 2508, 4, false}, // NAD83(CORS96) / Oregon Bend-Klamath Falls zone (m)
    {6789, 6783, 114889, 365, 2508, 6, false}, // NAD83(CORS96) / Oregon Bend-Klamath Falls zone (ft)
    {6790, 6318, 109803, 364, 2508, 4, false}, // NAD83(2011) / Oregon Bend-Klamath Falls zone (m)
    {6791, 6318, 109781, 365, 2508, 6, false}, // NAD83(2011) / Oregon Bend-Klamath Falls zone (ft)
    {6792, 6783, 114976, 366, 2511, 4, false}, // NAD83(CORS96) / Oregon Bend-Redmond-Prineville zone (m)
    {6793, 6783, 114944, 367, 2511, 6, false}, // NAD83(CORS96) / Oregon Bend-Redmond-Prineville zone (ft)
    {6794, 6318, 109850, 366, 2511, 4, false}, // NAD83(2011) / Oregon Bend-Redmond-Prineville zone (m)
    {6795, 6318, 109824, 367, 2511, 6, false}, // NAD83(2011) / Oregon Bend-Redmond-Prineville zone (ft)
    {6796, 6783, 114867, 368, 2499, 4, false}, // NAD83(CORS96) / Oregon Bend-Burns zone (m)
    {6797, 6783, 114844, 369, 2499, 6, false}, // NAD83(CORS96) / Oregon Bend-Burns zone (ft)
    {6798, 6318, 109765, 368, 2499, 4, false}, // NAD83(2011) / Oregon Bend-Burns zone (m)
    {6799, 6318, 109748, 369, 2499, 6, false}, // NAD83(2011) / Oregon Bend-Burns zone (ft)
    {6800, 6783, 115041, 370, 2515, 4, false}, // NAD83(CORS96) / Oregon Canyonville-Grants Pass zone (m)
    {6801, 6783, 115008, 371, 2515, 6, false}, // NAD83(CORS96) / Oregon Canyonville-Grants Pass zone (ft)
    {6802, 6318, 109979, 370, 2515, 4, false}, // NAD83(2011) / Oregon Canyonville-Grants Pass zone (m)
    {6803, 6318, 109952, 371, 2515, 6, false}, // NAD83(2011) / Oregon Canyonville-Grants Pass zone (ft)
    {6804, 6783, 115134, 372, 2516, 4, false}, // NAD83(CORS96) / Oregon Columbia River East zone (m)
    {6805, 6783, 115107, 373, 2516, 6, false}, // NAD83(CORS96) / Oregon Columbia River East zone (ft)
    {6806, 6318, 110080, 372, 2516, 4, false}, // NAD83(2011) / Oregon Columbia River East zone (m)
    {6807, 6318, 110059, 373, 2516, 6, false}, // NAD83(2011) / Oregon Columbia River East zone (ft)
    {6808, 6783, 115188, 374, 2518, 4, false}, // NAD83(CORS96) / Oregon Columbia River West zone (m)
    {6809, 6783, 115161, 375, 2518, 6, false}, // NAD83(CORS96) / Oregon Columbia River West zone (ft)
    {6810, 6318, 110122, 374, 2518, 4, false}, // NAD83(2011) / Oregon Columbia River West zone (m)
    {6811, 6318, 110101, 375, 2518, 6, false}, // NAD83(2011) / Oregon Columbia River West zone (ft)
    {6812, 6783, 115249, 376, 2519, 4, false}, // NAD83(CORS96) / Oregon Cottage Grove-Canyonville zone (m)
    {6813, 6783, 115215, 377, 2519, 6, false}, // NAD83(CORS96) / Oregon Cottage Grove-Canyonville zone (ft)
    {6814, 6318, 110171, 376, 2519, 4, false}, // NAD83(2011) / Oregon Cottage Grove-Canyonville zone (m)
    {6815, 6318, 110143, 377, 2519, 6, false}, // NAD83(2011) / Oregon Cottage Grove-Canyonville zone (ft)
    {6816, 6783, 115307, 378, 2520, 4, false}, // NAD83(CORS96) / Oregon Dufur-Madras zone (m)
    {6817, 6783, 115283, 379, 2520, 6, false}, // NAD83(CORS96) / Oregon Dufur-Madras zone (ft)
    {6818, 6318, 110300, 378, 2520, 4, false}, // NAD83(2011) / Oregon Dufur-Madras zone (m)
    {6819, 6318, 110282, 379, 2520, 6, false}, // NAD83(2011) / Oregon Dufur-Madras zone (ft)
    {6820, 6783, 115349, 380, 2513, 4, false}, // NAD83(CORS96) / Oregon Eugene zone (m)
    {6821, 6783, 115330, 381, 2513, 6, false}, // NAD83(CORS96) / Oregon Eugene zone (ft)
    {6822, 6318, 110330, 380, 2513, 4, false}, // NAD83(2011) / Oregon Eugene zone (m)
    {6823, 6318, 110317, 381, 2513, 6, false}, // NAD83(2011) / Oregon Eugene zone (ft)
    {6824, 6783, 115419, 382, 2514, 4, false}, // NAD83(CORS96) / Oregon Grants Pass-Ashland zone (m)
    {6825, 6783, 115391, 383, 2514, 6, false}, // NAD83(CORS96) / Oregon Grants Pass-Ashland zone (ft)
    {6826, 6318, 110382, 382, 2514, 4, false}, // NAD83(2011) / Oregon Grants Pass-Ashland zone (m)
    {6827, 6318, 110360, 383, 2514, 6, false}, // NAD83(2011) / Oregon Grants Pass-Ashland zone (ft)
    {6828, 6783, 115475, 384, 2517, 4, false}, // NAD83(CORS96) / Oregon Gresham-Warm Springs zone (m)
    {6829, 6783, 115446, 385, 2517, 6, false}, // NAD83(CORS96) / Oregon Gresham-Warm Springs zone (ft)
    {6830, 6318, 110426, 384, 2517, 4, false}, // NAD83(2011) / Oregon Gresham-Warm Springs zone (m)
    {6831, 6318, 110403, 385, 2517, 6, false}, // NAD83(2011) / Oregon Gresham-Warm Springs zone (ft)
    {6832, 6783, 115540, 386, 2521, 4, false}, // NAD83(CORS96) / Oregon La Grande zone (m)
    {6833, 6783, 115520, 387, 2521, 6, false}, // NAD83(CORS96) / Oregon La Grande zone (ft)
    {6834, 6318, 110501, 386, 2521, 4, false}, // NAD83(2011) / Oregon La Grande zone (m)
    {6835, 6318, 110487, 387, 2521, 6, false}, // NAD83(2011) / Oregon La Grande zone (ft)
    {6836, 6783, 115605, 388, 2522, 4, false}, // NAD83(CORS96) / Oregon Ontario zone (m)
    {6837, 6783, 115586, 389, 2522, 6, false}, // NAD83(CORS96) / Oregon Ontario zone (ft)
    {6838, 6318, 110682, 388, 2522, 4, false}, // NAD83(2011) / Oregon Ontario zone (m)
    {6839, 6318, 110669, 389, 2522, 6, false}, // NAD83(2011) / Oregon Ontario zone (ft)
    {6840, 6783, 115090, 390, 2523, 4, false}, // NAD83(CORS96) / Oregon Coast zone (m)
    {6841, 6783, 115073, 391, 2523, 6, false}, // NAD83(CORS96) / Oregon Coast zone (ft)
    {6842, 6318, 110048, 390, 2523, 4, false}, // NAD83(2011) / Oregon Coast zone (m)
    {6843, 6318, 110037, 391, 2523, 6, false}, // NAD83(2011) / Oregon Coast zone (ft)
    {6844, 6783, 115644, 392, 2524, 4, false}, // NAD83(CORS96) / Oregon Pendleton zone (m)
    {6845, 6783, 115624, 393, 2524, 6, false}, // NAD83(CORS96) / Oregon Pendleton zone (ft)
    {6846, 6318, 110737, 392, 2524, 4, false}, // NAD83(2011) / Oregon Pendleton zone (m)
    {6847, 6318, 110723, 393, 2524, 6, false}, // NAD83(2011) / Oregon Pendleton zone (ft)
    {6848, 6783, 115691, 394, 2525, 4, false}, // NAD83(CORS96) / Oregon Pendleton-La Grande zone (m)
    {6849, 6783, 115664, 395, 2525, 6, false}, // NAD83(CORS96) / Oregon Pendleton-La Grande zone (ft)
    {6850, 6318, 110772, 394, 2525, 4, false}, // NAD83(2011) / Oregon Pendleton-La Grande zone (m)
    {6851, 6318, 110751, 395, 2525, 6, false}, // NAD83(2011) / Oregon Pendleton-La Grande zone (ft)
    {6852, 6783, 115737, 396, 2526, 4, false}, // NAD83(CORS96) / Oregon Portland zone (m)
    {6853, 6783, 115718, 397, 2526, 6, false}, // NAD83(CORS96) / Oregon Portland zone (ft)
    {6854, 6318, 110849, 396, 2526, 4, false}, // NAD83(2011) / Oregon Portland zone (m)
    {6855, 6318, 110836, 397, 2526, 6, false}, // NAD83(2011) / Oregon Portland zone (ft)
    {6856, 6783, 115773, 398, 2527, 4, false}, // NAD83(CORS96) / Oregon Salem zone (m)
    {6857, 6783, 115755, 399, 2527, 6, false}, // NAD83(CORS96) / Oregon Salem zone (ft)
    {6858, 6318, 110961, 398, 2527, 4, false}, // NAD83(2011) / Oregon Salem zone (m)
    {6859, 6318, 110949, 399, 2527, 6, false}, // NAD83(2011) / Oregon Salem zone (ft)
    {6860, 6783, 115814, 400, 2528, 4, false}, // NAD83(CORS96) / Oregon Santiam Pass zone (m)
    {6861, 6783, 115790, 401, 2528, 6, false}, // NAD83(CORS96) / Oregon Santiam Pass zone (ft)
    {6862, 6318, 110990, 400, 2528, 4, false}, // NAD83(2011) / Oregon Santiam Pass zone (m)
    {6863, 6318, 110972, 401, 2528, 6, false}, // NAD83(2011) / Oregon Santiam Pass zone (ft)
    {6867, 6783, 115503, 1090, 263, 4, false}, // NAD83(CORS96) / Oregon LCC (m)
    {6868, 6783, 115368, 1278, 263, 6, false}, // NAD83(CORS96) / Oregon GIC Lambert (ft)
    {6870, 4258, 44583, 402, 1713, 5, false}, // ETRS89 / Albania TM 2010
    {6875, 6706, 167851, 403, 64, 5, false}, // RDN2008 / Italy zone (N-E)
    {6876, 6706, 167977, 404, 64, 5, false}, // RDN2008 / Zone 12 (N-E)
    {6879, 6318, 114586, 1149, 1111, 4, false}, // NAD83(2011) / Wisconsin Central
    {6880, 6318, 109250, 1300, 253, 8, false}, // NAD83(2011) / Nebraska (ftUS)
    {6881, 1135, 4830, geographic, 202, 25, false}, // Aden 1925
    {6882, 1137, 22522, geographic, 1752, 25, false}, // Bekaa Valley 1920
    {6883, 1136, 47514, geographic, 2535, 25, false}, // Bioko
    {6884, 6783, 115560, 1088, 1088, 4, false}, // NAD83(CORS96) / Oregon North
    {6885, 6783, 115571, 1255, 1088, 6, false}, // NAD83(CORS96) / Oregon North (ft)
    {6886, 6783, 115837, 1089, 1089, 4, false}, // NAD83(CORS96) / Oregon South
    {6887, 6783, 115849, 1256, 1089, 6, false}, // NAD83(CORS96) / Oregon South (ft)
    {6892, 1138, 188421, geographic, 2500, 25, false}, // South East Island 1943
    {6894, 1139, 63316, geographic, 1740, 25, false}, // Gambia
    {6915, 6892, 188429, 1349, 2500, 4, false}, // South East Island 1943 / UTM zone 40N
    {6922, 4269, 102258, 405, 243, 4, false}, // NAD83 / Kansas LCC
    {6923, 4269, 102268, 406, 243, 8, false}, // NAD83 / Kansas LCC (ftUS)
    {6924, 6318, 108478, 405, 243, 4, false}, // NAD83(2011) / Kansas LCC
    {6925, 6318, 108488, 406, 243, 8, false}, // NAD83(2011) / Kansas LCC (ftUS)
    {6931, 4326, 215620, 408, 1919, 4, false}, // WGS 84 / NSIDC EASE-Grid 2.0 North
    {6932, 4326, 215647, 409, 1918, 4, false}, // WGS 84 / NSIDC EASE-Grid 2.0 South
    {6933, 4326, 215589, 407, 1910, 4, false}, // WGS 84 / NSIDC EASE-Grid 2.0 Global
    {6956, 4756, 207796, 410, 2509, 4, true}, // VN-2000 / TM-3 zone 481
    {6957, 4756, 207810, 411, 2530, 4, true}, // VN-2000 / TM-3 zone 482
    {6958, 4756, 207824, 412, 2532, 4, true}, // VN-2000 / TM-3 zone 491
    {6959, 4756, 207777, 413, 2533, 4, true}, // VN-2000 / TM-3 Da Nang zone
    {6962, 4258, 44564, 414, 1713, 5, false}, // ETRS89 / Albania LCC 2010
    {6966, 4267, 98897, 415, 573, 8, false}, // NAD27 / Michigan North
    {6980, 1143, 69392, geographic, 63, 25, true}, // IGD05
    {6983, 1142, 69404, geographic, 1288, 25, false}, // IG05 Intermediate CRS
    {6984, 6983, 75472, 2144, 1288, 4, false}, // Israeli Grid 05
    {6987, 1145, 69426, geographic, 63, 25, true}, // IGD05/12
    {6990, 1144, 69455, geographic, 1288, 25, false}, // IG05/12 Intermediate CRS
    {6991, 6990, 75484, 2144, 1288, 4, false}, // Israeli Grid 05/12
    {6996, 6318, 111745, 416, 2543, 4, true}, // NAD83(2011) / San Francisco CS13
    {6997, 6318, 111760, 417, 2543, 8, true}, // NAD83(2011) / San Francisco CS13 (ftUS)
    {7005, 4744, 132693, 1346, 1836, 4, false}, // Nahrwan 1934 / UTM zone 37N
    {7006, 4744, 132709, 1347, 1837, 4, false}, // Nahrwan 1934 / UTM zone 38N
    {7007, 4744, 132725, 1348, 2301, 4, false}, // Nahrwan 1934 / UTM zone 39N
    {7035, 1038, 170162, geographic, 117, 24, false}, // RGSPM06 (lon-lat)
    {7037, 6627, 169709, geographic, 2269, 24, false}, // RGR92 (lon-lat)
    {7039, 1036, 169260, geographic, 87, 24, false}, // RGM04 (lon-lat)
    {7041, 6624, 169127, geographic, 48, 24, false}, // RGFG95 (lon-lat)
    {7057, 6318, 105776, 418, 2486, 8, false}, // NAD83(2011) / IaRCS zone 1
    {7058, 6318, 105829, 419, 2534, 8, false}, // NAD83(2011) / IaRCS zone 2
    {7059, 6318, 105837, 420, 2545, 8, false}, // NAD83(2011) / IaRCS zone 3
    {7060, 6318, 105845, 421, 2548, 8, false}, // NAD83(2011) / IaRCS zone 4
    {7061, 6318, 105853, 422, 2549, 8, false}, // NAD83(2011) / IaRCS zone 5
    {7062, 6318, 105861, 423, 2550, 8, false}, // NAD83(2011) / IaRCS zone 6
    {7063, 6318, 105869, 424, 2551, 8, false}, // NAD83(2011) / IaRCS zone 7
    {7064, 6318, 105877, 425, 2552, 8, false}, // NAD83(2011) / IaRCS zone 8
    {7065, 6318, 105885, 426, 2554, 8, false}, // NAD83(2011) / IaRCS zone 9
    {7066, 6318, 105784, 427, 2555, 8, false}, // NAD83(2011) / IaRCS zone 10
    {7067, 6318, 105793, 428, 2556, 8, false}, // NAD83(2011) / IaRCS zone 11
    {7068, 6318, 105802, 429, 2557, 8, false}, // NAD83(2011) / IaRCS zone 12
    {7069, 6318, 105811, 430, 2558, 8, false}, // NAD83(2011) / IaRCS zone 13
    {7070, 6318, 105820, 431, 2559, 8, false}, // NAD83(2011) / IaRCS zone 14
    {7073, 1113, 170231, geographic, 2561, 25, false}, // RGTAAF07
    {7074, 7073, 170303, 1435, 2284, 4, false}, // RGTAAF07 / UTM zone 37S
    {7075, 7073, 170319, 1436, 2560, 4, false}, // RGTAAF07 / UTM zone 38S
    {7076, 7073, 170335, 1437, 2562, 4, false}, // RGTAAF07 / UTM zone 39S
    {7077, 7073, 170351, 1438, 2563, 4, false}, // RGTAAF07 / UTM zone 40S
    {7078, 7073, 170367, 1439, 2564, 4, false}, // RGTAAF07 / UTM zone 41S
    {7079, 7073, 170383, 1440, 2565, 4, false}, // RGTAAF07 / UTM zone 42S
    {7080, 7073, 170399, 1441, 2566, 4, false}, // RGTAAF07 / UTM zone 43S
    {7081, 7073, 170415, 1442, 2567, 4, false}, // RGTAAF07 / UTM zone 44S
    {7082, 7073, 170272, 2369, 1422, 4, true}, // RGTAAF07 / Terre Adelie Polar Stereographic
    {7084, 6171, 168540, geographic, 47, 24, false}, // RGF93 v1 (lon-lat)
    {7086, 1073, 168435, geographic, 1428, 24, false}, // RGAF09 (lon-lat)
    {7088, 1113, 170256, geographic, 2561, 24, true}, // RGTAAF07 (lon-lat)
    {7109, 6318, 111665, 432, 2625, 4, false}, // NAD83(2011) / RMTCRS St Mary (m)
    {7110, 6318, 111374, 434, 2626, 4, false}, // NAD83(2011) / RMTCRS Blackfeet (m)
    {7111, 6318, 111628, 436, 2627, 4, false}, // NAD83(2011) / RMTCRS Milk River (m)
    {7112, 6318, 111479, 438, 2628, 4, false}, // NAD83(2011) / RMTCRS Fort Belknap (m)
    {7113, 6318, 111531, 440, 2629, 4, false}, // NAD83(2011) / RMTCRS Fort Peck Assiniboine (m)
    {7114, 6318, 111584, 442, 2630, 4, false}, // NAD83(2011) / RMTCRS Fort Peck Sioux (m)
    {7115, 6318, 111442, 444, 2631, 4, false}, // NAD83(2011) / RMTCRS Crow (m)
    {7116, 6318, 111410, 446, 2632, 4, false}, // NAD83(2011) / RMTCRS Bobcat (m)
    {7117, 6318, 111337, 448, 2633, 4, false}, // NAD83(2011) / RMTCRS Billings (m)
    {7118, 6318, 111703, 450, 2634, 4, false}, // NAD83(2011) / RMTCRS Wind River (m)
    {7119, 6318, 111648, 433, 2625, 6, false}, // NAD83(2011) / RMTCRS St Mary (ft)
    {7120, 6318, 111355, 435, 2626, 6, false}, // NAD83(2011) / RMTCRS Blackfeet (ft)
    {7121, 6318, 111608, 437, 2627, 6, false}, // NAD83(2011) / RMTCRS Milk River (ft)
    {7122, 6318, 111457, 439, 2628, 6, false}, // NAD83(2011) / RMTCRS Fort Belknap (ft)
    {7123, 6318, 111501, 441, 2629, 6, false}, // NAD83(2011) / RMTCRS Fort Peck Assiniboine (ft)
    {7124, 6318, 111560, 443, 2630, 6, false}, // NAD83(2011) / RMTCRS Fort Peck Sioux (ft)
    {7125, 6318, 111427, 445, 2631, 6, false}, // NAD83(2011) / RMTCRS Crow (ft)
    {7126, 6318, 111393, 447, 2632, 6, false}, // NAD83(2011) / RMTCRS Bobcat (ft)
    {7127, 6318, 111319, 449, 2633, 6, false}, // NAD83(2011) / RMTCRS Billings (ft)
    {7128, 6318, 111681, 451, 2634, 8, false}, // NAD83(2011) / RMTCRS Wind River (ftUS)
    {7131, 6318, 111745, 452, 2543, 4, false}, // NAD83(2011) / San Francisco CS13
    {7132, 6318, 111760, 453, 2543, 8, false}, // NAD83(2011) / San Francisco CS13 (ftUS)
    {7133, 1113, 170256, geographic, 2561, 24, false}, // RGTAAF07 (lon-lat)
    {7136, 1114, 69392, geographic, 63, 25, false}, // IGD05
    {7139, 1115, 69426, geographic, 63, 25, false}, // IGD05/12
    {7142, 4281, 148226, 454, 217, 4, false}, // Palestine 1923 / Palestine Grid modified
    {7257, 6318, 106032, 455, 2604, 4, false}, // NAD83(2011) / InGCS Adams (m)
    {7258, 6318, 106016, 456, 2604, 8, false}, // NAD83(2011) / InGCS Adams (ftUS)
    {7259, 6318, 106062, 457, 2600, 4, false}, // NAD83(2011) / InGCS Allen (m)
    {7260, 6318, 106046, 458, 2600, 8, false}, // NAD83(2011) / InGCS Allen (ftUS)
    {7261, 6318, 106095, 459, 2617, 4, false}, // NAD83(2011) / InGCS Bartholomew (m)
    {7262, 6318, 106076, 460, 2617, 8, false}, // NAD83(2011) / InGCS Bartholomew (ftUS)
    {7263, 6318, 106127, 461, 2571, 4, false}, // NAD83(2011) / InGCS Benton (m)
    {7264, 6318, 106112, 462, 2571, 8, false}, // NAD83(2011) / InGCS Benton (ftUS)
    {7265, 6318, 106166, 463, 2606, 4, false}, // NAD83(2011) / InGCS Blackford-Delaware (m)
    {7266, 6318, 106140, 464, 2606, 8, false}, // NAD83(2011) / InGCS Blackford-Delaware (ftUS)
    {7267, 6318, 106214, 465, 2578, 4, false}, // NAD83(2011) / InGCS Boone-Hendricks (m)
    {7268, 6318, 106190, 466, 2578, 8, false}, // NAD83(2011) / InGCS Boone-Hendricks (ftUS)
    {7269, 6318, 106253, 467, 2616, 4, false}, // NAD83(2011) / InGCS Brown (m)
    {7270, 6318, 106236, 468, 2616, 8, false}, // NAD83(2011) / InGCS Brown (ftUS)
    {7271, 6318, 106284, 469, 2573, 4, false}, // NAD83(2011) / InGCS Carroll (m)
    {7272, 6318, 106268, 470, 2573, 8, false}, // NAD83(2011) / InGCS Carroll (ftUS)
    {7273, 6318, 106312, 471, 2601, 4, false}, // NAD83(2011) / InGCS Cass (m)
    {7274, 6318, 106298, 472, 2601, 8, false}, // NAD83(2011) / InGCS Cass (ftUS)
    {7275, 6318, 106350, 473, 2623, 4, false}, // NAD83(2011) / InGCS Clark-Floyd-Scott (m)
    {7276, 6318, 106324, 474, 2623, 8, false}, // NAD83(2011) / InGCS Clark-Floyd-Scott (ftUS)
    {7277, 6318, 106388, 475, 2580, 4, false}, // NAD83(2011) / InGCS Clay (m)
    {7278, 6318, 106374, 476, 2580, 8, false}, // NAD83(2011) / InGCS Clay (ftUS)
    {7279, 6318, 106415, 477, 2575, 4, false}, // NAD83(2011) / InGCS Clinton (m)
    {7280, 6318, 106400, 478, 2575, 8, false}, // NAD83(2011) / InGCS Clinton (ftUS)
    {7281, 6318, 106458, 479, 2587, 4, false}, // NAD83(2011) / InGCS Crawford-Lawrence-Orange (m)
    {7282, 6318, 106428, 480, 2587, 8, false}, // NAD83(2011) / InGCS Crawford-Lawrence-Orange (ftUS)
    {7283, 6318, 106508, 481, 2584, 4, false}, // NAD83(2011) / InGCS Daviess-Greene (m)
    {7284, 6318, 106486, 482, 2584, 8, false}, // NAD83(2011) / InGCS Daviess-Greene (ftUS)
    {7285, 6318, 106590, 483, 2621, 4, false}, // NAD83(2011) / InGCS Dearborn-Ohio-Switzerland (m)
    {7286, 6318, 106560, 484, 2621, 8, false}, // NAD83(2011) / InGCS Dearborn-Ohio-Switzerland (ftUS)
    {7287, 6318, 106639, 485, 2614, 4, false}, // NAD83(2011) / InGCS Decatur-Rush (m)
    {7288, 6318, 106618, 486, 2614, 8, false}, // NAD83(2011) / InGCS Decatur-Rush (ftUS)
    {7289, 6318, 106545, 487, 2598, 4, false}, // NAD83(2011) / InGCS DeKalb (m)
    {7290, 6318, 106528, 488, 2598, 8, false}, // NAD83(2011) / InGCS DeKalb (ftUS)
    {7291, 6318, 106680, 489, 2586, 4, false}, // NAD83(2011) / InGCS Dubois-Martin (m)
    {7292, 6318, 106658, 490, 2586, 8, false}, // NAD83(2011) / InGCS Dubois-Martin (ftUS)
    {7293, 6318, 106733, 491, 2595, 4, false}, // NAD83(2011) / InGCS Elkhart-Kosciusko-Wabash (m)
    {7294, 6318, 106700, 492, 2595, 8, false}, // NAD83(2011) / InGCS Elkhart-Kosciusko-Wabash (ftUS)
    {7295, 6318, 106793, 493, 2615, 4, false}, // NAD83(2011) / InGCS Fayette-Franklin-Union (m)
    {7296, 6318, 106764, 494, 2615, 8, false}, // NAD83(2011) / InGCS Fayette-Franklin-Union (ftUS)
    {7297, 6318, 106842, 495, 2574, 4, false}, // NAD83(2011) / InGCS Fountain-Warren (m)
    {7298, 6318, 106820, 496, 2574, 8, false}, // NAD83(2011) / InGCS Fountain-Warren (ftUS)
    {7299, 6318, 106895, 497, 2594, 4, false}, // NAD83(2011) / InGCS Fulton-Marshall-St. Joseph (m)
    {7300, 6318, 106862, 498, 2594, 8, false}, // NAD83(2011) / InGCS Fulton-Marshall-St. Joseph (ftUS)
    {7301, 6318, 106942, 499, 2588, 4, false}, // NAD83(2011) / InGCS Gibson (m)
    {7302, 6318, 106926, 500, 2588, 8, false}, // NAD83(2011) / InGCS Gibson (ftUS)
    {7303, 6318, 106972, 501, 2605, 4, false}, // NAD83(2011) / InGCS Grant (m)
    {7304, 6318, 106956, 502, 2605, 8, false}, // NAD83(2011) / InGCS Grant (ftUS)
    {7305, 6318, 107008, 503, 2608, 4, false}, // NAD83(2011) / InGCS Hamilton-Tipton (m)
    {7306, 6318, 106986, 504, 2608, 8, false}, // NAD83(2011) / InGCS Hamilton-Tipton (ftUS)
    {7307, 6318, 107050, 505, 2609, 4, false}, // NAD83(2011) / InGCS Hancock-Madison (m)
    {7308, 6318, 107028, 506, 2609, 8, false}, // NAD83(2011) / InGCS Hancock-Madison (ftUS)
    {7309, 6318, 107094, 507, 2622, 4, false}, // NAD83(2011) / InGCS Harrison-Washington (m)
    {7310, 6318, 107070, 508, 2622, 8, false}, // NAD83(2011) / InGCS Harrison-Washington (ftUS)
    {7311, 6318, 107131, 509, 2611, 4, false}, // NAD83(2011) / InGCS Henry (m)
    {7312, 6318, 107116, 510, 2611, 8, false}, // NAD83(2011) / InGCS Henry (ftUS)
    {7313, 6318, 107166, 511, 2602, 4, false}, // NAD83(2011) / InGCS Howard-Miami (m)
    {7314, 6318, 107144, 512, 2602, 8, false}, // NAD83(2011) / InGCS Howard-Miami (ftUS)
    {7315, 6318, 107211, 513, 2599, 4, false}, // NAD83(2011) / InGCS Huntington-Whitley (m)
    {7316, 6318, 107186, 514, 2599, 8, false}, // NAD83(2011) / InGCS Huntington-Whitley (ftUS)
    {7317, 6318, 107251, 515, 2618, 4, false}, // NAD83(2011) / InGCS Jackson (m)
    {7318, 6318, 107234, 516, 2618, 8, false}, // NAD83(2011) / InGCS Jackson (ftUS)
    {7319, 6318, 107287, 517, 2569, 4, false}, // NAD83(2011) / InGCS Jasper-Porter (m)
    {7320, 6318, 107266, 518, 2569, 8, false}, // NAD83(2011) / InGCS Jasper-Porter (ftUS)
    {7321, 6318, 107320, 519, 2607, 4, false}, // NAD83(2011) / InGCS Jay (m)
    {7322, 6318, 107306, 520, 2607, 8, false}, // NAD83(2011) / InGCS Jay (ftUS)
    {7323, 6318, 107349, 521, 2624, 4, false}, // NAD83(2011) / InGCS Jefferson (m)
    {7324, 6318, 107332, 522, 2624, 8, false}, // NAD83(2011) / InGCS Jefferson (ftUS)
    {7325, 6318, 107382, 523, 2619, 4, false}, // NAD83(2011) / InGCS Jennings (m)
    {7326, 6318, 107364, 524, 2619, 8, false}, // NAD83(2011) / InGCS Jennings (ftUS)
    {7327, 6318, 107420, 525, 2612, 4, false}, // NAD83(2011) / InGCS Johnson-Marion (m)
    {7328, 6318, 107398, 526, 2612, 8, false}, // NAD83(2011) / InGCS Johnson-Marion (ftUS)
    {7329, 6318, 107456, 527, 2585, 4, false}, // NAD83(2011) / InGCS Knox (m)
    {7330, 6318, 107440, 528, 2585, 8, false}, // NAD83(2011) / InGCS Knox (ftUS)
    {7331, 6318, 107494, 529, 2596, 4, false}, // NAD83(2011) / InGCS LaGrange-Noble (m)
    {7332, 6318, 107470, 530, 2596, 8, false}, // NAD83(2011) / InGCS LaGrange-Noble (ftUS)
    {7333, 6318, 107593, 531, 2568, 4, false}, // NAD83(2011) / InGCS Lake-Newton (m)
    {7334, 6318, 107574, 532, 2568, 8, false}, // NAD83(2011) / InGCS Lake-Newton (ftUS)
    {7335, 6318, 107546, 533, 2570, 4, false}, // NAD83(2011) / InGCS LaPorte-Pulaski-Starke (m)
    {7336, 6318, 107516, 534, 2570, 8, false}, // NAD83(2011) / InGCS LaPorte-Pulaski-Starke (ftUS)
    {7337, 6318, 107632, 535, 2582, 4, false}, // NAD83(2011) / InGCS Monroe-Morgan (m)
    {7338, 6318, 107610, 536, 2582, 8, false}, // NAD83(2011) / InGCS Monroe-Morgan (ftUS)
    {7339, 6318, 107677, 537, 2577, 4, false}, // NAD83(2011) / InGCS Montgomery-Putnam (m)
    {7340, 6318, 107652, 538, 2577, 8, false}, // NAD83(2011) / InGCS Montgomery-Putnam (ftUS)
    {7341, 6318, 107715, 539, 2581, 4, false}, // NAD83(2011) / InGCS Owen (m)
    {7342, 6318, 107700, 540, 2581, 8, false}, // NAD83(2011) / InGCS Owen (ftUS)
    {7343, 6318, 107751, 541, 2576, 4, false}, // NAD83(2011) / InGCS Parke-Vermillion (m)
    {7344, 6318, 107728, 542, 2576, 8, false}, // NAD83(2011) / InGCS Parke-Vermillion (ftUS)
    {7345, 6318, 107787, 543, 2593, 4, false}, // NAD83(2011) / InGCS Perry (m)
    {7346, 6318, 107772, 544, 2593, 8, false}, // NAD83(2011) / InGCS Perry (ftUS)
    {7347, 6318, 107822, 545, 2589, 4, false}, // NAD83(2011) / InGCS Pike-Warrick (m)
    {7348, 6318, 107800, 546, 2589, 8, false}, // NAD83(2011) / InGCS Pike-Warrick (ftUS)
    {7349, 6318, 107858, 547, 2590, 4, false}, // NAD83(2011) / InGCS Posey (m)
    {7350, 6318, 107842, 548, 2590, 8, false}, // NAD83(2011) / InGCS Posey (ftUS)
    {7351, 6318, 107893, 549, 2610, 4, false}, // NAD83(2011) / InGCS Randolph-Wayne (m)
    {7352, 6318, 107872, 550, 2610, 8, false}, // NAD83(2011) / InGCS Randolph-Wayne (ftUS)
    {7353, 6318, 107929, 551, 2620, 4, false}, // NAD83(2011) / InGCS Ripley (m)
    {7354, 6318, 107912, 552, 2620, 8, false}, // NAD83(2011) / InGCS Ripley (ftUS)
    {7355, 6318, 107958, 553, 2613, 4, false}, // NAD83(2011) / InGCS Shelby (m)
    {7356, 6318, 107944, 554, 2613, 8, false}, // NAD83(2011) / InGCS Shelby (ftUS)
    {7357, 6318, 107986, 555, 2592, 4, false}, // NAD83(2011) / InGCS Spencer (m)
    {7358, 6318, 107970, 556, 2592, 8, false}, // NAD83(2011) / InGCS Spencer (ftUS)
    {7359, 6318, 108017, 557, 2597, 4, false}, // NAD83(2011) / InGCS Steuben (m)
    {7360, 6318, 108000, 558, 2597, 8, false}, // NAD83(2011) / InGCS Steuben (ftUS)
    {7361, 6318, 108050, 559, 2583, 4, false}, // NAD83(2011) / InGCS Sullivan (m)
    {7362, 6318, 108032, 560, 2583, 8, false}, // NAD83(2011) / InGCS Sullivan (ftUS)
    {7363, 6318, 108091, 561, 2572, 4, false}, // NAD83(2011) / InGCS Tippecanoe-White (m)
    {7364, 6318, 108066, 562, 2572, 8, false}, // NAD83(2011) / InGCS Tippecanoe-White (ftUS)
    {7365, 6318, 108133, 563, 2591, 4, false}, // NAD83(2011) / InGCS Vanderburgh (m)
    {7366, 6318, 108114, 564, 2591, 8, false}, // NAD83(2011) / InGCS Vanderburgh (ftUS)
    {7367, 6318, 108165, 565, 2579, 4, false}, // NAD83(2011) / InGCS Vigo (m)
    {7368, 6318, 108150, 566, 2579, 8, false}, // NAD83(2011) / InGCS Vigo (ftUS)
    {7369, 6318, 108194, 567, 2603, 4, false}, // NAD83(2011) / InGCS Wells (m)
    {7370, 6318, 108178, 568, 2603, 8, false}, // NAD83(2011) / InGCS Wells (ftUS)
    {7373, 1147, 142461, geographic, 99, 25, false}, // ONGD14
    {7374, 7373, 142468, 1348, 2637, 4, false}, // ONGD14 / UTM zone 39N
    {7375, 7373, 142482, 1349, 2638, 4, false}, // ONGD14 / UTM zone 40N
    {7376, 7373, 142496, 1350, 2639, 4, false}, // ONGD14 / UTM zone 41N
    {7528, 6318, 112351, 643, 2675, 4, false}, // NAD83(2011) / WISCRS Adams and Juneau (m)
    {7529, 6318, 112389, 569, 2635, 4, false}, // NAD83(2011) / WISCRS Ashland (m)
    {7530, 6318, 112419, 593, 2646, 4, false}, // NAD83(2011) / WISCRS Barron (m)
    {7531, 6318, 112453, 571, 2636, 4, false}, // NAD83(2011) / WISCRS Bayfield (m)
    {7532, 6318, 112489, 595, 2651, 4, false}, // NAD83(2011) / WISCRS Brown (m)
    {7533, 6318, 112523, 597, 2652, 4, false}, // NAD83(2011) / WISCRS Buffalo (m)
    {7534, 6318, 112557, 573, 2640, 4, false}, // NAD83(2011) / WISCRS Burnett (m)
    {7535, 6318, 112618, 645, 2676, 4, false}, // NAD83(2011) / WISCRS Calumet, Fond du Lac, Outagamie and Winnebago (m)
    {7536, 6318, 112680, 599, 2653, 4, false}, // NAD83(2011) / WISCRS Chippewa (m)
    {7537, 6318, 112713, 601, 2654, 4, false}, // NAD83(2011) / WISCRS Clark (m)
    {7538, 6318, 112744, 647, 2677, 4, false}, // NAD83(2011) / WISCRS Columbia (m)
    {7539, 6318, 112777, 649, 2678, 4, false}, // NAD83(2011) / WISCRS Crawford (m)
    {7540, 6318, 112808, 651, 2679, 4, false}, // NAD83(2011) / WISCRS Dane (m)
    {7541, 6318, 112845, 653, 2680, 4, false}, // NAD83(2011) / WISCRS Dodge and Jefferson (m)
    {7542, 6318, 112883, 603, 2655, 4, false}, // NAD83(2011) / WISCRS Door (m)
    {7543, 6318, 112915, 575, 2641, 4, false}, // NAD83(2011) / WISCRS Douglas (m)
    {7544, 6318, 112948, 605, 2656, 4, false}, // NAD83(2011) / WISCRS Dunn (m)
    {7545, 6318, 112983, 607, 2657, 4, false}, // NAD83(2011) / WISCRS Eau Claire (m)
    {7546, 6318, 113019, 577, 2642, 4, false}, // NAD83(2011) / WISCRS Florence (m)
    {7547, 6318, 113050, 579, 2643, 4, false}, // NAD83(2011) / WISCRS Forest (m)
    {7548, 6318, 113080, 655, 2681, 4, false}, // NAD83(2011) / WISCRS Grant (m)
    {7549, 6318, 113173, 657, 2682, 4, false}, // NAD83(2011) / WISCRS Green and Lafayette (m)
    {7550, 6318, 113123, 659, 2683, 4, false}, // NAD83(2011) / WISCRS Green Lake and Marquette (m)
    {7551, 6318, 113211, 661, 2684, 4, false}, // NAD83(2011) / WISCRS Iowa (m)
    {7552, 6318, 113240, 581, 2644, 4, false}, // NAD83(2011) / WISCRS Iron (m)
    {7553, 6318, 113271, 609, 2658, 4, false}, // NAD83(2011) / WISCRS Jackson (m)
    {7554, 6318, 113327, 663, 2685, 4, false}, // NAD83(2011) / WISCRS Kenosha, Milwaukee, Ozaukee and Racine (m)
    {7555, 6318, 113404, 665, 2686, 4, false}, // NAD83(2011) / WISCRS Kewaunee, Manitowoc and Sheboygan (m)
    {7556, 6318, 113461, 667, 2687, 4, false}, // NAD83(2011) / WISCRS La Crosse (m)
    {7557, 6318, 113497, 611, 2659, 4, false}, // NAD83(2011) / WISCRS Langlade (m)
    {7558, 6318, 113531, 613, 2660, 4, false}, // NAD83(2011) / WISCRS Lincoln (m)
    {7559, 6318, 113564, 615, 2661, 4, false}, // NAD83(2011) / WISCRS Marathon (m)
    {7560, 6318, 113597, 617, 2662, 4, false}, // NAD83(2011) / WISCRS Marinette (m)
    {7561, 6318, 113631, 619, 2663, 4, false}, // NAD83(2011) / WISCRS Menominee (m)
    {7562, 6318, 113664, 669, 2688, 4, false}, // NAD83(2011) / WISCRS Monroe (m)
    {7563, 6318, 113696, 621, 2664, 4, false}, // NAD83(2011) / WISCRS Oconto (m)
    {7564, 6318, 113728, 583, 2645, 4, false}, // NAD83(2011) / WISCRS Oneida (m)
    {7565, 6318, 113765, 623, 2665, 4, false}, // NAD83(2011) / WISCRS Pepin and Pierce (m)
    {7566, 6318, 113801, 625, 2666, 4, false}, // NAD83(2011) / WISCRS Polk (m)
    {7567, 6318, 113833, 627, 2667, 4, false}, // NAD83(2011) / WISCRS Portage (m)
    {7568, 6318, 113865, 585, 2647, 4, false}, // NAD83(2011) / WISCRS Price (m)
    {7569, 6318, 113896, 671, 2689, 4, false}, // NAD83(2011) / WISCRS Richland (m)
    {7570, 6318, 113928, 673, 2690, 4, false}, // NAD83(2011) / WISCRS Rock (m)
    {7571, 6318, 113959, 629, 2668, 4, false}, // NAD83(2011) / WISCRS Rusk (m)
    {7572, 6318, 113989, 675, 2691, 4, false}, // NAD83(2011) / WISCRS Sauk (m)
    {7573, 6318, 114020, 587, 2648, 4, false}, // NAD83(2011) / WISCRS Sawyer (m)
    {7574, 6318, 114052, 631, 2669, 4, false}, // NAD83(2011) / WISCRS Shawano (m)
    {7575, 6318, 114087, 633, 2670, 4, false}, // NAD83(2011) / WISCRS St. Croix (m)
    {7576, 6318, 114123, 635, 2671, 4, false}, // NAD83(2011) / WISCRS Taylor (m)
    {7577, 6318, 114161, 637, 2672, 4, false}, // NAD83(2011) / WISCRS Trempealeau (m)
    {7578, 6318, 114197, 677, 2692, 4, false}, // NAD83(2011) / WISCRS Vernon (m)
    {7579, 6318, 114227, 589, 2649, 4, false}, // NAD83(2011) / WISCRS Vilas (m)
    {7580, 6318, 114258, 679, 2693, 4, false}, // NAD83(2011) / WISCRS Walworth (m)
    {7581, 6318, 114292, 591, 2650, 4, false}, // NAD83(2011) / WISCRS Washburn (m)
    {7582, 6318, 114328, 681, 2694, 4, false}, // NAD83(2011) / WISCRS Washington (m)
    {7583, 6318, 114364, 683, 2695, 4, false}, // NAD83(2011) / WISCRS Waukesha (m)
    {7584, 6318, 114400, 639, 2673, 4, false}, // NAD83(2011) / WISCRS Waupaca (m)
    {7585, 6318, 114435, 685, 2696, 4, false}, // NAD83(2011) / WISCRS Waushara (m)
    {7586, 6318, 114468, 641, 2674, 4, false}, // NAD83(2011) / WISCRS Wood (m)
    {7587, 6318, 112327, 644, 2675, 8, false}, // NAD83(2011) / WISCRS Adams and Juneau (ftUS)
    {7588, 6318, 112373, 570, 2635, 8, false}, // NAD83(2011) / WISCRS Ashland (ftUS)
    {7589, 6318, 112403, 594, 2646, 8, false}, // NAD83(2011) / WISCRS Barron (ftUS)
    {7590, 6318, 112433, 572, 2636, 8, false}, // NAD83(2011) / WISCRS Bayfield (ftUS)
    {7591, 6318, 112471, 596, 2651, 8, false}, // NAD83(2011) / WISCRS Brown (ftUS)
    {7592, 6318, 112505, 598, 2652, 8, false}, // NAD83(2011) / WISCRS Buffalo (ftUS)
    {7593, 6318, 112539, 574, 2640, 8, false}, // NAD83(2011) / WISCRS Burnett (ftUS)
    {7594, 6318, 112573, 646, 2676, 8, false}, // NAD83(2011) / WISCRS Calumet, Fond du Lac, Outagamie and Winnebago (ftUS)
    {7595, 6318, 112661, 600, 2653, 8, false}, // NAD83(2011) / WISCRS Chippewa (ftUS)
    {7596, 6318, 112697, 602, 2654, 8, false}, // NAD83(2011) / WISCRS Clark (ftUS)
    {7597, 6318, 112727, 648, 2677, 8, false}, // NAD83(2011) / WISCRS Columbia (ftUS)
    {7598, 6318, 112759, 650, 2678, 8, false}, // NAD83(2011) / WISCRS Crawford (ftUS)
    {7599, 6318, 112793, 652, 2679, 8, false}, // NAD83(2011) / WISCRS Dane (ftUS)
    {7600, 6318, 112821, 654, 2680, 8, false}, // NAD83(2011) / WISCRS Dodge and Jefferson (ftUS)
    {7601, 6318, 112867, 604, 2655, 8, false}, // NAD83(2011) / WISCRS Door (ftUS)
    {7602, 6318, 112897, 576, 2641, 8, false}, // NAD83(2011) / WISCRS Douglas (ftUS)
    {7603, 6318, 112931, 606, 2656, 8, false}, // NAD83(2011) / WISCRS Dunn (ftUS)
    {7604, 6318, 112963, 608, 2657, 8, false}, // NAD83(2011) / WISCRS Eau Claire (ftUS)
    {7605, 6318, 113001, 578, 2642, 8, false}, // NAD83(2011) / WISCRS Florence (ftUS)
    {7606, 6318, 113035, 580, 2643, 8, false}, // NAD83(2011) / WISCRS Forest (ftUS)
    {7607, 6318, 113063, 656, 2681, 8, false}, // NAD83(2011) / WISCRS Grant (ftUS)
    {7608, 6318, 113149, 658, 2682, 8, false}, // NAD83(2011) / WISCRS Green and Lafayette (ftUS)
    {7609, 6318, 113095, 660, 2683, 8, false}, // NAD83(2011) / WISCRS Green Lake and Marquette (ftUS)
    {7610, 6318, 113195, 662, 2684, 8, false}, // NAD83(2011) / WISCRS Iowa (ftUS)
    {7611, 6318, 113225, 582, 2644, 8, false}, // NAD83(2011) / WISCRS Iron (ftUS)
    {7612, 6318, 113253, 610, 2658, 8, false}, // NAD83(2011) / WISCRS Jackson (ftUS)
    {7613, 6318, 113287, 664, 2685, 8, false}, // NAD83(2011) / WISCRS Kenosha, Milwaukee, Ozaukee and Racine (ftUS)
    {7614, 6318, 113365, 666, 2686, 8, false}, // NAD83(2011) / WISCRS Kewaunee, Manitowoc and Sheboygan (ftUS)
    {7615, 6318, 113441, 668, 2687, 8, false}, // NAD83(2011) / WISCRS La Crosse (ftUS)
    {7616, 6318, 113479, 612, 2659, 8, false}, // NAD83(2011) / WISCRS Langlade (ftUS)
    {7617, 6318, 113513, 614, 2660, 8, false}, // NAD83(2011) / WISCRS Lincoln (ftUS)
    {7618, 6318, 113547, 616, 2661, 8, false}, // NAD83(2011) / WISCRS Marathon (ftUS)
    {7619, 6318, 113579, 618, 2662, 8, false}, // NAD83(2011) / WISCRS Marinette (ftUS)
    {7620, 6318, 113613, 620, 2663, 8, false}, // NAD83(2011) / WISCRS Menominee (ftUS)
    {7621, 6318, 113647, 670, 2688, 8, false}, // NAD83(2011) / WISCRS Monroe (ftUS)
    {7622, 6318, 113679, 622, 2664, 8, false}, // NAD83(2011) / WISCRS Oconto (ftUS)
    {7623, 6318, 113711, 584, 2645, 8, false}, // NAD83(2011) / WISCRS Oneida (ftUS)
    {7624, 6318, 113743, 624, 2665, 8, false}, // NAD83(2011) / WISCRS Pepin and Pierce (ftUS)
    {7625, 6318, 113785, 626, 2666, 8, false}, // NAD83(2011) / WISCRS Polk (ftUS)
    {7626, 6318, 113815, 628, 2667, 8, false}, // NAD83(2011) / WISCRS Portage (ftUS)
    {7627, 6318, 113849, 586, 2647, 8, false}, // NAD83(2011) / WISCRS Price (ftUS)
    {7628, 6318, 113879, 672, 2689, 8, false}, // NAD83(2011) / WISCRS Richland (ftUS)
    {7629, 6318, 113911, 674, 2690, 8, false}, // NAD83(2011) / WISCRS Rock (ftUS)
    {7630, 6318, 113943, 630, 2668, 8, false}, // NAD83(2011) / WISCRS Rusk (ftUS)
    {7631, 6318, 113973, 676, 2691, 8, false}, // NAD83(2011) / WISCRS Sauk (ftUS)
    {7632, 6318, 114003, 588, 2648, 8, false}, // NAD83(2011) / WISCRS Sawyer (ftUS)
    {7633, 6318, 114035, 632, 2669, 8, false}, // NAD83(2011) / WISCRS Shawano (ftUS)
    {7634, 6318, 114067, 634, 2670, 8, false}, // NAD83(2011) / WISCRS St. Croix (ftUS)
    {7635, 6318, 114105, 636, 2671, 8, false}, // NAD83(2011) / WISCRS Taylor (ftUS)
    {7636, 6318, 114139, 638, 2672, 8, false}, // NAD83(2011) / WISCRS Trempealeau (ftUS)
    {7637, 6318, 114181, 678, 2692, 8, false}, // NAD83(2011) / WISCRS Vernon (ftUS)
    {7638, 6318, 114211, 590, 2649, 8, false}, // NAD83(2011) / WISCRS Vilas (ftUS)
    {7639, 6318, 114241, 680, 2693, 8, false}, // NAD83(2011) / WISCRS Walworth (ftUS)
    {7640, 6318, 114273, 592, 2650, 8, false}, // NAD83(2011) / WISCRS Washburn (ftUS)
    {7641, 6318, 114309, 682, 2694, 8, false}, // NAD83(2011) / WISCRS Washington (ftUS)
    {7642, 6318, 114345, 684, 2695, 8, false}, // NAD83(2011) / WISCRS Waukesha (ftUS)
    {7643, 6318, 114381, 640, 2673, 8, false}, // NAD83(2011) / WISCRS Waupaca (ftUS)
    {7644, 6318, 114417, 686, 2696, 8, false}, // NAD83(2011) / WISCRS Waushara (ftUS)
    {7645, 6318, 114451, 642, 2674, 8, false}, // NAD83(2011) / WISCRS Wood (ftUS)
    {7683, 1159, 59805, geographic, 110, 25, false}, // GSK-2011
    {7686, 1160, 83679, geographic, 70, 25, false}, // Kyrg-06
    {7692, 7686, 83687, 687, 2698, 4, false}, // Kyrg-06 / zone 1
    {7693, 7686, 83698, 688, 2699, 4, false}, // Kyrg-06 / zone 2
    {7694, 7686, 83709, 689, 2700, 4, false}, // Kyrg-06 / zone 3
    {7695, 7686, 83720, 690, 2701, 4, false}, // Kyrg-06 / zone 4
    {7696, 7686, 83731, 691, 2702, 4, false}, // Kyrg-06 / zone 5
    {7755, 4326, 215375, 692, 59, 4, false}, // WGS 84 / India NSF LCC
    {7756, 4326, 213706, 693, 2705, 4, false}, // WGS 84 / Andhra Pradesh
    {7757, 4326, 213775, 694, 2706, 4, false}, // WGS 84 / Arunachal Pradesh
    {7758, 4326, 213795, 695, 2707, 4, false}, // WGS 84 / Assam
    {7759, 4326, 213982, 696, 2708, 4, false}, // WGS 84 / Bihar
    {7760, 4326, 214058, 697, 2733, 4, false}, // WGS 84 / Delhi
    {7761, 4326, 215278, 698, 2711, 4, false}, // WGS 84 / Gujarat
    {7762, 4326, 215291, 699, 2712, 4, false}, // WGS 84 / Haryana
    {7763, 4326, 215304, 700, 2713, 4, false}, // WGS 84 / Himachal Pradesh
    {7764, 4326, 215405, 701, 2714, 4, false}, // WGS 84 / Jammu and Kashmir
    {7765, 4326, 215423, 702, 2715, 4, false}, // WGS 84 / Jharkhand
    {7766, 4326, 215481, 703, 2718, 4, false}, // WGS 84 / Madhya Pradesh
    {7767, 4326, 215499, 704, 2719, 4, false}, // WGS 84 / Maharashtra
    {7768, 4326, 215514, 705, 2720, 4, false}, // WGS 84 / Manipur
    {7769, 4326, 215527, 706, 2721, 4, false}, // WGS 84 / Meghalaya
    {7770, 4326, 215811, 707, 2723, 4, false}, // WGS 84 / Nagaland
    {7771, 4326, 215391, 708, 2704, 4, false}, // WGS 84 / India Northeast
    {7772, 4326, 215958, 709, 2724, 4, false}, // WGS 84 / Orissa
    {7773, 4326, 216024, 710, 2725, 4, false}, // WGS 84 / Punjab
    {7774, 4326, 216038, 711, 2726, 4, false}, // WGS 84 / Rajasthan
    {7775, 4326, 219977, 712, 2730, 4, false}, // WGS 84 / Uttar Pradesh
    {7776, 4326, 219995, 713, 2731, 4, false}, // WGS 84 / Uttaranchal
    {7777, 4326, 213687, 714, 2734, 4, false}, // WGS 84 / Andaman and Nicobar
    {7778, 4326, 214041, 715, 2709, 4, false}, // WGS 84 / Chhattisgarh
    {7779, 4326, 215267, 716, 2710, 4, false}, // WGS 84 / Goa
    {7780, 4326, 215437, 717, 2716, 4, false}, // WGS 84 / Karnataka
    {7781, 4326, 215452, 718, 2717, 4, false}, // WGS 84 / Kerala
    {7782, 4326, 215464, 719, 2735, 4, false}, // WGS 84 / Lakshadweep
    {7783, 4326, 215559, 720, 2722, 4, false}, // WGS 84 / Mizoram
    {7784, 4326, 217935, 721, 2727, 4, false}, // WGS 84 / Sikkim
    {7785, 4326, 218139, 722, 2728, 4, false}, // WGS 84 / Tamil Nadu
    {7786, 4326, 218154, 723, 2729, 4, false}, // WGS 84 / Tripura
    {7787, 4326, 220011, 724, 2732, 4, false}, // WGS 84 / West Bengal
    {7791, 6706, 167867, 1341, 569, 4, false}, // RDN2008 / UTM zone 32N
    {7792, 6706, 167898, 1342, 2503, 4, false}, // RDN2008 / UTM zone 33N
    {7793, 6706, 167929, 1343, 2504, 4, false}, // RDN2008 / UTM zone 34N
    {7794, 6706, 167835, 403, 64, 4, false}, // RDN2008 / Italy zone (E-N)
    {7795, 6706, 167960, 404, 64, 4, false}, // RDN2008 / Zone 12 (E-N)
    {7798, 1167, 18804, geographic, 19, 25, false}, // BGS2005
    {7799, 7798, 18834, 1343, 2738, 5, false}, // BGS2005 / UTM zone 34N (N-E)
    {7800, 7798, 18865, 1344, 2737, 5, false}, // BGS2005 / UTM zone 35N (N-E)
    {7801, 7798, 18810, 725, 1721, 5, false}, // BGS2005 / CCS2005
    {7803, 7798, 18821, 1343, 2738, 4, false}, // BGS2005 / UTM zone 34N
    {7804, 7798, 18852, 1343, 2737, 4, true}, // BGS2005 / UTM zone 35N
    {7805, 7798, 18883, 1345, 2736, 4, false}, // BGS2005 / UTM zone 36N
    {7825, 4284, 156400, 726, 2745, 5, false}, // Pulkovo 1942 / CS63 zone X1
    {7826, 4284, 156418, 727, 2739, 5, false}, // Pulkovo 1942 / CS63 zone X2
    {7827, 4284, 156436, 728, 2740, 5, false}, // Pulkovo 1942 / CS63 zone X3
    {7828, 4284, 156454, 729, 2741, 5, false}, // Pulkovo 1942 / CS63 zone X4
    {7829, 4284, 156472, 730, 2742, 5, false}, // Pulkovo 1942 / CS63 zone X5
    {7830, 4284, 156490, 731, 2743, 5, false}, // Pulkovo 1942 / CS63 zone X6
    {7831, 4284, 156508, 732, 2744, 5, false}, // Pulkovo 1942 / CS63 zone X7
    {7844, 1168, 54563, geographic, 2494, 25, false}, // GDA2020
    {7845, 7844, 54740, 1861, 1272, 4, false}, // GDA2020 / GA LCC
    {7846, 7844, 54845, 359, 2505, 4, false}, // GDA2020 / MGA zone 46
    {7847, 7844, 54858, 360, 2506, 4, false}, // GDA2020 / MGA zone 47
    {7848, 7844, 54871, 1847, 2507, 4, false}, // GDA2020 / MGA zone 48
    {7849, 7844, 54884, 1848, 2493, 4, false}, // GDA2020 / MGA zone 49
    {7850, 7844, 54897, 1849, 2495, 4, false}, // GDA2020 / MGA zone 50
    {7851, 7844, 54910, 1850, 413, 4, false}, // GDA2020 / MGA zone 51
    {7852, 7844, 54923, 1851, 414, 4, false}, // GDA2020 / MGA zone 52
    {7853, 7844, 54936, 1852, 415, 4, false}, // GDA2020 / MGA zone 53
    {7854, 7844, 54949, 1853, 416, 4, false}, // GDA2020 / MGA zone 54
    {7855, 7844, 54962, 1854, 417, 4, false}, // GDA2020 / MGA zone 55
    {7856, 7844, 54975, 1855, 418, 4, false}, // GDA2020 / MGA zone 56
    {7857, 7844, 54988, 1856, 2512, 4, false}, // GDA2020 / MGA zone 57
    {7858, 7844, 55001, 1857, 2492, 4, false}, // GDA2020 / MGA zone 58
    {7859, 7844, 55014, 361, 2496, 4, false}, // GDA2020 / MGA zone 59
    {7877, 4710, 15931, 733, 1689, 4, false}, // Astro DOS 71 / SHLG71
    {7878, 4710, 15948, 1428, 1689, 4, false}, // Astro DOS 71 / UTM zone 30S
    {7881, 1173, 189711, geographic, 1689, 25, false}, // St. Helena Tritan
    {7882, 7881, 189724, 734, 1689, 4, false}, // St. Helena Tritan / SHLG(Tritan)
    {7883, 7881, 189748, 1428, 1689, 4, false}, // St. Helena Tritan / UTM zone 30S
    {7886, 1174, 175864, geographic, 1689, 25, false}, // SHGD2015
    {7887, 7886, 175893, 1428, 1689, 4, false}, // SHMG2015
    {7899, 7844, 55097, 1860, 1130, 4, false}, // GDA2020 / Vicgrid
    {7991, 4267, 98742, 1932, 287, 4, false}, // NAD27 / MTM zone 10
    {7992, 4259, 91992, 1431, 2757, 4, false}, // Malongo 1987 / UTM zone 33S
    {8013, 7844, 54581, 735, 2749, 4, false}, // GDA2020 / ALB2020
    {8014, 7844, 54637, 736, 2748, 4, false}, // GDA2020 / BIO2020
    {8015, 7844, 54650, 737, 2751, 4, false}, // GDA2020 / BRO2020
    {8016, 7844, 54611, 738, 2747, 4, false}, // GDA2020 / BCG2020
    {8017, 7844, 54663, 739, 2752, 4, false}, // GDA2020 / CARN2020
    {8018, 7844, 54675, 740, 2488, 4, false}, // GDA2020 / CIG2020
    {8019, 7844, 54688, 741, 28, 4, false}, // GDA2020 / CKIG2020
    {8020, 7844, 54702, 742, 2753, 4, false}, // GDA2020 / COL2020
    {8021, 7844, 54715, 743, 2755, 4, false}, // GDA2020 / ESP2020
    {8022, 7844, 54727, 744, 2758, 4, false}, // GDA2020 / EXM2020
    {8023, 7844, 54753, 745, 2759, 4, false}, // GDA2020 / GCG2020
    {8024, 7844, 54766, 746, 2746, 4, false}, // GDA2020 / GOLD2020
    {8025, 7844, 54780, 747, 2750, 4, false}, // GDA2020 / JCG2020
    {8026, 7844, 54793, 748, 2754, 4, false}, // GDA2020 / KALB2020
    {8027, 7844, 54807, 749, 2761, 4, false}, // GDA2020 / KAR2020
    {8028, 7844, 54819, 750, 2762, 4, false}, // GDA2020 / KUN2020
    {8029, 7844, 54832, 751, 2763, 4, false}, // GDA2020 / LCG2020
    {8030, 7844, 55027, 752, 2766, 4, false}, // GDA2020 / MRCG2020
    {8031, 7844, 55056, 753, 2770, 4, false}, // GDA2020 / PCG2020
    {8032, 7844, 55069, 754, 2773, 4, false}, // GDA2020 / PHG2020
    {8035, 4326, 218068, 755, 2774, 8, false}, // WGS 84 / TM Zone 20N (ftUS)
    {8036, 4326, 218089, 756, 2775, 8, false}, // WGS 84 / TM Zone 21N (ftUS)
    {8042, 1188, 66292, geographic, 2764, 25, false}, // Gusterberg (Ferro)
    {8043, 1189, 189869, geographic, 2765, 25, false}, // St. Stephen (Ferro)
    {8044, 8042, 66318, 757, 2764, 1, false}, // Gusterberg Grid (Ferro)
    {8045, 8043, 189897, 758, 2765, 1, false}, // St. Stephen Grid (Ferro)
    {8058, 7844, 55041, 1863, 1657, 4, false}, // GDA2020 / NSW Lambert
    {8059, 7844, 55082, 1858, 1511, 4, false}, // GDA2020 / SA Lambert
    {8065, 6318, 111198, 759, 2779, 6, false}, // NAD83(2011) / PCCS zone 1 (ft)
    {8066, 6318, 111209, 760, 2769, 6, false}, // NAD83(2011) / PCCS zone 2 (ft)
    {8067, 6318, 111220, 761, 2760, 6, false}, // NAD83(2011) / PCCS zone 3 (ft)
    {8068, 6318, 111231, 762, 2780, 6, false}, // NAD83(2011) / PCCS zone 4 (ft)
    {8082, 8252, 118170, 763, 388, 4, false}, // NAD83(CSRS)v6 / MTM NS 2010 zone 4
    {8083, 8252, 118187, 764, 389, 4, false}, // NAD83(CSRS)v6 / MTM NS 2010 zone 5
    {8086, 1187, 70590, geographic, 58, 25, false}, // ISN2016
    {8088, 8086, 70632, 765, 58, 4, false}, // ISN2016 / Lambert 2016
    {8090, 4152, 122684, 577, 2642, 4, false}, // NAD83(HARN) / WISCRS Florence (m)
    {8091, 4152, 122666, 578, 2642, 8, false}, // NAD83(HARN) / WISCRS Florence (ftUS)
    {8092, 4152, 122648, 607, 2657, 4, false}, // NAD83(HARN) / WISCRS Eau Claire (m)
    {8093, 4152, 122628, 608, 2657, 8, false}, // NAD83(HARN) / WISCRS Eau Claire (ftUS)
    {8095, 4152, 124133, 641, 2674, 4, false}, // NAD83(HARN) / WISCRS Wood (m)
    {8096, 4152, 124116, 642, 2674, 8, false}, // NAD83(HARN) / WISCRS Wood (ftUS)
    {8097, 4152, 124100, 685, 2696, 4, false}, // NAD83(HARN) / WISCRS Waushara (m)
    {8098, 4152, 124082, 686, 2696, 8, false}, // NAD83(HARN) / WISCRS Waushara (ftUS)
    {8099, 4152, 124065, 639, 2673, 4, false}, // NAD83(HARN) / WISCRS Waupaca (m)
    {8100, 4152, 124046, 640, 2673, 8, false}, // NAD83(HARN) / WISCRS Waupaca (ftUS)
    {8101, 4152, 124029, 683, 2695, 4, false}, // NAD83(HARN) / WISCRS Waukesha (m)
    {8102, 4152, 124010, 684, 2695, 8, false}, // NAD83(HARN) / WISCRS Waukesha (ftUS)
    {8103, 4152, 123993, 681, 2694, 4, false}, // NAD83(HARN) / WISCRS Washington (m)
    {8104, 4152, 123974, 682, 2694, 8, false}, // NAD83(HARN) / WISCRS Washington (ftUS)
    {8105, 4152, 123957, 591, 2650, 4, false}, // NAD83(HARN) / WISCRS Washburn (m)
    {8106, 4152, 123938, 592, 2650, 8, false}, // NAD83(HARN) / WISCRS Washburn (ftUS)
    {8107, 4152, 123923, 679, 2693, 4, false}, // NAD83(HARN) / WISCRS Walworth (m)
    {8108, 4152, 123906, 680, 2693, 8, false}, // NAD83(HARN) / WISCRS Walworth (ftUS)
    {8109, 4152, 123892, 589, 2649, 4, false}, // NAD83(HARN) / WISCRS Vilas (m)
    {8110, 4152, 123876, 590, 2649, 8, false}, // NAD83(HARN) / WISCRS Vilas (ftUS)
    {8111, 4152, 123862, 677, 2692, 4, false}, // NAD83(HARN) / WISCRS Vernon (m)
    {8112, 4152, 123846, 678, 2692, 8, false}, // NAD83(HARN) / WISCRS Vernon (ftUS)
    {8113, 4152, 123826, 637, 2672, 4, false}, // NAD83(HARN) / WISCRS Trempealeau (m)
    {8114, 4152, 123804, 638, 2672, 8, false}, // NAD83(HARN) / WISCRS Trempealeau (ftUS)
    {8115, 4152, 123788, 635, 2671, 4, false}, // NAD83(HARN) / WISCRS Taylor (m)
    {8116, 4152, 123770, 636, 2671, 8, false}, // NAD83(HARN) / WISCRS Taylor (ftUS)
    {8117, 4152, 123752, 633, 2670, 4, false}, // NAD83(HARN) / WISCRS St. Croix (m)
    {8118, 4152, 123732, 634, 2670, 8, false}, // NAD83(HARN) / WISCRS St. Croix (ftUS)
    {8119, 4152, 123717, 631, 2669, 4, false}, // NAD83(HARN) / WISCRS Shawano (m)
    {8120, 4152, 123700, 632, 2669, 8, false}, // NAD83(HARN) / WISCRS Shawano (ftUS)
    {8121, 4152, 123685, 587, 2648, 4, false}, // NAD83(HARN) / WISCRS Sawyer (m)
    {8122, 4152, 123668, 588, 2648, 8, false}, // NAD83(HARN) / WISCRS Sawyer (ftUS)
    {8123, 4152, 123654, 675, 2691, 4, false}, // NAD83(HARN) / WISCRS Sauk (m)
    {8124, 4152, 123638, 676, 2691, 8, false}, // NAD83(HARN) / WISCRS Sauk (ftUS)
    {8125, 4152, 123624, 629, 2668, 4, false}, // NAD83(HARN) / WISCRS Rusk (m)
    {8126, 4152, 123608, 630, 2668, 8, false}, // NAD83(HARN) / WISCRS Rusk (ftUS)
    {8127, 4152, 123593, 673, 2690, 4, false}, // NAD83(HARN) / WISCRS Rock (m)
    {8128, 4152, 123576, 674, 2690, 8, false}, // NAD83(HARN) / WISCRS Rock (ftUS)
    {8129, 4152, 123561, 671, 2689, 4, false}, // NAD83(HARN) / WISCRS Richland (m)
    {8130, 4152, 123544, 672, 2689, 8, false}, // NAD83(HARN) / WISCRS Richland (ftUS)
    {8131, 4152, 123530, 585, 2647, 4, false}, // NAD83(HARN) / WISCRS Price (m)
    {8132, 4152, 123514, 586, 2647, 8, false}, // NAD83(HARN) / WISCRS Price (ftUS)
    {8133, 4152, 123498, 627, 2667, 4, false}, // NAD83(HARN) / WISCRS Portage (m)
    {8134, 4152, 123480, 628, 2667, 8, false}, // NAD83(HARN) / WISCRS Portage (ftUS)
    {8135, 4152, 123466, 625, 2666, 4, false}, // NAD83(HARN) / WISCRS Polk (m)
    {8136, 4152, 123450, 626, 2666, 8, false}, // NAD83(HARN) / WISCRS Polk (ftUS)
    {8137, 4152, 123430, 623, 2665, 4, false}, // NAD83(HARN) / WISCRS Pepin and Pierce (m)
    {8138, 4152, 123408, 624, 2665, 8, false}, // NAD83(HARN) / WISCRS Pepin and Pierce (ftUS)
    {8139, 4152, 123393, 583, 2645, 4, false}, // NAD83(HARN) / WISCRS Oneida (m)
    {8140, 4152, 123376, 584, 2645, 8, false}, // NAD83(HARN) / WISCRS Oneida (ftUS)
    {8141, 4152, 123361, 621, 2664, 4, false}, // NAD83(HARN) / WISCRS Oconto (m)
    {8142, 4152, 123344, 622, 2664, 8, false}, // NAD83(HARN) / WISCRS Oconto (ftUS)
    {8143, 4152, 123329, 669, 2688, 4, false}, // NAD83(HARN) / WISCRS Monroe (m)
    {8144, 4152, 123312, 670, 2688, 8, false}, // NAD83(HARN) / WISCRS Monroe (ftUS)
    {8145, 4152, 123296, 619, 2663, 4, false}, // NAD83(HARN) / WISCRS Menominee (m)
    {8146, 4152, 123278, 620, 2663, 8, false}, // NAD83(HARN) / WISCRS Menominee (ftUS)
    {8147, 4152, 123262, 617, 2662, 4, false}, // NAD83(HARN) / WISCRS Marinette (m)
    {8148, 4152, 123244, 618, 2662, 8, false}, // NAD83(HARN) / WISCRS Marinette (ftUS)
    {8149, 4152, 123229, 615, 2661, 4, false}, // NAD83(HARN) / WISCRS Marathon (m)
    {8150, 4152, 123212, 616, 2661, 8, false}, // NAD83(HARN) / WISCRS Marathon (ftUS)
    {8151, 4152, 123196, 613, 2660, 4, false}, // NAD83(HARN) / WISCRS Lincoln (m)
    {8152, 4152, 123178, 614, 2660, 8, false}, // NAD83(HARN) / WISCRS Lincoln (ftUS)
    {8153, 4152, 123162, 611, 2659, 4, false}, // NAD83(HARN) / WISCRS Langlade (m)
    {8154, 4152, 123144, 612, 2659, 8, false}, // NAD83(HARN) / WISCRS Langlade (ftUS)
    {8155, 4152, 123126, 667, 2687, 4, false}, // NAD83(HARN) / WISCRS La Crosse (m)
    {8156, 4152, 123106, 668, 2687, 8, false}, // NAD83(HARN) / WISCRS La Crosse (ftUS)
    {8157, 4152, 123069, 665, 2686, 4, false}, // NAD83(HARN) / WISCRS Kewaunee, Manitowoc and Sheboygan (m)
    {8158, 4152, 123030, 666, 2686, 8, false}, // NAD83(HARN) / WISCRS Kewaunee, Manitowoc and Sheboygan (ftUS)
    {8159, 4152, 122992, 663, 2685, 4, false}, // NAD83(HARN) / WISCRS Kenosha, Milwaukee, Ozaukee and Racine (m)
    {8160, 4152, 122952, 664, 2685, 8, false}, // NAD83(HARN) / WISCRS Kenosha, Milwaukee, Ozaukee and Racine (ftUS)
    {8161, 4152, 122936, 609, 2658, 4, false}, // NAD83(HARN) / WISCRS Jackson (m)
    {8162, 4152, 122918, 610, 2658, 8, false}, // NAD83(HARN) / WISCRS Jackson (ftUS)
    {8163, 4152, 122905, 581, 2644, 4, false}, // NAD83(HARN) / WISCRS Iron (m)
    {8164, 4152, 122890, 582, 2644, 8, false}, // NAD83(HARN) / WISCRS Iron (ftUS)
    {8165, 4152, 122876, 661, 2684, 4, false}, // NAD83(HARN) / WISCRS Iowa (m)
    {8166, 4152, 122860, 662, 2684, 8, false}, // NAD83(HARN) / WISCRS Iowa (ftUS)
    {8167, 4152, 122788, 659, 2683, 4, false}, // NAD83(HARN) / WISCRS Green Lake and Marquette (m)
    {8168, 4152, 122760, 660, 2683, 8, false}, // NAD83(HARN) / WISCRS Green Lake and Marquette (ftUS)
    {8169, 4152, 122838, 657, 2682, 4, false}, // NAD83(HARN) / WISCRS Green and Lafayette (m)
    {8170, 4152, 122814, 658, 2682, 8, false}, // NAD83(HARN) / WISCRS Green and Lafayette (ftUS)
    {8171, 4152, 122745, 655, 2681, 4, false}, // NAD83(HARN) / WISCRS Grant (m)
    {8172, 4152, 122728, 656, 2681, 8, false}, // NAD83(HARN) / WISCRS Grant (ftUS)
    {8173, 4152, 122715, 579, 2643, 4, false}, // NAD83(HARN) / WISCRS Forest (m)
    {8177, 4152, 122700, 580, 2643, 8, false}, // NAD83(HARN) / WISCRS Forest (ftUS)
    {8179, 4152, 122613, 605, 2656, 4, false}, // NAD83(HARN) / WISCRS Dunn (m)
    {8180, 4152, 122596, 606, 2656, 8, false}, // NAD83(HARN) / WISCRS Dunn (ftUS)
    {8181, 4152, 122580, 575, 2641, 4, false}, // NAD83(HARN) / WISCRS Douglas (m)
    {8182, 4152, 122562, 576, 2641, 8, false}, // NAD83(HARN) / WISCRS Douglas (ftUS)
    {8184, 4152, 122548, 603, 2655, 4, false}, // NAD83(HARN) / WISCRS Door (m)
    {8185, 4152, 122532, 604, 2655, 8, false}, // NAD83(HARN) / WISCRS Door (ftUS)
    {8187, 4152, 122510, 653, 2680, 4, false}, // NAD83(HARN) / WISCRS Dodge and Jefferson (m)
    {8189, 4152, 122486, 654, 2680, 8, false}, // NAD83(HARN) / WISCRS Dodge and Jefferson (ftUS)
    {8191, 4152, 122473, 651, 2679, 4, false}, // NAD83(HARN) / WISCRS Dane (m)
    {8193, 4152, 122458, 652, 2679, 8, false}, // NAD83(HARN) / WISCRS Dane (ftUS)
    {8196, 4152, 122442, 649, 2678, 4, false}, // NAD83(HARN) / WISCRS Crawford (m)
    {8197, 4152, 122424, 650, 2678, 8, false}, // NAD83(HARN) / WISCRS Crawford (ftUS)
    {8198, 4152, 122409, 647, 2677, 4, false}, // NAD83(HARN) / WISCRS Columbia (m)
    {8200, 4152, 122392, 648, 2677, 8, false}, // NAD83(HARN) / WISCRS Columbia (ftUS)
    {8201, 4152, 122378, 601, 2654, 4, false}, // NAD83(HARN) / WISCRS Clark (m)
    {8202, 4152, 122362, 602, 2654, 8, false}, // NAD83(HARN) / WISCRS Clark (ftUS)
    {8203, 4152, 122345, 599, 2653, 4, false}, // NAD83(HARN) / WISCRS Chippewa (m)
    {8204, 4152, 122326, 600, 2653, 8, false}, // NAD83(HARN) / WISCRS Chippewa (ftUS)
    {8205, 4152, 122283, 645, 2676, 4, false}, // NAD83(HARN) / WISCRS Calumet, Fond du Lac, Outagamie and Winnebago (m)
    {8206, 4152, 122238, 646, 2676, 8, false}, // NAD83(HARN) / WISCRS Calumet, Fond du Lac, Outagamie and Winnebago (ftUS)
    {8207, 4152, 122222, 573, 2640, 4, false}, // NAD83(HARN) / WISCRS Burnett (m)
    {8208, 4152, 122204, 574, 2640, 8, false}, // NAD83(HARN) / WISCRS Burnett (ftUS)
    {8209, 4152, 122188, 597, 2652, 4, false}, // NAD83(HARN) / WISCRS Buffalo (m)
    {8210, 4152, 122170, 598, 2652, 8, false}, // NAD83(HARN) / WISCRS Buffalo (ftUS)
    {8212, 4152, 122154, 595, 2651, 4, false}, // NAD83(HARN) / WISCRS Brown (m)
    {8213, 4152, 122136, 596, 2651, 8, false}, // NAD83(HARN) / WISCRS Brown (ftUS)
    {8214, 4152, 122118, 571, 2636, 4, false}, // NAD83(HARN) / WISCRS Bayfield (m)
    {8216, 4152, 122098, 572, 2636, 8, false}, // NAD83(HARN) / WISCRS Bayfield (ftUS)
    {8218, 4152, 122084, 593, 2646, 4, false}, // NAD83(HARN) / WISCRS Barron (m)
    {8220, 4152, 122068, 594, 2646, 8, false}, // NAD83(HARN) / WISCRS Barron (ftUS)
    {8222, 4152, 122054, 569, 2635, 4, false}, // NAD83(HARN) / WISCRS Ashland (m)
    {8224, 4152, 122038, 570, 2635, 8, false}, // NAD83(HARN) / WISCRS Ashland (ftUS)
    {8225, 4152, 122016, 643, 2675, 4, false}, // NAD83(HARN) / WISCRS Adams and Juneau (m)
    {8226, 4152, 121992, 644, 2675, 8, false}, // NAD83(HARN) / WISCRS Adams and Juneau (ftUS)
    {8232, 1192, 119001, geographic, 23, 25, false}, // NAD83(CSRS96)
    {8237, 1193, 116923, geographic, 23, 25, false}, // NAD83(CSRS)v2
    {8240, 1194, 117430, geographic, 23, 25, false}, // NAD83(CSRS)v3
    {8246, 1195, 117818, geographic, 23, 25, false}, // NAD83(CSRS)v4
    {8249, 1196, 118156, geographic, 23, 25, false}, // NAD83(CSRS)v5
    {8252, 1197, 118163, geographic, 23, 25, false}, // NAD83(CSRS)v6
    {8255, 1198, 118643, geographic, 23, 25, false}, // NAD83(CSRS)v7
    {8311, 6318, 109894, 766, 2768, 4, false}, // NAD83(2011) / Oregon Burns-Harper zone (m)
    {8312, 6318, 109876, 767, 2768, 6, false}, // NAD83(2011) / Oregon Burns-Harper zone (ft)
    {8313, 6318, 109932, 768, 2772, 4, false}, // NAD83(2011) / Oregon Canyon City-Burns zone (m)
    {8314, 6318, 109911, 769, 2772, 6, false}, // NAD83(2011) / Oregon Canyon City-Burns zone (ft)
    {8315, 6318, 110021, 770, 2778, 4, false}, // NAD83(2011) / Oregon Coast Range North zone (m)
    {8316, 6318, 110005, 771, 2778, 6, false}, // NAD83(2011) / Oregon Coast Range North zone (ft)
    {8317, 6318, 110223, 772, 2781, 4, false}, // NAD83(2011) / Oregon Dayville-Prairie City zone (m)
    {8318, 6318, 110199, 773, 2781, 6, false}, // NAD83(2011) / Oregon Dayville-Prairie City zone (ft)
    {8319, 6318, 110265, 774, 2782, 4, false}, // NAD83(2011) / Oregon Denio-Burns zone (m)
    {8320, 6318, 110247, 775, 2782, 6, false}, // NAD83(2011) / Oregon Denio-Burns zone (ft)
    {8321, 6318, 110462, 776, 2783, 4, false}, // NAD83(2011) / Oregon Halfway zone (m)
    {8322, 6318, 110448, 777, 2783, 6, false}, // NAD83(2011) / Oregon Halfway zone (ft)
    {8323, 6318, 110539, 778, 2784, 4, false}, // NAD83(2011) / Oregon Medford-Diamond Lake zone (m)
    {8324, 6318, 110515, 779, 2784, 6, false}, // NAD83(2011) / Oregon Medford-Diamond Lake zone (ft)
    {8325, 6318, 110578, 780, 2785, 4, false}, // NAD83(2011) / Oregon Mitchell zone (m)
    {8326, 6318, 110563, 781, 2785, 6, false}, // NAD83(2011) / Oregon Mitchell zone (ft)
    {8327, 6318, 110618, 782, 2786, 4, false}, // NAD83(2011) / Oregon North Central zone (m)
    {8328, 6318, 110606, 783, 2786, 6, false}, // NAD83(2011) / Oregon North Central zone (ft)
    {8329, 6318, 110650, 784, 2788, 4, false}, // NAD83(2011) / Oregon Ochoco Summit zone (m)
    {8330, 6318, 110630, 785, 2788, 6, false}, // NAD83(2011) / Oregon Ochoco Summit zone (ft)
    {8331, 6318, 110709, 786, 2789, 4, false}, // NAD83(2011) / Oregon Owyhee zone (m)
    {8332, 6318, 110695, 787, 2789, 6, false}, // NAD83(2011) / Oregon Owyhee zone (ft)
    {8333, 6318, 110815, 788, 2790, 4, false}, // NAD83(2011) / Oregon Pilot Rock-Ukiah zone (m)
    {8334, 6318, 110793, 789, 2790, 6, false}, // NAD83(2011) / Oregon Pilot Rock-Ukiah zone (ft)
    {8335, 6318, 110884, 790, 2791, 4, false}, // NAD83(2011) / Oregon Prairie City-Brogan zone (m)
    {8336, 6318, 110861, 791, 2791, 6, false}, // NAD83(2011) / Oregon Prairie City-Brogan zone (ft)
    {8337, 6318, 110928, 792, 2767, 4, false}, // NAD83(2011) / Oregon Riley-Lakeview zone (m)
    {8338, 6318, 110906, 793, 2767, 6, false}, // NAD83(2011) / Oregon Riley-Lakeview zone (ft)
    {8339, 6318, 111026, 794, 2771, 4, false}, // NAD83(2011) / Oregon Siskiyou Pass zone (m)
    {8340, 6318, 111007, 795, 2771, 6, false}, // NAD83(2011) / Oregon Siskiyou Pass zone (ft)
    {8341, 6318, 111077, 796, 2777, 4, false}, // NAD83(2011) / Oregon Ukiah-Fox zone (m)
    {8342, 6318, 111060, 797, 2777, 6, false}, // NAD83(2011) / Oregon Ukiah-Fox zone (ft)
    {8343, 6318, 111107, 798, 2787, 4, false}, // NAD83(2011) / Oregon Wallowa zone (m)
    {8344, 6318, 111093, 799, 2787, 6, false}, // NAD83(2011) / Oregon Wallowa zone (ft)
    {8345, 6318, 111141, 800, 2793, 4, false}, // NAD83(2011) / Oregon Warner Highway zone (m)
    {8346, 6318, 111121, 801, 2793, 6, false}, // NAD83(2011) / Oregon Warner Highway zone (ft)
    {8347, 6318, 111180, 802, 2795, 4, false}, // NAD83(2011) / Oregon Willamette Pass zone (m)
    {8348, 6318, 111161, 803, 2795, 6, false}, // NAD83(2011) / Oregon Willamette Pass zone (ft)
    {8351, 1201, 175073, geographic, 114, 25, false}, // S-JTSK [JTSK03]
    {8352, 8351, 175089, 182, 114, 1, false}, // S-JTSK [JTSK03] / Krovak
    {8353, 8351, 175112, 183, 114, 4, false}, // S-JTSK [JTSK03] / Krovak East North
    {8379, 4269, 103109, 804, 2792, 4, false}, // NAD83 / NCRS Las Vegas (m)
    {8380, 4269, 103090, 805, 2792, 8, false}, // NAD83 / NCRS Las Vegas (ftUS)
    {8381, 4269, 103150, 806, 2794, 4, false}, // NAD83 / NCRS Las Vegas high (m)
    {8382, 4269, 103126, 807, 2794, 8, false}, // NAD83 / NCRS Las Vegas high (ftUS)
    {8383, 6318, 109179, 804, 2792, 4, false}, // NAD83(2011) / NCRS Las Vegas (m)
    {8384, 6318, 109160, 805, 2792, 8, false}, // NAD83(2011) / NCRS Las Vegas (ftUS)
    {8385, 6318, 109220, 806, 2794, 4, false}, // NAD83(2011) / NCRS Las Vegas high (m)
    {8387, 6318, 109196, 807, 2794, 8, false}, // NAD83(2011) / NCRS Las Vegas high (ftUS)
    {8391, 4283, 55503, 808, 2798, 4, false}, // GDA94 / WEIPA94
    {8395, 4258, 45271, 1543, 2797, 4, false}, // ETRS89 / Gauss-Kruger CM 9E
    {8427, 1209, 68200, geographic, 56, 25, false}, // Hong Kong Geodetic CS
    {8428, 1207, 90668, geographic, 78, 25, false}, // Macao 1920
    {8431, 1208, 90710, geographic, 78, 25, false}, // Macao 2008
    {8433, 8428, 90677, 809, 78, 5, false}, // Macao 1920 / Macao Grid
    {8441, 4297, 193298, 810, 1756, 5, false}, // Tananarive / Laborde Grid
    {8449, 6152, 119299, geographic, 2821, 25, true}, // NAD83(FBN)
    {8455, 7073, 170431, 1451, 2796, 4, false}, // RGTAAF07 / UTM zone 53S
    {8456, 7073, 170447, 1452, 2799, 4, false}, // RGTAAF07 / UTM zone 54S
    {8518, 6318, 108287, 811, 2801, 8, false}, // NAD83(2011) / KS RCS zone 1
    {8519, 6318, 108396, 812, 2802, 8, false}, // NAD83(2011) / KS RCS zone 2
    {8520, 6318, 108415, 813, 2803, 8, false}, // NAD83(2011) / KS RCS zone 3
    {8521, 6318, 108424, 814, 2800, 8, false}, // NAD83(2011) / KS RCS zone 4
    {8522, 6318, 108433, 815, 2804, 8, false}, // NAD83(2011) / KS RCS zone 5
    {8523, 6318, 108442, 816, 2805, 8, false}, // NAD83(2011) / KS RCS zone 6
    {8524, 6318, 108451, 817, 2806, 8, false}, // NAD83(2011) / KS RCS zone 7
    {8525, 6318, 108460, 818, 2807, 8, false}, // NAD83(2011) / KS RCS zone 8
    {8526, 6318, 108469, 819, 2808, 8, false}, // NAD83(2011) / KS RCS zone 9
    {8527, 6318, 108296, 820, 2809, 8, false}, // NAD83(2011) / KS RCS zone 10
    {8528, 6318, 108306, 821, 2810, 8, false}, // NAD83(2011) / KS RCS zone 11
    {8529, 6318, 108316, 822, 2811, 8, false}, // NAD83(2011) / KS RCS zone 12
    {8531, 6318, 108326, 823, 2812, 8, false}, // NAD83(2011) / KS RCS zone 13
    {8533, 6318, 108336, 824, 2813, 8, false}, // NAD83(2011) / KS RCS zone 14
    {8534, 6318, 108346, 825, 2814, 8, false}, // NAD83(2011) / KS RCS zone 15
    {8535, 6318, 108356, 826, 2815, 8, false}, // NAD83(2011) / KS RCS zone 16
    {8536, 6318, 108366, 827, 2816, 8, false}, // NAD83(2011) / KS RCS zone 17
    {8538, 6318, 108376, 828, 2817, 8, false}, // NAD83(2011) / KS RCS zone 18
    {8539, 6318, 108386, 829, 2818, 8, false}, // NAD83(2011) / KS RCS zone 19
    {8540, 6318, 108405, 830, 2819, 8, false}, // NAD83(2011) / KS RCS zone 20
    {8545, 1212, 119306, geographic, 2063, 25, false}, // NAD83(HARN Corrected)
    {8677, 3906, 89618, 2180, 560, 4, false}, // MGI 1901 / Balkans zone 5
    {8678, 3906, 89633, 2181, 561, 4, false}, // MGI 1901 / Balkans zone 6
    {8679, 3906, 89663, 2183, 563, 4, false}, // MGI 1901 / Balkans zone 8
    {8682, 8685, 182684, 1343, 2846, 4, false}, // SRB_ETRS89 / UTM zone 34N
    {8685, 1214, 182674, geographic, 2846, 25, false}, // SRB_ETRS89
    {8686, 3906, 89699, 2355, 115, 4, false}, // MGI 1901 / Slovenia Grid
    {8687, 4765, 186374, 1342, 115, 4, false}, // Slovenia 1996 / UTM zone 33N
    {8692, 6325, 124507, 1363, 2820, 4, false}, // NAD83(MA11) / UTM zone 54N
    {8693, 6325, 124519, 1364, 2824, 4, false}, // NAD83(MA11) / UTM zone 55N
    {8694, 1217, 29151, geographic, 4, 25, false}, // Camacupa 2015
    {8699, 1220, 170698, geographic, 4, 25, false}, // RSAO13
    {8818, 1218, 90517, geographic, 111, 25, false}, // MTRF-2000
    {8826, 4269, 102083, 831, 239, 4, false}, // NAD83 / Idaho Transverse Mercator
    {8836, 8818, 90525, 1345, 2828, 4, false}, // MTRF-2000 / UTM zone 36N
    {8837, 8818, 90540, 1346, 2830, 4, false}, // MTRF-2000 / UTM zone 37N
    {8838, 8818, 90555, 1347, 2831, 4, false}, // MTRF-2000 / UTM zone 38N
    {8839, 8818, 90570, 1348, 2832, 4, false}, // MTRF-2000 / UTM zone 39N
    {8840, 8818, 90585, 1349, 1631, 4, false}, // MTRF-2000 / UTM zone 40N
    {8857, 4326, 215216, 832, 138, 4, false}, // WGS 84 / Equal Earth Greenwich
    {8858, 4326, 215170, 833, 2826, 4, false}, // WGS 84 / Equal Earth Americas
    {8859, 4326, 215190, 834, 2827, 4, false}, // WGS 84 / Equal Earth Asia-Pacific
    {8860, 1211, 119299, geographic, 2821, 25, false}, // NAD83(FBN)
    {8888, 1166, 213672, geographic, 138, 25, false}, // WGS 84 (Transit)
    {8900, 1223, 170565, geographic, 133, 25, false}, // RGWF96
    {8902, 1223, 170586, geographic, 133, 24, false}, // RGWF96 (lon-lat)
    {8903, 8900, 170600, 1399, 133, 4, false}, // RGWF96 / UTM zone 1S
    {8907, 1225, 28461, geographic, 31, 25, false}, // CR-SIRGAS
    {8908, 8907, 28471, 169, 1726, 4, false}, // CR-SIRGAS / CRTM05
    {8909, 8907, 28487, 1325, 2835, 4, false}, // CR-SIRGAS / UTM zone 16N
    {8910, 8907, 28504, 1326, 2834, 4, false}, // CR-SIRGAS / UTM zone 17N
    {8949, 1243, 177768, geographic, 26, 25, false}, // SIRGAS-Chile 2010
    {8950, 8949, 177783, 1416, 2206, 4, false}, // SIRGAS-Chile 2010 / UTM zone 18S
    {8951, 8949, 177804, 1417, 2193, 4, false}, // SIRGAS-Chile 2010 / UTM zone 19S
    {8972, 1227, 177358, geographic, 2833, 25, false}, // SIRGAS-CON DGF00P01
    {8973, 1228, 177378, geographic, 2833, 25, false}, // SIRGAS-CON DGF01P01
    {8974, 1229, 177398, geographic, 2833, 25, false}, // SIRGAS-CON DGF01P02
    {8975, 1230, 177418, geographic, 2833, 25, false}, // SIRGAS-CON DGF02P01
    {8976, 1231, 177438, geographic, 2833, 25, false}, // SIRGAS-CON DGF04P01
    {8977, 1232, 177458, geographic, 2833, 25, false}, // SIRGAS-CON DGF05P01
    {8978, 1233, 177478, geographic, 2833, 25, false}, // SIRGAS-CON DGF06P01
    {8979, 1234, 177498, geographic, 2833, 25, false}, // SIRGAS-CON DGF07P01
    {8980, 1235, 177518, geographic, 2833, 25, false}, // SIRGAS-CON DGF08P01
    {8981, 1236, 177538, geographic, 2833, 25, false}, // SIRGAS-CON SIR09P01
    {8982, 1237, 177558, geographic, 2833, 25, false}, // SIRGAS-CON SIR10P01
    {8983, 1238, 177577, geographic, 2833, 25, false}, // SIRGAS-CON SIR11P01
    {8984, 1239, 177596, geographic, 2833, 25, false}, // SIRGAS-CON SIR13P01
    {8985, 1240, 177616, geographic, 2833, 25, false}, // SIRGAS-CON SIR14P01
    {8986, 1241, 177636, geographic, 2833, 25, false}, // SIRGAS-CON SIR15P01
    {8987, 1242, 177656, geographic, 2833, 25, false}, // SIRGAS-CON SIR17P01
    {8988, 6647, 71037, geographic, 138, 25, false}, // ITRF88
    {8989, 6648, 71056, geographic, 138, 25, false}, // ITRF89
    {8990, 6649, 71093, geographic, 138, 25, false}, // ITRF90
    {8991, 6650, 71130, geographic, 138, 25, false}, // ITRF91
    {8992, 6651, 94002, geographic, 138, 25, false}, // ITRF92
    {8993, 6652, 71197, geographic, 138, 25, false}, // ITRF93
    {8994, 6653, 71234, geographic, 138, 25, false}, // ITRF94
    {8995, 6654, 71271, geographic, 138, 25, false}, // ITRF96
    {8996, 6655, 71308, geographic, 138, 25, false}, // ITRF97
    {8997, 6656, 70847, geographic, 138, 25, false}, // ITRF2000
    {8998, 6896, 70884, geographic, 138, 25, false}, // ITRF2005
    {8999, 1061, 93860, geographic, 138, 25, false}, // ITRF2008
    {9000, 1165, 70977, geographic, 138, 25, false}, // ITRF2014
    {9003, 1244, 70259, geographic, 138, 25, false}, // IGS97
    {9006, 1245, 70191, geographic, 138, 25, false}, // IGS00
    {9009, 1246, 70276, geographic, 138, 25, false}, // IGb00
    {9012, 1247, 70208, geographic, 138, 25, false}, // IGS05
    {9014, 1141, 70225, geographic, 138, 25, false}, // IGS08
    {9017, 1248, 70293, geographic, 138, 25, false}, // IGb08
    {9019, 1191, 70242, geographic, 138, 25, false}, // IGS14
    {9039, 8086, 70597, 2372, 58, 5, false}, // ISN2016 / LAEA Europe
    {9040, 8086, 70615, 2371, 58, 5, false}, // ISN2016 / LCC Europe
    {9053, 1152, 213644, geographic, 138, 25, false}, // WGS 84 (G730)
    {9054, 1153, 213658, geographic, 138, 25, false}, // WGS 84 (G873)
    {9055, 1154, 213585, geographic, 138, 25, false}, // WGS 84 (G1150)
    {9056, 1155, 213599, geographic, 138, 25, false}, // WGS 84 (G1674)
    {9057, 1156, 213614, geographic, 138, 25, false}, // WGS 84 (G1762)
    {9059, 1178, 44241, geographic, 165, 25, false}, // ETRF89
    {9060, 1179, 44270, geographic, 165, 25, false}, // ETRF90
    {9061, 1180, 44289, geographic, 165, 25, false}, // ETRF91
    {9062, 1181, 44308, geographic, 165, 25, false}, // ETRF92
    {9063, 1182, 44327, geographic, 165, 25, false}, // ETRF93
    {9064, 1183, 44346, geographic, 165, 25, false}, // ETRF94
    {9065, 1184, 44365, geographic, 165, 25, false}, // ETRF96
    {9066, 1185, 44384, geographic, 165, 25, false}, // ETRF97
    {9067, 1186, 146280, geographic, 165, 25, false}, // ETRF2000
    {9068, 1204, 44201, geographic, 165, 25, false}, // ETRF2005
    {9069, 1206, 44220, geographic, 165, 25, false}, // ETRF2014
    {9072, 1221, 124531, geographic, 2487, 25, false}, // NAD83(MARP00)
    {9075, 1249, 129120, geographic, 2484, 25, false}, // NAD83(PACP00)
    {9140, 1251, 79226, geographic, 2845, 25, false}, // KOSOVAREF01
    {9141, 9140, 79253, 2182, 2845, 4, false}, // KOSOVAREF01 / Balkans zone 7
    {9148, 1252, 177825, geographic, 26, 25, false}, // SIRGAS-Chile 2013
    {9149, 9148, 177840, 1416, 2206, 4, false}, // SIRGAS-Chile 2013 / UTM zone 18S
    {9150, 9148, 177862, 1417, 2193, 4, false}, // SIRGAS-Chile 2013 / UTM zone 19S
    {9153, 1253, 177884, geographic, 26, 25, false}, // SIRGAS-Chile 2016
    {9154, 9153, 177899, 1416, 2206, 4, false}, // SIRGAS-Chile 2016 / UTM zone 18S
    {9155, 9153, 177921, 1417, 2193, 4, false}, // SIRGAS-Chile 2016 / UTM zone 19S
    {9156, 8699, 170717, 1430, 2853, 4, false}, // RSAO13 / UTM zone 32S
    {9157, 8699, 170730, 1431, 2857, 4, false}, // RSAO13 / UTM zone 33S
    {9158, 8699, 170743, 1432, 2842, 4, false}, // RSAO13 / UTM zone 34S
    {9159, 8699, 170704, 1602, 458, 4, false}, // RSAO13 / TM 12 SE
    {9184, 1254, 177688, geographic, 26, 25, true}, // SIRGAS-Chile
    {9191, 4326, 215572, 836, 1943, 4, false}, // WGS 84 / NIWA Albers
    {9205, 4756, 207537, 835, 2844, 4, false}, // VN-2000 / TM-3 103-00
    {9206, 4756, 207553, 837, 2841, 4, false}, // VN-2000 / TM-3 104-00
    {9207, 4756, 207569, 838, 2848, 4, false}, // VN-2000 / TM-3 104-30
    {9208, 4756, 207585, 839, 2849, 4, false}, // VN-2000 / TM-3 104-45
    {9209, 4756, 207601, 840, 2850, 4, false}, // VN-2000 / TM-3 105-30
    {9210, 4756, 207617, 841, 2851, 4, false}, // VN-2000 / TM-3 105-45
    {9211, 4756, 207633, 842, 2852, 4, false}, // VN-2000 / TM-3 106-00
    {9212, 4756, 207649, 843, 2854, 4, false}, // VN-2000 / TM-3 106-15
    {9213, 4756, 207665, 844, 2855, 4, false}, // VN-2000 / TM-3 106-30
    {9214, 4756, 207681, 845, 2856, 4, false}, // VN-2000 / TM-3 107-00
    {9215, 4756, 207697, 846, 2858, 4, false}, // VN-2000 / TM-3 107-15
    {9216, 4756, 207713, 847, 2859, 4, false}, // VN-2000 / TM-3 107-30
    {9217, 4756, 207745, 848, 2860, 4, false}, // VN-2000 / TM-3 108-15
    {9218, 4756, 207761, 849, 2861, 4, false}, // VN-2000 / TM-3 108-30
    {9221, 4148, 67269, 850, 2868, 5, false}, // Hartebeesthoek94 / ZAF BSU Albers 25E
    {9222, 4148, 67301, 851, 2869, 5, false}, // Hartebeesthoek94 / ZAF BSU Albers 44E
    {9248, 1257, 193418, geographic, 2870, 25, false}, // Tapi Aike
    {9249, 9248, 193428, 2043, 2871, 5, false}, // Tapi Aike / Argentina 1
    {9250, 9248, 193446, 2044, 2872, 5, false}, // Tapi Aike / Argentina 2
    {9251, 1258, 89973, geographic, 1185, 25, false}, // MMN
    {9252, 9251, 89977, 2044, 1185, 5, false}, // MMN / Argentina 2
    {9253, 1259, 90001, geographic, 1185, 25, false}, // MMS
    {9254, 9253, 90005, 2044, 1185, 5, false}, // MMS / Argentina 2
    {9265, 5340, 146711, 1417, 1282, 4, false}, // POSGAR 2007 / UTM zone 19S
    {9271, 4312, 89495, 852, 557, 5, false}, // MGI / Austria West
    {9272, 4312, 89331, 853, 558, 5, false}, // MGI / Austria Central
    {9273, 4312, 89343, 854, 559, 5, false}, // MGI / Austria East
    {9284, 4161, 148321, 2043, 2865, 5, false}, // Pampa del Castillo / Argentina 1
    {9285, 4161, 148363, 2045, 2866, 5, false}, // Pampa del Castillo / Argentina 3
    {9294, 1263, 142561, geographic, 99, 25, false}, // ONGD17
    {9295, 9294, 142568, 1348, 2637, 4, false}, // ONGD17 / UTM zone 39N
    {9296, 9294, 142582, 1349, 2638, 4, false}, // ONGD17 / UTM zone 40N
    {9297, 9294, 142596, 1350, 2639, 4, false}, // ONGD17 / UTM zone 41N
    {9299, 1264, 66505, geographic, 2881, 25, false}, // HS2-IRF
    {9300, 9299, 66493, 855, 2881, 4, false}, // HS2 Survey Grid
    {9309, 1291, 4152, geographic, 2494, 25, false}, // ATRF2014
    {9311, 4267, 99572, 22, 130, 4, false}, // NAD27 / US National Atlas Equal Area
    {9333, 1268, 79316, geographic, 111, 25, false}, // KSA-GRF17
    {9354, 4326, 215350, 856, 2884, 4, false}, // WGS 84 / IBCSO Polar Stereographic
    {9356, 9333, 79341, 1345, 2828, 4, false}, // KSA-GRF17 / UTM zone 36N
    {9357, 9333, 79358, 1346, 2830, 4, false}, // KSA-GRF17 / UTM zone 37N
    {9358, 9333, 79375, 1347, 2831, 4, false}, // KSA-GRF17 / UTM zone 38N
    {9359, 9333, 79392, 1348, 2832, 4, false}, // KSA-GRF17 / UTM zone 39N
    {9360, 9333, 79409, 1349, 1631, 4, false}, // KSA-GRF17 / UTM zone 40N
    {9364, 1266, 192383, geographic, 2882, 25, false}, // TPEN11-IRF
    {9367, 9364, 192347, 857, 2882, 4, false}, // TPEN11 Grid
    {9372, 1271, 89919, geographic, 2886, 25, false}, // MML07-IRF
    {9373, 9372, 89883, 858, 2886, 4, false}, // MML07 Grid
    {9377, 4686, 88436, 859, 29, 5, false}, // MAGNA-SIRGAS / Origen-Nacional
    {9380, 1272, 70310, geographic, 138, 25, false}, // IGb14
    {9384, 1273, 4525, geographic, 2887, 25, false}, // AbInvA96_2020-IRF
    {9387, 9384, 4479, 860, 2887, 4, false}, // AbInvA96_2020 Grid
    {9391, 7798, 18852, 1344, 2737, 4, false}, // BGS2005 / UTM zone 35N
    {9403, 1286, 146294, geographic, 2246, 25, false}, // PN68
    {9404, 9403, 146299, 1336, 2889, 4, false}, // PN68 / UTM zone 27N
    {9405, 9403, 146311, 1337, 2890, 4, false}, // PN68 / UTM zone 28N
    {9406, 4728, 146356, 1336, 2889, 4, false}, // PN84 / UTM zone 27N
    {9407, 4728, 146368, 1337, 2891, 4, false}, // PN84 / UTM zone 28N
    {9453, 1289, 54461, geographic, 2893, 25, false}, // GBK19-IRF
    {9456, 9453, 54427, 861, 2893, 4, false}, // GBK19 Grid
    {9470, 1293, 182727, geographic, 60, 25, false}, // SRGI2013
    {9473, 7844, 54594, 1864, 1272, 4, false}, // GDA2020 / Australian Albers
    {9474, 1157, 147684, geographic, 138, 25, false}, // PZ-90.02
    {9475, 1158, 147693, geographic, 138, 25, false}, // PZ-90.11
    {9476, 9470, 182735, 1355, 499, 4, false}, // SRGI2013 / UTM zone 46N
    {9477, 9470, 182750, 1356, 501, 4, false}, // SRGI2013 / UTM zone 47N
    {9478, 9470, 182780, 1357, 503, 4, false}, // SRGI2013 / UTM zone 48N
    {9479, 9470, 182810, 1358, 505, 4, false}, // SRGI2013 / UTM zone 49N
    {9480, 9470, 182840, 1359, 507, 4, false}, // SRGI2013 / UTM zone 50N
    {9481, 9470, 182870, 1360, 509, 4, false}, // SRGI2013 / UTM zone 51N
    {9482, 9470, 182900, 1361, 511, 4, false}, // SRGI2013 / UTM zone 52N
    {9487, 9470, 182765, 1445, 502, 4, false}, // SRGI2013 / UTM zone 47S
    {9488, 9470, 182795, 1446, 504, 4, false}, // SRGI2013 / UTM zone 48S
    {9489, 9470, 182825, 1447, 506, 4, false}, // SRGI2013 / UTM zone 49S
    {9490, 9470, 182855, 1448, 508, 4, false}, // SRGI2013 / UTM zone 50S
    {9491, 9470, 182885, 1449, 510, 4, false}, // SRGI2013 / UTM zone 51S
    {9492, 9470, 182915, 1450, 512, 4, false}, // SRGI2013 / UTM zone 52S
    {9493, 9470, 182930, 1451, 514, 4, false}, // SRGI2013 / UTM zone 53S
    {9494, 9470, 182945, 1452, 515, 4, false}, // SRGI2013 / UTM zone 54S
    {9498, 5340, 146693, 862, 2894, 5, false}, // POSGAR 2007 / CABA 2019
    {9547, 1295, 84421, geographic, 2897, 25, false}, // LTF2004(G)
    {9674, 4269, 104181, 863, 1207, 4, false}, // NAD83 / USFS R6 Albers
    {9678, 4682, 66052, 864, 1717, 4, false}, // Gulshan 303 / Bangladesh Transverse Mercator
    {9680, 4326, 218053, 1598, 10, 4, false}, // WGS 84 / TM 90 NE
    {9696, 1304, 168012, geographic, 26, 25, false}, // REDGEOMIN
    {9697, 9696, 168022, 1410, 1693, 4, false}, // REDGEOMIN / UTM zone 12S
    {9698, 9696, 168039, 1416, 2206, 4, false}, // REDGEOMIN / UTM zone 18S
    {9699, 9696, 168056, 1417, 2193, 4, false}, // REDGEOMIN / UTM zone 19S
    {9702, 1305, 44109, geographic, 106, 25, false}, // ETRF2000-PL
    {9709, 4617, 116851, 1332, 998, 4, false}, // NAD83(CSRS) / UTM zone 23N
    {9712, 4269, 104311, 1333, 2899, 4, false}, // NAD83 / UTM zone 24N
    {9713, 4617, 116862, 1333, 2899, 4, false}, // NAD83(CSRS) / UTM zone 24N
    {9716, 4670, 69512, 1343, 2504, 4, false}, // IGM95 / UTM zone 34N
    {9739, 1308, 42270, geographic, 2901, 25, false}, // EOS21-IRF
    {9741, 9739, 42234, 865, 2901, 4, false}, // EOS21 Grid
    {9748, 6318, 105011, 866, 999, 8, false}, // NAD83(2011) / Alabama East (ftUS)
    {9749, 6318, 105037, 867, 1000, 8, false}, // NAD83(2011) / Alabama West (ftUS)
    {9755, 1309, 213629, geographic, 138, 25, false}, // WGS 84 (G2139)
    {9758, 1310, 41298, geographic, 2902, 25, false}, // ECML14_NB-IRF
    {9761, 9758, 41254, 868, 2902, 4, false}, // ECML14_NB Grid
    {9763, 1311, 46625, geographic, 2903, 25, false}, // EWR2-IRF
    {9766, 9763, 46591, 869, 2903, 4, false}, // EWR2 Grid
    {9777, 1312, 168700, geographic, 47, 25, false}, // RGF93 v2
    {9779, 1312, 168725, geographic, 47, 24, false}, // RGF93 v2 (lon-lat)
    {9782, 1313, 168894, geographic, 47, 25, false}, // RGF93 v2b
    {9784, 1313, 168921, geographic, 47, 24, false}, // RGF93 v2b (lon-lat)
    {9793, 9777, 168867, 2080, 47, 4, false}, // RGF93 v2 / Lambert-93
    {9794, 9782, 169073, 2080, 47, 4, false}, // RGF93 v2b / Lambert-93
    {9821, 5561, 196918, 870, 2914, 5, false}, // UCS-2000 / LCS-32 Kyiv region
    {9822, 9777, 168741, 2086, 1976, 4, false}, // RGF93 v2 / CC42
    {9823, 9777, 168755, 2087, 1977, 4, false}, // RGF93 v2 / CC43
    {9824, 9777, 168769, 2088, 1978, 4, false}, // RGF93 v2 / CC44
    {9825, 9777, 168783, 2089, 1979, 4, false}, // RGF93 v2 / CC45
    {9826, 9777, 168797, 2090, 1980, 4, false}, // RGF93 v2 / CC46
    {9827, 9777, 168811, 2091, 1981, 4, false}, // RGF93 v2 / CC47
    {9828, 9777, 168825, 2092, 1982, 4, false}, // RGF93 v2 / CC48
    {9829, 9777, 168839, 2093, 1983, 4, false}, // RGF93 v2 / CC49
    {9830, 9777, 168853, 2094, 1984, 4, false}, // RGF93 v2 / CC50
    {9831, 5561, 196726, 871, 2929, 5, false}, // UCS-2000 / LCS-01 Crimea
    {9832, 5561, 196744, 872, 2924, 5, false}, // UCS-2000 / LCS-05 Vinnytsia
    {9833, 5561, 196765, 873, 2925, 5, false}, // UCS-2000 / LCS-07 Volyn
    {9834, 5561, 196782, 874, 2908, 5, false}, // UCS-2000 / LCS-12 Dnipropetrovsk
    {9835, 5561, 196808, 875, 2909, 5, false}, // UCS-2000 / LCS-14 Donetsk
    {9836, 5561, 196826, 876, 2928, 5, false}, // UCS-2000 / LCS-18 Zhytomyr
    {9837, 5561, 196846, 877, 2926, 5, false}, // UCS-2000 / LCS-21 Zakarpattia
    {9838, 5561, 196868, 878, 2927, 5, false}, // UCS-2000 / LCS-23 Zaporizhzhia
    {9839, 5561, 196892, 879, 2910, 5, false}, // UCS-2000 / LCS-26 Ivano-Frankivsk
    {9840, 5561, 196938, 880, 2915, 5, false}, // UCS-2000 / LCS-35 Kirovohrad
    {9841, 5561, 196959, 881, 2916, 5, false}, // UCS-2000 / LCS-44 Luhansk
    {9842, 9782, 168938, 2086, 1976, 4, false}, // RGF93 v2b / CC42
    {9843, 9782, 168953, 2087, 1977, 4, false}, // RGF93 v2b / CC43
    {9844, 9782, 168968, 2088, 1978, 4, false}, // RGF93 v2b / CC44
    {9845, 9782, 168983, 2089, 1979, 4, false}, // RGF93 v2b / CC45
    {9846, 9782, 168998, 2090, 1980, 4, false}, // RGF93 v2b / CC46
    {9847, 9782, 169013, 2091, 1981, 4, false}, // RGF93 v2b / CC47
    {9848, 9782, 169028, 2092, 1982, 4, false}, // RGF93 v2b / CC48
    {9849, 9782, 169043, 2093, 1983, 4, false}, // RGF93 v2b / CC49
    {9850, 9782, 169058, 2094, 1984, 4, false}, // RGF93 v2b / CC50
    {9851, 5561, 196978, 882, 2917, 5, false}, // UCS-2000 / LCS-46 Lviv
    {9852, 5561, 196995, 883, 2918, 5, false}, // UCS-2000 / LCS-48 Mykolaiv
    {9853, 5561, 197015, 884, 2919, 5, false}, // UCS-2000 / LCS-51 Odessa
    {9854, 5561, 197033, 885, 2920, 5, false}, // UCS-2000 / LCS-53 Poltava
    {9855, 5561, 197052, 886, 2921, 5, false}, // UCS-2000 / LCS-56 Rivne
    {9856, 5561, 197070, 887, 2922, 5, false}, // UCS-2000 / LCS-59 Sumy
    {9857, 5561, 197086, 888, 2923, 5, false}, // UCS-2000 / LCS-61 Ternopil
    {9858, 5561, 197105, 889, 2911, 5, false}, // UCS-2000 / LCS-63 Kharkiv
    {9859, 5561, 197124, 890, 2912, 5, false}, // UCS-2000 / LCS-65 Kherson
    {9860, 5561, 197141, 886, 2913, 5, false}, // UCS-2000 / LCS-68 Khmelnytsky
    {9861, 5561, 197164, 891, 2905, 5, false}, // UCS-2000 / LCS-71 Cherkasy
    {9862, 5561, 197182, 892, 2907, 5, false}, // UCS-2000 / LCS-73 Chernivtsi
    {9863, 5561, 197203, 893, 2906, 5, false}, // UCS-2000 / LCS-74 Chernihiv
    {9864, 5561, 197223, 870, 2904, 5, false}, // UCS-2000 / LCS-80 Kyiv city
    {9865, 5561, 197244, 894, 2930, 5, false}, // UCS-2000 / LCS-85 Sevastopol
    {9866, 1314, 90264, geographic, 2931, 25, false}, // MRH21-IRF
    {9869, 9866, 90228, 895, 2931, 4, false}, // MRH21 Grid
    {9871, 1315, 90069, geographic, 2934, 25, false}, // MOLDOR11-IRF
    {9874, 5546, 146465, 896, 2932, 4, false}, // PNG94 / PNGMG94 zone 57
    {9875, 5546, 146482, 897, 2933, 4, false}, // PNG94 / PNGMG94 zone 58
    {9880, 9871, 90029, 898, 2934, 4, false}, // MOLDOR11 Grid
    {9895, 4181, 84453, 899, 77, 5, false}, // LUREF / Luxembourg TM (3D)
    {9939, 1319, 41232, geographic, 2936, 25, false}, // EBBWV14-IRF
    {9943, 9939, 41192, 901, 2936, 4, false}, // EBBWV14 Grid
    {9945, 3906, 90838, 900, 79, 4, false}, // Macedonia State Coordinate System truncated
    {9947, 5324, 70526, 902, 58, 4, false}, // ISN2004 / LAEA Iceland
    {9964, 1317, 66736, geographic, 2937, 25, false}, // HULLEE13-IRF
    {9967, 9964, 66694, 903, 2937, 4, false}, // HULLEE13 Grid
    {9969, 1320, 175811, geographic, 2939, 25, false}, // SCM22-IRF
    {9972, 9969, 175777, 904, 2939, 4, false}, // SCM22 Grid
    {9974, 1321, 50599, geographic, 2938, 25, false}, // FNL22-IRF
    {9977, 9974, 50563, 905, 2938, 4, false}, // FNL22 Grid
    {9990, 1322, 71017, geographic, 138, 25, false}, // ITRF2020
    {20002, 20033, 90614, 910, 2940, 4, false}, // MWC18 Grid
    {20004, 4200, 166418, 1475, 609, 5, false}, // Pulkovo 1995 / Gauss-Kruger zone 4
    {20005, 4200, 166442, 1476, 610, 5, false}, // Pulkovo 1995 / Gauss-Kruger zone 5
    {20006, 4200, 166466, 1477, 611, 5, false}, // Pulkovo 1995 / Gauss-Kruger zone 6
    {20007, 4200, 166490, 1478, 612, 5, false}, // Pulkovo 1995 / Gauss-Kruger zone 7
    {20008, 4200, 166514, 1479, 613, 5, false}, // Pulkovo 1995 / Gauss-Kruger zone 8
    {20009, 4200, 166538, 1480, 614, 5, false}, // Pulkovo 1995 / Gauss-Kruger zone 9
    {20010, 4200, 165843, 1481, 615, 5, false}, // Pulkovo 1995 / Gauss-Kruger zone 10
    {20011, 4200, 165868, 1482, 616, 5, false}, // Pulkovo 1995 / Gauss-Kruger zone 11
    {20012, 4200, 165893, 1483, 617, 5, false}, // Pulkovo 1995 / Gauss-Kruger zone 12
    {20013, 4200, 165918, 1484, 618, 5, false}, // Pulkovo 1995 / Gauss-Kruger zone 13
    {20014, 4200, 165943, 1485, 619, 5, false}, // Pulkovo 1995 / Gauss-Kruger zone 14
    {20015, 4200, 165968, 1486, 620, 5, false}, // Pulkovo 1995 / Gauss-Kruger zone 15
    {20016, 4200, 165993, 1487, 621, 5, false}, // Pulkovo 1995 / Gauss-Kruger zone 16
    {20017, 4200, 166018, 1488, 622, 5, false}, // Pulkovo 1995 / Gauss-Kruger zone 17
    {20018, 4200, 166043, 1489, 623, 5, false}, // Pulkovo 1995 / Gauss-Kruger zone 18
    {20019, 4200, 166068, 1490, 624, 5, false}, // Pulkovo 1995 / Gauss-Kruger zone 19
    {20020, 4200, 166093, 1491, 625, 5, false}, // Pulkovo 1995 / Gauss-Kruger zone 20
    {20021, 4200, 166118, 1492, 626, 5, false}, // Pulkovo 1995 / Gauss-Kruger zone 21
    {20022, 4200, 166143, 1493, 627, 5, false}, // Pulkovo 1995 / Gauss-Kruger zone 22
    {20023, 4200, 166168, 1494, 628, 5, false}, // Pulkovo 1995 / Gauss-Kruger zone 23
    {20024, 4200, 166193, 1495, 629, 5, false}, // Pulkovo 1995 / Gauss-Kruger zone 24
    {20025, 4200, 166218, 1496, 630, 5, false}, // Pulkovo 1995 / Gauss-Kruger zone 25
    {20026, 4200, 166243, 1497, 631, 5, false}, // Pulkovo 1995 / Gauss-Kruger zone 26
    {20027, 4200, 166268, 1498, 632, 5, false}, // Pulkovo 1995 / Gauss-Kruger zone 27
    {20028, 4200, 166293, 1499, 633, 5, false}, // Pulkovo 1995 / Gauss-Kruger zone 28
    {20029, 4200, 166318, 1500, 634, 5, false}, // Pulkovo 1995 / Gauss-Kruger zone 29
    {20030, 4200, 166343, 1501, 635, 5, false}, // Pulkovo 1995 / Gauss-Kruger zone 30
    {20031, 4200, 166368, 1502, 636, 5, false}, // Pulkovo 1995 / Gauss-Kruger zone 31
    {20032, 4200, 166393, 1503, 637, 5, false}, // Pulkovo 1995 / Gauss-Kruger zone 32
    {20033, 1324, 90650, geographic, 2940, 25, false}, // MWC18-IRF
    {20041, 1327, 177943, geographic, 26, 25, false}, // SIRGAS-Chile 2021
    {20042, 20041, 177958, 1410, 2941, 4, false}, // SIRGAS-Chile 2021 / UTM zone 12S
    {20047, 7844, 54624, 913, 1515, 4, false}, // GDA2020 / BCSG2020
    {20048, 20041, 177980, 1416, 2206, 4, false}, // SIRGAS-Chile 2021 / UTM zone 18S
    {20049, 20041, 178002, 1417, 2193, 4, false}, // SIRGAS-Chile 2021 / UTM zone 19S
    {20050, 6318, 105154, 914, 2942, 6, false}, // NAD83(2011) / Amtrak NECCS21 (ft)
    {20064, 4200, 164870, 1545, 609, 5, true}, // Pulkovo 1995 / Gauss-Kruger 4N
    {20065, 4200, 164895, 1546, 610, 5, true}, // Pulkovo 1995 / Gauss-Kruger 5N
    {20066, 4200, 164920, 1547, 611, 5, true}, // Pulkovo 1995 / Gauss-Kruger 6N
    {20067, 4200, 164945, 1548, 612, 5, true}, // Pulkovo 1995 / Gauss-Kruger 7N
    {20068, 4200, 164970, 1549, 613, 5, true}, // Pulkovo 1995 / Gauss-Kruger 8N
    {20069, 4200, 164995, 1550, 614, 5, true}, // Pulkovo 1995 / Gauss-Kruger 9N
    {20070, 4200, 164274, 1551, 615, 5, true}, // Pulkovo 1995 / Gauss-Kruger 10N
    {20071, 4200, 164299, 1552, 616, 5, true}, // Pulkovo 1995 / Gauss-Kruger 11N
    {20072, 4200, 164325, 1553, 617, 5, true}, // Pulkovo 1995 / Gauss-Kruger 12N
    {20073, 4200, 164351, 1554, 618, 5, true}, // Pulkovo 1995 / Gauss-Kruger 13N
    {20074, 4200, 164377, 1555, 619, 5, true}, // Pulkovo 1995 / Gauss-Kruger 14N
    {20075, 4200, 164403, 1556, 620, 5, true}, // Pulkovo 1995 / Gauss-Kruger 15N
    {20076, 4200, 164429, 1557, 621, 5, true}, // Pulkovo 1995 / Gauss-Kruger 16N
    {20077, 4200, 164455, 1558, 622, 5, true}, // Pulkovo 1995 / Gauss-Kruger 17N
    {20078, 4200, 164481, 1559, 623, 5, true}, // Pulkovo 1995 / Gauss-Kruger 18N
    {20079, 4200, 164507, 1560, 624, 5, true}, // Pulkovo 1995 / Gauss-Kruger 19N
    {20080, 4200, 164533, 1561, 625, 5, true}, // Pulkovo 1995 / Gauss-Kruger 20N
    {20081, 4200, 164558, 1562, 626, 5, true}, // Pulkovo 1995 / Gauss-Kruger 21N
    {20082, 4200, 164584, 1563, 627, 5, true}, // Pulkovo 1995 / Gauss-Kruger 22N
    {20083, 4200, 164610, 1564, 628, 5, true}, // Pulkovo 1995 / Gauss-Kruger 23N
    {20084, 4200, 164636, 1565, 629, 5, true}, // Pulkovo 1995 / Gauss-Kruger 24N
    {20085, 4200, 164662, 1566, 630, 5, true}, // Pulkovo 1995 / Gauss-Kruger 25N
    {20086, 4200, 164688, 1567, 631, 5, true}, // Pulkovo 1995 / Gauss-Kruger 26N
    {20087, 4200, 164714, 1568, 632, 5, true}, // Pulkovo 1995 / Gauss-Kruger 27N
    {20088, 4200, 164740, 1569, 633, 5, true}, // Pulkovo 1995 / Gauss-Kruger 28N
    {20089, 4200, 164766, 1570, 634, 5, true}, // Pulkovo 1995 / Gauss-Kruger 29N
    {20090, 4200, 164792, 1571, 635, 5, true}, // Pulkovo 1995 / Gauss-Kruger 30N
    {20091, 4200, 164818, 1572, 636, 5, true}, // Pulkovo 1995 / Gauss-Kruger 31N
    {20092, 4200, 164844, 1573, 637, 5, true}, // Pulkovo 1995 / Gauss-Kruger 32N
    {20135, 4201, 4850, 1344, 1430, 4, false}, // Adindan / UTM zone 35N
    {20136, 4201, 4863, 1345, 1429, 4, false}, // Adindan / UTM zone 36N
    {20137, 4201, 4876, 1346, 406, 4, false}, // Adindan / UTM zone 37N
    {20138, 4201, 4889, 1347, 407, 4, false}, // Adindan / UTM zone 38N
    {20248, 4202, 3692, 1893, 410, 4, true}, // AGD66 / AMG zone 48
    {20249, 4202, 3705, 1894, 411, 4, false}, // AGD66 / AMG zone 49
    {20250, 4202, 3718, 1895, 412, 4, false}, // AGD66 / AMG zone 50
    {20251, 4202, 3731, 1896, 413, 4, false}, // AGD66 / AMG zone 51
    {20252, 4202, 3744, 1897, 414, 4, false}, // AGD66 / AMG zone 52
    {20253, 4202, 3757, 1898, 415, 4, false}, // AGD66 / AMG zone 53
    {20254, 4202, 3770, 1899, 421, 4, false}, // AGD66 / AMG zone 54
    {20255, 4202, 3783, 1900, 422, 4, false}, // AGD66 / AMG zone 55
    {20256, 4202, 3796, 1901, 1136, 4, false}, // AGD66 / AMG zone 56
    {20257, 4202, 3809, 1902, 419, 4, false}, // AGD66 / AMG zone 57
    {20258, 4202, 3822, 1903, 420, 4, false}, // AGD66 / AMG zone 58
    {20348, 4203, 3860, 1893, 410, 4, true}, // AGD84 / AMG zone 48
    {20349, 4203, 3873, 1894, 411, 4, false}, // AGD84 / AMG zone 49
    {20350, 4203, 3886, 1895, 412, 4, false}, // AGD84 / AMG zone 50
    {20351, 4203, 3899, 1896, 413, 4, false}, // AGD84 / AMG zone 51
    {20352, 4203, 3912, 1897, 2112, 4, false}, // AGD84 / AMG zone 52
    {20353, 4203, 3925, 1898, 2113, 4, false}, // AGD84 / AMG zone 53
    {20354, 4203, 3938, 1899, 2114, 4, false}, // AGD84 / AMG zone 54
    {20355, 4203, 3951, 1900, 2115, 4, false}, // AGD84 / AMG zone 55
    {20356, 4203, 3964, 1901, 2116, 4, false}, // AGD84 / AMG zone 56
    {20357, 4203, 3977, 1902, 419, 4, true}, // AGD84 / AMG zone 57
    {20358, 4203, 3990, 1903, 420, 4, true}, // AGD84 / AMG zone 58
    {20436, 4204, 5727, 1345, 1632, 4, false}, // Ain el Abd / UTM zone 36N
    {20437, 4204, 5743, 1346, 423, 4, false}, // Ain el Abd / UTM zone 37N
    {20438, 4204, 5759, 1347, 425, 4, false}, // Ain el Abd / UTM zone 38N
    {20439, 4204, 5775, 1348, 424, 4, false}, // Ain el Abd / UTM zone 39N
    {20440, 4204, 5791, 1349, 1631, 4, false}, // Ain el Abd / UTM zone 40N
    {20499, 4204, 5709, 2293, 2288, 4, false}, // Ain el Abd / Bahrain Grid
    {20538, 4205, 4944, 1347, 408, 4, false}, // Afgooye / UTM zone 38N
    {20539, 4205, 4959, 1348, 409, 4, false}, // Afgooye / UTM zone 39N
    {20790, 4803, 86058, 2325, 162, 4, false}, // Lisbon (Lisbon) / Portuguese National Grid
    {20791, 4803, 86036, 2357, 162, 4, false}, // Lisbon (Lisbon) / Portuguese Grid
    {20822, 4208, 10770, 1420, 426, 4, false}, // Aratu / UTM zone 22S
    {20823, 4208, 10781, 1421, 427, 4, false}, // Aratu / UTM zone 23S
    {20824, 4208, 10792, 1422, 428, 4, false}, // Aratu / UTM zone 24S
    {20904, 7683, 63117, 1475, 609, 5, false}, // GSK-2011 / Gauss-Kruger zone 4
    {20905, 7683, 63136, 1476, 610, 5, false}, // GSK-2011 / Gauss-Kruger zone 5
    {20906, 7683, 63155, 1477, 611, 5, false}, // GSK-2011 / Gauss-Kruger zone 6
    {20907, 7683, 63174, 1478, 612, 5, false}, // GSK-2011 / Gauss-Kruger zone 7
    {20908, 7683, 63193, 1479, 613, 5, false}, // GSK-2011 / Gauss-Kruger zone 8
    {20909, 7683, 63212, 1480, 614, 5, false}, // GSK-2011 / Gauss-Kruger zone 9
    {20910, 7683, 62657, 1481, 615, 5, false}, // GSK-2011 / Gauss-Kruger zone 10
    {20911, 7683, 62677, 1482, 616, 5, false}, // GSK-2011 / Gauss-Kruger zone 11
    {20912, 7683, 62697, 1483, 617, 5, false}, // GSK-2011 / Gauss-Kruger zone 12
    {20913, 7683, 62717, 1484, 618, 5, false}, // GSK-2011 / Gauss-Kruger zone 13
    {20914, 7683, 62737, 1485, 619, 5, false}, // GSK-2011 / Gauss-Kruger zone 14
    {20915, 7683, 62757, 1486, 620, 5, false}, // GSK-2011 / Gauss-Kruger zone 15
    {20916, 7683, 62777, 1487, 621, 5, false}, // GSK-2011 / Gauss-Kruger zone 16
    {20917, 7683, 62797, 1488, 622, 5, false}, // GSK-2011 / Gauss-Kruger zone 17
    {20918, 7683, 62817, 1489, 623, 5, false}, // GSK-2011 / Gauss-Kruger zone 18
    {20919, 7683, 62837, 1490, 624, 5, false}, // GSK-2011 / Gauss-Kruger zone 19
    {20920, 7683, 62857, 1491, 625, 5, false}, // GSK-2011 / Gauss-Kruger zone 20
    {20921, 7683, 62877, 1492, 626, 5, false}, // GSK-2011 / Gauss-Kruger zone 21
    {20922, 7683, 62897, 1493, 627, 5, false}, // GSK-2011 / Gauss-Kruger zone 22
    {20923, 7683, 62917, 1494, 628, 5, false}, // GSK-2011 / Gauss-Kruger zone 23
    {20924, 7683, 62937, 1495, 629, 5, false}, // GSK-2011 / Gauss-Kruger zone 24
    {20925, 7683, 62957, 1496, 630, 5, false}, // GSK-2011 / Gauss-Kruger zone 25
    {20926, 7683, 62977, 1497, 631, 5, false}, // GSK-2011 / Gauss-Kruger zone 26
    {20927, 7683, 62997, 1498, 632, 5, false}, // GSK-2011 / Gauss-Kruger zone 27
    {20928, 7683, 63017, 1499, 633, 5, false}, // GSK-2011 / Gauss-Kruger zone 28
    {20929, 7683, 63037, 1500, 634, 5, false}, // GSK-2011 / Gauss-Kruger zone 29
    {20930, 7683, 63057, 1501, 635, 5, false}, // GSK-2011 / Gauss-Kruger zone 30
    {20931, 7683, 63077, 1502, 636, 5, false}, // GSK-2011 / Gauss-Kruger zone 31
    {20932, 7683, 63097, 1503, 637, 5, false}, // GSK-2011 / Gauss-Kruger zone 32
    {20934, 4209, 10839, 1432, 429, 4, false}, // Arc 1950 / UTM zone 34S
    {20935, 4209, 10852, 1433, 430, 4, false}, // Arc 1950 / UTM zone 35S
    {20936, 4209, 10865, 1434, 431, 4, false}, // Arc 1950 / UTM zone 36S
    {21004, 7683, 62336, 1545, 609, 5, false}, // GSK-2011 / Gauss-Kruger CM 21E
    {21005, 7683, 62359, 1546, 610, 5, false}, // GSK-2011 / Gauss-Kruger CM 27E
    {21006, 7683, 62381, 1547, 611, 5, false}, // GSK-2011 / Gauss-Kruger CM 33E
    {21007, 7683, 62404, 1548, 612, 5, false}, // GSK-2011 / Gauss-Kruger CM 39E
    {21008, 7683, 62427, 1549, 613, 5, false}, // GSK-2011 / Gauss-Kruger CM 45E
    {21009, 7683, 62450, 1550, 614, 5, false}, // GSK-2011 / Gauss-Kruger CM 51E
    {21010, 7683, 62473, 1551, 615, 5, false}, // GSK-2011 / Gauss-Kruger CM 57E
    {21011, 7683, 62496, 1552, 616, 5, false}, // GSK-2011 / Gauss-Kruger CM 63E
    {21012, 7683, 62519, 1553, 617, 5, false}, // GSK-2011 / Gauss-Kruger CM 69E
    {21013, 7683, 62542, 1554, 618, 5, false}, // GSK-2011 / Gauss-Kruger CM 75E
    {21014, 7683, 62565, 1555, 619, 5, false}, // GSK-2011 / Gauss-Kruger CM 81E
    {21015, 7683, 62588, 1556, 620, 5, false}, // GSK-2011 / Gauss-Kruger CM 87E
    {21016, 7683, 62611, 1557, 621, 5, false}, // GSK-2011 / Gauss-Kruger CM 93E
    {21017, 7683, 62634, 1558, 622, 5, false}, // GSK-2011 / Gauss-Kruger CM 99E
    {21018, 7683, 61979, 1559, 623, 5, false}, // GSK-2011 / Gauss-Kruger CM 105E
    {21019, 7683, 62002, 1560, 624, 5, false}, // GSK-2011 / Gauss-Kruger CM 111E
    {21020, 7683, 62025, 1561, 625, 5, false}, // GSK-2011 / Gauss-Kruger CM 117E
    {21021, 7683, 62048, 1562, 626, 5, false}, // GSK-2011 / Gauss-Kruger CM 123E
    {21022, 7683, 62072, 1563, 627, 5, false}, // GSK-2011 / Gauss-Kruger CM 129E
    {21023, 7683, 62096, 1564, 628, 5, false}, // GSK-2011 / Gauss-Kruger CM 135E
    {21024, 7683, 62120, 1565, 629, 5, false}, // GSK-2011 / Gauss-Kruger CM 141E
    {21025, 7683, 62144, 1566, 630, 5, false}, // GSK-2011 / Gauss-Kruger CM 147E
    {21026, 7683, 62168, 1567, 631, 5, false}, // GSK-2011 / Gauss-Kruger CM 153E
    {21027, 7683, 62192, 1568, 632, 5, false}, // GSK-2011 / Gauss-Kruger CM 159E
    {21028, 7683, 62216, 1569, 633, 5, false}, // GSK-2011 / Gauss-Kruger CM 165E
    {21029, 7683, 62240, 1570, 634, 5, false}, // GSK-2011 / Gauss-Kruger CM 171E
    {21030, 7683, 62288, 1571, 635, 5, false}, // GSK-2011 / Gauss-Kruger CM 177E
    {21031, 7683, 62312, 1572, 636, 5, false}, // GSK-2011 / Gauss-Kruger CM 177W
    {21032, 7683, 62264, 1573, 637, 5, false}, // GSK-2011 / Gauss-Kruger CM 171W
    {21035, 4210, 10897, 1433, 433, 4, false}, // Arc 1960 / UTM zone 35S
    {21036, 4210, 10923, 1434, 435, 4, false}, // Arc 1960 / UTM zone 36S
    {21037, 4210, 10949, 1435, 437, 4, false}, // Arc 1960 / UTM zone 37S
    {21095, 4210, 10884, 1344, 432, 4, false}, // Arc 1960 / UTM zone 35N
    {21096, 4210, 10910, 1345, 434, 4, false}, // Arc 1960 / UTM zone 36N
    {21097, 4210, 10936, 1346, 436, 4, false}, // Arc 1960 / UTM zone 37N
    {21100, 4813, 19877, 2298, 154, 4, true}, // Batavia (Jakarta) / NEIEZ
    {21148, 4211, 19951, 1446, 438, 4, false}, // Batavia / UTM zone 48S
    {21149, 4211, 19965, 1447, 440, 4, false}, // Batavia / UTM zone 49S
    {21150, 4211, 19979, 1448, 439, 4, false}, // Batavia / UTM zone 50S
    {21207, 7683, 61931, 1607, 1368, 5, false}, // GSK-2011 / GSK 3GK zone 7
    {21208, 7683, 61947, 1608, 1369, 5, false}, // GSK-2011 / GSK 3GK zone 8
    {21209, 7683, 61963, 1609, 1370, 5, false}, // GSK-2011 / GSK 3GK zone 9
    {21210, 7683, 60996, 1610, 1371, 5, false}, // GSK-2011 / GSK 3GK zone 10
    {21211, 7683, 61013, 1611, 1372, 5, false}, // GSK-2011 / GSK 3GK zone 11
    {21212, 7683, 61030, 1612, 1373, 5, false}, // GSK-2011 / GSK 3GK zone 12
    {21213, 7683, 61047, 1613, 1374, 5, false}, // GSK-2011 / GSK 3GK zone 13
    {21214, 7683, 61064, 1614, 1375, 5, false}, // GSK-2011 / GSK 3GK zone 14
    {21215, 7683, 61081, 1615, 1376, 5, false}, // GSK-2011 / GSK 3GK zone 15
    {21216, 7683, 61098, 1616, 1377, 5, false}, // GSK-2011 / GSK 3GK zone 16
    {21217, 7683, 61115, 1617, 1378, 5, false}, // GSK-2011 / GSK 3GK zone 17
    {21218, 7683, 61132, 1618, 1379, 5, false}, // GSK-2011 / GSK 3GK zone 18
    {21219, 7683, 61149, 1619, 1380, 5, false}, // GSK-2011 / GSK 3GK zone 19
    {21220, 7683, 61166, 1620, 1381, 5, false}, // GSK-2011 / GSK 3GK zone 20
    {21221, 7683, 61183, 1621, 1382, 5, false}, // GSK-2011 / GSK 3GK zone 21
    {21222, 7683, 61200, 1622, 1383, 5, false}, // GSK-2011 / GSK 3GK zone 22
    {21223, 7683, 61217, 1623, 1384, 5, false}, // GSK-2011 / GSK 3GK zone 23
    {21224, 7683, 61234, 1624, 1385, 5, false}, // GSK-2011 / GSK 3GK zone 24
    {21225, 7683, 61251, 1625, 1386, 5, false}, // GSK-2011 / GSK 3GK zone 25
    {21226, 7683, 61268, 1626, 1387, 5, false}, // GSK-2011 / GSK 3GK zone 26
    {21227, 7683, 61285, 1627, 1388, 5, false}, // GSK-2011 / GSK 3GK zone 27
    {21228, 7683, 61302, 1628, 1389, 5, false}, // GSK-2011 / GSK 3GK zone 28
    {21229, 7683, 61319, 1629, 1390, 5, false}, // GSK-2011 / GSK 3GK zone 29
    {21230, 7683, 61336, 1630, 1312, 5, false}, // GSK-2011 / GSK 3GK zone 30
    {21231, 7683, 61353, 1631, 1313, 5, false}, // GSK-2011 / GSK 3GK zone 31
    {21232, 7683, 61370, 1632, 1314, 5, false}, // GSK-2011 / GSK 3GK zone 32
    {21233, 7683, 61387, 1633, 1315, 5, false}, // GSK-2011 / GSK 3GK zone 33
    {21234, 7683, 61404, 1634, 1316, 5, false}, // GSK-2011 / GSK 3GK zone 34
    {21235, 7683, 61421, 1635, 1317, 5, false}, // GSK-2011 / GSK 3GK zone 35
    {21236, 7683, 61438, 1636, 1318, 5, false}, // GSK-2011 / GSK 3GK zone 36
    {21237, 7683, 61455, 1637, 1319, 5, false}, // GSK-2011 / GSK 3GK zone 37
    {21238, 7683, 61472, 1638, 1320, 5, false}, // GSK-2011 / GSK 3GK zone 38
    {21239, 7683, 61489, 1639, 1321, 5, false}, // GSK-2011 / GSK 3GK zone 39
    {21240, 7683, 61506, 1640, 1322, 5, false}, // GSK-2011 / GSK 3GK zone 40
    {21241, 7683, 61523, 1641, 1323, 5, false}, // GSK-2011 / GSK 3GK zone 41
    {21242, 7683, 61540, 1642, 1324, 5, false}, // GSK-2011 / GSK 3GK zone 42
    {21243, 7683, 61557, 1643, 1325, 5, false}, // GSK-2011 / GSK 3GK zone 43
    {21244, 7683, 61574, 1644, 1326, 5, false}, // GSK-2011 / GSK 3GK zone 44
    {21245, 7683, 61591, 1645, 1327, 5, false}, // GSK-2011 / GSK 3GK zone 45
    {21246, 7683, 61608, 1646, 1328, 5, false}, // GSK-2011 / GSK 3GK zone 46
    {21247, 7683, 61625, 1647, 1329, 5, false}, // GSK-2011 / GSK 3GK zone 47
    {21248, 7683, 61642, 1648, 1330, 5, false}, // GSK-2011 / GSK 3GK zone 48
    {21249, 7683, 61659, 1649, 1331, 5, false}, // GSK-2011 / GSK 3GK zone 49
    {21250, 7683, 61676, 1650, 1332, 5, false}, // GSK-2011 / GSK 3GK zone 50
    {21251, 7683, 61693, 1651, 1333, 5, false}, // GSK-2011 / GSK 3GK zone 51
    {21252, 7683, 61710, 1652, 1334, 5, false}, // GSK-2011 / GSK 3GK zone 52
    {21253, 7683, 61727, 1653, 1335, 5, false}, // GSK-2011 / GSK 3GK zone 53
    {21254, 7683, 61744, 1654, 1336, 5, false}, // GSK-2011 / GSK 3GK zone 54
    {21255, 7683, 61761, 1655, 1337, 5, false}, // GSK-2011 / GSK 3GK zone 55
    {21256, 7683, 61778, 1656, 1338, 5, false}, // GSK-2011 / GSK 3GK zone 56
    {21257, 7683, 61795, 1657, 1339, 5, false}, // GSK-2011 / GSK 3GK zone 57
    {21258, 7683, 61812, 1658, 1340, 5, false}, // GSK-2011 / GSK 3GK zone 58
    {21259, 7683, 61829, 1659, 1341, 5, false}, // GSK-2011 / GSK 3GK zone 59
    {21260, 7683, 61846, 1660, 1342, 5, false}, // GSK-2011 / GSK 3GK zone 60
    {21261, 7683, 61863, 1661, 1343, 5, false}, // GSK-2011 / GSK 3GK zone 61
    {21262, 7683, 61880, 1662, 1344, 5, false}, // GSK-2011 / GSK 3GK zone 62
    {21263, 7683, 61897, 1663, 1345, 5, false}, // GSK-2011 / GSK 3GK zone 63
    {21264, 7683, 61914, 1664, 1346, 5, false}, // GSK-2011 / GSK 3GK zone 64
    {21291, 4212, 19662, 2331, 1718, 4, false}, // Barbados 1938 / British West Indies Grid
    {21292, 4212, 19637, 2332, 1718, 4, false}, // Barbados 1938 / Barbados National Grid
    {21307, 7683, 60457, 1668, 1368, 5, false}, // GSK-2011 / GSK 3GK CM 21E
    {21308, 7683, 60477, 1669, 1369, 5, false}, // GSK-2011 / GSK 3GK CM 24E
    {21309, 7683, 60497, 1670, 1370, 5, false}, // GSK-2011 / GSK 3GK CM 27E
    {21310, 7683, 60516, 1671, 1371, 5, false}, // GSK-2011 / GSK 3GK CM 30E
    {21311, 7683, 60536, 1672, 1372, 5, false}, // GSK-2011 / GSK 3GK CM 33E
    {21312, 7683, 60556, 1673, 1373, 5, false}, // GSK-2011 / GSK 3GK CM 36E
    {21313, 7683, 60576, 1674, 1374, 5, false}, // GSK-2011 / GSK 3GK CM 39E
    {21314, 7683, 60596, 1675, 1375, 5, false}, // GSK-2011 / GSK 3GK CM 42E
    {21315, 7683, 60616, 1676, 1376, 5, false}, // GSK-2011 / GSK 3GK CM 45E
    {21316, 7683, 60636, 1677, 1377, 5, false}, // GSK-2011 / GSK 3GK CM 48E
    {21317, 7683, 60656, 1678, 1378, 5, false}, // GSK-2011 / GSK 3GK CM 51E
    {21318, 7683, 60676, 1679, 1379, 5, false}, // GSK-2011 / GSK 3GK CM 54E
    {21319, 7683, 60696, 1680, 1380, 5, false}, // GSK-2011 / GSK 3GK CM 57E
    {21320, 7683, 60716, 1681, 1381, 5, false}, // GSK-2011 / GSK 3GK CM 60E
    {21321, 7683, 60736, 1682, 1382, 5, false}, // GSK-2011 / GSK 3GK CM 63E
    {21322, 7683, 60756, 1683, 1383, 5, false}, // GSK-2011 / GSK 3GK CM 66E
    {21323, 7683, 60776, 1684, 1384, 5, false}, // GSK-2011 / GSK 3GK CM 69E
    {21324, 7683, 60796, 1685, 1385, 5, false}, // GSK-2011 / GSK 3GK CM 72E
    {21325, 7683, 60816, 1686, 1386, 5, false}, // GSK-2011 / GSK 3GK CM 75E
    {21326, 7683, 60836, 1687, 1387, 5, false}, // GSK-2011 / GSK 3GK CM 78E
    {21327, 7683, 60856, 1688, 1388, 5, false}, // GSK-2011 / GSK 3GK CM 81E
    {21328, 7683, 60876, 1689, 1389, 5, false}, // GSK-2011 / GSK 3GK CM 84E
    {21329, 7683, 60896, 1690, 1390, 5, false}, // GSK-2011 / GSK 3GK CM 87E
    {21330, 7683, 60916, 1691, 1312, 5, false}, // GSK-2011 / GSK 3GK CM 90E
    {21331, 7683, 60936, 1692, 1313, 5, false}, // GSK-2011 / GSK 3GK CM 93E
    {21332, 7683, 60956, 1693, 1314, 5, false}, // GSK-2011 / GSK 3GK CM 96E
    {21333, 7683, 60976, 1694, 1315, 5, false}, // GSK-2011 / GSK 3GK CM 99E
    {21334, 7683, 59813, 1695, 1316, 5, false}, // GSK-2011 / GSK 3GK CM 102E
    {21335, 7683, 59833, 1696, 1317, 5, false}, // GSK-2011 / GSK 3GK CM 105E
    {21336, 7683, 59853, 1697, 1318, 5, false}, // GSK-2011 / GSK 3GK CM 108E
    {21337, 7683, 59873, 1698, 1319, 5, false}, // GSK-2011 / GSK 3GK CM 111E
    {21338, 7683, 59893, 1699, 1320, 5, false}, // GSK-2011 / GSK 3GK CM 114E
    {21339, 7683, 59913, 1700, 1321, 5, false}, // GSK-2011 / GSK 3GK CM 117E
    {21340, 7683, 59933, 1701, 1322, 5, false}, // GSK-2011 / GSK 3GK CM 120E
    {21341, 7683, 59953, 1702, 1323, 5, false}, // GSK-2011 / GSK 3GK CM 123E
    {21342, 7683, 59974, 1703, 1324, 5, false}, // GSK-2011 / GSK 3GK CM 126E
    {21343, 7683, 59995, 1704, 1325, 5, false}, // GSK-2011 / GSK 3GK CM 129E
    {21344, 7683, 60016, 1705, 1326, 5, false}, // GSK-2011 / GSK 3GK CM 132E
    {21345, 7683, 60037, 1706, 1327, 5, false}, // GSK-2011 / GSK 3GK CM 135E
    {21346, 7683, 60058, 1707, 1328, 5, false}, // GSK-2011 / GSK 3GK CM 138E
    {21347, 7683, 60079, 1708, 1329, 5, false}, // GSK-2011 / GSK 3GK CM 141E
    {21348, 7683, 60100, 1709, 1330, 5, false}, // GSK-2011 / GSK 3GK CM 144E
    {21349, 7683, 60121, 1710, 1331, 5, false}, // GSK-2011 / GSK 3GK CM 147E
    {21350, 7683, 60142, 1711, 1332, 5, false}, // GSK-2011 / GSK 3GK CM 150E
    {21351, 7683, 60163, 1712, 1333, 5, false}, // GSK-2011 / GSK 3GK CM 153E
    {21352, 7683, 60184, 1713, 1334, 5, false}, // GSK-2011 / GSK 3GK CM 156E
    {21353, 7683, 60205, 1714, 1335, 5, false}, // GSK-2011 / GSK 3GK CM 159E
    {21354, 7683, 60226, 1715, 1336, 5, false}, // GSK-2011 / GSK 3GK CM 162E
    {21355, 7683, 60247, 1716, 1337, 5, false}, // GSK-2011 / GSK 3GK CM 165E
    {21356, 7683, 60268, 1717, 1338, 5, false}, // GSK-2011 / GSK 3GK CM 168E
    {21357, 7683, 60310, 1718, 1339, 5, false}, // GSK-2011 / GSK 3GK CM 171E
    {21358, 7683, 60352, 1719, 1340, 5, false}, // GSK-2011 / GSK 3GK CM 174E
    {21359, 7683, 60394, 1720, 1341, 5, false}, // GSK-2011 / GSK 3GK CM 177E
    {21360, 7683, 60436, 1721, 1342, 5, false}, // GSK-2011 / GSK 3GK CM 180E
    {21361, 7683, 60415, 1722, 1343, 5, false}, // GSK-2011 / GSK 3GK CM 177W
    {21362, 7683, 60373, 1723, 1344, 5, false}, // GSK-2011 / GSK 3GK CM 174W
    {21363, 7683, 60331, 1724, 1345, 5, false}, // GSK-2011 / GSK 3GK CM 171W
    {21364, 7683, 60289, 1725, 1346, 5, false}, // GSK-2011 / GSK 3GK CM 168W
    {21413, 4214, 22162, 1484, 441, 5, false}, // Beijing 1954 / Gauss-Kruger zone 13
    {21414, 4214, 22186, 1485, 442, 5, false}, // Beijing 1954 / Gauss-Kruger zone 14
    {21415, 4214, 22210, 1486, 443, 5, false}, // Beijing 1954 / Gauss-Kruger zone 15
    {21416, 4214, 22234, 1487, 444, 5, false}, // Beijing 1954 / Gauss-Kruger zone 16
    {21417, 4214, 22258, 1488, 445, 5, false}, // Beijing 1954 / Gauss-Kruger zone 17
    {21418, 4214, 22282, 1489, 446, 5, false}, // Beijing 1954 / Gauss-Kruger zone 18
    {21419, 4214, 22306, 1490, 447, 5, false}, // Beijing 1954 / Gauss-Kruger zone 19
    {21420, 4214, 22330, 1491, 448, 5, false}, // Beijing 1954 / Gauss-Kruger zone 20
    {21421, 4214, 22354, 1492, 449, 5, false}, // Beijing 1954 / Gauss-Kruger zone 21
    {21422, 4214, 22378, 1493, 450, 5, false}, // Beijing 1954 / Gauss-Kruger zone 22
    {21423, 4214, 22402, 1494, 451, 5, false}, // Beijing 1954 / Gauss-Kruger zone 23
    {21453, 4214, 22027, 1554, 441, 5, false}, // Beijing 1954 / Gauss-Kruger CM 75E
    {21454, 4214, 22054, 1555, 442, 5, false}, // Beijing 1954 / Gauss-Kruger CM 81E
    {21455, 4214, 22081, 1556, 443, 5, false}, // Beijing 1954 / Gauss-Kruger CM 87E
    {21456, 4214, 22108, 1557, 444, 5, false}, // Beijing 1954 / Gauss-Kruger CM 93E
    {21457, 4214, 22135, 1558, 445, 5, false}, // Beijing 1954 / Gauss-Kruger CM 99E
    {21458, 4214, 21862, 1559, 446, 5, false}, // Beijing 1954 / Gauss-Kruger CM 105E
    {21459, 4214, 21889, 1560, 447, 5, false}, // Beijing 1954 / Gauss-Kruger CM 111E
    {21460, 4214, 21916, 1561, 448, 5, false}, // Beijing 1954 / Gauss-Kruger CM 117E
    {21461, 4214, 21943, 1562, 449, 5, false}, // Beijing 1954 / Gauss-Kruger CM 123E
    {21462, 4214, 21971, 1563, 450, 5, false}, // Beijing 1954 / Gauss-Kruger CM 129E
    {21463, 4214, 21999, 1564, 451, 5, false}, // Beijing 1954 / Gauss-Kruger CM 135E
    {21473, 4214, 21588, 1554, 441, 5, true}, // Beijing 1954 / Gauss-Kruger 13N
    {21474, 4214, 21613, 1555, 442, 5, true}, // Beijing 1954 / Gauss-Kruger 14N
    {21475, 4214, 21638, 1556, 443, 5, true}, // Beijing 1954 / Gauss-Kruger 15N
    {21476, 4214, 21663, 1557, 444, 5, true}, // Beijing 1954 / Gauss-Kruger 16N
    {21477, 4214, 21688, 1558, 445, 5, true}, // Beijing 1954 / Gauss-Kruger 17N
    {21478, 4214, 21713, 1559, 446, 5, true}, // Beijing 1954 / Gauss-Kruger 18N
    {21479, 4214, 21738, 1560, 447, 5, true}, // Beijing 1954 / Gauss-Kruger 19N
    {21480, 4214, 21763, 1561, 448, 5, true}, // Beijing 1954 / Gauss-Kruger 20N
    {21481, 4214, 21787, 1562, 449, 5, true}, // Beijing 1954 / Gauss-Kruger 21N
    {21482, 4214, 21812, 1563, 450, 5, true}, // Beijing 1954 / Gauss-Kruger 22N
    {21483, 4214, 21837, 1564, 451, 5, true}, // Beijing 1954 / Gauss-Kruger 23N
    {21500, 4809, 18697, 2294, 209, 4, false}, // BD50 (Brussels) / Belge Lambert 50
    {21780, 4801, 22864, 2313, 155, 4, false}, // Bern 1898 (Bern) / LV03C
    {21781, 4149, 27941, 2312, 155, 4, false}, // CH1903 / LV03
    {21782, 4149, 27952, 2237, 75, 4, false}, // CH1903 / LV03C-G
    {21817, 4218, 23954, 1326, 456, 4, true}, // Bogota 1975 / UTM zone 17N
    {21818, 4218, 23970, 1327, 457, 4, false}, // Bogota 1975 / UTM zone 18N
    {21891, 4218, 23935, 2059, 452, 4, true}, // Bogota 1975 / Colombia West zone
    {21892, 4218, 23854, 2060, 453, 4, true}, // Bogota 1975 / Colombia Bogota zone
    {21893, 4218, 23894, 2061, 454, 4, true}, // Bogota 1975 / Colombia East Central zone
    {21894, 4218, 23876, 2062, 455, 4, true}, // Bogota 1975 / Colombia East
    {21896, 4218, 23935, 2059, 452, 5, false}, // Bogota 1975 / Colombia West zone
    {21897, 4218, 23854, 2060, 453, 5, false}, // Bogota 1975 / Colombia Bogota zone
    {21898, 4218, 23894, 2061, 454, 5, false}, // Bogota 1975 / Colombia East Central zone
    {21899, 4218, 23916, 2062, 455, 5, false}, // Bogota 1975 / Colombia East zone
    {22032, 4220, 29115, 1430, 460, 4, false}, // Camacupa 1948 / UTM zone 32S
    {22033, 4220, 29133, 1431, 461, 4, false}, // Camacupa 1948 / UTM zone 33S
    {22091, 4220, 29077, 1601, 459, 4, false}, // Camacupa 1948 / TM 11.30 SE
    {22092, 4220, 29097, 1602, 458, 4, false}, // Camacupa 1948 / TM 12 SE
    {22171, 4190, 146883, 2043, 462, 5, false}, // POSGAR 98 / Argentina 1
    {22172, 4190, 146900, 2044, 463, 5, false}, // POSGAR 98 / Argentina 2
    {22173, 4190, 146917, 2045, 464, 5, false}, // POSGAR 98 / Argentina 3
    {22174, 4190, 146934, 2046, 465, 5, false}, // POSGAR 98 / Argentina 4
    {22175, 4190, 146951, 2047, 466, 5, false}, // POSGAR 98 / Argentina 5
    {22176, 4190, 146968, 2048, 467, 5, false}, // POSGAR 98 / Argentina 6
    {22177, 4190, 146985, 2049, 468, 5, false}, // POSGAR 98 / Argentina 7
    {22181, 4694, 146736, 2043, 462, 5, false}, // POSGAR 94 / Argentina 1
    {22182, 4694, 146753, 2044, 463, 5, false}, // POSGAR 94 / Argentina 2
    {22183, 4694, 146770, 2045, 464, 5, false}, // POSGAR 94 / Argentina 3
    {22184, 4694, 146787, 2046, 465, 5, false}, // POSGAR 94 / Argentina 4
    {22185, 4694, 146804, 2047, 466, 5, false}, // POSGAR 94 / Argentina 5
    {22186, 4694, 146821, 2048, 467, 5, false}, // POSGAR 94 / Argentina 6
    {22187, 4694, 146838, 2049, 468, 5, false}, // POSGAR 94 / Argentina 7
    {22191, 4221, 29318, 2043, 462, 5, false}, // Campo Inchauspe / Argentina 1
    {22192, 4221, 29338, 2044, 2876, 5, false}, // Campo Inchauspe / Argentina 2
    {22193, 4221, 29358, 2045, 2877, 5, false}, // Campo Inchauspe / Argentina 3
    {22194, 4221, 29378, 2046, 2878, 5, false}, // Campo Inchauspe / Argentina 4
    {22195, 4221, 29398, 2047, 466, 5, false}, // Campo Inchauspe / Argentina 5
    {22196, 4221, 29418, 2048, 467, 5, false}, // Campo Inchauspe / Argentina 6
    {22197, 4221, 29438, 2049, 468, 5, false}, // Campo Inchauspe / Argentina 7
    {22207, 8237, 117374, 1316, 1856, 4, false}, // NAD83(CSRS)v2 / UTM zone 7N
    {22208, 8237, 117387, 1317, 1857, 4, false}, // NAD83(CSRS)v2 / UTM zone 8N
    {22209, 8237, 117400, 1318, 1858, 4, false}, // NAD83(CSRS)v2 / UTM zone 9N
    {22210, 8237, 117194, 1319, 1859, 4, false}, // NAD83(CSRS)v2 / UTM zone 10N
    {22211, 8237, 117207, 1320, 1963, 4, false}, // NAD83(CSRS)v2 / UTM zone 11N
    {22212, 8237, 117221, 1321, 1962, 4, false}, // NAD83(CSRS)v2 / UTM zone 12N
    {22213, 8237, 117235, 1322, 1961, 4, false}, // NAD83(CSRS)v2 / UTM zone 13N
    {22214, 8237, 117249, 1323, 1860, 4, false}, // NAD83(CSRS)v2 / UTM zone 14N
    {22215, 8237, 117263, 1324, 1861, 4, false}, // NAD83(CSRS)v2 / UTM zone 15N
    {22216, 8237, 117277, 1325, 1862, 4, false}, // NAD83(CSRS)v2 / UTM zone 16N
    {22217, 8237, 117291, 1326, 1863, 4, false}, // NAD83(CSRS)v2 / UTM zone 17N
    {22218, 8237, 117305, 1327, 1864, 4, false}, // NAD83(CSRS)v2 / UTM zone 18N
    {22219, 8237, 117319, 1328, 1959, 4, false}, // NAD83(CSRS)v2 / UTM zone 19N
    {22220, 8237, 117333, 1329, 1960, 4, false}, // NAD83(CSRS)v2 / UTM zone 20N
    {22221, 8237, 117346, 1330, 996, 4, false}, // NAD83(CSRS)v2 / UTM zone 21N
    {22222, 8237, 117360, 1331, 997, 4, false}, // NAD83(CSRS)v2 / UTM zone 22N
    {22234, 4222, 31352, 1432, 469, 4, false}, // Cape / UTM zone 34S
    {22235, 4222, 31364, 1433, 471, 4, false}, // Cape / UTM zone 35S
    {22236, 4222, 31376, 1434, 470, 4, true}, // Cape / UTM zone 36S
    {22239, 8237, 117061, 2349, 387, 4, false}, // NAD83(CSRS)v2 / PEI Stereographic
    {22240, 8237, 117042, 2335, 303, 5, false}, // NAD83(CSRS)v2 / NB Stereographic
    {22243, 8237, 117096, 1925, 302, 4, false}, // NAD83(CSRS)v2 / SCoPQ zone 3
    {22244, 8237, 117110, 1926, 278, 4, false}, // NAD83(CSRS)v2 / SCoPQ zone 4
    {22245, 8237, 117124, 1927, 279, 4, false}, // NAD83(CSRS)v2 / SCoPQ zone 5
    {22246, 8237, 117138, 1928, 280, 4, false}, // NAD83(CSRS)v2 / SCoPQ zone 6
    {22247, 8237, 117152, 1929, 281, 4, false}, // NAD83(CSRS)v2 / SCoPQ zone 7
    {22248, 8237, 117166, 1930, 282, 4, false}, // NAD83(CSRS)v2 / SCoPQ zone 8
    {22249, 8237, 117180, 1931, 283, 4, false}, // NAD83(CSRS)v2 / SCoPQ zone 9
    {22250, 8237, 117081, 1932, 284, 4, false}, // NAD83(CSRS)v2 / SCoPQ zone 10
    {22262, 8237, 116930, 1940, 1974, 4, false}, // NAD83(CSRS)v2 / Alberta 3TM ref merid 111 W
    {22263, 8237, 116958, 1941, 1973, 4, false}, // NAD83(CSRS)v2 / Alberta 3TM ref merid 114 W
    {22264, 8237, 116986, 1942, 1972, 4, false}, // NAD83(CSRS)v2 / Alberta 3TM ref merid 117 W
    {22265, 8237, 117014, 1944, 1971, 4, false}, // NAD83(CSRS)v2 / Alberta 3TM ref merid 120 W
    {22275, 4222, 31252, 1904, 310, 0, false}, // Cape / Lo15
    {22277, 4222, 31262, 1905, 311, 0, false}, // Cape / Lo17
    {22279, 4222, 31272, 1906, 312, 0, false}, // Cape / Lo19
    {22281, 4222, 31282, 1907, 313, 0, false}, // Cape / Lo21
    {22283, 4222, 31292, 1908, 314, 0, false}, // Cape / Lo23
    {22285, 4222, 31302, 1909, 315, 0, false}, // Cape / Lo25
    {22287, 4222, 31312, 1910, 316, 0, false}, // Cape / Lo27
    {22289, 4222, 31322, 1911, 317, 0, false}, // Cape / Lo29
    {22291, 4222, 31332, 1912, 318, 0, false}, // Cape / Lo31
    {22293, 4222, 31342, 1913, 319, 0, false}, // Cape / Lo33
    {22300, 4816, 31694, 2326, 472, 12, false}, // Carthage (Paris) / Tunisia Mining Grid
    {22307, 8240, 117779, 1316, 1856, 4, false}, // NAD83(CSRS)v3 / UTM zone 7N
    {22308, 8240, 117792, 1317, 1857, 4, false}, // NAD83(CSRS)v3 / UTM zone 8N
    {22309, 8240, 117805, 1318, 1858, 4, false}, // NAD83(CSRS)v3 / UTM zone 9N
    {22310, 8240, 117599, 1319, 1859, 4, false}, // NAD83(CSRS)v3 / UTM zone 10N
    {22311, 8240, 117612, 1320, 1963, 4, false}, // NAD83(CSRS)v3 / UTM zone 11N
    {22312, 8240, 117626, 1321, 1962, 4, false}, // NAD83(CSRS)v3 / UTM zone 12N
    {22313, 8240, 117640, 1322, 1961, 4, false}, // NAD83(CSRS)v3 / UTM zone 13N
    {22314, 8240, 117654, 1323, 1860, 4, false}, // NAD83(CSRS)v3 / UTM zone 14N
    {22315, 8240, 117668, 1324, 1861, 4, false}, // NAD83(CSRS)v3 / UTM zone 15N
    {22316, 8240, 117682, 1325, 1862, 4, false}, // NAD83(CSRS)v3 / UTM zone 16N
    {22317, 8240, 117696, 1326, 1863, 4, false}, // NAD83(CSRS)v3 / UTM zone 17N
    {22318, 8240, 117710, 1327, 1864, 4, false}, // NAD83(CSRS)v3 / UTM zone 18N
    {22319, 8240, 117724, 1328, 1959, 4, false}, // NAD83(CSRS)v3 / UTM zone 19N
    {22320, 8240, 117738, 1329, 1960, 4, false}, // NAD83(CSRS)v3 / UTM zone 20N
    {22321, 8240, 117751, 1330, 996, 4, false}, // NAD83(CSRS)v3 / UTM zone 21N
    {22322, 8240, 117765, 1331, 997, 4, false}, // NAD83(CSRS)v3 / UTM zone 22N
    {22332, 4223, 31768, 1341, 344, 4, false}, // Carthage / UTM zone 32N
    {22337, 8240, 117454, 907, 389, 4, false}, // NAD83(CSRS)v3 / MTM NS 1997 zone 5
    {22338, 8240, 117437, 906, 388, 4, false}, // NAD83(CSRS)v3 / MTM NS 1997 zone 4
    {22348, 8240, 117575, 1930, 285, 4, false}, // NAD83(CSRS)v3 / MTM zone 8
    {22349, 8240, 117587, 1931, 286, 4, false}, // NAD83(CSRS)v3 / MTM zone 9
    {22350, 8240, 117471, 1932, 287, 4, false}, // NAD83(CSRS)v3 / MTM zone 10
    {22351, 8240, 117484, 1933, 288, 4, false}, // NAD83(CSRS)v3 / MTM zone 11
    {22352, 8240, 117497, 1934, 289, 4, false}, // NAD83(CSRS)v3 / MTM zone 12
    {22353, 8240, 117510, 1935, 290, 4, false}, // NAD83(CSRS)v3 / MTM zone 13
    {22354, 8240, 117523, 1936, 291, 4, false}, // NAD83(CSRS)v3 / MTM zone 14
    {22355, 8240, 117536, 1937, 292, 4, false}, // NAD83(CSRS)v3 / MTM zone 15
    {22356, 8240, 117549, 1938, 293, 4, false}, // NAD83(CSRS)v3 / MTM zone 16
    {22357, 8240, 117562, 1939, 294, 4, false}, // NAD83(CSRS)v3 / MTM zone 17
    {22391, 4223, 31719, 2122, 473, 4, false}, // Carthage / Nord Tunisie
    {22392, 4223, 31736, 2123, 474, 4, false}, // Carthage / Sud Tunisie
    {22407, 8246, 118117, 1316, 1856, 4, false}, // NAD83(CSRS)v4 / UTM zone 7N
    {22408, 8246, 118130, 1317, 1857, 4, false}, // NAD83(CSRS)v4 / UTM zone 8N
    {22409, 8246, 118143, 1318, 1858, 4, false}, // NAD83(CSRS)v4 / UTM zone 9N
    {22410, 8246, 117937, 1319, 1859, 4, false}, // NAD83(CSRS)v4 / UTM zone 10N
    {22411, 8246, 117950, 1320, 1963, 4, false}, // NAD83(CSRS)v4 / UTM zone 11N
    {22412, 8246, 117964, 1321, 1962, 4, false}, // NAD83(CSRS)v4 / UTM zone 12N
    {22413, 8246, 117978, 1322, 1961, 4, false}, // NAD83(CSRS)v4 / UTM zone 13N
    {22414, 8246, 117992, 1323, 1860, 4, false}, // NAD83(CSRS)v4 / UTM zone 14N
    {22415, 8246, 118006, 1324, 1861, 4, false}, // NAD83(CSRS)v4 / UTM zone 15N
    {22416, 8246, 118020, 1325, 1862, 4, false}, // NAD83(CSRS)v4 / UTM zone 16N
    {22417, 8246, 118034, 1326, 1863, 4, false}, // NAD83(CSRS)v4 / UTM zone 17N
    {22418, 8246, 118048, 1327, 1864, 4, false}, // NAD83(CSRS)v4 / UTM zone 18N
    {22419, 8246, 118062, 1328, 1959, 4, false}, // NAD83(CSRS)v4 / UTM zone 19N
    {22420, 8246, 118076, 1329, 1960, 4, false}, // NAD83(CSRS)v4 / UTM zone 20N
    {22421, 8246, 118089, 1330, 996, 4, false}, // NAD83(CSRS)v4 / UTM zone 21N
    {22422, 8246, 118103, 1331, 997, 4, false}, // NAD83(CSRS)v4 / UTM zone 22N
    {22462, 8246, 117825, 1940, 1974, 4, false}, // NAD83(CSRS)v4 / Alberta 3TM ref merid 111 W
    {22463, 8246, 117853, 1941, 1973, 4, false}, // NAD83(CSRS)v4 / Alberta 3TM ref merid 114 W
    {22464, 8246, 117881, 1942, 1972, 4, false}, // NAD83(CSRS)v4 / Alberta 3TM ref merid 117 W
    {22465, 8246, 117909, 1944, 1971, 4, false}, // NAD83(CSRS)v4 / Alberta 3TM ref merid 120 W
    {22521, 4225, 36759, 1419, 1805, 4, false}, // Corrego Alegre 1970-72 / UTM zone 21S
    {22522, 4225, 36783, 1420, 1682, 4, false}, // Corrego Alegre 1970-72 / UTM zone 22S
    {22523, 4225, 36807, 1421, 1683, 4, false}, // Corrego Alegre 1970-72 / UTM zone 23S
    {22524, 4225, 36831, 1422, 664, 4, false}, // Corrego Alegre 1970-72 / UTM zone 24S
    {22525, 4225, 36855, 1423, 1684, 4, false}, // Corrego Alegre 1970-72 / UTM zone 25S
    {22607, 8252, 118604, 1316, 1856, 4, false}, // NAD83(CSRS)v6 / UTM zone 7N
    {22608, 8252, 118617, 1317, 1857, 4, false}, // NAD83(CSRS)v6 / UTM zone 8N
    {22609, 8252, 118630, 1318, 1858, 4, false}, // NAD83(CSRS)v6 / UTM zone 9N
    {22610, 8252, 118424, 1319, 1859, 4, false}, // NAD83(CSRS)v6 / UTM zone 10N
    {22611, 8252, 118437, 1320, 1963, 4, false}, // NAD83(CSRS)v6 / UTM zone 11N
    {22612, 8252, 118451, 1321, 1962, 4, false}, // NAD83(CSRS)v6 / UTM zone 12N
    {22613, 8252, 118465, 1322, 1961, 4, false}, // NAD83(CSRS)v6 / UTM zone 13N
    {22614, 8252, 118479, 1323, 1860, 4, false}, // NAD83(CSRS)v6 / UTM zone 14N
    {22615, 8252, 118493, 1324, 1861, 4, false}, // NAD83(CSRS)v6 / UTM zone 15N
    {22616, 8252, 118507, 1325, 1862, 4, false}, // NAD83(CSRS)v6 / UTM zone 16N
    {22617, 8252, 118521, 1326, 1863, 4, false}, // NAD83(CSRS)v6 / UTM zone 17N
    {22618, 8252, 118535, 1327, 1864, 4, false}, // NAD83(CSRS)v6 / UTM zone 18N
    {22619, 8252, 118549, 1328, 1959, 4, false}, // NAD83(CSRS)v6 / UTM zone 19N
    {22620, 8252, 118563, 1329, 1960, 4, false}, // NAD83(CSRS)v6 / UTM zone 20N
    {22621, 8252, 118576, 1330, 996, 4, false}, // NAD83(CSRS)v6 / UTM zone 21N
    {22622, 8252, 118590, 1331, 997, 4, false}, // NAD83(CSRS)v6 / UTM zone 22N
    {22639, 8252, 118404, 2349, 387, 4, false}, // NAD83(CSRS)v6 / PEI Stereographic
    {22641, 8252, 118204, 1923, 1071, 4, false}, // NAD83(CSRS)v6 / MTM zone 1
    {22642, 8252, 118320, 1924, 1072, 4, false}, // NAD83(CSRS)v6 / MTM zone 2
    {22643, 8252, 118332, 1925, 1120, 4, false}, // NAD83(CSRS)v6 / MTM zone 3
    {22644, 8252, 118344, 1926, 2248, 4, false}, // NAD83(CSRS)v6 / MTM zone 4
    {22645, 8252, 118356, 1927, 2238, 4, false}, // NAD83(CSRS)v6 / MTM zone 5
    {22646, 8252, 118368, 1928, 2252, 4, false}, // NAD83(CSRS)v6 / MTM zone 6
    {22648, 8252, 118380, 1930, 285, 4, false}, // NAD83(CSRS)v6 / MTM zone 8
    {22649, 8252, 118392, 1931, 286, 4, false}, // NAD83(CSRS)v6 / MTM zone 9
    {22650, 8252, 118216, 1932, 287, 4, false}, // NAD83(CSRS)v6 / MTM zone 10
    {22651, 8252, 118229, 1933, 288, 4, false}, // NAD83(CSRS)v6 / MTM zone 11
    {22652, 8252, 118242, 1934, 289, 4, false}, // NAD83(CSRS)v6 / MTM zone 12
    {22653, 8252, 118255, 1935, 290, 4, false}, // NAD83(CSRS)v6 / MTM zone 13
    {22654, 8252, 118268, 1936, 291, 4, false}, // NAD83(CSRS)v6 / MTM zone 14
    {22655, 8252, 118281, 1937, 292, 4, false}, // NAD83(CSRS)v6 / MTM zone 15
    {22656, 8252, 118294, 1938, 293, 4, false}, // NAD83(CSRS)v6 / MTM zone 16
    {22657, 8252, 118307, 1939, 294, 4, false}, // NAD83(CSRS)v6 / MTM zone 17
    {22700, 4227, 40308, 2329, 475, 4, false}, // Deir ez Zor / Levant Zone
    {22707, 8255, 118962, 1316, 1856, 4, false}, // NAD83(CSRS)v7 / UTM zone 7N
    {22708, 8255, 118975, 1317, 1857, 4, false}, // NAD83(CSRS)v7 / UTM zone 8N
    {22709, 8255, 118988, 1318, 1858, 4, false}, // NAD83(CSRS)v7 / UTM zone 9N
    {22710, 8255, 118782, 1319, 1859, 4, false}, // NAD83(CSRS)v7 / UTM zone 10N
    {22711, 8255, 118795, 1320, 1963, 4, false}, // NAD83(CSRS)v7 / UTM zone 11N
    {22712, 8255, 118809, 1321, 1962, 4, false}, // NAD83(CSRS)v7 / UTM zone 12N
    {22713, 8255, 118823, 1322, 1961, 4, false}, // NAD83(CSRS)v7 / UTM zone 13N
    {22714, 8255, 118837, 1323, 1860, 4, false}, // NAD83(CSRS)v7 / UTM zone 14N
    {22715, 8255, 118851, 1324, 1861, 4, false}, // NAD83(CSRS)v7 / UTM zone 15N
    {22716, 8255, 118865, 1325, 1862, 4, false}, // NAD83(CSRS)v7 / UTM zone 16N
    {22717, 8255, 118879, 1326, 1863, 4, false}, // NAD83(CSRS)v7 / UTM zone 17N
    {22718, 8255, 118893, 1327, 1864, 4, false}, // NAD83(CSRS)v7 / UTM zone 18N
    {22719, 8255, 118907, 1328, 1959, 4, false}, // NAD83(CSRS)v7 / UTM zone 19N
    {22720, 8255, 118921, 1329, 1960, 4, false}, // NAD83(CSRS)v7 / UTM zone 20N
    {22721, 8255, 118934, 1330, 996, 4, false}, // NAD83(CSRS)v7 / UTM zone 21N
    {22722, 8255, 118948, 1331, 997, 4, false}, // NAD83(CSRS)v7 / UTM zone 22N
    {22739, 8255, 118762, 2349, 387, 4, false}, // NAD83(CSRS)v7 / PEI Stereographic
    {22762, 8255, 118650, 1940, 1974, 4, false}, // NAD83(CSRS)v7 / Alberta 3TM ref merid 111 W
    {22763, 8255, 118678, 1941, 1973, 4, false}, // NAD83(CSRS)v7 / Alberta 3TM ref merid 114 W
    {22764, 8255, 118706, 1942, 1972, 4, false}, // NAD83(CSRS)v7 / Alberta 3TM ref merid 117 W
    {22765, 8255, 118734, 1944, 1971, 4, false}, // NAD83(CSRS)v7 / Alberta 3TM ref merid 120 W
    {22770, 4227, 40328, 2337, 475, 4, false}, // Deir ez Zor / Syria Lambert
    {22780, 4227, 40283, 2338, 475, 4, false}, // Deir ez Zor / Levant Stereographic
    {22832, 4228, 40908, 1341, 22, 4, true}, // Douala / UTM zone 32N
    {22991, 4229, 46998, 2072, 494, 4, false}, // Egypt 1907 / Blue Belt
    {22992, 4229, 47058, 2073, 495, 4, false}, // Egypt 1907 / Red Belt
    {22993, 4229, 47040, 2074, 496, 4, false}, // Egypt 1907 / Purple Belt
    {22994, 4229, 47015, 2075, 497, 4, false}, // Egypt 1907 / Extended Purple Belt
    {23028, 4230, 41669, 1337, 483, 4, false}, // ED50 / UTM zone 28N
    {23029, 4230, 41681, 1338, 484, 4, false}, // ED50 / UTM zone 29N
    {23030, 4230, 41693, 1339, 485, 4, false}, // ED50 / UTM zone 30N
    {23031, 4230, 41705, 1340, 486, 4, false}, // ED50 / UTM zone 31N
    {23032, 4230, 41717, 1341, 487, 4, false}, // ED50 / UTM zone 32N
    {23033, 4230, 41729, 1342, 488, 4, false}, // ED50 / UTM zone 33N
    {23034, 4230, 41741, 1343, 489, 4, false}, // ED50 / UTM zone 34N
    {23035, 4230, 41753, 1344, 490, 4, false}, // ED50 / UTM zone 35N
    {23036, 4230, 41765, 1345, 491, 4, false}, // ED50 / UTM zone 36N
    {23037, 4230, 41777, 1346, 492, 4, false}, // ED50 / UTM zone 37N
    {23038, 4230, 41789, 1347, 493, 4, false}, // ED50 / UTM zone 38N
    {23090, 4230, 41571, 1591, 481, 4, false}, // ED50 / TM 0 N
    {23095, 4230, 41582, 1592, 482, 4, false}, // ED50 / TM 5 NE
    {23239, 4232, 50622, 1348, 398, 4, false}, // Fahud / UTM zone 39N
    {23240, 4232, 50634, 1349, 2345, 4, false}, // Fahud / UTM zone 40N
    {23433, 4234, 63375, 1342, 22, 4, true}, // Garoua / UTM zone 33N
    {23700, 4237, 66415, 2321, 57, 4, false}, // HD72 / EOV
    {23830, 4755, 38022, 1877, 2320, 4, false}, // DGN95 / Indonesia TM-3 zone 46.2
    {23831, 4755, 38041, 1878, 1945, 4, false}, // DGN95 / Indonesia TM-3 zone 47.1
    {23832, 4755, 38060, 1879, 1946, 4, false}, // DGN95 / Indonesia TM-3 zone 47.2
    {23833, 4755, 38079, 1880, 1947, 4, false}, // DGN95 / Indonesia TM-3 zone 48.1
    {23834, 4755, 38098, 1881, 1948, 4, false}, // DGN95 / Indonesia TM-3 zone 48.2
    {23835, 4755, 38117, 1882, 1949, 4, false}, // DGN95 / Indonesia TM-3 zone 49.1
    {23836, 4755, 38136, 1883, 1950, 4, false}, // DGN95 / Indonesia TM-3 zone 49.2
    {23837, 4755, 38155, 1884, 1951, 4, false}, // DGN95 / Indonesia TM-3 zone 50.1
    {23838, 4755, 38174, 1885, 1952, 4, false}, // DGN95 / Indonesia TM-3 zone 50.2
    {23839, 4755, 38193, 1886, 1953, 4, false}, // DGN95 / Indonesia TM-3 zone 51.1
    {23840, 4755, 38212, 1887, 1954, 4, false}, // DGN95 / Indonesia TM-3 zone 51.2
    {23841, 4755, 38231, 1888, 1955, 4, false}, // DGN95 / Indonesia TM-3 zone 52.1
    {23842, 4755, 38250, 1889, 1956, 4, false}, // DGN95 / Indonesia TM-3 zone 52.2
    {23843, 4755, 38269, 1890, 1957, 4, false}, // DGN95 / Indonesia TM-3 zone 53.1
    {23844, 4755, 38288, 1891, 1958, 4, false}, // DGN95 / Indonesia TM-3 zone 53.2
    {23845, 4755, 38307, 1892, 2319, 4, false}, // DGN95 / Indonesia TM-3 zone 54.1
    {23846, 4238, 68648, 1355, 2320, 4, false}, // ID74 / UTM zone 46N
    {23847, 4238, 68672, 1356, 2322, 4, false}, // ID74 / UTM zone 47N
    {23848, 4238, 68696, 1357, 2323, 4, false}, // ID74 / UTM zone 48N
    {23849, 4238, 68720, 1358, 2324, 4, false}, // ID74 / UTM zone 49N
    {23850, 4238, 68744, 1359, 2325, 4, false}, // ID74 / UTM zone 50N
    {23851, 4238, 68768, 1360, 2327, 4, false}, // ID74 / UTM zone 51N
    {23852, 4238, 68792, 1361, 2328, 4, false}, // ID74 / UTM zone 52N
    {23853, 4238, 68816, 1362, 513, 4, true}, // ID74 / UTM zone 53N
    {23866, 4755, 38326, 1355, 499, 4, false}, // DGN95 / UTM zone 46N
    {23867, 4755, 38339, 1356, 501, 4, false}, // DGN95 / UTM zone 47N
    {23868, 4755, 38365, 1357, 503, 4, false}, // DGN95 / UTM zone 48N
    {23869, 4755, 38391, 1358, 505, 4, false}, // DGN95 / UTM zone 49N
    {23870, 4755, 38417, 1359, 507, 4, false}, // DGN95 / UTM zone 50N
    {23871, 4755, 38443, 1360, 509, 4, false}, // DGN95 / UTM zone 51N
    {23872, 4755, 38469, 1361, 511, 4, false}, // DGN95 / UTM zone 52N
    {23877, 4755, 38352, 1445, 502, 4, false}, // DGN95 / UTM zone 47S
    {23878, 4755, 38378, 1446, 504, 4, false}, // DGN95 / UTM zone 48S
    {23879, 4755, 38404, 1447, 506, 4, false}, // DGN95 / UTM zone 49S
    {23880, 4755, 38430, 1448, 508, 4, false}, // DGN95 / UTM zone 50S
    {23881, 4755, 38456, 1449, 510, 4, false}, // DGN95 / UTM zone 51S
    {23882, 4755, 38482, 1450, 512, 4, false}, // DGN95 / UTM zone 52S
    {23883, 4755, 38495, 1451, 514, 4, false}, // DGN95 / UTM zone 53S
    {23884, 4755, 38508, 1452, 515, 4, false}, // DGN95 / UTM zone 54S
    {23886, 4238, 68660, 1444, 500, 4, true}, // ID74 / UTM zone 46S
    {23887, 4238, 68684, 1445, 2329, 4, false}, // ID74 / UTM zone 47S
    {23888, 4238, 68708, 1446, 2330, 4, false}, // ID74 / UTM zone 48S
    {23889, 4238, 68732, 1447, 2331, 4, false}, // ID74 / UTM zone 49S
    {23890, 4238, 68756, 1448, 2332, 4, false}, // ID74 / UTM zone 50S
    {23891, 4238, 68780, 1449, 2333, 4, false}, // ID74 / UTM zone 51S
    {23892, 4238, 68804, 1450, 2334, 4, false}, // ID74 / UTM zone 52S
    {23893, 4238, 68828, 1451, 2335, 4, false}, // ID74 / UTM zone 53S
    {23894, 4238, 68840, 1452, 2319, 4, false}, // ID74 / UTM zone 54S
    {23946, 4239, 72544, 1355, 516, 4, false}, // Indian 1954 / UTM zone 46N
    {23947, 4239, 72557, 1356, 517, 4, false}, // Indian 1954 / UTM zone 47N
    {23948, 4239, 72570, 1357, 2135, 4, false}, // Indian 1954 / UTM zone 48N
    {24047, 4240, 72635, 1356, 519, 4, false}, // Indian 1975 / UTM zone 47N
    {24048, 4240, 72648, 1357, 518, 4, false}, // Indian 1975 / UTM zone 48N
    {24100, 4241, 77632, 2302, 1802, 9, false}, // Jamaica 1875 / Jamaica (Old Grid)
    {24200, 4242, 76017, 2303, 1802, 4, false}, // JAD69 / Jamaica National Grid
    {24305, 4144, 79625, 1354, 526, 4, false}, // Kalianpur 1937 / UTM zone 45N
    {24306, 4144, 79641, 1355, 527, 4, false}, // Kalianpur 1937 / UTM zone 46N
    {24311, 4145, 79696, 1350, 539, 4, false}, // Kalianpur 1962 / UTM zone 41N
    {24312, 4145, 79712, 1351, 540, 4, false}, // Kalianpur 1962 / UTM zone 42N
    {24313, 4145, 79728, 1352, 541, 4, false}, // Kalianpur 1962 / UTM zone 43N
    {24342, 4146, 79832, 1351, 531, 4, false}, // Kalianpur 1975 / UTM zone 42N
    {24343, 4146, 79848, 1352, 532, 4, false}, // Kalianpur 1975 / UTM zone 43N
    {24344, 4146, 79864, 1353, 533, 4, false}, // Kalianpur 1975 / UTM zone 44N
    {24345, 4146, 79880, 1354, 534, 4, false}, // Kalianpur 1975 / UTM zone 45N
    {24346, 4146, 79896, 1355, 535, 4, false}, // Kalianpur 1975 / UTM zone 46N
    {24347, 4146, 79912, 1356, 536, 4, false}, // Kalianpur 1975 / UTM zone 47N
    {24370, 4243, 79495, 2095, 520, 19, false}, // Kalianpur 1880 / India zone 0
    {24371, 4243, 79511, 2096, 521, 19, false}, // Kalianpur 1880 / India zone I
    {24372, 4243, 79546, 2097, 522, 19, false}, // Kalianpur 1880 / India zone IIa
    {24373, 4243, 79527, 2099, 524, 19, false}, // Kalianpur 1880 / India zone IIIa
    {24374, 4243, 79582, 2100, 525, 19, false}, // Kalianpur 1880 / India zone IVa
    {24375, 4144, 79609, 2163, 1717, 4, false}, // Kalianpur 1937 / India zone IIb
    {24376, 4145, 79666, 2161, 537, 4, false}, // Kalianpur 1962 / India zone I
    {24377, 4145, 79680, 2162, 538, 4, false}, // Kalianpur 1962 / India zone IIa
    {24378, 4146, 79753, 2156, 528, 4, false}, // Kalianpur 1975 / India zone I
    {24379, 4146, 79784, 2157, 529, 4, false}, // Kalianpur 1975 / India zone IIa
    {24380, 4146, 79800, 2160, 530, 4, false}, // Kalianpur 1975 / India zone IIb
    {24381, 4146, 79767, 2158, 524, 4, false}, // Kalianpur 1975 / India zone IIIa
    {24382, 4243, 79564, 2098, 523, 19, false}, // Kalianpur 1880 / India zone IIb
    {24383, 4146, 79816, 2159, 525, 4, false}, // Kalianpur 1975 / India zone IVa
    {24500, 4245, 81925, 2310, 113, 4, false}, // Kertau 1968 / Singapore Grid
    {24547, 4245, 81966, 1356, 543, 4, false}, // Kertau 1968 / UTM zone 47N
    {24548, 4245, 81982, 1357, 544, 4, false}, // Kertau 1968 / UTM zone 48N
    {24571, 4245, 81731, 2324, 542, 18, true}, // Kertau / R.S.O. Malaya (ch)
    {24600, 4246, 79206, 2299, 1750, 4, false}, // KOC Lambert
    {24718, 4247, 84504, 1327, 545, 4, false}, // La Canoa / UTM zone 18N
    {24719, 4247, 84518, 1328, 546, 4, false}, // La Canoa / UTM zone 19N
    {24720, 4247, 84532, 1329, 547, 4, false}, // La Canoa / UTM zone 20N
    {24817, 4248, 147306, 1326, 1636, 4, false}, // PSAD56 / UTM zone 17N
    {24818, 4248, 147330, 1327, 602, 4, false}, // PSAD56 / UTM zone 18N
    {24819, 4248, 147354, 1328, 604, 4, false}, // PSAD56 / UTM zone 19N
    {24820, 4248, 147378, 1329, 606, 4, false}, // PSAD56 / UTM zone 20N
    {24821, 4248, 147400, 1330, 608, 4, false}, // PSAD56 / UTM zone 21N
    {24877, 4248, 147318, 1415, 601, 4, false}, // PSAD56 / UTM zone 17S
    {24878, 4248, 147342, 1416, 603, 4, false}, // PSAD56 / UTM zone 18S
    {24879, 4248, 147366, 1417, 605, 4, false}, // PSAD56 / UTM zone 19S
    {24880, 4248, 147389, 1418, 607, 4, false}, // PSAD56 / UTM zone 20S
    {24881, 4248, 147412, 1419, 2133, 4, false}, // PSAD56 / UTM zone 21S
    {24882, 4248, 147424, 1420, 600, 4, false}, // PSAD56 / UTM zone 22S
    {24891, 4248, 147292, 2113, 599, 4, false}, // PSAD56 / Peru west zone
    {24892, 4248, 147263, 2114, 598, 4, false}, // PSAD56 / Peru central zone
    {24893, 4248, 147278, 2115, 597, 4, false}, // PSAD56 / Peru east zone
    {25000, 4250, 85419, 2297, 51, 4, false}, // Leigon / Ghana Metre Grid
    {25231, 4252, 87339, 1340, 123, 4, false}, // Lome / UTM zone 31N
    {25391, 4253, 87582, 2116, 2303, 4, false}, // Luzon 1911 / Philippines zone I
    {25392, 4253, 87599, 2117, 2309, 4, false}, // Luzon 1911 / Philippines zone II
    {25393, 4253, 87617, 2118, 2310, 4, false}, // Luzon 1911 / Philippines zone III
    {25394, 4253, 87636, 2119, 2311, 4, false}, // Luzon 1911 / Philippines zone IV
    {25395, 4253, 87654, 2120, 2312, 4, false}, // Luzon 1911 / Philippines zone V
    {25700, 4804, 91509, 2298, 180, 4, true}, // Makassar (Jakarta) / NEIEZ
    {25828, 4258, 45853, 1337, 967, 4, false}, // ETRS89 / UTM zone 28N
    {25829, 4258, 45884, 1338, 968, 4, false}, // ETRS89 / UTM zone 29N
    {25830, 4258, 45915, 1339, 969, 4, false}, // ETRS89 / UTM zone 30N
    {25831, 4258, 45946, 1340, 970, 4, false}, // ETRS89 / UTM zone 31N
    {25832, 4258, 46015, 1341, 971, 4, false}, // ETRS89 / UTM zone 32N
    {25833, 4258, 46084, 1342, 972, 4, false}, // ETRS89 / UTM zone 33N
    {25834, 4258, 182688, 1343, 973, 4, false}, // ETRS89 / UTM zone 34N
    {25835, 4258, 46171, 1344, 974, 4, false}, // ETRS89 / UTM zone 35N
    {25836, 4258, 46202, 1345, 975, 4, false}, // ETRS89 / UTM zone 36N
    {25837, 4258, 46233, 1346, 976, 4, false}, // ETRS89 / UTM zone 37N
    {25838, 4258, 46264, 1347, 977, 4, true}, // ETRS89 / UTM zone 38N
    {25884, 4258, 45762, 2328, 498, 5, false}, // ETRS89 / TM Baltic93
    {25932, 4259, 91976, 1430, 1686, 4, false}, // Malongo 1987 / UTM zone 32S
    {26191, 4261, 93526, 2103, 555, 4, false}, // Merchich / Nord Maroc
    {26192, 4261, 93582, 2104, 1407, 4, false}, // Merchich / Sud Maroc
    {26193, 4261, 93541, 2105, 556, 4, true}, // Merchich / Sahara
    {26194, 4261, 93553, 2106, 1408, 4, false}, // Merchich / Sahara Nord
    {26195, 4261, 93567, 2107, 1409, 4, false}, // Merchich / Sahara Sud
    {26237, 4262, 93004, 1346, 41, 4, false}, // Massawa / UTM zone 37N
    {26331, 4263, 95081, 1340, 567, 4, false}, // Minna / UTM zone 31N
    {26332, 4263, 95093, 1341, 2194, 4, false}, // Minna / UTM zone 32N
    {26391, 4263, 95065, 2110, 566, 4, false}, // Minna / Nigeria West Belt
    {26392, 4263, 95048, 2111, 565, 4, false}, // Minna / Nigeria Mid Belt
    {26393, 4263, 95032, 2112, 564, 4, false}, // Minna / Nigeria East Belt
    {26432, 4264, 94313, 1430, 182, 4, true}, // Mhast / UTM zone 32S
    {26591, 4806, 96478, 2101, 569, 4, true}, // Monte Mario (Rome) / Italy zone 1
    {26592, 4806, 96498, 2102, 570, 4, true}, // Monte Mario (Rome) / Italy zone 2
    {26632, 4266, 87726, 1341, 548, 4, false}, // M'poraloko / UTM zone 32N
    {26692, 4266, 87742, 1430, 549, 4, false}, // M'poraloko / UTM zone 32S
    {26701, 4267, 99693, 1310, 1823, 4, false}, // NAD27 / UTM zone 1N
    {26702, 4267, 99731, 1311, 1824, 4, false}, // NAD27 / UTM zone 2N
    {26703, 4267, 99740, 1312, 978, 4, false}, // NAD27 / UTM zone 3N
    {26704, 4267, 99749, 1313, 979, 4, false}, // NAD27 / UTM zone 4N
    {26705, 4267, 99768, 1314, 980, 4, false}, // NAD27 / UTM zone 5N
    {26706, 4267, 99787, 1315, 981, 4, false}, // NAD27 / UTM zone 6N
    {26707, 4267, 99796, 1316, 982, 4, false}, // NAD27 / UTM zone 7N
    {26708, 4267, 99805, 1317, 983, 4, false}, // NAD27 / UTM zone 8N
    {26709, 4267, 99814, 1318, 984, 4, false}, // NAD27 / UTM zone 9N
    {26710, 4267, 99594, 1319, 985, 4, false}, // NAD27 / UTM zone 10N
    {26711, 4267, 99603, 1320, 986, 4, false}, // NAD27 / UTM zone 11N
    {26712, 4267, 99613, 1321, 987, 4, false}, // NAD27 / UTM zone 12N
    {26713, 4267, 99623, 1322, 988, 4, false}, // NAD27 / UTM zone 13N
    {26714, 4267, 99633, 1323, 989, 4, false}, // NAD27 / UTM zone 14N
    {26715, 4267, 99643, 1324, 990, 4, false}, // NAD27 / UTM zone 15N
    {26716, 4267, 99653, 1325, 991, 4, false}, // NAD27 / UTM zone 16N
    {26717, 4267, 99663, 1326, 992, 4, false}, // NAD27 / UTM zone 17N
    {26718, 4267, 99673, 1327, 993, 4, false}, // NAD27 / UTM zone 18N
    {26719, 4267, 99683, 1328, 994, 4, false}, // NAD27 / UTM zone 19N
    {26720, 4267, 99702, 1329, 995, 4, false}, // NAD27 / UTM zone 20N
    {26721, 4267, 99711, 1330, 2260, 4, false}, // NAD27 / UTM zone 21N
    {26722, 4267, 99721, 1331, 997, 4, false}, // NAD27 / UTM zone 22N
    {26729, 4267, 97565, 908, 999, 8, false}, // NAD27 / Alabama East
    {26730, 4267, 97578, 909, 1000, 8, false}, // NAD27 / Alabama West
    {26731, 4267, 97604, 1165, 1001, 8, false}, // NAD27 / Alaska zone 1
    {26732, 4267, 97627, 1166, 1003, 8, false}, // NAD27 / Alaska zone 2
    {26733, 4267, 97638, 1167, 1004, 8, false}, // NAD27 / Alaska zone 3
    {26734, 4267, 97649, 1168, 1005, 8, false}, // NAD27 / Alaska zone 4
    {26735, 4267, 97660, 1169, 1006, 8, false}, // NAD27 / Alaska zone 5
    {26736, 4267, 97671, 1170, 1007, 8, false}, // NAD27 / Alaska zone 6
    {26737, 4267, 97682, 1171, 1008, 8, false}, // NAD27 / Alaska zone 7
    {26738, 4267, 97693, 1172, 1009, 8, false}, // NAD27 / Alaska zone 8
    {26739, 4267, 97704, 1173, 1010, 8, false}, // NAD27 / Alaska zone 9
    {26740, 4267, 97615, 1174, 1002, 8, false}, // NAD27 / Alaska zone 10
    {26741, 4267, 98285, 925, 1020, 8, false}, // NAD27 / California zone I
    {26742, 4267, 98298, 926, 1021, 8, false}, // NAD27 / California zone II
    {26743, 4267, 98312, 927, 1022, 8, false}, // NAD27 / California zone III
    {26744, 4267, 98327, 928, 1023, 8, false}, // NAD27 / California zone IV
    {26745, 4267, 98341, 929, 1024, 8, false}, // NAD27 / California zone V
    {26746, 4267, 98354, 930, 1025, 8, false}, // NAD27 / California zone VI
    {26747, 4267, 98368, 931, 1026, 8, true}, // NAD27 / California zone VII
    {26748, 4267, 97822, 915, 1012, 8, false}, // NAD27 / Arizona East
    {26749, 4267, 97811, 916, 1011, 8, false}, // NAD27 / Arizona Central
    {26750, 4267, 97833, 917, 1013, 8, false}, // NAD27 / Arizona West
    {26751, 4267, 97844, 921, 1014, 8, false}, // NAD27 / Arkansas North
    {26752, 4267, 97855, 922, 1015, 8, false}, // NAD27 / Arkansas South
    {26753, 4267, 98395, 940, 1029, 8, false}, // NAD27 / Colorado North
    {26754, 4267, 98383, 941, 1028, 8, false}, // NAD27 / Colorado Central
    {26755, 4267, 98405, 942, 1030, 8, false}, // NAD27 / Colorado South
    {26756, 4267, 98416, 946, 235, 8, false}, // NAD27 / Connecticut
    {26757, 4267, 98461, 948, 236, 8, false}, // NAD27 / Delaware
    {26758, 4267, 98471, 950, 1031, 8, false}, // NAD27 / Florida East
    {26759, 4267, 98493, 951, 1033, 8, false}, // NAD27 / Florida West
    {26760, 4267, 98483, 952, 1032, 8, false}, // NAD27 / Florida North
    {26766, 4267, 98505, 957, 1034, 8, false}, // NAD27 / Georgia East
    {26767, 4267, 98517, 958, 1035, 8, false}, // NAD27 / Georgia West
    {26768, 4267, 98565, 961, 1037, 8, false}, // NAD27 / Idaho East
    {26769, 4267, 98554, 962, 1036, 8, false}, // NAD27 / Idaho Central
    {26770, 4267, 98576, 963, 1038, 8, false}, // NAD27 / Idaho West
    {26771, 4267, 98587, 967, 1039, 8, false}, // NAD27 / Illinois East
    {26772, 4267, 98601, 968, 1040, 8, false}, // NAD27 / Illinois West
    {26773, 4267, 98615, 971, 1041, 8, false}, // NAD27 / Indiana East
    {26774, 4267, 98625, 972, 1042, 8, false}, // NAD27 / Indiana West
    {26775, 4267, 98635, 975, 1043, 8, false}, // NAD27 / Iowa North
    {26776, 4267, 98644, 976, 1044, 8, false}, // NAD27 / Iowa South
    {26777, 4267, 98654, 979, 1045, 8, false}, // NAD27 / Kansas North
    {26778, 4267, 98664, 980, 1046, 8, false}, // NAD27 / Kansas South
    {26779, 4267, 98674, 983, 1047, 8, false}, // NAD27 / Kentucky North
    {26780, 4267, 98686, 984, 1048, 8, false}, // NAD27 / Kentucky South
    {26781, 4267, 98699, 988, 1049, 8, false}, // NAD27 / Louisiana North
    {26782, 4267, 98723, 989, 1050, 8, false}, // NAD27 / Louisiana South
    {26783, 4267, 98804, 994, 1051, 8, false}, // NAD27 / Maine East
    {26784, 4267, 98815, 995, 1052, 8, false}, // NAD27 / Maine West
    {26785, 4267, 98826, 1004, 247, 8, false}, // NAD27 / Maryland
    {26786, 4267, 98850, 1006, 1054, 8, false}, // NAD27 / Massachusetts Mainland
    {26787, 4267, 98834, 1007, 1053, 8, false}, // NAD27 / Massachusetts Island
    {26791, 4267, 98965, 1020, 1059, 8, false}, // NAD27 / Minnesota North
    {26792, 4267, 98952, 1021, 1058, 8, false}, // NAD27 / Minnesota Central
    {26793, 4267, 98976, 1022, 1060, 8, false}, // NAD27 / Minnesota South
    {26794, 4267, 98988, 1029, 1061, 8, false}, // NAD27 / Mississippi East
    {26795, 4267, 99005, 1030, 1062, 8, false}, // NAD27 / Mississippi West
    {26796, 4267, 99036, 1033, 1064, 8, false}, // NAD27 / Missouri East
    {26797, 4267, 99022, 1034, 1063, 8, false}, // NAD27 / Missouri Central
    {26798, 4267, 99050, 1035, 1065, 8, false}, // NAD27 / Missouri West
    {26799, 4267, 98368, 932, 1026, 8, false}, // NAD27 / California zone VII
    {26801, 4268, 97458, 1010, 571, 8, true}, // NAD Michigan / Michigan East
    {26802, 4268, 97496, 1011, 572, 8, true}, // NAD Michigan / Michigan Old Central
    {26803, 4268, 97537, 1012, 2079, 8, true}, // NAD Michigan / Michigan West
    {26811, 4268, 97478, 1013, 573, 8, true}, // NAD Michigan / Michigan North
    {26812, 4268, 97438, 1014, 574, 8, true}, // NAD Michigan / Michigan Central
    {26813, 4268, 97519, 1015, 575, 8, true}, // NAD Michigan / Michigan South
    {26814, 4269, 102658, 998, 1051, 4, true}, // NAD83 / Maine East (ftUS)
    {26815, 4269, 102680, 999, 1052, 4, true}, // NAD83 / Maine West (ftUS)
    {26819, 4269, 102917, 1026, 1059, 4, true}, // NAD83 / Minnesota North (ftUS)
    {26820, 4269, 102892, 1027, 1058, 4, true}, // NAD83 / Minnesota Central (ftUS)
    {26821, 4269, 102941, 1028, 1060, 4, true}, // NAD83 / Minnesota South (ftUS)
    {26822, 4269, 103191, 1300, 253, 4, true}, // NAD83 / Nebraska (ftUS)
    {26823, 4269, 104622, 1140, 1109, 4, true}, // NAD83 / West Virginia North (ftUS)
    {26824, 4269, 104648, 1141, 1110, 4, true}, // NAD83 / West Virginia South (ftUS)
    {26825, 4152, 120392, 998, 1051, 4, true}, // NAD83(HARN) / Maine East (ftUS)
    {26826, 4152, 120414, 999, 1052, 4, true}, // NAD83(HARN) / Maine West (ftUS)
    {26830, 4152, 120651, 1026, 1059, 4, true}, // NAD83(HARN) / Minnesota North (ftUS)
    {26831, 4152, 120626, 1027, 1058, 4, true}, // NAD83(HARN) / Minnesota Central (ftUS)
    {26832, 4152, 120675, 1028, 1060, 4, true}, // NAD83(HARN) / Minnesota South (ftUS)
    {26833, 4152, 120832, 1300, 253, 4, true}, // NAD83(HARN) / Nebraska (ftUS)
    {26834, 4152, 124210, 1140, 1109, 4, true}, // NAD83(HARN) / West Virginia North (ftUS)
    {26835, 4152, 124236, 1141, 1110, 4, true}, // NAD83(HARN) / West Virginia South (ftUS)
    {26836, 4759, 126190, 998, 1051, 4, true}, // NAD83(NSRS2007) / Maine East (ftUS)
    {26837, 4759, 126222, 999, 1052, 4, true}, // NAD83(NSRS2007) / Maine West (ftUS)
    {26841, 4759, 126544, 1026, 1059, 4, true}, // NAD83(NSRS2007) / Minnesota North (ftUS)
    {26842, 4759, 126509, 1027, 1058, 4, true}, // NAD83(NSRS2007) / Minnesota Central (ftUS)
    {26843, 4759, 126578, 1028, 1060, 4, true}, // NAD83(NSRS2007) / Minnesota South (ftUS)
    {26844, 4759, 126795, 1300, 253, 4, true}, // NAD83(NSRS2007) / Nebraska (ftUS)
    {26845, 4759, 128637, 1140, 1109, 4, true}, // NAD83(NSRS2007) / West Virginia North (ftUS)
    {26846, 4759, 128673, 1141, 1110, 4, true}, // NAD83(NSRS2007) / West Virginia South (ftUS)
    {26847, 4269, 102658, 998, 1051, 8, false}, // NAD83 / Maine East (ftUS)
    {26848, 4269, 102680, 999, 1052, 8, false}, // NAD83 / Maine West (ftUS)
    {26849, 4269, 102917, 1026, 1059, 8, false}, // NAD83 / Minnesota North (ftUS)
    {26850, 4269, 102892, 1027, 1058, 8, false}, // NAD83 / Minnesota Central (ftUS)
    {26851, 4269, 102941, 1028, 1060, 8, false}, // NAD83 / Minnesota South (ftUS)
    {26852, 4269, 103191, 1300, 253, 8, false}, // NAD83 / Nebraska (ftUS)
    {26853, 4269, 104622, 1142, 1109, 8, false}, // NAD83 / West Virginia North (ftUS)
    {26854, 4269, 104648, 1143, 1110, 8, false}, // NAD83 / West Virginia South (ftUS)
    {26855, 4152, 120392, 998, 1051, 8, false}, // NAD83(HARN) / Maine East (ftUS)
    {26856, 4152, 120414, 999, 1052, 8, false}, // NAD83(HARN) / Maine West (ftUS)
    {26857, 4152, 120651, 1026, 1059, 8, false}, // NAD83(HARN) / Minnesota North (ftUS)
    {26858, 4152, 120626, 1027, 1058, 8, false}, // NAD83(HARN) / Minnesota Central (ftUS)
    {26859, 4152, 120675, 1028, 1060, 8, false}, // NAD83(HARN) / Minnesota South (ftUS)
    {26860, 4152, 120832, 1300, 253, 8, false}, // NAD83(HARN) / Nebraska (ftUS)
    {26861, 4152, 124210, 1142, 1109, 8, false}, // NAD83(HARN) / West Virginia North (ftUS)
    {26862, 4152, 124236, 1143, 1110, 8, false}, // NAD83(HARN) / West Virginia South (ftUS)
    {26863, 4759, 126190, 998, 1051, 8, false}, // NAD83(NSRS2007) / Maine East (ftUS)
    {26864, 4759, 126222, 999, 1052, 8, false}, // NAD83(NSRS2007) / Maine West (ftUS)
    {26865, 4759, 126544, 1026, 1059, 8, false}, // NAD83(NSRS2007) / Minnesota North (ftUS)
    {26866, 4759, 126509, 1027, 1058, 8, false}, // NAD83(NSRS2007) / Minnesota Central (ftUS)
    {26867, 4759, 126578, 1028, 1060, 8, false}, // NAD83(NSRS2007) / Minnesota South (ftUS)
    {26868, 4759, 126795, 1300, 253, 8, false}, // NAD83(NSRS2007) / Nebraska (ftUS)
    {26869, 4759, 128637, 1142, 1109, 8, false}, // NAD83(NSRS2007) / West Virginia North (ftUS)
    {26870, 4759, 128673, 1143, 1110, 8, false}, // NAD83(NSRS2007) / West Virginia South (ftUS)
    {26891, 4617, 116381, 1933, 288, 4, false}, // NAD83(CSRS) / MTM zone 11
    {26892, 4617, 116391, 1934, 289, 4, false}, // NAD83(CSRS) / MTM zone 12
    {26893, 4617, 116401, 1935, 290, 4, false}, // NAD83(CSRS) / MTM zone 13
    {26894, 4617, 116411, 1936, 291, 4, false}, // NAD83(CSRS) / MTM zone 14
    {26895, 4617, 116421, 1937, 292, 4, false}, // NAD83(CSRS) / MTM zone 15
    {26896, 4617, 116431, 1938, 293, 4, false}, // NAD83(CSRS) / MTM zone 16
    {26897, 4617, 116441, 1939, 294, 4, false}, // NAD83(CSRS) / MTM zone 17
    {26898, 4617, 116362, 1923, 1071, 4, false}, // NAD83(CSRS) / MTM zone 1
    {26899, 4617, 116451, 1924, 1072, 4, false}, // NAD83(CSRS) / MTM zone 2
    {26901, 4269, 104273, 1310, 1823, 4, false}, // NAD83 / UTM zone 1N
    {26902, 4269, 104319, 1311, 1824, 4, false}, // NAD83 / UTM zone 2N
    {26903, 4269, 104326, 1312, 978, 4, false}, // NAD83 / UTM zone 3N
    {26904, 4269, 104333, 1313, 1926, 4, false}, // NAD83 / UTM zone 4N
    {26905, 4269, 104348, 1314, 1928, 4, false}, // NAD83 / UTM zone 5N
    {26906, 4269, 104363, 1315, 981, 4, false}, // NAD83 / UTM zone 6N
    {26907, 4269, 104370, 1316, 2245, 4, false}, // NAD83 / UTM zone 7N
    {26908, 4269, 104377, 1317, 2240, 4, false}, // NAD83 / UTM zone 8N
    {26909, 4269, 104384, 1318, 2239, 4, false}, // NAD83 / UTM zone 9N
    {26910, 4269, 104194, 1319, 2237, 4, false}, // NAD83 / UTM zone 10N
    {26911, 4269, 104201, 1320, 1851, 4, false}, // NAD83 / UTM zone 11N
    {26912, 4269, 104209, 1321, 1852, 4, false}, // NAD83 / UTM zone 12N
    {26913, 4269, 104217, 1322, 1853, 4, false}, // NAD83 / UTM zone 13N
    {26914, 4269, 104225, 1323, 1854, 4, false}, // NAD83 / UTM zone 14N
    {26915, 4269, 104233, 1324, 1638, 4, false}, // NAD83 / UTM zone 15N
    {26916, 4269, 104241, 1325, 1639, 4, false}, // NAD83 / UTM zone 16N
    {26917, 4269, 104249, 1326, 1640, 4, false}, // NAD83 / UTM zone 17N
    {26918, 4269, 104257, 1327, 1641, 4, false}, // NAD83 / UTM zone 18N
    {26919, 4269, 104265, 1328, 1866, 4, false}, // NAD83 / UTM zone 19N
    {26920, 4269, 104280, 1329, 1867, 4, false}, // NAD83 / UTM zone 20N
    {26921, 4269, 104287, 1330, 996, 4, false}, // NAD83 / UTM zone 21N
    {26922, 4269, 104295, 1331, 997, 4, false}, // NAD83 / UTM zone 22N
    {26923, 4269, 104303, 1332, 998, 4, false}, // NAD83 / UTM zone 23N
    {26929, 4269, 100808, 911, 999, 4, false}, // NAD83 / Alabama East
    {26930, 4269, 100819, 912, 1000, 4, false}, // NAD83 / Alabama West
    {26931, 4269, 100841, 1177, 1001, 4, false}, // NAD83 / Alaska zone 1
    {26932, 4269, 100860, 1178, 1003, 4, false}, // NAD83 / Alaska zone 2
    {26933, 4269, 100869, 1179, 1004, 4, false}, // NAD83 / Alaska zone 3
    {26934, 4269, 100878, 1180, 1005, 4, false}, // NAD83 / Alaska zone 4
    {26935, 4269, 100887, 1181, 1006, 4, false}, // NAD83 / Alaska zone 5
    {26936, 4269, 100896, 1182, 1007, 4, false}, // NAD83 / Alaska zone 6
    {26937, 4269, 100905, 1183, 1008, 4, false}, // NAD83 / Alaska zone 7
    {26938, 4269, 100914, 1184, 1009, 4, false}, // NAD83 / Alaska zone 8
    {26939, 4269, 100923, 1185, 1010, 4, false}, // NAD83 / Alaska zone 9
    {26940, 4269, 100850, 1186, 1002, 4, false}, // NAD83 / Alaska zone 10
    {26941, 4269, 101490, 934, 1020, 4, false}, // NAD83 / California zone 1
    {26942, 4269, 101518, 935, 1021, 4, false}, // NAD83 / California zone 2
    {26943, 4269, 101546, 936, 1022, 4, false}, // NAD83 / California zone 3
    {26944, 4269, 101574, 937, 1023, 4, false}, // NAD83 / California zone 4
    {26945, 4269, 101602, 938, 1027, 4, false}, // NAD83 / California zone 5
    {26946, 4269, 101630, 939, 1025, 4, false}, // NAD83 / California zone 6
    {26948, 4269, 101078, 918, 1012, 4, false}, // NAD83 / Arizona East
    {26949, 4269, 101056, 919, 1011, 4, false}, // NAD83 / Arizona Central
    {26950, 4269, 101099, 920, 1013, 4, false}, // NAD83 / Arizona West
    {26951, 4269, 101120, 923, 1014, 4, false}, // NAD83 / Arkansas North
    {26952, 4269, 101143, 924, 1015, 4, false}, // NAD83 / Arkansas South
    {26953, 4269, 101699, 943, 1029, 4, false}, // NAD83 / Colorado North
    {26954, 4269, 101674, 944, 1028, 4, false}, // NAD83 / Colorado Central
    {26955, 4269, 101720, 945, 1030, 4, false}, // NAD83 / Colorado South
    {26956, 4269, 101742, 947, 235, 4, false}, // NAD83 / Connecticut
    {26957, 4269, 101778, 949, 236, 4, false}, // NAD83 / Delaware
    {26958, 4269, 101799, 953, 1031, 4, false}, // NAD83 / Florida East
    {26959, 4269, 101859, 954, 1033, 4, false}, // NAD83 / Florida West
    {26960, 4269, 101838, 955, 1032, 4, false}, // NAD83 / Florida North
    {26961, 4269, 101972, 1192, 400, 4, false}, // NAD83 / Hawaii zone 1
    {26962, 4269, 101982, 1193, 401, 4, false}, // NAD83 / Hawaii zone 2
    {26963, 4269, 101992, 1194, 402, 4, false}, // NAD83 / Hawaii zone 3
    {26964, 4269, 102018, 1195, 403, 4, false}, // NAD83 / Hawaii zone 4
    {26965, 4269, 102028, 1196, 404, 4, false}, // NAD83 / Hawaii zone 5
    {26966, 4269, 101883, 959, 1034, 4, false}, // NAD83 / Georgia East
    {26967, 4269, 101907, 960, 1035, 4, false}, // NAD83 / Georgia West
    {26968, 4269, 102061, 964, 1037, 4, false}, // NAD83 / Idaho East
    {26969, 4269, 102038, 965, 1036, 4, false}, // NAD83 / Idaho Central
    {26970, 4269, 102101, 966, 1038, 4, false}, // NAD83 / Idaho West
    {26971, 4269, 102123, 969, 1039, 4, false}, // NAD83 / Illinois East
    {26972, 4269, 102151, 970, 1040, 4, false}, // NAD83 / Illinois West
    {26973, 4269, 102179, 973, 1041, 4, false}, // NAD83 / Indiana East
    {26974, 4269, 102199, 974, 1042, 4, false}, // NAD83 / Indiana West
    {26975, 4269, 102219, 977, 1043, 4, false}, // NAD83 / Iowa North
    {26976, 4269, 102238, 978, 1044, 4, false}, // NAD83 / Iowa South
    {26977, 4269, 102284, 981, 1045, 4, false}, // NAD83 / Kansas North
    {26978, 4269, 102305, 982, 1046, 4, false}, // NAD83 / Kansas South
    {26979, 4269, 102326, 986, 1047, 4, true}, // NAD83 / Kentucky North
    {26980, 4269, 102390, 987, 1048, 4, false}, // NAD83 / Kentucky South
    {26981, 4269, 102417, 991, 1049, 4, false}, // NAD83 / Louisiana North
    {26982, 4269, 102467, 992, 1251, 4, false}, // NAD83 / Louisiana South
    {26983, 4269, 102649, 996, 1051, 4, false}, // NAD83 / Maine East
    {26984, 4269, 102671, 997, 1052, 4, false}, // NAD83 / Maine West
    {26985, 4269, 102693, 1005, 247, 4, false}, // NAD83 / Maryland
    {26986, 4269, 102745, 1008, 1054, 4, false}, // NAD83 / Massachusetts Mainland
    {26987, 4269, 102711, 1009, 1053, 4, false}, // NAD83 / Massachusetts Island
    {26988, 4269, 102812, 1016, 573, 4, false}, // NAD83 / Michigan North
    {26989, 4269, 102785, 1017, 574, 4, false}, // NAD83 / Michigan Central
    {26990, 4269, 102857, 1018, 575, 4, false}, // NAD83 / Michigan South
    {26991, 4269, 102908, 1023, 1059, 4, false}, // NAD83 / Minnesota North
    {26992, 4269, 102881, 1024, 1058, 4, false}, // NAD83 / Minnesota Central
    {26993, 4269, 102931, 1025, 1060, 4, false}, // NAD83 / Minnesota South
    {26994, 4269, 102955, 1031, 1061, 4, false}, // NAD83 / Mississippi East
    {26995, 4269, 103002, 1032, 1062, 4, false}, // NAD83 / Mississippi West
    {26996, 4269, 103048, 1036, 1064, 4, false}, // NAD83 / Missouri East
    {26997, 4269, 103036, 1037, 1063, 4, false}, // NAD83 / Missouri Central
    {26998, 4269, 103060, 1038, 1065, 4, false}, // NAD83 / Missouri West
    {27037, 4270, 132750, 1346, 1836, 4, true}, // Nahrwan 1967 / UTM zone 37N
    {27038, 4270, 132766, 1347, 1835, 4, true}, // Nahrwan 1967 / UTM zone 38N
    {27039, 4270, 132782, 1348, 595, 4, false}, // Nahrwan 1967 / UTM zone 39N
    {27040, 4270, 132798, 1349, 596, 4, false}, // Nahrwan 1967 / UTM zone 40N
    {27120, 4271, 133124, 1329, 185, 4, false}, // Naparima 1972 / UTM zone 20N
    {27200, 4272, 132321, 2308, 2318, 4, false}, // NZGD49 / New Zealand Map Grid
    {27205, 4272, 132219, 1966, 2172, 5, false}, // NZGD49 / Mount Eden Circuit
    {27206, 4272, 131978, 1967, 2170, 5, false}, // NZGD49 / Bay of Plenty Circuit
    {27207, 4272, 132418, 1968, 2171, 5, false}, // NZGD49 / Poverty Bay Circuit
    {27208, 4272, 132092, 1969, 2164, 5, false}, // NZGD49 / Hawkes Bay Circuit
    {27209, 4272, 132454, 1970, 2168, 5, false}, // NZGD49 / Taranaki Circuit
    {27210, 4272, 132491, 1971, 2169, 5, false}, // NZGD49 / Tuhirangi Circuit
    {27211, 4272, 132573, 1972, 2167, 5, false}, // NZGD49 / Wanganui Circuit
    {27212, 4272, 132553, 1973, 2166, 5, false}, // NZGD49 / Wairarapa Circuit
    {27213, 4272, 132592, 1974, 2165, 5, false}, // NZGD49 / Wellington Circuit
    {27214, 4272, 132036, 1975, 2173, 5, false}, // NZGD49 / Collingwood Circuit
    {27215, 4272, 132304, 1976, 2175, 5, false}, // NZGD49 / Nelson Circuit
    {27216, 4272, 132158, 1977, 2174, 5, false}, // NZGD49 / Karamea Circuit
    {27217, 4272, 132018, 1978, 2177, 5, false}, // NZGD49 / Buller Circuit
    {27218, 4272, 132076, 1979, 2178, 5, false}, // NZGD49 / Grey Circuit
    {27219, 4272, 131961, 1980, 2179, 5, false}, // NZGD49 / Amuri Circuit
    {27220, 4272, 132198, 1981, 2176, 5, false}, // NZGD49 / Marlborough Circuit
    {27221, 4272, 132114, 1982, 2180, 5, false}, // NZGD49 / Hokitika Circuit
    {27222, 4272, 132400, 1983, 2182, 5, false}, // NZGD49 / Okarito Circuit
    {27223, 4272, 132134, 1984, 2185, 5, false}, // NZGD49 / Jacksons Bay Circuit
    {27224, 4272, 132261, 1985, 2181, 5, false}, // NZGD49 / Mount Pleasant Circuit
    {27225, 4272, 132058, 1986, 2183, 5, false}, // NZGD49 / Gawler Circuit
    {27226, 4272, 132473, 1987, 2184, 5, false}, // NZGD49 / Timaru Circuit
    {27227, 4272, 132176, 1988, 2186, 5, false}, // NZGD49 / Lindis Peak Circuit
    {27228, 4272, 132239, 1989, 2188, 5, false}, // NZGD49 / Mount Nicholas Circuit
    {27229, 4272, 132284, 1990, 2190, 5, false}, // NZGD49 / Mount York Circuit
    {27230, 4272, 132375, 1991, 2187, 5, false}, // NZGD49 / Observation Point Circuit
    {27231, 4272, 132356, 1992, 2189, 5, false}, // NZGD49 / North Taieri Circuit
    {27232, 4272, 132000, 1993, 2191, 5, false}, // NZGD49 / Bluff Circuit
    {27258, 4272, 132511, 1456, 2315, 4, false}, // NZGD49 / UTM zone 58S
    {27259, 4272, 132525, 1457, 2316, 4, false}, // NZGD49 / UTM zone 59S
    {27260, 4272, 132539, 1458, 2317, 4, false}, // NZGD49 / UTM zone 60S
    {27291, 4272, 132342, 2108, 355, 15, false}, // NZGD49 / North Island Grid
    {27292, 4272, 132440, 2109, 1804, 15, false}, // NZGD49 / South Island Grid
    {27391, 4817, 130247, 2148, 587, 5, false}, // NGO 1948 (Oslo) / NGO zone I
    {27392, 4817, 130265, 2149, 588, 5, false}, // NGO 1948 (Oslo) / NGO zone II
    {27393, 4817, 130284, 2150, 589, 5, false}, // NGO 1948 (Oslo) / NGO zone III
    {27394, 4817, 130304, 2151, 590, 5, false}, // NGO 1948 (Oslo) / NGO zone IV
    {27395, 4817, 130323, 2152, 591, 5, false}, // NGO 1948 (Oslo) / NGO zone V
    {27396, 4817, 130341, 2153, 592, 5, false}, // NGO 1948 (Oslo) / NGO zone VI
    {27397, 4817, 130360, 2154, 593, 5, false}, // NGO 1948 (Oslo) / NGO zone VII
    {27398, 4817, 130380, 2155, 594, 5, false}, // NGO 1948 (Oslo) / NGO zone VIII
    {27429, 4274, 39728, 1338, 162, 4, false}, // Datum 73 / UTM zone 29N
    {27492, 4274, 39700, 2361, 162, 5, true}, // Datum 73 / Modified Portuguese Grid
    {27493, 4274, 39700, 2361, 162, 4, false}, // Datum 73 / Modified Portuguese Grid
    {27500, 4901, 4126, 2296, 229, 4, false}, // ATF (Paris) / Nord de Guerre
    {27561, 4807, 130863, 2082, 580, 4, false}, // NTF (Paris) / Lambert Nord France
    {27562, 4807, 130822, 2083, 581, 4, false}, // NTF (Paris) / Lambert Centre France
    {27563, 4807, 130886, 2084, 582, 4, false}, // NTF (Paris) / Lambert Sud France
    {27564, 4807, 130844, 2085, 189, 4, false}, // NTF (Paris) / Lambert Corse
    {27571, 4807, 130909, 2076, 580, 4, false}, // NTF (Paris) / Lambert zone I
    {27572, 4807, 130925, 2077, 583, 4, false}, // NTF (Paris) / Lambert zone II
    {27573, 4807, 130942, 2078, 582, 4, false}, // NTF (Paris) / Lambert zone III
    {27574, 4807, 130960, 2079, 189, 4, false}, // NTF (Paris) / Lambert zone IV
    {27581, 4807, 130758, 2076, 580, 4, true}, // NTF (Paris) / France I
    {27582, 4807, 130773, 2077, 583, 4, true}, // NTF (Paris) / France II
    {27583, 4807, 130789, 2078, 582, 4, true}, // NTF (Paris) / France III
    {27584, 4807, 130806, 2079, 189, 4, true}, // NTF (Paris) / France IV
    {27591, 4807, 130977, 2082, 580, 4, true}, // NTF (Paris) / Nord France
    {27592, 4807, 130728, 2083, 581, 4, true}, // NTF (Paris) / Centre France
    {27593, 4807, 130994, 2084, 582, 4, true}, // NTF (Paris) / Sud France
    {27594, 4807, 130745, 2085, 189, 4, true}, // NTF (Paris) / Corse
    {27700, 4277, 142707, 2307, 2703, 4, false}, // OSGB36 / British National Grid
    {28191, 4281, 148206, 2141, 217, 4, false}, // Palestine 1923 / Palestine Grid
    {28192, 4281, 148186, 2142, 217, 4, false}, // Palestine 1923 / Palestine Belt
    {28193, 4281, 148165, 2143, 1288, 4, false}, // Palestine 1923 / Israeli CS Grid
    {28232, 4282, 150460, 1430, 30, 4, false}, // Pointe Noire / UTM zone 32S
    {28348, 4283, 55305, 1847, 2507, 4, false}, // GDA94 / MGA zone 48
    {28349, 4283, 55318, 1848, 2493, 4, false}, // GDA94 / MGA zone 49
    {28350, 4283, 55331, 1849, 2495, 4, false}, // GDA94 / MGA zone 50
    {28351, 4283, 55344, 1850, 413, 4, false}, // GDA94 / MGA zone 51
    {28352, 4283, 55357, 1851, 414, 4, false}, // GDA94 / MGA zone 52
    {28353, 4283, 55370, 1852, 415, 4, false}, // GDA94 / MGA zone 53
    {28354, 4283, 55383, 1853, 416, 4, false}, // GDA94 / MGA zone 54
    {28355, 4283, 55396, 1854, 417, 4, false}, // GDA94 / MGA zone 55
    {28356, 4283, 55409, 1855, 418, 4, false}, // GDA94 / MGA zone 56
    {28357, 4283, 55422, 1856, 2512, 4, false}, // GDA94 / MGA zone 57
    {28358, 4283, 55435, 1857, 2492, 4, false}, // GDA94 / MGA zone 58
    {28402, 4284, 158474, 1473, 651, 5, true}, // Pulkovo 1942 / Gauss-Kruger zone 2
    {28403, 4284, 158748, 1474, 638, 5, true}, // Pulkovo 1942 / Gauss-Kruger zone 3
    {28404, 4284, 158847, 1475, 639, 5, false}, // Pulkovo 1942 / Gauss-Kruger zone 4
    {28405, 4284, 158871, 1476, 640, 5, false}, // Pulkovo 1942 / Gauss-Kruger zone 5
    {28406, 4284, 158895, 1477, 641, 5, false}, // Pulkovo 1942 / Gauss-Kruger zone 6
    {28407, 4284, 158919, 1478, 642, 5, false}, // Pulkovo 1942 / Gauss-Kruger zone 7
    {28408, 4284, 158943, 1479, 643, 5, false}, // Pulkovo 1942 / Gauss-Kruger zone 8
    {28409, 4284, 158967, 1480, 644, 5, false}, // Pulkovo 1942 / Gauss-Kruger zone 9
    {28410, 4284, 158224, 1481, 645, 5, false}, // Pulkovo 1942 / Gauss-Kruger zone 10
    {28411, 4284, 158249, 1482, 646, 5, false}, // Pulkovo 1942 / Gauss-Kruger zone 11
    {28412, 4284, 158274, 1483, 647, 5, false}, // Pulkovo 1942 / Gauss-Kruger zone 12
    {28413, 4284, 158299, 1484, 648, 5, false}, // Pulkovo 1942 / Gauss-Kruger zone 13
    {28414, 4284, 158324, 1485, 649, 5, false}, // Pulkovo 1942 / Gauss-Kruger zone 14
    {28415, 4284, 158349, 1486, 650, 5, false}, // Pulkovo 1942 / Gauss-Kruger zone 15
    {28416, 4284, 158374, 1487, 621, 5, false}, // Pulkovo 1942 / Gauss-Kruger zone 16
    {28417, 4284, 158399, 1488, 622, 5, false}, // Pulkovo 1942 / Gauss-Kruger zone 17
    {28418, 4284, 158424, 1489, 623, 5, false}, // Pulkovo 1942 / Gauss-Kruger zone 18
    {28419, 4284, 158449, 1490, 624, 5, false}, // Pulkovo 1942 / Gauss-Kruger zone 19
    {28420, 4284, 158498, 1491, 625, 5, false}, // Pulkovo 1942 / Gauss-Kruger zone 20
    {28421, 4284, 158523, 1492, 626, 5, false}, // Pulkovo 1942 / Gauss-Kruger zone 21
    {28422, 4284, 158548, 1493, 627, 5, false}, // Pulkovo 1942 / Gauss-Kruger zone 22
    {28423, 4284, 158573, 1494, 628, 5, false}, // Pulkovo 1942 / Gauss-Kruger zone 23
    {28424, 4284, 158598, 1495, 629, 5, false}, // Pulkovo 1942 / Gauss-Kruger zone 24
    {28425, 4284, 158623, 1496, 630, 5, false}, // Pulkovo 1942 / Gauss-Kruger zone 25
    {28426, 4284, 158648, 1497, 631, 5, false}, // Pulkovo 1942 / Gauss-Kruger zone 26
    {28427, 4284, 158673, 1498, 632, 5, false}, // Pulkovo 1942 / Gauss-Kruger zone 27
    {28428, 4284, 158698, 1499, 633, 5, false}, // Pulkovo 1942 / Gauss-Kruger zone 28
    {28429, 4284, 158723, 1500, 634, 5, false}, // Pulkovo 1942 / Gauss-Kruger zone 29
    {28430, 4284, 158772, 1501, 635, 5, false}, // Pulkovo 1942 / Gauss-Kruger zone 30
    {28431, 4284, 158797, 1502, 636, 5, false}, // Pulkovo 1942 / Gauss-Kruger zone 31
    {28432, 4284, 158822, 1503, 637, 5, false}, // Pulkovo 1942 / Gauss-Kruger zone 32
    {28462, 4284, 157068, 1543, 651, 5, true}, // Pulkovo 1942 / Gauss-Kruger 2N
    {28463, 4284, 157171, 1544, 638, 5, true}, // Pulkovo 1942 / Gauss-Kruger 3N
    {28464, 4284, 157196, 1545, 639, 5, true}, // Pulkovo 1942 / Gauss-Kruger 4N
    {28465, 4284, 157221, 1546, 640, 5, true}, // Pulkovo 1942 / Gauss-Kruger 5N
    {28466, 4284, 157246, 1547, 641, 5, true}, // Pulkovo 1942 / Gauss-Kruger 6N
    {28467, 4284, 157271, 1548, 642, 5, true}, // Pulkovo 1942 / Gauss-Kruger 7N
    {28468, 4284, 157296, 1549, 643, 5, true}, // Pulkovo 1942 / Gauss-Kruger 8N
    {28469, 4284, 157321, 1550, 644, 5, true}, // Pulkovo 1942 / Gauss-Kruger 9N
    {28470, 4284, 156550, 1551, 645, 5, true}, // Pulkovo 1942 / Gauss-Kruger 10N
    {28471, 4284, 156575, 1552, 646, 5, true}, // Pulkovo 1942 / Gauss-Kruger 11N
    {28472, 4284, 156601, 1553, 647, 5, true}, // Pulkovo 1942 / Gauss-Kruger 12N
    {28473, 4284, 156627, 1554, 648, 5, true}, // Pulkovo 1942 / Gauss-Kruger 13N
    {28474, 4284, 156653, 1555, 649, 5, true}, // Pulkovo 1942 / Gauss-Kruger 14N
    {28475, 4284, 156679, 1556, 650, 5, true}, // Pulkovo 1942 / Gauss-Kruger 15N
    {28476, 4284, 156705, 1557, 621, 5, true}, // Pulkovo 1942 / Gauss-Kruger 16N
    {28477, 4284, 156731, 1558, 622, 5, true}, // Pulkovo 1942 / Gauss-Kruger 17N
    {28478, 4284, 156757, 1559, 623, 5, true}, // Pulkovo 1942 / Gauss-Kruger 18N
    {28479, 4284, 156783, 1560, 624, 5, true}, // Pulkovo 1942 / Gauss-Kruger 19N
    {28480, 4284, 156809, 1561, 625, 5, true}, // Pulkovo 1942 / Gauss-Kruger 20N
    {28481, 4284, 156834, 1562, 626, 5, true}, // Pulkovo 1942 / Gauss-Kruger 21N
    {28482, 4284, 156860, 1563, 627, 5, true}, // Pulkovo 1942 / Gauss-Kruger 22N
    {28483, 4284, 156886, 1564, 628, 5, true}, // Pulkovo 1942 / Gauss-Kruger 23N
    {28484, 4284, 156912, 1565, 629, 5, true}, // Pulkovo 1942 / Gauss-Kruger 24N
    {28485, 4284, 156938, 1566, 630, 5, true}, // Pulkovo 1942 / Gauss-Kruger 25N
    {28486, 4284, 156964, 1567, 631, 5, true}, // Pulkovo 1942 / Gauss-Kruger 26N
    {28487, 4284, 156990, 1568, 632, 5, true}, // Pulkovo 1942 / Gauss-Kruger 27N
    {28488, 4284, 157016, 1569, 633, 5, true}, // Pulkovo 1942 / Gauss-Kruger 28N
    {28489, 4284, 157042, 1570, 634, 5, true}, // Pulkovo 1942 / Gauss-Kruger 29N
    {28490, 4284, 157093, 1571, 635, 5, true}, // Pulkovo 1942 / Gauss-Kruger 30N
    {28491, 4284, 157119, 1572, 636, 5, true}, // Pulkovo 1942 / Gauss-Kruger 31N
    {28492, 4284, 157145, 1573, 637, 5, true}, // Pulkovo 1942 / Gauss-Kruger 32N
    {28600, 4285, 167138, 2309, 208, 4, false}, // Qatar 1974 / Qatar National Grid
    {28991, 4289, 6999, 2305, 146, 4, false}, // Amersfoort / RD Old
    {28992, 4289, 6986, 2306, 146, 4, false}, // Amersfoort / RD New
    {29100, 4291, 175291, 2330, 17, 4, true}, // SAD69 / Brazil Polyconic
    {29101, 4618, 175291, 2330, 17, 4, false}, // SAD69 / Brazil Polyconic
    {29118, 4291, 175332, 1327, 653, 4, true}, // SAD69 / UTM zone 18N
    {29119, 4291, 175356, 1328, 655, 4, true}, // SAD69 / UTM zone 19N
    {29120, 4291, 175380, 1329, 657, 4, true}, // SAD69 / UTM zone 20N
    {29121, 4291, 175402, 1330, 659, 4, true}, // SAD69 / UTM zone 21N
    {29122, 4291, 175426, 1331, 661, 4, true}, // SAD69 / UTM zone 22N
    {29168, 4618, 175332, 1327, 2209, 4, false}, // SAD69 / UTM zone 18N
    {29169, 4618, 175356, 1328, 2211, 4, false}, // SAD69 / UTM zone 19N
    {29170, 4618, 175380, 1329, 2216, 4, false}, // SAD69 / UTM zone 20N
    {29171, 4618, 175402, 1330, 2218, 4, false}, // SAD69 / UTM zone 21N
    {29172, 4618, 175426, 1331, 661, 4, false}, // SAD69 / UTM zone 22N
    {29177, 4291, 175320, 1415, 652, 4, true}, // SAD69 / UTM zone 17S
    {29178, 4291, 175344, 1416, 654, 4, true}, // SAD69 / UTM zone 18S
    {29179, 4291, 175368, 1417, 656, 4, true}, // SAD69 / UTM zone 19S
    {29180, 4291, 175391, 1418, 658, 4, true}, // SAD69 / UTM zone 20S
    {29181, 4291, 175414, 1419, 660, 4, true}, // SAD69 / UTM zone 21S
    {29182, 4291, 175438, 1420, 662, 4, true}, // SAD69 / UTM zone 22S
    {29183, 4291, 175450, 1421, 663, 4, true}, // SAD69 / UTM zone 23S
    {29184, 4291, 175462, 1422, 664, 4, true}, // SAD69 / UTM zone 24S
    {29185, 4291, 175474, 1423, 665, 4, true}, // SAD69 / UTM zone 25S
    {29187, 4618, 175320, 1415, 2208, 4, false}, // SAD69 / UTM zone 17S
    {29188, 4618, 175344, 1416, 2210, 4, false}, // SAD69 / UTM zone 18S
    {29189, 4618, 175368, 1417, 2212, 4, false}, // SAD69 / UTM zone 19S
    {29190, 4618, 175391, 1418, 2217, 4, false}, // SAD69 / UTM zone 20S
    {29191, 4618, 175414, 1419, 660, 4, false}, // SAD69 / UTM zone 21S
    {29192, 4618, 175438, 1420, 662, 4, false}, // SAD69 / UTM zone 22S
    {29193, 4618, 175450, 1421, 1892, 4, false}, // SAD69 / UTM zone 23S
    {29194, 4618, 175462, 1422, 1893, 4, false}, // SAD69 / UTM zone 24S
    {29195, 4618, 175474, 1423, 1894, 4, false}, // SAD69 / UTM zone 25S
    {29220, 4292, 184172, 1418, 666, 4, false}, // Sapper Hill 1943 / UTM zone 20S
    {29221, 4292, 184191, 1419, 667, 4, false}, // Sapper Hill 1943 / UTM zone 21S
    {29333, 4293, 184664, 1431, 668, 4, false}, // Schwarzeck / UTM zone 33S
    {29371, 4293, 184520, 1914, 684, 11, false}, // Schwarzeck / Lo22/11
    {29373, 4293, 184538, 1915, 685, 11, false}, // Schwarzeck / Lo22/13
    {29375, 4293, 184556, 1916, 686, 11, false}, // Schwarzeck / Lo22/15
    {29377, 4293, 184574, 1917, 687, 11, false}, // Schwarzeck / Lo22/17
    {29379, 4293, 184592, 1918, 688, 11, false}, // Schwarzeck / Lo22/19
    {29381, 4293, 184610, 1919, 689, 11, false}, // Schwarzeck / Lo22/21
    {29383, 4293, 184628, 1920, 690, 11, false}, // Schwarzeck / Lo22/23
    {29385, 4293, 184646, 1921, 691, 11, false}, // Schwarzeck / Lo22/25
    {29635, 4296, 190549, 1344, 692, 4, true}, // Sudan / UTM zone 35N
    {29636, 4296, 190561, 1345, 693, 4, true}, // Sudan / UTM zone 36N
    {29700, 4810, 193243, 2304, 1756, 4, true}, // Tananarive (Paris) / Laborde Grid
    {29701, 4810, 193243, 2256, 1756, 5, false}, // Tananarive (Paris) / Laborde Grid
    {29702, 4810, 193265, 2304, 1756, 5, false}, // Tananarive (Paris) / Laborde Grid approximation
    {29738, 4297, 193316, 1436, 694, 4, false}, // Tananarive / UTM zone 38S
    {29739, 4297, 193331, 1437, 695, 4, false}, // Tananarive / UTM zone 39S
    {29849, 4298, 194331, 1358, 697, 4, false}, // Timbalai 1948 / UTM zone 49N
    {29850, 4298, 194349, 1359, 698, 4, false}, // Timbalai 1948 / UTM zone 50N
    {29871, 4298, 194230, 2345, 222, 17, false}, // Timbalai 1948 / RSO Borneo (ch)
    {29872, 4298, 194254, 2346, 2321, 16, false}, // Timbalai 1948 / RSO Borneo (ftSe)
    {29873, 4298, 194280, 2347, 222, 4, false}, // Timbalai 1948 / RSO Borneo (m)
    {29874, 4298, 194303, 2234, 2895, 4, false}, // Timbalai 1948 / RSO Sarawak LSD (m)
    {29900, 4299, 191682, 2301, 170, 4, true}, // TM65 / Irish National Grid
    {29901, 4188, 142762, 2360, 1252, 4, false}, // OSNI 1952 / Irish National Grid
    {29902, 4299, 191669, 2359, 2162, 4, false}, // TM65 / Irish Grid
    {29903, 4300, 191716, 2359, 170, 4, false}, // TM75 / Irish Grid
    {30161, 4301, 194471, 1947, 699, 5, false}, // Tokyo / Japan Plane Rectangular CS I
    {30162, 4301, 194499, 1948, 700, 5, false}, // Tokyo / Japan Plane Rectangular CS II
    {30163, 4301, 194528, 1949, 701, 5, false}, // Tokyo / Japan Plane Rectangular CS III
    {30164, 4301, 194558, 1950, 702, 5, false}, // Tokyo / Japan Plane Rectangular CS IV
    {30165, 4301, 194616, 1951, 703, 5, false}, // Tokyo / Japan Plane Rectangular CS V
    {30166, 4301, 194644, 1952, 704, 5, false}, // Tokyo / Japan Plane Rectangular CS VI
    {30167, 4301, 194673, 1953, 705, 5, false}, // Tokyo / Japan Plane Rectangular CS VII
    {30168, 4301, 194703, 1954, 706, 5, false}, // Tokyo / Japan Plane Rectangular CS VIII
    {30169, 4301, 194587, 1955, 707, 5, false}, // Tokyo / Japan Plane Rectangular CS IX
    {30170, 4301, 194734, 1956, 708, 5, false}, // Tokyo / Japan Plane Rectangular CS X
    {30171, 4301, 194762, 1957, 709, 5, false}, // Tokyo / Japan Plane Rectangular CS XI
    {30172, 4301, 194791, 1958, 710, 5, false}, // Tokyo / Japan Plane Rectangular CS XII
    {30173, 4301, 194821, 1959, 711, 5, false}, // Tokyo / Japan Plane Rectangular CS XIII
    {30174, 4301, 194852, 1960, 712, 5, false}, // Tokyo / Japan Plane Rectangular CS XIV
    {30175, 4301, 194912, 1961, 713, 5, false}, // Tokyo / Japan Plane Rectangular CS XV
    {30176, 4301, 194941, 1962, 714, 5, false}, // Tokyo / Japan Plane Rectangular CS XVI
    {30177, 4301, 194971, 1963, 715, 5, false}, // Tokyo / Japan Plane Rectangular CS XVII
    {30178, 4301, 195002, 1964, 716, 5, false}, // Tokyo / Japan Plane Rectangular CS XVIII
    {30179, 4301, 194882, 1965, 717, 5, false}, // Tokyo / Japan Plane Rectangular CS XIX
    {30200, 4302, 195364, 2315, 201, 14, false}, // Trinidad 1903 / Trinidad Grid
    {30339, 4303, 191504, 1348, 696, 4, false}, // TC(1948) / UTM zone 39N
    {30340, 4303, 191518, 1349, 2353, 4, false}, // TC(1948) / UTM zone 40N
    {30491, 4304, 209664, 2039, 578, 4, false}, // Voirol 1875 / Nord Algerie (ancienne)
    {30492, 4304, 209692, 2040, 2825, 4, false}, // Voirol 1875 / Sud Algerie (ancienne)
    {30493, 4671, 209746, 2039, 578, 4, false}, // Voirol 1879 / Nord Algerie (ancienne)
    {30494, 4671, 209774, 2040, 2825, 4, false}, // Voirol 1879 / Sud Algerie (ancienne)
    {30729, 4307, 138013, 1338, 584, 4, false}, // Nord Sahara 1959 / UTM zone 29N
    {30730, 4307, 138030, 1339, 2297, 4, false}, // Nord Sahara 1959 / UTM zone 30N
    {30731, 4307, 138047, 1340, 2298, 4, false}, // Nord Sahara 1959 / UTM zone 31N
    {30732, 4307, 138064, 1341, 2299, 4, false}, // Nord Sahara 1959 / UTM zone 32N
    {30791, 4307, 137972, 2041, 578, 4, false}, // Nord Sahara 1959 / Nord Algerie
    {30792, 4307, 137992, 2042, 579, 4, false}, // Nord Sahara 1959 / Sud Algerie
    {30800, 4308, 171182, 2319, 120, 5, true}, // RT38 2.5 gon W
    {31028, 4310, 229926, 1337, 112, 4, false}, // Yoff / UTM zone 28N
    {31121, 4311, 230104, 1330, 118, 4, false}, // Zanderij / UTM zone 21N
    {31154, 4311, 230090, 1667, 577, 4, false}, // Zanderij / TM 54 NW
    {31170, 4311, 230061, 2343, 1786, 4, false}, // Zanderij / Suriname Old TM
    {31171, 4311, 230077, 2344, 1786, 4, false}, // Zanderij / Suriname TM
    {31251, 4805, 89142, 2030, 557, 5, false}, // MGI (Ferro) / Austria GK West Zone
    {31252, 4805, 89098, 2031, 558, 5, false}, // MGI (Ferro) / Austria GK Central Zone
    {31253, 4805, 89120, 2032, 559, 5, false}, // MGI (Ferro) / Austria GK East Zone
    {31254, 4312, 89430, 2033, 557, 5, false}, // MGI / Austria GK West
    {31255, 4312, 89355, 2034, 558, 5, false}, // MGI / Austria GK Central
    {31256, 4312, 89370, 2035, 559, 5, false}, // MGI / Austria GK East
    {31257, 4312, 89385, 2036, 557, 5, false}, // MGI / Austria GK M28
    {31258, 4312, 89400, 2037, 558, 5, false}, // MGI / Austria GK M31
    {31259, 4312, 89415, 2038, 559, 5, false}, // MGI / Austria GK M34
    {31265, 4312, 89259, 1508, 560, 4, true}, // MGI / 3-degree Gauss zone 5
    {31266, 4312, 89277, 1509, 561, 4, true}, // MGI / 3-degree Gauss zone 6
    {31267, 4312, 89295, 1510, 562, 4, true}, // MGI / 3-degree Gauss zone 7
    {31268, 4312, 89313, 1511, 563, 4, true}, // MGI / 3-degree Gauss zone 8
    {31275, 4312, 89507, 2180, 560, 5, true}, // MGI / Balkans zone 5
    {31276, 4312, 89519, 2181, 561, 5, true}, // MGI / Balkans zone 6
    {31277, 4312, 89531, 2182, 562, 5, true}, // MGI / Balkans zone 7
    {31278, 4312, 89543, 2182, 563, 5, true}, // MGI / Balkans zone 8
    {31279, 4312, 89543, 2183, 563, 5, true}, // MGI / Balkans zone 8
    {31281, 4805, 89164, 2050, 557, 5, false}, // MGI (Ferro) / Austria West Zone
    {31282, 4805, 89059, 2051, 558, 5, false}, // MGI (Ferro) / Austria Central Zone
    {31283, 4805, 89079, 2052, 559, 5, false}, // MGI (Ferro) / Austria East Zone
    {31284, 4312, 89459, 2053, 557, 5, false}, // MGI / Austria M28
    {31285, 4312, 89471, 2054, 558, 5, false}, // MGI / Austria M31
    {31286, 4312, 89483, 2055, 559, 5, false}, // MGI / Austria M34
    {31287, 4312, 89445, 2336, 8, 5, false}, // MGI / Austria Lambert
    {31288, 4805, 89183, 2056, 557, 5, false}, // MGI (Ferro) / Austria zone M28
    {31289, 4805, 89201, 2057, 558, 5, false}, // MGI (Ferro) / Austria zone M31
    {31290, 4805, 89219, 2058, 559, 5, false}, // MGI (Ferro) / Austria zone M34
    {31291, 4805, 89164, 2050, 557, 4, true}, // MGI (Ferro) / Austria West Zone
    {31292, 4805, 89059, 2051, 559, 4, true}, // MGI (Ferro) / Austria Central Zone
    {31293, 4805, 89079, 2052, 558, 4, true}, // MGI (Ferro) / Austria East Zone
    {31294, 4312, 89555, 2053, 557, 4, true}, // MGI / M28
    {31295, 4312, 89563, 2054, 558, 4, true}, // MGI / M31
    {31296, 4312, 89571, 2055, 559, 4, true}, // MGI / M34
    {31297, 4312, 89445, 2336, 8, 4, true}, // MGI / Austria Lambert
    {31300, 4313, 18727, 2295, 209, 4, false}, // BD72 / Belge Lambert 72
    {31370, 4313, 18745, 2350, 209, 4, false}, // BD72 / Belgian Lambert 72
    {31461, 4314, 38567, 1504, 480, 4, true}, // DHDN / 3-degree Gauss zone 1
    {31462, 4314, 38586, 1505, 476, 4, true}, // DHDN / 3-degree Gauss zone 2
    {31463, 4314, 38605, 1506, 477, 4, true}, // DHDN / 3-degree Gauss zone 3
    {31464, 4314, 38624, 1507, 478, 4, true}, // DHDN / 3-degree Gauss zone 4
    {31465, 4314, 38643, 1508, 479, 4, true}, // DHDN / 3-degree Gauss zone 5
    {31466, 4314, 38717, 1505, 476, 5, false}, // DHDN / 3-degree Gauss-Kruger zone 2
    {31467, 4314, 38772, 1506, 477, 5, false}, // DHDN / 3-degree Gauss-Kruger zone 3
    {31468, 4314, 38827, 1507, 478, 5, false}, // DHDN / 3-degree Gauss-Kruger zone 4
    {31469, 4314, 38882, 1508, 479, 5, false}, // DHDN / 3-degree Gauss-Kruger zone 5
    {31528, 4315, 35368, 1337, 324, 4, false}, // Conakry 1905 / UTM zone 28N
    {31529, 4315, 35385, 1338, 325, 4, false}, // Conakry 1905 / UTM zone 29N
    {31600, 4316, 40012, 2317, 1772, 4, false}, // Dealul Piscului 1930 / Stereo 33
    {31700, 4317, 40096, 2316, 109, 5, true}, // Dealul Piscului 1970/ Stereo 70
    {31838, 4318, 130177, 1347, 585, 4, false}, // NGN / UTM zone 38N
    {31839, 4318, 130188, 1348, 586, 4, false}, // NGN / UTM zone 39N
    {31900, 4319, 79449, 2318, 175, 4, true}, // KUDAMS / KTM
    {31901, 4319, 79449, 2383, 175, 4, false}, // KUDAMS / KTM
    {31965, 4674, 176327, 1320, 2145, 4, false}, // SIRGAS 2000 / UTM zone 11N
    {31966, 4674, 176344, 1321, 2153, 4, false}, // SIRGAS 2000 / UTM zone 12N
    {31967, 4674, 176361, 1322, 2156, 4, false}, // SIRGAS 2000 / UTM zone 13N
    {31968, 4674, 176378, 1323, 2159, 4, false}, // SIRGAS 2000 / UTM zone 14N
    {31969, 4674, 176395, 1324, 1874, 4, false}, // SIRGAS 2000 / UTM zone 15N
    {31970, 4674, 176412, 1325, 1875, 4, false}, // SIRGAS 2000 / UTM zone 16N
    {31971, 4674, 176429, 1326, 1868, 4, false}, // SIRGAS 2000 / UTM zone 17N
    {31972, 4674, 176463, 1327, 1869, 4, false}, // SIRGAS 2000 / UTM zone 18N
    {31973, 4674, 176497, 1328, 1883, 4, false}, // SIRGAS 2000 / UTM zone 19N
    {31974, 4674, 176531, 1329, 1884, 4, false}, // SIRGAS 2000 / UTM zone 20N
    {31975, 4674, 176563, 1330, 1885, 4, false}, // SIRGAS 2000 / UTM zone 21N
    {31976, 4674, 176597, 1331, 1886, 4, false}, // SIRGAS 2000 / UTM zone 22N
    {31977, 4674, 176446, 1415, 670, 4, false}, // SIRGAS 2000 / UTM zone 17S
    {31978, 4674, 176480, 1416, 1887, 4, false}, // SIRGAS 2000 / UTM zone 18S
    {31979, 4674, 176514, 1417, 1888, 4, false}, // SIRGAS 2000 / UTM zone 19S
    {31980, 4674, 176547, 1418, 1889, 4, false}, // SIRGAS 2000 / UTM zone 20S
    {31981, 4674, 176580, 1419, 1890, 4, false}, // SIRGAS 2000 / UTM zone 21S
    {31982, 4674, 176614, 1420, 1891, 4, false}, // SIRGAS 2000 / UTM zone 22S
    {31983, 4674, 176648, 1421, 1892, 4, false}, // SIRGAS 2000 / UTM zone 23S
    {31984, 4674, 176682, 1422, 1893, 4, false}, // SIRGAS 2000 / UTM zone 24S
    {31985, 4674, 176699, 1423, 1894, 4, false}, // SIRGAS 2000 / UTM zone 25S
    {31986, 4170, 176021, 1326, 669, 4, false}, // SIRGAS 1995 / UTM zone 17N
    {31987, 4170, 176055, 1327, 671, 4, false}, // SIRGAS 1995 / UTM zone 18N
    {31988, 4170, 176089, 1328, 673, 4, false}, // SIRGAS 1995 / UTM zone 19N
    {31989, 4170, 176123, 1329, 675, 4, false}, // SIRGAS 1995 / UTM zone 20N
    {31990, 4170, 176155, 1330, 677, 4, false}, // SIRGAS 1995 / UTM zone 21N
    {31991, 4170, 176189, 1331, 679, 4, false}, // SIRGAS 1995 / UTM zone 22N
    {31992, 4170, 176038, 1415, 2067, 4, false}, // SIRGAS 1995 / UTM zone 17S
    {31993, 4170, 176072, 1416, 672, 4, false}, // SIRGAS 1995 / UTM zone 18S
    {31994, 4170, 176106, 1417, 674, 4, false}, // SIRGAS 1995 / UTM zone 19S
    {31995, 4170, 176139, 1418, 676, 4, false}, // SIRGAS 1995 / UTM zone 20S
    {31996, 4170, 176172, 1419, 678, 4, false}, // SIRGAS 1995 / UTM zone 21S
    {31997, 4170, 176206, 1420, 680, 4, false}, // SIRGAS 1995 / UTM zone 22S
    {31998, 4170, 176223, 1421, 681, 4, false}, // SIRGAS 1995 / UTM zone 23S
    {31999, 4170, 176240, 1422, 682, 4, false}, // SIRGAS 1995 / UTM zone 24S
    {32000, 4170, 176257, 1423, 683, 4, false}, // SIRGAS 1995 / UTM zone 25S
    {32001, 4267, 99076, 1039, 1056, 8, false}, // NAD27 / Montana North
    {32002, 4267, 99064, 1040, 1055, 8, false}, // NAD27 / Montana Central
    {32003, 4267, 99086, 1041, 1057, 8, false}, // NAD27 / Montana South
    {32005, 4267, 99097, 1043, 1066, 8, false}, // NAD27 / Nebraska North
    {32006, 4267, 99108, 1044, 1067, 8, false}, // NAD27 / Nebraska South
    {32007, 4267, 99131, 1046, 1069, 8, false}, // NAD27 / Nevada East
    {32008, 4267, 99120, 1047, 1068, 8, false}, // NAD27 / Nevada Central
    {32009, 4267, 99142, 1048, 1070, 8, false}, // NAD27 / Nevada West
    {32010, 4267, 99180, 1052, 255, 8, false}, // NAD27 / New Hampshire
    {32011, 4267, 99192, 1054, 256, 8, false}, // NAD27 / New Jersey
    {32012, 4267, 99216, 1056, 1073, 8, false}, // NAD27 / New Mexico East
    {32013, 4267, 99202, 1057, 1074, 8, false}, // NAD27 / New Mexico Central
    {32014, 4267, 99230, 1058, 1075, 8, false}, // NAD27 / New Mexico West
    {32015, 4267, 99257, 1062, 1079, 8, false}, // NAD27 / New York East
    {32016, 4267, 99244, 1063, 1078, 8, false}, // NAD27 / New York Central
    {32017, 4267, 99285, 1064, 1081, 8, false}, // NAD27 / New York West
    {32018, 4267, 99270, 1065, 1080, 8, true}, // NAD27 / New York Long Island
    {32019, 4267, 99298, 1070, 259, 8, false}, // NAD27 / North Carolina
    {32020, 4267, 99308, 1072, 1082, 8, false}, // NAD27 / North Dakota North
    {32021, 4267, 99319, 1073, 1083, 8, false}, // NAD27 / North Dakota South
    {32022, 4267, 99331, 1076, 1084, 8, false}, // NAD27 / Ohio North
    {32023, 4267, 99340, 1077, 1085, 8, false}, // NAD27 / Ohio South
    {32024, 4267, 99350, 1082, 1086, 8, false}, // NAD27 / Oklahoma North
    {32025, 4267, 99361, 1083, 1087, 8, false}, // NAD27 / Oklahoma South
    {32026, 4267, 99373, 1086, 1088, 8, false}, // NAD27 / Oregon North
    {32027, 4267, 99380, 1087, 1089, 8, false}, // NAD27 / Oregon South
    {32028, 4267, 99388, 1091, 1090, 8, false}, // NAD27 / Pennsylvania North
    {32029, 4267, 99402, 1092, 1091, 8, true}, // NAD27 / Pennsylvania South
    {32030, 4267, 99433, 1095, 265, 8, false}, // NAD27 / Rhode Island
    {32031, 4267, 99457, 1097, 1092, 8, false}, // NAD27 / South Carolina North
    {32033, 4267, 99468, 1098, 1093, 8, false}, // NAD27 / South Carolina South
    {32034, 4267, 99480, 1100, 1094, 8, false}, // NAD27 / South Dakota North
    {32035, 4267, 99491, 1101, 1095, 8, false}, // NAD27 / South Dakota South
    {32036, 4267, 99503, 1104, 268, 8, true}, // NAD27 / Tennessee
    {32037, 4267, 99526, 1106, 1098, 8, false}, // NAD27 / Texas North
    {32038, 4267, 99536, 1107, 1099, 8, false}, // NAD27 / Texas North Central
    {32039, 4267, 99514, 1108, 1097, 8, false}, // NAD27 / Texas Central
    {32040, 4267, 99559, 1109, 1101, 8, false}, // NAD27 / Texas South Central
    {32041, 4267, 99549, 1110, 1100, 8, false}, // NAD27 / Texas South
    {32042, 4267, 99834, 1120, 1103, 8, false}, // NAD27 / Utah North
    {32043, 4267, 99823, 1121, 1102, 8, false}, // NAD27 / Utah Central
    {32044, 4267, 99843, 1122, 1104, 8, false}, // NAD27 / Utah South
    {32045, 4267, 99852, 1126, 271, 8, false}, // NAD27 / Vermont
    {32046, 4267, 99861, 1128, 1105, 8, false}, // NAD27 / Virginia North
    {32047, 4267, 99871, 1129, 1106, 8, false}, // NAD27 / Virginia South
    {32048, 4267, 99882, 1132, 1107, 8, false}, // NAD27 / Washington North
    {32049, 4267, 99894, 1133, 1108, 8, false}, // NAD27 / Washington South
    {32050, 4267, 99907, 1136, 1109, 8, false}, // NAD27 / West Virginia North
    {32051, 4267, 99919, 1137, 1110, 8, false}, // NAD27 / West Virginia South
    {32052, 4267, 99946, 1144, 1112, 8, false}, // NAD27 / Wisconsin North
    {32053, 4267, 99932, 1145, 1111, 8, false}, // NAD27 / Wisconsin Central
    {32054, 4267, 99958, 1146, 1113, 8, false}, // NAD27 / Wisconsin South
    {32055, 4267, 99993, 1152, 1114, 8, false}, // NAD27 / Wyoming East
    {32056, 4267, 100006, 1153, 1115, 8, false}, // NAD27 / Wyoming East Central
    {32057, 4267, 100034, 1154, 1117, 8, false}, // NAD27 / Wyoming West Central
    {32058, 4267, 100021, 1155, 1116, 8, false}, // NAD27 / Wyoming West
    {32061, 4267, 98529, 2146, 965, 4, true}, // NAD27 / Guatemala Norte
    {32062, 4267, 98542, 2147, 966, 4, true}, // NAD27 / Guatemala Sur
    {32064, 4267, 97947, 1305, 2066, 8, false}, // NAD27 / BLM 14N (ftUS)
    {32065, 4267, 97979, 1306, 2069, 8, false}, // NAD27 / BLM 15N (ftUS)
    {32066, 4267, 98011, 1307, 2070, 8, false}, // NAD27 / BLM 16N (ftUS)
    {32067, 4267, 98043, 1308, 2071, 8, false}, // NAD27 / BLM 17N (ftUS)
    {32074, 4267, 97932, 1305, 1016, 8, true}, // NAD27 / BLM 14N (feet)
    {32075, 4267, 97964, 1306, 1017, 8, true}, // NAD27 / BLM 15N (feet)
    {32076, 4267, 97996, 1307, 1018, 8, true}, // NAD27 / BLM 16N (feet)
    {32077, 4267, 98028, 1308, 1019, 8, true}, // NAD27 / BLM 17N (feet)
    {32081, 4267, 98734, 1923, 1071, 4, false}, // NAD27 / MTM zone 1
    {32082, 4267, 98751, 1924, 1072, 4, false}, // NAD27 / MTM zone 2
    {32083, 4267, 98759, 1925, 1120, 4, false}, // NAD27 / MTM zone 3
    {32084, 4267, 98767, 1926, 2248, 4, false}, // NAD27 / MTM zone 4
    {32085, 4267, 98775, 1927, 2238, 4, false}, // NAD27 / MTM zone 5
    {32086, 4267, 98783, 1928, 2252, 4, false}, // NAD27 / MTM zone 6
    {32098, 4267, 99417, 2333, 228, 4, false}, // NAD27 / Quebec Lambert
    {32099, 4267, 98709, 990, 245, 8, false}, // NAD27 / Louisiana Offshore
    {32100, 4269, 103072, 1042, 252, 4, false}, // NAD83 / Montana
    {32104, 4269, 103183, 1045, 253, 4, false}, // NAD83 / Nebraska
    {32107, 4269, 103227, 1049, 1069, 4, false}, // NAD83 / Nevada East
    {32108, 4269, 103204, 1050, 1068, 4, false}, // NAD83 / Nevada Central
    {32109, 4269, 103249, 1051, 1070, 4, false}, // NAD83 / Nevada West
    {32110, 4269, 103271, 1053, 255, 4, false}, // NAD83 / New Hampshire
    {32111, 4269, 103296, 1055, 256, 4, false}, // NAD83 / New Jersey
    {32112, 4269, 103346, 1059, 1073, 4, false}, // NAD83 / New Mexico East
    {32113, 4269, 103317, 1060, 1076, 4, false}, // NAD83 / New Mexico Central
    {32114, 4269, 103374, 1061, 1077, 4, false}, // NAD83 / New Mexico West
    {32115, 4269, 103428, 1066, 1079, 4, false}, // NAD83 / New York East
    {32116, 4269, 103402, 1067, 1078, 4, false}, // NAD83 / New York Central
    {32117, 4269, 103486, 1068, 1081, 4, false}, // NAD83 / New York West
    {32118, 4269, 103454, 1069, 1080, 4, false}, // NAD83 / New York Long Island
    {32119, 4269, 103512, 1071, 259, 4, false}, // NAD83 / North Carolina
    {32120, 4269, 103533, 1074, 1082, 4, false}, // NAD83 / North Dakota North
    {32121, 4269, 103555, 1075, 1083, 4, false}, // NAD83 / North Dakota South
    {32122, 4269, 103578, 1078, 1084, 4, false}, // NAD83 / Ohio North
    {32123, 4269, 103597, 1079, 1085, 4, false}, // NAD83 / Ohio South
    {32124, 4269, 103617, 1084, 1086, 4, false}, // NAD83 / Oklahoma North
    {32125, 4269, 103640, 1085, 1087, 4, false}, // NAD83 / Oklahoma South
    {32126, 4269, 103708, 1088, 1088, 4, false}, // NAD83 / Oregon North
    {32127, 4269, 103722, 1089, 1089, 4, false}, // NAD83 / Oregon South
    {32128, 4269, 103738, 1093, 1090, 4, false}, // NAD83 / Pennsylvania North
    {32129, 4269, 103767, 1094, 1091, 4, false}, // NAD83 / Pennsylvania South
    {32130, 4269, 103843, 1096, 265, 4, false}, // NAD83 / Rhode Island
    {32133, 4269, 103873, 1099, 266, 4, false}, // NAD83 / South Carolina
    {32134, 4269, 103893, 1102, 1094, 4, false}, // NAD83 / South Dakota North
    {32135, 4269, 103916, 1103, 1095, 4, false}, // NAD83 / South Dakota South
    {32136, 4269, 103958, 1105, 268, 4, false}, // NAD83 / Tennessee
    {32137, 4269, 104065, 1111, 1098, 4, false}, // NAD83 / Texas North
    {32138, 4269, 104086, 1112, 1099, 4, false}, // NAD83 / Texas North Central
    {32139, 4269, 103998, 1113, 1097, 4, false}, // NAD83 / Texas Central
    {32140, 4269, 104134, 1114, 1249, 4, false}, // NAD83 / Texas South Central
    {32141, 4269, 104113, 1115, 1250, 4, false}, // NAD83 / Texas South
    {32142, 4269, 104425, 1123, 1103, 4, false}, // NAD83 / Utah North
    {32143, 4269, 104391, 1124, 1102, 4, false}, // NAD83 / Utah Central
    {32144, 4269, 104455, 1125, 1104, 4, false}, // NAD83 / Utah South
    {32145, 4269, 104485, 1127, 271, 4, false}, // NAD83 / Vermont
    {32146, 4269, 104517, 1130, 1105, 4, false}, // NAD83 / Virginia North
    {32147, 4269, 104538, 1131, 1106, 4, false}, // NAD83 / Virginia South
    {32148, 4269, 104560, 1134, 1118, 4, false}, // NAD83 / Washington North
    {32149, 4269, 104585, 1135, 1119, 4, false}, // NAD83 / Washington South
    {32150, 4269, 104612, 1138, 1109, 4, false}, // NAD83 / West Virginia North
    {32151, 4269, 104637, 1139, 1110, 4, false}, // NAD83 / West Virginia South
    {32152, 4269, 104691, 1148, 1112, 4, false}, // NAD83 / Wisconsin North
    {32153, 4269, 104663, 1149, 1111, 4, false}, // NAD83 / Wisconsin Central
    {32154, 4269, 104716, 1150, 1113, 4, false}, // NAD83 / Wisconsin South
    {32155, 4269, 104762, 1157, 1114, 4, false}, // NAD83 / Wyoming East
    {32156, 4269, 104788, 1158, 1115, 4, false}, // NAD83 / Wyoming East Central
    {32157, 4269, 104858, 1159, 1117, 4, false}, // NAD83 / Wyoming West Central
    {32158, 4269, 104832, 1160, 1116, 4, false}, // NAD83 / Wyoming West
    {32159, 4269, 104819, 1156, 275, 4, false}, // NAD83 / Wyoming Lambert
    {32161, 4269, 103797, 1200, 1096, 4, false}, // NAD83 / Puerto Rico & Virgin Is.
    {32164, 4269, 101233, 1305, 2066, 8, false}, // NAD83 / BLM 14N (ftUS)
    {32165, 4269, 101248, 1306, 2069, 8, false}, // NAD83 / BLM 15N (ftUS)
    {32166, 4269, 101263, 1307, 2070, 8, false}, // NAD83 / BLM 16N (ftUS)
    {32167, 4269, 101278, 1308, 2071, 8, false}, // NAD83 / BLM 17N (ftUS)
    {32180, 4269, 103865, 1922, 276, 4, true}, // NAD83 / SCoPQ zone 2
    {32181, 4269, 102489, 1923, 1071, 4, false}, // NAD83 / MTM zone 1
    {32182, 4269, 102551, 1924, 1072, 4, false}, // NAD83 / MTM zone 2
    {32183, 4269, 102557, 1925, 1135, 4, false}, // NAD83 / MTM zone 3
    {32184, 4269, 102563, 1926, 1121, 4, false}, // NAD83 / MTM zone 4
    {32185, 4269, 102569, 1927, 1122, 4, false}, // NAD83 / MTM zone 5
    {32186, 4269, 102575, 1928, 1123, 4, false}, // NAD83 / MTM zone 6
    {32187, 4269, 102581, 1929, 281, 4, false}, // NAD83 / MTM zone 7
    {32188, 4269, 102587, 1930, 1124, 4, false}, // NAD83 / MTM zone 8
    {32189, 4269, 102593, 1931, 1125, 4, false}, // NAD83 / MTM zone 9
    {32190, 4269, 102495, 1932, 1126, 4, false}, // NAD83 / MTM zone 10
    {32191, 4269, 102502, 1933, 288, 4, false}, // NAD83 / MTM zone 11
    {32192, 4269, 102509, 1934, 289, 4, false}, // NAD83 / MTM zone 12
    {32193, 4269, 102516, 1935, 290, 4, false}, // NAD83 / MTM zone 13
    {32194, 4269, 102523, 1936, 291, 4, false}, // NAD83 / MTM zone 14
    {32195, 4269, 102530, 1937, 292, 4, false}, // NAD83 / MTM zone 15
    {32196, 4269, 102537, 1938, 293, 4, false}, // NAD83 / MTM zone 16
    {32197, 4269, 102544, 1939, 294, 4, false}, // NAD83 / MTM zone 17
    {32198, 4269, 103829, 2333, 228, 4, false}, // NAD83 / Quebec Lambert
    {32199, 4269, 102438, 993, 245, 4, false}, // NAD83 / Louisiana Offshore
    {32201, 4322, 210227, 1310, 718, 4, false}, // WGS 72 / UTM zone 1N
    {32202, 4322, 210531, 1311, 720, 4, false}, // WGS 72 / UTM zone 2N
    {32203, 4322, 210837, 1312, 722, 4, false}, // WGS 72 / UTM zone 3N
    {32204, 4322, 211143, 1313, 724, 4, false}, // WGS 72 / UTM zone 4N
    {32205, 4322, 211449, 1314, 726, 4, false}, // WGS 72 / UTM zone 5N
    {32206, 4322, 211503, 1315, 728, 4, false}, // WGS 72 / UTM zone 6N
    {32207, 4322, 211529, 1316, 730, 4, false}, // WGS 72 / UTM zone 7N
    {32208, 4322, 211555, 1317, 732, 4, false}, // WGS 72 / UTM zone 8N
    {32209, 4322, 211581, 1318, 734, 4, false}, // WGS 72 / UTM zone 9N
    {32210, 4322, 209949, 1319, 736, 4, false}, // WGS 72 / UTM zone 10N
    {32211, 4322, 209975, 1320, 738, 4, false}, // WGS 72 / UTM zone 11N
    {32212, 4322, 210003, 1321, 740, 4, false}, // WGS 72 / UTM zone 12N
    {32213, 4322, 210031, 1322, 742, 4, false}, // WGS 72 / UTM zone 13N
    {32214, 4322, 210059, 1323, 744, 4, false}, // WGS 72 / UTM zone 14N
    {32215, 4322, 210087, 1324, 746, 4, false}, // WGS 72 / UTM zone 15N
    {32216, 4322, 210115, 1325, 748, 4, false}, // WGS 72 / UTM zone 16N
    {32217, 4322, 210143, 1326, 750, 4, false}, // WGS 72 / UTM zone 17N
    {32218, 4322, 210171, 1327, 752, 4, false}, // WGS 72 / UTM zone 18N
    {32219, 4322, 210199, 1328, 754, 4, false}, // WGS 72 / UTM zone 19N
    {32220, 4322, 210253, 1329, 756, 4, false}, // WGS 72 / UTM zone 20N
    {32221, 4322, 210279, 1330, 758, 4, false}, // WGS 72 / UTM zone 21N
    {32222, 4322, 210307, 1331, 760, 4, false}, // WGS 72 / UTM zone 22N
    {32223, 4322, 210335, 1332, 762, 4, false}, // WGS 72 / UTM zone 23N
    {32224, 4322, 210363, 1333, 764, 4, false}, // WGS 72 / UTM zone 24N
    {32225, 4322, 210391, 1334, 766, 4, false}, // WGS 72 / UTM zone 25N
    {32226, 4322, 210419, 1335, 768, 4, false}, // WGS 72 / UTM zone 26N
    {32227, 4322, 210447, 1336, 770, 4, false}, // WGS 72 / UTM zone 27N
    {32228, 4322, 210475, 1337, 772, 4, false}, // WGS 72 / UTM zone 28N
    {32229, 4322, 210503, 1338, 774, 4, false}, // WGS 72 / UTM zone 29N
    {32230, 4322, 210557, 1339, 776, 4, false}, // WGS 72 / UTM zone 30N
    {32231, 4322, 210585, 1340, 778, 4, false}, // WGS 72 / UTM zone 31N
    {32232, 4322, 210613, 1341, 780, 4, false}, // WGS 72 / UTM zone 32N
    {32233, 4322, 210641, 1342, 782, 4, false}, // WGS 72 / UTM zone 33N
    {32234, 4322, 210669, 1343, 784, 4, false}, // WGS 72 / UTM zone 34N
    {32235, 4322, 210697, 1344, 786, 4, false}, // WGS 72 / UTM zone 35N
    {32236, 4322, 210725, 1345, 788, 4, false}, // WGS 72 / UTM zone 36N
    {32237, 4322, 210753, 1346, 790, 4, false}, // WGS 72 / UTM zone 37N
    {32238, 4322, 210781, 1347, 792, 4, false}, // WGS 72 / UTM zone 38N
    {32239, 4322, 210809, 1348, 794, 4, false}, // WGS 72 / UTM zone 39N
    {32240, 4322, 210863, 1349, 796, 4, false}, // WGS 72 / UTM zone 40N
    {32241, 4322, 210891, 1350, 798, 4, false}, // WGS 72 / UTM zone 41N
    {32242, 4322, 210919, 1351, 800, 4, false}, // WGS 72 / UTM zone 42N
    {32243, 4322, 210947, 1352, 802, 4, false}, // WGS 72 / UTM zone 43N
    {32244, 4322, 210975, 1353, 804, 4, false}, // WGS 72 / UTM zone 44N
    {32245, 4322, 211003, 1354, 806, 4, false}, // WGS 72 / UTM zone 45N
    {32246, 4322, 211031, 1355, 808, 4, false}, // WGS 72 / UTM zone 46N
    {32247, 4322, 211059, 1356, 810, 4, false}, // WGS 72 / UTM zone 47N
    {32248, 4322, 211087, 1357, 812, 4, false}, // WGS 72 / UTM zone 48N
    {32249, 4322, 211115, 1358, 814, 4, false}, // WGS 72 / UTM zone 49N
    {32250, 4322, 211169, 1359, 816, 4, false}, // WGS 72 / UTM zone 50N
    {32251, 4322, 211197, 1360, 818, 4, false}, // WGS 72 / UTM zone 51N
    {32252, 4322, 211225, 1361, 820, 4, false}, // WGS 72 / UTM zone 52N
    {32253, 4322, 211253, 1362, 822, 4, false}, // WGS 72 / UTM zone 53N
    {32254, 4322, 211281, 1363, 824, 4, false}, // WGS 72 / UTM zone 54N
    {32255, 4322, 211309, 1364, 826, 4, false}, // WGS 72 / UTM zone 55N
    {32256, 4322, 211337, 1365, 828, 4, false}, // WGS 72 / UTM zone 56N
    {32257, 4322, 211365, 1366, 830, 4, false}, // WGS 72 / UTM zone 57N
    {32258, 4322, 211393, 1367, 832, 4, false}, // WGS 72 / UTM zone 58N
    {32259, 4322, 211421, 1368, 834, 4, false}, // WGS 72 / UTM zone 59N
    {32260, 4322, 211475, 1369, 836, 4, false}, // WGS 72 / UTM zone 60N
    {32301, 4322, 210240, 1399, 719, 4, false}, // WGS 72 / UTM zone 1S
    {32302, 4322, 210544, 1400, 721, 4, false}, // WGS 72 / UTM zone 2S
    {32303, 4322, 210850, 1401, 723, 4, false}, // WGS 72 / UTM zone 3S
    {32304, 4322, 211156, 1402, 725, 4, false}, // WGS 72 / UTM zone 4S
    {32305, 4322, 211462, 1403, 727, 4, false}, // WGS 72 / UTM zone 5S
    {32306, 4322, 211516, 1404, 729, 4, false}, // WGS 72 / UTM zone 6S
    {32307, 4322, 211542, 1405, 731, 4, false}, // WGS 72 / UTM zone 7S
    {32308, 4322, 211568, 1406, 733, 4, false}, // WGS 72 / UTM zone 8S
    {32309, 4322, 211594, 1407, 735, 4, false}, // WGS 72 / UTM zone 9S
    {32310, 4322, 209962, 1408, 737, 4, false}, // WGS 72 / UTM zone 10S
    {32311, 4322, 209989, 1409, 739, 4, false}, // WGS 72 / UTM zone 11S
    {32312, 4322, 210017, 1410, 741, 4, false}, // WGS 72 / UTM zone 12S
    {32313, 4322, 210045, 1411, 743, 4, false}, // WGS 72 / UTM zone 13S
    {32314, 4322, 210073, 1412, 745, 4, false}, // WGS 72 / UTM zone 14S
    {32315, 4322, 210101, 1413, 747, 4, false}, // WGS 72 / UTM zone 15S
    {32316, 4322, 210129, 1414, 749, 4, false}, // WGS 72 / UTM zone 16S
    {32317, 4322, 210157, 1415, 751, 4, false}, // WGS 72 / UTM zone 17S
    {32318, 4322, 210185, 1416, 753, 4, false}, // WGS 72 / UTM zone 18S
    {32319, 4322, 210213, 1417, 755, 4, false}, // WGS 72 / UTM zone 19S
    {32320, 4322, 210266, 1418, 757, 4, false}, // WGS 72 / UTM zone 20S
    {32321, 4322, 210293, 1419, 759, 4, false}, // WGS 72 / UTM zone 21S
    {32322, 4322, 210321, 1420, 761, 4, false}, // WGS 72 / UTM zone 22S
    {32323, 4322, 210349, 1421, 763, 4, false}, // WGS 72 / UTM zone 23S
    {32324, 4322, 210377, 1422, 765, 4, false}, // WGS 72 / UTM zone 24S
    {32325, 4322, 210405, 1423, 767, 4, false}, // WGS 72 / UTM zone 25S
    {32326, 4322, 210433, 1424, 769, 4, false}, // WGS 72 / UTM zone 26S
    {32327, 4322, 210461, 1425, 771, 4, false}, // WGS 72 / UTM zone 27S
    {32328, 4322, 210489, 1426, 773, 4, false}, // WGS 72 / UTM zone 28S
    {32329, 4322, 210517, 1427, 775, 4, false}, // WGS 72 / UTM zone 29S
    {32330, 4322, 210571, 1428, 777, 4, false}, // WGS 72 / UTM zone 30S
    {32331, 4322, 210599, 1429, 779, 4, false}, // WGS 72 / UTM zone 31S
    {32332, 4322, 210627, 1430, 781, 4, false}, // WGS 72 / UTM zone 32S
    {32333, 4322, 210655, 1431, 783, 4, false}, // WGS 72 / UTM zone 33S
    {32334, 4322, 210683, 1432, 785, 4, false}, // WGS 72 / UTM zone 34S
    {32335, 4322, 210711, 1433, 787, 4, false}, // WGS 72 / UTM zone 35S
    {32336, 4322, 210739, 1434, 789, 4, false}, // WGS 72 / UTM zone 36S
    {32337, 4322, 210767, 1435, 791, 4, false}, // WGS 72 / UTM zone 37S
    {32338, 4322, 210795, 1436, 793, 4, false}, // WGS 72 / UTM zone 38S
    {32339, 4322, 210823, 1437, 795, 4, false}, // WGS 72 / UTM zone 39S
    {32340, 4322, 210877, 1438, 797, 4, false}, // WGS 72 / UTM zone 40S
    {32341, 4322, 210905, 1439, 799, 4, false}, // WGS 72 / UTM zone 41S
    {32342, 4322, 210933, 1440, 801, 4, false}, // WGS 72 / UTM zone 42S
    {32343, 4322, 210961, 1441, 803, 4, false}, // WGS 72 / UTM zone 43S
    {32344, 4322, 210989, 1442, 805, 4, false}, // WGS 72 / UTM zone 44S
    {32345, 4322, 211017, 1443, 807, 4, false}, // WGS 72 / UTM zone 45S
    {32346, 4322, 211045, 1444, 809, 4, false}, // WGS 72 / UTM zone 46S
    {32347, 4322, 211073, 1445, 811, 4, false}, // WGS 72 / UTM zone 47S
    {32348, 4322, 211101, 1446, 813, 4, false}, // WGS 72 / UTM zone 48S
    {32349, 4322, 211129, 1447, 815, 4, false}, // WGS 72 / UTM zone 49S
    {32350, 4322, 211183, 1448, 817, 4, false}, // WGS 72 / UTM zone 50S
    {32351, 4322, 211211, 1449, 819, 4, false}, // WGS 72 / UTM zone 51S
    {32352, 4322, 211239, 1450, 821, 4, false}, // WGS 72 / UTM zone 52S
    {32353, 4322, 211267, 1451, 823, 4, false}, // WGS 72 / UTM zone 53S
    {32354, 4322, 211295, 1452, 825, 4, false}, // WGS 72 / UTM zone 54S
    {32355, 4322, 211323, 1453, 827, 4, false}, // WGS 72 / UTM zone 55S
    {32356, 4322, 211351, 1454, 829, 4, false}, // WGS 72 / UTM zone 56S
    {32357, 4322, 211379, 1455, 831, 4, false}, // WGS 72 / UTM zone 57S
    {32358, 4322, 211407, 1456, 833, 4, false}, // WGS 72 / UTM zone 58S
    {32359, 4322, 211435, 1457, 835, 4, false}, // WGS 72 / UTM zone 59S
    {32360, 4322, 211489, 1458, 837, 4, false}, // WGS 72 / UTM zone 60S
    {32401, 4324, 211990, 1310, 718, 4, false}, // WGS 72BE / UTM zone 1N
    {32402, 4324, 212338, 1311, 721, 4, false}, // WGS 72BE / UTM zone 2N
    {32403, 4324, 212688, 1312, 722, 4, false}, // WGS 72BE / UTM zone 3N
    {32404, 4324, 213038, 1313, 724, 4, false}, // WGS 72BE / UTM zone 4N
    {32405, 4324, 213388, 1314, 726, 4, false}, // WGS 72BE / UTM zone 5N
    {32406, 4324, 213450, 1315, 728, 4, false}, // WGS 72BE / UTM zone 6N
    {32407, 4324, 213480, 1316, 730, 4, false}, // WGS 72BE / UTM zone 7N
    {32408, 4324, 213510, 1317, 732, 4, false}, // WGS 72BE / UTM zone 8N
    {32409, 4324, 213540, 1318, 734, 4, false}, // WGS 72BE / UTM zone 9N
    {32410, 4324, 211672, 1319, 736, 4, false}, // WGS 72BE / UTM zone 10N
    {32411, 4324, 211702, 1320, 738, 4, false}, // WGS 72BE / UTM zone 11N
    {32412, 4324, 211734, 1321, 740, 4, false}, // WGS 72BE / UTM zone 12N
    {32413, 4324, 211766, 1322, 742, 4, false}, // WGS 72BE / UTM zone 13N
    {32414, 4324, 211798, 1323, 744, 4, false}, // WGS 72BE / UTM zone 14N
    {32415, 4324, 211830, 1324, 746, 4, false}, // WGS 72BE / UTM zone 15N
    {32416, 4324, 211862, 1325, 748, 4, false}, // WGS 72BE / UTM zone 16N
    {32417, 4324, 211894, 1326, 750, 4, false}, // WGS 72BE / UTM zone 17N
    {32418, 4324, 211926, 1327, 752, 4, false}, // WGS 72BE / UTM zone 18N
    {32419, 4324, 211958, 1328, 754, 4, false}, // WGS 72BE / UTM zone 19N
    {32420, 4324, 212020, 1329, 756, 4, false}, // WGS 72BE / UTM zone 20N
    {32421, 4324, 212050, 1330, 758, 4, false}, // WGS 72BE / UTM zone 21N
    {32422, 4324, 212082, 1331, 760, 4, false}, // WGS 72BE / UTM zone 22N
    {32423, 4324, 212114, 1332, 762, 4, false}, // WGS 72BE / UTM zone 23N
    {32424, 4324, 212146, 1333, 764, 4, false}, // WGS 72BE / UTM zone 24N
    {32425, 4324, 212178, 1334, 766, 4, false}, // WGS 72BE / UTM zone 25N
    {32426, 4324, 212210, 1335, 768, 4, false}, // WGS 72BE / UTM zone 26N
    {32427, 4324, 212242, 1336, 770, 4, false}, // WGS 72BE / UTM zone 27N
    {32428, 4324, 212274, 1337, 772, 4, false}, // WGS 72BE / UTM zone 28N
    {32429, 4324, 212306, 1338, 774, 4, false}, // WGS 72BE / UTM zone 29N
    {32430, 4324, 212368, 1339, 776, 4, false}, // WGS 72BE / UTM zone 30N
    {32431, 4324, 212400, 1340, 778, 4, false}, // WGS 72BE / UTM zone 31N
    {32432, 4324, 212432, 1341, 780, 4, false}, // WGS 72BE / UTM zone 32N
    {32433, 4324, 212464, 1342, 1911, 4, false}, // WGS 72BE / UTM zone 33N
    {32434, 4324, 212496, 1343, 1912, 4, false}, // WGS 72BE / UTM zone 34N
    {32435, 4324, 212528, 1344, 786, 4, false}, // WGS 72BE / UTM zone 35N
    {32436, 4324, 212560, 1345, 788, 4, false}, // WGS 72BE / UTM zone 36N
    {32437, 4324, 212592, 1346, 790, 4, false}, // WGS 72BE / UTM zone 37N
    {32438, 4324, 212624, 1347, 792, 4, false}, // WGS 72BE / UTM zone 38N
    {32439, 4324, 212656, 1348, 794, 4, false}, // WGS 72BE / UTM zone 39N
    {32440, 4324, 212718, 1349, 796, 4, false}, // WGS 72BE / UTM zone 40N
    {32441, 4324, 212750, 1350, 798, 4, false}, // WGS 72BE / UTM zone 41N
    {32442, 4324, 212782, 1351, 800, 4, false}, // WGS 72BE / UTM zone 42N
    {32443, 4324, 212814, 1352, 802, 4, false}, // WGS 72BE / UTM zone 43N
    {32444, 4324, 212846, 1353, 804, 4, false}, // WGS 72BE / UTM zone 44N
    {32445, 4324, 212878, 1354, 806, 4, false}, // WGS 72BE / UTM zone 45N
    {32446, 4324, 212910, 1355, 808, 4, false}, // WGS 72BE / UTM zone 46N
    {32447, 4324, 212942, 1356, 810, 4, false}, // WGS 72BE / UTM zone 47N
    {32448, 4324, 212974, 1357, 838, 4, false}, // WGS 72BE / UTM zone 48N
    {32449, 4324, 213006, 1358, 839, 4, false}, // WGS 72BE / UTM zone 49N
    {32450, 4324, 213068, 1359, 816, 4, false}, // WGS 72BE / UTM zone 50N
    {32451, 4324, 213100, 1360, 818, 4, false}, // WGS 72BE / UTM zone 51N
    {32452, 4324, 213132, 1361, 820, 4, false}, // WGS 72BE / UTM zone 52N
    {32453, 4324, 213164, 1362, 822, 4, false}, // WGS 72BE / UTM zone 53N
    {32454, 4324, 213196, 1363, 824, 4, false}, // WGS 72BE / UTM zone 54N
    {32455, 4324, 213228, 1364, 826, 4, false}, // WGS 72BE / UTM zone 55N
    {32456, 4324, 213260, 1365, 828, 4, false}, // WGS 72BE / UTM zone 56N
    {32457, 4324, 213292, 1366, 830, 4, false}, // WGS 72BE / UTM zone 57N
    {32458, 4324, 213324, 1367, 832, 4, false}, // WGS 72BE / UTM zone 58N
    {32459, 4324, 213356, 1368, 834, 4, false}, // WGS 72BE / UTM zone 59N
    {32460, 4324, 213418, 1369, 836, 4, false}, // WGS 72BE / UTM zone 60N
    {32501, 4324, 212005, 1399, 719, 4, false}, // WGS 72BE / UTM zone 1S
    {32502, 4324, 212353, 1400, 721, 4, false}, // WGS 72BE / UTM zone 2S
    {32503, 4324, 212703, 1401, 723, 4, false}, // WGS 72BE / UTM zone 3S
    {32504, 4324, 213053, 1402, 725, 4, false}, // WGS 72BE / UTM zone 4S
    {32505, 4324, 213403, 1403, 727, 4, false}, // WGS 72BE / UTM zone 5S
    {32506, 4324, 213465, 1404, 729, 4, false}, // WGS 72BE / UTM zone 6S
    {32507, 4324, 213495, 1405, 731, 4, false}, // WGS 72BE / UTM zone 7S
    {32508, 4324, 213525, 1406, 733, 4, false}, // WGS 72BE / UTM zone 8S
    {32509, 4324, 213555, 1407, 735, 4, false}, // WGS 72BE / UTM zone 9S
    {32510, 4324, 211687, 1408, 737, 4, false}, // WGS 72BE / UTM zone 10S
    {32511, 4324, 211718, 1409, 739, 4, false}, // WGS 72BE / UTM zone 11S
    {32512, 4324, 211750, 1410, 741, 4, false}, // WGS 72BE / UTM zone 12S
    {32513, 4324, 211782, 1411, 743, 4, false}, // WGS 72BE / UTM zone 13S
    {32514, 4324, 211814, 1412, 745, 4, false}, // WGS 72BE / UTM zone 14S
    {32515, 4324, 211846, 1413, 747, 4, false}, // WGS 72BE / UTM zone 15S
    {32516, 4324, 211878, 1414, 749, 4, false}, // WGS 72BE / UTM zone 16S
    {32517, 4324, 211910, 1415, 751, 4, false}, // WGS 72BE / UTM zone 17S
    {32518, 4324, 211942, 1416, 753, 4, false}, // WGS 72BE / UTM zone 18S
    {32519, 4324, 211974, 1417, 755, 4, false}, // WGS 72BE / UTM zone 19S
    {32520, 4324, 212035, 1418, 757, 4, false}, // WGS 72BE / UTM zone 20S
    {32521, 4324, 212066, 1419, 759, 4, false}, // WGS 72BE / UTM zone 21S
    {32522, 4324, 212098, 1420, 761, 4, false}, // WGS 72BE / UTM zone 22S
    {32523, 4324, 212130, 1421, 763, 4, false}, // WGS 72BE / UTM zone 23S
    {32524, 4324, 212162, 1422, 765, 4, false}, // WGS 72BE / UTM zone 24S
    {32525, 4324, 212194, 1423, 767, 4, false}, // WGS 72BE / UTM zone 25S
    {32526, 4324, 212226, 1424, 769, 4, false}, // WGS 72BE / UTM zone 26S
    {32527, 4324, 212258, 1425, 771, 4, false}, // WGS 72BE / UTM zone 27S
    {32528, 4324, 212290, 1426, 773, 4, false}, // WGS 72BE / UTM zone 28S
    {32529, 4324, 212322, 1427, 775, 4, false}, // WGS 72BE / UTM zone 29S
    {32530, 4324, 212384, 1428, 777, 4, false}, // WGS 72BE / UTM zone 30S
    {32531, 4324, 212416, 1429, 779, 4, false}, // WGS 72BE / UTM zone 31S
    {32532, 4324, 212448, 1430, 781, 4, false}, // WGS 72BE / UTM zone 32S
    {32533, 4324, 212480, 1431, 783, 4, false}, // WGS 72BE / UTM zone 33S
    {32534, 4324, 212512, 1432, 785, 4, false}, // WGS 72BE / UTM zone 34S
    {32535, 4324, 212544, 1433, 787, 4, false}, // WGS 72BE / UTM zone 35S
    {32536, 4324, 212576, 1434, 789, 4, false}, // WGS 72BE / UTM zone 36S
    {32537, 4324, 212608, 1435, 791, 4, false}, // WGS 72BE / UTM zone 37S
    {32538, 4324, 212640, 1436, 793, 4, false}, // WGS 72BE / UTM zone 38S
    {32539, 4324, 212672, 1437, 795, 4, false}, // WGS 72BE / UTM zone 39S
    {32540, 4324, 212734, 1438, 797, 4, false}, // WGS 72BE / UTM zone 40S
    {32541, 4324, 212766, 1439, 799, 4, false}, // WGS 72BE / UTM zone 41S
    {32542, 4324, 212798, 1440, 801, 4, false}, // WGS 72BE / UTM zone 42S
    {32543, 4324, 212830, 1441, 803, 4, false}, // WGS 72BE / UTM zone 43S
    {32544, 4324, 212862, 1442, 805, 4, false}, // WGS 72BE / UTM zone 44S
    {32545, 4324, 212894, 1443, 807, 4, false}, // WGS 72BE / UTM zone 45S
    {32546, 4324, 212926, 1444, 809, 4, false}, // WGS 72BE / UTM zone 46S
    {32547, 4324, 212958, 1445, 811, 4, false}, // WGS 72BE / UTM zone 47S
    {32548, 4324, 212990, 1446, 813, 4, false}, // WGS 72BE / UTM zone 48S
    {32549, 4324, 213022, 1447, 840, 4, false}, // WGS 72BE / UTM zone 49S
    {32550, 4324, 213084, 1448, 817, 4, false}, // WGS 72BE / UTM zone 50S
    {32551, 4324, 213116, 1449, 819, 4, false}, // WGS 72BE / UTM zone 51S
    {32552, 4324, 213148, 1450, 821, 4, false}, // WGS 72BE / UTM zone 52S
    {32553, 4324, 213180, 1451, 823, 4, false}, // WGS 72BE / UTM zone 53S
    {32554, 4324, 213212, 1452, 825, 4, false}, // WGS 72BE / UTM zone 54S
    {32555, 4324, 213244, 1453, 827, 4, false}, // WGS 72BE / UTM zone 55S
    {32556, 4324, 213276, 1454, 829, 4, false}, // WGS 72BE / UTM zone 56S
    {32557, 4324, 213308, 1455, 831, 4, false}, // WGS 72BE / UTM zone 57S
    {32558, 4324, 213340, 1456, 833, 4, false}, // WGS 72BE / UTM zone 58S
    {32559, 4324, 213372, 1457, 835, 4, false}, // WGS 72BE / UTM zone 59S
    {32560, 4324, 213434, 1458, 837, 4, false}, // WGS 72BE / UTM zone 60S
    {32600, 4326, 218264, 1309, 843, 4, false}, // WGS 84 / UTM grid system (northern hemisphere)
    {32601, 4326, 218597, 1310, 845, 4, false}, // WGS 84 / UTM zone 1N
    {32602, 4326, 218901, 1311, 847, 4, false}, // WGS 84 / UTM zone 2N
    {32603, 4326, 219207, 1312, 849, 4, false}, // WGS 84 / UTM zone 3N
    {32604, 4326, 219513, 1313, 851, 4, false}, // WGS 84 / UTM zone 4N
    {32605, 4326, 219819, 1314, 853, 4, false}, // WGS 84 / UTM zone 5N
    {32606, 4326, 219873, 1315, 855, 4, false}, // WGS 84 / UTM zone 6N
    {32607, 4326, 219899, 1316, 857, 4, false}, // WGS 84 / UTM zone 7N
    {32608, 4326, 219925, 1317, 859, 4, false}, // WGS 84 / UTM zone 8N
    {32609, 4326, 219951, 1318, 861, 4, false}, // WGS 84 / UTM zone 9N
    {32610, 4326, 218319, 1319, 863, 4, false}, // WGS 84 / UTM zone 10N
    {32611, 4326, 218345, 1320, 865, 4, false}, // WGS 84 / UTM zone 11N
    {32612, 4326, 218373, 1321, 867, 4, false}, // WGS 84 / UTM zone 12N
    {32613, 4326, 218401, 1322, 869, 4, false}, // WGS 84 / UTM zone 13N
    {32614, 4326, 218429, 1323, 871, 4, false}, // WGS 84 / UTM zone 14N
    {32615, 4326, 218457, 1324, 873, 4, false}, // WGS 84 / UTM zone 15N
    {32616, 4326, 218485, 1325, 875, 4, false}, // WGS 84 / UTM zone 16N
    {32617, 4326, 218513, 1326, 877, 4, false}, // WGS 84 / UTM zone 17N
    {32618, 4326, 218541, 1327, 879, 4, false}, // WGS 84 / UTM zone 18N
    {32619, 4326, 218569, 1328, 881, 4, false}, // WGS 84 / UTM zone 19N
    {32620, 4326, 218623, 1329, 883, 4, false}, // WGS 84 / UTM zone 20N
    {32621, 4326, 218649, 1330, 885, 4, false}, // WGS 84 / UTM zone 21N
    {32622, 4326, 218677, 1331, 887, 4, false}, // WGS 84 / UTM zone 22N
    {32623, 4326, 218705, 1332, 889, 4, false}, // WGS 84 / UTM zone 23N
    {32624, 4326, 218733, 1333, 891, 4, false}, // WGS 84 / UTM zone 24N
    {32625, 4326, 218761, 1334, 893, 4, false}, // WGS 84 / UTM zone 25N
    {32626, 4326, 218789, 1335, 895, 4, false}, // WGS 84 / UTM zone 26N
    {32627, 4326, 218817, 1336, 897, 4, false}, // WGS 84 / UTM zone 27N
    {32628, 4326, 218845, 1337, 899, 4, false}, // WGS 84 / UTM zone 28N
    {32629, 4326, 218873, 1338, 901, 4, false}, // WGS 84 / UTM zone 29N
    {32630, 4326, 218927, 1339, 903, 4, false}, // WGS 84 / UTM zone 30N
    {32631, 4326, 218955, 1340, 905, 4, false}, // WGS 84 / UTM zone 31N
    {32632, 4326, 218983, 1341, 907, 4, false}, // WGS 84 / UTM zone 32N
    {32633, 4326, 219011, 1342, 909, 4, false}, // WGS 84 / UTM zone 33N
    {32634, 4326, 219039, 1343, 911, 4, false}, // WGS 84 / UTM zone 34N
    {32635, 4326, 219067, 1344, 913, 4, false}, // WGS 84 / UTM zone 35N
    {32636, 4326, 219095, 1345, 915, 4, false}, // WGS 84 / UTM zone 36N
    {32637, 4326, 219123, 1346, 917, 4, false}, // WGS 84 / UTM zone 37N
    {32638, 4326, 219151, 1347, 919, 4, false}, // WGS 84 / UTM zone 38N
    {32639, 4326, 219179, 1348, 921, 4, false}, // WGS 84 / UTM zone 39N
    {32640, 4326, 219233, 1349, 923, 4, false}, // WGS 84 / UTM zone 40N
    {32641, 4326, 219261, 1350, 925, 4, false}, // WGS 84 / UTM zone 41N
    {32642, 4326, 219289, 1351, 927, 4, false}, // WGS 84 / UTM zone 42N
    {32643, 4326, 219317, 1352, 929, 4, false}, // WGS 84 / UTM zone 43N
    {32644, 4326, 219345, 1353, 931, 4, false}, // WGS 84 / UTM zone 44N
    {32645, 4326, 219373, 1354, 933, 4, false}, // WGS 84 / UTM zone 45N
    {32646, 4326, 219401, 1355, 935, 4, false}, // WGS 84 / UTM zone 46N
    {32647, 4326, 219429, 1356, 937, 4, false}, // WGS 84 / UTM zone 47N
    {32648, 4326, 219457, 1357, 939, 4, false}, // WGS 84 / UTM zone 48N
    {32649, 4326, 219485, 1358, 941, 4, false}, // WGS 84 / UTM zone 49N
    {32650, 4326, 219539, 1359, 943, 4, false}, // WGS 84 / UTM zone 50N
    {32651, 4326, 219567, 1360, 945, 4, false}, // WGS 84 / UTM zone 51N
    {32652, 4326, 219595, 1361, 947, 4, false}, // WGS 84 / UTM zone 52N
    {32653, 4326, 219623, 1362, 949, 4, false}, // WGS 84 / UTM zone 53N
    {32654, 4326, 219651, 1363, 951, 4, false}, // WGS 84 / UTM zone 54N
    {32655, 4326, 219679, 1364, 953, 4, false}, // WGS 84 / UTM zone 55N
    {32656, 4326, 219707, 1365, 955, 4, false}, // WGS 84 / UTM zone 56N
    {32657, 4326, 219735, 1366, 957, 4, false}, // WGS 84 / UTM zone 57N
    {32658, 4326, 219763, 1367, 959, 4, false}, // WGS 84 / UTM zone 58N
    {32659, 4326, 219791, 1368, 961, 4, false}, // WGS 84 / UTM zone 59N
    {32660, 4326, 219845, 1369, 963, 4, false}, // WGS 84 / UTM zone 60N
    {32661, 4326, 218185, 1370, 841, 5, false}, // WGS 84 / UPS North (N,E)
    {32662, 4326, 215988, 2356, 138, 4, true}, // WGS 84 / Plate Carree
    {32663, 4326, 220025, 2242, 138, 4, true}, // WGS 84 / World Equidistant Cylindrical
    {32664, 4326, 213898, 1305, 1016, 8, false}, // WGS 84 / BLM 14N (ftUS)
    {32665, 4326, 213919, 1306, 1017, 8, false}, // WGS 84 / BLM 15N (ftUS)
    {32666, 4326, 213940, 1307, 1018, 8, false}, // WGS 84 / BLM 16N (ftUS)
    {32667, 4326, 213961, 1308, 1019, 8, false}, // WGS 84 / BLM 17N (ftUS)
    {32700, 4326, 218292, 1398, 844, 4, false}, // WGS 84 / UTM grid system (southern hemisphere)
    {32701, 4326, 218610, 1399, 846, 4, false}, // WGS 84 / UTM zone 1S
    {32702, 4326, 218914, 1400, 848, 4, false}, // WGS 84 / UTM zone 2S
    {32703, 4326, 219220, 1401, 850, 4, false}, // WGS 84 / UTM zone 3S
    {32704, 4326, 219526, 1402, 852, 4, false}, // WGS 84 / UTM zone 4S
    {32705, 4326, 219832, 1403, 854, 4, false}, // WGS 84 / UTM zone 5S
    {32706, 4326, 219886, 1404, 856, 4, false}, // WGS 84 / UTM zone 6S
    {32707, 4326, 219912, 1405, 858, 4, false}, // WGS 84 / UTM zone 7S
    {32708, 4326, 219938, 1406, 860, 4, false}, // WGS 84 / UTM zone 8S
    {32709, 4326, 219964, 1407, 862, 4, false}, // WGS 84 / UTM zone 9S
    {32710, 4326, 218332, 1408, 864, 4, false}, // WGS 84 / UTM zone 10S
    {32711, 4326, 218359, 1409, 866, 4, false}, // WGS 84 / UTM zone 11S
    {32712, 4326, 218387, 1410, 868, 4, false}, // WGS 84 / UTM zone 12S
    {32713, 4326, 218415, 1411, 870, 4, false}, // WGS 84 / UTM zone 13S
    {32714, 4326, 218443, 1412, 872, 4, false}, // WGS 84 / UTM zone 14S
    {32715, 4326, 218471, 1413, 874, 4, false}, // WGS 84 / UTM zone 15S
    {32716, 4326, 218499, 1414, 876, 4, false}, // WGS 84 / UTM zone 16S
    {32717, 4326, 218527, 1415, 878, 4, false}, // WGS 84 / UTM zone 17S
    {32718, 4326, 218555, 1416, 880, 4, false}, // WGS 84 / UTM zone 18S
    {32719, 4326, 218583, 1417, 882, 4, false}, // WGS 84 / UTM zone 19S
    {32720, 4326, 218636, 1418, 884, 4, false}, // WGS 84 / UTM zone 20S
    {32721, 4326, 218663, 1419, 886, 4, false}, // WGS 84 / UTM zone 21S
    {32722, 4326, 218691, 1420, 888, 4, false}, // WGS 84 / UTM zone 22S
    {32723, 4326, 218719, 1421, 890, 4, false}, // WGS 84 / UTM zone 23S
    {32724, 4326, 218747, 1422, 892, 4, false}, // WGS 84 / UTM zone 24S
    {32725, 4326, 218775, 1423, 894, 4, false}, // WGS 84 / UTM zone 25S
    {32726, 4326, 218803, 1424, 896, 4, false}, // WGS 84 / UTM zone 26S
    {32727, 4326, 218831, 1425, 898, 4, false}, // WGS 84 / UTM zone 27S
    {32728, 4326, 218859, 1426, 900, 4, false}, // WGS 84 / UTM zone 28S
    {32729, 4326, 218887, 1427, 902, 4, false}, // WGS 84 / UTM zone 29S
    {32730, 4326, 218941, 1428, 904, 4, false}, // WGS 84 / UTM zone 30S
    {32731, 4326, 218969, 1429, 906, 4, false}, // WGS 84 / UTM zone 31S
    {32732, 4326, 218997, 1430, 908, 4, false}, // WGS 84 / UTM zone 32S
    {32733, 4326, 219025, 1431, 910, 4, false}, // WGS 84 / UTM zone 33S
    {32734, 4326, 219053, 1432, 912, 4, false}, // WGS 84 / UTM zone 34S
    {32735, 4326, 219081, 1433, 914, 4, false}, // WGS 84 / UTM zone 35S
    {32736, 4326, 219109, 1434, 916, 4, false}, // WGS 84 / UTM zone 36S
    {32737, 4326, 219137, 1435, 918, 4, false}, // WGS 84 / UTM zone 37S
    {32738, 4326, 219165, 1436, 920, 4, false}, // WGS 84 / UTM zone 38S
    {32739, 4326, 219193, 1437, 922, 4, false}, // WGS 84 / UTM zone 39S
    {32740, 4326, 219247, 1438, 924, 4, false}, // WGS 84 / UTM zone 40S
    {32741, 4326, 219275, 1439, 926, 4, false}, // WGS 84 / UTM zone 41S
    {32742, 4326, 219303, 1440, 928, 4, false}, // WGS 84 / UTM zone 42S
    {32743, 4326, 219331, 1441, 930, 4, false}, // WGS 84 / UTM zone 43S
    {32744, 4326, 219359, 1442, 932, 4, false}, // WGS 84 / UTM zone 44S
    {32745, 4326, 219387, 1443, 934, 4, false}, // WGS 84 / UTM zone 45S
    {32746, 4326, 219415, 1444, 936, 4, false}, // WGS 84 / UTM zone 46S
    {32747, 4326, 219443, 1445, 938, 4, false}, // WGS 84 / UTM zone 47S
    {32748, 4326, 219471, 1446, 940, 4, false}, // WGS 84 / UTM zone 48S
    {32749, 4326, 219499, 1447, 942, 4, false}, // WGS 84 / UTM zone 49S
    {32750, 4326, 219553, 1448, 944, 4, false}, // WGS 84 / UTM zone 50S
    {32751, 4326, 219581, 1449, 946, 4, false}, // WGS 84 / UTM zone 51S
    {32752, 4326, 219609, 1450, 948, 4, false}, // WGS 84 / UTM zone 52S
    {32753, 4326, 219637, 1451, 950, 4, false}, // WGS 84 / UTM zone 53S
    {32754, 4326, 219665, 1452, 952, 4, false}, // WGS 84 / UTM zone 54S
    {32755, 4326, 219693, 1453, 954, 4, false}, // WGS 84 / UTM zone 55S
    {32756, 4326, 219721, 1454, 956, 4, false}, // WGS 84 / UTM zone 56S
    {32757, 4326, 219749, 1455, 958, 4, false}, // WGS 84 / UTM zone 57S
    {32758, 4326, 219777, 1456, 960, 4, false}, // WGS 84 / UTM zone 58S
    {32759, 4326, 219805, 1457, 962, 4, false}, // WGS 84 / UTM zone 59S
    {32760, 4326, 219859, 1458, 964, 4, false}, // WGS 84 / UTM zone 60S
    {32761, 4326, 218219, 1459, 842, 5, false}, // WGS 84 / UPS South (N,E)
    {32766, 4326, 218011, 1603, 576, 4, false}, // WGS 84 / TM 36 SE
};
// clang-format on

} // namespace ZrProj::systems::rows
