#include "systems/text/writers.h"

#include "support/definitions.h"
#include "systems/conversion.h"
#include "systems/register.h"
#include "systems/text/form.h"
#include "systems/text/readers.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>
#include <string>
#include <string_view>

using namespace ZrProj::systems;
using namespace ZrProj::test;

namespace {

using Writer = OrProblem<std::string> (*)(Definition const&);

struct NamedWriter {
    std::string_view name;
    Writer write;
    std::size_t refused; // of the register's systems
};

std::string text(OrProblem<std::string> const& result) {
    auto const* const problem = std::get_if<Problem>(&result);
    return problem ? problem->message : std::get<std::string>(result);
}

ZrProj::PROJPOINT forward(Definition const& system, ZrProj::PROJPOINT point) {
    auto const conversion = std::get<Conversion>(conversionOf(system));
    std::get<SystemConverter>(SystemConverter::make(conversion)).forward(&point, 1);
    return point;
}

} // namespace

TEST(Writers, SpheresOfEllipsoidsAreReadAndWrittenAsProjHasThem) {
    std::ifstream file(ZRPROJ_TEST_DATA "/systems/spheres.txt");
    int cases = 0;
    for (std::string line; std::getline(file, line);) {
        if (line.starts_with('#'))
            continue;
        SCOPED_TRACE(line);
        std::istringstream words(line.substr(line.find('|')));
        double lon = 0, lat = 0, x = 0, y = 0, tolerance = 0;
        std::string bar;
        ASSERT_TRUE(words >> bar >> lon >> lat >> bar >> x >> y >> bar >> tolerance);
        ++cases;
        Definition const system = std::get<Definition>(readProjString(line.substr(0, line.find('|'))));
        ZrProj::PROJPOINT const point = forward(system, {lon, lat});
        EXPECT_NEAR(double{point.x}, x, tolerance);
        EXPECT_NEAR(double{point.y}, y, tolerance);
        for (Writer const write : {writeWkt1, writeEsriWkt, writeWkt2, writeProjJson, writeProjString}) {
            std::string const written = text(write(system));
            auto const read = readDefinition(written);
            ASSERT_TRUE(std::holds_alternative<Definition>(read)) << written;
            EXPECT_EQ(contentDifference(std::get<Definition>(read), system), "") << written;
        }
    }
    EXPECT_EQ(cases, 54);
}

TEST(Writers, WhatTheyWriteIsReadAsTheSameSystem) {
    constexpr NamedWriter writers[] = {{"WKT 1", writeWkt1, 0},
                                       {"ESRI", writeEsriWkt, 3},
                                       {"WKT 2", writeWkt2, 0},
                                       {"PROJJSON", writeProjJson, 0},
                                       {"PROJ string", writeProjString, 39}};
    for (NamedWriter const& writer : writers) {
        std::size_t refused = 0;
        for (std::size_t i = 0; i < entryCount(); ++i) {
            Definition const system = definitionOf(entry(i).code).value();
            auto const written = writer.write(system);
            if (std::holds_alternative<Problem>(written)) {
                ++refused;
                continue;
            }
            auto const read = readDefinition(std::get<std::string>(written));
            ASSERT_TRUE(std::holds_alternative<Definition>(read)) << text(written) << std::get<Problem>(read).message;
            ASSERT_EQ(contentDifference(std::get<Definition>(read), system), "") << text(written);
        }
        EXPECT_EQ(refused, writer.refused) << writer.name;
    }
}

TEST(Writers, CodesNamesAndAreasStayWhereAFormHasThem) {
    for (Code const code : {4326, 27572, 5041, 3571, 26632}) {
        Definition const system = definitionOf(code).value();
        for (Writer const write : {writeWkt2, writeProjJson}) {
            Definition const read = std::get<Definition>(readDefinition(text(write(system))));
            EXPECT_EQ(read.name, system.name);
            EXPECT_EQ(read.code, system.code);
            EXPECT_EQ(read.baseCode, system.baseCode);
            EXPECT_EQ(read.datum.code, system.datum.code);
            EXPECT_EQ(read.conversionCode, system.conversionCode);
            EXPECT_EQ(read.northingFirst, system.northingFirst);
            EXPECT_EQ(read.deprecated, system.deprecated);
            EXPECT_EQ(read.area.has_value(), system.area.has_value());
            EXPECT_EQ(read.area.value_or(Area()).west, system.area.value_or(Area()).west);
        }
    }
}

TEST(Writers, AsTheirMakersWrite) {
    EXPECT_EQ(text(writeEsriWkt(definitionOf(28992).value())),
              R"(PROJCS["RD_New",GEOGCS["GCS_Amersfoort",DATUM["D_Amersfoort",)"
              R"(SPHEROID["Bessel_1841",6377397.155,299.1528128]],PRIMEM["Greenwich",0.0],)"
              R"(UNIT["Degree",0.0174532925199433]],PROJECTION["Double_Stereographic"],)"
              R"(PARAMETER["Latitude_Of_Origin",52.15616055555555],PARAMETER["Central_Meridian",5.38763888888889],)"
              R"(PARAMETER["Scale_Factor",0.9999079],PARAMETER["False_Easting",155000.0],)"
              R"(PARAMETER["False_Northing",463000.0],UNIT["Meter",1.0]])");
    EXPECT_EQ(text(writeProjString(definitionOf(32733).value())),
              "+proj=utm +zone=33 +south +datum=WGS84 +units=m +no_defs +type=crs");
    EXPECT_EQ(text(writeProjString(definitionOf(2046).value())),
              "+proj=tmerc +lat_0=0 +lon_0=15 +k=1 +x_0=0 +y_0=0 +ellps=WGS84 +units=m +axis=wsu +no_defs +type=crs");
}

TEST(Writers, WaysToWgs84) {
    Definition system = definitionOf(31468).value();
    system.datum.toWgs84 = ToWgs84{598.1, 73.7, 418.2, 0.202, 0.045, -2.455, 6.7};
    Definition gridded = definitionOf(27700).value();
    gridded.datum.grids = "a b.gsb";
    for (Writer const write : {writeWkt1, writeWkt2, writeProjJson, writeProjString}) {
        Datum const read = std::get<Definition>(readDefinition(text(write(system)))).datum;
        for (std::size_t i = 0; i < system.datum.toWgs84->size(); ++i)
            EXPECT_NEAR(read.toWgs84.value()[i], (*system.datum.toWgs84)[i], 1e-12) << text(write(system));
    }
    for (Writer const write : {writeWkt1, writeWkt2, writeProjJson})
        EXPECT_EQ(std::get<Definition>(readDefinition(text(write(gridded)))).datum.grids, "a b.gsb");
    for (char const* const name : {"a b.gsb", "a\tb.gsb", "a\nb.gsb"}) {
        gridded.datum.grids = name;
        EXPECT_NE(text(writeProjString(gridded)).find("cannot say"), std::string::npos);
    }
    EXPECT_EQ(text(writeEsriWkt(system)), "ESRI's WKT cannot say a way to WGS 84");
}

TEST(Writers, NamesAreQuoted) {
    Definition system = definitionOf(4326).value();
    system.name = "a \"b\" \\c\n[]{}";
    for (Writer const write : {writeWkt1, writeWkt2})
        EXPECT_EQ(std::get<Definition>(readDefinition(text(write(system)))).name, system.name);
    EXPECT_EQ(std::get<Definition>(readDefinition(text(writeProjJson(system)))).name, "a \"b\" \\c []{}");
}
