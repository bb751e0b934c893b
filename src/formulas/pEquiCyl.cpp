// Equidistant cylindrical: true along the meridians and one parallel; the plate carree where that is the equator.
//
// Source    EPSG guidance note 7-2, method 1028; Snyder (1987), Map Projections: A Working Manual, pp. 90-91, for the
//           sphere.
// Accuracy  5e-8 m; round trip 1e-12 degrees or 2e-8 m.
// Domain    the globe; nothing when the standard parallel is a pole, which has no length.
//
// phi, lambda   latitude, longitude          phi1   standard parallel
#include "formulas/cylinder.h"
#include "formulas/edges.h"
#include "formulas/ellipsoid.h"
#include "formulas/formula.h"

namespace ZrProj::formulas::ZRPROJ_LEVEL {
namespace {

struct EquidistantCylindrical {
    Meridian meridian;
    double a;
    Cylinder cylinder;

    explicit EquidistantCylindrical(Parameters const& given)
        : meridian(given.f),
          a(given.a), cylinder{a, given.lon0, a * meridian.parallel(given.lat1), a * meridian.quadrant(), 0} {}

    template <class R> Xy<R> forward(LonLat<R> p) const {
        return cylinder.toMap(p.lon, a * meridian.distance(p.lat, sinCos(p.lat)));
    }

    template <class R> LonLat<R> inverse(Xy<R> p) const {
        auto const at = cylinder.fromMap(p);
        return {at.lon, select(at.outside, R(unplottable), meridian.latitude(at.north * (1 / a)))};
    }
};

bool hasMap(Parameters const& given) {
    return given.f <= AuxiliaryLatitude::flattest && std::fabs(given.lat1) < halfPi;
}

void prepare(Converter& converter, Parameters const& given) noexcept {
    if (hasMap(given))
        hold(converter, EquidistantCylindrical(given));
}

} // namespace

template <> Formula formula<Method::equidistantCylindrical>() noexcept {
    return {prepare, isAnywhere, splitOppositeToLon0, edgesOppositeToLon0};
}

} // namespace ZrProj::formulas::ZRPROJ_LEVEL
