#include "proj/zone_definition.h"

#include "frame/log.h"
#include "support/floating_point.h"
#include "support/temporary_directory.h"

#include <zrproj/angle.h>
#include <zrproj/zones.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <cstddef>
#include <cstring>
#include <limits>
#include <span>
#include <string>

using namespace ZrProj;

namespace {

constexpr StateZoneType nowhere[] = {StateZoneType(-1), StateZoneTypeNone, StateZoneType(143),
                                     StateZoneType(std::numeric_limits<int>::min()),
                                     StateZoneType(std::numeric_limits<int>::max())};

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

struct Position {
    double Lon0, Lat0, Lon1, Lat1, Lon2, Lat2, xOrg, yOrg, K0;
    bool operator==(Position const&) const = default;
};

Position position(PROJDATA const& data) {
    return {data.Lon0, data.Lat0, data.Lon1, data.Lat1, data.Lon2, data.Lat2, data.xOrg, data.yOrg, data.K0};
}

double dms(int degrees, int minutes, double seconds = 0) {
    return degrees + minutes / 60. + seconds / 3600.;
}

auto bytesOf(PROJDATA const& data) {
    return std::bit_cast<std::array<unsigned char, sizeof data>>(data);
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
        EXPECT_STREQ(name, "");
        EXPECT_EQ(code, 0);
    }
    ProjGetStateZoneInfo(StateZoneTypeAlaska1, nullptr, nullptr);
}

TEST(StateZones, FromName) {
    StateZoneType zone = StateZoneTypeNone;
    EXPECT_TRUE(ProjGetStateZoneFromName(&zone, "alabama east"));
    EXPECT_EQ(zone, StateZoneTypeAlabamaEast);
    EXPECT_TRUE(ProjGetStateZoneFromName(&zone, "DELEWARE"));
    EXPECT_EQ(zone, StateZoneTypeDeleware);
    for (char const* unknown : {"Delaware", "California", " Alabama East", "California VIII"}) {
        zone = StateZoneTypeAlaska1;
        EXPECT_FALSE(ProjGetStateZoneFromName(&zone, unknown)) << unknown;
        EXPECT_EQ(zone, StateZoneTypeNone);
    }
    zone = StateZoneTypeAlaska1;
    EXPECT_FALSE(ProjGetStateZoneFromName(&zone, ""));
    EXPECT_FALSE(ProjGetStateZoneFromName(&zone, nullptr));
    EXPECT_FALSE(ProjGetStateZoneFromName(nullptr, "Alaska 1"));
    EXPECT_EQ(zone, StateZoneTypeAlaska1);
}

TEST(StateZones, FromUsgsCode) {
    StateZoneType zone = StateZoneTypeNone;
    EXPECT_TRUE(ProjGetStateZoneFromUSGSCode(&zone, 901));
    EXPECT_EQ(zone, StateZoneTypeFloridaEast);
    EXPECT_TRUE(ProjGetStateZoneFromUSGSCode(&zone, 0));
    EXPECT_EQ(zone, StateZoneTypeGreatLakesSurvey1);
    EXPECT_FALSE(ProjGetStateZoneFromUSGSCode(&zone, 9999));
    EXPECT_EQ(zone, StateZoneTypeNone);
    zone = StateZoneTypeAlaska1;
    EXPECT_FALSE(ProjGetStateZoneFromUSGSCode(&zone, -1));
    EXPECT_FALSE(ProjGetStateZoneFromUSGSCode(nullptr, 101));
    EXPECT_EQ(zone, StateZoneTypeAlaska1);
}

TEST(StateZones, NamesAndCodesLeadBackToTheirZones) {
    for (int i = 0; i < StateZoneTypeNone; ++i) {
        char name[38];
        int code = -1;
        StateZoneType found = StateZoneTypeNone;
        ProjGetStateZoneInfo(StateZoneType(i), name, &code);
        EXPECT_TRUE(ProjGetStateZoneFromName(&found, name)) << i;
        EXPECT_EQ(found, i);
        EXPECT_TRUE(ProjGetStateZoneFromUSGSCode(&found, code)) << i;
        EXPECT_EQ(found, code == 0 ? StateZoneTypeGreatLakesSurvey1 : i);
    }
}

TEST(StateZones, PoscNumbersLeadBothWaysButWhereTwoZonesShareOne) {
    for (ProjType type : {ProjTypeStatePlane1927, ProjTypeStatePlane1983}) {
        for (int i = 0; i < StateZoneTypeNone; ++i) {
            int posc = 0;
            if (!ProjStateZoneToPOSCNumber(type, StateZoneType(i), &posc))
                continue;
            ProjType foundType = ProjTypeUndefined;
            StateZoneType found = StateZoneTypeNone;
            EXPECT_TRUE(ProjGetStateZoneFromPOSCNumber(posc, &foundType, &found)) << posc;
            EXPECT_EQ(foundType, type) << posc;
            EXPECT_EQ(found, posc == 32134 ? 111 : posc == 32135 ? 112 : i) << posc;
        }
    }
}

TEST(StateZones, PoscNumbersThatAreNone) {
    ProjType type = ProjTypeMercator;
    StateZoneType zone = StateZoneTypeAlaska1;
    for (int posc : {0, -1, 26728, 32635, std::numeric_limits<int>::max()})
        EXPECT_FALSE(ProjGetStateZoneFromPOSCNumber(posc, &type, &zone)) << posc;
    EXPECT_EQ(type, ProjTypeMercator);
    EXPECT_EQ(zone, StateZoneTypeAlaska1);
    EXPECT_TRUE(ProjGetStateZoneFromPOSCNumber(26729, nullptr, nullptr));

    int posc = 5;
    EXPECT_FALSE(ProjStateZoneToPOSCNumber(ProjTypeStatePlane1927, StateZoneType(105), &posc));
    EXPECT_FALSE(ProjStateZoneToPOSCNumber(ProjTypeStatePlane1983, StateZoneTypeGuamIsland, &posc));
    EXPECT_FALSE(ProjStateZoneToPOSCNumber(ProjTypeMercator, StateZoneTypeAlaska1, &posc));
    for (StateZoneType none : nowhere)
        EXPECT_FALSE(ProjStateZoneToPOSCNumber(ProjTypeStatePlane1983, none, &posc));
    EXPECT_EQ(posc, 5);
    EXPECT_TRUE(ProjStateZoneToPOSCNumber(ProjTypeStatePlane1983, StateZoneTypeAlaska1, nullptr));
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
    // 111 on the Transverse Mercator and Guam with 2 texts, 143 on Lambert with 4, 2 for Alaska 1 and 8 for the Great
    // Lakes with 3.
    EXPECT_EQ(texts, 112 * 2 + 143 * 4 + 10 * 3);
}

TEST(ZoneDefinitions, AreInTheUnitedStates) {
    for (ProjType type : {ProjTypeStatePlane1927, ProjTypeStatePlane1983}) {
        for (int i = 0; i < StateZoneTypeGreatLakesSurvey1; ++i) {
            PROJDATA const data = defined(type, StateZoneType(i));
            if (data.Type == type) // not defined
                continue;
            bool const guam = i == StateZoneTypeGuamIsland, samoa = i == StateZoneTypeAmericanSamoa;
            double const lon = data.Type == ProjTypeHotineObliqueMercator ? data.Lon1 : data.Lon0;
            EXPECT_TRUE(guam || (lon <= -66 && lon >= -176)) << i;
            EXPECT_TRUE(samoa || (data.Lat0 > 13 && data.Lat0 < 58)) << i;
            if (data.Type == ProjTypeLambertConformalConic) {
                EXPECT_TRUE(samoa || data.Lat2 < data.Lat1) << i;
                EXPECT_GE(+data.Lat1, +data.Lat0) << i;
                EXPECT_LT(+data.Lat1 - +data.Lat0, 5.5) << i;
                EXPECT_EQ(+data.K0, 0) << i;
            } else if (!guam) {
                EXPECT_TRUE(data.K0 > 0.9998 && data.K0 <= 1) << i;
            }
        }
    }
}

TEST(ZoneDefinitions, TransverseMercatorAndLambert) {
    PROJDATA data = defined(ProjTypeStatePlane1927, StateZoneTypeNewJersey);
    EXPECT_EQ(+data.Type, ProjTypeUniversalTransverseMercator);
    EXPECT_EQ(+data.Ellipsoid, EllipsoidTypeClarke1866);
    EXPECT_EQ(+data.MajorRadius, 6378206.4);
    EXPECT_EQ(+data.Flattening, EllipsoidFlattening(EllipsoidTypeClarke1866));
    EXPECT_EQ(+data.Zone, StateZoneTypeNewJersey);
    EXPECT_EQ(position(data), (Position{-dms(74, 40), dms(38, 50), 0, 0, 0, 0, 609601.2192024384, 0, 0.999975}));

    data = defined(ProjTypeStatePlane1983, StateZoneTypeTexasSouthCentral);
    EXPECT_EQ(+data.Type, ProjTypeLambertConformalConic);
    EXPECT_EQ(+data.Ellipsoid, EllipsoidTypeGrs1980Iugg1980);
    EXPECT_EQ(+data.MajorRadius, 6378137);
    EXPECT_EQ(position(data), (Position{-99, dms(27, 50), 0, dms(30, 17), 0, dms(28, 23), 600000, 4000000, 0}));

    data = defined(ProjTypeStatePlane1927, StateZoneTypeMichiganCentral);
    EXPECT_EQ(+data.Ellipsoid, EllipsoidTypeStatePlane1927Michigan);
    EXPECT_EQ(+data.MajorRadius, 6378450.047);
    EXPECT_EQ(+defined(ProjTypeStatePlane1983, StateZoneTypeMichiganCentral).Ellipsoid, EllipsoidTypeGrs1980Iugg1980);
}

TEST(ZoneDefinitions, ObliqueAndPolyconic) {
    PROJDATA data = defined(ProjTypeStatePlane1927, StateZoneTypeAlaska1);
    EXPECT_EQ(+data.Type, ProjTypeHotineObliqueMercator);
    EXPECT_EQ(position(data), (Position{0, 57, -dms(133, 40), 0, 0, 0, 818585.5672270928, 575219.2451072643, 0.9999}));
    EXPECT_DOUBLE_EQ(+data.Alpha, -dms(36, 52, 11.6315));
    EXPECT_EQ(bytesOf(data)[offsetof(PROJDATA, bUseAlpha)], 1);
    EXPECT_EQ(bytesOf(data)[offsetof(PROJDATA, bRotate)], 1);
    EXPECT_EQ(bytesOf(data)[offsetof(PROJDATA, bUOffset)], 1);

    data = defined(ProjTypeStatePlane1983, StateZoneTypeGreatLakesSurvey4);
    EXPECT_EQ(+data.Type, ProjTypeHotineObliqueMercator);
    EXPECT_EQ(+data.Ellipsoid, EllipsoidTypeClarke1866);
    EXPECT_EQ(position(data), (Position{0, dms(285, 41), dms(88, 50), dms(47, 12), 0, 0, 9000000, -1600000, 0.9999}));
    EXPECT_EQ(bytesOf(data)[offsetof(PROJDATA, bRotate)], 1);

    data = defined(ProjTypeStatePlane1927, StateZoneTypeGuamIsland);
    EXPECT_EQ(+data.Type, ProjTypePolyconic);
    EXPECT_EQ(position(data), (Position{dms(144, 44, 55.50254), dms(13, 28, 20.87887), 0, 0, 0, 0, 50000, 50000, 0}));
}

TEST(ZoneDefinitions, WhatADefinitionDoesNotNameStaysTheCallers) {
    PROJDATA const before = request(ProjTypeStatePlane1983, StateZoneTypeVermont);
    PROJDATA const data = defined(ProjTypeStatePlane1983, StateZoneTypeVermont);
    EXPECT_EQ(+data.Scale, +before.Scale);
    EXPECT_EQ(+data.Lat3, +before.Lat3);
    EXPECT_EQ(+data.Lon3, +before.Lon3);
    EXPECT_EQ(+data.Alpha, +before.Alpha);
    for (std::size_t offset : {offsetof(PROJDATA, bSouth), offsetof(PROJDATA, bUseAlpha), offsetof(PROJDATA, bRotate),
                               offsetof(PROJDATA, bUOffset)})
        EXPECT_EQ(bytesOf(data)[offset], unset) << offset;
    EXPECT_EQ(std::memcmp(data.Reserved, before.Reserved, sizeof data.Reserved), 0);
    EXPECT_EQ(+data.iResult, +before.iResult);
    // The Great Lakes zones name two flags of three, and no azimuth.
    PROJDATA const lakes = defined(ProjTypeStatePlane1927, StateZoneTypeGreatLakesSurvey1);
    EXPECT_EQ(bytesOf(lakes)[offsetof(PROJDATA, bUseAlpha)], unset);
    EXPECT_EQ(+lakes.Alpha, +before.Alpha);
}

TEST(ZoneDefinitions, ZoneWithoutADefinitionIsClearedOnly) {
    PROJDATA const data = defined(ProjTypeStatePlane1927, StateZoneTypeSouthCarolina);
    EXPECT_EQ(+data.Zone, StateZoneTypeNone);
    EXPECT_EQ(+data.Type, ProjTypeStatePlane1927);
    EXPECT_EQ(position(data), Position{});
    EXPECT_EQ(+data.MajorRadius, +request(ProjTypeStatePlane1927, StateZoneTypeNone).MajorRadius);
}

TEST(ZoneDefinitions, RecordThatAsksForNoZoneLosesItsZoneOnly) {
    auto const refused = [](ProjType type, StateZoneType zone) {
        PROJDATA expected = request(type, zone);
        expected.Zone = StateZoneTypeNone;
        return bytesOf(defined(type, zone)) == bytesOf(expected);
    };
    for (StateZoneType zone : nowhere)
        EXPECT_TRUE(refused(ProjTypeStatePlane1983, zone)) << zone;
    EXPECT_TRUE(refused(ProjTypeUniversalTransverseMercator, StateZoneTypeAlaska1));
    EXPECT_TRUE(refused(ProjTypeUndefined, StateZoneTypeAlaska1));
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
    std::array<unsigned char, sizeof(PROJDATA)> bytes;
    bytes.fill(0xFF); // every double a NaN
    TrapsEnabled const host;
    for (ProjType type : {ProjTypeStatePlane1927, ProjTypeStatePlane1983}) {
        for (int i = 0; i < StateZoneTypeNone; ++i) {
            PROJDATA data;
            std::memcpy(&data, bytes.data(), sizeof data);
            data.Type = type;
            data.Zone = StateZoneType(i);
            ProjGetStateZoneParams(&data);
        }
    }
    EXPECT_TRUE(host.untouched());
}
