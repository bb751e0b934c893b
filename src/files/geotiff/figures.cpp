#include "files/geotiff/figures.h"

#include "files/geotiff/ellipsoid_table.h"
#include "files/geotiff/unit_table.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <span>

namespace ZrProj::GeoTIFF {
namespace {

Expected<Unit> unitOfCode(std::span<UnitRow const> table, std::uint16_t code) {
    auto const row = std::ranges::find(table, code, &UnitRow::code);
    if (row == table.end())
        return Refusal{"unit " + std::to_string(code) + " is not one of those known by number"};
    return Unit{row->numerator, row->denominator};
}

/// `unitsOfSize` is what the size is counted in.
Expected<Unit> unitOf(KeyDirectory const& keys, Key unitKey, Key sizeKey, std::uint16_t otherwise,
                      std::span<UnitRow const> table, Unit unitsOfSize) {
    if (keys.has(unitKey) && !keys.code(unitKey))
        return Refusal{"a unit is undefined"};
    std::uint16_t const code = keys.code(unitKey).value_or(otherwise);
    if (code != userDefined)
        return unitOfCode(table, code);
    std::optional<double> const size = keys.number(sizeKey);
    if (!size || !(*size > 1e-12 && *size < 1e12))
        return Refusal{"a unit of the file's own has no usable size"};
    return Unit{*size * unitsOfSize.numerator, unitsOfSize.denominator};
}

constexpr double figureOf(double inverse) {
    return inverse == 0 ? 0 : 1 / inverse;
}

/// The catalogue's ellipsoid of these figures, the one with that code rather than another; otherwise a user's own.
Ellipsoid named(double radius, double flattening, int code) {
    Ellipsoid const own{EllipsoidTypeUserDefined, radius, flattening};
    EllipsoidType best = EllipsoidTypeUserDefined;
    for (std::int32_t i = EllipsoidTypeNone - 1; i > EllipsoidTypeUserDefined; --i) {
        auto const type = static_cast<EllipsoidType>(i);
        int posc = 0;
        bool const hasCode = code != 0 && EllipsoidToPOSCNumber(best, &posc) && posc == code;
        if (!hasCode && sameFigures(own, ellipsoidOf(type, 0, 0)))
            best = type;
    }
    return best == EllipsoidTypeUserDefined ? own : ellipsoidOf(best, 0, 0);
}

/// The axes as the keys have them; type 50 where they do not.
Expected<Ellipsoid> readAxes(KeyDirectory const& keys) {
    if (!keys.has(keySemiMajorAxis))
        return Ellipsoid{};
    auto const unit = lengthUnit(keys, keyGeographicLengthUnit, keyGeographicLengthUnitSize, unitMetre);
    if (!unit)
        return unit.refusal();
    double const major = keys.number(keySemiMajorAxis).value_or(0);
    double const minor = keys.number(keySemiMinorAxis).value_or(0),
                 inverse = keys.number(keyInverseFlattening).value_or(0);
    bool const known = keys.has(keyInverseFlattening) || keys.has(keySemiMinorAxis);
    double const flattening = keys.has(keyInverseFlattening) ? figureOf(inverse) : 1 - minor / major;
    if (!known || !(major > 0) || !(flattening >= 0 && flattening < 1))
        return Refusal{"the ellipsoid's axes make no ellipsoid"};
    return named(unit->toBase(major), flattening, 0);
}

} // namespace

Expected<Unit> lengthUnit(KeyDirectory const& keys, Key unitKey, Key sizeKey, std::uint16_t otherwise) {
    return unitOf(keys, unitKey, sizeKey, otherwise, lengthUnitTable, {});
}

Expected<Unit> angleUnit(KeyDirectory const& keys, Key unitKey, Key sizeKey) {
    return unitOf(keys, unitKey, sizeKey, unitDegree, angleUnitTable, {180, std::numbers::pi});
}

std::uint16_t codeOfLengthUnit(double perMetre) {
    auto const row = std::ranges::find_if(lengthUnitTable, [perMetre](UnitRow const& unit) {
        return std::fabs(perMetre * unit.numerator / unit.denominator - 1) < 1e-13;
    });
    return row == lengthUnitTable.end() ? std::uint16_t{userDefined} : row->code;
}

Ellipsoid ellipsoidOf(EllipsoidType type, double radius, double flattening) {
    if (type == EllipsoidTypeUserDefined)
        return radius > 0 ? Ellipsoid{type, radius, flattening} : Ellipsoid{};
    if (type < 0 || type >= EllipsoidTypeNone)
        return {};
    return {type, EllipsoidRadius(type), EllipsoidFlattening(type)};
}

bool sameFigures(Ellipsoid const& a, Ellipsoid const& b) {
    return a.type != EllipsoidTypeNone && b.type != EllipsoidTypeNone && std::fabs(a.radius - b.radius) < 1e-3 &&
           std::fabs(a.flattening - b.flattening) * a.radius < 1e-5;
}

Ellipsoid ellipsoidOfCode(std::uint16_t code) {
    auto const row = std::ranges::find(ellipsoidCodeTable, code, &EllipsoidCodeRow::code);
    return row == ellipsoidCodeTable.end() ? Ellipsoid{} : named(row->radius, figureOf(row->inverse), code);
}

std::uint16_t codeOfEllipsoid(Ellipsoid const& ellipsoid) {
    int posc = 0;
    bool const hasCode = EllipsoidToPOSCNumber(ellipsoid.type, &posc);
    if (hasCode && sameFigures(ellipsoid, ellipsoidOfCode(static_cast<std::uint16_t>(posc))))
        return static_cast<std::uint16_t>(posc);
    auto const row = std::ranges::find_if(ellipsoidCodeTable, [&](EllipsoidCodeRow const& candidate) {
        return sameFigures(ellipsoid, {EllipsoidTypeUserDefined, candidate.radius, figureOf(candidate.inverse)});
    });
    return row == ellipsoidCodeTable.end() ? std::uint16_t{userDefined} : row->code;
}

Expected<Ellipsoid> readEllipsoid(KeyDirectory const& keys) {
    std::uint16_t const code = keys.code(keyEllipsoid).value_or(userDefined);
    if (code == userDefined)
        return readAxes(keys);
    Ellipsoid const known = ellipsoidOfCode(code);
    if (known.type == EllipsoidTypeNone)
        return Refusal{"ellipsoid " + std::to_string(code) + " is not one of those known by number"};
    return agreedEllipsoid(keys, known);
}

Expected<Ellipsoid> agreedEllipsoid(KeyDirectory const& keys, Ellipsoid const& known) {
    auto const axes = readAxes(keys);
    if (!axes)
        return axes.refusal();
    if (axes->type != EllipsoidTypeNone && !sameFigures(*axes, known))
        return Refusal{"the ellipsoid's axes contradict its number"};
    return known;
}

void writeEllipsoid(KeyDirectory& keys, Ellipsoid const& ellipsoid) {
    keys.setCode(keyEllipsoid, codeOfEllipsoid(ellipsoid));
    keys.setNumber(keySemiMajorAxis, ellipsoid.radius);
    if (ellipsoid.flattening == 0)
        keys.setNumber(keySemiMinorAxis, ellipsoid.radius);
    else
        keys.setNumber(keyInverseFlattening, 1 / ellipsoid.flattening);
}

} // namespace ZrProj::GeoTIFF
