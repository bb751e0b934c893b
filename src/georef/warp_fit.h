// Fitting a warp to control points.
#pragma once

#include "georef/controls.h"
#include "georef/kernels.h"

#include <optional>
#include <vector>

namespace ZrProj {

/// A warp and the arrays that it points into, which stay where they are when this is moved.
struct FittedWarp {
    georef::Warp warp;
    std::vector<double> arrays; // u, v, the weights in x and those in y, one after the other

    double* weightsX() { return arrays.data() + 2 * warp.controls; }
    double* weightsY() { return arrays.data() + 3 * warp.controls; }
};

/// Fits a warp to the controls. Returns nothing for a method that is none, fewer than three controls, controls that are
/// marked, not finite, collinear or coincident (any two of them), and where the equations cannot be solved. Throws when
/// memory runs out.
std::optional<FittedWarp> fitWarp(WarpingMethod method, Controls const& controls);

} // namespace ZrProj
