// Conversions: a method and its numbers, which the end of each line repeats.
//
// Made by src/systems/make_register.py from the EPSG Geodetic Parameter Dataset v10.076 of 2022-08-31, which
// is IOGP's, as proj-data carries it, under the terms of use at https://epsg.org/terms-of-use.html. Other makers' names
// are of ArcGIS Pro 3.0 of 2022-07-09 and of PROJ 9.1.1.
#pragma once

#include "systems/register/rows.h"

namespace ZrProj::systems::rows {

// clang-format off
inline constexpr ConversionRow conversions[] = {
    {3811, Method::lambertConic2, 44642, {1560, 937, 1552, 1562, 2332, 2335}}, // Belgian Lambert 2008: 50.797815, 4.359215833333333, 49.833333333333336, 51.166666666666664, 649328, 665262
    {3813, Method::transverseMercator, 95371, {1210, 238, 690, 2308, 2431}}, // Mississippi Transverse Mercator: 32.5, -89.75, 0.9998335, 500000, 1300000
    {3818, Method::transverseMercator, 193134, {595, 1791, 700, 2249, 595}}, // Taiwan 2-degree TM zone 119: 0, 119, 0.9999, 250000, 0
    {3820, Method::transverseMercator, 193153, {595, 1793, 700, 2249, 595}}, // Taiwan 2-degree TM zone 121: 0, 121, 0.9999, 250000, 0
    {3831, Method::mercatorA, 147847, {595, 1843, 751, 595, 595}}, // Pacific Disaster Center Mercator: 0, 150, 1, 0, 0
    {3853, Method::transverseMercator, 37227, {595, 1056, 743, 2066, 1}}, // County ST74: 0, 18.05787, 0.99999506, 100182.7406, -6500620.1207
    {3856, Method::pseudoMercator, 150806, {595, 595, 595, 595}}, // Popular Visualisation Pseudo-Mercator: 0, 0, 0, 0
    {3860, Method::transverseMercator, 52073, {595, 1068, 751, 2604, 595}}, // Finland Gauss-Kruger zone 19: 0, 19, 1, 19500000, 0
    {3861, Method::transverseMercator, 52091, {595, 1074, 751, 2606, 595}}, // Finland Gauss-Kruger zone 20: 0, 20, 1, 20500000, 0
    {3862, Method::transverseMercator, 52109, {595, 1084, 751, 2608, 595}}, // Finland Gauss-Kruger zone 21: 0, 21, 1, 21500000, 0
    {3863, Method::transverseMercator, 52127, {595, 1097, 751, 2610, 595}}, // Finland Gauss-Kruger zone 22: 0, 22, 1, 22500000, 0
    {3864, Method::transverseMercator, 52145, {595, 1106, 751, 2612, 595}}, // Finland Gauss-Kruger zone 23: 0, 23, 1, 23500000, 0
    {3865, Method::transverseMercator, 52163, {595, 1114, 751, 2614, 595}}, // Finland Gauss-Kruger zone 24: 0, 24, 1, 24500000, 0
    {3866, Method::transverseMercator, 52181, {595, 1130, 751, 2616, 595}}, // Finland Gauss-Kruger zone 25: 0, 25, 1, 25500000, 0
    {3867, Method::transverseMercator, 52199, {595, 1142, 751, 2618, 595}}, // Finland Gauss-Kruger zone 26: 0, 26, 1, 26500000, 0
    {3868, Method::transverseMercator, 52217, {595, 1151, 751, 2620, 595}}, // Finland Gauss-Kruger zone 27: 0, 27, 1, 27500000, 0
    {3869, Method::transverseMercator, 52235, {595, 1161, 751, 2622, 595}}, // Finland Gauss-Kruger zone 28: 0, 28, 1, 28500000, 0
    {3870, Method::transverseMercator, 52253, {595, 1172, 751, 2624, 595}}, // Finland Gauss-Kruger zone 29: 0, 29, 1, 29500000, 0
    {3871, Method::transverseMercator, 52271, {595, 1182, 751, 2626, 595}}, // Finland Gauss-Kruger zone 30: 0, 30, 1, 30500000, 0
    {3872, Method::transverseMercator, 52289, {595, 1193, 751, 2628, 595}}, // Finland Gauss-Kruger zone 31: 0, 31, 1, 31500000, 0
    {3897, Method::lambertAzimuthalSphere, 197954, {1694, 595, 595, 595}}, // US NSIDC Equal Area north projection: 90, 0, 0, 0
    {3898, Method::lambertAzimuthalSphere, 197979, {234, 595, 595, 595}}, // US NSIDC Equal Area south projection: -90, 0, 0, 0
    {3899, Method::lambertAzimuthalSphere, 99575, {1473, 160, 595, 595}}, // US National Atlas Equal Area: 45, -100, 0, 0
    {3967, Method::lambertConic2, 209443, {1257, 332, 1269, 1325, 595, 595}}, // Virginia Lambert Conic Conformal: 36, -79.5, 37, 39.5, 0, 0
    {3977, Method::lambertConic2, 101659, {1546, 181, 1546, 1656, 595, 595}}, // Canada Atlas Lambert: 49, -95, 49, 77, 0, 0
    {3980, Method::lambertConic2, 81157, {985, 1142, 565, 556, 2308, 2308}}, // Katanga Lambert: 9, 26, -6.5, -11.5, 500000, 500000
    {3981, Method::transverseMercator, 81073, {559, 1182, 751, 2198, 2308}}, // Katanga Gauss zone A: -9, 30, 1, 200000, 500000
    {3982, Method::transverseMercator, 81094, {559, 1161, 751, 2198, 2308}}, // Katanga Gauss zone B: -9, 28, 1, 200000, 500000
    {3983, Method::transverseMercator, 81115, {559, 1142, 751, 2198, 2308}}, // Katanga Gauss zone C: -9, 26, 1, 200000, 500000
    {3984, Method::transverseMercator, 81136, {559, 1114, 751, 2198, 2308}}, // Katanga Gauss zone D: -9, 24, 1, 200000, 500000
    {3999, Method::transverseMercator, 95819, {595, 1167, 716, 2198, 6}}, // Moldova Transverse Mercator: 0, 28.4, 0.99994, 200000, -5000000
    {4085, Method::equidistantCylindrical, 220032, {595, 595, 595, 595}}, // World Equidistant Cylindrical: 0, 0, 0, 0
    {4086, Method::equidistantCylindricalSphere, 227137, {595, 595, 595, 595}}, // World Equidistant Cylindrical (Sphere): 0, 0, 0, 0
    {4089, Method::transverseMercator, 44662, {595, 985, 731, 2198, 6}}, // DKTM1: 0, 9, 0.99998, 200000, -5000000
    {4090, Method::transverseMercator, 44673, {595, 989, 731, 2294, 6}}, // DKTM2: 0, 10, 0.99998, 400000, -5000000
    {4091, Method::transverseMercator, 44684, {595, 1009, 731, 2323, 6}}, // DKTM3: 0, 11.75, 0.99998, 600000, -5000000
    {4092, Method::transverseMercator, 44695, {595, 1030, 751, 2347, 6}}, // DKTM4: 0, 15, 1, 800000, -5000000
    {4101, Method::transverseMercator, 19105, {595, 46, 673, 2312, 595}}, // BLM zone 1N (US survey feet): 0, -177, 0.9996, 500000.00101600203, 0
    {4102, Method::transverseMercator, 19123, {595, 50, 673, 2312, 595}}, // BLM zone 2N (US survey feet): 0, -171, 0.9996, 500000.00101600203, 0
    {4103, Method::transverseMercator, 19141, {595, 54, 673, 2312, 595}}, // BLM zone 3N (US survey feet): 0, -165, 0.9996, 500000.00101600203, 0
    {4104, Method::transverseMercator, 19159, {595, 59, 673, 2312, 595}}, // BLM zone 4N (US survey feet): 0, -159, 0.9996, 500000.00101600203, 0
    {4105, Method::transverseMercator, 19196, {595, 65, 673, 2312, 595}}, // BLM zone 5N (US survey feet): 0, -153, 0.9996, 500000.00101600203, 0
    {4106, Method::transverseMercator, 19233, {595, 67, 673, 2312, 595}}, // BLM zone 6N (US survey feet): 0, -147, 0.9996, 500000.00101600203, 0
    {4107, Method::transverseMercator, 19251, {595, 71, 673, 2312, 595}}, // BLM zone 7N (US survey feet): 0, -141, 0.9996, 500000.00101600203, 0
    {4108, Method::transverseMercator, 19269, {595, 72, 673, 2312, 595}}, // BLM zone 8N (US survey feet): 0, -135, 0.9996, 500000.00101600203, 0
    {4109, Method::transverseMercator, 19287, {595, 78, 673, 2312, 595}}, // BLM zone 9N (US survey feet): 0, -129, 0.9996, 500000.00101600203, 0
    {4110, Method::transverseMercator, 18918, {595, 85, 673, 2312, 595}}, // BLM zone 10N (US survey feet): 0, -123, 0.9996, 500000.00101600203, 0
    {4111, Method::transverseMercator, 18936, {595, 114, 673, 2312, 595}}, // BLM zone 11N (US survey feet): 0, -117, 0.9996, 500000.00101600203, 0
    {4112, Method::transverseMercator, 18954, {595, 132, 673, 2312, 595}}, // BLM zone 12N (US survey feet): 0, -111, 0.9996, 500000.00101600203, 0
    {4113, Method::transverseMercator, 18973, {595, 148, 673, 2312, 595}}, // BLM zone 13N (US survey feet): 0, -105, 0.9996, 500000.00101600203, 0
    {4114, Method::cassini, 79006, {916, 1744, 595, 595}}, // Johor Cassini Grid: 2.0425833333333334, 103.56275833333333, 0, 0
    {4115, Method::cassini, 185013, {924, 1731, 43, 36}}, // Sembilan and Melaka Cassini Grid: 2.7122833333333336, 101.94116666666667, -242.005, -948.547
    {4116, Method::cassini, 147981, {931, 1738, 595, 595}}, // Pahang Cassini Grid: 3.7109722222222223, 102.43617777777779, 0, 0
    {4117, Method::cassini, 184889, {929, 1730, 31, 2016}}, // Selangor Cassini Grid: 3.680344444444444, 101.50824444444444, -21759.438, 55960.906
    {4118, Method::transverseMercator, 19068, {595, 363, 673, 2312, 595}}, // BLM zone 18N (US survey feet): 0, -75, 0.9996, 500000.00101600203, 0
    {4119, Method::transverseMercator, 19087, {595, 406, 673, 2312, 595}}, // BLM zone 19N (US survey feet): 0, -69, 0.9996, 500000.00101600203, 0
    {4177, Method::cassini, 193629, {949, 1739, 595, 595}}, // Terengganu Cassini Grid: 4.946141666666667, 102.89520833333334, 0, 0
    {4186, Method::transverseMercator, 19177, {595, 1877, 673, 2312, 595}}, // BLM zone 59N (US survey feet): 0, 171, 0.9996, 500000.00101600203, 0
    {4187, Method::transverseMercator, 19214, {595, 1920, 673, 2312, 595}}, // BLM zone 60N (US survey feet): 0, 177, 0.9996, 500000.00101600203, 0
    {4305, Method::cassini, 150232, {956, 1723, 595, 595}}, // Pinang Cassini Grid: 5.421325, 100.34586944444445, 0, 0
    {4320, Method::cassini, 81269, {963, 1726, 595, 595}}, // Kedah and Perlis Cassini Grid: 5.965147222222223, 100.63759444444445, 0, 0
    {4321, Method::cassini, 149347, {948, 1728, 595, 2112}}, // Perak Revised Cassini Grid: 4.859380555555555, 100.81676666666667, 0, 133453.669
    {4323, Method::cassini, 81287, {961, 1734, 595, 595}}, // Kelantan Cassini Grid: 5.893922222222222, 102.17729166666668, 0, 0
    {4325, Method::transverseMercator, 119888, {1018, 1839, 751, 2064, 2198}}, // Guam Map Grid: 13.5, 144.75, 1, 100000, 200000
    {4416, Method::lambertConic2, 81157, {559, 1142, 565, 556, 2308, 2308}}, // Katanga Lambert: -9, 26, -6.5, -11.5, 500000, 500000
    {4436, Method::lambertConic2, 149187, {1323, 338, 1366, 1337, 2325, 595}}, // Pennsylvania CS27 South zone: 39.333333333333336, -77.75, 40.96666666666667, 39.93333333333333, 609601.2192024384, 0
    {4454, Method::lambertConic2, 135928, {1353, 373, 1368, 1357, 2325, 1980}}, // New York CS27 Long Island zone: 40.5, -74, 41.03333333333333, 40.666666666666664, 609601.2192024384, 30480.06096012192
    {4460, Method::lambertConic2, 17198, {526, 1814, 548, 515, 595, 595}}, // Australian Centre for Remote Sensing Lambert Conformal Projection: -27, 132, -18, -36, 0, 0
    {4648, Method::transverseMercator, 204242, {595, 985, 673, 2630, 595}}, // UTM zone 32N with prefix: 0, 9, 0.9996, 32500000, 0
    {4825, Method::lambertConic2, 214028, {1037, 528, 1030, 1043, 2156, 2107}}, // Cape Verde National: 15.833333333333334, -24, 15, 16.666666666666668, 161587.83, 128511.202
    {4838, Method::lambertConic2, 84027, {1561, 997, 1542, 1587, 595, 595}}, // LCC Germany: 51, 10.5, 48.666666666666664, 53.666666666666664, 0, 0
    {4841, Method::transverseMercator, 140183, {595, 1033, 751, 2064, 2391}}, // Norway TM zone 15: 0, 15.5, 1, 100000, 1000000
    {4842, Method::transverseMercator, 140192, {595, 1041, 751, 2064, 2391}}, // Norway TM zone 16: 0, 16.5, 1, 100000, 1000000
    {4843, Method::transverseMercator, 140201, {595, 1050, 751, 2064, 2391}}, // Norway TM zone 17: 0, 17.5, 1, 100000, 1000000
    {4844, Method::transverseMercator, 140210, {595, 1060, 751, 2064, 2391}}, // Norway TM zone 18: 0, 18.5, 1, 100000, 1000000
    {4845, Method::transverseMercator, 140327, {595, 958, 751, 2064, 2391}}, // Norway TM zone 5: 0, 5.5, 1, 100000, 1000000
    {4846, Method::transverseMercator, 140335, {595, 969, 751, 2064, 2391}}, // Norway TM zone 6: 0, 6.5, 1, 100000, 1000000
    {4847, Method::transverseMercator, 140343, {595, 977, 751, 2064, 2391}}, // Norway TM zone 7: 0, 7.5, 1, 100000, 1000000
    {4848, Method::transverseMercator, 140351, {595, 982, 751, 2064, 2391}}, // Norway TM zone 8: 0, 8.5, 1, 100000, 1000000
    {4849, Method::transverseMercator, 140359, {595, 986, 751, 2064, 2391}}, // Norway TM zone 9: 0, 9.5, 1, 100000, 1000000
    {4850, Method::transverseMercator, 140138, {595, 997, 751, 2064, 2391}}, // Norway TM zone 10: 0, 10.5, 1, 100000, 1000000
    {4851, Method::transverseMercator, 140147, {595, 1006, 751, 2064, 2391}}, // Norway TM zone 11: 0, 11.5, 1, 100000, 1000000
    {4852, Method::transverseMercator, 140156, {595, 1012, 751, 2064, 2391}}, // Norway TM zone 12: 0, 12.5, 1, 100000, 1000000
    {4853, Method::transverseMercator, 140165, {595, 1018, 751, 2064, 2391}}, // Norway TM zone 13: 0, 13.5, 1, 100000, 1000000
    {4854, Method::transverseMercator, 140174, {595, 1028, 751, 2064, 2391}}, // Norway TM zone 14: 0, 14.5, 1, 100000, 1000000
    {4881, Method::transverseMercator, 140219, {595, 1072, 751, 2064, 2391}}, // Norway TM zone 19: 0, 19.5, 1, 100000, 1000000
    {5000, Method::transverseMercator, 140228, {595, 1081, 751, 2064, 2391}}, // Norway TM zone 20: 0, 20.5, 1, 100000, 1000000
    {5001, Method::transverseMercator, 140237, {595, 1089, 751, 2064, 2391}}, // Norway TM zone 21: 0, 21.5, 1, 100000, 1000000
    {5002, Method::transverseMercator, 140246, {595, 1102, 751, 2064, 2391}}, // Norway TM zone 22: 0, 22.5, 1, 100000, 1000000
    {5003, Method::transverseMercator, 140255, {595, 1110, 751, 2064, 2391}}, // Norway TM zone 23: 0, 23.5, 1, 100000, 1000000
    {5004, Method::transverseMercator, 140264, {595, 1121, 751, 2064, 2391}}, // Norway TM zone 24: 0, 24.5, 1, 100000, 1000000
    {5005, Method::transverseMercator, 140273, {595, 1137, 751, 2064, 2391}}, // Norway TM zone 25: 0, 25.5, 1, 100000, 1000000
    {5006, Method::transverseMercator, 140282, {595, 1148, 751, 2064, 2391}}, // Norway TM zone 26: 0, 26.5, 1, 100000, 1000000
    {5007, Method::transverseMercator, 140291, {595, 1156, 751, 2064, 2391}}, // Norway TM zone 27: 0, 27.5, 1, 100000, 1000000
    {5008, Method::transverseMercator, 140300, {595, 1168, 751, 2064, 2391}}, // Norway TM zone 28: 0, 28.5, 1, 100000, 1000000
    {5009, Method::transverseMercator, 140309, {595, 1178, 751, 2064, 2391}}, // Norway TM zone 29: 0, 29.5, 1, 100000, 1000000
    {5010, Method::transverseMercator, 140318, {595, 1189, 751, 2064, 2391}}, // Norway TM zone 30: 0, 30.5, 1, 100000, 1000000
    {5019, Method::bonneSouth, 86185, {1329, 562, 595, 595}}, // Portugal Bonne New: 39.666666666666664, -8.131906111111112, 0, 0
    {5020, Method::transverseMercator, 86113, {1329, 562, 751, 595, 595}}, // Portuguese Grid New: 39.666666666666664, -8.131906111111112, 1, 0, 0
    {5049, Method::transverseMercator, 195160, {1289, 1812, 751, 2198, 2308}}, // Korea East Sea Belt: 38, 131, 1, 200000, 500000
    {5068, Method::albers, 98431, {1106, 175, 1178, 1487, 595, 595}}, // Conus Albers: 23, -96, 29.5, 45.5, 0, 0
    {5100, Method::transverseMercator, 82583, {1289, 1805, 673, 2391, 2461}}, // Korea Unified Belt: 38, 127.5, 0.9996, 1000000, 2000000
    {5101, Method::transverseMercator, 82598, {1289, 1800, 751, 2198, 2323}}, // Korea West Belt 2010: 38, 125, 1, 200000, 600000
    {5102, Method::transverseMercator, 82421, {1289, 1803, 751, 2198, 2323}}, // Korea Central Belt 2010: 38, 127, 1, 200000, 600000
    {5103, Method::transverseMercator, 82452, {1289, 1807, 751, 2198, 2323}}, // Korea East Belt 2010: 38, 129, 1, 200000, 600000
    {5104, Method::transverseMercator, 82466, {1289, 1812, 751, 2198, 2323}}, // Korea East Sea Belt 2010: 38, 131, 1, 200000, 600000
    {5131, Method::transverseMercator, 82436, {1289, 1803, 751, 2198, 2317}}, // Korea Central Belt Jeju: 38, 127, 1, 200000, 550000
    {5135, Method::transverseMercator, 140327, {1606, 958, 751, 2064, 2391}}, // Norway TM zone 5: 58, 5.5, 1, 100000, 1000000
    {5136, Method::transverseMercator, 140335, {1606, 969, 751, 2064, 2391}}, // Norway TM zone 6: 58, 6.5, 1, 100000, 1000000
    {5137, Method::transverseMercator, 140343, {1606, 977, 751, 2064, 2391}}, // Norway TM zone 7: 58, 7.5, 1, 100000, 1000000
    {5138, Method::transverseMercator, 140351, {1606, 982, 751, 2064, 2391}}, // Norway TM zone 8: 58, 8.5, 1, 100000, 1000000
    {5139, Method::transverseMercator, 140359, {1606, 986, 751, 2064, 2391}}, // Norway TM zone 9: 58, 9.5, 1, 100000, 1000000
    {5140, Method::transverseMercator, 140138, {1606, 997, 751, 2064, 2391}}, // Norway TM zone 10: 58, 10.5, 1, 100000, 1000000
    {5141, Method::transverseMercator, 140147, {1606, 1006, 751, 2064, 2391}}, // Norway TM zone 11: 58, 11.5, 1, 100000, 1000000
    {5142, Method::transverseMercator, 140156, {1606, 1012, 751, 2064, 2391}}, // Norway TM zone 12: 58, 12.5, 1, 100000, 1000000
    {5143, Method::transverseMercator, 140165, {1606, 1018, 751, 2064, 2391}}, // Norway TM zone 13: 58, 13.5, 1, 100000, 1000000
    {5144, Method::transverseMercator, 140174, {1606, 1028, 751, 2064, 2391}}, // Norway TM zone 14: 58, 14.5, 1, 100000, 1000000
    {5145, Method::transverseMercator, 140183, {1606, 1033, 751, 2064, 2391}}, // Norway TM zone 15: 58, 15.5, 1, 100000, 1000000
    {5146, Method::transverseMercator, 140192, {1606, 1041, 751, 2064, 2391}}, // Norway TM zone 16: 58, 16.5, 1, 100000, 1000000
    {5147, Method::transverseMercator, 140201, {1606, 1050, 751, 2064, 2391}}, // Norway TM zone 17: 58, 17.5, 1, 100000, 1000000
    {5148, Method::transverseMercator, 140210, {1606, 1060, 751, 2064, 2391}}, // Norway TM zone 18: 58, 18.5, 1, 100000, 1000000
    {5149, Method::transverseMercator, 140219, {1606, 1072, 751, 2064, 2391}}, // Norway TM zone 19: 58, 19.5, 1, 100000, 1000000
    {5150, Method::transverseMercator, 140228, {1606, 1081, 751, 2064, 2391}}, // Norway TM zone 20: 58, 20.5, 1, 100000, 1000000
    {5151, Method::transverseMercator, 140237, {1606, 1089, 751, 2064, 2391}}, // Norway TM zone 21: 58, 21.5, 1, 100000, 1000000
    {5152, Method::transverseMercator, 140246, {1606, 1102, 751, 2064, 2391}}, // Norway TM zone 22: 58, 22.5, 1, 100000, 1000000
    {5153, Method::transverseMercator, 140255, {1606, 1110, 751, 2064, 2391}}, // Norway TM zone 23: 58, 23.5, 1, 100000, 1000000
    {5154, Method::transverseMercator, 140264, {1606, 1121, 751, 2064, 2391}}, // Norway TM zone 24: 58, 24.5, 1, 100000, 1000000
    {5155, Method::transverseMercator, 140273, {1606, 1137, 751, 2064, 2391}}, // Norway TM zone 25: 58, 25.5, 1, 100000, 1000000
    {5156, Method::transverseMercator, 140282, {1606, 1148, 751, 2064, 2391}}, // Norway TM zone 26: 58, 26.5, 1, 100000, 1000000
    {5157, Method::transverseMercator, 140291, {1606, 1156, 751, 2064, 2391}}, // Norway TM zone 27: 58, 27.5, 1, 100000, 1000000
    {5158, Method::transverseMercator, 140300, {1606, 1168, 751, 2064, 2391}}, // Norway TM zone 28: 58, 28.5, 1, 100000, 1000000
    {5159, Method::transverseMercator, 140309, {1606, 1178, 751, 2064, 2391}}, // Norway TM zone 29: 58, 29.5, 1, 100000, 1000000
    {5160, Method::transverseMercator, 140318, {1606, 1189, 751, 2064, 2391}}, // Norway TM zone 30: 58, 30.5, 1, 100000, 1000000
    {5161, Method::transverseMercator, 82565, {1289, 1801, 751, 2198, 2308}}, // Korea Modified West Belt: 38, 125.00289027777778, 1, 200000, 500000
    {5162, Method::transverseMercator, 82484, {1289, 1804, 751, 2198, 2308}}, // Korea Modified Central Belt: 38, 127.00289027777778, 1, 200000, 500000
    {5163, Method::transverseMercator, 82502, {1289, 1804, 751, 2198, 2317}}, // Korea Modified Central Belt Jeju: 38, 127.00289027777778, 1, 200000, 550000
    {5164, Method::transverseMercator, 82525, {1289, 1808, 751, 2198, 2308}}, // Korea Modified East Belt: 38, 129.00289027777777, 1, 200000, 500000
    {5165, Method::transverseMercator, 82543, {1289, 1813, 751, 2198, 2308}}, // Korea Modified East Sea Belt: 38, 131.00289027777777, 1, 200000, 500000
    {5218, Method::krovakNorth, 175030, {1550, 1397, 1187, 1661, 700, 595, 595}}, // Krovak East North: 49.5, 42.5, 30.28813975277778, 78.5, 0.9999, 0, 0
    {5219, Method::krovakModified, 175180, {1550, 1397, 1186, 1661, 700, 2536, 2536}}, // Modified Krovak: 49.5, 42.5, 30.288139722222223, 78.5, 0.9999, 5000000, 5000000
    {5220, Method::krovakModifiedNorth, 175210, {1550, 1397, 1186, 1661, 700, 2536, 2536}}, // Modified Krovak East North: 49.5, 42.5, 30.288139722222223, 78.5, 0.9999, 5000000, 5000000
    {5222, Method::transverseMercator, 63278, {595, 1010, 673, 2308, 2308}}, // Gabon Transverse Mercator: 0, 12, 0.9996, 500000, 500000
    {5231, Method::transverseMercator, 80037, {972, 1669, 710, 2198, 2198}}, // Sri Lanka Grid: 7.000480277777778, 80.77171111111112, 0.9999238418, 200000, 200000
    {5232, Method::transverseMercator, 178580, {971, 1670, 710, 2308, 2308}}, // Sri Lanka Grid 1999: 7.000471527777778, 80.77171308333334, 0.9999238418, 500000, 500000
    {5265, Method::transverseMercator, 39058, {595, 1694, 751, 2249, 595}}, // Bhutan National Grid: 0, 90, 1, 250000, 0
    {5268, Method::transverseMercator, 39083, {595, 1701, 751, 2249, 18}}, // Bumthang TM: 0, 90.73333333333333, 1, 250000, -2500000
    {5276, Method::transverseMercator, 39103, {595, 1691, 751, 2249, 18}}, // Chhukha TM: 0, 89.55, 1, 250000, -2500000
    {5277, Method::transverseMercator, 39123, {595, 1693, 751, 2249, 18}}, // Dagana TM: 0, 89.85, 1, 250000, -2500000
    {5278, Method::transverseMercator, 39141, {595, 1695, 751, 2249, 18}}, // Gasa TM: 0, 90.03333333333333, 1, 250000, -2500000
    {5279, Method::transverseMercator, 39157, {595, 1697, 751, 2249, 18}}, // Ha TM: 0, 90.15, 1, 250000, -2500000
    {5280, Method::transverseMercator, 39172, {595, 1703, 751, 2249, 18}}, // Lhuentse TM: 0, 91.13333333333334, 1, 250000, -2500000
    {5281, Method::transverseMercator, 39192, {595, 1704, 751, 2249, 18}}, // Mongar TM: 0, 91.23333333333333, 1, 250000, -2500000
    {5282, Method::transverseMercator, 39210, {595, 1690, 751, 2249, 18}}, // Paro TM: 0, 89.35, 1, 250000, -2500000
    {5283, Method::transverseMercator, 39226, {595, 1705, 751, 2249, 18}}, // Pemagatshel TM: 0, 91.35, 1, 250000, -2500000
    {5284, Method::transverseMercator, 39391, {595, 1698, 751, 2249, 18}}, // Tsirang TM: 0, 90.16666666666667, 1, 250000, -2500000
    {5285, Method::transverseMercator, 39267, {595, 1707, 751, 2249, 18}}, // Samdrup Jongkhar TM: 0, 91.56666666666666, 1, 250000, -2500000
    {5286, Method::transverseMercator, 39294, {595, 1689, 751, 2249, 18}}, // Samtse TM: 0, 89.06666666666666, 1, 250000, -2500000
    {5287, Method::transverseMercator, 39312, {595, 1699, 751, 2249, 18}}, // Sarpang TM: 0, 90.26666666666667, 1, 250000, -2500000
    {5288, Method::transverseMercator, 39410, {595, 1696, 751, 2249, 18}}, // Wangdue Phodrang TM: 0, 90.11666666666666, 1, 250000, -2500000
    {5289, Method::transverseMercator, 39351, {595, 1708, 751, 2249, 18}}, // Trashigang TM: 0, 91.75, 1, 250000, -2500000
    {5290, Method::transverseMercator, 39372, {595, 1700, 751, 2249, 18}}, // Trongsa TM: 0, 90.5, 1, 250000, -2500000
    {5291, Method::transverseMercator, 39456, {595, 1702, 751, 2249, 18}}, // Zhemgang TM: 0, 90.86666666666666, 1, 250000, -2500000
    {5312, Method::transverseMercator, 39331, {595, 1691, 751, 2249, 18}}, // Thimphu TM: 0, 89.55, 1, 250000, -2500000
    {5313, Method::transverseMercator, 39247, {595, 1693, 751, 2249, 18}}, // Punakha TM: 0, 89.85, 1, 250000, -2500000
    {5314, Method::transverseMercator, 39437, {595, 1707, 751, 2249, 18}}, // Yangtse TM: 0, 91.56666666666666, 1, 250000, -2500000
    {5315, Method::transverseMercator, 50825, {595, 564, 745, 2198, 3}}, // Faroe Transverse Mercator: 0, -7, 0.999997, 200000, -6000000
    {5319, Method::lambertConic2, 103982, {595, 319, 1458, 1593, 2391, 595}}, // Teranet Ontario Lambert: 0, -84, 44.5, 54.5, 1000000, 0
    {5326, Method::lambertConic2, 71518, {1623, 545, 1621, 1626, 2452, 2275}}, // Iceland Lambert 2004: 65, -19, 64.25, 65.75, 1700000, 300000
    {5328, Method::mercatorA, 133473, {595, 927, 657, 2518, 2370}}, // Netherlands East Indies Equatorial Zone (Jkt): 0, 3.1922805555555556, 0.997, 3900000, 900000
    {5366, Method::transverseMercator, 37030, {595, 319, 700, 2308, 595}}, // Costa Rica TM 2005: 0, -84, 0.9999, 500000, 0
    {5390, Method::lambertConic1, 143119, {996, 316, 725, 2308, 2261}}, // Costa Rica Norte: 10.466666666666667, -84.33333333333333, 0.99995696, 500000, 271820.522
    {5394, Method::lambertConic1, 143143, {985, 320, 725, 2308, 2282}}, // Costa Rica Sur: 9, -83.66666666666667, 0.99995696, 500000, 327987.436
    {5399, Method::lambertConic1, 143166, {1023, 248, 729, 2308, 2273}}, // El Salvador Lambert: 13.783333333333333, -89, 0.99996704, 500000, 295809.184
    {5439, Method::lambertConic1, 143238, {1024, 303, 701, 2308, 2286}}, // Nicaragua Norte: 13.866666666666667, -85.5, 0.99990314, 500000, 359891.816
    {5444, Method::lambertConic1, 143262, {1008, 303, 708, 2308, 2268}}, // Nicaragua Sur: 11.733333333333333, -85.5, 0.99992228, 500000, 288876.327
    {5465, Method::transverseMercator, 22656, {1048, 254, 751, 2034, 2123}}, // Belize Colony Grid: 17.061241944444443, -88.6318575, 1, 66220.0283308276, 135779.50998852987
    {5468, Method::lambertConic1, 148462, {981, 331, 699, 2308, 2272}}, // Panama Lambert: 8.416666666666666, -80, 0.99989909, 500000, 294865.303
    {5471, Method::polyconic, 148483, {979, 326, 2371, 2387}}, // Panama Polyconic: 8.25, -81, 914391.7962, 999404.721715486
    {5475, Method::lambertConic2, 93348, {337, 1851, 344, 333, 2566, 2536}}, // McMurdo Sound Lambert Conformal 2000: -78, 163, -76.66666666666667, -79.33333333333333, 7000000, 5000000
    {5476, Method::lambertConic2, 24143, {367, 1852, 374, 360, 2536, 2500}}, // Borchgrevink Coast Lambert Conformal 2000: -74.5, 165, -73.66666666666667, -75.33333333333333, 5000000, 3000000
    {5477, Method::lambertConic2, 149149, {392, 1853, 398, 388, 2500, 2391}}, // Pennell Coast Lambert Conformal 2000: -71.5, 166, -70.66666666666667, -72.33333333333333, 3000000, 1000000
    {5478, Method::polarStereographicA, 173640, {234, 1927, 655, 2536, 2391}}, // Ross Sea Polar Stereographic 2000: -90, 180, 0.994, 5000000, 1000000
    {5509, Method::krovak, 95716, {1550, 1127, 1187, 1661, 700, 595, 595}}, // Krovak (Greenwich): 49.5, 24.833333333333332, 30.28813975277778, 78.5, 0.9999, 0, 0
    {5510, Method::krovakNorth, 95739, {1550, 1127, 1187, 1661, 700, 595, 595}}, // Krovak East North (Greenwich): 49.5, 24.833333333333332, 30.28813975277778, 78.5, 0.9999, 0, 0
    {5511, Method::krovakModified, 95708, {1550, 1127, 1186, 1661, 700, 2536, 2536}}, // Modified Krovak (Greenwich): 49.5, 24.833333333333332, 30.288139722222223, 78.5, 0.9999, 5000000, 5000000
    {5512, Method::krovakModifiedNorth, 95731, {1550, 1127, 1186, 1661, 700, 2536, 2536}}, // Modified Krovak East North (Greenwich): 49.5, 24.833333333333332, 30.288139722222223, 78.5, 0.9999, 5000000, 5000000
    {5517, Method::transverseMercator, 28080, {464, 47, 751, 2284, 2333}}, // Chatham Islands Map Grid: -44, -176.5, 1, 350000, 650000
    {5522, Method::transverseMercator, 63295, {595, 1006, 673, 2439, 2547}}, // Gabon Transverse Mercator 2011: 0, 11.5, 0.9996, 1500000, 5500000
    {5547, Method::transverseMercator, 148770, {595, 1833, 673, 2308, 2584}}, // Papua New Guinea Map Grid 1994 zone 54: 0, 141, 0.9996, 500000, 10000000
    {5548, Method::transverseMercator, 148796, {595, 1841, 673, 2308, 2584}}, // Papua New Guinea Map Grid 1994 zone 55: 0, 147, 0.9996, 500000, 10000000
    {5549, Method::transverseMercator, 148822, {595, 1844, 673, 2308, 2584}}, // Papua New Guinea Map Grid 1994 zone 56: 0, 153, 0.9996, 500000, 10000000
    {5587, Method::obliqueStereographic, 99156, {1514, 417, 704, 2278, 2278}}, // New Brunswick Stereographic (NAD27): 46.5, -66.5, 0.999912, 304800, 304800
    {5595, Method::transverseMercator, 50527, {595, 1005, 751, 2391, 595}}, // Fehmarnbelt TM: 0, 11.333333333333334, 1, 1000000, 0
    {5640, Method::mercatorB, 149726, {585, 473, 2536, 2584}}, // Petrobras Mercator: -2, -43, 5000000, 10000000
    {5642, Method::lambertConic2, 189017, {1535, 989, 1578, 1592, 2354, 595}}, // Southern Permian Basin Atlas Lambert: 48, 10, 52.666666666666664, 54.333333333333336, 815000, 0
    {5645, Method::transverseMercator, 182153, {1397, 386, 727, 2309, 595}}, // SPCS83 Vermont zone (US Survey feet): 42.5, -72.5, 0.999964286, 500000.00001016003, 0
    {5647, Method::transverseMercator, 204226, {595, 926, 673, 2628, 595}}, // UTM zone 31N with prefix: 0, 3, 0.9996, 31500000, 0
    {5648, Method::transverseMercator, 204258, {595, 1030, 673, 2632, 595}}, // UTM zone 33N with prefix: 0, 15, 0.9996, 33500000, 0
    {5658, Method::transverseMercator, 96559, {595, 985, 673, 2313, 14}}, // TM Emilia-Romagna: 0, 9, 0.9996, 500053, -3999820
    {5824, Method::transverseMercator, 3679, {517, 1842, 877, 2198, 2323}}, // ACT Standard Grid: -35.31773627777778, 149.00929483055555, 1.000086, 200000, 600000
    {5883, Method::transverseMercator, 191576, {595, 46, 673, 2439, 2536}}, // Tonga Map Grid: 0, -177, 0.9996, 1500000, 5000000
    {5889, Method::polarStereographicB, 76105, {1634, 1694, 595, 595}}, // JAXA Snow Depth Polar Stereographic North: 70, 90, 0, 0
    {5892, Method::transverseMercator, 209294, {595, 1733, 700, 2308, 595}}, // Vietnam TM-3 zone 481: 0, 102, 0.9999, 500000, 0
    {5893, Method::transverseMercator, 209308, {595, 1750, 700, 2308, 595}}, // Vietnam TM-3 zone 482: 0, 105, 0.9999, 500000, 0
    {5894, Method::transverseMercator, 209322, {595, 1761, 700, 2308, 595}}, // Vietnam TM-3 zone 491: 0, 108, 0.9999, 500000, 0
    {5895, Method::transverseMercator, 209227, {595, 1760, 700, 2308, 595}}, // Vietnam TM-3 107-45: 0, 107.75, 0.9999, 500000, 0
    {5901, Method::polarStereographicA, 214096, {1694, 66, 655, 2461, 2461}}, // EPSG Alaska Polar Stereographic: 90, -150, 0.994, 2000000, 2000000
    {5902, Method::polarStereographicA, 215065, {1694, 160, 655, 2461, 2461}}, // EPSG Canada Polar Stereographic: 90, -100, 0.994, 2000000, 2000000
    {5903, Method::polarStereographicA, 215092, {1694, 521, 655, 2461, 2461}}, // EPSG Greenland Polar Stereographic: 90, -33, 0.994, 2000000, 2000000
    {5904, Method::polarStereographicA, 215121, {1694, 1052, 655, 2461, 2461}}, // EPSG Norway Polar Stereographic: 90, 18, 0.994, 2000000, 2000000
    {5905, Method::polarStereographicA, 215149, {1694, 1750, 655, 2461, 2461}}, // EPSG Russia Polar Stereographic: 90, 105, 0.994, 2000000, 2000000
    {5906, Method::lambertConic2, 43563, {1673, 132, 1682, 1656, 595, 595}}, // EPSG Arctic Regional LCC zone A1: 81.31722599999999, -111, 85, 77, 0, 0
    {5907, Method::lambertConic2, 43583, {1673, 505, 1682, 1656, 595, 595}}, // EPSG Arctic Regional LCC zone A2: 81.31722599999999, -39, 85, 77, 0, 0
    {5908, Method::lambertConic2, 43603, {1673, 1215, 1682, 1656, 595, 595}}, // EPSG Arctic Regional LCC zone A3: 81.31722599999999, 33, 85, 77, 0, 0
    {5909, Method::lambertConic2, 43623, {1673, 1750, 1682, 1656, 595, 595}}, // EPSG Arctic Regional LCC zone A4: 81.31722599999999, 105, 85, 77, 0, 0
    {5910, Method::lambertConic2, 43643, {1673, 1920, 1682, 1656, 595, 595}}, // EPSG Arctic Regional LCC zone A5: 81.31722599999999, 177, 85, 77, 0, 0
    {5911, Method::lambertConic2, 43663, {1643, 132, 1656, 1633, 595, 595}}, // EPSG Arctic Regional LCC zone B1: 73.15574086111111, -111, 77, 69, 0, 0
    {5912, Method::lambertConic2, 43683, {1643, 505, 1656, 1633, 595, 595}}, // EPSG Arctic Regional LCC zone B2: 73.15574086111111, -39, 77, 69, 0, 0
    {5913, Method::lambertConic2, 43703, {1643, 1215, 1656, 1633, 595, 595}}, // EPSG Arctic Regional LCC zone B3: 73.15574086111111, 33, 77, 69, 0, 0
    {5914, Method::lambertConic2, 43723, {1643, 1750, 1656, 1633, 595, 595}}, // EPSG Arctic Regional LCC zone B4: 73.15574086111111, 105, 77, 69, 0, 0
    {5915, Method::lambertConic2, 43743, {1643, 1920, 1656, 1633, 595, 595}}, // EPSG Arctic Regional LCC zone B5: 73.15574086111111, 177, 77, 69, 0, 0
    {5916, Method::lambertConic2, 43763, {1624, 132, 1633, 1612, 595, 595}}, // EPSG Arctic Regional LCC zone C1: 65.10127088888888, -111, 69, 61, 0, 0
    {5917, Method::lambertConic2, 43783, {1624, 505, 1633, 1612, 595, 595}}, // EPSG Arctic Regional LCC zone C2: 65.10127088888888, -39, 69, 61, 0, 0
    {5918, Method::lambertConic2, 43803, {1624, 1215, 1633, 1612, 595, 595}}, // EPSG Arctic Regional LCC zone C3: 65.10127088888888, 33, 69, 61, 0, 0
    {5919, Method::lambertConic2, 43823, {1624, 1750, 1633, 1612, 595, 595}}, // EPSG Arctic Regional LCC zone C4: 65.10127088888888, 105, 69, 61, 0, 0
    {5920, Method::lambertConic2, 43843, {1624, 1920, 1633, 1612, 595, 595}}, // EPSG Arctic Regional LCC zone C5: 65.10127088888888, 177, 69, 61, 0, 0
    {5943, Method::lambertConic2, 43529, {1616, 444, 1620, 1611, 2606, 2579}}, // EPSG Arctic LCC zone 8-20: 62.01530688888889, -52, 63.666666666666664, 60.333333333333336, 20500000, 8500000
    {5944, Method::lambertConic2, 43546, {1616, 512, 1620, 1611, 2610, 2579}}, // EPSG Arctic LCC zone 8-22: 62.01530688888889, -37, 63.666666666666664, 60.333333333333336, 22500000, 8500000
    {5977, Method::lambertConic2, 42288, {1683, 66, 1686, 1679, 2608, 2439}}, // EPSG Arctic LCC zone 1-21: 85.43711833333333, -150, 87, 83.66666666666667, 21500000, 1500000
    {5978, Method::lambertConic2, 42305, {1683, 234, 1686, 1679, 2612, 2439}}, // EPSG Arctic LCC zone 1-23: 85.43711833333333, -90, 87, 83.66666666666667, 23500000, 1500000
    {5979, Method::lambertConic2, 42322, {1683, 524, 1686, 1679, 2616, 2439}}, // EPSG Arctic LCC zone 1-25: 85.43711833333333, -30, 87, 83.66666666666667, 25500000, 1500000
    {5980, Method::lambertConic2, 42339, {1683, 1182, 1686, 1679, 2620, 2439}}, // EPSG Arctic LCC zone 1-27: 85.43711833333333, 30, 87, 83.66666666666667, 27500000, 1500000
    {5981, Method::lambertConic2, 42356, {1683, 1694, 1686, 1679, 2624, 2439}}, // EPSG Arctic LCC zone 1-29: 85.43711833333333, 90, 87, 83.66666666666667, 29500000, 1500000
    {5982, Method::lambertConic2, 42373, {1683, 1843, 1686, 1679, 2628, 2439}}, // EPSG Arctic LCC zone 1-31: 85.43711833333333, 150, 87, 83.66666666666667, 31500000, 1500000
    {5983, Method::lambertConic2, 42390, {1675, 1853, 1679, 1666, 2586, 2478}}, // EPSG Arctic LCC zone 2-10: 82.05842488888888, 166, 83.66666666666667, 80.33333333333333, 10500000, 2500000
    {5984, Method::lambertConic2, 42407, {1675, 64, 1679, 1666, 2590, 2478}}, // EPSG Arctic LCC zone 2-12: 82.05842488888888, -154, 83.66666666666667, 80.33333333333333, 12500000, 2500000
    {5985, Method::lambertConic2, 42424, {1675, 119, 1679, 1666, 2594, 2478}}, // EPSG Arctic LCC zone 2-14: 82.05842488888888, -115, 83.66666666666667, 80.33333333333333, 14500000, 2500000
    {5986, Method::lambertConic2, 42441, {1675, 363, 1679, 1666, 2598, 2478}}, // EPSG Arctic LCC zone 2-16: 82.05842488888888, -75, 83.66666666666667, 80.33333333333333, 16500000, 2500000
    {5987, Method::lambertConic2, 42458, {1675, 444, 1679, 1666, 2602, 2478}}, // EPSG Arctic LCC zone 2-18: 82.05842488888888, -52, 83.66666666666667, 80.33333333333333, 18500000, 2500000
    {5988, Method::lambertConic2, 42475, {1675, 555, 1679, 1666, 2606, 2478}}, // EPSG Arctic LCC zone 2-20: 82.05842488888888, -12, 83.66666666666667, 80.33333333333333, 20500000, 2500000
    {5989, Method::lambertConic2, 42492, {1675, 1038, 1679, 1666, 2610, 2478}}, // EPSG Arctic LCC zone 2-22: 82.05842488888888, 16, 83.66666666666667, 80.33333333333333, 22500000, 2500000
    {5990, Method::lambertConic2, 42509, {1675, 1579, 1679, 1666, 2614, 2478}}, // EPSG Arctic LCC zone 2-24: 82.05842488888888, 53, 83.66666666666667, 80.33333333333333, 24500000, 2500000
    {5991, Method::lambertConic2, 42526, {1675, 1710, 1679, 1666, 2618, 2478}}, // EPSG Arctic LCC zone 2-26: 82.05842488888888, 93, 83.66666666666667, 80.33333333333333, 26500000, 2500000
    {5992, Method::lambertConic2, 42543, {1675, 1816, 1679, 1666, 2622, 2478}}, // EPSG Arctic LCC zone 2-28: 82.05842488888888, 133, 83.66666666666667, 80.33333333333333, 28500000, 2500000
    {5993, Method::lambertConic2, 42560, {1662, 1084, 1666, 1656, 2588, 2508}}, // EPSG Arctic LCC zone 3-11: 78.70733752777778, 21, 80.33333333333333, 77, 11500000, 3500000
    {5994, Method::lambertConic2, 42577, {1662, 1570, 1666, 1656, 2592, 2508}}, // EPSG Arctic LCC zone 3-13: 78.70733752777778, 52, 80.33333333333333, 77, 13500000, 3500000
    {5995, Method::lambertConic2, 42594, {1662, 1678, 1666, 1656, 2596, 2508}}, // EPSG Arctic LCC zone 3-15: 78.70733752777778, 83, 80.33333333333333, 77, 15500000, 3500000
    {5996, Method::lambertConic2, 42611, {1662, 1771, 1666, 1656, 2600, 2508}}, // EPSG Arctic LCC zone 3-17: 78.70733752777778, 114, 80.33333333333333, 77, 17500000, 3500000
    {5997, Method::lambertConic2, 42628, {1662, 1840, 1666, 1656, 2604, 2508}}, // EPSG Arctic LCC zone 3-19: 78.70733752777778, 145, 80.33333333333333, 77, 19500000, 3500000
    {5998, Method::lambertConic2, 42645, {1662, 1915, 1666, 1656, 2608, 2508}}, // EPSG Arctic LCC zone 3-21: 78.70733752777778, 176, 80.33333333333333, 77, 21500000, 3500000
    {5999, Method::lambertConic2, 42662, {1662, 65, 1666, 1656, 2612, 2508}}, // EPSG Arctic LCC zone 3-23: 78.70733752777778, -153, 80.33333333333333, 77, 23500000, 3500000
    {6000, Method::lambertConic2, 42679, {1662, 78, 1666, 1656, 2616, 2508}}, // EPSG Arctic LCC zone 3-25: 78.70733752777778, -129, 80.33333333333333, 77, 25500000, 3500000
    {6001, Method::lambertConic2, 42696, {1662, 165, 1666, 1656, 2620, 2508}}, // EPSG Arctic LCC zone 3-27: 78.70733752777778, -99, 80.33333333333333, 77, 27500000, 3500000
    {6002, Method::lambertConic2, 42713, {1662, 406, 1666, 1656, 2624, 2508}}, // EPSG Arctic LCC zone 3-29: 78.70733752777778, -69, 80.33333333333333, 77, 29500000, 3500000
    {6003, Method::lambertConic2, 42730, {1662, 505, 1666, 1656, 2628, 2508}}, // EPSG Arctic LCC zone 3-31: 78.70733752777778, -39, 80.33333333333333, 77, 31500000, 3500000
    {6004, Method::lambertConic2, 42747, {1662, 557, 1666, 1656, 2632, 2508}}, // EPSG Arctic LCC zone 3-33: 78.70733752777778, -10, 80.33333333333333, 77, 33500000, 3500000
    {6005, Method::lambertConic2, 42764, {1650, 63, 1656, 1645, 2590, 2531}}, // EPSG Arctic LCC zone 4-12: 75.36440330555556, -155, 77, 73.66666666666667, 12500000, 4500000
    {6006, Method::lambertConic2, 42781, {1650, 78, 1656, 1645, 2594, 2531}}, // EPSG Arctic LCC zone 4-14: 75.36440330555556, -129, 77, 73.66666666666667, 14500000, 4500000
    {6007, Method::lambertConic2, 42798, {1650, 150, 1656, 1645, 2598, 2531}}, // EPSG Arctic LCC zone 4-16: 75.36440330555556, -104, 77, 73.66666666666667, 16500000, 4500000
    {6008, Method::lambertConic2, 42815, {1650, 334, 1656, 1645, 2602, 2531}}, // EPSG Arctic LCC zone 4-18: 75.36440330555556, -79, 77, 73.66666666666667, 18500000, 4500000
    {6009, Method::lambertConic2, 42832, {1650, 424, 1656, 1645, 2606, 2531}}, // EPSG Arctic LCC zone 4-20: 75.36440330555556, -64, 77, 73.66666666666667, 20500000, 4500000
    {6010, Method::lambertConic2, 42849, {1650, 505, 1656, 1645, 2610, 2531}}, // EPSG Arctic LCC zone 4-22: 75.36440330555556, -39, 77, 73.66666666666667, 22500000, 4500000
    {6011, Method::lambertConic2, 42866, {1650, 554, 1656, 1645, 2614, 2531}}, // EPSG Arctic LCC zone 4-24: 75.36440330555556, -14, 77, 73.66666666666667, 24500000, 4500000
    {6012, Method::lambertConic2, 42883, {1650, 989, 1656, 1645, 2618, 2531}}, // EPSG Arctic LCC zone 4-26: 75.36440330555556, 10, 77, 73.66666666666667, 26500000, 4500000
    {6013, Method::lambertConic2, 42900, {1650, 1229, 1656, 1645, 2622, 2531}}, // EPSG Arctic LCC zone 4-28: 75.36440330555556, 34, 77, 73.66666666666667, 28500000, 4500000
    {6014, Method::lambertConic2, 42917, {1650, 1606, 1656, 1645, 2626, 2531}}, // EPSG Arctic LCC zone 4-30: 75.36440330555556, 58, 77, 73.66666666666667, 30500000, 4500000
    {6015, Method::lambertConic2, 42934, {1650, 1674, 1656, 1645, 2630, 2531}}, // EPSG Arctic LCC zone 4-32: 75.36440330555556, 82, 77, 73.66666666666667, 32500000, 4500000
    {6016, Method::lambertConic2, 42951, {1650, 1754, 1656, 1645, 2634, 2531}}, // EPSG Arctic LCC zone 4-34: 75.36440330555556, 106, 77, 73.66666666666667, 34500000, 4500000
    {6017, Method::lambertConic2, 42968, {1650, 1810, 1656, 1645, 2638, 2531}}, // EPSG Arctic LCC zone 4-36: 75.36440330555556, 130, 77, 73.66666666666667, 36500000, 4500000
    {6018, Method::lambertConic2, 42985, {1650, 1845, 1656, 1645, 2642, 2531}}, // EPSG Arctic LCC zone 4-38: 75.36440330555556, 154, 77, 73.66666666666667, 38500000, 4500000
    {6019, Method::lambertConic2, 43002, {1650, 1925, 1656, 1645, 2646, 2531}}, // EPSG Arctic LCC zone 4-40: 75.36440330555556, 179, 77, 73.66666666666667, 40500000, 4500000
    {6020, Method::lambertConic2, 43019, {1641, 1025, 1645, 1635, 2588, 2547}}, // EPSG Arctic LCC zone 5-11: 72.02500919444445, 14, 73.66666666666667, 70.33333333333333, 11500000, 5500000
    {6021, Method::lambertConic2, 43036, {1641, 1229, 1645, 1635, 2592, 2547}}, // EPSG Arctic LCC zone 5-13: 72.02500919444445, 34, 73.66666666666667, 70.33333333333333, 13500000, 5500000
    {6022, Method::lambertConic2, 43053, {1641, 1591, 1645, 1635, 2596, 2547}}, // EPSG Arctic LCC zone 5-15: 72.02500919444445, 54, 73.66666666666667, 70.33333333333333, 15500000, 5500000
    {6023, Method::lambertConic2, 43070, {1641, 1647, 1645, 1635, 2600, 2547}}, // EPSG Arctic LCC zone 5-17: 72.02500919444445, 74, 73.66666666666667, 70.33333333333333, 17500000, 5500000
    {6024, Method::lambertConic2, 43087, {1641, 1716, 1645, 1635, 2604, 2547}}, // EPSG Arctic LCC zone 5-19: 72.02500919444445, 95, 73.66666666666667, 70.33333333333333, 19500000, 5500000
    {6025, Method::lambertConic2, 43104, {1641, 1785, 1645, 1635, 2608, 2547}}, // EPSG Arctic LCC zone 5-21: 72.02500919444445, 116, 73.66666666666667, 70.33333333333333, 21500000, 5500000
    {6026, Method::lambertConic2, 43121, {1641, 1823, 1645, 1635, 2612, 2547}}, // EPSG Arctic LCC zone 5-23: 72.02500919444445, 137, 73.66666666666667, 70.33333333333333, 23500000, 5500000
    {6027, Method::lambertConic2, 43138, {1641, 1848, 1645, 1635, 2616, 2547}}, // EPSG Arctic LCC zone 5-25: 72.02500919444445, 158, 73.66666666666667, 70.33333333333333, 25500000, 5500000
    {6028, Method::lambertConic2, 43155, {1641, 1925, 1645, 1635, 2620, 2547}}, // EPSG Arctic LCC zone 5-27: 72.02500919444445, 179, 73.66666666666667, 70.33333333333333, 27500000, 5500000
    {6029, Method::lambertConic2, 43172, {1641, 55, 1645, 1635, 2624, 2547}}, // EPSG Arctic LCC zone 5-29: 72.02500919444445, -163, 73.66666666666667, 70.33333333333333, 29500000, 5500000
    {6030, Method::lambertConic2, 43189, {1641, 67, 1645, 1635, 2628, 2547}}, // EPSG Arctic LCC zone 5-31: 72.02500919444445, -147, 73.66666666666667, 70.33333333333333, 31500000, 5500000
    {6031, Method::lambertConic2, 43206, {1641, 76, 1645, 1635, 2632, 2547}}, // EPSG Arctic LCC zone 5-33: 72.02500919444445, -131, 73.66666666666667, 70.33333333333333, 33500000, 5500000
    {6032, Method::lambertConic2, 43223, {1641, 132, 1645, 1635, 2636, 2547}}, // EPSG Arctic LCC zone 5-35: 72.02500919444445, -111, 73.66666666666667, 70.33333333333333, 35500000, 5500000
    {6033, Method::lambertConic2, 43240, {1641, 217, 1645, 1635, 2640, 2547}}, // EPSG Arctic LCC zone 5-37: 72.02500919444445, -91, 73.66666666666667, 70.33333333333333, 37500000, 5500000
    {6034, Method::lambertConic2, 43257, {1641, 396, 1645, 1635, 2644, 2547}}, // EPSG Arctic LCC zone 5-39: 72.02500919444445, -71, 73.66666666666667, 70.33333333333333, 39500000, 5500000
    {6035, Method::lambertConic2, 43274, {1641, 427, 1645, 1635, 2648, 2547}}, // EPSG Arctic LCC zone 5-41: 72.02500919444445, -62, 73.66666666666667, 70.33333333333333, 41500000, 5500000
    {6036, Method::lambertConic2, 43291, {1641, 480, 1645, 1635, 2652, 2547}}, // EPSG Arctic LCC zone 5-43: 72.02500919444445, -42, 73.66666666666667, 70.33333333333333, 43500000, 5500000
    {6037, Method::lambertConic2, 43308, {1641, 537, 1645, 1635, 2656, 2547}}, // EPSG Arctic LCC zone 5-45: 72.02500919444445, -22, 73.66666666666667, 70.33333333333333, 45500000, 5500000
    {6038, Method::lambertConic2, 43325, {1641, 569, 1645, 1635, 2660, 2547}}, // EPSG Arctic LCC zone 5-47: 72.02500919444445, -5, 73.66666666666667, 70.33333333333333, 47500000, 5500000
    {6039, Method::lambertConic2, 43342, {1632, 54, 1635, 1628, 2594, 2562}}, // EPSG Arctic LCC zone 6-14: 68.68747555555557, -165, 70.33333333333333, 67, 14500000, 6500000
    {6040, Method::lambertConic2, 43359, {1632, 67, 1635, 1628, 2598, 2562}}, // EPSG Arctic LCC zone 6-16: 68.68747555555557, -147, 70.33333333333333, 67, 16500000, 6500000
    {6041, Method::lambertConic2, 43376, {1632, 75, 1635, 1628, 2602, 2562}}, // EPSG Arctic LCC zone 6-18: 68.68747555555557, -132, 70.33333333333333, 67, 18500000, 6500000
    {6042, Method::lambertConic2, 43393, {1632, 124, 1635, 1628, 2606, 2562}}, // EPSG Arctic LCC zone 6-20: 68.68747555555557, -113, 70.33333333333333, 67, 20500000, 6500000
    {6043, Method::lambertConic2, 43410, {1632, 186, 1635, 1628, 2610, 2562}}, // EPSG Arctic LCC zone 6-22: 68.68747555555557, -94, 70.33333333333333, 67, 22500000, 6500000
    {6044, Method::lambertConic2, 43427, {1632, 363, 1635, 1628, 2614, 2562}}, // EPSG Arctic LCC zone 6-24: 68.68747555555557, -75, 70.33333333333333, 67, 24500000, 6500000
    {6045, Method::lambertConic2, 43444, {1632, 437, 1635, 1628, 2618, 2562}}, // EPSG Arctic LCC zone 6-26: 68.68747555555557, -56, 70.33333333333333, 67, 26500000, 6500000
    {6046, Method::lambertConic2, 43461, {1632, 508, 1635, 1628, 2622, 2562}}, // EPSG Arctic LCC zone 6-28: 68.68747555555557, -38, 70.33333333333333, 67, 28500000, 6500000
    {6047, Method::lambertConic2, 43478, {1632, 543, 1635, 1628, 2626, 2562}}, // EPSG Arctic LCC zone 6-30: 68.68747555555557, -20, 70.33333333333333, 67, 30500000, 6500000
    {6048, Method::lambertConic2, 43495, {1625, 445, 1628, 1620, 2588, 2573}}, // EPSG Arctic LCC zone 7-11: 65.35103930555555, -51, 67, 63.666666666666664, 11500000, 7500000
    {6049, Method::lambertConic2, 43512, {1625, 519, 1628, 1620, 2592, 2573}}, // EPSG Arctic LCC zone 7-13: 65.35103930555555, -34, 67, 63.666666666666664, 13500000, 7500000
    {6126, Method::lambertConic2, 31921, {1071, 1668, 1071, 1073, 2369, 2318}}, // Cayman Islands LCC (ft): 19.333333333333332, 80.56666666666666, 19.333333333333332, 19.7, 899160, 579120
    {6127, Method::transverseMercator, 31959, {595, 326, 673, 2307, 595}}, // Cayman Islands TM (ft): 0, -81, 0.9996, 499999.999998, 0
    {6197, Method::lambertConicMichigan, 94430, {1485, 280, 1486, 1524, 2325, 595, 827}}, // Michigan CS27 North zone: 45.45, -87, 45.483333333333334, 47.083333333333336, 609601.2192024384, 0, 1.0000382
    {6198, Method::lambertConicMichigan, 94415, {1423, 316, 1448, 1494, 2325, 595, 827}}, // Michigan CS27 Central zone: 43.31666666666667, -84.33333333333333, 44.18333333333333, 45.7, 609601.2192024384, 0, 1.0000382
    {6199, Method::lambertConicMichigan, 94444, {1377, 316, 1391, 1434, 2325, 595, 827}}, // Michigan CS27 South zone: 41.5, -84.33333333333333, 42.1, 43.666666666666664, 609601.2192024384, 0, 1.0000382
    {6203, Method::transverseMercator, 90775, {595, 1084, 700, 2308, 595}}, // Macedonia Gauss-Kruger: 0, 21, 0.9999, 500000, 0
    {6212, Method::colombiaUrban, 87848, {975, 397, 2394, 2429, 1721}}, // Arauca urban grid: 7.087606391666666, -70.75830965555555, 1035263.443, 1275526.621, 100
    {6213, Method::colombiaUrban, 87874, {941, 354, 2418, 2386, 1945}}, // Armenia urban grid: 4.532325, -75.67348916666667, 1155824.666, 993087.465, 1470
    {6214, Method::colombiaUrban, 87899, {999, 364, 2379, 2451, 1721}}, // Barranquilla urban grid: 10.923183083333333, -74.83433133333332, 917264.406, 1699839.935, 100
    {6215, Method::colombiaUrban, 87929, {945, 370, 2057, 2076, 1951}}, // Bogota urban grid: 4.680486111111112, -74.14659166666668, 92334.879, 109320.965, 2550
    {6216, Method::colombiaUrban, 87955, {974, 379, 2409, 2428, 1942}}, // Bucaramanga urban grid: 7.078887141666667, -73.19734322222223, 1097241.305, 1274642.278, 931
    {6217, Method::colombiaUrban, 87984, {928, 349, 2402, 2367, 1943}}, // Cali urban grid: 3.4418833333333336, -76.5205625, 1061900.18, 872364.63, 1000
    {6218, Method::colombiaUrban, 88009, {993, 357, 2363, 2448, 595}}, // Cartagena urban grid: 10.3970475, -75.51120694444444, 842981.41, 1641887.09, 0
    {6219, Method::colombiaUrban, 88161, {978, 385, 2362, 2433, 1934}}, // Cucuta urban grid: 7.888936736111111, -72.50287095, 842805.406, 1364404.57, 308
    {6220, Method::colombiaUrban, 88188, {915, 355, 2420, 2337, 1933}}, // Florencia urban grid: 1.6210122944444445, -75.61911760277778, 1162300.348, 671068.716, 300
    {6221, Method::colombiaUrban, 88215, {939, 362, 2368, 2384, 1944}}, // Ibague urban grid: 4.419412827777778, -75.17992593333334, 877634.33, 980541.348, 1100
    {6222, Method::colombiaUrban, 88242, {933, 411, 2392, 2306, 1717}}, // Inirida urban grid: 3.8454381833333335, -67.9052320888889, 1019177.687, 491791.326, 96
    {6223, Method::colombiaUrban, 88267, {572, 404, 1974, 1976, 1692}}, // Leticia urban grid: -4.197684047222222, -69.94281105833333, 25978.217, 27501.365, 89.7
    {6224, Method::colombiaUrban, 88292, {952, 358, 2422, 2400, 1949}}, // Manizales urban grid: 5.068153888888888, -75.51109472222223, 1173727.04, 1052391.13, 2100
    {6225, Method::colombiaUrban, 88320, {968, 356, 2360, 2424, 1947}}, // Medellin urban grid: 6.229208888888889, -75.56488694444444, 835378.647, 1180816.875, 1510
    {6226, Method::colombiaUrban, 88347, {912, 401, 2408, 2331, 1868}}, // Mitu urban grid: 1.2499693666666667, -70.23546165555555, 1093717.398, 629997.236, 170
    {6227, Method::colombiaUrban, 88372, {910, 345, 2398, 2328, 1941}}, // Mocoa urban grid: 1.1400233583333332, -76.65102121944444, 1047467.388, 617828.474, 655.2
    {6228, Method::colombiaUrban, 88398, {983, 352, 2416, 2437, 1030}}, // Monteria urban grid: 8.773085755555556, -75.87955333055555, 1131814.934, 1462131.119, 15
    {6229, Method::colombiaUrban, 88424, {925, 361, 2366, 2355, 1940}}, // Neiva urban grid: 2.9424150555555557, -75.29643672222223, 864476.923, 817199.827, 430
    {6230, Method::colombiaUrban, 88474, {911, 339, 2383, 2329, 1950}}, // Pasto urban grid: 1.2009895138888889, -77.25312563333334, 980469.695, 624555.332, 2530
    {6231, Method::colombiaUrban, 88499, {946, 353, 2417, 2393, 1946}}, // Pereira urban grid: 4.813593611111111, -75.69395138888889, 1153492.012, 1024195.255, 1500
    {6232, Method::colombiaUrban, 88525, {919, 347, 2401, 2345, 1948}}, // Popayan urban grid: 2.4561598833333336, -76.6060916361111, 1052430.525, 763366.548, 1740
    {6233, Method::colombiaUrban, 88553, {967, 413, 2403, 2423, 1565}}, // Puerto Carreno urban grid: 6.1807214138888895, -67.50075024722223, 1063834.703, 1175257.481, 51.58
    {6234, Method::colombiaUrban, 88584, {960, 346, 2397, 2413, 1440}}, // Quibdo urban grid: 5.6942476611111115, -76.65075385833335, 1047273.617, 1121443.09, 44
    {6235, Method::colombiaUrban, 88611, {1007, 381, 2415, 2454, 965}}, // Riohacha urban grid: 11.536913327777778, -72.90276886944444, 1128154.73, 1767887.914, 6
    {6236, Method::colombiaUrban, 88640, {1013, 325, 2357, 2455, 965}}, // San Andres urban grid: 12.523794325, -81.72937595, 820439.298, 1877357.828, 6
    {6237, Method::colombiaUrban, 88670, {921, 384, 2419, 2346, 1929}}, // San Jose del Guaviare urban grid: 2.5640789416666663, -72.640033325, 1159876.62, 775380.342, 185
    {6238, Method::colombiaUrban, 88708, {1001, 369, 2385, 2453, 1172}}, // Santa Marta urban grid: 11.219643055555556, -74.22500527777778, 983892.409, 1732533.518, 29
    {6239, Method::colombiaUrban, 88737, {984, 365, 2380, 2438, 1074}}, // Sucre urban grid: 8.810550366666668, -74.722466825, 929043.607, 1466125.658, 20
    {6240, Method::colombiaUrban, 88763, {959, 377, 2405, 2411, 1952}}, // Tunja urban grid: 5.534194738888889, -73.3519389, 1080514.91, 1103772.028, 2800
    {6241, Method::colombiaUrban, 88789, {995, 378, 2407, 2449, 1930}}, // Valledupar urban grid: 10.44726111111111, -73.2465713888889, 1090979.66, 1647208.93, 200
    {6242, Method::colombiaUrban, 88818, {935, 375, 2399, 2382, 1939}}, // Villavicencio urban grid: 4.1553751000000005, -73.62448598611111, 1050678.757, 950952.124, 427.19
    {6243, Method::colombiaUrban, 88849, {953, 387, 2365, 2406, 1933}}, // Yopal urban grid: 5.353927222222222, -72.42004027777779, 851184.177, 1083954.137, 300
    {6308, Method::transverseMercator, 37609, {595, 1215, 723, 2198, 15}}, // Cyprus Transverse Mercator: 0, 33, 0.99995, 200000, -3500000
    {6361, Method::lambertConic2, 94139, {1010, 151, 1050, 1178, 2478, 595}}, // Mexico LCC: 12, -102, 17.5, 29.5, 2500000, 0
    {6374, Method::transverseMercator, 197334, {595, 1084, 751, 2275, 595}}, // Ukraine TM zone 7: 0, 21, 1, 300000, 0
    {6375, Method::transverseMercator, 197349, {595, 1114, 751, 2275, 595}}, // Ukraine TM zone 8: 0, 24, 1, 300000, 0
    {6376, Method::transverseMercator, 197364, {595, 1151, 751, 2275, 595}}, // Ukraine TM zone 9: 0, 27, 1, 300000, 0
    {6377, Method::transverseMercator, 197270, {595, 1182, 751, 2275, 595}}, // Ukraine TM zone 10: 0, 30, 1, 300000, 0
    {6378, Method::transverseMercator, 197286, {595, 1215, 751, 2275, 595}}, // Ukraine TM zone 11: 0, 33, 1, 300000, 0
    {6379, Method::transverseMercator, 197302, {595, 1257, 751, 2275, 595}}, // Ukraine TM zone 12: 0, 36, 1, 300000, 0
    {6380, Method::transverseMercator, 197318, {595, 1314, 751, 2275, 595}}, // Ukraine TM zone 13: 0, 39, 1, 300000, 0
    {6390, Method::lambertConic2, 31921, {1071, 327, 1071, 1073, 2369, 2318}}, // Cayman Islands LCC (ft): 19.333333333333332, -80.56666666666666, 19.333333333333332, 19.7, 899160, 579120
    {6645, Method::albers, 167527, {1440, 408, 1610, 1506, 595, 595}}, // Quebec Albers Projection: 44, -68.5, 60, 46, 0, 0
    {6702, Method::transverseMercator, 218046, {595, 432, 673, 2308, 2584}}, // TM 60 SW: 0, -60, 0.9996, 500000, 10000000
    {6716, Method::transverseMercator, 33435, {595, 1752, 787, 2003, 2431}}, // Christmas Island Grid 1992: 0, 105.625, 1.000024, 50000, 1300000
    {6717, Method::transverseMercator, 33453, {595, 1752, 789, 2003, 2431}}, // Christmas Island Grid 1994: 0, 105.625, 1.00002514, 50000, 1300000
    {6718, Method::transverseMercator, 34026, {595, 1718, 751, 2003, 2435}}, // Cocos Island Grid 1992: 0, 96.875, 1, 50000, 1400000
    {6719, Method::transverseMercator, 34042, {595, 1718, 740, 2003, 2439}}, // Cocos Island Grid 1994: 0, 96.875, 0.99999387, 50000, 1500000
    {6725, Method::transverseMercator, 92147, {595, 1618, 673, 2308, 2584}}, // Map Grid of Australia zone 41: 0, 63, 0.9996, 500000, 10000000
    {6726, Method::transverseMercator, 92165, {595, 1633, 673, 2308, 2584}}, // Map Grid of Australia zone 42: 0, 69, 0.9996, 500000, 10000000
    {6727, Method::transverseMercator, 92183, {595, 1649, 673, 2308, 2584}}, // Map Grid of Australia zone 43: 0, 75, 0.9996, 500000, 10000000
    {6728, Method::transverseMercator, 92201, {595, 1672, 673, 2308, 2584}}, // Map Grid of Australia zone 44: 0, 81, 0.9996, 500000, 10000000
    {6729, Method::transverseMercator, 92219, {595, 1710, 673, 2308, 2584}}, // Map Grid of Australia zone 46: 0, 93, 0.9996, 500000, 10000000
    {6730, Method::transverseMercator, 92237, {595, 1720, 673, 2308, 2584}}, // Map Grid of Australia zone 47: 0, 99, 0.9996, 500000, 10000000
    {6731, Method::transverseMercator, 92453, {595, 1877, 673, 2308, 2584}}, // Map Grid of Australia zone 59: 0, 171, 0.9996, 500000, 10000000
    {6741, Method::transverseMercator, 144032, {1458, 109, 896, 1988, 595}}, // Oregon Baker zone (meters): 44.5, -117.83333333333333, 1.00016, 40000, 0
    {6742, Method::transverseMercator, 144013, {1458, 109, 896, 1987, 595}}, // Oregon Baker zone (International feet): 44.5, -117.83333333333333, 1.00016, 39999.99999984, 0
    {6743, Method::transverseMercator, 144111, {1382, 93, 903, 2048, 595}}, // Oregon Bend-Klamath Falls zone (meters): 41.75, -121.75, 1.0002, 80000, 0
    {6744, Method::transverseMercator, 144083, {1382, 93, 903, 2047, 595}}, // Oregon Bend-Klamath Falls zone (International feet): 41.75, -121.75, 1.0002, 79999.99999968, 0
    {6745, Method::lambertConic1, 144164, {1463, 94, 885, 2048, 2108}}, // Oregon Bend-Redmond-Prineville zone (meters): 44.666666666666664, -121.25, 1.00012, 80000, 130000
    {6746, Method::lambertConic1, 144132, {1463, 94, 885, 2047, 2109}}, // Oregon Bend-Redmond-Prineville zone (International feet): 44.666666666666664, -121.25, 1.00012, 79999.99999968, 130000.00001472
    {6747, Method::lambertConic1, 144067, {1434, 101, 903, 2094, 2027}}, // Oregon Bend-Burns zone (meters): 43.666666666666664, -119.75, 1.0002, 120000, 60000
    {6748, Method::lambertConic1, 144044, {1434, 101, 903, 2093, 2026}}, // Oregon Bend-Burns zone (International feet): 43.666666666666664, -119.75, 1.0002, 119999.99999952, 59999.99999976
    {6749, Method::transverseMercator, 144328, {1397, 82, 872, 1988, 595}}, // Oregon Canyonville-Grants Pass zone (meters): 42.5, -123.33333333333333, 1.00007, 40000, 0
    {6750, Method::transverseMercator, 144295, {1397, 82, 872, 1987, 595}}, // Oregon Canyonville-Grants Pass zone (International feet): 42.5, -123.33333333333333, 1.00007, 39999.99999984, 0
    {6751, Method::lambertConic1, 144445, {1492, 97, 770, 2141, 1978}}, // Oregon Columbia River East zone (meters): 45.666666666666664, -120.5, 1.000008, 150000, 30000
    {6752, Method::lambertConic1, 144418, {1492, 97, 770, 2142, 1979}}, // Oregon Columbia River East zone (International feet): 45.666666666666664, -120.5, 1.000008, 150000.00001464, 30000.00001512
    {6753, Method::hotineA, 144492, {1504, 85, 1932, 1932, 751, 2566, 16}}, // Oregon Columbia River West zone (meters): 45.916666666666664, -123, 295, 295, 1, 7000000, -3000000
    {6754, Method::hotineA, 144465, {1504, 85, 1932, 1932, 751, 2567, 17}}, // Oregon Columbia River West zone (International feet): 45.916666666666664, -123, 295, 295, 1, 7000000.00000248, -2999999.999988
    {6755, Method::transverseMercator, 144546, {1412, 82, 783, 2003, 595}}, // Oregon Cottage Grove-Canyonville zone (meters): 42.833333333333336, -123.33333333333333, 1.000023, 50000, 0
    {6756, Method::transverseMercator, 144512, {1412, 82, 783, 2004, 595}}, // Oregon Cottage Grove-Canyonville zone (International feet): 42.833333333333336, -123.33333333333333, 1.000023, 50000.00001504, 0
    {6757, Method::transverseMercator, 144691, {1458, 95, 883, 2048, 595}}, // Oregon Dufur-Madras zone (meters): 44.5, -121, 1.00011, 80000, 0
    {6758, Method::transverseMercator, 144667, {1458, 95, 883, 2047, 595}}, // Oregon Dufur-Madras zone (International feet): 44.5, -121, 1.00011, 79999.99999968, 0
    {6759, Method::transverseMercator, 144727, {1435, 83, 774, 2003, 595}}, // Oregon Eugene zone (meters): 43.75, -123.16666666666667, 1.000015, 50000, 0
    {6760, Method::transverseMercator, 144708, {1435, 83, 774, 2004, 595}}, // Oregon Eugene zone (International feet): 43.75, -123.16666666666667, 1.000015, 50000.00001504, 0
    {6761, Method::transverseMercator, 144790, {1382, 82, 843, 2003, 595}}, // Oregon Grants Pass-Ashland zone (meters): 41.75, -123.33333333333333, 1.000043, 50000, 0
    {6762, Method::transverseMercator, 144762, {1382, 82, 843, 2004, 595}}, // Oregon Grants Pass-Ashland zone (International feet): 41.75, -123.33333333333333, 1.000043, 50000.00001504, 0
    {6763, Method::transverseMercator, 144840, {1473, 90, 855, 1961, 595}}, // Oregon Gresham-Warm Springs zone (meters): 45, -122.33333333333333, 1.00005, 10000, 0
    {6764, Method::transverseMercator, 144811, {1473, 90, 855, 1962, 595}}, // Oregon Gresham-Warm Springs zone (International feet): 45, -122.33333333333333, 1.00005, 10000.0000152, 0
    {6765, Method::transverseMercator, 144915, {1473, 108, 886, 1988, 595}}, // Oregon La Grande zone (meters): 45, -118, 1.00013, 40000, 0
    {6766, Method::transverseMercator, 144895, {1473, 108, 886, 1987, 595}}, // Oregon La Grande zone (International feet): 45, -118, 1.00013, 39999.99999984, 0
    {6767, Method::transverseMercator, 145121, {1421, 114, 881, 2048, 595}}, // Oregon Ontario zone (meters): 43.25, -117, 1.0001, 80000, 0
    {6768, Method::transverseMercator, 145102, {1421, 114, 881, 2047, 595}}, // Oregon Ontario zone (International feet): 43.25, -117, 1.0001, 79999.99999968, 0
    {6769, Method::hotineA, 144408, {1466, 80, 951, 951, 751, 20, 9}}, // Oregon Coast zone (meters): 44.75, -124.05, 5, 5, 1, -300000, -4600000
    {6770, Method::hotineA, 144391, {1466, 80, 951, 951, 751, 21, 8}}, // Oregon Coast zone (International feet): 44.75, -124.05, 5, 5, 1, -299999.9999988, -4600000.00001208
    {6771, Method::transverseMercator, 145186, {1480, 103, 847, 2027, 595}}, // Oregon Pendleton zone (meters): 45.25, -119.16666666666667, 1.000045, 60000, 0
    {6772, Method::transverseMercator, 145166, {1480, 103, 847, 2026, 595}}, // Oregon Pendleton zone (International feet): 45.25, -119.16666666666667, 1.000045, 59999.99999976, 0
    {6773, Method::transverseMercator, 145226, {1474, 107, 898, 1978, 595}}, // Oregon Pendleton-La Grande zone (meters): 45.083333333333336, -118.33333333333333, 1.000175, 30000, 0
    {6774, Method::transverseMercator, 145199, {1474, 107, 898, 1979, 595}}, // Oregon Pendleton-La Grande zone (International feet): 45.083333333333336, -118.33333333333333, 1.000175, 30000.00001512, 0
    {6775, Method::lambertConic1, 145314, {1487, 86, 754, 2064, 2003}}, // Oregon Portland zone (meters): 45.5, -122.75, 1.000002, 100000, 50000
    {6776, Method::lambertConic1, 145295, {1487, 86, 754, 2063, 2004}}, // Oregon Portland zone (International feet): 45.5, -122.75, 1.000002, 99999.9999996, 50000.00001504
    {6777, Method::transverseMercator, 145444, {1451, 84, 771, 2003, 595}}, // Oregon Salem zone (meters): 44.333333333333336, -123.08333333333333, 1.00001, 50000, 0
    {6778, Method::transverseMercator, 145426, {1451, 84, 771, 2004, 595}}, // Oregon Salem zone (International feet): 44.333333333333336, -123.08333333333333, 1.00001, 50000.00001504, 0
    {6779, Method::transverseMercator, 145479, {1445, 88, 894, 595, 595}}, // Oregon Santiam Pass zone (meters): 44.083333333333336, -122.5, 1.000155, 0, 0
    {6780, Method::transverseMercator, 145455, {1445, 88, 894, 595, 595}}, // Oregon Santiam Pass zone (International feet): 44.083333333333336, -122.5, 1.000155, 0, 0
    {6869, Method::transverseMercator, 44589, {595, 1074, 751, 2308, 595}}, // Albania TM 2010: 0, 20, 1, 500000, 0
    {6877, Method::transverseMercator, 75917, {595, 1010, 659, 2566, 595}}, // Italy zone: 0, 12, 0.9985, 7000000, 0
    {6878, Method::transverseMercator, 75924, {595, 1010, 751, 2500, 595}}, // Italy zone 12: 0, 12, 1, 3000000, 0
    {6920, Method::lambertConic2, 80116, {1257, 169, 1325, 1279, 2294, 595}}, // Kansas DOT Lambert (meters): 36, -98.25, 39.5, 37.5, 400000, 0
    {6921, Method::lambertConic2, 80091, {1257, 169, 1325, 1279, 2292, 595}}, // Kansas DOT Lambert (US Survey feet): 36, -98.25, 39.5, 37.5, 399999.99998983997, 0
    {6928, Method::cylindricalEqualArea, 197857, {1182, 595, 595, 595}}, // US NSIDC EASE-Grid 2.0 Global: 30, 0, 0, 0
    {6929, Method::lambertAzimuthal, 197883, {1694, 595, 595, 595}}, // US NSIDC EASE-Grid 2.0 North: 90, 0, 0, 0
    {6930, Method::lambertAzimuthal, 197905, {234, 595, 595, 595}}, // US NSIDC EASE-Grid 2.0 South: -90, 0, 0, 0
    {6952, Method::transverseMercator, 209294, {595, 1733, 700, 595, 2308}}, // Vietnam TM-3 zone 481: 0, 102, 0.9999, 0, 500000
    {6953, Method::transverseMercator, 209308, {595, 1750, 700, 595, 2308}}, // Vietnam TM-3 zone 482: 0, 105, 0.9999, 0, 500000
    {6954, Method::transverseMercator, 209322, {595, 1761, 700, 595, 2308}}, // Vietnam TM-3 zone 491: 0, 108, 0.9999, 0, 500000
    {6955, Method::transverseMercator, 209275, {595, 1760, 700, 595, 2308}}, // Vietnam TM-3 Da Nang zone: 0, 107.75, 0.9999, 0, 500000
    {6961, Method::lambertConic2, 44570, {1367, 1074, 1314, 1414, 595, 595}}, // Albania LCC 2010: 41, 20, 39, 43, 0, 0
    {6965, Method::lambertConicMichigan, 94430, {1467, 280, 1486, 1524, 2325, 595, 827}}, // Michigan CS27 North zone: 44.78333333333333, -87, 45.483333333333334, 47.083333333333336, 609601.2192024384, 0, 1.0000382
    {6994, Method::transverseMercator, 33568, {1281, 89, 596, 1999, 1971}}, // City and County of San Francisco CS13 (meters): 37.75, -122.45, 1.000007e-06, 48000, 24000
    {6995, Method::transverseMercator, 33535, {1281, 89, 596, 1999, 1971}}, // City and County of San Francisco CS13 (US Survey feet): 37.75, -122.45, 1.000007e-06, 48000, 24000
    {7043, Method::lambertConic1, 74494, {1419, 179, 856, 2511, 2497}}, // Iowa regional zone 1 Spencer: 43.2, -95.25, 1.000052, 3505207.0104140206, 2926085.852171704
    {7044, Method::lambertConic1, 74618, {1418, 193, 843, 2517, 2498}}, // Iowa regional zone 2 Mason City: 43.166666666666664, -92.75, 1.000043, 3810007.62001524, 2987045.974091948
    {7045, Method::transverseMercator, 74635, {1345, 213, 812, 2525, 2482}}, // Iowa regional zone 3 Elkader: 40.25, -91.2, 1.000035, 4114808.2296164595, 2529845.0596901192
    {7046, Method::lambertConic1, 74651, {1398, 182, 847, 2530, 2487}}, // Iowa regional zone 4 Sioux City-Iowa Falls: 42.53333333333333, -94.83333333333333, 1.000045, 4419608.839217679, 2621285.242570485
    {7047, Method::lambertConic1, 74677, {1402, 197, 799, 2534, 2489}}, // Iowa regional zone 5 Waterloo: 42.65, -92.25, 1.000032, 4724409.448818898, 2712725.4254508507
    {7048, Method::transverseMercator, 74694, {1345, 178, 832, 2539, 2465}}, // Iowa regional zone 6 Council Bluffs: 40.25, -95.73333333333333, 1.000039, 5029210.058420117, 2011684.0233680469
    {7049, Method::transverseMercator, 74716, {1345, 183, 847, 2542, 2466}}, // Iowa regional zone 7 Carroll-Atlantic: 40.25, -94.63333333333334, 1.000045, 5334010.668021336, 2072644.1452882907
    {7050, Method::transverseMercator, 74738, {1345, 188, 801, 2549, 2468}}, // Iowa regional zone 8 Ames-Des Moines: 40.25, -93.71666666666667, 1.000033, 5638811.277622555, 2133604.2672085343
    {7051, Method::transverseMercator, 74760, {1345, 192, 792, 2552, 2470}}, // Iowa regional zone 9 Newton: 40.25, -92.81666666666666, 1.000027, 5943611.887223775, 2194564.389128778
    {7052, Method::lambertConic1, 74509, {1384, 206, 780, 2558, 2477}}, // Iowa regional zone 10 Cedar Rapids: 41.833333333333336, -91.66666666666667, 1.00002, 6248412.496824994, 2438404.8768097535
    {7053, Method::transverseMercator, 74528, {1345, 225, 792, 2563, 2475}}, // Iowa regional zone 11 Dubuque-Davenport: 40.25, -90.53333333333333, 1.000027, 6553213.106426213, 2316484.632969266
    {7054, Method::lambertConic1, 74554, {1365, 187, 821, 2565, 2456}}, // Iowa regional zone 12 Red Oak-Ottumwa: 40.916666666666664, -93.75, 1.000037, 6858013.716027432, 1889763.779527559
    {7055, Method::transverseMercator, 74580, {1345, 200, 780, 2568, 2457}}, // Iowa regional zone 13 Fairfield: 40.25, -91.91666666666667, 1.00002, 7162814.325628651, 1950723.9014478028
    {7056, Method::transverseMercator, 74599, {1345, 212, 777, 2572, 2456}}, // Iowa regional zone 14 Burlington: 40.25, -91.25, 1.000018, 7467614.9352298705, 1889763.779527559
    {7089, Method::transverseMercator, 96031, {1540, 125, 896, 2141, 595}}, // Montana Blackfeet St Mary Valley (meters): 48.5, -112.5, 1.00016, 150000, 0
    {7090, Method::transverseMercator, 95996, {1540, 125, 896, 2142, 595}}, // Montana Blackfeet St Mary Valley (International feet): 48.5, -112.5, 1.00016, 150000.00001464, 0
    {7091, Method::transverseMercator, 95979, {1535, 125, 901, 2064, 595}}, // Montana Blackfeet (meters): 48, -112.5, 1.00019, 100000, 0
    {7092, Method::transverseMercator, 95955, {1535, 125, 901, 2063, 595}}, // Montana Blackfeet (International feet): 48, -112.5, 1.00019, 99999.9999996, 0
    {7093, Method::lambertConic1, 96354, {1540, 132, 890, 2141, 2198}}, // Montana Milk River (meters): 48.5, -111, 1.000145, 150000, 200000
    {7094, Method::lambertConic1, 96329, {1540, 132, 890, 2142, 2197}}, // Montana Milk River (International feet): 48.5, -111, 1.000145, 150000.00001464, 199999.9999992
    {7095, Method::lambertConic1, 96195, {1540, 138, 885, 2198, 2141}}, // Montana Fort Belknap (meters): 48.5, -108.5, 1.00012, 200000, 150000
    {7096, Method::lambertConic1, 96168, {1540, 138, 885, 2197, 2142}}, // Montana Fort Belknap (International feet): 48.5, -108.5, 1.00012, 199999.9999992, 150000.00001464
    {7097, Method::lambertConic1, 96250, {1539, 146, 885, 2198, 2064}}, // Montana Fort Peck Assiniboine (meters): 48.333333333333336, -105.5, 1.00012, 200000, 100000
    {7098, Method::lambertConic1, 96215, {1539, 146, 885, 2197, 2063}}, // Montana Fort Peck Assiniboine (International feet): 48.333333333333336, -105.5, 1.00012, 199999.9999992, 99999.9999996
    {7099, Method::lambertConic1, 96307, {1539, 146, 879, 2064, 2003}}, // Montana Fort Peck Sioux (meters): 48.333333333333336, -105.5, 1.00009, 100000, 50000
    {7100, Method::lambertConic1, 96278, {1539, 146, 879, 2063, 2002}}, // Montana Fort Peck Sioux (International feet): 48.333333333333336, -105.5, 1.00009, 99999.9999996, 49999.99971024
    {7101, Method::transverseMercator, 96154, {1466, 142, 891, 2198, 595}}, // Montana Crow (meters): 44.75, -107.75, 1.000148, 200000, 0
    {7102, Method::transverseMercator, 96133, {1466, 142, 891, 2197, 595}}, // Montana Crow (International feet): 44.75, -107.75, 1.000148, 199999.9999992, 0
    {7103, Method::lambertConic1, 96081, {1510, 131, 900, 2064, 2064}}, // Montana Bobcat (meters): 46.25, -111.25, 1.000185, 100000, 100000
    {7104, Method::lambertConic1, 96059, {1510, 131, 900, 2063, 2063}}, // Montana Bobcat (International feet): 46.25, -111.25, 1.000185, 99999.9999996, 99999.9999996
    {7105, Method::lambertConic1, 95939, {1498, 139, 893, 2198, 2003}}, // Montana Billings (meters): 45.78333333333333, -108.41666666666667, 1.0001515, 200000, 50000
    {7106, Method::lambertConic1, 95916, {1498, 139, 893, 2197, 2004}}, // Montana Billings (International feet): 45.78333333333333, -108.41666666666667, 1.0001515, 199999.9999992, 50000.00001504
    {7107, Method::transverseMercator, 227565, {1403, 140, 907, 2064, 595}}, // Wyoming Wind River (meters): 42.666666666666664, -108.33333333333333, 1.00024, 100000, 0
    {7108, Method::transverseMercator, 227540, {1403, 140, 907, 2062, 595}}, // Wyoming Wind River (US Survey feet): 42.666666666666664, -108.33333333333333, 1.00024, 99999.99998983998, 0
    {7129, Method::transverseMercator, 33568, {1281, 89, 769, 1999, 1971}}, // City and County of San Francisco CS13 (meters): 37.75, -122.45, 1.000007, 48000, 24000
    {7130, Method::transverseMercator, 33535, {1281, 89, 769, 1999, 1971}}, // City and County of San Francisco CS13 (US Survey feet): 37.75, -122.45, 1.000007, 48000, 24000
    {7141, Method::transverseMercator, 148236, {1199, 1249, 751, 2168, 2105}}, // Palestine Grid modified: 31.734096944444445, 35.21208055555556, 1, 170251.555, 126867.909
    {7143, Method::transverseMercator, 106033, {1354, 311, 805, 2236, 1983}}, // InGCS Adams (m): 40.55, -84.95, 1.000034, 240000, 36000
    {7144, Method::transverseMercator, 106017, {1354, 311, 805, 2236, 1983}}, // InGCS Adams (ftUS): 40.55, -84.95, 1.000034, 240000, 36000
    {7145, Method::transverseMercator, 106063, {1364, 309, 797, 2236, 1983}}, // InGCS Allen (m): 40.9, -85.05, 1.000031, 240000, 36000
    {7146, Method::transverseMercator, 106047, {1364, 309, 797, 2236, 1983}}, // InGCS Allen (ftUS): 40.9, -85.05, 1.000031, 240000, 36000
    {7147, Method::transverseMercator, 106096, {1314, 295, 790, 2236, 1983}}, // InGCS Bartholomew (m): 39, -85.85, 1.000026, 240000, 36000
    {7148, Method::transverseMercator, 106077, {1314, 295, 790, 2236, 1983}}, // InGCS Bartholomew (ftUS): 39, -85.85, 1.000026, 240000, 36000
    {7149, Method::transverseMercator, 106128, {1352, 274, 795, 2236, 1983}}, // InGCS Benton (m): 40.45, -87.3, 1.000029, 240000, 36000
    {7150, Method::transverseMercator, 106113, {1352, 274, 795, 2236, 1983}}, // InGCS Benton (ftUS): 40.45, -87.3, 1.000029, 240000, 36000
    {7151, Method::transverseMercator, 106167, {1341, 305, 825, 2236, 1983}}, // InGCS Blackford-Delaware (m): 40.05, -85.4, 1.000038, 240000, 36000
    {7152, Method::transverseMercator, 106141, {1341, 305, 825, 2236, 1983}}, // InGCS Blackford-Delaware (ftUS): 40.05, -85.4, 1.000038, 240000, 36000
    {7153, Method::transverseMercator, 106215, {1326, 288, 815, 2236, 1983}}, // InGCS Boone-Hendricks (m): 39.6, -86.5, 1.000036, 240000, 36000
    {7154, Method::transverseMercator, 106191, {1326, 288, 815, 2236, 1983}}, // InGCS Boone-Hendricks (ftUS): 39.6, -86.5, 1.000036, 240000, 36000
    {7155, Method::transverseMercator, 106254, {1314, 290, 796, 2236, 1983}}, // InGCS Brown (m): 39, -86.3, 1.00003, 240000, 36000
    {7156, Method::transverseMercator, 106237, {1314, 290, 796, 2236, 1983}}, // InGCS Brown (ftUS): 39, -86.3, 1.00003, 240000, 36000
    {7157, Method::transverseMercator, 106285, {1350, 286, 790, 2236, 1983}}, // InGCS Carroll (m): 40.4, -86.65, 1.000026, 240000, 36000
    {7158, Method::transverseMercator, 106269, {1350, 286, 790, 2236, 1983}}, // InGCS Carroll (ftUS): 40.4, -86.65, 1.000026, 240000, 36000
    {7159, Method::transverseMercator, 106313, {1354, 289, 793, 2236, 1983}}, // InGCS Cass (m): 40.55, -86.4, 1.000028, 240000, 36000
    {7160, Method::transverseMercator, 106299, {1354, 289, 793, 2236, 1983}}, // InGCS Cass (ftUS): 40.55, -86.4, 1.000028, 240000, 36000
    {7161, Method::transverseMercator, 106351, {1292, 302, 781, 2236, 1983}}, // InGCS Clark-Floyd-Scott (m): 38.15, -85.6, 1.000021, 240000, 36000
    {7162, Method::transverseMercator, 106325, {1292, 302, 781, 2236, 1983}}, // InGCS Clark-Floyd-Scott (ftUS): 38.15, -85.6, 1.000021, 240000, 36000
    {7163, Method::transverseMercator, 106389, {1317, 276, 787, 2236, 1983}}, // InGCS Clay (m): 39.15, -87.15, 1.000024, 240000, 36000
    {7164, Method::transverseMercator, 106375, {1317, 276, 787, 2236, 1983}}, // InGCS Clay (ftUS): 39.15, -87.15, 1.000024, 240000, 36000
    {7165, Method::transverseMercator, 106416, {1342, 287, 799, 2236, 1983}}, // InGCS Clinton (m): 40.15, -86.6, 1.000032, 240000, 36000
    {7166, Method::transverseMercator, 106401, {1342, 287, 799, 2236, 1983}}, // InGCS Clinton (ftUS): 40.15, -86.6, 1.000032, 240000, 36000
    {7167, Method::transverseMercator, 106459, {1291, 288, 788, 2236, 1983}}, // InGCS Crawford-Lawrence-Orange (m): 38.1, -86.5, 1.000025, 240000, 36000
    {7168, Method::transverseMercator, 106429, {1291, 288, 788, 2236, 1983}}, // InGCS Crawford-Lawrence-Orange (ftUS): 38.1, -86.5, 1.000025, 240000, 36000
    {7169, Method::transverseMercator, 106509, {1299, 277, 777, 2236, 1983}}, // InGCS Daviess-Greene (m): 38.45, -87.1, 1.000018, 240000, 36000
    {7170, Method::transverseMercator, 106487, {1299, 277, 777, 2236, 1983}}, // InGCS Daviess-Greene (ftUS): 38.45, -87.1, 1.000018, 240000, 36000
    {7171, Method::transverseMercator, 106591, {1303, 312, 795, 2236, 1983}}, // InGCS Dearborn-Ohio-Switzerland (m): 38.65, -84.9, 1.000029, 240000, 36000
    {7172, Method::transverseMercator, 106561, {1303, 312, 795, 2236, 1983}}, // InGCS Dearborn-Ohio-Switzerland (ftUS): 38.65, -84.9, 1.000029, 240000, 36000
    {7173, Method::transverseMercator, 106640, {1316, 301, 815, 2236, 1983}}, // InGCS Decatur-Rush (m): 39.1, -85.65, 1.000036, 240000, 36000
    {7174, Method::transverseMercator, 106619, {1316, 301, 815, 2236, 1983}}, // InGCS Decatur-Rush (ftUS): 39.1, -85.65, 1.000036, 240000, 36000
    {7175, Method::transverseMercator, 106546, {1371, 311, 815, 2236, 1983}}, // InGCS DeKalb (m): 41.25, -84.95, 1.000036, 240000, 36000
    {7176, Method::transverseMercator, 106529, {1371, 311, 815, 2236, 1983}}, // InGCS DeKalb (ftUS): 41.25, -84.95, 1.000036, 240000, 36000
    {7177, Method::transverseMercator, 106681, {1293, 282, 780, 2236, 1983}}, // InGCS Dubois-Martin (m): 38.2, -86.95, 1.00002, 240000, 36000
    {7178, Method::transverseMercator, 106659, {1293, 282, 780, 2236, 1983}}, // InGCS Dubois-Martin (ftUS): 38.2, -86.95, 1.00002, 240000, 36000
    {7179, Method::transverseMercator, 106734, {1356, 295, 801, 2236, 1983}}, // InGCS Elkhart-Kosciusko-Wabash (m): 40.65, -85.85, 1.000033, 240000, 36000
    {7180, Method::transverseMercator, 106701, {1356, 295, 801, 2236, 1983}}, // InGCS Elkhart-Kosciusko-Wabash (ftUS): 40.65, -85.85, 1.000033, 240000, 36000
    {7181, Method::transverseMercator, 106794, {1321, 309, 825, 2236, 1983}}, // InGCS Fayette-Franklin-Union (m): 39.25, -85.05, 1.000038, 240000, 36000
    {7182, Method::transverseMercator, 106765, {1321, 309, 825, 2236, 1983}}, // InGCS Fayette-Franklin-Union (ftUS): 39.25, -85.05, 1.000038, 240000, 36000
    {7183, Method::transverseMercator, 106843, {1338, 274, 788, 2236, 1983}}, // InGCS Fountain-Warren (m): 39.95, -87.3, 1.000025, 240000, 36000
    {7184, Method::transverseMercator, 106821, {1338, 274, 788, 2236, 1983}}, // InGCS Fountain-Warren (ftUS): 39.95, -87.3, 1.000025, 240000, 36000
    {7185, Method::transverseMercator, 106896, {1364, 290, 797, 2236, 1983}}, // InGCS Fulton-Marshall-St. Joseph (m): 40.9, -86.3, 1.000031, 240000, 36000
    {7186, Method::transverseMercator, 106863, {1364, 290, 797, 2236, 1983}}, // InGCS Fulton-Marshall-St. Joseph (ftUS): 40.9, -86.3, 1.000031, 240000, 36000
    {7187, Method::transverseMercator, 106943, {1292, 268, 772, 2236, 1983}}, // InGCS Gibson (m): 38.15, -87.65, 1.000013, 240000, 36000
    {7188, Method::transverseMercator, 106927, {1292, 268, 772, 2236, 1983}}, // InGCS Gibson (ftUS): 38.15, -87.65, 1.000013, 240000, 36000
    {7189, Method::transverseMercator, 106973, {1349, 299, 805, 2236, 1983}}, // InGCS Grant (m): 40.35, -85.7, 1.000034, 240000, 36000
    {7190, Method::transverseMercator, 106957, {1349, 299, 805, 2236, 1983}}, // InGCS Grant (ftUS): 40.35, -85.7, 1.000034, 240000, 36000
    {7191, Method::transverseMercator, 107009, {1336, 292, 805, 2236, 1983}}, // InGCS Hamilton-Tipton (m): 39.9, -86, 1.000034, 240000, 36000
    {7192, Method::transverseMercator, 106987, {1336, 292, 805, 2236, 1983}}, // InGCS Hamilton-Tipton (ftUS): 39.9, -86, 1.000034, 240000, 36000
    {7193, Method::transverseMercator, 107051, {1328, 297, 815, 2236, 1983}}, // InGCS Hancock-Madison (m): 39.65, -85.8, 1.000036, 240000, 36000
    {7194, Method::transverseMercator, 107029, {1328, 297, 815, 2236, 1983}}, // InGCS Hancock-Madison (ftUS): 39.65, -85.8, 1.000036, 240000, 36000
    {7195, Method::transverseMercator, 107095, {1287, 291, 792, 2236, 1983}}, // InGCS Harrison-Washington (m): 37.95, -86.15, 1.000027, 240000, 36000
    {7196, Method::transverseMercator, 107071, {1287, 291, 792, 2236, 1983}}, // InGCS Harrison-Washington (ftUS): 37.95, -86.15, 1.000027, 240000, 36000
    {7197, Method::transverseMercator, 107132, {1333, 304, 843, 2236, 1983}}, // InGCS Henry (m): 39.75, -85.45, 1.000043, 240000, 36000
    {7198, Method::transverseMercator, 107117, {1333, 304, 843, 2236, 1983}}, // InGCS Henry (ftUS): 39.75, -85.45, 1.000043, 240000, 36000
    {7199, Method::transverseMercator, 107167, {1349, 291, 797, 2236, 1983}}, // InGCS Howard-Miami (m): 40.35, -86.15, 1.000031, 240000, 36000
    {7200, Method::transverseMercator, 107145, {1349, 291, 797, 2236, 1983}}, // InGCS Howard-Miami (ftUS): 40.35, -86.15, 1.000031, 240000, 36000
    {7201, Method::transverseMercator, 107212, {1356, 303, 805, 2236, 1983}}, // InGCS Huntington-Whitley (m): 40.65, -85.5, 1.000034, 240000, 36000
    {7202, Method::transverseMercator, 107187, {1356, 303, 805, 2236, 1983}}, // InGCS Huntington-Whitley (ftUS): 40.65, -85.5, 1.000034, 240000, 36000
    {7203, Method::transverseMercator, 107252, {1305, 293, 782, 2236, 1983}}, // InGCS Jackson (m): 38.7, -85.95, 1.000022, 240000, 36000
    {7204, Method::transverseMercator, 107235, {1305, 293, 782, 2236, 1983}}, // InGCS Jackson (ftUS): 38.7, -85.95, 1.000022, 240000, 36000
    {7205, Method::transverseMercator, 107288, {1358, 277, 792, 2236, 1983}}, // InGCS Jasper-Porter (m): 40.7, -87.1, 1.000027, 240000, 36000
    {7206, Method::transverseMercator, 107267, {1358, 277, 792, 2236, 1983}}, // InGCS Jasper-Porter (ftUS): 40.7, -87.1, 1.000027, 240000, 36000
    {7207, Method::transverseMercator, 107321, {1347, 310, 825, 2236, 1983}}, // InGCS Jay (m): 40.3, -85, 1.000038, 240000, 36000
    {7208, Method::transverseMercator, 107307, {1347, 310, 825, 2236, 1983}}, // InGCS Jay (ftUS): 40.3, -85, 1.000038, 240000, 36000
    {7209, Method::transverseMercator, 107350, {1301, 306, 793, 2236, 1983}}, // InGCS Jefferson (m): 38.55, -85.35, 1.000028, 240000, 36000
    {7210, Method::transverseMercator, 107333, {1301, 306, 793, 2236, 1983}}, // InGCS Jefferson (ftUS): 38.55, -85.35, 1.000028, 240000, 36000
    {7211, Method::transverseMercator, 107383, {1308, 297, 788, 2236, 1983}}, // InGCS Jennings (m): 38.8, -85.8, 1.000025, 240000, 36000
    {7212, Method::transverseMercator, 107365, {1308, 297, 788, 2236, 1983}}, // InGCS Jennings (ftUS): 38.8, -85.8, 1.000025, 240000, 36000
    {7213, Method::transverseMercator, 107421, {1322, 291, 797, 2236, 1983}}, // InGCS Johnson-Marion (m): 39.3, -86.15, 1.000031, 240000, 36000
    {7214, Method::transverseMercator, 107399, {1322, 291, 797, 2236, 1983}}, // InGCS Johnson-Marion (ftUS): 39.3, -86.15, 1.000031, 240000, 36000
    {7215, Method::transverseMercator, 107457, {1297, 271, 774, 2236, 1983}}, // InGCS Knox (m): 38.4, -87.45, 1.000015, 240000, 36000
    {7216, Method::transverseMercator, 107441, {1297, 271, 774, 2236, 1983}}, // InGCS Knox (ftUS): 38.4, -87.45, 1.000015, 240000, 36000
    {7217, Method::transverseMercator, 107495, {1371, 304, 821, 2236, 1983}}, // InGCS LaGrange-Noble (m): 41.25, -85.45, 1.000037, 240000, 36000
    {7218, Method::transverseMercator, 107471, {1371, 304, 821, 2236, 1983}}, // InGCS LaGrange-Noble (ftUS): 41.25, -85.45, 1.000037, 240000, 36000
    {7219, Method::transverseMercator, 107594, {1358, 272, 790, 2236, 1983}}, // InGCS Lake-Newton (m): 40.7, -87.4, 1.000026, 240000, 36000
    {7220, Method::transverseMercator, 107575, {1358, 272, 790, 2236, 1983}}, // InGCS Lake-Newton (ftUS): 40.7, -87.4, 1.000026, 240000, 36000
    {7221, Method::transverseMercator, 107547, {1364, 284, 792, 2236, 1983}}, // InGCS LaPorte-Pulaski-Starke (m): 40.9, -86.75, 1.000027, 240000, 36000
    {7222, Method::transverseMercator, 107517, {1364, 284, 792, 2236, 1983}}, // InGCS LaPorte-Pulaski-Starke (ftUS): 40.9, -86.75, 1.000027, 240000, 36000
    {7223, Method::transverseMercator, 107633, {1312, 288, 793, 2236, 1983}}, // InGCS Monroe-Morgan (m): 38.95, -86.5, 1.000028, 240000, 36000
    {7224, Method::transverseMercator, 107611, {1312, 288, 793, 2236, 1983}}, // InGCS Monroe-Morgan (ftUS): 38.95, -86.5, 1.000028, 240000, 36000
    {7225, Method::transverseMercator, 107678, {1324, 282, 797, 2236, 1983}}, // InGCS Montgomery-Putnam (m): 39.45, -86.95, 1.000031, 240000, 36000
    {7226, Method::transverseMercator, 107653, {1324, 282, 797, 2236, 1983}}, // InGCS Montgomery-Putnam (ftUS): 39.45, -86.95, 1.000031, 240000, 36000
    {7227, Method::transverseMercator, 107716, {1317, 283, 790, 2236, 1983}}, // InGCS Owen (m): 39.15, -86.9, 1.000026, 240000, 36000
    {7228, Method::transverseMercator, 107701, {1317, 283, 790, 2236, 1983}}, // InGCS Owen (ftUS): 39.15, -86.9, 1.000026, 240000, 36000
    {7229, Method::transverseMercator, 107752, {1326, 273, 782, 2236, 1983}}, // InGCS Parke-Vermillion (m): 39.6, -87.35, 1.000022, 240000, 36000
    {7230, Method::transverseMercator, 107729, {1326, 273, 782, 2236, 1983}}, // InGCS Parke-Vermillion (ftUS): 39.6, -87.35, 1.000022, 240000, 36000
    {7231, Method::transverseMercator, 107788, {1283, 285, 780, 2236, 1983}}, // InGCS Perry (m): 37.8, -86.7, 1.00002, 240000, 36000
    {7232, Method::transverseMercator, 107773, {1283, 285, 780, 2236, 1983}}, // InGCS Perry (ftUS): 37.8, -86.7, 1.00002, 240000, 36000
    {7233, Method::transverseMercator, 107823, {1285, 274, 774, 2236, 1983}}, // InGCS Pike-Warrick (m): 37.85, -87.3, 1.000015, 240000, 36000
    {7234, Method::transverseMercator, 107801, {1285, 274, 774, 2236, 1983}}, // InGCS Pike-Warrick (ftUS): 37.85, -87.3, 1.000015, 240000, 36000
    {7235, Method::transverseMercator, 107859, {1281, 264, 772, 2236, 1983}}, // InGCS Posey (m): 37.75, -87.95, 1.000013, 240000, 36000
    {7236, Method::transverseMercator, 107843, {1281, 264, 772, 2236, 1983}}, // InGCS Posey (ftUS): 37.75, -87.95, 1.000013, 240000, 36000
    {7237, Method::transverseMercator, 107894, {1331, 309, 846, 2236, 1983}}, // InGCS Randolph-Wayne (m): 39.7, -85.05, 1.000044, 240000, 36000
    {7238, Method::transverseMercator, 107873, {1331, 309, 846, 2236, 1983}}, // InGCS Randolph-Wayne (ftUS): 39.7, -85.05, 1.000044, 240000, 36000
    {7239, Method::transverseMercator, 107930, {1311, 307, 825, 2236, 1983}}, // InGCS Ripley (m): 38.9, -85.3, 1.000038, 240000, 36000
    {7240, Method::transverseMercator, 107913, {1311, 307, 825, 2236, 1983}}, // InGCS Ripley (ftUS): 38.9, -85.3, 1.000038, 240000, 36000
    {7241, Method::transverseMercator, 107959, {1322, 294, 796, 2236, 1983}}, // InGCS Shelby (m): 39.3, -85.9, 1.00003, 240000, 36000
    {7242, Method::transverseMercator, 107945, {1322, 294, 796, 2236, 1983}}, // InGCS Shelby (ftUS): 39.3, -85.9, 1.00003, 240000, 36000
    {7243, Method::transverseMercator, 107987, {1281, 279, 773, 2236, 1983}}, // InGCS Spencer (m): 37.75, -87.05, 1.000014, 240000, 36000
    {7244, Method::transverseMercator, 107971, {1281, 279, 773, 2236, 1983}}, // InGCS Spencer (ftUS): 37.75, -87.05, 1.000014, 240000, 36000
    {7245, Method::transverseMercator, 108018, {1377, 310, 840, 2236, 1983}}, // InGCS Steuben (m): 41.5, -85, 1.000041, 240000, 36000
    {7246, Method::transverseMercator, 108001, {1377, 310, 840, 2236, 1983}}, // InGCS Steuben (ftUS): 41.5, -85, 1.000041, 240000, 36000
    {7247, Method::transverseMercator, 108051, {1311, 270, 776, 2236, 1983}}, // InGCS Sullivan (m): 38.9, -87.5, 1.000017, 240000, 36000
    {7248, Method::transverseMercator, 108033, {1311, 270, 776, 2236, 1983}}, // InGCS Sullivan (ftUS): 38.9, -87.5, 1.000017, 240000, 36000
    {7249, Method::transverseMercator, 108092, {1344, 283, 790, 2236, 1983}}, // InGCS Tippecanoe-White (m): 40.2, -86.9, 1.000026, 240000, 36000
    {7250, Method::transverseMercator, 108067, {1344, 283, 790, 2236, 1983}}, // InGCS Tippecanoe-White (ftUS): 40.2, -86.9, 1.000026, 240000, 36000
    {7251, Method::transverseMercator, 108134, {1283, 269, 774, 2236, 1983}}, // InGCS Vanderburgh (m): 37.8, -87.55, 1.000015, 240000, 36000
    {7252, Method::transverseMercator, 108115, {1283, 269, 774, 2236, 1983}}, // InGCS Vanderburgh (ftUS): 37.8, -87.55, 1.000015, 240000, 36000
    {7253, Method::transverseMercator, 108166, {1321, 271, 780, 2236, 1983}}, // InGCS Vigo (m): 39.25, -87.45, 1.00002, 240000, 36000
    {7254, Method::transverseMercator, 108151, {1321, 271, 780, 2236, 1983}}, // InGCS Vigo (ftUS): 39.25, -87.45, 1.00002, 240000, 36000
    {7255, Method::transverseMercator, 108195, {1354, 308, 805, 2236, 1983}}, // InGCS Wells (m): 40.55, -85.25, 1.000034, 240000, 36000
    {7256, Method::transverseMercator, 108179, {1354, 308, 805, 2236, 1983}}, // InGCS Wells (ftUS): 40.55, -85.25, 1.000034, 240000, 36000
    {7378, Method::transverseMercator, 220411, {1496, 224, 853, 2171, 601}}, // WISCRS Ashland County (m): 45.70611111111111, -90.62222222222222, 1.0000495683, 172821.9461, 0.0017
    {7379, Method::transverseMercator, 220393, {1496, 224, 853, 2170, 602}}, // WISCRS Ashland County (ftUS): 45.70611111111111, -90.62222222222222, 1.0000495683, 172821.9459486919, 0.0018288036576073151
    {7380, Method::lambertConic1, 220485, {1515, 214, 802, 2224, 2140}}, // WISCRS Bayfield County (m): 46.66964837722222, -91.15277777777779, 1.0000331195, 228600.4575, 148551.4837
    {7381, Method::lambertConic1, 220463, {1515, 214, 802, 2225, 2139}}, // WISCRS Bayfield County (ftUS): 46.66964837722222, -91.15277777777779, 1.0000331195, 228600.45750571502, 148551.48356616712
    {7382, Method::lambertConic1, 220603, {1501, 196, 829, 2031, 2025}}, // WISCRS Burnett County (m): 45.898714865833334, -92.45777777777778, 1.0000383841, 64008.1276, 59445.9043
    {7383, Method::lambertConic1, 220583, {1501, 196, 829, 2032, 2024}}, // WISCRS Burnett County (ftUS): 45.898714865833334, -92.45777777777778, 1.0000383841, 64008.127711455425, 59445.90419100838
    {7384, Method::transverseMercator, 221015, {1500, 200, 831, 2023, 615}}, // WISCRS Douglas County (m): 45.88333333333333, -91.91666666666667, 1.0000385418, 59131.3183, 0.0041
    {7385, Method::transverseMercator, 220995, {1500, 200, 831, 2022, 614}}, // WISCRS Douglas County (ftUS): 45.88333333333333, -91.91666666666667, 1.0000385418, 59131.31826263652, 0.00396240792481585
    {7386, Method::transverseMercator, 221134, {1484, 261, 859, 2115, 626}}, // WISCRS Florence County (m): 45.43888888888888, -88.14166666666668, 1.0000552095, 133502.6683, 0.0063
    {7387, Method::transverseMercator, 221113, {1484, 261, 859, 2114, 627}}, // WISCRS Florence County (ftUS): 45.43888888888888, -88.14166666666668, 1.0000552095, 133502.66822453644, 0.006400812801625603
    {7388, Method::transverseMercator, 221171, {1442, 253, 867, 2266, 645}}, // WISCRS Forest County (m): 44.00555555555555, -88.63333333333334, 1.0000673004, 275844.5533, 0.0157
    {7389, Method::transverseMercator, 221153, {1442, 253, 867, 2265, 646}}, // WISCRS Forest County (ftUS): 44.00555555555555, -88.63333333333334, 1.0000673004, 275844.5532131064, 0.0158496316992634
    {7390, Method::transverseMercator, 221397, {1483, 231, 868, 2215, 634}}, // WISCRS Iron County (m): 45.43333333333333, -90.25555555555556, 1.0000677153, 220980.4419, 0.0085
    {7391, Method::transverseMercator, 221379, {1483, 231, 868, 2216, 635}}, // WISCRS Iron County (ftUS): 45.43333333333333, -90.25555555555556, 1.0000677153, 220980.4419608839, 0.008534417068834137
    {7392, Method::lambertConic1, 221961, {1495, 240, 870, 2037, 2020}}, // WISCRS Oneida County (m): 45.70422377027778, -89.54444444444444, 1.0000686968, 70104.1401, 57588.0346
    {7393, Method::lambertConic1, 221941, {1495, 240, 870, 2038, 2021}}, // WISCRS Oneida County (ftUS): 45.70422377027778, -89.54444444444444, 1.0000686968, 70104.14020828041, 57588.03474726949
    {7394, Method::transverseMercator, 222124, {1460, 227, 866, 2223, 643}}, // WISCRS Price County (m): 44.55555555555555, -90.4888888888889, 1.0000649554, 227990.8546, 0.0109
    {7395, Method::transverseMercator, 222105, {1460, 227, 866, 2222, 644}}, // WISCRS Price County (ftUS): 44.55555555555555, -90.4888888888889, 1.0000649554, 227990.85445770892, 0.010972821945643892
    {7396, Method::lambertConic1, 222300, {1503, 215, 860, 2212, 2099}}, // WISCRS Sawyer County (m): 45.900099131388885, -91.11666666666666, 1.0000573461, 216713.2336, 120734.1631
    {7397, Method::lambertConic1, 222281, {1503, 215, 860, 2213, 2100}}, // WISCRS Sawyer County (ftUS): 45.900099131388885, -91.11666666666666, 1.0000573461, 216713.23373126745, 120734.16316992634
    {7398, Method::lambertConic1, 222535, {1507, 242, 873, 2120, 2007}}, // WISCRS Vilas County (m): 46.07784409055556, -89.4888888888889, 1.0000730142, 134417.0689, 50337.1092
    {7399, Method::lambertConic1, 222517, {1507, 242, 873, 2119, 2008}}, // WISCRS Vilas County (ftUS): 46.07784409055556, -89.4888888888889, 1.0000730142, 134417.06883413767, 50337.10927101854
    {7424, Method::lambertConic1, 222610, {1505, 205, 849, 2231, 2189}}, // WISCRS Washburn County (m): 45.96121983333334, -91.78333333333333, 1.0000475376, 234086.8682, 188358.6058
    {7425, Method::lambertConic1, 222589, {1505, 205, 849, 2230, 2190}}, // WISCRS Washburn County (ftUS): 45.96121983333334, -91.78333333333333, 1.0000475376, 234086.86817373635, 188358.60594361188
    {7426, Method::transverseMercator, 220446, {1475, 203, 850, 2058, 605}}, // WISCRS Barron County (m): 45.13333333333333, -91.85, 1.0000486665, 93150, 0.0029
    {7427, Method::transverseMercator, 220427, {1475, 203, 850, 2058, 607}}, // WISCRS Barron County (ftUS): 45.13333333333333, -91.85, 1.0000486665, 93150, 0.003048006096012192
    {7428, Method::transverseMercator, 220525, {1414, 263, 780, 1982, 1956}}, // WISCRS Brown County (m): 43, -88, 1.00002, 31600, 4600
    {7429, Method::transverseMercator, 220505, {1414, 263, 780, 1981, 1955}}, // WISCRS Brown County (ftUS): 43, -88, 1.00002, 31599.999898399798, 4599.999898399797
    {7430, Method::transverseMercator, 220564, {1430, 204, 828, 2172, 618}}, // WISCRS Buffalo County (m): 43.481388888888894, -91.79722222222222, 1.0000382778, 175260.3502, 0.0048
    {7431, Method::transverseMercator, 220543, {1430, 204, 828, 2173, 619}}, // WISCRS Buffalo County (ftUS): 43.481388888888894, -91.79722222222222, 1.0000382778, 175260.35021590043, 0.004876809753619507
    {7432, Method::lambertConic1, 220741, {1472, 210, 834, 2028, 1991}}, // WISCRS Chippewa County (m): 44.977856898611115, -91.29444444444444, 1.0000391127, 60045.72, 44091.4346
    {7433, Method::lambertConic1, 220719, {1472, 210, 834, 2029, 1990}}, // WISCRS Chippewa County (ftUS): 44.977856898611115, -91.29444444444444, 1.0000391127, 60045.720091440184, 44091.434493268986
    {7434, Method::transverseMercator, 220779, {1433, 222, 848, 2195, 636}}, // WISCRS Clark County (m): 43.6, -90.70833333333334, 1.0000463003, 199949.1989, 0.0086
    {7435, Method::transverseMercator, 220761, {1433, 222, 848, 2196, 635}}, // WISCRS Clark County (ftUS): 43.6, -90.70833333333334, 1.0000463003, 199949.19898399798, 0.008534417068834137
    {7436, Method::transverseMercator, 220979, {1454, 275, 778, 2153, 603}}, // WISCRS Door County (m): 44.4, -87.27222222222223, 1.0000187521, 158801.1176, 0.0023
    {7437, Method::transverseMercator, 220961, {1454, 275, 778, 2154, 604}}, // WISCRS Door County (ftUS): 44.4, -87.27222222222223, 1.0000187521, 158801.1176022352, 0.0024384048768097536
    {7438, Method::transverseMercator, 221052, {1455, 201, 841, 2010, 606}}, // WISCRS Dunn County (m): 44.40833333333333, -91.89444444444445, 1.0000410324, 51816.104, 0.003
    {7439, Method::transverseMercator, 221033, {1455, 201, 841, 2009, 607}}, // WISCRS Dunn County (ftUS): 44.40833333333333, -91.89444444444445, 1.0000410324, 51816.10393700787, 0.003048006096012192
    {7440, Method::lambertConic1, 221092, {1470, 211, 813, 2096, 2055}}, // WISCRS Eau Claire County (m): 44.87228112638889, -91.28888888888889, 1.000035079, 120091.4402, 91687.9239
    {7441, Method::lambertConic1, 221069, {1470, 211, 813, 2095, 2056}}, // WISCRS Eau Claire County (ftUS): 44.87228112638889, -91.28888888888889, 1.000035079, 120091.44018288037, 91687.92390144781
    {7450, Method::transverseMercator, 221434, {1450, 219, 814, 1975, 1973}}, // WISCRS Jackson County (m): 44.25333512777778, -90.84429651944444, 1.0000353, 27000, 25000
    {7451, Method::transverseMercator, 221413, {1450, 219, 814, 1975, 1972}}, // WISCRS Jackson County (ftUS): 44.25333512777778, -90.84429651944444, 1.0000353, 27000, 24999.999898399798
    {7452, Method::lambertConic1, 221690, {1476, 247, 865, 2193, 2068}}, // WISCRS Langlade County (m): 45.15423710527778, -89.03333333333333, 1.0000627024, 198425.197, 105279.7829
    {7453, Method::lambertConic1, 221669, {1476, 247, 865, 2192, 2067}}, // WISCRS Langlade County (ftUS): 45.15423710527778, -89.03333333333333, 1.0000627024, 198425.1968503937, 105279.78288036576
    {7454, Method::transverseMercator, 221729, {1468, 239, 863, 2090, 624}}, // WISCRS Lincoln County (m): 44.84444444444445, -89.73333333333333, 1.0000599003, 116129.0323, 0.0058
    {7455, Method::transverseMercator, 221709, {1468, 239, 863, 2089, 623}}, // WISCRS Lincoln County (ftUS): 44.84444444444445, -89.73333333333333, 1.0000599003, 116129.03225806452, 0.0057912115824231645
    {7456, Method::lambertConic1, 221767, {1471, 237, 857, 2039, 2014}}, // WISCRS Marathon County (m): 44.90090442361111, -89.77, 1.000053289, 74676.1493, 55049.2669
    {7457, Method::lambertConic1, 221747, {1471, 237, 857, 2040, 2015}}, // WISCRS Marathon County (ftUS): 44.90090442361111, -89.77, 1.000053289, 74676.1493522987, 55049.26695453391
    {7458, Method::transverseMercator, 221806, {1464, 267, 785, 2233, 608}}, // WISCRS Marinette County (m): 44.69166666666666, -87.71111111111111, 1.0000234982, 238658.8794, 0.0032
    {7459, Method::transverseMercator, 221785, {1464, 267, 785, 2234, 607}}, // WISCRS Marinette County (ftUS): 44.69166666666666, -87.71111111111111, 1.0000234982, 238658.8794513589, 0.003048006096012192
    {7460, Method::transverseMercator, 221846, {1465, 258, 817, 2069, 605}}, // WISCRS Menominee County (m): 44.71666666666667, -88.41666666666667, 1.0000362499, 105461.0121, 0.0029
    {7461, Method::transverseMercator, 221825, {1465, 258, 817, 2070, 607}}, // WISCRS Menominee County (ftUS): 44.71666666666667, -88.41666666666667, 1.0000362499, 105461.01214122429, 0.003048006096012192
    {7462, Method::transverseMercator, 221923, {1453, 265, 786, 2178, 609}}, // WISCRS Oconto County (m): 44.39722222222222, -87.90833333333335, 1.0000236869, 182880.3676, 0.0033
    {7463, Method::transverseMercator, 221903, {1453, 265, 786, 2177, 610}}, // WISCRS Oconto County (ftUS): 44.39722222222222, -87.90833333333335, 1.0000236869, 182880.3675895352, 0.0033528067056134113
    {7464, Method::lambertConic1, 222006, {1461, 198, 818, 2163, 2049}}, // WISCRS Pepin and Pierce Counties (m): 44.63614887194444, -92.22777777777777, 1.0000362977, 167640.3354, 86033.0876
    {7465, Method::lambertConic1, 221979, {1461, 198, 818, 2162, 2050}}, // WISCRS Pepin and Pierce Counties (ftUS): 44.63614887194444, -92.22777777777777, 1.0000362977, 167640.33528067055, 86033.08773177546
    {7466, Method::transverseMercator, 222049, {1462, 194, 844, 2130, 625}}, // WISCRS Polk County (m): 44.66111111111111, -92.63333333333334, 1.0000433849, 141732.2823, 0.0059
    {7467, Method::transverseMercator, 222031, {1462, 194, 844, 2129, 623}}, // WISCRS Polk County (ftUS): 44.66111111111111, -92.63333333333334, 1.0000433849, 141732.28224536448, 0.0057912115824231645
    {7468, Method::lambertConic1, 222086, {1457, 241, 837, 2018, 2005}}, // WISCRS Portage County (m): 44.41682397527777, -89.5, 1.000039936, 56388.1128, 50022.1874
    {7469, Method::lambertConic1, 222065, {1457, 241, 837, 2017, 2006}}, // WISCRS Portage County (ftUS): 44.41682397527777, -89.5, 1.000039936, 56388.11277622555, 50022.18745237491
    {7470, Method::transverseMercator, 222231, {1439, 216, 854, 2250, 647}}, // WISCRS Rusk County (m): 43.919444444444444, -91.06666666666666, 1.0000495976, 250546.1013, 0.0234
    {7471, Method::transverseMercator, 222213, {1439, 216, 854, 2251, 648}}, // WISCRS Rusk County (ftUS): 43.919444444444444, -91.06666666666666, 1.0000495976, 250546.10139700279, 0.02346964693929388
    {7472, Method::transverseMercator, 222337, {1443, 255, 800, 2256, 638}}, // WISCRS Shawano County (m): 44.03611111111111, -88.60555555555555, 1.000032144, 262433.3253, 0.0096
    {7473, Method::transverseMercator, 222317, {1443, 255, 800, 2255, 637}}, // WISCRS Shawano County (ftUS): 44.03611111111111, -88.60555555555555, 1.000032144, 262433.3251714503, 0.009448818897637795
    {7474, Method::transverseMercator, 222377, {1443, 194, 826, 2159, 641}}, // WISCRS St. Croix County (m): 44.03611111111111, -92.63333333333334, 1.0000381803, 165506.7302, 0.0103
    {7475, Method::transverseMercator, 222355, {1443, 194, 826, 2158, 642}}, // WISCRS St. Croix County (ftUS): 44.03611111111111, -92.63333333333334, 1.0000381803, 165506.7300990602, 0.010363220726441453
    {7476, Method::lambertConic1, 222417, {1478, 228, 862, 2188, 2073}}, // WISCRS Taylor County (m): 45.177822085833334, -90.48333333333333, 1.0000597566, 187147.5744, 107746.7522
    {7477, Method::lambertConic1, 222397, {1478, 228, 862, 2187, 2072}}, // WISCRS Taylor County (ftUS): 45.177822085833334, -90.48333333333333, 1.0000597566, 187147.5742951486, 107746.7521463043
    {7478, Method::transverseMercator, 222459, {1417, 207, 816, 2253, 615}}, // WISCRS Trempealeau County (m): 43.16111111111111, -91.36666666666666, 1.0000361538, 256946.9138, 0.0041
    {7479, Method::transverseMercator, 222435, {1417, 207, 816, 2254, 614}}, // WISCRS Trempealeau County (ftUS): 43.16111111111111, -91.36666666666666, 1.0000361538, 256946.9138938278, 0.00396240792481585
    {7480, Method::transverseMercator, 222735, {1427, 250, 803, 2180, 630}}, // WISCRS Waupaca County (m): 43.42027777777778, -88.81666666666666, 1.0000333645, 185013.9709, 0.007
    {7481, Method::transverseMercator, 222713, {1427, 250, 803, 2181, 631}}, // WISCRS Waupaca County (ftUS): 43.42027777777778, -88.81666666666666, 1.0000333645, 185013.9709423419, 0.007010414020828042
    {7482, Method::lambertConic1, 222814, {1452, 234, 842, 2207, 2122}}, // WISCRS Wood County (m): 44.36259546944444, -90, 1.0000421209, 208483.6173, 134589.754
    {7483, Method::lambertConic1, 222795, {1452, 234, 842, 2206, 2121}}, // WISCRS Wood County (ftUS): 44.36259546944444, -90, 1.0000421209, 208483.61727203455, 134589.75392430785
    {7484, Method::transverseMercator, 220367, {1426, 234, 819, 2137, 613}}, // WISCRS Adams and Juneau Counties (m): 43.36666666666667, -90, 1.0000365285, 147218.6942, 0.0037
    {7485, Method::transverseMercator, 220339, {1426, 234, 819, 2136, 612}}, // WISCRS Adams and Juneau Counties (ftUS): 43.36666666666667, -90, 1.0000365285, 147218.69413258825, 0.0036576073152146302
    {7486, Method::transverseMercator, 220671, {1407, 257, 794, 2243, 620}}, // WISCRS Calumet, Fond du Lac, Outagamie and Winnebago Counties (m): 42.71944444444445, -88.5, 1.0000286569, 244754.8893, 0.0049
    {7487, Method::transverseMercator, 220621, {1407, 257, 794, 2242, 619}}, // WISCRS Calumet, Fond du Lac, Outagamie and Winnebago Counties (ftUS): 42.71944444444445, -88.5, 1.0000286569, 244754.88920497842, 0.004876809753619507
    {7488, Method::lambertConic1, 220815, {1429, 244, 811, 2165, 2080}}, // WISCRS Columbia County (m): 43.462546645833335, -89.39444444444445, 1.00003498, 169164.3381, 111569.6134
    {7489, Method::lambertConic1, 220795, {1429, 244, 811, 2164, 2081}}, // WISCRS Columbia County (ftUS): 43.462546645833335, -89.39444444444445, 1.00003498, 169164.33802387604, 111569.61351282703
    {7490, Method::lambertConic1, 220853, {1420, 218, 809, 2086, 2011}}, // WISCRS Crawford County (m): 43.200055605, -90.9388888888889, 1.0000349151, 113690.6274, 53703.1201
    {7491, Method::lambertConic1, 220833, {1420, 218, 809, 2085, 2012}}, // WISCRS Crawford County (ftUS): 43.200055605, -90.9388888888889, 1.0000349151, 113690.62738125476, 53703.12024384049
    {7492, Method::lambertConic1, 220889, {1415, 243, 830, 2245, 2133}}, // WISCRS Dane County (m): 43.0695160375, -89.42222222222223, 1.0000384786, 247193.2944, 146591.9896
    {7493, Method::lambertConic1, 220871, {1415, 243, 830, 2244, 2134}}, // WISCRS Dane County (ftUS): 43.0695160375, -89.42222222222223, 1.0000384786, 247193.29438658876, 146591.98963677927
    {7494, Method::transverseMercator, 220934, {1375, 251, 808, 2257, 632}}, // WISCRS Dodge and Jefferson Counties (m): 41.47222222222222, -88.775, 1.0000346418, 263347.7263, 0.0076
    {7495, Method::transverseMercator, 220905, {1375, 251, 808, 2258, 633}}, // WISCRS Dodge and Jefferson Counties (ftUS): 41.47222222222222, -88.775, 1.0000346418, 263347.72639065277, 0.00762001524003048
    {7496, Method::transverseMercator, 221206, {1374, 220, 810, 2238, 639}}, // WISCRS Grant County (m): 41.41111111111111, -90.8, 1.0000349452, 242316.4841, 0.01
    {7497, Method::transverseMercator, 221187, {1374, 220, 810, 2237, 640}}, // WISCRS Grant County (ftUS): 41.41111111111111, -90.8, 1.0000349452, 242316.48402336804, 0.010058420116840234
    {7498, Method::lambertConic1, 221316, {1401, 236, 833, 2167, 1994}}, // WISCRS Green and Lafayette Counties (m): 42.63756227694444, -89.83888888888889, 1.0000390487, 170078.7403, 45830.2947
    {7499, Method::lambertConic1, 221287, {1401, 236, 833, 2166, 1995}}, // WISCRS Green and Lafayette Counties (ftUS): 42.63756227694444, -89.83888888888889, 1.0000390487, 170078.74015748032, 45830.294843789685
    {7500, Method::lambertConic1, 221256, {1437, 245, 806, 2147, 2044}}, // WISCRS Green Lake and Marquette Counties (m): 43.807000117777775, -89.24166666666667, 1.0000344057, 150876.3018, 79170.7795
    {7501, Method::lambertConic1, 221223, {1437, 245, 806, 2146, 2043}}, // WISCRS Green Lake and Marquette Counties (ftUS): 43.807000117777775, -89.24166666666667, 1.0000344057, 150876.3017526035, 79170.77937515875
    {7502, Method::transverseMercator, 221362, {1399, 233, 836, 2083, 616}}, // WISCRS Iowa County (m): 42.538888888888884, -90.16111111111111, 1.0000394961, 113081.0261, 0.0045
    {7503, Method::transverseMercator, 221343, {1399, 233, 836, 2084, 617}}, // WISCRS Iowa County (ftUS): 42.538888888888884, -90.16111111111111, 1.0000394961, 113081.02616205232, 0.004572009144018288
    {7504, Method::transverseMercator, 221498, {1394, 266, 791, 2186, 597}}, // WISCRS Kenosha, Milwaukee, Ozaukee and Racine Counties (m): 42.21666666666667, -87.89444444444445, 1.0000260649, 185928.3728, 0.0009
    {7505, Method::transverseMercator, 221453, {1394, 266, 791, 2185, 598}}, // WISCRS Kenosha, Milwaukee, Ozaukee and Racine Counties (ftUS): 42.21666666666667, -87.89444444444445, 1.0000260649, 185928.37277114554, 0.0009144018288036576
    {7506, Method::transverseMercator, 221584, {1422, 269, 784, 2045, 599}}, // WISCRS Kewaunee, Manitowoc and Sheboygan Counties (m): 43.266666666666666, -87.55, 1.0000233704, 79857.7614, 0.0012
    {7507, Method::transverseMercator, 221541, {1422, 269, 784, 2046, 600}}, // WISCRS Kewaunee, Manitowoc and Sheboygan Counties (ftUS): 43.266666666666666, -87.55, 1.0000233704, 79857.76154432309, 0.0012192024384048768
    {7508, Method::transverseMercator, 221648, {1428, 209, 798, 2111, 609}}, // WISCRS La Crosse County (m): 43.45111111111111, -91.31666666666666, 1.0000319985, 130454.6598, 0.0033
    {7509, Method::transverseMercator, 221625, {1428, 209, 798, 2110, 610}}, // WISCRS La Crosse County (ftUS): 43.45111111111111, -91.31666666666666, 1.0000319985, 130454.65969011938, 0.0033528067056134113
    {7510, Method::lambertConic1, 221885, {1441, 223, 845, 2204, 2103}}, // WISCRS Monroe County (m): 44.00007392861111, -90.64166666666668, 1.0000434122, 204521.209, 121923.9861
    {7511, Method::lambertConic1, 221865, {1441, 223, 845, 2205, 2104}}, // WISCRS Monroe County (ftUS): 44.00007392861111, -90.64166666666668, 1.0000434122, 204521.20904241808, 121923.98618237236
    {7512, Method::lambertConic1, 222160, {1424, 229, 824, 2202, 2117}}, // WISCRS Richland County (m): 43.3223129275, -90.43055555555556, 1.0000375653, 202387.6048, 134255.4253
    {7513, Method::lambertConic1, 222141, {1424, 229, 824, 2201, 2118}}, // WISCRS Richland County (ftUS): 43.3223129275, -90.43055555555556, 1.0000375653, 202387.60477520956, 134255.4254508509
    {7514, Method::transverseMercator, 222196, {1387, 246, 804, 2131, 629}}, // WISCRS Rock County (m): 41.94444444444444, -89.07222222222222, 1.0000337311, 146304.2926, 0.0068
    {7515, Method::transverseMercator, 222177, {1387, 246, 804, 2132, 628}}, // WISCRS Rock County (ftUS): 41.94444444444444, -89.07222222222222, 1.0000337311, 146304.2926085852, 0.006705613411226823
    {7516, Method::transverseMercator, 222265, {1411, 235, 823, 2183, 621}}, // WISCRS Sauk County (m): 42.81944444444445, -89.9, 1.0000373868, 185623.5716, 0.0051
    {7517, Method::transverseMercator, 222247, {1411, 235, 823, 2182, 622}}, // WISCRS Sauk County (ftUS): 42.81944444444445, -89.9, 1.0000373868, 185623.5715519431, 0.005181610363220727
    {7518, Method::lambertConic1, 222500, {1432, 221, 839, 2219, 1997}}, // WISCRS Vernon County (m): 43.57503293972223, -90.78333333333333, 1.0000408158, 222504.4451, 47532.0602
    {7519, Method::lambertConic1, 222481, {1432, 221, 839, 2218, 1998}}, // WISCRS Vernon County (ftUS): 43.57503293972223, -90.78333333333333, 1.0000408158, 222504.44500889, 47532.060350520704
    {7520, Method::lambertConic1, 222571, {1405, 256, 820, 2228, 2078}}, // WISCRS Walworth County (m): 42.66946209694444, -88.54166666666667, 1.0000367192, 232562.8651, 111088.2224
    {7521, Method::lambertConic1, 222551, {1405, 256, 820, 2229, 2079}}, // WISCRS Walworth County (ftUS): 42.66946209694444, -88.54166666666667, 1.0000367192, 232562.86512573026, 111088.22240284481
    {7522, Method::transverseMercator, 222651, {1413, 262, 822, 2098, 606}}, // WISCRS Washington County (m): 42.918055555555554, -88.06388888888888, 1.00003738, 120091.4415, 0.003
    {7523, Method::transverseMercator, 222629, {1413, 262, 822, 2097, 607}}, // WISCRS Washington County (ftUS): 42.918055555555554, -88.06388888888888, 1.00003738, 120091.4414020828, 0.003048006096012192
    {7524, Method::transverseMercator, 222693, {1400, 260, 807, 2209, 611}}, // WISCRS Waukesha County (m): 42.56944444444445, -88.22500000000001, 1.0000346179, 208788.418, 0.0034
    {7525, Method::transverseMercator, 222671, {1400, 260, 807, 2208, 610}}, // WISCRS Waukesha County (ftUS): 42.56944444444445, -88.22500000000001, 1.0000346179, 208788.41788163577, 0.0033528067056134113
    {7526, Method::lambertConic1, 222776, {1447, 245, 835, 2096, 1992}}, // WISCRS Waushara County (m): 44.113944045833335, -89.24166666666667, 1.0000392096, 120091.4402, 45069.7587
    {7527, Method::lambertConic1, 222755, {1447, 245, 835, 2095, 1993}}, // WISCRS Waushara County (ftUS): 44.113944045833335, -89.24166666666667, 1.0000392096, 120091.44018288037, 45069.758801117605
    {7687, Method::transverseMercator, 83972, {595, 1631, 751, 2431, 1965}}, // Kyrgyzstan zone 1: 0, 68.51666666666667, 1, 1300000, 14743.5
    {7688, Method::transverseMercator, 83983, {595, 1639, 751, 2474, 1965}}, // Kyrgyzstan zone 2: 0, 71.51666666666667, 1, 2300000, 14743.5
    {7689, Method::transverseMercator, 83994, {595, 1648, 751, 2506, 1965}}, // Kyrgyzstan zone 3: 0, 74.51666666666667, 1, 3300000, 14743.5
    {7690, Method::transverseMercator, 84005, {595, 1658, 751, 2528, 1965}}, // Kyrgyzstan zone 4: 0, 77.51666666666667, 1, 4300000, 14743.5
    {7691, Method::transverseMercator, 84016, {595, 1667, 751, 2541, 1965}}, // Kyrgyzstan zone 5: 0, 80.51666666666667, 1, 5300000, 14743.5
    {7722, Method::lambertConic2, 190652, {1114, 1665, 1011, 1247, 2522, 2522}}, // Survey of India Lambert: 24, 80, 12.472955, 35.172804444444445, 4000000, 4000000
    {7723, Method::lambertConic2, 7191, {1039, 1671, 1022, 1062, 2391, 2391}}, // Andhra Pradesh NSF LCC: 16.25543298, 80.875, 13.75, 18.75, 1000000, 1000000
    {7724, Method::lambertConic2, 14460, {1162, 1715, 1151, 1172, 2391, 2391}}, // Arunachal Pradesh NSF LCC: 28.00157897, 94.5, 27, 29, 1000000, 1000000
    {7725, Method::lambertConic2, 15909, {1143, 1709, 1123, 1154, 2391, 2391}}, // Assam NSF LCC: 26.00257703, 92.75, 24.666666666666668, 27.333333333333332, 1000000, 1000000
    {7726, Method::lambertConic2, 23481, {1141, 1685, 1122, 1152, 2391, 2391}}, // Bihar NSF LCC: 25.87725247, 85.875, 24.625, 27.125, 1000000, 1000000
    {7727, Method::lambertConic2, 40476, {1169, 1656, 1165, 1171, 2391, 2391}}, // Delhi NSF LCC: 28.62510126, 77, 28.375, 28.875, 1000000, 1000000
    {7728, Method::lambertConic2, 66029, {1101, 1638, 1083, 1113, 2391, 2391}}, // Gujarat NSF LCC: 22.37807121, 71.375, 20.791666666666668, 23.958333333333332, 1000000, 1000000
    {7729, Method::lambertConic2, 67414, {1174, 1652, 1163, 1188, 2391, 2391}}, // Haryana NSF LCC: 29.25226266, 76, 28.083333333333332, 30.416666666666668, 1000000, 1000000
    {7730, Method::lambertConic2, 67793, {1201, 1657, 1192, 1212, 2391, 2391}}, // Himachal Pradesh NSF LCC: 31.75183497, 77.375, 30.75, 32.75, 1000000, 1000000
    {7731, Method::lambertConic2, 77734, {1240, 1654, 1216, 1263, 2391, 2391}}, // Jammu and Kashmir NSF LCC: 34.75570874, 76.5, 33.083333333333336, 36.416666666666664, 1000000, 1000000
    {7732, Method::lambertConic2, 78916, {1111, 1684, 1103, 1124, 2391, 2391}}, // Jharkhand NSF LCC: 23.62652682, 85.625, 22.541666666666668, 24.708333333333332, 1000000, 1000000
    {7733, Method::lambertConic2, 91061, {1115, 1660, 1097, 1142, 2391, 2391}}, // Madhya Pradesh NSF LCC: 24.00529821, 78.375, 22, 26, 1000000, 1000000
    {7734, Method::lambertConic2, 91192, {1064, 1655, 1042, 1086, 2391, 2391}}, // Maharashtra NSF LCC: 18.88015774, 76.75, 16.625, 21.125, 1000000, 1000000
    {7735, Method::lambertConic2, 92060, {1126, 1713, 1116, 1136, 2391, 2391}}, // Manipur NSF LCC: 24.75060911, 94, 24.083333333333332, 25.416666666666668, 1000000, 1000000
    {7736, Method::lambertConic2, 93452, {1138, 1706, 1132, 1144, 2391, 2391}}, // Meghalaya NSF LCC: 25.62524747, 91.375, 25.208333333333332, 26.041666666666668, 1000000, 1000000
    {7737, Method::lambertConic2, 132656, {1146, 1714, 1133, 1149, 2391, 2391}}, // Nagaland NSF LCC: 26.12581974, 94.375, 25.375, 26.875, 1000000, 1000000
    {7738, Method::lambertConic2, 139606, {1139, 1712, 1107, 1164, 2391, 2391}}, // Northeast India NSF LCC: 25.63452135, 93.5, 23.041666666666668, 28.208333333333332, 1000000, 1000000
    {7739, Method::lambertConic2, 145805, {1077, 1681, 1061, 1095, 2391, 2391}}, // Orissa NSF LCC: 20.25305174, 84.375, 18.583333333333332, 21.916666666666668, 1000000, 1000000
    {7740, Method::lambertConic2, 167013, {1194, 1651, 1182, 1205, 2391, 2391}}, // Punjab NSF LCC: 31.00178226, 75.375, 30, 32, 1000000, 1000000
    {7741, Method::lambertConic2, 171842, {1150, 1646, 1117, 1177, 2391, 2391}}, // Rajasthan NSF LCC: 26.88505546, 73.875, 24.291666666666668, 29.458333333333332, 1000000, 1000000
    {7742, Method::lambertConic2, 207427, {1153, 1671, 1128, 1176, 2391, 2391}}, // Uttar Pradesh NSF LCC: 27.13270823, 80.875, 24.875, 29.375, 1000000, 1000000
    {7743, Method::lambertConic2, 207456, {1183, 1663, 1172, 1193, 2391, 2391}}, // Uttaranchal NSF LCC: 30.0017132, 79.375, 29, 31, 1000000, 1000000
    {7744, Method::transverseMercator, 7157, {991, 1711, 718, 2391, 2391}}, // Andaman and Nicobar NSF TM: 10.25, 93.25, 0.9999428, 1000000, 1000000
    {7745, Method::transverseMercator, 32436, {1084, 1676, 689, 2391, 2391}}, // Chhattisgarh NSF TM: 21, 82.25, 0.9998332, 1000000, 1000000
    {7746, Method::transverseMercator, 64525, {1032, 1647, 736, 2391, 2391}}, // Goa NSF TM: 15.375, 74, 0.9999913, 1000000, 1000000
    {7747, Method::transverseMercator, 80879, {1031, 1653, 686, 2391, 2391}}, // Karnataka NSF TM: 15.125, 76.375, 0.9998012, 1000000, 1000000
    {7748, Method::transverseMercator, 81632, {997, 1652, 706, 2391, 2391}}, // Kerala NSF TM: 10.5, 76, 0.9999177, 1000000, 1000000
    {7749, Method::transverseMercator, 84900, {989, 1642, 724, 2391, 2391}}, // Lakshadweep NSF TM: 10, 73.125, 0.9999536, 1000000, 1000000
    {7750, Method::transverseMercator, 95679, {1108, 1709, 732, 2391, 2391}}, // Mizoram NSF TM: 23.125, 92.75, 0.9999821, 1000000, 1000000
    {7751, Method::transverseMercator, 185729, {1158, 1688, 737, 2391, 2391}}, // Sikkim NSF TM: 27.625, 88.5, 0.9999926, 1000000, 1000000
    {7752, Method::transverseMercator, 193201, {998, 1660, 684, 2391, 2391}}, // Tamil Nadu NSF TM: 10.875, 78.375, 0.9997942, 1000000, 1000000
    {7753, Method::transverseMercator, 195608, {1112, 1708, 733, 2391, 2391}}, // Tripura NSF TM: 23.75, 91.75, 0.9999822, 1000000, 1000000
    {7754, Method::transverseMercator, 223518, {1119, 1687, 693, 2391, 2391}}, // West Bengal NSF TM: 24.375, 87.875, 0.9998584, 1000000, 1000000
    {7802, Method::lambertConic2, 28714, {1404, 1137, 1389, 1425, 2308, 2535}}, // Cadastral Coordinate System 2005: 42.66787568333333, 25.5, 42, 43.333333333333336, 500000, 4725824.3591
    {7818, Method::transverseMercator, 156411, {649, 1110, 751, 2431, 595}}, // CS63 zone X1: 0.08333333333333333, 23.5, 1, 1300000, 0
    {7819, Method::transverseMercator, 156429, {649, 1148, 751, 2474, 595}}, // CS63 zone X2: 0.08333333333333333, 26.5, 1, 2300000, 0
    {7820, Method::transverseMercator, 156447, {649, 1178, 751, 2506, 595}}, // CS63 zone X3: 0.08333333333333333, 29.5, 1, 3300000, 0
    {7821, Method::transverseMercator, 156465, {649, 1210, 751, 2528, 595}}, // CS63 zone X4: 0.08333333333333333, 32.5, 1, 4300000, 0
    {7822, Method::transverseMercator, 156483, {649, 1254, 751, 2541, 595}}, // CS63 zone X5: 0.08333333333333333, 35.5, 1, 5300000, 0
    {7823, Method::transverseMercator, 156501, {649, 1300, 751, 2559, 595}}, // CS63 zone X6: 0.08333333333333333, 38.5, 1, 6300000, 0
    {7824, Method::transverseMercator, 156519, {649, 1377, 751, 2571, 595}}, // CS63 zone X7: 0.08333333333333333, 41.5, 1, 7300000, 0
    {7875, Method::transverseMercator, 189672, {551, 567, 751, 2275, 2461}}, // St. Helena Local Grid 1971: -15.966666666666667, -5.716666666666667, 1, 300000, 2000000
    {7876, Method::transverseMercator, 189650, {551, 567, 751, 2274, 2464}}, // St. Helena Local Grid (Tritan): -15.966666666666667, -5.716666666666667, 1, 299483.737, 2000527.879
    {7993, Method::transverseMercator, 6368, {595, 1788, 759, 2003, 2524}}, // Albany Grid 2020: 0, 117.88333333333334, 1.0000044, 50000, 4100000
    {7994, Method::transverseMercator, 19804, {595, 1779, 755, 2027, 2488}}, // Barrow Island Grid 2020: 0, 115.25, 1.0000022, 60000, 2700000
    {7995, Method::transverseMercator, 25586, {595, 1796, 757, 2003, 2474}}, // Broome Grid 2020: 0, 122.33333333333333, 1.00000298, 50000, 2300000
    {7996, Method::transverseMercator, 26026, {595, 1781, 744, 2003, 2522}}, // Busselton Coastal Grid: 0, 115.43333333333334, 0.99999592, 50000, 4000000
    {7997, Method::transverseMercator, 31623, {595, 1770, 746, 2003, 2502}}, // Carnarvon Grid 2020: 0, 113.66666666666667, 0.99999796, 50000, 3050000
    {7998, Method::transverseMercator, 33471, {595, 1752, 789, 2003, 2435}}, // Christmas Island Grid 2020: 0, 105.625, 1.00002514, 50000, 1400000
    {7999, Method::transverseMercator, 34058, {595, 1718, 740, 2003, 2447}}, // Cocos Island Grid 2020: 0, 96.875, 0.99999387, 50000, 1600000
    {8000, Method::transverseMercator, 34086, {595, 1784, 779, 1988, 2524}}, // Collie Grid 2020: 0, 115.93333333333334, 1.000019, 40000, 4100000
    {8001, Method::transverseMercator, 47526, {595, 1795, 763, 2003, 2523}}, // Esperance Grid 2020: 0, 121.88333333333334, 1.0000055, 50000, 4050000
    {8002, Method::transverseMercator, 50398, {595, 1772, 756, 2003, 2494}}, // Exmouth Grid 2020: 0, 114.06666666666666, 1.00000236, 50000, 2750000
    {8003, Method::transverseMercator, 63913, {595, 1775, 767, 2003, 2507}}, // Geraldton Coastal Grid: 0, 114.58333333333333, 1.00000628, 50000, 3450000
    {8004, Method::transverseMercator, 64551, {595, 1794, 852, 2027, 2516}}, // Goldfields Grid 2020: 0, 121.5, 1.00004949, 60000, 3800000
    {8005, Method::transverseMercator, 79066, {595, 1776, 758, 2003, 2512}}, // Jurien Coastal Grid: 0, 114.98333333333333, 1.00000314, 50000, 3650000
    {8006, Method::transverseMercator, 79469, {595, 1774, 773, 2013, 2513}}, // Kalbarri Grid 2020: 0, 114.31527777777778, 1.000014, 55000, 3700000
    {8007, Method::transverseMercator, 80891, {595, 1786, 748, 2003, 2484}}, // Karratha Grid 2020: 0, 116.93333333333334, 0.9999989, 50000, 2550000
    {8008, Method::transverseMercator, 83480, {595, 1806, 775, 2003, 2467}}, // Kununurra Grid 2020: 0, 128.75, 1.0000165, 50000, 2100000
    {8009, Method::transverseMercator, 84924, {595, 1780, 753, 2003, 2515}}, // Lancelin Coastal Grid: 0, 115.36666666666666, 1.00000157, 50000, 3750000
    {8010, Method::transverseMercator, 92665, {595, 1778, 763, 2003, 2523}}, // Margaret River Coastal Grid: 0, 115.16666666666667, 1.0000055, 50000, 4050000
    {8011, Method::transverseMercator, 149464, {595, 1783, 749, 2003, 2518}}, // Perth Coastal Grid: 0, 115.81666666666666, 0.99999906, 50000, 3900000
    {8012, Method::transverseMercator, 150853, {595, 1790, 752, 2003, 2478}}, // Port Hedland Grid 2020: 0, 118.6, 1.00000135, 50000, 2500000
    {8033, Method::transverseMercator, 191616, {595, 426, 673, 2310, 595}}, // TM Zone 20N (US survey feet): 0, -63, 0.9996, 500000.0001016002, 0
    {8034, Method::transverseMercator, 191635, {595, 436, 673, 2310, 595}}, // TM Zone 21N (US survey feet): 0, -57, 0.9996, 500000.0001016002, 0
    {8040, Method::cassini, 66306, {1536, 1202, 595, 595}}, // Gusterberg Grid: 48.038463888888884, 31.804180555555558, 0, 0
    {8041, Method::cassini, 189884, {1537, 1231, 595, 595}}, // St. Stephen Grid: 48.208761111111116, 34.04092222222222, 0, 0
    {8061, Method::hotineB, 150154, {1208, 130, 1473, 1473, 883, 2000, 2240}}, // Pima County zone 1 East (ft): 32.25, -111.4, 45, 45, 1.00011, 48768, 243840
    {8062, Method::transverseMercator, 150172, {1196, 126, 879, 2316, 2278}}, // Pima County zone 2 Central (ft): 31.25, -112.16666666666667, 1.00009, 548640, 304800
    {8063, Method::transverseMercator, 150190, {1197, 123, 858, 2175, 595}}, // Pima County zone 3 West (ft): 31.5, -113.16666666666667, 1.000055, 182880, 0
    {8064, Method::lambertConic1, 150208, {1189, 133, 685, 1960, 22}}, // Pima County zone 4 Mt. Lemmon (ft): 30.5, -110.75, 0.9998, 9144, -188976
    {8080, Method::transverseMercator, 90343, {595, 428, 700, 2614, 595}}, // MTM Nova Scotia 2010 zone 4: 0, -61.5, 0.9999, 24500000, 0
    {8081, Method::transverseMercator, 90359, {595, 423, 700, 2616, 595}}, // MTM Nova Scotia 2010 zone 5: 0, -64.5, 0.9999, 25500000, 0
    {8087, Method::lambertConic2, 71532, {1623, 545, 1621, 1626, 2488, 2275}}, // Iceland Lambert 2016: 65, -19, 64.25, 65.75, 2700000, 300000
    {8273, Method::transverseMercator, 144213, {1431, 110, 889, 2052, 595}}, // Oregon Burns-Harper zone (meters): 43.5, -117.66666666666667, 1.00014, 90000, 0
    {8274, Method::transverseMercator, 144189, {1431, 110, 889, 2053, 595}}, // Oregon Burns-Harper zone (International feet): 43.5, -117.66666666666667, 1.00014, 90000.00001488, 0
    {8275, Method::transverseMercator, 144275, {1431, 104, 905, 1970, 595}}, // Oregon Canyon City-Burns zone (meters): 43.5, -119, 1.00022, 20000, 0
    {8276, Method::transverseMercator, 144248, {1431, 104, 905, 1969, 595}}, // Oregon Canyon City-Burns zone (International feet): 43.5, -119, 1.00022, 19999.99999992, 0
    {8277, Method::lambertConic1, 144376, {1490, 81, 847, 1978, 1970}}, // Oregon Coast Range North zone (meters): 45.583333333333336, -123.41666666666667, 1.000045, 30000, 20000
    {8278, Method::lambertConic1, 144354, {1490, 81, 847, 1979, 1969}}, // Oregon Coast Range North zone (International feet): 45.583333333333336, -123.41666666666667, 1.000045, 30000.00001512, 19999.99999992
    {8279, Method::transverseMercator, 144603, {1449, 102, 885, 1970, 595}}, // Oregon Dayville-Prairie City zone (meters): 44.25, -119.63333333333334, 1.00012, 20000, 0
    {8280, Method::transverseMercator, 144573, {1449, 102, 885, 1969, 595}}, // Oregon Dayville-Prairie City zone (International feet): 44.25, -119.63333333333334, 1.00012, 19999.99999992, 0
    {8281, Method::transverseMercator, 144650, {1382, 106, 901, 2048, 595}}, // Oregon Denio-Burns zone (meters): 41.75, -118.41666666666667, 1.00019, 80000, 0
    {8282, Method::transverseMercator, 144626, {1382, 106, 901, 2047, 595}}, // Oregon Denio-Burns zone (International feet): 41.75, -118.41666666666667, 1.00019, 79999.99999968, 0
    {8283, Method::lambertConic1, 144882, {1480, 113, 876, 1988, 2035}}, // Oregon Halfway zone (meters): 45.25, -117.25, 1.000085, 40000, 70000
    {8284, Method::lambertConic1, 144862, {1480, 113, 876, 1987, 2036}}, // Oregon Halfway zone (International feet): 45.25, -117.25, 1.000085, 39999.99999984, 70000.00001496
    {8285, Method::lambertConic1, 144970, {1389, 91, 838, 2027, 26}}, // Oregon Medford-Diamond Lake zone (meters): 42, -122.25, 1.00004, 60000, -60000
    {8286, Method::lambertConic1, 144940, {1389, 91, 838, 2026, 27}}, // Oregon Medford-Diamond Lake zone (International feet): 42, -122.25, 1.00004, 59999.99999976, -59999.99999976
    {8287, Method::lambertConic1, 145014, {1521, 99, 665, 1978, 2269}}, // Oregon Mitchell zone (meters): 47, -120.25, 0.99927, 30000, 290000
    {8288, Method::lambertConic1, 144993, {1521, 99, 665, 1979, 2270}}, // Oregon Mitchell zone (International feet): 47, -120.25, 0.99927, 30000.00001512, 290000.00001408
    {8289, Method::lambertConic1, 145046, {1508, 97, 751, 2064, 2126}}, // Oregon North Central zone (meters): 46.166666666666664, -120.5, 1, 100000, 140000
    {8290, Method::lambertConic1, 145028, {1508, 97, 751, 2063, 2125}}, // Oregon North Central zone (International feet): 46.166666666666664, -120.5, 1, 99999.9999996, 139999.99999944
    {8291, Method::lambertConic1, 145083, {1431, 97, 864, 1988, 24}}, // Oregon Ochoco Summit zone (meters): 43.5, -120.5, 1.00006, 40000, -80000
    {8292, Method::lambertConic1, 145057, {1431, 97, 864, 1987, 25}}, // Oregon Ochoco Summit zone (International feet): 43.5, -120.5, 1.00006, 39999.99999984, -79999.99999968
    {8293, Method::transverseMercator, 145153, {1382, 111, 899, 2035, 595}}, // Oregon Owyhee zone (meters): 41.75, -117.58333333333333, 1.00018, 70000, 0
    {8294, Method::transverseMercator, 145133, {1382, 111, 899, 2036, 595}}, // Oregon Owyhee zone (International feet): 41.75, -117.58333333333333, 1.00018, 70000.00001496, 0
    {8295, Method::lambertConic1, 145274, {1508, 104, 788, 2003, 2108}}, // Oregon Pilot Rock-Ukiah zone (meters): 46.166666666666664, -119, 1.000025, 50000, 130000
    {8296, Method::lambertConic1, 145246, {1508, 104, 788, 2004, 2109}}, // Oregon Pilot Rock-Ukiah zone (International feet): 46.166666666666664, -119, 1.000025, 50000.00001504, 130000.00001472
    {8297, Method::lambertConic1, 145355, {1440, 108, 897, 2027, 595}}, // Oregon Prairie City-Brogan zone (meters): 44, -118, 1.00017, 60000, 0
    {8298, Method::lambertConic1, 145326, {1440, 108, 897, 2026, 595}}, // Oregon Prairie City-Brogan zone (International feet): 44, -118, 1.00017, 59999.99999976, 0
    {8299, Method::transverseMercator, 145405, {1382, 98, 904, 2035, 595}}, // Oregon Riley-Lakeview zone (meters): 41.75, -120.33333333333333, 1.000215, 70000, 0
    {8300, Method::transverseMercator, 145377, {1382, 98, 904, 2036, 595}}, // Oregon Riley-Lakeview zone (International feet): 41.75, -120.33333333333333, 1.000215, 70000.00001496, 0
    {8301, Method::lambertConic1, 145521, {1397, 87, 892, 1961, 2027}}, // Oregon Siskiyou Pass zone (meters): 42.5, -122.58333333333333, 1.00015, 10000, 60000
    {8302, Method::lambertConic1, 145496, {1397, 87, 892, 1962, 2026}}, // Oregon Siskiyou Pass zone (International feet): 42.5, -122.58333333333333, 1.00015, 10000.0000152, 59999.99999976
    {8303, Method::lambertConic1, 145562, {1480, 104, 889, 1978, 2052}}, // Oregon Ukiah-Fox zone (meters): 45.25, -119, 1.00014, 30000, 90000
    {8304, Method::lambertConic1, 145539, {1480, 104, 889, 1979, 2053}}, // Oregon Ukiah-Fox zone (International feet): 45.25, -119, 1.00014, 30000.00001512, 90000.00001488
    {8305, Method::transverseMercator, 145598, {1480, 112, 902, 2027, 595}}, // Oregon Wallowa zone (meters): 45.25, -117.5, 1.000195, 60000, 0
    {8306, Method::transverseMercator, 145578, {1480, 112, 902, 2026, 595}}, // Oregon Wallowa zone (International feet): 45.25, -117.5, 1.000195, 59999.99999976, 0
    {8307, Method::lambertConic1, 145637, {1397, 100, 908, 1988, 2027}}, // Oregon Warner Highway zone (meters): 42.5, -120, 1.000245, 40000, 60000
    {8308, Method::lambertConic1, 145611, {1397, 100, 908, 1987, 2026}}, // Oregon Warner Highway zone (International feet): 42.5, -120, 1.000245, 39999.99999984, 59999.99999976
    {8309, Method::transverseMercator, 145681, {1414, 92, 906, 1970, 595}}, // Oregon Willamette Pass zone (meters): 43, -122, 1.000223, 20000, 0
    {8310, Method::transverseMercator, 145656, {1414, 92, 906, 1969, 595}}, // Oregon Willamette Pass zone (International feet): 43, -122, 1.000223, 19999.99999992, 0
    {8373, Method::transverseMercator, 129925, {1261, 120, 881, 2064, 2198}}, // NCRS Las Vegas zone (m): 36.25, -114.96666666666667, 1.0001, 100000, 200000
    {8374, Method::transverseMercator, 129907, {1261, 120, 881, 2062, 2199}}, // NCRS Las Vegas zone (ftUS): 36.25, -114.96666666666667, 1.0001, 99999.99998983998, 200000.00001016003
    {8375, Method::transverseMercator, 129879, {1261, 120, 888, 2275, 2294}}, // NCRS Las Vegas high elevation zone (m): 36.25, -114.96666666666667, 1.000135, 300000, 400000
    {8376, Method::transverseMercator, 129849, {1261, 120, 888, 2275, 2292}}, // NCRS Las Vegas high elevation zone (ftUS): 36.25, -114.96666666666667, 1.000135, 300000, 399999.99998983997
    {8389, Method::transverseMercator, 55509, {595, 1833, 711, 2275, 2461}}, // WEIPA94: 0, 141, 0.999929, 300000, 2000000
    {8432, Method::transverseMercator, 90765, {1098, 1769, 751, 1970, 1970}}, // Macau Grid: 22.212397222222222, 113.53646944444445, 1, 20000, 20000
    {8440, Method::laborde, 84760, {547, 1512, 1065, 669, 2294, 2347}}, // Laborde Grid (Greenwich): -18.9, 46.43722916666666, 18.9, 0.9995, 400000, 800000
    {8458, Method::transverseMercator, 80135, {1279, 152, 895, 2304, 595}}, // Kansas regional zone 1 Goodland (ftUS): 37.5, -101.6, 1.000156, 457200.9144018288, 0
    {8459, Method::transverseMercator, 80401, {1279, 155, 887, 2344, 595}}, // Kansas regional zone 2 Colby (ftUS): 37.5, -100.95, 1.000134, 762001.524003048, 0
    {8490, Method::transverseMercator, 80445, {1279, 158, 884, 2404, 595}}, // Kansas regional zone 3 Oberlin (ftUS): 37.5, -100.35, 1.000116, 1066802.1336042671, 0
    {8491, Method::transverseMercator, 80468, {1279, 163, 875, 2434, 595}}, // Kansas regional zone 4 Hays (ftUS): 37.5, -99.45, 1.000082, 1371602.7432054863, 0
    {8492, Method::transverseMercator, 80490, {1279, 166, 874, 2450, 595}}, // Kansas regional zone 5 Great Bend (ftUS): 37.5, -98.66666666666667, 1.000078, 1676403.3528067055, 0
    {8493, Method::transverseMercator, 80515, {1279, 170, 869, 2459, 595}}, // Kansas regional zone 6 Beliot (ftUS): 37.5, -98.15, 1.000068, 1981203.9624079247, 0
    {8494, Method::transverseMercator, 80537, {1279, 173, 851, 2473, 595}}, // Kansas regional zone 7 Salina (ftUS): 37.5, -97.33333333333333, 1.000049, 2286004.572009144, 0
    {8495, Method::lambertConic1, 80557, {1319, 174, 846, 2485, 2176}}, // Kansas regional zone 8 Manhattan (ftUS): 39.166666666666664, -96.5, 1.000044, 2590805.181610363, 182880.3657607315
    {8498, Method::lambertConic1, 80581, {1300, 174, 855, 2496, 2054}}, // Kansas regional zone 9 Emporia (ftUS): 38.5, -96.5, 1.00005, 2895605.7912115823, 91440.18288036576
    {8499, Method::lambertConic1, 80158, {1327, 177, 838, 2504, 2211}}, // Kansas regional zone 10 Atchison (ftUS): 39.63333333333333, -95.75, 1.00004, 3200406.4008128014, 213360.42672085343
    {8500, Method::lambertConic1, 80181, {1316, 179, 801, 2511, 2176}}, // Kansas regional zone 11 Kansas City (ftUS): 39.1, -95.25, 1.000033, 3505207.0104140206, 182880.3657607315
    {8501, Method::transverseMercator, 80205, {1267, 154, 889, 2517, 595}}, // Kansas regional zone 12 Ulysses (ftUS): 36.75, -101.41666666666667, 1.00014, 3810007.62001524, 0
    {8502, Method::transverseMercator, 80230, {1267, 157, 882, 2525, 595}}, // Kansas regional zone 13 Garden City (ftUS): 36.75, -100.4, 1.000109, 4114808.2296164595, 0
    {8503, Method::transverseMercator, 80255, {1267, 161, 880, 2530, 595}}, // Kansas regional zone 14 Dodge City (ftUS): 36.75, -99.66666666666667, 1.000097, 4419608.839217679, 0
    {8504, Method::transverseMercator, 80281, {1267, 164, 878, 2534, 595}}, // Kansas regional zone 15 Larned (ftUS): 36.75, -99.2, 1.000087, 4724409.448818898, 0
    {8505, Method::transverseMercator, 80304, {1267, 167, 871, 2539, 595}}, // Kansas regional zone 16 Pratt (ftUS): 36.75, -98.55, 1.000069, 5029210.058420117, 0
    {8506, Method::lambertConic1, 80327, {1282, 172, 861, 2542, 2102}}, // Kansas regional zone 17 Wichita (ftUS): 37.766666666666666, -97.5, 1.000059, 5334010.668021336, 121920.24384048767
    {8507, Method::lambertConic1, 80350, {1272, 172, 858, 2549, 2030}}, // Kansas regional zone 18 Arkansas City (ftUS): 37.18333333333333, -97.5, 1.000055, 5638811.277622555, 60960.12192024384
    {8515, Method::transverseMercator, 80376, {1267, 176, 805, 2552, 595}}, // Kansas regional zone 19 Coffeyville (ftUS): 36.75, -95.96666666666667, 1.000034, 5943611.887223775, 0
    {8516, Method::transverseMercator, 80420, {1267, 180, 797, 2558, 595}}, // Kansas regional zone 20 Pittsburg (ftUS): 36.75, -95.08333333333333, 1.000031, 6248412.496824994, 0
    {8825, Method::transverseMercator, 102084, {1389, 121, 673, 2478, 2425}}, // Idaho Transverse Mercator: 42, -114, 0.9996, 2500000, 1200000
    {8854, Method::equalEarth, 215223, {595, 595, 595}}, // Equal Earth Greenwich: 0, 0, 0
    {8855, Method::equalEarth, 215177, {234, 595, 595}}, // Equal Earth Americas: -90, 0, 0
    {8856, Method::equalEarth, 215197, {1843, 595, 595}}, // Equal Earth Asia-Pacific: 150, 0, 0
    {9058, Method::transverseMercator, 209035, {595, 1740, 700, 2308, 595}}, // Vietnam TM-3 103-00: 0, 103, 0.9999, 500000, 0
    {9190, Method::albers, 215579, {498, 1907, 524, 446, 595, 595}}, // NIWA Albers: -40, 175, -30, -50, 0, 0
    {9192, Method::transverseMercator, 209051, {595, 1747, 700, 2308, 595}}, // Vietnam TM-3 104-00: 0, 104, 0.9999, 500000, 0
    {9193, Method::transverseMercator, 209067, {595, 1748, 700, 2308, 595}}, // Vietnam TM-3 104-30: 0, 104.5, 0.9999, 500000, 0
    {9194, Method::transverseMercator, 209083, {595, 1749, 700, 2308, 595}}, // Vietnam TM-3 104-45: 0, 104.75, 0.9999, 500000, 0
    {9195, Method::transverseMercator, 209099, {595, 1751, 700, 2308, 595}}, // Vietnam TM-3 105-30: 0, 105.5, 0.9999, 500000, 0
    {9196, Method::transverseMercator, 209115, {595, 1753, 700, 2308, 595}}, // Vietnam TM-3 105-45: 0, 105.75, 0.9999, 500000, 0
    {9197, Method::transverseMercator, 209131, {595, 1754, 700, 2308, 595}}, // Vietnam TM-3 106-00: 0, 106, 0.9999, 500000, 0
    {9198, Method::transverseMercator, 209147, {595, 1755, 700, 2308, 595}}, // Vietnam TM-3 106-15: 0, 106.25, 0.9999, 500000, 0
    {9199, Method::transverseMercator, 209163, {595, 1756, 700, 2308, 595}}, // Vietnam TM-3 106-30: 0, 106.5, 0.9999, 500000, 0
    {9200, Method::transverseMercator, 209179, {595, 1757, 700, 2308, 595}}, // Vietnam TM-3 107-00: 0, 107, 0.9999, 500000, 0
    {9201, Method::transverseMercator, 209195, {595, 1758, 700, 2308, 595}}, // Vietnam TM-3 107-15: 0, 107.25, 0.9999, 500000, 0
    {9202, Method::transverseMercator, 209211, {595, 1759, 700, 2308, 595}}, // Vietnam TM-3 107-30: 0, 107.5, 0.9999, 500000, 0
    {9203, Method::transverseMercator, 209243, {595, 1762, 700, 2308, 595}}, // Vietnam TM-3 108-15: 0, 108.25, 0.9999, 500000, 0
    {9204, Method::transverseMercator, 209259, {595, 1763, 700, 2308, 595}}, // Vietnam TM-3 108-30: 0, 108.5, 0.9999, 500000, 0
    {9219, Method::albers, 186763, {524, 1130, 537, 508, 2435, 2431}}, // South Africa Basic Survey Unit Albers 25E: -30, 25, -22, -38, 1400000, 1300000
    {9220, Method::albers, 186790, {480, 1440, 519, 446, 2425, 2431}}, // South Africa Basic Survey Unit Albers 44E: -42, 44, -34, -50, 1200000, 1300000
    {9268, Method::transverseMercator, 89499, {595, 992, 751, 595, 595}}, // Austria West: 0, 10.333333333333334, 1, 0, 0
    {9269, Method::transverseMercator, 89335, {595, 1016, 751, 595, 595}}, // Austria Central: 0, 13.333333333333334, 1, 0, 0
    {9270, Method::transverseMercator, 89347, {595, 1040, 751, 595, 595}}, // Austria East: 0, 16.333333333333332, 1, 0, 0
    {9301, Method::transverseMercator, 66513, {1574, 590, 751, 2194, 2289}}, // HS2-TM: 52.3, -1.5, 1, 198873.0046, 375064.3871
    {9353, Method::polarStereographicB, 215357, {420, 595, 595, 595}}, // IBCSO Polar Stereographic: -65, 0, 0, 0
    {9366, Method::transverseMercator, 192393, {1585, 583, 751, 2203, 2296}}, // TPEN11-TM: 53.5, -2.25, 1, 203252.175, 407512.765
    {9370, Method::transverseMercator, 89929, {1576, 594, 751, 2001, 2074}}, // MML07-TM: 52.45, -0.85, 1, 49350.157, 108398.212
    {9376, Method::transverseMercator, 34896, {934, 380, 664, 2536, 2461}}, // Colombia Transverse Mercator: 4, -73, 0.9992, 5000000, 2000000
    {9385, Method::transverseMercator, 4540, {1603, 575, 751, 2152, 2088}}, // AbInvA96_2020-TM: 57.4, -3.2, 1, 155828.702, 115225.707
    {9455, Method::transverseMercator, 54470, {1598, 571, 751, 2059, 2087}}, // GBK19-TM: 55.75, -4.35, 1, 93720.394, 113870.493
    {9497, Method::transverseMercator, 63406, {518, 435, 751, 1970, 2035}}, // Gauss-Kruger CABA 2019: -34.629266666666666, -58.46330833333334, 1, 20000, 70000
    {9673, Method::albers, 197836, {1229, 100, 1414, 1535, 2323, 595}}, // US Forest Service region 6 Albers: 34, -120, 43, 48, 600000, 0
    {9677, Method::transverseMercator, 66062, {595, 1694, 673, 2308, 19}}, // Bangladesh Transverse Mercator: 0, 90, 0.9996, 500000, -2000000
    {9738, Method::transverseMercator, 42280, {1599, 578, 751, 2041, 2116}}, // EOS21-TM: 56.35, -2.75, 1, 74996.927, 133508.35
    {9746, Method::transverseMercator, 178616, {1189, 296, 726, 2200, 595}}, // SPCS83 Alabama East zone (US Survey feet): 30.5, -85.83333333333333, 0.99996, 200000.0001016002, 0
    {9747, Method::transverseMercator, 178652, {1182, 270, 713, 2323, 595}}, // SPCS83 Alabama West zone (US Survey feet): 30, -87.5, 0.999933333, 600000, 0
    {9760, Method::transverseMercator, 41312, {1595, 589, 751, 2082, 2295}}, // ECML14_NB-TM: 55.05, -1.55, 1, 112242.8512, 402313.7432
    {9765, Method::transverseMercator, 46634, {1569, 593, 751, 2191, 2135}}, // EWR2-TM: 51.95, -0.9, 1, 192519.9715, 146942.6806
    {9796, Method::transverseMercator, 86770, {595, 1189, 751, 2275, 595}}, // Local coordinate system of Kyiv: 0, 30.5, 1, 300000, 0
    {9797, Method::transverseMercator, 86570, {595, 1236, 751, 2275, 595}}, // Local coordinate system of Crimea region: 0, 34.5, 1, 300000, 0
    {9798, Method::transverseMercator, 87041, {595, 1170, 751, 2275, 595}}, // Local coordinate system of Vinnytsia region: 0, 28.666666666666668, 1, 300000, 0
    {9799, Method::transverseMercator, 87068, {595, 1127, 751, 2275, 595}}, // Local coordinate system of Volyn region: 0, 24.833333333333332, 1, 300000, 0
    {9800, Method::transverseMercator, 86596, {595, 1246, 751, 2275, 595}}, // Local coordinate system of Dnipropetrovsk region: 0, 35, 1, 300000, 0
    {9801, Method::transverseMercator, 86630, {595, 1279, 751, 2275, 595}}, // Local coordinate system of Donetsk region: 0, 37.5, 1, 300000, 0
    {9802, Method::transverseMercator, 87151, {595, 1168, 751, 2275, 595}}, // Local coordinate system of Zhytomyr region: 0, 28.5, 1, 300000, 0
    {9803, Method::transverseMercator, 87093, {595, 1110, 751, 2275, 595}}, // Local coordinate system of Zakarpattia region: 0, 23.5, 1, 300000, 0
    {9804, Method::transverseMercator, 87121, {595, 1257, 751, 2275, 595}}, // Local coordinate system of Zaporizhzhia region: 0, 36, 1, 300000, 0
    {9805, Method::transverseMercator, 86656, {595, 1125, 751, 2275, 595}}, // Local coordinate system of Ivano-Frankivsk region: 0, 24.75, 1, 300000, 0
    {9806, Method::transverseMercator, 86741, {595, 1205, 751, 2275, 595}}, // Local coordinate system of Kirovohrad region: 0, 32, 1, 300000, 0
    {9807, Method::transverseMercator, 86792, {595, 1314, 751, 2275, 595}}, // Local coordinate system of Luhansk region: 0, 39, 1, 300000, 0
    {9808, Method::transverseMercator, 86819, {595, 1114, 751, 2275, 595}}, // Local coordinate system of Lviv region: 0, 24, 1, 300000, 0
    {9809, Method::transverseMercator, 86844, {595, 1203, 751, 2275, 595}}, // Local coordinate system of Mykolaiv region: 0, 31.833333333333332, 1, 300000, 0
    {9810, Method::transverseMercator, 86872, {595, 1182, 751, 2275, 595}}, // Local coordinate system of Odessa region: 0, 30, 1, 300000, 0
    {9811, Method::transverseMercator, 86897, {595, 1224, 751, 2275, 595}}, // Local coordinate system of Poltava region: 0, 33.833333333333336, 1, 300000, 0
    {9812, Method::transverseMercator, 86923, {595, 1151, 751, 2275, 595}}, // Local coordinate system of Rivne and Khmelnytsky regions: 0, 27, 1, 300000, 0
    {9813, Method::transverseMercator, 86990, {595, 1236, 751, 2275, 595}}, // Local coordinate system of Sumy region: 0, 34.5, 1, 300000, 0
    {9814, Method::transverseMercator, 87014, {595, 1137, 751, 2275, 595}}, // Local coordinate system of Ternopil region: 0, 25.5, 1, 300000, 0
    {9815, Method::transverseMercator, 86690, {595, 1264, 751, 2275, 595}}, // Local coordinate system of Kharkiv region: 0, 36.5, 1, 300000, 0
    {9816, Method::transverseMercator, 86717, {595, 1220, 751, 2275, 595}}, // Local coordinate system of Kherson region: 0, 33.5, 1, 300000, 0
    {9817, Method::transverseMercator, 86485, {595, 1197, 751, 2275, 595}}, // Local coordinate system of Cherkasy region: 0, 31.5, 1, 300000, 0
    {9818, Method::transverseMercator, 86540, {595, 1142, 751, 2275, 595}}, // Local coordinate system of Chernivtsi region: 0, 26, 1, 300000, 0
    {9819, Method::transverseMercator, 86511, {595, 1205, 751, 2275, 595}}, // Local coordinate system of Chernihiv region: 0, 32, 1, 300000, 0
    {9820, Method::transverseMercator, 86960, {595, 1215, 751, 2275, 595}}, // Local coordinate system of Sevastopol city: 0, 33, 1, 300000, 0
    {9868, Method::transverseMercator, 90274, {1573, 587, 751, 2221, 2259}}, // MRH21-TM: 52.3, -1.8, 1, 227286.9881, 265751.2874
    {9872, Method::transverseMercator, 148848, {595, 1849, 673, 2308, 2584}}, // Papua New Guinea Map Grid 1994 zone 57: 0, 159, 0.9996, 500000, 10000000
    {9873, Method::transverseMercator, 148874, {595, 1852, 673, 2308, 2584}}, // Papua New Guinea Map Grid 1994 zone 58: 0, 165, 0.9996, 500000, 10000000
    {9879, Method::transverseMercator, 90081, {1584, 586, 751, 2220, 2290}}, // MOLDOR11-TM: 53.35, -1.9, 1, 226574.2032, 390894.838
    {9894, Method::transverseMercator3D, 84459, {1552, 966, 751, 2048, 2064}}, // Luxembourg TM (3D): 49.833333333333336, 6.166666666666667, 1, 80000, 100000
    {9911, Method::transverseMercator, 90792, {595, 1084, 700, 2308, 13}}, // Macedonia Gauss-Kruger truncated: 0, 21, 0.9999, 500000, -4000000
    {9942, Method::transverseMercator, 41244, {1567, 576, 751, 2071, 2092}}, // EBBWV14-TM: 51.75, -3.1, 1, 106702.326, 119968.1395
    {9946, Method::lambertAzimuthal, 71547, {1623, 545, 2452, 2431}}, // Iceland Lambert Azimuthal Equal Area: 65, -19, 1700000, 1300000
    {9966, Method::transverseMercator, 66749, {1588, 592, 751, 2127, 2246}}, // HULLEE13-TM: 53.75, -0.95, 1, 140859.7394, 247512.2812
    {9971, Method::transverseMercator, 175820, {1600, 573, 751, 2075, 2235}}, // SCM22-TM: 56.6, -3.85, 1, 108600.972, 239087.349
    {9976, Method::transverseMercator, 50609, {1606, 574, 751, 2124, 2179}}, // FNL22-TM: 58, -3.8, 1, 139618.9493, 183110.794
    {9981, Method::transverseMercator, 90309, {595, 428, 700, 2594, 595}}, // MTM Nova Scotia 1997 zone 4: 0, -61.5, 0.9999, 14500000, 0
    {9982, Method::transverseMercator, 90326, {595, 423, 700, 2596, 595}}, // MTM Nova Scotia 1997 zone 5: 0, -64.5, 0.9999, 15500000, 0
    {10101, Method::transverseMercator, 5912, {1189, 296, 726, 2150, 595}}, // Alabama CS27 East zone: 30.5, -85.83333333333333, 0.99996, 152400.3048006096, 0
    {10102, Method::transverseMercator, 5926, {1182, 270, 713, 2150, 595}}, // Alabama CS27 West zone: 30, -87.5, 0.999933333, 152400.3048006096, 0
    {10127, Method::transverseMercator, 90660, {1584, 579, 751, 2169, 2091}}, // MWC18-TM: 53.35, -2.55, 1, 171975.9382, 116744.6938
    {10131, Method::transverseMercator, 178637, {1189, 296, 726, 2198, 595}}, // SPCS83 Alabama East zone (meters): 30.5, -85.83333333333333, 0.99996, 200000, 0
    {10132, Method::transverseMercator, 178673, {1182, 270, 713, 2323, 595}}, // SPCS83 Alabama West zone (meters): 30, -87.5, 0.999933333, 600000, 0
    {10147, Method::transverseMercator, 25093, {525, 1844, 735, 2141, 2198}}, // Brisbane City Survey Grid 2020: -28, 153, 0.99999, 150000, 200000
    {10148, Method::hotineB, 7077, {1362, 373, 1606, 1606, 735, 2303, 2303}}, // Amtrak North East Corridor Coordinate System 2021 (International feet): 40.833333333333336, -74, 58, 58, 0.99999, 457200, 457200
    {10201, Method::transverseMercator, 14149, {1193, 134, 700, 2150, 595}}, // Arizona Coordinate System East zone: 31, -110.16666666666667, 0.9999, 152400.3048006096, 0
    {10202, Method::transverseMercator, 14128, {1193, 128, 700, 2150, 595}}, // Arizona Coordinate System Central zone: 31, -111.91666666666667, 0.9999, 152400.3048006096, 0
    {10203, Method::transverseMercator, 14170, {1193, 122, 713, 2150, 595}}, // Arizona Coordinate System West zone: 31, -113.75, 0.999933333, 152400.3048006096, 0
    {10231, Method::transverseMercator, 178883, {1193, 134, 700, 2210, 595}}, // SPCS83 Arizona East zone (meters): 31, -110.16666666666667, 0.9999, 213360, 0
    {10232, Method::transverseMercator, 178849, {1193, 128, 700, 2210, 595}}, // SPCS83 Arizona Central zone (meters): 31, -111.91666666666667, 0.9999, 213360, 0
    {10233, Method::transverseMercator, 178916, {1193, 122, 713, 2210, 595}}, // SPCS83 Arizona West zone (meters): 31, -113.75, 0.999933333, 213360, 0
    {10301, Method::lambertConic2, 14332, {1234, 199, 1260, 1244, 2325, 595}}, // Arkansas CS27 North: 34.333333333333336, -92, 36.233333333333334, 34.93333333333333, 609601.2192024384, 0
    {10302, Method::lambertConic2, 14343, {1211, 199, 1241, 1217, 2325, 595}}, // Arkansas CS27 South: 32.666666666666664, -92, 34.766666666666666, 33.3, 609601.2192024384, 0
    {10331, Method::lambertConic2, 178949, {1234, 199, 1260, 1244, 2294, 595}}, // SPCS83 Arkansas North zone (meters): 34.333333333333336, -92, 36.233333333333334, 34.93333333333333, 400000, 0
    {10332, Method::lambertConic2, 178983, {1211, 199, 1241, 1217, 2294, 2294}}, // SPCS83 Arkansas South zone (meters): 32.666666666666664, -92, 34.766666666666666, 33.3, 400000, 400000
    {10401, Method::lambertConic2, 28806, {1323, 92, 1379, 1339, 2325, 595}}, // California CS27 zone I: 39.333333333333336, -122, 41.666666666666664, 40, 609601.2192024384, 0
    {10402, Method::lambertConic2, 28818, {1280, 92, 1335, 1295, 2325, 595}}, // California CS27 zone II: 37.666666666666664, -122, 39.833333333333336, 38.333333333333336, 609601.2192024384, 0
    {10403, Method::lambertConic2, 28831, {1264, 97, 1298, 1270, 2325, 595}}, // California CS27 zone III: 36.5, -120.5, 38.43333333333333, 37.06666666666667, 609601.2192024384, 0
    {10404, Method::lambertConic2, 28845, {1252, 104, 1275, 1257, 2325, 595}}, // California CS27 zone IV: 35.333333333333336, -119, 37.25, 36, 609601.2192024384, 0
    {10405, Method::lambertConic2, 28858, {1220, 108, 1253, 1230, 2325, 595}}, // California CS27 zone V: 33.5, -118, 35.46666666666667, 34.03333333333333, 609601.2192024384, 0
    {10406, Method::lambertConic2, 28870, {1207, 116, 1226, 1213, 2325, 595}}, // California CS27 zone VI: 32.166666666666664, -116.25, 33.88333333333333, 32.78333333333333, 609601.2192024384, 0
    {10407, Method::lambertConic2, 28883, {1232, 107, 1235, 1225, 2430, 2106}}, // California CS27 zone VII: 34.13333333333333, -118.33333333333333, 34.416666666666664, 33.86666666666667, 1276106.4505969011, 127079.52451104902
    {10408, Method::lambertConic2, 28883, {1232, 107, 1235, 1225, 2430, 2427}}, // California CS27 zone VII: 34.13333333333333, -118.33333333333333, 34.416666666666664, 33.86666666666667, 1276106.4505969011, 1268253.0068580138
    {10420, Method::albers, 98273, {595, 100, 1229, 1353, 595, 13}}, // California Albers: 0, -120, 34, 40.5, 0, -4000000
    {10431, Method::lambertConic2, 179018, {1323, 92, 1379, 1339, 2461, 2308}}, // SPCS83 California zone 1 (meters): 39.333333333333336, -122, 41.666666666666664, 40, 2000000, 500000
    {10432, Method::lambertConic2, 179054, {1280, 92, 1335, 1295, 2461, 2308}}, // SPCS83 California zone 2 (meters): 37.666666666666664, -122, 39.833333333333336, 38.333333333333336, 2000000, 500000
    {10433, Method::lambertConic2, 179090, {1264, 97, 1298, 1270, 2461, 2308}}, // SPCS83 California zone 3 (meters): 36.5, -120.5, 38.43333333333333, 37.06666666666667, 2000000, 500000
    {10434, Method::lambertConic2, 179126, {1252, 104, 1275, 1257, 2461, 2308}}, // SPCS83 California zone 4 (meters): 35.333333333333336, -119, 37.25, 36, 2000000, 500000
    {10435, Method::lambertConic2, 179162, {1220, 108, 1253, 1230, 2461, 2308}}, // SPCS83 California zone 5 (meters): 33.5, -118, 35.46666666666667, 34.03333333333333, 2000000, 500000
    {10436, Method::lambertConic2, 179198, {1207, 116, 1226, 1213, 2461, 2308}}, // SPCS83 California zone 6 (meters): 32.166666666666664, -116.25, 33.88333333333333, 32.78333333333333, 2000000, 500000
    {10501, Method::lambertConic2, 35075, {1323, 146, 1332, 1360, 2325, 595}}, // Colorado CS27 North zone: 39.333333333333336, -105.5, 39.71666666666667, 40.78333333333333, 609601.2192024384, 0
    {10502, Method::lambertConic2, 35062, {1284, 146, 1333, 1299, 2325, 595}}, // Colorado CS27 Central zone: 37.833333333333336, -105.5, 39.75, 38.45, 609601.2192024384, 0
    {10503, Method::lambertConic2, 35087, {1265, 146, 1298, 1274, 2325, 595}}, // Colorado CS27 South zone: 36.666666666666664, -105.5, 38.43333333333333, 37.233333333333334, 609601.2192024384, 0
    {10531, Method::lambertConic2, 179265, {1323, 146, 1360, 1332, 2378, 2279}}, // SPCS83 Colorado North zone (meters): 39.333333333333336, -105.5, 40.78333333333333, 39.71666666666667, 914401.8289, 304800.6096
    {10532, Method::lambertConic2, 179233, {1284, 146, 1333, 1299, 2378, 2279}}, // SPCS83 Colorado Central zone (meters): 37.833333333333336, -105.5, 39.75, 38.45, 914401.8289, 304800.6096
    {10533, Method::lambertConic2, 179295, {1265, 146, 1298, 1274, 2378, 2279}}, // SPCS83 Colorado South zone (meters): 36.666666666666664, -105.5, 38.43333333333333, 37.233333333333334, 914401.8289, 304800.6096
    {10600, Method::lambertConic2, 36536, {1362, 382, 1386, 1370, 2176, 595}}, // Connecticut CS27: 40.833333333333336, -72.75, 41.86666666666667, 41.2, 182880.3657607315, 0
    {10630, Method::lambertConic2, 179328, {1362, 382, 1386, 1370, 2279, 2149}}, // SPCS83 Connecticut zone (meters): 40.833333333333336, -72.75, 41.86666666666667, 41.2, 304800.6096, 152400.3048
    {10700, Method::transverseMercator, 40425, {1289, 359, 742, 2150, 595}}, // Delaware CS27: 38, -75.41666666666667, 0.999995, 152400.3048006096, 0
    {10730, Method::transverseMercator, 179362, {1289, 359, 742, 2198, 595}}, // SPCS83 Delaware zone (meters): 38, -75.41666666666667, 0.999995, 200000, 0
    {10901, Method::transverseMercator, 52402, {1118, 326, 717, 2150, 595}}, // Florida CS27 East zone: 24.333333333333332, -81, 0.999941177, 152400.3048006096, 0
    {10902, Method::transverseMercator, 52427, {1118, 324, 717, 2150, 595}}, // Florida CS27 West zone: 24.333333333333332, -82, 0.999941177, 152400.3048006096, 0
    {10903, Method::lambertConic2, 52415, {1172, 313, 1192, 1179, 2325, 595}}, // Florida CS27 North zone: 29, -84.5, 30.75, 29.583333333333332, 609601.2192024384, 0
    {10931, Method::transverseMercator, 179395, {1118, 326, 717, 2198, 595}}, // SPCS83 Florida East zone (meters): 24.333333333333332, -81, 0.999941177, 200000, 0
    {10932, Method::transverseMercator, 179461, {1118, 324, 717, 2198, 595}}, // SPCS83 Florida West zone (meters): 24.333333333333332, -82, 0.999941177, 200000, 0
    {10933, Method::lambertConic2, 179428, {1172, 313, 1192, 1179, 2323, 595}}, // SPCS83 Florida North zone (meters): 29, -84.5, 30.75, 29.583333333333332, 600000, 0
    {10934, Method::albers, 52440, {1114, 319, 1114, 1197, 2294, 595}}, // Florida GDL Albers (meters): 24, -84, 24, 31.5, 400000, 0
    {11001, Method::transverseMercator, 63730, {1182, 323, 700, 2150, 595}}, // Georgia CS27 East zone: 30, -82.16666666666667, 0.9999, 152400.3048006096, 0
    {11002, Method::transverseMercator, 63743, {1182, 318, 700, 2150, 595}}, // Georgia CS27 West zone: 30, -84.16666666666667, 0.9999, 152400.3048006096, 0
    {11031, Method::transverseMercator, 179495, {1182, 323, 700, 2198, 595}}, // SPCS83 Georgia East zone (meters): 30, -82.16666666666667, 0.9999, 200000, 0
    {11032, Method::transverseMercator, 179529, {1182, 318, 700, 2341, 595}}, // SPCS83 Georgia West zone (meters): 30, -84.16666666666667, 0.9999, 700000, 0
    {11101, Method::transverseMercator, 71585, {1379, 126, 721, 2150, 595}}, // Idaho CS27 East zone: 41.666666666666664, -112.16666666666667, 0.999947368, 152400.3048006096, 0
    {11102, Method::transverseMercator, 71573, {1379, 121, 721, 2150, 595}}, // Idaho CS27 Central zone: 41.666666666666664, -114, 0.999947368, 152400.3048006096, 0
    {11103, Method::transverseMercator, 71597, {1379, 117, 713, 2150, 595}}, // Idaho CS27 West zone: 41.666666666666664, -115.75, 0.999933333, 152400.3048006096, 0
    {11131, Method::transverseMercator, 179692, {1379, 126, 721, 2198, 595}}, // SPCS83 Idaho East zone (meters): 41.666666666666664, -112.16666666666667, 0.999947368, 200000, 0
    {11132, Method::transverseMercator, 179659, {1379, 121, 721, 2308, 595}}, // SPCS83 Idaho Central zone (meters): 41.666666666666664, -114, 0.999947368, 500000, 0
    {11133, Method::transverseMercator, 179724, {1379, 117, 713, 2347, 595}}, // SPCS83 Idaho West zone (meters): 41.666666666666664, -115.75, 0.999933333, 800000, 0
    {11201, Method::transverseMercator, 71745, {1265, 259, 730, 2150, 595}}, // Illinois CS27 East zone: 36.666666666666664, -88.33333333333333, 0.999975, 152400.3048006096, 0
    {11202, Method::transverseMercator, 71760, {1265, 232, 717, 2150, 595}}, // Illinois CS27 West zone: 36.666666666666664, -90.16666666666667, 0.999941177, 152400.3048006096, 0
    {11231, Method::transverseMercator, 179759, {1265, 259, 730, 2275, 595}}, // SPCS83 Illinois East zone (meters): 36.666666666666664, -88.33333333333333, 0.999975, 300000, 0
    {11232, Method::transverseMercator, 179797, {1265, 232, 717, 2341, 595}}, // SPCS83 Illinois West zone (meters): 36.666666666666664, -90.16666666666667, 0.999941177, 700000, 0
    {11301, Method::transverseMercator, 72763, {1279, 300, 728, 2150, 595}}, // Indiana CS27 East zone: 37.5, -85.66666666666667, 0.999966667, 152400.3048006096, 0
    {11302, Method::transverseMercator, 72774, {1279, 278, 728, 2150, 595}}, // Indiana CS27 West zone: 37.5, -87.08333333333333, 0.999966667, 152400.3048006096, 0
    {11331, Method::transverseMercator, 179831, {1279, 300, 728, 2064, 2249}}, // SPCS83 Indiana East zone (meters): 37.5, -85.66666666666667, 0.999966667, 100000, 250000
    {11332, Method::transverseMercator, 179861, {1279, 278, 728, 2370, 2249}}, // SPCS83 Indiana West zone (meters): 37.5, -87.08333333333333, 0.999966667, 900000, 250000
    {11401, Method::lambertConic2, 74472, {1377, 189, 1422, 1390, 2325, 595}}, // Iowa CS27 North zone: 41.5, -93.5, 43.266666666666666, 42.06666666666667, 609601.2192024384, 0
    {11402, Method::lambertConic2, 74483, {1339, 189, 1383, 1355, 2325, 595}}, // Iowa CS27 South zone: 40, -93.5, 41.78333333333333, 40.61666666666667, 609601.2192024384, 0
    {11431, Method::lambertConic2, 179891, {1377, 189, 1422, 1390, 2439, 2391}}, // SPCS83 Iowa North zone (meters): 41.5, -93.5, 43.266666666666666, 42.06666666666667, 1500000, 1000000
    {11432, Method::lambertConic2, 179921, {1339, 189, 1383, 1355, 2308, 595}}, // SPCS83 Iowa South zone (meters): 40, -93.5, 41.78333333333333, 40.61666666666667, 500000, 0
    {11501, Method::lambertConic2, 80067, {1295, 171, 1334, 1306, 2325, 595}}, // Kansas CS27 North zone: 38.333333333333336, -98, 39.78333333333333, 38.71666666666667, 609601.2192024384, 0
    {11502, Method::lambertConic2, 80079, {1265, 168, 1302, 1276, 2325, 595}}, // Kansas CS27 South zone: 36.666666666666664, -98.5, 38.56666666666667, 37.266666666666666, 609601.2192024384, 0
    {11531, Method::lambertConic2, 179952, {1295, 171, 1334, 1306, 2294, 595}}, // SPCS83 Kansas North zone (meters): 38.333333333333336, -98, 39.78333333333333, 38.71666666666667, 400000, 0
    {11532, Method::lambertConic2, 179984, {1265, 168, 1302, 1276, 2294, 2294}}, // SPCS83 Kansas South zone (meters): 36.666666666666664, -98.5, 38.56666666666667, 37.266666666666666, 400000, 400000
    {11601, Method::lambertConic2, 81416, {1279, 317, 1288, 1313, 2325, 595}}, // Kentucky CS27 North zone: 37.5, -84.25, 37.96666666666667, 38.96666666666667, 609601.2192024384, 0
    {11602, Method::lambertConic2, 81430, {1262, 298, 1266, 1286, 2325, 595}}, // Kentucky CS27 South zone: 36.333333333333336, -85.75, 36.733333333333334, 37.93333333333333, 609601.2192024384, 0
    {11630, Method::lambertConic2, 180061, {1262, 298, 1271, 1304, 2439, 2391}}, // SPCS83 Kentucky Single Zone (meters): 36.333333333333336, -85.75, 37.083333333333336, 38.666666666666664, 1500000, 1000000
    {11631, Method::lambertConic2, 81444, {1279, 317, 1288, 1288, 2308, 595}}, // Kentucky CS83 North zone: 37.5, -84.25, 37.96666666666667, 37.96666666666667, 500000, 0
    {11632, Method::lambertConic2, 180105, {1262, 298, 1286, 1266, 2308, 2308}}, // SPCS83 Kentucky South zone (meters): 36.333333333333336, -85.75, 37.93333333333333, 36.733333333333334, 500000, 500000
    {11701, Method::lambertConic2, 87363, {1190, 195, 1195, 1211, 2325, 595}}, // Louisiana CS27 North zone: 30.666666666666668, -92.5, 31.166666666666668, 32.666666666666664, 609601.2192024384, 0
    {11702, Method::lambertConic2, 87391, {1170, 208, 1175, 1191, 2325, 595}}, // Louisiana CS27 South zone: 28.666666666666668, -91.33333333333333, 29.3, 30.7, 609601.2192024384, 0
    {11703, Method::lambertConic2, 87375, {1140, 208, 1159, 1147, 2325, 595}}, // Louisiana CS27 Offshore zone: 25.666666666666668, -91.33333333333333, 27.833333333333332, 26.166666666666668, 609601.2192024384, 0
    {11731, Method::lambertConic2, 180140, {1189, 195, 1211, 1195, 2391, 595}}, // SPCS83 Louisiana North zone (meters): 30.5, -92.5, 32.666666666666664, 31.166666666666668, 1000000, 0
    {11732, Method::lambertConic2, 180212, {1168, 208, 1191, 1175, 2391, 595}}, // SPCS83 Louisiana South zone (meters): 28.5, -91.33333333333333, 30.7, 29.3, 1000000, 0
    {11733, Method::lambertConic2, 180176, {1137, 208, 1159, 1147, 2391, 595}}, // SPCS83 Louisiana Offshore zone (meters): 25.5, -91.33333333333333, 27.833333333333332, 26.166666666666668, 1000000, 0
    {11801, Method::transverseMercator, 91279, {1438, 408, 700, 2150, 595}}, // Maine CS27 East zone: 43.833333333333336, -68.5, 0.9999, 152400.3048006096, 0
    {11802, Method::transverseMercator, 91291, {1412, 402, 728, 2150, 595}}, // Maine CS27 West zone: 42.833333333333336, -70.16666666666667, 0.999966667, 152400.3048006096, 0
    {11831, Method::transverseMercator, 180244, {1434, 408, 700, 2275, 595}}, // SPCS83 Maine East zone (meters): 43.666666666666664, -68.5, 0.9999, 300000, 0
    {11832, Method::transverseMercator, 180276, {1412, 402, 728, 2370, 595}}, // SPCS83 Maine West zone (meters): 42.833333333333336, -70.16666666666667, 0.999966667, 900000, 0
    {11833, Method::transverseMercator, 180225, {1434, 408, 700, 2275, 595}}, // SPCS83 Maine East zone (US Survey feet): 43.666666666666664, -68.5, 0.9999, 300000, 0
    {11834, Method::transverseMercator, 180257, {1412, 402, 728, 2370, 595}}, // SPCS83 Maine West zone (US Survey feet): 42.833333333333336, -70.16666666666667, 0.999966667, 900000, 0
    {11851, Method::transverseMercator, 91249, {1438, 412, 731, 2341, 595}}, // Maine CS2000 East zone (meters): 43.833333333333336, -67.875, 0.99998, 700000, 0
    {11852, Method::transverseMercator, 91221, {1414, 405, 731, 2308, 595}}, // Maine CS2000 Central zone: 43, -69.125, 0.99998, 500000, 0
    {11853, Method::transverseMercator, 91264, {1412, 400, 731, 2275, 595}}, // Maine CS2000 West zone (meters): 42.833333333333336, -70.375, 0.99998, 300000, 0
    {11854, Method::transverseMercator, 91234, {1431, 405, 731, 2308, 595}}, // Maine CS2000 Central zone (meters): 43.5, -69.125, 0.99998, 500000, 0
    {11900, Method::lambertConic2, 92802, {1284, 342, 1294, 1324, 2241, 595}}, // Maryland CS27: 37.833333333333336, -77, 38.3, 39.45, 243840.48768097535, 0
    {11930, Method::lambertConic2, 180307, {1280, 342, 1324, 1294, 2294, 595}}, // SPCS83 Maryland zone (meters): 37.666666666666664, -77, 39.45, 38.3, 400000, 0
    {12001, Method::lambertConic2, 92862, {1367, 392, 1381, 1406, 2176, 595}}, // Massachusetts CS27 Mainland zone: 41, -71.5, 41.71666666666667, 42.68333333333333, 182880.3657607315, 0
    {12002, Method::lambertConic2, 92843, {1367, 399, 1372, 1376, 2030, 595}}, // Massachusetts CS27 Island zone: 41, -70.5, 41.28333333333333, 41.483333333333334, 60960.12192024384, 0
    {12031, Method::lambertConic2, 180394, {1367, 392, 1406, 1381, 2198, 2343}}, // SPCS83 Massachusetts Mainland zone (meters): 41, -71.5, 42.68333333333333, 41.71666666666667, 200000, 750000
    {12032, Method::lambertConic2, 180345, {1367, 399, 1376, 1372, 2308, 595}}, // SPCS83 Massachusetts Island zone (meters): 41, -70.5, 41.483333333333334, 41.28333333333333, 500000, 0
    {12101, Method::transverseMercator, 94482, {1377, 320, 719, 2150, 595}}, // Michigan State Plane East zone: 41.5, -83.66666666666667, 0.999942857, 152400.3048006096, 0
    {12102, Method::transverseMercator, 94501, {1377, 298, 703, 2150, 595}}, // Michigan State Plane Old Central zone: 41.5, -85.75, 0.999909091, 152400.3048006096, 0
    {12103, Method::transverseMercator, 94523, {1377, 252, 703, 2150, 595}}, // Michigan State Plane West zone: 41.5, -88.75, 0.999909091, 152400.3048006096, 0
    {12111, Method::lambertConic2, 94430, {1467, 280, 1486, 1524, 2325, 595}}, // Michigan CS27 North zone: 44.78333333333333, -87, 45.483333333333334, 47.083333333333336, 609601.2192024384, 0
    {12112, Method::lambertConic2, 94415, {1423, 316, 1448, 1494, 2325, 595}}, // Michigan CS27 Central zone: 43.31666666666667, -84.33333333333333, 44.18333333333333, 45.7, 609601.2192024384, 0
    {12113, Method::lambertConic2, 94444, {1377, 316, 1391, 1434, 2325, 595}}, // Michigan CS27 South zone: 41.5, -84.33333333333333, 42.1, 43.666666666666664, 609601.2192024384, 0
    {12141, Method::lambertConic2, 180478, {1467, 280, 1524, 1486, 2575, 595}}, // SPCS83 Michigan North zone (meters): 44.78333333333333, -87, 47.083333333333336, 45.483333333333334, 8000000, 0
    {12142, Method::lambertConic2, 180440, {1423, 315, 1494, 1448, 2555, 595}}, // SPCS83 Michigan Central zone (meters): 43.31666666666667, -84.36666666666666, 45.7, 44.18333333333333, 6000000, 0
    {12143, Method::lambertConic2, 180515, {1377, 315, 1434, 1391, 2522, 595}}, // SPCS83 Michigan South zone (meters): 41.5, -84.36666666666666, 43.666666666666664, 42.1, 4000000, 0
    {12150, Method::hotineA, 94458, {1481, 292, 1938, 1938, 673, 2483, 12}}, // Michigan Oblique Mercator (meters): 45.30916666666666, -86, 337.25556, 337.25556, 0.9996, 2546731.496, -4354009.816
    {12201, Method::lambertConic2, 95147, {1514, 190, 1522, 1541, 2325, 595}}, // Minnesota CS27 North zone: 46.5, -93.1, 47.03333333333333, 48.63333333333333, 609601.2192024384, 0
    {12202, Method::lambertConic2, 95133, {1473, 185, 1491, 1523, 2325, 595}}, // Minnesota CS27 Central zone: 45, -94.25, 45.61666666666667, 47.05, 609601.2192024384, 0
    {12203, Method::lambertConic2, 95160, {1414, 186, 1436, 1479, 2325, 595}}, // Minnesota CS27 South zone: 43, -94, 43.78333333333333, 45.21666666666667, 609601.2192024384, 0
    {12231, Method::lambertConic2, 180588, {1514, 190, 1541, 1522, 2347, 2064}}, // SPCS83 Minnesota North zone (meters): 46.5, -93.1, 48.63333333333333, 47.03333333333333, 800000, 100000
    {12232, Method::lambertConic2, 180552, {1473, 185, 1523, 1491, 2347, 2064}}, // SPCS83 Minnesota Central zone (meters): 45, -94.25, 47.05, 45.61666666666667, 800000, 100000
    {12233, Method::lambertConic2, 180622, {1414, 186, 1479, 1436, 2347, 2064}}, // SPCS83 Minnesota South zone (meters): 43, -94, 45.21666666666667, 43.78333333333333, 800000, 100000
    {12234, Method::lambertConic2, 180568, {1514, 190, 1541, 1522, 2348, 2062}}, // SPCS83 Minnesota North zone (US Survey feet): 46.5, -93.1, 48.63333333333333, 47.03333333333333, 800000.00001016, 99999.99998983998
    {12235, Method::lambertConic2, 180530, {1473, 185, 1523, 1491, 2348, 2062}}, // SPCS83 Minnesota Central zone (US Survey feet): 45, -94.25, 47.05, 45.61666666666667, 800000.00001016, 99999.99998983998
    {12236, Method::lambertConic2, 180602, {1414, 186, 1479, 1436, 2348, 2062}}, // SPCS83 Minnesota South zone (US Survey feet): 43, -94, 45.21666666666667, 43.78333333333333, 800000.00001016, 99999.99998983998
    {12301, Method::transverseMercator, 95335, {1180, 249, 726, 2150, 595}}, // Mississippi CS27 East zone: 29.666666666666668, -88.83333333333333, 0.99996, 152400.3048006096, 0
    {12302, Method::transverseMercator, 95353, {1189, 230, 717, 2150, 595}}, // Mississippi CS27 West zone: 30.5, -90.33333333333333, 0.999941177, 152400.3048006096, 0
    {12331, Method::transverseMercator, 180661, {1178, 249, 723, 2275, 595}}, // SPCS83 Mississippi East zone (meters): 29.5, -88.83333333333333, 0.99995, 300000, 0
    {12332, Method::transverseMercator, 180705, {1178, 230, 723, 2341, 595}}, // SPCS83 Mississippi West zone (meters): 29.5, -90.33333333333333, 0.99995, 700000, 0
    {12401, Method::transverseMercator, 95545, {1256, 226, 713, 2150, 595}}, // Missouri CS27 East zone: 35.833333333333336, -90.5, 0.999933333, 152400.3048006096, 0
    {12402, Method::transverseMercator, 95530, {1256, 195, 713, 2150, 595}}, // Missouri CS27 Central zone: 35.833333333333336, -92.5, 0.999933333, 152400.3048006096, 0
    {12403, Method::transverseMercator, 95560, {1258, 184, 717, 2150, 595}}, // Missouri CS27 West zone: 36.166666666666664, -94.5, 0.999941177, 152400.3048006096, 0
    {12431, Method::transverseMercator, 180740, {1256, 226, 713, 2249, 595}}, // SPCS83 Missouri East zone (meters): 35.833333333333336, -90.5, 0.999933333, 250000, 0
    {12432, Method::transverseMercator, 180724, {1256, 195, 713, 2308, 595}}, // SPCS83 Missouri Central zone (meters): 35.833333333333336, -92.5, 0.999933333, 500000, 0
    {12433, Method::transverseMercator, 180756, {1258, 184, 717, 2364, 595}}, // SPCS83 Missouri West zone (meters): 36.166666666666664, -94.5, 0.999941177, 850000, 0
    {12501, Method::lambertConic2, 96109, {1521, 136, 1543, 1533, 2325, 595}}, // Montana CS27 North zone: 47, -109.5, 48.71666666666667, 47.85, 609601.2192024384, 0
    {12502, Method::lambertConic2, 96096, {1499, 136, 1534, 1513, 2325, 595}}, // Montana CS27 Central zone: 45.833333333333336, -109.5, 47.88333333333333, 46.45, 609601.2192024384, 0
    {12503, Method::lambertConic2, 96121, {1440, 136, 1511, 1469, 2325, 595}}, // Montana CS27 South zone: 44, -109.5, 46.4, 44.86666666666667, 609601.2192024384, 0
    {12530, Method::lambertConic2, 180791, {1449, 136, 1546, 1473, 2323, 595}}, // SPCS83 Montana zone (meters): 44.25, -109.5, 49, 45, 600000, 0
    {12601, Method::lambertConic2, 133273, {1373, 160, 1385, 1410, 2325, 595}}, // Nebraska CS27 North zone: 41.333333333333336, -100, 41.85, 42.81666666666667, 609601.2192024384, 0
    {12602, Method::lambertConic2, 133286, {1329, 162, 1346, 1381, 2325, 595}}, // Nebraska CS27 South zone: 39.666666666666664, -99.5, 40.28333333333333, 41.71666666666667, 609601.2192024384, 0
    {12630, Method::lambertConic2, 180822, {1335, 160, 1414, 1339, 2308, 595}}, // SPCS83 Nebraska zone (meters): 39.833333333333336, -100, 43, 40, 500000, 0
    {12701, Method::transverseMercator, 133513, {1239, 118, 700, 2150, 595}}, // Nevada CS27 East zone: 34.75, -115.58333333333333, 0.9999, 152400.3048006096, 0
    {12702, Method::transverseMercator, 133501, {1239, 115, 700, 2150, 595}}, // Nevada CS27 Central zone: 34.75, -116.66666666666667, 0.9999, 152400.3048006096, 0
    {12703, Method::transverseMercator, 133525, {1239, 105, 700, 2150, 595}}, // Nevada CS27 West zone: 34.75, -118.58333333333333, 0.9999, 152400.3048006096, 0
    {12731, Method::transverseMercator, 180888, {1239, 118, 700, 2198, 2575}}, // SPCS83 Nevada East zone (meters): 34.75, -115.58333333333333, 0.9999, 200000, 8000000
    {12732, Method::transverseMercator, 180855, {1239, 115, 700, 2308, 2555}}, // SPCS83 Nevada Central zone (meters): 34.75, -116.66666666666667, 0.9999, 500000, 6000000
    {12733, Method::transverseMercator, 180920, {1239, 105, 700, 2347, 2522}}, // SPCS83 Nevada West zone (meters): 34.75, -118.58333333333333, 0.9999, 800000, 4000000
    {12800, Method::transverseMercator, 135779, {1397, 390, 728, 2150, 595}}, // New Hampshire CS27: 42.5, -71.66666666666667, 0.999966667, 152400.3048006096, 0
    {12830, Method::transverseMercator, 180954, {1397, 390, 728, 2275, 595}}, // SPCS83 New Hampshire zone (meters): 42.5, -71.66666666666667, 0.999966667, 300000, 0
    {12900, Method::transverseMercator, 135791, {1309, 366, 730, 2325, 595}}, // New Jersey CS27: 38.833333333333336, -74.66666666666667, 0.999975, 609601.2192024384, 0
    {12930, Method::transverseMercator, 180988, {1309, 367, 700, 2141, 595}}, // SPCS83 New Jersey zone (meters): 38.833333333333336, -74.5, 0.9999, 150000, 0
    {13001, Method::transverseMercator, 135822, {1193, 149, 703, 2150, 595}}, // New Mexico CS27 East zone: 31, -104.33333333333333, 0.999909091, 152400.3048006096, 0
    {13002, Method::transverseMercator, 135807, {1193, 145, 700, 2150, 595}}, // New Mexico CS27 Central zone: 31, -106.25, 0.9999, 152400.3048006096, 0
    {13003, Method::transverseMercator, 135837, {1193, 141, 705, 2150, 595}}, // New Mexico CS27 West zone: 31, -107.83333333333333, 0.999916667, 152400.3048006096, 0
    {13031, Method::transverseMercator, 181063, {1193, 149, 703, 2157, 595}}, // SPCS83 New Mexico East zone (meters): 31, -104.33333333333333, 0.999909091, 165000, 0
    {13032, Method::transverseMercator, 181024, {1193, 145, 700, 2308, 595}}, // SPCS83 New Mexico Central zone (meters): 31, -106.25, 0.9999, 500000, 0
    {13033, Method::transverseMercator, 181101, {1193, 141, 705, 2358, 595}}, // SPCS83 New Mexico West zone (meters): 31, -107.83333333333333, 0.999916667, 830000, 0
    {13101, Method::transverseMercator, 135914, {1339, 368, 728, 2150, 595}}, // New York CS27 East zone: 40, -74.33333333333333, 0.999966667, 152400.3048006096, 0
    {13102, Method::transverseMercator, 135900, {1339, 348, 715, 2150, 595}}, // New York CS27 Central zone: 40, -76.58333333333333, 0.9999375, 152400.3048006096, 0
    {13103, Method::transverseMercator, 135946, {1339, 335, 715, 2150, 595}}, // New York CS27 West zone: 40, -78.58333333333333, 0.9999375, 152400.3048006096, 0
    {13104, Method::lambertConic2, 135928, {1353, 373, 1368, 1357, 2280, 595}}, // New York CS27 Long Island zone: 40.5, -74, 41.03333333333333, 40.666666666666664, 304800.6096012192, 0
    {13131, Method::transverseMercator, 181174, {1309, 367, 700, 2141, 595}}, // SPCS83 New York East zone (meters): 38.833333333333336, -74.5, 0.9999, 150000, 0
    {13132, Method::transverseMercator, 181138, {1339, 348, 715, 2249, 595}}, // SPCS83 New York Central zone (meters): 40, -76.58333333333333, 0.9999375, 250000, 0
    {13133, Method::transverseMercator, 181254, {1339, 335, 715, 2284, 595}}, // SPCS83 New York West zone (meters): 40, -78.58333333333333, 0.9999375, 350000, 0
    {13134, Method::lambertConic2, 181214, {1343, 373, 1368, 1357, 2275, 595}}, // SPCS83 New York Long Island zone (meters): 40.166666666666664, -74, 41.03333333333333, 40.666666666666664, 300000, 0
    {13200, Method::lambertConic2, 139125, {1222, 334, 1234, 1258, 2325, 595}}, // North Carolina CS27: 33.75, -79, 34.333333333333336, 36.166666666666664, 609601.2192024384, 0
    {13230, Method::lambertConic2, 181288, {1222, 334, 1258, 1234, 2326, 595}}, // SPCS83 North Carolina zone (meters): 33.75, -79, 36.166666666666664, 34.333333333333336, 609601.22, 0
    {13301, Method::lambertConic2, 139135, {1521, 156, 1528, 1544, 2325, 595}}, // North Dakota CS27 North zone: 47, -100.5, 47.43333333333333, 48.733333333333334, 609601.2192024384, 0
    {13302, Method::lambertConic2, 139148, {1492, 156, 1509, 1529, 2325, 595}}, // North Dakota CS27 South zone: 45.666666666666664, -100.5, 46.18333333333333, 47.483333333333334, 609601.2192024384, 0
    {13331, Method::lambertConic2, 181322, {1521, 156, 1544, 1528, 2323, 595}}, // SPCS83 North Dakota North zone (meters): 47, -100.5, 48.733333333333334, 47.43333333333333, 600000, 0
    {13332, Method::lambertConic2, 181357, {1492, 156, 1529, 1509, 2323, 595}}, // SPCS83 North Dakota South zone (meters): 45.666666666666664, -100.5, 47.483333333333334, 46.18333333333333, 600000, 0
    {13401, Method::lambertConic2, 143318, {1329, 322, 1351, 1380, 2325, 595}}, // Ohio CS27 North zone: 39.666666666666664, -82.5, 40.43333333333333, 41.7, 609601.2192024384, 0
    {13402, Method::lambertConic2, 143329, {1289, 322, 1307, 1340, 2325, 595}}, // Ohio CS27 South zone: 38, -82.5, 38.733333333333334, 40.03333333333333, 609601.2192024384, 0
    {13431, Method::lambertConic2, 181389, {1329, 322, 1380, 1351, 2323, 595}}, // SPCS83 Ohio North zone (meters): 39.666666666666664, -82.5, 41.7, 40.43333333333333, 600000, 0
    {13432, Method::lambertConic2, 181419, {1289, 322, 1340, 1307, 2323, 595}}, // SPCS83 Ohio South zone (meters): 38, -82.5, 40.03333333333333, 38.733333333333334, 600000, 0
    {13433, Method::lambertConic2, 181371, {1329, 322, 1380, 1351, 2323, 595}}, // SPCS83 Ohio North zone (US Survey feet): 39.666666666666664, -82.5, 41.7, 40.43333333333333, 600000, 0
    {13434, Method::lambertConic2, 181401, {1289, 322, 1340, 1307, 2323, 595}}, // SPCS83 Ohio South zone (US Survey feet): 38, -82.5, 40.03333333333333, 38.733333333333334, 600000, 0
    {13501, Method::lambertConic2, 143436, {1246, 171, 1255, 1268, 2325, 595}}, // Oklahoma CS27 North zone: 35, -98, 35.56666666666667, 36.766666666666666, 609601.2192024384, 0
    {13502, Method::lambertConic2, 143449, {1219, 171, 1227, 1250, 2325, 595}}, // Oklahoma CS27 South zone: 33.333333333333336, -98, 33.93333333333333, 35.233333333333334, 609601.2192024384, 0
    {13531, Method::lambertConic2, 181451, {1246, 171, 1268, 1255, 2323, 595}}, // SPCS83 Oklahoma North zone (meters): 35, -98, 36.766666666666666, 35.56666666666667, 600000, 0
    {13532, Method::lambertConic2, 181485, {1219, 171, 1250, 1227, 2323, 595}}, // SPCS83 Oklahoma South zone (meters): 33.333333333333336, -98, 35.233333333333334, 33.93333333333333, 600000, 0
    {13601, Method::lambertConic2, 144230, {1434, 97, 1451, 1506, 2325, 595}}, // Oregon CS27 North zone: 43.666666666666664, -120.5, 44.333333333333336, 46, 609601.2192024384, 0
    {13602, Method::lambertConic2, 144239, {1379, 97, 1396, 1440, 2325, 595}}, // Oregon CS27 South zone: 41.666666666666664, -120.5, 42.333333333333336, 44, 609601.2192024384, 0
    {13631, Method::lambertConic2, 181516, {1434, 97, 1506, 1451, 2478, 595}}, // SPCS83 Oregon North zone (meters): 43.666666666666664, -120.5, 46, 44.333333333333336, 2500000, 0
    {13632, Method::lambertConic2, 181544, {1379, 97, 1440, 1396, 2439, 595}}, // SPCS83 Oregon South zone (meters): 41.666666666666664, -120.5, 44, 42.333333333333336, 1500000, 0
    {13633, Method::lambertConic2, 144928, {1382, 97, 1414, 1487, 2294, 595}}, // Oregon Lambert (meters): 41.75, -120.5, 43, 45.5, 400000, 0
    {13701, Method::lambertConic2, 149171, {1343, 338, 1363, 1388, 2325, 595}}, // Pennsylvania CS27 North zone: 40.166666666666664, -77.75, 40.88333333333333, 41.95, 609601.2192024384, 0
    {13702, Method::lambertConic2, 149187, {1323, 338, 1337, 1361, 2325, 595}}, // Pennsylvania CS27 South zone: 39.333333333333336, -77.75, 39.93333333333333, 40.8, 609601.2192024384, 0
    {13731, Method::lambertConic2, 181578, {1343, 338, 1388, 1363, 2323, 595}}, // SPCS83 Pennsylvania North zone (meters): 40.166666666666664, -77.75, 41.95, 40.88333333333333, 600000, 0
    {13732, Method::lambertConic2, 181618, {1323, 338, 1366, 1337, 2323, 595}}, // SPCS83 Pennsylvania South zone (meters): 39.333333333333336, -77.75, 40.96666666666667, 39.93333333333333, 600000, 0
    {13800, Method::transverseMercator, 173313, {1369, 392, 739, 2150, 595}}, // Rhode Island CS27: 41.083333333333336, -71.5, 0.9999938, 152400.3048006096, 0
    {13830, Method::transverseMercator, 181680, {1369, 392, 738, 2064, 595}}, // SPCS83 Rhode Island zone (meters): 41.083333333333336, -71.5, 0.99999375, 100000, 0
    {13901, Method::lambertConic2, 188369, {1215, 326, 1223, 1245, 2325, 595}}, // South Carolina CS27 North zone: 33, -81, 33.766666666666666, 34.96666666666667, 609601.2192024384, 0
    {13902, Method::lambertConic2, 188382, {1203, 326, 1209, 1221, 2325, 595}}, // South Carolina CS27 South zone: 31.833333333333332, -81, 32.333333333333336, 33.666666666666664, 609601.2192024384, 0
    {13930, Method::lambertConic2, 181714, {1203, 326, 1242, 1210, 2324, 595}}, // SPCS83 South Carolina zone (meters): 31.833333333333332, -81, 34.833333333333336, 32.5, 609600, 0
    {14001, Method::lambertConic2, 188395, {1438, 160, 1456, 1493, 2325, 595}}, // South Dakota CS27 North zone: 43.833333333333336, -100, 44.416666666666664, 45.68333333333333, 609601.2192024384, 0
    {14002, Method::lambertConic2, 188408, {1396, 159, 1412, 1454, 2325, 595}}, // South Dakota CS27 South zone: 42.333333333333336, -100.33333333333333, 42.833333333333336, 44.4, 609601.2192024384, 0
    {14031, Method::lambertConic2, 181747, {1438, 160, 1493, 1456, 2323, 595}}, // SPCS83 South Dakota North zone (meters): 43.833333333333336, -100, 45.68333333333333, 44.416666666666664, 600000, 0
    {14032, Method::lambertConic2, 181781, {1396, 159, 1454, 1412, 2323, 595}}, // SPCS83 South Dakota South zone (meters): 42.333333333333336, -100.33333333333333, 44.4, 42.833333333333336, 600000, 0
    {14100, Method::lambertConic2, 193560, {1238, 292, 1251, 1263, 1980, 595}}, // Tennessee CS27: 34.666666666666664, -86, 35.25, 36.416666666666664, 30480.06096012192, 0
    {14130, Method::lambertConic2, 181815, {1234, 292, 1263, 1251, 2323, 595}}, // SPCS83 Tennessee zone (meters): 34.333333333333336, -86, 36.416666666666664, 35.25, 600000, 0
    {14201, Method::lambertConic2, 193751, {1229, 153, 1237, 1259, 2325, 595}}, // Texas CS27 North zone: 34, -101.5, 34.65, 36.18333333333333, 609601.2192024384, 0
    {14202, Method::lambertConic2, 193736, {1198, 172, 1206, 1228, 2325, 595}}, // Texas CS27 North Central zone: 31.666666666666668, -97.5, 32.13333333333333, 33.96666666666667, 609601.2192024384, 0
    {14203, Method::lambertConic2, 193723, {1180, 159, 1184, 1204, 2325, 595}}, // Texas CS27 Central zone: 29.666666666666668, -100.33333333333333, 30.116666666666667, 31.883333333333333, 609601.2192024384, 0
    {14204, Method::lambertConic2, 193763, {1159, 165, 1166, 1185, 2325, 595}}, // Texas CS27 South Central zone: 27.833333333333332, -99, 28.383333333333333, 30.283333333333335, 609601.2192024384, 0
    {14205, Method::lambertConic2, 193778, {1140, 168, 1147, 1159, 2325, 595}}, // Texas CS27 South zone: 25.666666666666668, -98.5, 26.166666666666668, 27.833333333333332, 609601.2192024384, 0
    {14231, Method::lambertConic2, 181920, {1229, 153, 1259, 1237, 2198, 2391}}, // SPCS83 Texas North zone (meters): 34, -101.5, 36.18333333333333, 34.65, 200000, 1000000
    {14232, Method::lambertConic2, 181885, {1198, 168, 1228, 1206, 2323, 2461}}, // SPCS83 Texas North Central zone (meters): 31.666666666666668, -98.5, 33.96666666666667, 32.13333333333333, 600000, 2000000
    {14233, Method::lambertConic2, 181849, {1180, 159, 1204, 1184, 2341, 2500}}, // SPCS83 Texas Central zone (meters): 29.666666666666668, -100.33333333333333, 31.883333333333333, 30.116666666666667, 700000, 3000000
    {14234, Method::lambertConic2, 181955, {1159, 165, 1185, 1166, 2323, 2522}}, // SPCS83 Texas South Central zone (meters): 27.833333333333332, -99, 30.283333333333335, 28.383333333333333, 600000, 4000000
    {14235, Method::lambertConic2, 181990, {1140, 168, 1159, 1147, 2275, 2536}}, // SPCS83 Texas South zone (meters): 25.666666666666668, -98.5, 27.833333333333332, 26.166666666666668, 300000, 5000000
    {14251, Method::lambertConic2, 193790, {1195, 160, 1155, 1243, 2391, 2391}}, // Texas State Mapping System (meters): 31.166666666666668, -100, 27.416666666666668, 34.916666666666664, 1000000, 1000000
    {14252, Method::lambertConic2, 99446, {1195, 160, 1155, 1243, 2376, 2376}}, // Shackleford: 31.166666666666668, -100, 27.416666666666668, 34.916666666666664, 914400, 914400
    {14253, Method::lambertConic2, 104045, {1052, 160, 1156, 1246, 2439, 2536}}, // Texas Centric Lambert Conformal: 18, -100, 27.5, 35, 1500000, 5000000
    {14254, Method::albers, 104023, {1052, 160, 1156, 1246, 2439, 2555}}, // Texas Centric Albers Equal Area: 18, -100, 27.5, 35, 1500000, 6000000
    {14301, Method::lambertConic2, 207182, {1348, 129, 1359, 1383, 2325, 595}}, // Utah CS27 North zone: 40.333333333333336, -111.5, 40.71666666666667, 41.78333333333333, 609601.2192024384, 0
    {14302, Method::lambertConic2, 207170, {1295, 129, 1315, 1356, 2325, 595}}, // Utah CS27 Central zone: 38.333333333333336, -111.5, 39.016666666666666, 40.65, 609601.2192024384, 0
    {14303, Method::lambertConic2, 207193, {1265, 129, 1273, 1296, 2325, 595}}, // Utah CS27 South zone: 36.666666666666664, -111.5, 37.21666666666667, 38.35, 609601.2192024384, 0
    {14331, Method::lambertConic2, 182092, {1348, 129, 1383, 1359, 2308, 2391}}, // SPCS83 Utah North zone (meters): 40.333333333333336, -111.5, 41.78333333333333, 40.71666666666667, 500000, 1000000
    {14332, Method::lambertConic2, 182042, {1295, 129, 1356, 1315, 2308, 2461}}, // SPCS83 Utah Central zone (meters): 38.333333333333336, -111.5, 40.65, 39.016666666666666, 500000, 2000000
    {14333, Method::lambertConic2, 182141, {1265, 129, 1296, 1273, 2308, 2500}}, // SPCS83 Utah South zone (meters): 36.666666666666664, -111.5, 38.35, 37.21666666666667, 500000, 3000000
    {14400, Method::transverseMercator, 208319, {1397, 386, 727, 2150, 595}}, // Vermont CS27: 42.5, -72.5, 0.999964286, 152400.3048006096, 0
    {14430, Method::transverseMercator, 182172, {1397, 386, 727, 2308, 595}}, // SPCS83 Vermont zone (meters): 42.5, -72.5, 0.999964286, 500000, 0
    {14501, Method::lambertConic2, 223531, {1280, 336, 1290, 1320, 2325, 595}}, // Virginia CS27 North zone: 37.666666666666664, -78.5, 38.03333333333333, 39.2, 609601.2192024384, 0
    {14502, Method::lambertConic2, 223545, {1262, 336, 1268, 1288, 2325, 595}}, // Virginia CS27 South zone: 36.333333333333336, -78.5, 36.766666666666666, 37.96666666666667, 609601.2192024384, 0
    {14531, Method::lambertConic2, 182204, {1280, 336, 1320, 1290, 2508, 2461}}, // SPCS83 Virginia North zone (meters): 37.666666666666664, -78.5, 39.2, 38.03333333333333, 3500000, 2000000
    {14532, Method::lambertConic2, 182236, {1262, 336, 1288, 1268, 2508, 2391}}, // SPCS83 Virginia South zone (meters): 36.333333333333336, -78.5, 37.96666666666667, 36.766666666666666, 3500000, 1000000
    {14601, Method::lambertConic2, 223127, {1521, 96, 1530, 1544, 2325, 595}}, // Washington CS27 North zone: 47, -120.83333333333333, 47.5, 48.733333333333334, 609601.2192024384, 0
    {14602, Method::lambertConic2, 223141, {1482, 97, 1499, 1527, 2325, 595}}, // Washington CS27 South zone: 45.333333333333336, -120.5, 45.833333333333336, 47.333333333333336, 609601.2192024384, 0
    {14631, Method::lambertConic2, 182270, {1521, 96, 1544, 1530, 2308, 595}}, // SPCS83 Washington North zone (meters): 47, -120.83333333333333, 48.733333333333334, 47.5, 500000, 0
    {14632, Method::lambertConic2, 182307, {1482, 97, 1527, 1499, 2308, 595}}, // SPCS83 Washington South zone (meters): 45.333333333333336, -120.5, 47.333333333333336, 45.833333333333336, 500000, 0
    {14701, Method::lambertConic2, 223529, {1300, 332, 1314, 1345, 2325, 595}}, // West Virginia CS27 North zone: 38.5, -79.5, 39, 40.25, 609601.2192024384, 0
    {14702, Method::lambertConic2, 223543, {1269, 326, 1278, 1310, 2325, 595}}, // West Virginia CS27 South zone: 37, -81, 37.483333333333334, 38.88333333333333, 609601.2192024384, 0
    {14731, Method::lambertConic2, 182344, {1300, 332, 1345, 1314, 2323, 595}}, // SPCS83 West Virginia North zone (meters): 38.5, -79.5, 40.25, 39, 600000, 0
    {14732, Method::lambertConic2, 182380, {1269, 326, 1310, 1278, 2323, 595}}, // SPCS83 West Virginia South zone (meters): 37, -81, 38.88333333333333, 37.483333333333334, 600000, 0
    {14733, Method::lambertConic2, 182323, {1300, 332, 1345, 1314, 2458, 595}}, // SPCS83 West Virginia North zone (US Survey feet): 38.5, -79.5, 40.25, 39, 1968500, 0
    {14734, Method::lambertConic2, 182359, {1269, 326, 1310, 1278, 2458, 595}}, // SPCS83 West Virginia South zone (US Survey feet): 37, -81, 38.88333333333333, 37.483333333333334, 1968500, 0
    {14735, Method::lambertConic2, 182323, {1300, 332, 1345, 1314, 2323, 595}}, // SPCS83 West Virginia North zone (US Survey feet): 38.5, -79.5, 40.25, 39, 600000, 0
    {14736, Method::lambertConic2, 182359, {1269, 326, 1310, 1278, 2323, 595}}, // SPCS83 West Virginia South zone (US Survey feet): 37, -81, 38.88333333333333, 37.483333333333334, 600000, 0
    {14801, Method::lambertConic2, 223895, {1477, 234, 1488, 1517, 2325, 595}}, // Wisconsin CS27 North zone: 45.166666666666664, -90, 45.56666666666667, 46.766666666666666, 609601.2192024384, 0
    {14802, Method::lambertConic2, 223880, {1438, 234, 1449, 1487, 2325, 595}}, // Wisconsin CS27 Central zone: 43.833333333333336, -90, 44.25, 45.5, 609601.2192024384, 0
    {14803, Method::lambertConic2, 223909, {1389, 234, 1408, 1444, 2325, 595}}, // Wisconsin CS27 South zone: 42, -90, 42.733333333333334, 44.06666666666667, 609601.2192024384, 0
    {14811, Method::transverseMercator, 223923, {595, 234, 673, 2308, 10}}, // Wisconsin Transverse Mercator 27: 0, -90, 0.9996, 500000, -4500000
    {14831, Method::lambertConic2, 182454, {1477, 234, 1517, 1488, 2323, 595}}, // SPCS83 Wisconsin North zone (meters): 45.166666666666664, -90, 46.766666666666666, 45.56666666666667, 600000, 0
    {14832, Method::lambertConic2, 182417, {1438, 234, 1487, 1449, 2323, 595}}, // SPCS83 Wisconsin Central zone (meters): 43.833333333333336, -90, 45.5, 44.25, 600000, 0
    {14833, Method::lambertConic2, 182490, {1389, 234, 1444, 1408, 2323, 595}}, // SPCS83 Wisconsin South zone (meters): 42, -90, 44.06666666666667, 42.733333333333334, 600000, 0
    {14841, Method::transverseMercator, 223946, {595, 234, 673, 2315, 11}}, // Wisconsin Transverse Mercator 83: 0, -90, 0.9996, 520000, -4480000
    {14901, Method::transverseMercator, 227495, {1357, 147, 717, 2150, 595}}, // Wyoming CS27 East zone: 40.666666666666664, -105.16666666666667, 0.999941177, 152400.3048006096, 0
    {14902, Method::transverseMercator, 227478, {1357, 144, 717, 2150, 595}}, // Wyoming CS27 East Central zone: 40.666666666666664, -107.33333333333333, 0.999941177, 152400.3048006096, 0
    {14903, Method::transverseMercator, 227509, {1357, 137, 717, 2150, 595}}, // Wyoming CS27 West Central zone: 40.666666666666664, -108.75, 0.999941177, 152400.3048006096, 0
    {14904, Method::transverseMercator, 227526, {1357, 135, 717, 2150, 595}}, // Wyoming CS27 West zone: 40.666666666666664, -110.08333333333333, 0.999941177, 152400.3048006096, 0
    {14930, Method::lambertConic2, 104820, {1367, 143, 1367, 1473, 2308, 2198}}, // Wyoming Lambert: 41, -107.5, 41, 45, 500000, 200000
    {14931, Method::transverseMercator, 182568, {1353, 147, 715, 2198, 595}}, // SPCS83 Wyoming East zone (meters): 40.5, -105.16666666666667, 0.9999375, 200000, 0
    {14932, Method::transverseMercator, 182529, {1353, 144, 715, 2294, 2064}}, // SPCS83 Wyoming East Central zone (meters): 40.5, -107.33333333333333, 0.9999375, 400000, 100000
    {14933, Method::transverseMercator, 182607, {1353, 137, 715, 2323, 595}}, // SPCS83 Wyoming West Central zone (meters): 40.5, -108.75, 0.9999375, 600000, 0
    {14934, Method::transverseMercator, 182646, {1353, 135, 715, 2347, 2064}}, // SPCS83 Wyoming West zone (meters): 40.5, -110.08333333333333, 0.9999375, 800000, 100000
    {14935, Method::transverseMercator, 182547, {1353, 147, 715, 2199, 595}}, // SPCS83 Wyoming East zone (US Survey feet): 40.5, -105.16666666666667, 0.9999375, 200000.00001016003, 0
    {14936, Method::transverseMercator, 182505, {1353, 144, 715, 2292, 2062}}, // SPCS83 Wyoming East Central zone (US Survey feet): 40.5, -107.33333333333333, 0.9999375, 399999.99998983997, 99999.99998983998
    {14937, Method::transverseMercator, 182583, {1353, 137, 715, 2323, 595}}, // SPCS83 Wyoming West Central zone (US Survey feet): 40.5, -108.75, 0.9999375, 600000, 0
    {14938, Method::transverseMercator, 182625, {1353, 135, 715, 2348, 2062}}, // SPCS83 Wyoming West zone (US Survey feet): 40.5, -110.08333333333333, 0.9999375, 800000.00001016, 99999.99998983998
    {15001, Method::hotineA, 5982, {1602, 73, 1937, 1937, 700, 2538, 5}}, // Alaska CS27 zone 1: 57, -133.66666666666666, 323.13010236111114, 323.13010236111114, 0.9999, 5000000.001016002, -5000000.001016002
    {15002, Method::transverseMercator, 6003, {1591, 70, 700, 2150, 595}}, // Alaska CS27 zone 2: 54, -142, 0.9999, 152400.3048006096, 0
    {15003, Method::transverseMercator, 6013, {1591, 68, 700, 2150, 595}}, // Alaska CS27 zone 3: 54, -146, 0.9999, 152400.3048006096, 0
    {15004, Method::transverseMercator, 6023, {1591, 66, 700, 2150, 595}}, // Alaska CS27 zone 4: 54, -150, 0.9999, 152400.3048006096, 0
    {15005, Method::transverseMercator, 6033, {1591, 64, 700, 2150, 595}}, // Alaska CS27 zone 5: 54, -154, 0.9999, 152400.3048006096, 0
    {15006, Method::transverseMercator, 6043, {1591, 60, 700, 2150, 595}}, // Alaska CS27 zone 6: 54, -158, 0.9999, 152400.3048006096, 0
    {15007, Method::transverseMercator, 6053, {1591, 56, 700, 2211, 595}}, // Alaska CS27 zone 7: 54, -162, 0.9999, 213360.42672085343, 0
    {15008, Method::transverseMercator, 6063, {1591, 53, 700, 2150, 595}}, // Alaska CS27 zone 8: 54, -166, 0.9999, 152400.3048006096, 0
    {15009, Method::transverseMercator, 6073, {1591, 51, 700, 2176, 595}}, // Alaska CS27 zone 9: 54, -170, 0.9999, 182880.3657607315, 0
    {15010, Method::lambertConic2, 5992, {1561, 48, 1590, 1568, 2377, 595}}, // Alaska CS27 zone 10: 51, -176, 53.833333333333336, 51.833333333333336, 914401.8288036576, 0
    {15020, Method::albers, 97594, {1554, 64, 1594, 1623, 595, 595}}, // Alaska Albers: 50, -154, 55, 65, 0, 0
    {15021, Method::albers, 5968, {1554, 64, 1594, 1623, 595, 595}}, // Alaska Albers (meters): 50, -154, 55, 65, 0, 0
    {15031, Method::hotineA, 178688, {1602, 73, 1937, 1937, 700, 2536, 6}}, // SPCS83 Alaska zone 1 (meters): 57, -133.66666666666666, 323.13010236111114, 323.13010236111114, 0.9999, 5000000, -5000000
    {15032, Method::transverseMercator, 178716, {1591, 70, 700, 2308, 595}}, // SPCS83 Alaska zone 2 (meters): 54, -142, 0.9999, 500000, 0
    {15033, Method::transverseMercator, 178730, {1591, 68, 700, 2308, 595}}, // SPCS83 Alaska zone 3 (meters): 54, -146, 0.9999, 500000, 0
    {15034, Method::transverseMercator, 178744, {1591, 66, 700, 2308, 595}}, // SPCS83 Alaska zone 4 (meters): 54, -150, 0.9999, 500000, 0
    {15035, Method::transverseMercator, 178758, {1591, 64, 700, 2308, 595}}, // SPCS83 Alaska zone 5 (meters): 54, -154, 0.9999, 500000, 0
    {15036, Method::transverseMercator, 178772, {1591, 60, 700, 2308, 595}}, // SPCS83 Alaska zone 6 (meters): 54, -158, 0.9999, 500000, 0
    {15037, Method::transverseMercator, 178786, {1591, 56, 700, 2308, 595}}, // SPCS83 Alaska zone 7 (meters): 54, -162, 0.9999, 500000, 0
    {15038, Method::transverseMercator, 178800, {1591, 53, 700, 2308, 595}}, // SPCS83 Alaska zone 8 (meters): 54, -166, 0.9999, 500000, 0
    {15039, Method::transverseMercator, 178814, {1591, 51, 700, 2308, 595}}, // SPCS83 Alaska zone 9 (meters): 54, -170, 0.9999, 500000, 0
    {15040, Method::lambertConic2, 178702, {1561, 48, 1590, 1568, 2391, 595}}, // SPCS83 Alaska zone 10 (meters): 51, -176, 53.833333333333336, 51.833333333333336, 1000000, 0
    {15101, Method::transverseMercator, 67426, {1063, 62, 728, 2150, 595}}, // Hawaii CS27 zone 1: 18.833333333333332, -155.5, 0.999966667, 152400.3048006096, 0
    {15102, Method::transverseMercator, 67438, {1080, 61, 728, 2150, 595}}, // Hawaii CS27 zone 2: 20.333333333333332, -156.66666666666666, 0.999966667, 152400.3048006096, 0
    {15103, Method::transverseMercator, 67450, {1087, 60, 735, 2150, 595}}, // Hawaii CS27 zone 3: 21.166666666666668, -158, 0.99999, 152400.3048006096, 0
    {15104, Method::transverseMercator, 67462, {1094, 58, 735, 2150, 595}}, // Hawaii CS27 zone 4: 21.833333333333332, -159.5, 0.99999, 152400.3048006096, 0
    {15105, Method::transverseMercator, 67474, {1091, 57, 751, 2150, 595}}, // Hawaii CS27 zone 5: 21.666666666666668, -160.16666666666666, 1, 152400.3048006096, 0
    {15131, Method::transverseMercator, 179543, {1063, 62, 728, 2308, 595}}, // SPCS83 Hawaii zone 1 (meters): 18.833333333333332, -155.5, 0.999966667, 500000, 0
    {15132, Method::transverseMercator, 179558, {1080, 61, 728, 2308, 595}}, // SPCS83 Hawaii zone 2 (meters): 20.333333333333332, -156.66666666666666, 0.999966667, 500000, 0
    {15133, Method::transverseMercator, 179594, {1087, 60, 735, 2308, 595}}, // SPCS83 Hawaii zone 3 (meters): 21.166666666666668, -158, 0.99999, 500000, 0
    {15134, Method::transverseMercator, 179609, {1094, 58, 735, 2308, 595}}, // SPCS83 Hawaii zone 4 (meters): 21.833333333333332, -159.5, 0.99999, 500000, 0
    {15135, Method::transverseMercator, 179624, {1091, 57, 751, 2308, 595}}, // SPCS83 Hawaii zone 5 (meters): 21.666666666666668, -160.16666666666666, 1, 500000, 0
    {15138, Method::transverseMercator, 179573, {1087, 60, 735, 2309, 595}}, // SPCS83 Hawaii zone 3 (US Survey feet): 21.166666666666668, -158, 0.99999, 500000.00001016003, 0
    {15201, Method::lambertConic2, 152000, {1051, 418, 1059, 1053, 2150, 595}}, // Puerto Rico CS27: 17.833333333333332, -66.43333333333334, 18.433333333333334, 18.033333333333335, 152400.3048006096, 0
    {15202, Method::lambertConic2, 189601, {1051, 418, 1059, 1053, 2150, 1980}}, // St. Croix CS27: 17.833333333333332, -66.43333333333334, 18.433333333333334, 18.033333333333335, 152400.3048006096, 30480.06096012192
    {15230, Method::lambertConic2, 181635, {1051, 418, 1059, 1053, 2198, 2198}}, // SPCS83 Puerto Rico & Virgin Islands zone (meters): 17.833333333333332, -66.43333333333334, 18.433333333333334, 18.033333333333335, 200000, 200000
    {15297, Method::lambertConic2, 182074, {1348, 129, 1383, 1359, 2309, 2389}}, // SPCS83 Utah North zone (US Survey feet): 40.333333333333336, -111.5, 41.78333333333333, 40.71666666666667, 500000.00001016003, 999999.99998984
    {15298, Method::lambertConic2, 182023, {1295, 129, 1356, 1315, 2309, 2462}}, // SPCS83 Utah Central zone (US Survey feet): 38.333333333333336, -111.5, 40.65, 39.016666666666666, 500000.00001016003, 2000000.00001016
    {15299, Method::lambertConic2, 182123, {1265, 129, 1296, 1273, 2309, 2500}}, // SPCS83 Utah South zone (US Survey feet): 36.666666666666664, -111.5, 38.35, 37.21666666666667, 500000.00001016003, 3000000
    {15300, Method::lambertConic1, 6949, {553, 1868, 751, 2150, 595}}, // American Samoa Lambert: -14.266666666666667, 170, 1, 152400.3048006096, 0
    {15301, Method::lambertConic1, 6949, {553, 51, 751, 2150, 595}}, // American Samoa Lambert: -14.266666666666667, -170, 1, 152400.3048006096, 0
    {15302, Method::lambertConic2, 193560, {1238, 292, 1251, 1263, 2325, 1980}}, // Tennessee CS27: 34.666666666666664, -86, 35.25, 36.416666666666664, 609601.2192024384, 30480.06096012192
    {15303, Method::lambertConic2, 180018, {1279, 317, 1288, 1313, 2308, 595}}, // SPCS83 Kentucky North zone (meters): 37.5, -84.25, 37.96666666666667, 38.96666666666667, 500000, 0
    {15304, Method::transverseMercator, 178863, {1193, 134, 700, 2210, 595}}, // SPCS83 Arizona East zone (International feet): 31, -110.16666666666667, 0.9999, 213360, 0
    {15305, Method::transverseMercator, 178828, {1193, 128, 700, 2210, 595}}, // SPCS83 Arizona Central zone (International feet): 31, -111.91666666666667, 0.9999, 213360, 0
    {15306, Method::transverseMercator, 178896, {1193, 122, 713, 2210, 595}}, // SPCS83 Arizona West zone (International feet): 31, -113.75, 0.999933333, 213360, 0
    {15307, Method::lambertConic2, 178997, {1323, 92, 1379, 1339, 2463, 2310}}, // SPCS83 California zone 1 (US Survey feet): 39.333333333333336, -122, 41.666666666666664, 40, 2000000.0001016003, 500000.0001016002
    {15308, Method::lambertConic2, 179033, {1280, 92, 1335, 1295, 2463, 2310}}, // SPCS83 California zone 2 (US Survey feet): 37.666666666666664, -122, 39.833333333333336, 38.333333333333336, 2000000.0001016003, 500000.0001016002
    {15309, Method::lambertConic2, 179069, {1264, 97, 1298, 1270, 2463, 2310}}, // SPCS83 California zone 3 (US Survey feet): 36.5, -120.5, 38.43333333333333, 37.06666666666667, 2000000.0001016003, 500000.0001016002
    {15310, Method::lambertConic2, 179105, {1252, 104, 1275, 1257, 2463, 2310}}, // SPCS83 California zone 4 (US Survey feet): 35.333333333333336, -119, 37.25, 36, 2000000.0001016003, 500000.0001016002
    {15311, Method::lambertConic2, 179141, {1220, 108, 1253, 1230, 2463, 2310}}, // SPCS83 California zone 5 (US Survey feet): 33.5, -118, 35.46666666666667, 34.03333333333333, 2000000.0001016003, 500000.0001016002
    {15312, Method::lambertConic2, 179177, {1207, 116, 1226, 1213, 2463, 2310}}, // SPCS83 California zone 6 (US Survey feet): 32.166666666666664, -116.25, 33.88333333333333, 32.78333333333333, 2000000.0001016003, 500000.0001016002
    {15313, Method::lambertConic2, 179247, {1323, 146, 1360, 1332, 2377, 2280}}, // SPCS83 Colorado North zone (US Survey feet): 39.333333333333336, -105.5, 40.78333333333333, 39.71666666666667, 914401.8288036576, 304800.6096012192
    {15314, Method::lambertConic2, 179213, {1284, 146, 1333, 1299, 2377, 2280}}, // SPCS83 Colorado Central zone (US Survey feet): 37.833333333333336, -105.5, 39.75, 38.45, 914401.8288036576, 304800.6096012192
    {15315, Method::lambertConic2, 179277, {1265, 146, 1298, 1274, 2377, 2280}}, // SPCS83 Colorado South zone (US Survey feet): 36.666666666666664, -105.5, 38.43333333333333, 37.233333333333334, 914401.8288036576, 304800.6096012192
    {15316, Method::lambertConic2, 179307, {1362, 382, 1386, 1370, 2280, 2150}}, // SPCS83 Connecticut zone (US Survey feet): 40.833333333333336, -72.75, 41.86666666666667, 41.2, 304800.6096012192, 152400.3048006096
    {15317, Method::transverseMercator, 179343, {1289, 359, 742, 2200, 595}}, // SPCS83 Delaware zone (US Survey feet): 38, -75.41666666666667, 0.999995, 200000.0001016002, 0
    {15318, Method::transverseMercator, 179375, {1118, 326, 717, 2200, 595}}, // SPCS83 Florida East zone (US Survey feet): 24.333333333333332, -81, 0.999941177, 200000.0001016002, 0
    {15319, Method::transverseMercator, 179441, {1118, 324, 717, 2200, 595}}, // SPCS83 Florida West zone (US Survey feet): 24.333333333333332, -82, 0.999941177, 200000.0001016002, 0
    {15320, Method::lambertConic2, 179409, {1172, 313, 1192, 1179, 2323, 595}}, // SPCS83 Florida North zone (US Survey feet): 29, -84.5, 30.75, 29.583333333333332, 600000, 0
    {15321, Method::transverseMercator, 179475, {1182, 323, 700, 2200, 595}}, // SPCS83 Georgia East zone (US Survey feet): 30, -82.16666666666667, 0.9999, 200000.0001016002, 0
    {15322, Method::transverseMercator, 179509, {1182, 318, 700, 2339, 595}}, // SPCS83 Georgia West zone (US Survey feet): 30, -84.16666666666667, 0.9999, 699999.9998983998, 0
    {15323, Method::transverseMercator, 179673, {1379, 126, 721, 2200, 595}}, // SPCS83 Idaho East zone (US Survey feet): 41.666666666666664, -112.16666666666667, 0.999947368, 200000.0001016002, 0
    {15324, Method::transverseMercator, 179639, {1379, 121, 721, 2310, 595}}, // SPCS83 Idaho Central zone (US Survey feet): 41.666666666666664, -114, 0.999947368, 500000.0001016002, 0
    {15325, Method::transverseMercator, 179705, {1379, 117, 713, 2349, 595}}, // SPCS83 Idaho West zone (US Survey feet): 41.666666666666664, -115.75, 0.999933333, 800000.0001016002, 0
    {15326, Method::transverseMercator, 179813, {1279, 300, 728, 2061, 2247}}, // SPCS83 Indiana East zone (US Survey feet): 37.5, -85.66666666666667, 0.999966667, 99999.9998983998, 249364.99872999746
    {15327, Method::transverseMercator, 179843, {1279, 278, 728, 2370, 2247}}, // SPCS83 Indiana West zone (US Survey feet): 37.5, -87.08333333333333, 0.999966667, 900000, 249364.99872999746
    {15328, Method::lambertConic2, 179997, {1279, 317, 1288, 1313, 2310, 595}}, // SPCS83 Kentucky North zone (US Survey feet): 37.5, -84.25, 37.96666666666667, 38.96666666666667, 500000.0001016002, 0
    {15329, Method::lambertConic2, 180083, {1262, 298, 1286, 1266, 2310, 2310}}, // SPCS83 Kentucky South zone (US Survey feet): 36.333333333333336, -85.75, 37.93333333333333, 36.733333333333334, 500000.0001016002, 500000.0001016002
    {15330, Method::lambertConic2, 180289, {1280, 342, 1324, 1294, 2291, 595}}, // SPCS83 Maryland zone (US Survey feet): 37.666666666666664, -77, 39.45, 38.3, 399999.9998983998, 0
    {15331, Method::lambertConic2, 180365, {1367, 392, 1406, 1381, 2200, 2343}}, // SPCS83 Massachusetts Mainland zone (US Survey feet): 41, -71.5, 42.68333333333333, 41.71666666666667, 200000.0001016002, 750000
    {15332, Method::lambertConic2, 180319, {1367, 399, 1376, 1372, 2310, 595}}, // SPCS83 Massachusetts Island zone (US Survey feet): 41, -70.5, 41.483333333333334, 41.28333333333333, 500000.0001016002, 0
    {15333, Method::lambertConic2, 180456, {1467, 280, 1524, 1486, 2574, 595}}, // SPCS83 Michigan North zone (International feet): 44.78333333333333, -87, 47.083333333333336, 45.483333333333334, 7999999.999968, 0
    {15334, Method::lambertConic2, 180417, {1423, 315, 1494, 1448, 2554, 595}}, // SPCS83 Michigan Central zone (International feet): 43.31666666666667, -84.36666666666666, 45.7, 44.18333333333333, 5999999.999976, 0
    {15335, Method::lambertConic2, 180493, {1377, 315, 1434, 1391, 2520, 595}}, // SPCS83 Michigan South zone (International feet): 41.5, -84.36666666666666, 43.666666666666664, 42.1, 3999999.999984, 0
    {15336, Method::transverseMercator, 180636, {1178, 249, 723, 2275, 595}}, // SPCS83 Mississippi East zone (US Survey feet): 29.5, -88.83333333333333, 0.99995, 300000, 0
    {15337, Method::transverseMercator, 180680, {1178, 230, 723, 2339, 595}}, // SPCS83 Mississippi West zone (US Survey feet): 29.5, -90.33333333333333, 0.99995, 699999.9998983998, 0
    {15338, Method::lambertConic2, 180772, {1449, 136, 1546, 1473, 2322, 595}}, // SPCS83 Montana zone (International feet): 44.25, -109.5, 49, 45, 599999.9999976, 0
    {15339, Method::transverseMercator, 181041, {1193, 149, 703, 2157, 595}}, // SPCS83 New Mexico East zone (US Survey feet): 31, -104.33333333333333, 0.999909091, 165000, 0
    {15340, Method::transverseMercator, 181001, {1193, 145, 700, 2310, 595}}, // SPCS83 New Mexico Central zone (US Survey feet): 31, -106.25, 0.9999, 500000.0001016002, 0
    {15341, Method::transverseMercator, 181079, {1193, 141, 705, 2359, 595}}, // SPCS83 New Mexico West zone (US Survey feet): 31, -107.83333333333333, 0.999916667, 830000.0001016002, 0
    {15342, Method::transverseMercator, 181153, {1309, 367, 700, 2141, 595}}, // SPCS83 New York East zone (US Survey feet): 38.833333333333336, -74.5, 0.9999, 150000, 0
    {15343, Method::transverseMercator, 181117, {1339, 348, 715, 2248, 595}}, // SPCS83 New York Central zone (US Survey feet): 40, -76.58333333333333, 0.9999375, 249999.9998983998, 0
    {15344, Method::transverseMercator, 181233, {1339, 335, 715, 2285, 595}}, // SPCS83 New York West zone (US Survey feet): 40, -78.58333333333333, 0.9999375, 350000.0001016002, 0
    {15345, Method::lambertConic2, 181189, {1343, 373, 1368, 1357, 2275, 595}}, // SPCS83 New York Long Island zone (US Survey feet): 40.166666666666664, -74, 41.03333333333333, 40.666666666666664, 300000, 0
    {15346, Method::lambertConic2, 181269, {1222, 334, 1258, 1234, 2325, 595}}, // SPCS83 North Carolina zone (US Survey feet): 33.75, -79, 36.166666666666664, 34.333333333333336, 609601.2192024384, 0
    {15347, Method::lambertConic2, 181301, {1521, 156, 1544, 1528, 2322, 595}}, // SPCS83 North Dakota North zone (International feet): 47, -100.5, 48.733333333333334, 47.43333333333333, 599999.9999976, 0
    {15348, Method::lambertConic2, 181336, {1492, 156, 1529, 1509, 2322, 595}}, // SPCS83 North Dakota South zone (International feet): 45.666666666666664, -100.5, 47.483333333333334, 46.18333333333333, 599999.9999976, 0
    {15349, Method::lambertConic2, 181431, {1246, 171, 1268, 1255, 2323, 595}}, // SPCS83 Oklahoma North zone (US Survey feet): 35, -98, 36.766666666666666, 35.56666666666667, 600000, 0
    {15350, Method::lambertConic2, 181465, {1219, 171, 1250, 1227, 2323, 595}}, // SPCS83 Oklahoma South zone (US Survey feet): 33.333333333333336, -98, 35.233333333333334, 33.93333333333333, 600000, 0
    {15351, Method::lambertConic2, 181499, {1434, 97, 1506, 1451, 2479, 595}}, // SPCS83 Oregon North zone (International feet): 43.666666666666664, -120.5, 46, 44.333333333333336, 2500000.0001424, 0
    {15352, Method::lambertConic2, 181526, {1379, 97, 1440, 1396, 2440, 595}}, // SPCS83 Oregon South zone (International feet): 41.666666666666664, -120.5, 44, 42.333333333333336, 1500000.0001464, 0
    {15353, Method::lambertConic2, 181555, {1343, 338, 1388, 1363, 2323, 595}}, // SPCS83 Pennsylvania North zone (US Survey feet): 40.166666666666664, -77.75, 41.95, 40.88333333333333, 600000, 0
    {15354, Method::lambertConic2, 181595, {1323, 338, 1366, 1337, 2323, 595}}, // SPCS83 Pennsylvania South zone (US Survey feet): 39.333333333333336, -77.75, 40.96666666666667, 39.93333333333333, 600000, 0
    {15355, Method::lambertConic2, 181694, {1203, 326, 1242, 1210, 2324, 595}}, // SPCS83 South Carolina zone (International feet): 31.833333333333332, -81, 34.833333333333336, 32.5, 609600, 0
    {15356, Method::lambertConic2, 181795, {1234, 292, 1263, 1251, 2323, 595}}, // SPCS83 Tennessee zone (US Survey feet): 34.333333333333336, -86, 36.416666666666664, 35.25, 600000, 0
    {15357, Method::lambertConic2, 181901, {1229, 153, 1259, 1237, 2200, 2388}}, // SPCS83 Texas North zone (US Survey feet): 34, -101.5, 36.18333333333333, 34.65, 200000.0001016002, 999999.9998983998
    {15358, Method::lambertConic2, 181863, {1198, 168, 1228, 1206, 2323, 2463}}, // SPCS83 Texas North Central zone (US Survey feet): 31.666666666666668, -98.5, 33.96666666666667, 32.13333333333333, 600000, 2000000.0001016003
    {15359, Method::lambertConic2, 181829, {1180, 159, 1204, 1184, 2339, 2500}}, // SPCS83 Texas Central zone (US Survey feet): 29.666666666666668, -100.33333333333333, 31.883333333333333, 30.116666666666667, 699999.9998983998, 3000000
    {15360, Method::lambertConic2, 181933, {1159, 165, 1185, 1166, 2323, 2519}}, // SPCS83 Texas South Central zone (US Survey feet): 27.833333333333332, -99, 30.283333333333335, 28.383333333333333, 600000, 3999999.9998983997
    {15361, Method::lambertConic2, 181971, {1140, 168, 1159, 1147, 2275, 2537}}, // SPCS83 Texas South zone (US Survey feet): 25.666666666666668, -98.5, 27.833333333333332, 26.166666666666668, 300000, 5000000.0001016
    {15362, Method::lambertConic2, 182055, {1348, 129, 1383, 1359, 2311, 2390}}, // SPCS83 Utah North zone (International feet): 40.333333333333336, -111.5, 41.78333333333333, 40.71666666666667, 500000.0001504, 999999.999996
    {15363, Method::lambertConic2, 182003, {1295, 129, 1356, 1315, 2311, 2460}}, // SPCS83 Utah Central zone (International feet): 38.333333333333336, -111.5, 40.65, 39.016666666666666, 500000.0001504, 1999999.999992
    {15364, Method::lambertConic2, 182104, {1265, 129, 1296, 1273, 2311, 2499}}, // SPCS83 Utah South zone (International feet): 36.666666666666664, -111.5, 38.35, 37.21666666666667, 500000.0001504, 2999999.999988
    {15365, Method::lambertConic2, 182185, {1280, 336, 1320, 1290, 2509, 2463}}, // SPCS83 Virginia North zone (US Survey feet): 37.666666666666664, -78.5, 39.2, 38.03333333333333, 3500000.0001016003, 2000000.0001016003
    {15366, Method::lambertConic2, 182217, {1262, 336, 1288, 1268, 2509, 2388}}, // SPCS83 Virginia South zone (US Survey feet): 36.333333333333336, -78.5, 37.96666666666667, 36.766666666666666, 3500000.0001016003, 999999.9998983998
    {15367, Method::lambertConic2, 182249, {1521, 96, 1544, 1530, 2310, 595}}, // SPCS83 Washington North zone (US Survey feet): 47, -120.83333333333333, 48.733333333333334, 47.5, 500000.0001016002, 0
    {15368, Method::lambertConic2, 182285, {1482, 97, 1527, 1499, 2310, 595}}, // SPCS83 Washington South zone (US Survey feet): 45.333333333333336, -120.5, 47.333333333333336, 45.833333333333336, 500000.0001016002, 0
    {15369, Method::lambertConic2, 182433, {1477, 234, 1517, 1488, 2323, 595}}, // SPCS83 Wisconsin North zone (US Survey feet): 45.166666666666664, -90, 46.766666666666666, 45.56666666666667, 600000, 0
    {15370, Method::lambertConic2, 182395, {1438, 234, 1487, 1449, 2323, 595}}, // SPCS83 Wisconsin Central zone (US Survey feet): 43.833333333333336, -90, 45.5, 44.25, 600000, 0
    {15371, Method::lambertConic2, 182469, {1389, 234, 1444, 1408, 2323, 595}}, // SPCS83 Wisconsin South zone (US Survey feet): 42, -90, 44.06666666666667, 42.733333333333334, 600000, 0
    {15372, Method::transverseMercator, 179813, {1279, 300, 728, 2061, 2248}}, // SPCS83 Indiana East zone (US Survey feet): 37.5, -85.66666666666667, 0.999966667, 99999.9998983998, 249999.9998983998
    {15373, Method::transverseMercator, 179843, {1279, 278, 728, 2370, 2248}}, // SPCS83 Indiana West zone (US Survey feet): 37.5, -87.08333333333333, 0.999966667, 900000, 249999.9998983998
    {15374, Method::lambertConic2, 144739, {1382, 97, 1414, 1487, 2293, 595}}, // Oregon GIC Lambert (International feet): 41.75, -120.5, 43, 45.5, 399999.9999984, 0
    {15375, Method::lambertConic2, 180033, {1262, 298, 1271, 1304, 2439, 2388}}, // SPCS83 Kentucky Single Zone (US Survey feet): 36.333333333333336, -85.75, 37.083333333333336, 38.666666666666664, 1500000, 999999.9998983998
    {15376, Method::lambertConic1, 6949, {553, 51, 751, 2150, 2060}}, // American Samoa Lambert: -14.266666666666667, -170, 1, 152400.3048006096, 95169.31165862332
    {15377, Method::lambertConic2, 179873, {1377, 189, 1422, 1390, 2439, 2389}}, // SPCS83 Iowa North zone (US Survey feet): 41.5, -93.5, 43.266666666666666, 42.06666666666667, 1500000, 999999.99998984
    {15378, Method::lambertConic2, 179903, {1339, 189, 1383, 1355, 2309, 595}}, // SPCS83 Iowa South zone (US Survey feet): 40, -93.5, 41.78333333333333, 40.61666666666667, 500000.00001016003, 0
    {15379, Method::lambertConic2, 179933, {1295, 171, 1334, 1306, 2292, 595}}, // SPCS83 Kansas North zone (US Survey feet): 38.333333333333336, -98, 39.78333333333333, 38.71666666666667, 399999.99998983997, 0
    {15380, Method::lambertConic2, 179965, {1265, 168, 1302, 1276, 2292, 2292}}, // SPCS83 Kansas South zone (US Survey feet): 36.666666666666664, -98.5, 38.56666666666667, 37.266666666666666, 399999.99998983997, 399999.99998983997
    {15381, Method::transverseMercator, 180869, {1239, 118, 700, 2199, 2576}}, // SPCS83 Nevada East zone (US Survey feet): 34.75, -115.58333333333333, 0.9999, 200000.00001016003, 8000000.00001016
    {15382, Method::transverseMercator, 180835, {1239, 115, 700, 2309, 2555}}, // SPCS83 Nevada Central zone (US Survey feet): 34.75, -116.66666666666667, 0.9999, 500000.00001016003, 6000000
    {15383, Method::transverseMercator, 180901, {1239, 105, 700, 2348, 2521}}, // SPCS83 Nevada West zone (US Survey feet): 34.75, -118.58333333333333, 0.9999, 800000.00001016, 3999999.99998984
    {15384, Method::transverseMercator, 180969, {1309, 367, 700, 2141, 595}}, // SPCS83 New Jersey zone (US Survey feet): 38.833333333333336, -74.5, 0.9999, 150000, 0
    {15385, Method::lambertConic2, 178929, {1234, 199, 1260, 1244, 2292, 595}}, // SPCS83 Arkansas North zone (US Survey feet): 34.333333333333336, -92, 36.233333333333334, 34.93333333333333, 399999.99998983997, 0
    {15386, Method::lambertConic2, 178963, {1211, 199, 1241, 1217, 2292, 2292}}, // SPCS83 Arkansas South zone (US Survey feet): 32.666666666666664, -92, 34.766666666666666, 33.3, 399999.99998983997, 399999.99998983997
    {15387, Method::transverseMercator, 179737, {1265, 259, 730, 2275, 595}}, // SPCS83 Illinois East zone (US Survey feet): 36.666666666666664, -88.33333333333333, 0.999975, 300000, 0
    {15388, Method::transverseMercator, 179775, {1265, 232, 717, 2340, 595}}, // SPCS83 Illinois West zone (US Survey feet): 36.666666666666664, -90.16666666666667, 0.999941177, 699999.99998984, 0
    {15389, Method::transverseMercator, 180933, {1397, 390, 728, 2275, 595}}, // SPCS83 New Hampshire zone (US Survey feet): 42.5, -71.66666666666667, 0.999966667, 300000, 0
    {15390, Method::transverseMercator, 181660, {1369, 392, 738, 2062, 595}}, // SPCS83 Rhode Island zone (US Survey feet): 41.083333333333336, -71.5, 0.99999375, 99999.99998983998, 0
    {15391, Method::lambertConic2, 180121, {1189, 195, 1211, 1195, 2389, 595}}, // SPCS83 Louisiana North zone (US Survey feet): 30.5, -92.5, 32.666666666666664, 31.166666666666668, 999999.99998984, 0
    {15392, Method::lambertConic2, 180193, {1168, 208, 1191, 1175, 2389, 595}}, // SPCS83 Louisiana South zone (US Survey feet): 28.5, -91.33333333333333, 30.7, 29.3, 999999.99998984, 0
    {15393, Method::lambertConic2, 180153, {1137, 208, 1159, 1147, 2389, 595}}, // SPCS83 Louisiana Offshore zone (US Survey feet): 25.5, -91.33333333333333, 27.833333333333332, 26.166666666666668, 999999.99998984, 0
    {15394, Method::lambertConic2, 181727, {1438, 160, 1493, 1456, 2323, 595}}, // SPCS83 South Dakota North zone (US Survey feet): 43.833333333333336, -100, 45.68333333333333, 44.416666666666664, 600000, 0
    {15395, Method::lambertConic2, 181761, {1396, 159, 1454, 1412, 2323, 595}}, // SPCS83 South Dakota South zone (US Survey feet): 42.333333333333336, -100.33333333333333, 44.4, 42.833333333333336, 600000, 0
    {15396, Method::lambertConic2, 180803, {1335, 160, 1414, 1339, 2309, 595}}, // SPCS83 Nebraska zone (US Survey feet): 39.833333333333336, -100, 43, 40, 500000.00001016003, 0
    {15397, Method::albers, 101932, {1489, 314, 1392, 1547, 2391, 2391}}, // Great Lakes Albers: 45.568977, -84.455955, 42.122774, 49.01518, 1000000, 1000000
    {15398, Method::albers, 101947, {1489, 321, 1392, 1547, 2391, 2391}}, // Great Lakes and St Lawrence Albers: 45.568977, -83.248627, 42.122774, 49.01518, 1000000, 1000000
    {15399, Method::modifiedAzimuthalEquidistant, 65863, {987, 1826, 1988, 2027}}, // Yap Islands: 9.546708333333333, 138.16874444444443, 40000, 60000
    {15400, Method::guam, 65849, {1017, 1838, 2003, 2003}}, // Guam SPCS: 13.472466352777777, 144.74875070555555, 50000, 50000
    {15914, Method::transverseMercator, 18992, {595, 165, 673, 2312, 595}}, // BLM zone 14N (US survey feet): 0, -99, 0.9996, 500000.00101600203, 0
    {15915, Method::transverseMercator, 19011, {595, 191, 673, 2312, 595}}, // BLM zone 15N (US survey feet): 0, -93, 0.9996, 500000.00101600203, 0
    {15916, Method::transverseMercator, 19030, {595, 280, 673, 2312, 595}}, // BLM zone 16N (US survey feet): 0, -87, 0.9996, 500000.00101600203, 0
    {15917, Method::transverseMercator, 19049, {595, 326, 673, 2312, 595}}, // BLM zone 17N (US survey feet): 0, -81, 0.9996, 500000.00101600203, 0
    {16000, Method::transverseMercatorZoned, 218271, {595, 44, 965, 673, 2308, 595}}, // UTM grid system (northern hemisphere): 0, -180, 6, 0.9996, 500000, 0
    {16001, Method::transverseMercator, 99696, {595, 46, 673, 2308, 595}}, // UTM zone 1N: 0, -177, 0.9996, 500000, 0
    {16002, Method::transverseMercator, 99734, {595, 50, 673, 2308, 595}}, // UTM zone 2N: 0, -171, 0.9996, 500000, 0
    {16003, Method::transverseMercator, 99743, {595, 54, 673, 2308, 595}}, // UTM zone 3N: 0, -165, 0.9996, 500000, 0
    {16004, Method::transverseMercator, 99752, {595, 59, 673, 2308, 595}}, // UTM zone 4N: 0, -159, 0.9996, 500000, 0
    {16005, Method::transverseMercator, 99771, {595, 65, 673, 2308, 595}}, // UTM zone 5N: 0, -153, 0.9996, 500000, 0
    {16006, Method::transverseMercator, 99790, {595, 67, 673, 2308, 595}}, // UTM zone 6N: 0, -147, 0.9996, 500000, 0
    {16007, Method::transverseMercator, 99799, {595, 71, 673, 2308, 595}}, // UTM zone 7N: 0, -141, 0.9996, 500000, 0
    {16008, Method::transverseMercator, 99808, {595, 72, 673, 2308, 595}}, // UTM zone 8N: 0, -135, 0.9996, 500000, 0
    {16009, Method::transverseMercator, 99817, {595, 78, 673, 2308, 595}}, // UTM zone 9N: 0, -129, 0.9996, 500000, 0
    {16010, Method::transverseMercator, 99597, {595, 85, 673, 2308, 595}}, // UTM zone 10N: 0, -123, 0.9996, 500000, 0
    {16011, Method::transverseMercator, 93895, {595, 114, 673, 2308, 595}}, // UTM zone 11N: 0, -117, 0.9996, 500000, 0
    {16012, Method::transverseMercator, 93914, {595, 132, 673, 2308, 595}}, // UTM zone 12N: 0, -111, 0.9996, 500000, 0
    {16013, Method::transverseMercator, 93933, {595, 148, 673, 2308, 595}}, // UTM zone 13N: 0, -105, 0.9996, 500000, 0
    {16014, Method::transverseMercator, 93952, {595, 165, 673, 2308, 595}}, // UTM zone 14N: 0, -99, 0.9996, 500000, 0
    {16015, Method::transverseMercator, 93971, {595, 191, 673, 2308, 595}}, // UTM zone 15N: 0, -93, 0.9996, 500000, 0
    {16016, Method::transverseMercator, 28497, {595, 280, 673, 2308, 595}}, // UTM zone 16N: 0, -87, 0.9996, 500000, 0
    {16017, Method::transverseMercator, 23963, {595, 326, 673, 2308, 595}}, // UTM zone 17N: 0, -81, 0.9996, 500000, 0
    {16018, Method::transverseMercator, 23979, {595, 363, 673, 2308, 595}}, // UTM zone 18N: 0, -75, 0.9996, 500000, 0
    {16019, Method::transverseMercator, 4306, {595, 406, 673, 2308, 595}}, // UTM zone 19N: 0, -69, 0.9996, 500000, 0
    {16020, Method::transverseMercator, 4319, {595, 426, 673, 2308, 595}}, // UTM zone 20N: 0, -63, 0.9996, 500000, 0
    {16021, Method::transverseMercator, 28660, {595, 436, 673, 2308, 595}}, // UTM zone 21N: 0, -57, 0.9996, 500000, 0
    {16022, Method::transverseMercator, 28672, {595, 445, 673, 2308, 595}}, // UTM zone 22N: 0, -51, 0.9996, 500000, 0
    {16023, Method::transverseMercator, 56536, {595, 458, 673, 2308, 595}}, // UTM zone 23N: 0, -45, 0.9996, 500000, 0
    {16024, Method::transverseMercator, 56548, {595, 505, 673, 2308, 595}}, // UTM zone 24N: 0, -39, 0.9996, 500000, 0
    {16025, Method::transverseMercator, 18152, {595, 521, 673, 2308, 595}}, // UTM zone 25N: 0, -33, 0.9996, 500000, 0
    {16026, Method::transverseMercator, 18058, {595, 526, 673, 2308, 595}}, // UTM zone 26N: 0, -27, 0.9996, 500000, 0
    {16027, Method::transverseMercator, 56584, {595, 540, 673, 2308, 595}}, // UTM zone 27N: 0, -21, 0.9996, 500000, 0
    {16028, Method::transverseMercator, 23665, {595, 552, 673, 2308, 595}}, // UTM zone 28N: 0, -15, 0.9996, 500000, 0
    {16029, Method::transverseMercator, 4633, {595, 559, 673, 2308, 595}}, // UTM zone 29N: 0, -9, 0.9996, 500000, 0
    {16030, Method::transverseMercator, 4649, {595, 577, 673, 2308, 595}}, // UTM zone 30N: 0, -3, 0.9996, 500000, 0
    {16031, Method::transverseMercator, 41710, {595, 926, 673, 2308, 595}}, // UTM zone 31N: 0, 3, 0.9996, 500000, 0
    {16032, Method::transverseMercator, 31775, {595, 985, 673, 2308, 595}}, // UTM zone 32N: 0, 9, 0.9996, 500000, 0
    {16033, Method::transverseMercator, 41734, {595, 1030, 673, 2308, 595}}, // UTM zone 33N: 0, 15, 0.9996, 500000, 0
    {16034, Method::transverseMercator, 18827, {595, 1084, 673, 2308, 595}}, // UTM zone 34N: 0, 21, 0.9996, 500000, 0
    {16035, Method::transverseMercator, 4856, {595, 1151, 673, 2308, 595}}, // UTM zone 35N: 0, 27, 0.9996, 500000, 0
    {16036, Method::transverseMercator, 4869, {595, 1215, 673, 2308, 595}}, // UTM zone 36N: 0, 33, 0.9996, 500000, 0
    {16037, Method::transverseMercator, 4882, {595, 1314, 673, 2308, 595}}, // UTM zone 37N: 0, 39, 0.9996, 500000, 0
    {16038, Method::transverseMercator, 4895, {595, 1473, 673, 2308, 595}}, // UTM zone 38N: 0, 45, 0.9996, 500000, 0
    {16039, Method::transverseMercator, 4967, {595, 1561, 673, 2308, 595}}, // UTM zone 39N: 0, 51, 0.9996, 500000, 0
    {16040, Method::transverseMercator, 5800, {595, 1602, 673, 2308, 595}}, // UTM zone 40N: 0, 57, 0.9996, 500000, 0
    {16041, Method::transverseMercator, 41873, {595, 1618, 673, 2308, 595}}, // UTM zone 41N: 0, 63, 0.9996, 500000, 0
    {16042, Method::transverseMercator, 79721, {595, 1633, 673, 2308, 595}}, // UTM zone 42N: 0, 69, 0.9996, 500000, 0
    {16043, Method::transverseMercator, 79737, {595, 1649, 673, 2308, 595}}, // UTM zone 43N: 0, 75, 0.9996, 500000, 0
    {16044, Method::transverseMercator, 79873, {595, 1672, 673, 2308, 595}}, // UTM zone 44N: 0, 81, 0.9996, 500000, 0
    {16045, Method::transverseMercator, 79634, {595, 1686, 673, 2308, 595}}, // UTM zone 45N: 0, 87, 0.9996, 500000, 0
    {16046, Method::transverseMercator, 38332, {595, 1710, 673, 2308, 595}}, // UTM zone 46N: 0, 93, 0.9996, 500000, 0
    {16047, Method::transverseMercator, 38345, {595, 1720, 673, 2308, 595}}, // UTM zone 47N: 0, 99, 0.9996, 500000, 0
    {16048, Method::transverseMercator, 38371, {595, 1750, 673, 2308, 595}}, // UTM zone 48N: 0, 105, 0.9996, 500000, 0
    {16049, Method::transverseMercator, 38397, {595, 1767, 673, 2308, 595}}, // UTM zone 49N: 0, 111, 0.9996, 500000, 0
    {16050, Method::transverseMercator, 38423, {595, 1787, 673, 2308, 595}}, // UTM zone 50N: 0, 117, 0.9996, 500000, 0
    {16051, Method::transverseMercator, 38449, {595, 1797, 673, 2308, 595}}, // UTM zone 51N: 0, 123, 0.9996, 500000, 0
    {16052, Method::transverseMercator, 38475, {595, 1807, 673, 2308, 595}}, // UTM zone 52N: 0, 129, 0.9996, 500000, 0
    {16053, Method::transverseMercator, 68821, {595, 1820, 673, 2308, 595}}, // UTM zone 53N: 0, 135, 0.9996, 500000, 0
    {16054, Method::transverseMercator, 76789, {595, 1833, 673, 2308, 595}}, // UTM zone 54N: 0, 141, 0.9996, 500000, 0
    {16055, Method::transverseMercator, 76802, {595, 1841, 673, 2308, 595}}, // UTM zone 55N: 0, 147, 0.9996, 500000, 0
    {16056, Method::transverseMercator, 211344, {595, 1844, 673, 2308, 595}}, // UTM zone 56N: 0, 153, 0.9996, 500000, 0
    {16057, Method::transverseMercator, 211372, {595, 1849, 673, 2308, 595}}, // UTM zone 57N: 0, 159, 0.9996, 500000, 0
    {16058, Method::transverseMercator, 211400, {595, 1852, 673, 2308, 595}}, // UTM zone 58N: 0, 165, 0.9996, 500000, 0
    {16059, Method::transverseMercator, 99761, {595, 1877, 673, 2308, 595}}, // UTM zone 59N: 0, 171, 0.9996, 500000, 0
    {16060, Method::transverseMercator, 99780, {595, 1920, 673, 2308, 595}}, // UTM zone 60N: 0, 177, 0.9996, 500000, 0
    {16061, Method::polarStereographicA, 205276, {1694, 595, 655, 2461, 2461}}, // Universal Polar Stereographic North: 90, 0, 0.994, 2000000, 2000000
    {16065, Method::transverseMercator, 46584, {595, 1151, 673, 2308, 595}}, // TM35FIN: 0, 27, 0.9996, 500000, 0
    {16070, Method::transverseMercator, 21412, {595, 1792, 751, 2646, 595}}, // 3-degree Gauss-Kruger zone 40: 0, 120, 1, 40500000, 0
    {16071, Method::transverseMercator, 21443, {595, 1797, 751, 2648, 595}}, // 3-degree Gauss-Kruger zone 41: 0, 123, 1, 41500000, 0
    {16072, Method::transverseMercator, 21474, {595, 1802, 751, 2650, 595}}, // 3-degree Gauss-Kruger zone 42: 0, 126, 1, 42500000, 0
    {16073, Method::transverseMercator, 21505, {595, 1807, 751, 2652, 595}}, // 3-degree Gauss-Kruger zone 43: 0, 129, 1, 43500000, 0
    {16074, Method::transverseMercator, 21536, {595, 1814, 751, 2654, 595}}, // 3-degree Gauss-Kruger zone 44: 0, 132, 1, 44500000, 0
    {16075, Method::transverseMercator, 21567, {595, 1820, 751, 2656, 595}}, // 3-degree Gauss-Kruger zone 45: 0, 135, 1, 45500000, 0
    {16076, Method::transverseMercator, 59262, {595, 1825, 751, 2658, 595}}, // 3-degree Gauss-Kruger zone 46: 0, 138, 1, 46500000, 0
    {16077, Method::transverseMercator, 59287, {595, 1833, 751, 2660, 595}}, // 3-degree Gauss-Kruger zone 47: 0, 141, 1, 47500000, 0
    {16078, Method::transverseMercator, 59312, {595, 1836, 751, 2662, 595}}, // 3-degree Gauss-Kruger zone 48: 0, 144, 1, 48500000, 0
    {16079, Method::transverseMercator, 59337, {595, 1841, 751, 2664, 595}}, // 3-degree Gauss-Kruger zone 49: 0, 147, 1, 49500000, 0
    {16080, Method::transverseMercator, 59362, {595, 1843, 751, 2666, 595}}, // 3-degree Gauss-Kruger zone 50: 0, 150, 1, 50500000, 0
    {16081, Method::transverseMercator, 59387, {595, 1844, 751, 2668, 595}}, // 3-degree Gauss-Kruger zone 51: 0, 153, 1, 51500000, 0
    {16082, Method::transverseMercator, 59412, {595, 1846, 751, 2670, 595}}, // 3-degree Gauss-Kruger zone 52: 0, 156, 1, 52500000, 0
    {16083, Method::transverseMercator, 59437, {595, 1849, 751, 2672, 595}}, // 3-degree Gauss-Kruger zone 53: 0, 159, 1, 53500000, 0
    {16084, Method::transverseMercator, 59462, {595, 1850, 751, 2674, 595}}, // 3-degree Gauss-Kruger zone 54: 0, 162, 1, 54500000, 0
    {16085, Method::transverseMercator, 59487, {595, 1852, 751, 2676, 595}}, // 3-degree Gauss-Kruger zone 55: 0, 165, 1, 55500000, 0
    {16086, Method::transverseMercator, 59512, {595, 1858, 751, 2678, 595}}, // 3-degree Gauss-Kruger zone 56: 0, 168, 1, 56500000, 0
    {16087, Method::transverseMercator, 59537, {595, 1877, 751, 2680, 595}}, // 3-degree Gauss-Kruger zone 57: 0, 171, 1, 57500000, 0
    {16088, Method::transverseMercator, 59562, {595, 1900, 751, 2682, 595}}, // 3-degree Gauss-Kruger zone 58: 0, 174, 1, 58500000, 0
    {16089, Method::transverseMercator, 59587, {595, 1920, 751, 2684, 595}}, // 3-degree Gauss-Kruger zone 59: 0, 177, 1, 59500000, 0
    {16090, Method::transverseMercator, 59612, {595, 1927, 751, 2685, 595}}, // 3-degree Gauss-Kruger zone 60: 0, 180, 1, 60000000, 0
    {16091, Method::transverseMercator, 59637, {595, 46, 751, 2689, 595}}, // 3-degree Gauss-Kruger zone 61: 0, -177, 1, 61500000, 0
    {16092, Method::transverseMercator, 59662, {595, 49, 751, 2691, 595}}, // 3-degree Gauss-Kruger zone 62: 0, -174, 1, 62500000, 0
    {16093, Method::transverseMercator, 59687, {595, 50, 751, 2693, 595}}, // 3-degree Gauss-Kruger zone 63: 0, -171, 1, 63500000, 0
    {16094, Method::transverseMercator, 59712, {595, 52, 751, 2695, 595}}, // 3-degree Gauss-Kruger zone 64: 0, -168, 1, 64500000, 0
    {16099, Method::transverseMercator, 59612, {595, 1927, 751, 2687, 595}}, // 3-degree Gauss-Kruger zone 60: 0, 180, 1, 60500000, 0
    {16100, Method::transverseMercatorZoned, 218299, {595, 44, 965, 673, 2308, 2584}}, // UTM grid system (southern hemisphere): 0, -180, 6, 0.9996, 500000, 10000000
    {16101, Method::transverseMercator, 51243, {595, 46, 673, 2308, 2584}}, // UTM zone 1S: 0, -177, 0.9996, 500000, 10000000
    {16102, Method::transverseMercator, 121795, {595, 50, 673, 2308, 2584}}, // UTM zone 2S: 0, -171, 0.9996, 500000, 10000000
    {16103, Method::transverseMercator, 210857, {595, 54, 673, 2308, 2584}}, // UTM zone 3S: 0, -165, 0.9996, 500000, 10000000
    {16104, Method::transverseMercator, 211163, {595, 59, 673, 2308, 2584}}, // UTM zone 4S: 0, -159, 0.9996, 500000, 10000000
    {16105, Method::transverseMercator, 93053, {595, 65, 673, 2308, 2584}}, // UTM zone 5S: 0, -153, 0.9996, 500000, 10000000
    {16106, Method::transverseMercator, 96785, {595, 67, 673, 2308, 2584}}, // UTM zone 6S: 0, -147, 0.9996, 500000, 10000000
    {16107, Method::transverseMercator, 50879, {595, 71, 673, 2308, 2584}}, // UTM zone 7S: 0, -141, 0.9996, 500000, 10000000
    {16108, Method::transverseMercator, 169628, {595, 72, 673, 2308, 2584}}, // UTM zone 8S: 0, -135, 0.9996, 500000, 10000000
    {16109, Method::transverseMercator, 150282, {595, 78, 673, 2308, 2584}}, // UTM zone 9S: 0, -129, 0.9996, 500000, 10000000
    {16110, Method::transverseMercator, 209969, {595, 85, 673, 2308, 2584}}, // UTM zone 10S: 0, -123, 0.9996, 500000, 10000000
    {16111, Method::transverseMercator, 209996, {595, 114, 673, 2308, 2584}}, // UTM zone 11S: 0, -117, 0.9996, 500000, 10000000
    {16112, Method::transverseMercator, 168032, {595, 132, 673, 2308, 2584}}, // UTM zone 12S: 0, -111, 0.9996, 500000, 10000000
    {16113, Method::transverseMercator, 210052, {595, 148, 673, 2308, 2584}}, // UTM zone 13S: 0, -105, 0.9996, 500000, 10000000
    {16114, Method::transverseMercator, 210080, {595, 165, 673, 2308, 2584}}, // UTM zone 14S: 0, -99, 0.9996, 500000, 10000000
    {16115, Method::transverseMercator, 210108, {595, 191, 673, 2308, 2584}}, // UTM zone 15S: 0, -93, 0.9996, 500000, 10000000
    {16116, Method::transverseMercator, 210136, {595, 280, 673, 2308, 2584}}, // UTM zone 16S: 0, -87, 0.9996, 500000, 10000000
    {16117, Method::transverseMercator, 147323, {595, 326, 673, 2308, 2584}}, // UTM zone 17S: 0, -81, 0.9996, 500000, 10000000
    {16118, Method::transverseMercator, 147347, {595, 363, 673, 2308, 2584}}, // UTM zone 18S: 0, -75, 0.9996, 500000, 10000000
    {16119, Method::transverseMercator, 29470, {595, 406, 673, 2308, 2584}}, // UTM zone 19S: 0, -69, 0.9996, 500000, 10000000
    {16120, Method::transverseMercator, 29489, {595, 426, 673, 2308, 2584}}, // UTM zone 20S: 0, -63, 0.9996, 500000, 10000000
    {16121, Method::transverseMercator, 36672, {595, 436, 673, 2308, 2584}}, // UTM zone 21S: 0, -57, 0.9996, 500000, 10000000
    {16122, Method::transverseMercator, 10774, {595, 445, 673, 2308, 2584}}, // UTM zone 22S: 0, -51, 0.9996, 500000, 10000000
    {16123, Method::transverseMercator, 10785, {595, 458, 673, 2308, 2584}}, // UTM zone 23S: 0, -45, 0.9996, 500000, 10000000
    {16124, Method::transverseMercator, 10796, {595, 505, 673, 2308, 2584}}, // UTM zone 24S: 0, -39, 0.9996, 500000, 10000000
    {16125, Method::transverseMercator, 10807, {595, 521, 673, 2308, 2584}}, // UTM zone 25S: 0, -33, 0.9996, 500000, 10000000
    {16126, Method::transverseMercator, 176726, {595, 526, 673, 2308, 2584}}, // UTM zone 26S: 0, -27, 0.9996, 500000, 10000000
    {16127, Method::transverseMercator, 210468, {595, 540, 673, 2308, 2584}}, // UTM zone 27S: 0, -21, 0.9996, 500000, 10000000
    {16128, Method::transverseMercator, 210496, {595, 552, 673, 2308, 2584}}, // UTM zone 28S: 0, -15, 0.9996, 500000, 10000000
    {16129, Method::transverseMercator, 210524, {595, 559, 673, 2308, 2584}}, // UTM zone 29S: 0, -9, 0.9996, 500000, 10000000
    {16130, Method::transverseMercator, 15958, {595, 577, 673, 2308, 2584}}, // UTM zone 30S: 0, -3, 0.9996, 500000, 10000000
    {16131, Method::transverseMercator, 210606, {595, 926, 673, 2308, 2584}}, // UTM zone 31S: 0, 3, 0.9996, 500000, 10000000
    {16132, Method::transverseMercator, 29126, {595, 985, 673, 2308, 2584}}, // UTM zone 32S: 0, 9, 0.9996, 500000, 10000000
    {16133, Method::transverseMercator, 29144, {595, 1030, 673, 2308, 2584}}, // UTM zone 33S: 0, 15, 0.9996, 500000, 10000000
    {16134, Method::transverseMercator, 10845, {595, 1084, 673, 2308, 2584}}, // UTM zone 34S: 0, 21, 0.9996, 500000, 10000000
    {16135, Method::transverseMercator, 10858, {595, 1151, 673, 2308, 2584}}, // UTM zone 35S: 0, 27, 0.9996, 500000, 10000000
    {16136, Method::transverseMercator, 10871, {595, 1215, 673, 2308, 2584}}, // UTM zone 36S: 0, 33, 0.9996, 500000, 10000000
    {16137, Method::transverseMercator, 10955, {595, 1314, 673, 2308, 2584}}, // UTM zone 37S: 0, 39, 0.9996, 500000, 10000000
    {16138, Method::transverseMercator, 28752, {595, 1473, 673, 2308, 2584}}, // UTM zone 38S: 0, 45, 0.9996, 500000, 10000000
    {16139, Method::transverseMercator, 169728, {595, 1561, 673, 2308, 2584}}, // UTM zone 39S: 0, 51, 0.9996, 500000, 10000000
    {16140, Method::transverseMercator, 169741, {595, 1602, 673, 2308, 2584}}, // UTM zone 40S: 0, 57, 0.9996, 500000, 10000000
    {16141, Method::transverseMercator, 170376, {595, 1618, 673, 2308, 2584}}, // UTM zone 41S: 0, 63, 0.9996, 500000, 10000000
    {16142, Method::transverseMercator, 69601, {595, 1633, 673, 2308, 2584}}, // UTM zone 42S: 0, 69, 0.9996, 500000, 10000000
    {16143, Method::transverseMercator, 170408, {595, 1649, 673, 2308, 2584}}, // UTM zone 43S: 0, 75, 0.9996, 500000, 10000000
    {16144, Method::transverseMercator, 170424, {595, 1672, 673, 2308, 2584}}, // UTM zone 44S: 0, 81, 0.9996, 500000, 10000000
    {16145, Method::transverseMercator, 211024, {595, 1686, 673, 2308, 2584}}, // UTM zone 45S: 0, 87, 0.9996, 500000, 10000000
    {16146, Method::transverseMercator, 68665, {595, 1710, 673, 2308, 2584}}, // UTM zone 46S: 0, 93, 0.9996, 500000, 10000000
    {16147, Method::transverseMercator, 38358, {595, 1720, 673, 2308, 2584}}, // UTM zone 47S: 0, 99, 0.9996, 500000, 10000000
    {16148, Method::transverseMercator, 19958, {595, 1750, 673, 2308, 2584}}, // UTM zone 48S: 0, 105, 0.9996, 500000, 10000000
    {16149, Method::transverseMercator, 19972, {595, 1767, 673, 2308, 2584}}, // UTM zone 49S: 0, 111, 0.9996, 500000, 10000000
    {16150, Method::transverseMercator, 19986, {595, 1787, 673, 2308, 2584}}, // UTM zone 50S: 0, 117, 0.9996, 500000, 10000000
    {16151, Method::transverseMercator, 38462, {595, 1797, 673, 2308, 2584}}, // UTM zone 51S: 0, 123, 0.9996, 500000, 10000000
    {16152, Method::transverseMercator, 38488, {595, 1807, 673, 2308, 2584}}, // UTM zone 52S: 0, 129, 0.9996, 500000, 10000000
    {16153, Method::transverseMercator, 38501, {595, 1820, 673, 2308, 2584}}, // UTM zone 53S: 0, 135, 0.9996, 500000, 10000000
    {16154, Method::transverseMercator, 38514, {595, 1833, 673, 2308, 2584}}, // UTM zone 54S: 0, 141, 0.9996, 500000, 10000000
    {16155, Method::transverseMercator, 211330, {595, 1841, 673, 2308, 2584}}, // UTM zone 55S: 0, 147, 0.9996, 500000, 10000000
    {16156, Method::transverseMercator, 211358, {595, 1844, 673, 2308, 2584}}, // UTM zone 56S: 0, 153, 0.9996, 500000, 10000000
    {16157, Method::transverseMercator, 169459, {595, 1849, 673, 2308, 2584}}, // UTM zone 57S: 0, 159, 0.9996, 500000, 10000000
    {16158, Method::transverseMercator, 69699, {595, 1852, 673, 2308, 2584}}, // UTM zone 58S: 0, 165, 0.9996, 500000, 10000000
    {16159, Method::transverseMercator, 69716, {595, 1877, 673, 2308, 2584}}, // UTM zone 59S: 0, 171, 0.9996, 500000, 10000000
    {16160, Method::transverseMercator, 51257, {595, 1920, 673, 2308, 2584}}, // UTM zone 60S: 0, 177, 0.9996, 500000, 10000000
    {16161, Method::polarStereographicA, 205297, {234, 595, 655, 2461, 2461}}, // Universal Polar Stereographic South: -90, 0, 0.994, 2000000, 2000000
    {16170, Method::transverseMercator, 20432, {595, 1792, 751, 2308, 595}}, // 3-degree Gauss-Kruger CM 120E: 0, 120, 1, 500000, 0
    {16172, Method::transverseMercator, 20501, {595, 1802, 751, 2308, 595}}, // 3-degree Gauss-Kruger CM 126E: 0, 126, 1, 500000, 0
    {16174, Method::transverseMercator, 20571, {595, 1814, 751, 2308, 595}}, // 3-degree Gauss-Kruger CM 132E: 0, 132, 1, 500000, 0
    {16176, Method::transverseMercator, 57056, {595, 1825, 751, 2308, 595}}, // 3-degree Gauss-Kruger CM 138E: 0, 138, 1, 500000, 0
    {16178, Method::transverseMercator, 57114, {595, 1836, 751, 2308, 595}}, // 3-degree Gauss-Kruger CM 144E: 0, 144, 1, 500000, 0
    {16180, Method::transverseMercator, 57172, {595, 1843, 751, 2308, 595}}, // 3-degree Gauss-Kruger CM 150E: 0, 150, 1, 500000, 0
    {16182, Method::transverseMercator, 57230, {595, 1846, 751, 2308, 595}}, // 3-degree Gauss-Kruger CM 156E: 0, 156, 1, 500000, 0
    {16184, Method::transverseMercator, 57288, {595, 1850, 751, 2308, 595}}, // 3-degree Gauss-Kruger CM 162E: 0, 162, 1, 500000, 0
    {16186, Method::transverseMercator, 57346, {595, 1858, 751, 2308, 595}}, // 3-degree Gauss-Kruger CM 168E: 0, 168, 1, 500000, 0
    {16188, Method::transverseMercator, 57462, {595, 1900, 751, 2308, 595}}, // 3-degree Gauss-Kruger CM 174E: 0, 174, 1, 500000, 0
    {16190, Method::transverseMercator, 57578, {595, 1927, 751, 2308, 595}}, // 3-degree Gauss-Kruger CM 180E: 0, 180, 1, 500000, 0
    {16192, Method::transverseMercator, 57491, {595, 49, 751, 2308, 595}}, // 3-degree Gauss-Kruger CM 174W: 0, -174, 1, 500000, 0
    {16194, Method::transverseMercator, 57375, {595, 52, 751, 2308, 595}}, // 3-degree Gauss-Kruger CM 168W: 0, -168, 1, 500000, 0
    {16202, Method::transverseMercator, 2814, {595, 985, 751, 2478, 595}}, // 6-degree Gauss-Kruger zone 2: 0, 9, 1, 2500000, 0
    {16203, Method::transverseMercator, 3044, {595, 1030, 751, 2508, 595}}, // 6-degree Gauss-Kruger zone 3: 0, 15, 1, 3500000, 0
    {16204, Method::transverseMercator, 3127, {595, 1084, 751, 2531, 595}}, // 6-degree Gauss-Kruger zone 4: 0, 21, 1, 4500000, 0
    {16205, Method::transverseMercator, 3147, {595, 1151, 751, 2547, 595}}, // 6-degree Gauss-Kruger zone 5: 0, 27, 1, 5500000, 0
    {16206, Method::transverseMercator, 3167, {595, 1215, 751, 2562, 595}}, // 6-degree Gauss-Kruger zone 6: 0, 33, 1, 6500000, 0
    {16207, Method::transverseMercator, 3187, {595, 1314, 751, 2573, 595}}, // 6-degree Gauss-Kruger zone 7: 0, 39, 1, 7500000, 0
    {16208, Method::transverseMercator, 3207, {595, 1473, 751, 2579, 595}}, // 6-degree Gauss-Kruger zone 8: 0, 45, 1, 8500000, 0
    {16209, Method::transverseMercator, 3227, {595, 1561, 751, 2583, 595}}, // 6-degree Gauss-Kruger zone 9: 0, 51, 1, 9500000, 0
    {16210, Method::transverseMercator, 2604, {595, 1602, 751, 2586, 595}}, // 6-degree Gauss-Kruger zone 10: 0, 57, 1, 10500000, 0
    {16211, Method::transverseMercator, 2625, {595, 1618, 751, 2588, 595}}, // 6-degree Gauss-Kruger zone 11: 0, 63, 1, 11500000, 0
    {16212, Method::transverseMercator, 2646, {595, 1633, 751, 2590, 595}}, // 6-degree Gauss-Kruger zone 12: 0, 69, 1, 12500000, 0
    {16213, Method::transverseMercator, 2667, {595, 1649, 751, 2592, 595}}, // 6-degree Gauss-Kruger zone 13: 0, 75, 1, 13500000, 0
    {16214, Method::transverseMercator, 2688, {595, 1672, 751, 2594, 595}}, // 6-degree Gauss-Kruger zone 14: 0, 81, 1, 14500000, 0
    {16215, Method::transverseMercator, 2709, {595, 1686, 751, 2596, 595}}, // 6-degree Gauss-Kruger zone 15: 0, 87, 1, 15500000, 0
    {16216, Method::transverseMercator, 2730, {595, 1710, 751, 2598, 595}}, // 6-degree Gauss-Kruger zone 16: 0, 93, 1, 16500000, 0
    {16217, Method::transverseMercator, 2751, {595, 1720, 751, 2600, 595}}, // 6-degree Gauss-Kruger zone 17: 0, 99, 1, 17500000, 0
    {16218, Method::transverseMercator, 2772, {595, 1750, 751, 2602, 595}}, // 6-degree Gauss-Kruger zone 18: 0, 105, 1, 18500000, 0
    {16219, Method::transverseMercator, 2793, {595, 1767, 751, 2604, 595}}, // 6-degree Gauss-Kruger zone 19: 0, 111, 1, 19500000, 0
    {16220, Method::transverseMercator, 2834, {595, 1787, 751, 2606, 595}}, // 6-degree Gauss-Kruger zone 20: 0, 117, 1, 20500000, 0
    {16221, Method::transverseMercator, 2855, {595, 1797, 751, 2608, 595}}, // 6-degree Gauss-Kruger zone 21: 0, 123, 1, 21500000, 0
    {16222, Method::transverseMercator, 2876, {595, 1807, 751, 2610, 595}}, // 6-degree Gauss-Kruger zone 22: 0, 129, 1, 22500000, 0
    {16223, Method::transverseMercator, 2897, {595, 1820, 751, 2612, 595}}, // 6-degree Gauss-Kruger zone 23: 0, 135, 1, 23500000, 0
    {16224, Method::transverseMercator, 2918, {595, 1833, 751, 2614, 595}}, // 6-degree Gauss-Kruger zone 24: 0, 141, 1, 24500000, 0
    {16225, Method::transverseMercator, 2939, {595, 1841, 751, 2616, 595}}, // 6-degree Gauss-Kruger zone 25: 0, 147, 1, 25500000, 0
    {16226, Method::transverseMercator, 2960, {595, 1844, 751, 2618, 595}}, // 6-degree Gauss-Kruger zone 26: 0, 153, 1, 26500000, 0
    {16227, Method::transverseMercator, 2981, {595, 1849, 751, 2620, 595}}, // 6-degree Gauss-Kruger zone 27: 0, 159, 1, 27500000, 0
    {16228, Method::transverseMercator, 3002, {595, 1852, 751, 2622, 595}}, // 6-degree Gauss-Kruger zone 28: 0, 165, 1, 28500000, 0
    {16229, Method::transverseMercator, 3023, {595, 1877, 751, 2624, 595}}, // 6-degree Gauss-Kruger zone 29: 0, 171, 1, 29500000, 0
    {16230, Method::transverseMercator, 3064, {595, 1920, 751, 2626, 595}}, // 6-degree Gauss-Kruger zone 30: 0, 177, 1, 30500000, 0
    {16231, Method::transverseMercator, 3085, {595, 46, 751, 2628, 595}}, // 6-degree Gauss-Kruger zone 31: 0, -177, 1, 31500000, 0
    {16232, Method::transverseMercator, 3106, {595, 50, 751, 2630, 595}}, // 6-degree Gauss-Kruger zone 32: 0, -171, 1, 32500000, 0
    {16261, Method::transverseMercator, 38667, {595, 926, 751, 2439, 595}}, // 3-degree Gauss-Kruger zone 1: 0, 3, 1, 1500000, 0
    {16262, Method::transverseMercator, 38722, {595, 965, 751, 2478, 595}}, // 3-degree Gauss-Kruger zone 2: 0, 6, 1, 2500000, 0
    {16263, Method::transverseMercator, 38777, {595, 985, 751, 2508, 595}}, // 3-degree Gauss-Kruger zone 3: 0, 9, 1, 3500000, 0
    {16264, Method::transverseMercator, 38832, {595, 1010, 751, 2531, 595}}, // 3-degree Gauss-Kruger zone 4: 0, 12, 1, 4500000, 0
    {16265, Method::transverseMercator, 38887, {595, 1030, 751, 2547, 595}}, // 3-degree Gauss-Kruger zone 5: 0, 15, 1, 5500000, 0
    {16266, Method::transverseMercator, 155947, {595, 1052, 751, 2562, 595}}, // 3-degree Gauss-Kruger zone 6: 0, 18, 1, 6500000, 0
    {16267, Method::transverseMercator, 59737, {595, 1084, 751, 2573, 595}}, // 3-degree Gauss-Kruger zone 7: 0, 21, 1, 7500000, 0
    {16268, Method::transverseMercator, 59761, {595, 1114, 751, 2579, 595}}, // 3-degree Gauss-Kruger zone 8: 0, 24, 1, 8500000, 0
    {16269, Method::transverseMercator, 41490, {595, 1151, 751, 2583, 595}}, // 3-degree Gauss-Kruger zone 9: 0, 27, 1, 9500000, 0
    {16270, Method::transverseMercator, 41334, {595, 1182, 751, 2586, 595}}, // 3-degree Gauss-Kruger zone 10: 0, 30, 1, 10500000, 0
    {16271, Method::transverseMercator, 41360, {595, 1215, 751, 2588, 595}}, // 3-degree Gauss-Kruger zone 11: 0, 33, 1, 11500000, 0
    {16272, Method::transverseMercator, 41386, {595, 1257, 751, 2590, 595}}, // 3-degree Gauss-Kruger zone 12: 0, 36, 1, 12500000, 0
    {16273, Method::transverseMercator, 41412, {595, 1314, 751, 2592, 595}}, // 3-degree Gauss-Kruger zone 13: 0, 39, 1, 13500000, 0
    {16274, Method::transverseMercator, 41438, {595, 1389, 751, 2594, 595}}, // 3-degree Gauss-Kruger zone 14: 0, 42, 1, 14500000, 0
    {16275, Method::transverseMercator, 41464, {595, 1473, 751, 2596, 595}}, // 3-degree Gauss-Kruger zone 15: 0, 45, 1, 15500000, 0
    {16276, Method::transverseMercator, 58512, {595, 1535, 751, 2598, 595}}, // 3-degree Gauss-Kruger zone 16: 0, 48, 1, 16500000, 0
    {16277, Method::transverseMercator, 58537, {595, 1561, 751, 2600, 595}}, // 3-degree Gauss-Kruger zone 17: 0, 51, 1, 17500000, 0
    {16278, Method::transverseMercator, 58562, {595, 1591, 751, 2602, 595}}, // 3-degree Gauss-Kruger zone 18: 0, 54, 1, 18500000, 0
    {16279, Method::transverseMercator, 58587, {595, 1602, 751, 2604, 595}}, // 3-degree Gauss-Kruger zone 19: 0, 57, 1, 19500000, 0
    {16280, Method::transverseMercator, 58612, {595, 1610, 751, 2606, 595}}, // 3-degree Gauss-Kruger zone 20: 0, 60, 1, 20500000, 0
    {16281, Method::transverseMercator, 58637, {595, 1618, 751, 2608, 595}}, // 3-degree Gauss-Kruger zone 21: 0, 63, 1, 21500000, 0
    {16282, Method::transverseMercator, 58662, {595, 1627, 751, 2610, 595}}, // 3-degree Gauss-Kruger zone 22: 0, 66, 1, 22500000, 0
    {16283, Method::transverseMercator, 58687, {595, 1633, 751, 2612, 595}}, // 3-degree Gauss-Kruger zone 23: 0, 69, 1, 23500000, 0
    {16284, Method::transverseMercator, 58712, {595, 1640, 751, 2614, 595}}, // 3-degree Gauss-Kruger zone 24: 0, 72, 1, 24500000, 0
    {16285, Method::transverseMercator, 20947, {595, 1649, 751, 2616, 595}}, // 3-degree Gauss-Kruger zone 25: 0, 75, 1, 25500000, 0
    {16286, Method::transverseMercator, 20978, {595, 1659, 751, 2618, 595}}, // 3-degree Gauss-Kruger zone 26: 0, 78, 1, 26500000, 0
    {16287, Method::transverseMercator, 21009, {595, 1672, 751, 2620, 595}}, // 3-degree Gauss-Kruger zone 27: 0, 81, 1, 27500000, 0
    {16288, Method::transverseMercator, 21040, {595, 1680, 751, 2622, 595}}, // 3-degree Gauss-Kruger zone 28: 0, 84, 1, 28500000, 0
    {16289, Method::transverseMercator, 21071, {595, 1686, 751, 2624, 595}}, // 3-degree Gauss-Kruger zone 29: 0, 87, 1, 29500000, 0
    {16290, Method::transverseMercator, 21102, {595, 1694, 751, 2626, 595}}, // 3-degree Gauss-Kruger zone 30: 0, 90, 1, 30500000, 0
    {16291, Method::transverseMercator, 21133, {595, 1710, 751, 2628, 595}}, // 3-degree Gauss-Kruger zone 31: 0, 93, 1, 31500000, 0
    {16292, Method::transverseMercator, 21164, {595, 1717, 751, 2630, 595}}, // 3-degree Gauss-Kruger zone 32: 0, 96, 1, 32500000, 0
    {16293, Method::transverseMercator, 21195, {595, 1720, 751, 2632, 595}}, // 3-degree Gauss-Kruger zone 33: 0, 99, 1, 33500000, 0
    {16294, Method::transverseMercator, 21226, {595, 1733, 751, 2634, 595}}, // 3-degree Gauss-Kruger zone 34: 0, 102, 1, 34500000, 0
    {16295, Method::transverseMercator, 21257, {595, 1750, 751, 2636, 595}}, // 3-degree Gauss-Kruger zone 35: 0, 105, 1, 35500000, 0
    {16296, Method::transverseMercator, 21288, {595, 1761, 751, 2638, 595}}, // 3-degree Gauss-Kruger zone 36: 0, 108, 1, 36500000, 0
    {16297, Method::transverseMercator, 21319, {595, 1767, 751, 2640, 595}}, // 3-degree Gauss-Kruger zone 37: 0, 111, 1, 37500000, 0
    {16298, Method::transverseMercator, 21350, {595, 1771, 751, 2642, 595}}, // 3-degree Gauss-Kruger zone 38: 0, 114, 1, 38500000, 0
    {16299, Method::transverseMercator, 21381, {595, 1787, 751, 2644, 595}}, // 3-degree Gauss-Kruger zone 39: 0, 117, 1, 39500000, 0
    {16302, Method::transverseMercator, 45277, {595, 985, 751, 2308, 595}}, // Gauss-Kruger CM 9E: 0, 9, 1, 500000, 0
    {16303, Method::transverseMercator, 157644, {595, 1030, 751, 2308, 595}}, // Gauss-Kruger CM 15E: 0, 15, 1, 500000, 0
    {16304, Method::transverseMercator, 57614, {595, 1084, 751, 2308, 595}}, // Gauss-Kruger CM 21E: 0, 21, 1, 500000, 0
    {16305, Method::transverseMercator, 57670, {595, 1151, 751, 2308, 595}}, // Gauss-Kruger CM 27E: 0, 27, 1, 500000, 0
    {16306, Method::transverseMercator, 57725, {595, 1215, 751, 2308, 595}}, // Gauss-Kruger CM 33E: 0, 33, 1, 500000, 0
    {16307, Method::transverseMercator, 57781, {595, 1314, 751, 2308, 595}}, // Gauss-Kruger CM 39E: 0, 39, 1, 500000, 0
    {16308, Method::transverseMercator, 57837, {595, 1473, 751, 2308, 595}}, // Gauss-Kruger CM 45E: 0, 45, 1, 500000, 0
    {16309, Method::transverseMercator, 57893, {595, 1561, 751, 2308, 595}}, // Gauss-Kruger CM 51E: 0, 51, 1, 500000, 0
    {16310, Method::transverseMercator, 57949, {595, 1602, 751, 2308, 595}}, // Gauss-Kruger CM 57E: 0, 57, 1, 500000, 0
    {16311, Method::transverseMercator, 58005, {595, 1618, 751, 2308, 595}}, // Gauss-Kruger CM 63E: 0, 63, 1, 500000, 0
    {16312, Method::transverseMercator, 58061, {595, 1633, 751, 2308, 595}}, // Gauss-Kruger CM 69E: 0, 69, 1, 500000, 0
    {16313, Method::transverseMercator, 20648, {595, 1649, 751, 2308, 595}}, // Gauss-Kruger CM 75E: 0, 75, 1, 500000, 0
    {16314, Method::transverseMercator, 20716, {595, 1672, 751, 2308, 595}}, // Gauss-Kruger CM 81E: 0, 81, 1, 500000, 0
    {16315, Method::transverseMercator, 20784, {595, 1686, 751, 2308, 595}}, // Gauss-Kruger CM 87E: 0, 87, 1, 500000, 0
    {16316, Method::transverseMercator, 20852, {595, 1710, 751, 2308, 595}}, // Gauss-Kruger CM 93E: 0, 93, 1, 500000, 0
    {16317, Method::transverseMercator, 20920, {595, 1720, 751, 2308, 595}}, // Gauss-Kruger CM 99E: 0, 99, 1, 500000, 0
    {16318, Method::transverseMercator, 20269, {595, 1750, 751, 2308, 595}}, // Gauss-Kruger CM 105E: 0, 105, 1, 500000, 0
    {16319, Method::transverseMercator, 20337, {595, 1767, 751, 2308, 595}}, // Gauss-Kruger CM 111E: 0, 111, 1, 500000, 0
    {16320, Method::transverseMercator, 20405, {595, 1787, 751, 2308, 595}}, // Gauss-Kruger CM 117E: 0, 117, 1, 500000, 0
    {16321, Method::transverseMercator, 20473, {595, 1797, 751, 2308, 595}}, // Gauss-Kruger CM 123E: 0, 123, 1, 500000, 0
    {16322, Method::transverseMercator, 20543, {595, 1807, 751, 2308, 595}}, // Gauss-Kruger CM 129E: 0, 129, 1, 500000, 0
    {16323, Method::transverseMercator, 20613, {595, 1820, 751, 2308, 595}}, // Gauss-Kruger CM 135E: 0, 135, 1, 500000, 0
    {16324, Method::transverseMercator, 57092, {595, 1833, 751, 2308, 595}}, // Gauss-Kruger CM 141E: 0, 141, 1, 500000, 0
    {16325, Method::transverseMercator, 57150, {595, 1841, 751, 2308, 595}}, // Gauss-Kruger CM 147E: 0, 147, 1, 500000, 0
    {16326, Method::transverseMercator, 57208, {595, 1844, 751, 2308, 595}}, // Gauss-Kruger CM 153E: 0, 153, 1, 500000, 0
    {16327, Method::transverseMercator, 57266, {595, 1849, 751, 2308, 595}}, // Gauss-Kruger CM 159E: 0, 159, 1, 500000, 0
    {16328, Method::transverseMercator, 57324, {595, 1852, 751, 2308, 595}}, // Gauss-Kruger CM 165E: 0, 165, 1, 500000, 0
    {16329, Method::transverseMercator, 57411, {595, 1877, 751, 2308, 595}}, // Gauss-Kruger CM 171E: 0, 171, 1, 500000, 0
    {16330, Method::transverseMercator, 57527, {595, 1920, 751, 2308, 595}}, // Gauss-Kruger CM 177E: 0, 177, 1, 500000, 0
    {16331, Method::transverseMercator, 57556, {595, 46, 751, 2308, 595}}, // Gauss-Kruger CM 177W: 0, -177, 1, 500000, 0
    {16332, Method::transverseMercator, 57440, {595, 50, 751, 2308, 595}}, // Gauss-Kruger CM 171W: 0, -171, 1, 500000, 0
    {16366, Method::transverseMercator, 153368, {595, 1052, 751, 2308, 595}}, // 3-degree Gauss-Kruger CM 18E: 0, 18, 1, 500000, 0
    {16368, Method::transverseMercator, 57635, {595, 1114, 751, 2308, 595}}, // 3-degree Gauss-Kruger CM 24E: 0, 24, 1, 500000, 0
    {16370, Method::transverseMercator, 57690, {595, 1182, 751, 2308, 595}}, // 3-degree Gauss-Kruger CM 30E: 0, 30, 1, 500000, 0
    {16372, Method::transverseMercator, 57746, {595, 1257, 751, 2308, 595}}, // 3-degree Gauss-Kruger CM 36E: 0, 36, 1, 500000, 0
    {16374, Method::transverseMercator, 57802, {595, 1389, 751, 2308, 595}}, // 3-degree Gauss-Kruger CM 42E: 0, 42, 1, 500000, 0
    {16376, Method::transverseMercator, 57858, {595, 1535, 751, 2308, 595}}, // 3-degree Gauss-Kruger CM 48E: 0, 48, 1, 500000, 0
    {16378, Method::transverseMercator, 57914, {595, 1591, 751, 2308, 595}}, // 3-degree Gauss-Kruger CM 54E: 0, 54, 1, 500000, 0
    {16380, Method::transverseMercator, 57970, {595, 1610, 751, 2308, 595}}, // 3-degree Gauss-Kruger CM 60E: 0, 60, 1, 500000, 0
    {16382, Method::transverseMercator, 58026, {595, 1627, 751, 2308, 595}}, // 3-degree Gauss-Kruger CM 66E: 0, 66, 1, 500000, 0
    {16384, Method::transverseMercator, 58082, {595, 1640, 751, 2308, 595}}, // 3-degree Gauss-Kruger CM 72E: 0, 72, 1, 500000, 0
    {16386, Method::transverseMercator, 20675, {595, 1659, 751, 2308, 595}}, // 3-degree Gauss-Kruger CM 78E: 0, 78, 1, 500000, 0
    {16388, Method::transverseMercator, 20743, {595, 1680, 751, 2308, 595}}, // 3-degree Gauss-Kruger CM 84E: 0, 84, 1, 500000, 0
    {16390, Method::transverseMercator, 20811, {595, 1694, 751, 2308, 595}}, // 3-degree Gauss-Kruger CM 90E: 0, 90, 1, 500000, 0
    {16392, Method::transverseMercator, 20879, {595, 1717, 751, 2308, 595}}, // 3-degree Gauss-Kruger CM 96E: 0, 96, 1, 500000, 0
    {16394, Method::transverseMercator, 20228, {595, 1733, 751, 2308, 595}}, // 3-degree Gauss-Kruger CM 102E: 0, 102, 1, 500000, 0
    {16396, Method::transverseMercator, 20296, {595, 1761, 751, 2308, 595}}, // 3-degree Gauss-Kruger CM 108E: 0, 108, 1, 500000, 0
    {16398, Method::transverseMercator, 20364, {595, 1771, 751, 2308, 595}}, // 3-degree Gauss-Kruger CM 114E: 0, 114, 1, 500000, 0
    {16400, Method::transverseMercator, 41576, {595, 595, 673, 2308, 595}}, // TM 0 N: 0, 0, 0.9996, 500000, 0
    {16405, Method::transverseMercator, 41587, {595, 951, 673, 2308, 595}}, // TM 5 NE: 0, 5, 0.9996, 500000, 0
    {16406, Method::transverseMercator, 41599, {595, 965, 673, 2308, 595}}, // TM 6 NE: 0, 6, 0.9996, 500000, 0
    {16411, Method::transverseMercator, 31761, {595, 1000, 673, 2308, 595}}, // TM 11 NE: 0, 11, 0.9996, 500000, 0
    {16412, Method::transverseMercator, 42132, {595, 1010, 673, 2308, 595}}, // TM 12 NE: 0, 12, 0.9996, 500000, 0
    {16413, Method::transverseMercator, 20186, {595, 1014, 673, 2308, 595}}, // TM 13 NE: 0, 13, 0.9996, 500000, 0
    {16430, Method::transverseMercator, 45754, {595, 1182, 673, 2308, 595}}, // TM 30 NE: 0, 30, 0.9996, 500000, 0
    {16490, Method::transverseMercator, 66093, {595, 1694, 673, 2308, 595}}, // TM 90 NE: 0, 90, 0.9996, 500000, 0
    {16506, Method::transverseMercator, 72595, {595, 1754, 673, 2308, 595}}, // TM 106 NE: 0, 106, 0.9996, 500000, 0
    {16586, Method::transverseMercator, 66904, {595, 1754, 751, 2308, 595}}, // GK 106 NE: 0, 106, 1, 500000, 0
    {16611, Method::transverseMercator, 29088, {595, 1006, 673, 2308, 2584}}, // TM 11.30 SE: 0, 11.5, 0.9996, 500000, 10000000
    {16612, Method::transverseMercator, 29108, {595, 1010, 673, 2308, 2584}}, // TM 12 SE: 0, 12, 0.9996, 500000, 10000000
    {16636, Method::transverseMercator, 218018, {595, 1257, 673, 2308, 2584}}, // TM 36 SE: 0, 36, 0.9996, 500000, 10000000
    {16709, Method::transverseMercator, 19944, {595, 1764, 673, 2308, 2584}}, // TM 109 SE: 0, 109, 0.9996, 500000, 10000000
    {16716, Method::transverseMercator, 217975, {595, 1785, 673, 2308, 2584}}, // TM 116 SE: 0, 116, 0.9996, 500000, 10000000
    {16732, Method::transverseMercator, 218003, {595, 1814, 673, 2308, 2584}}, // TM 132 SE: 0, 132, 0.9996, 500000, 10000000
    {16907, Method::transverseMercator, 59733, {595, 1084, 751, 2570, 595}}, // GSK 3-degree Gauss-Kruger zone 7: 0, 21, 1, 7250000, 0
    {16908, Method::transverseMercator, 59757, {595, 1114, 751, 2578, 595}}, // GSK 3-degree Gauss-Kruger zone 8: 0, 24, 1, 8250000, 0
    {16909, Method::transverseMercator, 59781, {595, 1151, 751, 2581, 595}}, // GSK 3-degree Gauss-Kruger zone 9: 0, 27, 1, 9250000, 0
    {16910, Method::transverseMercator, 58358, {595, 1182, 751, 2585, 595}}, // GSK 3-degree Gauss-Kruger zone 10: 0, 30, 1, 10250000, 0
    {16911, Method::transverseMercator, 58383, {595, 1215, 751, 2587, 595}}, // GSK 3-degree Gauss-Kruger zone 11: 0, 33, 1, 11250000, 0
    {16912, Method::transverseMercator, 58408, {595, 1257, 751, 2589, 595}}, // GSK 3-degree Gauss-Kruger zone 12: 0, 36, 1, 12250000, 0
    {16913, Method::transverseMercator, 58433, {595, 1314, 751, 2591, 595}}, // GSK 3-degree Gauss-Kruger zone 13: 0, 39, 1, 13250000, 0
    {16914, Method::transverseMercator, 58458, {595, 1389, 751, 2593, 595}}, // GSK 3-degree Gauss-Kruger zone 14: 0, 42, 1, 14250000, 0
    {16915, Method::transverseMercator, 58483, {595, 1473, 751, 2595, 595}}, // GSK 3-degree Gauss-Kruger zone 15: 0, 45, 1, 15250000, 0
    {16916, Method::transverseMercator, 58508, {595, 1535, 751, 2597, 595}}, // GSK 3-degree Gauss-Kruger zone 16: 0, 48, 1, 16250000, 0
    {16917, Method::transverseMercator, 58533, {595, 1561, 751, 2599, 595}}, // GSK 3-degree Gauss-Kruger zone 17: 0, 51, 1, 17250000, 0
    {16918, Method::transverseMercator, 58558, {595, 1591, 751, 2601, 595}}, // GSK 3-degree Gauss-Kruger zone 18: 0, 54, 1, 18250000, 0
    {16919, Method::transverseMercator, 58583, {595, 1602, 751, 2603, 595}}, // GSK 3-degree Gauss-Kruger zone 19: 0, 57, 1, 19250000, 0
    {16920, Method::transverseMercator, 58608, {595, 1610, 751, 2605, 595}}, // GSK 3-degree Gauss-Kruger zone 20: 0, 60, 1, 20250000, 0
    {16921, Method::transverseMercator, 58633, {595, 1618, 751, 2607, 595}}, // GSK 3-degree Gauss-Kruger zone 21: 0, 63, 1, 21250000, 0
    {16922, Method::transverseMercator, 58658, {595, 1627, 751, 2609, 595}}, // GSK 3-degree Gauss-Kruger zone 22: 0, 66, 1, 22250000, 0
    {16923, Method::transverseMercator, 58683, {595, 1633, 751, 2611, 595}}, // GSK 3-degree Gauss-Kruger zone 23: 0, 69, 1, 23250000, 0
    {16924, Method::transverseMercator, 58708, {595, 1640, 751, 2613, 595}}, // GSK 3-degree Gauss-Kruger zone 24: 0, 72, 1, 24250000, 0
    {16925, Method::transverseMercator, 58733, {595, 1649, 751, 2615, 595}}, // GSK 3-degree Gauss-Kruger zone 25: 0, 75, 1, 25250000, 0
    {16926, Method::transverseMercator, 58758, {595, 1659, 751, 2617, 595}}, // GSK 3-degree Gauss-Kruger zone 26: 0, 78, 1, 26250000, 0
    {16927, Method::transverseMercator, 58783, {595, 1672, 751, 2619, 595}}, // GSK 3-degree Gauss-Kruger zone 27: 0, 81, 1, 27250000, 0
    {16928, Method::transverseMercator, 58808, {595, 1680, 751, 2621, 595}}, // GSK 3-degree Gauss-Kruger zone 28: 0, 84, 1, 28250000, 0
    {16929, Method::transverseMercator, 58833, {595, 1686, 751, 2623, 595}}, // GSK 3-degree Gauss-Kruger zone 29: 0, 87, 1, 29250000, 0
    {16930, Method::transverseMercator, 58858, {595, 1694, 751, 2625, 595}}, // GSK 3-degree Gauss-Kruger zone 30: 0, 90, 1, 30250000, 0
    {16931, Method::transverseMercator, 58883, {595, 1710, 751, 2627, 595}}, // GSK 3-degree Gauss-Kruger zone 31: 0, 93, 1, 31250000, 0
    {16932, Method::transverseMercator, 58908, {595, 1717, 751, 2629, 595}}, // GSK 3-degree Gauss-Kruger zone 32: 0, 96, 1, 32250000, 0
    {16933, Method::transverseMercator, 58933, {595, 1720, 751, 2631, 595}}, // GSK 3-degree Gauss-Kruger zone 33: 0, 99, 1, 33250000, 0
    {16934, Method::transverseMercator, 58958, {595, 1733, 751, 2633, 595}}, // GSK 3-degree Gauss-Kruger zone 34: 0, 102, 1, 34250000, 0
    {16935, Method::transverseMercator, 58983, {595, 1750, 751, 2635, 595}}, // GSK 3-degree Gauss-Kruger zone 35: 0, 105, 1, 35250000, 0
    {16936, Method::transverseMercator, 59008, {595, 1761, 751, 2637, 595}}, // GSK 3-degree Gauss-Kruger zone 36: 0, 108, 1, 36250000, 0
    {16937, Method::transverseMercator, 59033, {595, 1767, 751, 2639, 595}}, // GSK 3-degree Gauss-Kruger zone 37: 0, 111, 1, 37250000, 0
    {16938, Method::transverseMercator, 59058, {595, 1771, 751, 2641, 595}}, // GSK 3-degree Gauss-Kruger zone 38: 0, 114, 1, 38250000, 0
    {16939, Method::transverseMercator, 59083, {595, 1787, 751, 2643, 595}}, // GSK 3-degree Gauss-Kruger zone 39: 0, 117, 1, 39250000, 0
    {16940, Method::transverseMercator, 59108, {595, 1792, 751, 2645, 595}}, // GSK 3-degree Gauss-Kruger zone 40: 0, 120, 1, 40250000, 0
    {16941, Method::transverseMercator, 59133, {595, 1797, 751, 2647, 595}}, // GSK 3-degree Gauss-Kruger zone 41: 0, 123, 1, 41250000, 0
    {16942, Method::transverseMercator, 59158, {595, 1802, 751, 2649, 595}}, // GSK 3-degree Gauss-Kruger zone 42: 0, 126, 1, 42250000, 0
    {16943, Method::transverseMercator, 59183, {595, 1807, 751, 2651, 595}}, // GSK 3-degree Gauss-Kruger zone 43: 0, 129, 1, 43250000, 0
    {16944, Method::transverseMercator, 59208, {595, 1814, 751, 2653, 595}}, // GSK 3-degree Gauss-Kruger zone 44: 0, 132, 1, 44250000, 0
    {16945, Method::transverseMercator, 59233, {595, 1820, 751, 2655, 595}}, // GSK 3-degree Gauss-Kruger zone 45: 0, 135, 1, 45250000, 0
    {16946, Method::transverseMercator, 59258, {595, 1825, 751, 2657, 595}}, // GSK 3-degree Gauss-Kruger zone 46: 0, 138, 1, 46250000, 0
    {16947, Method::transverseMercator, 59283, {595, 1833, 751, 2659, 595}}, // GSK 3-degree Gauss-Kruger zone 47: 0, 141, 1, 47250000, 0
    {16948, Method::transverseMercator, 59308, {595, 1836, 751, 2661, 595}}, // GSK 3-degree Gauss-Kruger zone 48: 0, 144, 1, 48250000, 0
    {16949, Method::transverseMercator, 59333, {595, 1841, 751, 2663, 595}}, // GSK 3-degree Gauss-Kruger zone 49: 0, 147, 1, 49250000, 0
    {16950, Method::transverseMercator, 59358, {595, 1843, 751, 2665, 595}}, // GSK 3-degree Gauss-Kruger zone 50: 0, 150, 1, 50250000, 0
    {16951, Method::transverseMercator, 59383, {595, 1844, 751, 2667, 595}}, // GSK 3-degree Gauss-Kruger zone 51: 0, 153, 1, 51250000, 0
    {16952, Method::transverseMercator, 59408, {595, 1846, 751, 2669, 595}}, // GSK 3-degree Gauss-Kruger zone 52: 0, 156, 1, 52250000, 0
    {16953, Method::transverseMercator, 59433, {595, 1849, 751, 2671, 595}}, // GSK 3-degree Gauss-Kruger zone 53: 0, 159, 1, 53250000, 0
    {16954, Method::transverseMercator, 59458, {595, 1850, 751, 2673, 595}}, // GSK 3-degree Gauss-Kruger zone 54: 0, 162, 1, 54250000, 0
    {16955, Method::transverseMercator, 59483, {595, 1852, 751, 2675, 595}}, // GSK 3-degree Gauss-Kruger zone 55: 0, 165, 1, 55250000, 0
    {16956, Method::transverseMercator, 59508, {595, 1858, 751, 2677, 595}}, // GSK 3-degree Gauss-Kruger zone 56: 0, 168, 1, 56250000, 0
    {16957, Method::transverseMercator, 59533, {595, 1877, 751, 2679, 595}}, // GSK 3-degree Gauss-Kruger zone 57: 0, 171, 1, 57250000, 0
    {16958, Method::transverseMercator, 59558, {595, 1900, 751, 2681, 595}}, // GSK 3-degree Gauss-Kruger zone 58: 0, 174, 1, 58250000, 0
    {16959, Method::transverseMercator, 59583, {595, 1920, 751, 2683, 595}}, // GSK 3-degree Gauss-Kruger zone 59: 0, 177, 1, 59250000, 0
    {16960, Method::transverseMercator, 59608, {595, 1927, 751, 2686, 595}}, // GSK 3-degree Gauss-Kruger zone 60: 0, 180, 1, 60250000, 0
    {16961, Method::transverseMercator, 59633, {595, 46, 751, 2688, 595}}, // GSK 3-degree Gauss-Kruger zone 61: 0, -177, 1, 61250000, 0
    {16962, Method::transverseMercator, 59658, {595, 49, 751, 2690, 595}}, // GSK 3-degree Gauss-Kruger zone 62: 0, -174, 1, 62250000, 0
    {16963, Method::transverseMercator, 59683, {595, 50, 751, 2692, 595}}, // GSK 3-degree Gauss-Kruger zone 63: 0, -171, 1, 63250000, 0
    {16964, Method::transverseMercator, 59708, {595, 52, 751, 2694, 595}}, // GSK 3-degree Gauss-Kruger zone 64: 0, -168, 1, 64250000, 0
    {17001, Method::transverseMercator, 4746, {595, 591, 673, 2308, 595}}, // TM 1 NW: 0, -1, 0.9996, 500000, 0
    {17005, Method::transverseMercator, 4617, {595, 569, 673, 2308, 595}}, // TM 5 NW: 0, -5, 0.9996, 500000, 0
    {17054, Method::transverseMercator, 230096, {595, 442, 673, 2308, 595}}, // TM 54 NW: 0, -54, 0.9996, 500000, 0
    {17107, Method::transverseMercator, 57603, {595, 1084, 751, 2249, 595}}, // GSK 3-degree Gauss-Kruger CM 21E: 0, 21, 1, 250000, 0
    {17108, Method::transverseMercator, 57631, {595, 1114, 751, 2249, 595}}, // GSK 3-degree Gauss-Kruger CM 24E: 0, 24, 1, 250000, 0
    {17109, Method::transverseMercator, 57659, {595, 1151, 751, 2249, 595}}, // GSK 3-degree Gauss-Kruger CM 27E: 0, 27, 1, 250000, 0
    {17110, Method::transverseMercator, 57686, {595, 1182, 751, 2249, 595}}, // GSK 3-degree Gauss-Kruger CM 30E: 0, 30, 1, 250000, 0
    {17111, Method::transverseMercator, 57714, {595, 1215, 751, 2249, 595}}, // GSK 3-degree Gauss-Kruger CM 33E: 0, 33, 1, 250000, 0
    {17112, Method::transverseMercator, 57742, {595, 1257, 751, 2249, 595}}, // GSK 3-degree Gauss-Kruger CM 36E: 0, 36, 1, 250000, 0
    {17113, Method::transverseMercator, 57770, {595, 1314, 751, 2249, 595}}, // GSK 3-degree Gauss-Kruger CM 39E: 0, 39, 1, 250000, 0
    {17114, Method::transverseMercator, 57798, {595, 1389, 751, 2249, 595}}, // GSK 3-degree Gauss-Kruger CM 42E: 0, 42, 1, 250000, 0
    {17115, Method::transverseMercator, 57826, {595, 1473, 751, 2249, 595}}, // GSK 3-degree Gauss-Kruger CM 45E: 0, 45, 1, 250000, 0
    {17116, Method::transverseMercator, 57854, {595, 1535, 751, 2249, 595}}, // GSK 3-degree Gauss-Kruger CM 48E: 0, 48, 1, 250000, 0
    {17117, Method::transverseMercator, 57882, {595, 1561, 751, 2249, 595}}, // GSK 3-degree Gauss-Kruger CM 51E: 0, 51, 1, 250000, 0
    {17118, Method::transverseMercator, 57910, {595, 1591, 751, 2249, 595}}, // GSK 3-degree Gauss-Kruger CM 54E: 0, 54, 1, 250000, 0
    {17119, Method::transverseMercator, 57938, {595, 1602, 751, 2249, 595}}, // GSK 3-degree Gauss-Kruger CM 57E: 0, 57, 1, 250000, 0
    {17120, Method::transverseMercator, 57966, {595, 1610, 751, 2249, 595}}, // GSK 3-degree Gauss-Kruger CM 60E: 0, 60, 1, 250000, 0
    {17121, Method::transverseMercator, 57994, {595, 1618, 751, 2249, 595}}, // GSK 3-degree Gauss-Kruger CM 63E: 0, 63, 1, 250000, 0
    {17122, Method::transverseMercator, 58022, {595, 1627, 751, 2249, 595}}, // GSK 3-degree Gauss-Kruger CM 66E: 0, 66, 1, 250000, 0
    {17123, Method::transverseMercator, 58050, {595, 1633, 751, 2249, 595}}, // GSK 3-degree Gauss-Kruger CM 69E: 0, 69, 1, 250000, 0
    {17124, Method::transverseMercator, 58078, {595, 1640, 751, 2249, 595}}, // GSK 3-degree Gauss-Kruger CM 72E: 0, 72, 1, 250000, 0
    {17125, Method::transverseMercator, 58106, {595, 1649, 751, 2249, 595}}, // GSK 3-degree Gauss-Kruger CM 75E: 0, 75, 1, 250000, 0
    {17126, Method::transverseMercator, 58134, {595, 1659, 751, 2249, 595}}, // GSK 3-degree Gauss-Kruger CM 78E: 0, 78, 1, 250000, 0
    {17127, Method::transverseMercator, 58162, {595, 1672, 751, 2249, 595}}, // GSK 3-degree Gauss-Kruger CM 81E: 0, 81, 1, 250000, 0
    {17128, Method::transverseMercator, 58190, {595, 1680, 751, 2249, 595}}, // GSK 3-degree Gauss-Kruger CM 84E: 0, 84, 1, 250000, 0
    {17129, Method::transverseMercator, 58218, {595, 1686, 751, 2249, 595}}, // GSK 3-degree Gauss-Kruger CM 87E: 0, 87, 1, 250000, 0
    {17130, Method::transverseMercator, 58246, {595, 1694, 751, 2249, 595}}, // GSK 3-degree Gauss-Kruger CM 90E: 0, 90, 1, 250000, 0
    {17131, Method::transverseMercator, 58274, {595, 1710, 751, 2249, 595}}, // GSK 3-degree Gauss-Kruger CM 93E: 0, 93, 1, 250000, 0
    {17132, Method::transverseMercator, 58302, {595, 1717, 751, 2249, 595}}, // GSK 3-degree Gauss-Kruger CM 96E: 0, 96, 1, 250000, 0
    {17133, Method::transverseMercator, 58330, {595, 1720, 751, 2249, 595}}, // GSK 3-degree Gauss-Kruger CM 99E: 0, 99, 1, 250000, 0
    {17134, Method::transverseMercator, 56711, {595, 1733, 751, 2249, 595}}, // GSK 3-degree Gauss-Kruger CM 102E: 0, 102, 1, 250000, 0
    {17135, Method::transverseMercator, 56739, {595, 1750, 751, 2249, 595}}, // GSK 3-degree Gauss-Kruger CM 105E: 0, 105, 1, 250000, 0
    {17136, Method::transverseMercator, 56767, {595, 1761, 751, 2249, 595}}, // GSK 3-degree Gauss-Kruger CM 108E: 0, 108, 1, 250000, 0
    {17137, Method::transverseMercator, 56795, {595, 1767, 751, 2249, 595}}, // GSK 3-degree Gauss-Kruger CM 111E: 0, 111, 1, 250000, 0
    {17138, Method::transverseMercator, 56823, {595, 1771, 751, 2249, 595}}, // GSK 3-degree Gauss-Kruger CM 114E: 0, 114, 1, 250000, 0
    {17139, Method::transverseMercator, 56851, {595, 1787, 751, 2249, 595}}, // GSK 3-degree Gauss-Kruger CM 117E: 0, 117, 1, 250000, 0
    {17140, Method::transverseMercator, 56879, {595, 1792, 751, 2249, 595}}, // GSK 3-degree Gauss-Kruger CM 120E: 0, 120, 1, 250000, 0
    {17141, Method::transverseMercator, 56907, {595, 1797, 751, 2249, 595}}, // GSK 3-degree Gauss-Kruger CM 123E: 0, 123, 1, 250000, 0
    {17142, Method::transverseMercator, 56936, {595, 1802, 751, 2249, 595}}, // GSK 3-degree Gauss-Kruger CM 126E: 0, 126, 1, 250000, 0
    {17143, Method::transverseMercator, 56965, {595, 1807, 751, 2249, 595}}, // GSK 3-degree Gauss-Kruger CM 129E: 0, 129, 1, 250000, 0
    {17144, Method::transverseMercator, 56994, {595, 1814, 751, 2249, 595}}, // GSK 3-degree Gauss-Kruger CM 132E: 0, 132, 1, 250000, 0
    {17145, Method::transverseMercator, 57023, {595, 1820, 751, 2249, 595}}, // GSK 3-degree Gauss-Kruger CM 135E: 0, 135, 1, 250000, 0
    {17146, Method::transverseMercator, 57052, {595, 1825, 751, 2249, 595}}, // GSK 3-degree Gauss-Kruger CM 138E: 0, 138, 1, 250000, 0
    {17147, Method::transverseMercator, 57081, {595, 1833, 751, 2249, 595}}, // GSK 3-degree Gauss-Kruger CM 141E: 0, 141, 1, 250000, 0
    {17148, Method::transverseMercator, 57110, {595, 1836, 751, 2249, 595}}, // GSK 3-degree Gauss-Kruger CM 144E: 0, 144, 1, 250000, 0
    {17149, Method::transverseMercator, 57139, {595, 1841, 751, 2249, 595}}, // GSK 3-degree Gauss-Kruger CM 147E: 0, 147, 1, 250000, 0
    {17150, Method::transverseMercator, 57168, {595, 1843, 751, 2249, 595}}, // GSK 3-degree Gauss-Kruger CM 150E: 0, 150, 1, 250000, 0
    {17151, Method::transverseMercator, 57197, {595, 1844, 751, 2249, 595}}, // GSK 3-degree Gauss-Kruger CM 153E: 0, 153, 1, 250000, 0
    {17152, Method::transverseMercator, 57226, {595, 1846, 751, 2249, 595}}, // GSK 3-degree Gauss-Kruger CM 156E: 0, 156, 1, 250000, 0
    {17153, Method::transverseMercator, 57255, {595, 1849, 751, 2249, 595}}, // GSK 3-degree Gauss-Kruger CM 159E: 0, 159, 1, 250000, 0
    {17154, Method::transverseMercator, 57284, {595, 1850, 751, 2249, 595}}, // GSK 3-degree Gauss-Kruger CM 162E: 0, 162, 1, 250000, 0
    {17155, Method::transverseMercator, 57313, {595, 1852, 751, 2249, 595}}, // GSK 3-degree Gauss-Kruger CM 165E: 0, 165, 1, 250000, 0
    {17156, Method::transverseMercator, 57342, {595, 1858, 751, 2249, 595}}, // GSK 3-degree Gauss-Kruger CM 168E: 0, 168, 1, 250000, 0
    {17157, Method::transverseMercator, 57400, {595, 1877, 751, 2249, 595}}, // GSK 3-degree Gauss-Kruger CM 171E: 0, 171, 1, 250000, 0
    {17158, Method::transverseMercator, 57458, {595, 1900, 751, 2249, 595}}, // GSK 3-degree Gauss-Kruger CM 174E: 0, 174, 1, 250000, 0
    {17159, Method::transverseMercator, 57516, {595, 1920, 751, 2249, 595}}, // GSK 3-degree Gauss-Kruger CM 177E: 0, 177, 1, 250000, 0
    {17160, Method::transverseMercator, 57574, {595, 1927, 751, 2249, 595}}, // GSK 3-degree Gauss-Kruger CM 180E: 0, 180, 1, 250000, 0
    {17161, Method::transverseMercator, 57545, {595, 46, 751, 2249, 595}}, // GSK 3-degree Gauss-Kruger CM 177W: 0, -177, 1, 250000, 0
    {17162, Method::transverseMercator, 57487, {595, 49, 751, 2249, 595}}, // GSK 3-degree Gauss-Kruger CM 174W: 0, -174, 1, 250000, 0
    {17163, Method::transverseMercator, 57429, {595, 50, 751, 2249, 595}}, // GSK 3-degree Gauss-Kruger CM 171W: 0, -171, 1, 250000, 0
    {17164, Method::transverseMercator, 57371, {595, 52, 751, 2249, 595}}, // GSK 3-degree Gauss-Kruger CM 168W: 0, -168, 1, 250000, 0
    {17204, Method::lambertConic2, 216060, {234, 419, 431, 425, 595, 595}}, // SCAR IMW SP19-20: -90, -66, -60.666666666666664, -63.333333333333336, 0, 0
    {17205, Method::lambertConic2, 216080, {234, 442, 431, 425, 595, 595}}, // SCAR IMW SP21-22: -90, -54, -60.666666666666664, -63.333333333333336, 0, 0
    {17206, Method::lambertConic2, 216101, {234, 480, 431, 425, 595, 595}}, // SCAR IMW SP23-24: -90, -42, -60.666666666666664, -63.333333333333336, 0, 0
    {17207, Method::lambertConic2, 216122, {234, 49, 422, 415, 595, 595}}, // SCAR IMW SQ01-02: -90, -174, -64.66666666666667, -67.33333333333333, 0, 0
    {17208, Method::lambertConic2, 216143, {234, 419, 422, 415, 595, 595}}, // SCAR IMW SQ19-20: -90, -66, -64.66666666666667, -67.33333333333333, 0, 0
    {17209, Method::lambertConic2, 216163, {234, 442, 422, 415, 595, 595}}, // SCAR IMW SQ21-22: -90, -54, -64.66666666666667, -67.33333333333333, 0, 0
    {17210, Method::lambertConic2, 216184, {234, 1389, 422, 415, 595, 595}}, // SCAR IMW SQ37-38: -90, 42, -64.66666666666667, -67.33333333333333, 0, 0
    {17211, Method::lambertConic2, 216205, {234, 1591, 422, 415, 595, 595}}, // SCAR IMW SQ39-40: -90, 54, -64.66666666666667, -67.33333333333333, 0, 0
    {17212, Method::lambertConic2, 216226, {234, 1627, 422, 415, 595, 595}}, // SCAR IMW SQ41-42: -90, 66, -64.66666666666667, -67.33333333333333, 0, 0
    {17213, Method::lambertConic2, 216247, {234, 1659, 422, 415, 595, 595}}, // SCAR IMW SQ43-44: -90, 78, -64.66666666666667, -67.33333333333333, 0, 0
    {17214, Method::lambertConic2, 216268, {234, 1694, 422, 415, 595, 595}}, // SCAR IMW SQ45-46: -90, 90, -64.66666666666667, -67.33333333333333, 0, 0
    {17215, Method::lambertConic2, 216289, {234, 1733, 422, 415, 595, 595}}, // SCAR IMW SQ47-48: -90, 102, -64.66666666666667, -67.33333333333333, 0, 0
    {17216, Method::lambertConic2, 216310, {234, 1771, 422, 415, 595, 595}}, // SCAR IMW SQ49-50: -90, 114, -64.66666666666667, -67.33333333333333, 0, 0
    {17217, Method::lambertConic2, 216331, {234, 1802, 422, 415, 595, 595}}, // SCAR IMW SQ51-52: -90, 126, -64.66666666666667, -67.33333333333333, 0, 0
    {17218, Method::lambertConic2, 216352, {234, 1825, 422, 415, 595, 595}}, // SCAR IMW SQ53-54: -90, 138, -64.66666666666667, -67.33333333333333, 0, 0
    {17219, Method::lambertConic2, 216373, {234, 1843, 422, 415, 595, 595}}, // SCAR IMW SQ55-56: -90, 150, -64.66666666666667, -67.33333333333333, 0, 0
    {17220, Method::lambertConic2, 216394, {234, 1850, 422, 415, 595, 595}}, // SCAR IMW SQ57-58: -90, 162, -64.66666666666667, -67.33333333333333, 0, 0
    {17221, Method::lambertConic2, 216415, {234, 151, 407, 393, 595, 595}}, // SCAR IMW SR13-14: -90, -102, -68.66666666666667, -71.33333333333333, 0, 0
    {17222, Method::lambertConic2, 216436, {234, 234, 407, 393, 595, 595}}, // SCAR IMW SR15-16: -90, -90, -68.66666666666667, -71.33333333333333, 0, 0
    {17223, Method::lambertConic2, 216457, {234, 337, 407, 393, 595, 595}}, // SCAR IMW SR17-18: -90, -78, -68.66666666666667, -71.33333333333333, 0, 0
    {17224, Method::lambertConic2, 216478, {234, 419, 407, 393, 595, 595}}, // SCAR IMW SR19-20: -90, -66, -68.66666666666667, -71.33333333333333, 0, 0
    {17225, Method::lambertConic2, 216498, {234, 548, 407, 393, 595, 595}}, // SCAR IMW SR27-28: -90, -18, -68.66666666666667, -71.33333333333333, 0, 0
    {17226, Method::lambertConic2, 216518, {234, 566, 407, 393, 595, 595}}, // SCAR IMW SR29-30: -90, -6, -68.66666666666667, -71.33333333333333, 0, 0
    {17227, Method::lambertConic2, 216539, {234, 965, 407, 393, 595, 595}}, // SCAR IMW SR31-32: -90, 6, -68.66666666666667, -71.33333333333333, 0, 0
    {17228, Method::lambertConic2, 216560, {234, 1052, 407, 393, 595, 595}}, // SCAR IMW SR33-34: -90, 18, -68.66666666666667, -71.33333333333333, 0, 0
    {17229, Method::lambertConic2, 216581, {234, 1182, 407, 393, 595, 595}}, // SCAR IMW SR35-36: -90, 30, -68.66666666666667, -71.33333333333333, 0, 0
    {17230, Method::lambertConic2, 216602, {234, 1389, 407, 393, 595, 595}}, // SCAR IMW SR37-38: -90, 42, -68.66666666666667, -71.33333333333333, 0, 0
    {17231, Method::lambertConic2, 216623, {234, 1591, 407, 393, 595, 595}}, // SCAR IMW SR39-40: -90, 54, -68.66666666666667, -71.33333333333333, 0, 0
    {17232, Method::lambertConic2, 216644, {234, 1627, 407, 393, 595, 595}}, // SCAR IMW SR41-42: -90, 66, -68.66666666666667, -71.33333333333333, 0, 0
    {17233, Method::lambertConic2, 216665, {234, 1659, 407, 393, 595, 595}}, // SCAR IMW SR43-44: -90, 78, -68.66666666666667, -71.33333333333333, 0, 0
    {17234, Method::lambertConic2, 216686, {234, 1694, 407, 393, 595, 595}}, // SCAR IMW SR45-46: -90, 90, -68.66666666666667, -71.33333333333333, 0, 0
    {17235, Method::lambertConic2, 216707, {234, 1733, 407, 393, 595, 595}}, // SCAR IMW SR47-48: -90, 102, -68.66666666666667, -71.33333333333333, 0, 0
    {17236, Method::lambertConic2, 216728, {234, 1771, 407, 393, 595, 595}}, // SCAR IMW SR49-50: -90, 114, -68.66666666666667, -71.33333333333333, 0, 0
    {17237, Method::lambertConic2, 216749, {234, 1802, 407, 393, 595, 595}}, // SCAR IMW SR51-52: -90, 126, -68.66666666666667, -71.33333333333333, 0, 0
    {17238, Method::lambertConic2, 216770, {234, 1825, 407, 393, 595, 595}}, // SCAR IMW SR53-54: -90, 138, -68.66666666666667, -71.33333333333333, 0, 0
    {17239, Method::lambertConic2, 216791, {234, 1843, 407, 393, 595, 595}}, // SCAR IMW SR55-56: -90, 150, -68.66666666666667, -71.33333333333333, 0, 0
    {17240, Method::lambertConic2, 216812, {234, 1850, 407, 393, 595, 595}}, // SCAR IMW SR57-58: -90, 162, -68.66666666666667, -71.33333333333333, 0, 0
    {17241, Method::lambertConic2, 216833, {234, 1900, 407, 393, 595, 595}}, // SCAR IMW SR59-60: -90, 174, -68.66666666666667, -71.33333333333333, 0, 0
    {17242, Method::lambertConic2, 216854, {234, 65, 383, 360, 595, 595}}, // SCAR IMW SS04-06: -90, -153, -72.66666666666667, -75.33333333333333, 0, 0
    {17243, Method::lambertConic2, 216875, {234, 72, 383, 360, 595, 595}}, // SCAR IMW SS07-09: -90, -135, -72.66666666666667, -75.33333333333333, 0, 0
    {17244, Method::lambertConic2, 216896, {234, 114, 383, 360, 595, 595}}, // SCAR IMW SS10-12: -90, -117, -72.66666666666667, -75.33333333333333, 0, 0
    {17245, Method::lambertConic2, 216916, {234, 165, 383, 360, 595, 595}}, // SCAR IMW SS13-15: -90, -99, -72.66666666666667, -75.33333333333333, 0, 0
    {17246, Method::lambertConic2, 216937, {234, 326, 383, 360, 595, 595}}, // SCAR IMW SS16-18: -90, -81, -72.66666666666667, -75.33333333333333, 0, 0
    {17247, Method::lambertConic2, 216958, {234, 426, 383, 360, 595, 595}}, // SCAR IMW SS19-21: -90, -63, -72.66666666666667, -75.33333333333333, 0, 0
    {17248, Method::lambertConic2, 216978, {234, 526, 383, 360, 595, 595}}, // SCAR IMW SS25-27: -90, -27, -72.66666666666667, -75.33333333333333, 0, 0
    {17249, Method::lambertConic2, 216999, {234, 559, 383, 360, 595, 595}}, // SCAR IMW SS28-30: -90, -9, -72.66666666666667, -75.33333333333333, 0, 0
    {17250, Method::lambertConic2, 217020, {234, 985, 383, 360, 595, 595}}, // SCAR IMW SS31-33: -90, 9, -72.66666666666667, -75.33333333333333, 0, 0
    {17251, Method::lambertConic2, 217041, {234, 1151, 383, 360, 595, 595}}, // SCAR IMW SS34-36: -90, 27, -72.66666666666667, -75.33333333333333, 0, 0
    {17252, Method::lambertConic2, 217062, {234, 1473, 383, 360, 595, 595}}, // SCAR IMW SS37-39: -90, 45, -72.66666666666667, -75.33333333333333, 0, 0
    {17253, Method::lambertConic2, 217083, {234, 1618, 383, 360, 595, 595}}, // SCAR IMW SS40-42: -90, 63, -72.66666666666667, -75.33333333333333, 0, 0
    {17254, Method::lambertConic2, 217104, {234, 1672, 383, 360, 595, 595}}, // SCAR IMW SS43-45: -90, 81, -72.66666666666667, -75.33333333333333, 0, 0
    {17255, Method::lambertConic2, 217125, {234, 1720, 383, 360, 595, 595}}, // SCAR IMW SS46-48: -90, 99, -72.66666666666667, -75.33333333333333, 0, 0
    {17256, Method::lambertConic2, 217146, {234, 1787, 383, 360, 595, 595}}, // SCAR IMW SS49-51: -90, 117, -72.66666666666667, -75.33333333333333, 0, 0
    {17257, Method::lambertConic2, 217167, {234, 1820, 383, 360, 595, 595}}, // SCAR IMW SS52-54: -90, 135, -72.66666666666667, -75.33333333333333, 0, 0
    {17258, Method::lambertConic2, 217188, {234, 1844, 383, 360, 595, 595}}, // SCAR IMW SS55-57: -90, 153, -72.66666666666667, -75.33333333333333, 0, 0
    {17259, Method::lambertConic2, 217209, {234, 1877, 383, 360, 595, 595}}, // SCAR IMW SS58-60: -90, 171, -72.66666666666667, -75.33333333333333, 0, 0
    {17260, Method::lambertConic2, 217230, {234, 52, 344, 333, 595, 595}}, // SCAR IMW ST01-04: -90, -168, -76.66666666666667, -79.33333333333333, 0, 0
    {17261, Method::lambertConic2, 217251, {234, 69, 344, 333, 595, 595}}, // SCAR IMW ST05-08: -90, -144, -76.66666666666667, -79.33333333333333, 0, 0
    {17262, Method::lambertConic2, 217272, {234, 100, 344, 333, 595, 595}}, // SCAR IMW ST09-12: -90, -120, -76.66666666666667, -79.33333333333333, 0, 0
    {17263, Method::lambertConic2, 217293, {234, 175, 344, 333, 595, 595}}, // SCAR IMW ST13-16: -90, -96, -76.66666666666667, -79.33333333333333, 0, 0
    {17264, Method::lambertConic2, 217314, {234, 389, 344, 333, 595, 595}}, // SCAR IMW ST17-20: -90, -72, -76.66666666666667, -79.33333333333333, 0, 0
    {17265, Method::lambertConic2, 217335, {234, 447, 344, 333, 595, 595}}, // SCAR IMW ST21-24: -90, -48, -76.66666666666667, -79.33333333333333, 0, 0
    {17266, Method::lambertConic2, 217356, {234, 528, 344, 333, 595, 595}}, // SCAR IMW ST25-28: -90, -24, -76.66666666666667, -79.33333333333333, 0, 0
    {17267, Method::lambertConic2, 217377, {234, 595, 344, 333, 595, 595}}, // SCAR IMW ST29-32: -90, 0, -76.66666666666667, -79.33333333333333, 0, 0
    {17268, Method::lambertConic2, 217398, {234, 1114, 344, 333, 595, 595}}, // SCAR IMW ST33-36: -90, 24, -76.66666666666667, -79.33333333333333, 0, 0
    {17269, Method::lambertConic2, 217419, {234, 1535, 344, 333, 595, 595}}, // SCAR IMW ST37-40: -90, 48, -76.66666666666667, -79.33333333333333, 0, 0
    {17270, Method::lambertConic2, 217440, {234, 1640, 344, 333, 595, 595}}, // SCAR IMW ST41-44: -90, 72, -76.66666666666667, -79.33333333333333, 0, 0
    {17271, Method::lambertConic2, 217461, {234, 1717, 344, 333, 595, 595}}, // SCAR IMW ST45-48: -90, 96, -76.66666666666667, -79.33333333333333, 0, 0
    {17272, Method::lambertConic2, 217482, {234, 1792, 344, 333, 595, 595}}, // SCAR IMW ST49-52: -90, 120, -76.66666666666667, -79.33333333333333, 0, 0
    {17273, Method::lambertConic2, 217503, {234, 1836, 344, 333, 595, 595}}, // SCAR IMW ST53-56: -90, 144, -76.66666666666667, -79.33333333333333, 0, 0
    {17274, Method::lambertConic2, 217524, {234, 1858, 344, 333, 595, 595}}, // SCAR IMW ST57-60: -90, 168, -76.66666666666667, -79.33333333333333, 0, 0
    {17275, Method::polarStereographicB, 217545, {329, 54, 595, 595}}, // SCAR IMW SU01-05: -80.23861111111111, -165, 0, 0
    {17276, Method::polarStereographicB, 217566, {329, 72, 595, 595}}, // SCAR IMW SU06-10: -80.23861111111111, -135, 0, 0
    {17277, Method::polarStereographicB, 217587, {329, 148, 595, 595}}, // SCAR IMW SU11-15: -80.23861111111111, -105, 0, 0
    {17278, Method::polarStereographicB, 217607, {329, 363, 595, 595}}, // SCAR IMW SU16-20: -80.23861111111111, -75, 0, 0
    {17279, Method::polarStereographicB, 217628, {329, 458, 595, 595}}, // SCAR IMW SU21-25: -80.23861111111111, -45, 0, 0
    {17280, Method::polarStereographicB, 217649, {329, 552, 595, 595}}, // SCAR IMW SU26-30: -80.23861111111111, -15, 0, 0
    {17281, Method::polarStereographicB, 217670, {329, 1030, 595, 595}}, // SCAR IMW SU31-35: -80.23861111111111, 15, 0, 0
    {17282, Method::polarStereographicB, 217691, {329, 1473, 595, 595}}, // SCAR IMW SU36-40: -80.23861111111111, 45, 0, 0
    {17283, Method::polarStereographicB, 217712, {329, 1649, 595, 595}}, // SCAR IMW SU41-45: -80.23861111111111, 75, 0, 0
    {17284, Method::polarStereographicB, 217733, {329, 1750, 595, 595}}, // SCAR IMW SU46-50: -80.23861111111111, 105, 0, 0
    {17285, Method::polarStereographicB, 217754, {329, 1820, 595, 595}}, // SCAR IMW SU51-55: -80.23861111111111, 135, 0, 0
    {17286, Method::polarStereographicB, 217775, {329, 1852, 595, 595}}, // SCAR IMW SU56-60: -80.23861111111111, 165, 0, 0
    {17287, Method::polarStereographicB, 217796, {329, 66, 595, 595}}, // SCAR IMW SV01-10: -80.23861111111111, -150, 0, 0
    {17288, Method::polarStereographicB, 217817, {329, 234, 595, 595}}, // SCAR IMW SV11-20: -80.23861111111111, -90, 0, 0
    {17289, Method::polarStereographicB, 217837, {329, 524, 595, 595}}, // SCAR IMW SV21-30: -80.23861111111111, -30, 0, 0
    {17290, Method::polarStereographicB, 217858, {329, 1182, 595, 595}}, // SCAR IMW SV31-40: -80.23861111111111, 30, 0, 0
    {17291, Method::polarStereographicB, 217879, {329, 1694, 595, 595}}, // SCAR IMW SV41-50: -80.23861111111111, 90, 0, 0
    {17292, Method::polarStereographicB, 217900, {329, 1843, 595, 595}}, // SCAR IMW SV51-60: -80.23861111111111, 150, 0, 0
    {17293, Method::polarStereographicB, 217921, {329, 595, 595, 595}}, // SCAR IMW SW01-60: -80.23861111111111, 0, 0, 0
    {17294, Method::lambertConic2, 218243, {337, 1850, 344, 333, 595, 595}}, // USGS Transantarctic Mountains: -78, 162, -76.66666666666667, -79.33333333333333, 0, 0
    {17295, Method::lambertAzimuthal, 139235, {1694, 1927, 595, 595}}, // North Pole Lambert Azimuthal Equal Area (Bering Sea): 90, 180, 0, 0
    {17296, Method::lambertAzimuthal, 139170, {1694, 66, 595, 595}}, // North Pole Lambert Azimuthal Equal Area (Alaska): 90, -150, 0, 0
    {17297, Method::lambertAzimuthal, 139269, {1694, 160, 595, 595}}, // North Pole Lambert Azimuthal Equal Area (Canada): 90, -100, 0, 0
    {17298, Method::lambertAzimuthal, 139202, {1694, 498, 595, 595}}, // North Pole Lambert Azimuthal Equal Area (Atlantic): 90, -40, 0, 0
    {17299, Method::lambertAzimuthal, 139300, {1694, 989, 595, 595}}, // North Pole Lambert Azimuthal Equal Area (Europe): 90, 10, 0, 0
    {17300, Method::lambertAzimuthal, 139332, {1694, 1694, 595, 595}}, // North Pole Lambert Azimuthal Equal Area (Russia): 90, 90, 0, 0
    {17321, Method::transverseMercator, 183401, {595, 1010, 751, 2141, 595}}, // SWEREF99 12 00: 0, 12, 1, 150000, 0
    {17322, Method::transverseMercator, 183416, {595, 1018, 751, 2141, 595}}, // SWEREF99 13 30: 0, 13.5, 1, 150000, 0
    {17323, Method::transverseMercator, 183446, {595, 1030, 751, 2141, 595}}, // SWEREF99 15 00: 0, 15, 1, 150000, 0
    {17324, Method::transverseMercator, 183476, {595, 1041, 751, 2141, 595}}, // SWEREF99 16 30: 0, 16.5, 1, 150000, 0
    {17325, Method::transverseMercator, 183506, {595, 1052, 751, 2141, 595}}, // SWEREF99 18 00: 0, 18, 1, 150000, 0
    {17326, Method::transverseMercator, 183431, {595, 1027, 751, 2141, 595}}, // SWEREF99 14 15: 0, 14.25, 1, 150000, 0
    {17327, Method::transverseMercator, 183461, {595, 1034, 751, 2141, 595}}, // SWEREF99 15 45: 0, 15.75, 1, 150000, 0
    {17328, Method::transverseMercator, 183491, {595, 1049, 751, 2141, 595}}, // SWEREF99 17 15: 0, 17.25, 1, 150000, 0
    {17329, Method::transverseMercator, 183521, {595, 1062, 751, 2141, 595}}, // SWEREF99 18 45: 0, 18.75, 1, 150000, 0
    {17330, Method::transverseMercator, 183536, {595, 1076, 751, 2141, 595}}, // SWEREF99 20 15: 0, 20.25, 1, 150000, 0
    {17331, Method::transverseMercator, 183550, {595, 1093, 751, 2141, 595}}, // SWEREF99 21 45: 0, 21.75, 1, 150000, 0
    {17332, Method::transverseMercator, 183565, {595, 1109, 751, 2141, 595}}, // SWEREF99 23 15: 0, 23.25, 1, 150000, 0
    {17333, Method::transverseMercator, 183580, {595, 1030, 673, 2308, 595}}, // SWEREF99 TM: 0, 15, 0.9996, 500000, 0
    {17334, Method::transverseMercator, 190965, {595, 1004, 751, 2439, 595}}, // Sweden zone 7.5 gon V: 0, 11.308277777777779, 1, 1500000, 0
    {17335, Method::transverseMercator, 190954, {595, 1020, 751, 2439, 595}}, // Sweden zone 5 gon V: 0, 13.558277777777779, 1, 1500000, 0
    {17336, Method::transverseMercator, 190909, {595, 1057, 751, 2439, 595}}, // Sweden zone 0 gon: 0, 18.05827777777778, 1, 1500000, 0
    {17337, Method::transverseMercator, 190919, {595, 1079, 751, 2439, 595}}, // Sweden zone 2.5 gon O: 0, 20.30827777777778, 1, 1500000, 0
    {17338, Method::transverseMercator, 190943, {595, 1105, 751, 2439, 595}}, // Sweden zone 5 gon O: 0, 22.55827777777778, 1, 1500000, 0
    {17339, Method::transverseMercator, 171622, {595, 1003, 766, 2441, 41}}, // RT90 zone 7.5 gon V emulation: 0, 11.30625, 1.000006, 1500025.141, -667.282
    {17340, Method::transverseMercator, 171605, {595, 1019, 765, 2442, 42}}, // RT90 zone 5 gon V emulation: 0, 13.556266666666668, 1.0000058, 1500044.695, -667.13
    {17341, Method::transverseMercator, 171570, {595, 1035, 764, 2443, 40}}, // RT90 zone 2.5 gon V emulation: 0, 15.806284529444445, 1.00000561024, 1500064.274, -667.711
    {17342, Method::transverseMercator, 171537, {595, 1054, 762, 2444, 39}}, // RT90 zone 0 gon emulation: 0, 18.0563, 1.0000054, 1500083.521, -668.844
    {17343, Method::transverseMercator, 171552, {595, 1078, 761, 2445, 38}}, // RT90 zone 2.5 gon O emulation: 0, 20.306316666666667, 1.0000052, 1500102.765, -670.706
    {17344, Method::transverseMercator, 171588, {595, 1104, 760, 2446, 37}}, // RT90 zone 5 gon O emulation: 0, 22.556333333333335, 1.0000049, 1500121.846, -672.557
    {17348, Method::transverseMercator, 92255, {595, 1750, 673, 2308, 2584}}, // Map Grid of Australia zone 48: 0, 105, 0.9996, 500000, 10000000
    {17349, Method::transverseMercator, 92273, {595, 1767, 673, 2308, 2584}}, // Map Grid of Australia zone 49: 0, 111, 0.9996, 500000, 10000000
    {17350, Method::transverseMercator, 92291, {595, 1787, 673, 2308, 2584}}, // Map Grid of Australia zone 50: 0, 117, 0.9996, 500000, 10000000
    {17351, Method::transverseMercator, 92309, {595, 1797, 673, 2308, 2584}}, // Map Grid of Australia zone 51: 0, 123, 0.9996, 500000, 10000000
    {17352, Method::transverseMercator, 92327, {595, 1807, 673, 2308, 2584}}, // Map Grid of Australia zone 52: 0, 129, 0.9996, 500000, 10000000
    {17353, Method::transverseMercator, 92345, {595, 1820, 673, 2308, 2584}}, // Map Grid of Australia zone 53: 0, 135, 0.9996, 500000, 10000000
    {17354, Method::transverseMercator, 92363, {595, 1833, 673, 2308, 2584}}, // Map Grid of Australia zone 54: 0, 141, 0.9996, 500000, 10000000
    {17355, Method::transverseMercator, 92381, {595, 1841, 673, 2308, 2584}}, // Map Grid of Australia zone 55: 0, 147, 0.9996, 500000, 10000000
    {17356, Method::transverseMercator, 92399, {595, 1844, 673, 2308, 2584}}, // Map Grid of Australia zone 56: 0, 153, 0.9996, 500000, 10000000
    {17357, Method::transverseMercator, 92417, {595, 1849, 673, 2308, 2584}}, // Map Grid of Australia zone 57: 0, 159, 0.9996, 500000, 10000000
    {17358, Method::transverseMercator, 92435, {595, 1852, 673, 2308, 2584}}, // Map Grid of Australia zone 58: 0, 165, 0.9996, 500000, 10000000
    {17359, Method::lambertConic2, 188357, {522, 1820, 525, 515, 2391, 2461}}, // South Australia Lambert: -32, 135, -28, -36, 1000000, 2000000
    {17360, Method::lambertConic2, 3841, {512, 1840, 515, 508, 2478, 2531}}, // Vicgrid66: -37, 145, -36, -38, 2500000, 4500000
    {17361, Method::lambertConic2, 55103, {512, 1840, 515, 508, 2478, 2478}}, // Vicgrid: -37, 145, -36, -38, 2500000, 2500000
    {17362, Method::lambertConic2, 63850, {595, 1818, 548, 515, 595, 595}}, // Geoscience Australia Standard National Scale Lambert Projection: 0, 134, -18, -36, 0, 0
    {17363, Method::transverseMercator, 25072, {525, 1844, 735, 2003, 2064}}, // Brisbane City Survey Grid 02: -28, 153, 0.99999, 50000, 100000
    {17364, Method::lambertConic2, 135864, {520, 1841, 523, 516, 2582, 2531}}, // New South Wales Lambert: -33.25, 147, -30.75, -35.75, 9300000, 4500000
    {17365, Method::albers, 54600, {595, 1814, 548, 515, 595, 595}}, // Australian Albers: 0, 132, -18, -36, 0, 0
    {17401, Method::lambertConic2, 81184, {595, 1142, 565, 556, 595, 595}}, // Katanga Lambert Conformal: 0, 26, -6.5, -11.5, 0, 0
    {17402, Method::transverseMercator, 81201, {559, 1142, 685, 595, 595}}, // Katanga Transverse Mercator: -9, 26, 0.9998, 0, 0
    {17412, Method::transverseMercator, 36336, {595, 1010, 700, 2308, 2584}}, // Congo Transverse Mercator zone 12: 0, 12, 0.9999, 500000, 10000000
    {17414, Method::transverseMercator, 36356, {595, 1025, 700, 2308, 2584}}, // Congo Transverse Mercator zone 14: 0, 14, 0.9999, 500000, 10000000
    {17416, Method::transverseMercator, 36376, {595, 1038, 700, 2308, 2584}}, // Congo Transverse Mercator zone 16: 0, 16, 0.9999, 500000, 10000000
    {17418, Method::transverseMercator, 36396, {595, 1052, 700, 2308, 2584}}, // Congo Transverse Mercator zone 18: 0, 18, 0.9999, 500000, 10000000
    {17420, Method::transverseMercator, 36416, {595, 1074, 700, 2308, 2584}}, // Congo Transverse Mercator zone 20: 0, 20, 0.9999, 500000, 10000000
    {17422, Method::transverseMercator, 36436, {595, 1097, 700, 2308, 2584}}, // Congo Transverse Mercator zone 22: 0, 22, 0.9999, 500000, 10000000
    {17424, Method::transverseMercator, 36456, {595, 1114, 700, 2308, 2584}}, // Congo Transverse Mercator zone 24: 0, 24, 0.9999, 500000, 10000000
    {17426, Method::transverseMercator, 36476, {595, 1142, 700, 2308, 2584}}, // Congo Transverse Mercator zone 26: 0, 26, 0.9999, 500000, 10000000
    {17428, Method::transverseMercator, 36496, {595, 1161, 700, 2308, 2584}}, // Congo Transverse Mercator zone 28: 0, 28, 0.9999, 500000, 10000000
    {17430, Method::transverseMercator, 36516, {595, 1182, 700, 2308, 2584}}, // Congo Transverse Mercator zone 30: 0, 30, 0.9999, 500000, 10000000
    {17432, Method::transverseMercator, 38028, {595, 1715, 700, 2198, 2439}}, // Indonesia TM-3 zone 46.2: 0, 94.5, 0.9999, 200000, 1500000
    {17433, Method::transverseMercator, 38047, {595, 1719, 700, 2198, 2439}}, // Indonesia TM-3 zone 47.1: 0, 97.5, 0.9999, 200000, 1500000
    {17434, Method::transverseMercator, 38066, {595, 1724, 700, 2198, 2439}}, // Indonesia TM-3 zone 47.2: 0, 100.5, 0.9999, 200000, 1500000
    {17435, Method::transverseMercator, 38085, {595, 1743, 700, 2198, 2439}}, // Indonesia TM-3 zone 48.1: 0, 103.5, 0.9999, 200000, 1500000
    {17436, Method::transverseMercator, 38104, {595, 1756, 700, 2198, 2439}}, // Indonesia TM-3 zone 48.2: 0, 106.5, 0.9999, 200000, 1500000
    {17437, Method::transverseMercator, 38123, {595, 1765, 700, 2198, 2439}}, // Indonesia TM-3 zone 49.1: 0, 109.5, 0.9999, 200000, 1500000
    {17438, Method::transverseMercator, 38142, {595, 1768, 700, 2198, 2439}}, // Indonesia TM-3 zone 49.2: 0, 112.5, 0.9999, 200000, 1500000
    {17439, Method::transverseMercator, 38161, {595, 1782, 700, 2198, 2439}}, // Indonesia TM-3 zone 50.1: 0, 115.5, 0.9999, 200000, 1500000
    {17440, Method::transverseMercator, 38180, {595, 1789, 700, 2198, 2439}}, // Indonesia TM-3 zone 50.2: 0, 118.5, 0.9999, 200000, 1500000
    {17441, Method::transverseMercator, 38199, {595, 1794, 700, 2198, 2439}}, // Indonesia TM-3 zone 51.1: 0, 121.5, 0.9999, 200000, 1500000
    {17442, Method::transverseMercator, 38218, {595, 1799, 700, 2198, 2439}}, // Indonesia TM-3 zone 51.2: 0, 124.5, 0.9999, 200000, 1500000
    {17443, Method::transverseMercator, 38237, {595, 1805, 700, 2198, 2439}}, // Indonesia TM-3 zone 52.1: 0, 127.5, 0.9999, 200000, 1500000
    {17444, Method::transverseMercator, 38256, {595, 1811, 700, 2198, 2439}}, // Indonesia TM-3 zone 52.2: 0, 130.5, 0.9999, 200000, 1500000
    {17445, Method::transverseMercator, 38275, {595, 1817, 700, 2198, 2439}}, // Indonesia TM-3 zone 53.1: 0, 133.5, 0.9999, 200000, 1500000
    {17446, Method::transverseMercator, 38294, {595, 1822, 700, 2198, 2439}}, // Indonesia TM-3 zone 53.2: 0, 136.5, 0.9999, 200000, 1500000
    {17447, Method::transverseMercator, 38313, {595, 1828, 700, 2198, 2439}}, // Indonesia TM-3 zone 54.1: 0, 139.5, 0.9999, 200000, 1500000
    {17448, Method::transverseMercator, 17280, {595, 1750, 673, 2308, 2584}}, // Australian Map Grid zone 48: 0, 105, 0.9996, 500000, 10000000
    {17449, Method::transverseMercator, 17297, {595, 1767, 673, 2308, 2584}}, // Australian Map Grid zone 49: 0, 111, 0.9996, 500000, 10000000
    {17450, Method::transverseMercator, 17314, {595, 1787, 673, 2308, 2584}}, // Australian Map Grid zone 50: 0, 117, 0.9996, 500000, 10000000
    {17451, Method::transverseMercator, 17331, {595, 1797, 673, 2308, 2584}}, // Australian Map Grid zone 51: 0, 123, 0.9996, 500000, 10000000
    {17452, Method::transverseMercator, 17348, {595, 1807, 673, 2308, 2584}}, // Australian Map Grid zone 52: 0, 129, 0.9996, 500000, 10000000
    {17453, Method::transverseMercator, 17365, {595, 1820, 673, 2308, 2584}}, // Australian Map Grid zone 53: 0, 135, 0.9996, 500000, 10000000
    {17454, Method::transverseMercator, 17382, {595, 1833, 673, 2308, 2584}}, // Australian Map Grid zone 54: 0, 141, 0.9996, 500000, 10000000
    {17455, Method::transverseMercator, 17399, {595, 1841, 673, 2308, 2584}}, // Australian Map Grid zone 55: 0, 147, 0.9996, 500000, 10000000
    {17456, Method::transverseMercator, 17416, {595, 1844, 673, 2308, 2584}}, // Australian Map Grid zone 56: 0, 153, 0.9996, 500000, 10000000
    {17457, Method::transverseMercator, 17433, {595, 1849, 673, 2308, 2584}}, // Australian Map Grid zone 57: 0, 159, 0.9996, 500000, 10000000
    {17458, Method::transverseMercator, 17450, {595, 1852, 673, 2308, 2584}}, // Australian Map Grid zone 58: 0, 165, 0.9996, 500000, 10000000
    {17515, Method::transverseMercatorSouth, 186846, {595, 1030, 751, 595, 595}}, // South African Survey Grid zone 15: 0, 15, 1, 0, 0
    {17517, Method::transverseMercatorSouth, 186864, {595, 1046, 751, 595, 595}}, // South African Survey Grid zone 17: 0, 17, 1, 0, 0
    {17519, Method::transverseMercatorSouth, 186882, {595, 1068, 751, 595, 595}}, // South African Survey Grid zone 19: 0, 19, 1, 0, 0
    {17521, Method::transverseMercatorSouth, 186900, {595, 1084, 751, 595, 595}}, // South African Survey Grid zone 21: 0, 21, 1, 0, 0
    {17523, Method::transverseMercatorSouth, 186918, {595, 1106, 751, 595, 595}}, // South African Survey Grid zone 23: 0, 23, 1, 0, 0
    {17525, Method::transverseMercatorSouth, 186936, {595, 1130, 751, 595, 595}}, // South African Survey Grid zone 25: 0, 25, 1, 0, 0
    {17527, Method::transverseMercatorSouth, 186954, {595, 1151, 751, 595, 595}}, // South African Survey Grid zone 27: 0, 27, 1, 0, 0
    {17529, Method::transverseMercatorSouth, 186972, {595, 1172, 751, 595, 595}}, // South African Survey Grid zone 29: 0, 29, 1, 0, 0
    {17531, Method::transverseMercatorSouth, 186990, {595, 1193, 751, 595, 595}}, // South African Survey Grid zone 31: 0, 31, 1, 0, 0
    {17533, Method::transverseMercatorSouth, 187008, {595, 1215, 751, 595, 595}}, // South African Survey Grid zone 33: 0, 33, 1, 0, 0
    {17611, Method::transverseMercatorSouth, 188481, {537, 1000, 751, 595, 595}}, // South West African Survey Grid zone 11: -22, 11, 1, 0, 0
    {17613, Method::transverseMercatorSouth, 188501, {537, 1014, 751, 595, 595}}, // South West African Survey Grid zone 13: -22, 13, 1, 0, 0
    {17615, Method::transverseMercatorSouth, 188521, {537, 1030, 751, 595, 595}}, // South West African Survey Grid zone 15: -22, 15, 1, 0, 0
    {17617, Method::transverseMercatorSouth, 188541, {537, 1046, 751, 595, 595}}, // South West African Survey Grid zone 17: -22, 17, 1, 0, 0
    {17619, Method::transverseMercatorSouth, 188561, {537, 1068, 751, 595, 595}}, // South West African Survey Grid zone 19: -22, 19, 1, 0, 0
    {17621, Method::transverseMercatorSouth, 188581, {537, 1084, 751, 595, 595}}, // South West African Survey Grid zone 21: -22, 21, 1, 0, 0
    {17623, Method::transverseMercatorSouth, 188601, {537, 1106, 751, 595, 595}}, // South West African Survey Grid zone 23: -22, 23, 1, 0, 0
    {17625, Method::transverseMercatorSouth, 188621, {537, 1130, 751, 595, 595}}, // South West African Survey Grid zone 25: -22, 25, 1, 0, 0
    {17700, Method::transverseMercator, 90375, {595, 439, 700, 2278, 595}}, // MTM Quebec zone 2: 0, -55.5, 0.9999, 304800, 0
    {17701, Method::transverseMercator, 98737, {595, 443, 700, 2278, 595}}, // MTM zone 1: 0, -53, 0.9999, 304800, 0
    {17702, Method::transverseMercator, 98754, {595, 437, 700, 2278, 595}}, // MTM zone 2: 0, -56, 0.9999, 304800, 0
    {17703, Method::transverseMercator, 31116, {595, 434, 700, 2278, 595}}, // MTM zone 3: 0, -58.5, 0.9999, 304800, 0
    {17704, Method::transverseMercator, 98770, {595, 428, 700, 2278, 595}}, // MTM zone 4: 0, -61.5, 0.9999, 304800, 0
    {17705, Method::transverseMercator, 98778, {595, 423, 700, 2278, 595}}, // MTM zone 5: 0, -64.5, 0.9999, 304800, 0
    {17706, Method::transverseMercator, 98786, {595, 414, 700, 2278, 595}}, // MTM zone 6: 0, -67.5, 0.9999, 304800, 0
    {17707, Method::transverseMercator, 102582, {595, 399, 700, 2278, 595}}, // MTM zone 7: 0, -70.5, 0.9999, 304800, 0
    {17708, Method::transverseMercator, 100168, {595, 376, 700, 2278, 595}}, // MTM zone 8: 0, -73.5, 0.9999, 304800, 0
    {17709, Method::transverseMercator, 100179, {595, 350, 700, 2278, 595}}, // MTM zone 9: 0, -76.5, 0.9999, 304800, 0
    {17710, Method::transverseMercator, 30525, {595, 332, 700, 2278, 595}}, // MTM zone 10: 0, -79.5, 0.9999, 304800, 0
    {17711, Method::transverseMercator, 30541, {595, 322, 700, 2278, 595}}, // MTM zone 11: 0, -82.5, 0.9999, 304800, 0
    {17712, Method::transverseMercator, 30557, {595, 326, 700, 2278, 595}}, // MTM zone 12: 0, -81, 0.9999, 304800, 0
    {17713, Method::transverseMercator, 30573, {595, 319, 700, 2278, 595}}, // MTM zone 13: 0, -84, 0.9999, 304800, 0
    {17714, Method::transverseMercator, 100120, {595, 280, 700, 2278, 595}}, // MTM zone 14: 0, -87, 0.9999, 304800, 0
    {17715, Method::transverseMercator, 100132, {595, 234, 700, 2278, 595}}, // MTM zone 15: 0, -90, 0.9999, 304800, 0
    {17716, Method::transverseMercator, 100144, {595, 191, 700, 2278, 595}}, // MTM zone 16: 0, -93, 0.9999, 304800, 0
    {17717, Method::transverseMercator, 100156, {595, 175, 700, 2278, 595}}, // MTM zone 17: 0, -96, 0.9999, 304800, 0
    {17722, Method::transverseMercator, 6425, {595, 132, 700, 595, 595}}, // Alberta 3-degree TM reference meridian 111 W: 0, -111, 0.9999, 0, 0
    {17723, Method::transverseMercator, 6456, {595, 121, 700, 595, 595}}, // Alberta 3-degree TM reference meridian 114 W: 0, -114, 0.9999, 0, 0
    {17724, Method::transverseMercator, 6487, {595, 114, 700, 595, 595}}, // Alberta 3-degree TM reference meridian 117 W: 0, -117, 0.9999, 0, 0
    {17725, Method::transverseMercator, 6518, {595, 100, 700, 595, 595}}, // Alberta 3-degree TM reference meridian 120 W: 0, -120, 0.9999, 0, 0
    {17726, Method::transverseMercator, 6518, {595, 100, 700, 595, 595}}, // Alberta 3-degree TM reference meridian 120 W: 0, -120, 0.9999, 0, 0
    {17794, Method::transverseMercator, 4196, {595, 428, 700, 2531, 595}}, // MTM Nova Scotia zone 4: 0, -61.5, 0.9999, 4500000, 0
    {17795, Method::transverseMercator, 4216, {595, 423, 700, 2547, 595}}, // MTM Nova Scotia zone 5: 0, -64.5, 0.9999, 5500000, 0
    {17801, Method::transverseMercator, 78210, {1215, 1809, 700, 595, 595}}, // Japan Plane Rectangular CS zone I: 33, 129.5, 0.9999, 0, 0
    {17802, Method::transverseMercator, 78232, {1215, 1812, 700, 595, 595}}, // Japan Plane Rectangular CS zone II: 33, 131, 0.9999, 0, 0
    {17803, Method::transverseMercator, 78255, {1257, 1815, 700, 595, 595}}, // Japan Plane Rectangular CS zone III: 36, 132.16666666666666, 0.9999, 0, 0
    {17804, Method::transverseMercator, 78279, {1215, 1817, 700, 595, 595}}, // Japan Plane Rectangular CS zone IV: 33, 133.5, 0.9999, 0, 0
    {17805, Method::transverseMercator, 78325, {1257, 1819, 700, 595, 595}}, // Japan Plane Rectangular CS zone V: 36, 134.33333333333334, 0.9999, 0, 0
    {17806, Method::transverseMercator, 78347, {1257, 1821, 700, 595, 595}}, // Japan Plane Rectangular CS zone VI: 36, 136, 0.9999, 0, 0
    {17807, Method::transverseMercator, 78370, {1257, 1824, 700, 595, 595}}, // Japan Plane Rectangular CS zone VII: 36, 137.16666666666666, 0.9999, 0, 0
    {17808, Method::transverseMercator, 78394, {1257, 1827, 700, 595, 595}}, // Japan Plane Rectangular CS zone VIII: 36, 138.5, 0.9999, 0, 0
    {17809, Method::transverseMercator, 78302, {1257, 1829, 700, 595, 595}}, // Japan Plane Rectangular CS zone IX: 36, 139.83333333333334, 0.9999, 0, 0
    {17810, Method::transverseMercator, 78419, {1339, 1832, 700, 595, 595}}, // Japan Plane Rectangular CS zone X: 40, 140.83333333333334, 0.9999, 0, 0
    {17811, Method::transverseMercator, 78441, {1440, 1831, 700, 595, 595}}, // Japan Plane Rectangular CS zone XI: 44, 140.25, 0.9999, 0, 0
    {17812, Method::transverseMercator, 78464, {1440, 1835, 700, 595, 595}}, // Japan Plane Rectangular CS zone XII: 44, 142.25, 0.9999, 0, 0
    {17813, Method::transverseMercator, 78488, {1440, 1837, 700, 595, 595}}, // Japan Plane Rectangular CS zone XIII: 44, 144.25, 0.9999, 0, 0
    {17814, Method::transverseMercator, 78513, {1142, 1834, 700, 595, 595}}, // Japan Plane Rectangular CS zone XIV: 26, 142, 0.9999, 0, 0
    {17815, Method::transverseMercator, 78561, {1142, 1805, 700, 595, 595}}, // Japan Plane Rectangular CS zone XV: 26, 127.5, 0.9999, 0, 0
    {17816, Method::transverseMercator, 78584, {1142, 1798, 700, 595, 595}}, // Japan Plane Rectangular CS zone XVI: 26, 124, 0.9999, 0, 0
    {17817, Method::transverseMercator, 78608, {1142, 1812, 700, 595, 595}}, // Japan Plane Rectangular CS zone XVII: 26, 131, 0.9999, 0, 0
    {17818, Method::transverseMercator, 78633, {1074, 1821, 700, 595, 595}}, // Japan Plane Rectangular CS zone XVIII: 20, 136, 0.9999, 0, 0
    {17819, Method::transverseMercator, 78537, {1142, 1845, 700, 595, 595}}, // Japan Plane Rectangular CS zone XIX: 26, 154, 0.9999, 0, 0
    {17901, Method::transverseMercator, 132226, {513, 1904, 700, 2275, 2341}}, // Mount Eden Circuit: -36.87986527777778, 174.7643393611111, 0.9999, 300000, 700000
    {17902, Method::transverseMercator, 131985, {509, 1917, 751, 2275, 2341}}, // Bay of Plenty Circuit: -37.76124980555556, 176.46619725, 1, 300000, 700000
    {17903, Method::transverseMercator, 132425, {506, 1922, 751, 2275, 2341}}, // Poverty Bay Circuit: -38.62470277777778, 177.88563627777776, 1, 300000, 700000
    {17904, Method::transverseMercator, 132099, {499, 1919, 751, 2275, 2341}}, // Hawkes Bay Circuit: -39.65092930555556, 176.67368052777778, 1, 300000, 700000
    {17905, Method::transverseMercator, 132461, {503, 1902, 751, 2275, 2341}}, // Taranaki Circuit: -39.135758305555555, 174.22801175, 1, 300000, 700000
    {17906, Method::transverseMercator, 132498, {501, 1912, 751, 2275, 2341}}, // Tuhirangi Circuit: -39.512470388888886, 175.64003680555555, 1, 300000, 700000
    {17907, Method::transverseMercator, 132580, {496, 1909, 751, 2275, 2341}}, // Wanganui Circuit: -40.24194713888889, 175.4880996111111, 1, 300000, 700000
    {17908, Method::transverseMercator, 132560, {492, 1914, 751, 2275, 2341}}, // Wairarapa Circuit: -40.92553263888889, 175.64734966666666, 1, 300000, 700000
    {17909, Method::transverseMercator, 132599, {485, 1906, 751, 2275, 2341}}, // Wellington Circuit: -41.301319638888884, 174.77662311111112, 1, 300000, 700000
    {17910, Method::transverseMercator, 132043, {494, 1890, 751, 2275, 2341}}, // Collingwood Circuit: -40.71475905555556, 172.6720465, 1, 300000, 700000
    {17911, Method::transverseMercator, 132311, {489, 1897, 751, 2275, 2341}}, // Nelson Circuit: -41.274544722222224, 173.29931680555555, 1, 300000, 700000
    {17912, Method::transverseMercator, 132165, {487, 1888, 751, 2275, 2341}}, // Karamea Circuit: -41.289911527777775, 172.10902819444445, 1, 300000, 700000
    {17913, Method::transverseMercator, 132025, {481, 1886, 751, 2275, 2341}}, // Buller Circuit: -41.81080286111111, 171.58126005555556, 1, 300000, 700000
    {17914, Method::transverseMercator, 132083, {478, 1884, 751, 2275, 2341}}, // Grey Circuit: -42.33369427777778, 171.54977130555557, 1, 300000, 700000
    {17915, Method::transverseMercator, 131968, {476, 1895, 751, 2275, 2341}}, // Amuri Circuit: -42.68911658333333, 173.0101333888889, 1, 300000, 700000
    {17916, Method::transverseMercator, 132205, {483, 1899, 751, 2275, 2341}}, // Marlborough Circuit: -41.544486666666664, 173.80207411111112, 1, 300000, 700000
    {17917, Method::transverseMercator, 132121, {474, 1876, 751, 2275, 2341}}, // Hokitika Circuit: -42.88632236111111, 170.9799935, 1, 300000, 700000
    {17918, Method::transverseMercator, 132407, {471, 1870, 751, 2275, 2341}}, // Okarito Circuit: -43.11012813888889, 170.26092583333335, 1, 300000, 700000
    {17919, Method::transverseMercator, 132141, {465, 1864, 751, 2275, 2341}}, // Jacksons Bay Circuit: -43.97780288888889, 168.606267, 1, 300000, 700000
    {17920, Method::transverseMercator, 132268, {469, 1892, 751, 2275, 2341}}, // Mount Pleasant Circuit: -43.59063758333333, 172.72719358333333, 1, 300000, 700000
    {17921, Method::transverseMercator, 132065, {467, 1881, 751, 2275, 2341}}, // Gawler Circuit: -43.74871155555556, 171.3607484722222, 1, 300000, 700000
    {17922, Method::transverseMercator, 132480, {462, 1879, 751, 2275, 2341}}, // Timaru Circuit: -44.40222036111111, 171.05725083333334, 1, 300000, 700000
    {17923, Method::transverseMercator, 132183, {459, 1867, 751, 2275, 2341}}, // Lindis Peak Circuit: -44.735267972222225, 169.46775508333334, 1, 300000, 700000
    {17924, Method::transverseMercator, 132246, {456, 1862, 751, 2275, 2341}}, // Mount Nicholas Circuit: -45.13290258333333, 168.39864119444442, 1, 300000, 700000
    {17925, Method::transverseMercator, 132291, {454, 1857, 751, 2275, 2341}}, // Mount York Circuit: -45.56372616666666, 167.73886177777777, 1, 300000, 700000
    {17926, Method::transverseMercator, 132382, {452, 1874, 751, 2275, 2341}}, // Observation Point Circuit: -45.81619661111111, 170.62859516666668, 1, 300000, 700000
    {17927, Method::transverseMercator, 132363, {450, 1872, 726, 2275, 2341}}, // North Taieri Circuit: -45.861513361111115, 170.28258911111112, 0.99996, 300000, 700000
    {17928, Method::transverseMercator, 132007, {448, 1860, 751, 2276, 2338}}, // Bluff Circuit: -46.60000961111111, 168.342872, 1, 300002.66, 699999.58
    {17931, Method::transverseMercator, 131578, {514, 1903, 700, 2294, 2347}}, // Mount Eden 2000: -36.87972222222222, 174.76416666666665, 0.9999, 400000, 800000
    {17932, Method::transverseMercator, 131302, {510, 1916, 751, 2294, 2347}}, // Bay of Plenty 2000: -37.76111111111111, 176.4661111111111, 1, 400000, 800000
    {17933, Method::transverseMercator, 131766, {507, 1921, 751, 2294, 2347}}, // Poverty Bay 2000: -38.62444444444444, 177.88555555555556, 1, 400000, 800000
    {17934, Method::transverseMercator, 131467, {500, 1918, 751, 2294, 2347}}, // Hawkes Bay 2000: -39.65083333333333, 176.67361111111111, 1, 400000, 800000
    {17935, Method::transverseMercator, 131804, {504, 1901, 751, 2294, 2347}}, // Taranaki 2000: -39.135555555555555, 174.2277777777778, 1, 400000, 800000
    {17936, Method::transverseMercator, 131837, {502, 1911, 751, 2294, 2347}}, // Tuhirangi 2000: -39.51222222222222, 175.64, 1, 400000, 800000
    {17937, Method::transverseMercator, 131927, {497, 1908, 751, 2294, 2347}}, // Wanganui 2000: -40.24194444444444, 175.48805555555555, 1, 400000, 800000
    {17938, Method::transverseMercator, 131910, {493, 1913, 751, 2294, 2347}}, // Wairarapa 2000: -40.92527777777777, 175.6472222222222, 1, 400000, 800000
    {17939, Method::transverseMercator, 131944, {486, 1905, 751, 2294, 2347}}, // Wellington 2000: -41.301111111111105, 174.7763888888889, 1, 400000, 800000
    {17940, Method::transverseMercator, 131418, {495, 1889, 751, 2294, 2347}}, // Collingwood 2000: -40.71472222222223, 172.67194444444445, 1, 400000, 800000
    {17941, Method::transverseMercator, 131668, {490, 1896, 751, 2294, 2347}}, // Nelson 2000: -41.27444444444444, 173.29916666666668, 1, 400000, 800000
    {17942, Method::transverseMercator, 131524, {488, 1887, 751, 2294, 2347}}, // Karamea 2000: -41.28972222222222, 172.10888888888888, 1, 400000, 800000
    {17943, Method::transverseMercator, 131337, {482, 1885, 751, 2294, 2347}}, // Buller 2000: -41.81055555555555, 171.5811111111111, 1, 400000, 800000
    {17944, Method::transverseMercator, 131454, {479, 1883, 751, 2294, 2347}}, // Grey 2000: -42.33361111111111, 171.54972222222221, 1, 400000, 800000
    {17945, Method::transverseMercator, 131243, {477, 1894, 751, 2294, 2347}}, // Amuri 2000: -42.68888888888888, 173.01, 1, 400000, 800000
    {17946, Method::transverseMercator, 131559, {484, 1898, 751, 2294, 2347}}, // Marlborough 2000: -41.544444444444444, 173.80194444444444, 1, 400000, 800000
    {17947, Method::transverseMercator, 131486, {475, 1875, 751, 2294, 2347}}, // Hokitika 2000: -42.88611111111111, 170.97972222222222, 1, 400000, 800000
    {17948, Method::transverseMercator, 131751, {472, 1869, 751, 2294, 2347}}, // Okarito 2000: -43.11, 170.26083333333332, 1, 400000, 800000
    {17949, Method::transverseMercator, 131503, {466, 1863, 751, 2294, 2347}}, // Jacksons Bay 2000: -43.97777777777778, 168.60611111111112, 1, 400000, 800000
    {17950, Method::transverseMercator, 131616, {470, 1891, 751, 2294, 2347}}, // Mount Pleasant 2000: -43.59055555555556, 172.72694444444446, 1, 400000, 800000
    {17951, Method::transverseMercator, 131438, {468, 1880, 751, 2294, 2347}}, // Gawler 2000: -43.74861111111111, 171.36055555555555, 1, 400000, 800000
    {17952, Method::transverseMercator, 131821, {463, 1878, 751, 2294, 2347}}, // Timaru 2000: -44.401944444444446, 171.05722222222224, 1, 400000, 800000
    {17953, Method::transverseMercator, 131539, {460, 1866, 751, 2294, 2347}}, // Lindis Peak 2000: -44.735, 169.4675, 1, 400000, 800000
    {17954, Method::transverseMercator, 131596, {457, 1861, 751, 2294, 2347}}, // Mount Nicholas 2000: -45.132777777777775, 168.3986111111111, 1, 400000, 800000
    {17955, Method::transverseMercator, 131637, {455, 1856, 751, 2294, 2347}}, // Mount York 2000: -45.56361111111111, 167.7386111111111, 1, 400000, 800000
    {17956, Method::transverseMercator, 131728, {453, 1873, 751, 2294, 2347}}, // Observation Point 2000: -45.816111111111105, 170.62833333333333, 1, 400000, 800000
    {17957, Method::transverseMercator, 131711, {451, 1871, 726, 2294, 2347}}, // North Taieri 2000: -45.86138888888889, 170.28250000000003, 0.99996, 400000, 800000
    {17958, Method::transverseMercator, 131321, {449, 1859, 751, 2294, 2347}}, // Bluff 2000: -46.6, 168.3427777777778, 1, 400000, 800000
    {17959, Method::transverseMercator, 131374, {464, 47, 751, 2294, 2347}}, // Chatham Island Circuit 2000: -44, -176.5, 1, 400000, 800000
    {17960, Method::transverseMercator, 16014, {595, 1853, 751, 2508, 2584}}, // Auckland Islands Transverse Mercator 2000: 0, 166, 1, 3500000, 10000000
    {17961, Method::transverseMercator, 29267, {595, 1865, 751, 2508, 2584}}, // Campbell Island Transverse Mercator 2000: 0, 169, 1, 3500000, 10000000
    {17962, Method::transverseMercator, 10727, {595, 1925, 751, 2508, 2584}}, // Antipodes Islands Transverse Mercator 2000: 0, 179, 1, 3500000, 10000000
    {17963, Method::transverseMercator, 171887, {595, 45, 751, 2508, 2584}}, // Raoul Island Transverse Mercator 2000: 0, -178, 1, 3500000, 10000000
    {17964, Method::lambertConic2, 136905, {491, 1893, 511, 461, 2500, 2566}}, // New Zealand Continental Shelf Lambert Conformal 2000: -41, 173, -37.5, -44.5, 3000000, 7000000
    {17965, Method::transverseMercator, 32322, {595, 47, 751, 2508, 2584}}, // Chatham Islands Transverse Mercator 2000: 0, -176.5, 1, 3500000, 10000000
    {17966, Method::lambertConic2, 39666, {234, 1847, 344, 333, 2308, 595}}, // Darwin Glacier Lambert Conformal 2000: -90, 157, -76.66666666666667, -79.33333333333333, 500000, 0
    {18001, Method::transverseMercator, 17861, {595, 1161, 751, 595, 6}}, // Austria Gauss-Kruger West Zone: 0, 28, 1, 0, -5000000
    {18002, Method::transverseMercator, 17724, {595, 1193, 751, 595, 6}}, // Austria Gauss-Kruger Central Zone: 0, 31, 1, 0, -5000000
    {18003, Method::transverseMercator, 17764, {595, 1229, 751, 595, 6}}, // Austria Gauss-Kruger East Zone: 0, 34, 1, 0, -5000000
    {18004, Method::transverseMercator, 17842, {595, 992, 751, 595, 6}}, // Austria Gauss-Kruger West: 0, 10.333333333333334, 1, 0, -5000000
    {18005, Method::transverseMercator, 17705, {595, 1016, 751, 595, 6}}, // Austria Gauss-Kruger Central: 0, 13.333333333333334, 1, 0, -5000000
    {18006, Method::transverseMercator, 17745, {595, 1040, 751, 595, 6}}, // Austria Gauss-Kruger East: 0, 16.333333333333332, 1, 0, -5000000
    {18007, Method::transverseMercator, 17785, {595, 992, 751, 2141, 6}}, // Austria Gauss-Kruger M28: 0, 10.333333333333334, 1, 150000, -5000000
    {18008, Method::transverseMercator, 17804, {595, 1016, 751, 2301, 6}}, // Austria Gauss-Kruger M31: 0, 13.333333333333334, 1, 450000, -5000000
    {18009, Method::transverseMercator, 17823, {595, 1040, 751, 2343, 6}}, // Austria Gauss-Kruger M34: 0, 16.333333333333332, 1, 750000, -5000000
    {18011, Method::lambertConic1, 209674, {1257, 923, 678, 2308, 2275}}, // Nord Algerie (ancienne): 36, 2.7, 0.999625544, 500000, 300000
    {18012, Method::lambertConic1, 209702, {1218, 923, 680, 2308, 2275}}, // Sud Algerie (ancienne): 33.3, 2.7, 0.999625769, 500000, 300000
    {18021, Method::lambertConic1, 137982, {1257, 923, 678, 2314, 2277}}, // Nord Algerie: 36, 2.7, 0.999625544, 500135, 300090
    {18022, Method::lambertConic1, 138002, {1218, 923, 680, 2314, 2277}}, // Sud Algerie: 33.3, 2.7, 0.999625769, 500135, 300090
    {18031, Method::transverseMercator, 14065, {234, 389, 751, 2439, 595}}, // Argentina zone 1: -90, -72, 1, 1500000, 0
    {18032, Method::transverseMercator, 14074, {234, 406, 751, 2478, 595}}, // Argentina zone 2: -90, -69, 1, 2500000, 0
    {18033, Method::transverseMercator, 14083, {234, 419, 751, 2508, 595}}, // Argentina zone 3: -90, -66, 1, 3500000, 0
    {18034, Method::transverseMercator, 14092, {234, 426, 751, 2531, 595}}, // Argentina zone 4: -90, -63, 1, 4500000, 0
    {18035, Method::transverseMercator, 14101, {234, 432, 751, 2547, 595}}, // Argentina zone 5: -90, -60, 1, 5500000, 0
    {18036, Method::transverseMercator, 14110, {234, 436, 751, 2562, 595}}, // Argentina zone 6: -90, -57, 1, 6500000, 0
    {18037, Method::transverseMercator, 14119, {234, 442, 751, 2573, 595}}, // Argentina zone 7: -90, -54, 1, 7500000, 0
    {18041, Method::transverseMercator, 89173, {595, 1161, 751, 595, 595}}, // Austria West Zone: 0, 28, 1, 0, 0
    {18042, Method::transverseMercator, 89068, {595, 1193, 751, 595, 595}}, // Austria Central Zone: 0, 31, 1, 0, 0
    {18043, Method::transverseMercator, 89088, {595, 1229, 751, 595, 595}}, // Austria East Zone: 0, 34, 1, 0, 0
    {18044, Method::transverseMercator, 89463, {595, 992, 751, 2141, 595}}, // Austria M28: 0, 10.333333333333334, 1, 150000, 0
    {18045, Method::transverseMercator, 89475, {595, 1016, 751, 2301, 595}}, // Austria M31: 0, 13.333333333333334, 1, 450000, 0
    {18046, Method::transverseMercator, 89487, {595, 1040, 751, 2343, 595}}, // Austria M34: 0, 16.333333333333332, 1, 750000, 0
    {18047, Method::transverseMercator, 89192, {595, 1161, 751, 2141, 595}}, // Austria zone M28: 0, 28, 1, 150000, 0
    {18048, Method::transverseMercator, 89210, {595, 1193, 751, 2301, 595}}, // Austria zone M31: 0, 31, 1, 450000, 0
    {18049, Method::transverseMercator, 89228, {595, 1229, 751, 2343, 595}}, // Austria zone M34: 0, 34, 1, 750000, 0
    {18051, Method::transverseMercator, 23944, {943, 340, 751, 2391, 2391}}, // Colombia West zone: 4.599047222222222, -77.08091666666667, 1, 1000000, 1000000
    {18052, Method::transverseMercator, 23863, {943, 371, 751, 2391, 2391}}, // Colombia Bogota zone: 4.599047222222222, -74.08091666666667, 1, 1000000, 1000000
    {18053, Method::transverseMercator, 23903, {943, 394, 751, 2391, 2391}}, // Colombia East Central zone: 4.599047222222222, -71.08091666666667, 1, 1000000, 1000000
    {18054, Method::transverseMercator, 23925, {943, 409, 751, 2391, 2391}}, // Colombia East zone: 4.599047222222222, -68.08091666666667, 1, 1000000, 1000000
    {18055, Method::transverseMercator, 34861, {942, 330, 751, 2391, 2391}}, // Colombia MAGNA Far West zone: 4.596200416666666, -80.07750791666666, 1, 1000000, 1000000
    {18056, Method::transverseMercator, 34880, {942, 341, 751, 2391, 2391}}, // Colombia MAGNA West zone: 4.596200416666666, -77.07750791666666, 1, 1000000, 1000000
    {18057, Method::transverseMercator, 34807, {942, 372, 751, 2391, 2391}}, // Colombia MAGNA Bogota zone: 4.596200416666666, -74.07750791666666, 1, 1000000, 1000000
    {18058, Method::transverseMercator, 34826, {942, 395, 751, 2391, 2391}}, // Colombia MAGNA East Central zone: 4.596200416666666, -71.07750791666666, 1, 1000000, 1000000
    {18059, Method::transverseMercator, 34845, {942, 410, 751, 2391, 2391}}, // Colombia MAGNA East zone: 4.596200416666666, -68.07750791666666, 1, 1000000, 1000000
    {18061, Method::lambertConic1, 98443, {1100, 326, 714, 2308, 2267}}, // Cuba Norte: 22.35, -81, 0.99993602, 500000, 280296.016
    {18062, Method::lambertConic1, 98454, {1082, 343, 722, 2308, 2226}}, // Cuba Sur: 20.716666666666665, -76.83333333333333, 0.99994848, 500000, 229126.939
    {18063, Method::lambertConic2, 98443, {1100, 326, 1106, 1092, 2308, 2267}}, // Cuba Norte: 22.35, -81, 23, 21.7, 500000, 280296.016
    {18064, Method::lambertConic2, 98454, {1082, 343, 1088, 1075, 2308, 2226}}, // Cuba Sur: 20.716666666666665, -76.83333333333333, 21.3, 20.133333333333333, 500000, 229126.939
    {18071, Method::transverseMercator, 47083, {1182, 1246, 751, 2275, 2410}}, // Egypt Blue Belt: 30, 35, 1, 300000, 1100000
    {18072, Method::transverseMercator, 47192, {1182, 1193, 751, 2327, 2353}}, // Egypt Red Belt: 30, 31, 1, 615000, 810000
    {18073, Method::transverseMercator, 47177, {1182, 1151, 751, 2341, 2198}}, // Egypt Purple Belt: 30, 27, 1, 700000, 200000
    {18074, Method::transverseMercator, 47097, {1182, 1151, 751, 2341, 2425}}, // Egypt Extended Purple Belt: 30, 27, 1, 700000, 1200000
    {18081, Method::lambertConic1, 130917, {1550, 595, 694, 2323, 2425}}, // Lambert zone I: 49.5, 0, 0.999877341, 600000, 1200000
    {18082, Method::lambertConic1, 130933, {1519, 595, 695, 2323, 2471}}, // Lambert zone II: 46.8, 0, 0.99987742, 600000, 2200000
    {18083, Method::lambertConic1, 130950, {1446, 595, 696, 2323, 2503}}, // Lambert zone III: 44.1, 0, 0.999877499, 600000, 3200000
    {18084, Method::lambertConic1, 130968, {1393, 595, 720, 1931, 2526}}, // Lambert zone IV: 42.165, 0, 0.99994471, 234.358, 4185861.369
    {18085, Method::lambertConic2, 168691, {1514, 926, 1546, 1440, 2341, 2564}}, // Lambert-93: 46.5, 3, 49, 44, 700000, 6600000
    {18086, Method::lambertConic1, 41515, {1518, 918, 695, 2323, 2471}}, // France EuroLambert: 46.8, 2.337229166666667, 0.99987742, 600000, 2200000
    {18091, Method::lambertConic1, 130871, {1550, 595, 694, 2323, 2198}}, // Lambert Nord France: 49.5, 0, 0.999877341, 600000, 200000
    {18092, Method::lambertConic1, 130830, {1519, 595, 695, 2323, 2198}}, // Lambert Centre France: 46.8, 0, 0.99987742, 600000, 200000
    {18093, Method::lambertConic1, 130894, {1446, 595, 696, 2323, 2198}}, // Lambert Sud France: 44.1, 0, 0.999877499, 600000, 200000
    {18094, Method::lambertConic1, 130852, {1393, 595, 720, 1931, 2184}}, // Lambert Corse: 42.165, 0, 0.99994471, 234.358, 185861.369
    {18101, Method::lambertConic2, 53255, {1389, 926, 1371, 1409, 2452, 2425}}, // France Conic Conformal zone 1: 42, 3, 41.25, 42.75, 1700000, 1200000
    {18102, Method::lambertConic2, 53272, {1414, 926, 1395, 1435, 2452, 2471}}, // France Conic Conformal zone 2: 43, 3, 42.25, 43.75, 1700000, 2200000
    {18103, Method::lambertConic2, 53289, {1440, 926, 1421, 1466, 2452, 2503}}, // France Conic Conformal zone 3: 44, 3, 43.25, 44.75, 1700000, 3200000
    {18104, Method::lambertConic2, 53306, {1473, 926, 1449, 1497, 2452, 2527}}, // France Conic Conformal zone 4: 45, 3, 44.25, 45.75, 1700000, 4200000
    {18105, Method::lambertConic2, 53323, {1506, 926, 1480, 1516, 2452, 2540}}, // France Conic Conformal zone 5: 46, 3, 45.25, 46.75, 1700000, 5200000
    {18106, Method::lambertConic2, 53340, {1521, 926, 1510, 1532, 2452, 2557}}, // France Conic Conformal zone 6: 47, 3, 46.25, 47.75, 1700000, 6200000
    {18107, Method::lambertConic2, 53357, {1535, 926, 1526, 1545, 2452, 2569}}, // France Conic Conformal zone 7: 48, 3, 47.25, 48.75, 1700000, 7200000
    {18108, Method::lambertConic2, 53374, {1546, 926, 1538, 1551, 2452, 2577}}, // France Conic Conformal zone 8: 49, 3, 48.25, 49.75, 1700000, 8200000
    {18109, Method::lambertConic2, 53391, {1554, 926, 1549, 1557, 2452, 2580}}, // France Conic Conformal zone 9: 50, 3, 49.25, 50.75, 1700000, 9200000
    {18110, Method::lambertConic1, 79506, {1325, 1630, 658, 2469, 2476}}, // India zone 0: 39.5, 68, 0.99846154, 2153865.7391685303, 2368292.194628102
    {18111, Method::lambertConic1, 79522, {1210, 1630, 661, 2492, 2374}}, // India zone I: 32.5, 68, 0.99878641, 2743195.5922333226, 914398.5307444409
    {18112, Method::lambertConic1, 79557, {1142, 1647, 661, 2492, 2374}}, // India zone IIa: 26, 74, 0.99878641, 2743195.5922333226, 914398.5307444409
    {18113, Method::lambertConic1, 79575, {1142, 1694, 661, 2492, 2374}}, // India zone IIb: 26, 90, 0.99878641, 2743195.5922333226, 914398.5307444409
    {18114, Method::lambertConic1, 79538, {1068, 1665, 661, 2492, 2374}}, // India zone IIIa: 19, 80, 0.99878641, 2743195.5922333226, 914398.5307444409
    {18116, Method::lambertConic1, 79593, {1010, 1665, 661, 2492, 2374}}, // India zone IVa: 12, 80, 0.99878641, 2743195.5922333226, 914398.5307444409
    {18121, Method::transverseMercator, 96491, {595, 985, 673, 2439, 595}}, // Italy zone 1: 0, 9, 0.9996, 1500000, 0
    {18122, Method::transverseMercator, 96511, {595, 1030, 673, 2481, 595}}, // Italy zone 2: 0, 15, 0.9996, 2520000, 0
    {18131, Method::lambertConic1, 93533, {1218, 568, 680, 2308, 2275}}, // Nord Maroc: 33.3, -5.4, 0.999625769, 500000, 300000
    {18132, Method::lambertConic1, 93589, {1181, 568, 675, 2308, 2275}}, // Sud Maroc: 29.7, -5.4, 0.999615596, 500000, 300000
    {18133, Method::lambertConic1, 93548, {1145, 568, 673, 2425, 2294}}, // Sahara: 26.1, -5.4, 0.9996, 1200000, 400000
    {18134, Method::lambertConic1, 93560, {1145, 568, 676, 2425, 2294}}, // Sahara Nord: 26.1, -5.4, 0.999616304, 1200000, 400000
    {18135, Method::lambertConic1, 93574, {1102, 568, 677, 2439, 2294}}, // Sahara Sud: 22.5, -5.4, 0.999616437, 1500000, 400000
    {18141, Method::transverseMercator, 136979, {505, 1910, 751, 2263, 2288}}, // New Zealand North Island National Grid: -39, 175.5, 1, 274319.5243848086, 365759.3658464115
    {18142, Method::transverseMercator, 136996, {464, 1882, 751, 2302, 2302}}, // New Zealand South Island National Grid: -44, 171.5, 1, 457199.20730801433, 457199.20730801433
    {18151, Method::transverseMercator, 95070, {934, 940, 683, 2227, 595}}, // Nigeria West Belt: 4, 4.5, 0.99975, 230738.26, 0
    {18152, Method::transverseMercator, 95053, {934, 982, 683, 2336, 595}}, // Nigeria Mid Belt: 4, 8.5, 0.99975, 670553.98, 0
    {18153, Method::transverseMercator, 95037, {934, 1012, 683, 2412, 595}}, // Nigeria East Belt: 4, 12.5, 0.99975, 1110369.7, 0
    {18161, Method::transverseMercator, 147297, {566, 328, 688, 2217, 2436}}, // Peru west zone: -6, -80.5, 0.99983008, 222000, 1426834.743
    {18162, Method::transverseMercator, 147268, {558, 351, 667, 2342, 2395}}, // Peru central zone: -9.5, -76, 0.99932994, 720000, 1039979.159
    {18163, Method::transverseMercator, 147283, {558, 399, 671, 2432, 2396}}, // Peru east zone: -9.5, -70.5, 0.99952992, 1324000, 1040084.558
    {18171, Method::transverseMercator, 87588, {595, 1787, 723, 2308, 595}}, // Philippines zone I: 0, 117, 0.99995, 500000, 0
    {18172, Method::transverseMercator, 87605, {595, 1791, 723, 2308, 595}}, // Philippines zone II: 0, 119, 0.99995, 500000, 0
    {18173, Method::transverseMercator, 87623, {595, 1793, 723, 2308, 595}}, // Philippines zone III: 0, 121, 0.99995, 500000, 0
    {18174, Method::transverseMercator, 87642, {595, 1797, 723, 2308, 595}}, // Philippines zone IV: 0, 123, 0.99995, 500000, 0
    {18175, Method::transverseMercator, 87660, {595, 1800, 723, 2308, 595}}, // Philippines zone V: 0, 125, 0.99995, 500000, 0
    {18180, Method::transverseMercator, 79132, {595, 1052, 751, 2308, 595}}, // Finland zone 0: 0, 18, 1, 500000, 0
    {18181, Method::lambertConic1, 31726, {1257, 988, 678, 2308, 2275}}, // Nord Tunisie: 36, 9.9, 0.999625544, 500000, 300000
    {18182, Method::lambertConic1, 31743, {1218, 988, 680, 2308, 2275}}, // Sud Tunisie: 33.3, 9.9, 0.999625769, 500000, 300000
    {18183, Method::transverseMercator, 51904, {595, 1068, 751, 2308, 595}}, // Finland ETRS-GK19: 0, 19, 1, 500000, 0
    {18184, Method::transverseMercator, 51917, {595, 1074, 751, 2308, 595}}, // Finland ETRS-GK20: 0, 20, 1, 500000, 0
    {18185, Method::transverseMercator, 51930, {595, 1084, 751, 2308, 595}}, // Finland ETRS-GK21: 0, 21, 1, 500000, 0
    {18186, Method::transverseMercator, 51943, {595, 1097, 751, 2308, 595}}, // Finland ETRS-GK22: 0, 22, 1, 500000, 0
    {18187, Method::transverseMercator, 51956, {595, 1106, 751, 2308, 595}}, // Finland ETRS-GK23: 0, 23, 1, 500000, 0
    {18188, Method::transverseMercator, 51969, {595, 1114, 751, 2308, 595}}, // Finland ETRS-GK24: 0, 24, 1, 500000, 0
    {18189, Method::transverseMercator, 51982, {595, 1130, 751, 2308, 595}}, // Finland ETRS-GK25: 0, 25, 1, 500000, 0
    {18190, Method::transverseMercator, 51995, {595, 1142, 751, 2308, 595}}, // Finland ETRS-GK26: 0, 26, 1, 500000, 0
    {18191, Method::transverseMercator, 79142, {595, 1084, 751, 2439, 595}}, // Finland zone 1: 0, 21, 1, 1500000, 0
    {18192, Method::transverseMercator, 79152, {595, 1114, 751, 2478, 595}}, // Finland zone 2: 0, 24, 1, 2500000, 0
    {18193, Method::transverseMercator, 79106, {595, 1151, 751, 2508, 595}}, // Finland Uniform Coordinate System: 0, 27, 1, 3500000, 0
    {18194, Method::transverseMercator, 79162, {595, 1182, 751, 2531, 595}}, // Finland zone 4: 0, 30, 1, 4500000, 0
    {18195, Method::transverseMercator, 52008, {595, 1151, 751, 2308, 595}}, // Finland ETRS-GK27: 0, 27, 1, 500000, 0
    {18196, Method::transverseMercator, 52021, {595, 1161, 751, 2308, 595}}, // Finland ETRS-GK28: 0, 28, 1, 500000, 0
    {18197, Method::transverseMercator, 52034, {595, 1172, 751, 2308, 595}}, // Finland ETRS-GK29: 0, 29, 1, 500000, 0
    {18198, Method::transverseMercator, 52047, {595, 1182, 751, 2308, 595}}, // Finland ETRS-GK30: 0, 30, 1, 500000, 0
    {18199, Method::transverseMercator, 52060, {595, 1193, 751, 2308, 595}}, // Finland ETRS-GK31: 0, 31, 1, 500000, 0
    {18201, Method::cassini, 148216, {1199, 1249, 2168, 2105}}, // Palestine Grid: 31.734096944444445, 35.21208055555556, 170251.555, 126867.909
    {18202, Method::transverseMercator, 148196, {1199, 1249, 751, 2168, 2414}}, // Palestine Belt: 31.734096944444445, 35.21208055555556, 1, 170251.555, 1126867.909
    {18203, Method::cassini, 75420, {1199, 1249, 2168, 2414}}, // Israeli CS: 31.734096944444445, 35.21208055555556, 170251.555, 1126867.909
    {18204, Method::transverseMercator, 75510, {1200, 1248, 768, 2214, 2330}}, // Israeli TM: 31.734393611111113, 35.20451694444445, 1.0000067, 219529.584, 626907.39
    {18205, Method::transverseMercator, 79172, {595, 1215, 751, 2547, 595}}, // Finland zone 5: 0, 33, 1, 5500000, 0
    {18211, Method::lambertConic1, 98532, {1045, 230, 707, 2308, 2271}}, // Guatemala Norte: 16.816666666666666, -90.33333333333333, 0.99992226, 500000, 292209.579
    {18212, Method::lambertConic1, 98545, {1029, 230, 698, 2308, 2281}}, // Guatemala Sur: 14.9, -90.33333333333333, 0.99989906, 500000, 325992.681
    {18221, Method::transverseMercator, 130259, {1606, 570, 751, 595, 595}}, // NGO zone I: 58, -4.666666666666667, 1, 0, 0
    {18222, Method::transverseMercator, 130277, {1606, 582, 751, 595, 595}}, // NGO zone II: 58, -2.3333333333333335, 1, 0, 0
    {18223, Method::transverseMercator, 130296, {1606, 595, 751, 595, 595}}, // NGO zone III: 58, 0, 1, 0, 0
    {18224, Method::transverseMercator, 130316, {1606, 920, 751, 595, 595}}, // NGO zone IV: 58, 2.5, 1, 0, 0
    {18225, Method::transverseMercator, 130335, {1606, 966, 751, 595, 595}}, // NGO zone V: 58, 6.166666666666667, 1, 0, 0
    {18226, Method::transverseMercator, 130353, {1606, 990, 751, 595, 595}}, // NGO zone VI: 58, 10.166666666666666, 1, 0, 0
    {18227, Method::transverseMercator, 130372, {1606, 1026, 751, 595, 595}}, // NGO zone VII: 58, 14.166666666666666, 1, 0, 0
    {18228, Method::transverseMercator, 130392, {1606, 1058, 751, 595, 595}}, // NGO zone VIII: 58, 18.333333333333332, 1, 0, 0
    {18231, Method::lambertConic1, 72388, {1210, 1630, 661, 2491, 2373}}, // India zone I (1975 metres): 32.5, 68, 0.99878641, 2743195.5, 914398.5
    {18232, Method::lambertConic1, 72438, {1142, 1647, 661, 2491, 2373}}, // India zone IIa (1975 metres): 26, 74, 0.99878641, 2743195.5, 914398.5
    {18233, Method::lambertConic1, 72403, {1068, 1665, 661, 2491, 2373}}, // India zone IIIa (1975 metres): 19, 80, 0.99878641, 2743195.5, 914398.5
    {18234, Method::lambertConic1, 72489, {1010, 1665, 661, 2491, 2373}}, // India zone IVa (1975 metres): 12, 80, 0.99878641, 2743195.5, 914398.5
    {18235, Method::lambertConic1, 72472, {1142, 1694, 661, 2491, 2373}}, // India zone IIb (1975 metres): 26, 90, 0.99878641, 2743195.5, 914398.5
    {18236, Method::lambertConic1, 72373, {1210, 1630, 661, 2493, 2375}}, // India zone I (1962 metres): 32.5, 68, 0.99878641, 2743196.4, 914398.8
    {18237, Method::lambertConic1, 72421, {1142, 1647, 661, 2493, 2375}}, // India zone IIa (1962 metres): 26, 74, 0.99878641, 2743196.4, 914398.8
    {18238, Method::lambertConic1, 72455, {1142, 1694, 661, 2490, 2372}}, // India zone IIb (1937 metres): 26, 90, 0.99878641, 2743185.69, 914395.23
    {18240, Method::transverseMercator, 42062, {595, 985, 700, 2198, 595}}, // Libya zone 5: 0, 9, 0.9999, 200000, 0
    {18241, Method::transverseMercator, 42076, {595, 1000, 700, 2198, 595}}, // Libya zone 6: 0, 11, 0.9999, 200000, 0
    {18242, Method::transverseMercator, 42090, {595, 1014, 700, 2198, 595}}, // Libya zone 7: 0, 13, 0.9999, 200000, 0
    {18243, Method::transverseMercator, 42104, {595, 1030, 700, 2198, 595}}, // Libya zone 8: 0, 15, 0.9999, 200000, 0
    {18244, Method::transverseMercator, 42118, {595, 1046, 700, 2198, 595}}, // Libya zone 9: 0, 17, 0.9999, 200000, 0
    {18245, Method::transverseMercator, 42002, {595, 1068, 700, 2198, 595}}, // Libya zone 10: 0, 19, 0.9999, 200000, 0
    {18246, Method::transverseMercator, 42017, {595, 1084, 700, 2198, 595}}, // Libya zone 11: 0, 21, 0.9999, 200000, 0
    {18247, Method::transverseMercator, 42032, {595, 1106, 700, 2198, 595}}, // Libya zone 12: 0, 23, 0.9999, 200000, 0
    {18248, Method::transverseMercator, 42047, {595, 1130, 700, 2198, 595}}, // Libya zone 13: 0, 25, 0.9999, 200000, 0
    {18251, Method::transverseMercator, 195140, {1289, 1807, 751, 2198, 2308}}, // Korea East Belt: 38, 129, 1, 200000, 500000
    {18252, Method::transverseMercator, 195119, {1289, 1803, 751, 2198, 2308}}, // Korea Central Belt: 38, 127, 1, 200000, 500000
    {18253, Method::transverseMercator, 195184, {1289, 1800, 751, 2198, 2308}}, // Korea West Belt: 38, 125, 1, 200000, 500000
    {18260, Method::lambertConic1, 92471, {990, 391, 751, 595, 28}}, // Maracaibo Grid (M1): 10.166666666666666, -71.60561777777777, 1, 0, -52684.972
    {18261, Method::lambertConic1, 84783, {990, 391, 751, 2198, 2138}}, // Maracaibo Grid: 10.166666666666666, -71.60561777777777, 1, 200000, 147315.028
    {18262, Method::lambertConic1, 92487, {990, 391, 751, 2308, 2300}}, // Maracaibo Grid (M3): 10.166666666666666, -71.60561777777777, 1, 500000, 447315.028
    {18263, Method::lambertConic1, 84840, {990, 391, 751, 32, 30}}, // Maracaibo La Rosa Grid: 10.166666666666666, -71.60561777777777, 1, -17044, -23139.97
    {18275, Method::transverseMercator, 89511, {595, 1030, 700, 2547, 595}}, // Balkans zone 5: 0, 15, 0.9999, 5500000, 0
    {18276, Method::transverseMercator, 89523, {595, 1052, 700, 2562, 595}}, // Balkans zone 6: 0, 18, 0.9999, 6500000, 0
    {18277, Method::transverseMercator, 79264, {595, 1084, 700, 2573, 595}}, // Balkans zone 7: 0, 21, 0.9999, 7500000, 0
    {18278, Method::transverseMercator, 89547, {595, 1114, 700, 2579, 595}}, // Balkans zone 8: 0, 24, 0.9999, 8500000, 0
    {18280, Method::obliqueStereographic, 159635, {1556, 1085, 685, 2533, 2546}}, // Poland zone I: 50.625, 21.083333333333332, 0.9998, 4637000, 5467000
    {18281, Method::obliqueStereographic, 159635, {1556, 1085, 685, 2533, 2550}}, // Poland zone I: 50.625, 21.083333333333332, 0.9998, 4637000, 5647000
    {18282, Method::obliqueStereographic, 159655, {1580, 1090, 685, 2532, 2551}}, // Poland zone II: 53.00194444444445, 21.502777777777776, 0.9998, 4603000, 5806000
    {18283, Method::obliqueStereographic, 159676, {1586, 1047, 685, 2510, 2553}}, // Poland zone III: 53.583333333333336, 17.008333333333333, 0.9998, 3501000, 5999000
    {18284, Method::obliqueStereographic, 159698, {1566, 1044, 685, 2514, 2548}}, // Poland zone IV: 51.670833333333334, 16.672222222222224, 0.9998, 3703000, 5627000
    {18285, Method::transverseMercator, 159719, {595, 1067, 734, 2232, 7}}, // Poland zone V: 0, 18.958333333333332, 0.999983, 237000, -4700000
    {18286, Method::obliqueStereographic, 1156, {1572, 1070, 682, 2308, 2308}}, // GUGiK-80: 52.166666666666664, 19.166666666666668, 0.999714, 500000, 500000
    {18300, Method::transverseMercator, 150661, {595, 1068, 666, 2308, 4}}, // Poland CS92: 0, 19, 0.9993, 500000, -5300000
    {18305, Method::transverseMercator, 150621, {595, 1030, 709, 2547, 595}}, // Poland CS2000 zone 5: 0, 15, 0.999923, 5500000, 0
    {18306, Method::transverseMercator, 150631, {595, 1052, 709, 2562, 595}}, // Poland CS2000 zone 6: 0, 18, 0.999923, 6500000, 0
    {18307, Method::transverseMercator, 150641, {595, 1084, 709, 2573, 595}}, // Poland CS2000 zone 7: 0, 21, 0.999923, 7500000, 0
    {18308, Method::transverseMercator, 150651, {595, 1114, 709, 2579, 595}}, // Poland CS2000 zone 8: 0, 24, 0.999923, 8500000, 0
    {18310, Method::transverseMercator, 84154, {595, 985, 723, 2198, 595}}, // Libya TM zone 5: 0, 9, 0.99995, 200000, 0
    {18311, Method::transverseMercator, 84169, {595, 1000, 723, 2198, 595}}, // Libya TM zone 6: 0, 11, 0.99995, 200000, 0
    {18312, Method::transverseMercator, 84184, {595, 1014, 723, 2198, 595}}, // Libya TM zone 7: 0, 13, 0.99995, 200000, 0
    {18313, Method::transverseMercator, 84199, {595, 1030, 723, 2198, 595}}, // Libya TM zone 8: 0, 15, 0.99995, 200000, 0
    {18314, Method::transverseMercator, 84214, {595, 1046, 723, 2198, 595}}, // Libya TM zone 9: 0, 17, 0.99995, 200000, 0
    {18315, Method::transverseMercator, 84090, {595, 1068, 723, 2198, 595}}, // Libya TM zone 10: 0, 19, 0.99995, 200000, 0
    {18316, Method::transverseMercator, 84106, {595, 1084, 723, 2198, 595}}, // Libya TM zone 11: 0, 21, 0.99995, 200000, 0
    {18317, Method::transverseMercator, 84122, {595, 1106, 723, 2198, 595}}, // Libya TM zone 12: 0, 23, 0.99995, 200000, 0
    {18318, Method::transverseMercator, 84138, {595, 1130, 723, 2198, 595}}, // Libya TM zone 13: 0, 25, 0.99995, 200000, 0
    {18319, Method::transverseMercator, 84077, {595, 1046, 656, 2391, 595}}, // Libya TM: 0, 17, 0.9965, 1000000, 0
    {18401, Method::transverseMercator, 83364, {595, 986, 723, 2198, 595}}, // Kp2000 Jylland og Fyn: 0, 9.5, 0.99995, 200000, 0
    {18402, Method::transverseMercator, 83381, {595, 1010, 723, 2308, 595}}, // Kp2000 Sjaelland: 0, 12, 0.99995, 500000, 0
    {18403, Method::transverseMercator, 45339, {595, 1030, 751, 2370, 595}}, // Kp2000 Bornholm: 0, 15, 1, 900000, 0
    {18415, Method::transverseMercator, 53454, {595, 997, 663, 2391, 2391}}, // French Equatorial Africa west zone: 0, 10.5, 0.999, 1000000, 1000000
    {18421, Method::lambertConicWest, 167236, {1677, 498, 751, 595, 595}}, // Greenland zone 1 east: 82.5, -40, 1, 0, 0
    {18422, Method::lambertConicWest, 167255, {1664, 528, 751, 595, 595}}, // Greenland zone 2 east: 79.5, -24, 1, 0, 0
    {18423, Method::lambertConicWest, 167293, {1654, 543, 751, 595, 595}}, // Greenland zone 3 east: 76.5, -20, 1, 0, 0
    {18424, Method::lambertConicWest, 167331, {1644, 528, 751, 595, 595}}, // Greenland zone 4 east: 73.5, -24, 1, 0, 0
    {18425, Method::lambertConicWest, 184729, {1636, 528, 751, 595, 595}}, // Greenland zone 5 east: 70.5, -24, 1, 0, 0
    {18426, Method::lambertConicWest, 184754, {1629, 522, 751, 595, 595}}, // Greenland zone 6 east: 67.5, -32, 1, 0, 0
    {18427, Method::lambertConicWest, 7054, {1622, 498, 751, 595, 595}}, // Greenland zone 7 east: 64.5, -40, 1, 0, 0
    {18428, Method::lambertConicWest, 167426, {1613, 447, 751, 595, 595}}, // Greenland zone 8 east: 61.5, -48, 1, 0, 0
    {18432, Method::lambertConicWest, 167274, {1664, 424, 751, 595, 595}}, // Greenland zone 2 west: 79.5, -64, 1, 0, 0
    {18433, Method::lambertConicWest, 167312, {1654, 424, 751, 595, 595}}, // Greenland zone 3 west: 76.5, -64, 1, 0, 0
    {18434, Method::lambertConicWest, 167350, {1644, 444, 751, 595, 595}}, // Greenland zone 4 west: 73.5, -52, 1, 0, 0
    {18435, Method::lambertConicWest, 167369, {1636, 444, 751, 595, 595}}, // Greenland zone 5 west: 70.5, -52, 1, 0, 0
    {18436, Method::lambertConicWest, 167388, {1629, 444, 751, 595, 595}}, // Greenland zone 6 west: 67.5, -52, 1, 0, 0
    {18437, Method::lambertConicWest, 167407, {1622, 444, 751, 595, 595}}, // Greenland zone 7 west: 64.5, -52, 1, 0, 0
    {18441, Method::transverseMercator, 14993, {651, 1378, 751, 2431, 595}}, // CS63 zone A1: 0.11666666666666667, 41.53333333333333, 1, 1300000, 0
    {18442, Method::transverseMercator, 15007, {651, 1459, 751, 2474, 595}}, // CS63 zone A2: 0.11666666666666667, 44.53333333333333, 1, 2300000, 0
    {18443, Method::transverseMercator, 15021, {651, 1531, 751, 2506, 595}}, // CS63 zone A3: 0.11666666666666667, 47.53333333333333, 1, 3300000, 0
    {18444, Method::transverseMercator, 15035, {651, 1555, 751, 2528, 595}}, // CS63 zone A4: 0.11666666666666667, 50.53333333333333, 1, 4300000, 0
    {18446, Method::transverseMercator, 15049, {652, 1559, 751, 2474, 595}}, // CS63 zone K2: 0.13333333333333333, 50.766666666666666, 1, 2300000, 0
    {18447, Method::transverseMercator, 15063, {652, 1589, 751, 2506, 595}}, // CS63 zone K3: 0.13333333333333333, 53.766666666666666, 1, 3300000, 0
    {18448, Method::transverseMercator, 15077, {652, 1601, 751, 2528, 595}}, // CS63 zone K4: 0.13333333333333333, 56.766666666666666, 1, 4300000, 0
    {18450, Method::transverseMercator, 48950, {650, 1096, 751, 2249, 595}}, // CS63 zone C0: 0.1, 21.95, 1, 250000, 0
    {18451, Method::transverseMercator, 48966, {650, 1129, 751, 2426, 595}}, // CS63 zone C1: 0.1, 24.95, 1, 1250000, 0
    {18452, Method::transverseMercator, 48982, {650, 1160, 751, 2472, 595}}, // CS63 zone C2: 0.1, 27.95, 1, 2250000, 0
    {19838, Method::hotineA, 172199, {934, 1777, 1583, 1581, 691, 2461, 2536}}, // Rectified Skew Orthomorphic Sarawak LSD (metres): 4, 115, 53.31582047222222, 53.13010236111111, 0.99984, 2000000, 5000000
    {19839, Method::transverseMercator, 41038, {595, 1596, 751, 2308, 595}}, // Dubai Local Transverse Mercator: 0, 55.333333333333336, 1, 500000, 0
    {19840, Method::polarStereographicB, 215331, {1649, 595, 595, 595}}, // IBCAO Polar Stereographic: 75, 0, 0, 0
    {19841, Method::hotineB, 191014, {1520, 976, 1694, 1694, 751, 595, 595}}, // Swiss Oblique Mercator 1903C (Greenwich): 46.95240555555556, 7.439583333333333, 90, 90, 1, 0, 0
    {19842, Method::polarStereographicB, 213758, {1637, 595, 595, 595}}, // Arctic Polar Stereographic: 71, 0, 0, 0
    {19843, Method::mercatorB, 215550, {491, 1721, 595, 595}}, // Mercator 41: -41, 100, 0, 0
    {19844, Method::lambertConic2, 94999, {1440, 403, 1554, 1506, 2347, 595}}, // Ministry of Transport of Quebec Lambert: 44, -70, 50, 46, 800000, 0
    {19845, Method::transverseMercator, 89583, {595, 1030, 700, 2308, 6}}, // Slovene National Grid: 0, 15, 0.9999, 500000, -5000000
    {19846, Method::equidistantCylindrical, 220032, {595, 595, 595, 595}}, // World Equidistant Cylindrical: 0, 0, 0, 0
    {19847, Method::mercatorSphere, 150785, {595, 595, 751, 595, 595}}, // Popular Visualisation Mercator: 0, 0, 1, 0, 0
    {19848, Method::transverseMercator, 150308, {527, 77, 751, 1964, 1966}}, // Pitcairn TM 2006: -25.068552611111112, -130.11296711111112, 1, 14200, 15500
    {19849, Method::transverseMercator, 18776, {1205, 421, 751, 2317, 2064}}, // Bermuda 2000 National Grid: 32, -64.75, 1, 550000, 100000
    {19851, Method::transverseMercator, 37398, {595, 1041, 700, 2308, 595}}, // Croatia Transverse Mercator: 0, 16.5, 0.9999, 500000, 0
    {19852, Method::lambertConic2, 37378, {595, 1041, 1504, 1416, 595, 595}}, // Croatia Lambert Conformal Conic: 0, 16.5, 45.916666666666664, 43.083333333333336, 0, 0
    {19853, Method::transverseMercator, 151508, {1330, 561, 751, 595, 595}}, // Portugual TM06: 39.668258333333334, -8.133108333333334, 1, 0, 0
    {19854, Method::lambertConic2, 217956, {440, 512, 442, 441, 595, 595}}, // South Georgia Lambert: -55, -37, -54, -54.75, 0, 0
    {19855, Method::mercatorA, 215550, {491, 1721, 751, 595, 595}}, // Mercator 41: -41, 100, 1, 0, 0
    {19856, Method::transverseMercator, 173231, {539, 1597, 751, 2155, 2003}}, // TM Reunion: -21.116666666666667, 55.53333333333333, 1, 160000, 50000
    {19857, Method::lambertConic2, 139618, {595, 127, 1615, 1634, 595, 595}}, // Northwest Territories Lambert: 0, -112, 62, 70, 0, 0
    {19858, Method::albers, 104890, {1608, 74, 1614, 1630, 2308, 2308}}, // Yukon Albers: 59, -132.5, 61.666666666666664, 68, 500000, 500000
    {19859, Method::transverseMercator, 51280, {549, 1924, 692, 2461, 2522}}, // Fiji Map Grid: -17, 178.75, 0.99985, 2000000, 4000000
    {19860, Method::lambertConic1, 77673, {1052, 342, 751, 2343, 2333}}, // Jamaica Metric Grid 2001: 18, -77, 1, 750000, 650000
    {19861, Method::laborde, 193255, {546, 1446, 1066, 669, 2294, 2347}}, // Laborde Grid: -18.9, 44.1, 18.9, 0.9995, 400000, 800000
    {19862, Method::lambertConic2, 44622, {1560, 937, 1552, 1562, 2145, 2160}}, // Belgian Lambert 2005: 50.797815, 4.359215833333333, 49.833333333333336, 51.166666666666664, 150328, 166262
    {19863, Method::lambertConic2, 211641, {1084, 1771, 1052, 1114, 2308, 2308}}, // South China Sea Lambert: 21, 114, 18, 24, 500000, 500000
    {19864, Method::transverseMercator, 185741, {914, 1745, 751, 1977, 1986}}, // Singapore Transverse Mercator: 1.3666666666666667, 103.83333333333333, 1, 28001.642, 38744.572
    {19865, Method::polarStereographicB, 198003, {1634, 458, 595, 595}}, // US NSIDC Sea Ice polar stereographic north: 70, -45, 0, 0
    {19866, Method::polarStereographicB, 198032, {403, 595, 595, 595}}, // US NSIDC Sea Ice polar stereographic south: -70, 0, 0, 0
    {19869, Method::cylindricalEqualAreaSphere, 197927, {1182, 595, 595, 595}}, // US NSIDC Equal Area global projection: 30, 0, 0, 0
    {19870, Method::lambertConicWest, 45070, {1615, 559, 751, 2308, 2308}}, // Faroe Lambert: 62, -9, 1, 500000, 500000
    {19871, Method::hotineA, 172128, {934, 1735, 1935, 1937, 691, 2350, 595}}, // Rectified Skew Orthomorphic Malaya Grid (chains): 4, 102.25, 323.02579049999997, 323.13010236111114, 0.99984, 804670.24, 0
    {19872, Method::hotineA, 172164, {934, 1735, 1935, 1937, 691, 2350, 595}}, // Rectified Skew Orthomorphic Malaya Grid (metres): 4, 102.25, 323.02579049999997, 323.13010236111114, 0.99984, 804670.24, 0
    {19873, Method::lambertConic2, 130052, {534, 1854, 536, 532, 654, 909}}, // Noumea Lambert: -22.26969175, 166.44242575, -22.24469175, -22.294691750000002, 0.66, 1.02
    {19874, Method::lambertConic2, 130075, {533, 1855, 535, 531, 980, 581}}, // Noumea Lambert 2: -22.26972222222222, 166.4425, -22.244722222222222, -22.294722222222223, 8.313, -2.354
    {19875, Method::lambertConic2, 103665, {595, 310, 1458, 1585, 2381, 2561}}, // Ontario MNR Lambert: 0, -85, 44.5, 53.5, 930000, 6430000
    {19876, Method::transverseMercator, 37231, {595, 1055, 741, 2065, 2}}, // ST74: 0, 18.05779, 0.99999425, 100178.1808, -6500614.7836
    {19877, Method::lambertConicWest, 50810, {1615, 559, 751, 2341, 2341}}, // Faroe Lambert fk89: 62, -9, 1, 700000, 700000
    {19878, Method::hyperbolicCassini, 208068, {550, 1926, 2252, 2283}}, // Vanua Levu Grid: -16.25, 179.33333333333334, 251727.9155424, 334519.953768
    {19879, Method::cassini, 209590, {548, 1923, 2077, 2128}}, // Viti Levu Grid: -18, 178, 109435.392, 141622.272
    {19880, Method::transverseMercator, 51280, {549, 1924, 692, 2461, 2522}}, // Fiji Map Grid: -17, 178.75, 0.99985, 2000000, 4000000
    {19881, Method::transverseMercator, 6381, {595, 119, 664, 2308, 595}}, // Alberta 10-degree TM (Forest): 0, -115, 0.9992, 500000, 0
    {19882, Method::transverseMercator, 6402, {595, 119, 664, 595, 595}}, // Alberta 10-degree TM (Resource): 0, -115, 0.9992, 0, 0
    {19883, Method::mercatorA, 220058, {595, 595, 751, 595, 595}}, // World Mercator: 0, 0, 1, 0, 0
    {19884, Method::mercatorB, 156537, {1389, 1561, 595, 595}}, // Caspian Sea Mercator: 42, 51, 0, 0
    {19885, Method::cassini, 55771, {964, 1736, 1963, 1958}}, // Kelantan Grid: 5.972543658333334, 102.29524166944444, 13227.851, 8739.894
    {19886, Method::cassini, 55818, {947, 1727, 588, 2113}}, // Perak Grid: 4.859063022222222, 100.81541058611111, -1.769, 133454.779
    {19887, Method::cassini, 55752, {962, 1725, 595, 595}}, // Kedah and Perlis Grid: 5.964672713888889, 100.63637111111112, 0, 0
    {19888, Method::cassini, 55833, {957, 1722, 529, 1617}}, // Pinang Grid: 5.421517541666667, 100.34437696388889, -23.414, 62.283
    {19889, Method::cassini, 55885, {950, 1741, 1968, 1953}}, // Terengganu Grid: 4.9762852, 103.070275625, 19594.245, 3371.895
    {19890, Method::cassini, 55848, {930, 1729, 29, 2019}}, // Selangor Grid: 3.6846490500000004, 101.38910791388889, -34836.161, 56464.049
    {19891, Method::cassini, 55787, {932, 1737, 34, 1957}}, // Pahang Grid: 3.769388088888889, 102.36829898333333, -7368.228, 6485.858
    {19892, Method::cassini, 55864, {922, 1732, 1954, 35}}, // Sembilan and Melaka Grid: 2.682347636111111, 101.97490504166667, 3673.785, -4240.573
    {19893, Method::cassini, 55737, {917, 1742, 33, 1959}}, // Johor Grid: 2.1216797444444446, 103.42793623611112, -14810.562, 8758.32
    {19894, Method::hotineA, 24169, {934, 1777, 1582, 1581, 691, 595, 595}}, // Borneo RSO: 4, 115, 53.315809949999995, 53.13010236111111, 0.99984, 0, 0
    {19895, Method::hotineA, 149138, {934, 1735, 1936, 1937, 691, 2351, 595}}, // Peninsular RSO: 4, 102.25, 323.02579646666663, 323.13010236111114, 0.99984, 804671, 0
    {19896, Method::cassini, 68091, {1099, 1773, 1989, 1967}}, // Hong Kong 1963 Grid: 22.312133333333335, 114.17855555555556, 40243.57775604237, 19069.933515125784
    {19897, Method::lambertConic2, 103941, {1619, 202, 1546, 1656, 2557, 2500}}, // Statistics Canada Lambert: 63.390675, -91.86666666666666, 49, 77, 6200000, 3000000
    {19898, Method::mercatorA, 147847, {595, 66, 751, 595, 595}}, // Pacific Disaster Center Mercator: 0, -150, 1, 0, 0
    {19899, Method::lambertConic1, 85363, {542, 1605, 751, 2391, 2391}}, // Mauritius Grid: -20.195069444444446, 57.52182777777778, 1, 1000000, 1000000
    {19900, Method::transverseMercator, 19427, {595, 1561, 673, 2308, 595}}, // Bahrain State Grid: 0, 51, 0.9996, 500000, 0
    {19901, Method::lambertConic2, 18709, {1694, 595, 1552, 1562, 2141, 2543}}, // Belge Lambert 50: 90, 0, 49.833333333333336, 51.166666666666664, 150000, 5400000
    {19902, Method::lambertConicBelgium, 18732, {1694, 936, 1552, 1562, 2143, 2544}}, // Belge Lambert 72: 90, 4.356939722222222, 49.833333333333336, 51.166666666666664, 150000.01256, 5400088.4378
    {19903, Method::lambertConic1, 4134, {1550, 955, 670, 2308, 2275}}, // Nord de Guerre: 49.5, 5.4, 0.99950908, 500000, 300000
    {19904, Method::transverseMercator, 85425, {944, 591, 683, 2262, 595}}, // Ghana Metre Grid: 4.666666666666667, -1, 0.99975, 274319.51, 0
    {19905, Method::mercatorA, 133450, {595, 1766, 657, 2518, 2370}}, // Netherlands East Indies Equatorial Zone: 0, 110, 0.997, 3900000, 900000
    {19906, Method::lambertConic1, 50463, {1210, 1473, 660, 2439, 2421}}, // Iraq zone: 32.5, 45, 0.9987864078, 1500000, 1166200
    {19907, Method::transverseMercator, 41534, {1173, 1514, 668, 2347, 595}}, // Iraq National Grid: 29.02626833333333, 46.5, 0.9994, 800000, 0
    {19908, Method::transverseMercator, 142770, {1585, 563, 812, 2198, 2249}}, // Irish National Grid: 53.5, -8, 1.000035, 200000, 250000
    {19909, Method::lambertConic1, 77642, {1052, 342, 751, 2161, 2101}}, // Jamaica (Old Grid): 18, -77, 1, 167638.49597, 121918.90616
    {19910, Method::lambertConic1, 76022, {1052, 342, 751, 2249, 2141}}, // Jamaica National Grid: 18, -77, 1, 250000, 150000
    {19911, Method::hotineB, 193277, {546, 1446, 1066, 1066, 669, 2294, 2347}}, // Laborde Grid approximation: -18.9, 44.1, 18.9, 18.9, 0.9995, 400000, 800000
    {19913, Method::obliqueStereographic, 7007, {1571, 954, 702, 595, 595}}, // RD Old: 52.15616055555555, 5.3876388888888895, 0.9999079, 0, 0
    {19914, Method::obliqueStereographic, 6994, {1571, 954, 702, 2151, 2305}}, // RD New: 52.15616055555555, 5.3876388888888895, 0.9999079, 155000, 463000
    {19916, Method::transverseMercator, 142714, {1546, 585, 674, 2294, 23}}, // British National Grid: 49, -2, 0.9996012717, 400000, -100000
    {19917, Method::newZealandMapGrid, 132328, {491, 1893, 2480, 2556}}, // New Zealand Map Grid: -41, 173, 2510000, 6023150
    {19919, Method::transverseMercator, 167039, {1120, 1564, 735, 2198, 2275}}, // Qatar National Grid: 24.45, 51.21666666666667, 0.99999, 200000, 300000
    {19920, Method::cassini, 81934, {913, 1746, 1978, 1978}}, // Singapore Grid: 1.2876466666666666, 103.85300222222222, 30000, 30000
    {19921, Method::lambertConic1, 49262, {1339, 595, 662, 2323, 2323}}, // Spain: 40, 0, 0.9988085293, 600000, 600000
    {19922, Method::hotineB, 191044, {1520, 976, 1694, 1694, 751, 2323, 2198}}, // Swiss Oblique Mercator 1903M: 46.95240555555556, 7.439583333333333, 90, 90, 1, 600000, 200000
    {19923, Method::hotineB, 190992, {1520, 595, 1694, 1694, 751, 595, 595}}, // Swiss Oblique Mercator 1903C: 46.95240555555556, 0, 90, 90, 1, 0, 0
    {19924, Method::cassini, 96916, {1002, 430, 1985, 1984}}, // Tobago Grid: 11.25217861111111, -60.686008888888885, 37718.66159325, 36209.91512952
    {19925, Method::cassini, 195373, {994, 429, 2051, 2033}}, // Trinidad Grid: 10.441666666666666, -61.333333333333336, 86501.46392052, 65379.0134283
    {19926, Method::obliqueStereographic, 40113, {1506, 1130, 683, 2308, 2308}}, // Stereo 70: 46, 25, 0.99975, 500000, 500000
    {19927, Method::obliqueStereographic, 40029, {1502, 1135, 681, 2308, 2308}}, // Stereo 33: 45.9, 25.39246588888889, 0.9996667, 500000, 500000
    {19928, Method::transverseMercator, 83614, {595, 1535, 673, 2308, 595}}, // Kuwait TM: 0, 48, 0.9996, 500000, 0
    {19929, Method::transverseMercator, 190931, {595, 1036, 751, 2439, 595}}, // Sweden zone 2.5 gon V: 0, 15.808277777777779, 1, 1500000, 0
    {19930, Method::transverseMercator, 56025, {595, 1114, 673, 2308, 595}}, // Greek Grid: 0, 24, 0.9996, 500000, 0
    {19931, Method::hotineB, 47348, {1525, 1069, 1694, 1694, 712, 2333, 2198}}, // Egyseges Orszagos Vetuleti: 47.14439372222222, 19.04857177777778, 90, 90, 0.99993, 650000, 200000
    {19933, Method::obliqueStereographic, 151840, {1526, 426, 704, 2341, 2294}}, // Prince Edward Island Stereographic (ATS77): 47.25, -63, 0.999912, 700000, 400000
    {19934, Method::transverseMercator, 86348, {595, 1114, 685, 2308, 595}}, // Lithuania 1994: 0, 24, 0.9998, 500000, 0
    {19935, Method::hotineA, 172099, {934, 1735, 1935, 1937, 691, 2352, 595}}, // Rectified Skew Orthomorphic Malaya Grid: 4, 102.25, 323.02579049999997, 323.13010236111114, 0.99984, 804671.2997750349, 0
    {19936, Method::transverseMercator, 86068, {1329, 751, 751, 2198, 2275}}, // Portuguese National Grid: 39.666666666666664, 1, 1, 200000, 300000
    {19937, Method::tunisiaMiningGrid, 31705, {1214, 973, 2260, 2287}}, // Tunisia Mining Grid: 32.93676, 7.051005, 270000, 360000
    {19938, Method::lambertConic2, 47652, {1604, 1114, 1609, 1606, 2308, 2560}}, // Estonian National Grid: 57.51755393055556, 24, 59.333333333333336, 58, 500000, 6375000
    {19939, Method::transverseMercator, 191606, {595, 1114, 673, 2308, 595}}, // TM Baltic 93: 0, 24, 0.9996, 500000, 0
    {19940, Method::lambertConicNearConformal, 40318, {1237, 1277, 679, 2275, 2275}}, // Levant Zone: 34.65, 37.35, 0.9996256, 300000, 300000
    {19941, Method::polyconic, 175296, {595, 442, 2536, 2584}}, // Brazil Polyconic: 0, -54, 5000000, 10000000
    {19942, Method::transverseMercator, 7648, {595, 427, 669, 2294, 595}}, // British West Indies Grid: 0, -62, 0.9995, 400000, 0
    {19943, Method::transverseMercator, 19647, {1015, 433, 747, 1978, 2042}}, // Barbados National Grid: 13.176388888888889, -59.55972222222222, 0.9999986, 30000, 75000
    {19944, Method::lambertConic2, 167547, {1440, 408, 1610, 1506, 595, 595}}, // Quebec Lambert Projection: 44, -68.5, 60, 46, 0, 0
    {19945, Method::obliqueStereographic, 4236, {1514, 417, 704, 2275, 2347}}, // New Brunswick Stereographic (ATS77): 46.5, -66.5, 0.999912, 300000, 800000
    {19946, Method::obliqueStereographic, 135539, {1514, 417, 704, 2478, 2573}}, // New Brunswick Stereographic (NAD83): 46.5, -66.5, 0.999912, 2500000, 7500000
    {19947, Method::lambertConic2, 44606, {1530, 1016, 1546, 1506, 2294, 2294}}, // Austria Lambert: 47.5, 13.333333333333334, 49, 46, 400000, 400000
    {19948, Method::lambertConic1, 40338, {1237, 1277, 679, 2275, 2275}}, // Syria Lambert: 34.65, 37.35, 0.9996256, 300000, 300000
    {19949, Method::obliqueStereographic, 40293, {1233, 1318, 672, 595, 595}}, // Levant Stereographic: 34.2, 39.15, 0.9995341, 0, 0
    {19950, Method::hotineB, 191066, {1520, 976, 1694, 1694, 751, 2486, 2425}}, // Swiss Oblique Mercator 1995: 46.95240555555556, 7.439583333333333, 90, 90, 1, 2600000, 1200000
    {19951, Method::hotineB, 132880, {1157, 1577, 653, 653, 697, 2334, 2501}}, // Nakhl e Taqi Oblique Mercator: 27.518828805555554, 52.60353916666667, 0.5716611944444444, 0.5716611944444444, 0.999895934, 658377.437, 3044969.194
    {19952, Method::krovak, 51077, {1550, 1397, 1187, 1661, 700, 595, 595}}, // Krovak: 49.5, 42.5, 30.28813975277778, 78.5, 0.9999, 0, 0
    {19953, Method::cassini, 167123, {1134, 1558, 2064, 2064}}, // Qatar Grid: 25.382361111111113, 50.76138888888889, 100000, 100000
    {19954, Method::transverseMercator, 230067, {595, 438, 673, 2308, 595}}, // Suriname Old TM: 0, -55.68333333333333, 0.9996, 500000, 0
    {19955, Method::transverseMercator, 230083, {595, 438, 700, 2308, 595}}, // Suriname TM: 0, -55.68333333333333, 0.9999, 500000, 0
    {19956, Method::hotineB, 171995, {934, 1777, 1583, 1581, 691, 2320, 2298}}, // Rectified Skew Orthomorphic Borneo Grid (chains): 4, 115, 53.31582047222222, 53.13010236111111, 0.99984, 590476.8714630402, 442857.65309436107
    {19957, Method::hotineB, 172031, {934, 1777, 1583, 1581, 691, 2321, 2299}}, // Rectified Skew Orthomorphic Borneo Grid (feet): 4, 115, 53.31582047222222, 53.13010236111111, 0.99984, 590476.872743198, 442857.65455739846
    {19958, Method::hotineB, 172064, {934, 1777, 1583, 1581, 691, 2319, 2297}}, // Rectified Skew Orthomorphic Borneo Grid (metres): 4, 115, 53.31582047222222, 53.13010236111111, 0.99984, 590476.87, 442857.65
    {19959, Method::transverseMercator, 4729, {944, 591, 683, 2264, 595}}, // Ghana National Grid: 4.666666666666667, -1, 0.99975, 274319.73916335794, 0
    {19960, Method::obliqueStereographic, 116598, {1526, 426, 704, 2294, 2347}}, // Prince Edward Isl. Stereographic (NAD83): 47.25, -63, 0.999912, 400000, 800000
    {19961, Method::lambertConic2, 18750, {1694, 938, 1563, 1553, 2144, 2545}}, // Belgian Lambert 72: 90, 4.367486666666666, 51.16666723333333, 49.8333339, 150000.013, 5400088.438
    {19962, Method::transverseMercator, 70423, {1585, 563, 687, 2323, 2343}}, // Irish Transverse Mercator: 53.5, -8, 0.99982, 600000, 750000
    {19963, Method::transverseMercator, 185569, {970, 555, 751, 2148, 595}}, // Sierra Leone New Colony Grid: 6.666666666666667, -12, 1, 152399.8550907544, 0
    {19964, Method::transverseMercator, 135877, {970, 555, 751, 2239, 2174}}, // New War Office Sierra Leone Grid: 6.666666666666667, -12, 1, 243839.76814520705, 182879.82610890528
    {19966, Method::transverseMercator, 84442, {1552, 966, 751, 2048, 2064}}, // Luxembourg TM: 49.833333333333336, 6.166666666666667, 1, 80000, 100000
    {19967, Method::transverseMercator, 89601, {595, 1030, 700, 2308, 595}}, // Slovenia Grid: 0, 15, 0.9999, 500000, 0
    {19968, Method::equidistantCylindricalSphere, 227137, {595, 595, 595, 595}}, // World Equidistant Cylindrical (Sphere): 0, 0, 0, 0
    {19969, Method::transverseMercator, 39716, {1329, 751, 751, 595, 595}}, // Portuguese Grid: 39.666666666666664, 1, 1, 0, 0
    {19971, Method::transverseMercator, 131682, {595, 1893, 673, 2447, 2584}}, // New Zealand Transverse Mercator 2000: 0, 173, 0.9996, 1600000, 10000000
    {19972, Method::transverseMercator, 191673, {1585, 563, 812, 2198, 2249}}, // Irish Grid: 53.5, -8, 1.000035, 200000, 250000
    {19973, Method::transverseMercator, 142770, {1585, 563, 751, 2198, 2249}}, // Irish National Grid: 53.5, -8, 1, 200000, 250000
    {19974, Method::transverseMercator, 39708, {1329, 562, 751, 1928, 281}}, // Modified Portuguese Grid: 39.666666666666664, -8.131906111111112, 1, 180.598, -86.99
    {19975, Method::cassini, 195409, {994, 429, 2051, 2033}}, // Trinidad Grid (Clarke's feet): 10.441666666666666, -61.333333333333336, 86501.46392052, 65379.0134283
    {19976, Method::lambertConic2, 147253, {965, 419, 985, 926, 2391, 2391}}, // ICN Regional: 6, -66, 9, 3, 1000000, 1000000
    {19977, Method::lambertConic2, 5699, {1131, 1535, 1046, 1215, 595, 595}}, // Aramco Lambert: 25.089509999999997, 48, 17, 33, 0, 0
    {19978, Method::transverseMercator, 68151, {1099, 1773, 751, 2361, 2356}}, // Hong Kong 1980 Grid: 22.312133333333335, 114.17855555555556, 1, 836694.05, 819069.8
    {19979, Method::bonneSouth, 86165, {1329, 751, 595, 595}}, // Portugal Bonne: 39.666666666666664, 1, 0, 0
    {19981, Method::lambertConic2, 169346, {538, 1853, 541, 530, 2294, 2275}}, // Lambert New Caledonia: -21.5, 166, -20.666666666666668, -22.333333333333332, 400000, 300000
    {19982, Method::transverseMercator, 173231, {539, 1597, 751, 2003, 2155}}, // TM Reunion: -21.116666666666667, 55.53333333333333, 1, 50000, 160000
    {19983, Method::polarStereographicC, 149390, {416, 1830, 2275, 2198}}, // Terre Adelie Polar Stereographic: -67, 140, 300000, 200000
    {19984, Method::albers, 25115, {1473, 79, 1554, 1607, 2391, 595}}, // British Columbia Albers: 45, -126, 50, 58.5, 1000000, 0
    {19985, Method::lambertConic2, 49581, {1570, 989, 1246, 1623, 2522, 2495}}, // Europe Conformal 2001: 52, 10, 35, 65, 4000000, 2800000
    {19986, Method::lambertAzimuthal, 49595, {1570, 989, 2529, 2505}}, // Europe Equal Area 2001: 52, 10, 4321000, 3210000
    {19987, Method::lambertConicWest, 71475, {1623, 544, 751, 595, 595}}, // Iceland Lambert 1900: 65, -19.022125, 1, 0, 0
    {19988, Method::lambertConicWest, 71489, {1623, 548, 751, 2308, 2308}}, // Iceland Lambert 1955: 65, -18, 1, 500000, 500000
    {19989, Method::lambertConic2, 71503, {1623, 545, 1621, 1626, 2308, 2308}}, // Iceland Lambert 1993: 65, -19, 64.25, 65.75, 500000, 500000
    {19990, Method::transverseMercator, 85310, {595, 1114, 673, 2308, 3}}, // Latvian Transverse Mercator: 0, 24, 0.9996, 500000, -6000000
    {19991, Method::transverseMercator, 67703, {595, 560, 751, 2003, 0}}, // Jan Mayen Grid: 0, -8.5, 1, 50000, -7800000
    {19992, Method::polarStereographicB, 213732, {396, 595, 595, 595}}, // Antarctic Polar Stereographic: -71, 0, 0, 0
    {19993, Method::polarStereographicB, 213839, {396, 1634, 2555, 2555}}, // Australian Antarctic Polar Stereographic: -71, 70, 6000000, 6000000
    {19994, Method::lambertConic2, 213814, {446, 1634, 408, 367, 2555, 2555}}, // Australian Antarctic Lambert: -50, 70, -68.5, -74.5, 6000000, 6000000
    {19995, Method::transverseMercator, 79025, {595, 1269, 685, 2308, 16}}, // Jordan Transverse Mercator: 0, 37, 0.9998, 500000, -3000000
    {19996, Method::cassini, 38942, {1575, 1021, 1988, 1961}}, // Soldner Berlin: 52.41864827777778, 13.627203666666666, 40000, 10000
    {19997, Method::transverseMercator, 83622, {595, 1535, 751, 2308, 595}}, // Kuwait Transverse Mercator: 0, 48, 1, 500000, 0
    {19998, Method::transverseMercator, 45299, {1550, 580, 745, 1996, 2003}}, // Guernsey Grid: 49.5, -2.4166666666666665, 0.999997, 47000, 50000
    {19999, Method::transverseMercator, 45316, {1548, 584, 750, 1988, 2035}}, // Jersey Transverse Mercator: 49.225, -2.135, 0.9999999, 40000, 70000
};
// clang-format on

} // namespace ZrProj::systems::rows
