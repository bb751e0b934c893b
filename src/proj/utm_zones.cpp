// UTM zones: 60 of 6 degrees each, zone 1 from 180 to 174 west. Remainders keep the sign of the dividend.
#include "host/fpenv.h"
#include "host/text.h"

#include <zrproj/zones.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string_view>

namespace ZrProj {

namespace {

/// A zone number brought to 1 to 60, for numbers from -3599 on.
constexpr int wrapZone(std::int64_t zone) {
    return static_cast<int>((zone + 3599) % 60) + 1;
}

constexpr int centralMeridian(int zone) {
    return wrapZone(zone) * 6 - 183;
}

int zoneOfLongitude(double lon) {
    if (!std::isfinite(lon))
        return 0;
    // ((whole + 129780) mod 360) / 6 + 1, in numbers that stay exact however far the longitude is: -180 and 540 equal
    // 129780 modulo 360, and leave the sum's sign as it is.
    double const whole = std::trunc(lon);
    double const sum = std::fmod(whole, 360) + (whole < -129780 ? -180 : 540);
    return static_cast<int>(std::fmod(sum, 360)) / 6 + 1;
}

constexpr char letterOf(int longitude) {
    return longitude < 0 ? 'W' : 'E';
}

using ZoneName = std::array<char, 80>;

/// The name's length; -1 for a format that is none.
int writeZoneName(ZoneName& name, int zone, bool south, UTMZoneNameFormat format) {
    int const west = centralMeridian(zone) - 3;
    int const east = centralMeridian(zone) + 3;
    char const hemisphere = south ? 'S' : 'N';
    switch (format) {
    case UTMZoneNameFormatShort:
        return std::snprintf(name.data(), name.size(), "Zone %02d%c", zone, hemisphere);
    case UTMZoneNameFormatLetter:
        return std::snprintf(name.data(), name.size(), "Zone %02d%c (%03d%c to %03d%c)", zone, hemisphere,
                             std::abs(west), letterOf(west), std::abs(east), letterOf(east));
    case UTMZoneNameFormatSign:
        return std::snprintf(name.data(), name.size(), "Zone %02d%c (%+03d to %+03d)", zone, hemisphere, west, east);
    }
    return -1;
}

void skipBlanks(std::string_view& text) {
    while (text.starts_with(' ') || text.starts_with('\t'))
        text.remove_prefix(1);
}

/// Takes the digits off the text. A long number is kept small by multiples of 60, which name the same zone, and above
/// 3599, where a minus sign turns the remainder's sign.
std::int64_t takeNumber(std::string_view& text) {
    std::int64_t number = 0;
    for (; !text.empty() && isAsciiDigit(text.front()); text.remove_prefix(1)) {
        number = number * 10 + (text.front() - '0');
        if (number > 1'000'000)
            number = 3600 + number % 60;
    }
    return number;
}

} // namespace

double ProjUTMZoneNumberToLon(int zone) {
    return centralMeridian(zone);
}

int ProjUTMLonToZoneNumber(double lon) {
    return withDefaultFloatingPoint([lon] { return zoneOfLongitude(lon); });
}

bool ProjUTMZoneNumberToName(int zone, bool south, char* buffer, int bufferSize, UTMZoneNameFormat format) {
    ZoneName name = {};
    int const length = writeZoneName(name, wrapZone(zone), south, format);
    if (!buffer || length < 0 || length >= bufferSize)
        return false;
    copyText(buffer, name.data());
    return true;
}

bool ProjUTMZoneNameToNumber(char const* name, int* zone, bool* south) {
    if (!name)
        return false;
    std::string_view text = name;
    text.remove_prefix(std::min(text.find_first_of("0123456789+-"), text.size()));
    bool const negative = text.starts_with('-');
    if (negative || text.starts_with('+'))
        text.remove_prefix(1);
    skipBlanks(text);
    if (text.empty() || !isAsciiDigit(text.front()))
        return false;
    std::int64_t const number = takeNumber(text);
    skipBlanks(text);
    if (zone)
        *zone = wrapZone(negative ? -number : number);
    if (south)
        *south = !text.empty() && asciiLower(text.front()) == 's';
    return true;
}

} // namespace ZrProj
