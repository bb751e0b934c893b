#include "systems/recognition.h"

#include "systems/conversion.h"
#include "systems/datum_link.h"
#include "systems/method_table.h"
#include "systems/names.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <initializer_list>
#include <optional>
#include <tuple>
#include <utility>
#include <vector>

namespace ZrProj::systems {
namespace {

// How far numbers may be apart and mean the same: what rounding in texts does, below a millimetre on the ground.
constexpr double axisTolerance = 1e-3;      // metres
constexpr double meridianTolerance = 1e-8;  // degrees
constexpr double angleTolerance = 1e-9;     // degrees
constexpr double lengthTolerance = 1e-3;    // metres: feet to three decimals, made metres and rounded again
constexpr double scaleTolerance = 1e-9;     // a millimetre in a thousand kilometres
constexpr double relativeTolerance = 1e-10; // units

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

/// The datums of the register that a datum is by its code and by its name.
std::vector<Datum> datumsNamed(Datum const& said) {
    std::vector<Datum> named;
    for (Code const code : {said.code, codeNamed(Thing::datum, said.name)})
        if (auto datum = datumOf(code))
            named.push_back(std::move(*datum));
    return named;
}

/// The codes of datums that a definition may mean: by code, by name, by its geographic system's.
std::vector<Code> datumsMeant(Definition const& definition) {
    std::vector<Code> codes;
    for (Datum const& datum : datumsNamed(definition.datum))
        codes.push_back(datum.code);
    auto const& name = definition.isProjected() ? definition.baseName : definition.name;
    for (Code const code : {definition.baseCode, codeNamed(Thing::system, name)})
        if (auto const base = definitionOf(code); base && !base->isProjected())
            codes.push_back(base->datum.code);
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

/// Between two standard parallels there is no order.
void orderParallels(Conversion& conversion) {
    switch (conversion.method) {
    case formulas::Method::albers:
    case formulas::Method::equidistantConic:
    case formulas::Method::lambertConformalConic:
        if (conversion.parameters.lat1 < conversion.parameters.lat2)
            std::swap(conversion.parameters.lat1, conversion.parameters.lat2);
        break;
    default:
        break;
    }
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
    if (!near(a.k0, b.k0, scaleTolerance))
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
    auto one = conversionOf(said), other = conversionOf(registered);
    auto *const a = std::get_if<Conversion>(&one), *const b = std::get_if<Conversion>(&other);
    if (!a && !b)
        return numberDifference(said, registered);
    if (!a || !b || !sameFormula(*a, *b))
        return methodDifference(said, registered);
    double const scale = a->parameters.a / said.datum.ellipsoid.semiMajor;
    double const otherScale = b->parameters.a / registered.datum.ellipsoid.semiMajor;
    if (!near(scale, otherScale, scaleTolerance))
        return told("the scale", scale, otherScale, "");
    orderParallels(*a);
    orderParallels(*b);
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

// What is of the register in a definition that is not.

/// The first of the datums meant that has the definition's figure: with its meridian, else the one that counts from
/// Greenwich, as it is counted in the definition.
std::optional<Datum> registeredDatum(std::vector<Code> const& meant, Datum const& said) {
    std::optional<Datum> recounted;
    for (Code const code : meant) {
        Datum registered = *datumOf(code);
        if (!ellipsoidDifference(said.ellipsoid, registered.ellipsoid).empty())
            continue;
        if (sameAngle(said.meridian.longitude, registered.meridian.longitude, meridianTolerance))
            return registered;
        if (registered.meridian.longitude == 0 && !recounted) {
            recounted = std::move(registered);
            recounted->meridian = said.meridian;
        }
    }
    return recounted;
}

/// Of the geographic systems of a datum the one that a definition names, else the first in force with its unit.
std::optional<Definition> baseOn(Code datum, Definition const& definition) {
    auto const rank = [&](Definition const& base) {
        bool const sameUnit = near(base.angularUnit.factor, definition.angularUnit.factor, relativeTolerance);
        return std::tuple(base.code != definition.baseCode, base.name != definition.baseName, base.deprecated,
                          !sameUnit, base.code);
    };
    std::optional<Definition> best;
    for (Code const code : systemsOn(datum))
        if (auto base = definitionOf(code); !base->isProjected() && (!best || rank(*base) < rank(*best)))
            best = std::move(base);
    return best;
}

/// Gives the definition the register's datum and geographic system where it means them and its numbers agree.
void takeDatum(Definition& definition, std::vector<Code> const& meant) {
    Datum& datum = definition.datum;
    auto registered = registeredDatum(meant, datum);
    datum.code = 0;
    if (registered) {
        registered->toWgs84 = datum.toWgs84;
        registered->grids = std::move(datum.grids);
        datum = std::move(*registered);
    }
    auto const own = datumOf(datum.code);
    bool const ownMeridian = own && sameAngle(own->meridian.longitude, datum.meridian.longitude, meridianTolerance);
    auto base = ownMeridian && definition.isProjected() ? baseOn(datum.code, definition) : std::nullopt;
    definition.baseCode = base ? base->code : 0;
    if (base)
        definition.baseName = std::move(base->name);
}

/// The register's unit that a unit is called after, where that one has another size.
std::optional<Unit> anotherOfItsName(Unit const& said) {
    auto named = said.code == 0 ? unitOf(codeNamed(Thing::unit, said.name)) : std::nullopt;
    return named && !near(named->factor / said.factor, 1, relativeTolerance) ? named : std::nullopt;
}

/// A unit whose name is another one's is what its size says.
void settleUnit(Unit& unit, bool ofLength) {
    if (anotherOfItsName(unit))
        unit = (ofLength ? unitOf(lengthUnitOf(unit.factor)) : std::nullopt).value_or(Unit{"unknown", unit.factor});
}

// What is told.

std::string contradiction(std::string const& named, std::string const& has) {
    return named + " is named, but the definition has " + has + "; its numbers are taken";
}

std::string systemContradiction(Definition const& definition, Definition const& registered) {
    return contradiction(registered.name + " (EPSG:" + std::to_string(registered.code) + ")",
                         difference(definition, registered));
}

/// Several datums may have one name.
bool isCalled(Datum const& datum, std::string const& name) {
    return name == datum.name || name == esriNameOf(Thing::datum, datum.code);
}

/// Of a definition whose datum was taken for what it is in another one.
std::string datumContradiction(Datum const& said, Datum const& taken) {
    for (Datum const& named : datumsNamed(said)) {
        if (taken.code != 0 && (named.code == taken.code || named.name == taken.name || isCalled(taken, said.name)))
            continue;
        if (auto const figure = ellipsoidDifference(said.ellipsoid, named.ellipsoid); !figure.empty())
            return contradiction("the datum " + named.name, figure);
        if (taken.code != 0 && !linkBetween(named, taken))
            return "the datum " + named.name + " is named beside " + taken.name + ", which is taken";
    }
    return {};
}

std::string unitContradiction(Unit const& said) {
    auto const named = anotherOfItsName(said);
    return named ? contradiction("the unit " + named->name, told("one of", said.factor, named->factor, "")) : "";
}

/// What a definition calls by names or codes that are of something else than what was made of it.
std::string contradictionIn(Definition const& said, Definition const& taken) {
    auto const named = definitionOf(said.code != 0 ? said.code : codeNamed(Thing::system, said.name));
    if (named && named->code != taken.code)
        return systemContradiction(said, *named);
    auto text = datumContradiction(said.datum, taken.datum);
    if (text.empty() && said.isProjected())
        text = unitContradiction(said.unit);
    return text.empty() ? unitContradiction(said.angularUnit) : text;
}

/// The register's system of a code as a definition says it.
Definition registeredAs(Code code, Definition const& definition) {
    Definition registered = *definitionOf(code);
    registered.datum.toWgs84 = definition.datum.toWgs84;
    registered.datum.grids = definition.datum.grids;
    return registered;
}

Definition unregistered(Definition definition) {
    takeDatum(definition, datumsMeant(definition));
    settleUnit(definition.unit, true);
    settleUnit(definition.angularUnit, false);
    definition.code = 0;
    return definition;
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

Reconciled reconcile(Definition const& definition) {
    Code const found = recognise(definition);
    Definition taken = found != 0 ? registeredAs(found, definition) : unregistered(definition);
    auto noticed = contradictionIn(definition, taken);
    return {std::move(taken), std::move(noticed)};
}

} // namespace ZrProj::systems
