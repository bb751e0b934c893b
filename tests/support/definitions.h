// Definitions compared by what they say of coordinates.
#pragma once

#include "systems/method_table.h"

#include <cmath>
#include <sstream>
#include <string>

namespace ZrProj::test {

/// The projections that are one on a sphere.
inline systems::Method onSphere(systems::Method method) {
    switch (method) {
    case systems::Method::lambertAzimuthal:
        return systems::Method::lambertAzimuthalSphere;
    case systems::Method::equidistantCylindrical:
        return systems::Method::equidistantCylindricalSphere;
    case systems::Method::cylindricalEqualArea:
        return systems::Method::cylindricalEqualAreaSphere;
    case systems::Method::mercatorA:
        return systems::Method::mercatorSphere;
    default:
        return method;
    }
}

/// The method that a form without a name for one of the same numbers says instead.
inline systems::Method saidFor(systems::Method method) {
    switch (method) {
    case systems::Method::transverseMercator3D:
        return systems::Method::transverseMercator;
    case systems::Method::modifiedAzimuthalEquidistant:
        return systems::Method::azimuthalEquidistant;
    default:
        return method;
    }
}

/// What differs but for names, codes, the axes' order and the area of use, "" for nothing. Numbers may differ by what
/// 15 digits leave.
inline std::string contentDifference(systems::Definition const& a, systems::Definition const& b) {
    using systems::Parameter;
    std::ostringstream told;
    told.precision(17);
    auto const compare = [&told](std::string_view what, double x, double y, double tolerance) {
        bool const same = std::isnan(x) ? std::isnan(y) : std::abs(x - y) <= tolerance;
        if (!same)
            told << what << ' ' << x << " is not " << y << "; ";
    };
    bool const sphere = a.datum.ellipsoid.inverseFlattening == 0;
    if (a.method != b.method && a.method != saidFor(b.method) && !(sphere && onSphere(a.method) == onSphere(b.method)))
        told << systems::rowOf(a.method).name << " is not " << systems::rowOf(b.method).name << "; ";
    else
        for (std::size_t i = 0; i < systems::parameterCount; ++i)
            compare("parameter " + std::to_string(i), a.parameters[Parameter(i)], b.parameters[Parameter(i)], 1e-7);
    compare("semi-major axis", a.datum.ellipsoid.semiMajor, b.datum.ellipsoid.semiMajor, 1e-7);
    compare("flattening", a.datum.ellipsoid.inverseFlattening, b.datum.ellipsoid.inverseFlattening, 1e-8);
    compare("meridian", a.datum.meridian.longitude, b.datum.meridian.longitude, 1e-12);
    compare("unit", a.unit.factor, b.unit.factor, 1e-12 * b.unit.factor);
    compare("sense of x", double(a.x), double(b.x), 0);
    compare("sense of y", double(a.y), double(b.y), 0);
    if (a.datum.toWgs84 != b.datum.toWgs84 || a.datum.grids != b.datum.grids)
        told << "the way to WGS 84 differs; ";
    return told.str();
}

} // namespace ZrProj::test
