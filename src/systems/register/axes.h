// Axes: unit, senses, and whether the northing or latitude comes first.
//
// Made by src/systems/make_register.py from the EPSG Geodetic Parameter Dataset v10.076 of 2022-08-31, which
// is IOGP's, as proj-data carries it, under the terms of use at https://epsg.org/terms-of-use.html. Other makers' names
// are of ArcGIS Pro 3.0 of 2022-07-09 and of PROJ 9.1.1.
#pragma once

#include "systems/register/rows.h"

namespace ZrProj::systems::rows {

// clang-format off
inline constexpr AxesRow axes[] = {
    {9001, Sense::negative, Sense::negative, false}, // metre
    {9001, Sense::negative, Sense::negative, true}, // metre
    {9001, Sense::negative, Sense::positive, false}, // metre
    {9001, Sense::negative, Sense::positive, true}, // metre
    {9001, Sense::positive, Sense::positive, false}, // metre
    {9001, Sense::positive, Sense::positive, true}, // metre
    {9002, Sense::positive, Sense::positive, false}, // foot
    {9002, Sense::positive, Sense::positive, true}, // foot
    {9003, Sense::positive, Sense::positive, false}, // US survey foot
    {9005, Sense::positive, Sense::positive, false}, // Clarke's foot
    {9005, Sense::positive, Sense::positive, true}, // Clarke's foot
    {9031, Sense::negative, Sense::negative, false}, // German legal metre
    {9036, Sense::positive, Sense::positive, false}, // kilometre
    {9037, Sense::positive, Sense::positive, false}, // Clarke's yard
    {9039, Sense::positive, Sense::positive, false}, // Clarke's link
    {9040, Sense::positive, Sense::positive, false}, // British yard (Sears 1922)
    {9041, Sense::positive, Sense::positive, false}, // British foot (Sears 1922)
    {9042, Sense::positive, Sense::positive, false}, // British chain (Sears 1922)
    {9062, Sense::positive, Sense::positive, false}, // British chain (Benoit 1895 B)
    {9084, Sense::positive, Sense::positive, false}, // Indian yard
    {9094, Sense::positive, Sense::positive, false}, // Gold Coast foot
    {9098, Sense::positive, Sense::positive, true}, // link
    {9105, Sense::positive, Sense::positive, true}, // grad
    {9108, Sense::positive, Sense::positive, true}, // degree minute second hemisphere
    {9122, Sense::positive, Sense::positive, false}, // degree (supplier to define representation)
    {9122, Sense::positive, Sense::positive, true}, // degree (supplier to define representation)
    {9301, Sense::positive, Sense::positive, false}, // British chain (Sears 1922 truncated)
};
// clang-format on

} // namespace ZrProj::systems::rows
