#include "datum/nadcon.h"
#include "door/handles.h"
#include "support/grid_files.h"

#include <cfloat>
#include <cmath>
#include <vector>

using namespace ZrProj;
using namespace ZrProj::test;

namespace {

using DatumShift = std::unique_ptr<zrproj_datum_shift, Destroyer<zrproj_datum_shift_destroy>>;

zrproj_parameters datumOf(int datum) {
    zrproj_parameters parameters{};
    parameters.size = sizeof parameters;
    parameters.datum = datum;
    return parameters;
}

DatumShift shiftBetween(zrproj_parameters const& from, zrproj_parameters const& to) {
    return made<DatumShift>([&](zrproj_datum_shift** s) { return zrproj_datum_shift_create(&from, &to, s); });
}

zrproj_status statusOf(zrproj_parameters const& from, zrproj_parameters const& to) {
    zrproj_datum_shift* shift = nullptr;
    zrproj_status const status = zrproj_datum_shift_create(&from, &to, &shift);
    zrproj_datum_shift_destroy(shift);
    return status;
}

struct Shifted {
    double x, y;
    int reason;
};

Shifted shifted(DatumShift const& shift, double x, double y) {
    unsigned char reason = 99;
    EXPECT_EQ(zrproj_datum_shift_points(shift.get(), &x, &y, 8, 1, &reason), ZRPROJ_OK) << zrproj_message();
    return {x, y, reason};
}

constexpr int wgs84 = DatumTypeWorldGeodeticSystem1984;

} // namespace

TEST(DoorDatumShift, IsThatOfTheRecords) {
    DATUMXFORM request{};
    request.Source = DatumTypeNorthAmericanDatum1927;
    request.Destination = DatumTypeTokyo;
    CDatumTransform record(&request);
    std::vector<DATUMPOINT> expected;
    std::vector<double> x, y;
    for (int i = 0; i < 20000; ++i) { // more than are shifted at once
        expected.push_back({-180 + 0.018 * i, -89 + 0.0089 * i});
        x.push_back(expected.back().x);
        y.push_back(expected.back().y);
    }
    ASSERT_TRUE(record.Convert(expected.data(), 20000));
    DatumShift const shift = shiftBetween(datumOf(request.Source), datumOf(request.Destination));
    std::vector<unsigned char> reasons(x.size(), 99);
    ASSERT_EQ(zrproj_datum_shift_points(shift.get(), x.data(), y.data(), 8, x.size(), reasons.data()), ZRPROJ_OK);
    for (std::size_t i = 0; i < x.size(); ++i) {
        ASSERT_EQ(x[i], expected[i].x) << i;
        ASSERT_EQ(y[i], expected[i].y) << i;
        ASSERT_EQ(reasons[i], ZRPROJ_CONVERTED) << i;
    }
    EXPECT_NEAR(shifted(shift, 285, 40).x, 285, 0.01); // the turn stays
}

TEST(DoorDatumShift, HasAReasonForEachPoint) {
    DatumShift const shift = shiftBetween(datumOf(DatumTypeNorthAmericanDatum1927), datumOf(wgs84));
    struct {
        double x, y;
        int reason;
    } const cases[] = {{0, 91, ZRPROJ_BEYOND_POLE},
                       {NAN, 0, ZRPROJ_NOT_FINITE},
                       {0, -HUGE_VAL, ZRPROJ_NOT_FINITE},
                       {DBL_MAX, DBL_MAX, ZRPROJ_NOT_FINITE}};
    for (auto const& c : cases) {
        auto const result = shifted(shift, c.x, c.y);
        EXPECT_EQ(result.reason, c.reason) << c.x << ' ' << c.y;
        EXPECT_TRUE(std::isnan(result.x) && std::isnan(result.y));
    }
    auto const same = shifted(shiftBetween(datumOf(DatumTypeTokyo), datumOf(DatumTypeTokyo)), 139.5, 35.5);
    EXPECT_EQ(same.x, 139.5);
    EXPECT_EQ(same.y, 35.5);
    EXPECT_EQ(zrproj_datum_shift_points(shift.get(), nullptr, nullptr, 8, 1, nullptr), ZRPROJ_BAD_ARGUMENT);
    EXPECT_EQ(zrproj_datum_shift_points(nullptr, nullptr, nullptr, 8, 0, nullptr), ZRPROJ_BAD_ARGUMENT);
}

TEST(DoorDatumShift, TellsWhereEquationsRunAway) {
    DatumShift const brazil = shiftBetween(datumOf(DatumTypeCorregoAlegreBrazilMre), datumOf(wgs84));
    EXPECT_EQ(shifted(brazil, -40, -20).reason, ZRPROJ_CONVERTED);
    EXPECT_EQ(shifted(brazil, 320, -20).reason, ZRPROJ_CONVERTED);  // the same place
    EXPECT_EQ(shifted(brazil, -67, -1).reason, ZRPROJ_OUT_OF_AREA); // the Amazon
    EXPECT_EQ(shifted(brazil, 140, 36).reason, ZRPROJ_OUT_OF_AREA);
    DatumShift const europe = shiftBetween(datumOf(DatumTypeEuropean1950Mre), datumOf(wgs84));
    EXPECT_EQ(shifted(europe, 10, 50).reason, ZRPROJ_CONVERTED);
    EXPECT_EQ(shifted(europe, -100, 40).reason, ZRPROJ_OUT_OF_AREA);
}

TEST(DoorDatumShift, TellsWhatAGridDoesNotCover) {
    auto const nadcon = datumOf(DatumTypeNad1927ConusNadcon);
    GridFiles const files(nadconGridName(DatumTypeNad1927ConusNadcon));
    EXPECT_EQ(statusOf(nadcon, datumOf(wgs84)), ZRPROJ_FILE);
    EXPECT_EQ(zrproj_message(), "\"NAD 1927 - CONUS (NADCON)\" needs a grid that is not there: " + files.path(".LAS"));
    GridHeader const header{30, 12, 1, -80, 0.5F, 38, 0.5F};
    files.write(".LAS", header, [](int, int) { return 1.75; });
    EXPECT_EQ(statusOf(nadcon, datumOf(wgs84)), ZRPROJ_FILE); // half a pair
    files.write(".LOS", header, [](int, int) { return 0.125; });
    DatumShift const shift = shiftBetween(nadcon, datumOf(wgs84));
    auto const inside = shifted(shift, 285, 40);
    EXPECT_EQ(inside.reason, ZRPROJ_CONVERTED);
    EXPECT_NEAR(inside.x, 285 + 1.75 / 3600, 1e-9);
    EXPECT_NEAR(inside.y, 40 + 0.125 / 3600, 1e-9);
    EXPECT_EQ(shifted(shift, -120, 40).reason, ZRPROJ_OFF_THE_GRID);
    EXPECT_EQ(shifted(shift, -75, 37.9).reason, ZRPROJ_OFF_THE_GRID);

    files.writeBytes(".LOS", std::vector<char>(1000));
    double x[] = {-75, -75}, y[] = {43, 43};
    EXPECT_EQ(zrproj_datum_shift_points(shift.get(), x, y, 8, 2, nullptr), ZRPROJ_FILE);
    EXPECT_EQ(x[1], -75); // as it was
    files.write(".LAS", {21, 12, 1, -80, 0.5F, 38, 0.5F}, [](int, int) { return 1; });
    EXPECT_EQ(statusOf(nadcon, datumOf(wgs84)), ZRPROJ_FILE); // the header lies over its rows
}

TEST(DoorDatumShift, GoesByOnesOwn) {
    auto own = datumOf(DatumTypeUserDefined);
    own.ellipsoid = EllipsoidTypeClarke1866;
    own.shift = {DatumMethodMolodensky, -8, 160, 176, 0, 0, 0, 0, 0};
    auto const there = shifted(shiftBetween(own, datumOf(wgs84)), -100, 40);
    EXPECT_NEAR(there.x, -100.000417609, 1e-9);
    EXPECT_NEAR(there.y, 40.000009468, 1e-9);
    auto const back = shifted(shiftBetween(datumOf(wgs84), own), there.x, there.y);
    EXPECT_NEAR(back.x, -100, 1e-7);

    EXPECT_EQ(statusOf(datumOf(wgs84), datumOf(DatumTypeNad1927ConusNadcon)), ZRPROJ_NO_PATH);
    EXPECT_STREQ(zrproj_message(),
                 "points can be converted from \"NAD 1927 - CONUS (NADCON)\", not to it: NADCON works one way only");
    EXPECT_EQ(statusOf(datumOf(DatumTypeNone), datumOf(wgs84)), ZRPROJ_NO_PATH);
    EXPECT_EQ(statusOf(datumOf(-1), datumOf(wgs84)), ZRPROJ_BAD_DEFINITION);
    own.shift.method = DatumMethodMRE; // equations that only the catalogue has
    EXPECT_EQ(statusOf(own, datumOf(wgs84)), ZRPROJ_NO_PATH);
    own.shift.method = 77;
    EXPECT_EQ(statusOf(own, datumOf(wgs84)), ZRPROJ_BAD_DEFINITION);
    own.size = 1;
    EXPECT_EQ(statusOf(own, datumOf(wgs84)), ZRPROJ_BAD_ARGUMENT);
}
