#include "support/cases.h"
#include "support/levels.h"
#include "support/registry.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace ZrProj;
using test::isMarked;
using test::Projection;

TEST(LambertAzimuthal, AgreesWithReferenceValues) {
    test::expectProjectionCases("lambert_azimuthal.txt");
}

TEST(LambertAzimuthal, MarksTheAntipodeAndNothingNearIt) {
    test::forEachLevel([](formulas::Level) {
        for (auto const* words : {"type=20 ellipsoid=47 lat1=40 lon0=-100", "type=20 ellipsoid=48 lat1=40 lon0=-100"}) {
            Projection map(words);
            PROJPOINT points[] = {{80, -40}, {-280, -40}, {80 + 1e-11, -40}, {-100, 40}};
            EXPECT_TRUE(map.tryForward(points));
            EXPECT_TRUE(isMarked(points[0]) && isMarked(points[1]));
            EXPECT_FALSE(isMarked(points[2]) || isMarked(points[3]));
            EXPECT_FALSE(map.isInRange({80, -40}));
            EXPECT_TRUE(map.isInRange({80 + 1e-11, -40}));
        }
        Projection polar("type=20 ellipsoid=47 lat1=-90 lon0=30");
        EXPECT_TRUE(isMarked(polar.forward(PROJPOINT{77, 90})));
        EXPECT_FALSE(polar.isInRange({77, 90}));
    });
}

TEST(LambertAzimuthal, KeepsItsRimAndMarksWhatLiesOutside) {
    test::forEachLevel([](formulas::Level) {
        Projection map("type=20 ellipsoid=48 lat1=40 lon0=-100");
        double const rim = 2 * 6370997;
        for (double const turn : {0.0, 0.7, 2.5, 4.0}) {
            PROJPOINT const on{rim * std::cos(turn), rim * std::sin(turn)};
            auto const place = map.inverse(on);
            ASSERT_FALSE(isMarked(place));
            auto const back = map.forward(place); // the antipode itself would not come back
            EXPECT_NEAR(back.x, on.x, 1.5);
            EXPECT_NEAR(back.y, on.y, 1.5);
            EXPECT_NEAR(std::hypot(back.x, back.y), rim, 1e-7);
            EXPECT_TRUE(isMarked(map.inverse(PROJPOINT{on.x * (1 + 1e-12), on.y * (1 + 1e-12)})));
        }
    });
}

TEST(LambertAzimuthal, IsTheSameAtAPoleAndBesideIt) {
    test::forEachLevel([](formulas::Level) {
        for (std::string const sign : {"", "-"}) {
            Projection at("type=20 ellipsoid=47 lon0=-45 lat1=" + sign + "90");
            Projection beside("type=20 ellipsoid=47 lon0=-45 lat1=" + sign + "89.999999999");
            for (double const lat : {-80.0, -10.0, 70.0}) {
                auto const a = at.forward(PROJPOINT{20, lat}), b = beside.forward(PROJPOINT{20, lat});
                EXPECT_NEAR(a.x, b.x, 2e-3);
                EXPECT_NEAR(a.y, b.y, 2e-3);
            }
        }
    });
}
