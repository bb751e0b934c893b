#include "support/error_host.h"

#include <zrproj/projection.h>

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <limits>
#include <string>

using namespace ZrProj;

namespace {

PROJDATA valid(ProjType type) {
    PROJDATA record{};
    record.Type = type;
    record.Ellipsoid = EllipsoidTypeWgs84;
    record.Lat1 = 30;
    record.Lat2 = 45;
    record.Alpha = 20;
    return record;
}

struct Case {
    ProjType type;
    std::function<void(PROJDATA&)> spoil;
    unsigned error; // 0: the record passes
    ProjParam parameter;
};

constexpr double tooFar = 1.7014117331926443e38;
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

Case const cases[] = {
    {static_cast<ProjType>(ProjNumProjections()), [](PROJDATA&) {}, 20230, ProjParamType},
    {static_cast<ProjType>(-1), [](PROJDATA&) {}, 20230, ProjParamType},
    {ProjTypeUndefined, [](PROJDATA& r) { r.Scale = -1, r.Lat0 = notANumber, r.Ellipsoid = EllipsoidTypeNone; }, 0,
     ProjParamNone},
    {ProjTypeUnprojectedLatLong, [](PROJDATA& r) { r.Scale = -1; }, 0, ProjParamNone},
    {ProjTypeMercator, [](PROJDATA& r) { r.Scale = -1e-300; }, 20231, ProjParamScale},
    {ProjTypeMercator, [](PROJDATA& r) { r.Scale = notANumber; }, 20231, ProjParamScale},
    {ProjTypeMercator, [](PROJDATA& r) { r.Scale = 0, r.K0 = 0; }, 0, ProjParamNone},
    {ProjTypeUniversalTransverseMercator, [](PROJDATA& r) { r.K0 = -1; }, 20232, ProjParamK0},
    {ProjTypeUniversalTransverseMercator, [](PROJDATA& r) { r.K0 = notANumber; }, 20232, ProjParamK0},
    {ProjTypeMercator, [](PROJDATA& r) { r.xOrg = tooFar; }, 20233, ProjParamXOrg},
    {ProjTypeMercator, [](PROJDATA& r) { r.xOrg = -tooFar; }, 0, ProjParamNone},
    {ProjTypeMercator, [](PROJDATA& r) { r.yOrg = std::nextafter(-tooFar, -INFINITY); }, 20234, ProjParamYOrg},
    {ProjTypeMercator, [](PROJDATA& r) { r.xOrg = notANumber, r.yOrg = notANumber; }, 20233, ProjParamXOrg},
    {ProjTypeUniversalTransverseMercator, [](PROJDATA& r) { r.xOrg = 1e300; }, 0, ProjParamNone},
    {ProjTypeStatePlane1927, [](PROJDATA& r) { r.xOrg = 1e300; }, 0, ProjParamNone},
    {ProjTypeStatePlane1927, [](PROJDATA& r) { r.Zone = StateZoneTypeSouthCarolina; }, 20252, ProjParamZone},
    {ProjTypeStatePlane1983, [](PROJDATA& r) { r.Zone = StateZoneTypeNone; }, 20252, ProjParamZone},
    {ProjTypeStatePlane1983, [](PROJDATA& r) { r.Zone = StateZoneTypeOhioNorth, r.Lon0 = 400; }, 20235, ProjParamLon0},
    {ProjTypeStatePlane1983, [](PROJDATA& r) { r.Zone = StateZoneTypeOhioNorth, r.Ellipsoid = EllipsoidTypeNone; }, 0,
     ProjParamNone},
    {ProjTypeMercator, [](PROJDATA& r) { r.Lon0 = 360; }, 20235, ProjParamLon0},
    {ProjTypeMercator, [](PROJDATA& r) { r.Lon1 = -360; }, 20236, ProjParamLon1},
    {ProjTypeMercator, [](PROJDATA& r) { r.Lon2 = notANumber; }, 20237, ProjParamLon2},
    {ProjTypeMercator, [](PROJDATA& r) { r.Lon3 = 1e9; }, 20238, ProjParamLon3},
    {ProjTypeMercator, [](PROJDATA& r) { r.Lat0 = 100; }, 0, ProjParamNone},
    {ProjTypeMercator, [](PROJDATA& r) { r.Lat0 = 360; }, 20239, ProjParamLat0},
    {ProjTypeMercator, [](PROJDATA& r) { r.Lat1 = -360; }, 20240, ProjParamLat1},
    {ProjTypeMercator, [](PROJDATA& r) { r.Lat2 = 400; }, 20241, ProjParamLat2},
    {ProjTypeMercator, [](PROJDATA& r) { r.Lat3 = notANumber; }, 20242, ProjParamLat3},
    {ProjTypeHotineObliqueMercator, [](PROJDATA& r) { r.Alpha = 360; }, 20243, ProjParamAlpha},
    {ProjTypeMercator, [](PROJDATA& r) { r.Alpha = 360; }, 0, ProjParamNone},
    {ProjTypeHotineObliqueMercator, [](PROJDATA& r) { r.bUseAlpha = true, r.Alpha = 0; }, 20246, ProjParamAlpha},
    {ProjTypeHotineObliqueMercator, [](PROJDATA& r) { reinterpret_cast<unsigned char*>(&r)[105] = 2, r.Alpha = 0; }, 0,
     ProjParamNone},
    {ProjTypeBonne, [](PROJDATA& r) { r.Lat1 = -0.0; }, 20244, ProjParamLat1},
    {ProjTypeAlbersEqualAreaConic, [](PROJDATA& r) { r.Lat1 = 20, r.Lat2 = -20; }, 20245, ProjParamLat1},
    {ProjTypeAlbersEqualAreaConic, [](PROJDATA& r) { r.Lat1 = 20, r.Lat2 = 20.0009; }, 20245, ProjParamLat1},
    {ProjTypeAlbersEqualAreaConic, [](PROJDATA& r) { r.Lat1 = 20, r.Lat2 = 20.0011; }, 0, ProjParamNone},
    {ProjTypeEquidistantConic, [](PROJDATA& r) { r.Lat1 = 20, r.Lat2 = -20; }, 20256, ProjParamLat1},
    {ProjTypeEquidistantConic, [](PROJDATA& r) { r.Lat1 = r.Lat2; }, 20256, ProjParamLat1},
    {ProjTypeLambertConformalConic, [](PROJDATA& r) { r.Lat1 = 30, r.Lat2 = 30.1; }, 20247, ProjParamLat1},
    {ProjTypeLambertConformalConic, [](PROJDATA& r) { r.Lat1 = 30, r.Lat2 = 30.11; }, 0, ProjParamNone},
    {ProjTypeMercator, [](PROJDATA& r) { r.Lat0 = 89.995; }, 20251, ProjParamLat0},
    {ProjTypeMercator, [](PROJDATA& r) { r.Lat0 = -89.995; }, 20251, ProjParamLat0},
    {ProjTypeMercator, [](PROJDATA& r) { r.Lat0 = 89.98; }, 0, ProjParamNone},
    {ProjTypeObliqueMercator, [](PROJDATA& r) { r.Lat1 = r.Lat2; }, 20253, ProjParamLat1},
    {ProjTypeObliqueMercator, [](PROJDATA& r) { r.Lat1 = 0.0005; }, 20254, ProjParamLat1},
    {ProjTypeObliqueMercator, [](PROJDATA& r) { r.Lat1 = -89.9995; }, 20255, ProjParamLat2},
    {ProjTypeObliqueMercator, [](PROJDATA&) {}, 0, ProjParamNone},
    {ProjTypeMercator, [](PROJDATA& r) { r.Ellipsoid = EllipsoidTypeNone; }, 20248, ProjParamEllipsoid},
    {ProjTypeMercator, [](PROJDATA& r) { r.Ellipsoid = static_cast<EllipsoidType>(-1); }, 20248, ProjParamEllipsoid},
    {ProjTypeMercator, [](PROJDATA& r) { r.MajorRadius = -1, r.Flattening = notANumber; }, 0, ProjParamNone},
    {ProjTypeMercator, [](PROJDATA& r) { r.Ellipsoid = EllipsoidTypeUserDefined; }, 20249, ProjParamMajorRadius},
    {ProjTypeMercator,
     [](PROJDATA& r) { r.Ellipsoid = EllipsoidTypeUserDefined, r.MajorRadius = 1, r.Flattening = -1e-9; }, 20250,
     ProjParamFlattening},
    {ProjTypeMercator, [](PROJDATA& r) { r.Ellipsoid = EllipsoidTypeUserDefined, r.MajorRadius = 1, r.Flattening = 1; },
     20250, ProjParamFlattening},
    {ProjTypeMercator,
     [](PROJDATA& r) { r.Ellipsoid = EllipsoidTypeUserDefined, r.MajorRadius = 1, r.Flattening = notANumber; }, 20250,
     ProjParamFlattening},
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
    PROJDATA record = valid(ProjTypeMercator);
    record.Scale = -1;
    ProjCheckParams(&record, message, false);
    EXPECT_STREQ(message, "Scale parameter must be greater than zero");
    record = valid(ProjTypeObliqueMercator);
    record.Lat1 = record.Lat2;
    ProjCheckParams(&record, message, false);
    EXPECT_STREQ(message, "Unable to load error message text for error # 20253");
    EXPECT_EQ(ProjCheckParams(&record, nullptr, false), ProjParamLat1);
    EXPECT_EQ(ProjCheckParams(nullptr, message, true), 998);
    EXPECT_STREQ(message, "NULL pointer to projection parameters");
    EXPECT_EQ(ProjCheckParams(nullptr, nullptr, true), 998);
}

TEST(Validation, ReportsOnlyWhenAsked) {
    ErrorHost host;
    PROJDATA record = valid(ProjTypeMercator);
    record.Lat0 = 90;
    ProjCheckParams(&record, nullptr, false);
    ProjCheckParams(nullptr, nullptr, true);
    EXPECT_TRUE(host.calls.empty());
}
