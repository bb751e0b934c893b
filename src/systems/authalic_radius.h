// The sphere that has the surface of an ellipsoid.
#pragma once

#include <cmath>

namespace ZrProj::systems {

/// Its radius over the ellipsoid's semi-major axis: Snyder's (3-13) with (3-12).
inline double authalicRadius(double flattening) {
    double const e = std::sqrt(flattening * (2 - flattening));
    return flattening == 0 ? 1 : std::sqrt((1 + (1 - e * e) * std::atanh(e) / e) / 2);
}

} // namespace ZrProj::systems
