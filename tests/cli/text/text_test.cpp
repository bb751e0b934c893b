#include "cli/text/text.h"

#include <gtest/gtest.h>

using ZrProj::Command::xmlText;

TEST(XmlText, KeepsOnlyCharactersOfXml) {
    EXPECT_EQ(xmlText("a<b & \"c\"\x01\n"), "a&#60;b &#38; &#34;c&#34;");
    for (char const* good : {"K\xC3\xB6ln", "\xE2\x82\xAC", "\xF0\x9F\x97\xBA", "\xEF\xBF\xBD", "\xED\x9F\xBF"})
        EXPECT_EQ(xmlText(good), good);
    for (char const* bad : {"\xF6", "\x80", "\xC3", "\xC1", "\xF5", "\xFF"})
        EXPECT_EQ(xmlText(bad), "\xEF\xBF\xBD");
    EXPECT_EQ(xmlText("K\xF6ln"), "K\xEF\xBF\xBDln");
    // longer than need be, a surrogate, U+FFFF, beyond the last one, cut short
    for (char const* bad : {"\xE0\x80\xAF", "\xED\xA0\x80", "\xEF\xBF\xBF", "\xF4\x90\x80\x80", "\xE2\x82"})
        EXPECT_EQ(xmlText(bad).substr(0, 3), "\xEF\xBF\xBD") << bad;
}
