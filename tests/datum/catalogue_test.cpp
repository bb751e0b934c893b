#include "datum/datum_table.h"

#include <zrproj/datum.h>

#include <gtest/gtest.h>

#include <climits>
#include <cstring>
#include <fstream>
#include <iomanip>
#include <sstream>
#include <string>
#include <vector>

using namespace ZrProj;

namespace {

struct Row {
    int type = 0, posc = 0, method = 0, ellipsoid = 0;
    std::string name;
    double numbers[8] = {}; // dX dY dZ rX rY rZ scale prime-meridian
};

/// tests/data/datums.txt, in its order.
std::vector<Row> readRows() {
    std::ifstream in(ZRPROJ_TEST_DATA "/datums.txt");
    std::vector<Row> rows;
    for (std::string line; std::getline(in, line);) {
        if (line[0] == '#')
            continue;
        Row row;
        std::istringstream words(line);
        words >> row.type >> row.posc >> std::quoted(row.name) >> row.method >> row.ellipsoid;
        for (double& number : row.numbers)
            words >> number;
        EXPECT_TRUE(words) << line;
        rows.push_back(row);
    }
    return rows;
}

DatumType datum(int type) {
    return static_cast<DatumType>(type);
}

std::string nameOf(int type) {
    char name[49];
    DatGetDatumName(datum(type), name);
    return name;
}

void expectParams(Row const& row) {
    DATUM2WGS84 params;
    std::memset(&params, 0xA5, sizeof params);
    bool const isTwoWay = row.method == DatumMethodMolodensky || row.method == DatumMethodBursaWolf;
    ASSERT_EQ(DatGetDatumParams(datum(row.type), &params), isTwoWay);
    EXPECT_EQ(DatReversible(datum(row.type)), isTwoWay);
    EXPECT_EQ(params.Reserved[0], 0xA5);
    EXPECT_EQ(params.Reserved[63], 0xA5);
    if (!isTwoWay)
        return;
    EXPECT_EQ(+params.Method, row.method);
    EXPECT_FALSE(+params.bFromWGS84);
    EXPECT_EQ(+params.Ellipsoid, row.ellipsoid);
    double const numbers[] = {params.dX, params.dY, params.dZ,    params.rX,
                              params.rY, params.rZ, params.Scale, params.PrimeMeridian};
    for (std::size_t i = 0; i < 8; ++i)
        EXPECT_EQ(numbers[i], row.numbers[i]) << i;
    EXPECT_EQ(+params.MajorRadius, EllipsoidRadius(static_cast<EllipsoidType>(row.ellipsoid)));
    EXPECT_EQ(+params.Flattening, EllipsoidFlattening(static_cast<EllipsoidType>(row.ellipsoid)));
}

} // namespace

TEST(DatumCatalogue, HoldsEveryRowInItsOrder) {
    static_assert(sizeof(DATUM2WGS84) == 153 && sizeof(DATUMXFORM) == 315);
    auto const rows = readRows();
    ASSERT_EQ(rows.size(), 236u);
    for (std::size_t i = 0; i < rows.size(); ++i) {
        auto const& row = rows[i];
        SCOPED_TRACE(row.name);
        EXPECT_EQ(datumTable[i].type, row.type);
        EXPECT_EQ(datumTable[i].ellipsoid, row.ellipsoid);
        EXPECT_EQ(nameOf(row.type), row.name);
        int code = 0;
        EXPECT_EQ(DatGetDatumPOSCNumber(datum(row.type), &code), row.posc != 0);
        EXPECT_EQ(code, row.posc);
        DatumMethod method{};
        EXPECT_TRUE(DatGetDatumMethod(datum(row.type), &method));
        EXPECT_EQ(method, row.method);
        expectParams(row);
        DatumType type{};
        EXPECT_TRUE(DatGetDatumFromName(&type, row.name.c_str()));
        EXPECT_EQ(type, row.type);
    }
}

TEST(DatumCatalogue, IsComposedAsItIsDescribed) {
    int methods[7] = {}, ellipsoids[51] = {}, coded = 0;
    for (auto const& row : datumTable) {
        ++methods[row.method];
        ++ellipsoids[row.ellipsoid];
        coded += row.posc != 0;
    }
    EXPECT_EQ(methods[DatumMethodMolodensky], 214);
    EXPECT_EQ(methods[DatumMethodBursaWolf], 12);
    EXPECT_EQ(methods[DatumMethodMRE], 8);
    EXPECT_EQ(methods[DatumMethodNadcon], 2);
    EXPECT_EQ(coded, 55);
    EXPECT_EQ(ellipsoids[EllipsoidTypeInternational1924], 84);
    EXPECT_EQ(ellipsoids[EllipsoidTypeClarke1880Mod], 41);
    EXPECT_EQ(ellipsoids[EllipsoidTypeClarke1866], 36);
    EXPECT_EQ(ellipsoids[EllipsoidTypeAustralianNatlSAmer1969], 19);
    EXPECT_EQ(ellipsoids[EllipsoidTypeBessel1841], 13);
    EXPECT_EQ(ellipsoids[EllipsoidTypeNone], 10 + 1); // and the end row
    EXPECT_EQ(DatNumDatums(), datumTable.back().type);
}

TEST(DatumCatalogue, FindsNamesInAnyCase) {
    EXPECT_EQ(nameOf(0), "User Defined");
    DatumType type{};
    auto const found = [&](char const* name) { return DatGetDatumFromName(&type, name) ? int(type) : -1; };
    EXPECT_EQ(found("uSER dEFINED"), 0);
    EXPECT_EQ(found("nad 1927 - conus"), 124);
    for (char const* const none : {"WGS 84", "", " Tokyo", "Tokyo ", "Toky"})
        EXPECT_EQ(found(none), -1) << none;
    EXPECT_EQ(int(type), 124); // untouched by what is not found
    EXPECT_FALSE(DatGetDatumFromName(nullptr, "Tokyo"));
    EXPECT_FALSE(DatGetDatumFromName(&type, nullptr));
    DatGetDatumName(DatumTypeTokyo, nullptr);
}

TEST(DatumCatalogue, FindsTheFirstOfSeveralCodes) {
    DatumType type = DatumTypeTokyo;
    EXPECT_FALSE(DatGetDatumFromPOSCNumber(&type, 0));
    EXPECT_FALSE(DatGetDatumFromPOSCNumber(&type, 6999));
    EXPECT_FALSE(DatGetDatumFromPOSCNumber(nullptr, 6267));
    EXPECT_EQ(type, DatumTypeTokyo);
    EXPECT_TRUE(DatGetDatumFromPOSCNumber(&type, 6267));
    EXPECT_EQ(type, 2);
    EXPECT_TRUE(DatGetDatumPOSCNumber(DatumTypeNorthAmericanDatum1983, nullptr));
}

TEST(DatumCatalogue, OutsideTheCatalogue) {
    DATUM2WGS84 params{};
    DatumMethod method{};
    int code = 5;
    for (int const type : {0, -1, 237, 238, INT_MIN, INT_MAX}) {
        SCOPED_TRACE(type);
        EXPECT_EQ(nameOf(type), type == 0 ? "User Defined" : "");
        EXPECT_FALSE(DatGetDatumPOSCNumber(datum(type), &code));
        EXPECT_FALSE(DatReversible(datum(type)));
        EXPECT_FALSE(DatGetDatumParams(datum(type), &params));
        EXPECT_FALSE(DatGetDatumMethod(datum(type), &method));
    }
    EXPECT_EQ(code, 5);
    EXPECT_FALSE(DatGetDatumParams(DatumTypeTokyo, nullptr));
    EXPECT_FALSE(DatGetDatumMethod(DatumTypeTokyo, nullptr));
}
