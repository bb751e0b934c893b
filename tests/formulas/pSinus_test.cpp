#include "support/cases.h"

#include <gtest/gtest.h>

using namespace ZrProj;

TEST(Sinusoidal, AgreesWithReferenceValues) {
    test::expectProjectionCases("sinusoidal.txt");
}
