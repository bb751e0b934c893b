#include "datum/datum_text.h"

#include <gtest/gtest.h>

#include <cfloat>
#include <cstring>

using namespace ZrProj;

namespace {

std::string again(std::string_view text) {
    auto const record = readDatumText(text);
    return record ? datumText(*record) : "refused";
}

} // namespace

TEST(DatumText, KeepsEveryBit) {
    DATUM2WGS84 record = {};
    record.Method = DatumMethodBursaWolf;
    record.Ellipsoid = EllipsoidTypeBessel1841;
    record.bFromWGS84 = true;
    record.PrimeMeridian = 2.337229167;
    record.dX = 0.1;
    record.dY = -0.0;
    record.dZ = DBL_MIN / 4;
    record.rX = 1.0 / 3;
    record.Scale = -DBL_MAX;
    record.Reserved[0] = 0;
    record.Reserved[1] = 0xA5;
    auto const read = readDatumText(datumText(record));
    ASSERT_TRUE(read);
    EXPECT_EQ(std::memcmp(&*read, &record, sizeof record), 0);
}

TEST(DatumText, IsWhatPeopleWouldWrite) {
    EXPECT_EQ(again("method=Molodensky, ellipsoid=15, dx=-8, dy=160, dz=176"),
              "method=Molodensky, ellipsoid=15, dx=-8, dy=160, dz=176");
    EXPECT_EQ(again("dZ = 1e2,METHOD=bursa-wolf ,\trx=0.5, from-wgs84=1"),
              "method=Bursa-Wolf, dz=100, rx=0.5, from-wgs84=1");
    EXPECT_EQ(again("method=None"), "method=none");
}

TEST(DatumText, RefusesWhatItDoesNotSay) {
    for (char const* text :
         {"", "dx=1", "method=", "method=NADCON", "method=None,", "method=None, dx",
          "method=None, dx=", "method=None, dx=1 2", "method=None, dx=+1", "method=None, dx=1,5", "method=None, dw=1",
          "method=None, from-wgs84=2", "method=None, ellipsoid=1.5", "method=None, ellipsoid=99999999999",
          "method=None, reserved=0", "method=None, reserved=0g", "method=None, dx=1e999"})
        EXPECT_FALSE(readDatumText(text)) << text;
    EXPECT_FALSE(readDatumText("method=None, reserved=" + std::string(130, '0'))); // 65 bytes
    EXPECT_TRUE(readDatumText("method=None, reserved=" + std::string(128, '0')));
}

TEST(DatumText, NamesComeBackFromTheirKeys) {
    for (std::string const name : {"Town survey", " lead", "trail ", "; comment", "#1", "a=b", "[x]", "100%", "%41",
                                   "\"q\"", "'", "in; the # middle", "Ünïcode"}) {
        std::string const key = keyOfName(name);
        EXPECT_EQ(nameOfKey(key), name);
        EXPECT_EQ(key.find_first_of("=[]\"'"), std::string::npos) << key;
        EXPECT_EQ(std::string(";# ").find(key.front()), std::string::npos) << key;
    }
    EXPECT_EQ(nameOfKey("50% off"), "50% off"); // as people write it by hand
    EXPECT_EQ(nameOfKey("%4"), "%4");
    EXPECT_EQ(nameOfKey("%"), "%");
}
