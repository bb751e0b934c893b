// UTM zones, and angles as text.
#include "door/answer.h"
#include "host/text.h"

#include <zrproj/angle.h>
#include <zrproj/zones.h>

#include <array>

using namespace ZrProj;
using namespace ZrProj::Door;

namespace {

constexpr int firstZone = 1, lastZone = 60;

/// A zone's text down to what tells it: "Zone 17N (084W to 078W)" is "17n".
std::string essence(std::string_view text) {
    std::string result;
    for (char const c : text.substr(0, text.find('(')))
        if (std::string_view(" \t_/").find(c) == std::string_view::npos)
            result += asciiLower(c);
    for (std::string_view const prefix : {"utm", "zone"})
        if (result.starts_with(prefix))
            result.erase(0, prefix.size());
    return result;
}

Answer readUtm(std::string_view text, int* zone, int* south) {
    std::string const name = essence(text);
    std::size_t const digits = std::min(name.find_first_not_of("0123456789"), name.size());
    std::string_view const letter = std::string_view(name).substr(digits);
    bool const isRead = digits >= 1 && digits <= 2 && (letter.empty() || letter == "n" || letter == "s");
    int const number = isRead ? std::stoi(name) : 0;
    if (number < firstZone || number > lastZone)
        return unknown(inQuotes(text) + " is no UTM zone");
    give(zone, number);
    give(south, letter == "s" ? 1 : 0);
    return {};
}

} // namespace

zrproj_status zrproj_utm_zone(double longitude, double latitude, int* zone, int* south) {
    return answer([&]() -> Answer {
        if (!std::isfinite(longitude) || !(std::fabs(latitude) <= 90))
            return badArgument("no place");
        // The library truncates; whole degrees, rounded down, are the same to it and to us.
        give(zone, ProjUTMLonToZoneNumber(std::floor(std::remainder(longitude, 360))));
        give(south, latitude < 0 ? 1 : 0);
        return {};
    });
}

zrproj_status zrproj_utm_meridian(int zone, double* longitude) {
    return answer([&]() -> Answer {
        if (zone < firstZone || zone > lastZone || !longitude)
            return badArgument("UTM zones are 1 to 60");
        *longitude = ProjUTMZoneNumberToLon(zone);
        return {};
    });
}

zrproj_status zrproj_utm_read(char const* text, int* zone, int* south) {
    return answer([&] { return text ? readUtm(text, zone, south) : badArgument("null pointer to a text"); });
}

zrproj_status zrproj_angle_read(char const* text, double* degrees) {
    return answer([&]() -> Answer {
        if (!text || !degrees)
            return badArgument("null pointer");
        return LatLonToDegrees(text, degrees, 'd') ? Answer{} : badDefinition(inQuotes(text) + " is no angle");
    });
}

zrproj_status zrproj_angle_write(double degrees, int parts, int decimals, char* buffer, size_t size, size_t* length) {
    return answer([&] {
        std::array<char, 512> text{};
        bool const isWritten = parts >= 1 && DegreesToLatLon(degrees, text.data(), static_cast<int>(text.size()),
                                                             static_cast<AngleTextFormat>(parts - 1), decimals, 'd');
        return isWritten ? giveText(text.data(), buffer, size, length)
                         : badArgument("the angle is not finite, or not 1 to 3 parts, or not 0 to 12 decimals");
    });
}
