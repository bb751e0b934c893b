#include "files/number_text.h"

#include "files/blanks.h"
#include "host/fpenv.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <limits>
#include <system_error>

namespace ZrProj {

namespace {

constexpr int significantDigits = 15;

constexpr char asciiUpper(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

/// A number without the blanks and the plus sign before it, which from_chars does not take.
std::string_view withoutPlus(std::string_view text) {
    text = skipBlanks(text);
    if (!text.starts_with('+'))
        return text;
    text.remove_prefix(1);
    return text.starts_with('-') ? std::string_view() : text;
}

/// What a decimal number beyond the range of doubles stands for. Its digits alone are too few to leave the range, so
/// the exponent's sign tells on which side it did.
double beyondRange(std::string_view number) {
    double const magnitude = number.find("e-") != std::string_view::npos || number.find("E-") != std::string_view::npos
                                 ? 0
                                 : std::numeric_limits<double>::infinity();
    return number.starts_with('-') ? -magnitude : magnitude;
}

} // namespace

void appendNumber(std::string& text, double value) {
    std::array<char, 32> digits = {};
    char* const end = withDefaultFloatingPoint([&] {
        return std::to_chars(digits.data(), digits.data() + digits.size(), value, std::chars_format::general,
                             significantDigits)
            .ptr;
    });
    std::transform(digits.data(), end, digits.data(), asciiUpper);
    text.append(digits.data(), end);
}

double readNumber(std::string_view text) {
    text = withoutPlus(text);
    double value = 0;
    auto const [end, error] = withDefaultFloatingPoint(
        [&] { return std::from_chars(text.data(), text.data() + text.size(), value, std::chars_format::general); });
    if (error == std::errc::result_out_of_range)
        return beyondRange(std::string_view(text.data(), end));
    return value;
}

int readInteger(std::string_view text) {
    text = withoutPlus(text);
    int value = 0;
    auto const error = std::from_chars(text.data(), text.data() + text.size(), value).ec;
    if (error != std::errc::result_out_of_range)
        return value;
    return text.starts_with('-') ? std::numeric_limits<int>::min() : std::numeric_limits<int>::max();
}

} // namespace ZrProj
