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

/// And none of them marked.
bool areFinite(Controls const& controls) noexcept;

/// The middle of some points' bounding box, and the half of its longer side.
struct Extent {
    GEOREFPOINT centre;
    double halfSize;
};

/// Of at least one point.
Extent extentOf(std::span<GEOREFPOINT const> points) noexcept;

/// What is no more than rounding, of coordinates of this extent and where they lie, against the extent itself: the
/// tolerance for a rank test. A millionth of a pixel in 100,000 is more.
double rankTolerance(Extent const& extent) noexcept;

} // namespace ZrProj
