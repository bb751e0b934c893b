#include "datum/nadcon_grid.h"

#include "datum/grid_shift.h"
#include "support/grid_files.h"

#include <gtest/gtest.h>

#include <cfloat>
#include <random>

using namespace ZrProj;
using datum::GridProblem, datum::GridShift;
using test::GridFiles, test::GridHeader;

namespace {

constexpr GridHeader header{30, 12, 1, -80, 0.25F, 40, 0.5F};

/// Shifts in arcseconds, to the east and to the north.
double east(int row, int column) {
    return 36 + 3.6 * row - 1.8 * column + (row + column) % 3;
}
double north(int row, int column) {
    return -7.2 * row + 3.6 * column + row % 2;
}

std::variant<GridShift, GridProblem> opened(GridFiles const& files) {
    return GridShift::openNadcon(files.path(".LAS"), files.path(".LOS"));
}
std::string refusal(GridFiles const& files) {
    auto const result = opened(files);
    auto const* const problem = std::get_if<GridProblem>(&result);
    return problem ? problem->reason : "";
}

/// As `zrproj grid import` makes it: leading words are first values.
void writeOwn(GridFiles const& files) {
    files.write(".LAS", header, [](int row, int column) { return east(row, std::max(column, 1)); });
    files.write(".LOS", header, [](int row, int column) { return north(row, std::max(column, 1)); });
}

/// The same shifts as they are published, with leading words of 0.
void writePublished(GridFiles const& files) {
    files.write(".LAS", header, [](int row, int column) { return column == 0 ? 0 : north(row, column); });
    files.write(".LOS", header, [](int row, int column) { return column == 0 ? 0 : -east(row, column); });
}

/// The plain way.
DATUMPOINT plainly(DATUMPOINT p) {
    double const x = (p.x - header.xmin) / header.dx + 1, y = (p.y - header.ymin) / header.dy + 1;
    int const column = std::min(static_cast<int>(x), header.columns - 1),
              row = std::min(static_cast<int>(y), header.rows - 1);
    double const fx = x - column, fy = y - row;
    auto const between = [&](double (*value)(int, int)) {
        return (1 - fy) * ((1 - fx) * value(row, column) + fx * value(row, column + 1)) +
               fy * ((1 - fx) * value(row + 1, column) + fx * value(row + 1, column + 1));
    };
    return {p.x + between(east) / 3600, p.y + between(north) / 3600};
}

} // namespace

TEST(NadconPair, ShiftsBothWaysInEitherConvention) {
    GridFiles const files;
    for (auto const write : {writeOwn, writePublished}) {
        write(files);
        auto const shift = std::get<GridShift>(opened(files));
        std::mt19937_64 random(5);
        std::uniform_real_distribution<double> lon(-80, -72.75), lat(40, 45.5);
        for (int i = 0; i < 1000; ++i) {
            PROJPOINT const from{lon(random), lat(random)};
            PROJPOINT to = from;
            shift.forward(&to, 1);
            auto const expected = plainly({from.x, from.y});
            EXPECT_NEAR(to.x, expected.x, 2e-9); // values of 32 bits
            EXPECT_NEAR(to.y, expected.y, 2e-9);
            shift.inverse(&to, 1);
            EXPECT_NEAR(to.x, from.x, 1e-12);
            EXPECT_NEAR(to.y, from.y, 1e-12);
        }
        for (PROJPOINT outside :
             {PROJPOINT{-80.01, 42}, PROJPOINT{-72.74, 42}, PROJPOINT{-75, 39.99}, PROJPOINT{-75, 45.51}}) {
            shift.forward(&outside, 1);
            EXPECT_EQ(outside.x, DBL_MAX);
        }
    }
}

TEST(NadconPair, RefusesWhatIsNoPair) {
    GridFiles const files;
    EXPECT_EQ(refusal(files), files.path(".LAS") + " cannot be opened");
    writePublished(files);
    auto const size = std::filesystem::file_size(files.path(".LOS"));
    for (std::uintmax_t const length : {std::uintmax_t{0}, std::uintmax_t{91}, size / 2, size - 1}) {
        writePublished(files);
        std::filesystem::resize_file(files.path(".LOS"), length);
        EXPECT_TRUE(refusal(files).starts_with(files.path(".LOS") + ", at byte " +
                                               (length < 92 ? "64" : std::to_string(length))))
            << refusal(files);
    }
    auto other = header;
    other.ymin = 41;
    files.write(".LOS", other, [](int row, int column) { return north(row, column); });
    EXPECT_NE(refusal(files).find("differ; they are no pair"), std::string::npos);
    writeOwn(files);
    files.write(".LOS", header, [](int row, int column) { return column == 0 ? 0 : -east(row, column); });
    EXPECT_NE(refusal(files).find("do not tell which of them has the longitudes"), std::string::npos);
    for (void (*const spoil)(GridHeader&) :
         {+[](GridHeader& h) { h.columns = INT32_MAX; }, +[](GridHeader& h) { h.rows = INT32_MAX; },
          +[](GridHeader& h) { h.rows = -1; }, +[](GridHeader& h) { h.dx = 1e-30F; },
          +[](GridHeader& h) { h.xmin = HUGE_VALF; }, +[](GridHeader& h) { h.ymin = 89; }}) {
        auto bad = header;
        spoil(bad);
        std::vector<char> bytes(8000);
        std::memcpy(bytes.data() + 64, &bad, sizeof bad);
        files.writeBytes(".LAS", bytes);
        EXPECT_TRUE(refusal(files).starts_with(files.path(".LAS") + ", at byte ")) << refusal(files);
    }
}
