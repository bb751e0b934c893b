// Runs a method over a block, a register full of points at a time.
//
// A method is a struct of constants with a template over the number type,
//
//     template <class R> Pair<R> shifted(Pair<R> degrees) const;
#pragma once

#include "datum/method_set.h"
#include "formulas/degrees.h"
#include "formulas/elementary.h"

#include <cstring>
#include <new>
#include <type_traits>

namespace ZrProj::datum::ZRPROJ_LEVEL {

using namespace formulas::ZRPROJ_LEVEL;

inline constexpr double radian = 3.141592653589793 / 180; // of a degree

/// Sine and cosine of a latitude in degrees, from its distance to the pole, so that the cosine keeps all of its digits
/// where it is small. At the pole it is all but 0: a point there still has a longitude, and nothing is divided by 0.
template <class R> [[gnu::always_inline]] inline SinCos<R> sinCosOfLatitude(R degrees) {
    auto const fromPole = sinCos((90.0 - abs(degrees)) * radian);
    return {copySign(fromPole.cos, degrees), select(fromPole.sin == 0.0, R(1e-30), fromPole.sin)};
}

template <class M> void runStep(Step const& step, Block& block) noexcept {
    M const method = *std::launder(reinterpret_cast<M const*>(step.constants));
    for (int i = 0; i < block.count; i += lanes) {
        auto const p = method.shifted(Pair<Register>{load(block.x + i), load(block.y + i)});
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
