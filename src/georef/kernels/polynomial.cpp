#include "georef/kernels/kernels.h"
#include "levels/driver.h"

namespace ZrProj::georef::ZRPROJ_LEVEL {
namespace {

/// The polynomial of so many terms, Horner's way in u with coefficients in v.
template <int terms, class R> R sum(double const (&c)[10], R u, R v) {
    if constexpr (terms == 3)
        return c[0] + c[1] * u + c[2] * v;
    else if constexpr (terms == 4)
        return c[0] + c[1] * u + (c[2] + c[3] * u) * v;
    else if constexpr (terms == 6)
        return c[0] + u * (c[1] + u * c[3] + v * c[4]) + v * (c[2] + v * c[5]);
    else
        return c[0] + u * (c[1] + u * (c[3] + u * c[6] + v * c[7]) + v * (c[4] + v * c[8])) +
               v * (c[2] + v * (c[5] + v * c[9]));
}

template <int terms> struct Terms {
    Polynomial polynomial;

    template <class R> Pair<R> convert(Pair<R> p) const {
        R const u = p.x - polynomial.centre.x, v = p.y - polynomial.centre.y;
        return {sum<terms>(polynomial.x, u, v), sum<terms>(polynomial.y, u, v)};
    }
};

template <int terms> void mapBy(Polynomial const& map, levels::Points points) {
    Direct<Terms<terms>> const work{{map}};
    convertPoints(work, points, {});
}

} // namespace

void mapByPolynomial(Polynomial const& map, levels::Points points) noexcept {
    switch (map.terms) {
    case 3:
        return mapBy<3>(map, points);
    case 4:
        return mapBy<4>(map, points);
    case 6:
        return mapBy<6>(map, points);
    default:
        return mapBy<10>(map, points);
    }
}

} // namespace ZrProj::georef::ZRPROJ_LEVEL
