// Prime meridians.
//
// Made by src/systems/make_register.py from the EPSG Geodetic Parameter Dataset v10.076 of 2022-08-31, which
// is IOGP's, as proj-data carries it, under the terms of use at https://epsg.org/terms-of-use.html. Other makers' names
// are of ArcGIS Pro 3.0 of 2022-07-09 and of PROJ 9.1.1.
#pragma once

#include "systems/register/rows.h"

namespace ZrProj::systems::rows {

// clang-format off
inline constexpr MeridianRow meridians[] = {
    {8901, 47495, 0}, // Greenwich
    {8902, 86284, -9.131906111111112}, // Lisbon
    {8903, 4148, 2.33722917}, // Paris
    {8904, 23991, -74.08091666666667}, // Bogota
    {8905, 91159, -3.6873750000000003}, // Madrid
    {8906, 96602, 12.452333333333332}, // Rome
    {8907, 22927, 7.439583333333333}, // Bern
    {8908, 19999, 106.80771944444444}, // Jakarta
    {8909, 89862, -17.666666666666668}, // Ferro
    {8910, 22566, 4.3679749999999995}, // Brussels
    {8911, 171340, 18.05827777777778}, // Stockholm
    {8912, 64955, 23.716337499999998}, // Athens
    {8913, 130466, 10.722916666666666}, // Oslo
    {8914, 149045, 2.3372083333333333}, // Paris RGS
};
// clang-format on

} // namespace ZrProj::systems::rows
