// The shape of an ellipsoid as texts state it.
#pragma once

#include "systems/definition.h"
#include "systems/text/problem.h"

#include <cstddef>

namespace ZrProj::systems {

/// From both axes; 0 for a sphere.
constexpr double inverseFlattening(double semiMajor, double semiMinor) {
    return semiMajor == semiMinor ? 0 : semiMajor / (semiMajor - semiMinor);
}

/// Ellipsoids flatter than this, or elongated, are beyond what the formulas are made for.
inline constexpr double leastInverseFlattening = 10;

inline void checkEllipsoid(Ellipsoid const& ellipsoid, std::size_t offset, Complaint& complaint) {
    if (!(ellipsoid.semiMajor > 0 && ellipsoid.semiMajor < 1e12))
        complaint.malformed(offset, "the semi-major axis is not positive, or beyond all bounds");
    if (ellipsoid.inverseFlattening != 0 && !(ellipsoid.inverseFlattening > leastInverseFlattening))
        complaint.unsupported(offset, "an ellipsoid of this flattening is not supported");
}

} // namespace ZrProj::systems
