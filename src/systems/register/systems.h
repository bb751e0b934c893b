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
    {2000, 4600, 6721, 2331, 1478, 4, false}, // Anguilla 1957 / British West Indies Grid
    {2001, 4601, 9923, 2331, 114, 4, false}, // Antigua 1943 / British West Indies Grid
    {2002, 4602, 38109, 2331, 1489, 4, false}, // Dominica 1945 / British West Indies Grid
    {2003, 4603, 62217, 2331, 346, 4, false}, // Grenada 1953 / British West Indies Grid
    {2004, 4604, 91789, 2331, 1511, 4, false}, // Montserrat 1958 / British West Indies Grid
    {2005, 4605, 182104, 2331, 1519, 4, false}, // St. Kitts 1955 / British West Indies Grid
    {2006, 4606, 182144, 2331, 1520, 4, false}, // St. Lucia 1955 / British West Indies Grid
    {2007, 4607, 182253, 2331, 1522, 4, false}, // St. Vincent 45 / British West Indies Grid
    {2008, 4609, 95277, 1922, 218, 4, true}, // NAD27(CGQ77) / SCoPQ zone 2
    {2009, 4609, 95293, 1925, 244, 4, false}, // NAD27(CGQ77) / SCoPQ zone 3
    {2010, 4609, 95309, 1926, 220, 4, false}, // NAD27(CGQ77) / SCoPQ zone 4
    {2011, 4609, 95325, 1927, 221, 4, false}, // NAD27(CGQ77) / SCoPQ zone 5
    {2012, 4609, 95341, 1928, 222, 4, false}, // NAD27(CGQ77) / SCoPQ zone 6
    {2013, 4609, 95357, 1929, 223, 4, false}, // NAD27(CGQ77) / SCoPQ zone 7
    {2014, 4609, 95373, 1930, 224, 4, false}, // NAD27(CGQ77) / SCoPQ zone 8
    {2015, 4609, 95389, 1931, 225, 4, false}, // NAD27(CGQ77) / SCoPQ zone 9
    {2016, 4609, 95260, 1932, 226, 4, false}, // NAD27(CGQ77) / SCoPQ zone 10
    {2017, 4608, 95139, 1930, 227, 4, false}, // NAD27(76) / MTM zone 8
    {2018, 4608, 95150, 1931, 228, 4, false}, // NAD27(76) / MTM zone 9
    {2019, 4608, 95043, 1932, 229, 4, false}, // NAD27(76) / MTM zone 10
    {2020, 4608, 95055, 1933, 230, 4, false}, // NAD27(76) / MTM zone 11
    {2021, 4608, 95067, 1934, 231, 4, false}, // NAD27(76) / MTM zone 12
    {2022, 4608, 95079, 1935, 232, 4, false}, // NAD27(76) / MTM zone 13
    {2023, 4608, 95091, 1936, 233, 4, false}, // NAD27(76) / MTM zone 14
    {2024, 4608, 95103, 1937, 234, 4, false}, // NAD27(76) / MTM zone 15
    {2025, 4608, 95115, 1938, 235, 4, false}, // NAD27(76) / MTM zone 16
    {2026, 4608, 95127, 1939, 236, 4, false}, // NAD27(76) / MTM zone 17
    {2027, 4608, 95161, 1324, 237, 4, false}, // NAD27(76) / UTM zone 15N
    {2028, 4608, 95174, 1325, 238, 4, false}, // NAD27(76) / UTM zone 16N
    {2029, 4608, 95187, 1326, 239, 4, false}, // NAD27(76) / UTM zone 17N
    {2030, 4608, 95200, 1327, 240, 4, false}, // NAD27(76) / UTM zone 18N
    {2031, 4609, 95405, 1326, 226, 4, false}, // NAD27(CGQ77) / UTM zone 17N
    {2032, 4609, 95421, 1327, 241, 4, false}, // NAD27(CGQ77) / UTM zone 18N
    {2033, 4609, 95437, 1328, 242, 4, false}, // NAD27(CGQ77) / UTM zone 19N
    {2034, 4609, 95453, 1329, 243, 4, false}, // NAD27(CGQ77) / UTM zone 20N
    {2035, 4609, 95468, 1330, 244, 4, false}, // NAD27(CGQ77) / UTM zone 21N
    {2036, 4140, 113960, 2335, 245, 5, true}, // NAD83(CSRS98) / New Brunswick Stereo
    {2037, 4140, 114093, 1328, 246, 4, true}, // NAD83(CSRS98) / UTM zone 19N
    {2038, 4140, 114106, 1329, 247, 4, true}, // NAD83(CSRS98) / UTM zone 20N
    {2039, 4141, 71455, 2144, 1111, 4, false}, // Israel 1993 / Israeli TM Grid
    {2040, 4142, 82603, 1339, 248, 4, false}, // Locodjo 1965 / UTM zone 30N
    {2041, 4143, 4272, 1339, 248, 4, false}, // Abidjan 1987 / UTM zone 30N
    {2042, 4142, 82585, 1338, 249, 4, false}, // Locodjo 1965 / UTM zone 29N
    {2043, 4143, 4256, 1338, 249, 4, false}, // Abidjan 1987 / UTM zone 29N
    {2044, 4147, 63458, 1489, 250, 5, false}, // Hanoi 1972 / Gauss-Kruger zone 18
    {2045, 4147, 63480, 1490, 251, 5, false}, // Hanoi 1972 / Gauss-Kruger zone 19
    {2046, 4148, 63614, 1904, 252, 0, false}, // Hartebeesthoek94 / Lo15
    {2047, 4148, 63634, 1905, 253, 0, false}, // Hartebeesthoek94 / Lo17
    {2048, 4148, 63654, 1906, 254, 0, false}, // Hartebeesthoek94 / Lo19
    {2049, 4148, 63674, 1907, 255, 0, false}, // Hartebeesthoek94 / Lo21
    {2050, 4148, 63694, 1908, 256, 0, false}, // Hartebeesthoek94 / Lo23
    {2051, 4148, 63714, 1909, 257, 0, false}, // Hartebeesthoek94 / Lo25
    {2052, 4148, 63734, 1910, 258, 0, false}, // Hartebeesthoek94 / Lo27
    {2053, 4148, 63754, 1911, 259, 0, false}, // Hartebeesthoek94 / Lo29
    {2054, 4148, 63774, 1912, 260, 0, false}, // Hartebeesthoek94 / Lo31
    {2055, 4148, 63794, 1913, 261, 0, false}, // Hartebeesthoek94 / Lo33
    {2056, 4150, 26240, 2339, 123, 4, false}, // CH1903+ / LV95
    {2057, 4153, 165050, 2340, 165, 4, false}, // Rassadiran / Nakhl e Taqi
    {2058, 4154, 39109, 1347, 262, 4, false}, // ED50(ED77) / UTM zone 38N
    {2059, 4154, 39126, 1348, 263, 4, false}, // ED50(ED77) / UTM zone 39N
    {2060, 4154, 39143, 1349, 264, 4, false}, // ED50(ED77) / UTM zone 40N
    {2061, 4154, 39160, 1350, 265, 4, false}, // ED50(ED77) / UTM zone 41N
    {2062, 4903, 86372, 2311, 1076, 4, false}, // Madrid 1870 (Madrid) / Spain LCC
    {2063, 4315, 36912, 1337, 266, 4, true}, // Dabola 1981 / UTM zone 28N
    {2064, 4315, 36928, 1338, 267, 4, true}, // Dabola 1981 / UTM zone 29N
    {2065, 4818, 168116, 2341, 138, 1, false}, // S-JTSK (Ferro) / Krovak
    {2066, 4157, 91984, 2314, 151, 14, false}, // Mount Dillon / Tobago Grid
    {2067, 4158, 127612, 1329, 1427, 4, false}, // Naparima 1955 / UTM zone 20N
    {2068, 4159, 39348, 2164, 268, 4, false}, // ELD79 / Libya zone 5
    {2069, 4159, 39362, 2165, 269, 4, false}, // ELD79 / Libya zone 6
    {2070, 4159, 39376, 2166, 270, 4, false}, // ELD79 / Libya zone 7
    {2071, 4159, 39390, 2167, 271, 4, false}, // ELD79 / Libya zone 8
    {2072, 4159, 39404, 2168, 272, 4, false}, // ELD79 / Libya zone 9
    {2073, 4159, 39288, 2169, 273, 4, false}, // ELD79 / Libya zone 10
    {2074, 4159, 39303, 2170, 274, 4, false}, // ELD79 / Libya zone 11
    {2075, 4159, 39318, 2171, 275, 4, false}, // ELD79 / Libya zone 12
    {2076, 4159, 39333, 2172, 276, 4, false}, // ELD79 / Libya zone 13
    {2077, 4159, 39432, 1341, 277, 4, false}, // ELD79 / UTM zone 32N
    {2078, 4159, 39445, 1342, 278, 4, false}, // ELD79 / UTM zone 33N
    {2079, 4159, 39458, 1343, 279, 4, false}, // ELD79 / UTM zone 34N
    {2080, 4159, 39471, 1344, 276, 4, false}, // ELD79 / UTM zone 35N
    {2081, 4160, 30968, 2044, 281, 5, false}, // Chos Malal 1914 / Argentina 2
    {2082, 4161, 142056, 2044, 282, 5, false}, // Pampa del Castillo / Argentina 2
    {2083, 4254, 64386, 2044, 283, 5, false}, // Hito XVIII 1963 / Argentina 2
    {2084, 4254, 64406, 1417, 1109, 4, false}, // Hito XVIII 1963 / UTM zone 19S
    {2085, 4267, 93418, 2068, 284, 5, true}, // NAD27 / Cuba Norte
    {2086, 4267, 93429, 2069, 285, 5, true}, // NAD27 / Cuba Sur
    {2087, 4159, 39418, 1595, 280, 4, false}, // ELD79 / TM 12 NE
    {2088, 4223, 29586, 1594, 286, 4, false}, // Carthage / TM 11 NE
    {2089, 4163, 220698, 1347, 287, 4, false}, // Yemen NGN96 / UTM zone 38N
    {2090, 4163, 220715, 1348, 288, 4, false}, // Yemen NGN96 / UTM zone 39N
    {2091, 4164, 181073, 1479, 289, 5, true}, // South Yemen / Gauss Kruger zone 8
    {2092, 4164, 181091, 1480, 290, 5, true}, // South Yemen / Gauss Kruger zone 9
    {2093, 4147, 63441, 1600, 291, 5, false}, // Hanoi 1972 / GK 106 NE
    {2094, 4324, 202623, 1599, 292, 4, false}, // WGS 72BE / TM 106 NE
    {2095, 4165, 22397, 1337, 1501, 4, false}, // Bissau / UTM zone 28N
    {2096, 4162, 78622, 2173, 293, 5, false}, // Korean 1985 / East Belt
    {2097, 4162, 78589, 2174, 1822, 5, false}, // Korean 1985 / Central Belt
    {2098, 4162, 78782, 2175, 295, 5, false}, // Korean 1985 / West Belt
    {2099, 4286, 160409, 2342, 171, 4, false}, // Qatar 1948 / Qatar Grid
    {2100, 4121, 52830, 2320, 1498, 4, false}, // GGRS87 / Greek Grid
    {2101, 4249, 80306, 2176, 149, 4, false}, // Lake / Maracaibo Grid M1
    {2102, 4249, 80289, 2177, 149, 4, false}, // Lake / Maracaibo Grid
    {2103, 4249, 80326, 2178, 149, 4, false}, // Lake / Maracaibo Grid M3
    {2104, 4249, 80346, 2179, 296, 4, false}, // Lake / Maracaibo La Rosa Grid
    {2105, 4167, 126090, 1994, 1861, 5, false}, // NZGD2000 / Mount Eden 2000
    {2106, 4167, 125814, 1995, 1859, 5, false}, // NZGD2000 / Bay of Plenty 2000
    {2107, 4167, 126278, 1996, 1860, 5, false}, // NZGD2000 / Poverty Bay 2000
    {2108, 4167, 125979, 1997, 1853, 5, false}, // NZGD2000 / Hawkes Bay 2000
    {2109, 4167, 126316, 1998, 1857, 5, false}, // NZGD2000 / Taranaki 2000
    {2110, 4167, 126349, 1999, 1858, 5, false}, // NZGD2000 / Tuhirangi 2000
    {2111, 4167, 126439, 2000, 1856, 5, false}, // NZGD2000 / Wanganui 2000
    {2112, 4167, 126422, 2001, 1855, 5, false}, // NZGD2000 / Wairarapa 2000
    {2113, 4167, 126456, 2002, 1854, 5, false}, // NZGD2000 / Wellington 2000
    {2114, 4167, 125930, 2003, 1862, 5, false}, // NZGD2000 / Collingwood 2000
    {2115, 4167, 126180, 2004, 1864, 5, false}, // NZGD2000 / Nelson 2000
    {2116, 4167, 126036, 2005, 1863, 5, false}, // NZGD2000 / Karamea 2000
    {2117, 4167, 125849, 2006, 1866, 5, false}, // NZGD2000 / Buller 2000
    {2118, 4167, 125966, 2007, 1867, 5, false}, // NZGD2000 / Grey 2000
    {2119, 4167, 125755, 2008, 1868, 5, false}, // NZGD2000 / Amuri 2000
    {2120, 4167, 126071, 2009, 1865, 5, false}, // NZGD2000 / Marlborough 2000
    {2121, 4167, 125998, 2010, 1869, 5, false}, // NZGD2000 / Hokitika 2000
    {2122, 4167, 126263, 2011, 1871, 5, false}, // NZGD2000 / Okarito 2000
    {2123, 4167, 126015, 2012, 1874, 5, false}, // NZGD2000 / Jacksons Bay 2000
    {2124, 4167, 126128, 2013, 1870, 5, false}, // NZGD2000 / Mount Pleasant 2000
    {2125, 4167, 125950, 2014, 1872, 5, false}, // NZGD2000 / Gawler 2000
    {2126, 4167, 126333, 2015, 1873, 5, false}, // NZGD2000 / Timaru 2000
    {2127, 4167, 126051, 2016, 1875, 5, false}, // NZGD2000 / Lindis Peak 2000
    {2128, 4167, 126108, 2017, 1877, 5, false}, // NZGD2000 / Mount Nicholas 2000
    {2129, 4167, 126149, 2018, 1879, 5, false}, // NZGD2000 / Mount York 2000
    {2130, 4167, 126240, 2019, 1876, 5, false}, // NZGD2000 / Observation Point 2000
    {2131, 4167, 126223, 2020, 1878, 5, false}, // NZGD2000 / North Taieri 2000
    {2132, 4167, 125833, 2021, 1880, 5, false}, // NZGD2000 / Bluff 2000
    {2133, 4167, 126380, 1456, 298, 4, false}, // NZGD2000 / UTM zone 58S
    {2134, 4167, 126394, 1457, 299, 4, false}, // NZGD2000 / UTM zone 59S
    {2135, 4167, 126408, 1458, 300, 4, false}, // NZGD2000 / UTM zone 60S
    {2136, 4168, 4351, 2348, 1497, 20, false}, // Accra / Ghana National Grid
    {2137, 4168, 4368, 1665, 301, 4, false}, // Accra / TM 1 NW
    {2138, 4609, 95238, 2333, 191, 4, false}, // NAD27(CGQ77) / Quebec Lambert
    {2139, 4140, 114015, 1922, 218, 4, true}, // NAD83(CSRS98) / SCoPQ zone 2
    {2140, 4140, 113883, 1925, 219, 4, true}, // NAD83(CSRS98) / MTM zone 3
    {2141, 4140, 113894, 1926, 220, 4, true}, // NAD83(CSRS98) / MTM zone 4
    {2142, 4140, 113905, 1927, 221, 4, true}, // NAD83(CSRS98) / MTM zone 5
    {2143, 4140, 113916, 1928, 222, 4, true}, // NAD83(CSRS98) / MTM zone 6
    {2144, 4140, 113927, 1929, 223, 4, true}, // NAD83(CSRS98) / MTM zone 7
    {2145, 4140, 113938, 1930, 224, 4, true}, // NAD83(CSRS98) / MTM zone 8
    {2146, 4140, 113949, 1931, 225, 4, true}, // NAD83(CSRS98) / MTM zone 9
    {2147, 4140, 113871, 1932, 226, 4, true}, // NAD83(CSRS98) / MTM zone 10
    {2148, 4140, 114118, 1330, 244, 4, true}, // NAD83(CSRS98) / UTM zone 21N
    {2149, 4140, 114080, 1327, 241, 4, true}, // NAD83(CSRS98) / UTM zone 18N
    {2150, 4140, 114067, 1326, 226, 4, true}, // NAD83(CSRS98) / UTM zone 17N
    {2151, 4140, 114054, 1322, 302, 4, true}, // NAD83(CSRS98) / UTM zone 13N
    {2152, 4140, 114041, 1321, 303, 4, true}, // NAD83(CSRS98) / UTM zone 12N
    {2153, 4140, 114028, 1320, 304, 4, true}, // NAD83(CSRS98) / UTM zone 11N
    {2154, 4171, 161934, 2080, 36, 4, false}, // RGF93 v1 / Lambert-93
    {2155, 4169, 6260, 1204, 3, 8, true}, // American Samoa 1962 / American Samoa Lambert
    {2156, 4152, 116636, 1457, 3, 4, true}, // NAD83(HARN) / UTM zone 59S
    {2157, 4173, 66898, 2351, 137, 4, false}, // IRENET95 / Irish Transverse Mercator
    {2158, 4173, 66925, 1338, 137, 4, false}, // IRENET95 / UTM zone 29N
    {2159, 4174, 178164, 2352, 168, 20, false}, // Sierra Leone 1924 / New Colony Grid
    {2160, 4174, 178186, 2353, 168, 20, false}, // Sierra Leone 1924 / New War Office Grid
    {2161, 4175, 178226, 1337, 305, 4, false}, // Sierra Leone 1968 / UTM zone 28N
    {2162, 4175, 178246, 1338, 306, 4, false}, // Sierra Leone 1968 / UTM zone 29N
    {2163, 4052, 94552, 22, 103, 4, true}, // US National Atlas Equal Area
    {2164, 4142, 82567, 1666, 1071, 4, false}, // Locodjo 1965 / TM 5 NW
    {2165, 4143, 4240, 1666, 1071, 4, false}, // Abidjan 1987 / TM 5 NW
    {2166, 4178, 153389, 1506, 308, 5, true}, // Pulkovo 1942(83) / Gauss Kruger zone 3
    {2167, 4178, 153415, 1507, 309, 5, true}, // Pulkovo 1942(83) / Gauss Kruger zone 4
    {2168, 4178, 153441, 1508, 308, 5, true}, // Pulkovo 1942(83) / Gauss Kruger zone 5
    {2169, 4181, 79966, 2354, 61, 5, false}, // LUREF / Luxembourg TM
    {2170, 4312, 84952, 2355, 92, 5, true}, // MGI / Slovenia Grid
    {2171, 4179, 152937, 2185, 311, 5, true}, // Pulkovo 1942(58) / Poland zone I
    {2172, 4179, 152957, 2186, 312, 5, false}, // Pulkovo 1942(58) / Poland zone II
    {2173, 4179, 152978, 2187, 313, 5, false}, // Pulkovo 1942(58) / Poland zone III
    {2174, 4179, 153000, 2188, 314, 5, false}, // Pulkovo 1942(58) / Poland zone IV
    {2175, 4179, 153021, 2189, 315, 5, false}, // Pulkovo 1942(58) / Poland zone V
    {2176, 9702, 41409, 2192, 316, 5, false}, // ETRF2000-PL / CS2000/15
    {2177, 9702, 41426, 2193, 317, 5, false}, // ETRF2000-PL / CS2000/18
    {2178, 9702, 41443, 2194, 318, 5, false}, // ETRF2000-PL / CS2000/21
    {2179, 9702, 41460, 2195, 319, 5, false}, // ETRF2000-PL / CS2000/24
    {2180, 9702, 41477, 2191, 84, 5, false}, // ETRF2000-PL / CS92
    {2188, 4182, 17059, 1334, 169, 4, false}, // Azores Occidental 1939 / UTM zone 25N
    {2189, 4183, 16970, 1335, 134, 4, false}, // Azores Central 1948 / UTM zone 26N
    {2190, 4184, 17115, 1335, 170, 4, false}, // Azores Oriental 1940 / UTM zone 26N
    {2191, 4185, 86248, 1337, 145, 4, true}, // Madeira 1936 / UTM zone 28N
    {2192, 4230, 38808, 2081, 153, 4, true}, // ED50 / France EuroLambert
    {2193, 4167, 126194, 2358, 1994, 5, false}, // NZGD2000 / New Zealand Transverse Mercator 2000
    {2194, 4169, 6260, 1205, 3, 8, true}, // American Samoa 1962 / American Samoa Lambert
    {2195, 4152, 116622, 1400, 1410, 4, false}, // NAD83(HARN) / UTM zone 2S
    {2196, 4258, 42640, 2206, 1087, 4, false}, // ETRS89 / Kp2000 Jutland
    {2197, 4258, 42656, 2207, 1088, 4, false}, // ETRS89 / Kp2000 Zealand
    {2198, 4258, 42622, 2208, 1089, 4, false}, // ETRS89 / Kp2000 Bornholm
    {2199, 4191, 5794, 1475, 1, 5, true}, // Albanian 1987 / Gauss Kruger zone 4
    {2200, 4122, 3908, 2334, 245, 5, false}, // ATS77 / New Brunswick Stereographic (ATS77)
    {2201, 4189, 161586, 1327, 486, 4, false}, // REGVEN / UTM zone 18N
    {2202, 4189, 161600, 1328, 1914, 4, false}, // REGVEN / UTM zone 19N
    {2203, 4189, 161614, 1329, 1913, 4, false}, // REGVEN / UTM zone 20N
    {2204, 4267, 94480, 1206, 212, 8, false}, // NAD27 / Tennessee
    {2205, 4269, 97301, 1207, 987, 4, false}, // NAD83 / Kentucky North
    {2206, 4230, 38783, 1512, 320, 5, false}, // ED50 / 3-degree Gauss-Kruger zone 9
    {2207, 4230, 38627, 1513, 321, 5, false}, // ED50 / 3-degree Gauss-Kruger zone 10
    {2208, 4230, 38653, 1514, 322, 5, false}, // ED50 / 3-degree Gauss-Kruger zone 11
    {2209, 4230, 38679, 1515, 323, 5, false}, // ED50 / 3-degree Gauss-Kruger zone 12
    {2210, 4230, 38705, 1516, 324, 5, false}, // ED50 / 3-degree Gauss-Kruger zone 13
    {2211, 4230, 38731, 1517, 325, 5, false}, // ED50 / 3-degree Gauss-Kruger zone 14
    {2212, 4230, 38757, 1518, 326, 5, false}, // ED50 / 3-degree Gauss-Kruger zone 15
    {2213, 4258, 43037, 1597, 1092, 4, false}, // ETRS89 / TM 30 NE
    {2214, 4192, 38243, 2209, 1093, 4, true}, // Douala 1948 / AOF west
    {2215, 4193, 87325, 1341, 1093, 4, false}, // Manoca 1962 / UTM zone 32N
    {2216, 4194, 160730, 1331, 1101, 4, false}, // Qornoq 1927 / UTM zone 22N
    {2217, 4194, 160745, 1332, 1100, 4, false}, // Qornoq 1927 / UTM zone 23N
    {2218, 4195, 177560, 2214, 1553, 3, false}, // Scoresbysund 1952 / Greenland zone 5 east
    {2219, 4122, 3978, 1328, 327, 4, false}, // ATS77 / UTM zone 19N
    {2220, 4122, 3991, 1329, 328, 4, false}, // ATS77 / UTM zone 20N
    {2221, 4195, 177585, 2215, 1552, 3, false}, // Scoresbysund 1952 / Greenland zone 6 east
    {2222, 4269, 96062, 1208, 952, 6, false}, // NAD83 / Arizona East (ft)
    {2223, 4269, 96040, 1209, 951, 6, false}, // NAD83 / Arizona Central (ft)
    {2224, 4269, 96083, 1210, 953, 6, false}, // NAD83 / Arizona West (ft)
    {2225, 4269, 96476, 1211, 960, 8, false}, // NAD83 / California zone 1 (ftUS)
    {2226, 4269, 96504, 1212, 961, 8, false}, // NAD83 / California zone 2 (ftUS)
    {2227, 4269, 96532, 1213, 962, 8, false}, // NAD83 / California zone 3 (ftUS)
    {2228, 4269, 96560, 1214, 963, 8, false}, // NAD83 / California zone 4 (ftUS)
    {2229, 4269, 96588, 1215, 967, 8, false}, // NAD83 / California zone 5 (ftUS)
    {2230, 4269, 96616, 1216, 965, 8, false}, // NAD83 / California zone 6 (ftUS)
    {2231, 4269, 96682, 1217, 969, 8, false}, // NAD83 / Colorado North (ftUS)
    {2232, 4269, 96659, 1218, 968, 8, false}, // NAD83 / Colorado Central (ftUS)
    {2233, 4269, 96704, 1219, 970, 8, false}, // NAD83 / Colorado South (ftUS)
    {2234, 4269, 96727, 1220, 194, 8, false}, // NAD83 / Connecticut (ftUS)
    {2235, 4269, 96761, 1221, 195, 8, false}, // NAD83 / Delaware (ftUS)
    {2236, 4269, 96784, 1222, 971, 8, false}, // NAD83 / Florida East (ftUS)
    {2237, 4269, 96844, 1223, 973, 8, false}, // NAD83 / Florida West (ftUS)
    {2238, 4269, 96821, 1224, 972, 8, false}, // NAD83 / Florida North (ftUS)
    {2239, 4269, 96868, 1225, 974, 8, false}, // NAD83 / Georgia East (ftUS)
    {2240, 4269, 96892, 1226, 975, 8, false}, // NAD83 / Georgia West (ftUS)
    {2241, 4269, 97045, 1227, 977, 8, false}, // NAD83 / Idaho East (ftUS)
    {2242, 4269, 97022, 1228, 976, 8, false}, // NAD83 / Idaho Central (ftUS)
    {2243, 4269, 97085, 1229, 978, 8, false}, // NAD83 / Idaho West (ftUS)
    {2244, 4269, 97162, 1230, 981, 8, true}, // NAD83 / Indiana East (ftUS)
    {2245, 4269, 97182, 1231, 982, 8, true}, // NAD83 / Indiana West (ftUS)
    {2246, 4269, 97311, 1232, 987, 8, false}, // NAD83 / Kentucky North (ftUS)
    {2247, 4269, 97376, 1233, 988, 8, false}, // NAD83 / Kentucky South (ftUS)
    {2248, 4269, 97675, 1234, 201, 8, false}, // NAD83 / Maryland (ftUS)
    {2249, 4269, 97738, 1235, 994, 8, false}, // NAD83 / Massachusetts Mainland (ftUS)
    {2250, 4269, 97701, 1236, 993, 8, false}, // NAD83 / Massachusetts Island (ftUS)
    {2251, 4269, 97798, 1237, 513, 6, false}, // NAD83 / Michigan North (ft)
    {2252, 4269, 97773, 1238, 514, 6, false}, // NAD83 / Michigan Central (ft)
    {2253, 4269, 97843, 1239, 515, 6, false}, // NAD83 / Michigan South (ft)
    {2254, 4269, 97946, 1240, 1001, 8, false}, // NAD83 / Mississippi East (ftUS)
    {2255, 4269, 97993, 1241, 1002, 8, false}, // NAD83 / Mississippi West (ftUS)
    {2256, 4269, 98055, 1242, 204, 6, false}, // NAD83 / Montana (ft)
    {2257, 4269, 98334, 1243, 1013, 8, false}, // NAD83 / New Mexico East (ftUS)
    {2258, 4269, 98305, 1244, 1016, 8, false}, // NAD83 / New Mexico Central (ftUS)
    {2259, 4269, 98362, 1245, 1017, 8, false}, // NAD83 / New Mexico West (ftUS)
    {2260, 4269, 98415, 1246, 1019, 8, false}, // NAD83 / New York East (ftUS)
    {2261, 4269, 98389, 1247, 1018, 8, false}, // NAD83 / New York Central (ftUS)
    {2262, 4269, 98473, 1248, 1021, 8, false}, // NAD83 / New York West (ftUS)
    {2263, 4269, 98443, 1249, 1020, 8, false}, // NAD83 / New York Long Island (ftUS)
    {2264, 4269, 98496, 1250, 208, 8, false}, // NAD83 / North Carolina (ftUS)
    {2265, 4269, 98518, 1251, 1022, 6, false}, // NAD83 / North Dakota North (ft)
    {2266, 4269, 98541, 1252, 1023, 6, false}, // NAD83 / North Dakota South (ft)
    {2267, 4269, 98602, 1253, 1026, 8, false}, // NAD83 / Oklahoma North (ftUS)
    {2268, 4269, 98626, 1254, 1027, 8, false}, // NAD83 / Oklahoma South (ftUS)
    {2269, 4269, 98686, 1255, 1028, 6, false}, // NAD83 / Oregon North (ft)
    {2270, 4269, 98700, 1256, 1029, 6, false}, // NAD83 / Oregon South (ft)
    {2271, 4269, 98722, 1257, 1030, 8, false}, // NAD83 / Pennsylvania North (ftUS)
    {2272, 4269, 98752, 1258, 1031, 8, false}, // NAD83 / Pennsylvania South (ftUS)
    {2273, 4269, 98853, 1259, 211, 6, false}, // NAD83 / South Carolina (ft)
    {2274, 4269, 98939, 1260, 212, 8, false}, // NAD83 / Tennessee (ftUS)
    {2275, 4269, 99045, 1261, 1038, 8, false}, // NAD83 / Texas North (ftUS)
    {2276, 4269, 99069, 1262, 1039, 8, false}, // NAD83 / Texas North Central (ftUS)
    {2277, 4269, 98980, 1263, 1037, 8, false}, // NAD83 / Texas Central (ftUS)
    {2278, 4269, 99117, 1264, 1083, 8, false}, // NAD83 / Texas South Central (ftUS)
    {2279, 4269, 99093, 1265, 1084, 8, false}, // NAD83 / Texas South (ftUS)
    {2280, 4269, 99404, 1266, 1043, 6, false}, // NAD83 / Utah North (ft)
    {2281, 4269, 99372, 1267, 1042, 6, false}, // NAD83 / Utah Central (ft)
    {2282, 4269, 99434, 1268, 1044, 6, false}, // NAD83 / Utah South (ft)
    {2283, 4269, 99497, 1269, 1045, 8, false}, // NAD83 / Virginia North (ftUS)
    {2284, 4269, 99519, 1270, 1046, 8, false}, // NAD83 / Virginia South (ftUS)
    {2285, 4269, 99542, 1271, 1058, 8, false}, // NAD83 / Washington North (ftUS)
    {2286, 4269, 99568, 1272, 1059, 8, false}, // NAD83 / Washington South (ftUS)
    {2287, 4269, 99673, 1273, 1052, 8, false}, // NAD83 / Wisconsin North (ftUS)
    {2288, 4269, 99647, 1274, 1051, 8, false}, // NAD83 / Wisconsin Central (ftUS)
    {2289, 4269, 99698, 1275, 1053, 8, false}, // NAD83 / Wisconsin South (ftUS)
    {2290, 4122, 3941, 2322, 329, 4, false}, // ATS77 / Prince Edward Isl. Stereographic (ATS77)
    {2291, 4122, 113982, 2349, 329, 4, true}, // NAD83(CSRS98) / Prince Edward Isl. Stereographic (NAD83)
    {2292, 4140, 113982, 2349, 329, 4, true}, // NAD83(CSRS98) / Prince Edward Isl. Stereographic (NAD83)
    {2294, 4122, 3868, 1945, 330, 4, false}, // ATS77 / MTM Nova Scotia zone 4
    {2295, 4122, 3888, 1946, 331, 4, false}, // ATS77 / MTM Nova Scotia zone 5
    {2296, 4196, 6349, 2216, 1099, 3, false}, // Ammassalik 1958 / Greenland zone 7 east
    {2297, 4194, 160521, 2210, 1094, 3, true}, // Qornoq 1927 / Greenland zone 1 east
    {2298, 4194, 160540, 2211, 1095, 3, true}, // Qornoq 1927 / Greenland zone 2 east
    {2299, 4194, 160559, 2218, 1551, 3, false}, // Qornoq 1927 / Greenland zone 2 west
    {2300, 4194, 160578, 2212, 1096, 3, true}, // Qornoq 1927 / Greenland zone 3 east
    {2301, 4194, 160597, 2219, 1550, 3, false}, // Qornoq 1927 / Greenland zone 3 west
    {2302, 4194, 160616, 2213, 1097, 3, true}, // Qornoq 1927 / Greenland zone 4 east
    {2303, 4194, 160635, 2220, 1549, 3, false}, // Qornoq 1927 / Greenland zone 4 west
    {2304, 4194, 160654, 2221, 1548, 3, false}, // Qornoq 1927 / Greenland zone 5 west
    {2305, 4194, 160673, 2222, 1547, 3, false}, // Qornoq 1927 / Greenland zone 6 west
    {2306, 4194, 160692, 2223, 1546, 3, false}, // Qornoq 1927 / Greenland zone 7 west
    {2307, 4194, 160711, 2217, 1904, 3, false}, // Qornoq 1927 / Greenland zone 8 east
    {2308, 4211, 18697, 1604, 1104, 4, false}, // Batavia / TM 109 SE
    {2309, 4326, 208938, 1605, 1105, 4, false}, // WGS 84 / TM 116 SE
    {2310, 4326, 208966, 1606, 1106, 4, false}, // WGS 84 / TM 132 SE
    {2311, 4326, 208995, 1593, 1294, 4, false}, // WGS 84 / TM 6 NE
    {2312, 4197, 60164, 1342, 1107, 4, false}, // Garoua / UTM zone 33N
    {2313, 4198, 78934, 1342, 1108, 4, false}, // Kousseri / UTM zone 33N
    {2314, 4302, 187124, 2362, 166, 9, false}, // Trinidad 1903 / Trinidad Grid (ftCla)
    {2315, 4221, 27555, 1417, 1109, 4, false}, // Campo Inchauspe / UTM zone 19S
    {2316, 4221, 27574, 1418, 1110, 4, false}, // Campo Inchauspe / UTM zone 20S
    {2317, 4248, 141071, 2363, 1531, 4, false}, // PSAD56 / ICN Regional
    {2318, 4204, 5214, 2364, 1523, 4, false}, // Ain el Abd / Aramco Lambert
    {2319, 4230, 38904, 1546, 320, 5, false}, // ED50 / TM27
    {2320, 4230, 38913, 1576, 321, 5, false}, // ED50 / TM30
    {2321, 4230, 38922, 1547, 322, 5, false}, // ED50 / TM33
    {2322, 4230, 38931, 1577, 323, 5, false}, // ED50 / TM36
    {2323, 4230, 38940, 1548, 324, 5, false}, // ED50 / TM39
    {2324, 4230, 38949, 1578, 325, 5, false}, // ED50 / TM42
    {2325, 4230, 38958, 1549, 326, 5, false}, // ED50 / TM45
    {2326, 4611, 64683, 2365, 42, 5, false}, // Hong Kong 1980 Grid System
    {2327, 4610, 220161, 1484, 382, 5, false}, // Xian 1980 / Gauss-Kruger zone 13
    {2328, 4610, 220181, 1485, 383, 5, false}, // Xian 1980 / Gauss-Kruger zone 14
    {2329, 4610, 220201, 1486, 384, 5, false}, // Xian 1980 / Gauss-Kruger zone 15
    {2330, 4610, 220221, 1487, 385, 5, false}, // Xian 1980 / Gauss-Kruger zone 16
    {2331, 4610, 220241, 1488, 386, 5, false}, // Xian 1980 / Gauss-Kruger zone 17
    {2332, 4610, 220261, 1489, 387, 5, false}, // Xian 1980 / Gauss-Kruger zone 18
    {2333, 4610, 220281, 1490, 388, 5, false}, // Xian 1980 / Gauss-Kruger zone 19
    {2334, 4610, 220301, 1491, 389, 5, false}, // Xian 1980 / Gauss-Kruger zone 20
    {2335, 4610, 220321, 1492, 390, 5, false}, // Xian 1980 / Gauss-Kruger zone 21
    {2336, 4610, 220341, 1493, 391, 5, false}, // Xian 1980 / Gauss-Kruger zone 22
    {2337, 4610, 220361, 1494, 392, 5, false}, // Xian 1980 / Gauss-Kruger zone 23
    {2338, 4610, 220046, 1554, 382, 5, false}, // Xian 1980 / Gauss-Kruger CM 75E
    {2339, 4610, 220069, 1555, 383, 5, false}, // Xian 1980 / Gauss-Kruger CM 81E
    {2340, 4610, 220092, 1556, 384, 5, false}, // Xian 1980 / Gauss-Kruger CM 87E
    {2341, 4610, 220115, 1557, 385, 5, false}, // Xian 1980 / Gauss-Kruger CM 93E
    {2342, 4610, 220138, 1558, 386, 5, false}, // Xian 1980 / Gauss-Kruger CM 99E
    {2343, 4610, 219905, 1559, 387, 5, false}, // Xian 1980 / Gauss-Kruger CM 105E
    {2344, 4610, 219928, 1560, 388, 5, false}, // Xian 1980 / Gauss-Kruger CM 111E
    {2345, 4610, 219951, 1561, 389, 5, false}, // Xian 1980 / Gauss-Kruger CM 117E
    {2346, 4610, 219974, 1562, 390, 5, false}, // Xian 1980 / Gauss-Kruger CM 123E
    {2347, 4610, 219998, 1563, 391, 5, false}, // Xian 1980 / Gauss-Kruger CM 129E
    {2348, 4610, 220022, 1564, 392, 5, false}, // Xian 1980 / Gauss-Kruger CM 135E
    {2349, 4610, 219338, 1528, 1170, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger zone 25
    {2350, 4610, 219365, 1529, 1171, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger zone 26
    {2351, 4610, 219392, 1530, 1172, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger zone 27
    {2352, 4610, 219419, 1531, 1173, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger zone 28
    {2353, 4610, 219446, 1532, 1174, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger zone 29
    {2354, 4610, 219473, 1533, 1175, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger zone 30
    {2355, 4610, 219500, 1534, 1176, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger zone 31
    {2356, 4610, 219527, 1535, 1177, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger zone 32
    {2357, 4610, 219554, 1536, 1178, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger zone 33
    {2358, 4610, 219581, 1537, 1179, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger zone 34
    {2359, 4610, 219608, 1538, 1180, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger zone 35
    {2360, 4610, 219635, 1539, 1181, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger zone 36
    {2361, 4610, 219662, 1540, 1182, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger zone 37
    {2362, 4610, 219689, 1541, 1183, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger zone 38
    {2363, 4610, 219716, 1542, 1184, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger zone 39
    {2364, 4610, 219743, 1372, 1185, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger zone 40
    {2365, 4610, 219770, 1373, 1186, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger zone 41
    {2366, 4610, 219797, 1374, 1187, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger zone 42
    {2367, 4610, 219824, 1375, 1188, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger zone 43
    {2368, 4610, 219851, 1376, 1189, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger zone 44
    {2369, 4610, 219878, 1377, 1190, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger zone 45
    {2370, 4610, 219068, 1554, 1170, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger CM 75E
    {2371, 4610, 219098, 1584, 1171, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger CM 78E
    {2372, 4610, 219128, 1555, 1172, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger CM 81E
    {2373, 4610, 219158, 1585, 1173, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger CM 84E
    {2374, 4610, 219188, 1556, 1174, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger CM 87E
    {2375, 4610, 219218, 1586, 1175, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger CM 90E
    {2376, 4610, 219248, 1557, 1176, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger CM 93E
    {2377, 4610, 219278, 1587, 1177, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger CM 96E
    {2378, 4610, 219308, 1558, 1178, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger CM 99E
    {2379, 4610, 218703, 1588, 1179, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger CM 102E
    {2380, 4610, 218733, 1559, 1180, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger CM 105E
    {2381, 4610, 218763, 1589, 1181, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger CM 108E
    {2382, 4610, 218793, 1560, 1182, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger CM 111E
    {2383, 4610, 218823, 1590, 1183, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger CM 114E
    {2384, 4610, 218853, 1561, 1184, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger CM 117E
    {2385, 4610, 218883, 1460, 1185, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger CM 120E
    {2386, 4610, 218913, 1562, 1186, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger CM 123E
    {2387, 4610, 218944, 1461, 1187, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger CM 126E
    {2388, 4610, 218975, 1563, 1188, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger CM 129E
    {2389, 4610, 219006, 1462, 1189, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger CM 132E
    {2390, 4610, 219037, 1564, 1190, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger CM 135E
    {2391, 4123, 74843, 2132, 332, 5, false}, // KKJ / Finland zone 1
    {2392, 4123, 74853, 2133, 333, 5, false}, // KKJ / Finland zone 2
    {2393, 4123, 74807, 2134, 334, 5, false}, // KKJ / Finland Uniform Coordinate System
    {2394, 4123, 74863, 2135, 335, 5, false}, // KKJ / Finland zone 4
    {2395, 4164, 181109, 1479, 289, 5, false}, // South Yemen / Gauss-Kruger zone 8
    {2396, 4164, 181127, 1480, 290, 5, false}, // South Yemen / Gauss-Kruger zone 9
    {2397, 4178, 153077, 1506, 308, 5, false}, // Pulkovo 1942(83) / 3-degree Gauss-Kruger zone 3
    {2398, 4178, 153148, 1507, 309, 5, false}, // Pulkovo 1942(83) / 3-degree Gauss-Kruger zone 4
    {2399, 4178, 153219, 1508, 310, 5, false}, // Pulkovo 1942(83) / 3-degree Gauss-Kruger zone 5
    {2400, 4124, 164561, 2319, 96, 5, true}, // RT90 2.5 gon W
    {2401, 4214, 19692, 1528, 1170, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger zone 25
    {2402, 4214, 19723, 1529, 1171, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger zone 26
    {2403, 4214, 19754, 1530, 1172, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger zone 27
    {2404, 4214, 19785, 1531, 1173, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger zone 28
    {2405, 4214, 19816, 1532, 1174, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger zone 29
    {2406, 4214, 19847, 1533, 1175, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger zone 30
    {2407, 4214, 19878, 1534, 1176, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger zone 31
    {2408, 4214, 19909, 1535, 1177, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger zone 32
    {2409, 4214, 19940, 1536, 1178, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger zone 33
    {2410, 4214, 19971, 1537, 1179, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger zone 34
    {2411, 4214, 20002, 1538, 1180, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger zone 35
    {2412, 4214, 20033, 1539, 1181, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger zone 36
    {2413, 4214, 20064, 1540, 1182, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger zone 37
    {2414, 4214, 20095, 1541, 1183, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger zone 38
    {2415, 4214, 20126, 1542, 1184, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger zone 39
    {2416, 4214, 20157, 1372, 1185, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger zone 40
    {2417, 4214, 20188, 1373, 1186, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger zone 41
    {2418, 4214, 20219, 1374, 1187, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger zone 42
    {2419, 4214, 20250, 1375, 1188, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger zone 43
    {2420, 4214, 20281, 1376, 1189, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger zone 44
    {2421, 4214, 20312, 1377, 1190, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger zone 45
    {2422, 4214, 19386, 1554, 1170, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger CM 75E
    {2423, 4214, 19420, 1584, 1171, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger CM 78E
    {2424, 4214, 19454, 1555, 1172, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger CM 81E
    {2425, 4214, 19488, 1585, 1173, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger CM 84E
    {2426, 4214, 19522, 1556, 1174, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger CM 87E
    {2427, 4214, 19556, 1586, 1175, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger CM 90E
    {2428, 4214, 19590, 1557, 1176, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger CM 93E
    {2429, 4214, 19624, 1587, 1177, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger CM 96E
    {2430, 4214, 19658, 1558, 1178, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger CM 99E
    {2431, 4214, 18973, 1588, 1179, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger CM 102E
    {2432, 4214, 19007, 1559, 1180, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger CM 105E
    {2433, 4214, 19041, 1589, 1181, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger CM 108E
    {2434, 4214, 19075, 1560, 1182, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger CM 111E
    {2435, 4214, 19109, 1590, 1183, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger CM 114E
    {2436, 4214, 19143, 1561, 1184, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger CM 117E
    {2437, 4214, 19177, 1460, 1185, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger CM 120E
    {2438, 4214, 19211, 1562, 1186, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger CM 123E
    {2439, 4214, 19246, 1461, 1187, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger CM 126E
    {2440, 4214, 19281, 1563, 1188, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger CM 129E
    {2441, 4214, 19316, 1462, 1189, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger CM 132E
    {2442, 4214, 19351, 1564, 1190, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger CM 135E
    {2443, 4612, 72037, 1947, 639, 5, false}, // JGD2000 / Japan Plane Rectangular CS I
    {2444, 4612, 72065, 1948, 640, 5, false}, // JGD2000 / Japan Plane Rectangular CS II
    {2445, 4612, 72094, 1949, 641, 5, false}, // JGD2000 / Japan Plane Rectangular CS III
    {2446, 4612, 72124, 1950, 642, 5, false}, // JGD2000 / Japan Plane Rectangular CS IV
    {2447, 4612, 72182, 1951, 643, 5, false}, // JGD2000 / Japan Plane Rectangular CS V
    {2448, 4612, 72210, 1952, 644, 5, false}, // JGD2000 / Japan Plane Rectangular CS VI
    {2449, 4612, 72239, 1953, 645, 5, false}, // JGD2000 / Japan Plane Rectangular CS VII
    {2450, 4612, 72269, 1954, 646, 5, false}, // JGD2000 / Japan Plane Rectangular CS VIII
    {2451, 4612, 72153, 1955, 647, 5, false}, // JGD2000 / Japan Plane Rectangular CS IX
    {2452, 4612, 72300, 1956, 648, 5, false}, // JGD2000 / Japan Plane Rectangular CS X
    {2453, 4612, 72328, 1957, 649, 5, false}, // JGD2000 / Japan Plane Rectangular CS XI
    {2454, 4612, 72357, 1958, 650, 5, false}, // JGD2000 / Japan Plane Rectangular CS XII
    {2455, 4612, 72387, 1959, 651, 5, false}, // JGD2000 / Japan Plane Rectangular CS XIII
    {2456, 4612, 72418, 1960, 652, 5, false}, // JGD2000 / Japan Plane Rectangular CS XIV
    {2457, 4612, 72478, 1961, 653, 5, false}, // JGD2000 / Japan Plane Rectangular CS XV
    {2458, 4612, 72507, 1962, 654, 5, false}, // JGD2000 / Japan Plane Rectangular CS XVI
    {2459, 4612, 72537, 1963, 655, 5, false}, // JGD2000 / Japan Plane Rectangular CS XVII
    {2460, 4612, 72568, 1964, 656, 5, false}, // JGD2000 / Japan Plane Rectangular CS XVIII
    {2461, 4612, 72448, 1965, 657, 5, false}, // JGD2000 / Japan Plane Rectangular CS XIX
    {2462, 4191, 5816, 1475, 1477, 5, false}, // Albanian 1987 / Gauss-Kruger zone 4
    {2463, 4200, 158766, 1545, 549, 5, false}, // Pulkovo 1995 / Gauss-Kruger CM 21E
    {2464, 4200, 158794, 1546, 550, 5, false}, // Pulkovo 1995 / Gauss-Kruger CM 27E
    {2465, 4200, 158821, 1547, 551, 5, false}, // Pulkovo 1995 / Gauss-Kruger CM 33E
    {2466, 4200, 158849, 1548, 552, 5, false}, // Pulkovo 1995 / Gauss-Kruger CM 39E
    {2467, 4200, 158877, 1549, 553, 5, false}, // Pulkovo 1995 / Gauss-Kruger CM 45E
    {2468, 4200, 158905, 1550, 554, 5, false}, // Pulkovo 1995 / Gauss-Kruger CM 51E
    {2469, 4200, 158933, 1551, 555, 5, false}, // Pulkovo 1995 / Gauss-Kruger CM 57E
    {2470, 4200, 158961, 1552, 556, 5, false}, // Pulkovo 1995 / Gauss-Kruger CM 63E
    {2471, 4200, 158989, 1553, 557, 5, false}, // Pulkovo 1995 / Gauss-Kruger CM 69E
    {2472, 4200, 159017, 1554, 558, 5, false}, // Pulkovo 1995 / Gauss-Kruger CM 75E
    {2473, 4200, 159045, 1555, 559, 5, false}, // Pulkovo 1995 / Gauss-Kruger CM 81E
    {2474, 4200, 159073, 1556, 560, 5, false}, // Pulkovo 1995 / Gauss-Kruger CM 87E
    {2475, 4200, 159101, 1557, 561, 5, false}, // Pulkovo 1995 / Gauss-Kruger CM 93E
    {2476, 4200, 159129, 1558, 562, 5, false}, // Pulkovo 1995 / Gauss-Kruger CM 99E
    {2477, 4200, 158334, 1559, 563, 5, false}, // Pulkovo 1995 / Gauss-Kruger CM 105E
    {2478, 4200, 158362, 1560, 564, 5, false}, // Pulkovo 1995 / Gauss-Kruger CM 111E
    {2479, 4200, 158390, 1561, 565, 5, false}, // Pulkovo 1995 / Gauss-Kruger CM 117E
    {2480, 4200, 158418, 1562, 566, 5, false}, // Pulkovo 1995 / Gauss-Kruger CM 123E
    {2481, 4200, 158447, 1563, 567, 5, false}, // Pulkovo 1995 / Gauss-Kruger CM 129E
    {2482, 4200, 158476, 1564, 568, 5, false}, // Pulkovo 1995 / Gauss-Kruger CM 135E
    {2483, 4200, 158505, 1565, 569, 5, false}, // Pulkovo 1995 / Gauss-Kruger CM 141E
    {2484, 4200, 158534, 1566, 570, 5, false}, // Pulkovo 1995 / Gauss-Kruger CM 147E
    {2485, 4200, 158563, 1567, 571, 5, false}, // Pulkovo 1995 / Gauss-Kruger CM 153E
    {2486, 4200, 158592, 1568, 572, 5, false}, // Pulkovo 1995 / Gauss-Kruger CM 159E
    {2487, 4200, 158621, 1569, 573, 5, false}, // Pulkovo 1995 / Gauss-Kruger CM 165E
    {2488, 4200, 158650, 1570, 574, 5, false}, // Pulkovo 1995 / Gauss-Kruger CM 171E
    {2489, 4200, 158708, 1571, 575, 5, false}, // Pulkovo 1995 / Gauss-Kruger CM 177E
    {2490, 4200, 158737, 1572, 576, 5, false}, // Pulkovo 1995 / Gauss-Kruger CM 177W
    {2491, 4200, 158679, 1573, 577, 5, false}, // Pulkovo 1995 / Gauss-Kruger CM 171W
    {2492, 4284, 151513, 1543, 591, 5, true}, // Pulkovo 1942 / Gauss-Kruger CM 9E
    {2493, 4284, 150949, 1544, 578, 5, true}, // Pulkovo 1942 / Gauss-Kruger CM 15E
    {2494, 4284, 151122, 1545, 579, 5, false}, // Pulkovo 1942 / Gauss-Kruger CM 21E
    {2495, 4284, 151150, 1546, 580, 5, false}, // Pulkovo 1942 / Gauss-Kruger CM 27E
    {2496, 4284, 151177, 1547, 581, 5, false}, // Pulkovo 1942 / Gauss-Kruger CM 33E
    {2497, 4284, 151205, 1548, 582, 5, false}, // Pulkovo 1942 / Gauss-Kruger CM 39E
    {2498, 4284, 151233, 1549, 583, 5, false}, // Pulkovo 1942 / Gauss-Kruger CM 45E
    {2499, 4284, 151261, 1550, 584, 5, false}, // Pulkovo 1942 / Gauss-Kruger CM 51E
    {2500, 4284, 151289, 1551, 585, 5, false}, // Pulkovo 1942 / Gauss-Kruger CM 57E
    {2501, 4284, 151317, 1552, 586, 5, false}, // Pulkovo 1942 / Gauss-Kruger CM 63E
    {2502, 4284, 151345, 1553, 587, 5, false}, // Pulkovo 1942 / Gauss-Kruger CM 69E
    {2503, 4284, 151373, 1554, 588, 5, false}, // Pulkovo 1942 / Gauss-Kruger CM 75E
    {2504, 4284, 151401, 1555, 589, 5, false}, // Pulkovo 1942 / Gauss-Kruger CM 81E
    {2505, 4284, 151429, 1556, 590, 5, false}, // Pulkovo 1942 / Gauss-Kruger CM 87E
    {2506, 4284, 151457, 1557, 561, 5, false}, // Pulkovo 1942 / Gauss-Kruger CM 93E
    {2507, 4284, 151485, 1558, 562, 5, false}, // Pulkovo 1942 / Gauss-Kruger CM 99E
    {2508, 4284, 150662, 1559, 563, 5, false}, // Pulkovo 1942 / Gauss-Kruger CM 105E
    {2509, 4284, 150690, 1560, 564, 5, false}, // Pulkovo 1942 / Gauss-Kruger CM 111E
    {2510, 4284, 150718, 1561, 565, 5, false}, // Pulkovo 1942 / Gauss-Kruger CM 117E
    {2511, 4284, 150746, 1562, 566, 5, false}, // Pulkovo 1942 / Gauss-Kruger CM 123E
    {2512, 4284, 150775, 1563, 567, 5, false}, // Pulkovo 1942 / Gauss-Kruger CM 129E
    {2513, 4284, 150804, 1564, 568, 5, false}, // Pulkovo 1942 / Gauss-Kruger CM 135E
    {2514, 4284, 150833, 1565, 569, 5, false}, // Pulkovo 1942 / Gauss-Kruger CM 141E
    {2515, 4284, 150862, 1566, 570, 5, false}, // Pulkovo 1942 / Gauss-Kruger CM 147E
    {2516, 4284, 150891, 1567, 571, 5, false}, // Pulkovo 1942 / Gauss-Kruger CM 153E
    {2517, 4284, 150920, 1568, 572, 5, false}, // Pulkovo 1942 / Gauss-Kruger CM 159E
    {2518, 4284, 150977, 1569, 573, 5, false}, // Pulkovo 1942 / Gauss-Kruger CM 165E
    {2519, 4284, 151006, 1570, 574, 5, false}, // Pulkovo 1942 / Gauss-Kruger CM 171E
    {2520, 4284, 151064, 1571, 575, 5, false}, // Pulkovo 1942 / Gauss-Kruger CM 177E
    {2521, 4284, 151093, 1572, 576, 5, false}, // Pulkovo 1942 / Gauss-Kruger CM 177W
    {2522, 4284, 151035, 1573, 577, 5, false}, // Pulkovo 1942 / Gauss-Kruger CM 171W
    {2523, 4284, 149444, 1510, 1112, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 7
    {2524, 4284, 149475, 1511, 1113, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 8
    {2525, 4284, 149506, 1512, 1114, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 9
    {2526, 4284, 147653, 1513, 1115, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 10
    {2527, 4284, 147685, 1514, 1116, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 11
    {2528, 4284, 147717, 1515, 1117, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 12
    {2529, 4284, 147749, 1516, 1118, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 13
    {2530, 4284, 147781, 1517, 1119, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 14
    {2531, 4284, 147813, 1518, 1120, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 15
    {2532, 4284, 147845, 1519, 1121, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 16
    {2533, 4284, 147877, 1520, 1122, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 17
    {2534, 4284, 147909, 1521, 1123, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 18
    {2535, 4284, 147941, 1522, 1124, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 19
    {2536, 4284, 147973, 1523, 1125, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 20
    {2537, 4284, 148005, 1524, 1126, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 21
    {2538, 4284, 148037, 1525, 1127, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 22
    {2539, 4284, 148069, 1526, 1128, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 23
    {2540, 4284, 148101, 1527, 1129, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 24
    {2541, 4284, 148133, 1528, 1130, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 25
    {2542, 4284, 148165, 1529, 1131, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 26
    {2543, 4284, 148197, 1530, 1132, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 27
    {2544, 4284, 148229, 1531, 1133, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 28
    {2545, 4284, 148261, 1532, 1134, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 29
    {2546, 4284, 148293, 1533, 1135, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 30
    {2547, 4284, 148325, 1534, 1136, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 31
    {2548, 4284, 148357, 1535, 1137, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 32
    {2549, 4284, 148389, 1536, 1138, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 33
    {2550, 4125, 176770, 1448, 155, 4, true}, // Samboja / UTM zone 50S
    {2551, 4284, 148421, 1537, 1139, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 34
    {2552, 4284, 148453, 1538, 1140, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 35
    {2553, 4284, 148485, 1539, 1141, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 36
    {2554, 4284, 148517, 1540, 1142, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 37
    {2555, 4284, 148549, 1541, 1143, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 38
    {2556, 4284, 148581, 1542, 1144, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 39
    {2557, 4284, 148613, 1372, 1145, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 40
    {2558, 4284, 148645, 1373, 1146, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 41
    {2559, 4284, 148677, 1374, 1147, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 42
    {2560, 4284, 148709, 1375, 1148, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 43
    {2561, 4284, 148741, 1376, 1149, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 44
    {2562, 4284, 148773, 1377, 1150, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 45
    {2563, 4284, 148805, 1378, 1151, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 46
    {2564, 4284, 148837, 1379, 1152, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 47
    {2565, 4284, 148869, 1380, 1153, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 48
    {2566, 4284, 148901, 1381, 1154, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 49
    {2567, 4284, 148933, 1382, 1155, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 50
    {2568, 4284, 148965, 1383, 1156, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 51
    {2569, 4284, 148997, 1384, 1157, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 52
    {2570, 4284, 149029, 1385, 1158, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 53
    {2571, 4284, 149061, 1386, 1159, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 54
    {2572, 4284, 149093, 1387, 1160, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 55
    {2573, 4284, 149125, 1388, 1161, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 56
    {2574, 4284, 149157, 1389, 1162, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 57
    {2575, 4284, 149189, 1390, 1163, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 58
    {2576, 4284, 149221, 1391, 1164, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 59
    {2577, 4284, 149284, 1392, 1165, 5, true}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 60
    {2578, 4284, 149316, 1393, 1166, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 61
    {2579, 4284, 149348, 1394, 1167, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 62
    {2580, 4284, 149380, 1395, 1168, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 63
    {2581, 4284, 149412, 1396, 1169, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 64
    {2582, 4284, 146710, 1545, 1112, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 21E
    {2583, 4284, 146745, 1575, 1113, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 24E
    {2584, 4284, 146780, 1546, 1114, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 27E
    {2585, 4284, 146814, 1576, 1115, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 30E
    {2586, 4284, 146848, 1547, 1116, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 33E
    {2587, 4284, 146883, 1577, 1117, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 36E
    {2588, 4284, 146918, 1548, 1118, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 39E
    {2589, 4284, 146953, 1578, 1119, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 42E
    {2590, 4284, 146988, 1549, 1120, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 45E
    {2591, 4284, 147023, 1579, 1121, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 48E
    {2592, 4284, 147058, 1550, 1122, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 51E
    {2593, 4284, 147093, 1580, 1123, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 54E
    {2594, 4284, 147128, 1551, 1124, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 57E
    {2595, 4284, 147163, 1581, 1125, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 60E
    {2596, 4284, 147198, 1552, 1126, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 63E
    {2597, 4284, 147233, 1582, 1127, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 66E
    {2598, 4284, 147268, 1553, 1128, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 69E
    {2599, 4284, 147303, 1583, 1129, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 72E
    {2600, 4669, 81289, 2323, 60, 5, true}, // Lietuvos Koordinoei Sistema 1994
    {2601, 4284, 147338, 1554, 1130, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 75E
    {2602, 4284, 147373, 1584, 1131, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 78E
    {2603, 4284, 147408, 1555, 1132, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 81E
    {2604, 4284, 147443, 1585, 1133, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 84E
    {2605, 4284, 147478, 1556, 1134, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 87E
    {2606, 4284, 147513, 1586, 1135, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 90E
    {2607, 4284, 147548, 1557, 1136, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 93E
    {2608, 4284, 147583, 1587, 1137, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 96E
    {2609, 4284, 147618, 1558, 1138, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 99E
    {2610, 4284, 145566, 1588, 1139, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 102E
    {2611, 4284, 145601, 1559, 1140, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 105E
    {2612, 4284, 145636, 1589, 1141, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 108E
    {2613, 4284, 145671, 1560, 1142, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 111E
    {2614, 4284, 145706, 1590, 1143, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 114E
    {2615, 4284, 145741, 1561, 1144, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 117E
    {2616, 4284, 145776, 1460, 1145, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 120E
    {2617, 4284, 145811, 1562, 1146, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 123E
    {2618, 4284, 145847, 1461, 1147, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 126E
    {2619, 4284, 145883, 1563, 1148, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 129E
    {2620, 4284, 145919, 1462, 1149, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 132E
    {2621, 4284, 145955, 1564, 1150, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 135E
    {2622, 4284, 145991, 1463, 1151, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 138E
    {2623, 4284, 146027, 1565, 1152, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 141E
    {2624, 4284, 146063, 1464, 1153, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 144E
    {2625, 4284, 146099, 1566, 1154, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 147E
    {2626, 4284, 146135, 1465, 1155, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 150E
    {2627, 4284, 146171, 1567, 1156, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 153E
    {2628, 4284, 146207, 1466, 1157, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 156E
    {2629, 4284, 146243, 1568, 1158, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 159E
    {2630, 4284, 146279, 1467, 1159, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 162E
    {2631, 4284, 146315, 1569, 1160, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 165E
    {2632, 4284, 146351, 1468, 1161, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 168E
    {2633, 4284, 146423, 1570, 1162, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 171E
    {2634, 4284, 146495, 1469, 1163, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 174E
    {2635, 4284, 146567, 1571, 1164, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 177E
    {2636, 4284, 146639, 1470, 1165, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 180E
    {2637, 4284, 146603, 1572, 1166, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 177W
    {2638, 4284, 146531, 1471, 1167, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 174W
    {2639, 4284, 146459, 1573, 1168, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 171W
    {2640, 4284, 146387, 1472, 1169, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 168W
    {2641, 4200, 157496, 1510, 1191, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 7
    {2642, 4200, 157527, 1511, 1192, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 8
    {2643, 4200, 157558, 1512, 1193, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 9
    {2644, 4200, 155705, 1513, 1194, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 10
    {2645, 4200, 155737, 1514, 1195, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 11
    {2646, 4200, 155769, 1515, 1196, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 12
    {2647, 4200, 155801, 1516, 1197, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 13
    {2648, 4200, 155833, 1517, 1198, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 14
    {2649, 4200, 155865, 1518, 1199, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 15
    {2650, 4200, 155897, 1519, 1200, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 16
    {2651, 4200, 155929, 1520, 1201, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 17
    {2652, 4200, 155961, 1521, 1202, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 18
    {2653, 4200, 155993, 1522, 1203, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 19
    {2654, 4200, 156025, 1523, 1204, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 20
    {2655, 4200, 156057, 1524, 1205, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 21
    {2656, 4200, 156089, 1525, 1206, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 22
    {2657, 4200, 156121, 1526, 1207, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 23
    {2658, 4200, 156153, 1527, 1208, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 24
    {2659, 4200, 156185, 1528, 1209, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 25
    {2660, 4200, 156217, 1529, 1210, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 26
    {2661, 4200, 156249, 1530, 1211, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 27
    {2662, 4200, 156281, 1531, 1212, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 28
    {2663, 4200, 156313, 1532, 1213, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 29
    {2664, 4200, 156345, 1533, 1135, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 30
    {2665, 4200, 156377, 1534, 1136, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 31
    {2666, 4200, 156409, 1535, 1137, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 32
    {2667, 4200, 156441, 1536, 1138, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 33
    {2668, 4200, 156473, 1537, 1139, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 34
    {2669, 4200, 156505, 1538, 1140, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 35
    {2670, 4200, 156537, 1539, 1141, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 36
    {2671, 4200, 156569, 1540, 1142, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 37
    {2672, 4200, 156601, 1541, 1143, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 38
    {2673, 4200, 156633, 1542, 1144, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 39
    {2674, 4200, 156665, 1372, 1145, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 40
    {2675, 4200, 156697, 1373, 1146, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 41
    {2676, 4200, 156729, 1374, 1147, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 42
    {2677, 4200, 156761, 1375, 1148, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 43
    {2678, 4200, 156793, 1376, 1149, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 44
    {2679, 4200, 156825, 1377, 1150, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 45
    {2680, 4200, 156857, 1378, 1151, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 46
    {2681, 4200, 156889, 1379, 1152, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 47
    {2682, 4200, 156921, 1380, 1153, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 48
    {2683, 4200, 156953, 1381, 1154, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 49
    {2684, 4200, 156985, 1382, 1155, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 50
    {2685, 4200, 157017, 1383, 1156, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 51
    {2686, 4200, 157049, 1384, 1157, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 52
    {2687, 4200, 157081, 1385, 1158, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 53
    {2688, 4200, 157113, 1386, 1159, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 54
    {2689, 4200, 157145, 1387, 1160, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 55
    {2690, 4200, 157177, 1388, 1161, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 56
    {2691, 4200, 157209, 1389, 1162, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 57
    {2692, 4200, 157241, 1390, 1163, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 58
    {2693, 4200, 157273, 1391, 1164, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 59
    {2694, 4200, 157336, 1392, 1165, 5, true}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 60
    {2695, 4200, 157368, 1393, 1166, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 61
    {2696, 4200, 157400, 1394, 1167, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 62
    {2697, 4200, 157432, 1395, 1168, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 63
    {2698, 4200, 157464, 1396, 1169, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 64
    {2699, 4200, 154762, 1545, 1191, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 21E
    {2700, 4200, 154797, 1575, 1192, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 24E
    {2701, 4200, 154832, 1546, 1193, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 27E
    {2702, 4200, 154866, 1576, 1194, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 30E
    {2703, 4200, 154900, 1547, 1195, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 33E
    {2704, 4200, 154935, 1577, 1196, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 36E
    {2705, 4200, 154970, 1548, 1197, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 39E
    {2706, 4200, 155005, 1578, 1198, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 42E
    {2707, 4200, 155040, 1549, 1199, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 45E
    {2708, 4200, 155075, 1579, 1200, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 48E
    {2709, 4200, 155110, 1550, 1201, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 51E
    {2710, 4200, 155145, 1580, 1202, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 54E
    {2711, 4200, 155180, 1551, 1203, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 57E
    {2712, 4200, 155215, 1581, 1204, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 60E
    {2713, 4200, 155250, 1552, 1205, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 63E
    {2714, 4200, 155285, 1582, 1206, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 66E
    {2715, 4200, 155320, 1553, 1207, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 69E
    {2716, 4200, 155355, 1583, 1208, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 72E
    {2717, 4200, 155390, 1554, 1209, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 75E
    {2718, 4200, 155425, 1584, 1210, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 78E
    {2719, 4200, 155460, 1555, 1211, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 81E
    {2720, 4200, 155495, 1585, 1212, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 84E
    {2721, 4200, 155530, 1556, 1213, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 87E
    {2722, 4200, 155565, 1586, 1135, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 90E
    {2723, 4200, 155600, 1557, 1136, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 93E
    {2724, 4200, 155635, 1587, 1137, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 96E
    {2725, 4200, 155670, 1558, 1138, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 99E
    {2726, 4200, 153618, 1588, 1139, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 102E
    {2727, 4200, 153653, 1559, 1140, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 105E
    {2728, 4200, 153688, 1589, 1141, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 108E
    {2729, 4200, 153723, 1560, 1142, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 111E
    {2730, 4200, 153758, 1590, 1143, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 114E
    {2731, 4200, 153793, 1561, 1144, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 117E
    {2732, 4200, 153828, 1460, 1145, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 120E
    {2733, 4200, 153863, 1562, 1146, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 123E
    {2734, 4200, 153899, 1461, 1147, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 126E
    {2735, 4200, 153935, 1563, 1148, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 129E
    {2736, 4127, 185459, 1434, 336, 4, false}, // Tete / UTM zone 36S
    {2737, 4127, 185470, 1435, 337, 4, false}, // Tete / UTM zone 37S
    {2738, 4200, 153971, 1462, 1149, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 132E
    {2739, 4200, 154007, 1564, 1150, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 135E
    {2740, 4200, 154043, 1463, 1151, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 138E
    {2741, 4200, 154079, 1565, 1152, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 141E
    {2742, 4200, 154115, 1464, 1153, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 144E
    {2743, 4200, 154151, 1566, 1154, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 147E
    {2744, 4200, 154187, 1465, 1155, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 150E
    {2745, 4200, 154223, 1567, 1156, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 153E
    {2746, 4200, 154259, 1466, 1157, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 156E
    {2747, 4200, 154295, 1568, 1158, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 159E
    {2748, 4200, 154331, 1467, 1159, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 162E
    {2749, 4200, 154367, 1569, 1160, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 165E
    {2750, 4200, 154403, 1468, 1161, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 168E
    {2751, 4200, 154475, 1570, 1162, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 171E
    {2752, 4200, 154547, 1469, 1163, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 174E
    {2753, 4200, 154619, 1571, 1164, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 177E
    {2754, 4200, 154691, 1470, 1165, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 180E
    {2755, 4200, 154655, 1572, 1166, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 177W
    {2756, 4200, 154583, 1471, 1167, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 174W
    {2757, 4200, 154511, 1573, 1168, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 171W
    {2758, 4200, 154439, 1472, 1169, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 168W
    {2759, 4152, 114149, 911, 939, 4, false}, // NAD83(HARN) / Alabama East
    {2760, 4152, 114160, 912, 940, 4, false}, // NAD83(HARN) / Alabama West
    {2761, 4152, 114193, 918, 952, 4, false}, // NAD83(HARN) / Arizona East
    {2762, 4152, 114171, 919, 951, 4, false}, // NAD83(HARN) / Arizona Central
    {2763, 4152, 114214, 920, 953, 4, false}, // NAD83(HARN) / Arizona West
    {2764, 4152, 114235, 923, 954, 4, false}, // NAD83(HARN) / Arkansas North
    {2765, 4152, 114258, 924, 955, 4, false}, // NAD83(HARN) / Arkansas South
    {2766, 4152, 114294, 934, 960, 4, false}, // NAD83(HARN) / California zone 1
    {2767, 4152, 114322, 935, 961, 4, false}, // NAD83(HARN) / California zone 2
    {2768, 4152, 114350, 936, 962, 4, false}, // NAD83(HARN) / California zone 3
    {2769, 4152, 114378, 937, 963, 4, false}, // NAD83(HARN) / California zone 4
    {2770, 4152, 114406, 938, 967, 4, false}, // NAD83(HARN) / California zone 5
    {2771, 4152, 114434, 939, 965, 4, false}, // NAD83(HARN) / California zone 6
    {2772, 4152, 114487, 943, 969, 4, false}, // NAD83(HARN) / Colorado North
    {2773, 4152, 114462, 944, 968, 4, false}, // NAD83(HARN) / Colorado Central
    {2774, 4152, 114508, 945, 970, 4, false}, // NAD83(HARN) / Colorado South
    {2775, 4152, 114530, 947, 194, 4, false}, // NAD83(HARN) / Connecticut
    {2776, 4152, 114566, 949, 195, 4, false}, // NAD83(HARN) / Delaware
    {2777, 4152, 114587, 953, 971, 4, false}, // NAD83(HARN) / Florida East
    {2778, 4152, 114647, 954, 973, 4, false}, // NAD83(HARN) / Florida West
    {2779, 4152, 114626, 955, 972, 4, false}, // NAD83(HARN) / Florida North
    {2780, 4152, 114671, 959, 974, 4, false}, // NAD83(HARN) / Georgia East
    {2781, 4152, 114695, 960, 975, 4, false}, // NAD83(HARN) / Georgia West
    {2782, 4152, 114732, 1192, 341, 4, false}, // NAD83(HARN) / Hawaii zone 1
    {2783, 4152, 114742, 1193, 342, 4, false}, // NAD83(HARN) / Hawaii zone 2
    {2784, 4152, 114752, 1194, 343, 4, false}, // NAD83(HARN) / Hawaii zone 3
    {2785, 4152, 114778, 1195, 344, 4, false}, // NAD83(HARN) / Hawaii zone 4
    {2786, 4152, 114788, 1196, 345, 4, false}, // NAD83(HARN) / Hawaii zone 5
    {2787, 4152, 114821, 964, 977, 4, false}, // NAD83(HARN) / Idaho East
    {2788, 4152, 114798, 965, 976, 4, false}, // NAD83(HARN) / Idaho Central
    {2789, 4152, 114843, 966, 978, 4, false}, // NAD83(HARN) / Idaho West
    {2790, 4152, 114865, 969, 979, 4, false}, // NAD83(HARN) / Illinois East
    {2791, 4152, 114893, 970, 980, 4, false}, // NAD83(HARN) / Illinois West
    {2792, 4152, 114921, 973, 981, 4, false}, // NAD83(HARN) / Indiana East
    {2793, 4152, 114941, 974, 982, 4, false}, // NAD83(HARN) / Indiana West
    {2794, 4152, 114961, 977, 983, 4, false}, // NAD83(HARN) / Iowa North
    {2795, 4152, 114980, 978, 984, 4, false}, // NAD83(HARN) / Iowa South
    {2796, 4152, 115000, 981, 985, 4, false}, // NAD83(HARN) / Kansas North
    {2797, 4152, 115021, 982, 986, 4, false}, // NAD83(HARN) / Kansas South
    {2798, 4152, 115042, 1207, 987, 4, false}, // NAD83(HARN) / Kentucky North
    {2799, 4152, 115106, 987, 988, 4, false}, // NAD83(HARN) / Kentucky South
    {2800, 4152, 115133, 991, 989, 4, false}, // NAD83(HARN) / Louisiana North
    {2801, 4152, 115154, 992, 1085, 4, false}, // NAD83(HARN) / Louisiana South
    {2802, 4152, 115215, 996, 991, 4, false}, // NAD83(HARN) / Maine East
    {2803, 4152, 115237, 997, 992, 4, false}, // NAD83(HARN) / Maine West
    {2804, 4152, 115259, 1005, 201, 4, false}, // NAD83(HARN) / Maryland
    {2805, 4152, 115311, 1008, 994, 4, false}, // NAD83(HARN) / Massachusetts Mainland
    {2806, 4152, 115277, 1009, 993, 4, false}, // NAD83(HARN) / Massachusetts Island
    {2807, 4152, 115378, 1016, 513, 4, false}, // NAD83(HARN) / Michigan North
    {2808, 4152, 115351, 1017, 514, 4, false}, // NAD83(HARN) / Michigan Central
    {2809, 4152, 115423, 1018, 515, 4, false}, // NAD83(HARN) / Michigan South
    {2810, 4152, 115474, 1023, 999, 4, false}, // NAD83(HARN) / Minnesota North
    {2811, 4152, 115447, 1024, 998, 4, false}, // NAD83(HARN) / Minnesota Central
    {2812, 4152, 115497, 1025, 1000, 4, false}, // NAD83(HARN) / Minnesota South
    {2813, 4152, 115521, 1031, 1001, 4, false}, // NAD83(HARN) / Mississippi East
    {2814, 4152, 115568, 1032, 1002, 4, false}, // NAD83(HARN) / Mississippi West
    {2815, 4152, 115614, 1036, 1004, 4, false}, // NAD83(HARN) / Missouri East
    {2816, 4152, 115602, 1037, 1003, 4, false}, // NAD83(HARN) / Missouri Central
    {2817, 4152, 115626, 1038, 1005, 4, false}, // NAD83(HARN) / Missouri West
    {2818, 4152, 115638, 1042, 204, 4, false}, // NAD83(HARN) / Montana
    {2819, 4152, 115656, 1045, 205, 4, false}, // NAD83(HARN) / Nebraska
    {2820, 4152, 115700, 1049, 1009, 4, false}, // NAD83(HARN) / Nevada East
    {2821, 4152, 115677, 1050, 1008, 4, false}, // NAD83(HARN) / Nevada Central
    {2822, 4152, 115722, 1051, 1010, 4, false}, // NAD83(HARN) / Nevada West
    {2823, 4152, 115744, 1053, 206, 4, false}, // NAD83(HARN) / New Hampshire
    {2824, 4152, 115769, 1055, 207, 4, false}, // NAD83(HARN) / New Jersey
    {2825, 4152, 115819, 1059, 1013, 4, false}, // NAD83(HARN) / New Mexico East
    {2826, 4152, 115790, 1060, 1016, 4, false}, // NAD83(HARN) / New Mexico Central
    {2827, 4152, 115847, 1061, 1017, 4, false}, // NAD83(HARN) / New Mexico West
    {2828, 4152, 115901, 1066, 1019, 4, false}, // NAD83(HARN) / New York East
    {2829, 4152, 115875, 1067, 1018, 4, false}, // NAD83(HARN) / New York Central
    {2830, 4152, 115959, 1068, 1021, 4, false}, // NAD83(HARN) / New York West
    {2831, 4152, 115927, 1069, 1020, 4, false}, // NAD83(HARN) / New York Long Island
    {2832, 4152, 116006, 1074, 1022, 4, false}, // NAD83(HARN) / North Dakota North
    {2833, 4152, 116028, 1075, 1023, 4, false}, // NAD83(HARN) / North Dakota South
    {2834, 4152, 116051, 1078, 1024, 4, false}, // NAD83(HARN) / Ohio North
    {2835, 4152, 116070, 1079, 1025, 4, false}, // NAD83(HARN) / Ohio South
    {2836, 4152, 116090, 1084, 1026, 4, false}, // NAD83(HARN) / Oklahoma North
    {2837, 4152, 116113, 1085, 1027, 4, false}, // NAD83(HARN) / Oklahoma South
    {2838, 4152, 116163, 1088, 1028, 4, false}, // NAD83(HARN) / Oregon North
    {2839, 4152, 116175, 1089, 1029, 4, false}, // NAD83(HARN) / Oregon South
    {2840, 4152, 116268, 1096, 210, 4, false}, // NAD83(HARN) / Rhode Island
    {2841, 4152, 116310, 1102, 1034, 4, false}, // NAD83(HARN) / South Dakota North
    {2842, 4152, 116333, 1103, 1035, 4, false}, // NAD83(HARN) / South Dakota South
    {2843, 4152, 116357, 1105, 212, 4, false}, // NAD83(HARN) / Tennessee
    {2844, 4152, 116447, 1111, 1038, 4, false}, // NAD83(HARN) / Texas North
    {2845, 4152, 116468, 1112, 1039, 4, false}, // NAD83(HARN) / Texas North Central
    {2846, 4152, 116380, 1113, 1037, 4, false}, // NAD83(HARN) / Texas Central
    {2847, 4152, 116516, 1114, 1083, 4, false}, // NAD83(HARN) / Texas South Central
    {2848, 4152, 116495, 1115, 1084, 4, false}, // NAD83(HARN) / Texas South
    {2849, 4152, 116685, 1123, 1043, 4, false}, // NAD83(HARN) / Utah North
    {2850, 4152, 116651, 1124, 1042, 4, false}, // NAD83(HARN) / Utah Central
    {2851, 4152, 116715, 1125, 1044, 4, false}, // NAD83(HARN) / Utah South
    {2852, 4152, 116745, 1127, 214, 4, false}, // NAD83(HARN) / Vermont
    {2853, 4152, 116777, 1130, 1045, 4, false}, // NAD83(HARN) / Virginia North
    {2854, 4152, 116798, 1131, 1046, 4, false}, // NAD83(HARN) / Virginia South
    {2855, 4152, 118982, 1134, 1058, 4, false}, // NAD83(HARN) / Washington North
    {2856, 4152, 119007, 1135, 1059, 4, false}, // NAD83(HARN) / Washington South
    {2857, 4152, 119034, 1138, 1049, 4, false}, // NAD83(HARN) / West Virginia North
    {2858, 4152, 119059, 1139, 1050, 4, false}, // NAD83(HARN) / West Virginia South
    {2859, 4152, 119113, 1148, 1052, 4, false}, // NAD83(HARN) / Wisconsin North
    {2860, 4152, 119085, 1149, 1051, 4, false}, // NAD83(HARN) / Wisconsin Central
    {2861, 4152, 119138, 1150, 1053, 4, false}, // NAD83(HARN) / Wisconsin South
    {2862, 4152, 119184, 1157, 1054, 4, false}, // NAD83(HARN) / Wyoming East
    {2863, 4152, 119210, 1158, 1055, 4, false}, // NAD83(HARN) / Wyoming East Central
    {2864, 4152, 119267, 1159, 1057, 4, false}, // NAD83(HARN) / Wyoming West Central
    {2865, 4152, 119241, 1160, 1056, 4, false}, // NAD83(HARN) / Wyoming West
    {2866, 4152, 116250, 1200, 1768, 4, false}, // NAD83(HARN) / Puerto Rico and Virgin Is.
    {2867, 4152, 114202, 1208, 952, 6, false}, // NAD83(HARN) / Arizona East (ft)
    {2868, 4152, 114180, 1209, 951, 6, false}, // NAD83(HARN) / Arizona Central (ft)
    {2869, 4152, 114223, 1210, 953, 6, false}, // NAD83(HARN) / Arizona West (ft)
    {2870, 4152, 114305, 1211, 960, 8, false}, // NAD83(HARN) / California zone 1 (ftUS)
    {2871, 4152, 114333, 1212, 961, 8, false}, // NAD83(HARN) / California zone 2 (ftUS)
    {2872, 4152, 114361, 1213, 962, 8, false}, // NAD83(HARN) / California zone 3 (ftUS)
    {2873, 4152, 114389, 1214, 963, 8, false}, // NAD83(HARN) / California zone 4 (ftUS)
    {2874, 4152, 114417, 1215, 967, 8, false}, // NAD83(HARN) / California zone 5 (ftUS)
    {2875, 4152, 114445, 1216, 965, 8, false}, // NAD83(HARN) / California zone 6 (ftUS)
    {2876, 4152, 114495, 1217, 969, 8, false}, // NAD83(HARN) / Colorado North (ftUS)
    {2877, 4152, 114472, 1218, 968, 8, false}, // NAD83(HARN) / Colorado Central (ftUS)
    {2878, 4152, 114517, 1219, 970, 8, false}, // NAD83(HARN) / Colorado South (ftUS)
    {2879, 4152, 114540, 1220, 194, 8, false}, // NAD83(HARN) / Connecticut (ftUS)
    {2880, 4152, 114574, 1221, 195, 8, false}, // NAD83(HARN) / Delaware (ftUS)
    {2881, 4152, 114597, 1222, 971, 8, false}, // NAD83(HARN) / Florida East (ftUS)
    {2882, 4152, 114657, 1223, 973, 8, false}, // NAD83(HARN) / Florida West (ftUS)
    {2883, 4152, 114634, 1224, 972, 8, false}, // NAD83(HARN) / Florida North (ftUS)
    {2884, 4152, 114681, 1225, 974, 8, false}, // NAD83(HARN) / Georgia East (ftUS)
    {2885, 4152, 114705, 1226, 975, 8, false}, // NAD83(HARN) / Georgia West (ftUS)
    {2886, 4152, 114830, 1227, 977, 8, false}, // NAD83(HARN) / Idaho East (ftUS)
    {2887, 4152, 114807, 1228, 976, 8, false}, // NAD83(HARN) / Idaho Central (ftUS)
    {2888, 4152, 114852, 1229, 978, 8, false}, // NAD83(HARN) / Idaho West (ftUS)
    {2889, 4152, 114929, 1230, 981, 8, true}, // NAD83(HARN) / Indiana East (ftUS)
    {2890, 4152, 114949, 1231, 982, 8, true}, // NAD83(HARN) / Indiana West (ftUS)
    {2891, 4152, 115052, 1232, 987, 8, false}, // NAD83(HARN) / Kentucky North (ftUS)
    {2892, 4152, 115117, 1233, 988, 8, false}, // NAD83(HARN) / Kentucky South (ftUS)
    {2893, 4152, 115265, 1234, 201, 8, false}, // NAD83(HARN) / Maryland (ftUS)
    {2894, 4152, 115328, 1235, 994, 8, false}, // NAD83(HARN) / Massachusetts Mainland (ftUS)
    {2895, 4152, 115291, 1236, 993, 8, false}, // NAD83(HARN) / Massachusetts Island (ftUS)
    {2896, 4152, 115388, 1237, 513, 6, false}, // NAD83(HARN) / Michigan North (ft)
    {2897, 4152, 115363, 1238, 514, 6, false}, // NAD83(HARN) / Michigan Central (ft)
    {2898, 4152, 115433, 1239, 515, 6, false}, // NAD83(HARN) / Michigan South (ft)
    {2899, 4152, 115536, 1240, 1001, 8, false}, // NAD83(HARN) / Mississippi East (ftUS)
    {2900, 4152, 115583, 1241, 1002, 8, false}, // NAD83(HARN) / Mississippi West (ftUS)
    {2901, 4152, 115645, 1242, 204, 6, false}, // NAD83(HARN) / Montana (ft)
    {2902, 4152, 115831, 1243, 1013, 8, false}, // NAD83(HARN) / New Mexico East (ftUS)
    {2903, 4152, 115802, 1244, 1016, 8, false}, // NAD83(HARN) / New Mexico Central (ftUS)
    {2904, 4152, 115859, 1245, 1017, 8, false}, // NAD83(HARN) / New Mexico West (ftUS)
    {2905, 4152, 115912, 1246, 1019, 8, false}, // NAD83(HARN) / New York East (ftUS)
    {2906, 4152, 115886, 1247, 1018, 8, false}, // NAD83(HARN) / New York Central (ftUS)
    {2907, 4152, 115970, 1248, 1021, 8, false}, // NAD83(HARN) / New York West (ftUS)
    {2908, 4152, 115940, 1249, 1020, 8, false}, // NAD83(HARN) / New York Long Island (ftUS)
    {2909, 4152, 116015, 1251, 1022, 6, false}, // NAD83(HARN) / North Dakota North (ft)
    {2910, 4152, 116038, 1252, 1023, 6, false}, // NAD83(HARN) / North Dakota South (ft)
    {2911, 4152, 116099, 1253, 1026, 8, false}, // NAD83(HARN) / Oklahoma North (ftUS)
    {2912, 4152, 116123, 1254, 1027, 8, false}, // NAD83(HARN) / Oklahoma South (ftUS)
    {2913, 4152, 116167, 1255, 1028, 6, false}, // NAD83(HARN) / Oregon North (ft)
    {2914, 4152, 116181, 1256, 1029, 6, false}, // NAD83(HARN) / Oregon South (ft)
    {2915, 4152, 116366, 1260, 212, 8, false}, // NAD83(HARN) / Tennessee (ftUS)
    {2916, 4152, 116455, 1261, 1038, 8, false}, // NAD83(HARN) / Texas North (ftUS)
    {2917, 4152, 116479, 1262, 1039, 8, false}, // NAD83(HARN) / Texas North Central (ftUS)
    {2918, 4152, 116390, 1263, 1037, 8, false}, // NAD83(HARN) / Texas Central (ftUS)
    {2919, 4152, 116527, 1264, 1083, 8, false}, // NAD83(HARN) / Texas South Central (ftUS)
    {2920, 4152, 116503, 1265, 1084, 8, false}, // NAD83(HARN) / Texas South (ftUS)
    {2921, 4152, 116692, 1266, 1043, 6, false}, // NAD83(HARN) / Utah North (ft)
    {2922, 4152, 116660, 1267, 1042, 6, false}, // NAD83(HARN) / Utah Central (ft)
    {2923, 4152, 116722, 1268, 1044, 6, false}, // NAD83(HARN) / Utah South (ft)
    {2924, 4152, 116785, 1269, 1045, 8, false}, // NAD83(HARN) / Virginia North (ftUS)
    {2925, 4152, 116807, 1270, 1046, 8, false}, // NAD83(HARN) / Virginia South (ftUS)
    {2926, 4152, 118992, 1271, 1058, 8, false}, // NAD83(HARN) / Washington North (ftUS)
    {2927, 4152, 119018, 1272, 1059, 8, false}, // NAD83(HARN) / Washington South (ftUS)
    {2928, 4152, 119123, 1273, 1052, 8, false}, // NAD83(HARN) / Wisconsin North (ftUS)
    {2929, 4152, 119097, 1274, 1051, 8, false}, // NAD83(HARN) / Wisconsin Central (ftUS)
    {2930, 4152, 119148, 1275, 1053, 8, false}, // NAD83(HARN) / Wisconsin South (ftUS)
    {2931, 4213, 18936, 1596, 1214, 4, false}, // Beduaram / TM 13 NE
    {2932, 4614, 160347, 2309, 171, 4, false}, // QND95 / Qatar National Grid
    {2933, 4613, 177655, 1448, 155, 4, false}, // Segara / UTM zone 50S
    {2934, 4820, 177624, 2298, 183, 4, true}, // Segara (Jakarta) / NEIEZ
    {2935, 4284, 149537, 2224, 1215, 5, false}, // Pulkovo 1942 / CS63 zone A1
    {2936, 4284, 149555, 2225, 1216, 5, false}, // Pulkovo 1942 / CS63 zone A2
    {2937, 4284, 149573, 2226, 1217, 5, false}, // Pulkovo 1942 / CS63 zone A3
    {2938, 4284, 149591, 2227, 1218, 5, false}, // Pulkovo 1942 / CS63 zone A4
    {2939, 4284, 149663, 2228, 1219, 5, false}, // Pulkovo 1942 / CS63 zone K2
    {2940, 4284, 149681, 2229, 1220, 5, false}, // Pulkovo 1942 / CS63 zone K3
    {2941, 4284, 149699, 2230, 1221, 5, false}, // Pulkovo 1942 / CS63 zone K4
    {2942, 4615, 144507, 1337, 145, 4, false}, // Porto Santo / UTM zone 28N
    {2943, 4616, 177701, 1337, 1222, 4, false}, // Selvagem Grande / UTM zone 28N
    {2944, 4617, 111507, 1922, 218, 4, true}, // NAD83(CSRS) / SCoPQ zone 2
    {2945, 4617, 111309, 1925, 1069, 4, false}, // NAD83(CSRS) / MTM zone 3
    {2946, 4617, 111318, 1926, 1061, 4, false}, // NAD83(CSRS) / MTM zone 4
    {2947, 4617, 111327, 1927, 1062, 4, false}, // NAD83(CSRS) / MTM zone 5
    {2948, 4617, 111336, 1928, 1063, 4, false}, // NAD83(CSRS) / MTM zone 6
    {2949, 4617, 111345, 1929, 223, 4, false}, // NAD83(CSRS) / MTM zone 7
    {2950, 4617, 111354, 1930, 1064, 4, false}, // NAD83(CSRS) / MTM zone 8
    {2951, 4617, 111363, 1931, 1065, 4, false}, // NAD83(CSRS) / MTM zone 9
    {2952, 4617, 111220, 1932, 1066, 4, false}, // NAD83(CSRS) / MTM zone 10
    {2953, 4617, 111400, 2335, 245, 5, false}, // NAD83(CSRS) / New Brunswick Stereographic
    {2954, 4617, 111443, 2349, 329, 4, false}, // NAD83(CSRS) / Prince Edward Isl. Stereographic (NAD83)
    {2955, 4617, 111569, 1320, 1686, 4, false}, // NAD83(CSRS) / UTM zone 11N
    {2956, 4617, 111580, 1321, 1685, 4, false}, // NAD83(CSRS) / UTM zone 12N
    {2957, 4617, 111591, 1322, 1684, 4, false}, // NAD83(CSRS) / UTM zone 13N
    {2958, 4617, 111635, 1326, 1594, 4, false}, // NAD83(CSRS) / UTM zone 17N
    {2959, 4617, 111646, 1327, 1595, 4, false}, // NAD83(CSRS) / UTM zone 18N
    {2960, 4617, 111657, 1328, 1682, 4, false}, // NAD83(CSRS) / UTM zone 19N
    {2961, 4617, 111668, 1329, 1683, 4, false}, // NAD83(CSRS) / UTM zone 20N
    {2962, 4617, 111678, 1330, 936, 4, false}, // NAD83(CSRS) / UTM zone 21N
    {2963, 4904, 81552, 2366, 129, 1, false}, // Lisbon 1890 (Lisbon) / Portugal Bonne
    {2964, 4267, 92569, 1175, 157, 8, false}, // NAD27 / Alaska Albers
    {2965, 4269, 97162, 1276, 981, 8, false}, // NAD83 / Indiana East (ftUS)
    {2966, 4269, 97182, 1277, 982, 8, false}, // NAD83 / Indiana West (ftUS)
    {2967, 4152, 114929, 1276, 981, 8, false}, // NAD83(HARN) / Indiana East (ftUS)
    {2968, 4152, 114949, 1277, 982, 8, false}, // NAD83(HARN) / Indiana West (ftUS)
    {2969, 4621, 49742, 1329, 1244, 4, false}, // Fort Marigot / UTM zone 20N
    {2970, 4622, 62398, 1329, 1245, 4, false}, // Guadeloupe 1948 / UTM zone 20N
    {2971, 4623, 26791, 1331, 1851, 4, false}, // CSG67 / UTM zone 22N
    {2972, 4624, 162398, 1331, 1428, 4, false}, // RGFG95 / UTM zone 22N
    {2973, 4625, 88015, 1329, 1509, 4, false}, // Martinique 1938 / UTM zone 20N
    {2975, 4627, 162922, 1438, 1956, 4, false}, // RGR92 / UTM zone 40S
    {2976, 4628, 184779, 1404, 1228, 4, false}, // Tahiti 52 / UTM zone 6S
    {2977, 4629, 184737, 1403, 1229, 4, false}, // Tahaa 54 / UTM zone 5S
    {2978, 4630, 66466, 1405, 1423, 4, false}, // IGN72 Nuku Hiva / UTM zone 7S
    {2979, 4631, 74790, 1440, 1233, 4, true}, // K0 1949 / UTM zone 42S
    {2980, 4632, 32788, 1436, 1538, 4, false}, // Combani 1950 / UTM zone 38S
    {2981, 4633, 66271, 1456, 1231, 4, false}, // IGN56 Lifou / UTM zone 58S
    {2982, 4634, 66395, 1456, 1239, 4, true}, // IGN72 Grand Terre / UTM zone 58S
    {2983, 4635, 175987, 1456, 1230, 4, true}, // ST87 Ouvea / UTM zone 58S
    {2984, 4645, 162578, 2367, 74, 4, true}, // RGNC 1991 / Lambert New Caledonia
    {2985, 4636, 143282, 2369, 1234, 4, false}, // Petrels 1972 / Terre Adelie Polar Stereographic
    {2986, 4637, 143016, 2369, 1235, 4, false}, // Perroud 1950 / Terre Adelie Polar Stereographic
    {2987, 4638, 176565, 1330, 1521, 4, false}, // Saint Pierre et Miquelon 1950 / UTM zone 21N
    {2988, 4639, 85476, 1399, 1232, 4, false}, // MOP78 / UTM zone 1S
    {2989, 4640, 163816, 1329, 1241, 4, true}, // RRAF 1991 / UTM zone 20N
    {2990, 4626, 166343, 2368, 1536, 4, true}, // Reunion 1947 / TM Reunion
    {2991, 4269, 98672, 1090, 209, 4, false}, // NAD83 / Oregon LCC (m)
    {2992, 4269, 98656, 1278, 209, 6, false}, // NAD83 / Oregon GIC Lambert (ft)
    {2993, 4152, 116153, 1090, 209, 4, false}, // NAD83(HARN) / Oregon LCC (m)
    {2994, 4152, 116137, 1278, 209, 6, false}, // NAD83(HARN) / Oregon GIC Lambert (ft)
    {2995, 4641, 66183, 1456, 1611, 4, false}, // IGN53 Mare / UTM zone 58S
    {2996, 4642, 175918, 1456, 1237, 4, false}, // ST84 Ile des Pins / UTM zone 58S
    {2997, 4643, 175860, 1456, 1238, 4, false}, // ST71 Belep / UTM zone 58S
    {2998, 4644, 124840, 1456, 1240, 4, false}, // NEA74 Noumea / UTM zone 58S
    {2999, 4646, 61340, 1436, 1227, 4, false}, // Grand Comoros / UTM zone 38S
    {3000, 4613, 177643, 2298, 183, 4, false}, // Segara / NEIEZ
    {3001, 4211, 18684, 2298, 122, 4, false}, // Batavia / NEIEZ
    {3002, 4257, 86786, 2298, 147, 4, false}, // Makassar / NEIEZ
    {3003, 4265, 91627, 2101, 509, 4, false}, // Monte Mario / Italy zone 1
    {3004, 4265, 91643, 2102, 510, 4, false}, // Monte Mario / Italy zone 2
    {3005, 4269, 96141, 2370, 1246, 4, false}, // NAD83 / BC Albers
    {3006, 4619, 176453, 1835, 96, 5, false}, // SWEREF99 TM
    {3007, 4619, 176274, 1823, 1247, 5, false}, // SWEREF99 12 00
    {3008, 4619, 176289, 1824, 1248, 5, false}, // SWEREF99 13 30
    {3009, 4619, 176319, 1825, 1249, 5, false}, // SWEREF99 15 00
    {3010, 4619, 176349, 1826, 1250, 5, false}, // SWEREF99 16 30
    {3011, 4619, 176379, 1827, 1251, 5, false}, // SWEREF99 18 00
    {3012, 4619, 176304, 1828, 1252, 5, false}, // SWEREF99 14 15
    {3013, 4619, 176334, 1829, 1253, 5, false}, // SWEREF99 15 45
    {3014, 4619, 176364, 1830, 1254, 5, false}, // SWEREF99 17 15
    {3015, 4619, 176394, 1831, 1255, 5, false}, // SWEREF99 18 45
    {3016, 4619, 176409, 1832, 1256, 5, false}, // SWEREF99 20 15
    {3017, 4619, 176423, 1833, 1257, 5, false}, // SWEREF99 21 45
    {3018, 4619, 176438, 1834, 1258, 5, false}, // SWEREF99 23 15
    {3019, 4124, 164629, 1836, 1259, 5, false}, // RT90 7.5 gon V
    {3020, 4124, 164601, 1837, 1260, 5, false}, // RT90 5 gon V
    {3021, 4124, 164531, 2319, 1261, 5, false}, // RT90 2.5 gon V
    {3022, 4124, 164476, 1838, 1262, 5, false}, // RT90 0 gon
    {3023, 4124, 164501, 1839, 1263, 5, false}, // RT90 2.5 gon O
    {3024, 4124, 164573, 1840, 1264, 5, false}, // RT90 5 gon O
    {3025, 4308, 164372, 1836, 1259, 5, false}, // RT38 7.5 gon V
    {3026, 4308, 164344, 1837, 1260, 5, false}, // RT38 5 gon V
    {3027, 4308, 164292, 2319, 1261, 5, false}, // RT38 2.5 gon V
    {3028, 4308, 164237, 1838, 1262, 5, false}, // RT38 0 gon
    {3029, 4308, 164262, 1839, 1263, 5, false}, // RT38 2.5 gon O
    {3030, 4308, 164316, 1840, 1264, 5, false}, // RT38 5 gon O
    {3031, 4326, 204691, 2378, 5, 4, false}, // WGS 84 / Antarctic Polar Stereographic
    {3032, 4326, 204799, 2379, 119, 4, false}, // WGS 84 / Australian Antarctic Polar Stereographic
    {3033, 4326, 204773, 2380, 1277, 4, false}, // WGS 84 / Australian Antarctic Lambert
    {3034, 4258, 43758, 2371, 1278, 5, false}, // ETRS89-extended / LCC Europe
    {3035, 4258, 43734, 2372, 1278, 5, false}, // ETRS89-extended / LAEA Europe
    {3036, 4130, 92250, 1434, 1960, 4, false}, // Moznet / UTM zone 36S
    {3037, 4130, 92263, 1435, 1961, 4, false}, // Moznet / UTM zone 37S
    {3038, 4258, 43065, 1335, 1268, 5, true}, // ETRS89 / TM26
    {3039, 4258, 43075, 1336, 1269, 5, true}, // ETRS89 / TM27
    {3040, 4258, 43154, 1337, 907, 5, false}, // ETRS89 / UTM zone 28N (N-E)
    {3041, 4258, 43185, 1338, 908, 5, false}, // ETRS89 / UTM zone 29N (N-E)
    {3042, 4258, 43215, 1339, 909, 5, false}, // ETRS89 / UTM zone 30N (N-E)
    {3043, 4258, 43245, 1340, 910, 5, false}, // ETRS89 / UTM zone 31N (N-E)
    {3044, 4258, 43314, 1341, 911, 5, false}, // ETRS89 / UTM zone 32N (N-E)
    {3045, 4258, 43383, 1342, 912, 5, false}, // ETRS89 / UTM zone 33N (N-E)
    {3046, 4258, 43439, 1343, 913, 5, false}, // ETRS89 / UTM zone 34N (N-E)
    {3047, 4258, 43470, 1344, 914, 5, false}, // ETRS89 / UTM zone 35N (N-E)
    {3048, 4258, 43501, 1345, 915, 5, false}, // ETRS89 / UTM zone 36N (N-E)
    {3049, 4258, 43532, 1346, 916, 5, false}, // ETRS89 / UTM zone 37N (N-E)
    {3050, 4258, 43121, 1347, 1273, 5, true}, // ETRS89 / TM38
    {3051, 4258, 43131, 1348, 1274, 5, true}, // ETRS89 / TM39
    {3052, 4657, 166399, 2373, 1502, 2, false}, // Reykjavik 1900 / Lambert 1900
    {3053, 4658, 64488, 2374, 1502, 2, false}, // Hjorsey 1955 / Lambert 1955
    {3054, 4658, 64507, 1335, 1265, 4, false}, // Hjorsey 1955 / UTM zone 26N
    {3055, 4658, 64524, 1336, 1266, 4, false}, // Hjorsey 1955 / UTM zone 27N
    {3056, 4658, 64541, 1337, 1267, 4, false}, // Hjorsey 1955 / UTM zone 28N
    {3057, 4659, 67173, 2375, 44, 4, false}, // ISN93 / Lambert 1993
    {3058, 4660, 64233, 2377, 1275, 5, false}, // Helle 1954 / Jan Mayen Grid
    {3059, 4661, 79854, 2376, 57, 5, false}, // LKS92 / Latvia TM
    {3060, 4662, 66429, 1456, 1239, 4, false}, // IGN72 Grande Terre / UTM zone 58S
    {3061, 4663, 144547, 1337, 145, 4, false}, // Porto Santo 1995 / UTM zone 28N
    {3062, 4664, 17152, 1335, 170, 4, false}, // Azores Oriental 1995 / UTM zone 26N
    {3063, 4665, 16999, 1335, 134, 4, false}, // Azores Central 1995 / UTM zone 26N
    {3064, 4670, 65979, 1341, 509, 4, false}, // IGM95 / UTM zone 32N
    {3065, 4670, 65992, 1342, 2173, 4, false}, // IGM95 / UTM zone 33N
    {3066, 4230, 38844, 2381, 53, 4, false}, // ED50 / Jordan TM
    {3067, 4258, 43085, 1371, 35, 4, false}, // ETRS89 / TM35FIN(E,N)
    {3068, 4314, 36316, 2382, 1280, 5, false}, // DHDN / Soldner Berlin
    {3069, 4267, 94947, 1147, 216, 4, false}, // NAD27 / Wisconsin Transverse Mercator
    {3070, 4269, 99713, 1151, 216, 4, false}, // NAD83 / Wisconsin Transverse Mercator
    {3071, 4152, 119163, 1151, 216, 4, false}, // NAD83(HARN) / Wisconsin Transverse Mercator
    {3072, 4269, 97599, 1000, 1288, 4, false}, // NAD83 / Maine CS2000 East
    {3073, 4269, 97586, 1001, 1287, 4, true}, // NAD83 / Maine CS2000 Central
    {3074, 4269, 97612, 1002, 1286, 4, false}, // NAD83 / Maine CS2000 West
    {3075, 4152, 115189, 1000, 1288, 4, false}, // NAD83(HARN) / Maine CS2000 East
    {3076, 4152, 115176, 1001, 1287, 4, true}, // NAD83(HARN) / Maine CS2000 Central
    {3077, 4152, 115202, 1002, 1286, 4, false}, // NAD83(HARN) / Maine CS2000 West
    {3078, 4269, 97812, 1019, 202, 4, false}, // NAD83 / Michigan Oblique Mercator
    {3079, 4152, 115402, 1019, 202, 4, false}, // NAD83(HARN) / Michigan Oblique Mercator
    {3080, 4267, 94420, 1117, 213, 6, false}, // NAD27 / Shackleford
    {3081, 4269, 99133, 1116, 213, 4, false}, // NAD83 / Texas State Mapping System
    {3082, 4269, 99016, 1118, 213, 4, false}, // NAD83 / Texas Centric Lambert Conformal
    {3083, 4269, 98994, 1119, 213, 4, false}, // NAD83 / Texas Centric Albers Equal Area
    {3084, 4152, 116426, 1118, 213, 4, false}, // NAD83(HARN) / Texas Centric Lambert Conformal
    {3085, 4152, 116404, 1119, 213, 4, false}, // NAD83(HARN) / Texas Centric Albers Equal Area
    {3086, 4269, 96798, 956, 196, 4, false}, // NAD83 / Florida GDL Albers
    {3087, 4152, 114611, 956, 196, 4, false}, // NAD83(HARN) / Florida GDL Albers
    {3088, 4269, 97326, 985, 199, 4, false}, // NAD83 / Kentucky Single Zone
    {3089, 4269, 97343, 1279, 199, 8, false}, // NAD83 / Kentucky Single Zone (ftUS)
    {3090, 4152, 115067, 985, 199, 4, false}, // NAD83(HARN) / Kentucky Single Zone
    {3091, 4152, 115084, 1279, 199, 8, false}, // NAD83(HARN) / Kentucky Single Zone (ftUS)
    {3092, 4301, 186780, 1360, 1281, 4, false}, // Tokyo / UTM zone 51N
    {3093, 4301, 186793, 1361, 1282, 4, false}, // Tokyo / UTM zone 52N
    {3094, 4301, 186806, 1362, 1283, 4, false}, // Tokyo / UTM zone 53N
    {3095, 4301, 186819, 1363, 1284, 4, false}, // Tokyo / UTM zone 54N
    {3096, 4301, 186832, 1364, 1285, 4, false}, // Tokyo / UTM zone 55N
    {3097, 4612, 72600, 1360, 1981, 4, false}, // JGD2000 / UTM zone 51N
    {3098, 4612, 72613, 1361, 1982, 4, false}, // JGD2000 / UTM zone 52N
    {3099, 4612, 72626, 1362, 1983, 4, false}, // JGD2000 / UTM zone 53N
    {3100, 4612, 72639, 1363, 1984, 4, false}, // JGD2000 / UTM zone 54N
    {3101, 4612, 72652, 1364, 1985, 4, false}, // JGD2000 / UTM zone 55N
    {3102, 4169, 6260, 1280, 1409, 8, false}, // American Samoa 1962 / American Samoa Lambert
    {3103, 4681, 88423, 1337, 1293, 4, true}, // Mauritania 1999 / UTM zone 28N
    {3104, 4681, 88440, 1338, 1292, 4, true}, // Mauritania 1999 / UTM zone 29N
    {3105, 4681, 88457, 1339, 1291, 4, true}, // Mauritania 1999 / UTM zone 30N
    {3106, 4682, 62665, 1598, 1479, 4, false}, // Gulshan 303 / TM 90 NE
    {3107, 4283, 52406, 1858, 1295, 4, false}, // GDA94 / SA Lambert
    {3108, 4258, 42582, 2384, 1297, 4, false}, // ETRS89 / Guernsey Grid
    {3109, 4258, 42599, 2385, 1296, 4, false}, // ETRS89 / Jersey Transverse Mercator
    {3110, 4202, 3536, 1859, 1068, 4, false}, // AGD66 / Vicgrid66
    {3111, 4283, 52421, 1860, 1068, 4, false}, // GDA94 / Vicgrid
    {3112, 4283, 52130, 1861, 1102, 4, false}, // GDA94 / Geoscience Australia Lambert
    {3113, 4283, 52093, 1862, 1298, 4, false}, // GDA94 / BCSG02
    {3114, 4686, 83469, 2063, 1391, 5, false}, // MAGNA-SIRGAS / Colombia Far West zone
    {3115, 4686, 83495, 2064, 1390, 5, false}, // MAGNA-SIRGAS / Colombia West zone
    {3116, 4686, 83394, 2065, 394, 5, false}, // MAGNA-SIRGAS / Colombia Bogota zone
    {3117, 4686, 83420, 2066, 395, 5, false}, // MAGNA-SIRGAS / Colombia East Central zone
    {3118, 4686, 83446, 2067, 396, 5, false}, // MAGNA-SIRGAS / Colombia East zone
    {3119, 4192, 38227, 2209, 1093, 4, false}, // Douala 1948 / AEF west
    {3120, 4179, 152937, 2184, 311, 5, false}, // Pulkovo 1942(58) / Poland zone I
    {3121, 4683, 140960, 2116, 491, 4, false}, // PRS92 / Philippines zone 1
    {3122, 4683, 140976, 2117, 492, 4, false}, // PRS92 / Philippines zone 2
    {3123, 4683, 140992, 2118, 493, 4, false}, // PRS92 / Philippines zone 3
    {3124, 4683, 141008, 2119, 494, 4, false}, // PRS92 / Philippines zone 4
    {3125, 4683, 141024, 2120, 495, 4, false}, // PRS92 / Philippines zone 5
    {3126, 4258, 42124, 2124, 1392, 5, false}, // ETRS89 / ETRS-GK19FIN
    {3127, 4258, 42141, 2125, 1393, 5, false}, // ETRS89 / ETRS-GK20FIN
    {3128, 4258, 42158, 2126, 1394, 5, false}, // ETRS89 / ETRS-GK21FIN
    {3129, 4258, 42176, 2127, 1395, 5, false}, // ETRS89 / ETRS-GK22FIN
    {3130, 4258, 42194, 2128, 1396, 5, false}, // ETRS89 / ETRS-GK23FIN
    {3131, 4258, 42212, 2129, 1397, 5, false}, // ETRS89 / ETRS-GK24FIN
    {3132, 4258, 42230, 2130, 1398, 5, false}, // ETRS89 / ETRS-GK25FIN
    {3133, 4258, 42248, 2131, 1399, 5, false}, // ETRS89 / ETRS-GK26FIN
    {3134, 4258, 42266, 2136, 1400, 5, false}, // ETRS89 / ETRS-GK27FIN
    {3135, 4258, 42283, 2137, 1401, 5, false}, // ETRS89 / ETRS-GK28FIN
    {3136, 4258, 42301, 2138, 1402, 5, false}, // ETRS89 / ETRS-GK29FIN
    {3137, 4258, 42319, 2139, 1403, 5, false}, // ETRS89 / ETRS-GK30FIN
    {3138, 4258, 42336, 2140, 1404, 5, false}, // ETRS89 / ETRS-GK31FIN
    {3139, 4748, 199062, 2271, 1580, 21, false}, // Vanua Levu 1915 / Vanua Levu Grid
    {3140, 4752, 200548, 2272, 1466, 21, false}, // Viti Levu 1912 / Viti Levu Grid
    {3141, 4721, 48332, 1458, 1578, 4, false}, // Fiji 1956 / UTM zone 60S
    {3142, 4721, 48318, 1399, 1579, 4, false}, // Fiji 1956 / UTM zone 1S
    {3143, 4720, 48355, 2273, 34, 4, true}, // Fiji 1986 / Fiji Map Grid
    {3144, 4741, 47520, 2263, 1494, 3, false}, // FD54 / Faroe Lambert
    {3145, 4258, 42354, 2263, 1494, 3, false}, // ETRS89 / Faroe Lambert
    {3146, 4284, 149253, 1509, 1581, 5, true}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 6
    {3147, 4284, 146675, 1574, 1581, 5, true}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 18E
    {3148, 4131, 68820, 1357, 338, 4, false}, // Indian 1960 / UTM zone 48N
    {3149, 4131, 68833, 1358, 251, 4, false}, // Indian 1960 / UTM zone 49N
    {3150, 4200, 157305, 1509, 1581, 5, true}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 6
    {3151, 4200, 154727, 1574, 1581, 5, true}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 18E
    {3152, 4619, 34644, 2269, 1586, 5, false}, // ST74
    {3153, 4617, 110891, 2370, 1246, 4, false}, // NAD83(CSRS) / BC Albers
    {3154, 4617, 111722, 1316, 1587, 4, false}, // NAD83(CSRS) / UTM zone 7N
    {3155, 4617, 111732, 1317, 1588, 4, false}, // NAD83(CSRS) / UTM zone 8N
    {3156, 4617, 111742, 1318, 1589, 4, false}, // NAD83(CSRS) / UTM zone 9N
    {3157, 4617, 111559, 1319, 1590, 4, false}, // NAD83(CSRS) / UTM zone 10N
    {3158, 4617, 111602, 1323, 1591, 4, false}, // NAD83(CSRS) / UTM zone 14N
    {3159, 4617, 111613, 1324, 1592, 4, false}, // NAD83(CSRS) / UTM zone 15N
    {3160, 4617, 111624, 1325, 1593, 4, false}, // NAD83(CSRS) / UTM zone 16N
    {3161, 4269, 98640, 2268, 190, 4, false}, // NAD83 / Ontario MNR Lambert
    {3162, 4617, 111424, 2268, 190, 4, false}, // NAD83(CSRS) / Ontario MNR Lambert
    {3163, 4749, 162617, 2367, 1607, 4, false}, // RGNC91-93 / Lambert New Caledonia
    {3164, 4750, 175987, 1456, 1230, 4, false}, // ST87 Ouvea / UTM zone 58S
    {3165, 4644, 124792, 2266, 1240, 4, false}, // NEA74 Noumea / Noumea Lambert
    {3166, 4644, 124815, 2267, 1240, 4, false}, // NEA74 Noumea / Noumea Lambert 2
    {3167, 4751, 77357, 2264, 483, 26, false}, // Kertau (RSO) / RSO Malaya (ch)
    {3168, 4751, 77379, 2265, 483, 4, false}, // Kertau (RSO) / RSO Malaya (m)
    {3169, 4749, 162641, 1455, 1608, 4, false}, // RGNC91-93 / UTM zone 57S
    {3170, 4749, 162658, 1456, 1609, 4, false}, // RGNC91-93 / UTM zone 58S
    {3171, 4749, 162675, 1457, 1610, 4, false}, // RGNC91-93 / UTM zone 59S
    {3172, 4641, 66200, 1457, 1612, 4, false}, // IGN53 Mare / UTM zone 59S
    {3173, 4753, 221521, 2270, 1494, 3, false}, // fk89 / Faroe Lambert FK89
    {3174, 4269, 96906, 1301, 1641, 4, false}, // NAD83 / Great Lakes Albers
    {3175, 4269, 96921, 1302, 1642, 4, false}, // NAD83 / Great Lakes and St Lawrence Albers
    {3176, 4131, 68806, 1599, 292, 4, false}, // Indian 1960 / TM 106 NE
    {3177, 4754, 79603, 2205, 58, 4, false}, // LGD2006 / Libya TM
    {3178, 4747, 53283, 1327, 1626, 4, false}, // GR96 / UTM zone 18N
    {3179, 4747, 53295, 1328, 1627, 4, false}, // GR96 / UTM zone 19N
    {3180, 4747, 53307, 1329, 1628, 4, false}, // GR96 / UTM zone 20N
    {3181, 4747, 53318, 1330, 1629, 4, false}, // GR96 / UTM zone 21N
    {3182, 4747, 53330, 1331, 1630, 4, false}, // GR96 / UTM zone 22N
    {3183, 4747, 53342, 1332, 1631, 4, false}, // GR96 / UTM zone 23N
    {3184, 4747, 53354, 1333, 1632, 4, false}, // GR96 / UTM zone 24N
    {3185, 4747, 53366, 1334, 1633, 4, false}, // GR96 / UTM zone 25N
    {3186, 4747, 53378, 1335, 1634, 4, false}, // GR96 / UTM zone 26N
    {3187, 4747, 53390, 1336, 1635, 4, false}, // GR96 / UTM zone 27N
    {3188, 4747, 53402, 1337, 1636, 4, false}, // GR96 / UTM zone 28N
    {3189, 4747, 53414, 1338, 1637, 4, false}, // GR96 / UTM zone 29N
    {3190, 4754, 79680, 2196, 268, 4, false}, // LGD2006 / Libya TM zone 5
    {3191, 4754, 79695, 2197, 269, 4, false}, // LGD2006 / Libya TM zone 6
    {3192, 4754, 79710, 2198, 270, 4, false}, // LGD2006 / Libya TM zone 7
    {3193, 4754, 79725, 2199, 271, 4, false}, // LGD2006 / Libya TM zone 8
    {3194, 4754, 79740, 2200, 272, 4, false}, // LGD2006 / Libya TM zone 9
    {3195, 4754, 79616, 2201, 273, 4, false}, // LGD2006 / Libya TM zone 10
    {3196, 4754, 79632, 2202, 274, 4, false}, // LGD2006 / Libya TM zone 11
    {3197, 4754, 79648, 2203, 275, 4, false}, // LGD2006 / Libya TM zone 12
    {3198, 4754, 79664, 2204, 276, 4, false}, // LGD2006 / Libya TM zone 13
    {3199, 4754, 79755, 1341, 1972, 4, false}, // LGD2006 / UTM zone 32N
    {3200, 4132, 47553, 2299, 133, 4, false}, // FD58 / Iraq zone
    {3201, 4754, 79768, 1342, 1973, 4, false}, // LGD2006 / UTM zone 33N
    {3202, 4754, 79781, 1343, 1974, 4, false}, // LGD2006 / UTM zone 34N
    {3203, 4754, 79794, 1344, 1965, 4, false}, // LGD2006 / UTM zone 35N
    {3204, 4326, 207023, 1726, 1299, 4, false}, // WGS 84 / SCAR IMW SP19-20
    {3205, 4326, 207043, 1727, 1300, 4, false}, // WGS 84 / SCAR IMW SP21-22
    {3206, 4326, 207064, 1728, 1301, 4, false}, // WGS 84 / SCAR IMW SP23-24
    {3207, 4326, 207085, 1729, 1302, 4, false}, // WGS 84 / SCAR IMW SQ01-02
    {3208, 4326, 207106, 1730, 1303, 4, false}, // WGS 84 / SCAR IMW SQ19-20
    {3209, 4326, 207126, 1731, 1304, 4, false}, // WGS 84 / SCAR IMW SQ21-22
    {3210, 4326, 207147, 1732, 1305, 4, false}, // WGS 84 / SCAR IMW SQ37-38
    {3211, 4326, 207168, 1733, 1306, 4, false}, // WGS 84 / SCAR IMW SQ39-40
    {3212, 4326, 207189, 1734, 1307, 4, false}, // WGS 84 / SCAR IMW SQ41-42
    {3213, 4326, 207210, 1735, 1308, 4, false}, // WGS 84 / SCAR IMW SQ43-44
    {3214, 4326, 207231, 1736, 1309, 4, false}, // WGS 84 / SCAR IMW SQ45-46
    {3215, 4326, 207252, 1737, 1310, 4, false}, // WGS 84 / SCAR IMW SQ47-48
    {3216, 4326, 207273, 1738, 1311, 4, false}, // WGS 84 / SCAR IMW SQ49-50
    {3217, 4326, 207294, 1739, 1312, 4, false}, // WGS 84 / SCAR IMW SQ51-52
    {3218, 4326, 207315, 1740, 1313, 4, false}, // WGS 84 / SCAR IMW SQ53-54
    {3219, 4326, 207336, 1741, 1314, 4, false}, // WGS 84 / SCAR IMW SQ55-56
    {3220, 4326, 207357, 1742, 1315, 4, false}, // WGS 84 / SCAR IMW SQ57-58
    {3221, 4326, 207378, 1743, 1316, 4, false}, // WGS 84 / SCAR IMW SR13-14
    {3222, 4326, 207399, 1744, 1317, 4, false}, // WGS 84 / SCAR IMW SR15-16
    {3223, 4326, 207420, 1745, 1318, 4, false}, // WGS 84 / SCAR IMW SR17-18
    {3224, 4326, 207441, 1746, 1319, 4, false}, // WGS 84 / SCAR IMW SR19-20
    {3225, 4326, 207461, 1747, 1320, 4, false}, // WGS 84 / SCAR IMW SR27-28
    {3226, 4326, 207481, 1748, 1321, 4, false}, // WGS 84 / SCAR IMW SR29-30
    {3227, 4326, 207502, 1749, 1322, 4, false}, // WGS 84 / SCAR IMW SR31-32
    {3228, 4326, 207523, 1750, 1323, 4, false}, // WGS 84 / SCAR IMW SR33-34
    {3229, 4326, 207544, 1751, 1324, 4, false}, // WGS 84 / SCAR IMW SR35-36
    {3230, 4326, 207565, 1752, 1325, 4, false}, // WGS 84 / SCAR IMW SR37-38
    {3231, 4326, 207586, 1753, 1326, 4, false}, // WGS 84 / SCAR IMW SR39-40
    {3232, 4326, 207607, 1754, 1327, 4, false}, // WGS 84 / SCAR IMW SR41-42
    {3233, 4326, 207628, 1755, 1328, 4, false}, // WGS 84 / SCAR IMW SR43-44
    {3234, 4326, 207649, 1756, 1329, 4, false}, // WGS 84 / SCAR IMW SR45-46
    {3235, 4326, 207670, 1757, 1330, 4, false}, // WGS 84 / SCAR IMW SR47-48
    {3236, 4326, 207691, 1758, 1331, 4, false}, // WGS 84 / SCAR IMW SR49-50
    {3237, 4326, 207712, 1759, 1332, 4, false}, // WGS 84 / SCAR IMW SR51-52
    {3238, 4326, 207733, 1760, 1333, 4, false}, // WGS 84 / SCAR IMW SR53-54
    {3239, 4326, 207754, 1761, 1334, 4, false}, // WGS 84 / SCAR IMW SR55-56
    {3240, 4326, 207775, 1762, 1335, 4, false}, // WGS 84 / SCAR IMW SR57-58
    {3241, 4326, 207796, 1763, 1336, 4, false}, // WGS 84 / SCAR IMW SR59-60
    {3242, 4326, 207817, 1764, 1337, 4, false}, // WGS 84 / SCAR IMW SS04-06
    {3243, 4326, 207838, 1765, 1338, 4, false}, // WGS 84 / SCAR IMW SS07-09
    {3244, 4326, 207859, 1766, 1339, 4, false}, // WGS 84 / SCAR IMW SS10-12
    {3245, 4326, 207879, 1767, 1340, 4, false}, // WGS 84 / SCAR IMW SS13-15
    {3246, 4326, 207900, 1768, 1341, 4, false}, // WGS 84 / SCAR IMW SS16-18
    {3247, 4326, 207921, 1769, 1342, 4, false}, // WGS 84 / SCAR IMW SS19-21
    {3248, 4326, 207941, 1770, 1343, 4, false}, // WGS 84 / SCAR IMW SS25-27
    {3249, 4326, 207962, 1771, 1344, 4, false}, // WGS 84 / SCAR IMW SS28-30
    {3250, 4326, 207983, 1772, 1345, 4, false}, // WGS 84 / SCAR IMW SS31-33
    {3251, 4326, 208004, 1773, 1346, 4, false}, // WGS 84 / SCAR IMW SS34-36
    {3252, 4326, 208025, 1774, 1347, 4, false}, // WGS 84 / SCAR IMW SS37-39
    {3253, 4326, 208046, 1775, 1348, 4, false}, // WGS 84 / SCAR IMW SS40-42
    {3254, 4326, 208067, 1776, 1349, 4, false}, // WGS 84 / SCAR IMW SS43-45
    {3255, 4326, 208088, 1777, 1350, 4, false}, // WGS 84 / SCAR IMW SS46-48
    {3256, 4326, 208109, 1778, 1351, 4, false}, // WGS 84 / SCAR IMW SS49-51
    {3257, 4326, 208130, 1779, 1352, 4, false}, // WGS 84 / SCAR IMW SS52-54
    {3258, 4326, 208151, 1780, 1353, 4, false}, // WGS 84 / SCAR IMW SS55-57
    {3259, 4326, 208172, 1781, 1354, 4, false}, // WGS 84 / SCAR IMW SS58-60
    {3260, 4326, 208193, 1782, 1355, 4, false}, // WGS 84 / SCAR IMW ST01-04
    {3261, 4326, 208214, 1783, 1356, 4, false}, // WGS 84 / SCAR IMW ST05-08
    {3262, 4326, 208235, 1784, 1357, 4, false}, // WGS 84 / SCAR IMW ST09-12
    {3263, 4326, 208256, 1785, 1358, 4, false}, // WGS 84 / SCAR IMW ST13-16
    {3264, 4326, 208277, 1786, 1359, 4, false}, // WGS 84 / SCAR IMW ST17-20
    {3265, 4326, 208298, 1787, 1360, 4, false}, // WGS 84 / SCAR IMW ST21-24
    {3266, 4326, 208319, 1788, 1361, 4, false}, // WGS 84 / SCAR IMW ST25-28
    {3267, 4326, 208340, 1789, 1362, 4, false}, // WGS 84 / SCAR IMW ST29-32
    {3268, 4326, 208361, 1790, 1363, 4, false}, // WGS 84 / SCAR IMW ST33-36
    {3269, 4326, 208382, 1791, 1364, 4, false}, // WGS 84 / SCAR IMW ST37-40
    {3270, 4326, 208403, 1792, 1365, 4, false}, // WGS 84 / SCAR IMW ST41-44
    {3271, 4326, 208424, 1793, 1366, 4, false}, // WGS 84 / SCAR IMW ST45-48
    {3272, 4326, 208445, 1794, 1367, 4, false}, // WGS 84 / SCAR IMW ST49-52
    {3273, 4326, 208466, 1795, 1368, 4, false}, // WGS 84 / SCAR IMW ST53-56
    {3274, 4326, 208487, 1796, 1369, 4, false}, // WGS 84 / SCAR IMW ST57-60
    {3275, 4326, 208508, 1797, 1370, 4, false}, // WGS 84 / SCAR IMW SU01-05
    {3276, 4326, 208529, 1798, 1371, 4, false}, // WGS 84 / SCAR IMW SU06-10
    {3277, 4326, 208550, 1799, 1372, 4, false}, // WGS 84 / SCAR IMW SU11-15
    {3278, 4326, 208570, 1800, 1373, 4, false}, // WGS 84 / SCAR IMW SU16-20
    {3279, 4326, 208591, 1801, 1374, 4, false}, // WGS 84 / SCAR IMW SU21-25
    {3280, 4326, 208612, 1802, 1375, 4, false}, // WGS 84 / SCAR IMW SU26-30
    {3281, 4326, 208633, 1803, 1376, 4, false}, // WGS 84 / SCAR IMW SU31-35
    {3282, 4326, 208654, 1804, 1377, 4, false}, // WGS 84 / SCAR IMW SU36-40
    {3283, 4326, 208675, 1805, 1378, 4, false}, // WGS 84 / SCAR IMW SU41-45
    {3284, 4326, 208696, 1806, 1379, 4, false}, // WGS 84 / SCAR IMW SU46-50
    {3285, 4326, 208717, 1807, 1380, 4, false}, // WGS 84 / SCAR IMW SU51-55
    {3286, 4326, 208738, 1808, 1381, 4, false}, // WGS 84 / SCAR IMW SU56-60
    {3287, 4326, 208759, 1809, 1382, 4, false}, // WGS 84 / SCAR IMW SV01-10
    {3288, 4326, 208780, 1810, 1383, 4, false}, // WGS 84 / SCAR IMW SV11-20
    {3289, 4326, 208800, 1811, 1384, 4, false}, // WGS 84 / SCAR IMW SV21-30
    {3290, 4326, 208821, 1812, 1385, 4, false}, // WGS 84 / SCAR IMW SV31-40
    {3291, 4326, 208842, 1813, 1386, 4, false}, // WGS 84 / SCAR IMW SV41-50
    {3292, 4326, 208863, 1814, 1387, 4, false}, // WGS 84 / SCAR IMW SV51-60
    {3293, 4326, 208884, 1815, 1388, 4, false}, // WGS 84 / SCAR IMW SW01-60
    {3294, 4326, 209206, 1816, 1389, 4, false}, // WGS 84 / USGS Transantarctic Mountains
    {3295, 4675, 62442, 1303, 1408, 4, false}, // Guam 1963 / Yap Islands
    {3296, 4687, 162781, 1403, 1416, 4, false}, // RGPF / UTM zone 5S
    {3297, 4687, 162792, 1404, 1417, 4, false}, // RGPF / UTM zone 6S
    {3298, 4687, 162803, 1405, 1418, 4, false}, // RGPF / UTM zone 7S
    {3299, 4687, 162814, 1406, 1419, 4, false}, // RGPF / UTM zone 8S
    {3300, 4133, 44843, 2327, 1492, 5, false}, // Estonian Coordinate System of 1992
    {3301, 4180, 44864, 2327, 32, 5, false}, // Estonian Coordinate System of 1997
    {3302, 4689, 66330, 1405, 1424, 4, false}, // IGN63 Hiva Oa / UTM zone 7S
    {3303, 4688, 47949, 1405, 1425, 4, false}, // Fatu Iva 72 / UTM zone 7S
    {3304, 4690, 184801, 1404, 1420, 4, false}, // Tahiti 79 / UTM zone 6S
    {3305, 4691, 91874, 1404, 1421, 4, false}, // Moorea 87 / UTM zone 6S
    {3306, 4692, 88274, 1403, 1422, 4, false}, // Maupiti 83 / UTM zone 5S
    {3307, 4693, 127434, 1348, 1075, 4, false}, // Nakhl-e Ghanem / UTM zone 39N
    {3308, 4283, 52391, 1863, 1426, 4, false}, // GDA94 / NSW Lambert
    {3309, 4267, 93248, 933, 193, 4, false}, // NAD27 / California Albers
    {3310, 4269, 96452, 933, 193, 4, false}, // NAD83 / California Albers
    {3311, 4152, 114281, 933, 193, 4, false}, // NAD83(HARN) / California Albers
    {3312, 4623, 26779, 1330, 1850, 4, false}, // CSG67 / UTM zone 21N
    {3313, 4624, 162384, 1330, 1429, 4, false}, // RGFG95 / UTM zone 21N
    {3314, 4695, 76848, 1865, 1430, 4, true}, // Katanga 1955 / Katanga Lambert
    {3315, 4695, 76868, 1866, 1430, 4, true}, // Katanga 1955 / Katanga TM
    {3316, 4696, 76675, 1872, 2527, 4, false}, // Kasai 1953 / Congo TM zone 22
    {3317, 4696, 76692, 1873, 1439, 4, false}, // Kasai 1953 / Congo TM zone 24
    {3318, 4697, 65563, 1867, 1433, 4, false}, // IGC 1962 / Congo TM zone 12
    {3319, 4697, 65579, 1868, 1434, 4, false}, // IGC 1962 / Congo TM zone 14
    {3320, 4697, 65595, 1869, 1435, 4, false}, // IGC 1962 / Congo TM zone 16
    {3321, 4697, 65611, 1870, 1436, 4, false}, // IGC 1962 / Congo TM zone 18
    {3322, 4697, 65627, 1871, 1437, 4, false}, // IGC 1962 / Congo TM zone 20
    {3323, 4697, 65643, 1872, 1438, 4, false}, // IGC 1962 / Congo TM zone 22
    {3324, 4697, 65659, 1873, 1439, 4, false}, // IGC 1962 / Congo TM zone 24
    {3325, 4697, 65675, 1874, 1440, 4, false}, // IGC 1962 / Congo TM zone 26
    {3326, 4697, 65691, 1875, 1441, 4, false}, // IGC 1962 / Congo TM zone 28
    {3327, 4697, 65707, 1876, 1442, 4, false}, // IGC 1962 / Congo TM zone 30
    {3328, 4179, 152742, 2190, 1516, 5, false}, // Pulkovo 1942(58) / GUGiK-80
    {3329, 4179, 152533, 1508, 1718, 5, false}, // Pulkovo 1942(58) / 3-degree Gauss-Kruger zone 5
    {3330, 4179, 152606, 1509, 1719, 5, false}, // Pulkovo 1942(58) / 3-degree Gauss-Kruger zone 6
    {3331, 4179, 152640, 1510, 1721, 5, false}, // Pulkovo 1942(58) / 3-degree Gauss-Kruger zone 7
    {3332, 4179, 152674, 1511, 1723, 5, false}, // Pulkovo 1942(58) / 3-degree Gauss-Kruger zone 8
    {3333, 4179, 152824, 1474, 578, 5, false}, // Pulkovo 1942(58) / Gauss-Kruger zone 3
    {3334, 4179, 152883, 1475, 1715, 5, false}, // Pulkovo 1942(58) / Gauss-Kruger zone 4
    {3335, 4179, 152910, 1476, 1717, 5, false}, // Pulkovo 1942(58) / Gauss-Kruger zone 5
    {3336, 4698, 66078, 1440, 1233, 4, false}, // IGN 1962 Kerguelen / UTM zone 42S
    {3337, 4699, 80858, 2292, 1476, 4, false}, // Le Pouce 1934 / Mauritius Grid
    {3338, 4269, 95806, 1176, 157, 4, false}, // NAD83 / Alaska Albers
    {3339, 4701, 65772, 1867, 1433, 4, false}, // IGCB 1955 / Congo TM zone 12
    {3340, 4701, 65789, 1868, 1434, 4, false}, // IGCB 1955 / Congo TM zone 14
    {3341, 4701, 65806, 1869, 2022, 4, false}, // IGCB 1955 / Congo TM zone 16
    {3342, 4701, 65823, 1431, 1443, 4, false}, // IGCB 1955 / UTM zone 33S
    {3343, 4702, 88423, 1337, 1964, 4, false}, // Mauritania 1999 / UTM zone 28N
    {3344, 4702, 88440, 1338, 1292, 4, false}, // Mauritania 1999 / UTM zone 29N
    {3345, 4702, 88457, 1339, 1291, 4, false}, // Mauritania 1999 / UTM zone 30N
    {3346, 4669, 79885, 2323, 60, 5, false}, // LKS94 / Lithuania TM
    {3347, 4269, 98912, 2290, 16, 4, false}, // NAD83 / Statistics Canada Lambert
    {3348, 4617, 111518, 2290, 16, 4, false}, // NAD83(CSRS) / Statistics Canada Lambert
    {3349, 4326, 206941, 2291, 1444, 4, true}, // WGS 84 / PDC Mercator
    {3350, 4284, 149609, 2231, 1445, 5, false}, // Pulkovo 1942 / CS63 zone C0
    {3351, 4284, 149627, 2232, 1446, 5, false}, // Pulkovo 1942 / CS63 zone C1
    {3352, 4284, 149645, 2233, 1447, 5, false}, // Pulkovo 1942 / CS63 zone C2
    {3353, 4704, 89419, 1430, 1451, 4, false}, // Mhast (onshore) / UTM zone 32S
    {3354, 4705, 89396, 1430, 1452, 4, false}, // Mhast (offshore) / UTM zone 32S
    {3355, 4706, 44378, 2073, 1073, 4, false}, // Egypt Gulf of Suez S-650 TL / Red Belt
    {3356, 4723, 61268, 1326, 1457, 4, true}, // Grand Cayman 1959 / UTM zone 17N
    {3357, 4726, 81778, 1326, 1458, 4, true}, // Little Cayman 1961 / UTM zone 17N
    {3358, 4152, 115985, 1071, 208, 4, false}, // NAD83(HARN) / North Carolina
    {3359, 4152, 115993, 1250, 208, 6, true}, // NAD83(HARN) / North Carolina (ftUS)
    {3360, 4152, 116290, 1099, 211, 4, false}, // NAD83(HARN) / South Carolina
    {3361, 4152, 116298, 1259, 211, 6, false}, // NAD83(HARN) / South Carolina (ft)
    {3362, 4152, 116191, 1093, 1030, 4, false}, // NAD83(HARN) / Pennsylvania North
    {3363, 4152, 116203, 1257, 1030, 8, false}, // NAD83(HARN) / Pennsylvania North (ftUS)
    {3364, 4152, 116220, 1094, 1031, 4, false}, // NAD83(HARN) / Pennsylvania South
    {3365, 4152, 116233, 1258, 1031, 8, false}, // NAD83(HARN) / Pennsylvania South (ftUS)
    {3366, 4738, 64623, 2289, 42, 5, true}, // Hong Kong 1963 Grid System
    {3367, 4700, 66111, 1337, 1293, 4, false}, // IGN Astro 1960 / UTM zone 28N
    {3368, 4700, 66130, 1338, 1292, 4, false}, // IGN Astro 1960 / UTM zone 29N
    {3369, 4700, 66149, 1339, 1291, 4, false}, // IGN Astro 1960 / UTM zone 30N
    {3370, 4267, 94735, 1368, 1554, 4, false}, // NAD27 / UTM zone 59N
    {3371, 4267, 94754, 1369, 1555, 4, false}, // NAD27 / UTM zone 60N
    {3372, 4269, 99312, 1368, 1554, 4, false}, // NAD83 / UTM zone 59N
    {3373, 4269, 99327, 1369, 1555, 4, false}, // NAD83 / UTM zone 60N
    {3374, 4741, 47535, 1338, 1494, 4, false}, // FD54 / UTM zone 29N
    {3375, 4742, 52606, 2288, 1978, 4, false}, // GDM2000 / Peninsula RSO
    {3376, 4742, 52522, 2287, 1997, 4, false}, // GDM2000 / East Malaysia BRSO
    {3377, 4742, 52540, 2286, 1558, 4, false}, // GDM2000 / Johor Grid
    {3378, 4742, 52668, 2285, 1559, 4, false}, // GDM2000 / Sembilan and Melaka Grid
    {3379, 4742, 52591, 2284, 1560, 4, false}, // GDM2000 / Pahang Grid
    {3380, 4742, 52652, 2283, 1561, 4, false}, // GDM2000 / Selangor Grid
    {3381, 4742, 52690, 2282, 1562, 4, false}, // GDM2000 / Terengganu Grid
    {3382, 4742, 52637, 2281, 1563, 4, false}, // GDM2000 / Pinang Grid
    {3383, 4742, 52555, 2280, 1564, 4, false}, // GDM2000 / Kedah and Perlis Grid
    {3384, 4742, 52622, 2279, 1565, 4, false}, // GDM2000 / Perak Grid
    {3385, 4742, 52575, 2278, 1566, 4, false}, // GDM2000 / Kelantan Grid
    {3386, 4123, 74833, 2121, 1392, 5, false}, // KKJ / Finland zone 0
    {3387, 4123, 74873, 2145, 1567, 5, false}, // KKJ / Finland zone 5
    {3388, 4284, 149843, 2277, 127, 5, false}, // Pulkovo 1942 / Caspian Sea Mercator
    {3389, 4284, 149284, 1397, 1165, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 60
    {3390, 4200, 157336, 1397, 1165, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 60
    {3391, 4743, 76472, 1346, 1569, 4, false}, // Karbala 1979 / UTM zone 37N
    {3392, 4743, 76488, 1347, 1570, 4, false}, // Karbala 1979 / UTM zone 38N
    {3393, 4743, 76504, 1348, 1571, 4, false}, // Karbala 1979 / UTM zone 39N
    {3394, 4744, 127196, 2299, 2211, 4, false}, // Nahrwan 1934 / Iraq zone
    {3395, 4326, 211019, 2276, 1572, 4, false}, // WGS 84 / World Mercator
    {3396, 4746, 139839, 1506, 1573, 5, false}, // PD/83 / 3-degree Gauss-Kruger zone 3
    {3397, 4746, 139894, 1507, 1574, 5, false}, // PD/83 / 3-degree Gauss-Kruger zone 4
    {3398, 4745, 160922, 1507, 1576, 5, false}, // RD/83 / 3-degree Gauss-Kruger zone 4
    {3399, 4745, 160977, 1508, 1575, 5, false}, // RD/83 / 3-degree Gauss-Kruger zone 5
    {3400, 4269, 95908, 2274, 1079, 4, false}, // NAD83 / Alberta 10-TM (Forest)
    {3401, 4269, 95924, 2275, 1079, 4, false}, // NAD83 / Alberta 10-TM (Resource)
    {3402, 4617, 110750, 2274, 1079, 4, false}, // NAD83(CSRS) / Alberta 10-TM (Forest)
    {3403, 4617, 110769, 2275, 1079, 4, false}, // NAD83(CSRS) / Alberta 10-TM (Resource)
    {3404, 4152, 115993, 1250, 208, 8, false}, // NAD83(HARN) / North Carolina (ftUS)
    {3405, 4756, 198846, 1357, 250, 4, false}, // VN-2000 / UTM zone 48N
    {3406, 4756, 198859, 1358, 251, 4, false}, // VN-2000 / UTM zone 49N
    {3407, 4738, 64623, 2289, 42, 10, false}, // Hong Kong 1963 Grid System
    {3408, 4053, 206678, 20, 1645, 4, true}, // NSIDC EASE-Grid North
    {3409, 4053, 206701, 21, 1644, 4, true}, // NSIDC EASE-Grid South
    {3410, 4053, 206651, 2262, 1638, 4, true}, // NSIDC EASE-Grid Global
    {3411, 4054, 206724, 2260, 781, 4, true}, // NSIDC Sea Ice Polar Stereographic North
    {3412, 4054, 206756, 2261, 782, 4, true}, // NSIDC Sea Ice Polar Stereographic South
    {3413, 4326, 206717, 2260, 781, 4, false}, // WGS 84 / NSIDC Sea Ice Polar Stereographic North
    {3414, 4757, 176044, 2259, 90, 5, false}, // SVY21 / Singapore TM
    {3415, 4324, 202600, 2258, 1643, 4, false}, // WGS 72BE / South China Sea Lambert
    {3416, 4258, 41890, 2336, 7, 5, false}, // ETRS89 / Austria Lambert
    {3417, 4269, 97201, 1281, 983, 8, false}, // NAD83 / Iowa North (ftUS)
    {3418, 4269, 97221, 1282, 984, 8, false}, // NAD83 / Iowa South (ftUS)
    {3419, 4269, 97267, 1283, 985, 8, false}, // NAD83 / Kansas North (ftUS)
    {3420, 4269, 97288, 1284, 986, 8, false}, // NAD83 / Kansas South (ftUS)
    {3421, 4269, 98212, 1285, 1009, 8, false}, // NAD83 / Nevada East (ftUS)
    {3422, 4269, 98189, 1286, 1008, 8, false}, // NAD83 / Nevada Central (ftUS)
    {3423, 4269, 98234, 1287, 1010, 8, false}, // NAD83 / Nevada West (ftUS)
    {3424, 4269, 98280, 1288, 207, 8, false}, // NAD83 / New Jersey (ftUS)
    {3425, 4152, 114968, 1281, 983, 8, false}, // NAD83(HARN) / Iowa North (ftUS)
    {3426, 4152, 114988, 1282, 984, 8, false}, // NAD83(HARN) / Iowa South (ftUS)
    {3427, 4152, 115008, 1283, 985, 8, false}, // NAD83(HARN) / Kansas North (ftUS)
    {3428, 4152, 115029, 1284, 986, 8, false}, // NAD83(HARN) / Kansas South (ftUS)
    {3429, 4152, 115709, 1285, 1009, 8, false}, // NAD83(HARN) / Nevada East (ftUS)
    {3430, 4152, 115686, 1286, 1008, 8, false}, // NAD83(HARN) / Nevada Central (ftUS)
    {3431, 4152, 115731, 1287, 1010, 8, false}, // NAD83(HARN) / Nevada West (ftUS)
    {3432, 4152, 115777, 1288, 207, 8, false}, // NAD83(HARN) / New Jersey (ftUS)
    {3433, 4269, 96104, 1289, 954, 8, false}, // NAD83 / Arkansas North (ftUS)
    {3434, 4269, 96127, 1290, 955, 8, false}, // NAD83 / Arkansas South (ftUS)
    {3435, 4269, 97110, 1291, 979, 8, false}, // NAD83 / Illinois East (ftUS)
    {3436, 4269, 97138, 1292, 980, 8, false}, // NAD83 / Illinois West (ftUS)
    {3437, 4269, 98257, 1293, 206, 8, false}, // NAD83 / New Hampshire (ftUS)
    {3438, 4269, 98823, 1294, 210, 8, false}, // NAD83 / Rhode Island (ftUS)
    {3439, 4134, 141292, 1348, 339, 4, false}, // PSD93 / UTM zone 39N
    {3440, 4134, 141304, 1349, 340, 4, false}, // PSD93 / UTM zone 40N
    {3441, 4152, 114244, 1289, 954, 8, false}, // NAD83(HARN) / Arkansas North (ftUS)
    {3442, 4152, 114267, 1290, 955, 8, false}, // NAD83(HARN) / Arkansas South (ftUS)
    {3443, 4152, 114877, 1291, 979, 8, false}, // NAD83(HARN) / Illinois East (ftUS)
    {3444, 4152, 114905, 1292, 980, 8, false}, // NAD83(HARN) / Illinois West (ftUS)
    {3445, 4152, 115754, 1293, 206, 8, false}, // NAD83(HARN) / New Hampshire (ftUS)
    {3446, 4152, 116276, 1294, 210, 8, false}, // NAD83(HARN) / Rhode Island (ftUS)
    {3447, 4258, 41907, 2257, 172, 4, false}, // ETRS89 / Belgian Lambert 2005
    {3448, 4758, 71827, 2255, 1540, 4, false}, // JAD2001 / Jamaica Metric Grid
    {3449, 4758, 71846, 1326, 1646, 4, false}, // JAD2001 / UTM zone 17N
    {3450, 4758, 71858, 1327, 1647, 4, false}, // JAD2001 / UTM zone 18N
    {3451, 4269, 97400, 1295, 989, 8, false}, // NAD83 / Louisiana North (ftUS)
    {3452, 4269, 97452, 1296, 1085, 8, false}, // NAD83 / Louisiana South (ftUS)
    {3453, 4269, 97425, 1297, 200, 8, false}, // NAD83 / Louisiana Offshore (ftUS)
    {3454, 4269, 98874, 1299, 1034, 8, true}, // NAD83 / South Dakota North (ftUS)
    {3455, 4269, 98898, 1299, 1035, 8, false}, // NAD83 / South Dakota South (ftUS)
    {3456, 4152, 115141, 1295, 989, 8, false}, // NAD83(HARN) / Louisiana North (ftUS)
    {3457, 4152, 115163, 1296, 1085, 8, false}, // NAD83(HARN) / Louisiana South (ftUS)
    {3458, 4152, 116319, 1298, 1034, 8, false}, // NAD83(HARN) / South Dakota North (ftUS)
    {3459, 4152, 116343, 1299, 1035, 8, false}, // NAD83(HARN) / South Dakota South (ftUS)
    {3460, 4720, 48355, 2254, 34, 4, false}, // Fiji 1986 / Fiji Map Grid
    {3461, 4155, 36912, 1337, 266, 4, false}, // Dabola 1981 / UTM zone 28N
    {3462, 4155, 36928, 1338, 267, 4, false}, // Dabola 1981 / UTM zone 29N
    {3463, 4269, 97586, 1003, 1287, 4, false}, // NAD83 / Maine CS2000 Central
    {3464, 4152, 115176, 1003, 1287, 4, false}, // NAD83(HARN) / Maine CS2000 Central
    {3465, 4759, 119367, 911, 939, 4, false}, // NAD83(NSRS2007) / Alabama East
    {3466, 4759, 119383, 912, 940, 4, false}, // NAD83(NSRS2007) / Alabama West
    {3467, 4759, 119399, 1176, 157, 4, false}, // NAD83(NSRS2007) / Alaska Albers
    {3468, 4759, 119415, 1177, 941, 4, false}, // NAD83(NSRS2007) / Alaska zone 1
    {3469, 4759, 119444, 1178, 943, 4, false}, // NAD83(NSRS2007) / Alaska zone 2
    {3470, 4759, 119458, 1179, 944, 4, false}, // NAD83(NSRS2007) / Alaska zone 3
    {3471, 4759, 119472, 1180, 945, 4, false}, // NAD83(NSRS2007) / Alaska zone 4
    {3472, 4759, 119486, 1181, 946, 4, false}, // NAD83(NSRS2007) / Alaska zone 5
    {3473, 4759, 119500, 1182, 947, 4, false}, // NAD83(NSRS2007) / Alaska zone 6
    {3474, 4759, 119514, 1183, 948, 4, false}, // NAD83(NSRS2007) / Alaska zone 7
    {3475, 4759, 119528, 1184, 949, 4, false}, // NAD83(NSRS2007) / Alaska zone 8
    {3476, 4759, 119542, 1185, 950, 4, false}, // NAD83(NSRS2007) / Alaska zone 9
    {3477, 4759, 119429, 1186, 942, 4, false}, // NAD83(NSRS2007) / Alaska zone 10
    {3478, 4759, 119556, 919, 951, 4, false}, // NAD83(NSRS2007) / Arizona Central
    {3479, 4759, 119570, 1209, 951, 6, false}, // NAD83(NSRS2007) / Arizona Central (ft)
    {3480, 4759, 119588, 918, 952, 4, false}, // NAD83(NSRS2007) / Arizona East
    {3481, 4759, 119602, 1208, 952, 6, false}, // NAD83(NSRS2007) / Arizona East (ft)
    {3482, 4759, 119619, 920, 953, 4, false}, // NAD83(NSRS2007) / Arizona West
    {3483, 4759, 119633, 1210, 953, 6, false}, // NAD83(NSRS2007) / Arizona West (ft)
    {3484, 4759, 119650, 923, 954, 4, false}, // NAD83(NSRS2007) / Arkansas North
    {3485, 4759, 119664, 1289, 954, 8, false}, // NAD83(NSRS2007) / Arkansas North (ftUS)
    {3486, 4759, 119683, 924, 955, 4, false}, // NAD83(NSRS2007) / Arkansas South
    {3487, 4759, 119697, 1290, 955, 8, false}, // NAD83(NSRS2007) / Arkansas South (ftUS)
    {3488, 4759, 119716, 933, 193, 4, false}, // NAD83(NSRS2007) / California Albers
    {3489, 4759, 119734, 934, 960, 4, false}, // NAD83(NSRS2007) / California zone 1
    {3490, 4759, 119750, 1211, 960, 8, false}, // NAD83(NSRS2007) / California zone 1 (ftUS)
    {3491, 4759, 119772, 935, 961, 4, false}, // NAD83(NSRS2007) / California zone 2
    {3492, 4759, 119788, 1212, 961, 8, false}, // NAD83(NSRS2007) / California zone 2 (ftUS)
    {3493, 4759, 119810, 936, 962, 4, false}, // NAD83(NSRS2007) / California zone 3
    {3494, 4759, 119826, 1213, 962, 8, false}, // NAD83(NSRS2007) / California zone 3 (ftUS)
    {3495, 4759, 119848, 937, 963, 4, false}, // NAD83(NSRS2007) / California zone 4
    {3496, 4759, 119864, 1214, 963, 8, false}, // NAD83(NSRS2007) / California zone 4 (ftUS)
    {3497, 4759, 119886, 938, 967, 4, false}, // NAD83(NSRS2007) / California zone 5
    {3498, 4759, 119902, 1215, 967, 8, false}, // NAD83(NSRS2007) / California zone 5 (ftUS)
    {3499, 4759, 119924, 939, 965, 4, false}, // NAD83(NSRS2007) / California zone 6
    {3500, 4759, 119940, 1216, 965, 8, false}, // NAD83(NSRS2007) / California zone 6 (ftUS)
    {3501, 4759, 119962, 944, 968, 4, false}, // NAD83(NSRS2007) / Colorado Central
    {3502, 4759, 119977, 1218, 968, 8, false}, // NAD83(NSRS2007) / Colorado Central (ftUS)
    {3503, 4759, 119997, 943, 969, 4, false}, // NAD83(NSRS2007) / Colorado North
    {3504, 4759, 120010, 1217, 969, 8, false}, // NAD83(NSRS2007) / Colorado North (ftUS)
    {3505, 4759, 120028, 945, 970, 4, false}, // NAD83(NSRS2007) / Colorado South
    {3506, 4759, 120042, 1219, 970, 8, false}, // NAD83(NSRS2007) / Colorado South (ftUS)
    {3507, 4759, 120060, 947, 194, 4, false}, // NAD83(NSRS2007) / Connecticut
    {3508, 4759, 120075, 1220, 194, 8, false}, // NAD83(NSRS2007) / Connecticut (ftUS)
    {3509, 4759, 120111, 949, 195, 4, false}, // NAD83(NSRS2007) / Delaware
    {3510, 4759, 120124, 1221, 195, 8, false}, // NAD83(NSRS2007) / Delaware (ftUS)
    {3511, 4759, 120218, 953, 971, 4, false}, // NAD83(NSRS2007) / Florida East
    {3512, 4759, 120233, 1222, 971, 8, false}, // NAD83(NSRS2007) / Florida East (ftUS)
    {3513, 4759, 120252, 956, 196, 4, false}, // NAD83(NSRS2007) / Florida GDL Albers
    {3514, 4759, 120272, 955, 972, 4, false}, // NAD83(NSRS2007) / Florida North
    {3515, 4759, 120285, 1224, 972, 8, false}, // NAD83(NSRS2007) / Florida North (ftUS)
    {3516, 4759, 120303, 954, 973, 4, false}, // NAD83(NSRS2007) / Florida West
    {3517, 4759, 120318, 1223, 973, 8, false}, // NAD83(NSRS2007) / Florida West (ftUS)
    {3518, 4759, 120337, 959, 974, 4, false}, // NAD83(NSRS2007) / Georgia East
    {3519, 4759, 120352, 1225, 974, 8, false}, // NAD83(NSRS2007) / Georgia East (ftUS)
    {3520, 4759, 120371, 960, 975, 4, false}, // NAD83(NSRS2007) / Georgia West
    {3521, 4759, 120386, 1226, 975, 8, false}, // NAD83(NSRS2007) / Georgia West (ftUS)
    {3522, 4759, 120405, 965, 976, 4, false}, // NAD83(NSRS2007) / Idaho Central
    {3523, 4759, 120419, 1228, 976, 8, false}, // NAD83(NSRS2007) / Idaho Central (ftUS)
    {3524, 4759, 120438, 964, 977, 4, false}, // NAD83(NSRS2007) / Idaho East
    {3525, 4759, 120452, 1227, 977, 8, false}, // NAD83(NSRS2007) / Idaho East (ftUS)
    {3526, 4759, 120470, 966, 978, 4, false}, // NAD83(NSRS2007) / Idaho West
    {3527, 4759, 120484, 1229, 978, 8, false}, // NAD83(NSRS2007) / Idaho West (ftUS)
    {3528, 4759, 120502, 969, 979, 4, false}, // NAD83(NSRS2007) / Illinois East
    {3529, 4759, 120519, 1291, 979, 8, false}, // NAD83(NSRS2007) / Illinois East (ftUS)
    {3530, 4759, 120540, 970, 980, 4, false}, // NAD83(NSRS2007) / Illinois West
    {3531, 4759, 120557, 1292, 980, 8, false}, // NAD83(NSRS2007) / Illinois West (ftUS)
    {3532, 4759, 120578, 973, 981, 4, false}, // NAD83(NSRS2007) / Indiana East
    {3533, 4759, 120591, 1276, 981, 8, false}, // NAD83(NSRS2007) / Indiana East (ftUS)
    {3534, 4759, 120608, 974, 982, 4, false}, // NAD83(NSRS2007) / Indiana West
    {3535, 4759, 120621, 1277, 982, 8, false}, // NAD83(NSRS2007) / Indiana West (ftUS)
    {3536, 4759, 120638, 977, 983, 4, false}, // NAD83(NSRS2007) / Iowa North
    {3537, 4759, 120650, 1281, 983, 8, false}, // NAD83(NSRS2007) / Iowa North (ftUS)
    {3538, 4759, 120667, 978, 984, 4, false}, // NAD83(NSRS2007) / Iowa South
    {3539, 4759, 120680, 1282, 984, 8, false}, // NAD83(NSRS2007) / Iowa South (ftUS)
    {3540, 4759, 120697, 981, 985, 4, false}, // NAD83(NSRS2007) / Kansas North
    {3541, 4759, 120710, 1283, 985, 8, false}, // NAD83(NSRS2007) / Kansas North (ftUS)
    {3542, 4759, 120728, 982, 986, 4, false}, // NAD83(NSRS2007) / Kansas South
    {3543, 4759, 120741, 1284, 986, 8, false}, // NAD83(NSRS2007) / Kansas South (ftUS)
    {3544, 4759, 120759, 1207, 987, 4, false}, // NAD83(NSRS2007) / Kentucky North
    {3545, 4759, 120774, 1232, 987, 8, false}, // NAD83(NSRS2007) / Kentucky North (ftUS)
    {3546, 4759, 120794, 985, 199, 4, false}, // NAD83(NSRS2007) / Kentucky Single Zone
    {3547, 4759, 120816, 1279, 199, 8, false}, // NAD83(NSRS2007) / Kentucky Single Zone (ftUS)
    {3548, 4759, 120843, 987, 988, 4, false}, // NAD83(NSRS2007) / Kentucky South
    {3549, 4759, 120859, 1233, 988, 8, false}, // NAD83(NSRS2007) / Kentucky South (ftUS)
    {3550, 4759, 120880, 991, 989, 4, false}, // NAD83(NSRS2007) / Louisiana North
    {3551, 4759, 120893, 1295, 989, 8, false}, // NAD83(NSRS2007) / Louisiana North (ftUS)
    {3552, 4759, 120911, 992, 1085, 4, false}, // NAD83(NSRS2007) / Louisiana South
    {3553, 4759, 120925, 1296, 1085, 8, false}, // NAD83(NSRS2007) / Louisiana South (ftUS)
    {3554, 4759, 120943, 1003, 1287, 4, false}, // NAD83(NSRS2007) / Maine CS2000 Central
    {3555, 4759, 120961, 1000, 1288, 4, false}, // NAD83(NSRS2007) / Maine CS2000 East
    {3556, 4759, 120979, 1002, 1286, 4, false}, // NAD83(NSRS2007) / Maine CS2000 West
    {3557, 4759, 120997, 996, 991, 4, false}, // NAD83(NSRS2007) / Maine East
    {3558, 4759, 121029, 997, 992, 4, false}, // NAD83(NSRS2007) / Maine West
    {3559, 4759, 121061, 1005, 201, 4, false}, // NAD83(NSRS2007) / Maryland
    {3560, 4269, 99415, 1201, 1043, 8, false}, // NAD83 / Utah North (ftUS)
    {3561, 4135, 137567, 1187, 341, 8, false}, // Old Hawaiian / Hawaii zone 1
    {3562, 4135, 137586, 1188, 342, 8, false}, // Old Hawaiian / Hawaii zone 2
    {3563, 4135, 137605, 1189, 343, 8, false}, // Old Hawaiian / Hawaii zone 3
    {3564, 4135, 137624, 1190, 344, 8, false}, // Old Hawaiian / Hawaii zone 4
    {3565, 4135, 137643, 1191, 345, 8, false}, // Old Hawaiian / Hawaii zone 5
    {3566, 4269, 99384, 1202, 1042, 8, false}, // NAD83 / Utah Central (ftUS)
    {3567, 4269, 99445, 1203, 1044, 8, false}, // NAD83 / Utah South (ftUS)
    {3568, 4152, 116703, 1201, 1043, 8, false}, // NAD83(HARN) / Utah North (ftUS)
    {3569, 4152, 116672, 1202, 1042, 8, false}, // NAD83(HARN) / Utah Central (ftUS)
    {3570, 4152, 116733, 1203, 1044, 8, false}, // NAD83(HARN) / Utah South (ftUS)
    {3571, 4326, 206839, 1817, 1648, 4, false}, // WGS 84 / North Pole LAEA Bering Sea
    {3572, 4326, 206794, 1818, 1648, 4, false}, // WGS 84 / North Pole LAEA Alaska
    {3573, 4326, 206863, 1819, 1648, 4, false}, // WGS 84 / North Pole LAEA Canada
    {3574, 4326, 206816, 1820, 1648, 4, false}, // WGS 84 / North Pole LAEA Atlantic
    {3575, 4326, 206884, 1821, 1648, 4, false}, // WGS 84 / North Pole LAEA Europe
    {3576, 4326, 206906, 1822, 1648, 4, false}, // WGS 84 / North Pole LAEA Russia
    {3577, 4283, 52075, 1864, 1102, 4, false}, // GDA94 / Australian Albers
    {3578, 4269, 99861, 2253, 1081, 4, false}, // NAD83 / Yukon Albers
    {3579, 4617, 111752, 2253, 1081, 4, false}, // NAD83(CSRS) / Yukon Albers
    {3580, 4269, 98148, 2252, 1649, 4, false}, // NAD83 / NWT Lambert
    {3581, 4617, 111386, 2252, 1649, 4, false}, // NAD83(CSRS) / NWT Lambert
    {3582, 4759, 121072, 1234, 201, 8, false}, // NAD83(NSRS2007) / Maryland (ftUS)
    {3583, 4759, 121089, 1009, 993, 4, false}, // NAD83(NSRS2007) / Massachusetts Island
    {3584, 4759, 121108, 1236, 993, 8, false}, // NAD83(NSRS2007) / Massachusetts Island (ftUS)
    {3585, 4759, 121133, 1008, 994, 4, false}, // NAD83(NSRS2007) / Massachusetts Mainland
    {3586, 4759, 121155, 1235, 994, 8, false}, // NAD83(NSRS2007) / Massachusetts Mainland (ftUS)
    {3587, 4759, 121183, 1017, 514, 4, false}, // NAD83(NSRS2007) / Michigan Central
    {3588, 4759, 121200, 1238, 514, 6, false}, // NAD83(NSRS2007) / Michigan Central (ft)
    {3589, 4759, 121220, 1016, 513, 4, false}, // NAD83(NSRS2007) / Michigan North
    {3590, 4759, 121235, 1237, 513, 6, false}, // NAD83(NSRS2007) / Michigan North (ft)
    {3591, 4759, 121254, 1019, 202, 4, false}, // NAD83(NSRS2007) / Michigan Oblique Mercator
    {3592, 4759, 121280, 1018, 515, 4, false}, // NAD83(NSRS2007) / Michigan South
    {3593, 4759, 121295, 1239, 515, 6, false}, // NAD83(NSRS2007) / Michigan South (ft)
    {3594, 4759, 121314, 1024, 998, 4, false}, // NAD83(NSRS2007) / Minnesota Central
    {3595, 4759, 121351, 1023, 999, 4, false}, // NAD83(NSRS2007) / Minnesota North
    {3596, 4759, 121384, 1025, 1000, 4, false}, // NAD83(NSRS2007) / Minnesota South
    {3597, 4759, 121418, 1031, 1001, 4, false}, // NAD83(NSRS2007) / Mississippi East
    {3598, 4759, 121438, 1240, 1001, 8, false}, // NAD83(NSRS2007) / Mississippi East (ftUS)
    {3599, 4759, 121480, 1032, 1002, 4, false}, // NAD83(NSRS2007) / Mississippi West
    {3600, 4759, 121500, 1241, 1002, 8, false}, // NAD83(NSRS2007) / Mississippi West (ftUS)
    {3601, 4759, 121524, 1037, 1003, 4, false}, // NAD83(NSRS2007) / Missouri Central
    {3602, 4759, 121541, 1036, 1004, 4, false}, // NAD83(NSRS2007) / Missouri East
    {3603, 4759, 121558, 1038, 1005, 4, false}, // NAD83(NSRS2007) / Missouri West
    {3604, 4759, 121575, 1042, 204, 4, false}, // NAD83(NSRS2007) / Montana
    {3605, 4759, 121587, 1242, 204, 6, false}, // NAD83(NSRS2007) / Montana (ft)
    {3606, 4759, 121603, 1045, 205, 4, false}, // NAD83(NSRS2007) / Nebraska
    {3607, 4759, 121634, 1050, 1008, 4, false}, // NAD83(NSRS2007) / Nevada Central
    {3608, 4759, 121648, 1286, 1008, 8, false}, // NAD83(NSRS2007) / Nevada Central (ftUS)
    {3609, 4759, 121667, 1049, 1009, 4, false}, // NAD83(NSRS2007) / Nevada East
    {3610, 4759, 121681, 1285, 1009, 8, false}, // NAD83(NSRS2007) / Nevada East (ftUS)
    {3611, 4759, 121699, 1051, 1010, 4, false}, // NAD83(NSRS2007) / Nevada West
    {3612, 4759, 121713, 1287, 1010, 8, false}, // NAD83(NSRS2007) / Nevada West (ftUS)
    {3613, 4759, 121731, 1053, 206, 4, false}, // NAD83(NSRS2007) / New Hampshire
    {3614, 4759, 121746, 1293, 206, 8, false}, // NAD83(NSRS2007) / New Hampshire (ftUS)
    {3615, 4759, 121766, 1055, 207, 4, false}, // NAD83(NSRS2007) / New Jersey
    {3616, 4759, 121779, 1288, 207, 8, false}, // NAD83(NSRS2007) / New Jersey (ftUS)
    {3617, 4759, 121797, 1060, 1016, 4, false}, // NAD83(NSRS2007) / New Mexico Central
    {3618, 4759, 121814, 1244, 1016, 8, false}, // NAD83(NSRS2007) / New Mexico Central (ftUS)
    {3619, 4759, 121836, 1059, 1013, 4, false}, // NAD83(NSRS2007) / New Mexico East
    {3620, 4759, 121853, 1243, 1013, 8, false}, // NAD83(NSRS2007) / New Mexico East (ftUS)
    {3621, 4759, 121874, 1061, 1017, 4, false}, // NAD83(NSRS2007) / New Mexico West
    {3622, 4759, 121891, 1245, 1017, 8, false}, // NAD83(NSRS2007) / New Mexico West (ftUS)
    {3623, 4759, 121912, 1067, 1018, 4, false}, // NAD83(NSRS2007) / New York Central
    {3624, 4759, 121928, 1247, 1018, 8, false}, // NAD83(NSRS2007) / New York Central (ftUS)
    {3625, 4759, 121948, 1066, 1019, 4, false}, // NAD83(NSRS2007) / New York East
    {3626, 4759, 121964, 1246, 1019, 8, false}, // NAD83(NSRS2007) / New York East (ftUS)
    {3627, 4759, 121984, 1069, 1020, 4, false}, // NAD83(NSRS2007) / New York Long Island
    {3628, 4759, 122002, 1249, 1020, 8, false}, // NAD83(NSRS2007) / New York Long Island (ftUS)
    {3629, 4759, 122026, 1068, 1021, 4, false}, // NAD83(NSRS2007) / New York West
    {3630, 4759, 122042, 1248, 1021, 8, false}, // NAD83(NSRS2007) / New York West (ftUS)
    {3631, 4759, 122062, 1071, 208, 4, false}, // NAD83(NSRS2007) / North Carolina
    {3632, 4759, 122075, 1250, 208, 8, false}, // NAD83(NSRS2007) / North Carolina (ftUS)
    {3633, 4759, 122093, 1074, 1022, 4, false}, // NAD83(NSRS2007) / North Dakota North
    {3634, 4759, 122107, 1251, 1022, 6, false}, // NAD83(NSRS2007) / North Dakota North (ft)
    {3635, 4759, 122125, 1075, 1023, 4, false}, // NAD83(NSRS2007) / North Dakota South
    {3636, 4759, 122140, 1252, 1023, 6, false}, // NAD83(NSRS2007) / North Dakota South (ft)
    {3637, 4759, 122158, 1078, 1024, 4, false}, // NAD83(NSRS2007) / Ohio North
    {3638, 4759, 122187, 1079, 1025, 4, false}, // NAD83(NSRS2007) / Ohio South
    {3639, 4759, 122217, 1084, 1026, 4, false}, // NAD83(NSRS2007) / Oklahoma North
    {3640, 4759, 122231, 1253, 1026, 8, false}, // NAD83(NSRS2007) / Oklahoma North (ftUS)
    {3641, 4759, 122250, 1085, 1027, 4, false}, // NAD83(NSRS2007) / Oklahoma South
    {3642, 4759, 122265, 1254, 1027, 8, false}, // NAD83(NSRS2007) / Oklahoma South (ftUS)
    {3643, 4759, 122305, 1090, 209, 4, false}, // NAD83(NSRS2007) / Oregon LCC (m)
    {3644, 4759, 122284, 1278, 209, 6, false}, // NAD83(NSRS2007) / Oregon GIC Lambert (ft)
    {3645, 4759, 122320, 1088, 1028, 4, false}, // NAD83(NSRS2007) / Oregon North
    {3646, 4759, 122329, 1255, 1028, 6, false}, // NAD83(NSRS2007) / Oregon North (ft)
    {3647, 4759, 122342, 1089, 1029, 4, false}, // NAD83(NSRS2007) / Oregon South
    {3648, 4759, 122353, 1256, 1029, 6, false}, // NAD83(NSRS2007) / Oregon South (ft)
    {3649, 4759, 122368, 1093, 1030, 4, false}, // NAD83(NSRS2007) / Pennsylvania North
    {3650, 4759, 122385, 1257, 1030, 8, false}, // NAD83(NSRS2007) / Pennsylvania North (ftUS)
    {3651, 4759, 122407, 1094, 1031, 4, false}, // NAD83(NSRS2007) / Pennsylvania South
    {3652, 4759, 122425, 1258, 1031, 8, false}, // NAD83(NSRS2007) / Pennsylvania South (ftUS)
    {3653, 4759, 122470, 1096, 210, 4, false}, // NAD83(NSRS2007) / Rhode Island
    {3654, 4759, 122483, 1294, 210, 8, false}, // NAD83(NSRS2007) / Rhode Island (ftUS)
    {3655, 4759, 122502, 1099, 211, 4, false}, // NAD83(NSRS2007) / South Carolina
    {3656, 4759, 122515, 1259, 211, 6, false}, // NAD83(NSRS2007) / South Carolina (ft)
    {3657, 4759, 122532, 1102, 1034, 4, false}, // NAD83(NSRS2007) / South Dakota North
    {3658, 4759, 122546, 1298, 1034, 8, false}, // NAD83(NSRS2007) / South Dakota North (ftUS)
    {3659, 4759, 122565, 1103, 1035, 4, false}, // NAD83(NSRS2007) / South Dakota South
    {3660, 4759, 122580, 1299, 1035, 8, false}, // NAD83(NSRS2007) / South Dakota South (ftUS)
    {3661, 4759, 122599, 1105, 212, 4, false}, // NAD83(NSRS2007) / Tennessee
    {3662, 4759, 122613, 1260, 212, 8, false}, // NAD83(NSRS2007) / Tennessee (ftUS)
    {3663, 4759, 122632, 1113, 1037, 4, false}, // NAD83(NSRS2007) / Texas Central
    {3664, 4759, 122647, 1263, 1037, 8, false}, // NAD83(NSRS2007) / Texas Central (ftUS)
    {3665, 4759, 122666, 1119, 213, 4, false}, // NAD83(NSRS2007) / Texas Centric Albers Equal Area
    {3666, 4759, 122693, 1118, 213, 4, false}, // NAD83(NSRS2007) / Texas Centric Lambert Conformal
    {3667, 4759, 122719, 1111, 1038, 4, false}, // NAD83(NSRS2007) / Texas North
    {3668, 4759, 122732, 1261, 1038, 8, false}, // NAD83(NSRS2007) / Texas North (ftUS)
    {3669, 4759, 122750, 1112, 1039, 4, false}, // NAD83(NSRS2007) / Texas North Central
    {3670, 4759, 122766, 1262, 1039, 8, false}, // NAD83(NSRS2007) / Texas North Central (ftUS)
    {3671, 4759, 122787, 1115, 1084, 4, false}, // NAD83(NSRS2007) / Texas South
    {3672, 4759, 122800, 1265, 1084, 8, false}, // NAD83(NSRS2007) / Texas South (ftUS)
    {3673, 4759, 122818, 1114, 1083, 4, false}, // NAD83(NSRS2007) / Texas South Central
    {3674, 4759, 122834, 1264, 1083, 8, false}, // NAD83(NSRS2007) / Texas South Central (ftUS)
    {3675, 4759, 123118, 1124, 1042, 4, false}, // NAD83(NSRS2007) / Utah Central
    {3676, 4759, 123132, 1267, 1042, 6, false}, // NAD83(NSRS2007) / Utah Central (ft)
    {3677, 4759, 123149, 1202, 1042, 8, false}, // NAD83(NSRS2007) / Utah Central (ftUS)
    {3678, 4759, 123167, 1123, 1043, 4, false}, // NAD83(NSRS2007) / Utah North
    {3679, 4759, 123179, 1266, 1043, 6, false}, // NAD83(NSRS2007) / Utah North (ft)
    {3680, 4759, 123195, 1201, 1043, 8, false}, // NAD83(NSRS2007) / Utah North (ftUS)
    {3681, 4759, 123212, 1125, 1044, 4, false}, // NAD83(NSRS2007) / Utah South
    {3682, 4759, 123224, 1268, 1044, 6, false}, // NAD83(NSRS2007) / Utah South (ft)
    {3683, 4759, 123240, 1203, 1044, 8, false}, // NAD83(NSRS2007) / Utah South (ftUS)
    {3684, 4759, 123257, 1127, 214, 4, false}, // NAD83(NSRS2007) / Vermont
    {3685, 4759, 123304, 1130, 1045, 4, false}, // NAD83(NSRS2007) / Virginia North
    {3686, 4759, 123317, 1269, 1045, 8, false}, // NAD83(NSRS2007) / Virginia North (ftUS)
    {3687, 4759, 123335, 1131, 1046, 4, false}, // NAD83(NSRS2007) / Virginia South
    {3688, 4759, 123349, 1270, 1046, 8, false}, // NAD83(NSRS2007) / Virginia South (ftUS)
    {3689, 4759, 123367, 1134, 1058, 4, false}, // NAD83(NSRS2007) / Washington North
    {3690, 4759, 123382, 1271, 1058, 8, false}, // NAD83(NSRS2007) / Washington North (ftUS)
    {3691, 4759, 123402, 1135, 1059, 4, false}, // NAD83(NSRS2007) / Washington South
    {3692, 4759, 123418, 1272, 1059, 8, false}, // NAD83(NSRS2007) / Washington South (ftUS)
    {3693, 4759, 123439, 1138, 1049, 4, false}, // NAD83(NSRS2007) / West Virginia North
    {3694, 4759, 123474, 1139, 1050, 4, false}, // NAD83(NSRS2007) / West Virginia South
    {3695, 4759, 123510, 1149, 1051, 4, false}, // NAD83(NSRS2007) / Wisconsin Central
    {3696, 4759, 123527, 1274, 1051, 8, false}, // NAD83(NSRS2007) / Wisconsin Central (ftUS)
    {3697, 4759, 123548, 1148, 1052, 4, false}, // NAD83(NSRS2007) / Wisconsin North
    {3698, 4759, 123563, 1273, 1052, 8, false}, // NAD83(NSRS2007) / Wisconsin North (ftUS)
    {3699, 4759, 123583, 1150, 1053, 4, false}, // NAD83(NSRS2007) / Wisconsin South
    {3700, 4759, 123598, 1275, 1053, 8, false}, // NAD83(NSRS2007) / Wisconsin South (ftUS)
    {3701, 4759, 123618, 1151, 216, 4, false}, // NAD83(NSRS2007) / Wisconsin Transverse Mercator
    {3702, 4759, 123644, 1157, 1054, 4, false}, // NAD83(NSRS2007) / Wyoming East
    {3703, 4759, 123680, 1158, 1055, 4, false}, // NAD83(NSRS2007) / Wyoming East Central
    {3704, 4759, 123757, 1159, 1057, 4, false}, // NAD83(NSRS2007) / Wyoming West Central
    {3705, 4759, 123721, 1160, 1056, 4, false}, // NAD83(NSRS2007) / Wyoming West
    {3706, 4759, 123032, 1368, 1554, 4, false}, // NAD83(NSRS2007) / UTM zone 59N
    {3707, 4759, 123057, 1369, 1555, 4, false}, // NAD83(NSRS2007) / UTM zone 60N
    {3708, 4759, 122984, 1310, 1556, 4, false}, // NAD83(NSRS2007) / UTM zone 1N
    {3709, 4759, 122996, 1311, 1557, 4, false}, // NAD83(NSRS2007) / UTM zone 2N
    {3710, 4759, 123008, 1312, 918, 4, false}, // NAD83(NSRS2007) / UTM zone 3N
    {3711, 4759, 123020, 1313, 919, 4, false}, // NAD83(NSRS2007) / UTM zone 4N
    {3712, 4759, 123045, 1314, 920, 4, false}, // NAD83(NSRS2007) / UTM zone 5N
    {3713, 4759, 123070, 1315, 921, 4, false}, // NAD83(NSRS2007) / UTM zone 6N
    {3714, 4759, 123082, 1316, 1654, 4, false}, // NAD83(NSRS2007) / UTM zone 7N
    {3715, 4759, 123094, 1317, 1655, 4, false}, // NAD83(NSRS2007) / UTM zone 8N
    {3716, 4759, 123106, 1318, 1656, 4, false}, // NAD83(NSRS2007) / UTM zone 9N
    {3717, 4759, 122855, 1319, 1657, 4, false}, // NAD83(NSRS2007) / UTM zone 10N
    {3718, 4759, 122867, 1320, 1658, 4, false}, // NAD83(NSRS2007) / UTM zone 11N
    {3719, 4759, 122880, 1321, 1659, 4, false}, // NAD83(NSRS2007) / UTM zone 12N
    {3720, 4759, 122893, 1322, 1660, 4, false}, // NAD83(NSRS2007) / UTM zone 13N
    {3721, 4759, 122906, 1323, 1661, 4, false}, // NAD83(NSRS2007) / UTM zone 14N
    {3722, 4759, 122919, 1324, 1662, 4, false}, // NAD83(NSRS2007) / UTM zone 15N
    {3723, 4759, 122932, 1325, 1663, 4, false}, // NAD83(NSRS2007) / UTM zone 16N
    {3724, 4759, 122945, 1326, 1664, 4, false}, // NAD83(NSRS2007) / UTM zone 17N
    {3725, 4759, 122958, 1327, 1665, 4, false}, // NAD83(NSRS2007) / UTM zone 18N
    {3726, 4759, 122971, 1328, 1666, 4, false}, // NAD83(NSRS2007) / UTM zone 19N
    {3727, 4626, 166343, 2251, 1536, 4, false}, // Reunion 1947 / TM Reunion
    {3728, 4759, 122170, 1080, 1024, 8, false}, // NAD83(NSRS2007) / Ohio North (ftUS)
    {3729, 4759, 122200, 1081, 1025, 8, false}, // NAD83(NSRS2007) / Ohio South (ftUS)
    {3730, 4759, 123660, 1161, 1054, 8, false}, // NAD83(NSRS2007) / Wyoming East (ftUS)
    {3731, 4759, 123698, 1162, 1055, 8, false}, // NAD83(NSRS2007) / Wyoming East Central (ftUS)
    {3732, 4759, 123775, 1163, 1057, 8, false}, // NAD83(NSRS2007) / Wyoming West Central (ftUS)
    {3733, 4759, 123737, 1164, 1056, 8, false}, // NAD83(NSRS2007) / Wyoming West (ftUS)
    {3734, 4269, 98561, 1080, 1024, 8, false}, // NAD83 / Ohio North (ftUS)
    {3735, 4269, 98581, 1081, 1025, 8, false}, // NAD83 / Ohio South (ftUS)
    {3736, 4269, 99745, 1161, 1054, 8, false}, // NAD83 / Wyoming East (ftUS)
    {3737, 4269, 99773, 1162, 1055, 8, false}, // NAD83 / Wyoming East Central (ftUS)
    {3738, 4269, 99843, 1163, 1057, 8, false}, // NAD83 / Wyoming West Central (ftUS)
    {3739, 4269, 99815, 1164, 1056, 8, false}, // NAD83 / Wyoming West (ftUS)
    {3740, 4152, 116543, 1319, 1912, 4, false}, // NAD83(HARN) / UTM zone 10N
    {3741, 4152, 116550, 1320, 1907, 4, false}, // NAD83(HARN) / UTM zone 11N
    {3742, 4152, 116558, 1321, 1659, 4, false}, // NAD83(HARN) / UTM zone 12N
    {3743, 4152, 116566, 1322, 1660, 4, false}, // NAD83(HARN) / UTM zone 13N
    {3744, 4152, 116574, 1323, 1915, 4, false}, // NAD83(HARN) / UTM zone 14N
    {3745, 4152, 116582, 1324, 1916, 4, false}, // NAD83(HARN) / UTM zone 15N
    {3746, 4152, 116590, 1325, 1917, 4, false}, // NAD83(HARN) / UTM zone 16N
    {3747, 4152, 116598, 1326, 1918, 4, false}, // NAD83(HARN) / UTM zone 17N
    {3748, 4152, 116606, 1327, 1923, 4, false}, // NAD83(HARN) / UTM zone 18N
    {3749, 4152, 116614, 1328, 1926, 4, false}, // NAD83(HARN) / UTM zone 19N
    {3750, 4152, 116629, 1313, 1650, 4, false}, // NAD83(HARN) / UTM zone 4N
    {3751, 4152, 116644, 1314, 1652, 4, false}, // NAD83(HARN) / UTM zone 5N
    {3752, 4326, 206513, 2250, 1667, 4, true}, // WGS 84 / Mercator 41
    {3753, 4152, 116058, 1080, 1024, 8, false}, // NAD83(HARN) / Ohio North (ftUS)
    {3754, 4152, 116078, 1081, 1025, 8, false}, // NAD83(HARN) / Ohio South (ftUS)
    {3755, 4152, 119195, 1161, 1054, 8, false}, // NAD83(HARN) / Wyoming East (ftUS)
    {3756, 4152, 119223, 1162, 1055, 8, false}, // NAD83(HARN) / Wyoming East Central (ftUS)
    {3757, 4152, 119280, 1163, 1057, 8, false}, // NAD83(HARN) / Wyoming West Central (ftUS)
    {3758, 4152, 119252, 1164, 1056, 8, false}, // NAD83(HARN) / Wyoming West (ftUS)
    {3759, 4269, 96977, 1197, 343, 8, false}, // NAD83 / Hawaii zone 3 (ftUS)
    {3760, 4152, 114762, 1197, 343, 8, false}, // NAD83(HARN) / Hawaii zone 3 (ftUS)
    {3761, 4617, 111689, 1331, 937, 4, false}, // NAD83(CSRS) / UTM zone 22N
    {3762, 4326, 208919, 2249, 1687, 4, false}, // WGS 84 / South Georgia Lambert
    {3763, 4258, 43021, 2248, 129, 4, false}, // ETRS89 / Portugal TM06
    {3764, 4167, 125886, 2022, 1279, 5, false}, // NZGD2000 / Chatham Island Circuit 2000
    {3765, 4761, 63142, 2246, 1487, 4, false}, // HTRS96 / Croatia TM
    {3766, 4761, 63127, 2247, 26, 4, false}, // HTRS96 / Croatia LCC
    {3767, 4761, 63155, 1342, 1690, 4, false}, // HTRS96 / UTM zone 33N
    {3768, 4761, 63168, 1343, 1689, 4, false}, // HTRS96 / UTM zone 34N
    {3769, 4216, 21503, 1329, 1482, 4, false}, // Bermuda 1957 / UTM zone 20N
    {3770, 4762, 17614, 2245, 9, 4, false}, // BDA2000 / Bermuda 2000 National Grid
    {3771, 4267, 92693, 1940, 1694, 4, false}, // NAD27 / Alberta 3TM ref merid 111 W
    {3772, 4267, 92717, 1941, 1693, 4, false}, // NAD27 / Alberta 3TM ref merid 114 W
    {3773, 4267, 92741, 1942, 1692, 4, false}, // NAD27 / Alberta 3TM ref merid 117 W
    {3774, 4267, 92765, 1943, 1691, 4, true}, // NAD27 / Alberta 3TM ref merid 120 W
    {3775, 4269, 95943, 1940, 1694, 4, false}, // NAD83 / Alberta 3TM ref merid 111 W
    {3776, 4269, 95965, 1941, 1693, 4, false}, // NAD83 / Alberta 3TM ref merid 114 W
    {3777, 4269, 95987, 1942, 1692, 4, false}, // NAD83 / Alberta 3TM ref merid 117 W
    {3778, 4269, 96009, 1943, 1691, 4, true}, // NAD83 / Alberta 3TM ref merid 120 W
    {3779, 4617, 110791, 1940, 1694, 4, false}, // NAD83(CSRS) / Alberta 3TM ref merid 111 W
    {3780, 4617, 110816, 1941, 1693, 4, false}, // NAD83(CSRS) / Alberta 3TM ref merid 114 W
    {3781, 4617, 110841, 1942, 1692, 4, false}, // NAD83(CSRS) / Alberta 3TM ref merid 117 W
    {3782, 4617, 110866, 1943, 1691, 4, true}, // NAD83(CSRS) / Alberta 3TM ref merid 120 W
    {3783, 4763, 143887, 2244, 1475, 4, false}, // Pitcairn 2006 / Pitcairn TM 2006
    {3784, 4729, 143861, 1407, 1475, 4, false}, // Pitcairn 1967 / UTM zone 9S
    {3785, 4055, 144327, 2243, 1695, 4, true}, // Popular Visualisation CRS / Mercator
    {3786, 4047, 218037, 2356, 109, 4, true}, // World Equidistant Cylindrical (Sphere)
    {3787, 4312, 84934, 2241, 92, 4, true}, // MGI / Slovene National Grid
    {3788, 4167, 125793, 2023, 1705, 5, false}, // NZGD2000 / Auckland Islands TM 2000
    {3789, 4167, 125865, 2024, 1706, 5, false}, // NZGD2000 / Campbell Island TM 2000
    {3790, 4167, 125770, 2025, 1707, 5, false}, // NZGD2000 / Antipodes Islands TM 2000
    {3791, 4167, 126297, 2026, 1708, 5, false}, // NZGD2000 / Raoul Island TM 2000
    {3793, 4167, 125909, 2028, 1279, 5, false}, // NZGD2000 / Chatham Islands TM 2000
    {3794, 4765, 178890, 2241, 92, 4, false}, // Slovenia 1996 / Slovene National Grid
    {3795, 4267, 93418, 2070, 284, 5, false}, // NAD27 / Cuba Norte
    {3796, 4267, 93429, 2071, 285, 5, false}, // NAD27 / Cuba Sur
    {3797, 4267, 93769, 2240, 191, 4, false}, // NAD27 / MTQ Lambert
    {3798, 4269, 97575, 2240, 191, 4, false}, // NAD83 / MTQ Lambert
    {3799, 4617, 111372, 2240, 191, 4, false}, // NAD83(CSRS) / MTQ Lambert
    {3800, 4267, 92765, 1944, 1691, 4, false}, // NAD27 / Alberta 3TM ref merid 120 W
    {3801, 4269, 96009, 1944, 1691, 4, false}, // NAD83 / Alberta 3TM ref merid 120 W
    {3802, 4617, 110866, 1944, 1691, 4, false}, // NAD83(CSRS) / Alberta 3TM ref merid 120 W
    {3812, 4258, 41927, 0, 172, 4, false}, // ETRS89 / Belgian Lambert 2008
    {3814, 4269, 97965, 1, 203, 4, false}, // NAD83 / Mississippi TM
    {3815, 4152, 115555, 1, 203, 4, false}, // NAD83(HARN) / Mississippi TM
    {3816, 4759, 121462, 1, 203, 4, false}, // NAD83(NSRS2007) / Mississippi TM
    {3819, 1024, 62968, geographic, 43, 25, false}, // HD1909
    {3821, 1025, 184595, geographic, 1529, 25, false}, // TWD67
    {3824, 1026, 184627, geographic, 97, 25, false}, // TWD97
    {3825, 3824, 184633, 2, 1711, 4, false}, // TWD97 / TM2 zone 119
    {3826, 3824, 184646, 3, 1710, 4, false}, // TWD97 / TM2 zone 121
    {3827, 3821, 184601, 2, 1727, 4, false}, // TWD67 / TM2 zone 119
    {3828, 3821, 184614, 3, 2002, 4, false}, // TWD67 / TM2 zone 121
    {3829, 4236, 64908, 1360, 1529, 4, false}, // Hu Tzu Shan 1950 / UTM zone 51N
    {3832, 4326, 206941, 4, 1444, 4, false}, // WGS 84 / PDC Mercator
    {3833, 4179, 152765, 1473, 1713, 5, false}, // Pulkovo 1942(58) / Gauss-Kruger zone 2
    {3834, 4178, 153467, 1473, 1713, 5, false}, // Pulkovo 1942(83) / Gauss-Kruger zone 2
    {3835, 4178, 153524, 1474, 1714, 5, false}, // Pulkovo 1942(83) / Gauss-Kruger zone 3
    {3836, 4178, 153581, 1475, 1716, 5, false}, // Pulkovo 1942(83) / Gauss-Kruger zone 4
    {3837, 4179, 152387, 1506, 308, 5, false}, // Pulkovo 1942(58) / 3-degree Gauss-Kruger zone 3
    {3838, 4179, 152460, 1507, 309, 5, false}, // Pulkovo 1942(58) / 3-degree Gauss-Kruger zone 4
    {3839, 4179, 152708, 1512, 1725, 5, false}, // Pulkovo 1942(58) / 3-degree Gauss-Kruger zone 9
    {3840, 4179, 152352, 1513, 1726, 5, false}, // Pulkovo 1942(58) / 3-degree Gauss-Kruger zone 10
    {3841, 4178, 153290, 1509, 1720, 5, false}, // Pulkovo 1942(83) / 3-degree Gauss-Kruger zone 6
    {3842, 4178, 153323, 1509, 1722, 5, true}, // Pulkovo 1942(83) / 3-degree Gauss-Kruger zone 7
    {3843, 4178, 153356, 1509, 1724, 5, true}, // Pulkovo 1942(83) / 3-degree Gauss-Kruger zone 8
    {3844, 4179, 153041, 2316, 86, 5, false}, // Pulkovo 1942(58) / Stereo70
    {3845, 4619, 176247, 1841, 1259, 5, false}, // SWEREF99 / RT90 7.5 gon V emulation
    {3846, 4619, 176221, 1842, 1260, 5, false}, // SWEREF99 / RT90 5 gon V emulation
    {3847, 4619, 176168, 1843, 1261, 5, false}, // SWEREF99 / RT90 2.5 gon V emulation
    {3848, 4619, 176117, 1844, 1262, 5, false}, // SWEREF99 / RT90 0 gon emulation
    {3849, 4619, 176141, 1845, 1263, 5, false}, // SWEREF99 / RT90 2.5 gon O emulation
    {3850, 4619, 176195, 1846, 1264, 5, false}, // SWEREF99 / RT90 5 gon O emulation
    {3851, 4167, 126167, 2027, 1729, 5, false}, // NZGD2000 / NZCS2000
    {3852, 4764, 164095, 2029, 1728, 5, false}, // RSRGD2000 / DGLC2000
    {3854, 4619, 34640, 5, 1743, 5, false}, // County ST74
    {3857, 4326, 206974, 6, 1695, 4, false}, // WGS 84 / Pseudo-Mercator
    {3873, 4258, 42382, 7, 1730, 5, false}, // ETRS89 / GK19FIN
    {3874, 4258, 42395, 8, 1731, 5, false}, // ETRS89 / GK20FIN
    {3875, 4258, 42408, 9, 1732, 5, false}, // ETRS89 / GK21FIN
    {3876, 4258, 42422, 10, 1733, 5, false}, // ETRS89 / GK22FIN
    {3877, 4258, 42436, 11, 1734, 5, false}, // ETRS89 / GK23FIN
    {3878, 4258, 42450, 12, 1735, 5, false}, // ETRS89 / GK24FIN
    {3879, 4258, 42464, 13, 1736, 5, false}, // ETRS89 / GK25FIN
    {3880, 4258, 42478, 14, 1737, 5, false}, // ETRS89 / GK26FIN
    {3881, 4258, 42492, 15, 1738, 5, false}, // ETRS89 / GK27FIN
    {3882, 4258, 42505, 16, 1739, 5, false}, // ETRS89 / GK28FIN
    {3883, 4258, 42519, 17, 1740, 5, false}, // ETRS89 / GK29FIN
    {3884, 4258, 42533, 18, 1741, 5, false}, // ETRS89 / GK30FIN
    {3885, 4258, 42546, 19, 1742, 5, false}, // ETRS89 / GK31FIN
    {3889, 1029, 66599, geographic, 48, 25, false}, // IGRS
    {3890, 3889, 66603, 1346, 1569, 4, false}, // IGRS / UTM zone 37N
    {3891, 3889, 66614, 1347, 1570, 4, false}, // IGRS / UTM zone 38N
    {3892, 3889, 66625, 1348, 1979, 4, false}, // IGRS / UTM zone 39N
    {3893, 4230, 38827, 2300, 1759, 4, false}, // ED50 / Iraq National Grid
    {3906, 1031, 84966, geographic, 1078, 25, false}, // MGI 1901
    {3907, 3906, 84973, 2180, 501, 5, true}, // MGI 1901 / Balkans zone 5
    {3908, 3906, 84988, 2181, 502, 5, true}, // MGI 1901 / Balkans zone 6
    {3909, 3906, 85003, 2182, 503, 5, true}, // MGI 1901 / Balkans zone 7
    {3910, 3906, 85018, 2183, 504, 5, true}, // MGI 1901 / Balkans zone 8
    {3911, 3906, 85054, 2355, 92, 5, true}, // MGI 1901 / Slovenia Grid
    {3912, 3906, 85033, 2241, 92, 4, false}, // MGI 1901 / Slovene National Grid
    {3920, 4139, 145304, 1329, 1533, 4, false}, // Puerto Rico / UTM zone 20N
    {3942, 4171, 161808, 2086, 1696, 4, false}, // RGF93 v1 / CC42
    {3943, 4171, 161822, 2087, 1697, 4, false}, // RGF93 v1 / CC43
    {3944, 4171, 161836, 2088, 1698, 4, false}, // RGF93 v1 / CC44
    {3945, 4171, 161850, 2089, 1699, 4, false}, // RGF93 v1 / CC45
    {3946, 4171, 161864, 2090, 1700, 4, false}, // RGF93 v1 / CC46
    {3947, 4171, 161878, 2091, 1701, 4, false}, // RGF93 v1 / CC47
    {3948, 4171, 161892, 2092, 1702, 4, false}, // RGF93 v1 / CC48
    {3949, 4171, 161906, 2093, 1703, 4, false}, // RGF93 v1 / CC49
    {3950, 4171, 161920, 2094, 1704, 4, false}, // RGF93 v1 / CC50
    {3968, 4269, 99477, 23, 215, 4, false}, // NAD83 / Virginia Lambert
    {3969, 4152, 116765, 23, 215, 4, false}, // NAD83(HARN) / Virginia Lambert
    {3970, 4759, 123287, 23, 215, 4, false}, // NAD83(NSRS2007) / Virginia Lambert
    {3973, 4326, 206671, 20, 1645, 4, true}, // WGS 84 / NSIDC EASE-Grid North
    {3974, 4326, 206694, 21, 1644, 4, true}, // WGS 84 / NSIDC EASE-Grid South
    {3975, 4326, 206644, 2262, 1638, 4, true}, // WGS 84 / NSIDC EASE-Grid Global
    {3976, 4326, 206749, 2261, 782, 4, false}, // WGS 84 / NSIDC Sea Ice Polar Stereographic South
    {3978, 4269, 96633, 24, 16, 4, false}, // NAD83 / Canada Atlas Lambert
    {3979, 4617, 110903, 24, 16, 4, false}, // NAD83(CSRS) / Canada Atlas Lambert
    {3985, 4695, 76848, 25, 1430, 4, true}, // Katanga 1955 / Katanga Lambert
    {3986, 4695, 76764, 26, 1747, 4, false}, // Katanga 1955 / Katanga Gauss zone A
    {3987, 4695, 76785, 27, 1746, 4, false}, // Katanga 1955 / Katanga Gauss zone B
    {3988, 4695, 76806, 28, 1745, 4, false}, // Katanga 1955 / Katanga Gauss zone C
    {3989, 4695, 76827, 29, 1744, 4, false}, // Katanga 1955 / Katanga Gauss zone D
    {3991, 4139, 145344, 1198, 1517, 8, false}, // Puerto Rico State Plane CS of 1927
    {3992, 4139, 145286, 1199, 1534, 8, false}, // Puerto Rico / St. Croix
    {3993, 4675, 62428, 1304, 1499, 4, false}, // Guam 1963 / Guam SPCS
    {3994, 4326, 206513, 2239, 1667, 4, false}, // WGS 84 / Mercator 41
    {3995, 4326, 204717, 2238, 781, 4, false}, // WGS 84 / Arctic Polar Stereographic
    {3996, 4326, 206293, 2236, 781, 4, false}, // WGS 84 / IBCAO Polar Stereographic
    {3997, 4326, 205039, 2235, 1688, 4, false}, // WGS 84 / Dubai Local TM
    {4001, 6001, 196339, geographic, 110, 25, true}, // Unknown datum based upon the Airy 1830 ellipsoid
    {4002, 6002, 196377, geographic, 110, 25, true}, // Unknown datum based upon the Airy Modified 1849 ellipsoid
    {4003, 6003, 196424, geographic, 110, 25, true}, // Unknown datum based upon the Australian National Spheroid
    {4004, 6004, 196548, geographic, 110, 25, true}, // Unknown datum based upon the Bessel 1841 ellipsoid
    {4005, 6005, 196589, geographic, 110, 25, true}, // Unknown datum based upon the Bessel Modified ellipsoid
    {4006, 6006, 196633, geographic, 110, 25, true}, // Unknown datum based upon the Bessel Namibia ellipsoid
    {4007, 6007, 196674, geographic, 110, 25, true}, // Unknown datum based upon the Clarke 1858 ellipsoid
    {4008, 6008, 196763, geographic, 110, 25, true}, // Unknown datum based upon the Clarke 1866 ellipsoid
    {4009, 6009, 196715, geographic, 110, 25, true}, // Unknown datum based upon the Clarke 1866 Michigan ellipsoid
    {4010, 6010, 196849, geographic, 110, 25, true}, // Unknown datum based upon the Clarke 1880 (Benoit) ellipsoid
    {4011, 6011, 196896, geographic, 110, 25, true}, // Unknown datum based upon the Clarke 1880 (IGN) ellipsoid
    {4012, 6012, 196942, geographic, 110, 25, true}, // Unknown datum based upon the Clarke 1880 (RGS) ellipsoid
    {4013, 6013, 196804, geographic, 110, 25, true}, // Unknown datum based upon the Clarke 1880 (Arc) ellipsoid
    {4014, 6014, 196988, geographic, 110, 25, true}, // Unknown datum based upon the Clarke 1880 (SGA 1922) ellipsoid
    {4015, 6015, 197126, geographic, 110, 25, true}, // Unknown datum based upon the Everest 1830 (1937 Adjustment) ellipsoid
    {4016, 6016, 197230, geographic, 110, 25, true}, // Unknown datum based upon the Everest 1830 (1967 Definition) ellipsoid
    {4018, 6018, 197332, geographic, 110, 25, true}, // Unknown datum based upon the Everest 1830 Modified ellipsoid
    {4019, 6019, 197454, geographic, 110, 25, true}, // Unknown datum based upon the GRS 1980 ellipsoid
    {4020, 6020, 197491, geographic, 110, 25, true}, // Unknown datum based upon the Helmert 1906 ellipsoid
    {4021, 6021, 197531, geographic, 110, 25, true}, // Unknown datum based upon the Indonesian National Spheroid
    {4022, 6022, 197568, geographic, 110, 25, true}, // Unknown datum based upon the International 1924 ellipsoid
    {4023, 1032, 85361, geographic, 70, 25, false}, // MOLDREF99
    {4024, 6024, 197610, geographic, 110, 25, true}, // Unknown datum based upon the Krassowsky 1940 ellipsoid
    {4025, 6025, 197654, geographic, 110, 25, true}, // Unknown datum based upon the NWL 9D ellipsoid
    {4026, 4023, 85371, 30, 70, 5, false}, // MOLDREF99 / Moldova TM
    {4027, 6027, 197768, geographic, 110, 25, true}, // Unknown datum based upon the Plessis 1817 ellipsoid
    {4028, 6028, 197810, geographic, 110, 25, true}, // Unknown datum based upon the Struve 1860 ellipsoid
    {4029, 6029, 197928, geographic, 110, 25, true}, // Unknown datum based upon the War Office ellipsoid
    {4030, 6030, 197890, geographic, 110, 25, true}, // Unknown datum based upon the WGS 84 ellipsoid
    {4031, 6031, 197379, geographic, 110, 25, true}, // Unknown datum based upon the GEM 10C ellipsoid
    {4032, 6032, 197692, geographic, 110, 25, true}, // Unknown datum based upon the OSU86F ellipsoid
    {4033, 6033, 197730, geographic, 110, 25, true}, // Unknown datum based upon the OSU91A ellipsoid
    {4034, 6034, 197037, geographic, 110, 25, true}, // Unknown datum based upon the Clarke 1880 ellipsoid
    {4035, 6035, 196463, geographic, 110, 23, true}, // Unknown datum based upon the Authalic Sphere
    {4036, 6036, 197417, geographic, 110, 25, true}, // Unknown datum based upon the GRS 1967 ellipsoid
    {4037, 4326, 209081, 1344, 1749, 5, false}, // WGS 84 / TMzn35N
    {4038, 4326, 209095, 1345, 1750, 5, false}, // WGS 84 / TMzn36N
    {4041, 6041, 196496, geographic, 110, 25, true}, // Unknown datum based upon the Average Terrestrial System 1977 ellipsoid
    {4042, 6042, 197078, geographic, 110, 25, true}, // Unknown datum based upon the Everest (1830 Definition) ellipsoid
    {4043, 6043, 197852, geographic, 110, 25, true}, // Unknown datum based upon the WGS 72 ellipsoid
    {4044, 6044, 197179, geographic, 110, 25, true}, // Unknown datum based upon the Everest 1830 (1962 Definition) ellipsoid
    {4045, 6045, 197281, geographic, 110, 25, true}, // Unknown datum based upon the Everest 1830 (1975 Definition) ellipsoid
    {4046, 1033, 162949, geographic, 1748, 25, false}, // RGRDC 2005
    {4047, 6047, 198013, geographic, 110, 25, true}, // Unspecified datum based upon the GRS 1980 Authalic Sphere
    {4048, 4046, 162958, 1867, 1963, 4, false}, // RGRDC 2005 / Congo TM zone 12
    {4049, 4046, 162976, 1868, 1434, 4, false}, // RGRDC 2005 / Congo TM zone 14
    {4050, 4046, 162994, 1869, 1751, 4, false}, // RGRDC 2005 / Congo TM zone 16
    {4051, 4046, 163012, 1870, 1752, 4, false}, // RGRDC 2005 / Congo TM zone 18
    {4052, 6052, 197967, geographic, 110, 25, true}, // Unspecified datum based upon the Clarke 1866 Authalic Sphere
    {4053, 6053, 198098, geographic, 110, 25, true}, // Unspecified datum based upon the International 1924 Authalic Sphere
    {4054, 6054, 198055, geographic, 110, 25, true}, // Unspecified datum based upon the Hughes 1980 ellipsoid
    {4055, 6055, 144309, geographic, 109, 25, true}, // Popular Visualisation CRS
    {4056, 4046, 163030, 1871, 1754, 4, false}, // RGRDC 2005 / Congo TM zone 20
    {4057, 4046, 163048, 1872, 1755, 4, false}, // RGRDC 2005 / Congo TM zone 22
    {4058, 4046, 163066, 1873, 1756, 4, false}, // RGRDC 2005 / Congo TM zone 24
    {4059, 4046, 163084, 1874, 1757, 4, false}, // RGRDC 2005 / Congo TM zone 26
    {4060, 4046, 163102, 1875, 1758, 4, false}, // RGRDC 2005 / Congo TM zone 28
    {4061, 4046, 163138, 1431, 1760, 4, false}, // RGRDC 2005 / UTM zone 33S
    {4062, 4046, 163154, 1432, 1761, 4, false}, // RGRDC 2005 / UTM zone 34S
    {4063, 4046, 163170, 1433, 1762, 4, false}, // RGRDC 2005 / UTM zone 35S
    {4071, 4224, 31091, 1421, 1753, 4, false}, // Chua / UTM zone 23S
    {4075, 1034, 175597, geographic, 2494, 25, false}, // SREF98
    {4081, 1035, 161404, geographic, 1468, 25, false}, // REGCAN95
    {4082, 4081, 161479, 1336, 1763, 4, false}, // REGCAN95 / UTM zone 27N
    {4083, 4081, 161495, 1337, 1764, 4, false}, // REGCAN95 / UTM zone 28N
    {4087, 4326, 210993, 31, 109, 4, false}, // WGS 84 / World Equidistant Cylindrical
    {4088, 4047, 218037, 32, 109, 4, true}, // World Equidistant Cylindrical (Sphere)
    {4093, 4258, 41947, 33, 1765, 4, false}, // ETRS89 / DKTM1
    {4094, 4258, 41958, 34, 1766, 4, false}, // ETRS89 / DKTM2
    {4095, 4258, 41969, 35, 1088, 4, false}, // ETRS89 / DKTM3
    {4096, 4258, 41980, 36, 1089, 4, false}, // ETRS89 / DKTM4
    {4120, 6120, 61541, geographic, 1498, 25, false}, // Greek
    {4121, 6121, 52824, geographic, 1498, 25, false}, // GGRS87
    {4122, 6122, 3851, geographic, 121, 25, false}, // ATS77
    {4123, 6123, 74803, geographic, 1535, 25, false}, // KKJ
    {4124, 6124, 164471, geographic, 96, 25, false}, // RT90
    {4125, 6125, 176748, geographic, 155, 23, true}, // Samboja
    {4126, 6126, 79872, geographic, 60, 23, true}, // LKS94 (ETRS89)
    {4127, 6127, 185455, geographic, 1512, 25, false}, // Tete
    {4128, 6128, 86441, geographic, 146, 25, false}, // Madzansua
    {4129, 6129, 136907, geographic, 156, 25, false}, // Observatario
    {4130, 6130, 92230, geographic, 71, 25, false}, // Moznet
    {4131, 6131, 68800, geographic, 2019, 25, false}, // Indian 1960
    {4132, 6132, 71111, geographic, 133, 25, false}, // FD58
    {4133, 6133, 41326, geographic, 1492, 25, false}, // EST92
    {4134, 6134, 141287, geographic, 1514, 25, false}, // PSD93
    {4135, 6135, 137557, geographic, 161, 25, false}, // Old Hawaiian
    {4136, 6136, 190249, geographic, 159, 25, false}, // St. Lawrence Island
    {4137, 6137, 190268, geographic, 160, 25, false}, // St. Paul Island
    {4138, 6138, 190232, geographic, 158, 25, false}, // St. George Island
    {4139, 6139, 145266, geographic, 162, 25, false}, // Puerto Rico
    {4140, 6140, 113864, geographic, 163, 23, true}, // NAD83(CSRS98)
    {4141, 6141, 71447, geographic, 1111, 25, false}, // Israel 1993
    {4142, 6142, 82556, geographic, 25, 25, false}, // Locodjo 1965
    {4143, 6143, 4231, geographic, 25, 25, false}, // Abidjan 1987
    {4144, 6144, 75304, geographic, 140, 25, false}, // Kalianpur 1937
    {4145, 6145, 75361, geographic, 79, 25, false}, // Kalianpur 1962
    {4146, 6146, 75448, geographic, 1539, 25, false}, // Kalianpur 1975
    {4147, 6147, 63433, geographic, 1532, 25, false}, // Hanoi 1972
    {4148, 6148, 63599, geographic, 2491, 25, false}, // Hartebeesthoek94
    {4149, 6149, 26191, geographic, 123, 25, false}, // CH1903
    {4150, 6150, 26233, geographic, 123, 25, false}, // CH1903+
    {4151, 6151, 26297, geographic, 123, 25, false}, // CHTRS95
    {4152, 6152, 114146, geographic, 164, 25, false}, // NAD83(HARN)
    {4153, 6153, 165043, geographic, 165, 25, false}, // Rassadiran
    {4154, 6154, 39098, geographic, 47, 25, false}, // ED50(ED77)
    {4155, 6155, 36903, geographic, 1500, 25, false}, // Dabola 1981
    {4156, 6156, 168096, geographic, 138, 25, false}, // S-JTSK
    {4157, 6157, 91975, geographic, 151, 25, false}, // Mount Dillon
    {4158, 6158, 127601, geographic, 1427, 25, false}, // Naparima 1955
    {4159, 6159, 39282, geographic, 58, 25, false}, // ELD79
    {4160, 6160, 30956, geographic, 2509, 25, false}, // Chos Malal 1914
    {4161, 6161, 142022, geographic, 2510, 25, false}, // Pampa del Castillo
    {4162, 6162, 78582, geographic, 1503, 25, false}, // Korean 1985
    {4163, 6163, 220671, geographic, 107, 25, false}, // Yemen NGN96
    {4164, 6164, 181068, geographic, 167, 25, false}, // South Yemen
    {4165, 6165, 22391, geographic, 1501, 25, false}, // Bissau
    {4166, 6166, 78795, geographic, 1503, 25, false}, // Korean 1995
    {4167, 6167, 125736, geographic, 75, 25, false}, // NZGD2000
    {4168, 6168, 4346, geographic, 40, 25, false}, // Accra
    {4169, 6169, 6247, geographic, 1409, 25, false}, // American Samoa 1962
    {4170, 6170, 169020, geographic, 1625, 25, false}, // SIRGAS 1995
    {4171, 6171, 161767, geographic, 36, 25, false}, // RGF93 v1
    {4172, 6172, 140411, geographic, 6, 23, true}, // POSGAR
    {4173, 6173, 66889, geographic, 137, 25, false}, // IRENET95
    {4174, 6174, 178151, geographic, 168, 25, false}, // Sierra Leone 1924
    {4175, 6175, 178213, geographic, 1524, 25, false}, // Sierra Leone 1968
    {4176, 6176, 16090, geographic, 119, 25, false}, // Australian Antarctic
    {4178, 6178, 153063, geographic, 1947, 25, false}, // Pulkovo 1942(83)
    {4179, 6179, 152337, geographic, 1712, 25, false}, // Pulkovo 1942(58)
    {4180, 6180, 41332, geographic, 32, 25, false}, // EST97
    {4181, 6181, 79960, geographic, 61, 25, false}, // LUREF
    {4182, 6182, 17043, geographic, 169, 25, false}, // Azores Occidental 1939
    {4183, 6183, 16959, geographic, 134, 25, false}, // Azores Central 1948
    {4184, 6184, 17100, geographic, 170, 25, false}, // Azores Oriental 1940
    {4185, 6185, 86239, geographic, 145, 23, true}, // Madeira 1936
    {4188, 6188, 136809, geographic, 1086, 25, false}, // OSNI 1952
    {4189, 6189, 171201, geographic, 105, 25, false}, // REGVEN
    {4190, 6190, 140707, geographic, 6, 25, false}, // POSGAR 98
    {4191, 6191, 5785, geographic, 1477, 25, false}, // Albanian 1987
    {4192, 6192, 38219, geographic, 1093, 25, false}, // Douala 1948
    {4193, 6193, 87316, geographic, 1093, 25, false}, // Manoca 1962
    {4194, 6194, 160511, geographic, 1545, 25, false}, // Qornoq 1927
    {4195, 6195, 177546, geographic, 1098, 25, false}, // Scoresbysund 1952
    {4196, 6196, 6337, geographic, 1099, 25, false}, // Ammassalik 1958
    {4197, 6197, 60159, geographic, 1107, 25, false}, // Garoua
    {4198, 6198, 78927, geographic, 1108, 25, false}, // Kousseri
    {4199, 6199, 44307, geographic, 1490, 25, false}, // Egypt 1930
    {4200, 6200, 153607, geographic, 87, 25, false}, // Pulkovo 1995
    {4201, 6201, 4470, geographic, 112, 25, false}, // Adindan
    {4202, 6202, 15196, geographic, 120, 25, false}, // AGD66
    {4203, 6203, 15395, geographic, 1103, 25, false}, // AGD84
    {4204, 6204, 5205, geographic, 113, 25, false}, // Ain el Abd
    {4205, 6205, 4561, geographic, 1525, 25, false}, // Afgooye
    {4206, 6206, 5199, geographic, 76, 25, false}, // Agadez
    {4207, 6207, 81670, geographic, 129, 25, false}, // Lisbon
    {4208, 6208, 22969, geographic, 115, 25, false}, // Aratu
    {4209, 6209, 10091, geographic, 117, 25, false}, // Arc 1950
    {4210, 6210, 10136, geographic, 118, 25, false}, // Arc 1960
    {4211, 6211, 18644, geographic, 1796, 25, false}, // Batavia
    {4212, 6212, 18415, geographic, 1480, 25, false}, // Barbados 1938
    {4213, 6213, 18930, geographic, 1214, 25, false}, // Beduaram
    {4214, 6214, 18963, geographic, 20, 25, false}, // Beijing 1954
    {4215, 6215, 17523, geographic, 172, 25, false}, // BD50
    {4216, 6216, 21493, geographic, 1482, 25, false}, // Bermuda 1957
    {4217, 4269, 96352, 57, 1554, 8, false}, // NAD83 / BLM 59N (ftUS)
    {4218, 6218, 22533, geographic, 1809, 25, false}, // Bogota 1975
    {4219, 6219, 24065, geographic, 124, 25, false}, // Bukit Rimpah
    {4220, 6220, 27190, geographic, 125, 25, false}, // Camacupa 1948
    {4221, 6221, 27403, geographic, 1902, 25, false}, // Campo Inchauspe
    {4222, 6222, 29102, geographic, 126, 25, false}, // Cape
    {4223, 6223, 29507, geographic, 100, 25, false}, // Carthage
    {4224, 6224, 31086, geographic, 1544, 25, false}, // Chua
    {4225, 6225, 34181, geographic, 128, 25, false}, // Corrego Alegre 1970-72
    {4226, 6226, 34517, geographic, 25, 23, true}, // Cote d'Ivoire
    {4227, 6227, 37585, geographic, 416, 25, false}, // Deir ez Zor
    {4228, 6228, 38202, geographic, 15, 23, true}, // Douala
    {4229, 6229, 44222, geographic, 29, 25, false}, // Egypt 1907
    {4230, 6230, 38622, geographic, 130, 25, false}, // ED50
    {4231, 6231, 39238, geographic, 131, 25, false}, // ED87
    {4232, 6232, 47711, geographic, 2021, 25, false}, // Fahud
    {4233, 6233, 60137, geographic, 66, 25, true}, // Gandajika 1970
    {4234, 6234, 60159, geographic, 15, 23, true}, // Garoua
    {4235, 6235, 62942, geographic, 37, 23, true}, // Guyane Francaise
    {4236, 6236, 64895, geographic, 1529, 25, false}, // Hu Tzu Shan 1950
    {4237, 6237, 62974, geographic, 43, 25, false}, // HD72
    {4238, 6238, 65159, geographic, 2025, 25, false}, // ID74
    {4239, 6239, 68755, geographic, 136, 25, false}, // Indian 1954
    {4240, 6240, 68846, geographic, 1829, 25, false}, // Indian 1975
    {4241, 6241, 73476, geographic, 1540, 25, false}, // Jamaica 1875
    {4242, 6242, 71870, geographic, 1540, 25, false}, // JAD69
    {4243, 6243, 75188, geographic, 139, 25, false}, // Kalianpur 1880
    {4244, 6244, 75726, geographic, 1526, 25, false}, // Kandawala
    {4245, 6245, 77423, geographic, 2203, 25, false}, // Kertau 1968
    {4246, 6246, 74907, geographic, 1504, 25, false}, // KOC
    {4247, 6247, 80027, geographic, 1531, 25, false}, // La Canoa
    {4248, 6248, 141066, geographic, 173, 25, false}, // PSAD56
    {4249, 6249, 193531, geographic, 143, 25, false}, // Lake
    {4250, 6250, 80918, geographic, 40, 25, false}, // Leigon
    {4251, 6251, 80979, geographic, 1506, 25, false}, // Liberia 1964
    {4252, 6252, 82707, geographic, 98, 25, false}, // Lome
    {4253, 6253, 82947, geographic, 1990, 25, false}, // Luzon 1911
    {4254, 6254, 64374, geographic, 135, 25, false}, // Hito XVIII 1963
    {4255, 6255, 64319, geographic, 0, 25, false}, // Herat North
    {4256, 6256, 86464, geographic, 1077, 25, false}, // Mahe 1971
    {4257, 6257, 86744, geographic, 147, 25, false}, // Makassar
    {4258, 6258, 175556, geographic, 132, 25, false}, // ETRS89
    {4259, 6259, 87197, geographic, 1452, 25, false}, // Malongo 1987
    {4260, 6260, 87310, geographic, 15, 23, true}, // Manoca
    {4261, 6261, 88720, geographic, 2523, 25, false}, // Merchich
    {4262, 6262, 88228, geographic, 31, 25, false}, // Massawa
    {4263, 6263, 90146, geographic, 77, 25, false}, // Minna
    {4264, 6264, 89381, geographic, 148, 25, true}, // Mhast
    {4265, 6265, 91564, geographic, 1541, 25, false}, // Monte Mario
    {4266, 6266, 83089, geographic, 39, 25, false}, // M'poraloko
    {4267, 6267, 27837, geographic, 174, 25, false}, // NAD27
    {4268, 6268, 95026, geographic, 202, 25, true}, // NAD27 Michigan
    {4269, 6269, 133011, geographic, 175, 25, false}, // NAD83
    {4270, 6270, 127260, geographic, 176, 25, false}, // Nahrwan 1967
    {4271, 6271, 127629, geographic, 151, 25, false}, // Naparima 1972
    {4272, 6272, 126473, geographic, 1513, 25, false}, // NZGD49
    {4273, 6273, 124976, geographic, 177, 25, false}, // NGO 1948
    {4274, 6274, 37052, geographic, 129, 25, false}, // Datum 73
    {4275, 6275, 125368, geographic, 1815, 25, false}, // NTF
    {4276, 6276, 125341, geographic, 109, 25, false}, // NSWC 9Z-2
    {4277, 6277, 136755, geographic, 2360, 25, false}, // OSGB36
    {4278, 6278, 136783, geographic, 111, 25, false}, // OSGB70
    {4279, 6279, 136726, geographic, 178, 25, false}, // OS(SN)80
    {4280, 6280, 141690, geographic, 179, 25, true}, // Padang
    {4281, 6281, 141869, geographic, 180, 25, false}, // Palestine 1923
    {4282, 6282, 32951, geographic, 23, 25, false}, // Pointe Noire
    {4283, 6283, 52058, geographic, 2164, 25, false}, // GDA94
    {4284, 6284, 145555, geographic, 1082, 25, false}, // Pulkovo 1942
    {4285, 6285, 160424, geographic, 85, 25, false}, // Qatar 1974
    {4286, 6286, 160402, geographic, 171, 25, false}, // Qatar 1948
    {4287, 6287, 160505, geographic, 41, 23, true}, // Qornoq
    {4288, 6288, 82687, geographic, 144, 25, false}, // Loma Quintana
    {4289, 6289, 6302, geographic, 116, 25, false}, // Amersfoort
    {4291, 6291, 23156, geographic, 181, 23, true}, // SAD69
    {4292, 6292, 177027, geographic, 1493, 25, false}, // Sapper Hill 1943
    {4293, 6293, 177356, geographic, 72, 25, false}, // Schwarzeck
    {4294, 6294, 177668, geographic, 182, 23, true}, // Segora
    {4295, 6295, 177902, geographic, 2017, 25, false}, // Serindung
    {4296, 6296, 4948, geographic, 184, 23, true}, // Sudan
    {4297, 6297, 185020, geographic, 64, 25, false}, // Tananarive
    {4298, 6298, 185986, geographic, 185, 25, false}, // Timbalai 1948
    {4299, 6299, 183937, geographic, 137, 25, false}, // TM65
    {4300, 6300, 183984, geographic, 137, 25, false}, // TM75
    {4301, 6301, 186211, geographic, 187, 25, false}, // Tokyo
    {4302, 6302, 187096, geographic, 166, 25, false}, // Trinidad 1903
    {4303, 6303, 183770, geographic, 186, 25, false}, // TC(1948)
    {4304, 6304, 200609, geographic, 188, 25, false}, // Voirol 1875
    {4306, 6306, 21630, geographic, 123, 25, false}, // Bern 1938
    {4307, 6307, 132159, geographic, 2, 25, false}, // Nord Sahara 1959
    {4308, 6308, 164217, geographic, 1528, 25, false}, // RT38
    {4309, 6309, 220445, geographic, 1530, 25, false}, // Yacare
    {4310, 6310, 220803, geographic, 89, 25, false}, // Yoff
    {4311, 6311, 220929, geographic, 95, 25, false}, // Zanderij
    {4312, 6312, 84400, geographic, 7, 25, false}, // MGI
    {4313, 6313, 17566, geographic, 172, 25, false}, // BD72
    {4314, 6314, 35941, geographic, 1072, 25, false}, // DHDN
    {4315, 6315, 32851, geographic, 1500, 25, false}, // Conakry 1905
    {4316, 6316, 37308, geographic, 1518, 25, false}, // Dealul Piscului 1930
    {4317, 6317, 37391, geographic, 86, 25, true}, // Dealul Piscului 1970
    {4318, 6318, 124924, geographic, 1504, 25, false}, // NGN
    {4319, 6319, 75146, geographic, 142, 25, false}, // KUDAMS
    {4322, 6322, 200912, geographic, 109, 25, false}, // WGS 72
    {4324, 6324, 215178, geographic, 109, 25, false}, // WGS 72BE
    {4326, 6326, 204536, geographic, 109, 25, false}, // WGS 84
    {4390, 4245, 77432, 50, 1558, 4, false}, // Kertau 1968 / Johor Grid
    {4391, 4245, 77571, 51, 1559, 4, false}, // Kertau 1968 / Sembilan and Melaka Grid
    {4392, 4245, 77492, 52, 1560, 4, false}, // Kertau 1968 / Pahang Grid
    {4393, 4245, 77552, 53, 1561, 4, false}, // Kertau 1968 / Selangor Grid
    {4394, 4245, 77616, 56, 1562, 4, false}, // Kertau 1968 / Terengganu Grid
    {4395, 4245, 77534, 59, 1563, 4, false}, // Kertau 1968 / Pinang Grid
    {4396, 4245, 77450, 60, 1564, 4, false}, // Kertau 1968 / Kedah and Perlis Grid
    {4397, 4245, 77510, 61, 1565, 4, false}, // Kertau 1968 / Perak Revised Grid
    {4398, 4245, 77473, 62, 1566, 4, false}, // Kertau 1968 / Kelantan Grid
    {4399, 4267, 93134, 57, 1554, 8, false}, // NAD27 / BLM 59N (ftUS)
    {4400, 4267, 93167, 58, 1555, 8, false}, // NAD27 / BLM 60N (ftUS)
    {4401, 4267, 93070, 37, 1556, 8, false}, // NAD27 / BLM 1N (ftUS)
    {4402, 4267, 93086, 38, 1557, 8, false}, // NAD27 / BLM 2N (ftUS)
    {4403, 4267, 93102, 39, 918, 8, false}, // NAD27 / BLM 3N (ftUS)
    {4404, 4267, 93118, 40, 919, 8, false}, // NAD27 / BLM 4N (ftUS)
    {4405, 4267, 93151, 41, 920, 8, false}, // NAD27 / BLM 5N (ftUS)
    {4406, 4267, 93184, 42, 921, 8, false}, // NAD27 / BLM 6N (ftUS)
    {4407, 4267, 93200, 43, 1654, 8, false}, // NAD27 / BLM 7N (ftUS)
    {4408, 4267, 93216, 44, 1655, 8, false}, // NAD27 / BLM 8N (ftUS)
    {4409, 4267, 93232, 45, 1656, 8, false}, // NAD27 / BLM 9N (ftUS)
    {4410, 4267, 92844, 46, 1657, 8, false}, // NAD27 / BLM 10N (ftUS)
    {4411, 4267, 92860, 47, 1658, 8, false}, // NAD27 / BLM 11N (ftUS)
    {4412, 4267, 92876, 48, 1659, 8, false}, // NAD27 / BLM 12N (ftUS)
    {4413, 4267, 92893, 49, 1660, 8, false}, // NAD27 / BLM 13N (ftUS)
    {4414, 4152, 114719, 63, 1499, 4, false}, // NAD83(HARN) / Guam Map Grid
    {4415, 4695, 76848, 64, 1430, 4, false}, // Katanga 1955 / Katanga Lambert
    {4417, 4178, 153323, 1510, 1722, 5, false}, // Pulkovo 1942(83) / 3-degree Gauss-Kruger zone 7
    {4418, 4267, 93038, 54, 1665, 8, false}, // NAD27 / BLM 18N (ftUS)
    {4419, 4267, 93055, 55, 1666, 8, false}, // NAD27 / BLM 19N (ftUS)
    {4420, 4269, 96381, 58, 1555, 8, false}, // NAD83 / BLM 60N (ftUS)
    {4421, 4269, 96296, 37, 1556, 8, false}, // NAD83 / BLM 1N (ftUS)
    {4422, 4269, 96310, 38, 1557, 8, false}, // NAD83 / BLM 2N (ftUS)
    {4423, 4269, 96324, 39, 918, 8, false}, // NAD83 / BLM 3N (ftUS)
    {4424, 4269, 96338, 40, 919, 8, false}, // NAD83 / BLM 4N (ftUS)
    {4425, 4269, 96367, 41, 920, 8, false}, // NAD83 / BLM 5N (ftUS)
    {4426, 4269, 96396, 42, 921, 8, false}, // NAD83 / BLM 6N (ftUS)
    {4427, 4269, 96410, 43, 1654, 8, false}, // NAD83 / BLM 7N (ftUS)
    {4428, 4269, 96424, 44, 1655, 8, false}, // NAD83 / BLM 8N (ftUS)
    {4429, 4269, 96438, 45, 1656, 8, false}, // NAD83 / BLM 9N (ftUS)
    {4430, 4269, 96150, 46, 1657, 8, false}, // NAD83 / BLM 10N (ftUS)
    {4431, 4269, 96164, 47, 1658, 8, false}, // NAD83 / BLM 11N (ftUS)
    {4432, 4269, 96178, 48, 1659, 8, false}, // NAD83 / BLM 12N (ftUS)
    {4433, 4269, 96193, 49, 1660, 8, false}, // NAD83 / BLM 13N (ftUS)
    {4434, 4178, 153356, 1511, 1724, 5, false}, // Pulkovo 1942(83) / 3-degree Gauss-Kruger zone 8
    {4437, 4759, 122447, 1200, 1768, 4, false}, // NAD83(NSRS2007) / Puerto Rico and Virgin Is.
    {4438, 4269, 96268, 54, 1665, 8, false}, // NAD83 / BLM 18N (ftUS)
    {4439, 4269, 96283, 55, 1666, 8, false}, // NAD83 / BLM 19N (ftUS)
    {4455, 4267, 94379, 65, 1031, 8, false}, // NAD27 / Pennsylvania South
    {4456, 4267, 94248, 66, 1020, 8, false}, // NAD27 / New York Long Island
    {4457, 4269, 98874, 1298, 1034, 8, false}, // NAD83 / South Dakota North (ftUS)
    {4462, 4326, 204832, 67, 1102, 4, false}, // WGS 84 / Australian Centre for Remote Sensing Lambert
    {4463, 1038, 163301, geographic, 94, 25, false}, // RGSPM06
    {4467, 4463, 163336, 1330, 94, 4, false}, // RGSPM06 / UTM zone 21N
    {4470, 1036, 162482, geographic, 68, 25, false}, // RGM04
    {4471, 4470, 162514, 1436, 68, 4, false}, // RGM04 / UTM zone 38S
    {4474, 4632, 26867, 1436, 1538, 4, true}, // Cadastre 1997 / UTM zone 38S
    {4475, 1037, 26857, geographic, 1538, 25, false}, // Cadastre 1997
    {4483, 1042, 89120, geographic, 69, 25, false}, // Mexico ITRF92
    {4484, 4483, 89148, 1320, 1601, 4, false}, // Mexico ITRF92 / UTM zone 11N
    {4485, 4483, 89167, 1321, 1602, 4, false}, // Mexico ITRF92 / UTM zone 12N
    {4486, 4483, 89186, 1322, 1603, 4, false}, // Mexico ITRF92 / UTM zone 13N
    {4487, 4483, 89205, 1323, 1604, 4, false}, // Mexico ITRF92 / UTM zone 14N
    {4488, 4483, 89224, 1324, 1767, 4, false}, // Mexico ITRF92 / UTM zone 15N
    {4489, 4483, 89243, 1325, 1769, 4, false}, // Mexico ITRF92 / UTM zone 16N
    {4490, 1043, 30839, geographic, 20, 25, false}, // China Geodetic Coordinate System 2000
    {4491, 4490, 25851, 1484, 382, 5, false}, // CGCS2000 / Gauss-Kruger zone 13
    {4492, 4490, 25871, 1485, 383, 5, false}, // CGCS2000 / Gauss-Kruger zone 14
    {4493, 4490, 25891, 1486, 384, 5, false}, // CGCS2000 / Gauss-Kruger zone 15
    {4494, 4490, 25911, 1487, 385, 5, false}, // CGCS2000 / Gauss-Kruger zone 16
    {4495, 4490, 25931, 1488, 386, 5, false}, // CGCS2000 / Gauss-Kruger zone 17
    {4496, 4490, 25951, 1489, 1967, 5, false}, // CGCS2000 / Gauss-Kruger zone 18
    {4497, 4490, 25971, 1490, 1968, 5, false}, // CGCS2000 / Gauss-Kruger zone 19
    {4498, 4490, 25991, 1491, 1969, 5, false}, // CGCS2000 / Gauss-Kruger zone 20
    {4499, 4490, 26011, 1492, 1970, 5, false}, // CGCS2000 / Gauss-Kruger zone 21
    {4500, 4490, 26031, 1493, 1971, 5, false}, // CGCS2000 / Gauss-Kruger zone 22
    {4501, 4490, 26051, 1494, 392, 5, false}, // CGCS2000 / Gauss-Kruger zone 23
    {4502, 4490, 25736, 1554, 382, 5, false}, // CGCS2000 / Gauss-Kruger CM 75E
    {4503, 4490, 25759, 1555, 383, 5, false}, // CGCS2000 / Gauss-Kruger CM 81E
    {4504, 4490, 25782, 1556, 384, 5, false}, // CGCS2000 / Gauss-Kruger CM 87E
    {4505, 4490, 25805, 1557, 385, 5, false}, // CGCS2000 / Gauss-Kruger CM 93E
    {4506, 4490, 25828, 1558, 386, 5, false}, // CGCS2000 / Gauss-Kruger CM 99E
    {4507, 4490, 25595, 1559, 1967, 5, false}, // CGCS2000 / Gauss-Kruger CM 105E
    {4508, 4490, 25618, 1560, 1968, 5, false}, // CGCS2000 / Gauss-Kruger CM 111E
    {4509, 4490, 25641, 1561, 1969, 5, false}, // CGCS2000 / Gauss-Kruger CM 117E
    {4510, 4490, 25664, 1562, 1970, 5, false}, // CGCS2000 / Gauss-Kruger CM 123E
    {4511, 4490, 25688, 1563, 1971, 5, false}, // CGCS2000 / Gauss-Kruger CM 129E
    {4512, 4490, 25712, 1564, 392, 5, false}, // CGCS2000 / Gauss-Kruger CM 135E
    {4513, 4490, 25028, 1528, 1170, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger zone 25
    {4514, 4490, 25055, 1529, 1171, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger zone 26
    {4515, 4490, 25082, 1530, 1172, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger zone 27
    {4516, 4490, 25109, 1531, 1173, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger zone 28
    {4517, 4490, 25136, 1532, 1174, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger zone 29
    {4518, 4490, 25163, 1533, 1175, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger zone 30
    {4519, 4490, 25190, 1534, 1176, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger zone 31
    {4520, 4490, 25217, 1535, 1177, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger zone 32
    {4521, 4490, 25244, 1536, 1178, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger zone 33
    {4522, 4490, 25271, 1537, 1179, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger zone 34
    {4523, 4490, 25298, 1538, 1180, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger zone 35
    {4524, 4490, 25325, 1539, 1181, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger zone 36
    {4525, 4490, 25352, 1540, 1182, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger zone 37
    {4526, 4490, 25379, 1541, 1183, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger zone 38
    {4527, 4490, 25406, 1542, 1184, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger zone 39
    {4528, 4490, 25433, 1372, 1185, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger zone 40
    {4529, 4490, 25460, 1373, 1186, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger zone 41
    {4530, 4490, 25487, 1374, 1187, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger zone 42
    {4531, 4490, 25514, 1375, 1188, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger zone 43
    {4532, 4490, 25541, 1376, 1189, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger zone 44
    {4533, 4490, 25568, 1377, 1190, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger zone 45
    {4534, 4490, 24758, 1554, 1170, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger CM 75E
    {4535, 4490, 24788, 1584, 1171, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger CM 78E
    {4536, 4490, 24818, 1555, 1172, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger CM 81E
    {4537, 4490, 24848, 1585, 1173, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger CM 84E
    {4538, 4490, 24878, 1556, 1174, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger CM 87E
    {4539, 4490, 24908, 1586, 1175, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger CM 90E
    {4540, 4490, 24938, 1557, 1176, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger CM 93E
    {4541, 4490, 24968, 1587, 1177, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger CM 96E
    {4542, 4490, 24998, 1558, 1178, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger CM 99E
    {4543, 4490, 24393, 1588, 1179, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger CM 102E
    {4544, 4490, 24423, 1559, 1180, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger CM 105E
    {4545, 4490, 24453, 1589, 1181, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger CM 108E
    {4546, 4490, 24483, 1560, 1182, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger CM 111E
    {4547, 4490, 24513, 1590, 1183, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger CM 114E
    {4548, 4490, 24543, 1561, 1184, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger CM 117E
    {4549, 4490, 24573, 1460, 1185, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger CM 120E
    {4550, 4490, 24603, 1562, 1186, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger CM 123E
    {4551, 4490, 24634, 1461, 1187, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger CM 126E
    {4552, 4490, 24665, 1563, 1188, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger CM 129E
    {4553, 4490, 24696, 1462, 1189, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger CM 132E
    {4554, 4490, 24727, 1564, 1190, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger CM 135E
    {4555, 1045, 128130, geographic, 1484, 25, false}, // New Beijing
    {4558, 1047, 163807, geographic, 1241, 25, false}, // RRAF 1991
    {4559, 4558, 163816, 1329, 1884, 4, false}, // RRAF 1991 / UTM zone 20N
    {4568, 4555, 129756, 1484, 382, 5, false}, // New Beijing / Gauss-Kruger zone 13
    {4569, 4555, 129779, 1485, 383, 5, false}, // New Beijing / Gauss-Kruger zone 14
    {4570, 4555, 129802, 1486, 384, 5, false}, // New Beijing / Gauss-Kruger zone 15
    {4571, 4555, 129825, 1487, 385, 5, false}, // New Beijing / Gauss-Kruger zone 16
    {4572, 4555, 129848, 1488, 386, 5, false}, // New Beijing / Gauss-Kruger zone 17
    {4573, 4555, 129871, 1489, 387, 5, false}, // New Beijing / Gauss-Kruger zone 18
    {4574, 4555, 129894, 1490, 388, 5, false}, // New Beijing / Gauss-Kruger zone 19
    {4575, 4555, 129917, 1491, 389, 5, false}, // New Beijing / Gauss-Kruger zone 20
    {4576, 4555, 129940, 1492, 390, 5, false}, // New Beijing / Gauss-Kruger zone 21
    {4577, 4555, 129963, 1493, 391, 5, false}, // New Beijing / Gauss-Kruger zone 22
    {4578, 4555, 129986, 1494, 392, 5, false}, // New Beijing / Gauss-Kruger zone 23
    {4579, 4555, 129626, 1554, 382, 5, false}, // New Beijing / Gauss-Kruger CM 75E
    {4580, 4555, 129652, 1555, 383, 5, false}, // New Beijing / Gauss-Kruger CM 81E
    {4581, 4555, 129678, 1556, 384, 5, false}, // New Beijing / Gauss-Kruger CM 87E
    {4582, 4555, 129704, 1557, 385, 5, false}, // New Beijing / Gauss-Kruger CM 93E
    {4583, 4555, 129730, 1558, 386, 5, false}, // New Beijing / Gauss-Kruger CM 99E
    {4584, 4555, 129467, 1559, 387, 5, false}, // New Beijing / Gauss-Kruger CM 105E
    {4585, 4555, 129493, 1560, 388, 5, false}, // New Beijing / Gauss-Kruger CM 111E
    {4586, 4555, 129519, 1561, 389, 5, false}, // New Beijing / Gauss-Kruger CM 117E
    {4587, 4555, 129545, 1562, 390, 5, false}, // New Beijing / Gauss-Kruger CM 123E
    {4588, 4555, 129572, 1563, 391, 5, false}, // New Beijing / Gauss-Kruger CM 129E
    {4589, 4555, 129599, 1564, 392, 5, false}, // New Beijing / Gauss-Kruger CM 135E
    {4600, 6600, 6710, geographic, 1478, 25, false}, // Anguilla 1957
    {4601, 6601, 9913, geographic, 114, 25, false}, // Antigua 1943
    {4602, 6602, 38100, geographic, 1489, 25, false}, // Dominica 1945
    {4603, 6603, 62208, geographic, 346, 25, false}, // Grenada 1953
    {4604, 6604, 91778, geographic, 1511, 25, false}, // Montserrat 1958
    {4605, 6605, 182092, geographic, 1519, 25, false}, // St. Kitts 1955
    {4606, 6606, 182132, geographic, 1520, 25, false}, // St. Lucia 1955
    {4607, 6607, 182240, geographic, 1522, 25, false}, // St. Vincent 1945
    {4608, 6608, 95036, geographic, 190, 25, false}, // NAD27(76)
    {4609, 6609, 95213, geographic, 191, 25, false}, // NAD27(CGQ77)
    {4610, 6610, 218697, geographic, 1484, 25, false}, // Xian 1980
    {4611, 6611, 64657, geographic, 42, 25, false}, // Hong Kong 1980
    {4612, 6612, 72020, geographic, 52, 25, false}, // JGD2000
    {4613, 6613, 62747, geographic, 183, 25, false}, // Segara
    {4614, 6614, 160341, geographic, 171, 25, false}, // QND95
    {4615, 6615, 144498, geographic, 145, 25, false}, // Porto Santo
    {4616, 6616, 177689, geographic, 1222, 25, false}, // Selvagem Grande
    {4617, 6140, 110739, geographic, 16, 25, false}, // NAD83(CSRS)
    {4618, 6618, 23156, geographic, 181, 25, false}, // SAD69
    {4619, 6619, 176108, geographic, 96, 25, false}, // SWEREF99
    {4620, 6620, 144010, geographic, 1226, 25, false}, // Point 58
    {4621, 6621, 49732, geographic, 1244, 25, false}, // Fort Marigot
    {4622, 6622, 62387, geographic, 1245, 25, false}, // Guadeloupe 1948
    {4623, 6623, 26774, geographic, 1405, 25, false}, // CSG67
    {4624, 6624, 162349, geographic, 37, 25, false}, // RGFG95
    {4625, 6625, 88003, geographic, 1509, 25, false}, // Martinique 1938
    {4626, 6626, 166333, geographic, 1536, 25, false}, // Reunion 1947
    {4627, 6627, 162877, geographic, 1948, 25, false}, // RGR92
    {4628, 6628, 184771, geographic, 1228, 25, false}, // Tahiti 52
    {4629, 6629, 184730, geographic, 1229, 25, false}, // Tahaa 54
    {4630, 6630, 66450, geographic, 1423, 25, false}, // IGN72 Nuku Hiva
    {4631, 6631, 74784, geographic, 1233, 25, true}, // K0 1949
    {4632, 6632, 32779, geographic, 1538, 25, false}, // Combani 1950
    {4633, 6633, 66260, geographic, 1231, 25, false}, // IGN56 Lifou
    {4634, 6634, 66382, geographic, 1239, 23, true}, // IGN72 Grand Terre
    {4635, 6635, 175976, geographic, 1230, 25, true}, // ST87 Ouvea
    {4636, 6636, 143273, geographic, 1234, 25, false}, // Petrels 1972
    {4637, 6637, 144038, geographic, 1235, 25, false}, // Perroud 1950
    {4638, 6638, 176543, geographic, 1521, 25, false}, // Saint Pierre et Miquelon 1950
    {4639, 6639, 85470, geographic, 1232, 25, false}, // MOP78
    {4640, 6640, 163807, geographic, 1241, 25, true}, // RRAF 1991
    {4641, 6641, 66173, geographic, 1236, 25, false}, // IGN53 Mare
    {4642, 6642, 175903, geographic, 1237, 25, false}, // ST84 Ile des Pins
    {4643, 6643, 175850, geographic, 1238, 25, false}, // ST71 Belep
    {4644, 6644, 124780, geographic, 1240, 25, false}, // NEA74 Noumea
    {4645, 6645, 162569, geographic, 74, 25, true}, // RGNC 1991
    {4646, 6646, 61331, geographic, 1227, 25, false}, // Grand Comoros
    {4647, 4258, 43351, 68, 1271, 4, false}, // ETRS89 / UTM zone 32N (zE-N)
    {4652, 4555, 128837, 1528, 1170, 5, false}, // New Beijing / 3-degree Gauss-Kruger zone 25
    {4653, 4555, 128867, 1529, 1171, 5, false}, // New Beijing / 3-degree Gauss-Kruger zone 26
    {4654, 4555, 128897, 1530, 1172, 5, false}, // New Beijing / 3-degree Gauss-Kruger zone 27
    {4655, 4555, 128927, 1531, 1173, 5, false}, // New Beijing / 3-degree Gauss-Kruger zone 28
    {4656, 4555, 128957, 1532, 1174, 5, false}, // New Beijing / 3-degree Gauss-Kruger zone 29
    {4657, 6657, 166386, geographic, 1502, 25, false}, // Reykjavik 1900
    {4658, 6658, 64478, geographic, 1502, 25, false}, // Hjorsey 1955
    {4659, 6659, 67167, geographic, 44, 25, false}, // ISN93
    {4660, 6660, 64225, geographic, 1275, 25, false}, // Helle 1954
    {4661, 6661, 79848, geographic, 57, 25, false}, // LKS92
    {4662, 6634, 66415, geographic, 1239, 25, false}, // IGN72 Grande Terre
    {4663, 6663, 144535, geographic, 145, 25, false}, // Porto Santo 1995
    {4664, 6664, 17137, geographic, 170, 25, false}, // Azores Oriental 1995
    {4665, 6665, 16988, geographic, 134, 25, false}, // Azores Central 1995
    {4666, 6666, 81528, geographic, 129, 25, false}, // Lisbon 1890
    {4667, 6667, 66872, geographic, 1276, 25, false}, // IKBD-92
    {4668, 6668, 39233, geographic, 131, 25, false}, // ED79
    {4669, 6126, 79866, geographic, 60, 25, false}, // LKS94
    {4670, 6670, 65973, geographic, 1541, 25, false}, // IGM95
    {4671, 6671, 200691, geographic, 188, 25, false}, // Voirol 1879
    {4672, 6672, 30074, geographic, 1279, 25, false}, // Chatham Islands 1971
    {4673, 6673, 30086, geographic, 1279, 25, false}, // Chatham Islands 1979
    {4674, 6674, 169283, geographic, 1596, 25, false}, // SIRGAS 2000
    {4675, 6675, 62421, geographic, 2482, 25, false}, // Guam 1963
    {4676, 6676, 199411, geographic, 56, 25, false}, // Vientiane 1982
    {4677, 6677, 80492, geographic, 56, 25, false}, // Lao 1993
    {4678, 6678, 80499, geographic, 56, 25, false}, // Lao 1997
    {4679, 6679, 74755, geographic, 1289, 25, false}, // Jouik 1961
    {4680, 6680, 136074, geographic, 1290, 25, false}, // Nouakchott 1965
    {4681, 6681, 88413, geographic, 67, 25, true}, // Mauritania 1999
    {4682, 6682, 62626, geographic, 8, 25, false}, // Gulshan 303
    {4683, 6683, 140955, geographic, 83, 25, false}, // PRS92
    {4684, 6684, 60117, geographic, 1508, 25, false}, // Gan 1970
    {4685, 6685, 60129, geographic, 108, 25, true}, // Gandajika
    {4686, 6686, 83192, geographic, 22, 25, false}, // MAGNA-SIRGAS
    {4687, 6687, 162776, geographic, 38, 25, false}, // RGPF
    {4688, 6688, 47939, geographic, 1425, 25, false}, // Fatu Iva 72
    {4689, 6689, 66317, geographic, 1424, 25, false}, // IGN63 Hiva Oa
    {4690, 6690, 184793, geographic, 1420, 25, false}, // Tahiti 79
    {4691, 6691, 91867, geographic, 1421, 25, false}, // Moorea 87
    {4692, 6692, 88264, geographic, 1422, 25, false}, // Maupiti 83
    {4693, 6693, 127422, geographic, 1075, 25, false}, // Nakhl-e Ghanem
    {4694, 6694, 140579, geographic, 6, 25, false}, // POSGAR 94
    {4695, 6695, 76755, geographic, 1430, 25, false}, // Katanga 1955
    {4696, 6696, 76667, geographic, 1431, 25, false}, // Kasai 1953
    {4697, 6697, 65723, geographic, 1432, 25, false}, // IGC 1962 6th Parallel South
    {4698, 6698, 66064, geographic, 1233, 25, false}, // IGN 1962 Kerguelen
    {4699, 6699, 80848, geographic, 1476, 25, false}, // Le Pouce 1934
    {4700, 6700, 66099, geographic, 1510, 25, false}, // IGN Astro 1960
    {4701, 6701, 65764, geographic, 1443, 25, false}, // IGCB 1955
    {4702, 6702, 88413, geographic, 67, 25, false}, // Mauritania 1999
    {4703, 6703, 89444, geographic, 148, 25, false}, // Mhast 1951
    {4704, 6704, 89412, geographic, 1451, 25, false}, // Mhast (onshore)
    {4705, 6705, 89386, geographic, 1452, 25, false}, // Mhast (offshore)
    {4706, 6706, 44352, geographic, 1073, 25, false}, // Egypt Gulf of Suez S-650 TL
    {4707, 6707, 185437, geographic, 1453, 25, false}, // Tern Island 1961
    {4708, 6708, 31655, geographic, 21, 25, false}, // Cocos Islands 1965
    {4709, 6709, 71811, geographic, 1469, 25, false}, // Iwo Jima 1945
    {4710, 6710, 14875, geographic, 1455, 25, false}, // Astro DOS 71
    {4711, 6711, 87895, geographic, 657, 25, false}, // Marcus Island 1952
    {4712, 6712, 13585, geographic, 1454, 25, false}, // Ascension Island 1958
    {4713, 6713, 16943, geographic, 28, 25, false}, // Ayabelle Lighthouse
    {4714, 6714, 21417, geographic, 1464, 25, false}, // Bellevue
    {4715, 6715, 27345, geographic, 1473, 25, false}, // Camp Area Astro
    {4716, 6716, 143574, geographic, 1467, 25, false}, // Phoenix Islands 1966
    {4717, 6717, 29243, geographic, 1474, 25, false}, // Cape Canaveral
    {4718, 6718, 179033, geographic, 93, 25, false}, // Solomon 1968
    {4719, 6719, 44043, geographic, 1459, 25, false}, // Easter Island 1967
    {4720, 6720, 48347, geographic, 34, 25, false}, // Fiji 1986
    {4721, 6721, 48310, geographic, 1577, 25, false}, // Fiji 1956
    {4722, 6722, 180879, geographic, 1687, 25, false}, // South Georgia 1968
    {4723, 6723, 51438, geographic, 1457, 25, false}, // GCGD59
    {4724, 6724, 38041, geographic, 1460, 25, false}, // Diego Garcia 1969
    {4725, 6725, 74688, geographic, 1470, 25, false}, // Johnston Island 1961
    {4726, 6726, 168910, geographic, 1458, 25, false}, // SIGD61
    {4727, 6727, 89923, geographic, 1471, 25, false}, // Midway 1961
    {4728, 6728, 140205, geographic, 2530, 25, false}, // PN84
    {4729, 6729, 143851, geographic, 1475, 25, false}, // Pitcairn 1967
    {4730, 6730, 176952, geographic, 1465, 25, false}, // Santo 1965
    {4731, 6731, 200573, geographic, 1466, 25, true}, // Viti Levu 1916
    {4732, 6732, 87981, geographic, 1462, 25, false}, // Marshall Islands 1960
    {4733, 6733, 213772, geographic, 1461, 25, false}, // Wake Island 1952
    {4734, 6734, 187354, geographic, 1456, 25, false}, // Tristan 1968
    {4735, 6735, 79064, geographic, 1463, 25, false}, // Kusaie 1951
    {4736, 6736, 9789, geographic, 1472, 25, false}, // Deception Island
    {4737, 6737, 77920, geographic, 54, 25, false}, // Korea 2000
    {4738, 6738, 64597, geographic, 42, 25, false}, // Hong Kong 1963
    {4739, 6739, 64642, geographic, 42, 25, false}, // Hong Kong 1963(67)
    {4740, 6740, 141483, geographic, 109, 25, false}, // PZ-90
    {4741, 6741, 47515, geographic, 1494, 25, false}, // FD54
    {4742, 6742, 52516, geographic, 65, 25, false}, // GDM2000
    {4743, 6743, 76424, geographic, 1759, 25, false}, // Karbala 1979
    {4744, 6744, 127187, geographic, 2211, 25, false}, // Nahrwan 1934
    {4745, 6745, 160916, geographic, 1091, 25, false}, // RD/83
    {4746, 6746, 139833, geographic, 1090, 25, false}, // PD/83
    {4747, 6747, 52936, geographic, 41, 25, false}, // GR96
    {4748, 6748, 199050, geographic, 1580, 25, false}, // Vanua Levu 1915
    {4749, 6749, 162607, geographic, 74, 25, false}, // RGNC91-93
    {4750, 6750, 175976, geographic, 1230, 25, false}, // ST87 Ouvea
    {4751, 6751, 77347, geographic, 141, 25, false}, // Kertau (RSO)
    {4752, 6752, 200536, geographic, 1466, 25, false}, // Viti Levu 1912
    {4753, 6753, 47900, geographic, 1494, 25, false}, // fk89
    {4754, 6754, 79597, geographic, 58, 25, false}, // LGD2006
    {4755, 6755, 35396, geographic, 46, 25, false}, // DGN95
    {4756, 6756, 198539, geographic, 1532, 25, false}, // VN-2000
    {4757, 6757, 176038, geographic, 90, 25, false}, // SVY21
    {4758, 6758, 71822, geographic, 51, 25, false}, // JAD2001
    {4759, 6759, 119360, geographic, 307, 25, false}, // NAD83(NSRS2007)
    {4760, 6760, 200905, geographic, 109, 25, false}, // WGS 66
    {4761, 6761, 63121, geographic, 26, 25, false}, // HTRS96
    {4762, 6762, 17608, geographic, 9, 25, false}, // BDA2000
    {4763, 6763, 143877, geographic, 1475, 25, false}, // Pitcairn 2006
    {4764, 6764, 164074, geographic, 1709, 25, false}, // RSRGD2000
    {4765, 6765, 178880, geographic, 92, 25, false}, // Slovenia 1996
    {4766, 4555, 128987, 1533, 1175, 5, false}, // New Beijing / 3-degree Gauss-Kruger zone 30
    {4767, 4555, 129017, 1534, 1176, 5, false}, // New Beijing / 3-degree Gauss-Kruger zone 31
    {4768, 4555, 129047, 1535, 1177, 5, false}, // New Beijing / 3-degree Gauss-Kruger zone 32
    {4769, 4555, 129077, 1536, 1178, 5, false}, // New Beijing / 3-degree Gauss-Kruger zone 33
    {4770, 4555, 129107, 1537, 1179, 5, false}, // New Beijing / 3-degree Gauss-Kruger zone 34
    {4771, 4555, 129137, 1538, 1180, 5, false}, // New Beijing / 3-degree Gauss-Kruger zone 35
    {4772, 4555, 129167, 1539, 1181, 5, false}, // New Beijing / 3-degree Gauss-Kruger zone 36
    {4773, 4555, 129197, 1540, 1182, 5, false}, // New Beijing / 3-degree Gauss-Kruger zone 37
    {4774, 4555, 129227, 1541, 1183, 5, false}, // New Beijing / 3-degree Gauss-Kruger zone 38
    {4775, 4555, 129257, 1542, 1184, 5, false}, // New Beijing / 3-degree Gauss-Kruger zone 39
    {4776, 4555, 129287, 1372, 1185, 5, false}, // New Beijing / 3-degree Gauss-Kruger zone 40
    {4777, 4555, 129317, 1373, 1186, 5, false}, // New Beijing / 3-degree Gauss-Kruger zone 41
    {4778, 4555, 129347, 1374, 1187, 5, false}, // New Beijing / 3-degree Gauss-Kruger zone 42
    {4779, 4555, 129377, 1375, 1188, 5, false}, // New Beijing / 3-degree Gauss-Kruger zone 43
    {4780, 4555, 129407, 1376, 1189, 5, false}, // New Beijing / 3-degree Gauss-Kruger zone 44
    {4781, 4555, 129437, 1377, 1190, 5, false}, // New Beijing / 3-degree Gauss-Kruger zone 45
    {4782, 4555, 128540, 1554, 1170, 5, false}, // New Beijing / 3-degree Gauss-Kruger CM 75E
    {4783, 4555, 128573, 1584, 1171, 5, false}, // New Beijing / 3-degree Gauss-Kruger CM 78E
    {4784, 4555, 128606, 1555, 1172, 5, false}, // New Beijing / 3-degree Gauss-Kruger CM 81E
    {4785, 4555, 128639, 1585, 1173, 5, false}, // New Beijing / 3-degree Gauss-Kruger CM 84E
    {4786, 4555, 128672, 1556, 1174, 5, false}, // New Beijing / 3-degree Gauss-Kruger CM 87E
    {4787, 4555, 128705, 1586, 1175, 5, false}, // New Beijing / 3-degree Gauss-Kruger CM 90E
    {4788, 4555, 128738, 1557, 1176, 5, false}, // New Beijing / 3-degree Gauss-Kruger CM 93E
    {4789, 4555, 128771, 1587, 1177, 5, false}, // New Beijing / 3-degree Gauss-Kruger CM 96E
    {4790, 4555, 128804, 1558, 1178, 5, false}, // New Beijing / 3-degree Gauss-Kruger CM 99E
    {4791, 4555, 128139, 1588, 1179, 5, false}, // New Beijing / 3-degree Gauss-Kruger CM 102E
    {4792, 4555, 128172, 1559, 1180, 5, false}, // New Beijing / 3-degree Gauss-Kruger CM 105E
    {4793, 4555, 128205, 1589, 1181, 5, false}, // New Beijing / 3-degree Gauss-Kruger CM 108E
    {4794, 4555, 128238, 1560, 1182, 5, false}, // New Beijing / 3-degree Gauss-Kruger CM 111E
    {4795, 4555, 128271, 1590, 1183, 5, false}, // New Beijing / 3-degree Gauss-Kruger CM 114E
    {4796, 4555, 128304, 1561, 1184, 5, false}, // New Beijing / 3-degree Gauss-Kruger CM 117E
    {4797, 4555, 128337, 1460, 1185, 5, false}, // New Beijing / 3-degree Gauss-Kruger CM 120E
    {4798, 4555, 128370, 1562, 1186, 5, false}, // New Beijing / 3-degree Gauss-Kruger CM 123E
    {4799, 4555, 128404, 1461, 1187, 5, false}, // New Beijing / 3-degree Gauss-Kruger CM 126E
    {4800, 4555, 128438, 1563, 1188, 5, false}, // New Beijing / 3-degree Gauss-Kruger CM 129E
    {4801, 6801, 21597, geographic, 123, 25, false}, // Bern 1898 (Bern)
    {4802, 6802, 22542, geographic, 1485, 25, false}, // Bogota 1975 (Bogota)
    {4803, 6803, 81450, geographic, 129, 25, false}, // Lisbon (Lisbon)
    {4804, 6804, 86751, geographic, 147, 25, false}, // Makassar (Jakarta)
    {4805, 6805, 84404, geographic, 150, 25, false}, // MGI (Ferro)
    {4806, 6806, 91573, geographic, 1541, 25, false}, // Monte Mario (Rome)
    {4807, 6807, 125372, geographic, 1815, 22, false}, // NTF (Paris)
    {4808, 6808, 141695, geographic, 179, 25, true}, // Padang (Jakarta)
    {4809, 6809, 17528, geographic, 172, 25, false}, // BD50 (Brussels)
    {4810, 6810, 185028, geographic, 1507, 22, false}, // Tananarive (Paris)
    {4811, 6811, 200619, geographic, 188, 22, false}, // Voirol 1875 (Paris)
    {4812, 4555, 128472, 1462, 1189, 5, false}, // New Beijing / 3-degree Gauss-Kruger CM 132E
    {4813, 6813, 18651, geographic, 122, 25, false}, // Batavia (Jakarta)
    {4814, 6814, 164222, geographic, 1528, 25, false}, // RT38 (Stockholm)
    {4815, 6815, 61546, geographic, 1498, 25, false}, // Greek (Athens)
    {4816, 6816, 29514, geographic, 413, 22, false}, // Carthage (Paris)
    {4817, 6817, 124983, geographic, 177, 25, false}, // NGO 1948 (Oslo)
    {4818, 6818, 168103, geographic, 138, 25, false}, // S-JTSK (Ferro)
    {4819, 6819, 132169, geographic, 189, 22, true}, // Nord Sahara 1959 (Paris)
    {4820, 6820, 62760, geographic, 183, 25, false}, // Segara (Jakarta)
    {4821, 6821, 200701, geographic, 188, 22, false}, // Voirol 1879 (Paris)
    {4822, 4555, 128506, 1564, 1190, 5, false}, // New Beijing / 3-degree Gauss-Kruger CM 135E
    {4823, 1044, 177012, geographic, 1777, 25, false}, // Sao Tome
    {4824, 1046, 176988, geographic, 1778, 25, false}, // Principe
    {4826, 4326, 204990, 69, 17, 4, false}, // WGS 84 / Cape Verde National
    {4839, 4258, 42693, 70, 1537, 5, false}, // ETRS89 / LCC Germany (N-E)
    {4855, 4258, 42966, 75, 1770, 5, true}, // ETRS89 / NTM zone 5
    {4856, 4258, 42977, 76, 1773, 5, true}, // ETRS89 / NTM zone 6
    {4857, 4258, 42988, 77, 1779, 5, true}, // ETRS89 / NTM zone 7
    {4858, 4258, 42999, 78, 1780, 5, true}, // ETRS89 / NTM zone 8
    {4859, 4258, 43010, 79, 1781, 5, true}, // ETRS89 / NTM zone 9
    {4860, 4258, 42714, 80, 1782, 5, true}, // ETRS89 / NTM zone 10
    {4861, 4258, 42726, 81, 1783, 5, true}, // ETRS89 / NTM zone 11
    {4862, 4258, 42738, 82, 1785, 5, true}, // ETRS89 / NTM zone 12
    {4863, 4258, 42750, 83, 1786, 5, true}, // ETRS89 / NTM zone 13
    {4864, 4258, 42762, 84, 1787, 5, true}, // ETRS89 / NTM zone 14
    {4865, 4258, 42774, 71, 1788, 5, true}, // ETRS89 / NTM zone 15
    {4866, 4258, 42786, 72, 1789, 5, true}, // ETRS89 / NTM zone 16
    {4867, 4258, 42798, 73, 1790, 5, true}, // ETRS89 / NTM zone 17
    {4868, 4258, 42810, 74, 1791, 5, true}, // ETRS89 / NTM zone 18
    {4869, 4258, 42822, 85, 1792, 5, true}, // ETRS89 / NTM zone 19
    {4870, 4258, 42834, 86, 1793, 5, true}, // ETRS89 / NTM zone 20
    {4871, 4258, 42846, 87, 1794, 5, true}, // ETRS89 / NTM zone 21
    {4872, 4258, 42858, 88, 1795, 5, true}, // ETRS89 / NTM zone 22
    {4873, 4258, 42870, 89, 1797, 5, true}, // ETRS89 / NTM zone 23
    {4874, 4258, 42882, 90, 1798, 5, true}, // ETRS89 / NTM zone 24
    {4875, 4258, 42894, 91, 1799, 5, true}, // ETRS89 / NTM zone 25
    {4876, 4258, 42906, 92, 1801, 5, true}, // ETRS89 / NTM zone 26
    {4877, 4258, 42918, 93, 1802, 5, true}, // ETRS89 / NTM zone 27
    {4878, 4258, 42930, 94, 1803, 5, true}, // ETRS89 / NTM zone 28
    {4879, 4258, 42942, 95, 1804, 5, true}, // ETRS89 / NTM zone 29
    {4880, 4258, 42954, 96, 1805, 5, true}, // ETRS89 / NTM zone 30
    {4901, 6901, 3795, geographic, 153, 22, false}, // ATF (Paris)
    {4902, 6902, 124771, geographic, 192, 22, true}, // NDG (Paris)
    {4903, 6903, 86356, geographic, 1076, 25, false}, // Madrid 1870 (Madrid)
    {4904, 6904, 81537, geographic, 129, 25, false}, // Lisbon 1890 (Lisbon)
    {5013, 1041, 141316, geographic, 1800, 25, false}, // PTRA08
    {5014, 5013, 141358, 1334, 1808, 4, false}, // PTRA08 / UTM zone 25N
    {5015, 5013, 141372, 1335, 1806, 4, false}, // PTRA08 / UTM zone 26N
    {5016, 5013, 141386, 1337, 1807, 4, false}, // PTRA08 / UTM zone 28N
    {5017, 4666, 81577, 97, 129, 1, false}, // Lisbon 1890 / Portugal Bonne New
    {5018, 4207, 81509, 98, 129, 4, false}, // Lisbon / Portuguese Grid New
    {5041, 4326, 209138, 1370, 781, 4, false}, // WGS 84 / UPS North (E,N)
    {5042, 4326, 209172, 1459, 782, 4, false}, // WGS 84 / UPS South (E,N)
    {5048, 4258, 43103, 1371, 35, 5, false}, // ETRS89 / TM35FIN(N,E)
    {5069, 4267, 93406, 100, 152, 4, false}, // NAD27 / Conus Albers
    {5070, 4269, 96743, 100, 152, 4, false}, // NAD83 / Conus Albers
    {5071, 4152, 114556, 100, 152, 4, false}, // NAD83(HARN) / Conus Albers
    {5072, 4759, 120096, 100, 152, 4, false}, // NAD83(NSRS2007) / Conus Albers
    {5105, 4258, 42966, 107, 1770, 5, false}, // ETRS89 / NTM zone 5
    {5106, 4258, 42977, 108, 1773, 5, false}, // ETRS89 / NTM zone 6
    {5107, 4258, 42988, 109, 1779, 5, false}, // ETRS89 / NTM zone 7
    {5108, 4258, 42999, 110, 1780, 5, false}, // ETRS89 / NTM zone 8
    {5109, 4258, 43010, 111, 1781, 5, false}, // ETRS89 / NTM zone 9
    {5110, 4258, 42714, 112, 1782, 5, false}, // ETRS89 / NTM zone 10
    {5111, 4258, 42726, 113, 1783, 5, false}, // ETRS89 / NTM zone 11
    {5112, 4258, 42738, 114, 1785, 5, false}, // ETRS89 / NTM zone 12
    {5113, 4258, 42750, 115, 1786, 5, false}, // ETRS89 / NTM zone 13
    {5114, 4258, 42762, 116, 1787, 5, false}, // ETRS89 / NTM zone 14
    {5115, 4258, 42774, 117, 1788, 5, false}, // ETRS89 / NTM zone 15
    {5116, 4258, 42786, 118, 1789, 5, false}, // ETRS89 / NTM zone 16
    {5117, 4258, 42798, 119, 1790, 5, false}, // ETRS89 / NTM zone 17
    {5118, 4258, 42810, 120, 1791, 5, false}, // ETRS89 / NTM zone 18
    {5119, 4258, 42822, 121, 1792, 5, false}, // ETRS89 / NTM zone 19
    {5120, 4258, 42834, 122, 1793, 5, false}, // ETRS89 / NTM zone 20
    {5121, 4258, 42846, 123, 1794, 5, false}, // ETRS89 / NTM zone 21
    {5122, 4258, 42858, 124, 1795, 5, false}, // ETRS89 / NTM zone 22
    {5123, 4258, 42870, 125, 1797, 5, false}, // ETRS89 / NTM zone 23
    {5124, 4258, 42882, 126, 1798, 5, false}, // ETRS89 / NTM zone 24
    {5125, 4258, 42894, 127, 1799, 5, false}, // ETRS89 / NTM zone 25
    {5126, 4258, 42906, 128, 1801, 5, false}, // ETRS89 / NTM zone 26
    {5127, 4258, 42918, 129, 1802, 5, false}, // ETRS89 / NTM zone 27
    {5128, 4258, 42930, 130, 1803, 5, false}, // ETRS89 / NTM zone 28
    {5129, 4258, 42942, 131, 1804, 5, false}, // ETRS89 / NTM zone 29
    {5130, 4258, 42954, 132, 1805, 5, false}, // ETRS89 / NTM zone 30
    {5132, 1048, 186845, geographic, 187, 25, false}, // Tokyo 1892
    {5167, 4162, 78635, 99, 1818, 5, false}, // Korean 1985 / East Sea Belt
    {5168, 4162, 78603, 106, 1819, 5, false}, // Korean 1985 / Central Belt Jeju
    {5169, 5132, 186917, 2175, 1816, 5, false}, // Tokyo 1892 / Korea West Belt
    {5170, 5132, 186855, 2174, 1817, 5, false}, // Tokyo 1892 / Korea Central Belt
    {5171, 5132, 186875, 2173, 1820, 5, false}, // Tokyo 1892 / Korea East Belt
    {5172, 5132, 186894, 99, 1821, 5, false}, // Tokyo 1892 / Korea East Sea Belt
    {5173, 4162, 78745, 133, 295, 5, false}, // Korean 1985 / Modified West Belt
    {5174, 4162, 78652, 134, 1822, 5, false}, // Korean 1985 / Modified Central Belt
    {5175, 4162, 78673, 135, 1819, 5, false}, // Korean 1985 / Modified Central Belt Jeju
    {5176, 4162, 78699, 136, 293, 5, false}, // Korean 1985 / Modified East Belt
    {5177, 4162, 78720, 137, 1818, 5, false}, // Korean 1985 / Modified East Sea Belt
    {5178, 4162, 78766, 101, 1503, 5, false}, // Korean 1985 / Unified CS
    {5179, 4737, 78038, 101, 54, 5, false}, // Korea 2000 / Unified CS
    {5180, 4737, 78053, 2175, 295, 5, false}, // Korea 2000 / West Belt
    {5181, 4737, 77926, 2174, 1822, 5, false}, // Korea 2000 / Central Belt
    {5182, 4737, 77956, 106, 1819, 5, false}, // Korea 2000 / Central Belt Jeju
    {5183, 4737, 77974, 2173, 293, 5, false}, // Korea 2000 / East Belt
    {5184, 4737, 78002, 99, 1818, 5, false}, // Korea 2000 / East Sea Belt
    {5185, 4737, 78065, 102, 295, 5, false}, // Korea 2000 / West Belt 2010
    {5186, 4737, 77939, 103, 294, 5, false}, // Korea 2000 / Central Belt 2010
    {5187, 4737, 77986, 104, 293, 5, false}, // Korea 2000 / East Belt 2010
    {5188, 4737, 78018, 105, 1818, 5, false}, // Korea 2000 / East Sea Belt 2010
    {5221, 4818, 168135, 138, 138, 4, false}, // S-JTSK (Ferro) / Krovak East North
    {5223, 4326, 206206, 141, 1495, 4, false}, // WGS 84 / Gabon TM
    {5224, 5229, 168282, 139, 27, 1, false}, // S-JTSK/05 (Ferro) / Modified Krovak
    {5225, 5229, 168312, 140, 27, 4, false}, // S-JTSK/05 (Ferro) / Modified Krovak East North
    {5228, 1052, 168256, geographic, 27, 25, false}, // S-JTSK/05
    {5229, 1055, 168266, geographic, 27, 25, false}, // S-JTSK/05 (Ferro)
    {5233, 1053, 171459, geographic, 1526, 25, false}, // SLD99
    {5234, 4244, 75733, 142, 1526, 4, false}, // Kandawala / Sri Lanka Grid
    {5235, 5233, 171465, 143, 1526, 4, false}, // SLD99 / Sri Lanka Grid 1999
    {5243, 4258, 42672, 70, 1537, 4, false}, // ETRS89 / LCC Germany (E-N)
    {5246, 1056, 52478, geographic, 13, 25, false}, // GDBD2009
    {5247, 5246, 52485, 2287, 13, 4, false}, // GDBD2009 / Brunei BRSO
    {5252, 1057, 184271, geographic, 101, 25, false}, // TUREF
    {5253, 5252, 184498, 1546, 320, 5, false}, // TUREF / TM27
    {5254, 5252, 184508, 1576, 321, 5, false}, // TUREF / TM30
    {5255, 5252, 184518, 1547, 322, 5, false}, // TUREF / TM33
    {5256, 5252, 184528, 1577, 323, 5, false}, // TUREF / TM36
    {5257, 5252, 184538, 1548, 324, 5, false}, // TUREF / TM39
    {5258, 5252, 184548, 1578, 325, 5, false}, // TUREF / TM42
    {5259, 5252, 184558, 1549, 326, 5, false}, // TUREF / TM45
    {5264, 1058, 36397, geographic, 10, 25, false}, // DRUKREF 03
    {5266, 5264, 36408, 144, 10, 4, false}, // DRUKREF 03 / Bhutan National Grid
    {5269, 5252, 184439, 1512, 320, 5, false}, // TUREF / 3-degree Gauss-Kruger zone 9
    {5270, 5252, 184277, 1513, 321, 5, false}, // TUREF / 3-degree Gauss-Kruger zone 10
    {5271, 5252, 184304, 1514, 322, 5, false}, // TUREF / 3-degree Gauss-Kruger zone 11
    {5272, 5252, 184331, 1515, 323, 5, false}, // TUREF / 3-degree Gauss-Kruger zone 12
    {5273, 5252, 184358, 1516, 324, 5, false}, // TUREF / 3-degree Gauss-Kruger zone 13
    {5274, 5252, 184385, 1517, 325, 5, false}, // TUREF / 3-degree Gauss-Kruger zone 14
    {5275, 5252, 184412, 1518, 326, 5, false}, // TUREF / 3-degree Gauss-Kruger zone 15
    {5292, 5264, 36433, 145, 1824, 4, false}, // DRUKREF 03 / Bumthang TM
    {5293, 5264, 36453, 146, 1826, 4, false}, // DRUKREF 03 / Chhukha TM
    {5294, 5264, 36473, 147, 1827, 4, false}, // DRUKREF 03 / Dagana TM
    {5295, 5264, 36491, 148, 1828, 4, false}, // DRUKREF 03 / Gasa TM
    {5296, 5264, 36507, 149, 1830, 4, false}, // DRUKREF 03 / Ha TM
    {5297, 5264, 36522, 150, 1831, 4, false}, // DRUKREF 03 / Lhuentse TM
    {5298, 5264, 36542, 151, 1832, 4, false}, // DRUKREF 03 / Mongar TM
    {5299, 5264, 36560, 152, 1833, 4, false}, // DRUKREF 03 / Paro TM
    {5300, 5264, 36576, 153, 1834, 4, false}, // DRUKREF 03 / Pemagatshel TM
    {5301, 5264, 36597, 163, 1836, 4, false}, // DRUKREF 03 / Punakha TM
    {5302, 5264, 36617, 155, 1837, 4, false}, // DRUKREF 03 / Samdrup Jongkhar TM
    {5303, 5264, 36644, 156, 1838, 4, false}, // DRUKREF 03 / Samtse TM
    {5304, 5264, 36662, 157, 1839, 4, false}, // DRUKREF 03 / Sarpang TM
    {5305, 5264, 36681, 162, 1840, 4, false}, // DRUKREF 03 / Thimphu TM
    {5306, 5264, 36701, 159, 1841, 4, false}, // DRUKREF 03 / Trashigang TM
    {5307, 5264, 36722, 160, 1842, 4, false}, // DRUKREF 03 / Trongsa TM
    {5308, 5264, 36741, 154, 1844, 4, false}, // DRUKREF 03 / Tsirang TM
    {5309, 5264, 36760, 158, 1845, 4, false}, // DRUKREF 03 / Wangdue Phodrang TM
    {5310, 5264, 36787, 164, 1847, 4, false}, // DRUKREF 03 / Yangtse TM
    {5311, 5264, 36806, 161, 1848, 4, false}, // DRUKREF 03 / Zhemgang TM
    {5316, 4258, 42370, 165, 33, 4, false}, // ETRS89 / Faroe TM
    {5320, 4269, 98953, 166, 190, 4, false}, // NAD83 / Teranet Ontario Lambert
    {5321, 4617, 111539, 166, 190, 4, false}, // NAD83(CSRS) / Teranet Ontario Lambert
    {5324, 1060, 66986, geographic, 44, 25, false}, // ISN2004
    {5325, 5324, 67041, 167, 44, 4, false}, // ISN2004 / Lambert 2004
    {5329, 4820, 177624, 168, 183, 4, false}, // Segara (Jakarta) / NEIEZ
    {5330, 4813, 18665, 168, 122, 4, false}, // Batavia (Jakarta) / NEIEZ
    {5331, 4804, 86766, 168, 147, 4, false}, // Makassar (Jakarta) / NEIEZ
    {5337, 4208, 10062, 1423, 1881, 4, false}, // Aratu / UTM zone 25S
    {5340, 1062, 140417, geographic, 6, 25, false}, // POSGAR 2007
    {5343, 5340, 140426, 2043, 403, 5, false}, // POSGAR 2007 / Argentina 1
    {5344, 5340, 140443, 2044, 404, 5, false}, // POSGAR 2007 / Argentina 2
    {5345, 5340, 140460, 2045, 405, 5, false}, // POSGAR 2007 / Argentina 3
    {5346, 5340, 140477, 2046, 406, 5, false}, // POSGAR 2007 / Argentina 4
    {5347, 5340, 140494, 2047, 407, 5, false}, // POSGAR 2007 / Argentina 5
    {5348, 5340, 140511, 2048, 408, 5, false}, // POSGAR 2007 / Argentina 6
    {5349, 5340, 140528, 2049, 409, 5, false}, // POSGAR 2007 / Argentina 7
    {5354, 1063, 84263, geographic, 11, 25, false}, // MARGEN
    {5355, 5354, 84282, 1418, 547, 4, false}, // MARGEN / UTM zone 20S
    {5356, 5354, 84269, 1417, 1886, 4, false}, // MARGEN / UTM zone 19S
    {5357, 5354, 84294, 1419, 1823, 4, false}, // MARGEN / UTM zone 21S
    {5360, 1064, 170721, geographic, 19, 25, false}, // SIRGAS-Chile 2002
    {5361, 5360, 170756, 1417, 1882, 4, false}, // SIRGAS-Chile 2002 / UTM zone 19S
    {5362, 5360, 170735, 1416, 1888, 4, false}, // SIRGAS-Chile 2002 / UTM zone 18S
    {5365, 1065, 26739, geographic, 24, 25, false}, // CR05
    {5367, 5365, 26744, 169, 1906, 5, false}, // CR05 / CRTM05
    {5371, 1066, 178658, geographic, 80, 25, false}, // MACARIO SOLIS
    {5373, 1067, 143181, geographic, 82, 25, false}, // Peru96
    {5381, 1068, 171208, geographic, 104, 25, false}, // SIRGAS-ROU98
    {5382, 5381, 171221, 1419, 1885, 4, false}, // SIRGAS-ROU98 / UTM zone 21S
    {5383, 5381, 171241, 1420, 1887, 4, false}, // SIRGAS-ROU98 / UTM zone 22S
    {5387, 5373, 143200, 1416, 1897, 4, false}, // Peru96 / UTM zone 18S
    {5388, 5373, 143187, 1326, 1896, 4, true}, // Peru96 / UTM zone 17S
    {5389, 5373, 143213, 1417, 1895, 4, false}, // Peru96 / UTM zone 19S
    {5393, 1069, 171432, geographic, 30, 25, false}, // SIRGAS_ES2007.8
    {5396, 4674, 169725, 1424, 1901, 4, false}, // SIRGAS 2000 / UTM zone 26S
    {5451, 1070, 137106, geographic, 1931, 25, false}, // Ocotepeque 1935
    {5456, 5451, 137119, 170, 1924, 4, false}, // Ocotepeque 1935 / Costa Rica Norte
    {5457, 5451, 137143, 171, 1925, 4, false}, // Ocotepeque 1935 / Costa Rica Sur
    {5458, 4267, 137193, 2146, 905, 4, true}, // Ocotepeque 1935 / Guatemala Norte
    {5459, 5451, 137216, 2147, 906, 4, false}, // Ocotepeque 1935 / Guatemala Sur
    {5460, 5451, 137166, 172, 1491, 4, false}, // Ocotepeque 1935 / El Salvador Lambert
    {5461, 5451, 137238, 173, 1903, 4, false}, // Ocotepeque 1935 / Nicaragua Norte
    {5462, 5451, 137262, 174, 1905, 4, false}, // Ocotepeque 1935 / Nicaragua Sur
    {5463, 4618, 168425, 1326, 1889, 4, false}, // SAD69 / UTM zone 17N
    {5464, 1071, 178012, geographic, 1481, 25, false}, // Sibun Gorge 1922
    {5466, 5464, 178026, 175, 1481, 4, true}, // Sibun Gorge 1922 / Colony Grid
    {5467, 1072, 142142, geographic, 1515, 25, false}, // Panama-Colon 1911
    {5469, 5467, 142154, 176, 1515, 4, false}, // Panama-Colon 1911 / Panama Lambert
    {5472, 5467, 142175, 177, 1515, 13, false}, // Panama-Colon 1911 / Panama Polyconic
    {5479, 4764, 164109, 178, 1908, 5, false}, // RSRGD2000 / MSLC2000
    {5480, 4764, 164081, 179, 1909, 5, false}, // RSRGD2000 / BCLC2000
    {5481, 4764, 164123, 180, 1910, 5, false}, // RSRGD2000 / PCLC2000
    {5482, 4764, 164137, 181, 1911, 5, false}, // RSRGD2000 / RSPS2000
    {5489, 1073, 161683, geographic, 1241, 25, false}, // RGAF09
    {5490, 5489, 161718, 1329, 1884, 4, false}, // RGAF09 / UTM zone 20N
    {5513, 4156, 168158, 182, 138, 1, false}, // S-JTSK / Krovak
    {5514, 4156, 168172, 183, 138, 4, false}, // S-JTSK / Krovak East North
    {5515, 5228, 168346, 184, 27, 1, false}, // S-JTSK/05 / Modified Krovak
    {5516, 5228, 168371, 185, 27, 4, false}, // S-JTSK/05 / Modified Krovak East North
    {5518, 4672, 26310, 186, 1279, 5, false}, // CI1971 / Chatham Islands Map Grid
    {5519, 4673, 26339, 186, 1279, 5, false}, // CI1979 / Chatham Islands Map Grid
    {5520, 4314, 36041, 1504, 1941, 5, false}, // DHDN / 3-degree Gauss-Kruger zone 1
    {5523, 4326, 206219, 187, 39, 4, false}, // WGS 84 / Gabon TM 2011
    {5524, 1074, 23249, geographic, 1929, 25, false}, // Corrego Alegre 1961
    {5527, 1075, 168603, geographic, 12, 25, false}, // SAD69(96)
    {5530, 5527, 168612, 2330, 12, 4, false}, // SAD69(96) / Brazil Polyconic
    {5531, 5527, 168676, 1419, 1935, 4, false}, // SAD69(96) / UTM zone 21S
    {5532, 4618, 168691, 1420, 1933, 4, true}, // SAD69(96) / UTM zone 22S
    {5533, 5527, 168706, 1421, 1622, 4, false}, // SAD69(96) / UTM zone 23S
    {5534, 5527, 168721, 1422, 1623, 4, false}, // SAD69(96) / UTM zone 24S
    {5535, 5527, 168736, 1423, 1624, 4, false}, // SAD69(96) / UTM zone 25S
    {5536, 5524, 34097, 1419, 2518, 4, false}, // Corrego Alegre 1961 / UTM zone 21S
    {5537, 5524, 34118, 1420, 2519, 4, false}, // Corrego Alegre 1961 / UTM zone 22S
    {5538, 5524, 34139, 1421, 1449, 4, false}, // Corrego Alegre 1961 / UTM zone 23S
    {5539, 5524, 34160, 1422, 1932, 4, false}, // Corrego Alegre 1961 / UTM zone 24S
    {5546, 1076, 140260, geographic, 81, 25, false}, // PNG94
    {5550, 5546, 140266, 188, 1936, 4, false}, // PNG94 / PNGMG94 zone 54
    {5551, 5546, 140283, 189, 1937, 4, false}, // PNG94 / PNGMG94 zone 55
    {5552, 5546, 140300, 190, 1938, 4, false}, // PNG94 / PNGMG94 zone 56
    {5559, 5451, 137193, 2146, 905, 4, false}, // Ocotepeque 1935 / Guatemala Norte
    {5561, 1077, 187775, geographic, 102, 25, false}, // UCS-2000
    {5562, 5561, 188266, 1475, 1942, 5, false}, // UCS-2000 / Gauss-Kruger zone 4
    {5563, 5561, 188285, 1476, 1945, 5, false}, // UCS-2000 / Gauss-Kruger zone 5
    {5564, 5561, 188304, 1477, 1949, 5, false}, // UCS-2000 / Gauss-Kruger zone 6
    {5565, 5561, 188323, 1478, 1950, 5, false}, // UCS-2000 / Gauss-Kruger zone 7
    {5566, 5561, 188175, 1545, 1942, 5, false}, // UCS-2000 / Gauss-Kruger CM 21E
    {5567, 5561, 188198, 1546, 1945, 5, false}, // UCS-2000 / Gauss-Kruger CM 27E
    {5568, 5561, 188220, 1547, 1949, 5, false}, // UCS-2000 / Gauss-Kruger CM 33E
    {5569, 5561, 188243, 1548, 1950, 5, false}, // UCS-2000 / Gauss-Kruger CM 39E
    {5570, 5561, 188097, 1510, 1951, 5, true}, // UCS-2000 / 3-degree Gauss-Kruger zone 7
    {5571, 5561, 188123, 1511, 1952, 5, true}, // UCS-2000 / 3-degree Gauss-Kruger zone 8
    {5572, 5561, 188149, 1512, 1953, 5, true}, // UCS-2000 / 3-degree Gauss-Kruger zone 9
    {5573, 5561, 187989, 1513, 1954, 5, true}, // UCS-2000 / 3-degree Gauss-Kruger zone 10
    {5574, 5561, 188016, 1514, 1955, 5, true}, // UCS-2000 / 3-degree Gauss-Kruger zone 11
    {5575, 5561, 188043, 1515, 1957, 5, true}, // UCS-2000 / 3-degree Gauss-Kruger zone 12
    {5576, 5561, 188070, 1516, 1958, 5, true}, // UCS-2000 / 3-degree Gauss-Kruger zone 13
    {5577, 5561, 187781, 1545, 1951, 5, true}, // UCS-2000 / 3-degree Gauss-Kruger CM 21E
    {5578, 5561, 187811, 1575, 1952, 5, true}, // UCS-2000 / 3-degree Gauss-Kruger CM 24E
    {5579, 5561, 187841, 1546, 1953, 5, true}, // UCS-2000 / 3-degree Gauss-Kruger CM 27E
    {5580, 5561, 187870, 1576, 1954, 5, true}, // UCS-2000 / 3-degree Gauss-Kruger CM 30E
    {5581, 5561, 187899, 1547, 1955, 5, true}, // UCS-2000 / 3-degree Gauss-Kruger CM 33E
    {5582, 5561, 187929, 1577, 1957, 5, true}, // UCS-2000 / 3-degree Gauss-Kruger CM 36E
    {5583, 5561, 187959, 1548, 1958, 5, true}, // UCS-2000 / 3-degree Gauss-Kruger CM 39E
    {5588, 4267, 94131, 191, 245, 7, false}, // NAD27 / New Brunswick Stereographic (NAD27)
    {5589, 5464, 178026, 175, 1481, 9, false}, // Sibun Gorge 1922 / Colony Grid
    {5593, 1078, 47608, geographic, 1939, 25, false}, // FEH2010
    {5596, 5593, 47615, 192, 1939, 4, false}, // FEH2010 / Fehmarnbelt TM
    {5623, 4267, 93861, 1010, 511, 8, false}, // NAD27 / Michigan East
    {5624, 4267, 93887, 1011, 512, 8, false}, // NAD27 / Michigan Old Central
    {5625, 4267, 93916, 1012, 1784, 8, false}, // NAD27 / Michigan West
    {5627, 4230, 38892, 1593, 1944, 4, false}, // ED50 / TM 6 NE
    {5629, 4130, 92276, 1436, 337, 4, false}, // Moznet / UTM zone 38S
    {5631, 4179, 152792, 1473, 1713, 4, false}, // Pulkovo 1942(58) / Gauss-Kruger zone 2 (E-N)
    {5632, 5013, 141341, 2371, 1800, 5, false}, // PTRA08 / LCC Europe
    {5633, 5013, 141323, 2372, 1800, 5, false}, // PTRA08 / LAEA Europe
    {5634, 4081, 161460, 2371, 1468, 5, false}, // REGCAN95 / LCC Europe
    {5635, 4081, 161440, 2372, 1468, 5, false}, // REGCAN95 / LAEA Europe
    {5636, 5252, 184465, 2372, 101, 5, false}, // TUREF / LAEA Europe
    {5637, 5252, 184482, 2371, 101, 5, false}, // TUREF / LCC Europe
    {5638, 5324, 66992, 2372, 44, 5, false}, // ISN2004 / LAEA Europe
    {5639, 5324, 67025, 2371, 44, 5, false}, // ISN2004 / LCC Europe
    {5641, 4674, 169293, 193, 1943, 4, false}, // SIRGAS 2000 / Brazil Mercator
    {5643, 4230, 38856, 194, 1946, 4, false}, // ED50 / SPBA LCC
    {5644, 4627, 162909, 1437, 1959, 4, false}, // RGR92 / UTM zone 39S
    {5646, 4269, 99464, 195, 214, 8, false}, // NAD83 / Vermont (ftUS)
    {5649, 4258, 43282, 196, 1270, 4, false}, // ETRS89 / UTM zone 31N (zE-N)
    {5650, 4258, 43420, 197, 1272, 4, false}, // ETRS89 / UTM zone 33N (zE-N)
    {5651, 4258, 43263, 196, 1270, 5, false}, // ETRS89 / UTM zone 31N (N-zE)
    {5652, 4258, 43332, 68, 1271, 5, false}, // ETRS89 / UTM zone 32N (N-zE)
    {5653, 4258, 43401, 197, 1272, 5, false}, // ETRS89 / UTM zone 33N (N-zE)
    {5654, 4152, 116752, 195, 214, 8, false}, // NAD83(HARN) / Vermont (ftUS)
    {5655, 4759, 123269, 195, 214, 8, false}, // NAD83(NSRS2007) / Vermont (ftUS)
    {5659, 4265, 91659, 198, 2039, 4, false}, // Monte Mario / TM Emilia-Romagna
    {5663, 4179, 152851, 1474, 578, 4, false}, // Pulkovo 1942(58) / Gauss-Kruger zone 3 (E-N)
    {5664, 4178, 153493, 1473, 1713, 4, false}, // Pulkovo 1942(83) / Gauss-Kruger zone 2 (E-N)
    {5665, 4178, 153550, 1474, 1714, 4, false}, // Pulkovo 1942(83) / Gauss-Kruger zone 3 (E-N)
    {5666, 4746, 139864, 1506, 1573, 4, false}, // PD/83 / 3-degree Gauss-Kruger zone 3 (E-N)
    {5667, 4746, 139919, 1507, 1574, 4, false}, // PD/83 / 3-degree Gauss-Kruger zone 4 (E-N)
    {5668, 4745, 160947, 1507, 1576, 4, false}, // RD/83 / 3-degree Gauss-Kruger zone 4 (E-N)
    {5669, 4745, 161002, 1508, 1575, 4, false}, // RD/83 / 3-degree Gauss-Kruger zone 5 (E-N)
    {5670, 4179, 152421, 1506, 308, 4, false}, // Pulkovo 1942(58) / 3-degree Gauss-Kruger zone 3 (E-N)
    {5671, 4179, 152494, 1507, 309, 4, false}, // Pulkovo 1942(58) / 3-degree Gauss-Kruger zone 4 (E-N)
    {5672, 4179, 152567, 1508, 1718, 4, false}, // Pulkovo 1942(58) / 3-degree Gauss-Kruger zone 5 (E-N)
    {5673, 4178, 153110, 1506, 308, 4, false}, // Pulkovo 1942(83) / 3-degree Gauss-Kruger zone 3 (E-N)
    {5674, 4178, 153181, 1507, 309, 4, false}, // Pulkovo 1942(83) / 3-degree Gauss-Kruger zone 4 (E-N)
    {5675, 4178, 153252, 1508, 310, 4, false}, // Pulkovo 1942(83) / 3-degree Gauss-Kruger zone 5 (E-N)
    {5676, 4314, 36121, 1505, 417, 4, false}, // DHDN / 3-degree Gauss-Kruger zone 2 (E-N)
    {5677, 4314, 36176, 1506, 418, 4, false}, // DHDN / 3-degree Gauss-Kruger zone 3 (E-N)
    {5678, 4314, 36231, 1507, 419, 4, false}, // DHDN / 3-degree Gauss-Kruger zone 4 (E-N)
    {5679, 4314, 36286, 1508, 420, 4, false}, // DHDN / 3-degree Gauss-Kruger zone 5 (E-N)
    {5680, 4314, 36066, 1504, 1941, 4, false}, // DHDN / 3-degree Gauss-Kruger zone 1 (E-N)
    {5681, 1081, 35095, geographic, 1537, 25, false}, // DB_REF
    {5682, 5681, 35102, 1505, 417, 4, false}, // DB_REF / 3-degree Gauss-Kruger zone 2 (E-N)
    {5683, 5681, 35134, 1506, 2013, 4, false}, // DB_REF / 3-degree Gauss-Kruger zone 3 (E-N)
    {5684, 5681, 35166, 1507, 2014, 4, false}, // DB_REF / 3-degree Gauss-Kruger zone 4 (E-N)
    {5685, 5681, 35198, 1508, 2015, 4, false}, // DB_REF / 3-degree Gauss-Kruger zone 5 (E-N)
    {5700, 4167, 126367, 1399, 2012, 4, false}, // NZGD2000 / UTM zone 1S
    {5825, 4202, 3374, 199, 1067, 4, false}, // AGD66 / ACT Standard Grid
    {5836, 4163, 220681, 1346, 2018, 4, false}, // Yemen NGN96 / UTM zone 37N
    {5837, 4163, 220732, 1349, 2016, 4, false}, // Yemen NGN96 / UTM zone 40N
    {5839, 5373, 143187, 1415, 1896, 4, false}, // Peru96 / UTM zone 17S
    {5842, 4326, 208952, 1602, 2029, 4, false}, // WGS 84 / TM 12 SE
    {5844, 4046, 163120, 1876, 2023, 4, false}, // RGRDC 2005 / Congo TM zone 30
    {5858, 5527, 168691, 1420, 1933, 4, false}, // SAD69(96) / UTM zone 22S
    {5875, 5527, 168632, 1416, 2027, 4, false}, // SAD69(96) / UTM zone 18S
    {5876, 5527, 168647, 1417, 2028, 4, false}, // SAD69(96) / UTM zone 19S
    {5877, 5527, 168662, 1418, 2030, 4, false}, // SAD69(96) / UTM zone 20S
    {5879, 4475, 26867, 1436, 1538, 4, false}, // Cadastre 1997 / UTM zone 38S
    {5880, 4674, 169314, 2330, 12, 4, false}, // SIRGAS 2000 / Brazil Polyconic
    {5886, 1095, 183836, geographic, 99, 25, false}, // TGD2005
    {5887, 5886, 183842, 200, 99, 4, false}, // TGD2005 / Tonga Map Grid
    {5890, 4054, 71961, 201, 781, 4, true}, // JAXA Snow Depth Polar Stereographic North
    {5896, 4756, 198804, 202, 2179, 4, false}, // VN-2000 / TM-3 zone 481
    {5897, 4756, 198818, 203, 2198, 4, false}, // VN-2000 / TM-3 zone 482
    {5898, 4756, 198832, 204, 2199, 4, false}, // VN-2000 / TM-3 zone 491
    {5899, 4756, 198737, 205, 2200, 4, false}, // VN-2000 / TM-3 107-45
    {5921, 4326, 205087, 211, 2024, 4, false}, // WGS 84 / EPSG Arctic Regional zone A1
    {5922, 4326, 205111, 212, 2031, 4, false}, // WGS 84 / EPSG Arctic Regional zone A2
    {5923, 4326, 205135, 213, 2032, 4, false}, // WGS 84 / EPSG Arctic Regional zone A3
    {5924, 4326, 205159, 214, 2033, 4, false}, // WGS 84 / EPSG Arctic Regional zone A4
    {5925, 4326, 205183, 215, 2035, 4, false}, // WGS 84 / EPSG Arctic Regional zone A5
    {5926, 4326, 205207, 216, 2036, 4, false}, // WGS 84 / EPSG Arctic Regional zone B1
    {5927, 4326, 205231, 217, 2037, 4, false}, // WGS 84 / EPSG Arctic Regional zone B2
    {5928, 4326, 205255, 218, 2038, 4, false}, // WGS 84 / EPSG Arctic Regional zone B3
    {5929, 4326, 205279, 219, 2041, 4, false}, // WGS 84 / EPSG Arctic Regional zone B4
    {5930, 4326, 205303, 220, 2042, 4, false}, // WGS 84 / EPSG Arctic Regional zone B5
    {5931, 4326, 205327, 221, 2044, 4, false}, // WGS 84 / EPSG Arctic Regional zone C1
    {5932, 4326, 205351, 222, 2045, 4, false}, // WGS 84 / EPSG Arctic Regional zone C2
    {5933, 4326, 205375, 223, 2046, 4, false}, // WGS 84 / EPSG Arctic Regional zone C3
    {5934, 4326, 205399, 224, 2047, 4, false}, // WGS 84 / EPSG Arctic Regional zone C4
    {5935, 4326, 205423, 225, 2049, 4, false}, // WGS 84 / EPSG Arctic Regional zone C5
    {5936, 4326, 205058, 206, 781, 4, false}, // WGS 84 / EPSG Alaska Polar Stereographic
    {5937, 4326, 206027, 207, 781, 4, false}, // WGS 84 / EPSG Canada Polar Stereographic
    {5938, 4326, 206054, 208, 781, 4, false}, // WGS 84 / EPSG Greenland Polar Stereographic
    {5939, 4326, 206083, 209, 781, 4, false}, // WGS 84 / EPSG Norway Polar Stereographic
    {5940, 4326, 206111, 210, 781, 4, false}, // WGS 84 / EPSG Russia Polar Stereographic
    {6050, 4747, 52941, 230, 2052, 4, false}, // GR96 / EPSG Arctic zone 1-25
    {6051, 4747, 52959, 238, 2043, 4, false}, // GR96 / EPSG Arctic zone 2-18
    {6052, 4747, 52977, 239, 2050, 4, false}, // GR96 / EPSG Arctic zone 2-20
    {6053, 4747, 52995, 253, 2072, 4, false}, // GR96 / EPSG Arctic zone 3-29
    {6054, 4747, 53013, 254, 2073, 4, false}, // GR96 / EPSG Arctic zone 3-31
    {6055, 4747, 53031, 255, 2074, 4, false}, // GR96 / EPSG Arctic zone 3-33
    {6056, 4747, 53049, 260, 2079, 4, false}, // GR96 / EPSG Arctic zone 4-20
    {6057, 4747, 53067, 261, 2080, 4, false}, // GR96 / EPSG Arctic zone 4-22
    {6058, 4747, 53085, 262, 2081, 4, false}, // GR96 / EPSG Arctic zone 4-24
    {6059, 4747, 53103, 286, 2105, 4, false}, // GR96 / EPSG Arctic zone 5-41
    {6060, 4747, 53121, 287, 2106, 4, false}, // GR96 / EPSG Arctic zone 5-43
    {6061, 4747, 53139, 288, 2107, 4, false}, // GR96 / EPSG Arctic zone 5-45
    {6062, 4747, 53157, 296, 2115, 4, false}, // GR96 / EPSG Arctic zone 6-26
    {6063, 4747, 53175, 297, 2116, 4, false}, // GR96 / EPSG Arctic zone 6-28
    {6064, 4747, 53193, 298, 2117, 4, false}, // GR96 / EPSG Arctic zone 6-30
    {6065, 4747, 53211, 299, 2118, 4, false}, // GR96 / EPSG Arctic zone 7-11
    {6066, 4747, 53229, 300, 2119, 4, false}, // GR96 / EPSG Arctic zone 7-13
    {6067, 4747, 53247, 226, 2121, 4, false}, // GR96 / EPSG Arctic zone 8-20
    {6068, 4747, 53265, 227, 2122, 4, false}, // GR96 / EPSG Arctic zone 8-22
    {6069, 4258, 41991, 240, 2057, 4, false}, // ETRS89 / EPSG Arctic zone 2-22
    {6070, 4258, 42010, 244, 2062, 4, false}, // ETRS89 / EPSG Arctic zone 3-11
    {6071, 4258, 42029, 263, 2082, 4, false}, // ETRS89 / EPSG Arctic zone 4-26
    {6072, 4258, 42048, 264, 2083, 4, false}, // ETRS89 / EPSG Arctic zone 4-28
    {6073, 4258, 42067, 271, 2090, 4, false}, // ETRS89 / EPSG Arctic zone 5-11
    {6074, 4258, 42086, 272, 2091, 4, false}, // ETRS89 / EPSG Arctic zone 5-13
    {6075, 4326, 205567, 241, 2058, 4, false}, // WGS 84 / EPSG Arctic zone 2-24
    {6076, 4326, 205587, 242, 2059, 4, false}, // WGS 84 / EPSG Arctic zone 2-26
    {6077, 4326, 205627, 245, 2063, 4, false}, // WGS 84 / EPSG Arctic zone 3-13
    {6078, 4326, 205647, 246, 2064, 4, false}, // WGS 84 / EPSG Arctic zone 3-15
    {6079, 4326, 205667, 247, 2065, 4, false}, // WGS 84 / EPSG Arctic zone 3-17
    {6080, 4326, 205687, 248, 2066, 4, false}, // WGS 84 / EPSG Arctic zone 3-19
    {6081, 4326, 205767, 265, 2084, 4, false}, // WGS 84 / EPSG Arctic zone 4-30
    {6082, 4326, 205787, 266, 2085, 4, false}, // WGS 84 / EPSG Arctic zone 4-32
    {6083, 4326, 205807, 267, 2086, 4, false}, // WGS 84 / EPSG Arctic zone 4-34
    {6084, 4326, 205827, 268, 2087, 4, false}, // WGS 84 / EPSG Arctic zone 4-36
    {6085, 4326, 205847, 269, 2088, 4, false}, // WGS 84 / EPSG Arctic zone 4-38
    {6086, 4326, 205867, 270, 2089, 4, false}, // WGS 84 / EPSG Arctic zone 4-40
    {6087, 4326, 205887, 273, 2092, 4, false}, // WGS 84 / EPSG Arctic zone 5-15
    {6088, 4326, 205907, 274, 2093, 4, false}, // WGS 84 / EPSG Arctic zone 5-17
    {6089, 4326, 205927, 275, 2094, 4, false}, // WGS 84 / EPSG Arctic zone 5-19
    {6090, 4326, 205947, 276, 2095, 4, false}, // WGS 84 / EPSG Arctic zone 5-21
    {6091, 4326, 205967, 277, 2096, 4, false}, // WGS 84 / EPSG Arctic zone 5-23
    {6092, 4326, 205987, 278, 2097, 4, false}, // WGS 84 / EPSG Arctic zone 5-25
    {6093, 4326, 206007, 279, 2098, 4, false}, // WGS 84 / EPSG Arctic zone 5-27
    {6094, 4759, 120142, 280, 2099, 4, false}, // NAD83(NSRS2007) / EPSG Arctic zone 5-29
    {6095, 4759, 120161, 281, 2100, 4, false}, // NAD83(NSRS2007) / EPSG Arctic zone 5-31
    {6096, 4759, 120180, 290, 2109, 4, false}, // NAD83(NSRS2007) / EPSG Arctic zone 6-14
    {6097, 4759, 120199, 291, 2110, 4, false}, // NAD83(NSRS2007) / EPSG Arctic zone 6-16
    {6098, 4617, 110922, 229, 2051, 4, false}, // NAD83(CSRS) / EPSG Arctic zone 1-23
    {6099, 4617, 110939, 236, 2034, 4, false}, // NAD83(CSRS) / EPSG Arctic zone 2-14
    {6100, 4617, 110956, 237, 2040, 4, false}, // NAD83(CSRS) / EPSG Arctic zone 2-16
    {6101, 4617, 110973, 251, 2069, 4, false}, // NAD83(CSRS) / EPSG Arctic zone 3-25
    {6102, 4617, 110990, 252, 2070, 4, false}, // NAD83(CSRS) / EPSG Arctic zone 3-27
    {6103, 4617, 111007, 253, 2071, 4, false}, // NAD83(CSRS) / EPSG Arctic zone 3-29
    {6104, 4617, 111024, 257, 2076, 4, false}, // NAD83(CSRS) / EPSG Arctic zone 4-14
    {6105, 4617, 111041, 258, 2077, 4, false}, // NAD83(CSRS) / EPSG Arctic zone 4-16
    {6106, 4617, 111058, 259, 2078, 4, false}, // NAD83(CSRS) / EPSG Arctic zone 4-18
    {6107, 4617, 111075, 282, 2101, 4, false}, // NAD83(CSRS) / EPSG Arctic zone 5-33
    {6108, 4617, 111092, 283, 2102, 4, false}, // NAD83(CSRS) / EPSG Arctic zone 5-35
    {6109, 4617, 111109, 284, 2103, 4, false}, // NAD83(CSRS) / EPSG Arctic zone 5-37
    {6110, 4617, 111126, 285, 2104, 4, false}, // NAD83(CSRS) / EPSG Arctic zone 5-39
    {6111, 4617, 111143, 292, 2111, 4, false}, // NAD83(CSRS) / EPSG Arctic zone 6-18
    {6112, 4617, 111160, 293, 2112, 4, false}, // NAD83(CSRS) / EPSG Arctic zone 6-20
    {6113, 4617, 111177, 294, 2113, 4, false}, // NAD83(CSRS) / EPSG Arctic zone 6-22
    {6114, 4617, 111194, 295, 2114, 4, false}, // NAD83(CSRS) / EPSG Arctic zone 6-24
    {6115, 4326, 205467, 231, 2053, 4, false}, // WGS 84 / EPSG Arctic zone 1-27
    {6116, 4326, 205487, 232, 2054, 4, false}, // WGS 84 / EPSG Arctic zone 1-29
    {6117, 4326, 205507, 233, 2055, 4, false}, // WGS 84 / EPSG Arctic zone 1-31
    {6118, 4326, 205447, 228, 2048, 4, false}, // WGS 84 / EPSG Arctic zone 1-21
    {6119, 4326, 205607, 243, 2060, 4, false}, // WGS 84 / EPSG Arctic zone 2-28
    {6120, 4326, 205527, 234, 2061, 4, false}, // WGS 84 / EPSG Arctic zone 2-10
    {6121, 4326, 205547, 235, 2056, 4, false}, // WGS 84 / EPSG Arctic zone 2-12
    {6122, 4326, 205707, 249, 2067, 4, false}, // WGS 84 / EPSG Arctic zone 3-21
    {6123, 4326, 205727, 250, 2068, 4, false}, // WGS 84 / EPSG Arctic zone 3-23
    {6124, 4326, 205747, 256, 2075, 4, false}, // WGS 84 / EPSG Arctic zone 4-12
    {6125, 4258, 42105, 289, 2108, 4, false}, // ETRS89 / EPSG Arctic zone 5-47
    {6128, 4723, 61311, 302, 1457, 6, false}, // Grand Cayman National Grid 1959
    {6129, 4726, 178824, 302, 1458, 6, false}, // Sister Islands National Grid 1961
    {6135, 1100, 26362, geographic, 18, 25, false}, // CIGD11
    {6141, 6135, 29769, 301, 18, 6, true}, // Cayman Islands National Grid 2011
    {6200, 4267, 93875, 303, 513, 8, true}, // NAD27 / Michigan North
    {6201, 4267, 93847, 304, 514, 8, false}, // NAD27 / Michigan Central
    {6202, 4267, 93904, 305, 515, 8, false}, // NAD27 / Michigan South
    {6204, 3906, 86071, 306, 63, 4, false}, // Macedonia State Coordinate System
    {6207, 1111, 127883, geographic, 73, 25, false}, // Nepal 1981
    {6210, 4674, 169640, 1332, 2124, 4, false}, // SIRGAS 2000 / UTM zone 23N
    {6211, 4674, 169674, 1333, 2128, 4, false}, // SIRGAS 2000 / UTM zone 24N
    {6244, 4686, 83205, 307, 2120, 5, false}, // MAGNA-SIRGAS / Arauca urban grid
    {6245, 4686, 83231, 308, 2127, 5, false}, // MAGNA-SIRGAS / Armenia urban grid
    {6246, 4686, 83256, 309, 2129, 5, false}, // MAGNA-SIRGAS / Barranquilla urban grid
    {6247, 4686, 83286, 310, 2130, 5, false}, // MAGNA-SIRGAS / Bogota urban grid
    {6248, 4686, 83312, 311, 2131, 5, false}, // MAGNA-SIRGAS / Bucaramanga urban grid
    {6249, 4686, 83341, 312, 2132, 5, false}, // MAGNA-SIRGAS / Cali urban grid
    {6250, 4686, 83366, 313, 2133, 5, false}, // MAGNA-SIRGAS / Cartagena urban grid
    {6251, 4686, 83518, 314, 2134, 5, false}, // MAGNA-SIRGAS / Cucuta urban grid
    {6252, 4686, 83545, 315, 2135, 5, false}, // MAGNA-SIRGAS / Florencia urban grid
    {6253, 4686, 83572, 316, 2136, 5, false}, // MAGNA-SIRGAS / Ibague urban grid
    {6254, 4686, 83599, 317, 2137, 5, false}, // MAGNA-SIRGAS / Inirida urban grid
    {6255, 4686, 83624, 318, 2138, 5, false}, // MAGNA-SIRGAS / Leticia urban grid
    {6256, 4686, 83649, 319, 2139, 5, false}, // MAGNA-SIRGAS / Manizales urban grid
    {6257, 4686, 83677, 320, 2140, 5, false}, // MAGNA-SIRGAS / Medellin urban grid
    {6258, 4686, 83704, 321, 2141, 5, false}, // MAGNA-SIRGAS / Mitu urban grid
    {6259, 4686, 83729, 322, 2142, 5, false}, // MAGNA-SIRGAS / Mocoa urban grid
    {6260, 4686, 83755, 323, 2143, 5, false}, // MAGNA-SIRGAS / Monteria urban grid
    {6261, 4686, 83781, 324, 2144, 5, false}, // MAGNA-SIRGAS / Neiva urban grid
    {6262, 4686, 83831, 325, 2145, 5, false}, // MAGNA-SIRGAS / Pasto urban grid
    {6263, 4686, 83856, 326, 2146, 5, false}, // MAGNA-SIRGAS / Pereira urban grid
    {6264, 4686, 83882, 327, 2147, 5, false}, // MAGNA-SIRGAS / Popayan urban grid
    {6265, 4686, 83910, 328, 2148, 5, false}, // MAGNA-SIRGAS / Puerto Carreno urban grid
    {6266, 4686, 83941, 329, 2149, 5, false}, // MAGNA-SIRGAS / Quibdo urban grid
    {6267, 4686, 83968, 330, 2150, 5, false}, // MAGNA-SIRGAS / Riohacha urban grid
    {6268, 4686, 83997, 331, 2151, 5, false}, // MAGNA-SIRGAS / San Andres urban grid
    {6269, 4686, 84027, 332, 2152, 5, false}, // MAGNA-SIRGAS / San Jose del Guaviare urban grid
    {6270, 4686, 84065, 333, 2123, 5, false}, // MAGNA-SIRGAS / Santa Marta urban grid
    {6271, 4686, 84094, 334, 2125, 5, false}, // MAGNA-SIRGAS / Sucre urban grid
    {6272, 4686, 84120, 335, 2126, 5, false}, // MAGNA-SIRGAS / Tunja urban grid
    {6273, 4686, 84146, 336, 2153, 5, false}, // MAGNA-SIRGAS / Valledupar urban grid
    {6274, 4686, 84175, 337, 2154, 5, false}, // MAGNA-SIRGAS / Villavicencio urban grid
    {6275, 4686, 84206, 338, 2155, 5, false}, // MAGNA-SIRGAS / Yopal urban grid
    {6307, 6783, 110715, 1200, 1768, 4, false}, // NAD83(CORS96) / Puerto Rico and Virgin Is.
    {6311, 1112, 26118, geographic, 1488, 25, false}, // CGRS93
    {6312, 6311, 26124, 339, 1488, 4, false}, // CGRS93 / Cyprus Local Transverse Mercator
    {6316, 3906, 85003, 2182, 503, 4, false}, // MGI 1901 / Balkans zone 7
    {6318, 1116, 99957, geographic, 307, 25, false}, // NAD83(2011)
    {6322, 1117, 123808, geographic, 2156, 25, false}, // NAD83(PA11)
    {6325, 1118, 119305, geographic, 2158, 25, false}, // NAD83(MA11)
    {6328, 6318, 107025, 1368, 1554, 4, false}, // NAD83(2011) / UTM zone 59N
    {6329, 6318, 107040, 1369, 1555, 4, false}, // NAD83(2011) / UTM zone 60N
    {6330, 6318, 106997, 1310, 1556, 4, false}, // NAD83(2011) / UTM zone 1N
    {6331, 6318, 107004, 1311, 1557, 4, false}, // NAD83(2011) / UTM zone 2N
    {6332, 6318, 107011, 1312, 918, 4, false}, // NAD83(2011) / UTM zone 3N
    {6333, 6318, 107018, 1313, 919, 4, false}, // NAD83(2011) / UTM zone 4N
    {6334, 6318, 107033, 1314, 920, 4, false}, // NAD83(2011) / UTM zone 5N
    {6335, 6318, 107048, 1315, 921, 4, false}, // NAD83(2011) / UTM zone 6N
    {6336, 6318, 107055, 1316, 1654, 4, false}, // NAD83(2011) / UTM zone 7N
    {6337, 6318, 107062, 1317, 1655, 4, false}, // NAD83(2011) / UTM zone 8N
    {6338, 6318, 107069, 1318, 1656, 4, false}, // NAD83(2011) / UTM zone 9N
    {6339, 6318, 106918, 1319, 1657, 4, false}, // NAD83(2011) / UTM zone 10N
    {6340, 6318, 106925, 1320, 1658, 4, false}, // NAD83(2011) / UTM zone 11N
    {6341, 6318, 106933, 1321, 1659, 4, false}, // NAD83(2011) / UTM zone 12N
    {6342, 6318, 106941, 1322, 1660, 4, false}, // NAD83(2011) / UTM zone 13N
    {6343, 6318, 106949, 1323, 1661, 4, false}, // NAD83(2011) / UTM zone 14N
    {6344, 6318, 106957, 1324, 1662, 4, false}, // NAD83(2011) / UTM zone 15N
    {6345, 6318, 106965, 1325, 1663, 4, false}, // NAD83(2011) / UTM zone 16N
    {6346, 6318, 106973, 1326, 1664, 4, false}, // NAD83(2011) / UTM zone 17N
    {6347, 6318, 106981, 1327, 1665, 4, false}, // NAD83(2011) / UTM zone 18N
    {6348, 6318, 106989, 1328, 1666, 4, false}, // NAD83(2011) / UTM zone 19N
    {6350, 6318, 100517, 100, 152, 4, false}, // NAD83(2011) / Conus Albers
    {6351, 6318, 100548, 280, 2099, 4, false}, // NAD83(2011) / EPSG Arctic zone 5-29
    {6352, 6318, 100562, 281, 2100, 4, false}, // NAD83(2011) / EPSG Arctic zone 5-31
    {6353, 6318, 100576, 290, 2109, 4, false}, // NAD83(2011) / EPSG Arctic zone 6-14
    {6354, 6318, 100590, 291, 2110, 4, false}, // NAD83(2011) / EPSG Arctic zone 6-16
    {6355, 6318, 99960, 911, 939, 4, false}, // NAD83(2011) / Alabama East
    {6356, 6318, 99986, 912, 940, 4, false}, // NAD83(2011) / Alabama West
    {6362, 4483, 89132, 340, 69, 5, false}, // Mexico ITRF92 / LCC
    {6365, 1120, 88978, geographic, 69, 25, false}, // Mexico ITRF2008
    {6366, 6365, 89006, 1320, 1601, 4, false}, // Mexico ITRF2008 / UTM zone 11N
    {6367, 6365, 89025, 1321, 1602, 4, false}, // Mexico ITRF2008 / UTM zone 12N
    {6368, 6365, 89044, 1322, 1603, 4, false}, // Mexico ITRF2008 / UTM zone 13N
    {6369, 6365, 89063, 1323, 1604, 4, false}, // Mexico ITRF2008 / UTM zone 14N
    {6370, 6365, 89082, 1324, 1767, 4, false}, // Mexico ITRF2008 / UTM zone 15N
    {6371, 6365, 89101, 1325, 1769, 4, false}, // Mexico ITRF2008 / UTM zone 16N
    {6372, 6365, 88990, 340, 69, 5, false}, // Mexico ITRF2008 / LCC
    {6381, 5561, 188944, 341, 1951, 5, false}, // UCS-2000 / Ukraine TM zone 7
    {6382, 5561, 188959, 342, 1952, 5, false}, // UCS-2000 / Ukraine TM zone 8
    {6383, 5561, 188974, 343, 1953, 5, false}, // UCS-2000 / Ukraine TM zone 9
    {6384, 5561, 188880, 344, 1954, 5, false}, // UCS-2000 / Ukraine TM zone 10
    {6385, 5561, 188896, 345, 1955, 5, false}, // UCS-2000 / Ukraine TM zone 11
    {6386, 5561, 188912, 346, 1957, 5, false}, // UCS-2000 / Ukraine TM zone 12
    {6387, 5561, 188928, 347, 1958, 5, false}, // UCS-2000 / Ukraine TM zone 13
    {6391, 6135, 29769, 348, 18, 6, false}, // Cayman Islands National Grid 2011
    {6393, 6318, 100012, 1176, 157, 4, false}, // NAD83(2011) / Alaska Albers
    {6394, 6318, 100023, 1177, 941, 4, false}, // NAD83(2011) / Alaska zone 1
    {6395, 6318, 100042, 1178, 943, 4, false}, // NAD83(2011) / Alaska zone 2
    {6396, 6318, 100051, 1179, 944, 4, false}, // NAD83(2011) / Alaska zone 3
    {6397, 6318, 100060, 1180, 945, 4, false}, // NAD83(2011) / Alaska zone 4
    {6398, 6318, 100069, 1181, 946, 4, false}, // NAD83(2011) / Alaska zone 5
    {6399, 6318, 100078, 1182, 947, 4, false}, // NAD83(2011) / Alaska zone 6
    {6400, 6318, 100087, 1183, 948, 4, false}, // NAD83(2011) / Alaska zone 7
    {6401, 6318, 100096, 1184, 949, 4, false}, // NAD83(2011) / Alaska zone 8
    {6402, 6318, 100105, 1185, 950, 4, false}, // NAD83(2011) / Alaska zone 9
    {6403, 6318, 100032, 1186, 942, 4, false}, // NAD83(2011) / Alaska zone 10
    {6404, 6318, 100132, 919, 951, 4, false}, // NAD83(2011) / Arizona Central
    {6405, 6318, 100141, 1209, 951, 6, false}, // NAD83(2011) / Arizona Central (ft)
    {6406, 6318, 100154, 918, 952, 4, false}, // NAD83(2011) / Arizona East
    {6407, 6318, 100163, 1208, 952, 6, false}, // NAD83(2011) / Arizona East (ft)
    {6408, 6318, 100175, 920, 953, 4, false}, // NAD83(2011) / Arizona West
    {6409, 6318, 100184, 1210, 953, 6, false}, // NAD83(2011) / Arizona West (ft)
    {6410, 6318, 100196, 923, 954, 4, false}, // NAD83(2011) / Arkansas North
    {6411, 6318, 100205, 1289, 954, 8, false}, // NAD83(2011) / Arkansas North (ftUS)
    {6412, 6318, 100219, 924, 955, 4, false}, // NAD83(2011) / Arkansas South
    {6413, 6318, 100228, 1290, 955, 8, false}, // NAD83(2011) / Arkansas South (ftUS)
    {6414, 6318, 100242, 933, 193, 4, false}, // NAD83(2011) / California Albers
    {6415, 6318, 100255, 934, 960, 4, false}, // NAD83(2011) / California zone 1
    {6416, 6318, 100266, 1211, 960, 8, false}, // NAD83(2011) / California zone 1 (ftUS)
    {6417, 6318, 100283, 935, 961, 4, false}, // NAD83(2011) / California zone 2
    {6418, 6318, 100294, 1212, 961, 8, false}, // NAD83(2011) / California zone 2 (ftUS)
    {6419, 6318, 100311, 936, 962, 4, false}, // NAD83(2011) / California zone 3
    {6420, 6318, 100322, 1213, 962, 8, false}, // NAD83(2011) / California zone 3 (ftUS)
    {6421, 6318, 100339, 937, 963, 4, false}, // NAD83(2011) / California zone 4
    {6422, 6318, 100350, 1214, 963, 8, false}, // NAD83(2011) / California zone 4 (ftUS)
    {6423, 6318, 100367, 938, 967, 4, false}, // NAD83(2011) / California zone 5
    {6424, 6318, 100378, 1215, 967, 8, false}, // NAD83(2011) / California zone 5 (ftUS)
    {6425, 6318, 100395, 939, 965, 4, false}, // NAD83(2011) / California zone 6
    {6426, 6318, 100406, 1216, 965, 8, false}, // NAD83(2011) / California zone 6 (ftUS)
    {6427, 6318, 100423, 944, 968, 4, false}, // NAD83(2011) / Colorado Central
    {6428, 6318, 100433, 1218, 968, 8, false}, // NAD83(2011) / Colorado Central (ftUS)
    {6429, 6318, 100448, 943, 969, 4, false}, // NAD83(2011) / Colorado North
    {6430, 6318, 100456, 1217, 969, 8, false}, // NAD83(2011) / Colorado North (ftUS)
    {6431, 6318, 100469, 945, 970, 4, false}, // NAD83(2011) / Colorado South
    {6432, 6318, 100478, 1219, 970, 8, false}, // NAD83(2011) / Colorado South (ftUS)
    {6433, 6318, 100491, 947, 194, 4, false}, // NAD83(2011) / Connecticut
    {6434, 6318, 100501, 1220, 194, 8, false}, // NAD83(2011) / Connecticut (ftUS)
    {6435, 6318, 100527, 949, 195, 4, false}, // NAD83(2011) / Delaware
    {6436, 6318, 100535, 1221, 195, 8, false}, // NAD83(2011) / Delaware (ftUS)
    {6437, 6318, 100604, 953, 971, 4, false}, // NAD83(2011) / Florida East
    {6438, 6318, 100614, 1222, 971, 8, false}, // NAD83(2011) / Florida East (ftUS)
    {6439, 6318, 100628, 956, 196, 4, false}, // NAD83(2011) / Florida GDL Albers
    {6440, 6318, 100643, 955, 972, 4, false}, // NAD83(2011) / Florida North
    {6441, 6318, 100651, 1224, 972, 8, false}, // NAD83(2011) / Florida North (ftUS)
    {6442, 6318, 100664, 954, 973, 4, false}, // NAD83(2011) / Florida West
    {6443, 6318, 100674, 1223, 973, 8, false}, // NAD83(2011) / Florida West (ftUS)
    {6444, 6318, 100688, 959, 974, 4, false}, // NAD83(2011) / Georgia East
    {6445, 6318, 100698, 1225, 974, 8, false}, // NAD83(2011) / Georgia East (ftUS)
    {6446, 6318, 100712, 960, 975, 4, false}, // NAD83(2011) / Georgia West
    {6447, 6318, 100722, 1226, 975, 8, false}, // NAD83(2011) / Georgia West (ftUS)
    {6448, 6318, 100853, 965, 976, 4, false}, // NAD83(2011) / Idaho Central
    {6449, 6318, 100862, 1228, 976, 8, false}, // NAD83(2011) / Idaho Central (ftUS)
    {6450, 6318, 100876, 964, 977, 4, false}, // NAD83(2011) / Idaho East
    {6451, 6318, 100885, 1227, 977, 8, false}, // NAD83(2011) / Idaho East (ftUS)
    {6452, 6318, 100898, 966, 978, 4, false}, // NAD83(2011) / Idaho West
    {6453, 6318, 100907, 1229, 978, 8, false}, // NAD83(2011) / Idaho West (ftUS)
    {6454, 6318, 100920, 969, 979, 4, false}, // NAD83(2011) / Illinois East
    {6455, 6318, 100932, 1291, 979, 8, false}, // NAD83(2011) / Illinois East (ftUS)
    {6456, 6318, 100948, 970, 980, 4, false}, // NAD83(2011) / Illinois West
    {6457, 6318, 100960, 1292, 980, 8, false}, // NAD83(2011) / Illinois West (ftUS)
    {6458, 6318, 103168, 973, 981, 4, false}, // NAD83(2011) / Indiana East
    {6459, 6318, 103176, 1276, 981, 8, false}, // NAD83(2011) / Indiana East (ftUS)
    {6460, 6318, 103188, 974, 982, 4, false}, // NAD83(2011) / Indiana West
    {6461, 6318, 103196, 1277, 982, 8, false}, // NAD83(2011) / Indiana West (ftUS)
    {6462, 6318, 103208, 977, 983, 4, false}, // NAD83(2011) / Iowa North
    {6463, 6318, 103215, 1281, 983, 8, false}, // NAD83(2011) / Iowa North (ftUS)
    {6464, 6318, 103227, 978, 984, 4, false}, // NAD83(2011) / Iowa South
    {6465, 6318, 103235, 1282, 984, 8, false}, // NAD83(2011) / Iowa South (ftUS)
    {6466, 6318, 103464, 981, 985, 4, false}, // NAD83(2011) / Kansas North
    {6467, 6318, 103472, 1283, 985, 8, false}, // NAD83(2011) / Kansas North (ftUS)
    {6468, 6318, 103485, 982, 986, 4, false}, // NAD83(2011) / Kansas South
    {6469, 6318, 103493, 1284, 986, 8, false}, // NAD83(2011) / Kansas South (ftUS)
    {6470, 6318, 103506, 1207, 987, 4, false}, // NAD83(2011) / Kentucky North
    {6471, 6318, 103516, 1232, 987, 8, false}, // NAD83(2011) / Kentucky North (ftUS)
    {6472, 6318, 103531, 985, 199, 4, false}, // NAD83(2011) / Kentucky Single Zone
    {6473, 6318, 103548, 1279, 199, 8, false}, // NAD83(2011) / Kentucky Single Zone (ftUS)
    {6474, 6318, 103570, 987, 988, 4, false}, // NAD83(2011) / Kentucky South
    {6475, 6318, 103581, 1233, 988, 8, false}, // NAD83(2011) / Kentucky South (ftUS)
    {6476, 6318, 103597, 991, 989, 4, false}, // NAD83(2011) / Louisiana North
    {6477, 6318, 103605, 1295, 989, 8, false}, // NAD83(2011) / Louisiana North (ftUS)
    {6478, 6318, 103618, 992, 1085, 4, false}, // NAD83(2011) / Louisiana South
    {6479, 6318, 103627, 1296, 1085, 8, false}, // NAD83(2011) / Louisiana South (ftUS)
    {6480, 6318, 103640, 1003, 1287, 4, false}, // NAD83(2011) / Maine CS2000 Central
    {6481, 6318, 103653, 1000, 1288, 4, false}, // NAD83(2011) / Maine CS2000 East
    {6482, 6318, 103666, 1002, 1286, 4, false}, // NAD83(2011) / Maine CS2000 West
    {6483, 6318, 103679, 996, 991, 4, false}, // NAD83(2011) / Maine East
    {6484, 6318, 103688, 998, 991, 8, false}, // NAD83(2011) / Maine East (ftUS)
    {6485, 6318, 103701, 997, 992, 4, false}, // NAD83(2011) / Maine West
    {6486, 6318, 103710, 999, 992, 8, false}, // NAD83(2011) / Maine West (ftUS)
    {6487, 6318, 103723, 1005, 201, 4, false}, // NAD83(2011) / Maryland
    {6488, 6318, 103729, 1234, 201, 8, false}, // NAD83(2011) / Maryland (ftUS)
    {6489, 6318, 103741, 1009, 993, 4, false}, // NAD83(2011) / Massachusetts Island
    {6490, 6318, 103755, 1236, 993, 8, false}, // NAD83(2011) / Massachusetts Island (ftUS)
    {6491, 6318, 103775, 1008, 994, 4, false}, // NAD83(2011) / Massachusetts Mainland
    {6492, 6318, 103792, 1235, 994, 8, false}, // NAD83(2011) / Massachusetts Mainland (ftUS)
    {6493, 6318, 103815, 1017, 514, 4, false}, // NAD83(2011) / Michigan Central
    {6494, 6318, 103827, 1238, 514, 6, false}, // NAD83(2011) / Michigan Central (ft)
    {6495, 6318, 103842, 1016, 513, 4, false}, // NAD83(2011) / Michigan North
    {6496, 6318, 103852, 1237, 513, 6, false}, // NAD83(2011) / Michigan North (ft)
    {6497, 6318, 103866, 1019, 202, 4, false}, // NAD83(2011) / Michigan Oblique Mercator
    {6498, 6318, 103887, 1018, 515, 4, false}, // NAD83(2011) / Michigan South
    {6499, 6318, 103897, 1239, 515, 6, false}, // NAD83(2011) / Michigan South (ft)
    {6500, 6318, 103911, 1024, 998, 4, false}, // NAD83(2011) / Minnesota Central
    {6501, 6318, 103922, 1027, 998, 8, false}, // NAD83(2011) / Minnesota Central (ftUS)
    {6502, 6318, 103938, 1023, 999, 4, false}, // NAD83(2011) / Minnesota North
    {6503, 6318, 103947, 1026, 999, 8, false}, // NAD83(2011) / Minnesota North (ftUS)
    {6504, 6318, 103961, 1025, 1000, 4, false}, // NAD83(2011) / Minnesota South
    {6505, 6318, 103971, 1028, 1000, 8, false}, // NAD83(2011) / Minnesota South (ftUS)
    {6506, 6318, 103985, 1031, 1001, 4, false}, // NAD83(2011) / Mississippi East
    {6507, 6318, 104000, 1240, 1001, 8, false}, // NAD83(2011) / Mississippi East (ftUS)
    {6508, 6318, 104019, 1, 203, 4, false}, // NAD83(2011) / Mississippi TM
    {6509, 6318, 104032, 1032, 1002, 4, false}, // NAD83(2011) / Mississippi West
    {6510, 6318, 104047, 1241, 1002, 8, false}, // NAD83(2011) / Mississippi West (ftUS)
    {6511, 6318, 104066, 1037, 1003, 4, false}, // NAD83(2011) / Missouri Central
    {6512, 6318, 104078, 1036, 1004, 4, false}, // NAD83(2011) / Missouri East
    {6513, 6318, 104090, 1038, 1005, 4, false}, // NAD83(2011) / Missouri West
    {6514, 6318, 104102, 1042, 204, 4, false}, // NAD83(2011) / Montana
    {6515, 6318, 104109, 1242, 204, 6, false}, // NAD83(2011) / Montana (ft)
    {6516, 6318, 104202, 1045, 205, 4, false}, // NAD83(2011) / Nebraska
    {6517, 4759, 104210, 1300, 205, 8, true}, // NAD83(2011) / Nebraska (ftUS)
    {6518, 6318, 104223, 1050, 1008, 4, false}, // NAD83(2011) / Nevada Central
    {6519, 6318, 104232, 1286, 1008, 8, false}, // NAD83(2011) / Nevada Central (ftUS)
    {6520, 6318, 104246, 1049, 1009, 4, false}, // NAD83(2011) / Nevada East
    {6521, 6318, 104255, 1285, 1009, 8, false}, // NAD83(2011) / Nevada East (ftUS)
    {6522, 6318, 104268, 1051, 1010, 4, false}, // NAD83(2011) / Nevada West
    {6523, 6318, 104277, 1287, 1010, 8, false}, // NAD83(2011) / Nevada West (ftUS)
    {6524, 6318, 104290, 1053, 206, 4, false}, // NAD83(2011) / New Hampshire
    {6525, 6318, 104300, 1293, 206, 8, false}, // NAD83(2011) / New Hampshire (ftUS)
    {6526, 6318, 104315, 1055, 207, 4, false}, // NAD83(2011) / New Jersey
    {6527, 6318, 104323, 1288, 207, 8, false}, // NAD83(2011) / New Jersey (ftUS)
    {6528, 6318, 104336, 1060, 1016, 4, false}, // NAD83(2011) / New Mexico Central
    {6529, 6318, 104348, 1244, 1016, 8, false}, // NAD83(2011) / New Mexico Central (ftUS)
    {6530, 6318, 104365, 1059, 1013, 4, false}, // NAD83(2011) / New Mexico East
    {6531, 6318, 104377, 1243, 1013, 8, false}, // NAD83(2011) / New Mexico East (ftUS)
    {6532, 6318, 104393, 1061, 1017, 4, false}, // NAD83(2011) / New Mexico West
    {6533, 6318, 104405, 1245, 1017, 8, false}, // NAD83(2011) / New Mexico West (ftUS)
    {6534, 6318, 104421, 1067, 1018, 4, false}, // NAD83(2011) / New York Central
    {6535, 6318, 104432, 1247, 1018, 8, false}, // NAD83(2011) / New York Central (ftUS)
    {6536, 6318, 104447, 1066, 1019, 4, false}, // NAD83(2011) / New York East
    {6537, 6318, 104458, 1246, 1019, 8, false}, // NAD83(2011) / New York East (ftUS)
    {6538, 6318, 104473, 1069, 1020, 4, false}, // NAD83(2011) / New York Long Island
    {6539, 6318, 104486, 1249, 1020, 8, false}, // NAD83(2011) / New York Long Island (ftUS)
    {6540, 6318, 104505, 1068, 1021, 4, false}, // NAD83(2011) / New York West
    {6541, 6318, 104516, 1248, 1021, 8, false}, // NAD83(2011) / New York West (ftUS)
    {6542, 6318, 104531, 1071, 208, 4, false}, // NAD83(2011) / North Carolina
    {6543, 6318, 104539, 1250, 208, 8, false}, // NAD83(2011) / North Carolina (ftUS)
    {6544, 6318, 104552, 1074, 1022, 4, false}, // NAD83(2011) / North Dakota North
    {6545, 6318, 104561, 1251, 1022, 6, false}, // NAD83(2011) / North Dakota North (ft)
    {6546, 6318, 104574, 1075, 1023, 4, false}, // NAD83(2011) / North Dakota South
    {6547, 6318, 104584, 1252, 1023, 6, false}, // NAD83(2011) / North Dakota South (ft)
    {6548, 6318, 104597, 1078, 1024, 4, false}, // NAD83(2011) / Ohio North
    {6549, 6318, 104604, 1080, 1024, 8, false}, // NAD83(2011) / Ohio North (ftUS)
    {6550, 6318, 104616, 1079, 1025, 4, false}, // NAD83(2011) / Ohio South
    {6551, 6318, 104624, 1081, 1025, 8, false}, // NAD83(2011) / Ohio South (ftUS)
    {6552, 6318, 104636, 1084, 1026, 4, false}, // NAD83(2011) / Oklahoma North
    {6553, 6318, 104645, 1253, 1026, 8, false}, // NAD83(2011) / Oklahoma North (ftUS)
    {6554, 6318, 104659, 1085, 1027, 4, false}, // NAD83(2011) / Oklahoma South
    {6555, 6318, 104669, 1254, 1027, 8, false}, // NAD83(2011) / Oklahoma South (ftUS)
    {6556, 6318, 105397, 1090, 209, 4, false}, // NAD83(2011) / Oregon LCC (m)
    {6557, 6318, 105271, 1278, 209, 6, false}, // NAD83(2011) / Oregon GIC Lambert (ft)
    {6558, 6318, 105506, 1088, 1028, 4, false}, // NAD83(2011) / Oregon North
    {6559, 6318, 105510, 1255, 1028, 6, false}, // NAD83(2011) / Oregon North (ft)
    {6560, 6318, 105936, 1089, 1029, 4, false}, // NAD83(2011) / Oregon South
    {6561, 6318, 105942, 1256, 1029, 6, false}, // NAD83(2011) / Oregon South (ft)
    {6562, 6318, 106126, 1093, 1030, 4, false}, // NAD83(2011) / Pennsylvania North
    {6563, 6318, 106138, 1257, 1030, 8, false}, // NAD83(2011) / Pennsylvania North (ftUS)
    {6564, 6318, 106155, 1094, 1031, 4, false}, // NAD83(2011) / Pennsylvania South
    {6565, 6318, 106168, 1258, 1031, 8, false}, // NAD83(2011) / Pennsylvania South (ftUS)
    {6566, 6318, 106185, 1200, 1768, 4, false}, // NAD83(2011) / Puerto Rico and Virgin Is.
    {6567, 6318, 106607, 1096, 210, 4, false}, // NAD83(2011) / Rhode Island
    {6568, 6318, 106615, 1294, 210, 8, false}, // NAD83(2011) / Rhode Island (ftUS)
    {6569, 6318, 106665, 1099, 211, 4, false}, // NAD83(2011) / South Carolina
    {6570, 6318, 106673, 1259, 211, 6, false}, // NAD83(2011) / South Carolina (ft)
    {6571, 6318, 106685, 1102, 1034, 4, false}, // NAD83(2011) / South Dakota North
    {6572, 6318, 106694, 1298, 1034, 8, false}, // NAD83(2011) / South Dakota North (ftUS)
    {6573, 6318, 106708, 1103, 1035, 4, false}, // NAD83(2011) / South Dakota South
    {6574, 6318, 106718, 1299, 1035, 8, false}, // NAD83(2011) / South Dakota South (ftUS)
    {6575, 6318, 106732, 1105, 212, 4, false}, // NAD83(2011) / Tennessee
    {6576, 6318, 106741, 1260, 212, 8, false}, // NAD83(2011) / Tennessee (ftUS)
    {6577, 6318, 106755, 1113, 1037, 4, false}, // NAD83(2011) / Texas Central
    {6578, 6318, 106765, 1263, 1037, 8, false}, // NAD83(2011) / Texas Central (ftUS)
    {6579, 6318, 106779, 1119, 213, 4, false}, // NAD83(2011) / Texas Centric Albers Equal Area
    {6580, 6318, 106801, 1118, 213, 4, false}, // NAD83(2011) / Texas Centric Lambert Conformal
    {6581, 6318, 106822, 1111, 1038, 4, false}, // NAD83(2011) / Texas North
    {6582, 6318, 106830, 1261, 1038, 8, false}, // NAD83(2011) / Texas North (ftUS)
    {6583, 6318, 106843, 1112, 1039, 4, false}, // NAD83(2011) / Texas North Central
    {6584, 6318, 106854, 1262, 1039, 8, false}, // NAD83(2011) / Texas North Central (ftUS)
    {6585, 6318, 106870, 1115, 1084, 4, false}, // NAD83(2011) / Texas South
    {6586, 6318, 106878, 1265, 1084, 8, false}, // NAD83(2011) / Texas South (ftUS)
    {6587, 6318, 106891, 1114, 1083, 4, false}, // NAD83(2011) / Texas South Central
    {6588, 6318, 106902, 1264, 1083, 8, false}, // NAD83(2011) / Texas South Central (ftUS)
    {6589, 6318, 107136, 1127, 214, 4, false}, // NAD83(2011) / Vermont
    {6590, 6318, 107143, 195, 214, 8, false}, // NAD83(2011) / Vermont (ftUS)
    {6591, 6318, 107156, 23, 215, 4, false}, // NAD83(2011) / Virginia Lambert
    {6592, 6318, 107168, 1130, 1045, 4, false}, // NAD83(2011) / Virginia North
    {6593, 6318, 107176, 1269, 1045, 8, false}, // NAD83(2011) / Virginia North (ftUS)
    {6594, 6318, 107189, 1131, 1046, 4, false}, // NAD83(2011) / Virginia South
    {6595, 6318, 107198, 1270, 1046, 8, false}, // NAD83(2011) / Virginia South (ftUS)
    {6596, 6318, 109373, 1134, 1058, 4, false}, // NAD83(2011) / Washington North
    {6597, 6318, 109383, 1271, 1058, 8, false}, // NAD83(2011) / Washington North (ftUS)
    {6598, 6318, 109398, 1135, 1059, 4, false}, // NAD83(2011) / Washington South
    {6599, 6318, 109409, 1272, 1059, 8, false}, // NAD83(2011) / Washington South (ftUS)
    {6600, 6318, 109425, 1138, 1049, 4, false}, // NAD83(2011) / West Virginia North
    {6601, 6318, 109435, 1142, 1049, 8, false}, // NAD83(2011) / West Virginia North (ftUS)
    {6602, 6318, 109450, 1139, 1050, 4, false}, // NAD83(2011) / West Virginia South
    {6603, 6318, 109461, 1143, 1050, 8, false}, // NAD83(2011) / West Virginia South (ftUS)
    {6604, 4759, 109476, 1149, 1051, 4, true}, // NAD83(2011) / Wisconsin Central
    {6605, 6318, 109488, 1274, 1051, 8, false}, // NAD83(2011) / Wisconsin Central (ftUS)
    {6606, 6318, 109504, 1148, 1052, 4, false}, // NAD83(2011) / Wisconsin North
    {6607, 6318, 109514, 1273, 1052, 8, false}, // NAD83(2011) / Wisconsin North (ftUS)
    {6608, 6318, 109529, 1150, 1053, 4, false}, // NAD83(2011) / Wisconsin South
    {6609, 6318, 109539, 1275, 1053, 8, false}, // NAD83(2011) / Wisconsin South (ftUS)
    {6610, 6318, 109554, 1151, 216, 4, false}, // NAD83(2011) / Wisconsin Transverse Mercator
    {6611, 6318, 109575, 1157, 1054, 4, false}, // NAD83(2011) / Wyoming East
    {6612, 6318, 109586, 1161, 1054, 8, false}, // NAD83(2011) / Wyoming East (ftUS)
    {6613, 6318, 109601, 1158, 1055, 4, false}, // NAD83(2011) / Wyoming East Central
    {6614, 6318, 109614, 1162, 1055, 8, false}, // NAD83(2011) / Wyoming East Central (ftUS)
    {6615, 6318, 109632, 1160, 1056, 4, false}, // NAD83(2011) / Wyoming West
    {6616, 6318, 109643, 1164, 1056, 8, false}, // NAD83(2011) / Wyoming West (ftUS)
    {6617, 6318, 109658, 1159, 1057, 4, false}, // NAD83(2011) / Wyoming West Central
    {6618, 6318, 109671, 1163, 1057, 8, false}, // NAD83(2011) / Wyoming West Central (ftUS)
    {6619, 6318, 107076, 1124, 1042, 4, false}, // NAD83(2011) / Utah Central
    {6620, 6318, 107098, 1123, 1043, 4, false}, // NAD83(2011) / Utah North
    {6621, 6318, 107117, 1125, 1044, 4, false}, // NAD83(2011) / Utah South
    {6622, 4617, 111490, 2333, 191, 4, false}, // NAD83(CSRS) / Quebec Lambert
    {6623, 4269, 98788, 349, 191, 4, false}, // NAD83 / Quebec Albers
    {6624, 4617, 111474, 349, 191, 4, false}, // NAD83(CSRS) / Quebec Albers
    {6625, 6318, 107085, 1202, 1042, 8, false}, // NAD83(2011) / Utah Central (ftUS)
    {6626, 6318, 107105, 1201, 1043, 8, false}, // NAD83(2011) / Utah North (ftUS)
    {6627, 6318, 107124, 1203, 1044, 8, false}, // NAD83(2011) / Utah South (ftUS)
    {6628, 6322, 123814, 1192, 341, 4, false}, // NAD83(PA11) / Hawaii zone 1
    {6629, 6322, 123828, 1193, 342, 4, false}, // NAD83(PA11) / Hawaii zone 2
    {6630, 6322, 123842, 1194, 343, 4, false}, // NAD83(PA11) / Hawaii zone 3
    {6631, 6322, 123876, 1195, 344, 4, false}, // NAD83(PA11) / Hawaii zone 4
    {6632, 6322, 123890, 1196, 345, 4, false}, // NAD83(PA11) / Hawaii zone 5
    {6633, 6322, 123856, 1197, 343, 8, false}, // NAD83(PA11) / Hawaii zone 3 (ftUS)
    {6634, 6322, 123915, 1313, 1650, 4, false}, // NAD83(PA11) / UTM zone 4N
    {6635, 6322, 123926, 1314, 1652, 4, false}, // NAD83(PA11) / UTM zone 5N
    {6636, 6322, 123904, 1400, 1410, 4, false}, // NAD83(PA11) / UTM zone 2S
    {6637, 6325, 119311, 63, 1499, 4, false}, // NAD83(MA11) / Guam Map Grid
    {6646, 4743, 76451, 2300, 1759, 4, false}, // Karbala 1979 / Iraq National Grid
    {6668, 1128, 72665, geographic, 52, 25, false}, // JGD2011
    {6669, 6668, 72682, 1947, 639, 5, false}, // JGD2011 / Japan Plane Rectangular CS I
    {6670, 6668, 72709, 1948, 640, 5, false}, // JGD2011 / Japan Plane Rectangular CS II
    {6671, 6668, 72737, 1949, 641, 5, false}, // JGD2011 / Japan Plane Rectangular CS III
    {6672, 6668, 72766, 1950, 642, 5, false}, // JGD2011 / Japan Plane Rectangular CS IV
    {6673, 6668, 72822, 1951, 643, 5, false}, // JGD2011 / Japan Plane Rectangular CS V
    {6674, 6668, 72849, 1952, 644, 5, false}, // JGD2011 / Japan Plane Rectangular CS VI
    {6675, 6668, 72877, 1953, 645, 5, false}, // JGD2011 / Japan Plane Rectangular CS VII
    {6676, 6668, 72906, 1954, 646, 5, false}, // JGD2011 / Japan Plane Rectangular CS VIII
    {6677, 6668, 72794, 1955, 647, 5, false}, // JGD2011 / Japan Plane Rectangular CS IX
    {6678, 6668, 72936, 1956, 648, 5, false}, // JGD2011 / Japan Plane Rectangular CS X
    {6679, 6668, 72963, 1957, 649, 5, false}, // JGD2011 / Japan Plane Rectangular CS XI
    {6680, 6668, 72991, 1958, 650, 5, false}, // JGD2011 / Japan Plane Rectangular CS XII
    {6681, 6668, 73020, 1959, 651, 5, false}, // JGD2011 / Japan Plane Rectangular CS XIII
    {6682, 6668, 73050, 1960, 652, 5, false}, // JGD2011 / Japan Plane Rectangular CS XIV
    {6683, 6668, 73108, 1961, 653, 5, false}, // JGD2011 / Japan Plane Rectangular CS XV
    {6684, 6668, 73136, 1962, 654, 5, false}, // JGD2011 / Japan Plane Rectangular CS XVI
    {6685, 6668, 73165, 1963, 655, 5, false}, // JGD2011 / Japan Plane Rectangular CS XVII
    {6686, 6668, 73195, 1964, 656, 5, false}, // JGD2011 / Japan Plane Rectangular CS XVIII
    {6687, 6668, 73079, 1965, 657, 5, false}, // JGD2011 / Japan Plane Rectangular CS XIX
    {6688, 6668, 73226, 1360, 1981, 4, false}, // JGD2011 / UTM zone 51N
    {6689, 6668, 73238, 1361, 1982, 4, false}, // JGD2011 / UTM zone 52N
    {6690, 6668, 73250, 1362, 1983, 4, false}, // JGD2011 / UTM zone 53N
    {6691, 6668, 73262, 1363, 1984, 4, false}, // JGD2011 / UTM zone 54N
    {6692, 6668, 73274, 1364, 1985, 4, false}, // JGD2011 / UTM zone 55N
    {6703, 4326, 209009, 350, 2160, 4, false}, // WGS 84 / TM 60 SW
    {6706, 1132, 161106, geographic, 1541, 25, false}, // RDN2008
    {6707, 6706, 161157, 1341, 509, 5, false}, // RDN2008 / UTM zone 32N (N-E)
    {6708, 6706, 161188, 1342, 2173, 5, false}, // RDN2008 / UTM zone 33N (N-E)
    {6709, 6706, 161219, 1343, 2174, 5, false}, // RDN2008 / UTM zone 34N (N-E)
    {6720, 4326, 204963, 351, 2159, 4, false}, // WGS 84 / CIG92
    {6721, 4283, 52105, 352, 2159, 4, false}, // GDA94 / CIG94
    {6722, 4326, 204976, 353, 21, 4, false}, // WGS 84 / CKIG92
    {6723, 4283, 52117, 354, 21, 4, false}, // GDA94 / CKIG94
    {6732, 4283, 52157, 355, 2161, 4, true}, // GDA94 / MGA zone 41
    {6733, 4283, 52170, 356, 2168, 4, true}, // GDA94 / MGA zone 42
    {6734, 4283, 52183, 357, 2171, 4, true}, // GDA94 / MGA zone 43
    {6735, 4283, 52196, 358, 2172, 4, true}, // GDA94 / MGA zone 44
    {6736, 4283, 52209, 359, 2175, 4, false}, // GDA94 / MGA zone 46
    {6737, 4283, 52222, 360, 2176, 4, false}, // GDA94 / MGA zone 47
    {6738, 4283, 52378, 361, 2166, 4, false}, // GDA94 / MGA zone 59
    {6783, 1133, 109689, geographic, 307, 25, false}, // NAD83(CORS96)
    {6784, 6783, 109715, 362, 2167, 4, false}, // NAD83(CORS96) / Oregon Baker zone (m)
    {6785, 6783, 109697, 363, 2167, 6, false}, // NAD83(CORS96) / Oregon Baker zone (ft)
    {6786, 6318, 104695, 362, 2167, 4, false}, // NAD83(2011) / Oregon Baker zone (m)
    {6787, 6318, 104683, 363, 2167, 6, false}, // NAD83(2011) / Oregon Baker zone (ft)
    {6788, 6783, 109802, 364, 2178, 4, false}, // NAD83(CORS96) / Oregon Bend-Klamath Falls zone (m)
    {6789, 6783, 109775, 365, 2178, 6, false}, // NAD83(CORS96) / Oregon Bend-Klamath Falls zone (ft)
    {6790, 6318, 104758, 364, 2178, 4, false}, // NAD83(2011) / Oregon Bend-Klamath Falls zone (m)
    {6791, 6318, 104737, 365, 2178, 6, false}, // NAD83(2011) / Oregon Bend-Klamath Falls zone (ft)
    {6792, 6783, 109859, 366, 2180, 4, false}, // NAD83(CORS96) / Oregon Bend-Redmond-Prineville zone (m)
    {6793, 6783, 109828, 367, 2180, 6, false}, // NAD83(CORS96) / Oregon Bend-Redmond-Prineville zone (ft)
    {6794, 6318, 104803, 366, 2180, 4, false}, // NAD83(2011) / Oregon Bend-Redmond-Prineville zone (m)
    {6795, 6318, 104778, 367, 2180, 6, false}, // NAD83(2011) / Oregon Bend-Redmond-Prineville zone (ft)
    {6796, 6783, 109754, 368, 2169, 4, false}, // NAD83(CORS96) / Oregon Bend-Burns zone (m)
    {6797, 6783, 109732, 369, 2169, 6, false}, // NAD83(CORS96) / Oregon Bend-Burns zone (ft)
    {6798, 6318, 104722, 368, 2169, 4, false}, // NAD83(2011) / Oregon Bend-Burns zone (m)
    {6799, 6318, 104706, 369, 2169, 6, false}, // NAD83(2011) / Oregon Bend-Burns zone (ft)
    {6800, 6783, 109922, 370, 2184, 4, false}, // NAD83(CORS96) / Oregon Canyonville-Grants Pass zone (m)
    {6801, 6783, 109890, 371, 2184, 6, false}, // NAD83(CORS96) / Oregon Canyonville-Grants Pass zone (ft)
    {6802, 6318, 104926, 370, 2184, 4, false}, // NAD83(2011) / Oregon Canyonville-Grants Pass zone (m)
    {6803, 6318, 104900, 371, 2184, 6, false}, // NAD83(2011) / Oregon Canyonville-Grants Pass zone (ft)
    {6804, 6783, 110011, 372, 2185, 4, false}, // NAD83(CORS96) / Oregon Columbia River East zone (m)
    {6805, 6783, 109985, 373, 2185, 6, false}, // NAD83(CORS96) / Oregon Columbia River East zone (ft)
    {6806, 6318, 105021, 372, 2185, 4, false}, // NAD83(2011) / Oregon Columbia River East zone (m)
    {6807, 6318, 105001, 373, 2185, 6, false}, // NAD83(2011) / Oregon Columbia River East zone (ft)
    {6808, 6783, 110063, 374, 2187, 4, false}, // NAD83(CORS96) / Oregon Columbia River West zone (m)
    {6809, 6783, 110037, 375, 2187, 6, false}, // NAD83(CORS96) / Oregon Columbia River West zone (ft)
    {6810, 6318, 105061, 374, 2187, 4, false}, // NAD83(2011) / Oregon Columbia River West zone (m)
    {6811, 6318, 105041, 375, 2187, 6, false}, // NAD83(2011) / Oregon Columbia River West zone (ft)
    {6812, 6783, 110122, 376, 2188, 4, false}, // NAD83(CORS96) / Oregon Cottage Grove-Canyonville zone (m)
    {6813, 6783, 110089, 377, 2188, 6, false}, // NAD83(CORS96) / Oregon Cottage Grove-Canyonville zone (ft)
    {6814, 6318, 105108, 376, 2188, 4, false}, // NAD83(2011) / Oregon Cottage Grove-Canyonville zone (m)
    {6815, 6318, 105081, 377, 2188, 6, false}, // NAD83(2011) / Oregon Cottage Grove-Canyonville zone (ft)
    {6816, 6783, 110178, 378, 2189, 4, false}, // NAD83(CORS96) / Oregon Dufur-Madras zone (m)
    {6817, 6783, 110155, 379, 2189, 6, false}, // NAD83(CORS96) / Oregon Dufur-Madras zone (ft)
    {6818, 6318, 105231, 378, 2189, 4, false}, // NAD83(2011) / Oregon Dufur-Madras zone (m)
    {6819, 6318, 105214, 379, 2189, 6, false}, // NAD83(2011) / Oregon Dufur-Madras zone (ft)
    {6820, 6783, 110218, 380, 2182, 4, false}, // NAD83(CORS96) / Oregon Eugene zone (m)
    {6821, 6783, 110200, 381, 2182, 6, false}, // NAD83(CORS96) / Oregon Eugene zone (ft)
    {6822, 6318, 105259, 380, 2182, 4, false}, // NAD83(2011) / Oregon Eugene zone (m)
    {6823, 6318, 105247, 381, 2182, 6, false}, // NAD83(2011) / Oregon Eugene zone (ft)
    {6824, 6783, 110285, 382, 2183, 4, false}, // NAD83(CORS96) / Oregon Grants Pass-Ashland zone (m)
    {6825, 6783, 110258, 383, 2183, 6, false}, // NAD83(CORS96) / Oregon Grants Pass-Ashland zone (ft)
    {6826, 6318, 105308, 382, 2183, 4, false}, // NAD83(2011) / Oregon Grants Pass-Ashland zone (m)
    {6827, 6318, 105287, 383, 2183, 6, false}, // NAD83(2011) / Oregon Grants Pass-Ashland zone (ft)
    {6828, 6783, 110339, 384, 2186, 4, false}, // NAD83(CORS96) / Oregon Gresham-Warm Springs zone (m)
    {6829, 6783, 110311, 385, 2186, 6, false}, // NAD83(CORS96) / Oregon Gresham-Warm Springs zone (ft)
    {6830, 6318, 105350, 384, 2186, 4, false}, // NAD83(2011) / Oregon Gresham-Warm Springs zone (m)
    {6831, 6318, 105328, 385, 2186, 6, false}, // NAD83(2011) / Oregon Gresham-Warm Springs zone (ft)
    {6832, 6783, 110401, 386, 2190, 4, false}, // NAD83(CORS96) / Oregon La Grande zone (m)
    {6833, 6783, 110382, 387, 2190, 6, false}, // NAD83(CORS96) / Oregon La Grande zone (ft)
    {6834, 6318, 105420, 386, 2190, 4, false}, // NAD83(2011) / Oregon La Grande zone (m)
    {6835, 6318, 105407, 387, 2190, 6, false}, // NAD83(2011) / Oregon La Grande zone (ft)
    {6836, 6783, 110462, 388, 2191, 4, false}, // NAD83(CORS96) / Oregon Ontario zone (m)
    {6837, 6783, 110444, 389, 2191, 6, false}, // NAD83(CORS96) / Oregon Ontario zone (ft)
    {6838, 6318, 105589, 388, 2191, 4, false}, // NAD83(2011) / Oregon Ontario zone (m)
    {6839, 6318, 105577, 389, 2191, 6, false}, // NAD83(2011) / Oregon Ontario zone (ft)
    {6840, 6783, 109969, 390, 2192, 4, false}, // NAD83(CORS96) / Oregon Coast zone (m)
    {6841, 6783, 109953, 391, 2192, 6, false}, // NAD83(CORS96) / Oregon Coast zone (ft)
    {6842, 6318, 104991, 390, 2192, 4, false}, // NAD83(2011) / Oregon Coast zone (m)
    {6843, 6318, 104981, 391, 2192, 6, false}, // NAD83(2011) / Oregon Coast zone (ft)
    {6844, 6783, 110499, 392, 2193, 4, false}, // NAD83(CORS96) / Oregon Pendleton zone (m)
    {6845, 6783, 110480, 393, 2193, 6, false}, // NAD83(CORS96) / Oregon Pendleton zone (ft)
    {6846, 6318, 105640, 392, 2193, 4, false}, // NAD83(2011) / Oregon Pendleton zone (m)
    {6847, 6318, 105627, 393, 2193, 6, false}, // NAD83(2011) / Oregon Pendleton zone (ft)
    {6848, 6783, 110544, 394, 2194, 4, false}, // NAD83(CORS96) / Oregon Pendleton-La Grande zone (m)
    {6849, 6783, 110518, 395, 2194, 6, false}, // NAD83(CORS96) / Oregon Pendleton-La Grande zone (ft)
    {6850, 6318, 105673, 394, 2194, 4, false}, // NAD83(2011) / Oregon Pendleton-La Grande zone (m)
    {6851, 6318, 105653, 395, 2194, 6, false}, // NAD83(2011) / Oregon Pendleton-La Grande zone (ft)
    {6852, 6783, 110588, 396, 2195, 4, false}, // NAD83(CORS96) / Oregon Portland zone (m)
    {6853, 6783, 110570, 397, 2195, 6, false}, // NAD83(CORS96) / Oregon Portland zone (ft)
    {6854, 6318, 105746, 396, 2195, 4, false}, // NAD83(2011) / Oregon Portland zone (m)
    {6855, 6318, 105734, 397, 2195, 6, false}, // NAD83(2011) / Oregon Portland zone (ft)
    {6856, 6783, 110623, 398, 2196, 4, false}, // NAD83(CORS96) / Oregon Salem zone (m)
    {6857, 6783, 110605, 399, 2196, 6, false}, // NAD83(CORS96) / Oregon Salem zone (ft)
    {6858, 6318, 105853, 398, 2196, 4, false}, // NAD83(2011) / Oregon Salem zone (m)
    {6859, 6318, 105841, 399, 2196, 6, false}, // NAD83(2011) / Oregon Salem zone (ft)
    {6860, 6783, 110664, 400, 2197, 4, false}, // NAD83(CORS96) / Oregon Santiam Pass zone (m)
    {6861, 6783, 110640, 401, 2197, 6, false}, // NAD83(CORS96) / Oregon Santiam Pass zone (ft)
    {6862, 6318, 105882, 400, 2197, 4, false}, // NAD83(2011) / Oregon Santiam Pass zone (m)
    {6863, 6318, 105864, 401, 2197, 6, false}, // NAD83(2011) / Oregon Santiam Pass zone (ft)
    {6867, 6783, 110366, 1090, 209, 4, false}, // NAD83(CORS96) / Oregon LCC (m)
    {6868, 6783, 110236, 1278, 209, 6, false}, // NAD83(CORS96) / Oregon GIC Lambert (ft)
    {6870, 4258, 41873, 402, 1477, 5, false}, // ETRS89 / Albania TM 2010
    {6875, 6706, 161128, 403, 50, 5, false}, // RDN2008 / Italy zone (N-E)
    {6876, 6706, 161254, 404, 50, 5, false}, // RDN2008 / Zone 12 (N-E)
    {6879, 6318, 109476, 1149, 1051, 4, false}, // NAD83(2011) / Wisconsin Central
    {6880, 6318, 104210, 1300, 205, 8, false}, // NAD83(2011) / Nebraska (ftUS)
    {6881, 1135, 4456, geographic, 167, 25, false}, // Aden 1925
    {6882, 1137, 21277, geographic, 1505, 25, false}, // Bekaa Valley 1920
    {6883, 1136, 44747, geographic, 2202, 25, false}, // Bioko
    {6884, 6783, 110420, 1088, 1028, 4, false}, // NAD83(CORS96) / Oregon North
    {6885, 6783, 110430, 1255, 1028, 6, false}, // NAD83(CORS96) / Oregon North (ft)
    {6886, 6783, 110687, 1089, 1029, 4, false}, // NAD83(CORS96) / Oregon South
    {6887, 6783, 110699, 1256, 1029, 6, false}, // NAD83(CORS96) / Oregon South (ft)
    {6892, 1138, 180848, geographic, 2170, 25, false}, // South East Island 1943
    {6894, 1139, 60105, geographic, 1496, 25, false}, // Gambia
    {6915, 6892, 180856, 1349, 2170, 4, false}, // South East Island 1943 / UTM zone 40N
    {6922, 4269, 97233, 405, 198, 4, false}, // NAD83 / Kansas LCC
    {6923, 4269, 97243, 406, 198, 8, false}, // NAD83 / Kansas LCC (ftUS)
    {6924, 6318, 103438, 405, 198, 4, false}, // NAD83(2011) / Kansas LCC
    {6925, 6318, 103448, 406, 198, 8, false}, // NAD83(2011) / Kansas LCC (ftUS)
    {6931, 4326, 206590, 408, 1645, 4, false}, // WGS 84 / NSIDC EASE-Grid 2.0 North
    {6932, 4326, 206617, 409, 1644, 4, false}, // WGS 84 / NSIDC EASE-Grid 2.0 South
    {6933, 4326, 206559, 407, 1638, 4, false}, // WGS 84 / NSIDC EASE-Grid 2.0 Global
    {6956, 4756, 198804, 410, 2179, 4, true}, // VN-2000 / TM-3 zone 481
    {6957, 4756, 198818, 411, 2198, 4, true}, // VN-2000 / TM-3 zone 482
    {6958, 4756, 198832, 412, 2199, 4, true}, // VN-2000 / TM-3 zone 491
    {6959, 4756, 198785, 413, 2200, 4, true}, // VN-2000 / TM-3 Da Nang zone
    {6962, 4258, 41854, 414, 1477, 5, false}, // ETRS89 / Albania LCC 2010
    {6966, 4267, 93875, 415, 513, 8, false}, // NAD27 / Michigan North
    {6980, 1143, 65941, geographic, 49, 25, true}, // IGD05
    {6983, 1142, 65396, geographic, 1111, 25, false}, // IG05 Intermediate CRS
    {6984, 6983, 71553, 2144, 1111, 4, false}, // Israeli Grid 05
    {6987, 1145, 65958, geographic, 49, 25, true}, // IGD05/12
    {6990, 1144, 65482, geographic, 1111, 25, false}, // IG05/12 Intermediate CRS
    {6991, 6990, 71565, 2144, 1111, 4, false}, // Israeli Grid 05/12
    {6996, 6318, 106629, 416, 2204, 4, true}, // NAD83(2011) / San Francisco CS13
    {6997, 6318, 106644, 417, 2204, 8, true}, // NAD83(2011) / San Francisco CS13 (ftUS)
    {7005, 4744, 127212, 1346, 1569, 4, false}, // Nahrwan 1934 / UTM zone 37N
    {7006, 4744, 127228, 1347, 1570, 4, false}, // Nahrwan 1934 / UTM zone 38N
    {7007, 4744, 127244, 1348, 1979, 4, false}, // Nahrwan 1934 / UTM zone 39N
    {7035, 1038, 163322, geographic, 94, 24, false}, // RGSPM06 (lon-lat)
    {7037, 6627, 162896, geographic, 1948, 24, false}, // RGR92 (lon-lat)
    {7039, 1036, 162501, geographic, 68, 24, false}, // RGM04 (lon-lat)
    {7041, 6624, 162370, geographic, 37, 24, false}, // RGFG95 (lon-lat)
    {7057, 6318, 100736, 418, 2157, 8, false}, // NAD83(2011) / IaRCS zone 1
    {7058, 6318, 100789, 419, 2201, 8, false}, // NAD83(2011) / IaRCS zone 2
    {7059, 6318, 100797, 420, 2205, 8, false}, // NAD83(2011) / IaRCS zone 3
    {7060, 6318, 100805, 421, 2206, 8, false}, // NAD83(2011) / IaRCS zone 4
    {7061, 6318, 100813, 422, 2207, 8, false}, // NAD83(2011) / IaRCS zone 5
    {7062, 6318, 100821, 423, 2208, 8, false}, // NAD83(2011) / IaRCS zone 6
    {7063, 6318, 100829, 424, 2209, 8, false}, // NAD83(2011) / IaRCS zone 7
    {7064, 6318, 100837, 425, 2210, 8, false}, // NAD83(2011) / IaRCS zone 8
    {7065, 6318, 100845, 426, 2212, 8, false}, // NAD83(2011) / IaRCS zone 9
    {7066, 6318, 100744, 427, 2213, 8, false}, // NAD83(2011) / IaRCS zone 10
    {7067, 6318, 100753, 428, 2214, 8, false}, // NAD83(2011) / IaRCS zone 11
    {7068, 6318, 100762, 429, 2215, 8, false}, // NAD83(2011) / IaRCS zone 12
    {7069, 6318, 100771, 430, 2216, 8, false}, // NAD83(2011) / IaRCS zone 13
    {7070, 6318, 100780, 431, 2217, 8, false}, // NAD83(2011) / IaRCS zone 14
    {7073, 1113, 163390, geographic, 2219, 25, false}, // RGTAAF07
    {7074, 7073, 163462, 1435, 1962, 4, false}, // RGTAAF07 / UTM zone 37S
    {7075, 7073, 163478, 1436, 2218, 4, false}, // RGTAAF07 / UTM zone 38S
    {7076, 7073, 163494, 1437, 2220, 4, false}, // RGTAAF07 / UTM zone 39S
    {7077, 7073, 163510, 1438, 2221, 4, false}, // RGTAAF07 / UTM zone 40S
    {7078, 7073, 163526, 1439, 2222, 4, false}, // RGTAAF07 / UTM zone 41S
    {7079, 7073, 163542, 1440, 2223, 4, false}, // RGTAAF07 / UTM zone 42S
    {7080, 7073, 163558, 1441, 2224, 4, false}, // RGTAAF07 / UTM zone 43S
    {7081, 7073, 163574, 1442, 2225, 4, false}, // RGTAAF07 / UTM zone 44S
    {7082, 7073, 163431, 2369, 1235, 4, true}, // RGTAAF07 / Terre Adelie Polar Stereographic
    {7084, 6171, 161792, geographic, 36, 24, false}, // RGF93 v1 (lon-lat)
    {7086, 1073, 161704, geographic, 1241, 24, false}, // RGAF09 (lon-lat)
    {7088, 1113, 163415, geographic, 2219, 24, true}, // RGTAAF07 (lon-lat)
    {7109, 6318, 106549, 432, 2283, 4, false}, // NAD83(2011) / RMTCRS St Mary (m)
    {7110, 6318, 106258, 434, 2284, 4, false}, // NAD83(2011) / RMTCRS Blackfeet (m)
    {7111, 6318, 106512, 436, 2285, 4, false}, // NAD83(2011) / RMTCRS Milk River (m)
    {7112, 6318, 106363, 438, 2286, 4, false}, // NAD83(2011) / RMTCRS Fort Belknap (m)
    {7113, 6318, 106415, 440, 2287, 4, false}, // NAD83(2011) / RMTCRS Fort Peck Assiniboine (m)
    {7114, 6318, 106468, 442, 2288, 4, false}, // NAD83(2011) / RMTCRS Fort Peck Sioux (m)
    {7115, 6318, 106326, 444, 2289, 4, false}, // NAD83(2011) / RMTCRS Crow (m)
    {7116, 6318, 106294, 446, 2290, 4, false}, // NAD83(2011) / RMTCRS Bobcat (m)
    {7117, 6318, 106221, 448, 2291, 4, false}, // NAD83(2011) / RMTCRS Billings (m)
    {7118, 6318, 106587, 450, 2292, 4, false}, // NAD83(2011) / RMTCRS Wind River (m)
    {7119, 6318, 106532, 433, 2283, 6, false}, // NAD83(2011) / RMTCRS St Mary (ft)
    {7120, 6318, 106239, 435, 2284, 6, false}, // NAD83(2011) / RMTCRS Blackfeet (ft)
    {7121, 6318, 106492, 437, 2285, 6, false}, // NAD83(2011) / RMTCRS Milk River (ft)
    {7122, 6318, 106341, 439, 2286, 6, false}, // NAD83(2011) / RMTCRS Fort Belknap (ft)
    {7123, 6318, 106385, 441, 2287, 6, false}, // NAD83(2011) / RMTCRS Fort Peck Assiniboine (ft)
    {7124, 6318, 106444, 443, 2288, 6, false}, // NAD83(2011) / RMTCRS Fort Peck Sioux (ft)
    {7125, 6318, 106311, 445, 2289, 6, false}, // NAD83(2011) / RMTCRS Crow (ft)
    {7126, 6318, 106277, 447, 2290, 6, false}, // NAD83(2011) / RMTCRS Bobcat (ft)
    {7127, 6318, 106203, 449, 2291, 6, false}, // NAD83(2011) / RMTCRS Billings (ft)
    {7128, 6318, 106565, 451, 2292, 8, false}, // NAD83(2011) / RMTCRS Wind River (ftUS)
    {7131, 6318, 106629, 452, 2204, 4, false}, // NAD83(2011) / San Francisco CS13
    {7132, 6318, 106644, 453, 2204, 8, false}, // NAD83(2011) / San Francisco CS13 (ftUS)
    {7133, 1113, 163415, geographic, 2219, 24, false}, // RGTAAF07 (lon-lat)
    {7136, 1114, 65941, geographic, 49, 25, false}, // IGD05
    {7139, 1115, 65958, geographic, 49, 25, false}, // IGD05/12
    {7142, 4281, 141940, 454, 180, 4, false}, // Palestine 1923 / Palestine Grid modified
    {7257, 6318, 100992, 455, 2262, 4, false}, // NAD83(2011) / InGCS Adams (m)
    {7258, 6318, 100976, 456, 2262, 8, false}, // NAD83(2011) / InGCS Adams (ftUS)
    {7259, 6318, 101022, 457, 2258, 4, false}, // NAD83(2011) / InGCS Allen (m)
    {7260, 6318, 101006, 458, 2258, 8, false}, // NAD83(2011) / InGCS Allen (ftUS)
    {7261, 6318, 101055, 459, 2275, 4, false}, // NAD83(2011) / InGCS Bartholomew (m)
    {7262, 6318, 101036, 460, 2275, 8, false}, // NAD83(2011) / InGCS Bartholomew (ftUS)
    {7263, 6318, 101087, 461, 2229, 4, false}, // NAD83(2011) / InGCS Benton (m)
    {7264, 6318, 101072, 462, 2229, 8, false}, // NAD83(2011) / InGCS Benton (ftUS)
    {7265, 6318, 101126, 463, 2264, 4, false}, // NAD83(2011) / InGCS Blackford-Delaware (m)
    {7266, 6318, 101100, 464, 2264, 8, false}, // NAD83(2011) / InGCS Blackford-Delaware (ftUS)
    {7267, 6318, 101174, 465, 2236, 4, false}, // NAD83(2011) / InGCS Boone-Hendricks (m)
    {7268, 6318, 101150, 466, 2236, 8, false}, // NAD83(2011) / InGCS Boone-Hendricks (ftUS)
    {7269, 6318, 101213, 467, 2274, 4, false}, // NAD83(2011) / InGCS Brown (m)
    {7270, 6318, 101196, 468, 2274, 8, false}, // NAD83(2011) / InGCS Brown (ftUS)
    {7271, 6318, 101244, 469, 2231, 4, false}, // NAD83(2011) / InGCS Carroll (m)
    {7272, 6318, 101228, 470, 2231, 8, false}, // NAD83(2011) / InGCS Carroll (ftUS)
    {7273, 6318, 101272, 471, 2259, 4, false}, // NAD83(2011) / InGCS Cass (m)
    {7274, 6318, 101258, 472, 2259, 8, false}, // NAD83(2011) / InGCS Cass (ftUS)
    {7275, 6318, 101310, 473, 2281, 4, false}, // NAD83(2011) / InGCS Clark-Floyd-Scott (m)
    {7276, 6318, 101284, 474, 2281, 8, false}, // NAD83(2011) / InGCS Clark-Floyd-Scott (ftUS)
    {7277, 6318, 101348, 475, 2238, 4, false}, // NAD83(2011) / InGCS Clay (m)
    {7278, 6318, 101334, 476, 2238, 8, false}, // NAD83(2011) / InGCS Clay (ftUS)
    {7279, 6318, 101375, 477, 2233, 4, false}, // NAD83(2011) / InGCS Clinton (m)
    {7280, 6318, 101360, 478, 2233, 8, false}, // NAD83(2011) / InGCS Clinton (ftUS)
    {7281, 6318, 101418, 479, 2245, 4, false}, // NAD83(2011) / InGCS Crawford-Lawrence-Orange (m)
    {7282, 6318, 101388, 480, 2245, 8, false}, // NAD83(2011) / InGCS Crawford-Lawrence-Orange (ftUS)
    {7283, 6318, 101468, 481, 2242, 4, false}, // NAD83(2011) / InGCS Daviess-Greene (m)
    {7284, 6318, 101446, 482, 2242, 8, false}, // NAD83(2011) / InGCS Daviess-Greene (ftUS)
    {7285, 6318, 101550, 483, 2279, 4, false}, // NAD83(2011) / InGCS Dearborn-Ohio-Switzerland (m)
    {7286, 6318, 101520, 484, 2279, 8, false}, // NAD83(2011) / InGCS Dearborn-Ohio-Switzerland (ftUS)
    {7287, 6318, 101599, 485, 2272, 4, false}, // NAD83(2011) / InGCS Decatur-Rush (m)
    {7288, 6318, 101578, 486, 2272, 8, false}, // NAD83(2011) / InGCS Decatur-Rush (ftUS)
    {7289, 6318, 101505, 487, 2256, 4, false}, // NAD83(2011) / InGCS DeKalb (m)
    {7290, 6318, 101488, 488, 2256, 8, false}, // NAD83(2011) / InGCS DeKalb (ftUS)
    {7291, 6318, 101640, 489, 2244, 4, false}, // NAD83(2011) / InGCS Dubois-Martin (m)
    {7292, 6318, 101618, 490, 2244, 8, false}, // NAD83(2011) / InGCS Dubois-Martin (ftUS)
    {7293, 6318, 101693, 491, 2253, 4, false}, // NAD83(2011) / InGCS Elkhart-Kosciusko-Wabash (m)
    {7294, 6318, 101660, 492, 2253, 8, false}, // NAD83(2011) / InGCS Elkhart-Kosciusko-Wabash (ftUS)
    {7295, 6318, 101753, 493, 2273, 4, false}, // NAD83(2011) / InGCS Fayette-Franklin-Union (m)
    {7296, 6318, 101724, 494, 2273, 8, false}, // NAD83(2011) / InGCS Fayette-Franklin-Union (ftUS)
    {7297, 6318, 101802, 495, 2232, 4, false}, // NAD83(2011) / InGCS Fountain-Warren (m)
    {7298, 6318, 101780, 496, 2232, 8, false}, // NAD83(2011) / InGCS Fountain-Warren (ftUS)
    {7299, 6318, 101855, 497, 2252, 4, false}, // NAD83(2011) / InGCS Fulton-Marshall-St. Joseph (m)
    {7300, 6318, 101822, 498, 2252, 8, false}, // NAD83(2011) / InGCS Fulton-Marshall-St. Joseph (ftUS)
    {7301, 6318, 101902, 499, 2246, 4, false}, // NAD83(2011) / InGCS Gibson (m)
    {7302, 6318, 101886, 500, 2246, 8, false}, // NAD83(2011) / InGCS Gibson (ftUS)
    {7303, 6318, 101932, 501, 2263, 4, false}, // NAD83(2011) / InGCS Grant (m)
    {7304, 6318, 101916, 502, 2263, 8, false}, // NAD83(2011) / InGCS Grant (ftUS)
    {7305, 6318, 101968, 503, 2266, 4, false}, // NAD83(2011) / InGCS Hamilton-Tipton (m)
    {7306, 6318, 101946, 504, 2266, 8, false}, // NAD83(2011) / InGCS Hamilton-Tipton (ftUS)
    {7307, 6318, 102010, 505, 2267, 4, false}, // NAD83(2011) / InGCS Hancock-Madison (m)
    {7308, 6318, 101988, 506, 2267, 8, false}, // NAD83(2011) / InGCS Hancock-Madison (ftUS)
    {7309, 6318, 102054, 507, 2280, 4, false}, // NAD83(2011) / InGCS Harrison-Washington (m)
    {7310, 6318, 102030, 508, 2280, 8, false}, // NAD83(2011) / InGCS Harrison-Washington (ftUS)
    {7311, 6318, 102091, 509, 2269, 4, false}, // NAD83(2011) / InGCS Henry (m)
    {7312, 6318, 102076, 510, 2269, 8, false}, // NAD83(2011) / InGCS Henry (ftUS)
    {7313, 6318, 102126, 511, 2260, 4, false}, // NAD83(2011) / InGCS Howard-Miami (m)
    {7314, 6318, 102104, 512, 2260, 8, false}, // NAD83(2011) / InGCS Howard-Miami (ftUS)
    {7315, 6318, 102171, 513, 2257, 4, false}, // NAD83(2011) / InGCS Huntington-Whitley (m)
    {7316, 6318, 102146, 514, 2257, 8, false}, // NAD83(2011) / InGCS Huntington-Whitley (ftUS)
    {7317, 6318, 102211, 515, 2276, 4, false}, // NAD83(2011) / InGCS Jackson (m)
    {7318, 6318, 102194, 516, 2276, 8, false}, // NAD83(2011) / InGCS Jackson (ftUS)
    {7319, 6318, 102247, 517, 2227, 4, false}, // NAD83(2011) / InGCS Jasper-Porter (m)
    {7320, 6318, 102226, 518, 2227, 8, false}, // NAD83(2011) / InGCS Jasper-Porter (ftUS)
    {7321, 6318, 102280, 519, 2265, 4, false}, // NAD83(2011) / InGCS Jay (m)
    {7322, 6318, 102266, 520, 2265, 8, false}, // NAD83(2011) / InGCS Jay (ftUS)
    {7323, 6318, 102309, 521, 2282, 4, false}, // NAD83(2011) / InGCS Jefferson (m)
    {7324, 6318, 102292, 522, 2282, 8, false}, // NAD83(2011) / InGCS Jefferson (ftUS)
    {7325, 6318, 102342, 523, 2277, 4, false}, // NAD83(2011) / InGCS Jennings (m)
    {7326, 6318, 102324, 524, 2277, 8, false}, // NAD83(2011) / InGCS Jennings (ftUS)
    {7327, 6318, 102380, 525, 2270, 4, false}, // NAD83(2011) / InGCS Johnson-Marion (m)
    {7328, 6318, 102358, 526, 2270, 8, false}, // NAD83(2011) / InGCS Johnson-Marion (ftUS)
    {7329, 6318, 102416, 527, 2243, 4, false}, // NAD83(2011) / InGCS Knox (m)
    {7330, 6318, 102400, 528, 2243, 8, false}, // NAD83(2011) / InGCS Knox (ftUS)
    {7331, 6318, 102454, 529, 2254, 4, false}, // NAD83(2011) / InGCS LaGrange-Noble (m)
    {7332, 6318, 102430, 530, 2254, 8, false}, // NAD83(2011) / InGCS LaGrange-Noble (ftUS)
    {7333, 6318, 102553, 531, 2226, 4, false}, // NAD83(2011) / InGCS Lake-Newton (m)
    {7334, 6318, 102534, 532, 2226, 8, false}, // NAD83(2011) / InGCS Lake-Newton (ftUS)
    {7335, 6318, 102506, 533, 2228, 4, false}, // NAD83(2011) / InGCS LaPorte-Pulaski-Starke (m)
    {7336, 6318, 102476, 534, 2228, 8, false}, // NAD83(2011) / InGCS LaPorte-Pulaski-Starke (ftUS)
    {7337, 6318, 102592, 535, 2240, 4, false}, // NAD83(2011) / InGCS Monroe-Morgan (m)
    {7338, 6318, 102570, 536, 2240, 8, false}, // NAD83(2011) / InGCS Monroe-Morgan (ftUS)
    {7339, 6318, 102637, 537, 2235, 4, false}, // NAD83(2011) / InGCS Montgomery-Putnam (m)
    {7340, 6318, 102612, 538, 2235, 8, false}, // NAD83(2011) / InGCS Montgomery-Putnam (ftUS)
    {7341, 6318, 102675, 539, 2239, 4, false}, // NAD83(2011) / InGCS Owen (m)
    {7342, 6318, 102660, 540, 2239, 8, false}, // NAD83(2011) / InGCS Owen (ftUS)
    {7343, 6318, 102711, 541, 2234, 4, false}, // NAD83(2011) / InGCS Parke-Vermillion (m)
    {7344, 6318, 102688, 542, 2234, 8, false}, // NAD83(2011) / InGCS Parke-Vermillion (ftUS)
    {7345, 6318, 102747, 543, 2251, 4, false}, // NAD83(2011) / InGCS Perry (m)
    {7346, 6318, 102732, 544, 2251, 8, false}, // NAD83(2011) / InGCS Perry (ftUS)
    {7347, 6318, 102782, 545, 2247, 4, false}, // NAD83(2011) / InGCS Pike-Warrick (m)
    {7348, 6318, 102760, 546, 2247, 8, false}, // NAD83(2011) / InGCS Pike-Warrick (ftUS)
    {7349, 6318, 102818, 547, 2248, 4, false}, // NAD83(2011) / InGCS Posey (m)
    {7350, 6318, 102802, 548, 2248, 8, false}, // NAD83(2011) / InGCS Posey (ftUS)
    {7351, 6318, 102853, 549, 2268, 4, false}, // NAD83(2011) / InGCS Randolph-Wayne (m)
    {7352, 6318, 102832, 550, 2268, 8, false}, // NAD83(2011) / InGCS Randolph-Wayne (ftUS)
    {7353, 6318, 102889, 551, 2278, 4, false}, // NAD83(2011) / InGCS Ripley (m)
    {7354, 6318, 102872, 552, 2278, 8, false}, // NAD83(2011) / InGCS Ripley (ftUS)
    {7355, 6318, 102918, 553, 2271, 4, false}, // NAD83(2011) / InGCS Shelby (m)
    {7356, 6318, 102904, 554, 2271, 8, false}, // NAD83(2011) / InGCS Shelby (ftUS)
    {7357, 6318, 102946, 555, 2250, 4, false}, // NAD83(2011) / InGCS Spencer (m)
    {7358, 6318, 102930, 556, 2250, 8, false}, // NAD83(2011) / InGCS Spencer (ftUS)
    {7359, 6318, 102977, 557, 2255, 4, false}, // NAD83(2011) / InGCS Steuben (m)
    {7360, 6318, 102960, 558, 2255, 8, false}, // NAD83(2011) / InGCS Steuben (ftUS)
    {7361, 6318, 103010, 559, 2241, 4, false}, // NAD83(2011) / InGCS Sullivan (m)
    {7362, 6318, 102992, 560, 2241, 8, false}, // NAD83(2011) / InGCS Sullivan (ftUS)
    {7363, 6318, 103051, 561, 2230, 4, false}, // NAD83(2011) / InGCS Tippecanoe-White (m)
    {7364, 6318, 103026, 562, 2230, 8, false}, // NAD83(2011) / InGCS Tippecanoe-White (ftUS)
    {7365, 6318, 103093, 563, 2249, 4, false}, // NAD83(2011) / InGCS Vanderburgh (m)
    {7366, 6318, 103074, 564, 2249, 8, false}, // NAD83(2011) / InGCS Vanderburgh (ftUS)
    {7367, 6318, 103125, 565, 2237, 4, false}, // NAD83(2011) / InGCS Vigo (m)
    {7368, 6318, 103110, 566, 2237, 8, false}, // NAD83(2011) / InGCS Vigo (ftUS)
    {7369, 6318, 103154, 567, 2261, 4, false}, // NAD83(2011) / InGCS Wells (m)
    {7370, 6318, 103138, 568, 2261, 8, false}, // NAD83(2011) / InGCS Wells (ftUS)
    {7373, 1147, 136522, geographic, 78, 25, false}, // ONGD14
    {7374, 7373, 136529, 1348, 2295, 4, false}, // ONGD14 / UTM zone 39N
    {7375, 7373, 136543, 1349, 2296, 4, false}, // ONGD14 / UTM zone 40N
    {7376, 7373, 136557, 1350, 2297, 4, false}, // ONGD14 / UTM zone 41N
    {7528, 6318, 107236, 643, 2333, 4, false}, // NAD83(2011) / WISCRS Adams and Juneau (m)
    {7529, 6318, 107275, 569, 2293, 4, false}, // NAD83(2011) / WISCRS Ashland (m)
    {7530, 6318, 107305, 593, 2304, 4, false}, // NAD83(2011) / WISCRS Barron (m)
    {7531, 6318, 107339, 571, 2294, 4, false}, // NAD83(2011) / WISCRS Bayfield (m)
    {7532, 6318, 107375, 595, 2309, 4, false}, // NAD83(2011) / WISCRS Brown (m)
    {7533, 6318, 107409, 597, 2310, 4, false}, // NAD83(2011) / WISCRS Buffalo (m)
    {7534, 6318, 107443, 573, 2298, 4, false}, // NAD83(2011) / WISCRS Burnett (m)
    {7535, 6318, 107504, 645, 2334, 4, false}, // NAD83(2011) / WISCRS Calumet, Fond du Lac, Outagamie and Winnebago (m)
    {7536, 6318, 107566, 599, 2311, 4, false}, // NAD83(2011) / WISCRS Chippewa (m)
    {7537, 6318, 107599, 601, 2312, 4, false}, // NAD83(2011) / WISCRS Clark (m)
    {7538, 6318, 107630, 647, 2335, 4, false}, // NAD83(2011) / WISCRS Columbia (m)
    {7539, 6318, 107663, 649, 2336, 4, false}, // NAD83(2011) / WISCRS Crawford (m)
    {7540, 6318, 107694, 651, 2337, 4, false}, // NAD83(2011) / WISCRS Dane (m)
    {7541, 6318, 107731, 653, 2338, 4, false}, // NAD83(2011) / WISCRS Dodge and Jefferson (m)
    {7542, 6318, 107769, 603, 2313, 4, false}, // NAD83(2011) / WISCRS Door (m)
    {7543, 6318, 107801, 575, 2299, 4, false}, // NAD83(2011) / WISCRS Douglas (m)
    {7544, 6318, 107834, 605, 2314, 4, false}, // NAD83(2011) / WISCRS Dunn (m)
    {7545, 6318, 107869, 607, 2315, 4, false}, // NAD83(2011) / WISCRS Eau Claire (m)
    {7546, 6318, 107905, 577, 2300, 4, false}, // NAD83(2011) / WISCRS Florence (m)
    {7547, 6318, 107936, 579, 2301, 4, false}, // NAD83(2011) / WISCRS Forest (m)
    {7548, 6318, 107966, 655, 2339, 4, false}, // NAD83(2011) / WISCRS Grant (m)
    {7549, 6318, 108060, 657, 2340, 4, false}, // NAD83(2011) / WISCRS Green and Lafayette (m)
    {7550, 6318, 108009, 659, 2341, 4, false}, // NAD83(2011) / WISCRS Green Lake and Marquette (m)
    {7551, 6318, 108099, 661, 2342, 4, false}, // NAD83(2011) / WISCRS Iowa (m)
    {7552, 6318, 108128, 581, 2302, 4, false}, // NAD83(2011) / WISCRS Iron (m)
    {7553, 6318, 108159, 609, 2316, 4, false}, // NAD83(2011) / WISCRS Jackson (m)
    {7554, 6318, 108215, 663, 2343, 4, false}, // NAD83(2011) / WISCRS Kenosha, Milwaukee, Ozaukee and Racine (m)
    {7555, 6318, 108292, 665, 2344, 4, false}, // NAD83(2011) / WISCRS Kewaunee, Manitowoc and Sheboygan (m)
    {7556, 6318, 108349, 667, 2345, 4, false}, // NAD83(2011) / WISCRS La Crosse (m)
    {7557, 6318, 108385, 611, 2317, 4, false}, // NAD83(2011) / WISCRS Langlade (m)
    {7558, 6318, 108419, 613, 2318, 4, false}, // NAD83(2011) / WISCRS Lincoln (m)
    {7559, 6318, 108452, 615, 2319, 4, false}, // NAD83(2011) / WISCRS Marathon (m)
    {7560, 6318, 108485, 617, 2320, 4, false}, // NAD83(2011) / WISCRS Marinette (m)
    {7561, 6318, 108519, 619, 2321, 4, false}, // NAD83(2011) / WISCRS Menominee (m)
    {7562, 6318, 108552, 669, 2346, 4, false}, // NAD83(2011) / WISCRS Monroe (m)
    {7563, 6318, 108584, 621, 2322, 4, false}, // NAD83(2011) / WISCRS Oconto (m)
    {7564, 6318, 108616, 583, 2303, 4, false}, // NAD83(2011) / WISCRS Oneida (m)
    {7565, 6318, 108654, 623, 2323, 4, false}, // NAD83(2011) / WISCRS Pepin and Pierce (m)
    {7566, 6318, 108691, 625, 2324, 4, false}, // NAD83(2011) / WISCRS Polk (m)
    {7567, 6318, 108723, 627, 2325, 4, false}, // NAD83(2011) / WISCRS Portage (m)
    {7568, 6318, 108755, 585, 2305, 4, false}, // NAD83(2011) / WISCRS Price (m)
    {7569, 6318, 108786, 671, 2347, 4, false}, // NAD83(2011) / WISCRS Richland (m)
    {7570, 6318, 108818, 673, 2348, 4, false}, // NAD83(2011) / WISCRS Rock (m)
    {7571, 6318, 108849, 629, 2326, 4, false}, // NAD83(2011) / WISCRS Rusk (m)
    {7572, 6318, 108879, 675, 2349, 4, false}, // NAD83(2011) / WISCRS Sauk (m)
    {7573, 6318, 108910, 587, 2306, 4, false}, // NAD83(2011) / WISCRS Sawyer (m)
    {7574, 6318, 108942, 631, 2327, 4, false}, // NAD83(2011) / WISCRS Shawano (m)
    {7575, 6318, 108977, 633, 2328, 4, false}, // NAD83(2011) / WISCRS St. Croix (m)
    {7576, 6318, 109013, 635, 2329, 4, false}, // NAD83(2011) / WISCRS Taylor (m)
    {7577, 6318, 109051, 637, 2330, 4, false}, // NAD83(2011) / WISCRS Trempealeau (m)
    {7578, 6318, 109087, 677, 2350, 4, false}, // NAD83(2011) / WISCRS Vernon (m)
    {7579, 6318, 109117, 589, 2307, 4, false}, // NAD83(2011) / WISCRS Vilas (m)
    {7580, 6318, 109148, 679, 2351, 4, false}, // NAD83(2011) / WISCRS Walworth (m)
    {7581, 6318, 109182, 591, 2308, 4, false}, // NAD83(2011) / WISCRS Washburn (m)
    {7582, 6318, 109218, 681, 2352, 4, false}, // NAD83(2011) / WISCRS Washington (m)
    {7583, 6318, 109254, 683, 2353, 4, false}, // NAD83(2011) / WISCRS Waukesha (m)
    {7584, 6318, 109290, 639, 2331, 4, false}, // NAD83(2011) / WISCRS Waupaca (m)
    {7585, 6318, 109325, 685, 2354, 4, false}, // NAD83(2011) / WISCRS Waushara (m)
    {7586, 6318, 109358, 641, 2332, 4, false}, // NAD83(2011) / WISCRS Wood (m)
    {7587, 6318, 107211, 644, 2333, 8, false}, // NAD83(2011) / WISCRS Adams and Juneau (ftUS)
    {7588, 6318, 107259, 570, 2293, 8, false}, // NAD83(2011) / WISCRS Ashland (ftUS)
    {7589, 6318, 107289, 594, 2304, 8, false}, // NAD83(2011) / WISCRS Barron (ftUS)
    {7590, 6318, 107319, 572, 2294, 8, false}, // NAD83(2011) / WISCRS Bayfield (ftUS)
    {7591, 6318, 107357, 596, 2309, 8, false}, // NAD83(2011) / WISCRS Brown (ftUS)
    {7592, 6318, 107391, 598, 2310, 8, false}, // NAD83(2011) / WISCRS Buffalo (ftUS)
    {7593, 6318, 107425, 574, 2298, 8, false}, // NAD83(2011) / WISCRS Burnett (ftUS)
    {7594, 6318, 107459, 646, 2334, 8, false}, // NAD83(2011) / WISCRS Calumet, Fond du Lac, Outagamie and Winnebago (ftUS)
    {7595, 6318, 107547, 600, 2311, 8, false}, // NAD83(2011) / WISCRS Chippewa (ftUS)
    {7596, 6318, 107583, 602, 2312, 8, false}, // NAD83(2011) / WISCRS Clark (ftUS)
    {7597, 6318, 107613, 648, 2335, 8, false}, // NAD83(2011) / WISCRS Columbia (ftUS)
    {7598, 6318, 107645, 650, 2336, 8, false}, // NAD83(2011) / WISCRS Crawford (ftUS)
    {7599, 6318, 107679, 652, 2337, 8, false}, // NAD83(2011) / WISCRS Dane (ftUS)
    {7600, 6318, 107707, 654, 2338, 8, false}, // NAD83(2011) / WISCRS Dodge and Jefferson (ftUS)
    {7601, 6318, 107753, 604, 2313, 8, false}, // NAD83(2011) / WISCRS Door (ftUS)
    {7602, 6318, 107783, 576, 2299, 8, false}, // NAD83(2011) / WISCRS Douglas (ftUS)
    {7603, 6318, 107817, 606, 2314, 8, false}, // NAD83(2011) / WISCRS Dunn (ftUS)
    {7604, 6318, 107849, 608, 2315, 8, false}, // NAD83(2011) / WISCRS Eau Claire (ftUS)
    {7605, 6318, 107887, 578, 2300, 8, false}, // NAD83(2011) / WISCRS Florence (ftUS)
    {7606, 6318, 107921, 580, 2301, 8, false}, // NAD83(2011) / WISCRS Forest (ftUS)
    {7607, 6318, 107949, 656, 2339, 8, false}, // NAD83(2011) / WISCRS Grant (ftUS)
    {7608, 6318, 108035, 658, 2340, 8, false}, // NAD83(2011) / WISCRS Green and Lafayette (ftUS)
    {7609, 6318, 107981, 660, 2341, 8, false}, // NAD83(2011) / WISCRS Green Lake and Marquette (ftUS)
    {7610, 6318, 108083, 662, 2342, 8, false}, // NAD83(2011) / WISCRS Iowa (ftUS)
    {7611, 6318, 108113, 582, 2302, 8, false}, // NAD83(2011) / WISCRS Iron (ftUS)
    {7612, 6318, 108141, 610, 2316, 8, false}, // NAD83(2011) / WISCRS Jackson (ftUS)
    {7613, 6318, 108175, 664, 2343, 8, false}, // NAD83(2011) / WISCRS Kenosha, Milwaukee, Ozaukee and Racine (ftUS)
    {7614, 6318, 108253, 666, 2344, 8, false}, // NAD83(2011) / WISCRS Kewaunee, Manitowoc and Sheboygan (ftUS)
    {7615, 6318, 108329, 668, 2345, 8, false}, // NAD83(2011) / WISCRS La Crosse (ftUS)
    {7616, 6318, 108367, 612, 2317, 8, false}, // NAD83(2011) / WISCRS Langlade (ftUS)
    {7617, 6318, 108401, 614, 2318, 8, false}, // NAD83(2011) / WISCRS Lincoln (ftUS)
    {7618, 6318, 108435, 616, 2319, 8, false}, // NAD83(2011) / WISCRS Marathon (ftUS)
    {7619, 6318, 108467, 618, 2320, 8, false}, // NAD83(2011) / WISCRS Marinette (ftUS)
    {7620, 6318, 108501, 620, 2321, 8, false}, // NAD83(2011) / WISCRS Menominee (ftUS)
    {7621, 6318, 108535, 670, 2346, 8, false}, // NAD83(2011) / WISCRS Monroe (ftUS)
    {7622, 6318, 108567, 622, 2322, 8, false}, // NAD83(2011) / WISCRS Oconto (ftUS)
    {7623, 6318, 108599, 584, 2303, 8, false}, // NAD83(2011) / WISCRS Oneida (ftUS)
    {7624, 6318, 108631, 624, 2323, 8, false}, // NAD83(2011) / WISCRS Pepin and Pierce (ftUS)
    {7625, 6318, 108675, 626, 2324, 8, false}, // NAD83(2011) / WISCRS Polk (ftUS)
    {7626, 6318, 108705, 628, 2325, 8, false}, // NAD83(2011) / WISCRS Portage (ftUS)
    {7627, 6318, 108739, 586, 2305, 8, false}, // NAD83(2011) / WISCRS Price (ftUS)
    {7628, 6318, 108769, 672, 2347, 8, false}, // NAD83(2011) / WISCRS Richland (ftUS)
    {7629, 6318, 108801, 674, 2348, 8, false}, // NAD83(2011) / WISCRS Rock (ftUS)
    {7630, 6318, 108833, 630, 2326, 8, false}, // NAD83(2011) / WISCRS Rusk (ftUS)
    {7631, 6318, 108863, 676, 2349, 8, false}, // NAD83(2011) / WISCRS Sauk (ftUS)
    {7632, 6318, 108893, 588, 2306, 8, false}, // NAD83(2011) / WISCRS Sawyer (ftUS)
    {7633, 6318, 108925, 632, 2327, 8, false}, // NAD83(2011) / WISCRS Shawano (ftUS)
    {7634, 6318, 108957, 634, 2328, 8, false}, // NAD83(2011) / WISCRS St. Croix (ftUS)
    {7635, 6318, 108995, 636, 2329, 8, false}, // NAD83(2011) / WISCRS Taylor (ftUS)
    {7636, 6318, 109029, 638, 2330, 8, false}, // NAD83(2011) / WISCRS Trempealeau (ftUS)
    {7637, 6318, 109071, 678, 2350, 8, false}, // NAD83(2011) / WISCRS Vernon (ftUS)
    {7638, 6318, 109101, 590, 2307, 8, false}, // NAD83(2011) / WISCRS Vilas (ftUS)
    {7639, 6318, 109131, 680, 2351, 8, false}, // NAD83(2011) / WISCRS Walworth (ftUS)
    {7640, 6318, 109163, 592, 2308, 8, false}, // NAD83(2011) / WISCRS Washburn (ftUS)
    {7641, 6318, 109199, 682, 2352, 8, false}, // NAD83(2011) / WISCRS Washington (ftUS)
    {7642, 6318, 109235, 684, 2353, 8, false}, // NAD83(2011) / WISCRS Waukesha (ftUS)
    {7643, 6318, 109271, 640, 2331, 8, false}, // NAD83(2011) / WISCRS Waupaca (ftUS)
    {7644, 6318, 109307, 686, 2354, 8, false}, // NAD83(2011) / WISCRS Waushara (ftUS)
    {7645, 6318, 109341, 642, 2332, 8, false}, // NAD83(2011) / WISCRS Wood (ftUS)
    {7683, 1159, 56594, geographic, 87, 25, false}, // GSK-2011
    {7686, 1160, 79212, geographic, 55, 25, false}, // Kyrg-06
    {7692, 7686, 79220, 687, 2355, 4, false}, // Kyrg-06 / zone 1
    {7693, 7686, 79231, 688, 2356, 4, false}, // Kyrg-06 / zone 2
    {7694, 7686, 79242, 689, 2357, 4, false}, // Kyrg-06 / zone 3
    {7695, 7686, 79253, 690, 2358, 4, false}, // Kyrg-06 / zone 4
    {7696, 7686, 79264, 691, 2359, 4, false}, // Kyrg-06 / zone 5
    {7755, 4326, 206344, 692, 45, 4, false}, // WGS 84 / India NSF LCC
    {7756, 4326, 204672, 693, 2362, 4, false}, // WGS 84 / Andhra Pradesh
    {7757, 4326, 204741, 694, 2363, 4, false}, // WGS 84 / Arunachal Pradesh
    {7758, 4326, 204761, 695, 2364, 4, false}, // WGS 84 / Assam
    {7759, 4326, 204951, 696, 2365, 4, false}, // WGS 84 / Bihar
    {7760, 4326, 205027, 697, 2390, 4, false}, // WGS 84 / Delhi
    {7761, 4326, 206247, 698, 2368, 4, false}, // WGS 84 / Gujarat
    {7762, 4326, 206260, 699, 2369, 4, false}, // WGS 84 / Haryana
    {7763, 4326, 206273, 700, 2370, 4, false}, // WGS 84 / Himachal Pradesh
    {7764, 4326, 206374, 701, 2371, 4, false}, // WGS 84 / Jammu and Kashmir
    {7765, 4326, 206393, 702, 2372, 4, false}, // WGS 84 / Jharkhand
    {7766, 4326, 206451, 703, 2375, 4, false}, // WGS 84 / Madhya Pradesh
    {7767, 4326, 206469, 704, 2376, 4, false}, // WGS 84 / Maharashtra
    {7768, 4326, 206484, 705, 2377, 4, false}, // WGS 84 / Manipur
    {7769, 4326, 206497, 706, 2378, 4, false}, // WGS 84 / Meghalaya
    {7770, 4326, 206781, 707, 2380, 4, false}, // WGS 84 / Nagaland
    {7771, 4326, 206360, 708, 2361, 4, false}, // WGS 84 / India Northeast
    {7772, 4326, 206928, 709, 2381, 4, false}, // WGS 84 / Orissa
    {7773, 4326, 206994, 710, 2382, 4, false}, // WGS 84 / Punjab
    {7774, 4326, 207008, 711, 2383, 4, false}, // WGS 84 / Rajasthan
    {7775, 4326, 210945, 712, 2387, 4, false}, // WGS 84 / Uttar Pradesh
    {7776, 4326, 210963, 713, 2388, 4, false}, // WGS 84 / Uttaranchal
    {7777, 4326, 204652, 714, 2391, 4, false}, // WGS 84 / Andaman and Nicobar
    {7778, 4326, 205010, 715, 2366, 4, false}, // WGS 84 / Chhattisgarh
    {7779, 4326, 206236, 716, 2367, 4, false}, // WGS 84 / Goa
    {7780, 4326, 206407, 717, 2373, 4, false}, // WGS 84 / Karnataka
    {7781, 4326, 206422, 718, 2374, 4, false}, // WGS 84 / Kerala
    {7782, 4326, 206434, 719, 2392, 4, false}, // WGS 84 / Lakshadweep
    {7783, 4326, 206529, 720, 2379, 4, false}, // WGS 84 / Mizoram
    {7784, 4326, 208905, 721, 2384, 4, false}, // WGS 84 / Sikkim
    {7785, 4326, 209109, 722, 2385, 4, false}, // WGS 84 / Tamil Nadu
    {7786, 4326, 209124, 723, 2386, 4, false}, // WGS 84 / Tripura
    {7787, 4326, 210979, 724, 2389, 4, false}, // WGS 84 / West Bengal
    {7791, 6706, 161144, 1341, 509, 4, false}, // RDN2008 / UTM zone 32N
    {7792, 6706, 161175, 1342, 2173, 4, false}, // RDN2008 / UTM zone 33N
    {7793, 6706, 161206, 1343, 2174, 4, false}, // RDN2008 / UTM zone 34N
    {7794, 6706, 161112, 403, 50, 4, false}, // RDN2008 / Italy zone (E-N)
    {7795, 6706, 161237, 404, 50, 4, false}, // RDN2008 / Zone 12 (E-N)
    {7798, 1167, 17637, geographic, 14, 25, false}, // BGS2005
    {7799, 7798, 17667, 1343, 2395, 5, false}, // BGS2005 / UTM zone 34N (N-E)
    {7800, 7798, 17698, 1344, 2394, 5, false}, // BGS2005 / UTM zone 35N (N-E)
    {7801, 7798, 17643, 725, 1483, 5, false}, // BGS2005 / CCS2005
    {7803, 7798, 17654, 1343, 2395, 4, false}, // BGS2005 / UTM zone 34N
    {7804, 7798, 17685, 1343, 2394, 4, true}, // BGS2005 / UTM zone 35N
    {7805, 7798, 17716, 1345, 2393, 4, false}, // BGS2005 / UTM zone 36N
    {7825, 4284, 149717, 726, 2402, 5, false}, // Pulkovo 1942 / CS63 zone X1
    {7826, 4284, 149735, 727, 2396, 5, false}, // Pulkovo 1942 / CS63 zone X2
    {7827, 4284, 149753, 728, 2397, 5, false}, // Pulkovo 1942 / CS63 zone X3
    {7828, 4284, 149771, 729, 2398, 5, false}, // Pulkovo 1942 / CS63 zone X4
    {7829, 4284, 149789, 730, 2399, 5, false}, // Pulkovo 1942 / CS63 zone X5
    {7830, 4284, 149807, 731, 2400, 5, false}, // Pulkovo 1942 / CS63 zone X6
    {7831, 4284, 149825, 732, 2401, 5, false}, // Pulkovo 1942 / CS63 zone X7
    {7844, 1168, 51490, geographic, 2164, 25, false}, // GDA2020
    {7845, 7844, 51668, 1861, 1102, 4, false}, // GDA2020 / GA LCC
    {7846, 7844, 51773, 359, 2175, 4, false}, // GDA2020 / MGA zone 46
    {7847, 7844, 51786, 360, 2176, 4, false}, // GDA2020 / MGA zone 47
    {7848, 7844, 51799, 1847, 2177, 4, false}, // GDA2020 / MGA zone 48
    {7849, 7844, 51812, 1848, 2163, 4, false}, // GDA2020 / MGA zone 49
    {7850, 7844, 51825, 1849, 2165, 4, false}, // GDA2020 / MGA zone 50
    {7851, 7844, 51838, 1850, 354, 4, false}, // GDA2020 / MGA zone 51
    {7852, 7844, 51851, 1851, 355, 4, false}, // GDA2020 / MGA zone 52
    {7853, 7844, 51864, 1852, 356, 4, false}, // GDA2020 / MGA zone 53
    {7854, 7844, 51877, 1853, 357, 4, false}, // GDA2020 / MGA zone 54
    {7855, 7844, 51890, 1854, 358, 4, false}, // GDA2020 / MGA zone 55
    {7856, 7844, 51903, 1855, 359, 4, false}, // GDA2020 / MGA zone 56
    {7857, 7844, 51916, 1856, 2181, 4, false}, // GDA2020 / MGA zone 57
    {7858, 7844, 51929, 1857, 2162, 4, false}, // GDA2020 / MGA zone 58
    {7859, 7844, 51942, 361, 2166, 4, false}, // GDA2020 / MGA zone 59
    {7877, 4710, 14886, 733, 1455, 4, false}, // Astro DOS 71 / SHLG71
    {7878, 4710, 14904, 1428, 1455, 4, false}, // Astro DOS 71 / UTM zone 30S
    {7881, 1173, 182036, geographic, 1455, 25, false}, // St. Helena Tritan
    {7882, 7881, 182049, 734, 1455, 4, false}, // St. Helena Tritan / SHLG(Tritan)
    {7883, 7881, 182073, 1428, 1455, 4, false}, // St. Helena Tritan / UTM zone 30S
    {7886, 1174, 168894, geographic, 1455, 25, false}, // SHGD2015
    {7887, 7886, 168902, 1428, 1455, 4, false}, // SHMG2015
    {7899, 7844, 52025, 1860, 1068, 4, false}, // GDA2020 / Vicgrid
    {7991, 4267, 93720, 1932, 229, 4, false}, // NAD27 / MTM zone 10
    {7992, 4259, 87222, 1431, 2413, 4, false}, // Malongo 1987 / UTM zone 33S
    {8013, 7844, 51508, 735, 2406, 4, false}, // GDA2020 / ALB2020
    {8014, 7844, 51565, 736, 2405, 4, false}, // GDA2020 / BIO2020
    {8015, 7844, 51578, 737, 2408, 4, false}, // GDA2020 / BRO2020
    {8016, 7844, 51539, 738, 2404, 4, false}, // GDA2020 / BCG2020
    {8017, 7844, 51591, 739, 2409, 4, false}, // GDA2020 / CARN2020
    {8018, 7844, 51603, 740, 2159, 4, false}, // GDA2020 / CIG2020
    {8019, 7844, 51616, 741, 21, 4, false}, // GDA2020 / CKIG2020
    {8020, 7844, 51630, 742, 2410, 4, false}, // GDA2020 / COL2020
    {8021, 7844, 51643, 743, 2412, 4, false}, // GDA2020 / ESP2020
    {8022, 7844, 51655, 744, 2414, 4, false}, // GDA2020 / EXM2020
    {8023, 7844, 51681, 745, 2415, 4, false}, // GDA2020 / GCG2020
    {8024, 7844, 51694, 746, 2403, 4, false}, // GDA2020 / GOLD2020
    {8025, 7844, 51708, 747, 2407, 4, false}, // GDA2020 / JCG2020
    {8026, 7844, 51721, 748, 2411, 4, false}, // GDA2020 / KALB2020
    {8027, 7844, 51735, 749, 2417, 4, false}, // GDA2020 / KAR2020
    {8028, 7844, 51747, 750, 2418, 4, false}, // GDA2020 / KUN2020
    {8029, 7844, 51760, 751, 2419, 4, false}, // GDA2020 / LCG2020
    {8030, 7844, 51955, 752, 2422, 4, false}, // GDA2020 / MRCG2020
    {8031, 7844, 51984, 753, 2426, 4, false}, // GDA2020 / PCG2020
    {8032, 7844, 51997, 754, 2429, 4, false}, // GDA2020 / PHG2020
    {8035, 4326, 209038, 755, 2430, 8, false}, // WGS 84 / TM Zone 20N (ftUS)
    {8036, 4326, 209059, 756, 2431, 8, false}, // WGS 84 / TM Zone 21N (ftUS)
    {8042, 1188, 62869, geographic, 2420, 25, false}, // Gusterberg (Ferro)
    {8043, 1189, 182193, geographic, 2421, 25, false}, // St. Stephen (Ferro)
    {8044, 8042, 62895, 757, 2420, 1, false}, // Gusterberg Grid (Ferro)
    {8045, 8043, 182221, 758, 2421, 1, false}, // St. Stephen Grid (Ferro)
    {8058, 7844, 51969, 1863, 1426, 4, false}, // GDA2020 / NSW Lambert
    {8059, 7844, 52010, 1858, 1295, 4, false}, // GDA2020 / SA Lambert
    {8065, 6318, 106082, 759, 2434, 6, false}, // NAD83(2011) / PCCS zone 1 (ft)
    {8066, 6318, 106093, 760, 2425, 6, false}, // NAD83(2011) / PCCS zone 2 (ft)
    {8067, 6318, 106104, 761, 2416, 6, false}, // NAD83(2011) / PCCS zone 3 (ft)
    {8068, 6318, 106115, 762, 2435, 6, false}, // NAD83(2011) / PCCS zone 4 (ft)
    {8082, 8252, 113002, 763, 330, 4, false}, // NAD83(CSRS)v6 / MTM NS 2010 zone 4
    {8083, 8252, 113019, 764, 331, 4, false}, // NAD83(CSRS)v6 / MTM NS 2010 zone 5
    {8086, 1187, 67056, geographic, 44, 25, false}, // ISN2016
    {8088, 8086, 67098, 765, 44, 4, false}, // ISN2016 / Lambert 2016
    {8090, 4152, 117514, 577, 2300, 4, false}, // NAD83(HARN) / WISCRS Florence (m)
    {8091, 4152, 117496, 578, 2300, 8, false}, // NAD83(HARN) / WISCRS Florence (ftUS)
    {8092, 4152, 117478, 607, 2315, 4, false}, // NAD83(HARN) / WISCRS Eau Claire (m)
    {8093, 4152, 117458, 608, 2315, 8, false}, // NAD83(HARN) / WISCRS Eau Claire (ftUS)
    {8095, 4152, 118967, 641, 2332, 4, false}, // NAD83(HARN) / WISCRS Wood (m)
    {8096, 4152, 118950, 642, 2332, 8, false}, // NAD83(HARN) / WISCRS Wood (ftUS)
    {8097, 4152, 118934, 685, 2354, 4, false}, // NAD83(HARN) / WISCRS Waushara (m)
    {8098, 4152, 118916, 686, 2354, 8, false}, // NAD83(HARN) / WISCRS Waushara (ftUS)
    {8099, 4152, 118899, 639, 2331, 4, false}, // NAD83(HARN) / WISCRS Waupaca (m)
    {8100, 4152, 118880, 640, 2331, 8, false}, // NAD83(HARN) / WISCRS Waupaca (ftUS)
    {8101, 4152, 118863, 683, 2353, 4, false}, // NAD83(HARN) / WISCRS Waukesha (m)
    {8102, 4152, 118844, 684, 2353, 8, false}, // NAD83(HARN) / WISCRS Waukesha (ftUS)
    {8103, 4152, 118827, 681, 2352, 4, false}, // NAD83(HARN) / WISCRS Washington (m)
    {8104, 4152, 118808, 682, 2352, 8, false}, // NAD83(HARN) / WISCRS Washington (ftUS)
    {8105, 4152, 118791, 591, 2308, 4, false}, // NAD83(HARN) / WISCRS Washburn (m)
    {8106, 4152, 118772, 592, 2308, 8, false}, // NAD83(HARN) / WISCRS Washburn (ftUS)
    {8107, 4152, 118757, 679, 2351, 4, false}, // NAD83(HARN) / WISCRS Walworth (m)
    {8108, 4152, 118740, 680, 2351, 8, false}, // NAD83(HARN) / WISCRS Walworth (ftUS)
    {8109, 4152, 118726, 589, 2307, 4, false}, // NAD83(HARN) / WISCRS Vilas (m)
    {8110, 4152, 118710, 590, 2307, 8, false}, // NAD83(HARN) / WISCRS Vilas (ftUS)
    {8111, 4152, 118696, 677, 2350, 4, false}, // NAD83(HARN) / WISCRS Vernon (m)
    {8112, 4152, 118680, 678, 2350, 8, false}, // NAD83(HARN) / WISCRS Vernon (ftUS)
    {8113, 4152, 118660, 637, 2330, 4, false}, // NAD83(HARN) / WISCRS Trempealeau (m)
    {8114, 4152, 118638, 638, 2330, 8, false}, // NAD83(HARN) / WISCRS Trempealeau (ftUS)
    {8115, 4152, 118622, 635, 2329, 4, false}, // NAD83(HARN) / WISCRS Taylor (m)
    {8116, 4152, 118604, 636, 2329, 8, false}, // NAD83(HARN) / WISCRS Taylor (ftUS)
    {8117, 4152, 118586, 633, 2328, 4, false}, // NAD83(HARN) / WISCRS St. Croix (m)
    {8118, 4152, 118566, 634, 2328, 8, false}, // NAD83(HARN) / WISCRS St. Croix (ftUS)
    {8119, 4152, 118551, 631, 2327, 4, false}, // NAD83(HARN) / WISCRS Shawano (m)
    {8120, 4152, 118534, 632, 2327, 8, false}, // NAD83(HARN) / WISCRS Shawano (ftUS)
    {8121, 4152, 118519, 587, 2306, 4, false}, // NAD83(HARN) / WISCRS Sawyer (m)
    {8122, 4152, 118502, 588, 2306, 8, false}, // NAD83(HARN) / WISCRS Sawyer (ftUS)
    {8123, 4152, 118488, 675, 2349, 4, false}, // NAD83(HARN) / WISCRS Sauk (m)
    {8124, 4152, 118472, 676, 2349, 8, false}, // NAD83(HARN) / WISCRS Sauk (ftUS)
    {8125, 4152, 118458, 629, 2326, 4, false}, // NAD83(HARN) / WISCRS Rusk (m)
    {8126, 4152, 118442, 630, 2326, 8, false}, // NAD83(HARN) / WISCRS Rusk (ftUS)
    {8127, 4152, 118427, 673, 2348, 4, false}, // NAD83(HARN) / WISCRS Rock (m)
    {8128, 4152, 118410, 674, 2348, 8, false}, // NAD83(HARN) / WISCRS Rock (ftUS)
    {8129, 4152, 118395, 671, 2347, 4, false}, // NAD83(HARN) / WISCRS Richland (m)
    {8130, 4152, 118378, 672, 2347, 8, false}, // NAD83(HARN) / WISCRS Richland (ftUS)
    {8131, 4152, 118364, 585, 2305, 4, false}, // NAD83(HARN) / WISCRS Price (m)
    {8132, 4152, 118348, 586, 2305, 8, false}, // NAD83(HARN) / WISCRS Price (ftUS)
    {8133, 4152, 118332, 627, 2325, 4, false}, // NAD83(HARN) / WISCRS Portage (m)
    {8134, 4152, 118314, 628, 2325, 8, false}, // NAD83(HARN) / WISCRS Portage (ftUS)
    {8135, 4152, 118300, 625, 2324, 4, false}, // NAD83(HARN) / WISCRS Polk (m)
    {8136, 4152, 118284, 626, 2324, 8, false}, // NAD83(HARN) / WISCRS Polk (ftUS)
    {8137, 4152, 118263, 623, 2323, 4, false}, // NAD83(HARN) / WISCRS Pepin and Pierce (m)
    {8138, 4152, 118240, 624, 2323, 8, false}, // NAD83(HARN) / WISCRS Pepin and Pierce (ftUS)
    {8139, 4152, 118225, 583, 2303, 4, false}, // NAD83(HARN) / WISCRS Oneida (m)
    {8140, 4152, 118208, 584, 2303, 8, false}, // NAD83(HARN) / WISCRS Oneida (ftUS)
    {8141, 4152, 118193, 621, 2322, 4, false}, // NAD83(HARN) / WISCRS Oconto (m)
    {8142, 4152, 118176, 622, 2322, 8, false}, // NAD83(HARN) / WISCRS Oconto (ftUS)
    {8143, 4152, 118161, 669, 2346, 4, false}, // NAD83(HARN) / WISCRS Monroe (m)
    {8144, 4152, 118144, 670, 2346, 8, false}, // NAD83(HARN) / WISCRS Monroe (ftUS)
    {8145, 4152, 118128, 619, 2321, 4, false}, // NAD83(HARN) / WISCRS Menominee (m)
    {8146, 4152, 118110, 620, 2321, 8, false}, // NAD83(HARN) / WISCRS Menominee (ftUS)
    {8147, 4152, 118094, 617, 2320, 4, false}, // NAD83(HARN) / WISCRS Marinette (m)
    {8148, 4152, 118076, 618, 2320, 8, false}, // NAD83(HARN) / WISCRS Marinette (ftUS)
    {8149, 4152, 118061, 615, 2319, 4, false}, // NAD83(HARN) / WISCRS Marathon (m)
    {8150, 4152, 118044, 616, 2319, 8, false}, // NAD83(HARN) / WISCRS Marathon (ftUS)
    {8151, 4152, 118028, 613, 2318, 4, false}, // NAD83(HARN) / WISCRS Lincoln (m)
    {8152, 4152, 118010, 614, 2318, 8, false}, // NAD83(HARN) / WISCRS Lincoln (ftUS)
    {8153, 4152, 117994, 611, 2317, 4, false}, // NAD83(HARN) / WISCRS Langlade (m)
    {8154, 4152, 117976, 612, 2317, 8, false}, // NAD83(HARN) / WISCRS Langlade (ftUS)
    {8155, 4152, 117958, 667, 2345, 4, false}, // NAD83(HARN) / WISCRS La Crosse (m)
    {8156, 4152, 117938, 668, 2345, 8, false}, // NAD83(HARN) / WISCRS La Crosse (ftUS)
    {8157, 4152, 117901, 665, 2344, 4, false}, // NAD83(HARN) / WISCRS Kewaunee, Manitowoc and Sheboygan (m)
    {8158, 4152, 117862, 666, 2344, 8, false}, // NAD83(HARN) / WISCRS Kewaunee, Manitowoc and Sheboygan (ftUS)
    {8159, 4152, 117824, 663, 2343, 4, false}, // NAD83(HARN) / WISCRS Kenosha, Milwaukee, Ozaukee and Racine (m)
    {8160, 4152, 117784, 664, 2343, 8, false}, // NAD83(HARN) / WISCRS Kenosha, Milwaukee, Ozaukee and Racine (ftUS)
    {8161, 4152, 117768, 609, 2316, 4, false}, // NAD83(HARN) / WISCRS Jackson (m)
    {8162, 4152, 117750, 610, 2316, 8, false}, // NAD83(HARN) / WISCRS Jackson (ftUS)
    {8163, 4152, 117737, 581, 2302, 4, false}, // NAD83(HARN) / WISCRS Iron (m)
    {8164, 4152, 117722, 582, 2302, 8, false}, // NAD83(HARN) / WISCRS Iron (ftUS)
    {8165, 4152, 117708, 661, 2342, 4, false}, // NAD83(HARN) / WISCRS Iowa (m)
    {8166, 4152, 117692, 662, 2342, 8, false}, // NAD83(HARN) / WISCRS Iowa (ftUS)
    {8167, 4152, 117618, 659, 2341, 4, false}, // NAD83(HARN) / WISCRS Green Lake and Marquette (m)
    {8168, 4152, 117590, 660, 2341, 8, false}, // NAD83(HARN) / WISCRS Green Lake and Marquette (ftUS)
    {8169, 4152, 117669, 657, 2340, 4, false}, // NAD83(HARN) / WISCRS Green and Lafayette (m)
    {8170, 4152, 117644, 658, 2340, 8, false}, // NAD83(HARN) / WISCRS Green and Lafayette (ftUS)
    {8171, 4152, 117575, 655, 2339, 4, false}, // NAD83(HARN) / WISCRS Grant (m)
    {8172, 4152, 117558, 656, 2339, 8, false}, // NAD83(HARN) / WISCRS Grant (ftUS)
    {8173, 4152, 117545, 579, 2301, 4, false}, // NAD83(HARN) / WISCRS Forest (m)
    {8177, 4152, 117530, 580, 2301, 8, false}, // NAD83(HARN) / WISCRS Forest (ftUS)
    {8179, 4152, 117443, 605, 2314, 4, false}, // NAD83(HARN) / WISCRS Dunn (m)
    {8180, 4152, 117426, 606, 2314, 8, false}, // NAD83(HARN) / WISCRS Dunn (ftUS)
    {8181, 4152, 117410, 575, 2299, 4, false}, // NAD83(HARN) / WISCRS Douglas (m)
    {8182, 4152, 117392, 576, 2299, 8, false}, // NAD83(HARN) / WISCRS Douglas (ftUS)
    {8184, 4152, 117378, 603, 2313, 4, false}, // NAD83(HARN) / WISCRS Door (m)
    {8185, 4152, 117362, 604, 2313, 8, false}, // NAD83(HARN) / WISCRS Door (ftUS)
    {8187, 4152, 117340, 653, 2338, 4, false}, // NAD83(HARN) / WISCRS Dodge and Jefferson (m)
    {8189, 4152, 117316, 654, 2338, 8, false}, // NAD83(HARN) / WISCRS Dodge and Jefferson (ftUS)
    {8191, 4152, 117303, 651, 2337, 4, false}, // NAD83(HARN) / WISCRS Dane (m)
    {8193, 4152, 117288, 652, 2337, 8, false}, // NAD83(HARN) / WISCRS Dane (ftUS)
    {8196, 4152, 117272, 649, 2336, 4, false}, // NAD83(HARN) / WISCRS Crawford (m)
    {8197, 4152, 117254, 650, 2336, 8, false}, // NAD83(HARN) / WISCRS Crawford (ftUS)
    {8198, 4152, 117239, 647, 2335, 4, false}, // NAD83(HARN) / WISCRS Columbia (m)
    {8200, 4152, 117222, 648, 2335, 8, false}, // NAD83(HARN) / WISCRS Columbia (ftUS)
    {8201, 4152, 117208, 601, 2312, 4, false}, // NAD83(HARN) / WISCRS Clark (m)
    {8202, 4152, 117192, 602, 2312, 8, false}, // NAD83(HARN) / WISCRS Clark (ftUS)
    {8203, 4152, 117175, 599, 2311, 4, false}, // NAD83(HARN) / WISCRS Chippewa (m)
    {8204, 4152, 117156, 600, 2311, 8, false}, // NAD83(HARN) / WISCRS Chippewa (ftUS)
    {8205, 4152, 117113, 645, 2334, 4, false}, // NAD83(HARN) / WISCRS Calumet, Fond du Lac, Outagamie and Winnebago (m)
    {8206, 4152, 117068, 646, 2334, 8, false}, // NAD83(HARN) / WISCRS Calumet, Fond du Lac, Outagamie and Winnebago (ftUS)
    {8207, 4152, 117052, 573, 2298, 4, false}, // NAD83(HARN) / WISCRS Burnett (m)
    {8208, 4152, 117034, 574, 2298, 8, false}, // NAD83(HARN) / WISCRS Burnett (ftUS)
    {8209, 4152, 117018, 597, 2310, 4, false}, // NAD83(HARN) / WISCRS Buffalo (m)
    {8210, 4152, 117000, 598, 2310, 8, false}, // NAD83(HARN) / WISCRS Buffalo (ftUS)
    {8212, 4152, 116984, 595, 2309, 4, false}, // NAD83(HARN) / WISCRS Brown (m)
    {8213, 4152, 116966, 596, 2309, 8, false}, // NAD83(HARN) / WISCRS Brown (ftUS)
    {8214, 4152, 116948, 571, 2294, 4, false}, // NAD83(HARN) / WISCRS Bayfield (m)
    {8216, 4152, 116928, 572, 2294, 8, false}, // NAD83(HARN) / WISCRS Bayfield (ftUS)
    {8218, 4152, 116914, 593, 2304, 4, false}, // NAD83(HARN) / WISCRS Barron (m)
    {8220, 4152, 116898, 594, 2304, 8, false}, // NAD83(HARN) / WISCRS Barron (ftUS)
    {8222, 4152, 116884, 569, 2293, 4, false}, // NAD83(HARN) / WISCRS Ashland (m)
    {8224, 4152, 116868, 570, 2293, 8, false}, // NAD83(HARN) / WISCRS Ashland (ftUS)
    {8225, 4152, 116845, 643, 2333, 4, false}, // NAD83(HARN) / WISCRS Adams and Juneau (m)
    {8226, 4152, 116820, 644, 2333, 8, false}, // NAD83(HARN) / WISCRS Adams and Juneau (ftUS)
    {8232, 1192, 113833, geographic, 16, 25, false}, // NAD83(CSRS96)
    {8237, 1193, 111772, geographic, 16, 25, false}, // NAD83(CSRS)v2
    {8240, 1194, 112262, geographic, 16, 25, false}, // NAD83(CSRS)v3
    {8246, 1195, 112650, geographic, 16, 25, false}, // NAD83(CSRS)v4
    {8249, 1196, 112988, geographic, 16, 25, false}, // NAD83(CSRS)v5
    {8252, 1197, 112995, geographic, 16, 25, false}, // NAD83(CSRS)v6
    {8255, 1198, 113475, geographic, 16, 25, false}, // NAD83(CSRS)v7
    {8311, 6318, 104845, 766, 2424, 4, false}, // NAD83(2011) / Oregon Burns-Harper zone (m)
    {8312, 6318, 104828, 767, 2424, 6, false}, // NAD83(2011) / Oregon Burns-Harper zone (ft)
    {8313, 6318, 104881, 768, 2428, 4, false}, // NAD83(2011) / Oregon Canyon City-Burns zone (m)
    {8314, 6318, 104861, 769, 2428, 6, false}, // NAD83(2011) / Oregon Canyon City-Burns zone (ft)
    {8315, 6318, 104966, 770, 2433, 4, false}, // NAD83(2011) / Oregon Coast Range North zone (m)
    {8316, 6318, 104951, 771, 2433, 6, false}, // NAD83(2011) / Oregon Coast Range North zone (ft)
    {8317, 6318, 105158, 772, 2436, 4, false}, // NAD83(2011) / Oregon Dayville-Prairie City zone (m)
    {8318, 6318, 105135, 773, 2436, 6, false}, // NAD83(2011) / Oregon Dayville-Prairie City zone (ft)
    {8319, 6318, 105198, 774, 2437, 4, false}, // NAD83(2011) / Oregon Denio-Burns zone (m)
    {8320, 6318, 105181, 775, 2437, 6, false}, // NAD83(2011) / Oregon Denio-Burns zone (ft)
    {8321, 6318, 105384, 776, 2438, 4, false}, // NAD83(2011) / Oregon Halfway zone (m)
    {8322, 6318, 105371, 777, 2438, 6, false}, // NAD83(2011) / Oregon Halfway zone (ft)
    {8323, 6318, 105456, 778, 2439, 4, false}, // NAD83(2011) / Oregon Medford-Diamond Lake zone (m)
    {8324, 6318, 105433, 779, 2439, 6, false}, // NAD83(2011) / Oregon Medford-Diamond Lake zone (ft)
    {8325, 6318, 105493, 780, 2440, 4, false}, // NAD83(2011) / Oregon Mitchell zone (m)
    {8326, 6318, 105479, 781, 2440, 6, false}, // NAD83(2011) / Oregon Mitchell zone (ft)
    {8327, 6318, 105529, 782, 2441, 4, false}, // NAD83(2011) / Oregon North Central zone (m)
    {8328, 6318, 105518, 783, 2441, 6, false}, // NAD83(2011) / Oregon North Central zone (ft)
    {8329, 6318, 105559, 784, 2443, 4, false}, // NAD83(2011) / Oregon Ochoco Summit zone (m)
    {8330, 6318, 105540, 785, 2443, 6, false}, // NAD83(2011) / Oregon Ochoco Summit zone (ft)
    {8331, 6318, 105614, 786, 2444, 4, false}, // NAD83(2011) / Oregon Owyhee zone (m)
    {8332, 6318, 105601, 787, 2444, 6, false}, // NAD83(2011) / Oregon Owyhee zone (ft)
    {8333, 6318, 105714, 788, 2445, 4, false}, // NAD83(2011) / Oregon Pilot Rock-Ukiah zone (m)
    {8334, 6318, 105693, 789, 2445, 6, false}, // NAD83(2011) / Oregon Pilot Rock-Ukiah zone (ft)
    {8335, 6318, 105779, 790, 2446, 4, false}, // NAD83(2011) / Oregon Prairie City-Brogan zone (m)
    {8336, 6318, 105757, 791, 2446, 6, false}, // NAD83(2011) / Oregon Prairie City-Brogan zone (ft)
    {8337, 6318, 105821, 792, 2423, 4, false}, // NAD83(2011) / Oregon Riley-Lakeview zone (m)
    {8338, 6318, 105800, 793, 2423, 6, false}, // NAD83(2011) / Oregon Riley-Lakeview zone (ft)
    {8339, 6318, 105918, 794, 2427, 4, false}, // NAD83(2011) / Oregon Siskiyou Pass zone (m)
    {8340, 6318, 105899, 795, 2427, 6, false}, // NAD83(2011) / Oregon Siskiyou Pass zone (ft)
    {8341, 6318, 105968, 796, 2432, 4, false}, // NAD83(2011) / Oregon Ukiah-Fox zone (m)
    {8342, 6318, 105952, 797, 2432, 6, false}, // NAD83(2011) / Oregon Ukiah-Fox zone (ft)
    {8343, 6318, 105996, 798, 2442, 4, false}, // NAD83(2011) / Oregon Wallowa zone (m)
    {8344, 6318, 105983, 799, 2442, 6, false}, // NAD83(2011) / Oregon Wallowa zone (ft)
    {8345, 6318, 106028, 800, 2448, 4, false}, // NAD83(2011) / Oregon Warner Highway zone (m)
    {8346, 6318, 106009, 801, 2448, 6, false}, // NAD83(2011) / Oregon Warner Highway zone (ft)
    {8347, 6318, 106065, 802, 2450, 4, false}, // NAD83(2011) / Oregon Willamette Pass zone (m)
    {8348, 6318, 106047, 803, 2450, 6, false}, // NAD83(2011) / Oregon Willamette Pass zone (ft)
    {8351, 1201, 168190, geographic, 91, 25, false}, // S-JTSK [JTSK03]
    {8352, 8351, 168206, 182, 91, 1, false}, // S-JTSK [JTSK03] / Krovak
    {8353, 8351, 168229, 183, 91, 4, false}, // S-JTSK [JTSK03] / Krovak East North
    {8379, 4269, 98085, 804, 2447, 4, false}, // NAD83 / NCRS Las Vegas (m)
    {8380, 4269, 98066, 805, 2447, 8, false}, // NAD83 / NCRS Las Vegas (ftUS)
    {8381, 4269, 98126, 806, 2449, 4, false}, // NAD83 / NCRS Las Vegas high (m)
    {8382, 4269, 98102, 807, 2449, 8, false}, // NAD83 / NCRS Las Vegas high (ftUS)
    {8383, 6318, 104139, 804, 2447, 4, false}, // NAD83(2011) / NCRS Las Vegas (m)
    {8384, 6318, 104120, 805, 2447, 8, false}, // NAD83(2011) / NCRS Las Vegas (ftUS)
    {8385, 6318, 104180, 806, 2449, 4, false}, // NAD83(2011) / NCRS Las Vegas high (m)
    {8387, 6318, 104156, 807, 2449, 8, false}, // NAD83(2011) / NCRS Las Vegas high (ftUS)
    {8391, 4283, 52433, 808, 2453, 4, false}, // GDA94 / WEIPA94
    {8395, 4258, 42560, 1543, 2452, 4, false}, // ETRS89 / Gauss-Kruger CM 9E
    {8427, 1209, 64717, geographic, 42, 25, false}, // Hong Kong Geodetic CS
    {8428, 1207, 85923, geographic, 62, 25, false}, // Macao 1920
    {8431, 1208, 85965, geographic, 62, 25, false}, // Macao 2008
    {8433, 8428, 85932, 809, 62, 5, false}, // Macao 1920 / Macao Grid
    {8441, 4297, 185096, 810, 1507, 5, false}, // Tananarive / Laborde Grid
    {8449, 6152, 114131, geographic, 2476, 25, true}, // NAD83(FBN)
    {8455, 7073, 163590, 1451, 2451, 4, false}, // RGTAAF07 / UTM zone 53S
    {8456, 7073, 163606, 1452, 2454, 4, false}, // RGTAAF07 / UTM zone 54S
    {8518, 6318, 103247, 811, 2456, 8, false}, // NAD83(2011) / KS RCS zone 1
    {8519, 6318, 103356, 812, 2457, 8, false}, // NAD83(2011) / KS RCS zone 2
    {8520, 6318, 103375, 813, 2458, 8, false}, // NAD83(2011) / KS RCS zone 3
    {8521, 6318, 103384, 814, 2455, 8, false}, // NAD83(2011) / KS RCS zone 4
    {8522, 6318, 103393, 815, 2459, 8, false}, // NAD83(2011) / KS RCS zone 5
    {8523, 6318, 103402, 816, 2460, 8, false}, // NAD83(2011) / KS RCS zone 6
    {8524, 6318, 103411, 817, 2461, 8, false}, // NAD83(2011) / KS RCS zone 7
    {8525, 6318, 103420, 818, 2462, 8, false}, // NAD83(2011) / KS RCS zone 8
    {8526, 6318, 103429, 819, 2463, 8, false}, // NAD83(2011) / KS RCS zone 9
    {8527, 6318, 103256, 820, 2464, 8, false}, // NAD83(2011) / KS RCS zone 10
    {8528, 6318, 103266, 821, 2465, 8, false}, // NAD83(2011) / KS RCS zone 11
    {8529, 6318, 103276, 822, 2466, 8, false}, // NAD83(2011) / KS RCS zone 12
    {8531, 6318, 103286, 823, 2467, 8, false}, // NAD83(2011) / KS RCS zone 13
    {8533, 6318, 103296, 824, 2468, 8, false}, // NAD83(2011) / KS RCS zone 14
    {8534, 6318, 103306, 825, 2469, 8, false}, // NAD83(2011) / KS RCS zone 15
    {8535, 6318, 103316, 826, 2470, 8, false}, // NAD83(2011) / KS RCS zone 16
    {8536, 6318, 103326, 827, 2471, 8, false}, // NAD83(2011) / KS RCS zone 17
    {8538, 6318, 103336, 828, 2472, 8, false}, // NAD83(2011) / KS RCS zone 18
    {8539, 6318, 103346, 829, 2473, 8, false}, // NAD83(2011) / KS RCS zone 19
    {8540, 6318, 103365, 830, 2474, 8, false}, // NAD83(2011) / KS RCS zone 20
    {8545, 1212, 114138, geographic, 1768, 25, false}, // NAD83(HARN Corrected)
    {8677, 3906, 84973, 2180, 501, 4, false}, // MGI 1901 / Balkans zone 5
    {8678, 3906, 84988, 2181, 502, 4, false}, // MGI 1901 / Balkans zone 6
    {8679, 3906, 85018, 2183, 504, 4, false}, // MGI 1901 / Balkans zone 8
    {8682, 8685, 175562, 1343, 2494, 4, false}, // SRB_ETRS89 / UTM zone 34N
    {8685, 1214, 175552, geographic, 2494, 25, false}, // SRB_ETRS89
    {8686, 3906, 85054, 2355, 92, 4, false}, // MGI 1901 / Slovenia Grid
    {8687, 4765, 178914, 1342, 92, 4, false}, // Slovenia 1996 / UTM zone 33N
    {8692, 6325, 119328, 1363, 2475, 4, false}, // NAD83(MA11) / UTM zone 54N
    {8693, 6325, 119340, 1364, 2477, 4, false}, // NAD83(MA11) / UTM zone 55N
    {8694, 1217, 27274, geographic, 4, 25, false}, // Camacupa 2015
    {8699, 1220, 163852, geographic, 4, 25, false}, // RSAO13
    {8818, 1218, 85773, geographic, 88, 25, false}, // MTRF-2000
    {8826, 4269, 97058, 831, 197, 4, false}, // NAD83 / Idaho Transverse Mercator
    {8836, 8818, 85781, 1345, 2481, 4, false}, // MTRF-2000 / UTM zone 36N
    {8837, 8818, 85796, 1346, 2483, 4, false}, // MTRF-2000 / UTM zone 37N
    {8838, 8818, 85811, 1347, 2484, 4, false}, // MTRF-2000 / UTM zone 38N
    {8839, 8818, 85826, 1348, 2485, 4, false}, // MTRF-2000 / UTM zone 39N
    {8840, 8818, 85841, 1349, 1406, 4, false}, // MTRF-2000 / UTM zone 40N
    {8857, 4326, 206185, 832, 109, 4, false}, // WGS 84 / Equal Earth Greenwich
    {8858, 4326, 206139, 833, 2479, 4, false}, // WGS 84 / Equal Earth Americas
    {8859, 4326, 206159, 834, 2480, 4, false}, // WGS 84 / Equal Earth Asia-Pacific
    {8860, 1211, 114131, geographic, 2476, 25, false}, // NAD83(FBN)
    {8888, 1166, 204637, geographic, 109, 25, false}, // WGS 84 (Transit)
    {8900, 1223, 163721, geographic, 106, 25, false}, // RGWF96
    {8902, 1223, 163742, geographic, 106, 24, false}, // RGWF96 (lon-lat)
    {8903, 8900, 163756, 1399, 106, 4, false}, // RGWF96 / UTM zone 1S
    {8907, 1225, 26625, geographic, 24, 25, false}, // CR-SIRGAS
    {8908, 8907, 26635, 169, 1486, 4, false}, // CR-SIRGAS / CRTM05
    {8909, 8907, 26651, 1325, 2488, 4, false}, // CR-SIRGAS / UTM zone 16N
    {8910, 8907, 26668, 1326, 2487, 4, false}, // CR-SIRGAS / UTM zone 17N
    {8949, 1243, 170777, geographic, 19, 25, false}, // SIRGAS-Chile 2010
    {8950, 8949, 170792, 1416, 1888, 4, false}, // SIRGAS-Chile 2010 / UTM zone 18S
    {8951, 8949, 170813, 1417, 1882, 4, false}, // SIRGAS-Chile 2010 / UTM zone 19S
    {8972, 1227, 170367, geographic, 2486, 25, false}, // SIRGAS-CON DGF00P01
    {8973, 1228, 170387, geographic, 2486, 25, false}, // SIRGAS-CON DGF01P01
    {8974, 1229, 170407, geographic, 2486, 25, false}, // SIRGAS-CON DGF01P02
    {8975, 1230, 170427, geographic, 2486, 25, false}, // SIRGAS-CON DGF02P01
    {8976, 1231, 170447, geographic, 2486, 25, false}, // SIRGAS-CON DGF04P01
    {8977, 1232, 170467, geographic, 2486, 25, false}, // SIRGAS-CON DGF05P01
    {8978, 1233, 170487, geographic, 2486, 25, false}, // SIRGAS-CON DGF06P01
    {8979, 1234, 170507, geographic, 2486, 25, false}, // SIRGAS-CON DGF07P01
    {8980, 1235, 170527, geographic, 2486, 25, false}, // SIRGAS-CON DGF08P01
    {8981, 1236, 170547, geographic, 2486, 25, false}, // SIRGAS-CON SIR09P01
    {8982, 1237, 170567, geographic, 2486, 25, false}, // SIRGAS-CON SIR10P01
    {8983, 1238, 170586, geographic, 2486, 25, false}, // SIRGAS-CON SIR11P01
    {8984, 1239, 170605, geographic, 2486, 25, false}, // SIRGAS-CON SIR13P01
    {8985, 1240, 170625, geographic, 2486, 25, false}, // SIRGAS-CON SIR14P01
    {8986, 1241, 170645, geographic, 2486, 25, false}, // SIRGAS-CON SIR15P01
    {8987, 1242, 170665, geographic, 2486, 25, false}, // SIRGAS-CON SIR17P01
    {8988, 6647, 67387, geographic, 109, 25, false}, // ITRF88
    {8989, 6648, 67406, geographic, 109, 25, false}, // ITRF89
    {8990, 6649, 67425, geographic, 109, 25, false}, // ITRF90
    {8991, 6650, 67444, geographic, 109, 25, false}, // ITRF91
    {8992, 6651, 89125, geographic, 109, 25, false}, // ITRF92
    {8993, 6652, 67475, geographic, 109, 25, false}, // ITRF93
    {8994, 6653, 67494, geographic, 109, 25, false}, // ITRF94
    {8995, 6654, 67513, geographic, 109, 25, false}, // ITRF96
    {8996, 6655, 67532, geographic, 109, 25, false}, // ITRF97
    {8997, 6656, 67296, geographic, 109, 25, false}, // ITRF2000
    {8998, 6896, 67315, geographic, 109, 25, false}, // ITRF2005
    {8999, 1061, 88983, geographic, 109, 25, false}, // ITRF2008
    {9000, 1165, 67346, geographic, 109, 25, false}, // ITRF2014
    {9003, 1244, 66743, geographic, 109, 25, false}, // IGS97
    {9006, 1245, 66675, geographic, 109, 25, false}, // IGS00
    {9009, 1246, 66760, geographic, 109, 25, false}, // IGb00
    {9012, 1247, 66692, geographic, 109, 25, false}, // IGS05
    {9014, 1141, 66709, geographic, 109, 25, false}, // IGS08
    {9017, 1248, 66777, geographic, 109, 25, false}, // IGb08
    {9019, 1191, 66726, geographic, 109, 25, false}, // IGS14
    {9039, 8086, 67063, 2372, 44, 5, false}, // ISN2016 / LAEA Europe
    {9040, 8086, 67081, 2371, 44, 5, false}, // ISN2016 / LCC Europe
    {9053, 1152, 204610, geographic, 109, 25, false}, // WGS 84 (G730)
    {9054, 1153, 204623, geographic, 109, 25, false}, // WGS 84 (G873)
    {9055, 1154, 204551, geographic, 109, 25, false}, // WGS 84 (G1150)
    {9056, 1155, 204565, geographic, 109, 25, false}, // WGS 84 (G1674)
    {9057, 1156, 204580, geographic, 109, 25, false}, // WGS 84 (G1762)
    {9059, 1178, 41531, geographic, 132, 25, false}, // ETRF89
    {9060, 1179, 41560, geographic, 132, 25, false}, // ETRF90
    {9061, 1180, 41579, geographic, 132, 25, false}, // ETRF91
    {9062, 1181, 41598, geographic, 132, 25, false}, // ETRF92
    {9063, 1182, 41617, geographic, 132, 25, false}, // ETRF93
    {9064, 1183, 41636, geographic, 132, 25, false}, // ETRF94
    {9065, 1184, 41655, geographic, 132, 25, false}, // ETRF96
    {9066, 1185, 41674, geographic, 132, 25, false}, // ETRF97
    {9067, 1186, 140136, geographic, 132, 25, false}, // ETRF2000
    {9068, 1204, 41491, geographic, 132, 25, false}, // ETRF2005
    {9069, 1206, 41510, geographic, 132, 25, false}, // ETRF2014
    {9072, 1221, 119352, geographic, 2158, 25, false}, // NAD83(MARP00)
    {9075, 1249, 123937, geographic, 2156, 25, false}, // NAD83(PACP00)
    {9140, 1251, 74931, geographic, 2493, 25, false}, // KOSOVAREF01
    {9141, 9140, 74958, 2182, 2493, 4, false}, // KOSOVAREF01 / Balkans zone 7
    {9148, 1252, 170834, geographic, 19, 25, false}, // SIRGAS-Chile 2013
    {9149, 9148, 170849, 1416, 1888, 4, false}, // SIRGAS-Chile 2013 / UTM zone 18S
    {9150, 9148, 170871, 1417, 1882, 4, false}, // SIRGAS-Chile 2013 / UTM zone 19S
    {9153, 1253, 170893, geographic, 19, 25, false}, // SIRGAS-Chile 2016
    {9154, 9153, 170908, 1416, 1888, 4, false}, // SIRGAS-Chile 2016 / UTM zone 18S
    {9155, 9153, 170930, 1417, 1882, 4, false}, // SIRGAS-Chile 2016 / UTM zone 19S
    {9156, 8699, 163871, 1430, 2500, 4, false}, // RSAO13 / UTM zone 32S
    {9157, 8699, 163884, 1431, 2504, 4, false}, // RSAO13 / UTM zone 33S
    {9158, 8699, 163897, 1432, 2490, 4, false}, // RSAO13 / UTM zone 34S
    {9159, 8699, 163858, 1602, 399, 4, false}, // RSAO13 / TM 12 SE
    {9184, 1254, 170697, geographic, 19, 25, true}, // SIRGAS-Chile
    {9191, 4326, 206542, 836, 1667, 4, false}, // WGS 84 / NIWA Albers
    {9205, 4756, 198545, 835, 2492, 4, false}, // VN-2000 / TM-3 103-00
    {9206, 4756, 198561, 837, 2489, 4, false}, // VN-2000 / TM-3 104-00
    {9207, 4756, 198577, 838, 2495, 4, false}, // VN-2000 / TM-3 104-30
    {9208, 4756, 198593, 839, 2496, 4, false}, // VN-2000 / TM-3 104-45
    {9209, 4756, 198609, 840, 2497, 4, false}, // VN-2000 / TM-3 105-30
    {9210, 4756, 198625, 841, 2498, 4, false}, // VN-2000 / TM-3 105-45
    {9211, 4756, 198641, 842, 2499, 4, false}, // VN-2000 / TM-3 106-00
    {9212, 4756, 198657, 843, 2501, 4, false}, // VN-2000 / TM-3 106-15
    {9213, 4756, 198673, 844, 2502, 4, false}, // VN-2000 / TM-3 106-30
    {9214, 4756, 198689, 845, 2503, 4, false}, // VN-2000 / TM-3 107-00
    {9215, 4756, 198705, 846, 2505, 4, false}, // VN-2000 / TM-3 107-15
    {9216, 4756, 198721, 847, 2506, 4, false}, // VN-2000 / TM-3 107-30
    {9217, 4756, 198753, 848, 2507, 4, false}, // VN-2000 / TM-3 108-15
    {9218, 4756, 198769, 849, 2508, 4, false}, // VN-2000 / TM-3 108-30
    {9221, 4148, 63814, 850, 2513, 5, false}, // Hartebeesthoek94 / ZAF BSU Albers 25E
    {9222, 4148, 63846, 851, 2514, 5, false}, // Hartebeesthoek94 / ZAF BSU Albers 44E
    {9248, 1257, 185209, geographic, 2515, 25, false}, // Tapi Aike
    {9249, 9248, 185219, 2043, 2516, 5, false}, // Tapi Aike / Argentina 1
    {9250, 9248, 185237, 2044, 2517, 5, false}, // Tapi Aike / Argentina 2
    {9251, 1258, 85243, geographic, 1074, 25, false}, // MMN
    {9252, 9251, 85247, 2044, 1074, 5, false}, // MMN / Argentina 2
    {9253, 1259, 85271, geographic, 1074, 25, false}, // MMS
    {9254, 9253, 85275, 2044, 1074, 5, false}, // MMS / Argentina 2
    {9265, 5340, 140563, 1417, 1109, 4, false}, // POSGAR 2007 / UTM zone 19S
    {9271, 4312, 84849, 852, 498, 5, false}, // MGI / Austria West
    {9272, 4312, 84673, 853, 499, 5, false}, // MGI / Austria Central
    {9273, 4312, 84686, 854, 500, 5, false}, // MGI / Austria East
    {9284, 4161, 142035, 2043, 2511, 5, false}, // Pampa del Castillo / Argentina 1
    {9285, 4161, 142077, 2045, 2512, 5, false}, // Pampa del Castillo / Argentina 3
    {9294, 1263, 136619, geographic, 78, 25, false}, // ONGD17
    {9295, 9294, 136626, 1348, 2295, 4, false}, // ONGD17 / UTM zone 39N
    {9296, 9294, 136640, 1349, 2296, 4, false}, // ONGD17 / UTM zone 40N
    {9297, 9294, 136654, 1350, 2297, 4, false}, // ONGD17 / UTM zone 41N
    {9299, 1264, 63069, geographic, 2524, 25, false}, // HS2-IRF
    {9300, 9299, 63057, 855, 2524, 4, false}, // HS2 Survey Grid
    {9309, 1291, 3830, geographic, 2164, 25, false}, // ATRF2014
    {9311, 4267, 94549, 22, 103, 4, false}, // NAD27 / US National Atlas Equal Area
    {9333, 1268, 75021, geographic, 88, 25, false}, // KSA-GRF17
    {9354, 4326, 206319, 856, 2526, 4, false}, // WGS 84 / IBCSO Polar Stereographic
    {9356, 9333, 75046, 1345, 2481, 4, false}, // KSA-GRF17 / UTM zone 36N
    {9357, 9333, 75063, 1346, 2483, 4, false}, // KSA-GRF17 / UTM zone 37N
    {9358, 9333, 75080, 1347, 2484, 4, false}, // KSA-GRF17 / UTM zone 38N
    {9359, 9333, 75097, 1348, 2485, 4, false}, // KSA-GRF17 / UTM zone 39N
    {9360, 9333, 75114, 1349, 1406, 4, false}, // KSA-GRF17 / UTM zone 40N
    {9364, 1266, 184205, geographic, 2525, 25, false}, // TPEN11-IRF
    {9367, 9364, 184169, 857, 2525, 4, false}, // TPEN11 Grid
    {9372, 1271, 85189, geographic, 2528, 25, false}, // MML07-IRF
    {9373, 9372, 85153, 858, 2528, 4, false}, // MML07 Grid
    {9377, 4686, 83806, 859, 22, 5, false}, // MAGNA-SIRGAS / Origen-Nacional
    {9380, 1272, 66794, geographic, 109, 25, false}, // IGb14
    {9384, 1273, 4157, geographic, 2529, 25, false}, // AbInvA96_2020-IRF
    {9387, 9384, 4111, 860, 2529, 4, false}, // AbInvA96_2020 Grid
    {9391, 7798, 17685, 1344, 2394, 4, false}, // BGS2005 / UTM zone 35N
    {9403, 1286, 140150, geographic, 1928, 25, false}, // PN68
    {9404, 9403, 140155, 1336, 2531, 4, false}, // PN68 / UTM zone 27N
    {9405, 9403, 140167, 1337, 2532, 4, false}, // PN68 / UTM zone 28N
    {9406, 4728, 140210, 1336, 2531, 4, false}, // PN84 / UTM zone 27N
    {9407, 4728, 140222, 1337, 2533, 4, false}, // PN84 / UTM zone 28N
    {9453, 1289, 51388, geographic, 2534, 25, false}, // GBK19-IRF
    {9456, 9453, 51354, 861, 2534, 4, false}, // GBK19 Grid
    {9470, 1293, 175604, geographic, 46, 25, false}, // SRGI2013
    {9473, 7844, 51521, 1864, 1102, 4, false}, // GDA2020 / Australian Albers
    {9474, 1157, 141489, geographic, 109, 25, false}, // PZ-90.02
    {9475, 1158, 141498, geographic, 109, 25, false}, // PZ-90.11
    {9476, 9470, 175612, 1355, 440, 4, false}, // SRGI2013 / UTM zone 46N
    {9477, 9470, 175627, 1356, 442, 4, false}, // SRGI2013 / UTM zone 47N
    {9478, 9470, 175657, 1357, 444, 4, false}, // SRGI2013 / UTM zone 48N
    {9479, 9470, 175687, 1358, 446, 4, false}, // SRGI2013 / UTM zone 49N
    {9480, 9470, 175717, 1359, 448, 4, false}, // SRGI2013 / UTM zone 50N
    {9481, 9470, 175747, 1360, 450, 4, false}, // SRGI2013 / UTM zone 51N
    {9482, 9470, 175777, 1361, 452, 4, false}, // SRGI2013 / UTM zone 52N
    {9487, 9470, 175642, 1445, 443, 4, false}, // SRGI2013 / UTM zone 47S
    {9488, 9470, 175672, 1446, 445, 4, false}, // SRGI2013 / UTM zone 48S
    {9489, 9470, 175702, 1447, 447, 4, false}, // SRGI2013 / UTM zone 49S
    {9490, 9470, 175732, 1448, 449, 4, false}, // SRGI2013 / UTM zone 50S
    {9491, 9470, 175762, 1449, 451, 4, false}, // SRGI2013 / UTM zone 51S
    {9492, 9470, 175792, 1450, 453, 4, false}, // SRGI2013 / UTM zone 52S
    {9493, 9470, 175807, 1451, 455, 4, false}, // SRGI2013 / UTM zone 53S
    {9494, 9470, 175822, 1452, 456, 4, false}, // SRGI2013 / UTM zone 54S
    {9498, 5340, 140545, 862, 2535, 5, false}, // POSGAR 2007 / CABA 2019
    {9547, 1295, 79951, geographic, 2537, 25, false}, // LTF2004(G)
    {9674, 4269, 99153, 863, 1080, 4, false}, // NAD83 / USFS R6 Albers
    {9678, 4682, 62635, 864, 1479, 4, false}, // Gulshan 303 / Bangladesh Transverse Mercator
    {9680, 4326, 209023, 1598, 8, 4, false}, // WGS 84 / TM 90 NE
    {9696, 1304, 161289, geographic, 19, 25, false}, // REDGEOMIN
    {9697, 9696, 161299, 1410, 1459, 4, false}, // REDGEOMIN / UTM zone 12S
    {9698, 9696, 161316, 1416, 1888, 4, false}, // REDGEOMIN / UTM zone 18S
    {9699, 9696, 161333, 1417, 1882, 4, false}, // REDGEOMIN / UTM zone 19S
    {9702, 1305, 41399, geographic, 84, 25, false}, // ETRF2000-PL
    {9709, 4617, 111700, 1332, 938, 4, false}, // NAD83(CSRS) / UTM zone 23N
    {9712, 4269, 99283, 1333, 2538, 4, false}, // NAD83 / UTM zone 24N
    {9713, 4617, 111711, 1333, 2538, 4, false}, // NAD83(CSRS) / UTM zone 24N
    {9716, 4670, 66005, 1343, 2174, 4, false}, // IGM95 / UTM zone 34N
    {9739, 1308, 39560, geographic, 2539, 25, false}, // EOS21-IRF
    {9741, 9739, 39524, 865, 2539, 4, false}, // EOS21 Grid
    {9748, 6318, 99971, 866, 939, 8, false}, // NAD83(2011) / Alabama East (ftUS)
    {9749, 6318, 99997, 867, 940, 8, false}, // NAD83(2011) / Alabama West (ftUS)
    {9755, 1309, 204595, geographic, 109, 25, false}, // WGS 84 (G2139)
    {9758, 1310, 38596, geographic, 2540, 25, false}, // ECML14_NB-IRF
    {9761, 9758, 38552, 868, 2540, 4, false}, // ECML14_NB Grid
    {9763, 1311, 43909, geographic, 2541, 25, false}, // EWR2-IRF
    {9766, 9763, 43875, 869, 2541, 4, false}, // EWR2 Grid
    {9777, 1312, 161952, geographic, 36, 25, false}, // RGF93 v2
    {9779, 1312, 161977, geographic, 36, 24, false}, // RGF93 v2 (lon-lat)
    {9782, 1313, 162137, geographic, 36, 25, false}, // RGF93 v2b
    {9784, 1313, 162164, geographic, 36, 24, false}, // RGF93 v2b (lon-lat)
    {9793, 9777, 162119, 2080, 36, 4, false}, // RGF93 v2 / Lambert-93
    {9794, 9782, 162316, 2080, 36, 4, false}, // RGF93 v2b / Lambert-93
    {9821, 5561, 188534, 870, 2552, 5, false}, // UCS-2000 / LCS-32 Kyiv region
    {9822, 9777, 161993, 2086, 1696, 4, false}, // RGF93 v2 / CC42
    {9823, 9777, 162007, 2087, 1697, 4, false}, // RGF93 v2 / CC43
    {9824, 9777, 162021, 2088, 1698, 4, false}, // RGF93 v2 / CC44
    {9825, 9777, 162035, 2089, 1699, 4, false}, // RGF93 v2 / CC45
    {9826, 9777, 162049, 2090, 1700, 4, false}, // RGF93 v2 / CC46
    {9827, 9777, 162063, 2091, 1701, 4, false}, // RGF93 v2 / CC47
    {9828, 9777, 162077, 2092, 1702, 4, false}, // RGF93 v2 / CC48
    {9829, 9777, 162091, 2093, 1703, 4, false}, // RGF93 v2 / CC49
    {9830, 9777, 162105, 2094, 1704, 4, false}, // RGF93 v2 / CC50
    {9831, 5561, 188342, 871, 2567, 5, false}, // UCS-2000 / LCS-01 Crimea
    {9832, 5561, 188360, 872, 2562, 5, false}, // UCS-2000 / LCS-05 Vinnytsia
    {9833, 5561, 188381, 873, 2563, 5, false}, // UCS-2000 / LCS-07 Volyn
    {9834, 5561, 188398, 874, 2546, 5, false}, // UCS-2000 / LCS-12 Dnipropetrovsk
    {9835, 5561, 188424, 875, 2547, 5, false}, // UCS-2000 / LCS-14 Donetsk
    {9836, 5561, 188442, 876, 2566, 5, false}, // UCS-2000 / LCS-18 Zhytomyr
    {9837, 5561, 188462, 877, 2564, 5, false}, // UCS-2000 / LCS-21 Zakarpattia
    {9838, 5561, 188484, 878, 2565, 5, false}, // UCS-2000 / LCS-23 Zaporizhzhia
    {9839, 5561, 188508, 879, 2548, 5, false}, // UCS-2000 / LCS-26 Ivano-Frankivsk
    {9840, 5561, 188554, 880, 2553, 5, false}, // UCS-2000 / LCS-35 Kirovohrad
    {9841, 5561, 188575, 881, 2554, 5, false}, // UCS-2000 / LCS-44 Luhansk
    {9842, 9782, 162181, 2086, 1696, 4, false}, // RGF93 v2b / CC42
    {9843, 9782, 162196, 2087, 1697, 4, false}, // RGF93 v2b / CC43
    {9844, 9782, 162211, 2088, 1698, 4, false}, // RGF93 v2b / CC44
    {9845, 9782, 162226, 2089, 1699, 4, false}, // RGF93 v2b / CC45
    {9846, 9782, 162241, 2090, 1700, 4, false}, // RGF93 v2b / CC46
    {9847, 9782, 162256, 2091, 1701, 4, false}, // RGF93 v2b / CC47
    {9848, 9782, 162271, 2092, 1702, 4, false}, // RGF93 v2b / CC48
    {9849, 9782, 162286, 2093, 1703, 4, false}, // RGF93 v2b / CC49
    {9850, 9782, 162301, 2094, 1704, 4, false}, // RGF93 v2b / CC50
    {9851, 5561, 188594, 882, 2555, 5, false}, // UCS-2000 / LCS-46 Lviv
    {9852, 5561, 188611, 883, 2556, 5, false}, // UCS-2000 / LCS-48 Mykolaiv
    {9853, 5561, 188631, 884, 2557, 5, false}, // UCS-2000 / LCS-51 Odessa
    {9854, 5561, 188649, 885, 2558, 5, false}, // UCS-2000 / LCS-53 Poltava
    {9855, 5561, 188668, 886, 2559, 5, false}, // UCS-2000 / LCS-56 Rivne
    {9856, 5561, 188686, 887, 2560, 5, false}, // UCS-2000 / LCS-59 Sumy
    {9857, 5561, 188702, 888, 2561, 5, false}, // UCS-2000 / LCS-61 Ternopil
    {9858, 5561, 188721, 889, 2549, 5, false}, // UCS-2000 / LCS-63 Kharkiv
    {9859, 5561, 188740, 890, 2550, 5, false}, // UCS-2000 / LCS-65 Kherson
    {9860, 5561, 188757, 886, 2551, 5, false}, // UCS-2000 / LCS-68 Khmelnytsky
    {9861, 5561, 188780, 891, 2543, 5, false}, // UCS-2000 / LCS-71 Cherkasy
    {9862, 5561, 188798, 892, 2545, 5, false}, // UCS-2000 / LCS-73 Chernivtsi
    {9863, 5561, 188819, 893, 2544, 5, false}, // UCS-2000 / LCS-74 Chernihiv
    {9864, 5561, 188839, 870, 2542, 5, false}, // UCS-2000 / LCS-80 Kyiv city
    {9865, 5561, 188860, 894, 2568, 5, false}, // UCS-2000 / LCS-85 Sevastopol
    {9866, 1314, 85535, geographic, 2569, 25, false}, // MRH21-IRF
    {9869, 9866, 85499, 895, 2569, 4, false}, // MRH21 Grid
    {9871, 1315, 85339, geographic, 2572, 25, false}, // MOLDOR11-IRF
    {9874, 5546, 140317, 896, 2570, 4, false}, // PNG94 / PNGMG94 zone 57
    {9875, 5546, 140334, 897, 2571, 4, false}, // PNG94 / PNGMG94 zone 58
    {9880, 9871, 85299, 898, 2572, 4, false}, // MOLDOR11 Grid
    {9895, 4181, 79983, 899, 61, 5, false}, // LUREF / Luxembourg TM (3D)
    {9939, 1319, 38530, geographic, 2573, 25, false}, // EBBWV14-IRF
    {9943, 9939, 38490, 901, 2573, 4, false}, // EBBWV14 Grid
    {9945, 3906, 86093, 900, 63, 4, false}, // Macedonia State Coordinate System truncated
    {9947, 5324, 67009, 902, 44, 4, false}, // ISN2004 / LAEA Iceland
    {9964, 1317, 63281, geographic, 2574, 25, false}, // HULLEE13-IRF
    {9967, 9964, 63239, 903, 2574, 4, false}, // HULLEE13 Grid
    {9969, 1320, 168860, geographic, 2576, 25, false}, // SCM22-IRF
    {9972, 9969, 168826, 904, 2576, 4, false}, // SCM22 Grid
    {9974, 1321, 47693, geographic, 2575, 25, false}, // FNL22-IRF
    {9977, 9974, 47657, 905, 2575, 4, false}, // FNL22 Grid
    {9990, 1322, 67367, geographic, 109, 25, false}, // ITRF2020
    {20002, 20033, 85869, 910, 2577, 4, false}, // MWC18 Grid
    {20004, 4200, 159732, 1475, 549, 5, false}, // Pulkovo 1995 / Gauss-Kruger zone 4
    {20005, 4200, 159756, 1476, 550, 5, false}, // Pulkovo 1995 / Gauss-Kruger zone 5
    {20006, 4200, 159780, 1477, 551, 5, false}, // Pulkovo 1995 / Gauss-Kruger zone 6
    {20007, 4200, 159804, 1478, 552, 5, false}, // Pulkovo 1995 / Gauss-Kruger zone 7
    {20008, 4200, 159828, 1479, 553, 5, false}, // Pulkovo 1995 / Gauss-Kruger zone 8
    {20009, 4200, 159852, 1480, 554, 5, false}, // Pulkovo 1995 / Gauss-Kruger zone 9
    {20010, 4200, 159157, 1481, 555, 5, false}, // Pulkovo 1995 / Gauss-Kruger zone 10
    {20011, 4200, 159182, 1482, 556, 5, false}, // Pulkovo 1995 / Gauss-Kruger zone 11
    {20012, 4200, 159207, 1483, 557, 5, false}, // Pulkovo 1995 / Gauss-Kruger zone 12
    {20013, 4200, 159232, 1484, 558, 5, false}, // Pulkovo 1995 / Gauss-Kruger zone 13
    {20014, 4200, 159257, 1485, 559, 5, false}, // Pulkovo 1995 / Gauss-Kruger zone 14
    {20015, 4200, 159282, 1486, 560, 5, false}, // Pulkovo 1995 / Gauss-Kruger zone 15
    {20016, 4200, 159307, 1487, 561, 5, false}, // Pulkovo 1995 / Gauss-Kruger zone 16
    {20017, 4200, 159332, 1488, 562, 5, false}, // Pulkovo 1995 / Gauss-Kruger zone 17
    {20018, 4200, 159357, 1489, 563, 5, false}, // Pulkovo 1995 / Gauss-Kruger zone 18
    {20019, 4200, 159382, 1490, 564, 5, false}, // Pulkovo 1995 / Gauss-Kruger zone 19
    {20020, 4200, 159407, 1491, 565, 5, false}, // Pulkovo 1995 / Gauss-Kruger zone 20
    {20021, 4200, 159432, 1492, 566, 5, false}, // Pulkovo 1995 / Gauss-Kruger zone 21
    {20022, 4200, 159457, 1493, 567, 5, false}, // Pulkovo 1995 / Gauss-Kruger zone 22
    {20023, 4200, 159482, 1494, 568, 5, false}, // Pulkovo 1995 / Gauss-Kruger zone 23
    {20024, 4200, 159507, 1495, 569, 5, false}, // Pulkovo 1995 / Gauss-Kruger zone 24
    {20025, 4200, 159532, 1496, 570, 5, false}, // Pulkovo 1995 / Gauss-Kruger zone 25
    {20026, 4200, 159557, 1497, 571, 5, false}, // Pulkovo 1995 / Gauss-Kruger zone 26
    {20027, 4200, 159582, 1498, 572, 5, false}, // Pulkovo 1995 / Gauss-Kruger zone 27
    {20028, 4200, 159607, 1499, 573, 5, false}, // Pulkovo 1995 / Gauss-Kruger zone 28
    {20029, 4200, 159632, 1500, 574, 5, false}, // Pulkovo 1995 / Gauss-Kruger zone 29
    {20030, 4200, 159657, 1501, 575, 5, false}, // Pulkovo 1995 / Gauss-Kruger zone 30
    {20031, 4200, 159682, 1502, 576, 5, false}, // Pulkovo 1995 / Gauss-Kruger zone 31
    {20032, 4200, 159707, 1503, 577, 5, false}, // Pulkovo 1995 / Gauss-Kruger zone 32
    {20033, 1324, 85905, geographic, 2577, 25, false}, // MWC18-IRF
    {20041, 1327, 170952, geographic, 19, 25, false}, // SIRGAS-Chile 2021
    {20042, 20041, 170967, 1410, 2578, 4, false}, // SIRGAS-Chile 2021 / UTM zone 12S
    {20047, 7844, 51552, 913, 1298, 4, false}, // GDA2020 / BCSG2020
    {20048, 20041, 170989, 1416, 1888, 4, false}, // SIRGAS-Chile 2021 / UTM zone 18S
    {20049, 20041, 171011, 1417, 1882, 4, false}, // SIRGAS-Chile 2021 / UTM zone 19S
    {20050, 6318, 100114, 914, 2579, 6, false}, // NAD83(2011) / Amtrak NECCS21 (ft)
    {20064, 4200, 158184, 1545, 549, 5, true}, // Pulkovo 1995 / Gauss-Kruger 4N
    {20065, 4200, 158209, 1546, 550, 5, true}, // Pulkovo 1995 / Gauss-Kruger 5N
    {20066, 4200, 158234, 1547, 551, 5, true}, // Pulkovo 1995 / Gauss-Kruger 6N
    {20067, 4200, 158259, 1548, 552, 5, true}, // Pulkovo 1995 / Gauss-Kruger 7N
    {20068, 4200, 158284, 1549, 553, 5, true}, // Pulkovo 1995 / Gauss-Kruger 8N
    {20069, 4200, 158309, 1550, 554, 5, true}, // Pulkovo 1995 / Gauss-Kruger 9N
    {20070, 4200, 157589, 1551, 555, 5, true}, // Pulkovo 1995 / Gauss-Kruger 10N
    {20071, 4200, 157614, 1552, 556, 5, true}, // Pulkovo 1995 / Gauss-Kruger 11N
    {20072, 4200, 157640, 1553, 557, 5, true}, // Pulkovo 1995 / Gauss-Kruger 12N
    {20073, 4200, 157666, 1554, 558, 5, true}, // Pulkovo 1995 / Gauss-Kruger 13N
    {20074, 4200, 157692, 1555, 559, 5, true}, // Pulkovo 1995 / Gauss-Kruger 14N
    {20075, 4200, 157718, 1556, 560, 5, true}, // Pulkovo 1995 / Gauss-Kruger 15N
    {20076, 4200, 157744, 1557, 561, 5, true}, // Pulkovo 1995 / Gauss-Kruger 16N
    {20077, 4200, 157770, 1558, 562, 5, true}, // Pulkovo 1995 / Gauss-Kruger 17N
    {20078, 4200, 157796, 1559, 563, 5, true}, // Pulkovo 1995 / Gauss-Kruger 18N
    {20079, 4200, 157822, 1560, 564, 5, true}, // Pulkovo 1995 / Gauss-Kruger 19N
    {20080, 4200, 157848, 1561, 565, 5, true}, // Pulkovo 1995 / Gauss-Kruger 20N
    {20081, 4200, 157873, 1562, 566, 5, true}, // Pulkovo 1995 / Gauss-Kruger 21N
    {20082, 4200, 157899, 1563, 567, 5, true}, // Pulkovo 1995 / Gauss-Kruger 22N
    {20083, 4200, 157925, 1564, 568, 5, true}, // Pulkovo 1995 / Gauss-Kruger 23N
    {20084, 4200, 157951, 1565, 569, 5, true}, // Pulkovo 1995 / Gauss-Kruger 24N
    {20085, 4200, 157977, 1566, 570, 5, true}, // Pulkovo 1995 / Gauss-Kruger 25N
    {20086, 4200, 158003, 1567, 571, 5, true}, // Pulkovo 1995 / Gauss-Kruger 26N
    {20087, 4200, 158029, 1568, 572, 5, true}, // Pulkovo 1995 / Gauss-Kruger 27N
    {20088, 4200, 158055, 1569, 573, 5, true}, // Pulkovo 1995 / Gauss-Kruger 28N
    {20089, 4200, 158081, 1570, 574, 5, true}, // Pulkovo 1995 / Gauss-Kruger 29N
    {20090, 4200, 158107, 1571, 575, 5, true}, // Pulkovo 1995 / Gauss-Kruger 30N
    {20091, 4200, 158132, 1572, 576, 5, true}, // Pulkovo 1995 / Gauss-Kruger 31N
    {20092, 4200, 158158, 1573, 577, 5, true}, // Pulkovo 1995 / Gauss-Kruger 32N
    {20135, 4201, 4476, 1344, 1243, 4, false}, // Adindan / UTM zone 35N
    {20136, 4201, 4489, 1345, 1242, 4, false}, // Adindan / UTM zone 36N
    {20137, 4201, 4502, 1346, 347, 4, false}, // Adindan / UTM zone 37N
    {20138, 4201, 4515, 1347, 348, 4, false}, // Adindan / UTM zone 38N
    {20248, 4202, 3393, 1893, 351, 4, true}, // AGD66 / AMG zone 48
    {20249, 4202, 3406, 1894, 352, 4, false}, // AGD66 / AMG zone 49
    {20250, 4202, 3419, 1895, 353, 4, false}, // AGD66 / AMG zone 50
    {20251, 4202, 3432, 1896, 354, 4, false}, // AGD66 / AMG zone 51
    {20252, 4202, 3445, 1897, 355, 4, false}, // AGD66 / AMG zone 52
    {20253, 4202, 3458, 1898, 356, 4, false}, // AGD66 / AMG zone 53
    {20254, 4202, 3471, 1899, 362, 4, false}, // AGD66 / AMG zone 54
    {20255, 4202, 3484, 1900, 363, 4, false}, // AGD66 / AMG zone 55
    {20256, 4202, 3497, 1901, 1070, 4, false}, // AGD66 / AMG zone 56
    {20257, 4202, 3510, 1902, 360, 4, false}, // AGD66 / AMG zone 57
    {20258, 4202, 3523, 1903, 361, 4, false}, // AGD66 / AMG zone 58
    {20348, 4203, 3561, 1893, 351, 4, true}, // AGD84 / AMG zone 48
    {20349, 4203, 3574, 1894, 352, 4, false}, // AGD84 / AMG zone 49
    {20350, 4203, 3587, 1895, 353, 4, false}, // AGD84 / AMG zone 50
    {20351, 4203, 3600, 1896, 354, 4, false}, // AGD84 / AMG zone 51
    {20352, 4203, 3613, 1897, 1810, 4, false}, // AGD84 / AMG zone 52
    {20353, 4203, 3626, 1898, 1811, 4, false}, // AGD84 / AMG zone 53
    {20354, 4203, 3639, 1899, 1812, 4, false}, // AGD84 / AMG zone 54
    {20355, 4203, 3652, 1900, 1813, 4, false}, // AGD84 / AMG zone 55
    {20356, 4203, 3665, 1901, 1814, 4, false}, // AGD84 / AMG zone 56
    {20357, 4203, 3678, 1902, 360, 4, true}, // AGD84 / AMG zone 57
    {20358, 4203, 3691, 1903, 361, 4, true}, // AGD84 / AMG zone 58
    {20436, 4204, 5251, 1345, 1407, 4, false}, // Ain el Abd / UTM zone 36N
    {20437, 4204, 5267, 1346, 364, 4, false}, // Ain el Abd / UTM zone 37N
    {20438, 4204, 5283, 1347, 366, 4, false}, // Ain el Abd / UTM zone 38N
    {20439, 4204, 5299, 1348, 365, 4, false}, // Ain el Abd / UTM zone 39N
    {20440, 4204, 5315, 1349, 1406, 4, false}, // Ain el Abd / UTM zone 40N
    {20499, 4204, 5233, 2293, 1966, 4, false}, // Ain el Abd / Bahrain Grid
    {20538, 4205, 4569, 1347, 349, 4, false}, // Afgooye / UTM zone 38N
    {20539, 4205, 4584, 1348, 350, 4, false}, // Afgooye / UTM zone 39N
    {20790, 4803, 81483, 2325, 129, 4, false}, // Lisbon (Lisbon) / Portuguese National Grid
    {20791, 4803, 81461, 2357, 129, 4, false}, // Lisbon (Lisbon) / Portuguese Grid
    {20822, 4208, 10029, 1420, 367, 4, false}, // Aratu / UTM zone 22S
    {20823, 4208, 10040, 1421, 368, 4, false}, // Aratu / UTM zone 23S
    {20824, 4208, 10051, 1422, 369, 4, false}, // Aratu / UTM zone 24S
    {20904, 7683, 59905, 1475, 549, 5, false}, // GSK-2011 / Gauss-Kruger zone 4
    {20905, 7683, 59924, 1476, 550, 5, false}, // GSK-2011 / Gauss-Kruger zone 5
    {20906, 7683, 59943, 1477, 551, 5, false}, // GSK-2011 / Gauss-Kruger zone 6
    {20907, 7683, 59962, 1478, 552, 5, false}, // GSK-2011 / Gauss-Kruger zone 7
    {20908, 7683, 59981, 1479, 553, 5, false}, // GSK-2011 / Gauss-Kruger zone 8
    {20909, 7683, 60000, 1480, 554, 5, false}, // GSK-2011 / Gauss-Kruger zone 9
    {20910, 7683, 59445, 1481, 555, 5, false}, // GSK-2011 / Gauss-Kruger zone 10
    {20911, 7683, 59465, 1482, 556, 5, false}, // GSK-2011 / Gauss-Kruger zone 11
    {20912, 7683, 59485, 1483, 557, 5, false}, // GSK-2011 / Gauss-Kruger zone 12
    {20913, 7683, 59505, 1484, 558, 5, false}, // GSK-2011 / Gauss-Kruger zone 13
    {20914, 7683, 59525, 1485, 559, 5, false}, // GSK-2011 / Gauss-Kruger zone 14
    {20915, 7683, 59545, 1486, 560, 5, false}, // GSK-2011 / Gauss-Kruger zone 15
    {20916, 7683, 59565, 1487, 561, 5, false}, // GSK-2011 / Gauss-Kruger zone 16
    {20917, 7683, 59585, 1488, 562, 5, false}, // GSK-2011 / Gauss-Kruger zone 17
    {20918, 7683, 59605, 1489, 563, 5, false}, // GSK-2011 / Gauss-Kruger zone 18
    {20919, 7683, 59625, 1490, 564, 5, false}, // GSK-2011 / Gauss-Kruger zone 19
    {20920, 7683, 59645, 1491, 565, 5, false}, // GSK-2011 / Gauss-Kruger zone 20
    {20921, 7683, 59665, 1492, 566, 5, false}, // GSK-2011 / Gauss-Kruger zone 21
    {20922, 7683, 59685, 1493, 567, 5, false}, // GSK-2011 / Gauss-Kruger zone 22
    {20923, 7683, 59705, 1494, 568, 5, false}, // GSK-2011 / Gauss-Kruger zone 23
    {20924, 7683, 59725, 1495, 569, 5, false}, // GSK-2011 / Gauss-Kruger zone 24
    {20925, 7683, 59745, 1496, 570, 5, false}, // GSK-2011 / Gauss-Kruger zone 25
    {20926, 7683, 59765, 1497, 571, 5, false}, // GSK-2011 / Gauss-Kruger zone 26
    {20927, 7683, 59785, 1498, 572, 5, false}, // GSK-2011 / Gauss-Kruger zone 27
    {20928, 7683, 59805, 1499, 573, 5, false}, // GSK-2011 / Gauss-Kruger zone 28
    {20929, 7683, 59825, 1500, 574, 5, false}, // GSK-2011 / Gauss-Kruger zone 29
    {20930, 7683, 59845, 1501, 575, 5, false}, // GSK-2011 / Gauss-Kruger zone 30
    {20931, 7683, 59865, 1502, 576, 5, false}, // GSK-2011 / Gauss-Kruger zone 31
    {20932, 7683, 59885, 1503, 577, 5, false}, // GSK-2011 / Gauss-Kruger zone 32
    {20934, 4209, 10097, 1432, 370, 4, false}, // Arc 1950 / UTM zone 34S
    {20935, 4209, 10110, 1433, 371, 4, false}, // Arc 1950 / UTM zone 35S
    {20936, 4209, 10123, 1434, 372, 4, false}, // Arc 1950 / UTM zone 36S
    {21004, 7683, 59124, 1545, 549, 5, false}, // GSK-2011 / Gauss-Kruger CM 21E
    {21005, 7683, 59147, 1546, 550, 5, false}, // GSK-2011 / Gauss-Kruger CM 27E
    {21006, 7683, 59169, 1547, 551, 5, false}, // GSK-2011 / Gauss-Kruger CM 33E
    {21007, 7683, 59192, 1548, 552, 5, false}, // GSK-2011 / Gauss-Kruger CM 39E
    {21008, 7683, 59215, 1549, 553, 5, false}, // GSK-2011 / Gauss-Kruger CM 45E
    {21009, 7683, 59238, 1550, 554, 5, false}, // GSK-2011 / Gauss-Kruger CM 51E
    {21010, 7683, 59261, 1551, 555, 5, false}, // GSK-2011 / Gauss-Kruger CM 57E
    {21011, 7683, 59284, 1552, 556, 5, false}, // GSK-2011 / Gauss-Kruger CM 63E
    {21012, 7683, 59307, 1553, 557, 5, false}, // GSK-2011 / Gauss-Kruger CM 69E
    {21013, 7683, 59330, 1554, 558, 5, false}, // GSK-2011 / Gauss-Kruger CM 75E
    {21014, 7683, 59353, 1555, 559, 5, false}, // GSK-2011 / Gauss-Kruger CM 81E
    {21015, 7683, 59376, 1556, 560, 5, false}, // GSK-2011 / Gauss-Kruger CM 87E
    {21016, 7683, 59399, 1557, 561, 5, false}, // GSK-2011 / Gauss-Kruger CM 93E
    {21017, 7683, 59422, 1558, 562, 5, false}, // GSK-2011 / Gauss-Kruger CM 99E
    {21018, 7683, 58767, 1559, 563, 5, false}, // GSK-2011 / Gauss-Kruger CM 105E
    {21019, 7683, 58790, 1560, 564, 5, false}, // GSK-2011 / Gauss-Kruger CM 111E
    {21020, 7683, 58813, 1561, 565, 5, false}, // GSK-2011 / Gauss-Kruger CM 117E
    {21021, 7683, 58836, 1562, 566, 5, false}, // GSK-2011 / Gauss-Kruger CM 123E
    {21022, 7683, 58860, 1563, 567, 5, false}, // GSK-2011 / Gauss-Kruger CM 129E
    {21023, 7683, 58884, 1564, 568, 5, false}, // GSK-2011 / Gauss-Kruger CM 135E
    {21024, 7683, 58908, 1565, 569, 5, false}, // GSK-2011 / Gauss-Kruger CM 141E
    {21025, 7683, 58932, 1566, 570, 5, false}, // GSK-2011 / Gauss-Kruger CM 147E
    {21026, 7683, 58956, 1567, 571, 5, false}, // GSK-2011 / Gauss-Kruger CM 153E
    {21027, 7683, 58980, 1568, 572, 5, false}, // GSK-2011 / Gauss-Kruger CM 159E
    {21028, 7683, 59004, 1569, 573, 5, false}, // GSK-2011 / Gauss-Kruger CM 165E
    {21029, 7683, 59028, 1570, 574, 5, false}, // GSK-2011 / Gauss-Kruger CM 171E
    {21030, 7683, 59076, 1571, 575, 5, false}, // GSK-2011 / Gauss-Kruger CM 177E
    {21031, 7683, 59100, 1572, 576, 5, false}, // GSK-2011 / Gauss-Kruger CM 177W
    {21032, 7683, 59052, 1573, 577, 5, false}, // GSK-2011 / Gauss-Kruger CM 171W
    {21035, 4210, 10155, 1433, 374, 4, false}, // Arc 1960 / UTM zone 35S
    {21036, 4210, 10181, 1434, 376, 4, false}, // Arc 1960 / UTM zone 36S
    {21037, 4210, 10207, 1435, 378, 4, false}, // Arc 1960 / UTM zone 37S
    {21095, 4210, 10142, 1344, 373, 4, false}, // Arc 1960 / UTM zone 35N
    {21096, 4210, 10168, 1345, 375, 4, false}, // Arc 1960 / UTM zone 36N
    {21097, 4210, 10194, 1346, 377, 4, false}, // Arc 1960 / UTM zone 37N
    {21100, 4813, 18665, 2298, 122, 4, true}, // Batavia (Jakarta) / NEIEZ
    {21148, 4211, 18711, 1446, 379, 4, false}, // Batavia / UTM zone 48S
    {21149, 4211, 18725, 1447, 381, 4, false}, // Batavia / UTM zone 49S
    {21150, 4211, 18739, 1448, 380, 4, false}, // Batavia / UTM zone 50S
    {21207, 7683, 58719, 1607, 1191, 5, false}, // GSK-2011 / GSK 3GK zone 7
    {21208, 7683, 58735, 1608, 1192, 5, false}, // GSK-2011 / GSK 3GK zone 8
    {21209, 7683, 58751, 1609, 1193, 5, false}, // GSK-2011 / GSK 3GK zone 9
    {21210, 7683, 57784, 1610, 1194, 5, false}, // GSK-2011 / GSK 3GK zone 10
    {21211, 7683, 57801, 1611, 1195, 5, false}, // GSK-2011 / GSK 3GK zone 11
    {21212, 7683, 57818, 1612, 1196, 5, false}, // GSK-2011 / GSK 3GK zone 12
    {21213, 7683, 57835, 1613, 1197, 5, false}, // GSK-2011 / GSK 3GK zone 13
    {21214, 7683, 57852, 1614, 1198, 5, false}, // GSK-2011 / GSK 3GK zone 14
    {21215, 7683, 57869, 1615, 1199, 5, false}, // GSK-2011 / GSK 3GK zone 15
    {21216, 7683, 57886, 1616, 1200, 5, false}, // GSK-2011 / GSK 3GK zone 16
    {21217, 7683, 57903, 1617, 1201, 5, false}, // GSK-2011 / GSK 3GK zone 17
    {21218, 7683, 57920, 1618, 1202, 5, false}, // GSK-2011 / GSK 3GK zone 18
    {21219, 7683, 57937, 1619, 1203, 5, false}, // GSK-2011 / GSK 3GK zone 19
    {21220, 7683, 57954, 1620, 1204, 5, false}, // GSK-2011 / GSK 3GK zone 20
    {21221, 7683, 57971, 1621, 1205, 5, false}, // GSK-2011 / GSK 3GK zone 21
    {21222, 7683, 57988, 1622, 1206, 5, false}, // GSK-2011 / GSK 3GK zone 22
    {21223, 7683, 58005, 1623, 1207, 5, false}, // GSK-2011 / GSK 3GK zone 23
    {21224, 7683, 58022, 1624, 1208, 5, false}, // GSK-2011 / GSK 3GK zone 24
    {21225, 7683, 58039, 1625, 1209, 5, false}, // GSK-2011 / GSK 3GK zone 25
    {21226, 7683, 58056, 1626, 1210, 5, false}, // GSK-2011 / GSK 3GK zone 26
    {21227, 7683, 58073, 1627, 1211, 5, false}, // GSK-2011 / GSK 3GK zone 27
    {21228, 7683, 58090, 1628, 1212, 5, false}, // GSK-2011 / GSK 3GK zone 28
    {21229, 7683, 58107, 1629, 1213, 5, false}, // GSK-2011 / GSK 3GK zone 29
    {21230, 7683, 58124, 1630, 1135, 5, false}, // GSK-2011 / GSK 3GK zone 30
    {21231, 7683, 58141, 1631, 1136, 5, false}, // GSK-2011 / GSK 3GK zone 31
    {21232, 7683, 58158, 1632, 1137, 5, false}, // GSK-2011 / GSK 3GK zone 32
    {21233, 7683, 58175, 1633, 1138, 5, false}, // GSK-2011 / GSK 3GK zone 33
    {21234, 7683, 58192, 1634, 1139, 5, false}, // GSK-2011 / GSK 3GK zone 34
    {21235, 7683, 58209, 1635, 1140, 5, false}, // GSK-2011 / GSK 3GK zone 35
    {21236, 7683, 58226, 1636, 1141, 5, false}, // GSK-2011 / GSK 3GK zone 36
    {21237, 7683, 58243, 1637, 1142, 5, false}, // GSK-2011 / GSK 3GK zone 37
    {21238, 7683, 58260, 1638, 1143, 5, false}, // GSK-2011 / GSK 3GK zone 38
    {21239, 7683, 58277, 1639, 1144, 5, false}, // GSK-2011 / GSK 3GK zone 39
    {21240, 7683, 58294, 1640, 1145, 5, false}, // GSK-2011 / GSK 3GK zone 40
    {21241, 7683, 58311, 1641, 1146, 5, false}, // GSK-2011 / GSK 3GK zone 41
    {21242, 7683, 58328, 1642, 1147, 5, false}, // GSK-2011 / GSK 3GK zone 42
    {21243, 7683, 58345, 1643, 1148, 5, false}, // GSK-2011 / GSK 3GK zone 43
    {21244, 7683, 58362, 1644, 1149, 5, false}, // GSK-2011 / GSK 3GK zone 44
    {21245, 7683, 58379, 1645, 1150, 5, false}, // GSK-2011 / GSK 3GK zone 45
    {21246, 7683, 58396, 1646, 1151, 5, false}, // GSK-2011 / GSK 3GK zone 46
    {21247, 7683, 58413, 1647, 1152, 5, false}, // GSK-2011 / GSK 3GK zone 47
    {21248, 7683, 58430, 1648, 1153, 5, false}, // GSK-2011 / GSK 3GK zone 48
    {21249, 7683, 58447, 1649, 1154, 5, false}, // GSK-2011 / GSK 3GK zone 49
    {21250, 7683, 58464, 1650, 1155, 5, false}, // GSK-2011 / GSK 3GK zone 50
    {21251, 7683, 58481, 1651, 1156, 5, false}, // GSK-2011 / GSK 3GK zone 51
    {21252, 7683, 58498, 1652, 1157, 5, false}, // GSK-2011 / GSK 3GK zone 52
    {21253, 7683, 58515, 1653, 1158, 5, false}, // GSK-2011 / GSK 3GK zone 53
    {21254, 7683, 58532, 1654, 1159, 5, false}, // GSK-2011 / GSK 3GK zone 54
    {21255, 7683, 58549, 1655, 1160, 5, false}, // GSK-2011 / GSK 3GK zone 55
    {21256, 7683, 58566, 1656, 1161, 5, false}, // GSK-2011 / GSK 3GK zone 56
    {21257, 7683, 58583, 1657, 1162, 5, false}, // GSK-2011 / GSK 3GK zone 57
    {21258, 7683, 58600, 1658, 1163, 5, false}, // GSK-2011 / GSK 3GK zone 58
    {21259, 7683, 58617, 1659, 1164, 5, false}, // GSK-2011 / GSK 3GK zone 59
    {21260, 7683, 58634, 1660, 1165, 5, false}, // GSK-2011 / GSK 3GK zone 60
    {21261, 7683, 58651, 1661, 1166, 5, false}, // GSK-2011 / GSK 3GK zone 61
    {21262, 7683, 58668, 1662, 1167, 5, false}, // GSK-2011 / GSK 3GK zone 62
    {21263, 7683, 58685, 1663, 1168, 5, false}, // GSK-2011 / GSK 3GK zone 63
    {21264, 7683, 58702, 1664, 1169, 5, false}, // GSK-2011 / GSK 3GK zone 64
    {21291, 4212, 18450, 2331, 1480, 4, false}, // Barbados 1938 / British West Indies Grid
    {21292, 4212, 18425, 2332, 1480, 4, false}, // Barbados 1938 / Barbados National Grid
    {21307, 7683, 57246, 1668, 1191, 5, false}, // GSK-2011 / GSK 3GK CM 21E
    {21308, 7683, 57266, 1669, 1192, 5, false}, // GSK-2011 / GSK 3GK CM 24E
    {21309, 7683, 57286, 1670, 1193, 5, false}, // GSK-2011 / GSK 3GK CM 27E
    {21310, 7683, 57305, 1671, 1194, 5, false}, // GSK-2011 / GSK 3GK CM 30E
    {21311, 7683, 57324, 1672, 1195, 5, false}, // GSK-2011 / GSK 3GK CM 33E
    {21312, 7683, 57344, 1673, 1196, 5, false}, // GSK-2011 / GSK 3GK CM 36E
    {21313, 7683, 57364, 1674, 1197, 5, false}, // GSK-2011 / GSK 3GK CM 39E
    {21314, 7683, 57384, 1675, 1198, 5, false}, // GSK-2011 / GSK 3GK CM 42E
    {21315, 7683, 57404, 1676, 1199, 5, false}, // GSK-2011 / GSK 3GK CM 45E
    {21316, 7683, 57424, 1677, 1200, 5, false}, // GSK-2011 / GSK 3GK CM 48E
    {21317, 7683, 57444, 1678, 1201, 5, false}, // GSK-2011 / GSK 3GK CM 51E
    {21318, 7683, 57464, 1679, 1202, 5, false}, // GSK-2011 / GSK 3GK CM 54E
    {21319, 7683, 57484, 1680, 1203, 5, false}, // GSK-2011 / GSK 3GK CM 57E
    {21320, 7683, 57504, 1681, 1204, 5, false}, // GSK-2011 / GSK 3GK CM 60E
    {21321, 7683, 57524, 1682, 1205, 5, false}, // GSK-2011 / GSK 3GK CM 63E
    {21322, 7683, 57544, 1683, 1206, 5, false}, // GSK-2011 / GSK 3GK CM 66E
    {21323, 7683, 57564, 1684, 1207, 5, false}, // GSK-2011 / GSK 3GK CM 69E
    {21324, 7683, 57584, 1685, 1208, 5, false}, // GSK-2011 / GSK 3GK CM 72E
    {21325, 7683, 57604, 1686, 1209, 5, false}, // GSK-2011 / GSK 3GK CM 75E
    {21326, 7683, 57624, 1687, 1210, 5, false}, // GSK-2011 / GSK 3GK CM 78E
    {21327, 7683, 57644, 1688, 1211, 5, false}, // GSK-2011 / GSK 3GK CM 81E
    {21328, 7683, 57664, 1689, 1212, 5, false}, // GSK-2011 / GSK 3GK CM 84E
    {21329, 7683, 57684, 1690, 1213, 5, false}, // GSK-2011 / GSK 3GK CM 87E
    {21330, 7683, 57704, 1691, 1135, 5, false}, // GSK-2011 / GSK 3GK CM 90E
    {21331, 7683, 57724, 1692, 1136, 5, false}, // GSK-2011 / GSK 3GK CM 93E
    {21332, 7683, 57744, 1693, 1137, 5, false}, // GSK-2011 / GSK 3GK CM 96E
    {21333, 7683, 57764, 1694, 1138, 5, false}, // GSK-2011 / GSK 3GK CM 99E
    {21334, 7683, 56602, 1695, 1139, 5, false}, // GSK-2011 / GSK 3GK CM 102E
    {21335, 7683, 56622, 1696, 1140, 5, false}, // GSK-2011 / GSK 3GK CM 105E
    {21336, 7683, 56642, 1697, 1141, 5, false}, // GSK-2011 / GSK 3GK CM 108E
    {21337, 7683, 56662, 1698, 1142, 5, false}, // GSK-2011 / GSK 3GK CM 111E
    {21338, 7683, 56682, 1699, 1143, 5, false}, // GSK-2011 / GSK 3GK CM 114E
    {21339, 7683, 56702, 1700, 1144, 5, false}, // GSK-2011 / GSK 3GK CM 117E
    {21340, 7683, 56722, 1701, 1145, 5, false}, // GSK-2011 / GSK 3GK CM 120E
    {21341, 7683, 56742, 1702, 1146, 5, false}, // GSK-2011 / GSK 3GK CM 123E
    {21342, 7683, 56763, 1703, 1147, 5, false}, // GSK-2011 / GSK 3GK CM 126E
    {21343, 7683, 56784, 1704, 1148, 5, false}, // GSK-2011 / GSK 3GK CM 129E
    {21344, 7683, 56805, 1705, 1149, 5, false}, // GSK-2011 / GSK 3GK CM 132E
    {21345, 7683, 56826, 1706, 1150, 5, false}, // GSK-2011 / GSK 3GK CM 135E
    {21346, 7683, 56847, 1707, 1151, 5, false}, // GSK-2011 / GSK 3GK CM 138E
    {21347, 7683, 56868, 1708, 1152, 5, false}, // GSK-2011 / GSK 3GK CM 141E
    {21348, 7683, 56889, 1709, 1153, 5, false}, // GSK-2011 / GSK 3GK CM 144E
    {21349, 7683, 56910, 1710, 1154, 5, false}, // GSK-2011 / GSK 3GK CM 147E
    {21350, 7683, 56931, 1711, 1155, 5, false}, // GSK-2011 / GSK 3GK CM 150E
    {21351, 7683, 56952, 1712, 1156, 5, false}, // GSK-2011 / GSK 3GK CM 153E
    {21352, 7683, 56973, 1713, 1157, 5, false}, // GSK-2011 / GSK 3GK CM 156E
    {21353, 7683, 56994, 1714, 1158, 5, false}, // GSK-2011 / GSK 3GK CM 159E
    {21354, 7683, 57015, 1715, 1159, 5, false}, // GSK-2011 / GSK 3GK CM 162E
    {21355, 7683, 57036, 1716, 1160, 5, false}, // GSK-2011 / GSK 3GK CM 165E
    {21356, 7683, 57057, 1717, 1161, 5, false}, // GSK-2011 / GSK 3GK CM 168E
    {21357, 7683, 57099, 1718, 1162, 5, false}, // GSK-2011 / GSK 3GK CM 171E
    {21358, 7683, 57141, 1719, 1163, 5, false}, // GSK-2011 / GSK 3GK CM 174E
    {21359, 7683, 57183, 1720, 1164, 5, false}, // GSK-2011 / GSK 3GK CM 177E
    {21360, 7683, 57225, 1721, 1165, 5, false}, // GSK-2011 / GSK 3GK CM 180E
    {21361, 7683, 57204, 1722, 1166, 5, false}, // GSK-2011 / GSK 3GK CM 177W
    {21362, 7683, 57162, 1723, 1167, 5, false}, // GSK-2011 / GSK 3GK CM 174W
    {21363, 7683, 57120, 1724, 1168, 5, false}, // GSK-2011 / GSK 3GK CM 171W
    {21364, 7683, 57078, 1725, 1169, 5, false}, // GSK-2011 / GSK 3GK CM 168W
    {21413, 4214, 20917, 1484, 382, 5, false}, // Beijing 1954 / Gauss-Kruger zone 13
    {21414, 4214, 20941, 1485, 383, 5, false}, // Beijing 1954 / Gauss-Kruger zone 14
    {21415, 4214, 20965, 1486, 384, 5, false}, // Beijing 1954 / Gauss-Kruger zone 15
    {21416, 4214, 20989, 1487, 385, 5, false}, // Beijing 1954 / Gauss-Kruger zone 16
    {21417, 4214, 21013, 1488, 386, 5, false}, // Beijing 1954 / Gauss-Kruger zone 17
    {21418, 4214, 21037, 1489, 387, 5, false}, // Beijing 1954 / Gauss-Kruger zone 18
    {21419, 4214, 21061, 1490, 388, 5, false}, // Beijing 1954 / Gauss-Kruger zone 19
    {21420, 4214, 21085, 1491, 389, 5, false}, // Beijing 1954 / Gauss-Kruger zone 20
    {21421, 4214, 21109, 1492, 390, 5, false}, // Beijing 1954 / Gauss-Kruger zone 21
    {21422, 4214, 21133, 1493, 391, 5, false}, // Beijing 1954 / Gauss-Kruger zone 22
    {21423, 4214, 21157, 1494, 392, 5, false}, // Beijing 1954 / Gauss-Kruger zone 23
    {21453, 4214, 20782, 1554, 382, 5, false}, // Beijing 1954 / Gauss-Kruger CM 75E
    {21454, 4214, 20809, 1555, 383, 5, false}, // Beijing 1954 / Gauss-Kruger CM 81E
    {21455, 4214, 20836, 1556, 384, 5, false}, // Beijing 1954 / Gauss-Kruger CM 87E
    {21456, 4214, 20863, 1557, 385, 5, false}, // Beijing 1954 / Gauss-Kruger CM 93E
    {21457, 4214, 20890, 1558, 386, 5, false}, // Beijing 1954 / Gauss-Kruger CM 99E
    {21458, 4214, 20617, 1559, 387, 5, false}, // Beijing 1954 / Gauss-Kruger CM 105E
    {21459, 4214, 20644, 1560, 388, 5, false}, // Beijing 1954 / Gauss-Kruger CM 111E
    {21460, 4214, 20671, 1561, 389, 5, false}, // Beijing 1954 / Gauss-Kruger CM 117E
    {21461, 4214, 20698, 1562, 390, 5, false}, // Beijing 1954 / Gauss-Kruger CM 123E
    {21462, 4214, 20726, 1563, 391, 5, false}, // Beijing 1954 / Gauss-Kruger CM 129E
    {21463, 4214, 20754, 1564, 392, 5, false}, // Beijing 1954 / Gauss-Kruger CM 135E
    {21473, 4214, 20343, 1554, 382, 5, true}, // Beijing 1954 / Gauss-Kruger 13N
    {21474, 4214, 20368, 1555, 383, 5, true}, // Beijing 1954 / Gauss-Kruger 14N
    {21475, 4214, 20393, 1556, 384, 5, true}, // Beijing 1954 / Gauss-Kruger 15N
    {21476, 4214, 20418, 1557, 385, 5, true}, // Beijing 1954 / Gauss-Kruger 16N
    {21477, 4214, 20443, 1558, 386, 5, true}, // Beijing 1954 / Gauss-Kruger 17N
    {21478, 4214, 20468, 1559, 387, 5, true}, // Beijing 1954 / Gauss-Kruger 18N
    {21479, 4214, 20493, 1560, 388, 5, true}, // Beijing 1954 / Gauss-Kruger 19N
    {21480, 4214, 20518, 1561, 389, 5, true}, // Beijing 1954 / Gauss-Kruger 20N
    {21481, 4214, 20542, 1562, 390, 5, true}, // Beijing 1954 / Gauss-Kruger 21N
    {21482, 4214, 20567, 1563, 391, 5, true}, // Beijing 1954 / Gauss-Kruger 22N
    {21483, 4214, 20592, 1564, 392, 5, true}, // Beijing 1954 / Gauss-Kruger 23N
    {21500, 4809, 17541, 2294, 172, 4, false}, // BD50 (Brussels) / Belge Lambert 50
    {21780, 4801, 21611, 2313, 123, 4, false}, // Bern 1898 (Bern) / LV03C
    {21781, 4149, 26208, 2312, 123, 4, false}, // CH1903 / LV03
    {21782, 4149, 26219, 2237, 59, 4, false}, // CH1903 / LV03C-G
    {21817, 4218, 22658, 1326, 397, 4, true}, // Bogota 1975 / UTM zone 17N
    {21818, 4218, 22674, 1327, 398, 4, false}, // Bogota 1975 / UTM zone 18N
    {21891, 4218, 22639, 2059, 393, 4, true}, // Bogota 1975 / Colombia West zone
    {21892, 4218, 22558, 2060, 394, 4, true}, // Bogota 1975 / Colombia Bogota zone
    {21893, 4218, 22598, 2061, 395, 4, true}, // Bogota 1975 / Colombia East Central zone
    {21894, 4218, 22580, 2062, 396, 4, true}, // Bogota 1975 / Colombia East
    {21896, 4218, 22639, 2059, 393, 5, false}, // Bogota 1975 / Colombia West zone
    {21897, 4218, 22558, 2060, 394, 5, false}, // Bogota 1975 / Colombia Bogota zone
    {21898, 4218, 22598, 2061, 395, 5, false}, // Bogota 1975 / Colombia East Central zone
    {21899, 4218, 22620, 2062, 396, 5, false}, // Bogota 1975 / Colombia East zone
    {22032, 4220, 27238, 1430, 401, 4, false}, // Camacupa 1948 / UTM zone 32S
    {22033, 4220, 27256, 1431, 402, 4, false}, // Camacupa 1948 / UTM zone 33S
    {22091, 4220, 27201, 1601, 400, 4, false}, // Camacupa 1948 / TM 11.30 SE
    {22092, 4220, 27220, 1602, 399, 4, false}, // Camacupa 1948 / TM 12 SE
    {22171, 4190, 140716, 2043, 403, 5, false}, // POSGAR 98 / Argentina 1
    {22172, 4190, 140733, 2044, 404, 5, false}, // POSGAR 98 / Argentina 2
    {22173, 4190, 140750, 2045, 405, 5, false}, // POSGAR 98 / Argentina 3
    {22174, 4190, 140767, 2046, 406, 5, false}, // POSGAR 98 / Argentina 4
    {22175, 4190, 140784, 2047, 407, 5, false}, // POSGAR 98 / Argentina 5
    {22176, 4190, 140801, 2048, 408, 5, false}, // POSGAR 98 / Argentina 6
    {22177, 4190, 140818, 2049, 409, 5, false}, // POSGAR 98 / Argentina 7
    {22181, 4694, 140588, 2043, 403, 5, false}, // POSGAR 94 / Argentina 1
    {22182, 4694, 140605, 2044, 404, 5, false}, // POSGAR 94 / Argentina 2
    {22183, 4694, 140622, 2045, 405, 5, false}, // POSGAR 94 / Argentina 3
    {22184, 4694, 140639, 2046, 406, 5, false}, // POSGAR 94 / Argentina 4
    {22185, 4694, 140656, 2047, 407, 5, false}, // POSGAR 94 / Argentina 5
    {22186, 4694, 140673, 2048, 408, 5, false}, // POSGAR 94 / Argentina 6
    {22187, 4694, 140690, 2049, 409, 5, false}, // POSGAR 94 / Argentina 7
    {22191, 4221, 27415, 2043, 403, 5, false}, // Campo Inchauspe / Argentina 1
    {22192, 4221, 27435, 2044, 2520, 5, false}, // Campo Inchauspe / Argentina 2
    {22193, 4221, 27455, 2045, 2521, 5, false}, // Campo Inchauspe / Argentina 3
    {22194, 4221, 27475, 2046, 2522, 5, false}, // Campo Inchauspe / Argentina 4
    {22195, 4221, 27495, 2047, 407, 5, false}, // Campo Inchauspe / Argentina 5
    {22196, 4221, 27515, 2048, 408, 5, false}, // Campo Inchauspe / Argentina 6
    {22197, 4221, 27535, 2049, 409, 5, false}, // Campo Inchauspe / Argentina 7
    {22207, 8237, 112223, 1316, 1587, 4, false}, // NAD83(CSRS)v2 / UTM zone 7N
    {22208, 8237, 112236, 1317, 1588, 4, false}, // NAD83(CSRS)v2 / UTM zone 8N
    {22209, 8237, 112249, 1318, 1589, 4, false}, // NAD83(CSRS)v2 / UTM zone 9N
    {22210, 8237, 112043, 1319, 1590, 4, false}, // NAD83(CSRS)v2 / UTM zone 10N
    {22211, 8237, 112056, 1320, 1686, 4, false}, // NAD83(CSRS)v2 / UTM zone 11N
    {22212, 8237, 112070, 1321, 1685, 4, false}, // NAD83(CSRS)v2 / UTM zone 12N
    {22213, 8237, 112084, 1322, 1684, 4, false}, // NAD83(CSRS)v2 / UTM zone 13N
    {22214, 8237, 112098, 1323, 1591, 4, false}, // NAD83(CSRS)v2 / UTM zone 14N
    {22215, 8237, 112112, 1324, 1592, 4, false}, // NAD83(CSRS)v2 / UTM zone 15N
    {22216, 8237, 112126, 1325, 1593, 4, false}, // NAD83(CSRS)v2 / UTM zone 16N
    {22217, 8237, 112140, 1326, 1594, 4, false}, // NAD83(CSRS)v2 / UTM zone 17N
    {22218, 8237, 112154, 1327, 1595, 4, false}, // NAD83(CSRS)v2 / UTM zone 18N
    {22219, 8237, 112168, 1328, 1682, 4, false}, // NAD83(CSRS)v2 / UTM zone 19N
    {22220, 8237, 112182, 1329, 1683, 4, false}, // NAD83(CSRS)v2 / UTM zone 20N
    {22221, 8237, 112195, 1330, 936, 4, false}, // NAD83(CSRS)v2 / UTM zone 21N
    {22222, 8237, 112209, 1331, 937, 4, false}, // NAD83(CSRS)v2 / UTM zone 22N
    {22234, 4222, 29207, 1432, 410, 4, false}, // Cape / UTM zone 34S
    {22235, 4222, 29219, 1433, 412, 4, false}, // Cape / UTM zone 35S
    {22236, 4222, 29231, 1434, 411, 4, true}, // Cape / UTM zone 36S
    {22239, 8237, 111910, 2349, 329, 4, false}, // NAD83(CSRS)v2 / PEI Stereographic
    {22240, 8237, 111891, 2335, 245, 5, false}, // NAD83(CSRS)v2 / NB Stereographic
    {22243, 8237, 111945, 1925, 244, 4, false}, // NAD83(CSRS)v2 / SCoPQ zone 3
    {22244, 8237, 111959, 1926, 220, 4, false}, // NAD83(CSRS)v2 / SCoPQ zone 4
    {22245, 8237, 111973, 1927, 221, 4, false}, // NAD83(CSRS)v2 / SCoPQ zone 5
    {22246, 8237, 111987, 1928, 222, 4, false}, // NAD83(CSRS)v2 / SCoPQ zone 6
    {22247, 8237, 112001, 1929, 223, 4, false}, // NAD83(CSRS)v2 / SCoPQ zone 7
    {22248, 8237, 112015, 1930, 224, 4, false}, // NAD83(CSRS)v2 / SCoPQ zone 8
    {22249, 8237, 112029, 1931, 225, 4, false}, // NAD83(CSRS)v2 / SCoPQ zone 9
    {22250, 8237, 111930, 1932, 226, 4, false}, // NAD83(CSRS)v2 / SCoPQ zone 10
    {22262, 8237, 111779, 1940, 1694, 4, false}, // NAD83(CSRS)v2 / Alberta 3TM ref merid 111 W
    {22263, 8237, 111807, 1941, 1693, 4, false}, // NAD83(CSRS)v2 / Alberta 3TM ref merid 114 W
    {22264, 8237, 111835, 1942, 1692, 4, false}, // NAD83(CSRS)v2 / Alberta 3TM ref merid 117 W
    {22265, 8237, 111863, 1944, 1691, 4, false}, // NAD83(CSRS)v2 / Alberta 3TM ref merid 120 W
    {22275, 4222, 29107, 1904, 252, 0, false}, // Cape / Lo15
    {22277, 4222, 29117, 1905, 253, 0, false}, // Cape / Lo17
    {22279, 4222, 29127, 1906, 254, 0, false}, // Cape / Lo19
    {22281, 4222, 29137, 1907, 255, 0, false}, // Cape / Lo21
    {22283, 4222, 29147, 1908, 256, 0, false}, // Cape / Lo23
    {22285, 4222, 29157, 1909, 257, 0, false}, // Cape / Lo25
    {22287, 4222, 29167, 1910, 258, 0, false}, // Cape / Lo27
    {22289, 4222, 29177, 1911, 259, 0, false}, // Cape / Lo29
    {22291, 4222, 29187, 1912, 260, 0, false}, // Cape / Lo31
    {22293, 4222, 29197, 1913, 261, 0, false}, // Cape / Lo33
    {22300, 4816, 29526, 2326, 413, 12, false}, // Carthage (Paris) / Tunisia Mining Grid
    {22307, 8240, 112611, 1316, 1587, 4, false}, // NAD83(CSRS)v3 / UTM zone 7N
    {22308, 8240, 112624, 1317, 1588, 4, false}, // NAD83(CSRS)v3 / UTM zone 8N
    {22309, 8240, 112637, 1318, 1589, 4, false}, // NAD83(CSRS)v3 / UTM zone 9N
    {22310, 8240, 112431, 1319, 1590, 4, false}, // NAD83(CSRS)v3 / UTM zone 10N
    {22311, 8240, 112444, 1320, 1686, 4, false}, // NAD83(CSRS)v3 / UTM zone 11N
    {22312, 8240, 112458, 1321, 1685, 4, false}, // NAD83(CSRS)v3 / UTM zone 12N
    {22313, 8240, 112472, 1322, 1684, 4, false}, // NAD83(CSRS)v3 / UTM zone 13N
    {22314, 8240, 112486, 1323, 1591, 4, false}, // NAD83(CSRS)v3 / UTM zone 14N
    {22315, 8240, 112500, 1324, 1592, 4, false}, // NAD83(CSRS)v3 / UTM zone 15N
    {22316, 8240, 112514, 1325, 1593, 4, false}, // NAD83(CSRS)v3 / UTM zone 16N
    {22317, 8240, 112528, 1326, 1594, 4, false}, // NAD83(CSRS)v3 / UTM zone 17N
    {22318, 8240, 112542, 1327, 1595, 4, false}, // NAD83(CSRS)v3 / UTM zone 18N
    {22319, 8240, 112556, 1328, 1682, 4, false}, // NAD83(CSRS)v3 / UTM zone 19N
    {22320, 8240, 112570, 1329, 1683, 4, false}, // NAD83(CSRS)v3 / UTM zone 20N
    {22321, 8240, 112583, 1330, 936, 4, false}, // NAD83(CSRS)v3 / UTM zone 21N
    {22322, 8240, 112597, 1331, 937, 4, false}, // NAD83(CSRS)v3 / UTM zone 22N
    {22332, 4223, 29600, 1341, 286, 4, false}, // Carthage / UTM zone 32N
    {22337, 8240, 112286, 907, 331, 4, false}, // NAD83(CSRS)v3 / MTM NS 1997 zone 5
    {22338, 8240, 112269, 906, 330, 4, false}, // NAD83(CSRS)v3 / MTM NS 1997 zone 4
    {22348, 8240, 112407, 1930, 227, 4, false}, // NAD83(CSRS)v3 / MTM zone 8
    {22349, 8240, 112419, 1931, 228, 4, false}, // NAD83(CSRS)v3 / MTM zone 9
    {22350, 8240, 112303, 1932, 229, 4, false}, // NAD83(CSRS)v3 / MTM zone 10
    {22351, 8240, 112316, 1933, 230, 4, false}, // NAD83(CSRS)v3 / MTM zone 11
    {22352, 8240, 112329, 1934, 231, 4, false}, // NAD83(CSRS)v3 / MTM zone 12
    {22353, 8240, 112342, 1935, 232, 4, false}, // NAD83(CSRS)v3 / MTM zone 13
    {22354, 8240, 112355, 1936, 233, 4, false}, // NAD83(CSRS)v3 / MTM zone 14
    {22355, 8240, 112368, 1937, 234, 4, false}, // NAD83(CSRS)v3 / MTM zone 15
    {22356, 8240, 112381, 1938, 235, 4, false}, // NAD83(CSRS)v3 / MTM zone 16
    {22357, 8240, 112394, 1939, 236, 4, false}, // NAD83(CSRS)v3 / MTM zone 17
    {22391, 4223, 29551, 2122, 414, 4, false}, // Carthage / Nord Tunisie
    {22392, 4223, 29568, 2123, 415, 4, false}, // Carthage / Sud Tunisie
    {22407, 8246, 112949, 1316, 1587, 4, false}, // NAD83(CSRS)v4 / UTM zone 7N
    {22408, 8246, 112962, 1317, 1588, 4, false}, // NAD83(CSRS)v4 / UTM zone 8N
    {22409, 8246, 112975, 1318, 1589, 4, false}, // NAD83(CSRS)v4 / UTM zone 9N
    {22410, 8246, 112769, 1319, 1590, 4, false}, // NAD83(CSRS)v4 / UTM zone 10N
    {22411, 8246, 112782, 1320, 1686, 4, false}, // NAD83(CSRS)v4 / UTM zone 11N
    {22412, 8246, 112796, 1321, 1685, 4, false}, // NAD83(CSRS)v4 / UTM zone 12N
    {22413, 8246, 112810, 1322, 1684, 4, false}, // NAD83(CSRS)v4 / UTM zone 13N
    {22414, 8246, 112824, 1323, 1591, 4, false}, // NAD83(CSRS)v4 / UTM zone 14N
    {22415, 8246, 112838, 1324, 1592, 4, false}, // NAD83(CSRS)v4 / UTM zone 15N
    {22416, 8246, 112852, 1325, 1593, 4, false}, // NAD83(CSRS)v4 / UTM zone 16N
    {22417, 8246, 112866, 1326, 1594, 4, false}, // NAD83(CSRS)v4 / UTM zone 17N
    {22418, 8246, 112880, 1327, 1595, 4, false}, // NAD83(CSRS)v4 / UTM zone 18N
    {22419, 8246, 112894, 1328, 1682, 4, false}, // NAD83(CSRS)v4 / UTM zone 19N
    {22420, 8246, 112908, 1329, 1683, 4, false}, // NAD83(CSRS)v4 / UTM zone 20N
    {22421, 8246, 112921, 1330, 936, 4, false}, // NAD83(CSRS)v4 / UTM zone 21N
    {22422, 8246, 112935, 1331, 937, 4, false}, // NAD83(CSRS)v4 / UTM zone 22N
    {22462, 8246, 112657, 1940, 1694, 4, false}, // NAD83(CSRS)v4 / Alberta 3TM ref merid 111 W
    {22463, 8246, 112685, 1941, 1693, 4, false}, // NAD83(CSRS)v4 / Alberta 3TM ref merid 114 W
    {22464, 8246, 112713, 1942, 1692, 4, false}, // NAD83(CSRS)v4 / Alberta 3TM ref merid 117 W
    {22465, 8246, 112741, 1944, 1691, 4, false}, // NAD83(CSRS)v4 / Alberta 3TM ref merid 120 W
    {22521, 4225, 34198, 1419, 1543, 4, false}, // Corrego Alegre 1970-72 / UTM zone 21S
    {22522, 4225, 34222, 1420, 1448, 4, false}, // Corrego Alegre 1970-72 / UTM zone 22S
    {22523, 4225, 34246, 1421, 1449, 4, false}, // Corrego Alegre 1970-72 / UTM zone 23S
    {22524, 4225, 34270, 1422, 604, 4, false}, // Corrego Alegre 1970-72 / UTM zone 24S
    {22525, 4225, 34294, 1423, 1450, 4, false}, // Corrego Alegre 1970-72 / UTM zone 25S
    {22607, 8252, 113436, 1316, 1587, 4, false}, // NAD83(CSRS)v6 / UTM zone 7N
    {22608, 8252, 113449, 1317, 1588, 4, false}, // NAD83(CSRS)v6 / UTM zone 8N
    {22609, 8252, 113462, 1318, 1589, 4, false}, // NAD83(CSRS)v6 / UTM zone 9N
    {22610, 8252, 113256, 1319, 1590, 4, false}, // NAD83(CSRS)v6 / UTM zone 10N
    {22611, 8252, 113269, 1320, 1686, 4, false}, // NAD83(CSRS)v6 / UTM zone 11N
    {22612, 8252, 113283, 1321, 1685, 4, false}, // NAD83(CSRS)v6 / UTM zone 12N
    {22613, 8252, 113297, 1322, 1684, 4, false}, // NAD83(CSRS)v6 / UTM zone 13N
    {22614, 8252, 113311, 1323, 1591, 4, false}, // NAD83(CSRS)v6 / UTM zone 14N
    {22615, 8252, 113325, 1324, 1592, 4, false}, // NAD83(CSRS)v6 / UTM zone 15N
    {22616, 8252, 113339, 1325, 1593, 4, false}, // NAD83(CSRS)v6 / UTM zone 16N
    {22617, 8252, 113353, 1326, 1594, 4, false}, // NAD83(CSRS)v6 / UTM zone 17N
    {22618, 8252, 113367, 1327, 1595, 4, false}, // NAD83(CSRS)v6 / UTM zone 18N
    {22619, 8252, 113381, 1328, 1682, 4, false}, // NAD83(CSRS)v6 / UTM zone 19N
    {22620, 8252, 113395, 1329, 1683, 4, false}, // NAD83(CSRS)v6 / UTM zone 20N
    {22621, 8252, 113408, 1330, 936, 4, false}, // NAD83(CSRS)v6 / UTM zone 21N
    {22622, 8252, 113422, 1331, 937, 4, false}, // NAD83(CSRS)v6 / UTM zone 22N
    {22639, 8252, 113236, 2349, 329, 4, false}, // NAD83(CSRS)v6 / PEI Stereographic
    {22641, 8252, 113036, 1923, 1011, 4, false}, // NAD83(CSRS)v6 / MTM zone 1
    {22642, 8252, 113152, 1924, 1012, 4, false}, // NAD83(CSRS)v6 / MTM zone 2
    {22643, 8252, 113164, 1925, 1060, 4, false}, // NAD83(CSRS)v6 / MTM zone 3
    {22644, 8252, 113176, 1926, 1930, 4, false}, // NAD83(CSRS)v6 / MTM zone 4
    {22645, 8252, 113188, 1927, 1920, 4, false}, // NAD83(CSRS)v6 / MTM zone 5
    {22646, 8252, 113200, 1928, 1934, 4, false}, // NAD83(CSRS)v6 / MTM zone 6
    {22648, 8252, 113212, 1930, 227, 4, false}, // NAD83(CSRS)v6 / MTM zone 8
    {22649, 8252, 113224, 1931, 228, 4, false}, // NAD83(CSRS)v6 / MTM zone 9
    {22650, 8252, 113048, 1932, 229, 4, false}, // NAD83(CSRS)v6 / MTM zone 10
    {22651, 8252, 113061, 1933, 230, 4, false}, // NAD83(CSRS)v6 / MTM zone 11
    {22652, 8252, 113074, 1934, 231, 4, false}, // NAD83(CSRS)v6 / MTM zone 12
    {22653, 8252, 113087, 1935, 232, 4, false}, // NAD83(CSRS)v6 / MTM zone 13
    {22654, 8252, 113100, 1936, 233, 4, false}, // NAD83(CSRS)v6 / MTM zone 14
    {22655, 8252, 113113, 1937, 234, 4, false}, // NAD83(CSRS)v6 / MTM zone 15
    {22656, 8252, 113126, 1938, 235, 4, false}, // NAD83(CSRS)v6 / MTM zone 16
    {22657, 8252, 113139, 1939, 236, 4, false}, // NAD83(CSRS)v6 / MTM zone 17
    {22700, 4227, 37620, 2329, 416, 4, false}, // Deir ez Zor / Levant Zone
    {22707, 8255, 113794, 1316, 1587, 4, false}, // NAD83(CSRS)v7 / UTM zone 7N
    {22708, 8255, 113807, 1317, 1588, 4, false}, // NAD83(CSRS)v7 / UTM zone 8N
    {22709, 8255, 113820, 1318, 1589, 4, false}, // NAD83(CSRS)v7 / UTM zone 9N
    {22710, 8255, 113614, 1319, 1590, 4, false}, // NAD83(CSRS)v7 / UTM zone 10N
    {22711, 8255, 113627, 1320, 1686, 4, false}, // NAD83(CSRS)v7 / UTM zone 11N
    {22712, 8255, 113641, 1321, 1685, 4, false}, // NAD83(CSRS)v7 / UTM zone 12N
    {22713, 8255, 113655, 1322, 1684, 4, false}, // NAD83(CSRS)v7 / UTM zone 13N
    {22714, 8255, 113669, 1323, 1591, 4, false}, // NAD83(CSRS)v7 / UTM zone 14N
    {22715, 8255, 113683, 1324, 1592, 4, false}, // NAD83(CSRS)v7 / UTM zone 15N
    {22716, 8255, 113697, 1325, 1593, 4, false}, // NAD83(CSRS)v7 / UTM zone 16N
    {22717, 8255, 113711, 1326, 1594, 4, false}, // NAD83(CSRS)v7 / UTM zone 17N
    {22718, 8255, 113725, 1327, 1595, 4, false}, // NAD83(CSRS)v7 / UTM zone 18N
    {22719, 8255, 113739, 1328, 1682, 4, false}, // NAD83(CSRS)v7 / UTM zone 19N
    {22720, 8255, 113753, 1329, 1683, 4, false}, // NAD83(CSRS)v7 / UTM zone 20N
    {22721, 8255, 113766, 1330, 936, 4, false}, // NAD83(CSRS)v7 / UTM zone 21N
    {22722, 8255, 113780, 1331, 937, 4, false}, // NAD83(CSRS)v7 / UTM zone 22N
    {22739, 8255, 113594, 2349, 329, 4, false}, // NAD83(CSRS)v7 / PEI Stereographic
    {22762, 8255, 113482, 1940, 1694, 4, false}, // NAD83(CSRS)v7 / Alberta 3TM ref merid 111 W
    {22763, 8255, 113510, 1941, 1693, 4, false}, // NAD83(CSRS)v7 / Alberta 3TM ref merid 114 W
    {22764, 8255, 113538, 1942, 1692, 4, false}, // NAD83(CSRS)v7 / Alberta 3TM ref merid 117 W
    {22765, 8255, 113566, 1944, 1691, 4, false}, // NAD83(CSRS)v7 / Alberta 3TM ref merid 120 W
    {22770, 4227, 37640, 2337, 416, 4, false}, // Deir ez Zor / Syria Lambert
    {22780, 4227, 37595, 2338, 416, 4, false}, // Deir ez Zor / Levant Stereographic
    {22832, 4228, 38207, 1341, 15, 4, true}, // Douala / UTM zone 32N
    {22991, 4229, 44231, 2072, 435, 4, false}, // Egypt 1907 / Blue Belt
    {22992, 4229, 44291, 2073, 436, 4, false}, // Egypt 1907 / Red Belt
    {22993, 4229, 44273, 2074, 437, 4, false}, // Egypt 1907 / Purple Belt
    {22994, 4229, 44248, 2075, 438, 4, false}, // Egypt 1907 / Extended Purple Belt
    {23028, 4230, 38967, 1337, 424, 4, false}, // ED50 / UTM zone 28N
    {23029, 4230, 38979, 1338, 425, 4, false}, // ED50 / UTM zone 29N
    {23030, 4230, 38991, 1339, 426, 4, false}, // ED50 / UTM zone 30N
    {23031, 4230, 39002, 1340, 427, 4, false}, // ED50 / UTM zone 31N
    {23032, 4230, 39014, 1341, 428, 4, false}, // ED50 / UTM zone 32N
    {23033, 4230, 39026, 1342, 429, 4, false}, // ED50 / UTM zone 33N
    {23034, 4230, 39038, 1343, 430, 4, false}, // ED50 / UTM zone 34N
    {23035, 4230, 39050, 1344, 431, 4, false}, // ED50 / UTM zone 35N
    {23036, 4230, 39062, 1345, 432, 4, false}, // ED50 / UTM zone 36N
    {23037, 4230, 39074, 1346, 433, 4, false}, // ED50 / UTM zone 37N
    {23038, 4230, 39086, 1347, 434, 4, false}, // ED50 / UTM zone 38N
    {23090, 4230, 38869, 1591, 422, 4, false}, // ED50 / TM 0 N
    {23095, 4230, 38880, 1592, 423, 4, false}, // ED50 / TM 5 NE
    {23239, 4232, 47716, 1348, 339, 4, false}, // Fahud / UTM zone 39N
    {23240, 4232, 47728, 1349, 2020, 4, false}, // Fahud / UTM zone 40N
    {23433, 4234, 60164, 1342, 15, 4, true}, // Garoua / UTM zone 33N
    {23700, 4237, 62979, 2321, 43, 4, false}, // HD72 / EOV
    {23830, 4755, 35402, 1877, 1996, 4, false}, // DGN95 / Indonesia TM-3 zone 46.2
    {23831, 4755, 35421, 1878, 1668, 4, false}, // DGN95 / Indonesia TM-3 zone 47.1
    {23832, 4755, 35440, 1879, 1669, 4, false}, // DGN95 / Indonesia TM-3 zone 47.2
    {23833, 4755, 35459, 1880, 1670, 4, false}, // DGN95 / Indonesia TM-3 zone 48.1
    {23834, 4755, 35478, 1881, 1671, 4, false}, // DGN95 / Indonesia TM-3 zone 48.2
    {23835, 4755, 35497, 1882, 1672, 4, false}, // DGN95 / Indonesia TM-3 zone 49.1
    {23836, 4755, 35516, 1883, 1673, 4, false}, // DGN95 / Indonesia TM-3 zone 49.2
    {23837, 4755, 35535, 1884, 1674, 4, false}, // DGN95 / Indonesia TM-3 zone 50.1
    {23838, 4755, 35554, 1885, 1675, 4, false}, // DGN95 / Indonesia TM-3 zone 50.2
    {23839, 4755, 35573, 1886, 1676, 4, false}, // DGN95 / Indonesia TM-3 zone 51.1
    {23840, 4755, 35592, 1887, 1677, 4, false}, // DGN95 / Indonesia TM-3 zone 51.2
    {23841, 4755, 35611, 1888, 1678, 4, false}, // DGN95 / Indonesia TM-3 zone 52.1
    {23842, 4755, 35630, 1889, 1679, 4, false}, // DGN95 / Indonesia TM-3 zone 52.2
    {23843, 4755, 35649, 1890, 1680, 4, false}, // DGN95 / Indonesia TM-3 zone 53.1
    {23844, 4755, 35668, 1891, 1681, 4, false}, // DGN95 / Indonesia TM-3 zone 53.2
    {23845, 4755, 35687, 1892, 1995, 4, false}, // DGN95 / Indonesia TM-3 zone 54.1
    {23846, 4238, 65164, 1355, 1996, 4, false}, // ID74 / UTM zone 46N
    {23847, 4238, 65188, 1356, 1998, 4, false}, // ID74 / UTM zone 47N
    {23848, 4238, 65212, 1357, 1999, 4, false}, // ID74 / UTM zone 48N
    {23849, 4238, 65236, 1358, 2000, 4, false}, // ID74 / UTM zone 49N
    {23850, 4238, 65260, 1359, 2001, 4, false}, // ID74 / UTM zone 50N
    {23851, 4238, 65284, 1360, 2003, 4, false}, // ID74 / UTM zone 51N
    {23852, 4238, 65308, 1361, 2004, 4, false}, // ID74 / UTM zone 52N
    {23853, 4238, 65332, 1362, 454, 4, true}, // ID74 / UTM zone 53N
    {23866, 4755, 35706, 1355, 440, 4, false}, // DGN95 / UTM zone 46N
    {23867, 4755, 35719, 1356, 442, 4, false}, // DGN95 / UTM zone 47N
    {23868, 4755, 35745, 1357, 444, 4, false}, // DGN95 / UTM zone 48N
    {23869, 4755, 35771, 1358, 446, 4, false}, // DGN95 / UTM zone 49N
    {23870, 4755, 35797, 1359, 448, 4, false}, // DGN95 / UTM zone 50N
    {23871, 4755, 35823, 1360, 450, 4, false}, // DGN95 / UTM zone 51N
    {23872, 4755, 35849, 1361, 452, 4, false}, // DGN95 / UTM zone 52N
    {23877, 4755, 35732, 1445, 443, 4, false}, // DGN95 / UTM zone 47S
    {23878, 4755, 35758, 1446, 445, 4, false}, // DGN95 / UTM zone 48S
    {23879, 4755, 35784, 1447, 447, 4, false}, // DGN95 / UTM zone 49S
    {23880, 4755, 35810, 1448, 449, 4, false}, // DGN95 / UTM zone 50S
    {23881, 4755, 35836, 1449, 451, 4, false}, // DGN95 / UTM zone 51S
    {23882, 4755, 35862, 1450, 453, 4, false}, // DGN95 / UTM zone 52S
    {23883, 4755, 35875, 1451, 455, 4, false}, // DGN95 / UTM zone 53S
    {23884, 4755, 35888, 1452, 456, 4, false}, // DGN95 / UTM zone 54S
    {23886, 4238, 65176, 1444, 441, 4, true}, // ID74 / UTM zone 46S
    {23887, 4238, 65200, 1445, 2005, 4, false}, // ID74 / UTM zone 47S
    {23888, 4238, 65224, 1446, 2006, 4, false}, // ID74 / UTM zone 48S
    {23889, 4238, 65248, 1447, 2007, 4, false}, // ID74 / UTM zone 49S
    {23890, 4238, 65272, 1448, 2008, 4, false}, // ID74 / UTM zone 50S
    {23891, 4238, 65296, 1449, 2009, 4, false}, // ID74 / UTM zone 51S
    {23892, 4238, 65320, 1450, 2010, 4, false}, // ID74 / UTM zone 52S
    {23893, 4238, 65344, 1451, 2011, 4, false}, // ID74 / UTM zone 53S
    {23894, 4238, 65356, 1452, 1995, 4, false}, // ID74 / UTM zone 54S
    {23946, 4239, 68761, 1355, 457, 4, false}, // Indian 1954 / UTM zone 46N
    {23947, 4239, 68774, 1356, 458, 4, false}, // Indian 1954 / UTM zone 47N
    {23948, 4239, 68787, 1357, 1825, 4, false}, // Indian 1954 / UTM zone 48N
    {24047, 4240, 68852, 1356, 460, 4, false}, // Indian 1975 / UTM zone 47N
    {24048, 4240, 68865, 1357, 459, 4, false}, // Indian 1975 / UTM zone 48N
    {24100, 4241, 73486, 2302, 1540, 9, false}, // Jamaica 1875 / Jamaica (Old Grid)
    {24200, 4242, 71875, 2303, 1540, 4, false}, // JAD69 / Jamaica National Grid
    {24305, 4144, 75329, 1354, 467, 4, false}, // Kalianpur 1937 / UTM zone 45N
    {24306, 4144, 75345, 1355, 468, 4, false}, // Kalianpur 1937 / UTM zone 46N
    {24311, 4145, 75400, 1350, 480, 4, false}, // Kalianpur 1962 / UTM zone 41N
    {24312, 4145, 75416, 1351, 481, 4, false}, // Kalianpur 1962 / UTM zone 42N
    {24313, 4145, 75432, 1352, 482, 4, false}, // Kalianpur 1962 / UTM zone 43N
    {24342, 4146, 75536, 1351, 472, 4, false}, // Kalianpur 1975 / UTM zone 42N
    {24343, 4146, 75552, 1352, 473, 4, false}, // Kalianpur 1975 / UTM zone 43N
    {24344, 4146, 75568, 1353, 474, 4, false}, // Kalianpur 1975 / UTM zone 44N
    {24345, 4146, 75584, 1354, 475, 4, false}, // Kalianpur 1975 / UTM zone 45N
    {24346, 4146, 75600, 1355, 476, 4, false}, // Kalianpur 1975 / UTM zone 46N
    {24347, 4146, 75616, 1356, 477, 4, false}, // Kalianpur 1975 / UTM zone 47N
    {24370, 4243, 75199, 2095, 461, 19, false}, // Kalianpur 1880 / India zone 0
    {24371, 4243, 75215, 2096, 462, 19, false}, // Kalianpur 1880 / India zone I
    {24372, 4243, 75250, 2097, 463, 19, false}, // Kalianpur 1880 / India zone IIa
    {24373, 4243, 75231, 2099, 465, 19, false}, // Kalianpur 1880 / India zone IIIa
    {24374, 4243, 75286, 2100, 466, 19, false}, // Kalianpur 1880 / India zone IVa
    {24375, 4144, 75313, 2163, 1479, 4, false}, // Kalianpur 1937 / India zone IIb
    {24376, 4145, 75370, 2161, 478, 4, false}, // Kalianpur 1962 / India zone I
    {24377, 4145, 75384, 2162, 479, 4, false}, // Kalianpur 1962 / India zone IIa
    {24378, 4146, 75457, 2156, 469, 4, false}, // Kalianpur 1975 / India zone I
    {24379, 4146, 75488, 2157, 470, 4, false}, // Kalianpur 1975 / India zone IIa
    {24380, 4146, 75504, 2160, 471, 4, false}, // Kalianpur 1975 / India zone IIb
    {24381, 4146, 75471, 2158, 465, 4, false}, // Kalianpur 1975 / India zone IIIa
    {24382, 4243, 75268, 2098, 464, 19, false}, // Kalianpur 1880 / India zone IIb
    {24383, 4146, 75520, 2159, 466, 4, false}, // Kalianpur 1975 / India zone IVa
    {24500, 4245, 77596, 2310, 90, 4, false}, // Kertau 1968 / Singapore Grid
    {24547, 4245, 77637, 1356, 484, 4, false}, // Kertau 1968 / UTM zone 47N
    {24548, 4245, 77653, 1357, 485, 4, false}, // Kertau 1968 / UTM zone 48N
    {24571, 4245, 77400, 2324, 483, 18, true}, // Kertau / R.S.O. Malaya (ch)
    {24600, 4246, 74911, 2299, 1504, 4, false}, // KOC Lambert
    {24718, 4247, 80034, 1327, 486, 4, false}, // La Canoa / UTM zone 18N
    {24719, 4247, 80048, 1328, 487, 4, false}, // La Canoa / UTM zone 19N
    {24720, 4247, 80062, 1329, 488, 4, false}, // La Canoa / UTM zone 20N
    {24817, 4248, 141129, 1326, 1411, 4, false}, // PSAD56 / UTM zone 17N
    {24818, 4248, 141153, 1327, 542, 4, false}, // PSAD56 / UTM zone 18N
    {24819, 4248, 141177, 1328, 544, 4, false}, // PSAD56 / UTM zone 19N
    {24820, 4248, 141201, 1329, 546, 4, false}, // PSAD56 / UTM zone 20N
    {24821, 4248, 141223, 1330, 548, 4, false}, // PSAD56 / UTM zone 21N
    {24877, 4248, 141141, 1415, 541, 4, false}, // PSAD56 / UTM zone 17S
    {24878, 4248, 141165, 1416, 543, 4, false}, // PSAD56 / UTM zone 18S
    {24879, 4248, 141189, 1417, 545, 4, false}, // PSAD56 / UTM zone 19S
    {24880, 4248, 141212, 1418, 547, 4, false}, // PSAD56 / UTM zone 20S
    {24881, 4248, 141235, 1419, 1823, 4, false}, // PSAD56 / UTM zone 21S
    {24882, 4248, 141247, 1420, 540, 4, false}, // PSAD56 / UTM zone 22S
    {24891, 4248, 141115, 2113, 539, 4, false}, // PSAD56 / Peru west zone
    {24892, 4248, 141086, 2114, 538, 4, false}, // PSAD56 / Peru central zone
    {24893, 4248, 141101, 2115, 537, 4, false}, // PSAD56 / Peru east zone
    {25000, 4250, 80924, 2297, 40, 4, false}, // Leigon / Ghana Metre Grid
    {25231, 4252, 82711, 1340, 98, 4, false}, // Lome / UTM zone 31N
    {25391, 4253, 82954, 2116, 1980, 4, false}, // Luzon 1911 / Philippines zone I
    {25392, 4253, 82971, 2117, 1986, 4, false}, // Luzon 1911 / Philippines zone II
    {25393, 4253, 82989, 2118, 1987, 4, false}, // Luzon 1911 / Philippines zone III
    {25394, 4253, 83008, 2119, 1988, 4, false}, // Luzon 1911 / Philippines zone IV
    {25395, 4253, 83026, 2120, 1989, 4, false}, // Luzon 1911 / Philippines zone V
    {25700, 4804, 86766, 2298, 147, 4, true}, // Makassar (Jakarta) / NEIEZ
    {25828, 4258, 43141, 1337, 907, 4, false}, // ETRS89 / UTM zone 28N
    {25829, 4258, 43172, 1338, 908, 4, false}, // ETRS89 / UTM zone 29N
    {25830, 4258, 43203, 1339, 909, 4, false}, // ETRS89 / UTM zone 30N
    {25831, 4258, 43232, 1340, 910, 4, false}, // ETRS89 / UTM zone 31N
    {25832, 4258, 43301, 1341, 911, 4, false}, // ETRS89 / UTM zone 32N
    {25833, 4258, 43370, 1342, 912, 4, false}, // ETRS89 / UTM zone 33N
    {25834, 4258, 175566, 1343, 913, 4, false}, // ETRS89 / UTM zone 34N
    {25835, 4258, 43457, 1344, 914, 4, false}, // ETRS89 / UTM zone 35N
    {25836, 4258, 43488, 1345, 915, 4, false}, // ETRS89 / UTM zone 36N
    {25837, 4258, 43519, 1346, 916, 4, false}, // ETRS89 / UTM zone 37N
    {25838, 4258, 43550, 1347, 917, 4, true}, // ETRS89 / UTM zone 38N
    {25884, 4258, 43050, 2328, 439, 5, false}, // ETRS89 / TM Baltic93
    {25932, 4259, 87206, 1430, 1452, 4, false}, // Malongo 1987 / UTM zone 32S
    {26191, 4261, 88727, 2103, 496, 4, false}, // Merchich / Nord Maroc
    {26192, 4261, 88783, 2104, 1223, 4, false}, // Merchich / Sud Maroc
    {26193, 4261, 88742, 2105, 497, 4, true}, // Merchich / Sahara
    {26194, 4261, 88754, 2106, 1224, 4, false}, // Merchich / Sahara Nord
    {26195, 4261, 88768, 2107, 1225, 4, false}, // Merchich / Sahara Sud
    {26237, 4262, 88235, 1346, 31, 4, false}, // Massawa / UTM zone 37N
    {26331, 4263, 90200, 1340, 508, 4, false}, // Minna / UTM zone 31N
    {26332, 4263, 90212, 1341, 1883, 4, false}, // Minna / UTM zone 32N
    {26391, 4263, 90184, 2110, 507, 4, false}, // Minna / Nigeria West Belt
    {26392, 4263, 90167, 2111, 506, 4, false}, // Minna / Nigeria Mid Belt
    {26393, 4263, 90151, 2112, 505, 4, false}, // Minna / Nigeria East Belt
    {26432, 4264, 89432, 1430, 148, 4, true}, // Mhast / UTM zone 32S
    {26591, 4806, 91587, 2101, 509, 4, true}, // Monte Mario (Rome) / Italy zone 1
    {26592, 4806, 91607, 2102, 510, 4, true}, // Monte Mario (Rome) / Italy zone 2
    {26632, 4266, 83098, 1341, 489, 4, false}, // M'poraloko / UTM zone 32N
    {26692, 4266, 83114, 1430, 490, 4, false}, // M'poraloko / UTM zone 32S
    {26701, 4267, 94670, 1310, 1556, 4, false}, // NAD27 / UTM zone 1N
    {26702, 4267, 94708, 1311, 1557, 4, false}, // NAD27 / UTM zone 2N
    {26703, 4267, 94717, 1312, 918, 4, false}, // NAD27 / UTM zone 3N
    {26704, 4267, 94726, 1313, 919, 4, false}, // NAD27 / UTM zone 4N
    {26705, 4267, 94745, 1314, 920, 4, false}, // NAD27 / UTM zone 5N
    {26706, 4267, 94764, 1315, 921, 4, false}, // NAD27 / UTM zone 6N
    {26707, 4267, 94773, 1316, 922, 4, false}, // NAD27 / UTM zone 7N
    {26708, 4267, 94782, 1317, 923, 4, false}, // NAD27 / UTM zone 8N
    {26709, 4267, 94791, 1318, 924, 4, false}, // NAD27 / UTM zone 9N
    {26710, 4267, 94571, 1319, 925, 4, false}, // NAD27 / UTM zone 10N
    {26711, 4267, 94580, 1320, 926, 4, false}, // NAD27 / UTM zone 11N
    {26712, 4267, 94590, 1321, 927, 4, false}, // NAD27 / UTM zone 12N
    {26713, 4267, 94600, 1322, 928, 4, false}, // NAD27 / UTM zone 13N
    {26714, 4267, 94610, 1323, 929, 4, false}, // NAD27 / UTM zone 14N
    {26715, 4267, 94620, 1324, 930, 4, false}, // NAD27 / UTM zone 15N
    {26716, 4267, 94630, 1325, 931, 4, false}, // NAD27 / UTM zone 16N
    {26717, 4267, 94640, 1326, 932, 4, false}, // NAD27 / UTM zone 17N
    {26718, 4267, 94650, 1327, 933, 4, false}, // NAD27 / UTM zone 18N
    {26719, 4267, 94660, 1328, 934, 4, false}, // NAD27 / UTM zone 19N
    {26720, 4267, 94679, 1329, 935, 4, false}, // NAD27 / UTM zone 20N
    {26721, 4267, 94688, 1330, 1940, 4, false}, // NAD27 / UTM zone 21N
    {26722, 4267, 94698, 1331, 937, 4, false}, // NAD27 / UTM zone 22N
    {26729, 4267, 92543, 908, 939, 8, false}, // NAD27 / Alabama East
    {26730, 4267, 92556, 909, 940, 8, false}, // NAD27 / Alabama West
    {26731, 4267, 92582, 1165, 941, 8, false}, // NAD27 / Alaska zone 1
    {26732, 4267, 92605, 1166, 943, 8, false}, // NAD27 / Alaska zone 2
    {26733, 4267, 92616, 1167, 944, 8, false}, // NAD27 / Alaska zone 3
    {26734, 4267, 92627, 1168, 945, 8, false}, // NAD27 / Alaska zone 4
    {26735, 4267, 92638, 1169, 946, 8, false}, // NAD27 / Alaska zone 5
    {26736, 4267, 92649, 1170, 947, 8, false}, // NAD27 / Alaska zone 6
    {26737, 4267, 92660, 1171, 948, 8, false}, // NAD27 / Alaska zone 7
    {26738, 4267, 92671, 1172, 949, 8, false}, // NAD27 / Alaska zone 8
    {26739, 4267, 92682, 1173, 950, 8, false}, // NAD27 / Alaska zone 9
    {26740, 4267, 92593, 1174, 942, 8, false}, // NAD27 / Alaska zone 10
    {26741, 4267, 93263, 925, 960, 8, false}, // NAD27 / California zone I
    {26742, 4267, 93276, 926, 961, 8, false}, // NAD27 / California zone II
    {26743, 4267, 93290, 927, 962, 8, false}, // NAD27 / California zone III
    {26744, 4267, 93305, 928, 963, 8, false}, // NAD27 / California zone IV
    {26745, 4267, 93319, 929, 964, 8, false}, // NAD27 / California zone V
    {26746, 4267, 93332, 930, 965, 8, false}, // NAD27 / California zone VI
    {26747, 4267, 93346, 931, 966, 8, true}, // NAD27 / California zone VII
    {26748, 4267, 92800, 915, 952, 8, false}, // NAD27 / Arizona East
    {26749, 4267, 92789, 916, 951, 8, false}, // NAD27 / Arizona Central
    {26750, 4267, 92811, 917, 953, 8, false}, // NAD27 / Arizona West
    {26751, 4267, 92822, 921, 954, 8, false}, // NAD27 / Arkansas North
    {26752, 4267, 92833, 922, 955, 8, false}, // NAD27 / Arkansas South
    {26753, 4267, 93373, 940, 969, 8, false}, // NAD27 / Colorado North
    {26754, 4267, 93361, 941, 968, 8, false}, // NAD27 / Colorado Central
    {26755, 4267, 93383, 942, 970, 8, false}, // NAD27 / Colorado South
    {26756, 4267, 93394, 946, 194, 8, false}, // NAD27 / Connecticut
    {26757, 4267, 93439, 948, 195, 8, false}, // NAD27 / Delaware
    {26758, 4267, 93449, 950, 971, 8, false}, // NAD27 / Florida East
    {26759, 4267, 93471, 951, 973, 8, false}, // NAD27 / Florida West
    {26760, 4267, 93461, 952, 972, 8, false}, // NAD27 / Florida North
    {26766, 4267, 93483, 957, 974, 8, false}, // NAD27 / Georgia East
    {26767, 4267, 93495, 958, 975, 8, false}, // NAD27 / Georgia West
    {26768, 4267, 93543, 961, 977, 8, false}, // NAD27 / Idaho East
    {26769, 4267, 93532, 962, 976, 8, false}, // NAD27 / Idaho Central
    {26770, 4267, 93554, 963, 978, 8, false}, // NAD27 / Idaho West
    {26771, 4267, 93565, 967, 979, 8, false}, // NAD27 / Illinois East
    {26772, 4267, 93579, 968, 980, 8, false}, // NAD27 / Illinois West
    {26773, 4267, 93593, 971, 981, 8, false}, // NAD27 / Indiana East
    {26774, 4267, 93603, 972, 982, 8, false}, // NAD27 / Indiana West
    {26775, 4267, 93613, 975, 983, 8, false}, // NAD27 / Iowa North
    {26776, 4267, 93622, 976, 984, 8, false}, // NAD27 / Iowa South
    {26777, 4267, 93632, 979, 985, 8, false}, // NAD27 / Kansas North
    {26778, 4267, 93642, 980, 986, 8, false}, // NAD27 / Kansas South
    {26779, 4267, 93652, 983, 987, 8, false}, // NAD27 / Kentucky North
    {26780, 4267, 93664, 984, 988, 8, false}, // NAD27 / Kentucky South
    {26781, 4267, 93677, 988, 989, 8, false}, // NAD27 / Louisiana North
    {26782, 4267, 93701, 989, 990, 8, false}, // NAD27 / Louisiana South
    {26783, 4267, 93782, 994, 991, 8, false}, // NAD27 / Maine East
    {26784, 4267, 93793, 995, 992, 8, false}, // NAD27 / Maine West
    {26785, 4267, 93804, 1004, 201, 8, false}, // NAD27 / Maryland
    {26786, 4267, 93828, 1006, 994, 8, false}, // NAD27 / Massachusetts Mainland
    {26787, 4267, 93812, 1007, 993, 8, false}, // NAD27 / Massachusetts Island
    {26791, 4267, 93943, 1020, 999, 8, false}, // NAD27 / Minnesota North
    {26792, 4267, 93930, 1021, 998, 8, false}, // NAD27 / Minnesota Central
    {26793, 4267, 93954, 1022, 1000, 8, false}, // NAD27 / Minnesota South
    {26794, 4267, 93966, 1029, 1001, 8, false}, // NAD27 / Mississippi East
    {26795, 4267, 93983, 1030, 1002, 8, false}, // NAD27 / Mississippi West
    {26796, 4267, 94014, 1033, 1004, 8, false}, // NAD27 / Missouri East
    {26797, 4267, 94000, 1034, 1003, 8, false}, // NAD27 / Missouri Central
    {26798, 4267, 94028, 1035, 1005, 8, false}, // NAD27 / Missouri West
    {26799, 4267, 93346, 932, 966, 8, false}, // NAD27 / California zone VII
    {26801, 4268, 92436, 1010, 511, 8, true}, // NAD Michigan / Michigan East
    {26802, 4268, 92474, 1011, 512, 8, true}, // NAD Michigan / Michigan Old Central
    {26803, 4268, 92515, 1012, 1784, 8, true}, // NAD Michigan / Michigan West
    {26811, 4268, 92456, 1013, 513, 8, true}, // NAD Michigan / Michigan North
    {26812, 4268, 92416, 1014, 514, 8, true}, // NAD Michigan / Michigan Central
    {26813, 4268, 92497, 1015, 515, 8, true}, // NAD Michigan / Michigan South
    {26814, 4269, 97634, 998, 991, 4, true}, // NAD83 / Maine East (ftUS)
    {26815, 4269, 97656, 999, 992, 4, true}, // NAD83 / Maine West (ftUS)
    {26819, 4269, 97893, 1026, 999, 4, true}, // NAD83 / Minnesota North (ftUS)
    {26820, 4269, 97868, 1027, 998, 4, true}, // NAD83 / Minnesota Central (ftUS)
    {26821, 4269, 97917, 1028, 1000, 4, true}, // NAD83 / Minnesota South (ftUS)
    {26822, 4269, 98167, 1300, 205, 4, true}, // NAD83 / Nebraska (ftUS)
    {26823, 4269, 99594, 1140, 1049, 4, true}, // NAD83 / West Virginia North (ftUS)
    {26824, 4269, 99620, 1141, 1050, 4, true}, // NAD83 / West Virginia South (ftUS)
    {26825, 4152, 115224, 998, 991, 4, true}, // NAD83(HARN) / Maine East (ftUS)
    {26826, 4152, 115246, 999, 992, 4, true}, // NAD83(HARN) / Maine West (ftUS)
    {26830, 4152, 115483, 1026, 999, 4, true}, // NAD83(HARN) / Minnesota North (ftUS)
    {26831, 4152, 115458, 1027, 998, 4, true}, // NAD83(HARN) / Minnesota Central (ftUS)
    {26832, 4152, 115507, 1028, 1000, 4, true}, // NAD83(HARN) / Minnesota South (ftUS)
    {26833, 4152, 115664, 1300, 205, 4, true}, // NAD83(HARN) / Nebraska (ftUS)
    {26834, 4152, 119044, 1140, 1049, 4, true}, // NAD83(HARN) / West Virginia North (ftUS)
    {26835, 4152, 119070, 1141, 1050, 4, true}, // NAD83(HARN) / West Virginia South (ftUS)
    {26836, 4759, 121011, 998, 991, 4, true}, // NAD83(NSRS2007) / Maine East (ftUS)
    {26837, 4759, 121043, 999, 992, 4, true}, // NAD83(NSRS2007) / Maine West (ftUS)
    {26841, 4759, 121365, 1026, 999, 4, true}, // NAD83(NSRS2007) / Minnesota North (ftUS)
    {26842, 4759, 121330, 1027, 998, 4, true}, // NAD83(NSRS2007) / Minnesota Central (ftUS)
    {26843, 4759, 121399, 1028, 1000, 4, true}, // NAD83(NSRS2007) / Minnesota South (ftUS)
    {26844, 4759, 121616, 1300, 205, 4, true}, // NAD83(NSRS2007) / Nebraska (ftUS)
    {26845, 4759, 123454, 1140, 1049, 4, true}, // NAD83(NSRS2007) / West Virginia North (ftUS)
    {26846, 4759, 123490, 1141, 1050, 4, true}, // NAD83(NSRS2007) / West Virginia South (ftUS)
    {26847, 4269, 97634, 998, 991, 8, false}, // NAD83 / Maine East (ftUS)
    {26848, 4269, 97656, 999, 992, 8, false}, // NAD83 / Maine West (ftUS)
    {26849, 4269, 97893, 1026, 999, 8, false}, // NAD83 / Minnesota North (ftUS)
    {26850, 4269, 97868, 1027, 998, 8, false}, // NAD83 / Minnesota Central (ftUS)
    {26851, 4269, 97917, 1028, 1000, 8, false}, // NAD83 / Minnesota South (ftUS)
    {26852, 4269, 98167, 1300, 205, 8, false}, // NAD83 / Nebraska (ftUS)
    {26853, 4269, 99594, 1142, 1049, 8, false}, // NAD83 / West Virginia North (ftUS)
    {26854, 4269, 99620, 1143, 1050, 8, false}, // NAD83 / West Virginia South (ftUS)
    {26855, 4152, 115224, 998, 991, 8, false}, // NAD83(HARN) / Maine East (ftUS)
    {26856, 4152, 115246, 999, 992, 8, false}, // NAD83(HARN) / Maine West (ftUS)
    {26857, 4152, 115483, 1026, 999, 8, false}, // NAD83(HARN) / Minnesota North (ftUS)
    {26858, 4152, 115458, 1027, 998, 8, false}, // NAD83(HARN) / Minnesota Central (ftUS)
    {26859, 4152, 115507, 1028, 1000, 8, false}, // NAD83(HARN) / Minnesota South (ftUS)
    {26860, 4152, 115664, 1300, 205, 8, false}, // NAD83(HARN) / Nebraska (ftUS)
    {26861, 4152, 119044, 1142, 1049, 8, false}, // NAD83(HARN) / West Virginia North (ftUS)
    {26862, 4152, 119070, 1143, 1050, 8, false}, // NAD83(HARN) / West Virginia South (ftUS)
    {26863, 4759, 121011, 998, 991, 8, false}, // NAD83(NSRS2007) / Maine East (ftUS)
    {26864, 4759, 121043, 999, 992, 8, false}, // NAD83(NSRS2007) / Maine West (ftUS)
    {26865, 4759, 121365, 1026, 999, 8, false}, // NAD83(NSRS2007) / Minnesota North (ftUS)
    {26866, 4759, 121330, 1027, 998, 8, false}, // NAD83(NSRS2007) / Minnesota Central (ftUS)
    {26867, 4759, 121399, 1028, 1000, 8, false}, // NAD83(NSRS2007) / Minnesota South (ftUS)
    {26868, 4759, 121616, 1300, 205, 8, false}, // NAD83(NSRS2007) / Nebraska (ftUS)
    {26869, 4759, 123454, 1142, 1049, 8, false}, // NAD83(NSRS2007) / West Virginia North (ftUS)
    {26870, 4759, 123490, 1143, 1050, 8, false}, // NAD83(NSRS2007) / West Virginia South (ftUS)
    {26891, 4617, 111230, 1933, 230, 4, false}, // NAD83(CSRS) / MTM zone 11
    {26892, 4617, 111240, 1934, 231, 4, false}, // NAD83(CSRS) / MTM zone 12
    {26893, 4617, 111250, 1935, 232, 4, false}, // NAD83(CSRS) / MTM zone 13
    {26894, 4617, 111260, 1936, 233, 4, false}, // NAD83(CSRS) / MTM zone 14
    {26895, 4617, 111270, 1937, 234, 4, false}, // NAD83(CSRS) / MTM zone 15
    {26896, 4617, 111280, 1938, 235, 4, false}, // NAD83(CSRS) / MTM zone 16
    {26897, 4617, 111290, 1939, 236, 4, false}, // NAD83(CSRS) / MTM zone 17
    {26898, 4617, 111211, 1923, 1011, 4, false}, // NAD83(CSRS) / MTM zone 1
    {26899, 4617, 111300, 1924, 1012, 4, false}, // NAD83(CSRS) / MTM zone 2
    {26901, 4269, 99245, 1310, 1556, 4, false}, // NAD83 / UTM zone 1N
    {26902, 4269, 99291, 1311, 1557, 4, false}, // NAD83 / UTM zone 2N
    {26903, 4269, 99298, 1312, 918, 4, false}, // NAD83 / UTM zone 3N
    {26904, 4269, 99305, 1313, 1651, 4, false}, // NAD83 / UTM zone 4N
    {26905, 4269, 99320, 1314, 1653, 4, false}, // NAD83 / UTM zone 5N
    {26906, 4269, 99335, 1315, 921, 4, false}, // NAD83 / UTM zone 6N
    {26907, 4269, 99342, 1316, 1927, 4, false}, // NAD83 / UTM zone 7N
    {26908, 4269, 99349, 1317, 1922, 4, false}, // NAD83 / UTM zone 8N
    {26909, 4269, 99356, 1318, 1921, 4, false}, // NAD83 / UTM zone 9N
    {26910, 4269, 99166, 1319, 1919, 4, false}, // NAD83 / UTM zone 10N
    {26911, 4269, 99173, 1320, 1582, 4, false}, // NAD83 / UTM zone 11N
    {26912, 4269, 99181, 1321, 1583, 4, false}, // NAD83 / UTM zone 12N
    {26913, 4269, 99189, 1322, 1584, 4, false}, // NAD83 / UTM zone 13N
    {26914, 4269, 99197, 1323, 1585, 4, false}, // NAD83 / UTM zone 14N
    {26915, 4269, 99205, 1324, 1412, 4, false}, // NAD83 / UTM zone 15N
    {26916, 4269, 99213, 1325, 1413, 4, false}, // NAD83 / UTM zone 16N
    {26917, 4269, 99221, 1326, 1414, 4, false}, // NAD83 / UTM zone 17N
    {26918, 4269, 99229, 1327, 1415, 4, false}, // NAD83 / UTM zone 18N
    {26919, 4269, 99237, 1328, 1597, 4, false}, // NAD83 / UTM zone 19N
    {26920, 4269, 99252, 1329, 1598, 4, false}, // NAD83 / UTM zone 20N
    {26921, 4269, 99259, 1330, 936, 4, false}, // NAD83 / UTM zone 21N
    {26922, 4269, 99267, 1331, 937, 4, false}, // NAD83 / UTM zone 22N
    {26923, 4269, 99275, 1332, 938, 4, false}, // NAD83 / UTM zone 23N
    {26929, 4269, 95784, 911, 939, 4, false}, // NAD83 / Alabama East
    {26930, 4269, 95795, 912, 940, 4, false}, // NAD83 / Alabama West
    {26931, 4269, 95817, 1177, 941, 4, false}, // NAD83 / Alaska zone 1
    {26932, 4269, 95836, 1178, 943, 4, false}, // NAD83 / Alaska zone 2
    {26933, 4269, 95845, 1179, 944, 4, false}, // NAD83 / Alaska zone 3
    {26934, 4269, 95854, 1180, 945, 4, false}, // NAD83 / Alaska zone 4
    {26935, 4269, 95863, 1181, 946, 4, false}, // NAD83 / Alaska zone 5
    {26936, 4269, 95872, 1182, 947, 4, false}, // NAD83 / Alaska zone 6
    {26937, 4269, 95881, 1183, 948, 4, false}, // NAD83 / Alaska zone 7
    {26938, 4269, 95890, 1184, 949, 4, false}, // NAD83 / Alaska zone 8
    {26939, 4269, 95899, 1185, 950, 4, false}, // NAD83 / Alaska zone 9
    {26940, 4269, 95826, 1186, 942, 4, false}, // NAD83 / Alaska zone 10
    {26941, 4269, 96465, 934, 960, 4, false}, // NAD83 / California zone 1
    {26942, 4269, 96493, 935, 961, 4, false}, // NAD83 / California zone 2
    {26943, 4269, 96521, 936, 962, 4, false}, // NAD83 / California zone 3
    {26944, 4269, 96549, 937, 963, 4, false}, // NAD83 / California zone 4
    {26945, 4269, 96577, 938, 967, 4, false}, // NAD83 / California zone 5
    {26946, 4269, 96605, 939, 965, 4, false}, // NAD83 / California zone 6
    {26948, 4269, 96053, 918, 952, 4, false}, // NAD83 / Arizona East
    {26949, 4269, 96031, 919, 951, 4, false}, // NAD83 / Arizona Central
    {26950, 4269, 96074, 920, 953, 4, false}, // NAD83 / Arizona West
    {26951, 4269, 96095, 923, 954, 4, false}, // NAD83 / Arkansas North
    {26952, 4269, 96118, 924, 955, 4, false}, // NAD83 / Arkansas South
    {26953, 4269, 96674, 943, 969, 4, false}, // NAD83 / Colorado North
    {26954, 4269, 96649, 944, 968, 4, false}, // NAD83 / Colorado Central
    {26955, 4269, 96695, 945, 970, 4, false}, // NAD83 / Colorado South
    {26956, 4269, 96717, 947, 194, 4, false}, // NAD83 / Connecticut
    {26957, 4269, 96753, 949, 195, 4, false}, // NAD83 / Delaware
    {26958, 4269, 96774, 953, 971, 4, false}, // NAD83 / Florida East
    {26959, 4269, 96834, 954, 973, 4, false}, // NAD83 / Florida West
    {26960, 4269, 96813, 955, 972, 4, false}, // NAD83 / Florida North
    {26961, 4269, 96947, 1192, 341, 4, false}, // NAD83 / Hawaii zone 1
    {26962, 4269, 96957, 1193, 342, 4, false}, // NAD83 / Hawaii zone 2
    {26963, 4269, 96967, 1194, 343, 4, false}, // NAD83 / Hawaii zone 3
    {26964, 4269, 96993, 1195, 344, 4, false}, // NAD83 / Hawaii zone 4
    {26965, 4269, 97003, 1196, 345, 4, false}, // NAD83 / Hawaii zone 5
    {26966, 4269, 96858, 959, 974, 4, false}, // NAD83 / Georgia East
    {26967, 4269, 96882, 960, 975, 4, false}, // NAD83 / Georgia West
    {26968, 4269, 97036, 964, 977, 4, false}, // NAD83 / Idaho East
    {26969, 4269, 97013, 965, 976, 4, false}, // NAD83 / Idaho Central
    {26970, 4269, 97076, 966, 978, 4, false}, // NAD83 / Idaho West
    {26971, 4269, 97098, 969, 979, 4, false}, // NAD83 / Illinois East
    {26972, 4269, 97126, 970, 980, 4, false}, // NAD83 / Illinois West
    {26973, 4269, 97154, 973, 981, 4, false}, // NAD83 / Indiana East
    {26974, 4269, 97174, 974, 982, 4, false}, // NAD83 / Indiana West
    {26975, 4269, 97194, 977, 983, 4, false}, // NAD83 / Iowa North
    {26976, 4269, 97213, 978, 984, 4, false}, // NAD83 / Iowa South
    {26977, 4269, 97259, 981, 985, 4, false}, // NAD83 / Kansas North
    {26978, 4269, 97280, 982, 986, 4, false}, // NAD83 / Kansas South
    {26979, 4269, 97301, 986, 987, 4, true}, // NAD83 / Kentucky North
    {26980, 4269, 97365, 987, 988, 4, false}, // NAD83 / Kentucky South
    {26981, 4269, 97392, 991, 989, 4, false}, // NAD83 / Louisiana North
    {26982, 4269, 97443, 992, 1085, 4, false}, // NAD83 / Louisiana South
    {26983, 4269, 97625, 996, 991, 4, false}, // NAD83 / Maine East
    {26984, 4269, 97647, 997, 992, 4, false}, // NAD83 / Maine West
    {26985, 4269, 97669, 1005, 201, 4, false}, // NAD83 / Maryland
    {26986, 4269, 97721, 1008, 994, 4, false}, // NAD83 / Massachusetts Mainland
    {26987, 4269, 97687, 1009, 993, 4, false}, // NAD83 / Massachusetts Island
    {26988, 4269, 97788, 1016, 513, 4, false}, // NAD83 / Michigan North
    {26989, 4269, 97761, 1017, 514, 4, false}, // NAD83 / Michigan Central
    {26990, 4269, 97833, 1018, 515, 4, false}, // NAD83 / Michigan South
    {26991, 4269, 97884, 1023, 999, 4, false}, // NAD83 / Minnesota North
    {26992, 4269, 97857, 1024, 998, 4, false}, // NAD83 / Minnesota Central
    {26993, 4269, 97907, 1025, 1000, 4, false}, // NAD83 / Minnesota South
    {26994, 4269, 97931, 1031, 1001, 4, false}, // NAD83 / Mississippi East
    {26995, 4269, 97978, 1032, 1002, 4, false}, // NAD83 / Mississippi West
    {26996, 4269, 98024, 1036, 1004, 4, false}, // NAD83 / Missouri East
    {26997, 4269, 98012, 1037, 1003, 4, false}, // NAD83 / Missouri Central
    {26998, 4269, 98036, 1038, 1005, 4, false}, // NAD83 / Missouri West
    {27037, 4270, 127269, 1346, 1569, 4, true}, // Nahrwan 1967 / UTM zone 37N
    {27038, 4270, 127285, 1347, 1568, 4, true}, // Nahrwan 1967 / UTM zone 38N
    {27039, 4270, 127301, 1348, 535, 4, false}, // Nahrwan 1967 / UTM zone 39N
    {27040, 4270, 127317, 1349, 536, 4, false}, // Nahrwan 1967 / UTM zone 40N
    {27120, 4271, 127640, 1329, 151, 4, false}, // Naparima 1972 / UTM zone 20N
    {27200, 4272, 126840, 2308, 1994, 4, false}, // NZGD49 / New Zealand Map Grid
    {27205, 4272, 126738, 1966, 1861, 5, false}, // NZGD49 / Mount Eden Circuit
    {27206, 4272, 126497, 1967, 1859, 5, false}, // NZGD49 / Bay of Plenty Circuit
    {27207, 4272, 126937, 1968, 1860, 5, false}, // NZGD49 / Poverty Bay Circuit
    {27208, 4272, 126611, 1969, 1853, 5, false}, // NZGD49 / Hawkes Bay Circuit
    {27209, 4272, 126973, 1970, 1857, 5, false}, // NZGD49 / Taranaki Circuit
    {27210, 4272, 127010, 1971, 1858, 5, false}, // NZGD49 / Tuhirangi Circuit
    {27211, 4272, 127092, 1972, 1856, 5, false}, // NZGD49 / Wanganui Circuit
    {27212, 4272, 127072, 1973, 1855, 5, false}, // NZGD49 / Wairarapa Circuit
    {27213, 4272, 127111, 1974, 1854, 5, false}, // NZGD49 / Wellington Circuit
    {27214, 4272, 126555, 1975, 1862, 5, false}, // NZGD49 / Collingwood Circuit
    {27215, 4272, 126823, 1976, 1864, 5, false}, // NZGD49 / Nelson Circuit
    {27216, 4272, 126677, 1977, 1863, 5, false}, // NZGD49 / Karamea Circuit
    {27217, 4272, 126537, 1978, 1866, 5, false}, // NZGD49 / Buller Circuit
    {27218, 4272, 126595, 1979, 1867, 5, false}, // NZGD49 / Grey Circuit
    {27219, 4272, 126480, 1980, 1868, 5, false}, // NZGD49 / Amuri Circuit
    {27220, 4272, 126717, 1981, 1865, 5, false}, // NZGD49 / Marlborough Circuit
    {27221, 4272, 126633, 1982, 1869, 5, false}, // NZGD49 / Hokitika Circuit
    {27222, 4272, 126919, 1983, 1871, 5, false}, // NZGD49 / Okarito Circuit
    {27223, 4272, 126653, 1984, 1874, 5, false}, // NZGD49 / Jacksons Bay Circuit
    {27224, 4272, 126780, 1985, 1870, 5, false}, // NZGD49 / Mount Pleasant Circuit
    {27225, 4272, 126577, 1986, 1872, 5, false}, // NZGD49 / Gawler Circuit
    {27226, 4272, 126992, 1987, 1873, 5, false}, // NZGD49 / Timaru Circuit
    {27227, 4272, 126695, 1988, 1875, 5, false}, // NZGD49 / Lindis Peak Circuit
    {27228, 4272, 126758, 1989, 1877, 5, false}, // NZGD49 / Mount Nicholas Circuit
    {27229, 4272, 126803, 1990, 1879, 5, false}, // NZGD49 / Mount York Circuit
    {27230, 4272, 126894, 1991, 1876, 5, false}, // NZGD49 / Observation Point Circuit
    {27231, 4272, 126875, 1992, 1878, 5, false}, // NZGD49 / North Taieri Circuit
    {27232, 4272, 126519, 1993, 1880, 5, false}, // NZGD49 / Bluff Circuit
    {27258, 4272, 127030, 1456, 1991, 4, false}, // NZGD49 / UTM zone 58S
    {27259, 4272, 127044, 1457, 1992, 4, false}, // NZGD49 / UTM zone 59S
    {27260, 4272, 127058, 1458, 1993, 4, false}, // NZGD49 / UTM zone 60S
    {27291, 4272, 126861, 2108, 297, 15, false}, // NZGD49 / North Island Grid
    {27292, 4272, 126959, 2109, 1542, 15, false}, // NZGD49 / South Island Grid
    {27391, 4817, 124996, 2148, 527, 5, false}, // NGO 1948 (Oslo) / NGO zone I
    {27392, 4817, 125014, 2149, 528, 5, false}, // NGO 1948 (Oslo) / NGO zone II
    {27393, 4817, 125033, 2150, 529, 5, false}, // NGO 1948 (Oslo) / NGO zone III
    {27394, 4817, 125053, 2151, 530, 5, false}, // NGO 1948 (Oslo) / NGO zone IV
    {27395, 4817, 125072, 2152, 531, 5, false}, // NGO 1948 (Oslo) / NGO zone V
    {27396, 4817, 125090, 2153, 532, 5, false}, // NGO 1948 (Oslo) / NGO zone VI
    {27397, 4817, 125109, 2154, 533, 5, false}, // NGO 1948 (Oslo) / NGO zone VII
    {27398, 4817, 125129, 2155, 534, 5, false}, // NGO 1948 (Oslo) / NGO zone VIII
    {27429, 4274, 37088, 1338, 129, 4, false}, // Datum 73 / UTM zone 29N
    {27492, 4274, 37060, 2361, 129, 5, true}, // Datum 73 / Modified Portuguese Grid
    {27493, 4274, 37060, 2361, 129, 4, false}, // Datum 73 / Modified Portuguese Grid
    {27500, 4901, 3804, 2296, 192, 4, false}, // ATF (Paris) / Nord de Guerre
    {27561, 4807, 125516, 2082, 520, 4, false}, // NTF (Paris) / Lambert Nord France
    {27562, 4807, 125475, 2083, 521, 4, false}, // NTF (Paris) / Lambert Centre France
    {27563, 4807, 125539, 2084, 522, 4, false}, // NTF (Paris) / Lambert Sud France
    {27564, 4807, 125497, 2085, 154, 4, false}, // NTF (Paris) / Lambert Corse
    {27571, 4807, 125562, 2076, 520, 4, false}, // NTF (Paris) / Lambert zone I
    {27572, 4807, 125578, 2077, 523, 4, false}, // NTF (Paris) / Lambert zone II
    {27573, 4807, 125595, 2078, 522, 4, false}, // NTF (Paris) / Lambert zone III
    {27574, 4807, 125613, 2079, 154, 4, false}, // NTF (Paris) / Lambert zone IV
    {27581, 4807, 125411, 2076, 520, 4, true}, // NTF (Paris) / France I
    {27582, 4807, 125426, 2077, 523, 4, true}, // NTF (Paris) / France II
    {27583, 4807, 125442, 2078, 522, 4, true}, // NTF (Paris) / France III
    {27584, 4807, 125459, 2079, 154, 4, true}, // NTF (Paris) / France IV
    {27591, 4807, 125630, 2082, 520, 4, true}, // NTF (Paris) / Nord France
    {27592, 4807, 125381, 2083, 521, 4, true}, // NTF (Paris) / Centre France
    {27593, 4807, 125647, 2084, 522, 4, true}, // NTF (Paris) / Sud France
    {27594, 4807, 125398, 2085, 154, 4, true}, // NTF (Paris) / Corse
    {27700, 4277, 136762, 2307, 2360, 4, false}, // OSGB36 / British National Grid
    {28191, 4281, 141920, 2141, 180, 4, false}, // Palestine 1923 / Palestine Grid
    {28192, 4281, 141900, 2142, 180, 4, false}, // Palestine 1923 / Palestine Belt
    {28193, 4281, 141879, 2143, 1111, 4, false}, // Palestine 1923 / Israeli CS Grid
    {28232, 4282, 144047, 1430, 23, 4, false}, // Pointe Noire / UTM zone 32S
    {28348, 4283, 52235, 1847, 2177, 4, false}, // GDA94 / MGA zone 48
    {28349, 4283, 52248, 1848, 2163, 4, false}, // GDA94 / MGA zone 49
    {28350, 4283, 52261, 1849, 2165, 4, false}, // GDA94 / MGA zone 50
    {28351, 4283, 52274, 1850, 354, 4, false}, // GDA94 / MGA zone 51
    {28352, 4283, 52287, 1851, 355, 4, false}, // GDA94 / MGA zone 52
    {28353, 4283, 52300, 1852, 356, 4, false}, // GDA94 / MGA zone 53
    {28354, 4283, 52313, 1853, 357, 4, false}, // GDA94 / MGA zone 54
    {28355, 4283, 52326, 1854, 358, 4, false}, // GDA94 / MGA zone 55
    {28356, 4283, 52339, 1855, 359, 4, false}, // GDA94 / MGA zone 56
    {28357, 4283, 52352, 1856, 2181, 4, false}, // GDA94 / MGA zone 57
    {28358, 4283, 52365, 1857, 2162, 4, false}, // GDA94 / MGA zone 58
    {28402, 4284, 151790, 1473, 591, 5, true}, // Pulkovo 1942 / Gauss-Kruger zone 2
    {28403, 4284, 152064, 1474, 578, 5, true}, // Pulkovo 1942 / Gauss-Kruger zone 3
    {28404, 4284, 152163, 1475, 579, 5, false}, // Pulkovo 1942 / Gauss-Kruger zone 4
    {28405, 4284, 152187, 1476, 580, 5, false}, // Pulkovo 1942 / Gauss-Kruger zone 5
    {28406, 4284, 152211, 1477, 581, 5, false}, // Pulkovo 1942 / Gauss-Kruger zone 6
    {28407, 4284, 152235, 1478, 582, 5, false}, // Pulkovo 1942 / Gauss-Kruger zone 7
    {28408, 4284, 152259, 1479, 583, 5, false}, // Pulkovo 1942 / Gauss-Kruger zone 8
    {28409, 4284, 152283, 1480, 584, 5, false}, // Pulkovo 1942 / Gauss-Kruger zone 9
    {28410, 4284, 151540, 1481, 585, 5, false}, // Pulkovo 1942 / Gauss-Kruger zone 10
    {28411, 4284, 151565, 1482, 586, 5, false}, // Pulkovo 1942 / Gauss-Kruger zone 11
    {28412, 4284, 151590, 1483, 587, 5, false}, // Pulkovo 1942 / Gauss-Kruger zone 12
    {28413, 4284, 151615, 1484, 588, 5, false}, // Pulkovo 1942 / Gauss-Kruger zone 13
    {28414, 4284, 151640, 1485, 589, 5, false}, // Pulkovo 1942 / Gauss-Kruger zone 14
    {28415, 4284, 151665, 1486, 590, 5, false}, // Pulkovo 1942 / Gauss-Kruger zone 15
    {28416, 4284, 151690, 1487, 561, 5, false}, // Pulkovo 1942 / Gauss-Kruger zone 16
    {28417, 4284, 151715, 1488, 562, 5, false}, // Pulkovo 1942 / Gauss-Kruger zone 17
    {28418, 4284, 151740, 1489, 563, 5, false}, // Pulkovo 1942 / Gauss-Kruger zone 18
    {28419, 4284, 151765, 1490, 564, 5, false}, // Pulkovo 1942 / Gauss-Kruger zone 19
    {28420, 4284, 151814, 1491, 565, 5, false}, // Pulkovo 1942 / Gauss-Kruger zone 20
    {28421, 4284, 151839, 1492, 566, 5, false}, // Pulkovo 1942 / Gauss-Kruger zone 21
    {28422, 4284, 151864, 1493, 567, 5, false}, // Pulkovo 1942 / Gauss-Kruger zone 22
    {28423, 4284, 151889, 1494, 568, 5, false}, // Pulkovo 1942 / Gauss-Kruger zone 23
    {28424, 4284, 151914, 1495, 569, 5, false}, // Pulkovo 1942 / Gauss-Kruger zone 24
    {28425, 4284, 151939, 1496, 570, 5, false}, // Pulkovo 1942 / Gauss-Kruger zone 25
    {28426, 4284, 151964, 1497, 571, 5, false}, // Pulkovo 1942 / Gauss-Kruger zone 26
    {28427, 4284, 151989, 1498, 572, 5, false}, // Pulkovo 1942 / Gauss-Kruger zone 27
    {28428, 4284, 152014, 1499, 573, 5, false}, // Pulkovo 1942 / Gauss-Kruger zone 28
    {28429, 4284, 152039, 1500, 574, 5, false}, // Pulkovo 1942 / Gauss-Kruger zone 29
    {28430, 4284, 152088, 1501, 575, 5, false}, // Pulkovo 1942 / Gauss-Kruger zone 30
    {28431, 4284, 152113, 1502, 576, 5, false}, // Pulkovo 1942 / Gauss-Kruger zone 31
    {28432, 4284, 152138, 1503, 577, 5, false}, // Pulkovo 1942 / Gauss-Kruger zone 32
    {28462, 4284, 150385, 1543, 591, 5, true}, // Pulkovo 1942 / Gauss-Kruger 2N
    {28463, 4284, 150487, 1544, 578, 5, true}, // Pulkovo 1942 / Gauss-Kruger 3N
    {28464, 4284, 150512, 1545, 579, 5, true}, // Pulkovo 1942 / Gauss-Kruger 4N
    {28465, 4284, 150537, 1546, 580, 5, true}, // Pulkovo 1942 / Gauss-Kruger 5N
    {28466, 4284, 150562, 1547, 581, 5, true}, // Pulkovo 1942 / Gauss-Kruger 6N
    {28467, 4284, 150587, 1548, 582, 5, true}, // Pulkovo 1942 / Gauss-Kruger 7N
    {28468, 4284, 150612, 1549, 583, 5, true}, // Pulkovo 1942 / Gauss-Kruger 8N
    {28469, 4284, 150637, 1550, 584, 5, true}, // Pulkovo 1942 / Gauss-Kruger 9N
    {28470, 4284, 149867, 1551, 585, 5, true}, // Pulkovo 1942 / Gauss-Kruger 10N
    {28471, 4284, 149892, 1552, 586, 5, true}, // Pulkovo 1942 / Gauss-Kruger 11N
    {28472, 4284, 149918, 1553, 587, 5, true}, // Pulkovo 1942 / Gauss-Kruger 12N
    {28473, 4284, 149944, 1554, 588, 5, true}, // Pulkovo 1942 / Gauss-Kruger 13N
    {28474, 4284, 149970, 1555, 589, 5, true}, // Pulkovo 1942 / Gauss-Kruger 14N
    {28475, 4284, 149996, 1556, 590, 5, true}, // Pulkovo 1942 / Gauss-Kruger 15N
    {28476, 4284, 150022, 1557, 561, 5, true}, // Pulkovo 1942 / Gauss-Kruger 16N
    {28477, 4284, 150048, 1558, 562, 5, true}, // Pulkovo 1942 / Gauss-Kruger 17N
    {28478, 4284, 150074, 1559, 563, 5, true}, // Pulkovo 1942 / Gauss-Kruger 18N
    {28479, 4284, 150100, 1560, 564, 5, true}, // Pulkovo 1942 / Gauss-Kruger 19N
    {28480, 4284, 150126, 1561, 565, 5, true}, // Pulkovo 1942 / Gauss-Kruger 20N
    {28481, 4284, 150151, 1562, 566, 5, true}, // Pulkovo 1942 / Gauss-Kruger 21N
    {28482, 4284, 150177, 1563, 567, 5, true}, // Pulkovo 1942 / Gauss-Kruger 22N
    {28483, 4284, 150203, 1564, 568, 5, true}, // Pulkovo 1942 / Gauss-Kruger 23N
    {28484, 4284, 150229, 1565, 569, 5, true}, // Pulkovo 1942 / Gauss-Kruger 24N
    {28485, 4284, 150255, 1566, 570, 5, true}, // Pulkovo 1942 / Gauss-Kruger 25N
    {28486, 4284, 150281, 1567, 571, 5, true}, // Pulkovo 1942 / Gauss-Kruger 26N
    {28487, 4284, 150307, 1568, 572, 5, true}, // Pulkovo 1942 / Gauss-Kruger 27N
    {28488, 4284, 150333, 1569, 573, 5, true}, // Pulkovo 1942 / Gauss-Kruger 28N
    {28489, 4284, 150359, 1570, 574, 5, true}, // Pulkovo 1942 / Gauss-Kruger 29N
    {28490, 4284, 150410, 1571, 575, 5, true}, // Pulkovo 1942 / Gauss-Kruger 30N
    {28491, 4284, 150435, 1572, 576, 5, true}, // Pulkovo 1942 / Gauss-Kruger 31N
    {28492, 4284, 150461, 1573, 577, 5, true}, // Pulkovo 1942 / Gauss-Kruger 32N
    {28600, 4285, 160431, 2309, 171, 4, false}, // Qatar 1974 / Qatar National Grid
    {28991, 4289, 6323, 2305, 116, 4, false}, // Amersfoort / RD Old
    {28992, 4289, 6310, 2306, 116, 4, false}, // Amersfoort / RD New
    {29100, 4291, 168408, 2330, 12, 4, true}, // SAD69 / Brazil Polyconic
    {29101, 4618, 168408, 2330, 12, 4, false}, // SAD69 / Brazil Polyconic
    {29118, 4291, 168449, 1327, 593, 4, true}, // SAD69 / UTM zone 18N
    {29119, 4291, 168473, 1328, 595, 4, true}, // SAD69 / UTM zone 19N
    {29120, 4291, 168497, 1329, 597, 4, true}, // SAD69 / UTM zone 20N
    {29121, 4291, 168519, 1330, 599, 4, true}, // SAD69 / UTM zone 21N
    {29122, 4291, 168543, 1331, 601, 4, true}, // SAD69 / UTM zone 22N
    {29168, 4618, 168449, 1327, 1891, 4, false}, // SAD69 / UTM zone 18N
    {29169, 4618, 168473, 1328, 1893, 4, false}, // SAD69 / UTM zone 19N
    {29170, 4618, 168497, 1329, 1898, 4, false}, // SAD69 / UTM zone 20N
    {29171, 4618, 168519, 1330, 1900, 4, false}, // SAD69 / UTM zone 21N
    {29172, 4618, 168543, 1331, 601, 4, false}, // SAD69 / UTM zone 22N
    {29177, 4291, 168437, 1415, 592, 4, true}, // SAD69 / UTM zone 17S
    {29178, 4291, 168461, 1416, 594, 4, true}, // SAD69 / UTM zone 18S
    {29179, 4291, 168485, 1417, 596, 4, true}, // SAD69 / UTM zone 19S
    {29180, 4291, 168508, 1418, 598, 4, true}, // SAD69 / UTM zone 20S
    {29181, 4291, 168531, 1419, 600, 4, true}, // SAD69 / UTM zone 21S
    {29182, 4291, 168555, 1420, 602, 4, true}, // SAD69 / UTM zone 22S
    {29183, 4291, 168567, 1421, 603, 4, true}, // SAD69 / UTM zone 23S
    {29184, 4291, 168579, 1422, 604, 4, true}, // SAD69 / UTM zone 24S
    {29185, 4291, 168591, 1423, 605, 4, true}, // SAD69 / UTM zone 25S
    {29187, 4618, 168437, 1415, 1890, 4, false}, // SAD69 / UTM zone 17S
    {29188, 4618, 168461, 1416, 1892, 4, false}, // SAD69 / UTM zone 18S
    {29189, 4618, 168485, 1417, 1894, 4, false}, // SAD69 / UTM zone 19S
    {29190, 4618, 168508, 1418, 1899, 4, false}, // SAD69 / UTM zone 20S
    {29191, 4618, 168531, 1419, 600, 4, false}, // SAD69 / UTM zone 21S
    {29192, 4618, 168555, 1420, 602, 4, false}, // SAD69 / UTM zone 22S
    {29193, 4618, 168567, 1421, 1622, 4, false}, // SAD69 / UTM zone 23S
    {29194, 4618, 168579, 1422, 1623, 4, false}, // SAD69 / UTM zone 24S
    {29195, 4618, 168591, 1423, 1624, 4, false}, // SAD69 / UTM zone 25S
    {29220, 4292, 177040, 1418, 606, 4, false}, // Sapper Hill 1943 / UTM zone 20S
    {29221, 4292, 177059, 1419, 607, 4, false}, // Sapper Hill 1943 / UTM zone 21S
    {29333, 4293, 177510, 1431, 608, 4, false}, // Schwarzeck / UTM zone 33S
    {29371, 4293, 177366, 1914, 624, 11, false}, // Schwarzeck / Lo22/11
    {29373, 4293, 177384, 1915, 625, 11, false}, // Schwarzeck / Lo22/13
    {29375, 4293, 177402, 1916, 626, 11, false}, // Schwarzeck / Lo22/15
    {29377, 4293, 177420, 1917, 627, 11, false}, // Schwarzeck / Lo22/17
    {29379, 4293, 177438, 1918, 628, 11, false}, // Schwarzeck / Lo22/19
    {29381, 4293, 177456, 1919, 629, 11, false}, // Schwarzeck / Lo22/21
    {29383, 4293, 177474, 1920, 630, 11, false}, // Schwarzeck / Lo22/23
    {29385, 4293, 177492, 1921, 631, 11, false}, // Schwarzeck / Lo22/25
    {29635, 4296, 182869, 1344, 632, 4, true}, // Sudan / UTM zone 35N
    {29636, 4296, 182881, 1345, 633, 4, true}, // Sudan / UTM zone 36N
    {29700, 4810, 185041, 2304, 1507, 4, true}, // Tananarive (Paris) / Laborde Grid
    {29701, 4810, 185041, 2256, 1507, 5, false}, // Tananarive (Paris) / Laborde Grid
    {29702, 4810, 185063, 2304, 1507, 5, false}, // Tananarive (Paris) / Laborde Grid approximation
    {29738, 4297, 185114, 1436, 634, 4, false}, // Tananarive / UTM zone 38S
    {29739, 4297, 185129, 1437, 635, 4, false}, // Tananarive / UTM zone 39S
    {29849, 4298, 186098, 1358, 637, 4, false}, // Timbalai 1948 / UTM zone 49N
    {29850, 4298, 186116, 1359, 638, 4, false}, // Timbalai 1948 / UTM zone 50N
    {29871, 4298, 185997, 2345, 185, 17, false}, // Timbalai 1948 / RSO Borneo (ch)
    {29872, 4298, 186021, 2346, 1997, 16, false}, // Timbalai 1948 / RSO Borneo (ftSe)
    {29873, 4298, 186047, 2347, 185, 4, false}, // Timbalai 1948 / RSO Borneo (m)
    {29874, 4298, 186070, 2234, 2536, 4, false}, // Timbalai 1948 / RSO Sarawak LSD (m)
    {29900, 4299, 183954, 2301, 137, 4, true}, // TM65 / Irish National Grid
    {29901, 4188, 136817, 2360, 1086, 4, false}, // OSNI 1952 / Irish National Grid
    {29902, 4299, 183941, 2359, 1852, 4, false}, // TM65 / Irish Grid
    {29903, 4300, 183988, 2359, 137, 4, false}, // TM75 / Irish Grid
    {30161, 4301, 186217, 1947, 639, 5, false}, // Tokyo / Japan Plane Rectangular CS I
    {30162, 4301, 186245, 1948, 640, 5, false}, // Tokyo / Japan Plane Rectangular CS II
    {30163, 4301, 186274, 1949, 641, 5, false}, // Tokyo / Japan Plane Rectangular CS III
    {30164, 4301, 186304, 1950, 642, 5, false}, // Tokyo / Japan Plane Rectangular CS IV
    {30165, 4301, 186362, 1951, 643, 5, false}, // Tokyo / Japan Plane Rectangular CS V
    {30166, 4301, 186390, 1952, 644, 5, false}, // Tokyo / Japan Plane Rectangular CS VI
    {30167, 4301, 186419, 1953, 645, 5, false}, // Tokyo / Japan Plane Rectangular CS VII
    {30168, 4301, 186449, 1954, 646, 5, false}, // Tokyo / Japan Plane Rectangular CS VIII
    {30169, 4301, 186333, 1955, 647, 5, false}, // Tokyo / Japan Plane Rectangular CS IX
    {30170, 4301, 186480, 1956, 648, 5, false}, // Tokyo / Japan Plane Rectangular CS X
    {30171, 4301, 186508, 1957, 649, 5, false}, // Tokyo / Japan Plane Rectangular CS XI
    {30172, 4301, 186537, 1958, 650, 5, false}, // Tokyo / Japan Plane Rectangular CS XII
    {30173, 4301, 186567, 1959, 651, 5, false}, // Tokyo / Japan Plane Rectangular CS XIII
    {30174, 4301, 186598, 1960, 652, 5, false}, // Tokyo / Japan Plane Rectangular CS XIV
    {30175, 4301, 186658, 1961, 653, 5, false}, // Tokyo / Japan Plane Rectangular CS XV
    {30176, 4301, 186687, 1962, 654, 5, false}, // Tokyo / Japan Plane Rectangular CS XVI
    {30177, 4301, 186717, 1963, 655, 5, false}, // Tokyo / Japan Plane Rectangular CS XVII
    {30178, 4301, 186748, 1964, 656, 5, false}, // Tokyo / Japan Plane Rectangular CS XVIII
    {30179, 4301, 186628, 1965, 657, 5, false}, // Tokyo / Japan Plane Rectangular CS XIX
    {30200, 4302, 187105, 2315, 166, 14, false}, // Trinidad 1903 / Trinidad Grid
    {30339, 4303, 183778, 1348, 636, 4, false}, // TC(1948) / UTM zone 39N
    {30340, 4303, 183792, 1349, 2026, 4, false}, // TC(1948) / UTM zone 40N
    {30491, 4304, 200634, 2039, 518, 4, false}, // Voirol 1875 / Nord Algerie (ancienne)
    {30492, 4304, 200662, 2040, 2478, 4, false}, // Voirol 1875 / Sud Algerie (ancienne)
    {30493, 4671, 200716, 2039, 518, 4, false}, // Voirol 1879 / Nord Algerie (ancienne)
    {30494, 4671, 200744, 2040, 2478, 4, false}, // Voirol 1879 / Sud Algerie (ancienne)
    {30729, 4307, 132225, 1338, 524, 4, false}, // Nord Sahara 1959 / UTM zone 29N
    {30730, 4307, 132242, 1339, 1975, 4, false}, // Nord Sahara 1959 / UTM zone 30N
    {30731, 4307, 132258, 1340, 1976, 4, false}, // Nord Sahara 1959 / UTM zone 31N
    {30732, 4307, 132275, 1341, 1977, 4, false}, // Nord Sahara 1959 / UTM zone 32N
    {30791, 4307, 132184, 2041, 518, 4, false}, // Nord Sahara 1959 / Nord Algerie
    {30792, 4307, 132204, 2042, 519, 4, false}, // Nord Sahara 1959 / Sud Algerie
    {30800, 4308, 164304, 2319, 96, 5, true}, // RT38 2.5 gon W
    {31028, 4310, 220807, 1337, 89, 4, false}, // Yoff / UTM zone 28N
    {31121, 4311, 220978, 1330, 95, 4, false}, // Zanderij / UTM zone 21N
    {31154, 4311, 220964, 1667, 517, 4, false}, // Zanderij / TM 54 NW
    {31170, 4311, 220935, 2343, 1527, 4, false}, // Zanderij / Suriname Old TM
    {31171, 4311, 220951, 2344, 1527, 4, false}, // Zanderij / Suriname TM
    {31251, 4805, 84501, 2030, 498, 5, false}, // MGI (Ferro) / Austria GK West Zone
    {31252, 4805, 84455, 2031, 499, 5, false}, // MGI (Ferro) / Austria GK Central Zone
    {31253, 4805, 84478, 2032, 500, 5, false}, // MGI (Ferro) / Austria GK East Zone
    {31254, 4312, 84779, 2033, 498, 5, false}, // MGI / Austria GK West
    {31255, 4312, 84699, 2034, 499, 5, false}, // MGI / Austria GK Central
    {31256, 4312, 84715, 2035, 500, 5, false}, // MGI / Austria GK East
    {31257, 4312, 84731, 2036, 498, 5, false}, // MGI / Austria GK M28
    {31258, 4312, 84747, 2037, 499, 5, false}, // MGI / Austria GK M31
    {31259, 4312, 84763, 2038, 500, 5, false}, // MGI / Austria GK M34
    {31265, 4312, 84601, 1508, 501, 4, true}, // MGI / 3-degree Gauss zone 5
    {31266, 4312, 84619, 1509, 502, 4, true}, // MGI / 3-degree Gauss zone 6
    {31267, 4312, 84637, 1510, 503, 4, true}, // MGI / 3-degree Gauss zone 7
    {31268, 4312, 84655, 1511, 504, 4, true}, // MGI / 3-degree Gauss zone 8
    {31275, 4312, 84862, 2180, 501, 5, true}, // MGI / Balkans zone 5
    {31276, 4312, 84874, 2181, 502, 5, true}, // MGI / Balkans zone 6
    {31277, 4312, 84886, 2182, 503, 5, true}, // MGI / Balkans zone 7
    {31278, 4312, 84898, 2182, 504, 5, true}, // MGI / Balkans zone 8
    {31279, 4312, 84898, 2183, 504, 5, true}, // MGI / Balkans zone 8
    {31281, 4805, 84524, 2050, 498, 5, false}, // MGI (Ferro) / Austria West Zone
    {31282, 4805, 84414, 2051, 499, 5, false}, // MGI (Ferro) / Austria Central Zone
    {31283, 4805, 84435, 2052, 500, 5, false}, // MGI (Ferro) / Austria East Zone
    {31284, 4312, 84810, 2053, 498, 5, false}, // MGI / Austria M28
    {31285, 4312, 84823, 2054, 499, 5, false}, // MGI / Austria M31
    {31286, 4312, 84836, 2055, 500, 5, false}, // MGI / Austria M34
    {31287, 4312, 84795, 2336, 7, 5, false}, // MGI / Austria Lambert
    {31288, 4805, 84544, 2056, 498, 5, false}, // MGI (Ferro) / Austria zone M28
    {31289, 4805, 84563, 2057, 499, 5, false}, // MGI (Ferro) / Austria zone M31
    {31290, 4805, 84582, 2058, 500, 5, false}, // MGI (Ferro) / Austria zone M34
    {31291, 4805, 84524, 2050, 498, 4, true}, // MGI (Ferro) / Austria West Zone
    {31292, 4805, 84414, 2051, 500, 4, true}, // MGI (Ferro) / Austria Central Zone
    {31293, 4805, 84435, 2052, 499, 4, true}, // MGI (Ferro) / Austria East Zone
    {31294, 4312, 84910, 2053, 498, 4, true}, // MGI / M28
    {31295, 4312, 84918, 2054, 499, 4, true}, // MGI / M31
    {31296, 4312, 84926, 2055, 500, 4, true}, // MGI / M34
    {31297, 4312, 84795, 2336, 7, 4, true}, // MGI / Austria Lambert
    {31300, 4313, 17571, 2295, 172, 4, false}, // BD72 / Belge Lambert 72
    {31370, 4313, 17589, 2350, 172, 4, false}, // BD72 / Belgian Lambert 72
    {31461, 4314, 35946, 1504, 421, 4, true}, // DHDN / 3-degree Gauss zone 1
    {31462, 4314, 35965, 1505, 417, 4, true}, // DHDN / 3-degree Gauss zone 2
    {31463, 4314, 35984, 1506, 418, 4, true}, // DHDN / 3-degree Gauss zone 3
    {31464, 4314, 36003, 1507, 419, 4, true}, // DHDN / 3-degree Gauss zone 4
    {31465, 4314, 36022, 1508, 420, 4, true}, // DHDN / 3-degree Gauss zone 5
    {31466, 4314, 36096, 1505, 417, 5, false}, // DHDN / 3-degree Gauss-Kruger zone 2
    {31467, 4314, 36151, 1506, 418, 5, false}, // DHDN / 3-degree Gauss-Kruger zone 3
    {31468, 4314, 36206, 1507, 419, 5, false}, // DHDN / 3-degree Gauss-Kruger zone 4
    {31469, 4314, 36261, 1508, 420, 5, false}, // DHDN / 3-degree Gauss-Kruger zone 5
    {31528, 4315, 32861, 1337, 266, 4, false}, // Conakry 1905 / UTM zone 28N
    {31529, 4315, 32878, 1338, 267, 4, false}, // Conakry 1905 / UTM zone 29N
    {31600, 4316, 37325, 2317, 1518, 4, false}, // Dealul Piscului 1930 / Stereo 33
    {31700, 4317, 37408, 2316, 86, 5, true}, // Dealul Piscului 1970/ Stereo 70
    {31838, 4318, 124928, 1347, 525, 4, false}, // NGN / UTM zone 38N
    {31839, 4318, 124939, 1348, 526, 4, false}, // NGN / UTM zone 39N
    {31900, 4319, 75153, 2318, 142, 4, true}, // KUDAMS / KTM
    {31901, 4319, 75153, 2383, 142, 4, false}, // KUDAMS / KTM
    {31965, 4674, 169336, 1320, 1835, 4, false}, // SIRGAS 2000 / UTM zone 11N
    {31966, 4674, 169353, 1321, 1843, 4, false}, // SIRGAS 2000 / UTM zone 12N
    {31967, 4674, 169370, 1322, 1846, 4, false}, // SIRGAS 2000 / UTM zone 13N
    {31968, 4674, 169387, 1323, 1849, 4, false}, // SIRGAS 2000 / UTM zone 14N
    {31969, 4674, 169404, 1324, 1605, 4, false}, // SIRGAS 2000 / UTM zone 15N
    {31970, 4674, 169421, 1325, 1606, 4, false}, // SIRGAS 2000 / UTM zone 16N
    {31971, 4674, 169438, 1326, 1599, 4, false}, // SIRGAS 2000 / UTM zone 17N
    {31972, 4674, 169472, 1327, 1600, 4, false}, // SIRGAS 2000 / UTM zone 18N
    {31973, 4674, 169506, 1328, 1613, 4, false}, // SIRGAS 2000 / UTM zone 19N
    {31974, 4674, 169540, 1329, 1614, 4, false}, // SIRGAS 2000 / UTM zone 20N
    {31975, 4674, 169572, 1330, 1615, 4, false}, // SIRGAS 2000 / UTM zone 21N
    {31976, 4674, 169606, 1331, 1616, 4, false}, // SIRGAS 2000 / UTM zone 22N
    {31977, 4674, 169455, 1415, 610, 4, false}, // SIRGAS 2000 / UTM zone 17S
    {31978, 4674, 169489, 1416, 1617, 4, false}, // SIRGAS 2000 / UTM zone 18S
    {31979, 4674, 169523, 1417, 1618, 4, false}, // SIRGAS 2000 / UTM zone 19S
    {31980, 4674, 169556, 1418, 1619, 4, false}, // SIRGAS 2000 / UTM zone 20S
    {31981, 4674, 169589, 1419, 1620, 4, false}, // SIRGAS 2000 / UTM zone 21S
    {31982, 4674, 169623, 1420, 1621, 4, false}, // SIRGAS 2000 / UTM zone 22S
    {31983, 4674, 169657, 1421, 1622, 4, false}, // SIRGAS 2000 / UTM zone 23S
    {31984, 4674, 169691, 1422, 1623, 4, false}, // SIRGAS 2000 / UTM zone 24S
    {31985, 4674, 169708, 1423, 1624, 4, false}, // SIRGAS 2000 / UTM zone 25S
    {31986, 4170, 169030, 1326, 609, 4, false}, // SIRGAS 1995 / UTM zone 17N
    {31987, 4170, 169064, 1327, 611, 4, false}, // SIRGAS 1995 / UTM zone 18N
    {31988, 4170, 169098, 1328, 613, 4, false}, // SIRGAS 1995 / UTM zone 19N
    {31989, 4170, 169132, 1329, 615, 4, false}, // SIRGAS 1995 / UTM zone 20N
    {31990, 4170, 169164, 1330, 617, 4, false}, // SIRGAS 1995 / UTM zone 21N
    {31991, 4170, 169198, 1331, 619, 4, false}, // SIRGAS 1995 / UTM zone 22N
    {31992, 4170, 169047, 1415, 1772, 4, false}, // SIRGAS 1995 / UTM zone 17S
    {31993, 4170, 169081, 1416, 612, 4, false}, // SIRGAS 1995 / UTM zone 18S
    {31994, 4170, 169115, 1417, 614, 4, false}, // SIRGAS 1995 / UTM zone 19S
    {31995, 4170, 169148, 1418, 616, 4, false}, // SIRGAS 1995 / UTM zone 20S
    {31996, 4170, 169181, 1419, 618, 4, false}, // SIRGAS 1995 / UTM zone 21S
    {31997, 4170, 169215, 1420, 620, 4, false}, // SIRGAS 1995 / UTM zone 22S
    {31998, 4170, 169232, 1421, 621, 4, false}, // SIRGAS 1995 / UTM zone 23S
    {31999, 4170, 169249, 1422, 622, 4, false}, // SIRGAS 1995 / UTM zone 24S
    {32000, 4170, 169266, 1423, 623, 4, false}, // SIRGAS 1995 / UTM zone 25S
    {32001, 4267, 94054, 1039, 996, 8, false}, // NAD27 / Montana North
    {32002, 4267, 94042, 1040, 995, 8, false}, // NAD27 / Montana Central
    {32003, 4267, 94064, 1041, 997, 8, false}, // NAD27 / Montana South
    {32005, 4267, 94075, 1043, 1006, 8, false}, // NAD27 / Nebraska North
    {32006, 4267, 94086, 1044, 1007, 8, false}, // NAD27 / Nebraska South
    {32007, 4267, 94109, 1046, 1009, 8, false}, // NAD27 / Nevada East
    {32008, 4267, 94098, 1047, 1008, 8, false}, // NAD27 / Nevada Central
    {32009, 4267, 94120, 1048, 1010, 8, false}, // NAD27 / Nevada West
    {32010, 4267, 94158, 1052, 206, 8, false}, // NAD27 / New Hampshire
    {32011, 4267, 94170, 1054, 207, 8, false}, // NAD27 / New Jersey
    {32012, 4267, 94194, 1056, 1013, 8, false}, // NAD27 / New Mexico East
    {32013, 4267, 94180, 1057, 1014, 8, false}, // NAD27 / New Mexico Central
    {32014, 4267, 94208, 1058, 1015, 8, false}, // NAD27 / New Mexico West
    {32015, 4267, 94235, 1062, 1019, 8, false}, // NAD27 / New York East
    {32016, 4267, 94222, 1063, 1018, 8, false}, // NAD27 / New York Central
    {32017, 4267, 94263, 1064, 1021, 8, false}, // NAD27 / New York West
    {32018, 4267, 94248, 1065, 1020, 8, true}, // NAD27 / New York Long Island
    {32019, 4267, 94276, 1070, 208, 8, false}, // NAD27 / North Carolina
    {32020, 4267, 94286, 1072, 1022, 8, false}, // NAD27 / North Dakota North
    {32021, 4267, 94297, 1073, 1023, 8, false}, // NAD27 / North Dakota South
    {32022, 4267, 94309, 1076, 1024, 8, false}, // NAD27 / Ohio North
    {32023, 4267, 94318, 1077, 1025, 8, false}, // NAD27 / Ohio South
    {32024, 4267, 94328, 1082, 1026, 8, false}, // NAD27 / Oklahoma North
    {32025, 4267, 94339, 1083, 1027, 8, false}, // NAD27 / Oklahoma South
    {32026, 4267, 94351, 1086, 1028, 8, false}, // NAD27 / Oregon North
    {32027, 4267, 94357, 1087, 1029, 8, false}, // NAD27 / Oregon South
    {32028, 4267, 94365, 1091, 1030, 8, false}, // NAD27 / Pennsylvania North
    {32029, 4267, 94379, 1092, 1031, 8, true}, // NAD27 / Pennsylvania South
    {32030, 4267, 94410, 1095, 210, 8, false}, // NAD27 / Rhode Island
    {32031, 4267, 94434, 1097, 1032, 8, false}, // NAD27 / South Carolina North
    {32033, 4267, 94445, 1098, 1033, 8, false}, // NAD27 / South Carolina South
    {32034, 4267, 94457, 1100, 1034, 8, false}, // NAD27 / South Dakota North
    {32035, 4267, 94468, 1101, 1035, 8, false}, // NAD27 / South Dakota South
    {32036, 4267, 94480, 1104, 212, 8, true}, // NAD27 / Tennessee
    {32037, 4267, 94503, 1106, 1038, 8, false}, // NAD27 / Texas North
    {32038, 4267, 94513, 1107, 1039, 8, false}, // NAD27 / Texas North Central
    {32039, 4267, 94491, 1108, 1037, 8, false}, // NAD27 / Texas Central
    {32040, 4267, 94536, 1109, 1041, 8, false}, // NAD27 / Texas South Central
    {32041, 4267, 94526, 1110, 1040, 8, false}, // NAD27 / Texas South
    {32042, 4267, 94811, 1120, 1043, 8, false}, // NAD27 / Utah North
    {32043, 4267, 94800, 1121, 1042, 8, false}, // NAD27 / Utah Central
    {32044, 4267, 94820, 1122, 1044, 8, false}, // NAD27 / Utah South
    {32045, 4267, 94829, 1126, 214, 8, false}, // NAD27 / Vermont
    {32046, 4267, 94838, 1128, 1045, 8, false}, // NAD27 / Virginia North
    {32047, 4267, 94848, 1129, 1046, 8, false}, // NAD27 / Virginia South
    {32048, 4267, 94859, 1132, 1047, 8, false}, // NAD27 / Washington North
    {32049, 4267, 94871, 1133, 1048, 8, false}, // NAD27 / Washington South
    {32050, 4267, 94884, 1136, 1049, 8, false}, // NAD27 / West Virginia North
    {32051, 4267, 94896, 1137, 1050, 8, false}, // NAD27 / West Virginia South
    {32052, 4267, 94923, 1144, 1052, 8, false}, // NAD27 / Wisconsin North
    {32053, 4267, 94909, 1145, 1051, 8, false}, // NAD27 / Wisconsin Central
    {32054, 4267, 94935, 1146, 1053, 8, false}, // NAD27 / Wisconsin South
    {32055, 4267, 94970, 1152, 1054, 8, false}, // NAD27 / Wyoming East
    {32056, 4267, 94983, 1153, 1055, 8, false}, // NAD27 / Wyoming East Central
    {32057, 4267, 95011, 1154, 1057, 8, false}, // NAD27 / Wyoming West Central
    {32058, 4267, 94998, 1155, 1056, 8, false}, // NAD27 / Wyoming West
    {32061, 4267, 93507, 2146, 905, 4, true}, // NAD27 / Guatemala Norte
    {32062, 4267, 93520, 2147, 906, 4, true}, // NAD27 / Guatemala Sur
    {32064, 4267, 92925, 1305, 1771, 8, false}, // NAD27 / BLM 14N (ftUS)
    {32065, 4267, 92957, 1306, 1774, 8, false}, // NAD27 / BLM 15N (ftUS)
    {32066, 4267, 92989, 1307, 1775, 8, false}, // NAD27 / BLM 16N (ftUS)
    {32067, 4267, 93021, 1308, 1776, 8, false}, // NAD27 / BLM 17N (ftUS)
    {32074, 4267, 92910, 1305, 956, 8, true}, // NAD27 / BLM 14N (feet)
    {32075, 4267, 92942, 1306, 957, 8, true}, // NAD27 / BLM 15N (feet)
    {32076, 4267, 92974, 1307, 958, 8, true}, // NAD27 / BLM 16N (feet)
    {32077, 4267, 93006, 1308, 959, 8, true}, // NAD27 / BLM 17N (feet)
    {32081, 4267, 93712, 1923, 1011, 4, false}, // NAD27 / MTM zone 1
    {32082, 4267, 93729, 1924, 1012, 4, false}, // NAD27 / MTM zone 2
    {32083, 4267, 93737, 1925, 1060, 4, false}, // NAD27 / MTM zone 3
    {32084, 4267, 93745, 1926, 1930, 4, false}, // NAD27 / MTM zone 4
    {32085, 4267, 93753, 1927, 1920, 4, false}, // NAD27 / MTM zone 5
    {32086, 4267, 93761, 1928, 1934, 4, false}, // NAD27 / MTM zone 6
    {32098, 4267, 94394, 2333, 191, 4, false}, // NAD27 / Quebec Lambert
    {32099, 4267, 93687, 990, 200, 8, false}, // NAD27 / Louisiana Offshore
    {32100, 4269, 98048, 1042, 204, 4, false}, // NAD83 / Montana
    {32104, 4269, 98159, 1045, 205, 4, false}, // NAD83 / Nebraska
    {32107, 4269, 98203, 1049, 1009, 4, false}, // NAD83 / Nevada East
    {32108, 4269, 98180, 1050, 1008, 4, false}, // NAD83 / Nevada Central
    {32109, 4269, 98225, 1051, 1010, 4, false}, // NAD83 / Nevada West
    {32110, 4269, 98247, 1053, 206, 4, false}, // NAD83 / New Hampshire
    {32111, 4269, 98272, 1055, 207, 4, false}, // NAD83 / New Jersey
    {32112, 4269, 98322, 1059, 1013, 4, false}, // NAD83 / New Mexico East
    {32113, 4269, 98293, 1060, 1016, 4, false}, // NAD83 / New Mexico Central
    {32114, 4269, 98350, 1061, 1017, 4, false}, // NAD83 / New Mexico West
    {32115, 4269, 98404, 1066, 1019, 4, false}, // NAD83 / New York East
    {32116, 4269, 98378, 1067, 1018, 4, false}, // NAD83 / New York Central
    {32117, 4269, 98462, 1068, 1021, 4, false}, // NAD83 / New York West
    {32118, 4269, 98430, 1069, 1020, 4, false}, // NAD83 / New York Long Island
    {32119, 4269, 98488, 1071, 208, 4, false}, // NAD83 / North Carolina
    {32120, 4269, 98509, 1074, 1022, 4, false}, // NAD83 / North Dakota North
    {32121, 4269, 98531, 1075, 1023, 4, false}, // NAD83 / North Dakota South
    {32122, 4269, 98554, 1078, 1024, 4, false}, // NAD83 / Ohio North
    {32123, 4269, 98573, 1079, 1025, 4, false}, // NAD83 / Ohio South
    {32124, 4269, 98593, 1084, 1026, 4, false}, // NAD83 / Oklahoma North
    {32125, 4269, 98616, 1085, 1027, 4, false}, // NAD83 / Oklahoma South
    {32126, 4269, 98682, 1088, 1028, 4, false}, // NAD83 / Oregon North
    {32127, 4269, 98694, 1089, 1029, 4, false}, // NAD83 / Oregon South
    {32128, 4269, 98710, 1093, 1030, 4, false}, // NAD83 / Pennsylvania North
    {32129, 4269, 98739, 1094, 1031, 4, false}, // NAD83 / Pennsylvania South
    {32130, 4269, 98815, 1096, 210, 4, false}, // NAD83 / Rhode Island
    {32133, 4269, 98845, 1099, 211, 4, false}, // NAD83 / South Carolina
    {32134, 4269, 98865, 1102, 1034, 4, false}, // NAD83 / South Dakota North
    {32135, 4269, 98888, 1103, 1035, 4, false}, // NAD83 / South Dakota South
    {32136, 4269, 98930, 1105, 212, 4, false}, // NAD83 / Tennessee
    {32137, 4269, 99037, 1111, 1038, 4, false}, // NAD83 / Texas North
    {32138, 4269, 99058, 1112, 1039, 4, false}, // NAD83 / Texas North Central
    {32139, 4269, 98970, 1113, 1037, 4, false}, // NAD83 / Texas Central
    {32140, 4269, 99106, 1114, 1083, 4, false}, // NAD83 / Texas South Central
    {32141, 4269, 99085, 1115, 1084, 4, false}, // NAD83 / Texas South
    {32142, 4269, 99397, 1123, 1043, 4, false}, // NAD83 / Utah North
    {32143, 4269, 99363, 1124, 1042, 4, false}, // NAD83 / Utah Central
    {32144, 4269, 99427, 1125, 1044, 4, false}, // NAD83 / Utah South
    {32145, 4269, 99457, 1127, 214, 4, false}, // NAD83 / Vermont
    {32146, 4269, 99489, 1130, 1045, 4, false}, // NAD83 / Virginia North
    {32147, 4269, 99510, 1131, 1046, 4, false}, // NAD83 / Virginia South
    {32148, 4269, 99532, 1134, 1058, 4, false}, // NAD83 / Washington North
    {32149, 4269, 99557, 1135, 1059, 4, false}, // NAD83 / Washington South
    {32150, 4269, 99584, 1138, 1049, 4, false}, // NAD83 / West Virginia North
    {32151, 4269, 99609, 1139, 1050, 4, false}, // NAD83 / West Virginia South
    {32152, 4269, 99663, 1148, 1052, 4, false}, // NAD83 / Wisconsin North
    {32153, 4269, 99635, 1149, 1051, 4, false}, // NAD83 / Wisconsin Central
    {32154, 4269, 99688, 1150, 1053, 4, false}, // NAD83 / Wisconsin South
    {32155, 4269, 99734, 1157, 1054, 4, false}, // NAD83 / Wyoming East
    {32156, 4269, 99760, 1158, 1055, 4, false}, // NAD83 / Wyoming East Central
    {32157, 4269, 99830, 1159, 1057, 4, false}, // NAD83 / Wyoming West Central
    {32158, 4269, 99804, 1160, 1056, 4, false}, // NAD83 / Wyoming West
    {32159, 4269, 99791, 1156, 217, 4, false}, // NAD83 / Wyoming Lambert
    {32161, 4269, 98769, 1200, 1036, 4, false}, // NAD83 / Puerto Rico & Virgin Is.
    {32164, 4269, 96208, 1305, 1771, 8, false}, // NAD83 / BLM 14N (ftUS)
    {32165, 4269, 96223, 1306, 1774, 8, false}, // NAD83 / BLM 15N (ftUS)
    {32166, 4269, 96238, 1307, 1775, 8, false}, // NAD83 / BLM 16N (ftUS)
    {32167, 4269, 96253, 1308, 1776, 8, false}, // NAD83 / BLM 17N (ftUS)
    {32180, 4269, 98837, 1922, 218, 4, true}, // NAD83 / SCoPQ zone 2
    {32181, 4269, 97465, 1923, 1011, 4, false}, // NAD83 / MTM zone 1
    {32182, 4269, 97527, 1924, 1012, 4, false}, // NAD83 / MTM zone 2
    {32183, 4269, 97533, 1925, 1069, 4, false}, // NAD83 / MTM zone 3
    {32184, 4269, 97539, 1926, 1061, 4, false}, // NAD83 / MTM zone 4
    {32185, 4269, 97545, 1927, 1062, 4, false}, // NAD83 / MTM zone 5
    {32186, 4269, 97551, 1928, 1063, 4, false}, // NAD83 / MTM zone 6
    {32187, 4269, 97557, 1929, 223, 4, false}, // NAD83 / MTM zone 7
    {32188, 4269, 97563, 1930, 1064, 4, false}, // NAD83 / MTM zone 8
    {32189, 4269, 97569, 1931, 1065, 4, false}, // NAD83 / MTM zone 9
    {32190, 4269, 97471, 1932, 1066, 4, false}, // NAD83 / MTM zone 10
    {32191, 4269, 97478, 1933, 230, 4, false}, // NAD83 / MTM zone 11
    {32192, 4269, 97485, 1934, 231, 4, false}, // NAD83 / MTM zone 12
    {32193, 4269, 97492, 1935, 232, 4, false}, // NAD83 / MTM zone 13
    {32194, 4269, 97499, 1936, 233, 4, false}, // NAD83 / MTM zone 14
    {32195, 4269, 97506, 1937, 234, 4, false}, // NAD83 / MTM zone 15
    {32196, 4269, 97513, 1938, 235, 4, false}, // NAD83 / MTM zone 16
    {32197, 4269, 97520, 1939, 236, 4, false}, // NAD83 / MTM zone 17
    {32198, 4269, 98801, 2333, 191, 4, false}, // NAD83 / Quebec Lambert
    {32199, 4269, 97413, 993, 200, 4, false}, // NAD83 / Louisiana Offshore
    {32201, 4322, 201197, 1310, 658, 4, false}, // WGS 72 / UTM zone 1N
    {32202, 4322, 201501, 1311, 660, 4, false}, // WGS 72 / UTM zone 2N
    {32203, 4322, 201805, 1312, 662, 4, false}, // WGS 72 / UTM zone 3N
    {32204, 4322, 202111, 1313, 664, 4, false}, // WGS 72 / UTM zone 4N
    {32205, 4322, 202417, 1314, 666, 4, false}, // WGS 72 / UTM zone 5N
    {32206, 4322, 202471, 1315, 668, 4, false}, // WGS 72 / UTM zone 6N
    {32207, 4322, 202497, 1316, 670, 4, false}, // WGS 72 / UTM zone 7N
    {32208, 4322, 202523, 1317, 672, 4, false}, // WGS 72 / UTM zone 8N
    {32209, 4322, 202549, 1318, 674, 4, false}, // WGS 72 / UTM zone 9N
    {32210, 4322, 200919, 1319, 676, 4, false}, // WGS 72 / UTM zone 10N
    {32211, 4322, 200945, 1320, 678, 4, false}, // WGS 72 / UTM zone 11N
    {32212, 4322, 200973, 1321, 680, 4, false}, // WGS 72 / UTM zone 12N
    {32213, 4322, 201001, 1322, 682, 4, false}, // WGS 72 / UTM zone 13N
    {32214, 4322, 201029, 1323, 684, 4, false}, // WGS 72 / UTM zone 14N
    {32215, 4322, 201057, 1324, 686, 4, false}, // WGS 72 / UTM zone 15N
    {32216, 4322, 201085, 1325, 688, 4, false}, // WGS 72 / UTM zone 16N
    {32217, 4322, 201113, 1326, 690, 4, false}, // WGS 72 / UTM zone 17N
    {32218, 4322, 201141, 1327, 692, 4, false}, // WGS 72 / UTM zone 18N
    {32219, 4322, 201169, 1328, 694, 4, false}, // WGS 72 / UTM zone 19N
    {32220, 4322, 201223, 1329, 696, 4, false}, // WGS 72 / UTM zone 20N
    {32221, 4322, 201249, 1330, 698, 4, false}, // WGS 72 / UTM zone 21N
    {32222, 4322, 201277, 1331, 700, 4, false}, // WGS 72 / UTM zone 22N
    {32223, 4322, 201305, 1332, 702, 4, false}, // WGS 72 / UTM zone 23N
    {32224, 4322, 201333, 1333, 704, 4, false}, // WGS 72 / UTM zone 24N
    {32225, 4322, 201361, 1334, 706, 4, false}, // WGS 72 / UTM zone 25N
    {32226, 4322, 201389, 1335, 708, 4, false}, // WGS 72 / UTM zone 26N
    {32227, 4322, 201417, 1336, 710, 4, false}, // WGS 72 / UTM zone 27N
    {32228, 4322, 201445, 1337, 712, 4, false}, // WGS 72 / UTM zone 28N
    {32229, 4322, 201473, 1338, 714, 4, false}, // WGS 72 / UTM zone 29N
    {32230, 4322, 201527, 1339, 716, 4, false}, // WGS 72 / UTM zone 30N
    {32231, 4322, 201553, 1340, 718, 4, false}, // WGS 72 / UTM zone 31N
    {32232, 4322, 201581, 1341, 720, 4, false}, // WGS 72 / UTM zone 32N
    {32233, 4322, 201609, 1342, 722, 4, false}, // WGS 72 / UTM zone 33N
    {32234, 4322, 201637, 1343, 724, 4, false}, // WGS 72 / UTM zone 34N
    {32235, 4322, 201665, 1344, 726, 4, false}, // WGS 72 / UTM zone 35N
    {32236, 4322, 201693, 1345, 728, 4, false}, // WGS 72 / UTM zone 36N
    {32237, 4322, 201721, 1346, 730, 4, false}, // WGS 72 / UTM zone 37N
    {32238, 4322, 201749, 1347, 732, 4, false}, // WGS 72 / UTM zone 38N
    {32239, 4322, 201777, 1348, 734, 4, false}, // WGS 72 / UTM zone 39N
    {32240, 4322, 201831, 1349, 736, 4, false}, // WGS 72 / UTM zone 40N
    {32241, 4322, 201859, 1350, 738, 4, false}, // WGS 72 / UTM zone 41N
    {32242, 4322, 201887, 1351, 740, 4, false}, // WGS 72 / UTM zone 42N
    {32243, 4322, 201915, 1352, 742, 4, false}, // WGS 72 / UTM zone 43N
    {32244, 4322, 201943, 1353, 744, 4, false}, // WGS 72 / UTM zone 44N
    {32245, 4322, 201971, 1354, 746, 4, false}, // WGS 72 / UTM zone 45N
    {32246, 4322, 201999, 1355, 748, 4, false}, // WGS 72 / UTM zone 46N
    {32247, 4322, 202027, 1356, 750, 4, false}, // WGS 72 / UTM zone 47N
    {32248, 4322, 202055, 1357, 752, 4, false}, // WGS 72 / UTM zone 48N
    {32249, 4322, 202083, 1358, 754, 4, false}, // WGS 72 / UTM zone 49N
    {32250, 4322, 202137, 1359, 756, 4, false}, // WGS 72 / UTM zone 50N
    {32251, 4322, 202165, 1360, 758, 4, false}, // WGS 72 / UTM zone 51N
    {32252, 4322, 202193, 1361, 760, 4, false}, // WGS 72 / UTM zone 52N
    {32253, 4322, 202221, 1362, 762, 4, false}, // WGS 72 / UTM zone 53N
    {32254, 4322, 202249, 1363, 764, 4, false}, // WGS 72 / UTM zone 54N
    {32255, 4322, 202277, 1364, 766, 4, false}, // WGS 72 / UTM zone 55N
    {32256, 4322, 202305, 1365, 768, 4, false}, // WGS 72 / UTM zone 56N
    {32257, 4322, 202333, 1366, 770, 4, false}, // WGS 72 / UTM zone 57N
    {32258, 4322, 202361, 1367, 772, 4, false}, // WGS 72 / UTM zone 58N
    {32259, 4322, 202389, 1368, 774, 4, false}, // WGS 72 / UTM zone 59N
    {32260, 4322, 202443, 1369, 776, 4, false}, // WGS 72 / UTM zone 60N
    {32301, 4322, 201210, 1399, 659, 4, false}, // WGS 72 / UTM zone 1S
    {32302, 4322, 201514, 1400, 661, 4, false}, // WGS 72 / UTM zone 2S
    {32303, 4322, 201818, 1401, 663, 4, false}, // WGS 72 / UTM zone 3S
    {32304, 4322, 202124, 1402, 665, 4, false}, // WGS 72 / UTM zone 4S
    {32305, 4322, 202430, 1403, 667, 4, false}, // WGS 72 / UTM zone 5S
    {32306, 4322, 202484, 1404, 669, 4, false}, // WGS 72 / UTM zone 6S
    {32307, 4322, 202510, 1405, 671, 4, false}, // WGS 72 / UTM zone 7S
    {32308, 4322, 202536, 1406, 673, 4, false}, // WGS 72 / UTM zone 8S
    {32309, 4322, 202562, 1407, 675, 4, false}, // WGS 72 / UTM zone 9S
    {32310, 4322, 200932, 1408, 677, 4, false}, // WGS 72 / UTM zone 10S
    {32311, 4322, 200959, 1409, 679, 4, false}, // WGS 72 / UTM zone 11S
    {32312, 4322, 200987, 1410, 681, 4, false}, // WGS 72 / UTM zone 12S
    {32313, 4322, 201015, 1411, 683, 4, false}, // WGS 72 / UTM zone 13S
    {32314, 4322, 201043, 1412, 685, 4, false}, // WGS 72 / UTM zone 14S
    {32315, 4322, 201071, 1413, 687, 4, false}, // WGS 72 / UTM zone 15S
    {32316, 4322, 201099, 1414, 689, 4, false}, // WGS 72 / UTM zone 16S
    {32317, 4322, 201127, 1415, 691, 4, false}, // WGS 72 / UTM zone 17S
    {32318, 4322, 201155, 1416, 693, 4, false}, // WGS 72 / UTM zone 18S
    {32319, 4322, 201183, 1417, 695, 4, false}, // WGS 72 / UTM zone 19S
    {32320, 4322, 201236, 1418, 697, 4, false}, // WGS 72 / UTM zone 20S
    {32321, 4322, 201263, 1419, 699, 4, false}, // WGS 72 / UTM zone 21S
    {32322, 4322, 201291, 1420, 701, 4, false}, // WGS 72 / UTM zone 22S
    {32323, 4322, 201319, 1421, 703, 4, false}, // WGS 72 / UTM zone 23S
    {32324, 4322, 201347, 1422, 705, 4, false}, // WGS 72 / UTM zone 24S
    {32325, 4322, 201375, 1423, 707, 4, false}, // WGS 72 / UTM zone 25S
    {32326, 4322, 201403, 1424, 709, 4, false}, // WGS 72 / UTM zone 26S
    {32327, 4322, 201431, 1425, 711, 4, false}, // WGS 72 / UTM zone 27S
    {32328, 4322, 201459, 1426, 713, 4, false}, // WGS 72 / UTM zone 28S
    {32329, 4322, 201487, 1427, 715, 4, false}, // WGS 72 / UTM zone 29S
    {32330, 4322, 201540, 1428, 717, 4, false}, // WGS 72 / UTM zone 30S
    {32331, 4322, 201567, 1429, 719, 4, false}, // WGS 72 / UTM zone 31S
    {32332, 4322, 201595, 1430, 721, 4, false}, // WGS 72 / UTM zone 32S
    {32333, 4322, 201623, 1431, 723, 4, false}, // WGS 72 / UTM zone 33S
    {32334, 4322, 201651, 1432, 725, 4, false}, // WGS 72 / UTM zone 34S
    {32335, 4322, 201679, 1433, 727, 4, false}, // WGS 72 / UTM zone 35S
    {32336, 4322, 201707, 1434, 729, 4, false}, // WGS 72 / UTM zone 36S
    {32337, 4322, 201735, 1435, 731, 4, false}, // WGS 72 / UTM zone 37S
    {32338, 4322, 201763, 1436, 733, 4, false}, // WGS 72 / UTM zone 38S
    {32339, 4322, 201791, 1437, 735, 4, false}, // WGS 72 / UTM zone 39S
    {32340, 4322, 201845, 1438, 737, 4, false}, // WGS 72 / UTM zone 40S
    {32341, 4322, 201873, 1439, 739, 4, false}, // WGS 72 / UTM zone 41S
    {32342, 4322, 201901, 1440, 741, 4, false}, // WGS 72 / UTM zone 42S
    {32343, 4322, 201929, 1441, 743, 4, false}, // WGS 72 / UTM zone 43S
    {32344, 4322, 201957, 1442, 745, 4, false}, // WGS 72 / UTM zone 44S
    {32345, 4322, 201985, 1443, 747, 4, false}, // WGS 72 / UTM zone 45S
    {32346, 4322, 202013, 1444, 749, 4, false}, // WGS 72 / UTM zone 46S
    {32347, 4322, 202041, 1445, 751, 4, false}, // WGS 72 / UTM zone 47S
    {32348, 4322, 202069, 1446, 753, 4, false}, // WGS 72 / UTM zone 48S
    {32349, 4322, 202097, 1447, 755, 4, false}, // WGS 72 / UTM zone 49S
    {32350, 4322, 202151, 1448, 757, 4, false}, // WGS 72 / UTM zone 50S
    {32351, 4322, 202179, 1449, 759, 4, false}, // WGS 72 / UTM zone 51S
    {32352, 4322, 202207, 1450, 761, 4, false}, // WGS 72 / UTM zone 52S
    {32353, 4322, 202235, 1451, 763, 4, false}, // WGS 72 / UTM zone 53S
    {32354, 4322, 202263, 1452, 765, 4, false}, // WGS 72 / UTM zone 54S
    {32355, 4322, 202291, 1453, 767, 4, false}, // WGS 72 / UTM zone 55S
    {32356, 4322, 202319, 1454, 769, 4, false}, // WGS 72 / UTM zone 56S
    {32357, 4322, 202347, 1455, 771, 4, false}, // WGS 72 / UTM zone 57S
    {32358, 4322, 202375, 1456, 773, 4, false}, // WGS 72 / UTM zone 58S
    {32359, 4322, 202403, 1457, 775, 4, false}, // WGS 72 / UTM zone 59S
    {32360, 4322, 202457, 1458, 777, 4, false}, // WGS 72 / UTM zone 60S
    {32401, 4324, 202958, 1310, 658, 4, false}, // WGS 72BE / UTM zone 1N
    {32402, 4324, 203306, 1311, 661, 4, false}, // WGS 72BE / UTM zone 2N
    {32403, 4324, 203654, 1312, 662, 4, false}, // WGS 72BE / UTM zone 3N
    {32404, 4324, 204004, 1313, 664, 4, false}, // WGS 72BE / UTM zone 4N
    {32405, 4324, 204354, 1314, 666, 4, false}, // WGS 72BE / UTM zone 5N
    {32406, 4324, 204416, 1315, 668, 4, false}, // WGS 72BE / UTM zone 6N
    {32407, 4324, 204446, 1316, 670, 4, false}, // WGS 72BE / UTM zone 7N
    {32408, 4324, 204476, 1317, 672, 4, false}, // WGS 72BE / UTM zone 8N
    {32409, 4324, 204506, 1318, 674, 4, false}, // WGS 72BE / UTM zone 9N
    {32410, 4324, 202640, 1319, 676, 4, false}, // WGS 72BE / UTM zone 10N
    {32411, 4324, 202670, 1320, 678, 4, false}, // WGS 72BE / UTM zone 11N
    {32412, 4324, 202702, 1321, 680, 4, false}, // WGS 72BE / UTM zone 12N
    {32413, 4324, 202734, 1322, 682, 4, false}, // WGS 72BE / UTM zone 13N
    {32414, 4324, 202766, 1323, 684, 4, false}, // WGS 72BE / UTM zone 14N
    {32415, 4324, 202798, 1324, 686, 4, false}, // WGS 72BE / UTM zone 15N
    {32416, 4324, 202830, 1325, 688, 4, false}, // WGS 72BE / UTM zone 16N
    {32417, 4324, 202862, 1326, 690, 4, false}, // WGS 72BE / UTM zone 17N
    {32418, 4324, 202894, 1327, 692, 4, false}, // WGS 72BE / UTM zone 18N
    {32419, 4324, 202926, 1328, 694, 4, false}, // WGS 72BE / UTM zone 19N
    {32420, 4324, 202988, 1329, 696, 4, false}, // WGS 72BE / UTM zone 20N
    {32421, 4324, 203018, 1330, 698, 4, false}, // WGS 72BE / UTM zone 21N
    {32422, 4324, 203050, 1331, 700, 4, false}, // WGS 72BE / UTM zone 22N
    {32423, 4324, 203082, 1332, 702, 4, false}, // WGS 72BE / UTM zone 23N
    {32424, 4324, 203114, 1333, 704, 4, false}, // WGS 72BE / UTM zone 24N
    {32425, 4324, 203146, 1334, 706, 4, false}, // WGS 72BE / UTM zone 25N
    {32426, 4324, 203178, 1335, 708, 4, false}, // WGS 72BE / UTM zone 26N
    {32427, 4324, 203210, 1336, 710, 4, false}, // WGS 72BE / UTM zone 27N
    {32428, 4324, 203242, 1337, 712, 4, false}, // WGS 72BE / UTM zone 28N
    {32429, 4324, 203274, 1338, 714, 4, false}, // WGS 72BE / UTM zone 29N
    {32430, 4324, 203336, 1339, 716, 4, false}, // WGS 72BE / UTM zone 30N
    {32431, 4324, 203366, 1340, 718, 4, false}, // WGS 72BE / UTM zone 31N
    {32432, 4324, 203398, 1341, 720, 4, false}, // WGS 72BE / UTM zone 32N
    {32433, 4324, 203430, 1342, 1639, 4, false}, // WGS 72BE / UTM zone 33N
    {32434, 4324, 203462, 1343, 1640, 4, false}, // WGS 72BE / UTM zone 34N
    {32435, 4324, 203494, 1344, 726, 4, false}, // WGS 72BE / UTM zone 35N
    {32436, 4324, 203526, 1345, 728, 4, false}, // WGS 72BE / UTM zone 36N
    {32437, 4324, 203558, 1346, 730, 4, false}, // WGS 72BE / UTM zone 37N
    {32438, 4324, 203590, 1347, 732, 4, false}, // WGS 72BE / UTM zone 38N
    {32439, 4324, 203622, 1348, 734, 4, false}, // WGS 72BE / UTM zone 39N
    {32440, 4324, 203684, 1349, 736, 4, false}, // WGS 72BE / UTM zone 40N
    {32441, 4324, 203716, 1350, 738, 4, false}, // WGS 72BE / UTM zone 41N
    {32442, 4324, 203748, 1351, 740, 4, false}, // WGS 72BE / UTM zone 42N
    {32443, 4324, 203780, 1352, 742, 4, false}, // WGS 72BE / UTM zone 43N
    {32444, 4324, 203812, 1353, 744, 4, false}, // WGS 72BE / UTM zone 44N
    {32445, 4324, 203844, 1354, 746, 4, false}, // WGS 72BE / UTM zone 45N
    {32446, 4324, 203876, 1355, 748, 4, false}, // WGS 72BE / UTM zone 46N
    {32447, 4324, 203908, 1356, 750, 4, false}, // WGS 72BE / UTM zone 47N
    {32448, 4324, 203940, 1357, 778, 4, false}, // WGS 72BE / UTM zone 48N
    {32449, 4324, 203972, 1358, 779, 4, false}, // WGS 72BE / UTM zone 49N
    {32450, 4324, 204034, 1359, 756, 4, false}, // WGS 72BE / UTM zone 50N
    {32451, 4324, 204066, 1360, 758, 4, false}, // WGS 72BE / UTM zone 51N
    {32452, 4324, 204098, 1361, 760, 4, false}, // WGS 72BE / UTM zone 52N
    {32453, 4324, 204130, 1362, 762, 4, false}, // WGS 72BE / UTM zone 53N
    {32454, 4324, 204162, 1363, 764, 4, false}, // WGS 72BE / UTM zone 54N
    {32455, 4324, 204194, 1364, 766, 4, false}, // WGS 72BE / UTM zone 55N
    {32456, 4324, 204226, 1365, 768, 4, false}, // WGS 72BE / UTM zone 56N
    {32457, 4324, 204258, 1366, 770, 4, false}, // WGS 72BE / UTM zone 57N
    {32458, 4324, 204290, 1367, 772, 4, false}, // WGS 72BE / UTM zone 58N
    {32459, 4324, 204322, 1368, 774, 4, false}, // WGS 72BE / UTM zone 59N
    {32460, 4324, 204384, 1369, 776, 4, false}, // WGS 72BE / UTM zone 60N
    {32501, 4324, 202973, 1399, 659, 4, false}, // WGS 72BE / UTM zone 1S
    {32502, 4324, 203321, 1400, 661, 4, false}, // WGS 72BE / UTM zone 2S
    {32503, 4324, 203669, 1401, 663, 4, false}, // WGS 72BE / UTM zone 3S
    {32504, 4324, 204019, 1402, 665, 4, false}, // WGS 72BE / UTM zone 4S
    {32505, 4324, 204369, 1403, 667, 4, false}, // WGS 72BE / UTM zone 5S
    {32506, 4324, 204431, 1404, 669, 4, false}, // WGS 72BE / UTM zone 6S
    {32507, 4324, 204461, 1405, 671, 4, false}, // WGS 72BE / UTM zone 7S
    {32508, 4324, 204491, 1406, 673, 4, false}, // WGS 72BE / UTM zone 8S
    {32509, 4324, 204521, 1407, 675, 4, false}, // WGS 72BE / UTM zone 9S
    {32510, 4324, 202655, 1408, 677, 4, false}, // WGS 72BE / UTM zone 10S
    {32511, 4324, 202686, 1409, 679, 4, false}, // WGS 72BE / UTM zone 11S
    {32512, 4324, 202718, 1410, 681, 4, false}, // WGS 72BE / UTM zone 12S
    {32513, 4324, 202750, 1411, 683, 4, false}, // WGS 72BE / UTM zone 13S
    {32514, 4324, 202782, 1412, 685, 4, false}, // WGS 72BE / UTM zone 14S
    {32515, 4324, 202814, 1413, 687, 4, false}, // WGS 72BE / UTM zone 15S
    {32516, 4324, 202846, 1414, 689, 4, false}, // WGS 72BE / UTM zone 16S
    {32517, 4324, 202878, 1415, 691, 4, false}, // WGS 72BE / UTM zone 17S
    {32518, 4324, 202910, 1416, 693, 4, false}, // WGS 72BE / UTM zone 18S
    {32519, 4324, 202942, 1417, 695, 4, false}, // WGS 72BE / UTM zone 19S
    {32520, 4324, 203003, 1418, 697, 4, false}, // WGS 72BE / UTM zone 20S
    {32521, 4324, 203034, 1419, 699, 4, false}, // WGS 72BE / UTM zone 21S
    {32522, 4324, 203066, 1420, 701, 4, false}, // WGS 72BE / UTM zone 22S
    {32523, 4324, 203098, 1421, 703, 4, false}, // WGS 72BE / UTM zone 23S
    {32524, 4324, 203130, 1422, 705, 4, false}, // WGS 72BE / UTM zone 24S
    {32525, 4324, 203162, 1423, 707, 4, false}, // WGS 72BE / UTM zone 25S
    {32526, 4324, 203194, 1424, 709, 4, false}, // WGS 72BE / UTM zone 26S
    {32527, 4324, 203226, 1425, 711, 4, false}, // WGS 72BE / UTM zone 27S
    {32528, 4324, 203258, 1426, 713, 4, false}, // WGS 72BE / UTM zone 28S
    {32529, 4324, 203290, 1427, 715, 4, false}, // WGS 72BE / UTM zone 29S
    {32530, 4324, 203351, 1428, 717, 4, false}, // WGS 72BE / UTM zone 30S
    {32531, 4324, 203382, 1429, 719, 4, false}, // WGS 72BE / UTM zone 31S
    {32532, 4324, 203414, 1430, 721, 4, false}, // WGS 72BE / UTM zone 32S
    {32533, 4324, 203446, 1431, 723, 4, false}, // WGS 72BE / UTM zone 33S
    {32534, 4324, 203478, 1432, 725, 4, false}, // WGS 72BE / UTM zone 34S
    {32535, 4324, 203510, 1433, 727, 4, false}, // WGS 72BE / UTM zone 35S
    {32536, 4324, 203542, 1434, 729, 4, false}, // WGS 72BE / UTM zone 36S
    {32537, 4324, 203574, 1435, 731, 4, false}, // WGS 72BE / UTM zone 37S
    {32538, 4324, 203606, 1436, 733, 4, false}, // WGS 72BE / UTM zone 38S
    {32539, 4324, 203638, 1437, 735, 4, false}, // WGS 72BE / UTM zone 39S
    {32540, 4324, 203700, 1438, 737, 4, false}, // WGS 72BE / UTM zone 40S
    {32541, 4324, 203732, 1439, 739, 4, false}, // WGS 72BE / UTM zone 41S
    {32542, 4324, 203764, 1440, 741, 4, false}, // WGS 72BE / UTM zone 42S
    {32543, 4324, 203796, 1441, 743, 4, false}, // WGS 72BE / UTM zone 43S
    {32544, 4324, 203828, 1442, 745, 4, false}, // WGS 72BE / UTM zone 44S
    {32545, 4324, 203860, 1443, 747, 4, false}, // WGS 72BE / UTM zone 45S
    {32546, 4324, 203892, 1444, 749, 4, false}, // WGS 72BE / UTM zone 46S
    {32547, 4324, 203924, 1445, 751, 4, false}, // WGS 72BE / UTM zone 47S
    {32548, 4324, 203956, 1446, 753, 4, false}, // WGS 72BE / UTM zone 48S
    {32549, 4324, 203988, 1447, 780, 4, false}, // WGS 72BE / UTM zone 49S
    {32550, 4324, 204050, 1448, 757, 4, false}, // WGS 72BE / UTM zone 50S
    {32551, 4324, 204082, 1449, 759, 4, false}, // WGS 72BE / UTM zone 51S
    {32552, 4324, 204114, 1450, 761, 4, false}, // WGS 72BE / UTM zone 52S
    {32553, 4324, 204146, 1451, 763, 4, false}, // WGS 72BE / UTM zone 53S
    {32554, 4324, 204178, 1452, 765, 4, false}, // WGS 72BE / UTM zone 54S
    {32555, 4324, 204210, 1453, 767, 4, false}, // WGS 72BE / UTM zone 55S
    {32556, 4324, 204242, 1454, 769, 4, false}, // WGS 72BE / UTM zone 56S
    {32557, 4324, 204274, 1455, 771, 4, false}, // WGS 72BE / UTM zone 57S
    {32558, 4324, 204306, 1456, 773, 4, false}, // WGS 72BE / UTM zone 58S
    {32559, 4324, 204338, 1457, 775, 4, false}, // WGS 72BE / UTM zone 59S
    {32560, 4324, 204400, 1458, 777, 4, false}, // WGS 72BE / UTM zone 60S
    {32600, 4326, 209234, 1309, 783, 4, false}, // WGS 84 / UTM grid system (northern hemisphere)
    {32601, 4326, 209567, 1310, 785, 4, false}, // WGS 84 / UTM zone 1N
    {32602, 4326, 209871, 1311, 787, 4, false}, // WGS 84 / UTM zone 2N
    {32603, 4326, 210175, 1312, 789, 4, false}, // WGS 84 / UTM zone 3N
    {32604, 4326, 210481, 1313, 791, 4, false}, // WGS 84 / UTM zone 4N
    {32605, 4326, 210787, 1314, 793, 4, false}, // WGS 84 / UTM zone 5N
    {32606, 4326, 210841, 1315, 795, 4, false}, // WGS 84 / UTM zone 6N
    {32607, 4326, 210867, 1316, 797, 4, false}, // WGS 84 / UTM zone 7N
    {32608, 4326, 210893, 1317, 799, 4, false}, // WGS 84 / UTM zone 8N
    {32609, 4326, 210919, 1318, 801, 4, false}, // WGS 84 / UTM zone 9N
    {32610, 4326, 209289, 1319, 803, 4, false}, // WGS 84 / UTM zone 10N
    {32611, 4326, 209315, 1320, 805, 4, false}, // WGS 84 / UTM zone 11N
    {32612, 4326, 209343, 1321, 807, 4, false}, // WGS 84 / UTM zone 12N
    {32613, 4326, 209371, 1322, 809, 4, false}, // WGS 84 / UTM zone 13N
    {32614, 4326, 209399, 1323, 811, 4, false}, // WGS 84 / UTM zone 14N
    {32615, 4326, 209427, 1324, 813, 4, false}, // WGS 84 / UTM zone 15N
    {32616, 4326, 209455, 1325, 815, 4, false}, // WGS 84 / UTM zone 16N
    {32617, 4326, 209483, 1326, 817, 4, false}, // WGS 84 / UTM zone 17N
    {32618, 4326, 209511, 1327, 819, 4, false}, // WGS 84 / UTM zone 18N
    {32619, 4326, 209539, 1328, 821, 4, false}, // WGS 84 / UTM zone 19N
    {32620, 4326, 209593, 1329, 823, 4, false}, // WGS 84 / UTM zone 20N
    {32621, 4326, 209619, 1330, 825, 4, false}, // WGS 84 / UTM zone 21N
    {32622, 4326, 209647, 1331, 827, 4, false}, // WGS 84 / UTM zone 22N
    {32623, 4326, 209675, 1332, 829, 4, false}, // WGS 84 / UTM zone 23N
    {32624, 4326, 209703, 1333, 831, 4, false}, // WGS 84 / UTM zone 24N
    {32625, 4326, 209731, 1334, 833, 4, false}, // WGS 84 / UTM zone 25N
    {32626, 4326, 209759, 1335, 835, 4, false}, // WGS 84 / UTM zone 26N
    {32627, 4326, 209787, 1336, 837, 4, false}, // WGS 84 / UTM zone 27N
    {32628, 4326, 209815, 1337, 839, 4, false}, // WGS 84 / UTM zone 28N
    {32629, 4326, 209843, 1338, 841, 4, false}, // WGS 84 / UTM zone 29N
    {32630, 4326, 209897, 1339, 843, 4, false}, // WGS 84 / UTM zone 30N
    {32631, 4326, 209923, 1340, 845, 4, false}, // WGS 84 / UTM zone 31N
    {32632, 4326, 209951, 1341, 847, 4, false}, // WGS 84 / UTM zone 32N
    {32633, 4326, 209979, 1342, 849, 4, false}, // WGS 84 / UTM zone 33N
    {32634, 4326, 210007, 1343, 851, 4, false}, // WGS 84 / UTM zone 34N
    {32635, 4326, 210035, 1344, 853, 4, false}, // WGS 84 / UTM zone 35N
    {32636, 4326, 210063, 1345, 855, 4, false}, // WGS 84 / UTM zone 36N
    {32637, 4326, 210091, 1346, 857, 4, false}, // WGS 84 / UTM zone 37N
    {32638, 4326, 210119, 1347, 859, 4, false}, // WGS 84 / UTM zone 38N
    {32639, 4326, 210147, 1348, 861, 4, false}, // WGS 84 / UTM zone 39N
    {32640, 4326, 210201, 1349, 863, 4, false}, // WGS 84 / UTM zone 40N
    {32641, 4326, 210229, 1350, 865, 4, false}, // WGS 84 / UTM zone 41N
    {32642, 4326, 210257, 1351, 867, 4, false}, // WGS 84 / UTM zone 42N
    {32643, 4326, 210285, 1352, 869, 4, false}, // WGS 84 / UTM zone 43N
    {32644, 4326, 210313, 1353, 871, 4, false}, // WGS 84 / UTM zone 44N
    {32645, 4326, 210341, 1354, 873, 4, false}, // WGS 84 / UTM zone 45N
    {32646, 4326, 210369, 1355, 875, 4, false}, // WGS 84 / UTM zone 46N
    {32647, 4326, 210397, 1356, 877, 4, false}, // WGS 84 / UTM zone 47N
    {32648, 4326, 210425, 1357, 879, 4, false}, // WGS 84 / UTM zone 48N
    {32649, 4326, 210453, 1358, 881, 4, false}, // WGS 84 / UTM zone 49N
    {32650, 4326, 210507, 1359, 883, 4, false}, // WGS 84 / UTM zone 50N
    {32651, 4326, 210535, 1360, 885, 4, false}, // WGS 84 / UTM zone 51N
    {32652, 4326, 210563, 1361, 887, 4, false}, // WGS 84 / UTM zone 52N
    {32653, 4326, 210591, 1362, 889, 4, false}, // WGS 84 / UTM zone 53N
    {32654, 4326, 210619, 1363, 891, 4, false}, // WGS 84 / UTM zone 54N
    {32655, 4326, 210647, 1364, 893, 4, false}, // WGS 84 / UTM zone 55N
    {32656, 4326, 210675, 1365, 895, 4, false}, // WGS 84 / UTM zone 56N
    {32657, 4326, 210703, 1366, 897, 4, false}, // WGS 84 / UTM zone 57N
    {32658, 4326, 210731, 1367, 899, 4, false}, // WGS 84 / UTM zone 58N
    {32659, 4326, 210759, 1368, 901, 4, false}, // WGS 84 / UTM zone 59N
    {32660, 4326, 210813, 1369, 903, 4, false}, // WGS 84 / UTM zone 60N
    {32661, 4326, 209155, 1370, 781, 5, false}, // WGS 84 / UPS North (N,E)
    {32662, 4326, 206958, 2356, 109, 4, true}, // WGS 84 / Plate Carree
    {32663, 4326, 210993, 2242, 109, 4, true}, // WGS 84 / World Equidistant Cylindrical
    {32664, 4326, 204867, 1305, 956, 8, false}, // WGS 84 / BLM 14N (ftUS)
    {32665, 4326, 204888, 1306, 957, 8, false}, // WGS 84 / BLM 15N (ftUS)
    {32666, 4326, 204909, 1307, 958, 8, false}, // WGS 84 / BLM 16N (ftUS)
    {32667, 4326, 204930, 1308, 959, 8, false}, // WGS 84 / BLM 17N (ftUS)
    {32700, 4326, 209262, 1398, 784, 4, false}, // WGS 84 / UTM grid system (southern hemisphere)
    {32701, 4326, 209580, 1399, 786, 4, false}, // WGS 84 / UTM zone 1S
    {32702, 4326, 209884, 1400, 788, 4, false}, // WGS 84 / UTM zone 2S
    {32703, 4326, 210188, 1401, 790, 4, false}, // WGS 84 / UTM zone 3S
    {32704, 4326, 210494, 1402, 792, 4, false}, // WGS 84 / UTM zone 4S
    {32705, 4326, 210800, 1403, 794, 4, false}, // WGS 84 / UTM zone 5S
    {32706, 4326, 210854, 1404, 796, 4, false}, // WGS 84 / UTM zone 6S
    {32707, 4326, 210880, 1405, 798, 4, false}, // WGS 84 / UTM zone 7S
    {32708, 4326, 210906, 1406, 800, 4, false}, // WGS 84 / UTM zone 8S
    {32709, 4326, 210932, 1407, 802, 4, false}, // WGS 84 / UTM zone 9S
    {32710, 4326, 209302, 1408, 804, 4, false}, // WGS 84 / UTM zone 10S
    {32711, 4326, 209329, 1409, 806, 4, false}, // WGS 84 / UTM zone 11S
    {32712, 4326, 209357, 1410, 808, 4, false}, // WGS 84 / UTM zone 12S
    {32713, 4326, 209385, 1411, 810, 4, false}, // WGS 84 / UTM zone 13S
    {32714, 4326, 209413, 1412, 812, 4, false}, // WGS 84 / UTM zone 14S
    {32715, 4326, 209441, 1413, 814, 4, false}, // WGS 84 / UTM zone 15S
    {32716, 4326, 209469, 1414, 816, 4, false}, // WGS 84 / UTM zone 16S
    {32717, 4326, 209497, 1415, 818, 4, false}, // WGS 84 / UTM zone 17S
    {32718, 4326, 209525, 1416, 820, 4, false}, // WGS 84 / UTM zone 18S
    {32719, 4326, 209553, 1417, 822, 4, false}, // WGS 84 / UTM zone 19S
    {32720, 4326, 209606, 1418, 824, 4, false}, // WGS 84 / UTM zone 20S
    {32721, 4326, 209633, 1419, 826, 4, false}, // WGS 84 / UTM zone 21S
    {32722, 4326, 209661, 1420, 828, 4, false}, // WGS 84 / UTM zone 22S
    {32723, 4326, 209689, 1421, 830, 4, false}, // WGS 84 / UTM zone 23S
    {32724, 4326, 209717, 1422, 832, 4, false}, // WGS 84 / UTM zone 24S
    {32725, 4326, 209745, 1423, 834, 4, false}, // WGS 84 / UTM zone 25S
    {32726, 4326, 209773, 1424, 836, 4, false}, // WGS 84 / UTM zone 26S
    {32727, 4326, 209801, 1425, 838, 4, false}, // WGS 84 / UTM zone 27S
    {32728, 4326, 209829, 1426, 840, 4, false}, // WGS 84 / UTM zone 28S
    {32729, 4326, 209857, 1427, 842, 4, false}, // WGS 84 / UTM zone 29S
    {32730, 4326, 209910, 1428, 844, 4, false}, // WGS 84 / UTM zone 30S
    {32731, 4326, 209937, 1429, 846, 4, false}, // WGS 84 / UTM zone 31S
    {32732, 4326, 209965, 1430, 848, 4, false}, // WGS 84 / UTM zone 32S
    {32733, 4326, 209993, 1431, 850, 4, false}, // WGS 84 / UTM zone 33S
    {32734, 4326, 210021, 1432, 852, 4, false}, // WGS 84 / UTM zone 34S
    {32735, 4326, 210049, 1433, 854, 4, false}, // WGS 84 / UTM zone 35S
    {32736, 4326, 210077, 1434, 856, 4, false}, // WGS 84 / UTM zone 36S
    {32737, 4326, 210105, 1435, 858, 4, false}, // WGS 84 / UTM zone 37S
    {32738, 4326, 210133, 1436, 860, 4, false}, // WGS 84 / UTM zone 38S
    {32739, 4326, 210161, 1437, 862, 4, false}, // WGS 84 / UTM zone 39S
    {32740, 4326, 210215, 1438, 864, 4, false}, // WGS 84 / UTM zone 40S
    {32741, 4326, 210243, 1439, 866, 4, false}, // WGS 84 / UTM zone 41S
    {32742, 4326, 210271, 1440, 868, 4, false}, // WGS 84 / UTM zone 42S
    {32743, 4326, 210299, 1441, 870, 4, false}, // WGS 84 / UTM zone 43S
    {32744, 4326, 210327, 1442, 872, 4, false}, // WGS 84 / UTM zone 44S
    {32745, 4326, 210355, 1443, 874, 4, false}, // WGS 84 / UTM zone 45S
    {32746, 4326, 210383, 1444, 876, 4, false}, // WGS 84 / UTM zone 46S
    {32747, 4326, 210411, 1445, 878, 4, false}, // WGS 84 / UTM zone 47S
    {32748, 4326, 210439, 1446, 880, 4, false}, // WGS 84 / UTM zone 48S
    {32749, 4326, 210467, 1447, 882, 4, false}, // WGS 84 / UTM zone 49S
    {32750, 4326, 210521, 1448, 884, 4, false}, // WGS 84 / UTM zone 50S
    {32751, 4326, 210549, 1449, 886, 4, false}, // WGS 84 / UTM zone 51S
    {32752, 4326, 210577, 1450, 888, 4, false}, // WGS 84 / UTM zone 52S
    {32753, 4326, 210605, 1451, 890, 4, false}, // WGS 84 / UTM zone 53S
    {32754, 4326, 210633, 1452, 892, 4, false}, // WGS 84 / UTM zone 54S
    {32755, 4326, 210661, 1453, 894, 4, false}, // WGS 84 / UTM zone 55S
    {32756, 4326, 210689, 1454, 896, 4, false}, // WGS 84 / UTM zone 56S
    {32757, 4326, 210717, 1455, 898, 4, false}, // WGS 84 / UTM zone 57S
    {32758, 4326, 210745, 1456, 900, 4, false}, // WGS 84 / UTM zone 58S
    {32759, 4326, 210773, 1457, 902, 4, false}, // WGS 84 / UTM zone 59S
    {32760, 4326, 210827, 1458, 904, 4, false}, // WGS 84 / UTM zone 60S
    {32761, 4326, 209189, 1459, 782, 5, false}, // WGS 84 / UPS South (N,E)
    {32766, 4326, 208981, 1603, 516, 4, false}, // WGS 84 / TM 36 SE
};
// clang-format on

} // namespace ZrProj::systems::rows
