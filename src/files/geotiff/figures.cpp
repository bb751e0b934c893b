#include "files/geotiff/figures.h"

#include "systems/register.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace ZrProj::GeoTIFF {
namespace {

/// The units of angle that are multiples of one another; the others are ways of writing degrees.
constexpr std::array<std::uint16_t, 7> angleUnits{9101, 9102, 9103, 9104, 9105, 9106, 9122};
constexpr std::uint16_t firstOfAngle = 9101, lastOfAngle = 9199;

bool isUnit(std::uint16_t code, bool ofAngle) {
    bool const isOfAngle = firstOfAngle <= code && code <= lastOfAngle;
    return ofAngle ? std::ranges::find(angleUnits, code) != angleUnits.end() : !isOfAngle;
}

/// `base` is what the size of a unit of the file's own is counted in, in metres or degrees.
Expected<std::optional<systems::Unit>> unitOf(KeyDirectory const& keys, Key unitKey, Key sizeKey, double base,
                                              bool ofAngle) {
    using Result = std::optional<systems::Unit>;
    if (!keys.has(unitKey))
        return Result();
    auto const code = keys.code(unitKey);
    if (!code)
        return Refusal{"a unit is undefined"};
    if (*code != userDefined) {
        auto unit = systems::unitOf(*code);
        if (!unit || !isUnit(*code, ofAngle))
            return Refusal{"unit " + std::to_string(*code) + " is not one of those known by number"};
        return Result(std::move(unit));
    }
    std::optional<double> const size = keys.number(sizeKey);
    if (!size || !(*size > 1e-12 && *size < 1e12))
        return Refusal{"a unit of the file's own has no usable size"};
    return Result(systems::Unit{"unknown", *size * base, 0});
}

double flatteningOf(systems::Ellipsoid const& ellipsoid) {
    return ellipsoid.inverseFlattening == 0 ? 0 : 1 / ellipsoid.inverseFlattening;
}

/// The axes as the keys have them; nothing where they do not.
Expected<std::optional<systems::Ellipsoid>> readAxes(KeyDirectory const& keys, systems::Ellipsoid const* numbered) {
    using Result = std::optional<systems::Ellipsoid>;
    if (!keys.has(keySemiMajorAxis))
        return Result();
    auto const unit = lengthUnit(keys, keyGeographicLengthUnit, keyGeographicLengthUnitSize);
    if (!unit)
        return unit.refusal();
    double const major = keys.number(keySemiMajorAxis).value_or(0), minor = keys.number(keySemiMinorAxis).value_or(0);
    bool const byInverse = keys.has(keyInverseFlattening), byMinor = keys.has(keySemiMinorAxis);
    double const ofAxes = minor == major ? 0 : major / (major - minor);
    double const inverse = byInverse  ? keys.number(keyInverseFlattening).value_or(-1)
                           : byMinor  ? ofAxes
                           : numbered ? numbered->inverseFlattening
                                      : -1;
    if (!(major > 0) || !(inverse == 0 || inverse > 1) || !std::isfinite(inverse))
        return Refusal{"the ellipsoid's axes make no ellipsoid"};
    return Result(systems::Ellipsoid{"unknown", *unit ? major * (*unit)->factor : major, inverse, 0});
}

} // namespace

Expected<std::optional<systems::Unit>> lengthUnit(KeyDirectory const& keys, Key unitKey, Key sizeKey) {
    return unitOf(keys, unitKey, sizeKey, 1, false);
}

Expected<std::optional<systems::Unit>> angleUnit(KeyDirectory const& keys) {
    return unitOf(keys, keyAngleUnit, keyAngleUnitSize, 180 / std::numbers::pi, true);
}

Expected<std::optional<systems::Ellipsoid>> readEllipsoid(KeyDirectory const& keys,
                                                          systems::Ellipsoid const* numbered) {
    std::uint16_t const code = keys.code(keyEllipsoid).value_or(userDefined);
    auto const known = systems::ellipsoidOf(code);
    auto axes = readAxes(keys, known ? &*known : numbered);
    if (!axes || code == userDefined)
        return axes;
    if (!known && !*axes)
        return Refusal{"ellipsoid " + std::to_string(code) + " is not one of those known by number"};
    return known && (!*axes || sameFigures(**axes, *known)) ? known : *axes;
}

bool sameFigures(systems::Ellipsoid const& a, systems::Ellipsoid const& b) {
    double const pole = a.semiMajor * (1 - flatteningOf(a)) - b.semiMajor * (1 - flatteningOf(b));
    return std::fabs(a.semiMajor - b.semiMajor) < 1e-3 && std::fabs(pole) < 1e-3;
}

std::uint16_t codeOfLengthUnit(double perMetre) {
    systems::Code const code = systems::lengthUnitOf(1 / perMetre);
    return code == 0 ? std::uint16_t{userDefined} : static_cast<std::uint16_t>(code);
}

systems::Ellipsoid definitionOf(Figure const& figure) {
    return {"unknown", figure.radius, figure.flattening == 0 ? 0 : 1 / figure.flattening, 0};
}

void writeEllipsoid(KeyDirectory& keys, Figure const& figure) {
    int posc = 0;
    auto const ellipsoid = definitionOf(figure);
    auto const own = EllipsoidToPOSCNumber(figure.type, &posc) ? systems::ellipsoidOf(posc) : std::nullopt;
    systems::Code const code = own && sameFigures(*own, ellipsoid) ? posc : systems::ellipsoidWith(ellipsoid);
    keys.setCode(keyEllipsoid, code == 0 ? std::uint16_t{userDefined} : static_cast<std::uint16_t>(code));
    keys.setNumber(keySemiMajorAxis, figure.radius);
    if (figure.flattening == 0)
        keys.setNumber(keySemiMinorAxis, figure.radius);
    else
        keys.setNumber(keyInverseFlattening, 1 / figure.flattening);
}

} // namespace ZrProj::GeoTIFF
