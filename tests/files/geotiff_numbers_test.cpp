// Projected systems by number alone: each converts as the registry defines it.
#include "support/geotiff_cases.h"

#include <zrproj/zrproj.h>

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

namespace ZrProj::test {
namespace {

ZrBitmapTagList tagsOf(std::uint16_t system) {
    ZrBitmapTagList tags;
    addShorts(tags, 34735, {1, 1, 0, 2, 1024, 0, 1, 1, 3072, 0, 1, system});
    return tags;
}

TEST(GeoTIFFNumbers, MeanWhatTheRegistryDefines) {
    std::ifstream file(ZRPROJ_TEST_DATA "/geotiff/numbered.txt");
    std::string text;
    std::getline(file, text);
    int count = 0, unsaid = 0; // by any record
    for (; std::getline(file, text); ++count) {
        std::istringstream line(text);
        std::uint16_t code = 0;
        PROJPOINT p = {}, expected = {};
        line >> code >> p.x >> p.y >> expected.x >> expected.y;
        SCOPED_TRACE(text);
        PROJDATA record = {};
        std::uint32_t flags = 0;
        EXPECT_TRUE(ZrProjGetGeoTIFF(tagsOf(code), &record, nullptr, nullptr, nullptr, &flags));
        if (flags == 16) {
            ++unsaid;
            continue;
        }
        EXPECT_EQ(flags, 17u);
        // In the registry, zones of 1927 have rounded parameters: 1.02 mm for Alaska 1, 2.8 mm for Rhode Island.
        double const metres = record.Type == ProjTypeStatePlane1927 ? 3e-3 : 1e-3;
        double const tolerance = metres * record.Scale;
        CProjector projector(&record);
        EXPECT_TRUE(projector.Forward(&p, 1));
        EXPECT_NEAR(p.x, expected.x, tolerance);
        EXPECT_NEAR(p.y, expected.y, tolerance);
    }
    EXPECT_GT(count, 1800);
    EXPECT_LT(unsaid, count / 20);
}

} // namespace
} // namespace ZrProj::test
