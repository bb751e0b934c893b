#include "support/bytes.h"
#include "support/datum.h"
#include "support/error_host.h"
#include "support/floating_point.h"
#include "support/levels.h"

#include <cmath>
#include <cstring>
#include <limits>
#include <vector>

using namespace ZrProj;
using test::DatumHandle;
using test::datumRequest;
using test::isMarked;
using test::toOrFromWgs84;

namespace {

constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
constexpr double infinity = std::numeric_limits<double>::infinity();

DATUM2WGS84 paramsOf(DatumType type, bool fromWgs84) {
    DATUM2WGS84 params{};
    EXPECT_TRUE(DatGetDatumParams(type, &params));
    params.bFromWGS84 = fromWgs84;
    return params;
}

DATUMXFORM ownEnds(DATUM2WGS84 const& source, DATUM2WGS84 const& destination) {
    DATUMXFORM request = datumRequest(DatumTypeUserDefined, DatumTypeUserDefined);
    request.SourceParams = source;
    request.DestinationParams = destination;
    return request;
}

void expectNear(DATUMPOINT const& a, DATUMPOINT const& b, double tolerance = 1e-12) {
    EXPECT_NEAR(a.x, b.x, tolerance);
    EXPECT_NEAR(a.y, b.y, tolerance);
}

/// A conversion that is refused: an assertion of this source, and the points as they were.
void expectRefused(DATUMXFORM const& request) {
    DatumHandle const handle(request);
    ASSERT_TRUE(handle.handle);
    ErrorHost host;
    DATUMPOINT point{500, 100};
    EXPECT_FALSE(DatConvertDatum(handle.handle, &point, 1));
    ASSERT_EQ(host.calls.size(), 2u);
    EXPECT_EQ(host.calls.back().number, 20200u);
    EXPECT_EQ(host.calls.back().file, ".\\zrDatum.cpp");
    expectNear(point, {500, 100}, 0);
}

} // namespace

TEST(DatumConversion, RefusesBadArguments) {
    DatumHandle const handle(datumRequest(DatumTypeNorthAmericanDatum1927, DatumTypeWorldGeodeticSystem1984));
    ErrorHost host;
    DATUMPOINT point{-90, 40};
    DATUMXFORM request{};
    EXPECT_FALSE(DatConvertDatum(nullptr, &point, 1));
    EXPECT_FALSE(DatHadUnplottables(nullptr));
    EXPECT_FALSE(DatGetHandleInfo(nullptr, &request));
    EXPECT_FALSE(DatGetHandleInfo(handle.handle, nullptr));
    DatDeleteDatum(nullptr);
    EXPECT_TRUE(host.calls.empty());
    EXPECT_FALSE(DatConvertDatum(handle.handle, nullptr, 1));
    EXPECT_FALSE(DatConvertDatum(handle.handle, &point, 0));
    EXPECT_FALSE(DatConvertDatum(handle.handle, &point, -7));
    EXPECT_EQ(host.calls.size(), 6u); // each assertion asks, then tells
}

TEST(DatumConversion, RefusesWhatCannotBeRun) {
    for (DatumType const oneWay :
         {DatumTypeAustralianGeodetic1966Mre, DatumTypeNad1927ConusMre, DatumTypeSouthAmerican1969Mre,
          DatumTypeNad1927ConusNadcon, DatumTypeNad1927PuertoRicoVirginIslandsNadcon}) {
        expectRefused(datumRequest(DatumTypeNorthAmericanDatum1927, oneWay));
        expectRefused(datumRequest(DatumTypeUserDefined, oneWay));
    }
    for (auto const method : {DatumMethodNadcon, DatumMethodMRE}) {
        DATUM2WGS84 own{};
        own.Method = method;
        expectRefused(ownEnds(own, {}));
        expectRefused(ownEnds({}, own));
        DATUMXFORM request = datumRequest(DatumTypeUserDefined, DatumTypeWorldGeodeticSystem1984);
        request.SourceParams = own;
        expectRefused(request);
    }
}

TEST(DatumConversion, LeavesPointsOfOneDatumAlone) {
    for (DatumType const type :
         {DatumTypeNorthAmericanDatum1983, DatumTypeNorthAmericanDatum1927, DatumTypeWorldGeodeticSystem1972BursaWolf,
          DatumTypeNad1927ConusMre, DatumTypeNad1927ConusNadcon}) {
        DatumHandle const handle(datumRequest(type, type));
        DATUMPOINT points[] = {{500, 100}, {notANumber, DBL_MAX}};
        EXPECT_TRUE(DatConvertDatum(handle.handle, points, 2));
        EXPECT_EQ(points[0].x, 500);
        EXPECT_EQ(points[0].y, 100);
        EXPECT_TRUE(std::isnan(points[1].x));
        EXPECT_FALSE(DatHadUnplottables(handle.handle));
    }
}

TEST(DatumConversion, NormalisesAndKeepsTheCallersSide) {
    test::forEachLevel([](levels::Level) {
        for (DatumType const type : {DatumTypeNorthAmericanDatum1927, DatumTypeDhdnBursaWolf}) {
            DatumHandle const handle(datumRequest(type, DatumTypeWorldGeodeticSystem1984));
            auto const east = handle(-160, 40);
            EXPECT_GT(std::abs(east.x + 160), 1e-5);
            expectNear(handle(200, 40), {east.x + 360, east.y});
            expectNear(handle(560, 40), {east.x + 360, east.y});
            auto const west = handle(160, 40);
            expectNear(handle(-200, 40), {west.x - 360, west.y});
            expectNear(handle(180, 40),
                       {handle(-180, 40).x + (type == DatumTypeNorthAmericanDatum1927 ? 360 : 0), handle(-180, 40).y},
                       1e-11);
            expectNear(handle(10, 100), handle(10, 80), 0);
            expectNear(handle(10, -100), handle(10, -80), 0);
            expectNear(handle(10, 260), handle(10, 80), 0);
            expectNear(handle(0, 0), handle(360, 180), 0);
            EXPECT_FALSE(DatHadUnplottables(handle.handle));
        }
        DatumHandle const nothing(datumRequest(DatumTypeUserDefined, DatumTypeUserDefined));
        expectNear(nothing(-359.5, 10), {-359.5, 10}, 1e-13);
        expectNear(nothing(-365, -95), {-5, -85}, 0);
    });
}

TEST(DatumConversion, MarksBrokenPointsAndKeepsTheirNeighbours) {
    test::forEachLevel([](levels::Level) {
        DatumHandle const handle(datumRequest(DatumTypeEuropean1950Mean, DatumTypeWorldGeodeticSystem1972BursaWolf));
        auto const good = handle(9, 45);
        for (auto const& bad : {DATUMPOINT{9, notANumber},
                                {notANumber, 45},
                                {infinity, 45},
                                {9, -infinity},
                                {DBL_MAX, 45},
                                {9, DBL_MAX},
                                {DBL_MAX, DBL_MAX}}) {
            DATUMPOINT points[] = {{9, 45}, bad, {9, 45}};
            EXPECT_TRUE(DatConvertDatum(handle.handle, points, 3));
            EXPECT_TRUE(DatHadUnplottables(handle.handle));
            EXPECT_TRUE(isMarked(points[1]));
            expectNear(points[0], good, 0);
            expectNear(points[2], good, 0);
        }
        EXPECT_FALSE(isMarked(handle(-DBL_MAX, -DBL_MAX))); // finite, and not the marker
        EXPECT_FALSE(DatHadUnplottables(handle.handle));
    });
}

// The record's flag is the direction: set for neither end, both go towards WGS 84.
TEST(DatumConversion, AppliesOwnRecordsInTheirDirection) {
    test::forEachLevel([](levels::Level) {
        for (DatumType const type : {DatumTypeAdindanMean, DatumTypeDhdnBursaWolf}) {
            DatumHandle const from(toOrFromWgs84(type, true)), to(toOrFromWgs84(type, false));
            auto const forth = paramsOf(type, false), back = paramsOf(type, true);
            auto const p = from(30, 15), q = to(30, 15);
            expectNear(DatumHandle(ownEnds(forth, forth))(30, 15), from(p.x, p.y));
            expectNear(DatumHandle(ownEnds(forth, back))(30, 15), to(p.x, p.y));
            expectNear(DatumHandle(ownEnds(back, forth))(30, 15), from(q.x, q.y));
            expectNear(DatumHandle(ownEnds(back, back))(30, 15), to(q.x, q.y));
            auto request = ownEnds(forth, back); // any byte but 0 sets the flag
            std::memset(&request.DestinationParams.bFromWGS84, 0x80, 1);
            expectNear(DatumHandle(request)(30, 15), to(p.x, p.y));
            request = datumRequest(
                DatumTypeUserDefined,
                DatumTypeWorldGeodeticSystem1984); // the caller's figures of a catalogue ellipsoid are not believed
            request.SourceParams = forth;
            request.SourceParams.MajorRadius = 1;
            expectNear(DatumHandle(request)(30, 15), p);
        }
    });
}

TEST(DatumConversion, MarksWhatAFormulaCannotGive) {
    test::forEachLevel([](levels::Level) {
        auto own = paramsOf(DatumTypeDhdnBursaWolf, false);
        own.Scale = -1e6; // shrinks the Earth to the point (dX, dY, dZ)
        expectNear(DatumHandle(ownEnds(own, {}))(10, 20), DatumHandle(ownEnds(own, {}))(50, -60), 0);
        own.dX = own.dY = own.dZ = 0;
        EXPECT_TRUE(isMarked(DatumHandle(ownEnds(own, {}))(10, 20)));
        own.bFromWGS84 = true;
        EXPECT_TRUE(isMarked(DatumHandle(ownEnds(own, {}))(10, 20)));
        own = paramsOf(DatumTypeNorthAmericanDatum1927, false);
        own.dX = notANumber;
        DatumHandle const handle(ownEnds(own, {}));
        EXPECT_TRUE(isMarked(handle(10, 20)));
        EXPECT_TRUE(DatHadUnplottables(handle.handle));
        own.dX = 1.7e38; // far, but finite
        EXPECT_FALSE(isMarked(DatumHandle(ownEnds(own, {}))(10, 20)));
    });
}

TEST(DatumConversion, AppliesAPrimeMeridianAsAShift) {
    DatumHandle const paris(
        datumRequest(DatumTypeNtfFranceParisMeridian,
                     DatumTypeNtfFranceGreenwichMeridian)); // one datum but for meridian, ellipsoid and shifts
    EXPECT_NEAR(paris(0, 48.85).x, 2.337229167, 2e-3);
    DatumHandle const bursaWolf(
        datumRequest(DatumTypeNtfFranceParisMeridianBursaWolf, DatumTypeWorldGeodeticSystem1984));
    EXPECT_NEAR(bursaWolf(0, 48.85).x, 2.337229167, 2e-3);
    DatumHandle const back(datumRequest(DatumTypeWorldGeodeticSystem1984, DatumTypeNtfFranceParisMeridianBursaWolf));
    EXPECT_NEAR(back(2.337229167, 48.85).x, 0, 2e-3);
}

TEST(DatumConversion, PolesAreConvertedInLatitude) {
    test::forEachLevel([](levels::Level) {
        for (double const pole : {90.0, -90.0}) {
            DatumHandle const molodensky(
                datumRequest(DatumTypeNorthAmericanDatum1927, DatumTypeWorldGeodeticSystem1984)),
                bursaWolf(datumRequest(DatumTypeDhdnBursaWolf, DatumTypeWorldGeodeticSystem1984));
            EXPECT_NEAR(molodensky(30, pole).y, pole, 1e-2);
            EXPECT_NEAR(bursaWolf(30, pole).y, pole, 1e-2);
            EXPECT_FALSE(DatHadUnplottables(molodensky.handle));
        }
    });
}

// The first step leaves a longitude without meaning, up to 1e17 degrees: the second may turn by it, but not run away.
TEST(DatumConversion, PolesAreConvertedThroughTwoSteps) {
    DatumType const datums[] = {DatumTypeNorthAmericanDatum1927,
                                DatumTypeWorldGeodeticSystem1984,
                                DatumTypeEuropean1950Mean,
                                DatumTypeAdindanMean,
                                DatumTypeNtfFranceParisMeridian,
                                DatumTypeKusaieAstro1951,
                                DatumTypeDhdnBursaWolf,
                                DatumTypeMrtEverestModifiedBursaWolf,
                                DatumTypeNtfFranceParisMeridianBursaWolf};
    test::forEachLevel([&](levels::Level) {
        for (DatumType const from : datums)
            for (DatumType const to : datums)
                for (double const pole : {90.0, -90.0})
                    for (double const longitude : {-180.0, -77.0, 0.0, 120.0, 180.0}) {
                        if (from == to)
                            continue;
                        DatumHandle const handle(datumRequest(from, to));
                        auto const p = handle(longitude, pole);
                        EXPECT_NEAR(p.y, pole, 3e-2) << from << " to " << to;
                        EXPECT_LE(std::abs(p.x), 360) << from << " to " << to;
                        EXPECT_FALSE(DatHadUnplottables(handle.handle));
                    }
    });
}

// A shift that moves a point on the equator by millions of turns, east alone: the next step takes what is left of them.
TEST(DatumConversion, StepsTakeALongitudeWithoutItsTurns) {
    test::forEachLevel([&](levels::Level) {
        for (double const shift : {1e12, 1e18, -1e18}) {
            auto far = paramsOf(DatumTypeNorthAmericanDatum1927, false);
            far.dX = shift;
            far.dZ = 0;
            DATUM2WGS84 const next = paramsOf(DatumTypeEuropean1950Mean, true);
            auto const left = DatumHandle(ownEnds(far, {}))(20, 0);
            auto const both = DatumHandle(ownEnds(far, next))(20, 0);
            auto const alone = DatumHandle(ownEnds({}, next))(left.x, left.y);
            EXPECT_LT(std::abs(std::remainder(both.x - alone.x, 360)), 1e-9);
            EXPECT_NEAR(both.y, alone.y, 1e-12);
            EXPECT_NE(both.y, left.y);
        }
    });
}

TEST(DatumConversion, GivesTheRequestBackUnchanged) {
    DATUMXFORM request;
    std::memset(static_cast<void*>(&request), 0x2A, sizeof request);
    request.Source = request.Destination = DatumTypeUserDefined;
    request.SourceParams.Method = DatumMethodMolodensky;
    request.SourceParams.Ellipsoid = EllipsoidTypeClarke1866;
    request.SourceParams.PrimeMeridian = 0;
    request.DestinationParams.Method = DatumMethodNone;
    DatumHandle const handle(request);
    ASSERT_TRUE(handle.handle);
    handle(notANumber, 0);
    EXPECT_TRUE(DatHadUnplottables(handle.handle));
    DATUMXFORM given;
    ASSERT_TRUE(DatGetHandleInfo(handle.handle, &given));
    EXPECT_TRUE(test::sameBytes(given, request));
}

TEST(DatumConversion, IsNotHitByTheHostsTraps) {
    double const inputs[] = {
        std::numeric_limits<double>::signaling_NaN(), 5e-324, 1e-310, infinity, DBL_MAX, 1e300, 0, 90};
    std::vector<DATUMPOINT> points;
    for (double const x : inputs)
        for (double const y : inputs)
            points.push_back({x, y});
    auto const count = static_cast<int>(points.size());
    auto own = paramsOf(DatumTypeDhdnBursaWolf, false);
    own.Scale = -1e6;
    own.bFromWGS84 = true; // divides by zero
    bool untouched = false;
    {
        TrapsEnabled const traps;
        for (DatumType const type :
             {DatumTypeNorthAmericanDatum1927, DatumTypeDhdnBursaWolf, DatumTypeNad1927ConusMre}) {
            DatumHandle const handle(datumRequest(type, DatumTypeNtfFranceParisMeridianBursaWolf));
            auto some = points;
            DatConvertDatum(handle.handle, some.data(), count);
        }
        auto request = ownEnds(own, {});
        DatDeleteDatum(DatCreateDatum(&request));
        request.SourceParams.rX = notANumber;
        DatCheckParams(&request, nullptr, false);
        untouched = traps.untouched();
    }
    EXPECT_TRUE(untouched);
}
