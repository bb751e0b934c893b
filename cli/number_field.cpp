#include "cli/number_field.h"

#include "cli/text.h"

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

} // namespace ZrProj::Command
