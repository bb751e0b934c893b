#include "support/georef_cases.h"

#include <gtest/gtest.h>

#include <memory>

using namespace ZrProj;
using namespace ZrProj::test;

namespace {

GEOREF shift() {
    GEOREF record{};
    record.Method = TransformMethodPrecalculatedAffineCoefficients;
    record.A = record.E = 1;
    record.C = record.F = 10;
    return record;
}

bool maps(CGeorefTransform& transform) {
    GEOREFPOINT point{1, 2};
    return transform.Forward(&point, 1) && point.x == 11 && point.y == 12;
}

} // namespace

TEST(GeorefTransform, OwnsItsSystem) {
    GEOREF record = shift();
    CGeorefTransform transform;
    EXPECT_FALSE(transform.IsCreated());
    EXPECT_FALSE(transform.GetInfo(&record));
    EXPECT_TRUE(transform.Create(&record));
    EXPECT_TRUE(maps(transform));
    EXPECT_FALSE(transform.Create(nullptr));
    EXPECT_FALSE(transform.IsCreated());
    transform.Delete();
}

TEST(GeorefTransform, CopiesDeeply) {
    auto controls = scattered(5, 100, [](GEOREFPOINT p) { return GEOREFPOINT{p.x + 10, p.y + 10}; });
    GEOREF const record = controls.record(TransformMethodThinPlateSpline);
    auto source = std::make_unique<CGeorefTransform>(&record);
    CGeorefTransform copy(*source);
    source.reset();
    GEOREFPOINT point{1, 2};
    ASSERT_TRUE(copy.Forward(&point, 1));
    EXPECT_LE(distance(point, {11, 12}), 1e-9);
    CGeorefTransform const none;
    EXPECT_FALSE(CGeorefTransform(none).IsCreated());
}

// What the address sanitizer watches: no sharer frees what another still uses.
TEST(GeorefTransform, SharesItsSystemOnAssignment) {
    GEOREF const record = shift();
    auto first = std::make_unique<CGeorefTransform>(&record);
    CGeorefTransform second(&record);
    second = *first;
    first.reset();
    EXPECT_TRUE(maps(second));
    CGeorefTransform third;
    third = second;
    second.Delete();
    EXPECT_TRUE(maps(third));
    third = *&third;
    EXPECT_TRUE(maps(third));
}
