#include "cli/geojson/polygon_rings.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <utility>

namespace ZrProj::Command {
namespace {

struct Box {
    PROJPOINT low, high;

    explicit Box(std::vector<PROJPOINT> const& points) : low(points.front()), high(low) {
        for (PROJPOINT const& p : points) {
            low = {std::fmin(low.x, p.x), std::fmin(low.y, p.y)};
            high = {std::fmax(high.x, p.x), std::fmax(high.y, p.y)};
        }
    }
    bool holds(Box const& other) const {
        return low.x <= other.low.x && low.y <= other.low.y && high.x >= other.high.x && high.y >= other.high.y;
    }
};

/// Twice the area, positive where the ring runs counter-clockwise. Relative to a point of the ring, to lose no digits.
double signedArea(std::vector<PROJPOINT> const& ring) {
    PROJPOINT const origin = ring.front();
    double sum = 0;
    for (std::size_t i = 0; i < ring.size(); ++i) {
        PROJPOINT const &a = ring[i], &b = ring[(i + 1) % ring.size()];
        sum += (a.x - origin.x) * (b.y - origin.y) - (b.x - origin.x) * (a.y - origin.y);
    }
    return sum;
}

enum class Side { In, Out, On };

Side sideOf(PROJPOINT const& p, std::vector<PROJPOINT> const& ring) {
    bool in = false;
    for (std::size_t i = 0; i < ring.size(); ++i) {
        PROJPOINT const &a = ring[i], &b = ring[(i + 1) % ring.size()];
        if ((p.x == a.x && p.y == a.y) || (a.y == b.y && p.y == a.y && (p.x > a.x) != (p.x > b.x)))
            return Side::On;
        if ((a.y > p.y) == (b.y > p.y))
            continue;
        double const cross = (b.x - a.x) * (p.y - a.y) - (p.x - a.x) * (b.y - a.y);
        if (cross == 0)
            return Side::On;
        in ^= (cross > 0) == (b.y > a.y);
    }
    return in ? Side::In : Side::Out;
}

/// Whether a ring lies in another, going by the first point of it that is not on the other.
bool liesIn(Path const& inner, Path const& outer) {
    for (PROJPOINT const& point : inner.points)
        if (Side const side = sideOf(point, outer.points); side != Side::On)
            return side == Side::In;
    return false;
}

void reverse(Path& ring) {
    std::reverse(ring.points.begin() + 1, ring.points.end());
    if (!ring.extras.empty())
        std::reverse(ring.extras.begin() + 1, ring.extras.end());
}

} // namespace

std::vector<Paths> groupRings(Paths rings) {
    std::erase_if(rings, [](Path const& ring) { return ring.points.size() < 3; });
    std::vector<double> areas;
    std::vector<Box> boxes;
    for (Path const& ring : rings) {
        areas.push_back(signedArea(ring.points));
        boxes.emplace_back(ring.points);
    }
    std::vector<std::size_t> order(rings.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::stable_sort(order.begin(), order.end(),
                     [&](auto a, auto b) { return std::fabs(areas[a]) > std::fabs(areas[b]); });

    // The smallest ring around each, which comes before it in the order.
    auto const parentOf = [&](std::size_t n) {
        for (std::size_t k = n; k-- > 0;)
            if (boxes[order[k]].holds(boxes[order[n]]) && liesIn(rings[order[n]], rings[order[k]]))
                return order[k];
        return order[n];
    };
    std::vector<std::vector<std::size_t>> groups;
    std::vector<bool> isHole(rings.size());
    std::vector<std::size_t> groupOf(rings.size());
    for (std::size_t n = 0; n < order.size(); ++n) {
        std::size_t const ring = order[n], parent = parentOf(n);
        isHole[ring] = parent != ring && !isHole[parent];
        groupOf[ring] = isHole[ring] ? groupOf[parent] : groups.size();
        if (!isHole[ring])
            groups.emplace_back();
        groups[groupOf[ring]].push_back(ring);
    }

    std::vector<Paths> polygons;
    for (auto const& group : groups) {
        Paths& polygon = polygons.emplace_back();
        for (std::size_t const ring : group) {
            if ((areas[ring] < 0) != isHole[ring])
                reverse(rings[ring]);
            polygon.push_back(std::move(rings[ring]));
        }
    }
    return polygons;
}

} // namespace ZrProj::Command
