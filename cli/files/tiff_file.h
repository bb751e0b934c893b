// TIFF files as files that tell of a map: by their GeoTIFF tags.
#pragma once

#include "cli/files/map_info.h"

#include <string>

namespace ZrProj::Command {

/// Whether a file begins as a TIFF file does.
bool isTiffFile(std::string const& name);

/// Whether a TIFF file has GeoTIFF tags. One that cannot be read may; reading it tells why not.
bool mayHaveTags(std::string const& name);

/// MapFile's read and write, of the GeoTIFF tags of a TIFF file that is there. What the map does not tell stays as it
/// is in the file, which is replaced as a whole, or left as it is.
MapInfo readTags(std::string const& name);
std::vector<std::string> writeTags(std::string const& name, MapInfo const& info);

} // namespace ZrProj::Command
