#include "datum/method_table.h"
#include "support/datum.h"
#include "support/error_host.h"

#include <cmath>
#include <functional>
#include <limits>
#include <string>

using namespace ZrProj;
using test::datumRequest;

namespace {

constexpr double bound = 1.7014117331926443e38;
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

DATUM2WGS84 valid(DatumMethod method) {
    DATUM2WGS84 record{};
    record.Method = method;
    record.MajorRadius = 6378137;
    return record;
}

struct Case {
    DatumMethod method;
    std::function<void(DATUM2WGS84&)> spoil;
    unsigned error; // 0: the record passes
    int code;
};

Case const cases[] = {
    {static_cast<DatumMethod>(-1), [](DATUM2WGS84&) {}, 20262, 3},
    {DatumMethodReserved, [](DATUM2WGS84&) {}, 20262, 3},
    {unknownDatumMethod, [](DATUM2WGS84&) {}, 20262, 3},
    {DatumMethodNone, [](DATUM2WGS84& r) { r.Ellipsoid = EllipsoidTypeNone, r.dX = 1e300; }, 0, 0},
    {DatumMethodNadcon, [](DATUM2WGS84& r) { r.MajorRadius = -1; }, 0, 0},
    {DatumMethodMRE, [](DATUM2WGS84& r) { r.PrimeMeridian = 999; }, 0, 0},
    {DatumMethodMolodensky, [](DATUM2WGS84& r) { r.Ellipsoid = EllipsoidTypeNone; }, 20263, 4},
    {DatumMethodMolodensky, [](DATUM2WGS84& r) { r.Ellipsoid = EllipsoidType(-1), r.MajorRadius = -1; }, 20263, 4},
    {DatumMethodMolodensky, [](DATUM2WGS84& r) { r.MajorRadius = 0; }, 20249, 13},
    {DatumMethodBursaWolf, [](DATUM2WGS84& r) { r.MajorRadius = notANumber; }, 20249, 13},
    {DatumMethodBursaWolf,
     [](DATUM2WGS84& r) { r.Ellipsoid = EllipsoidTypeWgs84, r.MajorRadius = -1, r.Flattening = 2; }, 0, 0},
    {DatumMethodMolodensky, [](DATUM2WGS84& r) { r.Flattening = -1e-300; }, 20250, 14},
    {DatumMethodMolodensky, [](DATUM2WGS84& r) { r.Flattening = 1; }, 20250, 14},
    {DatumMethodMolodensky, [](DATUM2WGS84& r) { r.Flattening = notANumber; }, 20250, 14},
    {DatumMethodMolodensky, [](DATUM2WGS84& r) { r.PrimeMeridian = -180; }, 0, 0},
    {DatumMethodMolodensky, [](DATUM2WGS84& r) { r.PrimeMeridian = std::nextafter(180, 200); }, 20264, 5},
    {DatumMethodBursaWolf, [](DATUM2WGS84& r) { r.PrimeMeridian = notANumber, r.dX = 1e300; }, 20264, 5},
    {DatumMethodMolodensky, [](DATUM2WGS84& r) { r.dX = bound, r.dY = -bound, r.dZ = notANumber; }, 0, 0},
    {DatumMethodMolodensky, [](DATUM2WGS84& r) { r.dX = std::nextafter(bound, HUGE_VAL); }, 20265, 6},
    {DatumMethodMolodensky, [](DATUM2WGS84& r) { r.dY = -HUGE_VAL; }, 20266, 7},
    {DatumMethodBursaWolf, [](DATUM2WGS84& r) { r.dZ = 1e39; }, 20267, 8},
    {DatumMethodBursaWolf, [](DATUM2WGS84& r) { r.rX = 3600, r.rY = -3600, r.Scale = -5; }, 0, 0},
    {DatumMethodBursaWolf, [](DATUM2WGS84& r) { r.Scale = notANumber; }, 0, 0},
    {DatumMethodBursaWolf, [](DATUM2WGS84& r) { r.rX = 3600.1; }, 20268, 9},
    {DatumMethodBursaWolf, [](DATUM2WGS84& r) { r.rY = -3600.1; }, 20269, 10},
    {DatumMethodBursaWolf, [](DATUM2WGS84& r) { r.rZ = notANumber; }, 20270, 11},
    {DatumMethodMolodensky, [](DATUM2WGS84& r) { r.rX = 1e9; }, 0, 0},
};

/// The request's code with its message and report looked at.
int checked(DATUMXFORM const& request, unsigned error) {
    ErrorHost host;
    char message[260] = "untouched";
    int const code = DatCheckParams(&request, message, true);
    EXPECT_EQ(code == 0, error == 0);
    if (code == 0) {
        EXPECT_STREQ(message, "");
        EXPECT_TRUE(host.calls.empty());
        return code;
    }
    EXPECT_EQ(host.calls.size(), 2u); // asked, then told
    EXPECT_EQ(host.calls.back().number, error);
    EXPECT_EQ(host.calls.back().file, ".\\zrDatum.cpp");
    EXPECT_EQ(host.calls.back().text, message);
    return code;
}

} // namespace

TEST(DatumValidation, NamesTheFirstFaultOfEitherEnd) {
    for (auto const& c : cases) {
        SCOPED_TRACE(&c - cases);
        DATUMXFORM request = datumRequest(DatumTypeUserDefined, DatumTypeWorldGeodeticSystem1984);
        request.SourceParams = valid(c.method);
        c.spoil(request.SourceParams);
        EXPECT_EQ(checked(request, c.error), c.code);
        DATUMXFORM turned = datumRequest(DatumTypeWorldGeodeticSystem1984, DatumTypeUserDefined);
        turned.DestinationParams = request.SourceParams;
        EXPECT_EQ(checked(turned, c.error), c.code == 0 ? 0 : c.code + 12);
        turned.Source = request.Destination = DatumTypeTokyo; // not looked at beside a datum of the catalogue
        request.Source = DatumTypeTokyo;
        EXPECT_EQ(checked(request, 0), 0);
    }
}

TEST(DatumValidation, TakesOnlyDatumNumbers) {
    EXPECT_EQ(checked(datumRequest(static_cast<DatumType>(-1), static_cast<DatumType>(999)), 20260), 1);
    EXPECT_EQ(checked(datumRequest(DatumTypeNone, DatumTypeNorthAmericanDatum1983), 20260), 1);
    EXPECT_EQ(checked(datumRequest(DatumTypePulkovo1942HungaryBursaWolf, DatumTypeNone), 20261), 2);
    EXPECT_EQ(checked(datumRequest(DatumTypeUserDefined, static_cast<DatumType>(-1)), 20261), 2);
    EXPECT_EQ(checked(datumRequest(DatumTypeNad1927ConusNadcon, DatumTypeNad1927ConusMre), 0),
              0); // that it cannot be run, the conversion tells
    EXPECT_EQ(checked(datumRequest(DatumTypeUserDefined, DatumTypeUserDefined), 0), 0);
}

TEST(DatumValidation, NullAndSilence) {
    ErrorHost host;
    char message[260];
    EXPECT_EQ(DatCheckParams(nullptr, message, true), 998);
    EXPECT_STREQ(message, "NULL Pointer to datum parameters");
    EXPECT_EQ(DatCheckParams(nullptr, nullptr, true), 998);
    DATUMXFORM const bad = datumRequest(DatumTypeUserDefined, DatumTypeNone);
    EXPECT_EQ(DatCheckParams(&bad, message, false), 2);
    EXPECT_STREQ(message, "Invalid destination datum specified");
    EXPECT_TRUE(host.calls.empty());
    EXPECT_FALSE(DatCreateDatum(nullptr));
    EXPECT_TRUE(host.calls.empty());
    EXPECT_FALSE(DatCreateDatum(&bad));
    EXPECT_EQ(host.calls.back().number, 20261u);
}
