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
    {0, 32021, 1033, Maker::esri}, // Centimeter
    {0, 32114, 9097, Maker::esri}, // Chain
    {0, 32119, 9052, Maker::esri}, // Chain_Benoit_1895_A
    {0, 32136, 9062, Maker::esri}, // Chain_Benoit_1895_B
    {0, 32153, 9038, Maker::esri}, // Chain_Clarke
    {0, 32164, 9042, Maker::esri}, // Chain_Sears
    {0, 32174, 9301, Maker::esri}, // Chain_Sears_1922_Truncated
    {0, 32195, 9033, Maker::esri}, // Chain_US
    {0, 50854, 9014, Maker::esri}, // Fathom
    {0, 52607, 9002, Maker::esri}, // Foot
    {48, 863, 9070, Maker::esri}, // Foot_1865
    {48, 32124, 9051, Maker::esri}, // Foot_Benoit_1895_A
    {48, 32141, 9061, Maker::esri}, // Foot_Benoit_1895_B
    {48, 25562, 9095, Maker::esri}, // Foot_British_1936
    {48, 32158, 9005, Maker::esri}, // Foot_Clarke
    {48, 64543, 9094, Maker::esri}, // Foot_Gold_Coast
    {48, 229627, 9080, Maker::esri}, // Foot_Indian
    {48, 229634, 9081, Maker::esri}, // Foot_Indian_1937
    {48, 229644, 9082, Maker::esri}, // Foot_Indian_1962
    {48, 229654, 9083, Maker::esri}, // Foot_Indian_1975
    {48, 32169, 9041, Maker::esri}, // Foot_Sears
    {48, 32179, 9300, Maker::esri}, // Foot_Sears_1922_Truncated
    {48, 14396, 9003, Maker::esri}, // Foot_US
    {0, 82126, 9036, Maker::esri}, // Kilometer
    {0, 85944, 9098, Maker::esri}, // Link
    {0, 85948, 9053, Maker::esri}, // Link_Benoit_1895_A
    {0, 85964, 9063, Maker::esri}, // Link_Benoit_1895_B
    {0, 85980, 9039, Maker::esri}, // Link_Clarke
    {0, 85990, 9043, Maker::esri}, // Link_Sears
    {0, 85999, 9302, Maker::esri}, // Link_Sears_1922_Truncated
    {0, 86019, 9034, Maker::esri}, // Link_US
    {0, 93627, 9001, Maker::esri}, // Meter
    {0, 93631, 9031, Maker::esri}, // Meter_German
    {0, 94843, 9035, Maker::esri}, // Mile_US
    {0, 94923, 1025, Maker::esri}, // Millimeter
    {0, 133262, 9030, Maker::esri}, // Nautical_Mile
    {0, 190324, 9093, Maker::esri}, // Statute_Mile
    {0, 229577, 9096, Maker::esri}, // Yard
    {0, 229581, 9050, Maker::esri}, // Yard_Benoit_1895_A
    {0, 229597, 9060, Maker::esri}, // Yard_Benoit_1895_B
    {0, 229613, 9037, Maker::esri}, // Yard_Clarke
    {0, 229623, 9084, Maker::esri}, // Yard_Indian
    {0, 229630, 9085, Maker::esri}, // Yard_Indian_1937
    {0, 229640, 9086, Maker::esri}, // Yard_Indian_1962
    {0, 229650, 9087, Maker::esri}, // Yard_Indian_1975
    {0, 229660, 9040, Maker::esri}, // Yard_Sears
    {0, 229669, 9099, Maker::esri}, // Yard_Sears_1922_Truncated
};
// clang-format on

} // namespace ZrProj::systems::rows
