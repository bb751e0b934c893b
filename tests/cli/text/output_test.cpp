#include "cli/text/output.h"

#include <gtest/gtest.h>

#include <array>
#include <cerrno>
#include <cmath>
#include <cstdio>

#include <fcntl.h>
#include <unistd.h>

namespace ZrProj::Command {
namespace {

std::string fixed(double value, int decimals) {
    std::string text;
    appendFixed(text, value, decimals);
    return text;
}

/// As the C library rounds the exact value, but for "-0".
std::string expected(double value, int decimals) {
    std::array<char, 400> buffer;
    std::snprintf(buffer.data(), buffer.size(), "%.*f", decimals, value);
    std::string text = buffer.data();
    return text.find_first_not_of("-0.") == std::string::npos && text[0] == '-' ? text.substr(1) : text;
}

TEST(Output, NumbersAreRoundedAsTheirExactValuesAre) {
    for (double value :
         {0.0, -0.0, 0.0005, -0.0005, 0.5, 1.5, 2.5, 2.675, 1.005, 9.9995, 999999.9995, 0.1249999999999999, 0x1p45,
          0x1p45 - 0.0009765625, 4503599627370497.5, 1e15, 1e300, -1e300, 5e-324})
        for (int decimals = 0; decimals <= 15; ++decimals)
            EXPECT_EQ(fixed(value, decimals), expected(value, decimals)) << value << ' ' << decimals;
    for (int i = 0; i < 200000; ++i) {
        int const decimals = i % 16;
        double value = 2e7 * std::remainder(i * 0.6180339887498949, 1); // spread over the range
        if (i % 3 == 0)                                                 // a tie, or what is nearest to one
            value = (std::trunc(value) + 0.5) / 1000;
        ASSERT_EQ(fixed(value, decimals), expected(value, decimals)) << value << ' ' << decimals;
    }
}

TEST(Output, TheFirstFailedWriteStays) {
    int const full = open("/dev/full", O_WRONLY);
    ASSERT_GE(full, 0);
    Output output(full);
    output << "text";
    EXPECT_FALSE(output.flush());
    EXPECT_EQ(output.error(), ENOSPC);
    EXPECT_FALSE(output.flush());
    close(full);
}

} // namespace
} // namespace ZrProj::Command
