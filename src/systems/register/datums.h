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
    {1024, 7004, 8901, 0, 68461}, // Hungarian Datum 1909
    {1025, 7050, 8901, 0, 193172}, // Taiwan Datum 1967
    {1026, 7019, 8901, 0, 193186}, // Taiwan Datum 1997
    {1029, 7019, 8901, 0, 75168}, // Iraqi Geospatial Reference System
    {1031, 7004, 8901, 0, 89611}, // MGI 1901
    {1032, 7019, 8901, 0, 90091}, // MOLDREF99
    {1033, 7019, 8901, 0, 172811}, // Reseau Geodesique de la RDC 2005
    {1034, 7019, 8901, 0, 185054}, // Serbian Reference Network 1998
    {1035, 7019, 8901, 0, 172293}, // Red Geodesica de Canarias 1995
    {1036, 7019, 8901, 0, 172644}, // Reseau Geodesique de Mayotte 2004
    {1037, 7022, 8901, 0, 28734}, // Cadastre 1997
    {1038, 7019, 8901, 0, 172705}, // Reseau Geodesique de Saint Pierre et Miquelon 2006
    {1041, 7019, 8901, 0, 17932}, // Autonomous Regions of Portugal 2008
    {1042, 7019, 8901, 0, 93997}, // Mexico ITRF92
    {1043, 1024, 8901, 0, 33235}, // China 2000
    {1044, 7022, 8901, 0, 184144}, // Sao Tome
    {1045, 7024, 8901, 0, 133660}, // New Beijing
    {1046, 7022, 8901, 0, 184120}, // Principe
    {1047, 7019, 8901, 0, 173040}, // Reseau de Reference des Antilles Francaises 1991
    {1048, 7004, 8901, 0, 195099}, // Tokyo 1892
    {1052, 7004, 8901, 0, 191343}, // System of the Unified Trigonometrical Cadastral Network/05
    {1053, 7015, 8901, 0, 189419}, // Sri Lanka Datum 1999
    {1055, 7004, 8909, 0, 191383}, // System of the Unified Trigonometrical Cadastral Network/05 (Ferro)
    {1056, 7019, 8901, 0, 63542}, // Geocentric Datum Brunei Darussalam 2009
    {1057, 7019, 8901, 0, 195886}, // Turkish National Reference Frame
    {1058, 7019, 8901, 0, 23421}, // Bhutan National Geodetic Datum
    {1060, 7019, 8901, 0, 75307}, // Islands Net 2004
    {1061, 7019, 8901, 0, 74348}, // International Terrestrial Reference Frame 2008
    {1062, 7030, 8901, 0, 151632}, // Posiciones Geodesicas Argentinas 2007
    {1063, 7019, 8901, 0, 92578}, // Marco Geodesico Nacional de Bolivia
    {1064, 7019, 8901, 0, 178024}, // SIRGAS-Chile realization 1 epoch 2002
    {1065, 7030, 8901, 0, 37020}, // Costa Rica 2005
    {1066, 7019, 8901, 0, 185883}, // Sistema Geodesico Nacional de Panama MACARIO SOLIS
    {1067, 7019, 8901, 0, 149552}, // Peru96
    {1068, 7030, 8901, 0, 178199}, // SIRGAS-ROU98
    {1069, 7019, 8901, 0, 178486}, // SIRGAS_ES2007.8
    {1070, 7008, 8901, 0, 143093}, // Ocotepeque 1935
    {1071, 7007, 8901, 0, 185258}, // Sibun Gorge 1922
    {1072, 7008, 8901, 0, 148439}, // Panama-Colon 1911
    {1073, 7019, 8901, 0, 172866}, // Reseau Geodesique des Antilles Francaises 2009
    {1074, 7022, 8901, 0, 24626}, // Corrego Alegre 1961
    {1075, 7050, 8901, 0, 188338}, // South American Datum 1969(96)
    {1076, 7019, 8901, 0, 148742}, // Papua New Guinea Geodetic Datum 1994
    {1077, 7024, 8901, 0, 205147}, // Ukraine 2000
    {1078, 7019, 8901, 0, 50983}, // Fehmarnbelt Datum 2010
    {1081, 7004, 8901, 0, 40634}, // Deutsche Bahn Reference System
    {1095, 7019, 8901, 0, 195231}, // Tonga Geodetic Datum 2005
    {1100, 7019, 8901, 0, 31896}, // Cayman Islands Geodetic Datum 2011
    {1111, 7015, 8901, 0, 133407}, // Nepal 1981
    {1112, 7030, 8901, 0, 37580}, // Cyprus Geodetic Reference System 1993
    {1113, 7019, 8901, 0, 172927}, // Reseau Geodesique des Terres Australes et Antarctiques Francaises 2007
    {1114, 7030, 8901, 0, 75427}, // Israeli Geodetic Datum 2005
    {1115, 7030, 8901, 0, 75447}, // Israeli Geodetic Datum 2005(2012)
    {1116, 7019, 8901, 0, 100726}, // NAD83 (National Spatial Reference System 2011)
    {1117, 7019, 8901, 0, 100780}, // NAD83 (National Spatial Reference System PA11)
    {1118, 7019, 8901, 0, 100752}, // NAD83 (National Spatial Reference System MA11)
    {1120, 7019, 8901, 0, 93855}, // Mexico ITRF2008
    {1128, 7019, 8901, 0, 78746}, // Japanese Geodetic Datum 2011
    {1132, 7019, 8901, 0, 173143}, // Rete Dinamica Nazionale 2008
    {1133, 7019, 8901, 0, 100533}, // NAD83 (Continuously Operating Reference Station 1996)
    {1135, 7012, 8901, 0, 4830}, // Aden 1925
    {1136, 7022, 8901, 0, 47514}, // Bioko
    {1137, 7012, 8901, 0, 22522}, // Bekaa Valley 1920
    {1138, 7012, 8901, 0, 188421}, // South East Island 1943
    {1139, 7012, 8901, 0, 63316}, // Gambia
    {1141, 7019, 8901, 0, 70225}, // IGS08
    {1142, 7019, 8901, 0, 68879}, // IG05 Intermediate Datum
    {1143, 7019, 8901, 0, 75427}, // Israeli Geodetic Datum 2005
    {1144, 7019, 8901, 0, 68949}, // IG05/12 Intermediate Datum
    {1145, 7019, 8901, 0, 75447}, // Israeli Geodetic Datum 2005(2012)
    {1147, 7019, 8901, 0, 143834}, // Oman National Geodetic Datum 2014
    {1152, 7030, 8901, 0, 227288}, // World Geodetic System 1984 (G730)
    {1153, 7030, 8901, 0, 227311}, // World Geodetic System 1984 (G873)
    {1154, 7030, 8901, 0, 227193}, // World Geodetic System 1984 (G1150)
    {1155, 7030, 8901, 0, 227216}, // World Geodetic System 1984 (G1674)
    {1156, 7030, 8901, 0, 227240}, // World Geodetic System 1984 (G1762)
    {1157, 7054, 8901, 0, 148975}, // Parametry Zemli 1990.02
    {1158, 7054, 8901, 0, 148992}, // Parametry Zemli 1990.11
    {1159, 1025, 8901, 0, 63672}, // Geodezicheskaya Sistema Koordinat 2011
    {1160, 7019, 8901, 0, 83948}, // Kyrgyzstan Geodetic Datum 2006
    {1165, 7019, 8901, 0, 74375}, // International Terrestrial Reference Frame 2014
    {1166, 7030, 8901, 0, 227334}, // World Geodetic System 1984 (Transit)
    {1167, 7019, 8901, 0, 25815}, // Bulgaria Geodetic System 2005
    {1168, 7019, 8901, 0, 63593}, // Geocentric Datum of Australia 2020
    {1173, 7030, 8901, 0, 189711}, // St. Helena Tritan
    {1174, 7019, 8901, 0, 189626}, // St. Helena Geodetic Datum 2015
    {1178, 7019, 8901, 0, 49696}, // European Terrestrial Reference Frame 1989
    {1179, 7019, 8901, 0, 49724}, // European Terrestrial Reference Frame 1990
    {1180, 7019, 8901, 0, 49752}, // European Terrestrial Reference Frame 1991
    {1181, 7019, 8901, 0, 49780}, // European Terrestrial Reference Frame 1992
    {1182, 7019, 8901, 0, 49808}, // European Terrestrial Reference Frame 1993
    {1183, 7019, 8901, 0, 49836}, // European Terrestrial Reference Frame 1994
    {1184, 7019, 8901, 0, 49864}, // European Terrestrial Reference Frame 1996
    {1185, 7019, 8901, 0, 49892}, // European Terrestrial Reference Frame 1997
    {1186, 7019, 8901, 0, 49920}, // European Terrestrial Reference Frame 2000
    {1187, 7019, 8901, 0, 75316}, // Islands Net 2016
    {1188, 1026, 8909, 0, 66292}, // Gusterberg (Ferro)
    {1189, 1026, 8909, 0, 189869}, // St. Stephen (Ferro)
    {1191, 7019, 8901, 0, 70242}, // IGS14
    {1192, 7019, 8901, 0, 139056}, // North American Datum of 1983 (CSRS96)
    {1193, 7019, 8901, 0, 138900}, // North American Datum of 1983 (CSRS) version 2
    {1194, 7019, 8901, 0, 138926}, // North American Datum of 1983 (CSRS) version 3
    {1195, 7019, 8901, 0, 138952}, // North American Datum of 1983 (CSRS) version 4
    {1196, 7019, 8901, 0, 138978}, // North American Datum of 1983 (CSRS) version 5
    {1197, 7019, 8901, 0, 139004}, // North American Datum of 1983 (CSRS) version 6
    {1198, 7019, 8901, 0, 139030}, // North American Datum of 1983 (CSRS) version 7
    {1201, 7004, 8901, 0, 191297}, // System of the Unified Trigonometrical Cadastral Network [JTSK03]
    {1204, 7019, 8901, 0, 49947}, // European Terrestrial Reference Frame 2005
    {1206, 7019, 8901, 0, 49974}, // European Terrestrial Reference Frame 2014
    {1207, 7022, 8901, 0, 90668}, // Macao 1920
    {1208, 7019, 8901, 0, 90718}, // Macao Geodetic Datum 2008
    {1209, 7019, 8901, 0, 68185}, // Hong Kong Geodetic
    {1211, 7019, 8901, 0, 100568}, // NAD83 (Federal Base Network)
    {1212, 7019, 8901, 0, 100584}, // NAD83 (High Accuracy Reference Network - Corrected)
    {1214, 7019, 8901, 0, 185076}, // Serbian Spatial Reference System 2000
    {1217, 7012, 8901, 0, 29151}, // Camacupa 2015
    {1218, 7019, 8901, 0, 90137}, // MOMRA Terrestrial Reference Frame 2000
    {1220, 7019, 8901, 0, 172425}, // Reference System de Angola 2013
    {1221, 7019, 8901, 0, 139078}, // North American Datum of 1983 (MARP00)
    {1223, 7019, 8901, 0, 172743}, // Reseau Geodesique de Wallis et Futuna 1996
    {1225, 7019, 8901, 0, 28461}, // CR-SIRGAS
    {1227, 7019, 8901, 0, 176733}, // SIRGAS Continuously Operating Network DGF00P01
    {1228, 7019, 8901, 0, 176770}, // SIRGAS Continuously Operating Network DGF01P01
    {1229, 7019, 8901, 0, 176807}, // SIRGAS Continuously Operating Network DGF01P02
    {1230, 7019, 8901, 0, 176844}, // SIRGAS Continuously Operating Network DGF02P01
    {1231, 7019, 8901, 0, 176881}, // SIRGAS Continuously Operating Network DGF04P01
    {1232, 7019, 8901, 0, 176918}, // SIRGAS Continuously Operating Network DGF05P01
    {1233, 7019, 8901, 0, 176955}, // SIRGAS Continuously Operating Network DGF06P01
    {1234, 7019, 8901, 0, 176992}, // SIRGAS Continuously Operating Network DGF07P01
    {1235, 7019, 8901, 0, 177029}, // SIRGAS Continuously Operating Network DGF08P01
    {1236, 7019, 8901, 0, 177066}, // SIRGAS Continuously Operating Network SIR09P01
    {1237, 7019, 8901, 0, 177103}, // SIRGAS Continuously Operating Network SIR10P01
    {1238, 7019, 8901, 0, 177139}, // SIRGAS Continuously Operating Network SIR11P01
    {1239, 7019, 8901, 0, 177175}, // SIRGAS Continuously Operating Network SIR13P01
    {1240, 7019, 8901, 0, 177212}, // SIRGAS Continuously Operating Network SIR14P01
    {1241, 7019, 8901, 0, 177249}, // SIRGAS Continuously Operating Network SIR15P01
    {1242, 7019, 8901, 0, 177286}, // SIRGAS Continuously Operating Network SIR17P01
    {1243, 7019, 8901, 0, 178053}, // SIRGAS-Chile realization 2 epoch 2010
    {1244, 7019, 8901, 0, 70259}, // IGS97
    {1245, 7019, 8901, 0, 70191}, // IGS00
    {1246, 7019, 8901, 0, 70276}, // IGb00
    {1247, 7019, 8901, 0, 70208}, // IGS05
    {1248, 7019, 8901, 0, 70293}, // IGb08
    {1249, 7019, 8901, 0, 139101}, // North American Datum of 1983 (PACP00)
    {1251, 7019, 8901, 0, 83283}, // Kosovo Reference System 2001
    {1252, 7019, 8901, 0, 178083}, // SIRGAS-Chile realization 3 epoch 2013
    {1253, 7019, 8901, 0, 178113}, // SIRGAS-Chile realization 4 epoch 2016
    {1254, 7019, 8901, 0, 177688}, // SIRGAS-Chile
    {1257, 7022, 8901, 0, 193418}, // Tapi Aike
    {1258, 7022, 8901, 0, 94931}, // Ministerio de Marina Norte
    {1259, 7022, 8901, 0, 94948}, // Ministerio de Marina Sur
    {1263, 7019, 8901, 0, 143858}, // Oman National Geodetic Datum 2017
    {1264, 7019, 8901, 0, 66469}, // HS2 Intermediate Reference Frame
    {1266, 7019, 8901, 0, 192357}, // TPEN11 Intermediate Reference Frame
    {1268, 7019, 8901, 0, 82132}, // Kingdom of Saudi Arabia Geodetic Reference Frame 2017
    {1271, 7019, 8901, 0, 89893}, // MML07 Intermediate Reference Frame
    {1272, 7019, 8901, 0, 70310}, // IGb14
    {1273, 7019, 8901, 0, 4494}, // AbInvA96_2020 Intermediate Reference Frame
    {1286, 7022, 8901, 0, 149998}, // Pico de las Nieves 1968
    {1289, 7019, 8901, 0, 54436}, // GBK19 Intermediate Reference Frame
    {1291, 7019, 8901, 0, 17467}, // Australian Terrestrial Reference Frame 2014
    {1293, 7030, 8901, 0, 185823}, // Sistem Referensi Geospasial Indonesia 2013
    {1295, 7019, 8901, 0, 87678}, // Lyon Turin Ferroviaire 2004
    {1304, 7019, 8901, 0, 172251}, // Red Geodesica Para Mineria en Chile
    {1305, 7019, 8901, 0, 44060}, // ETRF2000 Poland
    {1308, 7019, 8901, 0, 42244}, // EOS21 Intermediate Reference Frame
    {1309, 7030, 8901, 0, 227264}, // World Geodetic System 1984 (G2139)
    {1310, 7019, 8901, 0, 41268}, // ECML14_NB Intermediate Reference Frame
    {1311, 7019, 8901, 0, 46600}, // EWR2 Intermediate Reference Frame
    {1312, 7019, 8901, 0, 172525}, // Reseau Geodesique Francais 1993 v2
    {1313, 7019, 8901, 0, 172553}, // Reseau Geodesique Francais 1993 v2b
    {1314, 7019, 8901, 0, 90238}, // MRH21 Intermediate Reference Frame
    {1315, 7019, 8901, 0, 90041}, // MOLDOR11 Intermediate Reference Frame
    {1317, 7019, 8901, 0, 66707}, // HULLEE13 Intermediate Reference Frame
    {1319, 7019, 8901, 0, 41204}, // EBBWV14 Intermediate Reference Frame
    {1320, 7019, 8901, 0, 175786}, // SCM22 Intermediate Reference Frame
    {1321, 7019, 8901, 0, 50573}, // FNL22 Intermediate Reference Frame
    {1322, 7019, 8901, 0, 74403}, // International Terrestrial Reference Frame 2020
    {1324, 7019, 8901, 0, 90624}, // MWC18 Intermediate Reference Frame
    {1327, 7019, 8901, 0, 178143}, // SIRGAS-Chile realization 5 epoch 2021
    {6001, 7001, 8901, 0, 140379}, // Not specified (based on Airy 1830 ellipsoid)
    {6002, 7002, 8901, 0, 140412}, // Not specified (based on Airy Modified 1849 ellipsoid)
    {6003, 7003, 8901, 0, 140454}, // Not specified (based on Australian National Spheroid)
    {6004, 7004, 8901, 0, 140560}, // Not specified (based on Bessel 1841 ellipsoid)
    {6005, 7005, 8901, 0, 140596}, // Not specified (based on Bessel Modified ellipsoid)
    {6006, 7046, 8901, 0, 140635}, // Not specified (based on Bessel Namibia ellipsoid)
    {6007, 7007, 8901, 0, 140671}, // Not specified (based on Clarke 1858 ellipsoid)
    {6008, 7008, 8901, 0, 140787}, // Not specified (based on Clarke 1866 ellipsoid)
    {6009, 7009, 8901, 0, 140744}, // Not specified (based on Clarke 1866 Michigan ellipsoid)
    {6010, 7010, 8901, 0, 140863}, // Not specified (based on Clarke 1880 (Benoit) ellipsoid)
    {6011, 7011, 8901, 0, 140905}, // Not specified (based on Clarke 1880 (IGN) ellipsoid)
    {6012, 7012, 8901, 0, 140946}, // Not specified (based on Clarke 1880 (RGS) ellipsoid)
    {6013, 7013, 8901, 0, 140823}, // Not specified (based on Clarke 1880 (Arc) ellipsoid)
    {6014, 7014, 8901, 0, 140987}, // Not specified (based on Clarke 1880 (SGA 1922) ellipsoid)
    {6015, 7015, 8901, 0, 141110}, // Not specified (based on Everest 1830 (1937 Adjustment) ellipsoid)
    {6016, 7016, 8901, 0, 141204}, // Not specified (based on Everest 1830 (1967 Definition) ellipsoid)
    {6018, 7018, 8901, 0, 141296}, // Not specified (based on Everest 1830 Modified ellipsoid)
    {6019, 7019, 8901, 0, 141436}, // Not specified (based on GRS 1980 ellipsoid)
    {6020, 7020, 8901, 0, 141468}, // Not specified (based on Helmert 1906 ellipsoid)
    {6021, 7021, 8901, 0, 141538}, // Not specified (based on Indonesian National Spheroid)
    {6022, 7022, 8901, 0, 141608}, // Not specified (based on International 1924 ellipsoid)
    {6024, 7024, 8901, 0, 141645}, // Not specified (based on Krassowsky 1940 ellipsoid)
    {6025, 7025, 8901, 0, 141684}, // Not specified (based on NWL 9D ellipsoid)
    {6027, 7027, 8901, 0, 141783}, // Not specified (based on Plessis 1817 ellipsoid)
    {6028, 7028, 8901, 0, 141820}, // Not specified (based on Struve 1860 ellipsoid)
    {6029, 7029, 8901, 0, 141923}, // Not specified (based on War Office ellipsoid)
    {6030, 7030, 8901, 0, 141890}, // Not specified (based on WGS 84 ellipsoid)
    {6031, 7031, 8901, 0, 141338}, // Not specified (based on GEM 10C ellipsoid)
    {6032, 7032, 8901, 0, 141717}, // Not specified (based on OSU86F ellipsoid)
    {6033, 7033, 8901, 0, 141750}, // Not specified (based on OSU91A ellipsoid)
    {6034, 7034, 8901, 0, 141031}, // Not specified (based on Clarke 1880 ellipsoid)
    {6035, 7035, 8901, 0, 140487}, // Not specified (based on Authalic Sphere)
    {6036, 7036, 8901, 0, 141371}, // Not specified (based on GRS 1967 ellipsoid)
    {6041, 7041, 8901, 0, 140514}, // Not specified (based on Average Terrestrial System 1977 ellipsoid)
    {6042, 7042, 8901, 0, 141067}, // Not specified (based on Everest (1830 Definition) ellipsoid)
    {6043, 7043, 8901, 0, 141857}, // Not specified (based on WGS 72 ellipsoid)
    {6044, 7044, 8901, 0, 141158}, // Not specified (based on Everest 1830 (1962 Definition) ellipsoid)
    {6045, 7045, 8901, 0, 141250}, // Not specified (based on Everest 1830 (1975 Definition) ellipsoid)
    {6047, 7048, 8901, 0, 141403}, // Not specified (based on GRS 1980 Authalic Sphere)
    {6052, 7052, 8901, 0, 140707}, // Not specified (based on Clarke 1866 Authalic Sphere)
    {6053, 7057, 8901, 0, 141570}, // Not specified (based on International 1924 Authalic Sphere)
    {6054, 7058, 8901, 0, 141503}, // Not specified (based on Hughes 1980 ellipsoid)
    {6055, 7059, 8901, 0, 150765}, // Popular Visualisation Datum
    {6120, 7004, 8901, 0, 64883}, // Greek
    {6121, 7019, 8901, 0, 64923}, // Greek Geodetic Reference System 1987
    {6122, 7041, 8901, 0, 17956}, // Average Terrestrial System 1977
    {6123, 7022, 8901, 0, 80904}, // Kartastokoordinaattijarjestelma (1966)
    {6124, 7004, 8901, 0, 173421}, // Rikets koordinatsystem 1990
    {6125, 7004, 8901, 0, 183879}, // Samboja
    {6126, 7019, 8901, 0, 86358}, // Lithuania 1994 (ETRS89)
    {6127, 7008, 8901, 0, 193664}, // Tete
    {6128, 7008, 8901, 0, 91184}, // Madzansua
    {6129, 7008, 8901, 0, 142894}, // Observatario
    {6130, 7030, 8901, 0, 97201}, // Moznet (ITRF94)
    {6131, 7015, 8901, 0, 72583}, // Indian 1960
    {6132, 7012, 8901, 0, 51384}, // Final Datum 1958
    {6133, 7019, 8901, 0, 47553}, // Estonia 1992
    {6134, 7012, 8901, 0, 146140}, // PDO Survey Datum 1993
    {6135, 7008, 8901, 0, 143563}, // Old Hawaiian
    {6136, 7008, 8901, 0, 198751}, // St. Lawrence Island
    {6137, 7008, 8901, 0, 198770}, // St. Paul Island
    {6138, 7008, 8901, 0, 198734}, // St. George Island
    {6139, 7008, 8901, 0, 151947}, // Puerto Rico
    {6140, 7019, 8901, 0, 104899}, // NAD83 Canadian Spatial Reference System
    {6141, 7019, 8901, 0, 75365}, // Israel 1993
    {6142, 7012, 8901, 0, 87179}, // Locodjo 1965
    {6143, 7012, 8901, 0, 4599}, // Abidjan 1987
    {6144, 7015, 8901, 0, 79600}, // Kalianpur 1937
    {6145, 7044, 8901, 0, 79657}, // Kalianpur 1962
    {6146, 7045, 8901, 0, 79744}, // Kalianpur 1975
    {6147, 7024, 8901, 0, 66888}, // Hanoi 1972
    {6148, 7030, 8901, 0, 67054}, // Hartebeesthoek94
    {6149, 7004, 8901, 0, 27924}, // CH1903
    {6150, 7004, 8901, 0, 27966}, // CH1903+
    {6151, 7019, 8901, 0, 191122}, // Swiss Terrestrial Reference System 1995
    {6152, 7019, 8901, 0, 100618}, // NAD83 (High Accuracy Reference Network)
    {6153, 7022, 8901, 0, 171922}, // Rassadiran
    {6154, 7022, 8901, 0, 49625}, // European Datum 1950(1977)
    {6155, 7011, 8901, 0, 39542}, // Dabola 1981
    {6156, 7004, 8901, 0, 191217}, // System of the Unified Trigonometrical Cadastral Network
    {6157, 7007, 8901, 0, 96898}, // Mount Dillon
    {6158, 7022, 8901, 0, 133085}, // Naparima 1955
    {6159, 7022, 8901, 0, 49675}, // European Libyan Datum 1979
    {6160, 7022, 8901, 0, 33359}, // Chos Malal 1914
    {6161, 7022, 8901, 0, 148308}, // Pampa del Castillo
    {6162, 7004, 8901, 0, 83194}, // Korean Datum 1985
    {6163, 7030, 8901, 0, 229867}, // Yemen National Geodetic Network 1996
    {6164, 7024, 8901, 0, 188641}, // South Yemen
    {6165, 7022, 8901, 0, 23653}, // Bissau
    {6166, 7030, 8901, 0, 83207}, // Korean Datum 1995
    {6167, 7019, 8901, 0, 136958}, // New Zealand Geodetic Datum 2000
    {6168, 7029, 8901, 0, 4719}, // Accra
    {6169, 7008, 8901, 0, 6923}, // American Samoa 1962
    {6170, 7019, 8901, 0, 185938}, // Sistema de Referencia Geocentrico para America del Sur 1995
    {6171, 7019, 8901, 0, 172497}, // Reseau Geodesique Francais 1993 v1
    {6172, 7019, 8901, 0, 151558}, // Posiciones Geodesicas Argentinas
    {6173, 7019, 8901, 0, 70405}, // IRENET95
    {6174, 7029, 8901, 0, 185552}, // Sierra Leone Colony 1924
    {6175, 7012, 8901, 0, 185459}, // Sierra Leone 1968
    {6176, 7019, 8901, 0, 17177}, // Australian Antarctic Datum 1998
    {6178, 7024, 8901, 0, 159747}, // Pulkovo 1942(83)
    {6179, 7024, 8901, 0, 159021}, // Pulkovo 1942(58)
    {6180, 7019, 8901, 0, 47561}, // Estonia 1997
    {6181, 7022, 8901, 0, 87533}, // Luxembourg Reference Frame
    {6182, 7022, 8901, 0, 18159}, // Azores Occidental Islands 1939
    {6183, 7022, 8901, 0, 18094}, // Azores Central Islands 1948
    {6184, 7022, 8901, 0, 18251}, // Azores Oriental Islands 1940
    {6185, 7022, 8901, 0, 90981}, // Madeira 1936
    {6188, 7001, 8901, 0, 142754}, // OSNI 1952
    {6189, 7019, 8901, 0, 172275}, // Red Geodesica Venezolana
    {6190, 7019, 8901, 0, 151606}, // Posiciones Geodesicas Argentinas 1998
    {6191, 7024, 8901, 0, 6289}, // Albanian 1987
    {6192, 7022, 8901, 0, 40920}, // Douala 1948
    {6193, 7011, 8901, 0, 92094}, // Manoca 1962
    {6194, 7022, 8901, 0, 167218}, // Qornoq 1927
    {6195, 7022, 8901, 0, 184701}, // Scoresbysund 1952
    {6196, 7022, 8901, 0, 7030}, // Ammassalik 1958
    {6197, 7012, 8901, 0, 63370}, // Garoua
    {6198, 7012, 8901, 0, 83326}, // Kousseri
    {6199, 7022, 8901, 0, 47074}, // Egypt 1930
    {6200, 7024, 8901, 0, 160291}, // Pulkovo 1995
    {6201, 7012, 8901, 0, 4844}, // Adindan
    {6202, 7003, 8901, 0, 17238}, // Australian Geodetic Datum 1966
    {6203, 7003, 8901, 0, 17259}, // Australian Geodetic Datum 1984
    {6204, 7022, 8901, 0, 5807}, // Ain el Abd 1970
    {6205, 7024, 8901, 0, 4936}, // Afgooye
    {6206, 7011, 8901, 0, 5675}, // Agadez
    {6207, 7022, 8901, 0, 86197}, // Lisbon 1937
    {6208, 7022, 8901, 0, 24315}, // Aratu
    {6209, 7013, 8901, 0, 10833}, // Arc 1950
    {6210, 7012, 8901, 0, 10878}, // Arc 1960
    {6211, 7004, 8901, 0, 19856}, // Batavia
    {6212, 7012, 8901, 0, 19627}, // Barbados 1938
    {6213, 7011, 8901, 0, 20174}, // Beduaram
    {6214, 7024, 8901, 0, 20208}, // Beijing 1954
    {6215, 7022, 8901, 0, 172978}, // Reseau National Belge 1950
    {6216, 7008, 8901, 0, 22745}, // Bermuda 1957
    {6218, 7022, 8901, 0, 23796}, // Bogota 1975
    {6219, 7004, 8901, 0, 25738}, // Bukit Rimpah
    {6220, 7012, 8901, 0, 29066}, // Camacupa 1948
    {6221, 7022, 8901, 0, 29306}, // Campo Inchauspe
    {6222, 7013, 8901, 0, 31247}, // Cape
    {6223, 7011, 8901, 0, 31675}, // Carthage
    {6224, 7022, 8901, 0, 33489}, // Chua
    {6225, 7022, 8901, 0, 36742}, // Corrego Alegre 1970-72
    {6226, 7011, 8901, 0, 37073}, // Cote d'Ivoire
    {6227, 7011, 8901, 0, 40273}, // Deir ez Zor
    {6228, 7011, 8901, 0, 40903}, // Douala
    {6229, 7020, 8901, 0, 46989}, // Egypt 1907
    {6230, 7022, 8901, 0, 49610}, // European Datum 1950
    {6231, 7022, 8901, 0, 49660}, // European Datum 1987
    {6232, 7012, 8901, 0, 50617}, // Fahud
    {6233, 7022, 8901, 0, 63348}, // Gandajika 1970
    {6234, 7011, 8901, 0, 63370}, // Garoua
    {6235, 7022, 8901, 0, 66378}, // Guyane Francaise
    {6236, 7022, 8901, 0, 68378}, // Hu Tzu Shan 1950
    {6237, 7036, 8901, 0, 68476}, // Hungarian Datum 1972
    {6238, 7021, 8901, 0, 73872}, // Indonesian Datum 1974
    {6239, 7015, 8901, 0, 72538}, // Indian 1954
    {6240, 7015, 8901, 0, 72629}, // Indian 1975
    {6241, 7034, 8901, 0, 77622}, // Jamaica 1875
    {6242, 7008, 8901, 0, 77656}, // Jamaica 1969
    {6243, 7042, 8901, 0, 79484}, // Kalianpur 1880
    {6244, 7015, 8901, 0, 80023}, // Kandawala
    {6245, 7018, 8901, 0, 81754}, // Kertau 1968
    {6246, 7012, 8901, 0, 83600}, // Kuwait Oil Company
    {6247, 7022, 8901, 0, 84497}, // La Canoa
    {6248, 7022, 8901, 0, 151905}, // Provisional South American Datum 1956
    {6249, 7022, 8901, 0, 202422}, // Lake
    {6250, 7012, 8901, 0, 85413}, // Leigon
    {6251, 7012, 8901, 0, 85480}, // Liberia 1964
    {6252, 7011, 8901, 0, 87335}, // Lome
    {6253, 7008, 8901, 0, 87575}, // Luzon 1911
    {6254, 7022, 8901, 0, 67836}, // Hito XVIII 1963
    {6255, 7022, 8901, 0, 67781}, // Herat North
    {6256, 7012, 8901, 0, 91207}, // Mahe 1971
    {6257, 7004, 8901, 0, 91487}, // Makassar
    {6258, 7019, 8901, 10, 50002}, // European Terrestrial Reference System 1989 ensemble
    {6259, 7022, 8901, 0, 91967}, // Malongo 1987
    {6260, 7012, 8901, 0, 92088}, // Manoca
    {6261, 7011, 8901, 0, 93519}, // Merchich
    {6262, 7004, 8901, 0, 92997}, // Massawa
    {6263, 7012, 8901, 0, 95027}, // Minna
    {6264, 7022, 8901, 0, 94262}, // Mhast
    {6265, 7022, 8901, 0, 96455}, // Monte Mario
    {6266, 7011, 8901, 0, 87717}, // M'poraloko
    {6267, 7008, 8901, 0, 138828}, // North American Datum 1927
    {6268, 7009, 8901, 0, 100049}, // NAD27 Michigan
    {6269, 7019, 8901, 0, 138884}, // North American Datum 1983
    {6270, 7012, 8901, 0, 132741}, // Nahrwan 1967
    {6271, 7022, 8901, 0, 133113}, // Naparima 1972
    {6272, 7022, 8901, 0, 136937}, // New Zealand Geodetic Datum 1949
    {6273, 7005, 8901, 0, 130227}, // NGO 1948
    {6274, 7022, 8901, 0, 39692}, // Datum 73
    {6275, 7011, 8901, 0, 142003}, // Nouvelle Triangulation Francaise
    {6276, 7025, 8901, 0, 130688}, // NSWC 9Z-2
    {6277, 7001, 8901, 0, 143987}, // Ordnance Survey of Great Britain 1936
    {6278, 7001, 8901, 0, 142688}, // OSGB 1970 (SN)
    {6279, 7001, 8901, 0, 142661}, // OS (SN) 1980
    {6280, 7004, 8901, 0, 147926}, // Padang 1884
    {6281, 7010, 8901, 0, 148155}, // Palestine 1923
    {6282, 7011, 8901, 0, 35471}, // Congo 1960 Pointe Noire
    {6283, 7019, 8901, 0, 63571}, // Geocentric Datum of Australia 1994
    {6284, 7024, 8901, 0, 152237}, // Pulkovo 1942
    {6285, 7022, 8901, 0, 167131}, // Qatar 1974
    {6286, 7020, 8901, 0, 167109}, // Qatar 1948
    {6287, 7022, 8901, 0, 167212}, // Qornoq
    {6288, 7022, 8901, 0, 87315}, // Loma Quintana
    {6289, 7004, 8901, 0, 6978}, // Amersfoort
    {6291, 7036, 8901, 0, 188323}, // South American Datum 1969
    {6292, 7022, 8901, 0, 184159}, // Sapper Hill 1943
    {6293, 7046, 8901, 0, 184510}, // Schwarzeck
    {6294, 7004, 8901, 0, 184883}, // Segora
    {6295, 7004, 8901, 0, 185148}, // Serindung
    {6296, 7011, 8901, 0, 5389}, // Sudan
    {6297, 7022, 8901, 0, 193346}, // Tananarive 1925
    {6298, 7016, 8901, 0, 194219}, // Timbalai 1948
    {6299, 7002, 8901, 0, 191665}, // TM65
    {6300, 7002, 8901, 0, 63633}, // Geodetic Datum of 1965
    {6301, 7004, 8901, 0, 194465}, // Tokyo
    {6302, 7007, 8901, 0, 195355}, // Trinidad 1903
    {6303, 7020, 8901, 0, 195658}, // Trucial Coast 1948
    {6304, 7011, 8901, 0, 209639}, // Voirol 1875
    {6306, 7004, 8901, 0, 22911}, // Bern 1938
    {6307, 7012, 8901, 0, 137947}, // Nord Sahara 1959
    {6308, 7004, 8901, 0, 190405}, // Stockholm 1938
    {6309, 7022, 8901, 0, 229546}, // Yacare
    {6310, 7011, 8901, 0, 229922}, // Yoff
    {6311, 7022, 8901, 0, 230055}, // Zanderij
    {6312, 7004, 8901, 0, 94848}, // Militar-Geographische Institut
    {6313, 7022, 8901, 0, 173022}, // Reseau National Belge 1972
    {6314, 7004, 8901, 0, 40682}, // Deutsches Hauptdreiecksnetz
    {6315, 7011, 8901, 0, 35358}, // Conakry 1905
    {6316, 7022, 8901, 0, 39995}, // Dealul Piscului 1930
    {6317, 7024, 8901, 0, 40079}, // Dealul Piscului 1970
    {6318, 7030, 8901, 0, 133224}, // National Geodetic Network
    {6319, 7019, 8901, 0, 83641}, // Kuwait Utility
    {6322, 7043, 8901, 0, 227177}, // World Geodetic System 1972
    {6324, 7043, 8901, 0, 211607}, // WGS 72 Transit Broadcast Ephemeris
    {6326, 7030, 8901, 200, 227358}, // World Geodetic System 1984 ensemble
    {6600, 7012, 8901, 0, 7626}, // Anguilla 1957
    {6601, 7012, 8901, 0, 10653}, // Antigua 1943
    {6602, 7012, 8901, 0, 40801}, // Dominica 1945
    {6603, 7012, 8901, 0, 65622}, // Grenada 1953
    {6604, 7012, 8901, 0, 96680}, // Montserrat 1958
    {6605, 7012, 8901, 0, 189768}, // St. Kitts 1955
    {6606, 7012, 8901, 0, 189808}, // St. Lucia 1955
    {6607, 7012, 8901, 0, 189916}, // St. Vincent 1945
    {6608, 7008, 8901, 0, 138844}, // North American Datum 1927 (1976)
    {6609, 7008, 8901, 0, 138863}, // North American Datum 1927 (CGQ77)
    {6610, 7049, 8901, 0, 227798}, // Xian 1980
    {6611, 7022, 8901, 0, 68140}, // Hong Kong 1980
    {6612, 7019, 8901, 0, 78725}, // Japanese Geodetic Datum 2000
    {6613, 7004, 8901, 0, 66162}, // Gunung Segara
    {6614, 7022, 8901, 0, 167157}, // Qatar National Datum 1995
    {6615, 7022, 8901, 0, 150937}, // Porto Santo 1936
    {6616, 7022, 8901, 0, 184904}, // Selvagem Grande
    {6618, 7050, 8901, 0, 188323}, // South American Datum 1969
    {6619, 7019, 8901, 0, 183235}, // SWEREF99
    {6620, 7012, 8901, 0, 150423}, // Point 58
    {6621, 7022, 8901, 0, 52662}, // Fort Marigot
    {6622, 7022, 8901, 0, 65801}, // Guadeloupe 1948
    {6623, 7022, 8901, 0, 32085}, // Centre Spatial Guyanais 1967
    {6624, 7019, 8901, 0, 172582}, // Reseau Geodesique Francais Guyane 1995
    {6625, 7022, 8901, 0, 92772}, // Martinique 1938
    {6626, 7022, 8901, 0, 173211}, // Reunion 1947
    {6627, 7019, 8901, 0, 172837}, // Reseau Geodesique de la Reunion 1992
    {6628, 7022, 8901, 0, 192954}, // Tahiti 52
    {6629, 7022, 8901, 0, 192912}, // Tahaa 54
    {6630, 7022, 8901, 0, 69962}, // IGN72 Nuku Hiva
    {6631, 7022, 8901, 0, 79079}, // K0 1949
    {6632, 7022, 8901, 0, 35284}, // Combani 1950
    {6633, 7022, 8901, 0, 69768}, // IGN56 Lifou
    {6634, 7022, 8901, 0, 69926}, // IGN72 Grande Terre
    {6635, 7022, 8901, 0, 183102}, // ST87 Ouvea
    {6636, 7022, 8901, 0, 149645}, // Petrels 1972
    {6637, 7022, 8901, 0, 150439}, // Pointe Geologie Perroud 1950
    {6638, 7008, 8901, 0, 183670}, // Saint Pierre et Miquelon 1950
    {6639, 7022, 8901, 0, 90198}, // MOP78
    {6640, 7030, 8901, 0, 173040}, // Reseau de Reference des Antilles Francaises 1991
    {6641, 7022, 8901, 0, 69679}, // IGN53 Mare
    {6642, 7022, 8901, 0, 183028}, // ST84 Ile des Pins
    {6643, 7022, 8901, 0, 182974}, // ST71 Belep
    {6644, 7022, 8901, 0, 130028}, // NEA74 Noumea
    {6645, 7022, 8901, 0, 172613}, // Reseau Geodesique Nouvelle Caledonie 1991
    {6646, 7022, 8901, 0, 64665}, // Grand Comoros
    {6647, 7019, 8901, 0, 74042}, // International Terrestrial Reference Frame 1988
    {6648, 7019, 8901, 0, 74070}, // International Terrestrial Reference Frame 1989
    {6649, 7019, 8901, 0, 74098}, // International Terrestrial Reference Frame 1990
    {6650, 7019, 8901, 0, 74126}, // International Terrestrial Reference Frame 1991
    {6651, 7019, 8901, 0, 74154}, // International Terrestrial Reference Frame 1992
    {6652, 7019, 8901, 0, 74182}, // International Terrestrial Reference Frame 1993
    {6653, 7019, 8901, 0, 74210}, // International Terrestrial Reference Frame 1994
    {6654, 7019, 8901, 0, 74238}, // International Terrestrial Reference Frame 1996
    {6655, 7019, 8901, 0, 74266}, // International Terrestrial Reference Frame 1997
    {6656, 7019, 8901, 0, 74294}, // International Terrestrial Reference Frame 2000
    {6657, 7051, 8901, 0, 173265}, // Reykjavik 1900
    {6658, 7022, 8901, 0, 67960}, // Hjorsey 1955
    {6659, 7019, 8901, 0, 75297}, // Islands Net 1993
    {6660, 7022, 8901, 0, 67687}, // Helle 1954
    {6661, 7019, 8901, 0, 85293}, // Latvia 1992
    {6663, 7022, 8901, 0, 150949}, // Porto Santo 1995
    {6664, 7022, 8901, 0, 18268}, // Azores Oriental Islands 1995
    {6665, 7022, 8901, 0, 18107}, // Azores Central Islands 1995
    {6666, 7004, 8901, 0, 86127}, // Lisbon 1890
    {6667, 7030, 8901, 0, 75122}, // Iraq-Kuwait Boundary Datum 1992
    {6668, 7022, 8901, 0, 49645}, // European Datum 1979
    {6670, 7019, 8901, 0, 75569}, // Istituto Geografico Militaire 1995
    {6671, 7011, 8901, 0, 209721}, // Voirol 1879
    {6672, 7022, 8901, 0, 32288}, // Chatham Islands Datum 1971
    {6673, 7022, 8901, 0, 32305}, // Chatham Islands Datum 1979
    {6674, 7019, 8901, 0, 186012}, // Sistema de Referencia Geocentrico para las AmericaS 2000
    {6675, 7008, 8901, 0, 65835}, // Guam 1963
    {6676, 7024, 8901, 0, 208403}, // Vientiane 1982
    {6677, 7024, 8901, 0, 84981}, // Lao 1993
    {6678, 7024, 8901, 0, 84995}, // Lao National Datum 1997
    {6679, 7012, 8901, 0, 79050}, // Jouik 1961
    {6680, 7012, 8901, 0, 141957}, // Nouakchott 1965
    {6681, 7012, 8901, 0, 93199}, // Mauritania 1999
    {6682, 7015, 8901, 0, 66042}, // Gulshan 303
    {6683, 7008, 8901, 0, 149740}, // Philippine Reference System 1992
    {6684, 7022, 8901, 0, 63328}, // Gan 1970
    {6685, 7022, 8901, 0, 63340}, // Gandajika
    {6686, 7019, 8901, 0, 92551}, // Marco Geocentrico Nacional de Referencia
    {6687, 7019, 8901, 0, 172777}, // Reseau Geodesique de la Polynesie Francaise
    {6688, 7022, 8901, 0, 50859}, // Fatu Iva 72
    {6689, 7022, 8901, 0, 69826}, // IGN63 Hiva Oa
    {6690, 7022, 8901, 0, 192976}, // Tahiti 79
    {6691, 7022, 8901, 0, 96769}, // Moorea 87
    {6692, 7022, 8901, 0, 93034}, // Maupiti 83
    {6693, 7030, 8901, 0, 132905}, // Nakhl-e Ghanem
    {6694, 7030, 8901, 0, 151580}, // Posiciones Geodesicas Argentinas 1994
    {6695, 7008, 8901, 0, 81055}, // Katanga 1955
    {6696, 7012, 8901, 0, 80965}, // Kasai 1953
    {6697, 7012, 8901, 0, 69188}, // IGC 1962 Arc of the 6th Parallel South
    {6698, 7022, 8901, 0, 69573}, // IGN 1962 Kerguelen
    {6699, 7012, 8901, 0, 85343}, // Le Pouce 1934
    {6700, 7012, 8901, 0, 69608}, // IGN Astro 1960
    {6701, 7012, 8901, 0, 73970}, // Institut Geographique du Congo Belge 1955
    {6702, 7019, 8901, 0, 93199}, // Mauritania 1999
    {6703, 7012, 8901, 0, 95305}, // Missao Hidrografico Angola y Sao Tome 1951
    {6704, 7022, 8901, 0, 94293}, // Mhast (onshore)
    {6705, 7022, 8901, 0, 94267}, // Mhast (offshore)
    {6706, 7020, 8901, 0, 47119}, // Egypt Gulf of Suez S-650 TL
    {6707, 7022, 8901, 0, 193646}, // Tern Island 1961
    {6708, 7003, 8901, 0, 34074}, // Cocos Islands 1965
    {6709, 7022, 8901, 0, 75953}, // Iwo Jima 1945
    {6710, 7022, 8901, 0, 15921}, // Astro DOS 71
    {6711, 7022, 8901, 0, 92655}, // Marcus Island 1952
    {6712, 7022, 8901, 0, 14494}, // Ascension Island 1958
    {6713, 7012, 8901, 0, 17984}, // Ayabelle Lighthouse
    {6714, 7022, 8901, 0, 22669}, // Bellevue
    {6715, 7022, 8901, 0, 29248}, // Camp Area Astro
    {6716, 7022, 8901, 0, 149985}, // Phoenix Islands 1966
    {6717, 7008, 8901, 0, 31388}, // Cape Canaveral
    {6718, 7022, 8901, 0, 186494}, // Solomon 1968
    {6719, 7022, 8901, 0, 46759}, // Easter Island 1967
    {6720, 7043, 8901, 0, 51293}, // Fiji Geodetic Datum 1986
    {6721, 7022, 8901, 0, 51227}, // Fiji 1956
    {6722, 7022, 8901, 0, 188452}, // South Georgia 1968
    {6723, 7008, 8901, 0, 64621}, // Grand Cayman Geodetic Datum 1959
    {6724, 7022, 8901, 0, 40732}, // Diego Garcia 1969
    {6725, 7022, 8901, 0, 78983}, // Johnston Island 1961
    {6726, 7008, 8901, 0, 186049}, // Sister Islands Geodetic Datum 1961
    {6727, 7022, 8901, 0, 94805}, // Midway 1961
    {6728, 7022, 8901, 0, 150015}, // Pico de las Nieves 1984
    {6729, 7022, 8901, 0, 150262}, // Pitcairn 1967
    {6730, 7022, 8901, 0, 184084}, // Santo 1965
    {6731, 7012, 8901, 0, 209603}, // Viti Levu 1916
    {6732, 7053, 8901, 0, 92741}, // Marshall Islands 1960
    {6733, 7022, 8901, 0, 222844}, // Wake Island 1952
    {6734, 7022, 8901, 0, 195619}, // Tristan 1968
    {6735, 7022, 8901, 0, 83496}, // Kusaie 1951
    {6736, 7012, 8901, 0, 10530}, // Deception Island
    {6737, 7019, 8901, 0, 63615}, // Geocentric datum of Korea
    {6738, 7007, 8901, 0, 68080}, // Hong Kong 1963
    {6739, 7022, 8901, 0, 68125}, // Hong Kong 1963(67)
    {6740, 7054, 8901, 0, 148960}, // Parametry Zemli 1990
    {6741, 7022, 8901, 0, 50782}, // Faroe Datum 1954
    {6742, 7019, 8901, 0, 63650}, // Geodetic Datum of Malaysia 2000
    {6743, 7012, 8901, 0, 80721}, // Karbala 1979
    {6744, 7012, 8901, 0, 132668}, // Nahrwan 1934
    {6745, 7004, 8901, 0, 171967}, // Rauenberg Datum/83
    {6746, 7004, 8901, 0, 151706}, // Potsdam Datum/83
    {6747, 7019, 8901, 0, 65575}, // Greenland 1996
    {6748, 7055, 8901, 0, 208044}, // Vanua Levu 1915
    {6749, 7019, 8901, 0, 172670}, // Reseau Geodesique de Nouvelle Caledonie 91-93
    {6750, 7030, 8901, 0, 183102}, // ST87 Ouvea
    {6751, 7056, 8901, 0, 81678}, // Kertau (RSO)
    {6752, 7055, 8901, 0, 209566}, // Viti Levu 1912
    {6753, 7022, 8901, 0, 50820}, // fk89
    {6754, 7022, 8901, 0, 85785}, // Libyan Geodetic Datum 2006
    {6755, 7030, 8901, 0, 39761}, // Datum Geodesi Nasional 1995
    {6756, 7030, 8901, 0, 209026}, // Vietnam 2000
    {6757, 7030, 8901, 0, 183165}, // SVY21
    {6758, 7030, 8901, 0, 77665}, // Jamaica 2001
    {6759, 7019, 8901, 0, 100699}, // NAD83 (National Spatial Reference System 2007)
    {6760, 7025, 8901, 0, 227161}, // World Geodetic System 1966
    {6761, 7019, 8901, 0, 37416}, // Croatian Terrestrial Reference System
    {6762, 7030, 8901, 0, 22771}, // Bermuda 2000
    {6763, 7030, 8901, 0, 150288}, // Pitcairn 2006
    {6764, 7019, 8901, 0, 173663}, // Ross Sea Region Geodetic Datum 2000
    {6765, 7019, 8901, 0, 186391}, // Slovenia Geodetic Datum 1996
    {6801, 7004, 8907, 0, 27930}, // CH1903 (Bern)
    {6802, 7022, 8904, 0, 23805}, // Bogota 1975 (Bogota)
    {6803, 7022, 8902, 0, 86205}, // Lisbon 1937 (Lisbon)
    {6804, 7004, 8908, 0, 91494}, // Makassar (Jakarta)
    {6805, 7004, 8909, 0, 94869}, // Militar-Geographische Institut (Ferro)
    {6806, 7022, 8906, 0, 96464}, // Monte Mario (Rome)
    {6807, 7011, 8903, 0, 142026}, // Nouvelle Triangulation Francaise (Paris)
    {6808, 7004, 8908, 0, 147936}, // Padang 1884 (Jakarta)
    {6809, 7022, 8910, 0, 172996}, // Reseau National Belge 1950 (Brussels)
    {6810, 7022, 8903, 0, 193357}, // Tananarive 1925 (Paris)
    {6811, 7011, 8903, 0, 209649}, // Voirol 1875 (Paris)
    {6813, 7004, 8908, 0, 19863}, // Batavia (Jakarta)
    {6814, 7004, 8911, 0, 190417}, // Stockholm 1938 (Stockholm)
    {6815, 7004, 8912, 0, 64888}, // Greek (Athens)
    {6816, 7011, 8903, 0, 31682}, // Carthage (Paris)
    {6817, 7005, 8913, 0, 130234}, // NGO 1948 (Oslo)
    {6818, 7004, 8909, 0, 191254}, // System of the Unified Trigonometrical Cadastral Network (Ferro)
    {6819, 7012, 8903, 0, 137957}, // Nord Sahara 1959 (Paris)
    {6820, 7004, 8908, 0, 66175}, // Gunung Segara (Jakarta)
    {6821, 7011, 8903, 0, 209731}, // Voirol 1879 (Paris)
    {6896, 7019, 8901, 0, 74321}, // International Terrestrial Reference Frame 2005
    {6901, 7027, 8914, 0, 7128}, // Ancienne Triangulation Francaise (Paris)
    {6902, 7027, 8903, 0, 138081}, // Nord de Guerre (Paris)
    {6903, 7028, 8905, 0, 91099}, // Madrid 1870 (Madrid)
    {6904, 7004, 8902, 0, 86136}, // Lisbon 1890 (Lisbon)
};
// clang-format on

} // namespace ZrProj::systems::rows
