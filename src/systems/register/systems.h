// Geographic systems of two dimensions and projected systems.
//
// Made by src/systems/make_register.py from the EPSG Geodetic Parameter Dataset v10.076 of 2022-08-31, which is IOGP's, as
// proj-data carries it, under the terms of use at https://epsg.org/terms-of-use.html. Other makers' names are of ArcGIS Pro 3.0
// of 2022-07-09 and of PROJ 9.1.1.
#pragma once

#include "systems/register/rows.h"

namespace ZrProj::systems::rows {

// clang-format off
inline constexpr SystemRow systems[] = {
    {2000, 4600, 9500, 2331, 1478, 4, false}, // Anguilla 1957 / British West Indies Grid
    {2001, 4601, 15157, 2331, 114, 4, false}, // Antigua 1943 / British West Indies Grid
    {2002, 4602, 60227, 2331, 1489, 4, false}, // Dominica 1945 / British West Indies Grid
    {2003, 4603, 97030, 2331, 346, 4, false}, // Grenada 1953 / British West Indies Grid
    {2004, 4604, 143669, 2331, 1511, 4, false}, // Montserrat 1958 / British West Indies Grid
    {2005, 4605, 306330, 2331, 1519, 4, false}, // St. Kitts 1955 / British West Indies Grid
    {2006, 4606, 306387, 2331, 1520, 4, false}, // St. Lucia 1955 / British West Indies Grid
    {2007, 4607, 306536, 2331, 1522, 4, false}, // St. Vincent 45 / British West Indies Grid
    {2008, 4609, 149841, 1922, 218, 4, true}, // NAD27(CGQ77) / SCoPQ zone 2
    {2009, 4609, 149869, 1925, 244, 4, false}, // NAD27(CGQ77) / SCoPQ zone 3
    {2010, 4609, 149897, 1926, 220, 4, false}, // NAD27(CGQ77) / SCoPQ zone 4
    {2011, 4609, 149925, 1927, 221, 4, false}, // NAD27(CGQ77) / SCoPQ zone 5
    {2012, 4609, 149953, 1928, 222, 4, false}, // NAD27(CGQ77) / SCoPQ zone 6
    {2013, 4609, 149981, 1929, 223, 4, false}, // NAD27(CGQ77) / SCoPQ zone 7
    {2014, 4609, 150009, 1930, 224, 4, false}, // NAD27(CGQ77) / SCoPQ zone 8
    {2015, 4609, 150037, 1931, 225, 4, false}, // NAD27(CGQ77) / SCoPQ zone 9
    {2016, 4609, 149812, 1932, 226, 4, false}, // NAD27(CGQ77) / SCoPQ zone 10
    {2017, 4608, 149601, 1930, 227, 4, false}, // NAD27(76) / MTM zone 8
    {2018, 4608, 149624, 1931, 228, 4, false}, // NAD27(76) / MTM zone 9
    {2019, 4608, 149409, 1932, 229, 4, false}, // NAD27(76) / MTM zone 10
    {2020, 4608, 149433, 1933, 230, 4, false}, // NAD27(76) / MTM zone 11
    {2021, 4608, 149457, 1934, 231, 4, false}, // NAD27(76) / MTM zone 12
    {2022, 4608, 149481, 1935, 232, 4, false}, // NAD27(76) / MTM zone 13
    {2023, 4608, 149505, 1936, 233, 4, false}, // NAD27(76) / MTM zone 14
    {2024, 4608, 149529, 1937, 234, 4, false}, // NAD27(76) / MTM zone 15
    {2025, 4608, 149553, 1938, 235, 4, false}, // NAD27(76) / MTM zone 16
    {2026, 4608, 149577, 1939, 236, 4, false}, // NAD27(76) / MTM zone 17
    {2027, 4608, 149647, 1324, 237, 4, false}, // NAD27(76) / UTM zone 15N
    {2028, 4608, 149672, 1325, 238, 4, false}, // NAD27(76) / UTM zone 16N
    {2029, 4608, 149697, 1326, 239, 4, false}, // NAD27(76) / UTM zone 17N
    {2030, 4608, 149722, 1327, 240, 4, false}, // NAD27(76) / UTM zone 18N
    {2031, 4609, 150065, 1326, 226, 4, false}, // NAD27(CGQ77) / UTM zone 17N
    {2032, 4609, 150093, 1327, 241, 4, false}, // NAD27(CGQ77) / UTM zone 18N
    {2033, 4609, 150121, 1328, 242, 4, false}, // NAD27(CGQ77) / UTM zone 19N
    {2034, 4609, 150149, 1329, 243, 4, false}, // NAD27(CGQ77) / UTM zone 20N
    {2035, 4609, 150177, 1330, 244, 4, false}, // NAD27(CGQ77) / UTM zone 21N
    {2036, 4140, 190911, 2335, 245, 5, true}, // NAD83(CSRS98) / New Brunswick Stereo
    {2037, 4140, 191179, 1328, 246, 4, true}, // NAD83(CSRS98) / UTM zone 19N
    {2038, 4140, 191208, 1329, 247, 4, true}, // NAD83(CSRS98) / UTM zone 20N
    {2039, 4141, 112199, 2144, 1111, 4, false}, // Israel 1993 / Israeli TM Grid
    {2040, 4142, 129572, 1339, 248, 4, false}, // Locodjo 1965 / UTM zone 30N
    {2041, 4143, 5536, 1339, 248, 4, false}, // Abidjan 1987 / UTM zone 30N
    {2042, 4142, 129544, 1338, 249, 4, false}, // Locodjo 1965 / UTM zone 29N
    {2043, 4143, 5508, 1338, 249, 4, false}, // Abidjan 1987 / UTM zone 29N
    {2044, 4147, 98794, 1489, 250, 5, false}, // Hanoi 1972 / Gauss-Kruger zone 18
    {2045, 4147, 98828, 1490, 251, 5, false}, // Hanoi 1972 / Gauss-Kruger zone 19
    {2046, 4148, 99006, 1904, 252, 0, false}, // Hartebeesthoek94 / Lo15
    {2047, 4148, 99030, 1905, 253, 0, false}, // Hartebeesthoek94 / Lo17
    {2048, 4148, 99054, 1906, 254, 0, false}, // Hartebeesthoek94 / Lo19
    {2049, 4148, 99078, 1907, 255, 0, false}, // Hartebeesthoek94 / Lo21
    {2050, 4148, 99102, 1908, 256, 0, false}, // Hartebeesthoek94 / Lo23
    {2051, 4148, 99126, 1909, 257, 0, false}, // Hartebeesthoek94 / Lo25
    {2052, 4148, 99150, 1910, 258, 0, false}, // Hartebeesthoek94 / Lo27
    {2053, 4148, 99174, 1911, 259, 0, false}, // Hartebeesthoek94 / Lo29
    {2054, 4148, 99198, 1912, 260, 0, false}, // Hartebeesthoek94 / Lo31
    {2055, 4148, 99222, 1913, 261, 0, false}, // Hartebeesthoek94 / Lo33
    {2056, 4150, 41291, 2339, 123, 4, false}, // CH1903+ / LV95
    {2057, 4153, 275130, 2340, 165, 4, false}, // Rassadiran / Nakhl e Taqi
    {2058, 4154, 61655, 1347, 262, 4, false}, // ED50(ED77) / UTM zone 38N
    {2059, 4154, 61681, 1348, 263, 4, false}, // ED50(ED77) / UTM zone 39N
    {2060, 4154, 61707, 1349, 264, 4, false}, // ED50(ED77) / UTM zone 40N
    {2061, 4154, 61733, 1350, 265, 4, false}, // ED50(ED77) / UTM zone 41N
    {2062, 4903, 134963, 2311, 1076, 4, false}, // Madrid 1870 (Madrid) / Spain LCC
    {2063, 4315, 58508, 1337, 266, 4, true}, // Dabola 1981 / UTM zone 28N
    {2064, 4315, 58535, 1338, 267, 4, true}, // Dabola 1981 / UTM zone 29N
    {2065, 4818, 280894, 2341, 138, 1, false}, // S-JTSK (Ferro) / Krovak
    {2066, 4157, 143965, 2314, 151, 14, false}, // Mount Dillon / Tobago Grid
    {2067, 4158, 219015, 1329, 1427, 4, false}, // Naparima 1955 / UTM zone 20N
    {2068, 4159, 61988, 2164, 268, 4, false}, // ELD79 / Libya zone 5
    {2069, 4159, 62009, 2165, 269, 4, false}, // ELD79 / Libya zone 6
    {2070, 4159, 62030, 2166, 270, 4, false}, // ELD79 / Libya zone 7
    {2071, 4159, 62051, 2167, 271, 4, false}, // ELD79 / Libya zone 8
    {2072, 4159, 62072, 2168, 272, 4, false}, // ELD79 / Libya zone 9
    {2073, 4159, 61900, 2169, 273, 4, false}, // ELD79 / Libya zone 10
    {2074, 4159, 61922, 2170, 274, 4, false}, // ELD79 / Libya zone 11
    {2075, 4159, 61944, 2171, 275, 4, false}, // ELD79 / Libya zone 12
    {2076, 4159, 61966, 2172, 276, 4, false}, // ELD79 / Libya zone 13
    {2077, 4159, 62110, 1341, 277, 4, false}, // ELD79 / UTM zone 32N
    {2078, 4159, 62131, 1342, 278, 4, false}, // ELD79 / UTM zone 33N
    {2079, 4159, 62152, 1343, 279, 4, false}, // ELD79 / UTM zone 34N
    {2080, 4159, 62173, 1344, 276, 4, false}, // ELD79 / UTM zone 35N
    {2081, 4160, 49247, 2044, 281, 5, false}, // Chos Malal 1914 / Argentina 2
    {2082, 4161, 243572, 2044, 282, 5, false}, // Pampa del Castillo / Argentina 2
    {2083, 4254, 100083, 2044, 283, 5, false}, // Hito XVIII 1963 / Argentina 2
    {2084, 4254, 100113, 1417, 1109, 4, false}, // Hito XVIII 1963 / UTM zone 19S
    {2085, 4267, 146251, 2068, 284, 5, true}, // NAD27 / Cuba Norte
    {2086, 4267, 146270, 2069, 285, 5, true}, // NAD27 / Cuba Sur
    {2087, 4159, 62093, 1595, 280, 4, false}, // ELD79 / TM 12 NE
    {2088, 4223, 46757, 1594, 286, 4, false}, // Carthage / TM 11 NE
    {2089, 4163, 373776, 1347, 287, 4, false}, // Yemen NGN96 / UTM zone 38N
    {2090, 4163, 373803, 1348, 288, 4, false}, // Yemen NGN96 / UTM zone 39N
    {2091, 4164, 304585, 1479, 289, 5, true}, // South Yemen / Gauss Kruger zone 8
    {2092, 4164, 304619, 1480, 290, 5, true}, // South Yemen / Gauss Kruger zone 9
    {2093, 4147, 98771, 1600, 291, 5, false}, // Hanoi 1972 / GK 106 NE
    {2094, 4324, 340048, 1599, 292, 4, false}, // WGS 72BE / TM 106 NE
    {2095, 4165, 35508, 1337, 1501, 4, false}, // Bissau / UTM zone 28N
    {2096, 4162, 123419, 2173, 293, 5, false}, // Korean 1985 / East Belt
    {2097, 4162, 123360, 2174, 1822, 5, false}, // Korean 1985 / Central Belt
    {2098, 4162, 123676, 2175, 295, 5, false}, // Korean 1985 / West Belt
    {2099, 4286, 268824, 2342, 171, 4, false}, // Qatar 1948 / Qatar Grid
    {2100, 4121, 83456, 2320, 1498, 4, false}, // GGRS87 / Greek Grid
    {2101, 4249, 125859, 2176, 149, 4, false}, // Lake / Maracaibo Grid M1
    {2102, 4249, 125837, 2177, 149, 4, false}, // Lake / Maracaibo Grid
    {2103, 4249, 125884, 2178, 149, 4, false}, // Lake / Maracaibo Grid M3
    {2104, 4249, 125909, 2179, 296, 4, false}, // Lake / Maracaibo La Rosa Grid
    {2105, 4167, 216706, 1994, 1861, 5, false}, // NZGD2000 / Mount Eden 2000
    {2106, 4167, 216289, 1995, 1859, 5, false}, // NZGD2000 / Bay of Plenty 2000
    {2107, 4167, 217000, 1996, 1860, 5, false}, // NZGD2000 / Poverty Bay 2000
    {2108, 4167, 216545, 1997, 1853, 5, false}, // NZGD2000 / Hawkes Bay 2000
    {2109, 4167, 217060, 1998, 1857, 5, false}, // NZGD2000 / Taranaki 2000
    {2110, 4167, 217108, 1999, 1858, 5, false}, // NZGD2000 / Tuhirangi 2000
    {2111, 4167, 217255, 2000, 1856, 5, false}, // NZGD2000 / Wanganui 2000
    {2112, 4167, 217229, 2001, 1855, 5, false}, // NZGD2000 / Wairarapa 2000
    {2113, 4167, 217280, 2002, 1854, 5, false}, // NZGD2000 / Wellington 2000
    {2114, 4167, 216473, 2003, 1862, 5, false}, // NZGD2000 / Collingwood 2000
    {2115, 4167, 216842, 2004, 1864, 5, false}, // NZGD2000 / Nelson 2000
    {2116, 4167, 216626, 2005, 1863, 5, false}, // NZGD2000 / Karamea 2000
    {2117, 4167, 216341, 2006, 1866, 5, false}, // NZGD2000 / Buller 2000
    {2118, 4167, 216524, 2007, 1867, 5, false}, // NZGD2000 / Grey 2000
    {2119, 4167, 216194, 2008, 1868, 5, false}, // NZGD2000 / Amuri 2000
    {2120, 4167, 216678, 2009, 1865, 5, false}, // NZGD2000 / Marlborough 2000
    {2121, 4167, 216572, 2010, 1869, 5, false}, // NZGD2000 / Hokitika 2000
    {2122, 4167, 216976, 2011, 1871, 5, false}, // NZGD2000 / Okarito 2000
    {2123, 4167, 216597, 2012, 1874, 5, false}, // NZGD2000 / Jacksons Bay 2000
    {2124, 4167, 216764, 2013, 1870, 5, false}, // NZGD2000 / Mount Pleasant 2000
    {2125, 4167, 216501, 2014, 1872, 5, false}, // NZGD2000 / Gawler 2000
    {2126, 4167, 217085, 2015, 1873, 5, false}, // NZGD2000 / Timaru 2000
    {2127, 4167, 216650, 2016, 1875, 5, false}, // NZGD2000 / Lindis Peak 2000
    {2128, 4167, 216733, 2017, 1877, 5, false}, // NZGD2000 / Mount Nicholas 2000
    {2129, 4167, 216795, 2018, 1879, 5, false}, // NZGD2000 / Mount York 2000
    {2130, 4167, 216942, 2019, 1876, 5, false}, // NZGD2000 / Observation Point 2000
    {2131, 4167, 216913, 2020, 1878, 5, false}, // NZGD2000 / North Taieri 2000
    {2132, 4167, 216319, 2021, 1880, 5, false}, // NZGD2000 / Bluff 2000
    {2133, 4167, 217157, 1456, 298, 4, false}, // NZGD2000 / UTM zone 58S
    {2134, 4167, 217181, 1457, 299, 4, false}, // NZGD2000 / UTM zone 59S
    {2135, 4167, 217205, 1458, 300, 4, false}, // NZGD2000 / UTM zone 60S
    {2136, 4168, 5656, 2348, 1497, 20, false}, // Accra / Ghana National Grid
    {2137, 4168, 5684, 1665, 301, 4, false}, // Accra / TM 1 NW
    {2138, 4609, 149782, 2333, 191, 4, false}, // NAD27(CGQ77) / Quebec Lambert
    {2139, 4140, 191005, 1922, 218, 4, true}, // NAD83(CSRS98) / SCoPQ zone 2
    {2140, 4140, 190722, 1925, 219, 4, true}, // NAD83(CSRS98) / MTM zone 3
    {2141, 4140, 190749, 1926, 220, 4, true}, // NAD83(CSRS98) / MTM zone 4
    {2142, 4140, 190776, 1927, 221, 4, true}, // NAD83(CSRS98) / MTM zone 5
    {2143, 4140, 190803, 1928, 222, 4, true}, // NAD83(CSRS98) / MTM zone 6
    {2144, 4140, 190830, 1929, 223, 4, true}, // NAD83(CSRS98) / MTM zone 7
    {2145, 4140, 190857, 1930, 224, 4, true}, // NAD83(CSRS98) / MTM zone 8
    {2146, 4140, 190884, 1931, 225, 4, true}, // NAD83(CSRS98) / MTM zone 9
    {2147, 4140, 190694, 1932, 226, 4, true}, // NAD83(CSRS98) / MTM zone 10
    {2148, 4140, 191237, 1330, 244, 4, true}, // NAD83(CSRS98) / UTM zone 21N
    {2149, 4140, 191150, 1327, 241, 4, true}, // NAD83(CSRS98) / UTM zone 18N
    {2150, 4140, 191121, 1326, 226, 4, true}, // NAD83(CSRS98) / UTM zone 17N
    {2151, 4140, 191092, 1322, 302, 4, true}, // NAD83(CSRS98) / UTM zone 13N
    {2152, 4140, 191063, 1321, 303, 4, true}, // NAD83(CSRS98) / UTM zone 12N
    {2153, 4140, 191034, 1320, 304, 4, true}, // NAD83(CSRS98) / UTM zone 11N
    {2154, 4171, 270988, 2080, 36, 4, false}, // RGF93 v1 / Lambert-93
    {2155, 4169, 8767, 1204, 3, 8, true}, // American Samoa 1962 / American Samoa Lambert
    {2156, 4152, 197912, 1457, 3, 4, true}, // NAD83(HARN) / UTM zone 59S
    {2157, 4173, 103653, 2351, 137, 4, false}, // IRENET95 / Irish Transverse Mercator
    {2158, 4173, 103690, 1338, 137, 4, false}, // IRENET95 / UTM zone 29N
    {2159, 4174, 298350, 2352, 168, 20, false}, // Sierra Leone 1924 / New Colony Grid
    {2160, 4174, 298386, 2353, 168, 20, false}, // Sierra Leone 1924 / New War Office Grid
    {2161, 4175, 298444, 1337, 305, 4, false}, // Sierra Leone 1968 / UTM zone 28N
    {2162, 4175, 298477, 1338, 306, 4, false}, // Sierra Leone 1968 / UTM zone 29N
    {2163, 4052, 148421, 22, 103, 4, true}, // US National Atlas Equal Area
    {2164, 4142, 129521, 1666, 1071, 4, false}, // Locodjo 1965 / TM 5 NW
    {2165, 4143, 5485, 1666, 1071, 4, false}, // Abidjan 1987 / TM 5 NW
    {2166, 4178, 259550, 1506, 308, 5, true}, // Pulkovo 1942(83) / Gauss Kruger zone 3
    {2167, 4178, 259589, 1507, 309, 5, true}, // Pulkovo 1942(83) / Gauss Kruger zone 4
    {2168, 4178, 259628, 1508, 308, 5, true}, // Pulkovo 1942(83) / Gauss Kruger zone 5
    {2169, 4181, 125394, 2354, 61, 5, false}, // LUREF / Luxembourg TM
    {2170, 4312, 132950, 2355, 92, 5, true}, // MGI / Slovenia Grid
    {2171, 4179, 258886, 2185, 311, 5, true}, // Pulkovo 1942(58) / Poland zone I
    {2172, 4179, 258919, 2186, 312, 5, false}, // Pulkovo 1942(58) / Poland zone II
    {2173, 4179, 258953, 2187, 313, 5, false}, // Pulkovo 1942(58) / Poland zone III
    {2174, 4179, 258988, 2188, 314, 5, false}, // Pulkovo 1942(58) / Poland zone IV
    {2175, 4179, 259022, 2189, 315, 5, false}, // Pulkovo 1942(58) / Poland zone V
    {2176, 9702, 65116, 2192, 316, 5, false}, // ETRF2000-PL / CS2000/15
    {2177, 9702, 65140, 2193, 317, 5, false}, // ETRF2000-PL / CS2000/18
    {2178, 9702, 65164, 2194, 318, 5, false}, // ETRF2000-PL / CS2000/21
    {2179, 9702, 65188, 2195, 319, 5, false}, // ETRF2000-PL / CS2000/24
    {2180, 9702, 65212, 2191, 84, 5, false}, // ETRF2000-PL / CS92
    {2188, 4182, 27886, 1334, 169, 4, false}, // Azores Occidental 1939 / UTM zone 25N
    {2189, 4183, 27717, 1335, 134, 4, false}, // Azores Central 1948 / UTM zone 26N
    {2190, 4184, 27976, 1335, 170, 4, false}, // Azores Oriental 1940 / UTM zone 26N
    {2191, 4185, 134787, 1337, 145, 4, true}, // Madeira 1936 / UTM zone 28N
    {2192, 4230, 61211, 2081, 153, 4, true}, // ED50 / France EuroLambert
    {2193, 4167, 216865, 2358, 1994, 5, false}, // NZGD2000 / New Zealand Transverse Mercator 2000
    {2194, 4169, 8767, 1205, 3, 8, true}, // American Samoa 1962 / American Samoa Lambert
    {2195, 4152, 197860, 1400, 1410, 4, false}, // NAD83(HARN) / UTM zone 2S
    {2196, 4258, 66745, 2206, 1087, 4, false}, // ETRS89 / Kp2000 Jutland
    {2197, 4258, 66769, 2207, 1088, 4, false}, // ETRS89 / Kp2000 Zealand
    {2198, 4258, 66720, 2208, 1089, 4, false}, // ETRS89 / Kp2000 Bornholm
    {2199, 4191, 8036, 1475, 1, 5, true}, // Albanian 1987 / Gauss Kruger zone 4
    {2200, 4122, 5034, 2334, 245, 5, false}, // ATS77 / New Brunswick Stereographic (ATS77)
    {2201, 4189, 270556, 1327, 486, 4, false}, // REGVEN / UTM zone 18N
    {2202, 4189, 270578, 1328, 1914, 4, false}, // REGVEN / UTM zone 19N
    {2203, 4189, 270600, 1329, 1913, 4, false}, // REGVEN / UTM zone 20N
    {2204, 4267, 148277, 1206, 212, 8, false}, // NAD27 / Tennessee
    {2205, 4269, 153697, 1207, 987, 4, false}, // NAD83 / Kentucky North
    {2206, 4230, 61175, 1512, 320, 5, false}, // ED50 / 3-degree Gauss-Kruger zone 9
    {2207, 4230, 60953, 1513, 321, 5, false}, // ED50 / 3-degree Gauss-Kruger zone 10
    {2208, 4230, 60990, 1514, 322, 5, false}, // ED50 / 3-degree Gauss-Kruger zone 11
    {2209, 4230, 61027, 1515, 323, 5, false}, // ED50 / 3-degree Gauss-Kruger zone 12
    {2210, 4230, 61064, 1516, 324, 5, false}, // ED50 / 3-degree Gauss-Kruger zone 13
    {2211, 4230, 61101, 1517, 325, 5, false}, // ED50 / 3-degree Gauss-Kruger zone 14
    {2212, 4230, 61138, 1518, 326, 5, false}, // ED50 / 3-degree Gauss-Kruger zone 15
    {2213, 4258, 67411, 1597, 1092, 4, false}, // ETRS89 / TM 30 NE
    {2214, 4192, 60443, 2209, 1093, 4, true}, // Douala 1948 / AOF west
    {2215, 4193, 136510, 1341, 1093, 4, false}, // Manoca 1962 / UTM zone 32N
    {2216, 4194, 269392, 1331, 1101, 4, false}, // Qornoq 1927 / UTM zone 22N
    {2217, 4194, 269419, 1332, 1100, 4, false}, // Qornoq 1927 / UTM zone 23N
    {2218, 4195, 297462, 2214, 1553, 3, false}, // Scoresbysund 1952 / Greenland zone 5 east
    {2219, 4122, 5127, 1328, 327, 4, false}, // ATS77 / UTM zone 19N
    {2220, 4122, 5148, 1329, 328, 4, false}, // ATS77 / UTM zone 20N
    {2221, 4195, 297504, 2215, 1552, 3, false}, // Scoresbysund 1952 / Greenland zone 6 east
    {2222, 4269, 151254, 1208, 952, 6, false}, // NAD83 / Arizona East (ft)
    {2223, 4269, 151204, 1209, 951, 6, false}, // NAD83 / Arizona Central (ft)
    {2224, 4269, 151301, 1210, 953, 6, false}, // NAD83 / Arizona West (ft)
    {2225, 4269, 151977, 1211, 960, 8, false}, // NAD83 / California zone 1 (ftUS)
    {2226, 4269, 152036, 1212, 961, 8, false}, // NAD83 / California zone 2 (ftUS)
    {2227, 4269, 152095, 1213, 962, 8, false}, // NAD83 / California zone 3 (ftUS)
    {2228, 4269, 152154, 1214, 963, 8, false}, // NAD83 / California zone 4 (ftUS)
    {2229, 4269, 152213, 1215, 967, 8, false}, // NAD83 / California zone 5 (ftUS)
    {2230, 4269, 152272, 1216, 965, 8, false}, // NAD83 / California zone 6 (ftUS)
    {2231, 4269, 152414, 1217, 969, 8, false}, // NAD83 / Colorado North (ftUS)
    {2232, 4269, 152359, 1218, 968, 8, false}, // NAD83 / Colorado Central (ftUS)
    {2233, 4269, 152467, 1219, 970, 8, false}, // NAD83 / Colorado South (ftUS)
    {2234, 4269, 152517, 1220, 194, 8, false}, // NAD83 / Connecticut (ftUS)
    {2235, 4269, 152582, 1221, 195, 8, false}, // NAD83 / Delaware (ftUS)
    {2236, 4269, 152627, 1222, 971, 8, false}, // NAD83 / Florida East (ftUS)
    {2237, 4269, 152754, 1223, 973, 8, false}, // NAD83 / Florida West (ftUS)
    {2238, 4269, 152704, 1224, 972, 8, false}, // NAD83 / Florida North (ftUS)
    {2239, 4269, 152803, 1225, 974, 8, false}, // NAD83 / Georgia East (ftUS)
    {2240, 4269, 152852, 1226, 975, 8, false}, // NAD83 / Georgia West (ftUS)
    {2241, 4269, 153159, 1227, 977, 8, false}, // NAD83 / Idaho East (ftUS)
    {2242, 4269, 153111, 1228, 976, 8, false}, // NAD83 / Idaho Central (ftUS)
    {2243, 4269, 153238, 1229, 978, 8, false}, // NAD83 / Idaho West (ftUS)
    {2244, 4269, 153387, 1230, 981, 8, true}, // NAD83 / Indiana East (ftUS)
    {2245, 4269, 153436, 1231, 982, 8, true}, // NAD83 / Indiana West (ftUS)
    {2246, 4269, 153720, 1232, 987, 8, false}, // NAD83 / Kentucky North (ftUS)
    {2247, 4269, 153838, 1233, 988, 8, false}, // NAD83 / Kentucky South (ftUS)
    {2248, 4269, 154578, 1234, 201, 8, false}, // NAD83 / Maryland (ftUS)
    {2249, 4269, 154698, 1235, 994, 8, false}, // NAD83 / Massachusetts Mainland (ftUS)
    {2250, 4269, 154631, 1236, 993, 8, false}, // NAD83 / Massachusetts Island (ftUS)
    {2251, 4269, 154814, 1237, 513, 6, false}, // NAD83 / Michigan North (ft)
    {2252, 4269, 154761, 1238, 514, 6, false}, // NAD83 / Michigan Central (ft)
    {2253, 4269, 154899, 1239, 515, 6, false}, // NAD83 / Michigan South (ft)
    {2254, 4269, 155121, 1240, 1001, 8, false}, // NAD83 / Mississippi East (ftUS)
    {2255, 4269, 155201, 1241, 1002, 8, false}, // NAD83 / Mississippi West (ftUS)
    {2256, 4269, 155318, 1242, 204, 6, false}, // NAD83 / Montana (ft)
    {2257, 4269, 155852, 1243, 1013, 8, false}, // NAD83 / New Mexico East (ftUS)
    {2258, 4269, 155794, 1244, 1016, 8, false}, // NAD83 / New Mexico Central (ftUS)
    {2259, 4269, 155907, 1245, 1017, 8, false}, // NAD83 / New Mexico West (ftUS)
    {2260, 4269, 156017, 1246, 1019, 8, false}, // NAD83 / New York East (ftUS)
    {2261, 4269, 155963, 1247, 1018, 8, false}, // NAD83 / New York Central (ftUS)
    {2262, 4269, 156133, 1248, 1021, 8, false}, // NAD83 / New York West (ftUS)
    {2263, 4269, 156075, 1249, 1020, 8, false}, // NAD83 / New York Long Island (ftUS)
    {2264, 4269, 156185, 1250, 208, 8, false}, // NAD83 / North Carolina (ftUS)
    {2265, 4269, 156242, 1251, 1022, 6, false}, // NAD83 / North Dakota North (ft)
    {2266, 4269, 156301, 1252, 1023, 6, false}, // NAD83 / North Dakota South (ft)
    {2267, 4269, 156446, 1253, 1026, 8, false}, // NAD83 / Oklahoma North (ftUS)
    {2268, 4269, 156499, 1254, 1027, 8, false}, // NAD83 / Oklahoma South (ftUS)
    {2269, 4269, 156633, 1255, 1028, 6, false}, // NAD83 / Oregon North (ft)
    {2270, 4269, 156680, 1256, 1029, 6, false}, // NAD83 / Oregon South (ft)
    {2271, 4269, 156733, 1257, 1030, 8, false}, // NAD83 / Pennsylvania North (ftUS)
    {2272, 4269, 156794, 1258, 1031, 8, false}, // NAD83 / Pennsylvania South (ftUS)
    {2273, 4269, 156999, 1259, 211, 6, false}, // NAD83 / South Carolina (ft)
    {2274, 4269, 157201, 1260, 212, 8, false}, // NAD83 / Tennessee (ftUS)
    {2275, 4269, 157409, 1261, 1038, 8, false}, // NAD83 / Texas North (ftUS)
    {2276, 4269, 157464, 1262, 1039, 8, false}, // NAD83 / Texas North Central (ftUS)
    {2277, 4269, 157280, 1263, 1037, 8, false}, // NAD83 / Texas Central (ftUS)
    {2278, 4269, 157574, 1264, 1083, 8, false}, // NAD83 / Texas South Central (ftUS)
    {2279, 4269, 157519, 1265, 1084, 8, false}, // NAD83 / Texas South (ftUS)
    {2280, 4269, 158298, 1266, 1043, 6, false}, // NAD83 / Utah North (ft)
    {2281, 4269, 158225, 1267, 1042, 6, false}, // NAD83 / Utah Central (ft)
    {2282, 4269, 158367, 1268, 1044, 6, false}, // NAD83 / Utah South (ft)
    {2283, 4269, 158504, 1269, 1045, 8, false}, // NAD83 / Virginia North (ftUS)
    {2284, 4269, 158557, 1270, 1046, 8, false}, // NAD83 / Virginia South (ftUS)
    {2285, 4269, 158612, 1271, 1058, 8, false}, // NAD83 / Washington North (ftUS)
    {2286, 4269, 158669, 1272, 1059, 8, false}, // NAD83 / Washington South (ftUS)
    {2287, 4269, 158910, 1273, 1052, 8, false}, // NAD83 / Wisconsin North (ftUS)
    {2288, 4269, 158853, 1274, 1051, 8, false}, // NAD83 / Wisconsin Central (ftUS)
    {2289, 4269, 158965, 1275, 1053, 8, false}, // NAD83 / Wisconsin South (ftUS)
    {2290, 4122, 5078, 2322, 329, 4, false}, // ATS77 / Prince Edward Isl. Stereographic (ATS77)
    {2291, 4122, 190948, 2349, 329, 4, true}, // NAD83(CSRS98) / Prince Edward Isl. Stereographic (NAD83)
    {2292, 4140, 190948, 2349, 329, 4, true}, // NAD83(CSRS98) / Prince Edward Isl. Stereographic (NAD83)
    {2294, 4122, 4972, 1945, 330, 4, false}, // ATS77 / MTM Nova Scotia zone 4
    {2295, 4122, 5003, 1946, 331, 4, false}, // ATS77 / MTM Nova Scotia zone 5
    {2296, 4196, 8899, 2216, 1099, 3, false}, // Ammassalik 1958 / Greenland zone 7 east
    {2297, 4194, 268996, 2210, 1094, 3, true}, // Qornoq 1927 / Greenland zone 1 east
    {2298, 4194, 269032, 2211, 1095, 3, true}, // Qornoq 1927 / Greenland zone 2 east
    {2299, 4194, 269068, 2218, 1551, 3, false}, // Qornoq 1927 / Greenland zone 2 west
    {2300, 4194, 269104, 2212, 1096, 3, true}, // Qornoq 1927 / Greenland zone 3 east
    {2301, 4194, 269140, 2219, 1550, 3, false}, // Qornoq 1927 / Greenland zone 3 west
    {2302, 4194, 269176, 2213, 1097, 3, true}, // Qornoq 1927 / Greenland zone 4 east
    {2303, 4194, 269212, 2220, 1549, 3, false}, // Qornoq 1927 / Greenland zone 4 west
    {2304, 4194, 269248, 2221, 1548, 3, false}, // Qornoq 1927 / Greenland zone 5 west
    {2305, 4194, 269284, 2222, 1547, 3, false}, // Qornoq 1927 / Greenland zone 6 west
    {2306, 4194, 269320, 2223, 1546, 3, false}, // Qornoq 1927 / Greenland zone 7 west
    {2307, 4194, 269356, 2217, 1904, 3, false}, // Qornoq 1927 / Greenland zone 8 east
    {2308, 4211, 30432, 1604, 1104, 4, false}, // Batavia / TM 109 SE
    {2309, 4326, 348862, 1605, 1105, 4, false}, // WGS 84 / TM 116 SE
    {2310, 4326, 348899, 1606, 1106, 4, false}, // WGS 84 / TM 132 SE
    {2311, 4326, 348936, 1593, 1294, 4, false}, // WGS 84 / TM 6 NE
    {2312, 4197, 93579, 1342, 1107, 4, false}, // Garoua / UTM zone 33N
    {2313, 4198, 123899, 1342, 1108, 4, false}, // Kousseri / UTM zone 33N
    {2314, 4302, 313641, 2362, 166, 9, false}, // Trinidad 1903 / Trinidad Grid (ftCla)
    {2315, 4221, 43129, 1417, 1109, 4, false}, // Campo Inchauspe / UTM zone 19S
    {2316, 4221, 43160, 1418, 1110, 4, false}, // Campo Inchauspe / UTM zone 20S
    {2317, 4248, 242066, 2363, 1531, 4, false}, // PSAD56 / ICN Regional
    {2318, 4204, 7120, 2364, 1523, 4, false}, // Ain el Abd / Aramco Lambert
    {2319, 4230, 61340, 1546, 320, 5, false}, // ED50 / TM27
    {2320, 4230, 61352, 1576, 321, 5, false}, // ED50 / TM30
    {2321, 4230, 61364, 1547, 322, 5, false}, // ED50 / TM33
    {2322, 4230, 61376, 1577, 323, 5, false}, // ED50 / TM36
    {2323, 4230, 61388, 1548, 324, 5, false}, // ED50 / TM39
    {2324, 4230, 61400, 1578, 325, 5, false}, // ED50 / TM42
    {2325, 4230, 61412, 1549, 326, 5, false}, // ED50 / TM45
    {2326, 4611, 100506, 2365, 42, 5, false}, // Hong Kong 1980 Grid System
    {2327, 4610, 372904, 1484, 382, 5, false}, // Xian 1980 / Gauss-Kruger zone 13
    {2328, 4610, 372937, 1485, 383, 5, false}, // Xian 1980 / Gauss-Kruger zone 14
    {2329, 4610, 372970, 1486, 384, 5, false}, // Xian 1980 / Gauss-Kruger zone 15
    {2330, 4610, 373003, 1487, 385, 5, false}, // Xian 1980 / Gauss-Kruger zone 16
    {2331, 4610, 373036, 1488, 386, 5, false}, // Xian 1980 / Gauss-Kruger zone 17
    {2332, 4610, 373069, 1489, 387, 5, false}, // Xian 1980 / Gauss-Kruger zone 18
    {2333, 4610, 373102, 1490, 388, 5, false}, // Xian 1980 / Gauss-Kruger zone 19
    {2334, 4610, 373135, 1491, 389, 5, false}, // Xian 1980 / Gauss-Kruger zone 20
    {2335, 4610, 373168, 1492, 390, 5, false}, // Xian 1980 / Gauss-Kruger zone 21
    {2336, 4610, 373201, 1493, 391, 5, false}, // Xian 1980 / Gauss-Kruger zone 22
    {2337, 4610, 373234, 1494, 392, 5, false}, // Xian 1980 / Gauss-Kruger zone 23
    {2338, 4610, 372744, 1554, 382, 5, false}, // Xian 1980 / Gauss-Kruger CM 75E
    {2339, 4610, 372776, 1555, 383, 5, false}, // Xian 1980 / Gauss-Kruger CM 81E
    {2340, 4610, 372808, 1556, 384, 5, false}, // Xian 1980 / Gauss-Kruger CM 87E
    {2341, 4610, 372840, 1557, 385, 5, false}, // Xian 1980 / Gauss-Kruger CM 93E
    {2342, 4610, 372872, 1558, 386, 5, false}, // Xian 1980 / Gauss-Kruger CM 99E
    {2343, 4610, 372546, 1559, 387, 5, false}, // Xian 1980 / Gauss-Kruger CM 105E
    {2344, 4610, 372579, 1560, 388, 5, false}, // Xian 1980 / Gauss-Kruger CM 111E
    {2345, 4610, 372612, 1561, 389, 5, false}, // Xian 1980 / Gauss-Kruger CM 117E
    {2346, 4610, 372645, 1562, 390, 5, false}, // Xian 1980 / Gauss-Kruger CM 123E
    {2347, 4610, 372678, 1563, 391, 5, false}, // Xian 1980 / Gauss-Kruger CM 129E
    {2348, 4610, 372711, 1564, 392, 5, false}, // Xian 1980 / Gauss-Kruger CM 135E
    {2349, 4610, 371664, 1528, 1170, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger zone 25
    {2350, 4610, 371706, 1529, 1171, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger zone 26
    {2351, 4610, 371748, 1530, 1172, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger zone 27
    {2352, 4610, 371790, 1531, 1173, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger zone 28
    {2353, 4610, 371832, 1532, 1174, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger zone 29
    {2354, 4610, 371874, 1533, 1175, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger zone 30
    {2355, 4610, 371916, 1534, 1176, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger zone 31
    {2356, 4610, 371958, 1535, 1177, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger zone 32
    {2357, 4610, 372000, 1536, 1178, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger zone 33
    {2358, 4610, 372042, 1537, 1179, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger zone 34
    {2359, 4610, 372084, 1538, 1180, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger zone 35
    {2360, 4610, 372126, 1539, 1181, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger zone 36
    {2361, 4610, 372168, 1540, 1182, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger zone 37
    {2362, 4610, 372210, 1541, 1183, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger zone 38
    {2363, 4610, 372252, 1542, 1184, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger zone 39
    {2364, 4610, 372294, 1372, 1185, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger zone 40
    {2365, 4610, 372336, 1373, 1186, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger zone 41
    {2366, 4610, 372378, 1374, 1187, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger zone 42
    {2367, 4610, 372420, 1375, 1188, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger zone 43
    {2368, 4610, 372462, 1376, 1189, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger zone 44
    {2369, 4610, 372504, 1377, 1190, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger zone 45
    {2370, 4610, 371295, 1554, 1170, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger CM 75E
    {2371, 4610, 371336, 1584, 1171, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger CM 78E
    {2372, 4610, 371377, 1555, 1172, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger CM 81E
    {2373, 4610, 371418, 1585, 1173, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger CM 84E
    {2374, 4610, 371459, 1556, 1174, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger CM 87E
    {2375, 4610, 371500, 1586, 1175, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger CM 90E
    {2376, 4610, 371541, 1557, 1176, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger CM 93E
    {2377, 4610, 371582, 1587, 1177, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger CM 96E
    {2378, 4610, 371623, 1558, 1178, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger CM 99E
    {2379, 4610, 370791, 1588, 1179, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger CM 102E
    {2380, 4610, 370833, 1559, 1180, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger CM 105E
    {2381, 4610, 370875, 1589, 1181, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger CM 108E
    {2382, 4610, 370917, 1560, 1182, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger CM 111E
    {2383, 4610, 370959, 1590, 1183, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger CM 114E
    {2384, 4610, 371001, 1561, 1184, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger CM 117E
    {2385, 4610, 371043, 1460, 1185, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger CM 120E
    {2386, 4610, 371085, 1562, 1186, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger CM 123E
    {2387, 4610, 371127, 1461, 1187, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger CM 126E
    {2388, 4610, 371169, 1563, 1188, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger CM 129E
    {2389, 4610, 371211, 1462, 1189, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger CM 132E
    {2390, 4610, 371253, 1564, 1190, 5, false}, // Xian 1980 / 3-degree Gauss-Kruger CM 135E
    {2391, 4123, 117317, 2132, 332, 5, false}, // KKJ / Finland zone 1
    {2392, 4123, 117338, 2133, 333, 5, false}, // KKJ / Finland zone 2
    {2393, 4123, 117256, 2134, 334, 5, false}, // KKJ / Finland Uniform Coordinate System
    {2394, 4123, 117359, 2135, 335, 5, false}, // KKJ / Finland zone 4
    {2395, 4164, 304653, 1479, 289, 5, false}, // South Yemen / Gauss-Kruger zone 8
    {2396, 4164, 304687, 1480, 290, 5, false}, // South Yemen / Gauss-Kruger zone 9
    {2397, 4178, 259100, 1506, 308, 5, false}, // Pulkovo 1942(83) / 3-degree Gauss-Kruger zone 3
    {2398, 4178, 259202, 1507, 309, 5, false}, // Pulkovo 1942(83) / 3-degree Gauss-Kruger zone 4
    {2399, 4178, 259304, 1508, 310, 5, false}, // Pulkovo 1942(83) / 3-degree Gauss-Kruger zone 5
    {2400, 4124, 274471, 2319, 96, 5, true}, // RT90 2.5 gon W
    {2401, 4214, 31760, 1528, 1170, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger zone 25
    {2402, 4214, 31805, 1529, 1171, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger zone 26
    {2403, 4214, 31850, 1530, 1172, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger zone 27
    {2404, 4214, 31895, 1531, 1173, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger zone 28
    {2405, 4214, 31940, 1532, 1174, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger zone 29
    {2406, 4214, 31985, 1533, 1175, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger zone 30
    {2407, 4214, 32030, 1534, 1176, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger zone 31
    {2408, 4214, 32075, 1535, 1177, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger zone 32
    {2409, 4214, 32120, 1536, 1178, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger zone 33
    {2410, 4214, 32165, 1537, 1179, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger zone 34
    {2411, 4214, 32210, 1538, 1180, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger zone 35
    {2412, 4214, 32255, 1539, 1181, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger zone 36
    {2413, 4214, 32300, 1540, 1182, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger zone 37
    {2414, 4214, 32345, 1541, 1183, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger zone 38
    {2415, 4214, 32390, 1542, 1184, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger zone 39
    {2416, 4214, 32435, 1372, 1185, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger zone 40
    {2417, 4214, 32480, 1373, 1186, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger zone 41
    {2418, 4214, 32525, 1374, 1187, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger zone 42
    {2419, 4214, 32570, 1375, 1188, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger zone 43
    {2420, 4214, 32615, 1376, 1189, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger zone 44
    {2421, 4214, 32660, 1377, 1190, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger zone 45
    {2422, 4214, 31364, 1554, 1170, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger CM 75E
    {2423, 4214, 31408, 1584, 1171, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger CM 78E
    {2424, 4214, 31452, 1555, 1172, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger CM 81E
    {2425, 4214, 31496, 1585, 1173, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger CM 84E
    {2426, 4214, 31540, 1556, 1174, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger CM 87E
    {2427, 4214, 31584, 1586, 1175, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger CM 90E
    {2428, 4214, 31628, 1557, 1176, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger CM 93E
    {2429, 4214, 31672, 1587, 1177, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger CM 96E
    {2430, 4214, 31716, 1558, 1178, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger CM 99E
    {2431, 4214, 30824, 1588, 1179, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger CM 102E
    {2432, 4214, 30869, 1559, 1180, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger CM 105E
    {2433, 4214, 30914, 1589, 1181, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger CM 108E
    {2434, 4214, 30959, 1560, 1182, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger CM 111E
    {2435, 4214, 31004, 1590, 1183, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger CM 114E
    {2436, 4214, 31049, 1561, 1184, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger CM 117E
    {2437, 4214, 31094, 1460, 1185, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger CM 120E
    {2438, 4214, 31139, 1562, 1186, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger CM 123E
    {2439, 4214, 31184, 1461, 1187, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger CM 126E
    {2440, 4214, 31229, 1563, 1188, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger CM 129E
    {2441, 4214, 31274, 1462, 1189, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger CM 132E
    {2442, 4214, 31319, 1564, 1190, 5, false}, // Beijing 1954 / 3-degree Gauss-Kruger CM 135E
    {2443, 4612, 113073, 1947, 639, 5, false}, // JGD2000 / Japan Plane Rectangular CS I
    {2444, 4612, 113112, 1948, 640, 5, false}, // JGD2000 / Japan Plane Rectangular CS II
    {2445, 4612, 113152, 1949, 641, 5, false}, // JGD2000 / Japan Plane Rectangular CS III
    {2446, 4612, 113193, 1950, 642, 5, false}, // JGD2000 / Japan Plane Rectangular CS IV
    {2447, 4612, 113273, 1951, 643, 5, false}, // JGD2000 / Japan Plane Rectangular CS V
    {2448, 4612, 113312, 1952, 644, 5, false}, // JGD2000 / Japan Plane Rectangular CS VI
    {2449, 4612, 113352, 1953, 645, 5, false}, // JGD2000 / Japan Plane Rectangular CS VII
    {2450, 4612, 113393, 1954, 646, 5, false}, // JGD2000 / Japan Plane Rectangular CS VIII
    {2451, 4612, 113233, 1955, 647, 5, false}, // JGD2000 / Japan Plane Rectangular CS IX
    {2452, 4612, 113435, 1956, 648, 5, false}, // JGD2000 / Japan Plane Rectangular CS X
    {2453, 4612, 113474, 1957, 649, 5, false}, // JGD2000 / Japan Plane Rectangular CS XI
    {2454, 4612, 113514, 1958, 650, 5, false}, // JGD2000 / Japan Plane Rectangular CS XII
    {2455, 4612, 113555, 1959, 651, 5, false}, // JGD2000 / Japan Plane Rectangular CS XIII
    {2456, 4612, 113597, 1960, 652, 5, false}, // JGD2000 / Japan Plane Rectangular CS XIV
    {2457, 4612, 113679, 1961, 653, 5, false}, // JGD2000 / Japan Plane Rectangular CS XV
    {2458, 4612, 113719, 1962, 654, 5, false}, // JGD2000 / Japan Plane Rectangular CS XVI
    {2459, 4612, 113760, 1963, 655, 5, false}, // JGD2000 / Japan Plane Rectangular CS XVII
    {2460, 4612, 113802, 1964, 656, 5, false}, // JGD2000 / Japan Plane Rectangular CS XVIII
    {2461, 4612, 113638, 1965, 657, 5, false}, // JGD2000 / Japan Plane Rectangular CS XIX
    {2462, 4191, 8072, 1475, 1477, 5, false}, // Albanian 1987 / Gauss-Kruger zone 4
    {2463, 4200, 266627, 1545, 549, 5, false}, // Pulkovo 1995 / Gauss-Kruger CM 21E
    {2464, 4200, 266662, 1546, 550, 5, false}, // Pulkovo 1995 / Gauss-Kruger CM 27E
    {2465, 4200, 266697, 1547, 551, 5, false}, // Pulkovo 1995 / Gauss-Kruger CM 33E
    {2466, 4200, 266732, 1548, 552, 5, false}, // Pulkovo 1995 / Gauss-Kruger CM 39E
    {2467, 4200, 266767, 1549, 553, 5, false}, // Pulkovo 1995 / Gauss-Kruger CM 45E
    {2468, 4200, 266802, 1550, 554, 5, false}, // Pulkovo 1995 / Gauss-Kruger CM 51E
    {2469, 4200, 266837, 1551, 555, 5, false}, // Pulkovo 1995 / Gauss-Kruger CM 57E
    {2470, 4200, 266872, 1552, 556, 5, false}, // Pulkovo 1995 / Gauss-Kruger CM 63E
    {2471, 4200, 266907, 1553, 557, 5, false}, // Pulkovo 1995 / Gauss-Kruger CM 69E
    {2472, 4200, 266942, 1554, 558, 5, false}, // Pulkovo 1995 / Gauss-Kruger CM 75E
    {2473, 4200, 266977, 1555, 559, 5, false}, // Pulkovo 1995 / Gauss-Kruger CM 81E
    {2474, 4200, 267012, 1556, 560, 5, false}, // Pulkovo 1995 / Gauss-Kruger CM 87E
    {2475, 4200, 267047, 1557, 561, 5, false}, // Pulkovo 1995 / Gauss-Kruger CM 93E
    {2476, 4200, 267082, 1558, 562, 5, false}, // Pulkovo 1995 / Gauss-Kruger CM 99E
    {2477, 4200, 266087, 1559, 563, 5, false}, // Pulkovo 1995 / Gauss-Kruger CM 105E
    {2478, 4200, 266123, 1560, 564, 5, false}, // Pulkovo 1995 / Gauss-Kruger CM 111E
    {2479, 4200, 266159, 1561, 565, 5, false}, // Pulkovo 1995 / Gauss-Kruger CM 117E
    {2480, 4200, 266195, 1562, 566, 5, false}, // Pulkovo 1995 / Gauss-Kruger CM 123E
    {2481, 4200, 266231, 1563, 567, 5, false}, // Pulkovo 1995 / Gauss-Kruger CM 129E
    {2482, 4200, 266267, 1564, 568, 5, false}, // Pulkovo 1995 / Gauss-Kruger CM 135E
    {2483, 4200, 266303, 1565, 569, 5, false}, // Pulkovo 1995 / Gauss-Kruger CM 141E
    {2484, 4200, 266339, 1566, 570, 5, false}, // Pulkovo 1995 / Gauss-Kruger CM 147E
    {2485, 4200, 266375, 1567, 571, 5, false}, // Pulkovo 1995 / Gauss-Kruger CM 153E
    {2486, 4200, 266411, 1568, 572, 5, false}, // Pulkovo 1995 / Gauss-Kruger CM 159E
    {2487, 4200, 266447, 1569, 573, 5, false}, // Pulkovo 1995 / Gauss-Kruger CM 165E
    {2488, 4200, 266483, 1570, 574, 5, false}, // Pulkovo 1995 / Gauss-Kruger CM 171E
    {2489, 4200, 266555, 1571, 575, 5, false}, // Pulkovo 1995 / Gauss-Kruger CM 177E
    {2490, 4200, 266591, 1572, 576, 5, false}, // Pulkovo 1995 / Gauss-Kruger CM 177W
    {2491, 4200, 266519, 1573, 577, 5, false}, // Pulkovo 1995 / Gauss-Kruger CM 171W
    {2492, 4284, 256872, 1543, 591, 5, true}, // Pulkovo 1942 / Gauss-Kruger CM 9E
    {2493, 4284, 256167, 1544, 578, 5, true}, // Pulkovo 1942 / Gauss-Kruger CM 15E
    {2494, 4284, 256382, 1545, 579, 5, false}, // Pulkovo 1942 / Gauss-Kruger CM 21E
    {2495, 4284, 256417, 1546, 580, 5, false}, // Pulkovo 1942 / Gauss-Kruger CM 27E
    {2496, 4284, 256452, 1547, 581, 5, false}, // Pulkovo 1942 / Gauss-Kruger CM 33E
    {2497, 4284, 256487, 1548, 582, 5, false}, // Pulkovo 1942 / Gauss-Kruger CM 39E
    {2498, 4284, 256522, 1549, 583, 5, false}, // Pulkovo 1942 / Gauss-Kruger CM 45E
    {2499, 4284, 256557, 1550, 584, 5, false}, // Pulkovo 1942 / Gauss-Kruger CM 51E
    {2500, 4284, 256592, 1551, 585, 5, false}, // Pulkovo 1942 / Gauss-Kruger CM 57E
    {2501, 4284, 256627, 1552, 586, 5, false}, // Pulkovo 1942 / Gauss-Kruger CM 63E
    {2502, 4284, 256662, 1553, 587, 5, false}, // Pulkovo 1942 / Gauss-Kruger CM 69E
    {2503, 4284, 256697, 1554, 588, 5, false}, // Pulkovo 1942 / Gauss-Kruger CM 75E
    {2504, 4284, 256732, 1555, 589, 5, false}, // Pulkovo 1942 / Gauss-Kruger CM 81E
    {2505, 4284, 256767, 1556, 590, 5, false}, // Pulkovo 1942 / Gauss-Kruger CM 87E
    {2506, 4284, 256802, 1557, 561, 5, false}, // Pulkovo 1942 / Gauss-Kruger CM 93E
    {2507, 4284, 256837, 1558, 562, 5, false}, // Pulkovo 1942 / Gauss-Kruger CM 99E
    {2508, 4284, 255807, 1559, 563, 5, false}, // Pulkovo 1942 / Gauss-Kruger CM 105E
    {2509, 4284, 255843, 1560, 564, 5, false}, // Pulkovo 1942 / Gauss-Kruger CM 111E
    {2510, 4284, 255879, 1561, 565, 5, false}, // Pulkovo 1942 / Gauss-Kruger CM 117E
    {2511, 4284, 255915, 1562, 566, 5, false}, // Pulkovo 1942 / Gauss-Kruger CM 123E
    {2512, 4284, 255951, 1563, 567, 5, false}, // Pulkovo 1942 / Gauss-Kruger CM 129E
    {2513, 4284, 255987, 1564, 568, 5, false}, // Pulkovo 1942 / Gauss-Kruger CM 135E
    {2514, 4284, 256023, 1565, 569, 5, false}, // Pulkovo 1942 / Gauss-Kruger CM 141E
    {2515, 4284, 256059, 1566, 570, 5, false}, // Pulkovo 1942 / Gauss-Kruger CM 147E
    {2516, 4284, 256095, 1567, 571, 5, false}, // Pulkovo 1942 / Gauss-Kruger CM 153E
    {2517, 4284, 256131, 1568, 572, 5, false}, // Pulkovo 1942 / Gauss-Kruger CM 159E
    {2518, 4284, 256202, 1569, 573, 5, false}, // Pulkovo 1942 / Gauss-Kruger CM 165E
    {2519, 4284, 256238, 1570, 574, 5, false}, // Pulkovo 1942 / Gauss-Kruger CM 171E
    {2520, 4284, 256310, 1571, 575, 5, false}, // Pulkovo 1942 / Gauss-Kruger CM 177E
    {2521, 4284, 256346, 1572, 576, 5, false}, // Pulkovo 1942 / Gauss-Kruger CM 177W
    {2522, 4284, 256274, 1573, 577, 5, false}, // Pulkovo 1942 / Gauss-Kruger CM 171W
    {2523, 4284, 254179, 1510, 1112, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 7
    {2524, 4284, 254223, 1511, 1113, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 8
    {2525, 4284, 254267, 1512, 1114, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 9
    {2526, 4284, 251660, 1513, 1115, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 10
    {2527, 4284, 251705, 1514, 1116, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 11
    {2528, 4284, 251750, 1515, 1117, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 12
    {2529, 4284, 251795, 1516, 1118, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 13
    {2530, 4284, 251840, 1517, 1119, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 14
    {2531, 4284, 251885, 1518, 1120, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 15
    {2532, 4284, 251930, 1519, 1121, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 16
    {2533, 4284, 251975, 1520, 1122, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 17
    {2534, 4284, 252020, 1521, 1123, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 18
    {2535, 4284, 252065, 1522, 1124, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 19
    {2536, 4284, 252110, 1523, 1125, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 20
    {2537, 4284, 252155, 1524, 1126, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 21
    {2538, 4284, 252200, 1525, 1127, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 22
    {2539, 4284, 252245, 1526, 1128, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 23
    {2540, 4284, 252290, 1527, 1129, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 24
    {2541, 4284, 252335, 1528, 1130, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 25
    {2542, 4284, 252380, 1529, 1131, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 26
    {2543, 4284, 252425, 1530, 1132, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 27
    {2544, 4284, 252470, 1531, 1133, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 28
    {2545, 4284, 252515, 1532, 1134, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 29
    {2546, 4284, 252560, 1533, 1135, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 30
    {2547, 4284, 252605, 1534, 1136, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 31
    {2548, 4284, 252650, 1535, 1137, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 32
    {2549, 4284, 252695, 1536, 1138, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 33
    {2550, 4125, 296306, 1448, 155, 4, true}, // Samboja / UTM zone 50S
    {2551, 4284, 252740, 1537, 1139, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 34
    {2552, 4284, 252785, 1538, 1140, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 35
    {2553, 4284, 252830, 1539, 1141, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 36
    {2554, 4284, 252875, 1540, 1142, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 37
    {2555, 4284, 252920, 1541, 1143, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 38
    {2556, 4284, 252965, 1542, 1144, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 39
    {2557, 4284, 253010, 1372, 1145, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 40
    {2558, 4284, 253055, 1373, 1146, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 41
    {2559, 4284, 253100, 1374, 1147, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 42
    {2560, 4284, 253145, 1375, 1148, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 43
    {2561, 4284, 253190, 1376, 1149, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 44
    {2562, 4284, 253235, 1377, 1150, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 45
    {2563, 4284, 253280, 1378, 1151, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 46
    {2564, 4284, 253325, 1379, 1152, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 47
    {2565, 4284, 253370, 1380, 1153, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 48
    {2566, 4284, 253415, 1381, 1154, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 49
    {2567, 4284, 253460, 1382, 1155, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 50
    {2568, 4284, 253505, 1383, 1156, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 51
    {2569, 4284, 253550, 1384, 1157, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 52
    {2570, 4284, 253595, 1385, 1158, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 53
    {2571, 4284, 253640, 1386, 1159, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 54
    {2572, 4284, 253685, 1387, 1160, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 55
    {2573, 4284, 253730, 1388, 1161, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 56
    {2574, 4284, 253775, 1389, 1162, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 57
    {2575, 4284, 253820, 1390, 1163, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 58
    {2576, 4284, 253865, 1391, 1164, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 59
    {2577, 4284, 253954, 1392, 1165, 5, true}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 60
    {2578, 4284, 253999, 1393, 1166, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 61
    {2579, 4284, 254044, 1394, 1167, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 62
    {2580, 4284, 254089, 1395, 1168, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 63
    {2581, 4284, 254134, 1396, 1169, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 64
    {2582, 4284, 250472, 1545, 1112, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 21E
    {2583, 4284, 250516, 1575, 1113, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 24E
    {2584, 4284, 250560, 1546, 1114, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 27E
    {2585, 4284, 250604, 1576, 1115, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 30E
    {2586, 4284, 250648, 1547, 1116, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 33E
    {2587, 4284, 250692, 1577, 1117, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 36E
    {2588, 4284, 250736, 1548, 1118, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 39E
    {2589, 4284, 250780, 1578, 1119, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 42E
    {2590, 4284, 250824, 1549, 1120, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 45E
    {2591, 4284, 250868, 1579, 1121, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 48E
    {2592, 4284, 250912, 1550, 1122, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 51E
    {2593, 4284, 250956, 1580, 1123, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 54E
    {2594, 4284, 251000, 1551, 1124, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 57E
    {2595, 4284, 251044, 1581, 1125, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 60E
    {2596, 4284, 251088, 1552, 1126, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 63E
    {2597, 4284, 251132, 1582, 1127, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 66E
    {2598, 4284, 251176, 1553, 1128, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 69E
    {2599, 4284, 251220, 1583, 1129, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 72E
    {2600, 4669, 127602, 2323, 60, 5, true}, // Lietuvos Koordinoei Sistema 1994
    {2601, 4284, 251264, 1554, 1130, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 75E
    {2602, 4284, 251308, 1584, 1131, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 78E
    {2603, 4284, 251352, 1555, 1132, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 81E
    {2604, 4284, 251396, 1585, 1133, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 84E
    {2605, 4284, 251440, 1556, 1134, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 87E
    {2606, 4284, 251484, 1586, 1135, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 90E
    {2607, 4284, 251528, 1557, 1136, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 93E
    {2608, 4284, 251572, 1587, 1137, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 96E
    {2609, 4284, 251616, 1558, 1138, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 99E
    {2610, 4284, 249033, 1588, 1139, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 102E
    {2611, 4284, 249078, 1559, 1140, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 105E
    {2612, 4284, 249123, 1589, 1141, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 108E
    {2613, 4284, 249168, 1560, 1142, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 111E
    {2614, 4284, 249213, 1590, 1143, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 114E
    {2615, 4284, 249258, 1561, 1144, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 117E
    {2616, 4284, 249303, 1460, 1145, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 120E
    {2617, 4284, 249348, 1562, 1146, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 123E
    {2618, 4284, 249393, 1461, 1147, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 126E
    {2619, 4284, 249438, 1563, 1148, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 129E
    {2620, 4284, 249483, 1462, 1149, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 132E
    {2621, 4284, 249528, 1564, 1150, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 135E
    {2622, 4284, 249573, 1463, 1151, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 138E
    {2623, 4284, 249618, 1565, 1152, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 141E
    {2624, 4284, 249663, 1464, 1153, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 144E
    {2625, 4284, 249708, 1566, 1154, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 147E
    {2626, 4284, 249753, 1465, 1155, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 150E
    {2627, 4284, 249798, 1567, 1156, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 153E
    {2628, 4284, 249843, 1466, 1157, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 156E
    {2629, 4284, 249888, 1568, 1158, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 159E
    {2630, 4284, 249933, 1467, 1159, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 162E
    {2631, 4284, 249978, 1569, 1160, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 165E
    {2632, 4284, 250023, 1468, 1161, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 168E
    {2633, 4284, 250113, 1570, 1162, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 171E
    {2634, 4284, 250203, 1469, 1163, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 174E
    {2635, 4284, 250293, 1571, 1164, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 177E
    {2636, 4284, 250383, 1470, 1165, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 180E
    {2637, 4284, 250338, 1572, 1166, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 177W
    {2638, 4284, 250248, 1471, 1167, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 174W
    {2639, 4284, 250158, 1573, 1168, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 171W
    {2640, 4284, 250068, 1472, 1169, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 168W
    {2641, 4200, 265033, 1510, 1191, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 7
    {2642, 4200, 265077, 1511, 1192, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 8
    {2643, 4200, 265121, 1512, 1193, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 9
    {2644, 4200, 262514, 1513, 1194, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 10
    {2645, 4200, 262559, 1514, 1195, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 11
    {2646, 4200, 262604, 1515, 1196, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 12
    {2647, 4200, 262649, 1516, 1197, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 13
    {2648, 4200, 262694, 1517, 1198, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 14
    {2649, 4200, 262739, 1518, 1199, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 15
    {2650, 4200, 262784, 1519, 1200, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 16
    {2651, 4200, 262829, 1520, 1201, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 17
    {2652, 4200, 262874, 1521, 1202, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 18
    {2653, 4200, 262919, 1522, 1203, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 19
    {2654, 4200, 262964, 1523, 1204, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 20
    {2655, 4200, 263009, 1524, 1205, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 21
    {2656, 4200, 263054, 1525, 1206, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 22
    {2657, 4200, 263099, 1526, 1207, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 23
    {2658, 4200, 263144, 1527, 1208, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 24
    {2659, 4200, 263189, 1528, 1209, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 25
    {2660, 4200, 263234, 1529, 1210, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 26
    {2661, 4200, 263279, 1530, 1211, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 27
    {2662, 4200, 263324, 1531, 1212, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 28
    {2663, 4200, 263369, 1532, 1213, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 29
    {2664, 4200, 263414, 1533, 1135, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 30
    {2665, 4200, 263459, 1534, 1136, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 31
    {2666, 4200, 263504, 1535, 1137, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 32
    {2667, 4200, 263549, 1536, 1138, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 33
    {2668, 4200, 263594, 1537, 1139, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 34
    {2669, 4200, 263639, 1538, 1140, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 35
    {2670, 4200, 263684, 1539, 1141, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 36
    {2671, 4200, 263729, 1540, 1142, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 37
    {2672, 4200, 263774, 1541, 1143, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 38
    {2673, 4200, 263819, 1542, 1144, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 39
    {2674, 4200, 263864, 1372, 1145, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 40
    {2675, 4200, 263909, 1373, 1146, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 41
    {2676, 4200, 263954, 1374, 1147, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 42
    {2677, 4200, 263999, 1375, 1148, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 43
    {2678, 4200, 264044, 1376, 1149, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 44
    {2679, 4200, 264089, 1377, 1150, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 45
    {2680, 4200, 264134, 1378, 1151, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 46
    {2681, 4200, 264179, 1379, 1152, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 47
    {2682, 4200, 264224, 1380, 1153, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 48
    {2683, 4200, 264269, 1381, 1154, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 49
    {2684, 4200, 264314, 1382, 1155, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 50
    {2685, 4200, 264359, 1383, 1156, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 51
    {2686, 4200, 264404, 1384, 1157, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 52
    {2687, 4200, 264449, 1385, 1158, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 53
    {2688, 4200, 264494, 1386, 1159, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 54
    {2689, 4200, 264539, 1387, 1160, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 55
    {2690, 4200, 264584, 1388, 1161, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 56
    {2691, 4200, 264629, 1389, 1162, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 57
    {2692, 4200, 264674, 1390, 1163, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 58
    {2693, 4200, 264719, 1391, 1164, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 59
    {2694, 4200, 264808, 1392, 1165, 5, true}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 60
    {2695, 4200, 264853, 1393, 1166, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 61
    {2696, 4200, 264898, 1394, 1167, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 62
    {2697, 4200, 264943, 1395, 1168, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 63
    {2698, 4200, 264988, 1396, 1169, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 64
    {2699, 4200, 261326, 1545, 1191, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 21E
    {2700, 4200, 261370, 1575, 1192, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 24E
    {2701, 4200, 261414, 1546, 1193, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 27E
    {2702, 4200, 261458, 1576, 1194, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 30E
    {2703, 4200, 261502, 1547, 1195, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 33E
    {2704, 4200, 261546, 1577, 1196, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 36E
    {2705, 4200, 261590, 1548, 1197, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 39E
    {2706, 4200, 261634, 1578, 1198, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 42E
    {2707, 4200, 261678, 1549, 1199, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 45E
    {2708, 4200, 261722, 1579, 1200, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 48E
    {2709, 4200, 261766, 1550, 1201, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 51E
    {2710, 4200, 261810, 1580, 1202, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 54E
    {2711, 4200, 261854, 1551, 1203, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 57E
    {2712, 4200, 261898, 1581, 1204, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 60E
    {2713, 4200, 261942, 1552, 1205, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 63E
    {2714, 4200, 261986, 1582, 1206, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 66E
    {2715, 4200, 262030, 1553, 1207, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 69E
    {2716, 4200, 262074, 1583, 1208, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 72E
    {2717, 4200, 262118, 1554, 1209, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 75E
    {2718, 4200, 262162, 1584, 1210, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 78E
    {2719, 4200, 262206, 1555, 1211, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 81E
    {2720, 4200, 262250, 1585, 1212, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 84E
    {2721, 4200, 262294, 1556, 1213, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 87E
    {2722, 4200, 262338, 1586, 1135, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 90E
    {2723, 4200, 262382, 1557, 1136, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 93E
    {2724, 4200, 262426, 1587, 1137, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 96E
    {2725, 4200, 262470, 1558, 1138, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 99E
    {2726, 4200, 259887, 1588, 1139, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 102E
    {2727, 4200, 259932, 1559, 1140, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 105E
    {2728, 4200, 259977, 1589, 1141, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 108E
    {2729, 4200, 260022, 1560, 1142, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 111E
    {2730, 4200, 260067, 1590, 1143, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 114E
    {2731, 4200, 260112, 1561, 1144, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 117E
    {2732, 4200, 260157, 1460, 1145, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 120E
    {2733, 4200, 260202, 1562, 1146, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 123E
    {2734, 4200, 260247, 1461, 1147, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 126E
    {2735, 4200, 260292, 1563, 1148, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 129E
    {2736, 4127, 311140, 1434, 336, 4, false}, // Tete / UTM zone 36S
    {2737, 4127, 311160, 1435, 337, 4, false}, // Tete / UTM zone 37S
    {2738, 4200, 260337, 1462, 1149, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 132E
    {2739, 4200, 260382, 1564, 1150, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 135E
    {2740, 4200, 260427, 1463, 1151, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 138E
    {2741, 4200, 260472, 1565, 1152, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 141E
    {2742, 4200, 260517, 1464, 1153, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 144E
    {2743, 4200, 260562, 1566, 1154, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 147E
    {2744, 4200, 260607, 1465, 1155, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 150E
    {2745, 4200, 260652, 1567, 1156, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 153E
    {2746, 4200, 260697, 1466, 1157, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 156E
    {2747, 4200, 260742, 1568, 1158, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 159E
    {2748, 4200, 260787, 1467, 1159, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 162E
    {2749, 4200, 260832, 1569, 1160, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 165E
    {2750, 4200, 260877, 1468, 1161, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 168E
    {2751, 4200, 260967, 1570, 1162, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 171E
    {2752, 4200, 261057, 1469, 1163, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 174E
    {2753, 4200, 261147, 1571, 1164, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 177E
    {2754, 4200, 261237, 1470, 1165, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 180E
    {2755, 4200, 261192, 1572, 1166, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 177W
    {2756, 4200, 261102, 1471, 1167, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 174W
    {2757, 4200, 261012, 1573, 1168, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 171W
    {2758, 4200, 260922, 1472, 1169, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 168W
    {2759, 4152, 191311, 911, 939, 4, false}, // NAD83(HARN) / Alabama East
    {2760, 4152, 191338, 912, 940, 4, false}, // NAD83(HARN) / Alabama West
    {2761, 4152, 191430, 918, 952, 4, false}, // NAD83(HARN) / Arizona East
    {2762, 4152, 191365, 919, 951, 4, false}, // NAD83(HARN) / Arizona Central
    {2763, 4152, 191489, 920, 953, 4, false}, // NAD83(HARN) / Arizona West
    {2764, 4152, 191548, 923, 954, 4, false}, // NAD83(HARN) / Arkansas North
    {2765, 4152, 191613, 924, 955, 4, false}, // NAD83(HARN) / Arkansas South
    {2766, 4152, 191710, 934, 960, 4, false}, // NAD83(HARN) / California zone 1
    {2767, 4152, 191781, 935, 961, 4, false}, // NAD83(HARN) / California zone 2
    {2768, 4152, 191852, 936, 962, 4, false}, // NAD83(HARN) / California zone 3
    {2769, 4152, 191923, 937, 963, 4, false}, // NAD83(HARN) / California zone 4
    {2770, 4152, 191994, 938, 967, 4, false}, // NAD83(HARN) / California zone 5
    {2771, 4152, 192065, 939, 965, 4, false}, // NAD83(HARN) / California zone 6
    {2772, 4152, 192205, 943, 969, 4, false}, // NAD83(HARN) / Colorado North
    {2773, 4152, 192136, 944, 968, 4, false}, // NAD83(HARN) / Colorado Central
    {2774, 4152, 192270, 945, 970, 4, false}, // NAD83(HARN) / Colorado South
    {2775, 4152, 192335, 947, 194, 4, false}, // NAD83(HARN) / Connecticut
    {2776, 4152, 192421, 949, 195, 4, false}, // NAD83(HARN) / Delaware
    {2777, 4152, 192474, 953, 971, 4, false}, // NAD83(HARN) / Florida East
    {2778, 4152, 192631, 954, 973, 4, false}, // NAD83(HARN) / Florida West
    {2779, 4152, 192568, 955, 972, 4, false}, // NAD83(HARN) / Florida North
    {2780, 4152, 192692, 959, 974, 4, false}, // NAD83(HARN) / Georgia East
    {2781, 4152, 192753, 960, 975, 4, false}, // NAD83(HARN) / Georgia West
    {2782, 4152, 192842, 1192, 341, 4, false}, // NAD83(HARN) / Hawaii zone 1
    {2783, 4152, 192870, 1193, 342, 4, false}, // NAD83(HARN) / Hawaii zone 2
    {2784, 4152, 192898, 1194, 343, 4, false}, // NAD83(HARN) / Hawaii zone 3
    {2785, 4152, 192961, 1195, 344, 4, false}, // NAD83(HARN) / Hawaii zone 4
    {2786, 4152, 192989, 1196, 345, 4, false}, // NAD83(HARN) / Hawaii zone 5
    {2787, 4152, 193080, 964, 977, 4, false}, // NAD83(HARN) / Idaho East
    {2788, 4152, 193017, 965, 976, 4, false}, // NAD83(HARN) / Idaho Central
    {2789, 4152, 193137, 966, 978, 4, false}, // NAD83(HARN) / Idaho West
    {2790, 4152, 193194, 969, 979, 4, false}, // NAD83(HARN) / Illinois East
    {2791, 4152, 193257, 970, 980, 4, false}, // NAD83(HARN) / Illinois West
    {2792, 4152, 193320, 973, 981, 4, false}, // NAD83(HARN) / Indiana East
    {2793, 4152, 193381, 974, 982, 4, false}, // NAD83(HARN) / Indiana West
    {2794, 4152, 193442, 977, 983, 4, false}, // NAD83(HARN) / Iowa North
    {2795, 4152, 193499, 978, 984, 4, false}, // NAD83(HARN) / Iowa South
    {2796, 4152, 193556, 981, 985, 4, false}, // NAD83(HARN) / Kansas North
    {2797, 4152, 193617, 982, 986, 4, false}, // NAD83(HARN) / Kansas South
    {2798, 4152, 193678, 1207, 987, 4, false}, // NAD83(HARN) / Kentucky North
    {2799, 4152, 193820, 987, 988, 4, false}, // NAD83(HARN) / Kentucky South
    {2800, 4152, 193885, 991, 989, 4, false}, // NAD83(HARN) / Louisiana North
    {2801, 4152, 193952, 992, 1085, 4, false}, // NAD83(HARN) / Louisiana South
    {2802, 4152, 194118, 996, 991, 4, false}, // NAD83(HARN) / Maine East
    {2803, 4152, 194175, 997, 992, 4, false}, // NAD83(HARN) / Maine West
    {2804, 4152, 194232, 1005, 201, 4, false}, // NAD83(HARN) / Maryland
    {2805, 4152, 194362, 1008, 994, 4, false}, // NAD83(HARN) / Massachusetts Mainland
    {2806, 4152, 194285, 1009, 993, 4, false}, // NAD83(HARN) / Massachusetts Island
    {2807, 4152, 194510, 1016, 513, 4, false}, // NAD83(HARN) / Michigan North
    {2808, 4152, 194443, 1017, 514, 4, false}, // NAD83(HARN) / Michigan Central
    {2809, 4152, 194613, 1018, 515, 4, false}, // NAD83(HARN) / Michigan South
    {2810, 4152, 194747, 1023, 999, 4, false}, // NAD83(HARN) / Minnesota North
    {2811, 4152, 194676, 1024, 998, 4, false}, // NAD83(HARN) / Minnesota Central
    {2812, 4152, 194814, 1025, 1000, 4, false}, // NAD83(HARN) / Minnesota South
    {2813, 4152, 194881, 1031, 1001, 4, false}, // NAD83(HARN) / Mississippi East
    {2814, 4152, 194979, 1032, 1002, 4, false}, // NAD83(HARN) / Mississippi West
    {2815, 4152, 195079, 1036, 1004, 4, false}, // NAD83(HARN) / Missouri East
    {2816, 4152, 195048, 1037, 1003, 4, false}, // NAD83(HARN) / Missouri Central
    {2817, 4152, 195107, 1038, 1005, 4, false}, // NAD83(HARN) / Missouri West
    {2818, 4152, 195135, 1042, 204, 4, false}, // NAD83(HARN) / Montana
    {2819, 4152, 195184, 1045, 205, 4, false}, // NAD83(HARN) / Nebraska
    {2820, 4152, 195302, 1049, 1009, 4, false}, // NAD83(HARN) / Nevada East
    {2821, 4152, 195237, 1050, 1008, 4, false}, // NAD83(HARN) / Nevada Central
    {2822, 4152, 195361, 1051, 1010, 4, false}, // NAD83(HARN) / Nevada West
    {2823, 4152, 195420, 1053, 206, 4, false}, // NAD83(HARN) / New Hampshire
    {2824, 4152, 195483, 1055, 207, 4, false}, // NAD83(HARN) / New Jersey
    {2825, 4152, 195613, 1059, 1013, 4, false}, // NAD83(HARN) / New Mexico East
    {2826, 4152, 195540, 1060, 1016, 4, false}, // NAD83(HARN) / New Mexico Central
    {2827, 4152, 195680, 1061, 1017, 4, false}, // NAD83(HARN) / New Mexico West
    {2828, 4152, 195816, 1066, 1019, 4, false}, // NAD83(HARN) / New York East
    {2829, 4152, 195747, 1067, 1018, 4, false}, // NAD83(HARN) / New York Central
    {2830, 4152, 195956, 1068, 1021, 4, false}, // NAD83(HARN) / New York West
    {2831, 4152, 195879, 1069, 1020, 4, false}, // NAD83(HARN) / New York Long Island
    {2832, 4152, 196084, 1074, 1022, 4, false}, // NAD83(HARN) / North Dakota North
    {2833, 4152, 196155, 1075, 1023, 4, false}, // NAD83(HARN) / North Dakota South
    {2834, 4152, 196226, 1078, 1024, 4, false}, // NAD83(HARN) / Ohio North
    {2835, 4152, 196283, 1079, 1025, 4, false}, // NAD83(HARN) / Ohio South
    {2836, 4152, 196340, 1084, 1026, 4, false}, // NAD83(HARN) / Oklahoma North
    {2837, 4152, 196405, 1085, 1027, 4, false}, // NAD83(HARN) / Oklahoma South
    {2838, 4152, 196537, 1088, 1028, 4, false}, // NAD83(HARN) / Oregon North
    {2839, 4152, 196596, 1089, 1029, 4, false}, // NAD83(HARN) / Oregon South
    {2840, 4152, 196842, 1096, 210, 4, false}, // NAD83(HARN) / Rhode Island
    {2841, 4152, 196966, 1102, 1034, 4, false}, // NAD83(HARN) / South Dakota North
    {2842, 4152, 197039, 1103, 1035, 4, false}, // NAD83(HARN) / South Dakota South
    {2843, 4152, 197112, 1105, 212, 4, false}, // NAD83(HARN) / Tennessee
    {2844, 4152, 197322, 1111, 1038, 4, false}, // NAD83(HARN) / Texas North
    {2845, 4152, 197381, 1112, 1039, 4, false}, // NAD83(HARN) / Texas North Central
    {2846, 4152, 197167, 1113, 1037, 4, false}, // NAD83(HARN) / Texas Central
    {2847, 4152, 197515, 1114, 1083, 4, false}, // NAD83(HARN) / Texas South Central
    {2848, 4152, 197456, 1115, 1084, 4, false}, // NAD83(HARN) / Texas South
    {2849, 4152, 198058, 1123, 1043, 4, false}, // NAD83(HARN) / Utah North
    {2850, 4152, 197965, 1124, 1042, 4, false}, // NAD83(HARN) / Utah Central
    {2851, 4152, 198145, 1125, 1044, 4, false}, // NAD83(HARN) / Utah South
    {2852, 4152, 198232, 1127, 214, 4, false}, // NAD83(HARN) / Vermont
    {2853, 4152, 198314, 1130, 1045, 4, false}, // NAD83(HARN) / Virginia North
    {2854, 4152, 198379, 1131, 1046, 4, false}, // NAD83(HARN) / Virginia South
    {2855, 4152, 202787, 1134, 1058, 4, false}, // NAD83(HARN) / Washington North
    {2856, 4152, 202856, 1135, 1059, 4, false}, // NAD83(HARN) / Washington South
    {2857, 4152, 202925, 1138, 1049, 4, false}, // NAD83(HARN) / West Virginia North
    {2858, 4152, 203000, 1139, 1050, 4, false}, // NAD83(HARN) / West Virginia South
    {2859, 4152, 203146, 1148, 1052, 4, false}, // NAD83(HARN) / Wisconsin North
    {2860, 4152, 203075, 1149, 1051, 4, false}, // NAD83(HARN) / Wisconsin Central
    {2861, 4152, 203213, 1150, 1053, 4, false}, // NAD83(HARN) / Wisconsin South
    {2862, 4152, 203324, 1157, 1054, 4, false}, // NAD83(HARN) / Wyoming East
    {2863, 4152, 203385, 1158, 1055, 4, false}, // NAD83(HARN) / Wyoming East Central
    {2864, 4152, 203523, 1159, 1057, 4, false}, // NAD83(HARN) / Wyoming West Central
    {2865, 4152, 203462, 1160, 1056, 4, false}, // NAD83(HARN) / Wyoming West
    {2866, 4152, 196801, 1200, 1768, 4, false}, // NAD83(HARN) / Puerto Rico and Virgin Is.
    {2867, 4152, 191457, 1208, 952, 6, false}, // NAD83(HARN) / Arizona East (ft)
    {2868, 4152, 191395, 1209, 951, 6, false}, // NAD83(HARN) / Arizona Central (ft)
    {2869, 4152, 191516, 1210, 953, 6, false}, // NAD83(HARN) / Arizona West (ft)
    {2870, 4152, 191742, 1211, 960, 8, false}, // NAD83(HARN) / California zone 1 (ftUS)
    {2871, 4152, 191813, 1212, 961, 8, false}, // NAD83(HARN) / California zone 2 (ftUS)
    {2872, 4152, 191884, 1213, 962, 8, false}, // NAD83(HARN) / California zone 3 (ftUS)
    {2873, 4152, 191955, 1214, 963, 8, false}, // NAD83(HARN) / California zone 4 (ftUS)
    {2874, 4152, 192026, 1215, 967, 8, false}, // NAD83(HARN) / California zone 5 (ftUS)
    {2875, 4152, 192097, 1216, 965, 8, false}, // NAD83(HARN) / California zone 6 (ftUS)
    {2876, 4152, 192234, 1217, 969, 8, false}, // NAD83(HARN) / Colorado North (ftUS)
    {2877, 4152, 192167, 1218, 968, 8, false}, // NAD83(HARN) / Colorado Central (ftUS)
    {2878, 4152, 192299, 1219, 970, 8, false}, // NAD83(HARN) / Colorado South (ftUS)
    {2879, 4152, 192361, 1220, 194, 8, false}, // NAD83(HARN) / Connecticut (ftUS)
    {2880, 4152, 192444, 1221, 195, 8, false}, // NAD83(HARN) / Delaware (ftUS)
    {2881, 4152, 192501, 1222, 971, 8, false}, // NAD83(HARN) / Florida East (ftUS)
    {2882, 4152, 192658, 1223, 973, 8, false}, // NAD83(HARN) / Florida West (ftUS)
    {2883, 4152, 192596, 1224, 972, 8, false}, // NAD83(HARN) / Florida North (ftUS)
    {2884, 4152, 192719, 1225, 974, 8, false}, // NAD83(HARN) / Georgia East (ftUS)
    {2885, 4152, 192780, 1226, 975, 8, false}, // NAD83(HARN) / Georgia West (ftUS)
    {2886, 4152, 193105, 1227, 977, 8, false}, // NAD83(HARN) / Idaho East (ftUS)
    {2887, 4152, 193045, 1228, 976, 8, false}, // NAD83(HARN) / Idaho Central (ftUS)
    {2888, 4152, 193162, 1229, 978, 8, false}, // NAD83(HARN) / Idaho West (ftUS)
    {2889, 4152, 193347, 1230, 981, 8, true}, // NAD83(HARN) / Indiana East (ftUS)
    {2890, 4152, 193408, 1231, 982, 8, true}, // NAD83(HARN) / Indiana West (ftUS)
    {2891, 4152, 193707, 1232, 987, 8, false}, // NAD83(HARN) / Kentucky North (ftUS)
    {2892, 4152, 193849, 1233, 988, 8, false}, // NAD83(HARN) / Kentucky South (ftUS)
    {2893, 4152, 194255, 1234, 201, 8, false}, // NAD83(HARN) / Maryland (ftUS)
    {2894, 4152, 194399, 1235, 994, 8, false}, // NAD83(HARN) / Massachusetts Mainland (ftUS)
    {2895, 4152, 194320, 1236, 993, 8, false}, // NAD83(HARN) / Massachusetts Island (ftUS)
    {2896, 4152, 194539, 1237, 513, 6, false}, // NAD83(HARN) / Michigan North (ft)
    {2897, 4152, 194474, 1238, 514, 6, false}, // NAD83(HARN) / Michigan Central (ft)
    {2898, 4152, 194642, 1239, 515, 6, false}, // NAD83(HARN) / Michigan South (ft)
    {2899, 4152, 194912, 1240, 1001, 8, false}, // NAD83(HARN) / Mississippi East (ftUS)
    {2900, 4152, 195010, 1241, 1002, 8, false}, // NAD83(HARN) / Mississippi West (ftUS)
    {2901, 4152, 195157, 1242, 204, 6, false}, // NAD83(HARN) / Montana (ft)
    {2902, 4152, 195643, 1243, 1013, 8, false}, // NAD83(HARN) / New Mexico East (ftUS)
    {2903, 4152, 195573, 1244, 1016, 8, false}, // NAD83(HARN) / New Mexico Central (ftUS)
    {2904, 4152, 195710, 1245, 1017, 8, false}, // NAD83(HARN) / New Mexico West (ftUS)
    {2905, 4152, 195844, 1246, 1019, 8, false}, // NAD83(HARN) / New York East (ftUS)
    {2906, 4152, 195778, 1247, 1018, 8, false}, // NAD83(HARN) / New York Central (ftUS)
    {2907, 4152, 195984, 1248, 1021, 8, false}, // NAD83(HARN) / New York West (ftUS)
    {2908, 4152, 195914, 1249, 1020, 8, false}, // NAD83(HARN) / New York Long Island (ftUS)
    {2909, 4152, 196117, 1251, 1022, 6, false}, // NAD83(HARN) / North Dakota North (ft)
    {2910, 4152, 196188, 1252, 1023, 6, false}, // NAD83(HARN) / North Dakota South (ft)
    {2911, 4152, 196369, 1253, 1026, 8, false}, // NAD83(HARN) / Oklahoma North (ftUS)
    {2912, 4152, 196434, 1254, 1027, 8, false}, // NAD83(HARN) / Oklahoma South (ftUS)
    {2913, 4152, 196564, 1255, 1028, 6, false}, // NAD83(HARN) / Oregon North (ft)
    {2914, 4152, 196623, 1256, 1029, 6, false}, // NAD83(HARN) / Oregon South (ft)
    {2915, 4152, 197136, 1260, 212, 8, false}, // NAD83(HARN) / Tennessee (ftUS)
    {2916, 4152, 197348, 1261, 1038, 8, false}, // NAD83(HARN) / Texas North (ftUS)
    {2917, 4152, 197415, 1262, 1039, 8, false}, // NAD83(HARN) / Texas North Central (ftUS)
    {2918, 4152, 197195, 1263, 1037, 8, false}, // NAD83(HARN) / Texas Central (ftUS)
    {2919, 4152, 197549, 1264, 1083, 8, false}, // NAD83(HARN) / Texas South Central (ftUS)
    {2920, 4152, 197482, 1265, 1084, 8, false}, // NAD83(HARN) / Texas South (ftUS)
    {2921, 4152, 198083, 1266, 1043, 6, false}, // NAD83(HARN) / Utah North (ft)
    {2922, 4152, 197992, 1267, 1042, 6, false}, // NAD83(HARN) / Utah Central (ft)
    {2923, 4152, 198170, 1268, 1044, 6, false}, // NAD83(HARN) / Utah South (ft)
    {2924, 4152, 198343, 1269, 1045, 8, false}, // NAD83(HARN) / Virginia North (ftUS)
    {2925, 4152, 198408, 1270, 1046, 8, false}, // NAD83(HARN) / Virginia South (ftUS)
    {2926, 4152, 202818, 1271, 1058, 8, false}, // NAD83(HARN) / Washington North (ftUS)
    {2927, 4152, 202887, 1272, 1059, 8, false}, // NAD83(HARN) / Washington South (ftUS)
    {2928, 4152, 203176, 1273, 1052, 8, false}, // NAD83(HARN) / Wisconsin North (ftUS)
    {2929, 4152, 203107, 1274, 1051, 8, false}, // NAD83(HARN) / Wisconsin Central (ftUS)
    {2930, 4152, 203243, 1275, 1053, 8, false}, // NAD83(HARN) / Wisconsin South (ftUS)
    {2931, 4213, 30773, 1596, 1214, 4, false}, // Beduaram / TM 13 NE
    {2932, 4614, 268725, 2309, 171, 4, false}, // QND95 / Qatar National Grid
    {2933, 4613, 297604, 1448, 155, 4, false}, // Segara / UTM zone 50S
    {2934, 4820, 297564, 2298, 183, 4, true}, // Segara (Jakarta) / NEIEZ
    {2935, 4284, 254311, 2224, 1215, 5, false}, // Pulkovo 1942 / CS63 zone A1
    {2936, 4284, 254339, 2225, 1216, 5, false}, // Pulkovo 1942 / CS63 zone A2
    {2937, 4284, 254367, 2226, 1217, 5, false}, // Pulkovo 1942 / CS63 zone A3
    {2938, 4284, 254395, 2227, 1218, 5, false}, // Pulkovo 1942 / CS63 zone A4
    {2939, 4284, 254507, 2228, 1219, 5, false}, // Pulkovo 1942 / CS63 zone K2
    {2940, 4284, 254535, 2229, 1220, 5, false}, // Pulkovo 1942 / CS63 zone K3
    {2941, 4284, 254563, 2230, 1221, 5, false}, // Pulkovo 1942 / CS63 zone K4
    {2942, 4615, 247422, 1337, 145, 4, false}, // Porto Santo / UTM zone 28N
    {2943, 4616, 297671, 1337, 1222, 4, false}, // Selvagem Grande / UTM zone 28N
    {2944, 4617, 185852, 1922, 218, 4, true}, // NAD83(CSRS) / SCoPQ zone 2
    {2945, 4617, 185437, 1925, 1069, 4, false}, // NAD83(CSRS) / MTM zone 3
    {2946, 4617, 185462, 1926, 1061, 4, false}, // NAD83(CSRS) / MTM zone 4
    {2947, 4617, 185487, 1927, 1062, 4, false}, // NAD83(CSRS) / MTM zone 5
    {2948, 4617, 185512, 1928, 1063, 4, false}, // NAD83(CSRS) / MTM zone 6
    {2949, 4617, 185537, 1929, 223, 4, false}, // NAD83(CSRS) / MTM zone 7
    {2950, 4617, 185562, 1930, 1064, 4, false}, // NAD83(CSRS) / MTM zone 8
    {2951, 4617, 185587, 1931, 1065, 4, false}, // NAD83(CSRS) / MTM zone 9
    {2952, 4617, 185204, 1932, 1066, 4, false}, // NAD83(CSRS) / MTM zone 10
    {2953, 4617, 185664, 2335, 245, 5, false}, // NAD83(CSRS) / New Brunswick Stereographic
    {2954, 4617, 185740, 2349, 329, 4, false}, // NAD83(CSRS) / Prince Edward Isl. Stereographic (NAD83)
    {2955, 4617, 185984, 1320, 1686, 4, false}, // NAD83(CSRS) / UTM zone 11N
    {2956, 4617, 186011, 1321, 1685, 4, false}, // NAD83(CSRS) / UTM zone 12N
    {2957, 4617, 186038, 1322, 1684, 4, false}, // NAD83(CSRS) / UTM zone 13N
    {2958, 4617, 186146, 1326, 1594, 4, false}, // NAD83(CSRS) / UTM zone 17N
    {2959, 4617, 186173, 1327, 1595, 4, false}, // NAD83(CSRS) / UTM zone 18N
    {2960, 4617, 186200, 1328, 1682, 4, false}, // NAD83(CSRS) / UTM zone 19N
    {2961, 4617, 186227, 1329, 1683, 4, false}, // NAD83(CSRS) / UTM zone 20N
    {2962, 4617, 186254, 1330, 936, 4, false}, // NAD83(CSRS) / UTM zone 21N
    {2963, 4904, 127980, 2366, 129, 1, false}, // Lisbon 1890 (Lisbon) / Portugal Bonne
    {2964, 4267, 144859, 1175, 157, 8, false}, // NAD27 / Alaska Albers
    {2965, 4269, 153387, 1276, 981, 8, false}, // NAD83 / Indiana East (ftUS)
    {2966, 4269, 153436, 1277, 982, 8, false}, // NAD83 / Indiana West (ftUS)
    {2967, 4152, 193347, 1276, 981, 8, false}, // NAD83(HARN) / Indiana East (ftUS)
    {2968, 4152, 193408, 1277, 982, 8, false}, // NAD83(HARN) / Indiana West (ftUS)
    {2969, 4621, 78738, 1329, 1244, 4, false}, // Fort Marigot / UTM zone 20N
    {2970, 4622, 97327, 1329, 1245, 4, false}, // Guadeloupe 1948 / UTM zone 20N
    {2971, 4623, 41976, 1331, 1851, 4, false}, // CSG67 / UTM zone 22N
    {2972, 4624, 271528, 1331, 1428, 4, false}, // RGFG95 / UTM zone 22N
    {2973, 4625, 137594, 1329, 1509, 4, false}, // Martinique 1938 / UTM zone 20N
    {2975, 4627, 272239, 1438, 1956, 4, false}, // RGR92 / UTM zone 40S
    {2976, 4628, 310096, 1404, 1228, 4, false}, // Tahiti 52 / UTM zone 6S
    {2977, 4629, 310034, 1403, 1229, 4, false}, // Tahaa 54 / UTM zone 5S
    {2978, 4630, 103068, 1405, 1423, 4, false}, // IGN72 Nuku Hiva / UTM zone 7S
    {2979, 4631, 117229, 1440, 1233, 4, true}, // K0 1949 / UTM zone 42S
    {2980, 4632, 52123, 1436, 1538, 4, false}, // Combani 1950 / UTM zone 38S
    {2981, 4633, 102807, 1456, 1231, 4, false}, // IGN56 Lifou / UTM zone 58S
    {2982, 4634, 102966, 1456, 1239, 4, true}, // IGN72 Grand Terre / UTM zone 58S
    {2983, 4635, 295313, 1456, 1230, 4, true}, // ST87 Ouvea / UTM zone 58S
    {2984, 4645, 271758, 2367, 74, 4, true}, // RGNC 1991 / Lambert New Caledonia
    {2985, 4636, 245473, 2369, 1234, 4, false}, // Petrels 1972 / Terre Adelie Polar Stereographic
    {2986, 4637, 245052, 2369, 1235, 4, false}, // Perroud 1950 / Terre Adelie Polar Stereographic
    {2987, 4638, 295993, 1330, 1521, 4, false}, // Saint Pierre et Miquelon 1950 / UTM zone 21N
    {2988, 4639, 133648, 1399, 1232, 4, false}, // MOP78 / UTM zone 1S
    {2989, 4640, 273510, 1329, 1241, 4, true}, // RRAF 1991 / UTM zone 20N
    {2990, 4626, 276911, 2368, 1536, 4, true}, // Reunion 1947 / TM Reunion
    {2991, 4269, 156589, 1090, 209, 4, false}, // NAD83 / Oregon LCC (m)
    {2992, 4269, 156557, 1278, 209, 6, false}, // NAD83 / Oregon GIC Lambert (ft)
    {2993, 4152, 196508, 1090, 209, 4, false}, // NAD83(HARN) / Oregon LCC (m)
    {2994, 4152, 196470, 1278, 209, 6, false}, // NAD83(HARN) / Oregon GIC Lambert (ft)
    {2995, 4641, 102689, 1456, 1611, 4, false}, // IGN53 Mare / UTM zone 58S
    {2996, 4642, 295225, 1456, 1237, 4, false}, // ST84 Ile des Pins / UTM zone 58S
    {2997, 4643, 295151, 1456, 1238, 4, false}, // ST71 Belep / UTM zone 58S
    {2998, 4644, 214873, 1456, 1240, 4, false}, // NEA74 Noumea / UTM zone 58S
    {2999, 4646, 95468, 1436, 1227, 4, false}, // Grand Comoros / UTM zone 38S
    {3000, 4613, 297589, 2298, 183, 4, false}, // Segara / NEIEZ
    {3001, 4211, 30416, 2298, 122, 4, false}, // Batavia / NEIEZ
    {3002, 4257, 135622, 2298, 147, 4, false}, // Makassar / NEIEZ
    {3003, 4265, 143435, 2101, 509, 4, false}, // Monte Mario / Italy zone 1
    {3004, 4265, 143462, 2102, 510, 4, false}, // Monte Mario / Italy zone 2
    {3005, 4269, 151433, 2370, 1246, 4, false}, // NAD83 / BC Albers
    {3006, 4619, 295869, 1835, 96, 5, false}, // SWEREF99 TM
    {3007, 4619, 295689, 1823, 1247, 5, false}, // SWEREF99 12 00
    {3008, 4619, 295704, 1824, 1248, 5, false}, // SWEREF99 13 30
    {3009, 4619, 295734, 1825, 1249, 5, false}, // SWEREF99 15 00
    {3010, 4619, 295764, 1826, 1250, 5, false}, // SWEREF99 16 30
    {3011, 4619, 295794, 1827, 1251, 5, false}, // SWEREF99 18 00
    {3012, 4619, 295719, 1828, 1252, 5, false}, // SWEREF99 14 15
    {3013, 4619, 295749, 1829, 1253, 5, false}, // SWEREF99 15 45
    {3014, 4619, 295779, 1830, 1254, 5, false}, // SWEREF99 17 15
    {3015, 4619, 295809, 1831, 1255, 5, false}, // SWEREF99 18 45
    {3016, 4619, 295824, 1832, 1256, 5, false}, // SWEREF99 20 15
    {3017, 4619, 295839, 1833, 1257, 5, false}, // SWEREF99 21 45
    {3018, 4619, 295854, 1834, 1258, 5, false}, // SWEREF99 23 15
    {3019, 4124, 274550, 1836, 1259, 5, false}, // RT90 7.5 gon V
    {3020, 4124, 274518, 1837, 1260, 5, false}, // RT90 5 gon V
    {3021, 4124, 274435, 2319, 1261, 5, false}, // RT90 2.5 gon V
    {3022, 4124, 274371, 1838, 1262, 5, false}, // RT90 0 gon
    {3023, 4124, 274399, 1839, 1263, 5, false}, // RT90 2.5 gon O
    {3024, 4124, 274486, 1840, 1264, 5, false}, // RT90 5 gon O
    {3025, 4308, 274257, 1836, 1259, 5, false}, // RT38 7.5 gon V
    {3026, 4308, 274225, 1837, 1260, 5, false}, // RT38 5 gon V
    {3027, 4308, 274163, 2319, 1261, 5, false}, // RT38 2.5 gon V
    {3028, 4308, 274099, 1838, 1262, 5, false}, // RT38 0 gon
    {3029, 4308, 274127, 1839, 1263, 5, false}, // RT38 2.5 gon O
    {3030, 4308, 274193, 1840, 1264, 5, false}, // RT38 5 gon O
    {3031, 4326, 343104, 2378, 5, 4, false}, // WGS 84 / Antarctic Polar Stereographic
    {3032, 4326, 343259, 2379, 119, 4, false}, // WGS 84 / Australian Antarctic Polar Stereographic
    {3033, 4326, 343221, 2380, 1277, 4, false}, // WGS 84 / Australian Antarctic Lambert
    {3034, 4258, 68448, 2371, 1278, 5, false}, // ETRS89-extended / LCC Europe
    {3035, 4258, 68418, 2372, 1278, 5, false}, // ETRS89-extended / LAEA Europe
    {3036, 4130, 144369, 1434, 1960, 4, false}, // Moznet / UTM zone 36S
    {3037, 4130, 144391, 1435, 1961, 4, false}, // Moznet / UTM zone 37S
    {3038, 4258, 67450, 1335, 1268, 5, true}, // ETRS89 / TM26
    {3039, 4258, 67464, 1336, 1269, 5, true}, // ETRS89 / TM27
    {3040, 4258, 67572, 1337, 907, 5, false}, // ETRS89 / UTM zone 28N (N-E)
    {3041, 4258, 67622, 1338, 908, 5, false}, // ETRS89 / UTM zone 29N (N-E)
    {3042, 4258, 67672, 1339, 909, 5, false}, // ETRS89 / UTM zone 30N (N-E)
    {3043, 4258, 67722, 1340, 910, 5, false}, // ETRS89 / UTM zone 31N (N-E)
    {3044, 4258, 67830, 1341, 911, 5, false}, // ETRS89 / UTM zone 32N (N-E)
    {3045, 4258, 67938, 1342, 912, 5, false}, // ETRS89 / UTM zone 33N (N-E)
    {3046, 4258, 68024, 1343, 913, 5, false}, // ETRS89 / UTM zone 34N (N-E)
    {3047, 4258, 68074, 1344, 914, 5, false}, // ETRS89 / UTM zone 35N (N-E)
    {3048, 4258, 68124, 1345, 915, 5, false}, // ETRS89 / UTM zone 36N (N-E)
    {3049, 4258, 68174, 1346, 916, 5, false}, // ETRS89 / UTM zone 37N (N-E)
    {3050, 4258, 67522, 1347, 1273, 5, true}, // ETRS89 / TM38
    {3051, 4258, 67536, 1348, 1274, 5, true}, // ETRS89 / TM39
    {3052, 4657, 276989, 2373, 1502, 2, false}, // Reykjavik 1900 / Lambert 1900
    {3053, 4658, 100225, 2374, 1502, 2, false}, // Hjorsey 1955 / Lambert 1955
    {3054, 4658, 100253, 1335, 1265, 4, false}, // Hjorsey 1955 / UTM zone 26N
    {3055, 4658, 100281, 1336, 1266, 4, false}, // Hjorsey 1955 / UTM zone 27N
    {3056, 4658, 100309, 1337, 1267, 4, false}, // Hjorsey 1955 / UTM zone 28N
    {3057, 4659, 104008, 2375, 44, 4, false}, // ISN93 / Lambert 1993
    {3058, 4660, 99876, 2377, 1275, 5, false}, // Helle 1954 / Jan Mayen Grid
    {3059, 4661, 125250, 2376, 57, 5, false}, // LKS92 / Latvia TM
    {3060, 4662, 103018, 1456, 1239, 4, false}, // IGN72 Grande Terre / UTM zone 58S
    {3061, 4663, 247483, 1337, 145, 4, false}, // Porto Santo 1995 / UTM zone 28N
    {3062, 4664, 28033, 1335, 170, 4, false}, // Azores Oriental 1995 / UTM zone 26N
    {3063, 4665, 27772, 1335, 134, 4, false}, // Azores Central 1995 / UTM zone 26N
    {3064, 4670, 102389, 1341, 509, 4, false}, // IGM95 / UTM zone 32N
    {3065, 4670, 102410, 1342, 2173, 4, false}, // IGM95 / UTM zone 33N
    {3066, 4230, 61263, 2381, 53, 4, false}, // ED50 / Jordan TM
    {3067, 4258, 67478, 1371, 35, 4, false}, // ETRS89 / TM35FIN(E,N)
    {3068, 4314, 57762, 2382, 1280, 5, false}, // DHDN / Soldner Berlin
    {3069, 4267, 149246, 1147, 216, 4, false}, // NAD27 / Wisconsin Transverse Mercator
    {3070, 4269, 158996, 1151, 216, 4, false}, // NAD83 / Wisconsin Transverse Mercator
    {3071, 4152, 203280, 1151, 216, 4, false}, // NAD83(HARN) / Wisconsin Transverse Mercator
    {3072, 4269, 154419, 1000, 1288, 4, false}, // NAD83 / Maine CS2000 East
    {3073, 4269, 154390, 1001, 1287, 4, true}, // NAD83 / Maine CS2000 Central
    {3074, 4269, 154445, 1002, 1286, 4, false}, // NAD83 / Maine CS2000 West
    {3075, 4152, 194054, 1000, 1288, 4, false}, // NAD83(HARN) / Maine CS2000 East
    {3076, 4152, 194019, 1001, 1287, 4, true}, // NAD83(HARN) / Maine CS2000 Central
    {3077, 4152, 194086, 1002, 1286, 4, false}, // NAD83(HARN) / Maine CS2000 West
    {3078, 4269, 154842, 1019, 202, 4, false}, // NAD83 / Michigan Oblique Mercator
    {3079, 4152, 194573, 1019, 202, 4, false}, // NAD83(HARN) / Michigan Oblique Mercator
    {3080, 4267, 148145, 1117, 213, 6, false}, // NAD27 / Shackleford
    {3081, 4269, 157609, 1116, 213, 4, false}, // NAD83 / Texas State Mapping System
    {3082, 4269, 157349, 1118, 213, 4, false}, // NAD83 / Texas Centric Lambert Conformal
    {3083, 4269, 157309, 1119, 213, 4, false}, // NAD83 / Texas Centric Albers Equal Area
    {3084, 4152, 197276, 1118, 213, 4, false}, // NAD83(HARN) / Texas Centric Lambert Conformal
    {3085, 4152, 197230, 1119, 213, 4, false}, // NAD83(HARN) / Texas Centric Albers Equal Area
    {3086, 4269, 152655, 956, 196, 4, false}, // NAD83 / Florida GDL Albers
    {3087, 4152, 192535, 956, 196, 4, false}, // NAD83(HARN) / Florida GDL Albers
    {3088, 4269, 153750, 985, 199, 4, false}, // NAD83 / Kentucky Single Zone
    {3089, 4269, 153779, 1279, 199, 8, false}, // NAD83 / Kentucky Single Zone (ftUS)
    {3090, 4152, 193743, 985, 199, 4, false}, // NAD83(HARN) / Kentucky Single Zone
    {3091, 4152, 193778, 1279, 199, 8, false}, // NAD83(HARN) / Kentucky Single Zone (ftUS)
    {3092, 4301, 313137, 1360, 1281, 4, false}, // Tokyo / UTM zone 51N
    {3093, 4301, 313158, 1361, 1282, 4, false}, // Tokyo / UTM zone 52N
    {3094, 4301, 313179, 1362, 1283, 4, false}, // Tokyo / UTM zone 53N
    {3095, 4301, 313200, 1363, 1284, 4, false}, // Tokyo / UTM zone 54N
    {3096, 4301, 313221, 1364, 1285, 4, false}, // Tokyo / UTM zone 55N
    {3097, 4612, 113845, 1360, 1981, 4, false}, // JGD2000 / UTM zone 51N
    {3098, 4612, 113868, 1361, 1982, 4, false}, // JGD2000 / UTM zone 52N
    {3099, 4612, 113891, 1362, 1983, 4, false}, // JGD2000 / UTM zone 53N
    {3100, 4612, 113914, 1363, 1984, 4, false}, // JGD2000 / UTM zone 54N
    {3101, 4612, 113937, 1364, 1985, 4, false}, // JGD2000 / UTM zone 55N
    {3102, 4169, 8767, 1280, 1409, 8, false}, // American Samoa 1962 / American Samoa Lambert
    {3103, 4681, 138318, 1337, 1293, 4, true}, // Mauritania 1999 / UTM zone 28N
    {3104, 4681, 138349, 1338, 1292, 4, true}, // Mauritania 1999 / UTM zone 29N
    {3105, 4681, 138380, 1339, 1291, 4, true}, // Mauritania 1999 / UTM zone 30N
    {3106, 4682, 97758, 1598, 1479, 4, false}, // Gulshan 303 / TM 90 NE
    {3107, 4283, 82878, 1858, 1295, 4, false}, // GDA94 / SA Lambert
    {3108, 4258, 66661, 2384, 1297, 4, false}, // ETRS89 / Guernsey Grid
    {3109, 4258, 66684, 2385, 1296, 4, false}, // ETRS89 / Jersey Transverse Mercator
    {3110, 4202, 4513, 1859, 1068, 4, false}, // AGD66 / Vicgrid66
    {3111, 4283, 82897, 1860, 1068, 4, false}, // GDA94 / Vicgrid
    {3112, 4283, 82461, 1861, 1102, 4, false}, // GDA94 / Geoscience Australia Lambert
    {3113, 4283, 82417, 1862, 1298, 4, false}, // GDA94 / BCSG02
    {3114, 4686, 130900, 2063, 1391, 5, false}, // MAGNA-SIRGAS / Colombia Far West zone
    {3115, 4686, 130938, 2064, 1390, 5, false}, // MAGNA-SIRGAS / Colombia West zone
    {3116, 4686, 130788, 2065, 394, 5, false}, // MAGNA-SIRGAS / Colombia Bogota zone
    {3117, 4686, 130824, 2066, 395, 5, false}, // MAGNA-SIRGAS / Colombia East Central zone
    {3118, 4686, 130866, 2067, 396, 5, false}, // MAGNA-SIRGAS / Colombia East zone
    {3119, 4192, 60420, 2209, 1093, 4, false}, // Douala 1948 / AEF west
    {3120, 4179, 258886, 2184, 311, 5, false}, // Pulkovo 1942(58) / Poland zone I
    {3121, 4683, 241888, 2116, 491, 4, false}, // PRS92 / Philippines zone 1
    {3122, 4683, 241915, 2117, 492, 4, false}, // PRS92 / Philippines zone 2
    {3123, 4683, 241942, 2118, 493, 4, false}, // PRS92 / Philippines zone 3
    {3124, 4683, 241969, 2119, 494, 4, false}, // PRS92 / Philippines zone 4
    {3125, 4683, 241996, 2120, 495, 4, false}, // PRS92 / Philippines zone 5
    {3126, 4258, 66085, 2124, 1392, 5, false}, // ETRS89 / ETRS-GK19FIN
    {3127, 4258, 66107, 2125, 1393, 5, false}, // ETRS89 / ETRS-GK20FIN
    {3128, 4258, 66129, 2126, 1394, 5, false}, // ETRS89 / ETRS-GK21FIN
    {3129, 4258, 66151, 2127, 1395, 5, false}, // ETRS89 / ETRS-GK22FIN
    {3130, 4258, 66173, 2128, 1396, 5, false}, // ETRS89 / ETRS-GK23FIN
    {3131, 4258, 66195, 2129, 1397, 5, false}, // ETRS89 / ETRS-GK24FIN
    {3132, 4258, 66217, 2130, 1398, 5, false}, // ETRS89 / ETRS-GK25FIN
    {3133, 4258, 66239, 2131, 1399, 5, false}, // ETRS89 / ETRS-GK26FIN
    {3134, 4258, 66261, 2136, 1400, 5, false}, // ETRS89 / ETRS-GK27FIN
    {3135, 4258, 66283, 2137, 1401, 5, false}, // ETRS89 / ETRS-GK28FIN
    {3136, 4258, 66305, 2138, 1402, 5, false}, // ETRS89 / ETRS-GK29FIN
    {3137, 4258, 66327, 2139, 1403, 5, false}, // ETRS89 / ETRS-GK30FIN
    {3138, 4258, 66349, 2140, 1404, 5, false}, // ETRS89 / ETRS-GK31FIN
    {3139, 4748, 334596, 2271, 1580, 21, false}, // Vanua Levu 1915 / Vanua Levu Grid
    {3140, 4752, 336887, 2272, 1466, 21, false}, // Viti Levu 1912 / Viti Levu Grid
    {3141, 4721, 76094, 1458, 1578, 4, false}, // Fiji 1956 / UTM zone 60S
    {3142, 4721, 76070, 1399, 1579, 4, false}, // Fiji 1956 / UTM zone 1S
    {3143, 4720, 76129, 2273, 34, 4, true}, // Fiji 1986 / Fiji Map Grid
    {3144, 4741, 74907, 2263, 1494, 3, false}, // FD54 / Faroe Lambert
    {3145, 4258, 66371, 2263, 1494, 3, false}, // ETRS89 / Faroe Lambert
    {3146, 4284, 253910, 1509, 1581, 5, true}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 6
    {3147, 4284, 250428, 1574, 1581, 5, true}, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 18E
    {3148, 4131, 106805, 1357, 338, 4, false}, // Indian 1960 / UTM zone 48N
    {3149, 4131, 106832, 1358, 251, 4, false}, // Indian 1960 / UTM zone 49N
    {3150, 4200, 264764, 1509, 1581, 5, true}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 6
    {3151, 4200, 261282, 1574, 1581, 5, true}, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 18E
    {3152, 4619, 55257, 2269, 1586, 5, false}, // ST74
    {3153, 4617, 184508, 2370, 1246, 4, false}, // NAD83(CSRS) / BC Albers
    {3154, 4617, 186362, 1316, 1587, 4, false}, // NAD83(CSRS) / UTM zone 7N
    {3155, 4617, 186388, 1317, 1588, 4, false}, // NAD83(CSRS) / UTM zone 8N
    {3156, 4617, 186414, 1318, 1589, 4, false}, // NAD83(CSRS) / UTM zone 9N
    {3157, 4617, 185957, 1319, 1590, 4, false}, // NAD83(CSRS) / UTM zone 10N
    {3158, 4617, 186065, 1323, 1591, 4, false}, // NAD83(CSRS) / UTM zone 14N
    {3159, 4617, 186092, 1324, 1592, 4, false}, // NAD83(CSRS) / UTM zone 15N
    {3160, 4617, 186119, 1325, 1593, 4, false}, // NAD83(CSRS) / UTM zone 16N
    {3161, 4269, 156529, 2268, 190, 4, false}, // NAD83 / Ontario MNR Lambert
    {3162, 4617, 185706, 2268, 190, 4, false}, // NAD83(CSRS) / Ontario MNR Lambert
    {3163, 4749, 271809, 2367, 1607, 4, false}, // RGNC91-93 / Lambert New Caledonia
    {3164, 4750, 295313, 1456, 1230, 4, false}, // ST87 Ouvea / UTM zone 58S
    {3165, 4644, 214811, 2266, 1240, 4, false}, // NEA74 Noumea / Noumea Lambert
    {3166, 4644, 214841, 2267, 1240, 4, false}, // NEA74 Noumea / Noumea Lambert 2
    {3167, 4751, 121414, 2264, 483, 26, false}, // Kertau (RSO) / RSO Malaya (ch)
    {3168, 4751, 121445, 2265, 483, 4, false}, // Kertau (RSO) / RSO Malaya (m)
    {3169, 4749, 271843, 1455, 1608, 4, false}, // RGNC91-93 / UTM zone 57S
    {3170, 4749, 271868, 1456, 1609, 4, false}, // RGNC91-93 / UTM zone 58S
    {3171, 4749, 271893, 1457, 1610, 4, false}, // RGNC91-93 / UTM zone 59S
    {3172, 4641, 102715, 1457, 1612, 4, false}, // IGN53 Mare / UTM zone 59S
    {3173, 4753, 374979, 2270, 1494, 3, false}, // fk89 / Faroe Lambert FK89
    {3174, 4269, 152880, 1301, 1641, 4, false}, // NAD83 / Great Lakes Albers
    {3175, 4269, 152907, 1302, 1642, 4, false}, // NAD83 / Great Lakes and St Lawrence Albers
    {3176, 4131, 106781, 1599, 292, 4, false}, // Indian 1960 / TM 106 NE
    {3177, 4754, 124837, 2205, 58, 4, false}, // LGD2006 / Libya TM
    {3178, 4747, 84132, 1327, 1626, 4, false}, // GR96 / UTM zone 18N
    {3179, 4747, 84152, 1328, 1627, 4, false}, // GR96 / UTM zone 19N
    {3180, 4747, 84172, 1329, 1628, 4, false}, // GR96 / UTM zone 20N
    {3181, 4747, 84192, 1330, 1629, 4, false}, // GR96 / UTM zone 21N
    {3182, 4747, 84212, 1331, 1630, 4, false}, // GR96 / UTM zone 22N
    {3183, 4747, 84232, 1332, 1631, 4, false}, // GR96 / UTM zone 23N
    {3184, 4747, 84252, 1333, 1632, 4, false}, // GR96 / UTM zone 24N
    {3185, 4747, 84272, 1334, 1633, 4, false}, // GR96 / UTM zone 25N
    {3186, 4747, 84292, 1335, 1634, 4, false}, // GR96 / UTM zone 26N
    {3187, 4747, 84312, 1336, 1635, 4, false}, // GR96 / UTM zone 27N
    {3188, 4747, 84332, 1337, 1636, 4, false}, // GR96 / UTM zone 28N
    {3189, 4747, 84352, 1338, 1637, 4, false}, // GR96 / UTM zone 29N
    {3190, 4754, 124964, 2196, 268, 4, false}, // LGD2006 / Libya TM zone 5
    {3191, 4754, 124990, 2197, 269, 4, false}, // LGD2006 / Libya TM zone 6
    {3192, 4754, 125016, 2198, 270, 4, false}, // LGD2006 / Libya TM zone 7
    {3193, 4754, 125042, 2199, 271, 4, false}, // LGD2006 / Libya TM zone 8
    {3194, 4754, 125068, 2200, 272, 4, false}, // LGD2006 / Libya TM zone 9
    {3195, 4754, 124856, 2201, 273, 4, false}, // LGD2006 / Libya TM zone 10
    {3196, 4754, 124883, 2202, 274, 4, false}, // LGD2006 / Libya TM zone 11
    {3197, 4754, 124910, 2203, 275, 4, false}, // LGD2006 / Libya TM zone 12
    {3198, 4754, 124937, 2204, 276, 4, false}, // LGD2006 / Libya TM zone 13
    {3199, 4754, 125094, 1341, 1972, 4, false}, // LGD2006 / UTM zone 32N
    {3200, 4132, 74954, 2299, 133, 4, false}, // FD58 / Iraq zone
    {3201, 4754, 125117, 1342, 1973, 4, false}, // LGD2006 / UTM zone 33N
    {3202, 4754, 125140, 1343, 1974, 4, false}, // LGD2006 / UTM zone 34N
    {3203, 4754, 125163, 1344, 1965, 4, false}, // LGD2006 / UTM zone 35N
    {3204, 4326, 346475, 1726, 1299, 4, false}, // WGS 84 / SCAR IMW SP19-20
    {3205, 4326, 346501, 1727, 1300, 4, false}, // WGS 84 / SCAR IMW SP21-22
    {3206, 4326, 346527, 1728, 1301, 4, false}, // WGS 84 / SCAR IMW SP23-24
    {3207, 4326, 346553, 1729, 1302, 4, false}, // WGS 84 / SCAR IMW SQ01-02
    {3208, 4326, 346579, 1730, 1303, 4, false}, // WGS 84 / SCAR IMW SQ19-20
    {3209, 4326, 346605, 1731, 1304, 4, false}, // WGS 84 / SCAR IMW SQ21-22
    {3210, 4326, 346631, 1732, 1305, 4, false}, // WGS 84 / SCAR IMW SQ37-38
    {3211, 4326, 346657, 1733, 1306, 4, false}, // WGS 84 / SCAR IMW SQ39-40
    {3212, 4326, 346683, 1734, 1307, 4, false}, // WGS 84 / SCAR IMW SQ41-42
    {3213, 4326, 346709, 1735, 1308, 4, false}, // WGS 84 / SCAR IMW SQ43-44
    {3214, 4326, 346735, 1736, 1309, 4, false}, // WGS 84 / SCAR IMW SQ45-46
    {3215, 4326, 346761, 1737, 1310, 4, false}, // WGS 84 / SCAR IMW SQ47-48
    {3216, 4326, 346787, 1738, 1311, 4, false}, // WGS 84 / SCAR IMW SQ49-50
    {3217, 4326, 346813, 1739, 1312, 4, false}, // WGS 84 / SCAR IMW SQ51-52
    {3218, 4326, 346839, 1740, 1313, 4, false}, // WGS 84 / SCAR IMW SQ53-54
    {3219, 4326, 346865, 1741, 1314, 4, false}, // WGS 84 / SCAR IMW SQ55-56
    {3220, 4326, 346891, 1742, 1315, 4, false}, // WGS 84 / SCAR IMW SQ57-58
    {3221, 4326, 346917, 1743, 1316, 4, false}, // WGS 84 / SCAR IMW SR13-14
    {3222, 4326, 346943, 1744, 1317, 4, false}, // WGS 84 / SCAR IMW SR15-16
    {3223, 4326, 346969, 1745, 1318, 4, false}, // WGS 84 / SCAR IMW SR17-18
    {3224, 4326, 346995, 1746, 1319, 4, false}, // WGS 84 / SCAR IMW SR19-20
    {3225, 4326, 347021, 1747, 1320, 4, false}, // WGS 84 / SCAR IMW SR27-28
    {3226, 4326, 347047, 1748, 1321, 4, false}, // WGS 84 / SCAR IMW SR29-30
    {3227, 4326, 347073, 1749, 1322, 4, false}, // WGS 84 / SCAR IMW SR31-32
    {3228, 4326, 347099, 1750, 1323, 4, false}, // WGS 84 / SCAR IMW SR33-34
    {3229, 4326, 347125, 1751, 1324, 4, false}, // WGS 84 / SCAR IMW SR35-36
    {3230, 4326, 347151, 1752, 1325, 4, false}, // WGS 84 / SCAR IMW SR37-38
    {3231, 4326, 347177, 1753, 1326, 4, false}, // WGS 84 / SCAR IMW SR39-40
    {3232, 4326, 347203, 1754, 1327, 4, false}, // WGS 84 / SCAR IMW SR41-42
    {3233, 4326, 347229, 1755, 1328, 4, false}, // WGS 84 / SCAR IMW SR43-44
    {3234, 4326, 347255, 1756, 1329, 4, false}, // WGS 84 / SCAR IMW SR45-46
    {3235, 4326, 347281, 1757, 1330, 4, false}, // WGS 84 / SCAR IMW SR47-48
    {3236, 4326, 347307, 1758, 1331, 4, false}, // WGS 84 / SCAR IMW SR49-50
    {3237, 4326, 347333, 1759, 1332, 4, false}, // WGS 84 / SCAR IMW SR51-52
    {3238, 4326, 347359, 1760, 1333, 4, false}, // WGS 84 / SCAR IMW SR53-54
    {3239, 4326, 347385, 1761, 1334, 4, false}, // WGS 84 / SCAR IMW SR55-56
    {3240, 4326, 347411, 1762, 1335, 4, false}, // WGS 84 / SCAR IMW SR57-58
    {3241, 4326, 347437, 1763, 1336, 4, false}, // WGS 84 / SCAR IMW SR59-60
    {3242, 4326, 347463, 1764, 1337, 4, false}, // WGS 84 / SCAR IMW SS04-06
    {3243, 4326, 347489, 1765, 1338, 4, false}, // WGS 84 / SCAR IMW SS07-09
    {3244, 4326, 347515, 1766, 1339, 4, false}, // WGS 84 / SCAR IMW SS10-12
    {3245, 4326, 347541, 1767, 1340, 4, false}, // WGS 84 / SCAR IMW SS13-15
    {3246, 4326, 347567, 1768, 1341, 4, false}, // WGS 84 / SCAR IMW SS16-18
    {3247, 4326, 347593, 1769, 1342, 4, false}, // WGS 84 / SCAR IMW SS19-21
    {3248, 4326, 347619, 1770, 1343, 4, false}, // WGS 84 / SCAR IMW SS25-27
    {3249, 4326, 347645, 1771, 1344, 4, false}, // WGS 84 / SCAR IMW SS28-30
    {3250, 4326, 347671, 1772, 1345, 4, false}, // WGS 84 / SCAR IMW SS31-33
    {3251, 4326, 347697, 1773, 1346, 4, false}, // WGS 84 / SCAR IMW SS34-36
    {3252, 4326, 347723, 1774, 1347, 4, false}, // WGS 84 / SCAR IMW SS37-39
    {3253, 4326, 347749, 1775, 1348, 4, false}, // WGS 84 / SCAR IMW SS40-42
    {3254, 4326, 347775, 1776, 1349, 4, false}, // WGS 84 / SCAR IMW SS43-45
    {3255, 4326, 347801, 1777, 1350, 4, false}, // WGS 84 / SCAR IMW SS46-48
    {3256, 4326, 347827, 1778, 1351, 4, false}, // WGS 84 / SCAR IMW SS49-51
    {3257, 4326, 347853, 1779, 1352, 4, false}, // WGS 84 / SCAR IMW SS52-54
    {3258, 4326, 347879, 1780, 1353, 4, false}, // WGS 84 / SCAR IMW SS55-57
    {3259, 4326, 347905, 1781, 1354, 4, false}, // WGS 84 / SCAR IMW SS58-60
    {3260, 4326, 347931, 1782, 1355, 4, false}, // WGS 84 / SCAR IMW ST01-04
    {3261, 4326, 347957, 1783, 1356, 4, false}, // WGS 84 / SCAR IMW ST05-08
    {3262, 4326, 347983, 1784, 1357, 4, false}, // WGS 84 / SCAR IMW ST09-12
    {3263, 4326, 348009, 1785, 1358, 4, false}, // WGS 84 / SCAR IMW ST13-16
    {3264, 4326, 348035, 1786, 1359, 4, false}, // WGS 84 / SCAR IMW ST17-20
    {3265, 4326, 348061, 1787, 1360, 4, false}, // WGS 84 / SCAR IMW ST21-24
    {3266, 4326, 348087, 1788, 1361, 4, false}, // WGS 84 / SCAR IMW ST25-28
    {3267, 4326, 348113, 1789, 1362, 4, false}, // WGS 84 / SCAR IMW ST29-32
    {3268, 4326, 348139, 1790, 1363, 4, false}, // WGS 84 / SCAR IMW ST33-36
    {3269, 4326, 348165, 1791, 1364, 4, false}, // WGS 84 / SCAR IMW ST37-40
    {3270, 4326, 348191, 1792, 1365, 4, false}, // WGS 84 / SCAR IMW ST41-44
    {3271, 4326, 348217, 1793, 1366, 4, false}, // WGS 84 / SCAR IMW ST45-48
    {3272, 4326, 348243, 1794, 1367, 4, false}, // WGS 84 / SCAR IMW ST49-52
    {3273, 4326, 348269, 1795, 1368, 4, false}, // WGS 84 / SCAR IMW ST53-56
    {3274, 4326, 348295, 1796, 1369, 4, false}, // WGS 84 / SCAR IMW ST57-60
    {3275, 4326, 348321, 1797, 1370, 4, false}, // WGS 84 / SCAR IMW SU01-05
    {3276, 4326, 348347, 1798, 1371, 4, false}, // WGS 84 / SCAR IMW SU06-10
    {3277, 4326, 348373, 1799, 1372, 4, false}, // WGS 84 / SCAR IMW SU11-15
    {3278, 4326, 348399, 1800, 1373, 4, false}, // WGS 84 / SCAR IMW SU16-20
    {3279, 4326, 348425, 1801, 1374, 4, false}, // WGS 84 / SCAR IMW SU21-25
    {3280, 4326, 348451, 1802, 1375, 4, false}, // WGS 84 / SCAR IMW SU26-30
    {3281, 4326, 348477, 1803, 1376, 4, false}, // WGS 84 / SCAR IMW SU31-35
    {3282, 4326, 348503, 1804, 1377, 4, false}, // WGS 84 / SCAR IMW SU36-40
    {3283, 4326, 348529, 1805, 1378, 4, false}, // WGS 84 / SCAR IMW SU41-45
    {3284, 4326, 348555, 1806, 1379, 4, false}, // WGS 84 / SCAR IMW SU46-50
    {3285, 4326, 348581, 1807, 1380, 4, false}, // WGS 84 / SCAR IMW SU51-55
    {3286, 4326, 348607, 1808, 1381, 4, false}, // WGS 84 / SCAR IMW SU56-60
    {3287, 4326, 348633, 1809, 1382, 4, false}, // WGS 84 / SCAR IMW SV01-10
    {3288, 4326, 348659, 1810, 1383, 4, false}, // WGS 84 / SCAR IMW SV11-20
    {3289, 4326, 348685, 1811, 1384, 4, false}, // WGS 84 / SCAR IMW SV21-30
    {3290, 4326, 348711, 1812, 1385, 4, false}, // WGS 84 / SCAR IMW SV31-40
    {3291, 4326, 348737, 1813, 1386, 4, false}, // WGS 84 / SCAR IMW SV41-50
    {3292, 4326, 348763, 1814, 1387, 4, false}, // WGS 84 / SCAR IMW SV51-60
    {3293, 4326, 348789, 1815, 1388, 4, false}, // WGS 84 / SCAR IMW SW01-60
    {3294, 4326, 349216, 1816, 1389, 4, false}, // WGS 84 / USGS Transantarctic Mountains
    {3295, 4675, 97405, 1303, 1408, 4, false}, // Guam 1963 / Yap Islands
    {3296, 4687, 272036, 1403, 1416, 4, false}, // RGPF / UTM zone 5S
    {3297, 4687, 272055, 1404, 1417, 4, false}, // RGPF / UTM zone 6S
    {3298, 4687, 272074, 1405, 1418, 4, false}, // RGPF / UTM zone 7S
    {3299, 4687, 272093, 1406, 1419, 4, false}, // RGPF / UTM zone 8S
    {3300, 4133, 69949, 2327, 1492, 5, false}, // Estonian Coordinate System of 1992
    {3301, 4180, 69984, 2327, 32, 5, false}, // Estonian Coordinate System of 1997
    {3302, 4689, 102880, 1405, 1424, 4, false}, // IGN63 Hiva Oa / UTM zone 7S
    {3303, 4688, 75571, 1405, 1425, 4, false}, // Fatu Iva 72 / UTM zone 7S
    {3304, 4690, 310130, 1404, 1420, 4, false}, // Tahiti 79 / UTM zone 6S
    {3305, 4691, 143793, 1404, 1421, 4, false}, // Moorea 87 / UTM zone 6S
    {3306, 4692, 138039, 1403, 1422, 4, false}, // Maupiti 83 / UTM zone 5S
    {3307, 4693, 218690, 1348, 1075, 4, false}, // Nakhl-e Ghanem / UTM zone 39N
    {3308, 4283, 82858, 1863, 1426, 4, false}, // GDA94 / NSW Lambert
    {3309, 4267, 145924, 933, 193, 4, false}, // NAD27 / California Albers
    {3310, 4269, 151925, 933, 193, 4, false}, // NAD83 / California Albers
    {3311, 4152, 191678, 933, 193, 4, false}, // NAD83(HARN) / California Albers
    {3312, 4623, 41955, 1330, 1850, 4, false}, // CSG67 / UTM zone 21N
    {3313, 4624, 271506, 1330, 1429, 4, false}, // RGFG95 / UTM zone 21N
    {3314, 4695, 120608, 1865, 1430, 4, true}, // Katanga 1955 / Katanga Lambert
    {3315, 4695, 120639, 1866, 1430, 4, true}, // Katanga 1955 / Katanga TM
    {3316, 4696, 120324, 1872, 2527, 4, false}, // Kasai 1953 / Congo TM zone 22
    {3317, 4696, 120354, 1873, 1439, 4, false}, // Kasai 1953 / Congo TM zone 24
    {3318, 4697, 101732, 1867, 1433, 4, false}, // IGC 1962 / Congo TM zone 12
    {3319, 4697, 101760, 1868, 1434, 4, false}, // IGC 1962 / Congo TM zone 14
    {3320, 4697, 101788, 1869, 1435, 4, false}, // IGC 1962 / Congo TM zone 16
    {3321, 4697, 101816, 1870, 1436, 4, false}, // IGC 1962 / Congo TM zone 18
    {3322, 4697, 101844, 1871, 1437, 4, false}, // IGC 1962 / Congo TM zone 20
    {3323, 4697, 101872, 1872, 1438, 4, false}, // IGC 1962 / Congo TM zone 22
    {3324, 4697, 101900, 1873, 1439, 4, false}, // IGC 1962 / Congo TM zone 24
    {3325, 4697, 101928, 1874, 1440, 4, false}, // IGC 1962 / Congo TM zone 26
    {3326, 4697, 101956, 1875, 1441, 4, false}, // IGC 1962 / Congo TM zone 28
    {3327, 4697, 101984, 1876, 1442, 4, false}, // IGC 1962 / Congo TM zone 30
    {3328, 4179, 258612, 2190, 1516, 5, false}, // Pulkovo 1942(58) / GUGiK-80
    {3329, 4179, 258318, 1508, 1718, 5, false}, // Pulkovo 1942(58) / 3-degree Gauss-Kruger zone 5
    {3330, 4179, 258420, 1509, 1719, 5, false}, // Pulkovo 1942(58) / 3-degree Gauss-Kruger zone 6
    {3331, 4179, 258468, 1510, 1721, 5, false}, // Pulkovo 1942(58) / 3-degree Gauss-Kruger zone 7
    {3332, 4179, 258516, 1511, 1723, 5, false}, // Pulkovo 1942(58) / 3-degree Gauss-Kruger zone 8
    {3333, 4179, 258724, 1474, 578, 5, false}, // Pulkovo 1942(58) / Gauss-Kruger zone 3
    {3334, 4179, 258808, 1475, 1715, 5, false}, // Pulkovo 1942(58) / Gauss-Kruger zone 4
    {3335, 4179, 258847, 1476, 1717, 5, false}, // Pulkovo 1942(58) / Gauss-Kruger zone 5
    {3336, 4698, 102533, 1440, 1233, 4, false}, // IGN 1962 Kerguelen / UTM zone 42S
    {3337, 4699, 126803, 2292, 1476, 4, false}, // Le Pouce 1934 / Mauritius Grid
    {3338, 4269, 150729, 1176, 157, 4, false}, // NAD83 / Alaska Albers
    {3339, 4701, 102089, 1867, 1433, 4, false}, // IGCB 1955 / Congo TM zone 12
    {3340, 4701, 102118, 1868, 1434, 4, false}, // IGCB 1955 / Congo TM zone 14
    {3341, 4701, 102147, 1869, 2022, 4, false}, // IGCB 1955 / Congo TM zone 16
    {3342, 4701, 102176, 1431, 1443, 4, false}, // IGCB 1955 / UTM zone 33S
    {3343, 4702, 138318, 1337, 1964, 4, false}, // Mauritania 1999 / UTM zone 28N
    {3344, 4702, 138349, 1338, 1292, 4, false}, // Mauritania 1999 / UTM zone 29N
    {3345, 4702, 138380, 1339, 1291, 4, false}, // Mauritania 1999 / UTM zone 30N
    {3346, 4669, 125289, 2323, 60, 5, false}, // LKS94 / Lithuania TM
    {3347, 4269, 157149, 2290, 16, 4, false}, // NAD83 / Statistics Canada Lambert
    {3348, 4617, 185879, 2290, 16, 4, false}, // NAD83(CSRS) / Statistics Canada Lambert
    {3349, 4326, 346371, 2291, 1444, 4, true}, // WGS 84 / PDC Mercator
    {3350, 4284, 254423, 2231, 1445, 5, false}, // Pulkovo 1942 / CS63 zone C0
    {3351, 4284, 254451, 2232, 1446, 5, false}, // Pulkovo 1942 / CS63 zone C1
    {3352, 4284, 254479, 2233, 1447, 5, false}, // Pulkovo 1942 / CS63 zone C2
    {3353, 4704, 139876, 1430, 1451, 4, false}, // Mhast (onshore) / UTM zone 32S
    {3354, 4705, 139828, 1430, 1452, 4, false}, // Mhast (offshore) / UTM zone 32S
    {3355, 4706, 69349, 2073, 1073, 4, false}, // Egypt Gulf of Suez S-650 TL / Red Belt
    {3356, 4723, 95356, 1326, 1457, 4, true}, // Grand Cayman 1959 / UTM zone 17N
    {3357, 4726, 128305, 1326, 1458, 4, true}, // Little Cayman 1961 / UTM zone 17N
    {3358, 4152, 196019, 1071, 208, 4, false}, // NAD83(HARN) / North Carolina
    {3359, 4152, 196048, 1250, 208, 6, true}, // NAD83(HARN) / North Carolina (ftUS)
    {3360, 4152, 196903, 1099, 211, 4, false}, // NAD83(HARN) / South Carolina
    {3361, 4152, 196932, 1259, 211, 6, false}, // NAD83(HARN) / South Carolina (ft)
    {3362, 4152, 196655, 1093, 1030, 4, false}, // NAD83(HARN) / Pennsylvania North
    {3363, 4152, 196688, 1257, 1030, 8, false}, // NAD83(HARN) / Pennsylvania North (ftUS)
    {3364, 4152, 196728, 1094, 1031, 4, false}, // NAD83(HARN) / Pennsylvania South
    {3365, 4152, 196761, 1258, 1031, 8, false}, // NAD83(HARN) / Pennsylvania South (ftUS)
    {3366, 4738, 100425, 2289, 42, 5, true}, // Hong Kong 1963 Grid System
    {3367, 4700, 102582, 1337, 1293, 4, false}, // IGN Astro 1960 / UTM zone 28N
    {3368, 4700, 102612, 1338, 1292, 4, false}, // IGN Astro 1960 / UTM zone 29N
    {3369, 4700, 102642, 1339, 1291, 4, false}, // IGN Astro 1960 / UTM zone 30N
    {3370, 4267, 148803, 1368, 1554, 4, false}, // NAD27 / UTM zone 59N
    {3371, 4267, 148844, 1369, 1555, 4, false}, // NAD27 / UTM zone 60N
    {3372, 4269, 158062, 1368, 1554, 4, false}, // NAD83 / UTM zone 59N
    {3373, 4269, 158103, 1369, 1555, 4, false}, // NAD83 / UTM zone 60N
    {3374, 4741, 74928, 1338, 1494, 4, false}, // FD54 / UTM zone 29N
    {3375, 4742, 83151, 2288, 1978, 4, false}, // GDM2000 / Peninsula RSO
    {3376, 4742, 83023, 2287, 1997, 4, false}, // GDM2000 / East Malaysia BRSO
    {3377, 4742, 83052, 2286, 1558, 4, false}, // GDM2000 / Johor Grid
    {3378, 4742, 83242, 2285, 1559, 4, false}, // GDM2000 / Sembilan and Melaka Grid
    {3379, 4742, 83129, 2284, 1560, 4, false}, // GDM2000 / Pahang Grid
    {3380, 4742, 83218, 2283, 1561, 4, false}, // GDM2000 / Selangor Grid
    {3381, 4742, 83277, 2282, 1562, 4, false}, // GDM2000 / Terengganu Grid
    {3382, 4742, 83196, 2281, 1563, 4, false}, // GDM2000 / Pinang Grid
    {3383, 4742, 83073, 2280, 1564, 4, false}, // GDM2000 / Kedah and Perlis Grid
    {3384, 4742, 83175, 2279, 1565, 4, false}, // GDM2000 / Perak Grid
    {3385, 4742, 83105, 2278, 1566, 4, false}, // GDM2000 / Kelantan Grid
    {3386, 4123, 117296, 2121, 1392, 5, false}, // KKJ / Finland zone 0
    {3387, 4123, 117380, 2145, 1567, 5, false}, // KKJ / Finland zone 5
    {3388, 4284, 254787, 2277, 127, 5, false}, // Pulkovo 1942 / Caspian Sea Mercator
    {3389, 4284, 253954, 1397, 1165, 5, false}, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 60
    {3390, 4200, 264808, 1397, 1165, 5, false}, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 60
    {3391, 4743, 120023, 1346, 1569, 4, false}, // Karbala 1979 / UTM zone 37N
    {3392, 4743, 120051, 1347, 1570, 4, false}, // Karbala 1979 / UTM zone 38N
    {3393, 4743, 120079, 1348, 1571, 4, false}, // Karbala 1979 / UTM zone 39N
    {3394, 4744, 218316, 2299, 2211, 4, false}, // Nahrwan 1934 / Iraq zone
    {3395, 4326, 352075, 2276, 1572, 4, false}, // WGS 84 / World Mercator
    {3396, 4746, 240344, 1506, 1573, 5, false}, // PD/83 / 3-degree Gauss-Kruger zone 3
    {3397, 4746, 240424, 1507, 1574, 5, false}, // PD/83 / 3-degree Gauss-Kruger zone 4
    {3398, 4745, 269645, 1507, 1576, 5, false}, // RD/83 / 3-degree Gauss-Kruger zone 4
    {3399, 4745, 269725, 1508, 1575, 5, false}, // RD/83 / 3-degree Gauss-Kruger zone 5
    {3400, 4269, 150972, 2274, 1079, 4, false}, // NAD83 / Alberta 10-TM (Forest)
    {3401, 4269, 151003, 2275, 1079, 4, false}, // NAD83 / Alberta 10-TM (Resource)
    {3402, 4617, 184264, 2274, 1079, 4, false}, // NAD83(CSRS) / Alberta 10-TM (Forest)
    {3403, 4617, 184301, 2275, 1079, 4, false}, // NAD83(CSRS) / Alberta 10-TM (Resource)
    {3404, 4152, 196048, 1250, 208, 8, false}, // NAD83(HARN) / North Carolina (ftUS)
    {3405, 4756, 334280, 1357, 250, 4, false}, // VN-2000 / UTM zone 48N
    {3406, 4756, 334303, 1358, 251, 4, false}, // VN-2000 / UTM zone 49N
    {3407, 4738, 100425, 2289, 42, 10, false}, // Hong Kong 1963 Grid System
    {3408, 4053, 345988, 20, 1645, 4, true}, // NSIDC EASE-Grid North
    {3409, 4053, 346019, 21, 1644, 4, true}, // NSIDC EASE-Grid South
    {3410, 4053, 345956, 2262, 1638, 4, true}, // NSIDC EASE-Grid Global
    {3411, 4054, 346050, 2260, 781, 4, true}, // NSIDC Sea Ice Polar Stereographic North
    {3412, 4054, 346099, 2261, 782, 4, true}, // NSIDC Sea Ice Polar Stereographic South
    {3413, 4326, 346041, 2260, 781, 4, false}, // WGS 84 / NSIDC Sea Ice Polar Stereographic North
    {3414, 4757, 295382, 2259, 90, 5, false}, // SVY21 / Singapore TM
    {3415, 4324, 340013, 2258, 1643, 4, false}, // WGS 72BE / South China Sea Lambert
    {3416, 4258, 65723, 2336, 7, 5, false}, // ETRS89 / Austria Lambert
    {3417, 4269, 153483, 1281, 983, 8, false}, // NAD83 / Iowa North (ftUS)
    {3418, 4269, 153528, 1282, 984, 8, false}, // NAD83 / Iowa South (ftUS)
    {3419, 4269, 153620, 1283, 985, 8, false}, // NAD83 / Kansas North (ftUS)
    {3420, 4269, 153669, 1284, 986, 8, false}, // NAD83 / Kansas South (ftUS)
    {3421, 4269, 155597, 1285, 1009, 8, false}, // NAD83 / Nevada East (ftUS)
    {3422, 4269, 155547, 1286, 1008, 8, false}, // NAD83 / Nevada Central (ftUS)
    {3423, 4269, 155644, 1287, 1010, 8, false}, // NAD83 / Nevada West (ftUS)
    {3424, 4269, 155741, 1288, 207, 8, false}, // NAD83 / New Jersey (ftUS)
    {3425, 4152, 193467, 1281, 983, 8, false}, // NAD83(HARN) / Iowa North (ftUS)
    {3426, 4152, 193524, 1282, 984, 8, false}, // NAD83(HARN) / Iowa South (ftUS)
    {3427, 4152, 193583, 1283, 985, 8, false}, // NAD83(HARN) / Kansas North (ftUS)
    {3428, 4152, 193644, 1284, 986, 8, false}, // NAD83(HARN) / Kansas South (ftUS)
    {3429, 4152, 195328, 1285, 1009, 8, false}, // NAD83(HARN) / Nevada East (ftUS)
    {3430, 4152, 195266, 1286, 1008, 8, false}, // NAD83(HARN) / Nevada Central (ftUS)
    {3431, 4152, 195387, 1287, 1010, 8, false}, // NAD83(HARN) / Nevada West (ftUS)
    {3432, 4152, 195508, 1288, 207, 8, false}, // NAD83(HARN) / New Jersey (ftUS)
    {3433, 4269, 151350, 1289, 954, 8, false}, // NAD83 / Arkansas North (ftUS)
    {3434, 4269, 151403, 1290, 955, 8, false}, // NAD83 / Arkansas South (ftUS)
    {3435, 4269, 153286, 1291, 979, 8, false}, // NAD83 / Illinois East (ftUS)
    {3436, 4269, 153337, 1292, 980, 8, false}, // NAD83 / Illinois West (ftUS)
    {3437, 4269, 155693, 1293, 206, 8, false}, // NAD83 / New Hampshire (ftUS)
    {3438, 4269, 156927, 1294, 210, 8, false}, // NAD83 / Rhode Island (ftUS)
    {3439, 4134, 242454, 1348, 339, 4, false}, // PSD93 / UTM zone 39N
    {3440, 4134, 242475, 1349, 340, 4, false}, // PSD93 / UTM zone 40N
    {3441, 4152, 191577, 1289, 954, 8, false}, // NAD83(HARN) / Arkansas North (ftUS)
    {3442, 4152, 191642, 1290, 955, 8, false}, // NAD83(HARN) / Arkansas South (ftUS)
    {3443, 4152, 193222, 1291, 979, 8, false}, // NAD83(HARN) / Illinois East (ftUS)
    {3444, 4152, 193285, 1292, 980, 8, false}, // NAD83(HARN) / Illinois West (ftUS)
    {3445, 4152, 195448, 1293, 206, 8, false}, // NAD83(HARN) / New Hampshire (ftUS)
    {3446, 4152, 196869, 1294, 210, 8, false}, // NAD83(HARN) / Rhode Island (ftUS)
    {3447, 4258, 65748, 2257, 172, 4, false}, // ETRS89 / Belgian Lambert 2005
    {3448, 4758, 112752, 2255, 1540, 4, false}, // JAD2001 / Jamaica Metric Grid
    {3449, 4758, 112782, 1326, 1646, 4, false}, // JAD2001 / UTM zone 17N
    {3450, 4758, 112805, 1327, 1647, 4, false}, // JAD2001 / UTM zone 18N
    {3451, 4269, 153892, 1295, 989, 8, false}, // NAD83 / Louisiana North (ftUS)
    {3452, 4269, 154008, 1296, 1085, 8, false}, // NAD83 / Louisiana South (ftUS)
    {3453, 4269, 153950, 1297, 200, 8, false}, // NAD83 / Louisiana Offshore (ftUS)
    {3454, 4269, 157054, 1299, 1034, 8, true}, // NAD83 / South Dakota North (ftUS)
    {3455, 4269, 157115, 1299, 1035, 8, false}, // NAD83 / South Dakota South (ftUS)
    {3456, 4152, 193915, 1295, 989, 8, false}, // NAD83(HARN) / Louisiana North (ftUS)
    {3457, 4152, 193982, 1296, 1085, 8, false}, // NAD83(HARN) / Louisiana South (ftUS)
    {3458, 4152, 196999, 1298, 1034, 8, false}, // NAD83(HARN) / South Dakota North (ftUS)
    {3459, 4152, 197072, 1299, 1035, 8, false}, // NAD83(HARN) / South Dakota South (ftUS)
    {3460, 4720, 76129, 2254, 34, 4, false}, // Fiji 1986 / Fiji Map Grid
    {3461, 4155, 58508, 1337, 266, 4, false}, // Dabola 1981 / UTM zone 28N
    {3462, 4155, 58535, 1338, 267, 4, false}, // Dabola 1981 / UTM zone 29N
    {3463, 4269, 154390, 1003, 1287, 4, false}, // NAD83 / Maine CS2000 Central
    {3464, 4152, 194019, 1003, 1287, 4, false}, // NAD83(HARN) / Maine CS2000 Central
    {3465, 4759, 203736, 911, 939, 4, false}, // NAD83(NSRS2007) / Alabama East
    {3466, 4759, 203767, 912, 940, 4, false}, // NAD83(NSRS2007) / Alabama West
    {3467, 4759, 203798, 1176, 157, 4, false}, // NAD83(NSRS2007) / Alaska Albers
    {3468, 4759, 203830, 1177, 941, 4, false}, // NAD83(NSRS2007) / Alaska zone 1
    {3469, 4759, 203895, 1178, 943, 4, false}, // NAD83(NSRS2007) / Alaska zone 2
    {3470, 4759, 203927, 1179, 944, 4, false}, // NAD83(NSRS2007) / Alaska zone 3
    {3471, 4759, 203959, 1180, 945, 4, false}, // NAD83(NSRS2007) / Alaska zone 4
    {3472, 4759, 203991, 1181, 946, 4, false}, // NAD83(NSRS2007) / Alaska zone 5
    {3473, 4759, 204023, 1182, 947, 4, false}, // NAD83(NSRS2007) / Alaska zone 6
    {3474, 4759, 204055, 1183, 948, 4, false}, // NAD83(NSRS2007) / Alaska zone 7
    {3475, 4759, 204087, 1184, 949, 4, false}, // NAD83(NSRS2007) / Alaska zone 8
    {3476, 4759, 204119, 1185, 950, 4, false}, // NAD83(NSRS2007) / Alaska zone 9
    {3477, 4759, 203862, 1186, 942, 4, false}, // NAD83(NSRS2007) / Alaska zone 10
    {3478, 4759, 204151, 919, 951, 4, false}, // NAD83(NSRS2007) / Arizona Central
    {3479, 4759, 204185, 1209, 951, 6, false}, // NAD83(NSRS2007) / Arizona Central (ft)
    {3480, 4759, 204224, 918, 952, 4, false}, // NAD83(NSRS2007) / Arizona East
    {3481, 4759, 204255, 1208, 952, 6, false}, // NAD83(NSRS2007) / Arizona East (ft)
    {3482, 4759, 204291, 920, 953, 4, false}, // NAD83(NSRS2007) / Arizona West
    {3483, 4759, 204322, 1210, 953, 6, false}, // NAD83(NSRS2007) / Arizona West (ft)
    {3484, 4759, 204358, 923, 954, 4, false}, // NAD83(NSRS2007) / Arkansas North
    {3485, 4759, 204391, 1289, 954, 8, false}, // NAD83(NSRS2007) / Arkansas North (ftUS)
    {3486, 4759, 204431, 924, 955, 4, false}, // NAD83(NSRS2007) / Arkansas South
    {3487, 4759, 204464, 1290, 955, 8, false}, // NAD83(NSRS2007) / Arkansas South (ftUS)
    {3488, 4759, 204504, 933, 193, 4, false}, // NAD83(NSRS2007) / California Albers
    {3489, 4759, 204540, 934, 960, 4, false}, // NAD83(NSRS2007) / California zone 1
    {3490, 4759, 204576, 1211, 960, 8, false}, // NAD83(NSRS2007) / California zone 1 (ftUS)
    {3491, 4759, 204619, 935, 961, 4, false}, // NAD83(NSRS2007) / California zone 2
    {3492, 4759, 204655, 1212, 961, 8, false}, // NAD83(NSRS2007) / California zone 2 (ftUS)
    {3493, 4759, 204698, 936, 962, 4, false}, // NAD83(NSRS2007) / California zone 3
    {3494, 4759, 204734, 1213, 962, 8, false}, // NAD83(NSRS2007) / California zone 3 (ftUS)
    {3495, 4759, 204777, 937, 963, 4, false}, // NAD83(NSRS2007) / California zone 4
    {3496, 4759, 204813, 1214, 963, 8, false}, // NAD83(NSRS2007) / California zone 4 (ftUS)
    {3497, 4759, 204856, 938, 967, 4, false}, // NAD83(NSRS2007) / California zone 5
    {3498, 4759, 204892, 1215, 967, 8, false}, // NAD83(NSRS2007) / California zone 5 (ftUS)
    {3499, 4759, 204935, 939, 965, 4, false}, // NAD83(NSRS2007) / California zone 6
    {3500, 4759, 204971, 1216, 965, 8, false}, // NAD83(NSRS2007) / California zone 6 (ftUS)
    {3501, 4759, 205014, 944, 968, 4, false}, // NAD83(NSRS2007) / Colorado Central
    {3502, 4759, 205049, 1218, 968, 8, false}, // NAD83(NSRS2007) / Colorado Central (ftUS)
    {3503, 4759, 205091, 943, 969, 4, false}, // NAD83(NSRS2007) / Colorado North
    {3504, 4759, 205124, 1217, 969, 8, false}, // NAD83(NSRS2007) / Colorado North (ftUS)
    {3505, 4759, 205164, 945, 970, 4, false}, // NAD83(NSRS2007) / Colorado South
    {3506, 4759, 205197, 1219, 970, 8, false}, // NAD83(NSRS2007) / Colorado South (ftUS)
    {3507, 4759, 205237, 947, 194, 4, false}, // NAD83(NSRS2007) / Connecticut
    {3508, 4759, 205267, 1220, 194, 8, false}, // NAD83(NSRS2007) / Connecticut (ftUS)
    {3509, 4759, 205335, 949, 195, 4, false}, // NAD83(NSRS2007) / Delaware
    {3510, 4759, 205362, 1221, 195, 8, false}, // NAD83(NSRS2007) / Delaware (ftUS)
    {3511, 4759, 205556, 953, 971, 4, false}, // NAD83(NSRS2007) / Florida East
    {3512, 4759, 205587, 1222, 971, 8, false}, // NAD83(NSRS2007) / Florida East (ftUS)
    {3513, 4759, 205625, 956, 196, 4, false}, // NAD83(NSRS2007) / Florida GDL Albers
    {3514, 4759, 205662, 955, 972, 4, false}, // NAD83(NSRS2007) / Florida North
    {3515, 4759, 205694, 1224, 972, 8, false}, // NAD83(NSRS2007) / Florida North (ftUS)
    {3516, 4759, 205733, 954, 973, 4, false}, // NAD83(NSRS2007) / Florida West
    {3517, 4759, 205764, 1223, 973, 8, false}, // NAD83(NSRS2007) / Florida West (ftUS)
    {3518, 4759, 205802, 959, 974, 4, false}, // NAD83(NSRS2007) / Georgia East
    {3519, 4759, 205833, 1225, 974, 8, false}, // NAD83(NSRS2007) / Georgia East (ftUS)
    {3520, 4759, 205871, 960, 975, 4, false}, // NAD83(NSRS2007) / Georgia West
    {3521, 4759, 205902, 1226, 975, 8, false}, // NAD83(NSRS2007) / Georgia West (ftUS)
    {3522, 4759, 205940, 965, 976, 4, false}, // NAD83(NSRS2007) / Idaho Central
    {3523, 4759, 205972, 1228, 976, 8, false}, // NAD83(NSRS2007) / Idaho Central (ftUS)
    {3524, 4759, 206011, 964, 977, 4, false}, // NAD83(NSRS2007) / Idaho East
    {3525, 4759, 206040, 1227, 977, 8, false}, // NAD83(NSRS2007) / Idaho East (ftUS)
    {3526, 4759, 206076, 966, 978, 4, false}, // NAD83(NSRS2007) / Idaho West
    {3527, 4759, 206105, 1229, 978, 8, false}, // NAD83(NSRS2007) / Idaho West (ftUS)
    {3528, 4759, 206141, 969, 979, 4, false}, // NAD83(NSRS2007) / Illinois East
    {3529, 4759, 206173, 1291, 979, 8, false}, // NAD83(NSRS2007) / Illinois East (ftUS)
    {3530, 4759, 206212, 970, 980, 4, false}, // NAD83(NSRS2007) / Illinois West
    {3531, 4759, 206244, 1292, 980, 8, false}, // NAD83(NSRS2007) / Illinois West (ftUS)
    {3532, 4759, 206283, 973, 981, 4, false}, // NAD83(NSRS2007) / Indiana East
    {3533, 4759, 206314, 1276, 981, 8, false}, // NAD83(NSRS2007) / Indiana East (ftUS)
    {3534, 4759, 206352, 974, 982, 4, false}, // NAD83(NSRS2007) / Indiana West
    {3535, 4759, 206383, 1277, 982, 8, false}, // NAD83(NSRS2007) / Indiana West (ftUS)
    {3536, 4759, 206421, 977, 983, 4, false}, // NAD83(NSRS2007) / Iowa North
    {3537, 4759, 206450, 1281, 983, 8, false}, // NAD83(NSRS2007) / Iowa North (ftUS)
    {3538, 4759, 206486, 978, 984, 4, false}, // NAD83(NSRS2007) / Iowa South
    {3539, 4759, 206515, 1282, 984, 8, false}, // NAD83(NSRS2007) / Iowa South (ftUS)
    {3540, 4759, 206551, 981, 985, 4, false}, // NAD83(NSRS2007) / Kansas North
    {3541, 4759, 206582, 1283, 985, 8, false}, // NAD83(NSRS2007) / Kansas North (ftUS)
    {3542, 4759, 206620, 982, 986, 4, false}, // NAD83(NSRS2007) / Kansas South
    {3543, 4759, 206651, 1284, 986, 8, false}, // NAD83(NSRS2007) / Kansas South (ftUS)
    {3544, 4759, 206689, 1207, 987, 4, false}, // NAD83(NSRS2007) / Kentucky North
    {3545, 4759, 206722, 1232, 987, 8, false}, // NAD83(NSRS2007) / Kentucky North (ftUS)
    {3546, 4759, 206762, 985, 199, 4, false}, // NAD83(NSRS2007) / Kentucky Single Zone
    {3547, 4759, 206801, 1279, 199, 8, false}, // NAD83(NSRS2007) / Kentucky Single Zone (ftUS)
    {3548, 4759, 206847, 987, 988, 4, false}, // NAD83(NSRS2007) / Kentucky South
    {3549, 4759, 206880, 1233, 988, 8, false}, // NAD83(NSRS2007) / Kentucky South (ftUS)
    {3550, 4759, 206920, 991, 989, 4, false}, // NAD83(NSRS2007) / Louisiana North
    {3551, 4759, 206954, 1295, 989, 8, false}, // NAD83(NSRS2007) / Louisiana North (ftUS)
    {3552, 4759, 206995, 992, 1085, 4, false}, // NAD83(NSRS2007) / Louisiana South
    {3553, 4759, 207029, 1296, 1085, 8, false}, // NAD83(NSRS2007) / Louisiana South (ftUS)
    {3554, 4759, 207070, 1003, 1287, 4, false}, // NAD83(NSRS2007) / Maine CS2000 Central
    {3555, 4759, 207109, 1000, 1288, 4, false}, // NAD83(NSRS2007) / Maine CS2000 East
    {3556, 4759, 207145, 1002, 1286, 4, false}, // NAD83(NSRS2007) / Maine CS2000 West
    {3557, 4759, 207181, 996, 991, 4, false}, // NAD83(NSRS2007) / Maine East
    {3558, 4759, 207246, 997, 992, 4, false}, // NAD83(NSRS2007) / Maine West
    {3559, 4759, 207311, 1005, 201, 4, false}, // NAD83(NSRS2007) / Maryland
    {3560, 4269, 158322, 1201, 1043, 8, false}, // NAD83 / Utah North (ftUS)
    {3561, 4135, 235950, 1187, 341, 8, false}, // Old Hawaiian / Hawaii zone 1
    {3562, 4135, 235979, 1188, 342, 8, false}, // Old Hawaiian / Hawaii zone 2
    {3563, 4135, 236008, 1189, 343, 8, false}, // Old Hawaiian / Hawaii zone 3
    {3564, 4135, 236037, 1190, 344, 8, false}, // Old Hawaiian / Hawaii zone 4
    {3565, 4135, 236066, 1191, 345, 8, false}, // Old Hawaiian / Hawaii zone 5
    {3566, 4269, 158251, 1202, 1042, 8, false}, // NAD83 / Utah Central (ftUS)
    {3567, 4269, 158391, 1203, 1044, 8, false}, // NAD83 / Utah South (ftUS)
    {3568, 4152, 198113, 1201, 1043, 8, false}, // NAD83(HARN) / Utah North (ftUS)
    {3569, 4152, 198024, 1202, 1042, 8, false}, // NAD83(HARN) / Utah Central (ftUS)
    {3570, 4152, 198200, 1203, 1044, 8, false}, // NAD83(HARN) / Utah South (ftUS)
    {3571, 4326, 346223, 1817, 1648, 4, false}, // WGS 84 / North Pole LAEA Bering Sea
    {3572, 4326, 346157, 1818, 1648, 4, false}, // WGS 84 / North Pole LAEA Alaska
    {3573, 4326, 346259, 1819, 1648, 4, false}, // WGS 84 / North Pole LAEA Canada
    {3574, 4326, 346189, 1820, 1648, 4, false}, // WGS 84 / North Pole LAEA Atlantic
    {3575, 4326, 346291, 1821, 1648, 4, false}, // WGS 84 / North Pole LAEA Europe
    {3576, 4326, 346323, 1822, 1648, 4, false}, // WGS 84 / North Pole LAEA Russia
    {3577, 4283, 82391, 1864, 1102, 4, false}, // GDA94 / Australian Albers
    {3578, 4269, 159286, 2253, 1081, 4, false}, // NAD83 / Yukon Albers
    {3579, 4617, 186440, 2253, 1081, 4, false}, // NAD83(CSRS) / Yukon Albers
    {3580, 4269, 155463, 2252, 1649, 4, false}, // NAD83 / NWT Lambert
    {3581, 4617, 185638, 2252, 1649, 4, false}, // NAD83(CSRS) / NWT Lambert
    {3582, 4759, 207338, 1234, 201, 8, false}, // NAD83(NSRS2007) / Maryland (ftUS)
    {3583, 4759, 207372, 1009, 993, 4, false}, // NAD83(NSRS2007) / Massachusetts Island
    {3584, 4759, 207411, 1236, 993, 8, false}, // NAD83(NSRS2007) / Massachusetts Island (ftUS)
    {3585, 4759, 207457, 1008, 994, 4, false}, // NAD83(NSRS2007) / Massachusetts Mainland
    {3586, 4759, 207498, 1235, 994, 8, false}, // NAD83(NSRS2007) / Massachusetts Mainland (ftUS)
    {3587, 4759, 207546, 1017, 514, 4, false}, // NAD83(NSRS2007) / Michigan Central
    {3588, 4759, 207581, 1238, 514, 6, false}, // NAD83(NSRS2007) / Michigan Central (ft)
    {3589, 4759, 207621, 1016, 513, 4, false}, // NAD83(NSRS2007) / Michigan North
    {3590, 4759, 207654, 1237, 513, 6, false}, // NAD83(NSRS2007) / Michigan North (ft)
    {3591, 4759, 207692, 1019, 202, 4, false}, // NAD83(NSRS2007) / Michigan Oblique Mercator
    {3592, 4759, 207736, 1018, 515, 4, false}, // NAD83(NSRS2007) / Michigan South
    {3593, 4759, 207769, 1239, 515, 6, false}, // NAD83(NSRS2007) / Michigan South (ft)
    {3594, 4759, 207807, 1024, 998, 4, false}, // NAD83(NSRS2007) / Minnesota Central
    {3595, 4759, 207886, 1023, 999, 4, false}, // NAD83(NSRS2007) / Minnesota North
    {3596, 4759, 207961, 1025, 1000, 4, false}, // NAD83(NSRS2007) / Minnesota South
    {3597, 4759, 208036, 1031, 1001, 4, false}, // NAD83(NSRS2007) / Mississippi East
    {3598, 4759, 208071, 1240, 1001, 8, false}, // NAD83(NSRS2007) / Mississippi East (ftUS)
    {3599, 4759, 208146, 1032, 1002, 4, false}, // NAD83(NSRS2007) / Mississippi West
    {3600, 4759, 208181, 1241, 1002, 8, false}, // NAD83(NSRS2007) / Mississippi West (ftUS)
    {3601, 4759, 208223, 1037, 1003, 4, false}, // NAD83(NSRS2007) / Missouri Central
    {3602, 4759, 208258, 1036, 1004, 4, false}, // NAD83(NSRS2007) / Missouri East
    {3603, 4759, 208290, 1038, 1005, 4, false}, // NAD83(NSRS2007) / Missouri West
    {3604, 4759, 208322, 1042, 204, 4, false}, // NAD83(NSRS2007) / Montana
    {3605, 4759, 208348, 1242, 204, 6, false}, // NAD83(NSRS2007) / Montana (ft)
    {3606, 4759, 208379, 1045, 205, 4, false}, // NAD83(NSRS2007) / Nebraska
    {3607, 4759, 208440, 1050, 1008, 4, false}, // NAD83(NSRS2007) / Nevada Central
    {3608, 4759, 208473, 1286, 1008, 8, false}, // NAD83(NSRS2007) / Nevada Central (ftUS)
    {3609, 4759, 208513, 1049, 1009, 4, false}, // NAD83(NSRS2007) / Nevada East
    {3610, 4759, 208543, 1285, 1009, 8, false}, // NAD83(NSRS2007) / Nevada East (ftUS)
    {3611, 4759, 208580, 1051, 1010, 4, false}, // NAD83(NSRS2007) / Nevada West
    {3612, 4759, 208610, 1287, 1010, 8, false}, // NAD83(NSRS2007) / Nevada West (ftUS)
    {3613, 4759, 208647, 1053, 206, 4, false}, // NAD83(NSRS2007) / New Hampshire
    {3614, 4759, 208679, 1293, 206, 8, false}, // NAD83(NSRS2007) / New Hampshire (ftUS)
    {3615, 4759, 208718, 1055, 207, 4, false}, // NAD83(NSRS2007) / New Jersey
    {3616, 4759, 208747, 1288, 207, 8, false}, // NAD83(NSRS2007) / New Jersey (ftUS)
    {3617, 4759, 208783, 1060, 1016, 4, false}, // NAD83(NSRS2007) / New Mexico Central
    {3618, 4759, 208820, 1244, 1016, 8, false}, // NAD83(NSRS2007) / New Mexico Central (ftUS)
    {3619, 4759, 208864, 1059, 1013, 4, false}, // NAD83(NSRS2007) / New Mexico East
    {3620, 4759, 208898, 1243, 1013, 8, false}, // NAD83(NSRS2007) / New Mexico East (ftUS)
    {3621, 4759, 208939, 1061, 1017, 4, false}, // NAD83(NSRS2007) / New Mexico West
    {3622, 4759, 208973, 1245, 1017, 8, false}, // NAD83(NSRS2007) / New Mexico West (ftUS)
    {3623, 4759, 209014, 1067, 1018, 4, false}, // NAD83(NSRS2007) / New York Central
    {3624, 4759, 209049, 1247, 1018, 8, false}, // NAD83(NSRS2007) / New York Central (ftUS)
    {3625, 4759, 209091, 1066, 1019, 4, false}, // NAD83(NSRS2007) / New York East
    {3626, 4759, 209123, 1246, 1019, 8, false}, // NAD83(NSRS2007) / New York East (ftUS)
    {3627, 4759, 209162, 1069, 1020, 4, false}, // NAD83(NSRS2007) / New York Long Island
    {3628, 4759, 209201, 1249, 1020, 8, false}, // NAD83(NSRS2007) / New York Long Island (ftUS)
    {3629, 4759, 209247, 1068, 1021, 4, false}, // NAD83(NSRS2007) / New York West
    {3630, 4759, 209279, 1248, 1021, 8, false}, // NAD83(NSRS2007) / New York West (ftUS)
    {3631, 4759, 209318, 1071, 208, 4, false}, // NAD83(NSRS2007) / North Carolina
    {3632, 4759, 209351, 1250, 208, 8, false}, // NAD83(NSRS2007) / North Carolina (ftUS)
    {3633, 4759, 209391, 1074, 1022, 4, false}, // NAD83(NSRS2007) / North Dakota North
    {3634, 4759, 209428, 1251, 1022, 6, false}, // NAD83(NSRS2007) / North Dakota North (ft)
    {3635, 4759, 209470, 1075, 1023, 4, false}, // NAD83(NSRS2007) / North Dakota South
    {3636, 4759, 209507, 1252, 1023, 6, false}, // NAD83(NSRS2007) / North Dakota South (ft)
    {3637, 4759, 209549, 1078, 1024, 4, false}, // NAD83(NSRS2007) / Ohio North
    {3638, 4759, 209614, 1079, 1025, 4, false}, // NAD83(NSRS2007) / Ohio South
    {3639, 4759, 209679, 1084, 1026, 4, false}, // NAD83(NSRS2007) / Oklahoma North
    {3640, 4759, 209712, 1253, 1026, 8, false}, // NAD83(NSRS2007) / Oklahoma North (ftUS)
    {3641, 4759, 209752, 1085, 1027, 4, false}, // NAD83(NSRS2007) / Oklahoma South
    {3642, 4759, 209785, 1254, 1027, 8, false}, // NAD83(NSRS2007) / Oklahoma South (ftUS)
    {3643, 4759, 209867, 1090, 209, 4, false}, // NAD83(NSRS2007) / Oregon LCC (m)
    {3644, 4759, 209825, 1278, 209, 6, false}, // NAD83(NSRS2007) / Oregon GIC Lambert (ft)
    {3645, 4759, 209900, 1088, 1028, 4, false}, // NAD83(NSRS2007) / Oregon North
    {3646, 4759, 209931, 1255, 1028, 6, false}, // NAD83(NSRS2007) / Oregon North (ft)
    {3647, 4759, 209967, 1089, 1029, 4, false}, // NAD83(NSRS2007) / Oregon South
    {3648, 4759, 209998, 1256, 1029, 6, false}, // NAD83(NSRS2007) / Oregon South (ft)
    {3649, 4759, 210034, 1093, 1030, 4, false}, // NAD83(NSRS2007) / Pennsylvania North
    {3650, 4759, 210071, 1257, 1030, 8, false}, // NAD83(NSRS2007) / Pennsylvania North (ftUS)
    {3651, 4759, 210115, 1094, 1031, 4, false}, // NAD83(NSRS2007) / Pennsylvania South
    {3652, 4759, 210152, 1258, 1031, 8, false}, // NAD83(NSRS2007) / Pennsylvania South (ftUS)
    {3653, 4759, 210241, 1096, 210, 4, false}, // NAD83(NSRS2007) / Rhode Island
    {3654, 4759, 210272, 1294, 210, 8, false}, // NAD83(NSRS2007) / Rhode Island (ftUS)
    {3655, 4759, 210310, 1099, 211, 4, false}, // NAD83(NSRS2007) / South Carolina
    {3656, 4759, 210343, 1259, 211, 6, false}, // NAD83(NSRS2007) / South Carolina (ft)
    {3657, 4759, 210381, 1102, 1034, 4, false}, // NAD83(NSRS2007) / South Dakota North
    {3658, 4759, 210418, 1298, 1034, 8, false}, // NAD83(NSRS2007) / South Dakota North (ftUS)
    {3659, 4759, 210462, 1103, 1035, 4, false}, // NAD83(NSRS2007) / South Dakota South
    {3660, 4759, 210499, 1299, 1035, 8, false}, // NAD83(NSRS2007) / South Dakota South (ftUS)
    {3661, 4759, 210543, 1105, 212, 4, false}, // NAD83(NSRS2007) / Tennessee
    {3662, 4759, 210571, 1260, 212, 8, false}, // NAD83(NSRS2007) / Tennessee (ftUS)
    {3663, 4759, 210606, 1113, 1037, 4, false}, // NAD83(NSRS2007) / Texas Central
    {3664, 4759, 210638, 1263, 1037, 8, false}, // NAD83(NSRS2007) / Texas Central (ftUS)
    {3665, 4759, 210677, 1119, 213, 4, false}, // NAD83(NSRS2007) / Texas Centric Albers Equal Area
    {3666, 4759, 210727, 1118, 213, 4, false}, // NAD83(NSRS2007) / Texas Centric Lambert Conformal
    {3667, 4759, 210777, 1111, 1038, 4, false}, // NAD83(NSRS2007) / Texas North
    {3668, 4759, 210807, 1261, 1038, 8, false}, // NAD83(NSRS2007) / Texas North (ftUS)
    {3669, 4759, 210844, 1112, 1039, 4, false}, // NAD83(NSRS2007) / Texas North Central
    {3670, 4759, 210882, 1262, 1039, 8, false}, // NAD83(NSRS2007) / Texas North Central (ftUS)
    {3671, 4759, 210927, 1115, 1084, 4, false}, // NAD83(NSRS2007) / Texas South
    {3672, 4759, 210957, 1265, 1084, 8, false}, // NAD83(NSRS2007) / Texas South (ftUS)
    {3673, 4759, 210994, 1114, 1083, 4, false}, // NAD83(NSRS2007) / Texas South Central
    {3674, 4759, 211032, 1264, 1083, 8, false}, // NAD83(NSRS2007) / Texas South Central (ftUS)
    {3675, 4759, 211719, 1124, 1042, 4, false}, // NAD83(NSRS2007) / Utah Central
    {3676, 4759, 211750, 1267, 1042, 6, false}, // NAD83(NSRS2007) / Utah Central (ft)
    {3677, 4759, 211786, 1202, 1042, 8, false}, // NAD83(NSRS2007) / Utah Central (ftUS)
    {3678, 4759, 211824, 1123, 1043, 4, false}, // NAD83(NSRS2007) / Utah North
    {3679, 4759, 211853, 1266, 1043, 6, false}, // NAD83(NSRS2007) / Utah North (ft)
    {3680, 4759, 211887, 1201, 1043, 8, false}, // NAD83(NSRS2007) / Utah North (ftUS)
    {3681, 4759, 211923, 1125, 1044, 4, false}, // NAD83(NSRS2007) / Utah South
    {3682, 4759, 211952, 1268, 1044, 6, false}, // NAD83(NSRS2007) / Utah South (ft)
    {3683, 4759, 211986, 1203, 1044, 8, false}, // NAD83(NSRS2007) / Utah South (ftUS)
    {3684, 4759, 212022, 1127, 214, 4, false}, // NAD83(NSRS2007) / Vermont
    {3685, 4759, 212116, 1130, 1045, 4, false}, // NAD83(NSRS2007) / Virginia North
    {3686, 4759, 212149, 1269, 1045, 8, false}, // NAD83(NSRS2007) / Virginia North (ftUS)
    {3687, 4759, 212189, 1131, 1046, 4, false}, // NAD83(NSRS2007) / Virginia South
    {3688, 4759, 212222, 1270, 1046, 8, false}, // NAD83(NSRS2007) / Virginia South (ftUS)
    {3689, 4759, 212262, 1134, 1058, 4, false}, // NAD83(NSRS2007) / Washington North
    {3690, 4759, 212297, 1271, 1058, 8, false}, // NAD83(NSRS2007) / Washington North (ftUS)
    {3691, 4759, 212339, 1135, 1059, 4, false}, // NAD83(NSRS2007) / Washington South
    {3692, 4759, 212374, 1272, 1059, 8, false}, // NAD83(NSRS2007) / Washington South (ftUS)
    {3693, 4759, 212416, 1138, 1049, 4, false}, // NAD83(NSRS2007) / West Virginia North
    {3694, 4759, 212499, 1139, 1050, 4, false}, // NAD83(NSRS2007) / West Virginia South
    {3695, 4759, 212582, 1149, 1051, 4, false}, // NAD83(NSRS2007) / Wisconsin Central
    {3696, 4759, 212618, 1274, 1051, 8, false}, // NAD83(NSRS2007) / Wisconsin Central (ftUS)
    {3697, 4759, 212661, 1148, 1052, 4, false}, // NAD83(NSRS2007) / Wisconsin North
    {3698, 4759, 212695, 1273, 1052, 8, false}, // NAD83(NSRS2007) / Wisconsin North (ftUS)
    {3699, 4759, 212736, 1150, 1053, 4, false}, // NAD83(NSRS2007) / Wisconsin South
    {3700, 4759, 212770, 1275, 1053, 8, false}, // NAD83(NSRS2007) / Wisconsin South (ftUS)
    {3701, 4759, 212811, 1151, 216, 4, false}, // NAD83(NSRS2007) / Wisconsin Transverse Mercator
    {3702, 4759, 212859, 1157, 1054, 4, false}, // NAD83(NSRS2007) / Wyoming East
    {3703, 4759, 212928, 1158, 1055, 4, false}, // NAD83(NSRS2007) / Wyoming East Central
    {3704, 4759, 213082, 1159, 1057, 4, false}, // NAD83(NSRS2007) / Wyoming West Central
    {3705, 4759, 213013, 1160, 1056, 4, false}, // NAD83(NSRS2007) / Wyoming West
    {3706, 4759, 211507, 1368, 1554, 4, false}, // NAD83(NSRS2007) / UTM zone 59N
    {3707, 4759, 211568, 1369, 1555, 4, false}, // NAD83(NSRS2007) / UTM zone 60N
    {3708, 4759, 211387, 1310, 1556, 4, false}, // NAD83(NSRS2007) / UTM zone 1N
    {3709, 4759, 211417, 1311, 1557, 4, false}, // NAD83(NSRS2007) / UTM zone 2N
    {3710, 4759, 211447, 1312, 918, 4, false}, // NAD83(NSRS2007) / UTM zone 3N
    {3711, 4759, 211477, 1313, 919, 4, false}, // NAD83(NSRS2007) / UTM zone 4N
    {3712, 4759, 211538, 1314, 920, 4, false}, // NAD83(NSRS2007) / UTM zone 5N
    {3713, 4759, 211599, 1315, 921, 4, false}, // NAD83(NSRS2007) / UTM zone 6N
    {3714, 4759, 211629, 1316, 1654, 4, false}, // NAD83(NSRS2007) / UTM zone 7N
    {3715, 4759, 211659, 1317, 1655, 4, false}, // NAD83(NSRS2007) / UTM zone 8N
    {3716, 4759, 211689, 1318, 1656, 4, false}, // NAD83(NSRS2007) / UTM zone 9N
    {3717, 4759, 211077, 1319, 1657, 4, false}, // NAD83(NSRS2007) / UTM zone 10N
    {3718, 4759, 211108, 1320, 1658, 4, false}, // NAD83(NSRS2007) / UTM zone 11N
    {3719, 4759, 211139, 1321, 1659, 4, false}, // NAD83(NSRS2007) / UTM zone 12N
    {3720, 4759, 211170, 1322, 1660, 4, false}, // NAD83(NSRS2007) / UTM zone 13N
    {3721, 4759, 211201, 1323, 1661, 4, false}, // NAD83(NSRS2007) / UTM zone 14N
    {3722, 4759, 211232, 1324, 1662, 4, false}, // NAD83(NSRS2007) / UTM zone 15N
    {3723, 4759, 211263, 1325, 1663, 4, false}, // NAD83(NSRS2007) / UTM zone 16N
    {3724, 4759, 211294, 1326, 1664, 4, false}, // NAD83(NSRS2007) / UTM zone 17N
    {3725, 4759, 211325, 1327, 1665, 4, false}, // NAD83(NSRS2007) / UTM zone 18N
    {3726, 4759, 211356, 1328, 1666, 4, false}, // NAD83(NSRS2007) / UTM zone 19N
    {3727, 4626, 276911, 2251, 1536, 4, false}, // Reunion 1947 / TM Reunion
    {3728, 4759, 209578, 1080, 1024, 8, false}, // NAD83(NSRS2007) / Ohio North (ftUS)
    {3729, 4759, 209643, 1081, 1025, 8, false}, // NAD83(NSRS2007) / Ohio South (ftUS)
    {3730, 4759, 212890, 1161, 1054, 8, false}, // NAD83(NSRS2007) / Wyoming East (ftUS)
    {3731, 4759, 212967, 1162, 1055, 8, false}, // NAD83(NSRS2007) / Wyoming East Central (ftUS)
    {3732, 4759, 213121, 1163, 1057, 8, false}, // NAD83(NSRS2007) / Wyoming West Central (ftUS)
    {3733, 4759, 213044, 1164, 1056, 8, false}, // NAD83(NSRS2007) / Wyoming West (ftUS)
    {3734, 4269, 156352, 1080, 1024, 8, false}, // NAD83 / Ohio North (ftUS)
    {3735, 4269, 156397, 1081, 1025, 8, false}, // NAD83 / Ohio South (ftUS)
    {3736, 4269, 159055, 1161, 1054, 8, false}, // NAD83 / Wyoming East (ftUS)
    {3737, 4269, 159112, 1162, 1055, 8, false}, // NAD83 / Wyoming East Central (ftUS)
    {3738, 4269, 159250, 1163, 1057, 8, false}, // NAD83 / Wyoming West Central (ftUS)
    {3739, 4269, 159193, 1164, 1056, 8, false}, // NAD83 / Wyoming West (ftUS)
    {3740, 4152, 197590, 1319, 1912, 4, false}, // NAD83(HARN) / UTM zone 10N
    {3741, 4152, 197617, 1320, 1907, 4, false}, // NAD83(HARN) / UTM zone 11N
    {3742, 4152, 197644, 1321, 1659, 4, false}, // NAD83(HARN) / UTM zone 12N
    {3743, 4152, 197671, 1322, 1660, 4, false}, // NAD83(HARN) / UTM zone 13N
    {3744, 4152, 197698, 1323, 1915, 4, false}, // NAD83(HARN) / UTM zone 14N
    {3745, 4152, 197725, 1324, 1916, 4, false}, // NAD83(HARN) / UTM zone 15N
    {3746, 4152, 197752, 1325, 1917, 4, false}, // NAD83(HARN) / UTM zone 16N
    {3747, 4152, 197779, 1326, 1918, 4, false}, // NAD83(HARN) / UTM zone 17N
    {3748, 4152, 197806, 1327, 1923, 4, false}, // NAD83(HARN) / UTM zone 18N
    {3749, 4152, 197833, 1328, 1926, 4, false}, // NAD83(HARN) / UTM zone 19N
    {3750, 4152, 197886, 1313, 1650, 4, false}, // NAD83(HARN) / UTM zone 4N
    {3751, 4152, 197939, 1314, 1652, 4, false}, // NAD83(HARN) / UTM zone 5N
    {3752, 4326, 345782, 2250, 1667, 4, true}, // WGS 84 / Mercator 41
    {3753, 4152, 196251, 1080, 1024, 8, false}, // NAD83(HARN) / Ohio North (ftUS)
    {3754, 4152, 196308, 1081, 1025, 8, false}, // NAD83(HARN) / Ohio South (ftUS)
    {3755, 4152, 203351, 1161, 1054, 8, false}, // NAD83(HARN) / Wyoming East (ftUS)
    {3756, 4152, 203420, 1162, 1055, 8, false}, // NAD83(HARN) / Wyoming East Central (ftUS)
    {3757, 4152, 203558, 1163, 1057, 8, false}, // NAD83(HARN) / Wyoming West Central (ftUS)
    {3758, 4152, 203489, 1164, 1056, 8, false}, // NAD83(HARN) / Wyoming West (ftUS)
    {3759, 4269, 153016, 1197, 343, 8, false}, // NAD83 / Hawaii zone 3 (ftUS)
    {3760, 4152, 192926, 1197, 343, 8, false}, // NAD83(HARN) / Hawaii zone 3 (ftUS)
    {3761, 4617, 186281, 1331, 937, 4, false}, // NAD83(CSRS) / UTM zone 22N
    {3762, 4326, 348831, 2249, 1687, 4, false}, // WGS 84 / South Georgia Lambert
    {3763, 4258, 67388, 2248, 129, 4, false}, // ETRS89 / Portugal TM06
    {3764, 4167, 216399, 2022, 1279, 5, false}, // NZGD2000 / Chatham Island Circuit 2000
    {3765, 4761, 98358, 2246, 1487, 4, false}, // HTRS96 / Croatia TM
    {3766, 4761, 98337, 2247, 26, 4, false}, // HTRS96 / Croatia LCC
    {3767, 4761, 98378, 1342, 1690, 4, false}, // HTRS96 / UTM zone 33N
    {3768, 4761, 98400, 1343, 1689, 4, false}, // HTRS96 / UTM zone 34N
    {3769, 4216, 34286, 1329, 1482, 4, false}, // Bermuda 1957 / UTM zone 20N
    {3770, 4762, 28737, 2245, 9, 4, false}, // BDA2000 / Bermuda 2000 National Grid
    {3771, 4267, 145102, 1940, 1694, 4, false}, // NAD27 / Alberta 3TM ref merid 111 W
    {3772, 4267, 145138, 1941, 1693, 4, false}, // NAD27 / Alberta 3TM ref merid 114 W
    {3773, 4267, 145174, 1942, 1692, 4, false}, // NAD27 / Alberta 3TM ref merid 117 W
    {3774, 4267, 145210, 1943, 1691, 4, true}, // NAD27 / Alberta 3TM ref merid 120 W
    {3775, 4269, 151036, 1940, 1694, 4, false}, // NAD83 / Alberta 3TM ref merid 111 W
    {3776, 4269, 151072, 1941, 1693, 4, false}, // NAD83 / Alberta 3TM ref merid 114 W
    {3777, 4269, 151108, 1942, 1692, 4, false}, // NAD83 / Alberta 3TM ref merid 117 W
    {3778, 4269, 151144, 1943, 1691, 4, true}, // NAD83 / Alberta 3TM ref merid 120 W
    {3779, 4617, 184340, 1940, 1694, 4, false}, // NAD83(CSRS) / Alberta 3TM ref merid 111 W
    {3780, 4617, 184382, 1941, 1693, 4, false}, // NAD83(CSRS) / Alberta 3TM ref merid 114 W
    {3781, 4617, 184424, 1942, 1692, 4, false}, // NAD83(CSRS) / Alberta 3TM ref merid 117 W
    {3782, 4617, 184466, 1943, 1691, 4, true}, // NAD83(CSRS) / Alberta 3TM ref merid 120 W
    {3783, 4763, 246419, 2244, 1475, 4, false}, // Pitcairn 2006 / Pitcairn TM 2006
    {3784, 4729, 246377, 1407, 1475, 4, false}, // Pitcairn 1967 / UTM zone 9S
    {3785, 4055, 247154, 2243, 1695, 4, true}, // Popular Visualisation CRS / Mercator
    {3786, 4047, 369714, 2356, 109, 4, true}, // World Equidistant Cylindrical (Sphere)
    {3787, 4312, 132922, 2241, 92, 4, true}, // MGI / Slovene National Grid
    {3788, 4167, 216253, 2023, 1705, 5, false}, // NZGD2000 / Auckland Islands TM 2000
    {3789, 4167, 216364, 2024, 1706, 5, false}, // NZGD2000 / Campbell Island TM 2000
    {3790, 4167, 216216, 2025, 1707, 5, false}, // NZGD2000 / Antipodes Islands TM 2000
    {3791, 4167, 217028, 2026, 1708, 5, false}, // NZGD2000 / Raoul Island TM 2000
    {3793, 4167, 216438, 2028, 1279, 5, false}, // NZGD2000 / Chatham Islands TM 2000
    {3794, 4765, 299428, 2241, 92, 4, false}, // Slovenia 1996 / Slovene National Grid
    {3795, 4267, 146251, 2070, 284, 5, false}, // NAD27 / Cuba Norte
    {3796, 4267, 146270, 2071, 285, 5, false}, // NAD27 / Cuba Sur
    {3797, 4267, 146937, 2240, 191, 4, false}, // NAD27 / MTQ Lambert
    {3798, 4269, 154370, 2240, 191, 4, false}, // NAD83 / MTQ Lambert
    {3799, 4617, 185612, 2240, 191, 4, false}, // NAD83(CSRS) / MTQ Lambert
    {3800, 4267, 145210, 1944, 1691, 4, false}, // NAD27 / Alberta 3TM ref merid 120 W
    {3801, 4269, 151144, 1944, 1691, 4, false}, // NAD83 / Alberta 3TM ref merid 120 W
    {3802, 4617, 184466, 1944, 1691, 4, false}, // NAD83(CSRS) / Alberta 3TM ref merid 120 W
    {3812, 4258, 65778, 0, 172, 4, false}, // ETRS89 / Belgian Lambert 2008
    {3814, 4269, 155153, 1, 203, 4, false}, // NAD83 / Mississippi TM
    {3815, 4152, 194950, 1, 203, 4, false}, // NAD83(HARN) / Mississippi TM
    {3816, 4759, 208113, 1, 203, 4, false}, // NAD83(NSRS2007) / Mississippi TM
    {3819, 1024, 98141, geographic, 43, 25, false}, // HD1909
    {3821, 1025, 309835, geographic, 1529, 25, false}, // TWD67
    {3824, 1026, 309883, geographic, 97, 25, false}, // TWD97
    {3825, 3824, 309889, 2, 1711, 4, false}, // TWD97 / TM2 zone 119
    {3826, 3824, 309910, 3, 1710, 4, false}, // TWD97 / TM2 zone 121
    {3827, 3821, 309841, 2, 1727, 4, false}, // TWD67 / TM2 zone 119
    {3828, 3821, 309862, 3, 2002, 4, false}, // TWD67 / TM2 zone 121
    {3829, 4236, 100798, 1360, 1529, 4, false}, // Hu Tzu Shan 1950 / UTM zone 51N
    {3832, 4326, 346371, 4, 1444, 4, false}, // WGS 84 / PDC Mercator
    {3833, 4179, 258640, 1473, 1713, 5, false}, // Pulkovo 1942(58) / Gauss-Kruger zone 2
    {3834, 4178, 259667, 1473, 1713, 5, false}, // Pulkovo 1942(83) / Gauss-Kruger zone 2
    {3835, 4178, 259751, 1474, 1714, 5, false}, // Pulkovo 1942(83) / Gauss-Kruger zone 3
    {3836, 4178, 259835, 1475, 1716, 5, false}, // Pulkovo 1942(83) / Gauss-Kruger zone 4
    {3837, 4179, 258114, 1506, 308, 5, false}, // Pulkovo 1942(58) / 3-degree Gauss-Kruger zone 3
    {3838, 4179, 258216, 1507, 309, 5, false}, // Pulkovo 1942(58) / 3-degree Gauss-Kruger zone 4
    {3839, 4179, 258564, 1512, 1725, 5, false}, // Pulkovo 1942(58) / 3-degree Gauss-Kruger zone 9
    {3840, 4179, 258065, 1513, 1726, 5, false}, // Pulkovo 1942(58) / 3-degree Gauss-Kruger zone 10
    {3841, 4178, 259406, 1509, 1720, 5, false}, // Pulkovo 1942(83) / 3-degree Gauss-Kruger zone 6
    {3842, 4178, 259454, 1509, 1722, 5, true}, // Pulkovo 1942(83) / 3-degree Gauss-Kruger zone 7
    {3843, 4178, 259502, 1509, 1724, 5, true}, // Pulkovo 1942(83) / 3-degree Gauss-Kruger zone 8
    {3844, 4179, 259055, 2316, 86, 5, false}, // Pulkovo 1942(58) / Stereo70
    {3845, 4619, 295653, 1841, 1259, 5, false}, // SWEREF99 / RT90 7.5 gon V emulation
    {3846, 4619, 295619, 1842, 1260, 5, false}, // SWEREF99 / RT90 5 gon V emulation
    {3847, 4619, 295549, 1843, 1261, 5, false}, // SWEREF99 / RT90 2.5 gon V emulation
    {3848, 4619, 295481, 1844, 1262, 5, false}, // SWEREF99 / RT90 0 gon emulation
    {3849, 4619, 295513, 1845, 1263, 5, false}, // SWEREF99 / RT90 2.5 gon O emulation
    {3850, 4619, 295585, 1846, 1264, 5, false}, // SWEREF99 / RT90 5 gon O emulation
    {3851, 4167, 216822, 2027, 1729, 5, false}, // NZGD2000 / NZCS2000
    {3852, 4764, 273898, 2029, 1728, 5, false}, // RSRGD2000 / DGLC2000
    {3854, 4619, 55250, 5, 1743, 5, false}, // County ST74
    {3857, 4326, 346415, 6, 1695, 4, false}, // WGS 84 / Pseudo-Mercator
    {3873, 4258, 66412, 7, 1730, 5, false}, // ETRS89 / GK19FIN
    {3874, 4258, 66429, 8, 1731, 5, false}, // ETRS89 / GK20FIN
    {3875, 4258, 66446, 9, 1732, 5, false}, // ETRS89 / GK21FIN
    {3876, 4258, 66463, 10, 1733, 5, false}, // ETRS89 / GK22FIN
    {3877, 4258, 66480, 11, 1734, 5, false}, // ETRS89 / GK23FIN
    {3878, 4258, 66497, 12, 1735, 5, false}, // ETRS89 / GK24FIN
    {3879, 4258, 66514, 13, 1736, 5, false}, // ETRS89 / GK25FIN
    {3880, 4258, 66531, 14, 1737, 5, false}, // ETRS89 / GK26FIN
    {3881, 4258, 66548, 15, 1738, 5, false}, // ETRS89 / GK27FIN
    {3882, 4258, 66565, 16, 1739, 5, false}, // ETRS89 / GK28FIN
    {3883, 4258, 66582, 17, 1740, 5, false}, // ETRS89 / GK29FIN
    {3884, 4258, 66599, 18, 1741, 5, false}, // ETRS89 / GK30FIN
    {3885, 4258, 66616, 19, 1742, 5, false}, // ETRS89 / GK31FIN
    {3889, 1029, 103236, geographic, 48, 25, false}, // IGRS
    {3890, 3889, 103241, 1346, 1569, 4, false}, // IGRS / UTM zone 37N
    {3891, 3889, 103261, 1347, 1570, 4, false}, // IGRS / UTM zone 38N
    {3892, 3889, 103281, 1348, 1979, 4, false}, // IGRS / UTM zone 39N
    {3893, 4230, 61237, 2300, 1759, 4, false}, // ED50 / Iraq National Grid
    {3906, 1031, 132970, geographic, 1078, 25, false}, // MGI 1901
    {3907, 3906, 132979, 2180, 501, 5, true}, // MGI 1901 / Balkans zone 5
    {3908, 3906, 133005, 2181, 502, 5, true}, // MGI 1901 / Balkans zone 6
    {3909, 3906, 133031, 2182, 503, 5, true}, // MGI 1901 / Balkans zone 7
    {3910, 3906, 133057, 2183, 504, 5, true}, // MGI 1901 / Balkans zone 8
    {3911, 3906, 133116, 2355, 92, 5, true}, // MGI 1901 / Slovenia Grid
    {3912, 3906, 133083, 2241, 92, 4, false}, // MGI 1901 / Slovene National Grid
    {3920, 4139, 248651, 1329, 1533, 4, false}, // Puerto Rico / UTM zone 20N
    {3942, 4171, 270844, 2086, 1696, 4, false}, // RGF93 v1 / CC42
    {3943, 4171, 270860, 2087, 1697, 4, false}, // RGF93 v1 / CC43
    {3944, 4171, 270876, 2088, 1698, 4, false}, // RGF93 v1 / CC44
    {3945, 4171, 270892, 2089, 1699, 4, false}, // RGF93 v1 / CC45
    {3946, 4171, 270908, 2090, 1700, 4, false}, // RGF93 v1 / CC46
    {3947, 4171, 270924, 2091, 1701, 4, false}, // RGF93 v1 / CC47
    {3948, 4171, 270940, 2092, 1702, 4, false}, // RGF93 v1 / CC48
    {3949, 4171, 270956, 2093, 1703, 4, false}, // RGF93 v1 / CC49
    {3950, 4171, 270972, 2094, 1704, 4, false}, // RGF93 v1 / CC50
    {3968, 4269, 158456, 23, 215, 4, false}, // NAD83 / Virginia Lambert
    {3969, 4152, 198283, 23, 215, 4, false}, // NAD83(HARN) / Virginia Lambert
    {3970, 4759, 212081, 23, 215, 4, false}, // NAD83(NSRS2007) / Virginia Lambert
    {3973, 4326, 345979, 20, 1645, 4, true}, // WGS 84 / NSIDC EASE-Grid North
    {3974, 4326, 346010, 21, 1644, 4, true}, // WGS 84 / NSIDC EASE-Grid South
    {3975, 4326, 345947, 2262, 1638, 4, true}, // WGS 84 / NSIDC EASE-Grid Global
    {3976, 4326, 346090, 2261, 782, 4, false}, // WGS 84 / NSIDC Sea Ice Polar Stereographic South
    {3978, 4269, 152305, 24, 16, 4, false}, // NAD83 / Canada Atlas Lambert
    {3979, 4617, 184532, 24, 16, 4, false}, // NAD83(CSRS) / Canada Atlas Lambert
    {3985, 4695, 120608, 25, 1430, 4, true}, // Katanga 1955 / Katanga Lambert
    {3986, 4695, 120464, 26, 1747, 4, false}, // Katanga 1955 / Katanga Gauss zone A
    {3987, 4695, 120500, 27, 1746, 4, false}, // Katanga 1955 / Katanga Gauss zone B
    {3988, 4695, 120536, 28, 1745, 4, false}, // Katanga 1955 / Katanga Gauss zone C
    {3989, 4695, 120572, 29, 1744, 4, false}, // Katanga 1955 / Katanga Gauss zone D
    {3991, 4139, 248715, 1198, 1517, 8, false}, // Puerto Rico State Plane CS of 1927
    {3992, 4139, 248627, 1199, 1534, 8, false}, // Puerto Rico / St. Croix
    {3993, 4675, 97383, 1304, 1499, 4, false}, // Guam 1963 / Guam SPCS
    {3994, 4326, 345782, 2239, 1667, 4, false}, // WGS 84 / Mercator 41
    {3995, 4326, 343143, 2238, 781, 4, false}, // WGS 84 / Arctic Polar Stereographic
    {3996, 4326, 345481, 2236, 781, 4, false}, // WGS 84 / IBCAO Polar Stereographic
    {3997, 4326, 343571, 2235, 1688, 4, false}, // WGS 84 / Dubai Local TM
    {4001, 6001, 330802, geographic, 110, 25, true}, // Unknown datum based upon the Airy 1830 ellipsoid
    {4002, 6002, 330851, geographic, 110, 25, true}, // Unknown datum based upon the Airy Modified 1849 ellipsoid
    {4003, 6003, 330909, geographic, 110, 25, true}, // Unknown datum based upon the Australian National Spheroid
    {4004, 6004, 331083, geographic, 110, 25, true}, // Unknown datum based upon the Bessel 1841 ellipsoid
    {4005, 6005, 331134, geographic, 110, 25, true}, // Unknown datum based upon the Bessel Modified ellipsoid
    {4006, 6006, 331189, geographic, 110, 25, true}, // Unknown datum based upon the Bessel Namibia ellipsoid
    {4007, 6007, 331243, geographic, 110, 25, true}, // Unknown datum based upon the Clarke 1858 ellipsoid
    {4008, 6008, 331354, geographic, 110, 25, true}, // Unknown datum based upon the Clarke 1866 ellipsoid
    {4009, 6009, 331294, geographic, 110, 25, true}, // Unknown datum based upon the Clarke 1866 Michigan ellipsoid
    {4010, 6010, 331462, geographic, 110, 25, true}, // Unknown datum based upon the Clarke 1880 (Benoit) ellipsoid
    {4011, 6011, 331522, geographic, 110, 25, true}, // Unknown datum based upon the Clarke 1880 (IGN) ellipsoid
    {4012, 6012, 331579, geographic, 110, 25, true}, // Unknown datum based upon the Clarke 1880 (RGS) ellipsoid
    {4013, 6013, 331405, geographic, 110, 25, true}, // Unknown datum based upon the Clarke 1880 (Arc) ellipsoid
    {4014, 6014, 331636, geographic, 110, 25, true}, // Unknown datum based upon the Clarke 1880 (SGA 1922) ellipsoid
    {4015, 6015, 331814, geographic, 110, 25, true}, // Unknown datum based upon the Everest 1830 (1937 Adjustment) ellipsoid
    {4016, 6016, 331954, geographic, 110, 25, true}, // Unknown datum based upon the Everest 1830 (1967 Definition) ellipsoid
    {4018, 6018, 332094, geographic, 110, 25, true}, // Unknown datum based upon the Everest 1830 Modified ellipsoid
    {4019, 6019, 332250, geographic, 110, 25, true}, // Unknown datum based upon the GRS 1980 ellipsoid
    {4020, 6020, 332298, geographic, 110, 25, true}, // Unknown datum based upon the Helmert 1906 ellipsoid
    {4021, 6021, 332350, geographic, 110, 25, true}, // Unknown datum based upon the Indonesian National Spheroid
    {4022, 6022, 332408, geographic, 110, 25, true}, // Unknown datum based upon the International 1924 ellipsoid
    {4023, 1032, 133501, geographic, 70, 25, false}, // MOLDREF99
    {4024, 6024, 332466, geographic, 110, 25, true}, // Unknown datum based upon the Krassowsky 1940 ellipsoid
    {4025, 6025, 332521, geographic, 110, 25, true}, // Unknown datum based upon the NWL 9D ellipsoid
    {4026, 4023, 133511, 30, 70, 5, false}, // MOLDREF99 / Moldova TM
    {4027, 6027, 332659, geographic, 110, 25, true}, // Unknown datum based upon the Plessis 1817 ellipsoid
    {4028, 6028, 332711, geographic, 110, 25, true}, // Unknown datum based upon the Struve 1860 ellipsoid
    {4029, 6029, 332854, geographic, 110, 25, true}, // Unknown datum based upon the War Office ellipsoid
    {4030, 6030, 332808, geographic, 110, 25, true}, // Unknown datum based upon the WGS 84 ellipsoid
    {4031, 6031, 332155, geographic, 110, 25, true}, // Unknown datum based upon the GEM 10C ellipsoid
    {4032, 6032, 332567, geographic, 110, 25, true}, // Unknown datum based upon the OSU86F ellipsoid
    {4033, 6033, 332613, geographic, 110, 25, true}, // Unknown datum based upon the OSU91A ellipsoid
    {4034, 6034, 331698, geographic, 110, 25, true}, // Unknown datum based upon the Clarke 1880 ellipsoid
    {4035, 6035, 330967, geographic, 110, 23, true}, // Unknown datum based upon the Authalic Sphere
    {4036, 6036, 332202, geographic, 110, 25, true}, // Unknown datum based upon the GRS 1967 ellipsoid
    {4037, 4326, 349045, 1344, 1749, 5, false}, // WGS 84 / TMzn35N
    {4038, 4326, 349062, 1345, 1750, 5, false}, // WGS 84 / TMzn36N
    {4041, 6041, 331012, geographic, 110, 25, true}, // Unknown datum based upon the Average Terrestrial System 1977 ellipsoid
    {4042, 6042, 331749, geographic, 110, 25, true}, // Unknown datum based upon the Everest (1830 Definition) ellipsoid
    {4043, 6043, 332762, geographic, 110, 25, true}, // Unknown datum based upon the WGS 72 ellipsoid
    {4044, 6044, 331884, geographic, 110, 25, true}, // Unknown datum based upon the Everest 1830 (1962 Definition) ellipsoid
    {4045, 6045, 332024, geographic, 110, 25, true}, // Unknown datum based upon the Everest 1830 (1975 Definition) ellipsoid
    {4046, 1033, 272276, geographic, 1748, 25, false}, // RGRDC 2005
    {4047, 6047, 332965, geographic, 110, 25, true}, // Unspecified datum based upon the GRS 1980 Authalic Sphere
    {4048, 4046, 272287, 1867, 1963, 4, false}, // RGRDC 2005 / Congo TM zone 12
    {4049, 4046, 272317, 1868, 1434, 4, false}, // RGRDC 2005 / Congo TM zone 14
    {4050, 4046, 272347, 1869, 1751, 4, false}, // RGRDC 2005 / Congo TM zone 16
    {4051, 4046, 272377, 1870, 1752, 4, false}, // RGRDC 2005 / Congo TM zone 18
    {4052, 6052, 332904, geographic, 110, 25, true}, // Unspecified datum based upon the Clarke 1866 Authalic Sphere
    {4053, 6053, 333078, geographic, 110, 25, true}, // Unspecified datum based upon the International 1924 Authalic Sphere
    {4054, 6054, 333023, geographic, 110, 25, true}, // Unspecified datum based upon the Hughes 1980 ellipsoid
    {4055, 6055, 247128, geographic, 109, 25, true}, // Popular Visualisation CRS
    {4056, 4046, 272407, 1871, 1754, 4, false}, // RGRDC 2005 / Congo TM zone 20
    {4057, 4046, 272437, 1872, 1755, 4, false}, // RGRDC 2005 / Congo TM zone 22
    {4058, 4046, 272467, 1873, 1756, 4, false}, // RGRDC 2005 / Congo TM zone 24
    {4059, 4046, 272497, 1874, 1757, 4, false}, // RGRDC 2005 / Congo TM zone 26
    {4060, 4046, 272527, 1875, 1758, 4, false}, // RGRDC 2005 / Congo TM zone 28
    {4061, 4046, 272587, 1431, 1760, 4, false}, // RGRDC 2005 / UTM zone 33S
    {4062, 4046, 272613, 1432, 1761, 4, false}, // RGRDC 2005 / UTM zone 34S
    {4063, 4046, 272639, 1433, 1762, 4, false}, // RGRDC 2005 / UTM zone 35S
    {4071, 4224, 49434, 1421, 1753, 4, false}, // Chua / UTM zone 23S
    {4075, 1034, 294745, geographic, 2494, 25, false}, // SREF98
    {4081, 1035, 270338, geographic, 1468, 25, false}, // REGCAN95
    {4082, 4081, 270423, 1336, 1763, 4, false}, // REGCAN95 / UTM zone 27N
    {4083, 4081, 270447, 1337, 1764, 4, false}, // REGCAN95 / UTM zone 28N
    {4087, 4326, 352036, 31, 109, 4, false}, // WGS 84 / World Equidistant Cylindrical
    {4088, 4047, 369714, 32, 109, 4, true}, // World Equidistant Cylindrical (Sphere)
    {4093, 4258, 65808, 33, 1765, 4, false}, // ETRS89 / DKTM1
    {4094, 4258, 65823, 34, 1766, 4, false}, // ETRS89 / DKTM2
    {4095, 4258, 65838, 35, 1088, 4, false}, // ETRS89 / DKTM3
    {4096, 4258, 65853, 36, 1089, 4, false}, // ETRS89 / DKTM4
    {4120, 6120, 95776, geographic, 1498, 25, false}, // Greek
    {4121, 6121, 83449, geographic, 1498, 25, false}, // GGRS87
    {4122, 6122, 4951, geographic, 121, 25, false}, // ATS77
    {4123, 6123, 117252, geographic, 1535, 25, false}, // KKJ
    {4124, 6124, 274366, geographic, 96, 25, false}, // RT90
    {4125, 6125, 296280, geographic, 155, 23, true}, // Samboja
    {4126, 6126, 125274, geographic, 60, 23, true}, // LKS94 (ETRS89)
    {4127, 6127, 311135, geographic, 1512, 25, false}, // Tete
    {4128, 6128, 135052, geographic, 146, 25, false}, // Madzansua
    {4129, 6129, 234920, geographic, 156, 25, false}, // Observatario
    {4130, 6130, 144346, geographic, 71, 25, false}, // Moznet
    {4131, 6131, 106769, geographic, 2019, 25, false}, // Indian 1960
    {4132, 6132, 111627, geographic, 133, 25, false}, // FD58
    {4133, 6133, 65008, geographic, 1492, 25, false}, // EST92
    {4134, 6134, 242448, geographic, 1514, 25, false}, // PSD93
    {4135, 6135, 235937, geographic, 161, 25, false}, // Old Hawaiian
    {4136, 6136, 318911, geographic, 159, 25, false}, // St. Lawrence Island
    {4137, 6137, 318946, geographic, 160, 25, false}, // St. Paul Island
    {4138, 6138, 318878, geographic, 158, 25, false}, // St. George Island
    {4139, 6139, 248593, geographic, 162, 25, false}, // Puerto Rico
    {4140, 6140, 190680, geographic, 163, 23, true}, // NAD83(CSRS98)
    {4141, 6141, 112187, geographic, 1111, 25, false}, // Israel 1993
    {4142, 6142, 129508, geographic, 25, 25, false}, // Locodjo 1965
    {4143, 6143, 5472, geographic, 25, 25, false}, // Abidjan 1987
    {4144, 6144, 118006, geographic, 140, 25, false}, // Kalianpur 1937
    {4145, 6145, 118113, geographic, 79, 25, false}, // Kalianpur 1962
    {4146, 6146, 118280, geographic, 1539, 25, false}, // Kalianpur 1975
    {4147, 6147, 98760, geographic, 1532, 25, false}, // Hanoi 1972
    {4148, 6148, 98989, geographic, 2491, 25, false}, // Hartebeesthoek94
    {4149, 6149, 41231, geographic, 123, 25, false}, // CH1903
    {4150, 6150, 41283, geographic, 123, 25, false}, // CH1903+
    {4151, 6151, 41354, geographic, 123, 25, false}, // CHTRS95
    {4152, 6152, 191299, geographic, 164, 25, false}, // NAD83(HARN)
    {4153, 6153, 275119, geographic, 165, 25, false}, // Rassadiran
    {4154, 6154, 61644, geographic, 47, 25, false}, // ED50(ED77)
    {4155, 6155, 58496, geographic, 1500, 25, false}, // Dabola 1981
    {4156, 6156, 280872, geographic, 138, 25, false}, // S-JTSK
    {4157, 6157, 143952, geographic, 151, 25, false}, // Mount Dillon
    {4158, 6158, 219001, geographic, 1427, 25, false}, // Naparima 1955
    {4159, 6159, 61894, geographic, 58, 25, false}, // ELD79
    {4160, 6160, 49231, geographic, 2509, 25, false}, // Chos Malal 1914
    {4161, 6161, 243520, geographic, 2510, 25, false}, // Pampa del Castillo
    {4162, 6162, 123348, geographic, 1503, 25, false}, // Korean 1985
    {4163, 6163, 373737, geographic, 107, 25, false}, // Yemen NGN96
    {4164, 6164, 304573, geographic, 167, 25, false}, // South Yemen
    {4165, 6165, 35501, geographic, 1501, 25, false}, // Bissau
    {4166, 6166, 123700, geographic, 1503, 25, false}, // Korean 1995
    {4167, 6167, 216167, geographic, 75, 25, false}, // NZGD2000
    {4168, 6168, 5650, geographic, 40, 25, false}, // Accra
    {4169, 6169, 8747, geographic, 1409, 25, false}, // American Samoa 1962
    {4170, 6170, 282189, geographic, 1625, 25, false}, // SIRGAS 1995
    {4171, 6171, 270797, geographic, 36, 25, false}, // RGF93 v1
    {4172, 6172, 241107, geographic, 6, 23, true}, // POSGAR
    {4173, 6173, 103644, geographic, 137, 25, false}, // IRENET95
    {4174, 6174, 298332, geographic, 168, 25, false}, // Sierra Leone 1924
    {4175, 6175, 298426, geographic, 1524, 25, false}, // Sierra Leone 1968
    {4176, 6176, 26414, geographic, 119, 25, false}, // Australian Antarctic
    {4178, 6178, 259083, geographic, 1947, 25, false}, // Pulkovo 1942(83)
    {4179, 6179, 258048, geographic, 1712, 25, false}, // Pulkovo 1942(58)
    {4180, 6180, 65014, geographic, 32, 25, false}, // EST97
    {4181, 6181, 125388, geographic, 61, 25, false}, // LUREF
    {4182, 6182, 27863, geographic, 169, 25, false}, // Azores Occidental 1939
    {4183, 6183, 27697, geographic, 134, 25, false}, // Azores Central 1948
    {4184, 6184, 27955, geographic, 170, 25, false}, // Azores Oriental 1940
    {4185, 6185, 134774, geographic, 145, 23, true}, // Madeira 1936
    {4188, 6188, 234797, geographic, 1086, 25, false}, // OSNI 1952
    {4189, 6189, 285142, geographic, 105, 25, false}, // REGVEN
    {4190, 6190, 241537, geographic, 6, 25, false}, // POSGAR 98
    {4191, 6191, 8022, geographic, 1477, 25, false}, // Albanian 1987
    {4192, 6192, 60408, geographic, 1093, 25, false}, // Douala 1948
    {4193, 6193, 136498, geographic, 1093, 25, false}, // Manoca 1962
    {4194, 6194, 268984, geographic, 1545, 25, false}, // Qornoq 1927
    {4195, 6195, 297444, geographic, 1098, 25, false}, // Scoresbysund 1952
    {4196, 6196, 8883, geographic, 1099, 25, false}, // Ammassalik 1958
    {4197, 6197, 93572, geographic, 1107, 25, false}, // Garoua
    {4198, 6198, 123890, geographic, 1108, 25, false}, // Kousseri
    {4199, 6199, 69267, geographic, 1490, 25, false}, // Egypt 1930
    {4200, 6200, 259874, geographic, 87, 25, false}, // Pulkovo 1995
    {4201, 6201, 5820, geographic, 112, 25, false}, // Adindan
    {4202, 6202, 24838, geographic, 120, 25, false}, // AGD66
    {4203, 6203, 25236, geographic, 1103, 25, false}, // AGD84
    {4204, 6204, 7109, geographic, 113, 25, false}, // Ain el Abd
    {4205, 6205, 5966, geographic, 1525, 25, false}, // Afgooye
    {4206, 6206, 7102, geographic, 76, 25, false}, // Agadez
    {4207, 6207, 128154, geographic, 129, 25, false}, // Lisbon
    {4208, 6208, 36420, geographic, 115, 25, false}, // Aratu
    {4209, 6209, 15429, geographic, 117, 25, false}, // Arc 1950
    {4210, 6210, 15510, geographic, 118, 25, false}, // Arc 1960
    {4211, 6211, 30364, geographic, 1796, 25, false}, // Batavia
    {4212, 6212, 30021, geographic, 1480, 25, false}, // Barbados 1938
    {4213, 6213, 30764, geographic, 1214, 25, false}, // Beduaram
    {4214, 6214, 30811, geographic, 20, 25, false}, // Beijing 1954
    {4215, 6215, 28618, geographic, 172, 25, false}, // BD50
    {4216, 6216, 34273, geographic, 1482, 25, false}, // Bermuda 1957
    {4217, 4269, 151769, 57, 1554, 8, false}, // NAD83 / BLM 59N (ftUS)
    {4218, 6218, 35692, geographic, 1809, 25, false}, // Bogota 1975
    {4219, 6219, 38149, geographic, 124, 25, false}, // Bukit Rimpah
    {4220, 6220, 42581, geographic, 125, 25, false}, // Camacupa 1948
    {4221, 6221, 42903, geographic, 1902, 25, false}, // Campo Inchauspe
    {4222, 6222, 46054, geographic, 126, 25, false}, // Cape
    {4223, 6223, 46645, geographic, 100, 25, false}, // Carthage
    {4224, 6224, 49429, geographic, 1544, 25, false}, // Chua
    {4225, 6225, 54512, geographic, 128, 25, false}, // Corrego Alegre 1970-72
    {4226, 6226, 55069, geographic, 25, 23, true}, // Cote d'Ivoire
    {4227, 6227, 59442, geographic, 416, 25, false}, // Deir ez Zor
    {4228, 6228, 60379, geographic, 15, 23, true}, // Douala
    {4229, 6229, 69152, geographic, 29, 25, false}, // Egypt 1907
    {4230, 6230, 60948, geographic, 130, 25, false}, // ED50
    {4231, 6231, 61836, geographic, 131, 25, false}, // ED87
    {4232, 6232, 75157, geographic, 2021, 25, false}, // Fahud
    {4233, 6233, 93542, geographic, 66, 25, true}, // Gandajika 1970
    {4234, 6234, 93572, geographic, 15, 23, true}, // Garoua
    {4235, 6235, 98107, geographic, 37, 23, true}, // Guyane Francaise
    {4236, 6236, 100781, geographic, 1529, 25, false}, // Hu Tzu Shan 1950
    {4237, 6237, 98148, geographic, 43, 25, false}, // HD72
    {4238, 6238, 101129, geographic, 2025, 25, false}, // ID74
    {4239, 6239, 106676, geographic, 136, 25, false}, // Indian 1954
    {4240, 6240, 106859, geographic, 1829, 25, false}, // Indian 1975
    {4241, 6241, 115162, geographic, 1540, 25, false}, // Jamaica 1875
    {4242, 6242, 112828, geographic, 1540, 25, false}, // JAD69
    {4243, 6243, 117802, geographic, 139, 25, false}, // Kalianpur 1880
    {4244, 6244, 118784, geographic, 1526, 25, false}, // Kandawala
    {4245, 6245, 121503, geographic, 2203, 25, false}, // Kertau 1968
    {4246, 6246, 117439, geographic, 1504, 25, false}, // KOC
    {4247, 6247, 125469, geographic, 1531, 25, false}, // La Canoa
    {4248, 6248, 242059, geographic, 173, 25, false}, // PSAD56
    {4249, 6249, 325690, geographic, 143, 25, false}, // Lake
    {4250, 6250, 126895, geographic, 40, 25, false}, // Leigon
    {4251, 6251, 126987, geographic, 1506, 25, false}, // Liberia 1964
    {4252, 6252, 129714, geographic, 98, 25, false}, // Lome
    {4253, 6253, 130149, geographic, 1990, 25, false}, // Luzon 1911
    {4254, 6254, 100067, geographic, 135, 25, false}, // Hito XVIII 1963
    {4255, 6255, 99990, geographic, 0, 25, false}, // Herat North
    {4256, 6256, 135082, geographic, 1077, 25, false}, // Mahe 1971
    {4257, 6257, 135567, geographic, 147, 25, false}, // Makassar
    {4258, 6258, 294688, geographic, 132, 25, false}, // ETRS89
    {4259, 6259, 136319, geographic, 1452, 25, false}, // Malongo 1987
    {4260, 6260, 136491, geographic, 15, 23, true}, // Manoca
    {4261, 6261, 138795, geographic, 2523, 25, false}, // Merchich
    {4262, 6262, 137976, geographic, 31, 25, false}, // Massawa
    {4263, 6263, 141050, geographic, 77, 25, false}, // Minna
    {4264, 6264, 139805, geographic, 148, 25, true}, // Mhast
    {4265, 6265, 143336, geographic, 1541, 25, false}, // Monte Mario
    {4266, 6266, 130391, geographic, 39, 25, false}, // M'poraloko
    {4267, 6267, 43688, geographic, 174, 25, false}, // NAD27
    {4268, 6268, 149384, geographic, 202, 25, true}, // NAD27 Michigan
    {4269, 6269, 228624, geographic, 175, 25, false}, // NAD83
    {4270, 6270, 218425, geographic, 176, 25, false}, // Nahrwan 1967
    {4271, 6271, 219044, geographic, 151, 25, false}, // Naparima 1972
    {4272, 6272, 217307, geographic, 1513, 25, false}, // NZGD49
    {4273, 6273, 215055, geographic, 177, 25, false}, // NGO 1948
    {4274, 6274, 58726, geographic, 129, 25, false}, // Datum 73
    {4275, 6275, 215618, geographic, 1815, 25, false}, // NTF
    {4276, 6276, 215586, geographic, 109, 25, false}, // NSWC 9Z-2
    {4277, 6277, 234729, geographic, 2360, 25, false}, // OSGB36
    {4278, 6278, 234767, geographic, 111, 25, false}, // OSGB70
    {4279, 6279, 234695, geographic, 178, 25, false}, // OS(SN)80
    {4280, 6280, 243012, geographic, 179, 25, true}, // Padang
    {4281, 6281, 243286, geographic, 180, 25, false}, // Palestine 1923
    {4282, 6282, 52365, geographic, 23, 25, false}, // Pointe Noire
    {4283, 6283, 82370, geographic, 2164, 25, false}, // GDA94
    {4284, 6284, 249020, geographic, 1082, 25, false}, // Pulkovo 1942
    {4285, 6285, 268848, geographic, 85, 25, false}, // Qatar 1974
    {4286, 6286, 268813, geographic, 171, 25, false}, // Qatar 1948
    {4287, 6287, 268977, geographic, 41, 23, true}, // Qornoq
    {4288, 6288, 129686, geographic, 144, 25, false}, // Loma Quintana
    {4289, 6289, 8832, geographic, 116, 25, false}, // Amersfoort
    {4291, 6291, 36802, geographic, 181, 23, true}, // SAD69
    {4292, 6292, 296676, geographic, 1493, 25, false}, // Sapper Hill 1943
    {4293, 6293, 297215, geographic, 72, 25, false}, // Schwarzeck
    {4294, 6294, 297626, geographic, 182, 23, true}, // Segora
    {4295, 6295, 297964, geographic, 2017, 25, false}, // Serindung
    {4296, 6296, 6590, geographic, 184, 23, true}, // Sudan
    {4297, 6297, 310487, geographic, 64, 25, false}, // Tananarive
    {4298, 6298, 312099, geographic, 185, 25, false}, // Timbalai 1948
    {4299, 6299, 308931, geographic, 137, 25, false}, // TM65
    {4300, 6300, 308997, geographic, 137, 25, false}, // TM75
    {4301, 6301, 312397, geographic, 187, 25, false}, // Tokyo
    {4302, 6302, 313597, geographic, 166, 25, false}, // Trinidad 1903
    {4303, 6303, 308694, geographic, 186, 25, false}, // TC(1948)
    {4304, 6304, 336964, geographic, 188, 25, false}, // Voirol 1875
    {4306, 6306, 34470, geographic, 123, 25, false}, // Bern 1938
    {4307, 6307, 226499, geographic, 2, 25, false}, // Nord Sahara 1959
    {4308, 6308, 274077, geographic, 1528, 25, false}, // RT38
    {4309, 6309, 373353, geographic, 1530, 25, false}, // Yacare
    {4310, 6310, 373934, geographic, 89, 25, false}, // Yoff
    {4311, 6311, 374145, geographic, 95, 25, false}, // Zanderij
    {4312, 6312, 132112, geographic, 7, 25, false}, // MGI
    {4313, 6313, 28674, geographic, 172, 25, false}, // BD72
    {4314, 6314, 57222, geographic, 1072, 25, false}, // DHDN
    {4315, 6315, 52220, geographic, 1500, 25, false}, // Conakry 1905
    {4316, 6316, 59075, geographic, 1518, 25, false}, // Dealul Piscului 1930
    {4317, 6317, 59182, geographic, 86, 25, true}, // Dealul Piscului 1970
    {4318, 6318, 214979, geographic, 1504, 25, false}, // NGN
    {4319, 6319, 117752, geographic, 142, 25, false}, // KUDAMS
    {4322, 6322, 337349, geographic, 109, 25, false}, // WGS 72
    {4324, 6324, 358494, geographic, 109, 25, false}, // WGS 72BE
    {4326, 6326, 342931, geographic, 109, 25, false}, // WGS 84
    {4390, 4245, 121515, 50, 1558, 4, false}, // Kertau 1968 / Johor Grid
    {4391, 4245, 121717, 51, 1559, 4, false}, // Kertau 1968 / Sembilan and Melaka Grid
    {4392, 4245, 121604, 52, 1560, 4, false}, // Kertau 1968 / Pahang Grid
    {4393, 4245, 121689, 53, 1561, 4, false}, // Kertau 1968 / Selangor Grid
    {4394, 4245, 121785, 56, 1562, 4, false}, // Kertau 1968 / Terengganu Grid
    {4395, 4245, 121663, 59, 1563, 4, false}, // Kertau 1968 / Pinang Grid
    {4396, 4245, 121540, 60, 1564, 4, false}, // Kertau 1968 / Kedah and Perlis Grid
    {4397, 4245, 121630, 61, 1565, 4, false}, // Kertau 1968 / Perak Revised Grid
    {4398, 4245, 121576, 62, 1566, 4, false}, // Kertau 1968 / Kelantan Grid
    {4399, 4267, 145768, 57, 1554, 8, false}, // NAD27 / BLM 59N (ftUS)
    {4400, 4267, 145813, 58, 1555, 8, false}, // NAD27 / BLM 60N (ftUS)
    {4401, 4267, 145680, 37, 1556, 8, false}, // NAD27 / BLM 1N (ftUS)
    {4402, 4267, 145702, 38, 1557, 8, false}, // NAD27 / BLM 2N (ftUS)
    {4403, 4267, 145724, 39, 918, 8, false}, // NAD27 / BLM 3N (ftUS)
    {4404, 4267, 145746, 40, 919, 8, false}, // NAD27 / BLM 4N (ftUS)
    {4405, 4267, 145791, 41, 920, 8, false}, // NAD27 / BLM 5N (ftUS)
    {4406, 4267, 145836, 42, 921, 8, false}, // NAD27 / BLM 6N (ftUS)
    {4407, 4267, 145858, 43, 1654, 8, false}, // NAD27 / BLM 7N (ftUS)
    {4408, 4267, 145880, 44, 1655, 8, false}, // NAD27 / BLM 8N (ftUS)
    {4409, 4267, 145902, 45, 1656, 8, false}, // NAD27 / BLM 9N (ftUS)
    {4410, 4267, 145358, 46, 1657, 8, false}, // NAD27 / BLM 10N (ftUS)
    {4411, 4267, 145381, 47, 1658, 8, false}, // NAD27 / BLM 11N (ftUS)
    {4412, 4267, 145404, 48, 1659, 8, false}, // NAD27 / BLM 12N (ftUS)
    {4413, 4267, 145427, 49, 1660, 8, false}, // NAD27 / BLM 13N (ftUS)
    {4414, 4152, 192814, 63, 1499, 4, false}, // NAD83(HARN) / Guam Map Grid
    {4415, 4695, 120608, 64, 1430, 4, false}, // Katanga 1955 / Katanga Lambert
    {4417, 4178, 259454, 1510, 1722, 5, false}, // Pulkovo 1942(83) / 3-degree Gauss-Kruger zone 7
    {4418, 4267, 145634, 54, 1665, 8, false}, // NAD27 / BLM 18N (ftUS)
    {4419, 4267, 145657, 55, 1666, 8, false}, // NAD27 / BLM 19N (ftUS)
    {4420, 4269, 151814, 58, 1555, 8, false}, // NAD83 / BLM 60N (ftUS)
    {4421, 4269, 151681, 37, 1556, 8, false}, // NAD83 / BLM 1N (ftUS)
    {4422, 4269, 151703, 38, 1557, 8, false}, // NAD83 / BLM 2N (ftUS)
    {4423, 4269, 151725, 39, 918, 8, false}, // NAD83 / BLM 3N (ftUS)
    {4424, 4269, 151747, 40, 919, 8, false}, // NAD83 / BLM 4N (ftUS)
    {4425, 4269, 151792, 41, 920, 8, false}, // NAD83 / BLM 5N (ftUS)
    {4426, 4269, 151837, 42, 921, 8, false}, // NAD83 / BLM 6N (ftUS)
    {4427, 4269, 151859, 43, 1654, 8, false}, // NAD83 / BLM 7N (ftUS)
    {4428, 4269, 151881, 44, 1655, 8, false}, // NAD83 / BLM 8N (ftUS)
    {4429, 4269, 151903, 45, 1656, 8, false}, // NAD83 / BLM 9N (ftUS)
    {4430, 4269, 151451, 46, 1657, 8, false}, // NAD83 / BLM 10N (ftUS)
    {4431, 4269, 151474, 47, 1658, 8, false}, // NAD83 / BLM 11N (ftUS)
    {4432, 4269, 151497, 48, 1659, 8, false}, // NAD83 / BLM 12N (ftUS)
    {4433, 4269, 151520, 49, 1660, 8, false}, // NAD83 / BLM 13N (ftUS)
    {4434, 4178, 259502, 1511, 1724, 5, false}, // Pulkovo 1942(83) / 3-degree Gauss-Kruger zone 8
    {4437, 4759, 210196, 1200, 1768, 4, false}, // NAD83(NSRS2007) / Puerto Rico and Virgin Is.
    {4438, 4269, 151635, 54, 1665, 8, false}, // NAD83 / BLM 18N (ftUS)
    {4439, 4269, 151658, 55, 1666, 8, false}, // NAD83 / BLM 19N (ftUS)
    {4455, 4267, 148074, 65, 1031, 8, false}, // NAD27 / Pennsylvania South
    {4456, 4267, 147793, 66, 1020, 8, false}, // NAD27 / New York Long Island
    {4457, 4269, 157054, 1298, 1034, 8, false}, // NAD83 / South Dakota North (ftUS)
    {4462, 4326, 343309, 67, 1102, 4, false}, // WGS 84 / Australian Centre for Remote Sensing Lambert
    {4463, 1038, 272817, geographic, 94, 25, false}, // RGSPM06
    {4467, 4463, 272861, 1330, 94, 4, false}, // RGSPM06 / UTM zone 21N
    {4470, 1036, 271637, geographic, 68, 25, false}, // RGM04
    {4471, 4470, 271675, 1436, 68, 4, false}, // RGM04 / UTM zone 38S
    {4474, 4632, 42092, 1436, 1538, 4, true}, // Cadastre 1997 / UTM zone 38S
    {4475, 1037, 42078, geographic, 1538, 25, false}, // Cadastre 1997
    {4483, 1042, 139422, geographic, 69, 25, false}, // Mexico ITRF92
    {4484, 4483, 139456, 1320, 1601, 4, false}, // Mexico ITRF92 / UTM zone 11N
    {4485, 4483, 139485, 1321, 1602, 4, false}, // Mexico ITRF92 / UTM zone 12N
    {4486, 4483, 139514, 1322, 1603, 4, false}, // Mexico ITRF92 / UTM zone 13N
    {4487, 4483, 139543, 1323, 1604, 4, false}, // Mexico ITRF92 / UTM zone 14N
    {4488, 4483, 139572, 1324, 1767, 4, false}, // Mexico ITRF92 / UTM zone 15N
    {4489, 4483, 139601, 1325, 1769, 4, false}, // Mexico ITRF92 / UTM zone 16N
    {4490, 1043, 49059, geographic, 20, 25, false}, // China Geodetic Coordinate System 2000
    {4491, 4490, 40715, 1484, 382, 5, false}, // CGCS2000 / Gauss-Kruger zone 13
    {4492, 4490, 40747, 1485, 383, 5, false}, // CGCS2000 / Gauss-Kruger zone 14
    {4493, 4490, 40779, 1486, 384, 5, false}, // CGCS2000 / Gauss-Kruger zone 15
    {4494, 4490, 40811, 1487, 385, 5, false}, // CGCS2000 / Gauss-Kruger zone 16
    {4495, 4490, 40843, 1488, 386, 5, false}, // CGCS2000 / Gauss-Kruger zone 17
    {4496, 4490, 40875, 1489, 1967, 5, false}, // CGCS2000 / Gauss-Kruger zone 18
    {4497, 4490, 40907, 1490, 1968, 5, false}, // CGCS2000 / Gauss-Kruger zone 19
    {4498, 4490, 40939, 1491, 1969, 5, false}, // CGCS2000 / Gauss-Kruger zone 20
    {4499, 4490, 40971, 1492, 1970, 5, false}, // CGCS2000 / Gauss-Kruger zone 21
    {4500, 4490, 41003, 1493, 1971, 5, false}, // CGCS2000 / Gauss-Kruger zone 22
    {4501, 4490, 41035, 1494, 392, 5, false}, // CGCS2000 / Gauss-Kruger zone 23
    {4502, 4490, 40560, 1554, 382, 5, false}, // CGCS2000 / Gauss-Kruger CM 75E
    {4503, 4490, 40591, 1555, 383, 5, false}, // CGCS2000 / Gauss-Kruger CM 81E
    {4504, 4490, 40622, 1556, 384, 5, false}, // CGCS2000 / Gauss-Kruger CM 87E
    {4505, 4490, 40653, 1557, 385, 5, false}, // CGCS2000 / Gauss-Kruger CM 93E
    {4506, 4490, 40684, 1558, 386, 5, false}, // CGCS2000 / Gauss-Kruger CM 99E
    {4507, 4490, 40368, 1559, 1967, 5, false}, // CGCS2000 / Gauss-Kruger CM 105E
    {4508, 4490, 40400, 1560, 1968, 5, false}, // CGCS2000 / Gauss-Kruger CM 111E
    {4509, 4490, 40432, 1561, 1969, 5, false}, // CGCS2000 / Gauss-Kruger CM 117E
    {4510, 4490, 40464, 1562, 1970, 5, false}, // CGCS2000 / Gauss-Kruger CM 123E
    {4511, 4490, 40496, 1563, 1971, 5, false}, // CGCS2000 / Gauss-Kruger CM 129E
    {4512, 4490, 40528, 1564, 392, 5, false}, // CGCS2000 / Gauss-Kruger CM 135E
    {4513, 4490, 39507, 1528, 1170, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger zone 25
    {4514, 4490, 39548, 1529, 1171, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger zone 26
    {4515, 4490, 39589, 1530, 1172, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger zone 27
    {4516, 4490, 39630, 1531, 1173, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger zone 28
    {4517, 4490, 39671, 1532, 1174, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger zone 29
    {4518, 4490, 39712, 1533, 1175, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger zone 30
    {4519, 4490, 39753, 1534, 1176, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger zone 31
    {4520, 4490, 39794, 1535, 1177, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger zone 32
    {4521, 4490, 39835, 1536, 1178, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger zone 33
    {4522, 4490, 39876, 1537, 1179, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger zone 34
    {4523, 4490, 39917, 1538, 1180, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger zone 35
    {4524, 4490, 39958, 1539, 1181, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger zone 36
    {4525, 4490, 39999, 1540, 1182, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger zone 37
    {4526, 4490, 40040, 1541, 1183, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger zone 38
    {4527, 4490, 40081, 1542, 1184, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger zone 39
    {4528, 4490, 40122, 1372, 1185, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger zone 40
    {4529, 4490, 40163, 1373, 1186, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger zone 41
    {4530, 4490, 40204, 1374, 1187, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger zone 42
    {4531, 4490, 40245, 1375, 1188, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger zone 43
    {4532, 4490, 40286, 1376, 1189, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger zone 44
    {4533, 4490, 40327, 1377, 1190, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger zone 45
    {4534, 4490, 39147, 1554, 1170, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger CM 75E
    {4535, 4490, 39187, 1584, 1171, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger CM 78E
    {4536, 4490, 39227, 1555, 1172, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger CM 81E
    {4537, 4490, 39267, 1585, 1173, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger CM 84E
    {4538, 4490, 39307, 1556, 1174, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger CM 87E
    {4539, 4490, 39347, 1586, 1175, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger CM 90E
    {4540, 4490, 39387, 1557, 1176, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger CM 93E
    {4541, 4490, 39427, 1587, 1177, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger CM 96E
    {4542, 4490, 39467, 1558, 1178, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger CM 99E
    {4543, 4490, 38655, 1588, 1179, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger CM 102E
    {4544, 4490, 38696, 1559, 1180, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger CM 105E
    {4545, 4490, 38737, 1589, 1181, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger CM 108E
    {4546, 4490, 38778, 1560, 1182, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger CM 111E
    {4547, 4490, 38819, 1590, 1183, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger CM 114E
    {4548, 4490, 38860, 1561, 1184, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger CM 117E
    {4549, 4490, 38901, 1460, 1185, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger CM 120E
    {4550, 4490, 38942, 1562, 1186, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger CM 123E
    {4551, 4490, 38983, 1461, 1187, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger CM 126E
    {4552, 4490, 39024, 1563, 1188, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger CM 129E
    {4553, 4490, 39065, 1462, 1189, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger CM 132E
    {4554, 4490, 39106, 1564, 1190, 5, false}, // CGCS2000 / 3-degree Gauss-Kruger CM 135E
    {4555, 1045, 219908, geographic, 1484, 25, false}, // New Beijing
    {4558, 1047, 273500, geographic, 1241, 25, false}, // RRAF 1991
    {4559, 4558, 273510, 1329, 1884, 4, false}, // RRAF 1991 / UTM zone 20N
    {4568, 4555, 222139, 1484, 382, 5, false}, // New Beijing / Gauss-Kruger zone 13
    {4569, 4555, 222174, 1485, 383, 5, false}, // New Beijing / Gauss-Kruger zone 14
    {4570, 4555, 222209, 1486, 384, 5, false}, // New Beijing / Gauss-Kruger zone 15
    {4571, 4555, 222244, 1487, 385, 5, false}, // New Beijing / Gauss-Kruger zone 16
    {4572, 4555, 222279, 1488, 386, 5, false}, // New Beijing / Gauss-Kruger zone 17
    {4573, 4555, 222314, 1489, 387, 5, false}, // New Beijing / Gauss-Kruger zone 18
    {4574, 4555, 222349, 1490, 388, 5, false}, // New Beijing / Gauss-Kruger zone 19
    {4575, 4555, 222384, 1491, 389, 5, false}, // New Beijing / Gauss-Kruger zone 20
    {4576, 4555, 222419, 1492, 390, 5, false}, // New Beijing / Gauss-Kruger zone 21
    {4577, 4555, 222454, 1493, 391, 5, false}, // New Beijing / Gauss-Kruger zone 22
    {4578, 4555, 222489, 1494, 392, 5, false}, // New Beijing / Gauss-Kruger zone 23
    {4579, 4555, 221969, 1554, 382, 5, false}, // New Beijing / Gauss-Kruger CM 75E
    {4580, 4555, 222003, 1555, 383, 5, false}, // New Beijing / Gauss-Kruger CM 81E
    {4581, 4555, 222037, 1556, 384, 5, false}, // New Beijing / Gauss-Kruger CM 87E
    {4582, 4555, 222071, 1557, 385, 5, false}, // New Beijing / Gauss-Kruger CM 93E
    {4583, 4555, 222105, 1558, 386, 5, false}, // New Beijing / Gauss-Kruger CM 99E
    {4584, 4555, 221759, 1559, 387, 5, false}, // New Beijing / Gauss-Kruger CM 105E
    {4585, 4555, 221794, 1560, 388, 5, false}, // New Beijing / Gauss-Kruger CM 111E
    {4586, 4555, 221829, 1561, 389, 5, false}, // New Beijing / Gauss-Kruger CM 117E
    {4587, 4555, 221864, 1562, 390, 5, false}, // New Beijing / Gauss-Kruger CM 123E
    {4588, 4555, 221899, 1563, 391, 5, false}, // New Beijing / Gauss-Kruger CM 129E
    {4589, 4555, 221934, 1564, 392, 5, false}, // New Beijing / Gauss-Kruger CM 135E
    {4600, 6600, 9486, geographic, 1478, 25, false}, // Anguilla 1957
    {4601, 6601, 15144, geographic, 114, 25, false}, // Antigua 1943
    {4602, 6602, 60213, geographic, 1489, 25, false}, // Dominica 1945
    {4603, 6603, 97017, geographic, 346, 25, false}, // Grenada 1953
    {4604, 6604, 143653, geographic, 1511, 25, false}, // Montserrat 1958
    {4605, 6605, 306315, geographic, 1519, 25, false}, // St. Kitts 1955
    {4606, 6606, 306372, geographic, 1520, 25, false}, // St. Lucia 1955
    {4607, 6607, 306519, geographic, 1522, 25, false}, // St. Vincent 1945
    {4608, 6608, 149399, geographic, 190, 25, false}, // NAD27(76)
    {4609, 6609, 149747, geographic, 191, 25, false}, // NAD27(CGQ77)
    {4610, 6610, 370781, geographic, 1484, 25, false}, // Xian 1980
    {4611, 6611, 100471, geographic, 42, 25, false}, // Hong Kong 1980
    {4612, 6612, 113048, geographic, 52, 25, false}, // JGD2000
    {4613, 6613, 97869, geographic, 183, 25, false}, // Segara
    {4614, 6614, 268719, geographic, 171, 25, false}, // QND95
    {4615, 6615, 247410, geographic, 145, 25, false}, // Porto Santo
    {4616, 6616, 297655, geographic, 1222, 25, false}, // Selvagem Grande
    {4617, 6140, 184239, geographic, 16, 25, false}, // NAD83(CSRS)
    {4618, 6618, 36802, geographic, 181, 25, false}, // SAD69
    {4619, 6619, 295472, geographic, 96, 25, false}, // SWEREF99
    {4620, 6620, 246593, geographic, 1226, 25, false}, // Point 58
    {4621, 6621, 78725, geographic, 1244, 25, false}, // Fort Marigot
    {4622, 6622, 97311, geographic, 1245, 25, false}, // Guadeloupe 1948
    {4623, 6623, 41949, geographic, 1405, 25, false}, // CSG67
    {4624, 6624, 271465, geographic, 37, 25, false}, // RGFG95
    {4625, 6625, 137578, geographic, 1509, 25, false}, // Martinique 1938
    {4626, 6626, 276898, geographic, 1536, 25, false}, // Reunion 1947
    {4627, 6627, 272180, geographic, 1948, 25, false}, // RGR92
    {4628, 6628, 310086, geographic, 1228, 25, false}, // Tahiti 52
    {4629, 6629, 310025, geographic, 1229, 25, false}, // Tahaa 54
    {4630, 6630, 103052, geographic, 1423, 25, false}, // IGN72 Nuku Hiva
    {4631, 6631, 117221, geographic, 1233, 25, true}, // K0 1949
    {4632, 6632, 52110, geographic, 1538, 25, false}, // Combani 1950
    {4633, 6633, 102795, geographic, 1231, 25, false}, // IGN56 Lifou
    {4634, 6634, 102948, geographic, 1239, 23, true}, // IGN72 Grand Terre
    {4635, 6635, 295302, geographic, 1230, 25, true}, // ST87 Ouvea
    {4636, 6636, 245460, geographic, 1234, 25, false}, // Petrels 1972
    {4637, 6637, 246627, geographic, 1235, 25, false}, // Perroud 1950
    {4638, 6638, 295963, geographic, 1521, 25, false}, // Saint Pierre et Miquelon 1950
    {4639, 6639, 133642, geographic, 1232, 25, false}, // MOP78
    {4640, 6640, 273500, geographic, 1241, 25, true}, // RRAF 1991
    {4641, 6641, 102678, geographic, 1236, 25, false}, // IGN53 Mare
    {4642, 6642, 295207, geographic, 1237, 25, false}, // ST84 Ile des Pins
    {4643, 6643, 295140, geographic, 1238, 25, false}, // ST71 Belep
    {4644, 6644, 214798, geographic, 1240, 25, false}, // NEA74 Noumea
    {4645, 6645, 271748, geographic, 74, 25, true}, // RGNC 1991
    {4646, 6646, 95454, geographic, 1227, 25, false}, // Grand Comoros
    {4647, 4258, 67887, 68, 1271, 4, false}, // ETRS89 / UTM zone 32N (zE-N)
    {4652, 4555, 220835, 1528, 1170, 5, false}, // New Beijing / 3-degree Gauss-Kruger zone 25
    {4653, 4555, 220879, 1529, 1171, 5, false}, // New Beijing / 3-degree Gauss-Kruger zone 26
    {4654, 4555, 220923, 1530, 1172, 5, false}, // New Beijing / 3-degree Gauss-Kruger zone 27
    {4655, 4555, 220967, 1531, 1173, 5, false}, // New Beijing / 3-degree Gauss-Kruger zone 28
    {4656, 4555, 221011, 1532, 1174, 5, false}, // New Beijing / 3-degree Gauss-Kruger zone 29
    {4657, 6657, 276974, geographic, 1502, 25, false}, // Reykjavik 1900
    {4658, 6658, 100212, geographic, 1502, 25, false}, // Hjorsey 1955
    {4659, 6659, 104002, geographic, 44, 25, false}, // ISN93
    {4660, 6660, 99865, geographic, 1275, 25, false}, // Helle 1954
    {4661, 6661, 125244, geographic, 57, 25, false}, // LKS92
    {4662, 6634, 102999, geographic, 1239, 25, false}, // IGN72 Grande Terre
    {4663, 6663, 247466, geographic, 145, 25, false}, // Porto Santo 1995
    {4664, 6664, 28012, geographic, 170, 25, false}, // Azores Oriental 1995
    {4665, 6665, 27752, geographic, 134, 25, false}, // Azores Central 1995
    {4666, 6666, 127947, geographic, 129, 25, false}, // Lisbon 1890
    {4667, 6667, 103626, geographic, 1276, 25, false}, // IKBD-92
    {4668, 6668, 61831, geographic, 131, 25, false}, // ED79
    {4669, 6126, 125268, geographic, 60, 25, false}, // LKS94
    {4670, 6670, 102383, geographic, 1541, 25, false}, // IGM95
    {4671, 6671, 337071, geographic, 188, 25, false}, // Voirol 1879
    {4672, 6672, 47474, geographic, 1279, 25, false}, // Chatham Islands 1971
    {4673, 6673, 47495, geographic, 1279, 25, false}, // Chatham Islands 1979
    {4674, 6674, 282606, geographic, 1596, 25, false}, // SIRGAS 2000
    {4675, 6675, 97373, geographic, 2482, 25, false}, // Guam 1963
    {4676, 6676, 335167, geographic, 56, 25, false}, // Vientiane 1982
    {4677, 6677, 126116, geographic, 56, 25, false}, // Lao 1993
    {4678, 6678, 126125, geographic, 56, 25, false}, // Lao 1997
    {4679, 6679, 117179, geographic, 1289, 25, false}, // Jouik 1961
    {4680, 6680, 233754, geographic, 1290, 25, false}, // Nouakchott 1965
    {4681, 6681, 138302, geographic, 67, 25, true}, // Mauritania 1999
    {4682, 6682, 97701, geographic, 8, 25, false}, // Gulshan 303
    {4683, 6683, 241882, geographic, 83, 25, false}, // PRS92
    {4684, 6684, 93514, geographic, 1508, 25, false}, // Gan 1970
    {4685, 6685, 93532, geographic, 108, 25, true}, // Gandajika
    {4686, 6686, 130531, geographic, 22, 25, false}, // MAGNA-SIRGAS
    {4687, 6687, 272031, geographic, 38, 25, false}, // RGPF
    {4688, 6688, 75559, geographic, 1425, 25, false}, // Fatu Iva 72
    {4689, 6689, 102866, geographic, 1424, 25, false}, // IGN63 Hiva Oa
    {4690, 6690, 310120, geographic, 1420, 25, false}, // Tahiti 79
    {4691, 6691, 143783, geographic, 1421, 25, false}, // Moorea 87
    {4692, 6692, 138028, geographic, 1422, 25, false}, // Maupiti 83
    {4693, 6693, 218675, geographic, 1075, 25, false}, // Nakhl-e Ghanem
    {4694, 6694, 241359, geographic, 6, 25, false}, // POSGAR 94
    {4695, 6695, 120451, geographic, 1430, 25, false}, // Katanga 1955
    {4696, 6696, 120313, geographic, 1431, 25, false}, // Kasai 1953
    {4697, 6697, 102012, geographic, 1432, 25, false}, // IGC 1962 6th Parallel South
    {4698, 6698, 102514, geographic, 1233, 25, false}, // IGN 1962 Kerguelen
    {4699, 6699, 126789, geographic, 1476, 25, false}, // Le Pouce 1934
    {4700, 6700, 102567, geographic, 1510, 25, false}, // IGN Astro 1960
    {4701, 6701, 102079, geographic, 1443, 25, false}, // IGCB 1955
    {4702, 6702, 138302, geographic, 67, 25, false}, // Mauritania 1999
    {4703, 6703, 139928, geographic, 148, 25, false}, // Mhast 1951
    {4704, 6704, 139860, geographic, 1451, 25, false}, // Mhast (onshore)
    {4705, 6705, 139811, geographic, 1452, 25, false}, // Mhast (offshore)
    {4706, 6706, 69321, geographic, 1073, 25, false}, // Egypt Gulf of Suez S-650 TL
    {4707, 6707, 311101, geographic, 1453, 25, false}, // Tern Island 1961
    {4708, 6708, 50246, geographic, 21, 25, false}, // Cocos Islands 1965
    {4709, 6709, 112730, geographic, 1469, 25, false}, // Iwo Jima 1945
    {4710, 6710, 24272, geographic, 1455, 25, false}, // Astro DOS 71
    {4711, 6711, 137390, geographic, 657, 25, false}, // Marcus Island 1952
    {4712, 6712, 21815, geographic, 1454, 25, false}, // Ascension Island 1958
    {4713, 6713, 27677, geographic, 28, 25, false}, // Ayabelle Lighthouse
    {4714, 6714, 34174, geographic, 1464, 25, false}, // Bellevue
    {4715, 6715, 42812, geographic, 1473, 25, false}, // Camp Area Astro
    {4716, 6716, 245957, geographic, 1467, 25, false}, // Phoenix Islands 1966
    {4717, 6717, 46239, geographic, 1474, 25, false}, // Cape Canaveral
    {4718, 6718, 299630, geographic, 93, 25, false}, // Solomon 1968
    {4719, 6719, 68857, geographic, 1459, 25, false}, // Easter Island 1967
    {4720, 6720, 76119, geographic, 34, 25, false}, // Fiji 1986
    {4721, 6721, 76060, geographic, 1577, 25, false}, // Fiji 1956
    {4722, 6722, 304203, geographic, 1687, 25, false}, // South Georgia 1968
    {4723, 6723, 81450, geographic, 1457, 25, false}, // GCGD59
    {4724, 6724, 60115, geographic, 1460, 25, false}, // Diego Garcia 1969
    {4725, 6725, 117074, geographic, 1470, 25, false}, // Johnston Island 1961
    {4726, 6726, 282049, geographic, 1458, 25, false}, // SIGD61
    {4727, 6727, 140714, geographic, 1471, 25, false}, // Midway 1961
    {4728, 6728, 240834, geographic, 2530, 25, false}, // PN84
    {4729, 6729, 246363, geographic, 1475, 25, false}, // Pitcairn 1967
    {4730, 6730, 296555, geographic, 1465, 25, false}, // Santo 1965
    {4731, 6731, 336919, geographic, 1466, 25, true}, // Viti Levu 1916
    {4732, 6732, 137535, geographic, 1462, 25, false}, // Marshall Islands 1960
    {4733, 6733, 355976, geographic, 1461, 25, false}, // Wake Island 1952
    {4734, 6734, 314007, geographic, 1456, 25, false}, // Tristan 1968
    {4735, 6735, 124081, geographic, 1463, 25, false}, // Kusaie 1951
    {4736, 6736, 14924, geographic, 1472, 25, false}, // Deception Island
    {4737, 6737, 122202, geographic, 54, 25, false}, // Korea 2000
    {4738, 6738, 100390, geographic, 42, 25, false}, // Hong Kong 1963
    {4739, 6739, 100452, geographic, 42, 25, false}, // Hong Kong 1963(67)
    {4740, 6740, 242707, geographic, 109, 25, false}, // PZ-90
    {4741, 6741, 74902, geographic, 1494, 25, false}, // FD54
    {4742, 6742, 83015, geographic, 65, 25, false}, // GDM2000
    {4743, 6743, 119950, geographic, 1759, 25, false}, // Karbala 1979
    {4744, 6744, 218303, geographic, 2211, 25, false}, // Nahrwan 1934
    {4745, 6745, 269639, geographic, 1091, 25, false}, // RD/83
    {4746, 6746, 240338, geographic, 1090, 25, false}, // PD/83
    {4747, 6747, 83576, geographic, 41, 25, false}, // GR96
    {4748, 6748, 334580, geographic, 1580, 25, false}, // Vanua Levu 1915
    {4749, 6749, 271799, geographic, 74, 25, false}, // RGNC91-93
    {4750, 6750, 295302, geographic, 1230, 25, false}, // ST87 Ouvea
    {4751, 6751, 121401, geographic, 141, 25, false}, // Kertau (RSO)
    {4752, 6752, 336872, geographic, 1466, 25, false}, // Viti Levu 1912
    {4753, 6753, 75504, geographic, 1494, 25, false}, // fk89
    {4754, 6754, 124829, geographic, 58, 25, false}, // LGD2006
    {4755, 6755, 56315, geographic, 46, 25, false}, // DGN95
    {4756, 6756, 333842, geographic, 1532, 25, false}, // VN-2000
    {4757, 6757, 295376, geographic, 90, 25, false}, // SVY21
    {4758, 6758, 112744, geographic, 51, 25, false}, // JAD2001
    {4759, 6759, 203720, geographic, 307, 25, false}, // NAD83(NSRS2007)
    {4760, 6760, 337342, geographic, 109, 25, false}, // WGS 66
    {4761, 6761, 98330, geographic, 26, 25, false}, // HTRS96
    {4762, 6762, 28729, geographic, 9, 25, false}, // BDA2000
    {4763, 6763, 246405, geographic, 1475, 25, false}, // Pitcairn 2006
    {4764, 6764, 273867, geographic, 1709, 25, false}, // RSRGD2000
    {4765, 6765, 299414, geographic, 92, 25, false}, // Slovenia 1996
    {4766, 4555, 221055, 1533, 1175, 5, false}, // New Beijing / 3-degree Gauss-Kruger zone 30
    {4767, 4555, 221099, 1534, 1176, 5, false}, // New Beijing / 3-degree Gauss-Kruger zone 31
    {4768, 4555, 221143, 1535, 1177, 5, false}, // New Beijing / 3-degree Gauss-Kruger zone 32
    {4769, 4555, 221187, 1536, 1178, 5, false}, // New Beijing / 3-degree Gauss-Kruger zone 33
    {4770, 4555, 221231, 1537, 1179, 5, false}, // New Beijing / 3-degree Gauss-Kruger zone 34
    {4771, 4555, 221275, 1538, 1180, 5, false}, // New Beijing / 3-degree Gauss-Kruger zone 35
    {4772, 4555, 221319, 1539, 1181, 5, false}, // New Beijing / 3-degree Gauss-Kruger zone 36
    {4773, 4555, 221363, 1540, 1182, 5, false}, // New Beijing / 3-degree Gauss-Kruger zone 37
    {4774, 4555, 221407, 1541, 1183, 5, false}, // New Beijing / 3-degree Gauss-Kruger zone 38
    {4775, 4555, 221451, 1542, 1184, 5, false}, // New Beijing / 3-degree Gauss-Kruger zone 39
    {4776, 4555, 221495, 1372, 1185, 5, false}, // New Beijing / 3-degree Gauss-Kruger zone 40
    {4777, 4555, 221539, 1373, 1186, 5, false}, // New Beijing / 3-degree Gauss-Kruger zone 41
    {4778, 4555, 221583, 1374, 1187, 5, false}, // New Beijing / 3-degree Gauss-Kruger zone 42
    {4779, 4555, 221627, 1375, 1188, 5, false}, // New Beijing / 3-degree Gauss-Kruger zone 43
    {4780, 4555, 221671, 1376, 1189, 5, false}, // New Beijing / 3-degree Gauss-Kruger zone 44
    {4781, 4555, 221715, 1377, 1190, 5, false}, // New Beijing / 3-degree Gauss-Kruger zone 45
    {4782, 4555, 220448, 1554, 1170, 5, false}, // New Beijing / 3-degree Gauss-Kruger CM 75E
    {4783, 4555, 220491, 1584, 1171, 5, false}, // New Beijing / 3-degree Gauss-Kruger CM 78E
    {4784, 4555, 220534, 1555, 1172, 5, false}, // New Beijing / 3-degree Gauss-Kruger CM 81E
    {4785, 4555, 220577, 1585, 1173, 5, false}, // New Beijing / 3-degree Gauss-Kruger CM 84E
    {4786, 4555, 220620, 1556, 1174, 5, false}, // New Beijing / 3-degree Gauss-Kruger CM 87E
    {4787, 4555, 220663, 1586, 1175, 5, false}, // New Beijing / 3-degree Gauss-Kruger CM 90E
    {4788, 4555, 220706, 1557, 1176, 5, false}, // New Beijing / 3-degree Gauss-Kruger CM 93E
    {4789, 4555, 220749, 1587, 1177, 5, false}, // New Beijing / 3-degree Gauss-Kruger CM 96E
    {4790, 4555, 220792, 1558, 1178, 5, false}, // New Beijing / 3-degree Gauss-Kruger CM 99E
    {4791, 4555, 219920, 1588, 1179, 5, false}, // New Beijing / 3-degree Gauss-Kruger CM 102E
    {4792, 4555, 219964, 1559, 1180, 5, false}, // New Beijing / 3-degree Gauss-Kruger CM 105E
    {4793, 4555, 220008, 1589, 1181, 5, false}, // New Beijing / 3-degree Gauss-Kruger CM 108E
    {4794, 4555, 220052, 1560, 1182, 5, false}, // New Beijing / 3-degree Gauss-Kruger CM 111E
    {4795, 4555, 220096, 1590, 1183, 5, false}, // New Beijing / 3-degree Gauss-Kruger CM 114E
    {4796, 4555, 220140, 1561, 1184, 5, false}, // New Beijing / 3-degree Gauss-Kruger CM 117E
    {4797, 4555, 220184, 1460, 1185, 5, false}, // New Beijing / 3-degree Gauss-Kruger CM 120E
    {4798, 4555, 220228, 1562, 1186, 5, false}, // New Beijing / 3-degree Gauss-Kruger CM 123E
    {4799, 4555, 220272, 1461, 1187, 5, false}, // New Beijing / 3-degree Gauss-Kruger CM 126E
    {4800, 4555, 220316, 1563, 1188, 5, false}, // New Beijing / 3-degree Gauss-Kruger CM 129E
    {4801, 6801, 34428, geographic, 123, 25, false}, // Bern 1898 (Bern)
    {4802, 6802, 35704, geographic, 1485, 25, false}, // Bogota 1975 (Bogota)
    {4803, 6803, 127825, geographic, 129, 25, false}, // Lisbon (Lisbon)
    {4804, 6804, 135576, geographic, 147, 25, false}, // Makassar (Jakarta)
    {4805, 6805, 132116, geographic, 150, 25, false}, // MGI (Ferro)
    {4806, 6806, 143348, geographic, 1541, 25, false}, // Monte Mario (Rome)
    {4807, 6807, 215622, geographic, 1815, 22, false}, // NTF (Paris)
    {4808, 6808, 243019, geographic, 179, 25, true}, // Padang (Jakarta)
    {4809, 6809, 28623, geographic, 172, 25, false}, // BD50 (Brussels)
    {4810, 6810, 310498, geographic, 1507, 22, false}, // Tananarive (Paris)
    {4811, 6811, 336976, geographic, 188, 22, false}, // Voirol 1875 (Paris)
    {4812, 4555, 220360, 1462, 1189, 5, false}, // New Beijing / 3-degree Gauss-Kruger CM 132E
    {4813, 6813, 30372, geographic, 122, 25, false}, // Batavia (Jakarta)
    {4814, 6814, 274082, geographic, 1528, 25, false}, // RT38 (Stockholm)
    {4815, 6815, 95782, geographic, 1498, 25, false}, // Greek (Athens)
    {4816, 6816, 46654, geographic, 413, 22, false}, // Carthage (Paris)
    {4817, 6817, 215064, geographic, 177, 25, false}, // NGO 1948 (Oslo)
    {4818, 6818, 280879, geographic, 138, 25, false}, // S-JTSK (Ferro)
    {4819, 6819, 226516, geographic, 189, 22, true}, // Nord Sahara 1959 (Paris)
    {4820, 6820, 97883, geographic, 183, 25, false}, // Segara (Jakarta)
    {4821, 6821, 337083, geographic, 188, 22, false}, // Voirol 1879 (Paris)
    {4822, 4555, 220404, 1564, 1190, 5, false}, // New Beijing / 3-degree Gauss-Kruger CM 135E
    {4823, 1044, 296658, geographic, 1777, 25, false}, // Sao Tome
    {4824, 1046, 296615, geographic, 1778, 25, false}, // Principe
    {4826, 4326, 343505, 69, 17, 4, false}, // WGS 84 / Cape Verde National
    {4839, 4258, 66820, 70, 1537, 5, false}, // ETRS89 / LCC Germany (N-E)
    {4855, 4258, 67288, 75, 1770, 5, true}, // ETRS89 / NTM zone 5
    {4856, 4258, 67308, 76, 1773, 5, true}, // ETRS89 / NTM zone 6
    {4857, 4258, 67328, 77, 1779, 5, true}, // ETRS89 / NTM zone 7
    {4858, 4258, 67348, 78, 1780, 5, true}, // ETRS89 / NTM zone 8
    {4859, 4258, 67368, 79, 1781, 5, true}, // ETRS89 / NTM zone 9
    {4860, 4258, 66847, 80, 1782, 5, true}, // ETRS89 / NTM zone 10
    {4861, 4258, 66868, 81, 1783, 5, true}, // ETRS89 / NTM zone 11
    {4862, 4258, 66889, 82, 1785, 5, true}, // ETRS89 / NTM zone 12
    {4863, 4258, 66910, 83, 1786, 5, true}, // ETRS89 / NTM zone 13
    {4864, 4258, 66931, 84, 1787, 5, true}, // ETRS89 / NTM zone 14
    {4865, 4258, 66952, 71, 1788, 5, true}, // ETRS89 / NTM zone 15
    {4866, 4258, 66973, 72, 1789, 5, true}, // ETRS89 / NTM zone 16
    {4867, 4258, 66994, 73, 1790, 5, true}, // ETRS89 / NTM zone 17
    {4868, 4258, 67015, 74, 1791, 5, true}, // ETRS89 / NTM zone 18
    {4869, 4258, 67036, 85, 1792, 5, true}, // ETRS89 / NTM zone 19
    {4870, 4258, 67057, 86, 1793, 5, true}, // ETRS89 / NTM zone 20
    {4871, 4258, 67078, 87, 1794, 5, true}, // ETRS89 / NTM zone 21
    {4872, 4258, 67099, 88, 1795, 5, true}, // ETRS89 / NTM zone 22
    {4873, 4258, 67120, 89, 1797, 5, true}, // ETRS89 / NTM zone 23
    {4874, 4258, 67141, 90, 1798, 5, true}, // ETRS89 / NTM zone 24
    {4875, 4258, 67162, 91, 1799, 5, true}, // ETRS89 / NTM zone 25
    {4876, 4258, 67183, 92, 1801, 5, true}, // ETRS89 / NTM zone 26
    {4877, 4258, 67204, 93, 1802, 5, true}, // ETRS89 / NTM zone 27
    {4878, 4258, 67225, 94, 1803, 5, true}, // ETRS89 / NTM zone 28
    {4879, 4258, 67246, 95, 1804, 5, true}, // ETRS89 / NTM zone 29
    {4880, 4258, 67267, 96, 1805, 5, true}, // ETRS89 / NTM zone 30
    {4901, 6901, 4873, geographic, 153, 22, false}, // ATF (Paris)
    {4902, 6902, 214786, geographic, 192, 22, true}, // NDG (Paris)
    {4903, 6903, 134942, geographic, 1076, 25, false}, // Madrid 1870 (Madrid)
    {4904, 6904, 127959, geographic, 129, 25, false}, // Lisbon 1890 (Lisbon)
    {5013, 1041, 242496, geographic, 1800, 25, false}, // PTRA08
    {5014, 5013, 242544, 1334, 1808, 4, false}, // PTRA08 / UTM zone 25N
    {5015, 5013, 242566, 1335, 1806, 4, false}, // PTRA08 / UTM zone 26N
    {5016, 5013, 242588, 1337, 1807, 4, false}, // PTRA08 / UTM zone 28N
    {5017, 4666, 128018, 97, 129, 1, false}, // Lisbon 1890 / Portugal Bonne New
    {5018, 4207, 127918, 98, 129, 4, false}, // Lisbon / Portuguese Grid New
    {5041, 4326, 349116, 1370, 781, 4, false}, // WGS 84 / UPS North (E,N)
    {5042, 4326, 349166, 1459, 782, 4, false}, // WGS 84 / UPS South (E,N)
    {5048, 4258, 67500, 1371, 35, 5, false}, // ETRS89 / TM35FIN(N,E)
    {5069, 4267, 146230, 100, 152, 4, false}, // NAD27 / Conus Albers
    {5070, 4269, 152544, 100, 152, 4, false}, // NAD83 / Conus Albers
    {5071, 4152, 192394, 100, 152, 4, false}, // NAD83(HARN) / Conus Albers
    {5072, 4759, 205304, 100, 152, 4, false}, // NAD83(NSRS2007) / Conus Albers
    {5105, 4258, 67288, 107, 1770, 5, false}, // ETRS89 / NTM zone 5
    {5106, 4258, 67308, 108, 1773, 5, false}, // ETRS89 / NTM zone 6
    {5107, 4258, 67328, 109, 1779, 5, false}, // ETRS89 / NTM zone 7
    {5108, 4258, 67348, 110, 1780, 5, false}, // ETRS89 / NTM zone 8
    {5109, 4258, 67368, 111, 1781, 5, false}, // ETRS89 / NTM zone 9
    {5110, 4258, 66847, 112, 1782, 5, false}, // ETRS89 / NTM zone 10
    {5111, 4258, 66868, 113, 1783, 5, false}, // ETRS89 / NTM zone 11
    {5112, 4258, 66889, 114, 1785, 5, false}, // ETRS89 / NTM zone 12
    {5113, 4258, 66910, 115, 1786, 5, false}, // ETRS89 / NTM zone 13
    {5114, 4258, 66931, 116, 1787, 5, false}, // ETRS89 / NTM zone 14
    {5115, 4258, 66952, 117, 1788, 5, false}, // ETRS89 / NTM zone 15
    {5116, 4258, 66973, 118, 1789, 5, false}, // ETRS89 / NTM zone 16
    {5117, 4258, 66994, 119, 1790, 5, false}, // ETRS89 / NTM zone 17
    {5118, 4258, 67015, 120, 1791, 5, false}, // ETRS89 / NTM zone 18
    {5119, 4258, 67036, 121, 1792, 5, false}, // ETRS89 / NTM zone 19
    {5120, 4258, 67057, 122, 1793, 5, false}, // ETRS89 / NTM zone 20
    {5121, 4258, 67078, 123, 1794, 5, false}, // ETRS89 / NTM zone 21
    {5122, 4258, 67099, 124, 1795, 5, false}, // ETRS89 / NTM zone 22
    {5123, 4258, 67120, 125, 1797, 5, false}, // ETRS89 / NTM zone 23
    {5124, 4258, 67141, 126, 1798, 5, false}, // ETRS89 / NTM zone 24
    {5125, 4258, 67162, 127, 1799, 5, false}, // ETRS89 / NTM zone 25
    {5126, 4258, 67183, 128, 1801, 5, false}, // ETRS89 / NTM zone 26
    {5127, 4258, 67204, 129, 1802, 5, false}, // ETRS89 / NTM zone 27
    {5128, 4258, 67225, 130, 1803, 5, false}, // ETRS89 / NTM zone 28
    {5129, 4258, 67246, 131, 1804, 5, false}, // ETRS89 / NTM zone 29
    {5130, 4258, 67267, 132, 1805, 5, false}, // ETRS89 / NTM zone 30
    {5132, 1048, 313242, geographic, 187, 25, false}, // Tokyo 1892
    {5167, 4162, 123443, 99, 1818, 5, false}, // Korean 1985 / East Sea Belt
    {5168, 4162, 123387, 106, 1819, 5, false}, // Korean 1985 / Central Belt Jeju
    {5169, 5132, 313347, 2175, 1816, 5, false}, // Tokyo 1892 / Korea West Belt
    {5170, 5132, 313253, 2174, 1817, 5, false}, // Tokyo 1892 / Korea Central Belt
    {5171, 5132, 313285, 2173, 1820, 5, false}, // Tokyo 1892 / Korea East Belt
    {5172, 5132, 313314, 99, 1821, 5, false}, // Tokyo 1892 / Korea East Sea Belt
    {5173, 4162, 123618, 133, 295, 5, false}, // Korean 1985 / Modified West Belt
    {5174, 4162, 123471, 134, 1822, 5, false}, // Korean 1985 / Modified Central Belt
    {5175, 4162, 123507, 135, 1819, 5, false}, // Korean 1985 / Modified Central Belt Jeju
    {5176, 4162, 123548, 136, 293, 5, false}, // Korean 1985 / Modified East Belt
    {5177, 4162, 123581, 137, 1818, 5, false}, // Korean 1985 / Modified East Sea Belt
    {5178, 4162, 123651, 101, 1503, 5, false}, // Korean 1985 / Unified CS
    {5179, 4737, 122411, 101, 54, 5, false}, // Korea 2000 / Unified CS
    {5180, 4737, 122435, 2175, 295, 5, false}, // Korea 2000 / West Belt
    {5181, 4737, 122213, 2174, 1822, 5, false}, // Korea 2000 / Central Belt
    {5182, 4737, 122270, 106, 1819, 5, false}, // Korea 2000 / Central Belt Jeju
    {5183, 4737, 122301, 2173, 293, 5, false}, // Korea 2000 / East Belt
    {5184, 4737, 122352, 99, 1818, 5, false}, // Korea 2000 / East Sea Belt
    {5185, 4737, 122458, 102, 295, 5, false}, // Korea 2000 / West Belt 2010
    {5186, 4737, 122239, 103, 294, 5, false}, // Korea 2000 / Central Belt 2010
    {5187, 4737, 122324, 104, 293, 5, false}, // Korea 2000 / East Belt 2010
    {5188, 4737, 122379, 105, 1818, 5, false}, // Korea 2000 / East Sea Belt 2010
    {5221, 4818, 280918, 138, 138, 4, false}, // S-JTSK (Ferro) / Krovak East North
    {5223, 4326, 345367, 141, 1495, 4, false}, // WGS 84 / Gabon TM
    {5224, 5229, 281101, 139, 27, 1, false}, // S-JTSK/05 (Ferro) / Modified Krovak
    {5225, 5229, 281137, 140, 27, 4, false}, // S-JTSK/05 (Ferro) / Modified Krovak East North
    {5228, 1052, 281073, geographic, 27, 25, false}, // S-JTSK/05
    {5229, 1055, 281083, geographic, 27, 25, false}, // S-JTSK/05 (Ferro)
    {5233, 1053, 285471, geographic, 1526, 25, false}, // SLD99
    {5234, 4244, 118794, 142, 1526, 4, false}, // Kandawala / Sri Lanka Grid
    {5235, 5233, 285477, 143, 1526, 4, false}, // SLD99 / Sri Lanka Grid 1999
    {5243, 4258, 66793, 70, 1537, 4, false}, // ETRS89 / LCC Germany (E-N)
    {5246, 1056, 82967, geographic, 13, 25, false}, // GDBD2009
    {5247, 5246, 82976, 2287, 13, 4, false}, // GDBD2009 / Brunei BRSO
    {5252, 1057, 309403, geographic, 101, 25, false}, // TUREF
    {5253, 5252, 309713, 1546, 320, 5, false}, // TUREF / TM27
    {5254, 5252, 309726, 1576, 321, 5, false}, // TUREF / TM30
    {5255, 5252, 309739, 1547, 322, 5, false}, // TUREF / TM33
    {5256, 5252, 309752, 1577, 323, 5, false}, // TUREF / TM36
    {5257, 5252, 309765, 1548, 324, 5, false}, // TUREF / TM39
    {5258, 5252, 309778, 1578, 325, 5, false}, // TUREF / TM42
    {5259, 5252, 309791, 1549, 326, 5, false}, // TUREF / TM45
    {5264, 1058, 57862, geographic, 10, 25, false}, // DRUKREF 03
    {5266, 5264, 57873, 144, 10, 4, false}, // DRUKREF 03 / Bhutan National Grid
    {5269, 5252, 309637, 1512, 320, 5, false}, // TUREF / 3-degree Gauss-Kruger zone 9
    {5270, 5252, 309409, 1513, 321, 5, false}, // TUREF / 3-degree Gauss-Kruger zone 10
    {5271, 5252, 309447, 1514, 322, 5, false}, // TUREF / 3-degree Gauss-Kruger zone 11
    {5272, 5252, 309485, 1515, 323, 5, false}, // TUREF / 3-degree Gauss-Kruger zone 12
    {5273, 5252, 309523, 1516, 324, 5, false}, // TUREF / 3-degree Gauss-Kruger zone 13
    {5274, 5252, 309561, 1517, 325, 5, false}, // TUREF / 3-degree Gauss-Kruger zone 14
    {5275, 5252, 309599, 1518, 326, 5, false}, // TUREF / 3-degree Gauss-Kruger zone 15
    {5292, 5264, 57907, 145, 1824, 4, false}, // DRUKREF 03 / Bumthang TM
    {5293, 5264, 57932, 146, 1826, 4, false}, // DRUKREF 03 / Chhukha TM
    {5294, 5264, 57956, 147, 1827, 4, false}, // DRUKREF 03 / Dagana TM
    {5295, 5264, 57979, 148, 1828, 4, false}, // DRUKREF 03 / Gasa TM
    {5296, 5264, 58000, 149, 1830, 4, false}, // DRUKREF 03 / Ha TM
    {5297, 5264, 58019, 150, 1831, 4, false}, // DRUKREF 03 / Lhuentse TM
    {5298, 5264, 58044, 151, 1832, 4, false}, // DRUKREF 03 / Mongar TM
    {5299, 5264, 58067, 152, 1833, 4, false}, // DRUKREF 03 / Paro TM
    {5300, 5264, 58088, 153, 1834, 4, false}, // DRUKREF 03 / Pemagatshel TM
    {5301, 5264, 58116, 163, 1836, 4, false}, // DRUKREF 03 / Punakha TM
    {5302, 5264, 58140, 155, 1837, 4, false}, // DRUKREF 03 / Samdrup Jongkhar TM
    {5303, 5264, 58173, 156, 1838, 4, false}, // DRUKREF 03 / Samtse TM
    {5304, 5264, 58196, 157, 1839, 4, false}, // DRUKREF 03 / Sarpang TM
    {5305, 5264, 58220, 162, 1840, 4, false}, // DRUKREF 03 / Thimphu TM
    {5306, 5264, 58244, 159, 1841, 4, false}, // DRUKREF 03 / Trashigang TM
    {5307, 5264, 58271, 160, 1842, 4, false}, // DRUKREF 03 / Trongsa TM
    {5308, 5264, 58295, 154, 1844, 4, false}, // DRUKREF 03 / Tsirang TM
    {5309, 5264, 58319, 158, 1845, 4, false}, // DRUKREF 03 / Wangdue Phodrang TM
    {5310, 5264, 58352, 164, 1847, 4, false}, // DRUKREF 03 / Yangtse TM
    {5311, 5264, 58376, 161, 1848, 4, false}, // DRUKREF 03 / Zhemgang TM
    {5316, 4258, 66394, 165, 33, 4, false}, // ETRS89 / Faroe TM
    {5320, 4269, 157226, 166, 190, 4, false}, // NAD83 / Teranet Ontario Lambert
    {5321, 4617, 185919, 166, 190, 4, false}, // NAD83(CSRS) / Teranet Ontario Lambert
    {5324, 1060, 103771, geographic, 44, 25, false}, // ISN2004
    {5325, 5324, 103845, 167, 44, 4, false}, // ISN2004 / Lambert 2004
    {5329, 4820, 297564, 168, 183, 4, false}, // Segara (Jakarta) / NEIEZ
    {5330, 4813, 30390, 168, 122, 4, false}, // Batavia (Jakarta) / NEIEZ
    {5331, 4804, 135595, 168, 147, 4, false}, // Makassar (Jakarta) / NEIEZ
    {5337, 4208, 15380, 1423, 1881, 4, false}, // Aratu / UTM zone 25S
    {5340, 1062, 241114, geographic, 6, 25, false}, // POSGAR 2007
    {5343, 5340, 241126, 2043, 403, 5, false}, // POSGAR 2007 / Argentina 1
    {5344, 5340, 241152, 2044, 404, 5, false}, // POSGAR 2007 / Argentina 2
    {5345, 5340, 241178, 2045, 405, 5, false}, // POSGAR 2007 / Argentina 3
    {5346, 5340, 241204, 2046, 406, 5, false}, // POSGAR 2007 / Argentina 4
    {5347, 5340, 241230, 2047, 407, 5, false}, // POSGAR 2007 / Argentina 5
    {5348, 5340, 241256, 2048, 408, 5, false}, // POSGAR 2007 / Argentina 6
    {5349, 5340, 241282, 2049, 409, 5, false}, // POSGAR 2007 / Argentina 7
    {5354, 1063, 131915, geographic, 11, 25, false}, // MARGEN
    {5355, 5354, 131944, 1418, 547, 4, false}, // MARGEN / UTM zone 20S
    {5356, 5354, 131922, 1417, 1886, 4, false}, // MARGEN / UTM zone 19S
    {5357, 5354, 131966, 1419, 1823, 4, false}, // MARGEN / UTM zone 21S
    {5360, 1064, 284478, geographic, 19, 25, false}, // SIRGAS-Chile 2002
    {5361, 5360, 284529, 1417, 1882, 4, false}, // SIRGAS-Chile 2002 / UTM zone 19S
    {5362, 5360, 284496, 1416, 1888, 4, false}, // SIRGAS-Chile 2002 / UTM zone 18S
    {5365, 1065, 41895, geographic, 24, 25, false}, // CR05
    {5367, 5365, 41900, 169, 1906, 5, false}, // CR05 / CRTM05
    {5371, 1066, 299074, geographic, 80, 25, false}, // MACARIO SOLIS
    {5373, 1067, 245322, geographic, 82, 25, false}, // Peru96
    {5381, 1068, 285149, geographic, 104, 25, false}, // SIRGAS-ROU98
    {5382, 5381, 285162, 1419, 1885, 4, false}, // SIRGAS-ROU98 / UTM zone 21S
    {5383, 5381, 285190, 1420, 1887, 4, false}, // SIRGAS-ROU98 / UTM zone 22S
    {5387, 5373, 245351, 1416, 1897, 4, false}, // Peru96 / UTM zone 18S
    {5388, 5373, 245329, 1326, 1896, 4, true}, // Peru96 / UTM zone 17S
    {5389, 5373, 245373, 1417, 1895, 4, false}, // Peru96 / UTM zone 19S
    {5393, 1069, 285438, geographic, 30, 25, false}, // SIRGAS_ES2007.8
    {5396, 4674, 283300, 1424, 1901, 4, false}, // SIRGAS 2000 / UTM zone 26S
    {5451, 1070, 235209, geographic, 1931, 25, false}, // Ocotepeque 1935
    {5456, 5451, 235225, 170, 1924, 4, false}, // Ocotepeque 1935 / Costa Rica Norte
    {5457, 5451, 235260, 171, 1925, 4, false}, // Ocotepeque 1935 / Costa Rica Sur
    {5458, 4267, 235331, 2146, 905, 4, true}, // Ocotepeque 1935 / Guatemala Norte
    {5459, 5451, 235365, 2147, 906, 4, false}, // Ocotepeque 1935 / Guatemala Sur
    {5460, 5451, 235293, 172, 1491, 4, false}, // Ocotepeque 1935 / El Salvador Lambert
    {5461, 5451, 235397, 173, 1903, 4, false}, // Ocotepeque 1935 / Nicaragua Norte
    {5462, 5451, 235431, 174, 1905, 4, false}, // Ocotepeque 1935 / Nicaragua Sur
    {5463, 4618, 281284, 1326, 1889, 4, false}, // SAD69 / UTM zone 17N
    {5464, 1071, 298123, geographic, 1481, 25, false}, // Sibun Gorge 1922
    {5466, 5464, 298140, 175, 1481, 4, true}, // Sibun Gorge 1922 / Colony Grid
    {5467, 1072, 243711, geographic, 1515, 25, false}, // Panama-Colon 1911
    {5469, 5467, 243729, 176, 1515, 4, false}, // Panama-Colon 1911 / Panama Lambert
    {5472, 5467, 243764, 177, 1515, 13, false}, // Panama-Colon 1911 / Panama Polyconic
    {5479, 4764, 273919, 178, 1908, 5, false}, // RSRGD2000 / MSLC2000
    {5480, 4764, 273877, 179, 1909, 5, false}, // RSRGD2000 / BCLC2000
    {5481, 4764, 273940, 180, 1910, 5, false}, // RSRGD2000 / PCLC2000
    {5482, 4764, 273961, 181, 1911, 5, false}, // RSRGD2000 / RSPS2000
    {5489, 1073, 270691, geographic, 1241, 25, false}, // RGAF09
    {5490, 5489, 270732, 1329, 1884, 4, false}, // RGAF09 / UTM zone 20N
    {5513, 4156, 280953, 182, 138, 1, false}, // S-JTSK / Krovak
    {5514, 4156, 280969, 183, 138, 4, false}, // S-JTSK / Krovak East North
    {5515, 5228, 281184, 184, 27, 1, false}, // S-JTSK/05 / Modified Krovak
    {5516, 5228, 281212, 185, 27, 4, false}, // S-JTSK/05 / Modified Krovak East North
    {5518, 4672, 41369, 186, 1279, 5, false}, // CI1971 / Chatham Islands Map Grid
    {5519, 4673, 41410, 186, 1279, 5, false}, // CI1979 / Chatham Islands Map Grid
    {5520, 4314, 57372, 1504, 1941, 5, false}, // DHDN / 3-degree Gauss-Kruger zone 1
    {5523, 4326, 345385, 187, 39, 4, false}, // WGS 84 / Gabon TM 2011
    {5524, 1074, 36974, geographic, 1929, 25, false}, // Corrego Alegre 1961
    {5527, 1075, 281599, geographic, 12, 25, false}, // SAD69(96)
    {5530, 5527, 281609, 2330, 12, 4, false}, // SAD69(96) / Brazil Polyconic
    {5531, 5527, 281713, 1419, 1935, 4, false}, // SAD69(96) / UTM zone 21S
    {5532, 4618, 281738, 1420, 1933, 4, true}, // SAD69(96) / UTM zone 22S
    {5533, 5527, 281763, 1421, 1622, 4, false}, // SAD69(96) / UTM zone 23S
    {5534, 5527, 281788, 1422, 1623, 4, false}, // SAD69(96) / UTM zone 24S
    {5535, 5527, 281813, 1423, 1624, 4, false}, // SAD69(96) / UTM zone 25S
    {5536, 5524, 54372, 1419, 2518, 4, false}, // Corrego Alegre 1961 / UTM zone 21S
    {5537, 5524, 54407, 1420, 2519, 4, false}, // Corrego Alegre 1961 / UTM zone 22S
    {5538, 5524, 54442, 1421, 1449, 4, false}, // Corrego Alegre 1961 / UTM zone 23S
    {5539, 5524, 54477, 1422, 1932, 4, false}, // Corrego Alegre 1961 / UTM zone 24S
    {5546, 1076, 240915, geographic, 81, 25, false}, // PNG94
    {5550, 5546, 240921, 188, 1936, 4, false}, // PNG94 / PNGMG94 zone 54
    {5551, 5546, 240945, 189, 1937, 4, false}, // PNG94 / PNGMG94 zone 55
    {5552, 5546, 240969, 190, 1938, 4, false}, // PNG94 / PNGMG94 zone 56
    {5559, 5451, 235331, 2146, 905, 4, false}, // Ocotepeque 1935 / Guatemala Norte
    {5561, 1077, 314722, geographic, 102, 25, false}, // UCS-2000
    {5562, 5561, 315419, 1475, 1942, 5, false}, // UCS-2000 / Gauss-Kruger zone 4
    {5563, 5561, 315450, 1476, 1945, 5, false}, // UCS-2000 / Gauss-Kruger zone 5
    {5564, 5561, 315481, 1477, 1949, 5, false}, // UCS-2000 / Gauss-Kruger zone 6
    {5565, 5561, 315512, 1478, 1950, 5, false}, // UCS-2000 / Gauss-Kruger zone 7
    {5566, 5561, 315295, 1545, 1942, 5, false}, // UCS-2000 / Gauss-Kruger CM 21E
    {5567, 5561, 315326, 1546, 1945, 5, false}, // UCS-2000 / Gauss-Kruger CM 27E
    {5568, 5561, 315357, 1547, 1949, 5, false}, // UCS-2000 / Gauss-Kruger CM 33E
    {5569, 5561, 315388, 1548, 1950, 5, false}, // UCS-2000 / Gauss-Kruger CM 39E
    {5570, 5561, 315175, 1510, 1951, 5, true}, // UCS-2000 / 3-degree Gauss-Kruger zone 7
    {5571, 5561, 315215, 1511, 1952, 5, true}, // UCS-2000 / 3-degree Gauss-Kruger zone 8
    {5572, 5561, 315255, 1512, 1953, 5, true}, // UCS-2000 / 3-degree Gauss-Kruger zone 9
    {5573, 5561, 315011, 1513, 1954, 5, true}, // UCS-2000 / 3-degree Gauss-Kruger zone 10
    {5574, 5561, 315052, 1514, 1955, 5, true}, // UCS-2000 / 3-degree Gauss-Kruger zone 11
    {5575, 5561, 315093, 1515, 1957, 5, true}, // UCS-2000 / 3-degree Gauss-Kruger zone 12
    {5576, 5561, 315134, 1516, 1958, 5, true}, // UCS-2000 / 3-degree Gauss-Kruger zone 13
    {5577, 5561, 314731, 1545, 1951, 5, true}, // UCS-2000 / 3-degree Gauss-Kruger CM 21E
    {5578, 5561, 314771, 1575, 1952, 5, true}, // UCS-2000 / 3-degree Gauss-Kruger CM 24E
    {5579, 5561, 314811, 1546, 1953, 5, true}, // UCS-2000 / 3-degree Gauss-Kruger CM 27E
    {5580, 5561, 314851, 1576, 1954, 5, true}, // UCS-2000 / 3-degree Gauss-Kruger CM 30E
    {5581, 5561, 314891, 1547, 1955, 5, true}, // UCS-2000 / 3-degree Gauss-Kruger CM 33E
    {5582, 5561, 314931, 1577, 1957, 5, true}, // UCS-2000 / 3-degree Gauss-Kruger CM 36E
    {5583, 5561, 314971, 1548, 1958, 5, true}, // UCS-2000 / 3-degree Gauss-Kruger CM 39E
    {5588, 4267, 147586, 191, 245, 7, false}, // NAD27 / New Brunswick Stereographic (NAD27)
    {5589, 5464, 298140, 175, 1481, 9, false}, // Sibun Gorge 1922 / Colony Grid
    {5593, 1078, 75027, geographic, 1939, 25, false}, // FEH2010
    {5596, 5593, 75035, 192, 1939, 4, false}, // FEH2010 / Fehmarnbelt TM
    {5623, 4267, 147097, 1010, 511, 8, false}, // NAD27 / Michigan East
    {5624, 4267, 147142, 1011, 512, 8, false}, // NAD27 / Michigan Old Central
    {5625, 4267, 147194, 1012, 1784, 8, false}, // NAD27 / Michigan West
    {5627, 4230, 61325, 1593, 1944, 4, false}, // ED50 / TM 6 NE
    {5629, 4130, 144413, 1436, 337, 4, false}, // Moznet / UTM zone 38S
    {5631, 4179, 258679, 1473, 1713, 4, false}, // Pulkovo 1942(58) / Gauss-Kruger zone 2 (E-N)
    {5632, 5013, 242524, 2371, 1800, 5, false}, // PTRA08 / LCC Europe
    {5633, 5013, 242503, 2372, 1800, 5, false}, // PTRA08 / LAEA Europe
    {5634, 4081, 270401, 2371, 1468, 5, false}, // REGCAN95 / LCC Europe
    {5635, 4081, 270378, 2372, 1468, 5, false}, // REGCAN95 / LAEA Europe
    {5636, 5252, 309674, 2372, 101, 5, false}, // TUREF / LAEA Europe
    {5637, 5252, 309694, 2371, 101, 5, false}, // TUREF / LCC Europe
    {5638, 5324, 103779, 2372, 44, 5, false}, // ISN2004 / LAEA Europe
    {5639, 5324, 103824, 2371, 44, 5, false}, // ISN2004 / LCC Europe
    {5641, 4674, 282618, 193, 1943, 4, false}, // SIRGAS 2000 / Brazil Mercator
    {5643, 4230, 61280, 194, 1946, 4, false}, // ED50 / SPBA LCC
    {5644, 4627, 272218, 1437, 1959, 4, false}, // RGR92 / UTM zone 39S
    {5646, 4269, 158433, 195, 214, 8, false}, // NAD83 / Vermont (ftUS)
    {5649, 4258, 67779, 196, 1270, 4, false}, // ETRS89 / UTM zone 31N (zE-N)
    {5650, 4258, 67995, 197, 1272, 4, false}, // ETRS89 / UTM zone 33N (zE-N)
    {5651, 4258, 67750, 196, 1270, 5, false}, // ETRS89 / UTM zone 31N (N-zE)
    {5652, 4258, 67858, 68, 1271, 5, false}, // ETRS89 / UTM zone 32N (N-zE)
    {5653, 4258, 67966, 197, 1272, 5, false}, // ETRS89 / UTM zone 33N (N-zE)
    {5654, 4152, 198254, 195, 214, 8, false}, // NAD83(HARN) / Vermont (ftUS)
    {5655, 4759, 212048, 195, 214, 8, false}, // NAD83(NSRS2007) / Vermont (ftUS)
    {5659, 4265, 143489, 198, 2039, 4, false}, // Monte Mario / TM Emilia-Romagna
    {5663, 4179, 258763, 1474, 578, 4, false}, // Pulkovo 1942(58) / Gauss-Kruger zone 3 (E-N)
    {5664, 4178, 259706, 1473, 1713, 4, false}, // Pulkovo 1942(83) / Gauss-Kruger zone 2 (E-N)
    {5665, 4178, 259790, 1474, 1714, 4, false}, // Pulkovo 1942(83) / Gauss-Kruger zone 3 (E-N)
    {5666, 4746, 240381, 1506, 1573, 4, false}, // PD/83 / 3-degree Gauss-Kruger zone 3 (E-N)
    {5667, 4746, 240461, 1507, 1574, 4, false}, // PD/83 / 3-degree Gauss-Kruger zone 4 (E-N)
    {5668, 4745, 269682, 1507, 1576, 4, false}, // RD/83 / 3-degree Gauss-Kruger zone 4 (E-N)
    {5669, 4745, 269762, 1508, 1575, 4, false}, // RD/83 / 3-degree Gauss-Kruger zone 5 (E-N)
    {5670, 4179, 258162, 1506, 308, 4, false}, // Pulkovo 1942(58) / 3-degree Gauss-Kruger zone 3 (E-N)
    {5671, 4179, 258264, 1507, 309, 4, false}, // Pulkovo 1942(58) / 3-degree Gauss-Kruger zone 4 (E-N)
    {5672, 4179, 258366, 1508, 1718, 4, false}, // Pulkovo 1942(58) / 3-degree Gauss-Kruger zone 5 (E-N)
    {5673, 4178, 259148, 1506, 308, 4, false}, // Pulkovo 1942(83) / 3-degree Gauss-Kruger zone 3 (E-N)
    {5674, 4178, 259250, 1507, 309, 4, false}, // Pulkovo 1942(83) / 3-degree Gauss-Kruger zone 4 (E-N)
    {5675, 4178, 259352, 1508, 310, 4, false}, // Pulkovo 1942(83) / 3-degree Gauss-Kruger zone 5 (E-N)
    {5676, 4314, 57486, 1505, 417, 4, false}, // DHDN / 3-degree Gauss-Kruger zone 2 (E-N)
    {5677, 4314, 57564, 1506, 418, 4, false}, // DHDN / 3-degree Gauss-Kruger zone 3 (E-N)
    {5678, 4314, 57642, 1507, 419, 4, false}, // DHDN / 3-degree Gauss-Kruger zone 4 (E-N)
    {5679, 4314, 57720, 1508, 420, 4, false}, // DHDN / 3-degree Gauss-Kruger zone 5 (E-N)
    {5680, 4314, 57408, 1504, 1941, 4, false}, // DHDN / 3-degree Gauss-Kruger zone 1 (E-N)
    {5681, 1081, 55923, geographic, 1537, 25, false}, // DB_REF
    {5682, 5681, 55930, 1505, 417, 4, false}, // DB_REF / 3-degree Gauss-Kruger zone 2 (E-N)
    {5683, 5681, 55974, 1506, 2013, 4, false}, // DB_REF / 3-degree Gauss-Kruger zone 3 (E-N)
    {5684, 5681, 56018, 1507, 2014, 4, false}, // DB_REF / 3-degree Gauss-Kruger zone 4 (E-N)
    {5685, 5681, 56062, 1508, 2015, 4, false}, // DB_REF / 3-degree Gauss-Kruger zone 5 (E-N)
    {5700, 4167, 217134, 1399, 2012, 4, false}, // NZGD2000 / UTM zone 1S
    {5825, 4202, 4267, 199, 1067, 4, false}, // AGD66 / ACT Standard Grid
    {5836, 4163, 373749, 1346, 2018, 4, false}, // Yemen NGN96 / UTM zone 37N
    {5837, 4163, 373830, 1349, 2016, 4, false}, // Yemen NGN96 / UTM zone 40N
    {5839, 5373, 245329, 1415, 1896, 4, false}, // Peru96 / UTM zone 17S
    {5842, 4326, 348881, 1602, 2029, 4, false}, // WGS 84 / TM 12 SE
    {5844, 4046, 272557, 1876, 2023, 4, false}, // RGRDC 2005 / Congo TM zone 30
    {5858, 5527, 281738, 1420, 1933, 4, false}, // SAD69(96) / UTM zone 22S
    {5875, 5527, 281638, 1416, 2027, 4, false}, // SAD69(96) / UTM zone 18S
    {5876, 5527, 281663, 1417, 2028, 4, false}, // SAD69(96) / UTM zone 19S
    {5877, 5527, 281688, 1418, 2030, 4, false}, // SAD69(96) / UTM zone 20S
    {5879, 4475, 42092, 1436, 1538, 4, false}, // Cadastre 1997 / UTM zone 38S
    {5880, 4674, 282648, 2330, 12, 4, false}, // SIRGAS 2000 / Brazil Polyconic
    {5886, 1095, 308793, geographic, 99, 25, false}, // TGD2005
    {5887, 5886, 308801, 200, 99, 4, false}, // TGD2005 / Tonga Map Grid
    {5890, 4054, 112964, 201, 781, 4, true}, // JAXA Snow Depth Polar Stereographic North
    {5896, 4756, 334208, 202, 2179, 4, false}, // VN-2000 / TM-3 zone 481
    {5897, 4756, 334232, 203, 2198, 4, false}, // VN-2000 / TM-3 zone 482
    {5898, 4756, 334256, 204, 2199, 4, false}, // VN-2000 / TM-3 zone 491
    {5899, 4756, 334114, 205, 2200, 4, false}, // VN-2000 / TM-3 107-45
    {5921, 4326, 343636, 211, 2024, 4, false}, // WGS 84 / EPSG Arctic Regional zone A1
    {5922, 4326, 343674, 212, 2031, 4, false}, // WGS 84 / EPSG Arctic Regional zone A2
    {5923, 4326, 343712, 213, 2032, 4, false}, // WGS 84 / EPSG Arctic Regional zone A3
    {5924, 4326, 343750, 214, 2033, 4, false}, // WGS 84 / EPSG Arctic Regional zone A4
    {5925, 4326, 343788, 215, 2035, 4, false}, // WGS 84 / EPSG Arctic Regional zone A5
    {5926, 4326, 343826, 216, 2036, 4, false}, // WGS 84 / EPSG Arctic Regional zone B1
    {5927, 4326, 343864, 217, 2037, 4, false}, // WGS 84 / EPSG Arctic Regional zone B2
    {5928, 4326, 343902, 218, 2038, 4, false}, // WGS 84 / EPSG Arctic Regional zone B3
    {5929, 4326, 343940, 219, 2041, 4, false}, // WGS 84 / EPSG Arctic Regional zone B4
    {5930, 4326, 343978, 220, 2042, 4, false}, // WGS 84 / EPSG Arctic Regional zone B5
    {5931, 4326, 344016, 221, 2044, 4, false}, // WGS 84 / EPSG Arctic Regional zone C1
    {5932, 4326, 344054, 222, 2045, 4, false}, // WGS 84 / EPSG Arctic Regional zone C2
    {5933, 4326, 344092, 223, 2046, 4, false}, // WGS 84 / EPSG Arctic Regional zone C3
    {5934, 4326, 344130, 224, 2047, 4, false}, // WGS 84 / EPSG Arctic Regional zone C4
    {5935, 4326, 344168, 225, 2049, 4, false}, // WGS 84 / EPSG Arctic Regional zone C5
    {5936, 4326, 343595, 206, 781, 4, false}, // WGS 84 / EPSG Alaska Polar Stereographic
    {5937, 4326, 345105, 207, 781, 4, false}, // WGS 84 / EPSG Canada Polar Stereographic
    {5938, 4326, 345146, 208, 781, 4, false}, // WGS 84 / EPSG Greenland Polar Stereographic
    {5939, 4326, 345190, 209, 781, 4, false}, // WGS 84 / EPSG Norway Polar Stereographic
    {5940, 4326, 345231, 210, 781, 4, false}, // WGS 84 / EPSG Russia Polar Stereographic
    {6050, 4747, 83581, 230, 2052, 4, false}, // GR96 / EPSG Arctic zone 1-25
    {6051, 4747, 83610, 238, 2043, 4, false}, // GR96 / EPSG Arctic zone 2-18
    {6052, 4747, 83639, 239, 2050, 4, false}, // GR96 / EPSG Arctic zone 2-20
    {6053, 4747, 83668, 253, 2072, 4, false}, // GR96 / EPSG Arctic zone 3-29
    {6054, 4747, 83697, 254, 2073, 4, false}, // GR96 / EPSG Arctic zone 3-31
    {6055, 4747, 83726, 255, 2074, 4, false}, // GR96 / EPSG Arctic zone 3-33
    {6056, 4747, 83755, 260, 2079, 4, false}, // GR96 / EPSG Arctic zone 4-20
    {6057, 4747, 83784, 261, 2080, 4, false}, // GR96 / EPSG Arctic zone 4-22
    {6058, 4747, 83813, 262, 2081, 4, false}, // GR96 / EPSG Arctic zone 4-24
    {6059, 4747, 83842, 286, 2105, 4, false}, // GR96 / EPSG Arctic zone 5-41
    {6060, 4747, 83871, 287, 2106, 4, false}, // GR96 / EPSG Arctic zone 5-43
    {6061, 4747, 83900, 288, 2107, 4, false}, // GR96 / EPSG Arctic zone 5-45
    {6062, 4747, 83929, 296, 2115, 4, false}, // GR96 / EPSG Arctic zone 6-26
    {6063, 4747, 83958, 297, 2116, 4, false}, // GR96 / EPSG Arctic zone 6-28
    {6064, 4747, 83987, 298, 2117, 4, false}, // GR96 / EPSG Arctic zone 6-30
    {6065, 4747, 84016, 299, 2118, 4, false}, // GR96 / EPSG Arctic zone 7-11
    {6066, 4747, 84045, 300, 2119, 4, false}, // GR96 / EPSG Arctic zone 7-13
    {6067, 4747, 84074, 226, 2121, 4, false}, // GR96 / EPSG Arctic zone 8-20
    {6068, 4747, 84103, 227, 2122, 4, false}, // GR96 / EPSG Arctic zone 8-22
    {6069, 4258, 65868, 240, 2057, 4, false}, // ETRS89 / EPSG Arctic zone 2-22
    {6070, 4258, 65899, 244, 2062, 4, false}, // ETRS89 / EPSG Arctic zone 3-11
    {6071, 4258, 65930, 263, 2082, 4, false}, // ETRS89 / EPSG Arctic zone 4-26
    {6072, 4258, 65961, 264, 2083, 4, false}, // ETRS89 / EPSG Arctic zone 4-28
    {6073, 4258, 65992, 271, 2090, 4, false}, // ETRS89 / EPSG Arctic zone 5-11
    {6074, 4258, 66023, 272, 2091, 4, false}, // ETRS89 / EPSG Arctic zone 5-13
    {6075, 4326, 344392, 241, 2058, 4, false}, // WGS 84 / EPSG Arctic zone 2-24
    {6076, 4326, 344423, 242, 2059, 4, false}, // WGS 84 / EPSG Arctic zone 2-26
    {6077, 4326, 344485, 245, 2063, 4, false}, // WGS 84 / EPSG Arctic zone 3-13
    {6078, 4326, 344516, 246, 2064, 4, false}, // WGS 84 / EPSG Arctic zone 3-15
    {6079, 4326, 344547, 247, 2065, 4, false}, // WGS 84 / EPSG Arctic zone 3-17
    {6080, 4326, 344578, 248, 2066, 4, false}, // WGS 84 / EPSG Arctic zone 3-19
    {6081, 4326, 344702, 265, 2084, 4, false}, // WGS 84 / EPSG Arctic zone 4-30
    {6082, 4326, 344733, 266, 2085, 4, false}, // WGS 84 / EPSG Arctic zone 4-32
    {6083, 4326, 344764, 267, 2086, 4, false}, // WGS 84 / EPSG Arctic zone 4-34
    {6084, 4326, 344795, 268, 2087, 4, false}, // WGS 84 / EPSG Arctic zone 4-36
    {6085, 4326, 344826, 269, 2088, 4, false}, // WGS 84 / EPSG Arctic zone 4-38
    {6086, 4326, 344857, 270, 2089, 4, false}, // WGS 84 / EPSG Arctic zone 4-40
    {6087, 4326, 344888, 273, 2092, 4, false}, // WGS 84 / EPSG Arctic zone 5-15
    {6088, 4326, 344919, 274, 2093, 4, false}, // WGS 84 / EPSG Arctic zone 5-17
    {6089, 4326, 344950, 275, 2094, 4, false}, // WGS 84 / EPSG Arctic zone 5-19
    {6090, 4326, 344981, 276, 2095, 4, false}, // WGS 84 / EPSG Arctic zone 5-21
    {6091, 4326, 345012, 277, 2096, 4, false}, // WGS 84 / EPSG Arctic zone 5-23
    {6092, 4326, 345043, 278, 2097, 4, false}, // WGS 84 / EPSG Arctic zone 5-25
    {6093, 4326, 345074, 279, 2098, 4, false}, // WGS 84 / EPSG Arctic zone 5-27
    {6094, 4759, 205396, 280, 2099, 4, false}, // NAD83(NSRS2007) / EPSG Arctic zone 5-29
    {6095, 4759, 205436, 281, 2100, 4, false}, // NAD83(NSRS2007) / EPSG Arctic zone 5-31
    {6096, 4759, 205476, 290, 2109, 4, false}, // NAD83(NSRS2007) / EPSG Arctic zone 6-14
    {6097, 4759, 205516, 291, 2110, 4, false}, // NAD83(NSRS2007) / EPSG Arctic zone 6-16
    {6098, 4617, 184567, 229, 2051, 4, false}, // NAD83(CSRS) / EPSG Arctic zone 1-23
    {6099, 4617, 184603, 236, 2034, 4, false}, // NAD83(CSRS) / EPSG Arctic zone 2-14
    {6100, 4617, 184639, 237, 2040, 4, false}, // NAD83(CSRS) / EPSG Arctic zone 2-16
    {6101, 4617, 184675, 251, 2069, 4, false}, // NAD83(CSRS) / EPSG Arctic zone 3-25
    {6102, 4617, 184711, 252, 2070, 4, false}, // NAD83(CSRS) / EPSG Arctic zone 3-27
    {6103, 4617, 184747, 253, 2071, 4, false}, // NAD83(CSRS) / EPSG Arctic zone 3-29
    {6104, 4617, 184783, 257, 2076, 4, false}, // NAD83(CSRS) / EPSG Arctic zone 4-14
    {6105, 4617, 184819, 258, 2077, 4, false}, // NAD83(CSRS) / EPSG Arctic zone 4-16
    {6106, 4617, 184855, 259, 2078, 4, false}, // NAD83(CSRS) / EPSG Arctic zone 4-18
    {6107, 4617, 184891, 282, 2101, 4, false}, // NAD83(CSRS) / EPSG Arctic zone 5-33
    {6108, 4617, 184927, 283, 2102, 4, false}, // NAD83(CSRS) / EPSG Arctic zone 5-35
    {6109, 4617, 184963, 284, 2103, 4, false}, // NAD83(CSRS) / EPSG Arctic zone 5-37
    {6110, 4617, 184999, 285, 2104, 4, false}, // NAD83(CSRS) / EPSG Arctic zone 5-39
    {6111, 4617, 185035, 292, 2111, 4, false}, // NAD83(CSRS) / EPSG Arctic zone 6-18
    {6112, 4617, 185071, 293, 2112, 4, false}, // NAD83(CSRS) / EPSG Arctic zone 6-20
    {6113, 4617, 185107, 294, 2113, 4, false}, // NAD83(CSRS) / EPSG Arctic zone 6-22
    {6114, 4617, 185143, 295, 2114, 4, false}, // NAD83(CSRS) / EPSG Arctic zone 6-24
    {6115, 4326, 344237, 231, 2053, 4, false}, // WGS 84 / EPSG Arctic zone 1-27
    {6116, 4326, 344268, 232, 2054, 4, false}, // WGS 84 / EPSG Arctic zone 1-29
    {6117, 4326, 344299, 233, 2055, 4, false}, // WGS 84 / EPSG Arctic zone 1-31
    {6118, 4326, 344206, 228, 2048, 4, false}, // WGS 84 / EPSG Arctic zone 1-21
    {6119, 4326, 344454, 243, 2060, 4, false}, // WGS 84 / EPSG Arctic zone 2-28
    {6120, 4326, 344330, 234, 2061, 4, false}, // WGS 84 / EPSG Arctic zone 2-10
    {6121, 4326, 344361, 235, 2056, 4, false}, // WGS 84 / EPSG Arctic zone 2-12
    {6122, 4326, 344609, 249, 2067, 4, false}, // WGS 84 / EPSG Arctic zone 3-21
    {6123, 4326, 344640, 250, 2068, 4, false}, // WGS 84 / EPSG Arctic zone 3-23
    {6124, 4326, 344671, 256, 2075, 4, false}, // WGS 84 / EPSG Arctic zone 4-12
    {6125, 4258, 66054, 289, 2108, 4, false}, // ETRS89 / EPSG Arctic zone 5-47
    {6128, 4723, 95422, 302, 1457, 6, false}, // Grand Cayman National Grid 1959
    {6129, 4726, 299328, 302, 1458, 6, false}, // Sister Islands National Grid 1961
    {6135, 1100, 41444, geographic, 18, 25, false}, // CIGD11
    {6141, 6135, 47028, 301, 18, 6, true}, // Cayman Islands National Grid 2011
    {6200, 4267, 147119, 303, 513, 8, true}, // NAD27 / Michigan North
    {6201, 4267, 147072, 304, 514, 8, false}, // NAD27 / Michigan Central
    {6202, 4267, 147171, 305, 515, 8, false}, // NAD27 / Michigan South
    {6204, 3906, 134486, 306, 63, 4, false}, // Macedonia State Coordinate System
    {6207, 1111, 219442, geographic, 73, 25, false}, // Nepal 1981
    {6210, 4674, 283165, 1332, 2124, 4, false}, // SIRGAS 2000 / UTM zone 23N
    {6211, 4674, 283219, 1333, 2128, 4, false}, // SIRGAS 2000 / UTM zone 24N
    {6244, 4686, 130544, 307, 2120, 5, false}, // MAGNA-SIRGAS / Arauca urban grid
    {6245, 4686, 130577, 308, 2127, 5, false}, // MAGNA-SIRGAS / Armenia urban grid
    {6246, 4686, 130611, 309, 2129, 5, false}, // MAGNA-SIRGAS / Barranquilla urban grid
    {6247, 4686, 130650, 310, 2130, 5, false}, // MAGNA-SIRGAS / Bogota urban grid
    {6248, 4686, 130683, 311, 2131, 5, false}, // MAGNA-SIRGAS / Bucaramanga urban grid
    {6249, 4686, 130721, 312, 2132, 5, false}, // MAGNA-SIRGAS / Cali urban grid
    {6250, 4686, 130752, 313, 2133, 5, false}, // MAGNA-SIRGAS / Cartagena urban grid
    {6251, 4686, 130972, 314, 2134, 5, false}, // MAGNA-SIRGAS / Cucuta urban grid
    {6252, 4686, 131005, 315, 2135, 5, false}, // MAGNA-SIRGAS / Florencia urban grid
    {6253, 4686, 131041, 316, 2136, 5, false}, // MAGNA-SIRGAS / Ibague urban grid
    {6254, 4686, 131074, 317, 2137, 5, false}, // MAGNA-SIRGAS / Inirida urban grid
    {6255, 4686, 131108, 318, 2138, 5, false}, // MAGNA-SIRGAS / Leticia urban grid
    {6256, 4686, 131142, 319, 2139, 5, false}, // MAGNA-SIRGAS / Manizales urban grid
    {6257, 4686, 131178, 320, 2140, 5, false}, // MAGNA-SIRGAS / Medellin urban grid
    {6258, 4686, 131213, 321, 2141, 5, false}, // MAGNA-SIRGAS / Mitu urban grid
    {6259, 4686, 131244, 322, 2142, 5, false}, // MAGNA-SIRGAS / Mocoa urban grid
    {6260, 4686, 131276, 323, 2143, 5, false}, // MAGNA-SIRGAS / Monteria urban grid
    {6261, 4686, 131311, 324, 2144, 5, false}, // MAGNA-SIRGAS / Neiva urban grid
    {6262, 4686, 131374, 325, 2145, 5, false}, // MAGNA-SIRGAS / Pasto urban grid
    {6263, 4686, 131406, 326, 2146, 5, false}, // MAGNA-SIRGAS / Pereira urban grid
    {6264, 4686, 131440, 327, 2147, 5, false}, // MAGNA-SIRGAS / Popayan urban grid
    {6265, 4686, 131474, 328, 2148, 5, false}, // MAGNA-SIRGAS / Puerto Carreno urban grid
    {6266, 4686, 131515, 329, 2149, 5, false}, // MAGNA-SIRGAS / Quibdo urban grid
    {6267, 4686, 131548, 330, 2150, 5, false}, // MAGNA-SIRGAS / Riohacha urban grid
    {6268, 4686, 131583, 331, 2151, 5, false}, // MAGNA-SIRGAS / San Andres urban grid
    {6269, 4686, 131620, 332, 2152, 5, false}, // MAGNA-SIRGAS / San Jose del Guaviare urban grid
    {6270, 4686, 131668, 333, 2123, 5, false}, // MAGNA-SIRGAS / Santa Marta urban grid
    {6271, 4686, 131706, 334, 2125, 5, false}, // MAGNA-SIRGAS / Sucre urban grid
    {6272, 4686, 131738, 335, 2126, 5, false}, // MAGNA-SIRGAS / Tunja urban grid
    {6273, 4686, 131770, 336, 2153, 5, false}, // MAGNA-SIRGAS / Valledupar urban grid
    {6274, 4686, 131807, 337, 2154, 5, false}, // MAGNA-SIRGAS / Villavicencio urban grid
    {6275, 4686, 131847, 338, 2155, 5, false}, // MAGNA-SIRGAS / Yopal urban grid
    {6307, 6783, 184196, 1200, 1768, 4, false}, // NAD83(CORS96) / Puerto Rico and Virgin Is.
    {6311, 1112, 41129, geographic, 1488, 25, false}, // CGRS93
    {6312, 6311, 41136, 339, 1488, 4, false}, // CGRS93 / Cyprus Local Transverse Mercator
    {6316, 3906, 133031, 2182, 503, 4, false}, // MGI 1901 / Balkans zone 7
    {6318, 1116, 159453, geographic, 307, 25, false}, // NAD83(2011)
    {6322, 1117, 213183, geographic, 2156, 25, false}, // NAD83(PA11)
    {6325, 1118, 203612, geographic, 2158, 25, false}, // NAD83(MA11)
    {6328, 6318, 176372, 1368, 1554, 4, false}, // NAD83(2011) / UTM zone 59N
    {6329, 6318, 176425, 1369, 1555, 4, false}, // NAD83(2011) / UTM zone 60N
    {6330, 6318, 176268, 1310, 1556, 4, false}, // NAD83(2011) / UTM zone 1N
    {6331, 6318, 176294, 1311, 1557, 4, false}, // NAD83(2011) / UTM zone 2N
    {6332, 6318, 176320, 1312, 918, 4, false}, // NAD83(2011) / UTM zone 3N
    {6333, 6318, 176346, 1313, 919, 4, false}, // NAD83(2011) / UTM zone 4N
    {6334, 6318, 176399, 1314, 920, 4, false}, // NAD83(2011) / UTM zone 5N
    {6335, 6318, 176452, 1315, 921, 4, false}, // NAD83(2011) / UTM zone 6N
    {6336, 6318, 176478, 1316, 1654, 4, false}, // NAD83(2011) / UTM zone 7N
    {6337, 6318, 176504, 1317, 1655, 4, false}, // NAD83(2011) / UTM zone 8N
    {6338, 6318, 176530, 1318, 1656, 4, false}, // NAD83(2011) / UTM zone 9N
    {6339, 6318, 175998, 1319, 1657, 4, false}, // NAD83(2011) / UTM zone 10N
    {6340, 6318, 176025, 1320, 1658, 4, false}, // NAD83(2011) / UTM zone 11N
    {6341, 6318, 176052, 1321, 1659, 4, false}, // NAD83(2011) / UTM zone 12N
    {6342, 6318, 176079, 1322, 1660, 4, false}, // NAD83(2011) / UTM zone 13N
    {6343, 6318, 176106, 1323, 1661, 4, false}, // NAD83(2011) / UTM zone 14N
    {6344, 6318, 176133, 1324, 1662, 4, false}, // NAD83(2011) / UTM zone 15N
    {6345, 6318, 176160, 1325, 1663, 4, false}, // NAD83(2011) / UTM zone 16N
    {6346, 6318, 176187, 1326, 1664, 4, false}, // NAD83(2011) / UTM zone 17N
    {6347, 6318, 176214, 1327, 1665, 4, false}, // NAD83(2011) / UTM zone 18N
    {6348, 6318, 176241, 1328, 1666, 4, false}, // NAD83(2011) / UTM zone 19N
    {6350, 6318, 160959, 100, 152, 4, false}, // NAD83(2011) / Conus Albers
    {6351, 6318, 161039, 280, 2099, 4, false}, // NAD83(2011) / EPSG Arctic zone 5-29
    {6352, 6318, 161075, 281, 2100, 4, false}, // NAD83(2011) / EPSG Arctic zone 5-31
    {6353, 6318, 161111, 290, 2109, 4, false}, // NAD83(2011) / EPSG Arctic zone 6-14
    {6354, 6318, 161147, 291, 2110, 4, false}, // NAD83(2011) / EPSG Arctic zone 6-16
    {6355, 6318, 159465, 911, 939, 4, false}, // NAD83(2011) / Alabama East
    {6356, 6318, 159526, 912, 940, 4, false}, // NAD83(2011) / Alabama West
    {6362, 4483, 139436, 340, 69, 5, false}, // Mexico ITRF92 / LCC
    {6365, 1120, 139198, geographic, 69, 25, false}, // Mexico ITRF2008
    {6366, 6365, 139236, 1320, 1601, 4, false}, // Mexico ITRF2008 / UTM zone 11N
    {6367, 6365, 139267, 1321, 1602, 4, false}, // Mexico ITRF2008 / UTM zone 12N
    {6368, 6365, 139298, 1322, 1603, 4, false}, // Mexico ITRF2008 / UTM zone 13N
    {6369, 6365, 139329, 1323, 1604, 4, false}, // Mexico ITRF2008 / UTM zone 14N
    {6370, 6365, 139360, 1324, 1767, 4, false}, // Mexico ITRF2008 / UTM zone 15N
    {6371, 6365, 139391, 1325, 1769, 4, false}, // Mexico ITRF2008 / UTM zone 16N
    {6372, 6365, 139214, 340, 69, 5, false}, // Mexico ITRF2008 / LCC
    {6381, 5561, 316404, 341, 1951, 5, false}, // UCS-2000 / Ukraine TM zone 7
    {6382, 5561, 316433, 342, 1952, 5, false}, // UCS-2000 / Ukraine TM zone 8
    {6383, 5561, 316462, 343, 1953, 5, false}, // UCS-2000 / Ukraine TM zone 9
    {6384, 5561, 316284, 344, 1954, 5, false}, // UCS-2000 / Ukraine TM zone 10
    {6385, 5561, 316314, 345, 1955, 5, false}, // UCS-2000 / Ukraine TM zone 11
    {6386, 5561, 316344, 346, 1957, 5, false}, // UCS-2000 / Ukraine TM zone 12
    {6387, 5561, 316374, 347, 1958, 5, false}, // UCS-2000 / Ukraine TM zone 13
    {6391, 6135, 47028, 348, 18, 6, false}, // Cayman Islands National Grid 2011
    {6393, 6318, 159587, 1176, 157, 4, false}, // NAD83(2011) / Alaska Albers
    {6394, 6318, 159615, 1177, 941, 4, false}, // NAD83(2011) / Alaska zone 1
    {6395, 6318, 159672, 1178, 943, 4, false}, // NAD83(2011) / Alaska zone 2
    {6396, 6318, 159700, 1179, 944, 4, false}, // NAD83(2011) / Alaska zone 3
    {6397, 6318, 159728, 1180, 945, 4, false}, // NAD83(2011) / Alaska zone 4
    {6398, 6318, 159756, 1181, 946, 4, false}, // NAD83(2011) / Alaska zone 5
    {6399, 6318, 159784, 1182, 947, 4, false}, // NAD83(2011) / Alaska zone 6
    {6400, 6318, 159812, 1183, 948, 4, false}, // NAD83(2011) / Alaska zone 7
    {6401, 6318, 159840, 1184, 949, 4, false}, // NAD83(2011) / Alaska zone 8
    {6402, 6318, 159868, 1185, 950, 4, false}, // NAD83(2011) / Alaska zone 9
    {6403, 6318, 159643, 1186, 942, 4, false}, // NAD83(2011) / Alaska zone 10
    {6404, 6318, 159930, 919, 951, 4, false}, // NAD83(2011) / Arizona Central
    {6405, 6318, 159960, 1209, 951, 6, false}, // NAD83(2011) / Arizona Central (ft)
    {6406, 6318, 159995, 918, 952, 4, false}, // NAD83(2011) / Arizona East
    {6407, 6318, 160022, 1208, 952, 6, false}, // NAD83(2011) / Arizona East (ft)
    {6408, 6318, 160054, 920, 953, 4, false}, // NAD83(2011) / Arizona West
    {6409, 6318, 160081, 1210, 953, 6, false}, // NAD83(2011) / Arizona West (ft)
    {6410, 6318, 160113, 923, 954, 4, false}, // NAD83(2011) / Arkansas North
    {6411, 6318, 160142, 1289, 954, 8, false}, // NAD83(2011) / Arkansas North (ftUS)
    {6412, 6318, 160178, 924, 955, 4, false}, // NAD83(2011) / Arkansas South
    {6413, 6318, 160207, 1290, 955, 8, false}, // NAD83(2011) / Arkansas South (ftUS)
    {6414, 6318, 160243, 933, 193, 4, false}, // NAD83(2011) / California Albers
    {6415, 6318, 160275, 934, 960, 4, false}, // NAD83(2011) / California zone 1
    {6416, 6318, 160307, 1211, 960, 8, false}, // NAD83(2011) / California zone 1 (ftUS)
    {6417, 6318, 160346, 935, 961, 4, false}, // NAD83(2011) / California zone 2
    {6418, 6318, 160378, 1212, 961, 8, false}, // NAD83(2011) / California zone 2 (ftUS)
    {6419, 6318, 160417, 936, 962, 4, false}, // NAD83(2011) / California zone 3
    {6420, 6318, 160449, 1213, 962, 8, false}, // NAD83(2011) / California zone 3 (ftUS)
    {6421, 6318, 160488, 937, 963, 4, false}, // NAD83(2011) / California zone 4
    {6422, 6318, 160520, 1214, 963, 8, false}, // NAD83(2011) / California zone 4 (ftUS)
    {6423, 6318, 160559, 938, 967, 4, false}, // NAD83(2011) / California zone 5
    {6424, 6318, 160591, 1215, 967, 8, false}, // NAD83(2011) / California zone 5 (ftUS)
    {6425, 6318, 160630, 939, 965, 4, false}, // NAD83(2011) / California zone 6
    {6426, 6318, 160662, 1216, 965, 8, false}, // NAD83(2011) / California zone 6 (ftUS)
    {6427, 6318, 160701, 944, 968, 4, false}, // NAD83(2011) / Colorado Central
    {6428, 6318, 160732, 1218, 968, 8, false}, // NAD83(2011) / Colorado Central (ftUS)
    {6429, 6318, 160770, 943, 969, 4, false}, // NAD83(2011) / Colorado North
    {6430, 6318, 160799, 1217, 969, 8, false}, // NAD83(2011) / Colorado North (ftUS)
    {6431, 6318, 160835, 945, 970, 4, false}, // NAD83(2011) / Colorado South
    {6432, 6318, 160864, 1219, 970, 8, false}, // NAD83(2011) / Colorado South (ftUS)
    {6433, 6318, 160900, 947, 194, 4, false}, // NAD83(2011) / Connecticut
    {6434, 6318, 160926, 1220, 194, 8, false}, // NAD83(2011) / Connecticut (ftUS)
    {6435, 6318, 160986, 949, 195, 4, false}, // NAD83(2011) / Delaware
    {6436, 6318, 161009, 1221, 195, 8, false}, // NAD83(2011) / Delaware (ftUS)
    {6437, 6318, 161183, 953, 971, 4, false}, // NAD83(2011) / Florida East
    {6438, 6318, 161210, 1222, 971, 8, false}, // NAD83(2011) / Florida East (ftUS)
    {6439, 6318, 161244, 956, 196, 4, false}, // NAD83(2011) / Florida GDL Albers
    {6440, 6318, 161277, 955, 972, 4, false}, // NAD83(2011) / Florida North
    {6441, 6318, 161305, 1224, 972, 8, false}, // NAD83(2011) / Florida North (ftUS)
    {6442, 6318, 161340, 954, 973, 4, false}, // NAD83(2011) / Florida West
    {6443, 6318, 161367, 1223, 973, 8, false}, // NAD83(2011) / Florida West (ftUS)
    {6444, 6318, 161401, 959, 974, 4, false}, // NAD83(2011) / Georgia East
    {6445, 6318, 161428, 1225, 974, 8, false}, // NAD83(2011) / Georgia East (ftUS)
    {6446, 6318, 161462, 960, 975, 4, false}, // NAD83(2011) / Georgia West
    {6447, 6318, 161489, 1226, 975, 8, false}, // NAD83(2011) / Georgia West (ftUS)
    {6448, 6318, 161906, 965, 976, 4, false}, // NAD83(2011) / Idaho Central
    {6449, 6318, 161934, 1228, 976, 8, false}, // NAD83(2011) / Idaho Central (ftUS)
    {6450, 6318, 161969, 964, 977, 4, false}, // NAD83(2011) / Idaho East
    {6451, 6318, 161994, 1227, 977, 8, false}, // NAD83(2011) / Idaho East (ftUS)
    {6452, 6318, 162026, 966, 978, 4, false}, // NAD83(2011) / Idaho West
    {6453, 6318, 162051, 1229, 978, 8, false}, // NAD83(2011) / Idaho West (ftUS)
    {6454, 6318, 162083, 969, 979, 4, false}, // NAD83(2011) / Illinois East
    {6455, 6318, 162111, 1291, 979, 8, false}, // NAD83(2011) / Illinois East (ftUS)
    {6456, 6318, 162146, 970, 980, 4, false}, // NAD83(2011) / Illinois West
    {6457, 6318, 162174, 1292, 980, 8, false}, // NAD83(2011) / Illinois West (ftUS)
    {6458, 6318, 166512, 973, 981, 4, false}, // NAD83(2011) / Indiana East
    {6459, 6318, 166539, 1276, 981, 8, false}, // NAD83(2011) / Indiana East (ftUS)
    {6460, 6318, 166573, 974, 982, 4, false}, // NAD83(2011) / Indiana West
    {6461, 6318, 166600, 1277, 982, 8, false}, // NAD83(2011) / Indiana West (ftUS)
    {6462, 6318, 166634, 977, 983, 4, false}, // NAD83(2011) / Iowa North
    {6463, 6318, 166659, 1281, 983, 8, false}, // NAD83(2011) / Iowa North (ftUS)
    {6464, 6318, 166691, 978, 984, 4, false}, // NAD83(2011) / Iowa South
    {6465, 6318, 166716, 1282, 984, 8, false}, // NAD83(2011) / Iowa South (ftUS)
    {6466, 6318, 167376, 981, 985, 4, false}, // NAD83(2011) / Kansas North
    {6467, 6318, 167403, 1283, 985, 8, false}, // NAD83(2011) / Kansas North (ftUS)
    {6468, 6318, 167437, 982, 986, 4, false}, // NAD83(2011) / Kansas South
    {6469, 6318, 167464, 1284, 986, 8, false}, // NAD83(2011) / Kansas South (ftUS)
    {6470, 6318, 167498, 1207, 987, 4, false}, // NAD83(2011) / Kentucky North
    {6471, 6318, 167527, 1232, 987, 8, false}, // NAD83(2011) / Kentucky North (ftUS)
    {6472, 6318, 167563, 985, 199, 4, false}, // NAD83(2011) / Kentucky Single Zone
    {6473, 6318, 167598, 1279, 199, 8, false}, // NAD83(2011) / Kentucky Single Zone (ftUS)
    {6474, 6318, 167640, 987, 988, 4, false}, // NAD83(2011) / Kentucky South
    {6475, 6318, 167669, 1233, 988, 8, false}, // NAD83(2011) / Kentucky South (ftUS)
    {6476, 6318, 167705, 991, 989, 4, false}, // NAD83(2011) / Louisiana North
    {6477, 6318, 167735, 1295, 989, 8, false}, // NAD83(2011) / Louisiana North (ftUS)
    {6478, 6318, 167772, 992, 1085, 4, false}, // NAD83(2011) / Louisiana South
    {6479, 6318, 167802, 1296, 1085, 8, false}, // NAD83(2011) / Louisiana South (ftUS)
    {6480, 6318, 167839, 1003, 1287, 4, false}, // NAD83(2011) / Maine CS2000 Central
    {6481, 6318, 167874, 1000, 1288, 4, false}, // NAD83(2011) / Maine CS2000 East
    {6482, 6318, 167906, 1002, 1286, 4, false}, // NAD83(2011) / Maine CS2000 West
    {6483, 6318, 167938, 996, 991, 4, false}, // NAD83(2011) / Maine East
    {6484, 6318, 167963, 998, 991, 8, false}, // NAD83(2011) / Maine East (ftUS)
    {6485, 6318, 167995, 997, 992, 4, false}, // NAD83(2011) / Maine West
    {6486, 6318, 168020, 999, 992, 8, false}, // NAD83(2011) / Maine West (ftUS)
    {6487, 6318, 168052, 1005, 201, 4, false}, // NAD83(2011) / Maryland
    {6488, 6318, 168075, 1234, 201, 8, false}, // NAD83(2011) / Maryland (ftUS)
    {6489, 6318, 168105, 1009, 993, 4, false}, // NAD83(2011) / Massachusetts Island
    {6490, 6318, 168140, 1236, 993, 8, false}, // NAD83(2011) / Massachusetts Island (ftUS)
    {6491, 6318, 168182, 1008, 994, 4, false}, // NAD83(2011) / Massachusetts Mainland
    {6492, 6318, 168219, 1235, 994, 8, false}, // NAD83(2011) / Massachusetts Mainland (ftUS)
    {6493, 6318, 168263, 1017, 514, 4, false}, // NAD83(2011) / Michigan Central
    {6494, 6318, 168294, 1238, 514, 6, false}, // NAD83(2011) / Michigan Central (ft)
    {6495, 6318, 168330, 1016, 513, 4, false}, // NAD83(2011) / Michigan North
    {6496, 6318, 168359, 1237, 513, 6, false}, // NAD83(2011) / Michigan North (ft)
    {6497, 6318, 168393, 1019, 202, 4, false}, // NAD83(2011) / Michigan Oblique Mercator
    {6498, 6318, 168433, 1018, 515, 4, false}, // NAD83(2011) / Michigan South
    {6499, 6318, 168462, 1239, 515, 6, false}, // NAD83(2011) / Michigan South (ft)
    {6500, 6318, 168496, 1024, 998, 4, false}, // NAD83(2011) / Minnesota Central
    {6501, 6318, 168528, 1027, 998, 8, false}, // NAD83(2011) / Minnesota Central (ftUS)
    {6502, 6318, 168567, 1023, 999, 4, false}, // NAD83(2011) / Minnesota North
    {6503, 6318, 168597, 1026, 999, 8, false}, // NAD83(2011) / Minnesota North (ftUS)
    {6504, 6318, 168634, 1025, 1000, 4, false}, // NAD83(2011) / Minnesota South
    {6505, 6318, 168664, 1028, 1000, 8, false}, // NAD83(2011) / Minnesota South (ftUS)
    {6506, 6318, 168701, 1031, 1001, 4, false}, // NAD83(2011) / Mississippi East
    {6507, 6318, 168732, 1240, 1001, 8, false}, // NAD83(2011) / Mississippi East (ftUS)
    {6508, 6318, 168770, 1, 203, 4, false}, // NAD83(2011) / Mississippi TM
    {6509, 6318, 168799, 1032, 1002, 4, false}, // NAD83(2011) / Mississippi West
    {6510, 6318, 168830, 1241, 1002, 8, false}, // NAD83(2011) / Mississippi West (ftUS)
    {6511, 6318, 168868, 1037, 1003, 4, false}, // NAD83(2011) / Missouri Central
    {6512, 6318, 168899, 1036, 1004, 4, false}, // NAD83(2011) / Missouri East
    {6513, 6318, 168927, 1038, 1005, 4, false}, // NAD83(2011) / Missouri West
    {6514, 6318, 168955, 1042, 204, 4, false}, // NAD83(2011) / Montana
    {6515, 6318, 168977, 1242, 204, 6, false}, // NAD83(2011) / Montana (ft)
    {6516, 6318, 169152, 1045, 205, 4, false}, // NAD83(2011) / Nebraska
    {6517, 4759, 169175, 1300, 205, 8, true}, // NAD83(2011) / Nebraska (ftUS)
    {6518, 6318, 169205, 1050, 1008, 4, false}, // NAD83(2011) / Nevada Central
    {6519, 6318, 169234, 1286, 1008, 8, false}, // NAD83(2011) / Nevada Central (ftUS)
    {6520, 6318, 169270, 1049, 1009, 4, false}, // NAD83(2011) / Nevada East
    {6521, 6318, 169296, 1285, 1009, 8, false}, // NAD83(2011) / Nevada East (ftUS)
    {6522, 6318, 169329, 1051, 1010, 4, false}, // NAD83(2011) / Nevada West
    {6523, 6318, 169355, 1287, 1010, 8, false}, // NAD83(2011) / Nevada West (ftUS)
    {6524, 6318, 169388, 1053, 206, 4, false}, // NAD83(2011) / New Hampshire
    {6525, 6318, 169416, 1293, 206, 8, false}, // NAD83(2011) / New Hampshire (ftUS)
    {6526, 6318, 169451, 1055, 207, 4, false}, // NAD83(2011) / New Jersey
    {6527, 6318, 169476, 1288, 207, 8, false}, // NAD83(2011) / New Jersey (ftUS)
    {6528, 6318, 169508, 1060, 1016, 4, false}, // NAD83(2011) / New Mexico Central
    {6529, 6318, 169541, 1244, 1016, 8, false}, // NAD83(2011) / New Mexico Central (ftUS)
    {6530, 6318, 169581, 1059, 1013, 4, false}, // NAD83(2011) / New Mexico East
    {6531, 6318, 169611, 1243, 1013, 8, false}, // NAD83(2011) / New Mexico East (ftUS)
    {6532, 6318, 169648, 1061, 1017, 4, false}, // NAD83(2011) / New Mexico West
    {6533, 6318, 169678, 1245, 1017, 8, false}, // NAD83(2011) / New Mexico West (ftUS)
    {6534, 6318, 169715, 1067, 1018, 4, false}, // NAD83(2011) / New York Central
    {6535, 6318, 169746, 1247, 1018, 8, false}, // NAD83(2011) / New York Central (ftUS)
    {6536, 6318, 169784, 1066, 1019, 4, false}, // NAD83(2011) / New York East
    {6537, 6318, 169812, 1246, 1019, 8, false}, // NAD83(2011) / New York East (ftUS)
    {6538, 6318, 169847, 1069, 1020, 4, false}, // NAD83(2011) / New York Long Island
    {6539, 6318, 169882, 1249, 1020, 8, false}, // NAD83(2011) / New York Long Island (ftUS)
    {6540, 6318, 169924, 1068, 1021, 4, false}, // NAD83(2011) / New York West
    {6541, 6318, 169952, 1248, 1021, 8, false}, // NAD83(2011) / New York West (ftUS)
    {6542, 6318, 169987, 1071, 208, 4, false}, // NAD83(2011) / North Carolina
    {6543, 6318, 170016, 1250, 208, 8, false}, // NAD83(2011) / North Carolina (ftUS)
    {6544, 6318, 170052, 1074, 1022, 4, false}, // NAD83(2011) / North Dakota North
    {6545, 6318, 170085, 1251, 1022, 6, false}, // NAD83(2011) / North Dakota North (ft)
    {6546, 6318, 170123, 1075, 1023, 4, false}, // NAD83(2011) / North Dakota South
    {6547, 6318, 170156, 1252, 1023, 6, false}, // NAD83(2011) / North Dakota South (ft)
    {6548, 6318, 170194, 1078, 1024, 4, false}, // NAD83(2011) / Ohio North
    {6549, 6318, 170219, 1080, 1024, 8, false}, // NAD83(2011) / Ohio North (ftUS)
    {6550, 6318, 170251, 1079, 1025, 4, false}, // NAD83(2011) / Ohio South
    {6551, 6318, 170276, 1081, 1025, 8, false}, // NAD83(2011) / Ohio South (ftUS)
    {6552, 6318, 170308, 1084, 1026, 4, false}, // NAD83(2011) / Oklahoma North
    {6553, 6318, 170337, 1253, 1026, 8, false}, // NAD83(2011) / Oklahoma North (ftUS)
    {6554, 6318, 170373, 1085, 1027, 4, false}, // NAD83(2011) / Oklahoma South
    {6555, 6318, 170402, 1254, 1027, 8, false}, // NAD83(2011) / Oklahoma South (ftUS)
    {6556, 6318, 172251, 1090, 209, 4, false}, // NAD83(2011) / Oregon LCC (m)
    {6557, 6318, 171932, 1278, 209, 6, false}, // NAD83(2011) / Oregon GIC Lambert (ft)
    {6558, 6318, 172543, 1088, 1028, 4, false}, // NAD83(2011) / Oregon North
    {6559, 6318, 172570, 1255, 1028, 6, false}, // NAD83(2011) / Oregon North (ft)
    {6560, 6318, 173729, 1089, 1029, 4, false}, // NAD83(2011) / Oregon South
    {6561, 6318, 173756, 1256, 1029, 6, false}, // NAD83(2011) / Oregon South (ft)
    {6562, 6318, 174254, 1093, 1030, 4, false}, // NAD83(2011) / Pennsylvania North
    {6563, 6318, 174287, 1257, 1030, 8, false}, // NAD83(2011) / Pennsylvania North (ftUS)
    {6564, 6318, 174327, 1094, 1031, 4, false}, // NAD83(2011) / Pennsylvania South
    {6565, 6318, 174360, 1258, 1031, 8, false}, // NAD83(2011) / Pennsylvania South (ftUS)
    {6566, 6318, 174400, 1200, 1768, 4, false}, // NAD83(2011) / Puerto Rico and Virgin Is.
    {6567, 6318, 175177, 1096, 210, 4, false}, // NAD83(2011) / Rhode Island
    {6568, 6318, 175204, 1294, 210, 8, false}, // NAD83(2011) / Rhode Island (ftUS)
    {6569, 6318, 175311, 1099, 211, 4, false}, // NAD83(2011) / South Carolina
    {6570, 6318, 175340, 1259, 211, 6, false}, // NAD83(2011) / South Carolina (ft)
    {6571, 6318, 175374, 1102, 1034, 4, false}, // NAD83(2011) / South Dakota North
    {6572, 6318, 175407, 1298, 1034, 8, false}, // NAD83(2011) / South Dakota North (ftUS)
    {6573, 6318, 175447, 1103, 1035, 4, false}, // NAD83(2011) / South Dakota South
    {6574, 6318, 175480, 1299, 1035, 8, false}, // NAD83(2011) / South Dakota South (ftUS)
    {6575, 6318, 175520, 1105, 212, 4, false}, // NAD83(2011) / Tennessee
    {6576, 6318, 175544, 1260, 212, 8, false}, // NAD83(2011) / Tennessee (ftUS)
    {6577, 6318, 175575, 1113, 1037, 4, false}, // NAD83(2011) / Texas Central
    {6578, 6318, 175603, 1263, 1037, 8, false}, // NAD83(2011) / Texas Central (ftUS)
    {6579, 6318, 175638, 1119, 213, 4, false}, // NAD83(2011) / Texas Centric Albers Equal Area
    {6580, 6318, 175684, 1118, 213, 4, false}, // NAD83(2011) / Texas Centric Lambert Conformal
    {6581, 6318, 175730, 1111, 1038, 4, false}, // NAD83(2011) / Texas North
    {6582, 6318, 175756, 1261, 1038, 8, false}, // NAD83(2011) / Texas North (ftUS)
    {6583, 6318, 175789, 1112, 1039, 4, false}, // NAD83(2011) / Texas North Central
    {6584, 6318, 175823, 1262, 1039, 8, false}, // NAD83(2011) / Texas North Central (ftUS)
    {6585, 6318, 175864, 1115, 1084, 4, false}, // NAD83(2011) / Texas South
    {6586, 6318, 175890, 1265, 1084, 8, false}, // NAD83(2011) / Texas South (ftUS)
    {6587, 6318, 175923, 1114, 1083, 4, false}, // NAD83(2011) / Texas South Central
    {6588, 6318, 175957, 1264, 1083, 8, false}, // NAD83(2011) / Texas South Central (ftUS)
    {6589, 6318, 176731, 1127, 214, 4, false}, // NAD83(2011) / Vermont
    {6590, 6318, 176753, 195, 214, 8, false}, // NAD83(2011) / Vermont (ftUS)
    {6591, 6318, 176782, 23, 215, 4, false}, // NAD83(2011) / Virginia Lambert
    {6592, 6318, 176813, 1130, 1045, 4, false}, // NAD83(2011) / Virginia North
    {6593, 6318, 176842, 1269, 1045, 8, false}, // NAD83(2011) / Virginia North (ftUS)
    {6594, 6318, 176878, 1131, 1046, 4, false}, // NAD83(2011) / Virginia South
    {6595, 6318, 176907, 1270, 1046, 8, false}, // NAD83(2011) / Virginia South (ftUS)
    {6596, 6318, 181286, 1134, 1058, 4, false}, // NAD83(2011) / Washington North
    {6597, 6318, 181317, 1271, 1058, 8, false}, // NAD83(2011) / Washington North (ftUS)
    {6598, 6318, 181355, 1135, 1059, 4, false}, // NAD83(2011) / Washington South
    {6599, 6318, 181386, 1272, 1059, 8, false}, // NAD83(2011) / Washington South (ftUS)
    {6600, 6318, 181424, 1138, 1049, 4, false}, // NAD83(2011) / West Virginia North
    {6601, 6318, 181458, 1142, 1049, 8, false}, // NAD83(2011) / West Virginia North (ftUS)
    {6602, 6318, 181499, 1139, 1050, 4, false}, // NAD83(2011) / West Virginia South
    {6603, 6318, 181533, 1143, 1050, 8, false}, // NAD83(2011) / West Virginia South (ftUS)
    {6604, 4759, 181574, 1149, 1051, 4, true}, // NAD83(2011) / Wisconsin Central
    {6605, 6318, 181606, 1274, 1051, 8, false}, // NAD83(2011) / Wisconsin Central (ftUS)
    {6606, 6318, 181645, 1148, 1052, 4, false}, // NAD83(2011) / Wisconsin North
    {6607, 6318, 181675, 1273, 1052, 8, false}, // NAD83(2011) / Wisconsin North (ftUS)
    {6608, 6318, 181712, 1150, 1053, 4, false}, // NAD83(2011) / Wisconsin South
    {6609, 6318, 181742, 1275, 1053, 8, false}, // NAD83(2011) / Wisconsin South (ftUS)
    {6610, 6318, 181779, 1151, 216, 4, false}, // NAD83(2011) / Wisconsin Transverse Mercator
    {6611, 6318, 181823, 1157, 1054, 4, false}, // NAD83(2011) / Wyoming East
    {6612, 6318, 181850, 1161, 1054, 8, false}, // NAD83(2011) / Wyoming East (ftUS)
    {6613, 6318, 181884, 1158, 1055, 4, false}, // NAD83(2011) / Wyoming East Central
    {6614, 6318, 181919, 1162, 1055, 8, false}, // NAD83(2011) / Wyoming East Central (ftUS)
    {6615, 6318, 181961, 1160, 1056, 4, false}, // NAD83(2011) / Wyoming West
    {6616, 6318, 181988, 1164, 1056, 8, false}, // NAD83(2011) / Wyoming West (ftUS)
    {6617, 6318, 182022, 1159, 1057, 4, false}, // NAD83(2011) / Wyoming West Central
    {6618, 6318, 182057, 1163, 1057, 8, false}, // NAD83(2011) / Wyoming West Central (ftUS)
    {6619, 6318, 176556, 1124, 1042, 4, false}, // NAD83(2011) / Utah Central
    {6620, 6318, 176617, 1123, 1043, 4, false}, // NAD83(2011) / Utah North
    {6621, 6318, 176674, 1125, 1044, 4, false}, // NAD83(2011) / Utah South
    {6622, 4617, 185823, 2333, 191, 4, false}, // NAD83(CSRS) / Quebec Lambert
    {6623, 4269, 156861, 349, 191, 4, false}, // NAD83 / Quebec Albers
    {6624, 4617, 185795, 349, 191, 4, false}, // NAD83(CSRS) / Quebec Albers
    {6625, 6318, 176583, 1202, 1042, 8, false}, // NAD83(2011) / Utah Central (ftUS)
    {6626, 6318, 176642, 1201, 1043, 8, false}, // NAD83(2011) / Utah North (ftUS)
    {6627, 6318, 176699, 1203, 1044, 8, false}, // NAD83(2011) / Utah South (ftUS)
    {6628, 6322, 213195, 1192, 341, 4, false}, // NAD83(PA11) / Hawaii zone 1
    {6629, 6322, 213223, 1193, 342, 4, false}, // NAD83(PA11) / Hawaii zone 2
    {6630, 6322, 213251, 1194, 343, 4, false}, // NAD83(PA11) / Hawaii zone 3
    {6631, 6322, 213314, 1195, 344, 4, false}, // NAD83(PA11) / Hawaii zone 4
    {6632, 6322, 213342, 1196, 345, 4, false}, // NAD83(PA11) / Hawaii zone 5
    {6633, 6322, 213279, 1197, 343, 8, false}, // NAD83(PA11) / Hawaii zone 3 (ftUS)
    {6634, 6322, 213396, 1313, 1650, 4, false}, // NAD83(PA11) / UTM zone 4N
    {6635, 6322, 213422, 1314, 1652, 4, false}, // NAD83(PA11) / UTM zone 5N
    {6636, 6322, 213370, 1400, 1410, 4, false}, // NAD83(PA11) / UTM zone 2S
    {6637, 6325, 203624, 63, 1499, 4, false}, // NAD83(MA11) / Guam Map Grid
    {6646, 4743, 119989, 2300, 1759, 4, false}, // Karbala 1979 / Iraq National Grid
    {6668, 1128, 113960, geographic, 52, 25, false}, // JGD2011
    {6669, 6668, 113985, 1947, 639, 5, false}, // JGD2011 / Japan Plane Rectangular CS I
    {6670, 6668, 114024, 1948, 640, 5, false}, // JGD2011 / Japan Plane Rectangular CS II
    {6671, 6668, 114064, 1949, 641, 5, false}, // JGD2011 / Japan Plane Rectangular CS III
    {6672, 6668, 114105, 1950, 642, 5, false}, // JGD2011 / Japan Plane Rectangular CS IV
    {6673, 6668, 114185, 1951, 643, 5, false}, // JGD2011 / Japan Plane Rectangular CS V
    {6674, 6668, 114224, 1952, 644, 5, false}, // JGD2011 / Japan Plane Rectangular CS VI
    {6675, 6668, 114264, 1953, 645, 5, false}, // JGD2011 / Japan Plane Rectangular CS VII
    {6676, 6668, 114305, 1954, 646, 5, false}, // JGD2011 / Japan Plane Rectangular CS VIII
    {6677, 6668, 114145, 1955, 647, 5, false}, // JGD2011 / Japan Plane Rectangular CS IX
    {6678, 6668, 114347, 1956, 648, 5, false}, // JGD2011 / Japan Plane Rectangular CS X
    {6679, 6668, 114386, 1957, 649, 5, false}, // JGD2011 / Japan Plane Rectangular CS XI
    {6680, 6668, 114426, 1958, 650, 5, false}, // JGD2011 / Japan Plane Rectangular CS XII
    {6681, 6668, 114467, 1959, 651, 5, false}, // JGD2011 / Japan Plane Rectangular CS XIII
    {6682, 6668, 114509, 1960, 652, 5, false}, // JGD2011 / Japan Plane Rectangular CS XIV
    {6683, 6668, 114591, 1961, 653, 5, false}, // JGD2011 / Japan Plane Rectangular CS XV
    {6684, 6668, 114631, 1962, 654, 5, false}, // JGD2011 / Japan Plane Rectangular CS XVI
    {6685, 6668, 114672, 1963, 655, 5, false}, // JGD2011 / Japan Plane Rectangular CS XVII
    {6686, 6668, 114714, 1964, 656, 5, false}, // JGD2011 / Japan Plane Rectangular CS XVIII
    {6687, 6668, 114550, 1965, 657, 5, false}, // JGD2011 / Japan Plane Rectangular CS XIX
    {6688, 6668, 114757, 1360, 1981, 4, false}, // JGD2011 / UTM zone 51N
    {6689, 6668, 114780, 1361, 1982, 4, false}, // JGD2011 / UTM zone 52N
    {6690, 6668, 114803, 1362, 1983, 4, false}, // JGD2011 / UTM zone 53N
    {6691, 6668, 114826, 1363, 1984, 4, false}, // JGD2011 / UTM zone 54N
    {6692, 6668, 114849, 1364, 1985, 4, false}, // JGD2011 / UTM zone 55N
    {6703, 4326, 348953, 350, 2160, 4, false}, // WGS 84 / TM 60 SW
    {6706, 1132, 269895, geographic, 1541, 25, false}, // RDN2008
    {6707, 6706, 269980, 1341, 509, 5, false}, // RDN2008 / UTM zone 32N (N-E)
    {6708, 6706, 270032, 1342, 2173, 5, false}, // RDN2008 / UTM zone 33N (N-E)
    {6709, 6706, 270084, 1343, 2174, 5, false}, // RDN2008 / UTM zone 34N (N-E)
    {6720, 4326, 343474, 351, 2159, 4, false}, // WGS 84 / CIG92
    {6721, 4283, 82432, 352, 2159, 4, false}, // GDA94 / CIG94
    {6722, 4326, 343489, 353, 21, 4, false}, // WGS 84 / CKIG92
    {6723, 4283, 82446, 354, 21, 4, false}, // GDA94 / CKIG94
    {6732, 4283, 82498, 355, 2161, 4, true}, // GDA94 / MGA zone 41
    {6733, 4283, 82518, 356, 2168, 4, true}, // GDA94 / MGA zone 42
    {6734, 4283, 82538, 357, 2171, 4, true}, // GDA94 / MGA zone 43
    {6735, 4283, 82558, 358, 2172, 4, true}, // GDA94 / MGA zone 44
    {6736, 4283, 82578, 359, 2175, 4, false}, // GDA94 / MGA zone 46
    {6737, 4283, 82598, 360, 2176, 4, false}, // GDA94 / MGA zone 47
    {6738, 4283, 82838, 361, 2166, 4, false}, // GDA94 / MGA zone 59
    {6783, 1133, 182099, geographic, 307, 25, false}, // NAD83(CORS96)
    {6784, 6783, 182152, 362, 2167, 4, false}, // NAD83(CORS96) / Oregon Baker zone (m)
    {6785, 6783, 182113, 363, 2167, 6, false}, // NAD83(CORS96) / Oregon Baker zone (ft)
    {6786, 6318, 170475, 362, 2167, 4, false}, // NAD83(2011) / Oregon Baker zone (m)
    {6787, 6318, 170438, 363, 2167, 6, false}, // NAD83(2011) / Oregon Baker zone (ft)
    {6788, 6783, 182329, 364, 2178, 4, false}, // NAD83(CORS96) / Oregon Bend-Klamath Falls zone (m)
    {6789, 6783, 182277, 365, 2178, 6, false}, // NAD83(CORS96) / Oregon Bend-Klamath Falls zone (ft)
    {6790, 6318, 170644, 364, 2178, 4, false}, // NAD83(2011) / Oregon Bend-Klamath Falls zone (m)
    {6791, 6318, 170594, 365, 2178, 6, false}, // NAD83(2011) / Oregon Bend-Klamath Falls zone (ft)
    {6792, 6783, 182437, 366, 2180, 4, false}, // NAD83(CORS96) / Oregon Bend-Redmond-Prineville zone (m)
    {6793, 6783, 182380, 367, 2180, 6, false}, // NAD83(CORS96) / Oregon Bend-Redmond-Prineville zone (ft)
    {6794, 6318, 170748, 366, 2180, 4, false}, // NAD83(2011) / Oregon Bend-Redmond-Prineville zone (m)
    {6795, 6318, 170693, 367, 2180, 6, false}, // NAD83(2011) / Oregon Bend-Redmond-Prineville zone (ft)
    {6796, 6783, 182234, 368, 2169, 4, false}, // NAD83(CORS96) / Oregon Bend-Burns zone (m)
    {6797, 6783, 182190, 369, 2169, 6, false}, // NAD83(CORS96) / Oregon Bend-Burns zone (ft)
    {6798, 6318, 170553, 368, 2169, 4, false}, // NAD83(2011) / Oregon Bend-Burns zone (m)
    {6799, 6318, 170511, 369, 2169, 6, false}, // NAD83(2011) / Oregon Bend-Burns zone (ft)
    {6800, 6783, 182550, 370, 2184, 4, false}, // NAD83(CORS96) / Oregon Canyonville-Grants Pass zone (m)
    {6801, 6783, 182493, 371, 2184, 6, false}, // NAD83(CORS96) / Oregon Canyonville-Grants Pass zone (ft)
    {6802, 6318, 171041, 370, 2184, 4, false}, // NAD83(2011) / Oregon Canyonville-Grants Pass zone (m)
    {6803, 6318, 170986, 371, 2184, 6, false}, // NAD83(2011) / Oregon Canyonville-Grants Pass zone (ft)
    {6804, 6783, 182736, 372, 2185, 4, false}, // NAD83(CORS96) / Oregon Columbia River East zone (m)
    {6805, 6783, 182683, 373, 2185, 6, false}, // NAD83(CORS96) / Oregon Columbia River East zone (ft)
    {6806, 6318, 171316, 372, 2185, 4, false}, // NAD83(2011) / Oregon Columbia River East zone (m)
    {6807, 6318, 171265, 373, 2185, 6, false}, // NAD83(2011) / Oregon Columbia River East zone (ft)
    {6808, 6783, 182841, 374, 2187, 4, false}, // NAD83(CORS96) / Oregon Columbia River West zone (m)
    {6809, 6783, 182788, 375, 2187, 6, false}, // NAD83(CORS96) / Oregon Columbia River West zone (ft)
    {6810, 6318, 171417, 374, 2187, 4, false}, // NAD83(2011) / Oregon Columbia River West zone (m)
    {6811, 6318, 171366, 375, 2187, 6, false}, // NAD83(2011) / Oregon Columbia River West zone (ft)
    {6812, 6783, 182952, 376, 2188, 4, false}, // NAD83(CORS96) / Oregon Cottage Grove-Canyonville zone (m)
    {6813, 6783, 182893, 377, 2188, 6, false}, // NAD83(CORS96) / Oregon Cottage Grove-Canyonville zone (ft)
    {6814, 6318, 171524, 376, 2188, 4, false}, // NAD83(2011) / Oregon Cottage Grove-Canyonville zone (m)
    {6815, 6318, 171467, 377, 2188, 6, false}, // NAD83(2011) / Oregon Cottage Grove-Canyonville zone (ft)
    {6816, 6783, 183056, 378, 2189, 4, false}, // NAD83(CORS96) / Oregon Dufur-Madras zone (m)
    {6817, 6783, 183010, 379, 2189, 6, false}, // NAD83(CORS96) / Oregon Dufur-Madras zone (ft)
    {6818, 6318, 171814, 378, 2189, 4, false}, // NAD83(2011) / Oregon Dufur-Madras zone (m)
    {6819, 6318, 171770, 379, 2189, 6, false}, // NAD83(2011) / Oregon Dufur-Madras zone (ft)
    {6820, 6783, 183141, 380, 2182, 4, false}, // NAD83(CORS96) / Oregon Eugene zone (m)
    {6821, 6783, 183101, 381, 2182, 6, false}, // NAD83(CORS96) / Oregon Eugene zone (ft)
    {6822, 6318, 171895, 380, 2182, 4, false}, // NAD83(2011) / Oregon Eugene zone (m)
    {6823, 6318, 171857, 381, 2182, 6, false}, // NAD83(2011) / Oregon Eugene zone (ft)
    {6824, 6783, 183273, 382, 2183, 4, false}, // NAD83(CORS96) / Oregon Grants Pass-Ashland zone (m)
    {6825, 6783, 183220, 383, 2183, 6, false}, // NAD83(CORS96) / Oregon Grants Pass-Ashland zone (ft)
    {6826, 6318, 172021, 382, 2183, 4, false}, // NAD83(2011) / Oregon Grants Pass-Ashland zone (m)
    {6827, 6318, 171970, 383, 2183, 6, false}, // NAD83(2011) / Oregon Grants Pass-Ashland zone (ft)
    {6828, 6783, 183379, 384, 2186, 4, false}, // NAD83(CORS96) / Oregon Gresham-Warm Springs zone (m)
    {6829, 6783, 183325, 385, 2186, 6, false}, // NAD83(CORS96) / Oregon Gresham-Warm Springs zone (ft)
    {6830, 6318, 172123, 384, 2186, 4, false}, // NAD83(2011) / Oregon Gresham-Warm Springs zone (m)
    {6831, 6318, 172071, 385, 2186, 6, false}, // NAD83(2011) / Oregon Gresham-Warm Springs zone (ft)
    {6832, 6783, 183506, 386, 2190, 4, false}, // NAD83(CORS96) / Oregon La Grande zone (m)
    {6833, 6783, 183463, 387, 2190, 6, false}, // NAD83(CORS96) / Oregon La Grande zone (ft)
    {6834, 6318, 172321, 386, 2190, 4, false}, // NAD83(2011) / Oregon La Grande zone (m)
    {6835, 6318, 172280, 387, 2190, 6, false}, // NAD83(2011) / Oregon La Grande zone (ft)
    {6836, 6783, 183652, 388, 2191, 4, false}, // NAD83(CORS96) / Oregon Ontario zone (m)
    {6837, 6783, 183611, 389, 2191, 6, false}, // NAD83(CORS96) / Oregon Ontario zone (ft)
    {6838, 6318, 172819, 388, 2191, 4, false}, // NAD83(2011) / Oregon Ontario zone (m)
    {6839, 6318, 172780, 389, 2191, 6, false}, // NAD83(2011) / Oregon Ontario zone (ft)
    {6840, 6783, 182645, 390, 2192, 4, false}, // NAD83(CORS96) / Oregon Coast zone (m)
    {6841, 6783, 182606, 391, 2192, 6, false}, // NAD83(CORS96) / Oregon Coast zone (ft)
    {6842, 6318, 171229, 390, 2192, 4, false}, // NAD83(2011) / Oregon Coast zone (m)
    {6843, 6318, 171192, 391, 2192, 6, false}, // NAD83(2011) / Oregon Coast zone (ft)
    {6844, 6783, 183735, 392, 2193, 4, false}, // NAD83(CORS96) / Oregon Pendleton zone (m)
    {6845, 6783, 183692, 393, 2193, 6, false}, // NAD83(CORS96) / Oregon Pendleton zone (ft)
    {6846, 6318, 172973, 392, 2193, 4, false}, // NAD83(2011) / Oregon Pendleton zone (m)
    {6847, 6318, 172932, 393, 2193, 6, false}, // NAD83(2011) / Oregon Pendleton zone (ft)
    {6848, 6783, 183830, 394, 2194, 4, false}, // NAD83(CORS96) / Oregon Pendleton-La Grande zone (m)
    {6849, 6783, 183777, 395, 2194, 6, false}, // NAD83(CORS96) / Oregon Pendleton-La Grande zone (ft)
    {6850, 6318, 173064, 394, 2194, 4, false}, // NAD83(2011) / Oregon Pendleton-La Grande zone (m)
    {6851, 6318, 173013, 395, 2194, 6, false}, // NAD83(2011) / Oregon Pendleton-La Grande zone (ft)
    {6852, 6783, 183924, 396, 2195, 4, false}, // NAD83(CORS96) / Oregon Portland zone (m)
    {6853, 6783, 183882, 397, 2195, 6, false}, // NAD83(CORS96) / Oregon Portland zone (ft)
    {6854, 6318, 173249, 396, 2195, 4, false}, // NAD83(2011) / Oregon Portland zone (m)
    {6855, 6318, 173209, 397, 2195, 6, false}, // NAD83(2011) / Oregon Portland zone (ft)
    {6856, 6783, 184004, 398, 2196, 4, false}, // NAD83(CORS96) / Oregon Salem zone (m)
    {6857, 6783, 183965, 399, 2196, 6, false}, // NAD83(CORS96) / Oregon Salem zone (ft)
    {6858, 6318, 173517, 398, 2196, 4, false}, // NAD83(2011) / Oregon Salem zone (m)
    {6859, 6318, 173480, 399, 2196, 6, false}, // NAD83(2011) / Oregon Salem zone (ft)
    {6860, 6783, 184088, 400, 2197, 4, false}, // NAD83(CORS96) / Oregon Santiam Pass zone (m)
    {6861, 6783, 184042, 401, 2197, 6, false}, // NAD83(CORS96) / Oregon Santiam Pass zone (ft)
    {6862, 6318, 173597, 400, 2197, 4, false}, // NAD83(2011) / Oregon Santiam Pass zone (m)
    {6863, 6318, 173553, 401, 2197, 6, false}, // NAD83(2011) / Oregon Santiam Pass zone (ft)
    {6867, 6783, 183432, 1090, 209, 4, false}, // NAD83(CORS96) / Oregon LCC (m)
    {6868, 6783, 183180, 1278, 209, 6, false}, // NAD83(CORS96) / Oregon GIC Lambert (ft)
    {6870, 4258, 65698, 402, 1477, 5, false}, // ETRS89 / Albania TM 2010
    {6875, 6706, 269930, 403, 50, 5, false}, // RDN2008 / Italy zone (N-E)
    {6876, 6706, 270137, 404, 50, 5, false}, // RDN2008 / Zone 12 (N-E)
    {6879, 6318, 181574, 1149, 1051, 4, false}, // NAD83(2011) / Wisconsin Central
    {6880, 6318, 169175, 1300, 205, 8, false}, // NAD83(2011) / Nebraska (ftUS)
    {6881, 1135, 5800, geographic, 167, 25, false}, // Aden 1925
    {6882, 1137, 33966, geographic, 1505, 25, false}, // Bekaa Valley 1920
    {6883, 1136, 69802, geographic, 2202, 25, false}, // Bioko
    {6884, 6783, 183548, 1088, 1028, 4, false}, // NAD83(CORS96) / Oregon North
    {6885, 6783, 183577, 1255, 1028, 6, false}, // NAD83(CORS96) / Oregon North (ft)
    {6886, 6783, 184133, 1089, 1029, 4, false}, // NAD83(CORS96) / Oregon South
    {6887, 6783, 184162, 1256, 1029, 6, false}, // NAD83(CORS96) / Oregon South (ft)
    {6892, 1138, 304118, geographic, 2170, 25, false}, // South East Island 1943
    {6894, 1139, 93490, geographic, 1496, 25, false}, // Gambia
    {6915, 6892, 304141, 1349, 2170, 4, false}, // South East Island 1943 / UTM zone 40N
    {6922, 4269, 153554, 405, 198, 4, false}, // NAD83 / Kansas LCC
    {6923, 4269, 153573, 406, 198, 8, false}, // NAD83 / Kansas LCC (ftUS)
    {6924, 6318, 167319, 405, 198, 4, false}, // NAD83(2011) / Kansas LCC
    {6925, 6318, 167344, 406, 198, 8, false}, // NAD83(2011) / Kansas LCC (ftUS)
    {6931, 4326, 345877, 408, 1645, 4, false}, // WGS 84 / NSIDC EASE-Grid 2.0 North
    {6932, 4326, 345912, 409, 1644, 4, false}, // WGS 84 / NSIDC EASE-Grid 2.0 South
    {6933, 4326, 345841, 407, 1638, 4, false}, // WGS 84 / NSIDC EASE-Grid 2.0 Global
    {6956, 4756, 334208, 410, 2179, 4, true}, // VN-2000 / TM-3 zone 481
    {6957, 4756, 334232, 411, 2198, 4, true}, // VN-2000 / TM-3 zone 482
    {6958, 4756, 334256, 412, 2199, 4, true}, // VN-2000 / TM-3 zone 491
    {6959, 4756, 334180, 413, 2200, 4, true}, // VN-2000 / TM-3 Da Nang zone
    {6962, 4258, 65672, 414, 1477, 5, false}, // ETRS89 / Albania LCC 2010
    {6966, 4267, 147119, 415, 513, 8, false}, // NAD27 / Michigan North
    {6980, 1143, 102350, geographic, 49, 25, true}, // IGD05
    {6983, 1142, 101513, geographic, 1111, 25, false}, // IG05 Intermediate CRS
    {6984, 6983, 112344, 2144, 1111, 4, false}, // Israeli Grid 05
    {6987, 1145, 102368, geographic, 49, 25, true}, // IGD05/12
    {6990, 1144, 101625, geographic, 1111, 25, false}, // IG05/12 Intermediate CRS
    {6991, 6990, 112360, 2144, 1111, 4, false}, // Israeli Grid 05/12
    {6996, 6318, 175238, 416, 2204, 4, true}, // NAD83(2011) / San Francisco CS13
    {6997, 6318, 175271, 417, 2204, 8, true}, // NAD83(2011) / San Francisco CS13 (ftUS)
    {7005, 4744, 218341, 1346, 1569, 4, false}, // Nahrwan 1934 / UTM zone 37N
    {7006, 4744, 218369, 1347, 1570, 4, false}, // Nahrwan 1934 / UTM zone 38N
    {7007, 4744, 218397, 1348, 1979, 4, false}, // Nahrwan 1934 / UTM zone 39N
    {7035, 1038, 272843, geographic, 94, 24, false}, // RGSPM06 (lon-lat)
    {7037, 6627, 272202, geographic, 1948, 24, false}, // RGR92 (lon-lat)
    {7039, 1036, 271659, geographic, 68, 24, false}, // RGM04 (lon-lat)
    {7041, 6624, 271489, geographic, 37, 24, false}, // RGFG95 (lon-lat)
    {7057, 6318, 161523, 418, 2157, 8, false}, // NAD83(2011) / IaRCS zone 1
    {7058, 6318, 161690, 419, 2201, 8, false}, // NAD83(2011) / IaRCS zone 2
    {7059, 6318, 161717, 420, 2205, 8, false}, // NAD83(2011) / IaRCS zone 3
    {7060, 6318, 161744, 421, 2206, 8, false}, // NAD83(2011) / IaRCS zone 4
    {7061, 6318, 161771, 422, 2207, 8, false}, // NAD83(2011) / IaRCS zone 5
    {7062, 6318, 161798, 423, 2208, 8, false}, // NAD83(2011) / IaRCS zone 6
    {7063, 6318, 161825, 424, 2209, 8, false}, // NAD83(2011) / IaRCS zone 7
    {7064, 6318, 161852, 425, 2210, 8, false}, // NAD83(2011) / IaRCS zone 8
    {7065, 6318, 161879, 426, 2212, 8, false}, // NAD83(2011) / IaRCS zone 9
    {7066, 6318, 161550, 427, 2213, 8, false}, // NAD83(2011) / IaRCS zone 10
    {7067, 6318, 161578, 428, 2214, 8, false}, // NAD83(2011) / IaRCS zone 11
    {7068, 6318, 161606, 429, 2215, 8, false}, // NAD83(2011) / IaRCS zone 12
    {7069, 6318, 161634, 430, 2216, 8, false}, // NAD83(2011) / IaRCS zone 13
    {7070, 6318, 161662, 431, 2217, 8, false}, // NAD83(2011) / IaRCS zone 14
    {7073, 1113, 272937, geographic, 2219, 25, false}, // RGTAAF07
    {7074, 7073, 273028, 1435, 1962, 4, false}, // RGTAAF07 / UTM zone 37S
    {7075, 7073, 273052, 1436, 2218, 4, false}, // RGTAAF07 / UTM zone 38S
    {7076, 7073, 273076, 1437, 2220, 4, false}, // RGTAAF07 / UTM zone 39S
    {7077, 7073, 273100, 1438, 2221, 4, false}, // RGTAAF07 / UTM zone 40S
    {7078, 7073, 273124, 1439, 2222, 4, false}, // RGTAAF07 / UTM zone 41S
    {7079, 7073, 273148, 1440, 2223, 4, false}, // RGTAAF07 / UTM zone 42S
    {7080, 7073, 273172, 1441, 2224, 4, false}, // RGTAAF07 / UTM zone 43S
    {7081, 7073, 273196, 1442, 2225, 4, false}, // RGTAAF07 / UTM zone 44S
    {7082, 7073, 272984, 2369, 1235, 4, true}, // RGTAAF07 / Terre Adelie Polar Stereographic
    {7084, 6171, 270825, geographic, 36, 24, false}, // RGF93 v1 (lon-lat)
    {7086, 1073, 270715, geographic, 1241, 24, false}, // RGAF09 (lon-lat)
    {7088, 1113, 272965, geographic, 2219, 24, true}, // RGTAAF07 (lon-lat)
    {7109, 6318, 175069, 432, 2283, 4, false}, // NAD83(2011) / RMTCRS St Mary (m)
    {7110, 6318, 174546, 434, 2284, 4, false}, // NAD83(2011) / RMTCRS Blackfeet (m)
    {7111, 6318, 174999, 436, 2285, 4, false}, // NAD83(2011) / RMTCRS Milk River (m)
    {7112, 6318, 174746, 438, 2286, 4, false}, // NAD83(2011) / RMTCRS Fort Belknap (m)
    {7113, 6318, 174832, 440, 2287, 4, false}, // NAD83(2011) / RMTCRS Fort Peck Assiniboine (m)
    {7114, 6318, 174921, 442, 2288, 4, false}, // NAD83(2011) / RMTCRS Fort Peck Sioux (m)
    {7115, 6318, 174677, 444, 2289, 4, false}, // NAD83(2011) / RMTCRS Crow (m)
    {7116, 6318, 174614, 446, 2290, 4, false}, // NAD83(2011) / RMTCRS Bobcat (m)
    {7117, 6318, 174476, 448, 2291, 4, false}, // NAD83(2011) / RMTCRS Billings (m)
    {7118, 6318, 175141, 450, 2292, 4, false}, // NAD83(2011) / RMTCRS Wind River (m)
    {7119, 6318, 175035, 433, 2283, 6, false}, // NAD83(2011) / RMTCRS St Mary (ft)
    {7120, 6318, 174510, 435, 2284, 6, false}, // NAD83(2011) / RMTCRS Blackfeet (ft)
    {7121, 6318, 174962, 437, 2285, 6, false}, // NAD83(2011) / RMTCRS Milk River (ft)
    {7122, 6318, 174707, 439, 2286, 6, false}, // NAD83(2011) / RMTCRS Fort Belknap (ft)
    {7123, 6318, 174784, 441, 2287, 6, false}, // NAD83(2011) / RMTCRS Fort Peck Assiniboine (ft)
    {7124, 6318, 174879, 443, 2288, 6, false}, // NAD83(2011) / RMTCRS Fort Peck Sioux (ft)
    {7125, 6318, 174646, 445, 2289, 6, false}, // NAD83(2011) / RMTCRS Crow (ft)
    {7126, 6318, 174581, 447, 2290, 6, false}, // NAD83(2011) / RMTCRS Bobcat (ft)
    {7127, 6318, 174441, 449, 2291, 6, false}, // NAD83(2011) / RMTCRS Billings (ft)
    {7128, 6318, 175102, 451, 2292, 8, false}, // NAD83(2011) / RMTCRS Wind River (ftUS)
    {7131, 6318, 175238, 452, 2204, 4, false}, // NAD83(2011) / San Francisco CS13
    {7132, 6318, 175271, 453, 2204, 8, false}, // NAD83(2011) / San Francisco CS13 (ftUS)
    {7133, 1113, 272965, geographic, 2219, 24, false}, // RGTAAF07 (lon-lat)
    {7136, 1114, 102350, geographic, 49, 25, false}, // IGD05
    {7139, 1115, 102368, geographic, 49, 25, false}, // IGD05/12
    {7142, 4281, 243398, 454, 180, 4, false}, // Palestine 1923 / Palestine Grid modified
    {7257, 6318, 162242, 455, 2262, 4, false}, // NAD83(2011) / InGCS Adams (m)
    {7258, 6318, 162209, 456, 2262, 8, false}, // NAD83(2011) / InGCS Adams (ftUS)
    {7259, 6318, 162305, 457, 2258, 4, false}, // NAD83(2011) / InGCS Allen (m)
    {7260, 6318, 162272, 458, 2258, 8, false}, // NAD83(2011) / InGCS Allen (ftUS)
    {7261, 6318, 162374, 459, 2275, 4, false}, // NAD83(2011) / InGCS Bartholomew (m)
    {7262, 6318, 162335, 460, 2275, 8, false}, // NAD83(2011) / InGCS Bartholomew (ftUS)
    {7263, 6318, 162444, 461, 2229, 4, false}, // NAD83(2011) / InGCS Benton (m)
    {7264, 6318, 162410, 462, 2229, 8, false}, // NAD83(2011) / InGCS Benton (ftUS)
    {7265, 6318, 162521, 463, 2264, 4, false}, // NAD83(2011) / InGCS Blackford-Delaware (m)
    {7266, 6318, 162475, 464, 2264, 8, false}, // NAD83(2011) / InGCS Blackford-Delaware (ftUS)
    {7267, 6318, 162607, 465, 2236, 4, false}, // NAD83(2011) / InGCS Boone-Hendricks (m)
    {7268, 6318, 162564, 466, 2236, 8, false}, // NAD83(2011) / InGCS Boone-Hendricks (ftUS)
    {7269, 6318, 162680, 467, 2274, 4, false}, // NAD83(2011) / InGCS Brown (m)
    {7270, 6318, 162647, 468, 2274, 8, false}, // NAD83(2011) / InGCS Brown (ftUS)
    {7271, 6318, 162745, 469, 2231, 4, false}, // NAD83(2011) / InGCS Carroll (m)
    {7272, 6318, 162710, 470, 2231, 8, false}, // NAD83(2011) / InGCS Carroll (ftUS)
    {7273, 6318, 162809, 471, 2259, 4, false}, // NAD83(2011) / InGCS Cass (m)
    {7274, 6318, 162777, 472, 2259, 8, false}, // NAD83(2011) / InGCS Cass (ftUS)
    {7275, 6318, 162883, 473, 2281, 4, false}, // NAD83(2011) / InGCS Clark-Floyd-Scott (m)
    {7276, 6318, 162838, 474, 2281, 8, false}, // NAD83(2011) / InGCS Clark-Floyd-Scott (ftUS)
    {7277, 6318, 162957, 475, 2238, 4, false}, // NAD83(2011) / InGCS Clay (m)
    {7278, 6318, 162925, 476, 2238, 8, false}, // NAD83(2011) / InGCS Clay (ftUS)
    {7279, 6318, 163021, 477, 2233, 4, false}, // NAD83(2011) / InGCS Clinton (m)
    {7280, 6318, 162986, 478, 2233, 8, false}, // NAD83(2011) / InGCS Clinton (ftUS)
    {7281, 6318, 163105, 479, 2245, 4, false}, // NAD83(2011) / InGCS Crawford-Lawrence-Orange (m)
    {7282, 6318, 163053, 480, 2245, 8, false}, // NAD83(2011) / InGCS Crawford-Lawrence-Orange (ftUS)
    {7283, 6318, 163196, 481, 2242, 4, false}, // NAD83(2011) / InGCS Daviess-Greene (m)
    {7284, 6318, 163154, 482, 2242, 8, false}, // NAD83(2011) / InGCS Daviess-Greene (ftUS)
    {7285, 6318, 163353, 483, 2279, 4, false}, // NAD83(2011) / InGCS Dearborn-Ohio-Switzerland (m)
    {7286, 6318, 163300, 484, 2279, 8, false}, // NAD83(2011) / InGCS Dearborn-Ohio-Switzerland (ftUS)
    {7287, 6318, 163443, 485, 2272, 4, false}, // NAD83(2011) / InGCS Decatur-Rush (m)
    {7288, 6318, 163403, 486, 2272, 8, false}, // NAD83(2011) / InGCS Decatur-Rush (ftUS)
    {7289, 6318, 163269, 487, 2256, 4, false}, // NAD83(2011) / InGCS DeKalb (m)
    {7290, 6318, 163235, 488, 2256, 8, false}, // NAD83(2011) / InGCS DeKalb (ftUS)
    {7291, 6318, 163521, 489, 2244, 4, false}, // NAD83(2011) / InGCS Dubois-Martin (m)
    {7292, 6318, 163480, 490, 2244, 8, false}, // NAD83(2011) / InGCS Dubois-Martin (ftUS)
    {7293, 6318, 163611, 491, 2253, 4, false}, // NAD83(2011) / InGCS Elkhart-Kosciusko-Wabash (m)
    {7294, 6318, 163559, 492, 2253, 8, false}, // NAD83(2011) / InGCS Elkhart-Kosciusko-Wabash (ftUS)
    {7295, 6318, 163710, 493, 2273, 4, false}, // NAD83(2011) / InGCS Fayette-Franklin-Union (m)
    {7296, 6318, 163660, 494, 2273, 8, false}, // NAD83(2011) / InGCS Fayette-Franklin-Union (ftUS)
    {7297, 6318, 163800, 495, 2232, 4, false}, // NAD83(2011) / InGCS Fountain-Warren (m)
    {7298, 6318, 163757, 496, 2232, 8, false}, // NAD83(2011) / InGCS Fountain-Warren (ftUS)
    {7299, 6318, 163894, 497, 2252, 4, false}, // NAD83(2011) / InGCS Fulton-Marshall-St. Joseph (m)
    {7300, 6318, 163840, 498, 2252, 8, false}, // NAD83(2011) / InGCS Fulton-Marshall-St. Joseph (ftUS)
    {7301, 6318, 163979, 499, 2246, 4, false}, // NAD83(2011) / InGCS Gibson (m)
    {7302, 6318, 163945, 500, 2246, 8, false}, // NAD83(2011) / InGCS Gibson (ftUS)
    {7303, 6318, 164043, 501, 2263, 4, false}, // NAD83(2011) / InGCS Grant (m)
    {7304, 6318, 164010, 502, 2263, 8, false}, // NAD83(2011) / InGCS Grant (ftUS)
    {7305, 6318, 164116, 503, 2266, 4, false}, // NAD83(2011) / InGCS Hamilton-Tipton (m)
    {7306, 6318, 164073, 504, 2266, 8, false}, // NAD83(2011) / InGCS Hamilton-Tipton (ftUS)
    {7307, 6318, 164199, 505, 2267, 4, false}, // NAD83(2011) / InGCS Hancock-Madison (m)
    {7308, 6318, 164156, 506, 2267, 8, false}, // NAD83(2011) / InGCS Hancock-Madison (ftUS)
    {7309, 6318, 164286, 507, 2280, 4, false}, // NAD83(2011) / InGCS Harrison-Washington (m)
    {7310, 6318, 164239, 508, 2280, 8, false}, // NAD83(2011) / InGCS Harrison-Washington (ftUS)
    {7311, 6318, 164363, 509, 2269, 4, false}, // NAD83(2011) / InGCS Henry (m)
    {7312, 6318, 164330, 510, 2269, 8, false}, // NAD83(2011) / InGCS Henry (ftUS)
    {7313, 6318, 164433, 511, 2260, 4, false}, // NAD83(2011) / InGCS Howard-Miami (m)
    {7314, 6318, 164393, 512, 2260, 8, false}, // NAD83(2011) / InGCS Howard-Miami (ftUS)
    {7315, 6318, 164516, 513, 2257, 4, false}, // NAD83(2011) / InGCS Huntington-Whitley (m)
    {7316, 6318, 164470, 514, 2257, 8, false}, // NAD83(2011) / InGCS Huntington-Whitley (ftUS)
    {7317, 6318, 164594, 515, 2276, 4, false}, // NAD83(2011) / InGCS Jackson (m)
    {7318, 6318, 164559, 516, 2276, 8, false}, // NAD83(2011) / InGCS Jackson (ftUS)
    {7319, 6318, 164667, 517, 2227, 4, false}, // NAD83(2011) / InGCS Jasper-Porter (m)
    {7320, 6318, 164626, 518, 2227, 8, false}, // NAD83(2011) / InGCS Jasper-Porter (ftUS)
    {7321, 6318, 164736, 519, 2265, 4, false}, // NAD83(2011) / InGCS Jay (m)
    {7322, 6318, 164705, 520, 2265, 8, false}, // NAD83(2011) / InGCS Jay (ftUS)
    {7323, 6318, 164801, 521, 2282, 4, false}, // NAD83(2011) / InGCS Jefferson (m)
    {7324, 6318, 164764, 522, 2282, 8, false}, // NAD83(2011) / InGCS Jefferson (ftUS)
    {7325, 6318, 164871, 523, 2277, 4, false}, // NAD83(2011) / InGCS Jennings (m)
    {7326, 6318, 164835, 524, 2277, 8, false}, // NAD83(2011) / InGCS Jennings (ftUS)
    {7327, 6318, 164946, 525, 2270, 4, false}, // NAD83(2011) / InGCS Johnson-Marion (m)
    {7328, 6318, 164904, 526, 2270, 8, false}, // NAD83(2011) / InGCS Johnson-Marion (ftUS)
    {7329, 6318, 165017, 527, 2243, 4, false}, // NAD83(2011) / InGCS Knox (m)
    {7330, 6318, 164985, 528, 2243, 8, false}, // NAD83(2011) / InGCS Knox (ftUS)
    {7331, 6318, 165088, 529, 2254, 4, false}, // NAD83(2011) / InGCS LaGrange-Noble (m)
    {7332, 6318, 165046, 530, 2254, 8, false}, // NAD83(2011) / InGCS LaGrange-Noble (ftUS)
    {7333, 6318, 165263, 531, 2226, 4, false}, // NAD83(2011) / InGCS Lake-Newton (m)
    {7334, 6318, 165224, 532, 2226, 8, false}, // NAD83(2011) / InGCS Lake-Newton (ftUS)
    {7335, 6318, 165177, 533, 2228, 4, false}, // NAD83(2011) / InGCS LaPorte-Pulaski-Starke (m)
    {7336, 6318, 165127, 534, 2228, 8, false}, // NAD83(2011) / InGCS LaPorte-Pulaski-Starke (ftUS)
    {7337, 6318, 165340, 535, 2240, 4, false}, // NAD83(2011) / InGCS Monroe-Morgan (m)
    {7338, 6318, 165299, 536, 2240, 8, false}, // NAD83(2011) / InGCS Monroe-Morgan (ftUS)
    {7339, 6318, 165423, 537, 2235, 4, false}, // NAD83(2011) / InGCS Montgomery-Putnam (m)
    {7340, 6318, 165378, 538, 2235, 8, false}, // NAD83(2011) / InGCS Montgomery-Putnam (ftUS)
    {7341, 6318, 165497, 539, 2239, 4, false}, // NAD83(2011) / InGCS Owen (m)
    {7342, 6318, 165465, 540, 2239, 8, false}, // NAD83(2011) / InGCS Owen (ftUS)
    {7343, 6318, 165570, 541, 2234, 4, false}, // NAD83(2011) / InGCS Parke-Vermillion (m)
    {7344, 6318, 165526, 542, 2234, 8, false}, // NAD83(2011) / InGCS Parke-Vermillion (ftUS)
    {7345, 6318, 165644, 543, 2251, 4, false}, // NAD83(2011) / InGCS Perry (m)
    {7346, 6318, 165611, 544, 2251, 8, false}, // NAD83(2011) / InGCS Perry (ftUS)
    {7347, 6318, 165714, 545, 2247, 4, false}, // NAD83(2011) / InGCS Pike-Warrick (m)
    {7348, 6318, 165674, 546, 2247, 8, false}, // NAD83(2011) / InGCS Pike-Warrick (ftUS)
    {7349, 6318, 165784, 547, 2248, 4, false}, // NAD83(2011) / InGCS Posey (m)
    {7350, 6318, 165751, 548, 2248, 8, false}, // NAD83(2011) / InGCS Posey (ftUS)
    {7351, 6318, 165856, 549, 2268, 4, false}, // NAD83(2011) / InGCS Randolph-Wayne (m)
    {7352, 6318, 165814, 550, 2268, 8, false}, // NAD83(2011) / InGCS Randolph-Wayne (ftUS)
    {7353, 6318, 165929, 551, 2278, 4, false}, // NAD83(2011) / InGCS Ripley (m)
    {7354, 6318, 165895, 552, 2278, 8, false}, // NAD83(2011) / InGCS Ripley (ftUS)
    {7355, 6318, 165994, 553, 2271, 4, false}, // NAD83(2011) / InGCS Shelby (m)
    {7356, 6318, 165960, 554, 2271, 8, false}, // NAD83(2011) / InGCS Shelby (ftUS)
    {7357, 6318, 166060, 555, 2250, 4, false}, // NAD83(2011) / InGCS Spencer (m)
    {7358, 6318, 166025, 556, 2250, 8, false}, // NAD83(2011) / InGCS Spencer (ftUS)
    {7359, 6318, 166127, 557, 2255, 4, false}, // NAD83(2011) / InGCS Steuben (m)
    {7360, 6318, 166092, 558, 2255, 8, false}, // NAD83(2011) / InGCS Steuben (ftUS)
    {7361, 6318, 166195, 559, 2241, 4, false}, // NAD83(2011) / InGCS Sullivan (m)
    {7362, 6318, 166159, 560, 2241, 8, false}, // NAD83(2011) / InGCS Sullivan (ftUS)
    {7363, 6318, 166272, 561, 2230, 4, false}, // NAD83(2011) / InGCS Tippecanoe-White (m)
    {7364, 6318, 166228, 562, 2230, 8, false}, // NAD83(2011) / InGCS Tippecanoe-White (ftUS)
    {7365, 6318, 166352, 563, 2249, 4, false}, // NAD83(2011) / InGCS Vanderburgh (m)
    {7366, 6318, 166313, 564, 2249, 8, false}, // NAD83(2011) / InGCS Vanderburgh (ftUS)
    {7367, 6318, 166420, 565, 2237, 4, false}, // NAD83(2011) / InGCS Vigo (m)
    {7368, 6318, 166388, 566, 2237, 8, false}, // NAD83(2011) / InGCS Vigo (ftUS)
    {7369, 6318, 166482, 567, 2261, 4, false}, // NAD83(2011) / InGCS Wells (m)
    {7370, 6318, 166449, 568, 2261, 8, false}, // NAD83(2011) / InGCS Wells (ftUS)
    {7373, 1147, 234416, geographic, 78, 25, false}, // ONGD14
    {7374, 7373, 234423, 1348, 2295, 4, false}, // ONGD14 / UTM zone 39N
    {7375, 7373, 234445, 1349, 2296, 4, false}, // ONGD14 / UTM zone 40N
    {7376, 7373, 234467, 1350, 2297, 4, false}, // ONGD14 / UTM zone 41N
    {7528, 6318, 176988, 643, 2333, 4, false}, // NAD83(2011) / WISCRS Adams and Juneau (m)
    {7529, 6318, 177066, 569, 2293, 4, false}, // NAD83(2011) / WISCRS Ashland (m)
    {7530, 6318, 177134, 593, 2304, 4, false}, // NAD83(2011) / WISCRS Barron (m)
    {7531, 6318, 177203, 571, 2294, 4, false}, // NAD83(2011) / WISCRS Bayfield (m)
    {7532, 6318, 177271, 595, 2309, 4, false}, // NAD83(2011) / WISCRS Brown (m)
    {7533, 6318, 177338, 597, 2310, 4, false}, // NAD83(2011) / WISCRS Buffalo (m)
    {7534, 6318, 177407, 573, 2298, 4, false}, // NAD83(2011) / WISCRS Burnett (m)
    {7535, 6318, 177514, 645, 2334, 4, false}, // NAD83(2011) / WISCRS Calumet, Fond du Lac, Outagamie and Winnebago (m)
    {7536, 6318, 177622, 599, 2311, 4, false}, // NAD83(2011) / WISCRS Chippewa (m)
    {7537, 6318, 177690, 601, 2312, 4, false}, // NAD83(2011) / WISCRS Clark (m)
    {7538, 6318, 177758, 647, 2335, 4, false}, // NAD83(2011) / WISCRS Columbia (m)
    {7539, 6318, 177829, 649, 2336, 4, false}, // NAD83(2011) / WISCRS Crawford (m)
    {7540, 6318, 177896, 651, 2337, 4, false}, // NAD83(2011) / WISCRS Dane (m)
    {7541, 6318, 177974, 653, 2338, 4, false}, // NAD83(2011) / WISCRS Dodge and Jefferson (m)
    {7542, 6318, 178052, 603, 2313, 4, false}, // NAD83(2011) / WISCRS Door (m)
    {7543, 6318, 178118, 575, 2299, 4, false}, // NAD83(2011) / WISCRS Douglas (m)
    {7544, 6318, 178184, 605, 2314, 4, false}, // NAD83(2011) / WISCRS Dunn (m)
    {7545, 6318, 178253, 607, 2315, 4, false}, // NAD83(2011) / WISCRS Eau Claire (m)
    {7546, 6318, 178326, 577, 2300, 4, false}, // NAD83(2011) / WISCRS Florence (m)
    {7547, 6318, 178395, 579, 2301, 4, false}, // NAD83(2011) / WISCRS Forest (m)
    {7548, 6318, 178461, 655, 2339, 4, false}, // NAD83(2011) / WISCRS Grant (m)
    {7549, 6318, 178643, 657, 2340, 4, false}, // NAD83(2011) / WISCRS Green and Lafayette (m)
    {7550, 6318, 178545, 659, 2341, 4, false}, // NAD83(2011) / WISCRS Green Lake and Marquette (m)
    {7551, 6318, 178721, 661, 2342, 4, false}, // NAD83(2011) / WISCRS Iowa (m)
    {7552, 6318, 178784, 581, 2302, 4, false}, // NAD83(2011) / WISCRS Iron (m)
    {7553, 6318, 178850, 609, 2316, 4, false}, // NAD83(2011) / WISCRS Jackson (m)
    {7554, 6318, 178950, 663, 2343, 4, false}, // NAD83(2011) / WISCRS Kenosha, Milwaukee, Ozaukee and Racine (m)
    {7555, 6318, 179076, 665, 2344, 4, false}, // NAD83(2011) / WISCRS Kewaunee, Manitowoc and Sheboygan (m)
    {7556, 6318, 179173, 667, 2345, 4, false}, // NAD83(2011) / WISCRS La Crosse (m)
    {7557, 6318, 179245, 611, 2317, 4, false}, // NAD83(2011) / WISCRS Langlade (m)
    {7558, 6318, 179315, 613, 2318, 4, false}, // NAD83(2011) / WISCRS Lincoln (m)
    {7559, 6318, 179385, 615, 2319, 4, false}, // NAD83(2011) / WISCRS Marathon (m)
    {7560, 6318, 179457, 617, 2320, 4, false}, // NAD83(2011) / WISCRS Marinette (m)
    {7561, 6318, 179530, 619, 2321, 4, false}, // NAD83(2011) / WISCRS Menominee (m)
    {7562, 6318, 179600, 669, 2346, 4, false}, // NAD83(2011) / WISCRS Monroe (m)
    {7563, 6318, 179667, 621, 2322, 4, false}, // NAD83(2011) / WISCRS Oconto (m)
    {7564, 6318, 179734, 583, 2303, 4, false}, // NAD83(2011) / WISCRS Oneida (m)
    {7565, 6318, 179811, 623, 2323, 4, false}, // NAD83(2011) / WISCRS Pepin and Pierce (m)
    {7566, 6318, 179886, 625, 2324, 4, false}, // NAD83(2011) / WISCRS Polk (m)
    {7567, 6318, 179952, 627, 2325, 4, false}, // NAD83(2011) / WISCRS Portage (m)
    {7568, 6318, 180019, 585, 2305, 4, false}, // NAD83(2011) / WISCRS Price (m)
    {7569, 6318, 180087, 671, 2347, 4, false}, // NAD83(2011) / WISCRS Richland (m)
    {7570, 6318, 180154, 673, 2348, 4, false}, // NAD83(2011) / WISCRS Rock (m)
    {7571, 6318, 180217, 629, 2326, 4, false}, // NAD83(2011) / WISCRS Rusk (m)
    {7572, 6318, 180280, 675, 2349, 4, false}, // NAD83(2011) / WISCRS Sauk (m)
    {7573, 6318, 180345, 587, 2306, 4, false}, // NAD83(2011) / WISCRS Sawyer (m)
    {7574, 6318, 180413, 631, 2327, 4, false}, // NAD83(2011) / WISCRS Shawano (m)
    {7575, 6318, 180484, 633, 2328, 4, false}, // NAD83(2011) / WISCRS St. Croix (m)
    {7576, 6318, 180554, 635, 2329, 4, false}, // NAD83(2011) / WISCRS Taylor (m)
    {7577, 6318, 180626, 637, 2330, 4, false}, // NAD83(2011) / WISCRS Trempealeau (m)
    {7578, 6318, 180698, 677, 2350, 4, false}, // NAD83(2011) / WISCRS Vernon (m)
    {7579, 6318, 180764, 589, 2307, 4, false}, // NAD83(2011) / WISCRS Vilas (m)
    {7580, 6318, 180832, 679, 2351, 4, false}, // NAD83(2011) / WISCRS Walworth (m)
    {7581, 6318, 180903, 591, 2308, 4, false}, // NAD83(2011) / WISCRS Washburn (m)
    {7582, 6318, 180976, 681, 2352, 4, false}, // NAD83(2011) / WISCRS Washington (m)
    {7583, 6318, 181049, 683, 2353, 4, false}, // NAD83(2011) / WISCRS Waukesha (m)
    {7584, 6318, 181119, 639, 2331, 4, false}, // NAD83(2011) / WISCRS Waupaca (m)
    {7585, 6318, 181189, 685, 2354, 4, false}, // NAD83(2011) / WISCRS Waushara (m)
    {7586, 6318, 181256, 641, 2332, 4, false}, // NAD83(2011) / WISCRS Wood (m)
    {7587, 6318, 176943, 644, 2333, 8, false}, // NAD83(2011) / WISCRS Adams and Juneau (ftUS)
    {7588, 6318, 177030, 570, 2293, 8, false}, // NAD83(2011) / WISCRS Ashland (ftUS)
    {7589, 6318, 177099, 594, 2304, 8, false}, // NAD83(2011) / WISCRS Barron (ftUS)
    {7590, 6318, 177166, 572, 2294, 8, false}, // NAD83(2011) / WISCRS Bayfield (ftUS)
    {7591, 6318, 177237, 596, 2309, 8, false}, // NAD83(2011) / WISCRS Brown (ftUS)
    {7592, 6318, 177302, 598, 2310, 8, false}, // NAD83(2011) / WISCRS Buffalo (ftUS)
    {7593, 6318, 177371, 574, 2298, 8, false}, // NAD83(2011) / WISCRS Burnett (ftUS)
    {7594, 6318, 177440, 646, 2334, 8, false}, // NAD83(2011) / WISCRS Calumet, Fond du Lac, Outagamie and Winnebago (ftUS)
    {7595, 6318, 177585, 600, 2311, 8, false}, // NAD83(2011) / WISCRS Chippewa (ftUS)
    {7596, 6318, 177656, 602, 2312, 8, false}, // NAD83(2011) / WISCRS Clark (ftUS)
    {7597, 6318, 177721, 648, 2335, 8, false}, // NAD83(2011) / WISCRS Columbia (ftUS)
    {7598, 6318, 177792, 650, 2336, 8, false}, // NAD83(2011) / WISCRS Crawford (ftUS)
    {7599, 6318, 177863, 652, 2337, 8, false}, // NAD83(2011) / WISCRS Dane (ftUS)
    {7600, 6318, 177926, 654, 2338, 8, false}, // NAD83(2011) / WISCRS Dodge and Jefferson (ftUS)
    {7601, 6318, 178019, 604, 2313, 8, false}, // NAD83(2011) / WISCRS Door (ftUS)
    {7602, 6318, 178082, 576, 2299, 8, false}, // NAD83(2011) / WISCRS Douglas (ftUS)
    {7603, 6318, 178151, 606, 2314, 8, false}, // NAD83(2011) / WISCRS Dunn (ftUS)
    {7604, 6318, 178214, 608, 2315, 8, false}, // NAD83(2011) / WISCRS Eau Claire (ftUS)
    {7605, 6318, 178289, 578, 2300, 8, false}, // NAD83(2011) / WISCRS Florence (ftUS)
    {7606, 6318, 178360, 580, 2301, 8, false}, // NAD83(2011) / WISCRS Forest (ftUS)
    {7607, 6318, 178427, 656, 2339, 8, false}, // NAD83(2011) / WISCRS Grant (ftUS)
    {7608, 6318, 178595, 658, 2340, 8, false}, // NAD83(2011) / WISCRS Green and Lafayette (ftUS)
    {7609, 6318, 178492, 660, 2341, 8, false}, // NAD83(2011) / WISCRS Green Lake and Marquette (ftUS)
    {7610, 6318, 178688, 662, 2342, 8, false}, // NAD83(2011) / WISCRS Iowa (ftUS)
    {7611, 6318, 178751, 582, 2302, 8, false}, // NAD83(2011) / WISCRS Iron (ftUS)
    {7612, 6318, 178814, 610, 2316, 8, false}, // NAD83(2011) / WISCRS Jackson (ftUS)
    {7613, 6318, 178883, 664, 2343, 8, false}, // NAD83(2011) / WISCRS Kenosha, Milwaukee, Ozaukee and Racine (ftUS)
    {7614, 6318, 179014, 666, 2344, 8, false}, // NAD83(2011) / WISCRS Kewaunee, Manitowoc and Sheboygan (ftUS)
    {7615, 6318, 179135, 668, 2345, 8, false}, // NAD83(2011) / WISCRS La Crosse (ftUS)
    {7616, 6318, 179208, 612, 2317, 8, false}, // NAD83(2011) / WISCRS Langlade (ftUS)
    {7617, 6318, 179279, 614, 2318, 8, false}, // NAD83(2011) / WISCRS Lincoln (ftUS)
    {7618, 6318, 179348, 616, 2319, 8, false}, // NAD83(2011) / WISCRS Marathon (ftUS)
    {7619, 6318, 179419, 618, 2320, 8, false}, // NAD83(2011) / WISCRS Marinette (ftUS)
    {7620, 6318, 179492, 620, 2321, 8, false}, // NAD83(2011) / WISCRS Menominee (ftUS)
    {7621, 6318, 179565, 670, 2346, 8, false}, // NAD83(2011) / WISCRS Monroe (ftUS)
    {7622, 6318, 179632, 622, 2322, 8, false}, // NAD83(2011) / WISCRS Oconto (ftUS)
    {7623, 6318, 179699, 584, 2303, 8, false}, // NAD83(2011) / WISCRS Oneida (ftUS)
    {7624, 6318, 179766, 624, 2323, 8, false}, // NAD83(2011) / WISCRS Pepin and Pierce (ftUS)
    {7625, 6318, 179853, 626, 2324, 8, false}, // NAD83(2011) / WISCRS Polk (ftUS)
    {7626, 6318, 179916, 628, 2325, 8, false}, // NAD83(2011) / WISCRS Portage (ftUS)
    {7627, 6318, 179985, 586, 2305, 8, false}, // NAD83(2011) / WISCRS Price (ftUS)
    {7628, 6318, 180050, 672, 2347, 8, false}, // NAD83(2011) / WISCRS Richland (ftUS)
    {7629, 6318, 180121, 674, 2348, 8, false}, // NAD83(2011) / WISCRS Rock (ftUS)
    {7630, 6318, 180184, 630, 2326, 8, false}, // NAD83(2011) / WISCRS Rusk (ftUS)
    {7631, 6318, 180247, 676, 2349, 8, false}, // NAD83(2011) / WISCRS Sauk (ftUS)
    {7632, 6318, 180310, 588, 2306, 8, false}, // NAD83(2011) / WISCRS Sawyer (ftUS)
    {7633, 6318, 180377, 632, 2327, 8, false}, // NAD83(2011) / WISCRS Shawano (ftUS)
    {7634, 6318, 180446, 634, 2328, 8, false}, // NAD83(2011) / WISCRS St. Croix (ftUS)
    {7635, 6318, 180519, 636, 2329, 8, false}, // NAD83(2011) / WISCRS Taylor (ftUS)
    {7636, 6318, 180586, 638, 2330, 8, false}, // NAD83(2011) / WISCRS Trempealeau (ftUS)
    {7637, 6318, 180663, 678, 2350, 8, false}, // NAD83(2011) / WISCRS Vernon (ftUS)
    {7638, 6318, 180730, 590, 2307, 8, false}, // NAD83(2011) / WISCRS Vilas (ftUS)
    {7639, 6318, 180795, 680, 2351, 8, false}, // NAD83(2011) / WISCRS Walworth (ftUS)
    {7640, 6318, 180866, 592, 2308, 8, false}, // NAD83(2011) / WISCRS Washburn (ftUS)
    {7641, 6318, 180937, 682, 2352, 8, false}, // NAD83(2011) / WISCRS Washington (ftUS)
    {7642, 6318, 181012, 684, 2353, 8, false}, // NAD83(2011) / WISCRS Waukesha (ftUS)
    {7643, 6318, 181083, 640, 2331, 8, false}, // NAD83(2011) / WISCRS Waupaca (ftUS)
    {7644, 6318, 181152, 686, 2354, 8, false}, // NAD83(2011) / WISCRS Waushara (ftUS)
    {7645, 6318, 181223, 642, 2332, 8, false}, // NAD83(2011) / WISCRS Wood (ftUS)
    {7683, 1159, 88391, geographic, 87, 25, false}, // GSK-2011
    {7686, 1160, 124310, geographic, 55, 25, false}, // Kyrg-06
    {7692, 7686, 124318, 687, 2355, 4, false}, // Kyrg-06 / zone 1
    {7693, 7686, 124335, 688, 2356, 4, false}, // Kyrg-06 / zone 2
    {7694, 7686, 124352, 689, 2357, 4, false}, // Kyrg-06 / zone 3
    {7695, 7686, 124369, 690, 2358, 4, false}, // Kyrg-06 / zone 4
    {7696, 7686, 124386, 691, 2359, 4, false}, // Kyrg-06 / zone 5
    {7755, 4326, 345551, 692, 45, 4, false}, // WGS 84 / India NSF LCC
    {7756, 4326, 343080, 693, 2362, 4, false}, // WGS 84 / Andhra Pradesh
    {7757, 4326, 343179, 694, 2363, 4, false}, // WGS 84 / Arunachal Pradesh
    {7758, 4326, 343206, 695, 2364, 4, false}, // WGS 84 / Assam
    {7759, 4326, 343459, 696, 2365, 4, false}, // WGS 84 / Bihar
    {7760, 4326, 343556, 697, 2390, 4, false}, // WGS 84 / Delhi
    {7761, 4326, 345421, 698, 2368, 4, false}, // WGS 84 / Gujarat
    {7762, 4326, 345438, 699, 2369, 4, false}, // WGS 84 / Haryana
    {7763, 4326, 345455, 700, 2370, 4, false}, // WGS 84 / Himachal Pradesh
    {7764, 4326, 345599, 701, 2371, 4, false}, // WGS 84 / Jammu and Kashmir
    {7765, 4326, 345626, 702, 2372, 4, false}, // WGS 84 / Jharkhand
    {7766, 4326, 345701, 703, 2375, 4, false}, // WGS 84 / Madhya Pradesh
    {7767, 4326, 345725, 704, 2376, 4, false}, // WGS 84 / Maharashtra
    {7768, 4326, 345746, 705, 2377, 4, false}, // WGS 84 / Manipur
    {7769, 4326, 345763, 706, 2378, 4, false}, // WGS 84 / Meghalaya
    {7770, 4326, 346139, 707, 2380, 4, false}, // WGS 84 / Nagaland
    {7771, 4326, 345574, 708, 2361, 4, false}, // WGS 84 / India Northeast
    {7772, 4326, 346355, 709, 2381, 4, false}, // WGS 84 / Orissa
    {7773, 4326, 346440, 710, 2382, 4, false}, // WGS 84 / Punjab
    {7774, 4326, 346456, 711, 2383, 4, false}, // WGS 84 / Rajasthan
    {7775, 4326, 351971, 712, 2387, 4, false}, // WGS 84 / Uttar Pradesh
    {7776, 4326, 351994, 713, 2388, 4, false}, // WGS 84 / Uttaranchal
    {7777, 4326, 343051, 714, 2391, 4, false}, // WGS 84 / Andaman and Nicobar
    {7778, 4326, 343534, 715, 2366, 4, false}, // WGS 84 / Chhattisgarh
    {7779, 4326, 345408, 716, 2367, 4, false}, // WGS 84 / Goa
    {7780, 4326, 345645, 717, 2373, 4, false}, // WGS 84 / Karnataka
    {7781, 4326, 345664, 718, 2374, 4, false}, // WGS 84 / Kerala
    {7782, 4326, 345680, 719, 2392, 4, false}, // WGS 84 / Lakshadweep
    {7783, 4326, 345803, 720, 2379, 4, false}, // WGS 84 / Mizoram
    {7784, 4326, 348815, 721, 2384, 4, false}, // WGS 84 / Sikkim
    {7785, 4326, 349079, 722, 2385, 4, false}, // WGS 84 / Tamil Nadu
    {7786, 4326, 349099, 723, 2386, 4, false}, // WGS 84 / Tripura
    {7787, 4326, 352015, 724, 2389, 4, false}, // WGS 84 / West Bengal
    {7791, 6706, 269957, 1341, 509, 4, false}, // RDN2008 / UTM zone 32N
    {7792, 6706, 270009, 1342, 2173, 4, false}, // RDN2008 / UTM zone 33N
    {7793, 6706, 270061, 1343, 2174, 4, false}, // RDN2008 / UTM zone 34N
    {7794, 6706, 269903, 403, 50, 4, false}, // RDN2008 / Italy zone (E-N)
    {7795, 6706, 270113, 404, 50, 4, false}, // RDN2008 / Zone 12 (E-N)
    {7798, 1167, 28774, geographic, 14, 25, false}, // BGS2005
    {7799, 7798, 28823, 1343, 2395, 5, false}, // BGS2005 / UTM zone 34N (N-E)
    {7800, 7798, 28875, 1344, 2394, 5, false}, // BGS2005 / UTM zone 35N (N-E)
    {7801, 7798, 28782, 725, 1483, 5, false}, // BGS2005 / CCS2005
    {7803, 7798, 28800, 1343, 2395, 4, false}, // BGS2005 / UTM zone 34N
    {7804, 7798, 28852, 1343, 2394, 4, true}, // BGS2005 / UTM zone 35N
    {7805, 7798, 28904, 1345, 2393, 4, false}, // BGS2005 / UTM zone 36N
    {7825, 4284, 254591, 726, 2402, 5, false}, // Pulkovo 1942 / CS63 zone X1
    {7826, 4284, 254619, 727, 2396, 5, false}, // Pulkovo 1942 / CS63 zone X2
    {7827, 4284, 254647, 728, 2397, 5, false}, // Pulkovo 1942 / CS63 zone X3
    {7828, 4284, 254675, 729, 2398, 5, false}, // Pulkovo 1942 / CS63 zone X4
    {7829, 4284, 254703, 730, 2399, 5, false}, // Pulkovo 1942 / CS63 zone X5
    {7830, 4284, 254731, 731, 2400, 5, false}, // Pulkovo 1942 / CS63 zone X6
    {7831, 4284, 254759, 732, 2401, 5, false}, // Pulkovo 1942 / CS63 zone X7
    {7844, 1168, 81520, geographic, 2164, 25, false}, // GDA2020
    {7845, 7844, 81774, 1861, 1102, 4, false}, // GDA2020 / GA LCC
    {7846, 7844, 81919, 359, 2175, 4, false}, // GDA2020 / MGA zone 46
    {7847, 7844, 81941, 360, 2176, 4, false}, // GDA2020 / MGA zone 47
    {7848, 7844, 81963, 1847, 2177, 4, false}, // GDA2020 / MGA zone 48
    {7849, 7844, 81985, 1848, 2163, 4, false}, // GDA2020 / MGA zone 49
    {7850, 7844, 82007, 1849, 2165, 4, false}, // GDA2020 / MGA zone 50
    {7851, 7844, 82029, 1850, 354, 4, false}, // GDA2020 / MGA zone 51
    {7852, 7844, 82051, 1851, 355, 4, false}, // GDA2020 / MGA zone 52
    {7853, 7844, 82073, 1852, 356, 4, false}, // GDA2020 / MGA zone 53
    {7854, 7844, 82095, 1853, 357, 4, false}, // GDA2020 / MGA zone 54
    {7855, 7844, 82117, 1854, 358, 4, false}, // GDA2020 / MGA zone 55
    {7856, 7844, 82139, 1855, 359, 4, false}, // GDA2020 / MGA zone 56
    {7857, 7844, 82161, 1856, 2181, 4, false}, // GDA2020 / MGA zone 57
    {7858, 7844, 82183, 1857, 2162, 4, false}, // GDA2020 / MGA zone 58
    {7859, 7844, 82205, 361, 2166, 4, false}, // GDA2020 / MGA zone 59
    {7877, 4710, 24285, 733, 1455, 4, false}, // Astro DOS 71 / SHLG71
    {7878, 4710, 24307, 1428, 1455, 4, false}, // Astro DOS 71 / UTM zone 30S
    {7881, 1173, 306231, geographic, 1455, 25, false}, // St. Helena Tritan
    {7882, 7881, 306249, 734, 1455, 4, false}, // St. Helena Tritan / SHLG(Tritan)
    {7883, 7881, 306282, 1428, 1455, 4, false}, // St. Helena Tritan / UTM zone 30S
    {7886, 1174, 282031, geographic, 1455, 25, false}, // SHGD2015
    {7887, 7886, 282040, 1428, 1455, 4, false}, // SHMG2015
    {7899, 7844, 82325, 1860, 1068, 4, false}, // GDA2020 / Vicgrid
    {7991, 4267, 146822, 1932, 229, 4, false}, // NAD27 / MTM zone 10
    {7992, 4259, 136360, 1431, 2413, 4, false}, // Malongo 1987 / UTM zone 33S
    {8013, 7844, 81545, 735, 2406, 4, false}, // GDA2020 / ALB2020
    {8014, 7844, 81628, 736, 2405, 4, false}, // GDA2020 / BIO2020
    {8015, 7844, 81646, 737, 2408, 4, false}, // GDA2020 / BRO2020
    {8016, 7844, 81591, 738, 2404, 4, false}, // GDA2020 / BCG2020
    {8017, 7844, 81664, 739, 2409, 4, false}, // GDA2020 / CARN2020
    {8018, 7844, 81683, 740, 2159, 4, false}, // GDA2020 / CIG2020
    {8019, 7844, 81701, 741, 21, 4, false}, // GDA2020 / CKIG2020
    {8020, 7844, 81720, 742, 2410, 4, false}, // GDA2020 / COL2020
    {8021, 7844, 81738, 743, 2412, 4, false}, // GDA2020 / ESP2020
    {8022, 7844, 81756, 744, 2414, 4, false}, // GDA2020 / EXM2020
    {8023, 7844, 81791, 745, 2415, 4, false}, // GDA2020 / GCG2020
    {8024, 7844, 81809, 746, 2403, 4, false}, // GDA2020 / GOLD2020
    {8025, 7844, 81828, 747, 2407, 4, false}, // GDA2020 / JCG2020
    {8026, 7844, 81846, 748, 2411, 4, false}, // GDA2020 / KALB2020
    {8027, 7844, 81865, 749, 2417, 4, false}, // GDA2020 / KAR2020
    {8028, 7844, 81883, 750, 2418, 4, false}, // GDA2020 / KUN2020
    {8029, 7844, 81901, 751, 2419, 4, false}, // GDA2020 / LCG2020
    {8030, 7844, 82227, 752, 2422, 4, false}, // GDA2020 / MRCG2020
    {8031, 7844, 82268, 753, 2426, 4, false}, // GDA2020 / PCG2020
    {8032, 7844, 82286, 754, 2429, 4, false}, // GDA2020 / PHG2020
    {8035, 4326, 348989, 755, 2430, 8, false}, // WGS 84 / TM Zone 20N (ftUS)
    {8036, 4326, 349017, 756, 2431, 8, false}, // WGS 84 / TM Zone 21N (ftUS)
    {8042, 1188, 98011, geographic, 2420, 25, false}, // Gusterberg (Ferro)
    {8043, 1189, 306457, geographic, 2421, 25, false}, // St. Stephen (Ferro)
    {8044, 8042, 98046, 757, 2420, 1, false}, // Gusterberg Grid (Ferro)
    {8045, 8043, 306494, 758, 2421, 1, false}, // St. Stephen Grid (Ferro)
    {8058, 7844, 82246, 1863, 1426, 4, false}, // GDA2020 / NSW Lambert
    {8059, 7844, 82304, 1858, 1295, 4, false}, // GDA2020 / SA Lambert
    {8065, 6318, 174130, 759, 2434, 6, false}, // NAD83(2011) / PCCS zone 1 (ft)
    {8066, 6318, 174161, 760, 2425, 6, false}, // NAD83(2011) / PCCS zone 2 (ft)
    {8067, 6318, 174192, 761, 2416, 6, false}, // NAD83(2011) / PCCS zone 3 (ft)
    {8068, 6318, 174223, 762, 2435, 6, false}, // NAD83(2011) / PCCS zone 4 (ft)
    {8082, 8252, 188934, 763, 330, 4, false}, // NAD83(CSRS)v6 / MTM NS 2010 zone 4
    {8083, 8252, 188969, 764, 331, 4, false}, // NAD83(CSRS)v6 / MTM NS 2010 zone 5
    {8086, 1187, 103868, geographic, 44, 25, false}, // ISN2016
    {8088, 8086, 103919, 765, 44, 4, false}, // ISN2016 / Lambert 2016
    {8090, 4152, 199827, 577, 2300, 4, false}, // NAD83(HARN) / WISCRS Florence (m)
    {8091, 4152, 199790, 578, 2300, 8, false}, // NAD83(HARN) / WISCRS Florence (ftUS)
    {8092, 4152, 199754, 607, 2315, 4, false}, // NAD83(HARN) / WISCRS Eau Claire (m)
    {8093, 4152, 199715, 608, 2315, 8, false}, // NAD83(HARN) / WISCRS Eau Claire (ftUS)
    {8095, 4152, 202757, 641, 2332, 4, false}, // NAD83(HARN) / WISCRS Wood (m)
    {8096, 4152, 202724, 642, 2332, 8, false}, // NAD83(HARN) / WISCRS Wood (ftUS)
    {8097, 4152, 202690, 685, 2354, 4, false}, // NAD83(HARN) / WISCRS Waushara (m)
    {8098, 4152, 202653, 686, 2354, 8, false}, // NAD83(HARN) / WISCRS Waushara (ftUS)
    {8099, 4152, 202620, 639, 2331, 4, false}, // NAD83(HARN) / WISCRS Waupaca (m)
    {8100, 4152, 202584, 640, 2331, 8, false}, // NAD83(HARN) / WISCRS Waupaca (ftUS)
    {8101, 4152, 202550, 683, 2353, 4, false}, // NAD83(HARN) / WISCRS Waukesha (m)
    {8102, 4152, 202513, 684, 2353, 8, false}, // NAD83(HARN) / WISCRS Waukesha (ftUS)
    {8103, 4152, 202477, 681, 2352, 4, false}, // NAD83(HARN) / WISCRS Washington (m)
    {8104, 4152, 202438, 682, 2352, 8, false}, // NAD83(HARN) / WISCRS Washington (ftUS)
    {8105, 4152, 202404, 591, 2308, 4, false}, // NAD83(HARN) / WISCRS Washburn (m)
    {8106, 4152, 202367, 592, 2308, 8, false}, // NAD83(HARN) / WISCRS Washburn (ftUS)
    {8107, 4152, 202333, 679, 2351, 4, false}, // NAD83(HARN) / WISCRS Walworth (m)
    {8108, 4152, 202296, 680, 2351, 8, false}, // NAD83(HARN) / WISCRS Walworth (ftUS)
    {8109, 4152, 202265, 589, 2307, 4, false}, // NAD83(HARN) / WISCRS Vilas (m)
    {8110, 4152, 202231, 590, 2307, 8, false}, // NAD83(HARN) / WISCRS Vilas (ftUS)
    {8111, 4152, 202199, 677, 2350, 4, false}, // NAD83(HARN) / WISCRS Vernon (m)
    {8112, 4152, 202164, 678, 2350, 8, false}, // NAD83(HARN) / WISCRS Vernon (ftUS)
    {8113, 4152, 202127, 637, 2330, 4, false}, // NAD83(HARN) / WISCRS Trempealeau (m)
    {8114, 4152, 202087, 638, 2330, 8, false}, // NAD83(HARN) / WISCRS Trempealeau (ftUS)
    {8115, 4152, 202055, 635, 2329, 4, false}, // NAD83(HARN) / WISCRS Taylor (m)
    {8116, 4152, 202020, 636, 2329, 8, false}, // NAD83(HARN) / WISCRS Taylor (ftUS)
    {8117, 4152, 201985, 633, 2328, 4, false}, // NAD83(HARN) / WISCRS St. Croix (m)
    {8118, 4152, 201947, 634, 2328, 8, false}, // NAD83(HARN) / WISCRS St. Croix (ftUS)
    {8119, 4152, 201914, 631, 2327, 4, false}, // NAD83(HARN) / WISCRS Shawano (m)
    {8120, 4152, 201878, 632, 2327, 8, false}, // NAD83(HARN) / WISCRS Shawano (ftUS)
    {8121, 4152, 201846, 587, 2306, 4, false}, // NAD83(HARN) / WISCRS Sawyer (m)
    {8122, 4152, 201811, 588, 2306, 8, false}, // NAD83(HARN) / WISCRS Sawyer (ftUS)
    {8123, 4152, 201781, 675, 2349, 4, false}, // NAD83(HARN) / WISCRS Sauk (m)
    {8124, 4152, 201748, 676, 2349, 8, false}, // NAD83(HARN) / WISCRS Sauk (ftUS)
    {8125, 4152, 201718, 629, 2326, 4, false}, // NAD83(HARN) / WISCRS Rusk (m)
    {8126, 4152, 201685, 630, 2326, 8, false}, // NAD83(HARN) / WISCRS Rusk (ftUS)
    {8127, 4152, 201655, 673, 2348, 4, false}, // NAD83(HARN) / WISCRS Rock (m)
    {8128, 4152, 201622, 674, 2348, 8, false}, // NAD83(HARN) / WISCRS Rock (ftUS)
    {8129, 4152, 201588, 671, 2347, 4, false}, // NAD83(HARN) / WISCRS Richland (m)
    {8130, 4152, 201551, 672, 2347, 8, false}, // NAD83(HARN) / WISCRS Richland (ftUS)
    {8131, 4152, 201520, 585, 2305, 4, false}, // NAD83(HARN) / WISCRS Price (m)
    {8132, 4152, 201486, 586, 2305, 8, false}, // NAD83(HARN) / WISCRS Price (ftUS)
    {8133, 4152, 201453, 627, 2325, 4, false}, // NAD83(HARN) / WISCRS Portage (m)
    {8134, 4152, 201417, 628, 2325, 8, false}, // NAD83(HARN) / WISCRS Portage (ftUS)
    {8135, 4152, 201387, 625, 2324, 4, false}, // NAD83(HARN) / WISCRS Polk (m)
    {8136, 4152, 201354, 626, 2324, 8, false}, // NAD83(HARN) / WISCRS Polk (ftUS)
    {8137, 4152, 201312, 623, 2323, 4, false}, // NAD83(HARN) / WISCRS Pepin and Pierce (m)
    {8138, 4152, 201267, 624, 2323, 8, false}, // NAD83(HARN) / WISCRS Pepin and Pierce (ftUS)
    {8139, 4152, 201235, 583, 2303, 4, false}, // NAD83(HARN) / WISCRS Oneida (m)
    {8140, 4152, 201200, 584, 2303, 8, false}, // NAD83(HARN) / WISCRS Oneida (ftUS)
    {8141, 4152, 201168, 621, 2322, 4, false}, // NAD83(HARN) / WISCRS Oconto (m)
    {8142, 4152, 201133, 622, 2322, 8, false}, // NAD83(HARN) / WISCRS Oconto (ftUS)
    {8143, 4152, 201101, 669, 2346, 4, false}, // NAD83(HARN) / WISCRS Monroe (m)
    {8144, 4152, 201066, 670, 2346, 8, false}, // NAD83(HARN) / WISCRS Monroe (ftUS)
    {8145, 4152, 201031, 619, 2321, 4, false}, // NAD83(HARN) / WISCRS Menominee (m)
    {8146, 4152, 200993, 620, 2321, 8, false}, // NAD83(HARN) / WISCRS Menominee (ftUS)
    {8147, 4152, 200958, 617, 2320, 4, false}, // NAD83(HARN) / WISCRS Marinette (m)
    {8148, 4152, 200920, 618, 2320, 8, false}, // NAD83(HARN) / WISCRS Marinette (ftUS)
    {8149, 4152, 200886, 615, 2319, 4, false}, // NAD83(HARN) / WISCRS Marathon (m)
    {8150, 4152, 200849, 616, 2319, 8, false}, // NAD83(HARN) / WISCRS Marathon (ftUS)
    {8151, 4152, 200816, 613, 2318, 4, false}, // NAD83(HARN) / WISCRS Lincoln (m)
    {8152, 4152, 200780, 614, 2318, 8, false}, // NAD83(HARN) / WISCRS Lincoln (ftUS)
    {8153, 4152, 200746, 611, 2317, 4, false}, // NAD83(HARN) / WISCRS Langlade (m)
    {8154, 4152, 200709, 612, 2317, 8, false}, // NAD83(HARN) / WISCRS Langlade (ftUS)
    {8155, 4152, 200674, 667, 2345, 4, false}, // NAD83(HARN) / WISCRS La Crosse (m)
    {8156, 4152, 200636, 668, 2345, 8, false}, // NAD83(HARN) / WISCRS La Crosse (ftUS)
    {8157, 4152, 200577, 665, 2344, 4, false}, // NAD83(HARN) / WISCRS Kewaunee, Manitowoc and Sheboygan (m)
    {8158, 4152, 200515, 666, 2344, 8, false}, // NAD83(HARN) / WISCRS Kewaunee, Manitowoc and Sheboygan (ftUS)
    {8159, 4152, 200451, 663, 2343, 4, false}, // NAD83(HARN) / WISCRS Kenosha, Milwaukee, Ozaukee and Racine (m)
    {8160, 4152, 200384, 664, 2343, 8, false}, // NAD83(HARN) / WISCRS Kenosha, Milwaukee, Ozaukee and Racine (ftUS)
    {8161, 4152, 200351, 609, 2316, 4, false}, // NAD83(HARN) / WISCRS Jackson (m)
    {8162, 4152, 200315, 610, 2316, 8, false}, // NAD83(HARN) / WISCRS Jackson (ftUS)
    {8163, 4152, 200285, 581, 2302, 4, false}, // NAD83(HARN) / WISCRS Iron (m)
    {8164, 4152, 200252, 582, 2302, 8, false}, // NAD83(HARN) / WISCRS Iron (ftUS)
    {8165, 4152, 200222, 661, 2342, 4, false}, // NAD83(HARN) / WISCRS Iowa (m)
    {8166, 4152, 200189, 662, 2342, 8, false}, // NAD83(HARN) / WISCRS Iowa (ftUS)
    {8167, 4152, 200046, 659, 2341, 4, false}, // NAD83(HARN) / WISCRS Green Lake and Marquette (m)
    {8168, 4152, 199993, 660, 2341, 8, false}, // NAD83(HARN) / WISCRS Green Lake and Marquette (ftUS)
    {8169, 4152, 200144, 657, 2340, 4, false}, // NAD83(HARN) / WISCRS Green and Lafayette (m)
    {8170, 4152, 200096, 658, 2340, 8, false}, // NAD83(HARN) / WISCRS Green and Lafayette (ftUS)
    {8171, 4152, 199962, 655, 2339, 4, false}, // NAD83(HARN) / WISCRS Grant (m)
    {8172, 4152, 199928, 656, 2339, 8, false}, // NAD83(HARN) / WISCRS Grant (ftUS)
    {8173, 4152, 199896, 579, 2301, 4, false}, // NAD83(HARN) / WISCRS Forest (m)
    {8177, 4152, 199861, 580, 2301, 8, false}, // NAD83(HARN) / WISCRS Forest (ftUS)
    {8179, 4152, 199685, 605, 2314, 4, false}, // NAD83(HARN) / WISCRS Dunn (m)
    {8180, 4152, 199652, 606, 2314, 8, false}, // NAD83(HARN) / WISCRS Dunn (ftUS)
    {8181, 4152, 199619, 575, 2299, 4, false}, // NAD83(HARN) / WISCRS Douglas (m)
    {8182, 4152, 199583, 576, 2299, 8, false}, // NAD83(HARN) / WISCRS Douglas (ftUS)
    {8184, 4152, 199553, 603, 2313, 4, false}, // NAD83(HARN) / WISCRS Door (m)
    {8185, 4152, 199520, 604, 2313, 8, false}, // NAD83(HARN) / WISCRS Door (ftUS)
    {8187, 4152, 199475, 653, 2338, 4, false}, // NAD83(HARN) / WISCRS Dodge and Jefferson (m)
    {8189, 4152, 199427, 654, 2338, 8, false}, // NAD83(HARN) / WISCRS Dodge and Jefferson (ftUS)
    {8191, 4152, 199397, 651, 2337, 4, false}, // NAD83(HARN) / WISCRS Dane (m)
    {8193, 4152, 199364, 652, 2337, 8, false}, // NAD83(HARN) / WISCRS Dane (ftUS)
    {8196, 4152, 199330, 649, 2336, 4, false}, // NAD83(HARN) / WISCRS Crawford (m)
    {8197, 4152, 199293, 650, 2336, 8, false}, // NAD83(HARN) / WISCRS Crawford (ftUS)
    {8198, 4152, 199259, 647, 2335, 4, false}, // NAD83(HARN) / WISCRS Columbia (m)
    {8200, 4152, 199222, 648, 2335, 8, false}, // NAD83(HARN) / WISCRS Columbia (ftUS)
    {8201, 4152, 199191, 601, 2312, 4, false}, // NAD83(HARN) / WISCRS Clark (m)
    {8202, 4152, 199157, 602, 2312, 8, false}, // NAD83(HARN) / WISCRS Clark (ftUS)
    {8203, 4152, 199123, 599, 2311, 4, false}, // NAD83(HARN) / WISCRS Chippewa (m)
    {8204, 4152, 199086, 600, 2311, 8, false}, // NAD83(HARN) / WISCRS Chippewa (ftUS)
    {8205, 4152, 199015, 645, 2334, 4, false}, // NAD83(HARN) / WISCRS Calumet, Fond du Lac, Outagamie and Winnebago (m)
    {8206, 4152, 198941, 646, 2334, 8, false}, // NAD83(HARN) / WISCRS Calumet, Fond du Lac, Outagamie and Winnebago (ftUS)
    {8207, 4152, 198908, 573, 2298, 4, false}, // NAD83(HARN) / WISCRS Burnett (m)
    {8208, 4152, 198872, 574, 2298, 8, false}, // NAD83(HARN) / WISCRS Burnett (ftUS)
    {8209, 4152, 198839, 597, 2310, 4, false}, // NAD83(HARN) / WISCRS Buffalo (m)
    {8210, 4152, 198803, 598, 2310, 8, false}, // NAD83(HARN) / WISCRS Buffalo (ftUS)
    {8212, 4152, 198772, 595, 2309, 4, false}, // NAD83(HARN) / WISCRS Brown (m)
    {8213, 4152, 198738, 596, 2309, 8, false}, // NAD83(HARN) / WISCRS Brown (ftUS)
    {8214, 4152, 198704, 571, 2294, 4, false}, // NAD83(HARN) / WISCRS Bayfield (m)
    {8216, 4152, 198667, 572, 2294, 8, false}, // NAD83(HARN) / WISCRS Bayfield (ftUS)
    {8218, 4152, 198635, 593, 2304, 4, false}, // NAD83(HARN) / WISCRS Barron (m)
    {8220, 4152, 198600, 594, 2304, 8, false}, // NAD83(HARN) / WISCRS Barron (ftUS)
    {8222, 4152, 198567, 569, 2293, 4, false}, // NAD83(HARN) / WISCRS Ashland (m)
    {8224, 4152, 198531, 570, 2293, 8, false}, // NAD83(HARN) / WISCRS Ashland (ftUS)
    {8225, 4152, 198489, 643, 2333, 4, false}, // NAD83(HARN) / WISCRS Adams and Juneau (m)
    {8226, 4152, 198444, 644, 2333, 8, false}, // NAD83(HARN) / WISCRS Adams and Juneau (ftUS)
    {8232, 1192, 190624, geographic, 16, 25, false}, // NAD83(CSRS96)
    {8237, 1193, 186481, geographic, 16, 25, false}, // NAD83(CSRS)v2
    {8240, 1194, 187432, geographic, 16, 25, false}, // NAD83(CSRS)v3
    {8246, 1195, 188255, geographic, 16, 25, false}, // NAD83(CSRS)v4
    {8249, 1196, 188906, geographic, 16, 25, false}, // NAD83(CSRS)v5
    {8252, 1197, 188920, geographic, 16, 25, false}, // NAD83(CSRS)v6
    {8255, 1198, 189939, geographic, 16, 25, false}, // NAD83(CSRS)v7
    {8311, 6318, 170846, 766, 2424, 4, false}, // NAD83(2011) / Oregon Burns-Harper zone (m)
    {8312, 6318, 170802, 767, 2424, 6, false}, // NAD83(2011) / Oregon Burns-Harper zone (ft)
    {8313, 6318, 170938, 768, 2428, 4, false}, // NAD83(2011) / Oregon Canyon City-Burns zone (m)
    {8314, 6318, 170889, 769, 2428, 6, false}, // NAD83(2011) / Oregon Canyon City-Burns zone (ft)
    {8315, 6318, 171144, 770, 2433, 4, false}, // NAD83(2011) / Oregon Coast Range North zone (m)
    {8316, 6318, 171095, 771, 2433, 6, false}, // NAD83(2011) / Oregon Coast Range North zone (ft)
    {8317, 6318, 171633, 772, 2436, 4, false}, // NAD83(2011) / Oregon Dayville-Prairie City zone (m)
    {8318, 6318, 171580, 773, 2436, 6, false}, // NAD83(2011) / Oregon Dayville-Prairie City zone (ft)
    {8319, 6318, 171728, 774, 2437, 4, false}, // NAD83(2011) / Oregon Denio-Burns zone (m)
    {8320, 6318, 171685, 775, 2437, 6, false}, // NAD83(2011) / Oregon Denio-Burns zone (ft)
    {8321, 6318, 172213, 776, 2438, 4, false}, // NAD83(2011) / Oregon Halfway zone (m)
    {8322, 6318, 172174, 777, 2438, 6, false}, // NAD83(2011) / Oregon Halfway zone (ft)
    {8323, 6318, 172413, 778, 2439, 4, false}, // NAD83(2011) / Oregon Medford-Diamond Lake zone (m)
    {8324, 6318, 172361, 779, 2439, 6, false}, // NAD83(2011) / Oregon Medford-Diamond Lake zone (ft)
    {8325, 6318, 172504, 780, 2440, 4, false}, // NAD83(2011) / Oregon Mitchell zone (m)
    {8326, 6318, 172464, 781, 2440, 6, false}, // NAD83(2011) / Oregon Mitchell zone (ft)
    {8327, 6318, 172647, 782, 2441, 4, false}, // NAD83(2011) / Oregon North Central zone (m)
    {8328, 6318, 172602, 783, 2441, 6, false}, // NAD83(2011) / Oregon North Central zone (ft)
    {8329, 6318, 172736, 784, 2443, 4, false}, // NAD83(2011) / Oregon Ochoco Summit zone (m)
    {8330, 6318, 172691, 785, 2443, 6, false}, // NAD83(2011) / Oregon Ochoco Summit zone (ft)
    {8331, 6318, 172895, 786, 2444, 4, false}, // NAD83(2011) / Oregon Owyhee zone (m)
    {8332, 6318, 172857, 787, 2444, 6, false}, // NAD83(2011) / Oregon Owyhee zone (ft)
    {8333, 6318, 173162, 788, 2445, 4, false}, // NAD83(2011) / Oregon Pilot Rock-Ukiah zone (m)
    {8334, 6318, 173114, 789, 2445, 6, false}, // NAD83(2011) / Oregon Pilot Rock-Ukiah zone (ft)
    {8335, 6318, 173339, 790, 2446, 4, false}, // NAD83(2011) / Oregon Prairie City-Brogan zone (m)
    {8336, 6318, 173288, 791, 2446, 6, false}, // NAD83(2011) / Oregon Prairie City-Brogan zone (ft)
    {8337, 6318, 173435, 792, 2423, 4, false}, // NAD83(2011) / Oregon Riley-Lakeview zone (m)
    {8338, 6318, 173389, 793, 2423, 6, false}, // NAD83(2011) / Oregon Riley-Lakeview zone (ft)
    {8339, 6318, 173685, 794, 2427, 4, false}, // NAD83(2011) / Oregon Siskiyou Pass zone (m)
    {8340, 6318, 173640, 795, 2427, 6, false}, // NAD83(2011) / Oregon Siskiyou Pass zone (ft)
    {8341, 6318, 173829, 796, 2432, 4, false}, // NAD83(2011) / Oregon Ukiah-Fox zone (m)
    {8342, 6318, 173788, 797, 2432, 6, false}, // NAD83(2011) / Oregon Ukiah-Fox zone (ft)
    {8343, 6318, 173908, 798, 2442, 4, false}, // NAD83(2011) / Oregon Wallowa zone (m)
    {8344, 6318, 173869, 799, 2442, 6, false}, // NAD83(2011) / Oregon Wallowa zone (ft)
    {8345, 6318, 173992, 800, 2448, 4, false}, // NAD83(2011) / Oregon Warner Highway zone (m)
    {8346, 6318, 173946, 801, 2448, 6, false}, // NAD83(2011) / Oregon Warner Highway zone (ft)
    {8347, 6318, 174084, 802, 2450, 4, false}, // NAD83(2011) / Oregon Willamette Pass zone (m)
    {8348, 6318, 174037, 803, 2450, 6, false}, // NAD83(2011) / Oregon Willamette Pass zone (ft)
    {8351, 1201, 280996, geographic, 91, 25, false}, // S-JTSK [JTSK03]
    {8352, 8351, 281012, 182, 91, 1, false}, // S-JTSK [JTSK03] / Krovak
    {8353, 8351, 281037, 183, 91, 4, false}, // S-JTSK [JTSK03] / Krovak East North
    {8379, 4269, 155369, 804, 2447, 4, false}, // NAD83 / NCRS Las Vegas (m)
    {8380, 4269, 155339, 805, 2447, 8, false}, // NAD83 / NCRS Las Vegas (ftUS)
    {8381, 4269, 155431, 806, 2449, 4, false}, // NAD83 / NCRS Las Vegas high (m)
    {8382, 4269, 155396, 807, 2449, 8, false}, // NAD83 / NCRS Las Vegas high (ftUS)
    {8383, 6318, 169040, 804, 2447, 4, false}, // NAD83(2011) / NCRS Las Vegas (m)
    {8384, 6318, 169004, 805, 2447, 8, false}, // NAD83(2011) / NCRS Las Vegas (ftUS)
    {8385, 6318, 169114, 806, 2449, 4, false}, // NAD83(2011) / NCRS Las Vegas high (m)
    {8387, 6318, 169073, 807, 2449, 8, false}, // NAD83(2011) / NCRS Las Vegas high (ftUS)
    {8391, 4283, 82913, 808, 2453, 4, false}, // GDA94 / WEIPA94
    {8395, 4258, 66633, 1543, 2452, 4, false}, // ETRS89 / Gauss-Kruger CM 9E
    {8427, 1209, 100552, geographic, 42, 25, false}, // Hong Kong Geodetic CS
    {8428, 1207, 134291, geographic, 62, 25, false}, // Macao 1920
    {8431, 1208, 134349, geographic, 62, 25, false}, // Macao 2008
    {8433, 8428, 134302, 809, 62, 5, false}, // Macao 1920 / Macao Grid
    {8441, 4297, 310599, 810, 1507, 5, false}, // Tananarive / Laborde Grid
    {8449, 6152, 191266, geographic, 2476, 25, true}, // NAD83(FBN)
    {8455, 7073, 273220, 1451, 2451, 4, false}, // RGTAAF07 / UTM zone 53S
    {8456, 7073, 273244, 1452, 2454, 4, false}, // RGTAAF07 / UTM zone 54S
    {8518, 6318, 166748, 811, 2456, 8, false}, // NAD83(2011) / KS RCS zone 1
    {8519, 6318, 167066, 812, 2457, 8, false}, // NAD83(2011) / KS RCS zone 2
    {8520, 6318, 167123, 813, 2458, 8, false}, // NAD83(2011) / KS RCS zone 3
    {8521, 6318, 167151, 814, 2455, 8, false}, // NAD83(2011) / KS RCS zone 4
    {8522, 6318, 167179, 815, 2459, 8, false}, // NAD83(2011) / KS RCS zone 5
    {8523, 6318, 167207, 816, 2460, 8, false}, // NAD83(2011) / KS RCS zone 6
    {8524, 6318, 167235, 817, 2461, 8, false}, // NAD83(2011) / KS RCS zone 7
    {8525, 6318, 167263, 818, 2462, 8, false}, // NAD83(2011) / KS RCS zone 8
    {8526, 6318, 167291, 819, 2463, 8, false}, // NAD83(2011) / KS RCS zone 9
    {8527, 6318, 166776, 820, 2464, 8, false}, // NAD83(2011) / KS RCS zone 10
    {8528, 6318, 166805, 821, 2465, 8, false}, // NAD83(2011) / KS RCS zone 11
    {8529, 6318, 166834, 822, 2466, 8, false}, // NAD83(2011) / KS RCS zone 12
    {8531, 6318, 166863, 823, 2467, 8, false}, // NAD83(2011) / KS RCS zone 13
    {8533, 6318, 166892, 824, 2468, 8, false}, // NAD83(2011) / KS RCS zone 14
    {8534, 6318, 166921, 825, 2469, 8, false}, // NAD83(2011) / KS RCS zone 15
    {8535, 6318, 166950, 826, 2470, 8, false}, // NAD83(2011) / KS RCS zone 16
    {8536, 6318, 166979, 827, 2471, 8, false}, // NAD83(2011) / KS RCS zone 17
    {8538, 6318, 167008, 828, 2472, 8, false}, // NAD83(2011) / KS RCS zone 18
    {8539, 6318, 167037, 829, 2473, 8, false}, // NAD83(2011) / KS RCS zone 19
    {8540, 6318, 167094, 830, 2474, 8, false}, // NAD83(2011) / KS RCS zone 20
    {8545, 1212, 191277, geographic, 1768, 25, false}, // NAD83(HARN Corrected)
    {8677, 3906, 132979, 2180, 501, 4, false}, // MGI 1901 / Balkans zone 5
    {8678, 3906, 133005, 2181, 502, 4, false}, // MGI 1901 / Balkans zone 6
    {8679, 3906, 133057, 2183, 504, 4, false}, // MGI 1901 / Balkans zone 8
    {8682, 8685, 294695, 1343, 2494, 4, false}, // SRB_ETRS89 / UTM zone 34N
    {8685, 1214, 294684, geographic, 2494, 25, false}, // SRB_ETRS89
    {8686, 3906, 133116, 2355, 92, 4, false}, // MGI 1901 / Slovenia Grid
    {8687, 4765, 299466, 1342, 92, 4, false}, // Slovenia 1996 / UTM zone 33N
    {8692, 6325, 203652, 1363, 2475, 4, false}, // NAD83(MA11) / UTM zone 54N
    {8693, 6325, 203679, 1364, 2477, 4, false}, // NAD83(MA11) / UTM zone 55N
    {8694, 1217, 42706, geographic, 4, 25, false}, // Camacupa 2015
    {8699, 1220, 273563, geographic, 4, 25, false}, // RSAO13
    {8818, 1218, 134071, geographic, 88, 25, false}, // MTRF-2000
    {8826, 4269, 153185, 831, 197, 4, false}, // NAD83 / Idaho Transverse Mercator
    {8836, 8818, 134081, 1345, 2481, 4, false}, // MTRF-2000 / UTM zone 36N
    {8837, 8818, 134106, 1346, 2483, 4, false}, // MTRF-2000 / UTM zone 37N
    {8838, 8818, 134131, 1347, 2484, 4, false}, // MTRF-2000 / UTM zone 38N
    {8839, 8818, 134156, 1348, 2485, 4, false}, // MTRF-2000 / UTM zone 39N
    {8840, 8818, 134181, 1349, 1406, 4, false}, // MTRF-2000 / UTM zone 40N
    {8857, 4326, 345336, 832, 109, 4, false}, // WGS 84 / Equal Earth Greenwich
    {8858, 4326, 345272, 833, 2479, 4, false}, // WGS 84 / Equal Earth Americas
    {8859, 4326, 345302, 834, 2480, 4, false}, // WGS 84 / Equal Earth Asia-Pacific
    {8860, 1211, 191266, geographic, 2476, 25, false}, // NAD83(FBN)
    {8888, 1166, 343034, geographic, 109, 25, false}, // WGS 84 (Transit)
    {8900, 1223, 273392, geographic, 106, 25, false}, // RGWF96
    {8902, 1223, 273416, geographic, 106, 24, false}, // RGWF96 (lon-lat)
    {8903, 8900, 273433, 1399, 106, 4, false}, // RGWF96 / UTM zone 1S
    {8907, 1225, 41753, geographic, 24, 25, false}, // CR-SIRGAS
    {8908, 8907, 41763, 169, 1486, 4, false}, // CR-SIRGAS / CRTM05
    {8909, 8907, 41782, 1325, 2488, 4, false}, // CR-SIRGAS / UTM zone 16N
    {8910, 8907, 41807, 1326, 2487, 4, false}, // CR-SIRGAS / UTM zone 17N
    {8949, 1243, 284562, geographic, 19, 25, false}, // SIRGAS-Chile 2010
    {8950, 8949, 284580, 1416, 1888, 4, false}, // SIRGAS-Chile 2010 / UTM zone 18S
    {8951, 8949, 284613, 1417, 1882, 4, false}, // SIRGAS-Chile 2010 / UTM zone 19S
    {8972, 1227, 284119, geographic, 2486, 25, false}, // SIRGAS-CON DGF00P01
    {8973, 1228, 284139, geographic, 2486, 25, false}, // SIRGAS-CON DGF01P01
    {8974, 1229, 284159, geographic, 2486, 25, false}, // SIRGAS-CON DGF01P02
    {8975, 1230, 284179, geographic, 2486, 25, false}, // SIRGAS-CON DGF02P01
    {8976, 1231, 284199, geographic, 2486, 25, false}, // SIRGAS-CON DGF04P01
    {8977, 1232, 284219, geographic, 2486, 25, false}, // SIRGAS-CON DGF05P01
    {8978, 1233, 284239, geographic, 2486, 25, false}, // SIRGAS-CON DGF06P01
    {8979, 1234, 284259, geographic, 2486, 25, false}, // SIRGAS-CON DGF07P01
    {8980, 1235, 284279, geographic, 2486, 25, false}, // SIRGAS-CON DGF08P01
    {8981, 1236, 284299, geographic, 2486, 25, false}, // SIRGAS-CON SIR09P01
    {8982, 1237, 284319, geographic, 2486, 25, false}, // SIRGAS-CON SIR10P01
    {8983, 1238, 284339, geographic, 2486, 25, false}, // SIRGAS-CON SIR11P01
    {8984, 1239, 284359, geographic, 2486, 25, false}, // SIRGAS-CON SIR13P01
    {8985, 1240, 284379, geographic, 2486, 25, false}, // SIRGAS-CON SIR14P01
    {8986, 1241, 284399, geographic, 2486, 25, false}, // SIRGAS-CON SIR15P01
    {8987, 1242, 284419, geographic, 2486, 25, false}, // SIRGAS-CON SIR17P01
    {8988, 6647, 104286, geographic, 109, 25, false}, // ITRF88
    {8989, 6648, 104309, geographic, 109, 25, false}, // ITRF89
    {8990, 6649, 104332, geographic, 109, 25, false}, // ITRF90
    {8991, 6650, 104355, geographic, 109, 25, false}, // ITRF91
    {8992, 6651, 139429, geographic, 109, 25, false}, // ITRF92
    {8993, 6652, 104394, geographic, 109, 25, false}, // ITRF93
    {8994, 6653, 104417, geographic, 109, 25, false}, // ITRF94
    {8995, 6654, 104440, geographic, 109, 25, false}, // ITRF96
    {8996, 6655, 104463, geographic, 109, 25, false}, // ITRF97
    {8997, 6656, 104160, geographic, 109, 25, false}, // ITRF2000
    {8998, 6896, 104187, geographic, 109, 25, false}, // ITRF2005
    {8999, 1061, 139205, geographic, 109, 25, false}, // ITRF2008
    {9000, 1165, 104232, geographic, 109, 25, false}, // ITRF2014
    {9003, 1244, 103439, geographic, 109, 25, false}, // IGS97
    {9006, 1245, 103355, geographic, 109, 25, false}, // IGS00
    {9009, 1246, 103460, geographic, 109, 25, false}, // IGb00
    {9012, 1247, 103376, geographic, 109, 25, false}, // IGS05
    {9014, 1141, 103397, geographic, 109, 25, false}, // IGS08
    {9017, 1248, 103481, geographic, 109, 25, false}, // IGb08
    {9019, 1191, 103418, geographic, 109, 25, false}, // IGS14
    {9039, 8086, 103876, 2372, 44, 5, false}, // ISN2016 / LAEA Europe
    {9040, 8086, 103898, 2371, 44, 5, false}, // ISN2016 / LCC Europe
    {9053, 1152, 343006, geographic, 109, 25, false}, // WGS 84 (G730)
    {9054, 1153, 343020, geographic, 109, 25, false}, // WGS 84 (G873)
    {9055, 1154, 342946, geographic, 109, 25, false}, // WGS 84 (G1150)
    {9056, 1155, 342961, geographic, 109, 25, false}, // WGS 84 (G1674)
    {9057, 1156, 342976, geographic, 109, 25, false}, // WGS 84 (G1762)
    {9059, 1178, 65284, geographic, 132, 25, false}, // ETRF89
    {9060, 1179, 65317, geographic, 132, 25, false}, // ETRF90
    {9061, 1180, 65340, geographic, 132, 25, false}, // ETRF91
    {9062, 1181, 65363, geographic, 132, 25, false}, // ETRF92
    {9063, 1182, 65386, geographic, 132, 25, false}, // ETRF93
    {9064, 1183, 65409, geographic, 132, 25, false}, // ETRF94
    {9065, 1184, 65432, geographic, 132, 25, false}, // ETRF96
    {9066, 1185, 65455, geographic, 132, 25, false}, // ETRF97
    {9067, 1186, 240737, geographic, 132, 25, false}, // ETRF2000
    {9068, 1204, 65231, geographic, 132, 25, false}, // ETRF2005
    {9069, 1206, 65258, geographic, 132, 25, false}, // ETRF2014
    {9072, 1221, 203706, geographic, 2158, 25, false}, // NAD83(MARP00)
    {9075, 1249, 213448, geographic, 2156, 25, false}, // NAD83(PACP00)
    {9140, 1251, 117467, geographic, 2493, 25, false}, // KOSOVAREF01
    {9141, 9140, 117498, 2182, 2493, 4, false}, // KOSOVAREF01 / Balkans zone 7
    {9148, 1252, 284646, geographic, 19, 25, false}, // SIRGAS-Chile 2013
    {9149, 9148, 284664, 1416, 1888, 4, false}, // SIRGAS-Chile 2013 / UTM zone 18S
    {9150, 9148, 284697, 1417, 1882, 4, false}, // SIRGAS-Chile 2013 / UTM zone 19S
    {9153, 1253, 284730, geographic, 19, 25, false}, // SIRGAS-Chile 2016
    {9154, 9153, 284748, 1416, 1888, 4, false}, // SIRGAS-Chile 2016 / UTM zone 18S
    {9155, 9153, 284781, 1417, 1882, 4, false}, // SIRGAS-Chile 2016 / UTM zone 19S
    {9156, 8699, 273588, 1430, 2500, 4, false}, // RSAO13 / UTM zone 32S
    {9157, 8699, 273610, 1431, 2504, 4, false}, // RSAO13 / UTM zone 33S
    {9158, 8699, 273632, 1432, 2490, 4, false}, // RSAO13 / UTM zone 34S
    {9159, 8699, 273570, 1602, 399, 4, false}, // RSAO13 / TM 12 SE
    {9184, 1254, 284451, geographic, 19, 25, true}, // SIRGAS-Chile
    {9191, 4326, 345820, 836, 1667, 4, false}, // WGS 84 / NIWA Albers
    {9205, 4756, 333850, 835, 2492, 4, false}, // VN-2000 / TM-3 103-00
    {9206, 4756, 333872, 837, 2489, 4, false}, // VN-2000 / TM-3 104-00
    {9207, 4756, 333894, 838, 2495, 4, false}, // VN-2000 / TM-3 104-30
    {9208, 4756, 333916, 839, 2496, 4, false}, // VN-2000 / TM-3 104-45
    {9209, 4756, 333938, 840, 2497, 4, false}, // VN-2000 / TM-3 105-30
    {9210, 4756, 333960, 841, 2498, 4, false}, // VN-2000 / TM-3 105-45
    {9211, 4756, 333982, 842, 2499, 4, false}, // VN-2000 / TM-3 106-00
    {9212, 4756, 334004, 843, 2501, 4, false}, // VN-2000 / TM-3 106-15
    {9213, 4756, 334026, 844, 2502, 4, false}, // VN-2000 / TM-3 106-30
    {9214, 4756, 334048, 845, 2503, 4, false}, // VN-2000 / TM-3 107-00
    {9215, 4756, 334070, 846, 2505, 4, false}, // VN-2000 / TM-3 107-15
    {9216, 4756, 334092, 847, 2506, 4, false}, // VN-2000 / TM-3 107-30
    {9217, 4756, 334136, 848, 2507, 4, false}, // VN-2000 / TM-3 108-15
    {9218, 4756, 334158, 849, 2508, 4, false}, // VN-2000 / TM-3 108-30
    {9221, 4148, 99246, 850, 2513, 5, false}, // Hartebeesthoek94 / ZAF BSU Albers 25E
    {9222, 4148, 99284, 851, 2514, 5, false}, // Hartebeesthoek94 / ZAF BSU Albers 44E
    {9248, 1257, 310772, geographic, 2515, 25, false}, // Tapi Aike
    {9249, 9248, 310782, 2043, 2516, 5, false}, // Tapi Aike / Argentina 1
    {9250, 9248, 310806, 2044, 2517, 5, false}, // Tapi Aike / Argentina 2
    {9251, 1258, 133348, geographic, 1074, 25, false}, // MMN
    {9252, 9251, 133352, 2044, 1074, 5, false}, // MMN / Argentina 2
    {9253, 1259, 133386, geographic, 1074, 25, false}, // MMS
    {9254, 9253, 133390, 2044, 1074, 5, false}, // MMS / Argentina 2
    {9265, 5340, 241332, 1417, 1109, 4, false}, // POSGAR 2007 / UTM zone 19S
    {9271, 4312, 132789, 852, 498, 5, false}, // MGI / Austria West
    {9272, 4312, 132540, 853, 499, 5, false}, // MGI / Austria Central
    {9273, 4312, 132562, 854, 500, 5, false}, // MGI / Austria East
    {9284, 4161, 243539, 2043, 2511, 5, false}, // Pampa del Castillo / Argentina 1
    {9285, 4161, 243605, 2045, 2512, 5, false}, // Pampa del Castillo / Argentina 3
    {9294, 1263, 234549, geographic, 78, 25, false}, // ONGD17
    {9295, 9294, 234556, 1348, 2295, 4, false}, // ONGD17 / UTM zone 39N
    {9296, 9294, 234578, 1349, 2296, 4, false}, // ONGD17 / UTM zone 40N
    {9297, 9294, 234600, 1350, 2297, 4, false}, // ONGD17 / UTM zone 41N
    {9299, 1264, 98266, geographic, 2524, 25, false}, // HS2-IRF
    {9300, 9299, 98250, 855, 2524, 4, false}, // HS2 Survey Grid
    {9309, 1291, 4924, geographic, 2164, 25, false}, // ATRF2014
    {9311, 4267, 148413, 22, 103, 4, false}, // NAD27 / US National Atlas Equal Area
    {9333, 1268, 117578, geographic, 88, 25, false}, // KSA-GRF17
    {9354, 4326, 345516, 856, 2526, 4, false}, // WGS 84 / IBCSO Polar Stereographic
    {9356, 9333, 117607, 1345, 2481, 4, false}, // KSA-GRF17 / UTM zone 36N
    {9357, 9333, 117632, 1346, 2483, 4, false}, // KSA-GRF17 / UTM zone 37N
    {9358, 9333, 117657, 1347, 2484, 4, false}, // KSA-GRF17 / UTM zone 38N
    {9359, 9333, 117682, 1348, 2485, 4, false}, // KSA-GRF17 / UTM zone 39N
    {9360, 9333, 117707, 1349, 1406, 4, false}, // KSA-GRF17 / UTM zone 40N
    {9364, 1266, 309317, geographic, 2525, 25, false}, // TPEN11-IRF
    {9367, 9364, 309269, 857, 2525, 4, false}, // TPEN11 Grid
    {9372, 1271, 133283, geographic, 2528, 25, false}, // MML07-IRF
    {9373, 9372, 133237, 858, 2528, 4, false}, // MML07 Grid
    {9377, 4686, 131343, 859, 22, 5, false}, // MAGNA-SIRGAS / Origen-Nacional
    {9380, 1272, 103502, geographic, 109, 25, false}, // IGb14
    {9384, 1273, 5375, geographic, 2529, 25, false}, // AbInvA96_2020-IRF
    {9387, 9384, 5313, 860, 2529, 4, false}, // AbInvA96_2020 Grid
    {9391, 7798, 28852, 1344, 2394, 4, false}, // BGS2005 / UTM zone 35N
    {9403, 1286, 240753, geographic, 1928, 25, false}, // PN68
    {9404, 9403, 240758, 1336, 2531, 4, false}, // PN68 / UTM zone 27N
    {9405, 9403, 240778, 1337, 2532, 4, false}, // PN68 / UTM zone 28N
    {9406, 4728, 240839, 1336, 2531, 4, false}, // PN84 / UTM zone 27N
    {9407, 4728, 240859, 1337, 2533, 4, false}, // PN84 / UTM zone 28N
    {9453, 1289, 81385, geographic, 2534, 25, false}, // GBK19-IRF
    {9456, 9453, 81339, 861, 2534, 4, false}, // GBK19 Grid
    {9470, 1293, 294752, geographic, 46, 25, false}, // SRGI2013
    {9473, 7844, 81563, 1864, 1102, 4, false}, // GDA2020 / Australian Albers
    {9474, 1157, 242713, geographic, 109, 25, false}, // PZ-90.02
    {9475, 1158, 242722, geographic, 109, 25, false}, // PZ-90.11
    {9476, 9470, 294761, 1355, 440, 4, false}, // SRGI2013 / UTM zone 46N
    {9477, 9470, 294785, 1356, 442, 4, false}, // SRGI2013 / UTM zone 47N
    {9478, 9470, 294833, 1357, 444, 4, false}, // SRGI2013 / UTM zone 48N
    {9479, 9470, 294881, 1358, 446, 4, false}, // SRGI2013 / UTM zone 49N
    {9480, 9470, 294929, 1359, 448, 4, false}, // SRGI2013 / UTM zone 50N
    {9481, 9470, 294977, 1360, 450, 4, false}, // SRGI2013 / UTM zone 51N
    {9482, 9470, 295025, 1361, 452, 4, false}, // SRGI2013 / UTM zone 52N
    {9487, 9470, 294809, 1445, 443, 4, false}, // SRGI2013 / UTM zone 47S
    {9488, 9470, 294857, 1446, 445, 4, false}, // SRGI2013 / UTM zone 48S
    {9489, 9470, 294905, 1447, 447, 4, false}, // SRGI2013 / UTM zone 49S
    {9490, 9470, 294953, 1448, 449, 4, false}, // SRGI2013 / UTM zone 50S
    {9491, 9470, 295001, 1449, 451, 4, false}, // SRGI2013 / UTM zone 51S
    {9492, 9470, 295049, 1450, 453, 4, false}, // SRGI2013 / UTM zone 52S
    {9493, 9470, 295073, 1451, 455, 4, false}, // SRGI2013 / UTM zone 53S
    {9494, 9470, 295097, 1452, 456, 4, false}, // SRGI2013 / UTM zone 54S
    {9498, 5340, 241308, 862, 2535, 5, false}, // POSGAR 2007 / CABA 2019
    {9547, 1295, 125377, geographic, 2537, 25, false}, // LTF2004(G)
    {9674, 4269, 157644, 863, 1080, 4, false}, // NAD83 / USFS R6 Albers
    {9678, 4682, 97713, 864, 1479, 4, false}, // Gulshan 303 / Bangladesh Transverse Mercator
    {9680, 4326, 348971, 1598, 8, 4, false}, // WGS 84 / TM 90 NE
    {9696, 1304, 270184, geographic, 19, 25, false}, // REDGEOMIN
    {9697, 9696, 270194, 1410, 1459, 4, false}, // REDGEOMIN / UTM zone 12S
    {9698, 9696, 270219, 1416, 1888, 4, false}, // REDGEOMIN / UTM zone 18S
    {9699, 9696, 270244, 1417, 1882, 4, false}, // REDGEOMIN / UTM zone 19S
    {9702, 1305, 65104, geographic, 84, 25, false}, // ETRF2000-PL
    {9709, 4617, 186308, 1332, 938, 4, false}, // NAD83(CSRS) / UTM zone 23N
    {9712, 4269, 157981, 1333, 2538, 4, false}, // NAD83 / UTM zone 24N
    {9713, 4617, 186335, 1333, 2538, 4, false}, // NAD83(CSRS) / UTM zone 24N
    {9716, 4670, 102431, 1343, 2174, 4, false}, // IGM95 / UTM zone 34N
    {9739, 1308, 62293, geographic, 2539, 25, false}, // EOS21-IRF
    {9741, 9739, 62247, 865, 2539, 4, false}, // EOS21 Grid
    {9748, 6318, 159492, 866, 939, 8, false}, // NAD83(2011) / Alabama East (ftUS)
    {9749, 6318, 159553, 867, 940, 8, false}, // NAD83(2011) / Alabama West (ftUS)
    {9755, 1309, 342991, geographic, 109, 25, false}, // WGS 84 (G2139)
    {9758, 1310, 60921, geographic, 2540, 25, false}, // ECML14_NB-IRF
    {9761, 9758, 60867, 868, 2540, 4, false}, // ECML14_NB Grid
    {9763, 1311, 68658, geographic, 2541, 25, false}, // EWR2-IRF
    {9766, 9763, 68614, 869, 2541, 4, false}, // EWR2 Grid
    {9777, 1312, 271010, geographic, 36, 25, false}, // RGF93 v2
    {9779, 1312, 271038, geographic, 36, 24, false}, // RGF93 v2 (lon-lat)
    {9782, 1313, 271223, geographic, 36, 25, false}, // RGF93 v2b
    {9784, 1313, 271253, geographic, 36, 24, false}, // RGF93 v2b (lon-lat)
    {9793, 9777, 271201, 2080, 36, 4, false}, // RGF93 v2 / Lambert-93
    {9794, 9782, 271426, 2080, 36, 4, false}, // RGF93 v2b / Lambert-93
    {9821, 5561, 315801, 870, 2552, 5, false}, // UCS-2000 / LCS-32 Kyiv region
    {9822, 9777, 271057, 2086, 1696, 4, false}, // RGF93 v2 / CC42
    {9823, 9777, 271073, 2087, 1697, 4, false}, // RGF93 v2 / CC43
    {9824, 9777, 271089, 2088, 1698, 4, false}, // RGF93 v2 / CC44
    {9825, 9777, 271105, 2089, 1699, 4, false}, // RGF93 v2 / CC45
    {9826, 9777, 271121, 2090, 1700, 4, false}, // RGF93 v2 / CC46
    {9827, 9777, 271137, 2091, 1701, 4, false}, // RGF93 v2 / CC47
    {9828, 9777, 271153, 2092, 1702, 4, false}, // RGF93 v2 / CC48
    {9829, 9777, 271169, 2093, 1703, 4, false}, // RGF93 v2 / CC49
    {9830, 9777, 271185, 2094, 1704, 4, false}, // RGF93 v2 / CC50
    {9831, 5561, 315543, 871, 2567, 5, false}, // UCS-2000 / LCS-01 Crimea
    {9832, 5561, 315568, 872, 2562, 5, false}, // UCS-2000 / LCS-05 Vinnytsia
    {9833, 5561, 315596, 873, 2563, 5, false}, // UCS-2000 / LCS-07 Volyn
    {9834, 5561, 315620, 874, 2546, 5, false}, // UCS-2000 / LCS-12 Dnipropetrovsk
    {9835, 5561, 315653, 875, 2547, 5, false}, // UCS-2000 / LCS-14 Donetsk
    {9836, 5561, 315679, 876, 2566, 5, false}, // UCS-2000 / LCS-18 Zhytomyr
    {9837, 5561, 315706, 877, 2564, 5, false}, // UCS-2000 / LCS-21 Zakarpattia
    {9838, 5561, 315736, 878, 2565, 5, false}, // UCS-2000 / LCS-23 Zaporizhzhia
    {9839, 5561, 315767, 879, 2548, 5, false}, // UCS-2000 / LCS-26 Ivano-Frankivsk
    {9840, 5561, 315831, 880, 2553, 5, false}, // UCS-2000 / LCS-35 Kirovohrad
    {9841, 5561, 315860, 881, 2554, 5, false}, // UCS-2000 / LCS-44 Luhansk
    {9842, 9782, 271273, 2086, 1696, 4, false}, // RGF93 v2b / CC42
    {9843, 9782, 271290, 2087, 1697, 4, false}, // RGF93 v2b / CC43
    {9844, 9782, 271307, 2088, 1698, 4, false}, // RGF93 v2b / CC44
    {9845, 9782, 271324, 2089, 1699, 4, false}, // RGF93 v2b / CC45
    {9846, 9782, 271341, 2090, 1700, 4, false}, // RGF93 v2b / CC46
    {9847, 9782, 271358, 2091, 1701, 4, false}, // RGF93 v2b / CC47
    {9848, 9782, 271375, 2092, 1702, 4, false}, // RGF93 v2b / CC48
    {9849, 9782, 271392, 2093, 1703, 4, false}, // RGF93 v2b / CC49
    {9850, 9782, 271409, 2094, 1704, 4, false}, // RGF93 v2b / CC50
    {9851, 5561, 315886, 882, 2555, 5, false}, // UCS-2000 / LCS-46 Lviv
    {9852, 5561, 315909, 883, 2556, 5, false}, // UCS-2000 / LCS-48 Mykolaiv
    {9853, 5561, 315936, 884, 2557, 5, false}, // UCS-2000 / LCS-51 Odessa
    {9854, 5561, 315961, 885, 2558, 5, false}, // UCS-2000 / LCS-53 Poltava
    {9855, 5561, 315987, 886, 2559, 5, false}, // UCS-2000 / LCS-56 Rivne
    {9856, 5561, 316011, 887, 2560, 5, false}, // UCS-2000 / LCS-59 Sumy
    {9857, 5561, 316034, 888, 2561, 5, false}, // UCS-2000 / LCS-61 Ternopil
    {9858, 5561, 316061, 889, 2549, 5, false}, // UCS-2000 / LCS-63 Kharkiv
    {9859, 5561, 316087, 890, 2550, 5, false}, // UCS-2000 / LCS-65 Kherson
    {9860, 5561, 316113, 886, 2551, 5, false}, // UCS-2000 / LCS-68 Khmelnytsky
    {9861, 5561, 316143, 891, 2543, 5, false}, // UCS-2000 / LCS-71 Cherkasy
    {9862, 5561, 316170, 892, 2545, 5, false}, // UCS-2000 / LCS-73 Chernivtsi
    {9863, 5561, 316199, 893, 2544, 5, false}, // UCS-2000 / LCS-74 Chernihiv
    {9864, 5561, 316227, 870, 2542, 5, false}, // UCS-2000 / LCS-80 Kyiv city
    {9865, 5561, 316255, 894, 2568, 5, false}, // UCS-2000 / LCS-85 Sevastopol
    {9866, 1314, 133727, geographic, 2569, 25, false}, // MRH21-IRF
    {9869, 9866, 133681, 895, 2569, 4, false}, // MRH21 Grid
    {9871, 1315, 133476, geographic, 2572, 25, false}, // MOLDOR11-IRF
    {9874, 5546, 240993, 896, 2570, 4, false}, // PNG94 / PNGMG94 zone 57
    {9875, 5546, 241017, 897, 2571, 4, false}, // PNG94 / PNGMG94 zone 58
    {9880, 9871, 133424, 898, 2572, 4, false}, // MOLDOR11 Grid
    {9895, 4181, 125416, 899, 61, 5, false}, // LUREF / Luxembourg TM (3D)
    {9939, 1319, 60844, geographic, 2573, 25, false}, // EBBWV14-IRF
    {9943, 9939, 60794, 901, 2573, 4, false}, // EBBWV14 Grid
    {9945, 3906, 134520, 900, 63, 4, false}, // Macedonia State Coordinate System truncated
    {9947, 5324, 103801, 902, 44, 4, false}, // ISN2004 / LAEA Iceland
    {9964, 1317, 98551, geographic, 2574, 25, false}, // HULLEE13-IRF
    {9967, 9964, 98499, 903, 2574, 4, false}, // HULLEE13 Grid
    {9969, 1320, 281992, geographic, 2576, 25, false}, // SCM22-IRF
    {9972, 9969, 281946, 904, 2576, 4, false}, // SCM22 Grid
    {9974, 1321, 75138, geographic, 2575, 25, false}, // FNL22-IRF
    {9977, 9974, 75092, 905, 2575, 4, false}, // FNL22 Grid
    {9990, 1322, 104259, geographic, 109, 25, false}, // ITRF2020
    {20002, 20033, 134226, 910, 2577, 4, false}, // MWC18 Grid
    {20004, 4200, 267945, 1475, 549, 5, false}, // Pulkovo 1995 / Gauss-Kruger zone 4
    {20005, 4200, 267980, 1476, 550, 5, false}, // Pulkovo 1995 / Gauss-Kruger zone 5
    {20006, 4200, 268015, 1477, 551, 5, false}, // Pulkovo 1995 / Gauss-Kruger zone 6
    {20007, 4200, 268050, 1478, 552, 5, false}, // Pulkovo 1995 / Gauss-Kruger zone 7
    {20008, 4200, 268085, 1479, 553, 5, false}, // Pulkovo 1995 / Gauss-Kruger zone 8
    {20009, 4200, 268120, 1480, 554, 5, false}, // Pulkovo 1995 / Gauss-Kruger zone 9
    {20010, 4200, 267117, 1481, 555, 5, false}, // Pulkovo 1995 / Gauss-Kruger zone 10
    {20011, 4200, 267153, 1482, 556, 5, false}, // Pulkovo 1995 / Gauss-Kruger zone 11
    {20012, 4200, 267189, 1483, 557, 5, false}, // Pulkovo 1995 / Gauss-Kruger zone 12
    {20013, 4200, 267225, 1484, 558, 5, false}, // Pulkovo 1995 / Gauss-Kruger zone 13
    {20014, 4200, 267261, 1485, 559, 5, false}, // Pulkovo 1995 / Gauss-Kruger zone 14
    {20015, 4200, 267297, 1486, 560, 5, false}, // Pulkovo 1995 / Gauss-Kruger zone 15
    {20016, 4200, 267333, 1487, 561, 5, false}, // Pulkovo 1995 / Gauss-Kruger zone 16
    {20017, 4200, 267369, 1488, 562, 5, false}, // Pulkovo 1995 / Gauss-Kruger zone 17
    {20018, 4200, 267405, 1489, 563, 5, false}, // Pulkovo 1995 / Gauss-Kruger zone 18
    {20019, 4200, 267441, 1490, 564, 5, false}, // Pulkovo 1995 / Gauss-Kruger zone 19
    {20020, 4200, 267477, 1491, 565, 5, false}, // Pulkovo 1995 / Gauss-Kruger zone 20
    {20021, 4200, 267513, 1492, 566, 5, false}, // Pulkovo 1995 / Gauss-Kruger zone 21
    {20022, 4200, 267549, 1493, 567, 5, false}, // Pulkovo 1995 / Gauss-Kruger zone 22
    {20023, 4200, 267585, 1494, 568, 5, false}, // Pulkovo 1995 / Gauss-Kruger zone 23
    {20024, 4200, 267621, 1495, 569, 5, false}, // Pulkovo 1995 / Gauss-Kruger zone 24
    {20025, 4200, 267657, 1496, 570, 5, false}, // Pulkovo 1995 / Gauss-Kruger zone 25
    {20026, 4200, 267693, 1497, 571, 5, false}, // Pulkovo 1995 / Gauss-Kruger zone 26
    {20027, 4200, 267729, 1498, 572, 5, false}, // Pulkovo 1995 / Gauss-Kruger zone 27
    {20028, 4200, 267765, 1499, 573, 5, false}, // Pulkovo 1995 / Gauss-Kruger zone 28
    {20029, 4200, 267801, 1500, 574, 5, false}, // Pulkovo 1995 / Gauss-Kruger zone 29
    {20030, 4200, 267837, 1501, 575, 5, false}, // Pulkovo 1995 / Gauss-Kruger zone 30
    {20031, 4200, 267873, 1502, 576, 5, false}, // Pulkovo 1995 / Gauss-Kruger zone 31
    {20032, 4200, 267909, 1503, 577, 5, false}, // Pulkovo 1995 / Gauss-Kruger zone 32
    {20033, 1324, 134272, geographic, 2577, 25, false}, // MWC18-IRF
    {20041, 1327, 284814, geographic, 19, 25, false}, // SIRGAS-Chile 2021
    {20042, 20041, 284832, 1410, 2578, 4, false}, // SIRGAS-Chile 2021 / UTM zone 12S
    {20047, 7844, 81609, 913, 1298, 4, false}, // GDA2020 / BCSG2020
    {20048, 20041, 284865, 1416, 1888, 4, false}, // SIRGAS-Chile 2021 / UTM zone 18S
    {20049, 20041, 284898, 1417, 1882, 4, false}, // SIRGAS-Chile 2021 / UTM zone 19S
    {20050, 6318, 159896, 914, 2579, 6, false}, // NAD83(2011) / Amtrak NECCS21 (ft)
    {20064, 4200, 265901, 1545, 549, 5, true}, // Pulkovo 1995 / Gauss-Kruger 4N
    {20065, 4200, 265932, 1546, 550, 5, true}, // Pulkovo 1995 / Gauss-Kruger 5N
    {20066, 4200, 265963, 1547, 551, 5, true}, // Pulkovo 1995 / Gauss-Kruger 6N
    {20067, 4200, 265994, 1548, 552, 5, true}, // Pulkovo 1995 / Gauss-Kruger 7N
    {20068, 4200, 266025, 1549, 553, 5, true}, // Pulkovo 1995 / Gauss-Kruger 8N
    {20069, 4200, 266056, 1550, 554, 5, true}, // Pulkovo 1995 / Gauss-Kruger 9N
    {20070, 4200, 265165, 1551, 555, 5, true}, // Pulkovo 1995 / Gauss-Kruger 10N
    {20071, 4200, 265197, 1552, 556, 5, true}, // Pulkovo 1995 / Gauss-Kruger 11N
    {20072, 4200, 265229, 1553, 557, 5, true}, // Pulkovo 1995 / Gauss-Kruger 12N
    {20073, 4200, 265261, 1554, 558, 5, true}, // Pulkovo 1995 / Gauss-Kruger 13N
    {20074, 4200, 265293, 1555, 559, 5, true}, // Pulkovo 1995 / Gauss-Kruger 14N
    {20075, 4200, 265325, 1556, 560, 5, true}, // Pulkovo 1995 / Gauss-Kruger 15N
    {20076, 4200, 265357, 1557, 561, 5, true}, // Pulkovo 1995 / Gauss-Kruger 16N
    {20077, 4200, 265389, 1558, 562, 5, true}, // Pulkovo 1995 / Gauss-Kruger 17N
    {20078, 4200, 265421, 1559, 563, 5, true}, // Pulkovo 1995 / Gauss-Kruger 18N
    {20079, 4200, 265453, 1560, 564, 5, true}, // Pulkovo 1995 / Gauss-Kruger 19N
    {20080, 4200, 265485, 1561, 565, 5, true}, // Pulkovo 1995 / Gauss-Kruger 20N
    {20081, 4200, 265517, 1562, 566, 5, true}, // Pulkovo 1995 / Gauss-Kruger 21N
    {20082, 4200, 265549, 1563, 567, 5, true}, // Pulkovo 1995 / Gauss-Kruger 22N
    {20083, 4200, 265581, 1564, 568, 5, true}, // Pulkovo 1995 / Gauss-Kruger 23N
    {20084, 4200, 265613, 1565, 569, 5, true}, // Pulkovo 1995 / Gauss-Kruger 24N
    {20085, 4200, 265645, 1566, 570, 5, true}, // Pulkovo 1995 / Gauss-Kruger 25N
    {20086, 4200, 265677, 1567, 571, 5, true}, // Pulkovo 1995 / Gauss-Kruger 26N
    {20087, 4200, 265709, 1568, 572, 5, true}, // Pulkovo 1995 / Gauss-Kruger 27N
    {20088, 4200, 265741, 1569, 573, 5, true}, // Pulkovo 1995 / Gauss-Kruger 28N
    {20089, 4200, 265773, 1570, 574, 5, true}, // Pulkovo 1995 / Gauss-Kruger 29N
    {20090, 4200, 265805, 1571, 575, 5, true}, // Pulkovo 1995 / Gauss-Kruger 30N
    {20091, 4200, 265837, 1572, 576, 5, true}, // Pulkovo 1995 / Gauss-Kruger 31N
    {20092, 4200, 265869, 1573, 577, 5, true}, // Pulkovo 1995 / Gauss-Kruger 32N
    {20135, 4201, 5828, 1344, 1243, 4, false}, // Adindan / UTM zone 35N
    {20136, 4201, 5851, 1345, 1242, 4, false}, // Adindan / UTM zone 36N
    {20137, 4201, 5874, 1346, 347, 4, false}, // Adindan / UTM zone 37N
    {20138, 4201, 5897, 1347, 348, 4, false}, // Adindan / UTM zone 38N
    {20248, 4202, 4293, 1893, 351, 4, true}, // AGD66 / AMG zone 48
    {20249, 4202, 4313, 1894, 352, 4, false}, // AGD66 / AMG zone 49
    {20250, 4202, 4333, 1895, 353, 4, false}, // AGD66 / AMG zone 50
    {20251, 4202, 4353, 1896, 354, 4, false}, // AGD66 / AMG zone 51
    {20252, 4202, 4373, 1897, 355, 4, false}, // AGD66 / AMG zone 52
    {20253, 4202, 4393, 1898, 356, 4, false}, // AGD66 / AMG zone 53
    {20254, 4202, 4413, 1899, 362, 4, false}, // AGD66 / AMG zone 54
    {20255, 4202, 4433, 1900, 363, 4, false}, // AGD66 / AMG zone 55
    {20256, 4202, 4453, 1901, 1070, 4, false}, // AGD66 / AMG zone 56
    {20257, 4202, 4473, 1902, 360, 4, false}, // AGD66 / AMG zone 57
    {20258, 4202, 4493, 1903, 361, 4, false}, // AGD66 / AMG zone 58
    {20348, 4203, 4546, 1893, 351, 4, true}, // AGD84 / AMG zone 48
    {20349, 4203, 4566, 1894, 352, 4, false}, // AGD84 / AMG zone 49
    {20350, 4203, 4586, 1895, 353, 4, false}, // AGD84 / AMG zone 50
    {20351, 4203, 4606, 1896, 354, 4, false}, // AGD84 / AMG zone 51
    {20352, 4203, 4626, 1897, 1810, 4, false}, // AGD84 / AMG zone 52
    {20353, 4203, 4646, 1898, 1811, 4, false}, // AGD84 / AMG zone 53
    {20354, 4203, 4666, 1899, 1812, 4, false}, // AGD84 / AMG zone 54
    {20355, 4203, 4686, 1900, 1813, 4, false}, // AGD84 / AMG zone 55
    {20356, 4203, 4706, 1901, 1814, 4, false}, // AGD84 / AMG zone 56
    {20357, 4203, 4726, 1902, 360, 4, true}, // AGD84 / AMG zone 57
    {20358, 4203, 4746, 1903, 361, 4, true}, // AGD84 / AMG zone 58
    {20436, 4204, 7174, 1345, 1407, 4, false}, // Ain el Abd / UTM zone 36N
    {20437, 4204, 7200, 1346, 364, 4, false}, // Ain el Abd / UTM zone 37N
    {20438, 4204, 7226, 1347, 366, 4, false}, // Ain el Abd / UTM zone 38N
    {20439, 4204, 7252, 1348, 365, 4, false}, // Ain el Abd / UTM zone 39N
    {20440, 4204, 7278, 1349, 1406, 4, false}, // Ain el Abd / UTM zone 40N
    {20499, 4204, 7148, 2293, 1966, 4, false}, // Ain el Abd / Bahrain Grid
    {20538, 4205, 5974, 1347, 349, 4, false}, // Afgooye / UTM zone 38N
    {20539, 4205, 5997, 1348, 350, 4, false}, // Afgooye / UTM zone 39N
    {20790, 4803, 127875, 2325, 129, 4, false}, // Lisbon (Lisbon) / Portuguese National Grid
    {20791, 4803, 127841, 2357, 129, 4, false}, // Lisbon (Lisbon) / Portuguese Grid
    {20822, 4208, 15317, 1420, 367, 4, false}, // Aratu / UTM zone 22S
    {20823, 4208, 15338, 1421, 368, 4, false}, // Aratu / UTM zone 23S
    {20824, 4208, 15359, 1422, 369, 4, false}, // Aratu / UTM zone 24S
    {20904, 7683, 93152, 1475, 549, 5, false}, // GSK-2011 / Gauss-Kruger zone 4
    {20905, 7683, 93183, 1476, 550, 5, false}, // GSK-2011 / Gauss-Kruger zone 5
    {20906, 7683, 93214, 1477, 551, 5, false}, // GSK-2011 / Gauss-Kruger zone 6
    {20907, 7683, 93245, 1478, 552, 5, false}, // GSK-2011 / Gauss-Kruger zone 7
    {20908, 7683, 93276, 1479, 553, 5, false}, // GSK-2011 / Gauss-Kruger zone 8
    {20909, 7683, 93307, 1480, 554, 5, false}, // GSK-2011 / Gauss-Kruger zone 9
    {20910, 7683, 92416, 1481, 555, 5, false}, // GSK-2011 / Gauss-Kruger zone 10
    {20911, 7683, 92448, 1482, 556, 5, false}, // GSK-2011 / Gauss-Kruger zone 11
    {20912, 7683, 92480, 1483, 557, 5, false}, // GSK-2011 / Gauss-Kruger zone 12
    {20913, 7683, 92512, 1484, 558, 5, false}, // GSK-2011 / Gauss-Kruger zone 13
    {20914, 7683, 92544, 1485, 559, 5, false}, // GSK-2011 / Gauss-Kruger zone 14
    {20915, 7683, 92576, 1486, 560, 5, false}, // GSK-2011 / Gauss-Kruger zone 15
    {20916, 7683, 92608, 1487, 561, 5, false}, // GSK-2011 / Gauss-Kruger zone 16
    {20917, 7683, 92640, 1488, 562, 5, false}, // GSK-2011 / Gauss-Kruger zone 17
    {20918, 7683, 92672, 1489, 563, 5, false}, // GSK-2011 / Gauss-Kruger zone 18
    {20919, 7683, 92704, 1490, 564, 5, false}, // GSK-2011 / Gauss-Kruger zone 19
    {20920, 7683, 92736, 1491, 565, 5, false}, // GSK-2011 / Gauss-Kruger zone 20
    {20921, 7683, 92768, 1492, 566, 5, false}, // GSK-2011 / Gauss-Kruger zone 21
    {20922, 7683, 92800, 1493, 567, 5, false}, // GSK-2011 / Gauss-Kruger zone 22
    {20923, 7683, 92832, 1494, 568, 5, false}, // GSK-2011 / Gauss-Kruger zone 23
    {20924, 7683, 92864, 1495, 569, 5, false}, // GSK-2011 / Gauss-Kruger zone 24
    {20925, 7683, 92896, 1496, 570, 5, false}, // GSK-2011 / Gauss-Kruger zone 25
    {20926, 7683, 92928, 1497, 571, 5, false}, // GSK-2011 / Gauss-Kruger zone 26
    {20927, 7683, 92960, 1498, 572, 5, false}, // GSK-2011 / Gauss-Kruger zone 27
    {20928, 7683, 92992, 1499, 573, 5, false}, // GSK-2011 / Gauss-Kruger zone 28
    {20929, 7683, 93024, 1500, 574, 5, false}, // GSK-2011 / Gauss-Kruger zone 29
    {20930, 7683, 93056, 1501, 575, 5, false}, // GSK-2011 / Gauss-Kruger zone 30
    {20931, 7683, 93088, 1502, 576, 5, false}, // GSK-2011 / Gauss-Kruger zone 31
    {20932, 7683, 93120, 1503, 577, 5, false}, // GSK-2011 / Gauss-Kruger zone 32
    {20934, 4209, 15438, 1432, 370, 4, false}, // Arc 1950 / UTM zone 34S
    {20935, 4209, 15462, 1433, 371, 4, false}, // Arc 1950 / UTM zone 35S
    {20936, 4209, 15486, 1434, 372, 4, false}, // Arc 1950 / UTM zone 36S
    {21004, 7683, 91982, 1545, 549, 5, false}, // GSK-2011 / Gauss-Kruger CM 21E
    {21005, 7683, 92013, 1546, 550, 5, false}, // GSK-2011 / Gauss-Kruger CM 27E
    {21006, 7683, 92044, 1547, 551, 5, false}, // GSK-2011 / Gauss-Kruger CM 33E
    {21007, 7683, 92075, 1548, 552, 5, false}, // GSK-2011 / Gauss-Kruger CM 39E
    {21008, 7683, 92106, 1549, 553, 5, false}, // GSK-2011 / Gauss-Kruger CM 45E
    {21009, 7683, 92137, 1550, 554, 5, false}, // GSK-2011 / Gauss-Kruger CM 51E
    {21010, 7683, 92168, 1551, 555, 5, false}, // GSK-2011 / Gauss-Kruger CM 57E
    {21011, 7683, 92199, 1552, 556, 5, false}, // GSK-2011 / Gauss-Kruger CM 63E
    {21012, 7683, 92230, 1553, 557, 5, false}, // GSK-2011 / Gauss-Kruger CM 69E
    {21013, 7683, 92261, 1554, 558, 5, false}, // GSK-2011 / Gauss-Kruger CM 75E
    {21014, 7683, 92292, 1555, 559, 5, false}, // GSK-2011 / Gauss-Kruger CM 81E
    {21015, 7683, 92323, 1556, 560, 5, false}, // GSK-2011 / Gauss-Kruger CM 87E
    {21016, 7683, 92354, 1557, 561, 5, false}, // GSK-2011 / Gauss-Kruger CM 93E
    {21017, 7683, 92385, 1558, 562, 5, false}, // GSK-2011 / Gauss-Kruger CM 99E
    {21018, 7683, 91502, 1559, 563, 5, false}, // GSK-2011 / Gauss-Kruger CM 105E
    {21019, 7683, 91534, 1560, 564, 5, false}, // GSK-2011 / Gauss-Kruger CM 111E
    {21020, 7683, 91566, 1561, 565, 5, false}, // GSK-2011 / Gauss-Kruger CM 117E
    {21021, 7683, 91598, 1562, 566, 5, false}, // GSK-2011 / Gauss-Kruger CM 123E
    {21022, 7683, 91630, 1563, 567, 5, false}, // GSK-2011 / Gauss-Kruger CM 129E
    {21023, 7683, 91662, 1564, 568, 5, false}, // GSK-2011 / Gauss-Kruger CM 135E
    {21024, 7683, 91694, 1565, 569, 5, false}, // GSK-2011 / Gauss-Kruger CM 141E
    {21025, 7683, 91726, 1566, 570, 5, false}, // GSK-2011 / Gauss-Kruger CM 147E
    {21026, 7683, 91758, 1567, 571, 5, false}, // GSK-2011 / Gauss-Kruger CM 153E
    {21027, 7683, 91790, 1568, 572, 5, false}, // GSK-2011 / Gauss-Kruger CM 159E
    {21028, 7683, 91822, 1569, 573, 5, false}, // GSK-2011 / Gauss-Kruger CM 165E
    {21029, 7683, 91854, 1570, 574, 5, false}, // GSK-2011 / Gauss-Kruger CM 171E
    {21030, 7683, 91918, 1571, 575, 5, false}, // GSK-2011 / Gauss-Kruger CM 177E
    {21031, 7683, 91950, 1572, 576, 5, false}, // GSK-2011 / Gauss-Kruger CM 177W
    {21032, 7683, 91886, 1573, 577, 5, false}, // GSK-2011 / Gauss-Kruger CM 171W
    {21035, 4210, 15543, 1433, 374, 4, false}, // Arc 1960 / UTM zone 35S
    {21036, 4210, 15591, 1434, 376, 4, false}, // Arc 1960 / UTM zone 36S
    {21037, 4210, 15639, 1435, 378, 4, false}, // Arc 1960 / UTM zone 37S
    {21095, 4210, 15519, 1344, 373, 4, false}, // Arc 1960 / UTM zone 35N
    {21096, 4210, 15567, 1345, 375, 4, false}, // Arc 1960 / UTM zone 36N
    {21097, 4210, 15615, 1346, 377, 4, false}, // Arc 1960 / UTM zone 37N
    {21100, 4813, 30390, 2298, 122, 4, true}, // Batavia (Jakarta) / NEIEZ
    {21148, 4211, 30452, 1446, 379, 4, false}, // Batavia / UTM zone 48S
    {21149, 4211, 30475, 1447, 381, 4, false}, // Batavia / UTM zone 49S
    {21150, 4211, 30498, 1448, 380, 4, false}, // Batavia / UTM zone 50S
    {21207, 7683, 91424, 1607, 1191, 5, false}, // GSK-2011 / GSK 3GK zone 7
    {21208, 7683, 91450, 1608, 1192, 5, false}, // GSK-2011 / GSK 3GK zone 8
    {21209, 7683, 91476, 1609, 1193, 5, false}, // GSK-2011 / GSK 3GK zone 9
    {21210, 7683, 89939, 1610, 1194, 5, false}, // GSK-2011 / GSK 3GK zone 10
    {21211, 7683, 89966, 1611, 1195, 5, false}, // GSK-2011 / GSK 3GK zone 11
    {21212, 7683, 89993, 1612, 1196, 5, false}, // GSK-2011 / GSK 3GK zone 12
    {21213, 7683, 90020, 1613, 1197, 5, false}, // GSK-2011 / GSK 3GK zone 13
    {21214, 7683, 90047, 1614, 1198, 5, false}, // GSK-2011 / GSK 3GK zone 14
    {21215, 7683, 90074, 1615, 1199, 5, false}, // GSK-2011 / GSK 3GK zone 15
    {21216, 7683, 90101, 1616, 1200, 5, false}, // GSK-2011 / GSK 3GK zone 16
    {21217, 7683, 90128, 1617, 1201, 5, false}, // GSK-2011 / GSK 3GK zone 17
    {21218, 7683, 90155, 1618, 1202, 5, false}, // GSK-2011 / GSK 3GK zone 18
    {21219, 7683, 90182, 1619, 1203, 5, false}, // GSK-2011 / GSK 3GK zone 19
    {21220, 7683, 90209, 1620, 1204, 5, false}, // GSK-2011 / GSK 3GK zone 20
    {21221, 7683, 90236, 1621, 1205, 5, false}, // GSK-2011 / GSK 3GK zone 21
    {21222, 7683, 90263, 1622, 1206, 5, false}, // GSK-2011 / GSK 3GK zone 22
    {21223, 7683, 90290, 1623, 1207, 5, false}, // GSK-2011 / GSK 3GK zone 23
    {21224, 7683, 90317, 1624, 1208, 5, false}, // GSK-2011 / GSK 3GK zone 24
    {21225, 7683, 90344, 1625, 1209, 5, false}, // GSK-2011 / GSK 3GK zone 25
    {21226, 7683, 90371, 1626, 1210, 5, false}, // GSK-2011 / GSK 3GK zone 26
    {21227, 7683, 90398, 1627, 1211, 5, false}, // GSK-2011 / GSK 3GK zone 27
    {21228, 7683, 90425, 1628, 1212, 5, false}, // GSK-2011 / GSK 3GK zone 28
    {21229, 7683, 90452, 1629, 1213, 5, false}, // GSK-2011 / GSK 3GK zone 29
    {21230, 7683, 90479, 1630, 1135, 5, false}, // GSK-2011 / GSK 3GK zone 30
    {21231, 7683, 90506, 1631, 1136, 5, false}, // GSK-2011 / GSK 3GK zone 31
    {21232, 7683, 90533, 1632, 1137, 5, false}, // GSK-2011 / GSK 3GK zone 32
    {21233, 7683, 90560, 1633, 1138, 5, false}, // GSK-2011 / GSK 3GK zone 33
    {21234, 7683, 90587, 1634, 1139, 5, false}, // GSK-2011 / GSK 3GK zone 34
    {21235, 7683, 90614, 1635, 1140, 5, false}, // GSK-2011 / GSK 3GK zone 35
    {21236, 7683, 90641, 1636, 1141, 5, false}, // GSK-2011 / GSK 3GK zone 36
    {21237, 7683, 90668, 1637, 1142, 5, false}, // GSK-2011 / GSK 3GK zone 37
    {21238, 7683, 90695, 1638, 1143, 5, false}, // GSK-2011 / GSK 3GK zone 38
    {21239, 7683, 90722, 1639, 1144, 5, false}, // GSK-2011 / GSK 3GK zone 39
    {21240, 7683, 90749, 1640, 1145, 5, false}, // GSK-2011 / GSK 3GK zone 40
    {21241, 7683, 90776, 1641, 1146, 5, false}, // GSK-2011 / GSK 3GK zone 41
    {21242, 7683, 90803, 1642, 1147, 5, false}, // GSK-2011 / GSK 3GK zone 42
    {21243, 7683, 90830, 1643, 1148, 5, false}, // GSK-2011 / GSK 3GK zone 43
    {21244, 7683, 90857, 1644, 1149, 5, false}, // GSK-2011 / GSK 3GK zone 44
    {21245, 7683, 90884, 1645, 1150, 5, false}, // GSK-2011 / GSK 3GK zone 45
    {21246, 7683, 90911, 1646, 1151, 5, false}, // GSK-2011 / GSK 3GK zone 46
    {21247, 7683, 90938, 1647, 1152, 5, false}, // GSK-2011 / GSK 3GK zone 47
    {21248, 7683, 90965, 1648, 1153, 5, false}, // GSK-2011 / GSK 3GK zone 48
    {21249, 7683, 90992, 1649, 1154, 5, false}, // GSK-2011 / GSK 3GK zone 49
    {21250, 7683, 91019, 1650, 1155, 5, false}, // GSK-2011 / GSK 3GK zone 50
    {21251, 7683, 91046, 1651, 1156, 5, false}, // GSK-2011 / GSK 3GK zone 51
    {21252, 7683, 91073, 1652, 1157, 5, false}, // GSK-2011 / GSK 3GK zone 52
    {21253, 7683, 91100, 1653, 1158, 5, false}, // GSK-2011 / GSK 3GK zone 53
    {21254, 7683, 91127, 1654, 1159, 5, false}, // GSK-2011 / GSK 3GK zone 54
    {21255, 7683, 91154, 1655, 1160, 5, false}, // GSK-2011 / GSK 3GK zone 55
    {21256, 7683, 91181, 1656, 1161, 5, false}, // GSK-2011 / GSK 3GK zone 56
    {21257, 7683, 91208, 1657, 1162, 5, false}, // GSK-2011 / GSK 3GK zone 57
    {21258, 7683, 91235, 1658, 1163, 5, false}, // GSK-2011 / GSK 3GK zone 58
    {21259, 7683, 91262, 1659, 1164, 5, false}, // GSK-2011 / GSK 3GK zone 59
    {21260, 7683, 91289, 1660, 1165, 5, false}, // GSK-2011 / GSK 3GK zone 60
    {21261, 7683, 91316, 1661, 1166, 5, false}, // GSK-2011 / GSK 3GK zone 61
    {21262, 7683, 91343, 1662, 1167, 5, false}, // GSK-2011 / GSK 3GK zone 62
    {21263, 7683, 91370, 1663, 1168, 5, false}, // GSK-2011 / GSK 3GK zone 63
    {21264, 7683, 91397, 1664, 1169, 5, false}, // GSK-2011 / GSK 3GK zone 64
    {21291, 4212, 30074, 2331, 1480, 4, false}, // Barbados 1938 / British West Indies Grid
    {21292, 4212, 30035, 2332, 1480, 4, false}, // Barbados 1938 / Barbados National Grid
    {21307, 7683, 89237, 1668, 1191, 5, false}, // GSK-2011 / GSK 3GK CM 21E
    {21308, 7683, 89263, 1669, 1192, 5, false}, // GSK-2011 / GSK 3GK CM 24E
    {21309, 7683, 89289, 1670, 1193, 5, false}, // GSK-2011 / GSK 3GK CM 27E
    {21310, 7683, 89315, 1671, 1194, 5, false}, // GSK-2011 / GSK 3GK CM 30E
    {21311, 7683, 89341, 1672, 1195, 5, false}, // GSK-2011 / GSK 3GK CM 33E
    {21312, 7683, 89367, 1673, 1196, 5, false}, // GSK-2011 / GSK 3GK CM 36E
    {21313, 7683, 89393, 1674, 1197, 5, false}, // GSK-2011 / GSK 3GK CM 39E
    {21314, 7683, 89419, 1675, 1198, 5, false}, // GSK-2011 / GSK 3GK CM 42E
    {21315, 7683, 89445, 1676, 1199, 5, false}, // GSK-2011 / GSK 3GK CM 45E
    {21316, 7683, 89471, 1677, 1200, 5, false}, // GSK-2011 / GSK 3GK CM 48E
    {21317, 7683, 89497, 1678, 1201, 5, false}, // GSK-2011 / GSK 3GK CM 51E
    {21318, 7683, 89523, 1679, 1202, 5, false}, // GSK-2011 / GSK 3GK CM 54E
    {21319, 7683, 89549, 1680, 1203, 5, false}, // GSK-2011 / GSK 3GK CM 57E
    {21320, 7683, 89575, 1681, 1204, 5, false}, // GSK-2011 / GSK 3GK CM 60E
    {21321, 7683, 89601, 1682, 1205, 5, false}, // GSK-2011 / GSK 3GK CM 63E
    {21322, 7683, 89627, 1683, 1206, 5, false}, // GSK-2011 / GSK 3GK CM 66E
    {21323, 7683, 89653, 1684, 1207, 5, false}, // GSK-2011 / GSK 3GK CM 69E
    {21324, 7683, 89679, 1685, 1208, 5, false}, // GSK-2011 / GSK 3GK CM 72E
    {21325, 7683, 89705, 1686, 1209, 5, false}, // GSK-2011 / GSK 3GK CM 75E
    {21326, 7683, 89731, 1687, 1210, 5, false}, // GSK-2011 / GSK 3GK CM 78E
    {21327, 7683, 89757, 1688, 1211, 5, false}, // GSK-2011 / GSK 3GK CM 81E
    {21328, 7683, 89783, 1689, 1212, 5, false}, // GSK-2011 / GSK 3GK CM 84E
    {21329, 7683, 89809, 1690, 1213, 5, false}, // GSK-2011 / GSK 3GK CM 87E
    {21330, 7683, 89835, 1691, 1135, 5, false}, // GSK-2011 / GSK 3GK CM 90E
    {21331, 7683, 89861, 1692, 1136, 5, false}, // GSK-2011 / GSK 3GK CM 93E
    {21332, 7683, 89887, 1693, 1137, 5, false}, // GSK-2011 / GSK 3GK CM 96E
    {21333, 7683, 89913, 1694, 1138, 5, false}, // GSK-2011 / GSK 3GK CM 99E
    {21334, 7683, 88400, 1695, 1139, 5, false}, // GSK-2011 / GSK 3GK CM 102E
    {21335, 7683, 88427, 1696, 1140, 5, false}, // GSK-2011 / GSK 3GK CM 105E
    {21336, 7683, 88454, 1697, 1141, 5, false}, // GSK-2011 / GSK 3GK CM 108E
    {21337, 7683, 88481, 1698, 1142, 5, false}, // GSK-2011 / GSK 3GK CM 111E
    {21338, 7683, 88508, 1699, 1143, 5, false}, // GSK-2011 / GSK 3GK CM 114E
    {21339, 7683, 88535, 1700, 1144, 5, false}, // GSK-2011 / GSK 3GK CM 117E
    {21340, 7683, 88562, 1701, 1145, 5, false}, // GSK-2011 / GSK 3GK CM 120E
    {21341, 7683, 88589, 1702, 1146, 5, false}, // GSK-2011 / GSK 3GK CM 123E
    {21342, 7683, 88616, 1703, 1147, 5, false}, // GSK-2011 / GSK 3GK CM 126E
    {21343, 7683, 88643, 1704, 1148, 5, false}, // GSK-2011 / GSK 3GK CM 129E
    {21344, 7683, 88670, 1705, 1149, 5, false}, // GSK-2011 / GSK 3GK CM 132E
    {21345, 7683, 88697, 1706, 1150, 5, false}, // GSK-2011 / GSK 3GK CM 135E
    {21346, 7683, 88724, 1707, 1151, 5, false}, // GSK-2011 / GSK 3GK CM 138E
    {21347, 7683, 88751, 1708, 1152, 5, false}, // GSK-2011 / GSK 3GK CM 141E
    {21348, 7683, 88778, 1709, 1153, 5, false}, // GSK-2011 / GSK 3GK CM 144E
    {21349, 7683, 88805, 1710, 1154, 5, false}, // GSK-2011 / GSK 3GK CM 147E
    {21350, 7683, 88832, 1711, 1155, 5, false}, // GSK-2011 / GSK 3GK CM 150E
    {21351, 7683, 88859, 1712, 1156, 5, false}, // GSK-2011 / GSK 3GK CM 153E
    {21352, 7683, 88886, 1713, 1157, 5, false}, // GSK-2011 / GSK 3GK CM 156E
    {21353, 7683, 88913, 1714, 1158, 5, false}, // GSK-2011 / GSK 3GK CM 159E
    {21354, 7683, 88940, 1715, 1159, 5, false}, // GSK-2011 / GSK 3GK CM 162E
    {21355, 7683, 88967, 1716, 1160, 5, false}, // GSK-2011 / GSK 3GK CM 165E
    {21356, 7683, 88994, 1717, 1161, 5, false}, // GSK-2011 / GSK 3GK CM 168E
    {21357, 7683, 89048, 1718, 1162, 5, false}, // GSK-2011 / GSK 3GK CM 171E
    {21358, 7683, 89102, 1719, 1163, 5, false}, // GSK-2011 / GSK 3GK CM 174E
    {21359, 7683, 89156, 1720, 1164, 5, false}, // GSK-2011 / GSK 3GK CM 177E
    {21360, 7683, 89210, 1721, 1165, 5, false}, // GSK-2011 / GSK 3GK CM 180E
    {21361, 7683, 89183, 1722, 1166, 5, false}, // GSK-2011 / GSK 3GK CM 177W
    {21362, 7683, 89129, 1723, 1167, 5, false}, // GSK-2011 / GSK 3GK CM 174W
    {21363, 7683, 89075, 1724, 1168, 5, false}, // GSK-2011 / GSK 3GK CM 171W
    {21364, 7683, 89021, 1725, 1169, 5, false}, // GSK-2011 / GSK 3GK CM 168W
    {21413, 4214, 33448, 1484, 382, 5, false}, // Beijing 1954 / Gauss-Kruger zone 13
    {21414, 4214, 33484, 1485, 383, 5, false}, // Beijing 1954 / Gauss-Kruger zone 14
    {21415, 4214, 33520, 1486, 384, 5, false}, // Beijing 1954 / Gauss-Kruger zone 15
    {21416, 4214, 33556, 1487, 385, 5, false}, // Beijing 1954 / Gauss-Kruger zone 16
    {21417, 4214, 33592, 1488, 386, 5, false}, // Beijing 1954 / Gauss-Kruger zone 17
    {21418, 4214, 33628, 1489, 387, 5, false}, // Beijing 1954 / Gauss-Kruger zone 18
    {21419, 4214, 33664, 1490, 388, 5, false}, // Beijing 1954 / Gauss-Kruger zone 19
    {21420, 4214, 33700, 1491, 389, 5, false}, // Beijing 1954 / Gauss-Kruger zone 20
    {21421, 4214, 33736, 1492, 390, 5, false}, // Beijing 1954 / Gauss-Kruger zone 21
    {21422, 4214, 33772, 1493, 391, 5, false}, // Beijing 1954 / Gauss-Kruger zone 22
    {21423, 4214, 33808, 1494, 392, 5, false}, // Beijing 1954 / Gauss-Kruger zone 23
    {21453, 4214, 33273, 1554, 382, 5, false}, // Beijing 1954 / Gauss-Kruger CM 75E
    {21454, 4214, 33308, 1555, 383, 5, false}, // Beijing 1954 / Gauss-Kruger CM 81E
    {21455, 4214, 33343, 1556, 384, 5, false}, // Beijing 1954 / Gauss-Kruger CM 87E
    {21456, 4214, 33378, 1557, 385, 5, false}, // Beijing 1954 / Gauss-Kruger CM 93E
    {21457, 4214, 33413, 1558, 386, 5, false}, // Beijing 1954 / Gauss-Kruger CM 99E
    {21458, 4214, 33057, 1559, 387, 5, false}, // Beijing 1954 / Gauss-Kruger CM 105E
    {21459, 4214, 33093, 1560, 388, 5, false}, // Beijing 1954 / Gauss-Kruger CM 111E
    {21460, 4214, 33129, 1561, 389, 5, false}, // Beijing 1954 / Gauss-Kruger CM 117E
    {21461, 4214, 33165, 1562, 390, 5, false}, // Beijing 1954 / Gauss-Kruger CM 123E
    {21462, 4214, 33201, 1563, 391, 5, false}, // Beijing 1954 / Gauss-Kruger CM 129E
    {21463, 4214, 33237, 1564, 392, 5, false}, // Beijing 1954 / Gauss-Kruger CM 135E
    {21473, 4214, 32705, 1554, 382, 5, true}, // Beijing 1954 / Gauss-Kruger 13N
    {21474, 4214, 32737, 1555, 383, 5, true}, // Beijing 1954 / Gauss-Kruger 14N
    {21475, 4214, 32769, 1556, 384, 5, true}, // Beijing 1954 / Gauss-Kruger 15N
    {21476, 4214, 32801, 1557, 385, 5, true}, // Beijing 1954 / Gauss-Kruger 16N
    {21477, 4214, 32833, 1558, 386, 5, true}, // Beijing 1954 / Gauss-Kruger 17N
    {21478, 4214, 32865, 1559, 387, 5, true}, // Beijing 1954 / Gauss-Kruger 18N
    {21479, 4214, 32897, 1560, 388, 5, true}, // Beijing 1954 / Gauss-Kruger 19N
    {21480, 4214, 32929, 1561, 389, 5, true}, // Beijing 1954 / Gauss-Kruger 20N
    {21481, 4214, 32961, 1562, 390, 5, true}, // Beijing 1954 / Gauss-Kruger 21N
    {21482, 4214, 32993, 1563, 391, 5, true}, // Beijing 1954 / Gauss-Kruger 22N
    {21483, 4214, 33025, 1564, 392, 5, true}, // Beijing 1954 / Gauss-Kruger 23N
    {21500, 4809, 28639, 2294, 172, 4, false}, // BD50 (Brussels) / Belge Lambert 50
    {21780, 4801, 34445, 2313, 123, 4, false}, // Bern 1898 (Bern) / LV03C
    {21781, 4149, 41252, 2312, 123, 4, false}, // CH1903 / LV03
    {21782, 4149, 41266, 2237, 59, 4, false}, // CH1903 / LV03C-G
    {21817, 4218, 35895, 1326, 397, 4, true}, // Bogota 1975 / UTM zone 17N
    {21818, 4218, 35922, 1327, 398, 4, false}, // Bogota 1975 / UTM zone 18N
    {21891, 4218, 35862, 2059, 393, 4, true}, // Bogota 1975 / Colombia West zone
    {21892, 4218, 35725, 2060, 394, 4, true}, // Bogota 1975 / Colombia Bogota zone
    {21893, 4218, 35788, 2061, 395, 4, true}, // Bogota 1975 / Colombia East Central zone
    {21894, 4218, 35760, 2062, 396, 4, true}, // Bogota 1975 / Colombia East
    {21896, 4218, 35862, 2059, 393, 5, false}, // Bogota 1975 / Colombia West zone
    {21897, 4218, 35725, 2060, 394, 5, false}, // Bogota 1975 / Colombia Bogota zone
    {21898, 4218, 35788, 2061, 395, 5, false}, // Bogota 1975 / Colombia East Central zone
    {21899, 4218, 35829, 2062, 396, 5, false}, // Bogota 1975 / Colombia East zone
    {22032, 4220, 42648, 1430, 401, 4, false}, // Camacupa 1948 / UTM zone 32S
    {22033, 4220, 42677, 1431, 402, 4, false}, // Camacupa 1948 / UTM zone 33S
    {22091, 4220, 42595, 1601, 400, 4, false}, // Camacupa 1948 / TM 11.30 SE
    {22092, 4220, 42623, 1602, 399, 4, false}, // Camacupa 1948 / TM 12 SE
    {22171, 4190, 241547, 2043, 403, 5, false}, // POSGAR 98 / Argentina 1
    {22172, 4190, 241571, 2044, 404, 5, false}, // POSGAR 98 / Argentina 2
    {22173, 4190, 241595, 2045, 405, 5, false}, // POSGAR 98 / Argentina 3
    {22174, 4190, 241619, 2046, 406, 5, false}, // POSGAR 98 / Argentina 4
    {22175, 4190, 241643, 2047, 407, 5, false}, // POSGAR 98 / Argentina 5
    {22176, 4190, 241667, 2048, 408, 5, false}, // POSGAR 98 / Argentina 6
    {22177, 4190, 241691, 2049, 409, 5, false}, // POSGAR 98 / Argentina 7
    {22181, 4694, 241369, 2043, 403, 5, false}, // POSGAR 94 / Argentina 1
    {22182, 4694, 241393, 2044, 404, 5, false}, // POSGAR 94 / Argentina 2
    {22183, 4694, 241417, 2045, 405, 5, false}, // POSGAR 94 / Argentina 3
    {22184, 4694, 241441, 2046, 406, 5, false}, // POSGAR 94 / Argentina 4
    {22185, 4694, 241465, 2047, 407, 5, false}, // POSGAR 94 / Argentina 5
    {22186, 4694, 241489, 2048, 408, 5, false}, // POSGAR 94 / Argentina 6
    {22187, 4694, 241513, 2049, 409, 5, false}, // POSGAR 94 / Argentina 7
    {22191, 4221, 42919, 2043, 403, 5, false}, // Campo Inchauspe / Argentina 1
    {22192, 4221, 42949, 2044, 2520, 5, false}, // Campo Inchauspe / Argentina 2
    {22193, 4221, 42979, 2045, 2521, 5, false}, // Campo Inchauspe / Argentina 3
    {22194, 4221, 43009, 2046, 2522, 5, false}, // Campo Inchauspe / Argentina 4
    {22195, 4221, 43039, 2047, 407, 5, false}, // Campo Inchauspe / Argentina 5
    {22196, 4221, 43069, 2048, 408, 5, false}, // Campo Inchauspe / Argentina 6
    {22197, 4221, 43099, 2049, 409, 5, false}, // Campo Inchauspe / Argentina 7
    {22207, 8237, 187348, 1316, 1587, 4, false}, // NAD83(CSRS)v2 / UTM zone 7N
    {22208, 8237, 187376, 1317, 1588, 4, false}, // NAD83(CSRS)v2 / UTM zone 8N
    {22209, 8237, 187404, 1318, 1589, 4, false}, // NAD83(CSRS)v2 / UTM zone 9N
    {22210, 8237, 186971, 1319, 1590, 4, false}, // NAD83(CSRS)v2 / UTM zone 10N
    {22211, 8237, 187000, 1320, 1686, 4, false}, // NAD83(CSRS)v2 / UTM zone 11N
    {22212, 8237, 187029, 1321, 1685, 4, false}, // NAD83(CSRS)v2 / UTM zone 12N
    {22213, 8237, 187058, 1322, 1684, 4, false}, // NAD83(CSRS)v2 / UTM zone 13N
    {22214, 8237, 187087, 1323, 1591, 4, false}, // NAD83(CSRS)v2 / UTM zone 14N
    {22215, 8237, 187116, 1324, 1592, 4, false}, // NAD83(CSRS)v2 / UTM zone 15N
    {22216, 8237, 187145, 1325, 1593, 4, false}, // NAD83(CSRS)v2 / UTM zone 16N
    {22217, 8237, 187174, 1326, 1594, 4, false}, // NAD83(CSRS)v2 / UTM zone 17N
    {22218, 8237, 187203, 1327, 1595, 4, false}, // NAD83(CSRS)v2 / UTM zone 18N
    {22219, 8237, 187232, 1328, 1682, 4, false}, // NAD83(CSRS)v2 / UTM zone 19N
    {22220, 8237, 187261, 1329, 1683, 4, false}, // NAD83(CSRS)v2 / UTM zone 20N
    {22221, 8237, 187290, 1330, 936, 4, false}, // NAD83(CSRS)v2 / UTM zone 21N
    {22222, 8237, 187319, 1331, 937, 4, false}, // NAD83(CSRS)v2 / UTM zone 22N
    {22234, 4222, 46179, 1432, 410, 4, false}, // Cape / UTM zone 34S
    {22235, 4222, 46199, 1433, 412, 4, false}, // Cape / UTM zone 35S
    {22236, 4222, 46219, 1434, 411, 4, true}, // Cape / UTM zone 36S
    {22239, 8237, 186704, 2349, 329, 4, false}, // NAD83(CSRS)v2 / PEI Stereographic
    {22240, 8237, 186671, 2335, 245, 5, false}, // NAD83(CSRS)v2 / NB Stereographic
    {22243, 8237, 186768, 1925, 244, 4, false}, // NAD83(CSRS)v2 / SCoPQ zone 3
    {22244, 8237, 186797, 1926, 220, 4, false}, // NAD83(CSRS)v2 / SCoPQ zone 4
    {22245, 8237, 186826, 1927, 221, 4, false}, // NAD83(CSRS)v2 / SCoPQ zone 5
    {22246, 8237, 186855, 1928, 222, 4, false}, // NAD83(CSRS)v2 / SCoPQ zone 6
    {22247, 8237, 186884, 1929, 223, 4, false}, // NAD83(CSRS)v2 / SCoPQ zone 7
    {22248, 8237, 186913, 1930, 224, 4, false}, // NAD83(CSRS)v2 / SCoPQ zone 8
    {22249, 8237, 186942, 1931, 225, 4, false}, // NAD83(CSRS)v2 / SCoPQ zone 9
    {22250, 8237, 186738, 1932, 226, 4, false}, // NAD83(CSRS)v2 / SCoPQ zone 10
    {22262, 8237, 186495, 1940, 1694, 4, false}, // NAD83(CSRS)v2 / Alberta 3TM ref merid 111 W
    {22263, 8237, 186539, 1941, 1693, 4, false}, // NAD83(CSRS)v2 / Alberta 3TM ref merid 114 W
    {22264, 8237, 186583, 1942, 1692, 4, false}, // NAD83(CSRS)v2 / Alberta 3TM ref merid 117 W
    {22265, 8237, 186627, 1944, 1691, 4, false}, // NAD83(CSRS)v2 / Alberta 3TM ref merid 120 W
    {22275, 4222, 46059, 1904, 252, 0, false}, // Cape / Lo15
    {22277, 4222, 46071, 1905, 253, 0, false}, // Cape / Lo17
    {22279, 4222, 46083, 1906, 254, 0, false}, // Cape / Lo19
    {22281, 4222, 46095, 1907, 255, 0, false}, // Cape / Lo21
    {22283, 4222, 46107, 1908, 256, 0, false}, // Cape / Lo23
    {22285, 4222, 46119, 1909, 257, 0, false}, // Cape / Lo25
    {22287, 4222, 46131, 1910, 258, 0, false}, // Cape / Lo27
    {22289, 4222, 46143, 1911, 259, 0, false}, // Cape / Lo29
    {22291, 4222, 46155, 1912, 260, 0, false}, // Cape / Lo31
    {22293, 4222, 46167, 1913, 261, 0, false}, // Cape / Lo33
    {22300, 4816, 46671, 2326, 413, 12, false}, // Carthage (Paris) / Tunisia Mining Grid
    {22307, 8240, 188171, 1316, 1587, 4, false}, // NAD83(CSRS)v3 / UTM zone 7N
    {22308, 8240, 188199, 1317, 1588, 4, false}, // NAD83(CSRS)v3 / UTM zone 8N
    {22309, 8240, 188227, 1318, 1589, 4, false}, // NAD83(CSRS)v3 / UTM zone 9N
    {22310, 8240, 187794, 1319, 1590, 4, false}, // NAD83(CSRS)v3 / UTM zone 10N
    {22311, 8240, 187823, 1320, 1686, 4, false}, // NAD83(CSRS)v3 / UTM zone 11N
    {22312, 8240, 187852, 1321, 1685, 4, false}, // NAD83(CSRS)v3 / UTM zone 12N
    {22313, 8240, 187881, 1322, 1684, 4, false}, // NAD83(CSRS)v3 / UTM zone 13N
    {22314, 8240, 187910, 1323, 1591, 4, false}, // NAD83(CSRS)v3 / UTM zone 14N
    {22315, 8240, 187939, 1324, 1592, 4, false}, // NAD83(CSRS)v3 / UTM zone 15N
    {22316, 8240, 187968, 1325, 1593, 4, false}, // NAD83(CSRS)v3 / UTM zone 16N
    {22317, 8240, 187997, 1326, 1594, 4, false}, // NAD83(CSRS)v3 / UTM zone 17N
    {22318, 8240, 188026, 1327, 1595, 4, false}, // NAD83(CSRS)v3 / UTM zone 18N
    {22319, 8240, 188055, 1328, 1682, 4, false}, // NAD83(CSRS)v3 / UTM zone 19N
    {22320, 8240, 188084, 1329, 1683, 4, false}, // NAD83(CSRS)v3 / UTM zone 20N
    {22321, 8240, 188113, 1330, 936, 4, false}, // NAD83(CSRS)v3 / UTM zone 21N
    {22322, 8240, 188142, 1331, 937, 4, false}, // NAD83(CSRS)v3 / UTM zone 22N
    {22332, 4223, 46777, 1341, 286, 4, false}, // Carthage / UTM zone 32N
    {22337, 8240, 187481, 907, 331, 4, false}, // NAD83(CSRS)v3 / MTM NS 1997 zone 5
    {22338, 8240, 187446, 906, 330, 4, false}, // NAD83(CSRS)v3 / MTM NS 1997 zone 4
    {22348, 8240, 187740, 1930, 227, 4, false}, // NAD83(CSRS)v3 / MTM zone 8
    {22349, 8240, 187767, 1931, 228, 4, false}, // NAD83(CSRS)v3 / MTM zone 9
    {22350, 8240, 187516, 1932, 229, 4, false}, // NAD83(CSRS)v3 / MTM zone 10
    {22351, 8240, 187544, 1933, 230, 4, false}, // NAD83(CSRS)v3 / MTM zone 11
    {22352, 8240, 187572, 1934, 231, 4, false}, // NAD83(CSRS)v3 / MTM zone 12
    {22353, 8240, 187600, 1935, 232, 4, false}, // NAD83(CSRS)v3 / MTM zone 13
    {22354, 8240, 187628, 1936, 233, 4, false}, // NAD83(CSRS)v3 / MTM zone 14
    {22355, 8240, 187656, 1937, 234, 4, false}, // NAD83(CSRS)v3 / MTM zone 15
    {22356, 8240, 187684, 1938, 235, 4, false}, // NAD83(CSRS)v3 / MTM zone 16
    {22357, 8240, 187712, 1939, 236, 4, false}, // NAD83(CSRS)v3 / MTM zone 17
    {22391, 4223, 46710, 2122, 414, 4, false}, // Carthage / Nord Tunisie
    {22392, 4223, 46734, 2123, 415, 4, false}, // Carthage / Sud Tunisie
    {22407, 8246, 188822, 1316, 1587, 4, false}, // NAD83(CSRS)v4 / UTM zone 7N
    {22408, 8246, 188850, 1317, 1588, 4, false}, // NAD83(CSRS)v4 / UTM zone 8N
    {22409, 8246, 188878, 1318, 1589, 4, false}, // NAD83(CSRS)v4 / UTM zone 9N
    {22410, 8246, 188445, 1319, 1590, 4, false}, // NAD83(CSRS)v4 / UTM zone 10N
    {22411, 8246, 188474, 1320, 1686, 4, false}, // NAD83(CSRS)v4 / UTM zone 11N
    {22412, 8246, 188503, 1321, 1685, 4, false}, // NAD83(CSRS)v4 / UTM zone 12N
    {22413, 8246, 188532, 1322, 1684, 4, false}, // NAD83(CSRS)v4 / UTM zone 13N
    {22414, 8246, 188561, 1323, 1591, 4, false}, // NAD83(CSRS)v4 / UTM zone 14N
    {22415, 8246, 188590, 1324, 1592, 4, false}, // NAD83(CSRS)v4 / UTM zone 15N
    {22416, 8246, 188619, 1325, 1593, 4, false}, // NAD83(CSRS)v4 / UTM zone 16N
    {22417, 8246, 188648, 1326, 1594, 4, false}, // NAD83(CSRS)v4 / UTM zone 17N
    {22418, 8246, 188677, 1327, 1595, 4, false}, // NAD83(CSRS)v4 / UTM zone 18N
    {22419, 8246, 188706, 1328, 1682, 4, false}, // NAD83(CSRS)v4 / UTM zone 19N
    {22420, 8246, 188735, 1329, 1683, 4, false}, // NAD83(CSRS)v4 / UTM zone 20N
    {22421, 8246, 188764, 1330, 936, 4, false}, // NAD83(CSRS)v4 / UTM zone 21N
    {22422, 8246, 188793, 1331, 937, 4, false}, // NAD83(CSRS)v4 / UTM zone 22N
    {22462, 8246, 188269, 1940, 1694, 4, false}, // NAD83(CSRS)v4 / Alberta 3TM ref merid 111 W
    {22463, 8246, 188313, 1941, 1693, 4, false}, // NAD83(CSRS)v4 / Alberta 3TM ref merid 114 W
    {22464, 8246, 188357, 1942, 1692, 4, false}, // NAD83(CSRS)v4 / Alberta 3TM ref merid 117 W
    {22465, 8246, 188401, 1944, 1691, 4, false}, // NAD83(CSRS)v4 / Alberta 3TM ref merid 120 W
    {22521, 4225, 54535, 1419, 1543, 4, false}, // Corrego Alegre 1970-72 / UTM zone 21S
    {22522, 4225, 54573, 1420, 1448, 4, false}, // Corrego Alegre 1970-72 / UTM zone 22S
    {22523, 4225, 54611, 1421, 1449, 4, false}, // Corrego Alegre 1970-72 / UTM zone 23S
    {22524, 4225, 54649, 1422, 604, 4, false}, // Corrego Alegre 1970-72 / UTM zone 24S
    {22525, 4225, 54687, 1423, 1450, 4, false}, // Corrego Alegre 1970-72 / UTM zone 25S
    {22607, 8252, 189855, 1316, 1587, 4, false}, // NAD83(CSRS)v6 / UTM zone 7N
    {22608, 8252, 189883, 1317, 1588, 4, false}, // NAD83(CSRS)v6 / UTM zone 8N
    {22609, 8252, 189911, 1318, 1589, 4, false}, // NAD83(CSRS)v6 / UTM zone 9N
    {22610, 8252, 189478, 1319, 1590, 4, false}, // NAD83(CSRS)v6 / UTM zone 10N
    {22611, 8252, 189507, 1320, 1686, 4, false}, // NAD83(CSRS)v6 / UTM zone 11N
    {22612, 8252, 189536, 1321, 1685, 4, false}, // NAD83(CSRS)v6 / UTM zone 12N
    {22613, 8252, 189565, 1322, 1684, 4, false}, // NAD83(CSRS)v6 / UTM zone 13N
    {22614, 8252, 189594, 1323, 1591, 4, false}, // NAD83(CSRS)v6 / UTM zone 14N
    {22615, 8252, 189623, 1324, 1592, 4, false}, // NAD83(CSRS)v6 / UTM zone 15N
    {22616, 8252, 189652, 1325, 1593, 4, false}, // NAD83(CSRS)v6 / UTM zone 16N
    {22617, 8252, 189681, 1326, 1594, 4, false}, // NAD83(CSRS)v6 / UTM zone 17N
    {22618, 8252, 189710, 1327, 1595, 4, false}, // NAD83(CSRS)v6 / UTM zone 18N
    {22619, 8252, 189739, 1328, 1682, 4, false}, // NAD83(CSRS)v6 / UTM zone 19N
    {22620, 8252, 189768, 1329, 1683, 4, false}, // NAD83(CSRS)v6 / UTM zone 20N
    {22621, 8252, 189797, 1330, 936, 4, false}, // NAD83(CSRS)v6 / UTM zone 21N
    {22622, 8252, 189826, 1331, 937, 4, false}, // NAD83(CSRS)v6 / UTM zone 22N
    {22639, 8252, 189444, 2349, 329, 4, false}, // NAD83(CSRS)v6 / PEI Stereographic
    {22641, 8252, 189004, 1923, 1011, 4, false}, // NAD83(CSRS)v6 / MTM zone 1
    {22642, 8252, 189255, 1924, 1012, 4, false}, // NAD83(CSRS)v6 / MTM zone 2
    {22643, 8252, 189282, 1925, 1060, 4, false}, // NAD83(CSRS)v6 / MTM zone 3
    {22644, 8252, 189309, 1926, 1930, 4, false}, // NAD83(CSRS)v6 / MTM zone 4
    {22645, 8252, 189336, 1927, 1920, 4, false}, // NAD83(CSRS)v6 / MTM zone 5
    {22646, 8252, 189363, 1928, 1934, 4, false}, // NAD83(CSRS)v6 / MTM zone 6
    {22648, 8252, 189390, 1930, 227, 4, false}, // NAD83(CSRS)v6 / MTM zone 8
    {22649, 8252, 189417, 1931, 228, 4, false}, // NAD83(CSRS)v6 / MTM zone 9
    {22650, 8252, 189031, 1932, 229, 4, false}, // NAD83(CSRS)v6 / MTM zone 10
    {22651, 8252, 189059, 1933, 230, 4, false}, // NAD83(CSRS)v6 / MTM zone 11
    {22652, 8252, 189087, 1934, 231, 4, false}, // NAD83(CSRS)v6 / MTM zone 12
    {22653, 8252, 189115, 1935, 232, 4, false}, // NAD83(CSRS)v6 / MTM zone 13
    {22654, 8252, 189143, 1936, 233, 4, false}, // NAD83(CSRS)v6 / MTM zone 14
    {22655, 8252, 189171, 1937, 234, 4, false}, // NAD83(CSRS)v6 / MTM zone 15
    {22656, 8252, 189199, 1938, 235, 4, false}, // NAD83(CSRS)v6 / MTM zone 16
    {22657, 8252, 189227, 1939, 236, 4, false}, // NAD83(CSRS)v6 / MTM zone 17
    {22700, 4227, 59489, 2329, 416, 4, false}, // Deir ez Zor / Levant Zone
    {22707, 8255, 190540, 1316, 1587, 4, false}, // NAD83(CSRS)v7 / UTM zone 7N
    {22708, 8255, 190568, 1317, 1588, 4, false}, // NAD83(CSRS)v7 / UTM zone 8N
    {22709, 8255, 190596, 1318, 1589, 4, false}, // NAD83(CSRS)v7 / UTM zone 9N
    {22710, 8255, 190163, 1319, 1590, 4, false}, // NAD83(CSRS)v7 / UTM zone 10N
    {22711, 8255, 190192, 1320, 1686, 4, false}, // NAD83(CSRS)v7 / UTM zone 11N
    {22712, 8255, 190221, 1321, 1685, 4, false}, // NAD83(CSRS)v7 / UTM zone 12N
    {22713, 8255, 190250, 1322, 1684, 4, false}, // NAD83(CSRS)v7 / UTM zone 13N
    {22714, 8255, 190279, 1323, 1591, 4, false}, // NAD83(CSRS)v7 / UTM zone 14N
    {22715, 8255, 190308, 1324, 1592, 4, false}, // NAD83(CSRS)v7 / UTM zone 15N
    {22716, 8255, 190337, 1325, 1593, 4, false}, // NAD83(CSRS)v7 / UTM zone 16N
    {22717, 8255, 190366, 1326, 1594, 4, false}, // NAD83(CSRS)v7 / UTM zone 17N
    {22718, 8255, 190395, 1327, 1595, 4, false}, // NAD83(CSRS)v7 / UTM zone 18N
    {22719, 8255, 190424, 1328, 1682, 4, false}, // NAD83(CSRS)v7 / UTM zone 19N
    {22720, 8255, 190453, 1329, 1683, 4, false}, // NAD83(CSRS)v7 / UTM zone 20N
    {22721, 8255, 190482, 1330, 936, 4, false}, // NAD83(CSRS)v7 / UTM zone 21N
    {22722, 8255, 190511, 1331, 937, 4, false}, // NAD83(CSRS)v7 / UTM zone 22N
    {22739, 8255, 190129, 2349, 329, 4, false}, // NAD83(CSRS)v7 / PEI Stereographic
    {22762, 8255, 189953, 1940, 1694, 4, false}, // NAD83(CSRS)v7 / Alberta 3TM ref merid 111 W
    {22763, 8255, 189997, 1941, 1693, 4, false}, // NAD83(CSRS)v7 / Alberta 3TM ref merid 114 W
    {22764, 8255, 190041, 1942, 1692, 4, false}, // NAD83(CSRS)v7 / Alberta 3TM ref merid 117 W
    {22765, 8255, 190085, 1944, 1691, 4, false}, // NAD83(CSRS)v7 / Alberta 3TM ref merid 120 W
    {22770, 4227, 59515, 2337, 416, 4, false}, // Deir ez Zor / Syria Lambert
    {22780, 4227, 59454, 2338, 416, 4, false}, // Deir ez Zor / Levant Stereographic
    {22832, 4228, 60386, 1341, 15, 4, true}, // Douala / UTM zone 32N
    {22991, 4229, 69163, 2072, 435, 4, false}, // Egypt 1907 / Blue Belt
    {22992, 4229, 69245, 2073, 436, 4, false}, // Egypt 1907 / Red Belt
    {22993, 4229, 69220, 2074, 437, 4, false}, // Egypt 1907 / Purple Belt
    {22994, 4229, 69186, 2075, 438, 4, false}, // Egypt 1907 / Extended Purple Belt
    {23028, 4230, 61424, 1337, 424, 4, false}, // ED50 / UTM zone 28N
    {23029, 4230, 61444, 1338, 425, 4, false}, // ED50 / UTM zone 29N
    {23030, 4230, 61464, 1339, 426, 4, false}, // ED50 / UTM zone 30N
    {23031, 4230, 61484, 1340, 427, 4, false}, // ED50 / UTM zone 31N
    {23032, 4230, 61504, 1341, 428, 4, false}, // ED50 / UTM zone 32N
    {23033, 4230, 61524, 1342, 429, 4, false}, // ED50 / UTM zone 33N
    {23034, 4230, 61544, 1343, 430, 4, false}, // ED50 / UTM zone 34N
    {23035, 4230, 61564, 1344, 431, 4, false}, // ED50 / UTM zone 35N
    {23036, 4230, 61584, 1345, 432, 4, false}, // ED50 / UTM zone 36N
    {23037, 4230, 61604, 1346, 433, 4, false}, // ED50 / UTM zone 37N
    {23038, 4230, 61624, 1347, 434, 4, false}, // ED50 / UTM zone 38N
    {23090, 4230, 61296, 1591, 422, 4, false}, // ED50 / TM 0 N
    {23095, 4230, 61310, 1592, 423, 4, false}, // ED50 / TM 5 NE
    {23239, 4232, 75163, 1348, 339, 4, false}, // Fahud / UTM zone 39N
    {23240, 4232, 75184, 1349, 2020, 4, false}, // Fahud / UTM zone 40N
    {23433, 4234, 93579, 1342, 15, 4, true}, // Garoua / UTM zone 33N
    {23700, 4237, 98153, 2321, 43, 4, false}, // HD72 / EOV
    {23830, 4755, 56321, 1877, 1996, 4, false}, // DGN95 / Indonesia TM-3 zone 46.2
    {23831, 4755, 56354, 1878, 1668, 4, false}, // DGN95 / Indonesia TM-3 zone 47.1
    {23832, 4755, 56387, 1879, 1669, 4, false}, // DGN95 / Indonesia TM-3 zone 47.2
    {23833, 4755, 56420, 1880, 1670, 4, false}, // DGN95 / Indonesia TM-3 zone 48.1
    {23834, 4755, 56453, 1881, 1671, 4, false}, // DGN95 / Indonesia TM-3 zone 48.2
    {23835, 4755, 56486, 1882, 1672, 4, false}, // DGN95 / Indonesia TM-3 zone 49.1
    {23836, 4755, 56519, 1883, 1673, 4, false}, // DGN95 / Indonesia TM-3 zone 49.2
    {23837, 4755, 56552, 1884, 1674, 4, false}, // DGN95 / Indonesia TM-3 zone 50.1
    {23838, 4755, 56585, 1885, 1675, 4, false}, // DGN95 / Indonesia TM-3 zone 50.2
    {23839, 4755, 56618, 1886, 1676, 4, false}, // DGN95 / Indonesia TM-3 zone 51.1
    {23840, 4755, 56651, 1887, 1677, 4, false}, // DGN95 / Indonesia TM-3 zone 51.2
    {23841, 4755, 56684, 1888, 1678, 4, false}, // DGN95 / Indonesia TM-3 zone 52.1
    {23842, 4755, 56717, 1889, 1679, 4, false}, // DGN95 / Indonesia TM-3 zone 52.2
    {23843, 4755, 56750, 1890, 1680, 4, false}, // DGN95 / Indonesia TM-3 zone 53.1
    {23844, 4755, 56783, 1891, 1681, 4, false}, // DGN95 / Indonesia TM-3 zone 53.2
    {23845, 4755, 56816, 1892, 1995, 4, false}, // DGN95 / Indonesia TM-3 zone 54.1
    {23846, 4238, 101134, 1355, 1996, 4, false}, // ID74 / UTM zone 46N
    {23847, 4238, 101174, 1356, 1998, 4, false}, // ID74 / UTM zone 47N
    {23848, 4238, 101214, 1357, 1999, 4, false}, // ID74 / UTM zone 48N
    {23849, 4238, 101254, 1358, 2000, 4, false}, // ID74 / UTM zone 49N
    {23850, 4238, 101294, 1359, 2001, 4, false}, // ID74 / UTM zone 50N
    {23851, 4238, 101334, 1360, 2003, 4, false}, // ID74 / UTM zone 51N
    {23852, 4238, 101374, 1361, 2004, 4, false}, // ID74 / UTM zone 52N
    {23853, 4238, 101414, 1362, 454, 4, true}, // ID74 / UTM zone 53N
    {23866, 4755, 56849, 1355, 440, 4, false}, // DGN95 / UTM zone 46N
    {23867, 4755, 56870, 1356, 442, 4, false}, // DGN95 / UTM zone 47N
    {23868, 4755, 56912, 1357, 444, 4, false}, // DGN95 / UTM zone 48N
    {23869, 4755, 56954, 1358, 446, 4, false}, // DGN95 / UTM zone 49N
    {23870, 4755, 56996, 1359, 448, 4, false}, // DGN95 / UTM zone 50N
    {23871, 4755, 57038, 1360, 450, 4, false}, // DGN95 / UTM zone 51N
    {23872, 4755, 57080, 1361, 452, 4, false}, // DGN95 / UTM zone 52N
    {23877, 4755, 56891, 1445, 443, 4, false}, // DGN95 / UTM zone 47S
    {23878, 4755, 56933, 1446, 445, 4, false}, // DGN95 / UTM zone 48S
    {23879, 4755, 56975, 1447, 447, 4, false}, // DGN95 / UTM zone 49S
    {23880, 4755, 57017, 1448, 449, 4, false}, // DGN95 / UTM zone 50S
    {23881, 4755, 57059, 1449, 451, 4, false}, // DGN95 / UTM zone 51S
    {23882, 4755, 57101, 1450, 453, 4, false}, // DGN95 / UTM zone 52S
    {23883, 4755, 57122, 1451, 455, 4, false}, // DGN95 / UTM zone 53S
    {23884, 4755, 57143, 1452, 456, 4, false}, // DGN95 / UTM zone 54S
    {23886, 4238, 101154, 1444, 441, 4, true}, // ID74 / UTM zone 46S
    {23887, 4238, 101194, 1445, 2005, 4, false}, // ID74 / UTM zone 47S
    {23888, 4238, 101234, 1446, 2006, 4, false}, // ID74 / UTM zone 48S
    {23889, 4238, 101274, 1447, 2007, 4, false}, // ID74 / UTM zone 49S
    {23890, 4238, 101314, 1448, 2008, 4, false}, // ID74 / UTM zone 50S
    {23891, 4238, 101354, 1449, 2009, 4, false}, // ID74 / UTM zone 51S
    {23892, 4238, 101394, 1450, 2010, 4, false}, // ID74 / UTM zone 52S
    {23893, 4238, 101434, 1451, 2011, 4, false}, // ID74 / UTM zone 53S
    {23894, 4238, 101454, 1452, 1995, 4, false}, // ID74 / UTM zone 54S
    {23946, 4239, 106688, 1355, 457, 4, false}, // Indian 1954 / UTM zone 46N
    {23947, 4239, 106715, 1356, 458, 4, false}, // Indian 1954 / UTM zone 47N
    {23948, 4239, 106742, 1357, 1825, 4, false}, // Indian 1954 / UTM zone 48N
    {24047, 4240, 106871, 1356, 460, 4, false}, // Indian 1975 / UTM zone 47N
    {24048, 4240, 106898, 1357, 459, 4, false}, // Indian 1975 / UTM zone 48N
    {24100, 4241, 115175, 2302, 1540, 9, false}, // Jamaica 1875 / Jamaica (Old Grid)
    {24200, 4242, 112834, 2303, 1540, 4, false}, // JAD69 / Jamaica National Grid
    {24305, 4144, 118053, 1354, 467, 4, false}, // Kalianpur 1937 / UTM zone 45N
    {24306, 4144, 118083, 1355, 468, 4, false}, // Kalianpur 1937 / UTM zone 46N
    {24311, 4145, 118190, 1350, 480, 4, false}, // Kalianpur 1962 / UTM zone 41N
    {24312, 4145, 118220, 1351, 481, 4, false}, // Kalianpur 1962 / UTM zone 42N
    {24313, 4145, 118250, 1352, 482, 4, false}, // Kalianpur 1962 / UTM zone 43N
    {24342, 4146, 118454, 1351, 472, 4, false}, // Kalianpur 1975 / UTM zone 42N
    {24343, 4146, 118484, 1352, 473, 4, false}, // Kalianpur 1975 / UTM zone 43N
    {24344, 4146, 118514, 1353, 474, 4, false}, // Kalianpur 1975 / UTM zone 44N
    {24345, 4146, 118544, 1354, 475, 4, false}, // Kalianpur 1975 / UTM zone 45N
    {24346, 4146, 118574, 1355, 476, 4, false}, // Kalianpur 1975 / UTM zone 46N
    {24347, 4146, 118604, 1356, 477, 4, false}, // Kalianpur 1975 / UTM zone 47N
    {24370, 4243, 117817, 2095, 461, 19, false}, // Kalianpur 1880 / India zone 0
    {24371, 4243, 117847, 2096, 462, 19, false}, // Kalianpur 1880 / India zone I
    {24372, 4243, 117910, 2097, 463, 19, false}, // Kalianpur 1880 / India zone IIa
    {24373, 4243, 117877, 2099, 465, 19, false}, // Kalianpur 1880 / India zone IIIa
    {24374, 4243, 117974, 2100, 466, 19, false}, // Kalianpur 1880 / India zone IVa
    {24375, 4144, 118021, 2163, 1479, 4, false}, // Kalianpur 1937 / India zone IIb
    {24376, 4145, 118128, 2161, 478, 4, false}, // Kalianpur 1962 / India zone I
    {24377, 4145, 118158, 2162, 479, 4, false}, // Kalianpur 1962 / India zone IIa
    {24378, 4146, 118295, 2156, 469, 4, false}, // Kalianpur 1975 / India zone I
    {24379, 4146, 118358, 2157, 470, 4, false}, // Kalianpur 1975 / India zone IIa
    {24380, 4146, 118390, 2160, 471, 4, false}, // Kalianpur 1975 / India zone IIb
    {24381, 4146, 118325, 2158, 465, 4, false}, // Kalianpur 1975 / India zone IIIa
    {24382, 4243, 117942, 2098, 464, 19, false}, // Kalianpur 1880 / India zone IIb
    {24383, 4146, 118422, 2159, 466, 4, false}, // Kalianpur 1975 / India zone IVa
    {24500, 4245, 121756, 2310, 90, 4, false}, // Kertau 1968 / Singapore Grid
    {24547, 4245, 121815, 1356, 484, 4, false}, // Kertau 1968 / UTM zone 47N
    {24548, 4245, 121842, 1357, 485, 4, false}, // Kertau 1968 / UTM zone 48N
    {24571, 4245, 121475, 2324, 483, 18, true}, // Kertau / R.S.O. Malaya (ch)
    {24600, 4246, 117443, 2299, 1504, 4, false}, // KOC Lambert
    {24718, 4247, 125478, 1327, 486, 4, false}, // La Canoa / UTM zone 18N
    {24719, 4247, 125502, 1328, 487, 4, false}, // La Canoa / UTM zone 19N
    {24720, 4247, 125526, 1329, 488, 4, false}, // La Canoa / UTM zone 20N
    {24817, 4248, 242163, 1326, 1411, 4, false}, // PSAD56 / UTM zone 17N
    {24818, 4248, 242207, 1327, 542, 4, false}, // PSAD56 / UTM zone 18N
    {24819, 4248, 242251, 1328, 544, 4, false}, // PSAD56 / UTM zone 19N
    {24820, 4248, 242295, 1329, 546, 4, false}, // PSAD56 / UTM zone 20N
    {24821, 4248, 242339, 1330, 548, 4, false}, // PSAD56 / UTM zone 21N
    {24877, 4248, 242185, 1415, 541, 4, false}, // PSAD56 / UTM zone 17S
    {24878, 4248, 242229, 1416, 543, 4, false}, // PSAD56 / UTM zone 18S
    {24879, 4248, 242273, 1417, 545, 4, false}, // PSAD56 / UTM zone 19S
    {24880, 4248, 242317, 1418, 547, 4, false}, // PSAD56 / UTM zone 20S
    {24881, 4248, 242361, 1419, 1823, 4, false}, // PSAD56 / UTM zone 21S
    {24882, 4248, 242383, 1420, 540, 4, false}, // PSAD56 / UTM zone 22S
    {24891, 4248, 242139, 2113, 539, 4, false}, // PSAD56 / Peru west zone
    {24892, 4248, 242088, 2114, 538, 4, false}, // PSAD56 / Peru central zone
    {24893, 4248, 242115, 2115, 537, 4, false}, // PSAD56 / Peru east zone
    {25000, 4250, 126902, 2297, 40, 4, false}, // Leigon / Ghana Metre Grid
    {25231, 4252, 129719, 1340, 98, 4, false}, // Lome / UTM zone 31N
    {25391, 4253, 130160, 2116, 1980, 4, false}, // Luzon 1911 / Philippines zone I
    {25392, 4253, 130192, 2117, 1986, 4, false}, // Luzon 1911 / Philippines zone II
    {25393, 4253, 130225, 2118, 1987, 4, false}, // Luzon 1911 / Philippines zone III
    {25394, 4253, 130259, 2119, 1988, 4, false}, // Luzon 1911 / Philippines zone IV
    {25395, 4253, 130292, 2120, 1989, 4, false}, // Luzon 1911 / Philippines zone V
    {25700, 4804, 135595, 2298, 147, 4, true}, // Makassar (Jakarta) / NEIEZ
    {25828, 4258, 67550, 1337, 907, 4, false}, // ETRS89 / UTM zone 28N
    {25829, 4258, 67600, 1338, 908, 4, false}, // ETRS89 / UTM zone 29N
    {25830, 4258, 67650, 1339, 909, 4, false}, // ETRS89 / UTM zone 30N
    {25831, 4258, 67700, 1340, 910, 4, false}, // ETRS89 / UTM zone 31N
    {25832, 4258, 67808, 1341, 911, 4, false}, // ETRS89 / UTM zone 32N
    {25833, 4258, 67916, 1342, 912, 4, false}, // ETRS89 / UTM zone 33N
    {25834, 4258, 294699, 1343, 913, 4, false}, // ETRS89 / UTM zone 34N
    {25835, 4258, 68052, 1344, 914, 4, false}, // ETRS89 / UTM zone 35N
    {25836, 4258, 68102, 1345, 915, 4, false}, // ETRS89 / UTM zone 36N
    {25837, 4258, 68152, 1346, 916, 4, false}, // ETRS89 / UTM zone 37N
    {25838, 4258, 68202, 1347, 917, 4, true}, // ETRS89 / UTM zone 38N
    {25884, 4258, 67429, 2328, 439, 5, false}, // ETRS89 / TM Baltic93
    {25932, 4259, 136332, 1430, 1452, 4, false}, // Malongo 1987 / UTM zone 32S
    {26191, 4261, 138804, 2103, 496, 4, false}, // Merchich / Nord Maroc
    {26192, 4261, 138889, 2104, 1223, 4, false}, // Merchich / Sud Maroc
    {26193, 4261, 138826, 2105, 497, 4, true}, // Merchich / Sahara
    {26194, 4261, 138844, 2106, 1224, 4, false}, // Merchich / Sahara Nord
    {26195, 4261, 138867, 2107, 1225, 4, false}, // Merchich / Sahara Sud
    {26237, 4262, 137984, 1346, 31, 4, false}, // Massawa / UTM zone 37N
    {26331, 4263, 141133, 1340, 508, 4, false}, // Minna / UTM zone 31N
    {26332, 4263, 141154, 1341, 1883, 4, false}, // Minna / UTM zone 32N
    {26391, 4263, 141107, 2110, 507, 4, false}, // Minna / Nigeria West Belt
    {26392, 4263, 141082, 2111, 506, 4, false}, // Minna / Nigeria Mid Belt
    {26393, 4263, 141056, 2112, 505, 4, false}, // Minna / Nigeria East Belt
    {26432, 4264, 139907, 1430, 148, 4, true}, // Mhast / UTM zone 32S
    {26591, 4806, 143367, 2101, 509, 4, true}, // Monte Mario (Rome) / Italy zone 1
    {26592, 4806, 143401, 2102, 510, 4, true}, // Monte Mario (Rome) / Italy zone 2
    {26632, 4266, 130402, 1341, 489, 4, false}, // M'poraloko / UTM zone 32N
    {26692, 4266, 130428, 1430, 490, 4, false}, // M'poraloko / UTM zone 32S
    {26701, 4267, 148660, 1310, 1556, 4, false}, // NAD27 / UTM zone 1N
    {26702, 4267, 148743, 1311, 1557, 4, false}, // NAD27 / UTM zone 2N
    {26703, 4267, 148763, 1312, 918, 4, false}, // NAD27 / UTM zone 3N
    {26704, 4267, 148783, 1313, 919, 4, false}, // NAD27 / UTM zone 4N
    {26705, 4267, 148824, 1314, 920, 4, false}, // NAD27 / UTM zone 5N
    {26706, 4267, 148865, 1315, 921, 4, false}, // NAD27 / UTM zone 6N
    {26707, 4267, 148885, 1316, 922, 4, false}, // NAD27 / UTM zone 7N
    {26708, 4267, 148905, 1317, 923, 4, false}, // NAD27 / UTM zone 8N
    {26709, 4267, 148925, 1318, 924, 4, false}, // NAD27 / UTM zone 9N
    {26710, 4267, 148450, 1319, 925, 4, false}, // NAD27 / UTM zone 10N
    {26711, 4267, 148471, 1320, 926, 4, false}, // NAD27 / UTM zone 11N
    {26712, 4267, 148492, 1321, 927, 4, false}, // NAD27 / UTM zone 12N
    {26713, 4267, 148513, 1322, 928, 4, false}, // NAD27 / UTM zone 13N
    {26714, 4267, 148534, 1323, 929, 4, false}, // NAD27 / UTM zone 14N
    {26715, 4267, 148555, 1324, 930, 4, false}, // NAD27 / UTM zone 15N
    {26716, 4267, 148576, 1325, 931, 4, false}, // NAD27 / UTM zone 16N
    {26717, 4267, 148597, 1326, 932, 4, false}, // NAD27 / UTM zone 17N
    {26718, 4267, 148618, 1327, 933, 4, false}, // NAD27 / UTM zone 18N
    {26719, 4267, 148639, 1328, 934, 4, false}, // NAD27 / UTM zone 19N
    {26720, 4267, 148680, 1329, 935, 4, false}, // NAD27 / UTM zone 20N
    {26721, 4267, 148701, 1330, 1940, 4, false}, // NAD27 / UTM zone 21N
    {26722, 4267, 148722, 1331, 937, 4, false}, // NAD27 / UTM zone 22N
    {26729, 4267, 144817, 908, 939, 8, false}, // NAD27 / Alabama East
    {26730, 4267, 144838, 909, 940, 8, false}, // NAD27 / Alabama West
    {26731, 4267, 144881, 1165, 941, 8, false}, // NAD27 / Alaska zone 1
    {26732, 4267, 144926, 1166, 943, 8, false}, // NAD27 / Alaska zone 2
    {26733, 4267, 144948, 1167, 944, 8, false}, // NAD27 / Alaska zone 3
    {26734, 4267, 144970, 1168, 945, 8, false}, // NAD27 / Alaska zone 4
    {26735, 4267, 144992, 1169, 946, 8, false}, // NAD27 / Alaska zone 5
    {26736, 4267, 145014, 1170, 947, 8, false}, // NAD27 / Alaska zone 6
    {26737, 4267, 145036, 1171, 948, 8, false}, // NAD27 / Alaska zone 7
    {26738, 4267, 145058, 1172, 949, 8, false}, // NAD27 / Alaska zone 8
    {26739, 4267, 145080, 1173, 950, 8, false}, // NAD27 / Alaska zone 9
    {26740, 4267, 144903, 1174, 942, 8, false}, // NAD27 / Alaska zone 10
    {26741, 4267, 145950, 925, 960, 8, false}, // NAD27 / California zone I
    {26742, 4267, 145976, 926, 961, 8, false}, // NAD27 / California zone II
    {26743, 4267, 146003, 927, 962, 8, false}, // NAD27 / California zone III
    {26744, 4267, 146031, 928, 963, 8, false}, // NAD27 / California zone IV
    {26745, 4267, 146058, 929, 964, 8, false}, // NAD27 / California zone V
    {26746, 4267, 146084, 930, 965, 8, false}, // NAD27 / California zone VI
    {26747, 4267, 146111, 931, 966, 8, true}, // NAD27 / California zone VII
    {26748, 4267, 145270, 915, 952, 8, false}, // NAD27 / Arizona East
    {26749, 4267, 145246, 916, 951, 8, false}, // NAD27 / Arizona Central
    {26750, 4267, 145291, 917, 953, 8, false}, // NAD27 / Arizona West
    {26751, 4267, 145312, 921, 954, 8, false}, // NAD27 / Arkansas North
    {26752, 4267, 145335, 922, 955, 8, false}, // NAD27 / Arkansas South
    {26753, 4267, 146164, 940, 969, 8, false}, // NAD27 / Colorado North
    {26754, 4267, 146139, 941, 968, 8, false}, // NAD27 / Colorado Central
    {26755, 4267, 146187, 942, 970, 8, false}, // NAD27 / Colorado South
    {26756, 4267, 146210, 946, 194, 8, false}, // NAD27 / Connecticut
    {26757, 4267, 146287, 948, 195, 8, false}, // NAD27 / Delaware
    {26758, 4267, 146304, 950, 971, 8, false}, // NAD27 / Florida East
    {26759, 4267, 146347, 951, 973, 8, false}, // NAD27 / Florida West
    {26760, 4267, 146325, 952, 972, 8, false}, // NAD27 / Florida North
    {26766, 4267, 146368, 957, 974, 8, false}, // NAD27 / Georgia East
    {26767, 4267, 146389, 958, 975, 8, false}, // NAD27 / Georgia West
    {26768, 4267, 146478, 961, 977, 8, false}, // NAD27 / Idaho East
    {26769, 4267, 146456, 962, 976, 8, false}, // NAD27 / Idaho Central
    {26770, 4267, 146497, 963, 978, 8, false}, // NAD27 / Idaho West
    {26771, 4267, 146516, 967, 979, 8, false}, // NAD27 / Illinois East
    {26772, 4267, 146538, 968, 980, 8, false}, // NAD27 / Illinois West
    {26773, 4267, 146560, 971, 981, 8, false}, // NAD27 / Indiana East
    {26774, 4267, 146581, 972, 982, 8, false}, // NAD27 / Indiana West
    {26775, 4267, 146602, 975, 983, 8, false}, // NAD27 / Iowa North
    {26776, 4267, 146621, 976, 984, 8, false}, // NAD27 / Iowa South
    {26777, 4267, 146640, 979, 985, 8, false}, // NAD27 / Kansas North
    {26778, 4267, 146661, 980, 986, 8, false}, // NAD27 / Kansas South
    {26779, 4267, 146682, 983, 987, 8, false}, // NAD27 / Kentucky North
    {26780, 4267, 146705, 984, 988, 8, false}, // NAD27 / Kentucky South
    {26781, 4267, 146728, 988, 989, 8, false}, // NAD27 / Louisiana North
    {26782, 4267, 146779, 989, 990, 8, false}, // NAD27 / Louisiana South
    {26783, 4267, 146957, 994, 991, 8, false}, // NAD27 / Maine East
    {26784, 4267, 146976, 995, 992, 8, false}, // NAD27 / Maine West
    {26785, 4267, 146995, 1004, 201, 8, false}, // NAD27 / Maryland
    {26786, 4267, 147041, 1006, 994, 8, false}, // NAD27 / Massachusetts Mainland
    {26787, 4267, 147012, 1007, 993, 8, false}, // NAD27 / Massachusetts Island
    {26791, 4267, 147242, 1020, 999, 8, false}, // NAD27 / Minnesota North
    {26792, 4267, 147216, 1021, 998, 8, false}, // NAD27 / Minnesota Central
    {26793, 4267, 147266, 1022, 1000, 8, false}, // NAD27 / Minnesota South
    {26794, 4267, 147290, 1029, 1001, 8, false}, // NAD27 / Mississippi East
    {26795, 4267, 147315, 1030, 1002, 8, false}, // NAD27 / Mississippi West
    {26796, 4267, 147365, 1033, 1004, 8, false}, // NAD27 / Missouri East
    {26797, 4267, 147340, 1034, 1003, 8, false}, // NAD27 / Missouri Central
    {26798, 4267, 147387, 1035, 1005, 8, false}, // NAD27 / Missouri West
    {26799, 4267, 146111, 932, 966, 8, false}, // NAD27 / California zone VII
    {26801, 4268, 144648, 1010, 511, 8, true}, // NAD Michigan / Michigan East
    {26802, 4268, 144707, 1011, 512, 8, true}, // NAD Michigan / Michigan Old Central
    {26803, 4268, 144773, 1012, 1784, 8, true}, // NAD Michigan / Michigan West
    {26811, 4268, 144677, 1013, 513, 8, true}, // NAD Michigan / Michigan North
    {26812, 4268, 144616, 1014, 514, 8, true}, // NAD Michigan / Michigan Central
    {26813, 4268, 144743, 1015, 515, 8, true}, // NAD Michigan / Michigan South
    {26814, 4269, 154490, 998, 991, 4, true}, // NAD83 / Maine East (ftUS)
    {26815, 4269, 154535, 999, 992, 4, true}, // NAD83 / Maine West (ftUS)
    {26819, 4269, 155010, 1026, 999, 4, true}, // NAD83 / Minnesota North (ftUS)
    {26820, 4269, 154953, 1027, 998, 4, true}, // NAD83 / Minnesota Central (ftUS)
    {26821, 4269, 155065, 1028, 1000, 4, true}, // NAD83 / Minnesota South (ftUS)
    {26822, 4269, 155500, 1300, 205, 4, true}, // NAD83 / Nebraska (ftUS)
    {26823, 4269, 158729, 1140, 1049, 4, true}, // NAD83 / West Virginia North (ftUS)
    {26824, 4269, 158792, 1141, 1050, 4, true}, // NAD83 / West Virginia South (ftUS)
    {26825, 4152, 194143, 998, 991, 4, true}, // NAD83(HARN) / Maine East (ftUS)
    {26826, 4152, 194200, 999, 992, 4, true}, // NAD83(HARN) / Maine West (ftUS)
    {26830, 4152, 194777, 1026, 999, 4, true}, // NAD83(HARN) / Minnesota North (ftUS)
    {26831, 4152, 194708, 1027, 998, 4, true}, // NAD83(HARN) / Minnesota Central (ftUS)
    {26832, 4152, 194844, 1028, 1000, 4, true}, // NAD83(HARN) / Minnesota South (ftUS)
    {26833, 4152, 195207, 1300, 205, 4, true}, // NAD83(HARN) / Nebraska (ftUS)
    {26834, 4152, 202959, 1140, 1049, 4, true}, // NAD83(HARN) / West Virginia North (ftUS)
    {26835, 4152, 203034, 1141, 1050, 4, true}, // NAD83(HARN) / West Virginia South (ftUS)
    {26836, 4759, 207210, 998, 991, 4, true}, // NAD83(NSRS2007) / Maine East (ftUS)
    {26837, 4759, 207275, 999, 992, 4, true}, // NAD83(NSRS2007) / Maine West (ftUS)
    {26841, 4759, 207920, 1026, 999, 4, true}, // NAD83(NSRS2007) / Minnesota North (ftUS)
    {26842, 4759, 207843, 1027, 998, 4, true}, // NAD83(NSRS2007) / Minnesota Central (ftUS)
    {26843, 4759, 207995, 1028, 1000, 4, true}, // NAD83(NSRS2007) / Minnesota South (ftUS)
    {26844, 4759, 208406, 1300, 205, 4, true}, // NAD83(NSRS2007) / Nebraska (ftUS)
    {26845, 4759, 212454, 1140, 1049, 4, true}, // NAD83(NSRS2007) / West Virginia North (ftUS)
    {26846, 4759, 212537, 1141, 1050, 4, true}, // NAD83(NSRS2007) / West Virginia South (ftUS)
    {26847, 4269, 154490, 998, 991, 8, false}, // NAD83 / Maine East (ftUS)
    {26848, 4269, 154535, 999, 992, 8, false}, // NAD83 / Maine West (ftUS)
    {26849, 4269, 155010, 1026, 999, 8, false}, // NAD83 / Minnesota North (ftUS)
    {26850, 4269, 154953, 1027, 998, 8, false}, // NAD83 / Minnesota Central (ftUS)
    {26851, 4269, 155065, 1028, 1000, 8, false}, // NAD83 / Minnesota South (ftUS)
    {26852, 4269, 155500, 1300, 205, 8, false}, // NAD83 / Nebraska (ftUS)
    {26853, 4269, 158729, 1142, 1049, 8, false}, // NAD83 / West Virginia North (ftUS)
    {26854, 4269, 158792, 1143, 1050, 8, false}, // NAD83 / West Virginia South (ftUS)
    {26855, 4152, 194143, 998, 991, 8, false}, // NAD83(HARN) / Maine East (ftUS)
    {26856, 4152, 194200, 999, 992, 8, false}, // NAD83(HARN) / Maine West (ftUS)
    {26857, 4152, 194777, 1026, 999, 8, false}, // NAD83(HARN) / Minnesota North (ftUS)
    {26858, 4152, 194708, 1027, 998, 8, false}, // NAD83(HARN) / Minnesota Central (ftUS)
    {26859, 4152, 194844, 1028, 1000, 8, false}, // NAD83(HARN) / Minnesota South (ftUS)
    {26860, 4152, 195207, 1300, 205, 8, false}, // NAD83(HARN) / Nebraska (ftUS)
    {26861, 4152, 202959, 1142, 1049, 8, false}, // NAD83(HARN) / West Virginia North (ftUS)
    {26862, 4152, 203034, 1143, 1050, 8, false}, // NAD83(HARN) / West Virginia South (ftUS)
    {26863, 4759, 207210, 998, 991, 8, false}, // NAD83(NSRS2007) / Maine East (ftUS)
    {26864, 4759, 207275, 999, 992, 8, false}, // NAD83(NSRS2007) / Maine West (ftUS)
    {26865, 4759, 207920, 1026, 999, 8, false}, // NAD83(NSRS2007) / Minnesota North (ftUS)
    {26866, 4759, 207843, 1027, 998, 8, false}, // NAD83(NSRS2007) / Minnesota Central (ftUS)
    {26867, 4759, 207995, 1028, 1000, 8, false}, // NAD83(NSRS2007) / Minnesota South (ftUS)
    {26868, 4759, 208406, 1300, 205, 8, false}, // NAD83(NSRS2007) / Nebraska (ftUS)
    {26869, 4759, 212454, 1142, 1049, 8, false}, // NAD83(NSRS2007) / West Virginia North (ftUS)
    {26870, 4759, 212537, 1143, 1050, 8, false}, // NAD83(NSRS2007) / West Virginia South (ftUS)
    {26891, 4617, 185230, 1933, 230, 4, false}, // NAD83(CSRS) / MTM zone 11
    {26892, 4617, 185256, 1934, 231, 4, false}, // NAD83(CSRS) / MTM zone 12
    {26893, 4617, 185282, 1935, 232, 4, false}, // NAD83(CSRS) / MTM zone 13
    {26894, 4617, 185308, 1936, 233, 4, false}, // NAD83(CSRS) / MTM zone 14
    {26895, 4617, 185334, 1937, 234, 4, false}, // NAD83(CSRS) / MTM zone 15
    {26896, 4617, 185360, 1938, 235, 4, false}, // NAD83(CSRS) / MTM zone 16
    {26897, 4617, 185386, 1939, 236, 4, false}, // NAD83(CSRS) / MTM zone 17
    {26898, 4617, 185179, 1923, 1011, 4, false}, // NAD83(CSRS) / MTM zone 1
    {26899, 4617, 185412, 1924, 1012, 4, false}, // NAD83(CSRS) / MTM zone 2
    {26901, 4269, 157877, 1310, 1556, 4, false}, // NAD83 / UTM zone 1N
    {26902, 4269, 158002, 1311, 1557, 4, false}, // NAD83 / UTM zone 2N
    {26903, 4269, 158022, 1312, 918, 4, false}, // NAD83 / UTM zone 3N
    {26904, 4269, 158042, 1313, 1651, 4, false}, // NAD83 / UTM zone 4N
    {26905, 4269, 158083, 1314, 1653, 4, false}, // NAD83 / UTM zone 5N
    {26906, 4269, 158124, 1315, 921, 4, false}, // NAD83 / UTM zone 6N
    {26907, 4269, 158144, 1316, 1927, 4, false}, // NAD83 / UTM zone 7N
    {26908, 4269, 158164, 1317, 1922, 4, false}, // NAD83 / UTM zone 8N
    {26909, 4269, 158184, 1318, 1921, 4, false}, // NAD83 / UTM zone 9N
    {26910, 4269, 157667, 1319, 1919, 4, false}, // NAD83 / UTM zone 10N
    {26911, 4269, 157688, 1320, 1582, 4, false}, // NAD83 / UTM zone 11N
    {26912, 4269, 157709, 1321, 1583, 4, false}, // NAD83 / UTM zone 12N
    {26913, 4269, 157730, 1322, 1584, 4, false}, // NAD83 / UTM zone 13N
    {26914, 4269, 157751, 1323, 1585, 4, false}, // NAD83 / UTM zone 14N
    {26915, 4269, 157772, 1324, 1412, 4, false}, // NAD83 / UTM zone 15N
    {26916, 4269, 157793, 1325, 1413, 4, false}, // NAD83 / UTM zone 16N
    {26917, 4269, 157814, 1326, 1414, 4, false}, // NAD83 / UTM zone 17N
    {26918, 4269, 157835, 1327, 1415, 4, false}, // NAD83 / UTM zone 18N
    {26919, 4269, 157856, 1328, 1597, 4, false}, // NAD83 / UTM zone 19N
    {26920, 4269, 157897, 1329, 1598, 4, false}, // NAD83 / UTM zone 20N
    {26921, 4269, 157918, 1330, 936, 4, false}, // NAD83 / UTM zone 21N
    {26922, 4269, 157939, 1331, 937, 4, false}, // NAD83 / UTM zone 22N
    {26923, 4269, 157960, 1332, 938, 4, false}, // NAD83 / UTM zone 23N
    {26929, 4269, 150687, 911, 939, 4, false}, // NAD83 / Alabama East
    {26930, 4269, 150708, 912, 940, 4, false}, // NAD83 / Alabama West
    {26931, 4269, 150751, 1177, 941, 4, false}, // NAD83 / Alaska zone 1
    {26932, 4269, 150796, 1178, 943, 4, false}, // NAD83 / Alaska zone 2
    {26933, 4269, 150818, 1179, 944, 4, false}, // NAD83 / Alaska zone 3
    {26934, 4269, 150840, 1180, 945, 4, false}, // NAD83 / Alaska zone 4
    {26935, 4269, 150862, 1181, 946, 4, false}, // NAD83 / Alaska zone 5
    {26936, 4269, 150884, 1182, 947, 4, false}, // NAD83 / Alaska zone 6
    {26937, 4269, 150906, 1183, 948, 4, false}, // NAD83 / Alaska zone 7
    {26938, 4269, 150928, 1184, 949, 4, false}, // NAD83 / Alaska zone 8
    {26939, 4269, 150950, 1185, 950, 4, false}, // NAD83 / Alaska zone 9
    {26940, 4269, 150773, 1186, 942, 4, false}, // NAD83 / Alaska zone 10
    {26941, 4269, 151951, 934, 960, 4, false}, // NAD83 / California zone 1
    {26942, 4269, 152010, 935, 961, 4, false}, // NAD83 / California zone 2
    {26943, 4269, 152069, 936, 962, 4, false}, // NAD83 / California zone 3
    {26944, 4269, 152128, 937, 963, 4, false}, // NAD83 / California zone 4
    {26945, 4269, 152187, 938, 967, 4, false}, // NAD83 / California zone 5
    {26946, 4269, 152246, 939, 965, 4, false}, // NAD83 / California zone 6
    {26948, 4269, 151233, 918, 952, 4, false}, // NAD83 / Arizona East
    {26949, 4269, 151180, 919, 951, 4, false}, // NAD83 / Arizona Central
    {26950, 4269, 151280, 920, 953, 4, false}, // NAD83 / Arizona West
    {26951, 4269, 151327, 923, 954, 4, false}, // NAD83 / Arkansas North
    {26952, 4269, 151380, 924, 955, 4, false}, // NAD83 / Arkansas South
    {26953, 4269, 152391, 943, 969, 4, false}, // NAD83 / Colorado North
    {26954, 4269, 152334, 944, 968, 4, false}, // NAD83 / Colorado Central
    {26955, 4269, 152444, 945, 970, 4, false}, // NAD83 / Colorado South
    {26956, 4269, 152497, 947, 194, 4, false}, // NAD83 / Connecticut
    {26957, 4269, 152565, 949, 195, 4, false}, // NAD83 / Delaware
    {26958, 4269, 152606, 953, 971, 4, false}, // NAD83 / Florida East
    {26959, 4269, 152733, 954, 973, 4, false}, // NAD83 / Florida West
    {26960, 4269, 152682, 955, 972, 4, false}, // NAD83 / Florida North
    {26961, 4269, 152950, 1192, 341, 4, false}, // NAD83 / Hawaii zone 1
    {26962, 4269, 152972, 1193, 342, 4, false}, // NAD83 / Hawaii zone 2
    {26963, 4269, 152994, 1194, 343, 4, false}, // NAD83 / Hawaii zone 3
    {26964, 4269, 153045, 1195, 344, 4, false}, // NAD83 / Hawaii zone 4
    {26965, 4269, 153067, 1196, 345, 4, false}, // NAD83 / Hawaii zone 5
    {26966, 4269, 152782, 959, 974, 4, false}, // NAD83 / Georgia East
    {26967, 4269, 152831, 960, 975, 4, false}, // NAD83 / Georgia West
    {26968, 4269, 153140, 964, 977, 4, false}, // NAD83 / Idaho East
    {26969, 4269, 153089, 965, 976, 4, false}, // NAD83 / Idaho Central
    {26970, 4269, 153219, 966, 978, 4, false}, // NAD83 / Idaho West
    {26971, 4269, 153264, 969, 979, 4, false}, // NAD83 / Illinois East
    {26972, 4269, 153315, 970, 980, 4, false}, // NAD83 / Illinois West
    {26973, 4269, 153366, 973, 981, 4, false}, // NAD83 / Indiana East
    {26974, 4269, 153415, 974, 982, 4, false}, // NAD83 / Indiana West
    {26975, 4269, 153464, 977, 983, 4, false}, // NAD83 / Iowa North
    {26976, 4269, 153509, 978, 984, 4, false}, // NAD83 / Iowa South
    {26977, 4269, 153599, 981, 985, 4, false}, // NAD83 / Kansas North
    {26978, 4269, 153648, 982, 986, 4, false}, // NAD83 / Kansas South
    {26979, 4269, 153697, 986, 987, 4, true}, // NAD83 / Kentucky North
    {26980, 4269, 153815, 987, 988, 4, false}, // NAD83 / Kentucky South
    {26981, 4269, 153868, 991, 989, 4, false}, // NAD83 / Louisiana North
    {26982, 4269, 153984, 992, 1085, 4, false}, // NAD83 / Louisiana South
    {26983, 4269, 154471, 996, 991, 4, false}, // NAD83 / Maine East
    {26984, 4269, 154516, 997, 992, 4, false}, // NAD83 / Maine West
    {26985, 4269, 154561, 1005, 201, 4, false}, // NAD83 / Maryland
    {26986, 4269, 154667, 1008, 994, 4, false}, // NAD83 / Massachusetts Mainland
    {26987, 4269, 154602, 1009, 993, 4, false}, // NAD83 / Massachusetts Island
    {26988, 4269, 154791, 1016, 513, 4, false}, // NAD83 / Michigan North
    {26989, 4269, 154736, 1017, 514, 4, false}, // NAD83 / Michigan Central
    {26990, 4269, 154876, 1018, 515, 4, false}, // NAD83 / Michigan South
    {26991, 4269, 154986, 1023, 999, 4, false}, // NAD83 / Minnesota North
    {26992, 4269, 154927, 1024, 998, 4, false}, // NAD83 / Minnesota Central
    {26993, 4269, 155041, 1025, 1000, 4, false}, // NAD83 / Minnesota South
    {26994, 4269, 155096, 1031, 1001, 4, false}, // NAD83 / Mississippi East
    {26995, 4269, 155176, 1032, 1002, 4, false}, // NAD83 / Mississippi West
    {26996, 4269, 155258, 1036, 1004, 4, false}, // NAD83 / Missouri East
    {26997, 4269, 155233, 1037, 1003, 4, false}, // NAD83 / Missouri Central
    {26998, 4269, 155280, 1038, 1005, 4, false}, // NAD83 / Missouri West
    {27037, 4270, 218438, 1346, 1569, 4, true}, // Nahrwan 1967 / UTM zone 37N
    {27038, 4270, 218466, 1347, 1568, 4, true}, // Nahrwan 1967 / UTM zone 38N
    {27039, 4270, 218494, 1348, 535, 4, false}, // Nahrwan 1967 / UTM zone 39N
    {27040, 4270, 218522, 1349, 536, 4, false}, // Nahrwan 1967 / UTM zone 40N
    {27120, 4271, 219058, 1329, 151, 4, false}, // Naparima 1972 / UTM zone 20N
    {27200, 4272, 217801, 2308, 1994, 4, false}, // NZGD49 / New Zealand Map Grid
    {27205, 4272, 217657, 1966, 1861, 5, false}, // NZGD49 / Mount Eden Circuit
    {27206, 4272, 217337, 1967, 1859, 5, false}, // NZGD49 / Bay of Plenty Circuit
    {27207, 4272, 217948, 1968, 1860, 5, false}, // NZGD49 / Poverty Bay Circuit
    {27208, 4272, 217490, 1969, 1853, 5, false}, // NZGD49 / Hawkes Bay Circuit
    {27209, 4272, 218004, 1970, 1857, 5, false}, // NZGD49 / Taranaki Circuit
    {27210, 4272, 218054, 1971, 1858, 5, false}, // NZGD49 / Tuhirangi Circuit
    {27211, 4272, 218174, 1972, 1856, 5, false}, // NZGD49 / Wanganui Circuit
    {27212, 4272, 218147, 1973, 1855, 5, false}, // NZGD49 / Wairarapa Circuit
    {27213, 4272, 218200, 1974, 1854, 5, false}, // NZGD49 / Wellington Circuit
    {27214, 4272, 217415, 1975, 1862, 5, false}, // NZGD49 / Collingwood Circuit
    {27215, 4272, 217777, 1976, 1864, 5, false}, // NZGD49 / Nelson Circuit
    {27216, 4272, 217574, 1977, 1863, 5, false}, // NZGD49 / Karamea Circuit
    {27217, 4272, 217391, 1978, 1866, 5, false}, // NZGD49 / Buller Circuit
    {27218, 4272, 217468, 1979, 1867, 5, false}, // NZGD49 / Grey Circuit
    {27219, 4272, 217314, 1980, 1868, 5, false}, // NZGD49 / Amuri Circuit
    {27220, 4272, 217628, 1981, 1865, 5, false}, // NZGD49 / Marlborough Circuit
    {27221, 4272, 217518, 1982, 1869, 5, false}, // NZGD49 / Hokitika Circuit
    {27222, 4272, 217923, 1983, 1871, 5, false}, // NZGD49 / Okarito Circuit
    {27223, 4272, 217544, 1984, 1874, 5, false}, // NZGD49 / Jacksons Bay Circuit
    {27224, 4272, 217717, 1985, 1870, 5, false}, // NZGD49 / Mount Pleasant Circuit
    {27225, 4272, 217444, 1986, 1872, 5, false}, // NZGD49 / Gawler Circuit
    {27226, 4272, 218030, 1987, 1873, 5, false}, // NZGD49 / Timaru Circuit
    {27227, 4272, 217599, 1988, 1875, 5, false}, // NZGD49 / Lindis Peak Circuit
    {27228, 4272, 217685, 1989, 1877, 5, false}, // NZGD49 / Mount Nicholas Circuit
    {27229, 4272, 217749, 1990, 1879, 5, false}, // NZGD49 / Mount York Circuit
    {27230, 4272, 217888, 1991, 1876, 5, false}, // NZGD49 / Observation Point Circuit
    {27231, 4272, 217858, 1992, 1878, 5, false}, // NZGD49 / North Taieri Circuit
    {27232, 4272, 217368, 1993, 1880, 5, false}, // NZGD49 / Bluff Circuit
    {27258, 4272, 218081, 1456, 1991, 4, false}, // NZGD49 / UTM zone 58S
    {27259, 4272, 218103, 1457, 1992, 4, false}, // NZGD49 / UTM zone 59S
    {27260, 4272, 218125, 1458, 1993, 4, false}, // NZGD49 / UTM zone 60S
    {27291, 4272, 217831, 2108, 297, 15, false}, // NZGD49 / North Island Grid
    {27292, 4272, 217977, 2109, 1542, 15, false}, // NZGD49 / South Island Grid
    {27391, 4817, 215080, 2148, 527, 5, false}, // NGO 1948 (Oslo) / NGO zone I
    {27392, 4817, 215109, 2149, 528, 5, false}, // NGO 1948 (Oslo) / NGO zone II
    {27393, 4817, 215139, 2150, 529, 5, false}, // NGO 1948 (Oslo) / NGO zone III
    {27394, 4817, 215170, 2151, 530, 5, false}, // NGO 1948 (Oslo) / NGO zone IV
    {27395, 4817, 215200, 2152, 531, 5, false}, // NGO 1948 (Oslo) / NGO zone V
    {27396, 4817, 215229, 2153, 532, 5, false}, // NGO 1948 (Oslo) / NGO zone VI
    {27397, 4817, 215259, 2154, 533, 5, false}, // NGO 1948 (Oslo) / NGO zone VII
    {27398, 4817, 215290, 2155, 534, 5, false}, // NGO 1948 (Oslo) / NGO zone VIII
    {27429, 4274, 58771, 1338, 129, 4, false}, // Datum 73 / UTM zone 29N
    {27492, 4274, 58735, 2361, 129, 5, true}, // Datum 73 / Modified Portuguese Grid
    {27493, 4274, 58735, 2361, 129, 4, false}, // Datum 73 / Modified Portuguese Grid
    {27500, 4901, 4885, 2296, 192, 4, false}, // ATF (Paris) / Nord de Guerre
    {27561, 4807, 215842, 2082, 520, 4, false}, // NTF (Paris) / Lambert Nord France
    {27562, 4807, 215778, 2083, 521, 4, false}, // NTF (Paris) / Lambert Centre France
    {27563, 4807, 215876, 2084, 522, 4, false}, // NTF (Paris) / Lambert Sud France
    {27564, 4807, 215814, 2085, 154, 4, false}, // NTF (Paris) / Lambert Corse
    {27571, 4807, 215909, 2076, 520, 4, false}, // NTF (Paris) / Lambert zone I
    {27572, 4807, 215938, 2077, 523, 4, false}, // NTF (Paris) / Lambert zone II
    {27573, 4807, 215968, 2078, 522, 4, false}, // NTF (Paris) / Lambert zone III
    {27574, 4807, 215999, 2079, 154, 4, false}, // NTF (Paris) / Lambert zone IV
    {27581, 4807, 215682, 2076, 520, 4, true}, // NTF (Paris) / France I
    {27582, 4807, 215705, 2077, 523, 4, true}, // NTF (Paris) / France II
    {27583, 4807, 215729, 2078, 522, 4, true}, // NTF (Paris) / France III
    {27584, 4807, 215754, 2079, 154, 4, true}, // NTF (Paris) / France IV
    {27591, 4807, 216029, 2082, 520, 4, true}, // NTF (Paris) / Nord France
    {27592, 4807, 215634, 2083, 521, 4, true}, // NTF (Paris) / Centre France
    {27593, 4807, 216055, 2084, 522, 4, true}, // NTF (Paris) / Sud France
    {27594, 4807, 215662, 2085, 154, 4, true}, // NTF (Paris) / Corse
    {27700, 4277, 234736, 2307, 2360, 4, false}, // OSGB36 / British National Grid
    {28191, 4281, 243366, 2141, 180, 4, false}, // Palestine 1923 / Palestine Grid
    {28192, 4281, 243334, 2142, 180, 4, false}, // Palestine 1923 / Palestine Belt
    {28193, 4281, 243301, 2143, 1111, 4, false}, // Palestine 1923 / Israeli CS Grid
    {28232, 4282, 246640, 1430, 23, 4, false}, // Pointe Noire / UTM zone 32S
    {28348, 4283, 82618, 1847, 2177, 4, false}, // GDA94 / MGA zone 48
    {28349, 4283, 82638, 1848, 2163, 4, false}, // GDA94 / MGA zone 49
    {28350, 4283, 82658, 1849, 2165, 4, false}, // GDA94 / MGA zone 50
    {28351, 4283, 82678, 1850, 354, 4, false}, // GDA94 / MGA zone 51
    {28352, 4283, 82698, 1851, 355, 4, false}, // GDA94 / MGA zone 52
    {28353, 4283, 82718, 1852, 356, 4, false}, // GDA94 / MGA zone 53
    {28354, 4283, 82738, 1853, 357, 4, false}, // GDA94 / MGA zone 54
    {28355, 4283, 82758, 1854, 358, 4, false}, // GDA94 / MGA zone 55
    {28356, 4283, 82778, 1855, 359, 4, false}, // GDA94 / MGA zone 56
    {28357, 4283, 82798, 1856, 2181, 4, false}, // GDA94 / MGA zone 57
    {28358, 4283, 82818, 1857, 2162, 4, false}, // GDA94 / MGA zone 58
    {28402, 4284, 257266, 1473, 591, 5, true}, // Pulkovo 1942 / Gauss-Kruger zone 2
    {28403, 4284, 257661, 1474, 578, 5, true}, // Pulkovo 1942 / Gauss-Kruger zone 3
    {28404, 4284, 257804, 1475, 579, 5, false}, // Pulkovo 1942 / Gauss-Kruger zone 4
    {28405, 4284, 257839, 1476, 580, 5, false}, // Pulkovo 1942 / Gauss-Kruger zone 5
    {28406, 4284, 257874, 1477, 581, 5, false}, // Pulkovo 1942 / Gauss-Kruger zone 6
    {28407, 4284, 257909, 1478, 582, 5, false}, // Pulkovo 1942 / Gauss-Kruger zone 7
    {28408, 4284, 257944, 1479, 583, 5, false}, // Pulkovo 1942 / Gauss-Kruger zone 8
    {28409, 4284, 257979, 1480, 584, 5, false}, // Pulkovo 1942 / Gauss-Kruger zone 9
    {28410, 4284, 256906, 1481, 585, 5, false}, // Pulkovo 1942 / Gauss-Kruger zone 10
    {28411, 4284, 256942, 1482, 586, 5, false}, // Pulkovo 1942 / Gauss-Kruger zone 11
    {28412, 4284, 256978, 1483, 587, 5, false}, // Pulkovo 1942 / Gauss-Kruger zone 12
    {28413, 4284, 257014, 1484, 588, 5, false}, // Pulkovo 1942 / Gauss-Kruger zone 13
    {28414, 4284, 257050, 1485, 589, 5, false}, // Pulkovo 1942 / Gauss-Kruger zone 14
    {28415, 4284, 257086, 1486, 590, 5, false}, // Pulkovo 1942 / Gauss-Kruger zone 15
    {28416, 4284, 257122, 1487, 561, 5, false}, // Pulkovo 1942 / Gauss-Kruger zone 16
    {28417, 4284, 257158, 1488, 562, 5, false}, // Pulkovo 1942 / Gauss-Kruger zone 17
    {28418, 4284, 257194, 1489, 563, 5, false}, // Pulkovo 1942 / Gauss-Kruger zone 18
    {28419, 4284, 257230, 1490, 564, 5, false}, // Pulkovo 1942 / Gauss-Kruger zone 19
    {28420, 4284, 257301, 1491, 565, 5, false}, // Pulkovo 1942 / Gauss-Kruger zone 20
    {28421, 4284, 257337, 1492, 566, 5, false}, // Pulkovo 1942 / Gauss-Kruger zone 21
    {28422, 4284, 257373, 1493, 567, 5, false}, // Pulkovo 1942 / Gauss-Kruger zone 22
    {28423, 4284, 257409, 1494, 568, 5, false}, // Pulkovo 1942 / Gauss-Kruger zone 23
    {28424, 4284, 257445, 1495, 569, 5, false}, // Pulkovo 1942 / Gauss-Kruger zone 24
    {28425, 4284, 257481, 1496, 570, 5, false}, // Pulkovo 1942 / Gauss-Kruger zone 25
    {28426, 4284, 257517, 1497, 571, 5, false}, // Pulkovo 1942 / Gauss-Kruger zone 26
    {28427, 4284, 257553, 1498, 572, 5, false}, // Pulkovo 1942 / Gauss-Kruger zone 27
    {28428, 4284, 257589, 1499, 573, 5, false}, // Pulkovo 1942 / Gauss-Kruger zone 28
    {28429, 4284, 257625, 1500, 574, 5, false}, // Pulkovo 1942 / Gauss-Kruger zone 29
    {28430, 4284, 257696, 1501, 575, 5, false}, // Pulkovo 1942 / Gauss-Kruger zone 30
    {28431, 4284, 257732, 1502, 576, 5, false}, // Pulkovo 1942 / Gauss-Kruger zone 31
    {28432, 4284, 257768, 1503, 577, 5, false}, // Pulkovo 1942 / Gauss-Kruger zone 32
    {28462, 4284, 255463, 1543, 591, 5, true}, // Pulkovo 1942 / Gauss-Kruger 2N
    {28463, 4284, 255590, 1544, 578, 5, true}, // Pulkovo 1942 / Gauss-Kruger 3N
    {28464, 4284, 255621, 1545, 579, 5, true}, // Pulkovo 1942 / Gauss-Kruger 4N
    {28465, 4284, 255652, 1546, 580, 5, true}, // Pulkovo 1942 / Gauss-Kruger 5N
    {28466, 4284, 255683, 1547, 581, 5, true}, // Pulkovo 1942 / Gauss-Kruger 6N
    {28467, 4284, 255714, 1548, 582, 5, true}, // Pulkovo 1942 / Gauss-Kruger 7N
    {28468, 4284, 255745, 1549, 583, 5, true}, // Pulkovo 1942 / Gauss-Kruger 8N
    {28469, 4284, 255776, 1550, 584, 5, true}, // Pulkovo 1942 / Gauss-Kruger 9N
    {28470, 4284, 254823, 1551, 585, 5, true}, // Pulkovo 1942 / Gauss-Kruger 10N
    {28471, 4284, 254855, 1552, 586, 5, true}, // Pulkovo 1942 / Gauss-Kruger 11N
    {28472, 4284, 254887, 1553, 587, 5, true}, // Pulkovo 1942 / Gauss-Kruger 12N
    {28473, 4284, 254919, 1554, 588, 5, true}, // Pulkovo 1942 / Gauss-Kruger 13N
    {28474, 4284, 254951, 1555, 589, 5, true}, // Pulkovo 1942 / Gauss-Kruger 14N
    {28475, 4284, 254983, 1556, 590, 5, true}, // Pulkovo 1942 / Gauss-Kruger 15N
    {28476, 4284, 255015, 1557, 561, 5, true}, // Pulkovo 1942 / Gauss-Kruger 16N
    {28477, 4284, 255047, 1558, 562, 5, true}, // Pulkovo 1942 / Gauss-Kruger 17N
    {28478, 4284, 255079, 1559, 563, 5, true}, // Pulkovo 1942 / Gauss-Kruger 18N
    {28479, 4284, 255111, 1560, 564, 5, true}, // Pulkovo 1942 / Gauss-Kruger 19N
    {28480, 4284, 255143, 1561, 565, 5, true}, // Pulkovo 1942 / Gauss-Kruger 20N
    {28481, 4284, 255175, 1562, 566, 5, true}, // Pulkovo 1942 / Gauss-Kruger 21N
    {28482, 4284, 255207, 1563, 567, 5, true}, // Pulkovo 1942 / Gauss-Kruger 22N
    {28483, 4284, 255239, 1564, 568, 5, true}, // Pulkovo 1942 / Gauss-Kruger 23N
    {28484, 4284, 255271, 1565, 569, 5, true}, // Pulkovo 1942 / Gauss-Kruger 24N
    {28485, 4284, 255303, 1566, 570, 5, true}, // Pulkovo 1942 / Gauss-Kruger 25N
    {28486, 4284, 255335, 1567, 571, 5, true}, // Pulkovo 1942 / Gauss-Kruger 26N
    {28487, 4284, 255367, 1568, 572, 5, true}, // Pulkovo 1942 / Gauss-Kruger 27N
    {28488, 4284, 255399, 1569, 573, 5, true}, // Pulkovo 1942 / Gauss-Kruger 28N
    {28489, 4284, 255431, 1570, 574, 5, true}, // Pulkovo 1942 / Gauss-Kruger 29N
    {28490, 4284, 255494, 1571, 575, 5, true}, // Pulkovo 1942 / Gauss-Kruger 30N
    {28491, 4284, 255526, 1572, 576, 5, true}, // Pulkovo 1942 / Gauss-Kruger 31N
    {28492, 4284, 255558, 1573, 577, 5, true}, // Pulkovo 1942 / Gauss-Kruger 32N
    {28600, 4285, 268859, 2309, 171, 4, false}, // Qatar 1974 / Qatar National Grid
    {28991, 4289, 8863, 2305, 116, 4, false}, // Amersfoort / RD Old
    {28992, 4289, 8843, 2306, 116, 4, false}, // Amersfoort / RD New
    {29100, 4291, 281259, 2330, 12, 4, true}, // SAD69 / Brazil Polyconic
    {29101, 4618, 281259, 2330, 12, 4, false}, // SAD69 / Brazil Polyconic
    {29118, 4291, 281326, 1327, 593, 4, true}, // SAD69 / UTM zone 18N
    {29119, 4291, 281368, 1328, 595, 4, true}, // SAD69 / UTM zone 19N
    {29120, 4291, 281410, 1329, 597, 4, true}, // SAD69 / UTM zone 20N
    {29121, 4291, 281452, 1330, 599, 4, true}, // SAD69 / UTM zone 21N
    {29122, 4291, 281494, 1331, 601, 4, true}, // SAD69 / UTM zone 22N
    {29168, 4618, 281326, 1327, 1891, 4, false}, // SAD69 / UTM zone 18N
    {29169, 4618, 281368, 1328, 1893, 4, false}, // SAD69 / UTM zone 19N
    {29170, 4618, 281410, 1329, 1898, 4, false}, // SAD69 / UTM zone 20N
    {29171, 4618, 281452, 1330, 1900, 4, false}, // SAD69 / UTM zone 21N
    {29172, 4618, 281494, 1331, 601, 4, false}, // SAD69 / UTM zone 22N
    {29177, 4291, 281305, 1415, 592, 4, true}, // SAD69 / UTM zone 17S
    {29178, 4291, 281347, 1416, 594, 4, true}, // SAD69 / UTM zone 18S
    {29179, 4291, 281389, 1417, 596, 4, true}, // SAD69 / UTM zone 19S
    {29180, 4291, 281431, 1418, 598, 4, true}, // SAD69 / UTM zone 20S
    {29181, 4291, 281473, 1419, 600, 4, true}, // SAD69 / UTM zone 21S
    {29182, 4291, 281515, 1420, 602, 4, true}, // SAD69 / UTM zone 22S
    {29183, 4291, 281536, 1421, 603, 4, true}, // SAD69 / UTM zone 23S
    {29184, 4291, 281557, 1422, 604, 4, true}, // SAD69 / UTM zone 24S
    {29185, 4291, 281578, 1423, 605, 4, true}, // SAD69 / UTM zone 25S
    {29187, 4618, 281305, 1415, 1890, 4, false}, // SAD69 / UTM zone 17S
    {29188, 4618, 281347, 1416, 1892, 4, false}, // SAD69 / UTM zone 18S
    {29189, 4618, 281389, 1417, 1894, 4, false}, // SAD69 / UTM zone 19S
    {29190, 4618, 281431, 1418, 1899, 4, false}, // SAD69 / UTM zone 20S
    {29191, 4618, 281473, 1419, 600, 4, false}, // SAD69 / UTM zone 21S
    {29192, 4618, 281515, 1420, 602, 4, false}, // SAD69 / UTM zone 22S
    {29193, 4618, 281536, 1421, 1622, 4, false}, // SAD69 / UTM zone 23S
    {29194, 4618, 281557, 1422, 1623, 4, false}, // SAD69 / UTM zone 24S
    {29195, 4618, 281578, 1423, 1624, 4, false}, // SAD69 / UTM zone 25S
    {29220, 4292, 296693, 1418, 606, 4, false}, // Sapper Hill 1943 / UTM zone 20S
    {29221, 4292, 296725, 1419, 607, 4, false}, // Sapper Hill 1943 / UTM zone 21S
    {29333, 4293, 297394, 1431, 608, 4, false}, // Schwarzeck / UTM zone 33S
    {29371, 4293, 297226, 1914, 624, 11, false}, // Schwarzeck / Lo22/11
    {29373, 4293, 297247, 1915, 625, 11, false}, // Schwarzeck / Lo22/13
    {29375, 4293, 297268, 1916, 626, 11, false}, // Schwarzeck / Lo22/15
    {29377, 4293, 297289, 1917, 627, 11, false}, // Schwarzeck / Lo22/17
    {29379, 4293, 297310, 1918, 628, 11, false}, // Schwarzeck / Lo22/19
    {29381, 4293, 297331, 1919, 629, 11, false}, // Schwarzeck / Lo22/21
    {29383, 4293, 297352, 1920, 630, 11, false}, // Schwarzeck / Lo22/23
    {29385, 4293, 297373, 1921, 631, 11, false}, // Schwarzeck / Lo22/25
    {29635, 4296, 307377, 1344, 632, 4, true}, // Sudan / UTM zone 35N
    {29636, 4296, 307398, 1345, 633, 4, true}, // Sudan / UTM zone 36N
    {29700, 4810, 310517, 2304, 1507, 4, true}, // Tananarive (Paris) / Laborde Grid
    {29701, 4810, 310517, 2256, 1507, 5, false}, // Tananarive (Paris) / Laborde Grid
    {29702, 4810, 310551, 2304, 1507, 5, false}, // Tananarive (Paris) / Laborde Grid approximation
    {29738, 4297, 310625, 1436, 634, 4, false}, // Tananarive / UTM zone 38S
    {29739, 4297, 310651, 1437, 635, 4, false}, // Tananarive / UTM zone 39S
    {29849, 4298, 312246, 1358, 637, 4, false}, // Timbalai 1948 / UTM zone 49N
    {29850, 4298, 312275, 1359, 638, 4, false}, // Timbalai 1948 / UTM zone 50N
    {29871, 4298, 312113, 2345, 185, 17, false}, // Timbalai 1948 / RSO Borneo (ch)
    {29872, 4298, 312145, 2346, 1997, 16, false}, // Timbalai 1948 / RSO Borneo (ftSe)
    {29873, 4298, 312179, 2347, 185, 4, false}, // Timbalai 1948 / RSO Borneo (m)
    {29874, 4298, 312210, 2234, 2536, 4, false}, // Timbalai 1948 / RSO Sarawak LSD (m)
    {29900, 4299, 308954, 2301, 137, 4, true}, // TM65 / Irish National Grid
    {29901, 4188, 234807, 2360, 1086, 4, false}, // OSNI 1952 / Irish National Grid
    {29902, 4299, 308936, 2359, 1852, 4, false}, // TM65 / Irish Grid
    {29903, 4300, 309002, 2359, 137, 4, false}, // TM75 / Irish Grid
    {30161, 4301, 312403, 1947, 639, 5, false}, // Tokyo / Japan Plane Rectangular CS I
    {30162, 4301, 312440, 1948, 640, 5, false}, // Tokyo / Japan Plane Rectangular CS II
    {30163, 4301, 312478, 1949, 641, 5, false}, // Tokyo / Japan Plane Rectangular CS III
    {30164, 4301, 312517, 1950, 642, 5, false}, // Tokyo / Japan Plane Rectangular CS IV
    {30165, 4301, 312593, 1951, 643, 5, false}, // Tokyo / Japan Plane Rectangular CS V
    {30166, 4301, 312630, 1952, 644, 5, false}, // Tokyo / Japan Plane Rectangular CS VI
    {30167, 4301, 312668, 1953, 645, 5, false}, // Tokyo / Japan Plane Rectangular CS VII
    {30168, 4301, 312707, 1954, 646, 5, false}, // Tokyo / Japan Plane Rectangular CS VIII
    {30169, 4301, 312555, 1955, 647, 5, false}, // Tokyo / Japan Plane Rectangular CS IX
    {30170, 4301, 312747, 1956, 648, 5, false}, // Tokyo / Japan Plane Rectangular CS X
    {30171, 4301, 312784, 1957, 649, 5, false}, // Tokyo / Japan Plane Rectangular CS XI
    {30172, 4301, 312822, 1958, 650, 5, false}, // Tokyo / Japan Plane Rectangular CS XII
    {30173, 4301, 312861, 1959, 651, 5, false}, // Tokyo / Japan Plane Rectangular CS XIII
    {30174, 4301, 312901, 1960, 652, 5, false}, // Tokyo / Japan Plane Rectangular CS XIV
    {30175, 4301, 312979, 1961, 653, 5, false}, // Tokyo / Japan Plane Rectangular CS XV
    {30176, 4301, 313017, 1962, 654, 5, false}, // Tokyo / Japan Plane Rectangular CS XVI
    {30177, 4301, 313056, 1963, 655, 5, false}, // Tokyo / Japan Plane Rectangular CS XVII
    {30178, 4301, 313096, 1964, 656, 5, false}, // Tokyo / Japan Plane Rectangular CS XVIII
    {30179, 4301, 312940, 1965, 657, 5, false}, // Tokyo / Japan Plane Rectangular CS XIX
    {30200, 4302, 313611, 2315, 166, 14, false}, // Trinidad 1903 / Trinidad Grid
    {30339, 4303, 308703, 1348, 636, 4, false}, // TC(1948) / UTM zone 39N
    {30340, 4303, 308727, 1349, 2026, 4, false}, // TC(1948) / UTM zone 40N
    {30491, 4304, 336996, 2039, 518, 4, false}, // Voirol 1875 / Nord Algerie (ancienne)
    {30492, 4304, 337034, 2040, 2478, 4, false}, // Voirol 1875 / Sud Algerie (ancienne)
    {30493, 4671, 337103, 2039, 518, 4, false}, // Voirol 1879 / Nord Algerie (ancienne)
    {30494, 4671, 337141, 2040, 2478, 4, false}, // Voirol 1879 / Sud Algerie (ancienne)
    {30729, 4307, 226604, 1338, 524, 4, false}, // Nord Sahara 1959 / UTM zone 29N
    {30730, 4307, 226636, 1339, 1975, 4, false}, // Nord Sahara 1959 / UTM zone 30N
    {30731, 4307, 226668, 1340, 1976, 4, false}, // Nord Sahara 1959 / UTM zone 31N
    {30732, 4307, 226700, 1341, 1977, 4, false}, // Nord Sahara 1959 / UTM zone 32N
    {30791, 4307, 226541, 2041, 518, 4, false}, // Nord Sahara 1959 / Nord Algerie
    {30792, 4307, 226573, 2042, 519, 4, false}, // Nord Sahara 1959 / Sud Algerie
    {30800, 4308, 274178, 2319, 96, 5, true}, // RT38 2.5 gon W
    {31028, 4310, 373939, 1337, 89, 4, false}, // Yoff / UTM zone 28N
    {31121, 4311, 374224, 1330, 95, 4, false}, // Zanderij / UTM zone 21N
    {31154, 4311, 374204, 1667, 517, 4, false}, // Zanderij / TM 54 NW
    {31170, 4311, 374154, 2343, 1527, 4, false}, // Zanderij / Suriname Old TM
    {31171, 4311, 374181, 2344, 1527, 4, false}, // Zanderij / Suriname TM
    {31251, 4805, 132268, 2030, 498, 5, false}, // MGI (Ferro) / Austria GK West Zone
    {31252, 4805, 132195, 2031, 499, 5, false}, // MGI (Ferro) / Austria GK Central Zone
    {31253, 4805, 132233, 2032, 500, 5, false}, // MGI (Ferro) / Austria GK East Zone
    {31254, 4312, 132691, 2033, 498, 5, false}, // MGI / Austria GK West
    {31255, 4312, 132581, 2034, 499, 5, false}, // MGI / Austria GK Central
    {31256, 4312, 132606, 2035, 500, 5, false}, // MGI / Austria GK East
    {31257, 4312, 132628, 2036, 498, 5, false}, // MGI / Austria GK M28
    {31258, 4312, 132649, 2037, 499, 5, false}, // MGI / Austria GK M31
    {31259, 4312, 132670, 2038, 500, 5, false}, // MGI / Austria GK M34
    {31265, 4312, 132428, 1508, 501, 4, true}, // MGI / 3-degree Gauss zone 5
    {31266, 4312, 132456, 1509, 502, 4, true}, // MGI / 3-degree Gauss zone 6
    {31267, 4312, 132484, 1510, 503, 4, true}, // MGI / 3-degree Gauss zone 7
    {31268, 4312, 132512, 1511, 504, 4, true}, // MGI / 3-degree Gauss zone 8
    {31275, 4312, 132808, 2180, 501, 5, true}, // MGI / Balkans zone 5
    {31276, 4312, 132829, 2181, 502, 5, true}, // MGI / Balkans zone 6
    {31277, 4312, 132850, 2182, 503, 5, true}, // MGI / Balkans zone 7
    {31278, 4312, 132871, 2182, 504, 5, true}, // MGI / Balkans zone 8
    {31279, 4312, 132871, 2183, 504, 5, true}, // MGI / Balkans zone 8
    {31281, 4805, 132303, 2050, 498, 5, false}, // MGI (Ferro) / Austria West Zone
    {31282, 4805, 132128, 2051, 499, 5, false}, // MGI (Ferro) / Austria Central Zone
    {31283, 4805, 132163, 2052, 500, 5, false}, // MGI (Ferro) / Austria East Zone
    {31284, 4312, 132735, 2053, 498, 5, false}, // MGI / Austria M28
    {31285, 4312, 132753, 2054, 499, 5, false}, // MGI / Austria M31
    {31286, 4312, 132771, 2055, 500, 5, false}, // MGI / Austria M34
    {31287, 4312, 132713, 2336, 7, 5, false}, // MGI / Austria Lambert
    {31288, 4805, 132335, 2056, 498, 5, false}, // MGI (Ferro) / Austria zone M28
    {31289, 4805, 132366, 2057, 499, 5, false}, // MGI (Ferro) / Austria zone M31
    {31290, 4805, 132397, 2058, 500, 5, false}, // MGI (Ferro) / Austria zone M34
    {31291, 4805, 132303, 2050, 498, 4, true}, // MGI (Ferro) / Austria West Zone
    {31292, 4805, 132128, 2051, 500, 4, true}, // MGI (Ferro) / Austria Central Zone
    {31293, 4805, 132163, 2052, 499, 4, true}, // MGI (Ferro) / Austria East Zone
    {31294, 4312, 132892, 2053, 498, 4, true}, // MGI / M28
    {31295, 4312, 132902, 2054, 499, 4, true}, // MGI / M31
    {31296, 4312, 132912, 2055, 500, 4, true}, // MGI / M34
    {31297, 4312, 132713, 2336, 7, 4, true}, // MGI / Austria Lambert
    {31300, 4313, 28679, 2295, 172, 4, false}, // BD72 / Belge Lambert 72
    {31370, 4313, 28703, 2350, 172, 4, false}, // BD72 / Belgian Lambert 72
    {31461, 4314, 57227, 1504, 421, 4, true}, // DHDN / 3-degree Gauss zone 1
    {31462, 4314, 57256, 1505, 417, 4, true}, // DHDN / 3-degree Gauss zone 2
    {31463, 4314, 57285, 1506, 418, 4, true}, // DHDN / 3-degree Gauss zone 3
    {31464, 4314, 57314, 1507, 419, 4, true}, // DHDN / 3-degree Gauss zone 4
    {31465, 4314, 57343, 1508, 420, 4, true}, // DHDN / 3-degree Gauss zone 5
    {31466, 4314, 57450, 1505, 417, 5, false}, // DHDN / 3-degree Gauss-Kruger zone 2
    {31467, 4314, 57528, 1506, 418, 5, false}, // DHDN / 3-degree Gauss-Kruger zone 3
    {31468, 4314, 57606, 1507, 419, 5, false}, // DHDN / 3-degree Gauss-Kruger zone 4
    {31469, 4314, 57684, 1508, 420, 5, false}, // DHDN / 3-degree Gauss-Kruger zone 5
    {31528, 4315, 52233, 1337, 266, 4, false}, // Conakry 1905 / UTM zone 28N
    {31529, 4315, 52261, 1338, 267, 4, false}, // Conakry 1905 / UTM zone 29N
    {31600, 4316, 59096, 2317, 1518, 4, false}, // Dealul Piscului 1930 / Stereo 33
    {31700, 4317, 59203, 2316, 86, 5, true}, // Dealul Piscului 1970/ Stereo 70
    {31838, 4318, 214983, 1347, 525, 4, false}, // NGN / UTM zone 38N
    {31839, 4318, 215002, 1348, 526, 4, false}, // NGN / UTM zone 39N
    {31900, 4319, 117759, 2318, 142, 4, true}, // KUDAMS / KTM
    {31901, 4319, 117759, 2383, 142, 4, false}, // KUDAMS / KTM
    {31965, 4674, 282679, 1320, 1835, 4, false}, // SIRGAS 2000 / UTM zone 11N
    {31966, 4674, 282706, 1321, 1843, 4, false}, // SIRGAS 2000 / UTM zone 12N
    {31967, 4674, 282733, 1322, 1846, 4, false}, // SIRGAS 2000 / UTM zone 13N
    {31968, 4674, 282760, 1323, 1849, 4, false}, // SIRGAS 2000 / UTM zone 14N
    {31969, 4674, 282787, 1324, 1605, 4, false}, // SIRGAS 2000 / UTM zone 15N
    {31970, 4674, 282814, 1325, 1606, 4, false}, // SIRGAS 2000 / UTM zone 16N
    {31971, 4674, 282841, 1326, 1599, 4, false}, // SIRGAS 2000 / UTM zone 17N
    {31972, 4674, 282895, 1327, 1600, 4, false}, // SIRGAS 2000 / UTM zone 18N
    {31973, 4674, 282949, 1328, 1613, 4, false}, // SIRGAS 2000 / UTM zone 19N
    {31974, 4674, 283003, 1329, 1614, 4, false}, // SIRGAS 2000 / UTM zone 20N
    {31975, 4674, 283057, 1330, 1615, 4, false}, // SIRGAS 2000 / UTM zone 21N
    {31976, 4674, 283111, 1331, 1616, 4, false}, // SIRGAS 2000 / UTM zone 22N
    {31977, 4674, 282868, 1415, 610, 4, false}, // SIRGAS 2000 / UTM zone 17S
    {31978, 4674, 282922, 1416, 1617, 4, false}, // SIRGAS 2000 / UTM zone 18S
    {31979, 4674, 282976, 1417, 1618, 4, false}, // SIRGAS 2000 / UTM zone 19S
    {31980, 4674, 283030, 1418, 1619, 4, false}, // SIRGAS 2000 / UTM zone 20S
    {31981, 4674, 283084, 1419, 1620, 4, false}, // SIRGAS 2000 / UTM zone 21S
    {31982, 4674, 283138, 1420, 1621, 4, false}, // SIRGAS 2000 / UTM zone 22S
    {31983, 4674, 283192, 1421, 1622, 4, false}, // SIRGAS 2000 / UTM zone 23S
    {31984, 4674, 283246, 1422, 1623, 4, false}, // SIRGAS 2000 / UTM zone 24S
    {31985, 4674, 283273, 1423, 1624, 4, false}, // SIRGAS 2000 / UTM zone 25S
    {31986, 4170, 282201, 1326, 609, 4, false}, // SIRGAS 1995 / UTM zone 17N
    {31987, 4170, 282255, 1327, 611, 4, false}, // SIRGAS 1995 / UTM zone 18N
    {31988, 4170, 282309, 1328, 613, 4, false}, // SIRGAS 1995 / UTM zone 19N
    {31989, 4170, 282363, 1329, 615, 4, false}, // SIRGAS 1995 / UTM zone 20N
    {31990, 4170, 282417, 1330, 617, 4, false}, // SIRGAS 1995 / UTM zone 21N
    {31991, 4170, 282471, 1331, 619, 4, false}, // SIRGAS 1995 / UTM zone 22N
    {31992, 4170, 282228, 1415, 1772, 4, false}, // SIRGAS 1995 / UTM zone 17S
    {31993, 4170, 282282, 1416, 612, 4, false}, // SIRGAS 1995 / UTM zone 18S
    {31994, 4170, 282336, 1417, 614, 4, false}, // SIRGAS 1995 / UTM zone 19S
    {31995, 4170, 282390, 1418, 616, 4, false}, // SIRGAS 1995 / UTM zone 20S
    {31996, 4170, 282444, 1419, 618, 4, false}, // SIRGAS 1995 / UTM zone 21S
    {31997, 4170, 282498, 1420, 620, 4, false}, // SIRGAS 1995 / UTM zone 22S
    {31998, 4170, 282525, 1421, 621, 4, false}, // SIRGAS 1995 / UTM zone 23S
    {31999, 4170, 282552, 1422, 622, 4, false}, // SIRGAS 1995 / UTM zone 24S
    {32000, 4170, 282579, 1423, 623, 4, false}, // SIRGAS 1995 / UTM zone 25S
    {32001, 4267, 147433, 1039, 996, 8, false}, // NAD27 / Montana North
    {32002, 4267, 147409, 1040, 995, 8, false}, // NAD27 / Montana Central
    {32003, 4267, 147455, 1041, 997, 8, false}, // NAD27 / Montana South
    {32005, 4267, 147477, 1043, 1006, 8, false}, // NAD27 / Nebraska North
    {32006, 4267, 147500, 1044, 1007, 8, false}, // NAD27 / Nebraska South
    {32007, 4267, 147546, 1046, 1009, 8, false}, // NAD27 / Nevada East
    {32008, 4267, 147523, 1047, 1008, 8, false}, // NAD27 / Nevada Central
    {32009, 4267, 147566, 1048, 1010, 8, false}, // NAD27 / Nevada West
    {32010, 4267, 147630, 1052, 206, 8, false}, // NAD27 / New Hampshire
    {32011, 4267, 147652, 1054, 207, 8, false}, // NAD27 / New Jersey
    {32012, 4267, 147698, 1056, 1013, 8, false}, // NAD27 / New Mexico East
    {32013, 4267, 147671, 1057, 1014, 8, false}, // NAD27 / New Mexico Central
    {32014, 4267, 147722, 1058, 1015, 8, false}, // NAD27 / New Mexico West
    {32015, 4267, 147771, 1062, 1019, 8, false}, // NAD27 / New York East
    {32016, 4267, 147746, 1063, 1018, 8, false}, // NAD27 / New York Central
    {32017, 4267, 147822, 1064, 1021, 8, false}, // NAD27 / New York West
    {32018, 4267, 147793, 1065, 1020, 8, true}, // NAD27 / New York Long Island
    {32019, 4267, 147844, 1070, 208, 8, false}, // NAD27 / North Carolina
    {32020, 4267, 147867, 1072, 1022, 8, false}, // NAD27 / North Dakota North
    {32021, 4267, 147894, 1073, 1023, 8, false}, // NAD27 / North Dakota South
    {32022, 4267, 147921, 1076, 1024, 8, false}, // NAD27 / Ohio North
    {32023, 4267, 147940, 1077, 1025, 8, false}, // NAD27 / Ohio South
    {32024, 4267, 147959, 1082, 1026, 8, false}, // NAD27 / Oklahoma North
    {32025, 4267, 147982, 1083, 1027, 8, false}, // NAD27 / Oklahoma South
    {32026, 4267, 148005, 1086, 1028, 8, false}, // NAD27 / Oregon North
    {32027, 4267, 148026, 1087, 1029, 8, false}, // NAD27 / Oregon South
    {32028, 4267, 148047, 1091, 1030, 8, false}, // NAD27 / Pennsylvania North
    {32029, 4267, 148074, 1092, 1031, 8, true}, // NAD27 / Pennsylvania South
    {32030, 4267, 148124, 1095, 210, 8, false}, // NAD27 / Rhode Island
    {32031, 4267, 148165, 1097, 1032, 8, false}, // NAD27 / South Carolina North
    {32033, 4267, 148194, 1098, 1033, 8, false}, // NAD27 / South Carolina South
    {32034, 4267, 148223, 1100, 1034, 8, false}, // NAD27 / South Dakota North
    {32035, 4267, 148250, 1101, 1035, 8, false}, // NAD27 / South Dakota South
    {32036, 4267, 148277, 1104, 212, 8, true}, // NAD27 / Tennessee
    {32037, 4267, 148317, 1106, 1038, 8, false}, // NAD27 / Texas North
    {32038, 4267, 148337, 1107, 1039, 8, false}, // NAD27 / Texas North Central
    {32039, 4267, 148295, 1108, 1037, 8, false}, // NAD27 / Texas Central
    {32040, 4267, 148385, 1109, 1041, 8, false}, // NAD27 / Texas South Central
    {32041, 4267, 148365, 1110, 1040, 8, false}, // NAD27 / Texas South
    {32042, 4267, 148966, 1120, 1043, 8, false}, // NAD27 / Utah North
    {32043, 4267, 148945, 1121, 1042, 8, false}, // NAD27 / Utah Central
    {32044, 4267, 148985, 1122, 1044, 8, false}, // NAD27 / Utah South
    {32045, 4267, 149004, 1126, 214, 8, false}, // NAD27 / Vermont
    {32046, 4267, 149020, 1128, 1045, 8, false}, // NAD27 / Virginia North
    {32047, 4267, 149043, 1129, 1046, 8, false}, // NAD27 / Virginia South
    {32048, 4267, 149066, 1132, 1047, 8, false}, // NAD27 / Washington North
    {32049, 4267, 149091, 1133, 1048, 8, false}, // NAD27 / Washington South
    {32050, 4267, 149116, 1136, 1049, 8, false}, // NAD27 / West Virginia North
    {32051, 4267, 149144, 1137, 1050, 8, false}, // NAD27 / West Virginia South
    {32052, 4267, 149198, 1144, 1052, 8, false}, // NAD27 / Wisconsin North
    {32053, 4267, 149172, 1145, 1051, 8, false}, // NAD27 / Wisconsin Central
    {32054, 4267, 149222, 1146, 1053, 8, false}, // NAD27 / Wisconsin South
    {32055, 4267, 149284, 1152, 1054, 8, false}, // NAD27 / Wyoming East
    {32056, 4267, 149305, 1153, 1055, 8, false}, // NAD27 / Wyoming East Central
    {32057, 4267, 149355, 1154, 1057, 8, false}, // NAD27 / Wyoming West Central
    {32058, 4267, 149334, 1155, 1056, 8, false}, // NAD27 / Wyoming West
    {32061, 4267, 146410, 2146, 905, 4, true}, // NAD27 / Guatemala Norte
    {32062, 4267, 146434, 2147, 906, 4, true}, // NAD27 / Guatemala Sur
    {32064, 4267, 145473, 1305, 1771, 8, false}, // NAD27 / BLM 14N (ftUS)
    {32065, 4267, 145519, 1306, 1774, 8, false}, // NAD27 / BLM 15N (ftUS)
    {32066, 4267, 145565, 1307, 1775, 8, false}, // NAD27 / BLM 16N (ftUS)
    {32067, 4267, 145611, 1308, 1776, 8, false}, // NAD27 / BLM 17N (ftUS)
    {32074, 4267, 145450, 1305, 956, 8, true}, // NAD27 / BLM 14N (feet)
    {32075, 4267, 145496, 1306, 957, 8, true}, // NAD27 / BLM 15N (feet)
    {32076, 4267, 145542, 1307, 958, 8, true}, // NAD27 / BLM 16N (feet)
    {32077, 4267, 145588, 1308, 959, 8, true}, // NAD27 / BLM 17N (feet)
    {32081, 4267, 146803, 1923, 1011, 4, false}, // NAD27 / MTM zone 1
    {32082, 4267, 146842, 1924, 1012, 4, false}, // NAD27 / MTM zone 2
    {32083, 4267, 146861, 1925, 1060, 4, false}, // NAD27 / MTM zone 3
    {32084, 4267, 146880, 1926, 1930, 4, false}, // NAD27 / MTM zone 4
    {32085, 4267, 146899, 1927, 1920, 4, false}, // NAD27 / MTM zone 5
    {32086, 4267, 146918, 1928, 1934, 4, false}, // NAD27 / MTM zone 6
    {32098, 4267, 148101, 2333, 191, 4, false}, // NAD27 / Quebec Lambert
    {32099, 4267, 146752, 990, 200, 8, false}, // NAD27 / Louisiana Offshore
    {32100, 4269, 155302, 1042, 204, 4, false}, // NAD83 / Montana
    {32104, 4269, 155483, 1045, 205, 4, false}, // NAD83 / Nebraska
    {32107, 4269, 155577, 1049, 1009, 4, false}, // NAD83 / Nevada East
    {32108, 4269, 155524, 1050, 1008, 4, false}, // NAD83 / Nevada Central
    {32109, 4269, 155624, 1051, 1010, 4, false}, // NAD83 / Nevada West
    {32110, 4269, 155671, 1053, 206, 4, false}, // NAD83 / New Hampshire
    {32111, 4269, 155722, 1055, 207, 4, false}, // NAD83 / New Jersey
    {32112, 4269, 155828, 1059, 1013, 4, false}, // NAD83 / New Mexico East
    {32113, 4269, 155767, 1060, 1016, 4, false}, // NAD83 / New Mexico Central
    {32114, 4269, 155883, 1061, 1017, 4, false}, // NAD83 / New Mexico West
    {32115, 4269, 155995, 1066, 1019, 4, false}, // NAD83 / New York East
    {32116, 4269, 155938, 1067, 1018, 4, false}, // NAD83 / New York Central
    {32117, 4269, 156111, 1068, 1021, 4, false}, // NAD83 / New York West
    {32118, 4269, 156046, 1069, 1020, 4, false}, // NAD83 / New York Long Island
    {32119, 4269, 156162, 1071, 208, 4, false}, // NAD83 / North Carolina
    {32120, 4269, 156215, 1074, 1022, 4, false}, // NAD83 / North Dakota North
    {32121, 4269, 156274, 1075, 1023, 4, false}, // NAD83 / North Dakota South
    {32122, 4269, 156333, 1078, 1024, 4, false}, // NAD83 / Ohio North
    {32123, 4269, 156378, 1079, 1025, 4, false}, // NAD83 / Ohio South
    {32124, 4269, 156423, 1084, 1026, 4, false}, // NAD83 / Oklahoma North
    {32125, 4269, 156476, 1085, 1027, 4, false}, // NAD83 / Oklahoma South
    {32126, 4269, 156612, 1088, 1028, 4, false}, // NAD83 / Oregon North
    {32127, 4269, 156659, 1089, 1029, 4, false}, // NAD83 / Oregon South
    {32128, 4269, 156706, 1093, 1030, 4, false}, // NAD83 / Pennsylvania North
    {32129, 4269, 156767, 1094, 1031, 4, false}, // NAD83 / Pennsylvania South
    {32130, 4269, 156906, 1096, 210, 4, false}, // NAD83 / Rhode Island
    {32133, 4269, 156976, 1099, 211, 4, false}, // NAD83 / South Carolina
    {32134, 4269, 157027, 1102, 1034, 4, false}, // NAD83 / South Dakota North
    {32135, 4269, 157088, 1103, 1035, 4, false}, // NAD83 / South Dakota South
    {32136, 4269, 157183, 1105, 212, 4, false}, // NAD83 / Tennessee
    {32137, 4269, 157389, 1111, 1038, 4, false}, // NAD83 / Texas North
    {32138, 4269, 157436, 1112, 1039, 4, false}, // NAD83 / Texas North Central
    {32139, 4269, 157258, 1113, 1037, 4, false}, // NAD83 / Texas Central
    {32140, 4269, 157546, 1114, 1083, 4, false}, // NAD83 / Texas South Central
    {32141, 4269, 157499, 1115, 1084, 4, false}, // NAD83 / Texas South
    {32142, 4269, 158279, 1123, 1043, 4, false}, // NAD83 / Utah North
    {32143, 4269, 158204, 1124, 1042, 4, false}, // NAD83 / Utah Central
    {32144, 4269, 158348, 1125, 1044, 4, false}, // NAD83 / Utah South
    {32145, 4269, 158417, 1127, 214, 4, false}, // NAD83 / Vermont
    {32146, 4269, 158481, 1130, 1045, 4, false}, // NAD83 / Virginia North
    {32147, 4269, 158534, 1131, 1046, 4, false}, // NAD83 / Virginia South
    {32148, 4269, 158587, 1134, 1058, 4, false}, // NAD83 / Washington North
    {32149, 4269, 158644, 1135, 1059, 4, false}, // NAD83 / Washington South
    {32150, 4269, 158701, 1138, 1049, 4, false}, // NAD83 / West Virginia North
    {32151, 4269, 158764, 1139, 1050, 4, false}, // NAD83 / West Virginia South
    {32152, 4269, 158886, 1148, 1052, 4, false}, // NAD83 / Wisconsin North
    {32153, 4269, 158827, 1149, 1051, 4, false}, // NAD83 / Wisconsin Central
    {32154, 4269, 158941, 1150, 1053, 4, false}, // NAD83 / Wisconsin South
    {32155, 4269, 159034, 1157, 1054, 4, false}, // NAD83 / Wyoming East
    {32156, 4269, 159083, 1158, 1055, 4, false}, // NAD83 / Wyoming East Central
    {32157, 4269, 159221, 1159, 1057, 4, false}, // NAD83 / Wyoming West Central
    {32158, 4269, 159172, 1160, 1056, 4, false}, // NAD83 / Wyoming West
    {32159, 4269, 159148, 1156, 217, 4, false}, // NAD83 / Wyoming Lambert
    {32161, 4269, 156828, 1200, 1036, 4, false}, // NAD83 / Puerto Rico & Virgin Is.
    {32164, 4269, 151543, 1305, 1771, 8, false}, // NAD83 / BLM 14N (ftUS)
    {32165, 4269, 151566, 1306, 1774, 8, false}, // NAD83 / BLM 15N (ftUS)
    {32166, 4269, 151589, 1307, 1775, 8, false}, // NAD83 / BLM 16N (ftUS)
    {32167, 4269, 151612, 1308, 1776, 8, false}, // NAD83 / BLM 17N (ftUS)
    {32180, 4269, 156955, 1922, 218, 4, true}, // NAD83 / SCoPQ zone 2
    {32181, 4269, 154039, 1923, 1011, 4, false}, // NAD83 / MTM zone 1
    {32182, 4269, 154218, 1924, 1012, 4, false}, // NAD83 / MTM zone 2
    {32183, 4269, 154237, 1925, 1069, 4, false}, // NAD83 / MTM zone 3
    {32184, 4269, 154256, 1926, 1061, 4, false}, // NAD83 / MTM zone 4
    {32185, 4269, 154275, 1927, 1062, 4, false}, // NAD83 / MTM zone 5
    {32186, 4269, 154294, 1928, 1063, 4, false}, // NAD83 / MTM zone 6
    {32187, 4269, 154313, 1929, 223, 4, false}, // NAD83 / MTM zone 7
    {32188, 4269, 154332, 1930, 1064, 4, false}, // NAD83 / MTM zone 8
    {32189, 4269, 154351, 1931, 1065, 4, false}, // NAD83 / MTM zone 9
    {32190, 4269, 154058, 1932, 1066, 4, false}, // NAD83 / MTM zone 10
    {32191, 4269, 154078, 1933, 230, 4, false}, // NAD83 / MTM zone 11
    {32192, 4269, 154098, 1934, 231, 4, false}, // NAD83 / MTM zone 12
    {32193, 4269, 154118, 1935, 232, 4, false}, // NAD83 / MTM zone 13
    {32194, 4269, 154138, 1936, 233, 4, false}, // NAD83 / MTM zone 14
    {32195, 4269, 154158, 1937, 234, 4, false}, // NAD83 / MTM zone 15
    {32196, 4269, 154178, 1938, 235, 4, false}, // NAD83 / MTM zone 16
    {32197, 4269, 154198, 1939, 236, 4, false}, // NAD83 / MTM zone 17
    {32198, 4269, 156883, 2333, 191, 4, false}, // NAD83 / Quebec Lambert
    {32199, 4269, 153923, 993, 200, 4, false}, // NAD83 / Louisiana Offshore
    {32201, 4322, 337796, 1310, 658, 4, false}, // WGS 72 / UTM zone 1N
    {32202, 4322, 338278, 1311, 660, 4, false}, // WGS 72 / UTM zone 2N
    {32203, 4322, 338760, 1312, 662, 4, false}, // WGS 72 / UTM zone 3N
    {32204, 4322, 339242, 1313, 664, 4, false}, // WGS 72 / UTM zone 4N
    {32205, 4322, 339724, 1314, 666, 4, false}, // WGS 72 / UTM zone 5N
    {32206, 4322, 339810, 1315, 668, 4, false}, // WGS 72 / UTM zone 6N
    {32207, 4322, 339852, 1316, 670, 4, false}, // WGS 72 / UTM zone 7N
    {32208, 4322, 339894, 1317, 672, 4, false}, // WGS 72 / UTM zone 8N
    {32209, 4322, 339936, 1318, 674, 4, false}, // WGS 72 / UTM zone 9N
    {32210, 4322, 337356, 1319, 676, 4, false}, // WGS 72 / UTM zone 10N
    {32211, 4322, 337400, 1320, 678, 4, false}, // WGS 72 / UTM zone 11N
    {32212, 4322, 337444, 1321, 680, 4, false}, // WGS 72 / UTM zone 12N
    {32213, 4322, 337488, 1322, 682, 4, false}, // WGS 72 / UTM zone 13N
    {32214, 4322, 337532, 1323, 684, 4, false}, // WGS 72 / UTM zone 14N
    {32215, 4322, 337576, 1324, 686, 4, false}, // WGS 72 / UTM zone 15N
    {32216, 4322, 337620, 1325, 688, 4, false}, // WGS 72 / UTM zone 16N
    {32217, 4322, 337664, 1326, 690, 4, false}, // WGS 72 / UTM zone 17N
    {32218, 4322, 337708, 1327, 692, 4, false}, // WGS 72 / UTM zone 18N
    {32219, 4322, 337752, 1328, 694, 4, false}, // WGS 72 / UTM zone 19N
    {32220, 4322, 337838, 1329, 696, 4, false}, // WGS 72 / UTM zone 20N
    {32221, 4322, 337882, 1330, 698, 4, false}, // WGS 72 / UTM zone 21N
    {32222, 4322, 337926, 1331, 700, 4, false}, // WGS 72 / UTM zone 22N
    {32223, 4322, 337970, 1332, 702, 4, false}, // WGS 72 / UTM zone 23N
    {32224, 4322, 338014, 1333, 704, 4, false}, // WGS 72 / UTM zone 24N
    {32225, 4322, 338058, 1334, 706, 4, false}, // WGS 72 / UTM zone 25N
    {32226, 4322, 338102, 1335, 708, 4, false}, // WGS 72 / UTM zone 26N
    {32227, 4322, 338146, 1336, 710, 4, false}, // WGS 72 / UTM zone 27N
    {32228, 4322, 338190, 1337, 712, 4, false}, // WGS 72 / UTM zone 28N
    {32229, 4322, 338234, 1338, 714, 4, false}, // WGS 72 / UTM zone 29N
    {32230, 4322, 338320, 1339, 716, 4, false}, // WGS 72 / UTM zone 30N
    {32231, 4322, 338364, 1340, 718, 4, false}, // WGS 72 / UTM zone 31N
    {32232, 4322, 338408, 1341, 720, 4, false}, // WGS 72 / UTM zone 32N
    {32233, 4322, 338452, 1342, 722, 4, false}, // WGS 72 / UTM zone 33N
    {32234, 4322, 338496, 1343, 724, 4, false}, // WGS 72 / UTM zone 34N
    {32235, 4322, 338540, 1344, 726, 4, false}, // WGS 72 / UTM zone 35N
    {32236, 4322, 338584, 1345, 728, 4, false}, // WGS 72 / UTM zone 36N
    {32237, 4322, 338628, 1346, 730, 4, false}, // WGS 72 / UTM zone 37N
    {32238, 4322, 338672, 1347, 732, 4, false}, // WGS 72 / UTM zone 38N
    {32239, 4322, 338716, 1348, 734, 4, false}, // WGS 72 / UTM zone 39N
    {32240, 4322, 338802, 1349, 736, 4, false}, // WGS 72 / UTM zone 40N
    {32241, 4322, 338846, 1350, 738, 4, false}, // WGS 72 / UTM zone 41N
    {32242, 4322, 338890, 1351, 740, 4, false}, // WGS 72 / UTM zone 42N
    {32243, 4322, 338934, 1352, 742, 4, false}, // WGS 72 / UTM zone 43N
    {32244, 4322, 338978, 1353, 744, 4, false}, // WGS 72 / UTM zone 44N
    {32245, 4322, 339022, 1354, 746, 4, false}, // WGS 72 / UTM zone 45N
    {32246, 4322, 339066, 1355, 748, 4, false}, // WGS 72 / UTM zone 46N
    {32247, 4322, 339110, 1356, 750, 4, false}, // WGS 72 / UTM zone 47N
    {32248, 4322, 339154, 1357, 752, 4, false}, // WGS 72 / UTM zone 48N
    {32249, 4322, 339198, 1358, 754, 4, false}, // WGS 72 / UTM zone 49N
    {32250, 4322, 339284, 1359, 756, 4, false}, // WGS 72 / UTM zone 50N
    {32251, 4322, 339328, 1360, 758, 4, false}, // WGS 72 / UTM zone 51N
    {32252, 4322, 339372, 1361, 760, 4, false}, // WGS 72 / UTM zone 52N
    {32253, 4322, 339416, 1362, 762, 4, false}, // WGS 72 / UTM zone 53N
    {32254, 4322, 339460, 1363, 764, 4, false}, // WGS 72 / UTM zone 54N
    {32255, 4322, 339504, 1364, 766, 4, false}, // WGS 72 / UTM zone 55N
    {32256, 4322, 339548, 1365, 768, 4, false}, // WGS 72 / UTM zone 56N
    {32257, 4322, 339592, 1366, 770, 4, false}, // WGS 72 / UTM zone 57N
    {32258, 4322, 339636, 1367, 772, 4, false}, // WGS 72 / UTM zone 58N
    {32259, 4322, 339680, 1368, 774, 4, false}, // WGS 72 / UTM zone 59N
    {32260, 4322, 339766, 1369, 776, 4, false}, // WGS 72 / UTM zone 60N
    {32301, 4322, 337817, 1399, 659, 4, false}, // WGS 72 / UTM zone 1S
    {32302, 4322, 338299, 1400, 661, 4, false}, // WGS 72 / UTM zone 2S
    {32303, 4322, 338781, 1401, 663, 4, false}, // WGS 72 / UTM zone 3S
    {32304, 4322, 339263, 1402, 665, 4, false}, // WGS 72 / UTM zone 4S
    {32305, 4322, 339745, 1403, 667, 4, false}, // WGS 72 / UTM zone 5S
    {32306, 4322, 339831, 1404, 669, 4, false}, // WGS 72 / UTM zone 6S
    {32307, 4322, 339873, 1405, 671, 4, false}, // WGS 72 / UTM zone 7S
    {32308, 4322, 339915, 1406, 673, 4, false}, // WGS 72 / UTM zone 8S
    {32309, 4322, 339957, 1407, 675, 4, false}, // WGS 72 / UTM zone 9S
    {32310, 4322, 337378, 1408, 677, 4, false}, // WGS 72 / UTM zone 10S
    {32311, 4322, 337422, 1409, 679, 4, false}, // WGS 72 / UTM zone 11S
    {32312, 4322, 337466, 1410, 681, 4, false}, // WGS 72 / UTM zone 12S
    {32313, 4322, 337510, 1411, 683, 4, false}, // WGS 72 / UTM zone 13S
    {32314, 4322, 337554, 1412, 685, 4, false}, // WGS 72 / UTM zone 14S
    {32315, 4322, 337598, 1413, 687, 4, false}, // WGS 72 / UTM zone 15S
    {32316, 4322, 337642, 1414, 689, 4, false}, // WGS 72 / UTM zone 16S
    {32317, 4322, 337686, 1415, 691, 4, false}, // WGS 72 / UTM zone 17S
    {32318, 4322, 337730, 1416, 693, 4, false}, // WGS 72 / UTM zone 18S
    {32319, 4322, 337774, 1417, 695, 4, false}, // WGS 72 / UTM zone 19S
    {32320, 4322, 337860, 1418, 697, 4, false}, // WGS 72 / UTM zone 20S
    {32321, 4322, 337904, 1419, 699, 4, false}, // WGS 72 / UTM zone 21S
    {32322, 4322, 337948, 1420, 701, 4, false}, // WGS 72 / UTM zone 22S
    {32323, 4322, 337992, 1421, 703, 4, false}, // WGS 72 / UTM zone 23S
    {32324, 4322, 338036, 1422, 705, 4, false}, // WGS 72 / UTM zone 24S
    {32325, 4322, 338080, 1423, 707, 4, false}, // WGS 72 / UTM zone 25S
    {32326, 4322, 338124, 1424, 709, 4, false}, // WGS 72 / UTM zone 26S
    {32327, 4322, 338168, 1425, 711, 4, false}, // WGS 72 / UTM zone 27S
    {32328, 4322, 338212, 1426, 713, 4, false}, // WGS 72 / UTM zone 28S
    {32329, 4322, 338256, 1427, 715, 4, false}, // WGS 72 / UTM zone 29S
    {32330, 4322, 338342, 1428, 717, 4, false}, // WGS 72 / UTM zone 30S
    {32331, 4322, 338386, 1429, 719, 4, false}, // WGS 72 / UTM zone 31S
    {32332, 4322, 338430, 1430, 721, 4, false}, // WGS 72 / UTM zone 32S
    {32333, 4322, 338474, 1431, 723, 4, false}, // WGS 72 / UTM zone 33S
    {32334, 4322, 338518, 1432, 725, 4, false}, // WGS 72 / UTM zone 34S
    {32335, 4322, 338562, 1433, 727, 4, false}, // WGS 72 / UTM zone 35S
    {32336, 4322, 338606, 1434, 729, 4, false}, // WGS 72 / UTM zone 36S
    {32337, 4322, 338650, 1435, 731, 4, false}, // WGS 72 / UTM zone 37S
    {32338, 4322, 338694, 1436, 733, 4, false}, // WGS 72 / UTM zone 38S
    {32339, 4322, 338738, 1437, 735, 4, false}, // WGS 72 / UTM zone 39S
    {32340, 4322, 338824, 1438, 737, 4, false}, // WGS 72 / UTM zone 40S
    {32341, 4322, 338868, 1439, 739, 4, false}, // WGS 72 / UTM zone 41S
    {32342, 4322, 338912, 1440, 741, 4, false}, // WGS 72 / UTM zone 42S
    {32343, 4322, 338956, 1441, 743, 4, false}, // WGS 72 / UTM zone 43S
    {32344, 4322, 339000, 1442, 745, 4, false}, // WGS 72 / UTM zone 44S
    {32345, 4322, 339044, 1443, 747, 4, false}, // WGS 72 / UTM zone 45S
    {32346, 4322, 339088, 1444, 749, 4, false}, // WGS 72 / UTM zone 46S
    {32347, 4322, 339132, 1445, 751, 4, false}, // WGS 72 / UTM zone 47S
    {32348, 4322, 339176, 1446, 753, 4, false}, // WGS 72 / UTM zone 48S
    {32349, 4322, 339220, 1447, 755, 4, false}, // WGS 72 / UTM zone 49S
    {32350, 4322, 339306, 1448, 757, 4, false}, // WGS 72 / UTM zone 50S
    {32351, 4322, 339350, 1449, 759, 4, false}, // WGS 72 / UTM zone 51S
    {32352, 4322, 339394, 1450, 761, 4, false}, // WGS 72 / UTM zone 52S
    {32353, 4322, 339438, 1451, 763, 4, false}, // WGS 72 / UTM zone 53S
    {32354, 4322, 339482, 1452, 765, 4, false}, // WGS 72 / UTM zone 54S
    {32355, 4322, 339526, 1453, 767, 4, false}, // WGS 72 / UTM zone 55S
    {32356, 4322, 339570, 1454, 769, 4, false}, // WGS 72 / UTM zone 56S
    {32357, 4322, 339614, 1455, 771, 4, false}, // WGS 72 / UTM zone 57S
    {32358, 4322, 339658, 1456, 773, 4, false}, // WGS 72 / UTM zone 58S
    {32359, 4322, 339702, 1457, 775, 4, false}, // WGS 72 / UTM zone 59S
    {32360, 4322, 339788, 1458, 777, 4, false}, // WGS 72 / UTM zone 60S
    {32401, 4324, 340549, 1310, 658, 4, false}, // WGS 72BE / UTM zone 1N
    {32402, 4324, 341075, 1311, 661, 4, false}, // WGS 72BE / UTM zone 2N
    {32403, 4324, 341601, 1312, 662, 4, false}, // WGS 72BE / UTM zone 3N
    {32404, 4324, 342127, 1313, 664, 4, false}, // WGS 72BE / UTM zone 4N
    {32405, 4324, 342653, 1314, 666, 4, false}, // WGS 72BE / UTM zone 5N
    {32406, 4324, 342747, 1315, 668, 4, false}, // WGS 72BE / UTM zone 6N
    {32407, 4324, 342793, 1316, 670, 4, false}, // WGS 72BE / UTM zone 7N
    {32408, 4324, 342839, 1317, 672, 4, false}, // WGS 72BE / UTM zone 8N
    {32409, 4324, 342885, 1318, 674, 4, false}, // WGS 72BE / UTM zone 9N
    {32410, 4324, 340069, 1319, 676, 4, false}, // WGS 72BE / UTM zone 10N
    {32411, 4324, 340117, 1320, 678, 4, false}, // WGS 72BE / UTM zone 11N
    {32412, 4324, 340165, 1321, 680, 4, false}, // WGS 72BE / UTM zone 12N
    {32413, 4324, 340213, 1322, 682, 4, false}, // WGS 72BE / UTM zone 13N
    {32414, 4324, 340261, 1323, 684, 4, false}, // WGS 72BE / UTM zone 14N
    {32415, 4324, 340309, 1324, 686, 4, false}, // WGS 72BE / UTM zone 15N
    {32416, 4324, 340357, 1325, 688, 4, false}, // WGS 72BE / UTM zone 16N
    {32417, 4324, 340405, 1326, 690, 4, false}, // WGS 72BE / UTM zone 17N
    {32418, 4324, 340453, 1327, 692, 4, false}, // WGS 72BE / UTM zone 18N
    {32419, 4324, 340501, 1328, 694, 4, false}, // WGS 72BE / UTM zone 19N
    {32420, 4324, 340595, 1329, 696, 4, false}, // WGS 72BE / UTM zone 20N
    {32421, 4324, 340643, 1330, 698, 4, false}, // WGS 72BE / UTM zone 21N
    {32422, 4324, 340691, 1331, 700, 4, false}, // WGS 72BE / UTM zone 22N
    {32423, 4324, 340739, 1332, 702, 4, false}, // WGS 72BE / UTM zone 23N
    {32424, 4324, 340787, 1333, 704, 4, false}, // WGS 72BE / UTM zone 24N
    {32425, 4324, 340835, 1334, 706, 4, false}, // WGS 72BE / UTM zone 25N
    {32426, 4324, 340883, 1335, 708, 4, false}, // WGS 72BE / UTM zone 26N
    {32427, 4324, 340931, 1336, 710, 4, false}, // WGS 72BE / UTM zone 27N
    {32428, 4324, 340979, 1337, 712, 4, false}, // WGS 72BE / UTM zone 28N
    {32429, 4324, 341027, 1338, 714, 4, false}, // WGS 72BE / UTM zone 29N
    {32430, 4324, 341121, 1339, 716, 4, false}, // WGS 72BE / UTM zone 30N
    {32431, 4324, 341169, 1340, 718, 4, false}, // WGS 72BE / UTM zone 31N
    {32432, 4324, 341217, 1341, 720, 4, false}, // WGS 72BE / UTM zone 32N
    {32433, 4324, 341265, 1342, 1639, 4, false}, // WGS 72BE / UTM zone 33N
    {32434, 4324, 341313, 1343, 1640, 4, false}, // WGS 72BE / UTM zone 34N
    {32435, 4324, 341361, 1344, 726, 4, false}, // WGS 72BE / UTM zone 35N
    {32436, 4324, 341409, 1345, 728, 4, false}, // WGS 72BE / UTM zone 36N
    {32437, 4324, 341457, 1346, 730, 4, false}, // WGS 72BE / UTM zone 37N
    {32438, 4324, 341505, 1347, 732, 4, false}, // WGS 72BE / UTM zone 38N
    {32439, 4324, 341553, 1348, 734, 4, false}, // WGS 72BE / UTM zone 39N
    {32440, 4324, 341647, 1349, 736, 4, false}, // WGS 72BE / UTM zone 40N
    {32441, 4324, 341695, 1350, 738, 4, false}, // WGS 72BE / UTM zone 41N
    {32442, 4324, 341743, 1351, 740, 4, false}, // WGS 72BE / UTM zone 42N
    {32443, 4324, 341791, 1352, 742, 4, false}, // WGS 72BE / UTM zone 43N
    {32444, 4324, 341839, 1353, 744, 4, false}, // WGS 72BE / UTM zone 44N
    {32445, 4324, 341887, 1354, 746, 4, false}, // WGS 72BE / UTM zone 45N
    {32446, 4324, 341935, 1355, 748, 4, false}, // WGS 72BE / UTM zone 46N
    {32447, 4324, 341983, 1356, 750, 4, false}, // WGS 72BE / UTM zone 47N
    {32448, 4324, 342031, 1357, 778, 4, false}, // WGS 72BE / UTM zone 48N
    {32449, 4324, 342079, 1358, 779, 4, false}, // WGS 72BE / UTM zone 49N
    {32450, 4324, 342173, 1359, 756, 4, false}, // WGS 72BE / UTM zone 50N
    {32451, 4324, 342221, 1360, 758, 4, false}, // WGS 72BE / UTM zone 51N
    {32452, 4324, 342269, 1361, 760, 4, false}, // WGS 72BE / UTM zone 52N
    {32453, 4324, 342317, 1362, 762, 4, false}, // WGS 72BE / UTM zone 53N
    {32454, 4324, 342365, 1363, 764, 4, false}, // WGS 72BE / UTM zone 54N
    {32455, 4324, 342413, 1364, 766, 4, false}, // WGS 72BE / UTM zone 55N
    {32456, 4324, 342461, 1365, 768, 4, false}, // WGS 72BE / UTM zone 56N
    {32457, 4324, 342509, 1366, 770, 4, false}, // WGS 72BE / UTM zone 57N
    {32458, 4324, 342557, 1367, 772, 4, false}, // WGS 72BE / UTM zone 58N
    {32459, 4324, 342605, 1368, 774, 4, false}, // WGS 72BE / UTM zone 59N
    {32460, 4324, 342699, 1369, 776, 4, false}, // WGS 72BE / UTM zone 60N
    {32501, 4324, 340572, 1399, 659, 4, false}, // WGS 72BE / UTM zone 1S
    {32502, 4324, 341098, 1400, 661, 4, false}, // WGS 72BE / UTM zone 2S
    {32503, 4324, 341624, 1401, 663, 4, false}, // WGS 72BE / UTM zone 3S
    {32504, 4324, 342150, 1402, 665, 4, false}, // WGS 72BE / UTM zone 4S
    {32505, 4324, 342676, 1403, 667, 4, false}, // WGS 72BE / UTM zone 5S
    {32506, 4324, 342770, 1404, 669, 4, false}, // WGS 72BE / UTM zone 6S
    {32507, 4324, 342816, 1405, 671, 4, false}, // WGS 72BE / UTM zone 7S
    {32508, 4324, 342862, 1406, 673, 4, false}, // WGS 72BE / UTM zone 8S
    {32509, 4324, 342908, 1407, 675, 4, false}, // WGS 72BE / UTM zone 9S
    {32510, 4324, 340093, 1408, 677, 4, false}, // WGS 72BE / UTM zone 10S
    {32511, 4324, 340141, 1409, 679, 4, false}, // WGS 72BE / UTM zone 11S
    {32512, 4324, 340189, 1410, 681, 4, false}, // WGS 72BE / UTM zone 12S
    {32513, 4324, 340237, 1411, 683, 4, false}, // WGS 72BE / UTM zone 13S
    {32514, 4324, 340285, 1412, 685, 4, false}, // WGS 72BE / UTM zone 14S
    {32515, 4324, 340333, 1413, 687, 4, false}, // WGS 72BE / UTM zone 15S
    {32516, 4324, 340381, 1414, 689, 4, false}, // WGS 72BE / UTM zone 16S
    {32517, 4324, 340429, 1415, 691, 4, false}, // WGS 72BE / UTM zone 17S
    {32518, 4324, 340477, 1416, 693, 4, false}, // WGS 72BE / UTM zone 18S
    {32519, 4324, 340525, 1417, 695, 4, false}, // WGS 72BE / UTM zone 19S
    {32520, 4324, 340619, 1418, 697, 4, false}, // WGS 72BE / UTM zone 20S
    {32521, 4324, 340667, 1419, 699, 4, false}, // WGS 72BE / UTM zone 21S
    {32522, 4324, 340715, 1420, 701, 4, false}, // WGS 72BE / UTM zone 22S
    {32523, 4324, 340763, 1421, 703, 4, false}, // WGS 72BE / UTM zone 23S
    {32524, 4324, 340811, 1422, 705, 4, false}, // WGS 72BE / UTM zone 24S
    {32525, 4324, 340859, 1423, 707, 4, false}, // WGS 72BE / UTM zone 25S
    {32526, 4324, 340907, 1424, 709, 4, false}, // WGS 72BE / UTM zone 26S
    {32527, 4324, 340955, 1425, 711, 4, false}, // WGS 72BE / UTM zone 27S
    {32528, 4324, 341003, 1426, 713, 4, false}, // WGS 72BE / UTM zone 28S
    {32529, 4324, 341051, 1427, 715, 4, false}, // WGS 72BE / UTM zone 29S
    {32530, 4324, 341145, 1428, 717, 4, false}, // WGS 72BE / UTM zone 30S
    {32531, 4324, 341193, 1429, 719, 4, false}, // WGS 72BE / UTM zone 31S
    {32532, 4324, 341241, 1430, 721, 4, false}, // WGS 72BE / UTM zone 32S
    {32533, 4324, 341289, 1431, 723, 4, false}, // WGS 72BE / UTM zone 33S
    {32534, 4324, 341337, 1432, 725, 4, false}, // WGS 72BE / UTM zone 34S
    {32535, 4324, 341385, 1433, 727, 4, false}, // WGS 72BE / UTM zone 35S
    {32536, 4324, 341433, 1434, 729, 4, false}, // WGS 72BE / UTM zone 36S
    {32537, 4324, 341481, 1435, 731, 4, false}, // WGS 72BE / UTM zone 37S
    {32538, 4324, 341529, 1436, 733, 4, false}, // WGS 72BE / UTM zone 38S
    {32539, 4324, 341577, 1437, 735, 4, false}, // WGS 72BE / UTM zone 39S
    {32540, 4324, 341671, 1438, 737, 4, false}, // WGS 72BE / UTM zone 40S
    {32541, 4324, 341719, 1439, 739, 4, false}, // WGS 72BE / UTM zone 41S
    {32542, 4324, 341767, 1440, 741, 4, false}, // WGS 72BE / UTM zone 42S
    {32543, 4324, 341815, 1441, 743, 4, false}, // WGS 72BE / UTM zone 43S
    {32544, 4324, 341863, 1442, 745, 4, false}, // WGS 72BE / UTM zone 44S
    {32545, 4324, 341911, 1443, 747, 4, false}, // WGS 72BE / UTM zone 45S
    {32546, 4324, 341959, 1444, 749, 4, false}, // WGS 72BE / UTM zone 46S
    {32547, 4324, 342007, 1445, 751, 4, false}, // WGS 72BE / UTM zone 47S
    {32548, 4324, 342055, 1446, 753, 4, false}, // WGS 72BE / UTM zone 48S
    {32549, 4324, 342103, 1447, 780, 4, false}, // WGS 72BE / UTM zone 49S
    {32550, 4324, 342197, 1448, 757, 4, false}, // WGS 72BE / UTM zone 50S
    {32551, 4324, 342245, 1449, 759, 4, false}, // WGS 72BE / UTM zone 51S
    {32552, 4324, 342293, 1450, 761, 4, false}, // WGS 72BE / UTM zone 52S
    {32553, 4324, 342341, 1451, 763, 4, false}, // WGS 72BE / UTM zone 53S
    {32554, 4324, 342389, 1452, 765, 4, false}, // WGS 72BE / UTM zone 54S
    {32555, 4324, 342437, 1453, 767, 4, false}, // WGS 72BE / UTM zone 55S
    {32556, 4324, 342485, 1454, 769, 4, false}, // WGS 72BE / UTM zone 56S
    {32557, 4324, 342533, 1455, 771, 4, false}, // WGS 72BE / UTM zone 57S
    {32558, 4324, 342581, 1456, 773, 4, false}, // WGS 72BE / UTM zone 58S
    {32559, 4324, 342629, 1457, 775, 4, false}, // WGS 72BE / UTM zone 59S
    {32560, 4324, 342723, 1458, 777, 4, false}, // WGS 72BE / UTM zone 60S
    {32600, 4326, 349255, 1309, 783, 4, false}, // WGS 84 / UTM grid system (northern hemisphere)
    {32601, 4326, 349789, 1310, 785, 4, false}, // WGS 84 / UTM zone 1N
    {32602, 4326, 350271, 1311, 787, 4, false}, // WGS 84 / UTM zone 2N
    {32603, 4326, 350753, 1312, 789, 4, false}, // WGS 84 / UTM zone 3N
    {32604, 4326, 351235, 1313, 791, 4, false}, // WGS 84 / UTM zone 4N
    {32605, 4326, 351717, 1314, 793, 4, false}, // WGS 84 / UTM zone 5N
    {32606, 4326, 351803, 1315, 795, 4, false}, // WGS 84 / UTM zone 6N
    {32607, 4326, 351845, 1316, 797, 4, false}, // WGS 84 / UTM zone 7N
    {32608, 4326, 351887, 1317, 799, 4, false}, // WGS 84 / UTM zone 8N
    {32609, 4326, 351929, 1318, 801, 4, false}, // WGS 84 / UTM zone 9N
    {32610, 4326, 349349, 1319, 803, 4, false}, // WGS 84 / UTM zone 10N
    {32611, 4326, 349393, 1320, 805, 4, false}, // WGS 84 / UTM zone 11N
    {32612, 4326, 349437, 1321, 807, 4, false}, // WGS 84 / UTM zone 12N
    {32613, 4326, 349481, 1322, 809, 4, false}, // WGS 84 / UTM zone 13N
    {32614, 4326, 349525, 1323, 811, 4, false}, // WGS 84 / UTM zone 14N
    {32615, 4326, 349569, 1324, 813, 4, false}, // WGS 84 / UTM zone 15N
    {32616, 4326, 349613, 1325, 815, 4, false}, // WGS 84 / UTM zone 16N
    {32617, 4326, 349657, 1326, 817, 4, false}, // WGS 84 / UTM zone 17N
    {32618, 4326, 349701, 1327, 819, 4, false}, // WGS 84 / UTM zone 18N
    {32619, 4326, 349745, 1328, 821, 4, false}, // WGS 84 / UTM zone 19N
    {32620, 4326, 349831, 1329, 823, 4, false}, // WGS 84 / UTM zone 20N
    {32621, 4326, 349875, 1330, 825, 4, false}, // WGS 84 / UTM zone 21N
    {32622, 4326, 349919, 1331, 827, 4, false}, // WGS 84 / UTM zone 22N
    {32623, 4326, 349963, 1332, 829, 4, false}, // WGS 84 / UTM zone 23N
    {32624, 4326, 350007, 1333, 831, 4, false}, // WGS 84 / UTM zone 24N
    {32625, 4326, 350051, 1334, 833, 4, false}, // WGS 84 / UTM zone 25N
    {32626, 4326, 350095, 1335, 835, 4, false}, // WGS 84 / UTM zone 26N
    {32627, 4326, 350139, 1336, 837, 4, false}, // WGS 84 / UTM zone 27N
    {32628, 4326, 350183, 1337, 839, 4, false}, // WGS 84 / UTM zone 28N
    {32629, 4326, 350227, 1338, 841, 4, false}, // WGS 84 / UTM zone 29N
    {32630, 4326, 350313, 1339, 843, 4, false}, // WGS 84 / UTM zone 30N
    {32631, 4326, 350357, 1340, 845, 4, false}, // WGS 84 / UTM zone 31N
    {32632, 4326, 350401, 1341, 847, 4, false}, // WGS 84 / UTM zone 32N
    {32633, 4326, 350445, 1342, 849, 4, false}, // WGS 84 / UTM zone 33N
    {32634, 4326, 350489, 1343, 851, 4, false}, // WGS 84 / UTM zone 34N
    {32635, 4326, 350533, 1344, 853, 4, false}, // WGS 84 / UTM zone 35N
    {32636, 4326, 350577, 1345, 855, 4, false}, // WGS 84 / UTM zone 36N
    {32637, 4326, 350621, 1346, 857, 4, false}, // WGS 84 / UTM zone 37N
    {32638, 4326, 350665, 1347, 859, 4, false}, // WGS 84 / UTM zone 38N
    {32639, 4326, 350709, 1348, 861, 4, false}, // WGS 84 / UTM zone 39N
    {32640, 4326, 350795, 1349, 863, 4, false}, // WGS 84 / UTM zone 40N
    {32641, 4326, 350839, 1350, 865, 4, false}, // WGS 84 / UTM zone 41N
    {32642, 4326, 350883, 1351, 867, 4, false}, // WGS 84 / UTM zone 42N
    {32643, 4326, 350927, 1352, 869, 4, false}, // WGS 84 / UTM zone 43N
    {32644, 4326, 350971, 1353, 871, 4, false}, // WGS 84 / UTM zone 44N
    {32645, 4326, 351015, 1354, 873, 4, false}, // WGS 84 / UTM zone 45N
    {32646, 4326, 351059, 1355, 875, 4, false}, // WGS 84 / UTM zone 46N
    {32647, 4326, 351103, 1356, 877, 4, false}, // WGS 84 / UTM zone 47N
    {32648, 4326, 351147, 1357, 879, 4, false}, // WGS 84 / UTM zone 48N
    {32649, 4326, 351191, 1358, 881, 4, false}, // WGS 84 / UTM zone 49N
    {32650, 4326, 351277, 1359, 883, 4, false}, // WGS 84 / UTM zone 50N
    {32651, 4326, 351321, 1360, 885, 4, false}, // WGS 84 / UTM zone 51N
    {32652, 4326, 351365, 1361, 887, 4, false}, // WGS 84 / UTM zone 52N
    {32653, 4326, 351409, 1362, 889, 4, false}, // WGS 84 / UTM zone 53N
    {32654, 4326, 351453, 1363, 891, 4, false}, // WGS 84 / UTM zone 54N
    {32655, 4326, 351497, 1364, 893, 4, false}, // WGS 84 / UTM zone 55N
    {32656, 4326, 351541, 1365, 895, 4, false}, // WGS 84 / UTM zone 56N
    {32657, 4326, 351585, 1366, 897, 4, false}, // WGS 84 / UTM zone 57N
    {32658, 4326, 351629, 1367, 899, 4, false}, // WGS 84 / UTM zone 58N
    {32659, 4326, 351673, 1368, 901, 4, false}, // WGS 84 / UTM zone 59N
    {32660, 4326, 351759, 1369, 903, 4, false}, // WGS 84 / UTM zone 60N
    {32661, 4326, 349141, 1370, 781, 5, false}, // WGS 84 / UPS North (N,E)
    {32662, 4326, 346393, 2356, 109, 4, true}, // WGS 84 / Plate Carree
    {32663, 4326, 352036, 2242, 109, 4, true}, // WGS 84 / World Equidistant Cylindrical
    {32664, 4326, 343363, 1305, 956, 8, false}, // WGS 84 / BLM 14N (ftUS)
    {32665, 4326, 343387, 1306, 957, 8, false}, // WGS 84 / BLM 15N (ftUS)
    {32666, 4326, 343411, 1307, 958, 8, false}, // WGS 84 / BLM 16N (ftUS)
    {32667, 4326, 343435, 1308, 959, 8, false}, // WGS 84 / BLM 17N (ftUS)
    {32700, 4326, 349302, 1398, 784, 4, false}, // WGS 84 / UTM grid system (southern hemisphere)
    {32701, 4326, 349810, 1399, 786, 4, false}, // WGS 84 / UTM zone 1S
    {32702, 4326, 350292, 1400, 788, 4, false}, // WGS 84 / UTM zone 2S
    {32703, 4326, 350774, 1401, 790, 4, false}, // WGS 84 / UTM zone 3S
    {32704, 4326, 351256, 1402, 792, 4, false}, // WGS 84 / UTM zone 4S
    {32705, 4326, 351738, 1403, 794, 4, false}, // WGS 84 / UTM zone 5S
    {32706, 4326, 351824, 1404, 796, 4, false}, // WGS 84 / UTM zone 6S
    {32707, 4326, 351866, 1405, 798, 4, false}, // WGS 84 / UTM zone 7S
    {32708, 4326, 351908, 1406, 800, 4, false}, // WGS 84 / UTM zone 8S
    {32709, 4326, 351950, 1407, 802, 4, false}, // WGS 84 / UTM zone 9S
    {32710, 4326, 349371, 1408, 804, 4, false}, // WGS 84 / UTM zone 10S
    {32711, 4326, 349415, 1409, 806, 4, false}, // WGS 84 / UTM zone 11S
    {32712, 4326, 349459, 1410, 808, 4, false}, // WGS 84 / UTM zone 12S
    {32713, 4326, 349503, 1411, 810, 4, false}, // WGS 84 / UTM zone 13S
    {32714, 4326, 349547, 1412, 812, 4, false}, // WGS 84 / UTM zone 14S
    {32715, 4326, 349591, 1413, 814, 4, false}, // WGS 84 / UTM zone 15S
    {32716, 4326, 349635, 1414, 816, 4, false}, // WGS 84 / UTM zone 16S
    {32717, 4326, 349679, 1415, 818, 4, false}, // WGS 84 / UTM zone 17S
    {32718, 4326, 349723, 1416, 820, 4, false}, // WGS 84 / UTM zone 18S
    {32719, 4326, 349767, 1417, 822, 4, false}, // WGS 84 / UTM zone 19S
    {32720, 4326, 349853, 1418, 824, 4, false}, // WGS 84 / UTM zone 20S
    {32721, 4326, 349897, 1419, 826, 4, false}, // WGS 84 / UTM zone 21S
    {32722, 4326, 349941, 1420, 828, 4, false}, // WGS 84 / UTM zone 22S
    {32723, 4326, 349985, 1421, 830, 4, false}, // WGS 84 / UTM zone 23S
    {32724, 4326, 350029, 1422, 832, 4, false}, // WGS 84 / UTM zone 24S
    {32725, 4326, 350073, 1423, 834, 4, false}, // WGS 84 / UTM zone 25S
    {32726, 4326, 350117, 1424, 836, 4, false}, // WGS 84 / UTM zone 26S
    {32727, 4326, 350161, 1425, 838, 4, false}, // WGS 84 / UTM zone 27S
    {32728, 4326, 350205, 1426, 840, 4, false}, // WGS 84 / UTM zone 28S
    {32729, 4326, 350249, 1427, 842, 4, false}, // WGS 84 / UTM zone 29S
    {32730, 4326, 350335, 1428, 844, 4, false}, // WGS 84 / UTM zone 30S
    {32731, 4326, 350379, 1429, 846, 4, false}, // WGS 84 / UTM zone 31S
    {32732, 4326, 350423, 1430, 848, 4, false}, // WGS 84 / UTM zone 32S
    {32733, 4326, 350467, 1431, 850, 4, false}, // WGS 84 / UTM zone 33S
    {32734, 4326, 350511, 1432, 852, 4, false}, // WGS 84 / UTM zone 34S
    {32735, 4326, 350555, 1433, 854, 4, false}, // WGS 84 / UTM zone 35S
    {32736, 4326, 350599, 1434, 856, 4, false}, // WGS 84 / UTM zone 36S
    {32737, 4326, 350643, 1435, 858, 4, false}, // WGS 84 / UTM zone 37S
    {32738, 4326, 350687, 1436, 860, 4, false}, // WGS 84 / UTM zone 38S
    {32739, 4326, 350731, 1437, 862, 4, false}, // WGS 84 / UTM zone 39S
    {32740, 4326, 350817, 1438, 864, 4, false}, // WGS 84 / UTM zone 40S
    {32741, 4326, 350861, 1439, 866, 4, false}, // WGS 84 / UTM zone 41S
    {32742, 4326, 350905, 1440, 868, 4, false}, // WGS 84 / UTM zone 42S
    {32743, 4326, 350949, 1441, 870, 4, false}, // WGS 84 / UTM zone 43S
    {32744, 4326, 350993, 1442, 872, 4, false}, // WGS 84 / UTM zone 44S
    {32745, 4326, 351037, 1443, 874, 4, false}, // WGS 84 / UTM zone 45S
    {32746, 4326, 351081, 1444, 876, 4, false}, // WGS 84 / UTM zone 46S
    {32747, 4326, 351125, 1445, 878, 4, false}, // WGS 84 / UTM zone 47S
    {32748, 4326, 351169, 1446, 880, 4, false}, // WGS 84 / UTM zone 48S
    {32749, 4326, 351213, 1447, 882, 4, false}, // WGS 84 / UTM zone 49S
    {32750, 4326, 351299, 1448, 884, 4, false}, // WGS 84 / UTM zone 50S
    {32751, 4326, 351343, 1449, 886, 4, false}, // WGS 84 / UTM zone 51S
    {32752, 4326, 351387, 1450, 888, 4, false}, // WGS 84 / UTM zone 52S
    {32753, 4326, 351431, 1451, 890, 4, false}, // WGS 84 / UTM zone 53S
    {32754, 4326, 351475, 1452, 892, 4, false}, // WGS 84 / UTM zone 54S
    {32755, 4326, 351519, 1453, 894, 4, false}, // WGS 84 / UTM zone 55S
    {32756, 4326, 351563, 1454, 896, 4, false}, // WGS 84 / UTM zone 56S
    {32757, 4326, 351607, 1455, 898, 4, false}, // WGS 84 / UTM zone 57S
    {32758, 4326, 351651, 1456, 900, 4, false}, // WGS 84 / UTM zone 58S
    {32759, 4326, 351695, 1457, 902, 4, false}, // WGS 84 / UTM zone 59S
    {32760, 4326, 351781, 1458, 904, 4, false}, // WGS 84 / UTM zone 60S
    {32761, 4326, 349191, 1459, 782, 5, false}, // WGS 84 / UPS South (N,E)
    {32766, 4326, 348918, 1603, 516, 4, false}, // WGS 84 / TM 36 SE
};
// clang-format on

} // namespace ZrProj::systems::rows
