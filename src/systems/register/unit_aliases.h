// Other names of units, by name.
//
// Made by src/systems/make_register.py from the EPSG Geodetic Parameter Dataset v10.076 of 2022-08-31, which
// is IOGP's, as proj-data carries it, under the terms of use at https://epsg.org/terms-of-use.html. Other makers' names
// are of ArcGIS Pro 3.0 of 2022-07-09 and of PROJ 9.1.1.
#pragma once

#include "systems/register/rows.h"

namespace ZrProj::systems::rows {

// clang-format off
inline constexpr AliasRow unitAliases[] = {
    {0, 29852, 1033, Maker::esri}, // Centimeter
    {0, 29923, 9097, Maker::esri}, // Chain
    {0, 29928, 9052, Maker::esri}, // Chain_Benoit_1895_A
    {0, 29945, 9062, Maker::esri}, // Chain_Benoit_1895_B
    {0, 29962, 9038, Maker::esri}, // Chain_Clarke
    {0, 29973, 9042, Maker::esri}, // Chain_Sears
    {0, 29983, 9301, Maker::esri}, // Chain_Sears_1922_Truncated
    {0, 30004, 9033, Maker::esri}, // Chain_US
    {0, 47934, 9014, Maker::esri}, // Fathom
    {0, 49681, 9002, Maker::esri}, // Foot
    {48, 844, 9070, Maker::esri}, // Foot_1865
    {48, 29933, 9051, Maker::esri}, // Foot_Benoit_1895_A
    {48, 29950, 9061, Maker::esri}, // Foot_Benoit_1895_B
    {48, 23898, 9095, Maker::esri}, // Foot_British_1936
    {48, 29967, 9005, Maker::esri}, // Foot_Clarke
    {48, 61209, 9094, Maker::esri}, // Foot_Gold_Coast
    {48, 220509, 9080, Maker::esri}, // Foot_Indian
    {48, 220516, 9081, Maker::esri}, // Foot_Indian_1937
    {48, 220526, 9082, Maker::esri}, // Foot_Indian_1962
    {48, 220536, 9083, Maker::esri}, // Foot_Indian_1975
    {48, 29978, 9041, Maker::esri}, // Foot_Sears
    {48, 29988, 9300, Maker::esri}, // Foot_Sears_1922_Truncated
    {48, 13490, 9003, Maker::esri}, // Foot_US
    {0, 77797, 9036, Maker::esri}, // Kilometer
    {0, 81369, 9098, Maker::esri}, // Link
    {0, 81373, 9053, Maker::esri}, // Link_Benoit_1895_A
    {0, 81389, 9063, Maker::esri}, // Link_Benoit_1895_B
    {0, 81405, 9039, Maker::esri}, // Link_Clarke
    {0, 81415, 9043, Maker::esri}, // Link_Sears
    {0, 81424, 9302, Maker::esri}, // Link_Sears_1922_Truncated
    {0, 81444, 9034, Maker::esri}, // Link_US
    {0, 88828, 9001, Maker::esri}, // Meter
    {0, 88832, 9031, Maker::esri}, // Meter_German
    {0, 89961, 9035, Maker::esri}, // Mile_US
    {0, 90041, 1025, Maker::esri}, // Millimeter
    {0, 127734, 9030, Maker::esri}, // Nautical_Mile
    {0, 182646, 9093, Maker::esri}, // Statute_Mile
    {0, 220459, 9096, Maker::esri}, // Yard
    {0, 220463, 9050, Maker::esri}, // Yard_Benoit_1895_A
    {0, 220479, 9060, Maker::esri}, // Yard_Benoit_1895_B
    {0, 220495, 9037, Maker::esri}, // Yard_Clarke
    {0, 220505, 9084, Maker::esri}, // Yard_Indian
    {0, 220512, 9085, Maker::esri}, // Yard_Indian_1937
    {0, 220522, 9086, Maker::esri}, // Yard_Indian_1962
    {0, 220532, 9087, Maker::esri}, // Yard_Indian_1975
    {0, 220542, 9040, Maker::esri}, // Yard_Sears
    {0, 220551, 9099, Maker::esri}, // Yard_Sears_1922_Truncated
};
// clang-format on

} // namespace ZrProj::systems::rows
