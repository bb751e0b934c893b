#include "datum/shift.h"

#include "levels/level.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <type_traits>

namespace ZrProj::datum {
namespace {

ShiftSet const& shifts() {
    return levels::operationsInUse<ShiftSet>();
}

/// No less than what a place on a figure is moved by, in metres.
double reachOf(Displacement const& displacement, double radius) {
    double sum = 0;
    for (std::size_t i = 0; i < 3; ++i) {
        auto const& row = displacement.linear[i];
        double const turned = (std::fabs(row[0]) + std::fabs(row[1]) + std::fabs(row[2])) * radius;
        sum += std::pow(turned + std::fabs(displacement.constant[i]), 2);
    }
    return std::sqrt(sum);
}

/// Whether the formulas hold, whose small angles end at three hundredths. NaN is none.
bool isStep(Figure const& from, Figure const& to, Displacement const& displacement) {
    double const a = std::min(from.semiMajor, to.semiMajor);
    double const figures =
        std::fabs(from.semiMajor - to.semiMajor) + std::fabs(from.squaredEccentricity() - to.squaredEccentricity()) * a;
    return reachOf(displacement, a) + figures <= 0.01 * a;
}

} // namespace

GeocentricShift::GeocentricShift(Figure const& from, Figure const& to, Displacement const& displacement)
    : there(displacement), back(displacement.inverse()), a(from.semiMajor), e2(from.squaredEccentricity()),
      toA(to.semiMajor), toE2(to.squaredEccentricity()), perAxis(1 / (1 - e2)) {
    radii[0] = (a - toA) * (a + toA);
    radii[1] = a * a * (e2 - toE2) - e2 * radii[0];
}

MolodenskyShift::MolodenskyShift(Figure const& from, Figure const& to, Vector const& translation)
    : dX(translation[0]), dY(translation[1]), dZ(translation[2]), a(from.semiMajor), e2(from.squaredEccentricity()),
      da(to.semiMajor - a) {
    double const f = from.flattening, df = to.flattening - f;
    perRadius[0] = df / (1 - f);
    perRadius[1] = df * (1 - f);
    abridged = a * df + f * da;
}

template <class Constants> Shift::Shift(ShiftCode const& code, Constants const& constants) : code_(code) {
    static_assert(std::is_trivially_copyable_v<Constants> && sizeof constants <= sizeof constants_);
    std::memcpy(constants_, &constants, sizeof constants);
}

std::optional<Shift> Shift::geocentric(Figure const& from, Figure const& to, Displacement const& displacement) {
    if (!isStep(from, to, displacement))
        return {};
    return Shift(shifts().geocentric, GeocentricShift(from, to, displacement));
}

Shift Shift::molodensky(Figure const& from, Figure const& to, Vector const& translation) {
    return {shifts().molodensky, MolodenskyShift(from, to, translation)};
}

Shift Shift::abridgedMolodensky(Figure const& from, Figure const& to, Vector const& translation) {
    return {shifts().abridgedMolodensky, MolodenskyShift(from, to, translation)};
}

Shift Shift::offset(double longitude, double latitude) {
    return {shifts().offset, OffsetShift{longitude, latitude}};
}

} // namespace ZrProj::datum
