// How a datum's geocentric coordinates become another one's: a place X, in metres, is moved by linear X + constant.
// What is kept is the move alone, some hundred metres of six million, which so has all of its digits.
#pragma once

#include <array>
#include <cstddef>

namespace ZrProj::datum {

using Vector = std::array<double, 3>;

struct Displacement {
    std::array<Vector, 3> linear{}; // rows
    Vector constant{};              // metres

    bool operator==(Displacement const&) const = default;

    Vector of(Vector const& place) const;

    /// The displacement that takes it back.
    Displacement inverse() const;

    /// This one, and then another one of what comes out.
    Displacement then(Displacement const& next) const;
};

/// Translations, rotations and a scale, as the register has them: about a pivot, or without one about the centre.
struct SevenParameters {
    Vector translation{}; // metres
    Vector rotation{};    // arcseconds, in the sense of position vectors
    double scale = 0;     // parts per million on top of 1
    Vector pivot{};       // metres
};

/// What the parameters say: X' = P + T + (1 + s) (I + R) (X - P).
Displacement displacementBy(SevenParameters const& parameters);

/// The other way, as the register means it, and others compute it: X = P + (I - R) (X' - P - T) / (1 + s). That is not
/// the inverse, but for the squares of the rotations: two millimetres for five seconds.
Displacement displacementBackBy(SevenParameters const& parameters);

} // namespace ZrProj::datum
