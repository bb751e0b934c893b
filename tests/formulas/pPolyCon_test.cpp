#include "support/levels.h"
#include "support/registry.h"

#include <cmath>

using namespace ZrProj;
using test::isMarked;
using test::Projection;

// The in-range area is half the globe, but the inverse finds every point of the map.
TEST(Polyconic, ComesBackFromAllOverTheGlobe) {
    test::forEachLevel([](levels::Level) {
        for (auto const* words :
             {"type=polyconic ellipsoid=wgs-84 lat0=20", "type=polyconic radius=6378137 flattening=0.2"}) {
            Projection projection(words);
            for (double lat = -89.5; lat < 90; lat += 0.5)
                for (double lon = -180; lon <= 180; lon += 7.5) {
                    auto const back = projection.inverse(projection.forward({lon, lat}));
                    EXPECT_NEAR(back.y, lat, 1e-12) << lon;
                    EXPECT_NEAR(back.x, lon, 1e-11) << lat;
                }
        }
    });
}

TEST(Polyconic, EndsAtTheOppositeMeridian) {
    test::forEachLevel([](levels::Level) {
        Projection projection("type=polyconic ellipsoid=wgs-84");
        for (double const lat : {-60.0, 0.0, 1e-9, 85.0}) {
            auto const edge = projection.forward({180, lat}), inner = projection.forward({179, lat});
            PROJPOINT const outer{edge.x + 1e-4 * (edge.x - inner.x), edge.y + 1e-4 * (edge.y - inner.y)};
            EXPECT_TRUE(isMarked(projection.inverse(outer))) << lat;
        }
        EXPECT_FALSE(projection.isInRange({90, 0}));
        EXPECT_TRUE(projection.isInRange({-89.999999, 90}));
    });
}

// The equator has a form of its own in the source; beside it nothing jumps.
TEST(Polyconic, IsSmoothAcrossTheEquator) {
    test::forEachLevel([](levels::Level) {
        Projection projection("type=polyconic ellipsoid=wgs-84");
        double const x = projection.forward({120, 0}).x;
        for (double const lat : {1e-320, -1e-300, 1e-200, -1e-120, 1e-99, 1e-16}) {
            auto const map = projection.forward({120, lat});
            EXPECT_NEAR(map.x, x, 1e-8) << lat;
            EXPECT_NEAR(projection.inverse(map).x, 120, 1e-13) << lat;
        }
    });
}
