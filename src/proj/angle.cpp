// Angles as text. A part is degrees, minutes or seconds: the first, second and third of an angle.
#include "host/fpenv.h"
#include "host/text.h"

#include <zrproj/angle.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <optional>
#include <string_view>
#include <system_error>

namespace ZrProj {

namespace {

constexpr std::size_t partCount = 3;
constexpr std::array<double, partCount> partsPerDegree{1, 60, 3600};
constexpr int maxDecimals = 12;

struct Part {
    double value;
    bool hasFraction;
};

std::size_t digitCount(std::string_view text) {
    return std::min(text.find_first_not_of("0123456789"), text.size());
}

/// Takes digits, and a point followed by digits, off the text. Returns nothing where it does not begin so, and
/// for a number that no double holds.
std::optional<Part> takePart(std::string_view& text) {
    std::size_t length = digitCount(text);
    if (length == 0)
        return {};
    std::size_t const decimals = text.substr(length).starts_with('.') ? digitCount(text.substr(length + 1)) : 0;
    if (decimals > 0)
        length += 1 + decimals;
    Part part = {0, decimals > 0};
    if (std::from_chars(text.data(), text.data() + length, part.value).ec != std::errc{})
        return {};
    text.remove_prefix(length);
    return part;
}

bool takeMark(std::string_view& text, char mark) {
    if (text.empty() || asciiLower(text.front()) != asciiLower(mark))
        return false;
    text.remove_prefix(1);
    return true;
}

std::optional<double> readMagnitude(std::string_view text, char degreeLetter) {
    std::array const marks{degreeLetter, '\''};
    double degrees = 0;
    for (std::size_t i = 0; i < partCount; ++i) {
        std::optional<Part> const part = takePart(text);
        if (!part || (i > 0 && part->value >= 60))
            return {};
        degrees += part->value / partsPerDegree[i];
        bool const marked = i < marks.size() && takeMark(text, marks[i]);
        if (text.empty())
            return degrees;
        if (!marked || part->hasFraction)
            return {};
    }
    return {};
}

bool readAngle(char const* text, double* degrees, char degreeLetter) {
    std::string_view magnitude = text;
    bool const negative = takeMark(magnitude, '-');
    std::optional<double> const value = readMagnitude(magnitude, degreeLetter);
    if (value)
        *degrees = negative ? -*value : *value;
    return value.has_value();
}

/// An angle's text; long enough for the greatest double.
class AngleText {
public:
    void append(char c) { text_[length_++] = c; }

    void append(double value, int decimals) {
        char* const end = text_.data() + text_.size();
        char* const written = std::to_chars(text_.data() + length_, end, value, std::chars_format::fixed, decimals).ptr;
        length_ = static_cast<std::size_t>(written - text_.data());
    }

    std::string_view view() const { return {text_.data(), length_}; }

private:
    std::array<char, 400> text_ = {};
    std::size_t length_ = 0;
};

/// Whether a part of minutes or seconds comes out as 60 with that many decimals.
bool roundsTo60(double part, int decimals) {
    AngleText text;
    text.append(part, decimals);
    return text.view().starts_with("60");
}

/// The parts of an angle of no sign up to the last one, none of which comes out as 60.
std::array<double, partCount> splitAngle(double degrees, std::size_t last, int decimals) {
    std::array<double, partCount> parts = {};
    parts[0] = degrees;
    for (std::size_t i = 0; i < last; ++i) {
        double const whole = std::trunc(parts[i]);
        parts[i + 1] = (parts[i] - whole) * 60;
        parts[i] = whole;
    }
    for (std::size_t i = last; i > 0; --i) {
        if (roundsTo60(parts[i], decimals)) {
            parts[i] = 0;
            parts[i - 1] += 1;
        }
    }
    return parts;
}

AngleText magnitudeText(double degrees, std::size_t last, int decimals, char degreeLetter) {
    std::array const marks{degreeLetter, '\''};
    std::array const parts = splitAngle(degrees, last, decimals);
    AngleText text;
    for (std::size_t i = 0; i < last; ++i) {
        text.append(parts[i], 0);
        text.append(marks[i]);
    }
    text.append(parts[last], decimals);
    return text;
}

/// Digits and the point would be read as part of the degrees, and a null ends the text.
bool canMarkDegrees(char letter) {
    return !isAsciiDigit(letter) && letter != '.' && letter != '\0';
}

bool writeAngle(double degrees, char* buffer, int bufferSize, AngleTextFormat format, int decimals, char degreeLetter) {
    if (!std::isfinite(degrees))
        return false;
    AngleText const text = magnitudeText(std::fabs(degrees), static_cast<std::size_t>(format), decimals, degreeLetter);
    bool const negative = degrees < 0 && text.view().find_first_of("123456789") != std::string_view::npos;
    int const length = static_cast<int>(text.view().size()) + (negative ? 1 : 0);
    if (length >= bufferSize)
        return false;
    *buffer = '-';
    copyText(buffer + (negative ? 1 : 0), text.view());
    return true;
}

} // namespace

bool LatLonToDegrees(char const* text, double* degrees, char degreeLetter) {
    return text && degrees && withDefaultFloatingPoint([=] { return readAngle(text, degrees, degreeLetter); });
}

bool DegreesToLatLon(double degrees, char* buffer, int bufferSize, AngleTextFormat format, int decimals,
                     char degreeLetter) {
    bool const formatGood = format >= AngleTextFormatDegrees && format <= AngleTextFormatDegreesMinutesSeconds;
    bool const letterGood = format == AngleTextFormatDegrees || canMarkDegrees(degreeLetter);
    return buffer && formatGood && letterGood && decimals >= 0 && decimals <= maxDecimals &&
           withDefaultFloatingPoint(
               [=] { return writeAngle(degrees, buffer, bufferSize, format, decimals, degreeLetter); });
}

} // namespace ZrProj
