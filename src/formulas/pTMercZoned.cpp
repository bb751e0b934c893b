// Transverse Mercator zoned grid: the globe in zones of equal width, each on its own transverse Mercator map, the
// zone's number in front of the easting.
//
// Source    IOGP (2019), Guidance note 7-2, method 9824; the map itself as in pTMercExact.cpp.
// Departs   a meridian between two zones belongs to the eastern one, up to rounding.
// Accuracy  1e-8 m; round trip 1e-12 degrees or 2e-8 m.
// Domain    the globe; a map point outside its zone is nowhere. Zones of up to 30 degrees.
//
// lambdaI, W   western limit of zone 1 and width of a zone          Z   the zone's number, 1 to 2 pi / W
#include "formulas/edges.h"
#include "formulas/formula.h"
#include "formulas/krueger.h"

namespace ZrProj::formulas::ZRPROJ_LEVEL {
namespace {

constexpr double million = 1e6;     // metres of easting from one zone to the next
constexpr double seamWidth = 4e-15; // radians; west of a zone by so little is in it

template <class R> R floorOf(R x) {
    R const near = nearest(x);
    return select(near > x, near - 1.0, near);
}

struct ZonedTransverseMercator {
    Krueger krueger;
    double lambdaI, W, zones;
    double size, origin; // size: of the rectifying sphere, times k0

    explicit ZonedTransverseMercator(Parameters const& given)
        : krueger(given.f), lambdaI(given.lon0), W(given.zoneWidth), zones(std::round(2 * pi / W)),
          size(given.a * given.k0 * rectifyingRadius(given.f)), origin(krueger.meridian(given.lat0)) {}

    template <class R> Xy<R> forward(LonLat<R> p) const {
        R const west = p.lon - lambdaI, zone = floorOf((west + seamWidth) * (1 / W)); // counted from 0, over many turns
        auto const at = krueger.forward(p.lat, west - (zone + 0.5) * W);
        R const Z = zone - zones * floorOf((zone + 0.5) * (1 / zones)) + 1.0;
        return {million * Z + size * at.eta, size * (at.xi - origin)};
    }

    template <class R> LonLat<R> inverse(Xy<R> p) const {
        R const Z = nearest(clamped(p.x, 0, 1e9) * (1 / million));
        auto const at = krueger.inverse(Transverse<R>{p.y * (1 / size) + origin, (p.x - million * Z) * (1 / size)});
        auto const known = at.lat == at.lat;
        R const lat = select(known, at.lat, R(0.0)), beyond = (abs(at.lon) - 0.5 * W) * cos(lat);
        auto const inside = known & (beyond <= coordinateNoise) & (Z >= 1.0) & (Z <= zones);
        R const lon = lambdaI + (Z - 0.5) * W + clamped(at.lon, -0.5 * W, 0.5 * W - 2 * seamWidth);
        return {select(inside, lon, R(unplottable)), lat};
    }
};

/// Whether the zones go around the globe, and one's eastings do not run into the next's.
bool hasMap(Parameters const& given) {
    double const zones = 2 * pi / given.zoneWidth, half = given.zoneWidth / 2;
    return given.f <= Krueger::flattest && areLatitudes(given.lat0) && zones >= 12 && zones <= 360 &&
           std::fabs(zones - std::round(zones)) < 1e-9 && given.a * given.k0 * half * 1.1 < million / 2;
}

void prepare(Converter& converter, Parameters const& given) noexcept {
    if (hasMap(given))
        hold(converter, ZonedTransverseMercator(given));
}

/// Zone 60 is not beside zone 1.
MapEdges edges(ParametersInDegrees const& given) noexcept {
    return {.window = windowAbout(given.lon0 + 180, 180)};
}

} // namespace

template <> Formula formula<Method::transverseMercatorZoned>() noexcept {
    return {prepare, isAnywhere, neverSplit, edges};
}

} // namespace ZrProj::formulas::ZRPROJ_LEVEL
