#include "systems/recognition.h"

#include "systems/conversion.h"
#include "systems/method_table.h"
#include "systems/names.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <initializer_list>
#include <optional>
#include <tuple>
#include <vector>

namespace ZrProj::systems {
namespace {

// How far numbers may be apart and mean the same: what rounding in texts does, below a millimetre on the ground.
constexpr double axisTolerance = 1e-3;      // metres
constexpr double meridianTolerance = 1e-8;  // degrees
constexpr double angleTolerance = 1e-9;     // degrees
constexpr double lengthTolerance = 1e-4;    // metres
constexpr double relativeTolerance = 1e-10; // scales, units

bool near(double a, double b, double tolerance) {
    return std::fabs(a - b) <= tolerance;
}

bool sameAngle(double a, double b, double tolerance = angleTolerance) {
    return near(std::remainder(a - b, 360), 0, tolerance);
}

std::string told(char const* what, double said, double registered, char const* unit) {
    char text[160];
    std::snprintf(text, sizeof text, "%s %.12g%s instead of %.12g%s", what, said, unit, registered, unit);
    return text;
}

double semiMinor(Ellipsoid const& ellipsoid) {
    return ellipsoid.inverseFlattening == 0 ? ellipsoid.semiMajor
                                            : ellipsoid.semiMajor * (1 - 1 / ellipsoid.inverseFlattening);
}

std::string ellipsoidDifference(Ellipsoid const& said, Ellipsoid const& registered) {
    if (!near(said.semiMajor, registered.semiMajor, axisTolerance))
        return told("the semi-major axis", said.semiMajor, registered.semiMajor, " m");
    if (!near(semiMinor(said), semiMinor(registered), axisTolerance))
        return told("the inverse flattening", said.inverseFlattening, registered.inverseFlattening, "");
    return {};
}

/// The codes of datums that a definition may mean: by code, by name, by its geographic system's.
std::vector<Code> datumsMeant(Definition const& definition) {
    std::vector<Code> codes;
    auto const add = [&codes](Code code) {
        if (code != 0)
            codes.push_back(code);
    };
    if (datumOf(definition.datum.code))
        add(definition.datum.code);
    else
        add(codeNamed(Thing::datum, definition.datum.name));
    auto const& name = definition.isProjected() ? definition.baseName : definition.name;
    if (auto const base = definitionOf(codeNamed(Thing::system, name)); base && !base->isProjected())
        add(base->datum.code);
    return codes;
}

/// A datum that the register does not know by any name is no contradiction; several of its datums may have one name.
bool mayBeOn(std::vector<Code> const& meant, Datum const& said, Datum const& registered) {
    return meant.empty() || said.name == registered.name || std::ranges::find(meant, registered.code) != meant.end();
}

std::string datumDifference(Definition const& said, std::vector<Code> const& meant, Definition const& registered) {
    auto const figure = ellipsoidDifference(said.datum.ellipsoid, registered.datum.ellipsoid);
    if (!figure.empty())
        return figure;
    double const meridian = said.datum.meridian.longitude, other = registered.datum.meridian.longitude;
    if (!sameAngle(meridian, other, meridianTolerance))
        return told("the prime meridian", meridian, other, " degrees");
    if (!mayBeOn(meant, said.datum, registered.datum))
        return "the datum " + said.datum.name + " instead of " + registered.datum.name;
    return {};
}

/// Methods that come to the same formula are one: a cone of one parallel and a scale, a polar map true at a parallel.
std::string mapDifference(Conversion const& said, Conversion const& registered) {
    auto const &a = said.parameters, &b = registered.parameters;
    struct {
        char const* what;
        double said, registered;
    } const angles[] = {
        {"the latitude of origin", a.lat0, b.lat0},
        {"the longitude of origin", a.lon0, b.lon0},
        {"the first standard parallel", a.lat1, b.lat1},
        {"the second standard parallel", a.lat2, b.lat2},
        {"the longitude of the first point", a.lon1, b.lon1},
        {"the longitude of the second point", a.lon2, b.lon2},
        {"the azimuth", a.azimuth, b.azimuth},
        {"the angle from the rectified to the skew grid", a.rectifiedAngle, b.rectifiedAngle},
        {"the co-latitude of the cone's axis", a.coLatitude, b.coLatitude},
        {"the width of a zone", a.zoneWidth, b.zoneWidth},
    };
    for (auto const& angle : angles)
        if (!sameAngle(angle.said, angle.registered))
            return told(angle.what, angle.said, angle.registered, " degrees");
    if (!near(a.k0, b.k0, relativeTolerance))
        return told("the scale", a.k0, b.k0, "");
    if (!near(a.height, b.height, axisTolerance))
        return told("the height", a.height, b.height, " m");
    if (!near(said.falseEasting, registered.falseEasting, lengthTolerance))
        return told("the false easting", said.falseEasting, registered.falseEasting, " m");
    if (!near(said.falseNorthing, registered.falseNorthing, lengthTolerance))
        return told("the false northing", said.falseNorthing, registered.falseNorthing, " m");
    return {};
}

std::string methodDifference(Definition const& said, Definition const& registered) {
    return "the method " + std::string(rowOf(said.method).name) + " instead of " +
           std::string(rowOf(registered.method).name);
}

/// Of two conversions that nothing computes: by method and numbers as they stand.
std::string numberDifference(Definition const& said, Definition const& registered) {
    if (said.method != registered.method)
        return methodDifference(said, registered);
    for (ParameterRow const& row : parameterRows) {
        double const a = said.parameters.valueOr(row.parameter, 0), b = registered.parameters.valueOr(row.parameter, 0);
        if (!near(a, b, relativeTolerance * std::fmax(1, std::fabs(b))))
            return told("the parameter", a, b, "");
    }
    return {};
}

bool sameFormula(Conversion const& a, Conversion const& b) {
    return a.method == b.method && (a.parameters.f == 0) == (b.parameters.f == 0) &&
           a.parameters.useAzimuth == b.parameters.useAzimuth && a.parameters.offsetByU == b.parameters.offsetByU;
}

std::string conversionDifference(Definition const& said, Definition const& registered) {
    auto const one = conversionOf(said), other = conversionOf(registered);
    auto const *a = std::get_if<Conversion>(&one), *b = std::get_if<Conversion>(&other);
    if (!a && !b)
        return numberDifference(said, registered);
    if (!a || !b || !sameFormula(*a, *b))
        return methodDifference(said, registered);
    double const scale = a->parameters.a / said.datum.ellipsoid.semiMajor;
    double const otherScale = b->parameters.a / registered.datum.ellipsoid.semiMajor;
    if (!near(scale, otherScale, relativeTolerance))
        return told("the scale", scale, otherScale, "");
    return mapDifference(*a, *b);
}

std::string axesDifference(Definition const& said, Definition const& registered) {
    if (!near(said.unit.factor / registered.unit.factor, 1, relativeTolerance))
        return told("the unit", said.unit.factor, registered.unit.factor, " m");
    if (said.x != registered.x || said.y != registered.y)
        return "axes that grow the other way";
    return {};
}

std::string differenceOn(std::vector<Code> const& meant, Definition const& said, Definition const& registered) {
    if (said.isProjected() != registered.isProjected())
        return said.isProjected() ? "a projection" : "no projection";
    auto text = datumDifference(said, meant, registered);
    if (text.empty() && said.isProjected())
        text = conversionDifference(said, registered);
    if (text.empty() && said.isProjected())
        text = axesDifference(said, registered);
    return text;
}

/// How good a match is: less is better.
auto rankOf(Definition const& said, Definition const& registered) {
    return std::tuple(registered.deprecated, said.northingFirst != registered.northingFirst, registered.code);
}

Code recognisedByContent(std::vector<Code> const& meant, Definition const& definition) {
    std::optional<Definition> best;
    for (Code const datum : meant) {
        for (Code const code : systemsOn(datum)) {
            auto registered = definitionOf(code);
            if ((!best || rankOf(definition, *registered) < rankOf(definition, *best)) &&
                differenceOn(meant, definition, *registered).empty())
                best = std::move(registered);
        }
    }
    return best ? best->code : 0;
}

std::string contradiction(Definition const& definition, Definition const& registered) {
    return registered.name + " (EPSG:" + std::to_string(registered.code) + ") is named, but the definition has " +
           difference(definition, registered) + "; its numbers are taken";
}

} // namespace

std::string difference(Definition const& said, Definition const& registered) {
    return differenceOn(datumsMeant(said), said, registered);
}

Code recognise(Definition const& definition) {
    auto const meant = datumsMeant(definition);
    for (Code const code : {definition.code, codeNamed(Thing::system, definition.name)})
        if (auto const registered = definitionOf(code);
            registered && differenceOn(meant, definition, *registered).empty())
            return registered->code;
    return recognisedByContent(meant, definition);
}

Reconciled reconcile(Definition definition) {
    Code const named = definition.code != 0 ? definition.code : codeNamed(Thing::system, definition.name);
    Code const found = recognise(definition);
    auto const meant = definitionOf(named);
    std::string noticed;
    if (meant && meant->code != found)
        noticed = contradiction(definition, *meant);
    if (auto registered = definitionOf(found)) {
        registered->datum.toWgs84 = definition.datum.toWgs84;
        registered->datum.grids = definition.datum.grids;
        return {std::move(*registered), noticed};
    }
    definition.code = 0;
    return {std::move(definition), noticed};
}

} // namespace ZrProj::systems
