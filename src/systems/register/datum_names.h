// The rows of datums by name.
//
// Made by src/systems/make_register.py from the EPSG Geodetic Parameter Dataset v10.076 of 2022-08-31, which
// is IOGP's, as proj-data carries it, under the terms of use at https://epsg.org/terms-of-use.html. Other makers' names
// are of ArcGIS Pro 3.0 of 2022-07-09 and of PROJ 9.1.1.
#pragma once

#include "systems/register/rows.h"

namespace ZrProj::systems::rows {

// clang-format off
inline constexpr std::uint16_t datumNames[] = {
    246, // Abidjan 1987
    157, // AbInvA96_2020 Intermediate Reference Frame
    271, // Accra
    60, // Aden 1925
    301, // Adindan
    305, // Afgooye
    306, // Agadez
    304, // Ain el Abd 1970
    291, // Albanian 1987
    272, // American Samoa 1962
    388, // Amersfoort
    296, // Ammassalik 1958
    604, // Ancienne Triangulation Francaise (Paris)
    420, // Anguilla 1957
    421, // Antigua 1943
    308, // Aratu
    309, // Arc 1950
    310, // Arc 1960
    529, // Ascension Island 1958
    527, // Astro DOS 71
    279, // Australian Antarctic Datum 1998
    302, // Australian Geodetic Datum 1966
    303, // Australian Geodetic Datum 1984
    160, // Australian Terrestrial Reference Frame 2014
    12, // Autonomous Regions of Portugal 2008
    225, // Average Terrestrial System 1977
    530, // Ayabelle Lighthouse
    285, // Azores Central Islands 1948
    483, // Azores Central Islands 1995
    284, // Azores Occidental Islands 1939
    286, // Azores Oriental Islands 1940
    482, // Azores Oriental Islands 1995
    312, // Barbados 1938
    311, // Batavia
    594, // Batavia (Jakarta)
    313, // Beduaram
    314, // Beijing 1954
    62, // Bekaa Valley 1920
    531, // Bellevue
    316, // Bermuda 1957
    579, // Bermuda 2000
    403, // Bern 1938
    25, // Bhutan National Geodetic Datum
    61, // Bioko
    268, // Bissau
    317, // Bogota 1975
    584, // Bogota 1975 (Bogota)
    318, // Bukit Rimpah
    82, // Bulgaria Geodetic System 2005
    10, // Cadastre 1997
    319, // Camacupa 1948
    115, // Camacupa 2015
    532, // Camp Area Astro
    320, // Campo Inchauspe
    321, // Cape
    534, // Cape Canaveral
    322, // Carthage
    597, // Carthage (Paris)
    47, // Cayman Islands Geodetic Datum 2011
    442, // Centre Spatial Guyanais 1967
    252, // CH1903
    253, // CH1903+
    583, // CH1903 (Bern)
    489, // Chatham Islands Datum 1971
    490, // Chatham Islands Datum 1979
    14, // China 2000
    263, // Chos Malal 1914
    323, // Chua
    525, // Cocos Islands 1965
    451, // Combani 1950
    412, // Conakry 1905
    381, // Congo 1960 Pointe Noire
    40, // Corrego Alegre 1961
    324, // Corrego Alegre 1970-72
    31, // Costa Rica 2005
    325, // Cote d'Ivoire
    578, // Croatian Terrestrial Reference System
    120, // CR-SIRGAS
    49, // Cyprus Geodetic Reference System 1993
    258, // Dabola 1981
    373, // Datum 73
    572, // Datum Geodesi Nasional 1995
    413, // Dealul Piscului 1930
    414, // Dealul Piscului 1970
    553, // Deception Island
    326, // Deir ez Zor
    45, // Deutsche Bahn Reference System
    411, // Deutsches Hauptdreiecksnetz
    541, // Diego Garcia 1969
    422, // Dominica 1945
    327, // Douala
    292, // Douala 1948
    536, // Easter Island 1967
    174, // EBBWV14 Intermediate Reference Frame
    167, // ECML14_NB Intermediate Reference Frame
    328, // Egypt 1907
    299, // Egypt 1930
    523, // Egypt Gulf of Suez S-650 TL
    165, // EOS21 Intermediate Reference Frame
    236, // Estonia 1992
    282, // Estonia 1997
    164, // ETRF2000 Poland
    329, // European Datum 1950
    257, // European Datum 1950(1977)
    486, // European Datum 1979
    330, // European Datum 1987
    262, // European Libyan Datum 1979
    86, // European Terrestrial Reference Frame 1989
    87, // European Terrestrial Reference Frame 1990
    88, // European Terrestrial Reference Frame 1991
    89, // European Terrestrial Reference Frame 1992
    90, // European Terrestrial Reference Frame 1993
    91, // European Terrestrial Reference Frame 1994
    92, // European Terrestrial Reference Frame 1996
    93, // European Terrestrial Reference Frame 1997
    94, // European Terrestrial Reference Frame 2000
    107, // European Terrestrial Reference Frame 2005
    108, // European Terrestrial Reference Frame 2014
    357, // European Terrestrial Reference System 1989 ensemble
    168, // EWR2 Intermediate Reference Frame
    331, // Fahud
    558, // Faroe Datum 1954
    505, // Fatu Iva 72
    44, // Fehmarnbelt Datum 2010
    538, // Fiji 1956
    537, // Fiji Geodetic Datum 1986
    235, // Final Datum 1958
    570, // fk89
    176, // FNL22 Intermediate Reference Frame
    440, // Fort Marigot
    64, // Gambia
    501, // Gan 1970
    502, // Gandajika
    332, // Gandajika 1970
    297, // Garoua
    333, // Garoua
    159, // GBK19 Intermediate Reference Frame
    23, // Geocentric Datum Brunei Darussalam 2009
    382, // Geocentric Datum of Australia 1994
    83, // Geocentric Datum of Australia 2020
    554, // Geocentric datum of Korea
    398, // Geodetic Datum of 1965
    559, // Geodetic Datum of Malaysia 2000
    78, // Geodezicheskaya Sistema Koordinat 2011
    540, // Grand Cayman Geodetic Datum 1959
    465, // Grand Comoros
    223, // Greek
    596, // Greek (Athens)
    224, // Greek Geodetic Reference System 1987
    564, // Greenland 1996
    423, // Grenada 1953
    441, // Guadeloupe 1948
    492, // Guam 1963
    499, // Gulshan 303
    433, // Gunung Segara
    601, // Gunung Segara (Jakarta)
    96, // Gusterberg (Ferro)
    334, // Guyane Francaise
    250, // Hanoi 1972
    251, // Hartebeesthoek94
    479, // Helle 1954
    354, // Herat North
    353, // Hito XVIII 1963
    477, // Hjorsey 1955
    555, // Hong Kong 1963
    556, // Hong Kong 1963(67)
    431, // Hong Kong 1980
    111, // Hong Kong Geodetic
    152, // HS2 Intermediate Reference Frame
    173, // HULLEE13 Intermediate Reference Frame
    0, // Hungarian Datum 1909
    336, // Hungarian Datum 1972
    335, // Hu Tzu Shan 1950
    68, // IG05/12 Intermediate Datum
    66, // IG05 Intermediate Datum
    140, // IGb00
    142, // IGb08
    156, // IGb14
    514, // IGC 1962 Arc of the 6th Parallel South
    515, // IGN 1962 Kerguelen
    460, // IGN53 Mare
    452, // IGN56 Lifou
    506, // IGN63 Hiva Oa
    453, // IGN72 Grande Terre
    449, // IGN72 Nuku Hiva
    517, // IGN Astro 1960
    139, // IGS00
    141, // IGS05
    65, // IGS08
    98, // IGS14
    138, // IGS97
    338, // Indian 1954
    234, // Indian 1960
    339, // Indian 1975
    337, // Indonesian Datum 1974
    518, // Institut Geographique du Congo Belge 1955
    466, // International Terrestrial Reference Frame 1988
    467, // International Terrestrial Reference Frame 1989
    468, // International Terrestrial Reference Frame 1990
    469, // International Terrestrial Reference Frame 1991
    470, // International Terrestrial Reference Frame 1992
    471, // International Terrestrial Reference Frame 1993
    472, // International Terrestrial Reference Frame 1994
    473, // International Terrestrial Reference Frame 1996
    474, // International Terrestrial Reference Frame 1997
    475, // International Terrestrial Reference Frame 2000
    603, // International Terrestrial Reference Frame 2005
    27, // International Terrestrial Reference Frame 2008
    80, // International Terrestrial Reference Frame 2014
    177, // International Terrestrial Reference Frame 2020
    3, // Iraqi Geospatial Reference System
    485, // Iraq-Kuwait Boundary Datum 1992
    276, // IRENET95
    478, // Islands Net 1993
    26, // Islands Net 2004
    95, // Islands Net 2016
    244, // Israel 1993
    51, // Israeli Geodetic Datum 2005
    67, // Israeli Geodetic Datum 2005
    52, // Israeli Geodetic Datum 2005(2012)
    69, // Israeli Geodetic Datum 2005(2012)
    487, // Istituto Geografico Militaire 1995
    526, // Iwo Jima 1945
    340, // Jamaica 1875
    341, // Jamaica 1969
    575, // Jamaica 2001
    432, // Japanese Geodetic Datum 2000
    57, // Japanese Geodetic Datum 2011
    542, // Johnston Island 1961
    496, // Jouik 1961
    450, // K0 1949
    342, // Kalianpur 1880
    247, // Kalianpur 1937
    248, // Kalianpur 1962
    249, // Kalianpur 1975
    343, // Kandawala
    560, // Karbala 1979
    226, // Kartastokoordinaattijarjestelma (1966)
    513, // Kasai 1953
    512, // Katanga 1955
    344, // Kertau 1968
    568, // Kertau (RSO)
    154, // Kingdom of Saudi Arabia Geodetic Reference Frame 2017
    265, // Korean Datum 1985
    269, // Korean Datum 1995
    144, // Kosovo Reference System 2001
    298, // Kousseri
    552, // Kusaie 1951
    345, // Kuwait Oil Company
    416, // Kuwait Utility
    79, // Kyrgyzstan Geodetic Datum 2006
    346, // La Canoa
    348, // Lake
    494, // Lao 1993
    495, // Lao National Datum 1997
    480, // Latvia 1992
    349, // Leigon
    516, // Le Pouce 1934
    350, // Liberia 1964
    571, // Libyan Geodetic Datum 2006
    484, // Lisbon 1890
    607, // Lisbon 1890 (Lisbon)
    307, // Lisbon 1937
    585, // Lisbon 1937 (Lisbon)
    229, // Lithuania 1994 (ETRS89)
    245, // Locodjo 1965
    387, // Loma Quintana
    351, // Lome
    283, // Luxembourg Reference Frame
    352, // Luzon 1911
    162, // Lyon Turin Ferroviaire 2004
    109, // Macao 1920
    110, // Macao Geodetic Datum 2008
    287, // Madeira 1936
    606, // Madrid 1870 (Madrid)
    231, // Madzansua
    355, // Mahe 1971
    356, // Makassar
    586, // Makassar (Jakarta)
    358, // Malongo 1987
    359, // Manoca
    293, // Manoca 1962
    503, // Marco Geocentrico Nacional de Referencia
    29, // Marco Geodesico Nacional de Bolivia
    528, // Marcus Island 1952
    549, // Marshall Islands 1960
    444, // Martinique 1938
    361, // Massawa
    509, // Maupiti 83
    498, // Mauritania 1999
    519, // Mauritania 1999
    360, // Merchich
    56, // Mexico ITRF2008
    13, // Mexico ITRF92
    4, // MGI 1901
    363, // Mhast
    522, // Mhast (offshore)
    521, // Mhast (onshore)
    544, // Midway 1961
    409, // Militar-Geographische Institut
    587, // Militar-Geographische Institut (Ferro)
    149, // Ministerio de Marina Norte
    150, // Ministerio de Marina Sur
    362, // Minna
    520, // Missao Hidrografico Angola y Sao Tome 1951
    155, // MML07 Intermediate Reference Frame
    172, // MOLDOR11 Intermediate Reference Frame
    5, // MOLDREF99
    116, // MOMRA Terrestrial Reference Frame 2000
    364, // Monte Mario
    588, // Monte Mario (Rome)
    424, // Montserrat 1958
    508, // Moorea 87
    458, // MOP78
    260, // Mount Dillon
    233, // Moznet (ITRF94)
    365, // M'poraloko
    171, // MRH21 Intermediate Reference Frame
    178, // MWC18 Intermediate Reference Frame
    367, // NAD27 Michigan
    243, // NAD83 Canadian Spatial Reference System
    59, // NAD83 (Continuously Operating Reference Station 1996)
    112, // NAD83 (Federal Base Network)
    255, // NAD83 (High Accuracy Reference Network)
    113, // NAD83 (High Accuracy Reference Network - Corrected)
    576, // NAD83 (National Spatial Reference System 2007)
    53, // NAD83 (National Spatial Reference System 2011)
    55, // NAD83 (National Spatial Reference System MA11)
    54, // NAD83 (National Spatial Reference System PA11)
    561, // Nahrwan 1934
    369, // Nahrwan 1967
    510, // Nakhl-e Ghanem
    261, // Naparima 1955
    370, // Naparima 1972
    415, // National Geodetic Network
    463, // NEA74 Noumea
    48, // Nepal 1981
    16, // New Beijing
    371, // New Zealand Geodetic Datum 1949
    270, // New Zealand Geodetic Datum 2000
    372, // NGO 1948
    598, // NGO 1948 (Oslo)
    605, // Nord de Guerre (Paris)
    404, // Nord Sahara 1959
    600, // Nord Sahara 1959 (Paris)
    366, // North American Datum 1927
    428, // North American Datum 1927 (1976)
    429, // North American Datum 1927 (CGQ77)
    368, // North American Datum 1983
    99, // North American Datum of 1983 (CSRS96)
    100, // North American Datum of 1983 (CSRS) version 2
    101, // North American Datum of 1983 (CSRS) version 3
    102, // North American Datum of 1983 (CSRS) version 4
    103, // North American Datum of 1983 (CSRS) version 5
    104, // North American Datum of 1983 (CSRS) version 6
    105, // North American Datum of 1983 (CSRS) version 7
    118, // North American Datum of 1983 (MARP00)
    143, // North American Datum of 1983 (PACP00)
    180, // Not specified (based on Airy 1830 ellipsoid)
    181, // Not specified (based on Airy Modified 1849 ellipsoid)
    182, // Not specified (based on Australian National Spheroid)
    211, // Not specified (based on Authalic Sphere)
    213, // Not specified (based on Average Terrestrial System 1977 ellipsoid)
    183, // Not specified (based on Bessel 1841 ellipsoid)
    184, // Not specified (based on Bessel Modified ellipsoid)
    185, // Not specified (based on Bessel Namibia ellipsoid)
    186, // Not specified (based on Clarke 1858 ellipsoid)
    219, // Not specified (based on Clarke 1866 Authalic Sphere)
    187, // Not specified (based on Clarke 1866 ellipsoid)
    188, // Not specified (based on Clarke 1866 Michigan ellipsoid)
    192, // Not specified (based on Clarke 1880 (Arc) ellipsoid)
    189, // Not specified (based on Clarke 1880 (Benoit) ellipsoid)
    210, // Not specified (based on Clarke 1880 ellipsoid)
    190, // Not specified (based on Clarke 1880 (IGN) ellipsoid)
    191, // Not specified (based on Clarke 1880 (RGS) ellipsoid)
    193, // Not specified (based on Clarke 1880 (SGA 1922) ellipsoid)
    194, // Not specified (based on Everest 1830 (1937 Adjustment) ellipsoid)
    216, // Not specified (based on Everest 1830 (1962 Definition) ellipsoid)
    195, // Not specified (based on Everest 1830 (1967 Definition) ellipsoid)
    217, // Not specified (based on Everest 1830 (1975 Definition) ellipsoid)
    214, // Not specified (based on Everest (1830 Definition) ellipsoid)
    196, // Not specified (based on Everest 1830 Modified ellipsoid)
    207, // Not specified (based on GEM 10C ellipsoid)
    212, // Not specified (based on GRS 1967 ellipsoid)
    218, // Not specified (based on GRS 1980 Authalic Sphere)
    197, // Not specified (based on GRS 1980 ellipsoid)
    198, // Not specified (based on Helmert 1906 ellipsoid)
    221, // Not specified (based on Hughes 1980 ellipsoid)
    199, // Not specified (based on Indonesian National Spheroid)
    220, // Not specified (based on International 1924 Authalic Sphere)
    200, // Not specified (based on International 1924 ellipsoid)
    201, // Not specified (based on Krassowsky 1940 ellipsoid)
    202, // Not specified (based on NWL 9D ellipsoid)
    208, // Not specified (based on OSU86F ellipsoid)
    209, // Not specified (based on OSU91A ellipsoid)
    203, // Not specified (based on Plessis 1817 ellipsoid)
    204, // Not specified (based on Struve 1860 ellipsoid)
    205, // Not specified (based on War Office ellipsoid)
    215, // Not specified (based on WGS 72 ellipsoid)
    206, // Not specified (based on WGS 84 ellipsoid)
    497, // Nouakchott 1965
    374, // Nouvelle Triangulation Francaise
    589, // Nouvelle Triangulation Francaise (Paris)
    375, // NSWC 9Z-2
    232, // Observatario
    36, // Ocotepeque 1935
    238, // Old Hawaiian
    70, // Oman National Geodetic Datum 2014
    151, // Oman National Geodetic Datum 2017
    376, // Ordnance Survey of Great Britain 1936
    377, // OSGB 1970 (SN)
    288, // OSNI 1952
    378, // OS (SN) 1980
    379, // Padang 1884
    590, // Padang 1884 (Jakarta)
    380, // Palestine 1923
    264, // Pampa del Castillo
    38, // Panama-Colon 1911
    42, // Papua New Guinea Geodetic Datum 1994
    557, // Parametry Zemli 1990
    76, // Parametry Zemli 1990.02
    77, // Parametry Zemli 1990.11
    237, // PDO Survey Datum 1993
    33, // Peru96
    455, // Petrels 1972
    500, // Philippine Reference System 1992
    533, // Phoenix Islands 1966
    158, // Pico de las Nieves 1968
    545, // Pico de las Nieves 1984
    546, // Pitcairn 1967
    580, // Pitcairn 2006
    439, // Point 58
    456, // Pointe Geologie Perroud 1950
    222, // Popular Visualisation Datum
    435, // Porto Santo 1936
    481, // Porto Santo 1995
    275, // Posiciones Geodesicas Argentinas
    511, // Posiciones Geodesicas Argentinas 1994
    290, // Posiciones Geodesicas Argentinas 1998
    28, // Posiciones Geodesicas Argentinas 2007
    563, // Potsdam Datum/83
    17, // Principe
    347, // Provisional South American Datum 1956
    242, // Puerto Rico
    383, // Pulkovo 1942
    281, // Pulkovo 1942(58)
    280, // Pulkovo 1942(83)
    300, // Pulkovo 1995
    385, // Qatar 1948
    384, // Qatar 1974
    434, // Qatar National Datum 1995
    386, // Qornoq
    294, // Qornoq 1927
    256, // Rassadiran
    562, // Rauenberg Datum/83
    8, // Red Geodesica de Canarias 1995
    163, // Red Geodesica Para Mineria en Chile
    289, // Red Geodesica Venezolana
    117, // Reference System de Angola 2013
    18, // Reseau de Reference des Antilles Francaises 1991
    459, // Reseau de Reference des Antilles Francaises 1991
    504, // Reseau Geodesique de la Polynesie Francaise
    6, // Reseau Geodesique de la RDC 2005
    446, // Reseau Geodesique de la Reunion 1992
    9, // Reseau Geodesique de Mayotte 2004
    566, // Reseau Geodesique de Nouvelle Caledonie 91-93
    11, // Reseau Geodesique de Saint Pierre et Miquelon 2006
    39, // Reseau Geodesique des Antilles Francaises 2009
    50, // Reseau Geodesique des Terres Australes et Antarctiques Francaises 2007
    119, // Reseau Geodesique de Wallis et Futuna 1996
    274, // Reseau Geodesique Francais 1993 v1
    169, // Reseau Geodesique Francais 1993 v2
    170, // Reseau Geodesique Francais 1993 v2b
    443, // Reseau Geodesique Francais Guyane 1995
    464, // Reseau Geodesique Nouvelle Caledonie 1991
    315, // Reseau National Belge 1950
    591, // Reseau National Belge 1950 (Brussels)
    410, // Reseau National Belge 1972
    58, // Rete Dinamica Nazionale 2008
    445, // Reunion 1947
    476, // Reykjavik 1900
    227, // Rikets koordinatsystem 1990
    581, // Ross Sea Region Geodetic Datum 2000
    457, // Saint Pierre et Miquelon 1950
    228, // Samboja
    547, // Santo 1965
    15, // Sao Tome
    390, // Sapper Hill 1943
    391, // Schwarzeck
    175, // SCM22 Intermediate Reference Frame
    295, // Scoresbysund 1952
    392, // Segora
    436, // Selvagem Grande
    7, // Serbian Reference Network 1998
    114, // Serbian Spatial Reference System 2000
    393, // Serindung
    37, // Sibun Gorge 1922
    278, // Sierra Leone 1968
    277, // Sierra Leone Colony 1924
    147, // SIRGAS-Chile
    30, // SIRGAS-Chile realization 1 epoch 2002
    137, // SIRGAS-Chile realization 2 epoch 2010
    145, // SIRGAS-Chile realization 3 epoch 2013
    146, // SIRGAS-Chile realization 4 epoch 2016
    179, // SIRGAS-Chile realization 5 epoch 2021
    121, // SIRGAS Continuously Operating Network DGF00P01
    122, // SIRGAS Continuously Operating Network DGF01P01
    123, // SIRGAS Continuously Operating Network DGF01P02
    124, // SIRGAS Continuously Operating Network DGF02P01
    125, // SIRGAS Continuously Operating Network DGF04P01
    126, // SIRGAS Continuously Operating Network DGF05P01
    127, // SIRGAS Continuously Operating Network DGF06P01
    128, // SIRGAS Continuously Operating Network DGF07P01
    129, // SIRGAS Continuously Operating Network DGF08P01
    130, // SIRGAS Continuously Operating Network SIR09P01
    131, // SIRGAS Continuously Operating Network SIR10P01
    132, // SIRGAS Continuously Operating Network SIR11P01
    133, // SIRGAS Continuously Operating Network SIR13P01
    134, // SIRGAS Continuously Operating Network SIR14P01
    135, // SIRGAS Continuously Operating Network SIR15P01
    136, // SIRGAS Continuously Operating Network SIR17P01
    35, // SIRGAS_ES2007.8
    34, // SIRGAS-ROU98
    273, // Sistema de Referencia Geocentrico para America del Sur 1995
    491, // Sistema de Referencia Geocentrico para las AmericaS 2000
    32, // Sistema Geodesico Nacional de Panama MACARIO SOLIS
    161, // Sistem Referensi Geospasial Indonesia 2013
    543, // Sister Islands Geodetic Datum 1961
    582, // Slovenia Geodetic Datum 1996
    535, // Solomon 1968
    389, // South American Datum 1969
    437, // South American Datum 1969
    41, // South American Datum 1969(96)
    63, // South East Island 1943
    539, // South Georgia 1968
    267, // South Yemen
    21, // Sri Lanka Datum 1999
    462, // ST71 Belep
    461, // ST84 Ile des Pins
    454, // ST87 Ouvea
    567, // ST87 Ouvea
    241, // St. George Island
    85, // St. Helena Geodetic Datum 2015
    84, // St. Helena Tritan
    425, // St. Kitts 1955
    239, // St. Lawrence Island
    426, // St. Lucia 1955
    405, // Stockholm 1938
    595, // Stockholm 1938 (Stockholm)
    240, // St. Paul Island
    97, // St. Stephen (Ferro)
    427, // St. Vincent 1945
    394, // Sudan
    574, // SVY21
    438, // SWEREF99
    254, // Swiss Terrestrial Reference System 1995
    259, // System of the Unified Trigonometrical Cadastral Network
    20, // System of the Unified Trigonometrical Cadastral Network/05
    22, // System of the Unified Trigonometrical Cadastral Network/05 (Ferro)
    599, // System of the Unified Trigonometrical Cadastral Network (Ferro)
    106, // System of the Unified Trigonometrical Cadastral Network [JTSK03]
    448, // Tahaa 54
    447, // Tahiti 52
    507, // Tahiti 79
    1, // Taiwan Datum 1967
    2, // Taiwan Datum 1997
    395, // Tananarive 1925
    592, // Tananarive 1925 (Paris)
    148, // Tapi Aike
    524, // Tern Island 1961
    230, // Tete
    396, // Timbalai 1948
    397, // TM65
    399, // Tokyo
    19, // Tokyo 1892
    46, // Tonga Geodetic Datum 2005
    153, // TPEN11 Intermediate Reference Frame
    400, // Trinidad 1903
    551, // Tristan 1968
    401, // Trucial Coast 1948
    24, // Turkish National Reference Frame
    43, // Ukraine 2000
    565, // Vanua Levu 1915
    493, // Vientiane 1982
    573, // Vietnam 2000
    569, // Viti Levu 1912
    548, // Viti Levu 1916
    402, // Voirol 1875
    593, // Voirol 1875 (Paris)
    488, // Voirol 1879
    602, // Voirol 1879 (Paris)
    550, // Wake Island 1952
    418, // WGS 72 Transit Broadcast Ephemeris
    577, // World Geodetic System 1966
    417, // World Geodetic System 1972
    419, // World Geodetic System 1984 ensemble
    73, // World Geodetic System 1984 (G1150)
    74, // World Geodetic System 1984 (G1674)
    75, // World Geodetic System 1984 (G1762)
    166, // World Geodetic System 1984 (G2139)
    71, // World Geodetic System 1984 (G730)
    72, // World Geodetic System 1984 (G873)
    81, // World Geodetic System 1984 (Transit)
    430, // Xian 1980
    406, // Yacare
    266, // Yemen National Geodetic Network 1996
    407, // Yoff
    408, // Zanderij
};
// clang-format on

} // namespace ZrProj::systems::rows
