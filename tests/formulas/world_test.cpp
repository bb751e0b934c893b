#include "proj/projection_table.h"
#include "support/levels.h"
#include "support/registry.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace ZrProj;

namespace {

// What is shown of the maps of the whole globe, and what is not: their outlines are the meridian opposite to the
// central one and the poles.
class Outline : public testing::TestWithParam<ProjType> {};

PROJPOINT fromCentre(PROJPOINT point, double factor) {
    return {3e6 + (point.x - 3e6) * factor, -2e6 + (point.y + 2e6) * factor};
}

} // namespace

TEST_P(Outline, IsShownAndNothingBeyondIt) {
    test::forEachLevel([](levels::Level) {
        test::Projection map(std::string("type=") + projectionRow(GetParam())->key +
                             " ellipsoid=standard-sphere-of-6370997-meters x0=3e6 y0=-2e6");
        for (double const lon : {-180.0, 180.0})
            for (double lat = -90; lat <= 90; lat += 2.5) {
                auto const edge = map.forward(PROJPOINT{lon, lat}), back = map.inverse(edge);
                EXPECT_NEAR(back.y, lat, 1e-5);
                EXPECT_NEAR(test::longitudesApart(back.x, lon) * (90 - std::abs(lat)), 0, 1e-5) << lat;
                EXPECT_FALSE(test::isMarked(map.inverse(fromCentre(edge, 1 - 1e-12)))) << lat;
                EXPECT_TRUE(test::isMarked(map.inverse(fromCentre(edge, 1 + 1e-12)))) << lat;
            }
    });
}

INSTANTIATE_TEST_SUITE_P(World, Outline,
                         testing::Values(ProjTypeMollweide, ProjTypeEckertIV, ProjTypeEckertVI, ProjTypeRobinson,
                                         ProjTypeRobinsonSterling, ProjTypeVanDerGrinten));
