// Reference, RSF, world and .prj files as the command reads and writes them: under the very names that its user gives.
#pragma once

#include "cli/files/map_info.h"

namespace ZrProj::Command {

/// The side files of an image that are there, in the order in which they count. Names that differ in the case of their
/// extension come after the exact ones.
std::vector<MapFile> sideFilesOf(std::string const& image);

/// The files beside an image that say its system in a definition: what GDAL keeps of it, and a .prj file. They count
/// after the image's own tags.
std::vector<MapFile> definitionsBeside(std::string const& image);

/// What GDAL keeps of an image's system. Throws std::runtime_error for a definition that cannot be read.
MapInfo readAuxiliary(std::string const& name);

/// MapFile's read and write, of a side file.
MapInfo readSideFile(MapFile const& file);
std::vector<std::string> writeSideFile(MapFile const& file, MapInfo const& info, Misfit misfit);

/// The .prj file beside an image, a file of shapes or of points; "" for none.
std::string prjOf(std::string const& file);

/// Whether a file is called as a .prj file, which holds a definition.
bool isPrjName(std::string const& name);
std::vector<std::string> writeDefinition(std::string const& name, MapInfo const& info);

/// The system that a definition or records tell, of a map whose projection is told. Throws std::runtime_error for
/// records that make none.
SystemPointer systemOf(MapInfo const& info);

} // namespace ZrProj::Command
