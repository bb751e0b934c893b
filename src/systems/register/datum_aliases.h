// Other names of datums, by name.
//
// Made by src/systems/make_register.py from the EPSG Geodetic Parameter Dataset v10.076 of 2022-08-31, which
// is IOGP's, as proj-data carries it, under the terms of use at https://epsg.org/terms-of-use.html. Other makers' names
// are of ArcGIS Pro 3.0 of 2022-07-09 and of PROJ 9.1.1.
#pragma once

#include "systems/register/rows.h"

namespace ZrProj::systems::rows {

// clang-format off
inline constexpr AliasRow datumAliases[] = {
    {0, 685, 6620, Maker::epsg}, // 12th Parallel traverse
    {0, 1504, 6300, Maker::epsg}, // 1975 Mapping Adjustment
    {0, 2435, 6179, Maker::epsg}, // 42/58
    {0, 2441, 6178, Maker::epsg}, // 42/83
    {0, 3616, 6176, Maker::epsg}, // AAD98
    {0, 4568, 1273, Maker::esri}, // AbInvA96_2020_Intermediate_Reference_Frame
    {0, 4525, 1273, Maker::epsg}, // AbInvA96_2020-IRF
    {0, 16226, 6202, Maker::epsg}, // AGD66
    {0, 16413, 6203, Maker::epsg}, // AGD84
    {0, 5681, 6204, Maker::epsg}, // Ain el Abd
    {0, 4069, 6191, Maker::epsg}, // ALB86
    {0, 4098, 6710, Maker::epsg}, // ASTRO DOS 71/4
    {0, 4117, 6901, Maker::epsg}, // ATF (Paris)
    {0, 4152, 1291, Maker::epsg}, // ATRF2014
    {0, 4173, 6122, Maker::epsg}, // ATS77
    {0, 17612, 1291, Maker::esri}, // Australian_Terrestrial_Reference_Frame_2014
    {0, 18036, 6183, Maker::epsg}, // Azores Central 1948
    {0, 18065, 6665, Maker::epsg}, // Azores Central 1995
    {0, 18120, 6182, Maker::epsg}, // Azores Occidental 1939
    {0, 18177, 6184, Maker::epsg}, // Azores Oriental 1940
    {0, 18214, 6664, Maker::epsg}, // Azores Oriental 1995
    {0, 19528, 1072, Maker::epsg}, // Balboa
    {0, 19846, 6701, Maker::epsg}, // Bas Congo 1955
    {0, 18679, 6215, Maker::epsg}, // BD50
    {0, 18684, 6809, Maker::epsg}, // BD50 (Brussels)
    {0, 18722, 6313, Maker::epsg}, // BD72
    {0, 18764, 6762, Maker::epsg}, // BDA2000
    {0, 172988, 6215, Maker::epsg}, // Belge 1950
    {0, 173032, 6313, Maker::epsg}, // Belge 1972
    {0, 22677, 6714, Maker::epsg}, // Bellevue (IGN)
    {0, 18804, 1167, Maker::epsg}, // BGS2005
    {0, 23753, 6201, Maker::epsg}, // Blue Nile 1958
    {0, 23991, 6218, Maker::epsg}, // Bogota
    {0, 24177, 6298, Maker::epsg}, // Borneo Triangulation of 1968
    {0, 19371, 6298, Maker::epsg}, // BT68
    {0, 25835, 1167, Maker::esri}, // Bulgaria_Geodetic_System_2005
    {0, 29058, 6220, Maker::epsg}, // Camacupa
    {17, 29158, 1217, Maker::esri}, // Camacupa_2015
    {0, 129159, 6609, Maker::epsg}, // CGQ77
    {0, 27851, 1112, Maker::epsg}, // CGRS93
    {0, 28061, 6151, Maker::epsg}, // CHTRS95
    {0, 28113, 6673, Maker::epsg}, // CI1979
    {0, 28174, 1100, Maker::epsg}, // CIGD11
    {0, 36648, 6225, Maker::epsg}, // Corrego Alegre
    {0, 28577, 1065, Maker::epsg}, // CR05
    {0, 28593, 1225, Maker::epsg}, // CR14
    {0, 28650, 6623, Maker::epsg}, // CSG67
    {0, 37665, 1031, Maker::epsg}, // D48
    {0, 37698, 6765, Maker::epsg}, // D96
    {27, 4656, 6143, Maker::esri}, // D_Abidjan_1987
    {27, 4719, 6168, Maker::esri}, // D_Accra
    {27, 4837, 1135, Maker::esri}, // D_Aden_1925
    {27, 4844, 6201, Maker::esri}, // D_Adindan
    {27, 4936, 6205, Maker::esri}, // D_Afgooye
    {27, 5675, 6206, Maker::esri}, // D_Agadez
    {27, 5819, 6204, Maker::esri}, // D_Ain_el_Abd_1970
    {27, 5891, 6001, Maker::esri}, // D_Airy_1830
    {27, 5900, 6002, Maker::esri}, // D_Airy_Modified
    {27, 6342, 6191, Maker::esri}, // D_Albanian_1987
    {27, 6964, 6169, Maker::esri}, // D_American_Samoa_1962
    {27, 6978, 6289, Maker::esri}, // D_Amersfoort
    {27, 7065, 6196, Maker::esri}, // D_Ammassalik_1958
    {27, 7664, 6600, Maker::esri}, // D_Anguilla_1957
    {27, 7704, 6708, Maker::esri}, // D_Anna_1_1965
    {27, 10689, 6601, Maker::esri}, // D_Antigua_1943
    {27, 24315, 6208, Maker::esri}, // D_Aratu
    {27, 10962, 6209, Maker::esri}, // D_Arc_1950
    {27, 11016, 6210, Maker::esri}, // D_Arc_1960
    {27, 14506, 6712, Maker::esri}, // D_Ascension_Island_1958
    {27, 15965, 6711, Maker::esri}, // D_Astro_1952
    {27, 4113, 6901, Maker::esri}, // D_ATF
    {27, 4325, 6122, Maker::esri}, // D_ATS_1977
    {27, 17159, 6003, Maker::esri}, // D_Australian
    {27, 17494, 6202, Maker::esri}, // D_Australian_1966
    {27, 17503, 6203, Maker::esri}, // D_Australian_1984
    {27, 17523, 6176, Maker::esri}, // D_Australian_Antarctic_1998
    {27, 17976, 6713, Maker::esri}, // D_Ayabelle
    {27, 18349, 6183, Maker::esri}, // D_Azores_Central_Islands_1948
    {27, 18363, 6665, Maker::esri}, // D_Azores_Central_Islands_1995
    {27, 18419, 6182, Maker::esri}, // D_Azores_Occidental_Islands_1939
    {27, 18518, 6184, Maker::esri}, // D_Azores_Oriental_Islands_1940
    {27, 18536, 6664, Maker::esri}, // D_Azores_Oriental_Islands_1995
    {27, 19688, 6212, Maker::esri}, // D_Barbados_1938
    {27, 19856, 6211, Maker::esri}, // D_Batavia
    {27, 20163, 6709, Maker::esri}, // D_Beacon_E_1945
    {27, 20174, 6213, Maker::esri}, // D_Beduaram
    {27, 22426, 6214, Maker::esri}, // D_Beijing_1954
    {27, 22536, 1137, Maker::esri}, // D_Bekaa_Valley_1920
    {27, 22550, 6215, Maker::esri}, // D_Belge_1950
    {27, 22573, 6313, Maker::esri}, // D_Belge_1972
    {27, 22690, 6714, Maker::esri}, // D_Bellevue_IGN
    {27, 22794, 6216, Maker::esri}, // D_Bermuda_1957
    {27, 22823, 6762, Maker::esri}, // D_Bermuda_2000
    {27, 22950, 6306, Maker::esri}, // D_Bern_1938
    {27, 23008, 6004, Maker::esri}, // D_Bessel_1841
    {27, 23018, 6005, Maker::esri}, // D_Bessel_Modified
    {27, 23031, 6006, Maker::esri}, // D_Bessel_Namibia
    {27, 23443, 1058, Maker::esri}, // D_Bhutan_National_Geodetic_Datum
    {27, 47514, 1136, Maker::esri}, // D_Bioko
    {27, 23653, 6165, Maker::esri}, // D_Bissau
    {27, 23991, 6218, Maker::esri}, // D_Bogota
    {0, 37715, 1081, Maker::epsg}, // DB_REF
    {27, 25749, 6219, Maker::esri}, // D_Bukit_Rimpah
    {27, 28759, 1037, Maker::esri}, // D_Cadastre_1997
    {27, 29058, 6220, Maker::esri}, // D_Camacupa
    {27, 29259, 6715, Maker::esri}, // D_Camp_Area
    {27, 29495, 6221, Maker::esri}, // D_Campo_Inchauspe
    {27, 31188, 6716, Maker::esri}, // D_Canton_1966
    {27, 31247, 6222, Maker::esri}, // D_Cape
    {27, 31408, 6717, Maker::esri}, // D_Cape_Canaveral
    {27, 31675, 6223, Maker::esri}, // D_Carthage
    {27, 31974, 1100, Maker::esri}, // D_Cayman_Islands_Geodetic_Datum_2011
    {27, 27924, 6149, Maker::esri}, // D_CH1903
    {27, 27966, 6150, Maker::esri}, // D_CH1903+
    {27, 32347, 6672, Maker::esri}, // D_Chatham_Island_1971
    {27, 32390, 6673, Maker::esri}, // D_Chatham_Islands_1979
    {27, 33267, 1043, Maker::esri}, // D_China_2000
    {27, 33391, 6160, Maker::esri}, // D_Chos_Malal_1914
    {27, 33489, 6224, Maker::esri}, // D_Chua
    {28, 33678, 6007, Maker::esri}, // D_Clarke_1858
    {28, 33688, 6008, Maker::esri}, // D_Clarke_1866
    {28, 868, 6009, Maker::esri}, // D_Clarke_1866_Michigan
    {28, 33715, 6034, Maker::esri}, // D_Clarke_1880
    {28, 880, 6013, Maker::esri}, // D_Clarke_1880_Arc
    {28, 888, 6010, Maker::esri}, // D_Clarke_1880_Benoit
    {28, 898, 6011, Maker::esri}, // D_Clarke_1880_IGN
    {28, 918, 6012, Maker::esri}, // D_Clarke_1880_RGS
    {28, 927, 6014, Maker::esri}, // D_Clarke_1880_SGA
    {27, 35309, 6632, Maker::esri}, // D_Combani_1950
    {27, 35402, 6315, Maker::esri}, // D_Conakry_1905
    {27, 36879, 6225, Maker::esri}, // D_Corrego_Alegre
    {27, 36902, 1074, Maker::esri}, // D_Corrego_Alegre_1961
    {27, 37042, 1065, Maker::esri}, // D_Costa_Rica_2005
    {27, 37216, 6226, Maker::esri}, // D_Cote_d_Ivoire
    {27, 37440, 6761, Maker::esri}, // D_Croatian_Terrestrial_Reference_System
    {27, 28679, 6623, Maker::esri}, // D_CSG_1967
    {27, 37628, 1112, Maker::esri}, // D_Cyprus_Geodetic_Reference_System_1993
    {27, 39583, 6155, Maker::esri}, // D_Dabola_1981
    {27, 39781, 6274, Maker::esri}, // D_Datum_73
    {27, 39835, 6755, Maker::esri}, // D_Datum_Geodesi_Nasional_1995
    {27, 40121, 6316, Maker::esri}, // D_Dealul_Piscului_1933
    {27, 40138, 6317, Maker::esri}, // D_Dealul_Piscului_1970
    {27, 40233, 6736, Maker::esri}, // D_Deception_Island
    {27, 40348, 6227, Maker::esri}, // D_Deir_ez_Zor
    {27, 40658, 1081, Maker::esri}, // D_Deutsche_Bahn_Reference_System
    {27, 40707, 6314, Maker::esri}, // D_Deutsches_Hauptdreiecksnetz
    {27, 40835, 6602, Maker::esri}, // D_Dominica_1945
    {27, 39027, 6710, Maker::esri}, // D_DOS_71_4
    {27, 40903, 6228, Maker::esri}, // D_Douala
    {27, 40960, 6192, Maker::esri}, // D_Douala_1948
    {0, 40037, 6316, Maker::epsg}, // Dealul Piscului 1933
    {27, 46769, 6719, Maker::esri}, // D_Easter_Island_1967
    {27, 47205, 6229, Maker::esri}, // D_Egypt_1907
    {27, 47214, 6199, Maker::esri}, // D_Egypt_1930
    {27, 47259, 6706, Maker::esri}, // D_Egypt_Gulf_of_Suez_S-650_TL
    {27, 47569, 6133, Maker::esri}, // D_Estonia_1992
    {27, 47578, 6180, Maker::esri}, // D_Estonia_1997
    {27, 44403, 1178, Maker::esri}, // D_ETRF_1989
    {27, 46495, 6258, Maker::esri}, // D_ETRS_1989
    {27, 50037, 6230, Maker::esri}, // D_European_1950
    {27, 50047, 6154, Maker::esri}, // D_European_1950_ED77
    {27, 50062, 6668, Maker::esri}, // D_European_1979
    {27, 50072, 6231, Maker::esri}, // D_European_1987
    {27, 50082, 6159, Maker::esri}, // D_European_Libyan_1979
    {27, 50282, 6042, Maker::esri}, // D_Everest_1830
    {27, 50293, 6015, Maker::esri}, // D_Everest_Adj_1937
    {27, 50306, 6044, Maker::esri}, // D_Everest_Def_1962
    {27, 50319, 6016, Maker::esri}, // D_Everest_Def_1967
    {27, 50332, 6045, Maker::esri}, // D_Everest_Def_1975
    {27, 50345, 6018, Maker::esri}, // D_Everest_Modified
    {27, 50617, 6232, Maker::esri}, // D_Fahud
    {27, 50842, 6741, Maker::esri}, // D_Faroe_Datum_1954
    {27, 50885, 6688, Maker::esri}, // D_Fatu_Iva_1972
    {27, 50492, 6132, Maker::esri}, // D_FD_1958
    {27, 51002, 1078, Maker::esri}, // D_Fehmarnbelt_Datum_2010
    {27, 51313, 6721, Maker::esri}, // D_Fiji_1956
    {27, 51356, 6720, Maker::esri}, // D_Fiji_1986
    {27, 50820, 6753, Maker::esri}, // D_fk89
    {27, 52719, 6625, Maker::esri}, // D_Fort_Desaix
    {27, 52745, 6621, Maker::esri}, // D_Fort_Marigot
    {27, 63316, 1139, Maker::esri}, // D_Gambia
    {27, 63334, 6684, Maker::esri}, // D_Gan_1970
    {27, 63359, 6233, Maker::esri}, // D_Gandajika_1970
    {27, 63370, 6197, Maker::esri}, // D_Garoua
    {27, 63370, 6234, Maker::esri}, // D_Garoua
    {27, 55638, 6283, Maker::esri}, // D_GDA_1994
    {27, 55669, 1056, Maker::esri}, // D_GDBD2009
    {27, 55897, 6742, Maker::esri}, // D_GDM_2000
    {27, 56000, 6031, Maker::esri}, // D_GEM_10C
    {27, 56034, 6121, Maker::esri}, // D_GGRS_1987
    {0, 38016, 6755, Maker::epsg}, // DGN95
    {27, 64690, 6723, Maker::esri}, // D_Grand_Cayman_1959
    {27, 64745, 6646, Maker::esri}, // D_Grand_Comoros
    {27, 64883, 6120, Maker::esri}, // D_Greek
    {27, 65584, 6747, Maker::esri}, // D_Greenland_1996
    {27, 65676, 6603, Maker::esri}, // D_Grenada_1953
    {27, 56664, 6036, Maker::esri}, // D_GRS_1967
    {27, 56684, 6019, Maker::esri}, // D_GRS_1980
    {27, 65891, 6675, Maker::esri}, // D_Guam_1963
    {27, 66101, 6682, Maker::esri}, // D_Gulshan_303
    {27, 66196, 6613, Maker::esri}, // D_Gunung_Segara
    {27, 66391, 6235, Maker::esri}, // D_Guyane_Francaise
    {27, 66957, 6147, Maker::esri}, // D_Hanoi_1972
    {27, 67397, 6148, Maker::esri}, // D_Hartebeesthoek_1994
    {0, 38562, 6314, Maker::epsg}, // DHDN
    {27, 67715, 6660, Maker::esri}, // D_Helle_1954
    {27, 67752, 6020, Maker::esri}, // D_Helmert_1906
    {27, 67787, 6255, Maker::esri}, // D_Herat_North
    {27, 67906, 6254, Maker::esri}, // D_Hito_XVIII_1963
    {27, 68040, 6658, Maker::esri}, // D_Hjorsey_1955
    {27, 68217, 6738, Maker::esri}, // D_Hong_Kong_1963
    {27, 68228, 6739, Maker::esri}, // D_Hong_Kong_1963_67
    {27, 68262, 6611, Maker::esri}, // D_Hong_Kong_1980
    {27, 68452, 6054, Maker::esri}, // D_Hughes_1980
    {27, 68491, 6237, Maker::esri}, // D_Hungarian_1972
    {27, 68535, 1024, Maker::esri}, // D_Hungarian_Datum_1909
    {27, 68411, 6236, Maker::esri}, // D_Hu_Tzu_Shan
    {27, 69349, 6697, Maker::esri}, // D_IGC_1962_Arc_of_the_6th_Parallel_South
    {27, 69525, 6670, Maker::esri}, // D_IGM_1995
    {27, 69723, 6641, Maker::esri}, // D_IGN53_Mare
    {27, 69797, 6633, Maker::esri}, // D_IGN56_Lifou
    {27, 69858, 6689, Maker::esri}, // D_IGN63_Hiva_Oa
    {27, 70000, 6634, Maker::esri}, // D_IGN72_Grande_Terre
    {27, 70035, 6630, Maker::esri}, // D_IGN72_Nuku_Hiva
    {27, 70083, 6700, Maker::esri}, // D_IGN_Astro_1960
    {27, 72751, 6239, Maker::esri}, // D_Indian_1954
    {27, 72757, 6131, Maker::esri}, // D_Indian_1960
    {27, 229654, 6240, Maker::esri}, // D_Indian_1975
    {27, 73867, 6021, Maker::esri}, // D_Indonesian
    {27, 73934, 6238, Maker::esri}, // D_Indonesian_1974
    {27, 74000, 6701, Maker::esri}, // D_Institut_Geographique_du_Congo_Belge_1955
    {27, 74431, 6022, Maker::esri}, // D_International_1924
    {27, 75193, 1029, Maker::esri}, // D_Iraqi_Geospatial_Reference_System
    {27, 75147, 6667, Maker::esri}, // D_Iraq_Kuwait_Boundary_1992
    {27, 70405, 6173, Maker::esri}, // D_IRENET95
    {27, 75336, 6659, Maker::esri}, // D_Islands_Network_1993
    {27, 75349, 1060, Maker::esri}, // D_Islands_Network_2004
    {27, 75361, 6141, Maker::esri}, // D_Israel
    {27, 70823, 6722, Maker::esri}, // D_ISTS_061_1968
    {27, 70835, 6724, Maker::esri}, // D_ISTS_073_1969
    {29, 74066, 6647, Maker::esri}, // D_ITRF_1988
    {29, 44408, 6648, Maker::esri}, // D_ITRF_1989
    {29, 49748, 6649, Maker::esri}, // D_ITRF_1990
    {29, 49776, 6650, Maker::esri}, // D_ITRF_1991
    {29, 33449, 6651, Maker::esri}, // D_ITRF_1992
    {29, 27890, 6652, Maker::esri}, // D_ITRF_1993
    {29, 33467, 6653, Maker::esri}, // D_ITRF_1994
    {29, 49888, 6654, Maker::esri}, // D_ITRF_1996
    {29, 19764, 6655, Maker::esri}, // D_ITRF_1997
    {29, 10751, 6656, Maker::esri}, // D_ITRF_2000
    {29, 18807, 6896, Maker::esri}, // D_ITRF_2005
    {29, 17953, 1061, Maker::esri}, // D_ITRF_2008
    {27, 77690, 6241, Maker::esri}, // D_Jamaica_1875
    {27, 77717, 6242, Maker::esri}, // D_Jamaica_1969
    {27, 77726, 6758, Maker::esri}, // D_Jamaica_2001
    {27, 77430, 6612, Maker::esri}, // D_JGD_2000
    {27, 77467, 1128, Maker::esri}, // D_JGD_2011
    {27, 78994, 6725, Maker::esri}, // D_Johnston_Island_1961
    {27, 79058, 6679, Maker::esri}, // D_Jouik_1961
    {27, 79935, 6243, Maker::esri}, // D_Kalianpur_1880
    {27, 79964, 6144, Maker::esri}, // D_Kalianpur_1937
    {27, 79973, 6145, Maker::esri}, // D_Kalianpur_1962
    {27, 79982, 6146, Maker::esri}, // D_Kalianpur_1975
    {27, 80023, 6244, Maker::esri}, // D_Kandawala
    {27, 80839, 6743, Maker::esri}, // D_Karbala_1979_Polservice
    {27, 81007, 6696, Maker::esri}, // D_Kasai_1953
    {27, 81219, 6695, Maker::esri}, // D_Katanga_1955
    {27, 81641, 6631, Maker::esri}, // D_Kerguelen_Island_1949
    {27, 81641, 6698, Maker::esri}, // D_Kerguelen_Island_1949
    {27, 81672, 6245, Maker::esri}, // D_Kertau
    {27, 82005, 6751, Maker::esri}, // D_Kertau_RSO
    {27, 79098, 6123, Maker::esri}, // D_KKJ
    {27, 82852, 6737, Maker::esri}, // D_Korea_2000
    {27, 83250, 6162, Maker::esri}, // D_Korean_Datum_1985
    {27, 83263, 6166, Maker::esri}, // D_Korean_Datum_1995
    {27, 83326, 6198, Maker::esri}, // D_Kousseri
    {27, 83423, 6024, Maker::esri}, // D_Krasovsky_1940
    {27, 83505, 6735, Maker::esri}, // D_Kusaie_1951
    {27, 83653, 6246, Maker::esri}, // D_Kuwait_Oil_Company
    {27, 83667, 6319, Maker::esri}, // D_Kuwait_Utility
    {27, 83806, 1160, Maker::esri}, // D_Kyrgyz_Republic_2006
    {27, 84675, 6247, Maker::esri}, // D_La_Canoa
    {27, 202422, 6249, Maker::esri}, // D_Lake
    {27, 85011, 6677, Maker::esri}, // D_Lao_1993
    {27, 85027, 6678, Maker::esri}, // D_Lao_National_Datum_1997
    {27, 85301, 6661, Maker::esri}, // D_Latvia_1992
    {27, 85413, 6250, Maker::esri}, // D_Leigon
    {27, 85374, 6699, Maker::esri}, // D_Le_Pouce_1934
    {27, 85489, 6251, Maker::esri}, // D_Liberia_1964
    {27, 85806, 6754, Maker::esri}, // D_Libyan_Geodetic_Datum_2006
    {27, 86284, 6207, Maker::esri}, // D_Lisbon
    {27, 86264, 6666, Maker::esri}, // D_Lisbon_1890
    {27, 86375, 6126, Maker::esri}, // D_Lithuania_1994
    {27, 86447, 6726, Maker::esri}, // D_Little_Cayman_1961
    {27, 87244, 6142, Maker::esri}, // D_Locodjo_1965
    {27, 87325, 6288, Maker::esri}, // D_Loma_Quintana
    {27, 87335, 6252, Maker::esri}, // D_Lome
    {27, 87554, 6181, Maker::esri}, // D_Luxembourg_Reference_Frame
    {27, 87671, 6253, Maker::esri}, // D_Luzon_1911
    {27, 87807, 1208, Maker::esri}, // D_MACAO_2008
    {27, 91033, 6185, Maker::esri}, // D_Madeira_1936
    {27, 91139, 6903, Maker::esri}, // D_Madrid_1870
    {27, 91184, 6128, Maker::esri}, // D_Madzansua
    {27, 87816, 6686, Maker::esri}, // D_MAGNA
    {27, 91214, 6256, Maker::esri}, // D_Mahe_1971
    {27, 91487, 6257, Maker::esri}, // D_Makassar
    {27, 92008, 6259, Maker::esri}, // D_Malongo_1987
    {27, 92088, 6260, Maker::esri}, // D_Manoca
    {27, 92119, 6193, Maker::esri}, // D_Manoca_1962
    {27, 92636, 1063, Maker::esri}, // D_Marco_Geodesico_Nacional
    {27, 92997, 6262, Maker::esri}, // D_Massawa
    {27, 93059, 6692, Maker::esri}, // D_Maupiti_1983
    {27, 93260, 6702, Maker::esri}, // D_Mauritania_1999
    {27, 93519, 6261, Maker::esri}, // D_Merchich
    {27, 93677, 1042, Maker::esri}, // D_Mexican_Datum_of_1993
    {27, 94179, 1120, Maker::esri}, // D_Mexico_ITRF2008
    {27, 89045, 6312, Maker::esri}, // D_MGI
    {27, 89807, 1031, Maker::esri}, // D_MGI_1901
    {27, 94262, 6264, Maker::esri}, // D_Mhast
    {27, 94332, 6703, Maker::esri}, // D_Mhast_1951
    {27, 94340, 6705, Maker::esri}, // D_Mhast_Offshore
    {27, 94371, 6704, Maker::esri}, // D_Mhast_Onshore
    {27, 94834, 6727, Maker::esri}, // D_Midway_1961
    {27, 95027, 6263, Maker::esri}, // D_Minna
    {27, 90091, 1032, Maker::esri}, // D_MOLDREF99
    {27, 96574, 6265, Maker::esri}, // D_Monte_Mario
    {27, 96729, 6604, Maker::esri}, // D_Montserrat_1958
    {27, 96791, 6691, Maker::esri}, // D_Moorea_1987
    {27, 90198, 6639, Maker::esri}, // D_MOP78
    {27, 96926, 6157, Maker::esri}, // D_Mount_Dillon
    {27, 97195, 6130, Maker::esri}, // D_Moznet
    {27, 97302, 6266, Maker::esri}, // D_Mporaloko
    {27, 129155, 6609, Maker::esri}, // D_NAD_1927_CGQ77
    {27, 129208, 6608, Maker::esri}, // D_NAD_1927_Definition_1976
    {30, 31917, 1116, Maker::esri}, // D_NAD_1983_2011
    {30, 28354, 1133, Maker::esri}, // D_NAD_1983_CORS96
    {30, 87758, 1118, Maker::esri}, // D_NAD_1983_MA11
    {30, 88984, 1221, Maker::esri}, // D_NAD_1983_MARP00
    {30, 130683, 6759, Maker::esri}, // D_NAD_1983_NSRS2007
    {30, 145889, 1117, Maker::esri}, // D_NAD_1983_PA11
    {30, 145933, 1249, Maker::esri}, // D_NAD_1983_PACP00
    {27, 132814, 6744, Maker::esri}, // D_Nahrwan_1934
    {27, 132855, 6270, Maker::esri}, // D_Nahrwan_1967
    {27, 132936, 6693, Maker::esri}, // D_Nakhl-e_Ghanem
    {27, 133141, 6158, Maker::esri}, // D_Naparima_1955
    {27, 133172, 6271, Maker::esri}, // D_Naparima_1972
    {27, 130107, 6644, Maker::esri}, // D_NEA74_Noumea
    {27, 133414, 1111, Maker::esri}, // D_Nepal_Nagarkot
    {27, 137014, 1045, Maker::esri}, // D_New_Beijing
    {27, 137406, 6272, Maker::esri}, // D_New_Zealand_1949
    {27, 130173, 6318, Maker::esri}, // D_NGN
    {27, 130452, 6273, Maker::esri}, // D_NGO_1948
    {27, 138162, 6902, Maker::esri}, // D_Nord_de_Guerre
    {27, 138114, 6307, Maker::esri}, // D_Nord_Sahara_1959
    {31, 138840, 6267, Maker::esri}, // D_North_American_1927
    {31, 90194, 6269, Maker::esri}, // D_North_American_1983
    {31, 1552, 6140, Maker::esri}, // D_North_American_1983_CSRS
    {31, 1621, 6152, Maker::esri}, // D_North_American_1983_HARN
    {31, 873, 6268, Maker::esri}, // D_North_American_Michigan
    {27, 141991, 6680, Maker::esri}, // D_Nouakchott_1965
    {27, 130697, 6276, Maker::esri}, // D_NSWC_9Z_2
    {27, 130715, 6275, Maker::esri}, // D_NTF
    {27, 131197, 6025, Maker::esri}, // D_NWL_9D
    {27, 132621, 6167, Maker::esri}, // D_NZGD_2000
    {27, 142894, 6129, Maker::esri}, // D_Observatario
    {27, 143291, 1070, Maker::esri}, // D_Ocotepeque_1935
    {27, 143681, 6135, Maker::esri}, // D_Old_Hawaiian
    {27, 142735, 6277, Maker::esri}, // D_OSGB_1936
    {27, 142743, 6278, Maker::esri}, // D_OSGB_1970_SN
    {27, 142783, 6188, Maker::esri}, // D_OSNI_1952
    {27, 142885, 6279, Maker::esri}, // D_OS_SN_1980
    {27, 142869, 6032, Maker::esri}, // D_OSU_86F
    {27, 142877, 6033, Maker::esri}, // D_OSU_91A
    {27, 147954, 6280, Maker::esri}, // D_Padang_1884
    {27, 148254, 6281, Maker::esri}, // D_Palestine_1923
    {27, 148384, 6161, Maker::esri}, // D_Pampa_del_Castillo
    {27, 148494, 1072, Maker::esri}, // D_Panama-Colon-1911
    {27, 148900, 1076, Maker::esri}, // D_Papua_New_Guinea_Geodetic_Datum_1994
    {27, 148944, 6740, Maker::esri}, // D_Parametrop_Zemp_1990
    {27, 146157, 6134, Maker::esri}, // D_PDO_1993
    {27, 149552, 1067, Maker::esri}, // D_Peru96
    {27, 149685, 6636, Maker::esri}, // D_Petrels_1972
    {27, 149764, 6683, Maker::esri}, // D_Philippine_Reference_System_1992
    {27, 150032, 6728, Maker::esri}, // D_Pico_de_Las_Nieves
    {27, 150320, 6729, Maker::esri}, // D_Pitcairn_1967
    {27, 150349, 6763, Maker::esri}, // D_Pitcairn_2006
    {27, 150412, 6027, Maker::esri}, // D_Plessis_1817
    {27, 150431, 6620, Maker::esri}, // D_Point_58
    {27, 150477, 6637, Maker::esri}, // D_Pointe_Geologie_Perroud_1950
    {27, 150498, 6282, Maker::esri}, // D_Pointe_Noire
    {27, 150980, 6615, Maker::esri}, // D_Porto_Santo_1936
    {27, 151016, 6663, Maker::esri}, // D_Porto_Santo_1995
    {27, 146559, 6172, Maker::esri}, // D_POSGAR
    {27, 147002, 6694, Maker::esri}, // D_POSGAR_1994
    {27, 147031, 6190, Maker::esri}, // D_POSGAR_1998
    {27, 147060, 1062, Maker::esri}, // D_POSGAR_2007
    {27, 151720, 6746, Maker::esri}, // D_Potsdam_1983
    {27, 184120, 1046, Maker::esri}, // D_Principe
    {27, 151928, 6248, Maker::esri}, // D_Provisional_S_American_1956
    {27, 147508, 1041, Maker::esri}, // D_PTRA08
    {27, 152068, 6139, Maker::esri}, // D_Puerto_Rico
    {27, 166571, 6284, Maker::esri}, // D_Pulkovo_1942
    {27, 166669, 6179, Maker::esri}, // D_Pulkovo_1942_Adj_1958
    {27, 166770, 6178, Maker::esri}, // D_Pulkovo_1942_Adj_1983
    {27, 166879, 6200, Maker::esri}, // D_Pulkovo_1995
    {27, 167090, 6285, Maker::esri}, // D_Qatar
    {27, 167183, 6286, Maker::esri}, // D_Qatar_1948
    {27, 167051, 6614, Maker::esri}, // D_QND_1995
    {27, 167212, 6287, Maker::esri}, // D_Qornoq
    {27, 167481, 6194, Maker::esri}, // D_Qornoq_1927
    {27, 171922, 6153, Maker::esri}, // D_Rassadiran
    {27, 171983, 6745, Maker::esri}, // D_Rauenberg_1983
    {27, 172372, 1035, Maker::esri}, // D_Red_Geodesica_de_Canarias_1995
    {27, 178192, 6189, Maker::esri}, // D_REGVEN
    {32, 230692, 6687, Maker::esri}, // D_Reseau_Geodesique_de_la_Polynesie_Francaise
    {32, 230711, 1033, Maker::esri}, // D_Reseau_Geodesique_de_la_RDC_2005
    {32, 230638, 1036, Maker::esri}, // D_Reseau_Geodesique_de_Mayotte_2004
    {32, 230649, 6749, Maker::esri}, // D_Reseau_Geodesique_de_Nouvelle_Caledonie_1991-93
    {32, 230790, 1113, Maker::esri}, // D_Reseau_Geodesique_des_Terres_Australes_et_Antarctiques_Francaises_2007
    {32, 230670, 1038, Maker::esri}, // D_Reseau_Geodesique_de_St_Pierre_et_Miquelon_2006
    {27, 173160, 1132, Maker::esri}, // D_Rete_Dinamica_Nazionale_2008
    {27, 173239, 6626, Maker::esri}, // D_Reunion_1947
    {27, 173300, 6657, Maker::esri}, // D_Reykjavik_1900
    {27, 169225, 6171, Maker::esri}, // D_RGF_1993
    {27, 169184, 6624, Maker::esri}, // D_RGFG_1995
    {27, 169500, 6645, Maker::esri}, // D_RGNC_1991
    {27, 170105, 6627, Maker::esri}, // D_RGR_1992
    {27, 173690, 6764, Maker::esri}, // D_Ross_Sea_Region_Geodetic_Datum_2000
    {27, 170675, 1047, Maker::esri}, // D_RRAF_1991
    {27, 171835, 6124, Maker::esri}, // D_RT_1990
    {0, 39036, 1058, Maker::epsg}, // DRUKREF 03
    {27, 183782, 6622, Maker::esri}, // D_Sainte_Anne
    {27, 183721, 6638, Maker::esri}, // D_Saint_Pierre_et_Miquelon_1950
    {27, 183879, 6125, Maker::esri}, // D_Samboja
    {27, 184092, 6730, Maker::esri}, // D_Santo_DOS_1965
    {27, 184151, 1044, Maker::esri}, // D_Sao_Tome
    {27, 184211, 6292, Maker::esri}, // D_Sapper_Hill_1943
    {27, 184510, 6293, Maker::esri}, // D_Schwarzeck
    {27, 184765, 6195, Maker::esri}, // D_Scoresbysund_1952
    {27, 184883, 6294, Maker::esri}, // D_Segora
    {27, 184950, 6616, Maker::esri}, // D_Selvagem_Grande_1938
    {27, 185100, 1034, Maker::esri}, // D_Serbian_Reference_Network_1998
    {27, 185148, 6295, Maker::esri}, // D_Serindung
    {27, 175846, 1066, Maker::esri}, // D_SGNP_MARCARIO_SOLIS
    {27, 185294, 1071, Maker::esri}, // D_Sibun_Gorge_1922
    {27, 185607, 6174, Maker::esri}, // D_Sierra_Leone_1924
    {27, 185670, 6175, Maker::esri}, // D_Sierra_Leone_1968
    {27, 28464, 6170, Maker::esri}, // D_SIRGAS
    {27, 178386, 6674, Maker::esri}, // D_SIRGAS_2000
    {27, 177688, 1064, Maker::esri}, // D_SIRGAS-Chile
    {27, 177688, 1254, Maker::esri}, // D_SIRGAS-Chile
    {27, 178486, 1069, Maker::esri}, // D_SIRGAS_ES2007.8
    {27, 178199, 1068, Maker::esri}, // D_SIRGAS-ROU98
    {27, 183601, 6156, Maker::esri}, // D_S_JTSK
    {27, 183633, 1052, Maker::esri}, // D_S_JTSK_05
    {27, 183643, 1055, Maker::esri}, // D_S_JTSK_05_Ferro
    {27, 186471, 6765, Maker::esri}, // D_Slovenia_Geodetic_Datum_1996
    {27, 186561, 6718, Maker::esri}, // D_Solomon_1968
    {27, 188718, 6291, Maker::esri}, // D_South_American_1969
    {27, 188718, 6618, Maker::esri}, // D_South_American_1969
    {27, 188730, 1075, Maker::esri}, // D_South_American_Datum_1969_96
    {27, 188947, 1138, Maker::esri}, // D_South_East_Island_1943
    {27, 188996, 6164, Maker::esri}, // D_South_Yemen
    {27, 150849, 6035, Maker::esri}, // D_Sphere
    {27, 189355, 6052, Maker::esri}, // D_Sphere_Clarke_1866_Authalic
    {27, 189374, 6047, Maker::esri}, // D_Sphere_GRS_1980_Authalic
    {27, 189389, 6053, Maker::esri}, // D_Sphere_International_1924_Authalic
    {27, 189435, 1053, Maker::esri}, // D_Sri_Lanka_Datum_1999
    {27, 183001, 6643, Maker::esri}, // D_ST71_Belep
    {27, 183065, 6642, Maker::esri}, // D_ST84_Ile_des_Pins
    {27, 183131, 6750, Maker::esri}, // D_ST87_Ouvea
    {27, 190039, 6138, Maker::esri}, // D_St_George_Island
    {27, 190128, 6605, Maker::esri}, // D_St_Kitts_1955
    {27, 190168, 6136, Maker::esri}, // D_St_Lawrence_Island
    {27, 190180, 6606, Maker::esri}, // D_St_Lucia_1955
    {27, 190439, 6308, Maker::esri}, // D_Stockholm_1938
    {27, 190245, 6137, Maker::esri}, // D_St_Paul_Island
    {27, 190462, 6028, Maker::esri}, // D_Struve_1860
    {27, 190255, 6607, Maker::esri}, // D_St_Vincent_1945
    {27, 5389, 6296, Maker::esri}, // D_Sudan
    {27, 183165, 6757, Maker::esri}, // D_SVY21
    {27, 183235, 6619, Maker::esri}, // D_SWEREF99
    {27, 191148, 6151, Maker::esri}, // D_Swiss_TRF_1995
    {27, 192932, 6629, Maker::esri}, // D_Tahaa_1954
    {27, 193016, 6628, Maker::esri}, // D_Tahiti_1952
    {27, 193038, 6690, Maker::esri}, // D_Tahiti_1979
    {27, 193373, 6297, Maker::esri}, // D_Tananarive_1925
    {27, 193655, 6707, Maker::esri}, // D_Tern_Island_1961
    {27, 193664, 6127, Maker::esri}, // D_Tete
    {27, 194399, 6298, Maker::esri}, // D_Timbalai_1948
    {27, 191665, 6299, Maker::esri}, // D_TM65
    {27, 191712, 6300, Maker::esri}, // D_TM75
    {27, 194465, 6301, Maker::esri}, // D_Tokyo
    {27, 195250, 1095, Maker::esri}, // D_Tonga_Geodetic_Datum_2005
    {27, 195554, 6302, Maker::esri}, // D_Trinidad_1903
    {27, 195628, 6734, Maker::esri}, // D_Tristan_1968
    {27, 195671, 6303, Maker::esri}, // D_Trucial_Coast_1948
    {27, 195908, 1057, Maker::esri}, // D_Turkish_National_Reference_Frame
    {27, 192837, 1025, Maker::esri}, // D_TWD_1967
    {27, 192874, 1026, Maker::esri}, // D_TWD_1997
    {27, 205173, 1077, Maker::esri}, // D_Ukraine_2000
    {27, 208093, 6748, Maker::esri}, // D_Vanua_Levu_1915
    {27, 208413, 6676, Maker::esri}, // D_Vientiane_1982
    {27, 209336, 6756, Maker::esri}, // D_Vietnam_2000
    {27, 209615, 6752, Maker::esri}, // D_Viti_Levu_1912
    {27, 209627, 6731, Maker::esri}, // D_Viti_Levu_1916
    {27, 209803, 6304, Maker::esri}, // D_Voirol_1875
    {27, 209827, 6671, Maker::esri}, // D_Voirol_1879
    {27, 222853, 6732, Maker::esri}, // D_Wake_Eniwetok_1960
    {27, 222868, 6733, Maker::esri}, // D_Wake_Island_1952
    {27, 223019, 6029, Maker::esri}, // D_War_Office
    {27, 220114, 6760, Maker::esri}, // D_WGS_1966
    {27, 220121, 6322, Maker::esri}, // D_WGS_1972
    {27, 220128, 6324, Maker::esri}, // D_WGS_1972_BE
    {27, 220195, 6326, Maker::esri}, // D_WGS_1984
    {27, 220268, 6055, Maker::esri}, // D_WGS_1984_Major_Auxiliary_Sphere
    {27, 229482, 6610, Maker::esri}, // D_Xian_1980
    {27, 229546, 6309, Maker::esri}, // D_Yacare
    {27, 229892, 6163, Maker::esri}, // D_Yemen_NGN_1996
    {27, 229922, 6310, Maker::esri}, // D_Yoff
    {27, 230055, 6311, Maker::esri}, // D_Zanderij
    {0, 41232, 1319, Maker::epsg}, // EBBWV14-IRF
    {0, 41298, 1310, Maker::epsg}, // ECML14_NB-IRF
    {0, 41324, 6230, Maker::epsg}, // ED50
    {0, 41801, 6154, Maker::epsg}, // ED50(ED77)
    {0, 41940, 6668, Maker::epsg}, // ED79
    {0, 41945, 6231, Maker::epsg}, // ED87
    {0, 41990, 6159, Maker::epsg}, // ELD79
    {0, 42270, 1308, Maker::epsg}, // EOS21-IRF
    {0, 44036, 6133, Maker::epsg}, // EST92
    {0, 44042, 6180, Maker::epsg}, // EST97
    {0, 146280, 1186, Maker::epsg}, // ETRF2000
    {0, 44109, 1305, Maker::epsg}, // ETRF2000-PL
    {0, 44201, 1204, Maker::epsg}, // ETRF2005
    {0, 44220, 1206, Maker::epsg}, // ETRF2014
    {0, 44241, 1178, Maker::epsg}, // ETRF89
    {0, 44270, 1179, Maker::epsg}, // ETRF90
    {0, 44289, 1180, Maker::epsg}, // ETRF91
    {0, 44308, 1181, Maker::epsg}, // ETRF92
    {0, 44327, 1182, Maker::epsg}, // ETRF93
    {0, 44346, 1183, Maker::epsg}, // ETRF94
    {0, 44365, 1184, Maker::epsg}, // ETRF96
    {0, 44384, 1185, Maker::epsg}, // ETRF97
    {46, 49748, 1179, Maker::esri}, // European_Terrestrial_Reference_Frame_1990
    {46, 49776, 1180, Maker::esri}, // European_Terrestrial_Reference_Frame_1991
    {46, 33449, 1181, Maker::esri}, // European_Terrestrial_Reference_Frame_1992
    {46, 27890, 1182, Maker::esri}, // European_Terrestrial_Reference_Frame_1993
    {46, 33467, 1183, Maker::esri}, // European_Terrestrial_Reference_Frame_1994
    {46, 49888, 1184, Maker::esri}, // European_Terrestrial_Reference_Frame_1996
    {46, 19764, 1185, Maker::esri}, // European_Terrestrial_Reference_Frame_1997
    {46, 10751, 1186, Maker::esri}, // European_Terrestrial_Reference_Frame_2000
    {46, 18807, 1204, Maker::esri}, // European_Terrestrial_Reference_Frame_2005
    {46, 4156, 1206, Maker::esri}, // European_Terrestrial_Reference_Frame_2014
    {0, 46625, 1311, Maker::epsg}, // EWR2-IRF
    {0, 50420, 6741, Maker::epsg}, // FD54
    {0, 50452, 6753, Maker::epsg}, // FD54a
    {0, 74914, 6132, Maker::epsg}, // FD58
    {0, 50508, 1078, Maker::epsg}, // FEH10
    {0, 50556, 6720, Maker::epsg}, // FGD 1986
    {0, 51264, 6720, Maker::epsg}, // Fiji 1986
    {0, 50599, 1321, Maker::epsg}, // FNL22-IRF
    {0, 52854, 1044, Maker::epsg}, // Fortaleza
    {0, 52652, 6625, Maker::epsg}, // Fort Desaix
    {0, 54486, 1289, Maker::esri}, // GBK19_Intermediate_Reference_Frame
    {0, 54461, 1289, Maker::epsg}, // GBK19-IRF
    {0, 54511, 6723, Maker::epsg}, // GCGD59
    {0, 131956, 6272, Maker::epsg}, // GD49
    {0, 54563, 1168, Maker::esri}, // GDA2020
    {0, 55130, 6283, Maker::epsg}, // GDA94
    {0, 55669, 1056, Maker::epsg}, // GDBD2009
    {0, 55707, 6742, Maker::epsg}, // GDM2000
    {0, 63524, 6211, Maker::epsg}, // Genuk
    {0, 63701, 1159, Maker::esri}, // Geodezicheskaya_Sistema_Koordinat_2011
    {0, 56013, 6121, Maker::proj}, // GGRS87
    {0, 56125, 6747, Maker::epsg}, // GR96
    {0, 64590, 6723, Maker::epsg}, // Grand Cayman 1959
    {0, 56657, 1159, Maker::epsg}, // GRS-2011
    {0, 59805, 1159, Maker::epsg}, // GSK-2011
    {0, 65870, 6152, Maker::epsg}, // Guam Geodetic Network 1993
    {0, 66350, 1188, Maker::esri}, // Gusterberg_(Ferro)
    {0, 66404, 1024, Maker::epsg}, // HD1909
    {0, 66410, 6237, Maker::epsg}, // HD72
    {0, 231189, 6312, Maker::proj}, // hermannskogel
    {0, 66444, 6738, Maker::epsg}, // HK63
    {0, 66449, 6739, Maker::epsg}, // HK63(67)
    {0, 66458, 6611, Maker::epsg}, // HK80
    {0, 68288, 1209, Maker::esri}, // Hong_Kong_Geodetic
    {0, 66463, 1031, Maker::epsg}, // HR1901
    {0, 66536, 1264, Maker::esri}, // HS2_Intermediate_Reference_Frame
    {0, 66505, 1264, Maker::epsg}, // HS2-IRF
    {0, 66574, 6761, Maker::epsg}, // HTRS96
    {0, 66736, 1317, Maker::epsg}, // HULLEE13-IRF
    {0, 68368, 6236, Maker::epsg}, // Hu Tzu Shan
    {0, 68643, 6238, Maker::epsg}, // ID74
    {62, 74066, 6647, Maker::epsg}, // IERS Terrestrial Reference Frame 1988
    {62, 44408, 6648, Maker::epsg}, // IERS Terrestrial Reference Frame 1989
    {62, 49748, 6649, Maker::epsg}, // IERS Terrestrial Reference Frame 1990
    {62, 49776, 6650, Maker::epsg}, // IERS Terrestrial Reference Frame 1991
    {62, 33449, 6651, Maker::epsg}, // IERS Terrestrial Reference Frame 1992
    {62, 27890, 6652, Maker::epsg}, // IERS Terrestrial Reference Frame 1993
    {62, 33467, 6653, Maker::epsg}, // IERS Terrestrial Reference Frame 1994
    {0, 68918, 1144, Maker::esri}, // IG05(2012)_Intermediate_Datum
    {0, 68986, 1142, Maker::esri}, // IG05_Intermediate_Datum
    {0, 69171, 6697, Maker::epsg}, // IGC 1962 6th Parallel South
    {0, 69212, 6701, Maker::epsg}, // IGCB 1955
    {0, 69474, 6755, Maker::epsg}, // IGD95
    {0, 69480, 6670, Maker::epsg}, // IGM95
    {0, 69566, 6628, Maker::epsg}, // IGN 1952
    {0, 70072, 6690, Maker::epsg}, // IGN79 Tahiti
    {0, 70112, 1029, Maker::epsg}, // IGRS
    {0, 70388, 6667, Maker::epsg}, // IKBD-92
    {0, 72524, 6131, Maker::epsg}, // Indian (DMA Reduced)
    {0, 73885, 6755, Maker::epsg}, // Indonesian Geodetic Datum 1995
    {0, 73905, 1293, Maker::epsg}, // Indonesian Geospatial Reference System 2013
    {0, 74442, 1165, Maker::esri}, // International_Terrestrial_Reference_Frame_2014
    {0, 231319, 6299, Maker::proj}, // ire65
    {0, 75268, 1046, Maker::epsg}, // Island of Principe datum
    {0, 75283, 1044, Maker::epsg}, // Island of Sao Tome datum
    {0, 75326, 1187, Maker::esri}, // Islands_Net_2016
    {0, 70503, 1060, Maker::epsg}, // ISN2004
    {0, 70590, 1187, Maker::epsg}, // ISN2016
    {0, 70701, 6659, Maker::epsg}, // ISN93
    {0, 75391, 1114, Maker::esri}, // Israel_Geodetic_Datum_2005
    {0, 75391, 1143, Maker::esri}, // Israel_Geodetic_Datum_2005
    {0, 75517, 1115, Maker::esri}, // Israeli_Geodetic_Datum_2005(2012)
    {0, 75517, 1145, Maker::esri}, // Israeli_Geodetic_Datum_2005(2012)
    {0, 70847, 6656, Maker::epsg}, // ITRF2000
    {0, 70884, 6896, Maker::epsg}, // ITRF2005
    {0, 93860, 1061, Maker::epsg}, // ITRF2008
    {0, 70977, 1165, Maker::epsg}, // ITRF2014
    {0, 71017, 1322, Maker::epsg}, // ITRF2020
    {0, 71037, 6647, Maker::epsg}, // ITRF88
    {0, 71056, 6648, Maker::epsg}, // ITRF89
    {0, 71093, 6649, Maker::epsg}, // ITRF90
    {0, 71130, 6650, Maker::epsg}, // ITRF91
    {0, 94002, 6651, Maker::epsg}, // ITRF92
    {0, 71197, 6652, Maker::epsg}, // ITRF93
    {0, 71234, 6653, Maker::epsg}, // ITRF94
    {0, 71271, 6654, Maker::epsg}, // ITRF96
    {0, 71308, 6655, Maker::epsg}, // ITRF97
    {0, 75964, 6758, Maker::epsg}, // JAD2001
    {0, 76012, 6242, Maker::epsg}, // JAD69
    {0, 78768, 1293, Maker::epsg}, // Jaring Kontrol Geodesi (JKG)
    {0, 76164, 6612, Maker::epsg}, // JGD2000
    {0, 76809, 1128, Maker::epsg}, // JGD2011
    {0, 78961, 6725, Maker::epsg}, // Johnston Atoll 1961
    {0, 80730, 6743, Maker::epsg}, // Karbala 1979 (Polservice)
    {0, 80933, 6123, Maker::epsg}, // Kartastokoordinaattijärjestelmä (1966)
    {0, 82171, 1268, Maker::esri}, // Kingdom_of_Saudi_Arabia_Geodetic_Reference_Frame_2017
    {0, 79098, 6123, Maker::epsg}, // KKJ
    {0, 79202, 6246, Maker::epsg}, // KOC
    {0, 82249, 6737, Maker::epsg}, // Korea 2000
    {0, 79226, 1251, Maker::epsg}, // KOSOVAREF01
    {0, 79237, 1251, Maker::epsg}, // KOSOVAREF01 (2012)
    {0, 79294, 1251, Maker::epsg}, // KOSOVAREF12
    {0, 83304, 1251, Maker::esri}, // Kosovo_Reference_System_2001
    {0, 79316, 1268, Maker::epsg}, // KSA-GRF17
    {0, 79442, 6319, Maker::epsg}, // KUDAMS
    {0, 83679, 1160, Maker::epsg}, // Kyrg-06
    {0, 84988, 6678, Maker::epsg}, // Lao 1997
    {89, 97211, 6699, Maker::epsg}, // Le Pouce (Mauritius 94)
    {89, 146287, 6699, Maker::epsg}, // Le Pouce (Mauritius PN 94)
    {0, 85458, 6227, Maker::epsg}, // Levant
    {0, 84065, 6754, Maker::epsg}, // LGD2006
    {0, 86421, 6726, Maker::epsg}, // Little Cayman Geodetic Datum 1961
    {0, 84318, 6661, Maker::epsg}, // LKS92
    {0, 84342, 6126, Maker::epsg}, // LKS94 (ETRS89)
    {0, 84415, 1295, Maker::epsg}, // LTF2004
    {0, 84430, 6181, Maker::epsg}, // LUREF
    {0, 87521, 6181, Maker::epsg}, // Luxembourg 1930
    {0, 87697, 1295, Maker::esri}, // Lyon_Turin_Ferroviaire_2004
    {0, 90738, 1207, Maker::esri}, // Macao_1920
    {0, 90710, 1208, Maker::epsg}, // Macao 2008
    {0, 185906, 1066, Maker::epsg}, // MACARIO SOLIS
    {0, 91006, 6615, Maker::epsg}, // Madeira SE Base
    {0, 91018, 6663, Maker::epsg}, // Madeira SE Base 1995
    {0, 91159, 6903, Maker::epsg}, // Madrid
    {0, 87822, 6686, Maker::epsg}, // MAGNA-SIRGAS
    {0, 91922, 6245, Maker::epsg}, // Malaysia Revised Triangulation 1968
    {0, 92543, 6616, Maker::epsg}, // Marco Astro
    {0, 88893, 1063, Maker::epsg}, // MARGEN
    {0, 93640, 1042, Maker::epsg}, // Mexican Datum of 1993
    {0, 89038, 1218, Maker::epsg}, // MGD-2000
    {0, 89045, 6312, Maker::epsg}, // MGI
    {0, 89049, 6805, Maker::epsg}, // MGI (Ferro)
    {0, 94325, 6703, Maker::epsg}, // Mhast 1951
    {0, 89867, 6688, Maker::epsg}, // MHEFO 55
    {0, 89876, 6634, Maker::epsg}, // MHNC72
    {0, 94964, 1258, Maker::esri}, // Ministerio_de_Marina_Norte
    {0, 94982, 1259, Maker::esri}, // Ministerio_de_Marina_Sur
    {0, 89947, 1271, Maker::esri}, // MML07_Intermediate_Reference_Frame
    {0, 89919, 1271, Maker::epsg}, // MML07-IRF
    {0, 89973, 1258, Maker::epsg}, // MMN
    {0, 90001, 1259, Maker::epsg}, // MMS
    {0, 95758, 6683, Maker::epsg}, // Modified Luzon Datum
    {0, 90069, 1315, Maker::epsg}, // MOLDOR11-IRF
    {0, 90163, 1218, Maker::esri}, // MOMRA_Terrestrial_Reference_Frame_2000
    {0, 90190, 6692, Maker::epsg}, // MOP 1983
    {0, 96883, 1046, Maker::epsg}, // Morro do Papagaio
    {0, 97195, 6130, Maker::epsg}, // Moznet
    {0, 90264, 1314, Maker::epsg}, // MRH21-IRF
    {0, 90282, 6245, Maker::epsg}, // MRT68
    {0, 90517, 1218, Maker::epsg}, // MTRF-2000
    {0, 90650, 1324, Maker::epsg}, // MWC18-IRF
    {110, 214, 1211, Maker::esri}, // NAD_1983_(Federal_Base_Network)
    {110, 328, 1212, Maker::esri}, // NAD_1983_(High_Accuracy_Reference_Network-Corrected)
    {0, 29741, 6267, Maker::proj}, // NAD27
    {0, 100059, 6608, Maker::epsg}, // NAD27(76)
    {0, 138824, 6269, Maker::proj}, // NAD83
    {0, 104933, 6269, Maker::epsg}, // NAD83(1986)
    {0, 104997, 1116, Maker::epsg}, // NAD83(2011)
    {0, 114799, 1133, Maker::epsg}, // NAD83(CORS96)
    {0, 115889, 6140, Maker::epsg}, // NAD83(CSRS)
    {101, 92917, 1195, Maker::epsg}, // NAD83(CSRS) 2002
    {101, 18807, 1196, Maker::epsg}, // NAD83(CSRS) 2005
    {0, 119001, 1192, Maker::epsg}, // NAD83(CSRS96)
    {0, 119032, 1193, Maker::epsg}, // NAD83(CSRS98)
    {0, 116916, 1192, Maker::epsg}, // NAD83(CSRS)v1
    {0, 116923, 1193, Maker::epsg}, // NAD83(CSRS)v2
    {0, 117430, 1194, Maker::epsg}, // NAD83(CSRS)v3
    {0, 117818, 1195, Maker::epsg}, // NAD83(CSRS)v4
    {0, 118156, 1196, Maker::epsg}, // NAD83(CSRS)v5
    {0, 118163, 1197, Maker::epsg}, // NAD83(CSRS)v6
    {0, 118643, 1198, Maker::epsg}, // NAD83(CSRS)v7
    {0, 119299, 1211, Maker::epsg}, // NAD83(FBN)
    {0, 119314, 6152, Maker::epsg}, // NAD83(HARN)
    {0, 119306, 1212, Maker::epsg}, // NAD83(HARN Corrected)
    {0, 100646, 6152, Maker::epsg}, // NAD83 (High Accuracy Regional Network)
    {0, 100672, 6152, Maker::epsg}, // NAD83 (High Precision Geodetic Network)
    {0, 124477, 6152, Maker::epsg}, // NAD83(HPGN)
    {0, 124484, 1118, Maker::epsg}, // NAD83(MA11)
    {0, 124531, 1221, Maker::epsg}, // NAD83(MARP00)
    {0, 128981, 6269, Maker::epsg}, // NAD83(Original)
    {0, 128991, 1117, Maker::epsg}, // NAD83(PA11)
    {0, 129120, 1249, Maker::epsg}, // NAD83(PACP00)
    {0, 130019, 6902, Maker::epsg}, // NDG (Paris)
    {0, 135770, 6199, Maker::epsg}, // New Egyptian
    {0, 130173, 6318, Maker::epsg}, // NGN
    {0, 139391, 1192, Maker::esri}, // North_American_Datum_of_1983_(CSRS96)
    {158, 1567, 1193, Maker::esri}, // North_American_Datum_of_1983_(CSRS)_version_2
    {158, 1593, 1194, Maker::esri}, // North_American_Datum_of_1983_(CSRS)_version_3
    {158, 177, 1195, Maker::esri}, // North_American_Datum_of_1983_(CSRS)_version_4
    {158, 201, 1196, Maker::esri}, // North_American_Datum_of_1983_(CSRS)_version_5
    {158, 2749, 1197, Maker::esri}, // North_American_Datum_of_1983_(CSRS)_version_6
    {158, 2364, 1198, Maker::esri}, // North_American_Datum_of_1983_(CSRS)_version_7
    {0, 142054, 6181, Maker::epsg}, // Nouvelle Triangulation du Luxembourg
    {0, 130715, 6275, Maker::epsg}, // NTF
    {0, 131105, 6181, Maker::epsg}, // NTL
    {0, 131217, 6167, Maker::epsg}, // NZGD2000
    {0, 233134, 6272, Maker::proj}, // nzgd49
    {0, 142931, 6182, Maker::epsg}, // Observatario Flores
    {0, 142963, 6182, Maker::epsg}, // Observatorio 1966
    {0, 142976, 6182, Maker::epsg}, // Observatorio Meteorologico 1939
    {0, 142423, 6281, Maker::epsg}, // OID
    {0, 143553, 6229, Maker::epsg}, // Old Egyptian
    {0, 143668, 6281, Maker::epsg}, // Old Israeli Datum
    {0, 143882, 1147, Maker::esri}, // Oman_National_Geodetic_Datum_2014
    {0, 143907, 1263, Maker::esri}, // Oman_National_Geodetic_Datum_2017
    {0, 142461, 1147, Maker::epsg}, // ONGD14
    {0, 142561, 1263, Maker::epsg}, // ONGD17
    {0, 142680, 6277, Maker::epsg}, // OSGB 1936
    {0, 142700, 6277, Maker::epsg}, // OSGB36
    {0, 142728, 6278, Maker::epsg}, // OSGB70
    {0, 142671, 6279, Maker::epsg}, // OS(SN)80
    {0, 145872, 6613, Maker::epsg}, // P2 Exc
    {0, 145879, 6613, Maker::epsg}, // P2 Exc-T9
    {0, 147882, 6280, Maker::epsg}, // Padang
    {0, 148562, 1072, Maker::epsg}, // Panamá-Colón 1911
    {0, 149009, 1157, Maker::esri}, // Parametry_Zemli_1990.02
    {0, 149027, 1158, Maker::esri}, // Parametry_Zemli_1990.11
    {0, 145940, 6746, Maker::epsg}, // PD/83
    {0, 150451, 6637, Maker::epsg}, // Perroud 1950
    {0, 150047, 1286, Maker::esri}, // Pico_de_las_Nieves_1968
    {0, 150381, 6626, Maker::epsg}, // Piton des Neiges
    {0, 146294, 1286, Maker::epsg}, // PN68
    {0, 146351, 6728, Maker::epsg}, // PN84
    {0, 146408, 1076, Maker::epsg}, // PNG94
    {0, 35479, 6282, Maker::epsg}, // Pointe Noire
    {0, 150912, 6615, Maker::epsg}, // Porto Santo
    {0, 146565, 1062, Maker::epsg}, // POSGAR 2007
    {0, 146727, 6694, Maker::epsg}, // POSGAR 94
    {0, 146874, 6190, Maker::epsg}, // POSGAR 98
    {0, 151657, 6172, Maker::epsg}, // Posiciones Geodésicas Argentinas
    {188, 33467, 6694, Maker::epsg}, // Posiciones Geodésicas Argentinas 1994
    {188, 17194, 6190, Maker::epsg}, // Posiciones Geodésicas Argentinas 1998
    {188, 10830, 1062, Maker::epsg}, // Posiciones Geodésicas Argentinas 2007
    {0, 233234, 6314, Maker::proj}, // potsdam
    {0, 147132, 6683, Maker::epsg}, // PRS92
    {0, 147243, 6248, Maker::epsg}, // PSAD56
    {0, 147479, 6134, Maker::epsg}, // PSD93
    {0, 147508, 1041, Maker::epsg}, // PTRA08
    {0, 147678, 6740, Maker::epsg}, // PZ-90
    {0, 147684, 1157, Maker::epsg}, // PZ-90.02
    {0, 147693, 1158, Maker::epsg}, // PZ-90.11
    {0, 167027, 6614, Maker::epsg}, // QND95
    {0, 167609, 6160, Maker::epsg}, // Quini-Huao
    {0, 167619, 6160, Maker::epsg}, // Quiñi-Huao
    {0, 167639, 6745, Maker::epsg}, // RD/83
    {0, 167829, 1132, Maker::epsg}, // RDN2008
    {0, 172393, 1220, Maker::epsg}, // Rede Permanentes de Estaciones GNSS de Angola
    {211, 33449, 1042, Maker::epsg}, // Red Geodesica Nacional 1992
    {211, 17953, 1120, Maker::epsg}, // Red Geodesica Nacional 2008
    {0, 172347, 1304, Maker::esri}, // Red_Geodesica_Para_Mineria_en_Chile
    {0, 172314, 1069, Maker::epsg}, // Red Geodésica Básica Nacional de El Salvador
    {0, 168012, 1304, Maker::epsg}, // REDGEOMIN
    {0, 172448, 1220, Maker::esri}, // Reference_System_de_Angola_2013
    {0, 168130, 1035, Maker::epsg}, // REGCAN95
    {0, 178192, 6189, Maker::epsg}, // REGVEN
    {0, 168405, 1220, Maker::epsg}, // REPANGOL
    {0, 173109, 1073, Maker::esri}, // Reseau_Geodesique_des_Antilles_Francaises_2009
    {0, 172901, 1113, Maker::epsg}, // Reseau Geodesique des TAAF 2007
    {0, 173076, 1223, Maker::esri}, // Reseau_Geodesique_de_Wallis_et_Futuna_1996
    {0, 172471, 6171, Maker::epsg}, // Reseau Geodesique Francais 1993
    {0, 168414, 1073, Maker::epsg}, // RGAF09
    {0, 168515, 6171, Maker::epsg}, // RGF93 v1
    {0, 168700, 1312, Maker::epsg}, // RGF93 v2
    {0, 168894, 1313, Maker::epsg}, // RGF93 v2b
    {0, 169106, 6624, Maker::epsg}, // RGFG95
    {0, 169241, 1036, Maker::epsg}, // RGM04
    {0, 169324, 6749, Maker::epsg}, // RGNC
    {0, 169408, 6645, Maker::epsg}, // RGNC91
    {0, 169415, 6749, Maker::epsg}, // RGNC91-93
    {0, 169585, 6687, Maker::epsg}, // RGPF
    {0, 169690, 6627, Maker::epsg}, // RGR92
    {0, 169783, 1033, Maker::epsg}, // RGRDC 2005
    {0, 170141, 1038, Maker::epsg}, // RGSPM06
    {0, 170231, 1113, Maker::epsg}, // RGTAAF07
    {0, 170565, 1223, Maker::epsg}, // RGWF96
    {0, 173401, 6308, Maker::epsg}, // Rikets koordinatsystem 1938
    {0, 173601, 6265, Maker::epsg}, // Rome 1940
    {0, 173608, 6806, Maker::epsg}, // Rome 1940 (Rome)
    {0, 170644, 6309, Maker::epsg}, // ROU-USAMS
    {0, 170698, 1220, Maker::epsg}, // RSAO13
    {0, 170924, 6764, Maker::epsg}, // RSRGD2000
    {0, 171067, 6308, Maker::epsg}, // RT38
    {0, 171349, 6124, Maker::epsg}, // RT90
    {0, 47136, 6706, Maker::epsg}, // S-650 TL
    {0, 24490, 6291, Maker::epsg}, // SAD69
    {0, 183772, 6622, Maker::epsg}, // Sainte Anne
    {0, 183915, 6125, Maker::epsg}, // Samboja P2 exc T9
    {0, 184074, 6730, Maker::epsg}, // Santo (DOS)
    {0, 175811, 1320, Maker::epsg}, // SCM22-IRF
    {0, 66169, 6613, Maker::epsg}, // Segara
    {0, 66182, 6820, Maker::epsg}, // Segara (Jakarta)
    {0, 184935, 6616, Maker::epsg}, // Selvagem Grande 1938
    {0, 185122, 1214, Maker::esri}, // Serbian_Spatial_Reference_System_2000
    {0, 175864, 1174, Maker::epsg}, // SHGD2015
    {0, 185587, 6174, Maker::epsg}, // Sierra Leone Peninsular 1924
    {0, 175901, 6726, Maker::epsg}, // SIGD61
    {0, 176011, 6170, Maker::epsg}, // SIRGAS 1995
    {0, 176274, 6674, Maker::epsg}, // SIRGAS 2000
    {220, 92917, 1064, Maker::epsg}, // SIRGAS-Chile 2002
    {220, 6271, 1243, Maker::epsg}, // SIRGAS-Chile 2010
    {220, 73930, 1252, Maker::epsg}, // SIRGAS-Chile 2013
    {220, 37865, 1253, Maker::epsg}, // SIRGAS-Chile 2016
    {220, 177954, 1327, Maker::epsg}, // SIRGAS-Chile 2021
    {221, 233381, 1243, Maker::esri}, // SIRGAS-Chile_realization_2_epoch_2010
    {221, 233400, 1252, Maker::esri}, // SIRGAS-Chile_realization_3_epoch_2013
    {221, 233419, 1253, Maker::esri}, // SIRGAS-Chile_realization_4_epoch_2016
    {218, 176761, 1227, Maker::epsg}, // SIRGAS-CON DGF00P01
    {218, 176798, 1228, Maker::epsg}, // SIRGAS-CON DGF01P01
    {218, 176835, 1229, Maker::epsg}, // SIRGAS-CON DGF01P02
    {218, 176872, 1230, Maker::epsg}, // SIRGAS-CON DGF02P01
    {218, 176909, 1231, Maker::epsg}, // SIRGAS-CON DGF04P01
    {218, 176946, 1232, Maker::epsg}, // SIRGAS-CON DGF05P01
    {218, 176983, 1233, Maker::epsg}, // SIRGAS-CON DGF06P01
    {218, 177020, 1234, Maker::epsg}, // SIRGAS-CON DGF07P01
    {218, 177057, 1235, Maker::epsg}, // SIRGAS-CON DGF08P01
    {218, 177094, 1236, Maker::epsg}, // SIRGAS-CON SIR09P01
    {218, 177131, 1237, Maker::epsg}, // SIRGAS-CON SIR10P01
    {218, 177167, 1238, Maker::epsg}, // SIRGAS-CON SIR11P01
    {218, 177203, 1239, Maker::epsg}, // SIRGAS-CON SIR13P01
    {218, 177240, 1240, Maker::epsg}, // SIRGAS-CON SIR14P01
    {218, 177277, 1241, Maker::epsg}, // SIRGAS-CON SIR15P01
    {218, 177314, 1242, Maker::epsg}, // SIRGAS-CON SIR17P01
    {223, 176761, 1227, Maker::esri}, // SIRGAS_Continuously_Operating_Network_DGF00P01
    {223, 176798, 1228, Maker::esri}, // SIRGAS_Continuously_Operating_Network_DGF01P01
    {223, 176835, 1229, Maker::esri}, // SIRGAS_Continuously_Operating_Network_DGF01P02
    {223, 176872, 1230, Maker::esri}, // SIRGAS_Continuously_Operating_Network_DGF02P01
    {223, 176909, 1231, Maker::esri}, // SIRGAS_Continuously_Operating_Network_DGF04P01
    {223, 176946, 1232, Maker::esri}, // SIRGAS_Continuously_Operating_Network_DGF05P01
    {223, 176983, 1233, Maker::esri}, // SIRGAS_Continuously_Operating_Network_DGF06P01
    {223, 177020, 1234, Maker::esri}, // SIRGAS_Continuously_Operating_Network_DGF07P01
    {223, 177057, 1235, Maker::esri}, // SIRGAS_Continuously_Operating_Network_DGF08P01
    {223, 177094, 1236, Maker::esri}, // SIRGAS_Continuously_Operating_Network_SIR09P01
    {223, 177131, 1237, Maker::esri}, // SIRGAS_Continuously_Operating_Network_SIR10P01
    {223, 177167, 1238, Maker::esri}, // SIRGAS_Continuously_Operating_Network_SIR11P01
    {223, 177203, 1239, Maker::esri}, // SIRGAS_Continuously_Operating_Network_SIR13P01
    {223, 177240, 1240, Maker::esri}, // SIRGAS_Continuously_Operating_Network_SIR14P01
    {223, 177277, 1241, Maker::esri}, // SIRGAS_Continuously_Operating_Network_SIR15P01
    {223, 177314, 1242, Maker::esri}, // SIRGAS_Continuously_Operating_Network_SIR17P01
    {217, 10751, 1227, Maker::epsg}, // SIRGAS Multi-Year Solution 2000
    {217, 49592, 1228, Maker::epsg}, // SIRGAS Multi-Year Solution 2001
    {217, 1693, 1229, Maker::epsg}, // SIRGAS Multi-Year Solution 2001 extended
    {217, 92917, 1230, Maker::epsg}, // SIRGAS Multi-Year Solution 2002
    {217, 70506, 1231, Maker::epsg}, // SIRGAS Multi-Year Solution 2004
    {217, 18807, 1232, Maker::epsg}, // SIRGAS Multi-Year Solution 2005
    {217, 14457, 1233, Maker::epsg}, // SIRGAS Multi-Year Solution 2006
    {217, 10830, 1234, Maker::epsg}, // SIRGAS Multi-Year Solution 2007
    {217, 17953, 1235, Maker::epsg}, // SIRGAS Multi-Year Solution 2008
    {217, 28803, 1236, Maker::epsg}, // SIRGAS Multi-Year Solution 2009
    {217, 6271, 1237, Maker::epsg}, // SIRGAS Multi-Year Solution 2010
    {217, 31917, 1238, Maker::epsg}, // SIRGAS Multi-Year Solution 2011
    {217, 73930, 1239, Maker::epsg}, // SIRGAS Multi-Year Solution 2013
    {217, 4156, 1240, Maker::epsg}, // SIRGAS Multi-Year Solution 2014
    {217, 29158, 1241, Maker::epsg}, // SIRGAS Multi-Year Solution 2015
    {217, 82167, 1242, Maker::epsg}, // SIRGAS Multi-Year Solution 2017
    {0, 178185, 6189, Maker::epsg}, // SIRGAS-REGVEN
    {0, 185975, 6674, Maker::epsg}, // Sistema de Referencia Geocentrico para America del Sur 2000
    {0, 185918, 1067, Maker::epsg}, // Sistema Geodésico Nacional
    {0, 185852, 1293, Maker::esri}, // Sistem_Referensi_Geospasial_Indonesia_2013
    {0, 174979, 6156, Maker::epsg}, // S-JTSK
    {0, 175139, 1052, Maker::epsg}, // S-JTSK/05
    {0, 175149, 1055, Maker::epsg}, // S-JTSK/05 (Ferro)
    {0, 174986, 6818, Maker::epsg}, // S-JTSK (Ferro)
    {214, 175080, 1201, Maker::esri}, // S-JTSK_[JTSK03]
    {0, 178568, 1053, Maker::epsg}, // SLD99
    {0, 186340, 6765, Maker::epsg}, // Slovenia 1996
    {0, 5167, 6222, Maker::epsg}, // South Africa
    {0, 182674, 1214, Maker::epsg}, // SRB_ETRS89
    {0, 182720, 1034, Maker::epsg}, // SREF98
    {0, 182727, 1293, Maker::epsg}, // SRGI2013
    {0, 189614, 6710, Maker::epsg}, // St. Helena 1971
    {0, 190049, 1174, Maker::esri}, // St_Helena_Geodetic_Datum_2015
    {0, 190072, 1173, Maker::esri}, // St_Helena_Tritan
    {0, 189848, 6638, Maker::epsg}, // St. Pierre et Miquelon 1950
    {0, 183159, 1214, Maker::epsg}, // STRS00
    {0, 189974, 1189, Maker::esri}, // St._Stephen_(Ferro)
    {0, 191087, 6151, Maker::epsg}, // Swiss Terrestrial Reference Frame 1995 (CHTRF95)
    {233, 231324, 6156, Maker::epsg}, // Systém Jednotnej trigonometrickej siete katastrálnej
    {233, 231335, 6818, Maker::epsg}, // Systém Jednotnej trigonometrickej siete katastrálnej (Ferro)
    {233, 231352, 1201, Maker::epsg}, // Systém Jednotnej trigonometrickej siete katastrálnej [JTSK03]
    {234, 231372, 6156, Maker::epsg}, // Systém Jednotné trigonometrické sítě katastrální
    {234, 231400, 1052, Maker::epsg}, // Systém Jednotné trigonometrické sítě katastrální/05
    {234, 231414, 1055, Maker::epsg}, // Systém Jednotné trigonometrické sítě katastrální/05 (Ferro)
    {234, 231383, 6818, Maker::epsg}, // Systém Jednotné trigonometrické sítě katastrální (Ferro)
    {0, 53943, 6629, Maker::epsg}, // Tahaa
    {0, 54030, 6628, Maker::epsg}, // Tahiti
    {0, 193222, 6297, Maker::epsg}, // Tananarive
    {0, 193464, 1257, Maker::esri}, // Tapi_Aike
    {0, 191496, 6303, Maker::epsg}, // TC(1948)
    {0, 193690, 6127, Maker::epsg}, // Tete 1960
    {0, 191564, 1095, Maker::epsg}, // TGD2005
    {0, 194388, 6298, Maker::epsg}, // Timbalai 1968
    {0, 191712, 6300, Maker::epsg}, // TM75
    {0, 195194, 1048, Maker::epsg}, // Tokyo 1898
    {0, 195204, 6301, Maker::epsg}, // Tokyo 1918
    {0, 192411, 1266, Maker::esri}, // TPEN11_Intermediate_Reference_Frame
    {0, 192383, 1266, Maker::epsg}, // TPEN11-IRF
    {0, 192449, 1057, Maker::epsg}, // TUREF
    {0, 192773, 1025, Maker::epsg}, // TWD67
    {0, 192805, 1026, Maker::epsg}, // TWD97
    {0, 207471, 6639, Maker::epsg}, // Uvea SHOM 1978
    {0, 208081, 6748, Maker::epsg}, // Vanua Levu 1917
    {0, 207531, 6756, Maker::epsg}, // VN-2000
    {0, 209935, 6760, Maker::epsg}, // WGS 66
    {0, 209942, 6322, Maker::epsg}, // WGS 72
    {0, 224248, 6324, Maker::epsg}, // WGS 72BE
    {0, 220108, 6326, Maker::proj}, // WGS84
    {243, 213592, 1154, Maker::epsg}, // WGS 84 (G1150)
    {243, 213606, 1155, Maker::epsg}, // WGS 84 (G1674)
    {243, 213621, 1156, Maker::epsg}, // WGS 84 (G1762)
    {243, 213636, 1309, Maker::epsg}, // WGS 84 (G2139)
    {243, 213651, 1152, Maker::epsg}, // WGS 84 (G730)
    {243, 213665, 1153, Maker::epsg}, // WGS 84 (G873)
    {243, 213679, 1166, Maker::epsg}, // WGS 84 (Transit)
    {243, 195637, 1173, Maker::epsg}, // WGS 84 Tritan St. Helena
    {251, 213592, 1154, Maker::esri}, // World_Geodetic_System_1984_(G1150)
    {251, 213606, 1155, Maker::esri}, // World_Geodetic_System_1984_(G1674)
    {251, 213621, 1156, Maker::esri}, // World_Geodetic_System_1984_(G1762)
    {251, 213651, 1152, Maker::esri}, // World_Geodetic_System_1984_(G730)
    {251, 213665, 1153, Maker::esri}, // World_Geodetic_System_1984_(G873)
    {251, 213679, 1166, Maker::esri}, // World_Geodetic_System_1984_(Transit)
    {0, 229539, 6163, Maker::epsg}, // YNGN96
};
// clang-format on

} // namespace ZrProj::systems::rows
