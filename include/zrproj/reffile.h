// Cartographic reference files: small text files beside a map or an image that record its projection, datum and
// georeference, a key and a value a line.
//
//     ZrProj::PROJDATA projection;
//     ZrProj::DatumType datum;
//     ZrProj::DATUM2WGS84 parameters;
//     ZrProj::GEOREF georef;
//     std::uint32_t flags;
//     if (ZrProj::ZrProjRefFileReadEx("map.tif", &projection, &datum, &parameters, &georef, &flags) &&
//         (flags & ZrProj::RefFileFlagProjection))
//         ...
//     ZrProj::RefFreeControls(&georef);
//
// The file of a name is the name itself where its last three characters are "zrr" in any case ("map.zrr", "mapzrr", at
// least five characters), otherwise the name with ".zrr" after it: "map.tif" has "map.tif.zrr". On systems that tell
// case apart, files that are read or deleted are also found where the case of their extension differs ("map.tif.ZRR").
//
// Numbers have 15 significant digits, and a decimal point whatever the host's locale.
#ifndef ZRPROJ_REFFILE_H
#define ZRPROJ_REFFILE_H

#include "api.h"
#include "datum.h"
#include "georef.h"
#include "projection.h"

#include <cstdint>

namespace ZrProj {

/// What a side file told, a bit each: the values of the flags that the readers of side files and tags set.
enum RefFileFlag : std::uint32_t {
    RefFileFlagProjection = 1,   ///< a projection: the record's type is not 999
    RefFileFlagDatum = 2,        ///< a datum: it is not 237
    RefFileFlagCoefficients = 4, ///< a georeference by coefficients, method 5
    RefFileFlagControls = 8,     ///< a georeference by control points
    RefFileFlagRead = 16,        ///< there was a file, of a version that is known
};

/// Writes a reference file, in place of one that is there.
///
/// Any record may be null, and is then left out, as is a projection of type 999, datum 237 (the datum goes with its
/// parameters: one without the other is left out) and georeference method 12. Only what a type or method uses is
/// written; a catalogue ellipsoid's radius and flattening are the catalogue's. The records are not changed.
///
/// Of method 5 the format keeps one coefficient, the first; RefCoeffToControls makes control points, which keep all.
///
/// Returns false for a null or empty name, and when the file cannot be made or not be written whole. What was written
/// of it by then is deleted where `fileName` is its own name, and stays where ".zrr" was added.
ZRPROJ_API bool ZrProjRefFileWriteEx(char const* fileName, PROJDATA const* projection, DatumType datum,
                                     DATUM2WGS84 const* datumParameters, GEOREF const* georef);

/// Writes a reference file without a georeference; the rest is as with ZrProjRefFileWriteEx.
ZRPROJ_API bool ZrProjRefFileWrite(char const* fileName, PROJDATA const* projection, DatumType datum,
                                   DATUM2WGS84 const* datumParameters);

/// Reads a reference file into the outputs that are not null.
///
/// They are reset first: a zero record with type 999, datum
/// 237 with zero parameters, a zero record with method 12 and null arrays, flags 0. The datum is read only where both
/// of its outputs are given. What the georeference held before is not freed; its new controls are the caller's, for
/// RefFreeControls.
///
/// Keys are known whatever their case and blanks, but need a blank before the colon; lines that are not known are
/// passed over. Names that are not known give type 999, zone 142, ellipsoid 0, datum 237, datum method 6 and
/// georeference method 12. Control points count from the line of their count on, and up to that count.
///
/// Returns true, outputs as reset, where there is no such plain file, or one of a version above 1.1: look at
/// RefFileFlagRead. Returns false for a null or empty name (outputs untouched), an empty file, a file that does not
/// begin as a reference file does (error 20203 is reported), and for control points that memory, or a file of that
/// size, cannot hold (error 20201); the outputs then hold what was read up to there, without controls.
ZRPROJ_API bool ZrProjRefFileReadEx(char const* fileName, PROJDATA* projection, DatumType* datum,
                                    DATUM2WGS84* datumParameters, GEOREF* georef, std::uint32_t* flags);

/// Reads a reference file without its georeference, and without telling what it held; the rest is as with
/// ZrProjRefFileReadEx.
ZRPROJ_API bool ZrProjRefFileRead(char const* fileName, PROJDATA* projection, DatumType* datum,
                                  DATUM2WGS84* datumParameters);

/// Deletes the reference file of a name. Returns true when it is gone or was never there, and false for a null or empty
/// name and when it cannot be deleted or is no plain file.
ZRPROJ_API bool ZrProjRefFileDelete(char const* fileName);

/// Deletes every side file of a map: its reference file, its RSF file, and its world files. For "map.tif" these are
/// "map.tif.zrr", "map.RSF", "map.WLD", "map.tifW" and "map.tfW".
///
/// Only plain files are deleted, and never the map itself, unless its name is that of its own reference file
/// ("map.zrr"). Returns false for a null or empty name, and at the first file but the reference file that is there and
/// cannot be deleted; the files after it stay.
ZRPROJ_API bool ZrProjRefFilesDelete(char const* mapFileName);

} // namespace ZrProj

#endif
