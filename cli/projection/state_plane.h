// State Plane zones as the command's user names them.
#pragma once

#include <zrproj/zrproj.h>

#include <optional>
#include <string>
#include <string_view>

namespace ZrProj::Command {

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
