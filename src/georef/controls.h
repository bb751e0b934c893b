// Control points as the fits take them.
#pragma once

#include <zrproj/georef.h>

#include <cstddef>
#include <span>

namespace ZrProj {

/// The same points in source and in target coordinates.
struct Controls {
    std::span<GEOREFPOINT const> source, target;

    std::size_t size() const { return source.size(); }
};

/// Whether all coordinates are finite and none of the points is marked.
bool areFinite(Controls const& controls) noexcept;

/// The centre of some points' bounding box, and half of its longer side.
struct Extent {
    GEOREFPOINT centre;
    double halfSize;
};

/// The extent of the points; there must be at least one.
Extent extentOf(std::span<GEOREFPOINT const> points) noexcept;

/// The tolerance of a rank test for points of this extent: how large the rounding of their coordinates, which grows
/// with the distance from the origin, may get beside the extent itself. A millionth of a pixel in 100,000 is above it.
double rankTolerance(Extent const& extent) noexcept;

} // namespace ZrProj
