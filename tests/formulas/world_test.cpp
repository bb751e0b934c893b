#include "support/levels.h"

#include <zrproj/projection.h>

#include <gtest/gtest.h>

#include <cfloat>
#include <cmath>

using namespace ZrProj;

namespace {

// What is shown of the maps of the whole globe, and what is not: their outlines are the meridian opposite to the
// central one and the poles.
class Outline : public testing::TestWithParam<ProjType> {
protected:
    PROJDATA record() const {
        PROJDATA record{};
        record.Type = GetParam();
        record.MajorRadius = 6370997;
        record.xOrg = 3e6;
        record.yOrg = -2e6;
        return record;
    }
};

PROJPOINT fromCentre(PROJPOINT point, double factor) {
    return {3e6 + (point.x - 3e6) * factor, -2e6 + (point.y + 2e6) * factor};
}

} // namespace

TEST_P(Outline, IsShownAndNothingBeyondIt) {
    test::forEachLevel([this](formulas::Level) {
        PROJDATA data = record();
        CProjector projector(&data);
        for (double const lon : {-180.0, 180.0})
            for (double lat = -90; lat <= 90; lat += 2.5) {
                PROJPOINT edge{lon, lat};
                ASSERT_TRUE(projector.Forward(&edge, 1));
                PROJPOINT points[] = {edge, fromCentre(edge, 1 - 1e-12), fromCentre(edge, 1 + 1e-12)};
                ASSERT_TRUE(projector.Inverse(points, 3));
                EXPECT_NEAR(points[0].y, lat, 1e-5);
                double const apart = std::remainder(points[0].x - lon, 360) * (90 - std::abs(lat));
                EXPECT_NEAR(apart, 0, 1e-5) << lat;
                EXPECT_NE(points[1].x, DBL_MAX) << lat;
                EXPECT_EQ(points[2].x, DBL_MAX) << lat;
            }
    });
}

TEST_P(Outline, MarksWhatIsFarAway) {
    test::forEachLevel([this](formulas::Level) {
        PROJDATA data = record();
        CProjector projector(&data);
        for (double const x : {0.0, 1e9, -1e20, 1e160, 1e308})
            for (double const y : {0.0, -1e9, 1e20, -1e160, 1e308}) {
                PROJPOINT point{x, y};
                ASSERT_TRUE(projector.Inverse(&point, 1)) << x << ' ' << y;
                EXPECT_EQ(point.x == DBL_MAX, x != 0 || y != 0) << x << ' ' << y;
            }
    });
}

INSTANTIATE_TEST_SUITE_P(World, Outline,
                         testing::Values(ProjTypeMollweide, ProjTypeEckertIV, ProjTypeEckertVI, ProjTypeRobinson,
                                         ProjTypeRobinsonSterling, ProjTypeVanDerGrinten));
