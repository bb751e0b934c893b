// Reference, RSF and world files as the command reads and writes them: under the very names that its user gives.
#pragma once

#include "cli/files/map_info.h"

#include <span>

namespace ZrProj::Command {

/// In the order in which an image's files count.
std::span<FileFormat const> sideFormats();

/// The side files of an image that are there, in the order in which they count. Names that differ in the case of their
/// extension come after the exact ones.
std::vector<MapSource> sideFilesOf(std::string const& image);

} // namespace ZrProj::Command
