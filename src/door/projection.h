// What carries a system's coordinates to places and back, as the door uses it: made once, by any number of threads at a
// time, and with a reason for each point. The same for systems made from parameters and from definitions.
#pragma once

#include "systems/conversion.h"

#include <zrproj/c.h>

#include <cfloat>
#include <cmath>
#include <memory>
#include <span>

namespace ZrProj::Door {

/// A point's zrproj_reason.
using Reason = unsigned char;

constexpr bool hasResult(Reason reason) {
    return reason < ZRPROJ_NOT_FINITE;
}

/// Whether each of some points has a result. Reasons below 16 have none of the bits above.
inline bool allHaveResults(std::span<Reason const> reasons) {
    Reason bits = 0;
    for (Reason const reason : reasons)
        bits |= reason;
    return hasResult(bits);
}

/// Marks what has no result. Most blocks have nothing to mark, and nothing is spent on them.
inline void markLost(std::span<PROJPOINT> points, std::span<Reason const> reasons) {
    if (allHaveResults(reasons))
        return;
    for (std::size_t i = 0; i < points.size(); ++i)
        if (!hasResult(reasons[i]))
            points[i] = {DBL_MAX, DBL_MAX};
}

/// Longitude from -180 to 180.
inline double wrapped(double longitude) {
    return std::fabs(longitude) <= 180 ? longitude : std::remainder(longitude, 360);
}

/// How many points are converted at a time.
inline constexpr std::size_t blockPoints = 512;

class Projection {
public:
    /// Nothing where the conversion defines no map.
    static std::variant<std::shared_ptr<Projection const>, systems::Unsupported>
    make(systems::Conversion const& conversion);

    /// Converts places in degrees from Greenwich, finite and within the poles, to the system's coordinates, and those
    /// on to degrees again, up to blockPoints at a time. What has no result comes in and leaves with its reason,
    /// whatever its coordinates.
    void forward(std::span<PROJPOINT> points, std::span<Reason> reasons) const noexcept;
    void inverse(std::span<PROJPOINT> points, std::span<Reason> reasons) const noexcept;

    bool isGeographic() const { return m_kind == Kind::geographic; }

    /// How the coordinates are computed; clipping goes by the edges of its map.
    systems::Conversion const& conversion() const { return m_conversion; }

private:
    enum class Kind {
        geographic,
        series,  // of the Transverse Mercator family, as the records have it
        krueger, // Transverse Mercator by Krueger's series
        other
    };

    Projection(systems::Conversion const& conversion, systems::SystemConverter&& converter);

    static Kind kindOf(formulas::Method method);
    double beside(double longitude) const noexcept;
    Reason rangeOf(double longitude) const noexcept;
    Reason rangeOnMap(PROJPOINT const& map) const noexcept;
    bool areWithinReach(std::span<PROJPOINT const> map) const noexcept;
    bool isSurelyGood(PROJPOINT const& map) const noexcept;
    Reason reasonOfSeries(PROJPOINT const& map, PROJPOINT const& place) const noexcept;
    Reason reasonOfPlace(PROJPOINT const& place) const noexcept;
    Reason reasonOfInverse(PROJPOINT const& map, PROJPOINT& place) const noexcept;

    systems::Conversion m_conversion;
    systems::SystemConverter m_converter;
    Kind m_kind;
    bool m_isApproximate = false;                  // a series on an ellipsoid, where it is cut off
    double m_meridian;                             // the central one, from Greenwich
    double m_radius;                               // on the map
    double m_south = 0, m_north = 0, m_middle = 0; // where a series' poles and its meridian lie
};

} // namespace ZrProj::Door
