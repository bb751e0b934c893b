#include "files/geotiff/zones.h"

#include "files/geotiff/state_plane_table.h"
#include "files/geotiff/utm_table.h"
#include "proj/record.h"

#include <algorithm>
#include <array>

namespace ZrProj::GeoTIFF {
namespace {

constexpr std::uint16_t nad27 = 4267, nad83 = 4269;
/// Zones whose catalogue number means another definition, by the number that theirs has; 0 where it has none. (The old
/// zones of Michigan stand in the registry on an ellipsoid of their own.)
struct Corrected {
    std::uint16_t code;
    ProjType type;
    StateZoneType zone;
};

constexpr std::array correctedZones{
    Corrected{0, ProjTypeStatePlane1927, StateZoneTypeMichiganEastOld},
    Corrected{0, ProjTypeStatePlane1927, StateZoneTypeMichiganCentralOld},
    Corrected{0, ProjTypeStatePlane1927, StateZoneTypeMichiganWestOld},
    Corrected{26799, ProjTypeStatePlane1927, StateZoneTypeCaliforniaVII},
    Corrected{4456, ProjTypeStatePlane1927, StateZoneTypeNewYorkLongIsland},
    Corrected{2204, ProjTypeStatePlane1927, StateZoneTypeTennessee},
    Corrected{4455, ProjTypeStatePlane1927, StateZoneTypePennsylvaniaSouth},
    Corrected{2205, ProjTypeStatePlane1983, StateZoneTypeKentuckyNorth},
};

// The catalogue has this number at another zone, which is defined for 1927 only.
constexpr std::uint16_t puertoRico1983 = 32161;

PROJDATA utmRecord(int zone, bool south) {
    PROJDATA record = {};
    record.Type = ProjTypeUniversalTransverseMercator;
    record.Lon0 = ProjUTMZoneNumberToLon(zone);
    record.K0 = 0.9996;
    record.xOrg = 500000;
    record.yOrg = south ? 10000000 : 0;
    record.bSouth = south;
    return record;
}

/// A State Plane record for a zone of 1927 or 1983; nothing where that has no definition.
std::optional<PROJDATA> statePlaneRecord(ProjType type, StateZoneType zone) {
    PROJDATA record = {};
    record.Type = type;
    record.Zone = zone;
    PROJDATA scratch = record;
    ProjGetStateZoneParams(&scratch);
    if (scratch.Zone == StateZoneTypeNone)
        return std::nullopt;
    record.Ellipsoid = type == ProjTypeStatePlane1927 ? EllipsoidTypeClarke1866 : EllipsoidTypeGrs1980Iugg1980;
    record.MajorRadius = EllipsoidRadius(record.Ellipsoid);
    record.Flattening = EllipsoidFlattening(record.Ellipsoid);
    return record;
}

bool isCorrected(ProjType type, StateZoneType zone) {
    return std::ranges::any_of(correctedZones,
                               [&](Corrected const& row) { return row.type == type && row.zone == zone; });
}

/// The number that means the zone's definition; 0 where there is none.
int poscOf(ProjType type, StateZoneType zone) {
    if (isCorrected(type, zone))
        return 0;
    if (type == ProjTypeStatePlane1983 && zone == StateZoneTypePuertoRicoAndVirginIslands1983)
        return puertoRico1983;
    int posc = 0;
    return ProjStateZoneToPOSCNumber(type, zone, &posc) ? posc : 0;
}

/// The first zone that is defined for the type and has the number that `numberOf` gives it.
template <class NumberOf> std::optional<PROJDATA> statePlaneZone(ProjType type, int number, NumberOf numberOf) {
    for (std::int32_t i = 0; i < StateZoneTypeNone; ++i)
        if (numberOf(static_cast<StateZoneType>(i)) == number)
            if (auto const record = statePlaneRecord(type, static_cast<StateZoneType>(i)))
                return record;
    return std::nullopt;
}

std::optional<PROJDATA> statePlaneOfPosc(ProjType type, int posc) {
    return statePlaneZone(type, posc, [type](StateZoneType zone) { return poscOf(type, zone); });
}

std::optional<PROJDATA> statePlaneOfUsgs(ProjType type, int usgs) {
    return statePlaneZone(type, usgs, [type](StateZoneType zone) {
        int code = 0;
        ProjGetStateZoneInfo(zone, nullptr, &code);
        return isCorrected(type, zone) ? 0 : code;
    });
}

/// A zone of 1927 is in US survey feet, one of 1983 in metres.
Zone onItsDatum(PROJDATA const& record) {
    return record.Type == ProjTypeStatePlane1927 ? Zone{record, nad27, unitUSFoot} : Zone{record, nad83, unitMetre};
}

std::optional<Zone> utmZone(std::uint16_t code) {
    auto const row = std::ranges::find_if(
        utmTable, [code](UtmRow const& candidate) { return code >= candidate.first && code <= candidate.last; });
    if (row == utmTable.end())
        return std::nullopt;
    return Zone{utmRecord(row->zone + code - row->first, row->south), row->geographic};
}

} // namespace

std::optional<Zone> zoneOfSystem(std::uint16_t code) {
    if (auto const zone = utmZone(code))
        return zone;
    if (auto const record = statePlaneOfPosc(ProjTypeStatePlane1927, code))
        return onItsDatum(*record);
    if (auto const record = statePlaneOfPosc(ProjTypeStatePlane1983, code))
        return onItsDatum(*record);
    auto const corrected = std::ranges::find(correctedZones, code, &Corrected::code);
    if (corrected != correctedZones.end())
        return onItsDatum(*statePlaneRecord(corrected->type, corrected->zone));
    auto const row = std::ranges::find(statePlaneTable, code, &StatePlaneRow::code);
    if (row == statePlaneTable.end())
        return std::nullopt;
    auto const record = statePlaneOfPosc(ProjTypeStatePlane1983, row->posc1983);
    return record ? std::optional(Zone{*record, row->geographic, row->unit}) : std::nullopt;
}

std::optional<Zone> zoneOfProjection(std::uint16_t code) {
    // UTM: 16000 and the zone, 100 more in the south. State Plane: 10000 and the USGS code, 30 more for 1983.
    if (int const zone = code % 100; code / 200 == 80 && zone >= 1 && zone <= 60)
        return Zone{utmRecord(zone, code > 16100)};
    if (code <= 10000 || code >= 16000)
        return std::nullopt;
    if (auto const record = statePlaneOfUsgs(ProjTypeStatePlane1927, code - 10000))
        return onItsDatum(*record);
    if (auto const record = statePlaneOfUsgs(ProjTypeStatePlane1983, code - 10030))
        return onItsDatum(*record);
    return std::nullopt;
}

ZoneCode codeOfZone(PROJDATA const& record, std::uint16_t geographic) {
    if (record.Type == ProjTypeStatePlane1927 || record.Type == ProjTypeStatePlane1983) {
        bool const old = record.Type == ProjTypeStatePlane1927;
        auto const code =
            static_cast<std::uint16_t>(geographic == (old ? nad27 : nad83) ? poscOf(record.Type, record.Zone) : 0);
        // Of the zones that share a number, only one is read back from it.
        auto const zone = code != 0 ? zoneOfSystem(code) : std::nullopt;
        bool const same = zone && zone->record.Type == record.Type && zone->record.Zone == record.Zone;
        return same ? ZoneCode{code, old ? std::uint16_t{unitUSFoot} : std::uint16_t{unitMetre}} : ZoneCode{};
    }
    if (record.Type != ProjTypeUniversalTransverseMercator || record.Lat0 != 0 || record.K0 != 0.9996)
        return {};
    int const zone = static_cast<int>(std::clamp((record.Lon0 + 183) / 6, 0.0, 61.0));
    auto const row = std::ranges::find_if(utmTable, [&](UtmRow const& candidate) {
        return candidate.geographic == geographic && candidate.south == (flagByte<&PROJDATA::bSouth>(record) != 0) &&
               zone >= candidate.zone && zone - candidate.zone <= candidate.last - candidate.first;
    });
    if (row == utmTable.end() || zone < 1 || zone > 60 || ProjUTMZoneNumberToLon(zone) != record.Lon0)
        return {};
    return {static_cast<std::uint16_t>(row->first + zone - row->zone), unitMetre};
}

} // namespace ZrProj::GeoTIFF
