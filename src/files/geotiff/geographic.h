// The geographic system: an ellipsoid, a prime meridian, and a datum where there is one that has a name.
#pragma once

#include "files/geotiff/figures.h"
#include "systems/definition.h"

#include <zrproj/datum.h>

namespace ZrProj::GeoTIFF {

struct Geographic {
    systems::Definition system; // with the code where it is the register's system of that code
    double degrees = 1;         // of one unit of angle in the keys
    std::string noticed;        // what there is to tell about it
};

/// Reads the geographic keys. `implied` is the system that the projected one stands on; null where that says nothing.
Expected<Geographic> readGeographic(KeyDirectory const& keys, systems::Definition const* implied);

/// Whether two geographic systems have the same ellipsoid and prime meridian.
bool sameFigure(systems::Datum const& a, systems::Datum const& b);

/// Gives a datum that is told by name the register's code, where the register's has the same figure.
void settleDatum(systems::Datum& datum);

/// Sets the geographic keys, and returns the system's code, 32767 for one without. `own` are the parameters of a datum
/// of the user's own (0), and may be null for others.
Expected<std::uint16_t> writeGeographic(KeyDirectory& keys, Figure const& figure, DatumType datum,
                                        DATUM2WGS84 const* own);

} // namespace ZrProj::GeoTIFF
