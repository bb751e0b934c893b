// Transverse Mercator, exact: conformal, the central meridian a straight line of constant scale. Far from that meridian
// the well-known series of pTMerc.cpp lose millimetres, then metres; these do not.
//
// Source    Karney (2011), see krueger.h.
// Accuracy  3e-9 m as far as 6500 km east and west, 6e-8 m at the end of the map, from what the series omits; round
// trip
//           1e-12 degrees or 2e-8 m.
// Domain    as far as 6800 km from the central meridian, on both sides of the globe: northings go on beyond the poles.
//           On a sphere, all but the two points that lie a quarter turn away on the equator. Flattenings up to 1/50.
//
// xi, eta   northing from the equator and easting over the rectifying sphere's radius
#include "formulas/edges.h"
#include "formulas/formula.h"
#include "formulas/krueger.h"

namespace ZrProj::formulas::ZRPROJ_LEVEL {
namespace {

struct TransverseMercator {
    Krueger krueger;
    double lambda0, size, origin; // size: of the rectifying sphere, times k0

    explicit TransverseMercator(Parameters const& given)
        : krueger(given.f), lambda0(given.lon0), size(given.a * given.k0 * rectifyingRadius(given.f)),
          origin(krueger.meridian(given.lat0)) {}

    template <class R> Xy<R> forward(LonLat<R> p) const {
        auto const at = krueger.forward(p.lat, longitudeFrom(lambda0, p.lon));
        return {size * at.eta, size * (at.xi - origin)};
    }

    template <class R> LonLat<R> inverse(Xy<R> p) const {
        auto const at = krueger.inverse(Transverse<R>{p.y * (1 / size) + origin, p.x * (1 / size)});
        return {lambda0 + at.lon, at.lat};
    }
};

void prepare(Converter& converter, Parameters const& given) noexcept {
    if (given.f <= Krueger::flattest && areLatitudes(given.lat0))
        hold(converter, TransverseMercator(given));
}

/// How far the map reaches from its central meridian, radians; a little less, since geodetic latitudes are not
/// conformal ones.
double reachOf(ParametersInDegrees const& given) {
    return std::atan(std::sinh(Krueger::reachOf(given.f))) - 1.2 * given.f - 1e-12;
}

bool inProjection(ParametersInDegrees const& given, PROJPOINT const& point) noexcept {
    double const east = std::sin(longitudeDifference(given.lon0, point.x) * degree) * std::cos(point.y * degree);
    return std::fabs(east) < std::sin(reachOf(given));
}

/// The longitudes that are shown at all latitudes.
MapEdges edges(ParametersInDegrees const& given) noexcept {
    return {.window = windowAbout(given.lon0, reachOf(given) * radian)};
}

} // namespace

template <> Formula formula<Method::transverseMercatorExact>() noexcept {
    return {prepare, inProjection, splitOppositeToLon0, edges};
}

} // namespace ZrProj::formulas::ZRPROJ_LEVEL
