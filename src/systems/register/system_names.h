// The rows of systems by name.
//
// Made by src/systems/make_register.py from the EPSG Geodetic Parameter Dataset v10.076 of 2022-08-31, which
// is IOGP's, as proj-data carries it, under the terms of use at https://epsg.org/terms-of-use.html. Other makers' names
// are of ArcGIS Pro 3.0 of 2022-07-09 and of PROJ 9.1.1.
#pragma once

#include "systems/register/rows.h"

namespace ZrProj::systems::rows {

// clang-format off
inline constexpr std::uint16_t systemNames[] = {
    1978, // Abidjan 1987
    165, // Abidjan 1987 / TM 5 NW
    43, // Abidjan 1987 / UTM zone 29N
    41, // Abidjan 1987 / UTM zone 30N
    4221, // AbInvA96_2020 Grid
    4220, // AbInvA96_2020-IRF
    2003, // Accra
    136, // Accra / Ghana National Grid
    137, // Accra / TM 1 NW
    3414, // Aden 1925
    2033, // Adindan
    4407, // Adindan / UTM zone 35N
    4408, // Adindan / UTM zone 36N
    4409, // Adindan / UTM zone 37N
    4410, // Adindan / UTM zone 38N
    2037, // Afgooye
    4439, // Afgooye / UTM zone 38N
    4440, // Afgooye / UTM zone 39N
    2038, // Agadez
    2034, // AGD66
    2829, // AGD66 / ACT Standard Grid
    4411, // AGD66 / AMG zone 48
    4412, // AGD66 / AMG zone 49
    4413, // AGD66 / AMG zone 50
    4414, // AGD66 / AMG zone 51
    4415, // AGD66 / AMG zone 52
    4416, // AGD66 / AMG zone 53
    4417, // AGD66 / AMG zone 54
    4418, // AGD66 / AMG zone 55
    4419, // AGD66 / AMG zone 56
    4420, // AGD66 / AMG zone 57
    4421, // AGD66 / AMG zone 58
    1101, // AGD66 / Vicgrid66
    2035, // AGD84
    4422, // AGD84 / AMG zone 48
    4423, // AGD84 / AMG zone 49
    4424, // AGD84 / AMG zone 50
    4425, // AGD84 / AMG zone 51
    4426, // AGD84 / AMG zone 52
    4427, // AGD84 / AMG zone 53
    4428, // AGD84 / AMG zone 54
    4429, // AGD84 / AMG zone 55
    4430, // AGD84 / AMG zone 56
    4431, // AGD84 / AMG zone 57
    4432, // AGD84 / AMG zone 58
    2036, // Ain el Abd
    310, // Ain el Abd / Aramco Lambert
    4438, // Ain el Abd / Bahrain Grid
    4433, // Ain el Abd / UTM zone 36N
    4434, // Ain el Abd / UTM zone 37N
    4435, // Ain el Abd / UTM zone 38N
    4436, // Ain el Abd / UTM zone 39N
    4437, // Ain el Abd / UTM zone 40N
    2023, // Albanian 1987
    192, // Albanian 1987 / Gauss Kruger zone 4
    454, // Albanian 1987 / Gauss-Kruger zone 4
    2004, // American Samoa 1962
    155, // American Samoa 1962 / American Samoa Lambert
    187, // American Samoa 1962 / American Samoa Lambert
    1093, // American Samoa 1962 / American Samoa Lambert
    2121, // Amersfoort
    5412, // Amersfoort / RD New
    5411, // Amersfoort / RD Old
    2028, // Ammassalik 1958
    288, // Ammassalik 1958 / Greenland zone 7 east
    2307, // Anguilla 1957
    0, // Anguilla 1957 / British West Indies Grid
    2308, // Antigua 1943
    1, // Antigua 1943 / British West Indies Grid
    2040, // Aratu
    4443, // Aratu / UTM zone 22S
    4444, // Aratu / UTM zone 23S
    4445, // Aratu / UTM zone 24S
    2679, // Aratu / UTM zone 25S
    2041, // Arc 1950
    4475, // Arc 1950 / UTM zone 34S
    4476, // Arc 1950 / UTM zone 35S
    4477, // Arc 1950 / UTM zone 36S
    2042, // Arc 1960
    4510, // Arc 1960 / UTM zone 35N
    4507, // Arc 1960 / UTM zone 35S
    4511, // Arc 1960 / UTM zone 36N
    4508, // Arc 1960 / UTM zone 36S
    4512, // Arc 1960 / UTM zone 37N
    4509, // Arc 1960 / UTM zone 37S
    2415, // Ascension Island 1958
    2413, // Astro DOS 71
    3816, // Astro DOS 71 / SHLG71
    3817, // Astro DOS 71 / UTM zone 30S
    2556, // ATF (Paris)
    5315, // ATF (Paris) / Nord de Guerre
    4205, // ATRF2014
    1957, // ATS77
    286, // ATS77 / MTM Nova Scotia zone 4
    287, // ATS77 / MTM Nova Scotia zone 5
    193, // ATS77 / New Brunswick Stereographic (ATS77)
    283, // ATS77 / Prince Edward Isl. Stereographic (ATS77)
    212, // ATS77 / UTM zone 19N
    213, // ATS77 / UTM zone 20N
    2011, // Australian Antarctic
    2416, // Ayabelle Lighthouse
    2017, // Azores Central 1948
    182, // Azores Central 1948 / UTM zone 26N
    2368, // Azores Central 1995
    1054, // Azores Central 1995 / UTM zone 26N
    2016, // Azores Occidental 1939
    181, // Azores Occidental 1939 / UTM zone 25N
    2018, // Azores Oriental 1940
    183, // Azores Oriental 1940 / UTM zone 26N
    2367, // Azores Oriental 1995
    1053, // Azores Oriental 1995 / UTM zone 26N
    2044, // Barbados 1938
    4576, // Barbados 1938 / Barbados National Grid
    4575, // Barbados 1938 / British West Indies Grid
    2043, // Batavia
    2516, // Batavia (Jakarta)
    2677, // Batavia (Jakarta) / NEIEZ
    4513, // Batavia (Jakarta) / NEIEZ
    992, // Batavia / NEIEZ
    300, // Batavia / TM 109 SE
    4514, // Batavia / UTM zone 48S
    4515, // Batavia / UTM zone 49S
    4516, // Batavia / UTM zone 50S
    2047, // BD50
    2512, // BD50 (Brussels)
    4668, // BD50 (Brussels) / Belge Lambert 50
    2143, // BD72
    5544, // BD72 / Belge Lambert 72
    5545, // BD72 / Belgian Lambert 72
    2465, // BDA2000
    1761, // BDA2000 / Bermuda 2000 National Grid
    2045, // Beduaram
    923, // Beduaram / TM 13 NE
    2046, // Beijing 1954
    393, // Beijing 1954 / 3-degree Gauss-Kruger zone 25
    394, // Beijing 1954 / 3-degree Gauss-Kruger zone 26
    395, // Beijing 1954 / 3-degree Gauss-Kruger zone 27
    396, // Beijing 1954 / 3-degree Gauss-Kruger zone 28
    397, // Beijing 1954 / 3-degree Gauss-Kruger zone 29
    398, // Beijing 1954 / 3-degree Gauss-Kruger zone 30
    399, // Beijing 1954 / 3-degree Gauss-Kruger zone 31
    400, // Beijing 1954 / 3-degree Gauss-Kruger zone 32
    401, // Beijing 1954 / 3-degree Gauss-Kruger zone 33
    402, // Beijing 1954 / 3-degree Gauss-Kruger zone 34
    403, // Beijing 1954 / 3-degree Gauss-Kruger zone 35
    404, // Beijing 1954 / 3-degree Gauss-Kruger zone 36
    405, // Beijing 1954 / 3-degree Gauss-Kruger zone 37
    406, // Beijing 1954 / 3-degree Gauss-Kruger zone 38
    407, // Beijing 1954 / 3-degree Gauss-Kruger zone 39
    408, // Beijing 1954 / 3-degree Gauss-Kruger zone 40
    409, // Beijing 1954 / 3-degree Gauss-Kruger zone 41
    410, // Beijing 1954 / 3-degree Gauss-Kruger zone 42
    411, // Beijing 1954 / 3-degree Gauss-Kruger zone 43
    412, // Beijing 1954 / 3-degree Gauss-Kruger zone 44
    413, // Beijing 1954 / 3-degree Gauss-Kruger zone 45
    423, // Beijing 1954 / 3-degree Gauss-Kruger CM 102E
    424, // Beijing 1954 / 3-degree Gauss-Kruger CM 105E
    425, // Beijing 1954 / 3-degree Gauss-Kruger CM 108E
    426, // Beijing 1954 / 3-degree Gauss-Kruger CM 111E
    427, // Beijing 1954 / 3-degree Gauss-Kruger CM 114E
    428, // Beijing 1954 / 3-degree Gauss-Kruger CM 117E
    429, // Beijing 1954 / 3-degree Gauss-Kruger CM 120E
    430, // Beijing 1954 / 3-degree Gauss-Kruger CM 123E
    431, // Beijing 1954 / 3-degree Gauss-Kruger CM 126E
    432, // Beijing 1954 / 3-degree Gauss-Kruger CM 129E
    433, // Beijing 1954 / 3-degree Gauss-Kruger CM 132E
    434, // Beijing 1954 / 3-degree Gauss-Kruger CM 135E
    414, // Beijing 1954 / 3-degree Gauss-Kruger CM 75E
    415, // Beijing 1954 / 3-degree Gauss-Kruger CM 78E
    416, // Beijing 1954 / 3-degree Gauss-Kruger CM 81E
    417, // Beijing 1954 / 3-degree Gauss-Kruger CM 84E
    418, // Beijing 1954 / 3-degree Gauss-Kruger CM 87E
    419, // Beijing 1954 / 3-degree Gauss-Kruger CM 90E
    420, // Beijing 1954 / 3-degree Gauss-Kruger CM 93E
    421, // Beijing 1954 / 3-degree Gauss-Kruger CM 96E
    422, // Beijing 1954 / 3-degree Gauss-Kruger CM 99E
    4635, // Beijing 1954 / Gauss-Kruger zone 13
    4657, // Beijing 1954 / Gauss-Kruger 13N
    4636, // Beijing 1954 / Gauss-Kruger zone 14
    4658, // Beijing 1954 / Gauss-Kruger 14N
    4637, // Beijing 1954 / Gauss-Kruger zone 15
    4659, // Beijing 1954 / Gauss-Kruger 15N
    4638, // Beijing 1954 / Gauss-Kruger zone 16
    4660, // Beijing 1954 / Gauss-Kruger 16N
    4639, // Beijing 1954 / Gauss-Kruger zone 17
    4661, // Beijing 1954 / Gauss-Kruger 17N
    4640, // Beijing 1954 / Gauss-Kruger zone 18
    4662, // Beijing 1954 / Gauss-Kruger 18N
    4641, // Beijing 1954 / Gauss-Kruger zone 19
    4663, // Beijing 1954 / Gauss-Kruger 19N
    4642, // Beijing 1954 / Gauss-Kruger zone 20
    4664, // Beijing 1954 / Gauss-Kruger 20N
    4643, // Beijing 1954 / Gauss-Kruger zone 21
    4665, // Beijing 1954 / Gauss-Kruger 21N
    4644, // Beijing 1954 / Gauss-Kruger zone 22
    4666, // Beijing 1954 / Gauss-Kruger 22N
    4645, // Beijing 1954 / Gauss-Kruger zone 23
    4667, // Beijing 1954 / Gauss-Kruger 23N
    4651, // Beijing 1954 / Gauss-Kruger CM 105E
    4652, // Beijing 1954 / Gauss-Kruger CM 111E
    4653, // Beijing 1954 / Gauss-Kruger CM 117E
    4654, // Beijing 1954 / Gauss-Kruger CM 123E
    4655, // Beijing 1954 / Gauss-Kruger CM 129E
    4656, // Beijing 1954 / Gauss-Kruger CM 135E
    4646, // Beijing 1954 / Gauss-Kruger CM 75E
    4647, // Beijing 1954 / Gauss-Kruger CM 81E
    4648, // Beijing 1954 / Gauss-Kruger CM 87E
    4649, // Beijing 1954 / Gauss-Kruger CM 93E
    4650, // Beijing 1954 / Gauss-Kruger CM 99E
    3415, // Bekaa Valley 1920
    2417, // Bellevue
    2048, // Bermuda 1957
    1760, // Bermuda 1957 / UTM zone 20N
    2504, // Bern 1898 (Bern)
    4669, // Bern 1898 (Bern) / LV03C
    2136, // Bern 1938
    3786, // BGS2005
    3789, // BGS2005 / CCS2005
    3790, // BGS2005 / UTM zone 34N
    3787, // BGS2005 / UTM zone 34N (N-E)
    3791, // BGS2005 / UTM zone 35N
    4222, // BGS2005 / UTM zone 35N
    3788, // BGS2005 / UTM zone 35N (N-E)
    3792, // BGS2005 / UTM zone 36N
    3416, // Bioko
    2000, // Bissau
    95, // Bissau / UTM zone 28N
    2050, // Bogota 1975
    2505, // Bogota 1975 (Bogota)
    4675, // Bogota 1975 / Colombia Bogota zone
    4679, // Bogota 1975 / Colombia Bogota zone
    4677, // Bogota 1975 / Colombia East
    4681, // Bogota 1975 / Colombia East zone
    4676, // Bogota 1975 / Colombia East Central zone
    4680, // Bogota 1975 / Colombia East Central zone
    4674, // Bogota 1975 / Colombia West zone
    4678, // Bogota 1975 / Colombia West zone
    4672, // Bogota 1975 / UTM zone 17N
    4673, // Bogota 1975 / UTM zone 18N
    2051, // Bukit Rimpah
    2209, // Cadastre 1997
    2208, // Cadastre 1997 / UTM zone 38S
    2839, // Cadastre 1997 / UTM zone 38S
    2052, // Camacupa 1948
    4684, // Camacupa 1948 / TM 11.30 SE
    4685, // Camacupa 1948 / TM 12 SE
    4682, // Camacupa 1948 / UTM zone 32S
    4683, // Camacupa 1948 / UTM zone 33S
    4076, // Camacupa 2015
    2418, // Camp Area Astro
    2053, // Campo Inchauspe
    4700, // Campo Inchauspe / Argentina 1
    4701, // Campo Inchauspe / Argentina 2
    4702, // Campo Inchauspe / Argentina 3
    4703, // Campo Inchauspe / Argentina 4
    4704, // Campo Inchauspe / Argentina 5
    4705, // Campo Inchauspe / Argentina 6
    4706, // Campo Inchauspe / Argentina 7
    307, // Campo Inchauspe / UTM zone 19S
    308, // Campo Inchauspe / UTM zone 20S
    2054, // Cape
    2420, // Cape Canaveral
    4740, // Cape / Lo15
    4741, // Cape / Lo17
    4742, // Cape / Lo19
    4743, // Cape / Lo21
    4744, // Cape / Lo23
    4745, // Cape / Lo25
    4746, // Cape / Lo27
    4747, // Cape / Lo29
    4748, // Cape / Lo31
    4749, // Cape / Lo33
    4723, // Cape / UTM zone 34S
    4724, // Cape / UTM zone 35S
    4725, // Cape / UTM zone 36S
    2055, // Carthage
    4780, // Carthage / Nord Tunisie
    2519, // Carthage (Paris)
    4750, // Carthage (Paris) / Tunisia Mining Grid
    4781, // Carthage / Sud Tunisie
    88, // Carthage / TM 11 NE
    4767, // Carthage / UTM zone 32N
    2947, // Cayman Islands National Grid 2011
    3038, // Cayman Islands National Grid 2011
    2240, // CGCS2000 / 3-degree Gauss-Kruger zone 25
    2241, // CGCS2000 / 3-degree Gauss-Kruger zone 26
    2242, // CGCS2000 / 3-degree Gauss-Kruger zone 27
    2243, // CGCS2000 / 3-degree Gauss-Kruger zone 28
    2244, // CGCS2000 / 3-degree Gauss-Kruger zone 29
    2245, // CGCS2000 / 3-degree Gauss-Kruger zone 30
    2246, // CGCS2000 / 3-degree Gauss-Kruger zone 31
    2247, // CGCS2000 / 3-degree Gauss-Kruger zone 32
    2248, // CGCS2000 / 3-degree Gauss-Kruger zone 33
    2249, // CGCS2000 / 3-degree Gauss-Kruger zone 34
    2250, // CGCS2000 / 3-degree Gauss-Kruger zone 35
    2251, // CGCS2000 / 3-degree Gauss-Kruger zone 36
    2252, // CGCS2000 / 3-degree Gauss-Kruger zone 37
    2253, // CGCS2000 / 3-degree Gauss-Kruger zone 38
    2254, // CGCS2000 / 3-degree Gauss-Kruger zone 39
    2255, // CGCS2000 / 3-degree Gauss-Kruger zone 40
    2256, // CGCS2000 / 3-degree Gauss-Kruger zone 41
    2257, // CGCS2000 / 3-degree Gauss-Kruger zone 42
    2258, // CGCS2000 / 3-degree Gauss-Kruger zone 43
    2259, // CGCS2000 / 3-degree Gauss-Kruger zone 44
    2260, // CGCS2000 / 3-degree Gauss-Kruger zone 45
    2270, // CGCS2000 / 3-degree Gauss-Kruger CM 102E
    2271, // CGCS2000 / 3-degree Gauss-Kruger CM 105E
    2272, // CGCS2000 / 3-degree Gauss-Kruger CM 108E
    2273, // CGCS2000 / 3-degree Gauss-Kruger CM 111E
    2274, // CGCS2000 / 3-degree Gauss-Kruger CM 114E
    2275, // CGCS2000 / 3-degree Gauss-Kruger CM 117E
    2276, // CGCS2000 / 3-degree Gauss-Kruger CM 120E
    2277, // CGCS2000 / 3-degree Gauss-Kruger CM 123E
    2278, // CGCS2000 / 3-degree Gauss-Kruger CM 126E
    2279, // CGCS2000 / 3-degree Gauss-Kruger CM 129E
    2280, // CGCS2000 / 3-degree Gauss-Kruger CM 132E
    2281, // CGCS2000 / 3-degree Gauss-Kruger CM 135E
    2261, // CGCS2000 / 3-degree Gauss-Kruger CM 75E
    2262, // CGCS2000 / 3-degree Gauss-Kruger CM 78E
    2263, // CGCS2000 / 3-degree Gauss-Kruger CM 81E
    2264, // CGCS2000 / 3-degree Gauss-Kruger CM 84E
    2265, // CGCS2000 / 3-degree Gauss-Kruger CM 87E
    2266, // CGCS2000 / 3-degree Gauss-Kruger CM 90E
    2267, // CGCS2000 / 3-degree Gauss-Kruger CM 93E
    2268, // CGCS2000 / 3-degree Gauss-Kruger CM 96E
    2269, // CGCS2000 / 3-degree Gauss-Kruger CM 99E
    2218, // CGCS2000 / Gauss-Kruger zone 13
    2219, // CGCS2000 / Gauss-Kruger zone 14
    2220, // CGCS2000 / Gauss-Kruger zone 15
    2221, // CGCS2000 / Gauss-Kruger zone 16
    2222, // CGCS2000 / Gauss-Kruger zone 17
    2223, // CGCS2000 / Gauss-Kruger zone 18
    2224, // CGCS2000 / Gauss-Kruger zone 19
    2225, // CGCS2000 / Gauss-Kruger zone 20
    2226, // CGCS2000 / Gauss-Kruger zone 21
    2227, // CGCS2000 / Gauss-Kruger zone 22
    2228, // CGCS2000 / Gauss-Kruger zone 23
    2234, // CGCS2000 / Gauss-Kruger CM 105E
    2235, // CGCS2000 / Gauss-Kruger CM 111E
    2236, // CGCS2000 / Gauss-Kruger CM 117E
    2237, // CGCS2000 / Gauss-Kruger CM 123E
    2238, // CGCS2000 / Gauss-Kruger CM 129E
    2239, // CGCS2000 / Gauss-Kruger CM 135E
    2229, // CGCS2000 / Gauss-Kruger CM 75E
    2230, // CGCS2000 / Gauss-Kruger CM 81E
    2231, // CGCS2000 / Gauss-Kruger CM 87E
    2232, // CGCS2000 / Gauss-Kruger CM 93E
    2233, // CGCS2000 / Gauss-Kruger CM 99E
    2988, // CGRS93
    2989, // CGRS93 / Cyprus Local Transverse Mercator
    1984, // CH1903
    1985, // CH1903+
    56, // CH1903+ / LV95
    4670, // CH1903 / LV03
    4671, // CH1903 / LV03C-G
    2375, // Chatham Islands 1971
    2376, // Chatham Islands 1979
    2217, // China Geodetic Coordinate System 2000
    1995, // Chos Malal 1914
    81, // Chos Malal 1914 / Argentina 2
    1986, // CHTRS95
    2056, // Chua
    1944, // Chua / UTM zone 23S
    2731, // CI1971 / Chatham Islands Map Grid
    2732, // CI1979 / Chatham Islands Map Grid
    2946, // CIGD11
    2411, // Cocos Islands 1965
    2339, // Combani 1950
    971, // Combani 1950 / UTM zone 38S
    2145, // Conakry 1905
    5555, // Conakry 1905 / UTM zone 28N
    5556, // Conakry 1905 / UTM zone 29N
    2735, // Corrego Alegre 1961
    2743, // Corrego Alegre 1961 / UTM zone 21S
    2744, // Corrego Alegre 1961 / UTM zone 22S
    2745, // Corrego Alegre 1961 / UTM zone 23S
    2746, // Corrego Alegre 1961 / UTM zone 24S
    2057, // Corrego Alegre 1970-72
    4802, // Corrego Alegre 1970-72 / UTM zone 21S
    4803, // Corrego Alegre 1970-72 / UTM zone 22S
    4804, // Corrego Alegre 1970-72 / UTM zone 23S
    4805, // Corrego Alegre 1970-72 / UTM zone 24S
    4806, // Corrego Alegre 1970-72 / UTM zone 25S
    2058, // Cote d'Ivoire
    1826, // County ST74
    2695, // CR05
    2696, // CR05 / CRTM05
    4093, // CR-SIRGAS
    4094, // CR-SIRGAS / CRTM05
    4095, // CR-SIRGAS / UTM zone 16N
    4096, // CR-SIRGAS / UTM zone 17N
    2330, // CSG67
    1303, // CSG67 / UTM zone 21N
    963, // CSG67 / UTM zone 22N
    1990, // Dabola 1981
    63, // Dabola 1981 / UTM zone 28N
    1452, // Dabola 1981 / UTM zone 28N
    64, // Dabola 1981 / UTM zone 29N
    1453, // Dabola 1981 / UTM zone 29N
    2106, // Datum 73
    5313, // Datum 73 / Modified Portuguese Grid
    5314, // Datum 73 / Modified Portuguese Grid
    5312, // Datum 73 / UTM zone 29N
    2823, // DB_REF
    2824, // DB_REF / 3-degree Gauss-Kruger zone 2 (E-N)
    2825, // DB_REF / 3-degree Gauss-Kruger zone 3 (E-N)
    2826, // DB_REF / 3-degree Gauss-Kruger zone 4 (E-N)
    2827, // DB_REF / 3-degree Gauss-Kruger zone 5 (E-N)
    2146, // Dealul Piscului 1930
    5557, // Dealul Piscului 1930 / Stereo 33
    2147, // Dealul Piscului 1970
    5558, // Dealul Piscului 1970/ Stereo 70
    2439, // Deception Island
    2059, // Deir ez Zor
    4840, // Deir ez Zor / Levant Zone
    4863, // Deir ez Zor / Levant Stereographic
    4862, // Deir ez Zor / Syria Lambert
    2458, // DGN95
    4886, // DGN95 / Indonesia TM-3 zone 46.2
    4887, // DGN95 / Indonesia TM-3 zone 47.1
    4888, // DGN95 / Indonesia TM-3 zone 47.2
    4889, // DGN95 / Indonesia TM-3 zone 48.1
    4890, // DGN95 / Indonesia TM-3 zone 48.2
    4891, // DGN95 / Indonesia TM-3 zone 49.1
    4892, // DGN95 / Indonesia TM-3 zone 49.2
    4893, // DGN95 / Indonesia TM-3 zone 50.1
    4894, // DGN95 / Indonesia TM-3 zone 50.2
    4895, // DGN95 / Indonesia TM-3 zone 51.1
    4896, // DGN95 / Indonesia TM-3 zone 51.2
    4897, // DGN95 / Indonesia TM-3 zone 52.1
    4898, // DGN95 / Indonesia TM-3 zone 52.2
    4899, // DGN95 / Indonesia TM-3 zone 53.1
    4900, // DGN95 / Indonesia TM-3 zone 53.2
    4901, // DGN95 / Indonesia TM-3 zone 54.1
    4910, // DGN95 / UTM zone 46N
    4911, // DGN95 / UTM zone 47N
    4917, // DGN95 / UTM zone 47S
    4912, // DGN95 / UTM zone 48N
    4918, // DGN95 / UTM zone 48S
    4913, // DGN95 / UTM zone 49N
    4919, // DGN95 / UTM zone 49S
    4914, // DGN95 / UTM zone 50N
    4920, // DGN95 / UTM zone 50S
    4915, // DGN95 / UTM zone 51N
    4921, // DGN95 / UTM zone 51S
    4916, // DGN95 / UTM zone 52N
    4922, // DGN95 / UTM zone 52S
    4923, // DGN95 / UTM zone 53S
    4924, // DGN95 / UTM zone 54S
    2144, // DHDN
    5546, // DHDN / 3-degree Gauss zone 1
    5547, // DHDN / 3-degree Gauss zone 2
    5548, // DHDN / 3-degree Gauss zone 3
    5549, // DHDN / 3-degree Gauss zone 4
    5550, // DHDN / 3-degree Gauss zone 5
    2733, // DHDN / 3-degree Gauss-Kruger zone 1
    2822, // DHDN / 3-degree Gauss-Kruger zone 1 (E-N)
    5551, // DHDN / 3-degree Gauss-Kruger zone 2
    2818, // DHDN / 3-degree Gauss-Kruger zone 2 (E-N)
    5552, // DHDN / 3-degree Gauss-Kruger zone 3
    2819, // DHDN / 3-degree Gauss-Kruger zone 3 (E-N)
    5553, // DHDN / 3-degree Gauss-Kruger zone 4
    2820, // DHDN / 3-degree Gauss-Kruger zone 4 (E-N)
    5554, // DHDN / 3-degree Gauss-Kruger zone 5
    2821, // DHDN / 3-degree Gauss-Kruger zone 5 (E-N)
    1059, // DHDN / Soldner Berlin
    2427, // Diego Garcia 1969
    2309, // Dominica 1945
    2, // Dominica 1945 / British West Indies Grid
    2060, // Douala
    2024, // Douala 1948
    1110, // Douala 1948 / AEF west
    207, // Douala 1948 / AOF west
    4864, // Douala / UTM zone 32N
    2642, // DRUKREF 03
    2643, // DRUKREF 03 / Bhutan National Grid
    2651, // DRUKREF 03 / Bumthang TM
    2652, // DRUKREF 03 / Chhukha TM
    2653, // DRUKREF 03 / Dagana TM
    2654, // DRUKREF 03 / Gasa TM
    2655, // DRUKREF 03 / Ha TM
    2656, // DRUKREF 03 / Lhuentse TM
    2657, // DRUKREF 03 / Mongar TM
    2658, // DRUKREF 03 / Paro TM
    2659, // DRUKREF 03 / Pemagatshel TM
    2660, // DRUKREF 03 / Punakha TM
    2661, // DRUKREF 03 / Samdrup Jongkhar TM
    2662, // DRUKREF 03 / Samtse TM
    2663, // DRUKREF 03 / Sarpang TM
    2664, // DRUKREF 03 / Thimphu TM
    2665, // DRUKREF 03 / Trashigang TM
    2666, // DRUKREF 03 / Trongsa TM
    2667, // DRUKREF 03 / Tsirang TM
    2668, // DRUKREF 03 / Wangdue Phodrang TM
    2669, // DRUKREF 03 / Yangtse TM
    2670, // DRUKREF 03 / Zhemgang TM
    2422, // Easter Island 1967
    4331, // EBBWV14 Grid
    4330, // EBBWV14-IRF
    4269, // ECML14_NB Grid
    4268, // ECML14_NB-IRF
    2062, // ED50
    200, // ED50 / 3-degree Gauss-Kruger zone 10
    201, // ED50 / 3-degree Gauss-Kruger zone 11
    202, // ED50 / 3-degree Gauss-Kruger zone 12
    203, // ED50 / 3-degree Gauss-Kruger zone 13
    204, // ED50 / 3-degree Gauss-Kruger zone 14
    205, // ED50 / 3-degree Gauss-Kruger zone 15
    199, // ED50 / 3-degree Gauss-Kruger zone 9
    1989, // ED50(ED77)
    58, // ED50(ED77) / UTM zone 38N
    59, // ED50(ED77) / UTM zone 39N
    60, // ED50(ED77) / UTM zone 40N
    61, // ED50(ED77) / UTM zone 41N
    185, // ED50 / France EuroLambert
    1845, // ED50 / Iraq National Grid
    1057, // ED50 / Jordan TM
    2794, // ED50 / SPBA LCC
    4880, // ED50 / TM 0 N
    311, // ED50 / TM27
    312, // ED50 / TM30
    313, // ED50 / TM33
    314, // ED50 / TM36
    315, // ED50 / TM39
    316, // ED50 / TM42
    317, // ED50 / TM45
    4881, // ED50 / TM 5 NE
    2782, // ED50 / TM 6 NE
    4869, // ED50 / UTM zone 28N
    4870, // ED50 / UTM zone 29N
    4871, // ED50 / UTM zone 30N
    4872, // ED50 / UTM zone 31N
    4873, // ED50 / UTM zone 32N
    4874, // ED50 / UTM zone 33N
    4875, // ED50 / UTM zone 34N
    4876, // ED50 / UTM zone 35N
    4877, // ED50 / UTM zone 36N
    4878, // ED50 / UTM zone 37N
    4879, // ED50 / UTM zone 38N
    2371, // ED79
    2063, // ED87
    2061, // Egypt 1907
    4865, // Egypt 1907 / Blue Belt
    4868, // Egypt 1907 / Extended Purple Belt
    4867, // Egypt 1907 / Purple Belt
    4866, // Egypt 1907 / Red Belt
    2031, // Egypt 1930
    2409, // Egypt Gulf of Suez S-650 TL
    1346, // Egypt Gulf of Suez S-650 TL / Red Belt
    1994, // ELD79
    73, // ELD79 / Libya zone 10
    74, // ELD79 / Libya zone 11
    75, // ELD79 / Libya zone 12
    76, // ELD79 / Libya zone 13
    68, // ELD79 / Libya zone 5
    69, // ELD79 / Libya zone 6
    70, // ELD79 / Libya zone 7
    71, // ELD79 / Libya zone 8
    72, // ELD79 / Libya zone 9
    87, // ELD79 / TM 12 NE
    77, // ELD79 / UTM zone 32N
    78, // ELD79 / UTM zone 33N
    79, // ELD79 / UTM zone 34N
    80, // ELD79 / UTM zone 35N
    4264, // EOS21 Grid
    4263, // EOS21-IRF
    1968, // EST92
    2014, // EST97
    1291, // Estonian Coordinate System of 1992
    1292, // Estonian Coordinate System of 1997
    4151, // ETRF2000
    4258, // ETRF2000-PL
    176, // ETRF2000-PL / CS2000/15
    177, // ETRF2000-PL / CS2000/18
    178, // ETRF2000-PL / CS2000/21
    179, // ETRF2000-PL / CS2000/24
    180, // ETRF2000-PL / CS92
    4152, // ETRF2005
    4153, // ETRF2014
    4143, // ETRF89
    4144, // ETRF90
    4145, // ETRF91
    4146, // ETRF92
    4147, // ETRF93
    4148, // ETRF94
    4149, // ETRF96
    4150, // ETRF97
    2090, // ETRS89
    3435, // ETRS89 / Albania LCC 2010
    3409, // ETRS89 / Albania TM 2010
    1407, // ETRS89 / Austria Lambert
    1438, // ETRS89 / Belgian Lambert 2005
    1793, // ETRS89 / Belgian Lambert 2008
    1951, // ETRS89 / DKTM1
    1952, // ETRS89 / DKTM2
    1953, // ETRS89 / DKTM3
    1954, // ETRS89 / DKTM4
    2887, // ETRS89 / EPSG Arctic zone 2-22
    2888, // ETRS89 / EPSG Arctic zone 3-11
    2889, // ETRS89 / EPSG Arctic zone 4-26
    2890, // ETRS89 / EPSG Arctic zone 4-28
    2891, // ETRS89 / EPSG Arctic zone 5-11
    2892, // ETRS89 / EPSG Arctic zone 5-13
    2943, // ETRS89 / EPSG Arctic zone 5-47
    1117, // ETRS89 / ETRS-GK19FIN
    1118, // ETRS89 / ETRS-GK20FIN
    1119, // ETRS89 / ETRS-GK21FIN
    1120, // ETRS89 / ETRS-GK22FIN
    1121, // ETRS89 / ETRS-GK23FIN
    1122, // ETRS89 / ETRS-GK24FIN
    1123, // ETRS89 / ETRS-GK25FIN
    1124, // ETRS89 / ETRS-GK26FIN
    1125, // ETRS89 / ETRS-GK27FIN
    1126, // ETRS89 / ETRS-GK28FIN
    1127, // ETRS89 / ETRS-GK29FIN
    1128, // ETRS89 / ETRS-GK30FIN
    1129, // ETRS89 / ETRS-GK31FIN
    1026, // ETRS89-extended / LAEA Europe
    1025, // ETRS89-extended / LCC Europe
    1136, // ETRS89 / Faroe Lambert
    2671, // ETRS89 / Faroe TM
    4037, // ETRS89 / Gauss-Kruger CM 9E
    1828, // ETRS89 / GK19FIN
    1829, // ETRS89 / GK20FIN
    1830, // ETRS89 / GK21FIN
    1831, // ETRS89 / GK22FIN
    1832, // ETRS89 / GK23FIN
    1833, // ETRS89 / GK24FIN
    1834, // ETRS89 / GK25FIN
    1835, // ETRS89 / GK26FIN
    1836, // ETRS89 / GK27FIN
    1837, // ETRS89 / GK28FIN
    1838, // ETRS89 / GK29FIN
    1839, // ETRS89 / GK30FIN
    1840, // ETRS89 / GK31FIN
    1099, // ETRS89 / Guernsey Grid
    1100, // ETRS89 / Jersey Transverse Mercator
    191, // ETRS89 / Kp2000 Bornholm
    189, // ETRS89 / Kp2000 Jutland
    190, // ETRS89 / Kp2000 Zealand
    2631, // ETRS89 / LCC Germany (E-N)
    2529, // ETRS89 / LCC Germany (N-E)
    2535, // ETRS89 / NTM zone 10
    2578, // ETRS89 / NTM zone 10
    2536, // ETRS89 / NTM zone 11
    2579, // ETRS89 / NTM zone 11
    2537, // ETRS89 / NTM zone 12
    2580, // ETRS89 / NTM zone 12
    2538, // ETRS89 / NTM zone 13
    2581, // ETRS89 / NTM zone 13
    2539, // ETRS89 / NTM zone 14
    2582, // ETRS89 / NTM zone 14
    2540, // ETRS89 / NTM zone 15
    2583, // ETRS89 / NTM zone 15
    2541, // ETRS89 / NTM zone 16
    2584, // ETRS89 / NTM zone 16
    2542, // ETRS89 / NTM zone 17
    2585, // ETRS89 / NTM zone 17
    2543, // ETRS89 / NTM zone 18
    2586, // ETRS89 / NTM zone 18
    2544, // ETRS89 / NTM zone 19
    2587, // ETRS89 / NTM zone 19
    2545, // ETRS89 / NTM zone 20
    2588, // ETRS89 / NTM zone 20
    2546, // ETRS89 / NTM zone 21
    2589, // ETRS89 / NTM zone 21
    2547, // ETRS89 / NTM zone 22
    2590, // ETRS89 / NTM zone 22
    2548, // ETRS89 / NTM zone 23
    2591, // ETRS89 / NTM zone 23
    2549, // ETRS89 / NTM zone 24
    2592, // ETRS89 / NTM zone 24
    2550, // ETRS89 / NTM zone 25
    2593, // ETRS89 / NTM zone 25
    2551, // ETRS89 / NTM zone 26
    2594, // ETRS89 / NTM zone 26
    2552, // ETRS89 / NTM zone 27
    2595, // ETRS89 / NTM zone 27
    2553, // ETRS89 / NTM zone 28
    2596, // ETRS89 / NTM zone 28
    2554, // ETRS89 / NTM zone 29
    2597, // ETRS89 / NTM zone 29
    2555, // ETRS89 / NTM zone 30
    2598, // ETRS89 / NTM zone 30
    2530, // ETRS89 / NTM zone 5
    2573, // ETRS89 / NTM zone 5
    2531, // ETRS89 / NTM zone 6
    2574, // ETRS89 / NTM zone 6
    2532, // ETRS89 / NTM zone 7
    2575, // ETRS89 / NTM zone 7
    2533, // ETRS89 / NTM zone 8
    2576, // ETRS89 / NTM zone 8
    2534, // ETRS89 / NTM zone 9
    2577, // ETRS89 / NTM zone 9
    1754, // ETRS89 / Portugal TM06
    1029, // ETRS89 / TM26
    1030, // ETRS89 / TM27
    206, // ETRS89 / TM 30 NE
    1058, // ETRS89 / TM35FIN(E,N)
    2568, // ETRS89 / TM35FIN(N,E)
    1041, // ETRS89 / TM38
    1042, // ETRS89 / TM39
    5007, // ETRS89 / TM Baltic93
    4996, // ETRS89 / UTM zone 28N
    1031, // ETRS89 / UTM zone 28N (N-E)
    4997, // ETRS89 / UTM zone 29N
    1032, // ETRS89 / UTM zone 29N (N-E)
    4998, // ETRS89 / UTM zone 30N
    1033, // ETRS89 / UTM zone 30N (N-E)
    4999, // ETRS89 / UTM zone 31N
    1034, // ETRS89 / UTM zone 31N (N-E)
    2799, // ETRS89 / UTM zone 31N (N-zE)
    2797, // ETRS89 / UTM zone 31N (zE-N)
    5000, // ETRS89 / UTM zone 32N
    1035, // ETRS89 / UTM zone 32N (N-E)
    2800, // ETRS89 / UTM zone 32N (N-zE)
    2354, // ETRS89 / UTM zone 32N (zE-N)
    5001, // ETRS89 / UTM zone 33N
    1036, // ETRS89 / UTM zone 33N (N-E)
    2801, // ETRS89 / UTM zone 33N (N-zE)
    2798, // ETRS89 / UTM zone 33N (zE-N)
    5002, // ETRS89 / UTM zone 34N
    1037, // ETRS89 / UTM zone 34N (N-E)
    5003, // ETRS89 / UTM zone 35N
    1038, // ETRS89 / UTM zone 35N (N-E)
    5004, // ETRS89 / UTM zone 36N
    1039, // ETRS89 / UTM zone 36N (N-E)
    5005, // ETRS89 / UTM zone 37N
    1040, // ETRS89 / UTM zone 37N (N-E)
    5006, // ETRS89 / UTM zone 38N
    4271, // EWR2 Grid
    4270, // EWR2-IRF
    2064, // Fahud
    4882, // Fahud / UTM zone 39N
    4883, // Fahud / UTM zone 40N
    2391, // Fatu Iva 72
    1294, // Fatu Iva 72 / UTM zone 7S
    2444, // FD54
    1135, // FD54 / Faroe Lambert
    1365, // FD54 / UTM zone 29N
    1967, // FD58
    1191, // FD58 / Iraq zone
    2777, // FEH2010
    2778, // FEH2010 / Fehmarnbelt TM
    2424, // Fiji 1956
    1133, // Fiji 1956 / UTM zone 1S
    1132, // Fiji 1956 / UTM zone 60S
    2423, // Fiji 1986
    1134, // Fiji 1986 / Fiji Map Grid
    1451, // Fiji 1986 / Fiji Map Grid
    2456, // fk89
    1164, // fk89 / Faroe Lambert FK89
    4339, // FNL22 Grid
    4338, // FNL22-IRF
    2328, // Fort Marigot
    961, // Fort Marigot / UTM zone 20N
    3422, // Gambia
    2387, // Gan 1970
    2388, // Gandajika
    2065, // Gandajika 1970
    2029, // Garoua
    2066, // Garoua
    304, // Garoua / UTM zone 33N
    4884, // Garoua / UTM zone 33N
    4229, // GBK19 Grid
    4228, // GBK19-IRF
    2426, // GCGD59
    3800, // GDA2020
    3826, // GDA2020 / ALB2020
    4231, // GDA2020 / Australian Albers
    3829, // GDA2020 / BCG2020
    4374, // GDA2020 / BCSG2020
    3827, // GDA2020 / BIO2020
    3828, // GDA2020 / BRO2020
    3830, // GDA2020 / CARN2020
    3831, // GDA2020 / CIG2020
    3832, // GDA2020 / CKIG2020
    3833, // GDA2020 / COL2020
    3834, // GDA2020 / ESP2020
    3835, // GDA2020 / EXM2020
    3801, // GDA2020 / GA LCC
    3836, // GDA2020 / GCG2020
    3837, // GDA2020 / GOLD2020
    3838, // GDA2020 / JCG2020
    3839, // GDA2020 / KALB2020
    3840, // GDA2020 / KAR2020
    3841, // GDA2020 / KUN2020
    3842, // GDA2020 / LCG2020
    3802, // GDA2020 / MGA zone 46
    3803, // GDA2020 / MGA zone 47
    3804, // GDA2020 / MGA zone 48
    3805, // GDA2020 / MGA zone 49
    3806, // GDA2020 / MGA zone 50
    3807, // GDA2020 / MGA zone 51
    3808, // GDA2020 / MGA zone 52
    3809, // GDA2020 / MGA zone 53
    3810, // GDA2020 / MGA zone 54
    3811, // GDA2020 / MGA zone 55
    3812, // GDA2020 / MGA zone 56
    3813, // GDA2020 / MGA zone 57
    3814, // GDA2020 / MGA zone 58
    3815, // GDA2020 / MGA zone 59
    3843, // GDA2020 / MRCG2020
    3852, // GDA2020 / NSW Lambert
    3844, // GDA2020 / PCG2020
    3845, // GDA2020 / PHG2020
    3853, // GDA2020 / SA Lambert
    3823, // GDA2020 / Vicgrid
    2115, // GDA94
    1568, // GDA94 / Australian Albers
    1104, // GDA94 / BCSG02
    3316, // GDA94 / CIG94
    3318, // GDA94 / CKIG94
    1103, // GDA94 / Geoscience Australia Lambert
    3319, // GDA94 / MGA zone 41
    3320, // GDA94 / MGA zone 42
    3321, // GDA94 / MGA zone 43
    3322, // GDA94 / MGA zone 44
    3323, // GDA94 / MGA zone 46
    3324, // GDA94 / MGA zone 47
    5337, // GDA94 / MGA zone 48
    5338, // GDA94 / MGA zone 49
    5339, // GDA94 / MGA zone 50
    5340, // GDA94 / MGA zone 51
    5341, // GDA94 / MGA zone 52
    5342, // GDA94 / MGA zone 53
    5343, // GDA94 / MGA zone 54
    5344, // GDA94 / MGA zone 55
    5345, // GDA94 / MGA zone 56
    5346, // GDA94 / MGA zone 57
    5347, // GDA94 / MGA zone 58
    3325, // GDA94 / MGA zone 59
    1299, // GDA94 / NSW Lambert
    1098, // GDA94 / SA Lambert
    1102, // GDA94 / Vicgrid
    4036, // GDA94 / WEIPA94
    2632, // GDBD2009
    2633, // GDBD2009 / Brunei BRSO
    2445, // GDM2000
    1367, // GDM2000 / East Malaysia BRSO
    1368, // GDM2000 / Johor Grid
    1374, // GDM2000 / Kedah and Perlis Grid
    1376, // GDM2000 / Kelantan Grid
    1370, // GDM2000 / Pahang Grid
    1366, // GDM2000 / Peninsula RSO
    1375, // GDM2000 / Perak Grid
    1373, // GDM2000 / Pinang Grid
    1371, // GDM2000 / Selangor Grid
    1369, // GDM2000 / Sembilan and Melaka Grid
    1372, // GDM2000 / Terengganu Grid
    1956, // GGRS87
    100, // GGRS87 / Greek Grid
    2450, // GR96
    2868, // GR96 / EPSG Arctic zone 1-25
    2869, // GR96 / EPSG Arctic zone 2-18
    2870, // GR96 / EPSG Arctic zone 2-20
    2871, // GR96 / EPSG Arctic zone 3-29
    2872, // GR96 / EPSG Arctic zone 3-31
    2873, // GR96 / EPSG Arctic zone 3-33
    2874, // GR96 / EPSG Arctic zone 4-20
    2875, // GR96 / EPSG Arctic zone 4-22
    2876, // GR96 / EPSG Arctic zone 4-24
    2877, // GR96 / EPSG Arctic zone 5-41
    2878, // GR96 / EPSG Arctic zone 5-43
    2879, // GR96 / EPSG Arctic zone 5-45
    2880, // GR96 / EPSG Arctic zone 6-26
    2881, // GR96 / EPSG Arctic zone 6-28
    2882, // GR96 / EPSG Arctic zone 6-30
    2883, // GR96 / EPSG Arctic zone 7-11
    2884, // GR96 / EPSG Arctic zone 7-13
    2885, // GR96 / EPSG Arctic zone 8-20
    2886, // GR96 / EPSG Arctic zone 8-22
    1169, // GR96 / UTM zone 18N
    1170, // GR96 / UTM zone 19N
    1171, // GR96 / UTM zone 20N
    1172, // GR96 / UTM zone 21N
    1173, // GR96 / UTM zone 22N
    1174, // GR96 / UTM zone 23N
    1175, // GR96 / UTM zone 24N
    1176, // GR96 / UTM zone 25N
    1177, // GR96 / UTM zone 26N
    1178, // GR96 / UTM zone 27N
    1179, // GR96 / UTM zone 28N
    1180, // GR96 / UTM zone 29N
    1347, // Grand Cayman 1959 / UTM zone 17N
    2944, // Grand Cayman National Grid 1959
    2353, // Grand Comoros
    990, // Grand Comoros / UTM zone 38S
    1955, // Greek
    2518, // Greek (Athens)
    2310, // Grenada 1953
    3, // Grenada 1953 / British West Indies Grid
    3741, // GSK-2011
    4452, // GSK-2011 / Gauss-Kruger zone 10
    4453, // GSK-2011 / Gauss-Kruger zone 11
    4454, // GSK-2011 / Gauss-Kruger zone 12
    4455, // GSK-2011 / Gauss-Kruger zone 13
    4456, // GSK-2011 / Gauss-Kruger zone 14
    4457, // GSK-2011 / Gauss-Kruger zone 15
    4458, // GSK-2011 / Gauss-Kruger zone 16
    4459, // GSK-2011 / Gauss-Kruger zone 17
    4460, // GSK-2011 / Gauss-Kruger zone 18
    4461, // GSK-2011 / Gauss-Kruger zone 19
    4462, // GSK-2011 / Gauss-Kruger zone 20
    4463, // GSK-2011 / Gauss-Kruger zone 21
    4464, // GSK-2011 / Gauss-Kruger zone 22
    4465, // GSK-2011 / Gauss-Kruger zone 23
    4466, // GSK-2011 / Gauss-Kruger zone 24
    4467, // GSK-2011 / Gauss-Kruger zone 25
    4468, // GSK-2011 / Gauss-Kruger zone 26
    4469, // GSK-2011 / Gauss-Kruger zone 27
    4470, // GSK-2011 / Gauss-Kruger zone 28
    4471, // GSK-2011 / Gauss-Kruger zone 29
    4472, // GSK-2011 / Gauss-Kruger zone 30
    4473, // GSK-2011 / Gauss-Kruger zone 31
    4474, // GSK-2011 / Gauss-Kruger zone 32
    4446, // GSK-2011 / Gauss-Kruger zone 4
    4447, // GSK-2011 / Gauss-Kruger zone 5
    4448, // GSK-2011 / Gauss-Kruger zone 6
    4449, // GSK-2011 / Gauss-Kruger zone 7
    4450, // GSK-2011 / Gauss-Kruger zone 8
    4451, // GSK-2011 / Gauss-Kruger zone 9
    4492, // GSK-2011 / Gauss-Kruger CM 105E
    4493, // GSK-2011 / Gauss-Kruger CM 111E
    4494, // GSK-2011 / Gauss-Kruger CM 117E
    4495, // GSK-2011 / Gauss-Kruger CM 123E
    4496, // GSK-2011 / Gauss-Kruger CM 129E
    4497, // GSK-2011 / Gauss-Kruger CM 135E
    4498, // GSK-2011 / Gauss-Kruger CM 141E
    4499, // GSK-2011 / Gauss-Kruger CM 147E
    4500, // GSK-2011 / Gauss-Kruger CM 153E
    4501, // GSK-2011 / Gauss-Kruger CM 159E
    4502, // GSK-2011 / Gauss-Kruger CM 165E
    4503, // GSK-2011 / Gauss-Kruger CM 171E
    4506, // GSK-2011 / Gauss-Kruger CM 171W
    4504, // GSK-2011 / Gauss-Kruger CM 177E
    4505, // GSK-2011 / Gauss-Kruger CM 177W
    4478, // GSK-2011 / Gauss-Kruger CM 21E
    4479, // GSK-2011 / Gauss-Kruger CM 27E
    4480, // GSK-2011 / Gauss-Kruger CM 33E
    4481, // GSK-2011 / Gauss-Kruger CM 39E
    4482, // GSK-2011 / Gauss-Kruger CM 45E
    4483, // GSK-2011 / Gauss-Kruger CM 51E
    4484, // GSK-2011 / Gauss-Kruger CM 57E
    4485, // GSK-2011 / Gauss-Kruger CM 63E
    4486, // GSK-2011 / Gauss-Kruger CM 69E
    4487, // GSK-2011 / Gauss-Kruger CM 75E
    4488, // GSK-2011 / Gauss-Kruger CM 81E
    4489, // GSK-2011 / Gauss-Kruger CM 87E
    4490, // GSK-2011 / Gauss-Kruger CM 93E
    4491, // GSK-2011 / Gauss-Kruger CM 99E
    4520, // GSK-2011 / GSK 3GK zone 10
    4521, // GSK-2011 / GSK 3GK zone 11
    4522, // GSK-2011 / GSK 3GK zone 12
    4523, // GSK-2011 / GSK 3GK zone 13
    4524, // GSK-2011 / GSK 3GK zone 14
    4525, // GSK-2011 / GSK 3GK zone 15
    4526, // GSK-2011 / GSK 3GK zone 16
    4527, // GSK-2011 / GSK 3GK zone 17
    4528, // GSK-2011 / GSK 3GK zone 18
    4529, // GSK-2011 / GSK 3GK zone 19
    4530, // GSK-2011 / GSK 3GK zone 20
    4531, // GSK-2011 / GSK 3GK zone 21
    4532, // GSK-2011 / GSK 3GK zone 22
    4533, // GSK-2011 / GSK 3GK zone 23
    4534, // GSK-2011 / GSK 3GK zone 24
    4535, // GSK-2011 / GSK 3GK zone 25
    4536, // GSK-2011 / GSK 3GK zone 26
    4537, // GSK-2011 / GSK 3GK zone 27
    4538, // GSK-2011 / GSK 3GK zone 28
    4539, // GSK-2011 / GSK 3GK zone 29
    4540, // GSK-2011 / GSK 3GK zone 30
    4541, // GSK-2011 / GSK 3GK zone 31
    4542, // GSK-2011 / GSK 3GK zone 32
    4543, // GSK-2011 / GSK 3GK zone 33
    4544, // GSK-2011 / GSK 3GK zone 34
    4545, // GSK-2011 / GSK 3GK zone 35
    4546, // GSK-2011 / GSK 3GK zone 36
    4547, // GSK-2011 / GSK 3GK zone 37
    4548, // GSK-2011 / GSK 3GK zone 38
    4549, // GSK-2011 / GSK 3GK zone 39
    4550, // GSK-2011 / GSK 3GK zone 40
    4551, // GSK-2011 / GSK 3GK zone 41
    4552, // GSK-2011 / GSK 3GK zone 42
    4553, // GSK-2011 / GSK 3GK zone 43
    4554, // GSK-2011 / GSK 3GK zone 44
    4555, // GSK-2011 / GSK 3GK zone 45
    4556, // GSK-2011 / GSK 3GK zone 46
    4557, // GSK-2011 / GSK 3GK zone 47
    4558, // GSK-2011 / GSK 3GK zone 48
    4559, // GSK-2011 / GSK 3GK zone 49
    4560, // GSK-2011 / GSK 3GK zone 50
    4561, // GSK-2011 / GSK 3GK zone 51
    4562, // GSK-2011 / GSK 3GK zone 52
    4563, // GSK-2011 / GSK 3GK zone 53
    4564, // GSK-2011 / GSK 3GK zone 54
    4565, // GSK-2011 / GSK 3GK zone 55
    4566, // GSK-2011 / GSK 3GK zone 56
    4567, // GSK-2011 / GSK 3GK zone 57
    4568, // GSK-2011 / GSK 3GK zone 58
    4569, // GSK-2011 / GSK 3GK zone 59
    4570, // GSK-2011 / GSK 3GK zone 60
    4571, // GSK-2011 / GSK 3GK zone 61
    4572, // GSK-2011 / GSK 3GK zone 62
    4573, // GSK-2011 / GSK 3GK zone 63
    4574, // GSK-2011 / GSK 3GK zone 64
    4517, // GSK-2011 / GSK 3GK zone 7
    4518, // GSK-2011 / GSK 3GK zone 8
    4519, // GSK-2011 / GSK 3GK zone 9
    4604, // GSK-2011 / GSK 3GK CM 102E
    4605, // GSK-2011 / GSK 3GK CM 105E
    4606, // GSK-2011 / GSK 3GK CM 108E
    4607, // GSK-2011 / GSK 3GK CM 111E
    4608, // GSK-2011 / GSK 3GK CM 114E
    4609, // GSK-2011 / GSK 3GK CM 117E
    4610, // GSK-2011 / GSK 3GK CM 120E
    4611, // GSK-2011 / GSK 3GK CM 123E
    4612, // GSK-2011 / GSK 3GK CM 126E
    4613, // GSK-2011 / GSK 3GK CM 129E
    4614, // GSK-2011 / GSK 3GK CM 132E
    4615, // GSK-2011 / GSK 3GK CM 135E
    4616, // GSK-2011 / GSK 3GK CM 138E
    4617, // GSK-2011 / GSK 3GK CM 141E
    4618, // GSK-2011 / GSK 3GK CM 144E
    4619, // GSK-2011 / GSK 3GK CM 147E
    4620, // GSK-2011 / GSK 3GK CM 150E
    4621, // GSK-2011 / GSK 3GK CM 153E
    4622, // GSK-2011 / GSK 3GK CM 156E
    4623, // GSK-2011 / GSK 3GK CM 159E
    4624, // GSK-2011 / GSK 3GK CM 162E
    4625, // GSK-2011 / GSK 3GK CM 165E
    4626, // GSK-2011 / GSK 3GK CM 168E
    4634, // GSK-2011 / GSK 3GK CM 168W
    4627, // GSK-2011 / GSK 3GK CM 171E
    4633, // GSK-2011 / GSK 3GK CM 171W
    4628, // GSK-2011 / GSK 3GK CM 174E
    4632, // GSK-2011 / GSK 3GK CM 174W
    4629, // GSK-2011 / GSK 3GK CM 177E
    4631, // GSK-2011 / GSK 3GK CM 177W
    4630, // GSK-2011 / GSK 3GK CM 180E
    4577, // GSK-2011 / GSK 3GK CM 21E
    4578, // GSK-2011 / GSK 3GK CM 24E
    4579, // GSK-2011 / GSK 3GK CM 27E
    4580, // GSK-2011 / GSK 3GK CM 30E
    4581, // GSK-2011 / GSK 3GK CM 33E
    4582, // GSK-2011 / GSK 3GK CM 36E
    4583, // GSK-2011 / GSK 3GK CM 39E
    4584, // GSK-2011 / GSK 3GK CM 42E
    4585, // GSK-2011 / GSK 3GK CM 45E
    4586, // GSK-2011 / GSK 3GK CM 48E
    4587, // GSK-2011 / GSK 3GK CM 51E
    4588, // GSK-2011 / GSK 3GK CM 54E
    4589, // GSK-2011 / GSK 3GK CM 57E
    4590, // GSK-2011 / GSK 3GK CM 60E
    4591, // GSK-2011 / GSK 3GK CM 63E
    4592, // GSK-2011 / GSK 3GK CM 66E
    4593, // GSK-2011 / GSK 3GK CM 69E
    4594, // GSK-2011 / GSK 3GK CM 72E
    4595, // GSK-2011 / GSK 3GK CM 75E
    4596, // GSK-2011 / GSK 3GK CM 78E
    4597, // GSK-2011 / GSK 3GK CM 81E
    4598, // GSK-2011 / GSK 3GK CM 84E
    4599, // GSK-2011 / GSK 3GK CM 87E
    4600, // GSK-2011 / GSK 3GK CM 90E
    4601, // GSK-2011 / GSK 3GK CM 93E
    4602, // GSK-2011 / GSK 3GK CM 96E
    4603, // GSK-2011 / GSK 3GK CM 99E
    2329, // Guadeloupe 1948
    962, // Guadeloupe 1948 / UTM zone 20N
    2378, // Guam 1963
    1879, // Guam 1963 / Guam SPCS
    1286, // Guam 1963 / Yap Islands
    2385, // Gulshan 303
    4252, // Gulshan 303 / Bangladesh Transverse Mercator
    1097, // Gulshan 303 / TM 90 NE
    3848, // Gusterberg (Ferro)
    3850, // Gusterberg Grid (Ferro)
    2067, // Guyane Francaise
    1982, // Hanoi 1972
    44, // Hanoi 1972 / Gauss-Kruger zone 18
    45, // Hanoi 1972 / Gauss-Kruger zone 19
    93, // Hanoi 1972 / GK 106 NE
    1983, // Hartebeesthoek94
    46, // Hartebeesthoek94 / Lo15
    47, // Hartebeesthoek94 / Lo17
    48, // Hartebeesthoek94 / Lo19
    49, // Hartebeesthoek94 / Lo21
    50, // Hartebeesthoek94 / Lo23
    51, // Hartebeesthoek94 / Lo25
    52, // Hartebeesthoek94 / Lo27
    53, // Hartebeesthoek94 / Lo29
    54, // Hartebeesthoek94 / Lo31
    55, // Hartebeesthoek94 / Lo33
    4184, // Hartebeesthoek94 / ZAF BSU Albers 25E
    4185, // Hartebeesthoek94 / ZAF BSU Albers 44E
    1797, // HD1909
    2069, // HD72
    4885, // HD72 / EOV
    2363, // Helle 1954
    1049, // Helle 1954 / Jan Mayen Grid
    2087, // Herat North
    2086, // Hito XVIII 1963
    83, // Hito XVIII 1963 / Argentina 2
    84, // Hito XVIII 1963 / UTM zone 19S
    2361, // Hjorsey 1955
    1044, // Hjorsey 1955 / Lambert 1955
    1045, // Hjorsey 1955 / UTM zone 26N
    1046, // Hjorsey 1955 / UTM zone 27N
    1047, // Hjorsey 1955 / UTM zone 28N
    2441, // Hong Kong 1963
    2442, // Hong Kong 1963(67)
    1357, // Hong Kong 1963 Grid System
    1398, // Hong Kong 1963 Grid System
    2318, // Hong Kong 1980
    318, // Hong Kong 1980 Grid System
    4038, // Hong Kong Geodetic CS
    4203, // HS2-IRF
    4204, // HS2 Survey Grid
    2464, // HTRS96
    1757, // HTRS96 / Croatia LCC
    1756, // HTRS96 / Croatia TM
    1758, // HTRS96 / UTM zone 33N
    1759, // HTRS96 / UTM zone 34N
    4335, // HULLEE13 Grid
    4334, // HULLEE13-IRF
    2068, // Hu Tzu Shan 1950
    1804, // Hu Tzu Shan 1950 / UTM zone 51N
    2070, // ID74
    4902, // ID74 / UTM zone 46N
    4925, // ID74 / UTM zone 46S
    4903, // ID74 / UTM zone 47N
    4926, // ID74 / UTM zone 47S
    4904, // ID74 / UTM zone 48N
    4927, // ID74 / UTM zone 48S
    4905, // ID74 / UTM zone 49N
    4928, // ID74 / UTM zone 49S
    4906, // ID74 / UTM zone 50N
    4929, // ID74 / UTM zone 50S
    4907, // ID74 / UTM zone 51N
    4930, // ID74 / UTM zone 51S
    4908, // ID74 / UTM zone 52N
    4931, // ID74 / UTM zone 52S
    4909, // ID74 / UTM zone 53N
    4932, // ID74 / UTM zone 53S
    4933, // ID74 / UTM zone 54S
    3441, // IG05/12 Intermediate CRS
    3438, // IG05 Intermediate CRS
    4131, // IGb00
    4134, // IGb08
    4219, // IGb14
    2400, // IGC 1962 6th Parallel South
    1309, // IGC 1962 / Congo TM zone 12
    1310, // IGC 1962 / Congo TM zone 14
    1311, // IGC 1962 / Congo TM zone 16
    1312, // IGC 1962 / Congo TM zone 18
    1313, // IGC 1962 / Congo TM zone 20
    1314, // IGC 1962 / Congo TM zone 22
    1315, // IGC 1962 / Congo TM zone 24
    1316, // IGC 1962 / Congo TM zone 26
    1317, // IGC 1962 / Congo TM zone 28
    1318, // IGC 1962 / Congo TM zone 30
    2404, // IGCB 1955
    1330, // IGCB 1955 / Congo TM zone 12
    1331, // IGCB 1955 / Congo TM zone 14
    1332, // IGCB 1955 / Congo TM zone 16
    1333, // IGCB 1955 / UTM zone 33S
    3437, // IGD05
    3502, // IGD05
    3440, // IGD05/12
    3503, // IGD05/12
    2373, // IGM95
    1055, // IGM95 / UTM zone 32N
    1056, // IGM95 / UTM zone 33N
    4262, // IGM95 / UTM zone 34N
    2401, // IGN 1962 Kerguelen
    1327, // IGN 1962 Kerguelen / UTM zone 42S
    2348, // IGN53 Mare
    986, // IGN53 Mare / UTM zone 58S
    1163, // IGN53 Mare / UTM zone 59S
    2340, // IGN56 Lifou
    972, // IGN56 Lifou / UTM zone 58S
    2392, // IGN63 Hiva Oa
    1293, // IGN63 Hiva Oa / UTM zone 7S
    2365, // IGN72 Grande Terre
    1051, // IGN72 Grande Terre / UTM zone 58S
    2341, // IGN72 Grand Terre
    973, // IGN72 Grand Terre / UTM zone 58S
    2337, // IGN72 Nuku Hiva
    969, // IGN72 Nuku Hiva / UTM zone 7S
    2403, // IGN Astro 1960
    1358, // IGN Astro 1960 / UTM zone 28N
    1359, // IGN Astro 1960 / UTM zone 29N
    1360, // IGN Astro 1960 / UTM zone 30N
    1841, // IGRS
    1842, // IGRS / UTM zone 37N
    1843, // IGRS / UTM zone 38N
    1844, // IGRS / UTM zone 39N
    4130, // IGS00
    4132, // IGS05
    4133, // IGS08
    4135, // IGS14
    4129, // IGS97
    2370, // IKBD-92
    2071, // Indian 1954
    4934, // Indian 1954 / UTM zone 46N
    4935, // Indian 1954 / UTM zone 47N
    4936, // Indian 1954 / UTM zone 48N
    1966, // Indian 1960
    1167, // Indian 1960 / TM 106 NE
    1139, // Indian 1960 / UTM zone 48N
    1140, // Indian 1960 / UTM zone 49N
    2072, // Indian 1975
    4937, // Indian 1975 / UTM zone 47N
    4938, // Indian 1975 / UTM zone 48N
    2008, // IRENET95
    157, // IRENET95 / Irish Transverse Mercator
    158, // IRENET95 / UTM zone 29N
    2674, // ISN2004
    2791, // ISN2004 / LAEA Europe
    4333, // ISN2004 / LAEA Iceland
    2675, // ISN2004 / Lambert 2004
    2792, // ISN2004 / LCC Europe
    3860, // ISN2016
    4136, // ISN2016 / LAEA Europe
    3861, // ISN2016 / Lambert 2016
    4137, // ISN2016 / LCC Europe
    2362, // ISN93
    1048, // ISN93 / Lambert 1993
    1976, // Israel 1993
    39, // Israel 1993 / Israeli TM Grid
    3439, // Israeli Grid 05
    3442, // Israeli Grid 05/12
    4125, // ITRF2000
    4126, // ITRF2005
    4127, // ITRF2008
    4128, // ITRF2014
    4340, // ITRF2020
    4116, // ITRF88
    4117, // ITRF89
    4118, // ITRF90
    4119, // ITRF91
    4120, // ITRF92
    4121, // ITRF93
    4122, // ITRF94
    4123, // ITRF96
    4124, // ITRF97
    2412, // Iwo Jima 1945
    2461, // JAD2001
    1439, // JAD2001 / Jamaica Metric Grid
    1440, // JAD2001 / UTM zone 17N
    1441, // JAD2001 / UTM zone 18N
    2074, // JAD69
    4940, // JAD69 / Jamaica National Grid
    2073, // Jamaica 1875
    4939, // Jamaica 1875 / Jamaica (Old Grid)
    2843, // JAXA Snow Depth Polar Stereographic North
    2319, // JGD2000
    435, // JGD2000 / Japan Plane Rectangular CS I
    436, // JGD2000 / Japan Plane Rectangular CS II
    437, // JGD2000 / Japan Plane Rectangular CS III
    438, // JGD2000 / Japan Plane Rectangular CS IV
    443, // JGD2000 / Japan Plane Rectangular CS IX
    439, // JGD2000 / Japan Plane Rectangular CS V
    440, // JGD2000 / Japan Plane Rectangular CS VI
    441, // JGD2000 / Japan Plane Rectangular CS VII
    442, // JGD2000 / Japan Plane Rectangular CS VIII
    444, // JGD2000 / Japan Plane Rectangular CS X
    445, // JGD2000 / Japan Plane Rectangular CS XI
    446, // JGD2000 / Japan Plane Rectangular CS XII
    447, // JGD2000 / Japan Plane Rectangular CS XIII
    448, // JGD2000 / Japan Plane Rectangular CS XIV
    453, // JGD2000 / Japan Plane Rectangular CS XIX
    449, // JGD2000 / Japan Plane Rectangular CS XV
    450, // JGD2000 / Japan Plane Rectangular CS XVI
    451, // JGD2000 / Japan Plane Rectangular CS XVII
    452, // JGD2000 / Japan Plane Rectangular CS XVIII
    1088, // JGD2000 / UTM zone 51N
    1089, // JGD2000 / UTM zone 52N
    1090, // JGD2000 / UTM zone 53N
    1091, // JGD2000 / UTM zone 54N
    1092, // JGD2000 / UTM zone 55N
    3285, // JGD2011
    3286, // JGD2011 / Japan Plane Rectangular CS I
    3287, // JGD2011 / Japan Plane Rectangular CS II
    3288, // JGD2011 / Japan Plane Rectangular CS III
    3289, // JGD2011 / Japan Plane Rectangular CS IV
    3294, // JGD2011 / Japan Plane Rectangular CS IX
    3290, // JGD2011 / Japan Plane Rectangular CS V
    3291, // JGD2011 / Japan Plane Rectangular CS VI
    3292, // JGD2011 / Japan Plane Rectangular CS VII
    3293, // JGD2011 / Japan Plane Rectangular CS VIII
    3295, // JGD2011 / Japan Plane Rectangular CS X
    3296, // JGD2011 / Japan Plane Rectangular CS XI
    3297, // JGD2011 / Japan Plane Rectangular CS XII
    3298, // JGD2011 / Japan Plane Rectangular CS XIII
    3299, // JGD2011 / Japan Plane Rectangular CS XIV
    3304, // JGD2011 / Japan Plane Rectangular CS XIX
    3300, // JGD2011 / Japan Plane Rectangular CS XV
    3301, // JGD2011 / Japan Plane Rectangular CS XVI
    3302, // JGD2011 / Japan Plane Rectangular CS XVII
    3303, // JGD2011 / Japan Plane Rectangular CS XVIII
    3305, // JGD2011 / UTM zone 51N
    3306, // JGD2011 / UTM zone 52N
    3307, // JGD2011 / UTM zone 53N
    3308, // JGD2011 / UTM zone 54N
    3309, // JGD2011 / UTM zone 55N
    2428, // Johnston Island 1961
    2382, // Jouik 1961
    2338, // K0 1949
    970, // K0 1949 / UTM zone 42S
    2075, // Kalianpur 1880
    4952, // Kalianpur 1880 / India zone 0
    4953, // Kalianpur 1880 / India zone I
    4954, // Kalianpur 1880 / India zone IIa
    4964, // Kalianpur 1880 / India zone IIb
    4955, // Kalianpur 1880 / India zone IIIa
    4956, // Kalianpur 1880 / India zone IVa
    1979, // Kalianpur 1937
    4957, // Kalianpur 1937 / India zone IIb
    4941, // Kalianpur 1937 / UTM zone 45N
    4942, // Kalianpur 1937 / UTM zone 46N
    1980, // Kalianpur 1962
    4958, // Kalianpur 1962 / India zone I
    4959, // Kalianpur 1962 / India zone IIa
    4943, // Kalianpur 1962 / UTM zone 41N
    4944, // Kalianpur 1962 / UTM zone 42N
    4945, // Kalianpur 1962 / UTM zone 43N
    1981, // Kalianpur 1975
    4960, // Kalianpur 1975 / India zone I
    4961, // Kalianpur 1975 / India zone IIa
    4962, // Kalianpur 1975 / India zone IIb
    4963, // Kalianpur 1975 / India zone IIIa
    4965, // Kalianpur 1975 / India zone IVa
    4946, // Kalianpur 1975 / UTM zone 42N
    4947, // Kalianpur 1975 / UTM zone 43N
    4948, // Kalianpur 1975 / UTM zone 44N
    4949, // Kalianpur 1975 / UTM zone 45N
    4950, // Kalianpur 1975 / UTM zone 46N
    4951, // Kalianpur 1975 / UTM zone 47N
    2076, // Kandawala
    2629, // Kandawala / Sri Lanka Grid
    2446, // Karbala 1979
    3284, // Karbala 1979 / Iraq National Grid
    1382, // Karbala 1979 / UTM zone 37N
    1383, // Karbala 1979 / UTM zone 38N
    1384, // Karbala 1979 / UTM zone 39N
    2399, // Kasai 1953
    1307, // Kasai 1953 / Congo TM zone 22
    1308, // Kasai 1953 / Congo TM zone 24
    2398, // Katanga 1955
    1873, // Katanga 1955 / Katanga Gauss zone A
    1874, // Katanga 1955 / Katanga Gauss zone B
    1875, // Katanga 1955 / Katanga Gauss zone C
    1876, // Katanga 1955 / Katanga Gauss zone D
    1305, // Katanga 1955 / Katanga Lambert
    1872, // Katanga 1955 / Katanga Lambert
    2178, // Katanga 1955 / Katanga Lambert
    1306, // Katanga 1955 / Katanga TM
    2077, // Kertau 1968
    2153, // Kertau 1968 / Johor Grid
    2159, // Kertau 1968 / Kedah and Perlis Grid
    2161, // Kertau 1968 / Kelantan Grid
    2155, // Kertau 1968 / Pahang Grid
    2160, // Kertau 1968 / Perak Revised Grid
    2158, // Kertau 1968 / Pinang Grid
    2156, // Kertau 1968 / Selangor Grid
    2154, // Kertau 1968 / Sembilan and Melaka Grid
    4966, // Kertau 1968 / Singapore Grid
    2157, // Kertau 1968 / Terengganu Grid
    4967, // Kertau 1968 / UTM zone 47N
    4968, // Kertau 1968 / UTM zone 48N
    2454, // Kertau (RSO)
    4969, // Kertau / R.S.O. Malaya (ch)
    1158, // Kertau (RSO) / RSO Malaya (ch)
    1159, // Kertau (RSO) / RSO Malaya (m)
    1958, // KKJ
    1377, // KKJ / Finland zone 0
    383, // KKJ / Finland zone 1
    384, // KKJ / Finland zone 2
    386, // KKJ / Finland zone 4
    1378, // KKJ / Finland zone 5
    385, // KKJ / Finland Uniform Coordinate System
    2078, // KOC
    4970, // KOC Lambert
    2440, // Korea 2000
    2614, // Korea 2000 / Central Belt
    2619, // Korea 2000 / Central Belt 2010
    2615, // Korea 2000 / Central Belt Jeju
    2616, // Korea 2000 / East Belt
    2620, // Korea 2000 / East Belt 2010
    2617, // Korea 2000 / East Sea Belt
    2621, // Korea 2000 / East Sea Belt 2010
    2612, // Korea 2000 / Unified CS
    2613, // Korea 2000 / West Belt
    2618, // Korea 2000 / West Belt 2010
    1997, // Korean 1985
    97, // Korean 1985 / Central Belt
    2601, // Korean 1985 / Central Belt Jeju
    96, // Korean 1985 / East Belt
    2600, // Korean 1985 / East Sea Belt
    2607, // Korean 1985 / Modified Central Belt
    2608, // Korean 1985 / Modified Central Belt Jeju
    2609, // Korean 1985 / Modified East Belt
    2610, // Korean 1985 / Modified East Sea Belt
    2606, // Korean 1985 / Modified West Belt
    2611, // Korean 1985 / Unified CS
    98, // Korean 1985 / West Belt
    2001, // Korean 1995
    4156, // KOSOVAREF01
    4157, // KOSOVAREF01 / Balkans zone 7
    2030, // Kousseri
    305, // Kousseri / UTM zone 33N
    4207, // KSA-GRF17
    4209, // KSA-GRF17 / UTM zone 36N
    4210, // KSA-GRF17 / UTM zone 37N
    4211, // KSA-GRF17 / UTM zone 38N
    4212, // KSA-GRF17 / UTM zone 39N
    4213, // KSA-GRF17 / UTM zone 40N
    2149, // KUDAMS
    5561, // KUDAMS / KTM
    5562, // KUDAMS / KTM
    2438, // Kusaie 1951
    3742, // Kyrg-06
    3743, // Kyrg-06 / zone 1
    3744, // Kyrg-06 / zone 2
    3745, // Kyrg-06 / zone 3
    3746, // Kyrg-06 / zone 4
    3747, // Kyrg-06 / zone 5
    2079, // La Canoa
    4971, // La Canoa / UTM zone 18N
    4972, // La Canoa / UTM zone 19N
    4973, // La Canoa / UTM zone 20N
    2081, // Lake
    102, // Lake / Maracaibo Grid
    101, // Lake / Maracaibo Grid M1
    103, // Lake / Maracaibo Grid M3
    104, // Lake / Maracaibo La Rosa Grid
    2380, // Lao 1993
    2381, // Lao 1997
    2082, // Leigon
    4988, // Leigon / Ghana Metre Grid
    2402, // Le Pouce 1934
    1328, // Le Pouce 1934 / Mauritius Grid
    2457, // LGD2006
    1168, // LGD2006 / Libya TM
    1186, // LGD2006 / Libya TM zone 10
    1187, // LGD2006 / Libya TM zone 11
    1188, // LGD2006 / Libya TM zone 12
    1189, // LGD2006 / Libya TM zone 13
    1181, // LGD2006 / Libya TM zone 5
    1182, // LGD2006 / Libya TM zone 6
    1183, // LGD2006 / Libya TM zone 7
    1184, // LGD2006 / Libya TM zone 8
    1185, // LGD2006 / Libya TM zone 9
    1190, // LGD2006 / UTM zone 32N
    1192, // LGD2006 / UTM zone 33N
    1193, // LGD2006 / UTM zone 34N
    1194, // LGD2006 / UTM zone 35N
    2083, // Liberia 1964
    592, // Lietuvos Koordinoei Sistema 1994
    2039, // Lisbon
    2369, // Lisbon 1890
    2559, // Lisbon 1890 (Lisbon)
    955, // Lisbon 1890 (Lisbon) / Portugal Bonne
    2564, // Lisbon 1890 / Portugal Bonne New
    2506, // Lisbon (Lisbon)
    4442, // Lisbon (Lisbon) / Portuguese Grid
    4441, // Lisbon (Lisbon) / Portuguese National Grid
    2565, // Lisbon / Portuguese Grid New
    1348, // Little Cayman 1961 / UTM zone 17N
    2364, // LKS92
    1050, // LKS92 / Latvia TM
    2372, // LKS94
    1961, // LKS94 (ETRS89)
    1337, // LKS94 / Lithuania TM
    1977, // Locodjo 1965
    164, // Locodjo 1965 / TM 5 NW
    42, // Locodjo 1965 / UTM zone 29N
    40, // Locodjo 1965 / UTM zone 30N
    2120, // Loma Quintana
    2084, // Lome
    4989, // Lome / UTM zone 31N
    4250, // LTF2004(G)
    2015, // LUREF
    169, // LUREF / Luxembourg TM
    4329, // LUREF / Luxembourg TM (3D)
    2085, // Luzon 1911
    4990, // Luzon 1911 / Philippines zone I
    4991, // Luzon 1911 / Philippines zone II
    4992, // Luzon 1911 / Philippines zone III
    4993, // Luzon 1911 / Philippines zone IV
    4994, // Luzon 1911 / Philippines zone V
    4039, // Macao 1920
    4041, // Macao 1920 / Macao Grid
    4040, // Macao 2008
    2697, // MACARIO SOLIS
    2951, // Macedonia State Coordinate System
    4332, // Macedonia State Coordinate System truncated
    2019, // Madeira 1936
    184, // Madeira 1936 / UTM zone 28N
    2558, // Madrid 1870 (Madrid)
    62, // Madrid 1870 (Madrid) / Spain LCC
    1963, // Madzansua
    2389, // MAGNA-SIRGAS
    2955, // MAGNA-SIRGAS / Arauca urban grid
    2956, // MAGNA-SIRGAS / Armenia urban grid
    2957, // MAGNA-SIRGAS / Barranquilla urban grid
    2958, // MAGNA-SIRGAS / Bogota urban grid
    2959, // MAGNA-SIRGAS / Bucaramanga urban grid
    2960, // MAGNA-SIRGAS / Cali urban grid
    2961, // MAGNA-SIRGAS / Cartagena urban grid
    1107, // MAGNA-SIRGAS / Colombia Bogota zone
    1109, // MAGNA-SIRGAS / Colombia East zone
    1108, // MAGNA-SIRGAS / Colombia East Central zone
    1105, // MAGNA-SIRGAS / Colombia Far West zone
    1106, // MAGNA-SIRGAS / Colombia West zone
    2962, // MAGNA-SIRGAS / Cucuta urban grid
    2963, // MAGNA-SIRGAS / Florencia urban grid
    2964, // MAGNA-SIRGAS / Ibague urban grid
    2965, // MAGNA-SIRGAS / Inirida urban grid
    2966, // MAGNA-SIRGAS / Leticia urban grid
    2967, // MAGNA-SIRGAS / Manizales urban grid
    2968, // MAGNA-SIRGAS / Medellin urban grid
    2969, // MAGNA-SIRGAS / Mitu urban grid
    2970, // MAGNA-SIRGAS / Mocoa urban grid
    2971, // MAGNA-SIRGAS / Monteria urban grid
    2972, // MAGNA-SIRGAS / Neiva urban grid
    4218, // MAGNA-SIRGAS / Origen-Nacional
    2973, // MAGNA-SIRGAS / Pasto urban grid
    2974, // MAGNA-SIRGAS / Pereira urban grid
    2975, // MAGNA-SIRGAS / Popayan urban grid
    2976, // MAGNA-SIRGAS / Puerto Carreno urban grid
    2977, // MAGNA-SIRGAS / Quibdo urban grid
    2978, // MAGNA-SIRGAS / Riohacha urban grid
    2979, // MAGNA-SIRGAS / San Andres urban grid
    2980, // MAGNA-SIRGAS / San Jose del Guaviare urban grid
    2981, // MAGNA-SIRGAS / Santa Marta urban grid
    2982, // MAGNA-SIRGAS / Sucre urban grid
    2983, // MAGNA-SIRGAS / Tunja urban grid
    2984, // MAGNA-SIRGAS / Valledupar urban grid
    2985, // MAGNA-SIRGAS / Villavicencio urban grid
    2986, // MAGNA-SIRGAS / Yopal urban grid
    2088, // Mahe 1971
    2089, // Makassar
    2507, // Makassar (Jakarta)
    2678, // Makassar (Jakarta) / NEIEZ
    4995, // Makassar (Jakarta) / NEIEZ
    993, // Makassar / NEIEZ
    2091, // Malongo 1987
    5008, // Malongo 1987 / UTM zone 32S
    3825, // Malongo 1987 / UTM zone 33S
    2092, // Manoca
    2025, // Manoca 1962
    208, // Manoca 1962 / UTM zone 32N
    2414, // Marcus Island 1952
    2688, // MARGEN
    2690, // MARGEN / UTM zone 19S
    2689, // MARGEN / UTM zone 20S
    2691, // MARGEN / UTM zone 21S
    2435, // Marshall Islands 1960
    2332, // Martinique 1938
    965, // Martinique 1938 / UTM zone 20N
    2094, // Massawa
    5014, // Massawa / UTM zone 37N
    2395, // Maupiti 83
    1297, // Maupiti 83 / UTM zone 5S
    2384, // Mauritania 1999
    2405, // Mauritania 1999
    1094, // Mauritania 1999 / UTM zone 28N
    1334, // Mauritania 1999 / UTM zone 28N
    1095, // Mauritania 1999 / UTM zone 29N
    1335, // Mauritania 1999 / UTM zone 29N
    1096, // Mauritania 1999 / UTM zone 30N
    1336, // Mauritania 1999 / UTM zone 30N
    2093, // Merchich
    5009, // Merchich / Nord Maroc
    5011, // Merchich / Sahara
    5012, // Merchich / Sahara Nord
    5013, // Merchich / Sahara Sud
    5010, // Merchich / Sud Maroc
    3023, // Mexico ITRF2008
    3030, // Mexico ITRF2008 / LCC
    3024, // Mexico ITRF2008 / UTM zone 11N
    3025, // Mexico ITRF2008 / UTM zone 12N
    3026, // Mexico ITRF2008 / UTM zone 13N
    3027, // Mexico ITRF2008 / UTM zone 14N
    3028, // Mexico ITRF2008 / UTM zone 15N
    3029, // Mexico ITRF2008 / UTM zone 16N
    2210, // Mexico ITRF92
    3022, // Mexico ITRF92 / LCC
    2211, // Mexico ITRF92 / UTM zone 11N
    2212, // Mexico ITRF92 / UTM zone 12N
    2213, // Mexico ITRF92 / UTM zone 13N
    2214, // Mexico ITRF92 / UTM zone 14N
    2215, // Mexico ITRF92 / UTM zone 15N
    2216, // Mexico ITRF92 / UTM zone 16N
    2142, // MGI
    1846, // MGI 1901
    1847, // MGI 1901 / Balkans zone 5
    4067, // MGI 1901 / Balkans zone 5
    1848, // MGI 1901 / Balkans zone 6
    4068, // MGI 1901 / Balkans zone 6
    1849, // MGI 1901 / Balkans zone 7
    2990, // MGI 1901 / Balkans zone 7
    1850, // MGI 1901 / Balkans zone 8
    4069, // MGI 1901 / Balkans zone 8
    1852, // MGI 1901 / Slovene National Grid
    1851, // MGI 1901 / Slovenia Grid
    4072, // MGI 1901 / Slovenia Grid
    5518, // MGI / 3-degree Gauss zone 5
    5519, // MGI / 3-degree Gauss zone 6
    5520, // MGI / 3-degree Gauss zone 7
    5521, // MGI / 3-degree Gauss zone 8
    4195, // MGI / Austria Central
    4196, // MGI / Austria East
    5513, // MGI / Austria GK Central
    5514, // MGI / Austria GK East
    5515, // MGI / Austria GK M28
    5516, // MGI / Austria GK M31
    5517, // MGI / Austria GK M34
    5512, // MGI / Austria GK West
    5533, // MGI / Austria Lambert
    5543, // MGI / Austria Lambert
    5530, // MGI / Austria M28
    5531, // MGI / Austria M31
    5532, // MGI / Austria M34
    4194, // MGI / Austria West
    5522, // MGI / Balkans zone 5
    5523, // MGI / Balkans zone 6
    5524, // MGI / Balkans zone 7
    5525, // MGI / Balkans zone 8
    5526, // MGI / Balkans zone 8
    2508, // MGI (Ferro)
    5528, // MGI (Ferro) / Austria Central Zone
    5538, // MGI (Ferro) / Austria Central Zone
    5529, // MGI (Ferro) / Austria East Zone
    5539, // MGI (Ferro) / Austria East Zone
    5510, // MGI (Ferro) / Austria GK Central Zone
    5511, // MGI (Ferro) / Austria GK East Zone
    5509, // MGI (Ferro) / Austria GK West Zone
    5534, // MGI (Ferro) / Austria zone M28
    5535, // MGI (Ferro) / Austria zone M31
    5536, // MGI (Ferro) / Austria zone M34
    5527, // MGI (Ferro) / Austria West Zone
    5537, // MGI (Ferro) / Austria West Zone
    5540, // MGI / M28
    5541, // MGI / M31
    5542, // MGI / M34
    1778, // MGI / Slovene National Grid
    170, // MGI / Slovenia Grid
    2096, // Mhast
    2406, // Mhast 1951
    2408, // Mhast (offshore)
    1345, // Mhast (offshore) / UTM zone 32S
    2407, // Mhast (onshore)
    1344, // Mhast (onshore) / UTM zone 32S
    5020, // Mhast / UTM zone 32S
    2430, // Midway 1961
    2095, // Minna
    5019, // Minna / Nigeria East Belt
    5018, // Minna / Nigeria Mid Belt
    5017, // Minna / Nigeria West Belt
    5015, // Minna / UTM zone 31N
    5016, // Minna / UTM zone 32N
    4217, // MML07 Grid
    4216, // MML07-IRF
    4189, // MMN
    4190, // MMN / Argentina 2
    4191, // MMS
    4192, // MMS / Argentina 2
    4328, // MOLDOR11 Grid
    4325, // MOLDOR11-IRF
    1905, // MOLDREF99
    1908, // MOLDREF99 / Moldova TM
    2097, // Monte Mario
    994, // Monte Mario / Italy zone 1
    995, // Monte Mario / Italy zone 2
    2509, // Monte Mario (Rome)
    5021, // Monte Mario (Rome) / Italy zone 1
    5022, // Monte Mario (Rome) / Italy zone 2
    2804, // Monte Mario / TM Emilia-Romagna
    2311, // Montserrat 1958
    4, // Montserrat 1958 / British West Indies Grid
    2394, // Moorea 87
    1296, // Moorea 87 / UTM zone 6S
    2346, // MOP78
    979, // MOP78 / UTM zone 1S
    1992, // Mount Dillon
    66, // Mount Dillon / Tobago Grid
    1965, // Moznet
    1027, // Moznet / UTM zone 36S
    1028, // Moznet / UTM zone 37S
    2783, // Moznet / UTM zone 38S
    2098, // M'poraloko
    5023, // M'poraloko / UTM zone 32N
    5024, // M'poraloko / UTM zone 32S
    4324, // MRH21 Grid
    4323, // MRH21-IRF
    4078, // MTRF-2000
    4080, // MTRF-2000 / UTM zone 36N
    4081, // MTRF-2000 / UTM zone 37N
    4082, // MTRF-2000 / UTM zone 38N
    4083, // MTRF-2000 / UTM zone 39N
    4084, // MTRF-2000 / UTM zone 40N
    4341, // MWC18 Grid
    4371, // MWC18-IRF
    2099, // NAD27
    2315, // NAD27(76)
    19, // NAD27(76) / MTM zone 10
    20, // NAD27(76) / MTM zone 11
    21, // NAD27(76) / MTM zone 12
    22, // NAD27(76) / MTM zone 13
    23, // NAD27(76) / MTM zone 14
    24, // NAD27(76) / MTM zone 15
    25, // NAD27(76) / MTM zone 16
    26, // NAD27(76) / MTM zone 17
    17, // NAD27(76) / MTM zone 8
    18, // NAD27(76) / MTM zone 9
    27, // NAD27(76) / UTM zone 15N
    28, // NAD27(76) / UTM zone 16N
    29, // NAD27(76) / UTM zone 17N
    30, // NAD27(76) / UTM zone 18N
    5047, // NAD27 / Alabama East
    5048, // NAD27 / Alabama West
    5049, // NAD27 / Alaska zone 1
    5058, // NAD27 / Alaska zone 10
    5050, // NAD27 / Alaska zone 2
    5051, // NAD27 / Alaska zone 3
    5052, // NAD27 / Alaska zone 4
    5053, // NAD27 / Alaska zone 5
    5054, // NAD27 / Alaska zone 6
    5055, // NAD27 / Alaska zone 7
    5056, // NAD27 / Alaska zone 8
    5057, // NAD27 / Alaska zone 9
    956, // NAD27 / Alaska Albers
    1762, // NAD27 / Alberta 3TM ref merid 111 W
    1763, // NAD27 / Alberta 3TM ref merid 114 W
    1764, // NAD27 / Alberta 3TM ref merid 117 W
    1765, // NAD27 / Alberta 3TM ref merid 120 W
    1790, // NAD27 / Alberta 3TM ref merid 120 W
    5067, // NAD27 / Arizona Central
    5066, // NAD27 / Arizona East
    5068, // NAD27 / Arizona West
    5069, // NAD27 / Arkansas North
    5070, // NAD27 / Arkansas South
    2173, // NAD27 / BLM 10N (ftUS)
    2174, // NAD27 / BLM 11N (ftUS)
    2175, // NAD27 / BLM 12N (ftUS)
    2176, // NAD27 / BLM 13N (ftUS)
    5661, // NAD27 / BLM 14N (feet)
    5657, // NAD27 / BLM 14N (ftUS)
    5662, // NAD27 / BLM 15N (feet)
    5658, // NAD27 / BLM 15N (ftUS)
    5663, // NAD27 / BLM 16N (feet)
    5659, // NAD27 / BLM 16N (ftUS)
    5664, // NAD27 / BLM 17N (feet)
    5660, // NAD27 / BLM 17N (ftUS)
    2180, // NAD27 / BLM 18N (ftUS)
    2181, // NAD27 / BLM 19N (ftUS)
    2164, // NAD27 / BLM 1N (ftUS)
    2165, // NAD27 / BLM 2N (ftUS)
    2166, // NAD27 / BLM 3N (ftUS)
    2167, // NAD27 / BLM 4N (ftUS)
    2162, // NAD27 / BLM 59N (ftUS)
    2168, // NAD27 / BLM 5N (ftUS)
    2163, // NAD27 / BLM 60N (ftUS)
    2169, // NAD27 / BLM 6N (ftUS)
    2170, // NAD27 / BLM 7N (ftUS)
    2171, // NAD27 / BLM 8N (ftUS)
    2172, // NAD27 / BLM 9N (ftUS)
    1300, // NAD27 / California Albers
    5059, // NAD27 / California zone I
    5060, // NAD27 / California zone II
    5061, // NAD27 / California zone III
    5062, // NAD27 / California zone IV
    5063, // NAD27 / California zone V
    5064, // NAD27 / California zone VI
    5065, // NAD27 / California zone VII
    5109, // NAD27 / California zone VII
    2316, // NAD27(CGQ77)
    138, // NAD27(CGQ77) / Quebec Lambert
    16, // NAD27(CGQ77) / SCoPQ zone 10
    8, // NAD27(CGQ77) / SCoPQ zone 2
    9, // NAD27(CGQ77) / SCoPQ zone 3
    10, // NAD27(CGQ77) / SCoPQ zone 4
    11, // NAD27(CGQ77) / SCoPQ zone 5
    12, // NAD27(CGQ77) / SCoPQ zone 6
    13, // NAD27(CGQ77) / SCoPQ zone 7
    14, // NAD27(CGQ77) / SCoPQ zone 8
    15, // NAD27(CGQ77) / SCoPQ zone 9
    31, // NAD27(CGQ77) / UTM zone 17N
    32, // NAD27(CGQ77) / UTM zone 18N
    33, // NAD27(CGQ77) / UTM zone 19N
    34, // NAD27(CGQ77) / UTM zone 20N
    35, // NAD27(CGQ77) / UTM zone 21N
    5072, // NAD27 / Colorado Central
    5071, // NAD27 / Colorado North
    5073, // NAD27 / Colorado South
    5074, // NAD27 / Connecticut
    2569, // NAD27 / Conus Albers
    85, // NAD27 / Cuba Norte
    1785, // NAD27 / Cuba Norte
    86, // NAD27 / Cuba Sur
    1786, // NAD27 / Cuba Sur
    5075, // NAD27 / Delaware
    5076, // NAD27 / Florida East
    5078, // NAD27 / Florida North
    5077, // NAD27 / Florida West
    5079, // NAD27 / Georgia East
    5080, // NAD27 / Georgia West
    5655, // NAD27 / Guatemala Norte
    5656, // NAD27 / Guatemala Sur
    5082, // NAD27 / Idaho Central
    5081, // NAD27 / Idaho East
    5083, // NAD27 / Idaho West
    5084, // NAD27 / Illinois East
    5085, // NAD27 / Illinois West
    5086, // NAD27 / Indiana East
    5087, // NAD27 / Indiana West
    5088, // NAD27 / Iowa North
    5089, // NAD27 / Iowa South
    5090, // NAD27 / Kansas North
    5091, // NAD27 / Kansas South
    5092, // NAD27 / Kentucky North
    5093, // NAD27 / Kentucky South
    5094, // NAD27 / Louisiana North
    5672, // NAD27 / Louisiana Offshore
    5095, // NAD27 / Louisiana South
    5096, // NAD27 / Maine East
    5097, // NAD27 / Maine West
    5098, // NAD27 / Maryland
    5100, // NAD27 / Massachusetts Island
    5099, // NAD27 / Massachusetts Mainland
    2100, // NAD27 Michigan
    2949, // NAD27 / Michigan Central
    2779, // NAD27 / Michigan East
    2948, // NAD27 / Michigan North
    3436, // NAD27 / Michigan North
    2780, // NAD27 / Michigan Old Central
    2950, // NAD27 / Michigan South
    2781, // NAD27 / Michigan West
    5102, // NAD27 / Minnesota Central
    5101, // NAD27 / Minnesota North
    5103, // NAD27 / Minnesota South
    5104, // NAD27 / Mississippi East
    5105, // NAD27 / Mississippi West
    5107, // NAD27 / Missouri Central
    5106, // NAD27 / Missouri East
    5108, // NAD27 / Missouri West
    5600, // NAD27 / Montana Central
    5599, // NAD27 / Montana North
    5601, // NAD27 / Montana South
    5665, // NAD27 / MTM zone 1
    3824, // NAD27 / MTM zone 10
    5666, // NAD27 / MTM zone 2
    5667, // NAD27 / MTM zone 3
    5668, // NAD27 / MTM zone 4
    5669, // NAD27 / MTM zone 5
    5670, // NAD27 / MTM zone 6
    1787, // NAD27 / MTQ Lambert
    5602, // NAD27 / Nebraska North
    5603, // NAD27 / Nebraska South
    5605, // NAD27 / Nevada Central
    5604, // NAD27 / Nevada East
    5606, // NAD27 / Nevada West
    2775, // NAD27 / New Brunswick Stereographic (NAD27)
    5607, // NAD27 / New Hampshire
    5608, // NAD27 / New Jersey
    5610, // NAD27 / New Mexico Central
    5609, // NAD27 / New Mexico East
    5611, // NAD27 / New Mexico West
    5613, // NAD27 / New York Central
    5612, // NAD27 / New York East
    2201, // NAD27 / New York Long Island
    5615, // NAD27 / New York Long Island
    5614, // NAD27 / New York West
    5616, // NAD27 / North Carolina
    5617, // NAD27 / North Dakota North
    5618, // NAD27 / North Dakota South
    5619, // NAD27 / Ohio North
    5620, // NAD27 / Ohio South
    5621, // NAD27 / Oklahoma North
    5622, // NAD27 / Oklahoma South
    5623, // NAD27 / Oregon North
    5624, // NAD27 / Oregon South
    5625, // NAD27 / Pennsylvania North
    2200, // NAD27 / Pennsylvania South
    5626, // NAD27 / Pennsylvania South
    5671, // NAD27 / Quebec Lambert
    5627, // NAD27 / Rhode Island
    1071, // NAD27 / Shackleford
    5628, // NAD27 / South Carolina North
    5629, // NAD27 / South Carolina South
    5630, // NAD27 / South Dakota North
    5631, // NAD27 / South Dakota South
    197, // NAD27 / Tennessee
    5632, // NAD27 / Tennessee
    5635, // NAD27 / Texas Central
    5633, // NAD27 / Texas North
    5634, // NAD27 / Texas North Central
    5637, // NAD27 / Texas South
    5636, // NAD27 / Texas South Central
    4206, // NAD27 / US National Atlas Equal Area
    5639, // NAD27 / Utah Central
    5638, // NAD27 / Utah North
    5640, // NAD27 / Utah South
    5034, // NAD27 / UTM zone 10N
    5035, // NAD27 / UTM zone 11N
    5036, // NAD27 / UTM zone 12N
    5037, // NAD27 / UTM zone 13N
    5038, // NAD27 / UTM zone 14N
    5039, // NAD27 / UTM zone 15N
    5040, // NAD27 / UTM zone 16N
    5041, // NAD27 / UTM zone 17N
    5042, // NAD27 / UTM zone 18N
    5043, // NAD27 / UTM zone 19N
    5025, // NAD27 / UTM zone 1N
    5044, // NAD27 / UTM zone 20N
    5045, // NAD27 / UTM zone 21N
    5046, // NAD27 / UTM zone 22N
    5026, // NAD27 / UTM zone 2N
    5027, // NAD27 / UTM zone 3N
    5028, // NAD27 / UTM zone 4N
    1361, // NAD27 / UTM zone 59N
    5029, // NAD27 / UTM zone 5N
    1362, // NAD27 / UTM zone 60N
    5030, // NAD27 / UTM zone 6N
    5031, // NAD27 / UTM zone 7N
    5032, // NAD27 / UTM zone 8N
    5033, // NAD27 / UTM zone 9N
    5641, // NAD27 / Vermont
    5642, // NAD27 / Virginia North
    5643, // NAD27 / Virginia South
    5644, // NAD27 / Washington North
    5645, // NAD27 / Washington South
    5646, // NAD27 / West Virginia North
    5647, // NAD27 / West Virginia South
    5649, // NAD27 / Wisconsin Central
    5648, // NAD27 / Wisconsin North
    5650, // NAD27 / Wisconsin South
    1060, // NAD27 / Wisconsin Transverse Mercator
    5651, // NAD27 / Wyoming East
    5652, // NAD27 / Wyoming East Central
    5654, // NAD27 / Wyoming West
    5653, // NAD27 / Wyoming West Central
    2101, // NAD83
    2991, // NAD83(2011)
    3020, // NAD83(2011) / Alabama East
    4265, // NAD83(2011) / Alabama East (ftUS)
    3021, // NAD83(2011) / Alabama West
    4266, // NAD83(2011) / Alabama West (ftUS)
    3040, // NAD83(2011) / Alaska zone 1
    3049, // NAD83(2011) / Alaska zone 10
    3041, // NAD83(2011) / Alaska zone 2
    3042, // NAD83(2011) / Alaska zone 3
    3043, // NAD83(2011) / Alaska zone 4
    3044, // NAD83(2011) / Alaska zone 5
    3045, // NAD83(2011) / Alaska zone 6
    3046, // NAD83(2011) / Alaska zone 7
    3047, // NAD83(2011) / Alaska zone 8
    3048, // NAD83(2011) / Alaska zone 9
    3039, // NAD83(2011) / Alaska Albers
    4377, // NAD83(2011) / Amtrak NECCS21 (ft)
    3050, // NAD83(2011) / Arizona Central
    3051, // NAD83(2011) / Arizona Central (ft)
    3052, // NAD83(2011) / Arizona East
    3053, // NAD83(2011) / Arizona East (ft)
    3054, // NAD83(2011) / Arizona West
    3055, // NAD83(2011) / Arizona West (ft)
    3056, // NAD83(2011) / Arkansas North
    3057, // NAD83(2011) / Arkansas North (ftUS)
    3058, // NAD83(2011) / Arkansas South
    3059, // NAD83(2011) / Arkansas South (ftUS)
    3061, // NAD83(2011) / California zone 1
    3062, // NAD83(2011) / California zone 1 (ftUS)
    3063, // NAD83(2011) / California zone 2
    3064, // NAD83(2011) / California zone 2 (ftUS)
    3065, // NAD83(2011) / California zone 3
    3066, // NAD83(2011) / California zone 3 (ftUS)
    3067, // NAD83(2011) / California zone 4
    3068, // NAD83(2011) / California zone 4 (ftUS)
    3069, // NAD83(2011) / California zone 5
    3070, // NAD83(2011) / California zone 5 (ftUS)
    3071, // NAD83(2011) / California zone 6
    3072, // NAD83(2011) / California zone 6 (ftUS)
    3060, // NAD83(2011) / California Albers
    3073, // NAD83(2011) / Colorado Central
    3074, // NAD83(2011) / Colorado Central (ftUS)
    3075, // NAD83(2011) / Colorado North
    3076, // NAD83(2011) / Colorado North (ftUS)
    3077, // NAD83(2011) / Colorado South
    3078, // NAD83(2011) / Colorado South (ftUS)
    3079, // NAD83(2011) / Connecticut
    3080, // NAD83(2011) / Connecticut (ftUS)
    3015, // NAD83(2011) / Conus Albers
    3081, // NAD83(2011) / Delaware
    3082, // NAD83(2011) / Delaware (ftUS)
    3016, // NAD83(2011) / EPSG Arctic zone 5-29
    3017, // NAD83(2011) / EPSG Arctic zone 5-31
    3018, // NAD83(2011) / EPSG Arctic zone 6-14
    3019, // NAD83(2011) / EPSG Arctic zone 6-16
    3083, // NAD83(2011) / Florida East
    3084, // NAD83(2011) / Florida East (ftUS)
    3085, // NAD83(2011) / Florida GDL Albers
    3086, // NAD83(2011) / Florida North
    3087, // NAD83(2011) / Florida North (ftUS)
    3088, // NAD83(2011) / Florida West
    3089, // NAD83(2011) / Florida West (ftUS)
    3090, // NAD83(2011) / Georgia East
    3091, // NAD83(2011) / Georgia East (ftUS)
    3092, // NAD83(2011) / Georgia West
    3093, // NAD83(2011) / Georgia West (ftUS)
    3452, // NAD83(2011) / IaRCS zone 1
    3461, // NAD83(2011) / IaRCS zone 10
    3462, // NAD83(2011) / IaRCS zone 11
    3463, // NAD83(2011) / IaRCS zone 12
    3464, // NAD83(2011) / IaRCS zone 13
    3465, // NAD83(2011) / IaRCS zone 14
    3453, // NAD83(2011) / IaRCS zone 2
    3454, // NAD83(2011) / IaRCS zone 3
    3455, // NAD83(2011) / IaRCS zone 4
    3456, // NAD83(2011) / IaRCS zone 5
    3457, // NAD83(2011) / IaRCS zone 6
    3458, // NAD83(2011) / IaRCS zone 7
    3459, // NAD83(2011) / IaRCS zone 8
    3460, // NAD83(2011) / IaRCS zone 9
    3094, // NAD83(2011) / Idaho Central
    3095, // NAD83(2011) / Idaho Central (ftUS)
    3096, // NAD83(2011) / Idaho East
    3097, // NAD83(2011) / Idaho East (ftUS)
    3098, // NAD83(2011) / Idaho West
    3099, // NAD83(2011) / Idaho West (ftUS)
    3100, // NAD83(2011) / Illinois East
    3101, // NAD83(2011) / Illinois East (ftUS)
    3102, // NAD83(2011) / Illinois West
    3103, // NAD83(2011) / Illinois West (ftUS)
    3104, // NAD83(2011) / Indiana East
    3105, // NAD83(2011) / Indiana East (ftUS)
    3106, // NAD83(2011) / Indiana West
    3107, // NAD83(2011) / Indiana West (ftUS)
    3506, // NAD83(2011) / InGCS Adams (ftUS)
    3505, // NAD83(2011) / InGCS Adams (m)
    3508, // NAD83(2011) / InGCS Allen (ftUS)
    3507, // NAD83(2011) / InGCS Allen (m)
    3510, // NAD83(2011) / InGCS Bartholomew (ftUS)
    3509, // NAD83(2011) / InGCS Bartholomew (m)
    3512, // NAD83(2011) / InGCS Benton (ftUS)
    3511, // NAD83(2011) / InGCS Benton (m)
    3514, // NAD83(2011) / InGCS Blackford-Delaware (ftUS)
    3513, // NAD83(2011) / InGCS Blackford-Delaware (m)
    3516, // NAD83(2011) / InGCS Boone-Hendricks (ftUS)
    3515, // NAD83(2011) / InGCS Boone-Hendricks (m)
    3518, // NAD83(2011) / InGCS Brown (ftUS)
    3517, // NAD83(2011) / InGCS Brown (m)
    3520, // NAD83(2011) / InGCS Carroll (ftUS)
    3519, // NAD83(2011) / InGCS Carroll (m)
    3522, // NAD83(2011) / InGCS Cass (ftUS)
    3521, // NAD83(2011) / InGCS Cass (m)
    3524, // NAD83(2011) / InGCS Clark-Floyd-Scott (ftUS)
    3523, // NAD83(2011) / InGCS Clark-Floyd-Scott (m)
    3526, // NAD83(2011) / InGCS Clay (ftUS)
    3525, // NAD83(2011) / InGCS Clay (m)
    3528, // NAD83(2011) / InGCS Clinton (ftUS)
    3527, // NAD83(2011) / InGCS Clinton (m)
    3530, // NAD83(2011) / InGCS Crawford-Lawrence-Orange (ftUS)
    3529, // NAD83(2011) / InGCS Crawford-Lawrence-Orange (m)
    3532, // NAD83(2011) / InGCS Daviess-Greene (ftUS)
    3531, // NAD83(2011) / InGCS Daviess-Greene (m)
    3534, // NAD83(2011) / InGCS Dearborn-Ohio-Switzerland (ftUS)
    3533, // NAD83(2011) / InGCS Dearborn-Ohio-Switzerland (m)
    3536, // NAD83(2011) / InGCS Decatur-Rush (ftUS)
    3535, // NAD83(2011) / InGCS Decatur-Rush (m)
    3538, // NAD83(2011) / InGCS DeKalb (ftUS)
    3537, // NAD83(2011) / InGCS DeKalb (m)
    3540, // NAD83(2011) / InGCS Dubois-Martin (ftUS)
    3539, // NAD83(2011) / InGCS Dubois-Martin (m)
    3542, // NAD83(2011) / InGCS Elkhart-Kosciusko-Wabash (ftUS)
    3541, // NAD83(2011) / InGCS Elkhart-Kosciusko-Wabash (m)
    3544, // NAD83(2011) / InGCS Fayette-Franklin-Union (ftUS)
    3543, // NAD83(2011) / InGCS Fayette-Franklin-Union (m)
    3546, // NAD83(2011) / InGCS Fountain-Warren (ftUS)
    3545, // NAD83(2011) / InGCS Fountain-Warren (m)
    3548, // NAD83(2011) / InGCS Fulton-Marshall-St. Joseph (ftUS)
    3547, // NAD83(2011) / InGCS Fulton-Marshall-St. Joseph (m)
    3550, // NAD83(2011) / InGCS Gibson (ftUS)
    3549, // NAD83(2011) / InGCS Gibson (m)
    3552, // NAD83(2011) / InGCS Grant (ftUS)
    3551, // NAD83(2011) / InGCS Grant (m)
    3554, // NAD83(2011) / InGCS Hamilton-Tipton (ftUS)
    3553, // NAD83(2011) / InGCS Hamilton-Tipton (m)
    3556, // NAD83(2011) / InGCS Hancock-Madison (ftUS)
    3555, // NAD83(2011) / InGCS Hancock-Madison (m)
    3558, // NAD83(2011) / InGCS Harrison-Washington (ftUS)
    3557, // NAD83(2011) / InGCS Harrison-Washington (m)
    3560, // NAD83(2011) / InGCS Henry (ftUS)
    3559, // NAD83(2011) / InGCS Henry (m)
    3562, // NAD83(2011) / InGCS Howard-Miami (ftUS)
    3561, // NAD83(2011) / InGCS Howard-Miami (m)
    3564, // NAD83(2011) / InGCS Huntington-Whitley (ftUS)
    3563, // NAD83(2011) / InGCS Huntington-Whitley (m)
    3566, // NAD83(2011) / InGCS Jackson (ftUS)
    3565, // NAD83(2011) / InGCS Jackson (m)
    3568, // NAD83(2011) / InGCS Jasper-Porter (ftUS)
    3567, // NAD83(2011) / InGCS Jasper-Porter (m)
    3570, // NAD83(2011) / InGCS Jay (ftUS)
    3569, // NAD83(2011) / InGCS Jay (m)
    3572, // NAD83(2011) / InGCS Jefferson (ftUS)
    3571, // NAD83(2011) / InGCS Jefferson (m)
    3574, // NAD83(2011) / InGCS Jennings (ftUS)
    3573, // NAD83(2011) / InGCS Jennings (m)
    3576, // NAD83(2011) / InGCS Johnson-Marion (ftUS)
    3575, // NAD83(2011) / InGCS Johnson-Marion (m)
    3578, // NAD83(2011) / InGCS Knox (ftUS)
    3577, // NAD83(2011) / InGCS Knox (m)
    3580, // NAD83(2011) / InGCS LaGrange-Noble (ftUS)
    3579, // NAD83(2011) / InGCS LaGrange-Noble (m)
    3582, // NAD83(2011) / InGCS Lake-Newton (ftUS)
    3581, // NAD83(2011) / InGCS Lake-Newton (m)
    3584, // NAD83(2011) / InGCS LaPorte-Pulaski-Starke (ftUS)
    3583, // NAD83(2011) / InGCS LaPorte-Pulaski-Starke (m)
    3586, // NAD83(2011) / InGCS Monroe-Morgan (ftUS)
    3585, // NAD83(2011) / InGCS Monroe-Morgan (m)
    3588, // NAD83(2011) / InGCS Montgomery-Putnam (ftUS)
    3587, // NAD83(2011) / InGCS Montgomery-Putnam (m)
    3590, // NAD83(2011) / InGCS Owen (ftUS)
    3589, // NAD83(2011) / InGCS Owen (m)
    3592, // NAD83(2011) / InGCS Parke-Vermillion (ftUS)
    3591, // NAD83(2011) / InGCS Parke-Vermillion (m)
    3594, // NAD83(2011) / InGCS Perry (ftUS)
    3593, // NAD83(2011) / InGCS Perry (m)
    3596, // NAD83(2011) / InGCS Pike-Warrick (ftUS)
    3595, // NAD83(2011) / InGCS Pike-Warrick (m)
    3598, // NAD83(2011) / InGCS Posey (ftUS)
    3597, // NAD83(2011) / InGCS Posey (m)
    3600, // NAD83(2011) / InGCS Randolph-Wayne (ftUS)
    3599, // NAD83(2011) / InGCS Randolph-Wayne (m)
    3602, // NAD83(2011) / InGCS Ripley (ftUS)
    3601, // NAD83(2011) / InGCS Ripley (m)
    3604, // NAD83(2011) / InGCS Shelby (ftUS)
    3603, // NAD83(2011) / InGCS Shelby (m)
    3606, // NAD83(2011) / InGCS Spencer (ftUS)
    3605, // NAD83(2011) / InGCS Spencer (m)
    3608, // NAD83(2011) / InGCS Steuben (ftUS)
    3607, // NAD83(2011) / InGCS Steuben (m)
    3610, // NAD83(2011) / InGCS Sullivan (ftUS)
    3609, // NAD83(2011) / InGCS Sullivan (m)
    3612, // NAD83(2011) / InGCS Tippecanoe-White (ftUS)
    3611, // NAD83(2011) / InGCS Tippecanoe-White (m)
    3614, // NAD83(2011) / InGCS Vanderburgh (ftUS)
    3613, // NAD83(2011) / InGCS Vanderburgh (m)
    3616, // NAD83(2011) / InGCS Vigo (ftUS)
    3615, // NAD83(2011) / InGCS Vigo (m)
    3618, // NAD83(2011) / InGCS Wells (ftUS)
    3617, // NAD83(2011) / InGCS Wells (m)
    3108, // NAD83(2011) / Iowa North
    3109, // NAD83(2011) / Iowa North (ftUS)
    3110, // NAD83(2011) / Iowa South
    3111, // NAD83(2011) / Iowa South (ftUS)
    3426, // NAD83(2011) / Kansas LCC
    3427, // NAD83(2011) / Kansas LCC (ftUS)
    3112, // NAD83(2011) / Kansas North
    3113, // NAD83(2011) / Kansas North (ftUS)
    3114, // NAD83(2011) / Kansas South
    3115, // NAD83(2011) / Kansas South (ftUS)
    3116, // NAD83(2011) / Kentucky North
    3117, // NAD83(2011) / Kentucky North (ftUS)
    3118, // NAD83(2011) / Kentucky Single Zone
    3119, // NAD83(2011) / Kentucky Single Zone (ftUS)
    3120, // NAD83(2011) / Kentucky South
    3121, // NAD83(2011) / Kentucky South (ftUS)
    4046, // NAD83(2011) / KS RCS zone 1
    4055, // NAD83(2011) / KS RCS zone 10
    4056, // NAD83(2011) / KS RCS zone 11
    4057, // NAD83(2011) / KS RCS zone 12
    4058, // NAD83(2011) / KS RCS zone 13
    4059, // NAD83(2011) / KS RCS zone 14
    4060, // NAD83(2011) / KS RCS zone 15
    4061, // NAD83(2011) / KS RCS zone 16
    4062, // NAD83(2011) / KS RCS zone 17
    4063, // NAD83(2011) / KS RCS zone 18
    4064, // NAD83(2011) / KS RCS zone 19
    4047, // NAD83(2011) / KS RCS zone 2
    4065, // NAD83(2011) / KS RCS zone 20
    4048, // NAD83(2011) / KS RCS zone 3
    4049, // NAD83(2011) / KS RCS zone 4
    4050, // NAD83(2011) / KS RCS zone 5
    4051, // NAD83(2011) / KS RCS zone 6
    4052, // NAD83(2011) / KS RCS zone 7
    4053, // NAD83(2011) / KS RCS zone 8
    4054, // NAD83(2011) / KS RCS zone 9
    3122, // NAD83(2011) / Louisiana North
    3123, // NAD83(2011) / Louisiana North (ftUS)
    3124, // NAD83(2011) / Louisiana South
    3125, // NAD83(2011) / Louisiana South (ftUS)
    3126, // NAD83(2011) / Maine CS2000 Central
    3127, // NAD83(2011) / Maine CS2000 East
    3128, // NAD83(2011) / Maine CS2000 West
    3129, // NAD83(2011) / Maine East
    3130, // NAD83(2011) / Maine East (ftUS)
    3131, // NAD83(2011) / Maine West
    3132, // NAD83(2011) / Maine West (ftUS)
    3133, // NAD83(2011) / Maryland
    3134, // NAD83(2011) / Maryland (ftUS)
    3135, // NAD83(2011) / Massachusetts Island
    3136, // NAD83(2011) / Massachusetts Island (ftUS)
    3137, // NAD83(2011) / Massachusetts Mainland
    3138, // NAD83(2011) / Massachusetts Mainland (ftUS)
    3139, // NAD83(2011) / Michigan Central
    3140, // NAD83(2011) / Michigan Central (ft)
    3141, // NAD83(2011) / Michigan North
    3142, // NAD83(2011) / Michigan North (ft)
    3143, // NAD83(2011) / Michigan Oblique Mercator
    3144, // NAD83(2011) / Michigan South
    3145, // NAD83(2011) / Michigan South (ft)
    3146, // NAD83(2011) / Minnesota Central
    3147, // NAD83(2011) / Minnesota Central (ftUS)
    3148, // NAD83(2011) / Minnesota North
    3149, // NAD83(2011) / Minnesota North (ftUS)
    3150, // NAD83(2011) / Minnesota South
    3151, // NAD83(2011) / Minnesota South (ftUS)
    3152, // NAD83(2011) / Mississippi East
    3153, // NAD83(2011) / Mississippi East (ftUS)
    3154, // NAD83(2011) / Mississippi TM
    3155, // NAD83(2011) / Mississippi West
    3156, // NAD83(2011) / Mississippi West (ftUS)
    3157, // NAD83(2011) / Missouri Central
    3158, // NAD83(2011) / Missouri East
    3159, // NAD83(2011) / Missouri West
    3160, // NAD83(2011) / Montana
    3161, // NAD83(2011) / Montana (ft)
    4033, // NAD83(2011) / NCRS Las Vegas (ftUS)
    4035, // NAD83(2011) / NCRS Las Vegas high (ftUS)
    4034, // NAD83(2011) / NCRS Las Vegas high (m)
    4032, // NAD83(2011) / NCRS Las Vegas (m)
    3162, // NAD83(2011) / Nebraska
    3163, // NAD83(2011) / Nebraska (ftUS)
    3413, // NAD83(2011) / Nebraska (ftUS)
    3164, // NAD83(2011) / Nevada Central
    3165, // NAD83(2011) / Nevada Central (ftUS)
    3166, // NAD83(2011) / Nevada East
    3167, // NAD83(2011) / Nevada East (ftUS)
    3168, // NAD83(2011) / Nevada West
    3169, // NAD83(2011) / Nevada West (ftUS)
    3170, // NAD83(2011) / New Hampshire
    3171, // NAD83(2011) / New Hampshire (ftUS)
    3172, // NAD83(2011) / New Jersey
    3173, // NAD83(2011) / New Jersey (ftUS)
    3174, // NAD83(2011) / New Mexico Central
    3175, // NAD83(2011) / New Mexico Central (ftUS)
    3176, // NAD83(2011) / New Mexico East
    3177, // NAD83(2011) / New Mexico East (ftUS)
    3178, // NAD83(2011) / New Mexico West
    3179, // NAD83(2011) / New Mexico West (ftUS)
    3180, // NAD83(2011) / New York Central
    3181, // NAD83(2011) / New York Central (ftUS)
    3182, // NAD83(2011) / New York East
    3183, // NAD83(2011) / New York East (ftUS)
    3184, // NAD83(2011) / New York Long Island
    3185, // NAD83(2011) / New York Long Island (ftUS)
    3186, // NAD83(2011) / New York West
    3187, // NAD83(2011) / New York West (ftUS)
    3188, // NAD83(2011) / North Carolina
    3189, // NAD83(2011) / North Carolina (ftUS)
    3190, // NAD83(2011) / North Dakota North
    3191, // NAD83(2011) / North Dakota North (ft)
    3192, // NAD83(2011) / North Dakota South
    3193, // NAD83(2011) / North Dakota South (ft)
    3194, // NAD83(2011) / Ohio North
    3195, // NAD83(2011) / Ohio North (ftUS)
    3196, // NAD83(2011) / Ohio South
    3197, // NAD83(2011) / Ohio South (ftUS)
    3198, // NAD83(2011) / Oklahoma North
    3199, // NAD83(2011) / Oklahoma North (ftUS)
    3200, // NAD83(2011) / Oklahoma South
    3201, // NAD83(2011) / Oklahoma South (ftUS)
    3330, // NAD83(2011) / Oregon Baker zone (ft)
    3329, // NAD83(2011) / Oregon Baker zone (m)
    3342, // NAD83(2011) / Oregon Bend-Burns zone (ft)
    3341, // NAD83(2011) / Oregon Bend-Burns zone (m)
    3334, // NAD83(2011) / Oregon Bend-Klamath Falls zone (ft)
    3333, // NAD83(2011) / Oregon Bend-Klamath Falls zone (m)
    3338, // NAD83(2011) / Oregon Bend-Redmond-Prineville zone (ft)
    3337, // NAD83(2011) / Oregon Bend-Redmond-Prineville zone (m)
    3988, // NAD83(2011) / Oregon Burns-Harper zone (ft)
    3987, // NAD83(2011) / Oregon Burns-Harper zone (m)
    3990, // NAD83(2011) / Oregon Canyon City-Burns zone (ft)
    3989, // NAD83(2011) / Oregon Canyon City-Burns zone (m)
    3346, // NAD83(2011) / Oregon Canyonville-Grants Pass zone (ft)
    3345, // NAD83(2011) / Oregon Canyonville-Grants Pass zone (m)
    3386, // NAD83(2011) / Oregon Coast zone (ft)
    3385, // NAD83(2011) / Oregon Coast zone (m)
    3992, // NAD83(2011) / Oregon Coast Range North zone (ft)
    3991, // NAD83(2011) / Oregon Coast Range North zone (m)
    3350, // NAD83(2011) / Oregon Columbia River East zone (ft)
    3349, // NAD83(2011) / Oregon Columbia River East zone (m)
    3354, // NAD83(2011) / Oregon Columbia River West zone (ft)
    3353, // NAD83(2011) / Oregon Columbia River West zone (m)
    3358, // NAD83(2011) / Oregon Cottage Grove-Canyonville zone (ft)
    3357, // NAD83(2011) / Oregon Cottage Grove-Canyonville zone (m)
    3994, // NAD83(2011) / Oregon Dayville-Prairie City zone (ft)
    3993, // NAD83(2011) / Oregon Dayville-Prairie City zone (m)
    3996, // NAD83(2011) / Oregon Denio-Burns zone (ft)
    3995, // NAD83(2011) / Oregon Denio-Burns zone (m)
    3362, // NAD83(2011) / Oregon Dufur-Madras zone (ft)
    3361, // NAD83(2011) / Oregon Dufur-Madras zone (m)
    3366, // NAD83(2011) / Oregon Eugene zone (ft)
    3365, // NAD83(2011) / Oregon Eugene zone (m)
    3203, // NAD83(2011) / Oregon GIC Lambert (ft)
    3370, // NAD83(2011) / Oregon Grants Pass-Ashland zone (ft)
    3369, // NAD83(2011) / Oregon Grants Pass-Ashland zone (m)
    3374, // NAD83(2011) / Oregon Gresham-Warm Springs zone (ft)
    3373, // NAD83(2011) / Oregon Gresham-Warm Springs zone (m)
    3998, // NAD83(2011) / Oregon Halfway zone (ft)
    3997, // NAD83(2011) / Oregon Halfway zone (m)
    3378, // NAD83(2011) / Oregon La Grande zone (ft)
    3377, // NAD83(2011) / Oregon La Grande zone (m)
    3202, // NAD83(2011) / Oregon LCC (m)
    4000, // NAD83(2011) / Oregon Medford-Diamond Lake zone (ft)
    3999, // NAD83(2011) / Oregon Medford-Diamond Lake zone (m)
    4002, // NAD83(2011) / Oregon Mitchell zone (ft)
    4001, // NAD83(2011) / Oregon Mitchell zone (m)
    3204, // NAD83(2011) / Oregon North
    4004, // NAD83(2011) / Oregon North Central zone (ft)
    4003, // NAD83(2011) / Oregon North Central zone (m)
    3205, // NAD83(2011) / Oregon North (ft)
    4006, // NAD83(2011) / Oregon Ochoco Summit zone (ft)
    4005, // NAD83(2011) / Oregon Ochoco Summit zone (m)
    3382, // NAD83(2011) / Oregon Ontario zone (ft)
    3381, // NAD83(2011) / Oregon Ontario zone (m)
    4008, // NAD83(2011) / Oregon Owyhee zone (ft)
    4007, // NAD83(2011) / Oregon Owyhee zone (m)
    3390, // NAD83(2011) / Oregon Pendleton zone (ft)
    3394, // NAD83(2011) / Oregon Pendleton-La Grande zone (ft)
    3393, // NAD83(2011) / Oregon Pendleton-La Grande zone (m)
    3389, // NAD83(2011) / Oregon Pendleton zone (m)
    4010, // NAD83(2011) / Oregon Pilot Rock-Ukiah zone (ft)
    4009, // NAD83(2011) / Oregon Pilot Rock-Ukiah zone (m)
    3398, // NAD83(2011) / Oregon Portland zone (ft)
    3397, // NAD83(2011) / Oregon Portland zone (m)
    4012, // NAD83(2011) / Oregon Prairie City-Brogan zone (ft)
    4011, // NAD83(2011) / Oregon Prairie City-Brogan zone (m)
    4014, // NAD83(2011) / Oregon Riley-Lakeview zone (ft)
    4013, // NAD83(2011) / Oregon Riley-Lakeview zone (m)
    3402, // NAD83(2011) / Oregon Salem zone (ft)
    3401, // NAD83(2011) / Oregon Salem zone (m)
    3406, // NAD83(2011) / Oregon Santiam Pass zone (ft)
    3405, // NAD83(2011) / Oregon Santiam Pass zone (m)
    4016, // NAD83(2011) / Oregon Siskiyou Pass zone (ft)
    4015, // NAD83(2011) / Oregon Siskiyou Pass zone (m)
    3206, // NAD83(2011) / Oregon South
    3207, // NAD83(2011) / Oregon South (ft)
    4018, // NAD83(2011) / Oregon Ukiah-Fox zone (ft)
    4017, // NAD83(2011) / Oregon Ukiah-Fox zone (m)
    4020, // NAD83(2011) / Oregon Wallowa zone (ft)
    4019, // NAD83(2011) / Oregon Wallowa zone (m)
    4022, // NAD83(2011) / Oregon Warner Highway zone (ft)
    4021, // NAD83(2011) / Oregon Warner Highway zone (m)
    4024, // NAD83(2011) / Oregon Willamette Pass zone (ft)
    4023, // NAD83(2011) / Oregon Willamette Pass zone (m)
    3854, // NAD83(2011) / PCCS zone 1 (ft)
    3855, // NAD83(2011) / PCCS zone 2 (ft)
    3856, // NAD83(2011) / PCCS zone 3 (ft)
    3857, // NAD83(2011) / PCCS zone 4 (ft)
    3208, // NAD83(2011) / Pennsylvania North
    3209, // NAD83(2011) / Pennsylvania North (ftUS)
    3210, // NAD83(2011) / Pennsylvania South
    3211, // NAD83(2011) / Pennsylvania South (ftUS)
    3212, // NAD83(2011) / Puerto Rico and Virgin Is.
    3213, // NAD83(2011) / Rhode Island
    3214, // NAD83(2011) / Rhode Island (ftUS)
    3497, // NAD83(2011) / RMTCRS Billings (ft)
    3487, // NAD83(2011) / RMTCRS Billings (m)
    3490, // NAD83(2011) / RMTCRS Blackfeet (ft)
    3480, // NAD83(2011) / RMTCRS Blackfeet (m)
    3496, // NAD83(2011) / RMTCRS Bobcat (ft)
    3486, // NAD83(2011) / RMTCRS Bobcat (m)
    3495, // NAD83(2011) / RMTCRS Crow (ft)
    3485, // NAD83(2011) / RMTCRS Crow (m)
    3492, // NAD83(2011) / RMTCRS Fort Belknap (ft)
    3482, // NAD83(2011) / RMTCRS Fort Belknap (m)
    3493, // NAD83(2011) / RMTCRS Fort Peck Assiniboine (ft)
    3483, // NAD83(2011) / RMTCRS Fort Peck Assiniboine (m)
    3494, // NAD83(2011) / RMTCRS Fort Peck Sioux (ft)
    3484, // NAD83(2011) / RMTCRS Fort Peck Sioux (m)
    3491, // NAD83(2011) / RMTCRS Milk River (ft)
    3481, // NAD83(2011) / RMTCRS Milk River (m)
    3489, // NAD83(2011) / RMTCRS St Mary (ft)
    3479, // NAD83(2011) / RMTCRS St Mary (m)
    3498, // NAD83(2011) / RMTCRS Wind River (ftUS)
    3488, // NAD83(2011) / RMTCRS Wind River (m)
    3443, // NAD83(2011) / San Francisco CS13
    3499, // NAD83(2011) / San Francisco CS13
    3444, // NAD83(2011) / San Francisco CS13 (ftUS)
    3500, // NAD83(2011) / San Francisco CS13 (ftUS)
    3215, // NAD83(2011) / South Carolina
    3216, // NAD83(2011) / South Carolina (ft)
    3217, // NAD83(2011) / South Dakota North
    3218, // NAD83(2011) / South Dakota North (ftUS)
    3219, // NAD83(2011) / South Dakota South
    3220, // NAD83(2011) / South Dakota South (ftUS)
    3221, // NAD83(2011) / Tennessee
    3222, // NAD83(2011) / Tennessee (ftUS)
    3223, // NAD83(2011) / Texas Central
    3224, // NAD83(2011) / Texas Central (ftUS)
    3225, // NAD83(2011) / Texas Centric Albers Equal Area
    3226, // NAD83(2011) / Texas Centric Lambert Conformal
    3227, // NAD83(2011) / Texas North
    3229, // NAD83(2011) / Texas North Central
    3230, // NAD83(2011) / Texas North Central (ftUS)
    3228, // NAD83(2011) / Texas North (ftUS)
    3231, // NAD83(2011) / Texas South
    3233, // NAD83(2011) / Texas South Central
    3234, // NAD83(2011) / Texas South Central (ftUS)
    3232, // NAD83(2011) / Texas South (ftUS)
    3265, // NAD83(2011) / Utah Central
    3271, // NAD83(2011) / Utah Central (ftUS)
    3266, // NAD83(2011) / Utah North
    3272, // NAD83(2011) / Utah North (ftUS)
    3267, // NAD83(2011) / Utah South
    3273, // NAD83(2011) / Utah South (ftUS)
    3005, // NAD83(2011) / UTM zone 10N
    3006, // NAD83(2011) / UTM zone 11N
    3007, // NAD83(2011) / UTM zone 12N
    3008, // NAD83(2011) / UTM zone 13N
    3009, // NAD83(2011) / UTM zone 14N
    3010, // NAD83(2011) / UTM zone 15N
    3011, // NAD83(2011) / UTM zone 16N
    3012, // NAD83(2011) / UTM zone 17N
    3013, // NAD83(2011) / UTM zone 18N
    3014, // NAD83(2011) / UTM zone 19N
    2996, // NAD83(2011) / UTM zone 1N
    2997, // NAD83(2011) / UTM zone 2N
    2998, // NAD83(2011) / UTM zone 3N
    2999, // NAD83(2011) / UTM zone 4N
    2994, // NAD83(2011) / UTM zone 59N
    3000, // NAD83(2011) / UTM zone 5N
    2995, // NAD83(2011) / UTM zone 60N
    3001, // NAD83(2011) / UTM zone 6N
    3002, // NAD83(2011) / UTM zone 7N
    3003, // NAD83(2011) / UTM zone 8N
    3004, // NAD83(2011) / UTM zone 9N
    3235, // NAD83(2011) / Vermont
    3236, // NAD83(2011) / Vermont (ftUS)
    3237, // NAD83(2011) / Virginia Lambert
    3238, // NAD83(2011) / Virginia North
    3239, // NAD83(2011) / Virginia North (ftUS)
    3240, // NAD83(2011) / Virginia South
    3241, // NAD83(2011) / Virginia South (ftUS)
    3242, // NAD83(2011) / Washington North
    3243, // NAD83(2011) / Washington North (ftUS)
    3244, // NAD83(2011) / Washington South
    3245, // NAD83(2011) / Washington South (ftUS)
    3246, // NAD83(2011) / West Virginia North
    3247, // NAD83(2011) / West Virginia North (ftUS)
    3248, // NAD83(2011) / West Virginia South
    3249, // NAD83(2011) / West Virginia South (ftUS)
    3250, // NAD83(2011) / Wisconsin Central
    3412, // NAD83(2011) / Wisconsin Central
    3251, // NAD83(2011) / Wisconsin Central (ftUS)
    3252, // NAD83(2011) / Wisconsin North
    3253, // NAD83(2011) / Wisconsin North (ftUS)
    3254, // NAD83(2011) / Wisconsin South
    3255, // NAD83(2011) / Wisconsin South (ftUS)
    3256, // NAD83(2011) / Wisconsin Transverse Mercator
    3682, // NAD83(2011) / WISCRS Adams and Juneau (ftUS)
    3623, // NAD83(2011) / WISCRS Adams and Juneau (m)
    3683, // NAD83(2011) / WISCRS Ashland (ftUS)
    3624, // NAD83(2011) / WISCRS Ashland (m)
    3684, // NAD83(2011) / WISCRS Barron (ftUS)
    3625, // NAD83(2011) / WISCRS Barron (m)
    3685, // NAD83(2011) / WISCRS Bayfield (ftUS)
    3626, // NAD83(2011) / WISCRS Bayfield (m)
    3686, // NAD83(2011) / WISCRS Brown (ftUS)
    3627, // NAD83(2011) / WISCRS Brown (m)
    3687, // NAD83(2011) / WISCRS Buffalo (ftUS)
    3628, // NAD83(2011) / WISCRS Buffalo (m)
    3688, // NAD83(2011) / WISCRS Burnett (ftUS)
    3629, // NAD83(2011) / WISCRS Burnett (m)
    3689, // NAD83(2011) / WISCRS Calumet, Fond du Lac, Outagamie and Winnebago (ftUS)
    3630, // NAD83(2011) / WISCRS Calumet, Fond du Lac, Outagamie and Winnebago (m)
    3690, // NAD83(2011) / WISCRS Chippewa (ftUS)
    3631, // NAD83(2011) / WISCRS Chippewa (m)
    3691, // NAD83(2011) / WISCRS Clark (ftUS)
    3632, // NAD83(2011) / WISCRS Clark (m)
    3692, // NAD83(2011) / WISCRS Columbia (ftUS)
    3633, // NAD83(2011) / WISCRS Columbia (m)
    3693, // NAD83(2011) / WISCRS Crawford (ftUS)
    3634, // NAD83(2011) / WISCRS Crawford (m)
    3694, // NAD83(2011) / WISCRS Dane (ftUS)
    3635, // NAD83(2011) / WISCRS Dane (m)
    3695, // NAD83(2011) / WISCRS Dodge and Jefferson (ftUS)
    3636, // NAD83(2011) / WISCRS Dodge and Jefferson (m)
    3696, // NAD83(2011) / WISCRS Door (ftUS)
    3637, // NAD83(2011) / WISCRS Door (m)
    3697, // NAD83(2011) / WISCRS Douglas (ftUS)
    3638, // NAD83(2011) / WISCRS Douglas (m)
    3698, // NAD83(2011) / WISCRS Dunn (ftUS)
    3639, // NAD83(2011) / WISCRS Dunn (m)
    3699, // NAD83(2011) / WISCRS Eau Claire (ftUS)
    3640, // NAD83(2011) / WISCRS Eau Claire (m)
    3700, // NAD83(2011) / WISCRS Florence (ftUS)
    3641, // NAD83(2011) / WISCRS Florence (m)
    3701, // NAD83(2011) / WISCRS Forest (ftUS)
    3642, // NAD83(2011) / WISCRS Forest (m)
    3702, // NAD83(2011) / WISCRS Grant (ftUS)
    3643, // NAD83(2011) / WISCRS Grant (m)
    3703, // NAD83(2011) / WISCRS Green and Lafayette (ftUS)
    3644, // NAD83(2011) / WISCRS Green and Lafayette (m)
    3704, // NAD83(2011) / WISCRS Green Lake and Marquette (ftUS)
    3645, // NAD83(2011) / WISCRS Green Lake and Marquette (m)
    3705, // NAD83(2011) / WISCRS Iowa (ftUS)
    3646, // NAD83(2011) / WISCRS Iowa (m)
    3706, // NAD83(2011) / WISCRS Iron (ftUS)
    3647, // NAD83(2011) / WISCRS Iron (m)
    3707, // NAD83(2011) / WISCRS Jackson (ftUS)
    3648, // NAD83(2011) / WISCRS Jackson (m)
    3708, // NAD83(2011) / WISCRS Kenosha, Milwaukee, Ozaukee and Racine (ftUS)
    3649, // NAD83(2011) / WISCRS Kenosha, Milwaukee, Ozaukee and Racine (m)
    3709, // NAD83(2011) / WISCRS Kewaunee, Manitowoc and Sheboygan (ftUS)
    3650, // NAD83(2011) / WISCRS Kewaunee, Manitowoc and Sheboygan (m)
    3710, // NAD83(2011) / WISCRS La Crosse (ftUS)
    3651, // NAD83(2011) / WISCRS La Crosse (m)
    3711, // NAD83(2011) / WISCRS Langlade (ftUS)
    3652, // NAD83(2011) / WISCRS Langlade (m)
    3712, // NAD83(2011) / WISCRS Lincoln (ftUS)
    3653, // NAD83(2011) / WISCRS Lincoln (m)
    3713, // NAD83(2011) / WISCRS Marathon (ftUS)
    3654, // NAD83(2011) / WISCRS Marathon (m)
    3714, // NAD83(2011) / WISCRS Marinette (ftUS)
    3655, // NAD83(2011) / WISCRS Marinette (m)
    3715, // NAD83(2011) / WISCRS Menominee (ftUS)
    3656, // NAD83(2011) / WISCRS Menominee (m)
    3716, // NAD83(2011) / WISCRS Monroe (ftUS)
    3657, // NAD83(2011) / WISCRS Monroe (m)
    3717, // NAD83(2011) / WISCRS Oconto (ftUS)
    3658, // NAD83(2011) / WISCRS Oconto (m)
    3718, // NAD83(2011) / WISCRS Oneida (ftUS)
    3659, // NAD83(2011) / WISCRS Oneida (m)
    3719, // NAD83(2011) / WISCRS Pepin and Pierce (ftUS)
    3660, // NAD83(2011) / WISCRS Pepin and Pierce (m)
    3720, // NAD83(2011) / WISCRS Polk (ftUS)
    3661, // NAD83(2011) / WISCRS Polk (m)
    3721, // NAD83(2011) / WISCRS Portage (ftUS)
    3662, // NAD83(2011) / WISCRS Portage (m)
    3722, // NAD83(2011) / WISCRS Price (ftUS)
    3663, // NAD83(2011) / WISCRS Price (m)
    3723, // NAD83(2011) / WISCRS Richland (ftUS)
    3664, // NAD83(2011) / WISCRS Richland (m)
    3724, // NAD83(2011) / WISCRS Rock (ftUS)
    3665, // NAD83(2011) / WISCRS Rock (m)
    3725, // NAD83(2011) / WISCRS Rusk (ftUS)
    3666, // NAD83(2011) / WISCRS Rusk (m)
    3726, // NAD83(2011) / WISCRS Sauk (ftUS)
    3667, // NAD83(2011) / WISCRS Sauk (m)
    3727, // NAD83(2011) / WISCRS Sawyer (ftUS)
    3668, // NAD83(2011) / WISCRS Sawyer (m)
    3728, // NAD83(2011) / WISCRS Shawano (ftUS)
    3669, // NAD83(2011) / WISCRS Shawano (m)
    3729, // NAD83(2011) / WISCRS St. Croix (ftUS)
    3670, // NAD83(2011) / WISCRS St. Croix (m)
    3730, // NAD83(2011) / WISCRS Taylor (ftUS)
    3671, // NAD83(2011) / WISCRS Taylor (m)
    3731, // NAD83(2011) / WISCRS Trempealeau (ftUS)
    3672, // NAD83(2011) / WISCRS Trempealeau (m)
    3732, // NAD83(2011) / WISCRS Vernon (ftUS)
    3673, // NAD83(2011) / WISCRS Vernon (m)
    3733, // NAD83(2011) / WISCRS Vilas (ftUS)
    3674, // NAD83(2011) / WISCRS Vilas (m)
    3734, // NAD83(2011) / WISCRS Walworth (ftUS)
    3675, // NAD83(2011) / WISCRS Walworth (m)
    3735, // NAD83(2011) / WISCRS Washburn (ftUS)
    3676, // NAD83(2011) / WISCRS Washburn (m)
    3736, // NAD83(2011) / WISCRS Washington (ftUS)
    3677, // NAD83(2011) / WISCRS Washington (m)
    3737, // NAD83(2011) / WISCRS Waukesha (ftUS)
    3678, // NAD83(2011) / WISCRS Waukesha (m)
    3738, // NAD83(2011) / WISCRS Waupaca (ftUS)
    3679, // NAD83(2011) / WISCRS Waupaca (m)
    3739, // NAD83(2011) / WISCRS Waushara (ftUS)
    3680, // NAD83(2011) / WISCRS Waushara (m)
    3740, // NAD83(2011) / WISCRS Wood (ftUS)
    3681, // NAD83(2011) / WISCRS Wood (m)
    3257, // NAD83(2011) / Wyoming East
    3259, // NAD83(2011) / Wyoming East Central
    3260, // NAD83(2011) / Wyoming East Central (ftUS)
    3258, // NAD83(2011) / Wyoming East (ftUS)
    3261, // NAD83(2011) / Wyoming West
    3263, // NAD83(2011) / Wyoming West Central
    3264, // NAD83(2011) / Wyoming West Central (ftUS)
    3262, // NAD83(2011) / Wyoming West (ftUS)
    5196, // NAD83 / Alabama East
    5197, // NAD83 / Alabama West
    5198, // NAD83 / Alaska zone 1
    5207, // NAD83 / Alaska zone 10
    5199, // NAD83 / Alaska zone 2
    5200, // NAD83 / Alaska zone 3
    5201, // NAD83 / Alaska zone 4
    5202, // NAD83 / Alaska zone 5
    5203, // NAD83 / Alaska zone 6
    5204, // NAD83 / Alaska zone 7
    5205, // NAD83 / Alaska zone 8
    5206, // NAD83 / Alaska zone 9
    1329, // NAD83 / Alaska Albers
    1391, // NAD83 / Alberta 10-TM (Forest)
    1392, // NAD83 / Alberta 10-TM (Resource)
    1766, // NAD83 / Alberta 3TM ref merid 111 W
    1767, // NAD83 / Alberta 3TM ref merid 114 W
    1768, // NAD83 / Alberta 3TM ref merid 117 W
    1769, // NAD83 / Alberta 3TM ref merid 120 W
    1791, // NAD83 / Alberta 3TM ref merid 120 W
    5215, // NAD83 / Arizona Central
    216, // NAD83 / Arizona Central (ft)
    5214, // NAD83 / Arizona East
    215, // NAD83 / Arizona East (ft)
    5216, // NAD83 / Arizona West
    217, // NAD83 / Arizona West (ft)
    5217, // NAD83 / Arkansas North
    1424, // NAD83 / Arkansas North (ftUS)
    5218, // NAD83 / Arkansas South
    1425, // NAD83 / Arkansas South (ftUS)
    996, // NAD83 / BC Albers
    2192, // NAD83 / BLM 10N (ftUS)
    2193, // NAD83 / BLM 11N (ftUS)
    2194, // NAD83 / BLM 12N (ftUS)
    2195, // NAD83 / BLM 13N (ftUS)
    5727, // NAD83 / BLM 14N (ftUS)
    5728, // NAD83 / BLM 15N (ftUS)
    5729, // NAD83 / BLM 16N (ftUS)
    5730, // NAD83 / BLM 17N (ftUS)
    2198, // NAD83 / BLM 18N (ftUS)
    2199, // NAD83 / BLM 19N (ftUS)
    2183, // NAD83 / BLM 1N (ftUS)
    2184, // NAD83 / BLM 2N (ftUS)
    2185, // NAD83 / BLM 3N (ftUS)
    2186, // NAD83 / BLM 4N (ftUS)
    2049, // NAD83 / BLM 59N (ftUS)
    2187, // NAD83 / BLM 5N (ftUS)
    2182, // NAD83 / BLM 60N (ftUS)
    2188, // NAD83 / BLM 6N (ftUS)
    2189, // NAD83 / BLM 7N (ftUS)
    2190, // NAD83 / BLM 8N (ftUS)
    2191, // NAD83 / BLM 9N (ftUS)
    5208, // NAD83 / California zone 1
    218, // NAD83 / California zone 1 (ftUS)
    5209, // NAD83 / California zone 2
    219, // NAD83 / California zone 2 (ftUS)
    5210, // NAD83 / California zone 3
    220, // NAD83 / California zone 3 (ftUS)
    5211, // NAD83 / California zone 4
    221, // NAD83 / California zone 4 (ftUS)
    5212, // NAD83 / California zone 5
    222, // NAD83 / California zone 5 (ftUS)
    5213, // NAD83 / California zone 6
    223, // NAD83 / California zone 6 (ftUS)
    1301, // NAD83 / California Albers
    1870, // NAD83 / Canada Atlas Lambert
    5220, // NAD83 / Colorado Central
    225, // NAD83 / Colorado Central (ftUS)
    5219, // NAD83 / Colorado North
    224, // NAD83 / Colorado North (ftUS)
    5221, // NAD83 / Colorado South
    226, // NAD83 / Colorado South (ftUS)
    5222, // NAD83 / Connecticut
    227, // NAD83 / Connecticut (ftUS)
    2570, // NAD83 / Conus Albers
    3326, // NAD83(CORS96)
    3328, // NAD83(CORS96) / Oregon Baker zone (ft)
    3327, // NAD83(CORS96) / Oregon Baker zone (m)
    3340, // NAD83(CORS96) / Oregon Bend-Burns zone (ft)
    3339, // NAD83(CORS96) / Oregon Bend-Burns zone (m)
    3332, // NAD83(CORS96) / Oregon Bend-Klamath Falls zone (ft)
    3331, // NAD83(CORS96) / Oregon Bend-Klamath Falls zone (m)
    3336, // NAD83(CORS96) / Oregon Bend-Redmond-Prineville zone (ft)
    3335, // NAD83(CORS96) / Oregon Bend-Redmond-Prineville zone (m)
    3344, // NAD83(CORS96) / Oregon Canyonville-Grants Pass zone (ft)
    3343, // NAD83(CORS96) / Oregon Canyonville-Grants Pass zone (m)
    3384, // NAD83(CORS96) / Oregon Coast zone (ft)
    3383, // NAD83(CORS96) / Oregon Coast zone (m)
    3348, // NAD83(CORS96) / Oregon Columbia River East zone (ft)
    3347, // NAD83(CORS96) / Oregon Columbia River East zone (m)
    3352, // NAD83(CORS96) / Oregon Columbia River West zone (ft)
    3351, // NAD83(CORS96) / Oregon Columbia River West zone (m)
    3356, // NAD83(CORS96) / Oregon Cottage Grove-Canyonville zone (ft)
    3355, // NAD83(CORS96) / Oregon Cottage Grove-Canyonville zone (m)
    3360, // NAD83(CORS96) / Oregon Dufur-Madras zone (ft)
    3359, // NAD83(CORS96) / Oregon Dufur-Madras zone (m)
    3364, // NAD83(CORS96) / Oregon Eugene zone (ft)
    3363, // NAD83(CORS96) / Oregon Eugene zone (m)
    3408, // NAD83(CORS96) / Oregon GIC Lambert (ft)
    3368, // NAD83(CORS96) / Oregon Grants Pass-Ashland zone (ft)
    3367, // NAD83(CORS96) / Oregon Grants Pass-Ashland zone (m)
    3372, // NAD83(CORS96) / Oregon Gresham-Warm Springs zone (ft)
    3371, // NAD83(CORS96) / Oregon Gresham-Warm Springs zone (m)
    3376, // NAD83(CORS96) / Oregon La Grande zone (ft)
    3375, // NAD83(CORS96) / Oregon La Grande zone (m)
    3407, // NAD83(CORS96) / Oregon LCC (m)
    3417, // NAD83(CORS96) / Oregon North
    3418, // NAD83(CORS96) / Oregon North (ft)
    3380, // NAD83(CORS96) / Oregon Ontario zone (ft)
    3379, // NAD83(CORS96) / Oregon Ontario zone (m)
    3388, // NAD83(CORS96) / Oregon Pendleton zone (ft)
    3392, // NAD83(CORS96) / Oregon Pendleton-La Grande zone (ft)
    3391, // NAD83(CORS96) / Oregon Pendleton-La Grande zone (m)
    3387, // NAD83(CORS96) / Oregon Pendleton zone (m)
    3396, // NAD83(CORS96) / Oregon Portland zone (ft)
    3395, // NAD83(CORS96) / Oregon Portland zone (m)
    3400, // NAD83(CORS96) / Oregon Salem zone (ft)
    3399, // NAD83(CORS96) / Oregon Salem zone (m)
    3404, // NAD83(CORS96) / Oregon Santiam Pass zone (ft)
    3403, // NAD83(CORS96) / Oregon Santiam Pass zone (m)
    3419, // NAD83(CORS96) / Oregon South
    3420, // NAD83(CORS96) / Oregon South (ft)
    2987, // NAD83(CORS96) / Puerto Rico and Virgin Is.
    2324, // NAD83(CSRS)
    3980, // NAD83(CSRS96)
    1975, // NAD83(CSRS98)
    147, // NAD83(CSRS98) / MTM zone 10
    140, // NAD83(CSRS98) / MTM zone 3
    141, // NAD83(CSRS98) / MTM zone 4
    142, // NAD83(CSRS98) / MTM zone 5
    143, // NAD83(CSRS98) / MTM zone 6
    144, // NAD83(CSRS98) / MTM zone 7
    145, // NAD83(CSRS98) / MTM zone 8
    146, // NAD83(CSRS98) / MTM zone 9
    36, // NAD83(CSRS98) / New Brunswick Stereo
    284, // NAD83(CSRS98) / Prince Edward Isl. Stereographic (NAD83)
    285, // NAD83(CSRS98) / Prince Edward Isl. Stereographic (NAD83)
    139, // NAD83(CSRS98) / SCoPQ zone 2
    153, // NAD83(CSRS98) / UTM zone 11N
    152, // NAD83(CSRS98) / UTM zone 12N
    151, // NAD83(CSRS98) / UTM zone 13N
    150, // NAD83(CSRS98) / UTM zone 17N
    149, // NAD83(CSRS98) / UTM zone 18N
    37, // NAD83(CSRS98) / UTM zone 19N
    38, // NAD83(CSRS98) / UTM zone 20N
    148, // NAD83(CSRS98) / UTM zone 21N
    1393, // NAD83(CSRS) / Alberta 10-TM (Forest)
    1394, // NAD83(CSRS) / Alberta 10-TM (Resource)
    1770, // NAD83(CSRS) / Alberta 3TM ref merid 111 W
    1771, // NAD83(CSRS) / Alberta 3TM ref merid 114 W
    1772, // NAD83(CSRS) / Alberta 3TM ref merid 117 W
    1773, // NAD83(CSRS) / Alberta 3TM ref merid 120 W
    1792, // NAD83(CSRS) / Alberta 3TM ref merid 120 W
    1144, // NAD83(CSRS) / BC Albers
    1871, // NAD83(CSRS) / Canada Atlas Lambert
    2916, // NAD83(CSRS) / EPSG Arctic zone 1-23
    2917, // NAD83(CSRS) / EPSG Arctic zone 2-14
    2918, // NAD83(CSRS) / EPSG Arctic zone 2-16
    2919, // NAD83(CSRS) / EPSG Arctic zone 3-25
    2920, // NAD83(CSRS) / EPSG Arctic zone 3-27
    2921, // NAD83(CSRS) / EPSG Arctic zone 3-29
    2922, // NAD83(CSRS) / EPSG Arctic zone 4-14
    2923, // NAD83(CSRS) / EPSG Arctic zone 4-16
    2924, // NAD83(CSRS) / EPSG Arctic zone 4-18
    2925, // NAD83(CSRS) / EPSG Arctic zone 5-33
    2926, // NAD83(CSRS) / EPSG Arctic zone 5-35
    2927, // NAD83(CSRS) / EPSG Arctic zone 5-37
    2928, // NAD83(CSRS) / EPSG Arctic zone 5-39
    2929, // NAD83(CSRS) / EPSG Arctic zone 6-18
    2930, // NAD83(CSRS) / EPSG Arctic zone 6-20
    2931, // NAD83(CSRS) / EPSG Arctic zone 6-22
    2932, // NAD83(CSRS) / EPSG Arctic zone 6-24
    5171, // NAD83(CSRS) / MTM zone 1
    944, // NAD83(CSRS) / MTM zone 10
    5164, // NAD83(CSRS) / MTM zone 11
    5165, // NAD83(CSRS) / MTM zone 12
    5166, // NAD83(CSRS) / MTM zone 13
    5167, // NAD83(CSRS) / MTM zone 14
    5168, // NAD83(CSRS) / MTM zone 15
    5169, // NAD83(CSRS) / MTM zone 16
    5170, // NAD83(CSRS) / MTM zone 17
    5172, // NAD83(CSRS) / MTM zone 2
    937, // NAD83(CSRS) / MTM zone 3
    938, // NAD83(CSRS) / MTM zone 4
    939, // NAD83(CSRS) / MTM zone 5
    940, // NAD83(CSRS) / MTM zone 6
    941, // NAD83(CSRS) / MTM zone 7
    942, // NAD83(CSRS) / MTM zone 8
    943, // NAD83(CSRS) / MTM zone 9
    1789, // NAD83(CSRS) / MTQ Lambert
    945, // NAD83(CSRS) / New Brunswick Stereographic
    1572, // NAD83(CSRS) / NWT Lambert
    1153, // NAD83(CSRS) / Ontario MNR Lambert
    946, // NAD83(CSRS) / Prince Edward Isl. Stereographic (NAD83)
    3270, // NAD83(CSRS) / Quebec Albers
    3268, // NAD83(CSRS) / Quebec Lambert
    936, // NAD83(CSRS) / SCoPQ zone 2
    1339, // NAD83(CSRS) / Statistics Canada Lambert
    2673, // NAD83(CSRS) / Teranet Ontario Lambert
    1148, // NAD83(CSRS) / UTM zone 10N
    947, // NAD83(CSRS) / UTM zone 11N
    948, // NAD83(CSRS) / UTM zone 12N
    949, // NAD83(CSRS) / UTM zone 13N
    1149, // NAD83(CSRS) / UTM zone 14N
    1150, // NAD83(CSRS) / UTM zone 15N
    1151, // NAD83(CSRS) / UTM zone 16N
    950, // NAD83(CSRS) / UTM zone 17N
    951, // NAD83(CSRS) / UTM zone 18N
    952, // NAD83(CSRS) / UTM zone 19N
    953, // NAD83(CSRS) / UTM zone 20N
    954, // NAD83(CSRS) / UTM zone 21N
    1752, // NAD83(CSRS) / UTM zone 22N
    4259, // NAD83(CSRS) / UTM zone 23N
    4261, // NAD83(CSRS) / UTM zone 24N
    1145, // NAD83(CSRS) / UTM zone 7N
    1146, // NAD83(CSRS) / UTM zone 8N
    1147, // NAD83(CSRS) / UTM zone 9N
    3981, // NAD83(CSRS)v2
    4736, // NAD83(CSRS)v2 / Alberta 3TM ref merid 111 W
    4737, // NAD83(CSRS)v2 / Alberta 3TM ref merid 114 W
    4738, // NAD83(CSRS)v2 / Alberta 3TM ref merid 117 W
    4739, // NAD83(CSRS)v2 / Alberta 3TM ref merid 120 W
    4727, // NAD83(CSRS)v2 / NB Stereographic
    4726, // NAD83(CSRS)v2 / PEI Stereographic
    4735, // NAD83(CSRS)v2 / SCoPQ zone 10
    4728, // NAD83(CSRS)v2 / SCoPQ zone 3
    4729, // NAD83(CSRS)v2 / SCoPQ zone 4
    4730, // NAD83(CSRS)v2 / SCoPQ zone 5
    4731, // NAD83(CSRS)v2 / SCoPQ zone 6
    4732, // NAD83(CSRS)v2 / SCoPQ zone 7
    4733, // NAD83(CSRS)v2 / SCoPQ zone 8
    4734, // NAD83(CSRS)v2 / SCoPQ zone 9
    4710, // NAD83(CSRS)v2 / UTM zone 10N
    4711, // NAD83(CSRS)v2 / UTM zone 11N
    4712, // NAD83(CSRS)v2 / UTM zone 12N
    4713, // NAD83(CSRS)v2 / UTM zone 13N
    4714, // NAD83(CSRS)v2 / UTM zone 14N
    4715, // NAD83(CSRS)v2 / UTM zone 15N
    4716, // NAD83(CSRS)v2 / UTM zone 16N
    4717, // NAD83(CSRS)v2 / UTM zone 17N
    4718, // NAD83(CSRS)v2 / UTM zone 18N
    4719, // NAD83(CSRS)v2 / UTM zone 19N
    4720, // NAD83(CSRS)v2 / UTM zone 20N
    4721, // NAD83(CSRS)v2 / UTM zone 21N
    4722, // NAD83(CSRS)v2 / UTM zone 22N
    4707, // NAD83(CSRS)v2 / UTM zone 7N
    4708, // NAD83(CSRS)v2 / UTM zone 8N
    4709, // NAD83(CSRS)v2 / UTM zone 9N
    3982, // NAD83(CSRS)v3
    4772, // NAD83(CSRS)v3 / MTM zone 10
    4773, // NAD83(CSRS)v3 / MTM zone 11
    4774, // NAD83(CSRS)v3 / MTM zone 12
    4775, // NAD83(CSRS)v3 / MTM zone 13
    4776, // NAD83(CSRS)v3 / MTM zone 14
    4777, // NAD83(CSRS)v3 / MTM zone 15
    4778, // NAD83(CSRS)v3 / MTM zone 16
    4779, // NAD83(CSRS)v3 / MTM zone 17
    4770, // NAD83(CSRS)v3 / MTM zone 8
    4771, // NAD83(CSRS)v3 / MTM zone 9
    4769, // NAD83(CSRS)v3 / MTM NS 1997 zone 4
    4768, // NAD83(CSRS)v3 / MTM NS 1997 zone 5
    4754, // NAD83(CSRS)v3 / UTM zone 10N
    4755, // NAD83(CSRS)v3 / UTM zone 11N
    4756, // NAD83(CSRS)v3 / UTM zone 12N
    4757, // NAD83(CSRS)v3 / UTM zone 13N
    4758, // NAD83(CSRS)v3 / UTM zone 14N
    4759, // NAD83(CSRS)v3 / UTM zone 15N
    4760, // NAD83(CSRS)v3 / UTM zone 16N
    4761, // NAD83(CSRS)v3 / UTM zone 17N
    4762, // NAD83(CSRS)v3 / UTM zone 18N
    4763, // NAD83(CSRS)v3 / UTM zone 19N
    4764, // NAD83(CSRS)v3 / UTM zone 20N
    4765, // NAD83(CSRS)v3 / UTM zone 21N
    4766, // NAD83(CSRS)v3 / UTM zone 22N
    4751, // NAD83(CSRS)v3 / UTM zone 7N
    4752, // NAD83(CSRS)v3 / UTM zone 8N
    4753, // NAD83(CSRS)v3 / UTM zone 9N
    3983, // NAD83(CSRS)v4
    4798, // NAD83(CSRS)v4 / Alberta 3TM ref merid 111 W
    4799, // NAD83(CSRS)v4 / Alberta 3TM ref merid 114 W
    4800, // NAD83(CSRS)v4 / Alberta 3TM ref merid 117 W
    4801, // NAD83(CSRS)v4 / Alberta 3TM ref merid 120 W
    4785, // NAD83(CSRS)v4 / UTM zone 10N
    4786, // NAD83(CSRS)v4 / UTM zone 11N
    4787, // NAD83(CSRS)v4 / UTM zone 12N
    4788, // NAD83(CSRS)v4 / UTM zone 13N
    4789, // NAD83(CSRS)v4 / UTM zone 14N
    4790, // NAD83(CSRS)v4 / UTM zone 15N
    4791, // NAD83(CSRS)v4 / UTM zone 16N
    4792, // NAD83(CSRS)v4 / UTM zone 17N
    4793, // NAD83(CSRS)v4 / UTM zone 18N
    4794, // NAD83(CSRS)v4 / UTM zone 19N
    4795, // NAD83(CSRS)v4 / UTM zone 20N
    4796, // NAD83(CSRS)v4 / UTM zone 21N
    4797, // NAD83(CSRS)v4 / UTM zone 22N
    4782, // NAD83(CSRS)v4 / UTM zone 7N
    4783, // NAD83(CSRS)v4 / UTM zone 8N
    4784, // NAD83(CSRS)v4 / UTM zone 9N
    3984, // NAD83(CSRS)v5
    3985, // NAD83(CSRS)v6
    4824, // NAD83(CSRS)v6 / MTM zone 1
    4832, // NAD83(CSRS)v6 / MTM zone 10
    4833, // NAD83(CSRS)v6 / MTM zone 11
    4834, // NAD83(CSRS)v6 / MTM zone 12
    4835, // NAD83(CSRS)v6 / MTM zone 13
    4836, // NAD83(CSRS)v6 / MTM zone 14
    4837, // NAD83(CSRS)v6 / MTM zone 15
    4838, // NAD83(CSRS)v6 / MTM zone 16
    4839, // NAD83(CSRS)v6 / MTM zone 17
    4825, // NAD83(CSRS)v6 / MTM zone 2
    4826, // NAD83(CSRS)v6 / MTM zone 3
    4827, // NAD83(CSRS)v6 / MTM zone 4
    4828, // NAD83(CSRS)v6 / MTM zone 5
    4829, // NAD83(CSRS)v6 / MTM zone 6
    4830, // NAD83(CSRS)v6 / MTM zone 8
    4831, // NAD83(CSRS)v6 / MTM zone 9
    3858, // NAD83(CSRS)v6 / MTM NS 2010 zone 4
    3859, // NAD83(CSRS)v6 / MTM NS 2010 zone 5
    4823, // NAD83(CSRS)v6 / PEI Stereographic
    4810, // NAD83(CSRS)v6 / UTM zone 10N
    4811, // NAD83(CSRS)v6 / UTM zone 11N
    4812, // NAD83(CSRS)v6 / UTM zone 12N
    4813, // NAD83(CSRS)v6 / UTM zone 13N
    4814, // NAD83(CSRS)v6 / UTM zone 14N
    4815, // NAD83(CSRS)v6 / UTM zone 15N
    4816, // NAD83(CSRS)v6 / UTM zone 16N
    4817, // NAD83(CSRS)v6 / UTM zone 17N
    4818, // NAD83(CSRS)v6 / UTM zone 18N
    4819, // NAD83(CSRS)v6 / UTM zone 19N
    4820, // NAD83(CSRS)v6 / UTM zone 20N
    4821, // NAD83(CSRS)v6 / UTM zone 21N
    4822, // NAD83(CSRS)v6 / UTM zone 22N
    4807, // NAD83(CSRS)v6 / UTM zone 7N
    4808, // NAD83(CSRS)v6 / UTM zone 8N
    4809, // NAD83(CSRS)v6 / UTM zone 9N
    3986, // NAD83(CSRS)v7
    4858, // NAD83(CSRS)v7 / Alberta 3TM ref merid 111 W
    4859, // NAD83(CSRS)v7 / Alberta 3TM ref merid 114 W
    4860, // NAD83(CSRS)v7 / Alberta 3TM ref merid 117 W
    4861, // NAD83(CSRS)v7 / Alberta 3TM ref merid 120 W
    4857, // NAD83(CSRS)v7 / PEI Stereographic
    4844, // NAD83(CSRS)v7 / UTM zone 10N
    4845, // NAD83(CSRS)v7 / UTM zone 11N
    4846, // NAD83(CSRS)v7 / UTM zone 12N
    4847, // NAD83(CSRS)v7 / UTM zone 13N
    4848, // NAD83(CSRS)v7 / UTM zone 14N
    4849, // NAD83(CSRS)v7 / UTM zone 15N
    4850, // NAD83(CSRS)v7 / UTM zone 16N
    4851, // NAD83(CSRS)v7 / UTM zone 17N
    4852, // NAD83(CSRS)v7 / UTM zone 18N
    4853, // NAD83(CSRS)v7 / UTM zone 19N
    4854, // NAD83(CSRS)v7 / UTM zone 20N
    4855, // NAD83(CSRS)v7 / UTM zone 21N
    4856, // NAD83(CSRS)v7 / UTM zone 22N
    4841, // NAD83(CSRS)v7 / UTM zone 7N
    4842, // NAD83(CSRS)v7 / UTM zone 8N
    4843, // NAD83(CSRS)v7 / UTM zone 9N
    1570, // NAD83(CSRS) / Yukon Albers
    5223, // NAD83 / Delaware
    228, // NAD83 / Delaware (ftUS)
    4043, // NAD83(FBN)
    4088, // NAD83(FBN)
    5224, // NAD83 / Florida East
    229, // NAD83 / Florida East (ftUS)
    1077, // NAD83 / Florida GDL Albers
    5226, // NAD83 / Florida North
    231, // NAD83 / Florida North (ftUS)
    5225, // NAD83 / Florida West
    230, // NAD83 / Florida West (ftUS)
    5232, // NAD83 / Georgia East
    232, // NAD83 / Georgia East (ftUS)
    5233, // NAD83 / Georgia West
    233, // NAD83 / Georgia West (ftUS)
    1165, // NAD83 / Great Lakes Albers
    1166, // NAD83 / Great Lakes and St Lawrence Albers
    1987, // NAD83(HARN)
    751, // NAD83(HARN) / Alabama East
    752, // NAD83(HARN) / Alabama West
    754, // NAD83(HARN) / Arizona Central
    860, // NAD83(HARN) / Arizona Central (ft)
    753, // NAD83(HARN) / Arizona East
    859, // NAD83(HARN) / Arizona East (ft)
    755, // NAD83(HARN) / Arizona West
    861, // NAD83(HARN) / Arizona West (ft)
    756, // NAD83(HARN) / Arkansas North
    1432, // NAD83(HARN) / Arkansas North (ftUS)
    757, // NAD83(HARN) / Arkansas South
    1433, // NAD83(HARN) / Arkansas South (ftUS)
    758, // NAD83(HARN) / California zone 1
    862, // NAD83(HARN) / California zone 1 (ftUS)
    759, // NAD83(HARN) / California zone 2
    863, // NAD83(HARN) / California zone 2 (ftUS)
    760, // NAD83(HARN) / California zone 3
    864, // NAD83(HARN) / California zone 3 (ftUS)
    761, // NAD83(HARN) / California zone 4
    865, // NAD83(HARN) / California zone 4 (ftUS)
    762, // NAD83(HARN) / California zone 5
    866, // NAD83(HARN) / California zone 5 (ftUS)
    763, // NAD83(HARN) / California zone 6
    867, // NAD83(HARN) / California zone 6 (ftUS)
    1302, // NAD83(HARN) / California Albers
    765, // NAD83(HARN) / Colorado Central
    869, // NAD83(HARN) / Colorado Central (ftUS)
    764, // NAD83(HARN) / Colorado North
    868, // NAD83(HARN) / Colorado North (ftUS)
    766, // NAD83(HARN) / Colorado South
    870, // NAD83(HARN) / Colorado South (ftUS)
    767, // NAD83(HARN) / Connecticut
    871, // NAD83(HARN) / Connecticut (ftUS)
    2571, // NAD83(HARN) / Conus Albers
    4066, // NAD83(HARN Corrected)
    768, // NAD83(HARN) / Delaware
    872, // NAD83(HARN) / Delaware (ftUS)
    769, // NAD83(HARN) / Florida East
    873, // NAD83(HARN) / Florida East (ftUS)
    1078, // NAD83(HARN) / Florida GDL Albers
    771, // NAD83(HARN) / Florida North
    875, // NAD83(HARN) / Florida North (ftUS)
    770, // NAD83(HARN) / Florida West
    874, // NAD83(HARN) / Florida West (ftUS)
    772, // NAD83(HARN) / Georgia East
    876, // NAD83(HARN) / Georgia East (ftUS)
    773, // NAD83(HARN) / Georgia West
    877, // NAD83(HARN) / Georgia West (ftUS)
    2177, // NAD83(HARN) / Guam Map Grid
    774, // NAD83(HARN) / Hawaii zone 1
    775, // NAD83(HARN) / Hawaii zone 2
    776, // NAD83(HARN) / Hawaii zone 3
    1751, // NAD83(HARN) / Hawaii zone 3 (ftUS)
    777, // NAD83(HARN) / Hawaii zone 4
    778, // NAD83(HARN) / Hawaii zone 5
    780, // NAD83(HARN) / Idaho Central
    879, // NAD83(HARN) / Idaho Central (ftUS)
    779, // NAD83(HARN) / Idaho East
    878, // NAD83(HARN) / Idaho East (ftUS)
    781, // NAD83(HARN) / Idaho West
    880, // NAD83(HARN) / Idaho West (ftUS)
    782, // NAD83(HARN) / Illinois East
    1434, // NAD83(HARN) / Illinois East (ftUS)
    783, // NAD83(HARN) / Illinois West
    1435, // NAD83(HARN) / Illinois West (ftUS)
    784, // NAD83(HARN) / Indiana East
    881, // NAD83(HARN) / Indiana East (ftUS)
    959, // NAD83(HARN) / Indiana East (ftUS)
    785, // NAD83(HARN) / Indiana West
    882, // NAD83(HARN) / Indiana West (ftUS)
    960, // NAD83(HARN) / Indiana West (ftUS)
    786, // NAD83(HARN) / Iowa North
    1416, // NAD83(HARN) / Iowa North (ftUS)
    787, // NAD83(HARN) / Iowa South
    1417, // NAD83(HARN) / Iowa South (ftUS)
    788, // NAD83(HARN) / Kansas North
    1418, // NAD83(HARN) / Kansas North (ftUS)
    789, // NAD83(HARN) / Kansas South
    1419, // NAD83(HARN) / Kansas South (ftUS)
    790, // NAD83(HARN) / Kentucky North
    883, // NAD83(HARN) / Kentucky North (ftUS)
    1081, // NAD83(HARN) / Kentucky Single Zone
    1082, // NAD83(HARN) / Kentucky Single Zone (ftUS)
    791, // NAD83(HARN) / Kentucky South
    884, // NAD83(HARN) / Kentucky South (ftUS)
    792, // NAD83(HARN) / Louisiana North
    1447, // NAD83(HARN) / Louisiana North (ftUS)
    793, // NAD83(HARN) / Louisiana South
    1448, // NAD83(HARN) / Louisiana South (ftUS)
    1067, // NAD83(HARN) / Maine CS2000 Central
    1455, // NAD83(HARN) / Maine CS2000 Central
    1066, // NAD83(HARN) / Maine CS2000 East
    1068, // NAD83(HARN) / Maine CS2000 West
    794, // NAD83(HARN) / Maine East
    5124, // NAD83(HARN) / Maine East (ftUS)
    5148, // NAD83(HARN) / Maine East (ftUS)
    795, // NAD83(HARN) / Maine West
    5125, // NAD83(HARN) / Maine West (ftUS)
    5149, // NAD83(HARN) / Maine West (ftUS)
    796, // NAD83(HARN) / Maryland
    885, // NAD83(HARN) / Maryland (ftUS)
    798, // NAD83(HARN) / Massachusetts Island
    887, // NAD83(HARN) / Massachusetts Island (ftUS)
    797, // NAD83(HARN) / Massachusetts Mainland
    886, // NAD83(HARN) / Massachusetts Mainland (ftUS)
    800, // NAD83(HARN) / Michigan Central
    889, // NAD83(HARN) / Michigan Central (ft)
    799, // NAD83(HARN) / Michigan North
    888, // NAD83(HARN) / Michigan North (ft)
    1070, // NAD83(HARN) / Michigan Oblique Mercator
    801, // NAD83(HARN) / Michigan South
    890, // NAD83(HARN) / Michigan South (ft)
    803, // NAD83(HARN) / Minnesota Central
    5127, // NAD83(HARN) / Minnesota Central (ftUS)
    5151, // NAD83(HARN) / Minnesota Central (ftUS)
    802, // NAD83(HARN) / Minnesota North
    5126, // NAD83(HARN) / Minnesota North (ftUS)
    5150, // NAD83(HARN) / Minnesota North (ftUS)
    804, // NAD83(HARN) / Minnesota South
    5128, // NAD83(HARN) / Minnesota South (ftUS)
    5152, // NAD83(HARN) / Minnesota South (ftUS)
    805, // NAD83(HARN) / Mississippi East
    891, // NAD83(HARN) / Mississippi East (ftUS)
    1795, // NAD83(HARN) / Mississippi TM
    806, // NAD83(HARN) / Mississippi West
    892, // NAD83(HARN) / Mississippi West (ftUS)
    808, // NAD83(HARN) / Missouri Central
    807, // NAD83(HARN) / Missouri East
    809, // NAD83(HARN) / Missouri West
    810, // NAD83(HARN) / Montana
    893, // NAD83(HARN) / Montana (ft)
    811, // NAD83(HARN) / Nebraska
    5129, // NAD83(HARN) / Nebraska (ftUS)
    5153, // NAD83(HARN) / Nebraska (ftUS)
    813, // NAD83(HARN) / Nevada Central
    1421, // NAD83(HARN) / Nevada Central (ftUS)
    812, // NAD83(HARN) / Nevada East
    1420, // NAD83(HARN) / Nevada East (ftUS)
    814, // NAD83(HARN) / Nevada West
    1422, // NAD83(HARN) / Nevada West (ftUS)
    815, // NAD83(HARN) / New Hampshire
    1436, // NAD83(HARN) / New Hampshire (ftUS)
    816, // NAD83(HARN) / New Jersey
    1423, // NAD83(HARN) / New Jersey (ftUS)
    818, // NAD83(HARN) / New Mexico Central
    895, // NAD83(HARN) / New Mexico Central (ftUS)
    817, // NAD83(HARN) / New Mexico East
    894, // NAD83(HARN) / New Mexico East (ftUS)
    819, // NAD83(HARN) / New Mexico West
    896, // NAD83(HARN) / New Mexico West (ftUS)
    821, // NAD83(HARN) / New York Central
    898, // NAD83(HARN) / New York Central (ftUS)
    820, // NAD83(HARN) / New York East
    897, // NAD83(HARN) / New York East (ftUS)
    823, // NAD83(HARN) / New York Long Island
    900, // NAD83(HARN) / New York Long Island (ftUS)
    822, // NAD83(HARN) / New York West
    899, // NAD83(HARN) / New York West (ftUS)
    1349, // NAD83(HARN) / North Carolina
    1350, // NAD83(HARN) / North Carolina (ftUS)
    1395, // NAD83(HARN) / North Carolina (ftUS)
    824, // NAD83(HARN) / North Dakota North
    901, // NAD83(HARN) / North Dakota North (ft)
    825, // NAD83(HARN) / North Dakota South
    902, // NAD83(HARN) / North Dakota South (ft)
    826, // NAD83(HARN) / Ohio North
    1744, // NAD83(HARN) / Ohio North (ftUS)
    827, // NAD83(HARN) / Ohio South
    1745, // NAD83(HARN) / Ohio South (ftUS)
    828, // NAD83(HARN) / Oklahoma North
    903, // NAD83(HARN) / Oklahoma North (ftUS)
    829, // NAD83(HARN) / Oklahoma South
    904, // NAD83(HARN) / Oklahoma South (ftUS)
    985, // NAD83(HARN) / Oregon GIC Lambert (ft)
    984, // NAD83(HARN) / Oregon LCC (m)
    830, // NAD83(HARN) / Oregon North
    905, // NAD83(HARN) / Oregon North (ft)
    831, // NAD83(HARN) / Oregon South
    906, // NAD83(HARN) / Oregon South (ft)
    1353, // NAD83(HARN) / Pennsylvania North
    1354, // NAD83(HARN) / Pennsylvania North (ftUS)
    1355, // NAD83(HARN) / Pennsylvania South
    1356, // NAD83(HARN) / Pennsylvania South (ftUS)
    858, // NAD83(HARN) / Puerto Rico and Virgin Is.
    832, // NAD83(HARN) / Rhode Island
    1437, // NAD83(HARN) / Rhode Island (ftUS)
    1351, // NAD83(HARN) / South Carolina
    1352, // NAD83(HARN) / South Carolina (ft)
    833, // NAD83(HARN) / South Dakota North
    1449, // NAD83(HARN) / South Dakota North (ftUS)
    834, // NAD83(HARN) / South Dakota South
    1450, // NAD83(HARN) / South Dakota South (ftUS)
    835, // NAD83(HARN) / Tennessee
    907, // NAD83(HARN) / Tennessee (ftUS)
    838, // NAD83(HARN) / Texas Central
    910, // NAD83(HARN) / Texas Central (ftUS)
    1076, // NAD83(HARN) / Texas Centric Albers Equal Area
    1075, // NAD83(HARN) / Texas Centric Lambert Conformal
    836, // NAD83(HARN) / Texas North
    837, // NAD83(HARN) / Texas North Central
    909, // NAD83(HARN) / Texas North Central (ftUS)
    908, // NAD83(HARN) / Texas North (ftUS)
    840, // NAD83(HARN) / Texas South
    839, // NAD83(HARN) / Texas South Central
    911, // NAD83(HARN) / Texas South Central (ftUS)
    912, // NAD83(HARN) / Texas South (ftUS)
    842, // NAD83(HARN) / Utah Central
    914, // NAD83(HARN) / Utah Central (ft)
    1560, // NAD83(HARN) / Utah Central (ftUS)
    841, // NAD83(HARN) / Utah North
    913, // NAD83(HARN) / Utah North (ft)
    1559, // NAD83(HARN) / Utah North (ftUS)
    843, // NAD83(HARN) / Utah South
    915, // NAD83(HARN) / Utah South (ft)
    1561, // NAD83(HARN) / Utah South (ftUS)
    1731, // NAD83(HARN) / UTM zone 10N
    1732, // NAD83(HARN) / UTM zone 11N
    1733, // NAD83(HARN) / UTM zone 12N
    1734, // NAD83(HARN) / UTM zone 13N
    1735, // NAD83(HARN) / UTM zone 14N
    1736, // NAD83(HARN) / UTM zone 15N
    1737, // NAD83(HARN) / UTM zone 16N
    1738, // NAD83(HARN) / UTM zone 17N
    1739, // NAD83(HARN) / UTM zone 18N
    1740, // NAD83(HARN) / UTM zone 19N
    188, // NAD83(HARN) / UTM zone 2S
    1741, // NAD83(HARN) / UTM zone 4N
    156, // NAD83(HARN) / UTM zone 59S
    1742, // NAD83(HARN) / UTM zone 5N
    844, // NAD83(HARN) / Vermont
    2802, // NAD83(HARN) / Vermont (ftUS)
    1864, // NAD83(HARN) / Virginia Lambert
    845, // NAD83(HARN) / Virginia North
    916, // NAD83(HARN) / Virginia North (ftUS)
    846, // NAD83(HARN) / Virginia South
    917, // NAD83(HARN) / Virginia South (ftUS)
    847, // NAD83(HARN) / Washington North
    918, // NAD83(HARN) / Washington North (ftUS)
    848, // NAD83(HARN) / Washington South
    919, // NAD83(HARN) / Washington South (ftUS)
    849, // NAD83(HARN) / West Virginia North
    5130, // NAD83(HARN) / West Virginia North (ftUS)
    5154, // NAD83(HARN) / West Virginia North (ftUS)
    850, // NAD83(HARN) / West Virginia South
    5131, // NAD83(HARN) / West Virginia South (ftUS)
    5155, // NAD83(HARN) / West Virginia South (ftUS)
    852, // NAD83(HARN) / Wisconsin Central
    921, // NAD83(HARN) / Wisconsin Central (ftUS)
    851, // NAD83(HARN) / Wisconsin North
    920, // NAD83(HARN) / Wisconsin North (ftUS)
    853, // NAD83(HARN) / Wisconsin South
    922, // NAD83(HARN) / Wisconsin South (ftUS)
    1062, // NAD83(HARN) / Wisconsin Transverse Mercator
    3979, // NAD83(HARN) / WISCRS Adams and Juneau (ftUS)
    3978, // NAD83(HARN) / WISCRS Adams and Juneau (m)
    3977, // NAD83(HARN) / WISCRS Ashland (ftUS)
    3976, // NAD83(HARN) / WISCRS Ashland (m)
    3975, // NAD83(HARN) / WISCRS Barron (ftUS)
    3974, // NAD83(HARN) / WISCRS Barron (m)
    3973, // NAD83(HARN) / WISCRS Bayfield (ftUS)
    3972, // NAD83(HARN) / WISCRS Bayfield (m)
    3971, // NAD83(HARN) / WISCRS Brown (ftUS)
    3970, // NAD83(HARN) / WISCRS Brown (m)
    3969, // NAD83(HARN) / WISCRS Buffalo (ftUS)
    3968, // NAD83(HARN) / WISCRS Buffalo (m)
    3967, // NAD83(HARN) / WISCRS Burnett (ftUS)
    3966, // NAD83(HARN) / WISCRS Burnett (m)
    3965, // NAD83(HARN) / WISCRS Calumet, Fond du Lac, Outagamie and Winnebago (ftUS)
    3964, // NAD83(HARN) / WISCRS Calumet, Fond du Lac, Outagamie and Winnebago (m)
    3963, // NAD83(HARN) / WISCRS Chippewa (ftUS)
    3962, // NAD83(HARN) / WISCRS Chippewa (m)
    3961, // NAD83(HARN) / WISCRS Clark (ftUS)
    3960, // NAD83(HARN) / WISCRS Clark (m)
    3959, // NAD83(HARN) / WISCRS Columbia (ftUS)
    3958, // NAD83(HARN) / WISCRS Columbia (m)
    3957, // NAD83(HARN) / WISCRS Crawford (ftUS)
    3956, // NAD83(HARN) / WISCRS Crawford (m)
    3955, // NAD83(HARN) / WISCRS Dane (ftUS)
    3954, // NAD83(HARN) / WISCRS Dane (m)
    3953, // NAD83(HARN) / WISCRS Dodge and Jefferson (ftUS)
    3952, // NAD83(HARN) / WISCRS Dodge and Jefferson (m)
    3951, // NAD83(HARN) / WISCRS Door (ftUS)
    3950, // NAD83(HARN) / WISCRS Door (m)
    3949, // NAD83(HARN) / WISCRS Douglas (ftUS)
    3948, // NAD83(HARN) / WISCRS Douglas (m)
    3947, // NAD83(HARN) / WISCRS Dunn (ftUS)
    3946, // NAD83(HARN) / WISCRS Dunn (m)
    3865, // NAD83(HARN) / WISCRS Eau Claire (ftUS)
    3864, // NAD83(HARN) / WISCRS Eau Claire (m)
    3863, // NAD83(HARN) / WISCRS Florence (ftUS)
    3862, // NAD83(HARN) / WISCRS Florence (m)
    3945, // NAD83(HARN) / WISCRS Forest (ftUS)
    3944, // NAD83(HARN) / WISCRS Forest (m)
    3943, // NAD83(HARN) / WISCRS Grant (ftUS)
    3942, // NAD83(HARN) / WISCRS Grant (m)
    3941, // NAD83(HARN) / WISCRS Green and Lafayette (ftUS)
    3940, // NAD83(HARN) / WISCRS Green and Lafayette (m)
    3939, // NAD83(HARN) / WISCRS Green Lake and Marquette (ftUS)
    3938, // NAD83(HARN) / WISCRS Green Lake and Marquette (m)
    3937, // NAD83(HARN) / WISCRS Iowa (ftUS)
    3936, // NAD83(HARN) / WISCRS Iowa (m)
    3935, // NAD83(HARN) / WISCRS Iron (ftUS)
    3934, // NAD83(HARN) / WISCRS Iron (m)
    3933, // NAD83(HARN) / WISCRS Jackson (ftUS)
    3932, // NAD83(HARN) / WISCRS Jackson (m)
    3931, // NAD83(HARN) / WISCRS Kenosha, Milwaukee, Ozaukee and Racine (ftUS)
    3930, // NAD83(HARN) / WISCRS Kenosha, Milwaukee, Ozaukee and Racine (m)
    3929, // NAD83(HARN) / WISCRS Kewaunee, Manitowoc and Sheboygan (ftUS)
    3928, // NAD83(HARN) / WISCRS Kewaunee, Manitowoc and Sheboygan (m)
    3927, // NAD83(HARN) / WISCRS La Crosse (ftUS)
    3926, // NAD83(HARN) / WISCRS La Crosse (m)
    3925, // NAD83(HARN) / WISCRS Langlade (ftUS)
    3924, // NAD83(HARN) / WISCRS Langlade (m)
    3923, // NAD83(HARN) / WISCRS Lincoln (ftUS)
    3922, // NAD83(HARN) / WISCRS Lincoln (m)
    3921, // NAD83(HARN) / WISCRS Marathon (ftUS)
    3920, // NAD83(HARN) / WISCRS Marathon (m)
    3919, // NAD83(HARN) / WISCRS Marinette (ftUS)
    3918, // NAD83(HARN) / WISCRS Marinette (m)
    3917, // NAD83(HARN) / WISCRS Menominee (ftUS)
    3916, // NAD83(HARN) / WISCRS Menominee (m)
    3915, // NAD83(HARN) / WISCRS Monroe (ftUS)
    3914, // NAD83(HARN) / WISCRS Monroe (m)
    3913, // NAD83(HARN) / WISCRS Oconto (ftUS)
    3912, // NAD83(HARN) / WISCRS Oconto (m)
    3911, // NAD83(HARN) / WISCRS Oneida (ftUS)
    3910, // NAD83(HARN) / WISCRS Oneida (m)
    3909, // NAD83(HARN) / WISCRS Pepin and Pierce (ftUS)
    3908, // NAD83(HARN) / WISCRS Pepin and Pierce (m)
    3907, // NAD83(HARN) / WISCRS Polk (ftUS)
    3906, // NAD83(HARN) / WISCRS Polk (m)
    3905, // NAD83(HARN) / WISCRS Portage (ftUS)
    3904, // NAD83(HARN) / WISCRS Portage (m)
    3903, // NAD83(HARN) / WISCRS Price (ftUS)
    3902, // NAD83(HARN) / WISCRS Price (m)
    3901, // NAD83(HARN) / WISCRS Richland (ftUS)
    3900, // NAD83(HARN) / WISCRS Richland (m)
    3899, // NAD83(HARN) / WISCRS Rock (ftUS)
    3898, // NAD83(HARN) / WISCRS Rock (m)
    3897, // NAD83(HARN) / WISCRS Rusk (ftUS)
    3896, // NAD83(HARN) / WISCRS Rusk (m)
    3895, // NAD83(HARN) / WISCRS Sauk (ftUS)
    3894, // NAD83(HARN) / WISCRS Sauk (m)
    3893, // NAD83(HARN) / WISCRS Sawyer (ftUS)
    3892, // NAD83(HARN) / WISCRS Sawyer (m)
    3891, // NAD83(HARN) / WISCRS Shawano (ftUS)
    3890, // NAD83(HARN) / WISCRS Shawano (m)
    3889, // NAD83(HARN) / WISCRS St. Croix (ftUS)
    3888, // NAD83(HARN) / WISCRS St. Croix (m)
    3887, // NAD83(HARN) / WISCRS Taylor (ftUS)
    3886, // NAD83(HARN) / WISCRS Taylor (m)
    3885, // NAD83(HARN) / WISCRS Trempealeau (ftUS)
    3884, // NAD83(HARN) / WISCRS Trempealeau (m)
    3883, // NAD83(HARN) / WISCRS Vernon (ftUS)
    3882, // NAD83(HARN) / WISCRS Vernon (m)
    3881, // NAD83(HARN) / WISCRS Vilas (ftUS)
    3880, // NAD83(HARN) / WISCRS Vilas (m)
    3879, // NAD83(HARN) / WISCRS Walworth (ftUS)
    3878, // NAD83(HARN) / WISCRS Walworth (m)
    3877, // NAD83(HARN) / WISCRS Washburn (ftUS)
    3876, // NAD83(HARN) / WISCRS Washburn (m)
    3875, // NAD83(HARN) / WISCRS Washington (ftUS)
    3874, // NAD83(HARN) / WISCRS Washington (m)
    3873, // NAD83(HARN) / WISCRS Waukesha (ftUS)
    3872, // NAD83(HARN) / WISCRS Waukesha (m)
    3871, // NAD83(HARN) / WISCRS Waupaca (ftUS)
    3870, // NAD83(HARN) / WISCRS Waupaca (m)
    3869, // NAD83(HARN) / WISCRS Waushara (ftUS)
    3868, // NAD83(HARN) / WISCRS Waushara (m)
    3867, // NAD83(HARN) / WISCRS Wood (ftUS)
    3866, // NAD83(HARN) / WISCRS Wood (m)
    854, // NAD83(HARN) / Wyoming East
    855, // NAD83(HARN) / Wyoming East Central
    1747, // NAD83(HARN) / Wyoming East Central (ftUS)
    1746, // NAD83(HARN) / Wyoming East (ftUS)
    857, // NAD83(HARN) / Wyoming West
    856, // NAD83(HARN) / Wyoming West Central
    1748, // NAD83(HARN) / Wyoming West Central (ftUS)
    1749, // NAD83(HARN) / Wyoming West (ftUS)
    5227, // NAD83 / Hawaii zone 1
    5228, // NAD83 / Hawaii zone 2
    5229, // NAD83 / Hawaii zone 3
    1750, // NAD83 / Hawaii zone 3 (ftUS)
    5230, // NAD83 / Hawaii zone 4
    5231, // NAD83 / Hawaii zone 5
    5235, // NAD83 / Idaho Central
    235, // NAD83 / Idaho Central (ftUS)
    5234, // NAD83 / Idaho East
    234, // NAD83 / Idaho East (ftUS)
    4079, // NAD83 / Idaho Transverse Mercator
    5236, // NAD83 / Idaho West
    236, // NAD83 / Idaho West (ftUS)
    5237, // NAD83 / Illinois East
    1426, // NAD83 / Illinois East (ftUS)
    5238, // NAD83 / Illinois West
    1427, // NAD83 / Illinois West (ftUS)
    5239, // NAD83 / Indiana East
    237, // NAD83 / Indiana East (ftUS)
    957, // NAD83 / Indiana East (ftUS)
    5240, // NAD83 / Indiana West
    238, // NAD83 / Indiana West (ftUS)
    958, // NAD83 / Indiana West (ftUS)
    5241, // NAD83 / Iowa North
    1408, // NAD83 / Iowa North (ftUS)
    5242, // NAD83 / Iowa South
    1409, // NAD83 / Iowa South (ftUS)
    3424, // NAD83 / Kansas LCC
    3425, // NAD83 / Kansas LCC (ftUS)
    5243, // NAD83 / Kansas North
    1410, // NAD83 / Kansas North (ftUS)
    5244, // NAD83 / Kansas South
    1411, // NAD83 / Kansas South (ftUS)
    198, // NAD83 / Kentucky North
    5245, // NAD83 / Kentucky North
    239, // NAD83 / Kentucky North (ftUS)
    1079, // NAD83 / Kentucky Single Zone
    1080, // NAD83 / Kentucky Single Zone (ftUS)
    5246, // NAD83 / Kentucky South
    240, // NAD83 / Kentucky South (ftUS)
    5247, // NAD83 / Louisiana North
    1442, // NAD83 / Louisiana North (ftUS)
    5750, // NAD83 / Louisiana Offshore
    1444, // NAD83 / Louisiana Offshore (ftUS)
    5248, // NAD83 / Louisiana South
    1443, // NAD83 / Louisiana South (ftUS)
    2993, // NAD83(MA11)
    3283, // NAD83(MA11) / Guam Map Grid
    4074, // NAD83(MA11) / UTM zone 54N
    4075, // NAD83(MA11) / UTM zone 55N
    1064, // NAD83 / Maine CS2000 Central
    1454, // NAD83 / Maine CS2000 Central
    1063, // NAD83 / Maine CS2000 East
    1065, // NAD83 / Maine CS2000 West
    5249, // NAD83 / Maine East
    5116, // NAD83 / Maine East (ftUS)
    5140, // NAD83 / Maine East (ftUS)
    5250, // NAD83 / Maine West
    5117, // NAD83 / Maine West (ftUS)
    5141, // NAD83 / Maine West (ftUS)
    4154, // NAD83(MARP00)
    5251, // NAD83 / Maryland
    241, // NAD83 / Maryland (ftUS)
    5253, // NAD83 / Massachusetts Island
    243, // NAD83 / Massachusetts Island (ftUS)
    5252, // NAD83 / Massachusetts Mainland
    242, // NAD83 / Massachusetts Mainland (ftUS)
    5255, // NAD83 / Michigan Central
    245, // NAD83 / Michigan Central (ft)
    5254, // NAD83 / Michigan North
    244, // NAD83 / Michigan North (ft)
    1069, // NAD83 / Michigan Oblique Mercator
    5256, // NAD83 / Michigan South
    246, // NAD83 / Michigan South (ft)
    5258, // NAD83 / Minnesota Central
    5119, // NAD83 / Minnesota Central (ftUS)
    5143, // NAD83 / Minnesota Central (ftUS)
    5257, // NAD83 / Minnesota North
    5118, // NAD83 / Minnesota North (ftUS)
    5142, // NAD83 / Minnesota North (ftUS)
    5259, // NAD83 / Minnesota South
    5120, // NAD83 / Minnesota South (ftUS)
    5144, // NAD83 / Minnesota South (ftUS)
    5260, // NAD83 / Mississippi East
    247, // NAD83 / Mississippi East (ftUS)
    1794, // NAD83 / Mississippi TM
    5261, // NAD83 / Mississippi West
    248, // NAD83 / Mississippi West (ftUS)
    5263, // NAD83 / Missouri Central
    5262, // NAD83 / Missouri East
    5264, // NAD83 / Missouri West
    5673, // NAD83 / Montana
    249, // NAD83 / Montana (ft)
    5732, // NAD83 / MTM zone 1
    5741, // NAD83 / MTM zone 10
    5742, // NAD83 / MTM zone 11
    5743, // NAD83 / MTM zone 12
    5744, // NAD83 / MTM zone 13
    5745, // NAD83 / MTM zone 14
    5746, // NAD83 / MTM zone 15
    5747, // NAD83 / MTM zone 16
    5748, // NAD83 / MTM zone 17
    5733, // NAD83 / MTM zone 2
    5734, // NAD83 / MTM zone 3
    5735, // NAD83 / MTM zone 4
    5736, // NAD83 / MTM zone 5
    5737, // NAD83 / MTM zone 6
    5738, // NAD83 / MTM zone 7
    5739, // NAD83 / MTM zone 8
    5740, // NAD83 / MTM zone 9
    1788, // NAD83 / MTQ Lambert
    4029, // NAD83 / NCRS Las Vegas (ftUS)
    4031, // NAD83 / NCRS Las Vegas high (ftUS)
    4030, // NAD83 / NCRS Las Vegas high (m)
    4028, // NAD83 / NCRS Las Vegas (m)
    5674, // NAD83 / Nebraska
    5121, // NAD83 / Nebraska (ftUS)
    5145, // NAD83 / Nebraska (ftUS)
    5676, // NAD83 / Nevada Central
    1413, // NAD83 / Nevada Central (ftUS)
    5675, // NAD83 / Nevada East
    1412, // NAD83 / Nevada East (ftUS)
    5677, // NAD83 / Nevada West
    1414, // NAD83 / Nevada West (ftUS)
    5678, // NAD83 / New Hampshire
    1428, // NAD83 / New Hampshire (ftUS)
    5679, // NAD83 / New Jersey
    1415, // NAD83 / New Jersey (ftUS)
    5681, // NAD83 / New Mexico Central
    251, // NAD83 / New Mexico Central (ftUS)
    5680, // NAD83 / New Mexico East
    250, // NAD83 / New Mexico East (ftUS)
    5682, // NAD83 / New Mexico West
    252, // NAD83 / New Mexico West (ftUS)
    5684, // NAD83 / New York Central
    254, // NAD83 / New York Central (ftUS)
    5683, // NAD83 / New York East
    253, // NAD83 / New York East (ftUS)
    5686, // NAD83 / New York Long Island
    256, // NAD83 / New York Long Island (ftUS)
    5685, // NAD83 / New York West
    255, // NAD83 / New York West (ftUS)
    5687, // NAD83 / North Carolina
    257, // NAD83 / North Carolina (ftUS)
    5688, // NAD83 / North Dakota North
    258, // NAD83 / North Dakota North (ft)
    5689, // NAD83 / North Dakota South
    259, // NAD83 / North Dakota South (ft)
    2462, // NAD83(NSRS2007)
    1456, // NAD83(NSRS2007) / Alabama East
    1457, // NAD83(NSRS2007) / Alabama West
    1459, // NAD83(NSRS2007) / Alaska zone 1
    1468, // NAD83(NSRS2007) / Alaska zone 10
    1460, // NAD83(NSRS2007) / Alaska zone 2
    1461, // NAD83(NSRS2007) / Alaska zone 3
    1462, // NAD83(NSRS2007) / Alaska zone 4
    1463, // NAD83(NSRS2007) / Alaska zone 5
    1464, // NAD83(NSRS2007) / Alaska zone 6
    1465, // NAD83(NSRS2007) / Alaska zone 7
    1466, // NAD83(NSRS2007) / Alaska zone 8
    1467, // NAD83(NSRS2007) / Alaska zone 9
    1458, // NAD83(NSRS2007) / Alaska Albers
    1469, // NAD83(NSRS2007) / Arizona Central
    1470, // NAD83(NSRS2007) / Arizona Central (ft)
    1471, // NAD83(NSRS2007) / Arizona East
    1472, // NAD83(NSRS2007) / Arizona East (ft)
    1473, // NAD83(NSRS2007) / Arizona West
    1474, // NAD83(NSRS2007) / Arizona West (ft)
    1475, // NAD83(NSRS2007) / Arkansas North
    1476, // NAD83(NSRS2007) / Arkansas North (ftUS)
    1477, // NAD83(NSRS2007) / Arkansas South
    1478, // NAD83(NSRS2007) / Arkansas South (ftUS)
    1480, // NAD83(NSRS2007) / California zone 1
    1481, // NAD83(NSRS2007) / California zone 1 (ftUS)
    1482, // NAD83(NSRS2007) / California zone 2
    1483, // NAD83(NSRS2007) / California zone 2 (ftUS)
    1484, // NAD83(NSRS2007) / California zone 3
    1485, // NAD83(NSRS2007) / California zone 3 (ftUS)
    1486, // NAD83(NSRS2007) / California zone 4
    1487, // NAD83(NSRS2007) / California zone 4 (ftUS)
    1488, // NAD83(NSRS2007) / California zone 5
    1489, // NAD83(NSRS2007) / California zone 5 (ftUS)
    1490, // NAD83(NSRS2007) / California zone 6
    1491, // NAD83(NSRS2007) / California zone 6 (ftUS)
    1479, // NAD83(NSRS2007) / California Albers
    1492, // NAD83(NSRS2007) / Colorado Central
    1493, // NAD83(NSRS2007) / Colorado Central (ftUS)
    1494, // NAD83(NSRS2007) / Colorado North
    1495, // NAD83(NSRS2007) / Colorado North (ftUS)
    1496, // NAD83(NSRS2007) / Colorado South
    1497, // NAD83(NSRS2007) / Colorado South (ftUS)
    1498, // NAD83(NSRS2007) / Connecticut
    1499, // NAD83(NSRS2007) / Connecticut (ftUS)
    2572, // NAD83(NSRS2007) / Conus Albers
    1500, // NAD83(NSRS2007) / Delaware
    1501, // NAD83(NSRS2007) / Delaware (ftUS)
    2912, // NAD83(NSRS2007) / EPSG Arctic zone 5-29
    2913, // NAD83(NSRS2007) / EPSG Arctic zone 5-31
    2914, // NAD83(NSRS2007) / EPSG Arctic zone 6-14
    2915, // NAD83(NSRS2007) / EPSG Arctic zone 6-16
    1502, // NAD83(NSRS2007) / Florida East
    1503, // NAD83(NSRS2007) / Florida East (ftUS)
    1504, // NAD83(NSRS2007) / Florida GDL Albers
    1505, // NAD83(NSRS2007) / Florida North
    1506, // NAD83(NSRS2007) / Florida North (ftUS)
    1507, // NAD83(NSRS2007) / Florida West
    1508, // NAD83(NSRS2007) / Florida West (ftUS)
    1509, // NAD83(NSRS2007) / Georgia East
    1510, // NAD83(NSRS2007) / Georgia East (ftUS)
    1511, // NAD83(NSRS2007) / Georgia West
    1512, // NAD83(NSRS2007) / Georgia West (ftUS)
    1513, // NAD83(NSRS2007) / Idaho Central
    1514, // NAD83(NSRS2007) / Idaho Central (ftUS)
    1515, // NAD83(NSRS2007) / Idaho East
    1516, // NAD83(NSRS2007) / Idaho East (ftUS)
    1517, // NAD83(NSRS2007) / Idaho West
    1518, // NAD83(NSRS2007) / Idaho West (ftUS)
    1519, // NAD83(NSRS2007) / Illinois East
    1520, // NAD83(NSRS2007) / Illinois East (ftUS)
    1521, // NAD83(NSRS2007) / Illinois West
    1522, // NAD83(NSRS2007) / Illinois West (ftUS)
    1523, // NAD83(NSRS2007) / Indiana East
    1524, // NAD83(NSRS2007) / Indiana East (ftUS)
    1525, // NAD83(NSRS2007) / Indiana West
    1526, // NAD83(NSRS2007) / Indiana West (ftUS)
    1527, // NAD83(NSRS2007) / Iowa North
    1528, // NAD83(NSRS2007) / Iowa North (ftUS)
    1529, // NAD83(NSRS2007) / Iowa South
    1530, // NAD83(NSRS2007) / Iowa South (ftUS)
    1531, // NAD83(NSRS2007) / Kansas North
    1532, // NAD83(NSRS2007) / Kansas North (ftUS)
    1533, // NAD83(NSRS2007) / Kansas South
    1534, // NAD83(NSRS2007) / Kansas South (ftUS)
    1535, // NAD83(NSRS2007) / Kentucky North
    1536, // NAD83(NSRS2007) / Kentucky North (ftUS)
    1537, // NAD83(NSRS2007) / Kentucky Single Zone
    1538, // NAD83(NSRS2007) / Kentucky Single Zone (ftUS)
    1539, // NAD83(NSRS2007) / Kentucky South
    1540, // NAD83(NSRS2007) / Kentucky South (ftUS)
    1541, // NAD83(NSRS2007) / Louisiana North
    1542, // NAD83(NSRS2007) / Louisiana North (ftUS)
    1543, // NAD83(NSRS2007) / Louisiana South
    1544, // NAD83(NSRS2007) / Louisiana South (ftUS)
    1545, // NAD83(NSRS2007) / Maine CS2000 Central
    1546, // NAD83(NSRS2007) / Maine CS2000 East
    1547, // NAD83(NSRS2007) / Maine CS2000 West
    1548, // NAD83(NSRS2007) / Maine East
    5132, // NAD83(NSRS2007) / Maine East (ftUS)
    5156, // NAD83(NSRS2007) / Maine East (ftUS)
    1549, // NAD83(NSRS2007) / Maine West
    5133, // NAD83(NSRS2007) / Maine West (ftUS)
    5157, // NAD83(NSRS2007) / Maine West (ftUS)
    1550, // NAD83(NSRS2007) / Maryland
    1573, // NAD83(NSRS2007) / Maryland (ftUS)
    1574, // NAD83(NSRS2007) / Massachusetts Island
    1575, // NAD83(NSRS2007) / Massachusetts Island (ftUS)
    1576, // NAD83(NSRS2007) / Massachusetts Mainland
    1577, // NAD83(NSRS2007) / Massachusetts Mainland (ftUS)
    1578, // NAD83(NSRS2007) / Michigan Central
    1579, // NAD83(NSRS2007) / Michigan Central (ft)
    1580, // NAD83(NSRS2007) / Michigan North
    1581, // NAD83(NSRS2007) / Michigan North (ft)
    1582, // NAD83(NSRS2007) / Michigan Oblique Mercator
    1583, // NAD83(NSRS2007) / Michigan South
    1584, // NAD83(NSRS2007) / Michigan South (ft)
    1585, // NAD83(NSRS2007) / Minnesota Central
    5135, // NAD83(NSRS2007) / Minnesota Central (ftUS)
    5159, // NAD83(NSRS2007) / Minnesota Central (ftUS)
    1586, // NAD83(NSRS2007) / Minnesota North
    5134, // NAD83(NSRS2007) / Minnesota North (ftUS)
    5158, // NAD83(NSRS2007) / Minnesota North (ftUS)
    1587, // NAD83(NSRS2007) / Minnesota South
    5136, // NAD83(NSRS2007) / Minnesota South (ftUS)
    5160, // NAD83(NSRS2007) / Minnesota South (ftUS)
    1588, // NAD83(NSRS2007) / Mississippi East
    1589, // NAD83(NSRS2007) / Mississippi East (ftUS)
    1796, // NAD83(NSRS2007) / Mississippi TM
    1590, // NAD83(NSRS2007) / Mississippi West
    1591, // NAD83(NSRS2007) / Mississippi West (ftUS)
    1592, // NAD83(NSRS2007) / Missouri Central
    1593, // NAD83(NSRS2007) / Missouri East
    1594, // NAD83(NSRS2007) / Missouri West
    1595, // NAD83(NSRS2007) / Montana
    1596, // NAD83(NSRS2007) / Montana (ft)
    1597, // NAD83(NSRS2007) / Nebraska
    5137, // NAD83(NSRS2007) / Nebraska (ftUS)
    5161, // NAD83(NSRS2007) / Nebraska (ftUS)
    1598, // NAD83(NSRS2007) / Nevada Central
    1599, // NAD83(NSRS2007) / Nevada Central (ftUS)
    1600, // NAD83(NSRS2007) / Nevada East
    1601, // NAD83(NSRS2007) / Nevada East (ftUS)
    1602, // NAD83(NSRS2007) / Nevada West
    1603, // NAD83(NSRS2007) / Nevada West (ftUS)
    1604, // NAD83(NSRS2007) / New Hampshire
    1605, // NAD83(NSRS2007) / New Hampshire (ftUS)
    1606, // NAD83(NSRS2007) / New Jersey
    1607, // NAD83(NSRS2007) / New Jersey (ftUS)
    1608, // NAD83(NSRS2007) / New Mexico Central
    1609, // NAD83(NSRS2007) / New Mexico Central (ftUS)
    1610, // NAD83(NSRS2007) / New Mexico East
    1611, // NAD83(NSRS2007) / New Mexico East (ftUS)
    1612, // NAD83(NSRS2007) / New Mexico West
    1613, // NAD83(NSRS2007) / New Mexico West (ftUS)
    1614, // NAD83(NSRS2007) / New York Central
    1615, // NAD83(NSRS2007) / New York Central (ftUS)
    1616, // NAD83(NSRS2007) / New York East
    1617, // NAD83(NSRS2007) / New York East (ftUS)
    1618, // NAD83(NSRS2007) / New York Long Island
    1619, // NAD83(NSRS2007) / New York Long Island (ftUS)
    1620, // NAD83(NSRS2007) / New York West
    1621, // NAD83(NSRS2007) / New York West (ftUS)
    1622, // NAD83(NSRS2007) / North Carolina
    1623, // NAD83(NSRS2007) / North Carolina (ftUS)
    1624, // NAD83(NSRS2007) / North Dakota North
    1625, // NAD83(NSRS2007) / North Dakota North (ft)
    1626, // NAD83(NSRS2007) / North Dakota South
    1627, // NAD83(NSRS2007) / North Dakota South (ft)
    1628, // NAD83(NSRS2007) / Ohio North
    1719, // NAD83(NSRS2007) / Ohio North (ftUS)
    1629, // NAD83(NSRS2007) / Ohio South
    1720, // NAD83(NSRS2007) / Ohio South (ftUS)
    1630, // NAD83(NSRS2007) / Oklahoma North
    1631, // NAD83(NSRS2007) / Oklahoma North (ftUS)
    1632, // NAD83(NSRS2007) / Oklahoma South
    1633, // NAD83(NSRS2007) / Oklahoma South (ftUS)
    1635, // NAD83(NSRS2007) / Oregon GIC Lambert (ft)
    1634, // NAD83(NSRS2007) / Oregon LCC (m)
    1636, // NAD83(NSRS2007) / Oregon North
    1637, // NAD83(NSRS2007) / Oregon North (ft)
    1638, // NAD83(NSRS2007) / Oregon South
    1639, // NAD83(NSRS2007) / Oregon South (ft)
    1640, // NAD83(NSRS2007) / Pennsylvania North
    1641, // NAD83(NSRS2007) / Pennsylvania North (ftUS)
    1642, // NAD83(NSRS2007) / Pennsylvania South
    1643, // NAD83(NSRS2007) / Pennsylvania South (ftUS)
    2197, // NAD83(NSRS2007) / Puerto Rico and Virgin Is.
    1644, // NAD83(NSRS2007) / Rhode Island
    1645, // NAD83(NSRS2007) / Rhode Island (ftUS)
    1646, // NAD83(NSRS2007) / South Carolina
    1647, // NAD83(NSRS2007) / South Carolina (ft)
    1648, // NAD83(NSRS2007) / South Dakota North
    1649, // NAD83(NSRS2007) / South Dakota North (ftUS)
    1650, // NAD83(NSRS2007) / South Dakota South
    1651, // NAD83(NSRS2007) / South Dakota South (ftUS)
    1652, // NAD83(NSRS2007) / Tennessee
    1653, // NAD83(NSRS2007) / Tennessee (ftUS)
    1654, // NAD83(NSRS2007) / Texas Central
    1655, // NAD83(NSRS2007) / Texas Central (ftUS)
    1656, // NAD83(NSRS2007) / Texas Centric Albers Equal Area
    1657, // NAD83(NSRS2007) / Texas Centric Lambert Conformal
    1658, // NAD83(NSRS2007) / Texas North
    1660, // NAD83(NSRS2007) / Texas North Central
    1661, // NAD83(NSRS2007) / Texas North Central (ftUS)
    1659, // NAD83(NSRS2007) / Texas North (ftUS)
    1662, // NAD83(NSRS2007) / Texas South
    1664, // NAD83(NSRS2007) / Texas South Central
    1665, // NAD83(NSRS2007) / Texas South Central (ftUS)
    1663, // NAD83(NSRS2007) / Texas South (ftUS)
    1666, // NAD83(NSRS2007) / Utah Central
    1667, // NAD83(NSRS2007) / Utah Central (ft)
    1668, // NAD83(NSRS2007) / Utah Central (ftUS)
    1669, // NAD83(NSRS2007) / Utah North
    1670, // NAD83(NSRS2007) / Utah North (ft)
    1671, // NAD83(NSRS2007) / Utah North (ftUS)
    1672, // NAD83(NSRS2007) / Utah South
    1673, // NAD83(NSRS2007) / Utah South (ft)
    1674, // NAD83(NSRS2007) / Utah South (ftUS)
    1708, // NAD83(NSRS2007) / UTM zone 10N
    1709, // NAD83(NSRS2007) / UTM zone 11N
    1710, // NAD83(NSRS2007) / UTM zone 12N
    1711, // NAD83(NSRS2007) / UTM zone 13N
    1712, // NAD83(NSRS2007) / UTM zone 14N
    1713, // NAD83(NSRS2007) / UTM zone 15N
    1714, // NAD83(NSRS2007) / UTM zone 16N
    1715, // NAD83(NSRS2007) / UTM zone 17N
    1716, // NAD83(NSRS2007) / UTM zone 18N
    1717, // NAD83(NSRS2007) / UTM zone 19N
    1699, // NAD83(NSRS2007) / UTM zone 1N
    1700, // NAD83(NSRS2007) / UTM zone 2N
    1701, // NAD83(NSRS2007) / UTM zone 3N
    1702, // NAD83(NSRS2007) / UTM zone 4N
    1697, // NAD83(NSRS2007) / UTM zone 59N
    1703, // NAD83(NSRS2007) / UTM zone 5N
    1698, // NAD83(NSRS2007) / UTM zone 60N
    1704, // NAD83(NSRS2007) / UTM zone 6N
    1705, // NAD83(NSRS2007) / UTM zone 7N
    1706, // NAD83(NSRS2007) / UTM zone 8N
    1707, // NAD83(NSRS2007) / UTM zone 9N
    1675, // NAD83(NSRS2007) / Vermont
    2803, // NAD83(NSRS2007) / Vermont (ftUS)
    1865, // NAD83(NSRS2007) / Virginia Lambert
    1676, // NAD83(NSRS2007) / Virginia North
    1677, // NAD83(NSRS2007) / Virginia North (ftUS)
    1678, // NAD83(NSRS2007) / Virginia South
    1679, // NAD83(NSRS2007) / Virginia South (ftUS)
    1680, // NAD83(NSRS2007) / Washington North
    1681, // NAD83(NSRS2007) / Washington North (ftUS)
    1682, // NAD83(NSRS2007) / Washington South
    1683, // NAD83(NSRS2007) / Washington South (ftUS)
    1684, // NAD83(NSRS2007) / West Virginia North
    5138, // NAD83(NSRS2007) / West Virginia North (ftUS)
    5162, // NAD83(NSRS2007) / West Virginia North (ftUS)
    1685, // NAD83(NSRS2007) / West Virginia South
    5139, // NAD83(NSRS2007) / West Virginia South (ftUS)
    5163, // NAD83(NSRS2007) / West Virginia South (ftUS)
    1686, // NAD83(NSRS2007) / Wisconsin Central
    1687, // NAD83(NSRS2007) / Wisconsin Central (ftUS)
    1688, // NAD83(NSRS2007) / Wisconsin North
    1689, // NAD83(NSRS2007) / Wisconsin North (ftUS)
    1690, // NAD83(NSRS2007) / Wisconsin South
    1691, // NAD83(NSRS2007) / Wisconsin South (ftUS)
    1692, // NAD83(NSRS2007) / Wisconsin Transverse Mercator
    1693, // NAD83(NSRS2007) / Wyoming East
    1694, // NAD83(NSRS2007) / Wyoming East Central
    1722, // NAD83(NSRS2007) / Wyoming East Central (ftUS)
    1721, // NAD83(NSRS2007) / Wyoming East (ftUS)
    1696, // NAD83(NSRS2007) / Wyoming West
    1695, // NAD83(NSRS2007) / Wyoming West Central
    1723, // NAD83(NSRS2007) / Wyoming West Central (ftUS)
    1724, // NAD83(NSRS2007) / Wyoming West (ftUS)
    1571, // NAD83 / NWT Lambert
    5690, // NAD83 / Ohio North
    1725, // NAD83 / Ohio North (ftUS)
    5691, // NAD83 / Ohio South
    1726, // NAD83 / Ohio South (ftUS)
    5692, // NAD83 / Oklahoma North
    260, // NAD83 / Oklahoma North (ftUS)
    5693, // NAD83 / Oklahoma South
    261, // NAD83 / Oklahoma South (ftUS)
    1152, // NAD83 / Ontario MNR Lambert
    983, // NAD83 / Oregon GIC Lambert (ft)
    982, // NAD83 / Oregon LCC (m)
    5694, // NAD83 / Oregon North
    262, // NAD83 / Oregon North (ft)
    5695, // NAD83 / Oregon South
    263, // NAD83 / Oregon South (ft)
    2992, // NAD83(PA11)
    3274, // NAD83(PA11) / Hawaii zone 1
    3275, // NAD83(PA11) / Hawaii zone 2
    3276, // NAD83(PA11) / Hawaii zone 3
    3279, // NAD83(PA11) / Hawaii zone 3 (ftUS)
    3277, // NAD83(PA11) / Hawaii zone 4
    3278, // NAD83(PA11) / Hawaii zone 5
    3282, // NAD83(PA11) / UTM zone 2S
    3280, // NAD83(PA11) / UTM zone 4N
    3281, // NAD83(PA11) / UTM zone 5N
    4155, // NAD83(PACP00)
    5696, // NAD83 / Pennsylvania North
    264, // NAD83 / Pennsylvania North (ftUS)
    5697, // NAD83 / Pennsylvania South
    265, // NAD83 / Pennsylvania South (ftUS)
    5726, // NAD83 / Puerto Rico & Virgin Is.
    3269, // NAD83 / Quebec Albers
    5749, // NAD83 / Quebec Lambert
    5698, // NAD83 / Rhode Island
    1429, // NAD83 / Rhode Island (ftUS)
    5731, // NAD83 / SCoPQ zone 2
    5699, // NAD83 / South Carolina
    266, // NAD83 / South Carolina (ft)
    5700, // NAD83 / South Dakota North
    1445, // NAD83 / South Dakota North (ftUS)
    2202, // NAD83 / South Dakota North (ftUS)
    5701, // NAD83 / South Dakota South
    1446, // NAD83 / South Dakota South (ftUS)
    1338, // NAD83 / Statistics Canada Lambert
    5702, // NAD83 / Tennessee
    267, // NAD83 / Tennessee (ftUS)
    2672, // NAD83 / Teranet Ontario Lambert
    5705, // NAD83 / Texas Central
    270, // NAD83 / Texas Central (ftUS)
    1074, // NAD83 / Texas Centric Albers Equal Area
    1073, // NAD83 / Texas Centric Lambert Conformal
    5703, // NAD83 / Texas North
    5704, // NAD83 / Texas North Central
    269, // NAD83 / Texas North Central (ftUS)
    268, // NAD83 / Texas North (ftUS)
    5707, // NAD83 / Texas South
    5706, // NAD83 / Texas South Central
    271, // NAD83 / Texas South Central (ftUS)
    272, // NAD83 / Texas South (ftUS)
    1072, // NAD83 / Texas State Mapping System
    4251, // NAD83 / USFS R6 Albers
    5709, // NAD83 / Utah Central
    274, // NAD83 / Utah Central (ft)
    1557, // NAD83 / Utah Central (ftUS)
    5708, // NAD83 / Utah North
    273, // NAD83 / Utah North (ft)
    1551, // NAD83 / Utah North (ftUS)
    5710, // NAD83 / Utah South
    275, // NAD83 / Utah South (ft)
    1558, // NAD83 / Utah South (ftUS)
    5182, // NAD83 / UTM zone 10N
    5183, // NAD83 / UTM zone 11N
    5184, // NAD83 / UTM zone 12N
    5185, // NAD83 / UTM zone 13N
    5186, // NAD83 / UTM zone 14N
    5187, // NAD83 / UTM zone 15N
    5188, // NAD83 / UTM zone 16N
    5189, // NAD83 / UTM zone 17N
    5190, // NAD83 / UTM zone 18N
    5191, // NAD83 / UTM zone 19N
    5173, // NAD83 / UTM zone 1N
    5192, // NAD83 / UTM zone 20N
    5193, // NAD83 / UTM zone 21N
    5194, // NAD83 / UTM zone 22N
    5195, // NAD83 / UTM zone 23N
    4260, // NAD83 / UTM zone 24N
    5174, // NAD83 / UTM zone 2N
    5175, // NAD83 / UTM zone 3N
    5176, // NAD83 / UTM zone 4N
    1363, // NAD83 / UTM zone 59N
    5177, // NAD83 / UTM zone 5N
    1364, // NAD83 / UTM zone 60N
    5178, // NAD83 / UTM zone 6N
    5179, // NAD83 / UTM zone 7N
    5180, // NAD83 / UTM zone 8N
    5181, // NAD83 / UTM zone 9N
    5711, // NAD83 / Vermont
    2796, // NAD83 / Vermont (ftUS)
    1863, // NAD83 / Virginia Lambert
    5712, // NAD83 / Virginia North
    276, // NAD83 / Virginia North (ftUS)
    5713, // NAD83 / Virginia South
    277, // NAD83 / Virginia South (ftUS)
    5714, // NAD83 / Washington North
    278, // NAD83 / Washington North (ftUS)
    5715, // NAD83 / Washington South
    279, // NAD83 / Washington South (ftUS)
    5716, // NAD83 / West Virginia North
    5122, // NAD83 / West Virginia North (ftUS)
    5146, // NAD83 / West Virginia North (ftUS)
    5717, // NAD83 / West Virginia South
    5123, // NAD83 / West Virginia South (ftUS)
    5147, // NAD83 / West Virginia South (ftUS)
    5719, // NAD83 / Wisconsin Central
    281, // NAD83 / Wisconsin Central (ftUS)
    5718, // NAD83 / Wisconsin North
    280, // NAD83 / Wisconsin North (ftUS)
    5720, // NAD83 / Wisconsin South
    282, // NAD83 / Wisconsin South (ftUS)
    1061, // NAD83 / Wisconsin Transverse Mercator
    5721, // NAD83 / Wyoming East
    5722, // NAD83 / Wyoming East Central
    1728, // NAD83 / Wyoming East Central (ftUS)
    1727, // NAD83 / Wyoming East (ftUS)
    5725, // NAD83 / Wyoming Lambert
    5724, // NAD83 / Wyoming West
    5723, // NAD83 / Wyoming West Central
    1729, // NAD83 / Wyoming West Central (ftUS)
    1730, // NAD83 / Wyoming West (ftUS)
    1569, // NAD83 / Yukon Albers
    5114, // NAD Michigan / Michigan Central
    5110, // NAD Michigan / Michigan East
    5113, // NAD Michigan / Michigan North
    5111, // NAD Michigan / Michigan Old Central
    5115, // NAD Michigan / Michigan South
    5112, // NAD Michigan / Michigan West
    2447, // Nahrwan 1934
    1385, // Nahrwan 1934 / Iraq zone
    3445, // Nahrwan 1934 / UTM zone 37N
    3446, // Nahrwan 1934 / UTM zone 38N
    3447, // Nahrwan 1934 / UTM zone 39N
    2102, // Nahrwan 1967
    5265, // Nahrwan 1967 / UTM zone 37N
    5266, // Nahrwan 1967 / UTM zone 38N
    5267, // Nahrwan 1967 / UTM zone 39N
    5268, // Nahrwan 1967 / UTM zone 40N
    2396, // Nakhl-e Ghanem
    1298, // Nakhl-e Ghanem / UTM zone 39N
    1993, // Naparima 1955
    67, // Naparima 1955 / UTM zone 20N
    2103, // Naparima 1972
    5269, // Naparima 1972 / UTM zone 20N
    2557, // NDG (Paris)
    2351, // NEA74 Noumea
    1156, // NEA74 Noumea / Noumea Lambert
    1157, // NEA74 Noumea / Noumea Lambert 2
    989, // NEA74 Noumea / UTM zone 58S
    2952, // Nepal 1981
    2282, // New Beijing
    2355, // New Beijing / 3-degree Gauss-Kruger zone 25
    2356, // New Beijing / 3-degree Gauss-Kruger zone 26
    2357, // New Beijing / 3-degree Gauss-Kruger zone 27
    2358, // New Beijing / 3-degree Gauss-Kruger zone 28
    2359, // New Beijing / 3-degree Gauss-Kruger zone 29
    2469, // New Beijing / 3-degree Gauss-Kruger zone 30
    2470, // New Beijing / 3-degree Gauss-Kruger zone 31
    2471, // New Beijing / 3-degree Gauss-Kruger zone 32
    2472, // New Beijing / 3-degree Gauss-Kruger zone 33
    2473, // New Beijing / 3-degree Gauss-Kruger zone 34
    2474, // New Beijing / 3-degree Gauss-Kruger zone 35
    2475, // New Beijing / 3-degree Gauss-Kruger zone 36
    2476, // New Beijing / 3-degree Gauss-Kruger zone 37
    2477, // New Beijing / 3-degree Gauss-Kruger zone 38
    2478, // New Beijing / 3-degree Gauss-Kruger zone 39
    2479, // New Beijing / 3-degree Gauss-Kruger zone 40
    2480, // New Beijing / 3-degree Gauss-Kruger zone 41
    2481, // New Beijing / 3-degree Gauss-Kruger zone 42
    2482, // New Beijing / 3-degree Gauss-Kruger zone 43
    2483, // New Beijing / 3-degree Gauss-Kruger zone 44
    2484, // New Beijing / 3-degree Gauss-Kruger zone 45
    2494, // New Beijing / 3-degree Gauss-Kruger CM 102E
    2495, // New Beijing / 3-degree Gauss-Kruger CM 105E
    2496, // New Beijing / 3-degree Gauss-Kruger CM 108E
    2497, // New Beijing / 3-degree Gauss-Kruger CM 111E
    2498, // New Beijing / 3-degree Gauss-Kruger CM 114E
    2499, // New Beijing / 3-degree Gauss-Kruger CM 117E
    2500, // New Beijing / 3-degree Gauss-Kruger CM 120E
    2501, // New Beijing / 3-degree Gauss-Kruger CM 123E
    2502, // New Beijing / 3-degree Gauss-Kruger CM 126E
    2503, // New Beijing / 3-degree Gauss-Kruger CM 129E
    2515, // New Beijing / 3-degree Gauss-Kruger CM 132E
    2525, // New Beijing / 3-degree Gauss-Kruger CM 135E
    2485, // New Beijing / 3-degree Gauss-Kruger CM 75E
    2486, // New Beijing / 3-degree Gauss-Kruger CM 78E
    2487, // New Beijing / 3-degree Gauss-Kruger CM 81E
    2488, // New Beijing / 3-degree Gauss-Kruger CM 84E
    2489, // New Beijing / 3-degree Gauss-Kruger CM 87E
    2490, // New Beijing / 3-degree Gauss-Kruger CM 90E
    2491, // New Beijing / 3-degree Gauss-Kruger CM 93E
    2492, // New Beijing / 3-degree Gauss-Kruger CM 96E
    2493, // New Beijing / 3-degree Gauss-Kruger CM 99E
    2285, // New Beijing / Gauss-Kruger zone 13
    2286, // New Beijing / Gauss-Kruger zone 14
    2287, // New Beijing / Gauss-Kruger zone 15
    2288, // New Beijing / Gauss-Kruger zone 16
    2289, // New Beijing / Gauss-Kruger zone 17
    2290, // New Beijing / Gauss-Kruger zone 18
    2291, // New Beijing / Gauss-Kruger zone 19
    2292, // New Beijing / Gauss-Kruger zone 20
    2293, // New Beijing / Gauss-Kruger zone 21
    2294, // New Beijing / Gauss-Kruger zone 22
    2295, // New Beijing / Gauss-Kruger zone 23
    2301, // New Beijing / Gauss-Kruger CM 105E
    2302, // New Beijing / Gauss-Kruger CM 111E
    2303, // New Beijing / Gauss-Kruger CM 117E
    2304, // New Beijing / Gauss-Kruger CM 123E
    2305, // New Beijing / Gauss-Kruger CM 129E
    2306, // New Beijing / Gauss-Kruger CM 135E
    2296, // New Beijing / Gauss-Kruger CM 75E
    2297, // New Beijing / Gauss-Kruger CM 81E
    2298, // New Beijing / Gauss-Kruger CM 87E
    2299, // New Beijing / Gauss-Kruger CM 93E
    2300, // New Beijing / Gauss-Kruger CM 99E
    2148, // NGN
    5559, // NGN / UTM zone 38N
    5560, // NGN / UTM zone 39N
    2105, // NGO 1948
    2520, // NGO 1948 (Oslo)
    5304, // NGO 1948 (Oslo) / NGO zone I
    5305, // NGO 1948 (Oslo) / NGO zone II
    5306, // NGO 1948 (Oslo) / NGO zone III
    5307, // NGO 1948 (Oslo) / NGO zone IV
    5308, // NGO 1948 (Oslo) / NGO zone V
    5309, // NGO 1948 (Oslo) / NGO zone VI
    5310, // NGO 1948 (Oslo) / NGO zone VII
    5311, // NGO 1948 (Oslo) / NGO zone VIII
    2137, // Nord Sahara 1959
    5501, // Nord Sahara 1959 / Nord Algerie
    2522, // Nord Sahara 1959 (Paris)
    5502, // Nord Sahara 1959 / Sud Algerie
    5497, // Nord Sahara 1959 / UTM zone 29N
    5498, // Nord Sahara 1959 / UTM zone 30N
    5499, // Nord Sahara 1959 / UTM zone 31N
    5500, // Nord Sahara 1959 / UTM zone 32N
    2383, // Nouakchott 1965
    1401, // NSIDC EASE-Grid Global
    1399, // NSIDC EASE-Grid North
    1400, // NSIDC EASE-Grid South
    1402, // NSIDC Sea Ice Polar Stereographic North
    1403, // NSIDC Sea Ice Polar Stereographic South
    2108, // NSWC 9Z-2
    2107, // NTF
    2510, // NTF (Paris)
    5329, // NTF (Paris) / Centre France
    5331, // NTF (Paris) / Corse
    5324, // NTF (Paris) / France I
    5325, // NTF (Paris) / France II
    5326, // NTF (Paris) / France III
    5327, // NTF (Paris) / France IV
    5317, // NTF (Paris) / Lambert Centre France
    5319, // NTF (Paris) / Lambert Corse
    5320, // NTF (Paris) / Lambert zone I
    5321, // NTF (Paris) / Lambert zone II
    5322, // NTF (Paris) / Lambert zone III
    5323, // NTF (Paris) / Lambert zone IV
    5316, // NTF (Paris) / Lambert Nord France
    5318, // NTF (Paris) / Lambert Sud France
    5328, // NTF (Paris) / Nord France
    5330, // NTF (Paris) / Sud France
    2002, // NZGD2000
    119, // NZGD2000 / Amuri 2000
    1781, // NZGD2000 / Antipodes Islands TM 2000
    1779, // NZGD2000 / Auckland Islands TM 2000
    106, // NZGD2000 / Bay of Plenty 2000
    132, // NZGD2000 / Bluff 2000
    117, // NZGD2000 / Buller 2000
    1780, // NZGD2000 / Campbell Island TM 2000
    1755, // NZGD2000 / Chatham Island Circuit 2000
    1783, // NZGD2000 / Chatham Islands TM 2000
    114, // NZGD2000 / Collingwood 2000
    125, // NZGD2000 / Gawler 2000
    118, // NZGD2000 / Grey 2000
    108, // NZGD2000 / Hawkes Bay 2000
    121, // NZGD2000 / Hokitika 2000
    123, // NZGD2000 / Jacksons Bay 2000
    116, // NZGD2000 / Karamea 2000
    127, // NZGD2000 / Lindis Peak 2000
    120, // NZGD2000 / Marlborough 2000
    105, // NZGD2000 / Mount Eden 2000
    128, // NZGD2000 / Mount Nicholas 2000
    124, // NZGD2000 / Mount Pleasant 2000
    129, // NZGD2000 / Mount York 2000
    115, // NZGD2000 / Nelson 2000
    186, // NZGD2000 / New Zealand Transverse Mercator 2000
    131, // NZGD2000 / North Taieri 2000
    1824, // NZGD2000 / NZCS2000
    130, // NZGD2000 / Observation Point 2000
    122, // NZGD2000 / Okarito 2000
    107, // NZGD2000 / Poverty Bay 2000
    1782, // NZGD2000 / Raoul Island TM 2000
    109, // NZGD2000 / Taranaki 2000
    126, // NZGD2000 / Timaru 2000
    110, // NZGD2000 / Tuhirangi 2000
    2828, // NZGD2000 / UTM zone 1S
    133, // NZGD2000 / UTM zone 58S
    134, // NZGD2000 / UTM zone 59S
    135, // NZGD2000 / UTM zone 60S
    112, // NZGD2000 / Wairarapa 2000
    111, // NZGD2000 / Wanganui 2000
    113, // NZGD2000 / Wellington 2000
    2104, // NZGD49
    5285, // NZGD49 / Amuri Circuit
    5272, // NZGD49 / Bay of Plenty Circuit
    5298, // NZGD49 / Bluff Circuit
    5283, // NZGD49 / Buller Circuit
    5280, // NZGD49 / Collingwood Circuit
    5291, // NZGD49 / Gawler Circuit
    5284, // NZGD49 / Grey Circuit
    5274, // NZGD49 / Hawkes Bay Circuit
    5287, // NZGD49 / Hokitika Circuit
    5289, // NZGD49 / Jacksons Bay Circuit
    5282, // NZGD49 / Karamea Circuit
    5293, // NZGD49 / Lindis Peak Circuit
    5286, // NZGD49 / Marlborough Circuit
    5271, // NZGD49 / Mount Eden Circuit
    5294, // NZGD49 / Mount Nicholas Circuit
    5290, // NZGD49 / Mount Pleasant Circuit
    5295, // NZGD49 / Mount York Circuit
    5281, // NZGD49 / Nelson Circuit
    5270, // NZGD49 / New Zealand Map Grid
    5302, // NZGD49 / North Island Grid
    5297, // NZGD49 / North Taieri Circuit
    5296, // NZGD49 / Observation Point Circuit
    5288, // NZGD49 / Okarito Circuit
    5273, // NZGD49 / Poverty Bay Circuit
    5303, // NZGD49 / South Island Grid
    5275, // NZGD49 / Taranaki Circuit
    5292, // NZGD49 / Timaru Circuit
    5276, // NZGD49 / Tuhirangi Circuit
    5299, // NZGD49 / UTM zone 58S
    5300, // NZGD49 / UTM zone 59S
    5301, // NZGD49 / UTM zone 60S
    5278, // NZGD49 / Wairarapa Circuit
    5277, // NZGD49 / Wanganui Circuit
    5279, // NZGD49 / Wellington Circuit
    1964, // Observatario
    2707, // Ocotepeque 1935
    2708, // Ocotepeque 1935 / Costa Rica Norte
    2709, // Ocotepeque 1935 / Costa Rica Sur
    2712, // Ocotepeque 1935 / El Salvador Lambert
    2710, // Ocotepeque 1935 / Guatemala Norte
    2751, // Ocotepeque 1935 / Guatemala Norte
    2711, // Ocotepeque 1935 / Guatemala Sur
    2713, // Ocotepeque 1935 / Nicaragua Norte
    2714, // Ocotepeque 1935 / Nicaragua Sur
    1970, // Old Hawaiian
    1552, // Old Hawaiian / Hawaii zone 1
    1553, // Old Hawaiian / Hawaii zone 2
    1554, // Old Hawaiian / Hawaii zone 3
    1555, // Old Hawaiian / Hawaii zone 4
    1556, // Old Hawaiian / Hawaii zone 5
    3619, // ONGD14
    3620, // ONGD14 / UTM zone 39N
    3621, // ONGD14 / UTM zone 40N
    3622, // ONGD14 / UTM zone 41N
    4199, // ONGD17
    4200, // ONGD17 / UTM zone 39N
    4201, // ONGD17 / UTM zone 40N
    4202, // ONGD17 / UTM zone 41N
    2109, // OSGB36
    5332, // OSGB36 / British National Grid
    2110, // OSGB70
    2020, // OSNI 1952
    5468, // OSNI 1952 / Irish National Grid
    2111, // OS(SN)80
    2112, // Padang
    2511, // Padang (Jakarta)
    2113, // Palestine 1923
    5335, // Palestine 1923 / Israeli CS Grid
    5334, // Palestine 1923 / Palestine Belt
    5333, // Palestine 1923 / Palestine Grid
    3504, // Palestine 1923 / Palestine Grid modified
    1996, // Pampa del Castillo
    4197, // Pampa del Castillo / Argentina 1
    82, // Pampa del Castillo / Argentina 2
    4198, // Pampa del Castillo / Argentina 3
    2718, // Panama-Colon 1911
    2719, // Panama-Colon 1911 / Panama Lambert
    2720, // Panama-Colon 1911 / Panama Polyconic
    2449, // PD/83
    1387, // PD/83 / 3-degree Gauss-Kruger zone 3
    2808, // PD/83 / 3-degree Gauss-Kruger zone 3 (E-N)
    1388, // PD/83 / 3-degree Gauss-Kruger zone 4
    2809, // PD/83 / 3-degree Gauss-Kruger zone 4 (E-N)
    2344, // Perroud 1950
    977, // Perroud 1950 / Terre Adelie Polar Stereographic
    2698, // Peru96
    2703, // Peru96 / UTM zone 17S
    2832, // Peru96 / UTM zone 17S
    2702, // Peru96 / UTM zone 18S
    2704, // Peru96 / UTM zone 19S
    2343, // Petrels 1972
    976, // Petrels 1972 / Terre Adelie Polar Stereographic
    2419, // Phoenix Islands 1966
    2432, // Pitcairn 1967
    1775, // Pitcairn 1967 / UTM zone 9S
    2466, // Pitcairn 2006
    1774, // Pitcairn 2006 / Pitcairn TM 2006
    4223, // PN68
    4224, // PN68 / UTM zone 27N
    4225, // PN68 / UTM zone 28N
    2431, // PN84
    4226, // PN84 / UTM zone 27N
    4227, // PN84 / UTM zone 28N
    2747, // PNG94
    2748, // PNG94 / PNGMG94 zone 54
    2749, // PNG94 / PNGMG94 zone 55
    2750, // PNG94 / PNGMG94 zone 56
    4326, // PNG94 / PNGMG94 zone 57
    4327, // PNG94 / PNGMG94 zone 58
    2327, // Point 58
    2114, // Pointe Noire
    5336, // Pointe Noire / UTM zone 32S
    1935, // Popular Visualisation CRS
    1776, // Popular Visualisation CRS / Mercator
    2322, // Porto Santo
    2366, // Porto Santo 1995
    1052, // Porto Santo 1995 / UTM zone 28N
    934, // Porto Santo / UTM zone 28N
    2007, // POSGAR
    2680, // POSGAR 2007
    2681, // POSGAR 2007 / Argentina 1
    2682, // POSGAR 2007 / Argentina 2
    2683, // POSGAR 2007 / Argentina 3
    2684, // POSGAR 2007 / Argentina 4
    2685, // POSGAR 2007 / Argentina 5
    2686, // POSGAR 2007 / Argentina 6
    2687, // POSGAR 2007 / Argentina 7
    4249, // POSGAR 2007 / CABA 2019
    4193, // POSGAR 2007 / UTM zone 19S
    2397, // POSGAR 94
    4693, // POSGAR 94 / Argentina 1
    4694, // POSGAR 94 / Argentina 2
    4695, // POSGAR 94 / Argentina 3
    4696, // POSGAR 94 / Argentina 4
    4697, // POSGAR 94 / Argentina 5
    4698, // POSGAR 94 / Argentina 6
    4699, // POSGAR 94 / Argentina 7
    2022, // POSGAR 98
    4686, // POSGAR 98 / Argentina 1
    4687, // POSGAR 98 / Argentina 2
    4688, // POSGAR 98 / Argentina 3
    4689, // POSGAR 98 / Argentina 4
    4690, // POSGAR 98 / Argentina 5
    4691, // POSGAR 98 / Argentina 6
    4692, // POSGAR 98 / Argentina 7
    2527, // Principe
    2386, // PRS92
    1112, // PRS92 / Philippines zone 1
    1113, // PRS92 / Philippines zone 2
    1114, // PRS92 / Philippines zone 3
    1115, // PRS92 / Philippines zone 4
    1116, // PRS92 / Philippines zone 5
    2080, // PSAD56
    309, // PSAD56 / ICN Regional
    4986, // PSAD56 / Peru central zone
    4987, // PSAD56 / Peru east zone
    4985, // PSAD56 / Peru west zone
    4974, // PSAD56 / UTM zone 17N
    4979, // PSAD56 / UTM zone 17S
    4975, // PSAD56 / UTM zone 18N
    4980, // PSAD56 / UTM zone 18S
    4976, // PSAD56 / UTM zone 19N
    4981, // PSAD56 / UTM zone 19S
    4977, // PSAD56 / UTM zone 20N
    4982, // PSAD56 / UTM zone 20S
    4978, // PSAD56 / UTM zone 21N
    4983, // PSAD56 / UTM zone 21S
    4984, // PSAD56 / UTM zone 22S
    1969, // PSD93
    1430, // PSD93 / UTM zone 39N
    1431, // PSD93 / UTM zone 40N
    2560, // PTRA08
    2786, // PTRA08 / LAEA Europe
    2785, // PTRA08 / LCC Europe
    2561, // PTRA08 / UTM zone 25N
    2562, // PTRA08 / UTM zone 26N
    2563, // PTRA08 / UTM zone 28N
    1974, // Puerto Rico
    1877, // Puerto Rico State Plane CS of 1927
    1878, // Puerto Rico / St. Croix
    1853, // Puerto Rico / UTM zone 20N
    2116, // Pulkovo 1942
    518, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 10
    519, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 11
    520, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 12
    521, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 13
    522, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 14
    523, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 15
    524, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 16
    525, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 17
    526, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 18
    527, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 19
    528, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 20
    529, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 21
    530, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 22
    531, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 23
    532, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 24
    533, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 25
    534, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 26
    535, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 27
    536, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 28
    537, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 29
    538, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 30
    539, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 31
    540, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 32
    541, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 33
    543, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 34
    544, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 35
    545, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 36
    546, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 37
    547, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 38
    548, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 39
    549, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 40
    550, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 41
    551, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 42
    552, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 43
    553, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 44
    554, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 45
    555, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 46
    556, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 47
    557, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 48
    558, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 49
    559, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 50
    560, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 51
    561, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 52
    562, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 53
    563, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 54
    564, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 55
    565, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 56
    566, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 57
    567, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 58
    568, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 59
    1137, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 6
    569, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 60
    1380, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 60
    570, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 61
    571, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 62
    572, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 63
    573, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 64
    515, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 7
    516, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 8
    517, // Pulkovo 1942 / 3-degree Gauss-Kruger zone 9
    602, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 102E
    603, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 105E
    604, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 108E
    605, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 111E
    606, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 114E
    607, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 117E
    608, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 120E
    609, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 123E
    610, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 126E
    611, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 129E
    612, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 132E
    613, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 135E
    614, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 138E
    615, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 141E
    616, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 144E
    617, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 147E
    618, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 150E
    619, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 153E
    620, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 156E
    621, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 159E
    622, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 162E
    623, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 165E
    624, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 168E
    632, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 168W
    625, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 171E
    631, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 171W
    626, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 174E
    630, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 174W
    627, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 177E
    629, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 177W
    628, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 180E
    1138, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 18E
    574, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 21E
    575, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 24E
    576, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 27E
    577, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 30E
    578, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 33E
    579, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 36E
    580, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 39E
    581, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 42E
    582, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 45E
    583, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 48E
    584, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 51E
    585, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 54E
    586, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 57E
    587, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 60E
    588, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 63E
    589, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 66E
    590, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 69E
    591, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 72E
    593, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 75E
    594, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 78E
    595, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 81E
    596, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 84E
    597, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 87E
    598, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 90E
    599, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 93E
    600, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 96E
    601, // Pulkovo 1942 / 3-degree Gauss-Kruger CM 99E
    2013, // Pulkovo 1942(58)
    1813, // Pulkovo 1942(58) / 3-degree Gauss-Kruger zone 10
    1810, // Pulkovo 1942(58) / 3-degree Gauss-Kruger zone 3
    2812, // Pulkovo 1942(58) / 3-degree Gauss-Kruger zone 3 (E-N)
    1811, // Pulkovo 1942(58) / 3-degree Gauss-Kruger zone 4
    2813, // Pulkovo 1942(58) / 3-degree Gauss-Kruger zone 4 (E-N)
    1320, // Pulkovo 1942(58) / 3-degree Gauss-Kruger zone 5
    2814, // Pulkovo 1942(58) / 3-degree Gauss-Kruger zone 5 (E-N)
    1321, // Pulkovo 1942(58) / 3-degree Gauss-Kruger zone 6
    1322, // Pulkovo 1942(58) / 3-degree Gauss-Kruger zone 7
    1323, // Pulkovo 1942(58) / 3-degree Gauss-Kruger zone 8
    1812, // Pulkovo 1942(58) / 3-degree Gauss-Kruger zone 9
    1806, // Pulkovo 1942(58) / Gauss-Kruger zone 2
    2784, // Pulkovo 1942(58) / Gauss-Kruger zone 2 (E-N)
    1324, // Pulkovo 1942(58) / Gauss-Kruger zone 3
    2805, // Pulkovo 1942(58) / Gauss-Kruger zone 3 (E-N)
    1325, // Pulkovo 1942(58) / Gauss-Kruger zone 4
    1326, // Pulkovo 1942(58) / Gauss-Kruger zone 5
    1319, // Pulkovo 1942(58) / GUGiK-80
    171, // Pulkovo 1942(58) / Poland zone I
    1111, // Pulkovo 1942(58) / Poland zone I
    172, // Pulkovo 1942(58) / Poland zone II
    173, // Pulkovo 1942(58) / Poland zone III
    174, // Pulkovo 1942(58) / Poland zone IV
    175, // Pulkovo 1942(58) / Poland zone V
    1817, // Pulkovo 1942(58) / Stereo70
    2012, // Pulkovo 1942(83)
    389, // Pulkovo 1942(83) / 3-degree Gauss-Kruger zone 3
    2815, // Pulkovo 1942(83) / 3-degree Gauss-Kruger zone 3 (E-N)
    390, // Pulkovo 1942(83) / 3-degree Gauss-Kruger zone 4
    2816, // Pulkovo 1942(83) / 3-degree Gauss-Kruger zone 4 (E-N)
    391, // Pulkovo 1942(83) / 3-degree Gauss-Kruger zone 5
    2817, // Pulkovo 1942(83) / 3-degree Gauss-Kruger zone 5 (E-N)
    1814, // Pulkovo 1942(83) / 3-degree Gauss-Kruger zone 6
    1815, // Pulkovo 1942(83) / 3-degree Gauss-Kruger zone 7
    2179, // Pulkovo 1942(83) / 3-degree Gauss-Kruger zone 7
    1816, // Pulkovo 1942(83) / 3-degree Gauss-Kruger zone 8
    2196, // Pulkovo 1942(83) / 3-degree Gauss-Kruger zone 8
    1807, // Pulkovo 1942(83) / Gauss-Kruger zone 2
    2806, // Pulkovo 1942(83) / Gauss-Kruger zone 2 (E-N)
    166, // Pulkovo 1942(83) / Gauss Kruger zone 3
    1808, // Pulkovo 1942(83) / Gauss-Kruger zone 3
    2807, // Pulkovo 1942(83) / Gauss-Kruger zone 3 (E-N)
    167, // Pulkovo 1942(83) / Gauss Kruger zone 4
    1809, // Pulkovo 1942(83) / Gauss-Kruger zone 4
    168, // Pulkovo 1942(83) / Gauss Kruger zone 5
    1379, // Pulkovo 1942 / Caspian Sea Mercator
    927, // Pulkovo 1942 / CS63 zone A1
    928, // Pulkovo 1942 / CS63 zone A2
    929, // Pulkovo 1942 / CS63 zone A3
    930, // Pulkovo 1942 / CS63 zone A4
    1341, // Pulkovo 1942 / CS63 zone C0
    1342, // Pulkovo 1942 / CS63 zone C1
    1343, // Pulkovo 1942 / CS63 zone C2
    931, // Pulkovo 1942 / CS63 zone K2
    932, // Pulkovo 1942 / CS63 zone K3
    933, // Pulkovo 1942 / CS63 zone K4
    3793, // Pulkovo 1942 / CS63 zone X1
    3794, // Pulkovo 1942 / CS63 zone X2
    3795, // Pulkovo 1942 / CS63 zone X3
    3796, // Pulkovo 1942 / CS63 zone X4
    3797, // Pulkovo 1942 / CS63 zone X5
    3798, // Pulkovo 1942 / CS63 zone X6
    3799, // Pulkovo 1942 / CS63 zone X7
    5356, // Pulkovo 1942 / Gauss-Kruger zone 10
    5387, // Pulkovo 1942 / Gauss-Kruger 10N
    5357, // Pulkovo 1942 / Gauss-Kruger zone 11
    5388, // Pulkovo 1942 / Gauss-Kruger 11N
    5358, // Pulkovo 1942 / Gauss-Kruger zone 12
    5389, // Pulkovo 1942 / Gauss-Kruger 12N
    5359, // Pulkovo 1942 / Gauss-Kruger zone 13
    5390, // Pulkovo 1942 / Gauss-Kruger 13N
    5360, // Pulkovo 1942 / Gauss-Kruger zone 14
    5391, // Pulkovo 1942 / Gauss-Kruger 14N
    5361, // Pulkovo 1942 / Gauss-Kruger zone 15
    5392, // Pulkovo 1942 / Gauss-Kruger 15N
    5362, // Pulkovo 1942 / Gauss-Kruger zone 16
    5393, // Pulkovo 1942 / Gauss-Kruger 16N
    5363, // Pulkovo 1942 / Gauss-Kruger zone 17
    5394, // Pulkovo 1942 / Gauss-Kruger 17N
    5364, // Pulkovo 1942 / Gauss-Kruger zone 18
    5395, // Pulkovo 1942 / Gauss-Kruger 18N
    5365, // Pulkovo 1942 / Gauss-Kruger zone 19
    5396, // Pulkovo 1942 / Gauss-Kruger 19N
    5348, // Pulkovo 1942 / Gauss-Kruger zone 2
    5366, // Pulkovo 1942 / Gauss-Kruger zone 20
    5397, // Pulkovo 1942 / Gauss-Kruger 20N
    5367, // Pulkovo 1942 / Gauss-Kruger zone 21
    5398, // Pulkovo 1942 / Gauss-Kruger 21N
    5368, // Pulkovo 1942 / Gauss-Kruger zone 22
    5399, // Pulkovo 1942 / Gauss-Kruger 22N
    5369, // Pulkovo 1942 / Gauss-Kruger zone 23
    5400, // Pulkovo 1942 / Gauss-Kruger 23N
    5370, // Pulkovo 1942 / Gauss-Kruger zone 24
    5401, // Pulkovo 1942 / Gauss-Kruger 24N
    5371, // Pulkovo 1942 / Gauss-Kruger zone 25
    5402, // Pulkovo 1942 / Gauss-Kruger 25N
    5372, // Pulkovo 1942 / Gauss-Kruger zone 26
    5403, // Pulkovo 1942 / Gauss-Kruger 26N
    5373, // Pulkovo 1942 / Gauss-Kruger zone 27
    5404, // Pulkovo 1942 / Gauss-Kruger 27N
    5374, // Pulkovo 1942 / Gauss-Kruger zone 28
    5405, // Pulkovo 1942 / Gauss-Kruger 28N
    5375, // Pulkovo 1942 / Gauss-Kruger zone 29
    5406, // Pulkovo 1942 / Gauss-Kruger 29N
    5379, // Pulkovo 1942 / Gauss-Kruger 2N
    5349, // Pulkovo 1942 / Gauss-Kruger zone 3
    5376, // Pulkovo 1942 / Gauss-Kruger zone 30
    5407, // Pulkovo 1942 / Gauss-Kruger 30N
    5377, // Pulkovo 1942 / Gauss-Kruger zone 31
    5408, // Pulkovo 1942 / Gauss-Kruger 31N
    5378, // Pulkovo 1942 / Gauss-Kruger zone 32
    5409, // Pulkovo 1942 / Gauss-Kruger 32N
    5380, // Pulkovo 1942 / Gauss-Kruger 3N
    5350, // Pulkovo 1942 / Gauss-Kruger zone 4
    5381, // Pulkovo 1942 / Gauss-Kruger 4N
    5351, // Pulkovo 1942 / Gauss-Kruger zone 5
    5382, // Pulkovo 1942 / Gauss-Kruger 5N
    5352, // Pulkovo 1942 / Gauss-Kruger zone 6
    5383, // Pulkovo 1942 / Gauss-Kruger 6N
    5353, // Pulkovo 1942 / Gauss-Kruger zone 7
    5384, // Pulkovo 1942 / Gauss-Kruger 7N
    5354, // Pulkovo 1942 / Gauss-Kruger zone 8
    5385, // Pulkovo 1942 / Gauss-Kruger 8N
    5355, // Pulkovo 1942 / Gauss-Kruger zone 9
    5386, // Pulkovo 1942 / Gauss-Kruger 9N
    500, // Pulkovo 1942 / Gauss-Kruger CM 105E
    501, // Pulkovo 1942 / Gauss-Kruger CM 111E
    502, // Pulkovo 1942 / Gauss-Kruger CM 117E
    503, // Pulkovo 1942 / Gauss-Kruger CM 123E
    504, // Pulkovo 1942 / Gauss-Kruger CM 129E
    505, // Pulkovo 1942 / Gauss-Kruger CM 135E
    506, // Pulkovo 1942 / Gauss-Kruger CM 141E
    507, // Pulkovo 1942 / Gauss-Kruger CM 147E
    508, // Pulkovo 1942 / Gauss-Kruger CM 153E
    509, // Pulkovo 1942 / Gauss-Kruger CM 159E
    485, // Pulkovo 1942 / Gauss-Kruger CM 15E
    510, // Pulkovo 1942 / Gauss-Kruger CM 165E
    511, // Pulkovo 1942 / Gauss-Kruger CM 171E
    514, // Pulkovo 1942 / Gauss-Kruger CM 171W
    512, // Pulkovo 1942 / Gauss-Kruger CM 177E
    513, // Pulkovo 1942 / Gauss-Kruger CM 177W
    486, // Pulkovo 1942 / Gauss-Kruger CM 21E
    487, // Pulkovo 1942 / Gauss-Kruger CM 27E
    488, // Pulkovo 1942 / Gauss-Kruger CM 33E
    489, // Pulkovo 1942 / Gauss-Kruger CM 39E
    490, // Pulkovo 1942 / Gauss-Kruger CM 45E
    491, // Pulkovo 1942 / Gauss-Kruger CM 51E
    492, // Pulkovo 1942 / Gauss-Kruger CM 57E
    493, // Pulkovo 1942 / Gauss-Kruger CM 63E
    494, // Pulkovo 1942 / Gauss-Kruger CM 69E
    495, // Pulkovo 1942 / Gauss-Kruger CM 75E
    496, // Pulkovo 1942 / Gauss-Kruger CM 81E
    497, // Pulkovo 1942 / Gauss-Kruger CM 87E
    498, // Pulkovo 1942 / Gauss-Kruger CM 93E
    499, // Pulkovo 1942 / Gauss-Kruger CM 99E
    484, // Pulkovo 1942 / Gauss-Kruger CM 9E
    2032, // Pulkovo 1995
    636, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 10
    637, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 11
    638, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 12
    639, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 13
    640, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 14
    641, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 15
    642, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 16
    643, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 17
    644, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 18
    645, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 19
    646, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 20
    647, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 21
    648, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 22
    649, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 23
    650, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 24
    651, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 25
    652, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 26
    653, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 27
    654, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 28
    655, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 29
    656, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 30
    657, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 31
    658, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 32
    659, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 33
    660, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 34
    661, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 35
    662, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 36
    663, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 37
    664, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 38
    665, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 39
    666, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 40
    667, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 41
    668, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 42
    669, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 43
    670, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 44
    671, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 45
    672, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 46
    673, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 47
    674, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 48
    675, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 49
    676, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 50
    677, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 51
    678, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 52
    679, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 53
    680, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 54
    681, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 55
    682, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 56
    683, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 57
    684, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 58
    685, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 59
    1141, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 6
    686, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 60
    1381, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 60
    687, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 61
    688, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 62
    689, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 63
    690, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 64
    633, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 7
    634, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 8
    635, // Pulkovo 1995 / 3-degree Gauss-Kruger zone 9
    718, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 102E
    719, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 105E
    720, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 108E
    721, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 111E
    722, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 114E
    723, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 117E
    724, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 120E
    725, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 123E
    726, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 126E
    727, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 129E
    730, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 132E
    731, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 135E
    732, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 138E
    733, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 141E
    734, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 144E
    735, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 147E
    736, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 150E
    737, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 153E
    738, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 156E
    739, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 159E
    740, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 162E
    741, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 165E
    742, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 168E
    750, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 168W
    743, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 171E
    749, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 171W
    744, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 174E
    748, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 174W
    745, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 177E
    747, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 177W
    746, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 180E
    1142, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 18E
    691, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 21E
    692, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 24E
    693, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 27E
    694, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 30E
    695, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 33E
    696, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 36E
    697, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 39E
    698, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 42E
    699, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 45E
    700, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 48E
    701, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 51E
    702, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 54E
    703, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 57E
    704, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 60E
    705, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 63E
    706, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 66E
    707, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 69E
    708, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 72E
    709, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 75E
    710, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 78E
    711, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 81E
    712, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 84E
    713, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 87E
    714, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 90E
    715, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 93E
    716, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 96E
    717, // Pulkovo 1995 / 3-degree Gauss-Kruger CM 99E
    4348, // Pulkovo 1995 / Gauss-Kruger zone 10
    4384, // Pulkovo 1995 / Gauss-Kruger 10N
    4349, // Pulkovo 1995 / Gauss-Kruger zone 11
    4385, // Pulkovo 1995 / Gauss-Kruger 11N
    4350, // Pulkovo 1995 / Gauss-Kruger zone 12
    4386, // Pulkovo 1995 / Gauss-Kruger 12N
    4351, // Pulkovo 1995 / Gauss-Kruger zone 13
    4387, // Pulkovo 1995 / Gauss-Kruger 13N
    4352, // Pulkovo 1995 / Gauss-Kruger zone 14
    4388, // Pulkovo 1995 / Gauss-Kruger 14N
    4353, // Pulkovo 1995 / Gauss-Kruger zone 15
    4389, // Pulkovo 1995 / Gauss-Kruger 15N
    4354, // Pulkovo 1995 / Gauss-Kruger zone 16
    4390, // Pulkovo 1995 / Gauss-Kruger 16N
    4355, // Pulkovo 1995 / Gauss-Kruger zone 17
    4391, // Pulkovo 1995 / Gauss-Kruger 17N
    4356, // Pulkovo 1995 / Gauss-Kruger zone 18
    4392, // Pulkovo 1995 / Gauss-Kruger 18N
    4357, // Pulkovo 1995 / Gauss-Kruger zone 19
    4393, // Pulkovo 1995 / Gauss-Kruger 19N
    4358, // Pulkovo 1995 / Gauss-Kruger zone 20
    4394, // Pulkovo 1995 / Gauss-Kruger 20N
    4359, // Pulkovo 1995 / Gauss-Kruger zone 21
    4395, // Pulkovo 1995 / Gauss-Kruger 21N
    4360, // Pulkovo 1995 / Gauss-Kruger zone 22
    4396, // Pulkovo 1995 / Gauss-Kruger 22N
    4361, // Pulkovo 1995 / Gauss-Kruger zone 23
    4397, // Pulkovo 1995 / Gauss-Kruger 23N
    4362, // Pulkovo 1995 / Gauss-Kruger zone 24
    4398, // Pulkovo 1995 / Gauss-Kruger 24N
    4363, // Pulkovo 1995 / Gauss-Kruger zone 25
    4399, // Pulkovo 1995 / Gauss-Kruger 25N
    4364, // Pulkovo 1995 / Gauss-Kruger zone 26
    4400, // Pulkovo 1995 / Gauss-Kruger 26N
    4365, // Pulkovo 1995 / Gauss-Kruger zone 27
    4401, // Pulkovo 1995 / Gauss-Kruger 27N
    4366, // Pulkovo 1995 / Gauss-Kruger zone 28
    4402, // Pulkovo 1995 / Gauss-Kruger 28N
    4367, // Pulkovo 1995 / Gauss-Kruger zone 29
    4403, // Pulkovo 1995 / Gauss-Kruger 29N
    4368, // Pulkovo 1995 / Gauss-Kruger zone 30
    4404, // Pulkovo 1995 / Gauss-Kruger 30N
    4369, // Pulkovo 1995 / Gauss-Kruger zone 31
    4405, // Pulkovo 1995 / Gauss-Kruger 31N
    4370, // Pulkovo 1995 / Gauss-Kruger zone 32
    4406, // Pulkovo 1995 / Gauss-Kruger 32N
    4342, // Pulkovo 1995 / Gauss-Kruger zone 4
    4378, // Pulkovo 1995 / Gauss-Kruger 4N
    4343, // Pulkovo 1995 / Gauss-Kruger zone 5
    4379, // Pulkovo 1995 / Gauss-Kruger 5N
    4344, // Pulkovo 1995 / Gauss-Kruger zone 6
    4380, // Pulkovo 1995 / Gauss-Kruger 6N
    4345, // Pulkovo 1995 / Gauss-Kruger zone 7
    4381, // Pulkovo 1995 / Gauss-Kruger 7N
    4346, // Pulkovo 1995 / Gauss-Kruger zone 8
    4382, // Pulkovo 1995 / Gauss-Kruger 8N
    4347, // Pulkovo 1995 / Gauss-Kruger zone 9
    4383, // Pulkovo 1995 / Gauss-Kruger 9N
    469, // Pulkovo 1995 / Gauss-Kruger CM 105E
    470, // Pulkovo 1995 / Gauss-Kruger CM 111E
    471, // Pulkovo 1995 / Gauss-Kruger CM 117E
    472, // Pulkovo 1995 / Gauss-Kruger CM 123E
    473, // Pulkovo 1995 / Gauss-Kruger CM 129E
    474, // Pulkovo 1995 / Gauss-Kruger CM 135E
    475, // Pulkovo 1995 / Gauss-Kruger CM 141E
    476, // Pulkovo 1995 / Gauss-Kruger CM 147E
    477, // Pulkovo 1995 / Gauss-Kruger CM 153E
    478, // Pulkovo 1995 / Gauss-Kruger CM 159E
    479, // Pulkovo 1995 / Gauss-Kruger CM 165E
    480, // Pulkovo 1995 / Gauss-Kruger CM 171E
    483, // Pulkovo 1995 / Gauss-Kruger CM 171W
    481, // Pulkovo 1995 / Gauss-Kruger CM 177E
    482, // Pulkovo 1995 / Gauss-Kruger CM 177W
    455, // Pulkovo 1995 / Gauss-Kruger CM 21E
    456, // Pulkovo 1995 / Gauss-Kruger CM 27E
    457, // Pulkovo 1995 / Gauss-Kruger CM 33E
    458, // Pulkovo 1995 / Gauss-Kruger CM 39E
    459, // Pulkovo 1995 / Gauss-Kruger CM 45E
    460, // Pulkovo 1995 / Gauss-Kruger CM 51E
    461, // Pulkovo 1995 / Gauss-Kruger CM 57E
    462, // Pulkovo 1995 / Gauss-Kruger CM 63E
    463, // Pulkovo 1995 / Gauss-Kruger CM 69E
    464, // Pulkovo 1995 / Gauss-Kruger CM 75E
    465, // Pulkovo 1995 / Gauss-Kruger CM 81E
    466, // Pulkovo 1995 / Gauss-Kruger CM 87E
    467, // Pulkovo 1995 / Gauss-Kruger CM 93E
    468, // Pulkovo 1995 / Gauss-Kruger CM 99E
    2443, // PZ-90
    4232, // PZ-90.02
    4233, // PZ-90.11
    2118, // Qatar 1948
    99, // Qatar 1948 / Qatar Grid
    2117, // Qatar 1974
    5410, // Qatar 1974 / Qatar National Grid
    2321, // QND95
    924, // QND95 / Qatar National Grid
    2119, // Qornoq
    2026, // Qornoq 1927
    289, // Qornoq 1927 / Greenland zone 1 east
    290, // Qornoq 1927 / Greenland zone 2 east
    291, // Qornoq 1927 / Greenland zone 2 west
    292, // Qornoq 1927 / Greenland zone 3 east
    293, // Qornoq 1927 / Greenland zone 3 west
    294, // Qornoq 1927 / Greenland zone 4 east
    295, // Qornoq 1927 / Greenland zone 4 west
    296, // Qornoq 1927 / Greenland zone 5 west
    297, // Qornoq 1927 / Greenland zone 6 west
    298, // Qornoq 1927 / Greenland zone 7 west
    299, // Qornoq 1927 / Greenland zone 8 east
    209, // Qornoq 1927 / UTM zone 22N
    210, // Qornoq 1927 / UTM zone 23N
    1988, // Rassadiran
    57, // Rassadiran / Nakhl e Taqi
    2448, // RD/83
    1389, // RD/83 / 3-degree Gauss-Kruger zone 4
    2810, // RD/83 / 3-degree Gauss-Kruger zone 4 (E-N)
    1390, // RD/83 / 3-degree Gauss-Kruger zone 5
    2811, // RD/83 / 3-degree Gauss-Kruger zone 5 (E-N)
    3311, // RDN2008
    3785, // RDN2008 / Zone 12 (E-N)
    3411, // RDN2008 / Zone 12 (N-E)
    3784, // RDN2008 / Italy zone (E-N)
    3410, // RDN2008 / Italy zone (N-E)
    3781, // RDN2008 / UTM zone 32N
    3312, // RDN2008 / UTM zone 32N (N-E)
    3782, // RDN2008 / UTM zone 33N
    3313, // RDN2008 / UTM zone 33N (N-E)
    3783, // RDN2008 / UTM zone 34N
    3314, // RDN2008 / UTM zone 34N (N-E)
    4254, // REDGEOMIN
    4255, // REDGEOMIN / UTM zone 12S
    4256, // REDGEOMIN / UTM zone 18S
    4257, // REDGEOMIN / UTM zone 19S
    1946, // REGCAN95
    2788, // REGCAN95 / LAEA Europe
    2787, // REGCAN95 / LCC Europe
    1947, // REGCAN95 / UTM zone 27N
    1948, // REGCAN95 / UTM zone 28N
    2021, // REGVEN
    194, // REGVEN / UTM zone 18N
    195, // REGVEN / UTM zone 19N
    196, // REGVEN / UTM zone 20N
    2333, // Reunion 1947
    981, // Reunion 1947 / TM Reunion
    1718, // Reunion 1947 / TM Reunion
    2360, // Reykjavik 1900
    1043, // Reykjavik 1900 / Lambert 1900
    2725, // RGAF09
    3477, // RGAF09 (lon-lat)
    2726, // RGAF09 / UTM zone 20N
    2006, // RGF93 v1
    1854, // RGF93 v1 / CC42
    1855, // RGF93 v1 / CC43
    1856, // RGF93 v1 / CC44
    1857, // RGF93 v1 / CC45
    1858, // RGF93 v1 / CC46
    1859, // RGF93 v1 / CC47
    1860, // RGF93 v1 / CC48
    1861, // RGF93 v1 / CC49
    1862, // RGF93 v1 / CC50
    154, // RGF93 v1 / Lambert-93
    3476, // RGF93 v1 (lon-lat)
    4272, // RGF93 v2
    4274, // RGF93 v2b
    4299, // RGF93 v2b / CC42
    4300, // RGF93 v2b / CC43
    4301, // RGF93 v2b / CC44
    4302, // RGF93 v2b / CC45
    4303, // RGF93 v2b / CC46
    4304, // RGF93 v2b / CC47
    4305, // RGF93 v2b / CC48
    4306, // RGF93 v2b / CC49
    4307, // RGF93 v2b / CC50
    4277, // RGF93 v2b / Lambert-93
    4275, // RGF93 v2b (lon-lat)
    4279, // RGF93 v2 / CC42
    4280, // RGF93 v2 / CC43
    4281, // RGF93 v2 / CC44
    4282, // RGF93 v2 / CC45
    4283, // RGF93 v2 / CC46
    4284, // RGF93 v2 / CC47
    4285, // RGF93 v2 / CC48
    4286, // RGF93 v2 / CC49
    4287, // RGF93 v2 / CC50
    4276, // RGF93 v2 / Lambert-93
    4273, // RGF93 v2 (lon-lat)
    2331, // RGFG95
    3451, // RGFG95 (lon-lat)
    1304, // RGFG95 / UTM zone 21N
    964, // RGFG95 / UTM zone 22N
    2206, // RGM04
    3450, // RGM04 (lon-lat)
    2207, // RGM04 / UTM zone 38S
    2352, // RGNC 1991
    975, // RGNC 1991 / Lambert New Caledonia
    2452, // RGNC91-93
    1154, // RGNC91-93 / Lambert New Caledonia
    1160, // RGNC91-93 / UTM zone 57S
    1161, // RGNC91-93 / UTM zone 58S
    1162, // RGNC91-93 / UTM zone 59S
    2390, // RGPF
    1287, // RGPF / UTM zone 5S
    1288, // RGPF / UTM zone 6S
    1289, // RGPF / UTM zone 7S
    1290, // RGPF / UTM zone 8S
    2334, // RGR92
    3449, // RGR92 (lon-lat)
    2795, // RGR92 / UTM zone 39S
    966, // RGR92 / UTM zone 40S
    1926, // RGRDC 2005
    1928, // RGRDC 2005 / Congo TM zone 12
    1929, // RGRDC 2005 / Congo TM zone 14
    1930, // RGRDC 2005 / Congo TM zone 16
    1931, // RGRDC 2005 / Congo TM zone 18
    1936, // RGRDC 2005 / Congo TM zone 20
    1937, // RGRDC 2005 / Congo TM zone 22
    1938, // RGRDC 2005 / Congo TM zone 24
    1939, // RGRDC 2005 / Congo TM zone 26
    1940, // RGRDC 2005 / Congo TM zone 28
    2834, // RGRDC 2005 / Congo TM zone 30
    1941, // RGRDC 2005 / UTM zone 33S
    1942, // RGRDC 2005 / UTM zone 34S
    1943, // RGRDC 2005 / UTM zone 35S
    2204, // RGSPM06
    3448, // RGSPM06 (lon-lat)
    2205, // RGSPM06 / UTM zone 21N
    3466, // RGTAAF07
    3478, // RGTAAF07 (lon-lat)
    3501, // RGTAAF07 (lon-lat)
    3475, // RGTAAF07 / Terre Adelie Polar Stereographic
    3467, // RGTAAF07 / UTM zone 37S
    3468, // RGTAAF07 / UTM zone 38S
    3469, // RGTAAF07 / UTM zone 39S
    3470, // RGTAAF07 / UTM zone 40S
    3471, // RGTAAF07 / UTM zone 41S
    3472, // RGTAAF07 / UTM zone 42S
    3473, // RGTAAF07 / UTM zone 43S
    3474, // RGTAAF07 / UTM zone 44S
    4044, // RGTAAF07 / UTM zone 53S
    4045, // RGTAAF07 / UTM zone 54S
    4090, // RGWF96
    4091, // RGWF96 (lon-lat)
    4092, // RGWF96 / UTM zone 1S
    2283, // RRAF 1991
    2347, // RRAF 1991
    980, // RRAF 1991 / UTM zone 20N
    2284, // RRAF 1991 / UTM zone 20N
    4077, // RSAO13
    4167, // RSAO13 / TM 12 SE
    4164, // RSAO13 / UTM zone 32S
    4165, // RSAO13 / UTM zone 33S
    4166, // RSAO13 / UTM zone 34S
    2467, // RSRGD2000
    2722, // RSRGD2000 / BCLC2000
    1825, // RSRGD2000 / DGLC2000
    2721, // RSRGD2000 / MSLC2000
    2723, // RSRGD2000 / PCLC2000
    2724, // RSRGD2000 / RSPS2000
    2138, // RT38
    1019, // RT38 0 gon
    1020, // RT38 2.5 gon O
    1018, // RT38 2.5 gon V
    5503, // RT38 2.5 gon W
    1021, // RT38 5 gon O
    1017, // RT38 5 gon V
    1016, // RT38 7.5 gon V
    2517, // RT38 (Stockholm)
    1959, // RT90
    1013, // RT90 0 gon
    1014, // RT90 2.5 gon O
    1012, // RT90 2.5 gon V
    392, // RT90 2.5 gon W
    1015, // RT90 5 gon O
    1011, // RT90 5 gon V
    1010, // RT90 7.5 gon V
    2122, // SAD69
    2325, // SAD69
    2736, // SAD69(96)
    2737, // SAD69(96) / Brazil Polyconic
    2836, // SAD69(96) / UTM zone 18S
    2837, // SAD69(96) / UTM zone 19S
    2838, // SAD69(96) / UTM zone 20S
    2738, // SAD69(96) / UTM zone 21S
    2739, // SAD69(96) / UTM zone 22S
    2835, // SAD69(96) / UTM zone 22S
    2740, // SAD69(96) / UTM zone 23S
    2741, // SAD69(96) / UTM zone 24S
    2742, // SAD69(96) / UTM zone 25S
    5413, // SAD69 / Brazil Polyconic
    5414, // SAD69 / Brazil Polyconic
    2715, // SAD69 / UTM zone 17N
    5425, // SAD69 / UTM zone 17S
    5434, // SAD69 / UTM zone 17S
    5415, // SAD69 / UTM zone 18N
    5420, // SAD69 / UTM zone 18N
    5426, // SAD69 / UTM zone 18S
    5435, // SAD69 / UTM zone 18S
    5416, // SAD69 / UTM zone 19N
    5421, // SAD69 / UTM zone 19N
    5427, // SAD69 / UTM zone 19S
    5436, // SAD69 / UTM zone 19S
    5417, // SAD69 / UTM zone 20N
    5422, // SAD69 / UTM zone 20N
    5428, // SAD69 / UTM zone 20S
    5437, // SAD69 / UTM zone 20S
    5418, // SAD69 / UTM zone 21N
    5423, // SAD69 / UTM zone 21N
    5429, // SAD69 / UTM zone 21S
    5438, // SAD69 / UTM zone 21S
    5419, // SAD69 / UTM zone 22N
    5424, // SAD69 / UTM zone 22N
    5430, // SAD69 / UTM zone 22S
    5439, // SAD69 / UTM zone 22S
    5431, // SAD69 / UTM zone 23S
    5440, // SAD69 / UTM zone 23S
    5432, // SAD69 / UTM zone 24S
    5441, // SAD69 / UTM zone 24S
    5433, // SAD69 / UTM zone 25S
    5442, // SAD69 / UTM zone 25S
    2345, // Saint Pierre et Miquelon 1950
    978, // Saint Pierre et Miquelon 1950 / UTM zone 21N
    1960, // Samboja
    542, // Samboja / UTM zone 50S
    2433, // Santo 1965
    2526, // Sao Tome
    2123, // Sapper Hill 1943
    5443, // Sapper Hill 1943 / UTM zone 20S
    5444, // Sapper Hill 1943 / UTM zone 21S
    2124, // Schwarzeck
    5446, // Schwarzeck / Lo22/11
    5447, // Schwarzeck / Lo22/13
    5448, // Schwarzeck / Lo22/15
    5449, // Schwarzeck / Lo22/17
    5450, // Schwarzeck / Lo22/19
    5451, // Schwarzeck / Lo22/21
    5452, // Schwarzeck / Lo22/23
    5453, // Schwarzeck / Lo22/25
    5445, // Schwarzeck / UTM zone 33S
    4337, // SCM22 Grid
    4336, // SCM22-IRF
    2027, // Scoresbysund 1952
    211, // Scoresbysund 1952 / Greenland zone 5 east
    214, // Scoresbysund 1952 / Greenland zone 6 east
    2320, // Segara
    2523, // Segara (Jakarta)
    926, // Segara (Jakarta) / NEIEZ
    2676, // Segara (Jakarta) / NEIEZ
    991, // Segara / NEIEZ
    925, // Segara / UTM zone 50S
    2125, // Segora
    2323, // Selvagem Grande
    935, // Selvagem Grande / UTM zone 28N
    2126, // Serindung
    3821, // SHGD2015
    3822, // SHMG2015
    2716, // Sibun Gorge 1922
    2717, // Sibun Gorge 1922 / Colony Grid
    2776, // Sibun Gorge 1922 / Colony Grid
    2009, // Sierra Leone 1924
    159, // Sierra Leone 1924 / New Colony Grid
    160, // Sierra Leone 1924 / New War Office Grid
    2010, // Sierra Leone 1968
    161, // Sierra Leone 1968 / UTM zone 28N
    162, // Sierra Leone 1968 / UTM zone 29N
    2429, // SIGD61
    2005, // SIRGAS 1995
    5584, // SIRGAS 1995 / UTM zone 17N
    5590, // SIRGAS 1995 / UTM zone 17S
    5585, // SIRGAS 1995 / UTM zone 18N
    5591, // SIRGAS 1995 / UTM zone 18S
    5586, // SIRGAS 1995 / UTM zone 19N
    5592, // SIRGAS 1995 / UTM zone 19S
    5587, // SIRGAS 1995 / UTM zone 20N
    5593, // SIRGAS 1995 / UTM zone 20S
    5588, // SIRGAS 1995 / UTM zone 21N
    5594, // SIRGAS 1995 / UTM zone 21S
    5589, // SIRGAS 1995 / UTM zone 22N
    5595, // SIRGAS 1995 / UTM zone 22S
    5596, // SIRGAS 1995 / UTM zone 23S
    5597, // SIRGAS 1995 / UTM zone 24S
    5598, // SIRGAS 1995 / UTM zone 25S
    2377, // SIRGAS 2000
    2793, // SIRGAS 2000 / Brazil Mercator
    2840, // SIRGAS 2000 / Brazil Polyconic
    5563, // SIRGAS 2000 / UTM zone 11N
    5564, // SIRGAS 2000 / UTM zone 12N
    5565, // SIRGAS 2000 / UTM zone 13N
    5566, // SIRGAS 2000 / UTM zone 14N
    5567, // SIRGAS 2000 / UTM zone 15N
    5568, // SIRGAS 2000 / UTM zone 16N
    5569, // SIRGAS 2000 / UTM zone 17N
    5575, // SIRGAS 2000 / UTM zone 17S
    5570, // SIRGAS 2000 / UTM zone 18N
    5576, // SIRGAS 2000 / UTM zone 18S
    5571, // SIRGAS 2000 / UTM zone 19N
    5577, // SIRGAS 2000 / UTM zone 19S
    5572, // SIRGAS 2000 / UTM zone 20N
    5578, // SIRGAS 2000 / UTM zone 20S
    5573, // SIRGAS 2000 / UTM zone 21N
    5579, // SIRGAS 2000 / UTM zone 21S
    5574, // SIRGAS 2000 / UTM zone 22N
    5580, // SIRGAS 2000 / UTM zone 22S
    2953, // SIRGAS 2000 / UTM zone 23N
    5581, // SIRGAS 2000 / UTM zone 23S
    2954, // SIRGAS 2000 / UTM zone 24N
    5582, // SIRGAS 2000 / UTM zone 24S
    5583, // SIRGAS 2000 / UTM zone 25S
    2706, // SIRGAS 2000 / UTM zone 26S
    4168, // SIRGAS-Chile
    2692, // SIRGAS-Chile 2002
    2694, // SIRGAS-Chile 2002 / UTM zone 18S
    2693, // SIRGAS-Chile 2002 / UTM zone 19S
    4097, // SIRGAS-Chile 2010
    4098, // SIRGAS-Chile 2010 / UTM zone 18S
    4099, // SIRGAS-Chile 2010 / UTM zone 19S
    4158, // SIRGAS-Chile 2013
    4159, // SIRGAS-Chile 2013 / UTM zone 18S
    4160, // SIRGAS-Chile 2013 / UTM zone 19S
    4161, // SIRGAS-Chile 2016
    4162, // SIRGAS-Chile 2016 / UTM zone 18S
    4163, // SIRGAS-Chile 2016 / UTM zone 19S
    4372, // SIRGAS-Chile 2021
    4373, // SIRGAS-Chile 2021 / UTM zone 12S
    4375, // SIRGAS-Chile 2021 / UTM zone 18S
    4376, // SIRGAS-Chile 2021 / UTM zone 19S
    4100, // SIRGAS-CON DGF00P01
    4101, // SIRGAS-CON DGF01P01
    4102, // SIRGAS-CON DGF01P02
    4103, // SIRGAS-CON DGF02P01
    4104, // SIRGAS-CON DGF04P01
    4105, // SIRGAS-CON DGF05P01
    4106, // SIRGAS-CON DGF06P01
    4107, // SIRGAS-CON DGF07P01
    4108, // SIRGAS-CON DGF08P01
    4109, // SIRGAS-CON SIR09P01
    4110, // SIRGAS-CON SIR10P01
    4111, // SIRGAS-CON SIR11P01
    4112, // SIRGAS-CON SIR13P01
    4113, // SIRGAS-CON SIR14P01
    4114, // SIRGAS-CON SIR15P01
    4115, // SIRGAS-CON SIR17P01
    2705, // SIRGAS_ES2007.8
    2699, // SIRGAS-ROU98
    2700, // SIRGAS-ROU98 / UTM zone 21S
    2701, // SIRGAS-ROU98 / UTM zone 22S
    2945, // Sister Islands National Grid 1961
    1991, // S-JTSK
    2626, // S-JTSK/05
    2627, // S-JTSK/05 (Ferro)
    2624, // S-JTSK/05 (Ferro) / Modified Krovak
    2625, // S-JTSK/05 (Ferro) / Modified Krovak East North
    2729, // S-JTSK/05 / Modified Krovak
    2730, // S-JTSK/05 / Modified Krovak East North
    2521, // S-JTSK (Ferro)
    65, // S-JTSK (Ferro) / Krovak
    2622, // S-JTSK (Ferro) / Krovak East North
    4025, // S-JTSK [JTSK03]
    4026, // S-JTSK [JTSK03] / Krovak
    4027, // S-JTSK [JTSK03] / Krovak East North
    2727, // S-JTSK / Krovak
    2728, // S-JTSK / Krovak East North
    2628, // SLD99
    2630, // SLD99 / Sri Lanka Grid 1999
    2468, // Slovenia 1996
    1784, // Slovenia 1996 / Slovene National Grid
    4073, // Slovenia 1996 / UTM zone 33N
    2421, // Solomon 1968
    3421, // South East Island 1943
    3423, // South East Island 1943 / UTM zone 40N
    2425, // South Georgia 1968
    1999, // South Yemen
    91, // South Yemen / Gauss Kruger zone 8
    387, // South Yemen / Gauss-Kruger zone 8
    92, // South Yemen / Gauss Kruger zone 9
    388, // South Yemen / Gauss-Kruger zone 9
    4071, // SRB_ETRS89
    4070, // SRB_ETRS89 / UTM zone 34N
    1945, // SREF98
    4230, // SRGI2013
    4234, // SRGI2013 / UTM zone 46N
    4235, // SRGI2013 / UTM zone 47N
    4241, // SRGI2013 / UTM zone 47S
    4236, // SRGI2013 / UTM zone 48N
    4242, // SRGI2013 / UTM zone 48S
    4237, // SRGI2013 / UTM zone 49N
    4243, // SRGI2013 / UTM zone 49S
    4238, // SRGI2013 / UTM zone 50N
    4244, // SRGI2013 / UTM zone 50S
    4239, // SRGI2013 / UTM zone 51N
    4245, // SRGI2013 / UTM zone 51S
    4240, // SRGI2013 / UTM zone 52N
    4246, // SRGI2013 / UTM zone 52S
    4247, // SRGI2013 / UTM zone 53S
    4248, // SRGI2013 / UTM zone 54S
    2350, // ST71 Belep
    988, // ST71 Belep / UTM zone 58S
    1143, // ST74
    2349, // ST84 Ile des Pins
    987, // ST84 Ile des Pins / UTM zone 58S
    2342, // ST87 Ouvea
    2453, // ST87 Ouvea
    974, // ST87 Ouvea / UTM zone 58S
    1155, // ST87 Ouvea / UTM zone 58S
    1973, // St. George Island
    3818, // St. Helena Tritan
    3819, // St. Helena Tritan / SHLG(Tritan)
    3820, // St. Helena Tritan / UTM zone 30S
    2312, // St. Kitts 1955
    5, // St. Kitts 1955 / British West Indies Grid
    1971, // St. Lawrence Island
    2313, // St. Lucia 1955
    6, // St. Lucia 1955 / British West Indies Grid
    1972, // St. Paul Island
    3849, // St. Stephen (Ferro)
    3851, // St. Stephen Grid (Ferro)
    2314, // St. Vincent 1945
    7, // St. Vincent 45 / British West Indies Grid
    2127, // Sudan
    5454, // Sudan / UTM zone 35N
    5455, // Sudan / UTM zone 36N
    2460, // SVY21
    1405, // SVY21 / Singapore TM
    2326, // SWEREF99
    998, // SWEREF99 12 00
    999, // SWEREF99 13 30
    1003, // SWEREF99 14 15
    1000, // SWEREF99 15 00
    1004, // SWEREF99 15 45
    1001, // SWEREF99 16 30
    1005, // SWEREF99 17 15
    1002, // SWEREF99 18 00
    1006, // SWEREF99 18 45
    1007, // SWEREF99 20 15
    1008, // SWEREF99 21 45
    1009, // SWEREF99 23 15
    1821, // SWEREF99 / RT90 0 gon emulation
    1822, // SWEREF99 / RT90 2.5 gon O emulation
    1820, // SWEREF99 / RT90 2.5 gon V emulation
    1823, // SWEREF99 / RT90 5 gon O emulation
    1819, // SWEREF99 / RT90 5 gon V emulation
    1818, // SWEREF99 / RT90 7.5 gon V emulation
    997, // SWEREF99 TM
    2336, // Tahaa 54
    968, // Tahaa 54 / UTM zone 5S
    2335, // Tahiti 52
    967, // Tahiti 52 / UTM zone 6S
    2393, // Tahiti 79
    1295, // Tahiti 79 / UTM zone 6S
    2128, // Tananarive
    4042, // Tananarive / Laborde Grid
    2513, // Tananarive (Paris)
    5456, // Tananarive (Paris) / Laborde Grid
    5457, // Tananarive (Paris) / Laborde Grid
    5458, // Tananarive (Paris) / Laborde Grid approximation
    5459, // Tananarive / UTM zone 38S
    5460, // Tananarive / UTM zone 39S
    4186, // Tapi Aike
    4187, // Tapi Aike / Argentina 1
    4188, // Tapi Aike / Argentina 2
    2134, // TC(1948)
    5491, // TC(1948) / UTM zone 39N
    5492, // TC(1948) / UTM zone 40N
    2410, // Tern Island 1961
    1962, // Tete
    728, // Tete / UTM zone 36S
    729, // Tete / UTM zone 37S
    2841, // TGD2005
    2842, // TGD2005 / Tonga Map Grid
    2129, // Timbalai 1948
    5463, // Timbalai 1948 / RSO Borneo (ch)
    5464, // Timbalai 1948 / RSO Borneo (ftSe)
    5465, // Timbalai 1948 / RSO Borneo (m)
    5466, // Timbalai 1948 / RSO Sarawak LSD (m)
    5461, // Timbalai 1948 / UTM zone 49N
    5462, // Timbalai 1948 / UTM zone 50N
    2130, // TM65
    5469, // TM65 / Irish Grid
    5467, // TM65 / Irish National Grid
    2131, // TM75
    5470, // TM75 / Irish Grid
    2132, // Tokyo
    2599, // Tokyo 1892
    2603, // Tokyo 1892 / Korea Central Belt
    2604, // Tokyo 1892 / Korea East Belt
    2605, // Tokyo 1892 / Korea East Sea Belt
    2602, // Tokyo 1892 / Korea West Belt
    5471, // Tokyo / Japan Plane Rectangular CS I
    5472, // Tokyo / Japan Plane Rectangular CS II
    5473, // Tokyo / Japan Plane Rectangular CS III
    5474, // Tokyo / Japan Plane Rectangular CS IV
    5479, // Tokyo / Japan Plane Rectangular CS IX
    5475, // Tokyo / Japan Plane Rectangular CS V
    5476, // Tokyo / Japan Plane Rectangular CS VI
    5477, // Tokyo / Japan Plane Rectangular CS VII
    5478, // Tokyo / Japan Plane Rectangular CS VIII
    5480, // Tokyo / Japan Plane Rectangular CS X
    5481, // Tokyo / Japan Plane Rectangular CS XI
    5482, // Tokyo / Japan Plane Rectangular CS XII
    5483, // Tokyo / Japan Plane Rectangular CS XIII
    5484, // Tokyo / Japan Plane Rectangular CS XIV
    5489, // Tokyo / Japan Plane Rectangular CS XIX
    5485, // Tokyo / Japan Plane Rectangular CS XV
    5486, // Tokyo / Japan Plane Rectangular CS XVI
    5487, // Tokyo / Japan Plane Rectangular CS XVII
    5488, // Tokyo / Japan Plane Rectangular CS XVIII
    1083, // Tokyo / UTM zone 51N
    1084, // Tokyo / UTM zone 52N
    1085, // Tokyo / UTM zone 53N
    1086, // Tokyo / UTM zone 54N
    1087, // Tokyo / UTM zone 55N
    4215, // TPEN11 Grid
    4214, // TPEN11-IRF
    2133, // Trinidad 1903
    5490, // Trinidad 1903 / Trinidad Grid
    306, // Trinidad 1903 / Trinidad Grid (ftCla)
    2437, // Tristan 1968
    2634, // TUREF
    2645, // TUREF / 3-degree Gauss-Kruger zone 10
    2646, // TUREF / 3-degree Gauss-Kruger zone 11
    2647, // TUREF / 3-degree Gauss-Kruger zone 12
    2648, // TUREF / 3-degree Gauss-Kruger zone 13
    2649, // TUREF / 3-degree Gauss-Kruger zone 14
    2650, // TUREF / 3-degree Gauss-Kruger zone 15
    2644, // TUREF / 3-degree Gauss-Kruger zone 9
    2789, // TUREF / LAEA Europe
    2790, // TUREF / LCC Europe
    2635, // TUREF / TM27
    2636, // TUREF / TM30
    2637, // TUREF / TM33
    2638, // TUREF / TM36
    2639, // TUREF / TM39
    2640, // TUREF / TM42
    2641, // TUREF / TM45
    1798, // TWD67
    1802, // TWD67 / TM2 zone 119
    1803, // TWD67 / TM2 zone 121
    1799, // TWD97
    1800, // TWD97 / TM2 zone 119
    1801, // TWD97 / TM2 zone 121
    2752, // UCS-2000
    2764, // UCS-2000 / 3-degree Gauss-Kruger zone 10
    2765, // UCS-2000 / 3-degree Gauss-Kruger zone 11
    2766, // UCS-2000 / 3-degree Gauss-Kruger zone 12
    2767, // UCS-2000 / 3-degree Gauss-Kruger zone 13
    2761, // UCS-2000 / 3-degree Gauss-Kruger zone 7
    2762, // UCS-2000 / 3-degree Gauss-Kruger zone 8
    2763, // UCS-2000 / 3-degree Gauss-Kruger zone 9
    2768, // UCS-2000 / 3-degree Gauss-Kruger CM 21E
    2769, // UCS-2000 / 3-degree Gauss-Kruger CM 24E
    2770, // UCS-2000 / 3-degree Gauss-Kruger CM 27E
    2771, // UCS-2000 / 3-degree Gauss-Kruger CM 30E
    2772, // UCS-2000 / 3-degree Gauss-Kruger CM 33E
    2773, // UCS-2000 / 3-degree Gauss-Kruger CM 36E
    2774, // UCS-2000 / 3-degree Gauss-Kruger CM 39E
    2753, // UCS-2000 / Gauss-Kruger zone 4
    2754, // UCS-2000 / Gauss-Kruger zone 5
    2755, // UCS-2000 / Gauss-Kruger zone 6
    2756, // UCS-2000 / Gauss-Kruger zone 7
    2757, // UCS-2000 / Gauss-Kruger CM 21E
    2758, // UCS-2000 / Gauss-Kruger CM 27E
    2759, // UCS-2000 / Gauss-Kruger CM 33E
    2760, // UCS-2000 / Gauss-Kruger CM 39E
    4288, // UCS-2000 / LCS-01 Crimea
    4289, // UCS-2000 / LCS-05 Vinnytsia
    4290, // UCS-2000 / LCS-07 Volyn
    4291, // UCS-2000 / LCS-12 Dnipropetrovsk
    4292, // UCS-2000 / LCS-14 Donetsk
    4293, // UCS-2000 / LCS-18 Zhytomyr
    4294, // UCS-2000 / LCS-21 Zakarpattia
    4295, // UCS-2000 / LCS-23 Zaporizhzhia
    4296, // UCS-2000 / LCS-26 Ivano-Frankivsk
    4278, // UCS-2000 / LCS-32 Kyiv region
    4297, // UCS-2000 / LCS-35 Kirovohrad
    4298, // UCS-2000 / LCS-44 Luhansk
    4308, // UCS-2000 / LCS-46 Lviv
    4309, // UCS-2000 / LCS-48 Mykolaiv
    4310, // UCS-2000 / LCS-51 Odessa
    4311, // UCS-2000 / LCS-53 Poltava
    4312, // UCS-2000 / LCS-56 Rivne
    4313, // UCS-2000 / LCS-59 Sumy
    4314, // UCS-2000 / LCS-61 Ternopil
    4315, // UCS-2000 / LCS-63 Kharkiv
    4316, // UCS-2000 / LCS-65 Kherson
    4317, // UCS-2000 / LCS-68 Khmelnytsky
    4318, // UCS-2000 / LCS-71 Cherkasy
    4319, // UCS-2000 / LCS-73 Chernivtsi
    4320, // UCS-2000 / LCS-74 Chernihiv
    4321, // UCS-2000 / LCS-80 Kyiv city
    4322, // UCS-2000 / LCS-85 Sevastopol
    3034, // UCS-2000 / Ukraine TM zone 10
    3035, // UCS-2000 / Ukraine TM zone 11
    3036, // UCS-2000 / Ukraine TM zone 12
    3037, // UCS-2000 / Ukraine TM zone 13
    3031, // UCS-2000 / Ukraine TM zone 7
    3032, // UCS-2000 / Ukraine TM zone 8
    3033, // UCS-2000 / Ukraine TM zone 9
    1884, // Unknown datum based upon the Airy 1830 ellipsoid
    1885, // Unknown datum based upon the Airy Modified 1849 ellipsoid
    1886, // Unknown datum based upon the Australian National Spheroid
    1917, // Unknown datum based upon the Authalic Sphere
    1921, // Unknown datum based upon the Average Terrestrial System 1977 ellipsoid
    1887, // Unknown datum based upon the Bessel 1841 ellipsoid
    1888, // Unknown datum based upon the Bessel Modified ellipsoid
    1889, // Unknown datum based upon the Bessel Namibia ellipsoid
    1890, // Unknown datum based upon the Clarke 1858 ellipsoid
    1891, // Unknown datum based upon the Clarke 1866 ellipsoid
    1892, // Unknown datum based upon the Clarke 1866 Michigan ellipsoid
    1896, // Unknown datum based upon the Clarke 1880 (Arc) ellipsoid
    1893, // Unknown datum based upon the Clarke 1880 (Benoit) ellipsoid
    1916, // Unknown datum based upon the Clarke 1880 ellipsoid
    1894, // Unknown datum based upon the Clarke 1880 (IGN) ellipsoid
    1895, // Unknown datum based upon the Clarke 1880 (RGS) ellipsoid
    1897, // Unknown datum based upon the Clarke 1880 (SGA 1922) ellipsoid
    1898, // Unknown datum based upon the Everest 1830 (1937 Adjustment) ellipsoid
    1924, // Unknown datum based upon the Everest 1830 (1962 Definition) ellipsoid
    1899, // Unknown datum based upon the Everest 1830 (1967 Definition) ellipsoid
    1925, // Unknown datum based upon the Everest 1830 (1975 Definition) ellipsoid
    1922, // Unknown datum based upon the Everest (1830 Definition) ellipsoid
    1900, // Unknown datum based upon the Everest 1830 Modified ellipsoid
    1913, // Unknown datum based upon the GEM 10C ellipsoid
    1918, // Unknown datum based upon the GRS 1967 ellipsoid
    1901, // Unknown datum based upon the GRS 1980 ellipsoid
    1902, // Unknown datum based upon the Helmert 1906 ellipsoid
    1903, // Unknown datum based upon the Indonesian National Spheroid
    1904, // Unknown datum based upon the International 1924 ellipsoid
    1906, // Unknown datum based upon the Krassowsky 1940 ellipsoid
    1907, // Unknown datum based upon the NWL 9D ellipsoid
    1914, // Unknown datum based upon the OSU86F ellipsoid
    1915, // Unknown datum based upon the OSU91A ellipsoid
    1909, // Unknown datum based upon the Plessis 1817 ellipsoid
    1910, // Unknown datum based upon the Struve 1860 ellipsoid
    1911, // Unknown datum based upon the War Office ellipsoid
    1923, // Unknown datum based upon the WGS 72 ellipsoid
    1912, // Unknown datum based upon the WGS 84 ellipsoid
    1932, // Unspecified datum based upon the Clarke 1866 Authalic Sphere
    1927, // Unspecified datum based upon the GRS 1980 Authalic Sphere
    1934, // Unspecified datum based upon the Hughes 1980 ellipsoid
    1933, // Unspecified datum based upon the International 1924 Authalic Sphere
    163, // US National Atlas Equal Area
    2451, // Vanua Levu 1915
    1130, // Vanua Levu 1915 / Vanua Levu Grid
    2379, // Vientiane 1982
    2455, // Viti Levu 1912
    1131, // Viti Levu 1912 / Viti Levu Grid
    2434, // Viti Levu 1916
    2459, // VN-2000
    4170, // VN-2000 / TM-3 103-00
    4171, // VN-2000 / TM-3 104-00
    4172, // VN-2000 / TM-3 104-30
    4173, // VN-2000 / TM-3 104-45
    4174, // VN-2000 / TM-3 105-30
    4175, // VN-2000 / TM-3 105-45
    4176, // VN-2000 / TM-3 106-00
    4177, // VN-2000 / TM-3 106-15
    4178, // VN-2000 / TM-3 106-30
    4179, // VN-2000 / TM-3 107-00
    4180, // VN-2000 / TM-3 107-15
    4181, // VN-2000 / TM-3 107-30
    2847, // VN-2000 / TM-3 107-45
    4182, // VN-2000 / TM-3 108-15
    4183, // VN-2000 / TM-3 108-30
    2844, // VN-2000 / TM-3 zone 481
    3431, // VN-2000 / TM-3 zone 481
    2845, // VN-2000 / TM-3 zone 482
    3432, // VN-2000 / TM-3 zone 482
    2846, // VN-2000 / TM-3 zone 491
    3433, // VN-2000 / TM-3 zone 491
    3434, // VN-2000 / TM-3 Da Nang zone
    1396, // VN-2000 / UTM zone 48N
    1397, // VN-2000 / UTM zone 49N
    2135, // Voirol 1875
    5493, // Voirol 1875 / Nord Algerie (ancienne)
    2514, // Voirol 1875 (Paris)
    5494, // Voirol 1875 / Sud Algerie (ancienne)
    2374, // Voirol 1879
    5495, // Voirol 1879 / Nord Algerie (ancienne)
    2524, // Voirol 1879 (Paris)
    5496, // Voirol 1879 / Sud Algerie (ancienne)
    2436, // Wake Island 1952
    2463, // WGS 66
    2150, // WGS 72
    2151, // WGS 72BE
    1406, // WGS 72BE / South China Sea Lambert
    94, // WGS 72BE / TM 106 NE
    5880, // WGS 72BE / UTM zone 10N
    5940, // WGS 72BE / UTM zone 10S
    5881, // WGS 72BE / UTM zone 11N
    5941, // WGS 72BE / UTM zone 11S
    5882, // WGS 72BE / UTM zone 12N
    5942, // WGS 72BE / UTM zone 12S
    5883, // WGS 72BE / UTM zone 13N
    5943, // WGS 72BE / UTM zone 13S
    5884, // WGS 72BE / UTM zone 14N
    5944, // WGS 72BE / UTM zone 14S
    5885, // WGS 72BE / UTM zone 15N
    5945, // WGS 72BE / UTM zone 15S
    5886, // WGS 72BE / UTM zone 16N
    5946, // WGS 72BE / UTM zone 16S
    5887, // WGS 72BE / UTM zone 17N
    5947, // WGS 72BE / UTM zone 17S
    5888, // WGS 72BE / UTM zone 18N
    5948, // WGS 72BE / UTM zone 18S
    5889, // WGS 72BE / UTM zone 19N
    5949, // WGS 72BE / UTM zone 19S
    5871, // WGS 72BE / UTM zone 1N
    5931, // WGS 72BE / UTM zone 1S
    5890, // WGS 72BE / UTM zone 20N
    5950, // WGS 72BE / UTM zone 20S
    5891, // WGS 72BE / UTM zone 21N
    5951, // WGS 72BE / UTM zone 21S
    5892, // WGS 72BE / UTM zone 22N
    5952, // WGS 72BE / UTM zone 22S
    5893, // WGS 72BE / UTM zone 23N
    5953, // WGS 72BE / UTM zone 23S
    5894, // WGS 72BE / UTM zone 24N
    5954, // WGS 72BE / UTM zone 24S
    5895, // WGS 72BE / UTM zone 25N
    5955, // WGS 72BE / UTM zone 25S
    5896, // WGS 72BE / UTM zone 26N
    5956, // WGS 72BE / UTM zone 26S
    5897, // WGS 72BE / UTM zone 27N
    5957, // WGS 72BE / UTM zone 27S
    5898, // WGS 72BE / UTM zone 28N
    5958, // WGS 72BE / UTM zone 28S
    5899, // WGS 72BE / UTM zone 29N
    5959, // WGS 72BE / UTM zone 29S
    5872, // WGS 72BE / UTM zone 2N
    5932, // WGS 72BE / UTM zone 2S
    5900, // WGS 72BE / UTM zone 30N
    5960, // WGS 72BE / UTM zone 30S
    5901, // WGS 72BE / UTM zone 31N
    5961, // WGS 72BE / UTM zone 31S
    5902, // WGS 72BE / UTM zone 32N
    5962, // WGS 72BE / UTM zone 32S
    5903, // WGS 72BE / UTM zone 33N
    5963, // WGS 72BE / UTM zone 33S
    5904, // WGS 72BE / UTM zone 34N
    5964, // WGS 72BE / UTM zone 34S
    5905, // WGS 72BE / UTM zone 35N
    5965, // WGS 72BE / UTM zone 35S
    5906, // WGS 72BE / UTM zone 36N
    5966, // WGS 72BE / UTM zone 36S
    5907, // WGS 72BE / UTM zone 37N
    5967, // WGS 72BE / UTM zone 37S
    5908, // WGS 72BE / UTM zone 38N
    5968, // WGS 72BE / UTM zone 38S
    5909, // WGS 72BE / UTM zone 39N
    5969, // WGS 72BE / UTM zone 39S
    5873, // WGS 72BE / UTM zone 3N
    5933, // WGS 72BE / UTM zone 3S
    5910, // WGS 72BE / UTM zone 40N
    5970, // WGS 72BE / UTM zone 40S
    5911, // WGS 72BE / UTM zone 41N
    5971, // WGS 72BE / UTM zone 41S
    5912, // WGS 72BE / UTM zone 42N
    5972, // WGS 72BE / UTM zone 42S
    5913, // WGS 72BE / UTM zone 43N
    5973, // WGS 72BE / UTM zone 43S
    5914, // WGS 72BE / UTM zone 44N
    5974, // WGS 72BE / UTM zone 44S
    5915, // WGS 72BE / UTM zone 45N
    5975, // WGS 72BE / UTM zone 45S
    5916, // WGS 72BE / UTM zone 46N
    5976, // WGS 72BE / UTM zone 46S
    5917, // WGS 72BE / UTM zone 47N
    5977, // WGS 72BE / UTM zone 47S
    5918, // WGS 72BE / UTM zone 48N
    5978, // WGS 72BE / UTM zone 48S
    5919, // WGS 72BE / UTM zone 49N
    5979, // WGS 72BE / UTM zone 49S
    5874, // WGS 72BE / UTM zone 4N
    5934, // WGS 72BE / UTM zone 4S
    5920, // WGS 72BE / UTM zone 50N
    5980, // WGS 72BE / UTM zone 50S
    5921, // WGS 72BE / UTM zone 51N
    5981, // WGS 72BE / UTM zone 51S
    5922, // WGS 72BE / UTM zone 52N
    5982, // WGS 72BE / UTM zone 52S
    5923, // WGS 72BE / UTM zone 53N
    5983, // WGS 72BE / UTM zone 53S
    5924, // WGS 72BE / UTM zone 54N
    5984, // WGS 72BE / UTM zone 54S
    5925, // WGS 72BE / UTM zone 55N
    5985, // WGS 72BE / UTM zone 55S
    5926, // WGS 72BE / UTM zone 56N
    5986, // WGS 72BE / UTM zone 56S
    5927, // WGS 72BE / UTM zone 57N
    5987, // WGS 72BE / UTM zone 57S
    5928, // WGS 72BE / UTM zone 58N
    5988, // WGS 72BE / UTM zone 58S
    5929, // WGS 72BE / UTM zone 59N
    5989, // WGS 72BE / UTM zone 59S
    5875, // WGS 72BE / UTM zone 5N
    5935, // WGS 72BE / UTM zone 5S
    5930, // WGS 72BE / UTM zone 60N
    5990, // WGS 72BE / UTM zone 60S
    5876, // WGS 72BE / UTM zone 6N
    5936, // WGS 72BE / UTM zone 6S
    5877, // WGS 72BE / UTM zone 7N
    5937, // WGS 72BE / UTM zone 7S
    5878, // WGS 72BE / UTM zone 8N
    5938, // WGS 72BE / UTM zone 8S
    5879, // WGS 72BE / UTM zone 9N
    5939, // WGS 72BE / UTM zone 9S
    5760, // WGS 72 / UTM zone 10N
    5820, // WGS 72 / UTM zone 10S
    5761, // WGS 72 / UTM zone 11N
    5821, // WGS 72 / UTM zone 11S
    5762, // WGS 72 / UTM zone 12N
    5822, // WGS 72 / UTM zone 12S
    5763, // WGS 72 / UTM zone 13N
    5823, // WGS 72 / UTM zone 13S
    5764, // WGS 72 / UTM zone 14N
    5824, // WGS 72 / UTM zone 14S
    5765, // WGS 72 / UTM zone 15N
    5825, // WGS 72 / UTM zone 15S
    5766, // WGS 72 / UTM zone 16N
    5826, // WGS 72 / UTM zone 16S
    5767, // WGS 72 / UTM zone 17N
    5827, // WGS 72 / UTM zone 17S
    5768, // WGS 72 / UTM zone 18N
    5828, // WGS 72 / UTM zone 18S
    5769, // WGS 72 / UTM zone 19N
    5829, // WGS 72 / UTM zone 19S
    5751, // WGS 72 / UTM zone 1N
    5811, // WGS 72 / UTM zone 1S
    5770, // WGS 72 / UTM zone 20N
    5830, // WGS 72 / UTM zone 20S
    5771, // WGS 72 / UTM zone 21N
    5831, // WGS 72 / UTM zone 21S
    5772, // WGS 72 / UTM zone 22N
    5832, // WGS 72 / UTM zone 22S
    5773, // WGS 72 / UTM zone 23N
    5833, // WGS 72 / UTM zone 23S
    5774, // WGS 72 / UTM zone 24N
    5834, // WGS 72 / UTM zone 24S
    5775, // WGS 72 / UTM zone 25N
    5835, // WGS 72 / UTM zone 25S
    5776, // WGS 72 / UTM zone 26N
    5836, // WGS 72 / UTM zone 26S
    5777, // WGS 72 / UTM zone 27N
    5837, // WGS 72 / UTM zone 27S
    5778, // WGS 72 / UTM zone 28N
    5838, // WGS 72 / UTM zone 28S
    5779, // WGS 72 / UTM zone 29N
    5839, // WGS 72 / UTM zone 29S
    5752, // WGS 72 / UTM zone 2N
    5812, // WGS 72 / UTM zone 2S
    5780, // WGS 72 / UTM zone 30N
    5840, // WGS 72 / UTM zone 30S
    5781, // WGS 72 / UTM zone 31N
    5841, // WGS 72 / UTM zone 31S
    5782, // WGS 72 / UTM zone 32N
    5842, // WGS 72 / UTM zone 32S
    5783, // WGS 72 / UTM zone 33N
    5843, // WGS 72 / UTM zone 33S
    5784, // WGS 72 / UTM zone 34N
    5844, // WGS 72 / UTM zone 34S
    5785, // WGS 72 / UTM zone 35N
    5845, // WGS 72 / UTM zone 35S
    5786, // WGS 72 / UTM zone 36N
    5846, // WGS 72 / UTM zone 36S
    5787, // WGS 72 / UTM zone 37N
    5847, // WGS 72 / UTM zone 37S
    5788, // WGS 72 / UTM zone 38N
    5848, // WGS 72 / UTM zone 38S
    5789, // WGS 72 / UTM zone 39N
    5849, // WGS 72 / UTM zone 39S
    5753, // WGS 72 / UTM zone 3N
    5813, // WGS 72 / UTM zone 3S
    5790, // WGS 72 / UTM zone 40N
    5850, // WGS 72 / UTM zone 40S
    5791, // WGS 72 / UTM zone 41N
    5851, // WGS 72 / UTM zone 41S
    5792, // WGS 72 / UTM zone 42N
    5852, // WGS 72 / UTM zone 42S
    5793, // WGS 72 / UTM zone 43N
    5853, // WGS 72 / UTM zone 43S
    5794, // WGS 72 / UTM zone 44N
    5854, // WGS 72 / UTM zone 44S
    5795, // WGS 72 / UTM zone 45N
    5855, // WGS 72 / UTM zone 45S
    5796, // WGS 72 / UTM zone 46N
    5856, // WGS 72 / UTM zone 46S
    5797, // WGS 72 / UTM zone 47N
    5857, // WGS 72 / UTM zone 47S
    5798, // WGS 72 / UTM zone 48N
    5858, // WGS 72 / UTM zone 48S
    5799, // WGS 72 / UTM zone 49N
    5859, // WGS 72 / UTM zone 49S
    5754, // WGS 72 / UTM zone 4N
    5814, // WGS 72 / UTM zone 4S
    5800, // WGS 72 / UTM zone 50N
    5860, // WGS 72 / UTM zone 50S
    5801, // WGS 72 / UTM zone 51N
    5861, // WGS 72 / UTM zone 51S
    5802, // WGS 72 / UTM zone 52N
    5862, // WGS 72 / UTM zone 52S
    5803, // WGS 72 / UTM zone 53N
    5863, // WGS 72 / UTM zone 53S
    5804, // WGS 72 / UTM zone 54N
    5864, // WGS 72 / UTM zone 54S
    5805, // WGS 72 / UTM zone 55N
    5865, // WGS 72 / UTM zone 55S
    5806, // WGS 72 / UTM zone 56N
    5866, // WGS 72 / UTM zone 56S
    5807, // WGS 72 / UTM zone 57N
    5867, // WGS 72 / UTM zone 57S
    5808, // WGS 72 / UTM zone 58N
    5868, // WGS 72 / UTM zone 58S
    5809, // WGS 72 / UTM zone 59N
    5869, // WGS 72 / UTM zone 59S
    5755, // WGS 72 / UTM zone 5N
    5815, // WGS 72 / UTM zone 5S
    5810, // WGS 72 / UTM zone 60N
    5870, // WGS 72 / UTM zone 60S
    5756, // WGS 72 / UTM zone 6N
    5816, // WGS 72 / UTM zone 6S
    5757, // WGS 72 / UTM zone 7N
    5817, // WGS 72 / UTM zone 7S
    5758, // WGS 72 / UTM zone 8N
    5818, // WGS 72 / UTM zone 8S
    5759, // WGS 72 / UTM zone 9N
    5819, // WGS 72 / UTM zone 9S
    2152, // WGS 84
    3770, // WGS 84 / Andaman and Nicobar
    3749, // WGS 84 / Andhra Pradesh
    1022, // WGS 84 / Antarctic Polar Stereographic
    1881, // WGS 84 / Arctic Polar Stereographic
    3750, // WGS 84 / Arunachal Pradesh
    3751, // WGS 84 / Assam
    1024, // WGS 84 / Australian Antarctic Lambert
    1023, // WGS 84 / Australian Antarctic Polar Stereographic
    2203, // WGS 84 / Australian Centre for Remote Sensing Lambert
    3752, // WGS 84 / Bihar
    6055, // WGS 84 / BLM 14N (ftUS)
    6056, // WGS 84 / BLM 15N (ftUS)
    6057, // WGS 84 / BLM 16N (ftUS)
    6058, // WGS 84 / BLM 17N (ftUS)
    2528, // WGS 84 / Cape Verde National
    3771, // WGS 84 / Chhattisgarh
    3315, // WGS 84 / CIG92
    3317, // WGS 84 / CKIG92
    3753, // WGS 84 / Delhi
    1883, // WGS 84 / Dubai Local TM
    2863, // WGS 84 / EPSG Alaska Polar Stereographic
    2936, // WGS 84 / EPSG Arctic zone 1-21
    2933, // WGS 84 / EPSG Arctic zone 1-27
    2934, // WGS 84 / EPSG Arctic zone 1-29
    2935, // WGS 84 / EPSG Arctic zone 1-31
    2938, // WGS 84 / EPSG Arctic zone 2-10
    2939, // WGS 84 / EPSG Arctic zone 2-12
    2893, // WGS 84 / EPSG Arctic zone 2-24
    2894, // WGS 84 / EPSG Arctic zone 2-26
    2937, // WGS 84 / EPSG Arctic zone 2-28
    2895, // WGS 84 / EPSG Arctic zone 3-13
    2896, // WGS 84 / EPSG Arctic zone 3-15
    2897, // WGS 84 / EPSG Arctic zone 3-17
    2898, // WGS 84 / EPSG Arctic zone 3-19
    2940, // WGS 84 / EPSG Arctic zone 3-21
    2941, // WGS 84 / EPSG Arctic zone 3-23
    2942, // WGS 84 / EPSG Arctic zone 4-12
    2899, // WGS 84 / EPSG Arctic zone 4-30
    2900, // WGS 84 / EPSG Arctic zone 4-32
    2901, // WGS 84 / EPSG Arctic zone 4-34
    2902, // WGS 84 / EPSG Arctic zone 4-36
    2903, // WGS 84 / EPSG Arctic zone 4-38
    2904, // WGS 84 / EPSG Arctic zone 4-40
    2905, // WGS 84 / EPSG Arctic zone 5-15
    2906, // WGS 84 / EPSG Arctic zone 5-17
    2907, // WGS 84 / EPSG Arctic zone 5-19
    2908, // WGS 84 / EPSG Arctic zone 5-21
    2909, // WGS 84 / EPSG Arctic zone 5-23
    2910, // WGS 84 / EPSG Arctic zone 5-25
    2911, // WGS 84 / EPSG Arctic zone 5-27
    2848, // WGS 84 / EPSG Arctic Regional zone A1
    2849, // WGS 84 / EPSG Arctic Regional zone A2
    2850, // WGS 84 / EPSG Arctic Regional zone A3
    2851, // WGS 84 / EPSG Arctic Regional zone A4
    2852, // WGS 84 / EPSG Arctic Regional zone A5
    2853, // WGS 84 / EPSG Arctic Regional zone B1
    2854, // WGS 84 / EPSG Arctic Regional zone B2
    2855, // WGS 84 / EPSG Arctic Regional zone B3
    2856, // WGS 84 / EPSG Arctic Regional zone B4
    2857, // WGS 84 / EPSG Arctic Regional zone B5
    2858, // WGS 84 / EPSG Arctic Regional zone C1
    2859, // WGS 84 / EPSG Arctic Regional zone C2
    2860, // WGS 84 / EPSG Arctic Regional zone C3
    2861, // WGS 84 / EPSG Arctic Regional zone C4
    2862, // WGS 84 / EPSG Arctic Regional zone C5
    2864, // WGS 84 / EPSG Canada Polar Stereographic
    2865, // WGS 84 / EPSG Greenland Polar Stereographic
    2866, // WGS 84 / EPSG Norway Polar Stereographic
    2867, // WGS 84 / EPSG Russia Polar Stereographic
    4086, // WGS 84 / Equal Earth Americas
    4087, // WGS 84 / Equal Earth Asia-Pacific
    4085, // WGS 84 / Equal Earth Greenwich
    4140, // WGS 84 (G1150)
    4141, // WGS 84 (G1674)
    4142, // WGS 84 (G1762)
    4267, // WGS 84 (G2139)
    4138, // WGS 84 (G730)
    4139, // WGS 84 (G873)
    2623, // WGS 84 / Gabon TM
    2734, // WGS 84 / Gabon TM 2011
    3772, // WGS 84 / Goa
    3754, // WGS 84 / Gujarat
    3755, // WGS 84 / Haryana
    3756, // WGS 84 / Himachal Pradesh
    1882, // WGS 84 / IBCAO Polar Stereographic
    4208, // WGS 84 / IBCSO Polar Stereographic
    3764, // WGS 84 / India Northeast
    3748, // WGS 84 / India NSF LCC
    3757, // WGS 84 / Jammu and Kashmir
    3758, // WGS 84 / Jharkhand
    3773, // WGS 84 / Karnataka
    3774, // WGS 84 / Kerala
    3775, // WGS 84 / Lakshadweep
    3759, // WGS 84 / Madhya Pradesh
    3760, // WGS 84 / Maharashtra
    3761, // WGS 84 / Manipur
    3762, // WGS 84 / Meghalaya
    1743, // WGS 84 / Mercator 41
    1880, // WGS 84 / Mercator 41
    3776, // WGS 84 / Mizoram
    3763, // WGS 84 / Nagaland
    4169, // WGS 84 / NIWA Albers
    1563, // WGS 84 / North Pole LAEA Alaska
    1565, // WGS 84 / North Pole LAEA Atlantic
    1562, // WGS 84 / North Pole LAEA Bering Sea
    1564, // WGS 84 / North Pole LAEA Canada
    1566, // WGS 84 / North Pole LAEA Europe
    1567, // WGS 84 / North Pole LAEA Russia
    3430, // WGS 84 / NSIDC EASE-Grid 2.0 Global
    3428, // WGS 84 / NSIDC EASE-Grid 2.0 North
    3429, // WGS 84 / NSIDC EASE-Grid 2.0 South
    1868, // WGS 84 / NSIDC EASE-Grid Global
    1866, // WGS 84 / NSIDC EASE-Grid North
    1867, // WGS 84 / NSIDC EASE-Grid South
    1404, // WGS 84 / NSIDC Sea Ice Polar Stereographic North
    1869, // WGS 84 / NSIDC Sea Ice Polar Stereographic South
    3765, // WGS 84 / Orissa
    1340, // WGS 84 / PDC Mercator
    1805, // WGS 84 / PDC Mercator
    6053, // WGS 84 / Plate Carree
    1827, // WGS 84 / Pseudo-Mercator
    3766, // WGS 84 / Punjab
    3767, // WGS 84 / Rajasthan
    1195, // WGS 84 / SCAR IMW SP19-20
    1196, // WGS 84 / SCAR IMW SP21-22
    1197, // WGS 84 / SCAR IMW SP23-24
    1198, // WGS 84 / SCAR IMW SQ01-02
    1199, // WGS 84 / SCAR IMW SQ19-20
    1200, // WGS 84 / SCAR IMW SQ21-22
    1201, // WGS 84 / SCAR IMW SQ37-38
    1202, // WGS 84 / SCAR IMW SQ39-40
    1203, // WGS 84 / SCAR IMW SQ41-42
    1204, // WGS 84 / SCAR IMW SQ43-44
    1205, // WGS 84 / SCAR IMW SQ45-46
    1206, // WGS 84 / SCAR IMW SQ47-48
    1207, // WGS 84 / SCAR IMW SQ49-50
    1208, // WGS 84 / SCAR IMW SQ51-52
    1209, // WGS 84 / SCAR IMW SQ53-54
    1210, // WGS 84 / SCAR IMW SQ55-56
    1211, // WGS 84 / SCAR IMW SQ57-58
    1212, // WGS 84 / SCAR IMW SR13-14
    1213, // WGS 84 / SCAR IMW SR15-16
    1214, // WGS 84 / SCAR IMW SR17-18
    1215, // WGS 84 / SCAR IMW SR19-20
    1216, // WGS 84 / SCAR IMW SR27-28
    1217, // WGS 84 / SCAR IMW SR29-30
    1218, // WGS 84 / SCAR IMW SR31-32
    1219, // WGS 84 / SCAR IMW SR33-34
    1220, // WGS 84 / SCAR IMW SR35-36
    1221, // WGS 84 / SCAR IMW SR37-38
    1222, // WGS 84 / SCAR IMW SR39-40
    1223, // WGS 84 / SCAR IMW SR41-42
    1224, // WGS 84 / SCAR IMW SR43-44
    1225, // WGS 84 / SCAR IMW SR45-46
    1226, // WGS 84 / SCAR IMW SR47-48
    1227, // WGS 84 / SCAR IMW SR49-50
    1228, // WGS 84 / SCAR IMW SR51-52
    1229, // WGS 84 / SCAR IMW SR53-54
    1230, // WGS 84 / SCAR IMW SR55-56
    1231, // WGS 84 / SCAR IMW SR57-58
    1232, // WGS 84 / SCAR IMW SR59-60
    1233, // WGS 84 / SCAR IMW SS04-06
    1234, // WGS 84 / SCAR IMW SS07-09
    1235, // WGS 84 / SCAR IMW SS10-12
    1236, // WGS 84 / SCAR IMW SS13-15
    1237, // WGS 84 / SCAR IMW SS16-18
    1238, // WGS 84 / SCAR IMW SS19-21
    1239, // WGS 84 / SCAR IMW SS25-27
    1240, // WGS 84 / SCAR IMW SS28-30
    1241, // WGS 84 / SCAR IMW SS31-33
    1242, // WGS 84 / SCAR IMW SS34-36
    1243, // WGS 84 / SCAR IMW SS37-39
    1244, // WGS 84 / SCAR IMW SS40-42
    1245, // WGS 84 / SCAR IMW SS43-45
    1246, // WGS 84 / SCAR IMW SS46-48
    1247, // WGS 84 / SCAR IMW SS49-51
    1248, // WGS 84 / SCAR IMW SS52-54
    1249, // WGS 84 / SCAR IMW SS55-57
    1250, // WGS 84 / SCAR IMW SS58-60
    1251, // WGS 84 / SCAR IMW ST01-04
    1252, // WGS 84 / SCAR IMW ST05-08
    1253, // WGS 84 / SCAR IMW ST09-12
    1254, // WGS 84 / SCAR IMW ST13-16
    1255, // WGS 84 / SCAR IMW ST17-20
    1256, // WGS 84 / SCAR IMW ST21-24
    1257, // WGS 84 / SCAR IMW ST25-28
    1258, // WGS 84 / SCAR IMW ST29-32
    1259, // WGS 84 / SCAR IMW ST33-36
    1260, // WGS 84 / SCAR IMW ST37-40
    1261, // WGS 84 / SCAR IMW ST41-44
    1262, // WGS 84 / SCAR IMW ST45-48
    1263, // WGS 84 / SCAR IMW ST49-52
    1264, // WGS 84 / SCAR IMW ST53-56
    1265, // WGS 84 / SCAR IMW ST57-60
    1266, // WGS 84 / SCAR IMW SU01-05
    1267, // WGS 84 / SCAR IMW SU06-10
    1268, // WGS 84 / SCAR IMW SU11-15
    1269, // WGS 84 / SCAR IMW SU16-20
    1270, // WGS 84 / SCAR IMW SU21-25
    1271, // WGS 84 / SCAR IMW SU26-30
    1272, // WGS 84 / SCAR IMW SU31-35
    1273, // WGS 84 / SCAR IMW SU36-40
    1274, // WGS 84 / SCAR IMW SU41-45
    1275, // WGS 84 / SCAR IMW SU46-50
    1276, // WGS 84 / SCAR IMW SU51-55
    1277, // WGS 84 / SCAR IMW SU56-60
    1278, // WGS 84 / SCAR IMW SV01-10
    1279, // WGS 84 / SCAR IMW SV11-20
    1280, // WGS 84 / SCAR IMW SV21-30
    1281, // WGS 84 / SCAR IMW SV31-40
    1282, // WGS 84 / SCAR IMW SV41-50
    1283, // WGS 84 / SCAR IMW SV51-60
    1284, // WGS 84 / SCAR IMW SW01-60
    3777, // WGS 84 / Sikkim
    1753, // WGS 84 / South Georgia Lambert
    3778, // WGS 84 / Tamil Nadu
    301, // WGS 84 / TM 116 SE
    2833, // WGS 84 / TM 12 SE
    302, // WGS 84 / TM 132 SE
    3846, // WGS 84 / TM Zone 20N (ftUS)
    3847, // WGS 84 / TM Zone 21N (ftUS)
    6121, // WGS 84 / TM 36 SE
    3310, // WGS 84 / TM 60 SW
    303, // WGS 84 / TM 6 NE
    4253, // WGS 84 / TM 90 NE
    1919, // WGS 84 / TMzn35N
    1920, // WGS 84 / TMzn36N
    4089, // WGS 84 (Transit)
    3779, // WGS 84 / Tripura
    2566, // WGS 84 / UPS North (E,N)
    6052, // WGS 84 / UPS North (N,E)
    2567, // WGS 84 / UPS South (E,N)
    6120, // WGS 84 / UPS South (N,E)
    1285, // WGS 84 / USGS Transantarctic Mountains
    6001, // WGS 84 / UTM zone 10N
    6069, // WGS 84 / UTM zone 10S
    6002, // WGS 84 / UTM zone 11N
    6070, // WGS 84 / UTM zone 11S
    6003, // WGS 84 / UTM zone 12N
    6071, // WGS 84 / UTM zone 12S
    6004, // WGS 84 / UTM zone 13N
    6072, // WGS 84 / UTM zone 13S
    6005, // WGS 84 / UTM zone 14N
    6073, // WGS 84 / UTM zone 14S
    6006, // WGS 84 / UTM zone 15N
    6074, // WGS 84 / UTM zone 15S
    6007, // WGS 84 / UTM zone 16N
    6075, // WGS 84 / UTM zone 16S
    6008, // WGS 84 / UTM zone 17N
    6076, // WGS 84 / UTM zone 17S
    6009, // WGS 84 / UTM zone 18N
    6077, // WGS 84 / UTM zone 18S
    6010, // WGS 84 / UTM zone 19N
    6078, // WGS 84 / UTM zone 19S
    5992, // WGS 84 / UTM zone 1N
    6060, // WGS 84 / UTM zone 1S
    6011, // WGS 84 / UTM zone 20N
    6079, // WGS 84 / UTM zone 20S
    6012, // WGS 84 / UTM zone 21N
    6080, // WGS 84 / UTM zone 21S
    6013, // WGS 84 / UTM zone 22N
    6081, // WGS 84 / UTM zone 22S
    6014, // WGS 84 / UTM zone 23N
    6082, // WGS 84 / UTM zone 23S
    6015, // WGS 84 / UTM zone 24N
    6083, // WGS 84 / UTM zone 24S
    6016, // WGS 84 / UTM zone 25N
    6084, // WGS 84 / UTM zone 25S
    6017, // WGS 84 / UTM zone 26N
    6085, // WGS 84 / UTM zone 26S
    6018, // WGS 84 / UTM zone 27N
    6086, // WGS 84 / UTM zone 27S
    6019, // WGS 84 / UTM zone 28N
    6087, // WGS 84 / UTM zone 28S
    6020, // WGS 84 / UTM zone 29N
    6088, // WGS 84 / UTM zone 29S
    5993, // WGS 84 / UTM zone 2N
    6061, // WGS 84 / UTM zone 2S
    6021, // WGS 84 / UTM zone 30N
    6089, // WGS 84 / UTM zone 30S
    6022, // WGS 84 / UTM zone 31N
    6090, // WGS 84 / UTM zone 31S
    6023, // WGS 84 / UTM zone 32N
    6091, // WGS 84 / UTM zone 32S
    6024, // WGS 84 / UTM zone 33N
    6092, // WGS 84 / UTM zone 33S
    6025, // WGS 84 / UTM zone 34N
    6093, // WGS 84 / UTM zone 34S
    6026, // WGS 84 / UTM zone 35N
    6094, // WGS 84 / UTM zone 35S
    6027, // WGS 84 / UTM zone 36N
    6095, // WGS 84 / UTM zone 36S
    6028, // WGS 84 / UTM zone 37N
    6096, // WGS 84 / UTM zone 37S
    6029, // WGS 84 / UTM zone 38N
    6097, // WGS 84 / UTM zone 38S
    6030, // WGS 84 / UTM zone 39N
    6098, // WGS 84 / UTM zone 39S
    5994, // WGS 84 / UTM zone 3N
    6062, // WGS 84 / UTM zone 3S
    6031, // WGS 84 / UTM zone 40N
    6099, // WGS 84 / UTM zone 40S
    6032, // WGS 84 / UTM zone 41N
    6100, // WGS 84 / UTM zone 41S
    6033, // WGS 84 / UTM zone 42N
    6101, // WGS 84 / UTM zone 42S
    6034, // WGS 84 / UTM zone 43N
    6102, // WGS 84 / UTM zone 43S
    6035, // WGS 84 / UTM zone 44N
    6103, // WGS 84 / UTM zone 44S
    6036, // WGS 84 / UTM zone 45N
    6104, // WGS 84 / UTM zone 45S
    6037, // WGS 84 / UTM zone 46N
    6105, // WGS 84 / UTM zone 46S
    6038, // WGS 84 / UTM zone 47N
    6106, // WGS 84 / UTM zone 47S
    6039, // WGS 84 / UTM zone 48N
    6107, // WGS 84 / UTM zone 48S
    6040, // WGS 84 / UTM zone 49N
    6108, // WGS 84 / UTM zone 49S
    5995, // WGS 84 / UTM zone 4N
    6063, // WGS 84 / UTM zone 4S
    6041, // WGS 84 / UTM zone 50N
    6109, // WGS 84 / UTM zone 50S
    6042, // WGS 84 / UTM zone 51N
    6110, // WGS 84 / UTM zone 51S
    6043, // WGS 84 / UTM zone 52N
    6111, // WGS 84 / UTM zone 52S
    6044, // WGS 84 / UTM zone 53N
    6112, // WGS 84 / UTM zone 53S
    6045, // WGS 84 / UTM zone 54N
    6113, // WGS 84 / UTM zone 54S
    6046, // WGS 84 / UTM zone 55N
    6114, // WGS 84 / UTM zone 55S
    6047, // WGS 84 / UTM zone 56N
    6115, // WGS 84 / UTM zone 56S
    6048, // WGS 84 / UTM zone 57N
    6116, // WGS 84 / UTM zone 57S
    6049, // WGS 84 / UTM zone 58N
    6117, // WGS 84 / UTM zone 58S
    6050, // WGS 84 / UTM zone 59N
    6118, // WGS 84 / UTM zone 59S
    5996, // WGS 84 / UTM zone 5N
    6064, // WGS 84 / UTM zone 5S
    6051, // WGS 84 / UTM zone 60N
    6119, // WGS 84 / UTM zone 60S
    5997, // WGS 84 / UTM zone 6N
    6065, // WGS 84 / UTM zone 6S
    5998, // WGS 84 / UTM zone 7N
    6066, // WGS 84 / UTM zone 7S
    5999, // WGS 84 / UTM zone 8N
    6067, // WGS 84 / UTM zone 8S
    6000, // WGS 84 / UTM zone 9N
    6068, // WGS 84 / UTM zone 9S
    5991, // WGS 84 / UTM grid system (northern hemisphere)
    6059, // WGS 84 / UTM grid system (southern hemisphere)
    3769, // WGS 84 / Uttaranchal
    3768, // WGS 84 / Uttar Pradesh
    3780, // WGS 84 / West Bengal
    1949, // WGS 84 / World Equidistant Cylindrical
    6054, // WGS 84 / World Equidistant Cylindrical
    1386, // WGS 84 / World Mercator
    1777, // World Equidistant Cylindrical (Sphere)
    1950, // World Equidistant Cylindrical (Sphere)
    2317, // Xian 1980
    341, // Xian 1980 / 3-degree Gauss-Kruger zone 25
    342, // Xian 1980 / 3-degree Gauss-Kruger zone 26
    343, // Xian 1980 / 3-degree Gauss-Kruger zone 27
    344, // Xian 1980 / 3-degree Gauss-Kruger zone 28
    345, // Xian 1980 / 3-degree Gauss-Kruger zone 29
    346, // Xian 1980 / 3-degree Gauss-Kruger zone 30
    347, // Xian 1980 / 3-degree Gauss-Kruger zone 31
    348, // Xian 1980 / 3-degree Gauss-Kruger zone 32
    349, // Xian 1980 / 3-degree Gauss-Kruger zone 33
    350, // Xian 1980 / 3-degree Gauss-Kruger zone 34
    351, // Xian 1980 / 3-degree Gauss-Kruger zone 35
    352, // Xian 1980 / 3-degree Gauss-Kruger zone 36
    353, // Xian 1980 / 3-degree Gauss-Kruger zone 37
    354, // Xian 1980 / 3-degree Gauss-Kruger zone 38
    355, // Xian 1980 / 3-degree Gauss-Kruger zone 39
    356, // Xian 1980 / 3-degree Gauss-Kruger zone 40
    357, // Xian 1980 / 3-degree Gauss-Kruger zone 41
    358, // Xian 1980 / 3-degree Gauss-Kruger zone 42
    359, // Xian 1980 / 3-degree Gauss-Kruger zone 43
    360, // Xian 1980 / 3-degree Gauss-Kruger zone 44
    361, // Xian 1980 / 3-degree Gauss-Kruger zone 45
    371, // Xian 1980 / 3-degree Gauss-Kruger CM 102E
    372, // Xian 1980 / 3-degree Gauss-Kruger CM 105E
    373, // Xian 1980 / 3-degree Gauss-Kruger CM 108E
    374, // Xian 1980 / 3-degree Gauss-Kruger CM 111E
    375, // Xian 1980 / 3-degree Gauss-Kruger CM 114E
    376, // Xian 1980 / 3-degree Gauss-Kruger CM 117E
    377, // Xian 1980 / 3-degree Gauss-Kruger CM 120E
    378, // Xian 1980 / 3-degree Gauss-Kruger CM 123E
    379, // Xian 1980 / 3-degree Gauss-Kruger CM 126E
    380, // Xian 1980 / 3-degree Gauss-Kruger CM 129E
    381, // Xian 1980 / 3-degree Gauss-Kruger CM 132E
    382, // Xian 1980 / 3-degree Gauss-Kruger CM 135E
    362, // Xian 1980 / 3-degree Gauss-Kruger CM 75E
    363, // Xian 1980 / 3-degree Gauss-Kruger CM 78E
    364, // Xian 1980 / 3-degree Gauss-Kruger CM 81E
    365, // Xian 1980 / 3-degree Gauss-Kruger CM 84E
    366, // Xian 1980 / 3-degree Gauss-Kruger CM 87E
    367, // Xian 1980 / 3-degree Gauss-Kruger CM 90E
    368, // Xian 1980 / 3-degree Gauss-Kruger CM 93E
    369, // Xian 1980 / 3-degree Gauss-Kruger CM 96E
    370, // Xian 1980 / 3-degree Gauss-Kruger CM 99E
    319, // Xian 1980 / Gauss-Kruger zone 13
    320, // Xian 1980 / Gauss-Kruger zone 14
    321, // Xian 1980 / Gauss-Kruger zone 15
    322, // Xian 1980 / Gauss-Kruger zone 16
    323, // Xian 1980 / Gauss-Kruger zone 17
    324, // Xian 1980 / Gauss-Kruger zone 18
    325, // Xian 1980 / Gauss-Kruger zone 19
    326, // Xian 1980 / Gauss-Kruger zone 20
    327, // Xian 1980 / Gauss-Kruger zone 21
    328, // Xian 1980 / Gauss-Kruger zone 22
    329, // Xian 1980 / Gauss-Kruger zone 23
    335, // Xian 1980 / Gauss-Kruger CM 105E
    336, // Xian 1980 / Gauss-Kruger CM 111E
    337, // Xian 1980 / Gauss-Kruger CM 117E
    338, // Xian 1980 / Gauss-Kruger CM 123E
    339, // Xian 1980 / Gauss-Kruger CM 129E
    340, // Xian 1980 / Gauss-Kruger CM 135E
    330, // Xian 1980 / Gauss-Kruger CM 75E
    331, // Xian 1980 / Gauss-Kruger CM 81E
    332, // Xian 1980 / Gauss-Kruger CM 87E
    333, // Xian 1980 / Gauss-Kruger CM 93E
    334, // Xian 1980 / Gauss-Kruger CM 99E
    2139, // Yacare
    1998, // Yemen NGN96
    2830, // Yemen NGN96 / UTM zone 37N
    89, // Yemen NGN96 / UTM zone 38N
    90, // Yemen NGN96 / UTM zone 39N
    2831, // Yemen NGN96 / UTM zone 40N
    2140, // Yoff
    5504, // Yoff / UTM zone 28N
    2141, // Zanderij
    5507, // Zanderij / Suriname Old TM
    5508, // Zanderij / Suriname TM
    5506, // Zanderij / TM 54 NW
    5505, // Zanderij / UTM zone 21N
};
// clang-format on

} // namespace ZrProj::systems::rows
