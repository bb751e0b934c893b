// The tags of a system and a place, as hosts are given them.
#pragma once

#include "files/geotiff/keys.h"
#include "systems/definition.h"

#include <zrproj/georef.h>

#include <span>

namespace ZrProj::GeoTIFF {

/// The tags in one block, for ZrProjDiscardGeoTIFFTags. Throws std::bad_alloc.
Expected<std::span<ZrBitmapTag>> makeTags(systems::Definition const& system, GEOREF const& georef);

} // namespace ZrProj::GeoTIFF
