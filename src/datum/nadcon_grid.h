// The header of a NADCON grid: what the grid covers.
#pragma once

#include "host/platform.h"

#include <zrproj/datum.h>

#include <cstdint>
#include <optional>
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
};

/// Nothing where the header cannot be read or is absurd.
std::optional<NadconGrid> readNadconHeader(PlainFile const& file);

/// A grid, or why there is none.
struct NadconSearch {
    std::optional<NadconGrid> grid;
    std::string reason;
};

/// The header of the grid of that name: a path of either file, or of both without their extension, or a grid beside the
/// running program.
NadconSearch findNadconGrid(std::string const& name);

} // namespace ZrProj
