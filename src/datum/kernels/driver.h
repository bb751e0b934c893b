// Runs a method over a block, a register full of points at a time.
//
// A method is a struct of constants with a template over the number type,
//
//     template <class R> Pair<R> shifted(Pair<R> degrees) const;
#pragma once

#include "datum/kernels/method_set.h"
#include "formulas/converter.h"
#include "formulas/degrees.h"
#include "formulas/elementary.h"

#include <cmath>
#include <cstring>
#include <new>
#include <type_traits>

namespace ZrProj::datum::ZRPROJ_LEVEL {

using namespace formulas::ZRPROJ_LEVEL;
using formulas::degree, formulas::radian;

/// Sine and cosine of a latitude in degrees, from its distance to the pole, so that the cosine keeps all of its digits
/// where it is small. At the pole it is `atPole`: a point there still has a longitude, and nothing is divided by 0.
template <class R> [[gnu::always_inline]] inline SinCos<R> sinCosOfLatitude(R degrees, double atPole) {
    auto const fromPole = sinCos((90.0 - abs(degrees)) * degree);
    return {copySign(fromPole.cos, degrees), select(fromPole.sin == 0.0, R(atPole), fromPole.sin)};
}

/// Beyond this, in degrees, whole turns are taken off before sines and cosines lose their meaning.
inline constexpr double reach = 1e6;

inline double withoutTurns(double degrees) {
    return std::fabs(degrees) > reach ? std::fmod(degrees, 360.0) : degrees;
}

/// The same lane by lane. Out of line, since only poles, absurd parameters and regression equations far from their area
/// need it.
[[gnu::noinline]] inline Pair<Register> withoutTurns(Pair<Register> degrees) {
    double x[lanes], y[lanes];
    store(x, degrees.x);
    store(y, degrees.y);
    for (int i = 0; i < lanes; ++i) {
        x[i] = withoutTurns(x[i]);
        y[i] = withoutTurns(y[i]);
    }
    return {load(x), load(y)};
}

/// What the step before left, where sines and cosines of it have a meaning.
[[gnu::always_inline]] inline Pair<Register> withinReach(Pair<Register> degrees) {
    return any((abs(degrees.x) > reach) | (abs(degrees.y) > reach)) ? withoutTurns(degrees) : degrees;
}

template <class M> void runStep(Step const& step, Block& block) noexcept {
    M const method = *std::launder(reinterpret_cast<M const*>(step.constants));
    for (int i = 0; i < block.count; i += lanes) {
        auto const p = method.shifted(withinReach({load(block.x + i), load(block.y + i)}));
        store(block.x + i, p.x);
        store(block.y + i, p.y);
    }
}

/// Makes `method` what the step runs.
template <class M> void hold(Step& step, M const& method) {
    static_assert(std::is_trivially_copyable_v<M> && sizeof(M) <= sizeof step.constants);
    std::memcpy(step.constants, &method, sizeof method);
    step.run = runStep<M>;
}

} // namespace ZrProj::datum::ZRPROJ_LEVEL
