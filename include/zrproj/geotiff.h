// GeoTIFF: what the tags of a TIFF file say about projection, datum and georeference, as records, and records as tags.
//
// The library sees tags in memory only; reading and writing TIFF files is the host's business (libtiff's TIFFGetField
// and TIFFSetField do it). The tags are those of OGC GeoTIFF 1.1: 33550 pixel scale, 33922 tie points, 34264
// transformation matrix, 34735 key directory, 34736 and 34737 its numbers and texts.
//
// What cannot be said exactly on the other side, in records or in tags, is left out or refused and never replaced by
// something near.
#ifndef ZRPROJ_GEOTIFF_H
#define ZRPROJ_GEOTIFF_H

#include "api.h"
#include "datum.h"
#include "georef.h"
#include "projection.h"
#include "zrlibw.h"

#include <cstdint>

namespace ZrProj {

/// Reads GeoTIFF tags into records.
///
/// Outputs may be null; those that are not are reset first: `*data` to zeros with type 999 (undefined), `*datum` to 237
/// (none), `*params` to zeros, `*georef` to zeros with method 12 (none), `*flags` to 0.
///
/// The flags, RefFileFlag's, tell what was read: 1 a projection, 2 a datum, 4 a georeference by coefficients, 8 one by
/// control points (free them with RefFreeControls), 16 that the tags are in order and held something. A part that the
/// tags do not have, or that no record says exactly (ZrProjExplainGeoTIFF tells why), stays reset with its flag clear.
///
/// - Projected coordinates are those of the file: with a unit of length other than the metre, Scale is how many of that
///   unit make a metre, and the false origin is in metres. A scale factor that a type has no K0 for goes into Scale,
///   too, and the false origin is divided by it.
/// - Numbers are those of the register of coordinate systems, and names in citations ("ESRI PE String = ...", "PCS Name
/// =
///   ...") are its, too. Where the file's own axes contradict a number by a millimetre or more, the axes are taken, and
///   ZrProjExplainGeoTIFF tells.
/// - UTM and State Plane systems become zones. The Mercator of web maps is type 1 with radius 6378137 and flattening 0,
///   on the datum WGS 84, whether a number or but a citation says so.
/// - `*datum` is found by its POSC code, or by its name in the citation; the parameters of a transformation to
///   WGS 84 give a user-defined datum (0). `*params` then holds the datum's parameters where it has any.
/// - The georeference maps pixels to projected coordinates (or degrees), a pixel's coordinates being those of its upper
///   left corner, whichever way the file counts. Three or more tie points without a pixel scale are control points,
///   with method 1 (affine).
///
/// Returns false, with the outputs reset, when a tag is damaged (a key that points outside, a number that is none) and
/// when memory runs out.
ZRPROJ_API bool ZrProjGetGeoTIFF(ZrBitmapTagList const& tags, PROJDATA* data, DatumType* datum, DATUM2WGS84* params,
                                 GEOREF* georef, std::uint32_t* flags);

/// Explains why ZrProjGetGeoTIFF leaves parts of the tags unread or refuses them, and what in them is contradictory.
///
/// Writes a sentence a line to `message`, "" when there is nothing to say, and no more than `size` bytes, the closing
/// null among them: a longer text is cut. Returns false, with nothing written, for a null buffer or a size below 1, and
/// false, with "" written, when memory runs out.
ZRPROJ_API bool ZrProjExplainGeoTIFF(ZrBitmapTagList const& tags, char* message, int size);

/// Makes the tags that say what the records say, in ascending order, at most six.
///
/// A null `data` or type 999, a datum of 237, and a null `georef` or method 12 are left out. `params` is needed for a
/// user-defined datum (0) only. The records are not changed.
///
/// A system is said by its number in the register where that reads back as the very same record, and else by its
/// parameters. The tags say pixel-is-area. A georeference that pixel scale and tie point cannot say is written as a
/// matrix, a Helmert system as the matrix that it is. Control points of an affine fit that meets them but for rounding
/// to 15 digits become a matrix, too; other control points become tie points, and their method is not told.
///
/// On success `*tags` is an array of `*count` tags, to be freed with ZrProjDiscardGeoTIFFTags; null and 0 when there
/// was nothing to write. Returns false, with null and 0, for null `tags` or `count`, when the records cannot be said in
/// tags exactly (ZrProjExplainGeoTIFFTags tells why), and when memory runs out.
ZRPROJ_API bool ZrProjBuildGeoTIFFTags(PROJDATA const* data, DatumType datum, DATUM2WGS84 const* params,
                                       GEOREF const* georef, ZrBitmapTag** tags, int* count);

/// Frees the `count` tags that ZrProjBuildGeoTIFFTags made. Null is ignored.
ZRPROJ_API void ZrProjDiscardGeoTIFFTags(ZrBitmapTag* tags, int count);

/// Explains why ZrProjBuildGeoTIFFTags refuses the records: one sentence, "" when it does not refuse them. The buffer
/// and the failures are those of ZrProjExplainGeoTIFF.
ZRPROJ_API bool ZrProjExplainGeoTIFFTags(PROJDATA const* data, DatumType datum, DATUM2WGS84 const* params,
                                         GEOREF const* georef, char* message, int size);

/// Gathers everything that is known of an image from its reference file, its RSF file, its world file and its tags,
/// which may be null.
///
/// Each of projection, datum and georeference comes from the first of them, in this order, that has it. Known
/// coefficients of a reference file, which are but one number, yield to a later source. Outputs and flags are those of
/// ZrProjGetGeoTIFF; flag 16 tells that one of the sources could be read.
///
/// Returns false, with the outputs reset, for a null or empty name. Returns false also when a source that exists could
/// not be read; what the others say is then there all the same.
ZRPROJ_API bool ZrProjGetBitmapGeoParams(char const* imageFileName, ZrBitmapTagList const* tags, PROJDATA* data,
                                         DatumType* datum, DATUM2WGS84* params, GEOREF* georef, std::uint32_t* flags);

} // namespace ZrProj

#endif
