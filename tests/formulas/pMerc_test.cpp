#include "support/levels.h"
#include "support/registry.h"

#include <cmath>

using namespace ZrProj;
using test::isMarked;
using test::Projection;

TEST(Mercator, EndsBeforeThePoles) {
    test::forEachLevel([](levels::Level) {
        Projection projection("type=mercator ellipsoid=wgs-84 lon0=10 lat0=30");
        EXPECT_TRUE(isMarked(projection.forward({20, 90})) && isMarked(projection.forward({20, -90})));
        PROJPOINT const last{20, std::nextafter(90.0, 0)}, map = projection.forward(last);
        ASSERT_FALSE(isMarked(map));
        EXPECT_LT(projection.inverse(map).y, 90);
        EXPECT_NEAR(projection.inverse(map).y, 90, 1e-13);
        EXPECT_TRUE(isMarked(projection.inverse({map.x, map.y + 1})));
        EXPECT_TRUE(isMarked(projection.inverse({map.x, -map.y - 1e7})));
    });
}
