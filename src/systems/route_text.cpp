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
    return isUsed(0, 3) ? "three parameters" : "a shift of 0";
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
    return std::isnan(accuracy) ? "accuracy unknown" : "good to " + numberText(accuracy) + " m";
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

/// The first few that would make it better.
std::string lineOfMissing(std::vector<std::string> const& grids) {
    constexpr std::size_t most = 3;
    std::size_t const shown = std::min(grids.size(), most), others = grids.size() - shown;
    std::string line = "more exact with " + grids[0];
    for (std::size_t i = 1; i < shown; ++i)
        line += " or " + grids[i];
    if (others > 0)
        line += ", or one of " + std::to_string(others) + " more";
    return line + (grids.size() == 1 ? ", which is not there" : ", which are not there");
}

} // namespace

std::vector<std::string> linesOf(Route const& route) {
    std::vector<std::string> lines;
    std::ranges::transform(route.steps, std::back_inserter(lines), lineOf);
    if (route.steps.size() > 1)
        lines.push_back("together " + accuracyText(route.accuracy));
    lines.insert(lines.end(), route.told.begin(), route.told.end());
    if (!route.missingGrids.empty())
        lines.push_back(lineOfMissing(route.missingGrids));
    return lines;
}

} // namespace ZrProj::systems
