#include "support/levels.h"
#include "support/registry.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace ZrProj;
using test::isMarked;
using test::Projection;

TEST(ObliqueMercator, LaysItsLineAlongXAndMarksItsPoles) {
    test::forEachLevel([](levels::Level) {
        // Either order of the points, and a line whose pole the cross product finds in the south.
        for (auto const* words : {"type=oblique-mercator ellipsoid=standard-sphere-of-6370997-meters lat1=20 lon1=-100 "
                                  "lat2=40 lon2=-60 k0=0.5",
                                  "type=oblique-mercator ellipsoid=standard-sphere-of-6370997-meters lat1=40 lon1=-60 "
                                  "lat2=20 lon2=-100 k0=0.5"}) {
            Projection line(words);
            auto const west = line.forward(PROJPOINT{-100, 20}), east = line.forward(PROJPOINT{-60, 40});
            EXPECT_NEAR(west.y, 0, 1e-8);
            EXPECT_NEAR(east.y, 0, 1e-8);
            EXPECT_NEAR(east.x - west.x, 0.5 * 6370997 * 0.6899457022936587, 1e-7); // radians between them
            EXPECT_GT(line.forward(PROJPOINT{-80, 60}).y, 0);                       // north is to the left
        }
        // A meridian, straight north and over the pole to the other side, 90 degrees from the meridian either way.
        Projection meridian(
            "type=oblique-mercator ellipsoid=standard-sphere-of-6370997-meters lat1=10 lon1=30 lat2=50 lon2=30");
        auto const one = meridian.forward(PROJPOINT{30, 10}), two = meridian.forward(PROJPOINT{30, 50});
        EXPECT_NEAR(one.y, 0, 1e-8);
        EXPECT_NEAR(std::abs(two.x - one.x), 6370997 * 0.6981317007977318, 1e-7);
        EXPECT_FALSE(meridian.isInRange({120, 0}));
        EXPECT_FALSE(meridian.isInRange({-60, 0}));
        EXPECT_TRUE(meridian.isInRange({-60, 1e-9}));
        EXPECT_TRUE(isMarked(meridian.forward(PROJPOINT{120, 0})) && isMarked(meridian.forward(PROJPOINT{-60, -0.0})));
        EXPECT_FALSE(isMarked(meridian.forward(PROJPOINT{120, 1e-6})) || isMarked(meridian.forward(PROJPOINT{30, 90})));
    });
}
