// Geocentric coordinates, moved by translations, rotations and a scale: three parameters, seven, and ten with a pivot.
//
// Source    IOGP (2022), Geomatics guidance note 7-2, sections 4.1.1 (geographic to geocentric) and 4.3.3 to 4.3.6.
// Departs   The latitude is not sought from the distances to axis and equator, but from the move in the plane of the
//           meridian, so that nothing is lost by cancellation: what a place moves by has all of its digits. It is the
//           root of the equation of the ellipsoid's normal, by Halley's step and a Newton step after it. The way back
//           cuts the source's ellipsoid with the target's normal, a quadratic equation, and there the latitude follows
//           from height 0.
// Accuracy  1e-14 degrees besides the rounding of the coordinates themselves, both ways (measured by the tests), so
//           that trips there and back end where they began.
// Domain    all, for displacements within a hundredth of the radius.
//
// phi, lambda    latitude, longitude, of the place before it moves
// a, e2          semi-major axis and eccentricity squared of the ellipsoid; those with to are of the target
// W, N           sqrt(1 - e2 sin^2 phi), and the radius of curvature in the prime vertical, a / W
// X, Y, Z, p     geocentric coordinates, and the distance from the axis
// east, outward  the move, at right angles to the meridian's plane and in it away from the axis
// delta          what the latitude changes by
#include "datum/kernels/shift.h"

namespace ZrProj::datum::ZRPROJ_LEVEL {
namespace {

template <class R> struct Xyz { R X, Y, Z; };

template <class R> Xyz<R> product(std::array<Vector, 3> const& m, Xyz<R> p) {
    return {m[0][0] * p.X + m[0][1] * p.Y + m[0][2] * p.Z, m[1][0] * p.X + m[1][1] * p.Y + m[1][2] * p.Z,
            m[2][0] * p.X + m[2][1] * p.Y + m[2][2] * p.Z};
}

template <class R> Xyz<R> moveOf(Displacement const& displacement, Xyz<R> p) {
    auto const turned = product(displacement.linear, p);
    auto const& t = displacement.constant;
    return {turned.X + t[0], turned.Y + t[1], turned.Z + t[2]};
}

template <class R> Xyz<R> alongNormal(R sideways, R upward, SinCos<R> lambda, SinCos<R> phi) {
    R const p = sideways * phi.cos;
    return {p * lambda.cos, p * lambda.sin, upward * phi.sin};
}

/// A move, seen from the meridian's plane.
template <class R> struct Meridional {
    R turn; // of the meridian, radians
    R dp;   // what the distance from the axis, p, grows by

    Meridional(R p, Xyz<R> move, SinCos<R> lambda) {
        R const east = move.Y * lambda.cos - move.X * lambda.sin;
        R const outward = move.X * lambda.cos + move.Y * lambda.sin;
        R const along = p + outward, distance = sqrt(along * along + east * east);
        turn = atan2(east, along);
        dp = outward + select(along > 0.0, east * east / (distance + along), distance - along);
    }
};

/// The radii of curvature at a latitude.
template <class R> struct Normal {
    R W, N;

    Normal(double a, double e2, R sine) : W(sqrt(1.0 - e2 * sine * sine)), N(a / W) {}
};

/// Sine and cosine of less than 0.03.
template <class R> SinCos<R> sinCosOfSmall(R x) {
    R const z = x * x;
    return {x - x * z * (1.0 / 6 - z * (1.0 / 120 - z * (1.0 / 5040))),
            1.0 - z * (0.5 - z * (1.0 / 24 - z * (1.0 / 720)))};
}

template <class R> R atanOfSmall(R x) {
    R const z = x * x;
    return x - x * z * (1.0 / 3 - z * (1.0 / 5 - z * (1.0 / 7 - z * (1.0 / 9))));
}

/// The latitude, from that of a place nearby on the ellipsoid, of what lies `north` and `up` of it.
template <class R> R latitudeChange(double a, double e2, SinCos<R> phi, Normal<R> const& at, R north, R up) {
    // Of the normal at phi + delta: f = U sin delta - V cos delta - e2 N sin phi cos phi = 0, with N and phi of there.
    R const axial = e2 * at.N * phi.sin * phi.cos;
    R const U = a * at.W + up, V = north - axial;
    R const slope = at.N * (1.0 - e2) / (at.W * at.W) + up, first = north / slope; // the slope at delta = 0
    R const delta = first - first * first * (3.0 * axial + north) / (2.0 * slope);

    auto const small = sinCosOfSmall(delta);
    SinCos<R> const there{phi.sin * small.cos + phi.cos * small.sin, phi.cos * small.cos - phi.sin * small.sin};
    Normal<R> const then(a, e2, there.sin);
    R const both = there.sin * there.cos;
    R const f = U * small.sin - V * small.cos - e2 * then.N * both;
    R const turned = 1.0 - 2.0 * there.sin * there.sin + e2 * both * both / (then.W * then.W);
    R const df = U * small.cos + V * small.sin - e2 * then.N * turned;
    return delta - f / df;
}

struct Forward {
    using Constants = GeocentricShift;
    GeocentricShift const& c;

    template <class R> Pair<R> moved(Pair<R> degrees) const {
        auto const lambda = sinCos(degrees.x * degree), phi = sinCosOfLatitude(degrees.y, cosOnAxis);
        Normal<R> const from(c.a, c.e2, phi.sin), to(c.toA, c.toE2, phi.sin);
        auto const move = moveOf(c.there, alongNormal(from.N, from.N * (1.0 - c.e2), lambda, phi));
        Meridional<R> const meridional(from.N * phi.cos, move, lambda);
        // What lies between the two ellipsoids at phi: N - N' = ((a W')^2 - (a' W)^2) / ((a W' + a' W) W W').
        R const dN =
            (c.radii[0] + c.radii[1] * (phi.sin * phi.sin)) / ((c.a * to.W + c.toA * from.W) * (from.W * to.W));
        R const dp = meridional.dp + dN * phi.cos;
        R const dZ = move.Z + phi.sin * (dN * (1.0 - c.e2) + to.N * (c.toE2 - c.e2));
        R const north = dZ * phi.cos - dp * phi.sin, up = dp * phi.cos + dZ * phi.sin;
        R const delta = latitudeChange(c.toA, c.toE2, phi, to, north, up);
        return movedBy(degrees, {meridional.turn * radian, delta * radian});
    }
};

struct Inverse {
    using Constants = GeocentricShift;
    GeocentricShift const& c;

    template <class R> Pair<R> moved(Pair<R> degrees) const {
        auto const lambda = sinCos(degrees.x * degree), phi = sinCosOfLatitude(degrees.y, cosOnAxis);
        Normal<R> const to(c.toA, c.toE2, phi.sin);
        auto const foot = alongNormal(to.N, to.N * (1.0 - c.toE2), lambda, phi);
        auto const normal = alongNormal(R(1.0), R(1.0), lambda, phi);
        auto const move = moveOf(c.back, foot), tilt = product(c.back.linear, normal);
        R const h = heightOf(foot, move, normal, tilt);
        Xyz<R> const moved{move.X + h * tilt.X, move.Y + h * tilt.Y, move.Z + h * tilt.Z};
        Meridional<R> const meridional((to.N + h) * phi.cos, moved, lambda);
        // tan(phi + delta) = Z / ((1 - e2) p), turned by phi.
        R const p = (to.N + h) * phi.cos + meridional.dp, Z = (to.N * (1.0 - c.toE2) + h) * phi.sin + moved.Z;
        R const north = phi.sin * phi.cos * (to.N * (c.e2 - c.toE2) + c.e2 * h) + moved.Z * phi.cos -
                        (1.0 - c.e2) * meridional.dp * phi.sin;
        R const up = (1.0 - c.e2) * p * phi.cos + Z * phi.sin;
        return movedBy(degrees, {meridional.turn * radian, atanOfSmall(north / up) * radian});
    }

    /// How high the place lies over the target that comes from height 0: where the line of foot + h normal, moved,
    /// meets the source's ellipsoid.
    template <class R> R heightOf(Xyz<R> foot, Xyz<R> move, Xyz<R> normal, Xyz<R> tilt) const {
        Xyz<R> const start{foot.X + move.X, foot.Y + move.Y, foot.Z + move.Z};
        Xyz<R> const line{normal.X + tilt.X, normal.Y + tilt.Y, normal.Z + tilt.Z};
        R const A = onEllipsoid(line, line), B = onEllipsoid(start, line);
        R const C = onEllipsoid(start, start) - c.a * c.a;
        return -C / (B + sqrt(B * B - A * C));
    }
    /// p^2 + Z^2 / (1 - e2), which is a^2 on the ellipsoid.
    template <class R> R onEllipsoid(Xyz<R> u, Xyz<R> v) const {
        return u.X * v.X + u.Y * v.Y + u.Z * v.Z / (1.0 - c.e2);
    }
};

} // namespace

ShiftCode geocentricShift() noexcept {
    return shiftCodeOf<Forward, Inverse>();
}

} // namespace ZrProj::datum::ZRPROJ_LEVEL
