#include "cli/map/projection.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace ZrProj;
using namespace ZrProj::Command;

namespace {

MapProjection projection(ProjType type, EllipsoidType ellipsoid) {
    PROJDATA record = {};
    record.Type = type;
    record.Ellipsoid = ellipsoid;
    return MapProjection({.record = record});
}

} // namespace

TEST(MapDistortion, IsThatOfTheProjection) {
    auto mercator = projection(ProjTypeMercator, EllipsoidTypeWgs84);
    double const e2 = 0.00669437999014, latitude = 1.0471975511965976, sine = std::sin(latitude);
    double const scale = std::sqrt(1 - e2 * sine * sine) / std::cos(latitude); // Snyder (1987), (7-8)
    Ellipse const circle = ellipseOf(localScale(mercator, {50, 60}).value());
    EXPECT_NEAR(circle.first, scale, 1e-6);
    EXPECT_NEAR(circle.second, scale, 1e-6);

    auto sinusoidal = projection(ProjTypeSinusoidal, EllipsoidTypeWgs84);
    LocalScale const sheared = localScale(sinusoidal, {-120, 40}).value();
    EXPECT_NEAR(sheared.areal(), 1, 1e-6);
    EXPECT_NEAR(ellipseOf(sheared).first * ellipseOf(sheared).second, 1, 1e-6);
    EXPECT_FALSE(localScale(sinusoidal, {-180, 40})) << "across the map's edge";
    EXPECT_FALSE(localScale(sinusoidal, {0, 90}));
}

TEST(MapDistortion, EllipsesAreTurned) {
    double const c = std::cos(0.5), s = std::sin(0.5);
    Ellipse const shape =
        ellipseOf({{3 * c, 3 * s}, {-2 * s, 2 * c}}); // 3 and 2 times as long, turned by half a radian
    EXPECT_NEAR(shape.first, 3, 1e-12);
    EXPECT_NEAR(shape.second, 2, 1e-12);
    EXPECT_NEAR(shape.turn, 28.64788975654116, 1e-9);
}

TEST(MapProjection, TellsWhichPlacesItShows) {
    PROJDATA record = {};
    record.Type = ProjTypeTransverseMercator;
    record.Ellipsoid = EllipsoidTypeWgs84;
    record.Lon0 = 180;
    MapProjection map({.record = record});
    auto const west = map.shown({179, 10}), east = map.shown({-179, 10});
    ASSERT_TRUE(west && east);
    EXPECT_NEAR(map.at(*west)->x, -map.at(*east)->x, 1e-6);
    EXPECT_FALSE(map.shown({0, 10}));
}
