#include "support/cases.h"
#include "support/levels.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace ZrProj;

TEST(Mollweide, AgreesWithReferenceValues) {
    test::expectProjectionCases("mollweide.txt");
}

// Beside a pole a parallel is nearly as high as the pole, and theta is the cube root of a small number.
TEST(Mollweide, ComesBackFromBesideThePoles) {
    test::forEachLevel([](formulas::Level) {
        PROJDATA record{};
        record.Type = ProjTypeMollweide;
        record.MajorRadius = 6370997;
        CProjector projector(&record);
        for (double rest = 10; rest > 1e-6; rest /= 3) {
            PROJPOINT point{170, rest - 90}, map = point;
            ASSERT_TRUE(projector.Forward(&map, 1));
            auto back = map;
            ASSERT_TRUE(projector.Inverse(&back, 1) && projector.Forward(&back, 1));
            EXPECT_NEAR(std::hypot(back.x - map.x, back.y - map.y), 0, 2e-6) << rest; // a rounding of the latitude
        }
    });
}
