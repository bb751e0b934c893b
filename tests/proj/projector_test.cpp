#include <zrproj/projection.h>

#include <gtest/gtest.h>

#include <memory>

using namespace ZrProj;

namespace {

PROJDATA transverseMercator() {
    PROJDATA record{};
    record.Type = ProjTypeTransverseMercator;
    record.Ellipsoid = EllipsoidTypeWgs84;
    return record;
}

bool converts(CProjector& projector) {
    PROJPOINT point{0, 0};
    return projector.Forward(&point, 1) && point.x == 0 && point.y == 0;
}

} // namespace

TEST(Projector, OwnsItsHandle) {
    PROJDATA record = transverseMercator();
    CProjector projector;
    EXPECT_FALSE(projector.IsCreated());
    EXPECT_FALSE(projector.GetInfo(&record));
    EXPECT_EQ(projector.Result(), 0);
    EXPECT_TRUE(projector.Create(&record));
    EXPECT_TRUE(converts(projector));
    record.Lon0 = 400;
    EXPECT_FALSE(projector.Create(&record));
    EXPECT_FALSE(projector.IsCreated());
    projector.Delete();
    projector.Delete();
}

TEST(Projector, CopiesDeeplyWithoutTouchingTheSource) {
    PROJDATA record = transverseMercator();
    CProjector source(&record);
    PROJPOINT broken{0.0 / 0.0, 0};
    source.Forward(&broken, 1);
    auto copy = std::make_unique<CProjector>(source);
    EXPECT_EQ(source.Result(), 1);
    EXPECT_TRUE(converts(*copy));
    EXPECT_EQ(source.Result(), 1); // a handle of its own: the source's result stands
    CProjector const none;
    EXPECT_FALSE(CProjector(none).IsCreated());
}

// What the address sanitizer watches: no sharer frees what another still uses.
TEST(Projector, SharesItsHandleOnAssignment) {
    PROJDATA record = transverseMercator();
    auto first = std::make_unique<CProjector>(&record);
    CProjector second(&record);
    second = *first;
    PROJPOINT broken{0.0 / 0.0, 0};
    first->Forward(&broken, 1);
    EXPECT_EQ(second.Result(), 1);
    first.reset();
    EXPECT_TRUE(converts(second));
    CProjector third;
    third = second;
    second.Delete();
    EXPECT_TRUE(converts(third));
    third = *&third;
    EXPECT_TRUE(converts(third));
    third = CProjector();
    EXPECT_FALSE(third.IsCreated());
}
