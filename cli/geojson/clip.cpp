// A hole that is cut at the edge of the map would share that edge with the ring around it. So the two are made one ring
// first, joined by a bridge, a segment that is walked both ways; after the cut the bridge is taken out again.
#include "cli/geojson/clip.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>
#include <optional>
#include <set>
#include <utility>

namespace ZrProj::Command {
namespace {

constexpr double insets = 1e-8, rounding = 1e-12; // degrees: by cuts, by whole turns

/// Whether a cut left a line or ring as it was, but for whole turns of longitude.
bool isWhole(std::vector<Places> const& cut, Places const& given, double within = insets) {
    auto const agree = [&](PROJPOINT const& a, PROJPOINT const& b) {
        return std::fabs(std::remainder(a.x - b.x, 360)) <= within && std::fabs(a.y - b.y) <= within;
    };
    return cut.size() == 1 && std::ranges::equal(cut.front(), given, agree);
}

/// The pieces that a cut left of a path. One that is whole keeps its extras.
Paths pathsOf(std::vector<Places> cut, Path const& given) {
    bool const whole = isWhole(cut, given.points);
    Paths paths;
    for (Places& piece : cut)
        paths.push_back({std::move(piece), whole ? given.extras : Extras()});
    return paths;
}

/// The winding number of a ring: how often it goes around the globe, eastwards.
long windingNumber(Places const& ring) {
    double sum = 0;
    for (std::size_t i = 0; i < ring.size(); ++i)
        if (double const step = ring[(i + 1) % ring.size()].x - ring[i].x; std::isfinite(step))
            sum += std::remainder(step, 360);
    return std::lround(sum / 360);
}

/// A way from a point of a ring to a hole, around it and back.
struct Detour {
    std::size_t from; // which point
    Places hole;      // its first point is also its last
};

/// Finds a detour along a bridge that the map shows whole. Neither end is on the map's edge: there the cut moves it, a
/// little inside, and not to the last digit the same on both ways.
std::optional<Detour> findDetour(System const& map, Places const& ring, Places hole) {
    constexpr std::size_t tried = 16; // of either
    std::size_t const step = ring.size() / tried + 1, holeStep = hole.size() / tried + 1;
    for (std::size_t i = 0; i < ring.size(); i += step)
        for (std::size_t k = 0; k < hole.size(); k += holeStep) {
            Places const bridge{ring[i], hole[k]};
            if (!isWhole(preclipLine(map, bridge), bridge, rounding))
                continue;
            std::rotate(hole.begin(), hole.begin() + static_cast<std::ptrdiff_t>(k), hole.end());
            hole.push_back(hole.front());
            return Detour{i, std::move(hole)};
        }
    return std::nullopt;
}

/// Joins a ring and its detours to one ring. Where both go around a pole, what is between them goes around none.
Places join(Places const& ring, std::vector<Detour> detours) {
    std::ranges::stable_sort(detours, {}, &Detour::from);
    Places joined;
    long around = windingNumber(ring);
    auto detour = detours.begin();
    for (std::size_t i = 0; i < ring.size(); ++i) {
        joined.push_back(ring[i]);
        for (; detour != detours.end() && detour->from == i; ++detour) {
            long const more = windingNumber(detour->hole);
            bool const isAgainst = around * more > 0;
            if (isAgainst)
                std::ranges::reverse(detour->hole);
            around += isAgainst ? -more : more;
            joined.insert(joined.end(), detour->hole.begin(), detour->hole.end());
            joined.push_back(ring[i]);
        }
    }
    return joined;
}

/// The segments of rings; one that is walked twice is none. The cut may have turned a part of a ring around, so their
/// orientation does not count.
class Segments {
public:
    void add(PROJPOINT const& a, PROJPOINT const& b) {
        if (a.x == b.x && a.y == b.y)
            return;
        toggle({a.x, a.y, b.x, b.y});
        toggle({b.x, b.y, a.x, a.y});
    }

    /// Takes the segments out, ring by ring. An even number of them meets in every point, so each walk comes back.
    Paths rings() {
        Paths result;
        while (!m_segments.empty()) {
            Path& ring = result.emplace_back();
            for (auto segment = m_segments.begin(); segment != m_segments.end();) {
                auto const [x, y, nextX, nextY] = *segment;
                ring.points.push_back({x, y});
                toggle({x, y, nextX, nextY});
                toggle({nextX, nextY, x, y});
                segment = findFrom({nextX, nextY});
            }
        }
        return result;
    }

private:
    using Segment = std::array<double, 4>; // longitude and latitude of both ends

    void toggle(Segment const& segment) {
        if (auto const [there, isNew] = m_segments.insert(segment); !isNew)
            m_segments.erase(there);
    }

    std::set<Segment>::iterator findFrom(PROJPOINT const& point) {
        auto const found = m_segments.lower_bound({point.x, point.y, -HUGE_VAL, -HUGE_VAL});
        bool const isThere = found != m_segments.end() && (*found)[0] == point.x && (*found)[1] == point.y;
        return isThere ? found : m_segments.end();
    }

    std::set<Segment> m_segments; // each of them both ways
};

Paths withoutBridges(std::vector<Places> const& rings) {
    Segments segments;
    for (Places const& ring : rings)
        for (std::size_t i = 0; i < ring.size(); ++i)
            segments.add(ring[i], ring[(i + 1) % ring.size()]);
    return segments.rings();
}

void append(Paths& paths, Paths more) {
    std::move(more.begin(), more.end(), std::back_inserter(paths));
}

/// The part of coordinates from one point to another.
Path pathOf(Coordinates const& coordinates, std::size_t begin, std::size_t count) {
    auto const from = static_cast<std::ptrdiff_t>(begin), to = static_cast<std::ptrdiff_t>(begin + count);
    Path path{{coordinates.points.begin() + from, coordinates.points.begin() + to}, {}};
    if (!coordinates.extras.empty())
        path.extras.assign(coordinates.extras.begin() + from, coordinates.extras.begin() + to);
    return path;
}

void dropRepeatedEnd(Path& ring) {
    PROJPOINT const first = ring.points.front(), last = ring.points.back();
    if (ring.points.size() == 1 || first.x != last.x || first.y != last.y)
        return;
    ring.points.pop_back();
    if (!ring.extras.empty())
        ring.extras.pop_back();
}

void addPath(Coordinates& coordinates, Path const& path, bool isRing) {
    coordinates.open();
    for (std::size_t i = 0; i < path.points.size() + (isRing ? 1 : 0); ++i) {
        std::size_t const at = i % path.points.size();
        coordinates.add(path.points[at], path.extras.empty() ? std::string() : path.extras[at]);
    }
    coordinates.close();
}

void addPolygon(Coordinates& coordinates, Paths const& rings) {
    coordinates.open();
    for (Path const& ring : rings)
        addPath(coordinates, ring, true);
    coordinates.close();
}

} // namespace

Paths linesOf(Coordinates const& coordinates) {
    Paths lines;
    std::size_t at = 0;
    for (auto const& step : coordinates.steps)
        if (step.kind == Coordinates::Step::Positions) {
            lines.push_back(pathOf(coordinates, at, step.count));
            at += step.count;
        }
    return lines;
}

std::vector<Paths> polygonsOf(Coordinates const& coordinates, int depth) {
    std::vector<Paths> polygons;
    std::size_t at = 0;
    int level = 0;
    for (auto const& step : coordinates.steps) {
        if (step.kind == Coordinates::Step::Positions) {
            Path& ring = polygons.back().emplace_back(pathOf(coordinates, at, step.count));
            dropRepeatedEnd(ring);
            at += step.count;
            continue;
        }
        level += step.kind == Coordinates::Step::Open ? 1 : -1;
        if (step.kind == Coordinates::Step::Open && level == depth - 1)
            polygons.emplace_back();
    }
    return polygons;
}

Paths cutLine(System const& map, Path const& line) {
    return pathsOf(preclipLine(map, line.points), line);
}

Paths cutPolygon(System const& map, Paths const& rings) {
    Paths result;
    Places const* outer = nullptr; // where the edge cuts it
    std::vector<Detour> detours;   // to the holes that it cuts
    for (Path const& ring : rings) {
        auto cut = preclipRing(map, ring.points);
        bool const isCut = !cut.empty() && !isWhole(cut, ring.points);
        if (isCut && &ring == rings.data())
            outer = &ring.points;
        else if (auto detour = isCut && outer ? findDetour(map, *outer, ring.points) : std::nullopt)
            detours.push_back(*std::move(detour));
        else
            append(result, pathsOf(std::move(cut), ring));
    }
    if (outer)
        append(result, withoutBridges(preclipRing(map, join(*outer, std::move(detours)))));
    return result;
}

Coordinates lineAsCoordinates(Paths const& lines) {
    Coordinates result;
    for (Path const& line : lines)
        addPath(result, line, false);
    return result;
}

Coordinates linesAsCoordinates(Paths const& lines) {
    Coordinates result;
    result.open();
    for (Path const& line : lines)
        addPath(result, line, false);
    result.close();
    return result;
}

Coordinates polygonAsCoordinates(std::vector<Paths> const& polygons) {
    Coordinates result;
    for (Paths const& polygon : polygons)
        addPolygon(result, polygon);
    return result;
}

Coordinates polygonsAsCoordinates(std::vector<Paths> const& polygons) {
    Coordinates result;
    result.open();
    for (Paths const& polygon : polygons)
        addPolygon(result, polygon);
    result.close();
    return result;
}

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
