// Cylindrical equal area, of the sphere and of the ellipsoid: a rectangle, true along two parallels.
//
// Source    Snyder (1987), Map Projections: A Working Manual, pp. 76-85; equation numbers are his.
// Departs   the authalic latitude and its way back by the series of auxiliary_latitude.h.
// Accuracy  1e-8 m; round trip 1e-12 degrees or 2e-8 m.
// Domain    the globe; nothing when a pole is to be true.
//
// phis      standard parallel      k0   length of a radian of longitude over a, (10-13)      q   as in (3-12)
// beta      authalic latitude
#include "formulas/auxiliary_latitude.h"
#include "formulas/cylinder.h"
#include "formulas/edges.h"
#include "formulas/formula.h"

namespace ZrProj::formulas::ZRPROJ_LEVEL {
namespace {

struct CylindricalEqualArea {
    AuxiliaryLatitude authalic;
    Cylinder cylinder;

    explicit CylindricalEqualArea(Parameters const& given) : authalic(authalicLatitude(given.f)), cylinder{} {
        double const e2 = given.f * (2 - given.f), sine = std::sin(given.lat1);
        double const k0 = std::cos(given.lat1) / std::sqrt(1 - e2 * sine * sine);
        double const top = given.a * authalicQ(given.f) / (2 * k0);
        cylinder = {given.a, given.lon0, given.a * k0, top, 0}; // (10-14)
    }

    template <class R> Xy<R> forward(LonLat<R> p) const {
        R const sine = sin(authalic.auxiliary(p.lat, sinCos(p.lat))); // q over that of a pole
        return cylinder.toMap(p.lon, cylinder.top * sine);            // (10-15)
    }

    template <class R> LonLat<R> inverse(Xy<R> p) const {
        auto const at = cylinder.fromMap(p);
        R const sine = at.north * (1 / cylinder.top), cosine = sqrt(clamped((1.0 - sine) * (1.0 + sine), 0, 1));
        R const phi = authalic.geodetic(atan2(sine, cosine), {sine, cosine}); // (10-26)
        return {at.lon, select(at.outside, R(unplottable), phi)};
    }
};

bool hasMap(Parameters const& given) {
    return given.f <= AuxiliaryLatitude::flattest && std::fabs(given.lat1) < halfPi;
}

void prepare(Converter& converter, Parameters const& given) noexcept {
    if (hasMap(given))
        hold(converter, CylindricalEqualArea(given));
}

} // namespace

template <> Formula formula<Method::cylindricalEqualArea>() noexcept {
    return {prepare, isAnywhere, splitOppositeToLon0, edgesOppositeToLon0};
}

} // namespace ZrProj::formulas::ZRPROJ_LEVEL
