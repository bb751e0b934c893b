// The geographic system: an ellipsoid, and a datum where there is one that the catalogue knows.
#pragma once

#include "files/geotiff/figures.h"

#include <zrproj/datum.h>

namespace ZrProj::GeoTIFF {

struct Geographic {
    Ellipsoid ellipsoid;
    DatumType datum = DatumTypeNone;
    DATUM2WGS84 params = {};
    std::string noDatum; // why there is none
    double degrees = 1;  // of one unit of angle
};

/// Reads the geographic keys. `implied` is the code of the system that the projected one stands on, 0 where that says
/// nothing.
Expected<Geographic> readGeographic(KeyDirectory const& keys, std::uint16_t implied);

/// Sets the geographic keys, and returns the system's code, 32767 for one without. `own` are the parameters of a datum
/// of the user's own (0), and may be null for others.
Expected<std::uint16_t> writeGeographic(KeyDirectory& keys, Ellipsoid const& ellipsoid, DatumType datum,
                                        DATUM2WGS84 const* own);

} // namespace ZrProj::GeoTIFF
