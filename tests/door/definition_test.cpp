#include "door/handles.h"
#include "support/registry.h"

#include <array>
#include <cmath>
#include <utility>
#include <vector>

using namespace ZrProj;
using namespace ZrProj::test;

namespace {

System systemOf(char const* definition) {
    return made<System>([&](zrproj_system** s) { return zrproj_system_create(definition, s); });
}

zrproj_status statusOf(char const* definition) {
    zrproj_system* system = nullptr;
    zrproj_status const status = zrproj_system_create(definition, &system);
    EXPECT_EQ(system == nullptr, status != ZRPROJ_OK);
    EXPECT_TRUE(status == ZRPROJ_OK || *zrproj_message() != '\0') << definition;
    zrproj_system_destroy(system);
    return status;
}

std::string textOf(System const& system, zrproj_format format) {
    size_t length = 0;
    zrproj_system_text(system.get(), format, nullptr, 0, &length);
    std::string text(length + 1, '?');
    EXPECT_EQ(zrproj_system_text(system.get(), format, text.data(), text.size(), nullptr), ZRPROJ_OK)
        << zrproj_message();
    EXPECT_EQ(text.back(), '\0');
    text.pop_back();
    return text;
}

std::string codeOf(System const& system) {
    return textOf(system, ZRPROJ_CODE);
}

struct Way {
    Transform transform;
    zrproj_status status;
};

Way wayBetween(System const& from, System const& to) {
    zrproj_transform* transform = nullptr;
    zrproj_status const status = zrproj_transform_create(from.get(), to.get(), nullptr, &transform);
    return {Transform(transform), status};
}

std::string describe(Way const& way, double* accuracy = nullptr) {
    std::array<char, 500> text{};
    EXPECT_EQ(zrproj_transform_describe(way.transform.get(), text.data(), text.size(), nullptr, accuracy), ZRPROJ_OK);
    return text.data();
}

struct Result {
    PROJPOINT point;
    zrproj_reason reason;
};

Result convert(Way const& way, PROJPOINT point, bool backwards = false) {
    unsigned char reason = 255;
    EXPECT_EQ(zrproj_transform_points(way.transform.get(), backwards, &point.x, &point.y, 16, 1, &reason), ZRPROJ_OK);
    return {point, static_cast<zrproj_reason>(reason)};
}

constexpr zrproj_format everyText[] = {ZRPROJ_WKT2, ZRPROJ_WKT1, ZRPROJ_WKT_ESRI, ZRPROJ_PROJJSON};

} // namespace

TEST(DoorDefinition, IsReadInWhateverForm) {
    for (char const* definition : {"EPSG:28992", "28992", " epsg:28992\n", "urn:ogc:def:crs:EPSG::28992",
                                   "Amersfoort / RD New", "amersfoort / rd new", "RD_New"})
        EXPECT_EQ(codeOf(systemOf(definition)), "EPSG:28992") << definition;
    EXPECT_EQ(codeOf(systemOf("WGS84")), "EPSG:4326");
    EXPECT_EQ(codeOf(systemOf("UTM 17N")), "EPSG:32617");
    EXPECT_EQ(codeOf(systemOf("+proj=utm +zone=17 +datum=WGS84 +type=crs")), "EPSG:32617");
    System const dutch = systemOf("28992");
    EXPECT_EQ(textOf(dutch, ZRPROJ_NAME), "Amersfoort / RD New");
    for (zrproj_format const format : everyText)
        EXPECT_EQ(codeOf(systemOf(textOf(dutch, format).c_str())), "EPSG:28992") << textOf(dutch, format);
    EXPECT_STREQ(zrproj_message(), "");
}

TEST(DoorDefinition, TakesCodesAsOthersWriteThem) {
    for (char const* definition :
         {"\xEF\xBB\xBF"
          "EPSG:4326",
          "urn:ogc:def:crs:OGC:1.3:CRS84", "OGC:CRS84", "CRS84", "http://www.opengis.net/def/crs/OGC/1.3/CRS84",
          "EPSG:4326+5773", "EPSG: 4326", "urn:ogc:def:crs:EPSG:9.9.1:4326",
          "http://www.opengis.net/def/crs/EPSG/0/4326", "urn:ogc:def:crs,crs:EPSG::4326,crs:EPSG::5773"})
        EXPECT_EQ(codeOf(systemOf(definition)), "EPSG:4326") << definition;
    for (char const* definition : {"EPSG:foo:4326", "EPSG:4326,garbage", "EPSG:4326+", "EPSG:4326+x", "EPSG:4326,5773",
                                   "urn:ogc:def:crs:EPSG:foo:4326", "urn:ogc:def:crs:OGC:1.3:CRS85"})
        EXPECT_EQ(statusOf(definition), ZRPROJ_UNKNOWN) << definition;
    EXPECT_EQ(statusOf("EPSG:102100"), ZRPROJ_UNKNOWN);
    EXPECT_NE(std::string(zrproj_message()).find("EPSG's codes only"), std::string::npos) << zrproj_message();
}

TEST(DoorDefinition, TakesLatin1AndGivesUtf8) {
    for (char const* name : {"DHDN / 3-degree Gauss-Kr\xC3\xBCger zone 3", "DHDN / 3-degree Gauss-Kr\xFCger zone 3"})
        EXPECT_EQ(codeOf(systemOf(name)), codeOf(systemOf("DHDN / 3-degree Gauss-Kruger zone 3"))) << name;
    for (char const* umlaut : {"\xFC", "\xC3\xBC"}) {
        std::string const text = std::string("GEOGCS[\"K") + umlaut +
                                 "ste\",DATUM[\"own\",SPHEROID[\"own\",6378000,300]],"
                                 "PRIMEM[\"Greenwich\",0],UNIT[\"degree\",0.0174532925199433]]";
        EXPECT_EQ(textOf(systemOf(text.c_str()), ZRPROJ_NAME), "K\xC3\xBCste");
    }
    EXPECT_EQ(statusOf("K\xFCste"), ZRPROJ_UNKNOWN);
    EXPECT_NE(std::string(zrproj_message()).find("K\xC3\xBCste"), std::string::npos) << zrproj_message();
}

TEST(DoorDefinition, TellsWhyThereIsNoSystem) {
    EXPECT_EQ(statusOf(""), ZRPROJ_BAD_DEFINITION);
    EXPECT_EQ(statusOf("  \n"), ZRPROJ_BAD_DEFINITION);
    EXPECT_EQ(statusOf(std::string(100000, 'x').c_str()), ZRPROJ_BAD_DEFINITION);
    EXPECT_EQ(statusOf("PROJCS[\"a\",GEOGCS["), ZRPROJ_BAD_DEFINITION);
    EXPECT_NE(std::string(zrproj_message()).find("line 1, column "), std::string::npos) << zrproj_message();
    EXPECT_EQ(statusOf("{\"type\": \"ProjectedCRS\""), ZRPROJ_BAD_DEFINITION);
    EXPECT_EQ(statusOf("EPSG:99999"), ZRPROJ_UNKNOWN);
    EXPECT_EQ(statusOf("Amersfort / RD New"), ZRPROJ_UNKNOWN);
    EXPECT_NE(std::string(zrproj_message()).find("\"Amersfoort / RD New\" (EPSG:28992)"), std::string::npos)
        << zrproj_message();
    EXPECT_EQ(statusOf("+proj=longlat +datum=nowhere"), ZRPROJ_UNKNOWN);
    EXPECT_EQ(statusOf("EPSG:3752"), ZRPROJ_UNSUPPORTED); // a scale at the equator and another parallel
    EXPECT_NE(std::string(zrproj_message()).find("EPSG:3994 replaces it"), std::string::npos) << zrproj_message();
    EXPECT_EQ(zrproj_system_create(nullptr, nullptr), ZRPROJ_BAD_ARGUMENT);
    zrproj_system* system = nullptr;
    EXPECT_EQ(zrproj_system_create(nullptr, &system), ZRPROJ_BAD_ARGUMENT);
}

TEST(DoorDefinition, TellsWhatItNoticed) {
    std::string text = textOf(systemOf("EPSG:32617"), ZRPROJ_WKT1);
    auto const easting = text.find("500000");
    ASSERT_NE(easting, std::string::npos);
    text.replace(easting, 6, "400000");
    System const contradicted = systemOf(text.c_str());
    EXPECT_NE(std::string(zrproj_message()).find("false easting"), std::string::npos) << zrproj_message();
    std::array<char, 40> code{};
    EXPECT_EQ(zrproj_system_text(contradicted.get(), ZRPROJ_CODE, code.data(), code.size(), nullptr), ZRPROJ_UNKNOWN);
    Way const way = wayBetween(systemOf("EPSG:4326"), contradicted);
    EXPECT_NEAR(convert(way, {-81, 0}).point.x, 400000, 1e-6);
    System const deprecated = systemOf("EPSG:2036");
    EXPECT_NE(std::string(zrproj_message()).find("EPSG:2953"), std::string::npos) << zrproj_message();
}

TEST(DoorDefinition, OfNoEntryStandsOnTheDatumThatItNames) {
    constexpr char const* albers = "PROJCS[\"own\",GEOGCS[\"GCS_North_American_1983\",DATUM[\"D_North_American_1983\","
                                   "SPHEROID[\"GRS_1980\",6378137.0,298.257222101]],PRIMEM[\"Greenwich\",0.0],"
                                   "UNIT[\"Degree\",0.0174532925199433]],PROJECTION[\"Albers\"],"
                                   "PARAMETER[\"False_Easting\",0.0],PARAMETER[\"False_Northing\",0.0],"
                                   "PARAMETER[\"Central_Meridian\",-101.0],PARAMETER[\"Standard_Parallel_1\",29.5],"
                                   "PARAMETER[\"Standard_Parallel_2\",45.5],PARAMETER[\"Latitude_Of_Origin\",23.0],"
                                   "UNIT[\"Meter\",1.0]]";
    for (auto const& [definition, geographic] : {std::pair(albers, "EPSG:4269"),
                                                 {"+proj=robin +datum=WGS84", "EPSG:4326"},
                                                 {"+proj=tmerc +lon_0=-81.5 +datum=NAD27", "EPSG:4267"},
                                                 {"+proj=tmerc +lat_0=1 +datum=OSGB36", "EPSG:4277"}}) {
        System const own = systemOf(definition);
        EXPECT_STREQ(zrproj_message(), "");
        for (zrproj_format const format : everyText) {
            System const back = systemOf(textOf(own, format).c_str());
            EXPECT_STREQ(zrproj_message(), "") << textOf(own, format);
            Way const way = wayBetween(back, systemOf(geographic));
            ASSERT_EQ(way.status, ZRPROJ_OK) << zrproj_message() << textOf(own, format);
            double accuracy = 1;
            EXPECT_EQ(describe(way, &accuracy).find("WGS 84 (1)"), std::string::npos);
            EXPECT_EQ(accuracy, 0) << textOf(own, format);
        }
    }
}

TEST(DoorDefinition, CountsFromAnotherMeridian) {
    System const paris = systemOf("+proj=longlat +datum=WGS84 +pm=paris");
    EXPECT_STREQ(zrproj_message(), "");
    Way const way = wayBetween(paris, systemOf("EPSG:4326"));
    ASSERT_EQ(way.status, ZRPROJ_OK) << zrproj_message();
    EXPECT_NEAR(convert(way, {1, 45}).point.x, 3.33722917, 1e-10);
    System const back = systemOf(textOf(paris, ZRPROJ_WKT2).c_str());
    EXPECT_STREQ(zrproj_message(), "");
    EXPECT_EQ(wayBetween(back, systemOf("EPSG:4326")).status, ZRPROJ_OK) << zrproj_message();
}

TEST(DoorDefinition, ItsOwnShiftCounts) {
    System const plain = systemOf("EPSG:4326");
    Way const shifted = wayBetween(systemOf("+proj=longlat +datum=WGS84 +towgs84=100,0,0"), plain);
    ASSERT_EQ(shifted.status, ZRPROJ_OK) << zrproj_message();
    EXPECT_NE(describe(shifted).find("another datum"), std::string::npos) << describe(shifted);
    EXPECT_NEAR(convert(shifted, {90, 0}).point.x, 90 - 100 / 6378137.0 * 180 / 3.14159265358979, 1e-9);
    Way const none = wayBetween(systemOf("+proj=longlat +datum=WGS84 +towgs84=0,0,0"), plain);
    EXPECT_EQ(convert(none, {90, 0}).point.x, 90);
    EXPECT_EQ(statusOf("+proj=longlat +datum=WGS84 +towgs84=1e9,0,0"), ZRPROJ_BAD_DEFINITION);
    EXPECT_EQ(statusOf("+init=epsg:4326 +towgs84=1e9,0,0"), ZRPROJ_BAD_DEFINITION);
}

TEST(DoorDefinition, HasAnAreaOfUse) {
    double west = 0, south = 0, east = 0, north = 0;
    ASSERT_EQ(zrproj_system_area(systemOf("EPSG:28992").get(), &west, &south, &east, &north), ZRPROJ_OK);
    EXPECT_NEAR(west, 3.2, 0.1);
    EXPECT_NEAR(north, 53.7, 0.1);
    ASSERT_EQ(zrproj_system_area(systemOf("EPSG:2193").get(), &west, &south, &east, &north), ZRPROJ_OK);
    ASSERT_EQ(zrproj_system_area(systemOf("EPSG:3832").get(), &west, nullptr, &east, nullptr), ZRPROJ_OK);
    EXPECT_GT(west, east); // over the antimeridian
    EXPECT_EQ(zrproj_system_area(systemOf("+proj=merc +R=1000").get(), &west, &south, &east, &north), ZRPROJ_UNKNOWN);
}

TEST(DoorDefinition, TellsItsFigureAndUnit) {
    double radius = 0, flattening = 0, metres = 0;
    System const feet = systemOf("EPSG:2229"); // US survey feet
    ASSERT_EQ(zrproj_system_ellipsoid(feet.get(), &radius, &flattening), ZRPROJ_OK);
    EXPECT_EQ(radius, 6378137);
    EXPECT_NEAR(1 / flattening, 298.257222101, 1e-9);
    ASSERT_EQ(zrproj_system_unit(feet.get(), &metres), ZRPROJ_OK);
    EXPECT_NEAR(metres, 1200 / 3937.0, 1e-15);
    EXPECT_EQ(zrproj_system_unit(geographicOf(feet).get(), &metres), ZRPROJ_UNKNOWN);
}

// IOGP's Guidance Note 7-2, Snyder's and others' printed examples are in tests/systems; here what the door adds.
TEST(DoorDefinition, ConvertsBothWays) {
    System const dutch = systemOf("28992");
    System const geographic = geographicOf(dutch);
    EXPECT_EQ(codeOf(geographic), "EPSG:4289");
    Way const way = wayBetween(geographic, dutch);
    Result const there = convert(way, {6, 53});
    EXPECT_NEAR(there.point.x, 196105.283, 1e-3); // Guidance Note 7-2, Oblique Stereographic
    EXPECT_NEAR(there.point.y, 557057.739, 1e-3);
    EXPECT_EQ(there.reason, ZRPROJ_CONVERTED);
    EXPECT_NEAR(convert(way, there.point, true).point.x, 6, 1e-11);
    EXPECT_EQ(describe(way),
              "from Amersfoort (EPSG:4289)\nto Amersfoort / RD New (EPSG:28992) by Oblique Stereographic");
}

// Paris in grads: coordinates are degrees from the system's own meridian, and the datum is the one from Greenwich.
TEST(DoorDefinition, CountsFromItsOwnMeridian) {
    System const map = systemOf("EPSG:27572"), paris = geographicOf(map);
    EXPECT_EQ(codeOf(paris), "EPSG:4807");
    Result const ofParis = convert(wayBetween(paris, map), {0, 46.8});
    EXPECT_NEAR(ofParis.point.x, 600000, 1e-6);
    Result const ofGreenwich = convert(wayBetween(systemOf("EPSG:4275"), map), {2.33722917, 46.8});
    EXPECT_NEAR(ofGreenwich.point.x, ofParis.point.x, 1e-3);
    EXPECT_NEAR(ofGreenwich.point.y, ofParis.point.y, 1e-6);
    double const line[] = {-3, 46, 3, 47};
    Pieces const pieces = made<Pieces>([&](zrproj_pieces** p) { return zrproj_clip_line(map.get(), line, 2, p); });
    double const* clipped = nullptr;
    size_t count = 0;
    ASSERT_EQ(zrproj_pieces_entry(pieces.get(), 0, &clipped, &count, nullptr), ZRPROJ_OK);
    EXPECT_TRUE(count == 2 && clipped[0] == -3 && clipped[3] == 47);
}

TEST(DoorDefinition, GivesEachPointItsReason) {
    Way const way = wayBetween(systemOf("EPSG:4326"), systemOf("EPSG:32617"));
    EXPECT_EQ(convert(way, {-79, 43}).reason, ZRPROJ_CONVERTED);
    EXPECT_EQ(convert(way, {-79 + 360, 43}).reason, ZRPROJ_CONVERTED);
    EXPECT_EQ(convert(way, {-81 + 34.9, 0}).reason, ZRPROJ_CONVERTED); // 3885 km
    EXPECT_EQ(convert(way, {-81 + 35.2, 0}).reason, ZRPROJ_FAR);
    EXPECT_EQ(convert(way, {500000 + 4.1e6, 1e6}, true).reason, ZRPROJ_CONVERTED);
    EXPECT_EQ(convert(way, {500000 - 4.3e6, 1e6}, true).reason, ZRPROJ_FAR);
    EXPECT_EQ(convert(way, {-81 + 90, 0}).reason, ZRPROJ_NOT_SHOWN);
    EXPECT_EQ(convert(way, {-81, 91}).reason, ZRPROJ_BEYOND_POLE);
    EXPECT_EQ(convert(way, {1e8, 0}, true).reason, ZRPROJ_OFF_THE_MAP);
    EXPECT_EQ(convert(way, {NAN, 0}).reason, ZRPROJ_NOT_FINITE);
}

TEST(DoorDefinition, GoesBetweenSystemsOnOneDatum) {
    double accuracy = -1;
    Way const web = wayBetween(systemOf("EPSG:3857"), systemOf("EPSG:32633"));
    ASSERT_EQ(web.status, ZRPROJ_OK);
    describe(web, &accuracy);
    EXPECT_EQ(accuracy, 0);
    Way const realization = wayBetween(systemOf("EPSG:9057"), systemOf("EPSG:4326")); // WGS 84 (G1762)
    ASSERT_EQ(realization.status, ZRPROJ_OK);
    EXPECT_NE(describe(realization, &accuracy).find("of which it is a realization"), std::string::npos);
    EXPECT_EQ(accuracy, 2);
    zrproj_options const precise{sizeof precise, nullptr, 0, 1};
    zrproj_transform* refused = nullptr;
    EXPECT_EQ(zrproj_transform_create(systemOf("EPSG:9057").get(), systemOf("EPSG:4326").get(), &precise, &refused),
              ZRPROJ_NO_PATH);
    EXPECT_TRUE(std::string(zrproj_message()).ends_with(" is good to 2 m only")) << zrproj_message();
    EXPECT_EQ(wayBetween(systemOf("EPSG:4277"), systemOf("EPSG:4283")).status, ZRPROJ_NO_PATH); // Britain, Australia
    EXPECT_NE(std::string(zrproj_message()).find("Ordnance Survey of Great Britain 1936"), std::string::npos);
    EXPECT_EQ(wayBetween(systemOf("+proj=longlat +ellps=WGS84"), systemOf("EPSG:4326")).status, ZRPROJ_NO_PATH);
    System const bare = systemOf("+proj=longlat +ellps=bessel"), map = systemOf("+proj=utm +zone=31 +ellps=bessel");
    EXPECT_EQ(wayBetween(bare, map).status, ZRPROJ_OK);
}

// Parameters and definitions meet in one kind of system.
TEST(DoorDefinition, IsWhatParametersSay) {
    auto utm = parametersOf(recordOf("type=utm ellipsoid=wgs-84"));
    utm.lon0 = -81;
    utm.datum = DatumTypeWorldGeodeticSystem1984;
    System const byNumbers = test::systemOf(utm);
    EXPECT_EQ(codeOf(byNumbers), "EPSG:32617");
    EXPECT_EQ(textOf(byNumbers, ZRPROJ_WKT2), textOf(systemOf("EPSG:32617"), ZRPROJ_WKT2));
    Way const way = wayBetween(byNumbers, systemOf("EPSG:32617"));
    Result const same = convert(way, {600000, 4800000});
    EXPECT_NEAR(same.point.x, 600000, 1e-3);
    EXPECT_NEAR(same.point.y, 4800000, 1e-3);

    auto web = parametersOf(recordOf("type=mercator"));
    web.radius = 6378137;
    web.datum = DatumTypeWorldGeodeticSystem1984;
    EXPECT_EQ(codeOf(test::systemOf(web)), "EPSG:3857");
    EXPECT_EQ(codeOf(geographicOf(test::systemOf(web))), "EPSG:4326");
    EXPECT_EQ(wayBetween(geographicOf(test::systemOf(web)), test::systemOf(web)).status, ZRPROJ_OK);

    zrproj_parameters zone{};
    zone.size = sizeof zone;
    zone.type = ProjTypeStatePlane1983;
    zone.zone = StateZoneTypeCaliforniaI;
    zone.datum = DatumTypeNorthAmericanDatum1983;
    EXPECT_EQ(codeOf(test::systemOf(zone)), "EPSG:26941");

    auto unsayable = parametersOf(recordOf("type=oblique-mercator ellipsoid=wgs-84 lat1=10 lat2=40 lon1=0 lon2=50"));
    std::array<char, 40> text{};
    EXPECT_EQ(zrproj_system_text(test::systemOf(unsayable).get(), ZRPROJ_WKT2, text.data(), text.size(), nullptr),
              ZRPROJ_UNSUPPORTED);
}

/// Holds each text that says a system of these parameters to what it computes, half a degree from its centre. Returns
/// how many texts say a point that has a result.
int textsThatSay(std::string const& words) {
    test::Projection const projection(words);
    PROJDATA const& record = projection.record(); // of a State Plane zone its own
    System const system = test::systemOf(parametersOf(recordOf(words)));
    PROJPOINT const place{record.Lon0 + 0.5, record.Lat0 + (record.Lat0 > 0 ? -0.5 : 0.5)};
    Result const expected = convert(wayBetween(geographicOf(system), system), place);
    int said = 0;
    for (zrproj_format const format : {ZRPROJ_WKT2, ZRPROJ_WKT1, ZRPROJ_PROJJSON, ZRPROJ_PROJ_STRING}) {
        size_t length = 0;
        if (zrproj_system_text(system.get(), format, nullptr, 0, &length) == ZRPROJ_UNSUPPORTED)
            continue;
        System const again = systemOf(textOf(system, format).c_str());
        Result const result = convert(wayBetween(geographicOf(again), again), place);
        EXPECT_EQ(result.reason, expected.reason) << format;
        if (expected.reason >= ZRPROJ_NOT_FINITE)
            continue;
        EXPECT_NEAR(result.point.x, expected.point.x, 5e-4 * record.Scale) << format;
        EXPECT_NEAR(result.point.y, expected.point.y, 5e-4 * record.Scale) << format;
        ++said;
    }
    return said;
}

// What each type computes comes out of the texts that say it: the two formulas of a Transverse Mercator agree near
// their meridian, to what the records' one omits.
TEST(DoorDefinition, TextsSayWhatEachTypeComputes) {
    for (ProjType const type : test::projectingTypes()) {
        int said = 0;
        for (std::string const& words : test::parameterSets(type)) {
            SCOPED_TRACE(words);
            said += textsThatSay(words);
        }
        bool const isUnsayable = type == ProjTypeObliqueMercator || type == ProjTypeRobinsonSterling;
        EXPECT_EQ(said > 0, !isUnsayable) << type;
    }
}

TEST(DoorRegister, ListsItsSystems) {
    int code = 0, before = 0;
    char const *name = nullptr, *kind = nullptr;
    size_t n = 0, projected = 0;
    for (; zrproj_register_entry(n, &code, &name, &kind) == ZRPROJ_OK; ++n, before = code) {
        ASSERT_GT(code, before);
        ASSERT_TRUE(*name != '\0');
        projected += std::string(kind) == "projected";
    }
    EXPECT_GT(projected, 5000U);
    EXPECT_LT(projected, n);
    EXPECT_EQ(zrproj_register_entry(n, nullptr, nullptr, nullptr), ZRPROJ_UNKNOWN);
    EXPECT_NE(std::string(zrproj_register_version()).find("EPSG"), std::string::npos);
    EXPECT_NE(std::string(zrproj_register_terms()), "");
}

TEST(DoorRegister, IsSearchedByWordsAndPlace) {
    auto const search = [](char const* text, double const* place) {
        std::vector<size_t> entries(20);
        size_t count = 0;
        EXPECT_EQ(zrproj_register_search(text, place, entries.data(), entries.size(), &count), ZRPROJ_OK);
        std::vector<int> codes;
        for (size_t i = 0; i < std::min(count, entries.size()); ++i)
            EXPECT_EQ(zrproj_register_entry(entries[i], &codes.emplace_back(), nullptr, nullptr), ZRPROJ_OK);
        return codes;
    };
    EXPECT_EQ(search("rd new", nullptr), std::vector{28992});
    EXPECT_EQ(search("2036", nullptr), std::vector{2036}); // deprecated
    EXPECT_TRUE(search("no such words", nullptr).empty());
    double const place[] = {5.5, 53}, nowhere[] = {6, 91};
    auto const there = search("WGS 84 utm", place);
    EXPECT_EQ(there, (std::vector{32631, 32600})); // the zone, and the grid of all zones
    EXPECT_EQ(zrproj_register_search("", nowhere, nullptr, 0, nullptr), ZRPROJ_BAD_ARGUMENT);
    size_t count = 0;
    EXPECT_EQ(zrproj_register_search(nullptr, place, nullptr, 0, &count), ZRPROJ_OK);
    EXPECT_GT(count, 20U);
}
