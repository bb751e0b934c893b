// The layout of a NADCON grid's files: records of `columns` + 1 four-byte words, little-endian. The first record is the
// header: 64 bytes of text, then columns, rows and values a point as integers, then xmin, dx, ymin and dy. Each next
// one holds a leading word and the values of a row in arcseconds, south to north, west to east.
#pragma once

#include "host/platform.h"

#include <zrproj/datum.h>

#include <cstdint>
#include <optional>
#include <span>
#include <string>

namespace ZrProj {

/// The cell that a point lies in: its south-western corner, counted from 1 (column 0 is the leading word), and the
/// point's fractions of the cell from there, which are negative west of column 0.
struct NadconCell {
    std::int32_t row, column;
    double fx, fy;
};

struct NadconGrid {
    std::int32_t columns, rows;
    double xmin, dx, ymin, dy; // degrees

    /// Nothing outside the grid, and for a marked point.
    std::optional<NadconCell> locate(DATUMPOINT const& point) const;
    bool operator==(NadconGrid const&) const = default;

    /// The offset of a value in the grid's files, in words: below 2^62.
    std::uint64_t wordOf(std::int64_t row, std::int64_t column) const {
        return static_cast<std::uint64_t>(row * (std::int64_t{columns} + 1) + column);
    }
};

/// Nothing where the header cannot be read or is absurd.
std::optional<NadconGrid> readNadconHeader(PlainFile const& file);

/// Reads the values of a row, counted from 1. False where the file ends before.
bool readNadconRow(PlainFile const& file, NadconGrid const& grid, int row, std::span<float> values);

/// Whether shifts can be relied on in files of such a header: with few columns, it lies over the first rows.
bool isReliable(NadconGrid const& grid);

/// A grid that can be relied on, or why there is none.
struct NadconSearch {
    std::optional<NadconGrid> grid;
    std::string path, identification; // of the file that was found; its text without what cannot be printed
    std::string reason;
};

/// The header of the grid of that name: a path of either file, or of both without their extension, or a grid beside the
/// running program.
NadconSearch findNadconGrid(std::string const& name);

/// Writes a pair of grids, the values of all rows each. The leading word of a row, which counts as the value west of
/// it, is its first value. Both files are whole before either takes its place. Returns why that failed, "" where it did
/// not.
std::string writeNadconPair(std::string const& name, NadconGrid const& grid, std::string_view identification,
                            std::span<float const> las, std::span<float const> los);

} // namespace ZrProj
