#include "cli/model/zones.h"

#include <gtest/gtest.h>

namespace ZrProj::Command {
namespace {

TEST(UtmZone, ReadsWhatTheLibraryWritesAndWhatUsersWrite) {
    for (char const* text : {"17N", "17", " 17 n", "Zone 17N", "zone 17N (084W to 078W)", "Zone 17N (-84 to -78)",
                             "UTM 17N", "utm zone 17n"})
        EXPECT_EQ(readUtmZone(text), utmZone(17, false)) << text;
    EXPECT_EQ(readUtmZone("01S"), utmZone(1, true));
    for (UtmZone zone = 0; zone < utmZones; ++zone)
        EXPECT_EQ(readUtmZone(utmZoneName(zone)), zone);
}

TEST(UtmZone, RefusesWhatIsNoZone) {
    for (char const* text : {"", "N", "0N", "61N", "-3", "+3N", "1.5N", "33U", "17NS", "17N5", "117N", "17 north pole"})
        EXPECT_FALSE(readUtmZone(text)) << text;
}

TEST(UtmZone, ZonesOfPointsChangeAtWholeMultiplesOfSix) {
    struct Case {
        PROJPOINT point;
        char const* name;
    };
    for (Case const& c : {Case{{-0.5, 51}, "30N"},
                          {{0, 0}, "31N"},
                          {{-6, -1}, "30S"},
                          {{-6.5, 1}, "29N"},
                          {{-180, 1}, "01N"},
                          {{180, -1}, "01S"},
                          {{179.9, 1}, "60N"},
                          {{200, 1}, "04N"},
                          {{-359.5, 1}, "31N"}})
        EXPECT_EQ(utmZoneName(utmZoneOf(c.point)), c.name) << c.point.x;
}

} // namespace
} // namespace ZrProj::Command
