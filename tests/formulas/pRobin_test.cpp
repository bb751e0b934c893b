#include <zrproj/projection.h>

#include <gtest/gtest.h>

using namespace ZrProj;

TEST(Robinson, IsAboutGreenwichWhateverTheRecordSays) {
    PROJDATA record{};
    record.Type = ProjTypeRobinson;
    record.MajorRadius = 1;
    record.Lon0 = 50;
    CProjector projector(&record);
    PROJPOINT point{180, 0};
    ASSERT_TRUE(projector.Forward(&point, 1));
    EXPECT_DOUBLE_EQ(point.x, 0.8487 * 3.141592653589793);
    double west = 0, east = 0;
    PROJPOINT const toTheEdge[] = {{170, 0}, {180, 0}}, acrossTheRecordsEdge[] = {{-140, 0}, {-120, 0}};
    EXPECT_TRUE(projector.LLOffsetSplitObject(toTheEdge, 2, &west, &east));
    EXPECT_EQ(west, -360);
    EXPECT_FALSE(projector.LLOffsetSplitObject(acrossTheRecordsEdge, 2, &west, &east));
}
