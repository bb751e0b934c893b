// What is measured: a record or two of every projection type, a datum of each method, and systems whose methods no
// record says.
#pragma once

#include <zrproj/datum.h>
#include <zrproj/projection.h>

#include <string>
#include <vector>

namespace ZrProj::bench {

/// Degrees.
struct Box {
    double west, east, south, north;
};

struct Case {
    std::string name;
    PROJDATA record;
    Box box;          // where the points lie: inside the usable area
    std::string proj; // the definition that means the same to PROJ, or comes nearest
};

/// Those that tests/data/projections has, named by the types' keys, as in "stereographic/polar".
std::vector<Case> const& cases();

/// From a datum to WGS 84 and back. What a case says of a projection is not looked at.
struct DatumCase {
    DatumType datum;
    Case definition;
};

std::vector<DatumCase> const& datumCases();

/// From one system's coordinates to another one's and back, through the C interface. What a case says of a projection
/// is not looked at.
struct SystemCase {
    char const *from, *to;
    Case definition;
};

std::vector<SystemCase> const& systemCases();

} // namespace ZrProj::bench
