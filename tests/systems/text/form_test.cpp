#include "systems/text/form.h"

#include <gtest/gtest.h>

using namespace ZrProj::systems;

TEST(Form, IsToldByTheText) {
    struct Case {
        std::string_view text;
        Form form;
    };
    constexpr Case cases[] = {
        {"EPSG:4326", Form::code},
        {" 28992\n", Form::code},
        {"urn:ogc:def:crs:EPSG::4326", Form::code},
        {"EPSG:4326x", Form::name},
        {"WGS 84 / UTM zone 33N", Form::name},
        {"Beijing 1954 / 3-degree Gauss-Kruger CM 75E", Form::name},
        {"RGF93 v1 (lon-lat)", Form::name},
        {"NTF (Paris) / Lambert zone II", Form::name},
        {"", Form::name},
        {"PROJCS[\"a\",GEOGCS[", Form::wkt1},
        {"\n GEOGCS [\"a\"", Form::wkt1},
        {"COMPD_CS(\"a\"", Form::wkt1},
        {"BOUNDCRS[SOURCECRS[", Form::wkt2},
        {"GeogCRS[\"a\"", Form::wkt2},
        {"{\"type\":\"GeographicCRS\"}", Form::projJson},
        {"+proj=longlat", Form::projString},
        {"proj=utm zone=33", Form::projString},
        {"+init=epsg:4326", Form::projString},
    };
    for (Case const& each : cases)
        EXPECT_EQ(formOf(each.text), each.form) << each.text;
}

TEST(Form, CodesInTheirManyDresses) {
    for (std::string_view const text :
         {"EPSG:4326", "epsg:4326", "4326", " 4326 ", "urn:ogc:def:crs:EPSG::4326", "urn:ogc:def:crs:EPSG:10.076:4326",
          "urn:ogc:def:crs,crs:EPSG::4326,crs:EPSG::5773", "http://www.opengis.net/def/crs/EPSG/0/4326",
          "https://www.opengis.net/def/crs/EPSG/9.9.1/4326"})
        EXPECT_EQ(codeIn(text), 4326) << text;
    for (std::string_view const text :
         {"EPSG:", "EPSG:-4326", "0", "4326.0", "99999999999", "ESRI:54030", "EPSG::4326x"})
        EXPECT_FALSE(codeIn(text)) << text;
}
