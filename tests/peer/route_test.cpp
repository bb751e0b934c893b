// The way between two datums beside PROJ's first one, no grids at hand: which of the register's operations each takes.
// The way is a matter of the two areas of use and of stated accuracy; PROJ's makeshift "ballpark" is no way here.
#include "support/faults.h"
#include "systems/area.h"
#include "systems/register.h"
#include "systems/route.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <map>
#include <memory>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include <proj.h>

using namespace ZrProj;
using namespace ZrProj::systems;

namespace {

using Codes = std::vector<Code>; // of the steps

bool isNoGridThere(std::string_view) {
    return false;
}

Codes codesOf(Route const& route) {
    Codes codes;
    for (auto const& step : route.steps)
        codes.push_back(step.operation.code);
    return codes;
}

std::string textOf(Codes const& codes) {
    std::string text;
    for (Code code : codes)
        text += (text.empty() ? "" : " ") + std::to_string(code);
    return text.empty() ? "same" : text;
}

constexpr Code ownOfProj = -1; // an operation that is not the register's

struct Choice {
    std::string codes = "none"; // "same" for one datum
    double accuracy = 0;        // metres
};

/// PROJ's own choice without files.
class Peer {
public:
    Peer() {
        proj_context_set_enable_network(context.get(), 0);
        std::string const database = proj_context_get_database_path(context.get());
        char const* const empty[] = {"/nowhere"};
        proj_context_set_search_paths(context.get(), 1, empty);
        proj_context_set_database_path(context.get(), database.c_str(), nullptr, nullptr);
        auto* const search = factory.get();
        proj_operation_factory_context_set_spatial_criterion(context.get(), search,
                                                             PROJ_SPATIAL_CRITERION_PARTIAL_INTERSECTION);
        proj_operation_factory_context_set_grid_availability_use(
            context.get(), search, PROJ_GRID_AVAILABILITY_DISCARD_OPERATION_IF_MISSING_GRID);
    }

    /// "none" where there is only a makeshift.
    Choice route(Definition const& from, Definition const& to) const {
        auto const a = system(from.code), b = system(to.code);
        Object<PJ_OBJ_LIST> const found(proj_create_operations(context.get(), a.get(), b.get(), factory.get()),
                                        proj_list_destroy);
        if (!found || proj_list_get_count(found.get()) == 0)
            return {};
        Object<PJ> const first(proj_list_get(context.get(), found.get(), 0), proj_destroy);
        if (proj_coordoperation_has_ballpark_transformation(context.get(), first.get()))
            return {};
        Codes codes;
        collect(first.get(), codes);
        return {textOf(codes), proj_coordoperation_get_accuracy(context.get(), first.get())};
    }

private:
    template <class T> using Object = std::unique_ptr<T, void (*)(T*)>;

    static void proj_destroy(PJ* object) { ::proj_destroy(object); }

    Object<PJ> system(Code code) const {
        return {
            proj_create_from_database(context.get(), "EPSG", std::to_string(code).c_str(), PJ_CATEGORY_CRS, 0, nullptr),
            proj_destroy};
    }

    /// What PROJ has of its own to join an ensemble and its realizations is a translation by nothing.
    bool isShiftOfNothing(PJ* operation) const {
        char const* method = nullptr;
        proj_coordoperation_get_method_info(context.get(), operation, &method, nullptr, nullptr);
        return method && std::string_view(method).starts_with("Geocentric translations");
    }

    void collect(PJ* operation, Codes& codes) const {
        if (proj_get_type(operation) == PJ_TYPE_CONVERSION)
            return;
        bool const isChain = proj_get_type(operation) == PJ_TYPE_CONCATENATED_OPERATION;
        for (int i = 0; isChain && i < proj_concatoperation_get_step_count(context.get(), operation); ++i)
            collect(Object<PJ>(proj_concatoperation_get_step(context.get(), operation, i), proj_destroy).get(), codes);
        if (isChain)
            return;
        char const *const maker = proj_get_id_auth_name(operation, 0), *const code = proj_get_id_code(operation, 0);
        if (maker && std::string_view(maker).find("EPSG") != std::string_view::npos)
            codes.push_back(std::atoi(code));
        else if (std::string(proj_get_name(operation)).find("Null geographic offset") == std::string::npos)
            codes.push_back(isShiftOfNothing(operation) ? 0 : ownOfProj);
    }

    Object<PJ_CONTEXT> context{proj_context_create(), [](PJ_CONTEXT* c) { proj_context_destroy(c); }};
    Object<PJ_OPERATION_FACTORY_CONTEXT> factory{proj_create_operation_factory_context(context.get(), nullptr),
                                                 proj_operation_factory_context_destroy};
};

Choice ourRoute(Definition const& from, Definition const& to) {
    auto const route = routeBetween(from, to, isNoGridThere, false);
    auto const* const way = std::get_if<Route>(&route);
    return way ? Choice{textOf(codesOf(*way)), way->accuracy} : Choice{};
}

/// Two systems drawn at random, the second one where the first one is used too on every other draw.
std::pair<Definition, Definition> drawn(std::mt19937& random) {
    auto const any = [&] { return *definitionOf(entry(random() % entryCount()).code); };
    Definition first = any(), second = any();
    auto const area = first.area.value_or(Area{});
    auto const there = systemsAt(area.west + 0.1, (area.south + area.north) / 2);
    if (random() % 2 == 0 && !there.empty())
        second = *definitionOf(there[random() % there.size()].code);
    return {first, second};
}

/// Why the two may differ, "" for no good reason.
char const* causeOf(Definition const& from, Definition const& to, Choice const& ours, Choice const& theirs) {
    if (theirs.codes == "none")
        return "PROJ gives up where all direct operations need grids, and looks over one datum only";
    if (theirs.codes.find(std::to_string(ownOfProj)) != std::string::npos)
        return "PROJ's own deformation model";
    if (ours.codes == "same")
        return "one datum, on another meridian";
    if (commonArea(from.area, to.area).empty)
        return "no place has both systems";
    return ours.accuracy < theirs.accuracy ? "PROJ does not look for the more exact way" : "";
}

int pairsToDraw() {
    char const* const said = std::getenv("ZRPROJ_PEER_PAIRS");
    return said ? std::atoi(said) : 100;
}

} // namespace

// A hundred pairs, or as many as ZRPROJ_PEER_PAIRS says.
TEST(PeerRoute, TakesProjsFirstWayWithoutGrids) {
    Peer const peer;
    std::mt19937 random(20221122);
    test::Faults faults("beside PROJ");
    std::map<std::string, int> causes;
    int ways = 0;
    for (int i = 0; i < pairsToDraw(); ++i) {
        auto const [from, to] = drawn(random);
        auto const theirs = peer.route(from, to), ours = ourRoute(from, to);
        ways += theirs.codes != "none";
        if (theirs.codes == ours.codes)
            continue;
        std::string const cause = causeOf(from, to, ours, theirs);
        ++causes[cause];
        if (cause.empty())
            faults.add(from.name, " to ", to.name, ": ", ours.codes, " instead of ", theirs.codes);
    }
    for (auto const& [cause, count] : causes)
        std::cout << count << " differ: " << cause << '\n';
    EXPECT_GT(ways, pairsToDraw() / 5);
}
