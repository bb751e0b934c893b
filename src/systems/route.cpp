#include "systems/route.h"

#include "systems/area.h"
#include "systems/datum_link.h"
#include "systems/register.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <deque>
#include <iterator>
#include <limits>
#include <set>

namespace ZrProj::systems {
namespace {

constexpr Code wgs84 = 6326;
constexpr double rough = 1;      // metres: what is worse is refused on request
constexpr double unstated = 999; // metres: what the register says where it does not know

/// An operation as part of a way: a concatenated one's steps, and what keeps it from being used.
struct Link {
    DirectedOperation whole;
    std::vector<DirectedOperation> steps;
    std::vector<std::string> missing; // grid files
    bool computed = true;             // its methods are known here
};

/// Links one after the other from datum to datum.
struct Way {
    std::vector<Link const*> links;
    double accuracy = 0; // metres, NaN where unknown
    std::optional<Area> area;
    double extent = 0; // of what it has of the two systems' areas

    std::string name() const;
    std::size_t stepCount() const;
    bool isComputed() const;
    bool needsGrid() const;
    std::vector<std::string> missing() const;
    bool isUsable() const { return isComputed() && missing().empty(); }
};

bool isOfGrid(Operation const& operation) {
    return !operation.grids[0].empty();
}

std::string Way::name() const {
    std::string name;
    for (Link const* link : links)
        name += (name.empty() ? "" : " + ") + std::string(link->whole.reversed ? "Inverse of " : "") +
                link->whole.operation.name;
    return name;
}

std::size_t Way::stepCount() const {
    std::size_t count = 0;
    for (Link const* link : links)
        count += link->steps.size();
    return count;
}

bool Way::isComputed() const {
    return std::ranges::all_of(links, [](Link const* link) { return link->computed; });
}

bool Way::needsGrid() const {
    return std::ranges::any_of(links, [](Link const* link) {
        return std::ranges::any_of(link->steps, [](auto const& step) { return isOfGrid(step.operation); });
    });
}

std::vector<std::string> Way::missing() const {
    std::vector<std::string> files;
    for (Link const* link : links)
        files.insert(files.end(), link->missing.begin(), link->missing.end());
    return files;
}

/// The better one first: stated accuracy before unknown, then where more of the systems' areas is served, then what is
/// more exact, needs no grid, has fewer steps; the rest only makes an order of it.
bool isBetter(Way const& a, Way const& b) {
    if (std::isnan(a.accuracy) != std::isnan(b.accuracy))
        return std::isnan(b.accuracy);
    if (std::isnan(a.accuracy) && a.needsGrid() != b.needsGrid())
        return a.needsGrid();
    if (a.extent != b.extent)
        return a.extent > b.extent;
    if (!std::isnan(a.accuracy) && a.accuracy != b.accuracy)
        return a.accuracy < b.accuracy;
    if (a.needsGrid() != b.needsGrid())
        return b.needsGrid();
    if (a.stepCount() != b.stepCount())
        return a.stepCount() < b.stepCount();
    std::string const one = a.name(), other = b.name();
    return one.size() != other.size() ? one.size() < other.size() : one < other;
}

/// The steps of an operation in the order and sense in which a way uses it.
std::vector<DirectedOperation> stepsOf(DirectedOperation const& whole) {
    if (whole.operation.method != OperationMethod::concatenated)
        return {whole};
    std::vector<DirectedOperation> steps;
    Code here = whole.operation.from;
    for (Code code : whole.operation.steps) {
        Operation const step = *operationOf(code);
        bool const reversed = step.from != here;
        here = reversed ? step.from : step.to;
        steps.push_back({step, reversed != whole.reversed});
    }
    if (whole.reversed)
        std::ranges::reverse(steps);
    return steps;
}

/// Takes the copy of a grid where that is at hand and the register's own file is not.
void chooseGrid(Operation& operation, GridIsThere const& isThere, Link& link) {
    auto const there = [&](std::string const& file) { return file.empty() || isThere(file); };
    if (there(operation.grids[0]) && there(operation.grids[1]))
        return;
    if (!operation.gridCopy.empty() && isThere(operation.gridCopy)) {
        operation.method = OperationMethod::ntv2;
        operation.grids = {operation.gridCopy, ""};
        operation.gridIsReversed = operation.copyIsReversed;
        return;
    }
    std::ranges::copy_if(operation.grids, std::back_inserter(link.missing),
                         [&](auto const& file) { return !there(file); });
}

Link linkOf(DirectedOperation const& whole, GridIsThere const& isThere) {
    Link link{whole, stepsOf(whole), {}, true};
    for (auto& [operation, reversed] : link.steps) {
        link.computed = link.computed && operation.method != OperationMethod::unsupported;
        if (operation.method == OperationMethod::nadcon || operation.method == OperationMethod::ntv2)
            chooseGrid(operation, isThere, link);
    }
    return link;
}

/// The datums that one is taken for as it stands: on another meridian, or the ensemble that it belongs to.
std::vector<Code> takenFor(Code datum) {
    std::vector<Code> others;
    for (Code beside : datumsBeside(datum))
        for (auto const& [operation, reversed] : operationsBetween(datum, beside))
            if (operation.method == OperationMethod::null)
                others.push_back(beside);
    return others;
}

/// The register's ways between two of its datums.
class Search {
public:
    Search(Definition const& start, Definition const& end, GridIsThere const& grids)
        : from(start), to(end), isThere(grids) {}

    /// Direct ones; where the register has none, those over one datum; else over one more, which is the same by another
    /// name.
    std::vector<Way> ways();

    bool foundAny = false; // even such as serve no area of the two

private:
    using Chain = std::vector<Link const*>;

    std::vector<Link> const& linksBetween(Code a, Code b);
    std::vector<Chain> direct(Code a, Code b);
    std::vector<Chain> overHub(Code a, Code b);
    std::vector<Chain> overTaken(Code a, Code b);
    static std::vector<Chain> joined(std::vector<Chain> const& first, std::vector<Chain> const& second);
    std::vector<Way> served(std::vector<Chain> const& chains);
    std::optional<Way> wayOf(Chain const& chain) const;

    Definition const &from, &to;
    GridIsThere const& isThere;
    std::deque<std::vector<Link>> links; // whose addresses ways have
};

/// Those in force; where some are said between systems of two dimensions, only these.
std::vector<Link> const& Search::linksBetween(Code a, Code b) {
    auto operations = operationsBetween(a, b);
    std::erase_if(operations, [](auto const& o) { return o.operation.deprecated || o.operation.superseded; });
    if (std::ranges::any_of(operations, [](auto const& o) { return o.operation.flat; }))
        std::erase_if(operations, [](auto const& o) { return !o.operation.flat; });
    auto& found = links.emplace_back();
    for (auto const& operation : operations)
        found.push_back(linkOf(operation, isThere));
    return found;
}

std::vector<Search::Chain> Search::direct(Code a, Code b) {
    std::vector<Chain> chains;
    for (Link const& link : linksBetween(a, b))
        chains.push_back({&link});
    return chains;
}

std::vector<Search::Chain> Search::joined(std::vector<Chain> const& first, std::vector<Chain> const& second) {
    std::vector<Chain> chains;
    for (Chain const& one : first)
        for (Chain const& other : second) {
            chains.push_back(one);
            chains.back().insert(chains.back().end(), other.begin(), other.end());
        }
    return chains;
}

std::vector<Search::Chain> Search::overHub(Code a, Code b) {
    std::vector<Code> const besideA = datumsBeside(a), besideB = datumsBeside(b);
    std::vector<Code> hubs;
    std::ranges::set_intersection(besideA, besideB, std::back_inserter(hubs));
    std::vector<Chain> chains;
    for (Code hub : hubs)
        std::ranges::move(joined(direct(a, hub), direct(hub, b)), std::back_inserter(chains));
    return chains;
}

std::vector<Search::Chain> Search::overTaken(Code a, Code b) {
    std::vector<Chain> chains;
    for (Code other : takenFor(a))
        if (other != b)
            std::ranges::move(joined(direct(a, other), overHub(other, b)), std::back_inserter(chains));
    for (Code other : takenFor(b))
        if (other != a)
            std::ranges::move(joined(overHub(a, other), direct(other, b)), std::back_inserter(chains));
    return chains;
}

std::optional<Way> Search::wayOf(Chain const& chain) const {
    Way way{chain, 0, {}, 0};
    for (Link const* link : chain) {
        way.accuracy += link->whole.operation.accuracy;
        auto const common = commonArea(way.area, link->whole.operation.area);
        if (common.empty)
            return {};
        way.area = common.area;
    }
    Definition const& smaller = extentOf(to.area) < extentOf(from.area) ? to : from;
    auto const served = commonArea(way.area, smaller.area);
    if (served.empty)
        return {};
    way.extent = extentOf(served.area);
    return way;
}

std::vector<Way> Search::served(std::vector<Chain> const& chains) {
    std::vector<Way> ways;
    foundAny = foundAny || !chains.empty();
    for (Chain const& chain : chains)
        if (auto way = wayOf(chain))
            ways.push_back(std::move(*way));
    return ways;
}

std::vector<Way> Search::ways() {
    Code const a = from.datum.code, b = to.datum.code;
    using Look = std::vector<Chain> (Search::*)(Code, Code);
    std::vector<Way> found;
    for (Look look : {&Search::direct, &Search::overHub, &Search::overTaken}) {
        auto const ways = served((this->*look)(a, b));
        found.insert(found.end(), ways.begin(), ways.end());
        std::ranges::sort(found, isBetter);
        if (std::ranges::any_of(found, [](Way const& way) { return way.isUsable(); }))
            break;
    }
    return found;
}

// What is said of a way

std::string metres(double accuracy) {
    if (!(accuracy < unstated))
        return "unknown accuracy";
    char text[32];
    std::snprintf(text, sizeof text, "%.3g m", accuracy);
    return text;
}

std::string fileWithAccuracy(std::vector<std::string> const& files, double accuracy) {
    std::string text;
    for (auto const& file : files)
        text += (text.empty() ? "" : " and ") + file;
    return text + " (" + metres(accuracy) + ")";
}

/// The grids of ways that would be more exact than the one chosen.
std::vector<std::string> betterGrids(std::vector<Way> const& ways, double accuracy) {
    std::vector<std::string> better;
    for (Way const& way : ways) {
        bool const worse = way.accuracy >= accuracy || std::isnan(way.accuracy);
        if (worse || !way.isComputed() || way.missing().empty())
            continue;
        auto const said = fileWithAccuracy(way.missing(), way.accuracy);
        if (std::ranges::find(better, said) == better.end())
            better.push_back(said);
    }
    return better;
}

void tell(Route& route, Operation const& operation) {
    if (operation.code == 0 && operation.method == OperationMethod::null)
        route.told.push_back(datumOf(operation.to)->name + " is taken as " + datumOf(operation.from)->name +
                             ", of which it is a realization, to " + metres(operation.accuracy));
    if (operation.epoch != 0) {
        char year[32];
        std::snprintf(year, sizeof year, "%.6g", operation.epoch);
        route.told.push_back(operation.name + " depends on time and is taken as of " + year +
                             ": it is good for positions of that epoch only");
    }
}

void append(Route& route, Link const& link) {
    for (auto const& [operation, reversed] : link.steps) {
        Datum const start = *datumOf(reversed ? operation.to : operation.from);
        Datum const end = *datumOf(reversed ? operation.from : operation.to);
        bool const part = link.whole.operation.method == OperationMethod::concatenated;
        route.steps.push_back({operation, reversed, start, end, part ? link.whole.operation.code : 0});
        tell(route, operation);
    }
}

Route routeOf(Way const& way, std::vector<Way> const& all) {
    Route route;
    for (Link const* link : way.links)
        append(route, *link);
    route.accuracy = way.accuracy < unstated ? way.accuracy : std::numeric_limits<double>::quiet_NaN();
    route.area = way.area;
    route.missingGrids = betterGrids(all, way.accuracy < unstated ? way.accuracy : unstated);
    return route;
}

std::string listed(std::vector<std::string> const& texts) {
    std::string list;
    for (auto const& text : texts)
        list += (list.empty() ? "" : ", ") + text;
    return list;
}

std::string between(Definition const& from, Definition const& to) {
    return "from " + from.datum.name + " to " + to.datum.name;
}

NoRoute noneServes(Definition const& from, Definition const& to, std::vector<Way> const& ways, bool foundAny) {
    if (!ways.empty()) {
        auto const grids = betterGrids(ways, unstated);
        return {"the way " + between(from, to) + " needs a grid that is not there: " + listed(grids)};
    }
    if (foundAny)
        return {"no shift " + between(from, to) + " is known for an area that both have"};
    return {"no shift " + between(from, to) + " is known"};
}

std::variant<Route, NoRoute> registerRoute(Definition const& from, Definition const& to, GridIsThere const& isThere,
                                           bool refuseRough) {
    Search search(from, to, isThere);
    auto const ways = search.ways();
    auto const usable = [](Way const& way) { return way.isUsable(); };
    auto const fine = [&](Way const& way) { return usable(way) && (!refuseRough || way.accuracy <= rough); };
    auto const chosen = std::ranges::find_if(ways, fine);
    if (chosen != ways.end())
        return routeOf(*chosen, ways);
    auto const best = std::ranges::find_if(ways, usable);
    if (best == ways.end())
        return noneServes(from, to, ways, search.foundAny);
    return NoRoute{"the best way " + between(from, to) + " is good to " + metres(best->accuracy) + " only"};
}

} // namespace

std::variant<Route, NoRoute> routeBetween(Definition const& from, Definition const& to, GridIsThere const& gridIsThere,
                                          bool refuseRough) {
    auto const link = linkBetween(from.datum, to.datum);
    if (link && link->told.empty())
        return Route{};
    if (from.datum.code == 0 || to.datum.code == 0)
        return NoRoute{"no shift " + between(from, to) + " is known"};
    return registerRoute(from, to, gridIsThere, refuseRough);
}

} // namespace ZrProj::systems
