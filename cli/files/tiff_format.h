// TIFF images as files that tell of a map.
#pragma once

#include "cli/files/map_info.h"
#include "cli/files/tiff_file.h"

namespace ZrProj::Command {

/// Reads and writes the GeoTIFF tags of a TIFF file that is there. What the written records do not tell stays as it is
/// in the file.
FileFormat const& tiffFormat();

} // namespace ZrProj::Command
