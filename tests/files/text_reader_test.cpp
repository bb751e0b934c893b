#include "files/text_reader.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

using namespace ZrProj;

namespace {

/// The lines of a file with those bytes; the last one is what is left at its end.
std::vector<std::string> linesOf(std::string const& bytes) {
    std::unique_ptr<std::FILE, int (*)(std::FILE*)> const file(std::tmpfile(), std::fclose);
    EXPECT_EQ(std::fwrite(bytes.data(), 1, bytes.size(), file.get()), bytes.size());
    std::rewind(file.get());
    std::vector<std::string> lines;
    TextLine line;
    bool more = true;
    while (more) {
        more = readLine(*file, line);
        lines.emplace_back(line.text());
    }
    return lines;
}

std::vector<std::string> tokensOf(std::string_view text) {
    std::vector<std::string> tokens;
    while (auto const token = takeToken(text))
        tokens.emplace_back(*token);
    return tokens;
}

using Texts = std::vector<std::string>;

} // namespace

TEST(TextReader, Lines) {
    EXPECT_EQ(linesOf(""), Texts{""});
    EXPECT_EQ(linesOf("a\r\nb\n\nc"), (Texts{"a", "b", "", "c"}));
    EXPECT_EQ(linesOf("a\rb\r\r\n"), (Texts{"ab", ""}));
    EXPECT_EQ(linesOf(std::string("a\0b\nc\n", 6)), (Texts{"a", "c", ""}));
}

TEST(TextReader, LongLinesGoOnAsTheNext) {
    std::string const full(255, 'x');
    EXPECT_EQ(linesOf(full + "y\nz\n"), (Texts{full, "y", "z", ""}));
    EXPECT_EQ(linesOf(full + "\nz\n"), (Texts{full, "z", ""}));
    EXPECT_EQ(linesOf(full + "\r\nz\n"), (Texts{full, "z", ""}));
    EXPECT_EQ(linesOf(full), Texts{full});
    EXPECT_EQ(linesOf(full + full + "\n").size(), 3U);
}

TEST(TextReader, Tokens) {
    EXPECT_EQ(tokensOf(""), Texts{});
    EXPECT_EQ(tokensOf(" \t\r\n"), Texts{});
    EXPECT_EQ(tokensOf(" a  bc\td "), (Texts{"a", "bc", "d"}));
    EXPECT_EQ(tokensOf("'Point 0' 1"), (Texts{"Point 0", "1"}));
    EXPECT_EQ(tokensOf("'Point 0'1 a'b"), (Texts{"Point 0", "1", "a'b"}));
    EXPECT_EQ(tokensOf("'' 1"), (Texts{"", "1"}));
    EXPECT_EQ(tokensOf("'no end 1 2"), Texts{"no end 1 2"});
    EXPECT_EQ(tokensOf("'"), Texts{""});
    EXPECT_EQ(tokensOf("\"Point 0\" 1 2"), Texts{"Point 0\" 1 2"});
    EXPECT_EQ(tokensOf("\"Point\" 0' 1"), (Texts{"Point\" 0", "1"}));
}
