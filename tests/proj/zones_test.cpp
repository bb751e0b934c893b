#include "proj/zone_definition.h"

#include "frame/log.h"
#include "support/floating_point.h"
#include "support/temporary_directory.h"

#include <zrproj/angle.h>
#include <zrproj/zones.h>

#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <climits>
#include <cstddef>
#include <cstring>
#include <span>
#include <string>

using namespace ZrProj;

namespace {

constexpr ProjType year27 = ProjTypeStatePlane1927;
constexpr ProjType year83 = ProjTypeStatePlane1983;
constexpr StateZoneType nowhere[] = {StateZoneType(-1), StateZoneTypeNone, StateZoneType(INT_MIN),
                                     StateZoneType(INT_MAX)};
constexpr unsigned char unset = 0x5A;

/// A record that asks for a zone, every other byte of it as set by nobody.
PROJDATA request(ProjType type, StateZoneType zone) {
    PROJDATA data;
    std::memset(&data, unset, sizeof data);
    data.Type = type;
    data.Zone = zone;
    return data;
}

PROJDATA defined(ProjType type, StateZoneType zone) {
    PROJDATA data = request(type, zone);
    ProjGetStateZoneParams(&data);
    return data;
}

auto bytesOf(PROJDATA const& data) {
    return std::bit_cast<std::array<unsigned char, sizeof data>>(data);
}

/// What every definition sets.
struct Definition {
    ProjType type;
    EllipsoidType ellipsoid;
    double Lon0, Lat0, Lon1, Lat1, Lat2, xOrg, yOrg, K0;
    bool operator==(Definition const&) const = default;
};

Definition definitionIn(PROJDATA const& data) {
    return {data.Type, data.Ellipsoid, data.Lon0, data.Lat0, data.Lon1,
            data.Lat1, data.Lat2,      data.xOrg, data.yOrg, data.K0};
}

double dms(int degrees, int minutes, double seconds = 0) {
    return degrees + minutes / 60. + seconds / 3600.;
}

} // namespace

TEST(StateZones, Info) {
    char name[38];
    int code = -1;
    ProjGetStateZoneInfo(StateZoneTypePuertoRicoAndVirginIslands1983, name, &code);
    EXPECT_STREQ(name, "Puerto Rico and Virgin Islands (1983)");
    EXPECT_EQ(code, 5200);
    for (StateZoneType zone : nowhere) {
        std::strcpy(name, "x");
        code = -1;
        ProjGetStateZoneInfo(zone, name, &code);
        EXPECT_EQ(std::string(name) + std::to_string(code), "0");
    }
    ProjGetStateZoneInfo(StateZoneTypeAlaska1, nullptr, nullptr);
}

TEST(StateZones, FromNameAndUsgsCode) {
    StateZoneType zone = StateZoneTypeNone;
    EXPECT_TRUE(ProjGetStateZoneFromName(&zone, "alabama east"));
    EXPECT_EQ(zone, StateZoneTypeAlabamaEast);
    EXPECT_TRUE(ProjGetStateZoneFromUSGSCode(&zone, 901));
    EXPECT_EQ(zone, StateZoneTypeFloridaEast);
    EXPECT_TRUE(ProjGetStateZoneFromUSGSCode(&zone, 0));
    EXPECT_EQ(zone, StateZoneTypeGreatLakesSurvey1);

    EXPECT_FALSE(ProjGetStateZoneFromName(&zone, ""));
    EXPECT_FALSE(ProjGetStateZoneFromName(&zone, nullptr));
    EXPECT_FALSE(ProjGetStateZoneFromName(nullptr, "Alaska 1"));
    EXPECT_FALSE(ProjGetStateZoneFromUSGSCode(&zone, -1));
    EXPECT_FALSE(ProjGetStateZoneFromUSGSCode(nullptr, 101));
    EXPECT_EQ(zone, StateZoneTypeGreatLakesSurvey1);
    for (char const* unknown : {"Delaware", "California", " Alabama East"}) {
        zone = StateZoneTypeAlaska1;
        EXPECT_FALSE(ProjGetStateZoneFromName(&zone, unknown)) << unknown;
        EXPECT_EQ(zone, StateZoneTypeNone);
    }
    zone = StateZoneTypeAlaska1;
    EXPECT_FALSE(ProjGetStateZoneFromUSGSCode(&zone, 9999));
    EXPECT_EQ(zone, StateZoneTypeNone);
}

TEST(StateZones, EveryZoneIsFoundAgainButWhereTwoShareANumber) {
    for (int i = 0; i < StateZoneTypeNone; ++i) {
        char name[38];
        int number = -1;
        StateZoneType found = StateZoneTypeNone;
        ProjGetStateZoneInfo(StateZoneType(i), name, &number);
        EXPECT_TRUE(ProjGetStateZoneFromName(&found, name)) << i;
        EXPECT_EQ(found, i);
        EXPECT_TRUE(ProjGetStateZoneFromUSGSCode(&found, number)) << i;
        EXPECT_EQ(found, number == 0 ? StateZoneTypeGreatLakesSurvey1 : i);
        for (ProjType year : {year27, year83}) {
            ProjType type = ProjTypeUndefined;
            if (!ProjStateZoneToPOSCNumber(year, StateZoneType(i), &number))
                continue;
            EXPECT_TRUE(ProjGetStateZoneFromPOSCNumber(number, &type, &found)) << number;
            EXPECT_EQ(found, number == 32134 ? 111 : number == 32135 ? 112 : i);
            EXPECT_EQ(type, year);
        }
    }
}

TEST(StateZones, PoscNumbersThatAreNone) {
    ProjType type = ProjTypeMercator;
    StateZoneType zone = StateZoneTypeAlaska1;
    for (int none : {0, -1, 26728, INT_MAX})
        EXPECT_FALSE(ProjGetStateZoneFromPOSCNumber(none, &type, &zone)) << none;
    EXPECT_TRUE(type == ProjTypeMercator && zone == StateZoneTypeAlaska1);
    EXPECT_TRUE(ProjGetStateZoneFromPOSCNumber(26729, nullptr, nullptr));

    int number = 5;
    EXPECT_FALSE(ProjStateZoneToPOSCNumber(year27, StateZoneTypePuertoRicoAndVirginIslands1983, &number));
    EXPECT_FALSE(ProjStateZoneToPOSCNumber(year83, StateZoneTypeGuamIsland, &number));
    EXPECT_FALSE(ProjStateZoneToPOSCNumber(ProjTypeMercator, StateZoneTypeAlaska1, &number));
    for (StateZoneType none : nowhere)
        EXPECT_FALSE(ProjStateZoneToPOSCNumber(year83, none, &number));
    EXPECT_EQ(number, 5);
    EXPECT_TRUE(ProjStateZoneToPOSCNumber(year83, StateZoneTypeAlaska1, nullptr));
}

TEST(ZoneDefinitions, EveryTextIsAnAngle) {
    int texts = 0;
    for (std::span<ZoneDefinition const> year : {std::span(zones1927), std::span(zones1983)}) {
        for (ZoneDefinition const& zone : year) {
            for (char const* text : {zone.Lon0, zone.Lat0, zone.Lon1, zone.Lat1, zone.Lat2, zone.Alpha}) {
                double degrees = 0;
                EXPECT_TRUE(!text || LatLonToDegrees(text, &degrees, 'd')) << text;
                texts += text != nullptr;
            }
        }
    }
    // 111 Transverse Mercator zones and Guam have 2, 143 Lambert zones 4, Alaska 1 and the Great Lakes 3, twice.
    EXPECT_EQ(texts, 112 * 2 + 143 * 4 + 10 * 3);
}

TEST(ZoneDefinitions, TellingZones) {
    constexpr ProjType tm = ProjTypeUniversalTransverseMercator, lambert = ProjTypeLambertConformalConic,
                       hotine = ProjTypeHotineObliqueMercator, polyconic = ProjTypePolyconic;
    constexpr EllipsoidType clarke = EllipsoidTypeClarke1866, grs = EllipsoidTypeGrs1980Iugg1980,
                            michigan = EllipsoidTypeStatePlane1927Michigan;
    struct {
        ProjType year;
        StateZoneType zone;
        Definition definition;
    } const cases[] = {
        // clang-format off
        {year27, StateZoneTypeNewJersey, {tm, clarke, -dms(74, 40), dms(38, 50), 0, 0, 0, 609601.2192024384, 0, 0.999975}},
        {year83, StateZoneTypeTexasSouthCentral, {lambert, grs, -99, dms(27, 50), 0, dms(30, 17), dms(28, 23), 600000, 4000000, 0}},
        {year27, StateZoneTypeMichiganSouth, {lambert, michigan, -dms(84, 20), 41.5, 0, dms(43, 40), dms(42, 6), 609601.2192024384, 0, 0}},
        {year27, StateZoneTypeAlaska1, {hotine, clarke, 0, 57, -dms(133, 40), 0, 0, 818585.5672270928, 575219.2451072643, 0.9999}},
        {year83, StateZoneTypeGreatLakesSurvey4, {hotine, clarke, 0, dms(285, 41), dms(88, 50), dms(47, 12), 0, 9000000, -1600000, 0.9999}},
        {year27, StateZoneTypeGuamIsland, {polyconic, clarke, dms(144, 44, 55.50254), dms(13, 28, 20.87887), 0, 0, 0, 50000, 50000, 0}},
        // clang-format on
    };
    for (auto const& each : cases) {
        PROJDATA const data = defined(each.year, each.zone);
        EXPECT_TRUE(definitionIn(data) == each.definition) << each.zone;
        EXPECT_EQ(+data.Zone, each.zone);
        EXPECT_EQ(+data.Lon2, 0);
        EXPECT_EQ(+data.MajorRadius, EllipsoidRadius(each.definition.ellipsoid));
        EXPECT_EQ(+data.Flattening, EllipsoidFlattening(each.definition.ellipsoid));
    }
}

TEST(ZoneDefinitions, WhatADefinitionDoesNotNameStaysTheCallers) {
    constexpr std::size_t azimuthFlags[] = {offsetof(PROJDATA, bUseAlpha), offsetof(PROJDATA, bRotate),
                                            offsetof(PROJDATA, bUOffset)};
    PROJDATA const before = request(year83, StateZoneTypeVermont);
    PROJDATA expected = defined(year83, StateZoneTypeVermont);
    PROJDATA const alaska = defined(year83, StateZoneTypeAlaska1);
    PROJDATA const lakes = defined(year83, StateZoneTypeGreatLakesSurvey1);
    for (std::size_t flag : azimuthFlags) {
        EXPECT_EQ(bytesOf(alaska)[flag], 1);
        EXPECT_EQ(bytesOf(lakes)[flag], flag == azimuthFlags[0] ? unset : 1);
    }
    EXPECT_DOUBLE_EQ(+alaska.Alpha, -dms(36, 52, 11.6315));
    EXPECT_EQ(+lakes.Alpha, +before.Alpha);
    // With the fields of the definition put back, the record is what it was.
    expected.Type = before.Type;
    expected.Ellipsoid = before.Ellipsoid;
    expected.MajorRadius = before.MajorRadius;
    expected.Flattening = before.Flattening;
    expected.Lon0 = expected.Lat0 = expected.Lon1 = expected.Lat1 = expected.Lon2 = expected.Lat2 = before.Lat3;
    expected.xOrg = expected.yOrg = expected.K0 = before.Lat3;
    EXPECT_EQ(bytesOf(expected), bytesOf(before));
}

TEST(ZoneDefinitions, RequestThatCannotBeMetLosesItsZone) {
    PROJDATA const none = defined(year27, StateZoneTypeSouthCarolina); // defined in 1983 only
    EXPECT_EQ(+none.Zone, StateZoneTypeNone);
    EXPECT_TRUE(definitionIn(none) == (Definition{year27, none.Ellipsoid, 0, 0, 0, 0, 0, 0, 0, 0}));
    EXPECT_EQ(+none.MajorRadius, +request(year27, StateZoneTypeNone).MajorRadius);

    auto const losesItsZoneOnly = [](ProjType type, StateZoneType zone) {
        return bytesOf(defined(type, zone)) == bytesOf(request(type, StateZoneTypeNone));
    };
    for (StateZoneType zone : nowhere)
        EXPECT_TRUE(losesItsZoneOnly(year83, zone)) << zone;
    EXPECT_TRUE(losesItsZoneOnly(ProjTypeUniversalTransverseMercator, StateZoneTypeAlaska1));
    EXPECT_TRUE(losesItsZoneOnly(ProjTypeUndefined, StateZoneTypeAlaska1));
}

TEST(ZoneDefinitions, CallIsLoggedEvenForNull) {
    TemporaryDirectory const directory;
    LogInit(1, directory.file("log").c_str());
    ProjGetStateZoneParams(nullptr);
    LogInit(0, nullptr);
    std::string const text = fileBytes(directory.file("log"));
    EXPECT_TRUE(text.starts_with("ProjGetStateZoneParams(pData=") && text.ends_with(")\r\n")) << text;
}

TEST(ZoneDefinitions, HostWithTrapsIsNotHit) {
    TrapsEnabled const host;
    for (int i = 0; i < StateZoneTypeNone; ++i)
        for (ProjType year : {year27, year83})
            defined(year, StateZoneType(i));
    EXPECT_TRUE(host.untouched());
}
