// Reference values of projections, from the files in tests/data/projections. One line is one case:
//
//     type=17 ellipsoid=15 lon0=-75 k0=0.9996 | -73.5 40.5 | 127106.5 4484124.4 | 0.05 | Snyder (1987), p. 270
//
// the record (what is not named is 0; the word "forward" or "inverse" makes it a case of that direction only),
// longitude and latitude in degrees, easting and northing, the tolerance in the unit of the map, and the origin of the
// numbers. Lines that start with # are comments.
#pragma once

#include <zrproj/projection.h>

#include <string>
#include <vector>

namespace ZrProj::test {

struct ProjectionCase {
    PROJDATA record{};
    bool forward = true, inverse = true;
    PROJPOINT geographic{}, map{};
    double tolerance = 0;
    std::string line;
};

/// The record that the words of a line's first field stand for.
PROJDATA recordOf(std::string const& words);

/// The files of cases in tests/data, in alphabetical order.
std::vector<std::string> caseFiles();

/// The cases of tests/data/projections/`file`; a line that cannot be read is a failure of the test.
std::vector<ProjectionCase> projectionCases(std::string const& file);

/// Holds every case of the file, both ways, at each processor level. The way back is measured on the ground.
void expectProjectionCases(std::string const& file);

} // namespace ZrProj::test
