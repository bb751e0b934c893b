// What the tests and the benchmarks know of each projection: tests/data/projections has a file a type, named by the
// type's key, and a file a method that only systems reach. Lines that start with # are comments; a line of the others
// is
//
//     sweep | RECORD                               a parameter set for the checks that sweep them all
//     bench [VARIANT] | RECORD | BOX | PROJ        a row of the benchmarks: where its points lie (west, east, south and
//                                                  north, degrees), and the definition that means the same to PROJ
//     RECORD | POINT | POINT | TOLERANCE | ORIGIN  a reference value: longitude and latitude in degrees, easting and
//                                                  northing, the tolerance in the unit of the map, and the origin
//
// with records as support/words.h explains them. "forward" or "inverse" behind a record makes a reference value one of
// that direction only:
//
//     type=transverse-mercator ellipsoid=clarke-1866 lon0=-75 k0=0.9996 | -73.5 40.5 | 127106.5 4484124.4 | 0.05 | Snyder
#pragma once

#include "support/words.h"

#include <string>
#include <vector>

namespace ZrProj::test {

struct ProjectionCase {
    PROJDATA record{};
    bool forward = true, inverse = true;
    PROJPOINT geographic{}, map{};
    double tolerance = 0;
    std::string words, line;
};

/// The files that hold reference values, in alphabetical order.
std::vector<std::string> caseFiles();

/// The reference values of tests/data/projections/`file`; a line that cannot be read is a failure of the test.
std::vector<ProjectionCase> projectionCases(std::string const& file);

/// Holds every reference value of the file, both ways, at each processor level. The way back is measured on the ground.
void expectProjectionCases(std::string const& file);

} // namespace ZrProj::test
