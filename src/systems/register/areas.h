// Areas of use: west, south, east, north in hundredths of a degree.
//
// Made by src/systems/make_register.py from the EPSG Geodetic Parameter Dataset v10.076 of 2022-08-31, which
// is IOGP's, as proj-data carries it, under the terms of use at https://epsg.org/terms-of-use.html. Other makers' names
// are of ArcGIS Pro 3.0 of 2022-07-09 and of PROJ 9.1.1.
#pragma once

#include "systems/register/rows.h"

namespace ZrProj::systems::rows {

// clang-format off
inline constexpr AreaRow areas[] = {
    {4552, 6050, 2940, 7492, 3848}, // Afghanistan
    {5747, 1846, 3963, 2106, 4267}, // Albania
    {6044, -867, 1897, 1199, 3880}, // Algeria
    {6182, -17375, -1756, -16520, -1002}, // American Samoa
    {165540, 820, -1802, 2409, -438}, // Angola
    {6797, -18000, -9000, 18000, -6000}, // Antarctica
    {12598, -7359, -5841, -5263, -2178}, // Argentina
    {16592, 953, 4640, 1717, 4902}, // Austria
    {18352, 8801, 1856, 9267, 2664}, // Bangladesh
    {21478, -6883, 2891, -6070, 3573}, // Bermuda
    {21762, 8874, 2670, 9213, 2833}, // Bhutan
    {87836, -6966, -2291, -5752, -967}, // Bolivia
    {22912, -7401, -3571, -2528, 704}, // Brazil
    {23997, 11237, 401, 11537, 631}, // Brunei
    {24087, 2236, 4124, 3135, 4423}, // Bulgaria
    {27293, 832, 165, 1621, 1309}, // Cameroon
    {206879, -14101, 3821, -4073, 8646}, // Canada
    {29254, -2885, 1147, -1953, 2054}, // Cape Verde
    {29669, -8360, 1758, -7872, 2068}, // Cayman Islands
    {165391, -11321, -5987, -6572, -1750}, // Chile
    {30315, 7362, 1670, 13477, 5356}, // China
    {31566, 9676, -1227, 9699, -1176}, // Cocos (Keeling) Islands - onshore
    {31695, -8477, -423, -6687, 1551}, // Colombia
    {33336, 884, -691, 1865, 372}, // Congo
    {29874, -9045, 215, -8143, 1177}, // Costa Rica
    {34528, -861, 102, -248, 1074}, // Cote d'Ivoire (Ivory Coast)
    {34753, 1300, 4162, 1943, 4654}, // Croatia
    {35055, 1209, 4858, 1886, 5106}, // Czechia
    {38054, 4175, 1094, 4415, 1272}, // Djibouti
    {44115, 2470, 2189, 3791, 3382}, // Egypt
    {165460, -9143, 997, -8765, 1444}, // El Salvador
    {44753, 3644, 1236, 4331, 1810}, // Eritrea
    {44774, 2037, 5752, 2820, 6000}, // Estonia
    {47874, -1391, 5994, -48, 6570}, // Faroe Islands
    {48303, 17681, -2081, -17815, -1242}, // Fiji - onshore
    {48492, 1908, 5884, 3159, 7009}, // Finland
    {29917, -986, 4115, 1038, 5156}, // France
    {50549, -5461, 211, -4945, 888}, // French Guiana
    {50663, -15813, -3124, -13197, -452}, // French Polynesia
    {60019, 703, -637, 1452, 232}, // Gabon
    {61137, -379, 140, 210, 1116}, // Ghana
    {61675, -7500, 5638, 799, 8702}, // Greenland
    {30733, 11376, 2213, 11451, 2258}, // China - Hong Kong
    {65066, 1611, 4574, 2290, 4858}, // Hungary
    {67020, -3087, 5996, -555, 6959}, // Iceland
    {68088, 6560, 387, 9742, 3551}, // India
    {69078, 9201, -1395, 14146, 779}, // Indonesia
    {14581, 4403, 2334, 6334, 3978}, // Iran
    {47598, 3879, 2906, 4875, 3739}, // Iraq
    {71443, 3299, 2945, 3569, 3353}, // Israel
    {71680, 593, 3476, 1899, 4710}, // Italy
    {73442, -8060, 1408, -7451, 1936}, // Jamaica
    {73630, 12238, 1709, 15765, 4605}, // Japan
    {74725, 3488, 2918, 3931, 3338}, // Jordan
    {78261, 12271, 2860, 13428, 4027}, // Korea, Republic of (South Korea)
    {79356, 6924, 3919, 8029, 4322}, // Kyrgyzstan
    {80556, 10009, 1392, 10764, 2250}, // Laos
    {80792, 1906, 5567, 2824, 5809}, // Latvia
    {80998, 931, 1950, 2621, 3523}, // Libya
    {81252, 947, 4705, 964, 4728}, // Liechtenstein
    {45940, 1902, 5389, 2682, 5645}, // Lithuania
    {136167, 573, 4944, 653, 5019}, // Luxembourg
    {30745, 11352, 2206, 11368, 2223}, // China - Macao
    {133348, 2045, 4085, 2304, 4236}, // North Macedonia
    {86221, 4253, -2659, 5103, -1169}, // Madagascar - onshore and nearshore
    {13723, 9802, 85, 11961, 781}, // Malaysia
    {87181, 6929, -347, 7708, 810}, // Maldives
    {88317, -2004, 1472, -480, 2730}, // Mauritania
    {88534, 4368, -1449, 4670, -1133}, // Mayotte
    {88894, -12219, 1210, -8464, 3272}, // Mexico
    {90897, 2663, 4544, 3013, 4847}, // Moldova
    {92089, 3021, -2771, 4303, -1009}, // Mozambique
    {21704, 824, -3064, 2527, -1695}, // Namibia
    {127879, 8006, 2634, 8821, 3043}, // Nepal
    {162592, 15625, -2645, 17428, -1483}, // New Caledonia
    {130430, 16060, -5595, -17120, -2588}, // New Zealand
    {131999, 16, 1169, 1600, 2353}, // Niger
    {132015, 266, 192, 1465, 1390}, // Nigeria
    {137711, 5199, 1433, 6338, 2674}, // Oman
    {141777, 6086, 2105, 7783, 3707}, // Pakistan
    {142131, -8432, 500, -7704, 1251}, // Panama
    {142280, 13920, -1475, 16281, 258}, // Papua New Guinea
    {143111, -8468, -2105, -6867, -3}, // Peru
    {143416, 11604, 300, 12995, 2218}, // Philippines
    {41357, 1414, 4900, 2415, 5593}, // Poland
    {160392, 5055, 2455, 5304, 2705}, // Qatar
    {166700, 2026, 4344, 3141, 4827}, // Romania
    {206922, 1892, 3987, -16897, 8519}, // Russia
    {14519, 3444, 1629, 5567, 3216}, // Saudi Arabia
    {177796, -2022, 1064, -1136, 1670}, // Senegal
    {14465, 10359, 113, 10407, 147}, // Singapore
    {178863, 1684, 4773, 2256, 4961}, // Slovakia
    {178872, 1338, 4542, 1661, 4688}, // Slovenia
    {179041, 15562, -1090, 16244, -655}, // Solomon Islands - onshore main islands
    {181870, -5710, 4341, -5590, 4737}, // St Pierre and Miquelon
    {182947, -5808, 183, -5266, 935}, // Suriname
    {182984, 1003, 5496, 2417, 6907}, // Sweden
    {184688, 11432, 1736, 12361, 2696}, // Taiwan
    {186206, -15, 291, 242, 1114}, // Togo
    {186967, -17908, -2568, -17128, -1414}, // Tonga
    {4664, 749, 3023, 1367, 3841}, // Tunisia
    {187506, 2562, 3442, 4483, 4345}, // Turkey
    {195463, 2215, 4318, 4018, 5238}, // Ukraine
    {189647, 16765, 1556, -6569, 7471}, // USA
    {198145, -5849, -3777, -5001, -3009}, // Uruguay
    {199142, -7338, 64, -5895, 1675}, // Venezuela
    {213805, 17949, -1594, -17427, -984}, // Wallis and Futuna
    {181069, 4108, 895, 5796, 1900}, // Yemen
    {32961, 1179, -1346, 3131, 539}, // Congo DR (Zaire)
    {215089, -18000, -9000, 18000, 9000}, // World
    {134482, -18000, -9000, 18000, 9000}, // Not specified
    {189105, -882, 4979, 192, 6094}, // UK - Great Britain onshore and nearshore; Isle of Man
    {4922, 2182, 340, 4799, 2224}, // Africa - Eritrea, Ethiopia, South Sudan and Sudan
    {14495, 3451, 1637, 5567, 3216}, // Asia - Middle East - Bahrain, Kuwait and Saudi Arabia
    {9905, -6195, 1694, -6161, 1722}, // Antigua - onshore
    {23235, -5338, -3571, -2600, 426}, // Brazil - Aratu
    {127912, 320, 5075, 722, 5370}, // Netherlands - onshore
    {4799, 1999, -2688, 3593, -819}, // Africa - Botswana, Malawi, Zambia, Zimbabwe
    {4861, 2885, -1175, 4191, 463}, // Africa - Burundi, Kenya, Rwanda, Tanzania and Uganda
    {9682, 4500, -9000, 16000, -6000}, // Antarctica - Australian sector
    {15178, 10923, -4720, 16320, -130}, // Australasia - Australia and PNG - AGD66
    {28110, -6905, 4341, -5973, 4807}, // Canada - Maritime Provinces
    {69691, 9516, -891, 11577, 597}, // Indonesia - Bali, Java and western Sumatra onshore
    {46364, 596, 4582, 1049, 4781}, // Europe - Liechtenstein and Switzerland
    {69717, 10507, -330, 10835, -144}, // Indonesia - Banga & Belitung Islands
    {6541, 820, -1802, 2409, -582}, // Angola - Angola proper
    {4768, 1645, -3488, 3295, -1778}, // Africa - Botswana, Eswatini, Lesotho and South Africa
    {14156, 4695, 3735, 5393, 4697}, // Asia - FSU - Caspian Sea
    {23263, -5816, -3378, -3474, -268}, // Brazil - Corrego Alegre 1970-1972
    {144802, -956, 3695, -619, 4216}, // Portugal - mainland - onshore
    {45897, -1610, 2571, 4861, 8473}, // Europe - ED50 by country
    {46654, -1056, 3488, 3801, 8473}, // Europe - west
    {45909, -1610, 3288, 4018, 8473}, // Europe - ETRF by country
    {71107, 4713, 2621, 5361, 3322}, // Iran - FD58
    {144672, -2890, 3832, -2697, 3914}, // Portugal - Azores C - onshore
    {180578, -7483, -5596, -6373, -5165}, // South America - Tierra del Fuego
    {14845, 9220, 563, 10564, 2855}, // Asia - Myanmar and Thailand onshore
    {46322, -1056, 5139, -534, 5543}, // Europe - Ireland (Republic and Ulster) - onshore
    {45877, 1209, 4773, 2256, 5106}, // Europe - Czechoslovakia
    {13641, 6086, 802, 10117, 3707}, // Asia - Bangladesh; India; Myanmar; Pakistan - onshore
    {13641, 6086, 802, 10117, 3707}, // Asia - Bangladesh; India; Myanmar; Pakistan - onshore
    {14472, 9959, 113, 10460, 672}, // Asia - Malaysia (west) and Singapore
    {79082, 4778, 2917, 4816, 2945}, // Kuwait - Kuwait City
    {199184, -7240, 872, -7078, 1104}, // Venezuela - Lake Maracaibo
    {199286, -7338, 775, -5980, 1225}, // Venezuela - north of 7°45'N
    {144762, -1731, 3235, -1623, 3315}, // Portugal - Madeira archipelago onshore
    {92190, 3021, -1776, 3537, -1401}, // Mozambique - west - Tete province
    {69931, 11871, -654, 12078, -188}, // Indonesia - Sulawesi SW
    {6628, 1053, -604, 1310, -438}, // Angola - Cabinda
    {199237, -7225, 1000, -7150, 1100}, // Venezuela - Maracaibo area
    {45825, 953, 4085, 2304, 4902}, // Europe - Austria and former Yugoslavia onshore
    {187172, -6090, 1108, -6044, 1141}, // Trinidad and Tobago - Tobago - onshore
    {190464, -12479, 2441, -6691, 4938}, // USA - CONUS - onshore
    {50213, -487, 4233, 823, 5114}, // France - mainland onshore
    {49974, 850, 4131, 963, 4307}, // France - Corsica onshore
    {69860, 11672, -124, 11799, 0}, // Indonesia - Kalimantan - Mahakam delta
    {92178, 3129, -2687, 3565, -1984}, // Mozambique - south
    {190100, 17242, 5130, -12999, 7140}, // USA - Alaska
    {190226, -16988, 5649, -16938, 5667}, // USA - Alaska - St. George Island
    {190243, -17197, 6289, -16859, 6384}, // USA - Alaska - St. Lawrence Island
    {190262, -17051, 5706, -17004, 5728}, // USA - Alaska - St. Paul Island
    {190930, -16030, 1887, -15474, 2229}, // USA - Hawaii - onshore
    {29428, -6797, 1762, -6425, 1878}, // Caribbean - Puerto Rico and Virgin Islands - onshore
    {28047, -12000, 4461, -5710, 6256}, // Canada - CSRS98
    {190797, 14458, -1459, -6451, 7140}, // USA - HARN
    {71132, 5250, 2739, 5271, 2761}, // Iran - Taheri refinery
    {187195, -6209, 983, -6000, 1151}, // Trinidad and Tobago - Trinidad
    {220593, 4337, 1254, 5314, 1900}, // Yemen - South Yemen - mainland
    {178084, -1334, 832, -1313, 855}, // Sierra Leone - Freetown Peninsula
    {144703, -3134, 3930, -3102, 3977}, // Portugal - Azores W - onshore
    {144687, -2592, 3687, -2472, 3796}, // Portugal - Azores E - onshore
    {160396, 5069, 2455, 5168, 2620}, // Qatar - onshore
    {21388, 250, 4950, 640, 5151}, // Belgium - onshore
    {180537, -8141, -4350, -4799, 1268}, // South America - PSAD56 by country
    {132997, 16765, 715, -4774, 8317}, // North America - NAD27
    {133006, 16765, 1492, -4073, 8645}, // North America - NAD83
    {14763, 5055, 2263, 5713, 2705}, // Asia - Middle East - Qatar offshore and UAE
    {133835, 468, 5793, 3122, 7121}, // Norway - onshore
    {45852, -1056, 4981, 184, 6090}, // Europe - British Isles - UK and Ireland onshore
    {69945, 9516, -599, 10613, 597}, // Indonesia - Sumatra
    {14645, 3417, 2918, 3931, 3338}, // Asia - Middle East - Israel, Jordan and Palestine onshore
    {180549, -9172, -5596, -2528, 1252}, // South America - SAD69 by country
    {69897, 11455, -424, 11799, 0}, // Indonesia - Kalimantan SE
    {69883, 11455, -424, 11906, 429}, // Indonesia - Kalimantan E
    {182833, 0, 0, 0, 0}, // Sudan - south
    {13710, 10931, 85, 11961, 767}, // Asia - Brunei and East Malaysia
    {187690, 5156, 2263, 5603, 2534}, // UAE - Abu Dhabi and Dubai - onshore
    {14354, 12283, 2037, 15405, 4554}, // Asia - Japan and Korea
    {6120, -295, 3199, 909, 3714}, // Algeria - north of 32°N
    {4646, -1317, 1898, 1199, 3734}, // Africa - Algeria, Morocco and Tunisia
    {28313, -9516, 4167, -7435, 5690}, // Canada - Ontario
    {28581, -7985, 4499, -5710, 6262}, // Canada - Quebec
    {49962, 684, 4742, 823, 4907}, // France - Alsace
    {190491, -12445, 3253, -11412, 4201}, // USA - California
    {190657, -7373, 4098, -7178, 4205}, // USA - Connecticut
    {190667, -7580, 3844, -7497, 3985}, // USA - Delaware
    {190680, -8763, 2441, -7997, 3101}, // USA - Florida
    {190940, -11724, 4199, -11104, 4901}, // USA - Idaho
    {192044, -10206, 3699, -9458, 4001}, // USA - Kansas
    {192326, -8957, 3649, -8195, 3915}, // USA - Kentucky
    {192361, -9405, 2885, -8875, 3303}, // USA - Louisiana
    {192450, -7949, 3797, -7497, 3973}, // USA - Maryland
    {192493, -9042, 4169, -8213, 4832}, // USA - Michigan
    {192611, -9165, 3001, -8809, 3501}, // USA - Mississippi
    {192688, -11607, 4435, -10404, 4901}, // USA - Montana
    {192894, -10406, 3999, -9530, 4301}, // USA - Nebraska
    {192990, -7256, 4269, -7063, 4531}, // USA - New Hampshire
    {193000, -7560, 3887, -7388, 4136}, // USA - New Jersey
    {193123, -8433, 3383, -7538, 3659}, // USA - North Carolina
    {193195, -12460, 4198, -11647, 4626}, // USA - Oregon
    {193847, -7185, 4113, -7108, 4202}, // USA - Rhode Island
    {193855, -8336, 3205, -7852, 3521}, // USA - South Carolina
    {193909, -9031, 3498, -8165, 3668}, // USA - Tennessee
    {193918, -10666, 2583, -9350, 3650}, // USA - Texas
    {194024, -7344, 4272, -7150, 4503}, // USA - Vermont
    {194031, -8368, 3654, -7531, 3946}, // USA - Virginia
    {194137, -9289, 4248, -8625, 4731}, // USA - Wisconsin
    {195129, -11106, 4099, -10405, 4501}, // USA - Wyoming
    {28772, -5700, 4660, -5400, 5376}, // Canada - Quebec - east of 57°W
    {28592, -6000, 5010, -5710, 5200}, // Canada - Quebec - 60°W to 57°W
    {28610, -6300, 4716, -6000, 5201}, // Canada - Quebec - 63°W to 60°W
    {28646, -6600, 4795, -6300, 6042}, // Canada - Quebec - 66°W to 63°W
    {28664, -6900, 4731, -6600, 5900}, // Canada - Quebec - 69°W to 66°W
    {28700, -7200, 4501, -6900, 6180}, // Canada - Quebec - 72°W to 69°W
    {28718, -7500, 4499, -7200, 6253}, // Canada - Quebec - 75°W to 72°W
    {28754, -7800, 4537, -7500, 6262}, // Canada - Quebec - 78°W to 75°W
    {28808, -7985, 4623, -7800, 6245}, // Canada - Quebec - west of 78°W
    {28495, -7500, 4498, -7435, 4565}, // Canada - Ontario - east of 75°W
    {28323, -7800, 4363, -7500, 4625}, // Canada - Ontario - 78°W to 75°W
    {28431, -8100, 4226, -7799, 4733}, // Canada - Ontario - MTM zone 10
    {28447, -8360, 4167, -8100, 4600}, // Canada - Ontario - MTM zone 11
    {28463, -8250, 4600, -7950, 5521}, // Canada - Ontario - MTM zone 12
    {28479, -8550, 4600, -8250, 5559}, // Canada - Ontario - MTM zone 13
    {28357, -8850, 4717, -8550, 5670}, // Canada - Ontario - 88.5°W to 85.5°W
    {28393, -9150, 4797, -8850, 5690}, // Canada - Ontario - 91.5°W to 88.5°W
    {28412, -9450, 4806, -9150, 5520}, // Canada - Ontario - 94.5°W to 91.5°W
    {28546, -9516, 4869, -9450, 5324}, // Canada - Ontario - west of 94.5°W
    {28529, -9516, 4803, -9000, 5620}, // Canada - Ontario - west of 90°W
    {28376, -9000, 4611, -8400, 5690}, // Canada - Ontario - 90°W to 84°W
    {28340, -8400, 4167, -7800, 5537}, // Canada - Ontario - 84°W to 78°W
    {28512, -7800, 4363, -7435, 4625}, // Canada - Ontario - east of 78°W
    {28736, -7800, 4499, -7200, 6262}, // Canada - Quebec - 78°W to 72°W
    {28682, -7200, 4501, -6600, 6180}, // Canada - Quebec - 72°W to 66°W
    {28628, -6600, 4716, -6000, 6042}, // Canada - Quebec - 66°W to 60°W
    {28790, -6000, 5020, -5710, 5201}, // Canada - Quebec - east of 60°W
    {28186, -6905, 4456, -6370, 4807}, // Canada - New Brunswick
    {27882, -7200, 4460, -6600, 6150}, // Canada - 72°W to 66°W, south of 62°N
    {27852, -6600, 4320, -6000, 6000}, // Canada - 66°W to 60°W, south of 60°N
    {34549, -600, 492, -248, 1046}, // Cote d'Ivoire (Ivory Coast) - east of 6°W
    {34602, -861, 429, -600, 1074}, // Cote d'Ivoire (Ivory Coast) - west of 6°W
    {199982, 10214, 833, 10800, 2340}, // Vietnam - west of 108°E onshore
    {199897, 10800, 1043, 10953, 2156}, // Vietnam - east of 108°E onshore
    {127553, 1435, -2315, 1460, -2268}, // Namibia - Walvis Bay
    {179243, 1645, -3310, 1800, -2803}, // South Africa - west of 18°E
    {179103, 1799, -3488, 2000, -2838}, // South Africa - 18°E to 20°E
    {179114, 1999, -3488, 2201, -2476}, // South Africa - 20°E to 22°E
    {179125, 2200, -3426, 2401, -2526}, // South Africa - 22°E to 24°E
    {179137, 2400, -3426, 2601, -2471}, // South Africa - 24°E to 26°E
    {179149, 2600, -3383, 2800, -2292}, // South Africa - 26°E to 28°E
    {179161, 2799, -3303, 3001, -2213}, // South Africa - 28°E to 30°E
    {179172, 2999, -3138, 3202, -2222}, // South Africa - 30°E to 32°E
    {179212, 3195, -2894, 3295, -2680}, // South Africa - east of 32°E
    {71159, 4403, 3099, 4800, 3978}, // Iran - west of 48°E
    {71085, 4800, 2547, 5400, 3971}, // Iran - 48°E to 54°E
    {71096, 5400, 2532, 6000, 3829}, // Iran - 54°E to 60°E
    {71147, 6000, 2502, 6334, 3706}, // Iran - east of 60°E onshore
    {62587, -1513, 901, -1200, 1268}, // Guinea - west of 12°W
    {62568, -1200, 719, -765, 1251}, // Guinea - east of 12°W
    {81161, 931, 2537, 1001, 3049}, // Libya - west of 10°E
    {81004, 1000, 2351, 1200, 3323}, // Libya - 10°E to 12°E onshore
    {81015, 1200, 2280, 1400, 3306}, // Libya - 12°E to 14°E onshore
    {81050, 1400, 2261, 1600, 3279}, // Libya - 14°E to 16°E onshore
    {81062, 1600, 2251, 1801, 3134}, // Libya - 16°E to 18°E onshore
    {81074, 1800, 2154, 2000, 3217}, // Libya - 18°E to 20°E onshore
    {81111, 2000, 2054, 2200, 3300}, // Libya - 20°E to 22°E onshore
    {81123, 2200, 1950, 2400, 3297}, // Libya - 22°E to 24°E onshore
    {81148, 2400, 1999, 2521, 3215}, // Libya - east of 24°E onshore
    {81184, 931, 2351, 1200, 3323}, // Libya - west of 12°E onshore
    {81038, 1200, 2251, 1801, 3306}, // Libya - 12°E to 18°E onshore
    {81098, 1799, 1950, 2400, 3300}, // Libya - 18°E to 24°E onshore
    {81197, 931, 2261, 1500, 3323}, // Libya - west of 15°E onshore
    {12900, -7051, -4341, -6749, -3191}, // Argentina - Mendoza and Neuquen 70.5°W to 67.5°W
    {12624, -7050, -5034, -6749, -4249}, // Argentina - 42.5°S to 50.3°S and 70.5°W to 67.5°W
    {13011, -6864, -5490, -6750, -5259}, // Argentina - Tierra del Fuego onshore west of 67.5°W
    {34899, -8501, 2138, -7691, 2325}, // Cuba - onshore north of 21°30'N
    {34917, -7869, 1977, -7407, 2150}, // Cuba - onshore south of 21°30'N
    {187458, 781, 3322, 1367, 3841}, // Tunisia - offshore
    {220571, 4200, 1157, 4801, 1795}, // Yemen - 42°E to 48°E
    {220582, 4800, 945, 5401, 1900}, // Yemen - 48°E to 54°E
    {220628, 4337, 1254, 4801, 1795}, // Yemen - South Yemen - mainland west of 48°E
    {220607, 4800, 1394, 5314, 1900}, // Yemen - South Yemen - mainland east of 48°E
    {199942, 10549, 903, 10758, 1104}, // Vietnam - onshore Vung Tau area
    {199911, 10654, 799, 11000, 1115}, // Vietnam - offshore Cuu Long basin
    {78431, 12800, 3449, 12965, 3864}, // Korea, Republic of (South Korea) - east of 128°E onshore
    {78374, 12600, 3314, 12800, 3833}, // Korea, Republic of (South Korea) - 126°E to 128°E onshore
    {78281, 12453, 3399, 12600, 3804}, // Korea, Republic of (South Korea) - 124°E to 126°E onshore
    {199204, -7150, 1000, -7117, 1051}, // Venezuela - Maracaibo - blocks I II and III
    {130497, 17199, -4167, 17863, -3410}, // New Zealand - North Island
    {131243, 16200, -5589, 16800, -3968}, // New Zealand - offshore 162°E to168°E
    {131266, 16800, -5595, 17400, -3078}, // New Zealand - offshore 168°E to 174°E
    {131286, 17400, -5432, 18000, -2642}, // New Zealand - offshore 174°E to 180°E
    {61142, -379, 140, 210, 606}, // Ghana - offshore
    {27662, -10800, 4900, -10200, 6000}, // Canada - 108°W to 102°W, south of 60°N
    {27692, -11400, 4900, -10800, 6000}, // Canada - 114°W to 108°W, south of 60°N
    {27722, -12000, 4900, -11400, 6000}, // Canada - 120°W to 114°W, south of 60°N
    {178135, -1335, 715, -1200, 994}, // Sierra Leone - west of 12°W
    {178108, -1200, 688, -1026, 1000}, // Sierra Leone - east of 12°W
    {190472, 16765, 1492, -6388, 7471}, // USA - CONUS and Alaska; PRVI
    {60754, 992, 5035, 1050, 5156}, // Germany - East Germany - west of 10.5°E
    {44968, 1050, 4897, 1350, 5474}, // Europe - 10.5°E to 13.5°E onshore by country
    {45136, 1350, 4654, 1650, 5472}, // Europe - 13.5°E to 16.5°E onshore and S-42(83) by country
    {144168, 1800, 4900, 2415, 5234}, // Poland - zone I
    {144175, 1900, 5133, 2395, 5451}, // Poland - zone II
    {144183, 1414, 5216, 2000, 5489}, // Poland - zone III
    {144192, 1414, 4939, 1909, 5334}, // Poland - zone IV
    {144200, 1833, 4939, 1967, 5134}, // Poland - zone V
    {144156, 1414, 5026, 1650, 5535}, // Poland - west of 16.5°E
    {144114, 1650, 4939, 1950, 5593}, // Poland - 16.5°E to 19.5°E
    {144126, 1950, 4909, 2250, 5455}, // Poland - 19.5°E to 22.5°E
    {144138, 2250, 4900, 2415, 5441}, // Poland - east of 22.5°E
    {187606, 2562, 3650, 2850, 4211}, // Turkey - west of 28.5°E onshore
    {187512, 2850, 3606, 3150, 4146}, // Turkey - 28.5°E to 31.5°E onshore
    {187528, 3150, 3597, 3450, 4207}, // Turkey - 31.5°E to 34.5°E onshore
    {187544, 3450, 3581, 3750, 4215}, // Turkey - 34.5°E to 37.5°E onshore
    {187560, 3750, 3666, 4050, 4119}, // Turkey - 37.5°E to 40.5°E onshore
    {187576, 4050, 3702, 4350, 4160}, // Turkey - 40.5°E to 43.5°E onshore
    {187592, 4350, 3697, 4483, 4102}, // Turkey - east of 43.5°E
    {28153, -6900, 4364, -6600, 4807}, // Canada - Maritime Provinces - west of 66°W
    {28128, -6600, 4341, -5973, 4798}, // Canada - Maritime Provinces - east of 66°W
    {28564, -6449, 4590, -6190, 4709}, // Canada - Prince Edward Island
    {28275, -6300, 4464, -5973, 4708}, // Canada - Nova Scotia - east of 63°W
    {28294, -6628, 4341, -6300, 4602}, // Canada - Nova Scotia - west of 63°W
    {48526, 1950, 5976, 2250, 6933}, // Finland - 19.5°E to 22.5°E onshore
    {48639, 2250, 5975, 2550, 6890}, // Finland - 22.5°E to 25.5°E onshore
    {48755, 2550, 6018, 2851, 7009}, // Finland - 25.5°E to 28.5°E onshore
    {48863, 2850, 6094, 3150, 6981}, // Finland - 28.5°E to 31.5°E
    {92159, 3021, -2687, 3600, -1141}, // Mozambique - onshore west of 36°E
    {92140, 3599, -1898, 4090, -1042}, // Mozambique - onshore east of 36°E
    {13814, 10214, 833, 10800, 2340}, // Asia - Cambodia and Vietnam - west of 108°E
    {137782, 5199, 1659, 5400, 1967}, // Oman - onshore west of 54°E
    {137768, 5400, 1689, 5991, 2658}, // Oman - onshore east of 54°E
    {190909, -15610, 1887, -15474, 2033}, // USA - Hawaii - island of Hawaii - onshore
    {190816, -15736, 2045, -15593, 2126}, // USA - Hawaii - Maui; Kahoolawe; Lanai; Molokai - onshore
    {190871, -15833, 2120, -15761, 2175}, // USA - Hawaii - Oahu - onshore
    {190800, -15985, 2181, -15923, 2229}, // USA - Hawaii - Kauai - onshore
    {190854, -16030, 2173, -15999, 2207}, // USA - Hawaii - Niihau - onshore
    {62242, -6184, 1194, -6135, 1257}, // Grenada and southern Grenadines - onshore
    {4893, 3600, 340, 4200, 2201}, // Africa - Eritrea, Ethiopia and Sudan - 36°E to 42°E
    {44920, 4200, 411, 4799, 1285}, // Ethiopia - east of 42°E
    {179067, 4200, 0, 4800, 1152}, // Somalia - 42°E to 48°E, N hemisphere onshore
    {179089, 4800, 444, 5147, 1203}, // Somalia - onshore east of 48°E
    {15202, 10200, -5600, 10800, -1000}, // Australia - 102°E to 108°E
    {15215, 10923, -3784, 11400, -1719}, // Australia - 108°E to 114°E (EEZ)
    {15245, 11400, -3853, 12000, -1261}, // Australia - 114°E to 120°E (EEZ)
    {15262, 12000, -3807, 12601, -1046}, // Australia - 120°E to 126°E
    {15275, 12599, -3738, 13200, -910}, // Australia - 126°E to 132°E
    {15289, 13200, -4071, 13801, -888}, // Australia - 132°E to 138°E
    {15303, 13800, -4819, 14401, -908}, // Australia - 138°E to 144°E
    {15317, 14400, -5089, 15001, -923}, // Australia - 144°E to 150°E
    {15331, 15000, -5896, 15600, -1387}, // Australia - 150°E to 156°E
    {15345, 15600, -3513, 16201, -1408}, // Australia - 156°E to 162°E
    {15438, 16200, -3422, 16320, -2725}, // Australia - EEZ east of 162°E
    {15100, 13800, -4663, 14401, -253}, // Australasia - Australia and PNG - 138°E to 144°E
    {15126, 14400, -4720, 15001, -130}, // Australasia - Australia and PNG - 144°E to 150°E
    {177223, 3600, 1659, 4200, 3216}, // Saudi Arabia - onshore 36°E to 42°E
    {14707, 4799, 1794, 5401, 3004}, // Asia - Middle East - Kuwait and Saudi - 48°E to 54°E
    {14675, 4200, 1637, 4801, 3115}, // Asia - Middle East - Kuwait and Saudi - 42°E to 48°E
    {23126, -5338, -3571, -4799, -2501}, // Brazil - 54°W to 48°W and Aratu
    {23043, -4801, -3350, -4199, 0}, // Brazil - 48°W to 42°W and Aratu
    {22956, -4201, -2635, -3600, 1}, // Brazil - 42°W to 36°W and Aratu
    {4746, 1999, -2688, 2400, -1086}, // Africa - Botswana and Zambia - west of 24°E
    {4831, 2400, -2584, 3000, -831}, // Africa - Botswana, Zambia and Zimbabwe - 24°E to 30°E
    {5071, 3000, -2242, 3593, -819}, // Africa - Malawi, Zambia and Zimbabwe - east of 30°E
    {195395, 2971, 0, 3000, 86}, // Uganda - north of equator and west of 30°E
    {5169, 2934, -681, 3000, 0}, // Africa - Tanzania and Uganda - south of equator and west of 30°E
    {5006, 2999, 0, 3600, 463}, // Africa - Kenya and Uganda - north of equator and 30°E to 36°E
    {5036, 2999, -1161, 3600, 1}, // Africa - Kenya, Tanzania and Uganda - south of equator and 30°E to 36°E
    {77280, 3600, 0, 4191, 449}, // Kenya - north of equator and east of 36°E
    {4975, 3600, -1175, 4160, 0}, // Africa - Kenya and Tanzania - south of equator and east of 36°E
    {69809, 10506, -779, 10800, -407}, // Indonesia - Java and Java Sea - west of 108°E
    {69786, 11400, -891, 11701, -533}, // Indonesia - Java and Java Sea - east of 114°E
    {69763, 10800, -867, 11400, -427}, // Indonesia - Java and Java Sea - 108°E to 114°E
    {30821, 7362, 3542, 7801, 4107}, // China - west of 78°E
    {30598, 7798, 2916, 8400, 4723}, // China - 78°E to 84°E
    {30635, 8400, 2732, 9000, 4918}, // China - 84°E to 90°E
    {30672, 9000, 2771, 9601, 4790}, // China - 90°E to 96°E
    {30709, 9600, 2113, 10201, 4318}, // China - 96°E to 102°E
    {30344, 10200, 2153, 10800, 4247}, // China - 102°E to 108°E onshore
    {30394, 10800, 1811, 11400, 4511}, // China - 108°E to 114°E onshore
    {30444, 11400, 2214, 12000, 5152}, // China - 114°E to 120°E onshore
    {30494, 12000, 2634, 12600, 5356}, // China - 120°E to 126°E onshore
    {30547, 12600, 4089, 13200, 5279}, // China - 126°E to 132°E onshore
    {30755, 13200, 4502, 13477, 4840}, // China - east of 132°E
    {32350, -7910, 3, -7558, 1021}, // Colombia - west of 75°35'W
    {31723, -7559, -251, -7258, 1182}, // Colombia - 75°35'W to 72°35'W
    {31702, -7259, -423, -6958, 1252}, // Colombia - 72°35'W to 69°35'W
    {32258, -6959, -225, -6687, 631}, // Colombia - east of 69°35'W
    {32333, 0, 0, 0, 0}, // Colombia - offshore west of 78°W
    {32308, -7737, 790, -7200, 1368}, // Colombia - offshore Caribbean west of 72°W
    {6579, 820, -1726, 1386, -601}, // Angola - Angola proper - offshore
    {6652, 1083, -659, 1167, -603}, // Angola - offshore block 15
    {6600, 820, -1726, 1200, -603}, // Angola - Angola proper - offshore - west of 12°E
    {6557, 1200, -1744, 1800, -582}, // Angola - Angola proper - 12°E to 18°E
    {13148, -7359, -5200, -7050, -3616}, // Argentina - west of 70.5°W
    {12843, -7050, -5490, -6749, -2408}, // Argentina - 70.5°W to 67.5°W onshore
    {12804, -6750, -5511, -6449, -2178}, // Argentina - 67.5°W to 64.5°W onshore
    {12765, -6450, -5491, -6150, -2199}, // Argentina - 64.5°W to 61.5°W onshore
    {12726, -6151, -3906, -5850, -2337}, // Argentina - 61.5°W to 58.5°W onshore
    {12709, -5850, -3859, -5549, -2484}, // Argentina - 58.5°W to 55.5°W onshore
    {13041, -5550, -2811, -5365, -2549}, // Argentina - east of 55.5°W onshore
    {22899, 1999, -2688, 2400, -1799}, // Botswana - west of 24°E
    {22874, 2100, -2688, 2700, -1778}, // Botswana - 21°E to 27°E
    {22886, 2400, -2584, 2938, -1778}, // Botswana - east of 24°E
    {187468, 749, 3023, 1159, 3740}, // Tunisia - onshore
    {187441, 818, 3465, 1137, 3740}, // Tunisia - north of 34°39'N
    {187475, 749, 3023, 1159, 3466}, // Tunisia - south of 34°39'N
    {14739, 3504, 3231, 4238, 3730}, // Asia - Middle East - Lebanon and Syria onshore
    {60956, 586, 4911, 750, 5381}, // Germany - West Germany - west of 7.5°E
    {60997, 750, 4727, 1051, 5509}, // Germany - West-Germany - 7.5°E to 10.5°E
    {60913, 1050, 4739, 1351, 5459}, // Germany - West Germany - 10.5°E to 13.5°E
    {60934, 1350, 4851, 1384, 4898}, // Germany - West Germany - east of 13.5°E
    {61112, 0, 0, 0, 0}, // Germany - west of 4.5°E
    {189355, -505, 5103, 340, 6203}, // UK - offshore - North Sea
    {127901, 253, 5145, 641, 5577}, // Netherlands - offshore
    {45305, -1610, 4843, -1200, 5657}, // Europe - 18°W to 12°W and ED50 by country
    {45070, -1200, 3613, -600, 6241}, // Europe - 12°W to 6°W and ED50 by country
    {45788, -600, 3526, 1, 8049}, // Europe - 6°W to 0°W and ED50 by country
    {44933, 0, 3856, 601, 8245}, // Europe - 0°E to 6°E and ED50 by country
    {45734, 599, 3653, 1201, 8433}, // Europe - 6°E to 12°E and ED50 by country
    {44984, 1200, 3449, 1801, 8442}, // Europe - 12°E to 18°E and ED50 by country
    {45215, 1799, 3359, 2401, 8454}, // Europe - 18°E to 24°E and ED50 by country
    {45454, 2400, 2571, 3001, 8473}, // Europe - 24°E to 30°E and ED50 by country
    {45584, 3000, 2919, 3600, 8470}, // Europe - 30°E to 36°E and ED50 by country
    {45632, 3600, 2918, 4200, 7907}, // Europe - 36°E to 42°E and ED50 by country
    {45683, 4200, 3697, 4483, 4160}, // Europe - 42°E to 48°E and ED50 by country
    {44151, 3300, 2197, 3695, 3136}, // Egypt - east of 33°E onshore
    {44121, 2900, 2199, 3427, 3382}, // Egypt - 29°E to 33°E
    {44173, 2470, 2818, 2900, 3168}, // Egypt - west of 29°E; north of 28°11'N
    {44198, 2499, 2199, 2901, 2819}, // Egypt - west of 29°E; south of 28°11'N
    {45921, 1902, 5389, 2824, 6000}, // Europe - Estonia; Latvia; Lithuania
    {70020, 9201, 0, 9600, 779}, // Indonesia - west of 96°E, N hemisphere
    {70035, 0, 0, 0, 0}, // Indonesia - west of 96°E, S hemisphere
    {69591, 9600, 0, 10200, 749}, // Indonesia - 96°E to 102°E, N hemisphere
    {69622, 9600, -886, 10200, 0}, // Indonesia - 96°E to 102°E, S hemisphere
    {69096, 10200, 0, 10800, 694}, // Indonesia - 102°E to 108°E, N hemisphere
    {69127, 10200, -1073, 10801, 0}, // Indonesia - 102°E to 108°E, S hemisphere
    {69182, 10800, 0, 11400, 737}, // Indonesia - 108°E to 114°E, N hemisphere
    {69213, 10800, -1207, 11400, 0}, // Indonesia - 108°E to 114°E, S hemisphere
    {69268, 11400, 0, 12000, 437}, // Indonesia - 114°E to 120°E, N hemisphere
    {69297, 11400, -1306, 12001, 0}, // Indonesia - 114°E to 120°E, S hemisphere
    {69349, 12000, 0, 12600, 548}, // Indonesia - 120°E to 126°E, N hemisphere
    {69380, 12000, -1395, 12601, 1}, // Indonesia - 120°E to 126°E, S hemisphere
    {69437, 12600, 0, 13200, 668}, // Indonesia - 126°E to 132°E, N hemisphere
    {69470, 12600, -945, 13200, 0}, // Indonesia - 126°E to 132°E, S hemisphere
    {69529, 0, 0, 0, 0}, // Indonesia - 132°E to 138°E, N hemisphere
    {69545, 13200, -1006, 13801, 0}, // Indonesia - 132°E to 138°E, S hemisphere
    {69986, 13800, -1084, 14146, 0}, // Indonesia - east of 138°E, S hemisphere
    {92376, 9220, 1566, 9601, 2714}, // Myanmar (Burma) - onshore west of 96°E
    {14822, 9599, 563, 10201, 2855}, // Asia - Myanmar and Thailand - 96°E to 102°E
    {185892, 10200, 602, 10564, 1844}, // Thailand - east of 102°E
    {185905, 9734, 563, 10201, 2046}, // Thailand - onshore and GoT 96°E to102°E
    {141798, 7118, 3558, 7701, 3707}, // Pakistan - north of 35°35'N
    {14290, 6086, 2800, 8164, 3559}, // Asia - India; Pakistan - 28°N to 35°35'N
    {14318, 6159, 2100, 8201, 2801}, // Asia - India; Pakistan - onshore 21°N to 28°N and west of 82°E
    {13674, 8200, 2100, 10117, 2947}, // Asia - Bangladesh; India; Myanmar; Pakistan - zone Ilb
    {68494, 7014, 1500, 8715, 2101}, // India - onshore 15°N to 21°N
    {68459, 7394, 802, 8040, 1501}, // India - mainland south of 15°N
    {18388, 8801, 2159, 9000, 2664}, // Bangladesh - onshore west of 90°E
    {18370, 9000, 2052, 9267, 2529}, // Bangladesh - onshore east of 90°E
    {68474, 7035, 2800, 8164, 3551}, // India - north of 28°N
    {68509, 6813, 2100, 8201, 2801}, // India - onshore 21°N to 28°N and west of 82°E
    {68556, 8200, 2100, 9742, 2947}, // India - onshore north of 21°N and east of 82°E
    {68578, 6813, 2064, 7201, 2822}, // India - onshore west of 72°E
    {68431, 7200, 802, 7801, 3551}, // India - mainland 72°E to 78°E
    {68532, 7800, 829, 8401, 3550}, // India - onshore 78°E to 84°E
    {68544, 8400, 1818, 9001, 2814}, // India - onshore 84°E to 90°E
    {68445, 9000, 2194, 9601, 2942}, // India - mainland 90°E to 96°E
    {68415, 9600, 2710, 9742, 2947}, // India - east of 96°E
    {14298, 6086, 2800, 7783, 3559}, // Pakistan - 28°N to 35°35'N
    {141834, 6159, 2364, 7191, 2801}, // Pakistan - onshore south of 28°N
    {141852, 6086, 2498, 6601, 2987}, // Pakistan - onshore west of 66°E
    {141817, 6600, 2364, 7201, 3656}, // Pakistan - onshore 66°E to 72°E
    {141784, 7200, 2821, 7783, 3707}, // Pakistan - east of 72°E
    {87116, 9959, 121, 10460, 672}, // Malaysia - West Malaysia - onshore
    {87132, 9959, 229, 10201, 672}, // Malaysia - West Malaysia - onshore west of 102°E
    {87095, 10200, 121, 10582, 781}, // Malaysia - West Malaysia - east of 102°E
    {199313, -7338, 702, -7199, 1162}, // Venezuela - west of 72°W
    {199166, -7200, 73, -6600, 1225}, // Venezuela - 72°W and 66°W onshore
    {199270, -6600, 64, -5980, 1123}, // Venezuela - east of 66°W onshore
    {60024, 925, 0, 1200, 232}, // Gabon - north of equator and west of 12°E onshore
    {60055, 703, -637, 1201, 232}, // Gabon - west of 12°E
    {143436, 11604, 621, 11800, 1864}, // Philippines - zone I
    {143462, 11800, 302, 12007, 2042}, // Philippines - zone II
    {143490, 11970, 300, 12221, 2162}, // Philippines - zone III
    {143520, 12174, 344, 12429, 2218}, // Philippines - zone IV
    {143548, 12373, 476, 12665, 2197}, // Philippines - zone V
    {91911, -985, 3149, -101, 3597}, // Morocco - north of 31.5°N
    {91928, -1700, 2106, -867, 2790}, // Morocco - south of 27.9°N
    {16635, 953, 4677, 1184, 4761}, // Austria - west of 11°50'E
    {16599, 1183, 4640, 1484, 4879}, // Austria - 11°50'E to 14°50'E
    {16619, 1483, 4656, 1717, 4902}, // Austria - east of 14°50'E
    {46581, 1338, 4295, 1650, 4688}, // Europe - former Yugoslavia onshore west of 16.5°E
    {46491, 1650, 4179, 1951, 4655}, // Europe - former Yugoslavia onshore 16.5°E to 19.5°E
    {46521, 1950, 4185, 2251, 4619}, // Europe - former Yugoslavia onshore 19.5°E to 22.5°E
    {46551, 2250, 4111, 2304, 4470}, // Europe - former Yugoslavia onshore east of 22.5°E
    {132034, 1049, 643, 1465, 1372}, // Nigeria - east of 10.5°E
    {132022, 650, 357, 1051, 1353}, // Nigeria - 6.5°E to 10.5°E
    {132106, 269, 357, 650, 1390}, // Nigeria - west of 6.5°E
    {132081, 266, 192, 600, 614}, // Nigeria - offshore deep water - west of 6°E
    {71763, 593, 3653, 1200, 4704}, // Italy - west of 12°E
    {71714, 1200, 3476, 1899, 4710}, // Italy - east of 12°E
    {192513, -8487, 4169, -8213, 4604}, // USA - Michigan - SPCS - E
    {192561, -8761, 4175, -8460, 4611}, // USA - Michigan - SPCS - old central
    {192525, -9042, 4508, -8344, 4832}, // USA - Michigan - SPCS - N
    {192501, -8706, 4380, -8227, 4592}, // USA - Michigan - SPCS - C
    {192537, -8720, 4169, -8213, 4422}, // USA - Michigan - SPCS - S
    {92115, 3264, -2771, 4303, -1009}, // Mozambique - offshore
    {182953, -5725, 534, -5266, 935}, // Suriname - offshore
    {6134, -222, 3464, 864, 3714}, // Algeria - north of 34°39'N
    {6061, -385, 3149, 922, 3466}, // Algeria - 31°30'N to 34°39'N
    {50172, -487, 4814, 823, 5114}, // France - mainland north of 48.15°N
    {50106, -480, 4544, 763, 4815}, // France - mainland 45.45°N to 48.15°N
    {50268, -179, 4233, 771, 4546}, // France - mainland south of 45.45°N
    {50132, -487, 4233, 823, 5114}, // France - mainland 45.45°N to 48.15°N. Also all mainland.
    {6151, -867, 2573, -600, 2985}, // Algeria - west of 6°W
    {79119, 4654, 2853, 4800, 3009}, // Kuwait - west of 48°E onshore
    {79097, 4800, 2854, 4848, 3004}, // Kuwait - east of 48°E onshore
    {134179, 468, 5793, 723, 6306}, // Norway - zone I
    {134187, 722, 5795, 956, 6387}, // Norway - zone II
    {134196, 955, 5884, 1198, 6576}, // Norway - zone III
    {134206, 1197, 5988, 1506, 6906}, // Norway - zone IV
    {134215, 1505, 6615, 1889, 7019}, // Norway - zone V
    {134223, 1888, 6833, 2289, 7081}, // Norway - zone VI
    {134232, 2288, 6858, 2698, 7121}, // Norway - zone VII
    {134242, 2697, 6902, 3122, 7117}, // Norway - zone VIII
    {14789, 5055, 2276, 5401, 2705}, // Asia - Middle East - Qatar offshore and UAE west of 54°E
    {187764, 5400, 2263, 5713, 2627}, // UAE - east of 54°E
    {143159, -7300, -1839, -6867, -214}, // Peru - east of 73°W
    {143126, -7900, -1657, -7300, -3}, // Peru - 79°W to 73°W
    {143170, -8141, -832, -7900, -338}, // Peru - west of 79°W
    {23218, -5164, -105, -4800, 560}, // Brazil - Amazon cone shelf
    {180422, -8141, -1053, -7800, 0}, // South America - 84°W to 78°W, S hemisphere and PSAD56 by country
    {180185, -7800, 0, -7199, 1162}, // South America - 78°W to 72°W, N hemisphere and PSAD56 by country
    {180231, -7800, -4350, -7199, 0}, // South America - 78°W to 72°W, S hemisphere and PSAD56 by country
    {180017, -7200, 73, -6600, 1268}, // South America - 72°W to 66°W, N hemisphere and PSAD56 by country
    {180101, -7200, -4350, -6600, -214}, // South America - 72°W to 66°W, S hemisphere and PSAD56 by country
    {179860, -6600, 64, -5999, 1123}, // South America - 66°W to 60°W, N hemisphere and PSAD56 by country
    {22749, -6600, -2287, -6000, -967}, // Bolivia - 66°W to 60°W
    {179703, -6000, 118, -5647, 858}, // South America - 60°W to 54°W, N hemisphere and PSAD56 by country
    {168067, 1957, 5432, 2287, 5532}, // Russia - west of 24°E onshore
    {167523, 2661, 5569, 3000, 6947}, // Russia - 24°E to 30°E onshore
    {167562, 3000, 5034, 3600, 7002}, // Russia - 30°E to 36°E onshore
    {167601, 3600, 4318, 4201, 6923}, // Russia - 36°E to 42°E onshore
    {167641, 4200, 4119, 4800, 8091}, // Russia - 42°E to 48°E onshore
    {167681, 4800, 4139, 5400, 8140}, // Russia - 48°E to 54°E onshore
    {167721, 5400, 5047, 6000, 8191}, // Russia - 54°E to 60°E onshore
    {167761, 6000, 5066, 6600, 8177}, // Russia - 60°E to 66°E onshore
    {167801, 6600, 5410, 7200, 7707}, // Russia - 66°E to 72°E onshore
    {167841, 7200, 5317, 7800, 7971}, // Russia - 72°E to 78°E onshore
    {167881, 7800, 5069, 8400, 8103}, // Russia - 78°E to 84°E onshore
    {167921, 8400, 4907, 9000, 8127}, // Russia - 84°E to 90°E onshore
    {167961, 9000, 4989, 9600, 8135}, // Russia - 90°E to 96°E onshore
    {168001, 9600, 4973, 10200, 8132}, // Russia - 96°E to 102°E onshore
    {166884, 10200, 4964, 10800, 7948}, // Russia - 102°E to 108°E onshore
    {166924, 10800, 4914, 11400, 7681}, // Russia - 108°E to 114°E onshore
    {166964, 11400, 4951, 12000, 7596}, // Russia - 114°E to 120°E onshore
    {167003, 12000, 5151, 12600, 7400}, // Russia - 120°E to 126°E onshore
    {167044, 12600, 4225, 13200, 7361}, // Russia - 126°E to 132°E onshore
    {167084, 13200, 4263, 13800, 7615}, // Russia - 132°E to 138°E onshore
    {167127, 13800, 4584, 14400, 7627}, // Russia - 138°E to 144°E onshore
    {167170, 14400, 4360, 15000, 7682}, // Russia - 144°E to 150°E onshore
    {167213, 15000, 4577, 15600, 7626}, // Russia - 150°E to 156°E onshore
    {167256, 15600, 5027, 16200, 7720}, // Russia - 156°E to 162°E onshore
    {167299, 16200, 5447, 16800, 7003}, // Russia - 162°E to 168°E onshore
    {167342, 16800, 5445, 17400, 7019}, // Russia - 168°E to 174°E onshore
    {167402, 17400, 6165, 18000, 7159}, // Russia - 174°E to 180°E onshore
    {167480, -18000, 6435, -17400, 7165}, // Russia - 180° to 174°W onshore
    {168042, -17400, 6420, -16897, 6718}, // Russia - east of 174°W onshore
    {45021, 1200, 4578, 1800, 5489}, // Europe - 12°E to 18°E onshore and S-42(58) by country
    {46196, 1957, 4795, 2400, 5944}, // Europe - FSU onshore 18°E to 24°E and S-42 by country
    {46222, 2400, 4518, 3001, 6947}, // Europe - FSU onshore 24°E to 30°E and S-42 by country
    {46247, 3000, 4432, 3600, 7002}, // Europe - FSU onshore 30°E to 36°E
    {46265, 3600, 4143, 4200, 6923}, // Europe - FSU onshore 36°E to 42°E
    {46284, 4200, 3884, 4801, 8091}, // Europe - FSU onshore 42°E to 48°E
    {14171, 4800, 3734, 5400, 8140}, // Asia - FSU onshore 48°E to 54°E
    {14188, 5400, 3705, 6000, 8191}, // Asia - FSU onshore 54°E to 60°E
    {14205, 6000, 3514, 6600, 8177}, // Asia - FSU onshore 60°E to 66°E
    {14222, 6600, 3667, 7200, 7707}, // Asia - FSU onshore 66°E to 72°E
    {14239, 7200, 3679, 7800, 7971}, // Asia - FSU onshore 72°E to 78°E
    {14256, 7800, 4104, 8401, 8103}, // Asia - FSU onshore 78°E to 84°E
    {14273, 8400, 4682, 9000, 8127}, // Asia - FSU onshore 84°E to 90°E
    {45769, 993, 5021, 1200, 5418}, // Europe - 6°E to 12°E and Pulkovo by country
    {180597, 0, 0, 0, 0}, // South America - UTM 17S and SAD69 by country
    {180617, 0, 0, 0, 0}, // South America - UTM 18N and SAD69 by country
    {180637, 0, 0, 0, 0}, // South America - UTM 18S and SAD69 by country
    {180657, 0, 0, 0, 0}, // South America - UTM 19N and SAD69 by country
    {180675, 0, 0, 0, 0}, // South America - UTM 19S and SAD69 by country
    {180693, 0, 0, 0, 0}, // South America - UTM 20N and SAD69 by country
    {180712, 0, 0, 0, 0}, // South America - UTM 20S and SAD69 by country
    {180731, 0, 0, 0, 0}, // South America - UTM 21N and SAD69
    {179793, -6000, -3891, -5399, 451}, // South America - 60°W to 54°W, S hemisphere and SAD69 by country
    {179569, -5400, 168, -4665, 581}, // South America - 54°W to 48°W, N hemisphere and SAD69 by country
    {179636, -5400, -3571, -4799, 704}, // South America - 54°W to 48°W, S hemisphere and SAD69 by country
    {23031, -4800, -2630, -4200, 0}, // Brazil - 48°W to 42°W
    {23017, -4200, -2296, -3600, -268}, // Brazil - 42°W to 36°W onshore
    {22917, -3600, -1005, -3000, -515}, // Brazil - 36°W to 30°W
    {47816, -6155, -5233, -5999, -5096}, // Falkland Islands - onshore west of 60°W
    {47798, -6000, -5251, -5760, -5113}, // Falkland Islands - onshore east of 60°W
    {127579, 824, -3064, 1646, -1724}, // Namibia - offshore
    {180379, -8400, 90, -7800, 1551}, // South America - 84°W to 78°W, N hemisphere and SIRGAS95 by country
    {180406, -8400, -5645, -7800, 0}, // South America - 84°W to 78°W, S hemisphere
    {180169, -7800, 0, -7200, 1504}, // South America - 78°W to 72°W, N hemisphere
    {180277, -7800, -5936, -7199, 0}, // South America - 78°W to 72°W, S hemisphere and SIRGAS 1995 by country
    {180001, -7200, 0, -6600, 1564}, // South America - 72°W to 66°W, N hemisphere
    {180085, -7200, -5987, -6600, 0}, // South America - 72°W to 66°W, S hemisphere
    {179844, -6600, 0, -6000, 1675}, // South America - 66°W to 60°W, N hemisphere
    {179934, -6600, -5839, -6000, 0}, // South America - 66°W to 60°W, S hemisphere
    {179687, -6000, 0, -5400, 1070}, // South America - 60°W to 54°W, N hemisphere
    {179777, -6000, -4482, -5400, 0}, // South America - 60°W to 54°W, S hemisphere
    {179553, -5400, 0, -4800, 924}, // South America - 54°W to 48°W, N hemisphere
    {179620, -5400, -3995, -4800, 0}, // South America - 54°W to 48°W, S hemisphere
    {179541, -4800, -3350, -4200, 0}, // South America - 48°W to 42°W
    {179529, -4200, -2635, -3600, 0}, // South America - 42°W to 36°W
    {179518, -3600, -2011, -3000, 0}, // South America - 36°W to 30°W
    {127589, 1166, -1853, 1200, -1715}, // Namibia - west of 12°E
    {127486, 1200, -2190, 1401, -1695}, // Namibia - 12°E to 14°E
    {127497, 1400, -2830, 1600, -1738}, // Namibia - 14°E to 16°E
    {127508, 1599, -2883, 1801, -1738}, // Namibia - 16°E to 18°E
    {127519, 1800, -2897, 2000, -1738}, // Namibia - 18°E to 20°E
    {127530, 1999, -2201, 2200, -1785}, // Namibia - 20°E to 22°E
    {127541, 2199, -1849, 2400, -1752}, // Namibia - 22°E to 24°E
    {127567, 2400, -1818, 2527, -1747}, // Namibia - east of 24°E
    {182855, 0, 0, 0, 0}, // Sudan - south - west of 30°E
    {182841, 0, 0, 0, 0}, // Sudan - south - east of 30°E
    {86190, 4253, -2659, 4800, -1300}, // Madagascar - nearshore - west of 48°E
    {86169, 4800, -2421, 5103, -1169}, // Madagascar - nearshore - east of 48°E
    {187666, 5156, 2276, 5401, 2432}, // UAE - Abu Dhabi - onshore west of 54°E
    {13731, 10931, 85, 11400, 737}, // Asia - Brunei and East Malaysia - 108°E to 114°E
    {13757, 11400, 143, 11961, 767}, // Asia - Brunei and East Malaysia - 114°E to 120°E
    {73808, 12817, 2696, 13046, 3474}, // Japan - zone I
    {73816, 12976, 3018, 13205, 3399}, // Japan - zone II
    {73825, 13081, 3372, 13349, 3638}, // Japan - zone III
    {73835, 13195, 3269, 13481, 3445}, // Japan - zone IV
    {73853, 13313, 3413, 13547, 3571}, // Japan - zone V
    {73861, 13486, 3340, 13699, 3633}, // Japan - zone VI
    {73870, 13622, 3451, 13784, 3758}, // Japan - zone VII
    {73880, 13732, 3454, 13991, 3858}, // Japan - zone VIII
    {73844, 13840, 2931, 14111, 3798}, // Japan - zone IX
    {73891, 13949, 3773, 14214, 4158}, // Japan - zone X
    {73899, 13934, 4134, 14146, 4342}, // Japan - zone XI
    {73908, 14089, 4215, 14361, 4554}, // Japan - zone XII
    {73918, 14261, 4187, 14587, 4440}, // Japan - zone XIII
    {73929, 14120, 2467, 14233, 2780}, // Japan - zone XIV
    {73939, 12663, 2602, 12840, 2691}, // Japan - zone XV
    {73948, 12283, 2398, 12551, 2494}, // Japan - zone XVI
    {73958, 13112, 2440, 13138, 2601}, // Japan - zone XVII
    {73969, 13602, 2037, 13616, 2048}, // Japan - zone XVIII
    {73781, 15391, 2422, 15405, 2435}, // Japan - Minamitori-shima (Marcus Island) - onshore
    {215870, -18000, 0, -17400, 8400}, // World - N hemisphere - 180°W to 174°W
    {217288, -18000, -8000, -17400, 0}, // World - S hemisphere - 180°W to 174°W
    {215844, -17400, 0, -16800, 8400}, // World - N hemisphere - 174°W to 168°W
    {217262, -17400, -8000, -16800, 0}, // World - S hemisphere - 174°W to 168°W
    {215794, -16800, 0, -16200, 8400}, // World - N hemisphere - 168°W to 162°W
    {217212, -16800, -8000, -16200, 0}, // World - S hemisphere - 168°W to 162°W
    {215744, -16200, 0, -15600, 8400}, // World - N hemisphere - 162°W to 156°W
    {217162, -16200, -8000, -15600, 0}, // World - S hemisphere - 162°W to 156°W
    {215694, -15600, 0, -15000, 8400}, // World - N hemisphere - 156°W to 150°W
    {217112, -15600, -8000, -15000, 0}, // World - S hemisphere - 156°W to 150°W
    {215644, -15000, 0, -14400, 8400}, // World - N hemisphere - 150°W to 144°W
    {217062, -15000, -8000, -14400, 0}, // World - S hemisphere - 150°W to 144°W
    {215594, -14400, 0, -13800, 8400}, // World - N hemisphere - 144°W to 138°W
    {217012, -14400, -8000, -13800, 0}, // World - S hemisphere - 144°W to 138°W
    {215544, -13800, 0, -13200, 8400}, // World - N hemisphere - 138°W to 132°W
    {216962, -13800, -8000, -13200, 0}, // World - S hemisphere - 138°W to 132°W
    {215494, -13200, 0, -12600, 8400}, // World - N hemisphere - 132°W to 126°W
    {216912, -13200, -8000, -12600, 0}, // World - S hemisphere - 132°W to 126°W
    {215385, -12600, 0, -12000, 8400}, // World - N hemisphere - 126°W to 120°W
    {216824, -12600, -8000, -12000, 0}, // World - S hemisphere - 126°W to 120°W
    {215339, -12000, 0, -11400, 8400}, // World - N hemisphere - 120°W to 114°W
    {216778, -12000, -8000, -11400, 0}, // World - S hemisphere - 120°W to 114°W
    {215295, -11400, 0, -10800, 8400}, // World - N hemisphere - 114°W to 108°W
    {216734, -11400, -8000, -10800, 0}, // World - S hemisphere - 114°W to 108°W
    {215253, -10800, 0, -10200, 8400}, // World - N hemisphere - 108°W to 102°W
    {216692, -10800, -8000, -10200, 0}, // World - S hemisphere - 108°W to 102°W
    {215187, -10200, 0, -9600, 8400}, // World - N hemisphere - 102°W to 96°W
    {216626, -10200, -8000, -9600, 0}, // World - S hemisphere - 102°W to 96°W
    {216540, -9600, 0, -9000, 8400}, // World - N hemisphere - 96°W to 90°W
    {217936, -9600, -8000, -9000, 0}, // World - S hemisphere - 96°W to 90°W
    {216496, -9000, 0, -8400, 8400}, // World - N hemisphere - 90°W to 84°W
    {217892, -9000, -8000, -8400, 0}, // World - S hemisphere - 90°W to 84°W
    {216452, -8400, 0, -7800, 8400}, // World - N hemisphere - 84°W to 78°W
    {217848, -8400, -8000, -7800, 0}, // World - S hemisphere - 84°W to 78°W
    {216408, -7800, 0, -7200, 8400}, // World - N hemisphere - 78°W to 72°W
    {217804, -7800, -8000, -7200, 0}, // World - S hemisphere - 78°W to 72°W
    {216364, -7200, 0, -6600, 8400}, // World - N hemisphere - 72°W to 66°W
    {217760, -7200, -8000, -6600, 0}, // World - S hemisphere - 72°W to 66°W
    {216284, -6600, 0, -6000, 8400}, // World - N hemisphere - 66°W to 60°W
    {217680, -6600, -8000, -6000, 0}, // World - S hemisphere - 66°W to 60°W
    {216240, -6000, 0, -5400, 8400}, // World - N hemisphere - 60°W to 54°W
    {217636, -6000, -8000, -5400, 0}, // World - S hemisphere - 60°W to 54°W
    {216196, -5400, 0, -4800, 8400}, // World - N hemisphere - 54°W to 48°W
    {217592, -5400, -8000, -4800, 0}, // World - S hemisphere - 54°W to 48°W
    {216152, -4800, 0, -4200, 8400}, // World - N hemisphere - 48°W to 42°W
    {217548, -4800, -8000, -4200, 0}, // World - S hemisphere - 48°W to 42°W
    {216108, -4200, 0, -3600, 8400}, // World - N hemisphere - 42°W to 36°W
    {217504, -4200, -8000, -3600, 0}, // World - S hemisphere - 42°W to 36°W
    {216066, -3600, 0, -3000, 8400}, // World - N hemisphere - 36°W to 30°W
    {217462, -3600, -8000, -3000, 0}, // World - S hemisphere - 36°W to 30°W
    {216024, -3000, 0, -2400, 8400}, // World - N hemisphere - 30°W to 24°W
    {217420, -3000, -8000, -2400, 0}, // World - S hemisphere - 30°W to 24°W
    {215982, -2400, 0, -1800, 8400}, // World - N hemisphere - 24°W to 18°W
    {217378, -2400, -8000, -1800, 0}, // World - S hemisphere - 24°W to 18°W
    {215940, -1800, 0, -1200, 8400}, // World - N hemisphere - 18°W to 12°W
    {217336, -1800, -8000, -1200, 0}, // World - S hemisphere - 18°W to 12°W
    {215450, -1200, 0, -600, 8400}, // World - N hemisphere - 12°W to 6°W
    {216868, -1200, -8000, -600, 0}, // World - S hemisphere - 12°W to 6°W
    {216324, -600, 0, 0, 8400}, // World - N hemisphere - 6°W to 0°W
    {217720, -600, -8000, 0, 0}, // World - S hemisphere - 6°W to 0°W
    {215113, 0, 0, 600, 8400}, // World - N hemisphere - 0°E to 6°E
    {216574, 0, -8000, 600, 0}, // World - S hemisphere - 0°E to 6°E
    {216306, 600, 0, 1200, 8400}, // World - N hemisphere - 6°E to 12°E
    {217702, 600, -8000, 1200, 0}, // World - S hemisphere - 6°E to 12°E
    {215409, 1200, 0, 1800, 8400}, // World - N hemisphere - 12°E to 18°E
    {216848, 1200, -8000, 1800, 0}, // World - S hemisphere - 12°E to 18°E
    {215896, 1800, 0, 2400, 8400}, // World - N hemisphere - 18°E to 24°E
    {217314, 1800, -8000, 2400, 0}, // World - S hemisphere - 18°E to 24°E
    {215962, 2400, 0, 3000, 8400}, // World - N hemisphere - 24°E to 30°E
    {217358, 2400, -8000, 3000, 0}, // World - S hemisphere - 24°E to 30°E
    {216004, 3000, 0, 3600, 8400}, // World - N hemisphere - 30°E to 36°E
    {217400, 3000, -8000, 3600, 0}, // World - S hemisphere - 30°E to 36°E
    {216044, 3600, 0, 4200, 8400}, // World - N hemisphere - 36°E to 42°E
    {217440, 3600, -8000, 4200, 0}, // World - S hemisphere - 36°E to 42°E
    {216086, 4200, 0, 4800, 8400}, // World - N hemisphere - 42°E to 48°E
    {217482, 4200, -8000, 4800, 0}, // World - S hemisphere - 42°E to 48°E
    {216130, 4800, 0, 5400, 8400}, // World - N hemisphere - 48°E to 54°E
    {217526, 4800, -8000, 5400, 0}, // World - S hemisphere - 48°E to 54°E
    {216174, 5400, 0, 6000, 8400}, // World - N hemisphere - 54°E to 60°E
    {217570, 5400, -8000, 6000, 0}, // World - S hemisphere - 54°E to 60°E
    {216218, 6000, 0, 6600, 8400}, // World - N hemisphere - 60°E to 66°E
    {217614, 6000, -8000, 6600, 0}, // World - S hemisphere - 60°E to 66°E
    {216262, 6600, 0, 7200, 8400}, // World - N hemisphere - 66°E to 72°E
    {217658, 6600, -8000, 7200, 0}, // World - S hemisphere - 66°E to 72°E
    {216342, 7200, 0, 7800, 8400}, // World - N hemisphere - 72°E to 78°E
    {217738, 7200, -8000, 7800, 0}, // World - S hemisphere - 72°E to 78°E
    {216386, 7800, 0, 8400, 8400}, // World - N hemisphere - 78°E to 84°E
    {217782, 7800, -8000, 8400, 0}, // World - S hemisphere - 78°E to 84°E
    {216430, 8400, 0, 9000, 8400}, // World - N hemisphere - 84°E to 90°E
    {217826, 8400, -8000, 9000, 0}, // World - S hemisphere - 84°E to 90°E
    {216474, 9000, 0, 9600, 8400}, // World - N hemisphere - 90°E to 96°E
    {217870, 9000, -8000, 9600, 0}, // World - S hemisphere - 90°E to 96°E
    {216518, 9600, 0, 10200, 8400}, // World - N hemisphere - 96°E to 102°E
    {217914, 9600, -8000, 10200, 0}, // World - S hemisphere - 96°E to 102°E
    {215143, 10200, 0, 10800, 8400}, // World - N hemisphere - 102°E to 108°E
    {216604, 10200, -8000, 10800, 0}, // World - S hemisphere - 102°E to 108°E
    {215209, 10800, 0, 11400, 8400}, // World - N hemisphere - 108°E to 114°E
    {216648, 10800, -8000, 11400, 0}, // World - S hemisphere - 108°E to 114°E
    {215275, 11400, 0, 12000, 8400}, // World - N hemisphere - 114°E to 120°E
    {216714, 11400, -8000, 12000, 0}, // World - S hemisphere - 114°E to 120°E
    {215317, 12000, 0, 12600, 8400}, // World - N hemisphere - 120°E to 126°E
    {216756, 12000, -8000, 12600, 0}, // World - S hemisphere - 120°E to 126°E
    {215361, 12600, 0, 13200, 8400}, // World - N hemisphere - 126°E to 132°E
    {216800, 12600, -8000, 13200, 0}, // World - S hemisphere - 126°E to 132°E
    {215470, 13200, 0, 13800, 8400}, // World - N hemisphere - 132°E to 138°E
    {216888, 13200, -8000, 13800, 0}, // World - S hemisphere - 132°E to 138°E
    {215520, 13800, 0, 14400, 8400}, // World - N hemisphere - 138°E to 144°E
    {216938, 13800, -8000, 14400, 0}, // World - S hemisphere - 138°E to 144°E
    {215570, 14400, 0, 15000, 8400}, // World - N hemisphere - 144°E to 150°E
    {216988, 14400, -8000, 15000, 0}, // World - S hemisphere - 144°E to 150°E
    {215620, 15000, 0, 15600, 8400}, // World - N hemisphere - 150°E to 156°E
    {217038, 15000, -8000, 15600, 0}, // World - S hemisphere - 150°E to 156°E
    {215670, 15600, 0, 16200, 8400}, // World - N hemisphere - 156°E to 162°E
    {217088, 15600, -8000, 16200, 0}, // World - S hemisphere - 156°E to 162°E
    {215720, 16200, 0, 16800, 8400}, // World - N hemisphere - 162°E to 168°E
    {217138, 16200, -8000, 16800, 0}, // World - S hemisphere - 162°E to 168°E
    {215770, 16800, 0, 17400, 8400}, // World - N hemisphere - 168°E to 174°E
    {217188, 16800, -8000, 17400, 0}, // World - S hemisphere - 168°E to 174°E
    {215820, 17400, 0, 18000, 8400}, // World - N hemisphere - 174°E to 180°E
    {217238, 17400, -8000, 18000, 0}, // World - S hemisphere - 174°E to 180°E
    {215165, 10200, 0, 10800, 8400}, // World - N hemisphere - 102°E to 108°E - by country and WGS 72BE
    {215231, 10800, 0, 11400, 8400}, // World - N hemisphere - 108°E to 114°E - by country and WGS 72BE
    {216670, 10800, -8000, 11400, 0}, // World - S hemisphere - 108°E to 114°E - by country and WGS 72BE
    {216562, -18000, 6000, 18000, 9000}, // World - N hemisphere - north of 60°N
    {217958, -18000, -9000, 18000, -6000}, // World - S hemisphere - south of 60°S
    {215131, -18000, 0, 18000, 8400}, // World - N hemisphere - 0°N to 84°N
    {216592, -18000, -8000, 18000, 0}, // World - S hemisphere - 0°N to 80°S
    {215882, -18000, 0, -17400, 8400}, // World - N hemisphere - 180°W to 174°W - by country
    {217300, -18000, -8000, -17400, 0}, // World - S hemisphere - 180°W to 174°W - by country
    {215856, -17400, 0, -16800, 8400}, // World - N hemisphere - 174°W to 168°W - by country
    {217274, -17400, -8000, -16800, 0}, // World - S hemisphere - 174°W to 168°W - by country
    {215806, -16800, 0, -16200, 8400}, // World - N hemisphere - 168°W to 162°W - by country
    {217224, -16800, -8000, -16200, 0}, // World - S hemisphere - 168°W to 162°W - by country
    {215756, -16200, 0, -15600, 8400}, // World - N hemisphere - 162°W to 156°W - by country
    {217174, -16200, -8000, -15600, 0}, // World - S hemisphere - 162°W to 156°W - by country
    {215706, -15600, 0, -15000, 8400}, // World - N hemisphere - 156°W to 150°W - by country
    {217124, -15600, -8000, -15000, 0}, // World - S hemisphere - 156°W to 150°W - by country
    {215656, -15000, 0, -14400, 8400}, // World - N hemisphere - 150°W to 144°W - by country
    {217074, -15000, -8000, -14400, 0}, // World - S hemisphere - 150°W to 144°W - by country
    {215606, -14400, 0, -13800, 8400}, // World - N hemisphere - 144°W to 138°W - by country
    {217024, -14400, -8000, -13800, 0}, // World - S hemisphere - 144°W to 138°W - by country
    {215556, -13800, 0, -13200, 8400}, // World - N hemisphere - 138°W to 132°W - by country
    {216974, -13800, -8000, -13200, 0}, // World - S hemisphere - 138°W to 132°W - by country
    {215506, -13200, 0, -12600, 8400}, // World - N hemisphere - 132°W to 126°W - by country
    {216924, -13200, -8000, -12600, 0}, // World - S hemisphere - 132°W to 126°W - by country
    {215396, -12600, 0, -12000, 8400}, // World - N hemisphere - 126°W to 120°W - by country
    {216835, -12600, -8000, -12000, 0}, // World - S hemisphere - 126°W to 120°W - by country
    {215349, -12000, 0, -11400, 8400}, // World - N hemisphere - 120°W to 114°W - by country
    {216788, -12000, -8000, -11400, 0}, // World - S hemisphere - 120°W to 114°W - by country
    {215305, -11400, 0, -10800, 8400}, // World - N hemisphere - 114°W to 108°W - by country
    {216744, -11400, -8000, -10800, 0}, // World - S hemisphere - 114°W to 108°W - by country
    {215263, -10800, 0, -10200, 8400}, // World - N hemisphere - 108°W to 102°W - by country
    {216702, -10800, -8000, -10200, 0}, // World - S hemisphere - 108°W to 102°W - by country
    {215197, -10200, 0, -9600, 8400}, // World - N hemisphere - 102°W to 96°W - by country
    {216636, -10200, -8000, -9600, 0}, // World - S hemisphere - 102°W to 96°W - by country
    {216550, -9600, 0, -9000, 8400}, // World - N hemisphere - 96°W to 90°W - by country
    {217946, -9600, -8000, -9000, 0}, // World - S hemisphere - 96°W to 90°W - by country
    {216506, -9000, 0, -8400, 8400}, // World - N hemisphere - 90°W to 84°W - by country
    {217902, -9000, -8000, -8400, 0}, // World - S hemisphere - 90°W to 84°W - by country
    {216462, -8400, 0, -7800, 8400}, // World - N hemisphere - 84°W to 78°W - by country
    {217858, -8400, -8000, -7800, 0}, // World - S hemisphere - 84°W to 78°W - by country
    {216418, -7800, 0, -7200, 8400}, // World - N hemisphere - 78°W to 72°W - by country
    {217814, -7800, -8000, -7200, 0}, // World - S hemisphere - 78°W to 72°W - by country
    {216374, -7200, 0, -6600, 8400}, // World - N hemisphere - 72°W to 66°W - by country
    {217770, -7200, -8000, -6600, 0}, // World - S hemisphere - 72°W to 66°W - by country
    {216294, -6600, 0, -6000, 8400}, // World - N hemisphere - 66°W to 60°W - by country
    {217690, -6600, -8000, -6000, 0}, // World - S hemisphere - 66°W to 60°W - by country
    {216250, -6000, 0, -5400, 8400}, // World - N hemisphere - 60°W to 54°W - by country
    {217646, -6000, -8000, -5400, 0}, // World - S hemisphere - 60°W to 54°W - by country
    {216206, -5400, 0, -4800, 8400}, // World - N hemisphere - 54°W to 48°W - by country
    {217602, -5400, -8000, -4800, 0}, // World - S hemisphere - 54°W to 48°W - by country
    {216162, -4800, 0, -4200, 8400}, // World - N hemisphere - 48°W to 42°W - by country
    {217558, -4800, -8000, -4200, 0}, // World - S hemisphere - 48°W to 42°W - by country
    {216118, -4200, 0, -3600, 8400}, // World - N hemisphere - 42°W to 36°W - by country
    {217514, -4200, -8000, -3600, 0}, // World - S hemisphere - 42°W to 36°W - by country
    {216075, -3600, 0, -3000, 8400}, // World - N hemisphere - 36°W to 30°W - by country
    {217471, -3600, -8000, -3000, 0}, // World - S hemisphere - 36°W to 30°W - by country
    {216033, -3000, 0, -2400, 8400}, // World - N hemisphere - 30°W to 24°W - by country
    {217429, -3000, -8000, -2400, 0}, // World - S hemisphere - 30°W to 24°W - by country
    {215992, -2400, 0, -1800, 8400}, // World - N hemisphere - 24°W to 18°W - by country
    {217388, -2400, -8000, -1800, 0}, // World - S hemisphere - 24°W to 18°W - by country
    {215950, -1800, 0, -1200, 8400}, // World - N hemisphere - 18°W to 12°W - by country
    {217346, -1800, -8000, -1200, 0}, // World - S hemisphere - 18°W to 12°W - by country
    {215459, -1200, 0, -600, 8400}, // World - N hemisphere - 12°W to 6°W - by country
    {216877, -1200, -8000, -600, 0}, // World - S hemisphere - 12°W to 6°W - by country
    {216332, -600, 0, 0, 8400}, // World - N hemisphere - 6°W to 0°W - by country
    {217728, -600, -8000, 0, 0}, // World - S hemisphere - 6°W to 0°W - by country
    {215121, 0, 0, 600, 8400}, // World - N hemisphere - 0°E to 6°E - by country
    {216582, 0, -8000, 600, 0}, // World - S hemisphere - 0°E to 6°E - by country
    {216314, 600, 0, 1200, 8400}, // World - N hemisphere - 6°E to 12°E - by country
    {217710, 600, -8000, 1200, 0}, // World - S hemisphere - 6°E to 12°E - by country
    {215418, 1200, 0, 1800, 8400}, // World - N hemisphere - 12°E to 18°E - by country
    {216857, 1200, -8000, 1800, 0}, // World - S hemisphere - 12°E to 18°E - by country
    {215906, 1800, 0, 2400, 8400}, // World - N hemisphere - 18°E to 24°E - by country
    {217324, 1800, -8000, 2400, 0}, // World - S hemisphere - 18°E to 24°E - by country
    {215971, 2400, 0, 3000, 8400}, // World - N hemisphere - 24°E to 30°E - by country
    {217367, 2400, -8000, 3000, 0}, // World - S hemisphere - 24°E to 30°E - by country
    {216013, 3000, 0, 3600, 8400}, // World - N hemisphere - 30°E to 36°E - by country
    {217409, 3000, -8000, 3600, 0}, // World - S hemisphere - 30°E to 36°E - by country
    {216054, 3600, 0, 4200, 8400}, // World - N hemisphere - 36°E to 42°E - by country
    {217450, 3600, -8000, 4200, 0}, // World - S hemisphere - 36°E to 42°E - by country
    {216096, 4200, 0, 4800, 8400}, // World - N hemisphere - 42°E to 48°E - by country
    {217492, 4200, -8000, 4800, 0}, // World - S hemisphere - 42°E to 48°E - by country
    {216140, 4800, 0, 5400, 8400}, // World - N hemisphere - 48°E to 54°E - by country
    {217536, 4800, -8000, 5400, 0}, // World - S hemisphere - 48°E to 54°E - by country
    {216184, 5400, 0, 6000, 8400}, // World - N hemisphere - 54°E to 60°E - by country
    {217580, 5400, -8000, 6000, 0}, // World - S hemisphere - 54°E to 60°E - by country
    {216228, 6000, 0, 6600, 8400}, // World - N hemisphere - 60°E to 66°E - by country
    {217624, 6000, -8000, 6600, 0}, // World - S hemisphere - 60°E to 66°E - by country
    {216272, 6600, 0, 7200, 8400}, // World - N hemisphere - 66°E to 72°E - by country
    {217668, 6600, -8000, 7200, 0}, // World - S hemisphere - 66°E to 72°E - by country
    {216352, 7200, 0, 7800, 8400}, // World - N hemisphere - 72°E to 78°E - by country
    {217748, 7200, -8000, 7800, 0}, // World - S hemisphere - 72°E to 78°E - by country
    {216396, 7800, 0, 8400, 8400}, // World - N hemisphere - 78°E to 84°E - by country
    {217792, 7800, -8000, 8400, 0}, // World - S hemisphere - 78°E to 84°E - by country
    {216440, 8400, 0, 9000, 8400}, // World - N hemisphere - 84°E to 90°E - by country
    {217836, 8400, -8000, 9000, 0}, // World - S hemisphere - 84°E to 90°E - by country
    {216484, 9000, 0, 9600, 8400}, // World - N hemisphere - 90°E to 96°E - by country
    {217880, 9000, -8000, 9600, 0}, // World - S hemisphere - 90°E to 96°E - by country
    {216528, 9600, 0, 10200, 8400}, // World - N hemisphere - 96°E to 102°E - by country
    {217924, 9600, -8000, 10200, 0}, // World - S hemisphere - 96°E to 102°E - by country
    {215153, 10200, 0, 10800, 8400}, // World - N hemisphere - 102°E to 108°E - by country
    {216614, 10200, -8000, 10800, 0}, // World - S hemisphere - 102°E to 108°E - by country
    {215219, 10800, 0, 11400, 8400}, // World - N hemisphere - 108°E to 114°E - by country
    {216658, 10800, -8000, 11400, 0}, // World - S hemisphere - 108°E to 114°E - by country
    {215284, 11400, 0, 12000, 8400}, // World - N hemisphere - 114°E to 120°E - by country
    {216723, 11400, -8000, 12000, 0}, // World - S hemisphere - 114°E to 120°E - by country
    {215327, 12000, 0, 12600, 8400}, // World - N hemisphere - 120°E to 126°E - by country
    {216766, 12000, -8000, 12600, 0}, // World - S hemisphere - 120°E to 126°E - by country
    {215372, 12600, 0, 13200, 8400}, // World - N hemisphere - 126°E to 132°E - by country
    {216811, 12600, -8000, 13200, 0}, // World - S hemisphere - 126°E to 132°E - by country
    {215481, 13200, 0, 13800, 8400}, // World - N hemisphere - 132°E to 138°E - by country
    {216899, 13200, -8000, 13800, 0}, // World - S hemisphere - 132°E to 138°E - by country
    {215531, 13800, 0, 14400, 8400}, // World - N hemisphere - 138°E to 144°E - by country
    {216949, 13800, -8000, 14400, 0}, // World - S hemisphere - 138°E to 144°E - by country
    {215581, 14400, 0, 15000, 8400}, // World - N hemisphere - 144°E to 150°E - by country
    {216999, 14400, -8000, 15000, 0}, // World - S hemisphere - 144°E to 150°E - by country
    {215631, 15000, 0, 15600, 8400}, // World - N hemisphere - 150°E to 156°E - by country
    {217049, 15000, -8000, 15600, 0}, // World - S hemisphere - 150°E to 156°E - by country
    {215681, 15600, 0, 16200, 8400}, // World - N hemisphere - 156°E to 162°E - by country
    {217099, 15600, -8000, 16200, 0}, // World - S hemisphere - 156°E to 162°E - by country
    {215731, 16200, 0, 16800, 8400}, // World - N hemisphere - 162°E to 168°E - by country
    {217149, 16200, -8000, 16800, 0}, // World - S hemisphere - 162°E to 168°E - by country
    {215781, 16800, 0, 17400, 8400}, // World - N hemisphere - 168°E to 174°E - by country
    {217199, 16800, -8000, 17400, 0}, // World - S hemisphere - 168°E to 174°E - by country
    {215831, 17400, 0, 18000, 8400}, // World - N hemisphere - 174°E to 180°E - by country
    {217249, 17400, -8000, 18000, 0}, // World - S hemisphere - 174°E to 180°E - by country
    {62498, -9186, 1585, -8834, 1783}, // Guatemala - north of 15°51'30"N
    {62518, -9229, 1369, -8819, 1586}, // Guatemala - south of 15°51'30"N
    {45325, -1610, 3493, -1199, 7244}, // Europe - 18°W to 12°W and ETRS89 by country
    {45089, -1200, 3491, -600, 7413}, // Europe - 12°W to 6°W and ETRS89 by country
    {45806, -600, 3526, 1, 8049}, // Europe - 6°W to 0°W and ETRS89 by country
    {44950, 0, 3700, 601, 8245}, // Europe - 0°E to 6°E and ETRS89 by country
    {45751, 600, 3876, 1201, 8433}, // Europe - 6°E to 12°E and ETRS89 by country
    {45002, 1200, 4640, 1801, 8442}, // Europe - 12°E to 18°E and ETRS89 by country
    {45234, 1799, 5884, 2401, 8454}, // Europe - 18°E to 24°E and ETRS89 by country
    {45472, 2400, 5964, 3001, 8473}, // Europe - 24°E to 30°E and ETRS89 by country
    {45602, 3000, 6173, 3601, 8470}, // Europe - 30°E to 36°E and ETRS89 by country
    {45651, 3600, 7299, 3801, 7907}, // Europe - 36°E to 42°E and ETRS89 by country
    {45702, 4200, 3700, 4800, 4165}, // Europe - 42°E to 48°E and ETRS89 by country
    {189877, -16800, 4952, -16199, 7429}, // USA - 168°W to 162°W - AK, OCS
    {189846, -16200, 5098, -15599, 7471}, // USA - 162°W to 156°W - AK, OCS
    {189799, -15600, 5215, -14999, 7471}, // USA - 156°W to 150°W - AK, OCS
    {189767, -15000, 5405, -14399, 7413}, // USA - 150°W to 144°W - AK, OCS
    {132675, -14400, 5347, -13800, 7359}, // North America - 144°W to 138°W and NAD27 by country
    {132634, -13800, 5258, -13200, 7304}, // North America - 138°W to 132°W and NAD27 by country - onshore
    {132593, -13200, 4918, -12600, 7203}, // North America - 132°W to 126°W and NAD27 by country - onshore
    {132554, -12600, 3440, -11999, 7713}, // North America - 126°W to 120°W and NAD27 by country - onshore
    {132517, -12000, 2693, -11400, 7813}, // North America - 120°W to 114°W and NAD27 by country - onshore
    {132482, -11400, 1866, -10800, 7881}, // North America - 114°W to 108°W and NAD27 by country
    {132447, -10800, 1786, -10200, 7942}, // North America - 108°W to 102°W and NAD27 by country
    {132412, -10200, 1559, -9600, 8074}, // North America - 102°W to 96°W and NAD27 by country
    {132889, -9600, 1363, -9000, 8196}, // North America - 96°W to 90°W and NAD27 by country
    {132854, -9001, 927, -8400, 8254}, // North America - 90°W to 84°W and NAD27 by country
    {132819, -8400, 798, -7800, 8303}, // North America - 84°W to 78°W and NAD27 by country
    {132784, -7800, 1883, -7200, 8316}, // North America - 78°W to 72°W and NAD27 by country
    {132749, -7200, 3361, -6600, 8317}, // North America - 72°W to 66°W and NAD27 by country
    {132714, -6600, 3821, -5999, 8297}, // North America - 66°W to 60°W and NAD27 by country
    {27814, -6000, 3856, -5400, 8400}, // Canada - 60°W to 54°W
    {27803, -5400, 3950, -4799, 5765}, // Canada - 54°W to 48°W
    {27792, -4800, 3985, -4200, 5447}, // Canada - 48°W to 42°W
    {190078, -8679, 3099, -8489, 3500}, // USA - Alabama - SPCS - E
    {190089, -8848, 3014, -8630, 3502}, // USA - Alabama - SPCS - W
    {190213, -14100, 5461, -12999, 6035}, // USA - Alaska - Panhandle
    {190197, 17242, 5130, -16484, 5434}, // USA - Alaska - Aleutian Islands
    {190107, -14401, 5972, -14098, 7016}, // USA - Alaska - 144°W to 141°W
    {190122, -14800, 5972, -14400, 7038}, // USA - Alaska - 148°W to 144°W
    {190137, -15201, 5911, -14799, 7063}, // USA - Alaska - 152°W to 148°W
    {190152, -15600, 5572, -15186, 7128}, // USA - Alaska - 156°W to 152°W
    {190167, -16000, 5489, -15599, 7140}, // USA - Alaska - 160°W to 156°W
    {190182, -16401, 5432, -16000, 7074}, // USA - Alaska - 164°W to 160°W
    {190279, -16826, 5434, -16400, 6905}, // USA - Alaska - north of 54.5°N; 168°W to 164°W
    {190305, -17316, 5649, -16800, 6582}, // USA - Alaska - north of 54.5°N; west of 168°W
    {190415, -11335, 3133, -11044, 3701}, // USA - Arizona - SPCS - C
    {190424, -11171, 3133, -10904, 3701}, // USA - Arizona - SPCS - E
    {190433, -11481, 3205, -11252, 3700}, // USA - Arizona - SPCS - W
    {190442, -9462, 3467, -8964, 3650}, // USA - Arkansas - SPCS - N
    {190453, -9448, 3301, -9040, 3510}, // USA - Arkansas - SPCS - S
    {190782, -9722, 2597, -9587, 2843}, // USA - GoM OCS - west of 96°W
    {190752, -9600, 2561, -8986, 2973}, // USA - GoM OCS - 96°W to 90°W
    {190737, -9001, 2395, -8391, 3025}, // USA - GoM OCS - 90°W to 84°W
    {190767, -8409, 2382, -8117, 2994}, // USA - GoM OCS - east of 84°W
    {190501, -12445, 3959, -11999, 4201}, // USA - California - SPCS - 1
    {190513, -12406, 3802, -11954, 4016}, // USA - California - SPCS - 2
    {190525, -12302, 3673, -11783, 3871}, // USA - California - SPCS - 3
    {190537, -12201, 3578, -11562, 3758}, // USA - California - SPCS - 4
    {190561, -12143, 3276, -11412, 3581}, // USA - California - SPCS27 - 5
    {190549, -11815, 3253, -11442, 3408}, // USA - California - SPCS - 6
    {190574, -11896, 3366, -11763, 3483}, // USA - California - SPCS27 - 7
    {190587, -12142, 3276, -11412, 3581}, // USA - California - SPCS83 - 5
    {190624, -10906, 3814, -10204, 4009}, // USA - Colorado - SPCS - C
    {190635, -10906, 3956, -10204, 4101}, // USA - Colorado - SPCS - N
    {190646, -10906, 3698, -10204, 3868}, // USA - Colorado - SPCS - S
    {190687, -8233, 2441, -7997, 3083}, // USA - Florida - SPCS - E
    {190697, -8763, 2921, -8204, 3101}, // USA - Florida - SPCS - N
    {190707, -8334, 2627, -8113, 2960}, // USA - Florida - SPCS - W
    {190717, -8347, 3036, -8077, 3468}, // USA - Georgia - SPCS - E
    {190727, -8561, 3062, -8299, 3501}, // USA - Georgia - SPCS - W
    {190946, -11530, 4199, -11267, 4570}, // USA - Idaho - SPCS - C
    {190956, -11324, 4199, -11104, 4475}, // USA - Idaho - SPCS - E
    {190966, -11724, 4199, -11432, 4901}, // USA - Idaho - SPCS - W
    {190976, -8928, 3706, -8702, 4250}, // USA - Illinois - SPCS - E
    {190988, -9152, 3698, -8893, 4251}, // USA - Illinois - SPCS - W
    {191706, -8659, 3795, -8478, 4177}, // USA - Indiana - SPCS - E
    {191714, -8806, 3777, -8624, 4177}, // USA - Indiana - SPCS - W
    {191981, -9665, 4185, -9015, 4351}, // USA - Iowa - SPCS - N
    {191990, -9614, 4037, -9014, 4204}, // USA - Iowa - SPCS - S
    {192270, -10206, 3852, -9458, 4001}, // USA - Kansas - SPCS - N
    {192280, -10205, 3699, -9460, 3888}, // USA - Kansas - SPCS - S
    {192335, -8596, 3771, -8247, 3915}, // USA - Kentucky - SPCS - N
    {192348, -8957, 3649, -8195, 3817}, // USA - Kentucky - SPCS - S
    {192368, -9405, 3085, -9086, 3303}, // USA - Louisiana - SPCS - N
    {192378, -9394, 2782, -8776, 3107}, // USA - Louisiana - SPCS27 - S
    {192432, -7003, 4388, -6691, 4747}, // USA - Maine - SPCS - E
    {192441, -7109, 4304, -6926, 4658}, // USA - Maine - SPCS - W
    {192456, -7091, 4119, -6989, 4151}, // USA - Massachusetts - SPCS - islands
    {192474, -7350, 4146, -6986, 4289}, // USA - Massachusetts - SPCS - mainland
    {192828, -11606, 4617, -10404, 4826}, // USA - Montana - SPCS27 - C
    {192839, -11607, 4741, -10404, 4901}, // USA - Montana - SPCS27 - N
    {192850, -11457, 4435, -10404, 4687}, // USA - Montana - SPCS27 - S
    {192578, -9686, 4528, -9229, 4748}, // USA - Minnesota - SPCS - C
    {192589, -9722, 4664, -8949, 4938}, // USA - Minnesota - SPCS - N
    {192600, -9685, 4349, -9121, 4559}, // USA - Minnesota - SPCS - S
    {192622, -8997, 3001, -8809, 3501}, // USA - Mississippi - SPCS - E
    {192637, -9165, 3100, -8937, 3501}, // USA - Mississippi - SPCS - W
    {192652, -9379, 3648, -9141, 4061}, // USA - Missouri - SPCS - C
    {192664, -9197, 3598, -8910, 4061}, // USA - Missouri - SPCS - E
    {192676, -9577, 3648, -9348, 4059}, // USA - Missouri - SPCS - W
    {192902, -10406, 4168, -9607, 4301}, // USA - Nebraska - SPCS27 - N
    {192914, -10406, 3999, -9530, 4201}, // USA - Nebraska - SPCS27 - S
    {192963, -11819, 3600, -11499, 4100}, // USA - Nevada - SPCS - C
    {192972, -11701, 3499, -11403, 4200}, // USA - Nevada - SPCS - E
    {192981, -12000, 3695, -11699, 4200}, // USA - Nevada - SPCS - W
    {28201, -5450, 4656, -5254, 4989}, // Canada - Newfoundland - east of 54.5°W
    {28220, -5750, 4681, -5449, 5471}, // Canada - Newfoundland and Labrador - 57.5°W to 54.5°W
    {193008, -10572, 3200, -10299, 3700}, // USA - New Mexico - SPCS - E
    {193021, -10773, 3178, -10483, 3700}, // USA - New Mexico - SPCS27 - C
    {193035, -10906, 3133, -10632, 3700}, // USA - New Mexico - SPCS27 - W
    {193049, -10773, 3178, -10484, 3700}, // USA - New Mexico - SPCS83 - C
    {193062, -10906, 3133, -10632, 3700}, // USA - New Mexico - SPCS83 - W
    {193075, -7775, 4199, -7506, 4441}, // USA - New York - SPCS - C
    {193086, -7587, 4088, -7323, 4502}, // USA - New York - SPCS - E
    {193097, -7426, 4047, -7180, 4130}, // USA - New York - SPCS - Long Island
    {193112, -7977, 4199, -7736, 4364}, // USA - New York - SPCS - W
    {193131, -10407, 4715, -9683, 4901}, // USA - North Dakota - SPCS - N
    {193142, -10405, 4593, -9655, 4783}, // USA - North Dakota - SPCS - S
    {193153, -8481, 4010, -8051, 4233}, // USA - Ohio - SPCS - N
    {193163, -8483, 3840, -8070, 4036}, // USA - Ohio - SPCS - S
    {193173, -10300, 3527, -9442, 3701}, // USA - Oklahoma - SPCS - N
    {193184, -10000, 3362, -9442, 3557}, // USA - Oklahoma - SPCS - S
    {193696, -12417, 4395, -11647, 4626}, // USA - Oregon - SPCS - N
    {193704, -12460, 4198, -11690, 4456}, // USA - Oregon - SPCS - S
    {193819, -8053, 4060, -7470, 4253}, // USA - Pennsylvania - SPCS - N
    {193833, -8053, 3971, -7472, 4118}, // USA - Pennsylvania - SPCS - S
    {193863, -8336, 3346, -7852, 3521}, // USA - South Carolina - SPCS27 - N
    {193875, -8203, 3205, -7895, 3395}, // USA - South Carolina - SPCS27 - S
    {193887, -10407, 4414, -9645, 4595}, // USA - South Dakota - SPCS - N
    {193898, -10406, 4248, -9643, 4479}, // USA - South Dakota - SPCS - S
    {29372, -6849, 1492, -6388, 2186}, // Caribbean - Puerto Rico and US Virgin Islands
    {193924, -10666, 2978, -9350, 3227}, // USA - Texas - SPCS - C
    {193934, -10303, 3430, -9999, 3650}, // USA - Texas - SPCS - N
    {193944, -10307, 3172, -9400, 3458}, // USA - Texas - SPCS - NC
    {193955, -10020, 2583, -9536, 2821}, // USA - Texas - SPCS27 - S
    {193966, -10500, 2778, -9341, 3067}, // USA - Texas - SPCS27 - SC
    {193997, -11405, 3849, -10904, 4108}, // USA - Utah - SPCS - C
    {194006, -11404, 4055, -10904, 4201}, // USA - Utah - SPCS - N
    {194015, -11405, 3699, -10904, 3858}, // USA - Utah - SPCS - S
    {194039, -8006, 3777, -7651, 3946}, // USA - Virginia - SPCS - N
    {194049, -8368, 3654, -7531, 3828}, // USA - Virginia - SPCS - S
    {194059, -12479, 4708, -11702, 4905}, // USA - Washington - SPCS27 - N
    {194073, -12440, 4554, -11691, 4796}, // USA - Washington - SPCS27 - S
    {194113, -8176, 3876, -7772, 4064}, // USA - West Virginia - SPCS - N
    {194125, -8265, 3720, -7905, 3917}, // USA - West Virginia - SPCS - S
    {194872, -9289, 4398, -8625, 4580}, // USA - Wisconsin - SPCS - C
    {194884, -9289, 4537, -8805, 4731}, // USA - Wisconsin - SPCS - N
    {194896, -9143, 4248, -8695, 4433}, // USA - Wisconsin - SPCS - S
    {195136, -10633, 4099, -10405, 4501}, // USA - Wyoming - SPCS - E
    {195147, -10863, 4099, -10600, 4501}, // USA - Wyoming - SPCS - EC
    {195159, -11106, 4099, -10904, 4467}, // USA - Wyoming - SPCS - W
    {195170, -11106, 4099, -10750, 4501}, // USA - Wyoming - SPCS - WC
    {194087, -12479, 4708, -11702, 4905}, // USA - Washington - SPCS83 - N
    {194100, -12440, 4554, -11691, 4761}, // USA - Washington - SPCS83 - S
    {28248, -5948, 4750, -5750, 5054}, // Canada - Newfoundland and Labrador - 60°W to 57.5°W
    {28826, -6300, 4716, -6000, 5892}, // Canada - Quebec and Labrador - 63°W to 60°W
    {28852, -6600, 4795, -6300, 6052}, // Canada - Quebec and Labrador - 66°W to 63°W
    {28878, -6900, 4731, -6600, 5900}, // Canada - Quebec and Labrador - 69°W to 66°W
    {28904, -7500, 4498, -7200, 6253}, // Canada - Quebec and Ontario - 75°W to 72°W
    {28929, -7800, 4363, -7500, 6265}, // Canada - Quebec and Ontario - 78°W to 75°W
    {28954, -8100, 4226, -7800, 6245}, // Canada - Quebec and Ontario - MTM zone 10
    {15401, 14876, -3593, 14940, -3512}, // Australia - Australian Capital Territory
    {15600, 14096, -3920, 15004, -3398}, // Australia - Victoria
    {28978, -6000, 4750, -5710, 5538}, // Canada - Quebec, Newfoundland and Labrador - MTM zone 3
    {15152, 15000, -4644, 15600, -232}, // Australasia - Australia and PNG - 150°E to 156°E
    {34576, -755, 102, -311, 519}, // Cote d'Ivoire (Ivory Coast) - offshore
    {60977, 586, 4727, 1384, 5509}, // Germany - West Germany all states
    {44134, 3234, 2719, 3427, 3001}, // Egypt - Gulf of Suez
    {12990, -6864, -5511, -6373, -5259}, // Argentina - Tierra del Fuego onshore
    {71116, 5180, 2730, 5301, 2820}, // Iran - Kangan district
    {181645, -937, 3595, 339, 4382}, // Spain - mainland onshore
    {177910, 5530, -486, 5559, -450}, // Seychelles - Mahe Island
    {46470, 1338, 4085, 2304, 4688}, // Europe - former Yugoslavia onshore
    {27945, -12000, 4899, -10998, 6000}, // Canada - Alberta
    {193808, -12479, 4198, -11647, 4905}, // USA - Oregon and Washington
    {29009, -14101, 5999, -12391, 6970}, // Canada - Yukon
    {46185, 1957, 3514, -16897, 8191}, // Europe - FSU onshore
    {193987, -10500, 2778, -9376, 3067}, // USA - Texas - SPCS83 - SC
    {193977, -10020, 2583, -9685, 2821}, // USA - Texas - SPCS83 - S
    {192389, -9394, 2885, -8875, 3107}, // USA - Louisiana - SPCS83 - S
    {189310, -818, 5396, -534, 5536}, // UK - Northern Ireland - onshore
    {37860, 800, 5467, 1129, 5780}, // Denmark - onshore Jutland and Funen
    {37925, 1079, 5451, 1269, 5679}, // Denmark - onshore Zealand and Lolland
    {37844, 1459, 5494, 1525, 5538}, // Denmark - onshore Bornholm
    {60860, 992, 5020, 1256, 5164}, // Germany - Thuringen
    {60808, 1189, 5020, 1504, 5166}, // Germany - Saxony
    {166706, 2864, 4344, 3141, 4520}, // Romania - offshore
    {27330, 845, 216, 1040, 499}, // Cameroon - coastal area
    {61948, -6506, 8100, -1181, 8367}, // Greenland - north of 81°N
    {61885, -4400, 7800, -1433, 8100}, // Greenland - east - 78°N to 81°N
    {61866, -4400, 7500, -1712, 7800}, // Greenland - east - 75°N to 78°N
    {61847, -3800, 7200, -1721, 7500}, // Greenland - east - 72°N to 75°N
    {61827, -2969, 6866, -1989, 7458}, // Greenland - Scoresbysund area
    {61809, -3886, 6552, -3681, 6591}, // Greenland - Ammassalik area
    {61981, -4800, 5974, -4252, 6205}, // Greenland - southwest coast east of 48°W
    {61962, -5400, 6063, -4800, 7305}, // Greenland - southwest coast 54°W to 48°W
    {16063, 11285, -4370, 15369, -986}, // Australia - onshore
    {15389, 10923, -3853, 15361, -937}, // Australia - AGD84
    {69737, 10577, -689, 11001, -407}, // Indonesia - Java Sea - offshore northwest Java
    {69677, 11280, -846, 11701, -680}, // Indonesia - Bali Sea west
    {69955, 13189, -294, 13382, -197}, // Indonesia - West Papua - Tangguh
    {27299, 1290, 892, 1419, 987}, // Cameroon - Garoua area
    {27313, 1417, 1170, 1509, 1277}, // Cameroon - N'Djamena area
    {12959, -6862, -5461, -6600, -5165}, // Argentina - Tierra del Fuego offshore west of 66°W
    {12928, -6600, -5493, -6149, -5136}, // Argentina - Tierra del Fuego offshore east of 66°W
    {14614, 3417, 2945, 3569, 3328}, // Asia - Middle East - Israel and Palestine Territory onshore
    {45948, 1957, 4824, 2250, 5910}, // Europe - FSU - 19.5°E to 22.5°E onshore
    {45966, 2250, 4771, 2550, 5975}, // Europe - FSU - 22.5°E to 25.5°E onshore
    {45985, 2549, 4526, 2851, 6893}, // Europe - FSU - 25.5°E to 28.5°E onshore
    {46004, 2850, 4518, 3150, 6985}, // Europe - FSU - 28.5°E to 31.5°E onshore
    {46023, 3150, 4432, 3450, 7002}, // Europe - FSU - 31.5°E to 34.5°E onshore
    {46042, 3450, 4461, 3750, 6939}, // Europe - FSU - 34.5°E to 37.5°E onshore
    {46061, 3750, 4307, 4050, 6880}, // Europe - FSU - 37.5°E to 40.5°E onshore
    {46080, 4050, 4101, 4351, 6874}, // Europe - FSU - 40.5°E to 43.5°E onshore
    {46099, 4350, 3884, 4650, 8080}, // Europe - FSU - 43.5°E to 46.5°E onshore
    {46118, 4650, 3831, 4950, 8091}, // Europe - FSU - 46.5°E to 49.5°E onshore
    {13837, 4950, 3766, 5250, 8122}, // Asia - FSU - 49.5°E to 52.5°E onshore
    {13854, 5250, 3733, 5550, 8141}, // Asia - FSU - 52.5°E to 55.5°E onshore
    {13871, 5550, 3764, 5850, 8189}, // Asia - FSU - 55.5°E to 58.5°E onshore
    {13888, 5850, 3551, 6150, 8191}, // Asia - FSU - 58.5°E to 61.5°E onshore
    {13905, 6150, 3514, 6450, 8177}, // Asia - FSU - 61.5°E to 64.5°E onshore
    {13922, 6450, 3627, 6750, 8125}, // Asia - FSU - 64.5°E to 67.5°E onshore
    {13939, 6750, 3693, 7050, 7707}, // Asia - FSU - 67.5°E to 70.5°E onshore
    {13956, 7050, 3667, 7350, 7357}, // Asia - FSU - 70.5°E to 73.5°E onshore
    {13973, 7350, 3722, 7650, 7971}, // Asia - FSU - 73.5°E to 76.5°E onshore
    {13990, 7650, 4044, 7950, 8103}, // Asia - FSU - 76.5°E to 79.5°E onshore
    {14007, 7950, 4182, 8250, 8103}, // Asia - FSU - 79.5°E to 82.5°E onshore
    {14024, 8250, 4511, 8550, 7756}, // Asia - FSU - 82.5°E to 85.5°E onshore
    {14041, 8550, 4705, 8850, 7716}, // Asia - FSU - 85.5°E to 88.5°E onshore
    {167947, 8850, 4944, 9150, 8128}, // Russia - 88.5°E to 91.5°E onshore
    {167973, 9150, 5016, 9450, 8126}, // Russia - 91.5°E to 94.5°E onshore
    {167987, 9450, 4973, 9750, 8135}, // Russia - 94.5°E to 97.5°E onshore
    {168013, 9750, 4979, 10050, 8090}, // Russia - 97.5°E to 100.5°E onshore
    {166870, 10050, 5017, 10350, 7971}, // Russia - 100.5°E to 103.5°E onshore
    {166896, 10350, 5013, 10650, 7921}, // Russia - 103.5°E to 106.5°E onshore
    {166910, 10650, 4925, 10950, 7840}, // Russia - 106.5°E to 109.5°E onshore
    {166936, 10950, 4914, 11250, 7681}, // Russia - 109.5°E to 112.5°E onshore
    {166950, 11250, 4949, 11550, 7670}, // Russia - 112.5°E to 115.5°E onshore
    {166975, 11550, 4951, 11850, 7443}, // Russia - 115.5°E to 118.5°E onshore
    {166989, 11850, 4987, 12150, 7363}, // Russia - 118.5°E to 121.5°E onshore
    {167015, 12150, 5318, 12450, 7400}, // Russia - 121.5°E to 124.5°E onshore
    {167030, 12450, 4988, 12750, 7400}, // Russia - 124.5°E to 127.5°E onshore
    {167057, 12750, 4267, 13050, 7359}, // Russia - 127.5°E to 130.5°E onshore
    {167070, 13050, 4225, 13350, 7199}, // Russia - 130.5°E to 133.5°E onshore
    {167097, 13350, 4274, 13650, 7590}, // Russia - 133.5°E to 136.5°E onshore
    {167112, 13650, 4476, 13950, 7627}, // Russia - 136.5°E to 139.5°E onshore
    {167140, 13950, 4584, 14250, 7623}, // Russia - 139.5°E to 142.5°E onshore
    {167155, 14250, 4361, 14550, 7598}, // Russia - 142.5°E to 145.5°E onshore
    {167183, 14550, 4360, 14850, 7676}, // Russia - 145.5°E to 148.5°E onshore
    {167198, 14850, 4521, 15150, 7682}, // Russia - 148.5°E to 151.5°E onshore
    {167226, 15150, 4672, 15450, 7626}, // Russia - 151.5°E to 154.5°E onshore
    {167241, 15450, 4902, 15750, 7720}, // Russia - 154.5°E to 157.5°E onshore
    {167269, 15750, 5136, 16050, 7112}, // Russia - 157.5°E to 160.5°E onshore
    {167284, 16050, 5434, 16350, 7098}, // Russia - 160.5°E to 163.5°E onshore
    {167312, 16350, 5469, 16650, 6982}, // Russia - 163.5°E to 166.5°E onshore
    {167327, 16650, 5445, 16950, 7007}, // Russia - 166.5°E to 169.5°E onshore
    {167355, 16950, 5986, 17250, 7019}, // Russia - 169.5°E to 172.5°E onshore
    {167370, 17250, 6099, 17550, 7002}, // Russia - 172.5°E to 175.5°E onshore
    {167415, 17550, 6209, 17850, 7110}, // Russia - 175.5°E to 178.5°E onshore
    {167447, 17850, 6224, -17850, 7165}, // Russia - 178.5°E to 178.5°W onshore
    {167463, -17850, 6474, -17550, 7161}, // Russia - 178.5°W to 175.5°W onshore
    {167430, -17550, 6420, -17250, 6778}, // Russia - 175.5°W to 172.5°W onshore
    {167385, -17250, 6435, -16957, 6706}, // Russia - 172.5°W to 169.5°W onshore
    {168027, -16922, 6570, -16897, 6586}, // Russia - east of 169.5°W onshore
    {30809, 7362, 3581, 7650, 4065}, // China - west of 76.5°E
    {30585, 7650, 3103, 7950, 4183}, // China - 76.5°E to 79.5°E
    {30609, 7950, 2995, 8251, 4588}, // China - 79.5°E to 82.5°E
    {30622, 8250, 2826, 8550, 4723}, // China - 82.5°E to 85.5°E
    {30646, 8550, 2780, 8850, 4918}, // China - 85.5°E to 88.5°E
    {30659, 8849, 2732, 9151, 4842}, // China - 88.5°E to 91.5°E
    {30683, 9150, 2771, 9450, 4513}, // China - 91.5°E to 94.5°E
    {30696, 9450, 2823, 9751, 4450}, // China - 94.5°E to 97.5°E
    {30720, 9750, 2143, 10050, 4276}, // China - 97.5°E to 100.5°E
    {30320, 10050, 2113, 10350, 4269}, // China - 100.5°E to 103.5°E
    {30356, 10350, 2250, 10651, 4221}, // China - 103.5°E to 106.5°E
    {30369, 10650, 1819, 10951, 4247}, // China - 106.5°E to 109.5°E onshore
    {30406, 10950, 1811, 11250, 4511}, // China - 109.5°E to 112.5°E onshore
    {30420, 11250, 2152, 11550, 4545}, // China - 112.5°E to 115.5°E onshore
    {30455, 11550, 2260, 11850, 4988}, // China - 115.5°E to 118.5°E onshore
    {30469, 11850, 2443, 12150, 5333}, // China - 118.5°E to 121.5°E onshore
    {30506, 12150, 2822, 12450, 5356}, // China - 121.5°E to 124.5°E onshore
    {30521, 12450, 4019, 12750, 5320}, // China - 124.5°E to 127.5°E onshore
    {30560, 12750, 4137, 13050, 5025}, // China - 127.5°E to 130.5°E
    {30572, 13050, 4242, 13350, 4888}, // China - 130.5°E to 133.5°E
    {30767, 13350, 4585, 13477, 4840}, // China - east of 133.5°E
    {167496, 1957, 5432, 2250, 5532}, // Russia - 19.5°E to 22.5°E onshore
    {167509, 2250, 5434, 2287, 5507}, // Russia - 22.5°E to 25.5°E onshore
    {167534, 2661, 5605, 2851, 6893}, // Russia - 25.5°E to 28.5°E onshore
    {167548, 2850, 5285, 3150, 6985}, // Russia - 28.5°E to 31.5°E onshore
    {167573, 3150, 5124, 3450, 7002}, // Russia - 31.5°E to 34.5°E onshore
    {167587, 3450, 4461, 3751, 6939}, // Russia - 34.5°E to 37.5°E onshore
    {167613, 3750, 4333, 4050, 6880}, // Russia - 37.5°E to 40.5°E onshore
    {167627, 4050, 4287, 4350, 6874}, // Russia - 40.5°E to 43.5°E onshore
    {167653, 4350, 4189, 4650, 8080}, // Russia - 43.5°E to 46.5°E onshore
    {167667, 4650, 4119, 4950, 8091}, // Russia - 46.5°E to 49.5°E onshore
    {167693, 4950, 4236, 5250, 8122}, // Russia - 49.5°E to 52.5°E onshore
    {167707, 5250, 5052, 5550, 8141}, // Russia - 52.5°E to 55.5°E onshore
    {167733, 5550, 5053, 5850, 8189}, // Russia - 55.5°E to 58.5°E onshore
    {167747, 5850, 5047, 6150, 8191}, // Russia - 58.5°E to 61.5°E onshore
    {167773, 6150, 5103, 6450, 8177}, // Russia - 61.5°E to 64.5°E onshore
    {167787, 6450, 5431, 6750, 8125}, // Russia - 64.5°E to 67.5°E onshore
    {167813, 6750, 5485, 7050, 7707}, // Russia - 67.5°E to 70.5°E onshore
    {167827, 7050, 5343, 7350, 7357}, // Russia - 70.5°E to 73.5°E onshore
    {167853, 7350, 5347, 7650, 7971}, // Russia - 73.5°E to 76.5°E onshore
    {167867, 7650, 5149, 7950, 8103}, // Russia - 76.5°E to 79.5°E onshore
    {167893, 7950, 5070, 8250, 8103}, // Russia - 79.5°E to 82.5°E onshore
    {167907, 8250, 4958, 8550, 7756}, // Russia - 82.5°E to 85.5°E onshore
    {167933, 8550, 4907, 8850, 7716}, // Russia - 85.5°E to 88.5°E onshore
    {132004, 781, 1280, 1490, 1670}, // Niger - southeast
    {14058, 3999, 4137, 4304, 4359}, // Asia - FSU - CS63 zone A1
    {14072, 4303, 3887, 4604, 4305}, // Asia - FSU - CS63 zone A2
    {14086, 4603, 3838, 4904, 4210}, // Asia - FSU - CS63 zone A3
    {14100, 4903, 3789, 5173, 4259}, // Asia - FSU - CS63 zone A4
    {14114, 4926, 4115, 5227, 5177}, // Asia - FSU - CS63 zone K2
    {14128, 5226, 4146, 5527, 5179}, // Asia - FSU - CS63 zone K3
    {14142, 5526, 4126, 5827, 5114}, // Asia - FSU - CS63 zone K4
    {144785, -1611, 2998, -1579, 3021}, // Portugal - Selvagens onshore
    {91944, -1324, 2766, -359, 3151}, // Morocco - south of 31.5°N
    {214696, -1542, 2429, -866, 2767}, // Western Sahara - north of 24.3°N
    {214716, -1716, 2071, -1200, 2431}, // Western Sahara - south of 24.3°N
    {4631, -1719, 1026, 3042, 1570}, // Africa - 12th parallel N
    {32828, 4316, -1199, 4355, -1131}, // Comoros - Njazidja (Grande Comore)
    {50929, -15000, -1793, -14909, -1741}, // French Polynesia - Society Islands - Moorea and Tahiti
    {50829, -15191, -1696, -15089, -1617}, // French Polynesia - Society Islands - Bora Bora, Huahine, Raiatea, Tahaa
    {130200, 16644, -2077, 16671, -2034}, // New Caledonia - Ouvea
    {130145, 16698, -2124, 16752, -2062}, // New Caledonia - Lifou
    {213818, -17625, -1341, -17607, -1316}, // Wallis and Futuna - Wallis
    {51218, 6869, -4978, 7062, -4860}, // French Southern Territories - Kerguelen onshore
    {9583, 13944, -6678, 14150, -6610}, // Antarctica - Adelie Land - Petrels island
    {9605, 13600, -6713, 14200, -6561}, // Antarctica - Adelie Land coastal area
    {130156, 16775, -2171, 16819, -2132}, // New Caledonia - Mare
    {130129, 16736, -2273, 16761, -2249}, // New Caledonia - Ile des Pins
    {130046, 16354, -1985, 16375, -1950}, // New Caledonia - Belep
    {130095, 16392, -2245, 16709, -2003}, // New Caledonia - Grande Terre
    {130109, 16635, -2237, 16654, -2219}, // New Caledonia - Grande Terre - Noumea
    {29325, -6366, 1408, -5752, 1853}, // Caribbean - French Antilles
    {4953, 2999, 349, 3600, 2224}, // Africa - Ethiopia and Sudan - 30°E to 36°E
    {5147, 2399, 421, 3001, 2201}, // Africa - South Sudan and Sudan - 24°E to 30°E
    {62359, -6321, 1782, -6273, 1817}, // Guadeloupe - St Martin and St Barthelemy - onshore
    {62327, -6185, 1580, -6097, 1655}, // Guadeloupe - Grande-Terre and surrounding islands - onshore
    {28030, -13904, 4825, -11408, 6001}, // Canada - British Columbia
    {182999, 1093, 5674, 1311, 6013}, // Sweden - 12 00
    {183010, 1212, 5528, 1479, 6228}, // Sweden - 13 30
    {183032, 1354, 5595, 1615, 6162}, // Sweden - 15 00
    {183054, 1541, 5615, 1763, 6226}, // Sweden - 16 30
    {183076, 1708, 5866, 1961, 6070}, // Sweden - 18 00
    {183021, 1193, 6155, 1555, 6439}, // Sweden - 14 15
    {183043, 1366, 6044, 1701, 6513}, // Sweden - 15 45
    {183065, 1431, 6212, 1904, 6719}, // Sweden - 17 15
    {183087, 1718, 5686, 2022, 6617}, // Sweden - 18 45
    {183122, 1608, 6345, 2328, 6907}, // Sweden - 20 15
    {183132, 1963, 6501, 2291, 6643}, // Sweden - 21 45
    {183143, 2185, 6549, 2417, 6814}, // Sweden - 23 15
    {183176, 1093, 5729, 1291, 5973}, // Sweden - 7.5 gon W
    {183165, 1181, 5528, 1544, 6439}, // Sweden - 5 gon W
    {183110, 1366, 5595, 1773, 6718}, // Sweden - 2.5 gon W
    {182989, 1608, 5686, 2022, 6854}, // Sweden - 0 gon
    {183098, 1840, 6337, 2220, 6907}, // Sweden - 2.5 gon E
    {183154, 2134, 6524, 2417, 6858}, // Sweden - 5 gon E
    {67664, -2466, 6471, -2400, 6585}, // Iceland - mainland west of 24°W
    {67630, -2400, 6334, -1800, 6652}, // Iceland - mainland 24°W to 18°W
    {67647, -1800, 6345, -1338, 6658}, // Iceland - mainland east of 18°W
    {45621, -3000, 2510, -2400, 6580}, // Europe - 30°W to 24°W
    {45516, -2400, 2760, -1800, 6650}, // Europe - 24°W to 18°W
    {61125, 334, 5097, 600, 5592}, // Germany - west of 6°E
    {60732, 600, 4727, 1200, 5547}, // Germany - 6°E to 12°E
    {61020, 1157, 4746, 1504, 5503}, // Germany - east of 12°E
    {45671, 4200, 3695, 4800, 7500}, // Europe - 42°E to 48°E
    {45722, 4800, 3600, 5400, 7500}, // Europe - 48°E to 54°E
    {73620, -917, 7075, -787, 7124}, // Jan Mayen - onshore
    {14585, 4636, 2906, 4861, 3032}, // Asia - Middle East - Iraq-Kuwait boundary
    {9699, 4500, -8000, 16000, -6000}, // Antarctica - Australian sector north of 80°S
    {46348, -3558, 2460, 4483, 8473}, // Europe - LCC & LAEA
    {130476, -17725, -4464, -17554, -4330}, // New Zealand - Chatham Islands group
    {60743, 1309, 5233, 1376, 5265}, // Germany - Berlin
    {73647, 12362, 2398, 12551, 2494}, // Japan - 120°E to 126°E onshore
    {73673, 12663, 2440, 13200, 3490}, // Japan - 126°E to 132°E onshore
    {73700, 13200, 2037, 13800, 3758}, // Japan - 132°E to 138°E onshore
    {73727, 13800, 2467, 14400, 4554}, // Japan - 138°E to 144°E onshore
    {73754, 14400, 4284, 14587, 4440}, // Japan - 144°E to 150°E onshore
    {192421, -7109, 4307, -6960, 4658}, // USA - Maine - CS2000 - W
    {192399, -7003, 4375, -6833, 4747}, // USA - Maine - CS2000 - C
    {192410, -6858, 4418, -6691, 4737}, // USA - Maine - CS2000 - E
    {88376, -1708, 1937, -1588, 2134}, // Mauritania - north coast
    {88350, -1657, 1681, -1559, 1941}, // Mauritania - central coast
    {88364, -600, 1549, -480, 2574}, // Mauritania - east of 6°W
    {88325, -1200, 1475, -600, 2730}, // Mauritania - 12°W to 6°W
    {88398, -1708, 1472, -1200, 2346}, // Mauritania - west of 12°W onshore
    {132046, 266, 192, 849, 638}, // Nigeria - offshore
    {15532, 12899, -3813, 14101, -2599}, // Australia - SA
    {30039, -272, 4877, -181, 4944}, // Channel Islands - Jersey, Les Ecrehos and Les Minquiers
    {30011, -373, 4911, -202, 5016}, // Channel Islands - Guernsey, Alderney, Sark
    {15425, 15237, -2936, 15369, -2464}, // Australia - Brisbane
    {6864, -7200, -6400, -6000, -6000}, // Antarctica - 60°S to 64°S, 72°W to 60°W (SP19-20)
    {6834, -6000, -6400, -4800, -6000}, // Antarctica - 60°S to 64°S, 60°W to 48°W (SP21-22)
    {6804, -4800, -6400, -3600, -6000}, // Antarctica - 60°S to 64°S, 48°W to 36°W (SP23-24)
    {7049, -18000, -6800, -16800, -6400}, // Antarctica - 64°S to 68°S, 180°W to 168°W (SQ01-02)
    {7237, -7200, -6800, -6000, -6400}, // Antarctica - 64°S to 68°S, 72°W to 60°W (SQ19-20)
    {7175, -6000, -6800, -4800, -6400}, // Antarctica - 64°S to 68°S, 60°W to 48°W (SQ21-22)
    {7082, 3600, -6800, 4800, -6400}, // Antarctica - 64°S to 68°S, 36°E to 48°E (SQ37-38)
    {7113, 4800, -6800, 6000, -6400}, // Antarctica - 64°S to 68°S, 48°E to 60°E (SQ39-40)
    {7144, 6000, -6800, 7200, -6400}, // Antarctica - 64°S to 68°S, 60°E to 72°E (SQ41-42)
    {7206, 7200, -6800, 8400, -6400}, // Antarctica - 64°S to 68°S, 72°E to 84°E (SQ43-44)
    {7266, 8400, -6800, 9600, -6400}, // Antarctica - 64°S to 68°S, 84°E to 96°E (SQ45-46)
    {7297, 9600, -6800, 10800, -6400}, // Antarctica - 64°S to 68°S, 96°E to 108°E (SQ47-48)
    {6892, 10800, -6800, 12000, -6400}, // Antarctica - 64°S to 68°S, 108°E to 120°E (SQ49-50)
    {6922, 12000, -6800, 13200, -6400}, // Antarctica - 64°S to 68°S, 120°E to 132°E (SQ51-52)
    {6953, 13200, -6800, 14400, -6400}, // Antarctica - 64°S to 68°S, 132°E to 144°E (SQ53-54)
    {6985, 14400, -6800, 15600, -6400}, // Antarctica - 64°S to 68°S, 144°E to 156°E (SQ55-56)
    {7017, 15600, -6800, 16800, -6400}, // Antarctica - 64°S to 68°S, 156°E to 168°E (SQ57-58)
    {7387, -10800, -7200, -9600, -6800}, // Antarctica - 68°S to 72°S, 108°W to 96°W (SR13-14)
    {7944, -9600, -7200, -8400, -6800}, // Antarctica - 68°S to 72°S, 96°W to 84°W (SR15-16)
    {7882, -8400, -7200, -7200, -6800}, // Antarctica - 68°S to 72°S, 84°W to 72°W (SR17-18)
    {7822, -7200, -7200, -6000, -6800}, // Antarctica - 68°S to 72°S, 72°W to 60°W (SR19-20)
    {7668, -2400, -7200, -1200, -6800}, // Antarctica - 68°S to 72°S, 24°W to 12°W (SR27-28)
    {7480, -1200, -7200, 0, -6800}, // Antarctica - 68°S to 72°S, 12°W to 0°W (SR29-30)
    {7328, 0, -7200, 1200, -6800}, // Antarctica - 68°S to 72°S, 0°E to 12°E (SR31-32)
    {7449, 1200, -7200, 2400, -6800}, // Antarctica - 68°S to 72°S, 12°E to 24°E (SR33-34)
    {7637, 2400, -7200, 3600, -6800}, // Antarctica - 68°S to 72°S, 24°E to 36°E (SR35-36)
    {7698, 3600, -7200, 4800, -6800}, // Antarctica - 68°S to 72°S, 36°E to 48°E (SR37-38)
    {7729, 4800, -7200, 6000, -6800}, // Antarctica - 68°S to 72°S, 48°E to 60°E (SR39-40)
    {7760, 6000, -7200, 7200, -6800}, // Antarctica - 68°S to 72°S, 60°E to 72°E (SR41-42)
    {7791, 7200, -7200, 8400, -6800}, // Antarctica - 68°S to 72°S, 72°E to 84°E (SR43-44)
    {7851, 8400, -7200, 9600, -6800}, // Antarctica - 68°S to 72°S, 84°E to 96°E (SR45-46)
    {7913, 9600, -7200, 10800, -6800}, // Antarctica - 68°S to 72°S, 96°E to 108°E (SR47-48)
    {7357, 10800, -7200, 12000, -6800}, // Antarctica - 68°S to 72°S, 108°E to 120°E (SR49-50)
    {7418, 12000, -7200, 13200, -6800}, // Antarctica - 68°S to 72°S, 120°E to 132°E (SR51-52)
    {7509, 13200, -7200, 14400, -6800}, // Antarctica - 68°S to 72°S, 132°E to 144°E (SR53-54)
    {7541, 14400, -7200, 15600, -6800}, // Antarctica - 68°S to 72°S, 144°E to 156°E (SR55-56)
    {7573, 15600, -7200, 16800, -6800}, // Antarctica - 68°S to 72°S, 156°E to 168°E (SR57-58)
    {7605, 16800, -7200, 18000, -6800}, // Antarctica - 68°S to 72°S, 168°E to 180°E (SR59-60)
    {8226, -16200, -7600, -14400, -7200}, // Antarctica - 72°S to 76°S, 162°W to 144°W (SS04-06)
    {8161, -14400, -7600, -12600, -7200}, // Antarctica - 72°S to 76°S, 144°W to 126°W (SS07-09)
    {8098, -12600, -7600, -10800, -7200}, // Antarctica - 72°S to 76°S, 126°W to 108°W (SS10-12)
    {8035, -10800, -7600, -9000, -7200}, // Antarctica - 72°S to 76°S, 108°W to 90°W (SS13-15)
    {8503, -9000, -7600, -7200, -7200}, // Antarctica - 72°S to 76°S, 90°W to 72°W (SS16-18)
    {8442, -7200, -7600, -5400, -7200}, // Antarctica - 72°S to 76°S, 72°W to 54°W (SS19-21)
    {8350, -3600, -7600, -1800, -7200}, // Antarctica - 72°S to 76°S, 36°W to 18°W (SS25-27)
    {8290, -1800, -7600, 0, -7200}, // Antarctica - 72°S to 76°S, 18°W to 0°W (SS28-30)
    {7975, 0, -7600, 1800, -7200}, // Antarctica - 72°S to 76°S, 0°E to 18°E (SS31-33)
    {8259, 1800, -7600, 3600, -7200}, // Antarctica - 72°S to 76°S, 18°E to 36°E (SS34-36)
    {8319, 3600, -7600, 5400, -7200}, // Antarctica - 72°S to 76°S, 36°E to 54°E (SS37-39)
    {8380, 5400, -7600, 7200, -7200}, // Antarctica - 72°S to 76°S, 54°E to 72°E (SS40-42)
    {8411, 7200, -7600, 9000, -7200}, // Antarctica - 72°S to 76°S, 72°E to 90°E (SS43-45)
    {8472, 9000, -7600, 10800, -7200}, // Antarctica - 72°S to 76°S, 90°E to 108°E (SS46-48)
    {8004, 10800, -7600, 12600, -7200}, // Antarctica - 72°S to 76°S, 108°E to 126°E (SS49-51)
    {8066, 12600, -7600, 14400, -7200}, // Antarctica - 72°S to 76°S, 126°E to 144°E (SS52-54)
    {8129, 14400, -7600, 16200, -7200}, // Antarctica - 72°S to 76°S, 144°E to 162°E (SS55-57)
    {8194, 16200, -7600, 18000, -7200}, // Antarctica - 72°S to 76°S, 162°E to 180°E (SS58-60)
    {8787, -18000, -8000, -15600, -7600}, // Antarctica - 76°S to 80°S, 180°W to 156°W (ST01-04)
    {8754, -15600, -8000, -13200, -7600}, // Antarctica - 76°S to 80°S, 156°W to 132°W (ST05-08)
    {8690, -13200, -8000, -10800, -7600}, // Antarctica - 76°S to 80°S, 132°W to 108°W (ST09-12)
    {8565, -10800, -8000, -8400, -7600}, // Antarctica - 76°S to 80°S, 108°W to 84°W (ST13-16)
    {8975, -8400, -8000, -6000, -7600}, // Antarctica - 76°S to 80°S, 84°W to 60°W (ST17-20)
    {8913, -6000, -8000, -3600, -7600}, // Antarctica - 76°S to 80°S, 60°W to 36°W (ST21-24)
    {8851, -3600, -8000, -1200, -7600}, // Antarctica - 76°S to 80°S, 36°W to 12°W (ST25-28)
    {8627, -1200, -8000, 1200, -7600}, // Antarctica - 76°S to 80°S, 12°W to 12°E (ST29-32)
    {8596, 1200, -8000, 3600, -7600}, // Antarctica - 76°S to 80°S, 12°E to 36°E (ST33-36)
    {8820, 3600, -8000, 6000, -7600}, // Antarctica - 76°S to 80°S, 36°E to 60°E (ST37-40)
    {8882, 6000, -8000, 8400, -7600}, // Antarctica - 76°S to 80°S, 60°E to 84°E (ST41-44)
    {8944, 8400, -8000, 10800, -7600}, // Antarctica - 76°S to 80°S, 84°E to 108°E (ST45-48)
    {8534, 10800, -8000, 13200, -7600}, // Antarctica - 76°S to 80°S, 108°E to 132°E (ST49-52)
    {8658, 13200, -8000, 15600, -7600}, // Antarctica - 76°S to 80°S, 132°E to 156°E (ST53-56)
    {8722, 15600, -8000, 18000, -7600}, // Antarctica - 76°S to 80°S, 156°E to 180°E (ST57-60)
    {9158, -18000, -8400, -15000, -8000}, // Antarctica - 80°S to 84°S, 180°W to 150°W (SU01-05)
    {9127, -15000, -8400, -12000, -8000}, // Antarctica - 80°S to 84°S, 150°W to 120°W (SU06-10)
    {9065, -12000, -8400, -9000, -8000}, // Antarctica - 80°S to 84°S, 120°W to 90°W (SU11-15)
    {9340, -9000, -8400, -6000, -8000}, // Antarctica - 80°S to 84°S, 90°W to 60°W (SU16-20)
    {9280, -6000, -8400, -3000, -8000}, // Antarctica - 80°S to 84°S, 60°W to 30°W (SU21-25)
    {9221, -3000, -8400, 0, -8000}, // Antarctica - 80°S to 84°S, 30°W to 0°W (SU26-30)
    {9005, 0, -8400, 3000, -8000}, // Antarctica - 80°S to 84°S, 0°E to 30°E (SU31-35)
    {9191, 3000, -8400, 6000, -8000}, // Antarctica - 80°S to 84°S, 30°E to 60°E (SU36-40)
    {9249, 6000, -8400, 9000, -8000}, // Antarctica - 80°S to 84°S, 60°E to 90°E (SU41-45)
    {9310, 9000, -8400, 12000, -8000}, // Antarctica - 80°S to 84°S, 90°E to 120°E (SU46-50)
    {9034, 12000, -8400, 15000, -8000}, // Antarctica - 80°S to 84°S, 120°E to 150°E (SU51-55)
    {9095, 15000, -8400, 18000, -8000}, // Antarctica - 80°S to 84°S, 150°E to 180° (SU56-60)
    {9460, -18000, -8800, -12000, -8400}, // Antarctica - 84°S to 88°S, 180°W to 120°W (SV01-10)
    {9431, -12000, -8800, -6000, -8400}, // Antarctica - 84°S to 88°S, 120°W to 60°W (SV11-20)
    {9521, -6000, -8800, 0, -8400}, // Antarctica - 84°S to 88°S, 60°W to 0°W (SV21-30)
    {9370, 0, -8800, 6000, -8400}, // Antarctica - 84°S to 88°S, 0°E to 60°E (SV31-40)
    {9491, 6000, -8800, 12000, -8400}, // Antarctica - 84°S to 88°S, 60°E to 120°E (SV41-50)
    {9400, 12000, -8800, 18000, -8400}, // Antarctica - 84°S to 88°S, 120°E to 180°E (SV51-60)
    {9550, -18000, -9000, 18000, -8800}, // Antarctica - 88°S to 90°S, 180°W to 180°E (SW01-60)
    {9874, 14983, -8000, 17401, -6860}, // Antarctica - Transantarctic mountains north of 80°S
    {31744, -7859, 3, -7558, 1021}, // Colombia - 78°35'W to 75°35'W
    {32366, -7910, 123, -7858, 248}, // Colombia - west of 78°35'W
    {48948, 1924, 6008, 1950, 6034}, // Finland - west of 19.5°E onshore
    {48496, 1950, 5992, 2050, 6048}, // Finland - 19.5°E to 20.5°E onshore
    {48539, 2050, 5984, 2150, 6933}, // Finland - 20.5°E to 21.5°E onshore
    {48571, 2150, 5976, 2250, 6931}, // Finland - 21.5°E to 22.5°E onshore
    {48605, 2250, 5975, 2350, 6874}, // Finland - 22.5°E to 23.5°E onshore
    {48653, 2350, 5986, 2450, 6884}, // Finland - 23.5°E to 24.5°E onshore
    {48687, 2450, 5994, 2550, 6890}, // Finland - 24.5°E to 25.5°E onshore
    {48721, 2550, 6018, 2650, 6994}, // Finland - 25.5°E to 26.5°E onshore
    {48769, 2650, 6036, 2750, 7005}, // Finland - 26.5°E to 27.5°E onshore
    {48801, 2750, 6042, 2850, 7009}, // Finland - 27.5°E to 28.5°E onshore
    {48833, 2850, 6094, 2950, 6981}, // Finland - 28.5°E to 29.5°E
    {48876, 2950, 6143, 3050, 6798}, // Finland - 29.5°E to 30.5°E
    {48904, 3050, 6208, 3159, 6427}, // Finland - east of 30.5°E
    {50560, -5445, 343, -5161, 581}, // French Guiana - coastal area
    {177194, 5400, 1966, 5567, 2277}, // Saudi Arabia - east of 54°E
    {177243, 3451, 2682, 3600, 2938}, // Saudi Arabia - onshore west of 36°E
    {89910, 13799, 939, 13827, 969}, // Micronesia - Yap Islands
    {6192, -17088, -1443, -16938, -1411}, // American Samoa - 2 main island groups
    {6216, -17088, -1459, -16809, -1411}, // American Samoa - 2 main island groups and Rose Island
    {180333, -8018, 0, -7800, 145}, // South America - 84°W to 78°W, N hemisphere and PSAD56 by country
    {132907, -9600, 2561, -9000, 8400}, // North America - 96°W to 90°W and NAD83 by country
    {132872, -9000, 2397, -8400, 8400}, // North America - 90°W to 84°W and NAD83 by country
    {132837, -8400, 2381, -7800, 8400}, // North America - 84°W to 78°W and NAD83 by country
    {132802, -7800, 2828, -7200, 8400}, // North America - 78°W to 72°W and NAD83 by country
    {51006, -15813, -2670, -15000, -1250}, // French Polynesia - west of 150°W
    {50698, -15000, -3120, -14400, -729}, // French Polynesia - 150°W to 144°W
    {50677, -14400, -3124, -13800, -452}, // French Polynesia - 144°W to 138°W
    {50986, -13800, -2658, -13197, -552}, // French Polynesia - east of 138°W
    {50960, -14970, -1793, -14909, -1744}, // French Polynesia - Society Islands - Tahiti
    {50903, -15000, -1763, -14973, -1741}, // French Polynesia - Society Islands - Moorea
    {50875, -15239, -1657, -15214, -1634}, // French Polynesia - Society Islands - Maupiti
    {50785, -14031, -957, -13944, -872}, // French Polynesia - Marquesas Islands - Nuku Hiva, Ua Huka and Ua Pou
    {50750, -13923, -1008, -13875, -964}, // French Polynesia - Marquesas Islands - Hiva Oa and Tahuata
    {50719, -13875, -1060, -13854, -1036}, // French Polynesia - Marquesas Islands - Fatu Hiva
    {15466, 14099, -3753, 15369, -2815}, // Australia - New South Wales
    {187215, -6198, 999, -6085, 1090}, // Trinidad and Tobago - Trinidad - onshore
    {50629, -5400, 217, -4945, 888}, // French Guiana - east of 54°W
    {50646, -5461, 211, -5400, 569}, // French Guiana - west of 54°W
    {33388, 2174, -1346, 3078, -499}, // Congo DR (Zaire) - Katanga
    {33367, 2150, -731, 2626, -501}, // Congo DR (Zaire) - Kasai - SE
    {33030, 1217, -736, 2964, -329}, // Congo DR (Zaire) - 6th parallel south
    {32992, 1217, -604, 1301, -467}, // Congo DR (Zaire) - 11°E to 13°E onshore
    {33011, 1300, -591, 1501, -428}, // Congo DR (Zaire) - 13°E to 15°E
    {33054, 1500, -587, 1700, -329}, // Congo DR (Zaire) - 6th parallel south 15°E to 17°E
    {33083, 1700, -538, 1900, -340}, // Congo DR (Zaire) - 6th parallel south 17°E to 19°E
    {33112, 1900, -729, 2100, -401}, // Congo DR (Zaire) - 6th parallel south 19°E to 21°E
    {33172, 2100, -731, 2300, -531}, // Congo DR (Zaire) - 6th parallel south 21°E to 23°E
    {33202, 2300, -699, 2500, -501}, // Congo DR (Zaire) - 6th parallel south 23°E to 25°E
    {33232, 2500, -726, 2700, -423}, // Congo DR (Zaire) - 6th parallel south 25°E to 27°E
    {33261, 2700, -736, 2900, -424}, // Congo DR (Zaire) - 6th parallel south 27°E to 29°E
    {33290, 2900, -604, 2964, -434}, // Congo DR (Zaire) - 6th parallel south 29°E to 31°E
    {33320, 1217, -604, 1628, -428}, // Congo DR (Zaire) - Bas Congo
    {141678, 9869, -6000, -6800, 6667}, // Pacific Ocean
    {46137, 1957, 5417, 2345, 5927}, // Europe - FSU - CS63 zone C0
    {46153, 2345, 5389, 2645, 5972}, // Europe - FSU - CS63 zone C1
    {46169, 2645, 5515, 2824, 5961}, // Europe - FSU - CS63 zone C2
    {23161, -5400, -3378, -4800, -1500}, // Brazil - 54°W to 48°W and south of 15°S
    {23081, -4800, -2529, -4200, -1500}, // Brazil - 48°W to 42°W and south of 15°S
    {23313, -3600, -1010, -3474, -499}, // Brazil - east of 36°W onshore
    {4671, 1053, -604, 1310, -438}, // Africa - Angola (Cabinda) and DR Congo (Zaire) - coastal
    {4709, 1053, -604, 1237, -505}, // Africa - Angola (Cabinda) and DR Congo (Zaire) - offshore
    {190885, -16636, 2369, -16603, 2393}, // USA - Hawaii - Tern Island and Sorel Atoll
    {181775, -1446, -803, -1424, -783}, // St Helena - Ascension Island
    {181791, -585, -1608, -559, -1585}, // St Helena - St Helena Island
    {181807, -1276, -4042, -980, -3700}, // St Helena - Tristan da Cunha
    {29678, -8146, 1921, -8104, 1941}, // Cayman Islands - Grand Cayman
    {29696, -8014, 1963, -7969, 1978}, // Cayman Islands - Little Cayman and Cayman Brac
    {30291, -10951, -2725, -10916, -2701}, // Chile - Easter Island onshore
    {23467, 7230, -749, 7255, -718}, // British Indian Ocean Territory - Diego Garcia
    {141596, 16655, 1922, 16672, 1938}, // Wake - onshore
    {141580, 16227, 866, 16782, 1938}, // Pacific - Marshall Islands, Wake - onshore
    {89891, 16285, 521, 16310, 543}, // Micronesia - Kosrae (Kusaie)
    {199127, 16809, -2031, 16995, -1737}, // Vanuatu - southern islands
    {199111, 16647, -1732, 16871, -1457}, // Vanuatu - northern islands
    {48234, 17719, -1832, 17875, -1725}, // Fiji - Viti Levu
    {77883, -17460, -476, -17066, -268}, // Kiribati - Phoenix Islands
    {181489, -2193, 2460, -1175, 3276}, // Spain - Canary Islands
    {73768, 14120, 2467, 14142, 2489}, // Japan - Iwo Jima
    {74680, -16959, 1667, -16947, 1679}, // Johnston Island
    {89932, -17745, 2813, -17731, 2828}, // Midway Islands - Sand and Eastern Islands
    {9784, -6089, -6308, -6035, -6282}, // Antarctica - Deception Island
    {9745, 16573, -7794, 16743, -7717}, // Antarctica - Camp McMurdo area
    {132924, -8233, 2086, -7268, 3083}, // North America - Bahamas and USA - Florida - onshore
    {143835, -13016, -2514, -13001, -2500}, // Pitcairn - Pitcairn Island
    {88522, 5725, -2057, 5785, -1994}, // Mauritius - mainland
    {5754, 1922, 3964, 2106, 4267}, // Albania - onshore
    {6701, -6322, 1811, -6292, 1833}, // Anguilla - onshore
    {18360, 8801, 2052, 9267, 2664}, // Bangladesh - onshore
    {18406, -5971, 1300, -5937, 1339}, // Barbados - onshore
    {21397, -8922, 1588, -8772, 1849}, // Belize - onshore
    {21485, -6489, 3221, -6461, 3243}, // Bermuda - onshore
    {24119, 2236, 4124, 2868, 4423}, // Bulgaria - onshore
    {30803, 7362, 1811, 13477, 5356}, // China - onshore
    {32274, -7910, -423, -6687, 1252}, // Colombia - mainland
    {34392, -8597, 798, -8253, 1122}, // Costa Rica - onshore
    {34772, 1343, 4234, 1943, 4654}, // Croatia - onshore
    {34970, 3220, 3459, 3465, 3574}, // Cyprus - onshore
    {38094, -6155, 1514, -6120, 1569}, // Dominica - onshore
    {44165, 2470, 2197, 3695, 3168}, // Egypt - onshore
    {44605, -9011, 1310, -8769, 1444}, // El Salvador - onshore
    {44780, 2174, 5752, 2820, 5975}, // Estonia - onshore
    {47788, -6155, -5251, -5760, -5096}, // Falkland Islands - onshore
    {47881, -749, 6133, -633, 6241}, // Faroe Islands - onshore
    {60048, 865, -398, 1452, 232}, // Gabon - onshore
    {60111, -1688, 1305, -1379, 1383}, // Gambia - onshore
    {61151, -325, 467, 123, 1116}, // Ghana - onshore
    {61534, 1957, 3488, 2830, 4175}, // Greece - onshore
    {62415, 14458, 1318, 14501, 1370}, // Guam - onshore
    {62580, -1513, 719, -765, 1268}, // Guinea - onshore
    {62599, -1677, 1087, -1364, 1269}, // Guinea-Bissau - onshore
    {67620, -2466, 6334, -1338, 6659}, // Iceland - mainland
    {78460, 12453, 3314, 13101, 3864}, // Korea, Republic of (South Korea) - onshore
    {79111, 4654, 2853, 4848, 3009}, // Kuwait - onshore
    {80910, 3504, 3306, 3663, 3465}, // Lebanon - onshore
    {80972, -1152, 429, -736, 852}, // Liberia - onshore
    {86211, 4318, -2564, 5056, -1189}, // Madagascar - onshore
    {87188, 7281, -69, 7369, 708}, // Maldives - onshore
    {87993, -6129, 1435, -6076, 1493}, // Martinique - onshore
    {88390, -1708, 1472, -480, 2730}, // Mauritania - onshore
    {91768, -6229, 1662, -6208, 1687}, // Montserrat - onshore
    {92129, 3021, -2687, 4090, -1042}, // Mozambique - onshore
    {131370, 16587, -4765, 17927, -3389}, // New Zealand - onshore and nearshore
    {137762, 5199, 1659, 5991, 2658}, // Oman - onshore
    {142136, -8304, 715, -7719, 968}, // Panama - onshore
    {144150, 1414, 4900, 2415, 5489}, // Poland - onshore
    {145275, -6797, 1787, -6519, 1857}, // Puerto Rico - onshore
    {166715, 2026, 4362, 2974, 4827}, // Romania - onshore
    {181828, -6292, 1706, -6250, 1746}, // St Kitts and Nevis - onshore
    {181843, -6113, 1366, -6082, 1416}, // St Lucia - onshore
    {181886, -5648, 4669, -5607, 4719}, // St Pierre and Miquelon - onshore
    {181904, -6152, 1254, -6107, 1344}, // St Vincent and the Grenadines - onshore
    {177211, 3451, 1637, 5567, 3216}, // Saudi Arabia - onshore
    {178124, -1335, 688, -1026, 1000}, // Sierra Leone - onshore
    {179083, 4098, -171, 5147, 1203}, // Somalia - onshore
    {181733, 7964, 586, 8195, 988}, // Sri Lanka - onshore
    {182963, -5808, 183, -5395, 606}, // Suriname - onshore
    {183220, 1093, 5528, 2417, 6907}, // Sweden - onshore
    {184912, 11925, 2187, 12206, 2534}, // Taiwan - onshore - mainland and Penghu
    {198168, -5849, -3500, -5309, -3009}, // Uruguay - onshore
    {199304, -7338, 64, -5980, 1225}, // Venezuela - onshore
    {199934, 10214, 833, 10953, 2340}, // Vietnam - onshore
    {200385, -6488, 1828, -6425, 1878}, // Virgin Islands, British - onshore
    {200401, -6509, 1762, -6451, 1844}, // Virgin Islands, US - onshore
    {48942, 1924, 5975, 3159, 7009}, // Finland - onshore
    {166312, 5516, -2142, 5591, -2081}, // Reunion - onshore
    {61055, 586, 4727, 1504, 5509}, // Germany - onshore
    {88541, 4498, -1305, 4535, -1261}, // Mayotte - onshore
    {68424, 6813, 802, 9742, 3551}, // India - mainland
    {73459, -7843, 1764, -7617, 1858}, // Jamaica - onshore
    {71738, 593, 3476, 1899, 4710}, // Italy - including San Marino and Vatican
    {131121, 16637, -4733, 17446, -4044}, // New Zealand - South and Stewart Islands
    {23375, -5816, -3191, -5400, -1799}, // Brazil - west of 54°W and south of 18°S
    {180495, -6257, -3191, -4710, -1537}, // South America - Brazil - south of 18°S and west of 54°W + DF; N Paraguay
    {62020, -7329, 5974, -4252, 7900}, // Greenland - west coast
    {62032, -5370, 6300, -4917, 6600}, // Greenland - west coast - 63°N to 66°N
    {62054, -5409, 6600, -4940, 6900}, // Greenland - west coast - 66°N to 69°N
    {62076, -5606, 6900, -4911, 7200}, // Greenland - west coast - 69°N to 72°N
    {62098, -5821, 7200, -5202, 7500}, // Greenland - west coast - 72°N to 75°N
    {62120, -7279, 7500, -5631, 7800}, // Greenland - west coast - 75°N to 78°N
    {62142, -7329, 7800, -6524, 7900}, // Greenland - west coast - 78°N to 79°N
    {61904, -2699, 6866, -2514, 6900}, // Greenland - east coast - 68°N to 69°N
    {61926, -2969, 6900, -2132, 7200}, // Greenland - east coast - 69°N to 72°N
    {195205, 16765, 4901, 17401, 5628}, // USA - west of 174°E - AK, OCS
    {189893, 17400, 4792, 18000, 5667}, // USA - 174°E to 180°E - AK, OCS
    {189924, -18000, 4788, -17399, 6321}, // USA - 180°W to 174°W - AK, OCS
    {189908, -17400, 4866, -16799, 7305}, // USA - 174°W to 168°W - AK, OCS
    {86900, 10244, 121, 10460, 295}, // Malaysia - West Malaysia - Johor
    {87046, 10170, 203, 10271, 328}, // Malaysia - West Malaysia - Sembilan and Melaka
    {86963, 10133, 245, 10367, 478}, // Malaysia - West Malaysia - Pahang
    {87026, 10076, 254, 10197, 387}, // Malaysia - West Malaysia - Selangor
    {87073, 10238, 389, 10372, 590}, // Malaysia - West Malaysia - Terengganu
    {87001, 10012, 512, 10056, 559}, // Malaysia - West Malaysia - Pulau Pinang
    {86919, 9959, 508, 10112, 672}, // Malaysia - West Malaysia - Kedah and Perlis
    {86982, 10007, 366, 10200, 592}, // Malaysia - West Malaysia - Perak
    {86943, 10133, 454, 10267, 629}, // Malaysia - West Malaysia - Kelantan
    {48930, 3150, 6283, 3159, 6300}, // Finland - east of 31.5°E
    {14531, 4200, 2853, 4800, 3739}, // Asia - Middle East - Iraq and Kuwait 42°E to 48°E
    {71210, 3879, 3114, 4200, 3675}, // Iraq - west of 42°E
    {71170, 4200, 2906, 4800, 3739}, // Iraq - 42°E to 48°E
    {71192, 4800, 2987, 4861, 3100}, // Iraq - east of 48°E onshore
    {217969, -18000, -8000, 18000, 8400}, // World - between 80°S and 84°N
    {60893, 992, 5035, 1050, 5156}, // Germany - Thuringen - west of 10.5°E
    {60873, 1050, 5020, 1256, 5164}, // Germany - Thuringen - east of 10.5°E
    {60820, 1350, 5062, 1504, 5158}, // Germany - Saxony - east of 13.5°E
    {60840, 1189, 5020, 1351, 5166}, // Germany - Saxony - west of 13.5°E
    {48248, 17681, -1922, -17977, -1610}, // Fiji - main islands
    {48282, 17681, -1922, 18000, -1610}, // Fiji - main islands - west of 180°
    {48261, -18000, -1704, -17977, -1610}, // Fiji - main islands - east of 180°
    {48211, 17842, -1707, -17977, -1610}, // Fiji - Vanua Levu and Taveuni
    {168056, 1920, 5432, 1950, 5530}, // Russia - west of 19.5°E
    {132537, -12000, 3088, -11400, 8350}, // North America - 120°W to 114°W and NAD83 by country
    {132500, -11400, 3133, -10800, 8400}, // North America - 114°W to 108°W and NAD83 by country
    {132465, -10800, 2898, -10200, 8400}, // North America - 108°W to 102°W and NAD83 by country
    {132430, -10200, 2583, -9600, 8400}, // North America - 102°W to 96°W and NAD83 by country
    {183188, 1775, 5922, 1820, 5943}, // Sweden - Stockholm
    {27779, -14101, 5205, -13800, 7253}, // Canada - 144°W to 138°W
    {27766, -13800, 4806, -13200, 7942}, // Canada - 138°W to 132°W
    {27753, -13200, 4652, -12600, 8093}, // Canada - 132°W to 126°W
    {27741, -12600, 4813, -12000, 8180}, // Canada - 126°W to 120°W
    {27640, -10200, 4899, -9600, 8400}, // Canada - 102°W to 96°W
    {27934, -9600, 4803, -9000, 8400}, // Canada - 96°W to 90°W
    {27923, -9000, 4611, -8400, 8400}, // Canada - 90°W to 84°W
    {27912, -8400, 4167, -7800, 8400}, // Canada - 84°W to 78°W
    {27901, -7800, 4363, -7200, 8400}, // Canada - 78°W to 72°W
    {80772, -12219, -5987, -2528, 3272}, // Latin America - SIRGAS 2000 by country
    {132767, -7200, 1492, -6600, 8400}, // North America - 72°W to 66°W and NAD83 by country
    {132732, -6600, 1563, -6000, 8400}, // North America - 66°W to 60°W and NAD83 by country
    {80652, -8400, 0, -7800, 1954}, // Latin America - 84°W to 78°West; N hemisphere and SIRGAS by country
    {80621, -7800, 0, -7200, 1504}, // Latin America - 78°W to 72°West; N hemisphere and SIRGAS by country
    {88965, -12219, 1501, -11400, 3272}, // Mexico - west of 114°W
    {88926, -11400, 1509, -10800, 3227}, // Mexico - 114°W to 108°W
    {88913, -10800, 1405, -10200, 3179}, // Mexico - 108°W to 102°W
    {88900, -10200, 1230, -9600, 2981}, // Mexico - 102°W to 96°W
    {80715, -9600, 0, -9000, 2600}, // Latin America - 96°W to 90°W; N hemisphere and SIRGAS 2000 by country
    {80683, -9000, 0, -8399, 2577}, // Latin America - 90°W to 84°W; N hemisphere and SIRGAS 2000 by country
    {130057, 16354, -2273, 16819, -1950}, // New Caledonia - Belep, Grande Terre, Ile des Pins, Loyalty Islands
    {130226, 15625, -2603, 16201, -1534}, // New Caledonia - west of 162°E
    {130032, 16200, -2645, 16800, -1483}, // New Caledonia - 162°E to 168°E
    {130212, 16800, -2595, 17428, -1975}, // New Caledonia - east of 168°E
    {130183, 16775, -2171, 16800, -2132}, // New Caledonia - Mare - west of 168°E
    {130166, 16800, -2171, 16819, -2135}, // New Caledonia - Mare - east of 168°E
    {180040, -7200, 0, -6600, 1564}, // South America - 72°W to 66°W, N hemisphere and SIRGAS 2000 by country
    {179906, -6600, 64, -5999, 1675}, // South America - 66°W to 60°W, N hemisphere and SIRGAS 2000 by country
    {179749, -6000, 118, -5400, 1219}, // South America - 60°W to 54°W, N hemisphere and SIRGAS 2000 by country
    {179592, -5400, 0, -4799, 924}, // South America - 54°W to 48°W, N hemisphere and SIRGAS 2000 by country
    {180305, -7800, -5936, -7199, 0}, // South America - 78°W to 72°W, S hemisphere and SIRGAS 2000 by country
    {180124, -7200, -5987, -6600, 215}, // South America - 72°W to 66°W, S hemisphere and SIRGAS 2000 by country
    {179973, -6600, -5839, -6000, 528}, // South America - 66°W to 60°W, S hemisphere and SIRGAS 2000 by country
    {179816, -6000, -4482, -5400, 451}, // South America - 60°W to 54°W, S hemisphere and SIRGAS 2000 by country
    {179659, -5400, -5418, -4799, 704}, // South America - 54°W to 48°W, S hemisphere and SIRGAS 2000 by country
    {23031, -4800, -3350, -4200, 513}, // Brazil - 48°W to 42°W
    {22944, -4200, -2635, -3600, 74}, // Brazil - 42°W to 36°W
    {22917, -3600, -2380, -2999, 419}, // Brazil - 36°W to 30°W
    {180561, -11321, -5987, -2600, 1675}, // South America - SIRGAS 1995 by country
    {62164, -7500, 7452, -7200, 7904}, // Greenland - west of 72°W
    {61797, -7200, 7324, -6600, 8090}, // Greenland - 72°W to 66°W
    {61785, -6600, 6892, -6000, 8222}, // Greenland - 66°W to 60°W
    {61773, -6000, 5891, -5400, 8400}, // Greenland - 60°W to 54°W
    {61761, -5400, 5690, -4800, 8400}, // Greenland - 54°W to 48°W
    {61749, -4800, 5638, -4200, 8400}, // Greenland - 48°W to 42°W
    {61737, -4200, 5656, -3600, 8400}, // Greenland - 42°W to 36°W
    {61726, -3600, 6016, -3000, 8400}, // Greenland - 36°W to 30°W
    {61715, -3000, 6496, -2400, 8400}, // Greenland - 30°W to 24°W
    {61703, -2400, 6770, -1800, 8400}, // Greenland - 24°W to 18°W
    {61691, -1800, 6867, -1200, 8400}, // Greenland - 18°W to 12°W
    {61680, -1200, 7243, -600, 8400}, // Greenland - 12°W to 6°W
    {215102, -18000, -8600, 18000, 8600}, // World - 86°S to 86°N
    {215429, 1200, 0, 1800, 8400}, // World - N hemisphere - 12°E to 18°E - by country and WGS 72BE
    {215918, 1800, 0, 2400, 8400}, // World - N hemisphere - 18°E to 24°E - by country and WGS 72BE
    {132943, -9317, 4099, -7447, 5074}, // North America - Great Lakes basin
    {132961, -9317, 4099, -5475, 5222}, // North America - Great Lakes basin and St Lawrence Seaway
    {30780, 11013, 1831, 11676, 2289}, // China - offshore - Pearl River basin
    {218006, -18000, -9000, 18000, 0}, // World - south of 0°N
    {217987, -18000, 0, 18000, 9000}, // World - north of 0°N
    {73465, -8060, 1416, -7799, 1936}, // Jamaica - west of 78°W
    {73448, -7800, 1408, -7451, 1920}, // Jamaica - east of 78°W
    {217996, -18000, 4500, 18000, 9000}, // World - north of 45°N
    {28178, -13646, 5998, -10200, 7881}, // Canada - NWT
    {189862, -16030, 1951, -15599, 2229}, // USA - 162°W to 156°W onshore - HI
    {189830, -16200, 1557, -15599, 7471}, // USA - 162°W to 156°W - AK, HI
    {189815, -15600, 1887, -15474, 2086}, // USA - 156°W to 150°W onshore - HI
    {189783, -15600, 1556, -14999, 7471}, // USA - 156°W to 150°W - AK, HI
    {189757, -14400, 5347, -13799, 7359}, // USA - 144°W to 138°W
    {189747, -13800, 5360, -13199, 7304}, // USA - 138°W to 132°W
    {189737, -13200, 3538, -12600, 5684}, // USA - 132°W to 126°W
    {189717, -12600, 3054, -11999, 4909}, // USA - 126°W to 120°W
    {189699, -12000, 3088, -11400, 4901}, // USA - 120°W to 114°W
    {189691, -11400, 3133, -10800, 4901}, // USA - 114°W to 108°W
    {189683, -10800, 2898, -10200, 4901}, // USA - 108°W to 102°W
    {189649, -10200, 2583, -9600, 4901}, // USA - 102°W to 96°W
    {190044, -9601, 2561, -9000, 4938}, // USA - 96°W to 90°W
    {190010, -9000, 2397, -8400, 4832}, // USA - 90°W to 84°W
    {189976, -8400, 2381, -7800, 4613}, // USA - 84°W to 78°W
    {189958, -7800, 2828, -7200, 4503}, // USA - 78°W to 72°W
    {189940, -7200, 3361, -6599, 4747}, // USA - 72°W to 66°W
    {131327, 15500, -6000, -16999, -2500}, // New Zealand - offshore Pacific Ocean, Southern Ocean
    {69653, 9600, -181, 9900, 542}, // Indonesia - 96°E to 99°E onshore
    {69665, 9900, -357, 10200, 371}, // Indonesia - 99°E to 102°E onshore
    {69084, 10200, -599, 10500, 168}, // Indonesia - 102°E to 105°E onshore
    {69158, 10500, -779, 10800, 411}, // Indonesia - 105°E to 108°E onshore
    {69170, 10800, -831, 11100, 425}, // Indonesia - 108°E to 111°E onshore
    {69244, 11100, -867, 11400, 159}, // Indonesia - 111°E to 114°E onshore
    {69256, 11400, -915, 11701, 437}, // Indonesia - 114°E to 117°E onshore
    {69326, 11700, -1015, 12000, 436}, // Indonesia - 117°E to 120°E onshore
    {69337, 12000, -1098, 12300, 140}, // Indonesia - 120°E to 123°E onshore
    {69411, 12300, -1092, 12600, 384}, // Indonesia - 123°E to 126°E onshore
    {69424, 12600, -832, 12900, 459}, // Indonesia - 126°E to 129°E onshore
    {69503, 12900, -841, 13200, 10}, // Indonesia - 129°E to 132°E onshore
    {69516, 13200, -730, 13500, -29}, // Indonesia - 132°E to 135°E onshore
    {69578, 13500, -849, 13800, -58}, // Indonesia - 135°E to 138°E onshore
    {27871, -7200, 4080, -6600, 8400}, // Canada - 72°W to 66°W
    {27841, -6600, 4004, -6000, 8400}, // Canada - 66°W to 60°W
    {27651, -10800, 4899, -10200, 8400}, // Canada - 108°W to 102°W
    {27681, -11400, 4899, -10800, 8400}, // Canada - 114°W to 108°W
    {27711, -12000, 4899, -11400, 8350}, // Canada - 120°W to 114°W
    {180871, -3808, -5495, -3574, -5393}, // South Georgia - onshore
    {187744, 5484, 2485, 5555, 2534}, // UAE - Dubai municipality
    {34760, 1800, 4162, 1943, 4592}, // Croatia - east of 18°E
    {34779, 1300, 4163, 1800, 4654}, // Croatia - west of 18°E
    {28012, -12000, 5288, -11850, 6000}, // Canada - Alberta - west of 118.5°W
    {27975, -11850, 5077, -11550, 6000}, // Canada - Alberta - 118.5°W to 115.5°W
    {27956, -11550, 4899, -11250, 6000}, // Canada - Alberta - 115.5°W to 112.5°W
    {27994, -11250, 4899, -10998, 6000}, // Canada - Alberta - east of 112.5°W
    {215091, -18000, -8506, 18000, 8506}, // World - 85°S to 85°N
    {50225, -106, 4131, 963, 4307}, // France - mainland south of 43°N and Corsica
    {50250, -179, 4233, 765, 4401}, // France - mainland south of 44°N
    {49986, -179, 4292, 771, 4500}, // France - mainland - 43°N to 45°N
    {50006, -146, 4400, 771, 4600}, // France - mainland - 44°N to 46°N
    {50026, -221, 4500, 716, 4700}, // France - mainland - 45°N to 47°N
    {50046, -477, 4600, 763, 4800}, // France - mainland - 46°N to 48°N
    {50066, -487, 4700, 823, 4900}, // France - mainland - 47°N to 49°N
    {50086, -487, 4800, 823, 5000}, // France - mainland - 48°N to 50°N
    {50194, -203, 4900, 808, 5114}, // France - mainland north of 49°N
    {130729, 16555, -5113, 16693, -4780}, // New Zealand - Snares and Auckland Islands
    {130460, 16865, -5283, 16960, -5226}, // New Zealand - Campbell Island
    {130437, 17840, -4992, 17937, -4754}, // New Zealand - Antipodes and Bounty Islands
    {130706, -17907, -3156, -17762, -2903}, // New Zealand - Raoul and Kermadec Islands
    {9857, 14499, -9000, -14499, -5999}, // Antarctica - Ross Sea Region
    {184872, 11999, 2041, 12206, 2672}, // Taiwan - 120°E to 122°E
    {184860, 11800, 1863, 12000, 2465}, // Taiwan - 118°E to 120°E
    {46611, 992, 3963, 3141, 5489}, // Europe - onshore - eastern - S-42(58)
    {60775, 992, 5020, 1200, 5423}, // Germany - East Germany - west of 12°E
    {45046, 1200, 4578, 1801, 5474}, // Europe - 12°E to 18°E onshore and S-42(83) by country
    {45254, 1800, 3964, 2400, 5489}, // Europe - 18°E to 24°E onshore and S-42(58) by country
    {45280, 1800, 4574, 2290, 5006}, // Europe - 18°E to 24°E onshore and S-42(83) by country
    {45491, 2400, 4124, 2974, 5093}, // Europe - 24°E to 30°E onshore and S-42(58) by country
    {45109, 1350, 4654, 1650, 5472}, // Europe - 13.5°E to 16.5°E onshore and S-42(58) by country
    {45162, 1650, 4014, 1950, 5489}, // Europe - 16.5°E to 19.5°E onshore and S-42(58) by country
    {45189, 1650, 4574, 1950, 5045}, // Europe - 16.5°E to 19.5°E onshore and S-42(83) by country
    {45346, 1950, 3964, 2250, 5451}, // Europe - 19.5°E to 22.5°E onshore and S-42(58) by country
    {45373, 1950, 4610, 2250, 4959}, // Europe - 19.5°E to 22.5°E onshore and S-42(83) by country
    {45399, 2250, 4124, 2550, 5441}, // Europe - 22.5°E to 25.5°E onshore and S-42(58) by country
    {45427, 2250, 4776, 2290, 4910}, // Europe - 22.5°E to 25.5°E onshore and S-42(83) by country
    {45528, 2550, 4128, 2850, 4827}, // Europe - 25.5°E to 28.5°E onshore and S-42(58) by country
    {45556, 2850, 4334, 2974, 4544}, // Europe - 28.5°E to 31.5°E onshore and S-42(58) by country
    {184885, 11925, 2313, 11978, 2382}, // Taiwan - onshore - Penghu
    {9764, 14500, -8100, 16900, -7600}, // Antarctica - Darwin Glacier region
    {131231, 16060, -5595, -17120, -2588}, // New Zealand - offshore
    {48960, 1924, 6008, 1950, 6034}, // Finland - west of 19.5°E onshore nominal
    {48508, 1950, 5992, 2050, 6048}, // Finland - 19.5°E to 20.5°E onshore nominal
    {48552, 2050, 5984, 2150, 6933}, // Finland - 20.5°E to 21.5°E onshore nominal
    {48585, 2150, 5976, 2250, 6931}, // Finland - 21.5°E to 22.5°E onshore nominal
    {48619, 2250, 5975, 2350, 6874}, // Finland - 22.5°E to 23.5°E onshore nominal
    {48667, 2350, 5986, 2450, 6884}, // Finland - 23.5°E to 24.5°E onshore nominal
    {48701, 2450, 5994, 2550, 6890}, // Finland - 24.5°E to 25.5°E onshore nominal
    {48735, 2550, 6018, 2650, 6994}, // Finland - 25.5°E to 26.5°E onshore nominal
    {48782, 2650, 6036, 2750, 7005}, // Finland - 26.5°E to 27.5°E onshore nominal
    {48814, 2750, 6042, 2850, 7009}, // Finland - 27.5°E to 28.5°E onshore nominal
    {48846, 2850, 6094, 2950, 6981}, // Finland - 28.5°E to 29.5°E nominal
    {48888, 2950, 6143, 3050, 6798}, // Finland - 29.5°E to 30.5°E nominal
    {48915, 3050, 6208, 3159, 6427}, // Finland - east of 30.5°E nominal
    {183202, 1725, 5869, 1961, 6027}, // Sweden - Stockholm county
    {33486, 2174, -1172, 2551, -632}, // Congo DR (Zaire) - Katanga west of 25.5°E
    {33407, 2450, -1208, 2750, -499}, // Congo DR (Zaire) - Katanga 24.5°E to 27.5°E
    {33433, 2650, -1344, 2950, -499}, // Congo DR (Zaire) - Katanga 26.5°E to 29.5°E
    {33460, 2850, -1346, 3078, -499}, // Congo DR (Zaire) - Katanga east of 28.5°E
    {33512, 1179, -1346, 2981, -341}, // Congo DR (Zaire) - south
    {90916, 2663, 4544, 3000, 4847}, // Moldova - west of 30°E
    {90904, 3000, 4637, 3013, 4647}, // Moldova - east of 30°E
    {33550, 1500, -731, 1700, -341}, // Congo DR (Zaire) - south and 15°E to 17°E
    {33572, 1700, -811, 1900, -343}, // Congo DR (Zaire) - south and 17°E and 19°E
    {23286, -4810, -1594, -4710, -1537}, // Brazil - Distrito Federal
    {33618, 1900, -800, 2100, -377}, // Congo DR (Zaire) - south and 19°E to 21°E
    {33640, 2100, -1124, 2301, -418}, // Congo DR (Zaire) - south and 21°E to 23°E
    {33663, 2300, -1147, 2500, -458}, // Congo DR (Zaire) - south and 23°E to 25°E
    {33708, 2500, -1199, 2700, -499}, // Congo DR (Zaire) - south and 25°E to 27°E
    {33730, 2700, -1339, 2900, -643}, // Congo DR (Zaire) - south and 27°E to 29°E
    {71204, 3879, 2906, 4861, 3739}, // Iraq - onshore
    {33528, 1200, -811, 1801, -341}, // Congo DR (Zaire) - south and 12°E to 18°E
    {33595, 1800, -1124, 2400, -357}, // Congo DR (Zaire) - south and 18°E to 24°E
    {33686, 2400, -1346, 2981, -479}, // Congo DR (Zaire) - south and 24°E to 30°E
    {181547, -2193, 2460, -1800, 3119}, // Spain - Canary Islands - west of 18°W
    {181528, -1800, 2525, -1175, 3276}, // Spain - Canary Islands - east of 18°W
    {37905, 800, 5480, 1000, 5764}, // Denmark - onshore Jutland west of 10°E
    {37880, 900, 5467, 1129, 5780}, // Denmark - onshore Jutland east of 9°E and Funen
    {88939, -9600, 1210, -9000, 2600}, // Mexico - 96°W to 90°W
    {29399, -6797, 1762, -6451, 1857}, // Caribbean - Puerto Rico and US Virgin Islands - onshore
    {88952, -9000, 1781, -8464, 2577}, // Mexico - east of 90°W
    {134166, 468, 5832, 600, 6249}, // Norway - onshore - west of 6°E
    {189657, -10200, 2583, -9587, 4901}, // USA - 102°W to 96°W and GoM OCS
    {180468, -8400, -5645, -7521, 145}, // South America - 84°W to 78°W, S hemisphere and SIRGAS95 by country
    {134105, 600, 5793, 700, 6302}, // Norway - onshore - 6°E to 7°E
    {190052, -9601, 2561, -8986, 4938}, // USA - 96°W to 90°W and GoM OCS
    {190018, -9001, 2395, -8391, 4832}, // USA - 90°W to 84°W and GoM OCS
    {189984, -8409, 2381, -7799, 4613}, // USA - 84°W to 78°W and GoM OCS
    {176996, 641, -4, 682, 46}, // Sao Tome and Principe - onshore - Sao Tome
    {176972, 727, 148, 752, 176}, // Sao Tome and Principe - onshore - Principe
    {134117, 700, 5793, 800, 6352}, // Norway - onshore - 7°E to 8°E
    {134129, 800, 5803, 900, 6387}, // Norway - onshore - 8°E to 9°E
    {134141, 900, 5852, 1000, 6416}, // Norway - onshore - 9°E to 10°E
    {133842, 1000, 5890, 1100, 6504}, // Norway - onshore - 10°E to 11°E
    {133854, 1100, 5888, 1200, 6576}, // Norway - onshore - 11°E to 12°E
    {192549, -9042, 4509, -8344, 4832}, // USA - Michigan - SPCS - W
    {133866, 1200, 5988, 1300, 6815}, // Norway - onshore - 12°E to 13°E
    {133879, 1300, 6401, 1400, 6837}, // Norway - onshore - 13°E to 14°E
    {133892, 1400, 6403, 1500, 6905}, // Norway - onshore - 14°E to 15°E
    {133905, 1500, 6614, 1600, 6935}, // Norway - onshore - 15°E to 16°E
    {133918, 1600, 6688, 1700, 6945}, // Norway - onshore - 16°E to 17°E
    {133931, 1700, 6794, 1800, 6968}, // Norway - onshore - 17°E to 18°E
    {133944, 1800, 6804, 1900, 7027}, // Norway - onshore - 18°E to 19°E
    {133957, 1900, 6833, 2000, 7034}, // Norway - onshore - 19°E to 20°E
    {133969, 2000, 6837, 2100, 7029}, // Norway - onshore - 20°E to 21°E
    {133982, 2100, 6903, 2200, 7071}, // Norway - onshore - 21°E to 22°E
    {133996, 2200, 6869, 2300, 7081}, // Norway - onshore - 22°E to 23°E
    {69832, 9516, -891, 11701, 597}, // Indonesia - Java, Java Sea and western Sumatra
    {134010, 2300, 6862, 2400, 7108}, // Norway - onshore - 23°E to 24°E
    {134024, 2400, 6858, 2500, 7116}, // Norway - onshore - 24°E to 25°E
    {134038, 2500, 6859, 2600, 7121}, // Norway - onshore - 25°E to 26°E
    {144719, -3558, 2924, -1248, 4307}, // Portugal - Azores and Madeira
    {134052, 2600, 6971, 2700, 7117}, // Norway - onshore - 26°E to 27°E
    {134065, 2700, 6990, 2800, 7117}, // Norway - onshore - 27°E to 28°E
    {134078, 2800, 6903, 2900, 7113}, // Norway - onshore - 28°E to 29°E
    {134092, 2900, 6902, 3000, 7093}, // Norway - onshore - 29°E to 30°E
    {134153, 3000, 6946, 3122, 7077}, // Norway - onshore - east of 30°E
    {144654, -3000, 3352, -2400, 4296}, // Portugal - Azores 30°W to 24°W
    {144738, -1800, 2924, -1248, 3646}, // Portugal - Madeira and EEZ E of 18°W
    {144636, -3558, 3525, -3000, 4307}, // Portugal - Azores - west of 30°W
    {32284, -7910, -423, -6687, 1368}, // Colombia - mainland and offshore Caribbean
    {15579, 12599, -3705, 13201, -937}, // Australia - SA and WA 126°E to 132°E
    {15541, 13200, -3614, 13800, -2599}, // Australia - SA 132°E to 138°E
    {15558, 13800, -3813, 14401, -986}, // Australia - SA and Qld 138°E to 144°E
    {15479, 14400, -2901, 15000, -1401}, // Australia - Qld 144°E to 150°E
    {15496, 15000, -2919, 15361, -2200}, // Australia - Qld east of 150°E
    {50308, -487, 4131, 963, 5114}, // France - onshore - mainland and Corsica
    {14422, 12427, 3399, 12600, 4090}, // Asia - Korea N and S - west of 126°E
    {14367, 12600, 3314, 12800, 4180}, // Asia - Korea N and S - 126°E to 128°E
    {78403, 13071, 3739, 13101, 3762}, // Korea, Republic of (South Korea) - 130°E to 132°E onshore
    {78310, 12609, 3314, 12701, 3361}, // Korea, Republic of (South Korea) - 126°E to 128°E Jeju
    {14386, 12800, 3449, 13000, 4301}, // Asia - Korea N and S - 128°E to 130°E
    {14404, 13000, 3739, 13101, 4298}, // Asia - Korea N and S - east of 130°E
    {78342, 12600, 3396, 12800, 3833}, // Korea, Republic of (South Korea) - 126°E to 128°E mainland
    {22761, -6000, -2017, -5752, -1627}, // Bolivia - east of 60°W
    {21768, 9046, 2733, 9102, 2809}, // Bhutan - Bumthang district
    {185950, 10200, 602, 10564, 1844}, // Thailand - onshore east of 102°E
    {21788, 8926, 2671, 8983, 2732}, // Bhutan - Chhukha district
    {21808, 8963, 2670, 9008, 2729}, // Bhutan - Dagana district
    {21826, 8944, 2772, 9047, 2833}, // Bhutan - Gasa district
    {185928, 9734, 563, 10564, 2046}, // Thailand - onshore and Gulf of Thailand
    {21842, 8890, 2702, 8939, 2762}, // Bhutan - Ha district
    {21857, 9077, 2739, 9149, 2809}, // Bhutan - Lhuentse district
    {21877, 9095, 2693, 9150, 2761}, // Bhutan - Mongar district
    {21895, 8912, 2718, 8956, 2779}, // Bhutan - Paro district
    {21911, 9100, 2678, 9156, 2718}, // Bhutan - Pemagatshel district
    {80606, -12000, 1501, -11400, 3272}, // Latin America - 120°W to 114°W
    {21932, 8963, 2746, 9008, 2787}, // Bhutan - Punakha district
    {21952, 9139, 2679, 9213, 2725}, // Bhutan - Samdrup Jongkhar district
    {21979, 8874, 2680, 8938, 2728}, // Bhutan - Samtse district
    {21997, 9001, 2673, 9078, 2723}, // Bhutan - Sarpang district
    {22016, 8922, 2714, 8977, 2801}, // Bhutan - Thimphu district
    {22036, 9137, 2701, 9213, 2749}, // Bhutan - Trashigang district
    {22057, 9026, 2713, 9076, 2779}, // Bhutan - Trongsa district
    {80591, -11400, 1509, -10800, 3227}, // Latin America - 114°W to 108°W
    {22076, 9000, 2681, 9035, 2720}, // Bhutan - Tsirang district
    {22095, 8971, 2711, 9054, 2808}, // Bhutan - Wangdue Phodrang district
    {80576, -10800, 1405, -10200, 3179}, // Latin America - 108°W to 102°W
    {22122, 9134, 2737, 9177, 2800}, // Bhutan - Yangtse district
    {22141, 9053, 2677, 9119, 2739}, // Bhutan - Zhemgang district
    {80561, -10201, 1230, -9600, 2981}, // Latin America - 102°W to 96°W
    {50604, -5445, 484, -5400, 569}, // French Guiana - coastal area west of 54°W
    {50579, -5400, 343, -5161, 581}, // French Guiana - coastal area east of 54°W
    {189317, -1056, 5139, -593, 5543}, // Ireland - onshore
    {130529, 17580, -4057, 17807, -3887}, // New Zealand - North Island - Hawkes Bay mc Napier vcrs
    {130686, 17452, -4150, 17536, -4091}, // New Zealand - North Island - Wellington mc
    {130646, 17501, -4167, 17655, -4029}, // New Zealand - North Island - Wairarapa mc
    {130666, 17440, -4097, 17627, -3946}, // New Zealand - North Island - Wanganui mc
    {130605, 17368, -3978, 17544, -3840}, // New Zealand - North Island - Taranaki mc
    {130625, 17488, -3955, 17633, -3887}, // New Zealand - North Island - Tuhirangi mc
    {130507, 17575, -3913, 17723, -3722}, // New Zealand - North Island - Bay of Plenty mc
    {130583, 17673, -3904, 17863, -3749}, // New Zealand - North Island - Poverty Bay mc
    {130562, 17199, -3901, 17612, -3410}, // New Zealand - North Island - Mount Eden mc
    {130788, 17216, -4122, 17313, -4044}, // New Zealand - South Island - Collingwood mc
    {130890, 17196, -4149, 17270, -4075}, // New Zealand - South Island - Karamea mc
    {131021, 17240, -4218, 17408, -4066}, // New Zealand - South Island - Nelson mc
    {130931, 17295, -4265, 17446, -4085}, // New Zealand - South Island - Marlborough mc
    {130769, 17127, -4219, 17241, -4142}, // New Zealand - South Island - Buller mc
    {130830, 17115, -4274, 17275, -4150}, // New Zealand - South Island - Grey mc
    {130751, 17188, -4295, 17355, -4209}, // New Zealand - South Island - Amuri mc
    {130846, 17039, -4323, 17189, -4241}, // New Zealand - South Island - Hokitika mc
    {130976, 17111, -4396, 17338, -4269}, // New Zealand - South Island - Mount Pleasant mc
    {131084, 16921, -4385, 17089, -4300}, // New Zealand - South Island - Okarito mc
    {130811, 17068, -4425, 17226, -4313}, // New Zealand - South Island - Gawler mc
    {131102, 16982, -4498, 17155, -4335}, // New Zealand - South Island - Timaru mc
    {130866, 16802, -4440, 17001, -4367}, // New Zealand - South Island - Jacksons Bay mc
    {130908, 16862, -4540, 17024, -4371}, // New Zealand - South Island - Lindis Peak mc
    {131058, 16977, -4582, 17124, -4461}, // New Zealand - South Island - Observation Point mc
    {130953, 16772, -4558, 16911, -4429}, // New Zealand - South Island - Mount Nicholas mc
    {131038, 16864, -4673, 17087, -4523}, // New Zealand - South Island - North Taieri mc
    {131000, 16637, -4633, 16821, -4453}, // New Zealand - South Island - Mount York mc
    {131140, 16729, -4733, 16897, -4533}, // New Zealand - South and Stewart Islands - Bluff mc
    {22928, -3600, -2011, -3000, 0}, // Brazil - 36°W to 30°W offshore
    {30269, -7200, -5987, -6600, -1750}, // Chile - 72°W to 66°W
    {132056, 600, 261, 782, 368}, // Nigeria - offshore deep water - east of 6°E
    {29345, -6366, 1408, -6000, 1831}, // Caribbean - French Antilles west of 60°W
    {198178, -5849, -3663, -5400, -3009}, // Uruguay - west of 54°W
    {22773, -6966, -2291, -6600, -977}, // Bolivia - west of 66°W
    {198153, -5400, -3777, -5001, -3190}, // Uruguay - east of 54°W
    {30280, -7800, -5936, -7199, -1835}, // Chile - 78°W to 72°W
    {180356, -8018, 0, -7800, 270}, // South America - 84°W to 78°W, N hemisphere and SAD69 by country
    {180445, -8141, -1053, -7800, 0}, // South America - 84°W to 78°W, S hemisphere and SAD69 by country
    {180208, -7800, 0, -7200, 1231}, // South America - 78°W to 72°W, N hemisphere and SAD69 by country
    {180254, -7800, -4500, -7199, 0}, // South America - 78°W to 72°W, S hemisphere and SAD69 by country
    {180068, -7200, 0, -6600, 1252}, // South America - 72°W to 66°W, N hemisphere onshore
    {180152, -7200, -4500, -6599, 215}, // South America - 72°W to 66°W, S hemisphere onshore
    {143148, -7200, -2044, -6867, -214}, // Peru - east of 72°W
    {143137, -8400, -1733, -7800, -311}, // Peru - 84°W to 78°W
    {143115, -7800, -2105, -7200, -3}, // Peru - 78°W to 72°W
    {179883, -6600, 64, -5999, 1123}, // South America - 66°W to 60°W, N hemisphere and SAD69 by country
    {179950, -6600, -4500, -5999, 528}, // South America - 66°W to 60°W, S hemisphere and SAD69 by country
    {179726, -6000, 118, -5400, 860}, // South America - 60°W to 54°W, N hemisphere and SAD69 by country
    {23302, -3000, -2386, -2528, 426}, // Brazil - east of 30°W
    {13057, -7359, -5493, -5365, -2178}, // Argentina - mainland onshore and offshore TdF
    {131935, -8774, 1280, -8308, 1503}, // Nicaragua - onshore north of 12°48'N
    {62000, -5072, 5974, -4252, 6300}, // Greenland - southwest coast south of 63°N
    {131957, -8763, 1070, -8342, 1280}, // Nicaragua - onshore south of 12°48'N
    {34400, -8650, 221, -8143, 1177}, // Costa Rica - onshore and offshore east of 86°30'W
    {189707, -12000, 3226, -11400, 4901}, // USA - 120°W to 114°W onshore
    {9799, 15300, -8100, 17300, -7600}, // Antarctica - McMurdo Sound region
    {9725, 15700, -7600, 17300, -7300}, // Antarctica - Borchgrevink Coast region
    {9818, 16000, -7300, 17200, -6950}, // Antarctica - Pennell Coast region
    {9834, 15000, -9000, -15000, -7600}, // Antarctica - Ross Ice Shelf Region
    {189726, -12479, 3385, -11999, 4905}, // USA - 126°W to 120°W onshore
    {199256, -6600, 64, -5895, 1675}, // Venezuela - east of 66°W
    {199150, -7200, 73, -6600, 1564}, // Venezuela - 72°W and 66°W
    {189673, -10200, 2583, -9599, 4901}, // USA - 102°W to 96°W onshore
    {190068, -9600, 2842, -8999, 4938}, // USA - 96°W to 90°W onshore
    {190034, -9000, 2885, -8399, 4832}, // USA - 90°W to 84°W onshore
    {190000, -8401, 2441, -7800, 4613}, // USA - 84°W to 78°W onshore
    {132575, -12600, 3054, -11999, 8180}, // North America - 126°W to 120°W and NAD83 by country
    {28074, -6600, 5158, -6300, 6052}, // Canada - Labrador - 66°W to 63°W
    {132615, -13200, 3538, -12600, 8093}, // North America - 132°W to 126°W and NAD83 by country
    {132656, -13800, 4806, -13200, 7942}, // North America - 138°W to 132°W and NAD83 by country
    {189966, -7800, 3384, -7200, 4503}, // USA - 78°W to 72°W onshore
    {34425, -8597, 953, -8253, 1122}, // Costa Rica - onshore north of 9°32'N
    {34445, -8574, 798, -8253, 994}, // Costa Rica - onshore south of 9°56'N
    {189948, -7200, 4096, -6691, 4747}, // USA - 72°W to 66°W onshore
    {132695, -14400, 5205, -13799, 7359}, // North America - 144°W to 138°W and NAD83 by country
    {181566, -1822, 2758, -1337, 2947}, // Spain - Canary Islands onshore
    {23244, -5816, -2750, -3882, -1499}, // Brazil - Corrego Alegre 1961
    {28056, -6300, 5200, -6000, 5892}, // Canada - Labrador - 63°W to 60°W
    {29860, -9229, 798, -8253, 1783}, // Central America - Guatemala to Costa Rica
    {22994, -4200, -2296, -3882, -1499}, // Brazil - 42°W to 36°W and south of 15°S onshore
    {23143, -5401, -3571, -4799, 704}, // Brazil - 54°W to 48°W and SAD69
    {28092, -6781, 5205, -6600, 5534}, // Canada - Labrador - west of 66°W
    {23182, -6000, -3191, -5399, 451}, // Brazil - 60°W to 54°W
    {142373, 13920, -1115, 14400, 231}, // Papua New Guinea - west of 144°E
    {142293, 14400, -1388, 15001, 258}, // Papua New Guinea - 144°E to 150°E
    {142313, 15000, -1475, 15600, 198}, // Papua New Guinea - 150°E to 156°E
    {46303, 1066, 5433, 1201, 5483}, // Europe - Fehmarnbelt outer
    {27825, -6000, 4057, -5400, 6893}, // Canada - 60°W to 54°W and NAD27
    {61033, 334, 5524, 450, 5592}, // Germany - offshore North Sea west of 4.5°E
    {196160, 2215, 4795, 2400, 5166}, // Ukraine - west of 24°E
    {23327, -5164, -574, -3243, 704}, // Brazil - equatorial margin
    {50289, 304, 4115, 1038, 4374}, // France - offshore Mediterranean
    {195483, 2400, 4510, 3000, 5196}, // Ukraine - 24°E to 30°E
    {46424, -167, 5050, 2200, 5600}, // Europe - South Permian basin
    {46633, 992, 4124, 2868, 5474}, // Europe - onshore - eastern - S-42(83)
    {166355, 5183, -2472, 5824, -1828}, // Reunion
    {195547, 3000, 4318, 3600, 5238}, // Ukraine - 30°E to 36°E
    {196110, 3600, 4343, 4018, 5044}, // Ukraine - east of 36°E
    {196147, 2215, 4824, 2250, 4898}, // Ukraine - west of 22.5°E
    {195469, 2250, 4771, 2550, 5196}, // Ukraine - 22.5°E to 25.5°E
    {195494, 2550, 4526, 2850, 5194}, // Ukraine - 25.5°E to 28.5°E
    {195520, 2850, 4342, 3150, 5212}, // Ukraine - 28.5°E to 31.5°E
    {195558, 3150, 4318, 3450, 5238}, // Ukraine - 31.5°E to 34.5°E
    {166299, 5400, -2472, 5824, -1828}, // Reunion - east of 54°E
    {195585, 3450, 4324, 3750, 5125}, // Ukraine - 34.5°E to 37.5°E
    {196122, 3750, 4677, 4018, 5039}, // Ukraine - east of 37.5°E
    {166320, 5183, -2437, 5400, -1852}, // Reunion - west of 54°E
    {92214, 3021, -2758, 3600, -1141}, // Mozambique - west of 36°E
    {92099, 3600, -2771, 4200, -1009}, // Mozambique - 36°E to 42°E
    {51194, 3798, -2570, 4182, -2091}, // French Southern Territories - Europa
    {32974, 1179, -604, 1300, -467}, // Congo DR (Zaire) - 11°E to 13°E
    {88337, -1800, 1472, -1200, 2346}, // Mauritania - 18°W to 12°W
    {81136, 2400, 1999, 2621, 3360}, // Libya - east of 24°E
    {18208, 5039, 2553, 5085, 2634}, // Bahrain - onshore
    {30333, 10200, 1775, 10800, 4247}, // China - 102°E to 108°E
    {30383, 10800, 1670, 11400, 4511}, // China - 108°E to 114°E
    {30434, 11400, 1902, 12000, 5152}, // China - 114°E to 120°E
    {30483, 12000, 2464, 12600, 5356}, // China - 120°E to 126°E
    {30535, 12600, 2970, 13200, 5279}, // China - 126°E to 132°E
    {81172, 931, 2351, 1200, 3392}, // Libya - west of 12°E
    {81027, 1200, 2251, 1800, 3523}, // Libya - 12°E to 18°E
    {81086, 1799, 1950, 2401, 3503}, // Libya - 18°E to 24°E
    {6099, -600, 2182, 0, 3701}, // Algeria - 6°W to 0°W
    {6051, 0, 1897, 601, 3877}, // Algeria - 0°E to 6°E
    {6109, 600, 1960, 1199, 3880}, // Algeria - east of 6°E
    {86884, 9802, 113, 10582, 781}, // Malaysia - West Malaysia
    {71181, 4800, 2960, 4875, 3100}, // Iraq - east of 48°E
    {143448, 11689, 775, 11800, 932}, // Philippines - zone I onshore
    {73635, 12238, 2110, 12600, 2971}, // Japan - 120°E to 126°E
    {73660, 12600, 2112, 13200, 3863}, // Japan - 126°E to 132°E
    {73687, 13200, 1709, 13800, 4355}, // Japan - 132°E to 138°E
    {73714, 13800, 1763, 14400, 4605}, // Japan - 138°E to 144°E
    {73741, 14400, 2303, 14786, 4565}, // Japan - 144°E to 150°E
    {143475, 11800, 882, 12007, 1158}, // Philippines - zone II onshore
    {143504, 11970, 499, 12221, 1945}, // Philippines - zone III onshore
    {143533, 12174, 635, 12429, 1858}, // Philippines - zone IV onshore
    {143560, 12373, 550, 12665, 1415}, // Philippines - zone V onshore
    {143425, 11689, 499, 12665, 1945}, // Philippines - onshore
    {131210, 16587, -4765, 16800, -4259}, // New Zealand - nearshore west of 168°E
    {131168, 16800, -4764, 17400, -3389}, // New Zealand - nearshore 168°E to 174°E
    {131189, 17400, -4413, 17927, -3424}, // New Zealand - nearshore east of 174°E
    {131361, 16637, -4733, 17863, -3410}, // New Zealand - onshore
    {69973, 13800, -919, 14101, -149}, // Indonesia - east of 138°E onshore
    {70008, 9516, 255, 9600, 597}, // Indonesia - west of 96°E onshore
    {86845, 10931, 85, 11961, 767}, // Malaysia - East Malaysia
    {69606, 9600, 0, 10200, 542}, // Indonesia - 96°E to 102°E, N hemisphere onshore
    {69111, 10200, 0, 10800, 411}, // Indonesia - 102°E to 108°E, N hemisphere onshore
    {69197, 10800, 0, 11400, 425}, // Indonesia - 108°E to 114°E, N hemisphere onshore
    {69282, 11400, 0, 12000, 437}, // Indonesia - 114°E to 120°E, N hemisphere onshore
    {184899, 11999, 2187, 12206, 2534}, // Taiwan - onshore - mainland
    {69364, 12000, 0, 12571, 384}, // Indonesia - 120°E to 126°E, N hemisphere onshore
    {69453, 12655, 0, 13100, 459}, // Indonesia - 126°E to 132°E, N hemisphere onshore
    {69637, 9824, -357, 10200, 0}, // Indonesia - 96°E to 102°E, S hemisphere onshore
    {69142, 10200, -779, 10800, 0}, // Indonesia - 102°E to 108°E, S hemisphere onshore
    {69228, 10800, -867, 11400, 0}, // Indonesia - 108°E to 114°E, S hemisphere onshore
    {69311, 11400, -1015, 12000, 0}, // Indonesia - 114°E to 120°E, S hemisphere onshore
    {69395, 12000, -1098, 12600, 0}, // Indonesia - 120°E to 126°E, S hemisphere onshore
    {69486, 12600, -841, 13200, 0}, // Indonesia - 126°E to 132°E, S hemisphere onshore
    {69561, 13200, -849, 13800, -29}, // Indonesia - 132°E to 138°E, S hemisphere onshore
    {131306, -18000, -5297, -17400, -2588}, // New Zealand - offshore 180°W to 174°W
    {61079, 750, 4727, 1051, 5509}, // Germany - onshore 7.5°E to 10.5°E
    {61063, 1050, 4739, 1351, 5474}, // Germany - onshore 10.5°E to 13.5°E
    {61095, 1350, 4851, 1504, 5472}, // Germany - onshore east of 13.5°E
    {220649, 5400, 895, 5796, 1495}, // Yemen - east of 54°E
    {69911, 10879, 6, 10978, 213}, // Indonesia - Kalimantan W - coastal
    {220660, 4108, 1473, 4200, 1636}, // Yemen - west of 42°E
    {13782, 10214, 799, 11000, 2340}, // Asia - Cambodia and Vietnam - onshore & Cuu Long basin
    {137746, 5400, 1689, 5991, 2642}, // Oman - mainland east of 54°E
    {137737, 5199, 1659, 5991, 2642}, // Oman - mainland
    {33341, 1499, -587, 1628, -442}, // Congo DR (Zaire) - Bas Congo east of 15°E
    {33752, 2900, -1346, 2981, -1215}, // Congo DR (Zaire) - south and 29°E to 31°E
    {12517, -15600, 7500, -6600, 8701}, // Arctic - 87°N to 75°N, 156°W to 66°W
    {70002, 9516, -1098, 14101, 597}, // Indonesia - onshore
    {187713, 5399, 2263, 5603, 2534}, // UAE - Abu Dhabi and Dubai - onshore east of 54°E
    {23396, -7401, -1001, -7199, -459}, // Brazil - west of 72°W
    {23206, -7200, -1114, -6599, 215}, // Brazil - 72°W to 66°W
    {6671, 1041, -801, 1284, -505}, // Angola - offshore north of 8°S
    {23194, -6600, -1628, -5999, 528}, // Brazil - 66°W to 60°W
    {12560, -8400, 7500, 601, 8701}, // Arctic - 87°N to 75°N, 84°W to 6°E
    {12474, -1200, 7500, 7801, 8701}, // Arctic - 87°N to 75°N, 12°W to 78°E
    {12539, 6000, 7500, 15001, 8701}, // Arctic - 87°N to 75°N, 60°E to 150°E
    {12087, -13500, 7950, -9500, 8451}, // Arctic - 84°30'N to 79°30'N, 135°W to 95°W
    {12495, 13200, 7500, -13800, 8701}, // Arctic - 87°N to 75°N, 132°E to 138°W
    {11662, -15600, 6700, -6600, 7901}, // Arctic - 79°N to 67°N, 156°W to 66°W
    {11705, -8400, 6700, 601, 7901}, // Arctic - 79°N to 67°N, 84°W to 6°E
    {11619, -1200, 6700, 7801, 7901}, // Arctic - 79°N to 67°N, 12°W to 78°E
    {71696, 919, 4373, 1276, 4514}, // Italy - Emilia-Romagna
    {12289, -9500, 7950, -5500, 8451}, // Arctic - 84°30'N to 79°30'N, 95°W to 55°W
    {11684, 6000, 6700, 15001, 7901}, // Arctic - 79°N to 67°N, 60°E to 150°E
    {11640, 13200, 6700, -13800, 7901}, // Arctic - 79°N to 67°N, 132°E to 138°W
    {12239, -7200, 7950, -3200, 8451}, // Arctic - 84°30'N to 79°30'N, 72°W to 32°W
    {10667, -15600, 5900, -6600, 7100}, // Arctic - 71°N to 59°N, 156°W to 66°W
    {10710, -8400, 5900, 600, 7100}, // Arctic - 71°N to 59°N, 84°W to 6°E
    {10624, -1200, 5900, 7801, 7100}, // Arctic - 71°N to 59°N, 12°W to 78°E
    {10689, 6000, 5900, 15001, 7100}, // Arctic - 71°N to 59°N, 60°E to 150°E
    {12394, -18000, 8283, -12000, 8784}, // Arctic - 87°50'N to 82°50'N, 180°W to 120°W
    {10645, 13200, 5900, -13800, 7100}, // Arctic - 71°N to 59°N, 132°E to 138°W
    {12166, -3200, 7950, 801, 8451}, // Arctic - 84°30'N to 79°30'N, 32°W to 8°E
    {12367, -12000, 8283, -6000, 8784}, // Arctic - 87°50'N to 82°50'N, 120°W to 60°W
    {12448, -6000, 8283, 0, 8784}, // Arctic - 87°50'N to 82°50'N, 60°W to 0°E
    {12314, 0, 8283, 6001, 8784}, // Arctic - 87°50'N to 82°50'N, 0°E to 60°E
    {12422, 6000, 8283, 12001, 8784}, // Arctic - 87°50'N to 82°50'N, 60°E to 120°E
    {12340, 12000, 8283, 18000, 8783}, // Arctic - 87°50'N to 82°50'N, 120°E to 180°E
    {12139, -17400, 7950, -13499, 8451}, // Arctic - 84°30'N to 79°30'N, 174°W to 135°W
    {12215, -400, 7950, 3601, 8451}, // Arctic - 84°30'N to 79°30'N, 4°W to 36°E
    {12190, 3300, 7950, 7301, 8451}, // Arctic - 84°30'N to 79°30'N, 33°E to 73°E
    {12264, 7300, 7950, 11301, 8451}, // Arctic - 84°30'N to 79°30'N, 73°E to 113°E
    {12062, 11300, 7950, 15301, 8451}, // Arctic - 84°30'N to 79°30'N, 113°E to 153°E
    {12113, 14600, 7950, -17399, 8451}, // Arctic - 84°30'N to 79°30'N, 146°E to 174°W
    {11904, -335, 7616, 3801, 8117}, // Arctic - 81°10'N to 76°10'N, 4°W to 38°E
    {11879, 3499, 7616, 6701, 8117}, // Arctic - 81°10'N to 76°10'N, 35°E to 67°E
    {11953, 6700, 7616, 9801, 8117}, // Arctic - 81°10'N to 76°10'N, 67°E to 98°E
    {11978, 9800, 7616, 12901, 8117}, // Arctic - 81°10'N to 76°10'N, 98°E to 129°E
    {11750, 12900, 7616, 16001, 8117}, // Arctic - 81°10'N to 76°10'N, 129°E to 160°E
    {11802, 16000, 7616, -16899, 8117}, // Arctic - 81°10'N to 76°10'N, 160°E to 169°W
    {11828, -16900, 7616, -13800, 8117}, // Arctic - 81°10'N to 76°10'N, 169°W to 138°W
    {11776, -14400, 7616, -11400, 8117}, // Arctic - 81°10'N to 76°10'N, 144°W to 114°W
    {11725, -11400, 7616, -8400, 8117}, // Arctic - 81°10'N to 76°10'N, 114°W to 84°W
    {12003, -8400, 7616, -6478, 8117}, // Arctic - 81°10'N to 76°10'N, Canada east of 84°W
    {12032, -7500, 7616, -5400, 8117}, // Arctic - 81°10'N to 76°10'N, Greenland west of 54°W
    {11928, -5400, 7616, -2400, 8117}, // Arctic - 81°10'N to 76°10'N, 54°W to 24°W
    {11855, -2400, 7616, 189, 8117}, // Arctic - 81°10'N to 76°10'N, 24°W to 3°E
    {11349, -16900, 7283, -14100, 7784}, // Arctic - 77°50'N to 72°50'N, 169°W to 141°W
    {11265, -14100, 7283, -11600, 7784}, // Arctic - 77°50'N to 72°50'N, 141°W to 116°W
    {11211, -11600, 7283, -9100, 7784}, // Arctic - 77°50'N to 72°50'N, 116°W to 91°W
    {11565, -9100, 7283, -6700, 7784}, // Arctic - 77°50'N to 72°50'N, 91°W to 67°W
    {11538, -7600, 7283, -5100, 7784}, // Arctic - 77°50'N to 72°50'N, 76°W to 51°W
    {11484, -5100, 7283, -2600, 7784}, // Arctic - 77°50'N to 72°50'N, 51°W to 26°W
    {11405, -2600, 7283, -200, 7784}, // Arctic - 77°50'N to 72°50'N, 26°W to 2°W
    {11431, -200, 7283, 2201, 7784}, // Arctic - 77°50'N to 72°50'N, 2°W to 22°E
    {11378, 2200, 7283, 4601, 7784}, // Arctic - 77°50'N to 72°50'N, 22°E to 46°E
    {11457, 4600, 7283, 7001, 7784}, // Arctic - 77°50'N to 72°50'N, 46°E to 70°E
    {11511, 7000, 7283, 9401, 7784}, // Arctic - 77°50'N to 72°50'N, 70°E to 94°E
    {11592, 9400, 7283, 11801, 7784}, // Arctic - 77°50'N to 72°50'N, 94°E to 118°E
    {11238, 11800, 7283, 14201, 7784}, // Arctic - 77°50'N to 72°50'N, 118°E to 142°E
    {11293, 14200, 7283, 16601, 7784}, // Arctic - 77°50'N to 72°50'N, 142°E to 166°E
    {11321, 16600, 7283, -16899, 7784}, // Arctic - 77°50'N to 72°50'N, 166°E to 169°W
    {11062, 400, 6950, 2401, 7451}, // Arctic - 74°30'N to 69°30'N, 4°E to 24°E
    {10987, 2400, 6950, 4401, 7451}, // Arctic - 74°30'N to 69°30'N, 24°E to 44°E
    {11037, 4400, 6950, 6401, 7451}, // Arctic - 74°30'N to 69°30'N, 44°E to 64°E
    {11111, 6400, 6950, 8501, 7451}, // Arctic - 74°30'N to 69°30'N, 64°E to 85°E
    {11186, 8500, 6950, 10601, 7451}, // Arctic - 74°30'N to 69°30'N, 85°E to 106°E
    {10755, 10600, 6950, 12701, 7451}, // Arctic - 74°30'N to 69°30'N, 106°E to 127°E
    {10805, 12700, 6950, 14800, 7451}, // Arctic - 74°30'N to 69°30'N, 127°E to 148°E
    {10857, 14800, 6950, 16901, 7451}, // Arctic - 74°30'N to 69°30'N, 148°E to 169°E
    {10934, 16900, 6950, -16900, 7451}, // Arctic - 74°30'N to 69°30'N, 169°E to 169°W
    {10960, -17300, 6950, -15300, 7451}, // Arctic - 74°30'N to 69°30'N, 173°W to 153°W
    {10883, -15700, 6950, -13700, 7451}, // Arctic - 74°30'N to 69°30'N, 157°W to 137°W
    {10830, -14100, 6950, -12100, 7451}, // Arctic - 74°30'N to 69°30'N, 141°W to 121°W
    {10779, -12100, 6950, -10100, 7451}, // Arctic - 74°30'N to 69°30'N, 121°W to 101°W
    {10730, -10100, 6950, -8100, 7451}, // Arctic - 74°30'N to 69°30'N, 101°W to 81°W
    {11161, -8100, 6950, -6100, 7451}, // Arctic - 74°30'N to 69°30'N, 81°W to 61°W
    {11136, -7189, 6948, -5199, 7451}, // Arctic - 74°30'N to 69°30'N, 72°W to 52°W
    {11086, -5200, 6950, -3200, 7451}, // Arctic - 74°30'N to 69°30'N, 52°W to 32°W
    {11012, -3200, 6950, -1200, 7451}, // Arctic - 74°30'N to 69°30'N, 32°W to 12°W
    {10910, -1500, 6950, 501, 7451}, // Arctic - 74°30'N to 69°30'N, 15°W to 5°E
    {10498, -17400, 6616, -15600, 7117}, // Arctic - 71°10'N to 66°10'N, 174°W to 156°W
    {10471, -15600, 6616, -13800, 7117}, // Arctic - 71°10'N to 66°10'N, 156°W to 138°W
    {10444, -14100, 6616, -12200, 7117}, // Arctic - 71°10'N to 66°10'N, 141°W to 122°W
    {10418, -12200, 6616, -10300, 7117}, // Arctic - 71°10'N to 66°10'N, 122°W to 103°W
    {10393, -10300, 6616, -8400, 7117}, // Arctic - 71°10'N to 66°10'N, 103°W to 84°W
    {10599, -8400, 6616, -6500, 7117}, // Arctic - 71°10'N to 66°10'N, 84°W to 65°W
    {10574, -6500, 6616, -4700, 7117}, // Arctic - 71°10'N to 66°10'N, 65°W to 47°W
    {10549, -4700, 6616, -2900, 7117}, // Arctic - 71°10'N to 66°10'N, 47°W to 29°W
    {10525, -2900, 6616, -1100, 7117}, // Arctic - 71°10'N to 66°10'N, 29°W to 11°W
    {10366, -5900, 6283, -4200, 6784}, // Arctic - 67°50'N to 62°50'N, 59°W to 42°W
    {10339, -4200, 6283, -2500, 6784}, // Arctic - 67°50'N to 62°50'N, 42°W to 25°W
    {31765, -7078, 705, -7071, 710}, // Colombia - Arauca city
    {10314, -5900, 5950, -4400, 6451}, // Arctic - 64°30'N to 59°30'N, 59°W to 44°W
    {10289, -4400, 5950, -2900, 6451}, // Arctic - 64°30'N to 59°30'N, 44°W to 29°W
    {32164, -7424, 1116, -7413, 1130}, // Colombia - Santa Marta city
    {23060, -4800, 0, -4199, 513}, // Brazil - 48°W to 42°W and north of 0°N
    {32181, -7474, 879, -7469, 883}, // Colombia - Sucre city
    {32195, -7339, 550, -7330, 561}, // Colombia - Tunja city
    {31779, -7573, 450, -7565, 455}, // Colombia - Armenia city
    {22973, -4200, 0, -3822, 74}, // Brazil - 42°W to 36°W and north of 0°N
    {31792, -7487, 1085, -7475, 1106}, // Colombia - Barranquilla city
    {31810, -7427, 445, -7398, 485}, // Colombia - Bogota city
    {31824, -7319, 703, -7306, 717}, // Colombia - Bucaramanga city
    {31841, -7661, 332, -7642, 356}, // Colombia - Cali city
    {31854, -7557, 1027, -7542, 1047}, // Colombia - Cartagena city
    {31870, -7256, 781, -7246, 797}, // Colombia - Cucuta city
    {31885, -7563, 157, -7559, 165}, // Colombia - Florencia city
    {31900, -7527, 439, -7511, 447}, // Colombia - Ibague city
    {31915, -6794, 380, -6788, 390}, // Colombia - Inirida city
    {31928, -6998, -423, -6992, -417}, // Colombia - Leticia city
    {31941, -7554, 502, -7544, 511}, // Colombia - Manizales city
    {31957, -7566, 612, -7550, 637}, // Colombia - Medellin city
    {31972, -7025, 123, -7021, 129}, // Colombia - Mitu city
    {31985, -7666, 112, -7663, 118}, // Colombia - Mocoa city
    {31999, -7594, 870, -7582, 881}, // Colombia - Monteria city
    {32013, -7532, 287, -7523, 299}, // Colombia - Neiva city
    {32026, -7732, 116, -7723, 126}, // Colombia - Pasto city
    {32039, -7577, 478, -7564, 487}, // Colombia - Pereira city
    {32053, -7665, 241, -7655, 249}, // Colombia - Popayan city
    {32069, -6770, 598, -6741, 630}, // Colombia - Puerto Carreno city
    {32088, -7668, 566, -7663, 572}, // Colombia - Quibdo city
    {32103, -7296, 1142, -7284, 1158}, // Colombia - Riohacha city
    {32120, -8182, 1243, -8160, 1265}, // Colombia - San Andres city
    {32138, -7266, 254, -7260, 261}, // Colombia - San Jose del Guaviare city
    {32209, -7330, 1039, -7319, 1051}, // Colombia - Valledupar city
    {32226, -7369, 407, -7356, 421}, // Colombia - Villavicencio city
    {32245, -7243, 530, -7235, 537}, // Colombia - Yopal city
    {141627, 15747, -1756, -15127, 3180}, // Pacific - US interests Pacific plate
    {192021, -9660, 4290, -9397, 4351}, // USA - Iowa - Spencer
    {141602, 12948, 164, 14955, 2390}, // Pacific - US interests Mariana plate
    {31020, 10548, -1063, 10577, -1036}, // Christmas Island - onshore
    {47768, -6301, -5625, -5699, -4768}, // Falkland Islands - offshore 63°W to 57°W
    {64200, 6292, -5750, 6600, -5343}, // Heard Island and McDonald Islands - west of 66°E
    {15071, 16200, -5939, 16800, -2594}, // Australasia - Australia and Norfolk Island - 162°E to 168°E
    {15009, 10800, -3784, 11401, -1072}, // Australasia - Australia and Christmas Island - 108°E to 114°E
    {15456, 9341, -6055, 17334, -847}, // Australia - GDA
    {15233, 11400, -3853, 12001, -1206}, // Australia - 114°E to 120°E
    {132397, 16800, -3248, 17335, -2561}, // Norfolk Island - east of 168°E
    {193201, -11815, 4460, -11737, 4519}, // USA - Oregon - Baker City
    {64125, 6600, -5896, 7201, -5118}, // Heard Island and McDonald Islands - 66°E to 72°E
    {193213, -12095, 4334, -11880, 4428}, // USA - Oregon - Bend-Burns
    {177924, 5515, -486, 5601, -366}, // Seychelles - Seychelles Bank
    {64150, 7200, -5902, 7801, -4950}, // Heard Island and McDonald Islands - 72°E to 78°E
    {64175, 7800, -5847, 8357, -5065}, // Heard Island and McDonald Islands - east of 78°E
    {71685, 1200, 3479, 1800, 4710}, // Italy - 12°E to 18°E
    {71726, 1799, 3476, 1899, 4164}, // Italy - east of 18°E
    {31584, 9341, -1546, 9601, -857}, // Cocos (Keeling) Islands - west of 96°E
    {31543, 9600, -1556, 10034, -847}, // Cocos (Keeling) Islands - east of 96°E
    {15040, 10214, -3468, 10801, -887}, // Australasia - Australia and Christmas Island - west of 108°E
    {193226, -12245, 4188, -12077, 4389}, // USA - Oregon - Bend-Klamath Falls
    {199964, 10214, 920, 10351, 2282}, // Vietnam - west of 103°30'E onshore
    {193244, -12188, 4376, -11979, 4498}, // USA - Oregon - Bend-Redmond-Prineville
    {15359, 15600, -6056, 16201, -1408}, // Australia - 156°E to 162°E including Macquarie
    {193446, -12380, 4374, -12218, 4471}, // USA - Oregon - Eugene
    {193456, -12395, 4188, -12237, 4285}, // USA - Oregon - Grants Pass-Ashland
    {193298, -12383, 4249, -12243, 4324}, // USA - Oregon - Canyonville-Grants Pass
    {193334, -12205, 4549, -11889, 4608}, // USA - Oregon - Columbia River East
    {193474, -12243, 4502, -12168, 4555}, // USA - Oregon - Gresham-Warm Springs
    {193353, -12433, 4517, -12147, 4656}, // USA - Oregon - Columbia River West
    {193372, -12396, 4282, -12240, 4388}, // USA - Oregon - Cottage Grove-Canyonville
    {193432, -12195, 4463, -12046, 4555}, // USA - Oregon - Dufur-Madras
    {193504, -11817, 4513, -11714, 4580}, // USA - Oregon - La Grande
    {193572, -11790, 4341, -11670, 4465}, // USA - Oregon - Ontario
    {193582, -12484, 4189, -12335, 4640}, // USA - Oregon - Oregon Coast
    {193603, -11936, 4546, -11817, 4602}, // USA - Oregon - Pendleton
    {193614, -11864, 4513, -11809, 4564}, // USA - Oregon - Pendleton-La Grande
    {193650, -12353, 4523, -12211, 4601}, // USA - Oregon - Portland
    {193712, -12373, 4432, -12189, 4530}, // USA - Oregon - Salem
    {193735, -12251, 4410, -12169, 4466}, // USA - Oregon - Sweet Home-Sisters
    {199431, 10350, 833, 10651, 2340}, // Vietnam - 103.5°E to 106.5°E onshore
    {199882, 10650, 857, 10953, 2295}, // Vietnam - east of 106.5°E onshore
    {199810, 10643, 857, 10876, 2167}, // Vietnam - Quang Ninh; Da Nang, Quang Nam; Ba Ria-Vung Tau, Dong Nai, Lam Dong
    {191940, -9398, 4290, -9160, 4351}, // USA - Iowa - Mason City
    {44735, 837, 314, 902, 382}, // Equatorial Guinea - Bioko
    {14441, 9959, 113, 10582, 781}, // Asia - Malaysia (west including SCS) and Singapore
    {190599, -12356, 3685, -12120, 3887}, // USA - California - San Francisco Bay Area
    {191916, -9162, 4229, -9089, 4351}, // USA - Iowa - Elkader
    {191999, -9665, 4220, -9300, 4292}, // USA - Iowa - Sioux City-Iowa Falls
    {192032, -9303, 4220, -9159, 4309}, // USA - Iowa - Waterloo
    {191877, -9637, 4058, -9504, 4222}, // USA - Iowa - Council Bluffs
    {191844, -9516, 4115, -9416, 4222}, // USA - Iowa - Carroll-Atlantic
    {191814, -9429, 4115, -9323, 4222}, // USA - Iowa - Ames-Des Moines
    {14561, 3879, 2906, 5106, 3739}, // Asia - Middle East - Iraq and SW Iran
    {191952, -9335, 4116, -9229, 4230}, // USA - Iowa - Newton
    {191862, -9231, 4142, -9089, 4230}, // USA - Iowa - Cedar Rapids
    {191895, -9114, 4144, -9014, 4268}, // USA - Iowa - Dubuque-Davenport
    {191961, -9539, 4057, -9217, 4117}, // USA - Iowa - Red Oak-Ottumwa
    {191927, -9242, 4059, -9148, 4152}, // USA - Iowa - Fairfield
    {191831, -9172, 4037, -9078, 4160}, // USA - Iowa - Burlington
    {51163, 4537, -4938, 4801, -4312}, // French Southern Territories - Crozet west of 48°E
    {51270, 3798, -6713, 14200, -2091}, // French Southern and Antarctic Territories
    {51101, 4800, -4982, 5401, -4261}, // French Southern Territories - Crozet 48°E to 54°E
    {51132, 5400, -4961, 5716, -4330}, // French Southern Territories - Crozet east of 54°E
    {51026, 6296, -5303, 6600, -4573}, // French Southern Territories - 60°E to 66°E
    {51051, 6600, -5324, 7201, -4511}, // French Southern Territories - 66°E to 72°E
    {51076, 7200, -5119, 7801, -3447}, // French Southern Territories - 72°E to 78°E
    {51245, 7800, -4204, 8183, -3450}, // French Southern Territories - east of 78°E
    {191575, -8753, 4073, -8721, 4177}, // USA - Indiana - Lake and Newton
    {191464, -8728, 4073, -8692, 4177}, // USA - Indiana - Jasper and Porter
    {191551, -8694, 4090, -8646, 4177}, // USA - Indiana - LaPorte, Pulaski, Starke
    {191030, -8753, 4047, -8709, 4074}, // USA - Indiana - Benton
    {191765, -8710, 4021, -8658, 4092}, // USA - Indiana - Tippecanoe and White
    {191087, -8678, 4043, -8637, 4074}, // USA - Indiana - Carroll
    {191298, -8754, 3995, -8709, 4048}, // USA - Indiana - Fountain and Warren
    {191134, -8670, 4017, -8624, 4044}, // USA - Indiana - Clinton
    {191629, -8754, 3960, -8700, 4015}, // USA - Indiana - Parke and Vermillion
    {191603, -8710, 3947, -8664, 4022}, // USA - Indiana - Montgomery and Putnam
    {191060, -8670, 3960, -8624, 4019}, // USA - Indiana - Boone and Hendricks
    {191796, -8762, 3925, -8719, 3961}, // USA - Indiana - Vigo
    {191125, -8725, 3916, -8693, 3961}, // USA - Indiana - Clay
    {191621, -8706, 3916, -8663, 3948}, // USA - Indiana - Owen
    {191588, -8669, 3899, -8624, 3964}, // USA - Indiana - Monroe and Morgan
    {191753, -8765, 3890, -8724, 3926}, // USA - Indiana - Sullivan
    {191169, -8728, 3849, -8668, 3918}, // USA - Indiana - Daviess and Greene
    {191524, -8775, 3841, -8709, 3891}, // USA - Indiana - Knox
    {191234, -8708, 3820, -8667, 3891}, // USA - Indiana - Dubois and Martin
    {191144, -8669, 3810, -8624, 3900}, // USA - Indiana - Crawford, Lawrence, Orange
    {191339, -8798, 3816, -8731, 3854}, // USA - Indiana - Gibson
    {191654, -8748, 3787, -8701, 3856}, // USA - Indiana - Pike and Warrick
    {191669, -8806, 3777, -8768, 3824}, // USA - Indiana - Posey
    {191784, -8771, 3782, -8744, 3817}, // USA - Indiana - Vanderburgh
    {191732, -8727, 3778, -8676, 3821}, // USA - Indiana - Spencer
    {191645, -8682, 3784, -8643, 3827}, // USA - Indiana - Perry
    {191314, -8653, 4090, -8594, 4177}, // USA - Indiana - Fulton, Marshall, St Joseph
    {191250, -8608, 4065, -8563, 4177}, // USA - Indiana - Elkhart, Kosciusko, Wabash
    {191533, -8566, 4126, -8519, 4177}, // USA - Indiana - LaGrange and Noble
    {191742, -8520, 4152, -8480, 4177}, // USA - Indiana - Steuben
    {191186, -8520, 4126, -8480, 4154}, // USA - Indiana - DeKalb
    {191434, -8569, 4065, -8530, 4130}, // USA - Indiana - Huntington and Whitley
    {191009, -8534, 4091, -8480, 4128}, // USA - Indiana - Allen
    {191097, -8659, 4056, -8616, 4092}, // USA - Indiana - Cass
    {191418, -8638, 4037, -8586, 4100}, // USA - Indiana - Howard and Miami
    {191805, -8545, 4056, -8506, 4092}, // USA - Indiana - Wells
    {191000, -8508, 4056, -8480, 4093}, // USA - Indiana - Adams
    {191349, -8587, 4037, -8544, 4066}, // USA - Indiana - Grant
    {191039, -8558, 4007, -8520, 4057}, // USA - Indiana - Blackford and Delaware
    {191479, -8522, 4030, -8480, 4058}, // USA - Indiana - Jay
    {191358, -8625, 3992, -8586, 4041}, // USA - Indiana - Hamilton and Tipton
    {191374, -8596, 3969, -8557, 4038}, // USA - Indiana - Hancock and Madison
    {191679, -8523, 3971, -8480, 4032}, // USA - Indiana - Randolph and Wayne
    {191409, -8560, 3978, -8520, 4008}, // USA - Indiana - Henry
    {191509, -8633, 3934, -8593, 3993}, // USA - Indiana - Johnson and Marion
    {191722, -8596, 3934, -8562, 3970}, // USA - Indiana - Shelby
    {191219, -8569, 3913, -8529, 3979}, // USA - Indiana - Decatur and Rush
    {191276, -8531, 3926, -8481, 3979}, // USA - Indiana - Fayette, Franklin, Union
    {191077, -8639, 3904, -8607, 3935}, // USA - Indiana - Brown
    {191018, -8609, 3903, -8568, 3936}, // USA - Indiana - Bartholomew
    {191453, -8632, 3872, -8579, 3908}, // USA - Indiana - Jackson
    {191498, -8580, 3880, -8543, 3920}, // USA - Indiana - Jennings
    {191695, -8545, 3891, -8506, 3932}, // USA - Indiana - Ripley
    {191196, -8521, 3868, -8478, 3931}, // USA - Indiana - Dearborn, Ohio, Switzerland
    {191391, -8633, 3795, -8584, 3879}, // USA - Indiana - Harrison and Washington
    {191105, -8604, 3817, -8541, 3884}, // USA - Indiana - Clark, Floyd, Scott
    {191487, -8569, 3858, -8520, 3892}, // USA - Indiana - Jefferson
    {192861, -11397, 4855, -11300, 4901}, // USA - Montana - St Mary valley
    {192708, -11384, 4800, -11200, 4901}, // USA - Montana - Blackfeet reservation
    {192813, -11250, 4778, -10874, 4901}, // USA - Montana - Milk River
    {192747, -11084, 4778, -10699, 4901}, // USA - Montana - Fort Belknap
    {192764, -10757, 4801, -10478, 4888}, // USA - Montana - Fort Peck higher areas
    {192789, -10776, 4775, -10404, 4901}, // USA - Montana - Fort Peck lower areas
    {192729, -10884, 4499, -10666, 4609}, // USA - Montana - Crow reservation
    {192879, -11234, 4536, -11075, 4659}, // USA - Montana - Three Forks
    {192695, -10942, 4499, -10799, 4741}, // USA - Montana - Billings
    {195182, -10950, 4269, -10794, 4386}, // USA - Wyoming - Wind River reservation
    {194166, -9093, 4598, -9030, 4709}, // USA - Wisconsin - Ashland
    {194191, -9156, 4615, -9075, 4701}, // USA - Wisconsin - Bayfield
    {137796, 5199, 1494, 5401, 1967}, // Oman - west of 54°E
    {137715, 5400, 1433, 6001, 2674}, // Oman - 54°E to 60°E
    {137726, 6000, 1637, 6338, 2409}, // Oman - east of 60°E
    {194236, -9289, 4563, -9203, 4616}, // USA - Wisconsin - Burnett
    {194399, -9230, 4615, -9155, 4676}, // USA - Wisconsin - Douglas
    {194443, -8869, 4571, -8805, 4603}, // USA - Wisconsin - Florence
    {194458, -8905, 4537, -8842, 4608}, // USA - Wisconsin - Forest
    {194543, -9056, 4598, -8992, 4660}, // USA - Wisconsin - Iron
    {194760, -9005, 4546, -8904, 4591}, // USA - Wisconsin - Oneida
    {194178, -9216, 4520, -9153, 4565}, // USA - Wisconsin - Barron
    {194821, -9068, 4537, -9004, 4599}, // USA - Wisconsin - Price
    {194921, -9156, 4563, -9067, 4616}, // USA - Wisconsin - Sawyer
    {195012, -9005, 4585, -8893, 4630}, // USA - Wisconsin - Vilas
    {195038, -9206, 4563, -9154, 4616}, // USA - Wisconsin - Washburn
    {194207, -8826, 4424, -8776, 4468}, // USA - Wisconsin - Brown
    {194221, -9209, 4402, -9152, 4460}, // USA - Wisconsin - Buffalo
    {194293, -9167, 4485, -9092, 4530}, // USA - Wisconsin - Chippewa
    {194310, -9093, 4442, -9031, 4504}, // USA - Wisconsin - Clark
    {194387, -8774, 4467, -8680, 4543}, // USA - Wisconsin - Door
    {194413, -9216, 4468, -9164, 4521}, // USA - Wisconsin - Dunn
    {194426, -9166, 4459, -9092, 4486}, // USA - Wisconsin - Eau Claire
    {194555, -9117, 4407, -9031, 4460}, // USA - Wisconsin - Jackson
    {194659, -8943, 4502, -8863, 4548}, // USA - Wisconsin - Langlade
    {194674, -9005, 4511, -8942, 4556}, // USA - Wisconsin - Lincoln
    {194688, -9032, 4468, -8922, 4513}, // USA - Wisconsin - Marathon
    {194702, -8843, 4496, -8748, 4580}, // USA - Wisconsin - Marinette
    {194717, -8899, 4485, -8848, 4512}, // USA - Wisconsin - Menominee
    {194746, -8869, 4467, -8776, 4538}, // USA - Wisconsin - Oconto
    {194774, -9281, 4440, -9165, 4487}, // USA - Wisconsin - Pepin and Pierce
    {194794, -9289, 4520, -9215, 4573}, // USA - Wisconsin - Polk
    {194806, -8985, 4424, -8922, 4469}, // USA - Wisconsin - Portage
    {194860, -9155, 4529, -9067, 4564}, // USA - Wisconsin - Rusk
    {194935, -8923, 4458, -8824, 4503}, // USA - Wisconsin - Shawano
    {194950, -9281, 4485, -9213, 4522}, // USA - Wisconsin - St. Croix
    {194967, -9093, 4503, -9004, 4539}, // USA - Wisconsin - Taylor
    {194981, -9162, 4398, -9115, 4460}, // USA - Wisconsin - Trempealeau
    {195085, -8923, 4424, -8860, 4469}, // USA - Wisconsin - Waupaca
    {195116, -9032, 4424, -8972, 4469}, // USA - Wisconsin - Wood
    {194145, -9032, 4364, -8959, 4425}, // USA - Wisconsin - Adams and Juneau
    {194250, -8889, 4354, -8804, 4460}, // USA - Wisconsin - Calumet, Fond du Lac, Outagamie and Winnebago
    {194323, -8979, 4328, -8900, 4365}, // USA - Wisconsin - Columbia
    {194339, -9122, 4298, -9066, 4343}, // USA - Wisconsin - Crawford
    {194354, -8984, 4284, -8900, 4330}, // USA - Wisconsin - Dane
    {194366, -8902, 4284, -8840, 4364}, // USA - Wisconsin - Dodge and Jefferson
    {194470, -9116, 4250, -9042, 4322}, // USA - Wisconsin - Grant
    {194508, -9043, 4250, -8936, 4286}, // USA - Wisconsin - Green and Lafayette
    {194483, -8960, 4363, -8888, 4399}, // USA - Wisconsin - Green Lake and Marquette
    {194530, -9043, 4281, -8983, 4321}, // USA - Wisconsin - Iowa
    {194570, -8831, 4249, -8775, 4355}, // USA - Wisconsin - Kenosha, Milwaukee, Ozaukee and Racine
    {194607, -8817, 4354, -8737, 4468}, // USA - Wisconsin - Kewaunee, Manitowoc and Sheboygan
    {194642, -9143, 4372, -9091, 4410}, // USA - Wisconsin - La Crosse
    {194732, -9098, 4372, -9031, 4417}, // USA - Wisconsin - Monroe
    {194834, -9068, 4316, -9019, 4356}, // USA - Wisconsin - Richland
    {194847, -8937, 4249, -8877, 4285}, // USA - Wisconsin - Rock
    {194908, -9032, 4314, -8959, 4365}, // USA - Wisconsin - Sauk
    {194999, -9128, 4342, -9031, 4374}, // USA - Wisconsin - Vernon
    {195024, -8878, 4249, -8830, 4285}, // USA - Wisconsin - Walworth
    {195053, -8842, 4319, -8803, 4355}, // USA - Wisconsin - Washington
    {195069, -8855, 4284, -8806, 4320}, // USA - Wisconsin - Waukesha
    {195101, -8960, 4398, -8888, 4425}, // USA - Wisconsin - Waushara
    {79460, 6924, 3951, 7002, 4022}, // Kyrgyzstan - west of 70°01'E
    {79365, 7001, 3919, 7302, 4283}, // Kyrgyzstan - 70°01'E to 73°01'E
    {79390, 7301, 3935, 7602, 4322}, // Kyrgyzstan - 73°01'E to 76°01'E
    {79415, 7601, 4035, 7902, 4300}, // Kyrgyzstan - 76°01'E to 79°01'E
    {79440, 7901, 4166, 8029, 4280}, // Kyrgyzstan - east of 79°01'E
    {189038, -900, 4975, 201, 6101}, // UK - Britain and UKCS 49°45'N to 61°N, 9°W to 2°E
    {68485, 8969, 2194, 9742, 2947}, // India - northeast
    {68110, 7675, 1261, 8481, 1992}, // India - Andhra Pradesh and Telangana
    {68132, 9155, 2665, 9742, 2947}, // India - Arunachal Pradesh
    {68147, 8969, 2413, 9603, 2798}, // India - Assam
    {68154, 8331, 2428, 8830, 2786}, // India - Bihar
    {68161, 8023, 1778, 8439, 2411}, // India - Chhattisgarh
    {68180, 7361, 1486, 7435, 1580}, // India - Goa
    {68186, 6813, 2005, 7448, 2471}, // India - Gujarat
    {68194, 7446, 2765, 7760, 3094}, // India - Haryana
    {68202, 7557, 3038, 7900, 3326}, // India - Himachal Pradesh
    {68217, 7376, 3227, 7957, 3551}, // India - Jammu and Kashmir
    {68231, 8332, 2196, 8798, 2535}, // India - Jharkhand
    {68240, 7400, 1157, 7858, 1846}, // India - Karnataka
    {68250, 7481, 825, 7740, 1280}, // India - Kerala
    {68269, 7403, 2107, 8281, 2688}, // India - Madhya Pradesh
    {68282, 7260, 1560, 8090, 2204}, // India - Maharashtra
    {68292, 9297, 2384, 9476, 2570}, // India - Manipur
    {68300, 8982, 2503, 9281, 2612}, // India - Meghalaya
    {68311, 9225, 2194, 9345, 2453}, // India - Mizoram
    {68319, 9333, 2520, 9525, 2705}, // India - Nagaland
    {68327, 8138, 1780, 8750, 2257}, // India - Odisha
    {68335, 7387, 2954, 7694, 3258}, // India - Punjab
    {68344, 6948, 2306, 7827, 3020}, // India - Rajasthan
    {68354, 8801, 2708, 8892, 2814}, // India - Sikkim
    {68363, 7622, 802, 8040, 1359}, // India - Tamil Nadu
    {68373, 9115, 2294, 9234, 2454}, // India - Tripura
    {68382, 7708, 2387, 8464, 3042}, // India - Uttar Pradesh
    {68395, 7756, 2871, 8102, 3148}, // India - Uttarakhand
    {68406, 8582, 2149, 8988, 2723}, // India - West Bengal
    {68173, 7683, 2840, 7734, 2889}, // India - Delhi
    {68092, 9215, 670, 9433, 1373}, // India - Andaman and Nicobar Islands
    {68257, 7204, 821, 7376, 1176}, // India - Lakshadweep
    {24107, 3000, 4256, 3135, 4367}, // Bulgaria - east of 30°E
    {24095, 2400, 4124, 3001, 4415}, // Bulgaria - 24°E to 30°E
    {24127, 2236, 4132, 2400, 4423}, // Bulgaria - west of 24°E
    {195508, 2500, 4772, 2801, 5196}, // Ukraine - 25°E to 28°E
    {195534, 2800, 4518, 3101, 5209}, // Ukraine - 28°E to 31°E onshore
    {195572, 3100, 4432, 3401, 5238}, // Ukraine - 31°E to 34°E onshore
    {195599, 3400, 4433, 3701, 5225}, // Ukraine - 34°E to 37°E onshore
    {195612, 3700, 4680, 4001, 5044}, // Ukraine - 37°E to 40°E onshore
    {196135, 4000, 4880, 4018, 4962}, // Ukraine - east of 40°E
    {196172, 2215, 4771, 2501, 5192}, // Ukraine - west of 25°E
    {15885, 12100, -3225, 12184, -2875}, // Australia - Western Australia - Kalgoorlie
    {15685, 11518, -3375, 11587, -3340}, // Australia - Western Australia - Busselton
    {15637, 11490, -2220, 11559, -2021}, // Australia - Western Australia - Barrow
    {15613, 11755, -3521, 11822, -3475}, // Australia - Western Australia - Albany
    {15833, 11483, -3074, 11534, -2908}, // Australia - Western Australia - Jurien Bay
    {15661, 12208, -1809, 12262, -1675}, // Australia - Western Australia - Broome
    {15710, 11333, -2550, 11400, -2300}, // Australia - Western Australia - Carnarvon
    {15735, 11573, -3467, 11640, -3325}, // Australia - Western Australia - Collie
    {15860, 11390, -2850, 11475, -2716}, // Australia - Western Australia - Kalbarri
    {15759, 12156, -3450, 12220, -3333}, // Australia - Western Australia - Esperance
    {4728, 1179, -604, 1237, -579}, // DR Congo (Zaire) - offshore
    {15785, 11375, -2242, 11425, -2175}, // Australia - Western Australia - Exmouth
    {15808, 11451, -2910, 11500, -2848}, // Australia - Western Australia - Geraldton
    {190399, -11333, 3180, -11251, 3251}, // USA - Arizona - Pima county west
    {15912, 11658, -2092, 11725, -2025}, // Australia - Western Australia - Karratha
    {15936, 12850, -1675, 12900, -1475}, // Australia - Western Australia - Kununurra
    {15962, 11515, -3149, 11562, -3071}, // Australia - Western Australia - Lancelin
    {46439, 1207, 4693, 1683, 5106}, // Europe - Upper Austria, Salzburg and Bohemia
    {46388, 1441, 4742, 1886, 5045}, // Europe - Lower Austria and Moravia
    {15986, 11496, -3442, 11524, -3351}, // Australia - Western Australia - Margaret River
    {193678, -12097, 4188, -11915, 4345}, // USA - Oregon - Riley-Lakeview
    {193267, -11861, 4349, -11749, 4419}, // USA - Oregon - Burns-Harper
    {190367, -11252, 3150, -11156, 3251}, // USA - Arizona - Pima county central
    {16015, 11544, -3342, 11609, -3133}, // Australia - Western Australia - Perth
    {193720, -12271, 4195, -12196, 4246}, // USA - Oregon - Siskiyou Pass
    {193281, -11922, 4352, -11852, 4436}, // USA - Oregon - Canyon City-Burns
    {16037, 11825, -2079, 11897, -2010}, // Australia - Western Australia - Port Hedland
    {187263, -6209, 983, -5999, 1234}, // Trinidad and Tobago - offshore west of 60°W
    {187237, -6000, 995, -5728, 1219}, // Trinidad and Tobago - offshore east of 60°W
    {193752, -11935, 4452, -11864, 4521}, // USA - Oregon - Ukiah-Fox
    {193321, -12381, 4540, -12301, 4598}, // USA - Oregon - Coast Range North
    {190383, -11157, 3143, -11044, 3252}, // USA - Arizona - Pima county east
    {190346, -11087, 3233, -11061, 3249}, // USA - Arizona - Pima county Mt. Lemmon
    {193397, -11989, 4424, -11861, 4494}, // USA - Oregon - Dayville-Prairie City
    {193418, -11941, 4188, -11767, 4354}, // USA - Oregon - Denio-Burns
    {193493, -11761, 4461, -11663, 4528}, // USA - Oregon - Halfway
    {193515, -12273, 4253, -12171, 4334}, // USA - Oregon - Medford-Diamond Lake
    {193536, -12056, 4438, -11982, 4478}, // USA - Oregon - Mitchell
    {193547, -12179, 4489, -11903, 4595}, // USA - Oregon - North Central
    {193765, -11816, 4527, -11642, 4605}, // USA - Oregon - Wallowa
    {193556, -12101, 4421, -12031, 4461}, // USA - Oregon - Ochoco Summit
    {193592, -11814, 4188, -11685, 4354}, // USA - Oregon - Owyhee
    {193632, -11965, 4499, -11811, 4604}, // USA - Oregon - Pilot Rock-Ukiah
    {193659, -11877, 4416, -11748, 4502}, // USA - Oregon - Prairie City-Brogan
    {192926, -11550, 3588, -11471, 3643}, // USA - Nevada - Las Vegas
    {193776, -12042, 4195, -11930, 4243}, // USA - Oregon - Warner Highway
    {192939, -11550, 3588, -11471, 3643}, // USA - Nevada - Las Vegas high elevation
    {193793, -12226, 4299, -12148, 4418}, // USA - Oregon - Willamette Pass
    {9654, 13600, -6673, 13801, -6561}, // Antarctica - Adelie Land coastal area west of 138°E
    {60796, 833, 5336, 1041, 5399}, // Germany - Hamburg
    {15513, 14150, -1350, 14251, -1149}, // Australia - Queensland - Weipa
    {9626, 13800, -6713, 14200, -6610}, // Antarctica - Adelie Land coastal area east of 138°E
    {192184, -10019, 3869, -9903, 4001}, // USA - Kansas - Hays
    {192158, -10206, 3869, -10138, 4001}, // USA - Kansas - Goodland
    {192105, -10149, 3869, -10071, 4001}, // USA - Kansas - Colby
    {192233, -10082, 3869, -10014, 4001}, // USA - Kansas - Oberlin
    {192170, -9907, 3826, -9847, 4001}, // USA - Kansas - Great Bend
    {192078, -9851, 3815, -9792, 4001}, // USA - Kansas - Beloit
    {192290, -9794, 3808, -9680, 4001}, // USA - Kansas - Salina
    {192220, -9697, 3873, -9594, 3957}, // USA - Kansas - Manhattan
    {192131, -9694, 3808, -9594, 3888}, // USA - Kansas - Emporia
    {192065, -9681, 3921, -9485, 4001}, // USA - Kansas - Atchison
    {192195, -9604, 3873, -9458, 3943}, // USA - Kansas - Kansas City
    {192301, -10205, 3699, -10106, 3871}, // USA - Kansas - Ulysses
    {192144, -10113, 3699, -10008, 3871}, // USA - Kansas - Garden City
    {192116, -10025, 3699, -9954, 3870}, // USA - Kansas - Dodge City
    {192209, -9959, 3699, -9891, 3870}, // USA - Kansas - Larned
    {192259, -9903, 3699, -9834, 3827}, // USA - Kansas - Pratt
    {192314, -9848, 3738, -9652, 3818}, // USA - Kansas - Wichita
    {192050, -9835, 3699, -9652, 3748}, // USA - Kansas - Arkansas City
    {192089, -9653, 3699, -9550, 3888}, // USA - Kansas - Coffeyville
    {192245, -9553, 3699, -9460, 3874}, // USA - Kansas - Pittsburg
    {141556, 14119, 1095, 14401, 2390}, // Pacific - Guam and NMI west of 144°E
    {190675, 14458, -1459, -6451, 4938}, // USA - FBN
    {141532, 14400, 1105, 14955, 2390}, // Pacific - Guam and NMI east of 144°E
    {6081, -295, 3199, 909, 3466}, // Algeria - 32°N to 34°39'N
    {218294, 9001, -9000, 8999, 9000}, // World centred on 90°W
    {218280, -2999, -9000, -3001, 9000}, // World centred on 150°E
    {177263, 3444, 2492, 3601, 2938}, // Saudi Arabia - west of 36°E
    {141514, 14458, 1318, 14612, 2061}, // Pacific - Guam and NMI - onshore
    {177143, 3600, 1629, 4200, 3216}, // Saudi Arabia - 36°E to 42°E
    {177160, 4199, 1635, 4800, 3115}, // Saudi Arabia - 42°E to 48°E
    {177177, 4799, 1794, 5401, 2894}, // Saudi Arabia - 48°E to 54°E
    {80747, -12219, -5987, -2528, 3272}, // Latin America - Central America and South America
    {34355, -8360, 960, -8143, 1177}, // Costa Rica - offshore Caribbean
    {34374, -9045, 215, -8292, 1111}, // Costa Rica - offshore Pacific
    {199871, 10321, 2057, 10503, 2204}, // Vietnam - Son La
    {6640, 1799, -1802, 2409, -691}, // Angola - east of 18°E
    {5122, 1333, -5032, 4285, -2213}, // Africa - South Africa, Lesotho and Eswatini.
    {199730, 10214, 2089, 10399, 2282}, // Vietnam - Dien Bien and Lai Chau
    {78877, 1997, 4185, 2180, 4325}, // Kosovo
    {177802, 1881, 4223, 2301, 4619}, // Serbia
    {199709, 10340, 833, 10554, 1055}, // Vietnam - Ca Mau and Kien Giang
    {199512, 10353, 1018, 10586, 2285}, // Vietnam - An Giang, Lao Cai, Nghe An, Phu Tho, Yen Bai
    {199447, 10433, 919, 10669, 2340}, // Vietnam - 104°20'E to 106°40'E by province
    {199477, 10526, 975, 10780, 2312}, // Vietnam - 105°15'E to 107°50'E by province - HCMC
    {199753, 10483, 1692, 10703, 2270}, // Vietnam - Hoa Binh, Quang Binh and Tuyen Quang
    {6689, 820, -1728, 1201, -503}, // Angola - west of 12°E
    {199639, 10641, 1130, 10743, 1722}, // Vietnam - Binh Phuoc and Quang Tri
    {199582, 10543, 2132, 10625, 2275}, // Vietnam - Bac Kan and Thai Nguyen
    {199554, 10588, 1599, 10824, 2163}, // Vietnam - Bac Giang and Thua Thien-Hue
    {6530, 1200, -1744, 1800, -438}, // Angola - 12°E to 18°E
    {199798, 10609, 2132, 10737, 2247}, // Vietnam - Lang Son
    {199786, 10733, 1392, 10855, 1542}, // Vietnam - Kon Tum
    {199607, 10855, 1125, 10953, 1471}, // Vietnam - Binh Dinh, Khanh Hoa, Ninh Thuan
    {199665, 10720, 1043, 10952, 1461}, // Vietnam - Binh Thuan, Dak Lak, Dak Nong, Gia Lai, Phu Yen
    {12881, -7214, -4341, -6586, -3191}, // Argentina - Mendoza and Neuquen
    {12605, -7359, -5034, -6547, -4249}, // Argentina - 42.5°S to 50.3°S
    {12681, -7359, -5034, -7050, -4494}, // Argentina - 42.5°S to 50.3°S and west of 70.5°W
    {12653, -6750, -4905, -6547, -4358}, // Argentina - 42.5°S to 50.3°S and east of 67.5°W
    {179224, 1333, -3817, 3654, -2213}, // South Africa - mainland - onshore and offshore
    {179183, 3271, -5032, 4285, -4326}, // South Africa - Prince Edward islands - onshore and offshore
    {13081, -7328, -5243, -6830, -5033}, // Argentina - south Santa Cruz
    {13123, -7328, -5200, -7050, -5033}, // Argentina - south Santa Cruz west of 70.5°W
    {13098, -7050, -5243, -6830, -5033}, // Argentina - south Santa Cruz east of 70.5°W
    {23344, -5816, -2750, -5400, -1799}, // Brazil - west of 54°W and between 18°S and 27°30'S
    {23102, -5400, -2750, -4799, -1499}, // Brazil - 54°W to 48°W and 15°S to 27°30'S
    {12821, -7050, -5243, -6749, -2408}, // Argentina - 70.5°W to 67.5°W mainland onshore
    {12782, -6750, -4905, -6449, -2178}, // Argentina - 67.5°W to 64.5°W mainland onshore
    {12743, -6450, -4314, -6149, -2199}, // Argentina - 64.5°W to 61.5°W mainland onshore
    {5100, -1716, 2071, -101, 3597}, // Africa - Morocco and Western Sahara - onshore
    {189181, -275, 5145, 0, 5330}, // UK - London to Birmingham and Crewe
    {189165, -314, 5332, -134, 5390}, // UK - Liverpool to Leeds
    {218014, -18000, -9000, 18000, -5000}, // World - south of 50°S
    {33141, 2150, -731, 2301, -531}, // Congo DR (Zaire) - 6th parallel south 21.5°E to 23°E
    {189203, -189, 5146, 16, 5342}, // UK - London to Sheffield
    {189021, -431, 5710, -210, 5771}, // UK - Aberdeen to Inverness
    {181602, -1822, 2758, -1608, 2890}, // Spain - Canary Islands western
    {181501, -1822, 2759, -1800, 2788}, // Spain - Canary Islands - El Hierro west of 18°W
    {181580, -1806, 2758, -1337, 2947}, // Spain - Canary Islands onshore east of 18°W
    {181620, -1806, 2758, -1608, 2890}, // Spain - Canary Islands western east of 18°W
    {189086, -465, 5555, -405, 5595}, // UK - Glasgow to Kilmarnock
    {12860, -5854, -3471, -5829, -3450}, // Argentina - Buenos Aires city
    {86861, 10954, 85, 11569, 503}, // Malaysia - East Malaysia - Sarawak onshore
    {46411, 465, 4487, 788, 4589}, // Europe - Lyon-Turin
    {29018, -4200, 4553, -4073, 4953}, // Canada - east of 42°W
    {189338, -356, 5555, -194, 5721}, // UK - Tweedmouth to Aberdeen
    {189275, -190, 5485, -130, 5530}, // UK - Newcastle to Ashington
    {189323, -143, 5170, -36, 5224}, // UK - Oxford to Bedford
    {195838, 3023, 5021, 3083, 5059}, // Ukraine - Kyiv city
    {195625, 2960, 4845, 3289, 5023}, // Ukraine - Cherkasy oblast
    {195642, 3048, 5034, 3351, 5238}, // Ukraine - Chernihiv oblast
    {195662, 2490, 4772, 2754, 4868}, // Ukraine - Chernivtsi oblast
    {195695, 3295, 4745, 3694, 4919}, // Ukraine - Dnipropetrovsk oblast
    {195720, 3654, 4686, 3910, 4924}, // Ukraine - Donetsk oblast
    {195737, 2353, 4772, 2566, 4956}, // Ukraine - Ivano-Frankivsk oblast
    {195762, 3484, 4852, 3810, 5046}, // Ukraine - Kharkiv oblast
    {195780, 3151, 4575, 3511, 4760}, // Ukraine - Kherson oblast
    {195795, 2613, 4845, 2790, 5059}, // Ukraine - Khmelnytskyi oblast
    {195852, 2926, 4917, 3216, 5155}, // Ukraine - Kyiv oblast
    {195818, 2974, 4774, 3390, 4925}, // Ukraine - Kirovohrad oblast
    {195868, 3783, 4782, 4023, 5009}, // Ukraine - Luhansk oblast
    {195886, 2264, 4871, 2543, 5065}, // Ukraine - Lviv oblast
    {195902, 3020, 4636, 3319, 4823}, // Ukraine - Mykolaiv oblast
    {195921, 2821, 4520, 3130, 4824}, // Ukraine - Odessa oblast
    {195937, 3208, 4874, 3549, 5055}, // Ukraine - Poltava oblast
    {195954, 2508, 5000, 2774, 5195}, // Ukraine - Rivne oblast
    {195984, 3293, 5010, 3567, 5237}, // Ukraine - Sumy oblast
    {195999, 2471, 4850, 2645, 5027}, // Ukraine - Ternopil oblast
    {196017, 2737, 4806, 3002, 4989}, // Ukraine - Vinnytsia oblast
    {196035, 2360, 5028, 2611, 5197}, // Ukraine - Volyn oblast
    {196051, 2213, 4789, 2463, 4910}, // Ukraine - Zakarpattia oblast
    {196070, 3417, 4607, 3725, 4815}, // Ukraine - Zaporizhzhia oblast
    {196091, 2719, 4958, 2974, 5168}, // Ukraine - Zhytomyr oblast
    {195683, 3247, 4438, 3665, 4624}, // Ukraine - Crimea
    {195970, 3337, 4438, 3393, 4485}, // Ukraine - Sevastopol
    {189070, -327, 5135, -36, 5326}, // UK - Cardiff to Lincoln
    {142333, 15600, -1426, 16201, -111}, // Papua New Guinea - 156°E to 162°E
    {142353, 16200, -436, 16281, -234}, // Papua New Guinea - east of 162°E
    {189220, -240, 5325, -139, 5355}, // UK - Manchester to Dore
    {189293, -330, 5150, -289, 5185}, // UK - Newport to Ebbw Vale
    {189152, -170, 5360, -27, 5390}, // UK - Leeds to Hull
    {189136, -460, 5740, -300, 5864}, // UK - Inverness to Thurso
    {189257, -440, 5570, -330, 5755}, // UK - Motherwell to Inverness
    {189234, -315, 5309, -210, 5365}, // UK - Manchester, Wigan and Chester
    {30304, -11321, -3054, -10800, -2372}, // Chile - west of 108°W
    {190330, -7851, 3864, -7048, 4274}, // USA - Amtrak NE corridor
};
// clang-format on

} // namespace ZrProj::systems::rows
