// NADCON: bilinear interpolation in two grids of shifts, arcseconds.
//
// Source    the NADCON binary layout (nadcon_grid.h).
// Departs   from what other programs do with such files: the grid in the .LAS file is added to the LONGITUDE (east
//           positive), the one in the .LOS file to the latitude.
// Domain    column positions from -1 (exclusive) to ncols, so that up to two cells west of the grid are still shifted,
//           with the leading word as their western value; row positions from 1 to nrows (exclusive). All else stays.
#include "datum/nadcon.h"

#include "datum/nadcon_grid.h"
#include "frame/errors.h"
#include "host/platform.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <exception>
#include <span>
#include <string>
#include <vector>

namespace ZrProj {
namespace {

/// Reports a failed assertion with the line of the call. Always returns false, so that a caller can return it.
bool inconsistent(int line = __builtin_LINE()) noexcept {
    return AssertFailed(".\\dNadcon.cpp", line);
}

/// The part of the grid that a call needs: the box around the cells of all its points.
struct Window {
    std::int32_t row = INT32_MAX, column = INT32_MAX, lastRow = 0, lastColumn = 0;
    std::uint64_t points = 0;

    void add(NadconCell const& cell) {
        row = std::min(row, cell.row);
        column = std::min(column, cell.column);
        lastRow = std::max(lastRow, cell.row + 1); // rows and columns of the grid: no overflow
        lastColumn = std::max(lastColumn, cell.column + 1);
        ++points;
    }
    std::uint64_t width() const { return static_cast<std::uint64_t>(std::int64_t{lastColumn} - column + 1); }
    std::uint64_t height() const { return static_cast<std::uint64_t>(std::int64_t{lastRow} - row + 1); }

    /// Whether reading it is no more work than two reads a point, and needs no more memory than is decent.
    bool isWorthReading() const {
        constexpr std::uint64_t wordsPerRead = 2048, mostWords = std::uint64_t{1} << 23;
        std::uint64_t const words = width() * height(); // both at most 2^31
        return words <= mostWords && height() + words / wordsPerRead <= 2 * points;
    }

    /// Whole records, which follow each other in the file, where they are not much more.
    Window widened(NadconGrid const& grid) const {
        Window result = *this;
        if (width() > static_cast<std::uint64_t>(grid.columns) / 2) {
            result.column = 0;
            result.lastColumn = grid.columns;
        }
        return result;
    }
    bool isWhole(NadconGrid const& grid) const { return column == 0 && lastColumn == grid.columns; }
};

Window windowOf(NadconGrid const& grid, std::span<DATUMPOINT const> points) {
    Window window;
    for (auto const& point : points)
        if (auto const cell = grid.locate(point))
            window.add(*cell);
    return window;
}

/// Whether a file of so many words has every value that the points need.
bool isThere(std::uint64_t words, NadconGrid const& grid, Window const& window, std::span<DATUMPOINT const> points) {
    if (grid.wordOf(window.lastRow, window.lastColumn) < words)
        return true;
    return std::ranges::all_of(points, [&](DATUMPOINT const& point) {
        auto const cell = grid.locate(point);
        return !cell || grid.wordOf(cell->row + 1, cell->column + 1) < words;
    });
}

/// The values at a cell's corners: south-west, south-east, north-west, north-east.
using Corners = std::array<float, 4>;

/// Corners out of a window in memory. What the file does not have of the window, no point needs.
class WindowReader {
public:
    WindowReader(PlainFile const& file, NadconGrid const& grid, Window const& window)
        : window_(window.widened(grid)), values_(window_.width() * window_.height()) {
        std::uint64_t const end = file.size() / sizeof(float);
        std::uint64_t const piece = window_.isWhole(grid) ? values_.size() : window_.width();
        std::int64_t row = window_.row;
        for (std::size_t at = 0; at < values_.size() && good_; at += piece, ++row) {
            std::uint64_t const first = grid.wordOf(row, window_.column);
            std::uint64_t const length = std::min(piece, end - std::min(first, end));
            good_ = file.read(first * sizeof(float), values_.data() + at, length * sizeof(float));
        }
    }

    bool good() const { return good_; }

    Corners operator()(NadconCell const& cell) const {
        auto const row = static_cast<std::size_t>(cell.row - window_.row);
        auto const column = static_cast<std::size_t>(cell.column - window_.column);
        float const* const south = values_.data() + row * window_.width() + column;
        float const* const north = south + window_.width();
        return {south[0], south[1], north[0], north[1]};
    }

private:
    Window window_;
    std::vector<float> values_; // at most 64 MiB
    bool good_ = true;
};

/// Corners out of the file, for few points far apart.
class FileReader {
public:
    FileReader(PlainFile const& file, NadconGrid const& grid, Window const&) : file_(file), grid_(grid) {}

    bool good() const { return good_; }

    Corners operator()(NadconCell const& cell) {
        Corners corners{};
        good_ = good_ && readPair(cell.row, cell.column, corners.data()) &&
                readPair(cell.row + 1, cell.column, corners.data() + 2);
        return corners;
    }

private:
    bool readPair(std::int64_t row, std::int64_t column, float* pair) const {
        return file_.read(grid_.wordOf(row, column) * sizeof(float), pair, 2 * sizeof(float));
    }

    PlainFile const& file_;
    NadconGrid const& grid_;
    bool good_ = true;
};

double interpolate(Corners const& corners, NadconCell const& cell) {
    double const fx = cell.fx, fy = cell.fy;
    return (1 - fx) * (1 - fy) * corners[0] + fx * (1 - fy) * corners[1] + (1 - fx) * fy * corners[2] +
           fx * fy * corners[3];
}

/// The pair of files of one grid, open.
struct Pair {
    PlainFile las, los;

    explicit Pair(std::string const& path) : las(path + ".LAS"), los(path + ".LOS") {}
    bool isOpen() const { return las.isOpen() && los.isOpen(); }
    std::uint64_t words() const { return std::min(las.size(), los.size()) / sizeof(float); }
};

template <class Reader>
bool shift(Pair const& pair, NadconGrid const& grid, Window const& window, std::span<DATUMPOINT> points) {
    Reader las(pair.las, grid, window), los(pair.los, grid, window);
    for (auto& point : points) {
        auto const cell = grid.locate(point);
        if (!cell)
            continue;
        Corners const x = las(*cell), y = los(*cell);
        if (!las.good() || !los.good())
            return inconsistent();
        point.x += interpolate(x, *cell) / 3600;
        point.y += interpolate(y, *cell) / 3600;
    }
    return true;
}

bool convert(char const* gridName, std::span<DATUMPOINT> points) {
    Pair const pair(executableDirectory() + '/' + gridName);
    if (!pair.isOpen())
        return inconsistent();
    auto const grid = readNadconHeader(pair.las);
    if (!grid)
        return inconsistent();
    Window const window = windowOf(*grid, points);
    if (window.points == 0)
        return true;
    if (!isThere(pair.words(), *grid, window, points))
        return inconsistent();
    return window.isWorthReading() ? shift<WindowReader>(pair, *grid, window, points)
                                   : shift<FileReader>(pair, *grid, window, points);
}

} // namespace

bool convertNadcon(char const* gridName, DATUMPOINT* points, std::size_t count) {
    try {
        return convert(gridName, {points, count});
    } catch (std::exception const&) { // no memory
        return inconsistent();
    }
}

} // namespace ZrProj
