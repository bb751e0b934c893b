#include <zrproj/ellipsoid.h>

#include "support/floating_point.h"

#include <gtest/gtest.h>

#include <climits>

using namespace ZrProj;

TEST(Ellipsoids, FiguresOfKnownEllipsoids) {
    EXPECT_EQ(EllipsoidRadius(EllipsoidTypeWgs84), 6378137.0);
    EXPECT_EQ(EllipsoidFlattening(EllipsoidTypeWgs84), 1 / 298.257223563);
    // Clarke's own second figure, the semi-minor axis of 6356583.8 m.
    EXPECT_NEAR(6378206.4 * (1 - EllipsoidFlattening(EllipsoidTypeClarke1866)), 6356583.8, 1e-3);
    EXPECT_EQ(EllipsoidRadius(EllipsoidTypeStandardSphereOfOneUnit), 1.0);
    EXPECT_EQ(EllipsoidFlattening(EllipsoidTypeStandardSphereOfOneUnit), 0.0);
}

TEST(Ellipsoids, OutsideTheCatalogue) {
    char name[34] = "untouched";
    double radius = 5;
    int code = 5;
    for (EllipsoidType type : {EllipsoidType(-1), EllipsoidTypeNone, EllipsoidType(INT_MIN), EllipsoidType(INT_MAX)}) {
        EXPECT_EQ(EllipsoidRadius(type), 1.0);
        EXPECT_EQ(EllipsoidFlattening(type), 0.0);
        EXPECT_FALSE(EllipsoidInfo(type, name, &radius, &radius));
        EXPECT_FALSE(EllipsoidToPOSCNumber(type, &code));
    }
    EXPECT_STREQ(name, "untouched");
    EXPECT_EQ(EllipsoidRadius(EllipsoidTypeUserDefined), 1.0);
    EXPECT_EQ(EllipsoidFlattening(EllipsoidTypeUserDefined), 0.0);
    EXPECT_FALSE(EllipsoidInfo(EllipsoidTypeUserDefined, name, &radius, &radius));
    EXPECT_STREQ(name, "user-defined");
    EXPECT_FALSE(EllipsoidInfo(EllipsoidTypeUserDefined, nullptr, nullptr, nullptr));
    EXPECT_TRUE(radius == 5 && code == 5);
}

TEST(Ellipsoids, EveryEllipsoidIsFoundAgain) {
    int coded = 0;
    for (int i = 1; i < EllipsoidTypeNone; ++i) {
        auto const type = EllipsoidType(i);
        char name[34];
        double radius = 0, flattening = -1;
        int code = 0;
        EllipsoidType found = EllipsoidTypeNone;
        EXPECT_TRUE(EllipsoidInfo(type, name, &radius, &flattening));
        EXPECT_EQ(radius, EllipsoidRadius(type));
        EXPECT_EQ(flattening, EllipsoidFlattening(type));
        EXPECT_TRUE(EllipsoidFromName(&found, name));
        EXPECT_EQ(found, type);
        if (!EllipsoidToPOSCNumber(type, &code))
            continue;
        ++coded;
        EXPECT_TRUE(EllipsoidFromPOSCNumber(code, &found)) << code;
        EXPECT_EQ(found, type);
    }
    EXPECT_EQ(coded, 19);
    EXPECT_TRUE(EllipsoidInfo(EllipsoidTypeWgs84, nullptr, nullptr, nullptr));
    EXPECT_TRUE(EllipsoidToPOSCNumber(EllipsoidTypeWgs84, nullptr));
    EXPECT_TRUE(EllipsoidFromPOSCNumber(7030, nullptr));
}

TEST(Ellipsoids, FromName) {
    struct {
        char const* name;
        bool found;
        EllipsoidType type;
    } const cases[] = {
        {"wgs 84", true, EllipsoidTypeWgs84},
        {"USER DEFINED", true, EllipsoidTypeUserDefined},
        {"user-defined", false, EllipsoidTypeUserDefined},
        {"WGS84", false, EllipsoidTypeUserDefined},
        {"WGS 84 ", false, EllipsoidTypeUserDefined},
        {"", false, EllipsoidTypeUserDefined},
    };
    for (auto const& each : cases) {
        EllipsoidType type = EllipsoidTypeHough;
        EXPECT_EQ(EllipsoidFromName(&type, each.name), each.found) << each.name;
        EXPECT_EQ(type, each.type) << each.name;
    }
    EllipsoidType type = EllipsoidTypeHough;
    EXPECT_FALSE(EllipsoidFromName(nullptr, "WGS 84"));
    EXPECT_FALSE(EllipsoidFromName(&type, nullptr));
}

TEST(Ellipsoids, PoscCodesWithoutAnEntryMayGiveTheNearest) {
    for (int code : {7011, 7012, 7014, 7034, 7016, 7018}) {
        EllipsoidType type = EllipsoidTypeNone;
        EXPECT_FALSE(EllipsoidFromPOSCNumber(code, &type)) << code;
        EXPECT_EQ(type, code >= 7016 && code <= 7018 ? EllipsoidTypeEverest1830 : EllipsoidTypeClarke1880Mod) << code;
    }
    EXPECT_FALSE(EllipsoidFromPOSCNumber(7012, nullptr));
    EllipsoidType type = EllipsoidTypeHough;
    for (int code : {0, -1, 7000, 7033, 7036, INT_MIN})
        EXPECT_FALSE(EllipsoidFromPOSCNumber(code, &type)) << code;
    EXPECT_EQ(type, EllipsoidTypeHough);
}

TEST(Ellipsoids, HostWithTrapsIsNotHit) {
    TrapsEnabled const host;
    double figure = 0;
    for (int i = -1; i < 52; ++i)
        EllipsoidInfo(EllipsoidType(i), nullptr, &figure, &figure);
    EXPECT_TRUE(host.untouched());
}
