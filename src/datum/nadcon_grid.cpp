#include "datum/nadcon_grid.h"

#include "levels/stage.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>

namespace ZrProj {

std::optional<NadconCell> NadconGrid::locate(DATUMPOINT const& point) const {
    if (levels::isMarked(point))
        return std::nullopt;
    double const x = (point.x - xmin) / dx + 1, y = (point.y - ymin) / dy + 1;
    if (!(x > -1 && x < columns && y >= 1 && y < rows))
        return std::nullopt;
    auto const column = static_cast<std::int32_t>(x), row = static_cast<std::int32_t>(y); // toward zero
    return NadconCell{row, column, x - column, y - row};
}

std::optional<NadconGrid> readNadconHeader(PlainFile const& file) {
    constexpr std::uint64_t start = 64;
    std::array<char, 28> bytes;
    if (!file.read(start, bytes.data(), bytes.size()))
        return std::nullopt;
    std::array<std::int32_t, 3> counts; // columns, rows, values a point
    std::array<float, 4> places;        // xmin, dx, ymin, dy
    std::memcpy(counts.data(), bytes.data(), sizeof counts);
    std::memcpy(places.data(), bytes.data() + sizeof counts, sizeof places);
    bool const finite = std::ranges::all_of(places, [](float value) { return std::isfinite(value); });
    if (counts[0] < 2 || counts[1] < 2 || !finite || !(places[1] > 0) || !(places[3] > 0))
        return std::nullopt;
    return NadconGrid{counts[0], counts[1], places[0], places[1], places[2], places[3]};
}

NadconSearch findNadconGrid(std::string const& name) {
    for (std::string const& path : {name, name + ".LAS", name + ".las", executableDirectory() + '/' + name + ".LAS"}) {
        PlainFile const file(path);
        if (!file.isOpen())
            continue;
        auto const grid = readNadconHeader(file);
        return {grid, grid ? "" : path + " has no grid's header"};
    }
    return {std::nullopt, "there is no grid " + name + ": neither a file, nor one beside this program"};
}

} // namespace ZrProj
