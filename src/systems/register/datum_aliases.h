// Other names of datums, by name.
//
// Made by src/systems/make_register.py from the EPSG Geodetic Parameter Dataset v10.076 of 2022-08-31, which is IOGP's, as
// proj-data carries it, under the terms of use at https://epsg.org/terms-of-use.html. Other makers' names are of ArcGIS Pro 3.0
// of 2022-07-09 and of PROJ 9.1.1.
#pragma once

#include "systems/register/rows.h"

namespace ZrProj::systems::rows {

// clang-format off
inline constexpr AliasRow datumAliases[] = {
    {0, 865, 6620, Maker::epsg}, // 12th Parallel traverse
    {0, 1898, 6300, Maker::epsg}, // 1975 Mapping Adjustment
    {0, 2779, 6179, Maker::epsg}, // 42/58
    {0, 2785, 6178, Maker::epsg}, // 42/83
    {0, 4235, 6176, Maker::epsg}, // AAD98
    {0, 5429, 1273, Maker::esri}, // AbInvA96_2020_Intermediate_Reference_Frame
    {0, 5375, 1273, Maker::epsg}, // AbInvA96_2020-IRF
    {0, 24838, 6202, Maker::epsg}, // AGD66
    {0, 25236, 6203, Maker::epsg}, // AGD84
    {0, 7109, 6204, Maker::epsg}, // Ain el Abd
    {0, 4848, 6191, Maker::epsg}, // ALB86
    {0, 4854, 6710, Maker::epsg}, // ASTRO DOS 71/4
    {0, 4873, 6901, Maker::epsg}, // ATF (Paris)
    {0, 4924, 1291, Maker::epsg}, // ATRF2014
    {0, 4951, 6122, Maker::epsg}, // ATS77
    {0, 27138, 1291, Maker::esri}, // Australian_Terrestrial_Reference_Frame_2014
    {0, 27697, 6183, Maker::epsg}, // Azores Central 1948
    {0, 27752, 6665, Maker::epsg}, // Azores Central 1995
    {0, 27863, 6182, Maker::epsg}, // Azores Occidental 1939
    {0, 27955, 6184, Maker::epsg}, // Azores Oriental 1940
    {0, 28012, 6664, Maker::epsg}, // Azores Oriental 1995
    {0, 29853, 1072, Maker::epsg}, // Balboa
    {0, 30349, 6701, Maker::epsg}, // Bas Congo 1955
    {0, 28618, 6215, Maker::epsg}, // BD50
    {0, 28623, 6809, Maker::epsg}, // BD50 (Brussels)
    {0, 28674, 6313, Maker::epsg}, // BD72
    {0, 28729, 6762, Maker::epsg}, // BDA2000
    {0, 276559, 6215, Maker::epsg}, // Belge 1950
    {0, 276624, 6313, Maker::epsg}, // Belge 1972
    {0, 34183, 6714, Maker::epsg}, // Bellevue (IGN)
    {0, 28774, 1167, Maker::epsg}, // BGS2005
    {0, 35634, 6201, Maker::epsg}, // Blue Nile 1958
    {0, 35956, 6218, Maker::epsg}, // Bogota
    {0, 36199, 6298, Maker::epsg}, // Borneo Triangulation of 1968
    {0, 29662, 6298, Maker::epsg}, // BT68
    {0, 38309, 1167, Maker::esri}, // Bulgaria_Geodetic_System_2005
    {0, 42572, 6220, Maker::epsg}, // Camacupa
    {17, 42715, 1217, Maker::esri}, // Camacupa_2015
    {0, 213500, 6609, Maker::epsg}, // CGQ77
    {0, 41129, 1112, Maker::epsg}, // CGRS93
    {0, 41354, 6151, Maker::epsg}, // CHTRS95
    {0, 41403, 6673, Maker::epsg}, // CI1979
    {0, 41444, 1100, Maker::epsg}, // CIGD11
    {0, 54357, 6225, Maker::epsg}, // Corrego Alegre
    {0, 41895, 1065, Maker::epsg}, // CR05
    {0, 41914, 1225, Maker::epsg}, // CR14
    {0, 41949, 6623, Maker::epsg}, // CSG67
    {0, 55889, 1031, Maker::epsg}, // D48
    {0, 55904, 6765, Maker::epsg}, // D96
    {27, 5564, 6143, Maker::esri}, // D_Abidjan_1987
    {27, 5650, 6168, Maker::esri}, // D_Accra
    {27, 5810, 1135, Maker::esri}, // D_Aden_1925
    {27, 5820, 6201, Maker::esri}, // D_Adindan
    {27, 5966, 6205, Maker::esri}, // D_Afgooye
    {27, 7102, 6206, Maker::esri}, // D_Agadez
    {27, 7320, 6204, Maker::esri}, // D_Ain_el_Abd_1970
    {27, 7412, 6001, Maker::esri}, // D_Airy_1830
    {27, 7422, 6002, Maker::esri}, // D_Airy_Modified
    {27, 8108, 6191, Maker::esri}, // D_Albanian_1987
    {27, 8812, 6169, Maker::esri}, // D_American_Samoa_1962
    {27, 8832, 6289, Maker::esri}, // D_Amersfoort
    {27, 8939, 6196, Maker::esri}, // D_Ammassalik_1958
    {27, 9541, 6600, Maker::esri}, // D_Anguilla_1957
    {27, 9594, 6708, Maker::esri}, // D_Anna_1_1965
    {27, 15197, 6601, Maker::esri}, // D_Antigua_1943
    {27, 36420, 6208, Maker::esri}, // D_Aratu
    {27, 15663, 6209, Maker::esri}, // D_Arc_1950
    {27, 15738, 6210, Maker::esri}, // D_Arc_1960
    {27, 21837, 6712, Maker::esri}, // D_Ascension_Island_1958
    {27, 24335, 6711, Maker::esri}, // D_Astro_1952
    {27, 4869, 6901, Maker::esri}, // D_ATF
    {27, 5169, 6122, Maker::esri}, // D_ATS_1977
    {27, 26403, 6003, Maker::esri}, // D_Australian
    {27, 26947, 6202, Maker::esri}, // D_Australian_1966
    {27, 26963, 6203, Maker::esri}, // D_Australian_1984
    {27, 26997, 6176, Maker::esri}, // D_Australian_Antarctic_1998
    {27, 27668, 6713, Maker::esri}, // D_Ayabelle
    {27, 28233, 6183, Maker::esri}, // D_Azores_Central_Islands_1948
    {27, 28261, 6665, Maker::esri}, // D_Azores_Central_Islands_1995
    {27, 28348, 6182, Maker::esri}, // D_Azores_Occidental_Islands_1939
    {27, 28489, 6184, Maker::esri}, // D_Azores_Oriental_Islands_1940
    {27, 28518, 6664, Maker::esri}, // D_Azores_Oriental_Islands_1995
    {27, 30115, 6212, Maker::esri}, // D_Barbados_1938
    {27, 30364, 6211, Maker::esri}, // D_Batavia
    {27, 30750, 6709, Maker::esri}, // D_Beacon_E_1945
    {27, 30764, 6213, Maker::esri}, // D_Beduaram
    {27, 33844, 6214, Maker::esri}, // D_Beijing_1954
    {27, 33984, 1137, Maker::esri}, // D_Bekaa_Valley_1920
    {27, 34002, 6215, Maker::esri}, // D_Belge_1950
    {27, 34033, 6313, Maker::esri}, // D_Belge_1972
    {27, 34198, 6714, Maker::esri}, // D_Bellevue_IGN
    {27, 34349, 6216, Maker::esri}, // D_Bermuda_1957
    {27, 34388, 6762, Maker::esri}, // D_Bermuda_2000
    {27, 34516, 6306, Maker::esri}, // D_Bern_1938
    {27, 34590, 6004, Maker::esri}, // D_Bessel_1841
    {27, 34602, 6005, Maker::esri}, // D_Bessel_Modified
    {27, 34618, 6006, Maker::esri}, // D_Bessel_Namibia
    {27, 35205, 1058, Maker::esri}, // D_Bhutan_National_Geodetic_Datum
    {27, 69802, 1136, Maker::esri}, // D_Bioko
    {27, 35501, 6165, Maker::esri}, // D_Bissau
    {27, 35956, 6218, Maker::esri}, // D_Bogota
    {0, 55923, 1081, Maker::epsg}, // DB_REF
    {27, 38162, 6219, Maker::esri}, // D_Bukit_Rimpah
    {27, 42121, 1037, Maker::esri}, // D_Cadastre_1997
    {27, 42572, 6220, Maker::esri}, // D_Camacupa
    {27, 42828, 6715, Maker::esri}, // D_Camp_Area
    {27, 43191, 6221, Maker::esri}, // D_Campo_Inchauspe
    {27, 45957, 6716, Maker::esri}, // D_Canton_1966
    {27, 46054, 6222, Maker::esri}, // D_Cape
    {27, 46265, 6717, Maker::esri}, // D_Cape_Canaveral
    {27, 46645, 6223, Maker::esri}, // D_Carthage
    {27, 47085, 1100, Maker::esri}, // D_Cayman_Islands_Geodetic_Datum_2011
    {27, 41231, 6149, Maker::esri}, // D_CH1903
    {27, 41283, 6150, Maker::esri}, // D_CH1903+
    {27, 47611, 6672, Maker::esri}, // D_Chatham_Island_1971
    {27, 47683, 6673, Maker::esri}, // D_Chatham_Islands_1979
    {27, 49097, 1043, Maker::esri}, // D_China_2000
    {27, 49277, 6160, Maker::esri}, // D_Chos_Malal_1914
    {27, 49429, 6224, Maker::esri}, // D_Chua
    {28, 49690, 6007, Maker::esri}, // D_Clarke_1858
    {28, 49702, 6008, Maker::esri}, // D_Clarke_1866
    {28, 1064, 6009, Maker::esri}, // D_Clarke_1866_Michigan
    {28, 49735, 6034, Maker::esri}, // D_Clarke_1880
    {28, 1078, 6013, Maker::esri}, // D_Clarke_1880_Arc
    {28, 1087, 6010, Maker::esri}, // D_Clarke_1880_Benoit
    {28, 1099, 6011, Maker::esri}, // D_Clarke_1880_IGN
    {28, 1121, 6012, Maker::esri}, // D_Clarke_1880_RGS
    {28, 1130, 6014, Maker::esri}, // D_Clarke_1880_SGA
    {27, 52151, 6632, Maker::esri}, // D_Combani_1950
    {27, 52289, 6315, Maker::esri}, // D_Conakry_1905
    {27, 54725, 6225, Maker::esri}, // D_Corrego_Alegre
    {27, 54756, 1074, Maker::esri}, // D_Corrego_Alegre_1961
    {27, 55021, 1065, Maker::esri}, // D_Costa_Rica_2005
    {27, 55236, 6226, Maker::esri}, // D_Cote_d_Ivoire
    {27, 55581, 6761, Maker::esri}, // D_Croatian_Terrestrial_Reference_System
    {27, 41997, 6623, Maker::esri}, // D_CSG_1967
    {27, 55843, 1112, Maker::esri}, // D_Cyprus_Geodetic_Reference_System_1993
    {27, 58562, 6155, Maker::esri}, // D_Dabola_1981
    {27, 58823, 6274, Maker::esri}, // D_Datum_73
    {27, 58888, 6755, Maker::esri}, // D_Datum_Geodesi_Nasional_1995
    {27, 59235, 6316, Maker::esri}, // D_Dealul_Piscului_1933
    {27, 59256, 6317, Maker::esri}, // D_Dealul_Piscului_1970
    {27, 59377, 6736, Maker::esri}, // D_Deception_Island
    {27, 59543, 6227, Maker::esri}, // D_Deir_ez_Zor
    {27, 60028, 1081, Maker::esri}, // D_Deutsche_Bahn_Reference_System
    {27, 60087, 6314, Maker::esri}, // D_Deutsches_Hauptdreiecksnetz
    {27, 60268, 6602, Maker::esri}, // D_Dominica_1945
    {27, 57853, 6710, Maker::esri}, // D_DOS_71_4
    {27, 60379, 6228, Maker::esri}, // D_Douala
    {27, 60466, 6192, Maker::esri}, // D_Douala_1948
    {0, 59129, 6316, Maker::epsg}, // Dealul Piscului 1933
    {27, 68876, 6719, Maker::esri}, // D_Easter_Island_1967
    {27, 69421, 6229, Maker::esri}, // D_Egypt_1907
    {27, 69432, 6199, Maker::esri}, // D_Egypt_1930
    {27, 69486, 6706, Maker::esri}, // D_Egypt_Gulf_of_Suez_S-650_TL
    {27, 69888, 6133, Maker::esri}, // D_Estonia_1992
    {27, 69901, 6180, Maker::esri}, // D_Estonia_1997
    {27, 65478, 1178, Maker::esri}, // D_ETRF_1989
    {27, 68477, 6258, Maker::esri}, // D_ETRS_1989
    {27, 74370, 6230, Maker::esri}, // D_European_1950
    {27, 74384, 6154, Maker::esri}, // D_European_1950_ED77
    {27, 74403, 6668, Maker::esri}, // D_European_1979
    {27, 74417, 6231, Maker::esri}, // D_European_1987
    {27, 74431, 6159, Maker::esri}, // D_European_Libyan_1979
    {27, 74722, 6042, Maker::esri}, // D_Everest_1830
    {27, 74735, 6015, Maker::esri}, // D_Everest_Adj_1937
    {27, 74752, 6044, Maker::esri}, // D_Everest_Def_1962
    {27, 74769, 6016, Maker::esri}, // D_Everest_Def_1967
    {27, 74786, 6045, Maker::esri}, // D_Everest_Def_1975
    {27, 74803, 6018, Maker::esri}, // D_Everest_Modified
    {27, 75157, 6232, Maker::esri}, // D_Fahud
    {27, 75535, 6741, Maker::esri}, // D_Faroe_Datum_1954
    {27, 75597, 6688, Maker::esri}, // D_Fatu_Iva_1972
    {27, 75000, 6132, Maker::esri}, // D_FD_1958
    {27, 75747, 1078, Maker::esri}, // D_Fehmarnbelt_Datum_2010
    {27, 76180, 6721, Maker::esri}, // D_Fiji_1956
    {27, 76235, 6720, Maker::esri}, // D_Fiji_1986
    {27, 75504, 6753, Maker::esri}, // D_fk89
    {27, 78807, 6625, Maker::esri}, // D_Fort_Desaix
    {27, 78839, 6621, Maker::esri}, // D_Fort_Marigot
    {27, 93490, 1139, Maker::esri}, // D_Gambia
    {27, 93523, 6684, Maker::esri}, // D_Gan_1970
    {27, 93557, 6233, Maker::esri}, // D_Gandajika_1970
    {27, 93572, 6197, Maker::esri}, // D_Garoua
    {27, 93572, 6234, Maker::esri}, // D_Garoua
    {27, 82929, 6283, Maker::esri}, // D_GDA_1994
    {27, 82967, 1056, Maker::esri}, // D_GDBD2009
    {27, 83303, 6742, Maker::esri}, // D_GDM_2000
    {27, 83435, 6031, Maker::esri}, // D_GEM_10C
    {27, 83476, 6121, Maker::esri}, // D_GGRS_1987
    {0, 56315, 6755, Maker::epsg}, // DGN95
    {27, 95497, 6723, Maker::esri}, // D_Grand_Cayman_1959
    {27, 95578, 6646, Maker::esri}, // D_Grand_Comoros
    {27, 95776, 6120, Maker::esri}, // D_Greek
    {27, 96977, 6747, Maker::esri}, // D_Greenland_1996
    {27, 97112, 6603, Maker::esri}, // D_Grenada_1953
    {27, 84440, 6036, Maker::esri}, // D_GRS_1967
    {27, 84468, 6019, Maker::esri}, // D_GRS_1980
    {27, 97456, 6675, Maker::esri}, // D_Guam_1963
    {27, 97781, 6682, Maker::esri}, // D_Gulshan_303
    {27, 97900, 6613, Maker::esri}, // D_Gunung_Segara
    {27, 98124, 6235, Maker::esri}, // D_Guyane_Francaise
    {27, 98862, 6147, Maker::esri}, // D_Hanoi_1972
    {27, 99394, 6148, Maker::esri}, // D_Hartebeesthoek_1994
    {0, 57222, 6314, Maker::epsg}, // DHDN
    {27, 99904, 6660, Maker::esri}, // D_Helle_1954
    {27, 99954, 6020, Maker::esri}, // D_Helmert_1906
    {27, 100002, 6255, Maker::esri}, // D_Herat_North
    {27, 100144, 6254, Maker::esri}, // D_Hito_XVIII_1963
    {27, 100337, 6658, Maker::esri}, // D_Hjorsey_1955
    {27, 100574, 6738, Maker::esri}, // D_Hong_Kong_1963
    {27, 100589, 6739, Maker::esri}, // D_Hong_Kong_1963_67
    {27, 100634, 6611, Maker::esri}, // D_Hong_Kong_1980
    {27, 100879, 6054, Maker::esri}, // D_Hughes_1980
    {27, 100933, 6237, Maker::esri}, // D_Hungarian_1972
    {27, 100990, 1024, Maker::esri}, // D_Hungarian_Datum_1909
    {27, 100830, 6236, Maker::esri}, // D_Hu_Tzu_Shan
    {27, 102287, 6697, Maker::esri}, // D_IGC_1962_Arc_of_the_6th_Parallel_South
    {27, 102452, 6670, Maker::esri}, // D_IGM_1995
    {27, 102741, 6641, Maker::esri}, // D_IGN53_Mare
    {27, 102834, 6633, Maker::esri}, // D_IGN56_Lifou
    {27, 102908, 6689, Maker::esri}, // D_IGN63_Hiva_Oa
    {27, 103098, 6634, Maker::esri}, // D_IGN72_Grande_Terre
    {27, 103144, 6630, Maker::esri}, // D_IGN72_Nuku_Hiva
    {27, 103196, 6700, Maker::esri}, // D_IGN_Astro_1960
    {27, 107071, 6239, Maker::esri}, // D_Indian_1954
    {27, 107083, 6131, Maker::esri}, // D_Indian_1960
    {27, 373477, 6240, Maker::esri}, // D_Indian_1975
    {27, 109850, 6021, Maker::esri}, // D_Indonesian
    {27, 109958, 6238, Maker::esri}, // D_Indonesian_1974
    {27, 110063, 6701, Maker::esri}, // D_Institut_Geographique_du_Congo_Belge_1955
    {27, 110782, 6022, Maker::esri}, // D_International_1924
    {27, 111928, 1029, Maker::esri}, // D_Iraqi_Geospatial_Reference_System
    {27, 111868, 6667, Maker::esri}, // D_Iraq_Kuwait_Boundary_1992
    {27, 103644, 6173, Maker::esri}, // D_IRENET95
    {27, 112138, 6659, Maker::esri}, // D_Islands_Network_1993
    {27, 112159, 1060, Maker::esri}, // D_Islands_Network_2004
    {27, 112180, 6141, Maker::esri}, // D_Israel
    {27, 104132, 6722, Maker::esri}, // D_ISTS_061_1968
    {27, 104146, 6724, Maker::esri}, // D_ISTS_073_1969
    {29, 110166, 6647, Maker::esri}, // D_ITRF_1988
    {29, 65483, 6648, Maker::esri}, // D_ITRF_1989
    {29, 73935, 6649, Maker::esri}, // D_ITRF_1990
    {29, 73977, 6650, Maker::esri}, // D_ITRF_1991
    {29, 49370, 6651, Maker::esri}, // D_ITRF_1992
    {29, 41183, 6652, Maker::esri}, // D_ITRF_1993
    {29, 49397, 6653, Maker::esri}, // D_ITRF_1994
    {29, 74145, 6654, Maker::esri}, // D_ITRF_1996
    {29, 30219, 6655, Maker::esri}, // D_ITRF_1997
    {29, 15286, 6656, Maker::esri}, // D_ITRF_2000
    {29, 28777, 6896, Maker::esri}, // D_ITRF_2005
    {29, 27631, 1061, Maker::esri}, // D_ITRF_2008
    {27, 115260, 6241, Maker::esri}, // D_Jamaica_1875
    {27, 115295, 6242, Maker::esri}, // D_Jamaica_1969
    {27, 115308, 6758, Maker::esri}, // D_Jamaica_2001
    {27, 114872, 6612, Maker::esri}, // D_JGD_2000
    {27, 114921, 1128, Maker::esri}, // D_JGD_2011
    {27, 117095, 6725, Maker::esri}, // D_Johnston_Island_1961
    {27, 117190, 6679, Maker::esri}, // D_Jouik_1961
    {27, 118645, 6243, Maker::esri}, // D_Kalianpur_1880
    {27, 118687, 6144, Maker::esri}, // D_Kalianpur_1937
    {27, 118702, 6145, Maker::esri}, // D_Kalianpur_1962
    {27, 118717, 6146, Maker::esri}, // D_Kalianpur_1975
    {27, 118784, 6244, Maker::esri}, // D_Kandawala
    {27, 120139, 6743, Maker::esri}, // D_Karbala_1979_Polservice
    {27, 120384, 6696, Maker::esri}, // D_Kasai_1953
    {27, 120719, 6695, Maker::esri}, // D_Katanga_1955
    {27, 121342, 6631, Maker::esri}, // D_Kerguelen_Island_1949
    {27, 121342, 6698, Maker::esri}, // D_Kerguelen_Island_1949
    {27, 121394, 6245, Maker::esri}, // D_Kertau
    {27, 121877, 6751, Maker::esri}, // D_Kertau_RSO
    {27, 117252, 6123, Maker::esri}, // D_KKJ
    {27, 123192, 6737, Maker::esri}, // D_Korea_2000
    {27, 123789, 6162, Maker::esri}, // D_Korean_Datum_1985
    {27, 123807, 6166, Maker::esri}, // D_Korean_Datum_1995
    {27, 123890, 6198, Maker::esri}, // D_Kousseri
    {27, 124030, 6024, Maker::esri}, // D_Krasovsky_1940
    {27, 124093, 6735, Maker::esri}, // D_Kusaie_1951
    {27, 124276, 6246, Maker::esri}, // D_Kuwait_Oil_Company
    {27, 124295, 6319, Maker::esri}, // D_Kuwait_Utility
    {27, 124470, 1160, Maker::esri}, // D_Kyrgyz_Republic_2006
    {27, 125692, 6247, Maker::esri}, // D_La_Canoa
    {27, 325690, 6249, Maker::esri}, // D_Lake
    {27, 126158, 6677, Maker::esri}, // D_Lao_1993
    {27, 126176, 6678, Maker::esri}, // D_Lao_National_Datum_1997
    {27, 126728, 6661, Maker::esri}, // D_Latvia_1992
    {27, 126895, 6250, Maker::esri}, // D_Leigon
    {27, 126834, 6699, Maker::esri}, // D_Le_Pouce_1934
    {27, 127000, 6251, Maker::esri}, // D_Liberia_1964
    {27, 127527, 6754, Maker::esri}, // D_Libyan_Geodetic_Datum_2006
    {27, 128154, 6207, Maker::esri}, // D_Lisbon
    {27, 128130, 6666, Maker::esri}, // D_Lisbon_1890
    {27, 128271, 6126, Maker::esri}, // D_Lithuania_1994
    {27, 128373, 6726, Maker::esri}, // D_Little_Cayman_1961
    {27, 129600, 6142, Maker::esri}, // D_Locodjo_1965
    {27, 129700, 6288, Maker::esri}, // D_Loma_Quintana
    {27, 129714, 6252, Maker::esri}, // D_Lome
    {27, 130122, 6181, Maker::esri}, // D_Luxembourg_Reference_Frame
    {27, 130324, 6253, Maker::esri}, // D_Luzon_1911
    {27, 130514, 1208, Maker::esri}, // D_MACAO_2008
    {27, 134852, 6185, Maker::esri}, // D_Madeira_1936
    {27, 134996, 6903, Maker::esri}, // D_Madrid_1870
    {27, 135052, 6128, Maker::esri}, // D_Madzansua
    {27, 130525, 6686, Maker::esri}, // D_MAGNA
    {27, 135092, 6256, Maker::esri}, // D_Mahe_1971
    {27, 135567, 6257, Maker::esri}, // D_Makassar
    {27, 136388, 6259, Maker::esri}, // D_Malongo_1987
    {27, 136491, 6260, Maker::esri}, // D_Manoca
    {27, 136537, 6193, Maker::esri}, // D_Manoca_1962
    {27, 137365, 1063, Maker::esri}, // D_Marco_Geodesico_Nacional
    {27, 137976, 6262, Maker::esri}, // D_Massawa
    {27, 138064, 6692, Maker::esri}, // D_Maupiti_1983
    {27, 138411, 6702, Maker::esri}, // D_Mauritania_1999
    {27, 138795, 6261, Maker::esri}, // D_Merchich
    {27, 139021, 1042, Maker::esri}, // D_Mexican_Datum_of_1993
    {27, 139698, 1120, Maker::esri}, // D_Mexico_ITRF2008
    {27, 132112, 6312, Maker::esri}, // D_MGI
    {27, 133146, 1031, Maker::esri}, // D_MGI_1901
    {27, 139805, 6264, Maker::esri}, // D_Mhast
    {27, 139939, 6703, Maker::esri}, // D_Mhast_1951
    {27, 139950, 6705, Maker::esri}, // D_Mhast_Offshore
    {27, 139993, 6704, Maker::esri}, // D_Mhast_Onshore
    {27, 140768, 6727, Maker::esri}, // D_Midway_1961
    {27, 141050, 6263, Maker::esri}, // D_Minna
    {27, 133501, 1032, Maker::esri}, // D_MOLDREF99
    {27, 143521, 6265, Maker::esri}, // D_Monte_Mario
    {27, 143726, 6604, Maker::esri}, // D_Montserrat_1958
    {27, 143817, 6691, Maker::esri}, // D_Moorea_1987
    {27, 133642, 6639, Maker::esri}, // D_MOP78
    {27, 143992, 6157, Maker::esri}, // D_Mount_Dillon
    {27, 144346, 6130, Maker::esri}, // D_Moznet
    {27, 144495, 6266, Maker::esri}, // D_Mporaloko
    {27, 213491, 6609, Maker::esri}, // D_NAD_1927_CGQ77
    {27, 213573, 6608, Maker::esri}, // D_NAD_1927_Definition_1976
    {30, 46999, 1116, Maker::esri}, // D_NAD_1983_2011
    {30, 41631, 1133, Maker::esri}, // D_NAD_1983_CORS96
    {30, 130454, 1118, Maker::esri}, // D_NAD_1983_MA11
    {30, 132048, 1221, Maker::esri}, // D_NAD_1983_MARP00
    {30, 215577, 6759, Maker::esri}, // D_NAD_1983_NSRS2007
    {30, 240275, 1117, Maker::esri}, // D_NAD_1983_PA11
    {30, 240331, 1249, Maker::esri}, // D_NAD_1983_PACP00
    {27, 218550, 6744, Maker::esri}, // D_Nahrwan_1934
    {27, 218609, 6270, Maker::esri}, // D_Nahrwan_1967
    {27, 218720, 6693, Maker::esri}, // D_Nakhl-e_Ghanem
    {27, 219087, 6158, Maker::esri}, // D_Naparima_1955
    {27, 219128, 6271, Maker::esri}, // D_Naparima_1972
    {27, 214901, 6644, Maker::esri}, // D_NEA74_Noumea
    {27, 219453, 1111, Maker::esri}, // D_Nepal_Nagarkot
    {27, 225393, 1045, Maker::esri}, // D_New_Beijing
    {27, 226021, 6272, Maker::esri}, // D_New_Zealand_1949
    {27, 214979, 6318, Maker::esri}, // D_NGN
    {27, 215322, 6273, Maker::esri}, // D_NGO_1948
    {27, 226849, 6902, Maker::esri}, // D_Nord_de_Guerre
    {27, 226778, 6307, Maker::esri}, // D_Nord_Sahara_1959
    {31, 228651, 6267, Maker::esri}, // D_North_American_1927
    {31, 133637, 6269, Maker::esri}, // D_North_American_1983
    {31, 1958, 6140, Maker::esri}, // D_North_American_1983_CSRS
    {31, 2051, 6152, Maker::esri}, // D_North_American_1983_HARN
    {31, 1069, 6268, Maker::esri}, // D_North_American_Michigan
    {27, 233770, 6680, Maker::esri}, // D_Nouakchott_1965
    {27, 215596, 6276, Maker::esri}, // D_NSWC_9Z_2
    {27, 215618, 6275, Maker::esri}, // D_NTF
    {27, 216142, 6025, Maker::esri}, // D_NWL_9D
    {27, 218239, 6167, Maker::esri}, // D_NZGD_2000
    {27, 234920, 6129, Maker::esri}, // D_Observatario
    {27, 235463, 1070, Maker::esri}, // D_Ocotepeque_1935
    {27, 236113, 6135, Maker::esri}, // D_Old_Hawaiian
    {27, 234774, 6277, Maker::esri}, // D_OSGB_1936
    {27, 234784, 6278, Maker::esri}, // D_OSGB_1970_SN
    {27, 234839, 6188, Maker::esri}, // D_OSNI_1952
    {27, 234909, 6279, Maker::esri}, // D_OS_SN_1980
    {27, 234893, 6032, Maker::esri}, // D_OSU_86F
    {27, 234901, 6033, Maker::esri}, // D_OSU_91A
    {27, 243070, 6280, Maker::esri}, // D_Padang_1884
    {27, 243439, 6281, Maker::esri}, // D_Palestine_1923
    {27, 243638, 6161, Maker::esri}, // D_Pampa_del_Castillo
    {27, 243801, 1072, Maker::esri}, // D_Panama-Colon-1911
    {27, 244350, 1076, Maker::esri}, // D_Papua_New_Guinea_Geodetic_Datum_1994
    {27, 244387, 6740, Maker::esri}, // D_Parametrop_Zemp_1990
    {27, 240629, 6134, Maker::esri}, // D_PDO_1993
    {27, 245322, 1067, Maker::esri}, // D_Peru96
    {27, 245521, 6636, Maker::esri}, // D_Petrels_1972
    {27, 245632, 6683, Maker::esri}, // D_Philippine_Reference_System_1992
    {27, 246026, 6728, Maker::esri}, // D_Pico_de_Las_Nieves
    {27, 246452, 6729, Maker::esri}, // D_Pitcairn_1967
    {27, 246492, 6763, Maker::esri}, // D_Pitcairn_2006
    {27, 246580, 6027, Maker::esri}, // D_Plessis_1817
    {27, 246602, 6620, Maker::esri}, // D_Point_58
    {27, 246668, 6637, Maker::esri}, // D_Pointe_Geologie_Perroud_1950
    {27, 246697, 6282, Maker::esri}, // D_Pointe_Noire
    {27, 247515, 6615, Maker::esri}, // D_Porto_Santo_1936
    {27, 247562, 6663, Maker::esri}, // D_Porto_Santo_1995
    {27, 241107, 6172, Maker::esri}, // D_POSGAR
    {27, 241715, 6694, Maker::esri}, // D_POSGAR_1994
    {27, 241755, 6190, Maker::esri}, // D_POSGAR_1998
    {27, 241795, 1062, Maker::esri}, // D_POSGAR_2007
    {27, 248242, 6746, Maker::esri}, // D_Potsdam_1983
    {27, 296615, 1046, Maker::esri}, // D_Principe
    {27, 248565, 6248, Maker::esri}, // D_Provisional_S_American_1956
    {27, 242496, 1041, Maker::esri}, // D_PTRA08
    {27, 248778, 6139, Maker::esri}, // D_Puerto_Rico
    {27, 268164, 6284, Maker::esri}, // D_Pulkovo_1942
    {27, 268281, 6179, Maker::esri}, // D_Pulkovo_1942_Adj_1958
    {27, 268409, 6178, Maker::esri}, // D_Pulkovo_1942_Adj_1983
    {27, 268542, 6200, Maker::esri}, // D_Pulkovo_1995
    {27, 268791, 6285, Maker::esri}, // D_Qatar
    {27, 268933, 6286, Maker::esri}, // D_Qatar_1948
    {27, 268753, 6614, Maker::esri}, // D_QND_1995
    {27, 268977, 6287, Maker::esri}, // D_Qornoq
    {27, 269446, 6194, Maker::esri}, // D_Qornoq_1927
    {27, 275119, 6153, Maker::esri}, // D_Rassadiran
    {27, 275199, 6745, Maker::esri}, // D_Rauenberg_1983
    {27, 275745, 1035, Maker::esri}, // D_Red_Geodesica_de_Canarias_1995
    {27, 285142, 6189, Maker::esri}, // D_REGVEN
    {32, 374685, 6687, Maker::esri}, // D_Reseau_Geodesique_de_la_Polynesie_Francaise
    {32, 374711, 1033, Maker::esri}, // D_Reseau_Geodesique_de_la_RDC_2005
    {32, 374609, 1036, Maker::esri}, // D_Reseau_Geodesique_de_Mayotte_2004
    {32, 374625, 6749, Maker::esri}, // D_Reseau_Geodesique_de_Nouvelle_Caledonie_1991-93
    {32, 374844, 1113, Maker::esri}, // D_Reseau_Geodesique_des_Terres_Australes_et_Antarctiques_Francaises_2007
    {32, 374655, 1038, Maker::esri}, // D_Reseau_Geodesique_de_St_Pierre_et_Miquelon_2006
    {27, 276803, 1132, Maker::esri}, // D_Rete_Dinamica_Nazionale_2008
    {27, 276937, 6626, Maker::esri}, // D_Reunion_1947
    {27, 277019, 6657, Maker::esri}, // D_Reykjavik_1900
    {27, 271618, 6171, Maker::esri}, // D_RGF_1993
    {27, 271567, 6624, Maker::esri}, // D_RGFG_1995
    {27, 271918, 6645, Maker::esri}, // D_RGNC_1991
    {27, 272774, 6627, Maker::esri}, // D_RGR_1992
    {27, 277624, 6764, Maker::esri}, // D_Ross_Sea_Region_Geodetic_Datum_2000
    {27, 273535, 1047, Maker::esri}, // D_RRAF_1991
    {27, 274993, 6124, Maker::esri}, // D_RT_1990
    {0, 57862, 1058, Maker::epsg}, // DRUKREF 03
    {27, 296118, 6622, Maker::esri}, // D_Sainte_Anne
    {27, 296038, 6638, Maker::esri}, // D_Saint_Pierre_et_Miquelon_1950
    {27, 296280, 6125, Maker::esri}, // D_Samboja
    {27, 296566, 6730, Maker::esri}, // D_Santo_DOS_1965
    {27, 296667, 1044, Maker::esri}, // D_Sao_Tome
    {27, 296757, 6292, Maker::esri}, // D_Sapper_Hill_1943
    {27, 297215, 6293, Maker::esri}, // D_Schwarzeck
    {27, 297546, 6195, Maker::esri}, // D_Scoresbysund_1952
    {27, 297626, 6294, Maker::esri}, // D_Segora
    {27, 297723, 6616, Maker::esri}, // D_Selvagem_Grande_1938
    {27, 297895, 1034, Maker::esri}, // D_Serbian_Reference_Network_1998
    {27, 297964, 6295, Maker::esri}, // D_Serindung
    {27, 282011, 1066, Maker::esri}, // D_SGNP_MARCARIO_SOLIS
    {27, 298171, 1071, Maker::esri}, // D_Sibun_Gorge_1922
    {27, 298643, 6174, Maker::esri}, // D_Sierra_Leone_1924
    {27, 298733, 6175, Maker::esri}, // D_Sierra_Leone_1968
    {27, 41756, 6170, Maker::esri}, // D_SIRGAS
    {27, 285308, 6674, Maker::esri}, // D_SIRGAS_2000
    {27, 284451, 1064, Maker::esri}, // D_SIRGAS-Chile
    {27, 284451, 1254, Maker::esri}, // D_SIRGAS-Chile
    {27, 285438, 1069, Maker::esri}, // D_SIRGAS_ES2007.8
    {27, 285149, 1068, Maker::esri}, // D_SIRGAS-ROU98
    {27, 295891, 6156, Maker::esri}, // D_S_JTSK
    {27, 295924, 1052, Maker::esri}, // D_S_JTSK_05
    {27, 295934, 1055, Maker::esri}, // D_S_JTSK_05_Ferro
    {27, 299601, 6765, Maker::esri}, // D_Slovenia_Geodetic_Datum_1996
    {27, 299682, 6718, Maker::esri}, // D_Solomon_1968
    {27, 304721, 6291, Maker::esri}, // D_South_American_1969
    {27, 304721, 6618, Maker::esri}, // D_South_American_1969
    {27, 304741, 1075, Maker::esri}, // D_South_American_Datum_1969_96
    {27, 305145, 1138, Maker::esri}, // D_South_East_Island_1943
    {27, 305226, 6164, Maker::esri}, // D_South_Yemen
    {27, 247310, 6035, Maker::esri}, // D_Sphere
    {27, 305681, 6052, Maker::esri}, // D_Sphere_Clarke_1866_Authalic
    {27, 305709, 6047, Maker::esri}, // D_Sphere_GRS_1980_Authalic
    {27, 305734, 6053, Maker::esri}, // D_Sphere_International_1924_Authalic
    {27, 305810, 1053, Maker::esri}, // D_Sri_Lanka_Datum_1999
    {27, 295177, 6643, Maker::esri}, // D_ST71_Belep
    {27, 295258, 6642, Maker::esri}, // D_ST84_Ile_des_Pins
    {27, 295339, 6750, Maker::esri}, // D_ST87_Ouvea
    {27, 306691, 6138, Maker::esri}, // D_St_George_Island
    {27, 306815, 6605, Maker::esri}, // D_St_Kitts_1955
    {27, 306868, 6136, Maker::esri}, // D_St_Lawrence_Island
    {27, 306887, 6606, Maker::esri}, // D_St_Lucia_1955
    {27, 307220, 6308, Maker::esri}, // D_Stockholm_1938
    {27, 306971, 6137, Maker::esri}, // D_St_Paul_Island
    {27, 307247, 6028, Maker::esri}, // D_Struve_1860
    {27, 306986, 6607, Maker::esri}, // D_St_Vincent_1945
    {27, 6590, 6296, Maker::esri}, // D_Sudan
    {27, 295376, 6757, Maker::esri}, // D_SVY21
    {27, 295472, 6619, Maker::esri}, // D_SWEREF99
    {27, 308275, 6151, Maker::esri}, // D_Swiss_TRF_1995
    {27, 310057, 6629, Maker::esri}, // D_Tahaa_1954
    {27, 310154, 6628, Maker::esri}, // D_Tahiti_1952
    {27, 310185, 6690, Maker::esri}, // D_Tahiti_1979
    {27, 310717, 6297, Maker::esri}, // D_Tananarive_1925
    {27, 311118, 6707, Maker::esri}, // D_Tern_Island_1961
    {27, 311135, 6127, Maker::esri}, // D_Tete
    {27, 312318, 6298, Maker::esri}, // D_Timbalai_1948
    {27, 308931, 6299, Maker::esri}, // D_TM65
    {27, 308997, 6300, Maker::esri}, // D_TM75
    {27, 312397, 6301, Maker::esri}, // D_Tokyo
    {27, 313446, 1095, Maker::esri}, // D_Tonga_Geodetic_Datum_2005
    {27, 313910, 6302, Maker::esri}, // D_Trinidad_1903
    {27, 314020, 6734, Maker::esri}, // D_Tristan_1968
    {27, 314081, 6303, Maker::esri}, // D_Trucial_Coast_1948
    {27, 314518, 1057, Maker::esri}, // D_Turkish_National_Reference_Frame
    {27, 309931, 1025, Maker::esri}, // D_TWD_1967
    {27, 309978, 1026, Maker::esri}, // D_TWD_1997
    {27, 330591, 1077, Maker::esri}, // D_Ukraine_2000
    {27, 334646, 6748, Maker::esri}, // D_Vanua_Levu_1915
    {27, 335182, 6676, Maker::esri}, // D_Vientiane_1982
    {27, 336467, 6756, Maker::esri}, // D_Vietnam_2000
    {27, 336934, 6752, Maker::esri}, // D_Viti_Levu_1912
    {27, 336949, 6731, Maker::esri}, // D_Viti_Levu_1916
    {27, 337178, 6304, Maker::esri}, // D_Voirol_1875
    {27, 337208, 6671, Maker::esri}, // D_Voirol_1879
    {27, 355993, 6732, Maker::esri}, // D_Wake_Eniwetok_1960
    {27, 356012, 6733, Maker::esri}, // D_Wake_Island_1952
    {27, 356261, 6029, Maker::esri}, // D_War_Office
    {27, 352105, 6760, Maker::esri}, // D_WGS_1966
    {27, 352114, 6322, Maker::esri}, // D_WGS_1972
    {27, 352123, 6324, Maker::esri}, // D_WGS_1972_BE
    {27, 352212, 6326, Maker::esri}, // D_WGS_1984
    {27, 352316, 6055, Maker::esri}, // D_WGS_1984_Major_Auxiliary_Sphere
    {27, 373267, 6610, Maker::esri}, // D_Xian_1980
    {27, 373353, 6309, Maker::esri}, // D_Yacare
    {27, 373894, 6163, Maker::esri}, // D_Yemen_NGN_1996
    {27, 373934, 6310, Maker::esri}, // D_Yoff
    {27, 374145, 6311, Maker::esri}, // D_Zanderij
    {0, 60844, 1319, Maker::epsg}, // EBBWV14-IRF
    {0, 60921, 1310, Maker::epsg}, // ECML14_NB-IRF
    {0, 60948, 6230, Maker::epsg}, // ED50
    {0, 61644, 6154, Maker::epsg}, // ED50(ED77)
    {0, 61831, 6668, Maker::epsg}, // ED79
    {0, 61836, 6231, Maker::epsg}, // ED87
    {0, 61894, 6159, Maker::epsg}, // ELD79
    {0, 62293, 1308, Maker::epsg}, // EOS21-IRF
    {0, 65008, 6133, Maker::epsg}, // EST92
    {0, 65014, 6180, Maker::epsg}, // EST97
    {0, 240737, 1186, Maker::epsg}, // ETRF2000
    {0, 65104, 1305, Maker::epsg}, // ETRF2000-PL
    {0, 65231, 1204, Maker::epsg}, // ETRF2005
    {0, 65258, 1206, Maker::epsg}, // ETRF2014
    {0, 65284, 1178, Maker::epsg}, // ETRF89
    {0, 65317, 1179, Maker::epsg}, // ETRF90
    {0, 65340, 1180, Maker::epsg}, // ETRF91
    {0, 65363, 1181, Maker::epsg}, // ETRF92
    {0, 65386, 1182, Maker::epsg}, // ETRF93
    {0, 65409, 1183, Maker::epsg}, // ETRF94
    {0, 65432, 1184, Maker::epsg}, // ETRF96
    {0, 65455, 1185, Maker::epsg}, // ETRF97
    {46, 73935, 1179, Maker::esri}, // European_Terrestrial_Reference_Frame_1990
    {46, 73977, 1180, Maker::esri}, // European_Terrestrial_Reference_Frame_1991
    {46, 49370, 1181, Maker::esri}, // European_Terrestrial_Reference_Frame_1992
    {46, 41183, 1182, Maker::esri}, // European_Terrestrial_Reference_Frame_1993
    {46, 49397, 1183, Maker::esri}, // European_Terrestrial_Reference_Frame_1994
    {46, 74145, 1184, Maker::esri}, // European_Terrestrial_Reference_Frame_1996
    {46, 30219, 1185, Maker::esri}, // European_Terrestrial_Reference_Frame_1997
    {46, 15286, 1186, Maker::esri}, // European_Terrestrial_Reference_Frame_2000
    {46, 28777, 1204, Maker::esri}, // European_Terrestrial_Reference_Frame_2005
    {46, 4928, 1206, Maker::esri}, // European_Terrestrial_Reference_Frame_2014
    {0, 68658, 1311, Maker::epsg}, // EWR2-IRF
    {0, 74902, 6741, Maker::epsg}, // FD54
    {0, 74948, 6753, Maker::epsg}, // FD54a
    {0, 111627, 6132, Maker::epsg}, // FD58
    {0, 75021, 1078, Maker::epsg}, // FEH10
    {0, 75083, 6720, Maker::epsg}, // FGD 1986
    {0, 76119, 6720, Maker::epsg}, // Fiji 1986
    {0, 75138, 1321, Maker::epsg}, // FNL22-IRF
    {0, 78979, 1044, Maker::epsg}, // Fortaleza
    {0, 78713, 6625, Maker::epsg}, // Fort Desaix
    {0, 81415, 1289, Maker::esri}, // GBK19_Intermediate_Reference_Frame
    {0, 81385, 1289, Maker::epsg}, // GBK19-IRF
    {0, 81450, 6723, Maker::epsg}, // GCGD59
    {0, 217309, 6272, Maker::epsg}, // GD49
    {0, 81520, 1168, Maker::esri}, // GDA2020
    {0, 82370, 6283, Maker::epsg}, // GDA94
    {0, 82967, 1056, Maker::epsg}, // GDBD2009
    {0, 83015, 6742, Maker::epsg}, // GDM2000
    {0, 93773, 6211, Maker::epsg}, // Genuk
    {0, 94025, 1159, Maker::esri}, // Geodezicheskaya_Sistema_Koordinat_2011
    {0, 83449, 6121, Maker::proj}, // GGRS87
    {0, 83576, 6747, Maker::epsg}, // GR96
    {0, 95338, 6723, Maker::epsg}, // Grand Cayman 1959
    {0, 84431, 1159, Maker::epsg}, // GRS-2011
    {0, 88391, 1159, Maker::epsg}, // GSK-2011
    {0, 97429, 6152, Maker::epsg}, // Guam Geodetic Network 1993
    {0, 98088, 1188, Maker::esri}, // Gusterberg_(Ferro)
    {0, 98141, 1024, Maker::epsg}, // HD1909
    {0, 98148, 6237, Maker::epsg}, // HD72
    {0, 375057, 6312, Maker::proj}, // hermannskogel
    {0, 98191, 6738, Maker::epsg}, // HK63
    {0, 98196, 6739, Maker::epsg}, // HK63(67)
    {0, 98205, 6611, Maker::epsg}, // HK80
    {0, 100669, 1209, Maker::esri}, // Hong_Kong_Geodetic
    {0, 98210, 1031, Maker::epsg}, // HR1901
    {0, 98281, 1264, Maker::esri}, // HS2_Intermediate_Reference_Frame
    {0, 98266, 1264, Maker::epsg}, // HS2-IRF
    {0, 98330, 6761, Maker::epsg}, // HTRS96
    {0, 98551, 1317, Maker::epsg}, // HULLEE13-IRF
    {0, 100769, 6236, Maker::epsg}, // Hu Tzu Shan
    {0, 101129, 6238, Maker::epsg}, // ID74
    {62, 110166, 6647, Maker::epsg}, // IERS Terrestrial Reference Frame 1988
    {62, 65483, 6648, Maker::epsg}, // IERS Terrestrial Reference Frame 1989
    {62, 73935, 6649, Maker::epsg}, // IERS Terrestrial Reference Frame 1990
    {62, 73977, 6650, Maker::epsg}, // IERS Terrestrial Reference Frame 1991
    {62, 49370, 6651, Maker::epsg}, // IERS Terrestrial Reference Frame 1992
    {62, 41183, 6652, Maker::epsg}, // IERS Terrestrial Reference Frame 1993
    {62, 49397, 6653, Maker::epsg}, // IERS Terrestrial Reference Frame 1994
    {0, 101587, 1144, Maker::esri}, // IG05(2012)_Intermediate_Datum
    {0, 101699, 1142, Maker::esri}, // IG05_Intermediate_Datum
    {0, 102012, 6697, Maker::epsg}, // IGC 1962 6th Parallel South
    {0, 102079, 6701, Maker::epsg}, // IGCB 1955
    {0, 102377, 6755, Maker::epsg}, // IGD95
    {0, 102383, 6670, Maker::epsg}, // IGM95
    {0, 102505, 6628, Maker::epsg}, // IGN 1952
    {0, 103183, 6690, Maker::epsg}, // IGN79 Tahiti
    {0, 103236, 1029, Maker::epsg}, // IGRS
    {0, 103626, 6667, Maker::epsg}, // IKBD-92
    {0, 106655, 6131, Maker::epsg}, // Indian (DMA Reduced)
    {0, 109883, 6755, Maker::epsg}, // Indonesian Geodetic Datum 1995
    {0, 109914, 1293, Maker::epsg}, // Indonesian Geospatial Reference System 2013
    {0, 110801, 1165, Maker::esri}, // International_Terrestrial_Reference_Frame_2014
    {0, 375071, 6299, Maker::proj}, // ire65
    {0, 112020, 1046, Maker::epsg}, // Island of Principe datum
    {0, 112045, 1044, Maker::epsg}, // Island of Sao Tome datum
    {0, 112121, 1187, Maker::esri}, // Islands_Net_2016
    {0, 103771, 1060, Maker::epsg}, // ISN2004
    {0, 103868, 1187, Maker::epsg}, // ISN2016
    {0, 104002, 6659, Maker::epsg}, // ISN93
    {0, 112229, 1114, Maker::esri}, // Israel_Geodetic_Datum_2005
    {0, 112229, 1143, Maker::esri}, // Israel_Geodetic_Datum_2005
    {0, 112407, 1115, Maker::esri}, // Israeli_Geodetic_Datum_2005(2012)
    {0, 112407, 1145, Maker::esri}, // Israeli_Geodetic_Datum_2005(2012)
    {0, 104160, 6656, Maker::epsg}, // ITRF2000
    {0, 104187, 6896, Maker::epsg}, // ITRF2005
    {0, 139205, 1061, Maker::epsg}, // ITRF2008
    {0, 104232, 1165, Maker::epsg}, // ITRF2014
    {0, 104259, 1322, Maker::epsg}, // ITRF2020
    {0, 104286, 6647, Maker::epsg}, // ITRF88
    {0, 104309, 6648, Maker::epsg}, // ITRF89
    {0, 104332, 6649, Maker::epsg}, // ITRF90
    {0, 104355, 6650, Maker::epsg}, // ITRF91
    {0, 139429, 6651, Maker::epsg}, // ITRF92
    {0, 104394, 6652, Maker::epsg}, // ITRF93
    {0, 104417, 6653, Maker::epsg}, // ITRF94
    {0, 104440, 6654, Maker::epsg}, // ITRF96
    {0, 104463, 6655, Maker::epsg}, // ITRF97
    {0, 112744, 6758, Maker::epsg}, // JAD2001
    {0, 112828, 6242, Maker::epsg}, // JAD69
    {0, 116783, 1293, Maker::epsg}, // Jaring Kontrol Geodesi (JKG)
    {0, 113048, 6612, Maker::epsg}, // JGD2000
    {0, 113960, 1128, Maker::epsg}, // JGD2011
    {0, 117038, 6725, Maker::epsg}, // Johnston Atoll 1961
    {0, 119963, 6743, Maker::epsg}, // Karbala 1979 (Polservice)
    {0, 120272, 6123, Maker::epsg}, // Kartastokoordinaattijärjestelmä (1966)
    {0, 122100, 1268, Maker::esri}, // Kingdom_of_Saudi_Arabia_Geodetic_Reference_Frame_2017
    {0, 117252, 6123, Maker::epsg}, // KKJ
    {0, 117439, 6246, Maker::epsg}, // KOC
    {0, 122202, 6737, Maker::epsg}, // Korea 2000
    {0, 117467, 1251, Maker::epsg}, // KOSOVAREF01
    {0, 117479, 1251, Maker::epsg}, // KOSOVAREF01 (2012)
    {0, 117554, 1251, Maker::epsg}, // KOSOVAREF12
    {0, 123861, 1251, Maker::esri}, // Kosovo_Reference_System_2001
    {0, 117578, 1268, Maker::epsg}, // KSA-GRF17
    {0, 117752, 6319, Maker::epsg}, // KUDAMS
    {0, 124310, 1160, Maker::epsg}, // Kyrg-06
    {0, 126125, 6678, Maker::epsg}, // Lao 1997
    {89, 144365, 6699, Maker::epsg}, // Le Pouce (Mauritius 94)
    {89, 240746, 6699, Maker::epsg}, // Le Pouce (Mauritius PN 94)
    {0, 126950, 6227, Maker::epsg}, // Levant
    {0, 124829, 6754, Maker::epsg}, // LGD2006
    {0, 128339, 6726, Maker::epsg}, // Little Cayman Geodetic Datum 1961
    {0, 125244, 6661, Maker::epsg}, // LKS92
    {0, 125274, 6126, Maker::epsg}, // LKS94 (ETRS89)
    {0, 125369, 1295, Maker::epsg}, // LTF2004
    {0, 125388, 6181, Maker::epsg}, // LUREF
    {0, 130079, 6181, Maker::epsg}, // Luxembourg 1930
    {0, 130363, 1295, Maker::esri}, // Lyon_Turin_Ferroviaire_2004
    {0, 134386, 1207, Maker::esri}, // Macao_1920
    {0, 134349, 1208, Maker::epsg}, // Macao 2008
    {0, 299074, 1066, Maker::epsg}, // MACARIO SOLIS
    {0, 134815, 6615, Maker::epsg}, // Madeira SE Base
    {0, 134831, 6663, Maker::epsg}, // Madeira SE Base 1995
    {0, 135020, 6903, Maker::epsg}, // Madrid
    {0, 130531, 6686, Maker::epsg}, // MAGNA-SIRGAS
    {0, 136255, 6245, Maker::epsg}, // Malaysia Revised Triangulation 1968
    {0, 137228, 6616, Maker::epsg}, // Marco Astro
    {0, 131915, 1063, Maker::epsg}, // MARGEN
    {0, 138970, 1042, Maker::epsg}, // Mexican Datum of 1993
    {0, 132103, 1218, Maker::epsg}, // MGD-2000
    {0, 132112, 6312, Maker::epsg}, // MGI
    {0, 132116, 6805, Maker::epsg}, // MGI (Ferro)
    {0, 139928, 6703, Maker::epsg}, // Mhast 1951
    {0, 133221, 6688, Maker::epsg}, // MHEFO 55
    {0, 133230, 6634, Maker::epsg}, // MHNC72
    {0, 140958, 1258, Maker::esri}, // Ministerio_de_Marina_Norte
    {0, 140985, 1259, Maker::esri}, // Ministerio_de_Marina_Sur
    {0, 133313, 1271, Maker::esri}, // MML07_Intermediate_Reference_Frame
    {0, 133283, 1271, Maker::epsg}, // MML07-IRF
    {0, 133348, 1258, Maker::epsg}, // MMN
    {0, 133386, 1259, Maker::epsg}, // MMS
    {0, 142232, 6683, Maker::epsg}, // Modified Luzon Datum
    {0, 133476, 1315, Maker::epsg}, // MOLDOR11-IRF
    {0, 133594, 1218, Maker::esri}, // MOMRA_Terrestrial_Reference_Frame_2000
    {0, 133633, 6692, Maker::epsg}, // MOP 1983
    {0, 143934, 1046, Maker::epsg}, // Morro do Papagaio
    {0, 144346, 6130, Maker::epsg}, // Moznet
    {0, 133727, 1314, Maker::epsg}, // MRH21-IRF
    {0, 133746, 6245, Maker::epsg}, // MRT68
    {0, 134071, 1218, Maker::epsg}, // MTRF-2000
    {0, 134272, 1324, Maker::epsg}, // MWC18-IRF
    {110, 298, 1211, Maker::esri}, // NAD_1983_(Federal_Base_Network)
    {110, 463, 1212, Maker::esri}, // NAD_1983_(High_Accuracy_Reference_Network-Corrected)
    {0, 43688, 6267, Maker::proj}, // NAD27
    {0, 149399, 6608, Maker::epsg}, // NAD27(76)
    {0, 228624, 6269, Maker::proj}, // NAD83
    {0, 159347, 6269, Maker::epsg}, // NAD83(1986)
    {0, 159453, 1116, Maker::epsg}, // NAD83(2011)
    {0, 182099, 1133, Maker::epsg}, // NAD83(CORS96)
    {0, 184239, 6140, Maker::epsg}, // NAD83(CSRS)
    {101, 137830, 1195, Maker::epsg}, // NAD83(CSRS) 2002
    {101, 28777, 1196, Maker::epsg}, // NAD83(CSRS) 2005
    {0, 190624, 1192, Maker::epsg}, // NAD83(CSRS96)
    {0, 190680, 1193, Maker::epsg}, // NAD83(CSRS98)
    {0, 186467, 1192, Maker::epsg}, // NAD83(CSRS)v1
    {0, 186481, 1193, Maker::epsg}, // NAD83(CSRS)v2
    {0, 187432, 1194, Maker::epsg}, // NAD83(CSRS)v3
    {0, 188255, 1195, Maker::epsg}, // NAD83(CSRS)v4
    {0, 188906, 1196, Maker::epsg}, // NAD83(CSRS)v5
    {0, 188920, 1197, Maker::epsg}, // NAD83(CSRS)v6
    {0, 189939, 1198, Maker::epsg}, // NAD83(CSRS)v7
    {0, 191266, 1211, Maker::epsg}, // NAD83(FBN)
    {0, 191299, 6152, Maker::epsg}, // NAD83(HARN)
    {0, 191277, 1212, Maker::epsg}, // NAD83(HARN Corrected)
    {0, 150420, 6152, Maker::epsg}, // NAD83 (High Accuracy Regional Network)
    {0, 150459, 6152, Maker::epsg}, // NAD83 (High Precision Geodetic Network)
    {0, 203600, 6152, Maker::epsg}, // NAD83(HPGN)
    {0, 203612, 1118, Maker::epsg}, // NAD83(MA11)
    {0, 203706, 1221, Maker::epsg}, // NAD83(MARP00)
    {0, 213167, 6269, Maker::epsg}, // NAD83(Original)
    {0, 213183, 1117, Maker::epsg}, // NAD83(PA11)
    {0, 213448, 1249, Maker::epsg}, // NAD83(PACP00)
    {0, 214786, 6902, Maker::epsg}, // NDG (Paris)
    {0, 222981, 6199, Maker::epsg}, // New Egyptian
    {0, 214979, 6318, Maker::epsg}, // NGN
    {0, 229578, 1192, Maker::esri}, // North_American_Datum_of_1983_(CSRS96)
    {158, 1981, 1193, Maker::esri}, // North_American_Datum_of_1983_(CSRS)_version_2
    {158, 2015, 1194, Maker::esri}, // North_American_Datum_of_1983_(CSRS)_version_3
    {158, 248, 1195, Maker::esri}, // North_American_Datum_of_1983_(CSRS)_version_4
    {158, 281, 1196, Maker::esri}, // North_American_Datum_of_1983_(CSRS)_version_5
    {158, 3165, 1197, Maker::esri}, // North_American_Datum_of_1983_(CSRS)_version_6
    {158, 2704, 1198, Maker::esri}, // North_American_Datum_of_1983_(CSRS)_version_7
    {0, 233860, 6181, Maker::epsg}, // Nouvelle Triangulation du Luxembourg
    {0, 215618, 6275, Maker::epsg}, // NTF
    {0, 216120, 6181, Maker::epsg}, // NTL
    {0, 216167, 6167, Maker::epsg}, // NZGD2000
    {0, 375270, 6272, Maker::proj}, // nzgd49
    {0, 234968, 6182, Maker::epsg}, // Observatario Flores
    {0, 235014, 6182, Maker::epsg}, // Observatorio 1966
    {0, 235032, 6182, Maker::epsg}, // Observatorio Meteorologico 1939
    {0, 234412, 6281, Maker::epsg}, // OID
    {0, 235924, 6229, Maker::epsg}, // Old Egyptian
    {0, 236095, 6281, Maker::epsg}, // Old Israeli Datum
    {0, 236414, 1147, Maker::esri}, // Oman_National_Geodetic_Datum_2014
    {0, 236448, 1263, Maker::esri}, // Oman_National_Geodetic_Datum_2017
    {0, 234416, 1147, Maker::epsg}, // ONGD14
    {0, 234549, 1263, Maker::epsg}, // ONGD17
    {0, 234704, 6277, Maker::epsg}, // OSGB 1936
    {0, 234729, 6277, Maker::epsg}, // OSGB36
    {0, 234767, 6278, Maker::epsg}, // OSGB70
    {0, 234695, 6279, Maker::epsg}, // OS(SN)80
    {0, 240258, 6613, Maker::epsg}, // P2 Exc
    {0, 240265, 6613, Maker::epsg}, // P2 Exc-T9
    {0, 243012, 6280, Maker::epsg}, // Padang
    {0, 243905, 1072, Maker::epsg}, // Panamá-Colón 1911
    {0, 244477, 1157, Maker::esri}, // Parametry_Zemli_1990.02
    {0, 244501, 1158, Maker::esri}, // Parametry_Zemli_1990.11
    {0, 240338, 6746, Maker::epsg}, // PD/83
    {0, 246627, 6637, Maker::epsg}, // Perroud 1950
    {0, 246045, 1286, Maker::esri}, // Pico_de_las_Nieves_1968
    {0, 246537, 6626, Maker::epsg}, // Piton des Neiges
    {0, 240753, 1286, Maker::epsg}, // PN68
    {0, 240834, 6728, Maker::epsg}, // PN84
    {0, 240915, 1076, Maker::epsg}, // PNG94
    {0, 52365, 6282, Maker::epsg}, // Pointe Noire
    {0, 247410, 6615, Maker::epsg}, // Porto Santo
    {0, 241114, 1062, Maker::epsg}, // POSGAR 2007
    {0, 241359, 6694, Maker::epsg}, // POSGAR 94
    {0, 241537, 6190, Maker::epsg}, // POSGAR 98
    {0, 248156, 6172, Maker::epsg}, // Posiciones Geodésicas Argentinas
    {188, 49397, 6694, Maker::epsg}, // Posiciones Geodésicas Argentinas 1994
    {188, 26462, 6190, Maker::epsg}, // Posiciones Geodésicas Argentinas 1998
    {188, 15424, 1062, Maker::epsg}, // Posiciones Geodésicas Argentinas 2007
    {0, 375277, 6314, Maker::proj}, // potsdam
    {0, 241882, 6683, Maker::epsg}, // PRS92
    {0, 242059, 6248, Maker::epsg}, // PSAD56
    {0, 242448, 6134, Maker::epsg}, // PSD93
    {0, 242496, 1041, Maker::epsg}, // PTRA08
    {0, 242707, 6740, Maker::epsg}, // PZ-90
    {0, 242713, 1157, Maker::epsg}, // PZ-90.02
    {0, 242722, 1158, Maker::epsg}, // PZ-90.11
    {0, 268719, 6614, Maker::epsg}, // QND95
    {0, 269606, 6160, Maker::epsg}, // Quini-Huao
    {0, 269617, 6160, Maker::epsg}, // Quiñi-Huao
    {0, 269639, 6745, Maker::epsg}, // RD/83
    {0, 269895, 1132, Maker::epsg}, // RDN2008
    {0, 275776, 1220, Maker::epsg}, // Rede Permanentes de Estaciones GNSS de Angola
    {211, 49370, 1042, Maker::epsg}, // Red Geodesica Nacional 1992
    {211, 27631, 1120, Maker::epsg}, // Red Geodesica Nacional 2008
    {0, 275709, 1304, Maker::esri}, // Red_Geodesica_Para_Mineria_en_Chile
    {0, 275662, 1069, Maker::epsg}, // Red Geodésica Básica Nacional de El Salvador
    {0, 270184, 1304, Maker::epsg}, // REDGEOMIN
    {0, 275854, 1220, Maker::esri}, // Reference_System_de_Angola_2013
    {0, 270338, 1035, Maker::epsg}, // REGCAN95
    {0, 285142, 6189, Maker::epsg}, // REGVEN
    {0, 270682, 1220, Maker::epsg}, // REPANGOL
    {0, 276727, 1073, Maker::esri}, // Reseau_Geodesique_des_Antilles_Francaises_2009
    {0, 276440, 1113, Maker::epsg}, // Reseau Geodesique des TAAF 2007
    {0, 276684, 1223, Maker::esri}, // Reseau_Geodesique_de_Wallis_et_Futuna_1996
    {0, 275886, 6171, Maker::epsg}, // Reseau Geodesique Francais 1993
    {0, 270691, 1073, Maker::epsg}, // RGAF09
    {0, 270797, 6171, Maker::epsg}, // RGF93 v1
    {0, 271010, 1312, Maker::epsg}, // RGF93 v2
    {0, 271223, 1313, Maker::epsg}, // RGF93 v2b
    {0, 271465, 6624, Maker::epsg}, // RGFG95
    {0, 271637, 1036, Maker::epsg}, // RGM04
    {0, 271743, 6749, Maker::epsg}, // RGNC
    {0, 271792, 6645, Maker::epsg}, // RGNC91
    {0, 271799, 6749, Maker::epsg}, // RGNC91-93
    {0, 272031, 6687, Maker::epsg}, // RGPF
    {0, 272180, 6627, Maker::epsg}, // RGR92
    {0, 272276, 1033, Maker::epsg}, // RGRDC 2005
    {0, 272817, 1038, Maker::epsg}, // RGSPM06
    {0, 272937, 1113, Maker::epsg}, // RGTAAF07
    {0, 273392, 1223, Maker::epsg}, // RGWF96
    {0, 277206, 6308, Maker::epsg}, // Rikets koordinatsystem 1938
    {0, 277501, 6265, Maker::epsg}, // Rome 1940
    {0, 277511, 6806, Maker::epsg}, // Rome 1940 (Rome)
    {0, 273490, 6309, Maker::epsg}, // ROU-USAMS
    {0, 273563, 1220, Maker::epsg}, // RSAO13
    {0, 273867, 6764, Maker::epsg}, // RSRGD2000
    {0, 274077, 6308, Maker::epsg}, // RT38
    {0, 274366, 6124, Maker::epsg}, // RT90
    {0, 69340, 6706, Maker::epsg}, // S-650 TL
    {0, 36802, 6291, Maker::epsg}, // SAD69
    {0, 296106, 6622, Maker::epsg}, // Sainte Anne
    {0, 296329, 6125, Maker::epsg}, // Samboja P2 exc T9
    {0, 296543, 6730, Maker::epsg}, // Santo (DOS)
    {0, 281992, 1320, Maker::epsg}, // SCM22-IRF
    {0, 97869, 6613, Maker::epsg}, // Segara
    {0, 97883, 6820, Maker::epsg}, // Segara (Jakarta)
    {0, 297702, 6616, Maker::epsg}, // Selvagem Grande 1938
    {0, 297926, 1214, Maker::esri}, // Serbian_Spatial_Reference_System_2000
    {0, 282031, 1174, Maker::epsg}, // SHGD2015
    {0, 298614, 6174, Maker::epsg}, // Sierra Leone Peninsular 1924
    {0, 282049, 6726, Maker::epsg}, // SIGD61
    {0, 282189, 6170, Maker::epsg}, // SIRGAS 1995
    {0, 282606, 6674, Maker::epsg}, // SIRGAS 2000
    {220, 137830, 1064, Maker::epsg}, // SIRGAS-Chile 2002
    {220, 8000, 1243, Maker::epsg}, // SIRGAS-Chile 2010
    {220, 109953, 1252, Maker::epsg}, // SIRGAS-Chile 2013
    {220, 56123, 1253, Maker::epsg}, // SIRGAS-Chile 2016
    {220, 284827, 1327, Maker::epsg}, // SIRGAS-Chile 2021
    {221, 375360, 1243, Maker::esri}, // SIRGAS-Chile_realization_2_epoch_2010
    {221, 375385, 1252, Maker::esri}, // SIRGAS-Chile_realization_3_epoch_2013
    {221, 375410, 1253, Maker::esri}, // SIRGAS-Chile_realization_4_epoch_2016
    {218, 283365, 1227, Maker::epsg}, // SIRGAS-CON DGF00P01
    {218, 283412, 1228, Maker::epsg}, // SIRGAS-CON DGF01P01
    {218, 283459, 1229, Maker::epsg}, // SIRGAS-CON DGF01P02
    {218, 283506, 1230, Maker::epsg}, // SIRGAS-CON DGF02P01
    {218, 283553, 1231, Maker::epsg}, // SIRGAS-CON DGF04P01
    {218, 283600, 1232, Maker::epsg}, // SIRGAS-CON DGF05P01
    {218, 283647, 1233, Maker::epsg}, // SIRGAS-CON DGF06P01
    {218, 283694, 1234, Maker::epsg}, // SIRGAS-CON DGF07P01
    {218, 283741, 1235, Maker::epsg}, // SIRGAS-CON DGF08P01
    {218, 283788, 1236, Maker::epsg}, // SIRGAS-CON SIR09P01
    {218, 283835, 1237, Maker::epsg}, // SIRGAS-CON SIR10P01
    {218, 283882, 1238, Maker::epsg}, // SIRGAS-CON SIR11P01
    {218, 283929, 1239, Maker::epsg}, // SIRGAS-CON SIR13P01
    {218, 283976, 1240, Maker::epsg}, // SIRGAS-CON SIR14P01
    {218, 284023, 1241, Maker::epsg}, // SIRGAS-CON SIR15P01
    {218, 284070, 1242, Maker::epsg}, // SIRGAS-CON SIR17P01
    {223, 283365, 1227, Maker::esri}, // SIRGAS_Continuously_Operating_Network_DGF00P01
    {223, 283412, 1228, Maker::esri}, // SIRGAS_Continuously_Operating_Network_DGF01P01
    {223, 283459, 1229, Maker::esri}, // SIRGAS_Continuously_Operating_Network_DGF01P02
    {223, 283506, 1230, Maker::esri}, // SIRGAS_Continuously_Operating_Network_DGF02P01
    {223, 283553, 1231, Maker::esri}, // SIRGAS_Continuously_Operating_Network_DGF04P01
    {223, 283600, 1232, Maker::esri}, // SIRGAS_Continuously_Operating_Network_DGF05P01
    {223, 283647, 1233, Maker::esri}, // SIRGAS_Continuously_Operating_Network_DGF06P01
    {223, 283694, 1234, Maker::esri}, // SIRGAS_Continuously_Operating_Network_DGF07P01
    {223, 283741, 1235, Maker::esri}, // SIRGAS_Continuously_Operating_Network_DGF08P01
    {223, 283788, 1236, Maker::esri}, // SIRGAS_Continuously_Operating_Network_SIR09P01
    {223, 283835, 1237, Maker::esri}, // SIRGAS_Continuously_Operating_Network_SIR10P01
    {223, 283882, 1238, Maker::esri}, // SIRGAS_Continuously_Operating_Network_SIR11P01
    {223, 283929, 1239, Maker::esri}, // SIRGAS_Continuously_Operating_Network_SIR13P01
    {223, 283976, 1240, Maker::esri}, // SIRGAS_Continuously_Operating_Network_SIR14P01
    {223, 284023, 1241, Maker::esri}, // SIRGAS_Continuously_Operating_Network_SIR15P01
    {223, 284070, 1242, Maker::esri}, // SIRGAS_Continuously_Operating_Network_SIR17P01
    {217, 15286, 1227, Maker::epsg}, // SIRGAS Multi-Year Solution 2000
    {217, 73715, 1228, Maker::epsg}, // SIRGAS Multi-Year Solution 2001
    {217, 2156, 1229, Maker::epsg}, // SIRGAS Multi-Year Solution 2001 extended
    {217, 137830, 1230, Maker::epsg}, // SIRGAS Multi-Year Solution 2002
    {217, 103774, 1231, Maker::epsg}, // SIRGAS Multi-Year Solution 2004
    {217, 28777, 1232, Maker::epsg}, // SIRGAS Multi-Year Solution 2005
    {217, 21766, 1233, Maker::epsg}, // SIRGAS Multi-Year Solution 2006
    {217, 15424, 1234, Maker::epsg}, // SIRGAS Multi-Year Solution 2007
    {217, 27631, 1235, Maker::epsg}, // SIRGAS Multi-Year Solution 2008
    {217, 42183, 1236, Maker::epsg}, // SIRGAS Multi-Year Solution 2009
    {217, 8000, 1237, Maker::epsg}, // SIRGAS Multi-Year Solution 2010
    {217, 46999, 1238, Maker::epsg}, // SIRGAS Multi-Year Solution 2011
    {217, 109953, 1239, Maker::epsg}, // SIRGAS Multi-Year Solution 2013
    {217, 4928, 1240, Maker::epsg}, // SIRGAS Multi-Year Solution 2014
    {217, 42715, 1241, Maker::epsg}, // SIRGAS Multi-Year Solution 2015
    {217, 122095, 1242, Maker::epsg}, // SIRGAS Multi-Year Solution 2017
    {0, 285135, 6189, Maker::epsg}, // SIRGAS-REGVEN
    {0, 299176, 6674, Maker::epsg}, // Sistema de Referencia Geocentrico para America del Sur 2000
    {0, 299088, 1067, Maker::epsg}, // Sistema Geodésico Nacional
    {0, 298994, 1293, Maker::esri}, // Sistem_Referensi_Geospasial_Indonesia_2013
    {0, 280872, 6156, Maker::epsg}, // S-JTSK
    {0, 281073, 1052, Maker::epsg}, // S-JTSK/05
    {0, 281083, 1055, Maker::epsg}, // S-JTSK/05 (Ferro)
    {0, 280879, 6818, Maker::epsg}, // S-JTSK (Ferro)
    {214, 281003, 1201, Maker::esri}, // S-JTSK_[JTSK03]
    {0, 285471, 1053, Maker::epsg}, // SLD99
    {0, 299414, 6765, Maker::epsg}, // Slovenia 1996
    {0, 6326, 6222, Maker::epsg}, // South Africa
    {0, 294684, 1214, Maker::epsg}, // SRB_ETRS89
    {0, 294745, 1034, Maker::epsg}, // SREF98
    {0, 294752, 1293, Maker::epsg}, // SRGI2013
    {0, 306101, 6710, Maker::epsg}, // St. Helena 1971
    {0, 306708, 1174, Maker::esri}, // St_Helena_Geodetic_Datum_2015
    {0, 306738, 1173, Maker::esri}, // St_Helena_Tritan
    {0, 306429, 6638, Maker::epsg}, // St. Pierre et Miquelon 1950
    {0, 295369, 1214, Maker::epsg}, // STRS00
    {0, 306597, 1189, Maker::esri}, // St._Stephen_(Ferro)
    {0, 308186, 6151, Maker::epsg}, // Swiss Terrestrial Reference Frame 1995 (CHTRF95)
    {233, 375077, 6156, Maker::epsg}, // Systém Jednotnej trigonometrickej siete katastrálnej
    {233, 375091, 6818, Maker::epsg}, // Systém Jednotnej trigonometrickej siete katastrálnej (Ferro)
    {233, 375113, 1201, Maker::epsg}, // Systém Jednotnej trigonometrickej siete katastrálnej [JTSK03]
    {234, 375136, 6156, Maker::epsg}, // Systém Jednotné trigonometrické sítě katastrální
    {234, 375172, 1052, Maker::epsg}, // Systém Jednotné trigonometrické sítě katastrální/05
    {234, 375189, 1055, Maker::epsg}, // Systém Jednotné trigonometrické sítě katastrální/05 (Ferro)
    {234, 375150, 6818, Maker::epsg}, // Systém Jednotné trigonometrické sítě katastrální (Ferro)
    {0, 80547, 6629, Maker::epsg}, // Tahaa
    {0, 80690, 6628, Maker::epsg}, // Tahiti
    {0, 310487, 6297, Maker::epsg}, // Tananarive
    {0, 310830, 1257, Maker::esri}, // Tapi_Aike
    {0, 308694, 6303, Maker::epsg}, // TC(1948)
    {0, 311180, 6127, Maker::epsg}, // Tete 1960
    {0, 308793, 1095, Maker::epsg}, // TGD2005
    {0, 312304, 6298, Maker::epsg}, // Timbalai 1968
    {0, 308997, 6300, Maker::epsg}, // TM75
    {0, 313376, 1048, Maker::epsg}, // Tokyo 1898
    {0, 313387, 6301, Maker::epsg}, // Tokyo 1918
    {0, 309350, 1266, Maker::esri}, // TPEN11_Intermediate_Reference_Frame
    {0, 309317, 1266, Maker::epsg}, // TPEN11-IRF
    {0, 309403, 1057, Maker::epsg}, // TUREF
    {0, 309835, 1025, Maker::epsg}, // TWD67
    {0, 309883, 1026, Maker::epsg}, // TWD97
    {0, 333753, 6639, Maker::epsg}, // Uvea SHOM 1978
    {0, 334630, 6748, Maker::epsg}, // Vanua Levu 1917
    {0, 333842, 6756, Maker::epsg}, // VN-2000
    {0, 337342, 6760, Maker::epsg}, // WGS 66
    {0, 337349, 6322, Maker::epsg}, // WGS 72
    {0, 358494, 6324, Maker::epsg}, // WGS 72BE
    {0, 352099, 6326, Maker::proj}, // WGS84
    {243, 342953, 1154, Maker::epsg}, // WGS 84 (G1150)
    {243, 342968, 1155, Maker::epsg}, // WGS 84 (G1674)
    {243, 342983, 1156, Maker::epsg}, // WGS 84 (G1762)
    {243, 342998, 1309, Maker::epsg}, // WGS 84 (G2139)
    {243, 343013, 1152, Maker::epsg}, // WGS 84 (G730)
    {243, 343027, 1153, Maker::epsg}, // WGS 84 (G873)
    {243, 343041, 1166, Maker::epsg}, // WGS 84 (Transit)
    {243, 314033, 1173, Maker::epsg}, // WGS 84 Tritan St. Helena
    {251, 342953, 1154, Maker::esri}, // World_Geodetic_System_1984_(G1150)
    {251, 342968, 1155, Maker::esri}, // World_Geodetic_System_1984_(G1674)
    {251, 342983, 1156, Maker::esri}, // World_Geodetic_System_1984_(G1762)
    {251, 343013, 1152, Maker::esri}, // World_Geodetic_System_1984_(G730)
    {251, 343027, 1153, Maker::esri}, // World_Geodetic_System_1984_(G873)
    {251, 343041, 1166, Maker::esri}, // World_Geodetic_System_1984_(Transit)
    {0, 373346, 6163, Maker::epsg}, // YNGN96
};
// clang-format on

} // namespace ZrProj::systems::rows
