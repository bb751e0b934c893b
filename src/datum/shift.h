// A step from one datum to another, made ready for arrays of points: longitudes and latitudes in degrees from Greenwich
// on the one, to those on the other. Heights are 0 at the start of each step, and what comes out is dropped.
//
// The way back is the inverse of that in two dimensions, to rounding: it finds the place that leads here.
#pragma once

#include "datum/shift_code.h"

#include <cstddef>
#include <optional>

namespace ZrProj::datum {

/// Made at the processor level in use.
class Shift {
public:
    /// Nothing where the displacement and the difference of the figures are no step from one datum of a body to another
    /// one: more than a hundredth of the radius.
    static std::optional<Shift> geocentric(Figure const& from, Figure const& to, Displacement const& displacement);
    /// Three translations by formulas of longitude and latitude, in full or abridged. What is translated lies on
    /// `from`.
    static Shift molodensky(Figure const& from, Figure const& to, Vector const& translation);
    static Shift abridgedMolodensky(Figure const& from, Figure const& to, Vector const& translation);
    /// Degrees that are added.
    static Shift offset(double longitude, double latitude);

    /// They live no longer than the shift, and only while that stays where it is.
    levels::Stage forward() const { return {code_.forward, constants_}; }
    levels::Stage inverse() const { return {code_.inverse, constants_}; }

private:
    template <class Constants> Shift(ShiftCode const& code, Constants const& constants);

    ShiftCode code_;
    alignas(double) std::byte constants_[272];
};

} // namespace ZrProj::datum
