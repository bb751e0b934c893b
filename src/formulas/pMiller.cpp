// Miller cylindrical: Mercator's projection of four fifths of the latitude, stretched back, so that the poles show.
//
// Source    Snyder (1987), Map Projections: A Working Manual, pp. 86-89; equation numbers are his.
// Accuracy  5e-8 m; round trip 1e-12 degrees or 2e-8 m.
// Domain    the globe, as a sphere of the semi-major axis.
//
// phi, lambda   latitude, longitude
#include "formulas/auxiliary_latitude.h"
#include "formulas/cylinder.h"
#include "formulas/edges.h"
#include "formulas/formula.h"

namespace ZrProj::formulas::ZRPROJ_LEVEL {
namespace {

struct Miller {
    double stretch; // 5 R / 4
    Cylinder cylinder;

    explicit Miller(Parameters const& given)
        : stretch(1.25 * given.a), cylinder{given.a, given.lon0, given.a, northOf(halfPi), 0} {}

    template <class R> R northOf(R phi) const { return stretch * isometric(sinCos(0.8 * phi)); }

    template <class R> Xy<R> forward(LonLat<R> p) const {
        return cylinder.toMap(p.lon, northOf(p.lat)); // (11-1), (11-2)
    }

    template <class R> LonLat<R> inverse(Xy<R> p) const {
        auto const at = cylinder.fromMap(p);
        R const phi = clamped(1.25 * conformalOf(at.north * (1 / stretch)), -halfPi, halfPi); // (11-6)
        return {at.lon, select(at.outside, R(unplottable), phi)};                             // (11-7)
    }
};

void prepare(Converter& converter, Parameters const& given) noexcept {
    hold(converter, Miller(given));
}

} // namespace

template <> Formula formula<Method::miller>() noexcept {
    return {prepare, isAnywhere, splitOppositeToLon0, edgesOppositeToLon0};
}

} // namespace ZrProj::formulas::ZRPROJ_LEVEL
