// Other names of ellipsoids, by name.
//
// Made by src/systems/make_register.py from the EPSG Geodetic Parameter Dataset v10.076 of 2022-08-31, which
// is IOGP's, as proj-data carries it, under the terms of use at https://epsg.org/terms-of-use.html. Other makers' names
// are of ArcGIS Pro 3.0 of 2022-07-09 and of PROJ 9.1.1.
#pragma once

#include "systems/register/rows.h"

namespace ZrProj::systems::rows {

// clang-format off
inline constexpr AliasRow ellipsoidAliases[] = {
    {0, 5891, 7001, Maker::esri}, // Airy_1830
    {0, 5900, 7002, Maker::esri}, // Airy_Modified
    {0, 4325, 7041, Maker::esri}, // ATS_1977
    {0, 17159, 7003, Maker::esri}, // Australian
    {0, 23008, 7004, Maker::esri}, // Bessel_1841
    {0, 23018, 7005, Maker::esri}, // Bessel_Modified
    {0, 23031, 7006, Maker::esri}, // Bessel_Namibia
    {18, 33678, 7007, Maker::esri}, // Clarke_1858
    {18, 33688, 7008, Maker::esri}, // Clarke_1866
    {18, 868, 7009, Maker::esri}, // Clarke_1866_Michigan
    {18, 33715, 7034, Maker::esri}, // Clarke_1880
    {18, 880, 7013, Maker::esri}, // Clarke_1880_Arc
    {18, 888, 7010, Maker::esri}, // Clarke_1880_Benoit
    {18, 898, 7011, Maker::esri}, // Clarke_1880_IGN
    {18, 907, 7055, Maker::esri}, // Clarke_1880_Intl_Ft
    {18, 918, 7012, Maker::esri}, // Clarke_1880_RGS
    {18, 927, 7014, Maker::esri}, // Clarke_1880_SGA
    {0, 39656, 7051, Maker::esri}, // Danish_1876
    {47, 5870, 7042, Maker::esri}, // Everest_1830
    {47, 851, 7018, Maker::esri}, // Everest_1830_Modified
    {47, 4915, 7015, Maker::esri}, // Everest_Adjustment_1937
    {47, 40243, 7044, Maker::esri}, // Everest_Definition_1962
    {47, 40253, 7016, Maker::esri}, // Everest_Definition_1967
    {47, 40263, 7045, Maker::esri}, // Everest_Definition_1975
    {47, 95775, 7056, Maker::esri}, // Everest_Modified_1969
    {0, 56000, 7031, Maker::esri}, // GEM_10C
    {0, 56664, 7036, Maker::esri}, // GRS_1967
    {0, 56670, 7050, Maker::esri}, // GRS_1967_Truncated
    {0, 56684, 7019, Maker::esri}, // GRS_1980
    {0, 67752, 7020, Maker::esri}, // Helmert_1906
    {0, 68328, 7053, Maker::esri}, // Hough_1960
    {0, 68452, 7058, Maker::esri}, // Hughes_1980
    {0, 73867, 7021, Maker::esri}, // Indonesian
    {0, 74431, 7022, Maker::esri}, // International_1924
    {0, 83423, 7024, Maker::esri}, // Krasovsky_1940
    {0, 131197, 7025, Maker::esri}, // NWL_9D
    {0, 142869, 7032, Maker::esri}, // OSU_86F
    {0, 142877, 7033, Maker::esri}, // OSU_91A
    {0, 150412, 7027, Maker::esri}, // Plessis_1817
    {0, 147702, 7054, Maker::esri}, // PZ_1990
    {0, 189355, 7052, Maker::esri}, // Sphere_Clarke_1866_Authalic
    {0, 189374, 7048, Maker::esri}, // Sphere_GRS_1980_Authalic
    {0, 189389, 7057, Maker::esri}, // Sphere_International_1924_Authalic
    {0, 190462, 7028, Maker::esri}, // Struve_1860
    {0, 223019, 7029, Maker::esri}, // War_Office
    {0, 220121, 7043, Maker::esri}, // WGS_1972
    {0, 220195, 7030, Maker::esri}, // WGS_1984
    {245, 220275, 7059, Maker::esri}, // WGS_1984_Major_Auxiliary_Sphere
    {0, 229482, 7049, Maker::esri}, // Xian_1980
    {0, 230039, 1026, Maker::esri}, // Zach_1812
};
// clang-format on

} // namespace ZrProj::systems::rows
