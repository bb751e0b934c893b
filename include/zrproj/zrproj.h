// The whole interface of records and handles in one include. Each family also has a header of its own:
//
//     angle.h          angles as text
//     datum.h          datums, and conversions from one to another
//     ellipsoid.h      reference ellipsoids
//     georef.h         georeference systems: an image's pixels to a map
//     geotiff.h        GeoTIFF tags as records, and records as tags
//     preclip.h        lines and areas cut to what a map shows
//     projection.h     projections, and points converted by them
//     reffile.h        reference files
//     registration.h   smooth maps through control points
//     userdatum.h      datums of the user's own
//     worldfile.h      RSF and world files
//     zones.h          UTM and State Plane zones
//     zrlibw.h         how a host program hears of errors
//
// Angles are decimal degrees, longitude in x (east positive) and latitude in y (north positive). Projected coordinates
// are in the length unit of the ellipsoid (metres for every catalogue ellipsoid), easting in x and northing in y.
//
// A coordinate that cannot be converted is marked: both x and y hold the largest finite double, DBL_MAX. No function
// throws, and none leaves the caller's floating-point environment (flags, rounding, traps) other than it was.
//
// Any integer may be passed as an enumeration: what a function does with a number that is none of its enumerators is
// said with the function. A null pointer where one is needed gives false, 0 or null unless said otherwise.
//
// Distinct handles may be used on distinct threads at once; one handle belongs to one thread at a time.
#ifndef ZRPROJ_ZRPROJ_H
#define ZRPROJ_ZRPROJ_H

#include "angle.h"
#include "datum.h"
#include "ellipsoid.h"
#include "georef.h"
#include "geotiff.h"
#include "preclip.h"
#include "projection.h"
#include "reffile.h"
#include "registration.h"
#include "userdatum.h"
#include "worldfile.h"
#include "zones.h"
#include "zrlibw.h"

#endif
