#include "cli/map/curve.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace ZrProj::Command {
namespace {

constexpr double longestStep = 5; // degrees; a chord that long is looked at between its ends, whatever they are
constexpr int deepest = 20;       // halvings of a step

struct Knot {
    PROJPOINT place;
    MapPoint point;
};

bool isNowhere(MapPoint const& p) {
    return std::isnan(p.x);
}

class Chords {
public:
    Chords(Placing const& placing, CurveRules const& rules) : m_placing(placing), m_rules(rules) {}

    /// Adds the edge but for its end.
    void add(Knot const& from, Knot const& to);
    std::vector<MapPoint> points;

private:
    void divide(Knot const& from, Knot const& to, int depth);
    std::optional<Knot> between(Knot const& from, Knot const& to, double t) const;
    bool isAside(std::array<MapPoint, 5> const& curve) const;

    Placing const& m_placing;
    CurveRules const& m_rules;
};

std::optional<Knot> Chords::between(Knot const& from, Knot const& to, double t) const {
    PROJPOINT const place{from.place.x + t * (to.place.x - from.place.x),
                          from.place.y + t * (to.place.y - from.place.y)};
    auto const point = m_placing(place);
    return point ? std::optional(Knot{place, *point}) : std::nullopt;
}

/// Whether a curve lies to one side of what is visible.
bool Chords::isAside(std::array<MapPoint, 5> const& curve) const {
    auto const all = [&](auto beyond) { return std::all_of(curve.begin(), curve.end(), beyond); };
    MapBox const& box = m_rules.visible;
    return all([&](MapPoint const& p) { return p.x < box.left; }) ||
           all([&](MapPoint const& p) { return p.x > box.right; }) ||
           all([&](MapPoint const& p) { return p.y < box.low; }) ||
           all([&](MapPoint const& p) { return p.y > box.high; });
}

void Chords::divide(Knot const& from, Knot const& to, int depth) {
    points.push_back(from.point);
    if (depth == deepest || std::hypot(to.point.x - from.point.x, to.point.y - from.point.y) < m_rules.tolerance)
        return;
    auto const a = between(from, to, 0.25), b = between(from, to, 0.5), c = between(from, to, 0.75);
    if (!a || !b || !c) // beside a horizon, by the width of the straight edge
        return;
    auto const off = [&](Knot const& knot) { return distanceFrom(from.point, to.point, knot.point); };
    if (std::max({off(*a), off(*b), off(*c)}) < m_rules.tolerance ||
        isAside({from.point, a->point, b->point, c->point, to.point}))
        return;
    points.pop_back();
    divide(from, *b, depth + 1);
    divide(*b, to, depth + 1);
}

void Chords::add(Knot const& from, Knot const& to) {
    double const extent = std::max(std::fabs(to.place.x - from.place.x), std::fabs(to.place.y - from.place.y));
    int const steps = std::max(1, static_cast<int>(std::ceil(extent / longestStep)));
    Knot last = from;
    for (int i = 1; i < steps; ++i)
        if (auto const next = between(from, to, static_cast<double>(i) / steps)) {
            divide(last, *next, 0);
            last = *next;
        }
    divide(last, to, 0);
}

/// The place that the short way leads to.
PROJPOINT beside(PROJPOINT const& from, PROJPOINT const& to) {
    double const step = to.x - from.x;
    return {std::fabs(step) > 180 ? to.x - std::copysign(360, step) : to.x, to.y};
}

} // namespace

double distanceFrom(MapPoint const& a, MapPoint const& b, MapPoint const& p) {
    double const dx = b.x - a.x, dy = b.y - a.y, squared = dx * dx + dy * dy;
    double const t = squared > 0 ? std::clamp(((p.x - a.x) * dx + (p.y - a.y) * dy) / squared, 0.0, 1.0) : 0;
    return std::hypot(p.x - a.x - t * dx, p.y - a.y - t * dy);
}

std::vector<MapPoint> chordsOf(std::span<PROJPOINT const> places, std::span<MapPoint const> ends, bool closed,
                               Placing const& placing, CurveRules const& rules) {
    std::vector<Knot> knots;
    for (std::size_t i = 0; i < places.size(); ++i)
        if (!isNowhere(ends[i]))
            knots.push_back({places[i], ends[i]});
    Chords chords(placing, rules);
    for (std::size_t i = 0; i + 1 < knots.size(); ++i)
        chords.add(knots[i], {beside(knots[i].place, knots[i + 1].place), knots[i + 1].point});
    if (closed && knots.size() > 1)
        chords.add(knots.back(), {beside(knots.back().place, knots.front().place), knots.front().point});
    else if (!knots.empty())
        chords.points.push_back(knots.back().point);
    return std::move(chords.points);
}

} // namespace ZrProj::Command
