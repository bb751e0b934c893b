#include "systems/parameter_check.h"

#include <algorithm>
#include <cmath>

namespace ZrProj::systems {

namespace {

struct MethodParameter {
    Method method;
    Parameter parameter;

    bool operator==(MethodParameter const&) const = default;
};

// clang-format off
/// Latitudes at which the poles would leave a map without width.
constexpr MethodParameter awayFromPoles[] = {
    {Method::mercatorB,                    Parameter::standardParallel1},
    {Method::equidistantCylindrical,       Parameter::standardParallel1},
    {Method::equidistantCylindricalSphere, Parameter::standardParallel1},
    {Method::cylindricalEqualArea,         Parameter::standardParallel1},
    {Method::cylindricalEqualAreaSphere,   Parameter::standardParallel1},
    {Method::lambertConic1,                Parameter::latitudeOfOrigin},
    {Method::lambertConicWest,             Parameter::latitudeOfOrigin},
    {Method::lambertConic2,                Parameter::standardParallel1},
    {Method::lambertConic2,                Parameter::standardParallel2},
    {Method::lambertConicBelgium,          Parameter::standardParallel1},
    {Method::lambertConicBelgium,          Parameter::standardParallel2},
    {Method::lambertConicMichigan,         Parameter::standardParallel1},
    {Method::lambertConicMichigan,         Parameter::standardParallel2},
    {Method::hotineA,                      Parameter::latitudeOfOrigin},
    {Method::hotineB,                      Parameter::latitudeOfOrigin},
    {Method::hotineTwoPoints,              Parameter::latitudeOfOrigin},
    {Method::laborde,                      Parameter::latitudeOfOrigin},
};
// clang-format on

bool isScale(Parameter p) {
    return p == Parameter::scaleFactor || p == Parameter::ellipsoidScale;
}

/// A cone that touches the equator is a cylinder.
bool touchesEquator(Method method, ParameterValues const& values) {
    bool const isCone = method == Method::lambertConic1 || method == Method::lambertConicWest ||
                        method == Method::lambertConicNearConformal;
    return isCone && std::fabs(values[Parameter::latitudeOfOrigin]) < 1e-9;
}

/// Parallels as far from the equator to the north as to the south belong to no cone.
bool isCylinder(Method method, ParameterValues const& values) {
    switch (method) {
    case Method::lambertConic2:
    case Method::lambertConicBelgium:
    case Method::lambertConicMichigan:
    case Method::albers:
    case Method::equidistantConic:
        return std::fabs(values[Parameter::standardParallel1] + values[Parameter::standardParallel2]) < 1e-9;
    default:
        return false;
    }
}

} // namespace

bool isLatitude(Parameter p) {
    switch (p) {
    case Parameter::latitudeOfOrigin:
    case Parameter::standardParallel1:
    case Parameter::standardParallel2:
    case Parameter::latitudeOfPoint1:
    case Parameter::latitudeOfPoint2:
        return true;
    default:
        return false;
    }
}

std::optional<WrongParameter> wrongParameter(Method method, ParameterValues const& values) {
    for (std::size_t i = 0; i < parameterCount; ++i) {
        auto const p = static_cast<Parameter>(i);
        if (!values.has(p))
            continue;
        double const value = values[p];
        if (isScale(p) && !(value > 0 && std::isfinite(value)))
            return WrongParameter{p, "must be above 0"};
        if (isLatitude(p) && !(std::fabs(value) <= 90))
            return WrongParameter{p, "must be a latitude from -90 to 90 degrees"};
        bool const away = std::ranges::find(awayFromPoles, MethodParameter{method, p}) != std::end(awayFromPoles);
        if (away && std::fabs(value) > 90 - 1e-9)
            return WrongParameter{p, "must not be the latitude of a pole"};
    }
    if (touchesEquator(method, values))
        return WrongParameter{Parameter::latitudeOfOrigin, "must not be the equator's"};
    if (isCylinder(method, values))
        return WrongParameter{Parameter::standardParallel2, "must not be opposite to the first one"};
    return {};
}

} // namespace ZrProj::systems
