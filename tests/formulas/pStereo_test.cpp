#include "support/cases.h"
#include "support/levels.h"
#include "support/registry.h"

#include <gtest/gtest.h>

#include <cfloat>
#include <cmath>

using namespace ZrProj;
using test::isMarked;
using test::Projection;

TEST(Stereographic, AgreesWithReferenceValues) {
    test::expectProjectionCases("stereographic.txt");
}

TEST(Stereographic, MarksTheAntipodeAndNothingNearIt) {
    test::forEachLevel([](formulas::Level) {
        for (auto const* words : {"type=6 ellipsoid=47 lat0=40 lon0=-100", "type=6 ellipsoid=48 lat0=40 lon0=-100"}) {
            Projection map(words);
            PROJPOINT points[] = {{80, -40}, {-280, -40}, {80 + 1e-11, -40}, {-100, 40}};
            EXPECT_TRUE(map.tryForward(points));
            EXPECT_TRUE(isMarked(points[0]) && isMarked(points[1]));
            EXPECT_FALSE(isMarked(points[2]) || isMarked(points[3]));
            EXPECT_FALSE(map.isInRange({80, -40}));
            EXPECT_TRUE(map.isInRange({80 + 1e-11, -40}));
        }
        for (auto const* words : {"type=6 ellipsoid=47 lat0=90 lon0=30", "type=6 ellipsoid=48 lat0=90 lon0=30"}) {
            Projection map(words);
            for (double const lon : {-180.0, 0.0, 30.0, 77.0}) {
                EXPECT_TRUE(isMarked(map.forward(PROJPOINT{lon, -90})));
                EXPECT_FALSE(map.isInRange({lon, -90}));
            }
        }
    });
}

TEST(Stereographic, AnswersFromFarAwayAndMarksInfinity) {
    test::forEachLevel([](formulas::Level) {
        Projection map("type=6 ellipsoid=47 lat0=-30 lon0=170");
        PROJPOINT points[] = {{1e15, -3e15}, {1e300, 0}, {0, -1e300}, {DBL_MAX / 2, DBL_MAX / 2}, {1e23, 0}};
        EXPECT_TRUE(map.tryInverse(points));
        EXPECT_NEAR(std::remainder(points[0].x + 10, 360), 0, 1e-6);
        EXPECT_NEAR(points[0].y, 30, 1e-6);
        for (int i = 1; i < 5; ++i)
            EXPECT_TRUE(isMarked(points[i])) << i;
    });
}

TEST(Stereographic, IsTheSameAtAPoleAndBesideIt) {
    test::forEachLevel([](formulas::Level) {
        for (std::string const sign : {"", "-"}) {
            Projection at("type=6 ellipsoid=47 k0=0.994 lon0=-45 lat0=" + sign + "90");
            Projection beside("type=6 ellipsoid=47 k0=0.994 lon0=-45 lat0=" + sign + "89.999999999");
            for (double const lat : {-80.0, -10.0, 70.0}) {
                auto const a = at.forward(PROJPOINT{20, lat}), b = beside.forward(PROJPOINT{20, lat});
                double const bent = 1e-3 * (1 + std::hypot(a.x, a.y) / 1.2e7 * std::hypot(a.x, a.y) / 1.2e7);
                EXPECT_NEAR(a.x, b.x, bent);
                EXPECT_NEAR(a.y, b.y, bent);
            }
        }
    });
}
