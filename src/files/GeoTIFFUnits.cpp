#include "files/GeoTIFFUnits.h"

#include "files/GeoTIFFUnitTable.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <ranges>

namespace ZrProj::GeoTIFF {
namespace {

Outcome<Unit> unitOfCode(std::span<UnitRow const> table, std::uint16_t code) {
    auto const row = std::ranges::find(table, code, &UnitRow::code);
    if (row == table.end())
        return Refusal{"unit " + std::to_string(code) + " is not one of those known by number"};
    return Unit{row->numerator, row->denominator};
}

/// `unitsOfSize` is what the size is counted in.
Outcome<Unit> unitOf(KeyDirectory const& keys, Key unitKey, Key sizeKey, std::uint16_t otherwise,
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

} // namespace

Outcome<Unit> lengthUnit(KeyDirectory const& keys, Key unitKey, Key sizeKey, std::uint16_t otherwise) {
    return unitOf(keys, unitKey, sizeKey, otherwise, lengthUnitTable, {});
}

Outcome<Unit> angleUnit(KeyDirectory const& keys, Key unitKey, Key sizeKey) {
    return unitOf(keys, unitKey, sizeKey, unitDegree, angleUnitTable, {180, std::numbers::pi});
}

std::uint16_t codeOfLengthUnit(double perMetre) {
    auto const row = std::ranges::find_if(lengthUnitTable, [perMetre](UnitRow const& unit) {
        return std::fabs(perMetre * unit.numerator / unit.denominator - 1) < 1e-13;
    });
    return row == lengthUnitTable.end() ? std::uint16_t{userDefined} : row->code;
}

} // namespace ZrProj::GeoTIFF
