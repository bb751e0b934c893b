// What the source of a datum method is written with.
//
// A method is a struct of constants with a template over the number type,
//
//     template <class R> Pair<R> shifted(Pair<R> degrees) const;
#pragma once

#include "datum/step.h"
#include "formulas/degrees.h"
#include "formulas/parameters.h"
#include "levels/stage_code.h"

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

/// What the step before left, where sines and cosines of it have a meaning.
inline Pair<double> withinReach(Pair<double> degrees) {
    return {withoutTurns(degrees.x), withoutTurns(degrees.y)};
}

#if !defined(ZRPROJ_LEVEL_scalar)
/// Only poles, absurd parameters and regression equations far from their area need it.
[[gnu::always_inline]] inline Pair<Register> withinReach(Pair<Register> degrees) {
    return eachLaneWhere<withinReach>((abs(degrees.x) > reach) | (abs(degrees.y) > reach), degrees);
}
#endif

/// A method as a stage.
template <class M> struct Shift {
    M const& method;

    explicit Shift(void const* constants) : method(*std::launder(static_cast<M const*>(constants))) {}

    template <class R> Pair<R> enter(Pair<R> degrees) const { return withinReach(degrees); }
    template <class R> Pair<R> convert(Pair<R> degrees) const { return method.shifted(degrees); }
    template <class R> Pair<R> leave(Pair<R> degrees) const { return degrees; }
};

/// A step that runs `method`.
template <class M> Step stepOf(M const& method) {
    Step step{codeOf<Shift<M>>(), {}};
    static_assert(std::is_trivially_copyable_v<M> && sizeof(M) <= sizeof step.constants);
    std::memcpy(step.constants, &method, sizeof method);
    return step;
}

/// The step of a method: specialised, for its own method, at the end of each method's source.
template <DatumMethod method> Step makeStep(DATUM2WGS84 const& record, DatumType type) noexcept;

} // namespace ZrProj::datum::ZRPROJ_LEVEL
