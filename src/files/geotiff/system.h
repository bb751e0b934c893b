// The whole coordinate system: a projection with its datum.
#pragma once

#include "files/geotiff/keys.h"
#include "systems/definition.h"

#include <zrproj/datum.h>
#include <zrproj/projection.h>

namespace ZrProj::GeoTIFF {

/// What the keys say: the register's system where they name it, else as they describe it.
struct System {
    systems::Definition definition;
    std::string noticed; // what there is to tell about it; "" for nothing
    double degrees = 1;  // a unit of the coordinates, of a geographic system
};

Expected<System> readSystem(KeyDirectory const& keys);

/// The system that tags say; nothing where they are damaged or tell of none.
std::optional<System> systemOf(ZrBitmapTagList const& tags);

/// Sets the keys of a system; nothing where there is no projection. `params` may be null but for a datum of the user's
/// own.
Expected<KeyDirectory> writeSystem(PROJDATA const* projection, DatumType datum, DATUM2WGS84 const* params);

/// The same of a definition: by its code, or else by the numbers of a record that says its projection exactly.
/// Coordinates of a geographic system are in the unit of the system.
Expected<KeyDirectory> writeSystem(systems::Definition const& system);

/// Adds the keys of a complete record's projection to those of its geographic system. Why not, where there are none.
std::optional<Refusal> writeProjection(KeyDirectory& keys, PROJDATA const& projection);

} // namespace ZrProj::GeoTIFF
