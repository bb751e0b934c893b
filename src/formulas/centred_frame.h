// The unit sphere seen from a centre, where azimuthal projections and the oblique Mercators start.
//
// phi1   latitude of the centre          theta   longitude east of the centre's meridian
#pragma once

#include "formulas/converter.h"
#include "formulas/points.h"

#include <zrproj/projection.h>

namespace ZrProj::formulas::ZRPROJ_LEVEL {

/// How near a place may come to a singular point of the sphere, in radians: maps show it from `closest` on, answer from
/// twice as far, and promise it from four times as far, so that what is promised comes back and what is answered is
/// shown.
inline constexpr double closest = 1e-14;

/// A place on the sphere by its directions from the centre: to the east, to the north, and out of the ground.
template <class R> struct Place { R east, north, up; };

/// A place by longitude and latitude, the latitude's sine and cosine times any positive length.
template <class R> struct OnSphere {
    R theta;
    SinCos<R> phi;
};

struct CentredFrame {
    double sin1, cos1; // of phi1

    template <class R> Place<R> place(SinCos<R> phi, R theta) const {
        auto const at = sinCos(theta);
        R const out = phi.cos * at.cos;
        return {phi.cos * at.sin, cos1 * phi.sin - sin1 * out, sin1 * phi.sin + cos1 * out};
    }

    /// The way back, for a place of any length above 0.
    template <class R> OnSphere<R> onSphere(Place<R> p) const {
        R const out = cos1 * p.up - sin1 * p.north;
        return {atan2(p.east, out), {sin1 * p.up + cos1 * p.north, sqrt(p.east * p.east + out * out)}};
    }
};

/// 1 / (1 + cos c), c being the distance from the centre, without cancellation; 1 at the antipode, where there is none.
template <class R> struct HalfwayScale {
    R value;
    Condition<R> antipode;
};

template <class R> HalfwayScale<R> halfwayScale(Place<R> p) {
    R const sine2 = p.east * p.east + p.north * p.north;
    Condition<R> const far = p.up < 0.0, antipode = far & (sine2 < closest * closest);
    R const divisor = select(antipode, R(1.0), select(far, sine2, 1.0 + p.up));
    return {select(far, 1.0 - p.up, R(1.0)) / divisor, antipode};
}

/// Where a point of a stereographic map lies; `tooFar`: next to the antipode, or beyond.
template <class R> struct StereographicPlace {
    Place<R> place;
    Condition<R> tooFar;
};

/// `size` is twice the sphere's radius times the scale at the centre.
template <class R> StereographicPlace<R> fromStereographic(Xy<R> p, double size) {
    constexpr double farthest = 1 / closest; // tan(c / 2), 2 closest from the antipode
    double const reach = 10 * farthest * size;
    R const X = clamped(p.x, -reach, reach) / size, Y = clamped(p.y, -reach, reach) / size;
    R const r2 = X * X + Y * Y, scale = 1.0 / (1.0 + r2);
    return {{2.0 * scale * X, 2.0 * scale * Y, scale * (1.0 - r2)}, r2 > farthest * farthest};
}

/// Where a point lies in the frame of a centre, both in degrees: for tests of the range.
inline Place<double> placeInDegrees(double lat1, double lon1, PROJPOINT const& point) {
    auto const centre = sinCos(lat1 * degree);
    return CentredFrame{centre.sin, centre.cos}.place(sinCos(point.y * degree),
                                                      std::remainder(point.x - lon1, 360.0) * degree);
}

/// Whether a point is well clear of the antipode of a centre; degrees.
inline bool isClearOfAntipode(double lat1, double lon1, PROJPOINT const& point) {
    auto const p = placeInDegrees(lat1, lon1, point);
    return p.up > 0 || std::hypot(p.east, p.north) > 4 * closest;
}

} // namespace ZrProj::formulas::ZRPROJ_LEVEL
