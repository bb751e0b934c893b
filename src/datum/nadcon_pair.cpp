#include "datum/nadcon_pair.h"

#include "datum/nadcon_grid.h"

#include <array>
#include <cmath>
#include <cstring>
#include <numbers>
#include <utility>

namespace ZrProj {
namespace {

using datum::GridProblem, datum::GridSet;

constexpr double leastSpacing = 1e-6;       // degrees: a decimetre
constexpr double greatestLatitude = 90.001; // limits are numbers of 32 bits

/// Whose convention a file follows, as far as its rows tell.
enum class Convention { unknown, own, published };

/// One file of a pair: its values row by row, leading words included.
struct NadconFile {
    NadconGrid grid;
    std::vector<float> values;

    std::size_t record() const { return static_cast<std::size_t>(grid.columns) + 1; }
    float value(std::size_t row, std::size_t column) const { return values[row * record() + column + 1]; }

    /// A row of zeros tells nothing.
    Convention convention() const {
        bool told = false;
        for (std::size_t first = 0; first < values.size(); first += record()) {
            if (values[first] != values[first + 1])
                return Convention::published;
            told |= values[first] != 0;
        }
        return told ? Convention::own : Convention::unknown;
    }
};

bool isOnEarth(NadconGrid const& grid) {
    double const width = (grid.columns - 1.0) * grid.dx, north = grid.ymin + (grid.rows - 1.0) * grid.dy;
    return grid.dx >= leastSpacing && grid.dy >= leastSpacing && grid.ymin >= -greatestLatitude &&
           north <= greatestLatitude && std::fabs(grid.xmin) <= 540 && width <= 360.001;
}

std::variant<NadconFile, GridProblem> readNadconFile(std::string const& path) {
    PlainFile const file(path);
    if (!file.isOpen())
        return GridProblem{path + " cannot be opened"};
    auto const grid = readNadconHeader(file);
    if (!grid || !isReliable(*grid) || !isOnEarth(*grid))
        return GridProblem{path + ", at byte 64: the header of a grid was expected"};
    auto const record = (static_cast<std::uint64_t>(grid->columns) + 1) * sizeof(float); // products below 2^64
    std::uint64_t const end = record * (static_cast<std::uint64_t>(grid->rows) + 1);
    if (end > file.size())
        return GridProblem{path + ", at byte " + std::to_string(file.size()) + ": the file ends before its row " +
                           std::to_string(file.size() / record) + " of " + std::to_string(grid->rows)};
    NadconFile result{*grid, std::vector<float>((end - record) / sizeof(float))};
    if (!file.read(record, result.values.data(), end - record))
        return GridProblem{path + " cannot be read"};
    return result;
}

/// The nodes as a set of grids has them: rows from the south, nodes from the east, shifts to the north and the west.
void arrange(NadconFile const& north, NadconFile const& lon, float westward, std::vector<std::uint64_t>& words) {
    auto const columns = static_cast<std::size_t>(north.grid.columns), rows = static_cast<std::size_t>(north.grid.rows);
    words.assign(2 * columns * rows, 0);
    for (std::size_t row = 0; row < rows; ++row)
        for (std::size_t i = 0; i < columns; ++i) {
            std::size_t const column = columns - 1 - i;
            float const node[] = {north.value(row, column), westward * lon.value(row, column)};
            std::memcpy(&words[2 * (row * columns + i)], node, sizeof node);
        }
}

GridSet setOf(NadconGrid const& grid, std::vector<std::uint64_t> const& words) {
    double const width = (grid.columns - 1.0) * grid.dx;
    GridSet set;
    set.rows.push_back({.east = std::remainder(grid.xmin + width, 360.0),
                        .south = grid.ymin,
                        .width = width,
                        .height = (grid.rows - 1.0) * grid.dy,
                        .perDx = 1 / grid.dx,
                        .perDy = 1 / grid.dy,
                        .columns = static_cast<double>(grid.columns),
                        .rows = static_cast<double>(grid.rows),
                        .reach = 1e-5 * (grid.dx + grid.dy),
                        .firstWord = 0,
                        .parent = -1,
                        .depth = 0,
                        .end = 1});
    set.words = words.data();
    set.unit = std::numbers::pi / 180 / 3600;
    return set;
}

} // namespace

std::variant<GridSet, GridProblem> readNadconPair(std::string const& lasPath, std::string const& losPath,
                                                  std::vector<std::uint64_t>& words) {
    auto lasRead = readNadconFile(lasPath), losRead = readNadconFile(losPath);
    for (auto* const read : {&lasRead, &losRead})
        if (auto* const problem = std::get_if<GridProblem>(read))
            return std::move(*problem);
    auto const &las = std::get<NadconFile>(lasRead), &los = std::get<NadconFile>(losRead);
    if (las.grid != los.grid)
        return GridProblem{"the headers of " + lasPath + " and " + losPath + " differ; they are no pair"};
    auto const ofLas = las.convention(), ofLos = los.convention();
    auto const convention = ofLas == Convention::unknown ? ofLos : ofLas;
    if (convention == Convention::unknown || (ofLos != Convention::unknown && ofLos != convention))
        return GridProblem{
            lasPath + " and " + losPath +
            " do not tell which of them has the longitudes; \"zrproj grid import\" makes a pair that does"};
    if (convention == Convention::own)
        arrange(los, las, -1, words);
    else
        arrange(las, los, 1, words);
    return setOf(las.grid, words);
}

} // namespace ZrProj
