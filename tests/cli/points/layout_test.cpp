#include "cli/points/layout.h"

#include "cli/text/usage_error.h"

#include <gtest/gtest.h>

namespace ZrProj::Command {
namespace {

LengthUnit const* const feet = findLengthUnit("us-ft");

/// The layout in short: "," or ";" ..., h for a header, and the columns; "?" for a line that tells nothing, "!" for a
/// header that cannot be used.
std::string layoutOf(std::string_view line, ColumnRequest const& request) {
    Recognition const found = recognise(line, request);
    if (!found.fault.empty())
        return "!";
    if (!found.clear)
        return "?";
    Columns const& columns = found.layout.columns;
    std::string text(1, found.layout.delimiter);
    text += found.layout.header ? "h" : "";
    text += std::to_string(columns.x) + std::to_string(columns.y);
    text += columns.zone < 0 ? "" : std::to_string(columns.zone);
    return columns.unit ? text.append(" ").append(columns.unit->name) : text;
}

struct Case {
    char const* line;
    char const* layout;
};

TEST(Layout, ForwardWithoutOptions) {
    ColumnRequest const request;
    for (Case const& c : {Case{"1,2", ",01"},
                          {"1;2;3,5", ";01"},
                          {"1\t2\t3, 4", "\t01"},
                          {"-1 2 Springfield, Ohio", " 01"},
                          {"-1\t 2 Springfield", " 01"},
                          {"-79,38 43,65", "?"}, // decimal commas
                          {"1;2,5", "?"},
                          {"W79d23', N43", ",01"},
                          {"*,*", ",01"},
                          {"45N,79W", "?"}, // wrong, but no header
                          {"name,LAT,Lon", ",h21"},
                          {"\"Longitude (deg)\";\"Latitude (deg)\"", ";h01"},
                          {"x y z", " h01"},
                          {"x,y,lat,long", ",h32"},
                          {"lat,lon,latitude,longitude", ",h10"},
                          {"long_name,lat,lng", ",h21"},
                          {"easting,northing", ",h01"},
                          {"easting_m,northing_m", "!"},
                          {"name,city", "!"},
                          {"Toronto,43.65", "?"},
                          {"garbage", "?"}})
        EXPECT_EQ(layoutOf(c.line, request), c.layout) << c.line;
}

TEST(Layout, InverseKnowsUnitsAndNeverTakesLongitudes) {
    ColumnRequest const request{Operation::Inverse, {}, nullptr, false};
    for (Case const& c : {Case{"longitude,latitude,easting_m,northing_m", ",h23 m"},
                          {"E,N", ",h01"},
                          {"Easting (ft),Northing (ft)", ",h01 ft"},
                          {"easting_us_ft,northing_us_ft", ",h01 us-ft"},
                          {"easting_us_ft,northing_m", "!"},
                          {"easting_km,northing_km", "!"},
                          {"lon,lat", "!"},
                          {"x,y", ",h01"}})
        EXPECT_EQ(layoutOf(c.line, request), c.layout) << c.line;
    ColumnRequest const inFeet{Operation::Inverse, {}, feet, false};
    EXPECT_EQ(layoutOf("easting_m,northing_m,easting_us_ft,northing_us_ft", inFeet), ",h23 us-ft");
    EXPECT_EQ(layoutOf("easting_m,northing_m", inFeet), "!");
}

TEST(Layout, ColumnsByNumberAndByName) {
    ColumnRequest const numbers{Operation::Forward, {"3", "1"}, nullptr, false};
    EXPECT_EQ(layoutOf("43,x,-79", numbers), ",20");
    EXPECT_EQ(layoutOf("b,x,a", numbers), ",h20");
    EXPECT_EQ(layoutOf("43,x,a", numbers), "?");
    ColumnRequest const byName{Operation::Inverse, {"Rechts Wert", "hoch"}, nullptr, false};
    EXPECT_EQ(layoutOf("hoch;rechts_wert", byName), ";h10");
    EXPECT_EQ(layoutOf("hoch;hoch;rechts_wert", byName), "!");
    EXPECT_EQ(
        layoutOf("\u7def\u5ea6,\u7d4c\u5ea6", {Operation::Forward, {"\u7d4c\u5ea6", "\u7def\u5ea6"}, nullptr, false}),
        ",h10");
    EXPECT_EQ(layoutOf("1;2", byName), "!");
    ColumnRequest const unlikeUnits{Operation::Inverse, {"a_m", "b_ft"}, nullptr, false};
    EXPECT_EQ(layoutOf("a_m,b_ft", unlikeUnits), "!");
    EXPECT_EQ(layoutOf("a_m,b_m", {Operation::Inverse, {"1", "2"}, feet, false}), "!");
}

TEST(Layout, ZonesHaveAColumn) {
    EXPECT_EQ(layoutOf("1,2,17N", {Operation::Inverse, {}, nullptr, true}), ",012");
    EXPECT_EQ(layoutOf("zone,e,n", {Operation::Inverse, {}, nullptr, true}), ",h120");
    EXPECT_EQ(layoutOf("e,n", {Operation::Inverse, {}, nullptr, true}), "!");
    EXPECT_EQ(layoutOf("17N,1,2", {Operation::Inverse, {"2", "3", "1"}, nullptr, true}), ",120");
}

TEST(Layout, ColumnsOption) {
    EXPECT_EQ(parseColumns("lon, lat", false), (std::vector<std::string>{"lon", "lat"}));
    EXPECT_EQ(parseColumns("2,1,3", true), (std::vector<std::string>{"2", "1", "3"}));
    for (char const* text : {"1", "1,2,3", "1,lat", "1,1", "0,1", "a,", ""})
        EXPECT_THROW(parseColumns(text, false), UsageError) << text;
}

} // namespace
} // namespace ZrProj::Command
