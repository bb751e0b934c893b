#include "systems/text/written.h"

#include "host/text.h"
#include "systems/text/number.h"

#include <cmath>
#include <numbers>
#include <utility>

namespace ZrProj::systems {

namespace {

std::array<WrittenAxis, 2> geographicAxes() {
    return {{{"Geodetic longitude", "Lon", "east", {}}, {"Geodetic latitude", "Lat", "north", {}}}};
}

std::array<WrittenAxis, 2> mapAxes(Definition const& definition) {
    WrittenAxis const x = definition.x == Sense::positive ? WrittenAxis{"Easting", "E", "east", {}}
                                                          : WrittenAxis{"Westing", "W", "west", {}};
    WrittenAxis const y = definition.y == Sense::positive ? WrittenAxis{"Northing", "N", "north", {}}
                                                          : WrittenAxis{"Southing", "S", "south", {}};
    return {x, y};
}

/// In (-180, 180].
double wrapped(double longitude) {
    double const turned = std::remainder(longitude, 360);
    return turned == -180 ? 180 : turned;
}

std::array<WrittenAxis, 2> polarAxes(Definition const& definition, int pole) {
    double const lon0 = definition.parameters.valueOr(Parameter::longitudeOfOrigin, 0);
    std::string_view const direction = pole > 0 ? "south" : "north";
    double const x = definition.x == Sense::positive ? lon0 + 90 : lon0 - 90;
    double const y = (definition.y == Sense::positive) == (pole > 0) ? lon0 + 180 : lon0;
    return {{{"Easting", "E", direction, wrapped(x)}, {"Northing", "N", direction, wrapped(y)}}};
}

} // namespace

Problem cannotSay(std::string_view form, std::string_view what) {
    return {Fault::unsupported, std::string(form) + " cannot say " + std::string(what)};
}

std::string_view withoutEnsemble(std::string_view datum) {
    constexpr std::string_view mark = " ensemble";
    return datum.ends_with(mark) ? datum.substr(0, datum.size() - mark.size()) : datum;
}

std::string underscored(std::string_view name) {
    std::string made;
    for (char const c : name) {
        bool const kept = isAsciiDigit(c) || (asciiLower(c) >= 'a' && asciiLower(c) <= 'z') || c == '+' ||
                          static_cast<unsigned char>(c) >= 0x80;
        if (kept)
            made += c;
        else if (!made.empty() && made.back() != '_')
            made += '_';
    }
    if (made.ends_with('_'))
        made.pop_back();
    return made;
}

std::string radiansText(double degrees) {
    return numberText(degrees * (std::numbers::pi / 180));
}

double inUnit(WrittenParameter const& parameter, double degreesAUnit, double metresAUnit) {
    if (parameter.kind == Kind::angle)
        return parameter.value / degreesAUnit;
    return parameter.kind == Kind::length ? parameter.value / metresAUnit : parameter.value;
}

std::array<WrittenAxis, 2> axesOf(Definition const& definition) {
    int const pole = poleAtCentre(definition);
    auto axes = !definition.isProjected() ? geographicAxes()
                : pole != 0               ? polarAxes(definition, pole)
                                          : mapAxes(definition);
    if (definition.northingFirst)
        std::swap(axes[0], axes[1]);
    return axes;
}

} // namespace ZrProj::systems
