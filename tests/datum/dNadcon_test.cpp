#include "datum/nadcon.h"

#include "support/error_host.h"
#include "support/grid_files.h"

#include <gtest/gtest.h>

#include <cfloat>
#include <cmath>
#include <limits>
#include <random>
#include <sys/stat.h>

using namespace ZrProj;
using test::GridFiles, test::GridHeader;

namespace {

constexpr GridHeader header{30, 12, 1, -80, 0.25F, 40, 0.5F};
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

/// Planes, which bilinear interpolation reproduces anywhere in a cell, and a leading word of their own.
double east(double row, double column) {
    return column == 0 ? 72 : 36 + 3.6 * row - 1.8 * column;
}
double north(double row, double column) {
    return column == 0 ? -36 : -7.2 * row + 3.6 * column;
}

void writePair(GridFiles const& files, GridHeader const& grid = header) {
    files.write(".LAS", grid, east);
    files.write(".LOS", grid, north);
}

/// A point at a grid position, counted from 1 as in the files.
DATUMPOINT at(double column, double row) {
    return {header.xmin + (column - 1) * header.dx, header.ymin + (row - 1) * header.dy};
}

DATUMPOINT converted(GridFiles const& files, DATUMPOINT point) {
    EXPECT_TRUE(convertNadcon(files.name(), &point, 1));
    return point;
}

void expectShift(GridFiles const& files, double column, double row, double eastSeconds, double northSeconds) {
    DATUMPOINT const from = at(column, row), to = converted(files, from);
    EXPECT_NEAR((to.x - from.x) * 3600, eastSeconds, 1e-5) << column << ' ' << row;
    EXPECT_NEAR((to.y - from.y) * 3600, northSeconds, 1e-5) << column << ' ' << row;
}

void expectUnchanged(GridFiles const& files, DATUMPOINT from) {
    DATUMPOINT const to = converted(files, from);
    EXPECT_TRUE(to.x == from.x || (std::isnan(to.x) && std::isnan(from.x))) << from.x << ' ' << from.y;
    EXPECT_TRUE(to.y == from.y || (std::isnan(to.y) && std::isnan(from.y))) << from.x << ' ' << from.y;
}

/// The conversion fails, says so once, and leaves the point as it was.
void expectRefused(GridFiles const& files, DATUMPOINT from = at(5, 5)) {
    ErrorHost const host;
    DATUMPOINT point = from;
    EXPECT_FALSE(convertNadcon(files.name(), &point, 1));
    ASSERT_EQ(host.calls.size(), 2U);
    EXPECT_EQ(host.calls[1].file, ".\\dNadcon.cpp");
    EXPECT_EQ(point.x, from.x);
    EXPECT_EQ(point.y, from.y);
}

long openFiles() {
    return std::distance(std::filesystem::directory_iterator("/proc/self/fd"), std::filesystem::directory_iterator());
}

} // namespace

TEST(Nadcon, AddsTheLasGridToTheLongitudeAndTheLosGridToTheLatitude) {
    GridFiles const files;
    writePair(files);
    for (double row : {1.0, 1.25, 7.5, 11.0, 11.999})
        for (double column : {1.0, 1.5, 15.75, 29.0, 29.999})
            expectShift(files, column, row, east(row, column), north(row, column));
}

TEST(Nadcon, TakesTheLeadingWordAsTheValueWestOfTheGrid) {
    GridFiles const files;
    writePair(files);
    for (double column : {0.999, 0.5, 0.0, -0.5, -0.999}) { // negative fractions beyond column 0
        double const fromEast = east(3, 1) * column + 72 * (1 - column);
        double const fromNorth = north(3, 1) * column - 36 * (1 - column);
        expectShift(files, column, 3, fromEast, fromNorth);
    }
}

TEST(Nadcon, LeavesPointsOutsideAsTheyAre) {
    GridFiles const files;
    writePair(files);
    for (double column : {-1.0, -1.5, 30.0, 31.0, -1e300, 1e300, notANumber, HUGE_VAL, -HUGE_VAL})
        expectUnchanged(files, {at(column, 5).x, at(5, 5).y});
    for (double row : {0.999, 0.0, -0.5, -5.0, 12.0, 1e300, notANumber, -HUGE_VAL}) // row 0 is the header
        expectUnchanged(files, {at(5, 5).x, at(5, row).y});
    expectUnchanged(files, {DBL_MAX, at(5, 5).y});
    expectUnchanged(files, {at(5, 5).x, DBL_MAX});
}

TEST(Nadcon, GivesAPointTheSameResultInAnyArray) {
    GridFiles const files;
    writePair(files);
    std::mt19937 random(3);
    std::uniform_real_distribution<double> column(-2, 32), row(-1, 14);
    std::vector<DATUMPOINT> points(3000);
    for (auto& point : points)
        point = at(column(random), row(random));
    auto together = points;
    ASSERT_TRUE(convertNadcon(files.name(), together.data(), together.size()));
    for (std::size_t i = 0; i < points.size(); ++i) {
        DATUMPOINT const alone = converted(files, points[i]);
        ASSERT_EQ(alone.x, together[i].x) << i;
        ASSERT_EQ(alone.y, together[i].y) << i;
    }
}

TEST(Nadcon, NeedsBothFilesAndClosesThem) {
    GridFiles const files;
    long const before = openFiles();
    expectRefused(files);
    files.write(".LAS", header, east);
    expectRefused(files);
    std::filesystem::create_directory(files.path(".LOS"));
    expectRefused(files);
    std::filesystem::remove(files.path(".LOS"));
    ASSERT_EQ(mkfifo(files.path(".LOS").c_str(), 0600), 0);
    expectRefused(files); // without waiting for a writer
    std::filesystem::remove(files.path(".LOS"));
    files.write(".LOS", header, north);
    converted(files, at(5, 5));
    files.writeBytes(".LAS", {});
    expectRefused(files);
    EXPECT_EQ(openFiles(), before);
}

TEST(Nadcon, FailsOnlyForValuesThatAreNotThere) {
    GridFiles const files;
    writePair(files);
    constexpr std::uintmax_t word = 4, record = 31 * word;
    std::filesystem::resize_file(files.path(".LOS"),
                                 6 * record + 10 * word); // rows 1 to 5, and row 6 to column 9
    expectShift(files, 20.5, 4.5, east(4.5, 20.5), north(4.5, 20.5));
    expectShift(files, 8.5, 5.5, east(5.5, 8.5), north(5.5, 8.5));
    expectRefused(files, at(9.5, 5.5));
    std::vector<DATUMPOINT> points(1000, at(20.5, 4.5)); // the box of all cells is not there, but each cell is
    points.push_back(at(8.5, 5.5));
    EXPECT_TRUE(convertNadcon(files.name(), points.data(), points.size()));
    EXPECT_EQ(points.back().y, converted(files, at(8.5, 5.5)).y);
    points.assign(1000, at(20.5, 4.5));
    points.push_back(at(20.5, 5.5));
    EXPECT_FALSE(convertNadcon(files.name(), points.data(), points.size()));
    EXPECT_EQ(points[0].x, at(20.5, 4.5).x);
    std::filesystem::resize_file(files.path(".LAS"), 91);
    expectRefused(files);
}

TEST(Nadcon, RefusesAbsurdHeaders) {
    GridFiles const files;
    auto const spoilt = [&](auto const& spoil) {
        GridHeader grid = header;
        files.write(".LOS", grid, north);
        std::vector<char> bytes(4000);
        spoil(grid);
        std::memcpy(bytes.data() + 64, &grid, sizeof grid);
        files.writeBytes(".LAS", bytes);
    };
    void (*const spoils[])(GridHeader&) = {
        [](GridHeader& g) { g.columns = 1; },
        [](GridHeader& g) { g.columns = INT32_MIN; },
        [](GridHeader& g) { g.rows = 0; },
        [](GridHeader& g) { g.rows = -2000000000; },
        [](GridHeader& g) { g.dx = 0; },
        [](GridHeader& g) { g.dx = -0.25F; },
        [](GridHeader& g) { g.dy = std::nanf(""); },
        [](GridHeader& g) { g.dy = HUGE_VALF; },
        [](GridHeader& g) { g.xmin = std::nanf(""); },
        [](GridHeader& g) { g.ymin = -HUGE_VALF; },
        [](GridHeader& g) { g.columns = INT32_MAX; }, // the values are not there
    };
    for (auto const spoil : spoils) {
        spoilt(spoil);
        expectRefused(files);
    }
    // 2^31 columns and rows a millionth of a degree apart: a place in the file that 64 bits just hold.
    spoilt([](GridHeader& g) { g.columns = g.rows = INT32_MAX, g.xmin = -120, g.dx = g.dy = 1e-7F, g.ymin = -90; });
    expectRefused(files, {94.5, 120});
    spoilt([](GridHeader& g) { g.dx = g.dy = FLT_TRUE_MIN; });
    expectUnchanged(files, at(5, 5));
}

TEST(Nadcon, ReadsFewPointsOfAHugeGridWithoutItsRows) {
    GridFiles const files;
    GridHeader const huge{100000, 100000, 1, -180, 0.001F, -90, 0.001F}; // 40 GB, if the file were not sparse
    for (char const* extension : {".LAS", ".LOS"}) {
        files.write(extension, {22, 2, 1, 0, 1, 0, 1}, [](int, int) { return 0; });
        std::fstream file(files.path(extension), std::ios::in | std::ios::out | std::ios::binary);
        file.seekp(64).write(reinterpret_cast<char const*>(&huge), sizeof huge);
        file.close();
        std::filesystem::resize_file(files.path(extension), 4ULL * 100001 * 100001);
    }
    std::vector<DATUMPOINT> points{{-179.9, -89.9}, {-81.1, 9.5}};
    EXPECT_TRUE(convertNadcon(files.name(), points.data(), points.size()));
    EXPECT_EQ(points[1].x, -81.1);
}
