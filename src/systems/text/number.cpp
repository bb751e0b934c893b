#include "systems/text/number.h"

#include "host/fpenv.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <system_error>

namespace ZrProj::systems {

namespace {

/// What one multiplication and one division by a unit's factor may leave.
constexpr double unitRounding = 3 * std::numeric_limits<double>::epsilon();

template <class... Format> std::string digitsOf(double value, Format... format) {
    std::array<char, 40> digits = {};
    char* const end = withDefaultFloatingPoint(
        [&] { return std::to_chars(digits.data(), digits.data() + digits.size(), value, format...).ptr; });
    return {digits.data(), end};
}

} // namespace

std::optional<LeadingNumber> leadingNumber(std::string_view text) {
    std::size_t const sign = text.starts_with('+') ? 1 : 0;
    std::string_view const digits = text.substr(sign);
    if (sign && digits.starts_with('-'))
        return {};
    double value = 0;
    auto const [end, error] =
        withDefaultFloatingPoint([&] { return std::from_chars(digits.data(), digits.data() + digits.size(), value); });
    if (error != std::errc() || !std::isfinite(value))
        return {};
    return LeadingNumber{value, sign + static_cast<std::size_t>(end - digits.data())};
}

std::optional<double> wholeNumber(std::string_view text) {
    auto const number = leadingNumber(text);
    if (!number || number->length != text.size())
        return {};
    return number->value;
}

std::string numberText(double value) {
    if (value == 0)
        return "0";
    std::string const text = digitsOf(value, std::chars_format::general, 15);
    double const said = wholeNumber(text).value_or(0);
    return std::abs(said - value) <= unitRounding * std::abs(value) ? text : digitsOf(value);
}

} // namespace ZrProj::systems
