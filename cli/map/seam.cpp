#include "cli/map/seam.h"

#include "cli/map/curve.h"

#include <algorithm>
#include <cmath>

namespace ZrProj::Command {
namespace {

constexpr double opposite = -0.9; // the cosine of the angle between two directions

struct Step {
    MapPoint from, to;
};

/// Whether a step passes the middle of another one, the other way round.
bool runsBack(Step const& step, Step const& other, double width) {
    MapPoint const middle{(step.from.x + step.to.x) / 2, (step.from.y + step.to.y) / 2};
    MapPoint const a{step.to.x - step.from.x, step.to.y - step.from.y};
    MapPoint const b{other.to.x - other.from.x, other.to.y - other.from.y};
    return a.x * b.x + a.y * b.y < opposite * std::hypot(a.x, a.y) * std::hypot(b.x, b.y) &&
           distanceFrom(other.from, other.to, middle) <= width;
}

} // namespace

std::vector<std::vector<MapPoint>> withoutSeams(std::vector<std::vector<MapPoint>> const& lines, double width) {
    std::vector<Step> steps;
    for (auto const& line : lines)
        for (std::size_t i = 0; i + 1 < line.size(); ++i)
            steps.push_back({line[i], line[i + 1]});
    std::vector<std::vector<MapPoint>> result;
    Step const* last = nullptr; // the step before, if it is in the result
    for (Step const& step : steps) {
        bool const seam = std::ranges::any_of(steps, [&](Step const& other) { return runsBack(step, other, width); });
        if (!seam && !(last && last->to.x == step.from.x && last->to.y == step.from.y))
            result.push_back({step.from});
        if (!seam)
            result.back().push_back(step.to);
        last = seam ? nullptr : &step;
    }
    return result;
}

} // namespace ZrProj::Command
