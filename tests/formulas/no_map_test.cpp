// Records that pass validation and define no map: every point is marked, and none is in range.
#include "support/levels.h"
#include "support/registry.h"

#include <gtest/gtest.h>

using namespace ZrProj;
using test::isMarked;

TEST(NoMap, EveryPointIsMarked) {
    for (
        auto const* words : {
            "type=mercator ellipsoid=wgs-84 lat0=100",
            "type=lambert-conformal-conic ellipsoid=wgs-84 lat1=40 lat2=-40", // no cone
            "type=lambert-conformal-conic ellipsoid=wgs-84 lat1=40 lat2=50 lat0=-90",
            "type=lambert-conformal-conic ellipsoid=wgs-84 lat1=90 lat2=50",
            "type=lambert-conformal-conic ellipsoid=wgs-84 lat1=40 lat2=100",
            "type=lambert-conformal-conic radius=1 flattening=0.7 lat1=40",
            "type=state-plane-1927 ellipsoid=grs-1980-iugg-1980 zone=great-lakes-survey-4",
            "type=state-plane-1983 ellipsoid=grs-1980-iugg-1980 zone=great-lakes-survey-1",
            "type=hotine ellipsoid=wgs-84 lat0=50 lat1=44 lon1=78", // the line stays south of the centre
            "type=hotine ellipsoid=wgs-84 lat0=20 lat1=30 lon1=10 lat2=30 lon2=10", // one point
            "type=hotine ellipsoid=standard-sphere-of-6370997-meters lat0=0 lat1=30 lon1=10 lat2=-30 lon2=190", // antipodes
            "type=hotine ellipsoid=wgs-84 lat0=100 alpha=40 use_alpha=1",
            "type=equidistant-cylindrical ellipsoid=wgs-84 lat1=-90", // a parallel without length
            "type=oblique-mercator ellipsoid=standard-sphere-of-6370997-meters lat1=30 lon1=10 lat2=-30 lon2=190", // antipodes
            "type=oblique-mercator ellipsoid=standard-sphere-of-6370997-meters lat1=30 lon1=10 lat2=120 lon2=40",
            "type=azimuthal-equidistant radius=6378137 flattening=0.0201 lat1=35",
            "method=colombia-urban radius=6378137 rf=298.257222101 height=100000",
            "method=cylindrical-equal-area radius=6378137 lat1=90", // a parallel without length
            "method=gnomonic-ellipsoid radius=6378137 flattening=0.0201",
            "method=krovak radius=6378137 lat0=49.5 colatitude=30 lat1=-78.5",
            "method=lambert-near-conformal radius=6378137 lat0=0",        // no cone
            "method=new-zealand-map-grid radius=6378388 rf=297 lat0=-42", // the polynomial is another origin's
            "method=transverse-mercator-exact radius=6378137 flattening=0.0201",
            "method=transverse-mercator-zoned radius=6378137 rf=298.257223563",
            "method=transverse-mercator-zoned radius=6378137 rf=298.257223563 zone_width=7",
        }) {
        SCOPED_TRACE(words);
        test::forEachLevel([&](levels::Level) {
            test::Projection nowhere(words);
            EXPECT_TRUE(isMarked(nowhere.forward(PROJPOINT{5, 10})));
            EXPECT_TRUE(isMarked(nowhere.inverse(PROJPOINT{5e5, 1e6})));
            EXPECT_TRUE(isMarked(nowhere.inverse(PROJPOINT{0, 10})));
            EXPECT_FALSE(nowhere.isInRange({5, 10}));
        });
    }
}
