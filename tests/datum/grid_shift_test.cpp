#include "datum/grid_shift.h"

#include "support/levels.h"
#include "support/ntv2_file.h"
#include "support/temporary_directory.h"

#include <gtest/gtest.h>

#include <cfloat>
#include <numbers>
#include <random>
#include <thread>

using namespace ZrProj;
using datum::GridProblem, datum::GridShift;
using test::forEachLevel, test::Ntv2File, test::Ntv2Grid;

namespace {

/// Shifts without a pattern, the same for a node each time; up to `most` seconds.
auto bumpy(unsigned seed, float most) {
    return [=](int row, int column) {
        std::minstd_rand random(seed + 1000 * static_cast<unsigned>(row) + static_cast<unsigned>(column));
        random.discard(3);
        return std::uniform_real_distribution<float>(-most, most)(random);
    };
}

Ntv2Grid grid(std::string name, std::string parent, double south, double east, double step, int rows, int columns) {
    auto const seed = static_cast<unsigned>(name[0]);
    return {std::move(name), std::move(parent),  south, east, step, step, rows, columns,
            bumpy(seed, 6),  bumpy(seed + 50, 6)};
}

/// 10 to 12 degrees north, 0 to 2 degrees east; finer from 10.5 to 11.5 and 0.5 to 1.5, and again in the middle.
Ntv2File nested(std::endian order = std::endian::little) {
    return {{grid("A", "NONE", 36000, -7200, 1800, 5, 5), grid("B", "A", 37800, -5400, 360, 11, 11),
             grid("C", "B", 39240, -3960, 90, 9, 9)},
            order};
}

GridShift opened(Ntv2File const& file) {
    TemporaryDirectory const directory;
    std::string const path = directory.file("test.gsb"), bytes = file.bytes();
    std::ofstream(path, std::ios::binary) << bytes;
    return std::get<GridShift>(GridShift::openNtv2(path)); // the mapping outlives the file
}

/// A node's shift in degrees: to 24 bits in radians.
double shiftOf(float seconds) {
    return static_cast<double>(static_cast<float>(seconds * (std::numbers::pi / 180 / 3600))) *
           (180 / std::numbers::pi);
}

/// The plain way: the last of a nested family's grids that has the place, and the four nodes around it.
PROJPOINT plainly(Ntv2File const& file, PROJPOINT p) {
    double const x = -3600 * p.x, y = 3600 * p.y, hair = 1e-9; // since degrees on an edge are rounded
    Ntv2Grid const* finest = nullptr;
    for (auto const& g : file.grids)
        if (x >= g.east - hair && x <= g.westEdge() + hair && y >= g.south - hair && y <= g.northEdge() + hair)
            finest = &g;
    if (!finest)
        return {DBL_MAX, DBL_MAX};
    double const u = (x - finest->east) / finest->dx, v = (y - finest->south) / finest->dy;
    int const column = std::min(static_cast<int>(u), finest->columns - 2),
              row = std::min(static_cast<int>(v), finest->rows - 2);
    double const fx = u - column, fy = v - row;
    auto const between = [&](auto const& values) {
        return (1 - fy) * ((1 - fx) * shiftOf(values(row, column)) + fx * shiftOf(values(row, column + 1))) +
               fy * ((1 - fx) * shiftOf(values(row + 1, column)) + fx * shiftOf(values(row + 1, column + 1)));
    };
    return {p.x - between(finest->west), p.y + between(finest->north)};
}

std::vector<PROJPOINT> places(std::size_t count, double west = -0.1, double east = 2.1, double south = 9.9,
                              double north = 12.1) {
    std::mt19937_64 random(7);
    std::uniform_real_distribution<double> lon(west, east), lat(south, north);
    std::vector<PROJPOINT> points(count);
    for (auto& p : points)
        p = {lon(random), lat(random)};
    return points;
}

PROJPOINT forward(GridShift const& shift, PROJPOINT p) {
    shift.forward(&p, 1);
    return p;
}
PROJPOINT inverse(GridShift const& shift, PROJPOINT p) {
    shift.inverse(&p, 1);
    return p;
}

void expectNear(PROJPOINT got, PROJPOINT expected, double tolerance, PROJPOINT from) {
    EXPECT_NEAR(got.x, expected.x, tolerance) << from.x << ' ' << from.y;
    EXPECT_NEAR(got.y, expected.y, tolerance) << from.x << ' ' << from.y;
}

} // namespace

TEST(GridShift, InterpolatesInTheFinestGrid) {
    forEachLevel([](auto) {
        for (auto const order : {std::endian::little, std::endian::big}) {
            auto const file = nested(order);
            auto const shift = opened(file);
            auto const from = places(2000);
            auto to = from;
            EXPECT_TRUE(shift.forward(to.data(), 2000).lost);
            for (std::size_t i = 0; i < from.size(); ++i)
                expectNear(to[i], plainly(file, from[i]), 1e-13, from[i]);
        }
    });
}

TEST(GridShift, HasTheEdgesAndAHairAroundThem) {
    auto const file = nested();
    auto const shift = opened(file);
    constexpr double reach = 1e-5; // of a cell of half a degree, both ways
    for (double const lon : {0.0, 0.5, 0.9, 1.0, 1.1, 1.5, 2.0})
        for (double const lat : {10.0, 10.5, 10.9, 11.0, 11.1, 11.5, 12.0}) {
            PROJPOINT const at{lon, lat}, on = plainly(file, at);
            expectNear(forward(shift, at), on, 1e-13, at);
            for (double const turn : {-720.0, -360.0, 360.0})
                EXPECT_NEAR(std::remainder(forward(shift, {lon + turn, lat}).x - on.x, 360.0), 0, 1e-12) << lon;
        }
    for (double const side : {-1.0, 1.0}) {
        double const edge = 1 + side;
        PROJPOINT const on{edge, 10.25};
        expectNear(forward(shift, {edge + side * reach / 2, 10.25}), plainly(file, on), 2 * reach, on);
        EXPECT_EQ(forward(shift, {edge + side * reach * 1.01, 10.25}).x, DBL_MAX);
        EXPECT_EQ(forward(shift, {1, 11 + side * (1 + reach * 1.01)}).x, DBL_MAX);
    }
}

TEST(GridShift, InvertsToRounding) {
    forEachLevel([](auto) {
        auto const shift = opened(nested());
        auto const from = places(4000, 0, 2, 10, 12);
        auto to = from;
        shift.forward(to.data(), 4000);
        auto back = to;
        shift.inverse(back.data(), 4000);
        for (std::size_t i = 0; i < from.size(); ++i)
            expectNear(forward(shift, back[i]), to[i], 1e-12, from[i]); // at borders two places may lead to one
        std::vector<PROJPOINT> again(back.begin(), back.begin() + 300);
        for (int trip = 0; trip < 1000; ++trip) {
            shift.forward(again.data(), 300);
            shift.inverse(again.data(), 300);
        }
        for (std::size_t i = 0; i < again.size(); ++i)
            expectNear(again[i], back[i], 1e-11, from[i]);
    });
}

TEST(GridShift, InvertsSteepGridsAndMarksWhatHasNoOrigin) {
    // Shifts of up to a third of a cell from node to node: the place moves to another cell on its way back.
    Ntv2File steep{{{"A", "NONE", 36000, -7200, 60, 60, 121, 121, bumpy(1, 9), bumpy(2, 9)}}};
    auto const shift = opened(steep);
    for (auto const from : places(2000, 0.01, 1.99, 10.01, 11.99))
        expectNear(inverse(shift, forward(shift, from)), from, 1e-12, from);
    Ntv2File const far{
        {{"A", "NONE", 36000, -7200, 1800, 1800, 5, 5, [](int, int) { return 0.F; }, [](int, int) { return 600.F; }}}};
    auto const west = opened(far);
    EXPECT_EQ(inverse(west, {1.9, 11}).x, DBL_MAX); // from 2 1/15 degrees east
    EXPECT_NEAR(inverse(west, {-0.1, 11}).x, -0.1 + 1.0 / 6, 1e-8);
    EXPECT_EQ(inverse(west, {-0.2, 11}).x, DBL_MAX);
    EXPECT_EQ(inverse(west, {1, 40}).x, DBL_MAX);
    Ntv2File const folding{{{"A", "NONE", 36000, -7200, 60, 60, 31, 31, bumpy(1, 400), bumpy(2, 400)}}};
    auto const folded = opened(folding);
    for (auto const to : places(500, 1.5, 2, 10, 10.5)) // whatever is found, leads there
        if (auto const from = inverse(folded, to); from.x != DBL_MAX)
            expectNear(forward(folded, from), to, 1e-11, to);
}

TEST(GridShift, LosesCellsWithACornerThatIsNoShift) {
    forEachLevel([](auto) {
        for (float const bad :
             {std::numeric_limits<float>::quiet_NaN(), std::numeric_limits<float>::infinity(), -FLT_MAX}) {
            Ntv2File const file{{{"A", "NONE", 36000, -7200, 1800, 1800, 5, 5, [](int, int) { return 1.F; },
                                  [=](int row, int column) { return row == 2 && column == 2 ? bad : 2.F; }}}};
            auto const shift = opened(file);
            EXPECT_EQ(forward(shift, {1.2, 11.2}).x, DBL_MAX);
            EXPECT_EQ(inverse(shift, {0.8, 10.8}).x, DBL_MAX);
            EXPECT_NEAR(forward(shift, {1.6, 11.6}).x, 1.6 - 2.0 / 3600, 1e-9);
        }
    });
}

TEST(GridShift, TakesTheFilesUnitAndPlacesAcrossTheAntimeridian) {
    auto const north = [](int, int) { return 0.001F; };
    auto const west = [](int, int) { return -0.002F; };
    Ntv2File const degrees{{{"A", "NONE", -40, -182, 1, 1, 5, 5, north, west}}, std::endian::big, "DEGREES"};
    Ntv2File const minutes{{{"A", "NONE", -2400, 178 * 60, 60, 60, 5, 5, north, west}}, std::endian::little, "MINUTES"};
    auto const ofDegrees = opened(degrees), ofMinutes = opened(minutes);
    for (double const lon : {178.0, 179.5, 180.0, -180.0, -179.0, -178.0}) {
        expectNear(forward(ofDegrees, {lon, -38.5}), {lon + 0.002, -38.499}, 1e-9, {lon, 0});
        expectNear(inverse(ofDegrees, {lon == 178 ? 178.1 : lon, -38.5}), {(lon == 178 ? 178.1 : lon) - 0.002, -38.501},
                   1e-9, {lon, 0});
        expectNear(forward(ofMinutes, {lon, -38.5}), {lon + 0.002 / 60, -38.5 + 0.001 / 60}, 1e-9, {lon, 0});
    }
    EXPECT_EQ(forward(ofDegrees, {177.9, -38.5}).x, DBL_MAX);
    EXPECT_EQ(forward(ofDegrees, {-177.9, -38.5}).x, DBL_MAX);
}

TEST(GridShift, GivesAPointTheSameResultInAnyArrayAndOnAnyThread) {
    auto const shift = opened(nested());
    auto const from = places(999);
    auto forth = from, back = from;
    std::thread other([&] { shift.forward(forth.data(), 999); });
    shift.inverse(back.data(), 999);
    other.join();
    for (std::size_t i = 0; i < from.size(); ++i) {
        auto const a = forward(shift, from[i]), b = inverse(shift, from[i]);
        ASSERT_TRUE(a.x == forth[i].x && a.y == forth[i].y && b.x == back[i].x && b.y == back[i].y) << i;
    }
}

TEST(GridShift, ReadsAFileAgainWhenItHasChanged) {
    TemporaryDirectory const directory;
    std::string const path = directory.file("a.gsb");
    EXPECT_EQ(std::get<GridProblem>(GridShift::openNtv2(path)).reason, path + " cannot be opened");
    auto const write = [&](float shift) {
        auto const value = [=](int, int) { return shift; };
        std::string const bytes =
            Ntv2File{{{"A", "NONE", 36000, -7200, 1800, 1800, 5, 5 + static_cast<int>(shift), value, value}}}.bytes();
        std::ofstream(path + "new", std::ios::binary) << bytes;
        std::filesystem::rename(path + "new", path);
    };
    write(0);
    auto const old = std::get<GridShift>(GridShift::openNtv2(path)),
               same = std::get<GridShift>(GridShift::openNtv2(path));
    EXPECT_EQ(old.forwardStage().constants, same.forwardStage().constants);
    write(1);
    auto const changed = std::get<GridShift>(GridShift::openNtv2(path));
    EXPECT_EQ(forward(old, {1, 11}).x, 1);
    EXPECT_NEAR(forward(changed, {1, 11}).x, 1 - 1.0 / 3600, 1e-10);
    std::ofstream(path, std::ios::binary) << "NUM_OREC";
    EXPECT_TRUE(
        std::get<GridProblem>(GridShift::openNtv2(path)).reason.starts_with(path + ", at byte 8: the file ends"));
}
