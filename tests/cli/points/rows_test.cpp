#include "cli/points/rows.h"

#include "tests/cli/support.h"

#include <gtest/gtest.h>

namespace ZrProj::Command {
namespace {

struct Read {
    Row row;
    RowPoint point;
};

Read read(std::string_view line, Layout const& layout, ColumnRequest const& request = {}) {
    Read result;
    result.row.line = {line, "\n"};
    result.point = RowReader(layout, request).read(result.row);
    return result;
}

/// What becomes of a line whose point comes out as 1, 2; or, in another state than Good, without a result.
std::string written(std::string_view line, Layout const& layout, PointState state = PointState::Good,
                    bool zones = false) {
    Read const given = read(line, layout);
    std::string text;
    RowWriter(1, zones).write(text, given.row, layout, {{1, 2}, state, utmZone(17, false)});
    return text;
}

Layout layoutOf(char const* line, ColumnRequest const& request = {}) {
    return recognise(line, request).layout;
}

TEST(Rows, APointIsReadWhereItsColumnsAre) {
    auto const [row, point] = read("\"a, b\", 43.5 ,W79", layoutOf("name,lat,lon"));
    EXPECT_EQ(point.fault, "");
    EXPECT_EQ(point.point.state, PointState::Good);
    EXPECT_EQ(point.point.point.x, -79);
    EXPECT_EQ(point.point.point.y, 43.5);
    EXPECT_EQ(row.fields, 3U);
}

TEST(Rows, WhatIsWrongWithALine) {
    struct Case {
        char const *header, *line, *fault;
    };
    for (auto const& [header, line, fault] : {Case{"id,lon,lat", "1,-79,43", ""},
                                              {"id,lon,lat", "1", "1 field where 3 are needed"},
                                              {"id,lon,lat", "1,-79,43,x", "4 fields under a header of 3"},
                                              {"id,lon,lat", "\"1,-79,43", "quoted field without an end on the line"},
                                              {"id,lon,lat", "1,7o,43", "longitude \"7o\" is not an angle"},
                                              {"id,lon,lat", "1,-79,", "latitude is empty"},
                                              {"id,lon,lat", "1,-79,91", "latitude \"91\" is out of range (-90 to 90)"},
                                              {"id lon lat", "1 -79 43 and more", ""}}) {
        RowPoint const point = read(line, layoutOf(header)).point;
        EXPECT_EQ(point.fault, fault) << line;
        EXPECT_EQ(point.point.state == PointState::Good, *fault == '\0') << line;
    }
    RowPoint const marked = read("*,*", layoutOf("lon,lat")).point;
    EXPECT_EQ(marked.fault, "");
    EXPECT_EQ(marked.point.state, PointState::Marked);
}

TEST(Rows, ZonesStandInTheirColumn) {
    ColumnRequest const request{Operation::Inverse, {}, nullptr, true};
    Layout const layout = layoutOf("1,2,17N", request);
    EXPECT_EQ(read("1,2, utm 33 s", layout, request).point.point.zone, utmZone(33, true));
    EXPECT_EQ(read("1,2,33U", layout, request).point.fault, "zone \"33U\" is not 1 to 60 with N or S");
}

TEST(Rows, WithoutAHeaderTheResultTakesTheCoordinatesPlace) {
    EXPECT_EQ(written("-79.3, 43.6 , \"a, \"\"b\"\"\" ", layoutOf("1,2")), "1.0, 2.0 , \"a, \"\"b\"\"\" \n");
    EXPECT_EQ(written("  -79\t 43  Toronto", layoutOf("1 2")), "  1.0\t 2.0  Toronto\n");
    EXPECT_EQ(written("a;43;b;-79", layoutOf("a;43;b;-79", {Operation::Forward, {"4", "2"}, nullptr, false})),
              "a;2.0;b;1.0\n");
    EXPECT_EQ(written("-79,43,x", layoutOf("1,2"), PointState::Good, true), "1.0,2.0,17N,x\n");
    EXPECT_EQ(written("-79", layoutOf("1,2"), PointState::Unread), "*,*\n");
}

TEST(Rows, UnderAHeaderTheResultFollowsTheLine) {
    Layout const layout = layoutOf("lon;lat;note");
    EXPECT_EQ(written("-79;43;x", layout), "-79;43;x;1.0;2.0\n");
    EXPECT_EQ(written("-79;43", layout), "-79;43;;1.0;2.0\n");
    EXPECT_EQ(written("-79;43;x", layout, PointState::Far), "-79;43;x;1.0;2.0\n");
    EXPECT_EQ(written("-79;43;x", layout, PointState::Outside, true), "-79;43;x;*;*;*\n");
}

TEST(Rows, NewColumnsHaveFreeNames) {
    EXPECT_EQ(headerWith("x,y,Easting_M,easting_m_2", layoutOf("x,y,z,w"), {"easting_m", "northing_m"}),
              "x,y,Easting_M,easting_m_2,easting_m_3,northing_m");
    EXPECT_EQ(headerWith("x y  ", layoutOf("x y"), {"a"}), "x y a");
}

} // namespace
} // namespace ZrProj::Command
