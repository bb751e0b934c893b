#include "georef/kernels/polynomial.h"

#include "georef/kernels/point_blocks.h"

namespace ZrProj::formulas::ZRPROJ_LEVEL {
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

template <int terms> void mapBy(Polynomial const& map, GEOREFPOINT* points, std::size_t count) {
    mapPoints(
        [map](Xy<Register> p) {
            Register const u = p.x - map.centre.x, v = p.y - map.centre.y;
            return Xy<Register>{sum<terms>(map.x, u, v), sum<terms>(map.y, u, v)};
        },
        points, count);
}

} // namespace

void mapByPolynomial(Polynomial const& map, GEOREFPOINT* points, std::size_t count) noexcept {
    switch (map.terms) {
    case 3:
        return mapBy<3>(map, points, count);
    case 4:
        return mapBy<4>(map, points, count);
    case 6:
        return mapBy<6>(map, points, count);
    default:
        return mapBy<10>(map, points, count);
    }
}

} // namespace ZrProj::formulas::ZRPROJ_LEVEL
