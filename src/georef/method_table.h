// The methods: one row a method, in TransformMethod order.
#pragma once

#include <zrproj/georef.h>

#include <array>
#include <cstddef>

namespace ZrProj {

struct GeorefMethodRow {
    char const* name;
    char const* key;      // for options
    int terms;            // of its polynomial; 0: not a polynomial that is fitted
    std::size_t needed;   // control points
    std::size_t unknowns; // what a least-squares fit solves for; 0: it meets every control point
};

// clang-format off
inline constexpr std::array georefMethodTable{
    GeorefMethodRow{"Helmert",                           "helmert",          0,  2,  4},
    GeorefMethodRow{"Affine Polynomial",                 "affine",           3,  3,  6},
    GeorefMethodRow{"1st Order Polynomial",              "bilinear",         4,  4,  8},
    GeorefMethodRow{"2nd Order Polynomial",              "second",           6,  6,  12},
    GeorefMethodRow{"3rd Order Polynomial",              "third",            10, 10, 20},
    GeorefMethodRow{"Precalculated Affine Coefficients", "coefficients",     0,  0,  0},
    GeorefMethodRow{"Thin Plate Spline",                 "thin-plate",       0,  3,  0},
    GeorefMethodRow{"Natural Cubic Spline",              "cubic",            0,  3,  0},
    GeorefMethodRow{"Marcov Spline",                     "marcov",           0,  3,  0},
    GeorefMethodRow{"Exponential Spline",                "exponential",      0,  3,  0},
    GeorefMethodRow{"Rational Quadratic Spline",         "rational",         0,  3,  0},
    GeorefMethodRow{"Inverse Distance Squared",          "inverse-distance", 0,  3,  0},
};
// clang-format on
static_assert(georefMethodTable.size() == 12);

constexpr bool isGeorefMethod(TransformMethod method) {
    return method >= TransformMethodHelmert && method < TransformMethodNone;
}

/// The row of a number that is a method.
constexpr GeorefMethodRow const& georefMethodRow(TransformMethod method) {
    return georefMethodTable[static_cast<std::size_t>(method)];
}

/// Whether a method is made by CImageRegistration: these meet every control point.
constexpr bool isWarp(TransformMethod method) {
    return method >= TransformMethodThinPlateSpline && method < TransformMethodNone;
}

} // namespace ZrProj
