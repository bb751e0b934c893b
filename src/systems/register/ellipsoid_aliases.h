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
    {0, 5414, 7001, Maker::esri}, // Airy_1830
    {0, 5423, 7002, Maker::esri}, // Airy_Modified
    {0, 4003, 7041, Maker::esri}, // ATS_1977
    {0, 16083, 7003, Maker::esri}, // Australian
    {0, 21727, 7004, Maker::esri}, // Bessel_1841
    {0, 21737, 7005, Maker::esri}, // Bessel_Modified
    {0, 21750, 7006, Maker::esri}, // Bessel_Namibia
    {18, 31259, 7007, Maker::esri}, // Clarke_1858
    {18, 31269, 7008, Maker::esri}, // Clarke_1866
    {18, 849, 7009, Maker::esri}, // Clarke_1866_Michigan
    {18, 31296, 7034, Maker::esri}, // Clarke_1880
    {18, 861, 7013, Maker::esri}, // Clarke_1880_Arc
    {18, 869, 7010, Maker::esri}, // Clarke_1880_Benoit
    {18, 879, 7011, Maker::esri}, // Clarke_1880_IGN
    {18, 888, 7055, Maker::esri}, // Clarke_1880_Intl_Ft
    {18, 899, 7012, Maker::esri}, // Clarke_1880_RGS
    {18, 908, 7014, Maker::esri}, // Clarke_1880_SGA
    {0, 37016, 7051, Maker::esri}, // Danish_1876
    {47, 5393, 7042, Maker::esri}, // Everest_1830
    {47, 832, 7018, Maker::esri}, // Everest_1830_Modified
    {47, 4540, 7015, Maker::esri}, // Everest_Adjustment_1937
    {47, 37555, 7044, Maker::esri}, // Everest_Definition_1962
    {47, 37565, 7016, Maker::esri}, // Everest_Definition_1967
    {47, 37575, 7045, Maker::esri}, // Everest_Definition_1975
    {47, 90886, 7056, Maker::esri}, // Everest_Modified_1969
    {0, 52811, 7031, Maker::esri}, // GEM_10C
    {0, 53475, 7036, Maker::esri}, // GRS_1967
    {0, 53481, 7050, Maker::esri}, // GRS_1967_Truncated
    {0, 53495, 7019, Maker::esri}, // GRS_1980
    {0, 64290, 7020, Maker::esri}, // Helmert_1906
    {0, 64845, 7053, Maker::esri}, // Hough_1960
    {0, 64968, 7058, Maker::esri}, // Hughes_1980
    {0, 70050, 7021, Maker::esri}, // Indonesian
    {0, 70627, 7022, Maker::esri}, // International_1924
    {0, 79023, 7024, Maker::esri}, // Krasovsky_1940
    {0, 125716, 7025, Maker::esri}, // NWL_9D
    {0, 136882, 7032, Maker::esri}, // OSU_86F
    {0, 136890, 7033, Maker::esri}, // OSU_91A
    {0, 143999, 7027, Maker::esri}, // Plessis_1817
    {0, 141507, 7054, Maker::esri}, // PZ_1990
    {0, 181679, 7052, Maker::esri}, // Sphere_Clarke_1866_Authalic
    {0, 181698, 7048, Maker::esri}, // Sphere_GRS_1980_Authalic
    {0, 181713, 7057, Maker::esri}, // Sphere_International_1924_Authalic
    {0, 182784, 7028, Maker::esri}, // Struve_1860
    {0, 213948, 7029, Maker::esri}, // War_Office
    {0, 211047, 7043, Maker::esri}, // WGS_1972
    {0, 211119, 7030, Maker::esri}, // WGS_1984
    {245, 211199, 7059, Maker::esri}, // WGS_1984_Major_Auxiliary_Sphere
    {0, 220381, 7049, Maker::esri}, // Xian_1980
    {0, 220919, 1026, Maker::esri}, // Zach_1812
};
// clang-format on

} // namespace ZrProj::systems::rows
