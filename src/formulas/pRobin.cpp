// Robinson: the globe to the eye's liking, neither equal area nor conformal, poles as lines.
//
// Source    Snyder (1990), The Robinson projection: a computation algorithm, Cartography and Geographic Information
//           Systems 17, pp. 301-305, for Robinson's table; the curve through it is ours, since he drew it by hand.
// Departs   one cubic spline through the table mirrored to -90..90 degrees, third derivative continuous at +-85.
// Accuracy  5e-8 m, beside the poles 1e-6 m; round trip 1e-12 degrees or 2e-8 m.
// Domain    the globe, as a sphere of the semi-major axis; the inverse up to the outline.
#include "formulas/edges.h"
#include "formulas/formula.h"
#include "formulas/robinson.h"

namespace ZrProj::formulas::ZRPROJ_LEVEL {
namespace {

constexpr int last = 18; // knots from -last to last, one apart

/// A value a knot.
struct Knots {
    double values[2 * last + 1];
    constexpr double& operator[](int k) { return values[k + last]; }
};

/// Second derivatives of the spline through the knots: of their equations m[k-1] + 4 m[k] + m[k+1] = 6 difference[k],
/// the outermost have one unknown only, since a third derivative that is continuous at the last knot but one asks for
/// m[last] = 2 m[last-1] - m[last-2].
constexpr Knots secondDerivatives(Knots f) {
    Knots m{}, diagonal{};
    auto const rightSide = [&](int k) { return 6 * ((f[k + 1] - f[k]) - (f[k] - f[k - 1])); };
    m[1 - last] = rightSide(1 - last) / 6;
    m[last - 1] = rightSide(last - 1) / 6;
    diagonal[1 - last] = 1;
    for (int k = 2 - last; k < last - 1; ++k) { // eliminated downwards, m[k] being the right side for the time being
        double const above = k == 2 - last ? 0 : 1 / diagonal[k - 1];
        diagonal[k] = 4 - above;
        m[k] = rightSide(k) - (k == 2 - last ? m[k - 1] : m[k - 1] * above);
    }
    for (int k = last - 2; k > 1 - last; --k)
        m[k] = (m[k] - m[k + 1]) / diagonal[k];
    m[-last] = 2 * m[1 - last] - m[2 - last];
    m[last] = 2 * m[last - 1] - m[last - 2];
    return m;
}

/// The coefficient of p^power from knot k on.
constexpr double coefficient(Knots f, Knots m, int k, int power) {
    double const all[] = {f[k], (f[k + 1] - f[k]) - (2 * m[k] + m[k + 1]) / 6, m[k] / 2, (m[k + 1] - m[k]) / 6};
    return all[power];
}

constexpr RobinsonCubics spline = [] {
    Knots length{}, distance{};
    for (int k = -last; k <= last; ++k) {
        length[k] = mirroredParallel(k).length;
        distance[k] = mirroredParallel(k).distance;
    }
    auto const lengthBend = secondDerivatives(length), distanceBend = secondDerivatives(distance);
    RobinsonCubics cubics{};
    for (int k = 0; k < last; ++k)
        for (int power = 0; power < 4; ++power) {
            cubics.length(k, power) = coefficient(length, lengthBend, k, power);
            cubics.distance(k, power) = coefficient(distance, distanceBend, k, power);
        }
    return cubics;
}();

void prepare(Converter& converter, Parameters const& given) noexcept {
    hold(converter, RobinsonMap<spline>(given.a, given.lon0));
}

} // namespace

template <> Formula formula<Method::robinson>() noexcept {
    return {prepare, isAnywhere, splitOppositeToLon0, edgesOppositeToLon0};
}

} // namespace ZrProj::formulas::ZRPROJ_LEVEL
