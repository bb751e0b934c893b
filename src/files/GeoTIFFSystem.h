// The whole coordinate system: a projection with its datum.
#pragma once

#include "files/GeoTIFFGeographic.h"
#include "files/GeoTIFFMethods.h"

#include <zrproj/projection.h>

namespace ZrProj::GeoTIFF {

struct System {
    PROJDATA projection = {};
    Geographic geographic;
};

/// Reads the system that the keys describe.
Outcome<System> readSystem(KeyDirectory const& keys);

/// Sets the keys of a system; nothing where there is no projection. `params` may be null but for a datum of the user's
/// own.
Outcome<KeyDirectory> writeSystem(PROJDATA const* projection, DatumType datum, DATUM2WGS84 const* params);

/// The record of a transformation with its parameters; the ellipsoid is set, the unit of length is the metre.
Outcome<PROJDATA> recordOf(Transformation transformation, Parameters const& given, Ellipsoid const& ellipsoid);

} // namespace ZrProj::GeoTIFF
