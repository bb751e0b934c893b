#include "support/levels.h"
#include "support/registry.h"

using namespace ZrProj;
using test::Projection;

// Where a standard parallel is the pole, the pole is a point, and q alone would tell it to a few centimetres.
TEST(Albers, KeepsItsDigitsAtAPoleThatIsAPoint) {
    test::forEachLevel([](levels::Level) {
        Projection projection("type=albers ellipsoid=wgs-84 lat1=90 lat2=30 lat0=90");
        for (double gap = 1; gap > 1e-11; gap /= 7) {
            PROJPOINT const point{-100, 90 - gap}, back = projection.inverse(projection.forward(point));
            EXPECT_NEAR(back.x, point.x, 1e-11);
            EXPECT_NEAR(back.y, point.y, 1e-13);
        }
    });
}
