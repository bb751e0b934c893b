// Other names of ellipsoids, by name.
//
// Made by src/systems/make_register.py from the EPSG Geodetic Parameter Dataset v10.076 of 2022-08-31, which is IOGP's, as
// proj-data carries it, under the terms of use at https://epsg.org/terms-of-use.html. Other makers' names are of ArcGIS Pro 3.0
// of 2022-07-09 and of PROJ 9.1.1.
#pragma once

#include "systems/register/rows.h"

namespace ZrProj::systems::rows {

// clang-format off
inline constexpr AliasRow ellipsoidAliases[] = {
    {0, 7412, 7001, Maker::esri}, // Airy_1830
    {0, 7422, 7002, Maker::esri}, // Airy_Modified
    {0, 5169, 7041, Maker::esri}, // ATS_1977
    {0, 26403, 7003, Maker::esri}, // Australian
    {0, 34590, 7004, Maker::esri}, // Bessel_1841
    {0, 34602, 7005, Maker::esri}, // Bessel_Modified
    {0, 34618, 7006, Maker::esri}, // Bessel_Namibia
    {18, 49690, 7007, Maker::esri}, // Clarke_1858
    {18, 49702, 7008, Maker::esri}, // Clarke_1866
    {18, 1064, 7009, Maker::esri}, // Clarke_1866_Michigan
    {18, 49735, 7034, Maker::esri}, // Clarke_1880
    {18, 1078, 7013, Maker::esri}, // Clarke_1880_Arc
    {18, 1087, 7010, Maker::esri}, // Clarke_1880_Benoit
    {18, 1099, 7011, Maker::esri}, // Clarke_1880_IGN
    {18, 1108, 7055, Maker::esri}, // Clarke_1880_Intl_Ft
    {18, 1121, 7012, Maker::esri}, // Clarke_1880_RGS
    {18, 1130, 7014, Maker::esri}, // Clarke_1880_SGA
    {0, 58676, 7051, Maker::esri}, // Danish_1876
    {47, 7388, 7042, Maker::esri}, // Everest_1830
    {47, 1045, 7018, Maker::esri}, // Everest_1830_Modified
    {47, 5938, 7015, Maker::esri}, // Everest_Adjustment_1937
    {47, 59394, 7044, Maker::esri}, // Everest_Definition_1962
    {47, 59410, 7016, Maker::esri}, // Everest_Definition_1967
    {47, 59426, 7045, Maker::esri}, // Everest_Definition_1975
    {47, 142253, 7056, Maker::esri}, // Everest_Modified_1969
    {0, 83435, 7031, Maker::esri}, // GEM_10C
    {0, 84440, 7036, Maker::esri}, // GRS_1967
    {0, 84449, 7050, Maker::esri}, // GRS_1967_Truncated
    {0, 84468, 7019, Maker::esri}, // GRS_1980
    {0, 99954, 7020, Maker::esri}, // Helmert_1906
    {0, 100721, 7053, Maker::esri}, // Hough_1960
    {0, 100879, 7058, Maker::esri}, // Hughes_1980
    {0, 109850, 7021, Maker::esri}, // Indonesian
    {0, 110782, 7022, Maker::esri}, // International_1924
    {0, 124030, 7024, Maker::esri}, // Krasovsky_1940
    {0, 216142, 7025, Maker::esri}, // NWL_9D
    {0, 234893, 7032, Maker::esri}, // OSU_86F
    {0, 234901, 7033, Maker::esri}, // OSU_91A
    {0, 246580, 7027, Maker::esri}, // Plessis_1817
    {0, 242731, 7054, Maker::esri}, // PZ_1990
    {0, 305681, 7052, Maker::esri}, // Sphere_Clarke_1866_Authalic
    {0, 305709, 7048, Maker::esri}, // Sphere_GRS_1980_Authalic
    {0, 305734, 7057, Maker::esri}, // Sphere_International_1924_Authalic
    {0, 307247, 7028, Maker::esri}, // Struve_1860
    {0, 356261, 7029, Maker::esri}, // War_Office
    {0, 352114, 7043, Maker::esri}, // WGS_1972
    {0, 352212, 7030, Maker::esri}, // WGS_1984
    {245, 352325, 7059, Maker::esri}, // WGS_1984_Major_Auxiliary_Sphere
    {0, 373267, 7049, Maker::esri}, // Xian_1980
    {0, 374135, 1026, Maker::esri}, // Zach_1812
};
// clang-format on

} // namespace ZrProj::systems::rows
