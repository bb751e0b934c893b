#include "cli/text/numbers.h"

#include <gtest/gtest.h>

#include <string>

namespace ZrProj::Command {
namespace {

TEST(AngleField, ReadsDecimalDegreesAndPartsWithTheirMarks) {
    struct Case {
        char const* text;
        double latitude;
    };
    double const seconds = 40 + 26 / 60.0 + 46.5 / 3600;
    for (Case const& c : {Case{"40.5", 40.5},
                          {" +40.5 ", 40.5},
                          {"-40.5", -40.5},
                          {"4.05e1", 40.5},
                          {"40.5N", 40.5},
                          {"40.5 s", -40.5},
                          {"S 40.5", -40.5},
                          {"40d", 40},
                          {"40D30", 40.5},
                          {"-0d30'", -0.5},
                          {"40\u00B026'46.5\"N", seconds},
                          {"40\u00BA26\u203246.5\u2033", seconds},
                          {"40\xB0"
                           "26'46.5''",
                           seconds},
                          {"40\u00B026\u201946.5\u201D S", -seconds},
                          {"40\u00B0 26' 46.5\" N", seconds},
                          {"40:26:46.5", seconds},
                          {"40d26m46.5s", seconds},
                          {"40d26m46.5sS", -seconds},
                          {"S40d26'46.5s", -seconds},
                          {"40d26m46.5S", -seconds},
                          {"40d26'46.5S", -seconds},
                          {"\u221240\u00B030'", -40.5},
                          {"90", 90},
                          {"-90", -90}}) {
        Reading const reading = readAngle(c.text, Axis::Latitude);
        EXPECT_STREQ(reading.error, nullptr) << c.text;
        EXPECT_NEAR(reading.value, c.latitude, 1e-13) << c.text;
    }
    EXPECT_EQ(readAngle("79.5w", Axis::Longitude).value, -79.5);
    EXPECT_EQ(readAngle("E79.5", Axis::Longitude).value, 79.5);
    EXPECT_EQ(readAngle("-360", Axis::Azimuth).value, -360);
}

TEST(AngleField, RefusesWhatCouldBeReadWrongly) {
    struct Case {
        char const* text;
        Axis axis;
        char const* reason;
    };
    for (Case const& c : {
             Case{"", Axis::Latitude, "is empty"},
             {"north", Axis::Latitude, "is not a number"},
             {"nan", Axis::Latitude, "finite"},
             {"45N", Axis::Longitude, "latitude's letter"},
             {"S45", Axis::Longitude, "latitude's letter"},
             {"45W", Axis::Latitude, "longitude's letter"},
             {"45E", Axis::Azimuth, "not an angle"},
             {"-45S", Axis::Latitude, "both a sign and a letter"},
             {"N45N", Axis::Latitude, "not an angle"},
             {"45d60'", Axis::Latitude, "60 or more"},
             {"45d10'60\"", Axis::Latitude, "60 or more"},
             {"45.5d10'", Axis::Latitude, "fraction"},
             {"45d10.5'3", Axis::Latitude, "fraction"},
             {"45d10'30s", Axis::Latitude, "seconds or south"},
             {"45D10M30S", Axis::Latitude, "seconds or south"},
             {"45 10 30", Axis::Latitude, "not an angle"},
             {"45:", Axis::Latitude, "not an angle"},
             {"45d10:", Axis::Latitude, "not an angle"},
             {"45'10", Axis::Latitude, "not an angle"},
             {"45d-10'", Axis::Latitude, "not an angle"},
             {"45d10'30\"x", Axis::Latitude, "not an angle"},
             {"45,5", Axis::Latitude, "decimal comma"},
             {"45d10'30\"40", Axis::Latitude, "not an angle"},
             {"90d0'0.1\"", Axis::Latitude, "out of range"},
             {"90.0001", Axis::Latitude, "out of range"},
             {"360.5", Axis::Longitude, "out of range"},
             {"1e999", Axis::Longitude, "not an angle"},
         }) {
        Reading const reading = readAngle(c.text, c.axis);
        ASSERT_NE(reading.error, nullptr) << c.text;
        EXPECT_NE(std::string(reading.error).find(c.reason), std::string::npos) << c.text << ' ' << reading.error;
    }
}

} // namespace
} // namespace ZrProj::Command
