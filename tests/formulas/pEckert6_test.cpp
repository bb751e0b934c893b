#include "support/cases.h"

#include <gtest/gtest.h>

using namespace ZrProj;

TEST(EckertVI, AgreesWithReferenceValues) {
    test::expectProjectionCases("eckert_vi.txt");
}
