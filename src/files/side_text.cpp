#include "files/side_text.h"

#include "host/fpenv.h"

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

bool readLine(std::FILE& file, TextLine& line) {
    line.clear();
    for (int c = std::getc(&file); c != EOF; c = std::getc(&file)) {
        if (c == '\n')
            return true;
        if (c == '\r')
            continue;
        if (line.isFull()) {
            static_cast<void>(std::ungetc(c, &file));
            return true;
        }
        line.append(static_cast<char>(c));
    }
    return false;
}

std::optional<std::string_view> takeToken(std::string_view& text) {
    text = skipBlanks(text);
    if (text.empty())
        return {};
    bool const quoted = text.front() == '\'' || text.front() == '"';
    if (quoted)
        text.remove_prefix(1);
    // A double quotation mark, too, is closed by a single one.
    std::size_t const end = std::min(quoted ? text.find('\'') : text.find_first_of(blanks), text.size());
    std::string_view const token = text.substr(0, end);
    text.remove_prefix(std::min(end + (quoted ? 1 : 0), text.size()));
    text = skipBlanks(text);
    return token;
}

} // namespace ZrProj
