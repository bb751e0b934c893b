#include "support/cases.h"

#include "support/levels.h"

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <functional>
#include <map>
#include <sstream>

namespace ZrProj::test {
namespace {

using Setter = std::function<void(PROJDATA&, double)>;

std::map<std::string, Setter> const setters{
    {"type", [](PROJDATA& r, double v) { r.Type = static_cast<ProjType>(v); }},
    {"ellipsoid", [](PROJDATA& r, double v) { r.Ellipsoid = static_cast<EllipsoidType>(v); }},
    {"zone", [](PROJDATA& r, double v) { r.Zone = static_cast<StateZoneType>(v); }},
    {"radius", [](PROJDATA& r, double v) { r.MajorRadius = v; }},
    {"flattening", [](PROJDATA& r, double v) { r.Flattening = v; }},
    {"rf", [](PROJDATA& r, double v) { r.Flattening = 1 / v; }},
    {"scale", [](PROJDATA& r, double v) { r.Scale = v; }},
    {"x0", [](PROJDATA& r, double v) { r.xOrg = v; }},
    {"y0", [](PROJDATA& r, double v) { r.yOrg = v; }},
    {"k0", [](PROJDATA& r, double v) { r.K0 = v; }},
    {"lat0", [](PROJDATA& r, double v) { r.Lat0 = v; }},
    {"lat1", [](PROJDATA& r, double v) { r.Lat1 = v; }},
    {"lat2", [](PROJDATA& r, double v) { r.Lat2 = v; }},
    {"lon0", [](PROJDATA& r, double v) { r.Lon0 = v; }},
    {"lon1", [](PROJDATA& r, double v) { r.Lon1 = v; }},
    {"lon2", [](PROJDATA& r, double v) { r.Lon2 = v; }},
    {"alpha", [](PROJDATA& r, double v) { r.Alpha = v; }},
    {"south", [](PROJDATA& r, double v) { r.bSouth = v != 0; }},
    {"usealpha", [](PROJDATA& r, double v) { r.bUseAlpha = v != 0; }},
    {"rotate", [](PROJDATA& r, double v) { r.bRotate = v != 0; }},
    {"uoffset", [](PROJDATA& r, double v) { r.bUOffset = v != 0; }},
};

void readRecord(std::istream&& words, ProjectionCase& result) {
    for (std::string word; words >> word;) {
        auto const equals = word.find('=');
        if (word == "forward")
            result.inverse = false;
        else if (word == "inverse")
            result.forward = false;
        else
            setters.at(word.substr(0, equals))(result.record, std::stod(word.substr(equals + 1)));
    }
}

PROJPOINT readPoint(std::istream&& words) {
    PROJPOINT point{NAN, NAN};
    words >> point.x >> point.y;
    if (!words)
        throw std::invalid_argument("not a point");
    return point;
}

ProjectionCase readCase(std::string const& line) {
    std::istringstream fields(line);
    std::string record, geographic, map, tolerance, origin;
    std::getline(fields, record, '|');
    std::getline(fields, geographic, '|');
    std::getline(fields, map, '|');
    std::getline(fields, tolerance, '|');
    if (!std::getline(fields, origin) || origin.empty())
        throw std::invalid_argument("no origin");
    ProjectionCase result;
    readRecord(std::istringstream(record), result);
    result.geographic = readPoint(std::istringstream(geographic));
    result.map = readPoint(std::istringstream(map));
    result.tolerance = std::stod(tolerance);
    result.line = line;
    return result;
}

/// The distance of two geographic points on a sphere of the record's radius, good for short distances.
double groundDistance(PROJDATA const& record, PROJPOINT const& a, PROJPOINT const& b) {
    constexpr double degree = 3.141592653589793 / 180;
    double const east = std::remainder(a.x - b.x, 360) * std::cos(b.y * degree);
    return std::hypot(east, a.y - b.y) * degree * record.MajorRadius;
}

void expectCase(ProjectionCase const& c) {
    SCOPED_TRACE(c.line);
    PROJDATA record = c.record;
    CProjector projector(&record);
    ASSERT_TRUE(projector.IsCreated());
    if (c.forward) {
        PROJPOINT map = c.geographic;
        ASSERT_TRUE(projector.Forward(&map, 1));
        EXPECT_NEAR(map.x, c.map.x, c.tolerance);
        EXPECT_NEAR(map.y, c.map.y, c.tolerance);
    }
    if (c.inverse) {
        PROJPOINT back = c.map;
        ASSERT_TRUE(projector.Inverse(&back, 1));
        EXPECT_LE(groundDistance(record, back, c.geographic), 1.5 * c.tolerance);
    }
}

} // namespace

PROJDATA recordOf(std::string const& words) {
    ProjectionCase result;
    readRecord(std::istringstream(words), result);
    return result.record;
}

std::vector<std::string> caseFiles() {
    std::vector<std::string> files;
    for (auto const& entry : std::filesystem::directory_iterator(ZRPROJ_TEST_DATA "/projections"))
        if (entry.path().extension() == ".txt")
            files.push_back(entry.path().filename().string());
    std::ranges::sort(files);
    return files;
}

std::vector<ProjectionCase> projectionCases(std::string const& file) {
    std::ifstream in(std::string(ZRPROJ_TEST_DATA "/projections/") + file);
    std::vector<ProjectionCase> cases;
    for (std::string line; std::getline(in, line);) {
        if (line.empty() || line[0] == '#')
            continue;
        try {
            cases.push_back(readCase(line));
        } catch (std::exception const& fault) {
            ADD_FAILURE() << file << ": " << line << ": " << fault.what();
        }
    }
    return cases;
}

void expectProjectionCases(std::string const& file) {
    auto const cases = projectionCases(file);
    ASSERT_FALSE(cases.empty()) << file;
    forEachLevel([&](formulas::Level) {
        for (auto const& c : cases)
            expectCase(c);
    });
}

} // namespace ZrProj::test
