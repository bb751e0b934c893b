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
};

Expected<System> readSystem(KeyDirectory const& keys);

/// The system that tags say; nothing where they are damaged or tell of none.
std::optional<systems::Definition> systemOf(ZrBitmapTagList const& tags);

/// Sets the keys of a system; nothing where there is no projection. `params` may be null but for a datum of the user's
/// own.
Expected<KeyDirectory> writeSystem(PROJDATA const* projection, DatumType datum, DATUM2WGS84 const* params);

} // namespace ZrProj::GeoTIFF
