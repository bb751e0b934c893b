#include "systems/route_text.h"

#include "systems/text/number.h"

#include <algorithm>
#include <cmath>

namespace ZrProj::systems {
namespace {

std::string kindOfShift(std::array<double, 10> const& parameters) {
    auto const isUsed = [&](std::size_t first, std::size_t end) {
        return std::any_of(parameters.begin() + first, parameters.begin() + end, [](double p) { return p != 0; });
    };
    if (isUsed(7, 10))
        return "ten parameters";
    if (isUsed(3, 7))
        return "seven parameters";
    return isUsed(0, 3) ? "three parameters" : "a shift of nothing";
}

std::string kindOf(Operation const& operation) {
    switch (operation.method) {
    case OperationMethod::null:
        return "coordinates as they are";
    case OperationMethod::geocentric:
        return kindOfShift(operation.parameters);
    case OperationMethod::molodensky:
        return "three parameters by Molodensky's formulas";
    case OperationMethod::abridgedMolodensky:
        return "three parameters by Molodensky's abridged formulas";
    case OperationMethod::offsets:
        return "offsets";
    case OperationMethod::nadcon:
        return "the grids " + operation.grids[0] + " and " + operation.grids[1];
    default:
        return "the grid " + operation.grids[0];
    }
}

std::string accuracyText(double accuracy) {
    return std::isnan(accuracy) ? "nobody says how exact" : "good to " + numberText(accuracy) + " m";
}

std::string lineOf(RouteStep const& step) {
    Operation const& operation = step.operation;
    std::string line = step.reversed ? "inverse of " + operation.name : operation.name;
    if (operation.code != 0)
        line += ", EPSG:" + std::to_string(operation.code);
    line += ": " + kindOf(operation) + ", " + accuracyText(operation.accuracy);
    if (operation.area && !operation.area->name.empty())
        line += ", in " + operation.area->name;
    return line;
}

} // namespace

std::vector<std::string> linesOf(Route const& route) {
    std::vector<std::string> lines;
    std::ranges::transform(route.steps, std::back_inserter(lines), lineOf);
    if (route.steps.size() > 1)
        lines.push_back("together " + accuracyText(route.accuracy));
    lines.insert(lines.end(), route.told.begin(), route.told.end());
    for (std::string const& grid : route.missingGrids)
        lines.push_back("more exact with " + grid + ", which is not there");
    return lines;
}

} // namespace ZrProj::systems
