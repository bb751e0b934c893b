#include "cli/projection/utm_zone.h"

#include "cli/text/text.h"

#include <array>
#include <cmath>
#include <string>

namespace ZrProj::Command {
namespace {

/// A zone's text down to what tells it: "Zone 17N (084W to 078W)" is "17n".
std::string essence(std::string_view text) {
    std::string result = squeezed(text.substr(0, text.find('(')));
    for (std::string_view prefix : {"utm", "zone"})
        if (result.starts_with(prefix))
            result.erase(0, prefix.size());
    return result;
}

std::array<std::string, utmZones> zoneNames() {
    std::array<std::string, utmZones> names;
    for (UtmZone zone = 0; zone < utmZones; ++zone) {
        std::array<char, 16> name{}; // "Zone 17N"
        ProjUTMZoneNumberToName(zoneNumber(zone), isSouth(zone), name.data(), static_cast<int>(name.size()),
                                UTMZoneNameFormatShort);
        names[static_cast<std::size_t>(zone)] = std::string_view(name.data()).substr(5);
    }
    return names;
}

} // namespace

std::optional<UtmZone> readUtmZone(std::string_view text) {
    if (text.find_first_of("+-.") < text.find('('))
        return std::nullopt;
    std::string const zone = essence(text);
    std::size_t const digits = std::min(zone.find_first_not_of("0123456789"), zone.size());
    std::string_view const letter = std::string_view(zone).substr(digits);
    if (digits < 1 || digits > 2 || !(letter.empty() || letter == "n" || letter == "s"))
        return std::nullopt;
    int number = std::stoi(zone);
    bool south = false;
    if (number < 1 || number > 60 || !ProjUTMZoneNameToNumber(zone.c_str(), &number, &south))
        return std::nullopt;
    return utmZone(number, south);
}

UtmZone utmZoneOf(PROJPOINT point) {
    // The library truncates; whole degrees, rounded down, are the same to it and to us.
    double const degrees = std::floor(std::remainder(point.x, 360));
    return utmZone(ProjUTMLonToZoneNumber(degrees), point.y < 0);
}

std::string_view utmZoneName(UtmZone zone) {
    static std::array<std::string, utmZones> const names = zoneNames();
    return names[static_cast<std::size_t>(zone)];
}

void setUtmZone(PROJDATA& record, UtmZone zone) {
    record.Type = ProjTypeUniversalTransverseMercator;
    record.Lon0 = ProjUTMZoneNumberToLon(zoneNumber(zone));
    record.bSouth = isSouth(zone);
}

} // namespace ZrProj::Command
