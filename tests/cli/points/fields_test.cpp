#include "cli/points/fields.h"

#include <gtest/gtest.h>

namespace ZrProj::Command {
namespace {

using Texts = std::vector<std::string>;

TEST(Fields, EmptyFieldsAndBlanksAroundFields) {
    EXPECT_EQ(fieldTexts("a,b", ','), (Texts{"a", "b"}));
    EXPECT_EQ(fieldTexts(" a b ,,\tc,", ','), (Texts{"a b", "", "c", ""}));
    EXPECT_EQ(fieldTexts("a\t\tb c", '\t'), (Texts{"a", "", "b c"}));
    EXPECT_EQ(fieldTexts("  a \t b  ", ' '), (Texts{"a", "b"}));
}

TEST(Fields, QuotedFields) {
    EXPECT_EQ(fieldTexts(R"("a,b" , "say ""no""",c)", ','), (Texts{"a,b", "say \"no\"", "c"}));
    EXPECT_EQ(fieldTexts(R"("a b" "" c)", ' '), (Texts{"a b", "", "c"}));
    EXPECT_EQ(fieldTexts(R"("";"x")", ';'), (Texts{"", "x"}));
}

TEST(Fields, MarksThatOpenNothingAreText) {
    EXPECT_EQ(fieldTexts(R"(40d26'46"N,7"8)", ','), (Texts{"40d26'46\"N", "7\"8"}));
    EXPECT_EQ(fieldTexts(R"("40d26'46"N",x)", ','), (Texts{"40d26'46\"N", "x"}));
    EXPECT_EQ(fieldTexts(R"(a,"b)", ','), Texts{});
    EXPECT_EQ(fieldTexts(R"(1 2 "b c)", ' '), (Texts{"1", "2", "\"b", "c"}));
}

TEST(Fields, DelimitersAreTriedLikeliestFirst) {
    EXPECT_EQ(possibleDelimiters("1,5;2,5\t3 4"), "\t;, ");
    EXPECT_EQ(possibleDelimiters("1 2"), " ");
}

} // namespace
} // namespace ZrProj::Command
