#include "door/handles.h"
#include "support/grid_files.h"
#include "support/temporary_directory.h"

#include <cmath>
#include <string>
#include <vector>

using namespace ZrProj;
using namespace ZrProj::test;

namespace {

zrproj_grid readGrid(std::string const& name) {
    zrproj_grid grid{};
    grid.size = sizeof grid;
    EXPECT_EQ(zrproj_grid_read(name.c_str(), &grid), ZRPROJ_OK) << zrproj_message();
    return grid;
}

/// The message of a grid that is refused.
std::string refusal(std::string const& name) {
    zrproj_grid grid{};
    grid.size = sizeof grid;
    EXPECT_EQ(zrproj_grid_read(name.c_str(), &grid), ZRPROJ_FILE);
    return zrproj_message();
}

} // namespace

TEST(DoorGrids, TellWhatTheyCover) {
    GridFiles const files;
    files.write(".LAS", {30, 20, 1, -100, 0.25F, 40, 0.5F}, [](int, int) { return 1; });
    zrproj_grid grid{};
    grid.size = sizeof grid;
    for (std::string const& name : {std::string(files.name()), files.path(".LAS"), files.path("")}) {
        ASSERT_EQ(zrproj_grid_read(name.c_str(), &grid), ZRPROJ_OK) << zrproj_message();
        EXPECT_EQ(grid.columns, 30);
        EXPECT_EQ(grid.west, -100);
        EXPECT_EQ(grid.east, -92.75);
        EXPECT_EQ(grid.north, 49.5);
    }
    int covers = -1;
    auto const isCovered = [&](double longitude, double latitude) {
        EXPECT_EQ(zrproj_grid_covers(&grid, longitude, latitude, &covers), ZRPROJ_OK);
        return covers == 1;
    };
    EXPECT_TRUE(isCovered(-95, 45));
    EXPECT_TRUE(isCovered(-100.4, 40));
    EXPECT_FALSE(isCovered(-100.6, 40));
    EXPECT_FALSE(isCovered(-95, 39.999));
    EXPECT_FALSE(isCovered(-95, 49.5));
    EXPECT_EQ(zrproj_grid_covers(&grid, HUGE_VAL, 0, &covers), ZRPROJ_BAD_ARGUMENT);
    files.writeBytes(".LAS", std::vector<char>(80));
    EXPECT_EQ(zrproj_grid_read(files.name(), &grid), ZRPROJ_FILE);
    EXPECT_EQ(zrproj_grid_read("no such grid", &grid), ZRPROJ_FILE);
    EXPECT_EQ(zrproj_grid_read("", &grid), ZRPROJ_BAD_ARGUMENT);
    grid.size = 0;
    EXPECT_EQ(zrproj_grid_read(files.name(), &grid), ZRPROJ_BAD_ARGUMENT);
}

TEST(DoorGrids, AreReadAsTheyAreWritten) {
    GridFiles const files;
    zrproj_grid grid{sizeof grid, 24, 3, -80.5, 17.25, 0, 0, 0.125, 0.25, "Made for a test"};
    std::vector<float> east, north;
    for (int i = 0; i < 24 * 3; ++i) {
        east.push_back(0.5F * static_cast<float>(i));
        north.push_back(-east.back());
    }
    ASSERT_EQ(zrproj_grid_write(files.path("").c_str(), &grid, east.data(), north.data(), east.size()), ZRPROJ_OK)
        << zrproj_message();
    zrproj_grid const back = readGrid(files.name());
    EXPECT_STREQ(back.identification, grid.identification);
    EXPECT_EQ(back.west, -80.5);
    EXPECT_EQ(back.east, -80.5 + 23 * 0.125);
    EXPECT_EQ(back.north, 17.75);
    std::vector<float> row(24);
    ASSERT_EQ(zrproj_grid_row(files.name(), 3, row.data(), row.size()), ZRPROJ_OK) << zrproj_message();
    EXPECT_EQ(row, std::vector(east.begin() + 48, east.end()));
    ASSERT_EQ(zrproj_grid_row(files.path(".LOS").c_str(), 1, row.data(), row.size()), ZRPROJ_OK);
    EXPECT_EQ(row, std::vector(north.begin(), north.begin() + 24));
    float leading = -1; // counts as the value west of the row
    std::string const bytes = fileBytes(files.path(".LAS"));
    std::memcpy(&leading, bytes.data() + 3 * 25 * sizeof(float), sizeof leading);
    EXPECT_EQ(leading, east[48]);

    EXPECT_EQ(zrproj_grid_row(files.name(), 0, row.data(), row.size()), ZRPROJ_BAD_ARGUMENT);
    EXPECT_EQ(zrproj_grid_row(files.name(), 4, row.data(), row.size()), ZRPROJ_BAD_ARGUMENT);
    EXPECT_EQ(zrproj_grid_row(files.name(), 1, row.data(), 23), ZRPROJ_BAD_ARGUMENT);
    std::vector<char> const cut(bytes.begin(), bytes.end() - 1);
    files.writeBytes(".LAS", cut);
    EXPECT_EQ(zrproj_grid_row(files.name(), 2, row.data(), row.size()), ZRPROJ_OK);
    EXPECT_EQ(zrproj_grid_row(files.path("").c_str(), 3, row.data(), row.size()), ZRPROJ_FILE);
    EXPECT_EQ(zrproj_message(), files.path(".LAS") + " ends before its row 3 of 3");
}

TEST(DoorGrids, AreWrittenWholeOrNotAtAll) {
    GridFiles const files;
    std::string const name = files.path("");
    std::vector<float> const shifts(24 * 3);
    zrproj_grid grid{sizeof grid, 24, 3, 0, 0, 0, 0, 1, 1, ""};
    auto const written = [&](std::size_t count) {
        return zrproj_grid_write(name.c_str(), &grid, shifts.data(), shifts.data(), count);
    };
    EXPECT_EQ(written(71), ZRPROJ_BAD_ARGUMENT);
    for (auto spoil : {+[](zrproj_grid& g) { g.columns = 21; }, +[](zrproj_grid& g) { g.dx = 0; },
                       +[](zrproj_grid& g) { g.south = HUGE_VAL; }, +[](zrproj_grid& g) { g.rows = -3; },
                       +[](zrproj_grid& g) { std::memset(g.identification, 'x', sizeof g.identification); }}) {
        zrproj_grid const good = grid;
        spoil(grid);
        EXPECT_EQ(written(shifts.size()), ZRPROJ_BAD_ARGUMENT);
        grid = good;
    }
    EXPECT_FALSE(std::filesystem::exists(files.path(".LAS")));
    std::filesystem::create_directory(files.path(".LOS")); // the second file fails: the first one does not appear
    EXPECT_EQ(written(shifts.size()), ZRPROJ_FILE);
    EXPECT_FALSE(std::filesystem::exists(files.path(".LAS")));
}

TEST(DoorGrids, OfUnusableHeadersAreRefused) {
    GridFiles const files;
    auto const one = [](int, int) { return 1; };
    files.write(".LAS", {21, 20, 1, -100, 0.25F, 40, 0.5F}, one);
    EXPECT_EQ(refusal(files.path("")), files.path(".LAS") +
                                           " has 21 columns and 20 rows; with less than 22 columns, the "
                                           "header lies over the first rows");
    files.write(".LAS", {30, 20, 1, -100, -0.25F, 40, 0.5F}, one);
    EXPECT_EQ(refusal(files.path("")), files.path(".LAS") + " has no grid's header: 30 columns and 20 rows");
    files.writeBytes(".LAS", std::vector<char>(91));
    EXPECT_EQ(refusal(files.path("")), files.path(".LAS") + " is too short for a grid's header");
}
