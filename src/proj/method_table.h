// The projection types: one row a type, in ProjType order, with the name and the capability bits that callers are told.
// What a type computes is in formulas/, reached through formulas::formulaOf.
#pragma once

#include <array>

namespace ZrProj {

struct MethodRow {
    char const* name;
    unsigned bits; // capability bits, for callers only
};

// clang-format off
inline constexpr std::array methodTable{
    MethodRow{"Unprojected Lat/Long",                0x00},
    MethodRow{"Mercator",                            0x2F},
    MethodRow{"Albers Equal Area Conic",             0x2F},
    MethodRow{"Miller Cylindrical",                  0x2F},
    MethodRow{"Universal Transverse Mercator (UTM)", 0x1B},
    MethodRow{"Lambert Conformal Conic",             0x2F},
    MethodRow{"Stereographic",                       0x1B},
    MethodRow{"Orthographic",                        0x1B},
    MethodRow{"Mollweide",                           0x3F},
    MethodRow{"State Plane 1927",                    0x3B},
    MethodRow{"State Plane 1983",                    0x3B},
    MethodRow{"Polyconic",                           0x1B},
    MethodRow{"Hotine Oblique Mercator",             0x03},
    MethodRow{"Equidistant Cylindrical",             0x2F},
    MethodRow{"Robinson",                            0x3F},
    MethodRow{"Van Der Grinten",                     0x3F},
    MethodRow{"Cassini",                             0x3B},
    MethodRow{"Transverse Mercator",                 0x1B},
    MethodRow{"Gauss-Kruger / Gauss Conformal",      0x1B},
    MethodRow{"Sinusoidal",                          0x3F},
    MethodRow{"Lambert Azimuthal Equal Area",        0x3B},
    MethodRow{"Bonne",                               0x1B},
    MethodRow{"Robinson-Sterling",                   0x3F},
    MethodRow{"Eckert IV",                           0x3F},
    MethodRow{"Eckert VI",                           0x3F},
    MethodRow{"Oblique Mercator",                    0x03},
    MethodRow{"Equidistant Conic",                   0x2F},
    MethodRow{"Gnomonic",                            0x1B},
    MethodRow{"Azimuthal Equidistant",               0x3F},
};
// clang-format on
static_assert(methodTable.size() == 29);

} // namespace ZrProj
