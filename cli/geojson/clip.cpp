// A hole that is cut at the edge of the map would share that edge with the ring around it. So the two are made one ring
// first, joined by a bridge that is walked in both directions; after the cut the bridge is taken out again.
#include "cli/geojson/clip.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <optional>
#include <utility>

namespace ZrProj::Command {
namespace {

Paths pathsOf(std::vector<Places> pieces) {
    Paths paths;
    for (Places& piece : pieces)
        paths.push_back({std::move(piece), {}});
    return paths;
}

/// Whether a cut left a path as it was, but for turns of the globe.
bool isWhole(Paths const& cut, Path const& given) {
    constexpr double insets = 1e-8; // degrees
    auto const same = [](PROJPOINT const& a, PROJPOINT const& b) {
        return std::fabs(std::remainder(a.x - b.x, 360)) <= insets && std::fabs(a.y - b.y) <= insets;
    };
    return cut.size() == 1 && cut.front().points.size() == given.points.size() &&
           std::equal(given.points.begin(), given.points.end(), cut.front().points.begin(), same);
}

/// How often a ring goes around the globe, eastwards.
long turns(Places const& ring) {
    double sum = 0;
    for (std::size_t i = 0; i < ring.size(); ++i)
        if (double const step = ring[(i + 1) % ring.size()].x - ring[i].x; std::isfinite(step))
            sum += std::remainder(step, 360);
    return std::lround(sum / 360);
}

/// Where two rings can be joined by a bridge that the map shows whole: the places of its ends.
std::optional<std::pair<std::size_t, std::size_t>> findBridge(CProjector& map, Places const& outer,
                                                              Places const& hole) {
    constexpr std::size_t tried = 16; // of either
    std::size_t const step = outer.size() / tried + 1, holeStep = hole.size() / tried + 1;
    for (std::size_t i = 0; i < outer.size(); i += step)
        for (std::size_t k = 0; k < hole.size(); k += holeStep) {
            Path const bridge{{outer[i], hole[k]}, {}};
            if (isWhole(pathsOf(preclipLine(map, bridge.points)), bridge))
                return std::pair(i, k);
        }
    return std::nullopt;
}

/// Joins a hole to the ring around it. False where no bridge is found.
bool joinHole(CProjector& map, Places& outer, Places hole) {
    auto const bridge = findBridge(map, outer, hole);
    if (!bridge)
        return false;
    std::rotate(hole.begin(), hole.begin() + static_cast<std::ptrdiff_t>(bridge->second), hole.end());
    hole.push_back(hole.front());
    if (turns(outer) * turns(hole) > 0) // both around a pole: what is between them goes around none
        std::reverse(hole.begin(), hole.end());
    hole.push_back(outer[bridge->first]);
    outer.insert(outer.begin() + static_cast<std::ptrdiff_t>(bridge->first) + 1, hole.begin(), hole.end());
    return true;
}

struct ByPlace {
    bool operator()(PROJPOINT const& a, PROJPOINT const& b) const { return a.x != b.x ? a.x < b.x : a.y < b.y; }
};

/// The edges of rings; one that is walked twice is none. The cut may have turned a part of a ring around, so directions
/// do not count.
class Edges {
public:
    void add(PROJPOINT const& a, PROJPOINT const& b) {
        if (a.x == b.x && a.y == b.y)
            return;
        if (auto const there = find(a, b); there != m_ends.end()) {
            m_ends.erase(there);
            m_ends.erase(find(b, a));
        } else {
            m_ends.emplace(a, b);
            m_ends.emplace(b, a);
        }
    }

    /// Takes the edges out, ring by ring. An even number of them meets in every point, so each walk comes back.
    Paths rings() {
        Paths result;
        while (!m_ends.empty()) {
            Path& ring = result.emplace_back();
            for (auto edge = m_ends.begin(); edge != m_ends.end();) {
                auto const [from, to] = *edge;
                ring.points.push_back(from);
                m_ends.erase(edge);
                m_ends.erase(find(to, from));
                edge = m_ends.find(to);
            }
        }
        return result;
    }

private:
    using Ends = std::multimap<PROJPOINT, PROJPOINT, ByPlace>; // both ways

    Ends::iterator find(PROJPOINT const& from, PROJPOINT const& to) {
        auto const [begin, end] = m_ends.equal_range(from);
        auto const found =
            std::find_if(begin, end, [&](auto const& edge) { return edge.second.x == to.x && edge.second.y == to.y; });
        return found == end ? m_ends.end() : found;
    }

    Ends m_ends;
};

Paths withoutBridges(std::vector<Places> const& rings) {
    Edges edges;
    for (Places const& ring : rings)
        for (std::size_t i = 0; i < ring.size(); ++i)
            edges.add(ring[i], ring[(i + 1) % ring.size()]);
    return edges.rings();
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

Paths cutLine(CProjector& map, Path const& line) {
    Paths cut = pathsOf(preclipLine(map, line.points));
    if (isWhole(cut, line))
        cut.front().extras = line.extras;
    return cut;
}

Paths cutPolygon(CProjector& map, Paths const& rings) {
    Paths result;
    Places joined; // the outer ring and the holes that the edge cuts
    for (Path const& ring : rings) {
        Paths cut = pathsOf(preclipRing(map, ring.points));
        bool const isOuter = &ring == rings.data();
        if (isWhole(cut, ring))
            cut.front().extras = ring.extras;
        else if (isOuter && !cut.empty())
            joined = ring.points;
        else if (!cut.empty() && !joined.empty() && joinHole(map, joined, ring.points))
            continue;
        if (!isOuter || joined.empty())
            append(result, std::move(cut));
    }
    if (!joined.empty())
        append(result, withoutBridges(preclipRing(map, joined)));
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

} // namespace ZrProj::Command
