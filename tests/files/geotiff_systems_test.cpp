// TIFF files of many coordinate systems: their tags are read into records that convert like the program that wrote
// them, and written again into tags that read back as the same system.
#include "support/bytes.h"
#include "support/geotiff_cases.h"

#include <zrproj/zrproj.h>

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstring>

namespace ZrProj::test {
namespace {

/// A packed record's field, which no reference may be bound to.
template <class T> T value(T field) {
    return field;
}

struct Read {
    bool good = false;
    PROJDATA projection = {};
    DatumType datum = DatumTypeNone;
    DATUM2WGS84 params = {};
    GEOREF georef = {};
    std::uint32_t flags = 0;
    std::string explanation;
};

Read read(ZrBitmapTagList const& tags) {
    Read r;
    r.good = ZrProjGetGeoTIFF(tags, &r.projection, &r.datum, &r.params, &r.georef, &r.flags);
    std::array<char, 1024> text = {};
    EXPECT_TRUE(ZrProjExplainGeoTIFF(tags, text.data(), static_cast<int>(text.size())));
    r.explanation = text.data();
    return r;
}

double unitOf(PROJDATA const& projection) {
    return projection.Type == ProjTypeUnprojectedLatLong ? 1e-9 : 1.1e-3 * projection.Scale;
}

void expectPoints(PROJDATA record, std::vector<GeoTIFFPoint> const& points) {
    CProjector projector(&record);
    ASSERT_TRUE(projector.IsCreated());
    for (GeoTIFFPoint const& expected : points) {
        PROJPOINT p = expected.degrees;
        ASSERT_TRUE(projector.Forward(&p, 1));
        EXPECT_NEAR(p.x, expected.map.x, unitOf(record)) << expected.degrees.x << ' ' << expected.degrees.y;
        EXPECT_NEAR(p.y, expected.map.y, unitOf(record)) << expected.degrees.x << ' ' << expected.degrees.y;
    }
}

TEST(GeoTIFFSystems, ConvertAsTheirWriterDoes) {
    auto const cases = readGeoTIFFCases("systems.txt");
    ASSERT_GT(cases.size(), 60u);
    for (GeoTIFFCase const& c : cases) {
        SCOPED_TRACE(c.system);
        Read const r = read(c.tags);
        EXPECT_TRUE(r.good);
        EXPECT_EQ(r.flags & 4, 4u); // the placement is there whatever the system
        if (!c.refused.empty()) {
            EXPECT_EQ(r.flags & 3, 0u);
            EXPECT_EQ(value(r.projection.Type), ProjTypeUndefined);
            EXPECT_EQ(r.explanation.substr(0, c.refused.size()), c.refused);
            continue;
        }
        EXPECT_EQ(r.flags & 1, 1u) << r.explanation;
        if (r.flags & 1)
            expectPoints(r.projection, c.points);
    }
}

TEST(GeoTIFFSystems, SurviveBeingWrittenAndReadAgain) {
    for (GeoTIFFCase const& c : readGeoTIFFCases("systems.txt")) {
        if (!c.refused.empty())
            continue;
        SCOPED_TRACE(c.system);
        Read const first = read(c.tags);
        ZrBitmapTag* tags = nullptr;
        int count = 0;
        std::array<char, 512> reason = {};
        ZrProjExplainGeoTIFFTags(&first.projection, first.datum, &first.params, &first.georef, reason.data(), 512);
        if (first.projection.Type == ProjTypeMollweide) {
            EXPECT_STREQ(reason.data(), "GeoTIFF has no name for the projection Mollweide");
            continue;
        }
        EXPECT_STREQ(reason.data(), "");
        ASSERT_TRUE(
            ZrProjBuildGeoTIFFTags(&first.projection, first.datum, &first.params, &first.georef, &tags, &count));
        ZrBitmapTagList list;
        for (int i = 0; i < count; ++i)
            EXPECT_TRUE(list.Add(tags[i]));
        ZrProjDiscardGeoTIFFTags(tags, count);
        Read const again = read(list);
        EXPECT_EQ(again.flags, first.flags) << again.explanation;
        EXPECT_EQ(again.datum, first.datum);
        EXPECT_TRUE(test::sameBytes(again.georef, first.georef));
        expectPoints(again.projection, c.points);
    }
}

} // namespace
} // namespace ZrProj::test
