#include "support/cases.h"

#include <gtest/gtest.h>

using namespace ZrProj;

TEST(Miller, AgreesWithReferenceValues) {
    test::expectProjectionCases("miller.txt");
}
