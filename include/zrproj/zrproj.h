// The whole interface of zrproj in one include. Each family also has a header of its own.
//
// Angles are decimal degrees, longitude in x (east positive) and latitude in y (north positive). Projected coordinates
// are in the length unit of the ellipsoid (metres for every catalogue ellipsoid), easting in x and northing in y.
//
// A coordinate that cannot be converted is marked: both x and y hold the largest finite double, DBL_MAX. No function
// throws, and none leaves the caller's floating-point environment (flags, rounding, traps) other than it was.
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
