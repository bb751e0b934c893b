// Fitting a warp to control points.
#pragma once

#include "georef/controls.h"
#include "georef/kernels/kernel_set.h"

#include <optional>
#include <vector>

namespace ZrProj {

/// A warp and the arrays that it looks into. The arrays stay where they are when this moves.
struct FittedWarp {
    formulas::Warp warp;
    std::vector<double> arrays; // u, v and the weights, one after the other

    double* weightsX() { return arrays.data() + 2 * warp.controls; }
    double* weightsY() { return arrays.data() + 3 * warp.controls; }
};

/// Nothing for a method that is none, fewer than three controls, controls that are marked, not finite, on one line,
/// or two in one place, and where the equations cannot be solved. May run out of memory.
std::optional<FittedWarp> fitWarp(WarpingMethod method, Controls const& controls);

} // namespace ZrProj
