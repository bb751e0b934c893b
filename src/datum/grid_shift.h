// A datum shift by a grid, ready to run over points.
#pragma once

#include "datum/grid_problem.h"
#include "datum/grid_set.h"

#include <zrproj/projection.h>

#include <memory>
#include <string>
#include <variant>

namespace ZrProj::datum {

/// Carries longitudes and latitudes in degrees from a grid's first system to its second one, and back by the exact
/// inverse. Never changes, is copied for next to nothing, and may be used by many threads at once. What a file holds is
/// in memory once, however many shifts use it; it is read again when it has changed and no shift uses it any more.
class GridShift {
public:
    /// Of an NTv2 file.
    static std::variant<GridShift, GridProblem> openNtv2(std::string const& path);
    /// Of a pair of NADCON files, by the paths of both; see nadcon_grid.h about whose convention they follow.
    static std::variant<GridShift, GridProblem> openNadcon(std::string const& lasPath, std::string const& losPath);

    /// Places that no grid has, or that nothing is shifted to, come out marked (DBL_MAX); marked ones stay.
    levels::Outcome forward(PROJPOINT* points, int count) const noexcept;
    levels::Outcome inverse(PROJPOINT* points, int count) const noexcept;

    /// The same as stages for a driver of the level that was in use when the shift was opened; they live as long as it.
    levels::Stage forwardStage() const noexcept;
    levels::Stage inverseStage() const noexcept;

private:
    GridShift(std::shared_ptr<GridSet const> set);

    std::shared_ptr<GridSet const> set_;
    GridOperations const* operations_;
};

} // namespace ZrProj::datum
