#include "cli/points/point_converter.h"

#include "cli/model/zones.h"
#include "cli/text/usage_error.h"
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
