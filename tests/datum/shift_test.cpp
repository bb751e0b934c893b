// Steps between datums: beside the formulas in extended precision, and there and back.
#include "datum/shift.h"
#include "host/fpenv.h"
#include "levels/level.h"
#include "support/levels.h"

#include <gtest/gtest.h>

#include <cfloat>
#include <cmath>
#include <vector>

#include <zrproj/projection.h>

using namespace ZrProj;
using namespace ZrProj::datum;

namespace {

using Real = long double;
constexpr Real degree = 3.141592653589793238462643383279502884L / 180;

constexpr Figure wgs84{6378137, 1 / 298.257223563}, bessel{6377397.155, 1 / 299.1528128},
    clarke1880{6378249.2, 1 / 293.4660212936269}, sphere{6371000, 0};

struct Case {
    char const* name;
    Figure from, to;
    SevenParameters parameters;
    bool back;

    Displacement displacement() const { return back ? displacementBackBy(parameters) : displacementBy(parameters); }
};

Case const cases[] = {
    {"DHDN", bessel, wgs84, {{598.1, 73.7, 418.2}, {0.202, 0.045, -2.455}, 6.7}, false},
    {"DHDN reversed", wgs84, bessel, {{598.1, 73.7, 418.2}, {0.202, 0.045, -2.455}, 6.7}, true},
    {"La Canoa",
     {6378388, 1 / 297.0},
     wgs84,
     {{-270.933, 115.599, -360.226}, {-5.266, -1.238, 2.381}, -5.109, {2464351.59, -5783466.61, 974809.81}},
     false},
    {"three parameters", clarke1880, wgs84, {{-168, -60, 320}}, false},
    {"figures alone", sphere, wgs84, {}, false},
    {"great turns", wgs84, clarke1880, {{1500, -900, 2500}, {50, -80, 120}, 90}, false},
};

/// Everywhere, and where something is peculiar.
std::vector<PROJPOINT> places() {
    std::vector<PROJPOINT> places;
    for (double lat : {-89.999, -89.0, -45.5, -1e-9, 0.0, 1e-7, 12.3, 45.0, 51.123456789, 77.7, 89.99})
        for (double lon : {-180.0, -179.9999999, -90.0, -64.0, -1e-8, 0.0, 1.1, 31.99999999, 90.0, 128.0, 180.0})
            places.push_back({lon, lat});
    return places;
}

levels::Outcome run(levels::Stage const& stage, std::vector<PROJPOINT>& points) {
    auto const driver = levels::operationsInUse<ShiftSet>().driver;
    return withDefaultFloatingPoint(
        [&] { return driver(&stage, 1, levels::pointsOf(points.data(), points.size()), {}); });
}

/// The textbook's way, with the latitude by iteration.
struct Place {
    Real lon, lat;
};

Place expected(Case const& c, PROJPOINT const& p) {
    auto const e2 = [](Figure const& f) {
        return static_cast<Real>(f.flattening) * (2 - static_cast<Real>(f.flattening));
    };
    Real const lambda = p.x * degree, phi = p.y * degree, s = std::sin(phi);
    Real const N = c.from.semiMajor / std::sqrt(1 - e2(c.from) * s * s);
    Real const X[] = {N * std::cos(phi) * std::cos(lambda), N * std::cos(phi) * std::sin(lambda),
                      N * (1 - e2(c.from)) * s};
    auto const& [T, rotation, ppm, P] = c.parameters;
    Real const unit = degree / 3600, r[] = {rotation[0] * unit, rotation[1] * unit, rotation[2] * unit};
    Real const factor = 1 + ppm * 1e-6L, sign = c.back ? -1 : 1;
    Real d[3], Y[3];
    for (int i = 0; i < 3; ++i)
        d[i] = X[i] - P[static_cast<std::size_t>(i)] - (c.back ? T[static_cast<std::size_t>(i)] : 0.0L);
    Real const turned[] = {d[0] + sign * (r[1] * d[2] - r[2] * d[1]), d[1] + sign * (r[2] * d[0] - r[0] * d[2]),
                           d[2] + sign * (r[0] * d[1] - r[1] * d[0])};
    for (std::size_t i = 0; i < 3; ++i)
        Y[i] = P[i] + (c.back ? turned[i] / factor : T[i] + factor * turned[i]);
    Real const q = std::sqrt(Y[0] * Y[0] + Y[1] * Y[1]);
    Real latitude = std::atan2(Y[2], q * (1 - e2(c.to)));
    for (int i = 0; i < 30; ++i) {
        Real const sine = std::sin(latitude), n = c.to.semiMajor / std::sqrt(1 - e2(c.to) * sine * sine);
        latitude = std::atan2(Y[2] + e2(c.to) * n * sine, q);
    }
    return {std::atan2(Y[1], Y[0]) / degree, latitude / degree};
}

/// Degrees on the ground.
double miss(PROJPOINT const& point, Place const& place) {
    Real const east = std::remainder(point.x - place.lon, 360.0L) * std::cos(place.lat * degree);
    return static_cast<double>(std::max(std::fabs(east), std::fabs(point.y - place.lat)));
}

double miss(PROJPOINT const& point, PROJPOINT const& other) {
    return miss(point, Place{other.x, other.y});
}

} // namespace

TEST(Shift, IsTheFormulasResultToRounding) {
    test::forEachLevel([](levels::Level) {
        for (Case const& c : cases) {
            auto const shift = Shift::geocentric(c.from, c.to, c.displacement());
            ASSERT_TRUE(shift) << c.name;
            auto const given = places();
            auto points = given;
            run(shift->forward(), points);
            double worst = 0;
            for (std::size_t i = 0; i < given.size(); ++i)
                worst = std::max(worst, miss(points[i], expected(c, given[i])));
            EXPECT_LT(worst, 2.1e-14) << c.name; // 180 degrees are rounded by 1.5e-14
        }
    });
}

TEST(Shift, LeadsBackAThousandTimes) {
    test::forEachLevel([](levels::Level) {
        for (Case const& c : cases) {
            auto const shift = *Shift::geocentric(c.from, c.to, c.displacement());
            auto const given = places();
            auto points = given;
            for (int trip = 0; trip < 1000; ++trip) {
                run(shift.forward(), points);
                run(shift.inverse(), points);
            }
            double worst = 0;
            for (std::size_t i = 0; i < given.size(); ++i)
                worst = std::max(worst, miss(points[i], given[i]));
            EXPECT_LT(worst, 2e-13) << c.name;
        }
    });
}

TEST(Shift, ThenAnotherOneIsOne) {
    Case const &first = cases[0], &second = cases[2];
    auto const both = first.displacement().then(second.displacement());
    Vector const place{3909833.0, 600000.0, 4984512.0};
    auto const moved = [](Displacement const& by, Vector at) {
        auto const move = by.of(at);
        for (std::size_t i = 0; i < 3; ++i)
            at[i] += move[i];
        return at;
    };
    auto const direct = moved(both, place), stepwise = moved(second.displacement(), moved(first.displacement(), place));
    auto const back = moved(both.inverse(), direct);
    for (std::size_t i = 0; i < 3; ++i) {
        EXPECT_NEAR(direct[i], stepwise[i], 4e-9);
        EXPECT_NEAR(back[i], place[i], 4e-9);
    }
}

TEST(Shift, IsRefusedBeyondADatums) {
    Displacement const none{};
    EXPECT_TRUE(Shift::geocentric(wgs84, sphere, none));
    EXPECT_FALSE(Shift::geocentric(wgs84, {1737400, 0}, none)); // the Moon
    EXPECT_FALSE(Shift::geocentric(wgs84, wgs84, displacementBy({{1e5, 0, 0}})));
    EXPECT_FALSE(Shift::geocentric(wgs84, wgs84, displacementBy({{std::nan(""), 0, 0}})));
}

// The printed example of the abridged formulas, from WGS 84 to ED50. The full ones do what translations do.
TEST(Shift, IsMolodenskysToTheExample) {
    Figure const international{6378388, 1 / 297.0};
    Vector const translation{84.87, 96.49, 116.95};
    std::vector<PROJPOINT> const given{{2 + 7 / 60.0 + 46.38 / 3600, 53 + 48 / 60.0 + 33.82 / 3600}};
    auto abridged = given, full = given, exact = given;
    run(Shift::abridgedMolodensky(wgs84, international, translation).forward(), abridged);
    run(Shift::molodensky(wgs84, international, translation).forward(), full);
    run(Shift::geocentric(wgs84, international, displacementBy({translation}))->forward(), exact);
    EXPECT_NEAR(abridged[0].x, 2 + 7 / 60.0 + 51.477 / 3600, 2e-7);
    EXPECT_NEAR(abridged[0].y, 53 + 48 / 60.0 + 36.563 / 3600, 2e-7);
    EXPECT_LT(miss(full[0], exact[0]), 5e-8);
}

TEST(Shift, OfMolodenskyLeadsBackOrIsLost) {
    test::forEachLevel([](levels::Level) {
        auto const shift = Shift::molodensky(clarke1880, wgs84, {-168, -60, 320});
        auto const given = places();
        auto points = given;
        for (int trip = 0; trip < 1000; ++trip) {
            run(shift.forward(), points);
            run(shift.inverse(), points);
        }
        for (std::size_t i = 0; i < given.size(); ++i)
            EXPECT_TRUE(miss(points[i], given[i]) < 1e-12 || (points[i].x == DBL_MAX && std::fabs(given[i].y) > 89.9))
                << given[i].x << ' ' << given[i].y;
    });
}

TEST(Shift, ByOffsetsEndsAtThePoles) {
    auto const shift = Shift::offset(-0.5, 0.25);
    std::vector<PROJPOINT> points{{10, 20}, {10, 89.9}};
    run(shift.forward(), points);
    EXPECT_DOUBLE_EQ(points[0].x, 9.5);
    EXPECT_DOUBLE_EQ(points[0].y, 20.25);
    EXPECT_EQ(points[1].x, DBL_MAX);
    run(shift.inverse(), points);
    EXPECT_DOUBLE_EQ(points[0].x, 10);
    EXPECT_DOUBLE_EQ(points[0].y, 20);
}
