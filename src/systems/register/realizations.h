// Realizations and the ensembles that have them.
//
// Made by src/systems/make_register.py from the EPSG Geodetic Parameter Dataset v10.076 of 2022-08-31, which
// is IOGP's, as proj-data carries it, under the terms of use at https://epsg.org/terms-of-use.html. Other makers' names
// are of ArcGIS Pro 3.0 of 2022-07-09 and of PROJ 9.1.1.
#pragma once

#include "systems/register/rows.h"

namespace ZrProj::systems::rows {

// clang-format off
inline constexpr RealizationRow realizations[] = {
    {1152, 6326}, // World Geodetic System 1984 (G730)
    {1153, 6326}, // World Geodetic System 1984 (G873)
    {1154, 6326}, // World Geodetic System 1984 (G1150)
    {1155, 6326}, // World Geodetic System 1984 (G1674)
    {1156, 6326}, // World Geodetic System 1984 (G1762)
    {1166, 6326}, // World Geodetic System 1984 (Transit)
    {1178, 6258}, // European Terrestrial Reference Frame 1989
    {1179, 6258}, // European Terrestrial Reference Frame 1990
    {1180, 6258}, // European Terrestrial Reference Frame 1991
    {1181, 6258}, // European Terrestrial Reference Frame 1992
    {1182, 6258}, // European Terrestrial Reference Frame 1993
    {1183, 6258}, // European Terrestrial Reference Frame 1994
    {1184, 6258}, // European Terrestrial Reference Frame 1996
    {1185, 6258}, // European Terrestrial Reference Frame 1997
    {1186, 6258}, // European Terrestrial Reference Frame 2000
    {1204, 6258}, // European Terrestrial Reference Frame 2005
    {1206, 6258}, // European Terrestrial Reference Frame 2014
    {1309, 6326}, // World Geodetic System 1984 (G2139)
};
// clang-format on

} // namespace ZrProj::systems::rows
