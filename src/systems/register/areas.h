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
    {4927, 6050, 2940, 7492, 3848}, // Afghanistan
    {6224, 1846, 3963, 2106, 4267}, // Albania
    {6549, -867, 1897, 1199, 3880}, // Algeria
    {6812, -17375, -1756, -16520, -1002}, // American Samoa
    {172419, 820, -1802, 2409, -438}, // Angola
    {7713, -18000, -9000, 18000, -6000}, // Antarctica
    {13406, -7359, -5841, -5263, -2178}, // Argentina
    {17136, 10923, -4720, 16320, -888}, // Australia - onshore and EEZ
    {17640, 953, 4640, 1717, 4902}, // Austria
    {18000, 4477, 3789, 5173, 4259}, // Azerbaijan
    {19566, 8801, 1856, 9267, 2664}, // Bangladesh
    {22633, 223, 4950, 640, 5188}, // Belgium
    {22730, -6883, 2891, -6070, 3573}, // Bermuda
    {23043, 8874, 2670, 9213, 2833}, // Bhutan
    {92596, -6966, -2291, -5752, -967}, // Bolivia
    {24196, 1574, 4256, 1962, 4527}, // Bosnia and Herzegovina
    {24212, 1999, -2688, 2938, -1778}, // Botswana
    {24257, -7401, -3571, -2528, 704}, // Brazil
    {25661, 11237, 401, 11537, 631}, // Brunei
    {25760, 2236, 4124, 3135, 4423}, // Bulgaria
    {25925, -553, 939, 240, 1509}, // Burkina Faso
    {26019, 2898, -445, 3086, -230}, // Burundi
    {29188, 832, 165, 1621, 1309}, // Cameroon
    {215909, -14101, 3821, -4073, 8646}, // Canada
    {31399, -2885, 1147, -1953, 2054}, // Cape Verde
    {31839, -8360, 1758, -7872, 2068}, // Cayman Islands
    {172270, -11321, -5987, -6572, -1750}, // Chile
    {32644, 7362, 1670, 13477, 5356}, // China
    {33985, 9676, -1227, 9699, -1176}, // Cocos (Keeling) Islands - onshore
    {34114, -8477, -423, -6687, 1551}, // Colombia
    {35864, 884, -691, 1865, 372}, // Congo
    {32043, -9045, 215, -8143, 1177}, // Costa Rica
    {37084, -861, 102, -248, 1074}, // Cote d'Ivoire (Ivory Coast)
    {37340, 1300, 4162, 1943, 4654}, // Croatia
    {37484, -8701, 1883, -7357, 2551}, // Cuba
    {37566, 2995, 3288, 3520, 3621}, // Cyprus
    {37657, 1209, 4858, 1886, 5106}, // Czechia
    {40745, 4175, 1094, 4415, 1272}, // Djibouti
    {46831, -9535, -501, -7521, 500}, // Ecuador
    {46865, 2470, 2189, 3791, 3382}, // Egypt
    {172339, -9143, 997, -8765, 1444}, // El Salvador
    {47520, 3644, 1236, 4331, 1810}, // Eritrea
    {47541, 2037, 5752, 2820, 6000}, // Estonia
    {47694, 3299, 340, 4799, 1489}, // Ethiopia
    {50794, -1391, 5994, -48, 6570}, // Faroe Islands
    {51220, 17681, -2081, -17815, -1242}, // Fiji - onshore
    {51411, 1908, 5884, 3159, 7009}, // Finland
    {32108, -986, 4115, 1038, 5156}, // France
    {53477, -5461, 211, -4945, 888}, // French Guiana
    {53591, -15813, -3124, -13197, -452}, // French Polynesia
    {63231, 703, -637, 1452, 232}, // Gabon
    {64463, -379, 140, 210, 1116}, // Ghana
    {64495, -542, 3600, -489, 3616}, // Gibraltar
    {64870, 1826, 3326, 3023, 4175}, // Greece
    {65041, -7500, 5638, 799, 8702}, // Greenland
    {66365, -6139, 118, -5577, 1070}, // Guyana
    {33064, 11376, 2213, 11451, 2258}, // China - Hong Kong
    {68550, 1611, 4574, 2290, 4858}, // Hungary
    {70537, -3087, 5996, -555, 6959}, // Iceland
    {71882, 6560, 387, 9742, 3551}, // India
    {72867, 9201, -1395, 14146, 779}, // Indonesia
    {15534, 4403, 2334, 6334, 3978}, // Iran
    {50504, 3879, 2906, 4875, 3739}, // Iraq
    {75361, 3299, 2945, 3569, 3353}, // Israel
    {75599, 593, 3476, 1899, 4710}, // Italy
    {77588, -8060, 1408, -7451, 1936}, // Jamaica
    {77775, 12238, 1709, 15765, 4605}, // Japan
    {79020, 3488, 2918, 3931, 3338}, // Jordan
    {81243, 4649, 4059, 8735, 5545}, // Kazakhstan
    {82612, 12271, 2860, 13428, 4027}, // Korea, Republic of (South Korea)
    {83824, 6924, 3919, 8029, 4322}, // Kyrgyzstan
    {85045, 10009, 1392, 10764, 2250}, // Laos
    {85281, 1906, 5567, 2824, 5809}, // Latvia
    {85437, 2701, -3066, 2946, -2857}, // Lesotho
    {85499, 931, 1950, 2621, 3523}, // Libya
    {85827, 947, 4705, 964, 4728}, // Liechtenstein
    {48744, 1902, 5389, 2682, 5645}, // Lithuania
    {142072, 573, 4944, 653, 5019}, // Luxembourg
    {33076, 11352, 2206, 11368, 2223}, // China - Macao
    {139161, 2045, 4085, 2304, 4236}, // North Macedonia
    {90964, 4253, -2659, 5103, -1169}, // Madagascar - onshore and nearshore
    {91588, 3268, -1714, 3593, -937}, // Malawi
    {14631, 9802, 85, 11961, 781}, // Malaysia
    {91947, 6929, -347, 7708, 810}, // Maldives
    {91963, -1225, 1014, 426, 2501}, // Mali
    {92753, -6282, 1408, -5752, 1636}, // Martinique
    {93088, -2004, 1472, -480, 2730}, // Mauritania
    {93333, 4368, -1449, 4670, -1133}, // Mayotte
    {201864, -12219, 1210, -8464, 3272}, // Mexico
    {95786, 2663, 4544, 3013, 4847}, // Moldova
    {96818, -1386, 2766, -101, 3600}, // Morocco
    {97012, 3021, -2771, 4303, -1009}, // Mozambique
    {22985, 824, -3064, 2527, -1695}, // Namibia
    {15221, 8006, 2634, 8821, 3043}, // Nepal
    {133425, 253, 5075, 722, 5577}, // Netherlands
    {169352, 15625, -2645, 17428, -1483}, // New Caledonia
    {135960, 16060, -5595, -17120, -2588}, // New Zealand
    {5298, 16, 1169, 1600, 2353}, // Niger
    {137532, 266, 192, 1465, 1390}, // Nigeria
    {143717, 5199, 1433, 6338, 2674}, // Oman
    {147995, 6086, 2105, 7783, 3707}, // Pakistan
    {148417, -8432, 500, -7704, 1251}, // Panama
    {148577, 13920, -1475, 16281, 258}, // Papua New Guinea
    {188081, -6265, -2759, -5424, -1929}, // Paraguay
    {149476, -8468, -2105, -6867, -3}, // Peru
    {149788, 11604, 300, 12995, 2218}, // Philippines
    {44067, 1414, 4900, 2415, 5593}, // Poland
    {167090, 5055, 2455, 5304, 2705}, // Qatar
    {173233, 3758, -2592, 5827, -1060}, // Reunion
    {173580, 2026, 4344, 3141, 4827}, // Romania
    {215952, 1892, 3987, -16897, 8519}, // Russia
    {15473, 3444, 1629, 5567, 3216}, // Saudi Arabia
    {185034, -2022, 1064, -1136, 1670}, // Senegal
    {15419, 10359, 113, 10407, 147}, // Singapore
    {186111, 1684, 4773, 2256, 4961}, // Slovakia
    {186174, 1338, 4542, 1661, 4688}, // Slovenia
    {186544, 15562, -1090, 16244, -655}, // Solomon Islands - onshore main islands
    {189545, -5710, 4341, -5590, 4737}, // St Pierre and Miquelon
    {190629, -5808, 183, -5266, 935}, // Suriname
    {47687, 3079, -2732, 3214, -2572}, // Eswatini
    {190666, 1003, 5496, 2417, 6907}, // Sweden
    {15621, 3496, 3231, 4238, 3730}, // Syria
    {192868, 11432, 1736, 12361, 2696}, // Taiwan
    {194460, -15, 291, 242, 1114}, // Togo
    {195226, -17908, -2568, -17128, -1414}, // Tonga
    {195431, -6209, 983, -5728, 1234}, // Trinidad and Tobago
    {5041, 749, 3023, 1367, 3841}, // Tunisia
    {195771, 2562, 3442, 4483, 4345}, // Turkey
    {204424, 2215, 4318, 4018, 5238}, // Ukraine
    {15835, 5150, 2263, 5713, 2627}, // UAE
    {198105, 16765, 1556, -6569, 7471}, // USA
    {207122, -5849, -3777, -5001, -3009}, // Uruguay
    {188041, -7338, 64, -5895, 1675}, // Venezuela
    {222877, 17949, -1594, -17427, -984}, // Wallis and Futuna
    {188642, 4108, 895, 5796, 1900}, // Yemen
    {35489, 1179, -1346, 3131, 539}, // Congo DR (Zaire)
    {230049, 2199, -1808, 3371, -819}, // Zambia
    {5210, 2523, -2242, 3308, -1561}, // Zimbabwe
    {224161, -18000, -9000, 18000, 9000}, // World
    {140367, -18000, -9000, 18000, 9000}, // Not specified
    {197515, -882, 4979, 192, 6094}, // UK - Great Britain onshore and nearshore; Isle of Man
    {13685, -6950, -4670, -6710, -4519}, // Argentina - Comodoro Rivadavia
    {5364, 2182, 340, 4799, 2224}, // Africa - Eritrea, Ethiopia, South Sudan and Sudan
    {15450, 3451, 1637, 5567, 3216}, // Asia - Middle East - Bahrain, Kuwait and Saudi Arabia
    {10645, -6195, 1694, -6161, 1722}, // Antigua - onshore
    {24567, -5338, -3571, -2600, 426}, // Brazil - Aratu
    {133442, 320, 5075, 722, 5370}, // Netherlands - onshore
    {5219, 1999, -2688, 3593, -819}, // Africa - Botswana, Malawi, Zambia, Zimbabwe
    {5303, 2885, -1175, 4191, 463}, // Africa - Burundi, Kenya, Rwanda, Tanzania and Uganda
    {10426, 4500, -9000, 16000, -6000}, // Antarctica - Australian sector
    {16210, 10923, -4720, 16320, -130}, // Australasia - Australia and PNG - AGD66
    {16687, 11285, -3519, 12901, -1367}, // Australia - Western Australia
    {16663, 14377, -4370, 14855, -3952}, // Australia - Tasmania
    {30136, -6905, 4341, -5973, 4807}, // Canada - Maritime Provinces
    {73480, 9516, -891, 11577, 597}, // Indonesia - Bali, Java and western Sumatra onshore
    {49181, 596, 4582, 1049, 4781}, // Europe - Liechtenstein and Switzerland
    {73506, 10507, -330, 10835, -144}, // Indonesia - Banga & Belitung Islands
    {7233, 820, -1802, 2409, -582}, // Angola - Angola proper
    {5143, 1645, -3488, 3295, -1778}, // Africa - Botswana, Eswatini, Lesotho and South Africa
    {15084, 4695, 3735, 5393, 4697}, // Asia - FSU - Caspian Sea
    {13773, -7119, -4017, -6652, -3426}, // Argentina - Neuquen province
    {24640, -5816, -3378, -3474, -268}, // Brazil - Corrego Alegre 1970-1972
    {151483, -956, 3695, -619, 4216}, // Portugal - mainland - onshore
    {48701, -1610, 2571, 4861, 8473}, // Europe - ED50 by country
    {49536, -1056, 3488, 3801, 8473}, // Europe - west
    {48713, -1610, 3288, 4018, 8473}, // Europe - ETRF by country
    {74910, 4713, 2621, 5361, 3322}, // Iran - FD58
    {151191, -2890, 3832, -2697, 3914}, // Portugal - Azores C - onshore
    {188130, -7483, -5596, -6373, -5165}, // South America - Tierra del Fuego
    {15893, 9220, 563, 10564, 2855}, // Asia - Myanmar and Thailand onshore
    {49140, -1056, 5139, -534, 5543}, // Europe - Ireland (Republic and Ulster) - onshore
    {48681, 1209, 4773, 2256, 5106}, // Europe - Czechoslovakia
    {14550, 6086, 802, 10117, 3707}, // Asia - Bangladesh; India; Myanmar; Pakistan - onshore
    {14550, 6086, 802, 10117, 3707}, // Asia - Bangladesh; India; Myanmar; Pakistan - onshore
    {15427, 9959, 113, 10460, 672}, // Asia - Malaysia (west) and Singapore
    {83514, 4778, 2917, 4816, 2945}, // Kuwait - Kuwait City
    {208167, -7240, 872, -7078, 1104}, // Venezuela - Lake Maracaibo
    {208278, -7338, 775, -5980, 1225}, // Venezuela - north of 7°45'N
    {151392, -1731, 3235, -1623, 3315}, // Portugal - Madeira archipelago onshore
    {97155, 3021, -1776, 3537, -1401}, // Mozambique - west - Tete province
    {73731, 11871, -654, 12078, -188}, // Indonesia - Sulawesi SW
    {7331, 1053, -604, 1218, -505}, // Angola - Cabinda offshore
    {7319, 1053, -604, 1310, -438}, // Angola - Cabinda
    {208219, -7225, 1000, -7150, 1100}, // Venezuela - Maracaibo area
    {48607, 953, 4085, 2304, 4902}, // Europe - Austria and former Yugoslavia onshore
    {195444, -6090, 1108, -6044, 1141}, // Trinidad and Tobago - Tobago - onshore
    {199008, -12479, 2441, -6691, 4938}, // USA - CONUS - onshore
    {138703, -17254, 2381, -4774, 8646}, // North America - Canada and USA (CONUS, Alaska mainland)
    {53145, -487, 4233, 823, 5114}, // France - mainland onshore
    {52906, 850, 4131, 963, 4307}, // France - Corsica onshore
    {73660, 11672, -124, 11799, 0}, // Indonesia - Kalimantan - Mahakam delta
    {97143, 3129, -2687, 3565, -1984}, // Mozambique - south
    {198554, 17242, 5130, -12999, 7140}, // USA - Alaska
    {198728, -16988, 5649, -16938, 5667}, // USA - Alaska - St. George Island
    {198745, -17197, 6289, -16859, 6384}, // USA - Alaska - St. Lawrence Island
    {198764, -17051, 5706, -17004, 5728}, // USA - Alaska - St. Paul Island
    {199682, -16030, 1887, -15474, 2229}, // USA - Hawaii - onshore
    {31576, -6797, 1762, -6425, 1878}, // Caribbean - Puerto Rico and Virgin Islands - onshore
    {30056, -12000, 4461, -5710, 6256}, // Canada - CSRS98
    {199533, 14458, -1459, -6451, 7140}, // USA - HARN
    {75002, 5250, 2739, 5271, 2761}, // Iran - Taheri refinery
    {195466, -6209, 983, -6000, 1151}, // Trinidad and Tobago - Trinidad
    {229711, 4337, 1254, 5314, 1900}, // Yemen - South Yemen - mainland
    {188315, -8200, -5615, -3400, 1300}, // South America by country
    {185330, -1334, 832, -1313, 855}, // Sierra Leone - Freetown Peninsula
    {64024, 992, 5020, 1504, 5474}, // Germany - East Germany all states
    {151308, -3134, 3930, -3102, 3977}, // Portugal - Azores W - onshore
    {151252, -2592, 3687, -2472, 3796}, // Portugal - Azores E - onshore
    {167103, 5069, 2455, 5168, 2620}, // Qatar - onshore
    {22640, 250, 4950, 640, 5151}, // Belgium - onshore
    {188089, -8141, -4350, -4799, 1268}, // South America - PSAD56 by country
    {138810, 16765, 715, -4774, 8317}, // North America - NAD27
    {138819, 16765, 1492, -4073, 8645}, // North America - NAD83
    {15814, 5055, 2263, 5713, 2705}, // Asia - Middle East - Qatar offshore and UAE
    {49133, 468, 5793, 3122, 7121}, // Norway - onshore
    {48633, -1056, 4981, 184, 6090}, // Europe - British Isles - UK and Ireland onshore
    {73745, 9516, -599, 10613, 597}, // Indonesia - Sumatra
    {15657, 3417, 2918, 3931, 3338}, // Asia - Middle East - Israel, Jordan and Palestine onshore
    {188101, -9172, -5596, -2528, 1252}, // South America - SAD69 by country
    {73697, 11455, -424, 11799, 0}, // Indonesia - Kalimantan SE
    {73683, 11455, -424, 11906, 429}, // Indonesia - Kalimantan E
    {190511, 0, 0, 0, 0}, // Sudan - south
    {14619, 10931, 85, 11961, 767}, // Asia - Brunei and East Malaysia
    {196026, 5156, 2263, 5603, 2534}, // UAE - Abu Dhabi and Dubai - onshore
    {15287, 12283, 2037, 15405, 4554}, // Asia - Japan and Korea
    {6743, -295, 3199, 909, 3714}, // Algeria - north of 32°N
    {5023, -1317, 1898, 1199, 3734}, // Africa - Algeria, Morocco and Tunisia
    {30397, -9516, 4167, -7435, 5690}, // Canada - Ontario
    {30700, -7985, 4499, -5710, 6262}, // Canada - Quebec
    {52894, 684, 4742, 823, 4907}, // France - Alsace
    {198524, -8848, 3014, -8489, 3502}, // USA - Alabama
    {198877, -11481, 3133, -10904, 3701}, // USA - Arizona
    {198979, -9462, 3301, -8964, 3650}, // USA - Arkansas
    {199114, -12445, 3253, -11412, 4201}, // USA - California
    {199282, -10906, 3698, -10204, 4101}, // USA - Colorado
    {199322, -7373, 4098, -7178, 4205}, // USA - Connecticut
    {199332, -7580, 3844, -7497, 3985}, // USA - Delaware
    {199358, -8763, 2441, -7997, 3101}, // USA - Florida
    {199395, -8561, 3036, -8077, 3501}, // USA - Georgia
    {199692, -11724, 4199, -11104, 4901}, // USA - Idaho
    {199764, -9152, 3698, -8702, 4251}, // USA - Illinois
    {199796, -8806, 3777, -8478, 4177}, // USA - Indiana
    {200606, -9665, 4037, -9014, 4351}, // USA - Iowa
    {200842, -10206, 3699, -9458, 4001}, // USA - Kansas
    {201124, -8957, 3649, -8195, 3915}, // USA - Kentucky
    {201159, -9405, 2885, -8875, 3303}, // USA - Louisiana
    {201197, -7109, 4304, -6691, 4747}, // USA - Maine
    {201254, -7949, 3797, -7497, 3973}, // USA - Maryland
    {201297, -9042, 4169, -8213, 4832}, // USA - Michigan
    {201382, -9722, 4349, -8949, 4938}, // USA - Minnesota
    {201423, -9165, 3001, -8809, 3501}, // USA - Mississippi
    {201464, -9577, 3598, -8910, 4061}, // USA - Missouri
    {201508, -11607, 4435, -10404, 4901}, // USA - Montana
    {201714, -10406, 3999, -9530, 4301}, // USA - Nebraska
    {201746, -12000, 3499, -11403, 4200}, // USA - Nevada
    {201843, -7256, 4269, -7063, 4531}, // USA - New Hampshire
    {201853, -7560, 3887, -7388, 4136}, // USA - New Jersey
    {201861, -10906, 3133, -10299, 3700}, // USA - New Mexico
    {201937, -7977, 4047, -7180, 4502}, // USA - New York
    {201992, -8433, 3383, -7538, 3659}, // USA - North Carolina
    {202000, -10407, 4593, -9655, 4901}, // USA - North Dakota
    {202030, -8483, 3840, -8051, 4233}, // USA - Ohio
    {202056, -10300, 3362, -9442, 3701}, // USA - Oklahoma
    {202086, -12460, 4198, -11647, 4626}, // USA - Oregon
    {202712, -8053, 3971, -7470, 4253}, // USA - Pennsylvania
    {202752, -7185, 4113, -7108, 4202}, // USA - Rhode Island
    {202760, -8336, 3205, -7852, 3521}, // USA - South Carolina
    {202792, -10407, 4248, -9643, 4595}, // USA - South Dakota
    {202822, -9031, 3498, -8165, 3668}, // USA - Tennessee
    {202831, -10666, 2583, -9350, 3650}, // USA - Texas
    {202936, -11405, 3699, -10904, 4201}, // USA - Utah
    {202968, -7344, 4272, -7150, 4503}, // USA - Vermont
    {202975, -8368, 3654, -7531, 3946}, // USA - Virginia
    {203057, -8265, 3720, -7772, 4064}, // USA - West Virginia
    {203091, -9289, 4248, -8625, 4731}, // USA - Wisconsin
    {204081, -11106, 4099, -10405, 4501}, // USA - Wyoming
    {30891, -5700, 4660, -5400, 5376}, // Canada - Quebec - east of 57°W
    {30711, -6000, 5010, -5710, 5200}, // Canada - Quebec - 60°W to 57°W
    {30729, -6300, 4716, -6000, 5201}, // Canada - Quebec - 63°W to 60°W
    {30765, -6600, 4795, -6300, 6042}, // Canada - Quebec - 66°W to 63°W
    {30783, -6900, 4731, -6600, 5900}, // Canada - Quebec - 69°W to 66°W
    {30819, -7200, 4501, -6900, 6180}, // Canada - Quebec - 72°W to 69°W
    {30837, -7500, 4499, -7200, 6253}, // Canada - Quebec - 75°W to 72°W
    {30873, -7800, 4537, -7500, 6262}, // Canada - Quebec - 78°W to 75°W
    {30927, -7985, 4623, -7800, 6245}, // Canada - Quebec - west of 78°W
    {30595, -7500, 4498, -7435, 4565}, // Canada - Ontario - east of 75°W
    {30407, -7800, 4363, -7500, 4625}, // Canada - Ontario - 78°W to 75°W
    {30515, -8100, 4226, -7799, 4733}, // Canada - Ontario - MTM zone 10
    {30531, -8360, 4167, -8100, 4600}, // Canada - Ontario - MTM zone 11
    {30547, -8250, 4600, -7950, 5521}, // Canada - Ontario - MTM zone 12
    {30563, -8550, 4600, -8250, 5559}, // Canada - Ontario - MTM zone 13
    {30441, -8850, 4717, -8550, 5670}, // Canada - Ontario - 88.5°W to 85.5°W
    {30477, -9150, 4797, -8850, 5690}, // Canada - Ontario - 91.5°W to 88.5°W
    {30496, -9450, 4806, -9150, 5520}, // Canada - Ontario - 94.5°W to 91.5°W
    {30646, -9516, 4869, -9450, 5324}, // Canada - Ontario - west of 94.5°W
    {30629, -9516, 4803, -9000, 5620}, // Canada - Ontario - west of 90°W
    {30460, -9000, 4611, -8400, 5690}, // Canada - Ontario - 90°W to 84°W
    {30424, -8400, 4167, -7800, 5537}, // Canada - Ontario - 84°W to 78°W
    {30612, -7800, 4363, -7435, 4625}, // Canada - Ontario - east of 78°W
    {30855, -7800, 4499, -7200, 6262}, // Canada - Quebec - 78°W to 72°W
    {30801, -7200, 4501, -6600, 6180}, // Canada - Quebec - 72°W to 66°W
    {30747, -6600, 4716, -6000, 6042}, // Canada - Quebec - 66°W to 60°W
    {30909, -6000, 5020, -5710, 5201}, // Canada - Quebec - east of 60°W
    {30247, -6905, 4456, -6370, 4807}, // Canada - New Brunswick
    {29786, -7200, 4460, -6600, 6150}, // Canada - 72°W to 66°W, south of 62°N
    {29756, -6600, 4320, -6000, 6000}, // Canada - 66°W to 60°W, south of 60°N
    {37136, -600, 492, -248, 1046}, // Cote d'Ivoire (Ivory Coast) - east of 6°W
    {37189, -861, 429, -600, 1074}, // Cote d'Ivoire (Ivory Coast) - west of 6°W
    {209012, 10214, 833, 10800, 2340}, // Vietnam - west of 108°E onshore
    {208929, 10800, 1043, 10953, 2156}, // Vietnam - east of 108°E onshore
    {133037, 1435, -2315, 1460, -2268}, // Namibia - Walvis Bay
    {186751, 1645, -3310, 1800, -2803}, // South Africa - west of 18°E
    {186604, 1799, -3488, 2000, -2838}, // South Africa - 18°E to 20°E
    {186615, 1999, -3488, 2201, -2476}, // South Africa - 20°E to 22°E
    {186626, 2200, -3426, 2401, -2526}, // South Africa - 22°E to 24°E
    {186638, 2400, -3426, 2601, -2471}, // South Africa - 24°E to 26°E
    {186650, 2600, -3383, 2800, -2292}, // South Africa - 26°E to 28°E
    {186662, 2799, -3303, 3001, -2213}, // South Africa - 28°E to 30°E
    {186674, 2999, -3138, 3202, -2222}, // South Africa - 30°E to 32°E
    {186714, 3195, -2894, 3295, -2680}, // South Africa - east of 32°E
    {75048, 4403, 3099, 4800, 3978}, // Iran - west of 48°E
    {74888, 4800, 2547, 5400, 3971}, // Iran - 48°E to 54°E
    {74899, 5400, 2532, 6000, 3829}, // Iran - 54°E to 60°E
    {75036, 6000, 2502, 6334, 3706}, // Iran - east of 60°E onshore
    {66003, -1513, 901, -1200, 1268}, // Guinea - west of 12°W
    {65984, -1200, 719, -765, 1251}, // Guinea - east of 12°W
    {85736, 931, 2537, 1001, 3049}, // Libya - west of 10°E
    {85505, 1000, 2351, 1200, 3323}, // Libya - 10°E to 12°E onshore
    {85516, 1200, 2280, 1400, 3306}, // Libya - 12°E to 14°E onshore
    {85551, 1400, 2261, 1600, 3279}, // Libya - 14°E to 16°E onshore
    {85563, 1600, 2251, 1801, 3134}, // Libya - 16°E to 18°E onshore
    {85575, 1800, 2154, 2000, 3217}, // Libya - 18°E to 20°E onshore
    {85612, 2000, 2054, 2200, 3300}, // Libya - 20°E to 22°E onshore
    {85624, 2200, 1950, 2400, 3297}, // Libya - 22°E to 24°E onshore
    {85716, 2400, 1999, 2521, 3215}, // Libya - east of 24°E onshore
    {85759, 931, 2351, 1200, 3323}, // Libya - west of 12°E onshore
    {85539, 1200, 2251, 1801, 3306}, // Libya - 12°E to 18°E onshore
    {85599, 1799, 1950, 2400, 3300}, // Libya - 18°E to 24°E onshore
    {85772, 931, 2261, 1500, 3323}, // Libya - west of 15°E onshore
    {13745, -7051, -4341, -6749, -3191}, // Argentina - Mendoza and Neuquen 70.5°W to 67.5°W
    {13430, -7050, -5034, -6749, -4249}, // Argentina - 42.5°S to 50.3°S and 70.5°W to 67.5°W
    {13906, -6864, -5490, -6750, -5259}, // Argentina - Tierra del Fuego onshore west of 67.5°W
    {37495, -8501, 2138, -7691, 2325}, // Cuba - onshore north of 21°30'N
    {37513, -7869, 1977, -7407, 2150}, // Cuba - onshore south of 21°30'N
    {195723, 781, 3322, 1367, 3841}, // Tunisia - offshore
    {229689, 4200, 1157, 4801, 1795}, // Yemen - 42°E to 48°E
    {229700, 4800, 945, 5401, 1900}, // Yemen - 48°E to 54°E
    {229746, 4337, 1254, 4801, 1795}, // Yemen - South Yemen - mainland west of 48°E
    {229725, 4800, 1394, 5314, 1900}, // Yemen - South Yemen - mainland east of 48°E
    {208973, 10549, 903, 10758, 1104}, // Vietnam - onshore Vung Tau area
    {208943, 10654, 799, 11000, 1115}, // Vietnam - offshore Cuu Long basin
    {82797, 12800, 3449, 12965, 3864}, // Korea, Republic of (South Korea) - east of 128°E onshore
    {82735, 12600, 3314, 12800, 3833}, // Korea, Republic of (South Korea) - 126°E to 128°E onshore
    {82634, 12453, 3399, 12600, 3804}, // Korea, Republic of (South Korea) - 124°E to 126°E onshore
    {208187, -7150, 1000, -7117, 1051}, // Venezuela - Maracaibo - blocks I II and III
    {136026, 17199, -4167, 17863, -3410}, // New Zealand - North Island
    {136767, 16200, -5589, 16800, -3968}, // New Zealand - offshore 162°E to168°E
    {136789, 16800, -5595, 17400, -3078}, // New Zealand - offshore 168°E to 174°E
    {136808, 17400, -5432, 18000, -2642}, // New Zealand - offshore 174°E to 180°E
    {64468, -379, 140, 210, 606}, // Ghana - offshore
    {29567, -10800, 4900, -10200, 6000}, // Canada - 108°W to 102°W, south of 60°N
    {29597, -11400, 4900, -10800, 6000}, // Canada - 114°W to 108°W, south of 60°N
    {29627, -12000, 4900, -11400, 6000}, // Canada - 120°W to 114°W, south of 60°N
    {185381, -1335, 715, -1200, 994}, // Sierra Leone - west of 12°W
    {185354, -1200, 688, -1026, 1000}, // Sierra Leone - east of 12°W
    {199016, 16765, 1492, -6388, 7471}, // USA - CONUS and Alaska; PRVI
    {63982, 992, 5035, 1050, 5156}, // Germany - East Germany - west of 10.5°E
    {47750, 1050, 4897, 1350, 5474}, // Europe - 10.5°E to 13.5°E onshore by country
    {47916, 1350, 4654, 1650, 5472}, // Europe - 13.5°E to 16.5°E onshore and S-42(83) by country
    {150582, 1800, 4900, 2415, 5234}, // Poland - zone I
    {150589, 1900, 5133, 2395, 5451}, // Poland - zone II
    {150597, 1414, 5216, 2000, 5489}, // Poland - zone III
    {150606, 1414, 4939, 1909, 5334}, // Poland - zone IV
    {150614, 1833, 4939, 1967, 5134}, // Poland - zone V
    {150570, 1414, 5026, 1650, 5535}, // Poland - west of 16.5°E
    {150528, 1650, 4939, 1950, 5593}, // Poland - 16.5°E to 19.5°E
    {150540, 1950, 4909, 2250, 5455}, // Poland - 19.5°E to 22.5°E
    {150552, 2250, 4900, 2415, 5441}, // Poland - east of 22.5°E
    {195871, 2562, 3650, 2850, 4211}, // Turkey - west of 28.5°E onshore
    {195777, 2850, 3606, 3150, 4146}, // Turkey - 28.5°E to 31.5°E onshore
    {195793, 3150, 3597, 3450, 4207}, // Turkey - 31.5°E to 34.5°E onshore
    {195809, 3450, 3581, 3750, 4215}, // Turkey - 34.5°E to 37.5°E onshore
    {195825, 3750, 3666, 4050, 4119}, // Turkey - 37.5°E to 40.5°E onshore
    {195841, 4050, 3702, 4350, 4160}, // Turkey - 40.5°E to 43.5°E onshore
    {195857, 4350, 3697, 4483, 4102}, // Turkey - east of 43.5°E
    {30179, -6900, 4364, -6600, 4807}, // Canada - Maritime Provinces - west of 66°W
    {30154, -6600, 4341, -5973, 4798}, // Canada - Maritime Provinces - east of 66°W
    {30683, -6449, 4590, -6190, 4709}, // Canada - Prince Edward Island
    {30359, -6300, 4464, -5973, 4708}, // Canada - Nova Scotia - east of 63°W
    {30378, -6628, 4341, -6300, 4602}, // Canada - Nova Scotia - west of 63°W
    {51445, 1950, 5976, 2250, 6933}, // Finland - 19.5°E to 22.5°E onshore
    {51558, 2250, 5975, 2550, 6890}, // Finland - 22.5°E to 25.5°E onshore
    {51674, 2550, 6018, 2851, 7009}, // Finland - 25.5°E to 28.5°E onshore
    {51783, 2850, 6094, 3150, 6981}, // Finland - 28.5°E to 31.5°E
    {97125, 3021, -2687, 3600, -1141}, // Mozambique - onshore west of 36°E
    {97107, 3599, -1898, 4090, -1042}, // Mozambique - onshore east of 36°E
    {14719, 10214, 833, 10800, 2340}, // Asia - Cambodia and Vietnam - west of 108°E
    {17665, 1358, 4664, 1617, 4784}, // Austria - Styria
    {143810, 5199, 1659, 5400, 1967}, // Oman - onshore west of 54°E
    {143797, 5400, 1689, 5991, 2658}, // Oman - onshore east of 54°E
    {199645, -15610, 1887, -15474, 2033}, // USA - Hawaii - island of Hawaii - onshore
    {199552, -15736, 2045, -15593, 2126}, // USA - Hawaii - Maui; Kahoolawe; Lanai; Molokai - onshore
    {199607, -15833, 2120, -15761, 2175}, // USA - Hawaii - Oahu - onshore
    {199536, -15985, 2181, -15923, 2229}, // USA - Hawaii - Kauai - onshore
    {199590, -16030, 2173, -15999, 2207}, // USA - Hawaii - Niihau - onshore
    {65656, -6184, 1194, -6135, 1257}, // Grenada and southern Grenadines - onshore
    {5335, 3600, 340, 4200, 2201}, // Africa - Eritrea, Ethiopia and Sudan - 36°E to 42°E
    {47702, 4200, 411, 4799, 1285}, // Ethiopia - east of 42°E
    {186569, 4200, 0, 4800, 1152}, // Somalia - 42°E to 48°E, N hemisphere onshore
    {186591, 4800, 444, 5147, 1203}, // Somalia - onshore east of 48°E
    {16232, 10200, -5600, 10800, -1000}, // Australia - 102°E to 108°E
    {16244, 10923, -3784, 11400, -1719}, // Australia - 108°E to 114°E (EEZ)
    {16272, 11400, -3853, 12000, -1261}, // Australia - 114°E to 120°E (EEZ)
    {16288, 12000, -3807, 12601, -1046}, // Australia - 120°E to 126°E
    {16300, 12599, -3738, 13200, -910}, // Australia - 126°E to 132°E
    {16313, 13200, -4071, 13801, -888}, // Australia - 132°E to 138°E
    {16326, 13800, -4819, 14401, -908}, // Australia - 138°E to 144°E
    {16339, 14400, -5089, 15001, -923}, // Australia - 144°E to 150°E
    {16352, 15000, -5896, 15600, -1387}, // Australia - 150°E to 156°E
    {16365, 15600, -3513, 16201, -1408}, // Australia - 156°E to 162°E
    {16453, 16200, -3422, 16320, -2725}, // Australia - EEZ east of 162°E
    {16138, 13800, -4663, 14401, -253}, // Australasia - Australia and PNG - 138°E to 144°E
    {16162, 14400, -4720, 15001, -130}, // Australasia - Australia and PNG - 144°E to 150°E
    {184357, 3600, 1659, 4200, 3216}, // Saudi Arabia - onshore 36°E to 42°E
    {15758, 4799, 1794, 5401, 3004}, // Asia - Middle East - Kuwait and Saudi - 48°E to 54°E
    {15726, 4200, 1637, 4801, 3115}, // Asia - Middle East - Kuwait and Saudi - 42°E to 48°E
    {24462, -5338, -3571, -4799, -2501}, // Brazil - 54°W to 48°W and Aratu
    {24384, -4801, -3350, -4199, 0}, // Brazil - 48°W to 42°W and Aratu
    {24303, -4201, -2635, -3600, 1}, // Brazil - 42°W to 36°W and Aratu
    {5121, 1999, -2688, 2400, -1086}, // Africa - Botswana and Zambia - west of 24°E
    {5251, 2400, -2584, 3000, -831}, // Africa - Botswana, Zambia and Zimbabwe - 24°E to 30°E
    {5528, 3000, -2242, 3593, -819}, // Africa - Malawi, Zambia and Zimbabwe - east of 30°E
    {204356, 2971, 0, 3000, 86}, // Uganda - north of equator and west of 30°E
    {5645, 2934, -681, 3000, 0}, // Africa - Tanzania and Uganda - south of equator and west of 30°E
    {5463, 2999, 0, 3600, 463}, // Africa - Kenya and Uganda - north of equator and 30°E to 36°E
    {5493, 2999, -1161, 3600, 1}, // Africa - Kenya, Tanzania and Uganda - south of equator and 30°E to 36°E
    {81605, 3600, 0, 4191, 449}, // Kenya - north of equator and east of 36°E
    {5433, 3600, -1175, 4160, 0}, // Africa - Kenya and Tanzania - south of equator and east of 36°E
    {73597, 10506, -779, 10800, -407}, // Indonesia - Java and Java Sea - west of 108°E
    {73574, 11400, -891, 11701, -533}, // Indonesia - Java and Java Sea - east of 114°E
    {73551, 10800, -867, 11400, -427}, // Indonesia - Java and Java Sea - 108°E to 114°E
    {33224, 7362, 3542, 7801, 4107}, // China - west of 78°E
    {32929, 7798, 2916, 8400, 4723}, // China - 78°E to 84°E
    {32966, 8400, 2732, 9000, 4918}, // China - 84°E to 90°E
    {33003, 9000, 2771, 9601, 4790}, // China - 90°E to 96°E
    {33040, 9600, 2113, 10201, 4318}, // China - 96°E to 102°E
    {32673, 10200, 2153, 10800, 4247}, // China - 102°E to 108°E onshore
    {32723, 10800, 1811, 11400, 4511}, // China - 108°E to 114°E onshore
    {32773, 11400, 2214, 12000, 5152}, // China - 114°E to 120°E onshore
    {32823, 12000, 2634, 12600, 5356}, // China - 120°E to 126°E onshore
    {32876, 12600, 4089, 13200, 5279}, // China - 126°E to 132°E onshore
    {33127, 13200, 4502, 13477, 4840}, // China - east of 132°E
    {34775, -7910, 3, -7558, 1021}, // Colombia - west of 75°35'W
    {34142, -7559, -251, -7258, 1182}, // Colombia - 75°35'W to 72°35'W
    {34121, -7259, -423, -6958, 1252}, // Colombia - 72°35'W to 69°35'W
    {34687, -6959, -225, -6687, 631}, // Colombia - east of 69°35'W
    {34759, 0, 0, 0, 0}, // Colombia - offshore west of 78°W
    {34735, -7737, 790, -7200, 1368}, // Colombia - offshore Caribbean west of 72°W
    {7271, 820, -1726, 1386, -601}, // Angola - Angola proper - offshore
    {7359, 1083, -659, 1167, -603}, // Angola - offshore block 15
    {7292, 820, -1726, 1200, -603}, // Angola - Angola proper - offshore - west of 12°E
    {7249, 1200, -1744, 1800, -582}, // Angola - Angola proper - 12°E to 18°E
    {14051, -7359, -5200, -7050, -3616}, // Argentina - west of 70.5°W
    {13648, -7050, -5490, -6749, -2408}, // Argentina - 70.5°W to 67.5°W onshore
    {13611, -6750, -5511, -6449, -2178}, // Argentina - 67.5°W to 64.5°W onshore
    {13574, -6450, -5491, -6150, -2199}, // Argentina - 64.5°W to 61.5°W onshore
    {13537, -6151, -3906, -5850, -2337}, // Argentina - 61.5°W to 58.5°W onshore
    {13521, -5850, -3859, -5549, -2484}, // Argentina - 58.5°W to 55.5°W onshore
    {13935, -5550, -2811, -5365, -2549}, // Argentina - east of 55.5°W onshore
    {24244, 1999, -2688, 2400, -1799}, // Botswana - west of 24°E
    {24219, 2100, -2688, 2700, -1778}, // Botswana - 21°E to 27°E
    {24231, 2400, -2584, 2938, -1778}, // Botswana - east of 24°E
    {195733, 749, 3023, 1159, 3740}, // Tunisia - onshore
    {195706, 818, 3465, 1137, 3740}, // Tunisia - north of 34°39'N
    {195740, 749, 3023, 1159, 3466}, // Tunisia - south of 34°39'N
    {15790, 3504, 3231, 4238, 3730}, // Asia - Middle East - Lebanon and Syria onshore
    {64226, 586, 4911, 750, 5381}, // Germany - West Germany - west of 7.5°E
    {64312, 750, 4727, 1051, 5509}, // Germany - West-Germany - 7.5°E to 10.5°E
    {64183, 1050, 4739, 1351, 5459}, // Germany - West Germany - 10.5°E to 13.5°E
    {64204, 1350, 4851, 1384, 4898}, // Germany - West Germany - east of 13.5°E
    {64438, 0, 0, 0, 0}, // Germany - west of 4.5°E
    {197813, -505, 5103, 340, 6203}, // UK - offshore - North Sea
    {133431, 253, 5145, 641, 5577}, // Netherlands - offshore
    {48085, -1610, 4843, -1200, 5657}, // Europe - 18°W to 12°W and ED50 by country
    {47852, -1200, 3613, -600, 6241}, // Europe - 12°W to 6°W and ED50 by country
    {48572, -600, 3526, 1, 8049}, // Europe - 6°W to 0°W and ED50 by country
    {47715, 0, 3856, 601, 8245}, // Europe - 0°E to 6°E and ED50 by country
    {48518, 599, 3653, 1201, 8433}, // Europe - 6°E to 12°E and ED50 by country
    {47766, 1200, 3449, 1801, 8442}, // Europe - 12°E to 18°E and ED50 by country
    {47995, 1799, 3359, 2401, 8454}, // Europe - 18°E to 24°E and ED50 by country
    {48232, 2400, 2571, 3001, 8473}, // Europe - 24°E to 30°E and ED50 by country
    {48365, 3000, 2919, 3600, 8470}, // Europe - 30°E to 36°E and ED50 by country
    {48416, 3600, 2918, 4200, 7907}, // Europe - 36°E to 42°E and ED50 by country
    {48467, 4200, 3697, 4483, 4160}, // Europe - 42°E to 48°E and ED50 by country
    {46918, 3300, 2197, 3695, 3136}, // Egypt - east of 33°E onshore
    {46871, 2900, 2199, 3427, 3382}, // Egypt - 29°E to 33°E
    {46940, 2470, 2818, 2900, 3168}, // Egypt - west of 29°E; north of 28°11'N
    {46965, 2499, 2199, 2901, 2819}, // Egypt - west of 29°E; south of 28°11'N
    {48725, 1902, 5389, 2824, 6000}, // Europe - Estonia; Latvia; Lithuania
    {73837, 9201, 0, 9600, 779}, // Indonesia - west of 96°E, N hemisphere
    {73852, 0, 0, 0, 0}, // Indonesia - west of 96°E, S hemisphere
    {73380, 9600, 0, 10200, 749}, // Indonesia - 96°E to 102°E, N hemisphere
    {73411, 9600, -886, 10200, 0}, // Indonesia - 96°E to 102°E, S hemisphere
    {72885, 10200, 0, 10800, 694}, // Indonesia - 102°E to 108°E, N hemisphere
    {72916, 10200, -1073, 10801, 0}, // Indonesia - 102°E to 108°E, S hemisphere
    {72971, 10800, 0, 11400, 737}, // Indonesia - 108°E to 114°E, N hemisphere
    {73002, 10800, -1207, 11400, 0}, // Indonesia - 108°E to 114°E, S hemisphere
    {73057, 11400, 0, 12000, 437}, // Indonesia - 114°E to 120°E, N hemisphere
    {73086, 11400, -1306, 12001, 0}, // Indonesia - 114°E to 120°E, S hemisphere
    {73138, 12000, 0, 12600, 548}, // Indonesia - 120°E to 126°E, N hemisphere
    {73169, 12000, -1395, 12601, 1}, // Indonesia - 120°E to 126°E, S hemisphere
    {73226, 12600, 0, 13200, 668}, // Indonesia - 126°E to 132°E, N hemisphere
    {73259, 12600, -945, 13200, 0}, // Indonesia - 126°E to 132°E, S hemisphere
    {73318, 0, 0, 0, 0}, // Indonesia - 132°E to 138°E, N hemisphere
    {73334, 13200, -1006, 13801, 0}, // Indonesia - 132°E to 138°E, S hemisphere
    {73786, 13800, -1084, 14146, 0}, // Indonesia - east of 138°E, S hemisphere
    {97368, 9220, 1566, 9601, 2714}, // Myanmar (Burma) - onshore west of 96°E
    {15871, 9599, 563, 10201, 2855}, // Asia - Myanmar and Thailand - 96°E to 102°E
    {194120, 10200, 602, 10564, 1844}, // Thailand - east of 102°E
    {194141, 9734, 563, 10201, 2046}, // Thailand - onshore and GoT 96°E to102°E
    {148073, 7118, 3558, 7701, 3707}, // Pakistan - north of 35°35'N
    {15225, 6086, 2800, 8164, 3559}, // Asia - India; Pakistan - 28°N to 35°35'N
    {15253, 6159, 2100, 8201, 2801}, // Asia - India; Pakistan - onshore 21°N to 28°N and west of 82°E
    {14583, 8200, 2100, 10117, 2947}, // Asia - Bangladesh; India; Myanmar; Pakistan - zone Ilb
    {72285, 7014, 1500, 8715, 2101}, // India - onshore 15°N to 21°N
    {72250, 7394, 802, 8040, 1501}, // India - mainland south of 15°N
    {19601, 8801, 2159, 9000, 2664}, // Bangladesh - onshore west of 90°E
    {19584, 9000, 2052, 9267, 2529}, // Bangladesh - onshore east of 90°E
    {72265, 7035, 2800, 8164, 3551}, // India - north of 28°N
    {72299, 6813, 2100, 8201, 2801}, // India - onshore 21°N to 28°N and west of 82°E
    {72342, 8200, 2100, 9742, 2947}, // India - onshore north of 21°N and east of 82°E
    {72362, 6813, 2064, 7201, 2822}, // India - onshore west of 72°E
    {72222, 7200, 802, 7801, 3551}, // India - mainland 72°E to 78°E
    {72320, 7800, 829, 8401, 3550}, // India - onshore 78°E to 84°E
    {72331, 8400, 1818, 9001, 2814}, // India - onshore 84°E to 90°E
    {72236, 9000, 2194, 9601, 2942}, // India - mainland 90°E to 96°E
    {72206, 9600, 2710, 9742, 2947}, // India - east of 96°E
    {15233, 6086, 2800, 7783, 3559}, // Pakistan - 28°N to 35°35'N
    {148122, 6159, 2364, 7191, 2801}, // Pakistan - onshore south of 28°N
    {148139, 6086, 2498, 6601, 2987}, // Pakistan - onshore west of 66°E
    {148106, 6600, 2364, 7201, 3656}, // Pakistan - onshore 66°E to 72°E
    {148059, 7200, 2821, 7783, 3707}, // Pakistan - east of 72°E
    {91883, 9959, 121, 10460, 672}, // Malaysia - West Malaysia - onshore
    {91899, 9959, 229, 10201, 672}, // Malaysia - West Malaysia - onshore west of 102°E
    {91862, 10200, 121, 10582, 781}, // Malaysia - West Malaysia - east of 102°E
    {208305, -7338, 702, -7199, 1162}, // Venezuela - west of 72°W
    {208151, -7200, 73, -6600, 1225}, // Venezuela - 72°W and 66°W onshore
    {208263, -6600, 64, -5980, 1123}, // Venezuela - east of 66°W onshore
    {63236, 925, 0, 1200, 232}, // Gabon - north of equator and west of 12°E onshore
    {63266, 703, -637, 1201, 232}, // Gabon - west of 12°E
    {149852, 11604, 621, 11800, 1864}, // Philippines - zone I
    {149877, 11800, 302, 12007, 2042}, // Philippines - zone II
    {149904, 11970, 300, 12221, 2162}, // Philippines - zone III
    {149933, 12174, 344, 12429, 2218}, // Philippines - zone IV
    {149960, 12373, 476, 12665, 2197}, // Philippines - zone V
    {96825, -985, 3149, -101, 3597}, // Morocco - north of 31.5°N
    {96851, -1700, 2106, -867, 2790}, // Morocco - south of 27.9°N
    {17691, 953, 4677, 1184, 4761}, // Austria - west of 11°50'E
    {17646, 1183, 4640, 1484, 4879}, // Austria - 11°50'E to 14°50'E
    {17676, 1483, 4656, 1717, 4902}, // Austria - east of 14°50'E
    {49433, 1338, 4295, 1650, 4688}, // Europe - former Yugoslavia onshore west of 16.5°E
    {49346, 1650, 4179, 1951, 4655}, // Europe - former Yugoslavia onshore 16.5°E to 19.5°E
    {49375, 1950, 4185, 2251, 4619}, // Europe - former Yugoslavia onshore 19.5°E to 22.5°E
    {49404, 2250, 4111, 2304, 4470}, // Europe - former Yugoslavia onshore east of 22.5°E
    {137608, 1049, 643, 1465, 1372}, // Nigeria - east of 10.5°E
    {137557, 650, 357, 1051, 1353}, // Nigeria - 6.5°E to 10.5°E
    {137894, 269, 357, 650, 1390}, // Nigeria - west of 6.5°E
    {137862, 266, 192, 600, 614}, // Nigeria - offshore deep water - west of 6°E
    {137820, 266, 192, 782, 614}, // Nigeria - offshore deep water
    {75905, 593, 3653, 1200, 4704}, // Italy - west of 12°E
    {75831, 1200, 3476, 1899, 4710}, // Italy - east of 12°E
    {201317, -8487, 4169, -8213, 4604}, // USA - Michigan - SPCS - E
    {201365, -8761, 4175, -8460, 4611}, // USA - Michigan - SPCS - old central
    {201329, -9042, 4508, -8344, 4832}, // USA - Michigan - SPCS - N
    {201305, -8706, 4380, -8227, 4592}, // USA - Michigan - SPCS - C
    {201341, -8720, 4169, -8213, 4422}, // USA - Michigan - SPCS - S
    {97082, 3264, -2771, 4303, -1009}, // Mozambique - offshore
    {190635, -5725, 534, -5266, 935}, // Suriname - offshore
    {6757, -222, 3464, 864, 3714}, // Algeria - north of 34°39'N
    {6566, -385, 3149, 922, 3466}, // Algeria - 31°30'N to 34°39'N
    {53104, -487, 4814, 823, 5114}, // France - mainland north of 48.15°N
    {53038, -480, 4544, 763, 4815}, // France - mainland 45.45°N to 48.15°N
    {53198, -179, 4233, 771, 4546}, // France - mainland south of 45.45°N
    {53064, -487, 4233, 823, 5114}, // France - mainland 45.45°N to 48.15°N. Also all mainland.
    {6781, -867, 2573, -600, 2985}, // Algeria - west of 6°W
    {83586, 4654, 2853, 4800, 3009}, // Kuwait - west of 48°E onshore
    {83529, 4800, 2854, 4848, 3004}, // Kuwait - east of 48°E onshore
    {140064, 468, 5793, 723, 6306}, // Norway - zone I
    {140072, 722, 5795, 956, 6387}, // Norway - zone II
    {140081, 955, 5884, 1198, 6576}, // Norway - zone III
    {140091, 1197, 5988, 1506, 6906}, // Norway - zone IV
    {140100, 1505, 6615, 1889, 7019}, // Norway - zone V
    {140108, 1888, 6833, 2289, 7081}, // Norway - zone VI
    {140117, 2288, 6858, 2698, 7121}, // Norway - zone VII
    {140127, 2697, 6902, 3122, 7117}, // Norway - zone VIII
    {15839, 5055, 2276, 5401, 2705}, // Asia - Middle East - Qatar offshore and UAE west of 54°E
    {196147, 5400, 2263, 5713, 2627}, // UAE - east of 54°E
    {149524, -7300, -1839, -6867, -214}, // Peru - east of 73°W
    {149491, -7900, -1657, -7300, -3}, // Peru - 79°W to 73°W
    {149541, -8141, -832, -7900, -338}, // Peru - west of 79°W
    {24550, -5164, -105, -4800, 560}, // Brazil - Amazon cone shelf
    {187931, -8141, -1053, -7800, 0}, // South America - 84°W to 78°W, S hemisphere and PSAD56 by country
    {187694, -7800, 0, -7199, 1162}, // South America - 78°W to 72°W, N hemisphere and PSAD56 by country
    {187740, -7800, -4350, -7199, 0}, // South America - 78°W to 72°W, S hemisphere and PSAD56 by country
    {187526, -7200, 73, -6600, 1268}, // South America - 72°W to 66°W, N hemisphere and PSAD56 by country
    {187610, -7200, -4350, -6600, -214}, // South America - 72°W to 66°W, S hemisphere and PSAD56 by country
    {187369, -6600, 64, -5999, 1123}, // South America - 66°W to 60°W, N hemisphere and PSAD56 by country
    {24047, -6600, -2287, -6000, -967}, // Bolivia - 66°W to 60°W
    {187212, -6000, 118, -5647, 858}, // South America - 60°W to 54°W, N hemisphere and PSAD56 by country
    {174950, 1957, 5432, 2287, 5532}, // Russia - west of 24°E onshore
    {174400, 2661, 5569, 3000, 6947}, // Russia - 24°E to 30°E onshore
    {174440, 3000, 5034, 3600, 7002}, // Russia - 30°E to 36°E onshore
    {174480, 3600, 4318, 4201, 6923}, // Russia - 36°E to 42°E onshore
    {174520, 4200, 4119, 4800, 8091}, // Russia - 42°E to 48°E onshore
    {174560, 4800, 4139, 5400, 8140}, // Russia - 48°E to 54°E onshore
    {174600, 5400, 5047, 6000, 8191}, // Russia - 54°E to 60°E onshore
    {174640, 6000, 5066, 6600, 8177}, // Russia - 60°E to 66°E onshore
    {174680, 6600, 5410, 7200, 7707}, // Russia - 66°E to 72°E onshore
    {174720, 7200, 5317, 7800, 7971}, // Russia - 72°E to 78°E onshore
    {174760, 7800, 5069, 8400, 8103}, // Russia - 78°E to 84°E onshore
    {174800, 8400, 4907, 9000, 8127}, // Russia - 84°E to 90°E onshore
    {174840, 9000, 4989, 9600, 8135}, // Russia - 90°E to 96°E onshore
    {174880, 9600, 4973, 10200, 8132}, // Russia - 96°E to 102°E onshore
    {173764, 10200, 4964, 10800, 7948}, // Russia - 102°E to 108°E onshore
    {173804, 10800, 4914, 11400, 7681}, // Russia - 108°E to 114°E onshore
    {173844, 11400, 4951, 12000, 7596}, // Russia - 114°E to 120°E onshore
    {173883, 12000, 5151, 12600, 7400}, // Russia - 120°E to 126°E onshore
    {173924, 12600, 4225, 13200, 7361}, // Russia - 126°E to 132°E onshore
    {173966, 13200, 4263, 13800, 7615}, // Russia - 132°E to 138°E onshore
    {174009, 13800, 4584, 14400, 7627}, // Russia - 138°E to 144°E onshore
    {174052, 14400, 4360, 15000, 7682}, // Russia - 144°E to 150°E onshore
    {174095, 15000, 4577, 15600, 7626}, // Russia - 150°E to 156°E onshore
    {174138, 15600, 5027, 16200, 7720}, // Russia - 156°E to 162°E onshore
    {174181, 16200, 5447, 16800, 7003}, // Russia - 162°E to 168°E onshore
    {174224, 16800, 5445, 17400, 7019}, // Russia - 168°E to 174°E onshore
    {174283, 17400, 6165, 18000, 7159}, // Russia - 174°E to 180°E onshore
    {174358, -18000, 6435, -17400, 7165}, // Russia - 180° to 174°W onshore
    {174920, -17400, 6420, -16897, 6718}, // Russia - east of 174°W onshore
    {47803, 1200, 4578, 1800, 5489}, // Europe - 12°E to 18°E onshore and S-42(58) by country
    {48999, 1957, 4795, 2400, 5944}, // Europe - FSU onshore 18°E to 24°E and S-42 by country
    {49025, 2400, 4518, 3001, 6947}, // Europe - FSU onshore 24°E to 30°E and S-42 by country
    {49051, 3000, 4432, 3600, 7002}, // Europe - FSU onshore 30°E to 36°E
    {49069, 3600, 4143, 4200, 6923}, // Europe - FSU onshore 36°E to 42°E
    {49087, 4200, 3884, 4801, 8091}, // Europe - FSU onshore 42°E to 48°E
    {15099, 4800, 3734, 5400, 8140}, // Asia - FSU onshore 48°E to 54°E
    {15115, 5400, 3705, 6000, 8191}, // Asia - FSU onshore 54°E to 60°E
    {15131, 6000, 3514, 6600, 8177}, // Asia - FSU onshore 60°E to 66°E
    {15147, 6600, 3667, 7200, 7707}, // Asia - FSU onshore 66°E to 72°E
    {15163, 7200, 3679, 7800, 7971}, // Asia - FSU onshore 72°E to 78°E
    {15179, 7800, 4104, 8401, 8103}, // Asia - FSU onshore 78°E to 84°E
    {15195, 8400, 4682, 9000, 8127}, // Asia - FSU onshore 84°E to 90°E
    {48553, 993, 5021, 1200, 5418}, // Europe - 6°E to 12°E and Pulkovo by country
    {188149, 0, 0, 0, 0}, // South America - UTM 17S and SAD69 by country
    {188169, 0, 0, 0, 0}, // South America - UTM 18N and SAD69 by country
    {188189, 0, 0, 0, 0}, // South America - UTM 18S and SAD69 by country
    {188209, 0, 0, 0, 0}, // South America - UTM 19N and SAD69 by country
    {188227, 0, 0, 0, 0}, // South America - UTM 19S and SAD69 by country
    {188245, 0, 0, 0, 0}, // South America - UTM 20N and SAD69 by country
    {188264, 0, 0, 0, 0}, // South America - UTM 20S and SAD69 by country
    {188283, 0, 0, 0, 0}, // South America - UTM 21N and SAD69
    {187302, -6000, -3891, -5399, 451}, // South America - 60°W to 54°W, S hemisphere and SAD69 by country
    {187078, -5400, 168, -4665, 581}, // South America - 54°W to 48°W, N hemisphere and SAD69 by country
    {187145, -5400, -3571, -4799, 704}, // South America - 54°W to 48°W, S hemisphere and SAD69 by country
    {24372, -4800, -2630, -4200, 0}, // Brazil - 48°W to 42°W
    {24359, -4200, -2296, -3600, -268}, // Brazil - 42°W to 36°W onshore
    {24262, -3600, -1005, -3000, -515}, // Brazil - 36°W to 30°W
    {50739, -6155, -5233, -5999, -5096}, // Falkland Islands - onshore west of 60°W
    {50722, -6000, -5251, -5760, -5113}, // Falkland Islands - onshore east of 60°W
    {133063, 824, -3064, 1646, -1724}, // Namibia - offshore
    {187888, -8400, 90, -7800, 1551}, // South America - 84°W to 78°W, N hemisphere and SIRGAS95 by country
    {187915, -8400, -5645, -7800, 0}, // South America - 84°W to 78°W, S hemisphere
    {187678, -7800, 0, -7200, 1504}, // South America - 78°W to 72°W, N hemisphere
    {187786, -7800, -5936, -7199, 0}, // South America - 78°W to 72°W, S hemisphere and SIRGAS 1995 by country
    {187510, -7200, 0, -6600, 1564}, // South America - 72°W to 66°W, N hemisphere
    {187594, -7200, -5987, -6600, 0}, // South America - 72°W to 66°W, S hemisphere
    {187353, -6600, 0, -6000, 1675}, // South America - 66°W to 60°W, N hemisphere
    {187443, -6600, -5839, -6000, 0}, // South America - 66°W to 60°W, S hemisphere
    {187196, -6000, 0, -5400, 1070}, // South America - 60°W to 54°W, N hemisphere
    {187286, -6000, -4482, -5400, 0}, // South America - 60°W to 54°W, S hemisphere
    {187062, -5400, 0, -4800, 924}, // South America - 54°W to 48°W, N hemisphere
    {187129, -5400, -3995, -4800, 0}, // South America - 54°W to 48°W, S hemisphere
    {187050, -4800, -3350, -4200, 0}, // South America - 48°W to 42°W
    {187038, -4200, -2635, -3600, 0}, // South America - 42°W to 36°W
    {187026, -3600, -2011, -3000, 0}, // South America - 36°W to 30°W
    {133073, 1166, -1853, 1200, -1715}, // Namibia - west of 12°E
    {132970, 1200, -2190, 1401, -1695}, // Namibia - 12°E to 14°E
    {132981, 1400, -2830, 1600, -1738}, // Namibia - 14°E to 16°E
    {132992, 1599, -2883, 1801, -1738}, // Namibia - 16°E to 18°E
    {133003, 1800, -2897, 2000, -1738}, // Namibia - 18°E to 20°E
    {133014, 1999, -2201, 2200, -1785}, // Namibia - 20°E to 22°E
    {133025, 2199, -1849, 2400, -1752}, // Namibia - 22°E to 24°E
    {133051, 2400, -1818, 2527, -1747}, // Namibia - east of 24°E
    {190534, 0, 0, 0, 0}, // Sudan - south - west of 30°E
    {190519, 0, 0, 0, 0}, // Sudan - south - east of 30°E
    {90934, 4253, -2659, 4800, -1300}, // Madagascar - nearshore - west of 48°E
    {90914, 4800, -2421, 5103, -1169}, // Madagascar - nearshore - east of 48°E
    {196003, 5156, 2276, 5401, 2432}, // UAE - Abu Dhabi - onshore west of 54°E
    {14639, 10931, 85, 11400, 737}, // Asia - Brunei and East Malaysia - 108°E to 114°E
    {14664, 11400, 143, 11961, 767}, // Asia - Brunei and East Malaysia - 114°E to 120°E
    {78037, 12817, 2696, 13046, 3474}, // Japan - zone I
    {78045, 12976, 3018, 13205, 3399}, // Japan - zone II
    {78054, 13081, 3372, 13349, 3638}, // Japan - zone III
    {78064, 13195, 3269, 13481, 3445}, // Japan - zone IV
    {78082, 13313, 3413, 13547, 3571}, // Japan - zone V
    {78090, 13486, 3340, 13699, 3633}, // Japan - zone VI
    {78099, 13622, 3451, 13784, 3758}, // Japan - zone VII
    {78109, 13732, 3454, 13991, 3858}, // Japan - zone VIII
    {78073, 13840, 2931, 14111, 3798}, // Japan - zone IX
    {78120, 13949, 3773, 14214, 4158}, // Japan - zone X
    {78128, 13934, 4134, 14146, 4342}, // Japan - zone XI
    {78137, 14089, 4215, 14361, 4554}, // Japan - zone XII
    {78147, 14261, 4187, 14587, 4440}, // Japan - zone XIII
    {78158, 14120, 2467, 14233, 2780}, // Japan - zone XIV
    {78168, 12663, 2602, 12840, 2691}, // Japan - zone XV
    {78177, 12283, 2398, 12551, 2494}, // Japan - zone XVI
    {78187, 13112, 2440, 13138, 2601}, // Japan - zone XVII
    {78198, 13602, 2037, 13616, 2048}, // Japan - zone XVIII
    {77952, 15391, 2422, 15405, 2435}, // Japan - Minamitori-shima (Marcus Island) - onshore
    {224940, -18000, 0, -17400, 8400}, // World - N hemisphere - 180°W to 174°W
    {226365, -18000, -8000, -17400, 0}, // World - S hemisphere - 180°W to 174°W
    {224914, -17400, 0, -16800, 8400}, // World - N hemisphere - 174°W to 168°W
    {226339, -17400, -8000, -16800, 0}, // World - S hemisphere - 174°W to 168°W
    {224864, -16800, 0, -16200, 8400}, // World - N hemisphere - 168°W to 162°W
    {226289, -16800, -8000, -16200, 0}, // World - S hemisphere - 168°W to 162°W
    {224814, -16200, 0, -15600, 8400}, // World - N hemisphere - 162°W to 156°W
    {226239, -16200, -8000, -15600, 0}, // World - S hemisphere - 162°W to 156°W
    {224764, -15600, 0, -15000, 8400}, // World - N hemisphere - 156°W to 150°W
    {226189, -15600, -8000, -15000, 0}, // World - S hemisphere - 156°W to 150°W
    {224714, -15000, 0, -14400, 8400}, // World - N hemisphere - 150°W to 144°W
    {226139, -15000, -8000, -14400, 0}, // World - S hemisphere - 150°W to 144°W
    {224664, -14400, 0, -13800, 8400}, // World - N hemisphere - 144°W to 138°W
    {226089, -14400, -8000, -13800, 0}, // World - S hemisphere - 144°W to 138°W
    {224614, -13800, 0, -13200, 8400}, // World - N hemisphere - 138°W to 132°W
    {226039, -13800, -8000, -13200, 0}, // World - S hemisphere - 138°W to 132°W
    {224564, -13200, 0, -12600, 8400}, // World - N hemisphere - 132°W to 126°W
    {225989, -13200, -8000, -12600, 0}, // World - S hemisphere - 132°W to 126°W
    {224455, -12600, 0, -12000, 8400}, // World - N hemisphere - 126°W to 120°W
    {225901, -12600, -8000, -12000, 0}, // World - S hemisphere - 126°W to 120°W
    {224409, -12000, 0, -11400, 8400}, // World - N hemisphere - 120°W to 114°W
    {225855, -12000, -8000, -11400, 0}, // World - S hemisphere - 120°W to 114°W
    {224365, -11400, 0, -10800, 8400}, // World - N hemisphere - 114°W to 108°W
    {225811, -11400, -8000, -10800, 0}, // World - S hemisphere - 114°W to 108°W
    {224323, -10800, 0, -10200, 8400}, // World - N hemisphere - 108°W to 102°W
    {225769, -10800, -8000, -10200, 0}, // World - S hemisphere - 108°W to 102°W
    {224257, -10200, 0, -9600, 8400}, // World - N hemisphere - 102°W to 96°W
    {225703, -10200, -8000, -9600, 0}, // World - S hemisphere - 102°W to 96°W
    {225618, -9600, 0, -9000, 8400}, // World - N hemisphere - 96°W to 90°W
    {227021, -9600, -8000, -9000, 0}, // World - S hemisphere - 96°W to 90°W
    {225574, -9000, 0, -8400, 8400}, // World - N hemisphere - 90°W to 84°W
    {226977, -9000, -8000, -8400, 0}, // World - S hemisphere - 90°W to 84°W
    {225530, -8400, 0, -7800, 8400}, // World - N hemisphere - 84°W to 78°W
    {226933, -8400, -8000, -7800, 0}, // World - S hemisphere - 84°W to 78°W
    {225486, -7800, 0, -7200, 8400}, // World - N hemisphere - 78°W to 72°W
    {226889, -7800, -8000, -7200, 0}, // World - S hemisphere - 78°W to 72°W
    {225442, -7200, 0, -6600, 8400}, // World - N hemisphere - 72°W to 66°W
    {226845, -7200, -8000, -6600, 0}, // World - S hemisphere - 72°W to 66°W
    {225362, -6600, 0, -6000, 8400}, // World - N hemisphere - 66°W to 60°W
    {226765, -6600, -8000, -6000, 0}, // World - S hemisphere - 66°W to 60°W
    {225318, -6000, 0, -5400, 8400}, // World - N hemisphere - 60°W to 54°W
    {226721, -6000, -8000, -5400, 0}, // World - S hemisphere - 60°W to 54°W
    {225274, -5400, 0, -4800, 8400}, // World - N hemisphere - 54°W to 48°W
    {226677, -5400, -8000, -4800, 0}, // World - S hemisphere - 54°W to 48°W
    {225230, -4800, 0, -4200, 8400}, // World - N hemisphere - 48°W to 42°W
    {226633, -4800, -8000, -4200, 0}, // World - S hemisphere - 48°W to 42°W
    {225186, -4200, 0, -3600, 8400}, // World - N hemisphere - 42°W to 36°W
    {226589, -4200, -8000, -3600, 0}, // World - S hemisphere - 42°W to 36°W
    {225142, -3600, 0, -3000, 8400}, // World - N hemisphere - 36°W to 30°W
    {226545, -3600, -8000, -3000, 0}, // World - S hemisphere - 36°W to 30°W
    {225098, -3000, 0, -2400, 8400}, // World - N hemisphere - 30°W to 24°W
    {226501, -3000, -8000, -2400, 0}, // World - S hemisphere - 30°W to 24°W
    {225054, -2400, 0, -1800, 8400}, // World - N hemisphere - 24°W to 18°W
    {226457, -2400, -8000, -1800, 0}, // World - S hemisphere - 24°W to 18°W
    {225010, -1800, 0, -1200, 8400}, // World - N hemisphere - 18°W to 12°W
    {226413, -1800, -8000, -1200, 0}, // World - S hemisphere - 18°W to 12°W
    {224520, -1200, 0, -600, 8400}, // World - N hemisphere - 12°W to 6°W
    {225945, -1200, -8000, -600, 0}, // World - S hemisphere - 12°W to 6°W
    {225402, -600, 0, 0, 8400}, // World - N hemisphere - 6°W to 0°W
    {226805, -600, -8000, 0, 0}, // World - S hemisphere - 6°W to 0°W
    {224183, 0, 0, 600, 8400}, // World - N hemisphere - 0°E to 6°E
    {225652, 0, -8000, 600, 0}, // World - S hemisphere - 0°E to 6°E
    {225384, 600, 0, 1200, 8400}, // World - N hemisphere - 6°E to 12°E
    {226787, 600, -8000, 1200, 0}, // World - S hemisphere - 6°E to 12°E
    {224479, 1200, 0, 1800, 8400}, // World - N hemisphere - 12°E to 18°E
    {225925, 1200, -8000, 1800, 0}, // World - S hemisphere - 12°E to 18°E
    {224966, 1800, 0, 2400, 8400}, // World - N hemisphere - 18°E to 24°E
    {226391, 1800, -8000, 2400, 0}, // World - S hemisphere - 18°E to 24°E
    {225032, 2400, 0, 3000, 8400}, // World - N hemisphere - 24°E to 30°E
    {226435, 2400, -8000, 3000, 0}, // World - S hemisphere - 24°E to 30°E
    {225076, 3000, 0, 3600, 8400}, // World - N hemisphere - 30°E to 36°E
    {226479, 3000, -8000, 3600, 0}, // World - S hemisphere - 30°E to 36°E
    {225120, 3600, 0, 4200, 8400}, // World - N hemisphere - 36°E to 42°E
    {226523, 3600, -8000, 4200, 0}, // World - S hemisphere - 36°E to 42°E
    {225164, 4200, 0, 4800, 8400}, // World - N hemisphere - 42°E to 48°E
    {226567, 4200, -8000, 4800, 0}, // World - S hemisphere - 42°E to 48°E
    {225208, 4800, 0, 5400, 8400}, // World - N hemisphere - 48°E to 54°E
    {226611, 4800, -8000, 5400, 0}, // World - S hemisphere - 48°E to 54°E
    {225252, 5400, 0, 6000, 8400}, // World - N hemisphere - 54°E to 60°E
    {226655, 5400, -8000, 6000, 0}, // World - S hemisphere - 54°E to 60°E
    {225296, 6000, 0, 6600, 8400}, // World - N hemisphere - 60°E to 66°E
    {226699, 6000, -8000, 6600, 0}, // World - S hemisphere - 60°E to 66°E
    {225340, 6600, 0, 7200, 8400}, // World - N hemisphere - 66°E to 72°E
    {226743, 6600, -8000, 7200, 0}, // World - S hemisphere - 66°E to 72°E
    {225420, 7200, 0, 7800, 8400}, // World - N hemisphere - 72°E to 78°E
    {226823, 7200, -8000, 7800, 0}, // World - S hemisphere - 72°E to 78°E
    {225464, 7800, 0, 8400, 8400}, // World - N hemisphere - 78°E to 84°E
    {226867, 7800, -8000, 8400, 0}, // World - S hemisphere - 78°E to 84°E
    {225508, 8400, 0, 9000, 8400}, // World - N hemisphere - 84°E to 90°E
    {226911, 8400, -8000, 9000, 0}, // World - S hemisphere - 84°E to 90°E
    {225552, 9000, 0, 9600, 8400}, // World - N hemisphere - 90°E to 96°E
    {226955, 9000, -8000, 9600, 0}, // World - S hemisphere - 90°E to 96°E
    {225596, 9600, 0, 10200, 8400}, // World - N hemisphere - 96°E to 102°E
    {226999, 9600, -8000, 10200, 0}, // World - S hemisphere - 96°E to 102°E
    {224213, 10200, 0, 10800, 8400}, // World - N hemisphere - 102°E to 108°E
    {225681, 10200, -8000, 10800, 0}, // World - S hemisphere - 102°E to 108°E
    {224279, 10800, 0, 11400, 8400}, // World - N hemisphere - 108°E to 114°E
    {225725, 10800, -8000, 11400, 0}, // World - S hemisphere - 108°E to 114°E
    {224345, 11400, 0, 12000, 8400}, // World - N hemisphere - 114°E to 120°E
    {225791, 11400, -8000, 12000, 0}, // World - S hemisphere - 114°E to 120°E
    {224387, 12000, 0, 12600, 8400}, // World - N hemisphere - 120°E to 126°E
    {225833, 12000, -8000, 12600, 0}, // World - S hemisphere - 120°E to 126°E
    {224431, 12600, 0, 13200, 8400}, // World - N hemisphere - 126°E to 132°E
    {225877, 12600, -8000, 13200, 0}, // World - S hemisphere - 126°E to 132°E
    {224540, 13200, 0, 13800, 8400}, // World - N hemisphere - 132°E to 138°E
    {225965, 13200, -8000, 13800, 0}, // World - S hemisphere - 132°E to 138°E
    {224590, 13800, 0, 14400, 8400}, // World - N hemisphere - 138°E to 144°E
    {226015, 13800, -8000, 14400, 0}, // World - S hemisphere - 138°E to 144°E
    {224640, 14400, 0, 15000, 8400}, // World - N hemisphere - 144°E to 150°E
    {226065, 14400, -8000, 15000, 0}, // World - S hemisphere - 144°E to 150°E
    {224690, 15000, 0, 15600, 8400}, // World - N hemisphere - 150°E to 156°E
    {226115, 15000, -8000, 15600, 0}, // World - S hemisphere - 150°E to 156°E
    {224740, 15600, 0, 16200, 8400}, // World - N hemisphere - 156°E to 162°E
    {226165, 15600, -8000, 16200, 0}, // World - S hemisphere - 156°E to 162°E
    {224790, 16200, 0, 16800, 8400}, // World - N hemisphere - 162°E to 168°E
    {226215, 16200, -8000, 16800, 0}, // World - S hemisphere - 162°E to 168°E
    {224840, 16800, 0, 17400, 8400}, // World - N hemisphere - 168°E to 174°E
    {226265, 16800, -8000, 17400, 0}, // World - S hemisphere - 168°E to 174°E
    {224890, 17400, 0, 18000, 8400}, // World - N hemisphere - 174°E to 180°E
    {226315, 17400, -8000, 18000, 0}, // World - S hemisphere - 174°E to 180°E
    {224235, 10200, 0, 10800, 8400}, // World - N hemisphere - 102°E to 108°E - by country and WGS 72BE
    {224301, 10800, 0, 11400, 8400}, // World - N hemisphere - 108°E to 114°E - by country and WGS 72BE
    {225747, 10800, -8000, 11400, 0}, // World - S hemisphere - 108°E to 114°E - by country and WGS 72BE
    {225640, -18000, 6000, 18000, 9000}, // World - N hemisphere - north of 60°N
    {227043, -18000, -9000, 18000, -6000}, // World - S hemisphere - south of 60°S
    {224201, -18000, 0, 18000, 8400}, // World - N hemisphere - 0°N to 84°N
    {225670, -18000, -8000, 18000, 0}, // World - S hemisphere - 0°N to 80°S
    {224952, -18000, 0, -17400, 8400}, // World - N hemisphere - 180°W to 174°W - by country
    {226377, -18000, -8000, -17400, 0}, // World - S hemisphere - 180°W to 174°W - by country
    {224926, -17400, 0, -16800, 8400}, // World - N hemisphere - 174°W to 168°W - by country
    {226351, -17400, -8000, -16800, 0}, // World - S hemisphere - 174°W to 168°W - by country
    {224876, -16800, 0, -16200, 8400}, // World - N hemisphere - 168°W to 162°W - by country
    {226301, -16800, -8000, -16200, 0}, // World - S hemisphere - 168°W to 162°W - by country
    {224826, -16200, 0, -15600, 8400}, // World - N hemisphere - 162°W to 156°W - by country
    {226251, -16200, -8000, -15600, 0}, // World - S hemisphere - 162°W to 156°W - by country
    {224776, -15600, 0, -15000, 8400}, // World - N hemisphere - 156°W to 150°W - by country
    {226201, -15600, -8000, -15000, 0}, // World - S hemisphere - 156°W to 150°W - by country
    {224726, -15000, 0, -14400, 8400}, // World - N hemisphere - 150°W to 144°W - by country
    {226151, -15000, -8000, -14400, 0}, // World - S hemisphere - 150°W to 144°W - by country
    {224676, -14400, 0, -13800, 8400}, // World - N hemisphere - 144°W to 138°W - by country
    {226101, -14400, -8000, -13800, 0}, // World - S hemisphere - 144°W to 138°W - by country
    {224626, -13800, 0, -13200, 8400}, // World - N hemisphere - 138°W to 132°W - by country
    {226051, -13800, -8000, -13200, 0}, // World - S hemisphere - 138°W to 132°W - by country
    {224576, -13200, 0, -12600, 8400}, // World - N hemisphere - 132°W to 126°W - by country
    {226001, -13200, -8000, -12600, 0}, // World - S hemisphere - 132°W to 126°W - by country
    {224466, -12600, 0, -12000, 8400}, // World - N hemisphere - 126°W to 120°W - by country
    {225912, -12600, -8000, -12000, 0}, // World - S hemisphere - 126°W to 120°W - by country
    {224419, -12000, 0, -11400, 8400}, // World - N hemisphere - 120°W to 114°W - by country
    {225865, -12000, -8000, -11400, 0}, // World - S hemisphere - 120°W to 114°W - by country
    {224375, -11400, 0, -10800, 8400}, // World - N hemisphere - 114°W to 108°W - by country
    {225821, -11400, -8000, -10800, 0}, // World - S hemisphere - 114°W to 108°W - by country
    {224333, -10800, 0, -10200, 8400}, // World - N hemisphere - 108°W to 102°W - by country
    {225779, -10800, -8000, -10200, 0}, // World - S hemisphere - 108°W to 102°W - by country
    {224267, -10200, 0, -9600, 8400}, // World - N hemisphere - 102°W to 96°W - by country
    {225713, -10200, -8000, -9600, 0}, // World - S hemisphere - 102°W to 96°W - by country
    {225628, -9600, 0, -9000, 8400}, // World - N hemisphere - 96°W to 90°W - by country
    {227031, -9600, -8000, -9000, 0}, // World - S hemisphere - 96°W to 90°W - by country
    {225584, -9000, 0, -8400, 8400}, // World - N hemisphere - 90°W to 84°W - by country
    {226987, -9000, -8000, -8400, 0}, // World - S hemisphere - 90°W to 84°W - by country
    {225540, -8400, 0, -7800, 8400}, // World - N hemisphere - 84°W to 78°W - by country
    {226943, -8400, -8000, -7800, 0}, // World - S hemisphere - 84°W to 78°W - by country
    {225496, -7800, 0, -7200, 8400}, // World - N hemisphere - 78°W to 72°W - by country
    {226899, -7800, -8000, -7200, 0}, // World - S hemisphere - 78°W to 72°W - by country
    {225452, -7200, 0, -6600, 8400}, // World - N hemisphere - 72°W to 66°W - by country
    {226855, -7200, -8000, -6600, 0}, // World - S hemisphere - 72°W to 66°W - by country
    {225372, -6600, 0, -6000, 8400}, // World - N hemisphere - 66°W to 60°W - by country
    {226775, -6600, -8000, -6000, 0}, // World - S hemisphere - 66°W to 60°W - by country
    {225328, -6000, 0, -5400, 8400}, // World - N hemisphere - 60°W to 54°W - by country
    {226731, -6000, -8000, -5400, 0}, // World - S hemisphere - 60°W to 54°W - by country
    {225284, -5400, 0, -4800, 8400}, // World - N hemisphere - 54°W to 48°W - by country
    {226687, -5400, -8000, -4800, 0}, // World - S hemisphere - 54°W to 48°W - by country
    {225240, -4800, 0, -4200, 8400}, // World - N hemisphere - 48°W to 42°W - by country
    {226643, -4800, -8000, -4200, 0}, // World - S hemisphere - 48°W to 42°W - by country
    {225196, -4200, 0, -3600, 8400}, // World - N hemisphere - 42°W to 36°W - by country
    {226599, -4200, -8000, -3600, 0}, // World - S hemisphere - 42°W to 36°W - by country
    {225152, -3600, 0, -3000, 8400}, // World - N hemisphere - 36°W to 30°W - by country
    {226555, -3600, -8000, -3000, 0}, // World - S hemisphere - 36°W to 30°W - by country
    {225108, -3000, 0, -2400, 8400}, // World - N hemisphere - 30°W to 24°W - by country
    {226511, -3000, -8000, -2400, 0}, // World - S hemisphere - 30°W to 24°W - by country
    {225064, -2400, 0, -1800, 8400}, // World - N hemisphere - 24°W to 18°W - by country
    {226467, -2400, -8000, -1800, 0}, // World - S hemisphere - 24°W to 18°W - by country
    {225020, -1800, 0, -1200, 8400}, // World - N hemisphere - 18°W to 12°W - by country
    {226423, -1800, -8000, -1200, 0}, // World - S hemisphere - 18°W to 12°W - by country
    {224529, -1200, 0, -600, 8400}, // World - N hemisphere - 12°W to 6°W - by country
    {225954, -1200, -8000, -600, 0}, // World - S hemisphere - 12°W to 6°W - by country
    {225410, -600, 0, 0, 8400}, // World - N hemisphere - 6°W to 0°W - by country
    {226813, -600, -8000, 0, 0}, // World - S hemisphere - 6°W to 0°W - by country
    {224191, 0, 0, 600, 8400}, // World - N hemisphere - 0°E to 6°E - by country
    {225660, 0, -8000, 600, 0}, // World - S hemisphere - 0°E to 6°E - by country
    {225392, 600, 0, 1200, 8400}, // World - N hemisphere - 6°E to 12°E - by country
    {226795, 600, -8000, 1200, 0}, // World - S hemisphere - 6°E to 12°E - by country
    {224488, 1200, 0, 1800, 8400}, // World - N hemisphere - 12°E to 18°E - by country
    {225934, 1200, -8000, 1800, 0}, // World - S hemisphere - 12°E to 18°E - by country
    {224976, 1800, 0, 2400, 8400}, // World - N hemisphere - 18°E to 24°E - by country
    {226401, 1800, -8000, 2400, 0}, // World - S hemisphere - 18°E to 24°E - by country
    {225042, 2400, 0, 3000, 8400}, // World - N hemisphere - 24°E to 30°E - by country
    {226445, 2400, -8000, 3000, 0}, // World - S hemisphere - 24°E to 30°E - by country
    {225086, 3000, 0, 3600, 8400}, // World - N hemisphere - 30°E to 36°E - by country
    {226489, 3000, -8000, 3600, 0}, // World - S hemisphere - 30°E to 36°E - by country
    {225130, 3600, 0, 4200, 8400}, // World - N hemisphere - 36°E to 42°E - by country
    {226533, 3600, -8000, 4200, 0}, // World - S hemisphere - 36°E to 42°E - by country
    {225174, 4200, 0, 4800, 8400}, // World - N hemisphere - 42°E to 48°E - by country
    {226577, 4200, -8000, 4800, 0}, // World - S hemisphere - 42°E to 48°E - by country
    {225218, 4800, 0, 5400, 8400}, // World - N hemisphere - 48°E to 54°E - by country
    {226621, 4800, -8000, 5400, 0}, // World - S hemisphere - 48°E to 54°E - by country
    {225262, 5400, 0, 6000, 8400}, // World - N hemisphere - 54°E to 60°E - by country
    {226665, 5400, -8000, 6000, 0}, // World - S hemisphere - 54°E to 60°E - by country
    {225306, 6000, 0, 6600, 8400}, // World - N hemisphere - 60°E to 66°E - by country
    {226709, 6000, -8000, 6600, 0}, // World - S hemisphere - 60°E to 66°E - by country
    {225350, 6600, 0, 7200, 8400}, // World - N hemisphere - 66°E to 72°E - by country
    {226753, 6600, -8000, 7200, 0}, // World - S hemisphere - 66°E to 72°E - by country
    {225430, 7200, 0, 7800, 8400}, // World - N hemisphere - 72°E to 78°E - by country
    {226833, 7200, -8000, 7800, 0}, // World - S hemisphere - 72°E to 78°E - by country
    {225474, 7800, 0, 8400, 8400}, // World - N hemisphere - 78°E to 84°E - by country
    {226877, 7800, -8000, 8400, 0}, // World - S hemisphere - 78°E to 84°E - by country
    {225518, 8400, 0, 9000, 8400}, // World - N hemisphere - 84°E to 90°E - by country
    {226921, 8400, -8000, 9000, 0}, // World - S hemisphere - 84°E to 90°E - by country
    {225562, 9000, 0, 9600, 8400}, // World - N hemisphere - 90°E to 96°E - by country
    {226965, 9000, -8000, 9600, 0}, // World - S hemisphere - 90°E to 96°E - by country
    {225606, 9600, 0, 10200, 8400}, // World - N hemisphere - 96°E to 102°E - by country
    {227009, 9600, -8000, 10200, 0}, // World - S hemisphere - 96°E to 102°E - by country
    {224223, 10200, 0, 10800, 8400}, // World - N hemisphere - 102°E to 108°E - by country
    {225691, 10200, -8000, 10800, 0}, // World - S hemisphere - 102°E to 108°E - by country
    {224289, 10800, 0, 11400, 8400}, // World - N hemisphere - 108°E to 114°E - by country
    {225735, 10800, -8000, 11400, 0}, // World - S hemisphere - 108°E to 114°E - by country
    {224354, 11400, 0, 12000, 8400}, // World - N hemisphere - 114°E to 120°E - by country
    {225800, 11400, -8000, 12000, 0}, // World - S hemisphere - 114°E to 120°E - by country
    {224397, 12000, 0, 12600, 8400}, // World - N hemisphere - 120°E to 126°E - by country
    {225843, 12000, -8000, 12600, 0}, // World - S hemisphere - 120°E to 126°E - by country
    {224442, 12600, 0, 13200, 8400}, // World - N hemisphere - 126°E to 132°E - by country
    {225888, 12600, -8000, 13200, 0}, // World - S hemisphere - 126°E to 132°E - by country
    {224551, 13200, 0, 13800, 8400}, // World - N hemisphere - 132°E to 138°E - by country
    {225976, 13200, -8000, 13800, 0}, // World - S hemisphere - 132°E to 138°E - by country
    {224601, 13800, 0, 14400, 8400}, // World - N hemisphere - 138°E to 144°E - by country
    {226026, 13800, -8000, 14400, 0}, // World - S hemisphere - 138°E to 144°E - by country
    {224651, 14400, 0, 15000, 8400}, // World - N hemisphere - 144°E to 150°E - by country
    {226076, 14400, -8000, 15000, 0}, // World - S hemisphere - 144°E to 150°E - by country
    {224701, 15000, 0, 15600, 8400}, // World - N hemisphere - 150°E to 156°E - by country
    {226126, 15000, -8000, 15600, 0}, // World - S hemisphere - 150°E to 156°E - by country
    {224751, 15600, 0, 16200, 8400}, // World - N hemisphere - 156°E to 162°E - by country
    {226176, 15600, -8000, 16200, 0}, // World - S hemisphere - 156°E to 162°E - by country
    {224801, 16200, 0, 16800, 8400}, // World - N hemisphere - 162°E to 168°E - by country
    {226226, 16200, -8000, 16800, 0}, // World - S hemisphere - 162°E to 168°E - by country
    {224851, 16800, 0, 17400, 8400}, // World - N hemisphere - 168°E to 174°E - by country
    {226276, 16800, -8000, 17400, 0}, // World - S hemisphere - 168°E to 174°E - by country
    {224901, 17400, 0, 18000, 8400}, // World - N hemisphere - 174°E to 180°E - by country
    {226326, 17400, -8000, 18000, 0}, // World - S hemisphere - 174°E to 180°E - by country
    {65912, -9186, 1585, -8834, 1783}, // Guatemala - north of 15°51'30"N
    {65933, -9229, 1369, -8819, 1586}, // Guatemala - south of 15°51'30"N
    {48104, -1610, 3493, -1199, 7244}, // Europe - 18°W to 12°W and ETRS89 by country
    {47870, -1200, 3491, -600, 7413}, // Europe - 12°W to 6°W and ETRS89 by country
    {48589, -600, 3526, 1, 8049}, // Europe - 6°W to 0°W and ETRS89 by country
    {47732, 0, 3700, 601, 8245}, // Europe - 0°E to 6°E and ETRS89 by country
    {48535, 600, 3876, 1201, 8433}, // Europe - 6°E to 12°E and ETRS89 by country
    {47784, 1200, 4640, 1801, 8442}, // Europe - 12°E to 18°E and ETRS89 by country
    {48014, 1799, 5884, 2401, 8454}, // Europe - 18°E to 24°E and ETRS89 by country
    {48251, 2400, 5964, 3001, 8473}, // Europe - 24°E to 30°E and ETRS89 by country
    {48384, 3000, 6173, 3601, 8470}, // Europe - 30°E to 36°E and ETRS89 by country
    {48435, 3600, 7299, 3801, 7907}, // Europe - 36°E to 42°E and ETRS89 by country
    {48486, 4200, 3700, 4800, 4165}, // Europe - 42°E to 48°E and ETRS89 by country
    {198331, -16800, 4952, -16199, 7429}, // USA - 168°W to 162°W - AK, OCS
    {198300, -16200, 5098, -15599, 7471}, // USA - 162°W to 156°W - AK, OCS
    {198253, -15600, 5215, -14999, 7471}, // USA - 156°W to 150°W - AK, OCS
    {198221, -15000, 5405, -14399, 7413}, // USA - 150°W to 144°W - AK, OCS
    {138450, -14400, 5347, -13800, 7359}, // North America - 144°W to 138°W and NAD27 by country
    {138411, -13800, 5258, -13200, 7304}, // North America - 138°W to 132°W and NAD27 by country - onshore
    {138372, -13200, 4918, -12600, 7203}, // North America - 132°W to 126°W and NAD27 by country - onshore
    {138335, -12600, 3440, -11999, 7713}, // North America - 126°W to 120°W and NAD27 by country - onshore
    {138300, -12000, 2693, -11400, 7813}, // North America - 120°W to 114°W and NAD27 by country - onshore
    {138267, -11400, 1866, -10800, 7881}, // North America - 114°W to 108°W and NAD27 by country
    {138234, -10800, 1786, -10200, 7942}, // North America - 108°W to 102°W and NAD27 by country
    {138201, -10200, 1559, -9600, 8074}, // North America - 102°W to 96°W and NAD27 by country
    {138652, -9600, 1363, -9000, 8196}, // North America - 96°W to 90°W and NAD27 by country
    {138619, -9001, 927, -8400, 8254}, // North America - 90°W to 84°W and NAD27 by country
    {138586, -8400, 798, -7800, 8303}, // North America - 84°W to 78°W and NAD27 by country
    {138553, -7800, 1883, -7200, 8316}, // North America - 78°W to 72°W and NAD27 by country
    {138520, -7200, 3361, -6600, 8317}, // North America - 72°W to 66°W and NAD27 by country
    {138487, -6600, 3821, -5999, 8297}, // North America - 66°W to 60°W and NAD27 by country
    {29719, -6000, 3856, -5400, 8400}, // Canada - 60°W to 54°W
    {29708, -5400, 3950, -4799, 5765}, // Canada - 54°W to 48°W
    {29697, -4800, 3985, -4200, 5447}, // Canada - 48°W to 42°W
    {198532, -8679, 3099, -8489, 3500}, // USA - Alabama - SPCS - E
    {198543, -8848, 3014, -8630, 3502}, // USA - Alabama - SPCS - W
    {198715, -14100, 5461, -12999, 6035}, // USA - Alaska - Panhandle
    {198651, 17242, 5130, -16484, 5434}, // USA - Alaska - Aleutian Islands
    {198561, -14401, 5972, -14098, 7016}, // USA - Alaska - 144°W to 141°W
    {198576, -14800, 5972, -14400, 7038}, // USA - Alaska - 148°W to 144°W
    {198591, -15201, 5911, -14799, 7063}, // USA - Alaska - 152°W to 148°W
    {198606, -15600, 5572, -15186, 7128}, // USA - Alaska - 156°W to 152°W
    {198621, -16000, 5489, -15599, 7140}, // USA - Alaska - 160°W to 156°W
    {198636, -16401, 5432, -16000, 7074}, // USA - Alaska - 164°W to 160°W
    {198781, -16826, 5434, -16400, 6905}, // USA - Alaska - north of 54.5°N; 168°W to 164°W
    {198807, -17316, 5649, -16800, 6582}, // USA - Alaska - north of 54.5°N; west of 168°W
    {198952, -11335, 3133, -11044, 3701}, // USA - Arizona - SPCS - C
    {198961, -11171, 3133, -10904, 3701}, // USA - Arizona - SPCS - E
    {198970, -11481, 3205, -11252, 3700}, // USA - Arizona - SPCS - W
    {198986, -9462, 3467, -8964, 3650}, // USA - Arkansas - SPCS - N
    {198997, -9448, 3301, -9040, 3510}, // USA - Arkansas - SPCS - S
    {199518, -9722, 2597, -9587, 2843}, // USA - GoM OCS - west of 96°W
    {199488, -9600, 2561, -8986, 2973}, // USA - GoM OCS - 96°W to 90°W
    {199473, -9001, 2395, -8391, 3025}, // USA - GoM OCS - 90°W to 84°W
    {199503, -8409, 2382, -8117, 2994}, // USA - GoM OCS - east of 84°W
    {199124, -12445, 3959, -11999, 4201}, // USA - California - SPCS - 1
    {199136, -12406, 3802, -11954, 4016}, // USA - California - SPCS - 2
    {199148, -12302, 3673, -11783, 3871}, // USA - California - SPCS - 3
    {199160, -12201, 3578, -11562, 3758}, // USA - California - SPCS - 4
    {199184, -12143, 3276, -11412, 3581}, // USA - California - SPCS27 - 5
    {199172, -11815, 3253, -11442, 3408}, // USA - California - SPCS - 6
    {199197, -11896, 3366, -11763, 3483}, // USA - California - SPCS27 - 7
    {199210, -12142, 3276, -11412, 3581}, // USA - California - SPCS83 - 5
    {199289, -10906, 3814, -10204, 4009}, // USA - Colorado - SPCS - C
    {199300, -10906, 3956, -10204, 4101}, // USA - Colorado - SPCS - N
    {199311, -10906, 3698, -10204, 3868}, // USA - Colorado - SPCS - S
    {199365, -8233, 2441, -7997, 3083}, // USA - Florida - SPCS - E
    {199375, -8763, 2921, -8204, 3101}, // USA - Florida - SPCS - N
    {199385, -8334, 2627, -8113, 2960}, // USA - Florida - SPCS - W
    {199403, -8347, 3036, -8077, 3468}, // USA - Georgia - SPCS - E
    {199413, -8561, 3062, -8299, 3501}, // USA - Georgia - SPCS - W
    {199698, -11530, 4199, -11267, 4570}, // USA - Idaho - SPCS - C
    {199708, -11324, 4199, -11104, 4475}, // USA - Idaho - SPCS - E
    {199718, -11724, 4199, -11432, 4901}, // USA - Idaho - SPCS - W
    {199772, -8928, 3706, -8702, 4250}, // USA - Illinois - SPCS - E
    {199784, -9152, 3698, -8893, 4251}, // USA - Illinois - SPCS - W
    {200498, -8659, 3795, -8478, 4177}, // USA - Indiana - SPCS - E
    {200506, -8806, 3777, -8624, 4177}, // USA - Indiana - SPCS - W
    {200779, -9665, 4185, -9015, 4351}, // USA - Iowa - SPCS - N
    {200788, -9614, 4037, -9014, 4204}, // USA - Iowa - SPCS - S
    {201068, -10206, 3852, -9458, 4001}, // USA - Kansas - SPCS - N
    {201078, -10205, 3699, -9460, 3888}, // USA - Kansas - SPCS - S
    {201133, -8596, 3771, -8247, 3915}, // USA - Kentucky - SPCS - N
    {201146, -8957, 3649, -8195, 3817}, // USA - Kentucky - SPCS - S
    {201166, -9405, 3085, -9086, 3303}, // USA - Louisiana - SPCS - N
    {201176, -9394, 2782, -8776, 3107}, // USA - Louisiana - SPCS27 - S
    {201236, -7003, 4388, -6691, 4747}, // USA - Maine - SPCS - E
    {201245, -7109, 4304, -6926, 4658}, // USA - Maine - SPCS - W
    {201260, -7091, 4119, -6989, 4151}, // USA - Massachusetts - SPCS - islands
    {201278, -7350, 4146, -6986, 4289}, // USA - Massachusetts - SPCS - mainland
    {201648, -11606, 4617, -10404, 4826}, // USA - Montana - SPCS27 - C
    {201659, -11607, 4741, -10404, 4901}, // USA - Montana - SPCS27 - N
    {201670, -11457, 4435, -10404, 4687}, // USA - Montana - SPCS27 - S
    {201390, -9686, 4528, -9229, 4748}, // USA - Minnesota - SPCS - C
    {201401, -9722, 4664, -8949, 4938}, // USA - Minnesota - SPCS - N
    {201412, -9685, 4349, -9121, 4559}, // USA - Minnesota - SPCS - S
    {201434, -8997, 3001, -8809, 3501}, // USA - Mississippi - SPCS - E
    {201449, -9165, 3100, -8937, 3501}, // USA - Mississippi - SPCS - W
    {201472, -9379, 3648, -9141, 4061}, // USA - Missouri - SPCS - C
    {201484, -9197, 3598, -8910, 4061}, // USA - Missouri - SPCS - E
    {201496, -9577, 3648, -9348, 4059}, // USA - Missouri - SPCS - W
    {201722, -10406, 4168, -9607, 4301}, // USA - Nebraska - SPCS27 - N
    {201734, -10406, 3999, -9530, 4201}, // USA - Nebraska - SPCS27 - S
    {201789, -11819, 3600, -11499, 4100}, // USA - Nevada - SPCS - C
    {201798, -11701, 3499, -11403, 4200}, // USA - Nevada - SPCS - E
    {201807, -12000, 3695, -11699, 4200}, // USA - Nevada - SPCS - W
    {30273, -5450, 4656, -5254, 4989}, // Canada - Newfoundland - east of 54.5°W
    {30292, -5750, 4681, -5449, 5471}, // Canada - Newfoundland and Labrador - 57.5°W to 54.5°W
    {201870, -10572, 3200, -10299, 3700}, // USA - New Mexico - SPCS - E
    {201883, -10773, 3178, -10483, 3700}, // USA - New Mexico - SPCS27 - C
    {201897, -10906, 3133, -10632, 3700}, // USA - New Mexico - SPCS27 - W
    {201911, -10773, 3178, -10484, 3700}, // USA - New Mexico - SPCS83 - C
    {201924, -10906, 3133, -10632, 3700}, // USA - New Mexico - SPCS83 - W
    {201944, -7775, 4199, -7506, 4441}, // USA - New York - SPCS - C
    {201955, -7587, 4088, -7323, 4502}, // USA - New York - SPCS - E
    {201966, -7426, 4047, -7180, 4130}, // USA - New York - SPCS - Long Island
    {201981, -7977, 4199, -7736, 4364}, // USA - New York - SPCS - W
    {202008, -10407, 4715, -9683, 4901}, // USA - North Dakota - SPCS - N
    {202019, -10405, 4593, -9655, 4783}, // USA - North Dakota - SPCS - S
    {202036, -8481, 4010, -8051, 4233}, // USA - Ohio - SPCS - N
    {202046, -8483, 3840, -8070, 4036}, // USA - Ohio - SPCS - S
    {202064, -10300, 3527, -9442, 3701}, // USA - Oklahoma - SPCS - N
    {202075, -10000, 3362, -9442, 3557}, // USA - Oklahoma - SPCS - S
    {202588, -12417, 4395, -11647, 4626}, // USA - Oregon - SPCS - N
    {202596, -12460, 4198, -11690, 4456}, // USA - Oregon - SPCS - S
    {202724, -8053, 4060, -7470, 4253}, // USA - Pennsylvania - SPCS - N
    {202738, -8053, 3971, -7472, 4118}, // USA - Pennsylvania - SPCS - S
    {202768, -8336, 3346, -7852, 3521}, // USA - South Carolina - SPCS27 - N
    {202780, -8203, 3205, -7895, 3395}, // USA - South Carolina - SPCS27 - S
    {202800, -10407, 4414, -9645, 4595}, // USA - South Dakota - SPCS - N
    {202811, -10406, 4248, -9643, 4479}, // USA - South Dakota - SPCS - S
    {31520, -6849, 1492, -6388, 2186}, // Caribbean - Puerto Rico and US Virgin Islands
    {202837, -10666, 2978, -9350, 3227}, // USA - Texas - SPCS - C
    {202847, -10303, 3430, -9999, 3650}, // USA - Texas - SPCS - N
    {202857, -10307, 3172, -9400, 3458}, // USA - Texas - SPCS - NC
    {202868, -10020, 2583, -9536, 2821}, // USA - Texas - SPCS27 - S
    {202879, -10500, 2778, -9341, 3067}, // USA - Texas - SPCS27 - SC
    {202941, -11405, 3849, -10904, 4108}, // USA - Utah - SPCS - C
    {202950, -11404, 4055, -10904, 4201}, // USA - Utah - SPCS - N
    {202959, -11405, 3699, -10904, 3858}, // USA - Utah - SPCS - S
    {202983, -8006, 3777, -7651, 3946}, // USA - Virginia - SPCS - N
    {202993, -8368, 3654, -7531, 3828}, // USA - Virginia - SPCS - S
    {203003, -12479, 4708, -11702, 4905}, // USA - Washington - SPCS27 - N
    {203017, -12440, 4554, -11691, 4796}, // USA - Washington - SPCS27 - S
    {203067, -8176, 3876, -7772, 4064}, // USA - West Virginia - SPCS - N
    {203079, -8265, 3720, -7905, 3917}, // USA - West Virginia - SPCS - S
    {203824, -9289, 4398, -8625, 4580}, // USA - Wisconsin - SPCS - C
    {203836, -9289, 4537, -8805, 4731}, // USA - Wisconsin - SPCS - N
    {203848, -9143, 4248, -8695, 4433}, // USA - Wisconsin - SPCS - S
    {204088, -10633, 4099, -10405, 4501}, // USA - Wyoming - SPCS - E
    {204099, -10863, 4099, -10600, 4501}, // USA - Wyoming - SPCS - EC
    {204111, -11106, 4099, -10904, 4467}, // USA - Wyoming - SPCS - W
    {204122, -11106, 4099, -10750, 4501}, // USA - Wyoming - SPCS - WC
    {203031, -12479, 4708, -11702, 4905}, // USA - Washington - SPCS83 - N
    {203044, -12440, 4554, -11691, 4761}, // USA - Washington - SPCS83 - S
    {30319, -5948, 4750, -5750, 5054}, // Canada - Newfoundland and Labrador - 60°W to 57.5°W
    {30945, -6300, 4716, -6000, 5892}, // Canada - Quebec and Labrador - 63°W to 60°W
    {30970, -6600, 4795, -6300, 6052}, // Canada - Quebec and Labrador - 66°W to 63°W
    {30995, -6900, 4731, -6600, 5900}, // Canada - Quebec and Labrador - 69°W to 66°W
    {31020, -7500, 4498, -7200, 6253}, // Canada - Quebec and Ontario - 75°W to 72°W
    {31044, -7800, 4363, -7500, 6265}, // Canada - Quebec and Ontario - 78°W to 75°W
    {31068, -8100, 4226, -7800, 6245}, // Canada - Quebec and Ontario - MTM zone 10
    {37105, -422, 515, -385, 554}, // Cote d'Ivoire (Ivory Coast) - Abidjan area
    {16419, 14876, -3593, 14940, -3512}, // Australia - Australian Capital Territory
    {16510, 12899, -2601, 13800, -1086}, // Australia - Northern Territory
    {16675, 14096, -3920, 15004, -3398}, // Australia - Victoria
    {16491, 14096, -3920, 15369, -2815}, // Australia - New South Wales and Victoria
    {16638, 14096, -3920, 15369, -2815}, // Australia - SE Australia (ACT NSW Vic)
    {6905, -17088, -1443, -17051, -1420}, // American Samoa - Tutuila island
    {6876, -16973, -1431, -16938, -1411}, // American Samoa - Ofu, Olesega and Ta'u islands
    {31091, -6000, 4750, -5710, 5538}, // Canada - Quebec, Newfoundland and Labrador - MTM zone 3
    {16186, 15000, -4644, 15600, -232}, // Australasia - Australia and PNG - 150°E to 156°E
    {37163, -755, 102, -311, 519}, // Cote d'Ivoire (Ivory Coast) - offshore
    {199247, -12445, 3650, -11654, 4201}, // USA - California - north of 36.5°N
    {199265, -12198, 3253, -11412, 3650}, // USA - California - south of 36.5°N
    {24587, -4880, -2841, -3518, -1759}, // Brazil - Campos; Espirito Santo and Santos basins
    {24897, -3904, -980, -3709, -839}, // Brazil - Tucano basin north
    {24879, -3914, -1061, -3799, -979}, // Brazil - Tucano basin central
    {24915, -3907, -1227, -3798, -1060}, // Brazil - Tucano basin south
    {5417, 2934, -1175, 4191, 463}, // Africa - Kenya and Tanzania
    {5174, 1999, -3066, 3593, -819}, // Africa - Botswana, Eswatini, Lesotho, Malawi, Zambia, Zimbabwe
    {30345, -6628, 4341, -5973, 4708}, // Canada - Nova Scotia
    {34304, -7300, 475, -7225, 568}, // Colombia - Cusiana
    {7411, 1258, -859, 1340, -775}, // Angola - offshore block 5
    {7377, 1208, -701, 1284, -601}, // Angola - offshore block 2
    {7394, 1174, -734, 1250, -666}, // Angola - offshore block 3
    {7428, 1266, -1009, 1339, -941}, // Angola - offshore block 7
    {7548, 820, -1726, 1386, -601}, // Angola - offshore blocks 7 8 24 + WGC spec
    {7469, 1108, -726, 1209, -603}, // Angola - offshore blocks 1 and 16
    {7522, 1083, -1009, 1339, -603}, // Angola - offshore blocks 3 7 15 and 17
    {7445, 1108, -834, 1275, -603}, // Angola - offshore blocks 1 16 and 18
    {7490, 1041, -859, 1284, -601}, // Angola - offshore blocks 2 3 17-18 and 31-33
    {13793, -6950, -3875, -6825, -3750}, // Argentina - Neuquen province Auca Mahuida area
    {64292, 586, 4727, 1384, 5509}, // Germany - West Germany all states
    {191160, 3915, 3533, 4041, 3590}, // Syria - Al Whaleed area
    {191189, 4050, 3579, 4139, 3650}, // Syria - Shaddadeh area
    {191177, 3930, 3449, 4081, 3590}, // Syria - Deir area
    {49240, -505, 5103, 1114, 6201}, // Europe - North Sea
    {139700, -335, 6500, 3801, 8473}, // Norway - offshore north of 65°N; Svalbard
    {139654, 137, 5608, 1114, 6200}, // Norway - North Sea - offshore south of 62°N
    {189062, 112, 3859, 439, 4015}, // Spain - Balearic Islands
    {189262, -754, 3526, 339, 4356}, // Spain - mainland except northwest
    {189286, -937, 4150, -450, 4382}, // Spain - mainland northwest
    {49250, -956, 3526, 339, 4382}, // Europe - Portugal and Spain
    {75766, 808, 3882, 989, 4131}, // Italy - Sardinia onshore
    {75820, 1236, 3659, 1571, 3835}, // Italy - Sicily onshore
    {46884, 3234, 2719, 3427, 3001}, // Egypt - Gulf of Suez
    {49311, -1610, 4742, 1086, 6389}, // Europe - common offshore
    {48656, -1056, 4911, 184, 6090}, // Europe - British Isles and Channel Islands onshore
    {49124, 468, 5793, 3159, 7121}, // Europe - Finland and Norway - onshore
    {15567, 3417, 1637, 5567, 3739}, // Asia - Middle East - Iraq; Israel; Jordan; Lebanon; Kuwait; Saudi Arabia; Syria
    {227053, -18000, -9000, 18000, 9000}, // World - WGS72 BE to WGS 84 - by country
    {25668, 11409, 401, 11537, 511}, // Brunei - onshore
    {97038, 3191, -2687, 3450, -2391}, // Mozambique - A
    {97049, 3129, -2491, 3565, -1974}, // Mozambique - B
    {97060, 3021, -1991, 3918, -1401}, // Mozambique - C
    {97071, 3436, -1694, 4090, -1042}, // Mozambique - D
    {73648, 10879, -424, 11906, 437}, // Indonesia - Kalimantan
    {50676, -5998, -5251, -5760, -5116}, // Falkland Islands - East Falkland Island
    {46837, -9172, -141, -8919, 18}, // Ecuador - Galapagos onshore
    {13885, -6864, -5511, -6373, -5259}, // Argentina - Tierra del Fuego onshore
    {194103, 10216, 674, 10305, 816}, // Thailand - Bongkot field
    {208504, 10561, 1400, 10936, 1801}, // Vietnam - 14°N to 18°N onshore
    {208735, 10648, 857, 10680, 883}, // Vietnam - Con Son Island
    {97346, 9394, 948, 9966, 1787}, // Myanmar (Burma) - Moattama area
    {74919, 5180, 2730, 5301, 2820}, // Iran - Kangan district
    {208238, -6749, 356, -5980, 1080}, // Venezuela - east
    {149825, 11689, 775, 12588, 1945}, // Philippines - onshore excluding Mindanao
    {149797, 11976, 499, 12665, 1052}, // Philippines - Mindanao onshore
    {189303, -937, 3595, 339, 4382}, // Spain - mainland onshore
    {185156, 5530, -486, 5559, -450}, // Seychelles - Mahe Island
    {49325, 1338, 4085, 2304, 4688}, // Europe - former Yugoslavia onshore
    {137886, 435, 422, 945, 695}, // Nigeria - south
    {75880, 662, 3786, 1858, 4710}, // Italy - mainland
    {198832, 16765, 4788, -12999, 7471}, // USA - Alaska including EEZ
    {199070, -12917, 2381, -6569, 4938}, // USA - CONUS including EEZ
    {31121, -11000, 4900, -10134, 6001}, // Canada - Saskatchewan
    {29849, -12000, 4899, -10998, 6000}, // Canada - Alberta
    {199340, -7949, 3797, -7497, 3985}, // USA - Delaware and Maryland
    {201816, -7373, 4098, -6986, 4531}, // USA - New England - south (CT, MA, NH, RI, VT)
    {202910, -10000, 2583, -9350, 3458}, // USA - Texas east of 100°W
    {202923, -10666, 2804, -10000, 3650}, // USA - Texas west of 100°W
    {202700, -12479, 4198, -11647, 4905}, // USA - Oregon and Washington
    {199728, -11300, 4199, -10404, 4901}, // USA - Idaho and Montana - east of 113°W
    {199746, -11724, 4199, -11300, 4901}, // USA - Idaho and Montana - west of 113°W
    {29934, -13904, 4825, -10998, 6001}, // Canada - Alberta and British Columbia
    {148422, -8007, 882, -7946, 945}, // Panama - Canal Zone
    {65195, -7329, 7586, -6098, 7920}, // Greenland - Hayes Peninsula
    {198667, -17830, 5154, -16484, 5434}, // USA - Alaska - Aleutian Islands east of 180°E
    {198691, 17242, 5130, 17986, 5307}, // USA - Alaska - Aleutian Islands west of 180°W
    {199044, -9722, 2441, -6691, 4938}, // USA - CONUS east of Mississippi River - onshore
    {199088, -12479, 2583, -8964, 4905}, // USA - CONUS west of Mississippi River - onshore
    {143732, 5858, 2012, 5901, 2074}, // Oman - Masirah Island
    {196094, 5303, 2533, 5340, 2554}, // UAE - Abu al Bu Khoosh
    {6680, 559, 3148, 650, 3209}, // Algeria - Hassi Messaoud
    {197469, -650, 4981, 184, 5585}, // UK - England
    {197477, -650, 4981, 184, 5585}, // UK - England and Wales, Isle of Man
    {197768, -874, 5457, -65, 6090}, // UK - Scotland
    {197793, -534, 5128, -265, 5348}, // UK - Wales
    {188004, -8141, -4350, -5647, 1225}, // South America - Bolivia; Chile; Ecuador; Guyana; Peru; Venezuela
    {24073, -6896, -1443, -6779, -1356}, // Bolivia - Madidi
    {24059, -6344, -2171, -6295, -2109}, // Bolivia - Block 20
    {32573, -7049, -2151, -6818, -1750}, // Chile - onshore north of 21°30'S
    {32555, -7448, -4350, -7138, -3899}, // Chile - onshore 39°S to 43°30'S
    {143743, 5650, 1958, 5902, 2117}, // Oman - block 4
    {81252, 4890, 4115, 5315, 4697}, // Kazakhstan - Caspian Sea
    {167094, 5055, 2464, 5304, 2705}, // Qatar - offshore
    {65348, -5500, 5975, -4000, 7200}, // Greenland - south of 72°N
    {77979, 12283, 2398, 13138, 2691}, // Japan - Okinawa
    {15300, 12283, 2037, 14587, 4554}, // Asia - Japan and South Korea
    {30220, -13646, 4900, -6072, 8317}, // Canada - NWT; Nunavut; Saskatchewan
    {15211, 6813, 802, 9742, 3551}, // Asia - India mainland and Nepal
    {198850, -16826, 5434, -12999, 7140}, // USA - Alaska mainland
    {19406, -7904, 2086, -7268, 2729}, // Bahamas - main islands onshore
    {19388, -7460, 2390, -7437, 2419}, // Bahamas (San Salvador Island) - onshore
    {30119, -10200, 4167, -7435, 6001}, // Canada - Manitoba and Ontario
    {31155, -7985, 4341, -5254, 6262}, // Canada - eastern provinces
    {31135, -14101, 5999, -12391, 6970}, // Canada - Yukon
    {31603, -8501, 1300, -5937, 2325}, // Caribbean - central (DMA tfm)
    {32029, -9229, 798, -8253, 1849}, // Central America - Belize to Costa Rica
    {49545, -956, 3488, 3159, 7121}, // Europe - west (DMA ED50 mean)
    {49567, -487, 4233, 1717, 5780}, // Europe - west central (by country)
    {48989, 1957, 3514, -16897, 8191}, // Europe - FSU onshore
    {77913, 14156, 4533, 14200, 4554}, // Japan - 45°20'N to 46°N; 141°E to 142°E
    {202900, -10500, 2778, -9376, 3067}, // USA - Texas - SPCS83 - SC
    {202890, -10020, 2583, -9685, 2821}, // USA - Texas - SPCS83 - S
    {201187, -9394, 2885, -8875, 3107}, // USA - Louisiana - SPCS83 - S
    {197740, -818, 5396, -534, 5536}, // UK - Northern Ireland - onshore
    {40556, 800, 5467, 1129, 5780}, // Denmark - onshore Jutland and Funen
    {40617, 1079, 5451, 1269, 5679}, // Denmark - onshore Zealand and Lolland
    {40541, 1459, 5494, 1525, 5538}, // Denmark - onshore Bornholm
    {64262, 658, 5233, 1159, 5509}, // Germany - West Germany N
    {64247, 586, 5033, 1203, 5234}, // Germany - West Germany C
    {64277, 611, 4727, 1384, 5034}, // Germany - West Germany S
    {64130, 992, 5020, 1256, 5164}, // Germany - Thuringen
    {64078, 1189, 5020, 1504, 5166}, // Germany - Saxony
    {173586, 2864, 4344, 3141, 4520}, // Romania - offshore
    {29225, 845, 216, 1040, 499}, // Cameroon - coastal area
    {65334, -6506, 8100, -1181, 8367}, // Greenland - north of 81°N
    {65271, -4400, 7800, -1433, 8100}, // Greenland - east - 78°N to 81°N
    {65252, -4400, 7500, -1712, 7800}, // Greenland - east - 75°N to 78°N
    {65233, -3800, 7200, -1721, 7500}, // Greenland - east - 72°N to 75°N
    {65213, -2969, 6866, -1989, 7458}, // Greenland - Scoresbysund area
    {65177, -3886, 6552, -3681, 6591}, // Greenland - Ammassalik area
    {65380, -4800, 5974, -4252, 6205}, // Greenland - southwest coast east of 48°W
    {65361, -5400, 6063, -4800, 7305}, // Greenland - southwest coast 54°W to 48°W
    {35452, 884, -691, 1234, -355}, // Congo - coastal area and offshore
    {17129, 11285, -4370, 15369, -986}, // Australia - onshore
    {16408, 10923, -3853, 15361, -937}, // Australia - AGD84
    {73526, 10577, -689, 11001, -407}, // Indonesia - Java Sea - offshore northwest Java
    {73466, 11280, -846, 11701, -680}, // Indonesia - Bali Sea west
    {73755, 13189, -294, 13382, -197}, // Indonesia - West Papua - Tangguh
    {29194, 1290, 892, 1419, 987}, // Cameroon - Garoua area
    {29208, 1417, 1170, 1509, 1277}, // Cameroon - N'Djamena area
    {14963, 3999, 3789, 5173, 4359}, // Asia - FSU - Azerbaijan and Georgia
    {18009, 4893, 3831, 5040, 4033}, // Azerbaijan - coastal area Baku to Astara
    {46901, 2470, 2571, 3000, 3168}, // Egypt - Western Desert
    {13855, -6862, -5461, -6600, -5165}, // Argentina - Tierra del Fuego offshore west of 66°W
    {13825, -6600, -5493, -6149, -5136}, // Argentina - Tierra del Fuego offshore east of 66°W
    {6647, 100, 2500, 330, 3200}, // Algeria - District 3
    {6720, 883, 2750, 992, 2830}, // Algeria - In Amenas
    {6660, 716, 3175, 800, 3242}, // Algeria - Hassi Bir Reikaz
    {139675, -335, 6200, 3801, 8473}, // Norway - offshore north of 62°N; Svalbard
    {15627, 3417, 2945, 3569, 3328}, // Asia - Middle East - Israel and Palestine Territory onshore
    {48752, 1957, 4824, 2250, 5910}, // Europe - FSU - 19.5°E to 22.5°E onshore
    {48770, 2250, 4771, 2550, 5975}, // Europe - FSU - 22.5°E to 25.5°E onshore
    {48789, 2549, 4526, 2851, 6893}, // Europe - FSU - 25.5°E to 28.5°E onshore
    {48808, 2850, 4518, 3150, 6985}, // Europe - FSU - 28.5°E to 31.5°E onshore
    {48827, 3150, 4432, 3450, 7002}, // Europe - FSU - 31.5°E to 34.5°E onshore
    {48846, 3450, 4461, 3750, 6939}, // Europe - FSU - 34.5°E to 37.5°E onshore
    {48865, 3750, 4307, 4050, 6880}, // Europe - FSU - 37.5°E to 40.5°E onshore
    {48884, 4050, 4101, 4351, 6874}, // Europe - FSU - 40.5°E to 43.5°E onshore
    {48903, 4350, 3884, 4650, 8080}, // Europe - FSU - 43.5°E to 46.5°E onshore
    {48922, 4650, 3831, 4950, 8091}, // Europe - FSU - 46.5°E to 49.5°E onshore
    {14742, 4950, 3766, 5250, 8122}, // Asia - FSU - 49.5°E to 52.5°E onshore
    {14759, 5250, 3733, 5550, 8141}, // Asia - FSU - 52.5°E to 55.5°E onshore
    {14776, 5550, 3764, 5850, 8189}, // Asia - FSU - 55.5°E to 58.5°E onshore
    {14793, 5850, 3551, 6150, 8191}, // Asia - FSU - 58.5°E to 61.5°E onshore
    {14810, 6150, 3514, 6450, 8177}, // Asia - FSU - 61.5°E to 64.5°E onshore
    {14827, 6450, 3627, 6750, 8125}, // Asia - FSU - 64.5°E to 67.5°E onshore
    {14844, 6750, 3693, 7050, 7707}, // Asia - FSU - 67.5°E to 70.5°E onshore
    {14861, 7050, 3667, 7350, 7357}, // Asia - FSU - 70.5°E to 73.5°E onshore
    {14878, 7350, 3722, 7650, 7971}, // Asia - FSU - 73.5°E to 76.5°E onshore
    {14895, 7650, 4044, 7950, 8103}, // Asia - FSU - 76.5°E to 79.5°E onshore
    {14912, 7950, 4182, 8250, 8103}, // Asia - FSU - 79.5°E to 82.5°E onshore
    {14929, 8250, 4511, 8550, 7756}, // Asia - FSU - 82.5°E to 85.5°E onshore
    {14946, 8550, 4705, 8850, 7716}, // Asia - FSU - 85.5°E to 88.5°E onshore
    {174826, 8850, 4944, 9150, 8128}, // Russia - 88.5°E to 91.5°E onshore
    {174852, 9150, 5016, 9450, 8126}, // Russia - 91.5°E to 94.5°E onshore
    {174866, 9450, 4973, 9750, 8135}, // Russia - 94.5°E to 97.5°E onshore
    {174892, 9750, 4979, 10050, 8090}, // Russia - 97.5°E to 100.5°E onshore
    {173750, 10050, 5017, 10350, 7971}, // Russia - 100.5°E to 103.5°E onshore
    {173776, 10350, 5013, 10650, 7921}, // Russia - 103.5°E to 106.5°E onshore
    {173790, 10650, 4925, 10950, 7840}, // Russia - 106.5°E to 109.5°E onshore
    {173816, 10950, 4914, 11250, 7681}, // Russia - 109.5°E to 112.5°E onshore
    {173830, 11250, 4949, 11550, 7670}, // Russia - 112.5°E to 115.5°E onshore
    {173855, 11550, 4951, 11850, 7443}, // Russia - 115.5°E to 118.5°E onshore
    {173869, 11850, 4987, 12150, 7363}, // Russia - 118.5°E to 121.5°E onshore
    {173895, 12150, 5318, 12450, 7400}, // Russia - 121.5°E to 124.5°E onshore
    {173910, 12450, 4988, 12750, 7400}, // Russia - 124.5°E to 127.5°E onshore
    {173937, 12750, 4267, 13050, 7359}, // Russia - 127.5°E to 130.5°E onshore
    {173951, 13050, 4225, 13350, 7199}, // Russia - 130.5°E to 133.5°E onshore
    {173979, 13350, 4274, 13650, 7590}, // Russia - 133.5°E to 136.5°E onshore
    {173994, 13650, 4476, 13950, 7627}, // Russia - 136.5°E to 139.5°E onshore
    {174022, 13950, 4584, 14250, 7623}, // Russia - 139.5°E to 142.5°E onshore
    {174037, 14250, 4361, 14550, 7598}, // Russia - 142.5°E to 145.5°E onshore
    {174065, 14550, 4360, 14850, 7676}, // Russia - 145.5°E to 148.5°E onshore
    {174080, 14850, 4521, 15150, 7682}, // Russia - 148.5°E to 151.5°E onshore
    {174108, 15150, 4672, 15450, 7626}, // Russia - 151.5°E to 154.5°E onshore
    {174123, 15450, 4902, 15750, 7720}, // Russia - 154.5°E to 157.5°E onshore
    {174151, 15750, 5136, 16050, 7112}, // Russia - 157.5°E to 160.5°E onshore
    {174166, 16050, 5434, 16350, 7098}, // Russia - 160.5°E to 163.5°E onshore
    {174194, 16350, 5469, 16650, 6982}, // Russia - 163.5°E to 166.5°E onshore
    {174209, 16650, 5445, 16950, 7007}, // Russia - 166.5°E to 169.5°E onshore
    {174237, 16950, 5986, 17250, 7019}, // Russia - 169.5°E to 172.5°E onshore
    {174252, 17250, 6099, 17550, 7002}, // Russia - 172.5°E to 175.5°E onshore
    {174296, 17550, 6209, 17850, 7110}, // Russia - 175.5°E to 178.5°E onshore
    {174327, 17850, 6224, -17850, 7165}, // Russia - 178.5°E to 178.5°W onshore
    {174342, -17850, 6474, -17550, 7161}, // Russia - 178.5°W to 175.5°W onshore
    {174311, -17550, 6420, -17250, 6778}, // Russia - 175.5°W to 172.5°W onshore
    {174267, -17250, 6435, -16957, 6706}, // Russia - 172.5°W to 169.5°W onshore
    {174906, -16922, 6570, -16897, 6586}, // Russia - east of 169.5°W onshore
    {33212, 7362, 3581, 7650, 4065}, // China - west of 76.5°E
    {32916, 7650, 3103, 7950, 4183}, // China - 76.5°E to 79.5°E
    {32940, 7950, 2995, 8251, 4588}, // China - 79.5°E to 82.5°E
    {32953, 8250, 2826, 8550, 4723}, // China - 82.5°E to 85.5°E
    {32977, 8550, 2780, 8850, 4918}, // China - 85.5°E to 88.5°E
    {32990, 8849, 2732, 9151, 4842}, // China - 88.5°E to 91.5°E
    {33014, 9150, 2771, 9450, 4513}, // China - 91.5°E to 94.5°E
    {33027, 9450, 2823, 9751, 4450}, // China - 94.5°E to 97.5°E
    {33051, 9750, 2143, 10050, 4276}, // China - 97.5°E to 100.5°E
    {32649, 10050, 2113, 10350, 4269}, // China - 100.5°E to 103.5°E
    {32685, 10350, 2250, 10651, 4221}, // China - 103.5°E to 106.5°E
    {32698, 10650, 1819, 10951, 4247}, // China - 106.5°E to 109.5°E onshore
    {32735, 10950, 1811, 11250, 4511}, // China - 109.5°E to 112.5°E onshore
    {32749, 11250, 2152, 11550, 4545}, // China - 112.5°E to 115.5°E onshore
    {32784, 11550, 2260, 11850, 4988}, // China - 115.5°E to 118.5°E onshore
    {32798, 11850, 2443, 12150, 5333}, // China - 118.5°E to 121.5°E onshore
    {32835, 12150, 2822, 12450, 5356}, // China - 121.5°E to 124.5°E onshore
    {32850, 12450, 4019, 12750, 5320}, // China - 124.5°E to 127.5°E onshore
    {32889, 12750, 4137, 13050, 5025}, // China - 127.5°E to 130.5°E
    {32902, 13050, 4242, 13350, 4888}, // China - 130.5°E to 133.5°E
    {33139, 13350, 4585, 13477, 4840}, // China - east of 133.5°E
    {174373, 1957, 5432, 2250, 5532}, // Russia - 19.5°E to 22.5°E onshore
    {174386, 2250, 5434, 2287, 5507}, // Russia - 22.5°E to 25.5°E onshore
    {174412, 2661, 5605, 2851, 6893}, // Russia - 25.5°E to 28.5°E onshore
    {174426, 2850, 5285, 3150, 6985}, // Russia - 28.5°E to 31.5°E onshore
    {174452, 3150, 5124, 3450, 7002}, // Russia - 31.5°E to 34.5°E onshore
    {174466, 3450, 4461, 3751, 6939}, // Russia - 34.5°E to 37.5°E onshore
    {174492, 3750, 4333, 4050, 6880}, // Russia - 37.5°E to 40.5°E onshore
    {174506, 4050, 4287, 4350, 6874}, // Russia - 40.5°E to 43.5°E onshore
    {174532, 4350, 4189, 4650, 8080}, // Russia - 43.5°E to 46.5°E onshore
    {174546, 4650, 4119, 4950, 8091}, // Russia - 46.5°E to 49.5°E onshore
    {174572, 4950, 4236, 5250, 8122}, // Russia - 49.5°E to 52.5°E onshore
    {174586, 5250, 5052, 5550, 8141}, // Russia - 52.5°E to 55.5°E onshore
    {174612, 5550, 5053, 5850, 8189}, // Russia - 55.5°E to 58.5°E onshore
    {174626, 5850, 5047, 6150, 8191}, // Russia - 58.5°E to 61.5°E onshore
    {174652, 6150, 5103, 6450, 8177}, // Russia - 61.5°E to 64.5°E onshore
    {174666, 6450, 5431, 6750, 8125}, // Russia - 64.5°E to 67.5°E onshore
    {174692, 6750, 5485, 7050, 7707}, // Russia - 67.5°E to 70.5°E onshore
    {174706, 7050, 5343, 7350, 7357}, // Russia - 70.5°E to 73.5°E onshore
    {174732, 7350, 5347, 7650, 7971}, // Russia - 73.5°E to 76.5°E onshore
    {174746, 7650, 5149, 7950, 8103}, // Russia - 76.5°E to 79.5°E onshore
    {174772, 7950, 5070, 8250, 8103}, // Russia - 79.5°E to 82.5°E onshore
    {174786, 8250, 4958, 8550, 7756}, // Russia - 82.5°E to 85.5°E onshore
    {174812, 8550, 4907, 8850, 7716}, // Russia - 85.5°E to 88.5°E onshore
    {73802, 11696, -6, 11906, 429}, // Indonesia - northeast Kalimantan
    {137521, 781, 1280, 1490, 1670}, // Niger - southeast
    {14986, 3999, 4137, 4304, 4359}, // Asia - FSU - CS63 zone A1
    {15000, 4303, 3887, 4604, 4305}, // Asia - FSU - CS63 zone A2
    {15014, 4603, 3838, 4904, 4210}, // Asia - FSU - CS63 zone A3
    {15028, 4903, 3789, 5173, 4259}, // Asia - FSU - CS63 zone A4
    {15042, 4926, 4115, 5227, 5177}, // Asia - FSU - CS63 zone K2
    {15056, 5226, 4146, 5527, 5179}, // Asia - FSU - CS63 zone K3
    {15070, 5526, 4126, 5827, 5114}, // Asia - FSU - CS63 zone K4
    {151450, -1611, 2998, -1579, 3021}, // Portugal - Selvagens onshore
    {91632, 10931, 156, 11731, 767}, // Malaysia - East Malaysia - offshore SCS
    {74934, 5022, 2916, 5042, 2939}, // Iran - Kharg Island
    {74945, 5249, 2621, 5343, 2687}, // Iran - Lavan Island and Balal field
    {74982, 5207, 2658, 5228, 2671}, // Iran - South Pars blocks 2 and 3
    {85671, 1837, 2732, 1872, 2767}, // Libya - Murzuq and En Naga
    {85659, 1713, 2961, 1751, 3007}, // Libya - Mabruk
    {96867, -1324, 2766, -359, 3151}, // Morocco - south of 31.5°N
    {223767, -1542, 2429, -866, 2767}, // Western Sahara - north of 24.3°N
    {223787, -1716, 2071, -1200, 2431}, // Western Sahara - south of 24.3°N
    {5008, -1719, 1026, 3042, 1570}, // Africa - 12th parallel N
    {5282, -464, 1183, 400, 1423}, // Africa - Burkina Faso and SW Niger
    {32494, -7483, -5596, -6633, -5199}, // Chile - Tierra del Fuego
    {35334, 4316, -1199, 4355, -1131}, // Comoros - Njazidja (Grande Comore)
    {53742, -14031, -901, -13996, -872}, // French Polynesia - Marquesas Islands - Nuku Hiva
    {54003, -15000, -1793, -14909, -1741}, // French Polynesia - Society Islands - Moorea and Tahiti
    {53902, -15191, -1696, -15089, -1617}, // French Polynesia - Society Islands - Bora Bora, Huahine, Raiatea, Tahaa
    {135730, 16644, -2077, 16671, -2034}, // New Caledonia - Ouvea
    {135675, 16698, -2124, 16752, -2062}, // New Caledonia - Lifou
    {222889, -17625, -1341, -17607, -1316}, // Wallis and Futuna - Wallis
    {54293, 6869, -4978, 7062, -4860}, // French Southern Territories - Kerguelen onshore
    {10327, 13944, -6678, 14150, -6610}, // Antarctica - Adelie Land - Petrels island
    {10349, 13600, -6713, 14200, -6561}, // Antarctica - Adelie Land coastal area
    {135686, 16775, -2171, 16819, -2132}, // New Caledonia - Mare
    {135659, 16736, -2273, 16761, -2249}, // New Caledonia - Ile des Pins
    {135576, 16354, -1985, 16375, -1950}, // New Caledonia - Belep
    {135625, 16392, -2245, 16709, -2003}, // New Caledonia - Grande Terre
    {135639, 16635, -2237, 16654, -2219}, // New Caledonia - Grande Terre - Noumea
    {31473, -6366, 1408, -5752, 1853}, // Caribbean - French Antilles
    {5394, 2999, 349, 3600, 2224}, // Africa - Ethiopia and Sudan - 30°E to 36°E
    {5605, 2399, 421, 3001, 2201}, // Africa - South Sudan and Sudan - 24°E to 30°E
    {65773, -6321, 1782, -6273, 1817}, // Guadeloupe - St Martin and St Barthelemy - onshore
    {65741, -6185, 1580, -6097, 1655}, // Guadeloupe - Grande-Terre and surrounding islands - onshore
    {29958, -6775, 4000, -4399, 6421}, // Canada - Atlantic offshore
    {29974, -13904, 4825, -11408, 6001}, // Canada - British Columbia
    {190681, 1093, 5674, 1311, 6013}, // Sweden - 12 00
    {190692, 1212, 5528, 1479, 6228}, // Sweden - 13 30
    {190714, 1354, 5595, 1615, 6162}, // Sweden - 15 00
    {190736, 1541, 5615, 1763, 6226}, // Sweden - 16 30
    {190758, 1708, 5866, 1961, 6070}, // Sweden - 18 00
    {190703, 1193, 6155, 1555, 6439}, // Sweden - 14 15
    {190725, 1366, 6044, 1701, 6513}, // Sweden - 15 45
    {190747, 1431, 6212, 1904, 6719}, // Sweden - 17 15
    {190769, 1718, 5686, 2022, 6617}, // Sweden - 18 45
    {190804, 1608, 6345, 2328, 6907}, // Sweden - 20 15
    {190814, 1963, 6501, 2291, 6643}, // Sweden - 21 45
    {190825, 2185, 6549, 2417, 6814}, // Sweden - 23 15
    {190858, 1093, 5729, 1291, 5973}, // Sweden - 7.5 gon W
    {190847, 1181, 5528, 1544, 6439}, // Sweden - 5 gon W
    {190792, 1366, 5595, 1773, 6718}, // Sweden - 2.5 gon W
    {190671, 1608, 5686, 2022, 6854}, // Sweden - 0 gon
    {190780, 1840, 6337, 2220, 6907}, // Sweden - 2.5 gon E
    {190836, 2134, 6524, 2417, 6858}, // Sweden - 5 gon E
    {71458, -2466, 6471, -2400, 6585}, // Iceland - mainland west of 24°W
    {71424, -2400, 6334, -1800, 6652}, // Iceland - mainland 24°W to 18°W
    {71441, -1800, 6345, -1338, 6658}, // Iceland - mainland east of 18°W
    {48404, -3000, 2510, -2400, 6580}, // Europe - 30°W to 24°W
    {48297, -2400, 2760, -1800, 6650}, // Europe - 24°W to 18°W
    {64451, 334, 5097, 600, 5592}, // Germany - west of 6°E
    {63941, 600, 4727, 1200, 5547}, // Germany - 6°E to 12°E
    {64335, 1157, 4746, 1504, 5503}, // Germany - east of 12°E
    {48455, 4200, 3695, 4800, 7500}, // Europe - 42°E to 48°E
    {48506, 4800, 3600, 5400, 7500}, // Europe - 48°E to 54°E
    {77765, -917, 7075, -787, 7124}, // Jan Mayen - onshore
    {151366, -1731, 3258, -1623, 3315}, // Portugal - Madeira and Porto Santo islands onshore
    {151206, -2592, 3765, -2508, 3796}, // Portugal - Azores E - S Miguel onshore
    {151170, -2744, 3857, -2697, 3886}, // Portugal - Azores C - Terceira onshore
    {151090, -2890, 3846, -2854, 3870}, // Portugal - Azores C - Faial onshore
    {151131, -2861, 3832, -2798, 3861}, // Portugal - Azores C - Pico onshore
    {151149, -2837, 3848, -2771, 3880}, // Portugal - Azores C - S Jorge onshore
    {15538, 4636, 2906, 4861, 3032}, // Asia - Middle East - Iraq-Kuwait boundary
    {64348, 334, 5360, 888, 5592}, // Germany - offshore North Sea
    {10442, 4500, -8000, 16000, -6000}, // Antarctica - Australian sector north of 80°S
    {49165, -3558, 2460, 4483, 8473}, // Europe - LCC & LAEA
    {75667, 1222, 4362, 1396, 4573}, // Italy - Adriatic - North Ancona
    {75686, 1361, 4195, 1614, 4404}, // Italy - Adriatic - South Ancona / North Gargano
    {75712, 1595, 4072, 1863, 4228}, // Italy - Adriatic - South Gargano
    {75749, 1795, 3977, 1899, 4103}, // Italy - Otranto channel
    {75890, 1655, 3767, 1893, 4047}, // Italy - north Ionian Sea
    {75778, 1300, 3522, 1516, 3748}, // Italy - Sicily Strait east of 13°E
    {75799, 1068, 3528, 1301, 3845}, // Italy - Sicily Strait west of 13°E
    {136005, -17725, -4464, -17554, -4330}, // New Zealand - Chatham Islands group
    {15686, 2803, 3135, 4147, 4345}, // Asia - Middle East - Israel, Palestine Territory, Turkey - offshore
    {63971, 1309, 5233, 1376, 5265}, // Germany - Berlin
    {77792, 12362, 2398, 12551, 2494}, // Japan - 120°E to 126°E onshore
    {77818, 12663, 2440, 13200, 3490}, // Japan - 126°E to 132°E onshore
    {77845, 13200, 2037, 13800, 3758}, // Japan - 132°E to 138°E onshore
    {77872, 13800, 2467, 14400, 4554}, // Japan - 138°E to 144°E onshore
    {77899, 14400, 4284, 14587, 4440}, // Japan - 144°E to 150°E onshore
    {83543, 4654, 2910, 4842, 3009}, // Kuwait - north of 29.25°N
    {83569, 4654, 2853, 4848, 2945}, // Kuwait - south of 29.25°N
    {201225, -7109, 4307, -6960, 4658}, // USA - Maine - CS2000 - W
    {201203, -7003, 4375, -6833, 4747}, // USA - Maine - CS2000 - C
    {201214, -6858, 4418, -6691, 4737}, // USA - Maine - CS2000 - E
    {75219, -1250, 5375, -949, 5576}, // Ireland - Corrib and Errigal
    {24816, -4880, -2841, -4020, -2266}, // Brazil - Santos
    {24576, -4204, -2591, -3711, -2045}, // Brazil - Campos
    {24716, -4037, -2204, -3518, -1759}, // Brazil - Espirito Santo and Mucuri
    {24759, -5338, -3571, -4471, -2811}, // Brazil - Pelotas
    {24974, -5338, -3400, -3519, -1800}, // Brazil - offshore 18°S to 34°S
    {93163, -1708, 1937, -1588, 2134}, // Mauritania - north coast
    {93137, -1657, 1681, -1559, 1941}, // Mauritania - central coast
    {93151, -600, 1549, -480, 2574}, // Mauritania - east of 6°W
    {93096, -1200, 1475, -600, 2730}, // Mauritania - 12°W to 6°W
    {93185, -1708, 1472, -1200, 2346}, // Mauritania - west of 12°W onshore
    {93121, -1611, 1789, -1583, 1825}, // Mauritania - Nouakchutt
    {137620, 266, 192, 849, 638}, // Nigeria - offshore
    {148045, 6683, 2469, 6800, 2576}, // Pakistan - Karachi
    {148019, 6827, 2416, 7114, 2861}, // Pakistan - East Sind
    {148002, 6774, 2400, 6987, 2564}, // Pakistan - Badin and Mehran
    {148092, 6400, 2105, 6824, 2539}, // Pakistan - offshore Indus
    {16576, 12899, -3813, 14101, -2599}, // Australia - SA
    {85637, 2080, 2910, 2140, 2980}, // Libya - Amal
    {32230, -272, 4877, -181, 4944}, // Channel Islands - Jersey, Les Ecrehos and Les Minquiers
    {32202, -373, 4911, -202, 5016}, // Channel Islands - Guernsey, Alderney, Sark
    {16441, 15237, -2936, 15369, -2464}, // Australia - Brisbane
    {7776, -7200, -6400, -6000, -6000}, // Antarctica - 60°S to 64°S, 72°W to 60°W (SP19-20)
    {7748, -6000, -6400, -4800, -6000}, // Antarctica - 60°S to 64°S, 60°W to 48°W (SP21-22)
    {7720, -4800, -6400, -3600, -6000}, // Antarctica - 60°S to 64°S, 48°W to 36°W (SP23-24)
    {7949, -18000, -6800, -16800, -6400}, // Antarctica - 64°S to 68°S, 180°W to 168°W (SQ01-02)
    {8125, -7200, -6800, -6000, -6400}, // Antarctica - 64°S to 68°S, 72°W to 60°W (SQ19-20)
    {8067, -6000, -6800, -4800, -6400}, // Antarctica - 64°S to 68°S, 60°W to 48°W (SQ21-22)
    {7980, 3600, -6800, 4800, -6400}, // Antarctica - 64°S to 68°S, 36°E to 48°E (SQ37-38)
    {8009, 4800, -6800, 6000, -6400}, // Antarctica - 64°S to 68°S, 48°E to 60°E (SQ39-40)
    {8038, 6000, -6800, 7200, -6400}, // Antarctica - 64°S to 68°S, 60°E to 72°E (SQ41-42)
    {8096, 7200, -6800, 8400, -6400}, // Antarctica - 64°S to 68°S, 72°E to 84°E (SQ43-44)
    {8152, 8400, -6800, 9600, -6400}, // Antarctica - 64°S to 68°S, 84°E to 96°E (SQ45-46)
    {8181, 9600, -6800, 10800, -6400}, // Antarctica - 64°S to 68°S, 96°E to 108°E (SQ47-48)
    {7802, 10800, -6800, 12000, -6400}, // Antarctica - 64°S to 68°S, 108°E to 120°E (SQ49-50)
    {7830, 12000, -6800, 13200, -6400}, // Antarctica - 64°S to 68°S, 120°E to 132°E (SQ51-52)
    {7859, 13200, -6800, 14400, -6400}, // Antarctica - 64°S to 68°S, 132°E to 144°E (SQ53-54)
    {7889, 14400, -6800, 15600, -6400}, // Antarctica - 64°S to 68°S, 144°E to 156°E (SQ55-56)
    {7919, 15600, -6800, 16800, -6400}, // Antarctica - 64°S to 68°S, 156°E to 168°E (SQ57-58)
    {8265, -10800, -7200, -9600, -6800}, // Antarctica - 68°S to 72°S, 108°W to 96°W (SR13-14)
    {8787, -9600, -7200, -8400, -6800}, // Antarctica - 68°S to 72°S, 96°W to 84°W (SR15-16)
    {8729, -8400, -7200, -7200, -6800}, // Antarctica - 68°S to 72°S, 84°W to 72°W (SR17-18)
    {8673, -7200, -7200, -6000, -6800}, // Antarctica - 68°S to 72°S, 72°W to 60°W (SR19-20)
    {8529, -2400, -7200, -1200, -6800}, // Antarctica - 68°S to 72°S, 24°W to 12°W (SR27-28)
    {8352, -1200, -7200, 0, -6800}, // Antarctica - 68°S to 72°S, 12°W to 0°W (SR29-30)
    {8210, 0, -7200, 1200, -6800}, // Antarctica - 68°S to 72°S, 0°E to 12°E (SR31-32)
    {8323, 1200, -7200, 2400, -6800}, // Antarctica - 68°S to 72°S, 12°E to 24°E (SR33-34)
    {8500, 2400, -7200, 3600, -6800}, // Antarctica - 68°S to 72°S, 24°E to 36°E (SR35-36)
    {8557, 3600, -7200, 4800, -6800}, // Antarctica - 68°S to 72°S, 36°E to 48°E (SR37-38)
    {8586, 4800, -7200, 6000, -6800}, // Antarctica - 68°S to 72°S, 48°E to 60°E (SR39-40)
    {8615, 6000, -7200, 7200, -6800}, // Antarctica - 68°S to 72°S, 60°E to 72°E (SR41-42)
    {8644, 7200, -7200, 8400, -6800}, // Antarctica - 68°S to 72°S, 72°E to 84°E (SR43-44)
    {8700, 8400, -7200, 9600, -6800}, // Antarctica - 68°S to 72°S, 84°E to 96°E (SR45-46)
    {8758, 9600, -7200, 10800, -6800}, // Antarctica - 68°S to 72°S, 96°E to 108°E (SR47-48)
    {8237, 10800, -7200, 12000, -6800}, // Antarctica - 68°S to 72°S, 108°E to 120°E (SR49-50)
    {8294, 12000, -7200, 13200, -6800}, // Antarctica - 68°S to 72°S, 120°E to 132°E (SR51-52)
    {8380, 13200, -7200, 14400, -6800}, // Antarctica - 68°S to 72°S, 132°E to 144°E (SR53-54)
    {8410, 14400, -7200, 15600, -6800}, // Antarctica - 68°S to 72°S, 144°E to 156°E (SR55-56)
    {8440, 15600, -7200, 16800, -6800}, // Antarctica - 68°S to 72°S, 156°E to 168°E (SR57-58)
    {8470, 16800, -7200, 18000, -6800}, // Antarctica - 68°S to 72°S, 168°E to 180°E (SR59-60)
    {9051, -16200, -7600, -14400, -7200}, // Antarctica - 72°S to 76°S, 162°W to 144°W (SS04-06)
    {8990, -14400, -7600, -12600, -7200}, // Antarctica - 72°S to 76°S, 144°W to 126°W (SS07-09)
    {8931, -12600, -7600, -10800, -7200}, // Antarctica - 72°S to 76°S, 126°W to 108°W (SS10-12)
    {8872, -10800, -7600, -9000, -7200}, // Antarctica - 72°S to 76°S, 108°W to 90°W (SS13-15)
    {9311, -9000, -7600, -7200, -7200}, // Antarctica - 72°S to 76°S, 90°W to 72°W (SS16-18)
    {9254, -7200, -7600, -5400, -7200}, // Antarctica - 72°S to 76°S, 72°W to 54°W (SS19-21)
    {9168, -3600, -7600, -1800, -7200}, // Antarctica - 72°S to 76°S, 36°W to 18°W (SS25-27)
    {9111, -1800, -7600, 0, -7200}, // Antarctica - 72°S to 76°S, 18°W to 0°W (SS28-30)
    {8816, 0, -7600, 1800, -7200}, // Antarctica - 72°S to 76°S, 0°E to 18°E (SS31-33)
    {9082, 1800, -7600, 3600, -7200}, // Antarctica - 72°S to 76°S, 18°E to 36°E (SS34-36)
    {9139, 3600, -7600, 5400, -7200}, // Antarctica - 72°S to 76°S, 36°E to 54°E (SS37-39)
    {9196, 5400, -7600, 7200, -7200}, // Antarctica - 72°S to 76°S, 54°E to 72°E (SS40-42)
    {9225, 7200, -7600, 9000, -7200}, // Antarctica - 72°S to 76°S, 72°E to 90°E (SS43-45)
    {9282, 9000, -7600, 10800, -7200}, // Antarctica - 72°S to 76°S, 90°E to 108°E (SS46-48)
    {8843, 10800, -7600, 12600, -7200}, // Antarctica - 72°S to 76°S, 108°E to 126°E (SS49-51)
    {8901, 12600, -7600, 14400, -7200}, // Antarctica - 72°S to 76°S, 126°E to 144°E (SS52-54)
    {8960, 14400, -7600, 16200, -7200}, // Antarctica - 72°S to 76°S, 144°E to 162°E (SS55-57)
    {9021, 16200, -7600, 18000, -7200}, // Antarctica - 72°S to 76°S, 162°E to 180°E (SS58-60)
    {9577, -18000, -8000, -15600, -7600}, // Antarctica - 76°S to 80°S, 180°W to 156°W (ST01-04)
    {9546, -15600, -8000, -13200, -7600}, // Antarctica - 76°S to 80°S, 156°W to 132°W (ST05-08)
    {9486, -13200, -8000, -10800, -7600}, // Antarctica - 76°S to 80°S, 132°W to 108°W (ST09-12)
    {9369, -10800, -8000, -8400, -7600}, // Antarctica - 76°S to 80°S, 108°W to 84°W (ST13-16)
    {9753, -8400, -8000, -6000, -7600}, // Antarctica - 76°S to 80°S, 84°W to 60°W (ST17-20)
    {9695, -6000, -8000, -3600, -7600}, // Antarctica - 76°S to 80°S, 60°W to 36°W (ST21-24)
    {9637, -3600, -8000, -1200, -7600}, // Antarctica - 76°S to 80°S, 36°W to 12°W (ST25-28)
    {9427, -1200, -8000, 1200, -7600}, // Antarctica - 76°S to 80°S, 12°W to 12°E (ST29-32)
    {9398, 1200, -8000, 3600, -7600}, // Antarctica - 76°S to 80°S, 12°E to 36°E (ST33-36)
    {9608, 3600, -8000, 6000, -7600}, // Antarctica - 76°S to 80°S, 36°E to 60°E (ST37-40)
    {9666, 6000, -8000, 8400, -7600}, // Antarctica - 76°S to 80°S, 60°E to 84°E (ST41-44)
    {9724, 8400, -8000, 10800, -7600}, // Antarctica - 76°S to 80°S, 84°E to 108°E (ST45-48)
    {9340, 10800, -8000, 13200, -7600}, // Antarctica - 76°S to 80°S, 108°E to 132°E (ST49-52)
    {9456, 13200, -8000, 15600, -7600}, // Antarctica - 76°S to 80°S, 132°E to 156°E (ST53-56)
    {9516, 15600, -8000, 18000, -7600}, // Antarctica - 76°S to 80°S, 156°E to 180°E (ST57-60)
    {9925, -18000, -8400, -15000, -8000}, // Antarctica - 80°S to 84°S, 180°W to 150°W (SU01-05)
    {9896, -15000, -8400, -12000, -8000}, // Antarctica - 80°S to 84°S, 150°W to 120°W (SU06-10)
    {9838, -12000, -8400, -9000, -8000}, // Antarctica - 80°S to 84°S, 120°W to 90°W (SU11-15)
    {10099, -9000, -8400, -6000, -8000}, // Antarctica - 80°S to 84°S, 90°W to 60°W (SU16-20)
    {10042, -6000, -8400, -3000, -8000}, // Antarctica - 80°S to 84°S, 60°W to 30°W (SU21-25)
    {9985, -3000, -8400, 0, -8000}, // Antarctica - 80°S to 84°S, 30°W to 0°W (SU26-30)
    {9781, 0, -8400, 3000, -8000}, // Antarctica - 80°S to 84°S, 0°E to 30°E (SU31-35)
    {9956, 3000, -8400, 6000, -8000}, // Antarctica - 80°S to 84°S, 30°E to 60°E (SU36-40)
    {10013, 6000, -8400, 9000, -8000}, // Antarctica - 80°S to 84°S, 60°E to 90°E (SU41-45)
    {10071, 9000, -8400, 12000, -8000}, // Antarctica - 80°S to 84°S, 90°E to 120°E (SU46-50)
    {9809, 12000, -8400, 15000, -8000}, // Antarctica - 80°S to 84°S, 120°E to 150°E (SU51-55)
    {9866, 15000, -8400, 18000, -8000}, // Antarctica - 80°S to 84°S, 150°E to 180° (SU56-60)
    {10211, -18000, -8800, -12000, -8400}, // Antarctica - 84°S to 88°S, 180°W to 120°W (SV01-10)
    {10184, -12000, -8800, -6000, -8400}, // Antarctica - 84°S to 88°S, 120°W to 60°W (SV11-20)
    {10268, -6000, -8800, 0, -8400}, // Antarctica - 84°S to 88°S, 60°W to 0°W (SV21-30)
    {10127, 0, -8800, 6000, -8400}, // Antarctica - 84°S to 88°S, 0°E to 60°E (SV31-40)
    {10240, 6000, -8800, 12000, -8400}, // Antarctica - 84°S to 88°S, 60°E to 120°E (SV41-50)
    {10155, 12000, -8800, 18000, -8400}, // Antarctica - 84°S to 88°S, 120°E to 180°E (SV51-60)
    {10296, -18000, -9000, 18000, -8800}, // Antarctica - 88°S to 90°S, 180°W to 180°E (SW01-60)
    {10615, 14983, -8000, 17401, -6860}, // Antarctica - Transantarctic mountains north of 80°S
    {34914, -7300, 980, -7106, 1252}, // Colombia region 1
    {34924, -7608, 939, -7300, 1159}, // Colombia region 2
    {34934, -7748, 800, -7439, 940}, // Colombia region 3
    {34944, -7440, 500, -7199, 940}, // Colombia region 4
    {34954, -7792, 500, -7439, 801}, // Colombia region 5
    {34964, -7768, 300, -7439, 501}, // Colombia region 6
    {34974, -7910, -113, -7400, 301}, // Colombia region 7
    {34984, -7440, -423, -6687, 710}, // Colombia region 8
    {34163, -7859, 3, -7558, 1021}, // Colombia - 78°35'W to 75°35'W
    {34791, -7910, 123, -7858, 248}, // Colombia - west of 78°35'W
    {51874, 1924, 6008, 1950, 6034}, // Finland - west of 19.5°E onshore
    {51415, 1950, 5992, 2050, 6048}, // Finland - 19.5°E to 20.5°E onshore
    {51458, 2050, 5984, 2150, 6933}, // Finland - 20.5°E to 21.5°E onshore
    {51490, 2150, 5976, 2250, 6931}, // Finland - 21.5°E to 22.5°E onshore
    {51524, 2250, 5975, 2350, 6874}, // Finland - 22.5°E to 23.5°E onshore
    {51572, 2350, 5986, 2450, 6884}, // Finland - 23.5°E to 24.5°E onshore
    {51606, 2450, 5994, 2550, 6890}, // Finland - 24.5°E to 25.5°E onshore
    {51640, 2550, 6018, 2650, 6994}, // Finland - 25.5°E to 26.5°E onshore
    {51688, 2650, 6036, 2750, 7005}, // Finland - 26.5°E to 27.5°E onshore
    {51720, 2750, 6042, 2850, 7009}, // Finland - 27.5°E to 28.5°E onshore
    {51752, 2850, 6094, 2950, 6981}, // Finland - 28.5°E to 29.5°E
    {51796, 2950, 6143, 3050, 6798}, // Finland - 29.5°E to 30.5°E
    {51827, 3050, 6208, 3159, 6427}, // Finland - east of 30.5°E
    {53488, -5445, 343, -5161, 581}, // French Guiana - coastal area
    {184328, 5400, 1966, 5567, 2277}, // Saudi Arabia - east of 54°E
    {184398, 3451, 2682, 3600, 2938}, // Saudi Arabia - onshore west of 36°E
    {94792, 13799, 939, 13827, 969}, // Micronesia - Yap Islands
    {6822, -17088, -1443, -16938, -1411}, // American Samoa - 2 main island groups
    {6846, -17088, -1459, -16809, -1411}, // American Samoa - 2 main island groups and Rose Island
    {187842, -8018, 0, -7800, 145}, // South America - 84°W to 78°W, N hemisphere and PSAD56 by country
    {137596, 653, 505, 684, 536}, // Nigeria - OML 58
    {138669, -9600, 2561, -9000, 8400}, // North America - 96°W to 90°W and NAD83 by country
    {138636, -9000, 2397, -8400, 8400}, // North America - 90°W to 84°W and NAD83 by country
    {138603, -8400, 2381, -7800, 8400}, // North America - 84°W to 78°W and NAD83 by country
    {138570, -7800, 2828, -7200, 8400}, // North America - 78°W to 72°W and NAD83 by country
    {65608, -6184, 1194, -6154, 1229}, // Grenada - main island - onshore
    {54081, -15813, -2670, -15000, -1250}, // French Polynesia - west of 150°W
    {53626, -15000, -3120, -14400, -729}, // French Polynesia - 150°W to 144°W
    {53605, -14400, -3124, -13800, -452}, // French Polynesia - 144°W to 138°W
    {54061, -13800, -2658, -13197, -552}, // French Polynesia - east of 138°W
    {54035, -14970, -1793, -14909, -1744}, // French Polynesia - Society Islands - Tahiti
    {53976, -15000, -1763, -14973, -1741}, // French Polynesia - Society Islands - Moorea
    {53948, -15239, -1657, -15214, -1634}, // French Polynesia - Society Islands - Maupiti
    {53846, -13966, -900, -13944, -881}, // French Polynesia - Marquesas Islands - Ua Huka
    {53875, -14021, -957, -13995, -927}, // French Polynesia - Marquesas Islands - Ua Pou
    {53774, -14031, -957, -13944, -872}, // French Polynesia - Marquesas Islands - Nuku Hiva, Ua Huka and Ua Pou
    {53707, -13923, -1008, -13875, -964}, // French Polynesia - Marquesas Islands - Hiva Oa and Tahuata
    {53678, -13923, -989, -13875, -964}, // French Polynesia - Marquesas Islands - Hiva Oa
    {53818, -13919, -1008, -13898, -986}, // French Polynesia - Marquesas Islands - Tahuata
    {53647, -13875, -1060, -13854, -1036}, // French Polynesia - Marquesas Islands - Fatu Hiva
    {16479, 14099, -3753, 15369, -2815}, // Australia - New South Wales
    {74964, 5222, 2646, 5241, 2664}, // Iran - South Pars block 11
    {75017, 5209, 2763, 5226, 2781}, // Iran - Tombak LNG plant
    {85690, 2125, 2750, 2159, 2807}, // Libya - Sirte NC192
    {195485, -6198, 999, -6085, 1090}, // Trinidad and Tobago - Trinidad - onshore
    {53557, -5400, 217, -4945, 888}, // French Guiana - east of 54°W
    {53574, -5461, 211, -5400, 569}, // French Guiana - west of 54°W
    {35916, 2174, -1346, 3078, -499}, // Congo DR (Zaire) - Katanga
    {35895, 2150, -731, 2626, -501}, // Congo DR (Zaire) - Kasai - SE
    {35558, 1217, -736, 2964, -329}, // Congo DR (Zaire) - 6th parallel south
    {35520, 1217, -604, 1301, -467}, // Congo DR (Zaire) - 11°E to 13°E onshore
    {35539, 1300, -591, 1501, -428}, // Congo DR (Zaire) - 13°E to 15°E
    {35582, 1500, -587, 1700, -329}, // Congo DR (Zaire) - 6th parallel south 15°E to 17°E
    {35611, 1700, -538, 1900, -340}, // Congo DR (Zaire) - 6th parallel south 17°E to 19°E
    {35640, 1900, -729, 2100, -401}, // Congo DR (Zaire) - 6th parallel south 19°E to 21°E
    {35700, 2100, -731, 2300, -531}, // Congo DR (Zaire) - 6th parallel south 21°E to 23°E
    {35730, 2300, -699, 2500, -501}, // Congo DR (Zaire) - 6th parallel south 23°E to 25°E
    {35760, 2500, -726, 2700, -423}, // Congo DR (Zaire) - 6th parallel south 25°E to 27°E
    {35789, 2700, -736, 2900, -424}, // Congo DR (Zaire) - 6th parallel south 27°E to 29°E
    {35818, 2900, -604, 2964, -434}, // Congo DR (Zaire) - 6th parallel south 29°E to 31°E
    {35848, 1217, -604, 1628, -428}, // Congo DR (Zaire) - Bas Congo
    {147870, 9869, -6000, -6800, 6667}, // Pacific Ocean
    {48941, 1957, 5417, 2345, 5927}, // Europe - FSU - CS63 zone C0
    {48957, 2345, 5389, 2645, 5972}, // Europe - FSU - CS63 zone C1
    {48973, 2645, 5515, 2824, 5961}, // Europe - FSU - CS63 zone C2
    {24495, -5400, -3378, -4800, -1500}, // Brazil - 54°W to 48°W and south of 15°S
    {24420, -4800, -2529, -4200, -1500}, // Brazil - 48°W to 42°W and south of 15°S
    {24944, -3600, -1010, -3474, -499}, // Brazil - east of 36°W onshore
    {5048, 1053, -604, 1310, -438}, // Africa - Angola (Cabinda) and DR Congo (Zaire) - coastal
    {5085, 1053, -604, 1237, -505}, // Africa - Angola (Cabinda) and DR Congo (Zaire) - offshore
    {199621, -16636, 2369, -16603, 2393}, // USA - Hawaii - Tern Island and Sorel Atoll
    {189451, -1446, -803, -1424, -783}, // St Helena - Ascension Island
    {189467, -585, -1608, -559, -1585}, // St Helena - St Helena Island
    {189483, -1276, -4042, -980, -3700}, // St Helena - Tristan da Cunha
    {31848, -8146, 1921, -8104, 1941}, // Cayman Islands - Grand Cayman
    {31866, -8014, 1963, -7969, 1978}, // Cayman Islands - Little Cayman and Cayman Brac
    {32482, -10951, -2725, -10916, -2701}, // Chile - Easter Island onshore
    {25131, 7230, -749, 7255, -718}, // British Indian Ocean Territory - Diego Garcia
    {147788, 16655, 1922, 16672, 1938}, // Wake - onshore
    {147772, 16227, 866, 16782, 1938}, // Pacific - Marshall Islands, Wake - onshore
    {94773, 16285, 521, 16310, 543}, // Micronesia - Kosrae (Kusaie)
    {208121, 16809, -2031, 16995, -1737}, // Vanuatu - southern islands
    {208105, 16647, -1732, 16871, -1457}, // Vanuatu - northern islands
    {51151, 17719, -1832, 17875, -1725}, // Fiji - Viti Levu
    {82212, -17460, -476, -17066, -268}, // Kiribati - Phoenix Islands
    {186502, 15955, -998, 16088, -920}, // Solomon Islands - Guadalcanal Island
    {186518, 15644, -886, 15820, -752}, // Solomon Islands - New Georgia - Ghizo (Gizo)
    {189076, -2193, 2460, -1175, 3276}, // Spain - Canary Islands
    {77939, 14120, 2467, 14142, 2489}, // Japan - Iwo Jima
    {78975, -16959, 1667, -16947, 1679}, // Johnston Island
    {94814, -17745, 2813, -17731, 2828}, // Midway Islands - Sand and Eastern Islands
    {10525, -6089, -6308, -6035, -6282}, // Antarctica - Deception Island
    {10486, 16573, -7794, 16743, -7717}, // Antarctica - Camp McMurdo area
    {138685, -8233, 2086, -7268, 3083}, // North America - Bahamas and USA - Florida - onshore
    {150246, -13016, -2514, -13001, -2500}, // Pitcairn - Pitcairn Island
    {93309, 5725, -2057, 5785, -1994}, // Mauritius - mainland
    {6258, 1922, 3964, 2106, 4267}, // Albania - onshore
    {6774, -867, 1897, 1199, 3714}, // Algeria - onshore
    {7617, -6322, 1811, -6292, 1833}, // Anguilla - onshore
    {13950, -7359, -5243, -5365, -2178}, // Argentina - mainland onshore
    {19574, 8801, 2052, 9267, 2664}, // Bangladesh - onshore
    {19618, -5971, 1300, -5937, 1339}, // Barbados - onshore
    {22649, -8922, 1588, -8772, 1849}, // Belize - onshore
    {22737, -6489, 3221, -6461, 3243}, // Bermuda - onshore
    {25794, 2236, 4124, 2868, 4423}, // Bulgaria - onshore
    {29240, 845, 165, 1621, 1309}, // Cameroon - onshore
    {32619, -7522, -4500, -6700, -1750}, // Chile - onshore north of 45°S
    {33206, 7362, 1811, 13477, 5356}, // China - onshore
    {34703, -7910, -423, -6687, 1252}, // Colombia - mainland
    {36951, -8597, 798, -8253, 1122}, // Costa Rica - onshore
    {37359, 1343, 4234, 1943, 4654}, // Croatia - onshore
    {37489, -8501, 1977, -7407, 2325}, // Cuba - onshore
    {37572, 3220, 3459, 3465, 3574}, // Cyprus - onshore
    {40533, 800, 5451, 1525, 5780}, // Denmark - onshore
    {40753, 4175, 1094, 4348, 1272}, // Djibouti - onshore
    {40795, -6155, 1514, -6120, 1569}, // Dominica - onshore
    {46853, -8103, -501, -7521, 145}, // Ecuador - mainland onshore
    {46932, 2470, 2197, 3695, 3168}, // Egypt - onshore
    {47372, -9011, 1310, -8769, 1444}, // El Salvador - onshore
    {47547, 2174, 5752, 2820, 5975}, // Estonia - onshore
    {50712, -6155, -5251, -5760, -5096}, // Falkland Islands - onshore
    {50801, -749, 6133, -633, 6241}, // Faroe Islands - onshore
    {63259, 865, -398, 1452, 232}, // Gabon - onshore
    {63322, -1688, 1305, -1379, 1383}, // Gambia - onshore
    {64477, -325, 467, 123, 1116}, // Ghana - onshore
    {64876, 1957, 3488, 2830, 4175}, // Greece - onshore
    {65829, 14458, 1318, 14501, 1370}, // Guam - onshore
    {65996, -1513, 719, -765, 1268}, // Guinea - onshore
    {66015, -1677, 1087, -1364, 1269}, // Guinea-Bissau - onshore
    {66371, -6139, 118, -5647, 858}, // Guyana - onshore
    {71414, -2466, 6334, -1338, 6659}, // Iceland - mainland
    {81626, 3390, -472, 4191, 463}, // Kenya - onshore
    {82828, 12453, 3314, 13101, 3864}, // Korea, Republic of (South Korea) - onshore
    {83561, 4654, 2853, 4848, 3009}, // Kuwait - onshore
    {85287, 2087, 5567, 2824, 5809}, // Latvia - onshore
    {85405, 3504, 3306, 3663, 3465}, // Lebanon - onshore
    {85473, -1152, 429, -736, 852}, // Liberia - onshore
    {85729, 931, 1950, 2521, 3323}, // Libya - onshore
    {86340, 2086, 5389, 2682, 5645}, // Lithuania - onshore
    {90954, 4318, -2564, 5056, -1189}, // Madagascar - onshore
    {91954, 7281, -69, 7369, 708}, // Maldives - onshore
    {92054, 1427, 3574, 1463, 3605}, // Malta - onshore
    {92762, -6129, 1435, -6076, 1493}, // Martinique - onshore
    {93177, -1708, 1472, -480, 2730}, // Mauritania - onshore
    {93834, -11847, 1451, -8668, 3272}, // Mexico - onshore
    {96670, -6229, 1662, -6208, 1687}, // Montserrat - onshore
    {96842, -1324, 2766, -101, 3597}, // Morocco - onshore
    {97096, 3021, -2687, 4090, -1042}, // Mozambique - onshore
    {136889, 16587, -4765, 17927, -3389}, // New Zealand - onshore and nearshore
    {143791, 5199, 1659, 5991, 2658}, // Oman - onshore
    {14574, 6086, 2364, 7783, 3707}, // Pakistan - onshore
    {148433, -8304, 715, -7719, 968}, // Panama - onshore
    {149535, -8141, -1835, -6867, -3}, // Peru - onshore
    {150564, 1414, 4900, 2415, 5489}, // Poland - onshore
    {151956, -6797, 1787, -6519, 1857}, // Puerto Rico - onshore
    {173595, 2026, 4362, 2974, 4827}, // Romania - onshore
    {174933, 1958, 4119, -16897, 8191}, // Russia - onshore
    {189504, -6292, 1706, -6250, 1746}, // St Kitts and Nevis - onshore
    {189518, -6113, 1366, -6082, 1416}, // St Lucia - onshore
    {189561, -5648, 4669, -5607, 4719}, // St Pierre and Miquelon - onshore
    {189579, -6152, 1254, -6107, 1344}, // St Vincent and the Grenadines - onshore
    {184345, 3451, 1637, 5567, 3216}, // Saudi Arabia - onshore
    {185040, -1759, 1229, -1136, 1670}, // Senegal - onshore
    {185370, -1335, 688, -1026, 1000}, // Sierra Leone - onshore
    {186300, 1338, 4542, 1661, 4688}, // Slovenia - onshore
    {186585, 4098, -171, 5147, 1203}, // Somalia - onshore
    {186744, 1645, -3488, 3295, -2213}, // South Africa - onshore
    {189409, 7964, 586, 8195, 988}, // Sri Lanka - onshore
    {5628, 2182, 349, 3866, 2224}, // Africa - South Sudan and Sudan onshore
    {190645, -5808, 183, -5395, 606}, // Suriname - onshore
    {190902, 1093, 5528, 2417, 6907}, // Sweden - onshore
    {191205, 3561, 3231, 4238, 3730}, // Syria - onshore
    {193115, 11925, 2187, 12206, 2534}, // Taiwan - onshore - mainland and Penghu
    {193411, 2934, -1175, 4048, -99}, // Tanzania - onshore
    {194133, 9734, 563, 10564, 2046}, // Thailand - onshore
    {207145, -5849, -3500, -5309, -3009}, // Uruguay - onshore
    {208296, -7338, 64, -5980, 1225}, // Venezuela - onshore
    {208965, 10214, 833, 10953, 2340}, // Vietnam - onshore
    {209415, -6488, 1828, -6425, 1878}, // Virgin Islands, British - onshore
    {209431, -6509, 1762, -6451, 1844}, // Virgin Islands, US - onshore
    {51868, 1924, 5975, 3159, 7009}, // Finland - onshore
    {173190, 5516, -2142, 5591, -2081}, // Reunion - onshore
    {64384, 586, 4727, 1504, 5509}, // Germany - onshore
    {93340, 4498, -1305, 4535, -1261}, // Mayotte - onshore
    {72215, 6813, 802, 9742, 3551}, // India - mainland
    {77605, -7843, 1764, -7617, 1858}, // Jamaica - onshore
    {75855, 593, 3476, 1899, 4710}, // Italy - including San Marino and Vatican
    {136648, 16637, -4733, 17446, -4044}, // New Zealand - South and Stewart Islands
    {25041, -5816, -3191, -5400, -1799}, // Brazil - west of 54°W and south of 18°S
    {188049, -6257, -3191, -4710, -1537}, // South America - Brazil - south of 18°S and west of 54°W + DF; N Paraguay
    {199465, -9722, 2382, -8117, 3025}, // USA - GoM OCS
    {199438, -8725, 2382, -8117, 3025}, // USA - GoM - east of 87.25°W
    {199423, -9500, 2561, -8725, 3023}, // USA - GoM - 95°W to 87.25°W
    {199453, -9722, 2597, -9500, 2897}, // USA - GoM - west of 95°W
    {93811, -9810, 2151, -9689, 2275}, // Mexico - offshore GoM - Tampico area
    {65419, -7329, 5974, -4252, 7900}, // Greenland - west coast
    {65431, -5370, 6300, -4917, 6600}, // Greenland - west coast - 63°N to 66°N
    {65453, -5409, 6600, -4940, 6900}, // Greenland - west coast - 66°N to 69°N
    {65475, -5606, 6900, -4911, 7200}, // Greenland - west coast - 69°N to 72°N
    {65497, -5821, 7200, -5202, 7500}, // Greenland - west coast - 72°N to 75°N
    {65519, -7279, 7500, -5631, 7800}, // Greenland - west coast - 75°N to 78°N
    {65541, -7329, 7800, -6524, 7900}, // Greenland - west coast - 78°N to 79°N
    {65290, -2699, 6866, -2514, 6900}, // Greenland - east coast - 68°N to 69°N
    {65312, -2969, 6900, -2132, 7200}, // Greenland - east coast - 69°N to 72°N
    {204157, 16765, 4901, 17401, 5628}, // USA - west of 174°E - AK, OCS
    {198347, 17400, 4792, 18000, 5667}, // USA - 174°E to 180°E - AK, OCS
    {198378, -18000, 4788, -17399, 6321}, // USA - 180°W to 174°W - AK, OCS
    {198362, -17400, 4866, -16799, 7305}, // USA - 174°W to 168°W - AK, OCS
    {91669, 10244, 121, 10460, 295}, // Malaysia - West Malaysia - Johor
    {91814, 10170, 203, 10271, 328}, // Malaysia - West Malaysia - Sembilan and Melaka
    {91731, 10133, 245, 10367, 478}, // Malaysia - West Malaysia - Pahang
    {91794, 10076, 254, 10197, 387}, // Malaysia - West Malaysia - Selangor
    {91840, 10238, 389, 10372, 590}, // Malaysia - West Malaysia - Terengganu
    {91769, 10012, 512, 10056, 559}, // Malaysia - West Malaysia - Pulau Pinang
    {91688, 9959, 508, 10112, 672}, // Malaysia - West Malaysia - Kedah and Perlis
    {91750, 10007, 366, 10200, 592}, // Malaysia - West Malaysia - Perak
    {91711, 10133, 454, 10267, 629}, // Malaysia - West Malaysia - Kelantan
    {51856, 3150, 6283, 3159, 6300}, // Finland - east of 31.5°E
    {15485, 4200, 2853, 4800, 3739}, // Asia - Middle East - Iraq and Kuwait 42°E to 48°E
    {75111, 3879, 3114, 4200, 3675}, // Iraq - west of 42°E
    {75059, 4200, 2906, 4800, 3739}, // Iraq - 42°E to 48°E
    {75093, 4800, 2987, 4861, 3100}, // Iraq - east of 48°E onshore
    {227072, -18000, -8000, 18000, 8400}, // World - between 80°S and 84°N
    {64163, 992, 5035, 1050, 5156}, // Germany - Thuringen - west of 10.5°E
    {64143, 1050, 5020, 1256, 5164}, // Germany - Thuringen - east of 10.5°E
    {64090, 1350, 5062, 1504, 5158}, // Germany - Saxony - east of 13.5°E
    {64110, 1189, 5020, 1351, 5166}, // Germany - Saxony - west of 13.5°E
    {75070, 4646, 2987, 4861, 3109}, // Iraq - Basra area
    {51165, 17681, -1922, -17977, -1610}, // Fiji - main islands
    {51199, 17681, -1922, 18000, -1610}, // Fiji - main islands - west of 180°
    {51178, -18000, -1704, -17977, -1610}, // Fiji - main islands - east of 180°
    {51129, 17842, -1707, -17977, -1610}, // Fiji - Vanua Levu and Taveuni
    {6697, 0, 2925, 125, 3100}, // Algeria - Hassi Mouina licence area
    {174939, 1920, 5432, 1950, 5530}, // Russia - west of 19.5°E
    {138319, -12000, 3088, -11400, 8350}, // North America - 120°W to 114°W and NAD83 by country
    {138284, -11400, 3133, -10800, 8400}, // North America - 114°W to 108°W and NAD83 by country
    {138251, -10800, 2898, -10200, 8400}, // North America - 108°W to 102°W and NAD83 by country
    {138218, -10200, 2583, -9600, 8400}, // North America - 102°W to 96°W and NAD83 by country
    {190870, 1775, 5922, 1820, 5943}, // Sweden - Stockholm
    {29684, -14101, 5205, -13800, 7253}, // Canada - 144°W to 138°W
    {29671, -13800, 4806, -13200, 7942}, // Canada - 138°W to 132°W
    {29658, -13200, 4652, -12600, 8093}, // Canada - 132°W to 126°W
    {29646, -12600, 4813, -12000, 8180}, // Canada - 126°W to 120°W
    {29545, -10200, 4899, -9600, 8400}, // Canada - 102°W to 96°W
    {29838, -9600, 4803, -9000, 8400}, // Canada - 96°W to 90°W
    {29827, -9000, 4611, -8400, 8400}, // Canada - 90°W to 84°W
    {29816, -8400, 4167, -7800, 8400}, // Canada - 84°W to 78°W
    {29805, -7800, 4363, -7200, 8400}, // Canada - 78°W to 72°W
    {85261, -12219, -5987, -2528, 3272}, // Latin America - SIRGAS 2000 by country
    {138537, -7200, 1492, -6600, 8400}, // North America - 72°W to 66°W and NAD83 by country
    {138504, -6600, 1563, -6000, 8400}, // North America - 66°W to 60°W and NAD83 by country
    {85141, -8400, 0, -7800, 1954}, // Latin America - 84°W to 78°West; N hemisphere and SIRGAS by country
    {85110, -7800, 0, -7200, 1504}, // Latin America - 78°W to 72°West; N hemisphere and SIRGAS by country
    {93842, -12219, 1501, -11400, 3272}, // Mexico - west of 114°W
    {93720, -11400, 1509, -10800, 3227}, // Mexico - 114°W to 108°W
    {93707, -10800, 1405, -10200, 3179}, // Mexico - 108°W to 102°W
    {93694, -10200, 1230, -9600, 2981}, // Mexico - 102°W to 96°W
    {85204, -9600, 0, -9000, 2600}, // Latin America - 96°W to 90°W; N hemisphere and SIRGAS 2000 by country
    {85172, -9000, 0, -8399, 2577}, // Latin America - 90°W to 84°W; N hemisphere and SIRGAS 2000 by country
    {189242, -937, 3526, 439, 4382}, // Spain - mainland and Balearic Islands onshore
    {135587, 16354, -2273, 16819, -1950}, // New Caledonia - Belep, Grande Terre, Ile des Pins, Loyalty Islands
    {135756, 15625, -2603, 16201, -1534}, // New Caledonia - west of 162°E
    {135562, 16200, -2645, 16800, -1483}, // New Caledonia - 162°E to 168°E
    {135742, 16800, -2595, 17428, -1975}, // New Caledonia - east of 168°E
    {135713, 16775, -2171, 16800, -2132}, // New Caledonia - Mare - west of 168°E
    {135696, 16800, -2171, 16819, -2135}, // New Caledonia - Mare - east of 168°E
    {187549, -7200, 0, -6600, 1564}, // South America - 72°W to 66°W, N hemisphere and SIRGAS 2000 by country
    {187415, -6600, 64, -5999, 1675}, // South America - 66°W to 60°W, N hemisphere and SIRGAS 2000 by country
    {187258, -6000, 118, -5400, 1219}, // South America - 60°W to 54°W, N hemisphere and SIRGAS 2000 by country
    {187101, -5400, 0, -4799, 924}, // South America - 54°W to 48°W, N hemisphere and SIRGAS 2000 by country
    {187814, -7800, -5936, -7199, 0}, // South America - 78°W to 72°W, S hemisphere and SIRGAS 2000 by country
    {187633, -7200, -5987, -6600, 215}, // South America - 72°W to 66°W, S hemisphere and SIRGAS 2000 by country
    {187482, -6600, -5839, -6000, 528}, // South America - 66°W to 60°W, S hemisphere and SIRGAS 2000 by country
    {187325, -6000, -4482, -5400, 451}, // South America - 60°W to 54°W, S hemisphere and SIRGAS 2000 by country
    {187168, -5400, -5418, -4799, 704}, // South America - 54°W to 48°W, S hemisphere and SIRGAS 2000 by country
    {24372, -4800, -3350, -4200, 513}, // Brazil - 48°W to 42°W
    {24291, -4200, -2635, -3600, 74}, // Brazil - 42°W to 36°W
    {24262, -3600, -2380, -2999, 419}, // Brazil - 36°W to 30°W
    {188113, -11321, -5987, -2600, 1675}, // South America - SIRGAS 1995 by country
    {65563, -7500, 7452, -7200, 7904}, // Greenland - west of 72°W
    {65165, -7200, 7324, -6600, 8090}, // Greenland - 72°W to 66°W
    {65153, -6600, 6892, -6000, 8222}, // Greenland - 66°W to 60°W
    {65141, -6000, 5891, -5400, 8400}, // Greenland - 60°W to 54°W
    {65129, -5400, 5690, -4800, 8400}, // Greenland - 54°W to 48°W
    {65117, -4800, 5638, -4200, 8400}, // Greenland - 48°W to 42°W
    {65105, -4200, 5656, -3600, 8400}, // Greenland - 42°W to 36°W
    {65093, -3600, 6016, -3000, 8400}, // Greenland - 36°W to 30°W
    {65081, -3000, 6496, -2400, 8400}, // Greenland - 30°W to 24°W
    {65069, -2400, 6770, -1800, 8400}, // Greenland - 24°W to 18°W
    {65057, -1800, 6867, -1200, 8400}, // Greenland - 18°W to 12°W
    {65046, -1200, 7243, -600, 8400}, // Greenland - 12°W to 6°W
    {93759, -9433, 2087, -8867, 2301}, // Mexico - offshore GoM - Campeche area N
    {93785, -9479, 1785, -8975, 2089}, // Mexico - offshore GoM - Campeche area S
    {224173, -18000, -8600, 18000, 8600}, // World - 86°S to 86°N
    {224499, 1200, 0, 1800, 8400}, // World - N hemisphere - 12°E to 18°E - by country and WGS 72BE
    {224988, 1800, 0, 2400, 8400}, // World - N hemisphere - 18°E to 24°E - by country and WGS 72BE
    {33086, 10700, 3500, 11001, 3900}, // China - Ordos basin
    {138756, -9317, 4099, -7447, 5074}, // North America - Great Lakes basin
    {138774, -9317, 4099, -5475, 5222}, // North America - Great Lakes basin and St Lawrence Seaway
    {33189, 11923, 3123, 12506, 3740}, // China - offshore - Yellow Sea
    {33167, 11013, 1831, 11676, 2289}, // China - offshore - Pearl River basin
    {227107, -18000, -9000, 18000, 0}, // World - south of 0°N
    {227088, -18000, 0, 18000, 9000}, // World - north of 0°N
    {85646, 2249, 3200, 2300, 3280}, // Libya - Cyrenaica
    {77611, -8060, 1416, -7799, 1936}, // Jamaica - west of 78°W
    {77594, -7800, 1408, -7451, 1920}, // Jamaica - east of 78°W
    {227097, -18000, 4500, 18000, 9000}, // World - north of 45°N
    {30212, -13646, 5998, -10200, 7881}, // Canada - NWT
    {198316, -16030, 1951, -15599, 2229}, // USA - 162°W to 156°W onshore - HI
    {198284, -16200, 1557, -15599, 7471}, // USA - 162°W to 156°W - AK, HI
    {198269, -15600, 1887, -15474, 2086}, // USA - 156°W to 150°W onshore - HI
    {198237, -15600, 1556, -14999, 7471}, // USA - 156°W to 150°W - AK, HI
    {198211, -14400, 5347, -13799, 7359}, // USA - 144°W to 138°W
    {198201, -13800, 5360, -13199, 7304}, // USA - 138°W to 132°W
    {198191, -13200, 3538, -12600, 5684}, // USA - 132°W to 126°W
    {198172, -12600, 3054, -11999, 4909}, // USA - 126°W to 120°W
    {198155, -12000, 3088, -11400, 4901}, // USA - 120°W to 114°W
    {198147, -11400, 3133, -10800, 4901}, // USA - 114°W to 108°W
    {198139, -10800, 2898, -10200, 4901}, // USA - 108°W to 102°W
    {198107, -10200, 2583, -9600, 4901}, // USA - 102°W to 96°W
    {198492, -9601, 2561, -9000, 4938}, // USA - 96°W to 90°W
    {198460, -9000, 2397, -8400, 4832}, // USA - 90°W to 84°W
    {198428, -8400, 2381, -7800, 4613}, // USA - 84°W to 78°W
    {198411, -7800, 2828, -7200, 4503}, // USA - 78°W to 72°W
    {198394, -7200, 3361, -6599, 4747}, // USA - 72°W to 66°W
    {33100, 7745, 3700, 8800, 4199}, // China - Tarim - 77.5°E to 88°E and 37°N to 42°N
    {136847, 15500, -6000, -16999, -2500}, // New Zealand - offshore Pacific Ocean, Southern Ocean
    {195945, 5150, 2400, 5485, 2564}, // UAE - Abu Dhabi - offshore
    {73442, 9600, -181, 9900, 542}, // Indonesia - 96°E to 99°E onshore
    {73454, 9900, -357, 10200, 371}, // Indonesia - 99°E to 102°E onshore
    {72873, 10200, -599, 10500, 168}, // Indonesia - 102°E to 105°E onshore
    {72947, 10500, -779, 10800, 411}, // Indonesia - 105°E to 108°E onshore
    {72959, 10800, -831, 11100, 425}, // Indonesia - 108°E to 111°E onshore
    {73033, 11100, -867, 11400, 159}, // Indonesia - 111°E to 114°E onshore
    {73045, 11400, -915, 11701, 437}, // Indonesia - 114°E to 117°E onshore
    {73115, 11700, -1015, 12000, 436}, // Indonesia - 117°E to 120°E onshore
    {73126, 12000, -1098, 12300, 140}, // Indonesia - 120°E to 123°E onshore
    {73200, 12300, -1092, 12600, 384}, // Indonesia - 123°E to 126°E onshore
    {73213, 12600, -832, 12900, 459}, // Indonesia - 126°E to 129°E onshore
    {73292, 12900, -841, 13200, 10}, // Indonesia - 129°E to 132°E onshore
    {73305, 13200, -730, 13500, -29}, // Indonesia - 132°E to 135°E onshore
    {73367, 13500, -849, 13800, -58}, // Indonesia - 135°E to 138°E onshore
    {29775, -7200, 4080, -6600, 8400}, // Canada - 72°W to 66°W
    {29745, -6600, 4004, -6000, 8400}, // Canada - 66°W to 60°W
    {29556, -10800, 4899, -10200, 8400}, // Canada - 108°W to 102°W
    {29586, -11400, 4899, -10800, 8400}, // Canada - 114°W to 108°W
    {29616, -12000, 4899, -11400, 8350}, // Canada - 120°W to 114°W
    {188444, -3808, -5495, -3574, -5393}, // South Georgia - onshore
    {196112, 5406, 2494, 5530, 2580}, // UAE - Dubai - offshore
    {196127, 5484, 2485, 5555, 2534}, // UAE - Dubai municipality
    {96606, 1845, 4179, 2038, 4356}, // Montenegro - onshore
    {151466, -1387, 3491, -724, 4188}, // Portugal - mainland - offshore
    {37347, 1800, 4162, 1943, 4592}, // Croatia - east of 18°E
    {37366, 1300, 4163, 1800, 4654}, // Croatia - west of 18°E
    {29916, -12000, 5288, -11850, 6000}, // Canada - Alberta - west of 118.5°W
    {29879, -11850, 5077, -11550, 6000}, // Canada - Alberta - 118.5°W to 115.5°W
    {29860, -11550, 4899, -11250, 6000}, // Canada - Alberta - 115.5°W to 112.5°W
    {29898, -11250, 4899, -10998, 6000}, // Canada - Alberta - east of 112.5°W
    {224163, -18000, -8506, 18000, 8506}, // World - 85°S to 85°N
    {53156, -106, 4131, 963, 4307}, // France - mainland south of 43°N and Corsica
    {53180, -179, 4233, 765, 4401}, // France - mainland south of 44°N
    {52918, -179, 4292, 771, 4500}, // France - mainland - 43°N to 45°N
    {52938, -146, 4400, 771, 4600}, // France - mainland - 44°N to 46°N
    {52958, -221, 4500, 716, 4700}, // France - mainland - 45°N to 47°N
    {52978, -477, 4600, 763, 4800}, // France - mainland - 46°N to 48°N
    {52998, -487, 4700, 823, 4900}, // France - mainland - 47°N to 49°N
    {53018, -487, 4800, 823, 5000}, // France - mainland - 48°N to 50°N
    {53126, -203, 4900, 808, 5114}, // France - mainland north of 49°N
    {136257, 16555, -5113, 16693, -4780}, // New Zealand - Snares and Auckland Islands
    {135989, 16865, -5283, 16960, -5226}, // New Zealand - Campbell Island
    {135967, 17840, -4992, 17937, -4754}, // New Zealand - Antipodes and Bounty Islands
    {136235, -17907, -3156, -17762, -2903}, // New Zealand - Raoul and Kermadec Islands
    {10598, 14499, -9000, -14499, -5999}, // Antarctica - Ross Sea Region
    {17119, 10923, -4720, 16320, -888}, // Australia - offshore
    {33152, 10715, 1781, 11017, 2169}, // China - offshore - Bei Bu
    {193075, 11999, 2041, 12206, 2672}, // Taiwan - 120°E to 122°E
    {193063, 11800, 1863, 12000, 2465}, // Taiwan - 118°E to 120°E
    {186322, 1338, 4544, 1458, 4653}, // Slovenia - west of 14°30'E onshore
    {186221, 1454, 4614, 1661, 4688}, // Slovenia - NE
    {186267, 1455, 4542, 1573, 4622}, // Slovenia - SE
    {186308, 1453, 4542, 1536, 4577}, // Slovenia - southeastern
    {186182, 1447, 4570, 1573, 4612}, // Slovenia - Dolenjska
    {186276, 1474, 4610, 1627, 4676}, // Slovenia - Stajerska
    {186230, 1596, 4647, 1661, 4688}, // Slovenia - Pomurje
    {186196, 1338, 4605, 1482, 4653}, // Slovenia - Gorenjska and N Primorsko
    {186242, 1347, 4544, 1458, 4608}, // Slovenia - Primorska and Notranjska onshore
    {186290, 1421, 4591, 1528, 4631}, // Slovenia - central
    {49493, 992, 3963, 3141, 5489}, // Europe - onshore - eastern - S-42(58)
    {64003, 992, 5020, 1200, 5423}, // Germany - East Germany - west of 12°E
    {47828, 1200, 4578, 1801, 5474}, // Europe - 12°E to 18°E onshore and S-42(83) by country
    {48034, 1800, 3964, 2400, 5489}, // Europe - 18°E to 24°E onshore and S-42(58) by country
    {48060, 1800, 4574, 2290, 5006}, // Europe - 18°E to 24°E onshore and S-42(83) by country
    {48271, 2400, 4124, 2974, 5093}, // Europe - 24°E to 30°E onshore and S-42(58) by country
    {47889, 1350, 4654, 1650, 5472}, // Europe - 13.5°E to 16.5°E onshore and S-42(58) by country
    {47942, 1650, 4014, 1950, 5489}, // Europe - 16.5°E to 19.5°E onshore and S-42(58) by country
    {47969, 1650, 4574, 1950, 5045}, // Europe - 16.5°E to 19.5°E onshore and S-42(83) by country
    {48124, 1950, 3964, 2250, 5451}, // Europe - 19.5°E to 22.5°E onshore and S-42(58) by country
    {48151, 1950, 4610, 2250, 4959}, // Europe - 19.5°E to 22.5°E onshore and S-42(83) by country
    {48177, 2250, 4124, 2550, 5441}, // Europe - 22.5°E to 25.5°E onshore and S-42(58) by country
    {48205, 2250, 4776, 2290, 4910}, // Europe - 22.5°E to 25.5°E onshore and S-42(83) by country
    {48309, 2550, 4128, 2850, 4827}, // Europe - 25.5°E to 28.5°E onshore and S-42(58) by country
    {48337, 2850, 4334, 2974, 4544}, // Europe - 28.5°E to 31.5°E onshore and S-42(58) by country
    {148033, 6824, 2588, 6930, 2767}, // Pakistan - Gambat
    {137539, 599, 399, 801, 501}, // Nigeria - 4°N to 5°N, 6°E to 8°E
    {193088, 11925, 2313, 11978, 2382}, // Taiwan - onshore - Penghu
    {10505, 14500, -8100, 16900, -7600}, // Antarctica - Darwin Glacier region
    {136755, 16060, -5595, -17120, -2588}, // New Zealand - offshore
    {51886, 1924, 6008, 1950, 6034}, // Finland - west of 19.5°E onshore nominal
    {51427, 1950, 5992, 2050, 6048}, // Finland - 19.5°E to 20.5°E onshore nominal
    {51471, 2050, 5984, 2150, 6933}, // Finland - 20.5°E to 21.5°E onshore nominal
    {51504, 2150, 5976, 2250, 6931}, // Finland - 21.5°E to 22.5°E onshore nominal
    {51538, 2250, 5975, 2350, 6874}, // Finland - 22.5°E to 23.5°E onshore nominal
    {51586, 2350, 5986, 2450, 6884}, // Finland - 23.5°E to 24.5°E onshore nominal
    {51620, 2450, 5994, 2550, 6890}, // Finland - 24.5°E to 25.5°E onshore nominal
    {51654, 2550, 6018, 2650, 6994}, // Finland - 25.5°E to 26.5°E onshore nominal
    {51701, 2650, 6036, 2750, 7005}, // Finland - 26.5°E to 27.5°E onshore nominal
    {51733, 2750, 6042, 2850, 7009}, // Finland - 27.5°E to 28.5°E onshore nominal
    {51765, 2850, 6094, 2950, 6981}, // Finland - 28.5°E to 29.5°E nominal
    {51809, 2950, 6143, 3050, 6798}, // Finland - 29.5°E to 30.5°E nominal
    {51839, 3050, 6208, 3159, 6427}, // Finland - east of 30.5°E nominal
    {190884, 1725, 5869, 1961, 6027}, // Sweden - Stockholm county
    {36046, 2174, -1172, 2551, -632}, // Congo DR (Zaire) - Katanga west of 25.5°E
    {35967, 2450, -1208, 2750, -499}, // Congo DR (Zaire) - Katanga 24.5°E to 27.5°E
    {35993, 2650, -1344, 2950, -499}, // Congo DR (Zaire) - Katanga 26.5°E to 29.5°E
    {36020, 2850, -1346, 3078, -499}, // Congo DR (Zaire) - Katanga east of 28.5°E
    {36072, 1179, -1346, 2981, -341}, // Congo DR (Zaire) - south
    {35935, 2638, -1201, 2775, -1113}, // Congo DR (Zaire) - Katanga - Lubumbashi area
    {95806, 2663, 4544, 3000, 4847}, // Moldova - west of 30°E
    {95793, 3000, 4637, 3013, 4647}, // Moldova - east of 30°E
    {36110, 1500, -731, 1700, -341}, // Congo DR (Zaire) - south and 15°E to 17°E
    {36132, 1700, -811, 1900, -343}, // Congo DR (Zaire) - south and 17°E and 19°E
    {24701, -4810, -1594, -4710, -1537}, // Brazil - Distrito Federal
    {36178, 1900, -800, 2100, -377}, // Congo DR (Zaire) - south and 19°E to 21°E
    {36200, 2100, -1124, 2301, -418}, // Congo DR (Zaire) - south and 21°E to 23°E
    {36223, 2300, -1147, 2500, -458}, // Congo DR (Zaire) - south and 23°E to 25°E
    {36269, 2500, -1199, 2700, -499}, // Congo DR (Zaire) - south and 25°E to 27°E
    {36291, 2700, -1339, 2900, -643}, // Congo DR (Zaire) - south and 27°E to 29°E
    {75105, 3879, 2906, 4861, 3739}, // Iraq - onshore
    {36088, 1200, -811, 1801, -341}, // Congo DR (Zaire) - south and 12°E to 18°E
    {36155, 1800, -1124, 2400, -357}, // Congo DR (Zaire) - south and 18°E to 24°E
    {36246, 2400, -1346, 2981, -479}, // Congo DR (Zaire) - south and 24°E to 30°E
    {189134, -2193, 2460, -1800, 3119}, // Spain - Canary Islands - west of 18°W
    {189115, -1800, 2525, -1175, 3276}, // Spain - Canary Islands - east of 18°W
    {40598, 800, 5480, 1000, 5764}, // Denmark - onshore Jutland west of 10°E
    {40574, 900, 5467, 1129, 5780}, // Denmark - onshore Jutland east of 9°E and Funen
    {93733, -9600, 1210, -9000, 2600}, // Mexico - 96°W to 90°W
    {31547, -6797, 1762, -6451, 1857}, // Caribbean - Puerto Rico and US Virgin Islands - onshore
    {93746, -9000, 1781, -8464, 2577}, // Mexico - east of 90°W
    {140051, 468, 5832, 600, 6249}, // Norway - onshore - west of 6°E
    {198115, -10200, 2583, -9587, 4901}, // USA - 102°W to 96°W and GoM OCS
    {187977, -8400, -5645, -7521, 145}, // South America - 84°W to 78°W, S hemisphere and SIRGAS95 by country
    {139989, 600, 5793, 700, 6302}, // Norway - onshore - 6°E to 7°E
    {198500, -9601, 2561, -8986, 4938}, // USA - 96°W to 90°W and GoM OCS
    {198468, -9001, 2395, -8391, 4832}, // USA - 90°W to 84°W and GoM OCS
    {198436, -8409, 2381, -7799, 4613}, // USA - 84°W to 78°W and GoM OCS
    {184128, 641, -4, 682, 46}, // Sao Tome and Principe - onshore - Sao Tome
    {184104, 727, 148, 752, 176}, // Sao Tome and Principe - onshore - Principe
    {140001, 700, 5793, 800, 6352}, // Norway - onshore - 7°E to 8°E
    {140013, 800, 5803, 900, 6387}, // Norway - onshore - 8°E to 9°E
    {140025, 900, 5852, 1000, 6416}, // Norway - onshore - 9°E to 10°E
    {139725, 1000, 5890, 1100, 6504}, // Norway - onshore - 10°E to 11°E
    {139737, 1100, 5888, 1200, 6576}, // Norway - onshore - 11°E to 12°E
    {201353, -9042, 4509, -8344, 4832}, // USA - Michigan - SPCS - W
    {139749, 1200, 5988, 1300, 6815}, // Norway - onshore - 12°E to 13°E
    {139762, 1300, 6401, 1400, 6837}, // Norway - onshore - 13°E to 14°E
    {139775, 1400, 6403, 1500, 6905}, // Norway - onshore - 14°E to 15°E
    {139788, 1500, 6614, 1600, 6935}, // Norway - onshore - 15°E to 16°E
    {139801, 1600, 6688, 1700, 6945}, // Norway - onshore - 16°E to 17°E
    {139814, 1700, 6794, 1800, 6968}, // Norway - onshore - 17°E to 18°E
    {139827, 1800, 6804, 1900, 7027}, // Norway - onshore - 18°E to 19°E
    {139840, 1900, 6833, 2000, 7034}, // Norway - onshore - 19°E to 20°E
    {139852, 2000, 6837, 2100, 7029}, // Norway - onshore - 20°E to 21°E
    {139865, 2100, 6903, 2200, 7071}, // Norway - onshore - 21°E to 22°E
    {139879, 2200, 6869, 2300, 7081}, // Norway - onshore - 22°E to 23°E
    {73620, 9516, -891, 11701, 597}, // Indonesia - Java, Java Sea and western Sumatra
    {139893, 2300, 6862, 2400, 7108}, // Norway - onshore - 23°E to 24°E
    {139907, 2400, 6858, 2500, 7116}, // Norway - onshore - 24°E to 25°E
    {139921, 2500, 6859, 2600, 7121}, // Norway - onshore - 25°E to 26°E
    {151324, -3558, 2924, -1248, 4307}, // Portugal - Azores and Madeira
    {139935, 2600, 6971, 2700, 7117}, // Norway - onshore - 26°E to 27°E
    {139948, 2700, 6990, 2800, 7117}, // Norway - onshore - 27°E to 28°E
    {139961, 2800, 6903, 2900, 7113}, // Norway - onshore - 28°E to 29°E
    {139975, 2900, 6902, 3000, 7093}, // Norway - onshore - 29°E to 30°E
    {148928, -6257, -2200, -5781, -1929}, // Paraguay - north of 22°S
    {140037, 3000, 6946, 3122, 7077}, // Norway - onshore - east of 30°E
    {151071, -3000, 3352, -2400, 4296}, // Portugal - Azores 30°W to 24°W
    {151342, -1800, 2924, -1248, 3646}, // Portugal - Madeira and EEZ E of 18°W
    {151415, -1731, 3258, -1666, 3293}, // Portugal - Madeira island onshore
    {151431, -1644, 3296, -1623, 3315}, // Portugal - Porto Santo island onshore
    {151109, -2813, 3897, -2788, 3914}, // Portugal - Azores C - Graciosa onshore
    {151052, -3558, 3525, -3000, 4307}, // Portugal - Azores - west of 30°W
    {151229, -2526, 3687, -2496, 3708}, // Portugal - Azores E - Santa Maria onshore
    {151288, -3134, 3930, -3107, 3958}, // Portugal - Azores W - Flores onshore
    {151268, -3118, 3963, -3102, 3977}, // Portugal - Azores W - Corvo onshore
    {34713, -7910, -423, -6687, 1368}, // Colombia - mainland and offshore Caribbean
    {16619, 12599, -3705, 13201, -937}, // Australia - SA and WA 126°E to 132°E
    {16584, 13200, -3614, 13800, -2599}, // Australia - SA 132°E to 138°E
    {16600, 13800, -3813, 14401, -986}, // Australia - SA and Qld 138°E to 144°E
    {16526, 14400, -2901, 15000, -1401}, // Australia - Qld 144°E to 150°E
    {16542, 15000, -2919, 15361, -2200}, // Australia - Qld east of 150°E
    {24794, -3909, -1357, -3531, -1118}, // Brazil - Reconcavo and Jacuipe
    {24862, -3914, -1227, -3709, -839}, // Brazil - Tucano and Jatoba
    {53237, -487, 4131, 963, 5114}, // France - onshore - mainland and Corsica
    {24843, -3734, -1358, -3201, -873}, // Brazil - Sergipe and Alagoas
    {24738, -3510, -1017, -2913, -460}, // Brazil - Paraiba-Pernambuco
    {24769, -4479, -650, -2600, 426}, // Brazil - Potiguar, Ceara and Barreirinhas
    {24663, -3922, -1770, -3460, -1301}, // Brazil - Cumuruxatiba, Jequitinhonha and Camamu-Almada
    {24827, -5338, -3571, -4020, -2266}, // Brazil - Santos and Pelotas
    {15376, 12427, 3399, 12600, 4090}, // Asia - Korea N and S - west of 126°E
    {15316, 12600, 3314, 12800, 4180}, // Asia - Korea N and S - 126°E to 128°E
    {82766, 13071, 3739, 13101, 3762}, // Korea, Republic of (South Korea) - 130°E to 132°E onshore
    {82665, 12609, 3314, 12701, 3361}, // Korea, Republic of (South Korea) - 126°E to 128°E Jeju
    {15336, 12800, 3449, 13000, 4301}, // Asia - Korea N and S - 128°E to 130°E
    {15356, 13000, 3739, 13101, 4298}, // Asia - Korea N and S - east of 130°E
    {82700, 12600, 3396, 12800, 3833}, // Korea, Republic of (South Korea) - 126°E to 128°E mainland
    {189230, 16, 4049, 339, 4286}, // Spain - Catalonia onshore
    {24083, -6000, -2017, -5752, -1627}, // Bolivia - east of 60°W
    {23049, 9046, 2733, 9102, 2809}, // Bhutan - Bumthang district
    {194184, 10200, 602, 10564, 1844}, // Thailand - onshore east of 102°E
    {23068, 8926, 2671, 8983, 2732}, // Bhutan - Chhukha district
    {23087, 8963, 2670, 9008, 2729}, // Bhutan - Dagana district
    {23104, 8944, 2772, 9047, 2833}, // Bhutan - Gasa district
    {194163, 9734, 563, 10564, 2046}, // Thailand - onshore and Gulf of Thailand
    {23119, 8890, 2702, 8939, 2762}, // Bhutan - Ha district
    {23133, 9077, 2739, 9149, 2809}, // Bhutan - Lhuentse district
    {23152, 9095, 2693, 9150, 2761}, // Bhutan - Mongar district
    {23169, 8912, 2718, 8956, 2779}, // Bhutan - Paro district
    {23184, 9100, 2678, 9156, 2718}, // Bhutan - Pemagatshel district
    {85095, -12000, 1501, -11400, 3272}, // Latin America - 120°W to 114°W
    {23204, 8963, 2746, 9008, 2787}, // Bhutan - Punakha district
    {23223, 9139, 2679, 9213, 2725}, // Bhutan - Samdrup Jongkhar district
    {23249, 8874, 2680, 8938, 2728}, // Bhutan - Samtse district
    {23266, 9001, 2673, 9078, 2723}, // Bhutan - Sarpang district
    {23284, 8922, 2714, 8977, 2801}, // Bhutan - Thimphu district
    {23303, 9137, 2701, 9213, 2749}, // Bhutan - Trashigang district
    {23323, 9026, 2713, 9076, 2779}, // Bhutan - Trongsa district
    {85080, -11400, 1509, -10800, 3227}, // Latin America - 114°W to 108°W
    {23341, 9000, 2681, 9035, 2720}, // Bhutan - Tsirang district
    {23359, 8971, 2711, 9054, 2808}, // Bhutan - Wangdue Phodrang district
    {85065, -10800, 1405, -10200, 3179}, // Latin America - 108°W to 102°W
    {23385, 9134, 2737, 9177, 2800}, // Bhutan - Yangtse district
    {23403, 9053, 2677, 9119, 2739}, // Bhutan - Zhemgang district
    {85050, -10201, 1230, -9600, 2981}, // Latin America - 102°W to 96°W
    {53532, -5445, 484, -5400, 569}, // French Guiana - coastal area west of 54°W
    {53507, -5400, 343, -5161, 581}, // French Guiana - coastal area east of 54°W
    {197747, -1056, 5139, -593, 5543}, // Ireland - onshore
    {208747, 10424, 935, 10711, 1104}, // Vietnam - DBSCL 02 and 03
    {136058, 17580, -4057, 17807, -3887}, // New Zealand - North Island - Hawkes Bay mc Napier vcrs
    {136215, 17452, -4150, 17536, -4091}, // New Zealand - North Island - Wellington mc
    {136175, 17501, -4167, 17655, -4029}, // New Zealand - North Island - Wairarapa mc
    {136195, 17440, -4097, 17627, -3946}, // New Zealand - North Island - Wanganui mc
    {136134, 17368, -3978, 17544, -3840}, // New Zealand - North Island - Taranaki mc
    {136154, 17488, -3955, 17633, -3887}, // New Zealand - North Island - Tuhirangi mc
    {136036, 17575, -3913, 17723, -3722}, // New Zealand - North Island - Bay of Plenty mc
    {136112, 17673, -3904, 17863, -3749}, // New Zealand - North Island - Poverty Bay mc
    {136091, 17199, -3901, 17612, -3410}, // New Zealand - North Island - Mount Eden mc
    {136315, 17216, -4122, 17313, -4044}, // New Zealand - South Island - Collingwood mc
    {136417, 17196, -4149, 17270, -4075}, // New Zealand - South Island - Karamea mc
    {136548, 17240, -4218, 17408, -4066}, // New Zealand - South Island - Nelson mc
    {136458, 17295, -4265, 17446, -4085}, // New Zealand - South Island - Marlborough mc
    {136296, 17127, -4219, 17241, -4142}, // New Zealand - South Island - Buller mc
    {136357, 17115, -4274, 17275, -4150}, // New Zealand - South Island - Grey mc
    {136278, 17188, -4295, 17355, -4209}, // New Zealand - South Island - Amuri mc
    {136373, 17039, -4323, 17189, -4241}, // New Zealand - South Island - Hokitika mc
    {136503, 17111, -4396, 17338, -4269}, // New Zealand - South Island - Mount Pleasant mc
    {136611, 16921, -4385, 17089, -4300}, // New Zealand - South Island - Okarito mc
    {136338, 17068, -4425, 17226, -4313}, // New Zealand - South Island - Gawler mc
    {136629, 16982, -4498, 17155, -4335}, // New Zealand - South Island - Timaru mc
    {136393, 16802, -4440, 17001, -4367}, // New Zealand - South Island - Jacksons Bay mc
    {136435, 16862, -4540, 17024, -4371}, // New Zealand - South Island - Lindis Peak mc
    {136585, 16977, -4582, 17124, -4461}, // New Zealand - South Island - Observation Point mc
    {136480, 16772, -4558, 16911, -4429}, // New Zealand - South Island - Mount Nicholas mc
    {136565, 16864, -4673, 17087, -4523}, // New Zealand - South Island - North Taieri mc
    {136527, 16637, -4633, 16821, -4453}, // New Zealand - South Island - Mount York mc
    {136667, 16729, -4733, 16897, -4533}, // New Zealand - South and Stewart Islands - Bluff mc
    {24274, -3600, -2011, -3000, 0}, // Brazil - 36°W to 30°W offshore
    {32460, -7200, -5987, -6600, -1750}, // Chile - 72°W to 66°W
    {137838, 600, 261, 782, 368}, // Nigeria - offshore deep water - east of 6°E
    {137668, 401, 325, 696, 554}, // Nigeria - offshore blocks OPL 209, 219 and 220
    {137630, 716, 325, 825, 451}, // Nigeria - offshore blocks OML 99-102 and OPL 222 and 223
    {137698, 383, 422, 517, 631}, // Nigeria - offshore blocks OPL 209-213 and 316
    {137792, 558, 324, 800, 386}, // Nigeria - offshore blocks OPL 217-223
    {137729, 441, 324, 629, 554}, // Nigeria - offshore blocks OPL 210, 213, 217 and 218
    {137764, 502, 325, 731, 423}, // Nigeria - offshore blocks OPL 215 and 221
    {137569, 941, 878, 1213, 1163}, // Nigeria - Gongola Basin
    {31493, -6366, 1408, -6000, 1831}, // Caribbean - French Antilles west of 60°W
    {207155, -5849, -3663, -5400, -3009}, // Uruguay - west of 54°W
    {24095, -6966, -2291, -6600, -977}, // Bolivia - west of 66°W
    {207130, -5400, -3777, -5001, -3190}, // Uruguay - east of 54°W
    {32471, -7800, -5936, -7199, -1835}, // Chile - 78°W to 72°W
    {187865, -8018, 0, -7800, 270}, // South America - 84°W to 78°W, N hemisphere and SAD69 by country
    {187954, -8141, -1053, -7800, 0}, // South America - 84°W to 78°W, S hemisphere and SAD69 by country
    {187717, -7800, 0, -7200, 1231}, // South America - 78°W to 72°W, N hemisphere and SAD69 by country
    {187763, -7800, -4500, -7199, 0}, // South America - 78°W to 72°W, S hemisphere and SAD69 by country
    {187577, -7200, 0, -6600, 1252}, // South America - 72°W to 66°W, N hemisphere onshore
    {187661, -7200, -4500, -6599, 215}, // South America - 72°W to 66°W, S hemisphere onshore
    {149513, -7200, -2044, -6867, -214}, // Peru - east of 72°W
    {149502, -8400, -1733, -7800, -311}, // Peru - 84°W to 78°W
    {149480, -7800, -2105, -7200, -3}, // Peru - 78°W to 72°W
    {187392, -6600, 64, -5999, 1123}, // South America - 66°W to 60°W, N hemisphere and SAD69 by country
    {187459, -6600, -4500, -5999, 528}, // South America - 66°W to 60°W, S hemisphere and SAD69 by country
    {187235, -6000, 118, -5400, 860}, // South America - 60°W to 54°W, N hemisphere and SAD69 by country
    {24932, -3000, -2386, -2528, 426}, // Brazil - east of 30°W
    {13962, -7359, -5493, -5365, -2178}, // Argentina - mainland onshore and offshore TdF
    {137459, -8774, 1280, -8308, 1503}, // Nicaragua - onshore north of 12°48'N
    {65399, -5072, 5974, -4252, 6300}, // Greenland - southwest coast south of 63°N
    {137480, -8763, 1070, -8342, 1280}, // Nicaragua - onshore south of 12°48'N
    {36959, -8650, 221, -8143, 1177}, // Costa Rica - onshore and offshore east of 86°30'W
    {198163, -12000, 3226, -11400, 4901}, // USA - 120°W to 114°W onshore
    {10540, 15300, -8100, 17300, -7600}, // Antarctica - McMurdo Sound region
    {10466, 15700, -7600, 17300, -7300}, // Antarctica - Borchgrevink Coast region
    {10559, 16000, -7300, 17200, -6950}, // Antarctica - Pennell Coast region
    {10575, 15000, -9000, -15000, -7600}, // Antarctica - Ross Ice Shelf Region
    {198181, -12479, 3385, -11999, 4905}, // USA - 126°W to 120°W onshore
    {208249, -6600, 64, -5895, 1675}, // Venezuela - east of 66°W
    {208136, -7200, 73, -6600, 1564}, // Venezuela - 72°W and 66°W
    {198130, -10200, 2583, -9599, 4901}, // USA - 102°W to 96°W onshore
    {198515, -9600, 2842, -8999, 4938}, // USA - 96°W to 90°W onshore
    {198483, -9000, 2885, -8399, 4832}, // USA - 90°W to 84°W onshore
    {198451, -8401, 2441, -7800, 4613}, // USA - 84°W to 78°W onshore
    {138355, -12600, 3054, -11999, 8180}, // North America - 126°W to 120°W and NAD83 by country
    {30083, -6600, 5158, -6300, 6052}, // Canada - Labrador - 66°W to 63°W
    {138393, -13200, 3538, -12600, 8093}, // North America - 132°W to 126°W and NAD83 by country
    {138432, -13800, 4806, -13200, 7942}, // North America - 138°W to 132°W and NAD83 by country
    {198419, -7800, 3384, -7200, 4503}, // USA - 78°W to 72°W onshore
    {36983, -8597, 953, -8253, 1122}, // Costa Rica - onshore north of 9°32'N
    {37002, -8574, 798, -8253, 994}, // Costa Rica - onshore south of 9°56'N
    {198402, -7200, 4096, -6691, 4747}, // USA - 72°W to 66°W onshore
    {138469, -14400, 5205, -13799, 7359}, // North America - 144°W to 138°W and NAD83 by country
    {189153, -1822, 2758, -1337, 2947}, // Spain - Canary Islands onshore
    {24621, -5816, -2750, -3882, -1499}, // Brazil - Corrego Alegre 1961
    {30065, -6300, 5200, -6000, 5892}, // Canada - Labrador - 63°W to 60°W
    {32051, -9229, 798, -8253, 1783}, // Central America - Guatemala to Costa Rica
    {24339, -4200, -2296, -3882, -1499}, // Brazil - 42°W to 36°W and south of 15°S onshore
    {24478, -5401, -3571, -4799, 704}, // Brazil - 54°W to 48°W and SAD69
    {30101, -6781, 5205, -6600, 5534}, // Canada - Labrador - west of 66°W
    {24514, -6000, -3191, -5399, 451}, // Brazil - 60°W to 54°W
    {148722, 13920, -1115, 14400, 231}, // Papua New Guinea - west of 144°E
    {199666, -16374, 1556, -15127, 2558}, // USA - Hawaii - main islands
    {148590, 14400, -1388, 15001, 258}, // Papua New Guinea - 144°E to 150°E
    {24991, -6058, -3378, -3474, 443}, // Brazil - onshore south of 14°S and east of 53°W
    {148610, 15000, -1475, 15600, 198}, // Papua New Guinea - 150°E to 156°E
    {49105, 1066, 5433, 1201, 5483}, // Europe - Fehmarnbelt outer
    {29730, -6000, 4057, -5400, 6893}, // Canada - 60°W to 54°W and NAD27
    {64363, 334, 5524, 450, 5592}, // Germany - offshore North Sea west of 4.5°E
    {197800, -220, 5053, -168, 5080}, // UK - Wytch Farm
    {205123, 2215, 4795, 2400, 5166}, // Ukraine - west of 24°E
    {24957, -5164, -574, -3243, 704}, // Brazil - equatorial margin
    {53219, 304, 4115, 1038, 4374}, // France - offshore Mediterranean
    {204444, 2400, 4510, 3000, 5196}, // Ukraine - 24°E to 30°E
    {49267, -167, 5050, 2200, 5600}, // Europe - South Permian basin
    {49515, 992, 4124, 2868, 5474}, // Europe - onshore - eastern - S-42(83)
    {173233, 5183, -2472, 5824, -1828}, // Reunion
    {204509, 3000, 4318, 3600, 5238}, // Ukraine - 30°E to 36°E
    {205073, 3600, 4343, 4018, 5044}, // Ukraine - east of 36°E
    {205110, 2215, 4824, 2250, 4898}, // Ukraine - west of 22.5°E
    {204430, 2250, 4771, 2550, 5196}, // Ukraine - 22.5°E to 25.5°E
    {204456, 2550, 4526, 2850, 5194}, // Ukraine - 25.5°E to 28.5°E
    {204482, 2850, 4342, 3150, 5212}, // Ukraine - 28.5°E to 31.5°E
    {204521, 3150, 4318, 3450, 5238}, // Ukraine - 31.5°E to 34.5°E
    {173177, 5400, -2472, 5824, -1828}, // Reunion - east of 54°E
    {204548, 3450, 4324, 3750, 5125}, // Ukraine - 34.5°E to 37.5°E
    {205085, 3750, 4677, 4018, 5039}, // Ukraine - east of 37.5°E
    {173198, 5183, -2437, 5400, -1852}, // Reunion - west of 54°E
    {6615, 124, 2606, 292, 2751}, // Algeria - Ahnet licence area
    {97179, 3021, -2758, 3600, -1141}, // Mozambique - west of 36°E
    {97022, 3600, -2771, 4200, -1009}, // Mozambique - 36°E to 42°E
    {54269, 3798, -2570, 4182, -2091}, // French Southern Territories - Europa
    {35502, 1179, -604, 1300, -467}, // Congo DR (Zaire) - 11°E to 13°E
    {93108, -1800, 1472, -1200, 2346}, // Mauritania - 18°W to 12°W
    {85704, 2400, 1999, 2621, 3360}, // Libya - east of 24°E
    {19420, 5039, 2553, 5085, 2634}, // Bahrain - onshore
    {32662, 10200, 1775, 10800, 4247}, // China - 102°E to 108°E
    {32712, 10800, 1670, 11400, 4511}, // China - 108°E to 114°E
    {32763, 11400, 1902, 12000, 5152}, // China - 114°E to 120°E
    {32812, 12000, 2464, 12600, 5356}, // China - 120°E to 126°E
    {32864, 12600, 2970, 13200, 5279}, // China - 126°E to 132°E
    {85747, 931, 2351, 1200, 3392}, // Libya - west of 12°E
    {85528, 1200, 2251, 1800, 3523}, // Libya - 12°E to 18°E
    {85587, 1799, 1950, 2401, 3503}, // Libya - 18°E to 24°E
    {6605, -600, 2182, 0, 3701}, // Algeria - 6°W to 0°W
    {6556, 0, 1897, 601, 3877}, // Algeria - 0°E to 6°E
    {6732, 600, 1960, 1199, 3880}, // Algeria - east of 6°E
    {91653, 9802, 113, 10582, 781}, // Malaysia - West Malaysia
    {75082, 4800, 2960, 4875, 3100}, // Iraq - east of 48°E
    {78007, 12283, 2037, 15405, 4554}, // Japan - onshore
    {149864, 11689, 775, 11800, 932}, // Philippines - zone I onshore
    {77780, 12238, 2110, 12600, 2971}, // Japan - 120°E to 126°E
    {77805, 12600, 2112, 13200, 3863}, // Japan - 126°E to 132°E
    {77832, 13200, 1709, 13800, 4355}, // Japan - 132°E to 138°E
    {77859, 13800, 1763, 14400, 4605}, // Japan - 138°E to 144°E
    {77886, 14400, 2303, 14786, 4565}, // Japan - 144°E to 150°E
    {149890, 11800, 882, 12007, 1158}, // Philippines - zone II onshore
    {149918, 11970, 499, 12221, 1945}, // Philippines - zone III onshore
    {149946, 12174, 635, 12429, 1858}, // Philippines - zone IV onshore
    {149972, 12373, 550, 12665, 1415}, // Philippines - zone V onshore
    {184376, 4795, 2463, 5081, 2857}, // Saudi Arabia - onshore Gulf coast
    {149814, 11689, 499, 12665, 1945}, // Philippines - onshore
    {136735, 16587, -4765, 16800, -4259}, // New Zealand - nearshore west of 168°E
    {136695, 16800, -4764, 17400, -3389}, // New Zealand - nearshore 168°E to 174°E
    {136715, 17400, -4413, 17927, -3424}, // New Zealand - nearshore east of 174°E
    {136880, 16637, -4733, 17863, -3410}, // New Zealand - onshore
    {73773, 13800, -919, 14101, -149}, // Indonesia - east of 138°E onshore
    {73825, 9516, 255, 9600, 597}, // Indonesia - west of 96°E onshore
    {91594, 10931, 85, 11961, 767}, // Malaysia - East Malaysia
    {73395, 9600, 0, 10200, 542}, // Indonesia - 96°E to 102°E, N hemisphere onshore
    {72900, 10200, 0, 10800, 411}, // Indonesia - 102°E to 108°E, N hemisphere onshore
    {72986, 10800, 0, 11400, 425}, // Indonesia - 108°E to 114°E, N hemisphere onshore
    {73071, 11400, 0, 12000, 437}, // Indonesia - 114°E to 120°E, N hemisphere onshore
    {193102, 11999, 2187, 12206, 2534}, // Taiwan - onshore - mainland
    {73153, 12000, 0, 12571, 384}, // Indonesia - 120°E to 126°E, N hemisphere onshore
    {73242, 12655, 0, 13100, 459}, // Indonesia - 126°E to 132°E, N hemisphere onshore
    {73426, 9824, -357, 10200, 0}, // Indonesia - 96°E to 102°E, S hemisphere onshore
    {72931, 10200, -779, 10800, 0}, // Indonesia - 102°E to 108°E, S hemisphere onshore
    {73017, 10800, -867, 11400, 0}, // Indonesia - 108°E to 114°E, S hemisphere onshore
    {73100, 11400, -1015, 12000, 0}, // Indonesia - 114°E to 120°E, S hemisphere onshore
    {73184, 12000, -1098, 12600, 0}, // Indonesia - 120°E to 126°E, S hemisphere onshore
    {73275, 12600, -841, 13200, 0}, // Indonesia - 126°E to 132°E, S hemisphere onshore
    {73350, 13200, -849, 13800, -29}, // Indonesia - 132°E to 138°E, S hemisphere onshore
    {136827, -18000, -5297, -17400, -2588}, // New Zealand - offshore 180°W to 174°W
    {64407, 750, 4727, 1051, 5509}, // Germany - onshore 7.5°E to 10.5°E
    {78014, 12831, 3018, 14587, 4554}, // Japan - onshore mainland and adjacent islands
    {64392, 1050, 4739, 1351, 5474}, // Germany - onshore 10.5°E to 13.5°E
    {64422, 1350, 4851, 1504, 5472}, // Germany - onshore east of 13.5°E
    {229767, 5400, 895, 5796, 1495}, // Yemen - east of 54°E
    {73711, 10879, 6, 10978, 213}, // Indonesia - Kalimantan W - coastal
    {229778, 4108, 1473, 4200, 1636}, // Yemen - west of 42°E
    {14688, 10214, 799, 11000, 2340}, // Asia - Cambodia and Vietnam - onshore & Cuu Long basin
    {143775, 5400, 1689, 5991, 2642}, // Oman - mainland east of 54°E
    {143766, 5199, 1659, 5991, 2642}, // Oman - mainland
    {35869, 1499, -587, 1628, -442}, // Congo DR (Zaire) - Bas Congo east of 15°E
    {148667, 14224, -828, 14475, -559}, // Papua New Guinea - PFTB
    {188300, -8141, -4500, -3474, 1252}, // South America - onshore north of 45°S
    {36313, 2900, -1346, 2981, -1215}, // Congo DR (Zaire) - south and 29°E to 31°E
    {13325, -15600, 7500, -6600, 8701}, // Arctic - 87°N to 75°N, 156°W to 66°W
    {73819, 9516, -1098, 14101, 597}, // Indonesia - onshore
    {196048, 5399, 2263, 5603, 2534}, // UAE - Abu Dhabi and Dubai - onshore east of 54°E
    {25060, -7401, -1001, -7199, -459}, // Brazil - west of 72°W
    {24538, -7200, -1114, -6599, 215}, // Brazil - 72°W to 66°W
    {7582, 1041, -801, 1284, -505}, // Angola - offshore north of 8°S
    {24526, -6600, -1628, -5999, 528}, // Brazil - 66°W to 60°W
    {13368, -8400, 7500, 601, 8701}, // Arctic - 87°N to 75°N, 84°W to 6°E
    {13282, -1200, 7500, 7801, 8701}, // Arctic - 87°N to 75°N, 12°W to 78°E
    {13347, 6000, 7500, 15001, 8701}, // Arctic - 87°N to 75°N, 60°E to 150°E
    {12877, -13500, 7950, -9500, 8451}, // Arctic - 84°30'N to 79°30'N, 135°W to 95°W
    {13303, 13200, 7500, -13800, 8701}, // Arctic - 87°N to 75°N, 132°E to 138°W
    {12450, -15600, 6700, -6600, 7901}, // Arctic - 79°N to 67°N, 156°W to 66°W
    {12493, -8400, 6700, 601, 7901}, // Arctic - 79°N to 67°N, 84°W to 6°E
    {12407, -1200, 6700, 7801, 7901}, // Arctic - 79°N to 67°N, 12°W to 78°E
    {75731, 919, 4373, 1276, 4514}, // Italy - Emilia-Romagna
    {13095, -9500, 7950, -5500, 8451}, // Arctic - 84°30'N to 79°30'N, 95°W to 55°W
    {12472, 6000, 6700, 15001, 7901}, // Arctic - 79°N to 67°N, 60°E to 150°E
    {12428, 13200, 6700, -13800, 7901}, // Arctic - 79°N to 67°N, 132°E to 138°W
    {13041, -7200, 7950, -3200, 8451}, // Arctic - 84°30'N to 79°30'N, 72°W to 32°W
    {11417, -15600, 5900, -6600, 7100}, // Arctic - 71°N to 59°N, 156°W to 66°W
    {11460, -8400, 5900, 600, 7100}, // Arctic - 71°N to 59°N, 84°W to 6°E
    {11374, -1200, 5900, 7801, 7100}, // Arctic - 71°N to 59°N, 12°W to 78°E
    {11439, 6000, 5900, 15001, 7100}, // Arctic - 71°N to 59°N, 60°E to 150°E
    {13202, -18000, 8283, -12000, 8784}, // Arctic - 87°50'N to 82°50'N, 180°W to 120°W
    {11395, 13200, 5900, -13800, 7100}, // Arctic - 71°N to 59°N, 132°E to 138°W
    {12962, -3200, 7950, 801, 8451}, // Arctic - 84°30'N to 79°30'N, 32°W to 8°E
    {13175, -12000, 8283, -6000, 8784}, // Arctic - 87°50'N to 82°50'N, 120°W to 60°W
    {13256, -6000, 8283, 0, 8784}, // Arctic - 87°50'N to 82°50'N, 60°W to 0°E
    {13122, 0, 8283, 6001, 8784}, // Arctic - 87°50'N to 82°50'N, 0°E to 60°E
    {13230, 6000, 8283, 12001, 8784}, // Arctic - 87°50'N to 82°50'N, 60°E to 120°E
    {13148, 12000, 8283, 18000, 8783}, // Arctic - 87°50'N to 82°50'N, 120°E to 180°E
    {12933, -17400, 7950, -13499, 8451}, // Arctic - 84°30'N to 79°30'N, 174°W to 135°W
    {13015, -400, 7950, 3601, 8451}, // Arctic - 84°30'N to 79°30'N, 4°W to 36°E
    {12988, 3300, 7950, 7301, 8451}, // Arctic - 84°30'N to 79°30'N, 33°E to 73°E
    {13068, 7300, 7950, 11301, 8451}, // Arctic - 84°30'N to 79°30'N, 73°E to 113°E
    {12850, 11300, 7950, 15301, 8451}, // Arctic - 84°30'N to 79°30'N, 113°E to 153°E
    {12905, 14600, 7950, -17399, 8451}, // Arctic - 84°30'N to 79°30'N, 146°E to 174°W
    {12692, -335, 7616, 3801, 8117}, // Arctic - 81°10'N to 76°10'N, 4°W to 38°E
    {12667, 3499, 7616, 6701, 8117}, // Arctic - 81°10'N to 76°10'N, 35°E to 67°E
    {12741, 6700, 7616, 9801, 8117}, // Arctic - 81°10'N to 76°10'N, 67°E to 98°E
    {12766, 9800, 7616, 12901, 8117}, // Arctic - 81°10'N to 76°10'N, 98°E to 129°E
    {12538, 12900, 7616, 16001, 8117}, // Arctic - 81°10'N to 76°10'N, 129°E to 160°E
    {12590, 16000, 7616, -16899, 8117}, // Arctic - 81°10'N to 76°10'N, 160°E to 169°W
    {12616, -16900, 7616, -13800, 8117}, // Arctic - 81°10'N to 76°10'N, 169°W to 138°W
    {12564, -14400, 7616, -11400, 8117}, // Arctic - 81°10'N to 76°10'N, 144°W to 114°W
    {12513, -11400, 7616, -8400, 8117}, // Arctic - 81°10'N to 76°10'N, 114°W to 84°W
    {12791, -8400, 7616, -6478, 8117}, // Arctic - 81°10'N to 76°10'N, Canada east of 84°W
    {12820, -7500, 7616, -5400, 8117}, // Arctic - 81°10'N to 76°10'N, Greenland west of 54°W
    {12716, -5400, 7616, -2400, 8117}, // Arctic - 81°10'N to 76°10'N, 54°W to 24°W
    {12643, -2400, 7616, 189, 8117}, // Arctic - 81°10'N to 76°10'N, 24°W to 3°E
    {12137, -16900, 7283, -14100, 7784}, // Arctic - 77°50'N to 72°50'N, 169°W to 141°W
    {12053, -14100, 7283, -11600, 7784}, // Arctic - 77°50'N to 72°50'N, 141°W to 116°W
    {11999, -11600, 7283, -9100, 7784}, // Arctic - 77°50'N to 72°50'N, 116°W to 91°W
    {12353, -9100, 7283, -6700, 7784}, // Arctic - 77°50'N to 72°50'N, 91°W to 67°W
    {12326, -7600, 7283, -5100, 7784}, // Arctic - 77°50'N to 72°50'N, 76°W to 51°W
    {12272, -5100, 7283, -2600, 7784}, // Arctic - 77°50'N to 72°50'N, 51°W to 26°W
    {12193, -2600, 7283, -200, 7784}, // Arctic - 77°50'N to 72°50'N, 26°W to 2°W
    {12219, -200, 7283, 2201, 7784}, // Arctic - 77°50'N to 72°50'N, 2°W to 22°E
    {12166, 2200, 7283, 4601, 7784}, // Arctic - 77°50'N to 72°50'N, 22°E to 46°E
    {12245, 4600, 7283, 7001, 7784}, // Arctic - 77°50'N to 72°50'N, 46°E to 70°E
    {12299, 7000, 7283, 9401, 7784}, // Arctic - 77°50'N to 72°50'N, 70°E to 94°E
    {12380, 9400, 7283, 11801, 7784}, // Arctic - 77°50'N to 72°50'N, 94°E to 118°E
    {12026, 11800, 7283, 14201, 7784}, // Arctic - 77°50'N to 72°50'N, 118°E to 142°E
    {12081, 14200, 7283, 16601, 7784}, // Arctic - 77°50'N to 72°50'N, 142°E to 166°E
    {12109, 16600, 7283, -16899, 7784}, // Arctic - 77°50'N to 72°50'N, 166°E to 169°W
    {11838, 400, 6950, 2401, 7451}, // Arctic - 74°30'N to 69°30'N, 4°E to 24°E
    {11757, 2400, 6950, 4401, 7451}, // Arctic - 74°30'N to 69°30'N, 24°E to 44°E
    {11811, 4400, 6950, 6401, 7451}, // Arctic - 74°30'N to 69°30'N, 44°E to 64°E
    {11891, 6400, 6950, 8501, 7451}, // Arctic - 74°30'N to 69°30'N, 64°E to 85°E
    {11972, 8500, 6950, 10601, 7451}, // Arctic - 74°30'N to 69°30'N, 85°E to 106°E
    {11507, 10600, 6950, 12701, 7451}, // Arctic - 74°30'N to 69°30'N, 106°E to 127°E
    {11561, 12700, 6950, 14800, 7451}, // Arctic - 74°30'N to 69°30'N, 127°E to 148°E
    {11617, 14800, 6950, 16901, 7451}, // Arctic - 74°30'N to 69°30'N, 148°E to 169°E
    {11700, 16900, 6950, -16900, 7451}, // Arctic - 74°30'N to 69°30'N, 169°E to 169°W
    {11728, -17300, 6950, -15300, 7451}, // Arctic - 74°30'N to 69°30'N, 173°W to 153°W
    {11645, -15700, 6950, -13700, 7451}, // Arctic - 74°30'N to 69°30'N, 157°W to 137°W
    {11588, -14100, 6950, -12100, 7451}, // Arctic - 74°30'N to 69°30'N, 141°W to 121°W
    {11533, -12100, 6950, -10100, 7451}, // Arctic - 74°30'N to 69°30'N, 121°W to 101°W
    {11480, -10100, 6950, -8100, 7451}, // Arctic - 74°30'N to 69°30'N, 101°W to 81°W
    {11945, -8100, 6950, -6100, 7451}, // Arctic - 74°30'N to 69°30'N, 81°W to 61°W
    {11918, -7189, 6948, -5199, 7451}, // Arctic - 74°30'N to 69°30'N, 72°W to 52°W
    {11864, -5200, 6950, -3200, 7451}, // Arctic - 74°30'N to 69°30'N, 52°W to 32°W
    {11784, -3200, 6950, -1200, 7451}, // Arctic - 74°30'N to 69°30'N, 32°W to 12°W
    {11674, -1500, 6950, 501, 7451}, // Arctic - 74°30'N to 69°30'N, 15°W to 5°E
    {11248, -17400, 6616, -15600, 7117}, // Arctic - 71°10'N to 66°10'N, 174°W to 156°W
    {11221, -15600, 6616, -13800, 7117}, // Arctic - 71°10'N to 66°10'N, 156°W to 138°W
    {11194, -14100, 6616, -12200, 7117}, // Arctic - 71°10'N to 66°10'N, 141°W to 122°W
    {11168, -12200, 6616, -10300, 7117}, // Arctic - 71°10'N to 66°10'N, 122°W to 103°W
    {11143, -10300, 6616, -8400, 7117}, // Arctic - 71°10'N to 66°10'N, 103°W to 84°W
    {11349, -8400, 6616, -6500, 7117}, // Arctic - 71°10'N to 66°10'N, 84°W to 65°W
    {11324, -6500, 6616, -4700, 7117}, // Arctic - 71°10'N to 66°10'N, 65°W to 47°W
    {11299, -4700, 6616, -2900, 7117}, // Arctic - 71°10'N to 66°10'N, 47°W to 29°W
    {11275, -2900, 6616, -1100, 7117}, // Arctic - 71°10'N to 66°10'N, 29°W to 11°W
    {11116, -5900, 6283, -4200, 6784}, // Arctic - 67°50'N to 62°50'N, 59°W to 42°W
    {11089, -4200, 6283, -2500, 6784}, // Arctic - 67°50'N to 62°50'N, 42°W to 25°W
    {34184, -7078, 705, -7071, 710}, // Colombia - Arauca city
    {11062, -5900, 5950, -4400, 6451}, // Arctic - 64°30'N to 59°30'N, 59°W to 44°W
    {11035, -4400, 5950, -2900, 6451}, // Arctic - 64°30'N to 59°30'N, 44°W to 29°W
    {137583, 672, 556, 697, 574}, // Nigeria - OML 124
    {34593, -7424, 1116, -7413, 1130}, // Colombia - Santa Marta city
    {24400, -4800, 0, -4199, 513}, // Brazil - 48°W to 42°W and north of 0°N
    {34610, -7474, 879, -7469, 883}, // Colombia - Sucre city
    {34624, -7339, 550, -7330, 561}, // Colombia - Tunja city
    {34198, -7573, 450, -7565, 455}, // Colombia - Armenia city
    {24319, -4200, 0, -3822, 74}, // Brazil - 42°W to 36°W and north of 0°N
    {34211, -7487, 1085, -7475, 1106}, // Colombia - Barranquilla city
    {34229, -7427, 445, -7398, 485}, // Colombia - Bogota city
    {34243, -7319, 703, -7306, 717}, // Colombia - Bucaramanga city
    {34260, -7661, 332, -7642, 356}, // Colombia - Cali city
    {34273, -7557, 1027, -7542, 1047}, // Colombia - Cartagena city
    {34289, -7256, 781, -7246, 797}, // Colombia - Cucuta city
    {34314, -7563, 157, -7559, 165}, // Colombia - Florencia city
    {34329, -7527, 439, -7511, 447}, // Colombia - Ibague city
    {34344, -6794, 380, -6788, 390}, // Colombia - Inirida city
    {34357, -6998, -423, -6992, -417}, // Colombia - Leticia city
    {34370, -7554, 502, -7544, 511}, // Colombia - Manizales city
    {34386, -7566, 612, -7550, 637}, // Colombia - Medellin city
    {34401, -7025, 123, -7021, 129}, // Colombia - Mitu city
    {34414, -7666, 112, -7663, 118}, // Colombia - Mocoa city
    {34428, -7594, 870, -7582, 881}, // Colombia - Monteria city
    {34442, -7532, 287, -7523, 299}, // Colombia - Neiva city
    {34455, -7732, 116, -7723, 126}, // Colombia - Pasto city
    {34468, -7577, 478, -7564, 487}, // Colombia - Pereira city
    {34482, -7665, 241, -7655, 249}, // Colombia - Popayan city
    {34498, -6770, 598, -6741, 630}, // Colombia - Puerto Carreno city
    {34517, -7668, 566, -7663, 572}, // Colombia - Quibdo city
    {34532, -7296, 1142, -7284, 1158}, // Colombia - Riohacha city
    {34549, -8182, 1243, -8160, 1265}, // Colombia - San Andres city
    {34567, -7266, 254, -7260, 261}, // Colombia - San Jose del Guaviare city
    {34638, -7330, 1039, -7319, 1051}, // Colombia - Valledupar city
    {34655, -7369, 407, -7356, 421}, // Colombia - Villavicencio city
    {34674, -7243, 530, -7235, 537}, // Colombia - Yopal city
    {147819, 15747, -1756, -15127, 3180}, // Pacific - US interests Pacific plate
    {78659, 12238, 1709, 15765, 4605}, // Japan excluding northern main province
    {200819, -9660, 4290, -9397, 4351}, // USA - Iowa - Spencer
    {147794, 12948, 164, 14955, 2390}, // Pacific - US interests Mariana plate
    {33423, 10548, -1063, 10577, -1036}, // Christmas Island - onshore
    {77991, 13542, 3484, 14214, 4158}, // Japan - northern Honshu
    {50693, -6301, -5625, -5699, -4768}, // Falkland Islands - offshore 63°W to 57°W
    {67663, 6292, -5750, 6600, -5343}, // Heard Island and McDonald Islands - west of 66°E
    {16111, 16200, -5939, 16800, -2594}, // Australasia - Australia and Norfolk Island - 162°E to 168°E
    {16053, 10800, -3784, 11401, -1072}, // Australasia - Australia and Christmas Island - 108°E to 114°E
    {16470, 9341, -6055, 17334, -847}, // Australia - GDA
    {16261, 11400, -3853, 12001, -1206}, // Australia - 114°E to 120°E
    {138186, 16800, -3248, 17335, -2561}, // Norfolk Island - east of 168°E
    {202092, -11815, 4460, -11737, 4519}, // USA - Oregon - Baker City
    {67591, 6600, -5896, 7201, -5118}, // Heard Island and McDonald Islands - 66°E to 72°E
    {202104, -12095, 4334, -11880, 4428}, // USA - Oregon - Bend-Burns
    {185170, 5515, -486, 5601, -366}, // Seychelles - Seychelles Bank
    {67615, 7200, -5902, 7801, -4950}, // Heard Island and McDonald Islands - 72°E to 78°E
    {67639, 7800, -5847, 8357, -5065}, // Heard Island and McDonald Islands - east of 78°E
    {75604, 1200, 3479, 1800, 4710}, // Italy - 12°E to 18°E
    {75843, 1799, 3476, 1899, 4164}, // Italy - east of 18°E
    {34003, 9341, -1546, 9601, -857}, // Cocos (Keeling) Islands - west of 96°E
    {33962, 9600, -1556, 10034, -847}, // Cocos (Keeling) Islands - east of 96°E
    {16082, 10214, -3468, 10801, -887}, // Australasia - Australia and Christmas Island - west of 108°E
    {202117, -12245, 4188, -12077, 4389}, // USA - Oregon - Bend-Klamath Falls
    {208994, 10214, 920, 10351, 2282}, // Vietnam - west of 103°30'E onshore
    {78691, 12283, 2037, 15405, 4554}, // Japan onshore excluding northern main province
    {202135, -12188, 4376, -11979, 4498}, // USA - Oregon - Bend-Redmond-Prineville
    {16378, 15600, -6056, 16201, -1408}, // Australia - 156°E to 162°E including Macquarie
    {202337, -12380, 4374, -12218, 4471}, // USA - Oregon - Eugene
    {202347, -12395, 4188, -12237, 4285}, // USA - Oregon - Grants Pass-Ashland
    {202189, -12383, 4249, -12243, 4324}, // USA - Oregon - Canyonville-Grants Pass
    {202225, -12205, 4549, -11889, 4608}, // USA - Oregon - Columbia River East
    {202365, -12243, 4502, -12168, 4555}, // USA - Oregon - Gresham-Warm Springs
    {202244, -12433, 4517, -12147, 4656}, // USA - Oregon - Columbia River West
    {202263, -12396, 4282, -12240, 4388}, // USA - Oregon - Cottage Grove-Canyonville
    {202323, -12195, 4463, -12046, 4555}, // USA - Oregon - Dufur-Madras
    {202395, -11817, 4513, -11714, 4580}, // USA - Oregon - La Grande
    {202463, -11790, 4341, -11670, 4465}, // USA - Oregon - Ontario
    {202473, -12484, 4189, -12335, 4640}, // USA - Oregon - Oregon Coast
    {202495, -11936, 4546, -11817, 4602}, // USA - Oregon - Pendleton
    {202506, -11864, 4513, -11809, 4564}, // USA - Oregon - Pendleton-La Grande
    {202542, -12353, 4523, -12211, 4601}, // USA - Oregon - Portland
    {202604, -12373, 4432, -12189, 4530}, // USA - Oregon - Salem
    {202627, -12251, 4410, -12169, 4466}, // USA - Oregon - Sweet Home-Sisters
    {148704, 14085, -1076, 15096, -253}, // Papua New Guinea - mainland onshore
    {208423, 10350, 833, 10651, 2340}, // Vietnam - 103.5°E to 106.5°E onshore
    {148650, 14089, -660, 14154, -505}, // Papua New Guinea - North Fly
    {208914, 10650, 857, 10953, 2295}, // Vietnam - east of 106.5°E onshore
    {208842, 10643, 857, 10876, 2167}, // Vietnam - Quang Ninh; Da Nang, Quang Nam; Ba Ria-Vung Tau, Dong Nai, Lam Dong
    {200738, -9398, 4290, -9160, 4351}, // USA - Iowa - Mason City
    {47502, 837, 314, 902, 382}, // Equatorial Guinea - Bioko
    {32540, -7448, -4350, -7039, -3599}, // Chile - onshore 36°S to 43.5°S
    {32512, -7287, -3600, -6828, -2600}, // Chile - onshore 26°S to 36°S
    {15396, 9959, 113, 10582, 781}, // Asia - Malaysia (west including SCS) and Singapore
    {32526, -7287, -3600, -6977, -3199}, // Chile - onshore 32°S to 36°S
    {195964, 5156, 2263, 5603, 2495}, // UAE - Abu Dhabi - onshore
    {195931, 5150, 2263, 5603, 2564}, // UAE - Abu Dhabi
    {195980, 5399, 2263, 5603, 2495}, // UAE - Abu Dhabi - onshore east of 54°E
    {199222, -12356, 3685, -12120, 3887}, // USA - California - San Francisco Bay Area
    {196077, 5420, 2424, 5471, 2464}, // UAE - Abu Dhabi island
    {200714, -9162, 4229, -9089, 4351}, // USA - Iowa - Elkader
    {32591, -7079, -2600, -6700, -1750}, // Chile - onshore north of 26°S
    {32605, -7177, -3200, -6700, -1750}, // Chile - onshore north of 32°S
    {200797, -9665, 4220, -9300, 4292}, // USA - Iowa - Sioux City-Iowa Falls
    {200830, -9303, 4220, -9159, 4309}, // USA - Iowa - Waterloo
    {200675, -9637, 4058, -9504, 4222}, // USA - Iowa - Council Bluffs
    {200642, -9516, 4115, -9416, 4222}, // USA - Iowa - Carroll-Atlantic
    {200612, -9429, 4115, -9323, 4222}, // USA - Iowa - Ames-Des Moines
    {15514, 3879, 2906, 5106, 3739}, // Asia - Middle East - Iraq and SW Iran
    {200750, -9335, 4116, -9229, 4230}, // USA - Iowa - Newton
    {200660, -9231, 4142, -9089, 4230}, // USA - Iowa - Cedar Rapids
    {200693, -9114, 4144, -9014, 4268}, // USA - Iowa - Dubuque-Davenport
    {200759, -9539, 4057, -9217, 4117}, // USA - Iowa - Red Oak-Ottumwa
    {200725, -9242, 4059, -9148, 4152}, // USA - Iowa - Fairfield
    {200629, -9172, 4037, -9078, 4160}, // USA - Iowa - Burlington
    {54238, 4537, -4938, 4801, -4312}, // French Southern Territories - Crozet west of 48°E
    {54344, 3798, -6713, 14200, -2091}, // French Southern and Antarctic Territories
    {54176, 4800, -4982, 5401, -4261}, // French Southern Territories - Crozet 48°E to 54°E
    {54207, 5400, -4961, 5716, -4330}, // French Southern Territories - Crozet east of 54°E
    {54101, 6296, -5303, 6600, -4573}, // French Southern Territories - 60°E to 66°E
    {54126, 6600, -5324, 7201, -4511}, // French Southern Territories - 66°E to 72°E
    {54151, 7200, -5119, 7801, -3447}, // French Southern Territories - 72°E to 78°E
    {54319, 7800, -4204, 8183, -3450}, // French Southern Territories - east of 78°E
    {200368, -8753, 4073, -8721, 4177}, // USA - Indiana - Lake and Newton
    {200258, -8728, 4073, -8692, 4177}, // USA - Indiana - Jasper and Porter
    {200344, -8694, 4090, -8646, 4177}, // USA - Indiana - LaPorte, Pulaski, Starke
    {199831, -8753, 4047, -8709, 4074}, // USA - Indiana - Benton
    {200557, -8710, 4021, -8658, 4092}, // USA - Indiana - Tippecanoe and White
    {199887, -8678, 4043, -8637, 4074}, // USA - Indiana - Carroll
    {200095, -8754, 3995, -8709, 4048}, // USA - Indiana - Fountain and Warren
    {199934, -8670, 4017, -8624, 4044}, // USA - Indiana - Clinton
    {200422, -8754, 3960, -8700, 4015}, // USA - Indiana - Parke and Vermillion
    {200396, -8710, 3947, -8664, 4022}, // USA - Indiana - Montgomery and Putnam
    {199860, -8670, 3960, -8624, 4019}, // USA - Indiana - Boone and Hendricks
    {200588, -8762, 3925, -8719, 3961}, // USA - Indiana - Vigo
    {199925, -8725, 3916, -8693, 3961}, // USA - Indiana - Clay
    {200414, -8706, 3916, -8663, 3948}, // USA - Indiana - Owen
    {200381, -8669, 3899, -8624, 3964}, // USA - Indiana - Monroe and Morgan
    {200545, -8765, 3890, -8724, 3926}, // USA - Indiana - Sullivan
    {199969, -8728, 3849, -8668, 3918}, // USA - Indiana - Daviess and Greene
    {200317, -8775, 3841, -8709, 3891}, // USA - Indiana - Knox
    {200032, -8708, 3820, -8667, 3891}, // USA - Indiana - Dubois and Martin
    {199944, -8669, 3810, -8624, 3900}, // USA - Indiana - Crawford, Lawrence, Orange
    {200135, -8798, 3816, -8731, 3854}, // USA - Indiana - Gibson
    {200447, -8748, 3787, -8701, 3856}, // USA - Indiana - Pike and Warrick
    {200462, -8806, 3777, -8768, 3824}, // USA - Indiana - Posey
    {200576, -8771, 3782, -8744, 3817}, // USA - Indiana - Vanderburgh
    {200524, -8727, 3778, -8676, 3821}, // USA - Indiana - Spencer
    {200438, -8682, 3784, -8643, 3827}, // USA - Indiana - Perry
    {200110, -8653, 4090, -8594, 4177}, // USA - Indiana - Fulton, Marshall, St Joseph
    {200047, -8608, 4065, -8563, 4177}, // USA - Indiana - Elkhart, Kosciusko, Wabash
    {200326, -8566, 4126, -8519, 4177}, // USA - Indiana - LaGrange and Noble
    {200534, -8520, 4152, -8480, 4177}, // USA - Indiana - Steuben
    {199985, -8520, 4126, -8480, 4154}, // USA - Indiana - DeKalb
    {200228, -8569, 4065, -8530, 4130}, // USA - Indiana - Huntington and Whitley
    {199810, -8534, 4091, -8480, 4128}, // USA - Indiana - Allen
    {199897, -8659, 4056, -8616, 4092}, // USA - Indiana - Cass
    {200213, -8638, 4037, -8586, 4100}, // USA - Indiana - Howard and Miami
    {200597, -8545, 4056, -8506, 4092}, // USA - Indiana - Wells
    {199801, -8508, 4056, -8480, 4093}, // USA - Indiana - Adams
    {200145, -8587, 4037, -8544, 4066}, // USA - Indiana - Grant
    {199840, -8558, 4007, -8520, 4057}, // USA - Indiana - Blackford and Delaware
    {200272, -8522, 4030, -8480, 4058}, // USA - Indiana - Jay
    {200154, -8625, 3992, -8586, 4041}, // USA - Indiana - Hamilton and Tipton
    {200170, -8596, 3969, -8557, 4038}, // USA - Indiana - Hancock and Madison
    {200472, -8523, 3971, -8480, 4032}, // USA - Indiana - Randolph and Wayne
    {200204, -8560, 3978, -8520, 4008}, // USA - Indiana - Henry
    {200302, -8633, 3934, -8593, 3993}, // USA - Indiana - Johnson and Marion
    {200514, -8596, 3934, -8562, 3970}, // USA - Indiana - Shelby
    {200018, -8569, 3913, -8529, 3979}, // USA - Indiana - Decatur and Rush
    {200073, -8531, 3926, -8481, 3979}, // USA - Indiana - Fayette, Franklin, Union
    {199877, -8639, 3904, -8607, 3935}, // USA - Indiana - Brown
    {199819, -8609, 3903, -8568, 3936}, // USA - Indiana - Bartholomew
    {200247, -8632, 3872, -8579, 3908}, // USA - Indiana - Jackson
    {200291, -8580, 3880, -8543, 3920}, // USA - Indiana - Jennings
    {200487, -8545, 3891, -8506, 3932}, // USA - Indiana - Ripley
    {199995, -8521, 3868, -8478, 3931}, // USA - Indiana - Dearborn, Ohio, Switzerland
    {200186, -8633, 3795, -8584, 3879}, // USA - Indiana - Harrison and Washington
    {199905, -8604, 3817, -8541, 3884}, // USA - Indiana - Clark, Floyd, Scott
    {200280, -8569, 3858, -8520, 3892}, // USA - Indiana - Jefferson
    {201681, -11397, 4855, -11300, 4901}, // USA - Montana - St Mary valley
    {201528, -11384, 4800, -11200, 4901}, // USA - Montana - Blackfeet reservation
    {201633, -11250, 4778, -10874, 4901}, // USA - Montana - Milk River
    {201567, -11084, 4778, -10699, 4901}, // USA - Montana - Fort Belknap
    {201584, -10757, 4801, -10478, 4888}, // USA - Montana - Fort Peck higher areas
    {201609, -10776, 4775, -10404, 4901}, // USA - Montana - Fort Peck lower areas
    {201549, -10884, 4499, -10666, 4609}, // USA - Montana - Crow reservation
    {201699, -11234, 4536, -11075, 4659}, // USA - Montana - Three Forks
    {201515, -10942, 4499, -10799, 4741}, // USA - Montana - Billings
    {204134, -10950, 4269, -10794, 4386}, // USA - Wyoming - Wind River reservation
    {203119, -9093, 4598, -9030, 4709}, // USA - Wisconsin - Ashland
    {203144, -9156, 4615, -9075, 4701}, // USA - Wisconsin - Bayfield
    {143823, 5199, 1494, 5401, 1967}, // Oman - west of 54°E
    {143721, 5400, 1433, 6001, 2674}, // Oman - 54°E to 60°E
    {143755, 6000, 1637, 6338, 2409}, // Oman - east of 60°E
    {203189, -9289, 4563, -9203, 4616}, // USA - Wisconsin - Burnett
    {203352, -9230, 4615, -9155, 4676}, // USA - Wisconsin - Douglas
    {203396, -8869, 4571, -8805, 4603}, // USA - Wisconsin - Florence
    {203411, -8905, 4537, -8842, 4608}, // USA - Wisconsin - Forest
    {203496, -9056, 4598, -8992, 4660}, // USA - Wisconsin - Iron
    {203713, -9005, 4546, -8904, 4591}, // USA - Wisconsin - Oneida
    {203131, -9216, 4520, -9153, 4565}, // USA - Wisconsin - Barron
    {203773, -9068, 4537, -9004, 4599}, // USA - Wisconsin - Price
    {203873, -9156, 4563, -9067, 4616}, // USA - Wisconsin - Sawyer
    {203964, -9005, 4585, -8893, 4630}, // USA - Wisconsin - Vilas
    {203990, -9206, 4563, -9154, 4616}, // USA - Wisconsin - Washburn
    {203160, -8826, 4424, -8776, 4468}, // USA - Wisconsin - Brown
    {203174, -9209, 4402, -9152, 4460}, // USA - Wisconsin - Buffalo
    {203246, -9167, 4485, -9092, 4530}, // USA - Wisconsin - Chippewa
    {203263, -9093, 4442, -9031, 4504}, // USA - Wisconsin - Clark
    {203340, -8774, 4467, -8680, 4543}, // USA - Wisconsin - Door
    {203366, -9216, 4468, -9164, 4521}, // USA - Wisconsin - Dunn
    {203379, -9166, 4459, -9092, 4486}, // USA - Wisconsin - Eau Claire
    {203508, -9117, 4407, -9031, 4460}, // USA - Wisconsin - Jackson
    {203612, -8943, 4502, -8863, 4548}, // USA - Wisconsin - Langlade
    {203627, -9005, 4511, -8942, 4556}, // USA - Wisconsin - Lincoln
    {203641, -9032, 4468, -8922, 4513}, // USA - Wisconsin - Marathon
    {203655, -8843, 4496, -8748, 4580}, // USA - Wisconsin - Marinette
    {203670, -8899, 4485, -8848, 4512}, // USA - Wisconsin - Menominee
    {203699, -8869, 4467, -8776, 4538}, // USA - Wisconsin - Oconto
    {203727, -9281, 4440, -9165, 4487}, // USA - Wisconsin - Pepin and Pierce
    {203746, -9289, 4520, -9215, 4573}, // USA - Wisconsin - Polk
    {203758, -8985, 4424, -8922, 4469}, // USA - Wisconsin - Portage
    {203812, -9155, 4529, -9067, 4564}, // USA - Wisconsin - Rusk
    {203887, -8923, 4458, -8824, 4503}, // USA - Wisconsin - Shawano
    {203902, -9281, 4485, -9213, 4522}, // USA - Wisconsin - St. Croix
    {203919, -9093, 4503, -9004, 4539}, // USA - Wisconsin - Taylor
    {203933, -9162, 4398, -9115, 4460}, // USA - Wisconsin - Trempealeau
    {204037, -8923, 4424, -8860, 4469}, // USA - Wisconsin - Waupaca
    {204068, -9032, 4424, -8972, 4469}, // USA - Wisconsin - Wood
    {203099, -9032, 4364, -8959, 4425}, // USA - Wisconsin - Adams and Juneau
    {203203, -8889, 4354, -8804, 4460}, // USA - Wisconsin - Calumet, Fond du Lac, Outagamie and Winnebago
    {203276, -8979, 4328, -8900, 4365}, // USA - Wisconsin - Columbia
    {203292, -9122, 4298, -9066, 4343}, // USA - Wisconsin - Crawford
    {203307, -8984, 4284, -8900, 4330}, // USA - Wisconsin - Dane
    {203319, -8902, 4284, -8840, 4364}, // USA - Wisconsin - Dodge and Jefferson
    {203424, -9116, 4250, -9042, 4322}, // USA - Wisconsin - Grant
    {203462, -9043, 4250, -8936, 4286}, // USA - Wisconsin - Green and Lafayette
    {203437, -8960, 4363, -8888, 4399}, // USA - Wisconsin - Green Lake and Marquette
    {203483, -9043, 4281, -8983, 4321}, // USA - Wisconsin - Iowa
    {203523, -8831, 4249, -8775, 4355}, // USA - Wisconsin - Kenosha, Milwaukee, Ozaukee and Racine
    {203560, -8817, 4354, -8737, 4468}, // USA - Wisconsin - Kewaunee, Manitowoc and Sheboygan
    {203595, -9143, 4372, -9091, 4410}, // USA - Wisconsin - La Crosse
    {203685, -9098, 4372, -9031, 4417}, // USA - Wisconsin - Monroe
    {203786, -9068, 4316, -9019, 4356}, // USA - Wisconsin - Richland
    {203799, -8937, 4249, -8877, 4285}, // USA - Wisconsin - Rock
    {203860, -9032, 4314, -8959, 4365}, // USA - Wisconsin - Sauk
    {203951, -9128, 4342, -9031, 4374}, // USA - Wisconsin - Vernon
    {203976, -8878, 4249, -8830, 4285}, // USA - Wisconsin - Walworth
    {204005, -8842, 4319, -8803, 4355}, // USA - Wisconsin - Washington
    {204021, -8855, 4284, -8806, 4320}, // USA - Wisconsin - Waukesha
    {204053, -8960, 4398, -8888, 4425}, // USA - Wisconsin - Waushara
    {6634, 766, 2740, 827, 2810}, // Algeria - Ain Tsila
    {83928, 6924, 3951, 7002, 4022}, // Kyrgyzstan - west of 70°01'E
    {83833, 7001, 3919, 7302, 4283}, // Kyrgyzstan - 70°01'E to 73°01'E
    {83858, 7301, 3935, 7602, 4322}, // Kyrgyzstan - 73°01'E to 76°01'E
    {83883, 7601, 4035, 7902, 4300}, // Kyrgyzstan - 76°01'E to 79°01'E
    {83908, 7901, 4166, 8029, 4280}, // Kyrgyzstan - east of 79°01'E
    {197422, -900, 4975, 201, 6101}, // UK - Britain and UKCS 49°45'N to 61°N, 9°W to 2°E
    {72276, 8969, 2194, 9742, 2947}, // India - northeast
    {71903, 7675, 1261, 8481, 1992}, // India - Andhra Pradesh and Telangana
    {71924, 9155, 2665, 9742, 2947}, // India - Arunachal Pradesh
    {71939, 8969, 2413, 9603, 2798}, // India - Assam
    {71946, 8331, 2428, 8830, 2786}, // India - Bihar
    {71953, 8023, 1778, 8439, 2411}, // India - Chhattisgarh
    {71972, 7361, 1486, 7435, 1580}, // India - Goa
    {71978, 6813, 2005, 7448, 2471}, // India - Gujarat
    {71986, 7446, 2765, 7760, 3094}, // India - Haryana
    {71994, 7557, 3038, 7900, 3326}, // India - Himachal Pradesh
    {72009, 7376, 3227, 7957, 3551}, // India - Jammu and Kashmir
    {72022, 8332, 2196, 8798, 2535}, // India - Jharkhand
    {72031, 7400, 1157, 7858, 1846}, // India - Karnataka
    {72041, 7481, 825, 7740, 1280}, // India - Kerala
    {72060, 7403, 2107, 8281, 2688}, // India - Madhya Pradesh
    {72073, 7260, 1560, 8090, 2204}, // India - Maharashtra
    {72083, 9297, 2384, 9476, 2570}, // India - Manipur
    {72091, 8982, 2503, 9281, 2612}, // India - Meghalaya
    {72102, 9225, 2194, 9345, 2453}, // India - Mizoram
    {72110, 9333, 2520, 9525, 2705}, // India - Nagaland
    {72118, 8138, 1780, 8750, 2257}, // India - Odisha
    {72126, 7387, 2954, 7694, 3258}, // India - Punjab
    {72135, 6948, 2306, 7827, 3020}, // India - Rajasthan
    {72145, 8801, 2708, 8892, 2814}, // India - Sikkim
    {72154, 7622, 802, 8040, 1359}, // India - Tamil Nadu
    {72164, 9115, 2294, 9234, 2454}, // India - Tripura
    {72173, 7708, 2387, 8464, 3042}, // India - Uttar Pradesh
    {72186, 7756, 2871, 8102, 3148}, // India - Uttarakhand
    {72197, 8582, 2149, 8988, 2723}, // India - West Bengal
    {71965, 7683, 2840, 7734, 2889}, // India - Delhi
    {71886, 9215, 670, 9433, 1373}, // India - Andaman and Nicobar Islands
    {72048, 7204, 821, 7376, 1176}, // India - Lakshadweep
    {25781, 3000, 4256, 3135, 4367}, // Bulgaria - east of 30°E
    {25768, 2400, 4124, 3001, 4415}, // Bulgaria - 24°E to 30°E
    {25802, 2236, 4132, 2400, 4423}, // Bulgaria - west of 24°E
    {204470, 2500, 4772, 2801, 5196}, // Ukraine - 25°E to 28°E
    {204496, 2800, 4518, 3101, 5209}, // Ukraine - 28°E to 31°E onshore
    {204535, 3100, 4432, 3401, 5238}, // Ukraine - 31°E to 34°E onshore
    {204562, 3400, 4433, 3701, 5225}, // Ukraine - 34°E to 37°E onshore
    {204575, 3700, 4680, 4001, 5044}, // Ukraine - 37°E to 40°E onshore
    {205098, 4000, 4880, 4018, 4962}, // Ukraine - east of 40°E
    {205135, 2215, 4771, 2501, 5192}, // Ukraine - west of 25°E
    {16955, 12100, -3225, 12184, -2875}, // Australia - Western Australia - Kalgoorlie
    {16771, 11518, -3375, 11587, -3340}, // Australia - Western Australia - Busselton
    {16727, 11490, -2220, 11559, -2021}, // Australia - Western Australia - Barrow
    {16705, 11755, -3521, 11822, -3475}, // Australia - Western Australia - Albany
    {16907, 11483, -3074, 11534, -2908}, // Australia - Western Australia - Jurien Bay
    {16749, 12208, -1809, 12262, -1675}, // Australia - Western Australia - Broome
    {16794, 11333, -2550, 11400, -2300}, // Australia - Western Australia - Carnarvon
    {16817, 11573, -3467, 11640, -3325}, // Australia - Western Australia - Collie
    {16932, 11390, -2850, 11475, -2716}, // Australia - Western Australia - Kalbarri
    {16839, 12156, -3450, 12220, -3333}, // Australia - Western Australia - Esperance
    {6231, 1914, 4130, 2063, 4267}, // Albania - north of 41°18'N and east of 19°09'E
    {5103, 1179, -604, 1237, -579}, // DR Congo (Zaire) - offshore
    {16863, 11375, -2242, 11425, -2175}, // Australia - Western Australia - Exmouth
    {16884, 11451, -2910, 11500, -2848}, // Australia - Western Australia - Geraldton
    {198936, -11333, 3180, -11251, 3251}, // USA - Arizona - Pima county west
    {16980, 11658, -2092, 11725, -2025}, // Australia - Western Australia - Karratha
    {17002, 12850, -1675, 12900, -1475}, // Australia - Western Australia - Kununurra
    {17026, 11515, -3149, 11562, -3071}, // Australia - Western Australia - Lancelin
    {49282, 1207, 4693, 1683, 5106}, // Europe - Upper Austria, Salzburg and Bohemia
    {49205, 1441, 4742, 1886, 5045}, // Europe - Lower Austria and Moravia
    {17048, 11496, -3442, 11524, -3351}, // Australia - Western Australia - Margaret River
    {202570, -12097, 4188, -11915, 4345}, // USA - Oregon - Riley-Lakeview
    {202158, -11861, 4349, -11749, 4419}, // USA - Oregon - Burns-Harper
    {198904, -11252, 3150, -11156, 3251}, // USA - Arizona - Pima county central
    {17075, 11544, -3342, 11609, -3133}, // Australia - Western Australia - Perth
    {202612, -12271, 4195, -12196, 4246}, // USA - Oregon - Siskiyou Pass
    {202172, -11922, 4352, -11852, 4436}, // USA - Oregon - Canyon City-Burns
    {17095, 11825, -2079, 11897, -2010}, // Australia - Western Australia - Port Hedland
    {195530, -6209, 983, -5999, 1234}, // Trinidad and Tobago - offshore west of 60°W
    {195506, -6000, 995, -5728, 1219}, // Trinidad and Tobago - offshore east of 60°W
    {7598, 1167, -1802, 2409, -438}, // Angola - onshore
    {202644, -11935, 4452, -11864, 4521}, // USA - Oregon - Ukiah-Fox
    {202212, -12381, 4540, -12301, 4598}, // USA - Oregon - Coast Range North
    {198920, -11157, 3143, -11044, 3252}, // USA - Arizona - Pima county east
    {198883, -11087, 3233, -11061, 3249}, // USA - Arizona - Pima county Mt. Lemmon
    {202288, -11989, 4424, -11861, 4494}, // USA - Oregon - Dayville-Prairie City
    {202309, -11941, 4188, -11767, 4354}, // USA - Oregon - Denio-Burns
    {202384, -11761, 4461, -11663, 4528}, // USA - Oregon - Halfway
    {202406, -12273, 4253, -12171, 4334}, // USA - Oregon - Medford-Diamond Lake
    {202427, -12056, 4438, -11982, 4478}, // USA - Oregon - Mitchell
    {202438, -12179, 4489, -11903, 4595}, // USA - Oregon - North Central
    {202657, -11816, 4527, -11642, 4605}, // USA - Oregon - Wallowa
    {202447, -12101, 4421, -12031, 4461}, // USA - Oregon - Ochoco Summit
    {202484, -11814, 4188, -11685, 4354}, // USA - Oregon - Owyhee
    {202524, -11965, 4499, -11811, 4604}, // USA - Oregon - Pilot Rock-Ukiah
    {202551, -11877, 4416, -11748, 4502}, // USA - Oregon - Prairie City-Brogan
    {201752, -11550, 3588, -11471, 3643}, // USA - Nevada - Las Vegas
    {202668, -12042, 4195, -11930, 4243}, // USA - Oregon - Warner Highway
    {201765, -11550, 3588, -11471, 3643}, // USA - Nevada - Las Vegas high elevation
    {202685, -12226, 4299, -12148, 4418}, // USA - Oregon - Willamette Pass
    {10398, 13600, -6673, 13801, -6561}, // Antarctica - Adelie Land coastal area west of 138°E
    {64044, 833, 5336, 1041, 5399}, // Germany - Hamburg
    {16558, 14150, -1350, 14251, -1149}, // Australia - Queensland - Weipa
    {10370, 13800, -6713, 14200, -6610}, // Antarctica - Adelie Land coastal area east of 138°E
    {200982, -10019, 3869, -9903, 4001}, // USA - Kansas - Hays
    {200956, -10206, 3869, -10138, 4001}, // USA - Kansas - Goodland
    {200903, -10149, 3869, -10071, 4001}, // USA - Kansas - Colby
    {201031, -10082, 3869, -10014, 4001}, // USA - Kansas - Oberlin
    {200968, -9907, 3826, -9847, 4001}, // USA - Kansas - Great Bend
    {200876, -9851, 3815, -9792, 4001}, // USA - Kansas - Beloit
    {201088, -9794, 3808, -9680, 4001}, // USA - Kansas - Salina
    {201018, -9697, 3873, -9594, 3957}, // USA - Kansas - Manhattan
    {200929, -9694, 3808, -9594, 3888}, // USA - Kansas - Emporia
    {200863, -9681, 3921, -9485, 4001}, // USA - Kansas - Atchison
    {200993, -9604, 3873, -9458, 3943}, // USA - Kansas - Kansas City
    {201099, -10205, 3699, -10106, 3871}, // USA - Kansas - Ulysses
    {200942, -10113, 3699, -10008, 3871}, // USA - Kansas - Garden City
    {200914, -10025, 3699, -9954, 3870}, // USA - Kansas - Dodge City
    {201007, -9959, 3699, -9891, 3870}, // USA - Kansas - Larned
    {201057, -9903, 3699, -9834, 3827}, // USA - Kansas - Pratt
    {201112, -9848, 3738, -9652, 3818}, // USA - Kansas - Wichita
    {200848, -9835, 3699, -9652, 3748}, // USA - Kansas - Arkansas City
    {200887, -9653, 3699, -9550, 3888}, // USA - Kansas - Coffeyville
    {201043, -9553, 3699, -9460, 3874}, // USA - Kansas - Pittsburg
    {147749, 14119, 1095, 14401, 2390}, // Pacific - Guam and NMI west of 144°E
    {199353, 14458, -1459, -6451, 4938}, // USA - FBN
    {199034, -12479, 2382, -6691, 4938}, // USA - CONUS and GoM
    {30204, -14101, 4000, -4400, 8317}, // Canada - NAD27
    {147726, 14400, 1105, 14955, 2390}, // Pacific - Guam and NMI east of 144°E
    {6587, -295, 3199, 909, 3466}, // Algeria - 32°N to 34°39'N
    {227395, 9001, -9000, 8999, 9000}, // World centred on 90°W
    {227381, -2999, -9000, -3001, 9000}, // World centred on 150°E
    {184417, 3444, 2492, 3601, 2938}, // Saudi Arabia - west of 36°E
    {147709, 14458, 1318, 14612, 2061}, // Pacific - Guam and NMI - onshore
    {184277, 3600, 1629, 4200, 3216}, // Saudi Arabia - 36°E to 42°E
    {184294, 4199, 1635, 4800, 3115}, // Saudi Arabia - 42°E to 48°E
    {184311, 4799, 1794, 5401, 2894}, // Saudi Arabia - 48°E to 54°E
    {85236, -12219, -5987, -2528, 3272}, // Latin America - Central America and South America
    {36916, -8360, 960, -8143, 1177}, // Costa Rica - offshore Caribbean
    {36934, -9045, 215, -8292, 1111}, // Costa Rica - offshore Pacific
    {29991, -12452, 4825, -12300, 4906}, // Canada - British Columbia - CRD
    {30030, -12850, 4848, -12349, 5093}, // Canada - British Columbia - north Vancouver Is
    {30010, -13904, 4899, -11408, 6001}, // Canada - British Columbia - mainland
    {30579, -7964, 4358, -7911, 4386}, // Canada - Ontario - Toronto
    {30664, -9516, 4167, -7435, 5690}, // Canada - Ontario ex. Toronto
    {208903, 10321, 2057, 10503, 2204}, // Vietnam - Son La
    {7347, 1799, -1802, 2409, -691}, // Angola - east of 18°E
    {5580, 1333, -5032, 4285, -2213}, // Africa - South Africa, Lesotho and Eswatini.
    {208764, 10214, 2089, 10399, 2282}, // Vietnam - Dien Bien and Lai Chau
    {83276, 1997, 4185, 2180, 4325}, // Kosovo
    {185048, 1881, 4223, 2301, 4619}, // Serbia
    {138731, 16765, 1492, -4774, 8646}, // North America - Canada, US (Conus+AK), PRVI
    {208715, 10340, 833, 10554, 1055}, // Vietnam - Ca Mau and Kien Giang
    {208521, 10353, 1018, 10586, 2285}, // Vietnam - An Giang, Lao Cai, Nghe An, Phu Tho, Yen Bai
    {208439, 10433, 919, 10669, 2340}, // Vietnam - 104°20'E to 106°40'E by province
    {208469, 10526, 975, 10780, 2312}, // Vietnam - 105°15'E to 107°50'E by province - HCMC
    {208786, 10483, 1692, 10703, 2270}, // Vietnam - Hoa Binh, Quang Binh and Tuyen Quang
    {7605, 820, -1728, 1201, -503}, // Angola - west of 12°E
    {208646, 10641, 1130, 10743, 1722}, // Vietnam - Binh Phuoc and Quang Tri
    {208590, 10543, 2132, 10625, 2275}, // Vietnam - Bac Kan and Thai Nguyen
    {208563, 10588, 1599, 10824, 2163}, // Vietnam - Bac Giang and Thua Thien-Hue
    {7222, 1200, -1744, 1800, -438}, // Angola - 12°E to 18°E
    {208830, 10609, 2132, 10737, 2247}, // Vietnam - Lang Son
    {208818, 10733, 1392, 10855, 1542}, // Vietnam - Kon Tum
    {208614, 10855, 1125, 10953, 1471}, // Vietnam - Binh Dinh, Khanh Hoa, Ninh Thuan
    {208671, 10720, 1043, 10952, 1461}, // Vietnam - Binh Thuan, Dak Lak, Dak Nong, Gia Lai, Phu Yen
    {13706, -6940, -3637, -6642, -3196}, // Argentina - Mendoza - Cuyo basin
    {13726, -7214, -4341, -6586, -3191}, // Argentina - Mendoza and Neuquen
    {13413, -7359, -5034, -6547, -4249}, // Argentina - 42.5°S to 50.3°S
    {13481, -7359, -5034, -7050, -4494}, // Argentina - 42.5°S to 50.3°S and west of 70.5°W
    {13456, -6750, -4905, -6547, -4358}, // Argentina - 42.5°S to 50.3°S and east of 67.5°W
    {49462, 334, 5349, 888, 5592}, // Europe - offshore North Sea - Germany and Netherlands east of 5°E
    {186726, 1333, -3817, 3654, -2213}, // South Africa - mainland - onshore and offshore
    {186686, 3271, -5032, 4285, -4326}, // South Africa - Prince Edward islands - onshore and offshore
    {13984, -7328, -5243, -6830, -5033}, // Argentina - south Santa Cruz
    {14026, -7328, -5200, -7050, -5033}, // Argentina - south Santa Cruz west of 70.5°W
    {14001, -7050, -5243, -6830, -5033}, // Argentina - south Santa Cruz east of 70.5°W
    {13506, -7236, -4750, -6324, -4399}, // Argentina - 44°S to 47.5°S
    {25012, -5816, -2750, -5400, -1799}, // Brazil - west of 54°W and between 18°S and 27°30'S
    {24439, -5400, -2750, -4799, -1499}, // Brazil - 54°W to 48°W and 15°S to 27°30'S
    {13627, -7050, -5243, -6749, -2408}, // Argentina - 70.5°W to 67.5°W mainland onshore
    {13590, -6750, -4905, -6449, -2178}, // Argentina - 67.5°W to 64.5°W mainland onshore
    {13553, -6450, -4314, -6149, -2199}, // Argentina - 64.5°W to 61.5°W mainland onshore
    {63952, 751, 4754, 1050, 4980}, // Germany - Baden-Wurttemberg
    {5558, -1716, 2071, -101, 3597}, // Africa - Morocco and Western Sahara - onshore
    {197612, -275, 5145, 0, 5330}, // UK - London to Birmingham and Crewe
    {197596, -314, 5332, -134, 5390}, // UK - Liverpool to Leeds
    {64067, 635, 4911, 741, 4964}, // Germany - Saarland
    {227115, -18000, -9000, 18000, -5000}, // World - south of 50°S
    {35669, 2150, -731, 2301, -531}, // Congo DR (Zaire) - 6th parallel south 21.5°E to 23°E
    {197633, -189, 5146, 16, 5342}, // UK - London to Sheffield
    {197405, -431, 5710, -210, 5771}, // UK - Aberdeen to Inverness
    {189187, -1822, 2758, -1608, 2890}, // Spain - Canary Islands western
    {189088, -1822, 2759, -1800, 2788}, // Spain - Canary Islands - El Hierro west of 18°W
    {189166, -1806, 2758, -1337, 2947}, // Spain - Canary Islands onshore east of 18°W
    {189205, -1806, 2758, -1608, 2890}, // Spain - Canary Islands western east of 18°W
    {189314, -937, 3582, 339, 4382}, // Spain - mainland onshore and Ceuta
    {197496, -465, 5555, -405, 5595}, // UK - Glasgow to Kilmarnock
    {13664, -5854, -3471, -5829, -3450}, // Argentina - Buenos Aires city
    {91610, 10954, 85, 11569, 503}, // Malaysia - East Malaysia - Sarawak onshore
    {30262, -5948, 4656, -5254, 5168}, // Canada - Newfoundland
    {49227, 465, 4487, 788, 4589}, // Europe - Lyon-Turin
    {197545, -869, 4981, 191, 6093}, // UK - Great Britain onshore; Isle of Man
    {31144, -4200, 4553, -4073, 4953}, // Canada - east of 42°W
    {75615, 636, 3526, 1867, 4710}, // Italy - 6°22'E to 18°40'E and north of 35°16'N; San Marino, Vatican City State
    {197776, -356, 5555, -194, 5721}, // UK - Tweedmouth to Aberdeen
    {197705, -190, 5485, -130, 5530}, // UK - Newcastle to Ashington
    {197753, -143, 5170, -36, 5224}, // UK - Oxford to Bedford
    {204801, 3023, 5021, 3083, 5059}, // Ukraine - Kyiv city
    {204588, 2960, 4845, 3289, 5023}, // Ukraine - Cherkasy oblast
    {204605, 3048, 5034, 3351, 5238}, // Ukraine - Chernihiv oblast
    {204625, 2490, 4772, 2754, 4868}, // Ukraine - Chernivtsi oblast
    {204658, 3295, 4745, 3694, 4919}, // Ukraine - Dnipropetrovsk oblast
    {204683, 3654, 4686, 3910, 4924}, // Ukraine - Donetsk oblast
    {204700, 2353, 4772, 2566, 4956}, // Ukraine - Ivano-Frankivsk oblast
    {204725, 3484, 4852, 3810, 5046}, // Ukraine - Kharkiv oblast
    {204743, 3151, 4575, 3511, 4760}, // Ukraine - Kherson oblast
    {204758, 2613, 4845, 2790, 5059}, // Ukraine - Khmelnytskyi oblast
    {204815, 2926, 4917, 3216, 5155}, // Ukraine - Kyiv oblast
    {204781, 2974, 4774, 3390, 4925}, // Ukraine - Kirovohrad oblast
    {204831, 3783, 4782, 4023, 5009}, // Ukraine - Luhansk oblast
    {204849, 2264, 4871, 2543, 5065}, // Ukraine - Lviv oblast
    {204865, 3020, 4636, 3319, 4823}, // Ukraine - Mykolaiv oblast
    {204884, 2821, 4520, 3130, 4824}, // Ukraine - Odessa oblast
    {204900, 3208, 4874, 3549, 5055}, // Ukraine - Poltava oblast
    {204917, 2508, 5000, 2774, 5195}, // Ukraine - Rivne oblast
    {204947, 3293, 5010, 3567, 5237}, // Ukraine - Sumy oblast
    {204962, 2471, 4850, 2645, 5027}, // Ukraine - Ternopil oblast
    {204980, 2737, 4806, 3002, 4989}, // Ukraine - Vinnytsia oblast
    {204998, 2360, 5028, 2611, 5197}, // Ukraine - Volyn oblast
    {205014, 2213, 4789, 2463, 4910}, // Ukraine - Zakarpattia oblast
    {205033, 3417, 4607, 3725, 4815}, // Ukraine - Zaporizhzhia oblast
    {205054, 2719, 4958, 2974, 5168}, // Ukraine - Zhytomyr oblast
    {204646, 3247, 4438, 3665, 4624}, // Ukraine - Crimea
    {204933, 3337, 4438, 3393, 4485}, // Ukraine - Sevastopol
    {197453, -327, 5135, -36, 5326}, // UK - Cardiff to Lincoln
    {148630, 15600, -1426, 16201, -111}, // Papua New Guinea - 156°E to 162°E
    {148684, 16200, -436, 16281, -234}, // Papua New Guinea - east of 162°E
    {197650, -240, 5325, -139, 5355}, // UK - Manchester to Dore
    {64056, 777, 4939, 1024, 5166}, // Germany - Hessen
    {197723, -330, 5150, -289, 5185}, // UK - Newport to Ebbw Vale
    {197583, -170, 5360, -27, 5390}, // UK - Leeds to Hull
    {197567, -460, 5740, -300, 5864}, // UK - Inverness to Thurso
    {197687, -440, 5570, -330, 5755}, // UK - Motherwell to Inverness
    {197665, -315, 5309, -210, 5365}, // UK - Manchester, Wigan and Chester
    {32633, -11321, -3054, -10800, -2372}, // Chile - west of 108°W
    {198861, -7851, 3864, -7048, 4274}, // USA - Amtrak NE corridor
};
// clang-format on

} // namespace ZrProj::systems::rows
