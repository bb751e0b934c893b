#include "cli/text/line_reader.h"

#include <gtest/gtest.h>

#include <string>
#include <thread>
#include <vector>

#include <unistd.h>

namespace ZrProj::Command {
namespace {

/// The lines that come out when the pieces are written to a pipe one after the other: each as its text (its length, for
/// a long one) and its end.
std::vector<std::string> linesOf(std::vector<std::string> const& pieces) {
    int ends[2];
    EXPECT_EQ(pipe(ends), 0);
    std::thread writer([&] {
        for (std::string const& piece : pieces)
            for (std::string_view rest = piece; !rest.empty();)
                rest.remove_prefix(static_cast<std::size_t>(write(ends[1], rest.data(), rest.size())));
        close(ends[1]);
    });
    LineReader reader(ends[0]);
    std::vector<std::string> lines;
    while (reader.read())
        while (auto const line = reader.next()) {
            std::string const text =
                line->text.size() > 99 ? std::to_string(line->text.size()) : std::string(line->text);
            lines.push_back((line->tooLong ? "(too long)" : text) + (line->end == "\r\n" ? "|rn" : "|n"));
        }
    writer.join();
    close(ends[0]);
    EXPECT_EQ(reader.error(), 0);
    return lines;
}

using Lines = std::vector<std::string>;

TEST(LineReader, EveryKindOfLineEnd) {
    EXPECT_EQ(linesOf({}), Lines{});
    EXPECT_EQ(linesOf({"\n\r\na\rb\n"}), (Lines{"|n", "|rn", "a\rb|n"}));
    EXPECT_EQ(linesOf({"a\nb"}), (Lines{"a|n", "b|n"}));
    EXPECT_EQ(linesOf({"a\r\nb"}), (Lines{"a|rn", "b|rn"}));
    EXPECT_EQ(linesOf({"a\r", "\nb", "c\r\n"}), (Lines{"a|rn", "bc|rn"}));
}

TEST(LineReader, LongLinesEndAtOneMebibyte) {
    std::size_t const most = LineReader::longestLine;
    std::string const fits(most, 'x');
    EXPECT_EQ(linesOf({"a\n", fits, "\nb\n"}), (Lines{"a|n", std::to_string(most) + "|n", "b|n"}));
    EXPECT_EQ(linesOf({"a\n", fits, "x\nb\n"}), (Lines{"a|n", "(too long)|n", "b|n"}));
    EXPECT_EQ(linesOf({fits, fits, fits, "\r\nb\n", fits}),
              (Lines{"(too long)|rn", "b|n", std::to_string(most) + "|n"}));
    EXPECT_EQ(linesOf({"a\n", fits, fits, fits}), (Lines{"a|n", "(too long)|n"}));
}

TEST(LineReader, ALineIsThereAsSoonAsItWasWritten) {
    int ends[2];
    ASSERT_EQ(pipe(ends), 0);
    ASSERT_EQ(write(ends[1], "a\nb", 3), 3);
    LineReader reader(ends[0]);
    ASSERT_TRUE(reader.read());
    auto const line = reader.next();
    ASSERT_TRUE(line);
    EXPECT_EQ(line->text, "a");
    EXPECT_FALSE(reader.next());
    close(ends[0]);
    close(ends[1]);
}

TEST(LineReader, ReleasedLinesStayGoodAndAnUnfinishedOneGoesOn) {
    int ends[2];
    ASSERT_EQ(pipe(ends), 0);
    LineReader reader(ends[0]);
    ASSERT_EQ(write(ends[1], "a\nb", 3), 3);
    ASSERT_TRUE(reader.read());
    auto const first = reader.next();
    ASSERT_FALSE(reader.next());
    std::vector<char> const memory = reader.release();
    ASSERT_EQ(write(ends[1], "c\n", 2), 2);
    ASSERT_TRUE(reader.read());
    auto const second = reader.next();
    ASSERT_TRUE(first && second);
    EXPECT_EQ(first->text, "a");
    EXPECT_EQ(second->text, "bc");
    close(ends[0]);
    close(ends[1]);
}

TEST(LineReader, AFailedReadIsTold) {
    LineReader reader(-1);
    EXPECT_FALSE(reader.read());
    EXPECT_NE(reader.error(), 0);
}

} // namespace
} // namespace ZrProj::Command
