// Runs a map over an array of points, a register full of them at a time. What is left at the end is mapped in a
// register of its own, so that a point is computed by the same instructions wherever in an array it stands.
#pragma once

#include "formulas/number.h"

#include <zrproj/georef.h>

#include <cstddef>
#include <cstring>
#include <utility>

namespace ZrProj::formulas::ZRPROJ_LEVEL {

#if defined(ZRPROJ_LEVEL_scalar)

inline Xy<double> exchange(double a, double b) {
    return {a, b};
}

#else

/// Of each 128 bits of two registers, the first numbers and the second ones: x and y of pairs, in an order of the
/// points that the same exchange undoes.
inline Xy<Register> exchange(Register a, Register b) {
    using Native = xsimd::batch<double, Architecture>::register_type;
    Native const left = a.v, right = b.v;
    auto const take = [&]<int second, int... i>(std::integer_sequence<int, i...>) {
        return Register(Native(__builtin_shufflevector(left, right, (i / 2 * 2 + second + i % 2 * lanes)...)));
    };
    using All = std::make_integer_sequence<int, lanes>;
    return {take.template operator()<0>(All{}), take.template operator()<1>(All{})};
}

#endif

/// As many points as a register has lanes; what is marked, or comes out infinite or NaN, is marked.
template <class Map> [[gnu::always_inline]] inline void mapRegister(Map const& map, double* pairs) {
    Register const marker = DBL_MAX;
    auto const in = exchange(load(pairs), load(pairs + lanes));
    Xy<Register> const out = map(in);
    auto const stands = (in.x != marker) & (in.y != marker) & (abs(out.x) <= DBL_MAX) & (abs(out.y) <= DBL_MAX);
    auto const result = exchange(select(stands, out.x, marker), select(stands, out.y, marker));
    store(pairs, result.x);
    store(pairs + lanes, result.y);
}

/// `map` takes and gives an Xy<Register>.
template <class Map> void mapPoints(Map const& map, GEOREFPOINT* points, std::size_t count) {
    static_assert(sizeof(GEOREFPOINT) == 2 * sizeof(double));
    auto* const pairs = reinterpret_cast<double*>(points);
    std::size_t const whole = count - count % lanes;
    for (std::size_t i = 0; i < whole; i += lanes)
        mapRegister(map, pairs + 2 * i);
    if (whole == count)
        return;
    double rest[2 * lanes] = {};
    std::memcpy(rest, points + whole, (count - whole) * sizeof(GEOREFPOINT));
    mapRegister(map, rest);
    std::memcpy(points + whole, rest, (count - whole) * sizeof(GEOREFPOINT));
}

} // namespace ZrProj::formulas::ZRPROJ_LEVEL
