// Multiple regression equations: the changes of latitude and longitude as polynomials in both.
//
// Source    DMA TR 8350.2-B (1987), Supplement to Department of Defense World Geodetic System 1984 Technical Report,
//           appendix D. The coefficients are in mre_table.h.
// Departs   the polynomials are nested, in U outside and V inside, with zeros for the terms that an equation has not.
// Accuracy  of the evaluation 1e-12 degrees inside the datum's area. Of the equations a metre or two there.
// Domain    the datum's own area: powers up to U^9 V^9 run away outside. Evaluated wherever it is asked for.
//
// U, V   latitude and longitude from the centre of the area, scaled by K
#include "datum/kernels/method.h"
#include "datum/mre.h"

namespace ZrProj::datum::ZRPROJ_LEVEL {
namespace {

template <class R> R nested(Polynomial2 const& c, R U, R V) {
    R sum = polynomial(V, c[9]);
    for (int i = 8; i >= 0; --i)
        sum = sum * U + polynomial(V, c[i]);
    return sum;
}

struct Equations {
    Regression const* regression;

    template <class R> Pair<R> shifted(Pair<R> degrees) const {
        auto const& r = *regression;
        R const U = r.K * (degrees.y - r.lat0), V = r.K * (degrees.x - r.lon0);
        return {degrees.x + nested(r.lon, U, V) / 3600.0, degrees.y + nested(r.lat, U, V) / 3600.0};
    }
};

} // namespace

template <> Step makeStep<DatumMethodMRE>(DATUM2WGS84 const&, DatumType type) noexcept {
    return stepOf(Equations{regressionOf(type)});
}

} // namespace ZrProj::datum::ZRPROJ_LEVEL
