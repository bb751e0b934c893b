#include "systems/text/form.h"
#include "systems/text/readers.h"

#include "support/definitions.h"
#include "systems/register.h"

#include <gtest/gtest.h>

#include <fstream>
#include <string>

using namespace ZrProj::systems;
using namespace ZrProj::test;

namespace {

std::string const geographic = R"(GEOGCRS["a",DATUM["b",ELLIPSOID["c",6378137,298.257223563]],CS[ellipsoidal,2],)"
                               R"(AXIS["lat",north],AXIS["lon",east],ANGLEUNIT["degree",0.0174532925199433]])";

Problem problemIn(std::string_view text) {
    auto const result = readDefinition(text);
    auto const* problem = std::get_if<Problem>(&result);
    return problem ? *problem : Problem{Fault::unknown, "none"};
}

std::string projected(std::string_view method, std::string_view parameters, std::string_view unit = "1.0") {
    return R"(PROJCS["a",GEOGCS["b",DATUM["c",SPHEROID["d",6378137,298.257223563]],PRIMEM["Greenwich",0],)"
           R"(UNIT["Degree",0.017453292519943295]],PROJECTION[")" +
           std::string(method) + R"("],)" + std::string(parameters) + R"(UNIT["u",)" + std::string(unit) + "]]";
}

} // namespace

TEST(Readers, WhatProjWritesIsTheRegistersSystem) {
    std::ifstream file(ZRPROJ_TEST_DATA "/systems/definitions.txt");
    int count = 0;
    for (std::string line; std::getline(file, line);) {
        if (line.starts_with('#'))
            continue;
        ++count;
        Definition const wanted = definitionOf(std::stoi(line)).value();
        auto const result = readDefinition(std::string_view(line).substr(line.find('\t') + 1));
        auto const* const read = std::get_if<Definition>(&result);
        ASSERT_TRUE(read) << line << '\n' << std::get<Problem>(result).message;
        EXPECT_EQ(contentDifference(*read, wanted), "") << line;
    }
    EXPECT_GE(count, 87);
}

TEST(Readers, TellWhereATextStopsMakingSense) {
    struct Case {
        std::string text;
        Fault fault;
        std::string_view place, what;
    };
    Case const cases[] = {
        {"GEOGCS[\"a\",\n  DATUM[\"b\"", Fault::malformed, "line 2, column 12", "',' or ']'"},
        {"GEOGCS[\"a\",DATUM[\"b\"]]", Fault::malformed, "line 1, column 12", "ellipsoid"},
        {"GEOGCS[\"a\",DATUM[\"b\",SPHEROID[\"c\",x,0]]]", Fault::malformed, "column 35", "number"},
        {"GEOGCS[\"a\",DATUM[\"b\",SPHEROID[\"c\",-1,0]]]", Fault::malformed, "column 22", "axis"},
        {"GEOGCS[\"a", Fault::malformed, "column 8", "closing quotation mark"},
        {geographic + "x", Fault::malformed, "column", "nothing may follow"},
        {projected("Bipolar_Oblique", ""), Fault::unsupported, "column", "Bipolar_Oblique"},
        {projected("Lambert_Conformal_Conic_2SP", R"(PARAMETER["standard_parallel_1",10],)"), Fault::malformed,
         "column", "standard_parallel_2"},
        {projected("Transverse_Mercator", R"(PARAMETER["standard_parallel_1",10],)"), Fault::malformed, "column 163",
         "Transverse_Mercator takes no parameter standard_parallel_1"},
        {projected("Transverse_Mercator", R"(PARAMETER["scale_factr",0.9],)"), Fault::malformed, "column 163",
         "takes no parameter scale_factr"},
        {projected("Transverse_Mercator", R"(PARAMETER["scale_factor",0],)"), Fault::malformed, "column 163",
         "scale_factor must be above 0"},
        {projected("Transverse_Mercator", R"(PARAMETER["scale_factor",0,9996],)"), Fault::malformed, "column 190",
         "the decimal mark is a point"},
        {projected("Transverse_Mercator", R"(PARAMETER["scale_factor",1],PARAMETER["Scale_Factor",0.9],)"),
         Fault::malformed, "column 191", "Scale_Factor is stated twice"},
        {projected("Transverse_Mercator", "", "0,3048"), Fault::malformed, "column", "the decimal mark is a point"},
        {projected("American Polyconic", R"(PARAMETER["Latitude of natural origin",91],)"), Fault::malformed,
         "column 162", "Latitude of natural origin must be a latitude"},
        {projected("American Polyconic", R"(PARAMETER["False easting",1],PARAMETER["False easting",1],)"),
         Fault::malformed, "column 191", "False easting is stated twice"},
        {geographic.substr(0, geographic.size() - 1) + ",BBOX[80,500,-300,1e30]]", Fault::malformed, "column 153",
         "area of use"},
        {projected("Polar_Stereographic", R"(PARAMETER["latitude_of_origin",70],PARAMETER["scale_factor",0.99],)"),
         Fault::unsupported, "column", "no form of Polar_Stereographic"},
        {"VERTCRS[\"a\",VDATUM[\"b\"]]", Fault::unsupported, "column 1", "no horizontal coordinates"},
        {R"({"type":"GeographicCRS","name":"a"})", Fault::malformed, "column 1", "\"coordinate_system\""},
        {R"({"type":"VerticalCRS"})", Fault::unsupported, "column 1", "VerticalCRS"},
        {"{\"type\":\n\"Geo", Fault::malformed, "line 2, column 1", "closing quotation mark"},
        {"{\"typ", Fault::malformed, "line 1, column 2", "closing quotation mark"},
        {"+proj=utm +zone=61", Fault::malformed, "column 11", "1 to 60"},
        {"+proj=tmerc +lat_0=1x", Fault::malformed, "column 13", "angle"},
        {"+proj=tmerc +lon_0=3600", Fault::malformed, "column 13", "lon_0 is more than a turn"},
        {"+proj=tmerc +k=0", Fault::malformed, "column 13", "k must be above 0"},
        {"+proj=tmerc +k=-1", Fault::malformed, "column 13", "k must be above 0"},
        {"+proj=tmerc +lat_0=100", Fault::malformed, "column 13", "lat_0 must be a latitude"},
        {"+proj=lcc +lat_1=45 +lat_2=-45", Fault::malformed, "column 21", "lat_2 must not be opposite"},
        {"+proj=lcc +lat_1=0", Fault::malformed, "column 11", "lat_1 must not be the equator's"},
        {"+proj=merc +proj=tmerc", Fault::malformed, "column 12", "+proj is stated twice"},
        {"+proj=merc +to_meter=1/0", Fault::malformed, "column 12", "+to_meter"},
        {"+proj=merc +R_V", Fault::unknown, "column 12", "+R_V"},
        {"+proj=tmerc +elps=bessel", Fault::unknown, "column 13", "+elps"},
        {"+proj=longlat +ellps=besel", Fault::unknown, "column 15", "besel"},
        {"+proj=longlat +towgs84=1,2", Fault::malformed, "column 15", "3 or 7"},
        {"+proj=longlat +towgs84=1,2,3,", Fault::malformed, "column 15", "3 or 7"},
        {"+proj=merc +lat_ts=40 +k=0.5", Fault::unsupported, "column 1", "no form of merc"},
        {"+proj=wintri", Fault::unsupported, "column 1", "wintri"},
        {"+proj=ob_tran +o_proj=moll", Fault::unsupported, "column 1", "the projection ob_tran"},
        {"+proj=pipeline +step +proj=merc", Fault::unsupported, "column 1", "the projection pipeline"},
        {"+init=epsg:1", Fault::unknown, "column 1", "epsg:1"},
    };
    for (Case const& each : cases) {
        Problem const problem = problemIn(each.text);
        EXPECT_EQ(problem.fault, each.fault) << each.text;
        EXPECT_NE(problem.message.find(each.place), std::string::npos) << problem.message;
        EXPECT_NE(problem.message.find(each.what), std::string::npos) << problem.message;
    }
}

TEST(Readers, AreBoundedInDepthAndSize) {
    EXPECT_NE(problemIn("PROJCS[" + std::string(100000, '[')).message, "none");
    std::string deep;
    for (int i = 0; i < 10000; ++i)
        deep += "GEOGCS[";
    EXPECT_NE(problemIn(deep).message.find("too deeply"), std::string::npos);
    EXPECT_NE(problemIn("{\"a\":" + std::string(100000, '[')).message.find("too deeply"), std::string::npos);
    EXPECT_NE(problemIn("+proj=longlat " + std::string(300000, 'a')).message.find("too long"), std::string::npos);
}

TEST(Readers, NamesThatSeveralMethodsShareAreToldByTheParameters) {
    struct Case {
        std::string_view name, parameters;
        Method method;
    };
    constexpr Case cases[] = {
        {"Lambert_Conformal_Conic", R"(PARAMETER["Standard_Parallel_1",46],PARAMETER["Latitude_Of_Origin",46],)",
         Method::lambertConic1},
        {"Lambert_Conformal_Conic", R"(PARAMETER["Standard_Parallel_1",46],PARAMETER["Standard_Parallel_2",47],)",
         Method::lambertConic2},
        {"Lambert_Conformal_Conic",
         R"(PARAMETER["Standard_Parallel_1",46],PARAMETER["Standard_Parallel_2",47],PARAMETER["Scale_Factor",1.1],)",
         Method::lambertConicMichigan},
        {"Stereographic", R"(PARAMETER["Latitude_Of_Origin",-90],)", Method::polarStereographicA},
        {"Stereographic", R"(PARAMETER["Latitude_Of_Origin",50],)", Method::stereographic},
        {"Polar_Stereographic", R"(PARAMETER["latitude_of_origin",90],)", Method::polarStereographicA},
        {"Stereographic_North_Pole", R"(PARAMETER["Standard_Parallel_1",90],)", Method::polarStereographicB},
        {"Polar_Stereographic", R"(PARAMETER["latitude_of_origin",70],)", Method::polarStereographicB},
        {"Bonne_(South_Orientated)", R"(PARAMETER["Latitude of natural origin",39],)", Method::bonneSouth},
    };
    for (Case const& each : cases) {
        auto const result = readWkt1(projected(each.name, each.parameters));
        auto const* const read = std::get_if<Definition>(&result);
        ASSERT_TRUE(read) << each.name << std::get<Problem>(result).message;
        EXPECT_EQ(read->method, each.method) << each.name << each.parameters;
    }
}

TEST(Readers, APoleInRadiansIsThePole) {
    auto const result =
        readWkt1(R"(PROJCS["a",GEOGCS["b",DATUM["c",SPHEROID["d",6378137,298.257223563]],PRIMEM["Greenwich",0],)"
                 R"(UNIT["radian",1]],PROJECTION["Polar_Stereographic"],PARAMETER["latitude_of_origin",)"
                 R"(1.5707963267949],UNIT["metre",1]])");
    ASSERT_TRUE(std::holds_alternative<Definition>(result)) << std::get<Problem>(result).message;
    EXPECT_EQ(std::get<Definition>(result).parameters[Parameter::latitudeOfOrigin], 90);
}

TEST(Readers, HeightsAreLeftOut) {
    Definition const wgs84 = definitionOf(4326).value();
    std::string const vertical = R"(,VERTCRS["h",VDATUM["v"],CS[vertical,1],AXIS["up",up],LENGTHUNIT["metre",1]]])";
    auto const compound = readWkt2("COMPOUNDCRS[\"x\"," + geographic + vertical);
    EXPECT_EQ(contentDifference(std::get<Definition>(compound), wgs84), "");
    std::string const esri = R"(GEOGCS["a",DATUM["b",SPHEROID["c",6378137,298.257223563]],PRIMEM["Greenwich",0],)"
                             R"(UNIT["Degree",0.0174532925199433]])";
    EXPECT_EQ(
        contentDifference(std::get<Definition>(readWkt1(esri + R"(,VERTCS["h",VDATUM["v"],UNIT["Meter",1]])")), wgs84),
        "");
    EXPECT_TRUE(std::holds_alternative<Problem>(readWkt1(esri + ",UNIT[\"Meter\",1]")));
}

TEST(Readers, WaysToWgs84) {
    auto const datum = [](OrProblem<Definition> const& result) { return std::get<Definition>(result).datum; };
    ToWgs84 const wanted = {598.1, 73.7, 418.2, 0.202, 0.045, -2.455, 6.7};
    std::string const head =
        "BOUNDCRS[SOURCECRS[" + geographic + "],TARGETCRS[GEOGCRS[\"WGS 84\"]],ABRIDGEDTRANSFORMATION[\"t\",";
    std::string const translations = R"(PARAMETER["X-axis translation",598.1],PARAMETER["Y-axis translation",73.7],)"
                                     R"(PARAMETER["Z-axis translation",418.2],)";
    auto const vector =
        datum(readWkt2(head + R"x(METHOD["Position Vector transformation (geog2D domain)"],)x" + translations +
                       R"(PARAMETER["X-axis rotation",0.202],PARAMETER["Y-axis rotation",0.045],)"
                       R"(PARAMETER["Z-axis rotation",-2.455],PARAMETER["Scale difference",1.0000067]]])"));
    auto const frame =
        datum(readWkt2(head + R"x(METHOD["Coordinate Frame rotation (geog2D domain)"],)x" + translations +
                       R"(PARAMETER["X-axis rotation",-0.202],PARAMETER["Y-axis rotation",-0.045],)"
                       R"(PARAMETER["Z-axis rotation",2.455],)"
                       R"(PARAMETER["Scale difference",6.7,SCALEUNIT["ppm",1E-06]]]])"));
    auto const proj = datum(readProjString("+proj=longlat +towgs84=598.1,73.7,418.2,0.202,0.045,-2.455,6.7"));
    for (Datum const& each : {vector, frame, proj})
        for (std::size_t i = 0; i < wanted.size(); ++i)
            EXPECT_NEAR(each.toWgs84.value()[i], wanted[i], 1e-9) << i;
    EXPECT_EQ(datum(readWkt2(head + R"(METHOD["NTv2"],PARAMETERFILE["f","a.gsb"]]])")).grids, "a.gsb");
    EXPECT_EQ(datum(readProjString("+init=epsg:27700 +nadgrids=a.gsb")).grids, "a.gsb");
}

TEST(Readers, ProjStringsByTheirOwnRules) {
    auto const read = [](std::string_view text) { return std::get<Definition>(readProjString(text)); };
    EXPECT_EQ(read("+proj=longlat").datum.code, 6326);
    EXPECT_EQ(read("+proj=longlat +ellps=WGS84").datum.code, 0);
    EXPECT_EQ(read("proj=longlat datum=NAD27 no_defs").code, 4267);
    EXPECT_EQ(read("+proj=longlat +datum=NAD27 +no_def").code, 4267);
    EXPECT_EQ(read("+proj=longlat +a=1000 +b=990").datum.ellipsoid.inverseFlattening, 100);
    EXPECT_NEAR(read("+proj=longlat +pm=3d41'16.58\"W").datum.meridian.longitude, -3.68793888888889, 1e-13);
    EXPECT_EQ(read("+proj=merc +to_meter=1/0.3048").unit.factor, 1 / 0.3048);
    EXPECT_EQ(read("+proj=tmerc +lat_0=1 +lat_0=2").parameters[Parameter::latitudeOfOrigin], 1);
    EXPECT_EQ(read("+proj=tmerc +k_0=0.5").parameters[Parameter::scaleFactor], 0.5);
    EXPECT_EQ(read("+proj=omerc +lat_0=4 +lonc=115 +alpha=53").parameters[Parameter::rectifiedAngle], 53);
    EXPECT_EQ(read("+proj=tmerc +axis=wsu").method, Method::transverseMercatorSouth);
    EXPECT_EQ(read("+proj=laea +axis=wnu").x, Sense::negative);
    EXPECT_EQ(read("+proj=merc +a=6378137 +b=6378137 +nadgrids=@null").datum.code, 6326);
    EXPECT_EQ(contentDifference(read("+init=epsg:28992 +type=crs"), definitionOf(28992).value()), "");
}
