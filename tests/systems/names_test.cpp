#include "systems/names.h"

#include <gtest/gtest.h>

using namespace ZrProj::systems;

namespace {

Code coded(std::string_view name) {
    return codeNamed(Thing::system, name);
}

} // namespace

TEST(Names, EveryNameOfTheRegisterFindsAnEquallyNamedSystem) {
    for (std::size_t i = 0; i < entryCount(); ++i) {
        Code const code = coded(entry(i).name);
        EXPECT_EQ(nameOf(Thing::system, code), entry(i).name);
        if (!entry(i).deprecated) {
            EXPECT_EQ(code, entry(i).code) << entry(i).name;
        }
    }
}

TEST(Names, EveryNameOfEsriLeadsBack) {
    int named = 0;
    for (std::size_t i = 0; i < entryCount(); ++i) {
        auto const name = esriNameOf(Thing::system, entry(i).code);
        named += !name.empty();
        EXPECT_TRUE(name.empty() || esriNameOf(Thing::system, coded(name)) == name) << name;
    }
    EXPECT_GT(named, 5000);
}

TEST(Names, CaseMarksAndShortForms) {
    for (auto const* name : {"WGS 84", "WGS84", "wgs 84", "GCS_WGS_1984", "WGS_1984", "CRS84", "OGC:CRS84"})
        EXPECT_EQ(coded(name), 4326) << name;
    EXPECT_EQ(coded("NAD27"), 4267);
    EXPECT_EQ(coded("nad83"), 4269);
    for (auto const* name : {"UTM 17N", "UTM zone 17N", "wgs84 / utm zone 17n", "WGS_1984_UTM_Zone_17N"})
        EXPECT_EQ(coded(name), 32617) << name;
    EXPECT_EQ(coded("ETRS89 / UTM 32N"), 25832);
    EXPECT_EQ(coded("Web Mercator"), 3857);
    EXPECT_EQ(coded("Google Maps Global Mercator"), 3857);
    EXPECT_EQ(coded("GCS_ECML14_NB_IRF"), 9758); // as ESRI would call it
    // What marks tell apart stays apart.
    EXPECT_EQ(coded("CH1903"), 4149);
    EXPECT_EQ(coded("CH1903+"), 4150);
    EXPECT_EQ(coded("NAD83 / Texas Central (ftUS)"), 2277);
    EXPECT_EQ(coded("NAD83 / Texas Central"), 32139);
}

TEST(Names, FormerNamesAndHeights) {
    EXPECT_EQ(coded("OSGB 1936 / British National Grid"), 27700);
    EXPECT_EQ(coded("RGF93 / Lambert-93"), 2154);
    EXPECT_EQ(coded("NAD83 / UTM zone 17N + NAVD88 height"), 26917);
}

TEST(Names, OtherThings) {
    EXPECT_EQ(codeNamed(Thing::datum, "World Geodetic System 1984"), 6326);
    EXPECT_EQ(codeNamed(Thing::datum, "WGS_1984"), 6326);
    EXPECT_EQ(codeNamed(Thing::datum, "D_North_American_1927"), 6267);
    EXPECT_EQ(codeNamed(Thing::datum, "D_ECML14_NB_Intermediate_Reference_Frame"), 1310);
    EXPECT_EQ(codeNamed(Thing::datum, "European_Terrestrial_Reference_System_1989"), 6258);
    EXPECT_EQ(codeNamed(Thing::ellipsoid, "GRS_1980"), 7019);
    EXPECT_EQ(codeNamed(Thing::ellipsoid, "Clarke 1880 (IGN)"), 7011);
    EXPECT_EQ(codeNamed(Thing::meridian, "paris"), 8903);
    EXPECT_EQ(codeNamed(Thing::unit, "Foot_US"), 9003);
    EXPECT_EQ(codeNamed(Thing::unit, "metre"), 9001);
    EXPECT_EQ(esriNameOf(Thing::unit, 9003), "Foot_US");
    EXPECT_EQ(esriNameOf(Thing::datum, 6326), "D_WGS_1984");
    EXPECT_EQ(nameOf(Thing::ellipsoid, 7030), "WGS 84");
}

TEST(Names, NothingIsCalledSo) {
    for (auto const* name : {"", " ", "/", "unknown", "UTM 61N", "UTM 17X", "+", " + "})
        EXPECT_EQ(coded(name), 0) << name;
    EXPECT_EQ(codeNamed(Thing::datum, "unknown"), 0);
    EXPECT_EQ(nameOf(Thing::system, 1), "");
    EXPECT_EQ(esriNameOf(Thing::system, 1), "");
}

TEST(Names, SuggestionsAreNearest) {
    EXPECT_EQ(suggestions("Amersfort / RD New", 3).at(0).code, 28992);
    EXPECT_EQ(suggestions("Lambert 93", 3).at(0).code, 2154);
    EXPECT_LE(suggestions("UTM", 3).size(), 3u);
    EXPECT_TRUE(suggestions("xyzzyxyzzyxyzzyxyzzy", 3).empty());
}
