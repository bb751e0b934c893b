// NADCON: datum shifts by interpolation in a pair of grid files beside the host's executable.
#pragma once

#include <zrproj/datum.h>

#include <cstddef>

namespace ZrProj {

/// Shifts points from the grid's datum to WGS 84, in place; points outside the grid, and marked ones, stay as they are.
/// gridName: of the files GRIDNAME.LAS and GRIDNAME.LOS in the directory of the running executable.
/// False, after a reported assertion, when the files cannot be opened, their header cannot be read or is absurd, or a
/// value that a point needs is not there; no point is shifted then, unless reading itself fails half-way.
bool convertNadcon(char const* gridName, DATUMPOINT* points, std::size_t count);

/// Of the files that a datum of this method is shifted by.
constexpr char const* nadconGridName(DatumType type) {
    return type == DatumTypeNad1927ConusNadcon ? "conus" : "prvi";
}

} // namespace ZrProj
