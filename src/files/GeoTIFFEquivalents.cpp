// Parameters that say the same in another way.
//
// Source    Snyder (1987), Map Projections: A Working Manual, pp. 44, 107 and 161; equation numbers are his.
// Accuracy  1e-14 in the scale factors, 1e-12 degrees in the parallels.
#include "files/GeoTIFFEquivalents.h"

#include <cmath>
#include <numbers>

namespace ZrProj::GeoTIFF {
namespace {

constexpr double degree = std::numbers::pi / 180;

/// The radius of a parallel over that of the equator's circle, (14-15), and the logarithm of t of (15-9).
struct Meridian {
    double e;

    explicit Meridian(double flattening) : e(std::sqrt(flattening * (2 - flattening))) {}

    double m(double phi) const {
        double const s = e * std::sin(phi);
        return std::cos(phi) / std::sqrt((1 - s) * (1 + s));
    }
    double logT(double phi) const { return -std::asinh(std::tan(phi)) + e * std::atanh(e * std::sin(phi)); }
};

/// The logarithm of how much larger the scale is than along the touching parallel.
struct Cone {
    Meridian meridian;
    double phi0;

    double excess(double phi) const {
        double const n = std::sin(phi0);
        return std::log(meridian.m(phi0) / meridian.m(phi)) + n * (meridian.logT(phi) - meridian.logT(phi0));
    }

    /// Where the excess is as wanted, between the touching parallel and a pole: it grows all the way.
    double parallelOf(double wanted, double pole) const {
        double near = phi0, far = pole;
        for (int i = 0; i < 80; ++i) {
            double const middle = near + (far - near) / 2;
            (excess(middle) < wanted ? near : far) = middle;
        }
        return near;
    }
};

} // namespace

double mercatorScale(double parallel, double flattening) {
    return Meridian(flattening).m(parallel * degree);
}

double polarScale(double parallel, double flattening) {
    Meridian const meridian(flattening);
    double const phi = std::fabs(parallel) * degree, e = meridian.e;
    // m / t by (21-34) over 2 / sqrt((1 + e)^(1 + e) (1 - e)^(1 - e)) by (21-33)
    double const pole = std::exp(((1 + e) * std::log1p(e) + (1 - e) * std::log1p(-e)) / 2);
    return meridian.m(phi) / std::exp(meridian.logT(phi)) * pole / 2;
}

ConeParallels coneParallels(double parallel, double scale, double flattening) {
    constexpr double apart = 2e-6; // of the scale, where two parallels are some 0.2 degrees apart
    Cone const cone{Meridian(flattening), parallel * degree};
    bool const cuts = -std::log(scale) > apart;
    double const wanted = cuts ? -std::log(scale) : 1.5e-4;
    double const quarter = std::numbers::pi / 2;
    return {cone.parallelOf(wanted, -quarter) / degree, cone.parallelOf(wanted, quarter) / degree,
            cuts ? 1 : scale * std::exp(wanted)};
}

double mercatorNorthing(double latitude, double radius, double flattening) {
    return -radius * Meridian(flattening).logT(latitude * degree);
}

} // namespace ZrProj::GeoTIFF
