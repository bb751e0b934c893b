#include "systems/datum_path.h"

#include "levels/level.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace ZrProj::systems {
namespace {

using datum::Displacement, datum::Figure, datum::GridFolders, datum::GridShift, datum::Shift;

Figure figureOf(Datum const& datum) {
    double const inverse = datum.ellipsoid.inverseFlattening;
    return {datum.ellipsoid.semiMajor, inverse == 0 ? 0 : 1 / inverse};
}

/// GRS 1980 and the ellipsoid of WGS 84 differ by a tenth of a millimetre, and datums on them are taken as one.
bool areAlike(Figure const& a, Figure const& b) {
    constexpr double alike = 1e-3; // metres
    return std::fabs(a.semiMajor - b.semiMajor) < alike && std::fabs(a.flattening - b.flattening) * a.semiMajor < alike;
}

datum::Vector vectorFrom(std::array<double, 10> const& parameters, std::size_t first) {
    return {parameters[first], parameters[first + 1], parameters[first + 2]};
}

Displacement displacementOf(RouteStep const& step) {
    auto const& p = step.operation.parameters;
    datum::SevenParameters const parameters{vectorFrom(p, 0), vectorFrom(p, 3), p[6], vectorFrom(p, 7)};
    return step.reversed ? displacementBackBy(parameters) : displacementBy(parameters);
}

/// A file that is no longer where it was is told by its name.
std::string pathOf(std::string const& name, GridFolders const& folders) {
    return folders.find(name).value_or(name);
}

} // namespace

levels::Stage DatumPath::Step::stage(bool backwards) const {
    bool const inverted = backwards != reversed;
    if (auto const* const grid = std::get_if<GridShift>(&shift))
        return inverted ? grid->inverseStage() : grid->forwardStage();
    auto const& formula = std::get<Shift>(shift);
    return inverted ? formula.inverse() : formula.forward();
}

DatumPath::DatumPath(std::vector<Step>&& steps) : m_steps(std::move(steps)) {
    m_forward.driver = m_inverse.driver = levels::operationsInUse<datum::ShiftSet>().driver;
    auto const append = [](Way& way, Step const& step, bool backwards) {
        way.stages.push_back(step.stage(backwards));
        way.losses.push_back(step.isGrid() ? ZRPROJ_OFF_THE_GRID : ZRPROJ_NOT_SHOWN);
    };
    for (Step const& step : m_steps)
        append(m_forward, step, false);
    for (auto step = m_steps.rbegin(); step != m_steps.rend(); ++step)
        append(m_inverse, *step, true);
}

/// One step of those that begin here, all that move geocentric coordinates.
DatumPath::Made DatumPath::geocentricStep(std::span<RouteStep const>& rest) {
    Figure const from = figureOf(rest.front().from);
    Figure to = from;
    Displacement displacement;
    for (; !rest.empty() && rest.front().operation.method <= OperationMethod::geocentric; rest = rest.subspan(1)) {
        if (rest.front().operation.method == OperationMethod::null)
            continue;
        displacement = displacement.then(displacementOf(rest.front()));
        to = figureOf(rest.front().to);
    }
    if (displacement == Displacement{} && areAlike(from, to))
        return {};
    if (auto shift = Shift::geocentric(from, to, displacement))
        return Step{*shift};
    return PathProblem{false, "the shift moves places farther than datums of one body lie apart"};
}

DatumPath::Step DatumPath::formulaStep(RouteStep const& step) {
    auto const& p = step.operation.parameters;
    if (step.operation.method == OperationMethod::offsets)
        return {Shift::offset(p[0], p[1]), step.reversed};
    Figure const from = figureOf(step.reversed ? step.to : step.from);
    Figure const to = figureOf(step.reversed ? step.from : step.to);
    auto const make =
        step.operation.method == OperationMethod::molodensky ? Shift::molodensky : Shift::abridgedMolodensky;
    return {make(from, to, vectorFrom(p, 0)), step.reversed};
}

DatumPath::Made DatumPath::gridStep(RouteStep const& step, GridFolders const& folders) {
    Operation const& operation = step.operation;
    auto opened = operation.method == OperationMethod::nadcon
                      ? GridShift::openNadcon(pathOf(operation.grids[0], folders), pathOf(operation.grids[1], folders))
                      : GridShift::openNtv2(pathOf(operation.grids[0], folders));
    if (auto* const problem = std::get_if<datum::GridProblem>(&opened))
        return PathProblem{true, std::move(problem->reason)};
    return Step{std::get<GridShift>(std::move(opened)), step.reversed != operation.gridIsReversed};
}

DatumPath::Made DatumPath::nextStep(std::span<RouteStep const>& rest, GridFolders const& folders) {
    if (rest.front().operation.method == OperationMethod::geocentric)
        return geocentricStep(rest);
    RouteStep const& step = rest.front();
    rest = rest.subspan(1);
    switch (step.operation.method) {
    case OperationMethod::null:
        return {};
    case OperationMethod::nadcon:
    case OperationMethod::ntv2:
        return gridStep(step, folders);
    default:
        return formulaStep(step);
    }
}

std::variant<DatumPath, PathProblem> DatumPath::make(Route const& route, GridFolders const& folders) {
    std::vector<Step> steps;
    for (std::span<RouteStep const> rest = route.steps; !rest.empty();) {
        auto made = nextStep(rest, folders);
        if (auto* const problem = std::get_if<PathProblem>(&made))
            return std::move(*problem);
        if (auto* const step = std::get_if<Step>(&made))
            steps.push_back(std::move(*step));
    }
    return DatumPath(std::move(steps));
}

void DatumPath::run(Way const& way, std::span<PROJPOINT> places, std::span<unsigned char> reasons) noexcept {
    static_assert(levels::cameOut == ZRPROJ_CONVERTED);
    std::ranges::fill(reasons, levels::cameOut);
    auto const outcome = way.driver(way.stages.data(), way.stages.size(),
                                    levels::pointsOf(places.data(), places.size()), {.reasons = reasons.data()});
    if (!outcome.lost)
        return;
    for (unsigned char& reason : reasons)
        if (reason != levels::cameOut)
            reason = reason == levels::cameInLost ? ZRPROJ_NOT_FINITE : way.losses[reason - levels::lostInStage];
}

} // namespace ZrProj::systems
