#include <zrproj/zones.h>

#include "support/floating_point.h"

#include <gtest/gtest.h>

#include <cfloat>
#include <climits>
#include <cmath>
#include <cstdint>
#include <limits>
#include <random>
#include <string>

using namespace ZrProj;

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

/// "17N" as read from a text; "none" where there is no zone.
std::string zoneRead(std::string const& text) {
    int zone = -999;
    bool south = false;
    if (!ProjUTMZoneNameToNumber(text.c_str(), &zone, &south))
        return zone == -999 && !south ? "none" : "outputs touched";
    return std::to_string(zone) + (south ? "S" : "N");
}

std::string nameOf(int zone, bool south, UTMZoneNameFormat format) {
    char name[80];
    return ProjUTMZoneNumberToName(zone, south, name, sizeof name, format) ? name : "refused";
}

} // namespace

TEST(UtmZones, CentralMeridian) {
    for (int zone = 1; zone <= 60; ++zone)
        EXPECT_EQ(ProjUTMZoneNumberToLon(zone), -183 + 6 * zone);
    EXPECT_EQ(ProjUTMZoneNumberToLon(0), 177);
    EXPECT_EQ(ProjUTMZoneNumberToLon(61), -177);
    EXPECT_EQ(ProjUTMZoneNumberToLon(-3), ProjUTMZoneNumberToLon(57));
    EXPECT_EQ(ProjUTMZoneNumberToLon(-3600), -183); // the remainder has the dividend's sign
    EXPECT_EQ(ProjUTMZoneNumberToLon(INT_MAX), (INT_MAX % 60 + 59) % 60 * 6 - 177);
    EXPECT_EQ(ProjUTMZoneNumberToLon(INT_MIN), (INT_MIN + 3599) % 60 * 6 - 177);
}

TEST(UtmZones, OfALongitude) {
    struct {
        double lon;
        int zone;
    } const cases[] = {{-180, 1},  {-177, 1},     {-174, 2}, {-6.5, 30},  {-6, 30}, {-1, 30},       {-0.5, 31},
                       {-0.0, 31}, {5.99999, 31}, {6, 32},   {179.9, 60}, {180, 1}, {360 + 3., 31}, {-363, 30}};
    for (auto const& each : cases)
        EXPECT_EQ(ProjUTMLonToZoneNumber(each.lon), each.zone) << each.lon;
}

TEST(UtmZones, OfALongitudeFarOutFollowTheSameIntegers) {
    std::mt19937_64 random(1);
    for (double range : {1e3, 1.4e5, 1e9, 1e18}) {
        std::uniform_real_distribution<double> longitudes(-range, range);
        for (int i = 0; i < 2000; ++i) {
            double const lon = longitudes(random);
            auto const whole = static_cast<std::int64_t>(lon);
            ASSERT_EQ(ProjUTMLonToZoneNumber(lon), (whole + 129780) % 360 / 6 + 1) << lon;
        }
    }
    for (double edge : {-129780., -129781., -130140., -130141., -129420.})
        EXPECT_EQ(ProjUTMLonToZoneNumber(edge), (static_cast<int>(edge) + 129780) % 360 / 6 + 1) << edge;
    EXPECT_EQ(ProjUTMLonToZoneNumber(std::ldexp(1, 1000)), (16 + 180) / 6 + 1); // 2^1000 modulo 360 is 16
    for (double wild : {infinity, -infinity, notANumber})
        EXPECT_EQ(ProjUTMLonToZoneNumber(wild), 0);
}

TEST(UtmZones, Names) {
    EXPECT_EQ(nameOf(17, false, UTMZoneNameFormatShort), "Zone 17N");
    EXPECT_EQ(nameOf(17, false, UTMZoneNameFormatLetter), "Zone 17N (084W to 078W)");
    EXPECT_EQ(nameOf(17, false, UTMZoneNameFormatSign), "Zone 17N (-84 to -78)");
    EXPECT_EQ(nameOf(61, true, UTMZoneNameFormatShort), "Zone 01S");
    EXPECT_EQ(nameOf(60, true, UTMZoneNameFormatLetter), "Zone 60S (174E to 180E)");
    EXPECT_EQ(nameOf(30, true, UTMZoneNameFormatLetter), "Zone 30S (006W to 000E)");
    EXPECT_EQ(nameOf(31, true, UTMZoneNameFormatSign), "Zone 31S (+00 to +06)");
    EXPECT_EQ(nameOf(17, false, UTMZoneNameFormat(3)), "refused");
    EXPECT_EQ(nameOf(17, false, UTMZoneNameFormat(-1)), "refused");
    EXPECT_EQ(zoneRead(nameOf(INT_MAX, false, UTMZoneNameFormatSign)), "7N");
}

TEST(UtmZones, NameNeedsRoom) {
    char buffer[] = "untouched";
    for (int size : {8, 1, 0, -1, INT_MIN})
        EXPECT_FALSE(ProjUTMZoneNumberToName(61, false, buffer, size, UTMZoneNameFormatShort)) << size;
    EXPECT_FALSE(ProjUTMZoneNumberToName(61, false, nullptr, 80, UTMZoneNameFormatShort));
    EXPECT_STREQ(buffer, "untouched");
    EXPECT_TRUE(ProjUTMZoneNumberToName(61, false, buffer, 9, UTMZoneNameFormatShort));
    EXPECT_STREQ(buffer, "Zone 01N");
}

TEST(UtmZones, ReadFromText) {
    struct {
        char const *text, *zone;
    } const cases[] = {
        {"Zone 17N", "17N"},
        {"17 s", "17S"},
        {"17\t S", "17S"},
        {"zone -3", "57N"},
        {"-3", "57N"},
        {"+ 17south", "17S"},
        {"Zone 17N (084W)", "17N"},
        {"17 (S)", "17N"},
        {"61", "1N"},
        {"0", "60N"},
        {"17-s", "17N"},
        {"-3599s", "1S"},
        {"-3600", "0N"},
        {"Zone", "none"},
        {"", "none"},
        {"- Zone 17", "none"},
        {"+-17", "none"},
        {"Zone -", "none"},
        {"17.5S", "17N"},
        {"x17", "17N"},
    };
    for (auto const& each : cases)
        EXPECT_EQ(zoneRead(each.text), each.zone) << each.text;
    EXPECT_FALSE(ProjUTMZoneNameToNumber(nullptr, nullptr, nullptr));
    EXPECT_TRUE(ProjUTMZoneNameToNumber("1", nullptr, nullptr));
}

TEST(UtmZones, LongNumbersWrapToo) {
    std::mt19937_64 random(2);
    for (int i = 0; i < 2000; ++i) {
        auto const number = static_cast<std::int64_t>(random() >> (4 + random() % 56));
        std::string const digits = std::to_string(number);
        ASSERT_EQ(zoneRead(digits + "s"), std::to_string((number + 3599) % 60 + 1) + "S") << digits;
        ASSERT_EQ(zoneRead("-" + digits), std::to_string((-number + 3599) % 60 + 1) + "N") << digits;
    }
    EXPECT_EQ(zoneRead(std::string(100000, '0') + "17"), "17N");
    EXPECT_EQ(zoneRead("6" + std::string(100000, '0') + "17"), "17N");
}

TEST(UtmZones, WrittenNamesAreReadBack) {
    for (int zone = 1; zone <= 60; ++zone)
        for (bool south : {false, true})
            for (int format = 0; format < 3; ++format)
                EXPECT_EQ(zoneRead(nameOf(zone, south, UTMZoneNameFormat(format))),
                          std::to_string(zone) + (south ? "S" : "N"));
}

TEST(UtmZones, HostWithTrapsIsNotHit) {
    TrapsEnabled const host;
    for (double lon : {notANumber, std::numeric_limits<double>::signaling_NaN(), infinity, -DBL_MAX, DBL_TRUE_MIN, 0.1})
        ProjUTMLonToZoneNumber(lon);
    ProjUTMZoneNumberToLon(17);
    EXPECT_TRUE(host.untouched());
}
