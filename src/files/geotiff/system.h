// The whole coordinate system: a projection with its datum.
#pragma once

#include "files/geotiff/geographic.h"

#include <zrproj/projection.h>

namespace ZrProj::GeoTIFF {

struct System {
    PROJDATA projection = {};
    Geographic geographic;
};

/// Reads the system that the keys describe.
Expected<System> readSystem(KeyDirectory const& keys);

/// Sets the keys of a system; nothing where there is no projection. `params` may be null but for a datum of the user's
/// own.
Expected<KeyDirectory> writeSystem(PROJDATA const* projection, DatumType datum, DATUM2WGS84 const* params);

} // namespace ZrProj::GeoTIFF
