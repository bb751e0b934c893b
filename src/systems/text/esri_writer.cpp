// Well-known text of the first generation as ESRI writes it: names of its own, one line, no codes, and x, y always.
#include "systems/names.h"
#include "systems/text/number.h"
#include "systems/text/spellings.h"
#include "systems/text/wkt_parts.h"
#include "systems/text/writers.h"
#include "systems/text/written.h"

namespace ZrProj::systems {

namespace {

/// A number with a decimal mark.
std::string decimal(double value) {
    std::string const text = numberText(value);
    return text.find_first_of(".e") == std::string::npos ? text + ".0" : text;
}

/// ESRI's name of a thing, or the register's in ESRI's spelling.
std::string esriName(Thing thing, Code code, std::string_view prefix, std::string_view name) {
    std::string known = esriNameOf(thing, code);
    if (!known.empty())
        return wktQuoted(known);
    return wktQuoted(name.starts_with(prefix) ? underscored(name) : std::string(prefix) + underscored(name));
}

std::string unitText(Unit const& unit, std::string const& size) {
    return "UNIT[" + esriName(Thing::unit, unit.code, "", unit.name) + "," + size + "]";
}

std::string angularUnitText(Unit const& unit) {
    return unit.factor == 1 ? "UNIT[\"Degree\",0.0174532925199433]" : unitText(unit, radiansText(unit.factor));
}

std::string geographicText(Definition const& definition, std::string_view name, Code code) {
    Datum const& datum = definition.datum;
    Ellipsoid const& ellipsoid = datum.ellipsoid;
    PrimeMeridian const& meridian = datum.meridian;
    return "GEOGCS[" + esriName(Thing::system, code, "GCS_", name) + ",DATUM[" +
           esriName(Thing::datum, datum.code, "D_", withoutEnsemble(datum.name)) + ",SPHEROID[" +
           esriName(Thing::ellipsoid, ellipsoid.code, "", ellipsoid.name) + "," + decimal(ellipsoid.semiMajor) + "," +
           decimal(ellipsoid.inverseFlattening) + "]],PRIMEM[" +
           esriName(Thing::meridian, meridian.code, "", meridian.name) + "," + decimal(meridian.longitude) + "]," +
           angularUnitText(definition.angularUnit) + "]";
}

/// Whether the axes run as those who read no axes take them to run.
bool sensesAreTheMethods(Definition const& definition) {
    bool south = false;
    bool west = false;
    switch (definition.method) {
    case Method::transverseMercatorSouth:
    case Method::bonneSouth:
    case Method::krovak:
    case Method::krovakModified:
        south = west = true;
        break;
    case Method::lambertConicWest:
        west = true;
        break;
    default:
        break;
    }
    return (definition.x == Sense::negative) == west && (definition.y == Sense::negative) == south;
}

std::string projectionText(Definition const& definition, WrittenMethod const& method) {
    std::string const name =
        method.name.find(' ') == std::string_view::npos ? std::string(method.name) : underscored(method.name);
    std::string text = "PROJECTION[" + wktQuoted(name) + "]";
    for (WrittenParameter const& parameter : method.parameters)
        text += ",PARAMETER[" + wktQuoted(parameter.name) + "," +
                decimal(inUnit(parameter, definition.angularUnit.factor, definition.unit.factor)) + "]";
    return text;
}

} // namespace

OrProblem<std::string> writeEsriWkt(Definition const& definition) {
    if (definition.datum.toWgs84 || !definition.datum.grids.empty())
        return cannotSay("ESRI's WKT", "a way to WGS 84");
    if (!definition.isProjected())
        return geographicText(definition, definition.name, definition.code);
    if (!sensesAreTheMethods(definition))
        return cannotSay("ESRI's WKT", "that axes run south or west");
    auto const method = wkt1Method(definition, esriSpellings);
    if (!method)
        return cannotSay("ESRI's WKT",
                         "the method " + std::string(rowOf(definition.method).name) + " with these parameters");
    return "PROJCS[" + esriName(Thing::system, definition.code, "", definition.name) + "," +
           geographicText(definition, definition.baseName, definition.baseCode) + "," +
           projectionText(definition, *method) + "," + unitText(definition.unit, decimal(definition.unit.factor)) + "]";
}

} // namespace ZrProj::systems
