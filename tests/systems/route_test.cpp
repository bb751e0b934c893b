#include "systems/route.h"

#include "systems/register.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <set>

using namespace ZrProj::systems;

namespace {

using Files = std::set<std::string, std::less<>>;

std::variant<Route, NoRoute> answer(Definition const& from, Definition const& to, Files const& files = {},
                                    bool refuseRough = false) {
    return routeBetween(
        from, to, [&](std::string_view name) { return files.contains(name); }, refuseRough);
}

Route route(Definition const& from, Definition const& to, Files const& files = {}, bool refuseRough = false) {
    auto const found = answer(from, to, files, refuseRough);
    if (auto const* none = std::get_if<NoRoute>(&found)) {
        ADD_FAILURE() << none->reason;
        return {};
    }
    return std::get<Route>(found);
}

Route route(Code from, Code to, Files const& files = {}, bool refuseRough = false) {
    return route(*definitionOf(from), *definitionOf(to), files, refuseRough);
}

std::string reason(Code from, Code to, bool refuseRough = false) {
    auto const found = answer(*definitionOf(from), *definitionOf(to), {}, refuseRough);
    auto const* none = std::get_if<NoRoute>(&found);
    return none ? none->reason : "";
}

std::vector<Code> codes(Route const& route) {
    std::vector<Code> all;
    for (auto const& step : route.steps)
        all.push_back(step.operation.code);
    return all;
}

bool has(std::string const& text, char const* part) {
    return text.find(part) != std::string::npos;
}

} // namespace

TEST(Route, OneDatumNeedsNoSteps) {
    EXPECT_TRUE(route(25832, 4258).steps.empty());
    EXPECT_TRUE(route(27572, 4275).steps.empty()); // on Paris and on Greenwich
    EXPECT_EQ(route(25832, 4258).accuracy, 0);
}

TEST(Route, TakesTheRegistersFirstAndTellsTheBetterGrid) {
    auto const without = route(31467, 25832);
    EXPECT_EQ(codes(without), std::vector<Code>{1776});
    EXPECT_EQ(without.accuracy, 3);
    EXPECT_EQ(without.area->name, "Germany - West Germany all states");
    ASSERT_FALSE(without.missingGrids.empty());
    EXPECT_EQ(without.missingGrids[0], "BETA2007.gsb (0.9 m)");

    auto const with = route(25832, 31467, {"BETA2007.gsb"});
    EXPECT_EQ(codes(with), std::vector<Code>{15948});
    EXPECT_TRUE(with.steps[0].reversed);
    EXPECT_EQ(with.steps[0].to.code, 6314);
    EXPECT_EQ(with.accuracy, 0.9);
}

TEST(Route, TakesTheCopyOfAGrid) {
    auto const french = route(27572, 2154, {"ntf_r93.gsb"});
    auto const& step = french.steps.back();
    EXPECT_EQ(step.operation.grids[0], "ntf_r93.gsb");
    EXPECT_TRUE(step.operation.gridIsReversed);
}

TEST(Route, ConcatenatedOperationsAreTheirSteps) {
    auto const french = route(27572, 4326);
    EXPECT_EQ(codes(french), (std::vector<Code>{1763, 1193}));
    EXPECT_EQ(french.steps[0].partOf, 8094);
    auto const back = route(4326, 27572);
    EXPECT_EQ(codes(back), (std::vector<Code>{1193, 1763}));
    EXPECT_TRUE(back.steps[0].reversed && back.steps[1].reversed);
}

TEST(Route, GoesOverAnotherDatumWhereNoneIsDirect) {
    auto const german = route(4230, 4314); // ED50 to DHDN
    EXPECT_EQ(codes(german), (std::vector<Code>{1134, 1777}));
    EXPECT_EQ(german.steps[0].to.code, 6326);
    EXPECT_EQ(german.accuracy, 9);
}

TEST(Route, RealizationsAreTakenForTheirEnsemble) {
    auto const frame = route(4326, 9057);
    ASSERT_EQ(frame.steps.size(), 1u);
    EXPECT_EQ(frame.steps[0].operation.method, OperationMethod::null);
    ASSERT_EQ(frame.told.size(), 1u);
    EXPECT_TRUE(has(frame.told[0], "of which it is a realization, to 2 m")) << frame.told[0];
    EXPECT_EQ(codes(route(9054, 9055)), std::vector<Code>{9962}); // what the register states is better
}

TEST(Route, TellsThatAnOperationDependsOnTime) {
    auto const moving = route(9054, 9055);
    ASSERT_FALSE(moving.told.empty());
    EXPECT_TRUE(has(moving.told[0], "is taken as of 2005")) << moving.told[0];
}

TEST(Route, RefusesRoughWaysAndNamesTheGrid) {
    auto const british = reason(27700, 4326, true);
    EXPECT_TRUE(has(british, "Ordnance Survey of Great Britain 1936")) << british;
    EXPECT_TRUE(has(british, "good to 2 m only; a grid would help: OSTN15_NTv2_OSGBtoETRS.gsb (1 m)")) << british;
    auto const german = reason(31467, 25832, true); // one good to 1 m serves a smaller area
    EXPECT_TRUE(has(german, "good to 3 m only")) << german;
    auto const mixed = route(9067, 9069); // steps of 2010 and of 1989
    EXPECT_TRUE(std::isnan(mixed.accuracy));
    EXPECT_TRUE(has(mixed.told.back(), "different epochs")) << mixed.told.back();
}

TEST(Route, NoWayIsSaidWithBothDatums) {
    auto const apart = reason(31467, 27700);
    EXPECT_TRUE(has(apart, "Deutsches Hauptdreiecksnetz to Ordnance Survey of Great Britain 1936")) << apart;
    EXPECT_TRUE(has(apart, "where both")) << apart;
}

TEST(Route, DefinitionsOwnShiftsComeFirst) {
    auto own = *definitionOf(31467);
    own.datum.code = 0;
    own.datum.name = "Potsdam of my own";
    auto const stranger = answer(own, *definitionOf(4326));
    ASSERT_TRUE(std::holds_alternative<NoRoute>(stranger));
    EXPECT_TRUE(has(std::get<NoRoute>(stranger).reason, "Potsdam of my own is no datum of the register"));

    own.datum.toWgs84 = ToWgs84{598.1, 73.7, 418.2, 0.202, 0.045, -2.455, 6.7};
    auto const shifted = route(*definitionOf(4230), own);
    ASSERT_EQ(shifted.steps.size(), 2u);
    EXPECT_EQ(shifted.steps[0].operation.code, 1134);
    EXPECT_TRUE(shifted.steps[1].reversed);
    EXPECT_EQ(shifted.steps[1].operation.parameters[6], 6.7);
    EXPECT_EQ(shifted.steps[1].to.name, "Potsdam of my own");
    EXPECT_TRUE(std::isnan(shifted.accuracy));
    EXPECT_TRUE(std::holds_alternative<NoRoute>(answer(own, *definitionOf(4326), {}, true)));
}

TEST(Route, DefinitionsOwnGridsAreTheFirstThatIsThere) {
    auto own = *definitionOf(31467);
    own.datum.code = 0;
    own.datum.grids = "@mine.gsb,BETA2007.gsb";
    auto const wgs84 = *definitionOf(4326);
    EXPECT_EQ(route(own, wgs84, {"BETA2007.gsb"}).steps[0].operation.grids[0], "BETA2007.gsb");
    EXPECT_EQ(route(own, wgs84, {"BETA2007.gsb", "mine.gsb"}).steps[0].operation.grids[0], "mine.gsb");
    auto const none = answer(own, wgs84);
    ASSERT_TRUE(std::holds_alternative<NoRoute>(none));
    EXPECT_TRUE(has(std::get<NoRoute>(none).reason, "@mine.gsb,BETA2007.gsb"));
    own.datum.grids = "mine.gsb,BETA2007.gsb"; // the first one must be there
    EXPECT_TRUE(std::holds_alternative<NoRoute>(answer(own, wgs84, {"BETA2007.gsb"})));
    own.datum.grids = "@mine.gsb,@null";
    EXPECT_EQ(route(own, wgs84).steps[0].operation.method, OperationMethod::null);
}
