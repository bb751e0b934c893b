#include "cli/text/number_field.h"

#include "cli/text/text.h"

#include <array>
#include <charconv>
#include <cmath>
#include <system_error>

namespace ZrProj::Command {
namespace {

/// Why a text that is no number is none. A decimal comma gets its own words: it is the commonest way to write one
/// wrong.
char const* whyNoNumber(std::string_view text) {
    if (text.empty())
        return "is empty";
    auto const comma = text.find(',');
    if (comma == std::string_view::npos || text.find_first_not_of("+-0123456789,") != std::string_view::npos)
        return "is not a number";
    return "is not a number (a decimal comma? write a point)";
}

} // namespace

Reading readNumber(std::string_view field) {
    std::string_view const text = trimmed(field);
    bool const plus = text.size() > 1 && text[0] == '+' && text[1] != '-';
    char const* const end = text.data() + text.size();
    double value = 0;
    auto const [rest, status] = std::from_chars(text.data() + (plus ? 1 : 0), end, value);
    if (status == std::errc::result_out_of_range && rest == end)
        return {0, "is out of a number's range"};
    if (status != std::errc() || rest != end)
        return {0, whyNoNumber(text)};
    if (!std::isfinite(value))
        return {0, "is not a finite number"};
    return {value, nullptr};
}

Reading readFlattening(std::string_view text) {
    std::string_view const number = trimmed(text);
    if (!number.starts_with("1/"))
        return readNumber(number);
    Reading inverse = readNumber(number.substr(2));
    inverse.value = 1 / inverse.value;
    return inverse;
}

std::string numberText(double value) {
    bool const readable = value == 0 || (std::fabs(value) >= 1e-9 && std::fabs(value) < 1e15);
    std::array<char, 48> buffer{};
    auto const format = readable ? std::chars_format::fixed : std::chars_format::general;
    return {buffer.data(), std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, format).ptr};
}

std::string flatteningText(double flattening) {
    if (flattening == 0)
        return "0 (a sphere)";
    return numberText(flattening) + " (1/" + numberText(1 / flattening) + ")";
}

} // namespace ZrProj::Command
