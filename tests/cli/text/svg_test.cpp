#include "cli/text/svg.h"

#include <gtest/gtest.h>

using namespace ZrProj::Command;

TEST(Svg, PathsAreShort) {
    SvgPath path;
    path.addLine(std::vector<MapPoint>{{0.4, 0}, {1, 1}, {100, -20.2}, {101, -21}});
    EXPECT_EQ(path.data(), "M0 0l101-21") << "near points are one, and the end stays";
    path.addLine(std::vector<MapPoint>{{0, 0}, {1, 1}});
    path.addRing(std::vector<MapPoint>{{0, 0}, {50, 0}, {51, 1}, {1, 1}});
    EXPECT_EQ(path.data(), "M0 0l101-21") << "nothing to be seen of these";
    path.addRing(std::vector<MapPoint>{{0, 0}, {50, 0}, {50, 60}, {1, 1}});
    EXPECT_EQ(path.data(), "M0 0l101-21M0 0l50 0 0 60z");
    EXPECT_EQ(wholeUnits(0.5 - 1e-12), wholeUnits(0.5 + 1e-12));
}
