// The map that is drawn from Robinson's table, whatever interpolates between its parallels.
//
// Source    Snyder (1990), The Robinson projection: a computation algorithm, Cartography and Geographic Information
//           Systems 17, pp. 301-305.
//
// phi, lambda   latitude, longitude from the central meridian
// k, p          the parallel of the table below |phi|; the fraction of the way to the next one
// length, distance   of a parallel, as in the table
#pragma once

#include "formulas/robinson_table.h"
#include "formulas/world.h"

namespace ZrProj::formulas::ZRPROJ_LEVEL {

/// Cubics of p between the parallels of the table.
struct RobinsonCubics {
    static constexpr int intervals = 18, coefficients = 8; // 4 of the length, 4 of the distance
    double values[intervals * coefficients];

    constexpr double& length(int k, int power) { return values[k * coefficients + power]; }
    constexpr double& distance(int k, int power) { return values[k * coefficients + 4 + power]; }
};

/// The table mirrored about the equator: k from -18 to 18.
constexpr RobinsonParallel mirroredParallel(int k) {
    auto const& at = robinsonParallels[static_cast<std::size_t>(k < 0 ? -k : k)];
    return {at.length, k < 0 ? -at.distance : at.distance};
}

template <RobinsonCubics const& cubics> struct RobinsonMap {
    double unit, height, lambda0; // map units a radian of the equator; distance of the poles from the equator

    RobinsonMap(double radius, double centralMeridian)
        : unit(0.8487 * radius), height(1.3523 * radius), lambda0(centralMeridian) {}

    template <class R> Xy<R> forward(LonLat<R> p) const {
        R const steps = larger(abs(p.lat) * (36 / pi), R(0.0)); // 0 for what is no number
        R const k = smaller(nearest(steps - 0.5), R(17.0));     // at a parallel, either side will do
        auto const parallel = Cubics<R>(k);
        R const fraction = steps - k;
        return {unit * longitudeFrom(lambda0, p.lon) * parallel.length(fraction),
                copySign(height * parallel.distance(fraction), p.lat)};
    }

    template <class R> LonLat<R> inverse(Xy<R> p) const {
        R const y = abs(inUnitsOf(height, p.y)), distance = smaller(y, R(1.0));
        R k = 0.0;
        for (int i = 1; i < RobinsonCubics::intervals; ++i)
            k = k + select(distance >= cubics.values[i * RobinsonCubics::coefficients + 4], R(1.0), R(0.0));
        auto const parallel = Cubics<R>(k);
        R const fraction = parallel.fractionOf(distance);
        R const phi = copySign(smaller((k + fraction) * (pi / 36), R(halfPi)), p.y);
        auto const at = onParallel(inUnitsOf(unit, p.x), parallel.length(fraction), R(pi * coordinateNoise));
        return {lambda0 + at.lambda, select(at.outside | (y > 1 + coordinateNoise), R(unplottable), phi)};
    }

private:
    /// The cubics that follow parallel k.
    template <class R> struct Cubics {
        R a[4], b[4]; // of the length and the distance, by the power of p

        explicit Cubics(R k) {
            R const start = k * RobinsonCubics::coefficients;
            for (int power = 0; power < 4; ++power) {
                a[power] = lookUp(cubics.values + power, start);
                b[power] = lookUp(cubics.values + 4 + power, start);
            }
        }

        R length(R p) const { return a[0] + p * (a[1] + p * (a[2] + p * a[3])); }
        R distance(R p) const { return b[0] + p * (b[1] + p * (b[2] + p * b[3])); }

        /// By Newton's method from the straight line between the parallels, which is off by less than 0.02.
        R fractionOf(R distance) const {
            R const wanted = distance - b[0];
            R p = wanted / (b[1] + b[2] + b[3]);
            for (int i = 0; i < 4; ++i)
                p = p - (p * (b[1] + p * (b[2] + p * b[3])) - wanted) / (b[1] + p * (2.0 * b[2] + 3.0 * p * b[3]));
            return p;
        }
    };
};

} // namespace ZrProj::formulas::ZRPROJ_LEVEL
