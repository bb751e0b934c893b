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

    /// Adds the segment but for its end.
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
    if (!a || !b || !c) // beside a horizon, by the width of what a chord cuts off
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

/// Where a straight line enters the box and where it leaves it, as parts of its length; from > to when it stays
/// outside.
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

namespace {

constexpr double opposite = -0.9; // the cosine of the angle between two directions

struct Step {
    MapPoint from, to;

    MapPoint middle() const { return {(from.x + to.x) / 2, (from.y + to.y) / 2}; }
};

/// Whether a step passes the middle of another one, the other way round.
bool runsBack(Step const& step, Step const& other, double width) {
    MapPoint const a{step.to.x - step.from.x, step.to.y - step.from.y};
    MapPoint const b{other.to.x - other.from.x, other.to.y - other.from.y};
    return a.x * b.x + a.y * b.y < opposite * std::hypot(a.x, a.y) * std::hypot(b.x, b.y) &&
           distanceFrom(other.from, other.to, step.middle()) <= width;
}

/// Steps sorted into upright strips of the picture, so that of many only the near ones are looked at.
class Strips {
public:
    /// width: how far from a point its near steps may be.
    Strips(std::span<Step const> steps, double width) {
        auto const [first, last] = std::ranges::minmax(steps, {}, leftOf);
        m_left = leftOf(first) - width;
        m_strips.resize(static_cast<std::size_t>((leftOf(last) - m_left) / stripWidth) + 1);
        for (Step const& step : steps) {
            std::size_t const right = strip(std::max(step.from.x, step.to.x) + width + 1);
            for (std::size_t i = strip(leftOf(step) - width - 1); i <= right; ++i)
                m_strips[i].push_back(step);
        }
    }

    std::span<Step const> near(MapPoint const& point) const { return m_strips[strip(point.x)]; }

private:
    static constexpr double stripWidth = 50;

    static double leftOf(Step const& step) { return std::min(step.from.x, step.to.x); }
    std::size_t strip(double x) const {
        return static_cast<std::size_t>(
            std::clamp((x - m_left) / stripWidth, 0.0, static_cast<double>(m_strips.size() - 1)));
    }

    double m_left;
    std::vector<std::vector<Step>> m_strips;
};

} // namespace

std::vector<std::vector<MapPoint>> withoutSeams(std::vector<std::vector<MapPoint>> const& lines, double width) {
    std::vector<Step> steps;
    for (auto const& line : lines)
        for (std::size_t i = 0; i + 1 < line.size(); ++i)
            steps.push_back({line[i], line[i + 1]});
    if (steps.empty())
        return {};
    Strips const strips(steps, width);
    std::vector<std::vector<MapPoint>> result;
    Step const* last = nullptr; // the step before, if it is in the result
    for (Step const& step : steps) {
        bool const seam = std::ranges::any_of(strips.near(step.middle()),
                                              [&](Step const& other) { return runsBack(step, other, width); });
        if (!seam && !(last && last->to.x == step.from.x && last->to.y == step.from.y))
            result.push_back({step.from});
        if (!seam)
            result.back().push_back(step.to);
        last = seam ? nullptr : &step;
    }
    return result;
}

} // namespace ZrProj::Command
