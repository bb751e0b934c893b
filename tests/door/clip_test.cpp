#include "door/handles.h"

#include <algorithm>
#include <span>
#include <vector>

using namespace ZrProj;
using namespace ZrProj::test;

namespace {

struct Piece {
    double const* points = nullptr;
    size_t count = 0;
    int isRing = -1;
};

std::vector<Piece> listed(Pieces const& pieces) {
    std::vector<Piece> list;
    Piece piece;
    while (zrproj_pieces_entry(pieces.get(), list.size(), &piece.points, &piece.count, &piece.isRing) == ZRPROJ_OK)
        list.push_back(piece);
    return list;
}

zrproj_parameters robinson() {
    return parametersOf(recordOf("type=robinson ellipsoid=standard-sphere-of-6370997-meters"));
}

} // namespace

TEST(DoorClip, CutsAsTheRecordInterfaceDoes) {
    System const world = systemOf(robinson());
    double const flight[] = {139.7, 35.7, 170, 45, -150, 50, -122.4, 37.8};
    auto const line = made<Pieces>([&](zrproj_pieces** p) { return zrproj_clip_line(world.get(), flight, 4, p); });
    auto const pieces = listed(line);
    ASSERT_EQ(pieces.size(), 2U);
    EXPECT_EQ(pieces[0].count, 3U);
    EXPECT_EQ(pieces[0].isRing, 0);
    EXPECT_EQ(pieces[0].points[0], 139.7);
    EXPECT_NEAR(pieces[0].points[4], 180, 1e-8);
    EXPECT_NEAR(pieces[1].points[0], -180, 1e-8);

    double const coast[] = {-120, -74, -60, -65, 0, -70, 60, -67, 120, -66, 170, -72};
    auto const ring = made<Pieces>([&](zrproj_pieces** p) { return zrproj_clip_ring(world.get(), coast, 6, p); });
    ASSERT_EQ(listed(ring).size(), 1U);
    EXPECT_EQ(listed(ring)[0].isRing, 1);
    EXPECT_EQ(listed(ring)[0].count, 403U);
}

// The map's edges count from its central meridian, the points do not.
TEST(DoorClip, LeavesWhatIsNotCutAsItIs) {
    auto const world = made<System>([&](zrproj_system** s) {
        return zrproj_system_create("+proj=robin +lon_0=-149.7 +datum=WGS84 +units=m +no_defs +type=crs", s);
    });
    double const track[] = {-170.1, 0.1, -160.2, 10.3, -155.3, 20.7, -100.7, 30.1, -20.3, 35.3, -0.1, 40.7};
    double const eastOfGreenwich[] = {259.3, 30.1, 289.1, 35.3};
    for (std::span<double const> const given :
         {std::span<double const>(track), std::span<double const>(eastOfGreenwich)}) {
        auto const pieces = made<Pieces>(
            [&](zrproj_pieces** p) { return zrproj_clip_line(world.get(), given.data(), given.size() / 2, p); });
        auto const list = listed(pieces);
        ASSERT_EQ(list.size(), 1U);
        EXPECT_TRUE(std::ranges::equal(std::span(list[0].points, 2 * list[0].count), given));
    }
}

TEST(DoorClip, ShowsNothingOfWhatLiesBehindTheHorizon) {
    System const globe = systemOf(
        parametersOf(recordOf("type=orthographic ellipsoid=standard-sphere-of-6370997-meters lat0=40 lon0=10")));
    double const square[] = {-175, -40, -170, -40, -170, -35};
    auto const pieces = made<Pieces>([&](zrproj_pieces** p) { return zrproj_clip_ring(globe.get(), square, 3, p); });
    EXPECT_EQ(zrproj_pieces_entry(pieces.get(), 0, nullptr, nullptr, nullptr), ZRPROJ_UNKNOWN);
}

TEST(DoorClip, RefusesWhatCannotBeCut) {
    System const world = systemOf(robinson()), geographic = geographicOf(world);
    double const points[] = {0, 0, 1, 1, 2, 0};
    zrproj_pieces* pieces = nullptr;
    EXPECT_EQ(zrproj_clip_line(geographic.get(), points, 3, &pieces), ZRPROJ_UNSUPPORTED);
    EXPECT_EQ(zrproj_clip_line(world.get(), points, 1, &pieces), ZRPROJ_BAD_ARGUMENT);
    EXPECT_EQ(zrproj_clip_ring(world.get(), points, 2, &pieces), ZRPROJ_BAD_ARGUMENT);
    EXPECT_EQ(zrproj_clip_ring(world.get(), points, SIZE_MAX, &pieces), ZRPROJ_BAD_ARGUMENT);
    EXPECT_EQ(zrproj_clip_ring(world.get(), nullptr, 3, &pieces), ZRPROJ_BAD_ARGUMENT);
    EXPECT_EQ(zrproj_clip_ring(nullptr, points, 3, &pieces), ZRPROJ_BAD_ARGUMENT);
    EXPECT_EQ(zrproj_clip_ring(world.get(), points, 3, nullptr), ZRPROJ_BAD_ARGUMENT);
    EXPECT_EQ(pieces, nullptr);
    zrproj_pieces_destroy(nullptr);
}
