// Ways between datums, as a caller of the door meets them.
#include "door/handles.h"
#include "support/temporary_directory.h"

#include <cmath>
#include <fstream>
#include <string>

using namespace ZrProj;
using namespace ZrProj::test;

namespace {

System systemOf(char const* definition) {
    return made<System>([&](zrproj_system** s) { return zrproj_system_create(definition, s); });
}

struct Attempt {
    zrproj_status status;
    std::string message;
    Transform transform;
};

Attempt attempt(char const* from, char const* to, zrproj_options const* options = nullptr) {
    zrproj_transform* made = nullptr;
    zrproj_status const status = zrproj_transform_create(systemOf(from).get(), systemOf(to).get(), options, &made);
    return {status, zrproj_message(), Transform(made)};
}

std::string describe(Transform const& transform, double& accuracy) {
    char text[4000] = "";
    EXPECT_EQ(zrproj_transform_describe(transform.get(), text, sizeof text, nullptr, &accuracy), ZRPROJ_OK);
    return text;
}

zrproj_reason convert(Transform const& transform, double (&point)[2], bool backwards) {
    unsigned char reason = 255;
    EXPECT_EQ(zrproj_transform_points(transform.get(), backwards, point, point + 1, 16, 1, &reason), ZRPROJ_OK);
    return static_cast<zrproj_reason>(reason);
}

} // namespace

// By PROJ 9.1: cct +proj=pipeline of EPSG:1618.
TEST(DatumWay, TellsItsStepsAndWhereItHolds) {
    auto const way = attempt("EPSG:4312", "EPSG:4326");
    ASSERT_EQ(way.status, ZRPROJ_OK) << way.message;
    double accuracy = 0, inside[] = {15, 47}, outside[] = {5, 47};
    std::string const text = describe(way.transform, accuracy);
    EXPECT_NE(text.find("\nMGI to WGS 84 (3), EPSG:1618: seven parameters, good to 1.5 m, in Austria\n"),
              std::string::npos)
        << text;
    EXPECT_EQ(accuracy, 1.5);
    EXPECT_EQ(convert(way.transform, inside, false), ZRPROJ_CONVERTED);
    EXPECT_NEAR(inside[0], 14.99907034005302, 1e-12);
    EXPECT_NEAR(inside[1], 46.99959410406890, 1e-12);
    EXPECT_EQ(convert(way.transform, outside, false), ZRPROJ_OUT_OF_AREA);
    EXPECT_EQ(convert(way.transform, outside, true), ZRPROJ_OUT_OF_AREA);
    EXPECT_EQ(outside[0], 5);
    EXPECT_EQ(outside[1], 47);
}

TEST(DatumWay, TellsOfItsAreaThoughItLeavesTheNumbers) {
    auto const way = attempt("EPSG:4269", "EPSG:6318");
    ASSERT_EQ(way.status, ZRPROJ_OK) << way.message;
    double point[] = {5, 5};
    EXPECT_EQ(convert(way.transform, point, false), ZRPROJ_OUT_OF_AREA);
    EXPECT_EQ(point[0], 5);
}

TEST(DatumWay, IsRefusedWhereItIsRough) {
    zrproj_options const precise{sizeof precise, nullptr, 0, 1};
    EXPECT_EQ(attempt("+proj=longlat +ellps=bessel +towgs84=577,90,463", "EPSG:4326", &precise).status, ZRPROJ_NO_PATH);
    EXPECT_EQ(attempt("EPSG:31370", "EPSG:4258", &precise).status, ZRPROJ_OK);
}

TEST(DatumWay, TakesWhatTheDefinitionSays) {
    auto const way =
        attempt("+proj=longlat +ellps=bessel +towgs84=577.326,90.129,463.919,5.137,1.474,5.297,2.4232", "EPSG:4326");
    ASSERT_EQ(way.status, ZRPROJ_OK) << way.message;
    double accuracy = 0, point[] = {15, 47};
    describe(way.transform, accuracy);
    EXPECT_TRUE(std::isnan(accuracy));
    EXPECT_EQ(convert(way.transform, point, false), ZRPROJ_CONVERTED);
    EXPECT_NEAR(point[0], 14.99907034005302, 1e-12);
    EXPECT_EQ(attempt("+proj=longlat +ellps=GRS80 +towgs84=0,0,0", "EPSG:4326").status, ZRPROJ_OK);
    auto const moon = attempt("+proj=longlat +R=1737400 +towgs84=0,0,0", "EPSG:4326");
    EXPECT_EQ(moon.status, ZRPROJ_UNSUPPORTED);
    EXPECT_NE(moon.message, "");
}

TEST(DatumWay, TakesTheGridThatShiftsNothingAsNoShift) {
    auto const way = attempt("+proj=longlat +ellps=bessel +nadgrids=@null", "EPSG:4326");
    ASSERT_EQ(way.status, ZRPROJ_OK) << way.message;
    double point[] = {9, 51};
    EXPECT_EQ(convert(way.transform, point, false), ZRPROJ_CONVERTED);
    EXPECT_EQ(point[0], 9);
    EXPECT_EQ(point[1], 51);
}

TEST(DatumWay, TellsOfAGridThatIsDamaged) {
    TemporaryDirectory const folder;
    std::string const path = folder.file("BETA2007.gsb");
    std::ofstream(path) << "not a grid";
    zrproj_options const options{sizeof options, folder.path().c_str(), 0, 0};
    auto const damaged = attempt("EPSG:4314", "EPSG:4258", &options);
    EXPECT_EQ(damaged.status, ZRPROJ_FILE);
    EXPECT_NE(damaged.message.find("BETA2007.gsb"), std::string::npos) << damaged.message;
    EXPECT_FALSE(damaged.transform);
}
