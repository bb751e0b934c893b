#include "support/datum.h"

#include <limits>
#include <memory>

using namespace ZrProj;
using test::datumRequest;

namespace {

bool converts(CDatumTransform& transform) {
    DATUMPOINT point{10, 50};
    return transform.Convert(&point, 1) && point.x != 10 && std::abs(point.x - 10) < 0.01;
}

} // namespace

TEST(DatumTransform, OwnsItsHandle) {
    DATUMXFORM request = datumRequest(DatumTypeEuropean1950Mean, DatumTypeWorldGeodeticSystem1984);
    CDatumTransform transform;
    EXPECT_FALSE(transform.IsCreated());
    EXPECT_FALSE(transform.GetInfo(&request));
    EXPECT_FALSE(transform.HadUnplottables());
    EXPECT_FALSE(converts(transform));
    EXPECT_TRUE(transform.Create(&request));
    EXPECT_TRUE(converts(transform));
    request.Source = DatumTypeNone;
    EXPECT_FALSE(transform.Create(&request));
    EXPECT_FALSE(transform.IsCreated());
    transform.Delete();
    transform.Delete();
}

TEST(DatumTransform, CopiesDeeply) {
    DATUMXFORM const request = datumRequest(DatumTypeEuropean1950Mean, DatumTypeWorldGeodeticSystem1984);
    CDatumTransform source(&request);
    DATUMPOINT broken{std::numeric_limits<double>::quiet_NaN(), 0};
    EXPECT_TRUE(source.Convert(&broken, 1));
    CDatumTransform copy(source);
    EXPECT_TRUE(source.HadUnplottables());
    EXPECT_FALSE(copy.HadUnplottables());
    EXPECT_TRUE(converts(copy));
    EXPECT_TRUE(source.HadUnplottables()); // a handle of its own: the source's flag stands
    CDatumTransform const none;
    EXPECT_FALSE(CDatumTransform(none).IsCreated());
}

// What the address sanitizer watches: no sharer frees what another still uses.
TEST(DatumTransform, SharesItsHandleOnAssignment) {
    DATUMXFORM const request = datumRequest(DatumTypeEuropean1950Mean, DatumTypeWorldGeodeticSystem1984);
    auto first = std::make_unique<CDatumTransform>(&request);
    CDatumTransform second(&request);
    second = *first;
    DATUMPOINT broken{0, std::numeric_limits<double>::infinity()};
    EXPECT_TRUE(first->Convert(&broken, 1));
    EXPECT_TRUE(second.HadUnplottables());
    first.reset();
    EXPECT_TRUE(converts(second));
    CDatumTransform third;
    third = second;
    second.Delete();
    EXPECT_TRUE(converts(third));
    third = *&third;
    EXPECT_TRUE(converts(third));
    third = CDatumTransform();
    EXPECT_FALSE(third.IsCreated());
}
