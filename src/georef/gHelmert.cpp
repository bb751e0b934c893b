// Helmert's similarity by the normal equations, which centred coordinates make diagonal.
//
// x, y, X, Y   source and target coordinates from their centroids
// Q            the sum of x^2 + y^2
#include "georef/gHelmert.h"

#include "frame/errors.h"

namespace ZrProj {
namespace {

/// The mean of the points. It is counted from the first one, so that for coincident points it is exactly their point.
GEOREFPOINT centroid(std::span<GEOREFPOINT const> points) noexcept {
    if (points.empty())
        return {};
    GEOREFPOINT const first = points[0];
    double x = 0, y = 0;
    for (auto const& point : points) {
        x += point.x - first.x;
        y += point.y - first.y;
    }
    auto const count = static_cast<double>(points.size());
    return {first.x + x / count, first.y + y / count};
}

} // namespace

georef::Polynomial fitHelmert(Controls const& controls) noexcept {
    if (controls.size() < 2)
        AssertFailed(".\\gHelmert.cpp", __LINE__);
    auto const from = centroid(controls.source), to = centroid(controls.target);
    double q = 0, along = 0, across = 0;
    for (std::size_t i = 0; i < controls.size(); ++i) {
        double const x = controls.source[i].x - from.x, y = controls.source[i].y - from.y;
        double const X = controls.target[i].x - to.x, Y = controls.target[i].y - to.y;
        q += x * x + y * y;
        along += x * X + y * Y;
        across += x * Y - y * X;
    }
    double const a = along / q, b = across / q;
    return {.terms = 3, .centre = from, .x = {to.x, a, -b}, .y = {to.y, b, a}};
}

} // namespace ZrProj
