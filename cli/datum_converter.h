// Points from one datum to another, with every result good or marked.
#pragma once

#include "cli/datums.h"
#include "cli/grid_file.h"
#include "cli/point_converter.h"

#include <optional>
#include <span>
#include <vector>

namespace ZrProj::Command {

struct DatumShift {
    Datum from, to;
};

/// Converts points in place that have a result so far, and marks the others. Points that a grid leaves as they are
/// become OffGrid.
class DatumConverter {
public:
    /// Throws UsageError when no point could be converted.
    explicit DatumConverter(DatumShift const& shift);

    /// Throws std::runtime_error when the whole conversion fails.
    void convert(std::span<PROJPOINT> points, std::span<PointState> states);

private:
    CDatumTransform m_transform;
    std::optional<GridHeader> m_grid; // where the method needs one
    std::vector<DATUMPOINT> m_points;
};

} // namespace ZrProj::Command
