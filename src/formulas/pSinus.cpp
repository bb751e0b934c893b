// Sinusoidal: equal area, the parallels straight and true, evenly spaced.
//
// Source    Snyder (1987), Map Projections: A Working Manual, pp. 243-248; equation numbers are his.
// Departs   the meridian distance and its inverse by the series of auxiliary_latitude.h.
// Accuracy  5e-8 m; round trip 1e-12 degrees or 2e-8 m.
// Domain    the globe.
//
// phi, lambda   latitude, longitude          M   meridian distance          m   radius of a parallel
#include "formulas/edges.h"
#include "formulas/ellipsoid.h"
#include "formulas/formula.h"

namespace ZrProj::formulas::ZRPROJ_LEVEL {
namespace {

struct Sinusoidal {
    Meridian meridian;
    double a, lambda0;

    explicit Sinusoidal(Parameters const& given) : meridian(given.f), a(given.a), lambda0(given.lon0) {}

    template <class R> Xy<R> forward(LonLat<R> p) const {
        auto const phi = sinCos(p.lat);
        return {a * (meridian.parallel(phi) * longitudeFrom(lambda0, p.lon)), // (30-8)
                a * meridian.distance(p.lat, phi)};                           // (30-9)
    }

    template <class R> LonLat<R> inverse(Xy<R> p) const {
        double const unit = 1 / a, top = a * meridian.quadrant() * (1 + coordinateNoise);
        auto const far = (abs(p.x) > 4 * a) | (abs(p.y) > top);
        R const x = select(far, R(0.0), p.x) * unit, y = select(far, R(0.0), p.y) * unit;
        R const phi = meridian.latitude(y); // (30-10)
        R const noise = coordinateNoise * (1.0 + abs(x));
        auto const east = onParallel(x, meridian.parallel(sinCos(phi)), noise); // (30-11)
        return {lambda0 + east.lambda, select(far | east.outside, R(unplottable), phi)};
    }
};

bool hasMap(Parameters const& given) {
    return given.f <= AuxiliaryLatitude::flattest;
}

void prepare(Converter& converter, Parameters const& given) noexcept {
    if (hasMap(given))
        hold(converter, Sinusoidal(given));
}

} // namespace

template <> Formula formula<Method::sinusoidal>() noexcept {
    return {prepare, isAnywhere, splitOppositeToLon0, edgesOppositeToLon0};
}

} // namespace ZrProj::formulas::ZRPROJ_LEVEL
