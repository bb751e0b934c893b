#include <zrproj/preclip.h>

#include <gtest/gtest.h>

using namespace ZrProj;

TEST(Preclip, RefusesForNow) {
    PROJPOINT const point = {0, 0};
    CPROJCHAIN chain = {};
    CPROJCHAIN* chains = &chain;
    EXPECT_FALSE(ProjLLPreclipPolyline(nullptr, &point, 1, &chains));
    EXPECT_EQ(chains, nullptr);
    chains = &chain;
    EXPECT_FALSE(ProjLLPreclipPolygon(nullptr, &point, 1, &chains));
    EXPECT_EQ(chains, nullptr);
    EXPECT_FALSE(ProjLLPreclipPolyline(nullptr, nullptr, 0, nullptr));
}

// Under the address sanitizer a piece left behind, or freed twice, is a failure.
TEST(Preclip, FreesAWholeList) {
    CPROJCHAIN* chains = nullptr;
    for (int i = 0; i < 200000; ++i)
        chains = new CPROJCHAIN{1, i % 2 ? new PROJPOINT[1] : nullptr, false, chains};
    ProjFreeChains(chains);
    ProjFreeChains(nullptr);
}
