#include "support/cases.h"

#include "support/levels.h"
#include "support/registry.h"

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>

namespace ZrProj::test {
namespace {

PROJPOINT readPoint(std::istream&& words) {
    PROJPOINT point{NAN, NAN};
    words >> point.x >> point.y;
    if (!words)
        throw std::invalid_argument("not a point");
    return point;
}

/// Takes the last word off the words if it is that one.
bool takeLast(std::string& words, std::string const& word) {
    bool const found = words.ends_with(' ' + word);
    if (found)
        words.resize(words.size() - word.size() - 1);
    return found;
}

ProjectionCase readCase(std::string const& line) {
    auto const fields = fieldsOf(line);
    if (fields.size() != 5 || fields.back().empty())
        throw std::invalid_argument("not five fields");
    std::string words = fields[0];
    ProjectionCase result;
    result.inverse = !takeLast(words, "forward");
    result.forward = !takeLast(words, "inverse");
    result.record = recordOf(words);
    result.words = words;
    result.geographic = readPoint(std::istringstream(fields[1]));
    result.map = readPoint(std::istringstream(fields[2]));
    result.tolerance = std::stod(fields[3]);
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
    Projection projection(c.words);
    if (c.forward) {
        PROJPOINT const map = projection.forward(c.geographic);
        EXPECT_NEAR(map.x, c.map.x, c.tolerance);
        EXPECT_NEAR(map.y, c.map.y, c.tolerance);
    }
    if (c.inverse) {
        PROJPOINT const back = projection.inverse(c.map);
        EXPECT_LE(groundDistance(projection.record(), back, c.geographic), 1.5 * c.tolerance);
    }
}

} // namespace

std::vector<std::string> caseFiles() {
    std::vector<std::string> files;
    for (auto const& entry : std::filesystem::directory_iterator(ZRPROJ_TEST_DATA "/projections"))
        if (entry.path().extension() == ".txt" && !projectionCases(entry.path().filename()).empty())
            files.push_back(entry.path().filename().string());
    std::ranges::sort(files);
    return files;
}

std::vector<ProjectionCase> projectionCases(std::string const& file) {
    std::ifstream in(std::string(ZRPROJ_TEST_DATA "/projections/") + file);
    std::vector<ProjectionCase> cases;
    for (std::string line; std::getline(in, line);) {
        if (line.starts_with('#') || line.starts_with("sweep |") || line.starts_with("bench"))
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
    forEachLevel([&](levels::Level) {
        for (auto const& c : cases)
            expectCase(c);
    });
}

} // namespace ZrProj::test
