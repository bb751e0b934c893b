#include "cli/points/identification.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace ZrProj::Command {
namespace {

TEST(Identification, FamiliesAreZonesAndRealizations) {
    EXPECT_EQ(familyOf("WGS 84 / UTM zone 17N"), familyOf("WGS 84 / UTM zone 18S"));
    EXPECT_EQ(familyOf("NAD83(CSRS)v2 / MTM zone 10"), familyOf("NAD83(CSRS)v7 / MTM zone 9"));
    EXPECT_EQ(familyOf("DHDN / 3-degree Gauss-Kruger zone 2"), familyOf("DHDN / 3-degree Gauss-Kruger zone 5"));
    EXPECT_EQ(familyOf("NAD27 / California zone I"), familyOf("NAD27 / California zone VII"));
    EXPECT_NE(familyOf("NAD27 / UTM zone 17N"), familyOf("NAD83 / UTM zone 17N"));
    EXPECT_NE(familyOf("ETRS89 / UTM zone 32N"), familyOf("ETRS89 / UTM zone 32N (zE-N)"));
    EXPECT_NE(familyOf("NAD83 / California zone 5"), familyOf("NAD83 / California zone 5 (ftUS)"));
}

TEST(Identification, TheNearestSystemsOfTheAreaComeFirst) {
    // The worked example of the British grid, and the same with its numbers changed about.
    for (PROJPOINT const given : {PROJPOINT{577274.99, 69740.50}, {69740.50, 577274.99}}) {
        auto const found = identify(pointsAbout({given}, {0.5, 50.5}), 2000);
        ASSERT_FALSE(found.empty());
        EXPECT_EQ(found.front().code, 27700);
        EXPECT_EQ(found.front().isSwapped, given.x < given.y);
        EXPECT_TRUE(found.front().isInArea);
        EXPECT_LT(found.front().off, 300);
    }
}

TEST(Identification, TheDatumIsFoundByKnownPoints) {
    // The same two places near Toronto on NAD 27 and WGS 84, some 220 m apart.
    KnownPoints const points{{{630068.882, 4833216.299}, {663003.502, 4762533.674}},
                             {{-79.387139, 43.642567}, {-79, 43}}};
    auto const found = identify(points, 50000);
    auto const placeOf = [&](int code) { return std::ranges::find(found, code, &Identified::code) - found.begin(); };
    ASSERT_LT(placeOf(26717), std::ssize(found));
    EXPECT_LT(placeOf(26717), placeOf(32617));
    EXPECT_LT(found[static_cast<std::size_t>(placeOf(26717))].off, 1);
    EXPECT_TRUE(std::ranges::is_sorted(found, [](auto const& a, auto const& b) { return a.goesBefore(b); }));
    auto const zones = std::ranges::count_if(
        found, [](Identified const& system) { return system.name.starts_with("WGS 84 / UTM zone"); });
    EXPECT_EQ(zones, 1);
    EXPECT_TRUE(identify({{{5e7, 5e7}}, {{0, 0}}}, 1000).empty());
}

} // namespace
} // namespace ZrProj::Command
