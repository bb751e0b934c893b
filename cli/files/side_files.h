// Reference, RSF and world files as the command reads and writes them: under the very names that its user gives.
#pragma once

#include "cli/files/map_info.h"

namespace ZrProj::Command {

/// The side files of an image that are there, in the order in which they count. Names that differ in the case of their
/// extension come after the exact ones.
std::vector<MapFile> sideFilesOf(std::string const& image);

/// MapFile's read and write, of a side file.
MapInfo readSideFile(MapFile const& file);
std::vector<std::string> writeSideFile(MapFile const& file, MapInfo const& info, Misfit misfit);

} // namespace ZrProj::Command
