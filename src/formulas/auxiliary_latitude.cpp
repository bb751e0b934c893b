#include "formulas/ellipsoid.h"

namespace ZrProj::formulas::ZRPROJ_LEVEL {
namespace {

constexpr int mostNodes = 64; // of the Fourier sums, over half a turn of 2 phi

/// What is enough for the terms that a flattening has: those of the Earth's fall by 600 times from one to the next.
int nodesFor(double flattening) {
    return flattening < 0.005 ? 16 : mostNodes;
}

double eccentricity(double flattening) {
    return std::sqrt(flattening * (2 - flattening));
}

/// Area hyperbolic tangent by its power series, good for an eccentricity of up to 0.7.
double arcTanh(double x) {
    double sum = 0, power = x;
    for (int k = 1; k < 120 && abs(power) > 1e-18 * abs(x); k += 2, power *= x * x)
        sum += power / k;
    return sum;
}

double cosh(double x) {
    return (exp(x) + exp(-x)) / 2;
}

/// Takes coefficients from `coefficient(k)`, k = 1, 2, ..., until two in a row are no more than the rounding noise of
/// the sums. Returns how many there are.
template <class Coefficient> int takeTerms(double* c, bool& converged, Coefficient const& coefficient) {
    constexpr double noise = 8e-17;
    for (int k = 1; k <= AuxiliaryLatitude::maxTerms; ++k) {
        c[k - 1] = coefficient(k);
        if (k > 1 && abs(c[k - 1]) < noise && abs(c[k - 2]) < noise)
            return k - 2;
    }
    converged = false;
    return AuxiliaryLatitude::maxTerms;
}

/// The sine coefficients of an odd function of 2x, given as difference(x) for x between 0 and pi/2.
template <class Difference> int takeSineTerms(double* c, bool& converged, int nodes, Difference const& difference) {
    double values[mostNodes], sines[2 * mostNodes];
    for (int j = 0; j < 2 * nodes; ++j)
        sines[j] = sin(pi / nodes * j);
    for (int j = 1; j < nodes; ++j)
        values[j] = difference(halfPi / nodes * j);
    return takeTerms(c, converged, [&](int k) {
        double sum = 0;
        for (int j = 1; j < nodes; ++j)
            sum += values[j] * sines[(k * j) % (2 * nodes)];
        return 2 * sum / nodes;
    });
}

/// d xi / d phi by the series, at a latitude with this sine and cosine: Clenshaw's recurrence for cosines.
double derivative(AuxiliaryLatitude const& latitude, SinCos<double> at) {
    double const cos2 = 1 - 2 * at.sin * at.sin;
    double b1 = 0, b2 = 0;
    for (int k = latitude.terms; k > 0; --k) {
        double const b = 2 * k * latitude.toXi[k - 1] + (2 * cos2 * b1 - b2);
        b2 = b1;
        b1 = b;
    }
    return 1 + (cos2 * b1 - b2);
}

/// Fills in the way back from the way there.
AuxiliaryLatitude completed(AuxiliaryLatitude latitude, int nodes) {
    int const back = takeSineTerms(latitude.toPhi, latitude.converged, nodes, [&](double xi) {
        double phi = xi, step = 1;
        for (int i = 0; i < 12 && abs(step) > 1e-16; ++i) { // Newton; 3 steps for the Earth
            auto const at = sinCos(phi);
            step = (latitude.auxiliary(phi, at) - xi) / derivative(latitude, at);
            phi -= step;
        }
        return phi - xi;
    });
    for (int k = latitude.terms; k < back; ++k)
        latitude.toXi[k] = 0;
    for (int k = back; k < latitude.terms; ++k)
        latitude.toPhi[k] = 0;
    latitude.terms = back > latitude.terms ? back : latitude.terms;
    return latitude;
}

} // namespace

AuxiliaryLatitude conformalLatitude(double flattening) {
    AuxiliaryLatitude latitude;
    if (flattening == 0)
        return latitude;
    int const nodes = nodesFor(flattening);
    double const e = eccentricity(flattening);
    // sin(chi - phi) from the isometric latitudes of the sphere (psi0) and the ellipsoid (psi0 - shift).
    latitude.terms = takeSineTerms(latitude.toXi, latitude.converged, nodes, [e](double phi) {
        auto const at = sinCos(phi);
        double const shift = e * arcTanh(e * at.sin), up = exp(shift / 2);
        double const psi0 = log((1 + at.sin) / at.cos);
        return asin(-cosh(psi0 - shift / 2) * (up - 1 / up) * at.cos / cosh(psi0 - shift));
    });
    return completed(latitude, nodes);
}

AuxiliaryLatitude authalicLatitude(double flattening) {
    AuxiliaryLatitude latitude;
    if (flattening == 0)
        return latitude;
    int const nodes = nodesFor(flattening);
    double const e = eccentricity(flattening), e2 = e * e, pole = authalicQ(flattening);
    // 1 - sin(beta) = 1 - q(phi) / q(pole), free of cancellation.
    latitude.terms = takeSineTerms(latitude.toXi, latitude.converged, nodes, [=](double phi) {
        auto const at = sinCos(phi);
        double const half = sin((halfPi - phi) / 2), gap = 2 * half * half; // 1 - sin(phi)
        double const missing = (gap * (1 + e2 * at.sin) / (1 - e2 * at.sin * at.sin) +
                                (1 - e2) * arcTanh(e * gap / (1 - e2 * at.sin)) / e) /
                               pole;
        return asin((1 - missing) * at.cos - std::sqrt(missing * (2 - missing)) * at.sin);
    });
    return completed(latitude, nodes);
}

AuxiliaryLatitude rectifyingLatitude(double flattening) {
    AuxiliaryLatitude latitude;
    if (flattening == 0)
        return latitude;
    int const nodes = nodesFor(flattening);
    // The cosine coefficients of dM/dphi, integrated term by term.
    double const e2 = flattening * (2 - flattening), radius = rectifyingRadius(flattening);
    latitude.terms = takeTerms(latitude.toXi, latitude.converged, [=](int k) {
        double sum = 0;
        for (int j = 0; j < nodes; ++j) { // by symmetry, half a turn is enough
            double const theta = pi / nodes * (j + 0.5), s = sin(theta / 2), w = 1 - e2 * s * s;
            sum += cos(k * theta) * (1 - e2) / (w * std::sqrt(w));
        }
        return sum / nodes / (k * radius);
    });
    return completed(latitude, nodes);
}

double rectifyingRadius(double flattening) {
    int const nodes = nodesFor(flattening);
    double const e2 = flattening * (2 - flattening);
    double sum = 0;
    for (int j = 0; j < nodes; ++j) {
        double const s = sin(halfPi / nodes * (j + 0.5)), w = 1 - e2 * s * s;
        sum += (1 - e2) / (w * std::sqrt(w));
    }
    return sum / nodes;
}

double authalicQ(double flattening) {
    if (flattening == 0)
        return 2;
    double const e = eccentricity(flattening);
    return 1 + (1 - e * e) * arcTanh(e) / e;
}

PowerSeries eccentricArtanh(double flattening) {
    double const e2 = flattening * (2 - flattening);
    PowerSeries series;
    for (double power = e2; power > 1e-18 && series.terms < PowerSeries::maxTerms; power *= e2) {
        series.c[series.terms] = power / (2 * series.terms + 1);
        ++series.terms;
    }
    return series;
}

} // namespace ZrProj::formulas::ZRPROJ_LEVEL
