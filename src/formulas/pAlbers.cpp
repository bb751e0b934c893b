// Albers equal-area conic: equal area, straight meridians, true along two standard parallels.
//
// Source    Snyder (1987), Map Projections: A Working Manual, pp. 98-103; equation numbers are his.
// Departs   q of (3-12) as a power series, and measured from the pole, where q itself has few digits; distances from
//           the pole's arc instead of the apex; the inverse by the authalic latitude's series.
// Accuracy  5e-8 m; round trip 1e-12 degrees or 2e-8 m.
// Domain    the globe.
//
// phi, lambda   latitude, longitude          phi0, phi1, phi2   latitude of origin, standard parallels
// q             sin phi on a sphere, doubled; u = q(90) - q
// m             radius of a parallel          n   cone constant
#include "formulas/auxiliary_latitude.h"
#include "formulas/cone.h"
#include "formulas/edges.h"
#include "formulas/ellipsoid.h"
#include "formulas/formula.h"

namespace ZrProj::formulas::ZRPROJ_LEVEL {
namespace {

/// q(90) - q(phi), with all its digits at the pole, and back.
struct AreaFromPole {
    AuxiliaryLatitude authalic;
    double pole;      // q(90)
    PowerSeries rest; // u = (1 - sin)(q(90) + sin (1 + sin) rest(sin^2)), by taking q's odd series apart

    explicit AreaFromPole(double flattening)
        : authalic(authalicLatitude(flattening)), pole(authalicQ(flattening)), rest(eccentricArtanh(flattening)) {
        double const e2 = flattening * (2 - flattening);
        double tail = 0;
        for (int k = rest.terms; k-- > 0;) // q = 2 (1 - e^2) sum (k + 1) / (2k + 1) e^2k sin^(2k+1)
            rest.c[k] = tail += 2 * (1 - e2) * (k + 2) * rest.c[k] * (2 * k + 1) / (2 * k + 3);
    }

    template <class R> R of(SinCos<R> phi) const {
        R const sum = 1.0 + abs(phi.sin);
        R const gap = select(phi.sin > 0.0, phi.cos * phi.cos / sum, sum); // 1 - sin
        return gap * (pole + phi.sin * (1.0 + phi.sin) * rest(phi.sin * phi.sin));
    }

    template <class R> R latitude(R u) const {
        R const sine = pole - u, cosine = sqrt(u * (pole + sine));
        return authalic.geodetic(atan2(sine, cosine), {sine * (1 / pole), cosine * (1 / pole)}); // (3-18)
    }
};

/// (14-14), by differences that stay exact where the parallels are close or nearly opposite.
double coneConstant(double phi1, double phi2, double e2) {
    double const e = std::sqrt(e2), sin1 = sin(phi1), sin2 = sin(phi2);
    double const middle = (phi1 + phi2) / 2, half = (phi2 - phi1) / 2;
    double const z = 2 * e * cos(middle) * sin(half) / (1 - e2 * sin1 * sin2); // tanh of a difference
    double const stretch = (z == 0 ? 1 : std::atanh(z) / z) / (1 - e2 * sin1 * sin2);
    double const w = (1 - e2 * sin1 * sin1) * (1 - e2 * sin2 * sin2);
    return 2 * sin(middle) * cos(half) / (1 + e2 * sin1 * sin2 + w * stretch);
}

struct AlbersEqualArea {
    AreaFromPole area;
    Cone cone; // its parallel of reference is the pole

    AlbersEqualArea(Parameters const& given, double side, double phi1, double phi2)
        : area(given.f), cone(coneOf(given, side, phi1 > phi2 ? phi1 : phi2, phi1 > phi2 ? phi2 : phi1)) {
        cone.bottom = northOf(2 * area.pole);
        cone.origin = northOf(area.of(sinCos(side * given.lat0)));
    }

    /// The parallel nearer to the pole tells best how wide the pole is.
    Cone coneOf(Parameters const& given, double side, double nearer, double other) const {
        double const e2 = given.f * (2 - given.f), n = coneConstant(nearer, other, e2);
        auto const at = sinCos(nearer);
        double const m2 = at.cos * at.cos / (1 - e2 * at.sin * at.sin), square = m2 - n * area.of(at);
        double const rho = square > 0 ? std::sqrt(square) / n : 0; // (14-3) at the pole
        return {{given, side, rho, 0, 0}, n};
    }

    template <class R> R radiusOf(R u) const { return sqrt(cone.rho * cone.rho + u * (1 / cone.n)); } // (14-3)
    template <class R> R northOf(R u) const {
        R const sum = cone.rho + radiusOf(u);
        return -u * (1 / cone.n) / select(sum > 0.0, sum, R(1.0));
    }

    template <class R> Xy<R> forward(LonLat<R> p) const {
        R const u = area.of(sinCos(cone.side * p.lat));
        return cone.toMap(cone.theta(p.lon), radiusOf(u), northOf(u)); // (14-1), (14-2), (14-4)
    }

    template <class R> LonLat<R> inverse(Xy<R> p) const {
        auto const at = cone.fromMap(p);                              // (14-10), (14-11)
        R const u = -cone.n * at.north * (2.0 * cone.rho - at.north); // (14-19)
        return cone.geographic(at, area.latitude(clamped(u, 0, 2 * area.pole)));
    }
};

bool hasMap(Parameters const& given) {
    return given.f <= AuxiliaryLatitude::flattest && areLatitudes(given.lat0, given.lat1, given.lat2);
}

void prepare(Converter& converter, Parameters const& given) noexcept {
    double const side = sideOf(given.lat1, given.lat2);
    if (hasMap(given))
        hold(converter, AlbersEqualArea(given, side, side * given.lat1, side * given.lat2));
}

} // namespace

template <> Formula formula<Method::albers>() noexcept {
    return {prepare, isAnywhere, splitOppositeToLon0, edgesOppositeToLon0};
}

} // namespace ZrProj::formulas::ZRPROJ_LEVEL
