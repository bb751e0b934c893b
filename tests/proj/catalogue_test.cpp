#include "proj/projection_table.h"

#include <gtest/gtest.h>

#include <array>
#include <cstring>
#include <set>
#include <string>

using namespace ZrProj;

namespace {

std::string nameOf(int type, unsigned* bits = nullptr) {
    char name[64] = "untouched";
    auto const found = ProjGetProjectionInfo(static_cast<ProjType>(type), name);
    if (bits)
        *bits = found;
    return name;
}

} // namespace

TEST(Catalogue, NamesProjections) {
    unsigned bits = 0;
    int const count = ProjNumProjections();
    EXPECT_EQ(nameOf(4, &bits), "Universal Transverse Mercator (UTM)");
    EXPECT_EQ(bits, 0x1Bu);
    EXPECT_EQ(nameOf(28, &bits), "Azimuthal Equidistant");
    EXPECT_EQ(bits, 0x3Fu);
    EXPECT_EQ(nameOf(999, &bits), "undefined");
    EXPECT_EQ(bits, 0u);
    for (int const other : {-1, count, 998, 1000}) {
        EXPECT_EQ(nameOf(other, &bits), "");
        EXPECT_EQ(bits, 0u);
    }
    EXPECT_EQ(ProjGetProjectionInfo(ProjTypeMercator, nullptr), 0x2Fu);
    std::set<std::string> names;
    for (int type = 0; type < count; ++type)
        names.insert(nameOf(type));
    EXPECT_EQ(std::ssize(names), count);
}

TEST(Catalogue, RowsAreToldApart) {
    std::set<std::string> keys;
    std::set<int> transformations;
    for (auto const& row : projectionTable) {
        EXPECT_TRUE(keys.insert(row.key).second) << row.key;
        for (auto const& each : row.geotiff)
            EXPECT_TRUE(each.transformation == 0 || transformations.insert(each.transformation).second) << row.key;
        EXPECT_EQ(row.family == Family::None, row.method == Method::none) << row.key;
        for (auto const& set : row.picture)
            EXPECT_TRUE(set.parameter == ProjParamNone || ProjUsesParam(row.type, set.parameter)) << row.key;
    }
}

TEST(Catalogue, ListsTheParametersOfAType) {
    EXPECT_EQ(ProjNumParams(ProjTypeUnprojectedLatLong), 0);
    auto const none = static_cast<ProjType>(ProjNumProjections());
    EXPECT_EQ(ProjNumParams(none), -1);
    EXPECT_EQ(ProjEnumParam(none, 0), ProjParamNone);
    EXPECT_EQ(ProjNumParams(ProjTypeHotineObliqueMercator), 15);
    EXPECT_EQ(ProjEnumParam(ProjTypeHotineObliqueMercator, 14), ProjParamUOffset);
    EXPECT_EQ(ProjEnumParam(ProjTypeHotineObliqueMercator, 15), ProjParamNone);
    EXPECT_EQ(ProjEnumParam(ProjTypeHotineObliqueMercator, -1), ProjParamNone);
    EXPECT_EQ(ProjEnumParam(ProjTypeCassini, 4), ProjParamLat0);
    EXPECT_EQ(ProjEnumParam(ProjTypeMercator, 4), ProjParamLon0);
    EXPECT_TRUE(ProjUsesParam(ProjTypeObliqueMercator, ProjParamK0));
    EXPECT_FALSE(ProjUsesParam(ProjTypeMercator, ProjParamK0));
    EXPECT_FALSE(ProjUsesParam(ProjTypeMercator, ProjParamNone));
    EXPECT_FALSE(ProjUsesParam(ProjTypeUndefined, ProjParamScale));
    for (int type = 0; type < ProjNumProjections(); ++type)
        for (int i = 0; i < ProjNumParams(static_cast<ProjType>(type)); ++i)
            EXPECT_TRUE(
                ProjParamInfo(ProjEnumParam(static_cast<ProjType>(type), i), nullptr, nullptr, nullptr, nullptr))
                << type << " " << i;
}

TEST(Catalogue, DescribesAParameter) {
    char name[64];
    ProjDataType type = ProjDataTypeNone;
    int offset = 0, size = 0;
    ASSERT_TRUE(ProjParamInfo(ProjParamZone, name, &type, &offset, &size));
    EXPECT_STREQ(name, "State Zone");
    EXPECT_EQ(type, ProjDataTypeStateZone);
    EXPECT_EQ(offset, 101);
    EXPECT_EQ(size, 4);
    ASSERT_TRUE(ProjParamInfo(ProjParamFlattening, nullptr, nullptr, &offset, nullptr));
    EXPECT_EQ(offset, 128);
    for (int const unknown : {0, 23, -1})
        EXPECT_FALSE(ProjParamInfo(unknown, name, &type, &offset, &size));
}

TEST(Catalogue, ReadsAndWritesParametersByIdentifier) {
    std::array<unsigned char, sizeof(PROJDATA)> bytes;
    bytes.fill(0xA5);
    auto const before = bytes;
    auto* const record = reinterpret_cast<PROJDATA*>(bytes.data());
    bool const south = true;
    ASSERT_TRUE(ProjSetParam(record, ProjParamSouth, &south));
    for (std::size_t i = 0; i < bytes.size(); ++i)
        EXPECT_EQ(bytes[i], i == 100 ? 1 : before[i]) << i;
    double const northing = 1234.5;
    double read = 0;
    ASSERT_TRUE(ProjSetParam(record, ProjParamYOrg, &northing) && ProjGetParam(record, ProjParamYOrg, &read));
    EXPECT_EQ(read, northing);
    EXPECT_EQ(+record->yOrg, northing);
    EXPECT_FALSE(ProjSetParam(record, ProjParamNone, &northing));
    EXPECT_FALSE(ProjGetParam(record, 23, &read));
    EXPECT_FALSE(ProjGetParam(nullptr, ProjParamYOrg, &read));
    EXPECT_FALSE(ProjSetParam(record, ProjParamYOrg, nullptr));
}
