// The georeferencing methods as options of the command.
#pragma once

#include <zrproj/zrproj.h>

#include <array>
#include <string_view>

namespace ZrProj::Command {

struct GeorefMethod {
    std::string_view key; // of --method
    TransformMethod method;
    std::size_t needed;  // controls
    std::size_t unknown; // numbers that the fit finds; 0: it meets every control
};

// clang-format off
inline constexpr std::array georefMethods{
    GeorefMethod{"helmert",          TransformMethodHelmert,                 2,  4},
    GeorefMethod{"affine",           TransformMethodAffinePolynomial,        3,  6},
    GeorefMethod{"bilinear",         TransformMethod1stOrderPolynomial,      4,  8},
    GeorefMethod{"second",           TransformMethod2ndOrderPolynomial,      6,  12},
    GeorefMethod{"third",            TransformMethod3rdOrderPolynomial,      10, 20},
    GeorefMethod{"thin-plate",       TransformMethodThinPlateSpline,         3,  0},
    GeorefMethod{"cubic",            TransformMethodNaturalCubicSpline,      3,  0},
    GeorefMethod{"marcov",           TransformMethodMarcovSpline,            3,  0},
    GeorefMethod{"exponential",      TransformMethodExponentialSpline,       3,  0},
    GeorefMethod{"rational",         TransformMethodRationalQuadraticSpline, 3,  0},
    GeorefMethod{"inverse-distance", TransformMethodInverseDistanceSquared,  3,  0},
};
// clang-format on

constexpr bool isExact(GeorefMethod const& method) {
    return method.unknown == 0;
}

/// Throws UsageError for a text that names none.
GeorefMethod const& findGeorefMethod(std::string_view text);

} // namespace ZrProj::Command
