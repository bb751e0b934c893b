#include "cli/points/point_converter.h"

#include "cli/model/zones.h"
#include "cli/text/usage_error.h"
#include "support/ntv2_file.h"
#include "tests/cli/support.h"

#include <gtest/gtest.h>

#include <array>
#include <cfloat>

namespace ZrProj::Command {
namespace {

PROJDATA utmRecord(int zone) {
    PROJDATA record = {};
    record.Ellipsoid = EllipsoidTypeWgs84;
    setUtmZone(record, utmZone(zone, false));
    return record;
}

TEST(PointConverter, LongitudesAreTakenOnTheCentralMeridiansSide) {
    PointConverter converter(systemOfRecord(utmRecord(1))); // central meridian -177
    std::array<PROJPOINT, 3> points{{{-180.1, 10}, {179.9, 10}, {-177 - 360, 10}}};
    std::array<PointState, 3> states{};
    converter.forward(points, states);
    EXPECT_NEAR(points[0].x, points[1].x, 1e-6);
    EXPECT_NEAR(points[2].x, 500000, 1e-6);
    converter.inverse(points, states);
    EXPECT_NEAR(points[0].x, 179.9, 1e-8);
    EXPECT_NEAR(points[2].x, -177, 1e-8);
}

TEST(PointConverter, ACentralMeridianWrittenAnotherWayRoundChangesNothing) {
    PROJDATA record = utmRecord(1);
    PointConverter plain(systemOfRecord(record));
    record.Lon0 = 183;
    PointConverter wrapped(systemOfRecord(record));
    std::array<PROJPOINT, 1> a{{{178, 10}}}, b = a;
    std::array<PointState, 1> states{};
    plain.forward(a, states);
    wrapped.forward(b, states);
    EXPECT_EQ(states[0], PointState::Good);
    EXPECT_EQ(a[0].x, b[0].x);
}

TEST(PointConverter, PointsWithoutAGoodResultAreToldApart) {
    PointConverter converter(systemOfRecord(utmRecord(31))); // central meridian 3
    std::array<PROJPOINT, 5> points{{{4, 10}, {14, 10}, {60, 10}, {5, 10}, {6, 10}}};
    std::array<PointState, 5> states{};
    states[3] = PointState::Marked;
    converter.forward(points, states);
    EXPECT_EQ(states, (std::array{PointState::Good, PointState::Far, PointState::Outside, PointState::Marked,
                                  PointState::Good}));
    EXPECT_NEAR(points[4].x - 500000, 328000, 2000);
}

TEST(PointConverter, CoordinatesThatBelongToNoPointHaveNoLongitude) {
    PointConverter converter(systemOfRecord(utmRecord(17)));
    std::array<PROJPOINT, 5> points{{{630084, 4833438}, {2e7, 0}, {4e6, 7e6}, {500000, 1.5e7}, {1e300, -1e300}}};
    std::array<PointState, 5> states{};
    converter.inverse(points, states);
    EXPECT_EQ(states[0], PointState::Good);
    EXPECT_NEAR(points[0].y, 43.64256, 1e-4);
    for (std::size_t i = 1; i < points.size(); ++i)
        EXPECT_FALSE(hasResult(states[i])) << i;
}

TEST(PointConverter, UnprojectedPointsAreNotConverted) {
    EXPECT_THROW(PointConverter{systemOfDefinition("EPSG:4326")}, UsageError);
}

TEST(PointConverter, PointsOffAGridAndOutOfTheAreaAreToldApart) {
    auto const wgs84 = systemOfDefinition("EPSG:4326");
    PointConverter const byArea(std::make_shared<Way const>(systemOfDefinition("EPSG:27700"), wgs84));
    std::array<PROJPOINT, 2> points{{{530000, 180000}, {530000, -900000}}};
    std::array<PointState, 2> states{};
    byArea.forward(points, states);
    EXPECT_EQ(states, (std::array{PointState::Good, PointState::OutOfArea}));
    EXPECT_NEAR(points[1].y, 41.8, 0.1);

    auto const still = [](int, int) { return 0.0F; };
    auto const north = [](int, int) { return 3.6F; };
    TemporaryDirectory const folder;
    std::ofstream(folder.file("BETA2007.gsb"), std::ios::binary)
        << test::Ntv2File{{{"SMALL", "NONE", 180000, -25200, 3600, 3600, 3, 3, north, still}}}.bytes();
    auto const dhdn = systemOfDefinition("DHDN"), etrs89 = systemOfDefinition("ETRS89");
    PointConverter const byGrid(std::make_shared<Way const>(dhdn, etrs89, WayOptions{folder.path(), false}));
    points = {{{6, 51}, {12, 51}}};
    states = {};
    byGrid.forward(points, states);
    EXPECT_EQ(states, (std::array{PointState::Good, PointState::Ungridded}));
    EXPECT_NEAR(points[0].y, 51.001, 1e-8);
    EXPECT_EQ(points[1].x, DBL_MAX);
}

Datum datumNamed(char const* name) {
    return findDatum(name, {});
}

TEST(DatumConverter, TellsWhatBecameOfEachPoint) {
    DatumConverter converter({datumNamed("227"), datumNamed("wgs84")}); // Brazil's east, by equations
    std::array<PROJPOINT, 4> points{{{-40, -20}, {-67, -1}, {-40, -20}, {-40, -20}}};
    std::array<PointState, 4> states{PointState::Good, PointState::Good, PointState::Outside, PointState::Far};
    converter.convert(points, states);
    EXPECT_EQ(states, (std::array{PointState::Good, PointState::OffArea, PointState::Outside, PointState::Far}));
    EXPECT_NEAR(points[0].x, -40, 0.01);
    EXPECT_NE(points[0].x, -40);
    EXPECT_EQ(points[2].x, DBL_MAX); // had no result before
    EXPECT_EQ(points[3].x, points[0].x);
    converter.convert({}, {});
}

TEST(DatumConverter, RefusesDatumsThatPointsOnlyComeFrom) {
    std::string const said = messageOf<UsageError>([] { DatumConverter({datumNamed("nad27"), datumNamed("227")}); });
    EXPECT_NE(said.find(", not to it: regression works one way only"), said.npos) << said;
    std::array<PROJPOINT, 1> point{{{-40, -20}}};
    std::array<PointState, 1> state{};
    DatumConverter({datumNamed("227"), datumNamed("227")}).convert(point, state);
    EXPECT_EQ(point[0].x, -40);
}

} // namespace
} // namespace ZrProj::Command
