#include "systems/operations.h"

#include "systems/area.h"
#include "systems/register.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

using namespace ZrProj::systems;

namespace {

constexpr Code wgs84 = 6326, dhdn = 6314, etrs89 = 6258, nad27 = 6267, nad83 = 6269;

std::array<double, 10> shift(double dx, double dy, double dz, double rx = 0, double ry = 0, double rz = 0,
                             double ppm = 0) {
    return {dx, dy, dz, rx, ry, rz, ppm, 0, 0, 0};
}

} // namespace

// As the EPSG dataset prints them.
TEST(Operations, AsPublished) {
    auto const british = *operationOf(1314);
    EXPECT_EQ(british.name, "OSGB36 to WGS 84 (6)");
    EXPECT_EQ(british.to, wgs84);
    EXPECT_EQ(british.parameters, shift(446.448, -125.157, 542.06, 0.15, 0.247, 0.842, -20.489));
    EXPECT_EQ(british.accuracy, 2);
    EXPECT_EQ(british.area->name, "UK - Great Britain onshore and nearshore; Isle of Man");

    // A coordinate frame rotation turns the other way; this one is in milliarcseconds and parts per billion, of an
    // epoch.
    auto const australian = *operationOf(8048);
    EXPECT_EQ(australian.name, "GDA94 to GDA2020 (1)");
    EXPECT_EQ(australian.parameters, shift(0.06155, -0.01087, -0.04019, 0.0394924, 0.0327221, 0.0328979, -0.009994));
    EXPECT_EQ(operationOf(7807)->epoch, 1997);

    auto const aboutAPoint = *operationOf(15738);
    EXPECT_EQ(aboutAPoint.name, "MAGNA-SIRGAS to WGS 84 (1)");
    EXPECT_FALSE(operationOf(32631));
}

TEST(Operations, GridsHaveTheirFiles) {
    auto const american = *operationOf(1241);
    EXPECT_EQ(american.method, OperationMethod::nadcon);
    EXPECT_EQ(american.grids, (std::array<std::string, 2>{"conus.las", "conus.los"}));
    auto const french = *operationOf(15942);
    EXPECT_EQ(french.method, OperationMethod::ntv2);
    EXPECT_EQ(french.grids[0], "rgf93_ntf.gsb");
    EXPECT_EQ(french.gridCopy, "ntf_r93.gsb");
    EXPECT_TRUE(french.copyIsReversed);
    EXPECT_EQ(operationOf(8549)->method, OperationMethod::unsupported); // NADCON5
}

TEST(Operations, AChangeOfTheMeridianMovesNothingAnOffsetDoes) {
    EXPECT_EQ(operationOf(1763)->method, OperationMethod::null); // from Paris to Greenwich
    auto const korean = *operationOf(5134);                      // called a longitude rotation too
    EXPECT_EQ(korean.method, OperationMethod::offsets);
    EXPECT_DOUBLE_EQ(korean.parameters[0], 10.405 / 3600);
    EXPECT_EQ(operationOf(8094)->steps, (std::vector<Code>{1763, 1193}));
}

TEST(Operations, StandBetweenTheirDatumsEitherWay) {
    auto const there = operationsBetween(dhdn, etrs89), back = operationsBetween(etrs89, dhdn);
    ASSERT_EQ(there.size(), back.size());
    ASSERT_GT(there.size(), 5u);
    for (std::size_t i = 0; i < there.size(); ++i) {
        EXPECT_EQ(there[i].operation.code, back[i].operation.code);
        EXPECT_NE(there[i].reversed, back[i].reversed);
    }
    auto const beside = datumsBeside(nad27);
    EXPECT_TRUE(std::ranges::binary_search(beside, wgs84) && std::ranges::binary_search(beside, nad83));
    EXPECT_FALSE(std::ranges::binary_search(beside, nad27));
}

TEST(Operations, AnEnsembleIsItsRealizations) {
    constexpr Code g1762 = 1156;
    auto const between = operationsBetween(g1762, wgs84);
    ASSERT_EQ(between.size(), 1u);
    EXPECT_EQ(between[0].operation.method, OperationMethod::null);
    EXPECT_EQ(between[0].operation.accuracy, 2);
    EXPECT_TRUE(between[0].reversed);
    EXPECT_EQ(datumsTakenFor(g1762), std::vector<Code>{wgs84});
}

TEST(Areas, HaveInCommonWhatBothHave) {
    Area const pacific{167.65, 10, -63.88, 75, "Pacific"}, west{-180, 0, -120, 50, "West"},
        world{-180, -90, 180, 90, "World"};
    auto const common = *commonArea(pacific, west).area;
    EXPECT_EQ(common.west, -180);
    EXPECT_EQ(common.east, -120);
    EXPECT_EQ(common.north, 50);
    EXPECT_EQ(common.name, "Pacific, as far as in West");
    EXPECT_EQ(commonArea(world, pacific).area->name, "Pacific");
    EXPECT_EQ(commonArea(world, pacific).area->west, 167.65);
    EXPECT_EQ(commonArea(std::nullopt, west).area->name, "West");
    EXPECT_TRUE(commonArea(west, Area{0, 0, 10, 10, ""}).empty);
    EXPECT_NEAR(extentOf(std::nullopt), 720, 1e-9);
    EXPECT_NEAR(extentOf(pacific), 128.47 * (std::sin(75 * M_PI / 180) - std::sin(10 * M_PI / 180)), 1e-9);
}
