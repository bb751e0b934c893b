#include "cli/geojson/conversion.h"

#include "tests/cli/support.h"

#include <gtest/gtest.h>

namespace ZrProj::Command {
namespace {

struct Converted {
    std::string text, told;
    int status = 0;
};

ConversionJob sinusoidal(Operation operation = Operation::Forward) {
    ConversionJob job;
    job.projection.record.Type = ProjTypeSinusoidal;
    job.projection.record.Ellipsoid = EllipsoidTypeStandardSphereOf6370997Meters;
    job.columns.operation = operation;
    return job;
}

Converted convert(ConversionJob job, bool clip, std::string const& text) {
    TextFile const file(text);
    TemporaryDirectory const directory;
    std::string const name = directory.file("out");
    int const descriptor = open(name.c_str(), O_RDWR | O_CREAT, 0600);
    job.files = {file.name()};
    Output output(descriptor);
    testing::internal::CaptureStderr();
    Converted result;
    result.status = GeoJsonConversion(std::move(job), clip, output).run();
    result.told = testing::internal::GetCapturedStderr();
    close(descriptor);
    std::ifstream in(name, std::ios::binary);
    result.text.assign(std::istreambuf_iterator<char>(in), {});
    return result;
}

std::string feature(std::string const& geometry) {
    return R"({"type":"Feature","properties":null,"geometry":)" + geometry + "}\n";
}
std::string geometry(std::string const& type, std::string const& coordinates) {
    return R"({"type":")" + type + R"(","coordinates":)" + coordinates + "}";
}

/// A latitude that a sinusoidal map in metres has 111195 m farther north a degree.
std::string const oneDegree = "[0,1]", oneDegreeOnTheMap = "[0,111195]";

TEST(GeoJsonConversion, KeepsEveryKindAndWhatPositionsHaveBesides) {
    for (auto const& [type, shape] : std::initializer_list<std::pair<char const*, std::string>>{
             {"Point", "@"},
             {"MultiPoint", "[@,@]"},
             {"LineString", "[@,@]"},
             {"MultiLineString", "[[@,@],[@,@]]"},
             {"Polygon", "[[@,@,@,@],[@,@,@,@]]"},
             {"MultiPolygon", "[[[@,@,@,@]],[[@,@,@,@],[@,@,@,@]]]"},
             {"MultiPolygon", "[]"},
             {"Point", "[]"},
             {"Polygon", "[[],[]]"}}) {
        auto const with = [&shape = shape](std::string const& position) {
            std::string text = shape;
            for (auto at = text.find('@'); at != std::string::npos; at = text.find('@'))
                text.replace(at, 1, position);
            return text;
        };
        for (std::string const extra : {"", ",12.50", ",7,8"}) {
            auto const grown = [&](std::string position) { return position.insert(position.size() - 1, extra); };
            Converted const done = convert(sinusoidal(), false, geometry(type, with(grown(oneDegree))));
            EXPECT_EQ(done.text, geometry(type, with(grown(oneDegreeOnTheMap))) + "\n");
            EXPECT_EQ(done.told, "");
            auto const collected = [](std::string const& part) {
                return feature(R"({"type":"GeometryCollection","geometries":[)" + part +
                               R"(,{"type":"GeometryCollection","geometries":[]}]})");
            };
            EXPECT_EQ(convert(sinusoidal(), false, collected(geometry(type, with(grown(oneDegree))))).text,
                      collected(geometry(type, with(grown(oneDegreeOnTheMap)))));
        }
    }
}

TEST(GeoJsonConversion, EmptiesAGeometryOfWhichAPointHasNoResult) {
    ConversionJob job = sinusoidal(Operation::Inverse);
    std::string const two = geometry("MultiPoint", "[[0,111195],[9e7,0]]");
    Converted done = convert(job, false, feature(two) + two);
    EXPECT_EQ(done.text, feature("null") + geometry("MultiPoint", "[]") + "\n");
    EXPECT_EQ(done.status, 0);
    EXPECT_NE(done.told.find("2 points"), std::string::npos) << done.told;
    EXPECT_NE(done.told.find("feature 1, 2"), std::string::npos) << done.told;
    job.strict = true;
    EXPECT_EQ(convert(job, false, two).status, 1);
}

TEST(GeoJsonConversion, LeavesAFeatureWithBadAnglesWithoutGeometry) {
    std::string const good = geometry("Point", oneDegree);
    for (std::string const bad : {"[0,90.5]", "[361,0]"}) {
        std::string const inside = R"({"type":"GeometryCollection","geometries":[)" + geometry("Point", bad) + "]}";
        for (std::string const& wrong : {geometry("Point", bad), inside}) {
            Converted const done = convert(sinusoidal(), false, feature(wrong) + wrong + good);
            EXPECT_EQ(done.text, feature("null") + geometry("Point", oneDegreeOnTheMap) + "\n");
            EXPECT_EQ(done.status, 1);
            EXPECT_NE(done.told.find("is out of range"), std::string::npos) << done.told;
        }
    }
    // On the map they are eastings and northings.
    EXPECT_EQ(convert(sinusoidal(Operation::Inverse), false, geometry("Point", "[0,111195]")).told, "");
}

TEST(GeoJsonConversion, CutsLinesAndAreasIntoSeveral) {
    auto const cut = [](std::string const& text) { return convert(sinusoidal(), true, text).text; };
    std::string const line = "[[170,0,1],[-170,0,2]]";
    EXPECT_EQ(cut(geometry("LineString", line)),
              geometry("MultiLineString", "[[[18903129,0],[20015077,0]],[[-20015077,0],[-18903129,0]]]") + "\n");
    std::string const area = cut(geometry("Polygon", "[[[170,0],[-170,0],[-170,1],[170,1],[170,0]]]"));
    EXPECT_EQ(area.substr(0, 22), R"({"type":"MultiPolygon")") << area;
    // What is not cut keeps its heights, and runs counter-clockwise.
    EXPECT_EQ(cut(geometry("Polygon", "[[[0,0,1],[0,1,2],[1,0,3],[0,0,1]]]")),
              geometry("Polygon", "[[[0,0,1],[111195,0,3],[0,111195,2],[0,0,1]]]") + "\n");
    // An area of no width is none.
    EXPECT_EQ(cut(feature(geometry("Polygon", "[[[-180,-90],[180,-90],[180,90],[-180,90],[-180,-90]]]"))),
              feature("null"));
}

TEST(GeoJsonConversion, DropsPointsThatTheMapDoesNotShow) {
    ConversionJob job = sinusoidal();
    job.projection.record.Type = ProjTypeOrthographic;
    Converted const done = convert(
        job, true, geometry("MultiPoint", "[[0,0,5],[100,0,6],[-90,0]]") + feature(geometry("Point", "[170,20]")));
    EXPECT_EQ(done.text, geometry("MultiPoint", "[[0,0,5],[-6370997,0]]") + "\n" + feature("null"));
    EXPECT_EQ(done.told, "");
}

TEST(GeoJsonConversion, GoesOnWithTheNextFile) {
    ConversionJob job = sinusoidal();
    TextFile const file(geometry("Point", oneDegree));
    TemporaryDirectory const directory;
    job.files = {directory.file("none.json"), file.name()};
    Output output(-1);
    testing::internal::CaptureStderr();
    EXPECT_EQ(GeoJsonConversion(std::move(job), false, output).run(), 1);
    EXPECT_NE(testing::internal::GetCapturedStderr().find("No such file"), std::string::npos);
}

TEST(GeoJsonConversion, GoesByTheNamesOfFiles) {
    for (char const* name : {"a.geojson", "a.JSON", "b.c/x.geojsonl", "s.GeoJSONs"})
        EXPECT_TRUE(isGeoJsonName(name)) << name;
    for (char const* name : {"a.csv", "json", "a.json.txt", "-", ""})
        EXPECT_FALSE(isGeoJsonName(name)) << name;
}

} // namespace
} // namespace ZrProj::Command
