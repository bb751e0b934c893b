// The rows of ellipsoids by name.
//
// Made by src/systems/make_register.py from the EPSG Geodetic Parameter Dataset v10.076 of 2022-08-31, which
// is IOGP's, as proj-data carries it, under the terms of use at https://epsg.org/terms-of-use.html. Other makers' names
// are of ArcGIS Pro 3.0 of 2022-07-09 and of PROJ 9.1.1.
#pragma once

#include "systems/register/rows.h"

namespace ZrProj::systems::rows {

// clang-format off
inline constexpr std::uint16_t ellipsoidNames[] = {
    3, // Airy 1830
    4, // Airy Modified 1849
    5, // Australian National Spheroid
    36, // Average Terrestrial System 1977
    6, // Bessel 1841
    7, // Bessel Modified
    8, // Bessel Namibia
    41, // Bessel Namibia (GLM)
    0, // CGCS2000
    9, // Clarke 1858
    10, // Clarke 1866
    47, // Clarke 1866 Authalic Sphere
    11, // Clarke 1866 Michigan
    33, // Clarke 1880
    15, // Clarke 1880 (Arc)
    12, // Clarke 1880 (Benoit)
    13, // Clarke 1880 (IGN)
    50, // Clarke 1880 (international foot)
    14, // Clarke 1880 (RGS)
    16, // Clarke 1880 (SGA 1922)
    46, // Danish 1876
    17, // Everest 1830 (1937 Adjustment)
    39, // Everest 1830 (1962 Definition)
    18, // Everest 1830 (1967 Definition)
    40, // Everest 1830 (1975 Definition)
    37, // Everest (1830 Definition)
    19, // Everest 1830 Modified
    51, // Everest 1830 (RSO 1969)
    30, // GEM 10C
    35, // GRS 1967
    45, // GRS 1967 Modified
    20, // GRS 1980
    42, // GRS 1980 Authalic Sphere
    43, // GRS 1980 Authalic Sphere
    1, // GSK-2011
    21, // Helmert 1906
    48, // Hough 1960
    53, // Hughes 1980
    44, // IAG 1975
    22, // Indonesian National Spheroid
    23, // International 1924
    52, // International 1924 Authalic Sphere
    24, // Krassowsky 1940
    25, // NWL 9D
    31, // OSU86F
    32, // OSU91A
    26, // Plessis 1817
    54, // Popular Visualisation Sphere
    49, // PZ-90
    34, // Sphere
    27, // Struve 1860
    28, // War Office
    38, // WGS 72
    29, // WGS 84
    2, // Zach 1812
};
// clang-format on

} // namespace ZrProj::systems::rows
