#include <zrproj/ellipsoid.h>

#include "support/floating_point.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <limits>

using namespace ZrProj;

namespace {

constexpr EllipsoidType nowhere[] = {EllipsoidType(-1), EllipsoidTypeNone, EllipsoidType(51),
                                     EllipsoidType(std::numeric_limits<int>::min()),
                                     EllipsoidType(std::numeric_limits<int>::max())};

} // namespace

TEST(Ellipsoids, FiguresOfKnownEllipsoids) {
    EXPECT_EQ(EllipsoidRadius(EllipsoidTypeWgs84), 6378137.0);
    EXPECT_EQ(EllipsoidFlattening(EllipsoidTypeWgs84), 1 / 298.257223563);
    EXPECT_EQ(EllipsoidRadius(EllipsoidTypeClarke1866), 6378206.4);
    // Clarke's own second figure, the semi-minor axis of 6356583.8 m.
    EXPECT_NEAR(6378206.4 * (1 - EllipsoidFlattening(EllipsoidTypeClarke1866)), 6356583.8, 1e-3);
    EXPECT_EQ(EllipsoidRadius(EllipsoidTypeStandardSphereOfOneUnit), 1.0);
    EXPECT_EQ(EllipsoidFlattening(EllipsoidTypeStandardSphereOfOneUnit), 0.0);
}

TEST(Ellipsoids, EveryEllipsoidIsAnEarth) {
    for (int i = 1; i < EllipsoidTypeStandardSphereOf6370997Meters; ++i) {
        EXPECT_NEAR(EllipsoidRadius(EllipsoidType(i)), 6378137, 20000) << i;
        EXPECT_NEAR(EllipsoidFlattening(EllipsoidType(i)), 1 / 298.257, i == EllipsoidTypeMaupertius1738 ? 2e-3 : 4e-4)
            << i;
    }
}

TEST(Ellipsoids, OutsideTheCatalogue) {
    EXPECT_EQ(EllipsoidRadius(EllipsoidTypeUserDefined), 1.0);
    EXPECT_EQ(EllipsoidFlattening(EllipsoidTypeUserDefined), 0.0);
    char name[64] = "untouched";
    double radius = 5;
    int code = 5;
    for (EllipsoidType type : nowhere) {
        EXPECT_EQ(EllipsoidRadius(type), 1.0);
        EXPECT_EQ(EllipsoidFlattening(type), 0.0);
        EXPECT_FALSE(EllipsoidInfo(type, name, &radius, &radius));
        EXPECT_FALSE(EllipsoidToPOSCNumber(type, &code));
    }
    EXPECT_STREQ(name, "untouched");
    EXPECT_FALSE(EllipsoidInfo(EllipsoidTypeUserDefined, name, &radius, &radius));
    EXPECT_STREQ(name, "user-defined");
    EXPECT_FALSE(EllipsoidInfo(EllipsoidTypeUserDefined, nullptr, nullptr, nullptr));
    EXPECT_EQ(radius, 5);
    EXPECT_EQ(code, 5);
}

TEST(Ellipsoids, NamesLeadBackToTheirNumbers) {
    std::size_t longest = 0;
    for (int i = 1; i < 50; ++i) {
        char name[34];
        double radius = 0, flattening = -1;
        EXPECT_TRUE(EllipsoidInfo(EllipsoidType(i), name, &radius, &flattening));
        EXPECT_EQ(radius, EllipsoidRadius(EllipsoidType(i)));
        EXPECT_EQ(flattening, EllipsoidFlattening(EllipsoidType(i)));
        EllipsoidType found = EllipsoidTypeNone;
        EXPECT_TRUE(EllipsoidFromName(&found, name));
        EXPECT_EQ(found, i);
        longest = std::max(longest, std::strlen(name));
    }
    EXPECT_EQ(longest, 33u);
    EXPECT_TRUE(EllipsoidInfo(EllipsoidTypeWgs84, nullptr, nullptr, nullptr));
}

TEST(Ellipsoids, FromName) {
    EllipsoidType type = EllipsoidTypeNone;
    EXPECT_TRUE(EllipsoidFromName(&type, "wgs 84"));
    EXPECT_EQ(type, EllipsoidTypeWgs84);
    for (char const* unknown : {"WGS84", " WGS 84", "WGS 84 ", "", "user-defined"}) {
        type = EllipsoidTypeWgs84;
        EXPECT_FALSE(EllipsoidFromName(&type, unknown)) << unknown;
        EXPECT_EQ(type, EllipsoidTypeUserDefined);
    }
    type = EllipsoidTypeWgs84;
    EXPECT_TRUE(EllipsoidFromName(&type, "USER DEFINED"));
    EXPECT_EQ(type, EllipsoidTypeUserDefined);
    EXPECT_FALSE(EllipsoidFromName(nullptr, "WGS 84"));
    EXPECT_FALSE(EllipsoidFromName(&type, nullptr));
}

TEST(Ellipsoids, PoscCodesLeadBothWays) {
    int coded = 0;
    for (int i = 1; i < 50; ++i) {
        int code = 0;
        if (!EllipsoidToPOSCNumber(EllipsoidType(i), &code))
            continue;
        ++coded;
        EllipsoidType found = EllipsoidTypeNone;
        EXPECT_TRUE(EllipsoidFromPOSCNumber(code, &found)) << code;
        EXPECT_EQ(found, i);
    }
    EXPECT_EQ(coded, 19);
    EXPECT_TRUE(EllipsoidToPOSCNumber(EllipsoidTypeWgs84, nullptr));
    EXPECT_TRUE(EllipsoidFromPOSCNumber(7030, nullptr));
}

TEST(Ellipsoids, PoscCodesWithoutAnEntryGiveTheNearest) {
    for (int code : {7011, 7012, 7014, 7034, 7016, 7018}) {
        EllipsoidType type = EllipsoidTypeNone;
        EXPECT_FALSE(EllipsoidFromPOSCNumber(code, &type)) << code;
        EXPECT_EQ(type, code >= 7016 && code <= 7018 ? EllipsoidTypeEverest1830 : EllipsoidTypeClarke1880Mod) << code;
    }
    EXPECT_FALSE(EllipsoidFromPOSCNumber(7012, nullptr));
    EllipsoidType type = EllipsoidTypeHough;
    for (int code : {0, -1, 7000, 7025, 7033, 7036, std::numeric_limits<int>::min()})
        EXPECT_FALSE(EllipsoidFromPOSCNumber(code, &type)) << code;
    EXPECT_EQ(type, EllipsoidTypeHough);
}

TEST(Ellipsoids, HostWithTrapsIsNotHit) {
    TrapsEnabled const host;
    double radius = 0, flattening = 0;
    for (int i = -1; i < 52; ++i)
        EllipsoidInfo(EllipsoidType(i), nullptr, &radius, &flattening);
    EXPECT_TRUE(host.untouched());
}
