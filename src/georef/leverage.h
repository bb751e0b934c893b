// How much of its own least-squares fit each control point makes.
#pragma once

#include <zrproj/georef.h>

#include <span>
#include <vector>

namespace ZrProj {

/// The diagonal of the hat matrix of a least-squares method, by control point, from 0 to 1; all of them together are as
/// many as the terms of a coordinate. A point's leave-one-out residual is its residual over 1 - leverage. The sources
/// must be such that the method fits them.
std::vector<double> leverages(TransformMethod method, std::span<GEOREFPOINT const> sources);

} // namespace ZrProj
