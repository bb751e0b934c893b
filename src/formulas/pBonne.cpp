// Bonne: equal area, every parallel an arc true to scale about a common centre; Werner's map where the standard
// parallel is a pole.
//
// Source    Snyder (1987), Map Projections: A Working Manual, pp. 138-140; equation numbers are his.
// Departs   the meridian distance and its inverse by the series of auxiliary_latitude.h; distances from the standard
//           parallel instead of the centre.
// Accuracy  5e-8 m; round trip 1e-12 degrees or 2e-8 m.
// Domain    the globe.
//
// phi, lambda   latitude, longitude from the central meridian          phi1   standard parallel
// M             meridian distance          m   radius of a parallel          rho, E   polar coordinates, (19-8), (19-9)
#include "formulas/cone.h"
#include "formulas/edges.h"
#include "formulas/ellipsoid.h"
#include "formulas/formula.h"

namespace ZrProj::formulas::ZRPROJ_LEVEL {
namespace {

struct Bonne {
    Meridian meridian;
    double m1; // M of the standard parallel
    ConcentricArcs arcs;

    Bonne(Parameters const& given, double side, double phi1)
        : meridian(given.f), m1(meridian.distance(phi1)), arcs(arcsOf(given, side, phi1)) {}

    ConcentricArcs arcsOf(Parameters const& given, double side, double phi1) const {
        double const rho = meridian.parallel(phi1) / sin(phi1), quadrant = meridian.quadrant();
        return {given, side, rho, quadrant - m1, -quadrant - m1};
    }

    template <class R> Xy<R> forward(LonLat<R> p) const {
        R const phi = arcs.side * p.lat;
        auto const at = sinCos(phi);
        R const north = meridian.distance(phi, at) - m1, rho = arcs.rho - north; // (19-8)
        R const arc = meridian.parallel(at) * longitudeFrom(arcs.lambda0, p.lon);
        auto const apart = rho > coordinateNoise * 0.01; // else it is Werner's pole
        return arcs.toMap(select(apart, arc, R(0.0)) / select(apart, rho, R(1.0)), rho, north); // (19-9) to (19-11)
    }

    template <class R> LonLat<R> inverse(Xy<R> p) const {
        auto const at = arcs.fromMap(p);                                                           // (19-12)
        R const phi = meridian.latitude(m1 + at.north);                                            // (19-16)
        auto const east = onParallel(at.theta * at.rho, meridian.parallel(sinCos(phi)), at.noise); // (19-17)
        return {arcs.lambda0 + east.lambda, select(at.outside | east.outside, R(unplottable), arcs.side * phi)};
    }
};

bool hasMap(Parameters const& given) {
    return given.f <= AuxiliaryLatitude::flattest && areLatitudes(given.lat1);
}

void prepare(Converter& converter, Parameters const& given) noexcept {
    // Nearer to the equator than this, the arcs' curvature no longer changes a coordinate.
    constexpr double straight = 1e-20;
    double const side = sideOf(given.lat1, 0), phi1 = side * given.lat1;
    if (hasMap(given))
        hold(converter, Bonne(given, side, phi1 > straight ? phi1 : straight));
}

} // namespace

template <> Formula formula<Method::bonne>() noexcept {
    return {prepare, isAnywhere, splitOppositeToLon0, edgesOppositeToLon0};
}

} // namespace ZrProj::formulas::ZRPROJ_LEVEL
