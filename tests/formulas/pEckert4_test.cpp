#include "support/cases.h"

#include <gtest/gtest.h>

using namespace ZrProj;

TEST(EckertIV, AgreesWithReferenceValues) {
    test::expectProjectionCases("eckert_iv.txt");
}
