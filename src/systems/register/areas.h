// Areas of use: west, south, east, north in hundredths of a degree.
//
// Made by src/systems/make_register.py from the EPSG Geodetic Parameter Dataset v10.076 of 2022-08-31, which is IOGP's, as
// proj-data carries it, under the terms of use at https://epsg.org/terms-of-use.html. Other makers' names are of ArcGIS Pro 3.0
// of 2022-07-09 and of PROJ 9.1.1.
#pragma once

#include "systems/register/rows.h"

namespace ZrProj::systems::rows {

// clang-format off
inline constexpr AreaRow areas[] = {
    {5954, 6050, 2940, 7492, 3848}, // Afghanistan
    {7966, 1846, 3963, 2106, 4267}, // Albania
    {8405, -867, 1897, 1199, 3880}, // Algeria
    {8640, -17375, -1756, -16520, -1002}, // American Samoa
    {275815, 820, -1802, 2409, -438}, // Angola
    {9606, -18000, -9000, 18000, -6000}, // Antarctica
    {19966, -7359, -5841, -5263, -2178}, // Argentina
    {27182, 953, 4640, 1717, 4902}, // Austria
    {29900, 8801, 1856, 9267, 2664}, // Bangladesh
    {34247, -6883, 2891, -6070, 3573}, // Bermuda
    {34633, 8874, 2670, 9213, 2833}, // Bhutan
    {137309, -6966, -2291, -5752, -967}, // Bolivia
    {36304, -7401, -3571, -2528, 704}, // Brazil
    {38045, 11237, 401, 11537, 631}, // Brunei
    {38175, 2236, 4124, 3135, 4423}, // Bulgaria
    {42730, 832, 165, 1621, 1309}, // Cameroon
    {346284, -14101, 3821, -4073, 8646}, // Canada
    {46254, -2885, 1147, -1953, 2054}, // Cape Verde
    {46877, -8360, 1758, -7872, 2068}, // Cayman Islands
    {275600, -11321, -5987, -6572, -1750}, // Chile
    {47888, 7362, 1670, 13477, 5356}, // China
    {50103, 9676, -1227, 9699, -1176}, // Cocos (Keeling) Islands - onshore
    {50302, -8477, -423, -6687, 1551}, // Colombia
    {53045, 884, -691, 1865, 372}, // Congo
    {47196, -9045, 215, -8143, 1177}, // Costa Rica
    {55083, -861, 102, -248, 1074}, // Cote d'Ivoire (Ivory Coast)
    {55409, 1300, 4162, 1943, 4654}, // Croatia
    {55881, 1209, 4858, 1886, 5106}, // Czechia
    {60133, 4175, 1094, 4415, 1272}, // Djibouti
    {68974, 2470, 2189, 3791, 3382}, // Egypt
    {275697, -9143, 997, -8765, 1444}, // El Salvador
    {69808, 3644, 1236, 4331, 1810}, // Eritrea
    {69836, 2037, 5752, 2820, 6000}, // Estonia
    {75452, -1391, 5994, -48, 6570}, // Faroe Islands
    {76045, 17681, -2081, -17815, -1242}, // Fiji - onshore
    {76310, 1908, 5884, 3159, 7009}, // Finland
    {47261, -986, 4115, 1038, 5156}, // France
    {80026, -5461, 211, -4945, 888}, // French Guiana
    {80215, -15813, -3124, -13197, -452}, // French Polynesia
    {93338, 703, -637, 1452, 232}, // Gabon
    {95170, -379, 140, 210, 1116}, // Ghana
    {95972, -7500, 5638, 799, 8702}, // Greenland
    {48869, 11376, 2213, 11451, 2258}, // China - Hong Kong
    {101011, 1611, 4574, 2290, 4858}, // Hungary
    {103816, -3087, 5996, -555, 6959}, // Iceland
    {105395, 6560, 387, 9742, 3551}, // India
    {107301, 9201, -1395, 14146, 779}, // Indonesia
    {23752, 4403, 2334, 6334, 3978}, // Iran
    {75016, 3879, 2906, 4875, 3739}, // Iraq
    {112180, 3299, 2945, 3569, 3353}, // Israel
    {112518, 593, 3476, 1899, 4710}, // Italy
    {115088, -8060, 1408, -7451, 1936}, // Jamaica
    {115385, 12238, 1709, 15765, 4605}, // Japan
    {117135, 3488, 2918, 3931, 3338}, // Jordan
    {122760, 12271, 2860, 13428, 4027}, // Korea, Republic of (South Korea)
    {124491, 6924, 3919, 8029, 4322}, // Kyrgyzstan
    {126200, 10009, 1392, 10764, 2250}, // Laos
    {126709, 1906, 5567, 2824, 5809}, // Latvia
    {127013, 931, 1950, 2621, 3523}, // Libya
    {127554, 947, 4705, 964, 4728}, // Liechtenstein
    {72344, 1902, 5389, 2682, 5645}, // Lithuania
    {233886, 573, 4944, 653, 5019}, // Luxembourg
    {48887, 11352, 2206, 11368, 2223}, // China - Macao
    {229217, 2045, 4085, 2304, 4236}, // North Macedonia
    {134739, 4253, -2659, 5103, -1169}, // Madagascar - onshore and nearshore
    {22061, 9802, 85, 11961, 781}, // Malaysia
    {136291, 6929, -347, 7708, 810}, // Maldives
    {138102, -2004, 1472, -480, 2730}, // Mauritania
    {138507, 4368, -1449, 4670, -1133}, // Mayotte
    {139043, -12219, 1210, -8464, 3272}, // Mexico
    {142267, 2663, 4544, 3013, 4847}, // Moldova
    {144114, 3021, -2771, 4303, -1009}, // Mozambique
    {34561, 824, -3064, 2527, -1695}, // Namibia
    {219436, 8006, 2634, 8821, 3043}, // Nepal
    {271778, 15625, -2645, 17428, -1483}, // New Caledonia
    {223306, 16060, -5595, -17120, -2588}, // New Zealand
    {226226, 16, 1169, 1600, 2353}, // Niger
    {226250, 266, 192, 1465, 1390}, // Nigeria
    {236158, 5199, 1433, 6338, 2674}, // Oman
    {243122, 6086, 2105, 7783, 3707}, // Pakistan
    {243687, -8432, 500, -7704, 1251}, // Panama
    {243925, 13920, -1475, 16281, 258}, // Papua New Guinea
    {245188, -8468, -2105, -6867, -3}, // Peru
    {245665, 11604, 300, 12995, 2218}, // Philippines
    {65047, 1414, 4900, 2415, 5593}, // Poland
    {268791, 5055, 2455, 5304, 2705}, // Qatar
    {277456, 2026, 4344, 3141, 4827}, // Romania
    {346348, 1892, 3987, -16897, 8519}, // Russia
    {23654, 3444, 1629, 5567, 3216}, // Saudi Arabia
    {297811, -2022, 1064, -1136, 1670}, // Senegal
    {23566, 10359, 113, 10407, 147}, // Singapore
    {299396, 1684, 4773, 2256, 4961}, // Slovakia
    {299405, 1338, 4542, 1661, 4688}, // Slovenia
    {299643, 15562, -1090, 16244, -655}, // Solomon Islands - onshore main islands
    {305990, -5710, 4341, -5590, 4737}, // St Pierre and Miquelon
    {307486, -5808, 183, -5266, 935}, // Suriname
    {307558, 1003, 5496, 2417, 6907}, // Sweden
    {309971, 11432, 1736, 12361, 2696}, // Taiwan
    {312392, -15, 291, 242, 1114}, // Togo
    {313414, -17908, -2568, -17128, -1414}, // Tonga
    {6117, 749, 3023, 1367, 3841}, // Tunisia
    {314240, 2562, 3442, 4483, 4345}, // Turkey
    {329383, 2215, 4318, 4018, 5238}, // Ukraine
    {317522, 16765, 1556, -6569, 7471}, // USA
    {333146, -5849, -3777, -5001, -3009}, // Uruguay
    {334716, -7338, 64, -5895, 1675}, // Venezuela
    {356029, 17949, -1594, -17427, -984}, // Wallis and Futuna
    {304579, 4108, 895, 5796, 1900}, // Yemen
    {52378, 1179, -1346, 3131, 539}, // Congo DR (Zaire)
    {358170, -18000, -9000, 18000, 9000}, // World
    {231580, -18000, -9000, 18000, 9000}, // Not specified
    {316687, -882, 4979, 192, 6094}, // UK - Great Britain onshore and nearshore; Isle of Man
    {6546, 2182, 340, 4799, 2224}, // Africa - Eritrea, Ethiopia, South Sudan and Sudan
    {23613, 3451, 1637, 5567, 3216}, // Asia - Middle East - Bahrain, Kuwait and Saudi Arabia
    {15126, -6195, 1694, -6161, 1722}, // Antigua - onshore
    {36950, -5338, -3571, -2600, 426}, // Brazil - Aratu
    {219491, 320, 5075, 722, 5370}, // Netherlands - onshore
    {6339, 1999, -2688, 3593, -819}, // Africa - Botswana, Malawi, Zambia, Zimbabwe
    {6439, 2885, -1175, 4191, 463}, // Africa - Burundi, Kenya, Rwanda, Tanzania and Uganda
    {14729, 4500, -9000, 16000, -6000}, // Antarctica - Australian sector
    {24804, 10923, -4720, 16320, -130}, // Australasia - Australia and PNG - AGD66
    {44233, -6905, 4341, -5973, 4807}, // Canada - Maritime Provinces
    {109113, 9516, -891, 11577, 597}, // Indonesia - Bali, Java and western Sumatra onshore
    {73195, 596, 4582, 1049, 4781}, // Europe - Liechtenstein and Switzerland
    {109164, 10507, -330, 10835, -144}, // Indonesia - Banga & Belitung Islands
    {9198, 820, -1802, 2409, -582}, // Angola - Angola proper
    {6285, 1645, -3488, 3295, -1778}, // Africa - Botswana, Eswatini, Lesotho and South Africa
    {22974, 4695, 3735, 5393, 4697}, // Asia - FSU - Caspian Sea
    {36994, -5816, -3378, -3474, -268}, // Brazil - Corrego Alegre 1970-1972
    {247902, -956, 3695, -619, 4216}, // Portugal - mainland - onshore
    {72268, -1610, 2571, 4861, 8473}, // Europe - ED50 by country
    {73684, -1056, 3488, 3801, 8473}, // Europe - west
    {72293, -1610, 3288, 4018, 8473}, // Europe - ETRF by country
    {111620, 4713, 2621, 5361, 3322}, // Iran - FD58
    {247676, -2890, 3832, -2697, 3914}, // Portugal - Azores C - onshore
    {303536, -7483, -5596, -6373, -5165}, // South America - Tierra del Fuego
    {24222, 9220, 563, 10564, 2855}, // Asia - Myanmar and Thailand onshore
    {73126, -1056, 5139, -534, 5543}, // Europe - Ireland (Republic and Ulster) - onshore
    {72244, 1209, 4773, 2256, 5106}, // Europe - Czechoslovakia
    {21929, 6086, 802, 10117, 3707}, // Asia - Bangladesh; India; Myanmar; Pakistan - onshore
    {21929, 6086, 802, 10117, 3707}, // Asia - Bangladesh; India; Myanmar; Pakistan - onshore
    {23576, 9959, 113, 10460, 672}, // Asia - Malaysia (west) and Singapore
    {124105, 4778, 2917, 4816, 2945}, // Kuwait - Kuwait City
    {334790, -7240, 872, -7078, 1104}, // Venezuela - Lake Maracaibo
    {334948, -7338, 775, -5980, 1225}, // Venezuela - north of 7°45'N
    {247834, -1731, 3235, -1623, 3315}, // Portugal - Madeira archipelago onshore
    {144285, 3021, -1776, 3537, -1401}, // Mozambique - west - Tete province
    {109563, 11871, -654, 12078, -188}, // Indonesia - Sulawesi SW
    {9345, 1053, -604, 1310, -438}, // Angola - Cabinda
    {334861, -7225, 1000, -7150, 1100}, // Venezuela - Maracaibo area
    {72149, 953, 4085, 2304, 4902}, // Europe - Austria and former Yugoslavia onshore
    {313709, -6090, 1108, -6044, 1141}, // Trinidad and Tobago - Tobago - onshore
    {319353, -12479, 2441, -6691, 4938}, // USA - CONUS - onshore
    {79450, -487, 4233, 823, 5114}, // France - mainland onshore
    {79048, 850, 4131, 963, 4307}, // France - Corsica onshore
    {109438, 11672, -124, 11799, 0}, // Indonesia - Kalimantan - Mahakam delta
    {144266, 3129, -2687, 3565, -1984}, // Mozambique - south
    {318601, 17242, 5130, -12999, 7140}, // USA - Alaska
    {318863, -16988, 5649, -16938, 5667}, // USA - Alaska - St. George Island
    {318896, -17197, 6289, -16859, 6384}, // USA - Alaska - St. Lawrence Island
    {318931, -17051, 5706, -17004, 5728}, // USA - Alaska - St. Paul Island
    {320321, -16030, 1887, -15474, 2229}, // USA - Hawaii - onshore
    {46522, -6797, 1762, -6425, 1878}, // Caribbean - Puerto Rico and Virgin Islands - onshore
    {44113, -12000, 4461, -5710, 6256}, // Canada - CSRS98
    {320075, 14458, -1459, -6451, 7140}, // USA - HARN
    {111655, 5250, 2739, 5271, 2761}, // Iran - Taheri refinery
    {313748, -6209, 983, -6000, 1151}, // Trinidad and Tobago - Trinidad
    {373572, 4337, 1254, 5314, 1900}, // Yemen - South Yemen - mainland
    {298217, -1334, 832, -1313, 855}, // Sierra Leone - Freetown Peninsula
    {247736, -3134, 3930, -3102, 3977}, // Portugal - Azores W - onshore
    {247706, -2592, 3687, -2472, 3796}, // Portugal - Azores E - onshore
    {268797, 5069, 2455, 5168, 2620}, // Qatar - onshore
    {34120, 250, 4950, 640, 5151}, // Belgium - onshore
    {303430, -8141, -4350, -4799, 1268}, // South America - PSAD56 by country
    {228586, 16765, 715, -4774, 8317}, // North America - NAD27
    {228608, 16765, 1492, -4073, 8645}, // North America - NAD83
    {24074, 5055, 2263, 5713, 2705}, // Asia - Middle East - Qatar offshore and UAE
    {230088, 468, 5793, 3122, 7121}, // Norway - onshore
    {72196, -1056, 4981, 184, 6090}, // Europe - British Isles - UK and Ireland onshore
    {109587, 9516, -599, 10613, 597}, // Indonesia - Sumatra
    {23859, 3417, 2918, 3931, 3338}, // Asia - Middle East - Israel, Jordan and Palestine onshore
    {303464, -9172, -5596, -2528, 1252}, // South America - SAD69 by country
    {109502, 11455, -424, 11799, 0}, // Indonesia - Kalimantan SE
    {109477, 11455, -424, 11906, 429}, // Indonesia - Kalimantan E
    {307303, 0, 0, 0, 0}, // Sudan - south
    {22038, 10931, 85, 11961, 767}, // Asia - Brunei and East Malaysia
    {314591, 5156, 2263, 5603, 2534}, // UAE - Abu Dhabi and Dubai - onshore
    {23346, 12283, 2037, 15405, 4554}, // Asia - Japan and Korea
    {8541, -295, 3199, 909, 3714}, // Algeria - north of 32°N
    {6087, -1317, 1898, 1199, 3734}, // Africa - Algeria, Morocco and Tunisia
    {44609, -9516, 4167, -7435, 5690}, // Canada - Ontario
    {45130, -7985, 4499, -5710, 6262}, // Canada - Quebec
    {79032, 684, 4742, 823, 4907}, // France - Alsace
    {319404, -12445, 3253, -11412, 4201}, // USA - California
    {319771, -7373, 4098, -7178, 4205}, // USA - Connecticut
    {319789, -7580, 3844, -7497, 3985}, // USA - Delaware
    {319814, -8763, 2441, -7997, 3101}, // USA - Florida
    {320344, -11724, 4199, -11104, 4901}, // USA - Idaho
    {322641, -10206, 3699, -9458, 4001}, // USA - Kansas
    {323182, -8957, 3649, -8195, 3915}, // USA - Kentucky
    {323249, -9405, 2885, -8875, 3303}, // USA - Louisiana
    {323471, -7949, 3797, -7497, 3973}, // USA - Maryland
    {323561, -9042, 4169, -8213, 4832}, // USA - Michigan
    {323823, -9165, 3001, -8809, 3501}, // USA - Mississippi
    {323977, -11607, 4435, -10404, 4901}, // USA - Montana
    {324360, -10406, 3999, -9530, 4301}, // USA - Nebraska
    {324568, -7256, 4269, -7063, 4531}, // USA - New Hampshire
    {324588, -7560, 3887, -7388, 4136}, // USA - New Jersey
    {324867, -8433, 3383, -7538, 3659}, // USA - North Carolina
    {325044, -12460, 4198, -11647, 4626}, // USA - Oregon
    {326360, -7185, 4113, -7108, 4202}, // USA - Rhode Island
    {326379, -8336, 3205, -7852, 3521}, // USA - South Carolina
    {326528, -9031, 3498, -8165, 3668}, // USA - Tennessee
    {326544, -10666, 2583, -9350, 3650}, // USA - Texas
    {326794, -7344, 4272, -7150, 4503}, // USA - Vermont
    {326808, -8368, 3654, -7531, 3946}, // USA - Virginia
    {327057, -9289, 4248, -8625, 4731}, // USA - Wisconsin
    {328824, -11106, 4099, -10405, 4501}, // USA - Wyoming
    {45476, -5700, 4660, -5400, 5376}, // Canada - Quebec - east of 57°W
    {45146, -6000, 5010, -5710, 5200}, // Canada - Quebec - 60°W to 57°W
    {45179, -6300, 4716, -6000, 5201}, // Canada - Quebec - 63°W to 60°W
    {45245, -6600, 4795, -6300, 6042}, // Canada - Quebec - 66°W to 63°W
    {45278, -6900, 4731, -6600, 5900}, // Canada - Quebec - 69°W to 66°W
    {45344, -7200, 4501, -6900, 6180}, // Canada - Quebec - 72°W to 69°W
    {45377, -7500, 4499, -7200, 6253}, // Canada - Quebec - 75°W to 72°W
    {45443, -7800, 4537, -7500, 6262}, // Canada - Quebec - 78°W to 75°W
    {45540, -7985, 4623, -7800, 6245}, // Canada - Quebec - west of 78°W
    {44966, -7500, 4498, -7435, 4565}, // Canada - Ontario - east of 75°W
    {44626, -7800, 4363, -7500, 4625}, // Canada - Ontario - 78°W to 75°W
    {44842, -8100, 4226, -7799, 4733}, // Canada - Ontario - MTM zone 10
    {44873, -8360, 4167, -8100, 4600}, // Canada - Ontario - MTM zone 11
    {44904, -8250, 4600, -7950, 5521}, // Canada - Ontario - MTM zone 12
    {44935, -8550, 4600, -8250, 5559}, // Canada - Ontario - MTM zone 13
    {44694, -8850, 4717, -8550, 5670}, // Canada - Ontario - 88.5°W to 85.5°W
    {44766, -9150, 4797, -8850, 5690}, // Canada - Ontario - 91.5°W to 88.5°W
    {44804, -9450, 4806, -9150, 5520}, // Canada - Ontario - 94.5°W to 91.5°W
    {45065, -9516, 4869, -9450, 5324}, // Canada - Ontario - west of 94.5°W
    {45032, -9516, 4803, -9000, 5620}, // Canada - Ontario - west of 90°W
    {44732, -9000, 4611, -8400, 5690}, // Canada - Ontario - 90°W to 84°W
    {44660, -8400, 4167, -7800, 5537}, // Canada - Ontario - 84°W to 78°W
    {44999, -7800, 4363, -7435, 4625}, // Canada - Ontario - east of 78°W
    {45410, -7800, 4499, -7200, 6262}, // Canada - Quebec - 78°W to 72°W
    {45311, -7200, 4501, -6600, 6180}, // Canada - Quebec - 72°W to 66°W
    {45212, -6600, 4716, -6000, 6042}, // Canada - Quebec - 66°W to 60°W
    {45508, -6000, 5020, -5710, 5201}, // Canada - Quebec - east of 60°W
    {44362, -6905, 4456, -6370, 4807}, // Canada - New Brunswick
    {43782, -7200, 4460, -6600, 6150}, // Canada - 72°W to 66°W, south of 62°N
    {43718, -6600, 4320, -6000, 6000}, // Canada - 66°W to 60°W, south of 60°N
    {55111, -600, 492, -248, 1046}, // Cote d'Ivoire (Ivory Coast) - east of 6°W
    {55193, -861, 429, -600, 1074}, // Cote d'Ivoire (Ivory Coast) - west of 6°W
    {336029, 10214, 833, 10800, 2340}, // Vietnam - west of 108°E onshore
    {335876, 10800, 1043, 10953, 2156}, // Vietnam - east of 108°E onshore
    {218913, 1435, -2315, 1460, -2268}, // Namibia - Walvis Bay
    {300138, 1645, -3310, 1800, -2803}, // South Africa - west of 18°E
    {299792, 1799, -3488, 2000, -2838}, // South Africa - 18°E to 20°E
    {299822, 1999, -3488, 2201, -2476}, // South Africa - 20°E to 22°E
    {299852, 2200, -3426, 2401, -2526}, // South Africa - 22°E to 24°E
    {299882, 2400, -3426, 2601, -2471}, // South Africa - 24°E to 26°E
    {299912, 2600, -3383, 2800, -2292}, // South Africa - 26°E to 28°E
    {299942, 2799, -3303, 3001, -2213}, // South Africa - 28°E to 30°E
    {299972, 2999, -3138, 3202, -2222}, // South Africa - 30°E to 32°E
    {300062, 3195, -2894, 3295, -2680}, // South Africa - east of 32°E
    {111707, 4403, 3099, 4800, 3978}, // Iran - west of 48°E
    {111576, 4800, 2547, 5400, 3971}, // Iran - 48°E to 54°E
    {111598, 5400, 2532, 6000, 3829}, // Iran - 54°E to 60°E
    {111678, 6000, 2502, 6334, 3706}, // Iran - east of 60°E onshore
    {97638, -1513, 901, -1200, 1268}, // Guinea - west of 12°W
    {97598, -1200, 719, -765, 1251}, // Guinea - east of 12°W
    {127396, 931, 2537, 1001, 3049}, // Libya - west of 10°E
    {127019, 1000, 2351, 1200, 3323}, // Libya - 10°E to 12°E onshore
    {127050, 1200, 2280, 1400, 3306}, // Libya - 12°E to 14°E onshore
    {127135, 1400, 2261, 1600, 3279}, // Libya - 14°E to 16°E onshore
    {127166, 1600, 2251, 1801, 3134}, // Libya - 16°E to 18°E onshore
    {127197, 1800, 2154, 2000, 3217}, // Libya - 18°E to 20°E onshore
    {127282, 2000, 2054, 2200, 3300}, // Libya - 20°E to 22°E onshore
    {127313, 2200, 1950, 2400, 3297}, // Libya - 22°E to 24°E onshore
    {127366, 2400, 1999, 2521, 3215}, // Libya - east of 24°E onshore
    {127440, 931, 2351, 1200, 3323}, // Libya - west of 12°E onshore
    {127104, 1200, 2251, 1801, 3306}, // Libya - 12°E to 18°E onshore
    {127251, 1799, 1950, 2400, 3300}, // Libya - 18°E to 24°E onshore
    {127470, 931, 2261, 1500, 3323}, // Libya - west of 15°E onshore
    {20564, -7051, -4341, -6749, -3191}, // Argentina - Mendoza and Neuquen 70.5°W to 67.5°W
    {20007, -7050, -5034, -6749, -4249}, // Argentina - 42.5°S to 50.3°S and 70.5°W to 67.5°W
    {20756, -6864, -5490, -6750, -5259}, // Argentina - Tierra del Fuego onshore west of 67.5°W
    {55644, -8501, 2138, -7691, 2325}, // Cuba - onshore north of 21°30'N
    {55677, -7869, 1977, -7407, 2150}, // Cuba - onshore south of 21°30'N
    {314157, 781, 3322, 1367, 3841}, // Tunisia - offshore
    {373526, 4200, 1157, 4801, 1795}, // Yemen - 42°E to 48°E
    {373549, 4800, 945, 5401, 1900}, // Yemen - 48°E to 54°E
    {373648, 4337, 1254, 4801, 1795}, // Yemen - South Yemen - mainland west of 48°E
    {373603, 4800, 1394, 5314, 1900}, // Yemen - South Yemen - mainland east of 48°E
    {335961, 10549, 903, 10758, 1104}, // Vietnam - onshore Vung Tau area
    {335909, 10654, 799, 11000, 1115}, // Vietnam - offshore Cuu Long basin
    {123091, 12800, 3449, 12965, 3864}, // Korea, Republic of (South Korea) - east of 128°E onshore
    {122971, 12600, 3314, 12800, 3833}, // Korea, Republic of (South Korea) - 126°E to 128°E onshore
    {122793, 12453, 3399, 12600, 3804}, // Korea, Republic of (South Korea) - 124°E to 126°E onshore
    {334817, -7150, 1000, -7117, 1051}, // Venezuela - Maracaibo - blocks I II and III
    {223427, 17199, -4167, 17863, -3410}, // New Zealand - North Island
    {224928, 16200, -5589, 16800, -3968}, // New Zealand - offshore 162°E to168°E
    {224967, 16800, -5595, 17400, -3078}, // New Zealand - offshore 168°E to 174°E
    {225007, 17400, -5432, 18000, -2642}, // New Zealand - offshore 174°E to 180°E
    {95176, -379, 140, 210, 606}, // Ghana - offshore
    {43306, -10800, 4900, -10200, 6000}, // Canada - 108°W to 102°W, south of 60°N
    {43374, -11400, 4900, -10800, 6000}, // Canada - 114°W to 108°W, south of 60°N
    {43442, -12000, 4900, -11400, 6000}, // Canada - 120°W to 114°W, south of 60°N
    {298303, -1335, 715, -1200, 994}, // Sierra Leone - west of 12°W
    {298251, -1200, 688, -1026, 1000}, // Sierra Leone - east of 12°W
    {319375, 16765, 1492, -6388, 7471}, // USA - CONUS and Alaska; PRVI
    {94446, 992, 5035, 1050, 5156}, // Germany - East Germany - west of 10.5°E
    {70188, 1050, 4897, 1350, 5474}, // Europe - 10.5°E to 13.5°E onshore by country
    {70585, 1350, 4654, 1650, 5472}, // Europe - 13.5°E to 16.5°E onshore and S-42(83) by country
    {246859, 1800, 4900, 2415, 5234}, // Poland - zone I
    {246875, 1900, 5133, 2395, 5451}, // Poland - zone II
    {246892, 1414, 5216, 2000, 5489}, // Poland - zone III
    {246910, 1414, 4939, 1909, 5334}, // Poland - zone IV
    {246927, 1833, 4939, 1967, 5134}, // Poland - zone V
    {246834, 1414, 5026, 1650, 5535}, // Poland - west of 16.5°E
    {246736, 1650, 4939, 1950, 5593}, // Poland - 16.5°E to 19.5°E
    {246764, 1950, 4909, 2250, 5455}, // Poland - 19.5°E to 22.5°E
    {246792, 2250, 4900, 2415, 5441}, // Poland - east of 22.5°E
    {314452, 2562, 3650, 2850, 4211}, // Turkey - west of 28.5°E onshore
    {314247, 2850, 3606, 3150, 4146}, // Turkey - 28.5°E to 31.5°E onshore
    {314283, 3150, 3597, 3450, 4207}, // Turkey - 31.5°E to 34.5°E onshore
    {314319, 3450, 3581, 3750, 4215}, // Turkey - 34.5°E to 37.5°E onshore
    {314355, 3750, 3666, 4050, 4119}, // Turkey - 37.5°E to 40.5°E onshore
    {314391, 4050, 3702, 4350, 4160}, // Turkey - 40.5°E to 43.5°E onshore
    {314427, 4350, 3697, 4483, 4102}, // Turkey - east of 43.5°E
    {44305, -6900, 4364, -6600, 4807}, // Canada - Maritime Provinces - west of 66°W
    {44261, -6600, 4341, -5973, 4798}, // Canada - Maritime Provinces - east of 66°W
    {45100, -6449, 4590, -6190, 4709}, // Canada - Prince Edward Island
    {44535, -6300, 4464, -5973, 4708}, // Canada - Nova Scotia - east of 63°W
    {44572, -6628, 4341, -6300, 4602}, // Canada - Nova Scotia - west of 63°W
    {76400, 1950, 5976, 2250, 6933}, // Finland - 19.5°E to 22.5°E onshore
    {76683, 2250, 5975, 2550, 6890}, // Finland - 22.5°E to 25.5°E onshore
    {76966, 2550, 6018, 2851, 7009}, // Finland - 25.5°E to 28.5°E onshore
    {77233, 2850, 6094, 3150, 6981}, // Finland - 28.5°E to 31.5°E
    {144231, 3021, -2687, 3600, -1141}, // Mozambique - onshore west of 36°E
    {144196, 3599, -1898, 4090, -1042}, // Mozambique - onshore east of 36°E
    {22227, 10214, 833, 10800, 2340}, // Asia - Cambodia and Vietnam - west of 108°E
    {236296, 5199, 1659, 5400, 1967}, // Oman - onshore west of 54°E
    {236267, 5400, 1689, 5991, 2658}, // Oman - onshore east of 54°E
    {320279, -15610, 1887, -15474, 2033}, // USA - Hawaii - island of Hawaii - onshore
    {320117, -15736, 2045, -15593, 2126}, // USA - Hawaii - Maui; Kahoolawe; Lanai; Molokai - onshore
    {320206, -15833, 2120, -15761, 2175}, // USA - Hawaii - Oahu - onshore
    {320086, -15985, 2181, -15923, 2229}, // USA - Hawaii - Kauai - onshore
    {320174, -16030, 2173, -15999, 2207}, // USA - Hawaii - Niihau - onshore
    {97070, -6184, 1194, -6135, 1257}, // Grenada and southern Grenadines - onshore
    {6492, 3600, 340, 4200, 2201}, // Africa - Eritrea, Ethiopia and Sudan - 36°E to 42°E
    {70077, 4200, 411, 4799, 1285}, // Ethiopia - east of 42°E
    {299695, 4200, 0, 4800, 1152}, // Somalia - 42°E to 48°E, N hemisphere onshore
    {299760, 4800, 444, 5147, 1203}, // Somalia - onshore east of 48°E
    {24844, 10200, -5600, 10800, -1000}, // Australia - 102°E to 108°E
    {24873, 10923, -3784, 11400, -1719}, // Australia - 108°E to 114°E (EEZ)
    {24937, 11400, -3853, 12000, -1261}, // Australia - 114°E to 120°E (EEZ)
    {24972, 12000, -3807, 12601, -1046}, // Australia - 120°E to 126°E
    {25001, 12599, -3738, 13200, -910}, // Australia - 126°E to 132°E
    {25030, 13200, -4071, 13801, -888}, // Australia - 132°E to 138°E
    {25059, 13800, -4819, 14401, -908}, // Australia - 138°E to 144°E
    {25088, 14400, -5089, 15001, -923}, // Australia - 144°E to 150°E
    {25117, 15000, -5896, 15600, -1387}, // Australia - 150°E to 156°E
    {25146, 15600, -3513, 16201, -1408}, // Australia - 156°E to 162°E
    {25304, 16200, -3422, 16320, -2725}, // Australia - EEZ east of 162°E
    {24651, 13800, -4663, 14401, -253}, // Australasia - Australia and PNG - 138°E to 144°E
    {24702, 14400, -4720, 15001, -130}, // Australasia - Australia and PNG - 144°E to 150°E
    {296987, 3600, 1659, 4200, 3216}, // Saudi Arabia - onshore 36°E to 42°E
    {23972, 4799, 1794, 5401, 3004}, // Asia - Middle East - Kuwait and Saudi - 48°E to 54°E
    {23917, 4200, 1637, 4801, 3115}, // Asia - Middle East - Kuwait and Saudi - 42°E to 48°E
    {36740, -5338, -3571, -4799, -2501}, // Brazil - 54°W to 48°W and Aratu
    {36575, -4801, -3350, -4199, 0}, // Brazil - 48°W to 42°W and Aratu
    {36392, -4201, -2635, -3600, 1}, // Brazil - 42°W to 36°W and Aratu
    {6240, 1999, -2688, 2400, -1086}, // Africa - Botswana and Zambia - west of 24°E
    {6383, 2400, -2584, 3000, -831}, // Africa - Botswana, Zambia and Zimbabwe - 24°E to 30°E
    {6844, 3000, -2242, 3593, -819}, // Africa - Malawi, Zambia and Zimbabwe - east of 30°E
    {329268, 2971, 0, 3000, 86}, // Uganda - north of equator and west of 30°E
    {7036, 2934, -681, 3000, 0}, // Africa - Tanzania and Uganda - south of equator and west of 30°E
    {6706, 2999, 0, 3600, 463}, // Africa - Kenya and Uganda - north of equator and 30°E to 36°E
    {6770, 2999, -1161, 3600, 1}, // Africa - Kenya, Tanzania and Uganda - south of equator and 30°E to 36°E
    {121285, 3600, 0, 4191, 449}, // Kenya - north of equator and east of 36°E
    {6641, 3600, -1175, 4160, 0}, // Africa - Kenya and Tanzania - south of equator and east of 36°E
    {109344, 10506, -779, 10800, -407}, // Indonesia - Java and Java Sea - west of 108°E
    {109297, 11400, -891, 11701, -533}, // Indonesia - Java and Java Sea - east of 114°E
    {109248, 10800, -867, 11400, -427}, // Indonesia - Java and Java Sea - 108°E to 114°E
    {49026, 7362, 3542, 7801, 4107}, // China - west of 78°E
    {48586, 7798, 2916, 8400, 4723}, // China - 78°E to 84°E
    {48663, 8400, 2732, 9000, 4918}, // China - 84°E to 90°E
    {48740, 9000, 2771, 9601, 4790}, // China - 90°E to 96°E
    {48817, 9600, 2113, 10201, 4318}, // China - 96°E to 102°E
    {47948, 10200, 2153, 10800, 4247}, // China - 102°E to 108°E onshore
    {48072, 10800, 1811, 11400, 4511}, // China - 108°E to 114°E onshore
    {48204, 11400, 2214, 12000, 5152}, // China - 114°E to 120°E onshore
    {48336, 12000, 2634, 12600, 5356}, // China - 120°E to 126°E onshore
    {48468, 12600, 4089, 13200, 5279}, // China - 126°E to 132°E onshore
    {48901, 13200, 4502, 13477, 4840}, // China - east of 132°E
    {51376, -7910, 3, -7558, 1021}, // Colombia - west of 75°35'W
    {50343, -7559, -251, -7258, 1182}, // Colombia - 75°35'W to 72°35'W
    {50311, -7259, -423, -6958, 1252}, // Colombia - 72°35'W to 69°35'W
    {51207, -6959, -225, -6687, 631}, // Colombia - east of 69°35'W
    {51342, 0, 0, 0, 0}, // Colombia - offshore west of 78°W
    {51298, -7737, 790, -7200, 1368}, // Colombia - offshore Caribbean west of 72°W
    {9261, 820, -1726, 1386, -601}, // Angola - Angola proper - offshore
    {9385, 1083, -659, 1167, -603}, // Angola - offshore block 15
    {9295, 820, -1726, 1200, -603}, // Angola - Angola proper - offshore - west of 12°E
    {9221, 1200, -1744, 1800, -582}, // Angola - Angola proper - 12°E to 18°E
    {21010, -7359, -5200, -7050, -3616}, // Argentina - west of 70.5°W
    {20463, -7050, -5490, -6749, -2408}, // Argentina - 70.5°W to 67.5°W onshore
    {20376, -6750, -5511, -6449, -2178}, // Argentina - 67.5°W to 64.5°W onshore
    {20289, -6450, -5491, -6150, -2199}, // Argentina - 64.5°W to 61.5°W onshore
    {20202, -6151, -3906, -5850, -2337}, // Argentina - 61.5°W to 58.5°W onshore
    {20163, -5850, -3859, -5549, -2484}, // Argentina - 58.5°W to 55.5°W onshore
    {20809, -5550, -2811, -5365, -2549}, // Argentina - east of 55.5°W onshore
    {36279, 1999, -2688, 2400, -1799}, // Botswana - west of 24°E
    {36228, 2100, -2688, 2700, -1778}, // Botswana - 21°E to 27°E
    {36254, 2400, -2584, 2938, -1778}, // Botswana - east of 24°E
    {314176, 749, 3023, 1159, 3740}, // Tunisia - onshore
    {314129, 818, 3465, 1137, 3740}, // Tunisia - north of 34°39'N
    {314194, 749, 3023, 1159, 3466}, // Tunisia - south of 34°39'N
    {24027, 3504, 3231, 4238, 3730}, // Asia - Middle East - Lebanon and Syria onshore
    {94812, 586, 4911, 750, 5381}, // Germany - West Germany - west of 7.5°E
    {94886, 750, 4727, 1051, 5509}, // Germany - West-Germany - 7.5°E to 10.5°E
    {94727, 1050, 4739, 1351, 5459}, // Germany - West Germany - 10.5°E to 13.5°E
    {94771, 1350, 4851, 1384, 4898}, // Germany - West Germany - east of 13.5°E
    {95122, 0, 0, 0, 0}, // Germany - west of 4.5°E
    {317095, -505, 5103, 340, 6203}, // UK - offshore - North Sea
    {219468, 253, 5145, 641, 5577}, // Netherlands - offshore
    {70967, -1610, 4843, -1200, 5657}, // Europe - 18°W to 12°W and ED50 by country
    {70437, -1200, 3613, -600, 6241}, // Europe - 12°W to 6°W and ED50 by country
    {72063, -600, 3526, 1, 8049}, // Europe - 6°W to 0°W and ED50 by country
    {70102, 0, 3856, 601, 8245}, // Europe - 0°E to 6°E and ED50 by country
    {71929, 599, 3653, 1201, 8433}, // Europe - 6°E to 12°E and ED50 by country
    {70235, 1200, 3449, 1801, 8442}, // Europe - 12°E to 18°E and ED50 by country
    {70765, 1799, 3359, 2401, 8454}, // Europe - 18°E to 24°E and ED50 by country
    {71297, 2400, 2571, 3001, 8473}, // Europe - 24°E to 30°E and ED50 by country
    {71587, 3000, 2919, 3600, 8470}, // Europe - 30°E to 36°E and ED50 by country
    {71701, 3600, 2918, 4200, 7907}, // Europe - 36°E to 42°E and ED50 by country
    {71815, 4200, 3697, 4483, 4160}, // Europe - 42°E to 48°E and ED50 by country
    {69024, 3300, 2197, 3695, 3136}, // Egypt - east of 33°E onshore
    {68980, 2900, 2199, 3427, 3382}, // Egypt - 29°E to 33°E
    {69070, 2470, 2818, 2900, 3168}, // Egypt - west of 29°E; north of 28°11'N
    {69111, 2499, 2199, 2901, 2819}, // Egypt - west of 29°E; south of 28°11'N
    {72318, 1902, 5389, 2824, 6000}, // Europe - Estonia; Latvia; Lithuania
    {109770, 9201, 0, 9600, 779}, // Indonesia - west of 96°E, N hemisphere
    {109810, 0, 0, 0, 0}, // Indonesia - west of 96°E, S hemisphere
    {108832, 9600, 0, 10200, 749}, // Indonesia - 96°E to 102°E, N hemisphere
    {108924, 9600, -886, 10200, 0}, // Indonesia - 96°E to 102°E, S hemisphere
    {107348, 10200, 0, 10800, 694}, // Indonesia - 102°E to 108°E, N hemisphere
    {107442, 10200, -1073, 10801, 0}, // Indonesia - 102°E to 108°E, S hemisphere
    {107610, 10800, 0, 11400, 737}, // Indonesia - 108°E to 114°E, N hemisphere
    {107704, 10800, -1207, 11400, 0}, // Indonesia - 108°E to 114°E, S hemisphere
    {107872, 11400, 0, 12000, 437}, // Indonesia - 114°E to 120°E, N hemisphere
    {107966, 11400, -1306, 12001, 0}, // Indonesia - 114°E to 120°E, S hemisphere
    {108134, 12000, 0, 12600, 548}, // Indonesia - 120°E to 126°E, N hemisphere
    {108228, 12000, -1395, 12601, 1}, // Indonesia - 120°E to 126°E, S hemisphere
    {108396, 12600, 0, 13200, 668}, // Indonesia - 126°E to 132°E, N hemisphere
    {108490, 12600, -945, 13200, 0}, // Indonesia - 126°E to 132°E, S hemisphere
    {108658, 0, 0, 0, 0}, // Indonesia - 132°E to 138°E, N hemisphere
    {108701, 13200, -1006, 13801, 0}, // Indonesia - 132°E to 138°E, S hemisphere
    {109675, 13800, -1084, 14146, 0}, // Indonesia - east of 138°E, S hemisphere
    {144551, 9220, 1566, 9601, 2714}, // Myanmar (Burma) - onshore west of 96°E
    {24176, 9599, 563, 10201, 2855}, // Asia - Myanmar and Thailand - 96°E to 102°E
    {311931, 10200, 602, 10564, 1844}, // Thailand - east of 102°E
    {311957, 9734, 563, 10201, 2046}, // Thailand - onshore and GoT 96°E to102°E
    {243156, 7118, 3558, 7701, 3707}, // Pakistan - north of 35°35'N
    {23237, 6086, 2800, 8164, 3559}, // Asia - India; Pakistan - 28°N to 35°35'N
    {23280, 6159, 2100, 8201, 2801}, // Asia - India; Pakistan - onshore 21°N to 28°N and west of 82°E
    {21983, 8200, 2100, 10117, 2947}, // Asia - Bangladesh; India; Myanmar; Pakistan - zone Ilb
    {106175, 7014, 1500, 8715, 2101}, // India - onshore 15°N to 21°N
    {106102, 7394, 802, 8040, 1501}, // India - mainland south of 15°N
    {29967, 8801, 2159, 9000, 2664}, // Bangladesh - onshore west of 90°E
    {29932, 9000, 2052, 9267, 2529}, // Bangladesh - onshore east of 90°E
    {106134, 7035, 2800, 8164, 3551}, // India - north of 28°N
    {106206, 6813, 2100, 8201, 2801}, // India - onshore 21°N to 28°N and west of 82°E
    {106317, 8200, 2100, 9742, 2947}, // India - onshore north of 21°N and east of 82°E
    {106366, 6813, 2064, 7201, 2822}, // India - onshore west of 72°E
    {106038, 7200, 802, 7801, 3551}, // India - mainland 72°E to 78°E
    {106255, 7800, 829, 8401, 3550}, // India - onshore 78°E to 84°E
    {106286, 8400, 1818, 9001, 2814}, // India - onshore 84°E to 90°E
    {106070, 9000, 2194, 9601, 2942}, // India - mainland 90°E to 96°E
    {105999, 9600, 2710, 9742, 2947}, // India - east of 96°E
    {23251, 6086, 2800, 7783, 3559}, // Pakistan - 28°N to 35°35'N
    {243219, 6159, 2364, 7191, 2801}, // Pakistan - onshore south of 28°N
    {243253, 6086, 2498, 6601, 2987}, // Pakistan - onshore west of 66°E
    {243185, 6600, 2364, 7201, 3656}, // Pakistan - onshore 66°E to 72°E
    {243131, 7200, 2821, 7783, 3707}, // Pakistan - east of 72°E
    {136170, 9959, 121, 10460, 672}, // Malaysia - West Malaysia - onshore
    {136205, 9959, 229, 10201, 672}, // Malaysia - West Malaysia - onshore west of 102°E
    {136128, 10200, 121, 10582, 781}, // Malaysia - West Malaysia - east of 102°E
    {334997, -7338, 702, -7199, 1162}, // Venezuela - west of 72°W
    {334754, -7200, 73, -6600, 1225}, // Venezuela - 72°W and 66°W onshore
    {334914, -6600, 64, -5980, 1123}, // Venezuela - east of 66°W onshore
    {93344, 925, 0, 1200, 232}, // Gabon - north of equator and west of 12°E onshore
    {93411, 703, -637, 1201, 232}, // Gabon - west of 12°E
    {245699, 11604, 621, 11800, 1864}, // Philippines - zone I
    {245749, 11800, 302, 12007, 2042}, // Philippines - zone II
    {245801, 11970, 300, 12221, 2162}, // Philippines - zone III
    {245855, 12174, 344, 12429, 2218}, // Philippines - zone IV
    {245907, 12373, 476, 12665, 2197}, // Philippines - zone V
    {143853, -985, 3149, -101, 3597}, // Morocco - north of 31.5°N
    {143880, -1700, 2106, -867, 2790}, // Morocco - south of 27.9°N
    {27248, 953, 4677, 1184, 4761}, // Austria - west of 11°50'E
    {27190, 1183, 4640, 1484, 4879}, // Austria - 11°50'E to 14°50'E
    {27221, 1483, 4656, 1717, 4902}, // Austria - east of 14°50'E
    {73557, 1338, 4295, 1650, 4688}, // Europe - former Yugoslavia onshore west of 16.5°E
    {73398, 1650, 4179, 1951, 4655}, // Europe - former Yugoslavia onshore 16.5°E to 19.5°E
    {73452, 1950, 4185, 2251, 4619}, // Europe - former Yugoslavia onshore 19.5°E to 22.5°E
    {73506, 2250, 4111, 2304, 4470}, // Europe - former Yugoslavia onshore east of 22.5°E
    {226286, 1049, 643, 1465, 1372}, // Nigeria - east of 10.5°E
    {226258, 650, 357, 1051, 1353}, // Nigeria - 6.5°E to 10.5°E
    {226421, 269, 357, 650, 1390}, // Nigeria - west of 6.5°E
    {226376, 266, 192, 600, 614}, // Nigeria - offshore deep water - west of 6°E
    {112655, 593, 3653, 1200, 4704}, // Italy - west of 12°E
    {112570, 1200, 3476, 1899, 4710}, // Italy - east of 12°E
    {323602, -8487, 4169, -8213, 4604}, // USA - Michigan - SPCS - E
    {323706, -8761, 4175, -8460, 4611}, // USA - Michigan - SPCS - old central
    {323628, -9042, 4508, -8344, 4832}, // USA - Michigan - SPCS - N
    {323576, -8706, 4380, -8227, 4592}, // USA - Michigan - SPCS - C
    {323654, -8720, 4169, -8213, 4422}, // USA - Michigan - SPCS - S
    {144153, 3264, -2771, 4303, -1009}, // Mozambique - offshore
    {307495, -5725, 534, -5266, 935}, // Suriname - offshore
    {8566, -222, 3464, 864, 3714}, // Algeria - north of 34°39'N
    {8436, -385, 3149, 922, 3466}, // Algeria - 31°30'N to 34°39'N
    {79381, -487, 4814, 823, 5114}, // France - mainland north of 48.15°N
    {79283, -480, 4544, 763, 4815}, // France - mainland 45.45°N to 48.15°N
    {79554, -179, 4233, 771, 4546}, // France - mainland south of 45.45°N
    {79322, -487, 4233, 823, 5114}, // France - mainland 45.45°N to 48.15°N. Also all mainland.
    {8594, -867, 2573, -600, 2985}, // Algeria - west of 6°W
    {124174, 4654, 2853, 4800, 3009}, // Kuwait - west of 48°E onshore
    {124126, 4800, 2854, 4848, 3004}, // Kuwait - east of 48°E onshore
    {230979, 468, 5793, 723, 6306}, // Norway - zone I
    {230995, 722, 5795, 956, 6387}, // Norway - zone II
    {231012, 955, 5884, 1198, 6576}, // Norway - zone III
    {231030, 1197, 5988, 1506, 6906}, // Norway - zone IV
    {231047, 1505, 6615, 1889, 7019}, // Norway - zone V
    {231063, 1888, 6833, 2289, 7081}, // Norway - zone VI
    {231080, 2288, 6858, 2698, 7121}, // Norway - zone VII
    {231098, 2697, 6902, 3122, 7117}, // Norway - zone VIII
    {24118, 5055, 2276, 5401, 2705}, // Asia - Middle East - Qatar offshore and UAE west of 54°E
    {314702, 5400, 2263, 5713, 2627}, // UAE - east of 54°E
    {245280, -7300, -1839, -6867, -214}, // Peru - east of 73°W
    {245215, -7900, -1657, -7300, -3}, // Peru - 79°W to 73°W
    {245301, -8141, -832, -7900, -338}, // Peru - west of 79°W
    {36923, -5164, -105, -4800, 560}, // Brazil - Amazon cone shelf
    {303153, -8141, -1053, -7800, 0}, // South America - 84°W to 78°W, S hemisphere and PSAD56 by country
    {302496, -7800, 0, -7199, 1162}, // South America - 78°W to 72°W, N hemisphere and PSAD56 by country
    {302629, -7800, -4350, -7199, 0}, // South America - 78°W to 72°W, S hemisphere and PSAD56 by country
    {302022, -7200, 73, -6600, 1268}, // South America - 72°W to 66°W, N hemisphere and PSAD56 by country
    {302259, -7200, -4350, -6600, -214}, // South America - 72°W to 66°W, S hemisphere and PSAD56 by country
    {301589, -6600, 64, -5999, 1123}, // South America - 66°W to 60°W, N hemisphere and PSAD56 by country
    {36030, -6600, -2287, -6000, -967}, // Bolivia - 66°W to 60°W
    {301156, -6000, 118, -5647, 858}, // South America - 60°W to 54°W, N hemisphere and PSAD56 by country
    {280814, 1957, 5432, 2287, 5532}, // Russia - west of 24°E onshore
    {279405, 2661, 5569, 3000, 6947}, // Russia - 24°E to 30°E onshore
    {279509, 3000, 5034, 3600, 7002}, // Russia - 30°E to 36°E onshore
    {279613, 3600, 4318, 4201, 6923}, // Russia - 36°E to 42°E onshore
    {279717, 4200, 4119, 4800, 8091}, // Russia - 42°E to 48°E onshore
    {279821, 4800, 4139, 5400, 8140}, // Russia - 48°E to 54°E onshore
    {279925, 5400, 5047, 6000, 8191}, // Russia - 54°E to 60°E onshore
    {280029, 6000, 5066, 6600, 8177}, // Russia - 60°E to 66°E onshore
    {280133, 6600, 5410, 7200, 7707}, // Russia - 66°E to 72°E onshore
    {280237, 7200, 5317, 7800, 7971}, // Russia - 72°E to 78°E onshore
    {280341, 7800, 5069, 8400, 8103}, // Russia - 78°E to 84°E onshore
    {280445, 8400, 4907, 9000, 8127}, // Russia - 84°E to 90°E onshore
    {280549, 9000, 4989, 9600, 8135}, // Russia - 90°E to 96°E onshore
    {280653, 9600, 4973, 10200, 8132}, // Russia - 96°E to 102°E onshore
    {277756, 10200, 4964, 10800, 7948}, // Russia - 102°E to 108°E onshore
    {277866, 10800, 4914, 11400, 7681}, // Russia - 108°E to 114°E onshore
    {277976, 11400, 4951, 12000, 7596}, // Russia - 114°E to 120°E onshore
    {278086, 12000, 5151, 12600, 7400}, // Russia - 120°E to 126°E onshore
    {278196, 12600, 4225, 13200, 7361}, // Russia - 126°E to 132°E onshore
    {278306, 13200, 4263, 13800, 7615}, // Russia - 132°E to 138°E onshore
    {278416, 13800, 4584, 14400, 7627}, // Russia - 138°E to 144°E onshore
    {278526, 14400, 4360, 15000, 7682}, // Russia - 144°E to 150°E onshore
    {278636, 15000, 4577, 15600, 7626}, // Russia - 150°E to 156°E onshore
    {278746, 15600, 5027, 16200, 7720}, // Russia - 156°E to 162°E onshore
    {278856, 16200, 5447, 16800, 7003}, // Russia - 162°E to 168°E onshore
    {278966, 16800, 5445, 17400, 7019}, // Russia - 168°E to 174°E onshore
    {279114, 17400, 6165, 18000, 7159}, // Russia - 174°E to 180°E onshore
    {279300, -18000, 6435, -17400, 7165}, // Russia - 180° to 174°W onshore
    {280757, -17400, 6420, -16897, 6718}, // Russia - east of 174°W onshore
    {70325, 1200, 4578, 1800, 5489}, // Europe - 12°E to 18°E onshore and S-42(58) by country
    {72879, 1957, 4795, 2400, 5944}, // Europe - FSU onshore 18°E to 24°E and S-42 by country
    {72935, 2400, 4518, 3001, 6947}, // Europe - FSU onshore 24°E to 30°E and S-42 by country
    {72991, 3000, 4432, 3600, 7002}, // Europe - FSU onshore 30°E to 36°E
    {73027, 3600, 4143, 4200, 6923}, // Europe - FSU onshore 36°E to 42°E
    {73063, 4200, 3884, 4801, 8091}, // Europe - FSU onshore 42°E to 48°E
    {22999, 4800, 3734, 5400, 8140}, // Asia - FSU onshore 48°E to 54°E
    {23033, 5400, 3705, 6000, 8191}, // Asia - FSU onshore 54°E to 60°E
    {23067, 6000, 3514, 6600, 8177}, // Asia - FSU onshore 60°E to 66°E
    {23101, 6600, 3667, 7200, 7707}, // Asia - FSU onshore 66°E to 72°E
    {23135, 7200, 3679, 7800, 7971}, // Asia - FSU onshore 72°E to 78°E
    {23169, 7800, 4104, 8401, 8103}, // Asia - FSU onshore 78°E to 84°E
    {23203, 8400, 4682, 9000, 8127}, // Asia - FSU onshore 84°E to 90°E
    {72017, 993, 5021, 1200, 5418}, // Europe - 6°E to 12°E and Pulkovo by country
    {303569, 0, 0, 0, 0}, // South America - UTM 17S and SAD69 by country
    {303614, 0, 0, 0, 0}, // South America - UTM 18N and SAD69 by country
    {303659, 0, 0, 0, 0}, // South America - UTM 18S and SAD69 by country
    {303704, 0, 0, 0, 0}, // South America - UTM 19N and SAD69 by country
    {303749, 0, 0, 0, 0}, // South America - UTM 19S and SAD69 by country
    {303794, 0, 0, 0, 0}, // South America - UTM 20N and SAD69 by country
    {303839, 0, 0, 0, 0}, // South America - UTM 20S and SAD69 by country
    {303884, 0, 0, 0, 0}, // South America - UTM 21N and SAD69
    {301406, -6000, -3891, -5399, 451}, // South America - 60°W to 54°W, S hemisphere and SAD69 by country
    {300790, -5400, 168, -4665, 581}, // South America - 54°W to 48°W, N hemisphere and SAD69 by country
    {300973, -5400, -3571, -4799, 704}, // South America - 54°W to 48°W, S hemisphere and SAD69 by country
    {36551, -4800, -2630, -4200, 0}, // Brazil - 48°W to 42°W
    {36519, -4200, -2296, -3600, -268}, // Brazil - 42°W to 36°W onshore
    {36311, -3600, -1005, -3000, -515}, // Brazil - 36°W to 30°W
    {75354, -6155, -5233, -5999, -5096}, // Falkland Islands - onshore west of 60°W
    {75313, -6000, -5251, -5760, -5113}, // Falkland Islands - onshore east of 60°W
    {218958, 824, -3064, 1646, -1724}, // Namibia - offshore
    {303039, -8400, 90, -7800, 1551}, // South America - 84°W to 78°W, N hemisphere and SIRGAS95 by country
    {303108, -8400, -5645, -7800, 0}, // South America - 84°W to 78°W, S hemisphere
    {302451, -7800, 0, -7200, 1504}, // South America - 78°W to 72°W, N hemisphere
    {302762, -7800, -5936, -7199, 0}, // South America - 78°W to 72°W, S hemisphere and SIRGAS 1995 by country
    {301977, -7200, 0, -6600, 1564}, // South America - 72°W to 66°W, N hemisphere
    {302214, -7200, -5987, -6600, 0}, // South America - 72°W to 66°W, S hemisphere
    {301544, -6600, 0, -6000, 1675}, // South America - 66°W to 60°W, N hemisphere
    {301794, -6600, -5839, -6000, 0}, // South America - 66°W to 60°W, S hemisphere
    {301111, -6000, 0, -5400, 1070}, // South America - 60°W to 54°W, N hemisphere
    {301361, -6000, -4482, -5400, 0}, // South America - 60°W to 54°W, S hemisphere
    {300745, -5400, 0, -4800, 924}, // South America - 54°W to 48°W, N hemisphere
    {300928, -5400, -3995, -4800, 0}, // South America - 54°W to 48°W, S hemisphere
    {300714, -4800, -3350, -4200, 0}, // South America - 48°W to 42°W
    {300683, -4200, -2635, -3600, 0}, // South America - 42°W to 36°W
    {300652, -3600, -2011, -3000, 0}, // South America - 36°W to 30°W
    {218977, 1166, -1853, 1200, -1715}, // Namibia - west of 12°E
    {218763, 1200, -2190, 1401, -1695}, // Namibia - 12°E to 14°E
    {218788, 1400, -2830, 1600, -1738}, // Namibia - 14°E to 16°E
    {218813, 1599, -2883, 1801, -1738}, // Namibia - 16°E to 18°E
    {218838, 1800, -2897, 2000, -1738}, // Namibia - 18°E to 20°E
    {218863, 1999, -2201, 2200, -1785}, // Namibia - 20°E to 22°E
    {218888, 2199, -1849, 2400, -1752}, // Namibia - 22°E to 24°E
    {218934, 2400, -1818, 2527, -1747}, // Namibia - east of 24°E
    {307347, 0, 0, 0, 0}, // Sudan - south - west of 30°E
    {307317, 0, 0, 0, 0}, // Sudan - south - east of 30°E
    {134679, 4253, -2659, 4800, -1300}, // Madagascar - nearshore - west of 48°E
    {134640, 4800, -2421, 5103, -1169}, // Madagascar - nearshore - east of 48°E
    {314551, 5156, 2276, 5401, 2432}, // UAE - Abu Dhabi - onshore west of 54°E
    {22070, 10931, 85, 11400, 737}, // Asia - Brunei and East Malaysia - 108°E to 114°E
    {22121, 11400, 143, 11961, 767}, // Asia - Brunei and East Malaysia - 114°E to 120°E
    {115749, 12817, 2696, 13046, 3474}, // Japan - zone I
    {115764, 12976, 3018, 13205, 3399}, // Japan - zone II
    {115780, 13081, 3372, 13349, 3638}, // Japan - zone III
    {115797, 13195, 3269, 13481, 3445}, // Japan - zone IV
    {115829, 13313, 3413, 13547, 3571}, // Japan - zone V
    {115844, 13486, 3340, 13699, 3633}, // Japan - zone VI
    {115860, 13622, 3451, 13784, 3758}, // Japan - zone VII
    {115877, 13732, 3454, 13991, 3858}, // Japan - zone VIII
    {115813, 13840, 2931, 14111, 3798}, // Japan - zone IX
    {115895, 13949, 3773, 14214, 4158}, // Japan - zone X
    {115910, 13934, 4134, 14146, 4342}, // Japan - zone XI
    {115926, 14089, 4215, 14361, 4554}, // Japan - zone XII
    {115943, 14261, 4187, 14587, 4440}, // Japan - zone XIII
    {115961, 14120, 2467, 14233, 2780}, // Japan - zone XIV
    {115978, 12663, 2602, 12840, 2691}, // Japan - zone XV
    {115994, 12283, 2398, 12551, 2494}, // Japan - zone XVI
    {116011, 13112, 2440, 13138, 2601}, // Japan - zone XVII
    {116029, 13602, 2037, 13616, 2048}, // Japan - zone XVIII
    {115698, 15391, 2422, 15405, 2435}, // Japan - Minamitori-shima (Marcus Island) - onshore
    {361132, -18000, 0, -17400, 8400}, // World - N hemisphere - 180°W to 174°W
    {366773, -18000, -8000, -17400, 0}, // World - S hemisphere - 180°W to 174°W
    {361039, -17400, 0, -16800, 8400}, // World - N hemisphere - 174°W to 168°W
    {366680, -17400, -8000, -16800, 0}, // World - S hemisphere - 174°W to 168°W
    {360853, -16800, 0, -16200, 8400}, // World - N hemisphere - 168°W to 162°W
    {366494, -16800, -8000, -16200, 0}, // World - S hemisphere - 168°W to 162°W
    {360667, -16200, 0, -15600, 8400}, // World - N hemisphere - 162°W to 156°W
    {366308, -16200, -8000, -15600, 0}, // World - S hemisphere - 162°W to 156°W
    {360481, -15600, 0, -15000, 8400}, // World - N hemisphere - 156°W to 150°W
    {366122, -15600, -8000, -15000, 0}, // World - S hemisphere - 156°W to 150°W
    {360295, -15000, 0, -14400, 8400}, // World - N hemisphere - 150°W to 144°W
    {365936, -15000, -8000, -14400, 0}, // World - S hemisphere - 150°W to 144°W
    {360109, -14400, 0, -13800, 8400}, // World - N hemisphere - 144°W to 138°W
    {365750, -14400, -8000, -13800, 0}, // World - S hemisphere - 144°W to 138°W
    {359923, -13800, 0, -13200, 8400}, // World - N hemisphere - 138°W to 132°W
    {365564, -13800, -8000, -13200, 0}, // World - S hemisphere - 138°W to 132°W
    {359737, -13200, 0, -12600, 8400}, // World - N hemisphere - 132°W to 126°W
    {365378, -13200, -8000, -12600, 0}, // World - S hemisphere - 132°W to 126°W
    {359311, -12600, 0, -12000, 8400}, // World - N hemisphere - 126°W to 120°W
    {365016, -12600, -8000, -12000, 0}, // World - S hemisphere - 126°W to 120°W
    {359125, -12000, 0, -11400, 8400}, // World - N hemisphere - 120°W to 114°W
    {364830, -12000, -8000, -11400, 0}, // World - S hemisphere - 120°W to 114°W
    {358939, -11400, 0, -10800, 8400}, // World - N hemisphere - 114°W to 108°W
    {364644, -11400, -8000, -10800, 0}, // World - S hemisphere - 114°W to 108°W
    {358753, -10800, 0, -10200, 8400}, // World - N hemisphere - 108°W to 102°W
    {364458, -10800, -8000, -10200, 0}, // World - S hemisphere - 108°W to 102°W
    {358503, -10200, 0, -9600, 8400}, // World - N hemisphere - 102°W to 96°W
    {364208, -10200, -8000, -9600, 0}, // World - S hemisphere - 102°W to 96°W
    {363866, -9600, 0, -9000, 8400}, // World - N hemisphere - 96°W to 90°W
    {369443, -9600, -8000, -9000, 0}, // World - S hemisphere - 96°W to 90°W
    {363686, -9000, 0, -8400, 8400}, // World - N hemisphere - 90°W to 84°W
    {369263, -9000, -8000, -8400, 0}, // World - S hemisphere - 90°W to 84°W
    {363508, -8400, 0, -7800, 8400}, // World - N hemisphere - 84°W to 78°W
    {369085, -8400, -8000, -7800, 0}, // World - S hemisphere - 84°W to 78°W
    {363330, -7800, 0, -7200, 8400}, // World - N hemisphere - 78°W to 72°W
    {368907, -7800, -8000, -7200, 0}, // World - S hemisphere - 78°W to 72°W
    {363152, -7200, 0, -6600, 8400}, // World - N hemisphere - 72°W to 66°W
    {368729, -7200, -8000, -6600, 0}, // World - S hemisphere - 72°W to 66°W
    {362802, -6600, 0, -6000, 8400}, // World - N hemisphere - 66°W to 60°W
    {368379, -6600, -8000, -6000, 0}, // World - S hemisphere - 66°W to 60°W
    {362624, -6000, 0, -5400, 8400}, // World - N hemisphere - 60°W to 54°W
    {368201, -6000, -8000, -5400, 0}, // World - S hemisphere - 60°W to 54°W
    {362446, -5400, 0, -4800, 8400}, // World - N hemisphere - 54°W to 48°W
    {368023, -5400, -8000, -4800, 0}, // World - S hemisphere - 54°W to 48°W
    {362268, -4800, 0, -4200, 8400}, // World - N hemisphere - 48°W to 42°W
    {367845, -4800, -8000, -4200, 0}, // World - S hemisphere - 48°W to 42°W
    {362090, -4200, 0, -3600, 8400}, // World - N hemisphere - 42°W to 36°W
    {367667, -4200, -8000, -3600, 0}, // World - S hemisphere - 42°W to 36°W
    {361912, -3600, 0, -3000, 8400}, // World - N hemisphere - 36°W to 30°W
    {367489, -3600, -8000, -3000, 0}, // World - S hemisphere - 36°W to 30°W
    {361734, -3000, 0, -2400, 8400}, // World - N hemisphere - 30°W to 24°W
    {367311, -3000, -8000, -2400, 0}, // World - S hemisphere - 30°W to 24°W
    {361556, -2400, 0, -1800, 8400}, // World - N hemisphere - 24°W to 18°W
    {367133, -2400, -8000, -1800, 0}, // World - S hemisphere - 24°W to 18°W
    {361378, -1800, 0, -1200, 8400}, // World - N hemisphere - 18°W to 12°W
    {366955, -1800, -8000, -1200, 0}, // World - S hemisphere - 18°W to 12°W
    {359557, -1200, 0, -600, 8400}, // World - N hemisphere - 12°W to 6°W
    {365198, -1200, -8000, -600, 0}, // World - S hemisphere - 12°W to 6°W
    {362978, -600, 0, 0, 8400}, // World - N hemisphere - 6°W to 0°W
    {368555, -600, -8000, 0, 0}, // World - S hemisphere - 6°W to 0°W
    {358222, 0, 0, 600, 8400}, // World - N hemisphere - 0°E to 6°E
    {363993, 0, -8000, 600, 0}, // World - S hemisphere - 0°E to 6°E
    {362891, 600, 0, 1200, 8400}, // World - N hemisphere - 6°E to 12°E
    {368468, 600, -8000, 1200, 0}, // World - S hemisphere - 6°E to 12°E
    {359404, 1200, 0, 1800, 8400}, // World - N hemisphere - 12°E to 18°E
    {365109, 1200, -8000, 1800, 0}, // World - S hemisphere - 12°E to 18°E
    {361225, 1800, 0, 2400, 8400}, // World - N hemisphere - 18°E to 24°E
    {366866, 1800, -8000, 2400, 0}, // World - S hemisphere - 18°E to 24°E
    {361467, 2400, 0, 3000, 8400}, // World - N hemisphere - 24°E to 30°E
    {367044, 2400, -8000, 3000, 0}, // World - S hemisphere - 24°E to 30°E
    {361645, 3000, 0, 3600, 8400}, // World - N hemisphere - 30°E to 36°E
    {367222, 3000, -8000, 3600, 0}, // World - S hemisphere - 30°E to 36°E
    {361823, 3600, 0, 4200, 8400}, // World - N hemisphere - 36°E to 42°E
    {367400, 3600, -8000, 4200, 0}, // World - S hemisphere - 36°E to 42°E
    {362001, 4200, 0, 4800, 8400}, // World - N hemisphere - 42°E to 48°E
    {367578, 4200, -8000, 4800, 0}, // World - S hemisphere - 42°E to 48°E
    {362179, 4800, 0, 5400, 8400}, // World - N hemisphere - 48°E to 54°E
    {367756, 4800, -8000, 5400, 0}, // World - S hemisphere - 48°E to 54°E
    {362357, 5400, 0, 6000, 8400}, // World - N hemisphere - 54°E to 60°E
    {367934, 5400, -8000, 6000, 0}, // World - S hemisphere - 54°E to 60°E
    {362535, 6000, 0, 6600, 8400}, // World - N hemisphere - 60°E to 66°E
    {368112, 6000, -8000, 6600, 0}, // World - S hemisphere - 60°E to 66°E
    {362713, 6600, 0, 7200, 8400}, // World - N hemisphere - 66°E to 72°E
    {368290, 6600, -8000, 7200, 0}, // World - S hemisphere - 66°E to 72°E
    {363063, 7200, 0, 7800, 8400}, // World - N hemisphere - 72°E to 78°E
    {368640, 7200, -8000, 7800, 0}, // World - S hemisphere - 72°E to 78°E
    {363241, 7800, 0, 8400, 8400}, // World - N hemisphere - 78°E to 84°E
    {368818, 7800, -8000, 8400, 0}, // World - S hemisphere - 78°E to 84°E
    {363419, 8400, 0, 9000, 8400}, // World - N hemisphere - 84°E to 90°E
    {368996, 8400, -8000, 9000, 0}, // World - S hemisphere - 84°E to 90°E
    {363597, 9000, 0, 9600, 8400}, // World - N hemisphere - 90°E to 96°E
    {369174, 9000, -8000, 9600, 0}, // World - S hemisphere - 90°E to 96°E
    {363775, 9600, 0, 10200, 8400}, // World - N hemisphere - 96°E to 102°E
    {369352, 9600, -8000, 10200, 0}, // World - S hemisphere - 96°E to 102°E
    {358344, 10200, 0, 10800, 8400}, // World - N hemisphere - 102°E to 108°E
    {364115, 10200, -8000, 10800, 0}, // World - S hemisphere - 102°E to 108°E
    {358594, 10800, 0, 11400, 8400}, // World - N hemisphere - 108°E to 114°E
    {364299, 10800, -8000, 11400, 0}, // World - S hemisphere - 108°E to 114°E
    {358846, 11400, 0, 12000, 8400}, // World - N hemisphere - 114°E to 120°E
    {364551, 11400, -8000, 12000, 0}, // World - S hemisphere - 114°E to 120°E
    {359032, 12000, 0, 12600, 8400}, // World - N hemisphere - 120°E to 126°E
    {364737, 12000, -8000, 12600, 0}, // World - S hemisphere - 120°E to 126°E
    {359218, 12600, 0, 13200, 8400}, // World - N hemisphere - 126°E to 132°E
    {364923, 12600, -8000, 13200, 0}, // World - S hemisphere - 126°E to 132°E
    {359644, 13200, 0, 13800, 8400}, // World - N hemisphere - 132°E to 138°E
    {365285, 13200, -8000, 13800, 0}, // World - S hemisphere - 132°E to 138°E
    {359830, 13800, 0, 14400, 8400}, // World - N hemisphere - 138°E to 144°E
    {365471, 13800, -8000, 14400, 0}, // World - S hemisphere - 138°E to 144°E
    {360016, 14400, 0, 15000, 8400}, // World - N hemisphere - 144°E to 150°E
    {365657, 14400, -8000, 15000, 0}, // World - S hemisphere - 144°E to 150°E
    {360202, 15000, 0, 15600, 8400}, // World - N hemisphere - 150°E to 156°E
    {365843, 15000, -8000, 15600, 0}, // World - S hemisphere - 150°E to 156°E
    {360388, 15600, 0, 16200, 8400}, // World - N hemisphere - 156°E to 162°E
    {366029, 15600, -8000, 16200, 0}, // World - S hemisphere - 156°E to 162°E
    {360574, 16200, 0, 16800, 8400}, // World - N hemisphere - 162°E to 168°E
    {366215, 16200, -8000, 16800, 0}, // World - S hemisphere - 162°E to 168°E
    {360760, 16800, 0, 17400, 8400}, // World - N hemisphere - 168°E to 174°E
    {366401, 16800, -8000, 17400, 0}, // World - S hemisphere - 168°E to 174°E
    {360946, 17400, 0, 18000, 8400}, // World - N hemisphere - 174°E to 180°E
    {366587, 17400, -8000, 18000, 0}, // World - S hemisphere - 174°E to 180°E
    {358437, 10200, 0, 10800, 8400}, // World - N hemisphere - 102°E to 108°E - by country and WGS 72BE
    {358687, 10800, 0, 11400, 8400}, // World - N hemisphere - 108°E to 114°E - by country and WGS 72BE
    {364392, 10800, -8000, 11400, 0}, // World - S hemisphere - 108°E to 114°E - by country and WGS 72BE
    {363955, -18000, 6000, 18000, 9000}, // World - N hemisphere - north of 60°N
    {369532, -18000, -9000, 18000, -6000}, // World - S hemisphere - south of 60°S
    {358307, -18000, 0, 18000, 8400}, // World - N hemisphere - 0°N to 84°N
    {364078, -18000, -8000, 18000, 0}, // World - S hemisphere - 0°N to 80°S
    {361172, -18000, 0, -17400, 8400}, // World - N hemisphere - 180°W to 174°W - by country
    {366813, -18000, -8000, -17400, 0}, // World - S hemisphere - 180°W to 174°W - by country
    {361079, -17400, 0, -16800, 8400}, // World - N hemisphere - 174°W to 168°W - by country
    {366720, -17400, -8000, -16800, 0}, // World - S hemisphere - 174°W to 168°W - by country
    {360893, -16800, 0, -16200, 8400}, // World - N hemisphere - 168°W to 162°W - by country
    {366534, -16800, -8000, -16200, 0}, // World - S hemisphere - 168°W to 162°W - by country
    {360707, -16200, 0, -15600, 8400}, // World - N hemisphere - 162°W to 156°W - by country
    {366348, -16200, -8000, -15600, 0}, // World - S hemisphere - 162°W to 156°W - by country
    {360521, -15600, 0, -15000, 8400}, // World - N hemisphere - 156°W to 150°W - by country
    {366162, -15600, -8000, -15000, 0}, // World - S hemisphere - 156°W to 150°W - by country
    {360335, -15000, 0, -14400, 8400}, // World - N hemisphere - 150°W to 144°W - by country
    {365976, -15000, -8000, -14400, 0}, // World - S hemisphere - 150°W to 144°W - by country
    {360149, -14400, 0, -13800, 8400}, // World - N hemisphere - 144°W to 138°W - by country
    {365790, -14400, -8000, -13800, 0}, // World - S hemisphere - 144°W to 138°W - by country
    {359963, -13800, 0, -13200, 8400}, // World - N hemisphere - 138°W to 132°W - by country
    {365604, -13800, -8000, -13200, 0}, // World - S hemisphere - 138°W to 132°W - by country
    {359777, -13200, 0, -12600, 8400}, // World - N hemisphere - 132°W to 126°W - by country
    {365418, -13200, -8000, -12600, 0}, // World - S hemisphere - 132°W to 126°W - by country
    {359351, -12600, 0, -12000, 8400}, // World - N hemisphere - 126°W to 120°W - by country
    {365056, -12600, -8000, -12000, 0}, // World - S hemisphere - 126°W to 120°W - by country
    {359165, -12000, 0, -11400, 8400}, // World - N hemisphere - 120°W to 114°W - by country
    {364870, -12000, -8000, -11400, 0}, // World - S hemisphere - 120°W to 114°W - by country
    {358979, -11400, 0, -10800, 8400}, // World - N hemisphere - 114°W to 108°W - by country
    {364684, -11400, -8000, -10800, 0}, // World - S hemisphere - 114°W to 108°W - by country
    {358793, -10800, 0, -10200, 8400}, // World - N hemisphere - 108°W to 102°W - by country
    {364498, -10800, -8000, -10200, 0}, // World - S hemisphere - 108°W to 102°W - by country
    {358542, -10200, 0, -9600, 8400}, // World - N hemisphere - 102°W to 96°W - by country
    {364247, -10200, -8000, -9600, 0}, // World - S hemisphere - 102°W to 96°W - by country
    {363904, -9600, 0, -9000, 8400}, // World - N hemisphere - 96°W to 90°W - by country
    {369481, -9600, -8000, -9000, 0}, // World - S hemisphere - 96°W to 90°W - by country
    {363724, -9000, 0, -8400, 8400}, // World - N hemisphere - 90°W to 84°W - by country
    {369301, -9000, -8000, -8400, 0}, // World - S hemisphere - 90°W to 84°W - by country
    {363546, -8400, 0, -7800, 8400}, // World - N hemisphere - 84°W to 78°W - by country
    {369123, -8400, -8000, -7800, 0}, // World - S hemisphere - 84°W to 78°W - by country
    {363368, -7800, 0, -7200, 8400}, // World - N hemisphere - 78°W to 72°W - by country
    {368945, -7800, -8000, -7200, 0}, // World - S hemisphere - 78°W to 72°W - by country
    {363190, -7200, 0, -6600, 8400}, // World - N hemisphere - 72°W to 66°W - by country
    {368767, -7200, -8000, -6600, 0}, // World - S hemisphere - 72°W to 66°W - by country
    {362840, -6600, 0, -6000, 8400}, // World - N hemisphere - 66°W to 60°W - by country
    {368417, -6600, -8000, -6000, 0}, // World - S hemisphere - 66°W to 60°W - by country
    {362662, -6000, 0, -5400, 8400}, // World - N hemisphere - 60°W to 54°W - by country
    {368239, -6000, -8000, -5400, 0}, // World - S hemisphere - 60°W to 54°W - by country
    {362484, -5400, 0, -4800, 8400}, // World - N hemisphere - 54°W to 48°W - by country
    {368061, -5400, -8000, -4800, 0}, // World - S hemisphere - 54°W to 48°W - by country
    {362306, -4800, 0, -4200, 8400}, // World - N hemisphere - 48°W to 42°W - by country
    {367883, -4800, -8000, -4200, 0}, // World - S hemisphere - 48°W to 42°W - by country
    {362128, -4200, 0, -3600, 8400}, // World - N hemisphere - 42°W to 36°W - by country
    {367705, -4200, -8000, -3600, 0}, // World - S hemisphere - 42°W to 36°W - by country
    {361950, -3600, 0, -3000, 8400}, // World - N hemisphere - 36°W to 30°W - by country
    {367527, -3600, -8000, -3000, 0}, // World - S hemisphere - 36°W to 30°W - by country
    {361772, -3000, 0, -2400, 8400}, // World - N hemisphere - 30°W to 24°W - by country
    {367349, -3000, -8000, -2400, 0}, // World - S hemisphere - 30°W to 24°W - by country
    {361594, -2400, 0, -1800, 8400}, // World - N hemisphere - 24°W to 18°W - by country
    {367171, -2400, -8000, -1800, 0}, // World - S hemisphere - 24°W to 18°W - by country
    {361416, -1800, 0, -1200, 8400}, // World - N hemisphere - 18°W to 12°W - by country
    {366993, -1800, -8000, -1200, 0}, // World - S hemisphere - 18°W to 12°W - by country
    {359594, -1200, 0, -600, 8400}, // World - N hemisphere - 12°W to 6°W - by country
    {365235, -1200, -8000, -600, 0}, // World - S hemisphere - 12°W to 6°W - by country
    {363014, -600, 0, 0, 8400}, // World - N hemisphere - 6°W to 0°W - by country
    {368591, -600, -8000, 0, 0}, // World - S hemisphere - 6°W to 0°W - by country
    {358258, 0, 0, 600, 8400}, // World - N hemisphere - 0°E to 6°E - by country
    {364029, 0, -8000, 600, 0}, // World - S hemisphere - 0°E to 6°E - by country
    {362928, 600, 0, 1200, 8400}, // World - N hemisphere - 6°E to 12°E - by country
    {368505, 600, -8000, 1200, 0}, // World - S hemisphere - 6°E to 12°E - by country
    {359442, 1200, 0, 1800, 8400}, // World - N hemisphere - 12°E to 18°E - by country
    {365147, 1200, -8000, 1800, 0}, // World - S hemisphere - 12°E to 18°E - by country
    {361263, 1800, 0, 2400, 8400}, // World - N hemisphere - 18°E to 24°E - by country
    {366904, 1800, -8000, 2400, 0}, // World - S hemisphere - 18°E to 24°E - by country
    {361505, 2400, 0, 3000, 8400}, // World - N hemisphere - 24°E to 30°E - by country
    {367082, 2400, -8000, 3000, 0}, // World - S hemisphere - 24°E to 30°E - by country
    {361683, 3000, 0, 3600, 8400}, // World - N hemisphere - 30°E to 36°E - by country
    {367260, 3000, -8000, 3600, 0}, // World - S hemisphere - 30°E to 36°E - by country
    {361861, 3600, 0, 4200, 8400}, // World - N hemisphere - 36°E to 42°E - by country
    {367438, 3600, -8000, 4200, 0}, // World - S hemisphere - 36°E to 42°E - by country
    {362039, 4200, 0, 4800, 8400}, // World - N hemisphere - 42°E to 48°E - by country
    {367616, 4200, -8000, 4800, 0}, // World - S hemisphere - 42°E to 48°E - by country
    {362217, 4800, 0, 5400, 8400}, // World - N hemisphere - 48°E to 54°E - by country
    {367794, 4800, -8000, 5400, 0}, // World - S hemisphere - 48°E to 54°E - by country
    {362395, 5400, 0, 6000, 8400}, // World - N hemisphere - 54°E to 60°E - by country
    {367972, 5400, -8000, 6000, 0}, // World - S hemisphere - 54°E to 60°E - by country
    {362573, 6000, 0, 6600, 8400}, // World - N hemisphere - 60°E to 66°E - by country
    {368150, 6000, -8000, 6600, 0}, // World - S hemisphere - 60°E to 66°E - by country
    {362751, 6600, 0, 7200, 8400}, // World - N hemisphere - 66°E to 72°E - by country
    {368328, 6600, -8000, 7200, 0}, // World - S hemisphere - 66°E to 72°E - by country
    {363101, 7200, 0, 7800, 8400}, // World - N hemisphere - 72°E to 78°E - by country
    {368678, 7200, -8000, 7800, 0}, // World - S hemisphere - 72°E to 78°E - by country
    {363279, 7800, 0, 8400, 8400}, // World - N hemisphere - 78°E to 84°E - by country
    {368856, 7800, -8000, 8400, 0}, // World - S hemisphere - 78°E to 84°E - by country
    {363457, 8400, 0, 9000, 8400}, // World - N hemisphere - 84°E to 90°E - by country
    {369034, 8400, -8000, 9000, 0}, // World - S hemisphere - 84°E to 90°E - by country
    {363635, 9000, 0, 9600, 8400}, // World - N hemisphere - 90°E to 96°E - by country
    {369212, 9000, -8000, 9600, 0}, // World - S hemisphere - 90°E to 96°E - by country
    {363814, 9600, 0, 10200, 8400}, // World - N hemisphere - 96°E to 102°E - by country
    {369391, 9600, -8000, 10200, 0}, // World - S hemisphere - 96°E to 102°E - by country
    {358384, 10200, 0, 10800, 8400}, // World - N hemisphere - 102°E to 108°E - by country
    {364155, 10200, -8000, 10800, 0}, // World - S hemisphere - 102°E to 108°E - by country
    {358634, 10800, 0, 11400, 8400}, // World - N hemisphere - 108°E to 114°E - by country
    {364339, 10800, -8000, 11400, 0}, // World - S hemisphere - 108°E to 114°E - by country
    {358886, 11400, 0, 12000, 8400}, // World - N hemisphere - 114°E to 120°E - by country
    {364591, 11400, -8000, 12000, 0}, // World - S hemisphere - 114°E to 120°E - by country
    {359072, 12000, 0, 12600, 8400}, // World - N hemisphere - 120°E to 126°E - by country
    {364777, 12000, -8000, 12600, 0}, // World - S hemisphere - 120°E to 126°E - by country
    {359258, 12600, 0, 13200, 8400}, // World - N hemisphere - 126°E to 132°E - by country
    {364963, 12600, -8000, 13200, 0}, // World - S hemisphere - 126°E to 132°E - by country
    {359684, 13200, 0, 13800, 8400}, // World - N hemisphere - 132°E to 138°E - by country
    {365325, 13200, -8000, 13800, 0}, // World - S hemisphere - 132°E to 138°E - by country
    {359870, 13800, 0, 14400, 8400}, // World - N hemisphere - 138°E to 144°E - by country
    {365511, 13800, -8000, 14400, 0}, // World - S hemisphere - 138°E to 144°E - by country
    {360056, 14400, 0, 15000, 8400}, // World - N hemisphere - 144°E to 150°E - by country
    {365697, 14400, -8000, 15000, 0}, // World - S hemisphere - 144°E to 150°E - by country
    {360242, 15000, 0, 15600, 8400}, // World - N hemisphere - 150°E to 156°E - by country
    {365883, 15000, -8000, 15600, 0}, // World - S hemisphere - 150°E to 156°E - by country
    {360428, 15600, 0, 16200, 8400}, // World - N hemisphere - 156°E to 162°E - by country
    {366069, 15600, -8000, 16200, 0}, // World - S hemisphere - 156°E to 162°E - by country
    {360614, 16200, 0, 16800, 8400}, // World - N hemisphere - 162°E to 168°E - by country
    {366255, 16200, -8000, 16800, 0}, // World - S hemisphere - 162°E to 168°E - by country
    {360800, 16800, 0, 17400, 8400}, // World - N hemisphere - 168°E to 174°E - by country
    {366441, 16800, -8000, 17400, 0}, // World - S hemisphere - 168°E to 174°E - by country
    {360986, 17400, 0, 18000, 8400}, // World - N hemisphere - 174°E to 180°E - by country
    {366627, 17400, -8000, 18000, 0}, // World - S hemisphere - 174°E to 180°E - by country
    {97488, -9186, 1585, -8834, 1783}, // Guatemala - north of 15°51'30"N
    {97521, -9229, 1369, -8819, 1586}, // Guatemala - south of 15°51'30"N
    {71011, -1610, 3493, -1199, 7244}, // Europe - 18°W to 12°W and ETRS89 by country
    {70480, -1200, 3491, -600, 7413}, // Europe - 12°W to 6°W and ETRS89 by country
    {72105, -600, 3526, 1, 8049}, // Europe - 6°W to 0°W and ETRS89 by country
    {70144, 0, 3700, 601, 8245}, // Europe - 0°E to 6°E and ETRS89 by country
    {71972, 600, 3876, 1201, 8433}, // Europe - 6°E to 12°E and ETRS89 by country
    {70279, 1200, 4640, 1801, 8442}, // Europe - 12°E to 18°E and ETRS89 by country
    {70809, 1799, 5884, 2401, 8454}, // Europe - 18°E to 24°E and ETRS89 by country
    {71341, 2400, 5964, 3001, 8473}, // Europe - 24°E to 30°E and ETRS89 by country
    {71631, 3000, 6173, 3601, 8470}, // Europe - 30°E to 36°E and ETRS89 by country
    {71745, 3600, 7299, 3801, 7907}, // Europe - 36°E to 42°E and ETRS89 by country
    {71859, 4200, 3700, 4800, 4165}, // Europe - 42°E to 48°E and ETRS89 by country
    {318070, -16800, 4952, -16199, 7429}, // USA - 168°W to 162°W - AK, OCS
    {318001, -16200, 5098, -15599, 7471}, // USA - 162°W to 156°W - AK, OCS
    {317900, -15600, 5215, -14999, 7471}, // USA - 156°W to 150°W - AK, OCS
    {317835, -15000, 5405, -14399, 7413}, // USA - 150°W to 144°W - AK, OCS
    {227711, -14400, 5347, -13800, 7359}, // North America - 144°W to 138°W and NAD27 by country
    {227593, -13800, 5258, -13200, 7304}, // North America - 138°W to 132°W and NAD27 by country - onshore
    {227475, -13200, 4918, -12600, 7203}, // North America - 132°W to 126°W and NAD27 by country - onshore
    {227357, -12600, 3440, -11999, 7713}, // North America - 126°W to 120°W and NAD27 by country - onshore
    {227239, -12000, 2693, -11400, 7813}, // North America - 120°W to 114°W and NAD27 by country - onshore
    {227131, -11400, 1866, -10800, 7881}, // North America - 114°W to 108°W and NAD27 by country
    {227023, -10800, 1786, -10200, 7942}, // North America - 108°W to 102°W and NAD27 by country
    {226917, -10200, 1559, -9600, 8074}, // North America - 102°W to 96°W and NAD27 by country
    {228339, -9600, 1363, -9000, 8196}, // North America - 96°W to 90°W and NAD27 by country
    {228235, -9001, 927, -8400, 8254}, // North America - 90°W to 84°W and NAD27 by country
    {228131, -8400, 798, -7800, 8303}, // North America - 84°W to 78°W and NAD27 by country
    {228027, -7800, 1883, -7200, 8316}, // North America - 78°W to 72°W and NAD27 by country
    {227923, -7200, 3361, -6600, 8317}, // North America - 72°W to 66°W and NAD27 by country
    {227819, -6600, 3821, -5999, 8297}, // North America - 66°W to 60°W and NAD27 by country
    {43636, -6000, 3856, -5400, 8400}, // Canada - 60°W to 54°W
    {43612, -5400, 3950, -4799, 5765}, // Canada - 54°W to 48°W
    {43588, -4800, 3985, -4200, 5447}, // Canada - 48°W to 42°W
    {318551, -8679, 3099, -8489, 3500}, // USA - Alabama - SPCS - E
    {318576, -8848, 3014, -8630, 3502}, // USA - Alabama - SPCS - W
    {318838, -14100, 5461, -12999, 6035}, // USA - Alaska - Panhandle
    {318806, 17242, 5130, -16484, 5434}, // USA - Alaska - Aleutian Islands
    {318614, -14401, 5972, -14098, 7016}, // USA - Alaska - 144°W to 141°W
    {318646, -14800, 5972, -14400, 7038}, // USA - Alaska - 148°W to 144°W
    {318678, -15201, 5911, -14799, 7063}, // USA - Alaska - 152°W to 148°W
    {318710, -15600, 5572, -15186, 7128}, // USA - Alaska - 156°W to 152°W
    {318742, -16000, 5489, -15599, 7140}, // USA - Alaska - 160°W to 156°W
    {318774, -16401, 5432, -16000, 7074}, // USA - Alaska - 164°W to 160°W
    {318962, -16826, 5434, -16400, 6905}, // USA - Alaska - north of 54.5°N; 168°W to 164°W
    {319012, -17316, 5649, -16800, 6582}, // USA - Alaska - north of 54.5°N; west of 168°W
    {319226, -11335, 3133, -11044, 3701}, // USA - Arizona - SPCS - C
    {319251, -11171, 3133, -10904, 3701}, // USA - Arizona - SPCS - E
    {319276, -11481, 3205, -11252, 3700}, // USA - Arizona - SPCS - W
    {319301, -9462, 3467, -8964, 3650}, // USA - Arkansas - SPCS - N
    {319327, -9448, 3301, -9040, 3510}, // USA - Arkansas - SPCS - S
    {320045, -9722, 2597, -9587, 2843}, // USA - GoM OCS - west of 96°W
    {319984, -9600, 2561, -8986, 2973}, // USA - GoM OCS - 96°W to 90°W
    {319953, -9001, 2395, -8391, 3025}, // USA - GoM OCS - 90°W to 84°W
    {320015, -8409, 2382, -8117, 2994}, // USA - GoM OCS - east of 84°W
    {319421, -12445, 3959, -11999, 4201}, // USA - California - SPCS - 1
    {319449, -12406, 3802, -11954, 4016}, // USA - California - SPCS - 2
    {319477, -12302, 3673, -11783, 3871}, // USA - California - SPCS - 3
    {319505, -12201, 3578, -11562, 3758}, // USA - California - SPCS - 4
    {319561, -12143, 3276, -11412, 3581}, // USA - California - SPCS27 - 5
    {319533, -11815, 3253, -11442, 3408}, // USA - California - SPCS - 6
    {319591, -11896, 3366, -11763, 3483}, // USA - California - SPCS27 - 7
    {319621, -12142, 3276, -11412, 3581}, // USA - California - SPCS83 - 5
    {319693, -10906, 3814, -10204, 4009}, // USA - Colorado - SPCS - C
    {319719, -10906, 3956, -10204, 4101}, // USA - Colorado - SPCS - N
    {319745, -10906, 3698, -10204, 3868}, // USA - Colorado - SPCS - S
    {319828, -8233, 2441, -7997, 3083}, // USA - Florida - SPCS - E
    {319853, -8763, 2921, -8204, 3101}, // USA - Florida - SPCS - N
    {319878, -8334, 2627, -8113, 2960}, // USA - Florida - SPCS - W
    {319903, -8347, 3036, -8077, 3468}, // USA - Georgia - SPCS - E
    {319928, -8561, 3062, -8299, 3501}, // USA - Georgia - SPCS - W
    {320356, -11530, 4199, -11267, 4570}, // USA - Idaho - SPCS - C
    {320379, -11324, 4199, -11104, 4475}, // USA - Idaho - SPCS - E
    {320402, -11724, 4199, -11432, 4901}, // USA - Idaho - SPCS - W
    {320425, -8928, 3706, -8702, 4250}, // USA - Illinois - SPCS - E
    {320451, -9152, 3698, -8893, 4251}, // USA - Illinois - SPCS - W
    {321980, -8659, 3795, -8478, 4177}, // USA - Indiana - SPCS - E
    {322005, -8806, 3777, -8624, 4177}, // USA - Indiana - SPCS - W
    {322519, -9665, 4185, -9015, 4351}, // USA - Iowa - SPCS - N
    {322541, -9614, 4037, -9014, 4204}, // USA - Iowa - SPCS - S
    {323066, -10206, 3852, -9458, 4001}, // USA - Kansas - SPCS - N
    {323090, -10205, 3699, -9460, 3888}, // USA - Kansas - SPCS - S
    {323197, -8596, 3771, -8247, 3915}, // USA - Kentucky - SPCS - N
    {323223, -8957, 3649, -8195, 3817}, // USA - Kentucky - SPCS - S
    {323265, -9405, 3085, -9086, 3303}, // USA - Louisiana - SPCS - N
    {323292, -9394, 2782, -8776, 3107}, // USA - Louisiana - SPCS27 - S
    {323425, -7003, 4388, -6691, 4747}, // USA - Maine - SPCS - E
    {323448, -7109, 4304, -6926, 4658}, // USA - Maine - SPCS - W
    {323486, -7091, 4119, -6989, 4151}, // USA - Massachusetts - SPCS - islands
    {323523, -7350, 4146, -6986, 4289}, // USA - Massachusetts - SPCS - mainland
    {324220, -11606, 4617, -10404, 4826}, // USA - Montana - SPCS27 - C
    {324247, -11607, 4741, -10404, 4901}, // USA - Montana - SPCS27 - N
    {324274, -11457, 4435, -10404, 4687}, // USA - Montana - SPCS27 - S
    {323742, -9686, 4528, -9229, 4748}, // USA - Minnesota - SPCS - C
    {323769, -9722, 4664, -8949, 4938}, // USA - Minnesota - SPCS - N
    {323796, -9685, 4349, -9121, 4559}, // USA - Minnesota - SPCS - S
    {323841, -8997, 3001, -8809, 3501}, // USA - Mississippi - SPCS - E
    {323870, -9165, 3100, -8937, 3501}, // USA - Mississippi - SPCS - W
    {323899, -9379, 3648, -9141, 4061}, // USA - Missouri - SPCS - C
    {323925, -9197, 3598, -8910, 4061}, // USA - Missouri - SPCS - E
    {323951, -9577, 3648, -9348, 4059}, // USA - Missouri - SPCS - W
    {324375, -10406, 4168, -9607, 4301}, // USA - Nebraska - SPCS27 - N
    {324403, -10406, 3999, -9530, 4201}, // USA - Nebraska - SPCS27 - S
    {324496, -11819, 3600, -11499, 4100}, // USA - Nevada - SPCS - C
    {324520, -11701, 3499, -11403, 4200}, // USA - Nevada - SPCS - E
    {324544, -12000, 3695, -11699, 4200}, // USA - Nevada - SPCS - W
    {44385, -5450, 4656, -5254, 4989}, // Canada - Newfoundland - east of 54.5°W
    {44425, -5750, 4681, -5449, 5471}, // Canada - Newfoundland and Labrador - 57.5°W to 54.5°W
    {324605, -10572, 3200, -10299, 3700}, // USA - New Mexico - SPCS - E
    {324633, -10773, 3178, -10483, 3700}, // USA - New Mexico - SPCS27 - C
    {324663, -10906, 3133, -10632, 3700}, // USA - New Mexico - SPCS27 - W
    {324693, -10773, 3178, -10484, 3700}, // USA - New Mexico - SPCS83 - C
    {324723, -10906, 3133, -10632, 3700}, // USA - New Mexico - SPCS83 - W
    {324753, -7775, 4199, -7506, 4441}, // USA - New York - SPCS - C
    {324779, -7587, 4088, -7323, 4502}, // USA - New York - SPCS - E
    {324805, -7426, 4047, -7180, 4130}, // USA - New York - SPCS - Long Island
    {324841, -7977, 4199, -7736, 4364}, // USA - New York - SPCS - W
    {324888, -10407, 4715, -9683, 4901}, // USA - North Dakota - SPCS - N
    {324918, -10405, 4593, -9655, 4783}, // USA - North Dakota - SPCS - S
    {324948, -8481, 4010, -8051, 4233}, // USA - Ohio - SPCS - N
    {324970, -8483, 3840, -8070, 4036}, // USA - Ohio - SPCS - S
    {324992, -10300, 3527, -9442, 3701}, // USA - Oklahoma - SPCS - N
    {325018, -10000, 3362, -9442, 3557}, // USA - Oklahoma - SPCS - S
    {326031, -12417, 4395, -11647, 4626}, // USA - Oregon - SPCS - N
    {326055, -12460, 4198, -11690, 4456}, // USA - Oregon - SPCS - S
    {326300, -8053, 4060, -7470, 4253}, // USA - Pennsylvania - SPCS - N
    {326330, -8053, 3971, -7472, 4118}, // USA - Pennsylvania - SPCS - S
    {326400, -8336, 3346, -7852, 3521}, // USA - South Carolina - SPCS27 - N
    {326434, -8203, 3205, -7895, 3395}, // USA - South Carolina - SPCS27 - S
    {326468, -10407, 4414, -9645, 4595}, // USA - South Dakota - SPCS - N
    {326498, -10406, 4248, -9643, 4479}, // USA - South Dakota - SPCS - S
    {46420, -6849, 1492, -6388, 2186}, // Caribbean - Puerto Rico and US Virgin Islands
    {326556, -10666, 2978, -9350, 3227}, // USA - Texas - SPCS - C
    {326579, -10303, 3430, -9999, 3650}, // USA - Texas - SPCS - N
    {326602, -10307, 3172, -9400, 3458}, // USA - Texas - SPCS - NC
    {326626, -10020, 2583, -9536, 2821}, // USA - Texas - SPCS27 - S
    {326651, -10500, 2778, -9341, 3067}, // USA - Texas - SPCS27 - SC
    {326728, -11405, 3849, -10904, 4108}, // USA - Utah - SPCS - C
    {326750, -11404, 4055, -10904, 4201}, // USA - Utah - SPCS - N
    {326772, -11405, 3699, -10904, 3858}, // USA - Utah - SPCS - S
    {326823, -8006, 3777, -7651, 3946}, // USA - Virginia - SPCS - N
    {326849, -8368, 3654, -7531, 3828}, // USA - Virginia - SPCS - S
    {326875, -12479, 4708, -11702, 4905}, // USA - Washington - SPCS27 - N
    {326905, -12440, 4554, -11691, 4796}, // USA - Washington - SPCS27 - S
    {326995, -8176, 3876, -7772, 4064}, // USA - West Virginia - SPCS - N
    {327026, -8265, 3720, -7905, 3917}, // USA - West Virginia - SPCS - S
    {328351, -9289, 4398, -8625, 4580}, // USA - Wisconsin - SPCS - C
    {328378, -9289, 4537, -8805, 4731}, // USA - Wisconsin - SPCS - N
    {328405, -9143, 4248, -8695, 4433}, // USA - Wisconsin - SPCS - S
    {328838, -10633, 4099, -10405, 4501}, // USA - Wyoming - SPCS - E
    {328863, -10863, 4099, -10600, 4501}, // USA - Wyoming - SPCS - EC
    {328889, -11106, 4099, -10904, 4467}, // USA - Wyoming - SPCS - W
    {328914, -11106, 4099, -10750, 4501}, // USA - Wyoming - SPCS - WC
    {326935, -12479, 4708, -11702, 4905}, // USA - Washington - SPCS83 - N
    {326965, -12440, 4554, -11691, 4761}, // USA - Washington - SPCS83 - S
    {44481, -5948, 4750, -5750, 5054}, // Canada - Newfoundland and Labrador - 60°W to 57.5°W
    {45572, -6300, 4716, -6000, 5892}, // Canada - Quebec and Labrador - 63°W to 60°W
    {45618, -6600, 4795, -6300, 6052}, // Canada - Quebec and Labrador - 66°W to 63°W
    {45664, -6900, 4731, -6600, 5900}, // Canada - Quebec and Labrador - 69°W to 66°W
    {45710, -7500, 4498, -7200, 6253}, // Canada - Quebec and Ontario - 75°W to 72°W
    {45755, -7800, 4363, -7500, 6265}, // Canada - Quebec and Ontario - 78°W to 75°W
    {45800, -8100, 4226, -7800, 6245}, // Canada - Quebec and Ontario - MTM zone 10
    {25242, 14876, -3593, 14940, -3512}, // Australia - Australian Capital Territory
    {25600, 14096, -3920, 15004, -3398}, // Australia - Victoria
    {45842, -6000, 4750, -5710, 5538}, // Canada - Quebec, Newfoundland and Labrador - MTM zone 3
    {24753, 15000, -4644, 15600, -232}, // Australasia - Australia and PNG - 150°E to 156°E
    {55154, -755, 102, -311, 519}, // Cote d'Ivoire (Ivory Coast) - offshore
    {94852, 586, 4727, 1384, 5509}, // Germany - West Germany all states
    {69003, 3234, 2719, 3427, 3001}, // Egypt - Gulf of Suez
    {20719, -6864, -5511, -6373, -5259}, // Argentina - Tierra del Fuego onshore
    {111632, 5180, 2730, 5301, 2820}, // Iran - Kangan district
    {305629, -937, 3595, 339, 4382}, // Spain - mainland onshore
    {297974, 5530, -486, 5559, -450}, // Seychelles - Mahe Island
    {73363, 1338, 4085, 2304, 4688}, // Europe - former Yugoslavia onshore
    {43918, -12000, 4899, -10998, 6000}, // Canada - Alberta
    {326272, -12479, 4198, -11647, 4905}, // USA - Oregon and Washington
    {45898, -14101, 5999, -12391, 6970}, // Canada - Yukon
    {72858, 1957, 3514, -16897, 8191}, // Europe - FSU onshore
    {326702, -10500, 2778, -9376, 3067}, // USA - Texas - SPCS83 - SC
    {326677, -10020, 2583, -9685, 2821}, // USA - Texas - SPCS83 - S
    {323321, -9394, 2885, -8875, 3107}, // USA - Louisiana - SPCS83 - S
    {317012, -818, 5396, -534, 5536}, // UK - Northern Ireland - onshore
    {59834, 800, 5467, 1129, 5780}, // Denmark - onshore Jutland and Funen
    {59959, 1079, 5451, 1269, 5679}, // Denmark - onshore Zealand and Lolland
    {59807, 1459, 5494, 1525, 5538}, // Denmark - onshore Bornholm
    {94631, 992, 5020, 1256, 5164}, // Germany - Thuringen
    {94544, 1189, 5020, 1504, 5166}, // Germany - Saxony
    {277464, 2864, 4344, 3141, 4520}, // Romania - offshore
    {42788, 845, 216, 1040, 499}, // Cameroon - coastal area
    {96518, -6506, 8100, -1181, 8367}, // Greenland - north of 81°N
    {96404, -4400, 7800, -1433, 8100}, // Greenland - east - 78°N to 81°N
    {96370, -4400, 7500, -1712, 7800}, // Greenland - east - 75°N to 78°N
    {96336, -3800, 7200, -1721, 7500}, // Greenland - east - 72°N to 75°N
    {96306, -2969, 6866, -1989, 7458}, // Greenland - Scoresbysund area
    {96278, -3886, 6552, -3681, 6591}, // Greenland - Ammassalik area
    {96588, -4800, 5974, -4252, 6205}, // Greenland - southwest coast east of 48°W
    {96545, -5400, 6063, -4800, 7305}, // Greenland - southwest coast 54°W to 48°W
    {26366, 11285, -4370, 15369, -986}, // Australia - onshore
    {25224, 10923, -3853, 15361, -937}, // Australia - AGD84
    {109201, 10577, -689, 11001, -407}, // Indonesia - Java Sea - offshore northwest Java
    {109087, 11280, -846, 11701, -680}, // Indonesia - Bali Sea west
    {109607, 13189, -294, 13382, -197}, // Indonesia - West Papua - Tangguh
    {42739, 1290, 892, 1419, 987}, // Cameroon - Garoua area
    {42762, 1417, 1170, 1509, 1277}, // Cameroon - N'Djamena area
    {20667, -6862, -5461, -6600, -5165}, // Argentina - Tierra del Fuego offshore west of 66°W
    {20615, -6600, -5493, -6149, -5136}, // Argentina - Tierra del Fuego offshore east of 66°W
    {23799, 3417, 2945, 3569, 3328}, // Asia - Middle East - Israel and Palestine Territory onshore
    {72354, 1957, 4824, 2250, 5910}, // Europe - FSU - 19.5°E to 22.5°E onshore
    {72396, 2250, 4771, 2550, 5975}, // Europe - FSU - 22.5°E to 25.5°E onshore
    {72438, 2549, 4526, 2851, 6893}, // Europe - FSU - 25.5°E to 28.5°E onshore
    {72480, 2850, 4518, 3150, 6985}, // Europe - FSU - 28.5°E to 31.5°E onshore
    {72522, 3150, 4432, 3450, 7002}, // Europe - FSU - 31.5°E to 34.5°E onshore
    {72564, 3450, 4461, 3750, 6939}, // Europe - FSU - 34.5°E to 37.5°E onshore
    {72606, 3750, 4307, 4050, 6880}, // Europe - FSU - 37.5°E to 40.5°E onshore
    {72648, 4050, 4101, 4351, 6874}, // Europe - FSU - 40.5°E to 43.5°E onshore
    {72690, 4350, 3884, 4650, 8080}, // Europe - FSU - 43.5°E to 46.5°E onshore
    {72732, 4650, 3831, 4950, 8091}, // Europe - FSU - 46.5°E to 49.5°E onshore
    {22272, 4950, 3766, 5250, 8122}, // Asia - FSU - 49.5°E to 52.5°E onshore
    {22312, 5250, 3733, 5550, 8141}, // Asia - FSU - 52.5°E to 55.5°E onshore
    {22352, 5550, 3764, 5850, 8189}, // Asia - FSU - 55.5°E to 58.5°E onshore
    {22392, 5850, 3551, 6150, 8191}, // Asia - FSU - 58.5°E to 61.5°E onshore
    {22432, 6150, 3514, 6450, 8177}, // Asia - FSU - 61.5°E to 64.5°E onshore
    {22472, 6450, 3627, 6750, 8125}, // Asia - FSU - 64.5°E to 67.5°E onshore
    {22512, 6750, 3693, 7050, 7707}, // Asia - FSU - 67.5°E to 70.5°E onshore
    {22552, 7050, 3667, 7350, 7357}, // Asia - FSU - 70.5°E to 73.5°E onshore
    {22592, 7350, 3722, 7650, 7971}, // Asia - FSU - 73.5°E to 76.5°E onshore
    {22632, 7650, 4044, 7950, 8103}, // Asia - FSU - 76.5°E to 79.5°E onshore
    {22672, 7950, 4182, 8250, 8103}, // Asia - FSU - 79.5°E to 82.5°E onshore
    {22712, 8250, 4511, 8550, 7756}, // Asia - FSU - 82.5°E to 85.5°E onshore
    {22752, 8550, 4705, 8850, 7716}, // Asia - FSU - 85.5°E to 88.5°E onshore
    {280513, 8850, 4944, 9150, 8128}, // Russia - 88.5°E to 91.5°E onshore
    {280581, 9150, 5016, 9450, 8126}, // Russia - 91.5°E to 94.5°E onshore
    {280617, 9450, 4973, 9750, 8135}, // Russia - 94.5°E to 97.5°E onshore
    {280686, 9750, 4979, 10050, 8090}, // Russia - 97.5°E to 100.5°E onshore
    {277718, 10050, 5017, 10350, 7971}, // Russia - 100.5°E to 103.5°E onshore
    {277790, 10350, 5013, 10650, 7921}, // Russia - 103.5°E to 106.5°E onshore
    {277828, 10650, 4925, 10950, 7840}, // Russia - 106.5°E to 109.5°E onshore
    {277900, 10950, 4914, 11250, 7681}, // Russia - 109.5°E to 112.5°E onshore
    {277938, 11250, 4949, 11550, 7670}, // Russia - 112.5°E to 115.5°E onshore
    {278010, 11550, 4951, 11850, 7443}, // Russia - 115.5°E to 118.5°E onshore
    {278048, 11850, 4987, 12150, 7363}, // Russia - 118.5°E to 121.5°E onshore
    {278120, 12150, 5318, 12450, 7400}, // Russia - 121.5°E to 124.5°E onshore
    {278158, 12450, 4988, 12750, 7400}, // Russia - 124.5°E to 127.5°E onshore
    {278230, 12750, 4267, 13050, 7359}, // Russia - 127.5°E to 130.5°E onshore
    {278268, 13050, 4225, 13350, 7199}, // Russia - 130.5°E to 133.5°E onshore
    {278340, 13350, 4274, 13650, 7590}, // Russia - 133.5°E to 136.5°E onshore
    {278378, 13650, 4476, 13950, 7627}, // Russia - 136.5°E to 139.5°E onshore
    {278450, 13950, 4584, 14250, 7623}, // Russia - 139.5°E to 142.5°E onshore
    {278488, 14250, 4361, 14550, 7598}, // Russia - 142.5°E to 145.5°E onshore
    {278560, 14550, 4360, 14850, 7676}, // Russia - 145.5°E to 148.5°E onshore
    {278598, 14850, 4521, 15150, 7682}, // Russia - 148.5°E to 151.5°E onshore
    {278670, 15150, 4672, 15450, 7626}, // Russia - 151.5°E to 154.5°E onshore
    {278708, 15450, 4902, 15750, 7720}, // Russia - 154.5°E to 157.5°E onshore
    {278780, 15750, 5136, 16050, 7112}, // Russia - 157.5°E to 160.5°E onshore
    {278818, 16050, 5434, 16350, 7098}, // Russia - 160.5°E to 163.5°E onshore
    {278890, 16350, 5469, 16650, 6982}, // Russia - 163.5°E to 166.5°E onshore
    {278928, 16650, 5445, 16950, 7007}, // Russia - 166.5°E to 169.5°E onshore
    {279000, 16950, 5986, 17250, 7019}, // Russia - 169.5°E to 172.5°E onshore
    {279038, 17250, 6099, 17550, 7002}, // Russia - 172.5°E to 175.5°E onshore
    {279148, 17550, 6209, 17850, 7110}, // Russia - 175.5°E to 178.5°E onshore
    {279224, 17850, 6224, -17850, 7165}, // Russia - 178.5°E to 178.5°W onshore
    {279262, -17850, 6474, -17550, 7161}, // Russia - 178.5°W to 175.5°W onshore
    {279186, -17550, 6420, -17250, 6778}, // Russia - 175.5°W to 172.5°W onshore
    {279076, -17250, 6435, -16957, 6706}, // Russia - 172.5°W to 169.5°W onshore
    {280723, -16922, 6570, -16897, 6586}, // Russia - east of 169.5°W onshore
    {49002, 7362, 3581, 7650, 4065}, // China - west of 76.5°E
    {48559, 7650, 3103, 7950, 4183}, // China - 76.5°E to 79.5°E
    {48609, 7950, 2995, 8251, 4588}, // China - 79.5°E to 82.5°E
    {48636, 8250, 2826, 8550, 4723}, // China - 82.5°E to 85.5°E
    {48686, 8550, 2780, 8850, 4918}, // China - 85.5°E to 88.5°E
    {48713, 8849, 2732, 9151, 4842}, // China - 88.5°E to 91.5°E
    {48763, 9150, 2771, 9450, 4513}, // China - 91.5°E to 94.5°E
    {48790, 9450, 2823, 9751, 4450}, // China - 94.5°E to 97.5°E
    {48841, 9750, 2143, 10050, 4276}, // China - 97.5°E to 100.5°E
    {47894, 10050, 2113, 10350, 4269}, // China - 100.5°E to 103.5°E
    {47981, 10350, 2250, 10651, 4221}, // China - 103.5°E to 106.5°E
    {48010, 10650, 1819, 10951, 4247}, // China - 106.5°E to 109.5°E onshore
    {48105, 10950, 1811, 11250, 4511}, // China - 109.5°E to 112.5°E onshore
    {48142, 11250, 2152, 11550, 4545}, // China - 112.5°E to 115.5°E onshore
    {48237, 11550, 2260, 11850, 4988}, // China - 115.5°E to 118.5°E onshore
    {48274, 11850, 2443, 12150, 5333}, // China - 118.5°E to 121.5°E onshore
    {48369, 12150, 2822, 12450, 5356}, // China - 121.5°E to 124.5°E onshore
    {48406, 12450, 4019, 12750, 5320}, // China - 124.5°E to 127.5°E onshore
    {48501, 12750, 4137, 13050, 5025}, // China - 127.5°E to 130.5°E
    {48530, 13050, 4242, 13350, 4888}, // China - 130.5°E to 133.5°E
    {48924, 13350, 4585, 13477, 4840}, // China - east of 133.5°E
    {279333, 1957, 5432, 2250, 5532}, // Russia - 19.5°E to 22.5°E onshore
    {279369, 2250, 5434, 2287, 5507}, // Russia - 22.5°E to 25.5°E onshore
    {279437, 2661, 5605, 2851, 6893}, // Russia - 25.5°E to 28.5°E onshore
    {279473, 2850, 5285, 3150, 6985}, // Russia - 28.5°E to 31.5°E onshore
    {279541, 3150, 5124, 3450, 7002}, // Russia - 31.5°E to 34.5°E onshore
    {279577, 3450, 4461, 3751, 6939}, // Russia - 34.5°E to 37.5°E onshore
    {279645, 3750, 4333, 4050, 6880}, // Russia - 37.5°E to 40.5°E onshore
    {279681, 4050, 4287, 4350, 6874}, // Russia - 40.5°E to 43.5°E onshore
    {279749, 4350, 4189, 4650, 8080}, // Russia - 43.5°E to 46.5°E onshore
    {279785, 4650, 4119, 4950, 8091}, // Russia - 46.5°E to 49.5°E onshore
    {279853, 4950, 4236, 5250, 8122}, // Russia - 49.5°E to 52.5°E onshore
    {279889, 5250, 5052, 5550, 8141}, // Russia - 52.5°E to 55.5°E onshore
    {279957, 5550, 5053, 5850, 8189}, // Russia - 55.5°E to 58.5°E onshore
    {279993, 5850, 5047, 6150, 8191}, // Russia - 58.5°E to 61.5°E onshore
    {280061, 6150, 5103, 6450, 8177}, // Russia - 61.5°E to 64.5°E onshore
    {280097, 6450, 5431, 6750, 8125}, // Russia - 64.5°E to 67.5°E onshore
    {280165, 6750, 5485, 7050, 7707}, // Russia - 67.5°E to 70.5°E onshore
    {280201, 7050, 5343, 7350, 7357}, // Russia - 70.5°E to 73.5°E onshore
    {280269, 7350, 5347, 7650, 7971}, // Russia - 73.5°E to 76.5°E onshore
    {280305, 7650, 5149, 7950, 8103}, // Russia - 76.5°E to 79.5°E onshore
    {280373, 7950, 5070, 8250, 8103}, // Russia - 79.5°E to 82.5°E onshore
    {280409, 8250, 4958, 8550, 7756}, // Russia - 82.5°E to 85.5°E onshore
    {280477, 8550, 4907, 8850, 7716}, // Russia - 85.5°E to 88.5°E onshore
    {226232, 781, 1280, 1490, 1670}, // Niger - southeast
    {22792, 3999, 4137, 4304, 4359}, // Asia - FSU - CS63 zone A1
    {22818, 4303, 3887, 4604, 4305}, // Asia - FSU - CS63 zone A2
    {22844, 4603, 3838, 4904, 4210}, // Asia - FSU - CS63 zone A3
    {22870, 4903, 3789, 5173, 4259}, // Asia - FSU - CS63 zone A4
    {22896, 4926, 4115, 5227, 5177}, // Asia - FSU - CS63 zone K2
    {22922, 5226, 4146, 5527, 5179}, // Asia - FSU - CS63 zone K3
    {22948, 5526, 4126, 5827, 5114}, // Asia - FSU - CS63 zone K4
    {247873, -1611, 2998, -1579, 3021}, // Portugal - Selvagens onshore
    {143907, -1324, 2766, -359, 3151}, // Morocco - south of 31.5°N
    {357495, -1542, 2429, -866, 2767}, // Western Sahara - north of 24.3°N
    {357529, -1716, 2071, -1200, 2431}, // Western Sahara - south of 24.3°N
    {6062, -1719, 1026, 3042, 1570}, // Africa - 12th parallel N
    {52185, 4316, -1199, 4355, -1131}, // Comoros - Njazidja (Grande Comore)
    {80642, -15000, -1793, -14909, -1741}, // French Polynesia - Society Islands - Moorea and Tahiti
    {80481, -15191, -1696, -15089, -1617}, // French Polynesia - Society Islands - Bora Bora, Huahine, Raiatea, Tahaa
    {222897, 16644, -2077, 16671, -2034}, // New Caledonia - Ouvea
    {222778, 16698, -2124, 16752, -2062}, // New Caledonia - Lifou
    {356047, -17625, -1341, -17607, -1316}, // Wallis and Futuna - Wallis
    {81135, 6869, -4978, 7062, -4860}, // French Southern Territories - Kerguelen onshore
    {14543, 13944, -6678, 14150, -6610}, // Antarctica - Adelie Land - Petrels island
    {14585, 13600, -6713, 14200, -6561}, // Antarctica - Adelie Land coastal area
    {222800, 16775, -2171, 16819, -2132}, // New Caledonia - Mare
    {222749, 16736, -2273, 16761, -2249}, // New Caledonia - Ile des Pins
    {222593, 16354, -1985, 16375, -1950}, // New Caledonia - Belep
    {222682, 16392, -2245, 16709, -2003}, // New Caledonia - Grande Terre
    {222711, 16635, -2237, 16654, -2219}, // New Caledonia - Grande Terre - Noumea
    {46350, -6366, 1408, -5752, 1853}, // Caribbean - French Antilles
    {6596, 2999, 349, 3600, 2224}, // Africa - Ethiopia and Sudan - 30°E to 36°E
    {6988, 2399, 421, 3001, 2201}, // Africa - South Sudan and Sudan - 24°E to 30°E
    {97260, -6321, 1782, -6273, 1817}, // Guadeloupe - St Martin and St Barthelemy - onshore
    {97200, -6185, 1580, -6097, 1655}, // Guadeloupe - Grande-Terre and surrounding islands - onshore
    {44087, -13904, 4825, -11408, 6001}, // Canada - British Columbia
    {307580, 1093, 5674, 1311, 6013}, // Sweden - 12 00
    {307595, 1212, 5528, 1479, 6228}, // Sweden - 13 30
    {307625, 1354, 5595, 1615, 6162}, // Sweden - 15 00
    {307655, 1541, 5615, 1763, 6226}, // Sweden - 16 30
    {307685, 1708, 5866, 1961, 6070}, // Sweden - 18 00
    {307610, 1193, 6155, 1555, 6439}, // Sweden - 14 15
    {307640, 1366, 6044, 1701, 6513}, // Sweden - 15 45
    {307670, 1431, 6212, 1904, 6719}, // Sweden - 17 15
    {307700, 1718, 5686, 2022, 6617}, // Sweden - 18 45
    {307753, 1608, 6345, 2328, 6907}, // Sweden - 20 15
    {307768, 1963, 6501, 2291, 6643}, // Sweden - 21 45
    {307783, 2185, 6549, 2417, 6814}, // Sweden - 23 15
    {307832, 1093, 5729, 1291, 5973}, // Sweden - 7.5 gon W
    {307815, 1181, 5528, 1544, 6439}, // Sweden - 5 gon W
    {307734, 1366, 5595, 1773, 6718}, // Sweden - 2.5 gon W
    {307565, 1608, 5686, 2022, 6854}, // Sweden - 0 gon
    {307715, 1840, 6337, 2220, 6907}, // Sweden - 2.5 gon E
    {307798, 2134, 6524, 2417, 6858}, // Sweden - 5 gon E
    {104688, -2466, 6471, -2400, 6585}, // Iceland - mainland west of 24°W
    {104621, -2400, 6334, -1800, 6652}, // Iceland - mainland 24°W to 18°W
    {104655, -1800, 6345, -1338, 6658}, // Iceland - mainland east of 18°W
    {71677, -3000, 2510, -2400, 6580}, // Europe - 30°W to 24°W
    {71443, -2400, 2760, -1800, 6650}, // Europe - 24°W to 18°W
    {95147, 334, 5097, 600, 5592}, // Germany - west of 6°E
    {94405, 600, 4727, 1200, 5547}, // Germany - 6°E to 12°E
    {94929, 1157, 4746, 1504, 5503}, // Germany - east of 12°E
    {71791, 4200, 3695, 4800, 7500}, // Europe - 42°E to 48°E
    {71905, 4800, 3600, 5400, 7500}, // Europe - 48°E to 54°E
    {115365, -917, 7075, -787, 7124}, // Jan Mayen - onshore
    {23757, 4636, 2906, 4861, 3032}, // Asia - Middle East - Iraq-Kuwait boundary
    {14760, 4500, -8000, 16000, -6000}, // Antarctica - Australian sector north of 80°S
    {73175, -3558, 2460, 4483, 8473}, // Europe - LCC & LAEA
    {223391, -17725, -4464, -17554, -4330}, // New Zealand - Chatham Islands group
    {94429, 1309, 5233, 1376, 5265}, // Germany - Berlin
    {115416, 12362, 2398, 12551, 2494}, // Japan - 120°E to 126°E onshore
    {115474, 12663, 2440, 13200, 3490}, // Japan - 126°E to 132°E onshore
    {115532, 13200, 2037, 13800, 3758}, // Japan - 132°E to 138°E onshore
    {115590, 13800, 2467, 14400, 4554}, // Japan - 138°E to 144°E onshore
    {115648, 14400, 4284, 14587, 4440}, // Japan - 144°E to 150°E onshore
    {323400, -7109, 4307, -6960, 4658}, // USA - Maine - CS2000 - W
    {323350, -7003, 4375, -6833, 4747}, // USA - Maine - CS2000 - C
    {323375, -6858, 4418, -6691, 4737}, // USA - Maine - CS2000 - E
    {138221, -1708, 1937, -1588, 2134}, // Mauritania - north coast
    {138168, -1657, 1681, -1559, 1941}, // Mauritania - central coast
    {138195, -600, 1549, -480, 2574}, // Mauritania - east of 6°W
    {138113, -1200, 1475, -600, 2730}, // Mauritania - 12°W to 6°W
    {138267, -1708, 1472, -1200, 2346}, // Mauritania - west of 12°W onshore
    {226312, 266, 192, 849, 638}, // Nigeria - offshore
    {25474, 12899, -3813, 14101, -2599}, // Australia - SA
    {47418, -272, 4877, -181, 4944}, // Channel Islands - Jersey, Les Ecrehos and Les Minquiers
    {47375, -373, 4911, -202, 5016}, // Channel Islands - Guernsey, Alderney, Sark
    {25283, 15237, -2936, 15369, -2464}, // Australia - Brisbane
    {9725, -7200, -6400, -6000, -6000}, // Antarctica - 60°S to 64°S, 72°W to 60°W (SP19-20)
    {9671, -6000, -6400, -4800, -6000}, // Antarctica - 60°S to 64°S, 60°W to 48°W (SP21-22)
    {9617, -4800, -6400, -3600, -6000}, // Antarctica - 60°S to 64°S, 48°W to 36°W (SP23-24)
    {10059, -18000, -6800, -16800, -6400}, // Antarctica - 64°S to 68°S, 180°W to 168°W (SQ01-02)
    {10385, -7200, -6800, -6000, -6400}, // Antarctica - 64°S to 68°S, 72°W to 60°W (SQ19-20)
    {10277, -6000, -6800, -4800, -6400}, // Antarctica - 64°S to 68°S, 60°W to 48°W (SQ21-22)
    {10115, 3600, -6800, 4800, -6400}, // Antarctica - 64°S to 68°S, 36°E to 48°E (SQ37-38)
    {10169, 4800, -6800, 6000, -6400}, // Antarctica - 64°S to 68°S, 48°E to 60°E (SQ39-40)
    {10223, 6000, -6800, 7200, -6400}, // Antarctica - 64°S to 68°S, 60°E to 72°E (SQ41-42)
    {10331, 7200, -6800, 8400, -6400}, // Antarctica - 64°S to 68°S, 72°E to 84°E (SQ43-44)
    {10439, 8400, -6800, 9600, -6400}, // Antarctica - 64°S to 68°S, 84°E to 96°E (SQ45-46)
    {10493, 9600, -6800, 10800, -6400}, // Antarctica - 64°S to 68°S, 96°E to 108°E (SQ47-48)
    {9779, 10800, -6800, 12000, -6400}, // Antarctica - 64°S to 68°S, 108°E to 120°E (SQ49-50)
    {9835, 12000, -6800, 13200, -6400}, // Antarctica - 64°S to 68°S, 120°E to 132°E (SQ51-52)
    {9891, 13200, -6800, 14400, -6400}, // Antarctica - 64°S to 68°S, 132°E to 144°E (SQ53-54)
    {9947, 14400, -6800, 15600, -6400}, // Antarctica - 64°S to 68°S, 144°E to 156°E (SQ55-56)
    {10003, 15600, -6800, 16800, -6400}, // Antarctica - 64°S to 68°S, 156°E to 168°E (SQ57-58)
    {10657, -10800, -7200, -9600, -6800}, // Antarctica - 68°S to 72°S, 108°W to 96°W (SR13-14)
    {11640, -9600, -7200, -8400, -6800}, // Antarctica - 68°S to 72°S, 96°W to 84°W (SR15-16)
    {11531, -8400, -7200, -7200, -6800}, // Antarctica - 68°S to 72°S, 84°W to 72°W (SR17-18)
    {11423, -7200, -7200, -6000, -6800}, // Antarctica - 68°S to 72°S, 72°W to 60°W (SR19-20)
    {11153, -2400, -7200, -1200, -6800}, // Antarctica - 68°S to 72°S, 24°W to 12°W (SR27-28)
    {10822, -1200, -7200, 0, -6800}, // Antarctica - 68°S to 72°S, 12°W to 0°W (SR29-30)
    {10548, 0, -7200, 1200, -6800}, // Antarctica - 68°S to 72°S, 0°E to 12°E (SR31-32)
    {10768, 1200, -7200, 2400, -6800}, // Antarctica - 68°S to 72°S, 12°E to 24°E (SR33-34)
    {11099, 2400, -7200, 3600, -6800}, // Antarctica - 68°S to 72°S, 24°E to 36°E (SR35-36)
    {11207, 3600, -7200, 4800, -6800}, // Antarctica - 68°S to 72°S, 36°E to 48°E (SR37-38)
    {11261, 4800, -7200, 6000, -6800}, // Antarctica - 68°S to 72°S, 48°E to 60°E (SR39-40)
    {11315, 6000, -7200, 7200, -6800}, // Antarctica - 68°S to 72°S, 60°E to 72°E (SR41-42)
    {11369, 7200, -7200, 8400, -6800}, // Antarctica - 68°S to 72°S, 72°E to 84°E (SR43-44)
    {11477, 8400, -7200, 9600, -6800}, // Antarctica - 68°S to 72°S, 84°E to 96°E (SR45-46)
    {11585, 9600, -7200, 10800, -6800}, // Antarctica - 68°S to 72°S, 96°E to 108°E (SR47-48)
    {10601, 10800, -7200, 12000, -6800}, // Antarctica - 68°S to 72°S, 108°E to 120°E (SR49-50)
    {10712, 12000, -7200, 13200, -6800}, // Antarctica - 68°S to 72°S, 120°E to 132°E (SR51-52)
    {10875, 13200, -7200, 14400, -6800}, // Antarctica - 68°S to 72°S, 132°E to 144°E (SR53-54)
    {10931, 14400, -7200, 15600, -6800}, // Antarctica - 68°S to 72°S, 144°E to 156°E (SR55-56)
    {10987, 15600, -7200, 16800, -6800}, // Antarctica - 68°S to 72°S, 156°E to 168°E (SR57-58)
    {11043, 16800, -7200, 18000, -6800}, // Antarctica - 68°S to 72°S, 168°E to 180°E (SR59-60)
    {12138, -16200, -7600, -14400, -7200}, // Antarctica - 72°S to 76°S, 162°W to 144°W (SS04-06)
    {12026, -14400, -7600, -12600, -7200}, // Antarctica - 72°S to 76°S, 144°W to 126°W (SS07-09)
    {11914, -12600, -7600, -10800, -7200}, // Antarctica - 72°S to 76°S, 126°W to 108°W (SS10-12)
    {11803, -10800, -7600, -9000, -7200}, // Antarctica - 72°S to 76°S, 108°W to 90°W (SS13-15)
    {12626, -9000, -7600, -7200, -7200}, // Antarctica - 72°S to 76°S, 90°W to 72°W (SS16-18)
    {12517, -7200, -7600, -5400, -7200}, // Antarctica - 72°S to 76°S, 72°W to 54°W (SS19-21)
    {12355, -3600, -7600, -1800, -7200}, // Antarctica - 72°S to 76°S, 36°W to 18°W (SS25-27)
    {12248, -1800, -7600, 0, -7200}, // Antarctica - 72°S to 76°S, 18°W to 0°W (SS28-30)
    {11694, 0, -7600, 1800, -7200}, // Antarctica - 72°S to 76°S, 0°E to 18°E (SS31-33)
    {12194, 1800, -7600, 3600, -7200}, // Antarctica - 72°S to 76°S, 18°E to 36°E (SS34-36)
    {12301, 3600, -7600, 5400, -7200}, // Antarctica - 72°S to 76°S, 36°E to 54°E (SS37-39)
    {12409, 5400, -7600, 7200, -7200}, // Antarctica - 72°S to 76°S, 54°E to 72°E (SS40-42)
    {12463, 7200, -7600, 9000, -7200}, // Antarctica - 72°S to 76°S, 72°E to 90°E (SS43-45)
    {12571, 9000, -7600, 10800, -7200}, // Antarctica - 72°S to 76°S, 90°E to 108°E (SS46-48)
    {11747, 10800, -7600, 12600, -7200}, // Antarctica - 72°S to 76°S, 108°E to 126°E (SS49-51)
    {11858, 12600, -7600, 14400, -7200}, // Antarctica - 72°S to 76°S, 126°E to 144°E (SS52-54)
    {11970, 14400, -7600, 16200, -7200}, // Antarctica - 72°S to 76°S, 144°E to 162°E (SS55-57)
    {12082, 16200, -7600, 18000, -7200}, // Antarctica - 72°S to 76°S, 162°E to 180°E (SS58-60)
    {13123, -18000, -8000, -15600, -7600}, // Antarctica - 76°S to 80°S, 180°W to 156°W (ST01-04)
    {13067, -15600, -8000, -13200, -7600}, // Antarctica - 76°S to 80°S, 156°W to 132°W (ST05-08)
    {12955, -13200, -8000, -10800, -7600}, // Antarctica - 76°S to 80°S, 132°W to 108°W (ST09-12)
    {12736, -10800, -8000, -8400, -7600}, // Antarctica - 76°S to 80°S, 108°W to 84°W (ST13-16)
    {13450, -8400, -8000, -6000, -7600}, // Antarctica - 76°S to 80°S, 84°W to 60°W (ST17-20)
    {13341, -6000, -8000, -3600, -7600}, // Antarctica - 76°S to 80°S, 60°W to 36°W (ST21-24)
    {13233, -3600, -8000, -1200, -7600}, // Antarctica - 76°S to 80°S, 36°W to 12°W (ST25-28)
    {12845, -1200, -8000, 1200, -7600}, // Antarctica - 76°S to 80°S, 12°W to 12°E (ST29-32)
    {12791, 1200, -8000, 3600, -7600}, // Antarctica - 76°S to 80°S, 12°E to 36°E (ST33-36)
    {13179, 3600, -8000, 6000, -7600}, // Antarctica - 76°S to 80°S, 36°E to 60°E (ST37-40)
    {13287, 6000, -8000, 8400, -7600}, // Antarctica - 76°S to 80°S, 60°E to 84°E (ST41-44)
    {13395, 8400, -8000, 10800, -7600}, // Antarctica - 76°S to 80°S, 84°E to 108°E (ST45-48)
    {12680, 10800, -8000, 13200, -7600}, // Antarctica - 76°S to 80°S, 108°E to 132°E (ST49-52)
    {12899, 13200, -8000, 15600, -7600}, // Antarctica - 76°S to 80°S, 132°E to 156°E (ST53-56)
    {13011, 15600, -8000, 18000, -7600}, // Antarctica - 76°S to 80°S, 156°E to 180°E (ST57-60)
    {13779, -18000, -8400, -15000, -8000}, // Antarctica - 80°S to 84°S, 180°W to 150°W (SU01-05)
    {13723, -15000, -8400, -12000, -8000}, // Antarctica - 80°S to 84°S, 150°W to 120°W (SU06-10)
    {13613, -12000, -8400, -9000, -8000}, // Antarctica - 80°S to 84°S, 120°W to 90°W (SU11-15)
    {14105, -9000, -8400, -6000, -8000}, // Antarctica - 80°S to 84°S, 90°W to 60°W (SU16-20)
    {13996, -6000, -8400, -3000, -8000}, // Antarctica - 80°S to 84°S, 60°W to 30°W (SU21-25)
    {13889, -3000, -8400, 0, -8000}, // Antarctica - 80°S to 84°S, 30°W to 0°W (SU26-30)
    {13504, 0, -8400, 3000, -8000}, // Antarctica - 80°S to 84°S, 0°E to 30°E (SU31-35)
    {13835, 3000, -8400, 6000, -8000}, // Antarctica - 80°S to 84°S, 30°E to 60°E (SU36-40)
    {13942, 6000, -8400, 9000, -8000}, // Antarctica - 80°S to 84°S, 60°E to 90°E (SU41-45)
    {14050, 9000, -8400, 12000, -8000}, // Antarctica - 80°S to 84°S, 90°E to 120°E (SU46-50)
    {13557, 12000, -8400, 15000, -8000}, // Antarctica - 80°S to 84°S, 120°E to 150°E (SU51-55)
    {13668, 15000, -8400, 18000, -8000}, // Antarctica - 80°S to 84°S, 150°E to 180° (SU56-60)
    {14323, -18000, -8800, -12000, -8400}, // Antarctica - 84°S to 88°S, 180°W to 120°W (SV01-10)
    {14268, -12000, -8800, -6000, -8400}, // Antarctica - 84°S to 88°S, 120°W to 60°W (SV11-20)
    {14434, -6000, -8800, 0, -8400}, // Antarctica - 84°S to 88°S, 60°W to 0°W (SV21-30)
    {14159, 0, -8800, 6000, -8400}, // Antarctica - 84°S to 88°S, 0°E to 60°E (SV31-40)
    {14379, 6000, -8800, 12000, -8400}, // Antarctica - 84°S to 88°S, 60°E to 120°E (SV41-50)
    {14212, 12000, -8800, 18000, -8400}, // Antarctica - 84°S to 88°S, 120°E to 180°E (SV51-60)
    {14487, -18000, -9000, 18000, -8800}, // Antarctica - 88°S to 90°S, 180°W to 180°E (SW01-60)
    {15073, 14983, -8000, 17401, -6860}, // Antarctica - Transantarctic mountains north of 80°S
    {50375, -7859, 3, -7558, 1021}, // Colombia - 78°35'W to 75°35'W
    {51404, -7910, 123, -7858, 248}, // Colombia - west of 78°35'W
    {77432, 1924, 6008, 1950, 6034}, // Finland - west of 19.5°E onshore
    {76318, 1950, 5992, 2050, 6048}, // Finland - 19.5°E to 20.5°E onshore
    {76437, 2050, 5984, 2150, 6933}, // Finland - 20.5°E to 21.5°E onshore
    {76519, 2150, 5976, 2250, 6931}, // Finland - 21.5°E to 22.5°E onshore
    {76601, 2250, 5975, 2350, 6874}, // Finland - 22.5°E to 23.5°E onshore
    {76720, 2350, 5986, 2450, 6884}, // Finland - 23.5°E to 24.5°E onshore
    {76802, 2450, 5994, 2550, 6890}, // Finland - 24.5°E to 25.5°E onshore
    {76884, 2550, 6018, 2650, 6994}, // Finland - 25.5°E to 26.5°E onshore
    {77003, 2650, 6036, 2750, 7005}, // Finland - 26.5°E to 27.5°E onshore
    {77085, 2750, 6042, 2850, 7009}, // Finland - 27.5°E to 28.5°E onshore
    {77167, 2850, 6094, 2950, 6981}, // Finland - 28.5°E to 29.5°E
    {77262, 2950, 6143, 3050, 6798}, // Finland - 29.5°E to 30.5°E
    {77328, 3050, 6208, 3159, 6427}, // Finland - east of 30.5°E
    {80040, -5445, 343, -5161, 581}, // French Guiana - coastal area
    {296935, 5400, 1966, 5567, 2277}, // Saudi Arabia - east of 54°E
    {297025, 3451, 2682, 3600, 2938}, // Saudi Arabia - onshore west of 36°E
    {140689, 13799, 939, 13827, 969}, // Micronesia - Yap Islands
    {8655, -17088, -1443, -16938, -1411}, // American Samoa - 2 main island groups
    {8693, -17088, -1459, -16809, -1411}, // American Samoa - 2 main island groups and Rose Island
    {302906, -8018, 0, -7800, 145}, // South America - 84°W to 78°W, N hemisphere and PSAD56 by country
    {228391, -9600, 2561, -9000, 8400}, // North America - 96°W to 90°W and NAD83 by country
    {228287, -9000, 2397, -8400, 8400}, // North America - 90°W to 84°W and NAD83 by country
    {228183, -8400, 2381, -7800, 8400}, // North America - 84°W to 78°W and NAD83 by country
    {228079, -7800, 2828, -7200, 8400}, // North America - 78°W to 72°W and NAD83 by country
    {80775, -15813, -2670, -15000, -1250}, // French Polynesia - west of 150°W
    {80268, -15000, -3120, -14400, -729}, // French Polynesia - 150°W to 144°W
    {80232, -14400, -3124, -13800, -452}, // French Polynesia - 144°W to 138°W
    {80741, -13800, -2658, -13197, -552}, // French Polynesia - east of 138°W
    {80697, -14970, -1793, -14909, -1744}, // French Polynesia - Society Islands - Tahiti
    {80598, -15000, -1763, -14973, -1741}, // French Polynesia - Society Islands - Moorea
    {80553, -15239, -1657, -15214, -1634}, // French Polynesia - Society Islands - Maupiti
    {80412, -14031, -957, -13944, -872}, // French Polynesia - Marquesas Islands - Nuku Hiva, Ua Huka and Ua Pou
    {80353, -13923, -1008, -13875, -964}, // French Polynesia - Marquesas Islands - Hiva Oa and Tahuata
    {80304, -13875, -1060, -13854, -1036}, // French Polynesia - Marquesas Islands - Fatu Hiva
    {25351, 14099, -3753, 15369, -2815}, // Australia - New South Wales
    {313779, -6198, 999, -6085, 1090}, // Trinidad and Tobago - Trinidad - onshore
    {80155, -5400, 217, -4945, 888}, // French Guiana - east of 54°W
    {80185, -5461, 211, -5400, 569}, // French Guiana - west of 54°W
    {53124, 2174, -1346, 3078, -499}, // Congo DR (Zaire) - Katanga
    {53094, 2150, -731, 2626, -501}, // Congo DR (Zaire) - Kasai - SE
    {52505, 1217, -736, 2964, -329}, // Congo DR (Zaire) - 6th parallel south
    {52429, 1217, -604, 1301, -467}, // Congo DR (Zaire) - 11°E to 13°E onshore
    {52471, 1300, -591, 1501, -428}, // Congo DR (Zaire) - 13°E to 15°E
    {52543, 1500, -587, 1700, -329}, // Congo DR (Zaire) - 6th parallel south 15°E to 17°E
    {52596, 1700, -538, 1900, -340}, // Congo DR (Zaire) - 6th parallel south 17°E to 19°E
    {52649, 1900, -729, 2100, -401}, // Congo DR (Zaire) - 6th parallel south 19°E to 21°E
    {52757, 2100, -731, 2300, -531}, // Congo DR (Zaire) - 6th parallel south 21°E to 23°E
    {52810, 2300, -699, 2500, -501}, // Congo DR (Zaire) - 6th parallel south 23°E to 25°E
    {52863, 2500, -726, 2700, -423}, // Congo DR (Zaire) - 6th parallel south 25°E to 27°E
    {52916, 2700, -736, 2900, -424}, // Congo DR (Zaire) - 6th parallel south 27°E to 29°E
    {52969, 2900, -604, 2964, -434}, // Congo DR (Zaire) - 6th parallel south 29°E to 31°E
    {53022, 1217, -604, 1628, -428}, // Congo DR (Zaire) - Bas Congo
    {242998, 9869, -6000, -6800, 6667}, // Pacific Ocean
    {72774, 1957, 5417, 2345, 5927}, // Europe - FSU - CS63 zone C0
    {72802, 2345, 5389, 2645, 5972}, // Europe - FSU - CS63 zone C1
    {72830, 2645, 5515, 2824, 5961}, // Europe - FSU - CS63 zone C2
    {36808, -5400, -3378, -4800, -1500}, // Brazil - 54°W to 48°W and south of 15°S
    {36651, -4800, -2529, -4200, -1500}, // Brazil - 48°W to 42°W and south of 15°S
    {37077, -3600, -1010, -3474, -499}, // Brazil - east of 36°W onshore
    {6125, 1053, -604, 1310, -438}, // Africa - Angola (Cabinda) and DR Congo (Zaire) - coastal
    {6182, 1053, -604, 1237, -505}, // Africa - Angola (Cabinda) and DR Congo (Zaire) - offshore
    {320236, -16636, 2369, -16603, 2393}, // USA - Hawaii - Tern Island and Sorel Atoll
    {305831, -1446, -803, -1424, -783}, // St Helena - Ascension Island
    {305860, -585, -1608, -559, -1585}, // St Helena - St Helena Island
    {305889, -1276, -4042, -980, -3700}, // St Helena - Tristan da Cunha
    {46892, -8146, 1921, -8104, 1941}, // Cayman Islands - Grand Cayman
    {46922, -8014, 1963, -7969, 1978}, // Cayman Islands - Little Cayman and Cayman Brac
    {47835, -10951, -2725, -10916, -2701}, // Chile - Easter Island onshore
    {37338, 7230, -749, 7255, -718}, // British Indian Ocean Territory - Diego Garcia
    {242876, 16655, 1922, 16672, 1938}, // Wake - onshore
    {242848, 16227, 866, 16782, 1938}, // Pacific - Marshall Islands, Wake - onshore
    {140660, 16285, 521, 16310, 543}, // Micronesia - Kosrae (Kusaie)
    {334689, 16809, -2031, 16995, -1737}, // Vanuatu - southern islands
    {334662, 16647, -1732, 16871, -1457}, // Vanuatu - northern islands
    {75936, 17719, -1832, 17875, -1725}, // Fiji - Viti Levu
    {122154, -17460, -476, -17066, -268}, // Kiribati - Phoenix Islands
    {305327, -2193, 2460, -1175, 3276}, // Spain - Canary Islands
    {115681, 14120, 2467, 14142, 2489}, // Japan - Iwo Jima
    {117058, -16959, 1667, -16947, 1679}, // Johnston Island
    {140726, -17745, 2813, -17731, 2828}, // Midway Islands - Sand and Eastern Islands
    {14911, -6089, -6308, -6035, -6282}, // Antarctica - Deception Island
    {14845, 16573, -7794, 16743, -7717}, // Antarctica - Camp McMurdo area
    {228443, -8233, 2086, -7268, 3083}, // North America - Bahamas and USA - Florida - onshore
    {246336, -13016, -2514, -13001, -2500}, // Pitcairn - Pitcairn Island
    {138486, 5725, -2057, 5785, -1994}, // Mauritius - mainland
    {7974, 1922, 3964, 2106, 4267}, // Albania - onshore
    {9467, -6322, 1811, -6292, 1833}, // Anguilla - onshore
    {29911, 8801, 2052, 9267, 2664}, // Bangladesh - onshore
    {30002, -5971, 1300, -5937, 1339}, // Barbados - onshore
    {34138, -8922, 1588, -8772, 1849}, // Belize - onshore
    {34255, -6489, 3221, -6461, 3243}, // Bermuda - onshore
    {38235, 2236, 4124, 2868, 4423}, // Bulgaria - onshore
    {48986, 7362, 1811, 13477, 5356}, // China - onshore
    {51235, -7910, -423, -6687, 1252}, // Colombia - mainland
    {54838, -8597, 798, -8253, 1122}, // Costa Rica - onshore
    {55441, 1343, 4234, 1943, 4654}, // Croatia - onshore
    {55761, 3220, 3459, 3465, 3574}, // Cyprus - onshore
    {60194, -6155, 1514, -6120, 1569}, // Dominica - onshore
    {69054, 2470, 2197, 3695, 3168}, // Egypt - onshore
    {69611, -9011, 1310, -8769, 1444}, // El Salvador - onshore
    {69844, 2174, 5752, 2820, 5975}, // Estonia - onshore
    {75286, -6155, -5251, -5760, -5096}, // Falkland Islands - onshore
    {75466, -749, 6133, -633, 6241}, // Faroe Islands - onshore
    {93395, 865, -398, 1452, 232}, // Gabon - onshore
    {93497, -1688, 1305, -1379, 1383}, // Gambia - onshore
    {95193, -325, 467, 123, 1116}, // Ghana - onshore
    {95759, 1957, 3488, 2830, 4175}, // Greece - onshore
    {97358, 14458, 1318, 14501, 1370}, // Guam - onshore
    {97621, -1513, 719, -765, 1268}, // Guinea - onshore
    {97661, -1677, 1087, -1364, 1269}, // Guinea-Bissau - onshore
    {104602, -2466, 6334, -1338, 6659}, // Iceland - mainland
    {123149, 12453, 3314, 13101, 3864}, // Korea, Republic of (South Korea) - onshore
    {124157, 4654, 2853, 4848, 3009}, // Kuwait - onshore
    {126877, 3504, 3306, 3663, 3465}, // Lebanon - onshore
    {126969, -1152, 429, -736, 852}, // Liberia - onshore
    {134718, 4318, -2564, 5056, -1189}, // Madagascar - onshore
    {136300, 7281, -69, 7369, 708}, // Maldives - onshore
    {137557, -6129, 1435, -6076, 1493}, // Martinique - onshore
    {138246, -1708, 1472, -480, 2730}, // Mauritania - onshore
    {143632, -6229, 1662, -6208, 1687}, // Montserrat - onshore
    {144175, 3021, -2687, 4090, -1042}, // Mozambique - onshore
    {225162, 16587, -4765, 17927, -3389}, // New Zealand - onshore and nearshore
    {236252, 5199, 1659, 5991, 2658}, // Oman - onshore
    {243694, -8304, 715, -7719, 968}, // Panama - onshore
    {246817, 1414, 4900, 2415, 5489}, // Poland - onshore
    {248605, -6797, 1787, -6519, 1857}, // Puerto Rico - onshore
    {277483, 2026, 4362, 2974, 4827}, // Romania - onshore
    {305918, -6292, 1706, -6250, 1746}, // St Kitts and Nevis - onshore
    {305947, -6113, 1366, -6082, 1416}, // St Lucia - onshore
    {306013, -5648, 4669, -5607, 4719}, // St Pierre and Miquelon - onshore
    {306046, -6152, 1254, -6107, 1344}, // St Vincent and the Grenadines - onshore
    {296964, 3451, 1637, 5567, 3216}, // Saudi Arabia - onshore
    {298280, -1335, 688, -1026, 1000}, // Sierra Leone - onshore
    {299742, 4098, -171, 5147, 1203}, // Somalia - onshore
    {305769, 7964, 586, 8195, 988}, // Sri Lanka - onshore
    {307515, -5808, 183, -5395, 606}, // Suriname - onshore
    {307896, 1093, 5528, 2417, 6907}, // Sweden - onshore
    {310327, 11925, 2187, 12206, 2534}, // Taiwan - onshore - mainland and Penghu
    {333178, -5849, -3500, -5309, -3009}, // Uruguay - onshore
    {334977, -7338, 64, -5980, 1225}, // Venezuela - onshore
    {335943, 10214, 833, 10953, 2340}, // Vietnam - onshore
    {336587, -6488, 1828, -6425, 1878}, // Virgin Islands, British - onshore
    {336621, -6509, 1762, -6451, 1844}, // Virgin Islands, US - onshore
    {77414, 1924, 5975, 3159, 7009}, // Finland - onshore
    {276856, 5516, -2142, 5591, -2081}, // Reunion - onshore
    {94997, 586, 4727, 1504, 5509}, // Germany - onshore
    {138515, 4498, -1305, 4535, -1261}, // Mayotte - onshore
    {106021, 6813, 802, 9742, 3551}, // India - mainland
    {115120, -7843, 1764, -7617, 1858}, // Jamaica - onshore
    {112614, 593, 3476, 1899, 4710}, // Italy - including San Marino and Vatican
    {224695, 16637, -4733, 17446, -4044}, // New Zealand - South and Stewart Islands
    {37189, -5816, -3191, -5400, -1799}, // Brazil - west of 54°W and south of 18°S
    {303355, -6257, -3191, -4710, -1537}, // South America - Brazil - south of 18°S and west of 54°W + DF; N Paraguay
    {96673, -7329, 5974, -4252, 7900}, // Greenland - west coast
    {96696, -5370, 6300, -4917, 6600}, // Greenland - west coast - 63°N to 66°N
    {96736, -5409, 6600, -4940, 6900}, // Greenland - west coast - 66°N to 69°N
    {96776, -5606, 6900, -4911, 7200}, // Greenland - west coast - 69°N to 72°N
    {96816, -5821, 7200, -5202, 7500}, // Greenland - west coast - 72°N to 75°N
    {96856, -7279, 7500, -5631, 7800}, // Greenland - west coast - 75°N to 78°N
    {96896, -7329, 7800, -6524, 7900}, // Greenland - west coast - 78°N to 79°N
    {96438, -2699, 6866, -2514, 6900}, // Greenland - east coast - 68°N to 69°N
    {96478, -2969, 6900, -2132, 7200}, // Greenland - east coast - 69°N to 72°N
    {328979, 16765, 4901, 17401, 5628}, // USA - west of 174°E - AK, OCS
    {318103, 17400, 4792, 18000, 5667}, // USA - 174°E to 180°E - AK, OCS
    {318169, -18000, 4788, -17399, 6321}, // USA - 180°W to 174°W - AK, OCS
    {318136, -17400, 4866, -16799, 7305}, // USA - 174°W to 168°W - AK, OCS
    {135787, 10244, 121, 10460, 295}, // Malaysia - West Malaysia - Johor
    {136043, 10170, 203, 10271, 328}, // Malaysia - West Malaysia - Sembilan and Melaka
    {135900, 10133, 245, 10367, 478}, // Malaysia - West Malaysia - Pahang
    {136007, 10076, 254, 10197, 387}, // Malaysia - West Malaysia - Selangor
    {136090, 10238, 389, 10372, 590}, // Malaysia - West Malaysia - Terengganu
    {135967, 10012, 512, 10056, 559}, // Malaysia - West Malaysia - Pulau Pinang
    {135820, 9959, 508, 10112, 672}, // Malaysia - West Malaysia - Kedah and Perlis
    {135934, 10007, 366, 10200, 592}, // Malaysia - West Malaysia - Perak
    {135864, 10133, 454, 10267, 629}, // Malaysia - West Malaysia - Kelantan
    {77388, 3150, 6283, 3159, 6300}, // Finland - east of 31.5°E
    {23667, 4200, 2853, 4800, 3739}, // Asia - Middle East - Iraq and Kuwait 42°E to 48°E
    {111815, 3879, 3114, 4200, 3675}, // Iraq - west of 42°E
    {111728, 4200, 2906, 4800, 3739}, // Iraq - 42°E to 48°E
    {111771, 4800, 2987, 4861, 3100}, // Iraq - east of 48°E onshore
    {369570, -18000, -8000, 18000, 8400}, // World - between 80°S and 84°N
    {94689, 992, 5035, 1050, 5156}, // Germany - Thuringen - west of 10.5°E
    {94651, 1050, 5020, 1256, 5164}, // Germany - Thuringen - east of 10.5°E
    {94561, 1350, 5062, 1504, 5158}, // Germany - Saxony - east of 13.5°E
    {94596, 1189, 5020, 1351, 5166}, // Germany - Saxony - west of 13.5°E
    {75953, 17681, -1922, -17977, -1610}, // Fiji - main islands
    {76009, 17681, -1922, 18000, -1610}, // Fiji - main islands - west of 180°
    {75973, -18000, -1704, -17977, -1610}, // Fiji - main islands - east of 180°
    {75906, 17842, -1707, -17977, -1610}, // Fiji - Vanua Levu and Taveuni
    {280789, 1920, 5432, 1950, 5530}, // Russia - west of 19.5°E
    {227303, -12000, 3088, -11400, 8350}, // North America - 120°W to 114°W and NAD83 by country
    {227185, -11400, 3133, -10800, 8400}, // North America - 114°W to 108°W and NAD83 by country
    {227077, -10800, 2898, -10200, 8400}, // North America - 108°W to 102°W and NAD83 by country
    {226970, -10200, 2583, -9600, 8400}, // North America - 102°W to 96°W and NAD83 by country
    {307851, 1775, 5922, 1820, 5943}, // Sweden - Stockholm
    {43562, -14101, 5205, -13800, 7253}, // Canada - 144°W to 138°W
    {43536, -13800, 4806, -13200, 7942}, // Canada - 138°W to 132°W
    {43510, -13200, 4652, -12600, 8093}, // Canada - 132°W to 126°W
    {43484, -12600, 4813, -12000, 8180}, // Canada - 126°W to 120°W
    {43255, -10200, 4899, -9600, 8400}, // Canada - 102°W to 96°W
    {43894, -9600, 4803, -9000, 8400}, // Canada - 96°W to 90°W
    {43870, -9000, 4611, -8400, 8400}, // Canada - 90°W to 84°W
    {43846, -8400, 4167, -7800, 8400}, // Canada - 84°W to 78°W
    {43822, -7800, 4363, -7200, 8400}, // Canada - 78°W to 72°W
    {126670, -12219, -5987, -2528, 3272}, // Latin America - SIRGAS 2000 by country
    {227975, -7200, 1492, -6600, 8400}, // North America - 72°W to 66°W and NAD83 by country
    {227871, -6600, 1563, -6000, 8400}, // North America - 66°W to 60°W and NAD83 by country
    {126406, -8400, 0, -7800, 1954}, // Latin America - 84°W to 78°West; N hemisphere and SIRGAS by country
    {126336, -7800, 0, -7200, 1504}, // Latin America - 78°W to 72°West; N hemisphere and SIRGAS by country
    {139174, -12219, 1501, -11400, 3272}, // Mexico - west of 114°W
    {139101, -11400, 1509, -10800, 3227}, // Mexico - 114°W to 108°W
    {139075, -10800, 1405, -10200, 3179}, // Mexico - 108°W to 102°W
    {139050, -10200, 1230, -9600, 2981}, // Mexico - 102°W to 96°W
    {126548, -9600, 0, -9000, 2600}, // Latin America - 96°W to 90°W; N hemisphere and SIRGAS 2000 by country
    {126476, -9000, 0, -8399, 2577}, // Latin America - 90°W to 84°W; N hemisphere and SIRGAS 2000 by country
    {222615, 16354, -2273, 16819, -1950}, // New Caledonia - Belep, Grande Terre, Ile des Pins, Loyalty Islands
    {222950, 15625, -2603, 16201, -1534}, // New Caledonia - west of 162°E
    {222560, 16200, -2645, 16800, -1483}, // New Caledonia - 162°E to 168°E
    {222919, 16800, -2595, 17428, -1975}, // New Caledonia - east of 168°E
    {222859, 16775, -2171, 16800, -2132}, // New Caledonia - Mare - west of 168°E
    {222821, 16800, -2171, 16819, -2135}, // New Caledonia - Mare - east of 168°E
    {302089, -7200, 0, -6600, 1564}, // South America - 72°W to 66°W, N hemisphere and SIRGAS 2000 by country
    {301722, -6600, 64, -5999, 1675}, // South America - 66°W to 60°W, N hemisphere and SIRGAS 2000 by country
    {301289, -6000, 118, -5400, 1219}, // South America - 60°W to 54°W, N hemisphere and SIRGAS 2000 by country
    {300856, -5400, 0, -4799, 924}, // South America - 54°W to 48°W, N hemisphere and SIRGAS 2000 by country
    {302834, -7800, -5936, -7199, 0}, // South America - 78°W to 72°W, S hemisphere and SIRGAS 2000 by country
    {302326, -7200, -5987, -6600, 215}, // South America - 72°W to 66°W, S hemisphere and SIRGAS 2000 by country
    {301905, -6600, -5839, -6000, 528}, // South America - 66°W to 60°W, S hemisphere and SIRGAS 2000 by country
    {301472, -6000, -4482, -5400, 451}, // South America - 60°W to 54°W, S hemisphere and SIRGAS 2000 by country
    {301039, -5400, -5418, -4799, 704}, // South America - 54°W to 48°W, S hemisphere and SIRGAS 2000 by country
    {36551, -4800, -3350, -4200, 513}, // Brazil - 48°W to 42°W
    {36368, -4200, -2635, -3600, 74}, // Brazil - 42°W to 36°W
    {36311, -3600, -2380, -2999, 419}, // Brazil - 36°W to 30°W
    {303497, -11321, -5987, -2600, 1675}, // South America - SIRGAS 1995 by country
    {96936, -7500, 7452, -7200, 7904}, // Greenland - west of 72°W
    {96251, -7200, 7324, -6600, 8090}, // Greenland - 72°W to 66°W
    {96224, -6600, 6892, -6000, 8222}, // Greenland - 66°W to 60°W
    {96197, -6000, 5891, -5400, 8400}, // Greenland - 60°W to 54°W
    {96170, -5400, 5690, -4800, 8400}, // Greenland - 54°W to 48°W
    {96143, -4800, 5638, -4200, 8400}, // Greenland - 48°W to 42°W
    {96116, -4200, 5656, -3600, 8400}, // Greenland - 42°W to 36°W
    {96089, -3600, 6016, -3000, 8400}, // Greenland - 36°W to 30°W
    {96062, -3000, 6496, -2400, 8400}, // Greenland - 30°W to 24°W
    {96035, -2400, 6770, -1800, 8400}, // Greenland - 24°W to 18°W
    {96008, -1800, 6867, -1200, 8400}, // Greenland - 18°W to 12°W
    {95982, -1200, 7243, -600, 8400}, // Greenland - 12°W to 6°W
    {358199, -18000, -8600, 18000, 8600}, // World - 86°S to 86°N
    {359493, 1200, 0, 1800, 8400}, // World - N hemisphere - 12°E to 18°E - by country and WGS 72BE
    {361314, 1800, 0, 2400, 8400}, // World - N hemisphere - 18°E to 24°E - by country and WGS 72BE
    {228495, -9317, 4099, -7447, 5074}, // North America - Great Lakes basin
    {228529, -9317, 4099, -5475, 5222}, // North America - Great Lakes basin and St Lawrence Seaway
    {48949, 11013, 1831, 11676, 2289}, // China - offshore - Pearl River basin
    {369647, -18000, -9000, 18000, 0}, // World - south of 0°N
    {369602, -18000, 0, 18000, 9000}, // World - north of 0°N
    {115138, -8060, 1416, -7799, 1936}, // Jamaica - west of 78°W
    {115096, -7800, 1408, -7451, 1920}, // Jamaica - east of 78°W
    {369624, -18000, 4500, 18000, 9000}, // World - north of 45°N
    {44349, -13646, 5998, -10200, 7881}, // Canada - NWT
    {318034, -16030, 1951, -15599, 2229}, // USA - 162°W to 156°W onshore - HI
    {317969, -16200, 1557, -15599, 7471}, // USA - 162°W to 156°W - AK, HI
    {317933, -15600, 1887, -15474, 2086}, // USA - 156°W to 150°W onshore - HI
    {317868, -15600, 1556, -14999, 7471}, // USA - 156°W to 150°W - AK, HI
    {317812, -14400, 5347, -13799, 7359}, // USA - 144°W to 138°W
    {317789, -13800, 5360, -13199, 7304}, // USA - 138°W to 132°W
    {317766, -13200, 3538, -12600, 5684}, // USA - 132°W to 126°W
    {317712, -12600, 3054, -11999, 4909}, // USA - 126°W to 120°W
    {317658, -12000, 3088, -11400, 4901}, // USA - 120°W to 114°W
    {317635, -11400, 3133, -10800, 4901}, // USA - 114°W to 108°W
    {317612, -10800, 2898, -10200, 4901}, // USA - 108°W to 102°W
    {317526, -10200, 2583, -9600, 4901}, // USA - 102°W to 96°W
    {318468, -9601, 2561, -9000, 4938}, // USA - 96°W to 90°W
    {318385, -9000, 2397, -8400, 4832}, // USA - 90°W to 84°W
    {318302, -8400, 2381, -7800, 4613}, // USA - 84°W to 78°W
    {318252, -7800, 2828, -7200, 4503}, // USA - 78°W to 72°W
    {318202, -7200, 3361, -6599, 4747}, // USA - 72°W to 66°W
    {225087, 15500, -6000, -16999, -2500}, // New Zealand - offshore Pacific Ocean, Southern Ocean
    {109016, 9600, -181, 9900, 542}, // Indonesia - 96°E to 99°E onshore
    {109051, 9900, -357, 10200, 371}, // Indonesia - 99°E to 102°E onshore
    {107311, 10200, -599, 10500, 168}, // Indonesia - 102°E to 105°E onshore
    {107536, 10500, -779, 10800, 411}, // Indonesia - 105°E to 108°E onshore
    {107573, 10800, -831, 11100, 425}, // Indonesia - 108°E to 111°E onshore
    {107798, 11100, -867, 11400, 159}, // Indonesia - 111°E to 114°E onshore
    {107835, 11400, -915, 11701, 437}, // Indonesia - 114°E to 117°E onshore
    {108060, 11700, -1015, 12000, 436}, // Indonesia - 117°E to 120°E onshore
    {108097, 12000, -1098, 12300, 140}, // Indonesia - 120°E to 123°E onshore
    {108322, 12300, -1092, 12600, 384}, // Indonesia - 123°E to 126°E onshore
    {108359, 12600, -832, 12900, 459}, // Indonesia - 126°E to 129°E onshore
    {108584, 12900, -841, 13200, 10}, // Indonesia - 129°E to 132°E onshore
    {108621, 13200, -730, 13500, -29}, // Indonesia - 132°E to 135°E onshore
    {108795, 13500, -849, 13800, -58}, // Indonesia - 135°E to 138°E onshore
    {43758, -7200, 4080, -6600, 8400}, // Canada - 72°W to 66°W
    {43694, -6600, 4004, -6000, 8400}, // Canada - 66°W to 60°W
    {43280, -10800, 4899, -10200, 8400}, // Canada - 108°W to 102°W
    {43348, -11400, 4899, -10800, 8400}, // Canada - 114°W to 108°W
    {43416, -12000, 4899, -11400, 8350}, // Canada - 120°W to 114°W
    {304179, -3808, -5495, -3574, -5393}, // South Georgia - onshore
    {314677, 5484, 2485, 5555, 2534}, // UAE - Dubai municipality
    {55417, 1800, 4162, 1943, 4592}, // Croatia - east of 18°E
    {55459, 1300, 4163, 1800, 4654}, // Croatia - west of 18°E
    {44051, -12000, 5288, -11850, 6000}, // Canada - Alberta - west of 118.5°W
    {43975, -11850, 5077, -11550, 6000}, // Canada - Alberta - 118.5°W to 115.5°W
    {43935, -11550, 4899, -11250, 6000}, // Canada - Alberta - 115.5°W to 112.5°W
    {44015, -11250, 4899, -10998, 6000}, // Canada - Alberta - east of 112.5°W
    {358176, -18000, -8506, 18000, 8506}, // World - 85°S to 85°N
    {79476, -106, 4131, 963, 4307}, // France - mainland south of 43°N and Corsica
    {79521, -179, 4233, 765, 4401}, // France - mainland south of 44°N
    {79073, -179, 4292, 771, 4500}, // France - mainland - 43°N to 45°N
    {79108, -146, 4400, 771, 4600}, // France - mainland - 44°N to 46°N
    {79143, -221, 4500, 716, 4700}, // France - mainland - 45°N to 47°N
    {79178, -477, 4600, 763, 4800}, // France - mainland - 46°N to 48°N
    {79213, -487, 4700, 823, 4900}, // France - mainland - 47°N to 49°N
    {79248, -487, 4800, 823, 5000}, // France - mainland - 48°N to 50°N
    {79417, -203, 4900, 808, 5114}, // France - mainland north of 49°N
    {223892, 16555, -5113, 16693, -4780}, // New Zealand - Snares and Auckland Islands
    {223361, 16865, -5283, 16960, -5226}, // New Zealand - Campbell Island
    {223318, 17840, -4992, 17937, -4754}, // New Zealand - Antipodes and Bounty Islands
    {223851, -17907, -3156, -17762, -2903}, // New Zealand - Raoul and Kermadec Islands
    {15044, 14499, -9000, -14499, -5999}, // Antarctica - Ross Sea Region
    {310247, 11999, 2041, 12206, 2672}, // Taiwan - 120°E to 122°E
    {310221, 11800, 1863, 12000, 2465}, // Taiwan - 118°E to 120°E
    {73608, 992, 3963, 3141, 5489}, // Europe - onshore - eastern - S-42(58)
    {94487, 992, 5020, 1200, 5423}, // Germany - East Germany - west of 12°E
    {70381, 1200, 4578, 1801, 5474}, // Europe - 12°E to 18°E onshore and S-42(83) by country
    {70855, 1800, 3964, 2400, 5489}, // Europe - 18°E to 24°E onshore and S-42(58) by country
    {70911, 1800, 4574, 2290, 5006}, // Europe - 18°E to 24°E onshore and S-42(83) by country
    {71387, 2400, 4124, 2974, 5093}, // Europe - 24°E to 30°E onshore and S-42(58) by country
    {70525, 1350, 4654, 1650, 5472}, // Europe - 13.5°E to 16.5°E onshore and S-42(58) by country
    {70645, 1650, 4014, 1950, 5489}, // Europe - 16.5°E to 19.5°E onshore and S-42(58) by country
    {70705, 1650, 4574, 1950, 5045}, // Europe - 16.5°E to 19.5°E onshore and S-42(83) by country
    {71057, 1950, 3964, 2250, 5451}, // Europe - 19.5°E to 22.5°E onshore and S-42(58) by country
    {71117, 1950, 4610, 2250, 4959}, // Europe - 19.5°E to 22.5°E onshore and S-42(83) by country
    {71177, 2250, 4124, 2550, 5441}, // Europe - 22.5°E to 25.5°E onshore and S-42(58) by country
    {71237, 2250, 4776, 2290, 4910}, // Europe - 22.5°E to 25.5°E onshore and S-42(83) by country
    {71467, 2550, 4128, 2850, 4827}, // Europe - 25.5°E to 28.5°E onshore and S-42(58) by country
    {71527, 2850, 4334, 2974, 4544}, // Europe - 28.5°E to 31.5°E onshore and S-42(58) by country
    {310273, 11925, 2313, 11978, 2382}, // Taiwan - onshore - Penghu
    {14876, 14500, -8100, 16900, -7600}, // Antarctica - Darwin Glacier region
    {224905, 16060, -5595, -17120, -2588}, // New Zealand - offshore
    {77466, 1924, 6008, 1950, 6034}, // Finland - west of 19.5°E onshore nominal
    {76355, 1950, 5992, 2050, 6048}, // Finland - 19.5°E to 20.5°E onshore nominal
    {76474, 2050, 5984, 2150, 6933}, // Finland - 20.5°E to 21.5°E onshore nominal
    {76556, 2150, 5976, 2250, 6931}, // Finland - 21.5°E to 22.5°E onshore nominal
    {76638, 2250, 5975, 2350, 6874}, // Finland - 22.5°E to 23.5°E onshore nominal
    {76757, 2350, 5986, 2450, 6884}, // Finland - 23.5°E to 24.5°E onshore nominal
    {76839, 2450, 5994, 2550, 6890}, // Finland - 24.5°E to 25.5°E onshore nominal
    {76921, 2550, 6018, 2650, 6994}, // Finland - 25.5°E to 26.5°E onshore nominal
    {77040, 2650, 6036, 2750, 7005}, // Finland - 26.5°E to 27.5°E onshore nominal
    {77122, 2750, 6042, 2850, 7009}, // Finland - 27.5°E to 28.5°E onshore nominal
    {77196, 2850, 6094, 2950, 6981}, // Finland - 28.5°E to 29.5°E nominal
    {77291, 2950, 6143, 3050, 6798}, // Finland - 29.5°E to 30.5°E nominal
    {77354, 3050, 6208, 3159, 6427}, // Finland - east of 30.5°E nominal
    {307870, 1725, 5869, 1961, 6027}, // Sweden - Stockholm county
    {53286, 2174, -1172, 2551, -632}, // Congo DR (Zaire) - Katanga west of 25.5°E
    {53151, 2450, -1208, 2750, -499}, // Congo DR (Zaire) - Katanga 24.5°E to 27.5°E
    {53197, 2650, -1344, 2950, -499}, // Congo DR (Zaire) - Katanga 26.5°E to 29.5°E
    {53243, 2850, -1346, 3078, -499}, // Congo DR (Zaire) - Katanga east of 28.5°E
    {53329, 1179, -1346, 2981, -341}, // Congo DR (Zaire) - south
    {142299, 2663, 4544, 3000, 4847}, // Moldova - west of 30°E
    {142275, 3000, 4637, 3013, 4647}, // Moldova - east of 30°E
    {53398, 1500, -731, 1700, -341}, // Congo DR (Zaire) - south and 15°E to 17°E
    {53442, 1700, -811, 1900, -343}, // Congo DR (Zaire) - south and 17°E and 19°E
    {37028, -4810, -1594, -4710, -1537}, // Brazil - Distrito Federal
    {53531, 1900, -800, 2100, -377}, // Congo DR (Zaire) - south and 19°E to 21°E
    {53575, 2100, -1124, 2301, -418}, // Congo DR (Zaire) - south and 21°E to 23°E
    {53619, 2300, -1147, 2500, -458}, // Congo DR (Zaire) - south and 23°E to 25°E
    {53707, 2500, -1199, 2700, -499}, // Congo DR (Zaire) - south and 25°E to 27°E
    {53751, 2700, -1339, 2900, -643}, // Congo DR (Zaire) - south and 27°E to 29°E
    {111800, 3879, 2906, 4861, 3739}, // Iraq - onshore
    {53354, 1200, -811, 1801, -341}, // Congo DR (Zaire) - south and 12°E to 18°E
    {53487, 1800, -1124, 2400, -357}, // Congo DR (Zaire) - south and 18°E to 24°E
    {53663, 2400, -1346, 2981, -479}, // Congo DR (Zaire) - south and 24°E to 30°E
    {305438, -2193, 2460, -1800, 3119}, // Spain - Canary Islands - west of 18°W
    {305399, -1800, 2525, -1175, 3276}, // Spain - Canary Islands - east of 18°W
    {59919, 800, 5480, 1000, 5764}, // Denmark - onshore Jutland west of 10°E
    {59870, 900, 5467, 1129, 5780}, // Denmark - onshore Jutland east of 9°E and Funen
    {139127, -9600, 1210, -9000, 2600}, // Mexico - 96°W to 90°W
    {46466, -6797, 1762, -6451, 1857}, // Caribbean - Puerto Rico and US Virgin Islands - onshore
    {139151, -9000, 1781, -8464, 2577}, // Mexico - east of 90°W
    {230947, 468, 5832, 600, 6249}, // Norway - onshore - west of 6°E
    {317548, -10200, 2583, -9587, 4901}, // USA - 102°W to 96°W and GoM OCS
    {303286, -8400, -5645, -7521, 145}, // South America - 84°W to 78°W, S hemisphere and SIRGAS95 by country
    {230785, 600, 5793, 700, 6302}, // Norway - onshore - 6°E to 7°E
    {318489, -9601, 2561, -8986, 4938}, // USA - 96°W to 90°W and GoM OCS
    {318406, -9001, 2395, -8391, 4832}, // USA - 90°W to 84°W and GoM OCS
    {318323, -8409, 2381, -7799, 4613}, // USA - 84°W to 78°W and GoM OCS
    {296624, 641, -4, 682, 46}, // Sao Tome and Principe - onshore - Sao Tome
    {296581, 727, 148, 752, 176}, // Sao Tome and Principe - onshore - Principe
    {230817, 700, 5793, 800, 6352}, // Norway - onshore - 7°E to 8°E
    {230849, 800, 5803, 900, 6387}, // Norway - onshore - 8°E to 9°E
    {230881, 900, 5852, 1000, 6416}, // Norway - onshore - 9°E to 10°E
    {230105, 1000, 5890, 1100, 6504}, // Norway - onshore - 10°E to 11°E
    {230139, 1100, 5888, 1200, 6576}, // Norway - onshore - 11°E to 12°E
    {323680, -9042, 4509, -8344, 4832}, // USA - Michigan - SPCS - W
    {230173, 1200, 5988, 1300, 6815}, // Norway - onshore - 12°E to 13°E
    {230207, 1300, 6401, 1400, 6837}, // Norway - onshore - 13°E to 14°E
    {230241, 1400, 6403, 1500, 6905}, // Norway - onshore - 14°E to 15°E
    {230275, 1500, 6614, 1600, 6935}, // Norway - onshore - 15°E to 16°E
    {230309, 1600, 6688, 1700, 6945}, // Norway - onshore - 16°E to 17°E
    {230343, 1700, 6794, 1800, 6968}, // Norway - onshore - 17°E to 18°E
    {230377, 1800, 6804, 1900, 7027}, // Norway - onshore - 18°E to 19°E
    {230411, 1900, 6833, 2000, 7034}, // Norway - onshore - 19°E to 20°E
    {230445, 2000, 6837, 2100, 7029}, // Norway - onshore - 20°E to 21°E
    {230479, 2100, 6903, 2200, 7071}, // Norway - onshore - 21°E to 22°E
    {230513, 2200, 6869, 2300, 7081}, // Norway - onshore - 22°E to 23°E
    {109391, 9516, -891, 11701, 597}, // Indonesia - Java, Java Sea and western Sumatra
    {230547, 2300, 6862, 2400, 7108}, // Norway - onshore - 23°E to 24°E
    {230581, 2400, 6858, 2500, 7116}, // Norway - onshore - 24°E to 25°E
    {230615, 2500, 6859, 2600, 7121}, // Norway - onshore - 25°E to 26°E
    {247766, -3558, 2924, -1248, 4307}, // Portugal - Azores and Madeira
    {230649, 2600, 6971, 2700, 7117}, // Norway - onshore - 26°E to 27°E
    {230683, 2700, 6990, 2800, 7117}, // Norway - onshore - 27°E to 28°E
    {230717, 2800, 6903, 2900, 7113}, // Norway - onshore - 28°E to 29°E
    {230751, 2900, 6902, 3000, 7093}, // Norway - onshore - 29°E to 30°E
    {230914, 3000, 6946, 3122, 7077}, // Norway - onshore - east of 30°E
    {247643, -3000, 3352, -2400, 4296}, // Portugal - Azores 30°W to 24°W
    {247796, -1800, 2924, -1248, 3646}, // Portugal - Madeira and EEZ E of 18°W
    {247609, -3558, 3525, -3000, 4307}, // Portugal - Azores - west of 30°W
    {51255, -7910, -423, -6687, 1368}, // Colombia - mainland and offshore Caribbean
    {25561, 12599, -3705, 13201, -937}, // Australia - SA and WA 126°E to 132°E
    {25489, 13200, -3614, 13800, -2599}, // Australia - SA 132°E to 138°E
    {25521, 13800, -3813, 14401, -986}, // Australia - SA and Qld 138°E to 144°E
    {25379, 14400, -2901, 15000, -1401}, // Australia - Qld 144°E to 150°E
    {25412, 15000, -2919, 15361, -2200}, // Australia - Qld east of 150°E
    {79622, -487, 4131, 963, 5114}, // France - onshore - mainland and Corsica
    {23487, 12427, 3399, 12600, 4090}, // Asia - Korea N and S - west of 126°E
    {23369, 12600, 3314, 12800, 4180}, // Asia - Korea N and S - 126°E to 128°E
    {123031, 13071, 3739, 13101, 3762}, // Korea, Republic of (South Korea) - 130°E to 132°E onshore
    {122853, 12609, 3314, 12701, 3361}, // Korea, Republic of (South Korea) - 126°E to 128°E Jeju
    {23409, 12800, 3449, 13000, 4301}, // Asia - Korea N and S - 128°E to 130°E
    {23449, 13000, 3739, 13101, 4298}, // Asia - Korea N and S - east of 130°E
    {122910, 12600, 3396, 12800, 3833}, // Korea, Republic of (South Korea) - 126°E to 128°E mainland
    {36055, -6000, -2017, -5752, -1627}, // Bolivia - east of 60°W
    {34640, 9046, 2733, 9102, 2809}, // Bhutan - Bumthang district
    {312039, 10200, 602, 10564, 1844}, // Thailand - onshore east of 102°E
    {34667, 8926, 2671, 8983, 2732}, // Bhutan - Chhukha district
    {34693, 8963, 2670, 9008, 2729}, // Bhutan - Dagana district
    {34718, 8944, 2772, 9047, 2833}, // Bhutan - Gasa district
    {311999, 9734, 563, 10564, 2046}, // Thailand - onshore and Gulf of Thailand
    {34741, 8890, 2702, 8939, 2762}, // Bhutan - Ha district
    {34762, 9077, 2739, 9149, 2809}, // Bhutan - Lhuentse district
    {34789, 9095, 2693, 9150, 2761}, // Bhutan - Mongar district
    {34814, 8912, 2718, 8956, 2779}, // Bhutan - Paro district
    {34837, 9100, 2678, 9156, 2718}, // Bhutan - Pemagatshel district
    {126303, -12000, 1501, -11400, 3272}, // Latin America - 120°W to 114°W
    {34867, 8963, 2746, 9008, 2787}, // Bhutan - Punakha district
    {34893, 9139, 2679, 9213, 2725}, // Bhutan - Samdrup Jongkhar district
    {34928, 8874, 2680, 8938, 2728}, // Bhutan - Samtse district
    {34953, 9001, 2673, 9078, 2723}, // Bhutan - Sarpang district
    {34979, 8922, 2714, 8977, 2801}, // Bhutan - Thimphu district
    {35005, 9137, 2701, 9213, 2749}, // Bhutan - Trashigang district
    {35034, 9026, 2713, 9076, 2779}, // Bhutan - Trongsa district
    {126270, -11400, 1509, -10800, 3227}, // Latin America - 114°W to 108°W
    {35060, 9000, 2681, 9035, 2720}, // Bhutan - Tsirang district
    {35086, 8971, 2711, 9054, 2808}, // Bhutan - Wangdue Phodrang district
    {126237, -10800, 1405, -10200, 3179}, // Latin America - 108°W to 102°W
    {35121, 9134, 2737, 9177, 2800}, // Bhutan - Yangtse district
    {35147, 9053, 2677, 9119, 2739}, // Bhutan - Zhemgang district
    {126205, -10201, 1230, -9600, 2981}, // Latin America - 102°W to 96°W
    {80112, -5445, 484, -5400, 569}, // French Guiana - coastal area west of 54°W
    {80069, -5400, 343, -5161, 581}, // French Guiana - coastal area east of 54°W
    {317026, -1056, 5139, -593, 5543}, // Ireland - onshore
    {223500, 17580, -4057, 17807, -3887}, // New Zealand - North Island - Hawkes Bay mc Napier vcrs
    {223808, 17452, -4150, 17536, -4091}, // New Zealand - North Island - Wellington mc
    {223725, 17501, -4167, 17655, -4029}, // New Zealand - North Island - Wairarapa mc
    {223767, 17440, -4097, 17627, -3946}, // New Zealand - North Island - Wanganui mc
    {223642, 17368, -3978, 17544, -3840}, // New Zealand - North Island - Taranaki mc
    {223683, 17488, -3955, 17633, -3887}, // New Zealand - North Island - Tuhirangi mc
    {223454, 17575, -3913, 17723, -3722}, // New Zealand - North Island - Bay of Plenty mc
    {223598, 17673, -3904, 17863, -3749}, // New Zealand - North Island - Poverty Bay mc
    {223555, 17199, -3901, 17612, -3410}, // New Zealand - North Island - Mount Eden mc
    {224011, 17216, -4122, 17313, -4044}, // New Zealand - South Island - Collingwood mc
    {224217, 17196, -4149, 17270, -4075}, // New Zealand - South Island - Karamea mc
    {224482, 17240, -4218, 17408, -4066}, // New Zealand - South Island - Nelson mc
    {224301, 17295, -4265, 17446, -4085}, // New Zealand - South Island - Marlborough mc
    {223972, 17127, -4219, 17241, -4142}, // New Zealand - South Island - Buller mc
    {224094, 17115, -4274, 17275, -4150}, // New Zealand - South Island - Grey mc
    {223934, 17188, -4295, 17355, -4209}, // New Zealand - South Island - Amuri mc
    {224131, 17039, -4323, 17189, -4241}, // New Zealand - South Island - Hokitika mc
    {224392, 17111, -4396, 17338, -4269}, // New Zealand - South Island - Mount Pleasant mc
    {224616, 16921, -4385, 17089, -4300}, // New Zealand - South Island - Okarito mc
    {224055, 17068, -4425, 17226, -4313}, // New Zealand - South Island - Gawler mc
    {224656, 16982, -4498, 17155, -4335}, // New Zealand - South Island - Timaru mc
    {224172, 16802, -4440, 17001, -4367}, // New Zealand - South Island - Jacksons Bay mc
    {224257, 16862, -4540, 17024, -4371}, // New Zealand - South Island - Lindis Peak mc
    {224566, 16977, -4582, 17124, -4461}, // New Zealand - South Island - Observation Point mc
    {224345, 16772, -4558, 16911, -4429}, // New Zealand - South Island - Mount Nicholas mc
    {224521, 16864, -4673, 17087, -4523}, // New Zealand - South Island - North Taieri mc
    {224439, 16637, -4633, 16821, -4453}, // New Zealand - South Island - Mount York mc
    {224735, 16729, -4733, 16897, -4533}, // New Zealand - South and Stewart Islands - Bluff mc
    {36335, -3600, -2011, -3000, 0}, // Brazil - 36°W to 30°W offshore
    {47789, -7200, -5987, -6600, -1750}, // Chile - 72°W to 66°W
    {226331, 600, 261, 782, 368}, // Nigeria - offshore deep water - east of 6°E
    {46378, -6366, 1408, -6000, 1831}, // Caribbean - French Antilles west of 60°W
    {333196, -5849, -3663, -5400, -3009}, // Uruguay - west of 54°W
    {36079, -6966, -2291, -6600, -977}, // Bolivia - west of 66°W
    {333154, -5400, -3777, -5001, -3190}, // Uruguay - east of 54°W
    {47812, -7800, -5936, -7199, -1835}, // Chile - 78°W to 72°W
    {302973, -8018, 0, -7800, 270}, // South America - 84°W to 78°W, N hemisphere and SAD69 by country
    {303220, -8141, -1053, -7800, 0}, // South America - 84°W to 78°W, S hemisphere and SAD69 by country
    {302563, -7800, 0, -7200, 1231}, // South America - 78°W to 72°W, N hemisphere and SAD69 by country
    {302696, -7800, -4500, -7199, 0}, // South America - 78°W to 72°W, S hemisphere and SAD69 by country
    {302161, -7200, 0, -6600, 1252}, // South America - 72°W to 66°W, N hemisphere onshore
    {302398, -7200, -4500, -6599, 215}, // South America - 72°W to 66°W, S hemisphere onshore
    {245259, -7200, -2044, -6867, -214}, // Peru - east of 72°W
    {245237, -8400, -1733, -7800, -311}, // Peru - 84°W to 78°W
    {245193, -7800, -2105, -7200, -3}, // Peru - 78°W to 72°W
    {301656, -6600, 64, -5999, 1123}, // South America - 66°W to 60°W, N hemisphere and SAD69 by country
    {301839, -6600, -4500, -5999, 528}, // South America - 66°W to 60°W, S hemisphere and SAD69 by country
    {301223, -6000, 118, -5400, 860}, // South America - 60°W to 54°W, N hemisphere and SAD69 by country
    {37054, -3000, -2386, -2528, 426}, // Brazil - east of 30°W
    {20845, -7359, -5493, -5365, -2178}, // Argentina - mainland onshore and offshore TdF
    {226120, -8774, 1280, -8308, 1503}, // Nicaragua - onshore north of 12°48'N
    {96630, -5072, 5974, -4252, 6300}, // Greenland - southwest coast south of 63°N
    {226158, -8763, 1070, -8342, 1280}, // Nicaragua - onshore south of 12°48'N
    {54859, -8650, 221, -8143, 1177}, // Costa Rica - onshore and offshore east of 86°30'W
    {317681, -12000, 3226, -11400, 4901}, // USA - 120°W to 114°W onshore
    {14941, 15300, -8100, 17300, -7600}, // Antarctica - McMurdo Sound region
    {14806, 15700, -7600, 17300, -7300}, // Antarctica - Borchgrevink Coast region
    {14975, 16000, -7300, 17200, -6950}, // Antarctica - Pennell Coast region
    {15009, 15000, -9000, -15000, -7600}, // Antarctica - Ross Ice Shelf Region
    {317735, -12479, 3385, -11999, 4905}, // USA - 126°W to 120°W onshore
    {334888, -6600, 64, -5895, 1675}, // Venezuela - east of 66°W
    {334726, -7200, 73, -6600, 1564}, // Venezuela - 72°W and 66°W
    {317582, -10200, 2583, -9599, 4901}, // USA - 102°W to 96°W onshore
    {318522, -9600, 2842, -8999, 4938}, // USA - 96°W to 90°W onshore
    {318439, -9000, 2885, -8399, 4832}, // USA - 90°W to 84°W onshore
    {318356, -8401, 2441, -7800, 4613}, // USA - 84°W to 78°W onshore
    {227421, -12600, 3054, -11999, 8180}, // North America - 126°W to 120°W and NAD83 by country
    {44164, -6600, 5158, -6300, 6052}, // Canada - Labrador - 66°W to 63°W
    {227539, -13200, 3538, -12600, 8093}, // North America - 132°W to 126°W and NAD83 by country
    {227657, -13800, 4806, -13200, 7942}, // North America - 138°W to 132°W and NAD83 by country
    {318273, -7800, 3384, -7200, 4503}, // USA - 78°W to 72°W onshore
    {54910, -8597, 953, -8253, 1122}, // Costa Rica - onshore north of 9°32'N
    {54948, -8574, 798, -8253, 994}, // Costa Rica - onshore south of 9°56'N
    {318223, -7200, 4096, -6691, 4747}, // USA - 72°W to 66°W onshore
    {227765, -14400, 5205, -13799, 7359}, // North America - 144°W to 138°W and NAD83 by country
    {305477, -1822, 2758, -1337, 2947}, // Spain - Canary Islands onshore
    {36965, -5816, -2750, -3882, -1499}, // Brazil - Corrego Alegre 1961
    {44129, -6300, 5200, -6000, 5892}, // Canada - Labrador - 63°W to 60°W
    {47165, -9229, 798, -8253, 1783}, // Central America - Guatemala to Costa Rica
    {36468, -4200, -2296, -3882, -1499}, // Brazil - 42°W to 36°W and south of 15°S onshore
    {36774, -5401, -3571, -4799, 704}, // Brazil - 54°W to 48°W and SAD69
    {44199, -6781, 5205, -6600, 5534}, // Canada - Labrador - west of 66°W
    {36851, -6000, -3191, -5399, 451}, // Brazil - 60°W to 54°W
    {244084, 13920, -1115, 14400, 231}, // Papua New Guinea - west of 144°E
    {243942, 14400, -1388, 15001, 258}, // Papua New Guinea - 144°E to 150°E
    {243978, 15000, -1475, 15600, 198}, // Papua New Guinea - 150°E to 156°E
    {73099, 1066, 5433, 1201, 5483}, // Europe - Fehmarnbelt outer
    {43660, -6000, 4057, -5400, 6893}, // Canada - 60°W to 54°W and NAD27
    {94953, 334, 5524, 450, 5592}, // Germany - offshore North Sea west of 4.5°E
    {330530, 2215, 4795, 2400, 5166}, // Ukraine - west of 24°E
    {37108, -5164, -574, -3243, 704}, // Brazil - equatorial margin
    {79590, 304, 4115, 1038, 4374}, // France - offshore Mediterranean
    {329420, 2400, 4510, 3000, 5196}, // Ukraine - 24°E to 30°E
    {73289, -167, 5050, 2200, 5600}, // Europe - South Permian basin
    {73646, 992, 4124, 2868, 5474}, // Europe - onshore - eastern - S-42(83)
    {276929, 5183, -2472, 5824, -1828}, // Reunion
    {329561, 3000, 4318, 3600, 5238}, // Ukraine - 30°E to 36°E
    {330430, 3600, 4343, 4018, 5044}, // Ukraine - east of 36°E
    {330504, 2215, 4824, 2250, 4898}, // Ukraine - west of 22.5°E
    {329391, 2250, 4771, 2550, 5196}, // Ukraine - 22.5°E to 25.5°E
    {329445, 2550, 4526, 2850, 5194}, // Ukraine - 25.5°E to 28.5°E
    {329499, 2850, 4342, 3150, 5212}, // Ukraine - 28.5°E to 31.5°E
    {329586, 3150, 4318, 3450, 5238}, // Ukraine - 31.5°E to 34.5°E
    {276832, 5400, -2472, 5824, -1828}, // Reunion - east of 54°E
    {329648, 3450, 4324, 3750, 5125}, // Ukraine - 34.5°E to 37.5°E
    {330454, 3750, 4677, 4018, 5039}, // Ukraine - east of 37.5°E
    {276874, 5183, -2437, 5400, -1852}, // Reunion - west of 54°E
    {144319, 3021, -2758, 3600, -1141}, // Mozambique - west of 36°E
    {144125, 3600, -2771, 4200, -1009}, // Mozambique - 36°E to 42°E
    {81098, 3798, -2570, 4182, -2091}, // French Southern Territories - Europa
    {52395, 1179, -604, 1300, -467}, // Congo DR (Zaire) - 11°E to 13°E
    {138140, -1800, 1472, -1200, 2346}, // Mauritania - 18°W to 12°W
    {127344, 2400, 1999, 2621, 3360}, // Libya - east of 24°E
    {29667, 5039, 2553, 5085, 2634}, // Bahrain - onshore
    {47923, 10200, 1775, 10800, 4247}, // China - 102°E to 108°E
    {48047, 10800, 1670, 11400, 4511}, // China - 108°E to 114°E
    {48179, 11400, 1902, 12000, 5152}, // China - 114°E to 120°E
    {48311, 12000, 2464, 12600, 5356}, // China - 120°E to 126°E
    {48443, 12600, 2970, 13200, 5279}, // China - 126°E to 132°E
    {127418, 931, 2351, 1200, 3392}, // Libya - west of 12°E
    {127081, 1200, 2251, 1800, 3523}, // Libya - 12°E to 18°E
    {127228, 1799, 1950, 2401, 3503}, // Libya - 18°E to 24°E
    {8495, -600, 2182, 0, 3701}, // Algeria - 6°W to 0°W
    {8413, 0, 1897, 601, 3877}, // Algeria - 0°E to 6°E
    {8518, 600, 1960, 1199, 3880}, // Algeria - east of 6°E
    {135762, 9802, 113, 10582, 781}, // Malaysia - West Malaysia
    {111750, 4800, 2960, 4875, 3100}, // Iraq - east of 48°E
    {245720, 11689, 775, 11800, 932}, // Philippines - zone I onshore
    {115391, 12238, 2110, 12600, 2971}, // Japan - 120°E to 126°E
    {115449, 12600, 2112, 13200, 3863}, // Japan - 126°E to 132°E
    {115507, 13200, 1709, 13800, 4355}, // Japan - 132°E to 138°E
    {115565, 13800, 1763, 14400, 4605}, // Japan - 138°E to 144°E
    {115623, 14400, 2303, 14786, 4565}, // Japan - 144°E to 150°E
    {245771, 11800, 882, 12007, 1158}, // Philippines - zone II onshore
    {245824, 11970, 499, 12221, 1945}, // Philippines - zone III onshore
    {245877, 12174, 635, 12429, 1858}, // Philippines - zone IV onshore
    {245928, 12373, 550, 12665, 1415}, // Philippines - zone V onshore
    {245677, 11689, 499, 12665, 1945}, // Philippines - onshore
    {224866, 16587, -4765, 16800, -4259}, // New Zealand - nearshore west of 168°E
    {224786, 16800, -4764, 17400, -3389}, // New Zealand - nearshore 168°E to 174°E
    {224827, 17400, -4413, 17927, -3424}, // New Zealand - nearshore east of 174°E
    {225140, 16637, -4733, 17863, -3410}, // New Zealand - onshore
    {109640, 13800, -919, 14101, -149}, // Indonesia - east of 138°E onshore
    {109736, 9516, 255, 9600, 597}, // Indonesia - west of 96°E onshore
    {135694, 10931, 85, 11961, 767}, // Malaysia - East Malaysia
    {108874, 9600, 0, 10200, 542}, // Indonesia - 96°E to 102°E, N hemisphere onshore
    {107391, 10200, 0, 10800, 411}, // Indonesia - 102°E to 108°E, N hemisphere onshore
    {107653, 10800, 0, 11400, 425}, // Indonesia - 108°E to 114°E, N hemisphere onshore
    {107915, 11400, 0, 12000, 437}, // Indonesia - 114°E to 120°E, N hemisphere onshore
    {310299, 11999, 2187, 12206, 2534}, // Taiwan - onshore - mainland
    {108177, 12000, 0, 12571, 384}, // Indonesia - 120°E to 126°E, N hemisphere onshore
    {108439, 12655, 0, 13100, 459}, // Indonesia - 126°E to 132°E, N hemisphere onshore
    {108966, 9824, -357, 10200, 0}, // Indonesia - 96°E to 102°E, S hemisphere onshore
    {107485, 10200, -779, 10800, 0}, // Indonesia - 102°E to 108°E, S hemisphere onshore
    {107747, 10800, -867, 11400, 0}, // Indonesia - 108°E to 114°E, S hemisphere onshore
    {108009, 11400, -1015, 12000, 0}, // Indonesia - 114°E to 120°E, S hemisphere onshore
    {108271, 12000, -1098, 12600, 0}, // Indonesia - 120°E to 126°E, S hemisphere onshore
    {108533, 12600, -841, 13200, 0}, // Indonesia - 126°E to 132°E, S hemisphere onshore
    {108744, 13200, -849, 13800, -29}, // Indonesia - 132°E to 138°E, S hemisphere onshore
    {225047, -18000, -5297, -17400, -2588}, // New Zealand - offshore 180°W to 174°W
    {95052, 750, 4727, 1051, 5509}, // Germany - onshore 7.5°E to 10.5°E
    {95015, 1050, 4739, 1351, 5474}, // Germany - onshore 10.5°E to 13.5°E
    {95088, 1350, 4851, 1504, 5472}, // Germany - onshore east of 13.5°E
    {373693, 5400, 895, 5796, 1495}, // Yemen - east of 54°E
    {109528, 10879, 6, 10978, 213}, // Indonesia - Kalimantan W - coastal
    {373715, 4108, 1473, 4200, 1636}, // Yemen - west of 42°E
    {22172, 10214, 799, 11000, 2340}, // Asia - Cambodia and Vietnam - onshore & Cuu Long basin
    {236222, 5400, 1689, 5991, 2642}, // Oman - mainland east of 54°E
    {236206, 5199, 1659, 5991, 2642}, // Oman - mainland
    {53051, 1499, -587, 1628, -442}, // Congo DR (Zaire) - Bas Congo east of 15°E
    {53795, 2900, -1346, 2981, -1215}, // Congo DR (Zaire) - south and 29°E to 31°E
    {19818, -15600, 7500, -6600, 8701}, // Arctic - 87°N to 75°N, 156°W to 66°W
    {109716, 9516, -1098, 14101, 597}, // Indonesia - onshore
    {314627, 5399, 2263, 5603, 2534}, // UAE - Abu Dhabi and Dubai - onshore east of 54°E
    {37231, -7401, -1001, -7199, -459}, // Brazil - west of 72°W
    {36899, -7200, -1114, -6599, 215}, // Brazil - 72°W to 66°W
    {9412, 1041, -801, 1284, -505}, // Angola - offshore north of 8°S
    {36875, -6600, -1628, -5999, 528}, // Brazil - 66°W to 60°W
    {19900, -8400, 7500, 601, 8701}, // Arctic - 87°N to 75°N, 84°W to 6°E
    {19736, -1200, 7500, 7801, 8701}, // Arctic - 87°N to 75°N, 12°W to 78°E
    {19859, 6000, 7500, 15001, 8701}, // Arctic - 87°N to 75°N, 60°E to 150°E
    {19038, -13500, 7950, -9500, 8451}, // Arctic - 84°30'N to 79°30'N, 135°W to 95°W
    {19776, 13200, 7500, -13800, 8701}, // Arctic - 87°N to 75°N, 132°E to 138°W
    {18248, -15600, 6700, -6600, 7901}, // Arctic - 79°N to 67°N, 156°W to 66°W
    {18330, -8400, 6700, 601, 7901}, // Arctic - 79°N to 67°N, 84°W to 6°E
    {18166, -1200, 6700, 7801, 7901}, // Arctic - 79°N to 67°N, 12°W to 78°E
    {112547, 919, 4373, 1276, 4514}, // Italy - Emilia-Romagna
    {19410, -9500, 7950, -5500, 8451}, // Arctic - 84°30'N to 79°30'N, 95°W to 55°W
    {18289, 6000, 6700, 15001, 7901}, // Arctic - 79°N to 67°N, 60°E to 150°E
    {18206, 13200, 6700, -13800, 7901}, // Arctic - 79°N to 67°N, 132°E to 138°W
    {19317, -7200, 7950, -3200, 8451}, // Arctic - 84°30'N to 79°30'N, 72°W to 32°W
    {16455, -15600, 5900, -6600, 7100}, // Arctic - 71°N to 59°N, 156°W to 66°W
    {16537, -8400, 5900, 600, 7100}, // Arctic - 71°N to 59°N, 84°W to 6°E
    {16373, -1200, 5900, 7801, 7100}, // Arctic - 71°N to 59°N, 12°W to 78°E
    {16496, 6000, 5900, 15001, 7100}, // Arctic - 71°N to 59°N, 60°E to 150°E
    {19596, -18000, 8283, -12000, 8784}, // Arctic - 87°50'N to 82°50'N, 180°W to 120°W
    {16413, 13200, 5900, -13800, 7100}, // Arctic - 71°N to 59°N, 132°E to 138°W
    {19181, -3200, 7950, 801, 8451}, // Arctic - 84°30'N to 79°30'N, 32°W to 8°E
    {19549, -12000, 8283, -6000, 8784}, // Arctic - 87°50'N to 82°50'N, 120°W to 60°W
    {19691, -6000, 8283, 0, 8784}, // Arctic - 87°50'N to 82°50'N, 60°W to 0°E
    {19456, 0, 8283, 6001, 8784}, // Arctic - 87°50'N to 82°50'N, 0°E to 60°E
    {19644, 6000, 8283, 12001, 8784}, // Arctic - 87°50'N to 82°50'N, 60°E to 120°E
    {19501, 12000, 8283, 18000, 8783}, // Arctic - 87°50'N to 82°50'N, 120°E to 180°E
    {19133, -17400, 7950, -13499, 8451}, // Arctic - 84°30'N to 79°30'N, 174°W to 135°W
    {19272, -400, 7950, 3601, 8451}, // Arctic - 84°30'N to 79°30'N, 4°W to 36°E
    {19226, 3300, 7950, 7301, 8451}, // Arctic - 84°30'N to 79°30'N, 33°E to 73°E
    {19363, 7300, 7950, 11301, 8451}, // Arctic - 84°30'N to 79°30'N, 73°E to 113°E
    {18990, 11300, 7950, 15301, 8451}, // Arctic - 84°30'N to 79°30'N, 113°E to 153°E
    {19085, 14600, 7950, -17399, 8451}, // Arctic - 84°30'N to 79°30'N, 146°E to 174°W
    {18699, -335, 7616, 3801, 8117}, // Arctic - 81°10'N to 76°10'N, 4°W to 38°E
    {18653, 3499, 7616, 6701, 8117}, // Arctic - 81°10'N to 76°10'N, 35°E to 67°E
    {18790, 6700, 7616, 9801, 8117}, // Arctic - 81°10'N to 76°10'N, 67°E to 98°E
    {18836, 9800, 7616, 12901, 8117}, // Arctic - 81°10'N to 76°10'N, 98°E to 129°E
    {18416, 12900, 7616, 16001, 8117}, // Arctic - 81°10'N to 76°10'N, 129°E to 160°E
    {18512, 16000, 7616, -16899, 8117}, // Arctic - 81°10'N to 76°10'N, 160°E to 169°W
    {18560, -16900, 7616, -13800, 8117}, // Arctic - 81°10'N to 76°10'N, 169°W to 138°W
    {18464, -14400, 7616, -11400, 8117}, // Arctic - 81°10'N to 76°10'N, 144°W to 114°W
    {18369, -11400, 7616, -8400, 8117}, // Arctic - 81°10'N to 76°10'N, 114°W to 84°W
    {18883, -8400, 7616, -6478, 8117}, // Arctic - 81°10'N to 76°10'N, Canada east of 84°W
    {18935, -7500, 7616, -5400, 8117}, // Arctic - 81°10'N to 76°10'N, Greenland west of 54°W
    {18744, -5400, 7616, -2400, 8117}, // Arctic - 81°10'N to 76°10'N, 54°W to 24°W
    {18608, -2400, 7616, 189, 8117}, // Arctic - 81°10'N to 76°10'N, 24°W to 3°E
    {17705, -16900, 7283, -14100, 7784}, // Arctic - 77°50'N to 72°50'N, 169°W to 141°W
    {17561, -14100, 7283, -11600, 7784}, // Arctic - 77°50'N to 72°50'N, 141°W to 116°W
    {17466, -11600, 7283, -9100, 7784}, // Arctic - 77°50'N to 72°50'N, 116°W to 91°W
    {18073, -9100, 7283, -6700, 7784}, // Arctic - 77°50'N to 72°50'N, 91°W to 67°W
    {18027, -7600, 7283, -5100, 7784}, // Arctic - 77°50'N to 72°50'N, 76°W to 51°W
    {17935, -5100, 7283, -2600, 7784}, // Arctic - 77°50'N to 72°50'N, 51°W to 26°W
    {17799, -2600, 7283, -200, 7784}, // Arctic - 77°50'N to 72°50'N, 26°W to 2°W
    {17844, -200, 7283, 2201, 7784}, // Arctic - 77°50'N to 72°50'N, 2°W to 22°E
    {17753, 2200, 7283, 4601, 7784}, // Arctic - 77°50'N to 72°50'N, 22°E to 46°E
    {17889, 4600, 7283, 7001, 7784}, // Arctic - 77°50'N to 72°50'N, 46°E to 70°E
    {17981, 7000, 7283, 9401, 7784}, // Arctic - 77°50'N to 72°50'N, 70°E to 94°E
    {18119, 9400, 7283, 11801, 7784}, // Arctic - 77°50'N to 72°50'N, 94°E to 118°E
    {17513, 11800, 7283, 14201, 7784}, // Arctic - 77°50'N to 72°50'N, 118°E to 142°E
    {17609, 14200, 7283, 16601, 7784}, // Arctic - 77°50'N to 72°50'N, 142°E to 166°E
    {17657, 16600, 7283, -16899, 7784}, // Arctic - 77°50'N to 72°50'N, 166°E to 169°W
    {17190, 400, 6950, 2401, 7451}, // Arctic - 74°30'N to 69°30'N, 4°E to 24°E
    {17052, 2400, 6950, 4401, 7451}, // Arctic - 74°30'N to 69°30'N, 24°E to 44°E
    {17144, 4400, 6950, 6401, 7451}, // Arctic - 74°30'N to 69°30'N, 44°E to 64°E
    {17281, 6400, 6950, 8501, 7451}, // Arctic - 74°30'N to 69°30'N, 64°E to 85°E
    {17419, 8500, 6950, 10601, 7451}, // Arctic - 74°30'N to 69°30'N, 85°E to 106°E
    {16623, 10600, 6950, 12701, 7451}, // Arctic - 74°30'N to 69°30'N, 106°E to 127°E
    {16719, 12700, 6950, 14800, 7451}, // Arctic - 74°30'N to 69°30'N, 127°E to 148°E
    {16815, 14800, 6950, 16901, 7451}, // Arctic - 74°30'N to 69°30'N, 148°E to 169°E
    {16956, 16900, 6950, -16900, 7451}, // Arctic - 74°30'N to 69°30'N, 169°E to 169°W
    {17004, -17300, 6950, -15300, 7451}, // Arctic - 74°30'N to 69°30'N, 173°W to 153°W
    {16863, -15700, 6950, -13700, 7451}, // Arctic - 74°30'N to 69°30'N, 157°W to 137°W
    {16767, -14100, 6950, -12100, 7451}, // Arctic - 74°30'N to 69°30'N, 141°W to 121°W
    {16671, -12100, 6950, -10100, 7451}, // Arctic - 74°30'N to 69°30'N, 121°W to 101°W
    {16576, -10100, 6950, -8100, 7451}, // Arctic - 74°30'N to 69°30'N, 101°W to 81°W
    {17373, -8100, 6950, -6100, 7451}, // Arctic - 74°30'N to 69°30'N, 81°W to 61°W
    {17327, -7189, 6948, -5199, 7451}, // Arctic - 74°30'N to 69°30'N, 72°W to 52°W
    {17235, -5200, 6950, -3200, 7451}, // Arctic - 74°30'N to 69°30'N, 52°W to 32°W
    {17098, -3200, 6950, -1200, 7451}, // Arctic - 74°30'N to 69°30'N, 32°W to 12°W
    {16911, -1500, 6950, 501, 7451}, // Arctic - 74°30'N to 69°30'N, 15°W to 5°E
    {16141, -17400, 6616, -15600, 7117}, // Arctic - 71°10'N to 66°10'N, 174°W to 156°W
    {16093, -15600, 6616, -13800, 7117}, // Arctic - 71°10'N to 66°10'N, 156°W to 138°W
    {16045, -14100, 6616, -12200, 7117}, // Arctic - 71°10'N to 66°10'N, 141°W to 122°W
    {15997, -12200, 6616, -10300, 7117}, // Arctic - 71°10'N to 66°10'N, 122°W to 103°W
    {15950, -10300, 6616, -8400, 7117}, // Arctic - 71°10'N to 66°10'N, 103°W to 84°W
    {16327, -8400, 6616, -6500, 7117}, // Arctic - 71°10'N to 66°10'N, 84°W to 65°W
    {16281, -6500, 6616, -4700, 7117}, // Arctic - 71°10'N to 66°10'N, 65°W to 47°W
    {16235, -4700, 6616, -2900, 7117}, // Arctic - 71°10'N to 66°10'N, 47°W to 29°W
    {16189, -2900, 6616, -1100, 7117}, // Arctic - 71°10'N to 66°10'N, 29°W to 11°W
    {15904, -5900, 6283, -4200, 6784}, // Arctic - 67°50'N to 62°50'N, 59°W to 42°W
    {15858, -4200, 6283, -2500, 6784}, // Arctic - 67°50'N to 62°50'N, 42°W to 25°W
    {50407, -7078, 705, -7071, 710}, // Colombia - Arauca city
    {15812, -5900, 5950, -4400, 6451}, // Arctic - 64°30'N to 59°30'N, 59°W to 44°W
    {15766, -4400, 5950, -2900, 6451}, // Arctic - 64°30'N to 59°30'N, 44°W to 29°W
    {51056, -7424, 1116, -7413, 1130}, // Colombia - Santa Marta city
    {36609, -4800, 0, -4199, 513}, // Brazil - 48°W to 42°W and north of 0°N
    {51084, -7474, 879, -7469, 883}, // Colombia - Sucre city
    {51106, -7339, 550, -7330, 561}, // Colombia - Tunja city
    {50430, -7573, 450, -7565, 455}, // Colombia - Armenia city
    {36426, -4200, 0, -3822, 74}, // Brazil - 42°W to 36°W and north of 0°N
    {50454, -7487, 1085, -7475, 1106}, // Colombia - Barranquilla city
    {50483, -7427, 445, -7398, 485}, // Colombia - Bogota city
    {50506, -7319, 703, -7306, 717}, // Colombia - Bucaramanga city
    {50534, -7661, 332, -7642, 356}, // Colombia - Cali city
    {50555, -7557, 1027, -7542, 1047}, // Colombia - Cartagena city
    {50581, -7256, 781, -7246, 797}, // Colombia - Cucuta city
    {50604, -7563, 157, -7559, 165}, // Colombia - Florencia city
    {50630, -7527, 439, -7511, 447}, // Colombia - Ibague city
    {50653, -6794, 380, -6788, 390}, // Colombia - Inirida city
    {50677, -6998, -423, -6992, -417}, // Colombia - Leticia city
    {50701, -7554, 502, -7544, 511}, // Colombia - Manizales city
    {50727, -7566, 612, -7550, 637}, // Colombia - Medellin city
    {50752, -7025, 123, -7021, 129}, // Colombia - Mitu city
    {50773, -7666, 112, -7663, 118}, // Colombia - Mocoa city
    {50795, -7594, 870, -7582, 881}, // Colombia - Monteria city
    {50820, -7532, 287, -7523, 299}, // Colombia - Neiva city
    {50842, -7732, 116, -7723, 126}, // Colombia - Pasto city
    {50864, -7577, 478, -7564, 487}, // Colombia - Pereira city
    {50888, -7665, 241, -7655, 249}, // Colombia - Popayan city
    {50912, -6770, 598, -6741, 630}, // Colombia - Puerto Carreno city
    {50943, -7668, 566, -7663, 572}, // Colombia - Quibdo city
    {50966, -7296, 1142, -7284, 1158}, // Colombia - Riohacha city
    {50991, -8182, 1243, -8160, 1265}, // Colombia - San Andres city
    {51018, -7266, 254, -7260, 261}, // Colombia - San Jose del Guaviare city
    {51128, -7330, 1039, -7319, 1051}, // Colombia - Valledupar city
    {51155, -7369, 407, -7356, 421}, // Colombia - Villavicencio city
    {51185, -7243, 530, -7235, 537}, // Colombia - Yopal city
    {242928, 15747, -1756, -15127, 3180}, // Pacific - US interests Pacific plate
    {322598, -9660, 4290, -9397, 4351}, // USA - Iowa - Spencer
    {242891, 12948, 164, 14955, 2390}, // Pacific - US interests Mariana plate
    {49321, 10548, -1063, 10577, -1036}, // Christmas Island - onshore
    {75243, -6301, -5625, -5699, -4768}, // Falkland Islands - offshore 63°W to 57°W
    {99815, 6292, -5750, 6600, -5343}, // Heard Island and McDonald Islands - west of 66°E
    {24589, 16200, -5939, 16800, -2594}, // Australasia - Australia and Norfolk Island - 162°E to 168°E
    {24463, 10800, -3784, 11401, -1072}, // Australasia - Australia and Christmas Island - 108°E to 114°E
    {25335, 9341, -6055, 17334, -847}, // Australia - GDA
    {24908, 11400, -3853, 12001, -1206}, // Australia - 114°E to 120°E
    {226885, 16800, -3248, 17335, -2561}, // Norfolk Island - east of 168°E
    {325057, -11815, 4460, -11737, 4519}, // USA - Oregon - Baker City
    {99663, 6600, -5896, 7201, -5118}, // Heard Island and McDonald Islands - 66°E to 72°E
    {325083, -12095, 4334, -11880, 4428}, // USA - Oregon - Bend-Burns
    {297999, 5515, -486, 5601, -366}, // Seychelles - Seychelles Bank
    {99714, 7200, -5902, 7801, -4950}, // Heard Island and McDonald Islands - 72°E to 78°E
    {99765, 7800, -5847, 8357, -5065}, // Heard Island and McDonald Islands - east of 78°E
    {112524, 1200, 3479, 1800, 4710}, // Italy - 12°E to 18°E
    {112592, 1799, 3476, 1899, 4164}, // Italy - east of 18°E
    {50137, 9341, -1546, 9601, -857}, // Cocos (Keeling) Islands - west of 96°E
    {50063, 9600, -1556, 10034, -847}, // Cocos (Keeling) Islands - east of 96°E
    {24527, 10214, -3468, 10801, -887}, // Australasia - Australia and Christmas Island - west of 108°E
    {325109, -12245, 4188, -12077, 4389}, // USA - Oregon - Bend-Klamath Falls
    {335993, 10214, 920, 10351, 2282}, // Vietnam - west of 103°30'E onshore
    {325143, -12188, 4376, -11979, 4498}, // USA - Oregon - Bend-Redmond-Prineville
    {25175, 15600, -6056, 16201, -1408}, // Australia - 156°E to 162°E including Macquarie
    {325518, -12380, 4374, -12218, 4471}, // USA - Oregon - Eugene
    {325540, -12395, 4188, -12237, 4285}, // USA - Oregon - Grants Pass-Ashland
    {325243, -12383, 4249, -12243, 4324}, // USA - Oregon - Canyonville-Grants Pass
    {325315, -12205, 4549, -11889, 4608}, // USA - Oregon - Columbia River East
    {325575, -12243, 4502, -12168, 4555}, // USA - Oregon - Gresham-Warm Springs
    {325350, -12433, 4517, -12147, 4656}, // USA - Oregon - Columbia River West
    {325385, -12396, 4282, -12240, 4388}, // USA - Oregon - Cottage Grove-Canyonville
    {325490, -12195, 4463, -12046, 4555}, // USA - Oregon - Dufur-Madras
    {325634, -11817, 4513, -11714, 4580}, // USA - Oregon - La Grande
    {325777, -11790, 4341, -11670, 4465}, // USA - Oregon - Ontario
    {325800, -12484, 4189, -12335, 4640}, // USA - Oregon - Oregon Coast
    {325850, -11936, 4546, -11817, 4602}, // USA - Oregon - Pendleton
    {325875, -11864, 4513, -11809, 4564}, // USA - Oregon - Pendleton-La Grande
    {325942, -12353, 4523, -12211, 4601}, // USA - Oregon - Portland
    {326079, -12373, 4432, -12189, 4530}, // USA - Oregon - Salem
    {326129, -12251, 4410, -12169, 4466}, // USA - Oregon - Sweet Home-Sisters
    {335197, 10350, 833, 10651, 2340}, // Vietnam - 103.5°E to 106.5°E onshore
    {335841, 10650, 857, 10953, 2295}, // Vietnam - east of 106.5°E onshore
    {335746, 10643, 857, 10876, 2167}, // Vietnam - Quang Ninh; Da Nang, Quang Nam; Ba Ria-Vung Tau, Dong Nai, Lam Dong
    {322446, -9398, 4290, -9160, 4351}, // USA - Iowa - Mason City
    {69782, 837, 314, 902, 382}, // Equatorial Guinea - Bioko
    {23525, 9959, 113, 10582, 781}, // Asia - Malaysia (west including SCS) and Singapore
    {319651, -12356, 3685, -12120, 3887}, // USA - California - San Francisco Bay Area
    {322402, -9162, 4229, -9089, 4351}, // USA - Iowa - Elkader
    {322563, -9665, 4220, -9300, 4292}, // USA - Iowa - Sioux City-Iowa Falls
    {322619, -9303, 4220, -9159, 4309}, // USA - Iowa - Waterloo
    {322343, -9637, 4058, -9504, 4222}, // USA - Iowa - Council Bluffs
    {322287, -9516, 4115, -9416, 4222}, // USA - Iowa - Carroll-Atlantic
    {322234, -9429, 4115, -9323, 4222}, // USA - Iowa - Ames-Des Moines
    {23719, 3879, 2906, 5106, 3739}, // Asia - Middle East - Iraq and SW Iran
    {322470, -9335, 4116, -9229, 4230}, // USA - Iowa - Newton
    {322317, -9231, 4142, -9089, 4230}, // USA - Iowa - Cedar Rapids
    {322371, -9114, 4144, -9014, 4268}, // USA - Iowa - Dubuque-Davenport
    {322490, -9539, 4057, -9217, 4117}, // USA - Iowa - Red Oak-Ottumwa
    {322423, -9242, 4059, -9148, 4152}, // USA - Iowa - Fairfield
    {322263, -9172, 4037, -9078, 4160}, // USA - Iowa - Burlington
    {81047, 4537, -4938, 4801, -4312}, // French Southern Territories - Crozet west of 48°E
    {81227, 3798, -6713, 14200, -2091}, // French Southern and Antarctic Territories
    {80944, 4800, -4982, 5401, -4261}, // French Southern Territories - Crozet 48°E to 54°E
    {80996, 5400, -4961, 5716, -4330}, // French Southern Territories - Crozet east of 54°E
    {80809, 6296, -5303, 6600, -4573}, // French Southern Territories - 60°E to 66°E
    {80854, 6600, -5324, 7201, -4511}, // French Southern Territories - 66°E to 72°E
    {80899, 7200, -5119, 7801, -3447}, // French Southern Territories - 72°E to 78°E
    {81183, 7800, -4204, 8183, -3450}, // French Southern Territories - east of 78°E
    {321683, -8753, 4073, -8721, 4177}, // USA - Indiana - Lake and Newton
    {321446, -8728, 4073, -8692, 4177}, // USA - Indiana - Jasper and Porter
    {321642, -8694, 4090, -8646, 4177}, // USA - Indiana - LaPorte, Pulaski, Starke
    {320549, -8753, 4047, -8709, 4074}, // USA - Indiana - Benton
    {322126, -8710, 4021, -8658, 4092}, // USA - Indiana - Tippecanoe and White
    {320669, -8678, 4043, -8637, 4074}, // USA - Indiana - Carroll
    {321091, -8754, 3995, -8709, 4048}, // USA - Indiana - Fountain and Warren
    {320771, -8670, 4017, -8624, 4044}, // USA - Indiana - Clinton
    {321808, -8754, 3960, -8700, 4015}, // USA - Indiana - Parke and Vermillion
    {321749, -8710, 3947, -8664, 4022}, // USA - Indiana - Montgomery and Putnam
    {320611, -8670, 3960, -8624, 4019}, // USA - Indiana - Boone and Hendricks
    {322191, -8762, 3925, -8719, 3961}, // USA - Indiana - Vigo
    {320750, -8725, 3916, -8693, 3961}, // USA - Indiana - Clay
    {321787, -8706, 3916, -8663, 3948}, // USA - Indiana - Owen
    {321715, -8669, 3899, -8624, 3964}, // USA - Indiana - Monroe and Morgan
    {322101, -8765, 3890, -8724, 3926}, // USA - Indiana - Sullivan
    {320838, -8728, 3849, -8668, 3918}, // USA - Indiana - Daviess and Greene
    {321586, -8775, 3841, -8709, 3891}, // USA - Indiana - Knox
    {320973, -8708, 3820, -8667, 3891}, // USA - Indiana - Dubois and Martin
    {320795, -8669, 3810, -8624, 3900}, // USA - Indiana - Crawford, Lawrence, Orange
    {321171, -8798, 3816, -8731, 3854}, // USA - Indiana - Gibson
    {321867, -8748, 3787, -8701, 3856}, // USA - Indiana - Pike and Warrick
    {321900, -8806, 3777, -8768, 3824}, // USA - Indiana - Posey
    {322163, -8771, 3782, -8744, 3817}, // USA - Indiana - Vanderburgh
    {322053, -8727, 3778, -8676, 3821}, // USA - Indiana - Spencer
    {321845, -8682, 3784, -8643, 3827}, // USA - Indiana - Perry
    {321127, -8653, 4090, -8594, 4177}, // USA - Indiana - Fulton, Marshall, St Joseph
    {321007, -8608, 4065, -8563, 4177}, // USA - Indiana - Elkhart, Kosciusko, Wabash
    {321607, -8566, 4126, -8519, 4177}, // USA - Indiana - LaGrange and Noble
    {322077, -8520, 4152, -8480, 4177}, // USA - Indiana - Steuben
    {320873, -8520, 4126, -8480, 4154}, // USA - Indiana - DeKalb
    {321383, -8569, 4065, -8530, 4130}, // USA - Indiana - Huntington and Whitley
    {320499, -8534, 4091, -8480, 4128}, // USA - Indiana - Allen
    {320693, -8659, 4056, -8616, 4092}, // USA - Indiana - Cass
    {321350, -8638, 4037, -8586, 4100}, // USA - Indiana - Howard and Miami
    {322212, -8545, 4056, -8506, 4092}, // USA - Indiana - Wells
    {320477, -8508, 4056, -8480, 4093}, // USA - Indiana - Adams
    {321194, -8587, 4037, -8544, 4066}, // USA - Indiana - Grant
    {320572, -8558, 4007, -8520, 4057}, // USA - Indiana - Blackford and Delaware
    {321480, -8522, 4030, -8480, 4058}, // USA - Indiana - Jay
    {321216, -8625, 3992, -8586, 4041}, // USA - Indiana - Hamilton and Tipton
    {321252, -8596, 3969, -8557, 4038}, // USA - Indiana - Hancock and Madison
    {321922, -8523, 3971, -8480, 4032}, // USA - Indiana - Randolph and Wayne
    {321328, -8560, 3978, -8520, 4008}, // USA - Indiana - Henry
    {321551, -8633, 3934, -8593, 3993}, // USA - Indiana - Johnson and Marion
    {322030, -8596, 3934, -8562, 3970}, // USA - Indiana - Shelby
    {320940, -8569, 3913, -8529, 3979}, // USA - Indiana - Decatur and Rush
    {321050, -8531, 3926, -8481, 3979}, // USA - Indiana - Fayette, Franklin, Union
    {320647, -8639, 3904, -8607, 3935}, // USA - Indiana - Brown
    {320521, -8609, 3903, -8568, 3936}, // USA - Indiana - Bartholomew
    {321422, -8632, 3872, -8579, 3908}, // USA - Indiana - Jackson
    {321526, -8580, 3880, -8543, 3920}, // USA - Indiana - Jennings
    {321957, -8545, 3891, -8506, 3932}, // USA - Indiana - Ripley
    {320896, -8521, 3868, -8478, 3931}, // USA - Indiana - Dearborn, Ohio, Switzerland
    {321288, -8633, 3795, -8584, 3879}, // USA - Indiana - Harrison and Washington
    {320714, -8604, 3817, -8541, 3884}, // USA - Indiana - Clark, Floyd, Scott
    {321500, -8569, 3858, -8520, 3892}, // USA - Indiana - Jefferson
    {324301, -11397, 4855, -11300, 4901}, // USA - Montana - St Mary valley
    {324016, -11384, 4800, -11200, 4901}, // USA - Montana - Blackfeet reservation
    {324193, -11250, 4778, -10874, 4901}, // USA - Montana - Milk River
    {324087, -11084, 4778, -10699, 4901}, // USA - Montana - Fort Belknap
    {324116, -10757, 4801, -10478, 4888}, // USA - Montana - Fort Peck higher areas
    {324155, -10776, 4775, -10404, 4901}, // USA - Montana - Fort Peck lower areas
    {324054, -10884, 4499, -10666, 4609}, // USA - Montana - Crow reservation
    {324332, -11234, 4536, -11075, 4659}, // USA - Montana - Three Forks
    {323991, -10942, 4499, -10799, 4741}, // USA - Montana - Billings
    {328940, -10950, 4269, -10794, 4386}, // USA - Wyoming - Wind River reservation
    {327108, -9093, 4598, -9030, 4709}, // USA - Wisconsin - Ashland
    {327159, -9156, 4615, -9075, 4701}, // USA - Wisconsin - Bayfield
    {236325, 5199, 1494, 5401, 1967}, // Oman - west of 54°E
    {236163, 5400, 1433, 6001, 2674}, // Oman - 54°E to 60°E
    {236185, 6000, 1637, 6338, 2409}, // Oman - east of 60°E
    {327236, -9289, 4563, -9203, 4616}, // USA - Wisconsin - Burnett
    {327515, -9230, 4615, -9155, 4676}, // USA - Wisconsin - Douglas
    {327593, -8869, 4571, -8805, 4603}, // USA - Wisconsin - Florence
    {327620, -8905, 4537, -8842, 4608}, // USA - Wisconsin - Forest
    {327773, -9056, 4598, -8992, 4660}, // USA - Wisconsin - Iron
    {328145, -9005, 4546, -8904, 4591}, // USA - Wisconsin - Oneida
    {327134, -9216, 4520, -9153, 4565}, // USA - Wisconsin - Barron
    {328254, -9068, 4537, -9004, 4599}, // USA - Wisconsin - Price
    {328455, -9156, 4563, -9067, 4616}, // USA - Wisconsin - Sawyer
    {328614, -9005, 4585, -8893, 4630}, // USA - Wisconsin - Vilas
    {328665, -9206, 4563, -9154, 4616}, // USA - Wisconsin - Washburn
    {327186, -8826, 4424, -8776, 4468}, // USA - Wisconsin - Brown
    {327210, -9209, 4402, -9152, 4460}, // USA - Wisconsin - Buffalo
    {327326, -9167, 4485, -9092, 4530}, // USA - Wisconsin - Chippewa
    {327353, -9093, 4442, -9031, 4504}, // USA - Wisconsin - Clark
    {327492, -8774, 4467, -8680, 4543}, // USA - Wisconsin - Door
    {327541, -9216, 4468, -9164, 4521}, // USA - Wisconsin - Dunn
    {327564, -9166, 4459, -9092, 4486}, // USA - Wisconsin - Eau Claire
    {327796, -9117, 4407, -9031, 4460}, // USA - Wisconsin - Jackson
    {327959, -8943, 4502, -8863, 4548}, // USA - Wisconsin - Langlade
    {327986, -9005, 4511, -8942, 4556}, // USA - Wisconsin - Lincoln
    {328012, -9032, 4468, -8922, 4513}, // USA - Wisconsin - Marathon
    {328039, -8843, 4496, -8748, 4580}, // USA - Wisconsin - Marinette
    {328067, -8899, 4485, -8848, 4512}, // USA - Wisconsin - Menominee
    {328120, -8869, 4467, -8776, 4538}, // USA - Wisconsin - Oconto
    {328170, -9281, 4440, -9165, 4487}, // USA - Wisconsin - Pepin and Pierce
    {328205, -9289, 4520, -9215, 4573}, // USA - Wisconsin - Polk
    {328228, -8985, 4424, -8922, 4469}, // USA - Wisconsin - Portage
    {328328, -9155, 4529, -9067, 4564}, // USA - Wisconsin - Rusk
    {328480, -8923, 4458, -8824, 4503}, // USA - Wisconsin - Shawano
    {328506, -9281, 4485, -9213, 4522}, // USA - Wisconsin - St. Croix
    {328534, -9093, 4503, -9004, 4539}, // USA - Wisconsin - Taylor
    {328559, -9162, 4398, -9115, 4460}, // USA - Wisconsin - Trempealeau
    {328748, -8923, 4424, -8860, 4469}, // USA - Wisconsin - Waupaca
    {328801, -9032, 4424, -8972, 4469}, // USA - Wisconsin - Wood
    {327073, -9032, 4364, -8959, 4425}, // USA - Wisconsin - Adams and Juneau
    {327262, -8889, 4354, -8804, 4460}, // USA - Wisconsin - Calumet, Fond du Lac, Outagamie and Winnebago
    {327377, -8979, 4328, -8900, 4365}, // USA - Wisconsin - Columbia
    {327404, -9122, 4298, -9066, 4343}, // USA - Wisconsin - Crawford
    {327431, -8984, 4284, -8900, 4330}, // USA - Wisconsin - Dane
    {327454, -8902, 4284, -8840, 4364}, // USA - Wisconsin - Dodge and Jefferson
    {327645, -9116, 4250, -9042, 4322}, // USA - Wisconsin - Grant
    {327712, -9043, 4250, -8936, 4286}, // USA - Wisconsin - Green and Lafayette
    {327669, -8960, 4363, -8888, 4399}, // USA - Wisconsin - Green Lake and Marquette
    {327750, -9043, 4281, -8983, 4321}, // USA - Wisconsin - Iowa
    {327822, -8831, 4249, -8775, 4355}, // USA - Wisconsin - Kenosha, Milwaukee, Ozaukee and Racine
    {327879, -8817, 4354, -8737, 4468}, // USA - Wisconsin - Kewaunee, Manitowoc and Sheboygan
    {327931, -9143, 4372, -9091, 4410}, // USA - Wisconsin - La Crosse
    {328095, -9098, 4372, -9031, 4417}, // USA - Wisconsin - Monroe
    {328278, -9068, 4316, -9019, 4356}, // USA - Wisconsin - Richland
    {328305, -8937, 4249, -8877, 4285}, // USA - Wisconsin - Rock
    {328432, -9032, 4314, -8959, 4365}, // USA - Wisconsin - Sauk
    {328589, -9128, 4342, -9031, 4374}, // USA - Wisconsin - Vernon
    {328638, -8878, 4249, -8830, 4285}, // USA - Wisconsin - Walworth
    {328692, -8842, 4319, -8803, 4355}, // USA - Wisconsin - Washington
    {328721, -8855, 4284, -8806, 4320}, // USA - Wisconsin - Waukesha
    {328774, -8960, 4398, -8888, 4425}, // USA - Wisconsin - Waushara
    {124634, 6924, 3951, 7002, 4022}, // Kyrgyzstan - west of 70°01'E
    {124502, 7001, 3919, 7302, 4283}, // Kyrgyzstan - 70°01'E to 73°01'E
    {124536, 7301, 3935, 7602, 4322}, // Kyrgyzstan - 73°01'E to 76°01'E
    {124570, 7601, 4035, 7902, 4300}, // Kyrgyzstan - 76°01'E to 79°01'E
    {124604, 7901, 4166, 8029, 4280}, // Kyrgyzstan - east of 79°01'E
    {316582, -900, 4975, 201, 6101}, // UK - Britain and UKCS 49°45'N to 61°N, 9°W to 2°E
    {106157, 8969, 2194, 9742, 2947}, // India - northeast
    {105437, 7675, 1261, 8481, 1992}, // India - Andhra Pradesh and Telangana
    {105474, 9155, 2665, 9742, 2947}, // India - Arunachal Pradesh
    {105500, 8969, 2413, 9603, 2798}, // India - Assam
    {105514, 8331, 2428, 8830, 2786}, // India - Bihar
    {105528, 8023, 1778, 8439, 2411}, // India - Chhattisgarh
    {105563, 7361, 1486, 7435, 1580}, // India - Goa
    {105575, 6813, 2005, 7448, 2471}, // India - Gujarat
    {105591, 7446, 2765, 7760, 3094}, // India - Haryana
    {105607, 7557, 3038, 7900, 3326}, // India - Himachal Pradesh
    {105632, 7376, 3227, 7957, 3551}, // India - Jammu and Kashmir
    {105658, 8332, 2196, 8798, 2535}, // India - Jharkhand
    {105676, 7400, 1157, 7858, 1846}, // India - Karnataka
    {105694, 7481, 825, 7740, 1280}, // India - Kerala
    {105729, 7403, 2107, 8281, 2688}, // India - Madhya Pradesh
    {105752, 7260, 1560, 8090, 2204}, // India - Maharashtra
    {105772, 9297, 2384, 9476, 2570}, // India - Manipur
    {105788, 8982, 2503, 9281, 2612}, // India - Meghalaya
    {105806, 9225, 2194, 9345, 2453}, // India - Mizoram
    {105822, 9333, 2520, 9525, 2705}, // India - Nagaland
    {105839, 8138, 1780, 8750, 2257}, // India - Odisha
    {105854, 7387, 2954, 7694, 3258}, // India - Punjab
    {105869, 6948, 2306, 7827, 3020}, // India - Rajasthan
    {105887, 8801, 2708, 8892, 2814}, // India - Sikkim
    {105902, 7622, 802, 8040, 1359}, // India - Tamil Nadu
    {105921, 9115, 2294, 9234, 2454}, // India - Tripura
    {105937, 7708, 2387, 8464, 3042}, // India - Uttar Pradesh
    {105959, 7756, 2871, 8102, 3148}, // India - Uttarakhand
    {105979, 8582, 2149, 8988, 2723}, // India - West Bengal
    {105549, 7683, 2840, 7734, 2889}, // India - Delhi
    {105401, 9215, 670, 9433, 1373}, // India - Andaman and Nicobar Islands
    {105709, 7204, 821, 7376, 1176}, // India - Lakshadweep
    {38210, 3000, 4256, 3135, 4367}, // Bulgaria - east of 30°E
    {38184, 2400, 4124, 3001, 4415}, // Bulgaria - 24°E to 30°E
    {38254, 2236, 4132, 2400, 4423}, // Bulgaria - west of 24°E
    {329474, 2500, 4772, 2801, 5196}, // Ukraine - 25°E to 28°E
    {329528, 2800, 4518, 3101, 5209}, // Ukraine - 28°E to 31°E onshore
    {329615, 3100, 4432, 3401, 5238}, // Ukraine - 31°E to 34°E onshore
    {329677, 3400, 4433, 3701, 5225}, // Ukraine - 34°E to 37°E onshore
    {329710, 3700, 4680, 4001, 5044}, // Ukraine - 37°E to 40°E onshore
    {330480, 4000, 4880, 4018, 4962}, // Ukraine - east of 40°E
    {330554, 2215, 4771, 2501, 5192}, // Ukraine - west of 25°E
    {26069, 12100, -3225, 12184, -2875}, // Australia - Western Australia - Kalgoorlie
    {25738, 11518, -3375, 11587, -3340}, // Australia - Western Australia - Busselton
    {25660, 11490, -2220, 11559, -2021}, // Australia - Western Australia - Barrow
    {25621, 11755, -3521, 11822, -3475}, // Australia - Western Australia - Albany
    {25985, 11483, -3074, 11534, -2908}, // Australia - Western Australia - Jurien Bay
    {25699, 12208, -1809, 12262, -1675}, // Australia - Western Australia - Broome
    {25780, 11333, -2550, 11400, -2300}, // Australia - Western Australia - Carnarvon
    {25822, 11573, -3467, 11640, -3325}, // Australia - Western Australia - Collie
    {26028, 11390, -2850, 11475, -2716}, // Australia - Western Australia - Kalbarri
    {25861, 12156, -3450, 12220, -3333}, // Australia - Western Australia - Esperance
    {6212, 1179, -604, 1237, -579}, // DR Congo (Zaire) - offshore
    {25903, 11375, -2242, 11425, -2175}, // Australia - Western Australia - Exmouth
    {25943, 11451, -2910, 11500, -2848}, // Australia - Western Australia - Geraldton
    {319193, -11333, 3180, -11251, 3251}, // USA - Arizona - Pima county west
    {26112, 11658, -2092, 11725, -2025}, // Australia - Western Australia - Karratha
    {26153, 12850, -1675, 12900, -1475}, // Australia - Western Australia - Kununurra
    {26195, 11515, -3149, 11562, -3071}, // Australia - Western Australia - Lancelin
    {73318, 1207, 4693, 1683, 5106}, // Europe - Upper Austria, Salzburg and Bohemia
    {73234, 1441, 4742, 1886, 5045}, // Europe - Lower Austria and Moravia
    {26236, 11496, -3442, 11524, -3351}, // Australia - Western Australia - Margaret River
    {326001, -12097, 4188, -11915, 4345}, // USA - Oregon - Riley-Lakeview
    {325182, -11861, 4349, -11749, 4419}, // USA - Oregon - Burns-Harper
    {319124, -11252, 3150, -11156, 3251}, // USA - Arizona - Pima county central
    {26283, 11544, -3342, 11609, -3133}, // Australia - Western Australia - Perth
    {326100, -12271, 4195, -12196, 4246}, // USA - Oregon - Siskiyou Pass
    {325210, -11922, 4352, -11852, 4436}, // USA - Oregon - Canyon City-Burns
    {26321, 11825, -2079, 11897, -2010}, // Australia - Western Australia - Port Hedland
    {313865, -6209, 983, -5999, 1234}, // Trinidad and Tobago - offshore west of 60°W
    {313820, -6000, 995, -5728, 1219}, // Trinidad and Tobago - offshore east of 60°W
    {326163, -11935, 4452, -11864, 4521}, // USA - Oregon - Ukiah-Fox
    {325282, -12381, 4540, -12301, 4598}, // USA - Oregon - Coast Range North
    {319160, -11157, 3143, -11044, 3252}, // USA - Arizona - Pima county east
    {319085, -11087, 3233, -11061, 3249}, // USA - Arizona - Pima county Mt. Lemmon
    {325426, -11989, 4424, -11861, 4494}, // USA - Oregon - Dayville-Prairie City
    {325463, -11941, 4188, -11767, 4354}, // USA - Oregon - Denio-Burns
    {325611, -11761, 4461, -11663, 4528}, // USA - Oregon - Halfway
    {325659, -12273, 4253, -12171, 4334}, // USA - Oregon - Medford-Diamond Lake
    {325695, -12056, 4438, -11982, 4478}, // USA - Oregon - Mitchell
    {325719, -12179, 4489, -11903, 4595}, // USA - Oregon - North Central
    {326188, -11816, 4527, -11642, 4605}, // USA - Oregon - Wallowa
    {325748, -12101, 4421, -12031, 4461}, // USA - Oregon - Ochoco Summit
    {325828, -11814, 4188, -11685, 4354}, // USA - Oregon - Owyhee
    {325910, -11965, 4499, -11811, 4604}, // USA - Oregon - Pilot Rock-Ukiah
    {325966, -11877, 4416, -11748, 4502}, // USA - Oregon - Prairie City-Brogan
    {324431, -11550, 3588, -11471, 3643}, // USA - Nevada - Las Vegas
    {326211, -12042, 4195, -11930, 4243}, // USA - Oregon - Warner Highway
    {324456, -11550, 3588, -11471, 3643}, // USA - Nevada - Las Vegas high elevation
    {326241, -12226, 4299, -12148, 4418}, // USA - Oregon - Willamette Pass
    {14676, 13600, -6673, 13801, -6561}, // Antarctica - Adelie Land coastal area west of 138°E
    {94526, 833, 5336, 1041, 5399}, // Germany - Hamburg
    {25443, 14150, -1350, 14251, -1149}, // Australia - Queensland - Weipa
    {14623, 13800, -6713, 14200, -6610}, // Antarctica - Adelie Land coastal area east of 138°E
    {322903, -10019, 3869, -9903, 4001}, // USA - Kansas - Hays
    {322853, -10206, 3869, -10138, 4001}, // USA - Kansas - Goodland
    {322756, -10149, 3869, -10071, 4001}, // USA - Kansas - Colby
    {322997, -10082, 3869, -10014, 4001}, // USA - Kansas - Oberlin
    {322877, -9907, 3826, -9847, 4001}, // USA - Kansas - Great Bend
    {322707, -9851, 3815, -9792, 4001}, // USA - Kansas - Beloit
    {323114, -9794, 3808, -9680, 4001}, // USA - Kansas - Salina
    {322972, -9697, 3873, -9594, 3957}, // USA - Kansas - Manhattan
    {322803, -9694, 3808, -9594, 3888}, // USA - Kansas - Emporia
    {322683, -9681, 3921, -9485, 4001}, // USA - Kansas - Atchison
    {322923, -9604, 3873, -9458, 3943}, // USA - Kansas - Kansas City
    {323136, -10205, 3699, -10106, 3871}, // USA - Kansas - Ulysses
    {322826, -10113, 3699, -10008, 3871}, // USA - Kansas - Garden City
    {322777, -10025, 3699, -9954, 3870}, // USA - Kansas - Dodge City
    {322950, -9959, 3699, -9891, 3870}, // USA - Kansas - Larned
    {323045, -9903, 3699, -9834, 3827}, // USA - Kansas - Pratt
    {323159, -9848, 3738, -9652, 3818}, // USA - Kansas - Wichita
    {322654, -9835, 3699, -9652, 3748}, // USA - Kansas - Arkansas City
    {322729, -9653, 3699, -9550, 3888}, // USA - Kansas - Coffeyville
    {323020, -9553, 3699, -9460, 3874}, // USA - Kansas - Pittsburg
    {242810, 14119, 1095, 14401, 2390}, // Pacific - Guam and NMI west of 144°E
    {319804, 14458, -1459, -6451, 4938}, // USA - FBN
    {242772, 14400, 1105, 14955, 2390}, // Pacific - Guam and NMI east of 144°E
    {8467, -295, 3199, 909, 3466}, // Algeria - 32°N to 34°39'N
    {370112, 9001, -9000, 8999, 9000}, // World centred on 90°W
    {370088, -2999, -9000, -3001, 9000}, // World centred on 150°E
    {297062, 3444, 2492, 3601, 2938}, // Saudi Arabia - west of 36°E
    {242739, 14458, 1318, 14612, 2061}, // Pacific - Guam and NMI - onshore
    {296845, 3600, 1629, 4200, 3216}, // Saudi Arabia - 36°E to 42°E
    {296875, 4199, 1635, 4800, 3115}, // Saudi Arabia - 42°E to 48°E
    {296905, 4799, 1794, 5401, 2894}, // Saudi Arabia - 48°E to 54°E
    {126620, -12219, -5987, -2528, 3272}, // Latin America - Central America and South America
    {54776, -8360, 960, -8143, 1177}, // Costa Rica - offshore Caribbean
    {54808, -9045, 215, -8292, 1111}, // Costa Rica - offshore Pacific
    {335824, 10321, 2057, 10503, 2204}, // Vietnam - Son La
    {9362, 1799, -1802, 2409, -691}, // Angola - east of 18°E
    {6943, 1333, -5032, 4285, -2213}, // Africa - South Africa, Lesotho and Eswatini.
    {335629, 10214, 2089, 10399, 2282}, // Vietnam - Dien Bien and Lai Chau
    {123825, 1997, 4185, 2180, 4325}, // Kosovo
    {297819, 1881, 4223, 2301, 4619}, // Serbia
    {335597, 10340, 833, 10554, 1055}, // Vietnam - Ca Mau and Kien Giang
    {335333, 10353, 1018, 10586, 2285}, // Vietnam - An Giang, Lao Cai, Nghe An, Phu Tho, Yen Bai
    {335236, 10433, 919, 10669, 2340}, // Vietnam - 104°20'E to 106°40'E by province
    {335281, 10526, 975, 10780, 2312}, // Vietnam - 105°15'E to 107°50'E by province - HCMC
    {335662, 10483, 1692, 10703, 2270}, // Vietnam - Hoa Binh, Quang Binh and Tuyen Quang
    {9444, 820, -1728, 1201, -503}, // Angola - west of 12°E
    {335504, 10641, 1130, 10743, 1722}, // Vietnam - Binh Phuoc and Quang Tri
    {335427, 10543, 2132, 10625, 2275}, // Vietnam - Bac Kan and Thai Nguyen
    {335388, 10588, 1599, 10824, 2163}, // Vietnam - Bac Giang and Thua Thien-Hue
    {9174, 1200, -1744, 1800, -438}, // Angola - 12°E to 18°E
    {335727, 10609, 2132, 10737, 2247}, // Vietnam - Lang Son
    {335709, 10733, 1392, 10855, 1542}, // Vietnam - Kon Tum
    {335461, 10855, 1125, 10953, 1471}, // Vietnam - Binh Dinh, Khanh Hoa, Ninh Thuan
    {335539, 10720, 1043, 10952, 1461}, // Vietnam - Binh Thuan, Dak Lak, Dak Nong, Gia Lai, Phu Yen
    {20532, -7214, -4341, -6586, -3191}, // Argentina - Mendoza and Neuquen
    {19976, -7359, -5034, -6547, -4249}, // Argentina - 42.5°S to 50.3°S
    {20112, -7359, -5034, -7050, -4494}, // Argentina - 42.5°S to 50.3°S and west of 70.5°W
    {20061, -6750, -4905, -6547, -4358}, // Argentina - 42.5°S to 50.3°S and east of 67.5°W
    {300091, 1333, -3817, 3654, -2213}, // South Africa - mainland - onshore and offshore
    {300002, 3271, -5032, 4285, -4326}, // South Africa - Prince Edward islands - onshore and offshore
    {20891, -7328, -5243, -6830, -5033}, // Argentina - south Santa Cruz
    {20965, -7328, -5200, -7050, -5033}, // Argentina - south Santa Cruz west of 70.5°W
    {20920, -7050, -5243, -6830, -5033}, // Argentina - south Santa Cruz east of 70.5°W
    {37135, -5816, -2750, -5400, -1799}, // Brazil - west of 54°W and between 18°S and 27°30'S
    {36694, -5400, -2750, -4799, -1499}, // Brazil - 54°W to 48°W and 15°S to 27°30'S
    {20415, -7050, -5243, -6749, -2408}, // Argentina - 70.5°W to 67.5°W mainland onshore
    {20328, -6750, -4905, -6449, -2178}, // Argentina - 67.5°W to 64.5°W mainland onshore
    {20241, -6450, -4314, -6149, -2199}, // Argentina - 64.5°W to 61.5°W mainland onshore
    {6897, -1716, 2071, -101, 3597}, // Africa - Morocco and Western Sahara - onshore
    {316809, -275, 5145, 0, 5330}, // UK - London to Birmingham and Crewe
    {316785, -314, 5332, -134, 5390}, // UK - Liverpool to Leeds
    {369669, -18000, -9000, 18000, -5000}, // World - south of 50°S
    {52702, 2150, -731, 2301, -531}, // Congo DR (Zaire) - 6th parallel south 21.5°E to 23°E
    {316845, -189, 5146, 16, 5342}, // UK - London to Sheffield
    {316555, -431, 5710, -210, 5771}, // UK - Aberdeen to Inverness
    {305553, -1822, 2758, -1608, 2890}, // Spain - Canary Islands western
    {305350, -1822, 2759, -1800, 2788}, // Spain - Canary Islands - El Hierro west of 18°W
    {305508, -1806, 2758, -1337, 2947}, // Spain - Canary Islands onshore east of 18°W
    {305584, -1806, 2758, -1608, 2890}, // Spain - Canary Islands western east of 18°W
    {316660, -465, 5555, -405, 5595}, // UK - Glasgow to Kilmarnock
    {20502, -5854, -3471, -5829, -3450}, // Argentina - Buenos Aires city
    {135719, 10954, 85, 11569, 503}, // Malaysia - East Malaysia - Sarawak onshore
    {73269, 465, 4487, 788, 4589}, // Europe - Lyon-Turin
    {45913, -4200, 4553, -4073, 4953}, // Canada - east of 42°W
    {317067, -356, 5555, -194, 5721}, // UK - Tweedmouth to Aberdeen
    {316958, -190, 5485, -130, 5530}, // UK - Newcastle to Ashington
    {317044, -143, 5170, -36, 5224}, // UK - Oxford to Bedford
    {330039, 3023, 5021, 3083, 5059}, // Ukraine - Kyiv city
    {329743, 2960, 4845, 3289, 5023}, // Ukraine - Cherkasy oblast
    {329769, 3048, 5034, 3351, 5238}, // Ukraine - Chernihiv oblast
    {329796, 2490, 4772, 2754, 4868}, // Ukraine - Chernivtsi oblast
    {329841, 3295, 4745, 3694, 4919}, // Ukraine - Dnipropetrovsk oblast
    {329873, 3654, 4686, 3910, 4924}, // Ukraine - Donetsk oblast
    {329898, 2353, 4772, 2566, 4956}, // Ukraine - Ivano-Frankivsk oblast
    {329931, 3484, 4852, 3810, 5046}, // Ukraine - Kharkiv oblast
    {329956, 3151, 4575, 3511, 4760}, // Ukraine - Kherson oblast
    {329981, 2613, 4845, 2790, 5059}, // Ukraine - Khmelnytskyi oblast
    {330059, 2926, 4917, 3216, 5155}, // Ukraine - Kyiv oblast
    {330011, 2974, 4774, 3390, 4925}, // Ukraine - Kirovohrad oblast
    {330081, 3783, 4782, 4023, 5009}, // Ukraine - Luhansk oblast
    {330106, 2264, 4871, 2543, 5065}, // Ukraine - Lviv oblast
    {330128, 3020, 4636, 3319, 4823}, // Ukraine - Mykolaiv oblast
    {330154, 2821, 4520, 3130, 4824}, // Ukraine - Odessa oblast
    {330178, 3208, 4874, 3549, 5055}, // Ukraine - Poltava oblast
    {330203, 2508, 5000, 2774, 5195}, // Ukraine - Rivne oblast
    {330247, 3293, 5010, 3567, 5237}, // Ukraine - Sumy oblast
    {330269, 2471, 4850, 2645, 5027}, // Ukraine - Ternopil oblast
    {330295, 2737, 4806, 3002, 4989}, // Ukraine - Vinnytsia oblast
    {330322, 2360, 5028, 2611, 5197}, // Ukraine - Volyn oblast
    {330345, 2213, 4789, 2463, 4910}, // Ukraine - Zakarpattia oblast
    {330374, 3417, 4607, 3725, 4815}, // Ukraine - Zaporizhzhia oblast
    {330404, 2719, 4958, 2974, 5168}, // Ukraine - Zhytomyr oblast
    {329824, 3247, 4438, 3665, 4624}, // Ukraine - Crimea
    {330226, 3337, 4438, 3393, 4485}, // Ukraine - Sevastopol
    {316636, -327, 5135, -36, 5326}, // UK - Cardiff to Lincoln
    {244014, 15600, -1426, 16201, -111}, // Papua New Guinea - 156°E to 162°E
    {244050, 16200, -436, 16281, -234}, // Papua New Guinea - east of 162°E
    {316870, -240, 5325, -139, 5355}, // UK - Manchester to Dore
    {316986, -330, 5150, -289, 5185}, // UK - Newport to Ebbw Vale
    {316766, -170, 5360, -27, 5390}, // UK - Leeds to Hull
    {316741, -460, 5740, -300, 5864}, // UK - Inverness to Thurso
    {316929, -440, 5570, -330, 5755}, // UK - Motherwell to Inverness
    {316894, -315, 5309, -210, 5365}, // UK - Manchester, Wigan and Chester
    {47865, -11321, -3054, -10800, -2372}, // Chile - west of 108°W
    {319060, -7851, 3864, -7048, 4274}, // USA - Amtrak NE corridor
};
// clang-format on

} // namespace ZrProj::systems::rows
