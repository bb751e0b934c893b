#include "support/bytes.h"
#include "support/error_host.h"
#include "support/side_files.h"

#include <zrproj/zrproj.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <initializer_list>
#include <map>

using namespace ZrProj;
using ZrProj::test::Georef;
using ZrProj::test::value;
using ZrProj::test::writeFile;

namespace {

constexpr char header[] = "Zorvane Cartographic Reference Information : Version 1.10\n";

/// What a reference file says.
struct Map {
    PROJDATA projection{};
    DatumType datum{};
    DATUM2WGS84 parameters{};
    Georef georef;
    std::uint32_t flags = 99;
    bool good = false;
};

/// The record of which tests/data/files/reference.txt has the file.
void fill(Map& map, int type) {
    PROJDATA& p = map.projection;
    p.Type = static_cast<ProjType>(type);
    p.Scale = 1.5, p.xOrg = 500000.25, p.yOrg = -1234567.875;
    p.Lat0 = 10.1, p.Lon0 = -20.2, p.Lat1 = 30.3, p.Lat2 = 40.4, p.Lat3 = 50.5, p.Lon1 = 60.6, p.Lon2 = 70.7;
    p.Lon3 = 80.8, p.K0 = 0.9996, p.Alpha = 33.75;
    p.bSouth = p.bUseAlpha = p.bUOffset = true;
    p.Zone = StateZoneTypeCaliforniaI;
    p.Ellipsoid = type % 2 ? EllipsoidTypeUserDefined : EllipsoidTypeClarke1866;
    p.MajorRadius = 6378000.5, p.Flattening = 0.0033;
    map.datum = DatumTypeEuropean1950Mean;
    DATUM2WGS84& d = map.parameters;
    d.Method = static_cast<DatumMethod>(type % 7);
    d.Ellipsoid = type % 7 == 2 ? EllipsoidTypeUserDefined : EllipsoidTypeClarke1866;
    d.PrimeMeridian = 2.337229167, d.dX = -87.5, d.dY = 1e-5, d.dZ = 1e15;
    d.rX = 0.25, d.rY = -1.5, d.rZ = 1 / 3., d.Scale = -4.6121, d.MajorRadius = 6378000.5, d.Flattening = 0.0033;
    RefAllocControls(&map.georef, 2);
    map.georef.Method = static_cast<TransformMethod>(type % 13);
    map.georef.A = 0.1, map.georef.B = 0.2, map.georef.F = 0.3;
    map.georef.pSource[0] = {0.5, -1.25}, map.georef.pTarget[0] = {500000.125, 4.5e6};
    map.georef.pSource[1] = {1e-7, 123456789012345678.}, map.georef.pTarget[1] = {-1e100, 0};
}

/// The files of the data file, by the type of their projection.
std::map<int, std::string> expectedFiles() {
    std::map<int, std::string> files;
    std::ifstream in(ZRPROJ_TEST_DATA "/files/reference.txt");
    int type = 0;
    for (std::string line; std::getline(in, line);) {
        if (line.starts_with("== "))
            type = std::stoi(line.substr(3));
        else
            files[type] += line + '\n';
    }
    return files;
}

class RefFile : public testing::Test {
protected:
    bool write(Map const& map) {
        return ZrProjRefFileWriteEx(name.c_str(), &map.projection, map.datum, &map.parameters, &map.georef);
    }

    void read(Map& map) {
        map.good =
            ZrProjRefFileReadEx(name.c_str(), &map.projection, &map.datum, &map.parameters, &map.georef, &map.flags);
    }

    /// Reads a file of those lines after the header.
    void readLines(Map& map, std::string const& lines) { readBytes(map, header + lines); }
    void readBytes(Map& map, std::string const& bytes) {
        writeFile(name, bytes);
        read(map);
    }

    double scaleOf(std::string const& lines) {
        Map map;
        readLines(map, lines);
        return map.projection.Scale;
    }

    /// The controls' first coordinates, as many as the count says.
    std::vector<double> pointsOf(std::string const& lines) {
        Map map;
        readLines(map, "Georef Method : Helmert\n" + lines);
        EXPECT_TRUE(map.good);
        EXPECT_EQ((map.flags & RefFileFlagControls) != 0, map.georef.nControls > 0);
        std::vector<double> result;
        for (int i = 0; map.georef.pSource && i < map.georef.nControls; ++i)
            result.push_back(map.georef.pSource[i].x);
        return result;
    }

    TemporaryDirectory directory;
    std::string name = directory.file("map.zrr");
};

using Numbers = std::vector<double>;

void expectReset(Map const& map) {
    EXPECT_TRUE(map.good);
    EXPECT_EQ(map.flags, 0U);
    EXPECT_EQ(value(map.projection.Type), ProjTypeUndefined);
    EXPECT_EQ(value(map.projection.Scale), 0);
    EXPECT_EQ(map.datum, DatumTypeNone);
    EXPECT_EQ(map.georef.Method, TransformMethodNone);
    EXPECT_EQ(map.georef.pSource, nullptr);
}

} // namespace

TEST_F(RefFile, EveryTypeAndMethodIsWrittenByteForByteAndReadBack) {
    auto const files = expectedFiles();
    ASSERT_EQ(files.size(), 29U);
    for (auto const& [type, expected] : files) {
        Map map, back;
        fill(map, type);
        PROJDATA const before = map.projection;
        ASSERT_TRUE(write(map));
        EXPECT_EQ(fileBytes(name), expected);
        EXPECT_TRUE(test::sameBytes(before, map.projection));
        read(back);
        std::uint32_t const georef = type % 13 == 12 ? 0 : type % 13 == 5 ? 4 : 8;
        EXPECT_EQ(back.flags, 19 + georef) << type;
        EXPECT_EQ(value(back.projection.Type), type);
        ASSERT_TRUE(write(back));
        EXPECT_EQ(fileBytes(name), expected) << "read back";
    }
}

TEST_F(RefFile, FieldsAreReadIntoTheirPlaces) {
    Map map, back;
    fill(map, ProjTypeHotineObliqueMercator);
    map.parameters.Method = DatumMethodBursaWolf;
    map.projection.bSouth = false, map.projection.Zone = StateZoneType(0); // not of this type
    map.projection.Lat3 = map.projection.Lon3 = 0;
    map.projection.MajorRadius = EllipsoidRadius(EllipsoidTypeClarke1866);
    write(map);
    read(back);
    back.projection.Flattening = map.projection.Flattening; // more digits than the file has
    EXPECT_TRUE(test::sameBytes(map.projection, back.projection));
    EXPECT_EQ(value(back.parameters.dX), -87.5);
    EXPECT_EQ(value(back.parameters.rY), -1.5);
    EXPECT_EQ(value(back.parameters.Scale), -4.6121);
    ASSERT_EQ(back.georef.Method, TransformMethodNone);
}

TEST_F(RefFile, CatalogueFlatteningHasFifteenDigits) {
    Map map;
    map.projection.Type = ProjTypeMercator;
    map.projection.Ellipsoid = EllipsoidTypeWgs84;
    map.projection.Flattening = 5;
    ASSERT_TRUE(ZrProjRefFileWrite(name.c_str(), &map.projection, DatumTypeNone, &map.parameters));
    EXPECT_EQ(fileBytes(name), std::string(header) + "Projection Name : Mercator\n"
                                                     "Projection Scale : 0\n"
                                                     "Projection False Easting (meters) : 0\n"
                                                     "Projection False Northing (meters) : 0\n"
                                                     "Projection Lat0 (degrees) : 0\n"
                                                     "Projection Lon0 (degrees) : 0\n"
                                                     "Projection Ellipsoid Type : WGS 84\n"
                                                     "Projection Ellipsoid Radius (meters) : 6378137\n"
                                                     "Projection Ellipsoid Flattening : 0.00335281066474748\n");
}

TEST_F(RefFile, WhatIsNotGivenIsNotWritten) {
    Map map;
    fill(map, 2);
    EXPECT_TRUE(ZrProjRefFileWriteEx(name.c_str(), nullptr, map.datum, nullptr, nullptr));
    EXPECT_EQ(fileBytes(name), header);
    map.projection.Type = ProjTypeUndefined;
    map.georef.Method = TransformMethodNone;
    EXPECT_TRUE(ZrProjRefFileWriteEx(name.c_str(), &map.projection, DatumTypeNone, &map.parameters, &map.georef));
    EXPECT_EQ(fileBytes(name), header);
    EXPECT_FALSE(ZrProjRefFileWrite(nullptr, &map.projection, map.datum, &map.parameters));
    EXPECT_FALSE(ZrProjRefFileWrite("", &map.projection, map.datum, &map.parameters));
}

TEST_F(RefFile, ValuesOutOfTheirCatalogues) {
    Map map;
    map.projection.Type = static_cast<ProjType>(77);
    map.projection.Ellipsoid = EllipsoidTypeNone;
    map.datum = static_cast<DatumType>(-5);
    map.parameters.Method = static_cast<DatumMethod>(-1);
    map.georef.Method = static_cast<TransformMethod>(99);
    map.georef.nControls = 3; // without arrays
    ASSERT_TRUE(write(map));
    EXPECT_EQ(fileBytes(name), std::string(header) + "Projection Name : UNKNOWN\n"
                                                     "Projection Scale : 0\n"
                                                     "Projection False Easting (meters) : 0\n"
                                                     "Projection False Northing (meters) : 0\n"
                                                     "Projection Ellipsoid Radius (meters) : 0\n"
                                                     "Projection Ellipsoid Flattening : 0\n"
                                                     "Datum Name : UNKNOWN\n"
                                                     "Datum Method : UNKNOWN\n"
                                                     "Georef Method : UNKNOWN\n");
    Map back;
    read(back);
    EXPECT_EQ(back.flags, 16U);
    EXPECT_EQ(value(back.projection.Type), ProjTypeUndefined);
    EXPECT_EQ(back.datum, DatumTypeNone);
    EXPECT_EQ(value(back.parameters.Method), 6);
    EXPECT_EQ(back.georef.Method, TransformMethodNone);

    std::memset(&map.projection.bSouth, 0xCD, 1); // no bool, and neither 0 nor 1
    map.projection.Type = ProjTypeUniversalTransverseMercator;
    map.georef.Method = TransformMethodHelmert;
    ASSERT_TRUE(write(map));
    EXPECT_NE(fileBytes(name).find("(UTM only) : true\n"), std::string::npos);
    EXPECT_EQ(fileBytes(name).find("Point :"), std::string::npos);
    EXPECT_NE(fileBytes(name).find("Count : 3\n"), std::string::npos);
}

TEST_F(RefFile, FileThatIsNotThereSaysNothing) {
    Map map;
    fill(map, 2);
    RefFreeControls(&map.georef);
    read(map);
    expectReset(map);
    EXPECT_FALSE(ZrProjRefFileRead(nullptr, &map.projection, &map.datum, &map.parameters));
    EXPECT_FALSE(ZrProjRefFileRead("", &map.projection, &map.datum, &map.parameters));
    std::filesystem::create_directory(name);
    read(map);
    expectReset(map);
    std::filesystem::remove(name);
    writeFile(directory.file("map.ZRR"), std::string(header) + "Projection Scale : 2\n");
    read(map);
    EXPECT_EQ(value(map.projection.Scale), 2);
}

TEST_F(RefFile, Header) {
    for (char const* good : {"zorvane CARTOGRAPHIC Reference information : version 1.10\n",
                             "Zorvane Cartographic Reference Information\t\r :  VERSION  1.1\n",
                             "Zorvane Cartographic Reference Information:Version1.0",
                             "Zorvane Cartographic Reference "
                             "Information : Version\n"}) {
        Map map;
        readBytes(map, good);
        EXPECT_TRUE(map.good) << good;
        EXPECT_EQ(map.flags, 16U) << good;
    }
    for (char const* bad :
         {"\n", "Zorvane Cartographic Reference Info", " Zorvane Cartographic Reference Information : Version 1.10\n",
          "Zorvane Cartographic Reference Information Version 1.10\n",
          "Zorvane Cartographic Reference Information : 1.10\n",
          "Zorvane Cartographic Reference Informations : Version 1.10\n",
          "ZorvaneCartographicReferenceInformation : Version 1.10\n", "\nZorvane Cartographic Reference Information"}) {
        ErrorHost const host;
        Map map;
        readBytes(map, bad);
        EXPECT_FALSE(map.good) << bad;
        ASSERT_EQ(host.calls.size(), 2U) << bad;
        EXPECT_EQ(host.calls[1].text, "Failed reading from file");
        EXPECT_EQ(host.calls[1].file, ".\\RefFile.cpp");
    }
    ErrorHost const host;
    Map map;
    readBytes(map, "");
    EXPECT_FALSE(map.good);
    EXPECT_TRUE(host.calls.empty());
}

TEST_F(RefFile, LaterVersionSaysNothing) {
    for (char const* version : {"1.20", "1.11", "2", "1.1000001", "INF"}) {
        Map map;
        readBytes(map, std::string("Zorvane Cartographic Reference Information : Version ") + version +
                           "\nProjection Scale : 2\n");
        expectReset(map);
    }
}

TEST_F(RefFile, Keys) {
    EXPECT_EQ(scaleOf("Projection Scale : 2\n"), 2);
    EXPECT_EQ(scaleOf("PROJECTION  SCALE : 2\n"), 2);
    EXPECT_EQ(scaleOf("\t projec tionscale\t:2"), 2);
    EXPECT_EQ(scaleOf("Projection Scale: 2\n"), 0); // no blank before the colon
    EXPECT_EQ(scaleOf("Projection Scale 2\n"), 0);
    EXPECT_EQ(scaleOf(": 2\n : 2\nProjection Scales : 2\nProjection Scal : 2\n"), 0);
    EXPECT_EQ(scaleOf("Projection : Scale : 2\n"), 0); // the first colon counts
    EXPECT_EQ(scaleOf("Projection Scale : 2\nProjection Scale : 3 : 4\n"), 3);
    EXPECT_EQ(scaleOf("Projection Scale :\t\r +2.5e0 meters\r\n"), 2.5);
    EXPECT_EQ(scaleOf("Projection Scale : x2\n"), 0);
    EXPECT_EQ(scaleOf("Unknown Key : 1\n\n\nnothing at all\nProjection Scale : 2"), 2);
    std::string const withNull("Projection Scale : 2\n\0Projection Scale : 3\n", 43);
    EXPECT_EQ(scaleOf(withNull), 2); // a null ends the line's text
}

TEST_F(RefFile, LinesHave258Characters) {
    std::string const blanks(300, ' ');
    EXPECT_EQ(scaleOf("Projection Scale : " + blanks.substr(0, 237) + "25\n"), 25); // 258, without the line feed
    EXPECT_EQ(scaleOf("Projection Scale : " + blanks.substr(0, 238) + "25\n"), 2);  // cut after its 258th
    EXPECT_EQ(scaleOf("Projection Scale : " + blanks + "2\n"), 0);
    EXPECT_EQ(scaleOf(std::string(258, 'x') + "Projection Scale : 2\n"), 2); // the rest is a line
    EXPECT_EQ(scaleOf(std::string(257, 'x') + "Projection Scale : 2\n"), 0);
    EXPECT_EQ(scaleOf(std::string(1000000, 'x') + " : \nProjection Scale : 2\n"), 2);
}

TEST_F(RefFile, Texts) {
    Map map;
    readLines(map, "Projection Name : universaltransverse MERCATOR(utm)\nProjection State Zone : \t california i \r\n"
                   "Projection Ellipsoid Type : wgs 84\nDatum Name :  nad 1927 - conus\t\nDatum Method : bursa - WOLF\n"
                   "Datum Ellipsoid Type : WGS  84\nGeoref Method : thin platespline\n"
                   "Projection In Southern Hemisphere (UTM only) : TRUEST\nProjection Alpha : -1e-3\n"
                   "Projection Uses Alpha Parameter (Hotine only) : yes\n");
    EXPECT_EQ(value(map.projection.Type), ProjTypeUniversalTransverseMercator);
    EXPECT_EQ(value(map.projection.Zone), StateZoneTypeCaliforniaI); // whatever the type uses
    EXPECT_EQ(value(map.projection.Alpha), -1e-3);
    EXPECT_EQ(value(map.projection.Ellipsoid), EllipsoidTypeWgs84);
    EXPECT_TRUE(map.projection.bSouth);
    EXPECT_FALSE(map.projection.bUseAlpha);
    EXPECT_EQ(map.datum, 124);
    EXPECT_EQ(value(map.parameters.Method), DatumMethodBursaWolf);
    EXPECT_EQ(value(map.parameters.Ellipsoid), EllipsoidTypeUserDefined); // of catalogue names the inner blanks count
    EXPECT_EQ(map.georef.Method, TransformMethodThinPlateSpline);
    EXPECT_EQ(map.flags, 19U); // no controls

    Map other;
    readLines(other, "Projection Name : Mercators\nProjection State Zone : nowhere\nDatum Name : User Defined\n"
                     "Datum Method : MREs\nProjection Ellipsoid Type : USER-DEFINED\nGeoref Method : Known\n");
    EXPECT_EQ(value(other.projection.Type), ProjTypeUndefined);
    EXPECT_EQ(value(other.projection.Zone), StateZoneTypeNone);
    EXPECT_EQ(other.datum, DatumTypeUserDefined);
    EXPECT_EQ(value(other.parameters.Method), 6);
    EXPECT_EQ(other.georef.Method, TransformMethodNone);
    EXPECT_EQ(other.flags, 18U);
}

TEST_F(RefFile, GeorefMethodNames) {
    char const* const older[] = {"Helmert",      "Affine",      "First Order",
                                 "Second Order", "Third Order", "Known Coefficients"};
    for (int method = 0; method < 12; ++method) {
        Map map, old;
        readLines(map, std::string("Georef Method : ") + RefMethodName(TransformMethod(method)) + '\n');
        EXPECT_EQ(map.georef.Method, method);
        if (method < 6) {
            readLines(old, std::string("Georef Method : ") + older[method] + '\n');
            EXPECT_EQ(old.georef.Method, method);
        }
    }
}

TEST_F(RefFile, CoefficientsAreOneField) {
    Map map;
    readLines(map, "Georef Method : Known Coefficients\nGeoref Coefficient A : 1\nGeoref Coefficient F : 6\n"
                   "Georef Coefficient C : 3\nGeoref Control Point Count : 2\nGeoref Point : 1 2 3 4\n");
    EXPECT_EQ(map.flags, 20U);
    EXPECT_EQ(map.georef.A, 3); // the last line wins
    EXPECT_EQ(map.georef.F, 0);
    EXPECT_EQ(map.georef.nControls, 0);
    EXPECT_EQ(map.georef.pSource, nullptr);
}

TEST_F(RefFile, ControlPoints) {
    EXPECT_EQ(pointsOf("Georef Control Point Count : 2\nGeoref Point : 1  2  3  4\ngeorefpoint :5 6 7 8"),
              (Numbers{1, 5}));
    EXPECT_EQ(pointsOf("Georef Point : 9 9 9 9\nGeoref Control Point Count : 2\nGeoref Point : 1 2 3 4\n"),
              (Numbers{1, 0})); // before the count
    EXPECT_EQ(pointsOf("Georef Control Point Count : 1\nGeoref Point : 1 2 3 4\nGeoref Point : 5 6 7 8\n"), Numbers{1});
    EXPECT_EQ(pointsOf("Georef Control Point Count : 1\nGeoref Point: 9 9 9 9\nGeoref Point : 1 2 3 4\n"), Numbers{1});
    // Once the arrays are there a count changes nothing; before, the last one stands.
    EXPECT_EQ(pointsOf("Georef Control Point Count : 2\nGeoref Point : 1 2 3 4\nGeoref Control Point Count : 90\n"
                       "Georef Point : 5 6 7 8\nGeoref Point : 9 9 9 9\n"),
              (Numbers{1, 5}));
    EXPECT_EQ(pointsOf("Georef Control Point Count : 9\nGeoref Control Point Count : 1\nGeoref Point : 1 2 3 4\n"),
              Numbers{1});
    EXPECT_EQ(pointsOf("Georef Control Point Count : 0\nGeoref Point : 1 2 3 4\n"), Numbers{});
    EXPECT_EQ(pointsOf("Georef Control Point Count : -1\nGeoref Point : 1 2 3 4\n"), Numbers{});
}

TEST_F(RefFile, NumbersOfAControlPoint) {
    Map map;
    readLines(map, "Georef Method : Helmert\nGeoref Control Point Count : 2\nGeoref Point : 1,5m\t-2e1;\t3  \r\n"
                   "Georef Point : x 2 3 4 5\n");
    ASSERT_EQ(map.georef.nControls, 2);
    EXPECT_EQ(map.georef.pSource[0].x, 1);
    EXPECT_EQ(map.georef.pSource[0].y, -20);
    EXPECT_EQ(map.georef.pTarget[0].x, 3);
    EXPECT_EQ(map.georef.pTarget[0].y, 0);
    EXPECT_EQ(map.georef.pSource[1].x, 0);
    EXPECT_EQ(map.georef.pTarget[1].y, 4);
}

TEST_F(RefFile, CountWithoutPointsMakesNoSystem) {
    Map map;
    readLines(map, "Georef Method : Helmert\nGeoref Control Point Count : 2000000000\n");
    EXPECT_TRUE(map.good);
    EXPECT_EQ(map.flags, 24U);
    EXPECT_EQ(map.georef.nControls, 2000000000);
    EXPECT_EQ(map.georef.pSource, nullptr);
    EXPECT_EQ(RefCreateSystem(&map.georef), nullptr);
    RefFreeControls(&map.georef);
}

TEST_F(RefFile, CountThatTheFileCannotHold) {
    std::string const lines = "Projection Scale : 2\nGeoref Method : Helmert\nGeoref Control Point Count : ";
    for (char const* count : {"1000001", "2000000000", "99999999999999"}) {
        ErrorHost const host;
        Map map;
        readLines(map, lines + count + "\nGeoref Point : 1 2 3 4\n");
        EXPECT_FALSE(map.good);
        EXPECT_EQ(value(map.projection.Scale), 2);
        EXPECT_EQ(map.georef.pSource, nullptr);
        EXPECT_EQ(map.georef.nControls, 0);
        ASSERT_EQ(host.calls.size(), 2U);
        EXPECT_EQ(host.calls[1].text, "Out of global memory");
        PROJDATA projection;
        EXPECT_TRUE(ZrProjRefFileReadEx(name.c_str(), &projection, nullptr, nullptr, nullptr, nullptr));
        EXPECT_EQ(value(projection.Scale), 2);
        EXPECT_FALSE(ZrProjRefFileRead(name.c_str(), &projection, nullptr, nullptr));
    }
    Map map;
    readLines(map, lines + "1000000\nGeoref Point : 1 2 3 4\n");
    EXPECT_TRUE(map.good);
    EXPECT_EQ(map.georef.nControls, 1000000);
}

TEST_F(RefFile, DatumNeedsBothOfItsOutputs) {
    writeFile(name, std::string(header) + "Datum Name : Tokyo\nDatum Method : MRE\n");
    DatumType datum = {};
    DATUM2WGS84 parameters = {};
    std::uint32_t flags = 0;
    EXPECT_TRUE(ZrProjRefFileReadEx(name.c_str(), nullptr, &datum, nullptr, nullptr, &flags));
    EXPECT_EQ(datum, DatumTypeNone);
    EXPECT_EQ(flags, 16U);
    parameters.dX = 5;
    EXPECT_TRUE(ZrProjRefFileReadEx(name.c_str(), nullptr, nullptr, &parameters, nullptr, nullptr));
    EXPECT_EQ(value(parameters.Method), DatumMethodNone);
    EXPECT_EQ(value(parameters.dX), 0);
    EXPECT_TRUE(ZrProjRefFileRead(name.c_str(), nullptr, &datum, &parameters));
    EXPECT_EQ(datum, 7);
    EXPECT_EQ(value(parameters.Method), DatumMethodMRE);
}

TEST_F(RefFile, OneFileIsDeleted) {
    writeFile(name, "");
    EXPECT_TRUE(ZrProjRefFileDelete(name.c_str()));
    EXPECT_FALSE(std::filesystem::exists(name));
    EXPECT_TRUE(ZrProjRefFileDelete(name.c_str()));
    std::string const map = directory.file("map");
    writeFile(map, "image");
    writeFile(directory.file("map.Zrr"), "");
    EXPECT_TRUE(ZrProjRefFileDelete(map.c_str()));
    EXPECT_FALSE(std::filesystem::exists(directory.file("map.Zrr")));
    EXPECT_EQ(fileBytes(map), "image");
    std::filesystem::create_directory(name);
    EXPECT_FALSE(ZrProjRefFileDelete(name.c_str()));
    EXPECT_FALSE(ZrProjRefFileDelete(nullptr));
    EXPECT_FALSE(ZrProjRefFileDelete(""));
}

namespace {

void makeAll(TemporaryDirectory const& directory, std::initializer_list<char const*> names) {
    for (char const* each : names)
        writeFile(directory.file(each), "");
}

std::string namesIn(TemporaryDirectory const& directory) {
    std::vector<std::string> names;
    for (auto const& entry : std::filesystem::directory_iterator(directory.path()))
        names.push_back(entry.path().filename().string());
    std::ranges::sort(names);
    std::string result;
    for (std::string const& each : names)
        result += each + ' ';
    return result;
}

} // namespace

TEST_F(RefFile, AllSideFilesOfAMapAreDeleted) {
    auto const deleteOf = [&](char const* map) { return ZrProjRefFilesDelete(directory.file(map).c_str()); };
    makeAll(directory, {"map.tif", "map.tif.zrr", "map.RSF", "map.WLD", "map.tifW", "map.tfW", "map.zrr", "mapW"});
    makeAll(directory, {"map.rsf", "map.wld", "map.tifw", "map.tfw", "map.TFW", "MAP.tfw", "map2.tfw", "map"});
    EXPECT_TRUE(deleteOf("map.tif"));
    EXPECT_EQ(namesIn(directory), "MAP.tfw map map.tif map.zrr map2.tfw mapW ");
    EXPECT_TRUE(deleteOf("map.ti"));
    EXPECT_EQ(namesIn(directory), "MAP.tfw map map.tif map.zrr map2.tfw ");
    EXPECT_TRUE(deleteOf("map"));
    EXPECT_EQ(namesIn(directory), "MAP.tfw map map.tif map2.tfw ");
    EXPECT_FALSE(ZrProjRefFilesDelete(nullptr));
    EXPECT_FALSE(ZrProjRefFilesDelete(""));
}

TEST_F(RefFile, TheMapItselfIsNeverDeleted) {
    for (char const* map : {"map.RSF", "map.rsf", "map.WLD", "map.wld"}) {
        makeAll(directory, {map});
        EXPECT_TRUE(ZrProjRefFilesDelete(directory.file(map).c_str()));
        EXPECT_EQ(namesIn(directory), std::string(map) + ' ');
        std::filesystem::remove(directory.file(map));
    }
}

TEST_F(RefFile, DeletionStopsAtWhatCannotBeDeleted) {
    makeAll(directory, {"map.tif.zrr", "map.RSF", "map.tfW"});
    std::filesystem::create_directory(directory.file("map.WLD"));
    std::filesystem::create_directory(directory.file("map.rsf")); // no side file
    EXPECT_FALSE(ZrProjRefFilesDelete(directory.file("map.tif").c_str()));
    EXPECT_EQ(namesIn(directory), "map.WLD map.rsf map.tfW ");
}

#if !defined(_WIN32)

TEST_F(RefFile, FailedWrites) {
    Map map;
    fill(map, 12);
    std::string const image = directory.file("image");
    writeFile(image, "image");
    {
        test::FullDisk const full(100);
        EXPECT_FALSE(write(map));
        EXPECT_FALSE(ZrProjRefFileWrite(image.c_str(), &map.projection, map.datum, &map.parameters));
    }
    EXPECT_EQ(namesIn(directory), "image image.zrr "); // our own name is gone, an extended one stays
    EXPECT_EQ(fileBytes(image), "image");
    EXPECT_EQ(fileBytes(directory.file("image.zrr")).size(), 100U);
    EXPECT_FALSE(ZrProjRefFileWrite(directory.file("none/map").c_str(), nullptr, map.datum, nullptr));
    std::filesystem::create_symlink("/dev/full", directory.file("full.zrr"));
    EXPECT_FALSE(ZrProjRefFileWrite(directory.file("full.zrr").c_str(), nullptr, map.datum, nullptr));
    EXPECT_TRUE(std::filesystem::is_symlink(directory.file("full.zrr")));
}

TEST_F(RefFile, ReadOnlyDirectory) {
    Map map;
    fill(map, 12);
    writeFile(directory.file("old.zrr"), "old");
    {
        test::ReadOnlyDirectory const locked(directory.path());
        EXPECT_FALSE(write(map));
        EXPECT_FALSE(ZrProjRefFileDelete(directory.file("old").c_str()));
    }
    EXPECT_EQ(namesIn(directory), "old.zrr ");
}

#endif
