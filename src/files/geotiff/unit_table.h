// The units that GeoTIFF tags name by number. Numbers and sizes are those of the EPSG registry.
#pragma once

#include <array>
#include <cstdint>

namespace ZrProj::GeoTIFF {

/// One unit is numerator / denominator metres, or degrees.
struct UnitRow {
    std::uint16_t code;
    double numerator, denominator;
};

// clang-format off
inline constexpr std::array lengthUnitTable{
    UnitRow{9001, 1, 1},                                 // metre
    UnitRow{9002, 0.3048, 1},                            // foot
    UnitRow{9003, 1200, 3937},                           // US survey foot
    UnitRow{9005, 0.3047972654, 1},                      // Clarke's foot
    UnitRow{9014, 1.8288, 1},                            // fathom
    UnitRow{9030, 1852, 1},                              // nautical mile
    UnitRow{9031, 1.0000135965, 1},                      // German legal metre
    UnitRow{9033, 79200, 3937},                          // US survey chain
    UnitRow{9034, 792, 3937},                            // US survey link
    UnitRow{9035, 6336000, 3937},                        // US survey mile
    UnitRow{9036, 1000, 1},                              // kilometre
    UnitRow{9037, 0.9143917962, 1},                      // Clarke's yard
    UnitRow{9038, 20.1166195164, 1},                     // Clarke's chain
    UnitRow{9039, 0.201166195164, 1},                    // Clarke's link
    UnitRow{9040, 36, 39.370147},                        // British yard (Sears 1922)
    UnitRow{9041, 12, 39.370147},                        // British foot (Sears 1922)
    UnitRow{9042, 792, 39.370147},                       // British chain (Sears 1922)
    UnitRow{9043, 7.92, 39.370147},                      // British link (Sears 1922)
    UnitRow{9050, 0.9143992, 1},                         // British yard (Benoit 1895 A)
    UnitRow{9051, 0.9143992, 3},                         // British foot (Benoit 1895 A)
    UnitRow{9060, 36, 39.370113},                        // British yard (Benoit 1895 B)
    UnitRow{9061, 12, 39.370113},                        // British foot (Benoit 1895 B)
    UnitRow{9070, 0.9144025, 3},                         // British foot (1865)
    UnitRow{9080, 12, 39.370142},                        // Indian foot
    UnitRow{9081, 0.30479841, 1},                        // Indian foot (1937)
    UnitRow{9082, 0.3047996, 1},                         // Indian foot (1962)
    UnitRow{9083, 0.3047995, 1},                         // Indian foot (1975)
    UnitRow{9084, 36, 39.370142},                        // Indian yard
    UnitRow{9093, 1609.344, 1},                          // statute mile
    UnitRow{9094, 6378300, 20926201},                    // Gold Coast foot
    UnitRow{9095, 0.3048007491, 1},                      // British foot (1936)
    UnitRow{9096, 0.9144, 1},                            // yard
    UnitRow{9097, 20.1168, 1},                           // chain
    UnitRow{9098, 0.201168, 1},                          // link
    UnitRow{9300, 0.914398, 3},                          // British foot (Sears 1922 truncated)
    UnitRow{9301, 20.116756, 1},                         // British chain (Sears 1922 truncated)
};

inline constexpr std::array angleUnitTable{
    UnitRow{9101, 180, 3.14159265358979323846},          // radian
    UnitRow{9102, 1, 1},                                 // degree
    UnitRow{9103, 1, 60},                                // minute
    UnitRow{9104, 1, 3600},                              // second
    UnitRow{9105, 9, 10},                                // grad
    UnitRow{9106, 9, 10},                                // gon
    UnitRow{9122, 1, 1},                                 // degree (supplier to define representation)
};
// clang-format on

} // namespace ZrProj::GeoTIFF
