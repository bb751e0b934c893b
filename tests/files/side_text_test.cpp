#include "files/side_text.h"

#include "support/floating_point.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <bit>
#include <cfloat>
#include <climits>
#include <clocale>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <memory>
#include <random>
#include <string>
#include <vector>

using namespace ZrProj;

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

std::string written(double value) {
    std::string text;
    appendNumber(text, value);
    return text;
}

std::string printed(double value) {
    std::array<char, 64> text = {};
    std::snprintf(text.data(), text.size(), "%.15G", value);
    return text.data();
}

bool useDecimalComma() {
    constexpr std::array names{"de_DE.UTF-8", "fr_FR.UTF-8", "de_DE", "fr_FR"};
    return std::ranges::any_of(names, [](char const* name) { return std::setlocale(LC_NUMERIC, name); });
}

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

TEST(NumberText, IsWhatPrintfWrites) {
    for (double value : {0.,
                         -0.,
                         1.,
                         100000000000000.,
                         1e15,
                         999999999999999.4,
                         999999999999999.6,
                         0.0001,
                         0.00001,
                         0.1,
                         1 / 3.,
                         DBL_MAX,
                         DBL_MIN,
                         DBL_TRUE_MIN,
                         -DBL_TRUE_MIN,
                         infinity,
                         -infinity,
                         notANumber,
                         -notANumber,
                         6378137.,
                         298.257223563})
        EXPECT_EQ(written(value), printed(value));
    std::mt19937_64 random(1);
    for (int i = 0; i < 20000; ++i) {
        auto const anyBits = std::bit_cast<double>(random());
        ASSERT_EQ(written(anyBits), printed(anyBits));
        double const fewDigits = std::round(std::ldexp(static_cast<double>(random()), -30)) / 1000;
        ASSERT_EQ(written(fewDigits), printed(fewDigits));
    }
}

TEST(NumberText, IsReadAsStrtodReadsDecimals) {
    for (char const* text : {"1.5",
                             " \t\r\n-1.5",
                             "+1.5",
                             "1.5x",
                             "1,5",
                             ".5",
                             "5.",
                             "-.5e1",
                             "1e",
                             "1e+",
                             "1E5",
                             "1e-5",
                             "",
                             " ",
                             "-",
                             "+-5",
                             "-+5",
                             "- 5",
                             "x",
                             "e5",
                             "..5",
                             "1e400",
                             "-1e400",
                             "1e-400",
                             "-1e-400",
                             "1e99999999999999999999",
                             "1e-99999999999999999999",
                             "INF",
                             "-Infinity",
                             "4.9E-324",
                             "2e-324",
                             "1.7976931348623157e308",
                             "1e5e5"}) {
        double const expected = std::strtod(text, nullptr);
        EXPECT_EQ(readNumber(text), expected) << text;
        EXPECT_EQ(std::signbit(readNumber(text)), std::signbit(expected)) << text;
    }
    EXPECT_TRUE(std::isnan(readNumber("NAN")));
    EXPECT_EQ(readNumber("0x10"), 0);
    EXPECT_EQ(readNumber("0." + std::string(250, '0') + "1E-200"), 0);
    EXPECT_EQ(readNumber(std::string(250, '9') + "E+200"), infinity);
    std::mt19937_64 random(2);
    for (int i = 0; i < 20000; ++i) {
        auto const value = std::bit_cast<double>(random());
        if (std::isfinite(value)) {
            ASSERT_EQ(readNumber(written(value)), std::strtod(printed(value).c_str(), nullptr));
        }
    }
}

TEST(NumberText, WholeNumbers) {
    EXPECT_EQ(readInteger(" 42 "), 42);
    EXPECT_EQ(readInteger("+7x"), 7);
    EXPECT_EQ(readInteger("-7.9"), -7);
    EXPECT_EQ(readInteger("+-7"), 0);
    EXPECT_EQ(readInteger("x7"), 0);
    EXPECT_EQ(readInteger(""), 0);
    EXPECT_EQ(readInteger("2147483647"), INT_MAX);
    EXPECT_EQ(readInteger("4294967297"), INT_MAX); // not 1
    EXPECT_EQ(readInteger("-99999999999999999999"), INT_MIN);
}

TEST(NumberText, LocaleDoesNotMatter) {
    if (!useDecimalComma())
        GTEST_SKIP() << "no locale with a decimal comma here";
    std::string const text = written(-1234.5);
    double const value = readNumber("1.5");
    std::setlocale(LC_NUMERIC, "C");
    EXPECT_EQ(text, "-1234.5");
    EXPECT_EQ(value, 1.5);
}

TEST(NumberText, HostWithTrapsIsNotHit) {
    TrapsEnabled const host;
    std::string text;
    for (double value : {notANumber, infinity, DBL_MAX, DBL_TRUE_MIN, 0.1})
        appendNumber(text, value);
    for (char const* number : {"0.1", "1e400", "1e-400", "1e-320", "12345678901234567890.12345678901234567890"})
        readNumber(number);
    EXPECT_TRUE(host.untouched());
}

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
