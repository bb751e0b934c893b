// UTM and State Plane zones as the command's user names them.
#pragma once

#include <zrproj/zrproj.h>

#include <optional>
#include <string>
#include <string_view>

namespace ZrProj::Command {

/// All zones in one number, 0 to 119: the north of zone 1, its south, the north of zone 2, ...
using UtmZone = int;
inline constexpr int utmZones = 120;

constexpr int zoneNumber(UtmZone zone) {
    return zone / 2 + 1;
}
constexpr bool isSouth(UtmZone zone) {
    return zone % 2 != 0;
}
constexpr UtmZone utmZone(int number, bool south) {
    return 2 * (number - 1) + (south ? 1 : 0);
}

/// Reads "17N", "17 s", "Zone 17N", "UTM 17N", and the longer names that the library writes. A number alone is in the
/// north. Nothing for numbers outside 1 to 60 and for other letters (33U is a grid square's band, not a hemisphere).
std::optional<UtmZone> readUtmZone(std::string_view text);

/// The zone of a point: six degrees of longitude each, without the exceptions around Norway and Svalbard.
UtmZone utmZoneOf(PROJPOINT point);

/// "17N"; good for the life of the program.
std::string_view utmZoneName(UtmZone zone);

/// Sets what makes a record this zone's.
void setUtmZone(PROJDATA& record, UtmZone zone);

/// A zone in one of its definitions: type ProjTypeStatePlane1927 or ProjTypeStatePlane1983.
struct StatePlaneZone {
    ProjType type;
    StateZoneType zone;
};

/// Finds a zone by its name or a part of it, or by its USGS or POSC code. A POSC code tells the year, too.
/// year: 1927 or 1983 where the user gave it; else 1983 counts.
/// Throws UsageError when there is no such zone, or it has no definition for the year.
StatePlaneZone findStatePlaneZone(std::string_view text, std::optional<int> year);

std::string zoneName(StateZoneType zone);

/// The projection that defines the zone. Nothing when it has no definition for the year.
std::optional<PROJDATA> zoneDefinition(StatePlaneZone zone);

} // namespace ZrProj::Command
