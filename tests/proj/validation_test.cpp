#include "support/error_host.h"

#include <zrproj/projection.h>

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <limits>
#include <string>

using namespace ZrProj;

namespace {

PROJDATA valid(int type) {
    PROJDATA record{};
    record.Type = static_cast<ProjType>(type);
    record.Ellipsoid = EllipsoidTypeWgs84;
    record.Lat1 = 30;
    record.Lat2 = 45;
    record.Alpha = 20;
    return record;
}

struct Case {
    int type;
    std::function<void(PROJDATA&)> spoil;
    unsigned error; // 0: the record passes
    int parameter;
};

constexpr double tooFar = 1.7014117331926443e38;
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

Case const cases[] = {
    {29, [](PROJDATA&) {}, 20230, 1},
    {-1, [](PROJDATA&) {}, 20230, 1},
    {999, [](PROJDATA& r) { r.Scale = -1, r.Lat0 = notANumber, r.Ellipsoid = EllipsoidTypeNone; }, 0, 0},
    {0, [](PROJDATA& r) { r.Scale = -1; }, 0, 0},
    {1, [](PROJDATA& r) { r.Scale = -1e-300; }, 20231, 2},
    {1, [](PROJDATA& r) { r.Scale = notANumber; }, 20231, 2},
    {1, [](PROJDATA& r) { r.Scale = 0, r.K0 = 0; }, 0, 0},
    {4, [](PROJDATA& r) { r.K0 = -1; }, 20232, 13},
    {4, [](PROJDATA& r) { r.K0 = notANumber; }, 20232, 13},
    {1, [](PROJDATA& r) { r.xOrg = tooFar; }, 20233, 3},
    {1, [](PROJDATA& r) { r.xOrg = -tooFar; }, 0, 0},
    {1, [](PROJDATA& r) { r.yOrg = std::nextafter(-tooFar, -INFINITY); }, 20234, 4},
    {1, [](PROJDATA& r) { r.xOrg = notANumber, r.yOrg = notANumber; }, 20233, 3},
    {4, [](PROJDATA& r) { r.xOrg = 1e300; }, 0, 0},
    {9, [](PROJDATA& r) { r.xOrg = 1e300; }, 0, 0},
    {9, [](PROJDATA& r) { r.Zone = StateZoneTypeSouthCarolina; }, 20252, 15},
    {10, [](PROJDATA& r) { r.Zone = StateZoneTypeNone; }, 20252, 15},
    {10, [](PROJDATA& r) { r.Zone = StateZoneTypeOhioNorth, r.Lon0 = 400; }, 20235, 6},
    {10, [](PROJDATA& r) { r.Zone = StateZoneTypeOhioNorth, r.Ellipsoid = EllipsoidTypeNone; }, 0, 0},
    {1, [](PROJDATA& r) { r.Lon0 = 360; }, 20235, 6},
    {1, [](PROJDATA& r) { r.Lon1 = -360; }, 20236, 10},
    {1, [](PROJDATA& r) { r.Lon2 = notANumber; }, 20237, 11},
    {1, [](PROJDATA& r) { r.Lon3 = 1e9; }, 20238, 12},
    {1, [](PROJDATA& r) { r.Lat0 = 100; }, 0, 0},
    {1, [](PROJDATA& r) { r.Lat0 = 360; }, 20239, 5},
    {1, [](PROJDATA& r) { r.Lat1 = -360; }, 20240, 7},
    {1, [](PROJDATA& r) { r.Lat2 = 400; }, 20241, 8},
    {1, [](PROJDATA& r) { r.Lat3 = notANumber; }, 20242, 9},
    {12, [](PROJDATA& r) { r.Alpha = 360; }, 20243, 17},
    {1, [](PROJDATA& r) { r.Alpha = 360; }, 0, 0},
    {12, [](PROJDATA& r) { r.bUseAlpha = true, r.Alpha = 0; }, 20246, 17},
    {12, [](PROJDATA& r) { reinterpret_cast<unsigned char*>(&r)[105] = 2, r.Alpha = 0; }, 0, 0},
    {21, [](PROJDATA& r) { r.Lat1 = -0.0; }, 20244, 7},
    {2, [](PROJDATA& r) { r.Lat1 = 20, r.Lat2 = -20; }, 20245, 7},
    {2, [](PROJDATA& r) { r.Lat1 = 20, r.Lat2 = 20.0009; }, 20245, 7},
    {2, [](PROJDATA& r) { r.Lat1 = 20, r.Lat2 = 20.0011; }, 0, 0},
    {26, [](PROJDATA& r) { r.Lat1 = 20, r.Lat2 = -20; }, 20256, 7},
    {26, [](PROJDATA& r) { r.Lat1 = r.Lat2; }, 20256, 7},
    {5, [](PROJDATA& r) { r.Lat1 = 30, r.Lat2 = 30.1; }, 20247, 7},
    {5, [](PROJDATA& r) { r.Lat1 = 30, r.Lat2 = 30.11; }, 0, 0},
    {1, [](PROJDATA& r) { r.Lat0 = 89.995; }, 20251, 5},
    {1, [](PROJDATA& r) { r.Lat0 = -89.995; }, 20251, 5},
    {1, [](PROJDATA& r) { r.Lat0 = 89.98; }, 0, 0},
    {25, [](PROJDATA& r) { r.Lat1 = r.Lat2; }, 20253, 7},
    {25, [](PROJDATA& r) { r.Lat1 = 0.0005; }, 20254, 7},
    {25, [](PROJDATA& r) { r.Lat1 = -89.9995; }, 20255, 8},
    {25, [](PROJDATA&) {}, 0, 0},
    {1, [](PROJDATA& r) { r.Ellipsoid = EllipsoidTypeNone; }, 20248, 20},
    {1, [](PROJDATA& r) { r.Ellipsoid = static_cast<EllipsoidType>(-1); }, 20248, 20},
    {1, [](PROJDATA& r) { r.MajorRadius = -1, r.Flattening = notANumber; }, 0, 0},
    {1, [](PROJDATA& r) { r.Ellipsoid = EllipsoidTypeUserDefined; }, 20249, 21},
    {1, [](PROJDATA& r) { r.Ellipsoid = EllipsoidTypeUserDefined, r.MajorRadius = 1, r.Flattening = -1e-9; }, 20250,
     22},
    {1, [](PROJDATA& r) { r.Ellipsoid = EllipsoidTypeUserDefined, r.MajorRadius = 1, r.Flattening = 1; }, 20250, 22},
    {1, [](PROJDATA& r) { r.Ellipsoid = EllipsoidTypeUserDefined, r.MajorRadius = 1, r.Flattening = notANumber; },
     20250, 22},
};

} // namespace

TEST(Validation, NamesTheFirstFault) {
    ErrorHost host;
    for (auto const& c : cases) {
        SCOPED_TRACE(&c - cases);
        PROJDATA record = valid(c.type);
        c.spoil(record);
        host.calls.clear();
        char message[512];
        EXPECT_EQ(ProjCheckParams(&record, message, true), c.parameter);
        EXPECT_EQ(host.calls.empty() ? 0 : host.calls.back().number, c.error);
        EXPECT_EQ(*message != '\0', c.error != 0) << message;
    }
}

TEST(Validation, ExplainsInWords) {
    char message[512];
    PROJDATA record = valid(1);
    record.Scale = -1;
    ProjCheckParams(&record, message, false);
    EXPECT_STREQ(message, "Scale parameter must be greater than zero");
    record = valid(25);
    record.Lat1 = record.Lat2;
    ProjCheckParams(&record, message, false);
    EXPECT_STREQ(message, "Unable to load error message text for error # 20253");
    EXPECT_EQ(ProjCheckParams(&record, nullptr, false), 7);
    EXPECT_EQ(ProjCheckParams(nullptr, message, true), 998);
    EXPECT_STREQ(message, "NULL pointer to projection parameters");
    EXPECT_EQ(ProjCheckParams(nullptr, nullptr, true), 998);
}

TEST(Validation, ReportsOnlyWhenAsked) {
    ErrorHost host;
    PROJDATA record = valid(1);
    record.Lat0 = 90;
    ProjCheckParams(&record, nullptr, false);
    ProjCheckParams(nullptr, nullptr, true);
    EXPECT_TRUE(host.calls.empty());
}
