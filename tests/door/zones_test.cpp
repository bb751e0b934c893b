#include "door/handles.h"
#include "support/temporary_directory.h"

#include <cmath>

using namespace ZrProj::test;

TEST(DoorZones, TellTheZoneOfAPlace) {
    int zone = 0, south = -1;
    struct Case {
        double longitude, latitude;
        int zone, south;
    };
    for (Case const& c : {Case{-81, 43, 17, 0},
                          {-78.0001, -1e-9, 17, 1},
                          {-78, 0, 18, 0},
                          {-0.5, 0, 30, 0},
                          {180, 0, 1, 0},
                          {-180, 0, 1, 0},
                          {179.9, 90, 60, 0},
                          {279, 43, 17, 0},
                          {-441, -90, 17, 1}}) {
        ASSERT_EQ(zrproj_utm_zone(c.longitude, c.latitude, &zone, &south), ZRPROJ_OK);
        EXPECT_EQ(zone, c.zone) << c.longitude;
        EXPECT_EQ(south, c.south) << c.longitude;
    }
    EXPECT_EQ(zrproj_utm_zone(HUGE_VAL, 0, &zone, &south), ZRPROJ_BAD_ARGUMENT);
    EXPECT_EQ(zrproj_utm_zone(0, std::nan(""), &zone, &south), ZRPROJ_BAD_ARGUMENT);
    EXPECT_EQ(zrproj_utm_zone(0, 90.1, &zone, &south), ZRPROJ_BAD_ARGUMENT);
    double longitude = 0;
    EXPECT_EQ(zrproj_utm_meridian(17, &longitude), ZRPROJ_OK);
    EXPECT_EQ(longitude, -81);
    EXPECT_EQ(zrproj_utm_meridian(0, &longitude), ZRPROJ_BAD_ARGUMENT);
    EXPECT_EQ(zrproj_utm_meridian(61, &longitude), ZRPROJ_BAD_ARGUMENT);
}

TEST(DoorZones, ReadZones) {
    int zone = 0, south = -1;
    for (char const* const text : {"17N", "17 n", "Zone 17N", "UTM 17N", "utm zone 17", "Zone 17N (084W to 078W)"}) {
        ASSERT_EQ(zrproj_utm_read(text, &zone, &south), ZRPROJ_OK) << text;
        EXPECT_EQ(zone, 17);
        EXPECT_EQ(south, 0);
    }
    EXPECT_EQ(zrproj_utm_read("60S", &zone, &south), ZRPROJ_OK);
    EXPECT_EQ(zone, 60);
    EXPECT_EQ(south, 1);
    for (char const* const text : {"", "0", "61N", "33U", "-3", "17.5", "N17", "017N", "17NN"})
        EXPECT_EQ(zrproj_utm_read(text, &zone, &south), ZRPROJ_UNKNOWN) << text;
    EXPECT_EQ(zrproj_utm_read(nullptr, &zone, &south), ZRPROJ_BAD_ARGUMENT);
}

TEST(DoorZones, ReadAndWriteAngles) {
    double degrees = 0;
    EXPECT_EQ(zrproj_angle_read("-36d52'11.6315", &degrees), ZRPROJ_OK);
    EXPECT_NEAR(degrees, -36.8698976388889, 1e-12);
    EXPECT_EQ(zrproj_angle_read("36 52", &degrees), ZRPROJ_BAD_DEFINITION);
    char text[16];
    size_t length = 0;
    EXPECT_EQ(zrproj_angle_write(-36.8698976388889, 3, 4, text, sizeof text, &length), ZRPROJ_OK);
    EXPECT_STREQ(text, "-36d52'11.6315");
    EXPECT_EQ(length, 14U);
    EXPECT_EQ(zrproj_angle_write(-36.8698976388889, 3, 4, text, 14, &length), ZRPROJ_BAD_ARGUMENT);
    EXPECT_EQ(length, 14U);
    EXPECT_EQ(zrproj_angle_write(1, 4, 0, text, sizeof text, nullptr), ZRPROJ_BAD_ARGUMENT);
    EXPECT_EQ(zrproj_angle_write(1, 0, 0, text, sizeof text, nullptr), ZRPROJ_BAD_ARGUMENT);
    EXPECT_EQ(zrproj_angle_write(1, 1, 13, text, sizeof text, nullptr), ZRPROJ_BAD_ARGUMENT);
    EXPECT_EQ(zrproj_angle_write(HUGE_VAL, 1, 0, text, sizeof text, nullptr), ZRPROJ_BAD_ARGUMENT);
}
