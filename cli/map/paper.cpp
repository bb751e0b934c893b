#include "cli/map/paper.h"

#include "cli/map/curve.h"
#include "cli/map/projection.h"
#include "cli/text/usage_error.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <numbers>

namespace ZrProj::Command {
namespace {

constexpr int places = 4000;        // looked at, all over the globe
constexpr double largest = 30;      // areal scale, against that of the smallest tenth
constexpr double littleMore = 0.25; // of the size
constexpr int boundSteps = 60;      // along each side of bounds

struct Extent {
    MapBox box{HUGE_VAL, HUGE_VAL, -HUGE_VAL, -HUGE_VAL};

    void add(MapPoint const& p) {
        if (std::isnan(p.x))
            return;
        box = {std::min(box.left, p.x), std::min(box.low, p.y), std::max(box.right, p.x), std::max(box.high, p.y)};
    }
};

/// Evenly on the globe, along a spiral from pole to pole.
PROJPOINT placeOnGlobe(int i) {
    constexpr double radian = 180 / std::numbers::pi;
    double const turn = i / std::numbers::phi;
    return {360 * (turn - std::floor(turn)) - 180, std::asin((2 * i + 1.0) / places - 1) * radian};
}

struct Sample {
    MapPoint point;
    double areal;
};

std::vector<Sample> samples(MapProjection& map) {
    std::vector<Sample> result;
    for (int i = 0; i < places; ++i) {
        auto const place = map.shown(placeOnGlobe(i));
        auto const point = place ? map.at(*place) : std::nullopt;
        auto const scale = point ? localScale(map, *place) : std::nullopt;
        if (scale)
            result.push_back({*point, std::fabs(scale->areal())});
    }
    return result;
}

/// The samples that are not drawn too large.
Extent usefulExtent(std::vector<Sample> found) {
    Extent extent;
    if (found.empty())
        return extent;
    auto const tenth = found.begin() + static_cast<std::ptrdiff_t>(found.size() / 10);
    std::nth_element(found.begin(), tenth, found.end(),
                     [](Sample const& a, Sample const& b) { return a.areal < b.areal; });
    double const limit = largest * tenth->areal;
    for (Sample const& sample : found)
        if (sample.areal <= limit)
            extent.add(sample.point);
    return extent;
}

Extent wholeExtent(MapProjection& map) {
    Extent extent;
    for (Places const& ring : map.outline())
        for (MapPoint const& point : map.at(ring))
            extent.add(point);
    return extent;
}

} // namespace

MapFrame usualFrame(MapProjection& map) {
    auto const found = samples(map);
    Extent whole = wholeExtent(map);
    for (Sample const& sample : found)
        whole.add(sample.point);
    MapBox const useful = usefulExtent(found).box;
    if (!(useful.width() > 0 && useful.height() > 0))
        return {whole.box, true};
    double const more = littleMore * std::max(useful.width(), useful.height());
    auto const side = [&](double part, double all) { return std::fabs(all - part) <= more ? all : part; };
    MapBox const box{side(useful.left, whole.box.left), side(useful.low, whole.box.low),
                     side(useful.right, whole.box.right), side(useful.high, whole.box.high)};
    return {box, box.holds({whole.box.left, whole.box.low}) && box.holds({whole.box.right, whole.box.high})};
}

MapFrame frameAround(MapProjection& map, std::array<double, 4> const& bounds) {
    auto const [west, south, east, north] = bounds;
    double width = east - west; // eastwards
    while (width <= 0)
        width += 360;
    Extent extent;
    for (int j = 0; j <= boundSteps; ++j) {
        Places parallel;
        for (int i = 0; i <= boundSteps; ++i)
            parallel.push_back(
                {std::remainder(west + width * i / boundSteps, 360), south + (north - south) * j / boundSteps});
        for (Places const& piece : map.cutLine(parallel)) // to both sides of where the map is cut
            for (MapPoint const& point : map.at(piece))
                extent.add(point);
    }
    if (!(extent.box.width() > 0 && extent.box.height() > 0))
        throw UsageError("--bounds: the map shows nothing there");
    return {extent.box, false};
}

namespace {

constexpr double unitsPerPixel = 10;
constexpr double tolerance = 2; // of chords: a fifth of a pixel
constexpr double seamWidth = 20;
constexpr double beyond = 50; // how far curves go on beyond the paper

} // namespace

MapPaper::MapPaper(MapProjection& map, MapFrame const& frame, double size)
    : m_map(map), m_frame(frame),
      m_unit(unitsPerPixel * size / std::max(frame.box.width(), frame.box.height())), m_sheet{-beyond, -beyond,
                                                                                              width() + beyond,
                                                                                              height() + beyond},
      m_placing([this](PROJPOINT place) {
          auto const point = m_map.at(place);
          return point ? std::optional(onPaper(*point)) : std::nullopt;
      }) {}

MapPoint MapPaper::onPaper(MapPoint const& point) const {
    return {(point.x - m_frame.box.left) * m_unit, (m_frame.box.high - point.y) * m_unit};
}

std::optional<MapPaper::Found> MapPaper::find(PROJPOINT place) {
    auto const shown = m_map.shown(place);
    auto const point = shown ? m_map.at(*shown) : std::nullopt;
    if (!point || !m_frame.box.holds(*point))
        return std::nullopt;
    return Found{*shown, onPaper(*point)};
}

std::vector<MapPoint> MapPaper::chords(Places const& places, bool closed) {
    std::vector<MapPoint> ends = m_map.at(places);
    for (MapPoint& end : ends)
        end = onPaper(end);
    return chordsOf(places, ends, closed, m_placing, {m_sheet, tolerance});
}

void MapPaper::addRing(SvgPath& path, Places const& ring) {
    path.addRing(clipRing(chords(ring, true), m_sheet));
}

void MapPaper::addLine(SvgPath& path, std::span<PROJPOINT const> line) {
    for (Places const& piece : m_map.cutLine(line))
        for (auto const& visible : clipLine(chords(piece, false), m_sheet))
            path.addLine(visible);
}

void MapPaper::addArea(SvgPath& path, std::span<PROJPOINT const> ring) {
    for (Places const& piece : m_map.cutArea(ring))
        addRing(path, piece);
}

void MapPaper::addOutline(SvgPath& path) {
    for (Places const& ring : m_map.outline())
        addRing(path, ring);
}

void MapPaper::addEdge(SvgPath& path) {
    std::vector<std::vector<MapPoint>> lines;
    for (Places const& edge : m_map.edges())
        std::ranges::move(clipLine(chords(edge, false), m_sheet), std::back_inserter(lines));
    for (auto const& line : withoutSeams(lines, seamWidth))
        path.addLine(line);
}

} // namespace ZrProj::Command
