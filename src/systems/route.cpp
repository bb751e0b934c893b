#include "systems/route.h"

#include "systems/datum_link.h"
#include "systems/names.h"
#include "systems/register.h"
#include "systems/ways.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <limits>
#include <utility>

namespace ZrProj::systems {
namespace {

using Answer = std::variant<Route, NoRoute>;

constexpr Code wgs84 = 6326;
constexpr double rough = 1;      // metres: what is worse is refused on request
constexpr double unstated = 999; // metres: what the register says where it does not know
constexpr double unknown = std::numeric_limits<double>::quiet_NaN();

// Words

std::string metres(double accuracy) {
    char text[32];
    std::snprintf(text, sizeof text, "%.3g m", accuracy);
    return accuracy < unstated ? text : "nobody knows what";
}

std::string listed(std::vector<std::string> const& texts, char const* between) {
    std::string list;
    for (auto const& text : texts)
        list += (list.empty() ? "" : between) + text;
    return list;
}

std::string fromTo(Definition const& from, Definition const& to) {
    return "from " + from.datum.name + " to " + to.datum.name;
}

void tellOf(Route& route, Operation const& operation) {
    if (operation.code == 0 && operation.method == OperationMethod::null && ensembleOf(operation.to) == operation.from)
        route.told.push_back(datumOf(operation.to)->name + " is taken as " + datumOf(operation.from)->name +
                             ", of which it is a realization, to " + metres(operation.accuracy));
    if (operation.epoch != 0) {
        char year[32];
        std::snprintf(year, sizeof year, "%.6g", operation.epoch);
        route.told.push_back(operation.name + " depends on time and is taken as of " + year +
                             ": it is good for positions of that epoch only");
    }
}

/// An ensemble at an end is no more exact than its realizations lie together, whatever the way states.
void tellOfEnsemble(Route& route, Datum const& datum) {
    if (route.accuracy < datum.ensembleAccuracy)
        route.told.push_back(datum.name + " stands for realizations that agree to " + metres(datum.ensembleAccuracy));
}

// What the register knows

/// The ways that would be more exact than an accuracy if they could be used: direct ones, else the shortest.
std::vector<Way const*> betterWays(std::vector<Way> const& ways, double accuracy) {
    std::vector<Way const*> better;
    for (Way const& way : ways)
        if (!way.isUsable() && !(way.accuracy >= accuracy) && way.accuracy < unstated)
            better.push_back(&way);
    auto const shortest = std::ranges::min_element(better, {}, [](Way const* way) { return way->links.size(); });
    std::size_t const links = better.empty() ? 0 : (*shortest)->links.size();
    std::erase_if(better, [links](Way const* way) { return way->links.size() > links; });
    return better;
}

std::vector<std::string> betterGrids(std::vector<Way> const& ways, double accuracy) {
    std::vector<std::string> better;
    for (Way const* way : betterWays(ways, accuracy)) {
        auto said = listed(way->missing(), " and ") + " (" + metres(way->accuracy) + ")";
        if (way->isComputed() && std::ranges::find(better, said) == better.end())
            better.push_back(std::move(said));
    }
    return better;
}

/// The first way that would be more exact if its method were computed here.
std::string betterMethod(std::vector<Way> const& ways, double accuracy) {
    auto const better = betterWays(ways, accuracy);
    auto const first = std::ranges::find_if(better, [](Way const* way) { return !way->isComputed(); });
    return first == better.end() ? "" : (*first)->name() + " (" + metres((*first)->accuracy) + ")";
}

void append(Route& route, Link const& link) {
    bool const isPart = link.whole.operation.method == OperationMethod::concatenated;
    for (auto const& [operation, reversed] : link.steps) {
        Datum const start = *datumOf(reversed ? operation.to : operation.from);
        Datum const end = *datumOf(reversed ? operation.from : operation.to);
        route.steps.push_back({operation, reversed, start, end, isPart ? link.whole.operation.code : 0});
        tellOf(route, operation);
    }
}

/// Whether positions of one epoch cannot be right in all steps.
bool mixesEpochs(Route const& route) {
    double epoch = 0;
    for (RouteStep const& step : route.steps) {
        if (epoch != 0 && step.operation.epoch != 0 && step.operation.epoch != epoch)
            return true;
        epoch = step.operation.epoch != 0 ? step.operation.epoch : epoch;
    }
    return false;
}

Route routeOf(Way const& way, std::vector<Way> const& all) {
    Route route;
    for (Link const* link : way.links)
        append(route, *link);
    bool const mixed = mixesEpochs(route);
    route.accuracy = way.accuracy < unstated && !mixed ? way.accuracy : unknown;
    if (mixed)
        route.told.push_back("its steps are stated for different epochs: nobody says how exact they are together");
    route.area = way.area;
    route.missingGrids = betterGrids(all, route.accuracy);
    if (auto const method = betterMethod(all, route.accuracy); !method.empty())
        route.told.push_back(method + " would be more exact, but its method is not computed here");
    return route;
}

std::string whatWouldHelp(std::vector<Way> const& ways, double accuracy) {
    auto const grids = betterGrids(ways, accuracy);
    return grids.empty() ? "" : "; a grid would help: " + listed(grids, ", ");
}

NoRoute noneServes(Definition const& from, Definition const& to, Ways const& found) {
    auto const way = "no way " + fromTo(from, to);
    if (!found.foundAny)
        return {way + " is known, neither a direct one nor one over another datum"};
    if (found.ways.empty())
        return {way + " is known where both " + from.name + " and " + to.name + " are used"};
    if (auto const help = whatWouldHelp(found.ways, unknown); !help.empty())
        return {way + " does without a grid" + help};
    return {way + " is by methods that are computed here, only " + found.ways.front().name()};
}

Answer registerRoute(Definition const& from, Definition const& to, GridIsThere const& gridIsThere, bool refuseRough) {
    auto const found = waysBetween(from, to, gridIsThere);
    auto const best = std::ranges::find_if(found.ways, [](Way const& way) { return way.isUsable(); });
    if (best == found.ways.end())
        return noneServes(from, to, found);
    // No way that is finer serves as much.
    auto route = routeOf(*best, found.ways);
    if (!refuseRough || route.accuracy <= rough)
        return route;
    return NoRoute{"the best way " + fromTo(from, to) + " is good to " + metres(route.accuracy) + " only" +
                   whatWouldHelp(found.ways, route.accuracy)};
}

/// Whether a datum is one of the register's; else what is to be said.
std::optional<NoRoute> strangerAmong(Definition const& from, Definition const& to) {
    Datum const& stranger = from.datum.code == 0 ? from.datum : to.datum;
    if (stranger.code != 0)
        return {};
    if (from.datum.name == to.datum.name)
        return NoRoute{"the systems lie on different ellipsoids or shifts of the datum " + stranger.name};
    bool const named = codeNamed(Thing::datum, stranger.name) != 0;
    return NoRoute{"no way " + fromTo(from, to) + " is known: " + stranger.name +
                   (named ? " has other numbers here than in the register" : " is no datum of the register") +
                   ", and its definition does not say how it lies to WGS 84"};
}

Answer betweenRegistered(Definition const& from, Definition const& to, GridIsThere const& gridIsThere,
                         bool refuseRough) {
    auto const link = linkBetween(from.datum, to.datum);
    if (link && link->told.empty())
        return Route{};
    if (auto stranger = strangerAmong(from, to))
        return std::move(*stranger);
    auto answer = registerRoute(from, to, gridIsThere, refuseRough);
    bool const isThere = std::holds_alternative<Route>(answer);
    if (!isThere && link && !(refuseRough && link->accuracy > rough))
        return Route{{}, link->accuracy, {}, {link->told}, {}};
    return answer;
}

// What definitions say themselves

bool saysItself(Definition const& definition) {
    return definition.datum.toWgs84 || !definition.datum.grids.empty();
}

/// The first file of a definition's list that is there; "null" is always: it is no shift. Files that are marked "@" may
/// be missing, others must not.
std::optional<std::string> firstThere(std::string_view list, GridIsThere const& gridIsThere) {
    while (!list.empty()) {
        auto const comma = std::min(list.find(','), list.size());
        auto name = list.substr(0, comma);
        list.remove_prefix(std::min(comma + 1, list.size()));
        bool const mayBeMissing = name.starts_with('@');
        name.remove_prefix(mayBeMissing ? 1 : 0);
        if (name == "null" || gridIsThere(name))
            return std::string(name);
        if (!mayBeMissing)
            return {};
    }
    return {};
}

/// How the definition's datum becomes WGS 84.
std::variant<RouteStep, NoRoute> ownStep(Definition const& definition, GridIsThere const& gridIsThere) {
    Datum const& datum = definition.datum;
    RouteStep step{{}, false, datum, *datumOf(wgs84), 0};
    step.operation.name = datum.name + " to WGS 84, as the definition says";
    step.operation.from = datum.code;
    step.operation.to = wgs84;
    step.operation.accuracy = unknown;
    if (datum.toWgs84) {
        step.operation.method = OperationMethod::geocentric;
        std::ranges::copy(*datum.toWgs84, step.operation.parameters.begin());
        return step;
    }
    auto const file = firstThere(datum.grids, gridIsThere);
    if (!file)
        return NoRoute{"the definition of " + datum.name + " shifts by a grid that is not there: " + datum.grids};
    if (*file != "null") {
        step.operation.method = OperationMethod::ntv2;
        step.operation.grids[0] = *file;
    }
    return step;
}

/// The other way round.
RouteStep reversedStep(RouteStep step) {
    std::swap(step.from, step.to);
    step.reversed = !step.reversed;
    return step;
}

/// A system on WGS 84 for the same area.
Definition onWgs84(Definition const& definition) {
    Definition other;
    other.name = definition.name;
    other.datum = *datumOf(wgs84);
    other.area = definition.area;
    return other;
}

/// Whether datums are two only because a definition says how one lies to WGS 84.
bool areTwoByShift(Datum from, Datum to) {
    from.toWgs84.reset();
    to.toWgs84.reset();
    return linkBetween(from, to).has_value();
}

/// Over WGS 84, to which one of the definitions or both lead by themselves.
Answer ownRoute(Definition const& from, Definition const& to, GridIsThere const& gridIsThere) {
    auto const registered = [](Definition const& end) { return saysItself(end) ? onWgs84(end) : end; };
    auto rest = betweenRegistered(registered(from), registered(to), gridIsThere, false);
    if (std::holds_alternative<NoRoute>(rest))
        return rest;
    Route route = std::get<Route>(std::move(rest));
    for (bool atEnd : {false, true}) {
        Definition const& definition = atEnd ? to : from;
        if (!saysItself(definition))
            continue;
        auto own = ownStep(definition, gridIsThere);
        if (auto* const none = std::get_if<NoRoute>(&own))
            return std::move(*none);
        auto const& step = std::get<RouteStep>(own);
        route.steps.insert(atEnd ? route.steps.end() : route.steps.begin(), atEnd ? reversedStep(step) : step);
    }
    route.accuracy = unknown;
    if (areTwoByShift(from.datum, to.datum))
        route.told.push_back("the shift to WGS 84 that a definition says makes its " + from.datum.name +
                             " another datum than the other one's");
    return route;
}

} // namespace

Answer routeBetween(Definition const& from, Definition const& to, GridIsThere const& gridIsThere, bool refuseRough) {
    auto const link = linkBetween(from.datum, to.datum);
    bool const areOne = link && link->told.empty();
    if (areOne || !(saysItself(from) || saysItself(to))) {
        auto answer = betweenRegistered(from, to, gridIsThere, refuseRough);
        if (auto* const route = std::get_if<Route>(&answer); route && !route->steps.empty())
            for (Datum const* end : {&from.datum, &to.datum})
                tellOfEnsemble(*route, *end);
        return answer;
    }
    if (refuseRough)
        return NoRoute{"the way " + fromTo(from, to) + " is what a definition says, which states no accuracy"};
    return ownRoute(from, to, gridIsThere);
}

} // namespace ZrProj::systems
