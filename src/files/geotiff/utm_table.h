// The UTM zones that GeoTIFF tags name by number, in metres. Numbers are those of the EPSG registry; printed by
// tests/data/geotiff/make_tables.py.
#pragma once

#include <array>
#include <cstdint>

namespace ZrProj::GeoTIFF {

struct UtmRow {
    std::uint16_t first, last; // codes of projected systems, one zone each, in order
    std::uint8_t zone;         // of the first
    bool south;
    std::uint16_t geographic; // the code of the geographic system
};

// clang-format off
inline constexpr auto utmTable = std::to_array<UtmRow>({
    UtmRow{2027, 2030, 15, false, 4608}, // NAD27(76)
    UtmRow{2031, 2035, 17, false, 4609}, // NAD27(CGQ77)
    UtmRow{2037, 2038, 19, false, 4140}, // NAD83(CSRS98)
    UtmRow{2040, 2040, 30, false, 4142}, // Locodjo 1965
    UtmRow{2041, 2041, 30, false, 4143}, // Abidjan 1987
    UtmRow{2042, 2042, 29, false, 4142}, // Locodjo 1965
    UtmRow{2043, 2043, 29, false, 4143}, // Abidjan 1987
    UtmRow{2058, 2061, 38, false, 4154}, // ED50(ED77)
    UtmRow{2063, 2064, 28, false, 4315}, // Dabola 1981
    UtmRow{2067, 2067, 20, false, 4158}, // Naparima 1955
    UtmRow{2077, 2080, 32, false, 4159}, // ELD79
    UtmRow{2084, 2084, 19, true, 4254}, // Hito XVIII 1963
    UtmRow{2089, 2090, 38, false, 4163}, // Yemen NGN96
    UtmRow{2095, 2095, 28, false, 4165}, // Bissau
    UtmRow{2133, 2135, 58, true, 4167}, // NZGD2000
    UtmRow{2148, 2148, 21, false, 4140}, // NAD83(CSRS98)
    UtmRow{2149, 2149, 18, false, 4140}, // NAD83(CSRS98)
    UtmRow{2150, 2150, 17, false, 4140}, // NAD83(CSRS98)
    UtmRow{2151, 2151, 13, false, 4140}, // NAD83(CSRS98)
    UtmRow{2152, 2152, 12, false, 4140}, // NAD83(CSRS98)
    UtmRow{2153, 2153, 11, false, 4140}, // NAD83(CSRS98)
    UtmRow{2156, 2156, 59, true, 4152}, // NAD83(HARN)
    UtmRow{2158, 2158, 29, false, 4173}, // IRENET95
    UtmRow{2161, 2162, 28, false, 4175}, // Sierra Leone 1968
    UtmRow{2188, 2188, 25, false, 4182}, // Azores Occidental 1939
    UtmRow{2189, 2189, 26, false, 4183}, // Azores Central 1948
    UtmRow{2190, 2190, 26, false, 4184}, // Azores Oriental 1940
    UtmRow{2191, 2191, 28, false, 4185}, // Madeira 1936
    UtmRow{2195, 2195, 2, true, 4152}, // NAD83(HARN)
    UtmRow{2201, 2203, 18, false, 4189}, // REGVEN
    UtmRow{2215, 2215, 32, false, 4193}, // Manoca 1962
    UtmRow{2216, 2217, 22, false, 4194}, // Qornoq 1927
    UtmRow{2219, 2220, 19, false, 4122}, // ATS77
    UtmRow{2312, 2312, 33, false, 4197}, // Garoua
    UtmRow{2313, 2313, 33, false, 4198}, // Kousseri
    UtmRow{2315, 2316, 19, true, 4221}, // Campo Inchauspe
    UtmRow{2550, 2550, 50, true, 4125}, // Samboja
    UtmRow{2736, 2737, 36, true, 4127}, // Tete
    UtmRow{2933, 2933, 50, true, 4613}, // Segara
    UtmRow{2942, 2942, 28, false, 4615}, // Porto Santo
    UtmRow{2943, 2943, 28, false, 4616}, // Selvagem Grande
    UtmRow{2955, 2957, 11, false, 4617}, // NAD83(CSRS)
    UtmRow{2958, 2962, 17, false, 4617}, // NAD83(CSRS)
    UtmRow{2969, 2969, 20, false, 4621}, // Fort Marigot
    UtmRow{2970, 2970, 20, false, 4622}, // Guadeloupe 1948
    UtmRow{2971, 2971, 22, false, 4623}, // CSG67
    UtmRow{2972, 2972, 22, false, 4624}, // RGFG95
    UtmRow{2973, 2973, 20, false, 4625}, // Martinique 1938
    UtmRow{2975, 2975, 40, true, 4627}, // RGR92
    UtmRow{2976, 2976, 6, true, 4628}, // Tahiti 52
    UtmRow{2977, 2977, 5, true, 4629}, // Tahaa 54
    UtmRow{2978, 2978, 7, true, 4630}, // IGN72 Nuku Hiva
    UtmRow{2979, 2979, 42, true, 4631}, // K0 1949
    UtmRow{2980, 2980, 38, true, 4632}, // Combani 1950
    UtmRow{2981, 2981, 58, true, 4633}, // IGN56 Lifou
    UtmRow{2982, 2982, 58, true, 4634}, // IGN72 Grand Terre
    UtmRow{2983, 2983, 58, true, 4635}, // ST87 Ouvea
    UtmRow{2987, 2987, 21, false, 4638}, // Saint Pierre et Miquelon 1950
    UtmRow{2988, 2988, 1, true, 4639}, // MOP78
    UtmRow{2989, 2989, 20, false, 4640}, // RRAF 1991
    UtmRow{2995, 2995, 58, true, 4641}, // IGN53 Mare
    UtmRow{2996, 2996, 58, true, 4642}, // ST84 Ile des Pins
    UtmRow{2997, 2997, 58, true, 4643}, // ST71 Belep
    UtmRow{2998, 2998, 58, true, 4644}, // NEA74 Noumea
    UtmRow{2999, 2999, 38, true, 4646}, // Grand Comoros
    UtmRow{3036, 3037, 36, true, 4130}, // Moznet
    UtmRow{3054, 3056, 26, false, 4658}, // Hjorsey 1955
    UtmRow{3060, 3060, 58, true, 4662}, // IGN72 Grande Terre
    UtmRow{3061, 3061, 28, false, 4663}, // Porto Santo 1995
    UtmRow{3062, 3062, 26, false, 4664}, // Azores Oriental 1995
    UtmRow{3063, 3063, 26, false, 4665}, // Azores Central 1995
    UtmRow{3064, 3065, 32, false, 4670}, // IGM95
    UtmRow{3067, 3067, 35, false, 4258}, // ETRS89 / TM35FIN(E,N)
    UtmRow{3092, 3096, 51, false, 4301}, // Tokyo
    UtmRow{3097, 3101, 51, false, 4612}, // JGD2000
    UtmRow{3103, 3105, 28, false, 4681}, // Mauritania 1999
    UtmRow{3141, 3141, 60, true, 4721}, // Fiji 1956
    UtmRow{3142, 3142, 1, true, 4721}, // Fiji 1956
    UtmRow{3148, 3149, 48, false, 4131}, // Indian 1960
    UtmRow{3154, 3157, 7, false, 4617}, // NAD83(CSRS)
    UtmRow{3158, 3160, 14, false, 4617}, // NAD83(CSRS)
    UtmRow{3164, 3164, 58, true, 4750}, // ST87 Ouvea
    UtmRow{3169, 3171, 57, true, 4749}, // RGNC91-93
    UtmRow{3172, 3172, 59, true, 4641}, // IGN53 Mare
    UtmRow{3178, 3189, 18, false, 4747}, // GR96
    UtmRow{3199, 3199, 32, false, 4754}, // LGD2006
    UtmRow{3201, 3203, 33, false, 4754}, // LGD2006
    UtmRow{3296, 3299, 5, true, 4687}, // RGPF
    UtmRow{3302, 3302, 7, true, 4689}, // IGN63 Hiva Oa
    UtmRow{3303, 3303, 7, true, 4688}, // Fatu Iva 72
    UtmRow{3304, 3304, 6, true, 4690}, // Tahiti 79
    UtmRow{3305, 3305, 6, true, 4691}, // Moorea 87
    UtmRow{3306, 3306, 5, true, 4692}, // Maupiti 83
    UtmRow{3307, 3307, 39, false, 4693}, // Nakhl-e Ghanem
    UtmRow{3312, 3312, 21, false, 4623}, // CSG67
    UtmRow{3313, 3313, 21, false, 4624}, // RGFG95
    UtmRow{3336, 3336, 42, true, 4698}, // IGN 1962 Kerguelen
    UtmRow{3342, 3342, 33, true, 4701}, // IGCB 1955
    UtmRow{3343, 3345, 28, false, 4702}, // Mauritania 1999
    UtmRow{3353, 3353, 32, true, 4704}, // Mhast (onshore)
    UtmRow{3354, 3354, 32, true, 4705}, // Mhast (offshore)
    UtmRow{3356, 3356, 17, false, 4723}, // Grand Cayman 1959
    UtmRow{3357, 3357, 17, false, 4726}, // Little Cayman 1961
    UtmRow{3367, 3369, 28, false, 4700}, // IGN Astro 1960
    UtmRow{3370, 3371, 59, false, 4267}, // NAD27
    UtmRow{3372, 3373, 59, false, 4269}, // NAD83
    UtmRow{3374, 3374, 29, false, 4741}, // FD54
    UtmRow{3391, 3393, 37, false, 4743}, // Karbala 1979
    UtmRow{3405, 3406, 48, false, 4756}, // VN-2000
    UtmRow{3439, 3440, 39, false, 4134}, // PSD93
    UtmRow{3449, 3450, 17, false, 4758}, // JAD2001
    UtmRow{3461, 3462, 28, false, 4155}, // Dabola 1981
    UtmRow{3706, 3707, 59, false, 4759}, // NAD83(NSRS2007)
    UtmRow{3708, 3726, 1, false, 4759}, // NAD83(NSRS2007)
    UtmRow{3740, 3749, 10, false, 4152}, // NAD83(HARN)
    UtmRow{3750, 3751, 4, false, 4152}, // NAD83(HARN)
    UtmRow{3761, 3761, 22, false, 4617}, // NAD83(CSRS)
    UtmRow{3767, 3768, 33, false, 4761}, // HTRS96
    UtmRow{3769, 3769, 20, false, 4216}, // Bermuda 1957
    UtmRow{3784, 3784, 9, true, 4729}, // Pitcairn 1967
    UtmRow{3829, 3829, 51, false, 4236}, // Hu Tzu Shan 1950
    UtmRow{3890, 3892, 37, false, 3889}, // IGRS
    UtmRow{3920, 3920, 20, false, 4139}, // Puerto Rico
    UtmRow{4061, 4063, 33, true, 4046}, // RGRDC 2005
    UtmRow{4071, 4071, 23, true, 4224}, // Chua
    UtmRow{4082, 4083, 27, false, 4081}, // REGCAN95
    UtmRow{4467, 4467, 21, false, 4463}, // RGSPM06
    UtmRow{4471, 4471, 38, true, 4470}, // RGM04
    UtmRow{4474, 4474, 38, true, 4632}, // Cadastre 1997
    UtmRow{4484, 4489, 11, false, 4483}, // Mexico ITRF92
    UtmRow{4559, 4559, 20, false, 4558}, // RRAF 1991
    UtmRow{5014, 5015, 25, false, 5013}, // PTRA08
    UtmRow{5016, 5016, 28, false, 5013}, // PTRA08
    UtmRow{5337, 5337, 25, true, 4208}, // Aratu
    UtmRow{5355, 5355, 20, true, 5354}, // MARGEN
    UtmRow{5356, 5356, 19, true, 5354}, // MARGEN
    UtmRow{5357, 5357, 21, true, 5354}, // MARGEN
    UtmRow{5361, 5361, 19, true, 5360}, // SIRGAS-Chile 2002
    UtmRow{5362, 5362, 18, true, 5360}, // SIRGAS-Chile 2002
    UtmRow{5382, 5383, 21, true, 5381}, // SIRGAS-ROU98
    UtmRow{5387, 5387, 18, true, 5373}, // Peru96
    UtmRow{5388, 5388, 17, false, 5373}, // Peru96
    UtmRow{5389, 5389, 19, true, 5373}, // Peru96
    UtmRow{5396, 5396, 26, true, 4674}, // SIRGAS 2000
    UtmRow{5463, 5463, 17, false, 4618}, // SAD69
    UtmRow{5490, 5490, 20, false, 5489}, // RGAF09
    UtmRow{5531, 5531, 21, true, 5527}, // SAD69(96)
    UtmRow{5532, 5532, 22, true, 4618}, // SAD69(96)
    UtmRow{5533, 5535, 23, true, 5527}, // SAD69(96)
    UtmRow{5536, 5539, 21, true, 5524}, // Corrego Alegre 1961
    UtmRow{5550, 5552, 54, true, 5546}, // PNG94 / PNGMG94 zone 54
    UtmRow{5629, 5629, 38, true, 4130}, // Moznet
    UtmRow{5644, 5644, 39, true, 4627}, // RGR92
    UtmRow{5700, 5700, 1, true, 4167}, // NZGD2000
    UtmRow{5836, 5836, 37, false, 4163}, // Yemen NGN96
    UtmRow{5837, 5837, 40, false, 4163}, // Yemen NGN96
    UtmRow{5839, 5839, 17, true, 5373}, // Peru96
    UtmRow{5858, 5858, 22, true, 5527}, // SAD69(96)
    UtmRow{5875, 5877, 18, true, 5527}, // SAD69(96)
    UtmRow{5879, 5879, 38, true, 4475}, // Cadastre 1997
    UtmRow{6210, 6211, 23, false, 4674}, // SIRGAS 2000
    UtmRow{6328, 6329, 59, false, 6318}, // NAD83(2011)
    UtmRow{6330, 6348, 1, false, 6318}, // NAD83(2011)
    UtmRow{6366, 6371, 11, false, 6365}, // Mexico ITRF2008
    UtmRow{6634, 6635, 4, false, 6322}, // NAD83(PA11)
    UtmRow{6636, 6636, 2, true, 6322}, // NAD83(PA11)
    UtmRow{6688, 6692, 51, false, 6668}, // JGD2011
    UtmRow{6732, 6735, 41, true, 4283}, // GDA94 / MGA zone 41
    UtmRow{6736, 6737, 46, true, 4283}, // GDA94 / MGA zone 46
    UtmRow{6738, 6738, 59, true, 4283}, // GDA94 / MGA zone 59
    UtmRow{6915, 6915, 40, false, 6892}, // South East Island 1943
    UtmRow{7005, 7007, 37, false, 4744}, // Nahrwan 1934
    UtmRow{7074, 7081, 37, true, 7073}, // RGTAAF07
    UtmRow{7374, 7376, 39, false, 7373}, // ONGD14
    UtmRow{7791, 7793, 32, false, 6706}, // RDN2008
    UtmRow{7803, 7803, 34, false, 7798}, // BGS2005
    UtmRow{7804, 7804, 34, false, 7798}, // BGS2005
    UtmRow{7805, 7805, 36, false, 7798}, // BGS2005
    UtmRow{7846, 7859, 46, true, 7844}, // GDA2020 / MGA zone 46
    UtmRow{7878, 7878, 30, true, 4710}, // Astro DOS 71
    UtmRow{7883, 7883, 30, true, 7881}, // St. Helena Tritan
    UtmRow{7887, 7887, 30, true, 7886}, // SHMG2015
    UtmRow{7992, 7992, 33, true, 4259}, // Malongo 1987
    UtmRow{8455, 8456, 53, true, 7073}, // RGTAAF07
    UtmRow{8682, 8682, 34, false, 8685}, // SRB_ETRS89
    UtmRow{8687, 8687, 33, false, 4765}, // Slovenia 1996
    UtmRow{8692, 8693, 54, false, 6325}, // NAD83(MA11)
    UtmRow{8836, 8840, 36, false, 8818}, // MTRF-2000
    UtmRow{8903, 8903, 1, true, 8900}, // RGWF96
    UtmRow{8909, 8910, 16, false, 8907}, // CR-SIRGAS
    UtmRow{8950, 8951, 18, true, 8949}, // SIRGAS-Chile 2010
    UtmRow{9149, 9150, 18, true, 9148}, // SIRGAS-Chile 2013
    UtmRow{9154, 9155, 18, true, 9153}, // SIRGAS-Chile 2016
    UtmRow{9156, 9158, 32, true, 8699}, // RSAO13
    UtmRow{9265, 9265, 19, true, 5340}, // POSGAR 2007
    UtmRow{9295, 9297, 39, false, 9294}, // ONGD17
    UtmRow{9356, 9360, 36, false, 9333}, // KSA-GRF17
    UtmRow{9391, 9391, 35, false, 7798}, // BGS2005
    UtmRow{9404, 9405, 27, false, 9403}, // PN68
    UtmRow{9406, 9407, 27, false, 4728}, // PN84
    UtmRow{9476, 9482, 46, false, 9470}, // SRGI2013
    UtmRow{9487, 9494, 47, true, 9470}, // SRGI2013
    UtmRow{9697, 9697, 12, true, 9696}, // REDGEOMIN
    UtmRow{9698, 9699, 18, true, 9696}, // REDGEOMIN
    UtmRow{9709, 9709, 23, false, 4617}, // NAD83(CSRS)
    UtmRow{9712, 9712, 24, false, 4269}, // NAD83
    UtmRow{9713, 9713, 24, false, 4617}, // NAD83(CSRS)
    UtmRow{9716, 9716, 34, false, 4670}, // IGM95
    UtmRow{9874, 9875, 57, true, 5546}, // PNG94 / PNGMG94 zone 57
    UtmRow{20042, 20042, 12, true, 20041}, // SIRGAS-Chile 2021
    UtmRow{20048, 20049, 18, true, 20041}, // SIRGAS-Chile 2021
    UtmRow{20135, 20138, 35, false, 4201}, // Adindan
    UtmRow{20248, 20258, 48, true, 4202}, // AGD66 / AMG zone 48
    UtmRow{20348, 20358, 48, true, 4203}, // AGD84 / AMG zone 48
    UtmRow{20436, 20440, 36, false, 4204}, // Ain el Abd
    UtmRow{20499, 20499, 39, false, 4204}, // Ain el Abd / Bahrain Grid
    UtmRow{20538, 20539, 38, false, 4205}, // Afgooye
    UtmRow{20822, 20824, 22, true, 4208}, // Aratu
    UtmRow{20934, 20936, 34, true, 4209}, // Arc 1950
    UtmRow{21035, 21037, 35, true, 4210}, // Arc 1960
    UtmRow{21095, 21097, 35, false, 4210}, // Arc 1960
    UtmRow{21148, 21150, 48, true, 4211}, // Batavia
    UtmRow{21817, 21818, 17, false, 4218}, // Bogota 1975
    UtmRow{22032, 22033, 32, true, 4220}, // Camacupa 1948
    UtmRow{22207, 22222, 7, false, 8237}, // NAD83(CSRS)v2
    UtmRow{22234, 22236, 34, true, 4222}, // Cape
    UtmRow{22307, 22322, 7, false, 8240}, // NAD83(CSRS)v3
    UtmRow{22332, 22332, 32, false, 4223}, // Carthage
    UtmRow{22407, 22422, 7, false, 8246}, // NAD83(CSRS)v4
    UtmRow{22521, 22525, 21, true, 4225}, // Corrego Alegre 1970-72
    UtmRow{22607, 22622, 7, false, 8252}, // NAD83(CSRS)v6
    UtmRow{22707, 22722, 7, false, 8255}, // NAD83(CSRS)v7
    UtmRow{22832, 22832, 32, false, 4228}, // Douala
    UtmRow{23028, 23038, 28, false, 4230}, // ED50
    UtmRow{23239, 23240, 39, false, 4232}, // Fahud
    UtmRow{23433, 23433, 33, false, 4234}, // Garoua
    UtmRow{23846, 23853, 46, false, 4238}, // ID74
    UtmRow{23866, 23872, 46, false, 4755}, // DGN95
    UtmRow{23877, 23884, 47, true, 4755}, // DGN95
    UtmRow{23886, 23894, 46, true, 4238}, // ID74
    UtmRow{23946, 23948, 46, false, 4239}, // Indian 1954
    UtmRow{24047, 24048, 47, false, 4240}, // Indian 1975
    UtmRow{24305, 24306, 45, false, 4144}, // Kalianpur 1937
    UtmRow{24311, 24313, 41, false, 4145}, // Kalianpur 1962
    UtmRow{24342, 24347, 42, false, 4146}, // Kalianpur 1975
    UtmRow{24547, 24548, 47, false, 4245}, // Kertau 1968
    UtmRow{24718, 24720, 18, false, 4247}, // La Canoa
    UtmRow{24817, 24821, 17, false, 4248}, // PSAD56
    UtmRow{24877, 24882, 17, true, 4248}, // PSAD56
    UtmRow{25231, 25231, 31, false, 4252}, // Lome
    UtmRow{25828, 25838, 28, false, 4258}, // ETRS89
    UtmRow{25932, 25932, 32, true, 4259}, // Malongo 1987
    UtmRow{26237, 26237, 37, false, 4262}, // Massawa
    UtmRow{26331, 26332, 31, false, 4263}, // Minna
    UtmRow{26432, 26432, 32, true, 4264}, // Mhast
    UtmRow{26632, 26632, 32, false, 4266}, // M'poraloko
    UtmRow{26692, 26692, 32, true, 4266}, // M'poraloko
    UtmRow{26701, 26722, 1, false, 4267}, // NAD27
    UtmRow{26901, 26923, 1, false, 4269}, // NAD83
    UtmRow{27037, 27040, 37, false, 4270}, // Nahrwan 1967
    UtmRow{27120, 27120, 20, false, 4271}, // Naparima 1972
    UtmRow{27258, 27260, 58, true, 4272}, // NZGD49
    UtmRow{27429, 27429, 29, false, 4274}, // Datum 73
    UtmRow{28232, 28232, 32, true, 4282}, // Pointe Noire
    UtmRow{28348, 28358, 48, true, 4283}, // GDA94 / MGA zone 48
    UtmRow{29118, 29122, 18, false, 4291}, // SAD69
    UtmRow{29168, 29172, 18, false, 4618}, // SAD69
    UtmRow{29177, 29185, 17, true, 4291}, // SAD69
    UtmRow{29187, 29195, 17, true, 4618}, // SAD69
    UtmRow{29220, 29221, 20, true, 4292}, // Sapper Hill 1943
    UtmRow{29333, 29333, 33, true, 4293}, // Schwarzeck
    UtmRow{29635, 29636, 35, false, 4296}, // Sudan
    UtmRow{29738, 29739, 38, true, 4297}, // Tananarive
    UtmRow{29849, 29850, 49, false, 4298}, // Timbalai 1948
    UtmRow{30339, 30340, 39, false, 4303}, // TC(1948)
    UtmRow{30729, 30732, 29, false, 4307}, // Nord Sahara 1959
    UtmRow{31028, 31028, 28, false, 4310}, // Yoff
    UtmRow{31121, 31121, 21, false, 4311}, // Zanderij
    UtmRow{31528, 31529, 28, false, 4315}, // Conakry 1905
    UtmRow{31838, 31839, 38, false, 4318}, // NGN
    UtmRow{31965, 31976, 11, false, 4674}, // SIRGAS 2000
    UtmRow{31977, 31985, 17, true, 4674}, // SIRGAS 2000
    UtmRow{31986, 31991, 17, false, 4170}, // SIRGAS 1995
    UtmRow{31992, 32000, 17, true, 4170}, // SIRGAS 1995
    UtmRow{32201, 32260, 1, false, 4322}, // WGS 72
    UtmRow{32301, 32360, 1, true, 4322}, // WGS 72
    UtmRow{32401, 32460, 1, false, 4324}, // WGS 72BE
    UtmRow{32501, 32560, 1, true, 4324}, // WGS 72BE
    UtmRow{32601, 32660, 1, false, 4326}, // WGS 84
    UtmRow{32701, 32760, 1, true, 4326}, // WGS 84
});
// clang-format on

} // namespace ZrProj::GeoTIFF
