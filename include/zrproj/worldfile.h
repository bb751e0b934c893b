// RSF and world files: two formats of other systems that place an image on a map, as control points and as affine
// coefficients.
//
//     ZrProj::GEOREF georef = {};
//     std::uint32_t flags;
//     if (ZrProj::ZrProjReadESRIWorld("scan.tif", &georef, &flags) && (flags & ZrProj::RefFileFlagCoefficients))
//         ...
//
// All names are those of the image; the functions find the side file. The flags are RefFileFlag's. On systems that tell
// case apart, files are also found where the case of their extension differs ("scan.tfw", "scan.rsf").
//
// Coordinates and coefficients are taken as they are: nothing is shifted by half a pixel, no sign is changed.
#ifndef ZRPROJ_WORLDFILE_H
#define ZRPROJ_WORLDFILE_H

#include "api.h"
#include "georef.h"

#include <cstdint>

namespace ZrProj {

/// Reads the RSF file of an image, "scan.RSF" for "scan.tif": its control points become a georeference of method 0
/// (Helmert), a whole new record whose controls are the caller's, for RefFreeControls.
///
/// Outputs may be null. What the record held before is not freed. Flags are RefFileFlagRead where there is a file, and
/// RefFileFlagControls where it has control points: one that announces none, or more than it holds, gives a cleared
/// record.
///
/// Returns true, with the record untouched and flags 0, where there is no such plain file. Returns false, with flags 0,
/// for a null or empty name (error 20205 is reported), and for control points that memory, or a file of that size,
/// cannot hold (20201).
ZRPROJ_API bool ZrProjReadBlueMarbleRSF(char const* imageFileName, GEOREF* georef, std::uint32_t* flags);

/// Writes the RSF file of an image, in place of one that is there. A record of method 5 is written as the four corners
/// of a square of 100 pixels; the record itself is not changed.
///
/// Returns true, with nothing written, for a null or empty name, a null record, and a record without control points or
/// coefficients. Returns false when the file cannot be made or not be written whole; what was written of it stays.
ZRPROJ_API bool ZrProjWriteBlueMarbleRSF(char const* imageFileName, GEOREF const* georef);

/// Reads the world file of an image into a georeference of method 5, a whole new record.
///
/// For "scan.tif" the file is the first of "scan.tfW", "scan.tifw" and "scan.WLD" that is there (for an extension of
/// fewer than three characters the first one is the name without it and "W"). Outputs may be null. What the record held
/// before is not freed. Flags are RefFileFlagRead where there is a file, and RefFileFlagCoefficients where it has all
/// six lines, each ended by a line feed; otherwise the record is cleared.
///
/// Returns true, with the record untouched and flags 0, where there is no such plain file. Returns false, with flags 0,
/// for a null or empty name (error 20205 is reported).
ZRPROJ_API bool ZrProjReadESRIWorld(char const* imageFileName, GEOREF* georef, std::uint32_t* flags);

/// Writes the world file of an image, in place of one that is there: "scan.tfW" for "scan.tif", the whole name and "W"
/// for an extension of fewer than three characters. Control points are turned into coefficients (RefControlsToCoeff);
/// the record itself is not changed.
///
/// Returns true, with nothing written, for a null or empty name, a null record, and controls that do not make
/// coefficients. Returns false when the file cannot be made or not be written whole; what was written of it stays.
ZRPROJ_API bool ZrProjWriteESRIWorld(char const* imageFileName, GEOREF const* georef);

} // namespace ZrProj

#endif
