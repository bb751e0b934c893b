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
    {0, 666, 6620, Maker::epsg}, // 12th Parallel traverse
    {0, 1470, 6300, Maker::epsg}, // 1975 Mapping Adjustment
    {0, 2213, 6179, Maker::epsg}, // 42/58
    {0, 2219, 6178, Maker::epsg}, // 42/83
    {0, 3349, 6176, Maker::epsg}, // AAD98
    {0, 4200, 1273, Maker::esri}, // AbInvA96_2020_Intermediate_Reference_Frame
    {0, 4157, 1273, Maker::epsg}, // AbInvA96_2020-IRF
    {0, 15196, 6202, Maker::epsg}, // AGD66
    {0, 15395, 6203, Maker::epsg}, // AGD84
    {0, 5205, 6204, Maker::epsg}, // Ain el Abd
    {0, 3770, 6191, Maker::epsg}, // ALB86
    {0, 3776, 6710, Maker::epsg}, // ASTRO DOS 71/4
    {0, 3795, 6901, Maker::epsg}, // ATF (Paris)
    {0, 3830, 1291, Maker::epsg}, // ATRF2014
    {0, 3851, 6122, Maker::epsg}, // ATS77
    {0, 16562, 1291, Maker::esri}, // Australian_Terrestrial_Reference_Frame_2014
    {0, 16959, 6183, Maker::epsg}, // Azores Central 1948
    {0, 16988, 6665, Maker::epsg}, // Azores Central 1995
    {0, 17043, 6182, Maker::epsg}, // Azores Occidental 1939
    {0, 17100, 6184, Maker::epsg}, // Azores Oriental 1940
    {0, 17137, 6664, Maker::epsg}, // Azores Oriental 1995
    {0, 18314, 1072, Maker::epsg}, // Balboa
    {0, 18634, 6701, Maker::epsg}, // Bas Congo 1955
    {0, 17523, 6215, Maker::epsg}, // BD50
    {0, 17528, 6809, Maker::epsg}, // BD50 (Brussels)
    {0, 17566, 6313, Maker::epsg}, // BD72
    {0, 17608, 6762, Maker::epsg}, // BDA2000
    {0, 166110, 6215, Maker::epsg}, // Belge 1950
    {0, 166154, 6313, Maker::epsg}, // Belge 1972
    {0, 21425, 6714, Maker::epsg}, // Bellevue (IGN)
    {0, 17637, 1167, Maker::epsg}, // BGS2005
    {0, 22490, 6201, Maker::epsg}, // Blue Nile 1958
    {0, 22695, 6218, Maker::epsg}, // Bogota
    {0, 22855, 6298, Maker::epsg}, // Borneo Triangulation of 1968
    {0, 18203, 6298, Maker::epsg}, // BT68
    {0, 24160, 1167, Maker::esri}, // Bulgaria_Geodetic_System_2005
    {0, 27182, 6220, Maker::epsg}, // Camacupa
    {17, 27281, 1217, Maker::esri}, // Camacupa_2015
    {0, 123967, 6609, Maker::epsg}, // CGQ77
    {0, 26118, 1112, Maker::epsg}, // CGRS93
    {0, 26297, 6151, Maker::epsg}, // CHTRS95
    {0, 26333, 6673, Maker::epsg}, // CI1979
    {0, 26362, 1100, Maker::epsg}, // CIGD11
    {0, 34087, 6225, Maker::epsg}, // Corrego Alegre
    {0, 26739, 1065, Maker::epsg}, // CR05
    {0, 26755, 1225, Maker::epsg}, // CR14
    {0, 26774, 6623, Maker::epsg}, // CSG67
    {0, 35063, 1031, Maker::epsg}, // D48
    {0, 35078, 6765, Maker::epsg}, // D96
    {27, 4287, 6143, Maker::esri}, // D_Abidjan_1987
    {27, 4346, 6168, Maker::esri}, // D_Accra
    {27, 4463, 1135, Maker::esri}, // D_Aden_1925
    {27, 4470, 6201, Maker::esri}, // D_Adindan
    {27, 4561, 6205, Maker::esri}, // D_Afgooye
    {27, 5199, 6206, Maker::esri}, // D_Agadez
    {27, 5343, 6204, Maker::esri}, // D_Ain_el_Abd_1970
    {27, 5414, 6001, Maker::esri}, // D_Airy_1830
    {27, 5423, 6002, Maker::esri}, // D_Airy_Modified
    {27, 5838, 6191, Maker::esri}, // D_Albanian_1987
    {27, 6288, 6169, Maker::esri}, // D_American_Samoa_1962
    {27, 6302, 6289, Maker::esri}, // D_Amersfoort
    {27, 6372, 6196, Maker::esri}, // D_Ammassalik_1958
    {27, 6748, 6600, Maker::esri}, // D_Anguilla_1957
    {27, 6788, 6708, Maker::esri}, // D_Anna_1_1965
    {27, 9949, 6601, Maker::esri}, // D_Antigua_1943
    {27, 22969, 6208, Maker::esri}, // D_Aratu
    {27, 10220, 6209, Maker::esri}, // D_Arc_1950
    {27, 10271, 6210, Maker::esri}, // D_Arc_1960
    {27, 13597, 6712, Maker::esri}, // D_Ascension_Island_1958
    {27, 14921, 6711, Maker::esri}, // D_Astro_1952
    {27, 3791, 6901, Maker::esri}, // D_ATF
    {27, 4003, 6122, Maker::esri}, // D_ATS_1977
    {27, 16083, 6003, Maker::esri}, // D_Australian
    {27, 16437, 6202, Maker::esri}, // D_Australian_1966
    {27, 16447, 6203, Maker::esri}, // D_Australian_1984
    {27, 16469, 6176, Maker::esri}, // D_Australian_Antarctic_1998
    {27, 16935, 6713, Maker::esri}, // D_Ayabelle
    {27, 17270, 6183, Maker::esri}, // D_Azores_Central_Islands_1948
    {27, 17284, 6665, Maker::esri}, // D_Azores_Central_Islands_1995
    {27, 17339, 6182, Maker::esri}, // D_Azores_Occidental_Islands_1939
    {27, 17436, 6184, Maker::esri}, // D_Azores_Oriental_Islands_1940
    {27, 17454, 6664, Maker::esri}, // D_Azores_Oriental_Islands_1995
    {27, 18476, 6212, Maker::esri}, // D_Barbados_1938
    {27, 18644, 6211, Maker::esri}, // D_Batavia
    {27, 18919, 6709, Maker::esri}, // D_Beacon_E_1945
    {27, 18930, 6213, Maker::esri}, // D_Beduaram
    {27, 21181, 6214, Maker::esri}, // D_Beijing_1954
    {27, 21291, 1137, Maker::esri}, // D_Bekaa_Valley_1920
    {27, 21305, 6215, Maker::esri}, // D_Belge_1950
    {27, 21328, 6313, Maker::esri}, // D_Belge_1972
    {27, 21438, 6714, Maker::esri}, // D_Bellevue_IGN
    {27, 21542, 6216, Maker::esri}, // D_Bermuda_1957
    {27, 21570, 6762, Maker::esri}, // D_Bermuda_2000
    {27, 21669, 6306, Maker::esri}, // D_Bern_1938
    {27, 21727, 6004, Maker::esri}, // D_Bessel_1841
    {27, 21737, 6005, Maker::esri}, // D_Bessel_Modified
    {27, 21750, 6006, Maker::esri}, // D_Bessel_Namibia
    {27, 22182, 1058, Maker::esri}, // D_Bhutan_National_Geodetic_Datum
    {27, 44747, 1136, Maker::esri}, // D_Bioko
    {27, 22391, 6165, Maker::esri}, // D_Bissau
    {27, 22695, 6218, Maker::esri}, // D_Bogota
    {0, 35095, 1081, Maker::epsg}, // DB_REF
    {27, 24076, 6219, Maker::esri}, // D_Bukit_Rimpah
    {27, 26884, 1037, Maker::esri}, // D_Cadastre_1997
    {27, 27182, 6220, Maker::esri}, // D_Camacupa
    {27, 27357, 6715, Maker::esri}, // D_Camp_Area
    {27, 27592, 6221, Maker::esri}, // D_Campo_Inchauspe
    {27, 29044, 6716, Maker::esri}, // D_Canton_1966
    {27, 29102, 6222, Maker::esri}, // D_Cape
    {27, 29263, 6717, Maker::esri}, // D_Cape_Canaveral
    {27, 29507, 6223, Maker::esri}, // D_Carthage
    {27, 29805, 1100, Maker::esri}, // D_Cayman_Islands_Geodetic_Datum_2011
    {27, 26191, 6149, Maker::esri}, // D_CH1903
    {27, 26233, 6150, Maker::esri}, // D_CH1903+
    {27, 30157, 6672, Maker::esri}, // D_Chatham_Island_1971
    {27, 30200, 6673, Maker::esri}, // D_Chatham_Islands_1979
    {27, 30864, 1043, Maker::esri}, // D_China_2000
    {27, 30988, 6160, Maker::esri}, // D_Chos_Malal_1914
    {27, 31086, 6224, Maker::esri}, // D_Chua
    {28, 31259, 6007, Maker::esri}, // D_Clarke_1858
    {28, 31269, 6008, Maker::esri}, // D_Clarke_1866
    {28, 849, 6009, Maker::esri}, // D_Clarke_1866_Michigan
    {28, 31296, 6034, Maker::esri}, // D_Clarke_1880
    {28, 861, 6013, Maker::esri}, // D_Clarke_1880_Arc
    {28, 869, 6010, Maker::esri}, // D_Clarke_1880_Benoit
    {28, 879, 6011, Maker::esri}, // D_Clarke_1880_IGN
    {28, 899, 6012, Maker::esri}, // D_Clarke_1880_RGS
    {28, 908, 6014, Maker::esri}, // D_Clarke_1880_SGA
    {27, 32804, 6632, Maker::esri}, // D_Combani_1950
    {27, 32895, 6315, Maker::esri}, // D_Conakry_1905
    {27, 34318, 6225, Maker::esri}, // D_Corrego_Alegre
    {27, 34341, 1074, Maker::esri}, // D_Corrego_Alegre_1961
    {27, 34486, 1065, Maker::esri}, // D_Costa_Rica_2005
    {27, 34629, 6226, Maker::esri}, // D_Cote_d_Ivoire
    {27, 34854, 6761, Maker::esri}, // D_Croatian_Terrestrial_Reference_System
    {27, 26803, 6623, Maker::esri}, // D_CSG_1967
    {27, 35026, 1112, Maker::esri}, // D_Cyprus_Geodetic_Reference_System_1993
    {27, 36944, 6155, Maker::esri}, // D_Dabola_1981
    {27, 37123, 6274, Maker::esri}, // D_Datum_73
    {27, 37176, 6755, Maker::esri}, // D_Datum_Geodesi_Nasional_1995
    {27, 37433, 6316, Maker::esri}, // D_Dealul_Piscului_1933
    {27, 37450, 6317, Maker::esri}, // D_Dealul_Piscului_1970
    {27, 37545, 6736, Maker::esri}, // D_Deception_Island
    {27, 37660, 6227, Maker::esri}, // D_Deir_ez_Zor
    {27, 37967, 1081, Maker::esri}, // D_Deutsche_Bahn_Reference_System
    {27, 38016, 6314, Maker::esri}, // D_Deutsches_Hauptdreiecksnetz
    {27, 38134, 6602, Maker::esri}, // D_Dominica_1945
    {27, 36388, 6710, Maker::esri}, // D_DOS_71_4
    {27, 38202, 6228, Maker::esri}, // D_Douala
    {27, 38259, 6192, Maker::esri}, // D_Douala_1948
    {0, 37349, 6316, Maker::epsg}, // Dealul Piscului 1933
    {27, 44053, 6719, Maker::esri}, // D_Easter_Island_1967
    {27, 44438, 6229, Maker::esri}, // D_Egypt_1907
    {27, 44447, 6199, Maker::esri}, // D_Egypt_1930
    {27, 44492, 6706, Maker::esri}, // D_Egypt_Gulf_of_Suez_S-650_TL
    {27, 44802, 6133, Maker::esri}, // D_Estonia_1992
    {27, 44811, 6180, Maker::esri}, // D_Estonia_1997
    {27, 41693, 1178, Maker::esri}, // D_ETRF_1989
    {27, 43781, 6258, Maker::esri}, // D_ETRS_1989
    {27, 47131, 6230, Maker::esri}, // D_European_1950
    {27, 47141, 6154, Maker::esri}, // D_European_1950_ED77
    {27, 47156, 6668, Maker::esri}, // D_European_1979
    {27, 47166, 6231, Maker::esri}, // D_European_1987
    {27, 47176, 6159, Maker::esri}, // D_European_Libyan_1979
    {27, 47377, 6042, Maker::esri}, // D_Everest_1830
    {27, 47388, 6015, Maker::esri}, // D_Everest_Adj_1937
    {27, 47401, 6044, Maker::esri}, // D_Everest_Def_1962
    {27, 47414, 6016, Maker::esri}, // D_Everest_Def_1967
    {27, 47427, 6045, Maker::esri}, // D_Everest_Def_1975
    {27, 47440, 6018, Maker::esri}, // D_Everest_Modified
    {27, 47711, 6232, Maker::esri}, // D_Fahud
    {27, 47922, 6741, Maker::esri}, // D_Faroe_Datum_1954
    {27, 47965, 6688, Maker::esri}, // D_Fatu_Iva_1972
    {27, 47586, 6132, Maker::esri}, // D_FD_1958
    {27, 48081, 1078, Maker::esri}, // D_Fehmarnbelt_Datum_2010
    {27, 48396, 6721, Maker::esri}, // D_Fiji_1956
    {27, 48437, 6720, Maker::esri}, // D_Fiji_1986
    {27, 47900, 6753, Maker::esri}, // D_fk89
    {27, 49789, 6625, Maker::esri}, // D_Fort_Desaix
    {27, 49814, 6621, Maker::esri}, // D_Fort_Marigot
    {27, 60105, 1139, Maker::esri}, // D_Gambia
    {27, 60123, 6684, Maker::esri}, // D_Gan_1970
    {27, 60148, 6233, Maker::esri}, // D_Gandajika_1970
    {27, 60159, 6197, Maker::esri}, // D_Garoua
    {27, 60159, 6234, Maker::esri}, // D_Garoua
    {27, 52447, 6283, Maker::esri}, // D_GDA_1994
    {27, 52478, 1056, Maker::esri}, // D_GDBD2009
    {27, 52708, 6742, Maker::esri}, // D_GDM_2000
    {27, 52811, 6031, Maker::esri}, // D_GEM_10C
    {27, 52845, 6121, Maker::esri}, // D_GGRS_1987
    {0, 35396, 6755, Maker::epsg}, // DGN95
    {27, 61356, 6723, Maker::esri}, // D_Grand_Cayman_1959
    {27, 61410, 6646, Maker::esri}, // D_Grand_Comoros
    {27, 61541, 6120, Maker::esri}, // D_Greek
    {27, 62185, 6747, Maker::esri}, // D_Greenland_1996
    {27, 62262, 6603, Maker::esri}, // D_Grenada_1953
    {27, 53475, 6036, Maker::esri}, // D_GRS_1967
    {27, 53495, 6019, Maker::esri}, // D_GRS_1980
    {27, 62477, 6675, Maker::esri}, // D_Guam_1963
    {27, 62682, 6682, Maker::esri}, // D_Gulshan_303
    {27, 62774, 6613, Maker::esri}, // D_Gunung_Segara
    {27, 62955, 6235, Maker::esri}, // D_Guyane_Francaise
    {27, 63502, 6147, Maker::esri}, // D_Hanoi_1972
    {27, 63942, 6148, Maker::esri}, // D_Hartebeesthoek_1994
    {0, 35941, 6314, Maker::epsg}, // DHDN
    {27, 64253, 6660, Maker::esri}, // D_Helle_1954
    {27, 64290, 6020, Maker::esri}, // D_Helmert_1906
    {27, 64325, 6255, Maker::esri}, // D_Herat_North
    {27, 64425, 6254, Maker::esri}, // D_Hito_XVIII_1963
    {27, 64558, 6658, Maker::esri}, // D_Hjorsey_1955
    {27, 64734, 6738, Maker::esri}, // D_Hong_Kong_1963
    {27, 64745, 6739, Maker::esri}, // D_Hong_Kong_1963_67
    {27, 64779, 6611, Maker::esri}, // D_Hong_Kong_1980
    {27, 64968, 6054, Maker::esri}, // D_Hughes_1980
    {27, 65007, 6237, Maker::esri}, // D_Hungarian_1972
    {27, 65051, 1024, Maker::esri}, // D_Hungarian_Datum_1909
    {27, 64928, 6236, Maker::esri}, // D_Hu_Tzu_Shan
    {27, 65899, 6697, Maker::esri}, // D_IGC_1962_Arc_of_the_6th_Parallel_South
    {27, 66018, 6670, Maker::esri}, // D_IGM_1995
    {27, 66217, 6641, Maker::esri}, // D_IGN53_Mare
    {27, 66289, 6633, Maker::esri}, // D_IGN56_Lifou
    {27, 66349, 6689, Maker::esri}, // D_IGN63_Hiva_Oa
    {27, 66488, 6634, Maker::esri}, // D_IGN72_Grande_Terre
    {27, 66522, 6630, Maker::esri}, // D_IGN72_Nuku_Hiva
    {27, 66569, 6700, Maker::esri}, // D_IGN_Astro_1960
    {27, 68968, 6239, Maker::esri}, // D_Indian_1954
    {27, 68974, 6131, Maker::esri}, // D_Indian_1960
    {27, 220536, 6240, Maker::esri}, // D_Indian_1975
    {27, 70050, 6021, Maker::esri}, // D_Indonesian
    {27, 70117, 6238, Maker::esri}, // D_Indonesian_1974
    {27, 70182, 6701, Maker::esri}, // D_Institut_Geographique_du_Congo_Belge_1955
    {27, 70627, 6022, Maker::esri}, // D_International_1924
    {27, 71292, 1029, Maker::esri}, // D_Iraqi_Geospatial_Reference_System
    {27, 71246, 6667, Maker::esri}, // D_Iraq_Kuwait_Boundary_1992
    {27, 66889, 6173, Maker::esri}, // D_IRENET95
    {27, 71418, 6659, Maker::esri}, // D_Islands_Network_1993
    {27, 71431, 1060, Maker::esri}, // D_Islands_Network_2004
    {27, 71443, 6141, Maker::esri}, // D_Israel
    {27, 67272, 6722, Maker::esri}, // D_ISTS_061_1968
    {27, 67284, 6724, Maker::esri}, // D_ISTS_073_1969
    {29, 70249, 6647, Maker::esri}, // D_ITRF_1988
    {29, 41698, 6648, Maker::esri}, // D_ITRF_1989
    {29, 46832, 6649, Maker::esri}, // D_ITRF_1990
    {29, 46861, 6650, Maker::esri}, // D_ITRF_1991
    {29, 31046, 6651, Maker::esri}, // D_ITRF_1992
    {29, 26157, 6652, Maker::esri}, // D_ITRF_1993
    {29, 31064, 6653, Maker::esri}, // D_ITRF_1994
    {29, 46977, 6654, Maker::esri}, // D_ITRF_1996
    {29, 18552, 6655, Maker::esri}, // D_ITRF_1997
    {29, 10011, 6656, Maker::esri}, // D_ITRF_2000
    {29, 17640, 6896, Maker::esri}, // D_ITRF_2005
    {29, 16911, 1061, Maker::esri}, // D_ITRF_2008
    {27, 73544, 6241, Maker::esri}, // D_Jamaica_1875
    {27, 73571, 6242, Maker::esri}, // D_Jamaica_1969
    {27, 73580, 6758, Maker::esri}, // D_Jamaica_2001
    {27, 73286, 6612, Maker::esri}, // D_JGD_2000
    {27, 73322, 1128, Maker::esri}, // D_JGD_2011
    {27, 74699, 6725, Maker::esri}, // D_Johnston_Island_1961
    {27, 74763, 6679, Maker::esri}, // D_Jouik_1961
    {27, 75639, 6243, Maker::esri}, // D_Kalianpur_1880
    {27, 75668, 6144, Maker::esri}, // D_Kalianpur_1937
    {27, 75677, 6145, Maker::esri}, // D_Kalianpur_1962
    {27, 75686, 6146, Maker::esri}, // D_Kalianpur_1975
    {27, 75726, 6244, Maker::esri}, // D_Kandawala
    {27, 76542, 6743, Maker::esri}, // D_Karbala_1979_Polservice
    {27, 76709, 6696, Maker::esri}, // D_Kasai_1953
    {27, 76919, 6695, Maker::esri}, // D_Katanga_1955
    {27, 77311, 6631, Maker::esri}, // D_Kerguelen_Island_1949
    {27, 77311, 6698, Maker::esri}, // D_Kerguelen_Island_1949
    {27, 77341, 6245, Maker::esri}, // D_Kertau
    {27, 77676, 6751, Maker::esri}, // D_Kertau_RSO
    {27, 74803, 6123, Maker::esri}, // D_KKJ
    {27, 78482, 6737, Maker::esri}, // D_Korea_2000
    {27, 78853, 6162, Maker::esri}, // D_Korean_Datum_1985
    {27, 78865, 6166, Maker::esri}, // D_Korean_Datum_1995
    {27, 78927, 6198, Maker::esri}, // D_Kousseri
    {27, 79023, 6024, Maker::esri}, // D_Krasovsky_1940
    {27, 79073, 6735, Maker::esri}, // D_Kusaie_1951
    {27, 79186, 6246, Maker::esri}, // D_Kuwait_Oil_Company
    {27, 79200, 6319, Maker::esri}, // D_Kuwait_Utility
    {27, 79338, 1160, Maker::esri}, // D_Kyrgyz_Republic_2006
    {27, 80189, 6247, Maker::esri}, // D_La_Canoa
    {27, 193531, 6249, Maker::esri}, // D_Lake
    {27, 80522, 6677, Maker::esri}, // D_Lao_1993
    {27, 80538, 6678, Maker::esri}, // D_Lao_National_Datum_1997
    {27, 80806, 6661, Maker::esri}, // D_Latvia_1992
    {27, 80918, 6250, Maker::esri}, // D_Leigon
    {27, 80879, 6699, Maker::esri}, // D_Le_Pouce_1934
    {27, 80988, 6251, Maker::esri}, // D_Liberia_1964
    {27, 81231, 6754, Maker::esri}, // D_Libyan_Geodetic_Datum_2006
    {27, 81670, 6207, Maker::esri}, // D_Lisbon
    {27, 81650, 6666, Maker::esri}, // D_Lisbon_1890
    {27, 81753, 6126, Maker::esri}, // D_Lithuania_1994
    {27, 81825, 6726, Maker::esri}, // D_Little_Cayman_1961
    {27, 82620, 6142, Maker::esri}, // D_Locodjo_1965
    {27, 82697, 6288, Maker::esri}, // D_Loma_Quintana
    {27, 82707, 6252, Maker::esri}, // D_Lome
    {27, 82926, 6181, Maker::esri}, // D_Luxembourg_Reference_Frame
    {27, 83043, 6253, Maker::esri}, // D_Luzon_1911
    {27, 83177, 1208, Maker::esri}, // D_MACAO_2008
    {27, 86291, 6185, Maker::esri}, // D_Madeira_1936
    {27, 86396, 6903, Maker::esri}, // D_Madrid_1870
    {27, 86441, 6128, Maker::esri}, // D_Madzansua
    {27, 83186, 6686, Maker::esri}, // D_MAGNA
    {27, 86471, 6256, Maker::esri}, // D_Mahe_1971
    {27, 86744, 6257, Maker::esri}, // D_Makassar
    {27, 87238, 6259, Maker::esri}, // D_Malongo_1987
    {27, 87310, 6260, Maker::esri}, // D_Manoca
    {27, 87341, 6193, Maker::esri}, // D_Manoca_1962
    {27, 87876, 1063, Maker::esri}, // D_Marco_Geodesico_Nacional
    {27, 88228, 6262, Maker::esri}, // D_Massawa
    {27, 88289, 6692, Maker::esri}, // D_Maupiti_1983
    {27, 88473, 6702, Maker::esri}, // D_Mauritania_1999
    {27, 88720, 6261, Maker::esri}, // D_Merchich
    {27, 88877, 1042, Maker::esri}, // D_Mexican_Datum_of_1993
    {27, 89300, 1120, Maker::esri}, // D_Mexico_ITRF2008
    {27, 84400, 6312, Maker::esri}, // D_MGI
    {27, 85076, 1031, Maker::esri}, // D_MGI_1901
    {27, 89381, 6264, Maker::esri}, // D_Mhast
    {27, 89451, 6703, Maker::esri}, // D_Mhast_1951
    {27, 89459, 6705, Maker::esri}, // D_Mhast_Offshore
    {27, 89490, 6704, Maker::esri}, // D_Mhast_Onshore
    {27, 89952, 6727, Maker::esri}, // D_Midway_1961
    {27, 90146, 6263, Maker::esri}, // D_Minna
    {27, 85361, 1032, Maker::esri}, // D_MOLDREF99
    {27, 91683, 6265, Maker::esri}, // D_Monte_Mario
    {27, 91827, 6604, Maker::esri}, // D_Montserrat_1958
    {27, 91887, 6691, Maker::esri}, // D_Moorea_1987
    {27, 85470, 6639, Maker::esri}, // D_MOP78
    {27, 92003, 6157, Maker::esri}, // D_Mount_Dillon
    {27, 92230, 6130, Maker::esri}, // D_Moznet
    {27, 92334, 6266, Maker::esri}, // D_Mporaloko
    {27, 123963, 6609, Maker::esri}, // D_NAD_1927_CGQ77
    {27, 124014, 6608, Maker::esri}, // D_NAD_1927_Definition_1976
    {30, 29748, 1116, Maker::esri}, // D_NAD_1983_2011
    {30, 26541, 1133, Maker::esri}, // D_NAD_1983_CORS96
    {30, 83130, 1118, Maker::esri}, // D_NAD_1983_MA11
    {30, 84351, 1221, Maker::esri}, // D_NAD_1983_MARP00
    {30, 125336, 6759, Maker::esri}, // D_NAD_1983_NSRS2007
    {30, 139785, 1117, Maker::esri}, // D_NAD_1983_PA11
    {30, 139826, 1249, Maker::esri}, // D_NAD_1983_PACP00
    {27, 127333, 6744, Maker::esri}, // D_Nahrwan_1934
    {27, 127373, 6270, Maker::esri}, // D_Nahrwan_1967
    {27, 127453, 6693, Maker::esri}, // D_Nakhl-e_Ghanem
    {27, 127657, 6158, Maker::esri}, // D_Naparima_1955
    {27, 127687, 6271, Maker::esri}, // D_Naparima_1972
    {27, 124859, 6644, Maker::esri}, // D_NEA74_Noumea
    {27, 127890, 1111, Maker::esri}, // D_Nepal_Nagarkot
    {27, 131496, 1045, Maker::esri}, // D_New_Beijing
    {27, 131882, 6272, Maker::esri}, // D_New_Zealand_1949
    {27, 124924, 6318, Maker::esri}, // D_NGN
    {27, 125150, 6273, Maker::esri}, // D_NGO_1948
    {27, 132373, 6902, Maker::esri}, // D_Nord_de_Guerre
    {27, 132325, 6307, Maker::esri}, // D_Nord_Sahara_1959
    {31, 133027, 6267, Maker::esri}, // D_North_American_1927
    {31, 85466, 6269, Maker::esri}, // D_North_American_1983
    {31, 1516, 6140, Maker::esri}, // D_North_American_1983_CSRS
    {31, 1585, 6152, Maker::esri}, // D_North_American_1983_HARN
    {31, 854, 6268, Maker::esri}, // D_North_American_Michigan
    {27, 136086, 6680, Maker::esri}, // D_Nouakchott_1965
    {27, 125350, 6276, Maker::esri}, // D_NSWC_9Z_2
    {27, 125368, 6275, Maker::esri}, // D_NTF
    {27, 125716, 6025, Maker::esri}, // D_NWL_9D
    {27, 127140, 6167, Maker::esri}, // D_NZGD_2000
    {27, 136907, 6129, Maker::esri}, // D_Observatario
    {27, 137285, 1070, Maker::esri}, // D_Ocotepeque_1935
    {27, 137675, 6135, Maker::esri}, // D_Old_Hawaiian
    {27, 136790, 6277, Maker::esri}, // D_OSGB_1936
    {27, 136798, 6278, Maker::esri}, // D_OSGB_1970_SN
    {27, 136838, 6188, Maker::esri}, // D_OSNI_1952
    {27, 136898, 6279, Maker::esri}, // D_OS_SN_1980
    {27, 136882, 6032, Maker::esri}, // D_OSU_86F
    {27, 136890, 6033, Maker::esri}, // D_OSU_91A
    {27, 141736, 6280, Maker::esri}, // D_Padang_1884
    {27, 141968, 6281, Maker::esri}, // D_Palestine_1923
    {27, 142098, 6161, Maker::esri}, // D_Pampa_del_Castillo
    {27, 142197, 1072, Maker::esri}, // D_Panama-Colon-1911
    {27, 142551, 1076, Maker::esri}, // D_Papua_New_Guinea_Geodetic_Datum_1994
    {27, 142579, 6740, Maker::esri}, // D_Parametrop_Zemp_1990
    {27, 140050, 6134, Maker::esri}, // D_PDO_1993
    {27, 143181, 1067, Maker::esri}, // D_Peru96
    {27, 143313, 6636, Maker::esri}, // D_Petrels_1972
    {27, 143392, 6683, Maker::esri}, // D_Philippine_Reference_System_1992
    {27, 143621, 6728, Maker::esri}, // D_Pico_de_Las_Nieves
    {27, 143909, 6729, Maker::esri}, // D_Pitcairn_1967
    {27, 143937, 6763, Maker::esri}, // D_Pitcairn_2006
    {27, 143999, 6027, Maker::esri}, // D_Plessis_1817
    {27, 144018, 6620, Maker::esri}, // D_Point_58
    {27, 144064, 6637, Maker::esri}, // D_Pointe_Geologie_Perroud_1950
    {27, 144085, 6282, Maker::esri}, // D_Pointe_Noire
    {27, 144566, 6615, Maker::esri}, // D_Porto_Santo_1936
    {27, 144601, 6663, Maker::esri}, // D_Porto_Santo_1995
    {27, 140411, 6172, Maker::esri}, // D_POSGAR
    {27, 140835, 6694, Maker::esri}, // D_POSGAR_1994
    {27, 140864, 6190, Maker::esri}, // D_POSGAR_1998
    {27, 140893, 1062, Maker::esri}, // D_POSGAR_2007
    {27, 145039, 6746, Maker::esri}, // D_Potsdam_1983
    {27, 176988, 1046, Maker::esri}, // D_Principe
    {27, 145247, 6248, Maker::esri}, // D_Provisional_S_American_1956
    {27, 141316, 1041, Maker::esri}, // D_PTRA08
    {27, 145387, 6139, Maker::esri}, // D_Puerto_Rico
    {27, 159885, 6284, Maker::esri}, // D_Pulkovo_1942
    {27, 159983, 6179, Maker::esri}, // D_Pulkovo_1942_Adj_1958
    {27, 160084, 6178, Maker::esri}, // D_Pulkovo_1942_Adj_1983
    {27, 160193, 6200, Maker::esri}, // D_Pulkovo_1995
    {27, 160392, 6285, Maker::esri}, // D_Qatar
    {27, 160476, 6286, Maker::esri}, // D_Qatar_1948
    {27, 160365, 6614, Maker::esri}, // D_QND_1995
    {27, 160505, 6287, Maker::esri}, // D_Qornoq
    {27, 160760, 6194, Maker::esri}, // D_Qornoq_1927
    {27, 165043, 6153, Maker::esri}, // D_Rassadiran
    {27, 165104, 6745, Maker::esri}, // D_Rauenberg_1983
    {27, 165493, 1035, Maker::esri}, // D_Red_Geodesica_de_Canarias_1995
    {27, 171201, 6189, Maker::esri}, // D_REGVEN
    {32, 221314, 6687, Maker::esri}, // D_Reseau_Geodesique_de_la_Polynesie_Francaise
    {32, 221333, 1033, Maker::esri}, // D_Reseau_Geodesique_de_la_RDC_2005
    {32, 221260, 1036, Maker::esri}, // D_Reseau_Geodesique_de_Mayotte_2004
    {32, 221271, 6749, Maker::esri}, // D_Reseau_Geodesique_de_Nouvelle_Caledonie_1991-93
    {32, 221412, 1113, Maker::esri}, // D_Reseau_Geodesique_des_Terres_Australes_et_Antarctiques_Francaises_2007
    {32, 221292, 1038, Maker::esri}, // D_Reseau_Geodesique_de_St_Pierre_et_Miquelon_2006
    {27, 166282, 1132, Maker::esri}, // D_Rete_Dinamica_Nazionale_2008
    {27, 166361, 6626, Maker::esri}, // D_Reunion_1947
    {27, 166421, 6657, Maker::esri}, // D_Reykjavik_1900
    {27, 162466, 6171, Maker::esri}, // D_RGF_1993
    {27, 162427, 6624, Maker::esri}, // D_RGFG_1995
    {27, 162692, 6645, Maker::esri}, // D_RGNC_1991
    {27, 163267, 6627, Maker::esri}, // D_RGR_1992
    {27, 166810, 6764, Maker::esri}, // D_Ross_Sea_Region_Geodetic_Datum_2000
    {27, 163830, 1047, Maker::esri}, // D_RRAF_1991
    {27, 164957, 6124, Maker::esri}, // D_RT_1990
    {0, 36397, 1058, Maker::epsg}, // DRUKREF 03
    {27, 176654, 6622, Maker::esri}, // D_Sainte_Anne
    {27, 176594, 6638, Maker::esri}, // D_Saint_Pierre_et_Miquelon_1950
    {27, 176748, 6125, Maker::esri}, // D_Samboja
    {27, 176960, 6730, Maker::esri}, // D_Santo_DOS_1965
    {27, 177019, 1044, Maker::esri}, // D_Sao_Tome
    {27, 177079, 6292, Maker::esri}, // D_Sapper_Hill_1943
    {27, 177356, 6293, Maker::esri}, // D_Schwarzeck
    {27, 177610, 6195, Maker::esri}, // D_Scoresbysund_1952
    {27, 177668, 6294, Maker::esri}, // D_Segora
    {27, 177735, 6616, Maker::esri}, // D_Selvagem_Grande_1938
    {27, 177854, 1034, Maker::esri}, // D_Serbian_Reference_Network_1998
    {27, 177902, 6295, Maker::esri}, // D_Serindung
    {27, 168876, 1066, Maker::esri}, // D_SGNP_MARCARIO_SOLIS
    {27, 178048, 1071, Maker::esri}, // D_Sibun_Gorge_1922
    {27, 178361, 6174, Maker::esri}, // D_Sierra_Leone_1924
    {27, 178424, 6175, Maker::esri}, // D_Sierra_Leone_1968
    {27, 26628, 6170, Maker::esri}, // D_SIRGAS
    {27, 171333, 6674, Maker::esri}, // D_SIRGAS_2000
    {27, 170697, 1064, Maker::esri}, // D_SIRGAS-Chile
    {27, 170697, 1254, Maker::esri}, // D_SIRGAS-Chile
    {27, 171432, 1069, Maker::esri}, // D_SIRGAS_ES2007.8
    {27, 171208, 1068, Maker::esri}, // D_SIRGAS-ROU98
    {27, 176474, 6156, Maker::esri}, // D_S_JTSK
    {27, 176506, 1052, Maker::esri}, // D_S_JTSK_05
    {27, 176516, 1055, Maker::esri}, // D_S_JTSK_05_Ferro
    {27, 179010, 6765, Maker::esri}, // D_Slovenia_Geodetic_Datum_1996
    {27, 179059, 6718, Maker::esri}, // D_Solomon_1968
    {27, 181145, 6291, Maker::esri}, // D_South_American_1969
    {27, 181145, 6618, Maker::esri}, // D_South_American_1969
    {27, 181157, 1075, Maker::esri}, // D_South_American_Datum_1969_96
    {27, 181375, 1138, Maker::esri}, // D_South_East_Island_1943
    {27, 181423, 6164, Maker::esri}, // D_South_Yemen
    {27, 144435, 6035, Maker::esri}, // D_Sphere
    {27, 181679, 6052, Maker::esri}, // D_Sphere_Clarke_1866_Authalic
    {27, 181698, 6047, Maker::esri}, // D_Sphere_GRS_1980_Authalic
    {27, 181713, 6053, Maker::esri}, // D_Sphere_International_1924_Authalic
    {27, 181759, 1053, Maker::esri}, // D_Sri_Lanka_Datum_1999
    {27, 175877, 6643, Maker::esri}, // D_ST71_Belep
    {27, 175940, 6642, Maker::esri}, // D_ST84_Ile_des_Pins
    {27, 176005, 6750, Maker::esri}, // D_ST87_Ouvea
    {27, 182363, 6138, Maker::esri}, // D_St_George_Island
    {27, 182450, 6605, Maker::esri}, // D_St_Kitts_1955
    {27, 182490, 6136, Maker::esri}, // D_St_Lawrence_Island
    {27, 182502, 6606, Maker::esri}, // D_St_Lucia_1955
    {27, 182761, 6308, Maker::esri}, // D_Stockholm_1938
    {27, 182567, 6137, Maker::esri}, // D_St_Paul_Island
    {27, 182784, 6028, Maker::esri}, // D_Struve_1860
    {27, 182577, 6607, Maker::esri}, // D_St_Vincent_1945
    {27, 4948, 6296, Maker::esri}, // D_Sudan
    {27, 176038, 6757, Maker::esri}, // D_SVY21
    {27, 176108, 6619, Maker::esri}, // D_SWEREF99
    {27, 183468, 6151, Maker::esri}, // D_Swiss_TRF_1995
    {27, 184750, 6629, Maker::esri}, // D_Tahaa_1954
    {27, 184815, 6628, Maker::esri}, // D_Tahiti_1952
    {27, 184836, 6690, Maker::esri}, // D_Tahiti_1979
    {27, 185171, 6297, Maker::esri}, // D_Tananarive_1925
    {27, 185446, 6707, Maker::esri}, // D_Tern_Island_1961
    {27, 185455, 6127, Maker::esri}, // D_Tete
    {27, 186145, 6298, Maker::esri}, // D_Timbalai_1948
    {27, 183937, 6299, Maker::esri}, // D_TM65
    {27, 183984, 6300, Maker::esri}, // D_TM75
    {27, 186211, 6301, Maker::esri}, // D_Tokyo
    {27, 186991, 1095, Maker::esri}, // D_Tonga_Geodetic_Datum_2005
    {27, 187289, 6302, Maker::esri}, // D_Trinidad_1903
    {27, 187363, 6734, Maker::esri}, // D_Tristan_1968
    {27, 187406, 6303, Maker::esri}, // D_Trucial_Coast_1948
    {27, 187643, 1057, Maker::esri}, // D_Turkish_National_Reference_Frame
    {27, 184659, 1025, Maker::esri}, // D_TWD_1967
    {27, 184694, 1026, Maker::esri}, // D_TWD_1997
    {27, 196192, 1077, Maker::esri}, // D_Ukraine_2000
    {27, 199099, 6748, Maker::esri}, // D_Vanua_Levu_1915
    {27, 199421, 6676, Maker::esri}, // D_Vientiane_1982
    {27, 200306, 6756, Maker::esri}, // D_Vietnam_2000
    {27, 200585, 6752, Maker::esri}, // D_Viti_Levu_1912
    {27, 200597, 6731, Maker::esri}, // D_Viti_Levu_1916
    {27, 200773, 6304, Maker::esri}, // D_Voirol_1875
    {27, 200797, 6671, Maker::esri}, // D_Voirol_1879
    {27, 213781, 6732, Maker::esri}, // D_Wake_Eniwetok_1960
    {27, 213796, 6733, Maker::esri}, // D_Wake_Island_1952
    {27, 213948, 6029, Maker::esri}, // D_War_Office
    {27, 211040, 6760, Maker::esri}, // D_WGS_1966
    {27, 211047, 6322, Maker::esri}, // D_WGS_1972
    {27, 211054, 6324, Maker::esri}, // D_WGS_1972_BE
    {27, 211119, 6326, Maker::esri}, // D_WGS_1984
    {27, 211192, 6055, Maker::esri}, // D_WGS_1984_Major_Auxiliary_Sphere
    {27, 220381, 6610, Maker::esri}, // D_Xian_1980
    {27, 220445, 6309, Maker::esri}, // D_Yacare
    {27, 220774, 6163, Maker::esri}, // D_Yemen_NGN_1996
    {27, 220803, 6310, Maker::esri}, // D_Yoff
    {27, 220929, 6311, Maker::esri}, // D_Zanderij
    {0, 38530, 1319, Maker::epsg}, // EBBWV14-IRF
    {0, 38596, 1310, Maker::epsg}, // ECML14_NB-IRF
    {0, 38622, 6230, Maker::epsg}, // ED50
    {0, 39098, 6154, Maker::epsg}, // ED50(ED77)
    {0, 39233, 6668, Maker::epsg}, // ED79
    {0, 39238, 6231, Maker::epsg}, // ED87
    {0, 39282, 6159, Maker::epsg}, // ELD79
    {0, 39560, 1308, Maker::epsg}, // EOS21-IRF
    {0, 41326, 6133, Maker::epsg}, // EST92
    {0, 41332, 6180, Maker::epsg}, // EST97
    {0, 140136, 1186, Maker::epsg}, // ETRF2000
    {0, 41399, 1305, Maker::epsg}, // ETRF2000-PL
    {0, 41491, 1204, Maker::epsg}, // ETRF2005
    {0, 41510, 1206, Maker::epsg}, // ETRF2014
    {0, 41531, 1178, Maker::epsg}, // ETRF89
    {0, 41560, 1179, Maker::epsg}, // ETRF90
    {0, 41579, 1180, Maker::epsg}, // ETRF91
    {0, 41598, 1181, Maker::epsg}, // ETRF92
    {0, 41617, 1182, Maker::epsg}, // ETRF93
    {0, 41636, 1183, Maker::epsg}, // ETRF94
    {0, 41655, 1184, Maker::epsg}, // ETRF96
    {0, 41674, 1185, Maker::epsg}, // ETRF97
    {46, 46832, 1179, Maker::esri}, // European_Terrestrial_Reference_Frame_1990
    {46, 46861, 1180, Maker::esri}, // European_Terrestrial_Reference_Frame_1991
    {46, 31046, 1181, Maker::esri}, // European_Terrestrial_Reference_Frame_1992
    {46, 26157, 1182, Maker::esri}, // European_Terrestrial_Reference_Frame_1993
    {46, 31064, 1183, Maker::esri}, // European_Terrestrial_Reference_Frame_1994
    {46, 46977, 1184, Maker::esri}, // European_Terrestrial_Reference_Frame_1996
    {46, 18552, 1185, Maker::esri}, // European_Terrestrial_Reference_Frame_1997
    {46, 10011, 1186, Maker::esri}, // European_Terrestrial_Reference_Frame_2000
    {46, 17640, 1204, Maker::esri}, // European_Terrestrial_Reference_Frame_2005
    {46, 3834, 1206, Maker::esri}, // European_Terrestrial_Reference_Frame_2014
    {0, 43909, 1311, Maker::epsg}, // EWR2-IRF
    {0, 47515, 6741, Maker::epsg}, // FD54
    {0, 47547, 6753, Maker::epsg}, // FD54a
    {0, 71111, 6132, Maker::epsg}, // FD58
    {0, 47602, 1078, Maker::epsg}, // FEH10
    {0, 47650, 6720, Maker::epsg}, // FGD 1986
    {0, 48347, 6720, Maker::epsg}, // Fiji 1986
    {0, 47693, 1321, Maker::epsg}, // FNL22-IRF
    {0, 49922, 1044, Maker::epsg}, // Fortaleza
    {0, 49722, 6625, Maker::epsg}, // Fort Desaix
    {0, 51413, 1289, Maker::esri}, // GBK19_Intermediate_Reference_Frame
    {0, 51388, 1289, Maker::epsg}, // GBK19-IRF
    {0, 51438, 6723, Maker::epsg}, // GCGD59
    {0, 126475, 6272, Maker::epsg}, // GD49
    {0, 51490, 1168, Maker::esri}, // GDA2020
    {0, 52058, 6283, Maker::epsg}, // GDA94
    {0, 52478, 1056, Maker::epsg}, // GDBD2009
    {0, 52516, 6742, Maker::epsg}, // GDM2000
    {0, 60312, 6211, Maker::epsg}, // Genuk
    {0, 60490, 1159, Maker::esri}, // Geodezicheskaya_Sistema_Koordinat_2011
    {0, 52824, 6121, Maker::proj}, // GGRS87
    {0, 52936, 6747, Maker::epsg}, // GR96
    {0, 61256, 6723, Maker::epsg}, // Grand Cayman 1959
    {0, 53468, 1159, Maker::epsg}, // GRS-2011
    {0, 56594, 1159, Maker::epsg}, // GSK-2011
    {0, 62456, 6152, Maker::epsg}, // Guam Geodetic Network 1993
    {0, 62927, 1188, Maker::esri}, // Gusterberg_(Ferro)
    {0, 62968, 1024, Maker::epsg}, // HD1909
    {0, 62974, 6237, Maker::epsg}, // HD72
    {0, 221570, 6312, Maker::proj}, // hermannskogel
    {0, 63008, 6738, Maker::epsg}, // HK63
    {0, 63013, 6739, Maker::epsg}, // HK63(67)
    {0, 63022, 6611, Maker::epsg}, // HK80
    {0, 64805, 1209, Maker::esri}, // Hong_Kong_Geodetic
    {0, 63027, 1031, Maker::epsg}, // HR1901
    {0, 63083, 1264, Maker::esri}, // HS2_Intermediate_Reference_Frame
    {0, 63069, 1264, Maker::epsg}, // HS2-IRF
    {0, 63121, 6761, Maker::epsg}, // HTRS96
    {0, 63281, 1317, Maker::epsg}, // HULLEE13-IRF
    {0, 64885, 6236, Maker::epsg}, // Hu Tzu Shan
    {0, 65159, 6238, Maker::epsg}, // ID74
    {62, 70249, 6647, Maker::epsg}, // IERS Terrestrial Reference Frame 1988
    {62, 41698, 6648, Maker::epsg}, // IERS Terrestrial Reference Frame 1989
    {62, 46832, 6649, Maker::epsg}, // IERS Terrestrial Reference Frame 1990
    {62, 46861, 6650, Maker::epsg}, // IERS Terrestrial Reference Frame 1991
    {62, 31046, 6651, Maker::epsg}, // IERS Terrestrial Reference Frame 1992
    {62, 26157, 6652, Maker::epsg}, // IERS Terrestrial Reference Frame 1993
    {62, 31064, 6653, Maker::epsg}, // IERS Terrestrial Reference Frame 1994
    {0, 65451, 1144, Maker::esri}, // IG05(2012)_Intermediate_Datum
    {0, 65538, 1142, Maker::esri}, // IG05_Intermediate_Datum
    {0, 65723, 6697, Maker::epsg}, // IGC 1962 6th Parallel South
    {0, 65764, 6701, Maker::epsg}, // IGCB 1955
    {0, 65967, 6755, Maker::epsg}, // IGD95
    {0, 65973, 6670, Maker::epsg}, // IGM95
    {0, 66057, 6628, Maker::epsg}, // IGN 1952
    {0, 66558, 6690, Maker::epsg}, // IGN79 Tahiti
    {0, 66599, 1029, Maker::epsg}, // IGRS
    {0, 66872, 6667, Maker::epsg}, // IKBD-92
    {0, 68741, 6131, Maker::epsg}, // Indian (DMA Reduced)
    {0, 70068, 6755, Maker::epsg}, // Indonesian Geodetic Datum 1995
    {0, 70088, 1293, Maker::epsg}, // Indonesian Geospatial Reference System 2013
    {0, 70638, 1165, Maker::esri}, // International_Terrestrial_Reference_Frame_2014
    {0, 221581, 6299, Maker::proj}, // ire65
    {0, 71350, 1046, Maker::epsg}, // Island of Principe datum
    {0, 71365, 1044, Maker::epsg}, // Island of Sao Tome datum
    {0, 71408, 1187, Maker::esri}, // Islands_Net_2016
    {0, 66986, 1060, Maker::epsg}, // ISN2004
    {0, 67056, 1187, Maker::epsg}, // ISN2016
    {0, 67167, 6659, Maker::epsg}, // ISN93
    {0, 71473, 1114, Maker::esri}, // Israel_Geodetic_Datum_2005
    {0, 71473, 1143, Maker::esri}, // Israel_Geodetic_Datum_2005
    {0, 71598, 1115, Maker::esri}, // Israeli_Geodetic_Datum_2005(2012)
    {0, 71598, 1145, Maker::esri}, // Israeli_Geodetic_Datum_2005(2012)
    {0, 67296, 6656, Maker::epsg}, // ITRF2000
    {0, 67315, 6896, Maker::epsg}, // ITRF2005
    {0, 88983, 1061, Maker::epsg}, // ITRF2008
    {0, 67346, 1165, Maker::epsg}, // ITRF2014
    {0, 67367, 1322, Maker::epsg}, // ITRF2020
    {0, 67387, 6647, Maker::epsg}, // ITRF88
    {0, 67406, 6648, Maker::epsg}, // ITRF89
    {0, 67425, 6649, Maker::epsg}, // ITRF90
    {0, 67444, 6650, Maker::epsg}, // ITRF91
    {0, 89125, 6651, Maker::epsg}, // ITRF92
    {0, 67475, 6652, Maker::epsg}, // ITRF93
    {0, 67494, 6653, Maker::epsg}, // ITRF94
    {0, 67513, 6654, Maker::epsg}, // ITRF96
    {0, 67532, 6655, Maker::epsg}, // ITRF97
    {0, 71822, 6758, Maker::epsg}, // JAD2001
    {0, 71870, 6242, Maker::epsg}, // JAD69
    {0, 74473, 1293, Maker::epsg}, // Jaring Kontrol Geodesi (JKG)
    {0, 72020, 6612, Maker::epsg}, // JGD2000
    {0, 72665, 1128, Maker::epsg}, // JGD2011
    {0, 74666, 6725, Maker::epsg}, // Johnston Atoll 1961
    {0, 76433, 6743, Maker::epsg}, // Karbala 1979 (Polservice)
    {0, 76635, 6123, Maker::epsg}, // Kartastokoordinaattijärjestelmä (1966)
    {0, 77842, 1268, Maker::esri}, // Kingdom_of_Saudi_Arabia_Geodetic_Reference_Frame_2017
    {0, 74803, 6123, Maker::epsg}, // KKJ
    {0, 74907, 6246, Maker::epsg}, // KOC
    {0, 77920, 6737, Maker::epsg}, // Korea 2000
    {0, 74931, 1251, Maker::epsg}, // KOSOVAREF01
    {0, 74942, 1251, Maker::epsg}, // KOSOVAREF01 (2012)
    {0, 74999, 1251, Maker::epsg}, // KOSOVAREF12
    {0, 78905, 1251, Maker::esri}, // Kosovo_Reference_System_2001
    {0, 75021, 1268, Maker::epsg}, // KSA-GRF17
    {0, 75146, 6319, Maker::epsg}, // KUDAMS
    {0, 79212, 1160, Maker::epsg}, // Kyrg-06
    {0, 80499, 6678, Maker::epsg}, // Lao 1997
    {89, 92246, 6699, Maker::epsg}, // Le Pouce (Mauritius 94)
    {89, 140143, 6699, Maker::epsg}, // Le Pouce (Mauritius PN 94)
    {0, 80957, 6227, Maker::epsg}, // Levant
    {0, 79597, 6754, Maker::epsg}, // LGD2006
    {0, 81799, 6726, Maker::epsg}, // Little Cayman Geodetic Datum 1961
    {0, 79848, 6661, Maker::epsg}, // LKS92
    {0, 79872, 6126, Maker::epsg}, // LKS94 (ETRS89)
    {0, 79945, 1295, Maker::epsg}, // LTF2004
    {0, 79960, 6181, Maker::epsg}, // LUREF
    {0, 82893, 6181, Maker::epsg}, // Luxembourg 1930
    {0, 83069, 1295, Maker::esri}, // Lyon_Turin_Ferroviaire_2004
    {0, 85993, 1207, Maker::esri}, // Macao_1920
    {0, 85965, 1208, Maker::epsg}, // Macao 2008
    {0, 178658, 1066, Maker::epsg}, // MACARIO SOLIS
    {0, 86264, 6615, Maker::epsg}, // Madeira SE Base
    {0, 86276, 6663, Maker::epsg}, // Madeira SE Base 1995
    {0, 86416, 6903, Maker::epsg}, // Madrid
    {0, 83192, 6686, Maker::epsg}, // MAGNA-SIRGAS
    {0, 87156, 6245, Maker::epsg}, // Malaysia Revised Triangulation 1968
    {0, 87782, 6616, Maker::epsg}, // Marco Astro
    {0, 84263, 1063, Maker::epsg}, // MARGEN
    {0, 88841, 1042, Maker::epsg}, // Mexican Datum of 1993
    {0, 84393, 1218, Maker::epsg}, // MGD-2000
    {0, 84400, 6312, Maker::epsg}, // MGI
    {0, 84404, 6805, Maker::epsg}, // MGI (Ferro)
    {0, 89444, 6703, Maker::epsg}, // Mhast 1951
    {0, 85137, 6688, Maker::epsg}, // MHEFO 55
    {0, 85146, 6634, Maker::epsg}, // MHNC72
    {0, 90082, 1258, Maker::esri}, // Ministerio_de_Marina_Norte
    {0, 90100, 1259, Maker::esri}, // Ministerio_de_Marina_Sur
    {0, 85217, 1271, Maker::esri}, // MML07_Intermediate_Reference_Frame
    {0, 85189, 1271, Maker::epsg}, // MML07-IRF
    {0, 85243, 1258, Maker::epsg}, // MMN
    {0, 85271, 1259, Maker::epsg}, // MMS
    {0, 90869, 6683, Maker::epsg}, // Modified Luzon Datum
    {0, 85339, 1315, Maker::epsg}, // MOLDOR11-IRF
    {0, 85434, 1218, Maker::esri}, // MOMRA_Terrestrial_Reference_Frame_2000
    {0, 85462, 6692, Maker::epsg}, // MOP 1983
    {0, 91960, 1046, Maker::epsg}, // Morro do Papagaio
    {0, 92230, 6130, Maker::epsg}, // Moznet
    {0, 85535, 1314, Maker::epsg}, // MRH21-IRF
    {0, 85553, 6245, Maker::epsg}, // MRT68
    {0, 85773, 1218, Maker::epsg}, // MTRF-2000
    {0, 85905, 1324, Maker::epsg}, // MWC18-IRF
    {110, 212, 1211, Maker::esri}, // NAD_1983_(Federal_Base_Network)
    {110, 325, 1212, Maker::esri}, // NAD_1983_(High_Accuracy_Reference_Network-Corrected)
    {0, 27837, 6267, Maker::proj}, // NAD27
    {0, 95036, 6608, Maker::epsg}, // NAD27(76)
    {0, 133011, 6269, Maker::proj}, // NAD83
    {0, 99893, 6269, Maker::epsg}, // NAD83(1986)
    {0, 99957, 1116, Maker::epsg}, // NAD83(2011)
    {0, 109689, 1133, Maker::epsg}, // NAD83(CORS96)
    {0, 110739, 6140, Maker::epsg}, // NAD83(CSRS)
    {101, 88148, 1195, Maker::epsg}, // NAD83(CSRS) 2002
    {101, 17640, 1196, Maker::epsg}, // NAD83(CSRS) 2005
    {0, 113833, 1192, Maker::epsg}, // NAD83(CSRS96)
    {0, 113864, 1193, Maker::epsg}, // NAD83(CSRS98)
    {0, 111765, 1192, Maker::epsg}, // NAD83(CSRS)v1
    {0, 111772, 1193, Maker::epsg}, // NAD83(CSRS)v2
    {0, 112262, 1194, Maker::epsg}, // NAD83(CSRS)v3
    {0, 112650, 1195, Maker::epsg}, // NAD83(CSRS)v4
    {0, 112988, 1196, Maker::epsg}, // NAD83(CSRS)v5
    {0, 112995, 1197, Maker::epsg}, // NAD83(CSRS)v6
    {0, 113475, 1198, Maker::epsg}, // NAD83(CSRS)v7
    {0, 114131, 1211, Maker::epsg}, // NAD83(FBN)
    {0, 114146, 6152, Maker::epsg}, // NAD83(HARN)
    {0, 114138, 1212, Maker::epsg}, // NAD83(HARN Corrected)
    {0, 95622, 6152, Maker::epsg}, // NAD83 (High Accuracy Regional Network)
    {0, 95648, 6152, Maker::epsg}, // NAD83 (High Precision Geodetic Network)
    {0, 119298, 6152, Maker::epsg}, // NAD83(HPGN)
    {0, 119305, 1118, Maker::epsg}, // NAD83(MA11)
    {0, 119352, 1221, Maker::epsg}, // NAD83(MARP00)
    {0, 123798, 6269, Maker::epsg}, // NAD83(Original)
    {0, 123808, 1117, Maker::epsg}, // NAD83(PA11)
    {0, 123937, 1249, Maker::epsg}, // NAD83(PACP00)
    {0, 124771, 6902, Maker::epsg}, // NDG (Paris)
    {0, 130240, 6199, Maker::epsg}, // New Egyptian
    {0, 124924, 6318, Maker::epsg}, // NGN
    {0, 133578, 1192, Maker::esri}, // North_American_Datum_of_1983_(CSRS96)
    {158, 1531, 1193, Maker::esri}, // North_American_Datum_of_1983_(CSRS)_version_2
    {158, 1557, 1194, Maker::esri}, // North_American_Datum_of_1983_(CSRS)_version_3
    {158, 176, 1195, Maker::esri}, // North_American_Datum_of_1983_(CSRS)_version_4
    {158, 199, 1196, Maker::esri}, // North_American_Datum_of_1983_(CSRS)_version_5
    {158, 2527, 1197, Maker::esri}, // North_American_Datum_of_1983_(CSRS)_version_6
    {158, 2143, 1198, Maker::esri}, // North_American_Datum_of_1983_(CSRS)_version_7
    {0, 136149, 6181, Maker::epsg}, // Nouvelle Triangulation du Luxembourg
    {0, 125368, 6275, Maker::epsg}, // NTF
    {0, 125697, 6181, Maker::epsg}, // NTL
    {0, 125736, 6167, Maker::epsg}, // NZGD2000
    {0, 221744, 6272, Maker::proj}, // nzgd49
    {0, 136944, 6182, Maker::epsg}, // Observatario Flores
    {0, 136976, 6182, Maker::epsg}, // Observatorio 1966
    {0, 136989, 6182, Maker::epsg}, // Observatorio Meteorologico 1939
    {0, 136518, 6281, Maker::epsg}, // OID
    {0, 137547, 6229, Maker::epsg}, // Old Egyptian
    {0, 137662, 6281, Maker::epsg}, // Old Israeli Datum
    {0, 137855, 1147, Maker::esri}, // Oman_National_Geodetic_Datum_2014
    {0, 137880, 1263, Maker::esri}, // Oman_National_Geodetic_Datum_2017
    {0, 136522, 1147, Maker::epsg}, // ONGD14
    {0, 136619, 1263, Maker::epsg}, // ONGD17
    {0, 136735, 6277, Maker::epsg}, // OSGB 1936
    {0, 136755, 6277, Maker::epsg}, // OSGB36
    {0, 136783, 6278, Maker::epsg}, // OSGB70
    {0, 136726, 6279, Maker::epsg}, // OS(SN)80
    {0, 139768, 6613, Maker::epsg}, // P2 Exc
    {0, 139775, 6613, Maker::epsg}, // P2 Exc-T9
    {0, 141690, 6280, Maker::epsg}, // Padang
    {0, 142265, 1072, Maker::epsg}, // Panamá-Colón 1911
    {0, 142644, 1157, Maker::esri}, // Parametry_Zemli_1990.02
    {0, 142662, 1158, Maker::esri}, // Parametry_Zemli_1990.11
    {0, 139833, 6746, Maker::epsg}, // PD/83
    {0, 144038, 6637, Maker::epsg}, // Perroud 1950
    {0, 143636, 1286, Maker::esri}, // Pico_de_las_Nieves_1968
    {0, 143968, 6626, Maker::epsg}, // Piton des Neiges
    {0, 140150, 1286, Maker::epsg}, // PN68
    {0, 140205, 6728, Maker::epsg}, // PN84
    {0, 140260, 1076, Maker::epsg}, // PNG94
    {0, 32951, 6282, Maker::epsg}, // Pointe Noire
    {0, 144498, 6615, Maker::epsg}, // Porto Santo
    {0, 140417, 1062, Maker::epsg}, // POSGAR 2007
    {0, 140579, 6694, Maker::epsg}, // POSGAR 94
    {0, 140707, 6190, Maker::epsg}, // POSGAR 98
    {0, 144976, 6172, Maker::epsg}, // Posiciones Geodésicas Argentinas
    {188, 31064, 6694, Maker::epsg}, // Posiciones Geodésicas Argentinas 1994
    {188, 16121, 6190, Maker::epsg}, // Posiciones Geodésicas Argentinas 1998
    {188, 10088, 1062, Maker::epsg}, // Posiciones Geodésicas Argentinas 2007
    {0, 221751, 6314, Maker::proj}, // potsdam
    {0, 140955, 6683, Maker::epsg}, // PRS92
    {0, 141066, 6248, Maker::epsg}, // PSAD56
    {0, 141287, 6134, Maker::epsg}, // PSD93
    {0, 141316, 1041, Maker::epsg}, // PTRA08
    {0, 141483, 6740, Maker::epsg}, // PZ-90
    {0, 141489, 1157, Maker::epsg}, // PZ-90.02
    {0, 141498, 1158, Maker::epsg}, // PZ-90.11
    {0, 160341, 6614, Maker::epsg}, // QND95
    {0, 160886, 6160, Maker::epsg}, // Quini-Huao
    {0, 160896, 6160, Maker::epsg}, // Quiñi-Huao
    {0, 160916, 6745, Maker::epsg}, // RD/83
    {0, 161106, 1132, Maker::epsg}, // RDN2008
    {0, 165514, 1220, Maker::epsg}, // Rede Permanentes de Estaciones GNSS de Angola
    {211, 31046, 1042, Maker::epsg}, // Red Geodesica Nacional 1992
    {211, 16911, 1120, Maker::epsg}, // Red Geodesica Nacional 2008
    {0, 165468, 1304, Maker::esri}, // Red_Geodesica_Para_Mineria_en_Chile
    {0, 165435, 1069, Maker::epsg}, // Red Geodésica Básica Nacional de El Salvador
    {0, 161289, 1304, Maker::epsg}, // REDGEOMIN
    {0, 165569, 1220, Maker::esri}, // Reference_System_de_Angola_2013
    {0, 161404, 1035, Maker::epsg}, // REGCAN95
    {0, 171201, 6189, Maker::epsg}, // REGVEN
    {0, 161674, 1220, Maker::epsg}, // REPANGOL
    {0, 166231, 1073, Maker::esri}, // Reseau_Geodesique_des_Antilles_Francaises_2009
    {0, 166022, 1113, Maker::epsg}, // Reseau Geodesique des TAAF 2007
    {0, 166198, 1223, Maker::esri}, // Reseau_Geodesique_de_Wallis_et_Futuna_1996
    {0, 165592, 6171, Maker::epsg}, // Reseau Geodesique Francais 1993
    {0, 161683, 1073, Maker::epsg}, // RGAF09
    {0, 161767, 6171, Maker::epsg}, // RGF93 v1
    {0, 161952, 1312, Maker::epsg}, // RGF93 v2
    {0, 162137, 1313, Maker::epsg}, // RGF93 v2b
    {0, 162349, 6624, Maker::epsg}, // RGFG95
    {0, 162482, 1036, Maker::epsg}, // RGM04
    {0, 162564, 6749, Maker::epsg}, // RGNC
    {0, 162600, 6645, Maker::epsg}, // RGNC91
    {0, 162607, 6749, Maker::epsg}, // RGNC91-93
    {0, 162776, 6687, Maker::epsg}, // RGPF
    {0, 162877, 6627, Maker::epsg}, // RGR92
    {0, 162949, 1033, Maker::epsg}, // RGRDC 2005
    {0, 163301, 1038, Maker::epsg}, // RGSPM06
    {0, 163390, 1113, Maker::epsg}, // RGTAAF07
    {0, 163721, 1223, Maker::epsg}, // RGWF96
    {0, 166522, 6308, Maker::epsg}, // Rikets koordinatsystem 1938
    {0, 166721, 6265, Maker::epsg}, // Rome 1940
    {0, 166728, 6806, Maker::epsg}, // Rome 1940 (Rome)
    {0, 163799, 6309, Maker::epsg}, // ROU-USAMS
    {0, 163852, 1220, Maker::epsg}, // RSAO13
    {0, 164074, 6764, Maker::epsg}, // RSRGD2000
    {0, 164217, 6308, Maker::epsg}, // RT38
    {0, 164471, 6124, Maker::epsg}, // RT90
    {0, 44369, 6706, Maker::epsg}, // S-650 TL
    {0, 23156, 6291, Maker::epsg}, // SAD69
    {0, 176644, 6622, Maker::epsg}, // Sainte Anne
    {0, 176784, 6125, Maker::epsg}, // Samboja P2 exc T9
    {0, 176942, 6730, Maker::epsg}, // Santo (DOS)
    {0, 168860, 1320, Maker::epsg}, // SCM22-IRF
    {0, 62747, 6613, Maker::epsg}, // Segara
    {0, 62760, 6820, Maker::epsg}, // Segara (Jakarta)
    {0, 177720, 6616, Maker::epsg}, // Selvagem Grande 1938
    {0, 177876, 1214, Maker::esri}, // Serbian_Spatial_Reference_System_2000
    {0, 168894, 1174, Maker::epsg}, // SHGD2015
    {0, 178341, 6174, Maker::epsg}, // Sierra Leone Peninsular 1924
    {0, 168910, 6726, Maker::epsg}, // SIGD61
    {0, 169020, 6170, Maker::epsg}, // SIRGAS 1995
    {0, 169283, 6674, Maker::epsg}, // SIRGAS 2000
    {220, 88148, 1064, Maker::epsg}, // SIRGAS-Chile 2002
    {220, 5767, 1243, Maker::epsg}, // SIRGAS-Chile 2010
    {220, 70113, 1252, Maker::epsg}, // SIRGAS-Chile 2013
    {220, 35245, 1253, Maker::epsg}, // SIRGAS-Chile 2016
    {220, 170963, 1327, Maker::epsg}, // SIRGAS-Chile 2021
    {221, 221822, 1243, Maker::esri}, // SIRGAS-Chile_realization_2_epoch_2010
    {221, 221841, 1252, Maker::esri}, // SIRGAS-Chile_realization_3_epoch_2013
    {221, 221860, 1253, Maker::esri}, // SIRGAS-Chile_realization_4_epoch_2016
    {218, 169770, 1227, Maker::epsg}, // SIRGAS-CON DGF00P01
    {218, 169807, 1228, Maker::epsg}, // SIRGAS-CON DGF01P01
    {218, 169844, 1229, Maker::epsg}, // SIRGAS-CON DGF01P02
    {218, 169881, 1230, Maker::epsg}, // SIRGAS-CON DGF02P01
    {218, 169918, 1231, Maker::epsg}, // SIRGAS-CON DGF04P01
    {218, 169955, 1232, Maker::epsg}, // SIRGAS-CON DGF05P01
    {218, 169992, 1233, Maker::epsg}, // SIRGAS-CON DGF06P01
    {218, 170029, 1234, Maker::epsg}, // SIRGAS-CON DGF07P01
    {218, 170066, 1235, Maker::epsg}, // SIRGAS-CON DGF08P01
    {218, 170103, 1236, Maker::epsg}, // SIRGAS-CON SIR09P01
    {218, 170140, 1237, Maker::epsg}, // SIRGAS-CON SIR10P01
    {218, 170176, 1238, Maker::epsg}, // SIRGAS-CON SIR11P01
    {218, 170212, 1239, Maker::epsg}, // SIRGAS-CON SIR13P01
    {218, 170249, 1240, Maker::epsg}, // SIRGAS-CON SIR14P01
    {218, 170286, 1241, Maker::epsg}, // SIRGAS-CON SIR15P01
    {218, 170323, 1242, Maker::epsg}, // SIRGAS-CON SIR17P01
    {223, 169770, 1227, Maker::esri}, // SIRGAS_Continuously_Operating_Network_DGF00P01
    {223, 169807, 1228, Maker::esri}, // SIRGAS_Continuously_Operating_Network_DGF01P01
    {223, 169844, 1229, Maker::esri}, // SIRGAS_Continuously_Operating_Network_DGF01P02
    {223, 169881, 1230, Maker::esri}, // SIRGAS_Continuously_Operating_Network_DGF02P01
    {223, 169918, 1231, Maker::esri}, // SIRGAS_Continuously_Operating_Network_DGF04P01
    {223, 169955, 1232, Maker::esri}, // SIRGAS_Continuously_Operating_Network_DGF05P01
    {223, 169992, 1233, Maker::esri}, // SIRGAS_Continuously_Operating_Network_DGF06P01
    {223, 170029, 1234, Maker::esri}, // SIRGAS_Continuously_Operating_Network_DGF07P01
    {223, 170066, 1235, Maker::esri}, // SIRGAS_Continuously_Operating_Network_DGF08P01
    {223, 170103, 1236, Maker::esri}, // SIRGAS_Continuously_Operating_Network_SIR09P01
    {223, 170140, 1237, Maker::esri}, // SIRGAS_Continuously_Operating_Network_SIR10P01
    {223, 170176, 1238, Maker::esri}, // SIRGAS_Continuously_Operating_Network_SIR11P01
    {223, 170212, 1239, Maker::esri}, // SIRGAS_Continuously_Operating_Network_SIR13P01
    {223, 170249, 1240, Maker::esri}, // SIRGAS_Continuously_Operating_Network_SIR14P01
    {223, 170286, 1241, Maker::esri}, // SIRGAS_Continuously_Operating_Network_SIR15P01
    {223, 170323, 1242, Maker::esri}, // SIRGAS_Continuously_Operating_Network_SIR17P01
    {217, 10011, 1227, Maker::epsg}, // SIRGAS Multi-Year Solution 2000
    {217, 46674, 1228, Maker::epsg}, // SIRGAS Multi-Year Solution 2001
    {217, 1657, 1229, Maker::epsg}, // SIRGAS Multi-Year Solution 2001 extended
    {217, 88148, 1230, Maker::epsg}, // SIRGAS Multi-Year Solution 2002
    {217, 66989, 1231, Maker::epsg}, // SIRGAS Multi-Year Solution 2004
    {217, 17640, 1232, Maker::epsg}, // SIRGAS Multi-Year Solution 2005
    {217, 13548, 1233, Maker::epsg}, // SIRGAS Multi-Year Solution 2006
    {217, 10088, 1234, Maker::epsg}, // SIRGAS Multi-Year Solution 2007
    {217, 16911, 1235, Maker::epsg}, // SIRGAS Multi-Year Solution 2008
    {217, 26927, 1236, Maker::epsg}, // SIRGAS Multi-Year Solution 2009
    {217, 5767, 1237, Maker::epsg}, // SIRGAS Multi-Year Solution 2010
    {217, 29748, 1238, Maker::epsg}, // SIRGAS Multi-Year Solution 2011
    {217, 70113, 1239, Maker::epsg}, // SIRGAS Multi-Year Solution 2013
    {217, 3834, 1240, Maker::epsg}, // SIRGAS Multi-Year Solution 2014
    {217, 27281, 1241, Maker::epsg}, // SIRGAS Multi-Year Solution 2015
    {217, 77838, 1242, Maker::epsg}, // SIRGAS Multi-Year Solution 2017
    {0, 171194, 6189, Maker::epsg}, // SIRGAS-REGVEN
    {0, 178727, 6674, Maker::epsg}, // Sistema de Referencia Geocentrico para America del Sur 2000
    {0, 178670, 1067, Maker::epsg}, // Sistema Geodésico Nacional
    {0, 178604, 1293, Maker::esri}, // Sistem_Referensi_Geospasial_Indonesia_2013
    {0, 168096, 6156, Maker::epsg}, // S-JTSK
    {0, 168256, 1052, Maker::epsg}, // S-JTSK/05
    {0, 168266, 1055, Maker::epsg}, // S-JTSK/05 (Ferro)
    {0, 168103, 6818, Maker::epsg}, // S-JTSK (Ferro)
    {214, 168197, 1201, Maker::esri}, // S-JTSK_[JTSK03]
    {0, 171459, 1053, Maker::epsg}, // SLD99
    {0, 178880, 6765, Maker::epsg}, // Slovenia 1996
    {0, 4792, 6222, Maker::epsg}, // South Africa
    {0, 175552, 1214, Maker::epsg}, // SRB_ETRS89
    {0, 175597, 1034, Maker::epsg}, // SREF98
    {0, 175604, 1293, Maker::epsg}, // SRGI2013
    {0, 181939, 6710, Maker::epsg}, // St. Helena 1971
    {0, 182373, 1174, Maker::esri}, // St_Helena_Geodetic_Datum_2015
    {0, 182396, 1173, Maker::esri}, // St_Helena_Tritan
    {0, 182172, 6638, Maker::epsg}, // St. Pierre et Miquelon 1950
    {0, 176032, 1214, Maker::epsg}, // STRS00
    {0, 182298, 1189, Maker::esri}, // St._Stephen_(Ferro)
    {0, 183405, 6151, Maker::epsg}, // Swiss Terrestrial Reference Frame 1995 (CHTRF95)
    {233, 221586, 6156, Maker::epsg}, // Systém Jednotnej trigonometrickej siete katastrálnej
    {233, 221598, 6818, Maker::epsg}, // Systém Jednotnej trigonometrickej siete katastrálnej (Ferro)
    {233, 221616, 1201, Maker::epsg}, // Systém Jednotnej trigonometrickej siete katastrálnej [JTSK03]
    {234, 221637, 6156, Maker::epsg}, // Systém Jednotné trigonometrické sítě katastrální
    {234, 221667, 1052, Maker::epsg}, // Systém Jednotné trigonometrické sítě katastrální/05
    {234, 221682, 1055, Maker::epsg}, // Systém Jednotné trigonometrické sítě katastrální/05 (Ferro)
    {234, 221649, 6818, Maker::epsg}, // Systém Jednotné trigonometrické sítě katastrální (Ferro)
    {0, 50870, 6629, Maker::epsg}, // Tahaa
    {0, 50955, 6628, Maker::epsg}, // Tahiti
    {0, 185020, 6297, Maker::epsg}, // Tananarive
    {0, 185255, 1257, Maker::esri}, // Tapi_Aike
    {0, 183770, 6303, Maker::epsg}, // TC(1948)
    {0, 185481, 6127, Maker::epsg}, // Tete 1960
    {0, 183836, 1095, Maker::epsg}, // TGD2005
    {0, 186134, 6298, Maker::epsg}, // Timbalai 1968
    {0, 183984, 6300, Maker::epsg}, // TM75
    {0, 186936, 1048, Maker::epsg}, // Tokyo 1898
    {0, 186946, 6301, Maker::epsg}, // Tokyo 1918
    {0, 184233, 1266, Maker::esri}, // TPEN11_Intermediate_Reference_Frame
    {0, 184205, 1266, Maker::epsg}, // TPEN11-IRF
    {0, 184271, 1057, Maker::epsg}, // TUREF
    {0, 184595, 1025, Maker::epsg}, // TWD67
    {0, 184627, 1026, Maker::epsg}, // TWD97
    {0, 198479, 6639, Maker::epsg}, // Uvea SHOM 1978
    {0, 199087, 6748, Maker::epsg}, // Vanua Levu 1917
    {0, 198539, 6756, Maker::epsg}, // VN-2000
    {0, 200905, 6760, Maker::epsg}, // WGS 66
    {0, 200912, 6322, Maker::epsg}, // WGS 72
    {0, 215178, 6324, Maker::epsg}, // WGS 72BE
    {0, 211034, 6326, Maker::proj}, // WGS84
    {243, 204558, 1154, Maker::epsg}, // WGS 84 (G1150)
    {243, 204572, 1155, Maker::epsg}, // WGS 84 (G1674)
    {243, 204587, 1156, Maker::epsg}, // WGS 84 (G1762)
    {243, 204602, 1309, Maker::epsg}, // WGS 84 (G2139)
    {243, 204617, 1152, Maker::epsg}, // WGS 84 (G730)
    {243, 204630, 1153, Maker::epsg}, // WGS 84 (G873)
    {243, 204644, 1166, Maker::epsg}, // WGS 84 (Transit)
    {243, 187372, 1173, Maker::epsg}, // WGS 84 Tritan St. Helena
    {251, 204558, 1154, Maker::esri}, // World_Geodetic_System_1984_(G1150)
    {251, 204572, 1155, Maker::esri}, // World_Geodetic_System_1984_(G1674)
    {251, 204587, 1156, Maker::esri}, // World_Geodetic_System_1984_(G1762)
    {251, 204617, 1152, Maker::esri}, // World_Geodetic_System_1984_(G730)
    {251, 204630, 1153, Maker::esri}, // World_Geodetic_System_1984_(G873)
    {251, 204644, 1166, Maker::esri}, // World_Geodetic_System_1984_(Transit)
    {0, 220438, 6163, Maker::epsg}, // YNGN96
};
// clang-format on

} // namespace ZrProj::systems::rows
