#include "cli/map/clip.h"

#include <algorithm>
#include <array>

namespace ZrProj::Command {
namespace {

/// How far a point lies inside of each side of the box.
std::array<double, 4> depths(MapPoint const& p, MapBox const& box) {
    return {p.x - box.left, box.right - p.x, p.y - box.low, box.high - p.y};
}

MapPoint along(MapPoint const& a, MapPoint const& b, double t) {
    return {a.x + t * (b.x - a.x), a.y + t * (b.y - a.y)};
}

struct Range {
    double from = 0, to = 1;
};

/// Where an edge enters the box and where it leaves it, as parts of its length; from > to when it stays outside.
Range rangeInside(MapPoint const& a, MapPoint const& b, MapBox const& box) {
    auto const deepA = depths(a, box), deepB = depths(b, box);
    Range range;
    for (std::size_t i = 0; i < deepA.size(); ++i) {
        if (deepA[i] < 0 && deepB[i] < 0)
            return {1, 0};
        if (deepA[i] < 0)
            range.from = std::max(range.from, deepA[i] / (deepA[i] - deepB[i]));
        else if (deepB[i] < 0)
            range.to = std::min(range.to, deepA[i] / (deepA[i] - deepB[i]));
    }
    return range;
}

std::vector<MapPoint> clipAtSide(std::span<MapPoint const> ring, MapBox const& box, std::size_t side) {
    std::vector<MapPoint> result;
    result.reserve(ring.size());
    for (std::size_t i = 0; i < ring.size(); ++i) {
        MapPoint const &a = ring[i], &b = ring[i + 1 == ring.size() ? 0 : i + 1];
        double const deepA = depths(a, box)[side], deepB = depths(b, box)[side];
        if (deepA >= 0)
            result.push_back(a);
        if ((deepA >= 0) != (deepB >= 0))
            result.push_back(along(a, b, deepA / (deepA - deepB)));
    }
    return result;
}

bool liesInside(std::span<MapPoint const> points, MapBox const& box) {
    return std::all_of(points.begin(), points.end(), [&](MapPoint const& p) { return box.holds(p); });
}

} // namespace

std::vector<std::vector<MapPoint>> clipLine(std::span<MapPoint const> line, MapBox const& box) {
    std::vector<std::vector<MapPoint>> pieces;
    bool open = false; // whether the last piece goes on
    for (std::size_t i = 0; i + 1 < line.size(); ++i) {
        MapPoint const &a = line[i], &b = line[i + 1];
        Range const range = rangeInside(a, b, box);
        if (range.from > range.to) {
            open = false;
            continue;
        }
        if (!open || range.from > 0)
            pieces.push_back({along(a, b, range.from)});
        pieces.back().push_back(range.to < 1 ? along(a, b, range.to) : b);
        open = range.to >= 1;
    }
    return pieces;
}

std::vector<MapPoint> clipRing(std::vector<MapPoint> ring, MapBox const& box) {
    if (liesInside(ring, box))
        return ring;
    for (std::size_t side = 0; side < 4; ++side)
        ring = clipAtSide(ring, box, side);
    return ring;
}

} // namespace ZrProj::Command
