// Records that pass validation and define no map: every point is marked, and none is in range.
#include "support/levels.h"
#include "support/registry.h"

#include <gtest/gtest.h>

using namespace ZrProj;
using test::isMarked;

TEST(NoMap, EveryPointIsMarked) {
    for (auto const* words : {
             "type=1 ellipsoid=47 lat0=100",
             "type=5 ellipsoid=47 lat1=40 lat2=-40", // no cone
             "type=5 ellipsoid=47 lat1=40 lat2=50 lat0=-90",
             "type=5 ellipsoid=47 lat1=90 lat2=50",
             "type=5 ellipsoid=47 lat1=40 lat2=100",
             "type=5 radius=1 flattening=0.7 lat1=40",
             "type=9 ellipsoid=3 zone=141",
             "type=10 ellipsoid=3 zone=138",
             "type=12 ellipsoid=47 lat0=50 lat1=44 lon1=78",                  // the line stays south of the centre
             "type=12 ellipsoid=47 lat0=20 lat1=30 lon1=10 lat2=30 lon2=10",  // one point
             "type=12 ellipsoid=48 lat0=0 lat1=30 lon1=10 lat2=-30 lon2=190", // antipodes
             "type=12 ellipsoid=47 lat0=100 alpha=40 usealpha=1",
             "type=13 ellipsoid=47 lat1=-90",                          // a parallel without length
             "type=25 ellipsoid=48 lat1=30 lon1=10 lat2=-30 lon2=190", // antipodes
             "type=25 ellipsoid=48 lat1=30 lon1=10 lat2=120 lon2=40",
             "type=28 radius=6378137 flattening=0.0201 lat1=35",
         }) {
        SCOPED_TRACE(words);
        test::forEachLevel([&](formulas::Level) {
            test::Projection nowhere(words);
            EXPECT_TRUE(isMarked(nowhere.forward(PROJPOINT{5, 10})));
            EXPECT_TRUE(isMarked(nowhere.inverse(PROJPOINT{5e5, 1e6})));
            EXPECT_TRUE(isMarked(nowhere.inverse(PROJPOINT{0, 10})));
            EXPECT_FALSE(nowhere.isInRange({5, 10}));
        });
    }
}
