// What the source of a step between datums is written with.
//
// Each way of a method is a struct that holds the method's Constants, with a template over the number type,
//
//     template <class R> Pair<R> moved(Pair<R> degrees) const;
#pragma once

#include "datum/kernels/method.h"
#include "datum/shift_code.h"

namespace ZrProj::datum::ZRPROJ_LEVEL {

/// Leaves a point on the axis its longitude, and none a trace in its coordinates.
inline constexpr double cosOnAxis = 1e-30;

template <class R> Pair<R> movedBy(Pair<R> degrees, Pair<R> change) {
    return {degrees.x + change.x, clamped(degrees.y + change.y, -90, 90)};
}

/// A direction of a method as a stage, between degrees.
template <class D> struct ShiftStage {
    D direction;

    explicit ShiftStage(void const* constants)
        : direction{*std::launder(static_cast<typename D::Constants const*>(constants))} {}

    template <class R> Pair<R> enter(Pair<R> degrees) const { return normalised(degrees); }
    template <class R> Pair<R> convert(Pair<R> degrees) const { return direction.moved(degrees); }
    template <class R> Pair<R> leave(Pair<R> degrees) const { return degrees; }
};

template <class Forward, class Inverse> ShiftCode shiftCodeOf() {
    return {codeOf<ShiftStage<Forward>>(), codeOf<ShiftStage<Inverse>>()};
}

/// The methods, each at the end of its source.
ShiftCode geocentricShift() noexcept;
ShiftCode molodenskyShift() noexcept;
ShiftCode abridgedMolodenskyShift() noexcept;
ShiftCode offsetShift() noexcept;

} // namespace ZrProj::datum::ZRPROJ_LEVEL
