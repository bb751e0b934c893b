// Zones of a transverse Mercator grid: their numbers, where they meet, and what belongs to none.
#include "support/levels.h"
#include "support/registry.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace ZrProj;
using test::isMarked;
using test::Projection;

namespace {

constexpr char const* grid =
    "method=transverse-mercator-zoned radius=6378137 rf=298.257223563 lon0=-180 zone_width=6 k0=0.9996 x0=500000";

int zoneOf(PROJPOINT const& map) {
    return static_cast<int>(map.x / 1e6);
}

} // namespace

TEST(TransverseMercatorZoned, NumbersZonesFromTheWest) {
    test::forEachLevel([](levels::Level) {
        Projection projection(grid);
        for (int zone = 1; zone <= 60; ++zone) {
            double const west = -186 + 6.0 * zone;
            for (double const lon : {west, west + 3, west + 5.999999999, west > 0 ? west - 360 : west + 360})
                EXPECT_EQ(zoneOf(projection.forward(PROJPOINT{lon, 45})), zone) << lon;
            EXPECT_NEAR(projection.forward(PROJPOINT{west + 3, 45}).x, zone * 1e6 + 500000, 1e-6);
        }
    });
}

TEST(TransverseMercatorZoned, MarksWhatIsInNoZone) {
    test::forEachLevel([](levels::Level) {
        Projection projection(grid);
        for (double const x : {500000.0, 61500000.0, -31500000.0, 32100000.0, 32900000.0, 1e300})
            EXPECT_TRUE(isMarked(projection.inverse(PROJPOINT{x, 5e6}))) << x;
        EXPECT_FALSE(isMarked(projection.inverse(PROJPOINT{32300000, 5e6})));
    });
}
