// A projection as the door uses it: made once, by any number of threads at a time, and with a reason for each point.
#pragma once

#include "door/parameters.h"
#include "proj/handle.h"

#include <memory>
#include <span>

namespace ZrProj::Door {

/// A point's zrproj_reason.
using Reason = unsigned char;

constexpr bool hasResult(Reason reason) {
    return reason < ZRPROJ_NOT_FINITE;
}

/// Longitude from -180 to 180.
inline double wrapped(double longitude) {
    return std::fabs(longitude) <= 180 ? longitude : std::remainder(longitude, 360);
}

class Projection {
public:
    /// parameters: complete. Null where they define no map.
    static std::shared_ptr<Projection const> make(zrproj_parameters const& parameters);

    /// Converts places in degrees, finite and within the poles, to map coordinates, and those on to degrees again. What
    /// has no result comes in and leaves with its reason, whatever its coordinates.
    void forward(std::span<PROJPOINT> points, std::span<Reason> reasons) const noexcept;
    void inverse(std::span<PROJPOINT> points, std::span<Reason> reasons) const noexcept;

    /// For the functions of the record interface that change nothing.
    void* handle() const { return m_handle.get(); }

private:
    struct Deleter {
        void operator()(void* handle) const { ProjDeleteProjection(handle); }
    };
    using Handle = std::unique_ptr<void, Deleter>;

    Projection(Handle handle, PROJDATA const& definition);

    formulas::Converter const& converter() const { return ProjectionBlock::of(m_handle.get()).converter; }
    void run(formulas::Converter::Direction direction, std::span<PROJPOINT> points) const noexcept;
    double beside(double longitude) const noexcept;
    Reason rangeOf(double longitude) const noexcept;
    bool isSurelyGood(PROJPOINT const& map) const noexcept;
    Reason reasonOfResult(PROJPOINT const& map, PROJPOINT const& place) const noexcept;

    Handle m_handle;
    bool m_isSeries;                               // of the Transverse Mercator family
    bool m_isApproximate;                          // and on an ellipsoid: there the series is cut off
    double m_meridian;                             // the central one
    double m_radius;                               // on the map
    double m_south = 0, m_north = 0, m_middle = 0; // where a series' poles and its meridian lie
};

} // namespace ZrProj::Door
