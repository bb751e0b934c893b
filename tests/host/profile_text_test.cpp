#include "host/profile_text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

using namespace ZrProj;
using namespace std::string_literals;

namespace {

constexpr char const* section = "Custom Datums";

std::string with(std::string_view text, std::string_view key = "k") {
    return withEntry(text, section, key, "v");
}

} // namespace

TEST(Profile, ReadsEntriesOfTheSectionAlone) {
    auto const entries = profileEntries("\xEF\xBB\xBF[ custom DATUMS ]\r\n a = 1 = 2 \r\n;c=3\n#d=4\nno entry\n=5\n"
                                        "[Other]\ne=6\n[Custom Datums]\nf=\n[Custom Datums\ng=7",
                                        section);
    ASSERT_EQ(entries.size(), 2U);
    EXPECT_EQ(entries[0].key + '|' + entries[0].value, "a|1 = 2");
    EXPECT_EQ(entries[1].key + '|' + entries[1].value, "f|");
}

TEST(Profile, EditsNothingButTheEntry) {
    EXPECT_EQ(with(""), "[Custom Datums]\nk=v\n");
    EXPECT_EQ(with("\xEF\xBB\xBF"), "\xEF\xBB\xBF[Custom Datums]\nk=v\n");
    EXPECT_EQ(with("a=1"), "a=1\n\n[Custom Datums]\nk=v\n");
    EXPECT_EQ(with("[x]\r\na=1\r\n\r\n"), "[x]\r\na=1\r\n\r\n[Custom Datums]\r\nk=v\r\n");
    EXPECT_EQ(with("[custom datums]"), "[custom datums]\nk=v\n");
    EXPECT_EQ(with("[Custom Datums]\na=1\n; c\n\n\n[x]\nk=2\n"), "[Custom Datums]\na=1\n; c\nk=v\n\n\n[x]\nk=2\n");
    std::string const binary = "[Custom Datums]\n\0\xFF\n K  = 1\r\nk=2"s;
    EXPECT_EQ(with(binary), "[Custom Datums]\n\0\xFF\nk=v\r\nk=2"s);
    EXPECT_EQ(withoutEntry(binary, section, "k"), "[Custom Datums]\n\0\xFF\n"s);
    EXPECT_EQ(withoutEntry(binary, section, "x"), std::nullopt);
    EXPECT_EQ(withoutEntry("[x]\nk=1\n", section, "k"), std::nullopt);
}

TEST(Profile, FindsWhatItWroteInAnyBytes) {
    std::mt19937 random(7);
    std::vector<std::string> const pieces{
        "[Custom Datums]", "[",  "]", "=", ";", "#", "\r\n", "\n", "\r", " ", "k", "K = 1", "\0"s,
        "\xEF\xBB\xBF",    "x=2"};
    for (int i = 0; i < 20000; ++i) {
        std::string text;
        for (std::size_t length = random() % 12; length > 0; --length)
            text += pieces[random() % pieces.size()];
        auto const entries = profileEntries(with(text), section);
        auto const found =
            std::ranges::find_if(entries, [](auto& entry) { return entry.key == "k" || entry.key == "K"; });
        ASSERT_TRUE(found != entries.end() && found->value == "v") << text;
        auto const without = withoutEntry(with(text), section, "k");
        ASSERT_TRUE(without && !withoutEntry(*without, section, "k")) << text;
    }
}
