#include "systems/text/units.h"

#include "systems/names.h"
#include "systems/register.h"
#include "systems/register/units.h"

#include <cmath>

namespace ZrProj::systems {

namespace {

/// How far a text's size of a unit may be from the register's, of the size itself.
constexpr double sameSize = 5e-9;

/// Sizes closer than this are written with the same digits.
constexpr double sameDigits = 1e-13;

/// The unit that a code or else a name is of, where that one has another size.
std::optional<Unit> contradicted(double factor, std::string_view name, Code code) {
    auto const byCode = unitOf(code);
    auto const meant = byCode ? byCode : unitOf(codeNamed(Thing::unit, name));
    return meant && std::abs(meant->factor / factor - 1) > sameSize ? meant : std::nullopt;
}

} // namespace

Unit statedUnit(Kind kind, double factor, std::string_view name, Code code) {
    bool const angle = kind == Kind::angle;
    if (auto const other = contradicted(factor, name, code))
        return {other->name, factor, 0};
    if (angle && std::abs(factor - 1) <= sameSize)
        return Definition().angularUnit;
    Code found = 0;
    double least = sameSize;
    for (rows::UnitRow const& row : rows::units) {
        double const distance = std::abs(row.factor / factor - 1);
        if (row.ofAngle != angle || distance > least + sameDigits)
            continue;
        bool const meant = row.code == code || nameOf(Thing::unit, row.code) == name;
        if (found == 0 || distance < least - sameDigits || meant)
            found = row.code;
        least = distance;
    }
    return found != 0 ? *unitOf(found) : Unit{std::string(name), factor, 0};
}

std::optional<Unit> unitNamed(Kind kind, std::string_view name) {
    Code const code = codeNamed(Thing::unit, name);
    for (rows::UnitRow const& row : rows::units)
        if (row.code == code && row.ofAngle == (kind == Kind::angle))
            return statedUnit(kind, row.factor, name, code);
    return {};
}

} // namespace ZrProj::systems
