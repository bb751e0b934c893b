#include "cli/georef/controls.h"

#include "cli/text/usage_error.h"
#include "tests/cli/support.h"

#include <gtest/gtest.h>

namespace ZrProj::Command {
namespace {

std::vector<ControlPoint> read(std::string const& text, std::string const& columns = "") {
    return readControls(TextFile(text).name(), columns);
}

/// The points in short: "1 2 3 4 name;".
std::string inShort(std::vector<ControlPoint> const& controls) {
    std::string text;
    for (ControlPoint const& control : controls) {
        for (double const value : {control.source.x, control.source.y, control.target.x, control.target.y})
            text += std::to_string(static_cast<int>(value)) + ' ';
        text += control.name + ';';
    }
    return text;
}

/// The message for a file, without its name.
template <class Error> std::string refusal(std::string const& text, std::string const& columns = "") {
    TextFile const file(text);
    std::string message = messageOf<Error>([&] { readControls(file.name(), columns); });
    for (std::string const title = '"' + file.name() + '"'; message.find(title) != std::string::npos;)
        message.replace(message.find(title), title.size(), "FILE");
    for (std::string const& title = file.name(); message.find(title) != std::string::npos;)
        message.replace(message.find(title), title.size(), "FILE");
    return message;
}

TEST(Controls, EveryDelimiterAndANameIfThereIsOne) {
    for (char const* text : {"1,2,3,4,a\n5,6,7,8\n", "1;2;3;4;a\n#\n\n5;6;7;8", "1\t2\t3\t4\ta\r\n5\t6\t7\t8\r\n",
                             "\xEF\xBB\xBF 1  2 3 4 a\n5 6 7 8\n"})
        EXPECT_EQ(inShort(read(text)), "1 2 3 4 a;5 6 7 8 ;") << text;
    auto const controls = read("# none\n1,2,3,4\n5,6,7,8,\"B, 2\"");
    EXPECT_EQ(controls[0].title(), "line 2");
    EXPECT_EQ(controls[1].title(), "\"B, 2\"");
}

TEST(Controls, AHeaderTellsTheColumns) {
    EXPECT_EQ(inShort(read("mapX,mapY,pixelX,pixelY,enable\n3,4,1,2,1")), "1 2 3 4 ;");
    EXPECT_EQ(inShort(read("Name;Easting;Northing;Column;Row\na;3;4;1;2")), "1 2 3 4 a;");
    EXPECT_EQ(inShort(read("a,b,c,d\n1,2,3,4")), "1 2 3 4 ;");
    EXPECT_EQ(refusal<UsageError>("pixel_x,b,c,d\n").substr(0, 37), "FILE:1: the header names only some of");
}

TEST(Controls, ColumnsByOption) {
    EXPECT_EQ(inShort(read("3,4,1,2,a", "3,4,1,2")), "1 2 3 4 ;");
    EXPECT_EQ(inShort(read("n,east,north,i,j\na,3,4,1,2", "i,j,East,NORTH,n")), "1 2 3 4 a;");
    EXPECT_EQ(refusal<UsageError>("1,2,3,4", "1,2,3").substr(0, 28), "--columns needs four columns");
    EXPECT_EQ(refusal<UsageError>("a,b,c,d", "a,b,c,x"),
              "--columns: \"x\" is neither a number from 1 nor a column of the header");
}

TEST(Controls, AllBrokenLinesAreTold) {
    EXPECT_EQ(refusal<ControlsError>("1,2,3,4\n2,4x,5,6\n3,6\n"),
              "FILE:2: source y \"4x\" is not a number\nFILE:3: target x is missing\n"
              "nothing is fitted while a control point cannot be read");
    EXPECT_EQ(refusal<ControlsError>("# nothing\n"), "FILE: no control points");
    std::string many = "1,2,3,4\n";
    for (int i = 0; i < 23; ++i)
        many += "x\n";
    std::string const told = refusal<ControlsError>(many);
    EXPECT_NE(told.find("FILE:21: "), std::string::npos);
    EXPECT_EQ(told.find("FILE:22: "), std::string::npos);
    EXPECT_NE(told.find("and 3 more lines\n"), std::string::npos);
}

TEST(Controls, WhyNoMapGoesThroughThem) {
    auto const why = [](char const* method, char const* text) {
        return whyNoFit(findGeorefMethod(method), read(text));
    };
    EXPECT_EQ(why("third", "0 0 1 1\n1 0 2 2\n0 1 3 3"), "third needs 10 control points, there are 3");
    EXPECT_EQ(why("cubic", "1,2,3,4\n3,4,5,6\n\n1,2,4,4\n7,1,1,1"),
              "two control points at one source point, in lines 1 and 4");
    EXPECT_EQ(why("affine", "1,2,3,4\n#\n2,4,5,6\n3,6,4,4"), "the control points are all on one line (lines 1, 3, 4)");
    EXPECT_EQ(why("helmert", "1,2,3,4\n1,2,4,4"), "two control points at one source point, in lines 1 and 2");
    EXPECT_EQ(why("bilinear", "1 2 3 4\n3 5 5 6\n7 1 1 1\n7 1 1 2"),
              "two control points at one source point, in lines 3 and 4"); // too few are left
    std::string const circle = "13 0 1 1\n5 12 2 3\n-5 12 5 1\n-12 5 6 2\n-12 -5 9 3\n0 -13 2 7\n12 -5 4 4\n";
    struct {
        char const *method, *curve;
        std::string points;
    } const cases[] = {{"second", "conic", circle},
                       {"bilinear", "hyperbola", "1 6 1 1\n2 3 2 3\n3 2 5 1\n6 1 6 2\n-1 -6 1 1\n"},
                       {"third", "cubic", circle + "1 1 3 3\n2 2 4 3\n3 3 3 5\n4 4 5 6\n"}};
    for (auto const& [method, curve, points] : cases) {
        std::string const last = points.substr(points.rfind('\n', points.size() - 2) + 1);
        for (std::string const& repeated : {std::string(), last}) { // which is not what is wrong
            std::string const reason = why(method, (points + repeated).c_str());
            EXPECT_TRUE(reason.starts_with("the control points do not determine a map by " + std::string(method) +
                                           ": they lie on one " + curve))
                << reason;
        }
    }
}

} // namespace
} // namespace ZrProj::Command
