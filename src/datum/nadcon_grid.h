// NADCON grids: what one covers, and a pair of them as a whole.
#pragma once

#include "datum/grid_problem.h"
#include "datum/grid_set.h"
#include "host/platform.h"

#include <zrproj/datum.h>

#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

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

/// A pair as one grid, its nodes in `words`, which must live as long. Unlike convertNadcon it shifts points between the
/// nodes only, and takes both conventions: in a pair of this library's (longitudes in .LAS, east positive) the leading
/// word of each row is the row's first value, as `zrproj grid import` makes it; all others are as they are published
/// (latitudes in .las, longitudes in .los, west positive). Refused are files that are no pair or cut short.
std::variant<datum::GridSet, datum::GridProblem> readNadconPair(std::string const& lasPath, std::string const& losPath,
                                                                std::vector<std::uint64_t>& words);

} // namespace ZrProj
