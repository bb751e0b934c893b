#include "georef/controls.h"

#include <algorithm>
#include <cfloat>
#include <cmath>

namespace ZrProj {
namespace {

bool areFinite(std::span<GEOREFPOINT const> points) noexcept {
    return std::ranges::all_of(points, [](auto& p) { return std::fabs(p.x) < DBL_MAX && std::fabs(p.y) < DBL_MAX; });
}

} // namespace

bool areFinite(Controls const& controls) noexcept {
    return areFinite(controls.source) && areFinite(controls.target);
}

Extent extentOf(std::span<GEOREFPOINT const> points) noexcept {
    GEOREFPOINT least = points[0], most = points[0];
    for (auto const& point : points) {
        least = {std::min(least.x, point.x), std::min(least.y, point.y)};
        most = {std::max(most.x, point.x), std::max(most.y, point.y)};
    }
    return {{least.x / 2 + most.x / 2, least.y / 2 + most.y / 2},
            std::max(most.x / 2 - least.x / 2, most.y / 2 - least.y / 2)};
}

double rankTolerance(Extent const& extent) noexcept {
    double const farthest = std::max(std::fabs(extent.centre.x), std::fabs(extent.centre.y));
    return 1e-12 * (1 + farthest / extent.halfSize);
}

} // namespace ZrProj
