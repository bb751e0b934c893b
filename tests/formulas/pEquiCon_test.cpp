#include "support/cases.h"

#include <gtest/gtest.h>

using namespace ZrProj;

TEST(EquidistantConic, AgreesWithReferenceValues) {
    test::expectProjectionCases("equidistant_conic.txt");
}
