// The rows of units by name.
//
// Made by src/systems/make_register.py from the EPSG Geodetic Parameter Dataset v10.076 of 2022-08-31, which
// is IOGP's, as proj-data carries it, under the terms of use at https://epsg.org/terms-of-use.html. Other makers' names
// are of ArcGIS Pro 3.0 of 2022-07-09 and of PROJ 9.1.1.
#pragma once

#include "systems/register/rows.h"

namespace ZrProj::systems::rows {

// clang-format off
inline constexpr std::uint16_t unitNames[] = {
    46, // arc-minute
    67, // Bin width 12.5 metres
    63, // Bin width 165 US survey feet
    66, // Bin width 25 metres
    69, // Bin width 3.125 metres
    62, // Bin width 330 US survey feet
    65, // Bin width 37.5 metres
    68, // Bin width 6.25 metres
    64, // Bin width 82.5 US survey feet
    22, // British chain (Benoit 1895 A)
    26, // British chain (Benoit 1895 B)
    18, // British chain (Sears 1922)
    71, // British chain (Sears 1922 truncated)
    28, // British foot (1865)
    39, // British foot (1936)
    21, // British foot (Benoit 1895 A)
    25, // British foot (Benoit 1895 B)
    17, // British foot (Sears 1922)
    70, // British foot (Sears 1922 truncated)
    23, // British link (Benoit 1895 A)
    27, // British link (Benoit 1895 B)
    19, // British link (Sears 1922)
    72, // British link (Sears 1922 truncated)
    20, // British yard (Benoit 1895 A)
    24, // British yard (Benoit 1895 B)
    16, // British yard (Sears 1922)
    43, // British yard (Sears 1922 truncated)
    53, // centesimal minute
    1, // centimetre
    41, // chain
    14, // Clarke's chain
    5, // Clarke's foot
    15, // Clarke's link
    13, // Clarke's yard
    45, // degree
    56, // degree hemisphere
    55, // degree minute
    58, // degree minute hemisphere
    49, // degree minute second hemisphere
    61, // degree (supplier to define representation)
    6, // fathom
    3, // foot
    8, // German legal metre
    38, // Gold Coast foot
    48, // gon
    47, // grad
    57, // hemisphere degree
    59, // hemisphere degree minute
    29, // Indian foot
    30, // Indian foot (1937)
    31, // Indian foot (1962)
    32, // Indian foot (1975)
    33, // Indian yard
    34, // Indian yard (1937)
    35, // Indian yard (1962)
    36, // Indian yard (1975)
    12, // kilometre
    42, // link
    2, // metre
    50, // microradian
    54, // mil_6400
    0, // millimetre
    7, // nautical mile
    44, // radian
    52, // sexagesimal DM
    51, // sexagesimal DMS
    60, // sexagesimal DMS.s
    37, // Statute mile
    9, // US survey chain
    4, // US survey foot
    10, // US survey link
    11, // US survey mile
    40, // yard
};
// clang-format on

} // namespace ZrProj::systems::rows
