// Points through one system's projection, and from one datum to another, with every result good or marked.
#pragma once

#include "cli/model/datums.h"
#include "cli/model/system.h"

#include <zrproj/zrproj.h>

#include <cstdint>
#include <memory>
#include <span>
#include <vector>

namespace ZrProj::Command {

enum class PointState : std::uint8_t {
    Good,
    Far,      // has a result, but lies too far from the central meridian for a good one
    OffGrid,  // has a result, but lies outside the grid of the datum, which leaves it as it is
    OffArea,  // has a result, but a wrong one: outside the area of the datum's regression equations
    Marked,   // came marked as unplottable
    Outside,  // lies outside the projection's usable area
    NoResult, // the formulas give none
    Unread,   // there is no point
};

constexpr bool hasResult(PointState state) {
    return state == PointState::Good || state == PointState::Far || state == PointState::OffGrid ||
           state == PointState::OffArea;
}

/// Converts points in place between a map and the longitudes and latitudes that it is based on, which come out between
/// -180 and 180. Only points in the state Good are converted, and others set to the library's mark; each that fails
/// leaves with the reason as its state.
class PointConverter {
public:
    /// Throws UsageError for a geographic system.
    explicit PointConverter(SystemPointer map);

    void forward(std::span<PROJPOINT> points, std::span<PointState> states) { convert(false, points, states); }
    void inverse(std::span<PROJPOINT> points, std::span<PointState> states) { convert(true, points, states); }

    System const& map() const { return *m_map; }

private:
    struct Destroy {
        void operator()(zrproj_transform* transform) const { zrproj_transform_destroy(transform); }
    };

    void convert(bool backwards, std::span<PROJPOINT> points, std::span<PointState> states);

    SystemPointer m_map;
    std::unique_ptr<zrproj_transform, Destroy> m_transform;
    std::vector<unsigned char> m_reasons;
};

/// Converts longitudes and latitudes in place that have a result so far, and sets the others to the library's mark.
/// Points that a grid does not cover stay as they are and become OffGrid; those that regression equations shift
/// otherwise than they can be right become OffArea.
class DatumConverter {
public:
    /// Throws UsageError when no point could be converted.
    explicit DatumConverter(DatumShift const& shift);

    /// Throws std::runtime_error when the whole conversion fails.
    void convert(std::span<PROJPOINT> points, std::span<PointState> states);

private:
    struct Destroy {
        void operator()(zrproj_datum_shift* shift) const { zrproj_datum_shift_destroy(shift); }
    };

    std::unique_ptr<zrproj_datum_shift, Destroy> m_shift;
    std::vector<PROJPOINT> m_given;
    std::vector<unsigned char> m_reasons;
};

} // namespace ZrProj::Command
