#include <zrproj/angle.h>

#include "support/floating_point.h"

#include <gtest/gtest.h>

#include <array>
#include <cfloat>
#include <climits>
#include <clocale>
#include <cmath>
#include <limits>
#include <random>
#include <string>

using namespace ZrProj;

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

constexpr AngleTextFormat d = AngleTextFormatDegrees;
constexpr AngleTextFormat dm = AngleTextFormatDegreesMinutes;
constexpr AngleTextFormat dms = AngleTextFormatDegreesMinutesSeconds;

bool refused(std::string const& text, char letter = 'd') {
    double degrees = 5;
    return !LatLonToDegrees(text.c_str(), &degrees, letter) && degrees == 5;
}

double read(std::string const& text, char letter = 'd') {
    double degrees = 0;
    return LatLonToDegrees(text.c_str(), &degrees, letter) ? degrees : notANumber;
}

std::string written(double degrees, AngleTextFormat format, int decimals, char letter = 'd') {
    char buffer[400];
    return DegreesToLatLon(degrees, buffer, sizeof buffer, format, decimals, letter) ? buffer : "refused";
}

} // namespace

TEST(LatLonToDegrees, ReadsAngles) {
    struct {
        char const* text;
        double degrees;
    } const cases[] = {
        {"-36d52'11.6315", -(36 + 52 / 60. + 11.6315 / 3600.)},
        {"-85d50'", -(85 + 50 / 60.)},
        {"-85D50", -(85 + 50 / 60.)},
        {"350d37", 350 + 37 / 60.},
        {"-142", -142},
        {"30d", 30},
        {"-0d30'", -0.5},
        {"-0d0'36", -0.01},
        {"007d05'09", 7 + 5 / 60. + 9 / 3600.},
        {"36.8699", 36.8699},
        {"30.5d", 30.5},
        {"36d52.194", 36 + 52.194 / 60.},
        {"36d52.194'", 36 + 52.194 / 60.},
        {"0d59'59.999", 59 / 60. + 59.999 / 3600.},
        {"0.1000000000000000055511151231257827", 0.1},
    };
    for (auto const& each : cases)
        EXPECT_DOUBLE_EQ(read(each.text), each.degrees) << each.text;
    EXPECT_TRUE(std::signbit(read("-0")));
}

TEST(LatLonToDegrees, RefusesEverythingElse) {
    for (char const* text : {"",           "-",         "+30",       " 30",          "30 ",
                             "30 d10",     "30d 10",    "d30",       "'30",          ".5",
                             "30.",        "30d5.",     "30.d",      "30d.5",        "1e2",
                             "30d1e1",     "0x10",      "nan",       "inf",          "--30",
                             "30d-10",     "30dd10",    "30d'",      "30d'10",       "30'10",
                             "30:10",      "30d60",     "30d60'0",   "30d59'60",     "30.5d10",
                             "30d10.5'20", "30d10''",   "30d10'20'", "30d10'20\"",   "30N",
                             "30,5",       "30d10'20x", "30d100'",   "\xEF\xBC\x91", "30d59.99999999999999999999"})
        EXPECT_TRUE(refused(text)) << text;
    EXPECT_TRUE(refused(std::string(400, '9')));
    EXPECT_TRUE(refused("30d" + std::string(400, '9')));
    double degrees = 5;
    EXPECT_FALSE(LatLonToDegrees(nullptr, &degrees, 'd'));
    EXPECT_FALSE(LatLonToDegrees("30", nullptr, 'd'));
}

TEST(LatLonToDegrees, MarkIsTheCallers) {
    EXPECT_EQ(read("30:30", ':'), 30.5);
    EXPECT_EQ(read("30\xB0"
                   "30'",
                   '\xB0'),
              30.5);
    EXPECT_EQ(read("30g30'", 'G'), 30.5);
    EXPECT_EQ(read("30-30'", '-'), 30.5);
    EXPECT_EQ(read("30", '\0'), 30);
    EXPECT_TRUE(refused("30d30'", 'g'));
    EXPECT_TRUE(refused("30D30", '$')); // no letter: bytes that differ by the case bit are other marks
}

TEST(DegreesToLatLon, WritesAngles) {
    double const angle = -(36 + 52 / 60. + 11.6315 / 3600.);
    EXPECT_EQ(written(angle, dms, 4), "-36d52'11.6315");
    EXPECT_EQ(written(angle, dm, 3), "-36d52.194");
    EXPECT_EQ(written(angle, d, 4), "-36.8699");
    EXPECT_EQ(written(angle, dms, 0, 'D'), "-36D52'12");
    EXPECT_EQ(written(7.5, dms, 1), "7d30'0.0");
    EXPECT_EQ(written(7.5, d, 0), "8");
    EXPECT_EQ(written(1 / 3., dms, 12), "0d20'0.000000000000");
    EXPECT_EQ(written(400.25, dm, 0), "400d15");
}

TEST(DegreesToLatLon, NeverWrites60) {
    EXPECT_EQ(written(29 + 59 / 60. + 59.96 / 3600, dms, 1), "30d0'0.0");
    EXPECT_EQ(written(29 + 59 / 60. + 59.94 / 3600, dms, 1), "29d59'59.9");
    EXPECT_EQ(written(-29 - 30 / 60. - 59.5001 / 3600, dms, 0), "-29d31'0");
    EXPECT_EQ(written(9.9999, dm, 1), "10d0.0");
    EXPECT_EQ(written(9.9999, d, 3), "10.000");
    EXPECT_EQ(written(std::nextafter(1., 0.), dms, 3), "1d0'0.000");
    EXPECT_EQ(written(std::nextafter(30., 0.), dm, 12), "30d0.000000000000");
    EXPECT_EQ(written(6 / 60., dms, 0), "0d6'0");
}

TEST(DegreesToLatLon, MinusIsForWhatIsNotZero) {
    EXPECT_EQ(written(-0.004, d, 2), "0.00");
    EXPECT_EQ(written(-0.006, d, 2), "-0.01");
    EXPECT_EQ(written(-0.4 / 3600, dms, 0), "0d0'0");
    EXPECT_EQ(written(-0.6 / 3600, dms, 0), "-0d0'1");
    EXPECT_EQ(written(-0.0, dm, 1), "0d0.0");
    EXPECT_EQ(written(-DBL_TRUE_MIN, dms, 12), "0d0'0.000000000000");
}

TEST(DegreesToLatLon, NeedsRoomAndGoodArguments) {
    char buffer[] = "untouched";
    for (int size : {7, 1, 0, -1, INT_MIN})
        EXPECT_FALSE(DegreesToLatLon(-7.5, buffer, size, dms, 0, 'd')) << size; // "-7d30'0"
    for (double wild : {notANumber, infinity, -infinity})
        EXPECT_FALSE(DegreesToLatLon(wild, buffer, 10, d, 1, 'd'));
    for (int decimals : {-1, 13, INT_MAX, INT_MIN})
        EXPECT_FALSE(DegreesToLatLon(1, buffer, 400, d, decimals, 'd'));
    for (int format : {-1, 3, INT_MAX, INT_MIN})
        EXPECT_FALSE(DegreesToLatLon(1, buffer, 10, AngleTextFormat(format), 1, 'd'));
    for (char letter : {'0', '9', '.', '\0'})
        EXPECT_FALSE(DegreesToLatLon(1, buffer, 10, dm, 0, letter));
    EXPECT_FALSE(DegreesToLatLon(1, nullptr, 10, d, 1, 'd'));
    EXPECT_STREQ(buffer, "untouched");
    EXPECT_TRUE(DegreesToLatLon(-7.5, buffer, 8, dms, 0, 'd'));
    EXPECT_STREQ(buffer, "-7d30'0");
    EXPECT_EQ(buffer[8], 'd');
}

TEST(AngleText, WhatIsWrittenIsReadBackToHalfOfItsLastPlace) {
    constexpr std::array<double, 3> perDegree{1, 60, 3600};
    std::mt19937_64 random(1);
    for (double range : {360., 1., 1e-3, 1e9}) {
        std::uniform_real_distribution<double> angles(-range, range);
        for (int i = 0; i < 6000; ++i) {
            int const format = i % 3, decimals = i % 13;
            // Close to a whole second every other time.
            double const any = angles(random);
            double const angle = i % 2 ? any : std::round(any * 3600) / 3600;
            std::string const text = written(angle, AngleTextFormat(format), decimals, ':');
            double const half = 0.5 * std::pow(10, -decimals) / perDegree[static_cast<std::size_t>(format)];
            ASSERT_NEAR(read(text, ':'), angle, half * (1 + 1e-9) + 3e-16 * std::fabs(angle)) << text;
        }
    }
    for (int format = 0; format < 3; ++format) {
        EXPECT_EQ(read(written(DBL_MAX, AngleTextFormat(format), 12)), DBL_MAX);
        EXPECT_EQ(read(written(-9007199254740993., AngleTextFormat(format), 0)), -9007199254740993.);
    }
}

TEST(AngleText, LocaleDoesNotMatter) {
    bool found = false;
    for (char const* name : {"de_DE.UTF-8", "fr_FR.UTF-8", "de_DE", "fr_FR"})
        found = found || std::setlocale(LC_NUMERIC, name);
    if (!found)
        GTEST_SKIP() << "no locale with a decimal comma here";
    double const value = read("36d52.194");
    std::string const text = written(-36.5, d, 2);
    std::setlocale(LC_NUMERIC, "C");
    EXPECT_DOUBLE_EQ(value, 36 + 52.194 / 60.);
    EXPECT_EQ(text, "-36.50");
}

TEST(AngleText, HostWithTrapsIsNotHit) {
    TrapsEnabled const host;
    char buffer[400];
    double degrees = 0;
    for (double angle :
         {notANumber, std::numeric_limits<double>::signaling_NaN(), infinity, DBL_MAX, DBL_TRUE_MIN, 0.1, -29.9999})
        for (AngleTextFormat format : {d, dm, dms})
            DegreesToLatLon(angle, buffer, sizeof buffer, format, 3, 'd');
    LatLonToDegrees("-36d52'11.6315", &degrees, 'd');
    LatLonToDegrees("0.00000000000000000000000000001", &degrees, 'd');
    LatLonToDegrees("36.86989764584402129685561255909341066", &degrees, 'd');
    EXPECT_TRUE(host.untouched());
}
