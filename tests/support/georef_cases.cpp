#include "support/georef_cases.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

namespace ZrProj::test {
namespace {

ControlPoints readPoints(std::istream& in, int count) {
    ControlPoints result;
    GEOREFPOINT from{}, to{};
    for (int i = 0; i < count && in >> from.x >> from.y >> to.x >> to.y; ++i)
        result.add(from, to);
    return result;
}

} // namespace

GEOREF ControlPoints::record(TransformMethod method) {
    GEOREF result{};
    result.Method = method;
    result.pSource = source.data();
    result.pTarget = target.data();
    result.nControls = static_cast<std::int32_t>(source.size());
    return result;
}

void ControlPoints::add(GEOREFPOINT from, GEOREFPOINT to) {
    source.push_back(from);
    target.push_back(to);
}

std::vector<GeorefCase> georefCases(std::string const& file) {
    std::ifstream in(std::string(ZRPROJ_TEST_DATA "/") + file);
    in.ignore(1000, '\n'); // the comment
    std::vector<GeorefCase> cases;
    std::string word;
    int method = 0, controls = 0, points = 0;
    while (in >> word >> method >> controls >> points) {
        GeorefCase c{static_cast<TransformMethod>(method), readPoints(in, controls), readPoints(in, points)};
        EXPECT_EQ(c.points.source.size(), static_cast<std::size_t>(points)) << file;
        cases.push_back(std::move(c));
    }
    EXPECT_TRUE(in.eof() && !cases.empty()) << file;
    return cases;
}

} // namespace ZrProj::test
