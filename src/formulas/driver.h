// Runs a formula over an array of points: everything that lies between the caller's numbers and the formula's, for a
// register full of points at a time.
//
// A formula is a struct of constants, made from parameters, with two templates over the number type,
//
//     template <class R> Xy<R> forward(LonLat<R> p) const;      // radians to ellipsoid units
//     template <class R> LonLat<R> inverse(Xy<R> p) const;
//
// that return `unplottable` for a point that they cannot show. Points come in blocks that stay in the first-level
// cache. The last register of a block is filled up with zeros, so that a point is computed by the same instructions
// wherever in an array it stands.
#pragma once

#include "formulas/converter.h"
#include "formulas/degrees.h"
#include "host/fpenv.h"

#include <cstring>
#include <new>
#include <type_traits>

namespace ZrProj::formulas::ZRPROJ_LEVEL {

inline bool isMarked(PROJPOINT const& point) {
    return point.x == DBL_MAX || point.y == DBL_MAX;
}

/// Degrees to map coordinates: (formula + false origin) * scale.
template <class P> struct Forward {
    template <class R> static Pair<R> enter(Converter const&, Pair<R> p) {
        auto const degrees = normalised(p);
        return {degrees.x * degree, degrees.y * degree};
    }
    template <class R> static Pair<R> convert(P const& formula, Pair<R> p) {
        auto const map = formula.forward(LonLat<R>{p.x, p.y});
        return {map.x, map.y};
    }
    template <class R> static Pair<R> leave(Converter const& frame, Pair<R> p) {
        if (frame.xOrg != 0 || frame.yOrg != 0)
            p = {p.x + frame.xOrg, p.y + frame.yOrg};
        if (frame.scale != 1)
            p = {p.x * frame.scale, p.y * frame.scale};
        return p;
    }
};

/// Map coordinates to degrees.
template <class P> struct Inverse {
    template <class R> static Pair<R> enter(Converter const& frame, Pair<R> p) {
        if (frame.scale != 1)
            p = {p.x / frame.scale, p.y / frame.scale};
        if (frame.xOrg != 0 || frame.yOrg != 0)
            p = {p.x - frame.xOrg, p.y - frame.yOrg};
        return p;
    }
    template <class R> static Pair<R> convert(P const& formula, Pair<R> p) {
        auto const geographic = formula.inverse(Xy<R>{p.x, p.y});
        return {geographic.lon, geographic.lat};
    }
    template <class R> static Pair<R> leave(Converter const& frame, Pair<R> p) {
        R const lon = p.x * radian;
        auto const turned = (abs(lon) >= 360.0) & (abs(lon) < 360 + 1e-12);
        return normalised(Pair<R>{select(turned, copySign(R(frame.fullTurn), lon), lon), p.y * radian});
    }
};

template <class R> auto isFinite(Pair<R> p) {
    return (abs(p.x) <= DBL_MAX) & (abs(p.y) <= DBL_MAX);
}

/// Out of line, so that no arithmetic of it moves across the reading of the flags.
template <class P, class Direction>
[[gnu::noinline]] void evaluate(P const& formula, Pair<double> const& in, Pair<double>& out) {
    out = Direction::convert(formula, in);
}

/// A point that did not come out finite, once more and alone: with the arithmetic flags watched it is found to be
/// unplottable, or to fail the call, or to be good (a register may overflow where `double` does not).
template <class P, class Direction>
[[gnu::noinline]] PROJPOINT convertAlone(Converter const& frame, P const& formula, PROJPOINT point, Outcome& outcome) {
    if (isMarked(point) && isFinite(Pair<double>{point.x, point.y}))
        return point;
    auto const in = Direction::enter(frame, Pair<double>{point.x, point.y});
    Pair<double> out{unplottable, unplottable};
    if (isFinite(in)) {
        clearArithmeticFlags();
        evaluate<P, Direction>(formula, in, out);
        bool const raised = arithmeticFlagRaised();
        outcome.failed |= raised;
        out = raised ? Pair<double>{unplottable, unplottable} : Direction::leave(frame, out);
    }
    if (isFinite(out))
        return {out.x, out.y};
    outcome.unplottable = true;
    return {DBL_MAX, DBL_MAX};
}

inline constexpr int blockPoints = 256;

/// `points` in, x and y out: the map coordinates of up to blockPoints points. `good` tells which of them stand. That
/// the arrays are apart from the constants lets what is worked out of constants alone move out of the loop.
template <class P, class Direction>
[[gnu::noinline]] bool convertRegisters(Converter const& frame, P const& formula, int count, double* __restrict x,
                                        double* __restrict y, double* __restrict good) {
    bool allGood = true;
    for (int i = 0; i < count; i += lanes) {
        Pair<Register> const from{load(x + i), load(y + i)};
        auto const in = Direction::enter(frame, from);
        auto const out = Direction::leave(frame, Direction::convert(formula, in));
        auto const stands = (abs(from.x) < DBL_MAX) & (abs(from.y) < DBL_MAX) & isFinite(in) & isFinite(out);
        allGood &= all(stands);
        store(x + i, out.x);
        store(y + i, out.y);
        store(good + i, select(stands, Register(1.0), Register(0.0)));
    }
    return allGood;
}

template <class P, class Direction>
void convertBlock(Converter const& frame, P const& formula, PROJPOINT* points, int count, Outcome& outcome) {
    double x[blockPoints], y[blockPoints], good[blockPoints];
    if (count == 1) { // the common single point, without reading back what was stored piece by piece
        store(x, Register(points->x));
        store(y, Register(points->y));
    } else {
        for (int i = 0; i < count; ++i) {
            x[i] = points[i].x;
            y[i] = points[i].y;
        }
        for (int i = count; i % lanes != 0; ++i)
            x[i] = y[i] = 0;
    }
    bool const allGood = convertRegisters<P, Direction>(frame, formula, count, x, y, good);
    for (int i = 0; i < count; ++i) {
        if (allGood || good[i] != 0)
            points[i] = {x[i], y[i]};
        else
            points[i] = convertAlone<P, Direction>(frame, formula, points[i], outcome);
    }
}

template <class P, class Direction>
Outcome convertArray(Converter const& converter, PROJPOINT* points, int count) noexcept {
    P const& formula = *std::launder(reinterpret_cast<P const*>(converter.constants));
    Outcome outcome;
    for (; count > 0; points += blockPoints, count -= blockPoints)
        convertBlock<P, Direction>(converter, formula, points, count < blockPoints ? count : blockPoints, outcome);
    return outcome;
}

/// A formula's operations: specialised, for its own Method, at the end of each formula's source.
template <Method method> Formula formula() noexcept;

/// Makes `formula` what the converter runs.
template <class P> void hold(Converter& converter, P const& formula) {
    static_assert(std::is_trivially_copyable_v<P> && sizeof(P) <= sizeof converter.constants);
    std::memcpy(converter.constants, &formula, sizeof formula);
    converter.forward = convertArray<P, Forward<P>>;
    converter.inverse = convertArray<P, Inverse<P>>;
}

} // namespace ZrProj::formulas::ZRPROJ_LEVEL
