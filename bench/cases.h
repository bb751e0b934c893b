// What is measured: a record or two of every projection type, and a datum of each method.
#pragma once

#include <zrproj/datum.h>
#include <zrproj/projection.h>

#include <span>

namespace ZrProj::bench {

/// The names are those of PROJDATA.
struct Parameters {
    double lon0 = 0, lat0 = 0, lat1 = 0, lat2 = 0, lon1 = 0, lon2 = 0, k0 = 0, alpha = 0;
};

/// Degrees.
struct Box {
    double west, east, south, north;
};

struct Case {
    char const* name;
    ProjType type;
    EllipsoidType ellipsoid;
    Parameters parameters;
    Box box;          // where the points lie: inside the usable area
    char const* proj; // the definition that means the same to PROJ, or comes nearest

    PROJDATA record() const;
};

std::span<Case const> cases();

/// From a datum to WGS 84 and back. What a case says of a projection is not looked at.
struct DatumCase {
    DatumType datum;
    Case definition;
};

std::span<DatumCase const> datumCases();

} // namespace ZrProj::bench
