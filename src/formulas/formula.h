// What the source of a formula is written with: its two directions made stages of a conversion, and the operations that
// it registers.
//
// A formula is a struct of constants, made from parameters, with two templates over the number type,
//
//     template <class R> Xy<R> forward(LonLat<R> p) const;      // radians to ellipsoid units
//     template <class R> LonLat<R> inverse(Xy<R> p) const;
//
// that return `unplottable` for a point that they cannot show.
#pragma once

#include "formulas/converter.h"
#include "formulas/degrees.h"
#include "formulas/points.h"
#include "levels/stage_code.h"

#include <cstring>
#include <new>
#include <type_traits>

namespace ZrProj::formulas::ZRPROJ_LEVEL {

template <class P> struct Direction {
    Converter const& converter;
    P const& formula;

    explicit Direction(void const* constants)
        : converter(*static_cast<Converter const*>(constants)),
          formula(*std::launder(reinterpret_cast<P const*>(converter.constants))) {}
};

/// Degrees to map coordinates: (formula + false origin) * scale.
template <class P> struct Forward : Direction<P> {
    using Direction<P>::Direction, Direction<P>::converter, Direction<P>::formula;

    template <class R> Pair<R> enter(Pair<R> p) const {
        auto const degrees = normalised(p);
        return {degrees.x * degree, degrees.y * degree};
    }
    template <class R> Pair<R> convert(Pair<R> p) const {
        auto const map = formula.forward(LonLat<R>{p.x, p.y});
        return {map.x, map.y};
    }
    template <class R> Pair<R> leave(Pair<R> p) const {
        if (converter.xOrg != 0 || converter.yOrg != 0)
            p = {p.x + converter.xOrg, p.y + converter.yOrg};
        if (converter.scale != 1)
            p = {p.x * converter.scale, p.y * converter.scale};
        return p;
    }
};

/// Map coordinates to degrees.
template <class P> struct Inverse : Direction<P> {
    using Direction<P>::Direction, Direction<P>::converter, Direction<P>::formula;

    template <class R> Pair<R> enter(Pair<R> p) const {
        if (converter.scale != 1)
            p = {p.x / converter.scale, p.y / converter.scale};
        if (converter.xOrg != 0 || converter.yOrg != 0)
            p = {p.x - converter.xOrg, p.y - converter.yOrg};
        return p;
    }
    template <class R> Pair<R> convert(Pair<R> p) const {
        auto const geographic = formula.inverse(Xy<R>{p.x, p.y});
        return {geographic.lon, geographic.lat};
    }
    template <class R> Pair<R> leave(Pair<R> p) const {
        R const lon = p.x * radian;
        auto const turned = (abs(lon) >= 360.0) & (abs(lon) < 360 + 1e-12);
        return normalised(Pair<R>{select(turned, copySign(R(converter.fullTurn), lon), lon), p.y * radian});
    }
};

/// Makes `formula` what the converter runs.
template <class P> void hold(Converter& converter, P const& formula) {
    static_assert(std::is_trivially_copyable_v<P> && sizeof(P) <= sizeof converter.constants);
    std::memcpy(converter.constants, &formula, sizeof formula);
    converter.driver = levels::ZRPROJ_LEVEL::convert;
    converter.forward = codeOf<Forward<P>>();
    converter.inverse = codeOf<Inverse<P>>();
}

/// A formula's operations: specialised, for its own Method, at the end of each formula's source.
template <Method method> Formula formula() noexcept;

} // namespace ZrProj::formulas::ZRPROJ_LEVEL
