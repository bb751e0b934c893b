#include "cli/text/name_match.h"

#include <gtest/gtest.h>

namespace ZrProj::Command {
namespace {

std::vector<std::string> const names{"Transverse Mercator",
                                     "Universal Transverse Mercator (UTM)",
                                     "Mercator",
                                     "California I",
                                     "California II",
                                     "WGS 84"};

TEST(NameMatch, WholeNamesGoBeforePartsAndPunctuationDoesNotCount) {
    struct Case {
        char const* text;
        int place;
    };
    for (Case const& c : {Case{"mercator", 2},
                          {"TRANSVERSE MERCATOR", 0},
                          {"utm", 1},
                          {"california i", 3},
                          {"california-ii", 4},
                          {"wgs84", 5}}) {
        NameMatch const result = matchName(c.text, names);
        EXPECT_EQ(result.match, Match::One) << c.text;
        EXPECT_EQ(result.found, std::vector<int>{c.place}) << c.text;
    }
}

TEST(NameMatch, AmbiguousPartsNameEveryCandidate) {
    NameMatch const result = matchName("transverse", names);
    EXPECT_EQ(result.match, Match::Several);
    EXPECT_EQ(result.found, (std::vector<int>{0, 1}));
    EXPECT_EQ(explainMismatch("projection", "transverse", names, result, "zrproj list"),
              "\"transverse\" fits more than one projection: \"Transverse Mercator\", "
              "\"Universal Transverse Mercator (UTM)\"");
}

TEST(NameMatch, UnknownNamesGetTheNearestNearestFirst) {
    EXPECT_EQ(matchName("merkator", names).found, (std::vector<int>{0, 1, 2}));
    EXPECT_EQ(matchName("califrnia ii", names).found, (std::vector<int>{4, 3}));
    NameMatch const result = matchName("xyzzy", names);
    EXPECT_EQ(result.match, Match::None);
    EXPECT_TRUE(result.found.empty());
    EXPECT_EQ(explainMismatch("zone", "x\033[1myz", names, result, "zrproj list zones"),
              "unknown zone \"x?[1myz\"; \"zrproj list zones\" lists them");
    EXPECT_EQ(matchName(" ", names).match, Match::None);
}

} // namespace
} // namespace ZrProj::Command
