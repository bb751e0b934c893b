#include "cli/geojson/reader.h"

#include "tests/cli/support.h"

#include <gtest/gtest.h>

namespace ZrProj::Command {
namespace {

/// Writes down what it is given: features as they are written, faults after "!".
class Record : public GeoJsonSink {
public:
    void openCollection(std::string const& members) override { lines.push_back("open" + members); }
    void closeCollection(std::string const& members) override { lines.push_back("close" + members); }
    void feature(GeoObject object, std::string const& fault) override {
        lines.push_back(fault.empty() ? shortForm(object) : '!' + fault);
    }
    bool goesOn() const override { return lines.size() < most; }

    std::vector<std::string> lines;
    std::size_t most = 1000;

private:
    static std::string shortForm(GeoObject const& object) {
        std::string text = object.type + object.members;
        if (object.coordinates)
            for (std::size_t i = 0; i < object.coordinates->points.size(); ++i) {
                PROJPOINT const& point = object.coordinates->points[i];
                text += ' ' + std::to_string(static_cast<int>(point.x)) + ',' +
                        std::to_string(static_cast<int>(point.y)) + std::string(object.coordinates->extra(i));
            }
        for (auto const* parts : {&object.geometries, &object.geometry})
            if (*parts)
                for (GeoObject const& part : **parts)
                    text += " (" + shortForm(part) + ')';
        return text;
    }
};

struct Result {
    std::vector<std::string> lines;
    std::string error;
};

Result read(std::string const& text, std::size_t most = 1000) {
    TextFile const file(text);
    ByteSource source(file.descriptor(), [](unsigned long long) {});
    Record record;
    record.most = most;
    std::string const error = readGeoJson(source, record);
    return {record.lines, error};
}

using Lines = std::vector<std::string>;

TEST(GeoJsonReader, ACollectionsMembersStayOnTheirSideOfTheFeatures) {
    auto const [lines, error] = read(R"({"type":"FeatureCollection","name":"a","bbox":[1,2],"crs":{"x":[]},"features":[
        {"type":"Feature","id":7,"bbox":[],"geometry":{"type":"Point","coordinates":[1,2,12.50,7]},
         "properties":{"n":1.10,"big":123456789012345678901,"b":[1,{"c":null},[],{},true]}},
        {"geometry":null,"properties":null,"type":"Feature"}],"after":{"z":"é"}})");
    EXPECT_EQ(error, "");
    EXPECT_EQ(
        lines,
        (Lines{R"(open,"name":"a")",
               R"(Feature,"id":7,"properties":{"n":1.10,"big":123456789012345678901,"b":[1,{"c":null},[],{},true]})"
               " (Point 1,2,12.50,7)",
               R"(Feature,"properties":null)", R"(close,"after":{"z":"é"})"}));
}

TEST(GeoJsonReader, SequencesOfObjects) {
    auto const [lines, error] = read("\x1E{\"type\":\"Point\",\"coordinates\":[1,2]}\n\n\x1E"
                                     "{\"type\":\"GeometryCollection\",\"geometries\":[{\"type\":\"MultiPoint\","
                                     "\"coordinates\":[[1,2],[3,4,5]]}]}\r\n");
    EXPECT_EQ(error, "");
    EXPECT_EQ(lines, (Lines{"Point 1,2", "GeometryCollection (MultiPoint 1,2 3,4,5)"}));
    EXPECT_EQ(read("").lines, Lines{});
}

TEST(GeoJsonReader, OfMembersThatAreThereTwiceTheLastOneCounts) {
    EXPECT_EQ(read(R"({"type":"LineString","coordinates":[[1,2],[3,4]],"type":"Point","coordinates":[5,6]})").lines,
              Lines{"Point 5,6"});
}

TEST(GeoJsonReader, NothingIsReadThatNobodyWants) {
    std::string const point = R"({"type":"Point","coordinates":[1,2]})";
    EXPECT_EQ(read(point + point + "no JSON", 1).lines.size(), 1U);
    EXPECT_EQ(read(point + point + "no JSON", 1).error, "");
}

TEST(GeoJsonReader, AFeaturesFaultIsTheFeaturesAlone) {
    struct Case {
        char const *geometry, *fault;
    };
    for (auto const& [geometry, fault] :
         {Case{R"({"type":"Point","coordinates":"x"})", "\"coordinates\" is no list"},
          {R"({"type":"Point","coordinates":null})", "\"coordinates\" is no list"},
          {R"({"type":"Point","coordinates":[1]})", "a position has one number"},
          {R"({"type":"Point","coordinates":[1,"2"]})", "\"2\" stands in coordinates"},
          {R"({"type":"Point","coordinates":[1,{"a":[1,{"b":2}]}]})", "an object stands in coordinates"},
          {R"({"type":"Point","coordinates":[1,2,[3]]})", "a list stands in a position"},
          {R"({"type":"LineString","coordinates":[[1,2],3]})", "a number stands beside a list"},
          {R"({"type":"Polygon","coordinates":[[1,2],[3,4]]})", "the coordinates are not nested as those of a Polygon"},
          {R"({"type":"Point","coordinates":[[1,2]]})", "the coordinates are not nested as those of a Point"},
          {R"({"type":"Circle","coordinates":[1,2]})", "the type \"Circle\" is no geometry"},
          {R"({"coordinates":[1,2]})", "an object has no \"type\""},
          {R"({"type":["Point"],"coordinates":[1,2]})", "\"type\" is no string"},
          {"5", "\"geometry\" is no object"},
          {R"({"type":"Feature","properties":null,"geometry":null})", "a geometry is a Feature"},
          {R"({"type":"GeometryCollection"})", "the GeometryCollection has no \"geometries\""},
          {R"({"type":"GeometryCollection","geometries":[1,[]]})", "\"geometries\" holds what is no object"}}) {
        auto const [lines, error] = read(R"({"type":"Feature","properties":null,"geometry":)" + std::string(geometry) +
                                         R"(}{"type":"Point","coordinates":[1,2]})");
        EXPECT_EQ(error, "") << geometry;
        ASSERT_EQ(lines.size(), 2U) << geometry;
        EXPECT_EQ(lines[0].substr(0, 1 + std::string_view(fault).size()), '!' + std::string(fault)) << geometry;
        EXPECT_EQ(lines[1], "Point 1,2") << geometry;
    }
}

TEST(GeoJsonReader, WhatIsNoJsonEndsAll) {
    struct Case {
        std::string text, error;
    };
    std::string const deep(1000, '[');
    for (auto const& [text, error] :
         {Case{R"({"type":"Point","coordinates":[1e999,2]})", "no JSON: number overflow parsing '1e999' (line 1, byte"},
          {R"({"type":"Point","coordinates":[NaN,2]})", "no JSON: "},
          {R"({"type":"Point")", "no JSON: object - unexpected end of input; "},
          {"{\"type\":\"\xFF\"}", "no JSON: "},
          {"[1,2]", "the text is no object of GeoJSON (line 1, byte 1)"},
          {"-79,43", "the text is no object of GeoJSON"},
          {R"({"type":"FeatureCollection"})", "the FeatureCollection has no \"features\""},
          {R"({"type":"Feature","features":[]})", "features in what is no FeatureCollection"},
          {"{\"a\":" + deep, "nested deeper than 200 levels"},
          {R"({"type":"Point","coordinates":)" + deep, "nested deeper than 200 levels"}})
        EXPECT_EQ(read(text).error.substr(0, error.size()), error) << text.substr(0, 50);
}

} // namespace
} // namespace ZrProj::Command
