// TIFF files as files that tell of a map: by their GeoTIFF tags.
#pragma once

#include "cli/files/map_info.h"

#include <zrproj/zrproj.h>

#include <span>
#include <string>

namespace ZrProj::Command {

/// Whether a file begins as a TIFF file does.
bool isTiffFile(std::string const& name);

/// Whether a TIFF file says that its parts stand in an order for reading over a network (cloud-optimized GeoTIFF).
bool claimsLayout(std::string const& name);

struct TiffImage {
    std::uint32_t width = 0, height = 0;
    ZrBitmapTagList tags; // of GeoTIFF only
};

/// Reads the first image of a TIFF file. Throws std::runtime_error when it cannot be read.
TiffImage readTiff(std::string const& name);

/// Puts GeoTIFF tags in the place of those that the first image of a TIFF file has. The file is replaced as a whole, or
/// left as it is. Throws std::runtime_error when it cannot be written.
void writeTiffTags(std::string const& name, std::span<ZrBitmapTag const> tags);

/// Reads and writes the GeoTIFF tags of a TIFF file that is there. What the written records do not tell stays as it is
/// in the file.
FileFormat const& tiffFormat();

} // namespace ZrProj::Command
