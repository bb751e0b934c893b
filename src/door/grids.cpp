// Grids of datum shifts: what they cover, read and written.
#include "datum/nadcon_grid.h"
#include "door/answer.h"

#include <algorithm>

using namespace ZrProj;
using namespace ZrProj::Door;

namespace {

NadconGrid gridOf(zrproj_grid const& grid) {
    return {grid.columns, grid.rows, grid.west, grid.dx, grid.south, grid.dy};
}

Answer describe(NadconSearch const& found, zrproj_grid& grid) {
    if (!found.grid)
        return fileFailure(found.reason);
    auto const& [columns, rows, xmin, dx, ymin, dy] = *found.grid;
    grid = {sizeof grid, columns, rows, xmin, ymin, xmin + (columns - 1.0) * dx, ymin + (rows - 1.0) * dy, dx, dy, ""};
    std::ranges::copy(found.identification, grid.identification);
    return {};
}

Answer readRow(NadconSearch const& found, int row, std::span<float> shifts) {
    if (!found.grid)
        return fileFailure(found.reason);
    if (row < 1 || row > found.grid->rows || std::cmp_not_equal(shifts.size(), found.grid->columns))
        return badArgument("no row of the grid, or not as many shifts as its columns");
    if (!readNadconRow(PlainFile(found.path), *found.grid, row, shifts))
        return fileFailure(found.path + " ends before its row " + std::to_string(row) + " of " +
                           std::to_string(found.grid->rows));
    return {};
}

Answer write(std::string const& name, zrproj_grid const& grid, std::span<float const> longitudes,
             std::span<float const> latitudes) {
    bool const isWhole = isReliable(gridOf(grid)) && longitudes.size() % static_cast<std::size_t>(grid.columns) == 0 &&
                         std::cmp_equal(longitudes.size() / static_cast<std::size_t>(grid.columns), grid.rows);
    auto const* const end = std::ranges::find(grid.identification, '\0');
    if (!isWhole || end == std::end(grid.identification))
        return badArgument("no header of a grid, or not as many shifts as it tells");
    std::string const why =
        writeNadconPair(name, gridOf(grid), {std::begin(grid.identification), end}, longitudes, latitudes);
    return why.empty() ? Answer{} : fileFailure(why);
}

bool isEmpty(char const* name) {
    return !name || !*name;
}

} // namespace

zrproj_status zrproj_grid_read(char const* name, zrproj_grid* grid) {
    return answer([&]() -> Answer {
        if (isEmpty(name) || !hasKnownSize(grid))
            return badArgument("no name, or no grid of a known size");
        return describe(findNadconGrid(name), *grid);
    });
}

zrproj_status zrproj_grid_row(char const* name, int row, float* shifts, size_t count) {
    return answer([&]() -> Answer {
        if (isEmpty(name) || !shifts)
            return badArgument("no name, or null pointer to shifts");
        return readRow(findNadconGrid(name), row, {shifts, count});
    });
}

zrproj_status zrproj_grid_write(char const* name, zrproj_grid const* grid, float const* longitudes,
                                float const* latitudes, size_t count) {
    return answer([&]() -> Answer {
        if (isEmpty(name) || !hasKnownSize(grid) || !longitudes || !latitudes)
            return badArgument("no name, no grid of a known size, or null pointer to shifts");
        return write(name, *grid, {longitudes, count}, {latitudes, count});
    });
}

zrproj_status zrproj_grid_covers(zrproj_grid const* grid, double longitude, double latitude, int* covers) {
    return answer([&]() -> Answer {
        if (!hasKnownSize(grid) || !covers || !std::isfinite(longitude) || !std::isfinite(latitude))
            return badArgument("no grid of a known size, or no place");
        *covers = gridOf(*grid).locate({longitude, latitude}) ? 1 : 0;
        return {};
    });
}
