// Tunisia Mining Grid: longitudes and latitudes in grads, counted in kilometres by three constant factors.
//
// Source    IOGP (2019), Guidance note 7-2, method 9816, after the mining decree of 1 January 1953.
// Departs   kilometres are turned to metres, the unit of the semi-major axis, which has no other part here.
// Accuracy  exact.
// Domain    the globe.
//
// phi0, lambda0   the origin          A   grads a kilometre to the north, different on both sides of the origin
#include "formulas/edges.h"
#include "formulas/formula.h"

namespace ZrProj::formulas::ZRPROJ_LEVEL {
namespace {

constexpr double gradKilometre = 1000 * 200 / pi; // metres a radian where a kilometre is a grad

struct TunisiaMiningGrid {
    static constexpr double east = gradKilometre / 0.012185, north = gradKilometre / 0.010015,
                            south = gradKilometre / 0.01002;

    double phi0, lambda0;

    explicit TunisiaMiningGrid(Parameters const& given) : phi0(given.lat0), lambda0(given.lon0) {}

    template <class R> Xy<R> forward(LonLat<R> p) const {
        R const phi = p.lat - phi0;
        return {east * longitudeFrom(lambda0, p.lon), select(phi > 0.0, R(north), R(south)) * phi};
    }

    template <class R> LonLat<R> inverse(Xy<R> p) const {
        R const phi = phi0 + select(p.y > 0.0, p.y * (1 / north), p.y * (1 / south)), lambda = p.x * (1 / east);
        auto const inside = (abs(phi) <= halfPi * (1 + coordinateNoise)) & (abs(lambda) <= pi * (1 + coordinateNoise));
        R const lon = lambda0 + clamped(lambda, -pi, pi);
        return {lon, select(inside, clamped(phi, -halfPi, halfPi), R(unplottable))};
    }
};

void prepare(Converter& converter, Parameters const& given) noexcept {
    if (areLatitudes(given.lat0))
        hold(converter, TunisiaMiningGrid(given));
}

} // namespace

template <> Formula formula<Method::tunisiaMiningGrid>() noexcept {
    return {prepare, isAnywhere, splitOppositeToLon0, edgesOppositeToLon0};
}

} // namespace ZrProj::formulas::ZRPROJ_LEVEL
