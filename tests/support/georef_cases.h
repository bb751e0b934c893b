// Reference values of georeference systems, from the files in tests/data that make_georef.py writes, and control points
// to try others with.
#pragma once

#include <zrproj/georef.h>

#include <cmath>
#include <string>
#include <vector>

namespace ZrProj::test {

struct ControlPoints {
    std::vector<GEOREFPOINT> source, target;

    /// A record that refers to these points.
    GEOREF record(TransformMethod method);
    void add(GEOREFPOINT from, GEOREFPOINT to);
};

struct GeorefCase {
    TransformMethod method;
    ControlPoints controls, points; // what the points' targets are, is the result expected
};

/// The cases of tests/data/`file`; one that cannot be read is a failure of the test.
std::vector<GeorefCase> georefCases(std::string const& file);

/// `count` controls scattered over a square of `size`, and where `map` takes them.
template <class Map> ControlPoints scattered(int count, double size, Map const& map) {
    ControlPoints result;
    for (int i = 1; i <= count; ++i) { // the additive sequence of the plastic number's powers fills a square evenly
        GEOREFPOINT const from{size * std::fmod(0.7548776662466927 * i, 1),
                               size * std::fmod(0.5698402909980532 * i, 1)};
        result.add(from, map(from));
    }
    return result;
}

inline double distance(GEOREFPOINT const& a, GEOREFPOINT const& b) {
    return std::hypot(a.x - b.x, a.y - b.y);
}

} // namespace ZrProj::test
