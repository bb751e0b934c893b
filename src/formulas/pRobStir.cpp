// Robinson-Sterling: Robinson's map by Snyder's interpolation.
//
// Source    Snyder (1990), The Robinson projection: a computation algorithm, Cartography and Geographic Information
//           Systems 17, pp. 301-305: Stirling's central differences to the second order.
// Departs   the fraction counts from the parallel below everywhere, so that the map is continuous.
// Accuracy  5e-8 m, beside the poles 1e-6 m; round trip 1e-12 degrees or 2e-8 m.
// Domain    the globe, as a sphere of the semi-major axis; the inverse up to the outline.
#include "formulas/edges.h"
#include "formulas/formula.h"
#include "formulas/robinson.h"

namespace ZrProj::formulas::ZRPROJ_LEVEL {
namespace {

constexpr RobinsonCubics differences = [] {
    RobinsonCubics cubics{};
    for (int k = 0; k < RobinsonCubics::intervals; ++k) {
        auto const before = mirroredParallel(k - 1), at = mirroredParallel(k), after = mirroredParallel(k + 1);
        cubics.length(k, 0) = at.length;
        cubics.length(k, 1) = (after.length - before.length) / 2;
        cubics.length(k, 2) = (after.length - 2 * at.length + before.length) / 2;
        cubics.distance(k, 0) = at.distance;
        cubics.distance(k, 1) = (after.distance - before.distance) / 2;
        cubics.distance(k, 2) = (after.distance - 2 * at.distance + before.distance) / 2;
    }
    return cubics;
}();

void prepare(Converter& converter, Parameters const& given) noexcept {
    hold(converter, RobinsonMap<differences>(given.a, given.lon0));
}

} // namespace

template <> Formula formula<Method::robinsonSterling>() noexcept {
    return {prepare, isAnywhere, splitOppositeToLon0, edgesOppositeToLon0};
}

} // namespace ZrProj::formulas::ZRPROJ_LEVEL
