// Points from one system to another, and from one datum to another, with every result good or marked.
#pragma once

#include "cli/model/datums.h"
#include "cli/model/way.h"

#include <zrproj/zrproj.h>

#include <cstdint>
#include <memory>
#include <span>

namespace ZrProj::Command {

enum class PointState : std::uint8_t {
    Good,
    Far,       // has a result, but lies too far from the central meridian for a good one of a record's series
    Remote,    // has a result, but lies beyond the reach for which the exact series is stated
    OffGrid,   // has a result, but lies outside the grid of the datum, which leaves it as it is
    OffArea,   // has a result, but a wrong one: outside the area of the datum's regression equations
    OutOfArea, // has a result, but lies outside the area that the way between the systems' datums is stated for
    Marked,    // came marked as unplottable
    Outside,   // lies outside the projection's usable area
    Ungridded, // lies outside the grid that the way between the systems' datums needs
    NoResult,  // the formulas give none
    Unread,    // there is no point
};

inline constexpr std::size_t pointStates = 11;

constexpr bool hasResult(PointState state) {
    return state == PointState::Good || state == PointState::Far || state == PointState::Remote ||
           state == PointState::OffGrid || state == PointState::OffArea || state == PointState::OutOfArea;
}

/// Converts points in place from one system to another, longitudes and latitudes to a map for one. Longitudes come out
/// between -180 and 180. Only points in the state Good are converted, and others set to the library's mark; each that
/// fails leaves with the reason as its state. Threads may share a converter.
class PointConverter {
public:
    explicit PointConverter(WayPointer way) : m_way(std::move(way)) {}
    /// To a map from the longitudes and latitudes that it is based on. Throws UsageError for a geographic system.
    explicit PointConverter(SystemPointer const& map);

    void forward(std::span<PROJPOINT> points, std::span<PointState> states) const { convert(false, points, states); }
    void inverse(std::span<PROJPOINT> points, std::span<PointState> states) const { convert(true, points, states); }

    Way const& way() const { return *m_way; }

private:
    void convert(bool backwards, std::span<PROJPOINT> points, std::span<PointState> states) const;

    WayPointer m_way;
};

/// Converts longitudes and latitudes in place that have a result so far, and sets the others to the library's mark.
/// Points that a grid does not cover stay as they are and become OffGrid; those that regression equations shift
/// otherwise than they can be right become OffArea. Threads may share a converter.
class DatumConverter {
public:
    /// Throws UsageError when no point could be converted.
    explicit DatumConverter(DatumShift const& shift);

    /// Throws std::runtime_error when the whole conversion fails.
    void convert(std::span<PROJPOINT> points, std::span<PointState> states) const;

private:
    struct Destroy {
        void operator()(zrproj_datum_shift* shift) const { zrproj_datum_shift_destroy(shift); }
    };

    std::unique_ptr<zrproj_datum_shift, Destroy> m_shift;
};

} // namespace ZrProj::Command
