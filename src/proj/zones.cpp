// State Plane zones: the catalogue's functions, and a zone's definition written into a record.
#include "zone_definition.h"
#include "zone_table.h"

#include "frame/log.h"
#include "host/text.h"

#include <zrproj/angle.h>
#include <zrproj/zones.h>

#include <algorithm>
#include <cstddef>

namespace ZrProj {

namespace {

constexpr bool isZone(StateZoneType zone) {
    return zone >= 0 && zone < StateZoneTypeNone;
}

constexpr std::size_t rowOf(StateZoneType zone) {
    return static_cast<std::size_t>(zone);
}

/// The first zone whose row is as asked for; StateZoneTypeNone where there is none.
template <class Predicate> StateZoneType firstZone(Predicate predicate) {
    auto const found = std::ranges::find_if(zoneTable, predicate);
    return static_cast<StateZoneType>(found - zoneTable.begin());
}

/// A type's number in a zone's row; 0 where it has none.
constexpr int poscOf(ZoneRow const& row, ProjType type) {
    return type == ProjTypeStatePlane1927 ? row.posc1927 : type == ProjTypeStatePlane1983 ? row.posc1983 : 0;
}

/// The definition that a record asks for; null where it asks for none.
ZoneDefinition const* definitionFor(PROJDATA const& data) {
    if (!isZone(data.Zone))
        return nullptr;
    switch (data.Type) {
    case ProjTypeStatePlane1927:
        return &zones1927[rowOf(data.Zone)];
    case ProjTypeStatePlane1983:
        return &zones1983[rowOf(data.Zone)];
    default:
        return nullptr;
    }
}

double degreesOf(char const* text) {
    double degrees = 0;
    return LatLonToDegrees(text, &degrees, 'd') ? degrees : 0;
}

void clearPosition(PROJDATA& data) {
    data.Lon0 = data.Lat0 = data.Lon1 = data.Lat1 = data.Lon2 = data.Lat2 = 0;
    data.xOrg = data.yOrg = data.K0 = 0;
}

void setEllipsoid(PROJDATA& data, EllipsoidType ellipsoid) {
    data.Ellipsoid = ellipsoid;
    data.MajorRadius = EllipsoidRadius(ellipsoid);
    data.Flattening = EllipsoidFlattening(ellipsoid);
}

/// What a definition does not name stays the caller's: the azimuth and the flags.
void setAzimuth(PROJDATA& data, ZoneDefinition const& zone) {
    if (zone.Alpha)
        data.Alpha = degreesOf(zone.Alpha);
    if (zone.bUseAlpha)
        data.bUseAlpha = true;
    if (zone.bRotate)
        data.bRotate = true;
    if (zone.bUOffset)
        data.bUOffset = true;
}

/// Writes a zone's definition into a record. Returns false where the zone has none; the position is then cleared only.
bool applyDefinition(PROJDATA& data, ZoneDefinition const& zone) {
    clearPosition(data);
    if (zone.method == ZoneMethod::None)
        return false;
    data.Type = static_cast<ProjType>(zone.method);
    setEllipsoid(data, static_cast<EllipsoidType>(zone.ellipsoid));
    data.Lon0 = degreesOf(zone.Lon0);
    data.Lat0 = degreesOf(zone.Lat0);
    data.Lon1 = degreesOf(zone.Lon1);
    data.Lat1 = degreesOf(zone.Lat1);
    data.Lat2 = degreesOf(zone.Lat2);
    data.xOrg = zone.xOrg;
    data.yOrg = zone.yOrg;
    data.K0 = zone.K0;
    setAzimuth(data, zone);
    return true;
}

} // namespace

void ProjGetStateZoneInfo(StateZoneType zone, char* name, int* usgsCode) {
    copyText(name, isZone(zone) ? zoneTable[rowOf(zone)].name : "");
    if (usgsCode)
        *usgsCode = isZone(zone) ? zoneTable[rowOf(zone)].usgs : 0;
}

bool ProjGetStateZoneFromName(StateZoneType* zone, char const* name) {
    if (!zone || !name || !*name)
        return false;
    *zone = firstZone([name](ZoneRow const& row) { return equalIgnoringCase(row.name, name); });
    return *zone != StateZoneTypeNone;
}

bool ProjGetStateZoneFromUSGSCode(StateZoneType* zone, int code) {
    if (!zone || code < 0)
        return false;
    *zone = firstZone([code](ZoneRow const& row) { return row.usgs == code; });
    return *zone != StateZoneTypeNone;
}

bool ProjGetStateZoneFromPOSCNumber(int posc, ProjType* type, StateZoneType* zone) {
    StateZoneType const found =
        firstZone([posc](ZoneRow const& row) { return row.posc1927 == posc || row.posc1983 == posc; });
    if (posc == 0 || found == StateZoneTypeNone)
        return false;
    if (type)
        *type = zoneTable[rowOf(found)].posc1927 == posc ? ProjTypeStatePlane1927 : ProjTypeStatePlane1983;
    if (zone)
        *zone = found;
    return true;
}

bool ProjStateZoneToPOSCNumber(ProjType type, StateZoneType zone, int* posc) {
    int const number = isZone(zone) ? poscOf(zoneTable[rowOf(zone)], type) : 0;
    if (number == 0)
        return false;
    if (posc)
        *posc = number;
    return true;
}

void ProjGetStateZoneParams(PROJDATA* data) {
    LogPrintf("ProjGetStateZoneParams(pData=%p)\n", static_cast<void const*>(data));
    if (!data)
        return;
    ZoneDefinition const* const zone = definitionFor(*data);
    if (!zone || !applyDefinition(*data, *zone))
        data->Zone = StateZoneTypeNone;
}

} // namespace ZrProj
