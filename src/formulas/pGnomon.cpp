// Gnomonic: great circles of the sphere are straight lines.
//
// Source    Snyder (1987), Map Projections: A Working Manual, pp. 164-168; equation numbers are his.
// Departs   the inverse takes the place on the sphere from x and y without the angle c.
// Accuracy  1e-7 m as far as 79 degrees from the centre; round trip 1e-12 degrees or 2e-8 m.
// Domain    less than 90 degrees from the centre, on a sphere of the semi-major axis.
//
// phi1, lambda0   the centre      c   distance from it
#include "formulas/centred_frame.h"
#include "formulas/edges.h"
#include "formulas/formula.h"

namespace ZrProj::formulas::ZRPROJ_LEVEL {
namespace {

struct Gnomonic {
    double radius, lambda0;
    CentredFrame centre;

    explicit Gnomonic(Parameters const& given)
        : radius(given.a), lambda0(given.lon0), centre{std::sin(given.lat1), std::cos(given.lat1)} {}

    template <class R> Xy<R> forward(LonLat<R> p) const {
        auto const at = centre.place(sinCos(p.lat), longitudeFrom(lambda0, p.lon));
        auto const shown = at.up > closest;
        R const k = radius / select(shown, at.up, R(1.0));                 // (22-3)
        return {select(shown, k * at.east, R(unplottable)), k * at.north}; // (22-4), (22-5)
    }

    template <class R> LonLat<R> inverse(Xy<R> p) const {
        constexpr double farthest = 1 / (2 * closest); // tan c
        double const reach = 10 * farthest * radius;
        R const X = clamped(p.x, -reach, reach) / radius, Y = clamped(p.y, -reach, reach) / radius;
        auto const q = centre.onSphere(Place<R>{X, Y, R(1.0)});
        auto const beyond = X * X + Y * Y > farthest * farthest;
        return {select(beyond, R(unplottable), lambda0 + q.theta), atan2(q.phi.sin, q.phi.cos)};
    }
};

void prepare(Converter& converter, Parameters const& given) noexcept {
    if (areLatitudes(given.lat1))
        hold(converter, Gnomonic(given));
}

bool inProjection(ParametersInDegrees const& given, PROJPOINT const& point) noexcept {
    return placeInDegrees(given.lat1, given.lon0, point).up > 4 * closest;
}

MapEdges edges(ParametersInDegrees const& given) noexcept {
    return {.horizon = {true, given.lon0, given.lat1}};
}

} // namespace

template <> Formula formula<Method::gnomonic>() noexcept {
    return {prepare, inProjection, neverSplit, edges};
}

} // namespace ZrProj::formulas::ZRPROJ_LEVEL
