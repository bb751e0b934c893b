// A route between datums made ready: its steps as stages that arrays of places run through.
#pragma once

#include "datum/grid_folders.h"
#include "datum/grid_shift.h"
#include "datum/shift.h"
#include "systems/route.h"

#include <zrproj/c.h>
#include <zrproj/projection.h>

#include <span>
#include <string>
#include <variant>
#include <vector>

namespace ZrProj::systems {

/// Why a route cannot be made ready.
struct PathProblem {
    bool isOfFile; // a grid's, which is damaged or cannot be read
    std::string reason;
};

/// Never changes: threads may share one.
class DatumPath {
public:
    /// Steps next to each other that move geocentric coordinates become one, so that no height is dropped between them,
    /// and what moves nothing becomes none.
    static std::variant<DatumPath, PathProblem> make(Route const& route, datum::GridFolders const& folders);

    /// Where places stay where they are.
    DatumPath() = default;
    bool isEmpty() const { return m_steps.empty(); }

    /// Carries places in degrees from Greenwich, finite and within the poles, from datum to datum, and back by the
    /// exact inverse of that. Marked ones (DBL_MAX) stay marked; what is lost becomes marked. `reasons` becomes a
    /// zrproj_reason for each.
    void forward(std::span<PROJPOINT> places, std::span<unsigned char> reasons) const noexcept {
        run(m_forward, places, reasons);
    }
    void inverse(std::span<PROJPOINT> places, std::span<unsigned char> reasons) const noexcept {
        run(m_inverse, places, reasons);
    }

private:
    /// A shift the way round in which the route has it.
    struct Step {
        std::variant<datum::Shift, datum::GridShift> shift;
        bool reversed = false;

        levels::Stage stage(bool backwards) const;
        bool isGrid() const { return std::holds_alternative<datum::GridShift>(shift); }
    };

    /// Nothing where no place is moved.
    using Made = std::variant<std::monostate, Step, PathProblem>;

    /// The steps' stages one way, with the reason of a point that is lost in each of them.
    struct Way {
        levels::Convert* driver = nullptr; // at the level of the stages
        std::vector<levels::Stage> stages;
        std::vector<zrproj_reason> losses;
    };

    explicit DatumPath(std::vector<Step>&& steps);

    static Made nextStep(std::span<RouteStep const>& rest, datum::GridFolders const& folders);
    static Made geocentricStep(std::span<RouteStep const>& rest);
    static Step formulaStep(RouteStep const& step);
    static Made gridStep(RouteStep const& step, datum::GridFolders const& folders);
    static void run(Way const& way, std::span<PROJPOINT> places, std::span<unsigned char> reasons) noexcept;

    std::vector<Step> m_steps; // the stages have their addresses, which moving the vector does not change
    Way m_forward, m_inverse;
};

} // namespace ZrProj::systems
