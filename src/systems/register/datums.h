// Datums and datum ensembles.
//
// Made by src/systems/make_register.py from the EPSG Geodetic Parameter Dataset v10.076 of 2022-08-31, which
// is IOGP's, as proj-data carries it, under the terms of use at https://epsg.org/terms-of-use.html. Other makers' names
// are of ArcGIS Pro 3.0 of 2022-07-09 and of PROJ 9.1.1.
#pragma once

#include "systems/register/rows.h"

namespace ZrProj::systems::rows {

// clang-format off
inline constexpr DatumRow datums[] = {
    {1024, 7004, 8901, 0, 64977}, // Hungarian Datum 1909
    {1025, 7050, 8901, 0, 184970}, // Taiwan Datum 1967
    {1026, 7019, 8901, 0, 184984}, // Taiwan Datum 1997
    {1029, 7019, 8901, 0, 71267}, // Iraqi Geospatial Reference System
    {1031, 7004, 8901, 0, 84966}, // MGI 1901
    {1032, 7019, 8901, 0, 85361}, // MOLDREF99
    {1033, 7019, 8901, 0, 165932}, // Reseau Geodesique de la RDC 2005
    {1034, 7019, 8901, 0, 177808}, // Serbian Reference Network 1998
    {1035, 7019, 8901, 0, 165414}, // Red Geodesica de Canarias 1995
    {1036, 7019, 8901, 0, 165765}, // Reseau Geodesique de Mayotte 2004
    {1037, 7022, 8901, 0, 26857}, // Cadastre 1997
    {1038, 7019, 8901, 0, 165826}, // Reseau Geodesique de Saint Pierre et Miquelon 2006
    {1041, 7019, 8901, 0, 16890}, // Autonomous Regions of Portugal 2008
    {1042, 7019, 8901, 0, 89120}, // Mexico ITRF92
    {1043, 1024, 8901, 0, 30832}, // China 2000
    {1044, 7022, 8901, 0, 177012}, // Sao Tome
    {1045, 7024, 8901, 0, 128130}, // New Beijing
    {1046, 7022, 8901, 0, 176988}, // Principe
    {1047, 7019, 8901, 0, 166162}, // Reseau de Reference des Antilles Francaises 1991
    {1048, 7004, 8901, 0, 186845}, // Tokyo 1892
    {1052, 7004, 8901, 0, 183615}, // System of the Unified Trigonometrical Cadastral Network/05
    {1053, 7015, 8901, 0, 181743}, // Sri Lanka Datum 1999
    {1055, 7004, 8909, 0, 183656}, // System of the Unified Trigonometrical Cadastral Network/05 (Ferro)
    {1056, 7019, 8901, 0, 60330}, // Geocentric Datum Brunei Darussalam 2009
    {1057, 7019, 8901, 0, 187621}, // Turkish National Reference Frame
    {1058, 7019, 8901, 0, 22160}, // Bhutan National Geodetic Datum
    {1060, 7019, 8901, 0, 71389}, // Islands Net 2004
    {1061, 7019, 8901, 0, 70541}, // International Terrestrial Reference Frame 2008
    {1062, 7030, 8901, 0, 144951}, // Posiciones Geodesicas Argentinas 2007
    {1063, 7019, 8901, 0, 87818}, // Marco Geodesico Nacional de Bolivia
    {1064, 7019, 8901, 0, 171033}, // SIRGAS-Chile realization 1 epoch 2002
    {1065, 7030, 8901, 0, 34464}, // Costa Rica 2005
    {1066, 7019, 8901, 0, 178635}, // Sistema Geodesico Nacional de Panama MACARIO SOLIS
    {1067, 7019, 8901, 0, 143181}, // Peru96
    {1068, 7030, 8901, 0, 171208}, // SIRGAS-ROU98
    {1069, 7019, 8901, 0, 171432}, // SIRGAS_ES2007.8
    {1070, 7008, 8901, 0, 137106}, // Ocotepeque 1935
    {1071, 7007, 8901, 0, 178012}, // Sibun Gorge 1922
    {1072, 7008, 8901, 0, 142142}, // Panama-Colon 1911
    {1073, 7019, 8901, 0, 165987}, // Reseau Geodesique des Antilles Francaises 2009
    {1074, 7022, 8901, 0, 23249}, // Corrego Alegre 1961
    {1075, 7050, 8901, 0, 180764}, // South American Datum 1969(96)
    {1076, 7019, 8901, 0, 142393}, // Papua New Guinea Geodetic Datum 1994
    {1077, 7024, 8901, 0, 196184}, // Ukraine 2000
    {1078, 7019, 8901, 0, 48062}, // Fehmarnbelt Datum 2010
    {1081, 7004, 8901, 0, 37943}, // Deutsche Bahn Reference System
    {1095, 7019, 8901, 0, 186972}, // Tonga Geodetic Datum 2005
    {1100, 7019, 8901, 0, 29727}, // Cayman Islands Geodetic Datum 2011
    {1111, 7015, 8901, 0, 127883}, // Nepal 1981
    {1112, 7030, 8901, 0, 34978}, // Cyprus Geodetic Reference System 1993
    {1113, 7019, 8901, 0, 166048}, // Reseau Geodesique des Terres Australes et Antarctiques Francaises 2007
    {1114, 7030, 8901, 0, 71508}, // Israeli Geodetic Datum 2005
    {1115, 7030, 8901, 0, 71528}, // Israeli Geodetic Datum 2005(2012)
    {1116, 7019, 8901, 0, 95702}, // NAD83 (National Spatial Reference System 2011)
    {1117, 7019, 8901, 0, 95756}, // NAD83 (National Spatial Reference System PA11)
    {1118, 7019, 8901, 0, 95728}, // NAD83 (National Spatial Reference System MA11)
    {1120, 7019, 8901, 0, 88978}, // Mexico ITRF2008
    {1128, 7019, 8901, 0, 74451}, // Japanese Geodetic Datum 2011
    {1132, 7019, 8901, 0, 166265}, // Rete Dinamica Nazionale 2008
    {1133, 7019, 8901, 0, 95509}, // NAD83 (Continuously Operating Reference Station 1996)
    {1135, 7012, 8901, 0, 4456}, // Aden 1925
    {1136, 7022, 8901, 0, 44747}, // Bioko
    {1137, 7012, 8901, 0, 21277}, // Bekaa Valley 1920
    {1138, 7012, 8901, 0, 180848}, // South East Island 1943
    {1139, 7012, 8901, 0, 60105}, // Gambia
    {1141, 7019, 8901, 0, 66709}, // IGS08
    {1142, 7019, 8901, 0, 65412}, // IG05 Intermediate Datum
    {1143, 7019, 8901, 0, 71508}, // Israeli Geodetic Datum 2005
    {1144, 7019, 8901, 0, 65501}, // IG05/12 Intermediate Datum
    {1145, 7019, 8901, 0, 71528}, // Israeli Geodetic Datum 2005(2012)
    {1147, 7019, 8901, 0, 137807}, // Oman National Geodetic Datum 2014
    {1152, 7030, 8901, 0, 218188}, // World Geodetic System 1984 (G730)
    {1153, 7030, 8901, 0, 218210}, // World Geodetic System 1984 (G873)
    {1154, 7030, 8901, 0, 218093}, // World Geodetic System 1984 (G1150)
    {1155, 7030, 8901, 0, 218116}, // World Geodetic System 1984 (G1674)
    {1156, 7030, 8901, 0, 218140}, // World Geodetic System 1984 (G1762)
    {1157, 7054, 8901, 0, 142610}, // Parametry Zemli 1990.02
    {1158, 7054, 8901, 0, 142627}, // Parametry Zemli 1990.11
    {1159, 1025, 8901, 0, 60461}, // Geodezicheskaya Sistema Koordinat 2011
    {1160, 7019, 8901, 0, 79480}, // Kyrgyzstan Geodetic Datum 2006
    {1165, 7019, 8901, 0, 70569}, // International Terrestrial Reference Frame 2014
    {1166, 7030, 8901, 0, 218233}, // World Geodetic System 1984 (Transit)
    {1167, 7019, 8901, 0, 24140}, // Bulgaria Geodetic System 2005
    {1168, 7019, 8901, 0, 60382}, // Geocentric Datum of Australia 2020
    {1173, 7030, 8901, 0, 182036}, // St. Helena Tritan
    {1174, 7019, 8901, 0, 181951}, // St. Helena Geodetic Datum 2015
    {1178, 7019, 8901, 0, 46778}, // European Terrestrial Reference Frame 1989
    {1179, 7019, 8901, 0, 46807}, // European Terrestrial Reference Frame 1990
    {1180, 7019, 8901, 0, 46836}, // European Terrestrial Reference Frame 1991
    {1181, 7019, 8901, 0, 46865}, // European Terrestrial Reference Frame 1992
    {1182, 7019, 8901, 0, 46894}, // European Terrestrial Reference Frame 1993
    {1183, 7019, 8901, 0, 46923}, // European Terrestrial Reference Frame 1994
    {1184, 7019, 8901, 0, 46952}, // European Terrestrial Reference Frame 1996
    {1185, 7019, 8901, 0, 46981}, // European Terrestrial Reference Frame 1997
    {1186, 7019, 8901, 0, 47010}, // European Terrestrial Reference Frame 2000
    {1187, 7019, 8901, 0, 71398}, // Islands Net 2016
    {1188, 1026, 8909, 0, 62869}, // Gusterberg (Ferro)
    {1189, 1026, 8909, 0, 182193}, // St. Stephen (Ferro)
    {1191, 7019, 8901, 0, 66726}, // IGS14
    {1192, 7019, 8901, 0, 133243}, // North American Datum of 1983 (CSRS96)
    {1193, 7019, 8901, 0, 133087}, // North American Datum of 1983 (CSRS) version 2
    {1194, 7019, 8901, 0, 133113}, // North American Datum of 1983 (CSRS) version 3
    {1195, 7019, 8901, 0, 133139}, // North American Datum of 1983 (CSRS) version 4
    {1196, 7019, 8901, 0, 133165}, // North American Datum of 1983 (CSRS) version 5
    {1197, 7019, 8901, 0, 133191}, // North American Datum of 1983 (CSRS) version 6
    {1198, 7019, 8901, 0, 133217}, // North American Datum of 1983 (CSRS) version 7
    {1201, 7004, 8901, 0, 183568}, // System of the Unified Trigonometrical Cadastral Network [JTSK03]
    {1204, 7019, 8901, 0, 47038}, // European Terrestrial Reference Frame 2005
    {1206, 7019, 8901, 0, 47066}, // European Terrestrial Reference Frame 2014
    {1207, 7022, 8901, 0, 85923}, // Macao 1920
    {1208, 7019, 8901, 0, 85973}, // Macao Geodetic Datum 2008
    {1209, 7019, 8901, 0, 64702}, // Hong Kong Geodetic
    {1211, 7019, 8901, 0, 95544}, // NAD83 (Federal Base Network)
    {1212, 7019, 8901, 0, 95560}, // NAD83 (High Accuracy Reference Network - Corrected)
    {1214, 7019, 8901, 0, 177830}, // Serbian Spatial Reference System 2000
    {1217, 7012, 8901, 0, 27274}, // Camacupa 2015
    {1218, 7019, 8901, 0, 85407}, // MOMRA Terrestrial Reference Frame 2000
    {1220, 7019, 8901, 0, 165546}, // Reference System de Angola 2013
    {1221, 7019, 8901, 0, 133265}, // North American Datum of 1983 (MARP00)
    {1223, 7019, 8901, 0, 165864}, // Reseau Geodesique de Wallis et Futuna 1996
    {1225, 7019, 8901, 0, 26625}, // CR-SIRGAS
    {1227, 7019, 8901, 0, 169742}, // SIRGAS Continuously Operating Network DGF00P01
    {1228, 7019, 8901, 0, 169779}, // SIRGAS Continuously Operating Network DGF01P01
    {1229, 7019, 8901, 0, 169816}, // SIRGAS Continuously Operating Network DGF01P02
    {1230, 7019, 8901, 0, 169853}, // SIRGAS Continuously Operating Network DGF02P01
    {1231, 7019, 8901, 0, 169890}, // SIRGAS Continuously Operating Network DGF04P01
    {1232, 7019, 8901, 0, 169927}, // SIRGAS Continuously Operating Network DGF05P01
    {1233, 7019, 8901, 0, 169964}, // SIRGAS Continuously Operating Network DGF06P01
    {1234, 7019, 8901, 0, 170001}, // SIRGAS Continuously Operating Network DGF07P01
    {1235, 7019, 8901, 0, 170038}, // SIRGAS Continuously Operating Network DGF08P01
    {1236, 7019, 8901, 0, 170075}, // SIRGAS Continuously Operating Network SIR09P01
    {1237, 7019, 8901, 0, 170112}, // SIRGAS Continuously Operating Network SIR10P01
    {1238, 7019, 8901, 0, 170148}, // SIRGAS Continuously Operating Network SIR11P01
    {1239, 7019, 8901, 0, 170184}, // SIRGAS Continuously Operating Network SIR13P01
    {1240, 7019, 8901, 0, 170221}, // SIRGAS Continuously Operating Network SIR14P01
    {1241, 7019, 8901, 0, 170258}, // SIRGAS Continuously Operating Network SIR15P01
    {1242, 7019, 8901, 0, 170295}, // SIRGAS Continuously Operating Network SIR17P01
    {1243, 7019, 8901, 0, 171062}, // SIRGAS-Chile realization 2 epoch 2010
    {1244, 7019, 8901, 0, 66743}, // IGS97
    {1245, 7019, 8901, 0, 66675}, // IGS00
    {1246, 7019, 8901, 0, 66760}, // IGb00
    {1247, 7019, 8901, 0, 66692}, // IGS05
    {1248, 7019, 8901, 0, 66777}, // IGb08
    {1249, 7019, 8901, 0, 133288}, // North American Datum of 1983 (PACP00)
    {1251, 7019, 8901, 0, 78884}, // Kosovo Reference System 2001
    {1252, 7019, 8901, 0, 171092}, // SIRGAS-Chile realization 3 epoch 2013
    {1253, 7019, 8901, 0, 171122}, // SIRGAS-Chile realization 4 epoch 2016
    {1254, 7019, 8901, 0, 170697}, // SIRGAS-Chile
    {1257, 7022, 8901, 0, 185209}, // Tapi Aike
    {1258, 7022, 8901, 0, 90049}, // Ministerio de Marina Norte
    {1259, 7022, 8901, 0, 90066}, // Ministerio de Marina Sur
    {1263, 7019, 8901, 0, 137831}, // Oman National Geodetic Datum 2017
    {1264, 7019, 8901, 0, 63033}, // HS2 Intermediate Reference Frame
    {1266, 7019, 8901, 0, 184179}, // TPEN11 Intermediate Reference Frame
    {1268, 7019, 8901, 0, 77803}, // Kingdom of Saudi Arabia Geodetic Reference Frame 2017
    {1271, 7019, 8901, 0, 85163}, // MML07 Intermediate Reference Frame
    {1272, 7019, 8901, 0, 66794}, // IGb14
    {1273, 7019, 8901, 0, 4126}, // AbInvA96_2020 Intermediate Reference Frame
    {1286, 7022, 8901, 0, 143587}, // Pico de las Nieves 1968
    {1289, 7019, 8901, 0, 51363}, // GBK19 Intermediate Reference Frame
    {1291, 7019, 8901, 0, 16408}, // Australian Terrestrial Reference Frame 2014
    {1293, 7030, 8901, 0, 178575}, // Sistem Referensi Geospasial Indonesia 2013
    {1295, 7019, 8901, 0, 83050}, // Lyon Turin Ferroviaire 2004
    {1304, 7019, 8901, 0, 165372}, // Red Geodesica Para Mineria en Chile
    {1305, 7019, 8901, 0, 41350}, // ETRF2000 Poland
    {1308, 7019, 8901, 0, 39534}, // EOS21 Intermediate Reference Frame
    {1309, 7030, 8901, 0, 218164}, // World Geodetic System 1984 (G2139)
    {1310, 7019, 8901, 0, 38566}, // ECML14_NB Intermediate Reference Frame
    {1311, 7019, 8901, 0, 43884}, // EWR2 Intermediate Reference Frame
    {1312, 7019, 8901, 0, 165646}, // Reseau Geodesique Francais 1993 v2
    {1313, 7019, 8901, 0, 165674}, // Reseau Geodesique Francais 1993 v2b
    {1314, 7019, 8901, 0, 85509}, // MRH21 Intermediate Reference Frame
    {1315, 7019, 8901, 0, 85311}, // MOLDOR11 Intermediate Reference Frame
    {1317, 7019, 8901, 0, 63252}, // HULLEE13 Intermediate Reference Frame
    {1319, 7019, 8901, 0, 38502}, // EBBWV14 Intermediate Reference Frame
    {1320, 7019, 8901, 0, 168835}, // SCM22 Intermediate Reference Frame
    {1321, 7019, 8901, 0, 47667}, // FNL22 Intermediate Reference Frame
    {1322, 7019, 8901, 0, 70598}, // International Terrestrial Reference Frame 2020
    {1324, 7019, 8901, 0, 85879}, // MWC18 Intermediate Reference Frame
    {1327, 7019, 8901, 0, 171152}, // SIRGAS-Chile realization 5 epoch 2021
    {6001, 7001, 8901, 0, 134494}, // Not specified (based on Airy 1830 ellipsoid)
    {6002, 7002, 8901, 0, 134527}, // Not specified (based on Airy Modified 1849 ellipsoid)
    {6003, 7003, 8901, 0, 134569}, // Not specified (based on Australian National Spheroid)
    {6004, 7004, 8901, 0, 134677}, // Not specified (based on Bessel 1841 ellipsoid)
    {6005, 7005, 8901, 0, 134713}, // Not specified (based on Bessel Modified ellipsoid)
    {6006, 7046, 8901, 0, 134752}, // Not specified (based on Bessel Namibia ellipsoid)
    {6007, 7007, 8901, 0, 134788}, // Not specified (based on Clarke 1858 ellipsoid)
    {6008, 7008, 8901, 0, 134904}, // Not specified (based on Clarke 1866 ellipsoid)
    {6009, 7009, 8901, 0, 134861}, // Not specified (based on Clarke 1866 Michigan ellipsoid)
    {6010, 7010, 8901, 0, 134980}, // Not specified (based on Clarke 1880 (Benoit) ellipsoid)
    {6011, 7011, 8901, 0, 135022}, // Not specified (based on Clarke 1880 (IGN) ellipsoid)
    {6012, 7012, 8901, 0, 135063}, // Not specified (based on Clarke 1880 (RGS) ellipsoid)
    {6013, 7013, 8901, 0, 134940}, // Not specified (based on Clarke 1880 (Arc) ellipsoid)
    {6014, 7014, 8901, 0, 135104}, // Not specified (based on Clarke 1880 (SGA 1922) ellipsoid)
    {6015, 7015, 8901, 0, 135227}, // Not specified (based on Everest 1830 (1937 Adjustment) ellipsoid)
    {6016, 7016, 8901, 0, 135321}, // Not specified (based on Everest 1830 (1967 Definition) ellipsoid)
    {6018, 7018, 8901, 0, 135413}, // Not specified (based on Everest 1830 Modified ellipsoid)
    {6019, 7019, 8901, 0, 135553}, // Not specified (based on GRS 1980 ellipsoid)
    {6020, 7020, 8901, 0, 135585}, // Not specified (based on Helmert 1906 ellipsoid)
    {6021, 7021, 8901, 0, 135655}, // Not specified (based on Indonesian National Spheroid)
    {6022, 7022, 8901, 0, 135725}, // Not specified (based on International 1924 ellipsoid)
    {6024, 7024, 8901, 0, 135762}, // Not specified (based on Krassowsky 1940 ellipsoid)
    {6025, 7025, 8901, 0, 135801}, // Not specified (based on NWL 9D ellipsoid)
    {6027, 7027, 8901, 0, 135900}, // Not specified (based on Plessis 1817 ellipsoid)
    {6028, 7028, 8901, 0, 135937}, // Not specified (based on Struve 1860 ellipsoid)
    {6029, 7029, 8901, 0, 136040}, // Not specified (based on War Office ellipsoid)
    {6030, 7030, 8901, 0, 136007}, // Not specified (based on WGS 84 ellipsoid)
    {6031, 7031, 8901, 0, 135455}, // Not specified (based on GEM 10C ellipsoid)
    {6032, 7032, 8901, 0, 135834}, // Not specified (based on OSU86F ellipsoid)
    {6033, 7033, 8901, 0, 135867}, // Not specified (based on OSU91A ellipsoid)
    {6034, 7034, 8901, 0, 135148}, // Not specified (based on Clarke 1880 ellipsoid)
    {6035, 7035, 8901, 0, 134603}, // Not specified (based on Authalic Sphere)
    {6036, 7036, 8901, 0, 135488}, // Not specified (based on GRS 1967 ellipsoid)
    {6041, 7041, 8901, 0, 134630}, // Not specified (based on Average Terrestrial System 1977 ellipsoid)
    {6042, 7042, 8901, 0, 135184}, // Not specified (based on Everest (1830 Definition) ellipsoid)
    {6043, 7043, 8901, 0, 135974}, // Not specified (based on WGS 72 ellipsoid)
    {6044, 7044, 8901, 0, 135275}, // Not specified (based on Everest 1830 (1962 Definition) ellipsoid)
    {6045, 7045, 8901, 0, 135367}, // Not specified (based on Everest 1830 (1975 Definition) ellipsoid)
    {6047, 7048, 8901, 0, 135520}, // Not specified (based on GRS 1980 Authalic Sphere)
    {6052, 7052, 8901, 0, 134824}, // Not specified (based on Clarke 1866 Authalic Sphere)
    {6053, 7057, 8901, 0, 135687}, // Not specified (based on International 1924 Authalic Sphere)
    {6054, 7058, 8901, 0, 135620}, // Not specified (based on Hughes 1980 ellipsoid)
    {6055, 7059, 8901, 0, 144351}, // Popular Visualisation Datum
    {6120, 7004, 8901, 0, 61541}, // Greek
    {6121, 7019, 8901, 0, 61557}, // Greek Geodetic Reference System 1987
    {6122, 7041, 8901, 0, 16914}, // Average Terrestrial System 1977
    {6123, 7022, 8901, 0, 76606}, // Kartastokoordinaattijarjestelma (1966)
    {6124, 7004, 8901, 0, 166542}, // Rikets koordinatsystem 1990
    {6125, 7004, 8901, 0, 176748}, // Samboja
    {6126, 7019, 8901, 0, 81736}, // Lithuania 1994 (ETRS89)
    {6127, 7008, 8901, 0, 185455}, // Tete
    {6128, 7008, 8901, 0, 86441}, // Madzansua
    {6129, 7008, 8901, 0, 136907}, // Observatario
    {6130, 7030, 8901, 0, 92236}, // Moznet (ITRF94)
    {6131, 7015, 8901, 0, 68800}, // Indian 1960
    {6132, 7012, 8901, 0, 48465}, // Final Datum 1958
    {6133, 7019, 8901, 0, 44786}, // Estonia 1992
    {6134, 7012, 8901, 0, 140033}, // PDO Survey Datum 1993
    {6135, 7008, 8901, 0, 137557}, // Old Hawaiian
    {6136, 7008, 8901, 0, 190249}, // St. Lawrence Island
    {6137, 7008, 8901, 0, 190268}, // St. Paul Island
    {6138, 7008, 8901, 0, 190232}, // St. George Island
    {6139, 7008, 8901, 0, 145266}, // Puerto Rico
    {6140, 7019, 8901, 0, 99871}, // NAD83 Canadian Spatial Reference System
    {6141, 7019, 8901, 0, 71447}, // Israel 1993
    {6142, 7012, 8901, 0, 82556}, // Locodjo 1965
    {6143, 7012, 8901, 0, 4231}, // Abidjan 1987
    {6144, 7015, 8901, 0, 75304}, // Kalianpur 1937
    {6145, 7044, 8901, 0, 75361}, // Kalianpur 1962
    {6146, 7045, 8901, 0, 75448}, // Kalianpur 1975
    {6147, 7024, 8901, 0, 63433}, // Hanoi 1972
    {6148, 7030, 8901, 0, 63599}, // Hartebeesthoek94
    {6149, 7004, 8901, 0, 26191}, // CH1903
    {6150, 7004, 8901, 0, 26233}, // CH1903+
    {6151, 7019, 8901, 0, 183441}, // Swiss Terrestrial Reference System 1995
    {6152, 7019, 8901, 0, 95594}, // NAD83 (High Accuracy Reference Network)
    {6153, 7022, 8901, 0, 165043}, // Rassadiran
    {6154, 7022, 8901, 0, 46707}, // European Datum 1950(1977)
    {6155, 7011, 8901, 0, 36903}, // Dabola 1981
    {6156, 7004, 8901, 0, 183486}, // System of the Unified Trigonometrical Cadastral Network
    {6157, 7007, 8901, 0, 91975}, // Mount Dillon
    {6158, 7022, 8901, 0, 127601}, // Naparima 1955
    {6159, 7022, 8901, 0, 46757}, // European Libyan Datum 1979
    {6160, 7022, 8901, 0, 30956}, // Chos Malal 1914
    {6161, 7022, 8901, 0, 142022}, // Pampa del Castillo
    {6162, 7004, 8901, 0, 78802}, // Korean Datum 1985
    {6163, 7030, 8901, 0, 220749}, // Yemen National Geodetic Network 1996
    {6164, 7024, 8901, 0, 181068}, // South Yemen
    {6165, 7022, 8901, 0, 22391}, // Bissau
    {6166, 7030, 8901, 0, 78814}, // Korean Datum 1995
    {6167, 7019, 8901, 0, 131440}, // New Zealand Geodetic Datum 2000
    {6168, 7029, 8901, 0, 4346}, // Accra
    {6169, 7008, 8901, 0, 6247}, // American Samoa 1962
    {6170, 7019, 8901, 0, 178690}, // Sistema de Referencia Geocentrico para America del Sur 1995
    {6171, 7019, 8901, 0, 165618}, // Reseau Geodesique Francais 1993 v1
    {6172, 7019, 8901, 0, 144877}, // Posiciones Geodesicas Argentinas
    {6173, 7019, 8901, 0, 66889}, // IRENET95
    {6174, 7029, 8901, 0, 178306}, // Sierra Leone Colony 1924
    {6175, 7012, 8901, 0, 178213}, // Sierra Leone 1968
    {6176, 7019, 8901, 0, 16103}, // Australian Antarctic Datum 1998
    {6178, 7024, 8901, 0, 153063}, // Pulkovo 1942(83)
    {6179, 7024, 8901, 0, 152337}, // Pulkovo 1942(58)
    {6180, 7019, 8901, 0, 44794}, // Estonia 1997
    {6181, 7022, 8901, 0, 82905}, // Luxembourg Reference Frame
    {6182, 7022, 8901, 0, 17082}, // Azores Occidental Islands 1939
    {6183, 7022, 8901, 0, 17017}, // Azores Central Islands 1948
    {6184, 7022, 8901, 0, 17174}, // Azores Oriental Islands 1940
    {6185, 7022, 8901, 0, 86239}, // Madeira 1936
    {6188, 7001, 8901, 0, 136809}, // OSNI 1952
    {6189, 7019, 8901, 0, 165396}, // Red Geodesica Venezolana
    {6190, 7019, 8901, 0, 144925}, // Posiciones Geodesicas Argentinas 1998
    {6191, 7024, 8901, 0, 5785}, // Albanian 1987
    {6192, 7022, 8901, 0, 38219}, // Douala 1948
    {6193, 7011, 8901, 0, 87316}, // Manoca 1962
    {6194, 7022, 8901, 0, 160511}, // Qornoq 1927
    {6195, 7022, 8901, 0, 177546}, // Scoresbysund 1952
    {6196, 7022, 8901, 0, 6337}, // Ammassalik 1958
    {6197, 7012, 8901, 0, 60159}, // Garoua
    {6198, 7012, 8901, 0, 78927}, // Kousseri
    {6199, 7022, 8901, 0, 44307}, // Egypt 1930
    {6200, 7024, 8901, 0, 153607}, // Pulkovo 1995
    {6201, 7012, 8901, 0, 4470}, // Adindan
    {6202, 7003, 8901, 0, 16166}, // Australian Geodetic Datum 1966
    {6203, 7003, 8901, 0, 16188}, // Australian Geodetic Datum 1984
    {6204, 7022, 8901, 0, 5331}, // Ain el Abd 1970
    {6205, 7024, 8901, 0, 4561}, // Afgooye
    {6206, 7011, 8901, 0, 5199}, // Agadez
    {6207, 7022, 8901, 0, 81598}, // Lisbon 1937
    {6208, 7022, 8901, 0, 22969}, // Aratu
    {6209, 7013, 8901, 0, 10091}, // Arc 1950
    {6210, 7012, 8901, 0, 10136}, // Arc 1960
    {6211, 7004, 8901, 0, 18644}, // Batavia
    {6212, 7012, 8901, 0, 18415}, // Barbados 1938
    {6213, 7011, 8901, 0, 18930}, // Beduaram
    {6214, 7024, 8901, 0, 18963}, // Beijing 1954
    {6215, 7022, 8901, 0, 166100}, // Reseau National Belge 1950
    {6216, 7008, 8901, 0, 21493}, // Bermuda 1957
    {6218, 7022, 8901, 0, 22533}, // Bogota 1975
    {6219, 7004, 8901, 0, 24065}, // Bukit Rimpah
    {6220, 7012, 8901, 0, 27190}, // Camacupa 1948
    {6221, 7022, 8901, 0, 27403}, // Campo Inchauspe
    {6222, 7013, 8901, 0, 29102}, // Cape
    {6223, 7011, 8901, 0, 29507}, // Carthage
    {6224, 7022, 8901, 0, 31086}, // Chua
    {6225, 7022, 8901, 0, 34181}, // Corrego Alegre 1970-72
    {6226, 7011, 8901, 0, 34517}, // Cote d'Ivoire
    {6227, 7011, 8901, 0, 37585}, // Deir ez Zor
    {6228, 7011, 8901, 0, 38202}, // Douala
    {6229, 7020, 8901, 0, 44222}, // Egypt 1907
    {6230, 7022, 8901, 0, 46692}, // European Datum 1950
    {6231, 7022, 8901, 0, 46742}, // European Datum 1987
    {6232, 7012, 8901, 0, 47711}, // Fahud
    {6233, 7022, 8901, 0, 60137}, // Gandajika 1970
    {6234, 7011, 8901, 0, 60159}, // Garoua
    {6235, 7022, 8901, 0, 62942}, // Guyane Francaise
    {6236, 7022, 8901, 0, 64895}, // Hu Tzu Shan 1950
    {6237, 7036, 8901, 0, 64992}, // Hungarian Datum 1972
    {6238, 7021, 8901, 0, 70055}, // Indonesian Datum 1974
    {6239, 7015, 8901, 0, 68755}, // Indian 1954
    {6240, 7015, 8901, 0, 68846}, // Indian 1975
    {6241, 7034, 8901, 0, 73476}, // Jamaica 1875
    {6242, 7008, 8901, 0, 73510}, // Jamaica 1969
    {6243, 7042, 8901, 0, 75188}, // Kalianpur 1880
    {6244, 7015, 8901, 0, 75726}, // Kandawala
    {6245, 7018, 8901, 0, 77423}, // Kertau 1968
    {6246, 7012, 8901, 0, 79133}, // Kuwait Oil Company
    {6247, 7022, 8901, 0, 80027}, // La Canoa
    {6248, 7022, 8901, 0, 145224}, // Provisional South American Datum 1956
    {6249, 7022, 8901, 0, 193531}, // Lake
    {6250, 7012, 8901, 0, 80918}, // Leigon
    {6251, 7012, 8901, 0, 80979}, // Liberia 1964
    {6252, 7011, 8901, 0, 82707}, // Lome
    {6253, 7008, 8901, 0, 82947}, // Luzon 1911
    {6254, 7022, 8901, 0, 64374}, // Hito XVIII 1963
    {6255, 7022, 8901, 0, 64319}, // Herat North
    {6256, 7012, 8901, 0, 86464}, // Mahe 1971
    {6257, 7004, 8901, 0, 86744}, // Makassar
    {6258, 7019, 8901, 10, 47095}, // European Terrestrial Reference System 1989 ensemble
    {6259, 7022, 8901, 0, 87197}, // Malongo 1987
    {6260, 7012, 8901, 0, 87310}, // Manoca
    {6261, 7011, 8901, 0, 88720}, // Merchich
    {6262, 7004, 8901, 0, 88228}, // Massawa
    {6263, 7012, 8901, 0, 90146}, // Minna
    {6264, 7022, 8901, 0, 89381}, // Mhast
    {6265, 7022, 8901, 0, 91564}, // Monte Mario
    {6266, 7011, 8901, 0, 83089}, // M'poraloko
    {6267, 7008, 8901, 0, 133015}, // North American Datum 1927
    {6268, 7009, 8901, 0, 95026}, // NAD27 Michigan
    {6269, 7019, 8901, 0, 133071}, // North American Datum 1983
    {6270, 7012, 8901, 0, 127260}, // Nahrwan 1967
    {6271, 7022, 8901, 0, 127629}, // Naparima 1972
    {6272, 7022, 8901, 0, 131419}, // New Zealand Geodetic Datum 1949
    {6273, 7005, 8901, 0, 124976}, // NGO 1948
    {6274, 7022, 8901, 0, 37052}, // Datum 73
    {6275, 7011, 8901, 0, 136098}, // Nouvelle Triangulation Francaise
    {6276, 7025, 8901, 0, 125341}, // NSWC 9Z-2
    {6277, 7001, 8901, 0, 137960}, // Ordnance Survey of Great Britain 1936
    {6278, 7001, 8901, 0, 136743}, // OSGB 1970 (SN)
    {6279, 7001, 8901, 0, 136716}, // OS (SN) 1980
    {6280, 7004, 8901, 0, 141708}, // Padang 1884
    {6281, 7010, 8901, 0, 141869}, // Palestine 1923
    {6282, 7011, 8901, 0, 32943}, // Congo 1960 Pointe Noire
    {6283, 7019, 8901, 0, 60359}, // Geocentric Datum of Australia 1994
    {6284, 7024, 8901, 0, 145555}, // Pulkovo 1942
    {6285, 7022, 8901, 0, 160424}, // Qatar 1974
    {6286, 7020, 8901, 0, 160402}, // Qatar 1948
    {6287, 7022, 8901, 0, 160505}, // Qornoq
    {6288, 7022, 8901, 0, 82687}, // Loma Quintana
    {6289, 7004, 8901, 0, 6302}, // Amersfoort
    {6291, 7036, 8901, 0, 180749}, // South American Datum 1969
    {6292, 7022, 8901, 0, 177027}, // Sapper Hill 1943
    {6293, 7046, 8901, 0, 177356}, // Schwarzeck
    {6294, 7004, 8901, 0, 177668}, // Segora
    {6295, 7004, 8901, 0, 177902}, // Serindung
    {6296, 7011, 8901, 0, 4948}, // Sudan
    {6297, 7022, 8901, 0, 185144}, // Tananarive 1925
    {6298, 7016, 8901, 0, 185986}, // Timbalai 1948
    {6299, 7002, 8901, 0, 183937}, // TM65
    {6300, 7002, 8901, 0, 60422}, // Geodetic Datum of 1965
    {6301, 7004, 8901, 0, 186211}, // Tokyo
    {6302, 7007, 8901, 0, 187096}, // Trinidad 1903
    {6303, 7020, 8901, 0, 187393}, // Trucial Coast 1948
    {6304, 7011, 8901, 0, 200609}, // Voirol 1875
    {6306, 7004, 8901, 0, 21630}, // Bern 1938
    {6307, 7012, 8901, 0, 132159}, // Nord Sahara 1959
    {6308, 7004, 8901, 0, 182727}, // Stockholm 1938
    {6309, 7022, 8901, 0, 220445}, // Yacare
    {6310, 7011, 8901, 0, 220803}, // Yoff
    {6311, 7022, 8901, 0, 220929}, // Zanderij
    {6312, 7004, 8901, 0, 89966}, // Militar-Geographische Institut
    {6313, 7022, 8901, 0, 166144}, // Reseau National Belge 1972
    {6314, 7004, 8901, 0, 37991}, // Deutsches Hauptdreiecksnetz
    {6315, 7011, 8901, 0, 32851}, // Conakry 1905
    {6316, 7022, 8901, 0, 37308}, // Dealul Piscului 1930
    {6317, 7024, 8901, 0, 37391}, // Dealul Piscului 1970
    {6318, 7030, 8901, 0, 127717}, // National Geodetic Network
    {6319, 7019, 8901, 0, 79174}, // Kuwait Utility
    {6322, 7043, 8901, 0, 218077}, // World Geodetic System 1972
    {6324, 7043, 8901, 0, 202575}, // WGS 72 Transit Broadcast Ephemeris
    {6326, 7030, 8901, 200, 218257}, // World Geodetic System 1984 ensemble
    {6600, 7012, 8901, 0, 6710}, // Anguilla 1957
    {6601, 7012, 8901, 0, 9913}, // Antigua 1943
    {6602, 7012, 8901, 0, 38100}, // Dominica 1945
    {6603, 7012, 8901, 0, 62208}, // Grenada 1953
    {6604, 7012, 8901, 0, 91778}, // Montserrat 1958
    {6605, 7012, 8901, 0, 182092}, // St. Kitts 1955
    {6606, 7012, 8901, 0, 182132}, // St. Lucia 1955
    {6607, 7012, 8901, 0, 182240}, // St. Vincent 1945
    {6608, 7008, 8901, 0, 133031}, // North American Datum 1927 (1976)
    {6609, 7008, 8901, 0, 133050}, // North American Datum 1927 (CGQ77)
    {6610, 7049, 8901, 0, 218697}, // Xian 1980
    {6611, 7022, 8901, 0, 64657}, // Hong Kong 1980
    {6612, 7019, 8901, 0, 74430}, // Japanese Geodetic Datum 2000
    {6613, 7004, 8901, 0, 62740}, // Gunung Segara
    {6614, 7022, 8901, 0, 160450}, // Qatar National Datum 1995
    {6615, 7022, 8901, 0, 144523}, // Porto Santo 1936
    {6616, 7022, 8901, 0, 177689}, // Selvagem Grande
    {6618, 7050, 8901, 0, 180749}, // South American Datum 1969
    {6619, 7019, 8901, 0, 176108}, // SWEREF99
    {6620, 7012, 8901, 0, 144010}, // Point 58
    {6621, 7022, 8901, 0, 49732}, // Fort Marigot
    {6622, 7022, 8901, 0, 62387}, // Guadeloupe 1948
    {6623, 7022, 8901, 0, 29894}, // Centre Spatial Guyanais 1967
    {6624, 7019, 8901, 0, 165703}, // Reseau Geodesique Francais Guyane 1995
    {6625, 7022, 8901, 0, 88003}, // Martinique 1938
    {6626, 7022, 8901, 0, 166333}, // Reunion 1947
    {6627, 7019, 8901, 0, 165958}, // Reseau Geodesique de la Reunion 1992
    {6628, 7022, 8901, 0, 184771}, // Tahiti 52
    {6629, 7022, 8901, 0, 184730}, // Tahaa 54
    {6630, 7022, 8901, 0, 66450}, // IGN72 Nuku Hiva
    {6631, 7022, 8901, 0, 74784}, // K0 1949
    {6632, 7022, 8901, 0, 32779}, // Combani 1950
    {6633, 7022, 8901, 0, 66260}, // IGN56 Lifou
    {6634, 7022, 8901, 0, 66415}, // IGN72 Grande Terre
    {6635, 7022, 8901, 0, 175976}, // ST87 Ouvea
    {6636, 7022, 8901, 0, 143273}, // Petrels 1972
    {6637, 7022, 8901, 0, 144026}, // Pointe Geologie Perroud 1950
    {6638, 7008, 8901, 0, 176543}, // Saint Pierre et Miquelon 1950
    {6639, 7022, 8901, 0, 85470}, // MOP78
    {6640, 7030, 8901, 0, 166162}, // Reseau de Reference des Antilles Francaises 1991
    {6641, 7022, 8901, 0, 66173}, // IGN53 Mare
    {6642, 7022, 8901, 0, 175903}, // ST84 Ile des Pins
    {6643, 7022, 8901, 0, 175850}, // ST71 Belep
    {6644, 7022, 8901, 0, 124780}, // NEA74 Noumea
    {6645, 7022, 8901, 0, 165734}, // Reseau Geodesique Nouvelle Caledonie 1991
    {6646, 7022, 8901, 0, 61331}, // Grand Comoros
    {6647, 7019, 8901, 0, 70224}, // International Terrestrial Reference Frame 1988
    {6648, 7019, 8901, 0, 70253}, // International Terrestrial Reference Frame 1989
    {6649, 7019, 8901, 0, 70282}, // International Terrestrial Reference Frame 1990
    {6650, 7019, 8901, 0, 70311}, // International Terrestrial Reference Frame 1991
    {6651, 7019, 8901, 0, 70340}, // International Terrestrial Reference Frame 1992
    {6652, 7019, 8901, 0, 70369}, // International Terrestrial Reference Frame 1993
    {6653, 7019, 8901, 0, 70398}, // International Terrestrial Reference Frame 1994
    {6654, 7019, 8901, 0, 70427}, // International Terrestrial Reference Frame 1996
    {6655, 7019, 8901, 0, 70456}, // International Terrestrial Reference Frame 1997
    {6656, 7019, 8901, 0, 70485}, // International Terrestrial Reference Frame 2000
    {6657, 7051, 8901, 0, 166386}, // Reykjavik 1900
    {6658, 7022, 8901, 0, 64478}, // Hjorsey 1955
    {6659, 7019, 8901, 0, 71379}, // Islands Net 1993
    {6660, 7022, 8901, 0, 64225}, // Helle 1954
    {6661, 7019, 8901, 0, 80798}, // Latvia 1992
    {6663, 7022, 8901, 0, 144535}, // Porto Santo 1995
    {6664, 7022, 8901, 0, 17191}, // Azores Oriental Islands 1995
    {6665, 7022, 8901, 0, 17030}, // Azores Central Islands 1995
    {6666, 7004, 8901, 0, 81528}, // Lisbon 1890
    {6667, 7030, 8901, 0, 71221}, // Iraq-Kuwait Boundary Datum 1992
    {6668, 7022, 8901, 0, 46727}, // European Datum 1979
    {6670, 7019, 8901, 0, 71650}, // Istituto Geografico Militaire 1995
    {6671, 7011, 8901, 0, 200691}, // Voirol 1879
    {6672, 7022, 8901, 0, 30098}, // Chatham Islands Datum 1971
    {6673, 7022, 8901, 0, 30115}, // Chatham Islands Datum 1979
    {6674, 7019, 8901, 0, 178764}, // Sistema de Referencia Geocentrico para las AmericaS 2000
    {6675, 7008, 8901, 0, 62421}, // Guam 1963
    {6676, 7024, 8901, 0, 199411}, // Vientiane 1982
    {6677, 7024, 8901, 0, 80492}, // Lao 1993
    {6678, 7024, 8901, 0, 80506}, // Lao National Datum 1997
    {6679, 7012, 8901, 0, 74755}, // Jouik 1961
    {6680, 7012, 8901, 0, 136074}, // Nouakchott 1965
    {6681, 7012, 8901, 0, 88413}, // Mauritania 1999
    {6682, 7015, 8901, 0, 62626}, // Gulshan 303
    {6683, 7008, 8901, 0, 143368}, // Philippine Reference System 1992
    {6684, 7022, 8901, 0, 60117}, // Gan 1970
    {6685, 7022, 8901, 0, 60129}, // Gandajika
    {6686, 7019, 8901, 0, 87791}, // Marco Geocentrico Nacional de Referencia
    {6687, 7019, 8901, 0, 165898}, // Reseau Geodesique de la Polynesie Francaise
    {6688, 7022, 8901, 0, 47939}, // Fatu Iva 72
    {6689, 7022, 8901, 0, 66317}, // IGN63 Hiva Oa
    {6690, 7022, 8901, 0, 184793}, // Tahiti 79
    {6691, 7022, 8901, 0, 91867}, // Moorea 87
    {6692, 7022, 8901, 0, 88264}, // Maupiti 83
    {6693, 7030, 8901, 0, 127422}, // Nakhl-e Ghanem
    {6694, 7030, 8901, 0, 144899}, // Posiciones Geodesicas Argentinas 1994
    {6695, 7008, 8901, 0, 76755}, // Katanga 1955
    {6696, 7012, 8901, 0, 76667}, // Kasai 1953
    {6697, 7012, 8901, 0, 65740}, // IGC 1962 Arc of the 6th Parallel South
    {6698, 7022, 8901, 0, 66064}, // IGN 1962 Kerguelen
    {6699, 7012, 8901, 0, 80848}, // Le Pouce 1934
    {6700, 7012, 8901, 0, 66099}, // IGN Astro 1960
    {6701, 7012, 8901, 0, 70152}, // Institut Geographique du Congo Belge 1955
    {6702, 7019, 8901, 0, 88413}, // Mauritania 1999
    {6703, 7012, 8901, 0, 90422}, // Missao Hidrografico Angola y Sao Tome 1951
    {6704, 7022, 8901, 0, 89412}, // Mhast (onshore)
    {6705, 7022, 8901, 0, 89386}, // Mhast (offshore)
    {6706, 7020, 8901, 0, 44352}, // Egypt Gulf of Suez S-650 TL
    {6707, 7022, 8901, 0, 185437}, // Tern Island 1961
    {6708, 7003, 8901, 0, 31655}, // Cocos Islands 1965
    {6709, 7022, 8901, 0, 71811}, // Iwo Jima 1945
    {6710, 7022, 8901, 0, 14875}, // Astro DOS 71
    {6711, 7022, 8901, 0, 87895}, // Marcus Island 1952
    {6712, 7022, 8901, 0, 13585}, // Ascension Island 1958
    {6713, 7012, 8901, 0, 16943}, // Ayabelle Lighthouse
    {6714, 7022, 8901, 0, 21417}, // Bellevue
    {6715, 7022, 8901, 0, 27345}, // Camp Area Astro
    {6716, 7022, 8901, 0, 143574}, // Phoenix Islands 1966
    {6717, 7008, 8901, 0, 29243}, // Cape Canaveral
    {6718, 7022, 8901, 0, 179033}, // Solomon 1968
    {6719, 7022, 8901, 0, 44043}, // Easter Island 1967
    {6720, 7043, 8901, 0, 48376}, // Fiji Geodetic Datum 1986
    {6721, 7022, 8901, 0, 48310}, // Fiji 1956
    {6722, 7022, 8901, 0, 180879}, // South Georgia 1968
    {6723, 7008, 8901, 0, 61287}, // Grand Cayman Geodetic Datum 1959
    {6724, 7022, 8901, 0, 38041}, // Diego Garcia 1969
    {6725, 7022, 8901, 0, 74688}, // Johnston Island 1961
    {6726, 7008, 8901, 0, 178801}, // Sister Islands Geodetic Datum 1961
    {6727, 7022, 8901, 0, 89923}, // Midway 1961
    {6728, 7022, 8901, 0, 143604}, // Pico de las Nieves 1984
    {6729, 7022, 8901, 0, 143851}, // Pitcairn 1967
    {6730, 7022, 8901, 0, 176952}, // Santo 1965
    {6731, 7012, 8901, 0, 200573}, // Viti Levu 1916
    {6732, 7053, 8901, 0, 87981}, // Marshall Islands 1960
    {6733, 7022, 8901, 0, 213772}, // Wake Island 1952
    {6734, 7022, 8901, 0, 187354}, // Tristan 1968
    {6735, 7022, 8901, 0, 79064}, // Kusaie 1951
    {6736, 7012, 8901, 0, 9789}, // Deception Island
    {6737, 7019, 8901, 0, 60405}, // Geocentric datum of Korea
    {6738, 7007, 8901, 0, 64597}, // Hong Kong 1963
    {6739, 7022, 8901, 0, 64642}, // Hong Kong 1963(67)
    {6740, 7054, 8901, 0, 142595}, // Parametry Zemli 1990
    {6741, 7022, 8901, 0, 47862}, // Faroe Datum 1954
    {6742, 7019, 8901, 0, 60439}, // Geodetic Datum of Malaysia 2000
    {6743, 7012, 8901, 0, 76424}, // Karbala 1979
    {6744, 7012, 8901, 0, 127187}, // Nahrwan 1934
    {6745, 7004, 8901, 0, 165088}, // Rauenberg Datum/83
    {6746, 7004, 8901, 0, 145025}, // Potsdam Datum/83
    {6747, 7019, 8901, 0, 62176}, // Greenland 1996
    {6748, 7055, 8901, 0, 199050}, // Vanua Levu 1915
    {6749, 7019, 8901, 0, 165791}, // Reseau Geodesique de Nouvelle Caledonie 91-93
    {6750, 7030, 8901, 0, 175976}, // ST87 Ouvea
    {6751, 7056, 8901, 0, 77347}, // Kertau (RSO)
    {6752, 7055, 8901, 0, 200536}, // Viti Levu 1912
    {6753, 7022, 8901, 0, 47900}, // fk89
    {6754, 7022, 8901, 0, 81210}, // Libyan Geodetic Datum 2006
    {6755, 7030, 8901, 0, 37103}, // Datum Geodesi Nasional 1995
    {6756, 7030, 8901, 0, 199996}, // Vietnam 2000
    {6757, 7030, 8901, 0, 176038}, // SVY21
    {6758, 7030, 8901, 0, 73519}, // Jamaica 2001
    {6759, 7019, 8901, 0, 95675}, // NAD83 (National Spatial Reference System 2007)
    {6760, 7025, 8901, 0, 218061}, // World Geodetic System 1966
    {6761, 7019, 8901, 0, 34829}, // Croatian Terrestrial Reference System
    {6762, 7030, 8901, 0, 21519}, // Bermuda 2000
    {6763, 7030, 8901, 0, 143877}, // Pitcairn 2006
    {6764, 7019, 8901, 0, 166783}, // Ross Sea Region Geodetic Datum 2000
    {6765, 7019, 8901, 0, 178931}, // Slovenia Geodetic Datum 1996
    {6801, 7004, 8907, 0, 26197}, // CH1903 (Bern)
    {6802, 7022, 8904, 0, 22542}, // Bogota 1975 (Bogota)
    {6803, 7022, 8902, 0, 81606}, // Lisbon 1937 (Lisbon)
    {6804, 7004, 8908, 0, 86751}, // Makassar (Jakarta)
    {6805, 7004, 8909, 0, 89987}, // Militar-Geographische Institut (Ferro)
    {6806, 7022, 8906, 0, 91573}, // Monte Mario (Rome)
    {6807, 7011, 8903, 0, 136121}, // Nouvelle Triangulation Francaise (Paris)
    {6808, 7004, 8908, 0, 141718}, // Padang 1884 (Jakarta)
    {6809, 7022, 8910, 0, 166118}, // Reseau National Belge 1950 (Brussels)
    {6810, 7022, 8903, 0, 185155}, // Tananarive 1925 (Paris)
    {6811, 7011, 8903, 0, 200619}, // Voirol 1875 (Paris)
    {6813, 7004, 8908, 0, 18651}, // Batavia (Jakarta)
    {6814, 7004, 8911, 0, 182739}, // Stockholm 1938 (Stockholm)
    {6815, 7004, 8912, 0, 61546}, // Greek (Athens)
    {6816, 7011, 8903, 0, 29514}, // Carthage (Paris)
    {6817, 7005, 8913, 0, 124983}, // NGO 1948 (Oslo)
    {6818, 7004, 8909, 0, 183524}, // System of the Unified Trigonometrical Cadastral Network (Ferro)
    {6819, 7012, 8903, 0, 132169}, // Nord Sahara 1959 (Paris)
    {6820, 7004, 8908, 0, 62753}, // Gunung Segara (Jakarta)
    {6821, 7011, 8903, 0, 200701}, // Voirol 1879 (Paris)
    {6896, 7019, 8901, 0, 70513}, // International Terrestrial Reference Frame 2005
    {6901, 7027, 8914, 0, 6435}, // Ancienne Triangulation Francaise (Paris)
    {6902, 7027, 8903, 0, 132292}, // Nord de Guerre (Paris)
    {6903, 7028, 8905, 0, 86356}, // Madrid 1870 (Madrid)
    {6904, 7004, 8902, 0, 81537}, // Lisbon 1890 (Lisbon)
};
// clang-format on

} // namespace ZrProj::systems::rows
