#include "cli/model/zones.h"

#include "cli/text/name_match.h"
#include "cli/text/text.h"
#include "cli/text/usage_error.h"

#include <zrproj/c.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <string>
#include <vector>

namespace ZrProj::Command {
namespace {

std::array<std::string, utmZones> utmZoneNames() {
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
    int zone = 0, south = 0;
    if (zrproj_utm_read(std::string(text).c_str(), &zone, &south) != ZRPROJ_OK)
        return std::nullopt;
    return utmZone(zone, south != 0);
}

/// Any zone will do for what is no place.
UtmZone utmZoneOf(PROJPOINT point) {
    int zone = 1, south = 0;
    zrproj_utm_zone(point.x, point.y, &zone, &south);
    return utmZone(zone, south != 0);
}

std::string_view utmZoneName(UtmZone zone) {
    static std::array<std::string, utmZones> const names = utmZoneNames();
    return names[static_cast<std::size_t>(zone)];
}

void setUtmZone(PROJDATA& record, UtmZone zone) {
    record.Type = ProjTypeUniversalTransverseMercator;
    record.Lon0 = ProjUTMZoneNumberToLon(zoneNumber(zone));
    record.bSouth = isSouth(zone);
}

namespace {

constexpr char const* listCommand = "zrproj list zones";

int yearOf(ProjType type) {
    return type == ProjTypeStatePlane1927 ? 1927 : 1983;
}
ProjType typeOf(int year) {
    return year == 1927 ? ProjTypeStatePlane1927 : ProjTypeStatePlane1983;
}
ProjType otherYear(ProjType type) {
    return typeOf(yearOf(type) == 1927 ? 1983 : 1927);
}

std::vector<std::string> statePlaneNames() {
    std::vector<std::string> names(StateZoneTypeNone);
    std::generate(names.begin(), names.end(),
                  [zone = 0]() mutable { return zoneName(static_cast<StateZoneType>(zone++)); });
    return names;
}

/// The zone, if it is defined for its year.
StatePlaneZone defined(StatePlaneZone zone) {
    if (zoneDefinition(zone))
        return zone;
    std::string message = "the zone " + inQuotes(zoneName(zone.zone)) + " has no definition of ";
    message += std::to_string(yearOf(zone.type));
    if (zoneDefinition({otherYear(zone.type), zone.zone}))
        message += "; give --year " + std::to_string(yearOf(otherYear(zone.type)));
    throw UsageError(message);
}

StatePlaneZone findByName(std::string_view text, ProjType type) {
    std::vector<std::string> const names = statePlaneNames();
    NameMatch result = matchName(text, names);
    if (result.match == Match::Several) { // perhaps only one of them is defined for the year
        auto const undefined = [&](int zone) { return !zoneDefinition({type, static_cast<StateZoneType>(zone)}); };
        std::vector<int> inYear = result.found;
        inYear.erase(std::remove_if(inYear.begin(), inYear.end(), undefined), inYear.end());
        if (!inYear.empty())
            result = {inYear.size() == 1 ? Match::One : Match::Several, inYear};
    }
    if (result.match != Match::One)
        throw UsageError(explainMismatch("State Plane zone", text, names, result, listCommand));
    return defined({type, static_cast<StateZoneType>(result.found.front())});
}

/// The zone of a POSC code. A few codes stand at two zones; the one that is defined counts.
std::optional<StatePlaneZone> findByPosc(int code) {
    StatePlaneZone first{};
    if (!ProjGetStateZoneFromPOSCNumber(code, &first.type, &first.zone))
        return std::nullopt;
    for (int zone = first.zone; zone < StateZoneTypeNone; ++zone) {
        StatePlaneZone const candidate{first.type, static_cast<StateZoneType>(zone)};
        int candidateCode = 0;
        if (ProjStateZoneToPOSCNumber(candidate.type, candidate.zone, &candidateCode) && candidateCode == code &&
            zoneDefinition(candidate))
            return candidate;
    }
    return first;
}

StatePlaneZone findByCode(int code, std::optional<int> year) {
    StateZoneType zone{};
    if (code > 0 && ProjGetStateZoneFromUSGSCode(&zone, code))
        return defined({typeOf(year.value_or(1983)), zone});
    auto const found = findByPosc(code);
    if (!found)
        throw UsageError("no State Plane zone has the USGS or POSC code " + std::to_string(code) + "; \"" +
                         listCommand + "\" lists them");
    if (year && *year != yearOf(found->type))
        throw UsageError("the POSC code " + std::to_string(code) + " is that of a definition of " +
                         std::to_string(yearOf(found->type)) + ", not of " + std::to_string(*year));
    return defined(*found);
}

} // namespace

StatePlaneZone findStatePlaneZone(std::string_view text, std::optional<int> year) {
    int code = 0;
    auto const [end, status] = std::from_chars(text.data(), text.data() + text.size(), code);
    if (status == std::errc() && end == text.data() + text.size())
        return findByCode(code, year);
    return findByName(text, typeOf(year.value_or(1983)));
}

std::string zoneName(StateZoneType zone) {
    std::array<char, 64> name{};
    ProjGetStateZoneInfo(zone, name.data(), nullptr);
    return name.data();
}

std::optional<PROJDATA> zoneDefinition(StatePlaneZone zone) {
    PROJDATA record = {};
    record.Type = zone.type;
    record.Zone = zone.zone;
    ProjGetStateZoneParams(&record);
    if (record.Zone == StateZoneTypeNone)
        return std::nullopt;
    return record;
}

} // namespace ZrProj::Command
