// Datums and datum ensembles.
//
// Made by src/systems/make_register.py from the EPSG Geodetic Parameter Dataset v10.076 of 2022-08-31, which is IOGP's, as
// proj-data carries it, under the terms of use at https://epsg.org/terms-of-use.html. Other makers' names are of ArcGIS Pro 3.0
// of 2022-07-09 and of PROJ 9.1.1.
#pragma once

#include "systems/register/rows.h"

namespace ZrProj::systems::rows {

// clang-format off
inline constexpr DatumRow datums[] = {
    {1024, 7004, 8901, 0, 100891}, // Hungarian Datum 1909
    {1025, 7050, 8901, 0, 310422}, // Taiwan Datum 1967
    {1026, 7019, 8901, 0, 310440}, // Taiwan Datum 1997
    {1029, 7019, 8901, 0, 111894}, // Iraqi Geospatial Reference System
    {1031, 7004, 8901, 0, 132970}, // MGI 1901
    {1032, 7019, 8901, 0, 133501}, // MOLDREF99
    {1033, 7019, 8901, 0, 276323}, // Reseau Geodesique de la RDC 2005
    {1034, 7019, 8901, 0, 297826}, // Serbian Reference Network 1998
    {1035, 7019, 8901, 0, 275631}, // Red Geodesica de Canarias 1995
    {1036, 7019, 8901, 0, 276105}, // Reseau Geodesique de Mayotte 2004
    {1037, 7022, 8901, 0, 42078}, // Cadastre 1997
    {1038, 7019, 8901, 0, 276185}, // Reseau Geodesique de Saint Pierre et Miquelon 2006
    {1041, 7019, 8901, 0, 27600}, // Autonomous Regions of Portugal 2008
    {1042, 7019, 8901, 0, 139422}, // Mexico ITRF92
    {1043, 1024, 8901, 0, 49048}, // China 2000
    {1044, 7022, 8901, 0, 296658}, // Sao Tome
    {1045, 7024, 8901, 0, 219908}, // New Beijing
    {1046, 7022, 8901, 0, 296615}, // Principe
    {1047, 7019, 8901, 0, 276635}, // Reseau de Reference des Antilles Francaises 1991
    {1048, 7004, 8901, 0, 313242}, // Tokyo 1892
    {1052, 7004, 8901, 0, 308483}, // System of the Unified Trigonometrical Cadastral Network/05
    {1053, 7015, 8901, 0, 305789}, // Sri Lanka Datum 1999
    {1055, 7004, 8909, 0, 308542}, // System of the Unified Trigonometrical Cadastral Network/05 (Ferro)
    {1056, 7019, 8901, 0, 93795}, // Geocentric Datum Brunei Darussalam 2009
    {1057, 7019, 8901, 0, 314485}, // Turkish National Reference Frame
    {1058, 7019, 8901, 0, 35174}, // Bhutan National Geodetic Datum
    {1060, 7019, 8901, 0, 112087}, // Islands Net 2004
    {1061, 7019, 8901, 0, 110641}, // International Terrestrial Reference Frame 2008
    {1062, 7030, 8901, 0, 248118}, // Posiciones Geodesicas Argentinas 2007
    {1063, 7019, 8901, 0, 137281}, // Marco Geodesico Nacional de Bolivia
    {1064, 7019, 8901, 0, 284931}, // SIRGAS-Chile realization 1 epoch 2002
    {1065, 7030, 8901, 0, 54986}, // Costa Rica 2005
    {1066, 7019, 8901, 0, 299037}, // Sistema Geodesico Nacional de Panama MACARIO SOLIS
    {1067, 7019, 8901, 0, 245322}, // Peru96
    {1068, 7030, 8901, 0, 285149}, // SIRGAS-ROU98
    {1069, 7019, 8901, 0, 285438}, // SIRGAS_ES2007.8
    {1070, 7008, 8901, 0, 235209}, // Ocotepeque 1935
    {1071, 7007, 8901, 0, 298123}, // Sibun Gorge 1922
    {1072, 7008, 8901, 0, 243711}, // Panama-Colon 1911
    {1073, 7019, 8901, 0, 276393}, // Reseau Geodesique des Antilles Francaises 2009
    {1074, 7022, 8901, 0, 36974}, // Corrego Alegre 1961
    {1075, 7050, 8901, 0, 303944}, // South American Datum 1969(96)
    {1076, 7019, 8901, 0, 244118}, // Papua New Guinea Geodetic Datum 1994
    {1077, 7024, 8901, 0, 330578}, // Ukraine 2000
    {1078, 7019, 8901, 0, 75724}, // Fehmarnbelt Datum 2010
    {1081, 7004, 8901, 0, 59997}, // Deutsche Bahn Reference System
    {1095, 7019, 8901, 0, 313420}, // Tonga Geodetic Datum 2005
    {1100, 7019, 8901, 0, 46969}, // Cayman Islands Geodetic Datum 2011
    {1111, 7015, 8901, 0, 219442}, // Nepal 1981
    {1112, 7030, 8901, 0, 55778}, // Cyprus Geodetic Reference System 1993
    {1113, 7019, 8901, 0, 276472}, // Reseau Geodesique des Terres Australes et Antarctiques Francaises 2007
    {1114, 7030, 8901, 0, 112282}, // Israeli Geodetic Datum 2005
    {1115, 7030, 8901, 0, 112310}, // Israeli Geodetic Datum 2005(2012)
    {1116, 7019, 8901, 0, 150546}, // NAD83 (National Spatial Reference System 2011)
    {1117, 7019, 8901, 0, 150640}, // NAD83 (National Spatial Reference System PA11)
    {1118, 7019, 8901, 0, 150593}, // NAD83 (National Spatial Reference System MA11)
    {1120, 7019, 8901, 0, 139198}, // Mexico ITRF2008
    {1128, 7019, 8901, 0, 116754}, // Japanese Geodetic Datum 2011
    {1132, 7019, 8901, 0, 276774}, // Rete Dinamica Nazionale 2008
    {1133, 7019, 8901, 0, 150245}, // NAD83 (Continuously Operating Reference Station 1996)
    {1135, 7012, 8901, 0, 5800}, // Aden 1925
    {1136, 7022, 8901, 0, 69802}, // Bioko
    {1137, 7012, 8901, 0, 33966}, // Bekaa Valley 1920
    {1138, 7012, 8901, 0, 304118}, // South East Island 1943
    {1139, 7012, 8901, 0, 93490}, // Gambia
    {1141, 7019, 8901, 0, 103397}, // IGS08
    {1142, 7019, 8901, 0, 101535}, // IG05 Intermediate Datum
    {1143, 7019, 8901, 0, 112282}, // Israeli Geodetic Datum 2005
    {1144, 7019, 8901, 0, 101650}, // IG05/12 Intermediate Datum
    {1145, 7019, 8901, 0, 112310}, // Israeli Geodetic Datum 2005(2012)
    {1147, 7019, 8901, 0, 236346}, // Oman National Geodetic Datum 2014
    {1152, 7030, 8901, 0, 369947}, // World Geodetic System 1984 (G730)
    {1153, 7030, 8901, 0, 369981}, // World Geodetic System 1984 (G873)
    {1154, 7030, 8901, 0, 369807}, // World Geodetic System 1984 (G1150)
    {1155, 7030, 8901, 0, 369842}, // World Geodetic System 1984 (G1674)
    {1156, 7030, 8901, 0, 369877}, // World Geodetic System 1984 (G1762)
    {1157, 7054, 8901, 0, 244429}, // Parametry Zemli 1990.02
    {1158, 7054, 8901, 0, 244453}, // Parametry Zemli 1990.11
    {1159, 1025, 8901, 0, 93986}, // Geodezicheskaya Sistema Koordinat 2011
    {1160, 7019, 8901, 0, 124664}, // Kyrgyzstan Geodetic Datum 2006
    {1165, 7019, 8901, 0, 110688}, // International Terrestrial Reference Frame 2014
    {1166, 7030, 8901, 0, 370015}, // World Geodetic System 1984 (Transit)
    {1167, 7019, 8901, 0, 38279}, // Bulgaria Geodetic System 2005
    {1168, 7019, 8901, 0, 93870}, // Geocentric Datum of Australia 2020
    {1173, 7030, 8901, 0, 306231}, // St. Helena Tritan
    {1174, 7019, 8901, 0, 306117}, // St. Helena Geodetic Datum 2015
    {1178, 7019, 8901, 0, 73856}, // European Terrestrial Reference Frame 1989
    {1179, 7019, 8901, 0, 73898}, // European Terrestrial Reference Frame 1990
    {1180, 7019, 8901, 0, 73940}, // European Terrestrial Reference Frame 1991
    {1181, 7019, 8901, 0, 73982}, // European Terrestrial Reference Frame 1992
    {1182, 7019, 8901, 0, 74024}, // European Terrestrial Reference Frame 1993
    {1183, 7019, 8901, 0, 74066}, // European Terrestrial Reference Frame 1994
    {1184, 7019, 8901, 0, 74108}, // European Terrestrial Reference Frame 1996
    {1185, 7019, 8901, 0, 74150}, // European Terrestrial Reference Frame 1997
    {1186, 7019, 8901, 0, 74192}, // European Terrestrial Reference Frame 2000
    {1187, 7019, 8901, 0, 112104}, // Islands Net 2016
    {1188, 1026, 8909, 0, 98011}, // Gusterberg (Ferro)
    {1189, 1026, 8909, 0, 306457}, // St. Stephen (Ferro)
    {1191, 7019, 8901, 0, 103418}, // IGS14
    {1192, 7019, 8901, 0, 229025}, // North American Datum of 1983 (CSRS96)
    {1193, 7019, 8901, 0, 228749}, // North American Datum of 1983 (CSRS) version 2
    {1194, 7019, 8901, 0, 228795}, // North American Datum of 1983 (CSRS) version 3
    {1195, 7019, 8901, 0, 228841}, // North American Datum of 1983 (CSRS) version 4
    {1196, 7019, 8901, 0, 228887}, // North American Datum of 1983 (CSRS) version 5
    {1197, 7019, 8901, 0, 228933}, // North American Datum of 1983 (CSRS) version 6
    {1198, 7019, 8901, 0, 228979}, // North American Datum of 1983 (CSRS) version 7
    {1201, 7004, 8901, 0, 308418}, // System of the Unified Trigonometrical Cadastral Network [JTSK03]
    {1204, 7019, 8901, 0, 74234}, // European Terrestrial Reference Frame 2005
    {1206, 7019, 8901, 0, 74276}, // European Terrestrial Reference Frame 2014
    {1207, 7022, 8901, 0, 134291}, // Macao 1920
    {1208, 7019, 8901, 0, 134360}, // Macao Geodetic Datum 2008
    {1209, 7019, 8901, 0, 100533}, // Hong Kong Geodetic
    {1211, 7019, 8901, 0, 150299}, // NAD83 (Federal Base Network)
    {1212, 7019, 8901, 0, 150328}, // NAD83 (High Accuracy Reference Network - Corrected)
    {1214, 7019, 8901, 0, 297857}, // Serbian Spatial Reference System 2000
    {1217, 7012, 8901, 0, 42706}, // Camacupa 2015
    {1218, 7019, 8901, 0, 133555}, // MOMRA Terrestrial Reference Frame 2000
    {1220, 7019, 8901, 0, 275822}, // Reference System de Angola 2013
    {1221, 7019, 8901, 0, 229063}, // North American Datum of 1983 (MARP00)
    {1223, 7019, 8901, 0, 276236}, // Reseau Geodesique de Wallis et Futuna 1996
    {1225, 7019, 8901, 0, 41753}, // CR-SIRGAS
    {1227, 7019, 8901, 0, 283327}, // SIRGAS Continuously Operating Network DGF00P01
    {1228, 7019, 8901, 0, 283374}, // SIRGAS Continuously Operating Network DGF01P01
    {1229, 7019, 8901, 0, 283421}, // SIRGAS Continuously Operating Network DGF01P02
    {1230, 7019, 8901, 0, 283468}, // SIRGAS Continuously Operating Network DGF02P01
    {1231, 7019, 8901, 0, 283515}, // SIRGAS Continuously Operating Network DGF04P01
    {1232, 7019, 8901, 0, 283562}, // SIRGAS Continuously Operating Network DGF05P01
    {1233, 7019, 8901, 0, 283609}, // SIRGAS Continuously Operating Network DGF06P01
    {1234, 7019, 8901, 0, 283656}, // SIRGAS Continuously Operating Network DGF07P01
    {1235, 7019, 8901, 0, 283703}, // SIRGAS Continuously Operating Network DGF08P01
    {1236, 7019, 8901, 0, 283750}, // SIRGAS Continuously Operating Network SIR09P01
    {1237, 7019, 8901, 0, 283797}, // SIRGAS Continuously Operating Network SIR10P01
    {1238, 7019, 8901, 0, 283844}, // SIRGAS Continuously Operating Network SIR11P01
    {1239, 7019, 8901, 0, 283891}, // SIRGAS Continuously Operating Network SIR13P01
    {1240, 7019, 8901, 0, 283938}, // SIRGAS Continuously Operating Network SIR14P01
    {1241, 7019, 8901, 0, 283985}, // SIRGAS Continuously Operating Network SIR15P01
    {1242, 7019, 8901, 0, 284032}, // SIRGAS Continuously Operating Network SIR17P01
    {1243, 7019, 8901, 0, 284969}, // SIRGAS-Chile realization 2 epoch 2010
    {1244, 7019, 8901, 0, 103439}, // IGS97
    {1245, 7019, 8901, 0, 103355}, // IGS00
    {1246, 7019, 8901, 0, 103460}, // IGb00
    {1247, 7019, 8901, 0, 103376}, // IGS05
    {1248, 7019, 8901, 0, 103481}, // IGb08
    {1249, 7019, 8901, 0, 229101}, // North American Datum of 1983 (PACP00)
    {1251, 7019, 8901, 0, 123832}, // Kosovo Reference System 2001
    {1252, 7019, 8901, 0, 285007}, // SIRGAS-Chile realization 3 epoch 2013
    {1253, 7019, 8901, 0, 285045}, // SIRGAS-Chile realization 4 epoch 2016
    {1254, 7019, 8901, 0, 284451}, // SIRGAS-Chile
    {1257, 7022, 8901, 0, 310772}, // Tapi Aike
    {1258, 7022, 8901, 0, 140906}, // Ministerio de Marina Norte
    {1259, 7022, 8901, 0, 140933}, // Ministerio de Marina Sur
    {1263, 7019, 8901, 0, 236380}, // Oman National Geodetic Datum 2017
    {1264, 7019, 8901, 0, 98217}, // HS2 Intermediate Reference Frame
    {1266, 7019, 8901, 0, 309281}, // TPEN11 Intermediate Reference Frame
    {1268, 7019, 8901, 0, 122046}, // Kingdom of Saudi Arabia Geodetic Reference Frame 2017
    {1271, 7019, 8901, 0, 133248}, // MML07 Intermediate Reference Frame
    {1272, 7019, 8901, 0, 103502}, // IGb14
    {1273, 7019, 8901, 0, 5332}, // AbInvA96_2020 Intermediate Reference Frame
    {1286, 7022, 8901, 0, 245978}, // Pico de las Nieves 1968
    {1289, 7019, 8901, 0, 81350}, // GBK19 Intermediate Reference Frame
    {1291, 7019, 8901, 0, 26903}, // Australian Terrestrial Reference Frame 2014
    {1293, 7030, 8901, 0, 298951}, // Sistem Referensi Geospasial Indonesia 2013
    {1295, 7019, 8901, 0, 130335}, // Lyon Turin Ferroviaire 2004
    {1304, 7019, 8901, 0, 275570}, // Red Geodesica Para Mineria en Chile
    {1305, 7019, 8901, 0, 65038}, // ETRF2000 Poland
    {1308, 7019, 8901, 0, 62258}, // EOS21 Intermediate Reference Frame
    {1309, 7030, 8901, 0, 369912}, // World Geodetic System 1984 (G2139)
    {1310, 7019, 8901, 0, 60882}, // ECML14_NB Intermediate Reference Frame
    {1311, 7019, 8901, 0, 68624}, // EWR2 Intermediate Reference Frame
    {1312, 7019, 8901, 0, 275953}, // Reseau Geodesique Francais 1993 v2
    {1313, 7019, 8901, 0, 275988}, // Reseau Geodesique Francais 1993 v2b
    {1314, 7019, 8901, 0, 133692}, // MRH21 Intermediate Reference Frame
    {1315, 7019, 8901, 0, 133438}, // MOLDOR11 Intermediate Reference Frame
    {1317, 7019, 8901, 0, 98513}, // HULLEE13 Intermediate Reference Frame
    {1319, 7019, 8901, 0, 60807}, // EBBWV14 Intermediate Reference Frame
    {1320, 7019, 8901, 0, 281957}, // SCM22 Intermediate Reference Frame
    {1321, 7019, 8901, 0, 75103}, // FNL22 Intermediate Reference Frame
    {1322, 7019, 8901, 0, 110735}, // International Terrestrial Reference Frame 2020
    {1324, 7019, 8901, 0, 134237}, // MWC18 Intermediate Reference Frame
    {1327, 7019, 8901, 0, 285083}, // SIRGAS-Chile realization 5 epoch 2021
    {6001, 7001, 8901, 0, 231594}, // Not specified (based on Airy 1830 ellipsoid)
    {6002, 7002, 8901, 0, 231639}, // Not specified (based on Airy Modified 1849 ellipsoid)
    {6003, 7003, 8901, 0, 231693}, // Not specified (based on Australian National Spheroid)
    {6004, 7004, 8901, 0, 231855}, // Not specified (based on Bessel 1841 ellipsoid)
    {6005, 7005, 8901, 0, 231902}, // Not specified (based on Bessel Modified ellipsoid)
    {6006, 7046, 8901, 0, 231953}, // Not specified (based on Bessel Namibia ellipsoid)
    {6007, 7007, 8901, 0, 232003}, // Not specified (based on Clarke 1858 ellipsoid)
    {6008, 7008, 8901, 0, 232159}, // Not specified (based on Clarke 1866 ellipsoid)
    {6009, 7009, 8901, 0, 232103}, // Not specified (based on Clarke 1866 Michigan ellipsoid)
    {6010, 7010, 8901, 0, 232259}, // Not specified (based on Clarke 1880 (Benoit) ellipsoid)
    {6011, 7011, 8901, 0, 232315}, // Not specified (based on Clarke 1880 (IGN) ellipsoid)
    {6012, 7012, 8901, 0, 232368}, // Not specified (based on Clarke 1880 (RGS) ellipsoid)
    {6013, 7013, 8901, 0, 232206}, // Not specified (based on Clarke 1880 (Arc) ellipsoid)
    {6014, 7014, 8901, 0, 232421}, // Not specified (based on Clarke 1880 (SGA 1922) ellipsoid)
    {6015, 7015, 8901, 0, 232587}, // Not specified (based on Everest 1830 (1937 Adjustment) ellipsoid)
    {6016, 7016, 8901, 0, 232719}, // Not specified (based on Everest 1830 (1967 Definition) ellipsoid)
    {6018, 7018, 8901, 0, 232851}, // Not specified (based on Everest 1830 Modified ellipsoid)
    {6019, 7019, 8901, 0, 233045}, // Not specified (based on GRS 1980 ellipsoid)
    {6020, 7020, 8901, 0, 233089}, // Not specified (based on Helmert 1906 ellipsoid)
    {6021, 7021, 8901, 0, 233184}, // Not specified (based on Indonesian National Spheroid)
    {6022, 7022, 8901, 0, 233298}, // Not specified (based on International 1924 ellipsoid)
    {6024, 7024, 8901, 0, 233352}, // Not specified (based on Krassowsky 1940 ellipsoid)
    {6025, 7025, 8901, 0, 233403}, // Not specified (based on NWL 9D ellipsoid)
    {6027, 7027, 8901, 0, 233529}, // Not specified (based on Plessis 1817 ellipsoid)
    {6028, 7028, 8901, 0, 233577}, // Not specified (based on Struve 1860 ellipsoid)
    {6029, 7029, 8901, 0, 233708}, // Not specified (based on War Office ellipsoid)
    {6030, 7030, 8901, 0, 233666}, // Not specified (based on WGS 84 ellipsoid)
    {6031, 7031, 8901, 0, 232908}, // Not specified (based on GEM 10C ellipsoid)
    {6032, 7032, 8901, 0, 233445}, // Not specified (based on OSU86F ellipsoid)
    {6033, 7033, 8901, 0, 233487}, // Not specified (based on OSU91A ellipsoid)
    {6034, 7034, 8901, 0, 232479}, // Not specified (based on Clarke 1880 ellipsoid)
    {6035, 7035, 8901, 0, 231747}, // Not specified (based on Authalic Sphere)
    {6036, 7036, 8901, 0, 232951}, // Not specified (based on GRS 1967 ellipsoid)
    {6041, 7041, 8901, 0, 231788}, // Not specified (based on Average Terrestrial System 1977 ellipsoid)
    {6042, 7042, 8901, 0, 232526}, // Not specified (based on Everest (1830 Definition) ellipsoid)
    {6043, 7043, 8901, 0, 233624}, // Not specified (based on WGS 72 ellipsoid)
    {6044, 7044, 8901, 0, 232653}, // Not specified (based on Everest 1830 (1962 Definition) ellipsoid)
    {6045, 7045, 8901, 0, 232785}, // Not specified (based on Everest 1830 (1975 Definition) ellipsoid)
    {6047, 7048, 8901, 0, 232995}, // Not specified (based on GRS 1980 Authalic Sphere)
    {6052, 7052, 8901, 0, 232050}, // Not specified (based on Clarke 1866 Authalic Sphere)
    {6053, 7057, 8901, 0, 233238}, // Not specified (based on International 1924 Authalic Sphere)
    {6054, 7058, 8901, 0, 233137}, // Not specified (based on Hughes 1980 ellipsoid)
    {6055, 7059, 8901, 0, 247191}, // Popular Visualisation Datum
    {6120, 7004, 8901, 0, 95776}, // Greek
    {6121, 7019, 8901, 0, 95797}, // Greek Geodetic Reference System 1987
    {6122, 7041, 8901, 0, 27636}, // Average Terrestrial System 1977
    {6123, 7022, 8901, 0, 120233}, // Kartastokoordinaattijarjestelma (1966)
    {6124, 7004, 8901, 0, 277234}, // Rikets koordinatsystem 1990
    {6125, 7004, 8901, 0, 296280}, // Samboja
    {6126, 7019, 8901, 0, 128247}, // Lithuania 1994 (ETRS89)
    {6127, 7008, 8901, 0, 311135}, // Tete
    {6128, 7008, 8901, 0, 135052}, // Madzansua
    {6129, 7008, 8901, 0, 234920}, // Observatario
    {6130, 7030, 8901, 0, 144353}, // Moznet (ITRF94)
    {6131, 7015, 8901, 0, 106769}, // Indian 1960
    {6132, 7012, 8901, 0, 76269}, // Final Datum 1958
    {6133, 7019, 8901, 0, 69862}, // Estonia 1992
    {6134, 7012, 8901, 0, 240607}, // PDO Survey Datum 1993
    {6135, 7008, 8901, 0, 235937}, // Old Hawaiian
    {6136, 7008, 8901, 0, 318911}, // St. Lawrence Island
    {6137, 7008, 8901, 0, 318946}, // St. Paul Island
    {6138, 7008, 8901, 0, 318878}, // St. George Island
    {6139, 7008, 8901, 0, 248593}, // Puerto Rico
    {6140, 7019, 8901, 0, 159307}, // NAD83 Canadian Spatial Reference System
    {6141, 7019, 8901, 0, 112187}, // Israel 1993
    {6142, 7012, 8901, 0, 129508}, // Locodjo 1965
    {6143, 7012, 8901, 0, 5472}, // Abidjan 1987
    {6144, 7015, 8901, 0, 118006}, // Kalianpur 1937
    {6145, 7044, 8901, 0, 118113}, // Kalianpur 1962
    {6146, 7045, 8901, 0, 118280}, // Kalianpur 1975
    {6147, 7024, 8901, 0, 98760}, // Hanoi 1972
    {6148, 7030, 8901, 0, 98989}, // Hartebeesthoek94
    {6149, 7004, 8901, 0, 41231}, // CH1903
    {6150, 7004, 8901, 0, 41283}, // CH1903+
    {6151, 7019, 8901, 0, 308235}, // Swiss Terrestrial Reference System 1995
    {6152, 7019, 8901, 0, 150380}, // NAD83 (High Accuracy Reference Network)
    {6153, 7022, 8901, 0, 275119}, // Rassadiran
    {6154, 7022, 8901, 0, 73763}, // European Datum 1950(1977)
    {6155, 7011, 8901, 0, 58496}, // Dabola 1981
    {6156, 7004, 8901, 0, 308298}, // System of the Unified Trigonometrical Cadastral Network
    {6157, 7007, 8901, 0, 143952}, // Mount Dillon
    {6158, 7022, 8901, 0, 219001}, // Naparima 1955
    {6159, 7022, 8901, 0, 73829}, // European Libyan Datum 1979
    {6160, 7022, 8901, 0, 49231}, // Chos Malal 1914
    {6161, 7022, 8901, 0, 243520}, // Pampa del Castillo
    {6162, 7004, 8901, 0, 123712}, // Korean Datum 1985
    {6163, 7030, 8901, 0, 373857}, // Yemen National Geodetic Network 1996
    {6164, 7024, 8901, 0, 304573}, // South Yemen
    {6165, 7022, 8901, 0, 35501}, // Bissau
    {6166, 7030, 8901, 0, 123730}, // Korean Datum 1995
    {6167, 7019, 8901, 0, 225283}, // New Zealand Geodetic Datum 2000
    {6168, 7029, 8901, 0, 5650}, // Accra
    {6169, 7008, 8901, 0, 8747}, // American Samoa 1962
    {6170, 7019, 8901, 0, 299116}, // Sistema de Referencia Geocentrico para America del Sur 1995
    {6171, 7019, 8901, 0, 275918}, // Reseau Geodesique Francais 1993 v1
    {6172, 7019, 8901, 0, 248009}, // Posiciones Geodesicas Argentinas
    {6173, 7019, 8901, 0, 103644}, // IRENET95
    {6174, 7029, 8901, 0, 298560}, // Sierra Leone Colony 1924
    {6175, 7012, 8901, 0, 298426}, // Sierra Leone 1968
    {6176, 7019, 8901, 0, 26435}, // Australian Antarctic Datum 1998
    {6178, 7024, 8901, 0, 259083}, // Pulkovo 1942(83)
    {6179, 7024, 8901, 0, 258048}, // Pulkovo 1942(58)
    {6180, 7019, 8901, 0, 69875}, // Estonia 1997
    {6181, 7022, 8901, 0, 130095}, // Luxembourg Reference Frame
    {6182, 7022, 8901, 0, 27924}, // Azores Occidental Islands 1939
    {6183, 7022, 8901, 0, 27807}, // Azores Central Islands 1948
    {6184, 7022, 8901, 0, 28069}, // Azores Oriental Islands 1940
    {6185, 7022, 8901, 0, 134774}, // Madeira 1936
    {6188, 7001, 8901, 0, 234797}, // OSNI 1952
    {6189, 7019, 8901, 0, 275606}, // Red Geodesica Venezolana
    {6190, 7019, 8901, 0, 248080}, // Posiciones Geodesicas Argentinas 1998
    {6191, 7024, 8901, 0, 8022}, // Albanian 1987
    {6192, 7022, 8901, 0, 60408}, // Douala 1948
    {6193, 7011, 8901, 0, 136498}, // Manoca 1962
    {6194, 7022, 8901, 0, 268984}, // Qornoq 1927
    {6195, 7022, 8901, 0, 297444}, // Scoresbysund 1952
    {6196, 7022, 8901, 0, 8883}, // Ammassalik 1958
    {6197, 7012, 8901, 0, 93572}, // Garoua
    {6198, 7012, 8901, 0, 123890}, // Kousseri
    {6199, 7022, 8901, 0, 69267}, // Egypt 1930
    {6200, 7024, 8901, 0, 259874}, // Pulkovo 1995
    {6201, 7012, 8901, 0, 5820}, // Adindan
    {6202, 7003, 8901, 0, 26533}, // Australian Geodetic Datum 1966
    {6203, 7003, 8901, 0, 26564}, // Australian Geodetic Datum 1984
    {6204, 7022, 8901, 0, 7304}, // Ain el Abd 1970
    {6205, 7024, 8901, 0, 5966}, // Afgooye
    {6206, 7011, 8901, 0, 7102}, // Agadez
    {6207, 7022, 8901, 0, 128051}, // Lisbon 1937
    {6208, 7022, 8901, 0, 36420}, // Aratu
    {6209, 7013, 8901, 0, 15429}, // Arc 1950
    {6210, 7012, 8901, 0, 15510}, // Arc 1960
    {6211, 7004, 8901, 0, 30364}, // Batavia
    {6212, 7012, 8901, 0, 30021}, // Barbados 1938
    {6213, 7011, 8901, 0, 30764}, // Beduaram
    {6214, 7024, 8901, 0, 30811}, // Beijing 1954
    {6215, 7022, 8901, 0, 276543}, // Reseau National Belge 1950
    {6216, 7008, 8901, 0, 34273}, // Bermuda 1957
    {6218, 7022, 8901, 0, 35692}, // Bogota 1975
    {6219, 7004, 8901, 0, 38149}, // Bukit Rimpah
    {6220, 7012, 8901, 0, 42581}, // Camacupa 1948
    {6221, 7022, 8901, 0, 42903}, // Campo Inchauspe
    {6222, 7013, 8901, 0, 46054}, // Cape
    {6223, 7011, 8901, 0, 46645}, // Carthage
    {6224, 7022, 8901, 0, 49429}, // Chua
    {6225, 7022, 8901, 0, 54512}, // Corrego Alegre 1970-72
    {6226, 7011, 8901, 0, 55069}, // Cote d'Ivoire
    {6227, 7011, 8901, 0, 59442}, // Deir ez Zor
    {6228, 7011, 8901, 0, 60379}, // Douala
    {6229, 7020, 8901, 0, 69152}, // Egypt 1907
    {6230, 7022, 8901, 0, 73743}, // European Datum 1950
    {6231, 7022, 8901, 0, 73809}, // European Datum 1987
    {6232, 7012, 8901, 0, 75157}, // Fahud
    {6233, 7022, 8901, 0, 93542}, // Gandajika 1970
    {6234, 7011, 8901, 0, 93572}, // Garoua
    {6235, 7022, 8901, 0, 98107}, // Guyane Francaise
    {6236, 7022, 8901, 0, 100781}, // Hu Tzu Shan 1950
    {6237, 7036, 8901, 0, 100912}, // Hungarian Datum 1972
    {6238, 7021, 8901, 0, 109861}, // Indonesian Datum 1974
    {6239, 7015, 8901, 0, 106676}, // Indian 1954
    {6240, 7015, 8901, 0, 106859}, // Indian 1975
    {6241, 7034, 8901, 0, 115162}, // Jamaica 1875
    {6242, 7008, 8901, 0, 115209}, // Jamaica 1969
    {6243, 7042, 8901, 0, 117802}, // Kalianpur 1880
    {6244, 7015, 8901, 0, 118784}, // Kandawala
    {6245, 7018, 8901, 0, 121503}, // Kertau 1968
    {6246, 7012, 8901, 0, 124205}, // Kuwait Oil Company
    {6247, 7022, 8901, 0, 125469}, // La Canoa
    {6248, 7022, 8901, 0, 248527}, // Provisional South American Datum 1956
    {6249, 7022, 8901, 0, 325690}, // Lake
    {6250, 7012, 8901, 0, 126895}, // Leigon
    {6251, 7012, 8901, 0, 126987}, // Liberia 1964
    {6252, 7011, 8901, 0, 129714}, // Lome
    {6253, 7008, 8901, 0, 130149}, // Luzon 1911
    {6254, 7022, 8901, 0, 100067}, // Hito XVIII 1963
    {6255, 7022, 8901, 0, 99990}, // Herat North
    {6256, 7012, 8901, 0, 135082}, // Mahe 1971
    {6257, 7004, 8901, 0, 135567}, // Makassar
    {6258, 7019, 8901, 10, 74318}, // European Terrestrial Reference System 1989 ensemble
    {6259, 7022, 8901, 0, 136319}, // Malongo 1987
    {6260, 7012, 8901, 0, 136491}, // Manoca
    {6261, 7011, 8901, 0, 138795}, // Merchich
    {6262, 7004, 8901, 0, 137976}, // Massawa
    {6263, 7012, 8901, 0, 141050}, // Minna
    {6264, 7022, 8901, 0, 139805}, // Mhast
    {6265, 7022, 8901, 0, 143336}, // Monte Mario
    {6266, 7011, 8901, 0, 130391}, // M'poraloko
    {6267, 7008, 8901, 0, 228630}, // North American Datum 1927
    {6268, 7009, 8901, 0, 149384}, // NAD27 Michigan
    {6269, 7019, 8901, 0, 228723}, // North American Datum 1983
    {6270, 7012, 8901, 0, 218425}, // Nahrwan 1967
    {6271, 7022, 8901, 0, 219044}, // Naparima 1972
    {6272, 7022, 8901, 0, 225251}, // New Zealand Geodetic Datum 1949
    {6273, 7005, 8901, 0, 215055}, // NGO 1948
    {6274, 7022, 8901, 0, 58726}, // Datum 73
    {6275, 7011, 8901, 0, 233786}, // Nouvelle Triangulation Francaise
    {6276, 7025, 8901, 0, 215586}, // NSWC 9Z-2
    {6277, 7001, 8901, 0, 236568}, // Ordnance Survey of Great Britain 1936
    {6278, 7001, 8901, 0, 234714}, // OSGB 1970 (SN)
    {6279, 7001, 8901, 0, 234682}, // OS (SN) 1980
    {6280, 7004, 8901, 0, 243036}, // Padang 1884
    {6281, 7010, 8901, 0, 243286}, // Palestine 1923
    {6282, 7011, 8901, 0, 52354}, // Congo 1960 Pointe Noire
    {6283, 7019, 8901, 0, 93835}, // Geocentric Datum of Australia 1994
    {6284, 7024, 8901, 0, 249020}, // Pulkovo 1942
    {6285, 7022, 8901, 0, 268848}, // Qatar 1974
    {6286, 7020, 8901, 0, 268813}, // Qatar 1948
    {6287, 7022, 8901, 0, 268977}, // Qornoq
    {6288, 7022, 8901, 0, 129686}, // Loma Quintana
    {6289, 7004, 8901, 0, 8832}, // Amersfoort
    {6291, 7036, 8901, 0, 303918}, // South American Datum 1969
    {6292, 7022, 8901, 0, 296676}, // Sapper Hill 1943
    {6293, 7046, 8901, 0, 297215}, // Schwarzeck
    {6294, 7004, 8901, 0, 297626}, // Segora
    {6295, 7004, 8901, 0, 297964}, // Serindung
    {6296, 7011, 8901, 0, 6590}, // Sudan
    {6297, 7022, 8901, 0, 310677}, // Tananarive 1925
    {6298, 7016, 8901, 0, 312099}, // Timbalai 1948
    {6299, 7002, 8901, 0, 308931}, // TM65
    {6300, 7002, 8901, 0, 93931}, // Geodetic Datum of 1965
    {6301, 7004, 8901, 0, 312397}, // Tokyo
    {6302, 7007, 8901, 0, 313597}, // Trinidad 1903
    {6303, 7020, 8901, 0, 314062}, // Trucial Coast 1948
    {6304, 7011, 8901, 0, 336964}, // Voirol 1875
    {6306, 7004, 8901, 0, 34470}, // Bern 1938
    {6307, 7012, 8901, 0, 226499}, // Nord Sahara 1959
    {6308, 7004, 8901, 0, 307178}, // Stockholm 1938
    {6309, 7022, 8901, 0, 373353}, // Yacare
    {6310, 7011, 8901, 0, 373934}, // Yoff
    {6311, 7022, 8901, 0, 374145}, // Zanderij
    {6312, 7004, 8901, 0, 140788}, // Militar-Geographische Institut
    {6313, 7022, 8901, 0, 276608}, // Reseau National Belge 1972
    {6314, 7004, 8901, 0, 60059}, // Deutsches Hauptdreiecksnetz
    {6315, 7011, 8901, 0, 52220}, // Conakry 1905
    {6316, 7022, 8901, 0, 59075}, // Dealul Piscului 1930
    {6317, 7024, 8901, 0, 59182}, // Dealul Piscului 1970
    {6318, 7030, 8901, 0, 219169}, // National Geodetic Network
    {6319, 7019, 8901, 0, 124261}, // Kuwait Utility
    {6322, 7043, 8901, 0, 369780}, // World Geodetic System 1972
    {6324, 7043, 8901, 0, 339978}, // WGS 72 Transit Broadcast Ephemeris
    {6326, 7030, 8901, 200, 370052}, // World Geodetic System 1984 ensemble
    {6600, 7012, 8901, 0, 9486}, // Anguilla 1957
    {6601, 7012, 8901, 0, 15144}, // Antigua 1943
    {6602, 7012, 8901, 0, 60213}, // Dominica 1945
    {6603, 7012, 8901, 0, 97017}, // Grenada 1953
    {6604, 7012, 8901, 0, 143653}, // Montserrat 1958
    {6605, 7012, 8901, 0, 306315}, // St. Kitts 1955
    {6606, 7012, 8901, 0, 306372}, // St. Lucia 1955
    {6607, 7012, 8901, 0, 306519}, // St. Vincent 1945
    {6608, 7008, 8901, 0, 228656}, // North American Datum 1927 (1976)
    {6609, 7008, 8901, 0, 228689}, // North American Datum 1927 (CGQ77)
    {6610, 7049, 8901, 0, 370781}, // Xian 1980
    {6611, 7022, 8901, 0, 100471}, // Hong Kong 1980
    {6612, 7019, 8901, 0, 116725}, // Japanese Geodetic Datum 2000
    {6613, 7004, 8901, 0, 97862}, // Gunung Segara
    {6614, 7022, 8901, 0, 268892}, // Qatar National Datum 1995
    {6615, 7022, 8901, 0, 247449}, // Porto Santo 1936
    {6616, 7022, 8901, 0, 297655}, // Selvagem Grande
    {6618, 7050, 8901, 0, 303918}, // South American Datum 1969
    {6619, 7019, 8901, 0, 295472}, // SWEREF99
    {6620, 7012, 8901, 0, 246593}, // Point 58
    {6621, 7022, 8901, 0, 78725}, // Fort Marigot
    {6622, 7022, 8901, 0, 97311}, // Guadeloupe 1948
    {6623, 7022, 8901, 0, 47225}, // Centre Spatial Guyanais 1967
    {6624, 7019, 8901, 0, 276024}, // Reseau Geodesique Francais Guyane 1995
    {6625, 7022, 8901, 0, 137578}, // Martinique 1938
    {6626, 7022, 8901, 0, 276898}, // Reunion 1947
    {6627, 7019, 8901, 0, 276356}, // Reseau Geodesique de la Reunion 1992
    {6628, 7022, 8901, 0, 310086}, // Tahiti 52
    {6629, 7022, 8901, 0, 310025}, // Tahaa 54
    {6630, 7022, 8901, 0, 103052}, // IGN72 Nuku Hiva
    {6631, 7022, 8901, 0, 117221}, // K0 1949
    {6632, 7022, 8901, 0, 52110}, // Combani 1950
    {6633, 7022, 8901, 0, 102795}, // IGN56 Lifou
    {6634, 7022, 8901, 0, 102999}, // IGN72 Grande Terre
    {6635, 7022, 8901, 0, 295302}, // ST87 Ouvea
    {6636, 7022, 8901, 0, 245460}, // Petrels 1972
    {6637, 7022, 8901, 0, 246611}, // Pointe Geologie Perroud 1950
    {6638, 7008, 8901, 0, 295963}, // Saint Pierre et Miquelon 1950
    {6639, 7022, 8901, 0, 133642}, // MOP78
    {6640, 7030, 8901, 0, 276635}, // Reseau de Reference des Antilles Francaises 1991
    {6641, 7022, 8901, 0, 102678}, // IGN53 Mare
    {6642, 7022, 8901, 0, 295207}, // ST84 Ile des Pins
    {6643, 7022, 8901, 0, 295140}, // ST71 Belep
    {6644, 7022, 8901, 0, 214798}, // NEA74 Noumea
    {6645, 7022, 8901, 0, 276063}, // Reseau Geodesique Nouvelle Caledonie 1991
    {6646, 7022, 8901, 0, 95454}, // Grand Comoros
    {6647, 7019, 8901, 0, 110124}, // International Terrestrial Reference Frame 1988
    {6648, 7019, 8901, 0, 110171}, // International Terrestrial Reference Frame 1989
    {6649, 7019, 8901, 0, 110218}, // International Terrestrial Reference Frame 1990
    {6650, 7019, 8901, 0, 110265}, // International Terrestrial Reference Frame 1991
    {6651, 7019, 8901, 0, 110312}, // International Terrestrial Reference Frame 1992
    {6652, 7019, 8901, 0, 110359}, // International Terrestrial Reference Frame 1993
    {6653, 7019, 8901, 0, 110406}, // International Terrestrial Reference Frame 1994
    {6654, 7019, 8901, 0, 110453}, // International Terrestrial Reference Frame 1996
    {6655, 7019, 8901, 0, 110500}, // International Terrestrial Reference Frame 1997
    {6656, 7019, 8901, 0, 110547}, // International Terrestrial Reference Frame 2000
    {6657, 7051, 8901, 0, 276974}, // Reykjavik 1900
    {6658, 7022, 8901, 0, 100212}, // Hjorsey 1955
    {6659, 7019, 8901, 0, 112070}, // Islands Net 1993
    {6660, 7022, 8901, 0, 99865}, // Helle 1954
    {6661, 7019, 8901, 0, 126716}, // Latvia 1992
    {6663, 7022, 8901, 0, 247466}, // Porto Santo 1995
    {6664, 7022, 8901, 0, 28098}, // Azores Oriental Islands 1995
    {6665, 7022, 8901, 0, 27835}, // Azores Central Islands 1995
    {6666, 7004, 8901, 0, 127947}, // Lisbon 1890
    {6667, 7030, 8901, 0, 111836}, // Iraq-Kuwait Boundary Datum 1992
    {6668, 7022, 8901, 0, 73789}, // European Datum 1979
    {6670, 7019, 8901, 0, 112476}, // Istituto Geografico Militaire 1995
    {6671, 7011, 8901, 0, 337071}, // Voirol 1879
    {6672, 7022, 8901, 0, 47516}, // Chatham Islands Datum 1971
    {6673, 7022, 8901, 0, 47543}, // Chatham Islands Datum 1979
    {6674, 7019, 8901, 0, 299236}, // Sistema de Referencia Geocentrico para las AmericaS 2000
    {6675, 7008, 8901, 0, 97373}, // Guam 1963
    {6676, 7024, 8901, 0, 335167}, // Vientiane 1982
    {6677, 7024, 8901, 0, 126116}, // Lao 1993
    {6678, 7024, 8901, 0, 126134}, // Lao National Datum 1997
    {6679, 7012, 8901, 0, 117179}, // Jouik 1961
    {6680, 7012, 8901, 0, 233754}, // Nouakchott 1965
    {6681, 7012, 8901, 0, 138302}, // Mauritania 1999
    {6682, 7015, 8901, 0, 97701}, // Gulshan 303
    {6683, 7008, 8901, 0, 245599}, // Philippine Reference System 1992
    {6684, 7022, 8901, 0, 93514}, // Gan 1970
    {6685, 7022, 8901, 0, 93532}, // Gandajika
    {6686, 7019, 8901, 0, 137240}, // Marco Geocentrico Nacional de Referencia
    {6687, 7019, 8901, 0, 276279}, // Reseau Geodesique de la Polynesie Francaise
    {6688, 7022, 8901, 0, 75559}, // Fatu Iva 72
    {6689, 7022, 8901, 0, 102866}, // IGN63 Hiva Oa
    {6690, 7022, 8901, 0, 310120}, // Tahiti 79
    {6691, 7022, 8901, 0, 143783}, // Moorea 87
    {6692, 7022, 8901, 0, 138028}, // Maupiti 83
    {6693, 7030, 8901, 0, 218675}, // Nakhl-e Ghanem
    {6694, 7030, 8901, 0, 248042}, // Posiciones Geodesicas Argentinas 1994
    {6695, 7008, 8901, 0, 120451}, // Katanga 1955
    {6696, 7012, 8901, 0, 120313}, // Kasai 1953
    {6697, 7012, 8901, 0, 102040}, // IGC 1962 Arc of the 6th Parallel South
    {6698, 7022, 8901, 0, 102514}, // IGN 1962 Kerguelen
    {6699, 7012, 8901, 0, 126789}, // Le Pouce 1934
    {6700, 7012, 8901, 0, 102567}, // IGN Astro 1960
    {6701, 7012, 8901, 0, 110021}, // Institut Geographique du Congo Belge 1955
    {6702, 7019, 8901, 0, 138302}, // Mauritania 1999
    {6703, 7012, 8901, 0, 141566}, // Missao Hidrografico Angola y Sao Tome 1951
    {6704, 7022, 8901, 0, 139860}, // Mhast (onshore)
    {6705, 7022, 8901, 0, 139811}, // Mhast (offshore)
    {6706, 7020, 8901, 0, 69321}, // Egypt Gulf of Suez S-650 TL
    {6707, 7022, 8901, 0, 311101}, // Tern Island 1961
    {6708, 7003, 8901, 0, 50246}, // Cocos Islands 1965
    {6709, 7022, 8901, 0, 112730}, // Iwo Jima 1945
    {6710, 7022, 8901, 0, 24272}, // Astro DOS 71
    {6711, 7022, 8901, 0, 137390}, // Marcus Island 1952
    {6712, 7022, 8901, 0, 21815}, // Ascension Island 1958
    {6713, 7012, 8901, 0, 27677}, // Ayabelle Lighthouse
    {6714, 7022, 8901, 0, 34174}, // Bellevue
    {6715, 7022, 8901, 0, 42812}, // Camp Area Astro
    {6716, 7022, 8901, 0, 245957}, // Phoenix Islands 1966
    {6717, 7008, 8901, 0, 46239}, // Cape Canaveral
    {6718, 7022, 8901, 0, 299630}, // Solomon 1968
    {6719, 7022, 8901, 0, 68857}, // Easter Island 1967
    {6720, 7043, 8901, 0, 76155}, // Fiji Geodetic Datum 1986
    {6721, 7022, 8901, 0, 76060}, // Fiji 1956
    {6722, 7022, 8901, 0, 304203}, // South Georgia 1968
    {6723, 7008, 8901, 0, 95389}, // Grand Cayman Geodetic Datum 1959
    {6724, 7022, 8901, 0, 60115}, // Diego Garcia 1969
    {6725, 7022, 8901, 0, 117074}, // Johnston Island 1961
    {6726, 7008, 8901, 0, 299293}, // Sister Islands Geodetic Datum 1961
    {6727, 7022, 8901, 0, 140714}, // Midway 1961
    {6728, 7022, 8901, 0, 246002}, // Pico de las Nieves 1984
    {6729, 7022, 8901, 0, 246363}, // Pitcairn 1967
    {6730, 7022, 8901, 0, 296555}, // Santo 1965
    {6731, 7012, 8901, 0, 336919}, // Viti Levu 1916
    {6732, 7053, 8901, 0, 137535}, // Marshall Islands 1960
    {6733, 7022, 8901, 0, 355976}, // Wake Island 1952
    {6734, 7022, 8901, 0, 314007}, // Tristan 1968
    {6735, 7022, 8901, 0, 124081}, // Kusaie 1951
    {6736, 7012, 8901, 0, 14924}, // Deception Island
    {6737, 7019, 8901, 0, 93905}, // Geocentric datum of Korea
    {6738, 7007, 8901, 0, 100390}, // Hong Kong 1963
    {6739, 7022, 8901, 0, 100452}, // Hong Kong 1963(67)
    {6740, 7054, 8901, 0, 244408}, // Parametry Zemli 1990
    {6741, 7022, 8901, 0, 75435}, // Faroe Datum 1954
    {6742, 7019, 8901, 0, 93954}, // Geodetic Datum of Malaysia 2000
    {6743, 7012, 8901, 0, 119950}, // Karbala 1979
    {6744, 7012, 8901, 0, 218303}, // Nahrwan 1934
    {6745, 7004, 8901, 0, 275180}, // Rauenberg Datum/83
    {6746, 7004, 8901, 0, 248225}, // Potsdam Datum/83
    {6747, 7019, 8901, 0, 96962}, // Greenland 1996
    {6748, 7055, 8901, 0, 334580}, // Vanua Levu 1915
    {6749, 7019, 8901, 0, 276139}, // Reseau Geodesique de Nouvelle Caledonie 91-93
    {6750, 7030, 8901, 0, 295302}, // ST87 Ouvea
    {6751, 7056, 8901, 0, 121401}, // Kertau (RSO)
    {6752, 7055, 8901, 0, 336872}, // Viti Levu 1912
    {6753, 7022, 8901, 0, 75504}, // fk89
    {6754, 7022, 8901, 0, 127500}, // Libyan Geodetic Datum 2006
    {6755, 7030, 8901, 0, 58795}, // Datum Geodesi Nasional 1995
    {6756, 7030, 8901, 0, 336062}, // Vietnam 2000
    {6757, 7030, 8901, 0, 295376}, // SVY21
    {6758, 7030, 8901, 0, 115222}, // Jamaica 2001
    {6759, 7019, 8901, 0, 150499}, // NAD83 (National Spatial Reference System 2007)
    {6760, 7025, 8901, 0, 369753}, // World Geodetic System 1966
    {6761, 7019, 8901, 0, 55543}, // Croatian Terrestrial Reference System
    {6762, 7030, 8901, 0, 34314}, // Bermuda 2000
    {6763, 7030, 8901, 0, 246405}, // Pitcairn 2006
    {6764, 7019, 8901, 0, 277588}, // Ross Sea Region Geodetic Datum 2000
    {6765, 7019, 8901, 0, 299495}, // Slovenia Geodetic Datum 1996
    {6801, 7004, 8907, 0, 41238}, // CH1903 (Bern)
    {6802, 7022, 8904, 0, 35704}, // Bogota 1975 (Bogota)
    {6803, 7022, 8902, 0, 128063}, // Lisbon 1937 (Lisbon)
    {6804, 7004, 8908, 0, 135576}, // Makassar (Jakarta)
    {6805, 7004, 8909, 0, 140819}, // Militar-Geographische Institut (Ferro)
    {6806, 7022, 8906, 0, 143348}, // Monte Mario (Rome)
    {6807, 7011, 8903, 0, 233819}, // Nouvelle Triangulation Francaise (Paris)
    {6808, 7004, 8908, 0, 243048}, // Padang 1884 (Jakarta)
    {6809, 7022, 8910, 0, 276570}, // Reseau National Belge 1950 (Brussels)
    {6810, 7022, 8903, 0, 310693}, // Tananarive 1925 (Paris)
    {6811, 7011, 8903, 0, 336976}, // Voirol 1875 (Paris)
    {6813, 7004, 8908, 0, 30372}, // Batavia (Jakarta)
    {6814, 7004, 8911, 0, 307193}, // Stockholm 1938 (Stockholm)
    {6815, 7004, 8912, 0, 95782}, // Greek (Athens)
    {6816, 7011, 8903, 0, 46654}, // Carthage (Paris)
    {6817, 7005, 8913, 0, 215064}, // NGO 1948 (Oslo)
    {6818, 7004, 8909, 0, 308354}, // System of the Unified Trigonometrical Cadastral Network (Ferro)
    {6819, 7012, 8903, 0, 226516}, // Nord Sahara 1959 (Paris)
    {6820, 7004, 8908, 0, 97876}, // Gunung Segara (Jakarta)
    {6821, 7011, 8903, 0, 337083}, // Voirol 1879 (Paris)
    {6896, 7019, 8901, 0, 110594}, // International Terrestrial Reference Frame 2005
    {6901, 7027, 8914, 0, 9040}, // Ancienne Triangulation Francaise (Paris)
    {6902, 7027, 8903, 0, 226732}, // Nord de Guerre (Paris)
    {6903, 7028, 8905, 0, 134942}, // Madrid 1870 (Madrid)
    {6904, 7004, 8902, 0, 127959}, // Lisbon 1890 (Lisbon)
};
// clang-format on

} // namespace ZrProj::systems::rows
