// Points from one datum to another, with every result good or marked.
#pragma once

#include "cli/files/grid_file.h"
#include "cli/model/datums.h"
#include "cli/points/point_converter.h"

#include <optional>
#include <span>
#include <vector>

namespace ZrProj::Command {

/// Converts points in place that have a result so far, and marks the others. Points that a grid leaves as they are
/// become OffGrid, and those that regression equations
/// shift otherwise than they can be right OffArea.
class DatumConverter {
public:
    /// Throws UsageError when no point could be converted.
    explicit DatumConverter(DatumShift const& shift);

    /// Throws std::runtime_error when the whole conversion fails.
    void convert(std::span<PROJPOINT> points, std::span<PointState> states);

private:
    void compareWithThreeShifts(std::span<PROJPOINT const> points, std::span<PointState> states);

    CDatumTransform m_transform;
    CDatumTransform m_threeShifts;    // of a datum with regression equations; only where there are such
    std::optional<GridHeader> m_grid; // where the method needs one
    std::vector<DATUMPOINT> m_points, m_compared;
};

} // namespace ZrProj::Command
