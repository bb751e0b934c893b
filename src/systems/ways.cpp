#include "systems/ways.h"

#include "systems/area.h"
#include "systems/register.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace ZrProj::systems {
namespace {

/// Whether positions come out other than they went in, as far as numbers say.
bool moves(Operation const& operation) {
    bool const byNumbers =
        operation.method == OperationMethod::geocentric || operation.method == OperationMethod::offsets;
    bool const none = std::ranges::all_of(operation.parameters, [](double number) { return number == 0; });
    return operation.method != OperationMethod::null && !(byNumbers && none);
}

bool isOfGrid(Operation const& operation) {
    return !operation.grids[0].empty();
}

} // namespace

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
        count += static_cast<std::size_t>(
            std::ranges::count_if(link->steps, [](auto const& step) { return moves(step.operation); }));
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

namespace {

/// The better one first: stated accuracy before unknown, then where more of the systems' areas is served, then what is
/// more exact, needs no grid, has fewer steps; at last the later one of a series, "A to B (4)" before "A to B (3)".
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
    return one.size() != other.size() ? one.size() < other.size() : one > other;
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

/// The register's ways between two of its datums.
class Search {
public:
    Search(Definition const& start, Definition const& end, GridIsThere const& grids)
        : from(start), to(end), isThere(grids) {}

    void look();

    Ways found;

private:
    using Chain = std::vector<Link const*>;

    std::vector<Link> const& linksBetween(Code a, Code b);
    std::vector<Chain> direct(Code a, Code b);
    std::vector<Chain> overHub(Code a, Code b);
    std::vector<Chain> overTaken(Code a, Code b);
    static std::vector<Chain> joined(std::vector<Chain> const& first, std::vector<Chain> const& second);
    std::vector<Way> served(std::vector<Chain> const& chains);
    std::optional<Way> wayOf(Chain const& chain) const;
    bool serveBoth(Chain const& chain) const;

    Definition const &from, &to;
    GridIsThere const& isThere;
};

/// Those in force; where some are said between systems of two dimensions, only these.
std::vector<Link> const& Search::linksBetween(Code a, Code b) {
    auto operations = operationsBetween(a, b);
    std::erase_if(operations, [](auto const& o) { return o.operation.deprecated || o.operation.superseded; });
    if (std::ranges::any_of(operations, [](auto const& o) { return o.operation.flat; }))
        std::erase_if(operations, [](auto const& o) { return !o.operation.flat; });
    auto& between = found.links.emplace_back();
    for (auto const& operation : operations)
        between.push_back(linkOf(operation, isThere));
    return between;
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
    for (Code other : datumsTakenFor(a))
        if (other != b)
            std::ranges::move(joined(direct(a, other), overHub(other, b)), std::back_inserter(chains));
    for (Code other : datumsTakenFor(b))
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
    if (served.empty || (chain.size() > 1 && !serveBoth(chain)))
        return {};
    way.extent = extentOf(served.area);
    return way;
}

/// Whether each link serves both systems somewhere.
bool Search::serveBoth(Chain const& chain) const {
    return std::ranges::all_of(chain, [&](Link const* link) {
        auto const& area = link->whole.operation.area;
        return !commonArea(area, from.area).empty && !commonArea(area, to.area).empty;
    });
}

std::vector<Way> Search::served(std::vector<Chain> const& chains) {
    std::vector<Way> ways;
    found.foundAny = found.foundAny || !chains.empty();
    for (Chain const& chain : chains)
        if (auto way = wayOf(chain))
            ways.push_back(std::move(*way));
    return ways;
}

void Search::look() {
    Code const a = from.datum.code, b = to.datum.code;
    using Look = std::vector<Chain> (Search::*)(Code, Code);
    for (Look each : {&Search::direct, &Search::overHub, &Search::overTaken}) {
        std::ranges::move(served((this->*each)(a, b)), std::back_inserter(found.ways));
        std::ranges::sort(found.ways, isBetter);
        if (std::ranges::any_of(found.ways, [](Way const& way) { return way.isUsable(); }))
            return;
    }
}

} // namespace

Ways waysBetween(Definition const& from, Definition const& to, GridIsThere const& gridIsThere) {
    Search search(from, to, gridIsThere);
    search.look();
    return std::move(search.found);
}

} // namespace ZrProj::systems
