#include "host/text.h"

#include <gtest/gtest.h>

using namespace ZrProj;

TEST(Text, LetterCaseIsAsciis) {
    EXPECT_TRUE(equalIgnoringCase("aZ09 [", "Az09 ["));
    EXPECT_TRUE(equalIgnoringCase("", ""));
    EXPECT_FALSE(equalIgnoringCase("abc", "abcd"));
    EXPECT_FALSE(equalIgnoringCase("@", "`")); // beside the letters, the same distance apart
    EXPECT_FALSE(equalIgnoringCase("[", "{"));
    EXPECT_FALSE(equalIgnoringCase("\xC4", "\xE4"));
}

TEST(Text, CopiesWithTheClosingNull) {
    char buffer[] = "xxxxx";
    copyText(buffer, "abc");
    EXPECT_STREQ(buffer, "abc");
    EXPECT_EQ(buffer[4], 'x');
    copyText(nullptr, "abc");
}
