// The coefficients of a fit.
#pragma once

#include "cli/georef/controls.h"

#include <string_view>
#include <vector>

namespace ZrProj::Command {

/// A term of a polynomial, and its coefficients for X and for Y.
struct GeorefCoefficient {
    std::string_view term;
    double x = 0, y = 0;
};

/// The terms of a fitted polynomial or similarity, in source coordinates as they are; empty for an exact method, which
/// has none. The controls must be such that the method fits them.
std::vector<GeorefCoefficient> georefCoefficients(GeorefMethod const& method,
                                                  std::vector<ControlPoint> const& controls);

} // namespace ZrProj::Command
