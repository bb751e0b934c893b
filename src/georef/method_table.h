// The methods: one row a method, in TransformMethod order, with its name and the terms of its polynomial.
#pragma once

#include <array>

namespace ZrProj {

struct GeorefMethodRow {
    char const* name;
    int terms; // 0: not a polynomial that is fitted
};

// clang-format off
inline constexpr std::array georefMethodTable{
    GeorefMethodRow{"Helmert",                           0},
    GeorefMethodRow{"Affine Polynomial",                 3},
    GeorefMethodRow{"1st Order Polynomial",              4},
    GeorefMethodRow{"2nd Order Polynomial",              6},
    GeorefMethodRow{"3rd Order Polynomial",              10},
    GeorefMethodRow{"Precalculated Affine Coefficients", 0},
    GeorefMethodRow{"Thin Plate Spline",                 0},
    GeorefMethodRow{"Natural Cubic Spline",              0},
    GeorefMethodRow{"Marcov Spline",                     0},
    GeorefMethodRow{"Exponential Spline",                0},
    GeorefMethodRow{"Rational Quadratic Spline",         0},
    GeorefMethodRow{"Inverse Distance Squared",          0},
};
// clang-format on
static_assert(georefMethodTable.size() == 12);

} // namespace ZrProj
