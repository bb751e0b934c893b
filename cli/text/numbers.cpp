#include "cli/text/numbers.h"

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

namespace {

constexpr char const* notAnAngle = "is not an angle";

enum Part { Degrees, Minutes, Seconds };

struct Mark {
    Part part;
    std::string_view text;
};

// clang-format off
constexpr std::array marks{
    Mark{Degrees, "d"},
    Mark{Degrees, "D"},
    Mark{Degrees, ":"},
    Mark{Degrees, "\xC2\xB0"},                 // degree sign
    Mark{Degrees, "\xC2\xBA"},                 // ordinal indicator, which looks like one
    Mark{Degrees, "\xB0"},                     // degree sign of the 8-bit character sets
    Mark{Minutes, "m"},
    Mark{Minutes, "M"},
    Mark{Minutes, ":"},
    Mark{Minutes, "'"},
    Mark{Minutes, "\xE2\x80\xB2"},             // prime
    Mark{Minutes, "\xE2\x80\x99"},             // closing quotation mark
    Mark{Seconds, "\""},
    Mark{Seconds, "''"},
    Mark{Seconds, "\xE2\x80\xB3"},             // double prime
    Mark{Seconds, "\xE2\x80\x9D"},             // closing double quotation mark
    Mark{Seconds, "\xE2\x80\xB2\xE2\x80\xB2"}, // two primes
    Mark{Seconds, "\xE2\x80\x99\xE2\x80\x99"}, // two closing quotation marks
};
// clang-format on

constexpr std::string_view minusSign = "\xE2\x88\x92"; // the typographic one

/// The hemisphere letter that a text begins with, in upper case; 0 where there is none.
char hemisphereAt(std::string_view text) {
    constexpr std::string_view letters = "NSEWnsew";
    if (text.empty() || letters.find(text.front()) == std::string_view::npos)
        return 0;
    return letters[letters.find(text.front()) % 4];
}

/// Takes one angle apart, from its front to its end; the first fault found stays.
class AngleParser {
public:
    explicit AngleParser(std::string_view text) : m_rest(trimmed(text)) {}
    Reading read(Axis axis);

private:
    bool skip(std::string_view text);
    void fault(char const* reason) { m_fault = m_fault ? m_fault : reason; }
    void takeHemisphere();
    void takeSign();
    bool takePart(Part part);
    void takeNumber(Part part);
    void takeMark(Part part);
    void takeSecondsLetter();
    void check(Axis axis);
    double degrees() const { return m_parts[Degrees] + m_parts[Minutes] / 60 + m_parts[Seconds] / 3600; }

    std::string_view m_rest;
    char const* m_fault = nullptr;
    std::array<double, 3> m_parts{};
    bool m_signed = false;
    bool m_negative = false;
    bool m_fraction = false; // whether the last part read had one
    std::string_view m_mark; // after the last part read
    char m_minuteLetter = 0; // m or M where that marked the minutes
    char m_hemisphere = 0;   // N, S, E, W, or 0
};

bool AngleParser::skip(std::string_view text) {
    if (!m_rest.starts_with(text))
        return false;
    m_rest = trimmed(m_rest.substr(text.size()));
    return true;
}

Reading AngleParser::read(Axis axis) {
    takeHemisphere();
    takeSign();
    for (Part part : {Degrees, Minutes, Seconds})
        if (!takePart(part))
            break;
    takeHemisphere();
    if (!m_rest.empty())
        fault(notAnAngle);
    check(axis);
    bool const negative = m_negative || m_hemisphere == 'S' || m_hemisphere == 'W';
    return {negative ? -degrees() : degrees(), m_fault};
}

void AngleParser::takeHemisphere() {
    char const letter = m_hemisphere ? char(0) : hemisphereAt(m_rest);
    if (letter) {
        m_hemisphere = letter;
        skip(m_rest.substr(0, 1));
    }
}

void AngleParser::takeSign() {
    m_negative = skip("-") || skip(minusSign);
    m_signed = m_negative || skip("+");
}

/// Takes the number and the mark of a part; false where the angle has no such part.
bool AngleParser::takePart(Part part) {
    if (m_rest.empty() || !(isDigit(m_rest.front()) || m_rest.front() == '.')) {
        if (part == Degrees || m_mark == ":")
            fault(notAnAngle);
        return false;
    }
    if (part != Degrees && m_fraction)
        fault("has a fraction before its last part");
    if (part != Degrees && m_mark.empty())
        fault(notAnAngle);
    takeNumber(part);
    takeMark(part);
    return true;
}

void AngleParser::takeNumber(Part part) {
    double& value = m_parts[part];
    auto const [end, status] =
        std::from_chars(m_rest.data(), m_rest.data() + m_rest.size(), value, std::chars_format::fixed);
    auto const length = static_cast<std::size_t>(end - m_rest.data());
    if (status != std::errc())
        fault(notAnAngle);
    if (part != Degrees && value >= 60)
        fault("has minutes or seconds of 60 or more");
    m_fraction = m_rest.substr(0, length).find('.') != std::string_view::npos;
    m_rest = trimmed(m_rest.substr(length));
}

void AngleParser::takeMark(Part part) {
    m_mark = {};
    for (Mark const& mark : marks)
        if (mark.part == part && skip(mark.text)) {
            m_mark = mark.text;
            break;
        }
    if (part == Minutes && !m_mark.empty() && isLetter(m_mark.front()))
        m_minuteLetter = m_mark.front();
    if (part == Seconds && m_mark.empty())
        takeSecondsLetter();
}

/// An s after seconds: their mark where another letter tells the hemisphere, or where the minutes had a small m; south
/// where it is a capital after any other mark; and a riddle elsewhere.
void AngleParser::takeSecondsLetter() {
    if (hemisphereAt(m_rest) != 'S')
        return;
    char const letter = m_rest.front();
    bool const hemisphereElsewhere = m_hemisphere || hemisphereAt(trimmed(m_rest.substr(1)));
    if (hemisphereElsewhere || (letter == 's' && m_minuteLetter == 'm'))
        skip(m_rest.substr(0, 1));
    else if (letter == 's' || m_minuteLetter == 'M')
        fault("ends in an s that may mean seconds or south");
}

void AngleParser::check(Axis axis) {
    if (m_hemisphere && axis == Axis::Azimuth)
        fault(notAnAngle);
    bool const northOrSouth = m_hemisphere == 'N' || m_hemisphere == 'S';
    if (axis == Axis::Longitude && northOrSouth)
        fault("has a latitude's letter");
    if (axis == Axis::Latitude && m_hemisphere && !northOrSouth)
        fault("has a longitude's letter");
    if (m_hemisphere && m_signed)
        fault("has both a sign and a letter");
}

Reading withinRange(Reading angle, Axis axis) {
    double const limit = axis == Axis::Latitude ? 90 : 360;
    if (!angle.error && !(angle.value >= -limit && angle.value <= limit))
        angle.error = axis == Axis::Latitude ? "is out of range (-90 to 90)" : "is out of range (-360 to 360)";
    return angle;
}

} // namespace

Reading readAngle(std::string_view field, Axis axis) {
    Reading angle = readNumber(field);
    if (angle.error && field.find_first_of("0123456789") != std::string_view::npos) {
        Reading const parts = AngleParser(field).read(axis);
        if (parts.error != notAnAngle || field.find(',') == std::string_view::npos)
            angle = parts;
    }
    return withinRange(angle, axis);
}

} // namespace ZrProj::Command
