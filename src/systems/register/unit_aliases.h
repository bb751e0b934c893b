// Other names of units, by name.
//
// Made by src/systems/make_register.py from the EPSG Geodetic Parameter Dataset v10.076 of 2022-08-31, which is IOGP's, as
// proj-data carries it, under the terms of use at https://epsg.org/terms-of-use.html. Other makers' names are of ArcGIS Pro 3.0
// of 2022-07-09 and of PROJ 9.1.1.
#pragma once

#include "systems/register/rows.h"

namespace ZrProj::systems::rows {

// clang-format off
inline constexpr AliasRow unitAliases[] = {
    {0, 47154, 1033, Maker::esri}, // Centimeter
    {0, 47268, 9097, Maker::esri}, // Chain
    {0, 47274, 9052, Maker::esri}, // Chain_Benoit_1895_A
    {0, 47294, 9062, Maker::esri}, // Chain_Benoit_1895_B
    {0, 47314, 9038, Maker::esri}, // Chain_Clarke
    {0, 47327, 9042, Maker::esri}, // Chain_Sears
    {0, 47339, 9301, Maker::esri}, // Chain_Sears_1922_Truncated
    {0, 47366, 9033, Maker::esri}, // Chain_US
    {0, 75552, 9014, Maker::esri}, // Fathom
    {0, 78636, 9002, Maker::esri}, // Foot
    {48, 1059, 9070, Maker::esri}, // Foot_1865
    {48, 47280, 9051, Maker::esri}, // Foot_Benoit_1895_A
    {48, 47300, 9061, Maker::esri}, // Foot_Benoit_1895_B
    {48, 37908, 9095, Maker::esri}, // Foot_British_1936
    {48, 47320, 9005, Maker::esri}, // Foot_Clarke
    {48, 95278, 9094, Maker::esri}, // Foot_Gold_Coast
    {48, 373431, 9080, Maker::esri}, // Foot_Indian
    {48, 373443, 9081, Maker::esri}, // Foot_Indian_1937
    {48, 373460, 9082, Maker::esri}, // Foot_Indian_1962
    {48, 373477, 9083, Maker::esri}, // Foot_Indian_1975
    {48, 47333, 9041, Maker::esri}, // Foot_Sears
    {48, 47345, 9300, Maker::esri}, // Foot_Sears_1922_Truncated
    {48, 21661, 9003, Maker::esri}, // Foot_US
    {0, 122036, 9036, Maker::esri}, // Kilometer
    {0, 127725, 9098, Maker::esri}, // Link
    {0, 127730, 9053, Maker::esri}, // Link_Benoit_1895_A
    {0, 127749, 9063, Maker::esri}, // Link_Benoit_1895_B
    {0, 127768, 9039, Maker::esri}, // Link_Clarke
    {0, 127780, 9043, Maker::esri}, // Link_Sears
    {0, 127791, 9302, Maker::esri}, // Link_Sears_1922_Truncated
    {0, 127817, 9034, Maker::esri}, // Link_US
    {0, 138951, 9001, Maker::esri}, // Meter
    {0, 138957, 9031, Maker::esri}, // Meter_German
    {0, 140780, 9035, Maker::esri}, // Mile_US
    {0, 140895, 1025, Maker::esri}, // Millimeter
    {0, 219195, 9030, Maker::esri}, // Nautical_Mile
    {0, 307082, 9093, Maker::esri}, // Statute_Mile
    {0, 373371, 9096, Maker::esri}, // Yard
    {0, 373376, 9050, Maker::esri}, // Yard_Benoit_1895_A
    {0, 373395, 9060, Maker::esri}, // Yard_Benoit_1895_B
    {0, 373414, 9037, Maker::esri}, // Yard_Clarke
    {0, 373426, 9084, Maker::esri}, // Yard_Indian
    {0, 373438, 9085, Maker::esri}, // Yard_Indian_1937
    {0, 373455, 9086, Maker::esri}, // Yard_Indian_1962
    {0, 373472, 9087, Maker::esri}, // Yard_Indian_1975
    {0, 373489, 9040, Maker::esri}, // Yard_Sears
    {0, 373500, 9099, Maker::esri}, // Yard_Sears_1922_Truncated
};
// clang-format on

} // namespace ZrProj::systems::rows
