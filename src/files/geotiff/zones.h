// Projected systems that are zones: UTM and State Plane, by the numbers of the EPSG registry.
#pragma once

#include "files/geotiff/keys.h"

#include <zrproj/projection.h>

#include <optional>

namespace ZrProj::GeoTIFF {

/// A projected system by its number: the projection in metres, the system of longitudes and latitudes that it stands on
/// (0 where that is told elsewhere), and its unit of length.
struct Zone {
    PROJDATA record = {};
    std::uint16_t geographic = 0;
    std::uint16_t unit = unitMetre;
};

/// The zone of a projected system's number; of a projection's number, which leaves the ellipsoid open.
std::optional<Zone> zoneOfSystem(std::uint16_t code);
std::optional<Zone> zoneOfProjection(std::uint16_t code);

/// The number of the projected system that a UTM or State Plane record is on a geographic system, in its own unit; 0
/// where there is none.
struct ZoneCode {
    std::uint16_t code = 0;
    std::uint16_t unit = unitMetre;
};
ZoneCode codeOfZone(PROJDATA const& record, std::uint16_t geographic);

} // namespace ZrProj::GeoTIFF
