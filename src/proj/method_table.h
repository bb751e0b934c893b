// The projection types: one row a type, in ProjType order, with the name and the capability bits that callers are told.
// The formula that computes a type is reached through formulas::formulaOf.
#pragma once

#include "formulas/method.h"

#include <zrproj/projection.h>

#include <array>

namespace ZrProj {

struct MethodRow {
    char const* name;
    unsigned bits; // capability bits, for callers only
    formulas::Method method =
        formulas::Method::none; // what computes it; none for a State Plane type, whose zones have types of their own
};

// clang-format off
inline constexpr std::array methodTable = [] {
    using formulas::Method;
    return std::array{
        MethodRow{"Unprojected Lat/Long",                0x00, Method::none},
        MethodRow{"Mercator",                            0x2F, Method::mercator},
        MethodRow{"Albers Equal Area Conic",             0x2F, Method::albers},
        MethodRow{"Miller Cylindrical",                  0x2F, Method::miller},
        MethodRow{"Universal Transverse Mercator (UTM)", 0x1B, Method::transverseMercator},
        MethodRow{"Lambert Conformal Conic",             0x2F, Method::lambertConformalConic},
        MethodRow{"Stereographic",                       0x1B, Method::stereographic},
        MethodRow{"Orthographic",                        0x1B, Method::orthographic},
        MethodRow{"Mollweide",                           0x3F, Method::mollweide},
        MethodRow{"State Plane 1927",                    0x3B, Method::none},
        MethodRow{"State Plane 1983",                    0x3B, Method::none},
        MethodRow{"Polyconic",                           0x1B, Method::polyconic},
        MethodRow{"Hotine Oblique Mercator",             0x03, Method::hotine},
        MethodRow{"Equidistant Cylindrical",             0x2F, Method::equidistantCylindrical},
        MethodRow{"Robinson",                            0x3F, Method::robinson},
        MethodRow{"Van Der Grinten",                     0x3F, Method::vanDerGrinten},
        MethodRow{"Cassini",                             0x3B, Method::cassini},
        MethodRow{"Transverse Mercator",                 0x1B, Method::transverseMercator},
        MethodRow{"Gauss-Kruger / Gauss Conformal",      0x1B, Method::transverseMercator},
        MethodRow{"Sinusoidal",                          0x3F, Method::sinusoidal},
        MethodRow{"Lambert Azimuthal Equal Area",        0x3B, Method::lambertAzimuthal},
        MethodRow{"Bonne",                               0x1B, Method::bonne},
        MethodRow{"Robinson-Sterling",                   0x3F, Method::robinsonSterling},
        MethodRow{"Eckert IV",                           0x3F, Method::eckertIV},
        MethodRow{"Eckert VI",                           0x3F, Method::eckertVI},
        MethodRow{"Oblique Mercator",                    0x03, Method::obliqueMercator},
        MethodRow{"Equidistant Conic",                   0x2F, Method::equidistantConic},
        MethodRow{"Gnomonic",                            0x1B, Method::gnomonic},
        MethodRow{"Azimuthal Equidistant",               0x3F, Method::azimuthalEquidistant},
    };
}();
// clang-format on
static_assert(methodTable.size() == 29);

/// What computes a type; none for an undefined one.
constexpr formulas::Method methodOf(ProjType type) {
    return type >= 0 && type < static_cast<int>(methodTable.size()) ? methodTable[static_cast<std::size_t>(type)].method
                                                                    : formulas::Method::none;
}

} // namespace ZrProj
