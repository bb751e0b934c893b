#include "cli/map/frame.h"

#include "cli/map/distortion.h"
#include "cli/text/usage_error.h"

#include <algorithm>
#include <cmath>
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

} // namespace ZrProj::Command
