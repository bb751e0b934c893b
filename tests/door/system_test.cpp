#include "door/handles.h"
#include "support/registry.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

using namespace ZrProj;
using namespace ZrProj::test;

namespace {

zrproj_parameters parametersOf(int type, int ellipsoid) {
    zrproj_parameters parameters{};
    parameters.size = sizeof parameters;
    parameters.type = type;
    parameters.ellipsoid = ellipsoid;
    return parameters;
}

zrproj_status statusOf(zrproj_parameters const& parameters) {
    zrproj_system* system = nullptr;
    zrproj_status const status = zrproj_system_create_from_parameters(&parameters, &system);
    EXPECT_EQ(system == nullptr, status != ZRPROJ_OK);
    EXPECT_EQ(*zrproj_message() == '\0', status == ZRPROJ_OK);
    zrproj_system_destroy(system);
    return status;
}

zrproj_parameters completed(zrproj_parameters const& given) {
    System const system = systemOf(given);
    zrproj_parameters parameters{};
    parameters.size = sizeof parameters;
    EXPECT_EQ(zrproj_system_parameters(system.get(), &parameters), ZRPROJ_OK);
    return parameters;
}

} // namespace

TEST(DoorSystem, CompletesParameters) {
    auto utm = parametersOf(ProjTypeUniversalTransverseMercator, 0);
    utm.datum = DatumTypeNorthAmericanDatum1927;
    utm.south = 5;
    auto const full = completed(utm);
    EXPECT_EQ(full.ellipsoid, EllipsoidTypeClarke1866);
    EXPECT_EQ(full.radius, 6378206.4);
    EXPECT_EQ(full.x0, 500000);
    EXPECT_EQ(full.y0, 10000000);
    EXPECT_EQ(full.k0, 0.9996);
    EXPECT_EQ(full.scale, 1);

    auto zone = parametersOf(ProjTypeStatePlane1983, 0);
    zone.zone = StateZoneTypeCaliforniaI;
    EXPECT_EQ(completed(zone).ellipsoid, EllipsoidTypeGrs1980Iugg1980);
    EXPECT_EQ(completed(zone).zone, StateZoneTypeCaliforniaI);
}

TEST(DoorSystem, IsBasedOnAGeographicOne) {
    auto conic = parametersOf(ProjTypeBonne, 0);
    conic.lat1 = 45;
    conic.radius = 6371000;
    conic.shift.method = DatumMethodMolodensky;
    conic.shift.dx = 12;
    System const map = systemOf(conic), geographic = geographicOf(map);
    zrproj_parameters base{};
    base.size = sizeof base;
    ASSERT_EQ(zrproj_system_parameters(geographic.get(), &base), ZRPROJ_OK);
    EXPECT_EQ(base.type, ProjTypeUnprojectedLatLong);
    EXPECT_EQ(base.radius, 6371000);
    EXPECT_EQ(base.lat1, 0);
    EXPECT_EQ(base.shift.dx, 12);
    EXPECT_EQ(statusOf(base), ZRPROJ_OK);
}

TEST(DoorSystem, RefusesWhatMakesNone) {
    constexpr double nan = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(statusOf(parametersOf(ProjTypeMercator, 0)), ZRPROJ_BAD_DEFINITION);
    EXPECT_EQ(statusOf(parametersOf(ProjTypeMercator, 50)), ZRPROJ_BAD_DEFINITION);
    EXPECT_EQ(statusOf(parametersOf(ProjTypeMercator, -1)), ZRPROJ_BAD_DEFINITION);
    EXPECT_EQ(statusOf(parametersOf(0, 0)), ZRPROJ_BAD_DEFINITION);
    EXPECT_EQ(statusOf(parametersOf(-1, 47)), ZRPROJ_BAD_DEFINITION);
    EXPECT_EQ(statusOf(parametersOf(ProjNumProjections(), 47)), ZRPROJ_BAD_DEFINITION);
    EXPECT_EQ(statusOf(parametersOf(999, 47)), ZRPROJ_BAD_DEFINITION);
    EXPECT_EQ(statusOf(parametersOf(ProjTypeAlbersEqualAreaConic, 47)), ZRPROJ_BAD_DEFINITION);
    EXPECT_STREQ((statusOf(parametersOf(ProjTypeBonne, 47)), zrproj_message()),
                 "Standard parallel (Lat1) parameter for Bonne projection cannot be zero");
    auto const with = [](auto const& change) {
        auto parameters = parametersOf(ProjTypeMercator, 47);
        change(parameters);
        return statusOf(parameters);
    };
    EXPECT_EQ(with([&](auto& p) { p.lon3 = nan; }), ZRPROJ_BAD_ARGUMENT);
    EXPECT_EQ(with([&](auto& p) { p.shift.rz = nan; }), ZRPROJ_BAD_ARGUMENT);
    EXPECT_EQ(with([](auto& p) { p.size = 8; }), ZRPROJ_BAD_ARGUMENT);
    EXPECT_EQ(with([](auto& p) { p.scale = -1; }), ZRPROJ_BAD_DEFINITION);
    EXPECT_EQ(with([](auto& p) { p.lon0 = 361; }), ZRPROJ_BAD_DEFINITION);
    EXPECT_EQ(with([](auto& p) { p.datum = 238; }), ZRPROJ_BAD_DEFINITION);
    EXPECT_EQ(with([](auto& p) { p.datum = -1; }), ZRPROJ_BAD_DEFINITION);
    EXPECT_EQ(with([](auto& p) { p.shift.method = DatumMethodNadcon; }), ZRPROJ_BAD_DEFINITION);
    EXPECT_EQ(with([](auto& p) { p.shift = {2, 0, 0, 0, 9999, 0, 0, 0, 0}; }), ZRPROJ_BAD_DEFINITION);
    auto zone = parametersOf(ProjTypeStatePlane1983, 0);
    zone.zone = StateZoneTypeCaliforniaVII; // of 1927 only
    EXPECT_EQ(statusOf(zone), ZRPROJ_BAD_DEFINITION);
    zone.zone = 142;
    EXPECT_EQ(statusOf(zone), ZRPROJ_BAD_DEFINITION);
    auto const hotine = parametersOf(ProjTypeHotineObliqueMercator, 47); // no line
    EXPECT_EQ(statusOf(hotine), ZRPROJ_UNSUPPORTED);
    zrproj_system* system = nullptr;
    EXPECT_EQ(zrproj_system_create_from_parameters(nullptr, &system), ZRPROJ_BAD_ARGUMENT);
    EXPECT_EQ(zrproj_system_create_from_parameters(&hotine, nullptr), ZRPROJ_BAD_ARGUMENT);
}

// Parameters that pass the record's validation are a system, or shown to be none, or have latitudes that only records
// may have; nothing crashes.
TEST(DoorSystem, SettlesOddParameters) {
    for (auto const& words : oddParameterSets()) {
        auto const given = test::parametersOf(recordOf(words));
        auto const status = statusOf(given);
        bool const isBeyondPole = std::ranges::any_of(std::array{given.lat0, given.lat1, given.lat2, given.lat3},
                                                      [](double latitude) { return std::fabs(latitude) > 90; });
        EXPECT_TRUE(isBeyondPole ? status == ZRPROJ_BAD_DEFINITION
                                 : status == ZRPROJ_OK || status == ZRPROJ_UNSUPPORTED)
            << words << ": " << zrproj_message();
    }
}
