// Points through one projection, with every result good or marked.
#pragma once

#include <zrproj/zrproj.h>

#include <cstdint>
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

/// Converts points in place. Longitudes are taken on the side of the globe that the projection is centred on, and given
/// back between -180 and 180. Only points in the state Good are converted, and others set to the library's mark; each
/// that fails leaves with the reason as its state.
///
/// The Transverse Mercator family evaluates its series however far a point is from the central meridian. The results
/// are good to the millimetre some 3 degrees from it, and to a metre at 10; points beyond are told to be Far. The
/// inverse gives numbers even for coordinates that belong to no point: these are found by converting back.
class PointConverter {
public:
    /// record: one that ProjCheckParams accepts. Throws UsageError when it makes no projection that can convert.
    explicit PointConverter(PROJDATA record);

    void forward(std::span<PROJPOINT> points, std::span<PointState> states);
    void inverse(std::span<PROJPOINT> points, std::span<PointState> states);

    CProjector& projector() { return m_projector; }

private:
    using Method = bool (CProjector::*)(PROJPOINT*, int);

    double beside(double longitude) const;
    void keepInside(std::span<PROJPOINT const> points, std::span<PointState> states);
    void apply(Method method, std::span<PROJPOINT const> from, std::span<PROJPOINT> to);
    void convert(Method method, std::span<PROJPOINT> points, std::span<PointState> states);
    void refuseUnreturning(std::span<PROJPOINT const> points, std::span<PointState> states);
    void tellFar(std::span<PROJPOINT const> points, std::span<PointState> states) const;

    CProjector m_projector;
    PROJDATA m_record;
    bool m_series;                           // of the Transverse Mercator family
    std::vector<PROJPOINT> m_before, m_back; // the points as they came, and as they come back
};
} // namespace ZrProj::Command
