#include "support/cases.h"
#include "support/registry.h"

#include <gtest/gtest.h>

using namespace ZrProj;

TEST(EquidistantCylindrical, AgreesWithReferenceValues) {
    test::expectProjectionCases("equidistant_cylindrical.txt");
}

TEST(EquidistantCylindrical, HasNoMapThatIsTrueAtAPole) {
    test::Projection projection("type=13 ellipsoid=47 lat1=-90");
    EXPECT_TRUE(test::isMarked(projection.forward({0, 10})) && test::isMarked(projection.inverse({0, 10})));
    EXPECT_FALSE(projection.isInRange({0, 10}));
}
