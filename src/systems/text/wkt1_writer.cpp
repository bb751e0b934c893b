// Well-known text of the first generation as GDAL writes it: angles of a projected system in its geographic system's
// unit, the prime meridian in degrees.
#include "systems/text/number.h"
#include "systems/text/spellings.h"
#include "systems/text/wkt_parts.h"
#include "systems/text/writers.h"
#include "systems/text/written.h"

namespace ZrProj::systems {

namespace {

constexpr Code wgs84 = 6326;

std::string authority(Code code) {
    return code == 0 ? "" : ",AUTHORITY[\"EPSG\",\"" + std::to_string(code) + "\"]";
}

std::string systemName(Definition const& definition) {
    return wktQuoted(definition.name + (definition.deprecated ? " (deprecated)" : ""));
}

std::string datumText(Datum const& datum) {
    Ellipsoid const& ellipsoid = datum.ellipsoid;
    std::string const name = datum.code == wgs84 ? "WGS_1984" : underscored(withoutEnsemble(datum.name));
    std::string text = "DATUM[" + wktQuoted(name) + ",SPHEROID[" + wktQuoted(ellipsoid.name) + "," +
                       numberText(ellipsoid.semiMajor) + "," + numberText(ellipsoid.inverseFlattening) +
                       authority(ellipsoid.code) + "]";
    if (datum.toWgs84) {
        for (std::size_t i = 0; i < datum.toWgs84->size(); ++i)
            text += (i == 0 ? ",TOWGS84[" : ",") + numberText((*datum.toWgs84)[i]);
        text += "]";
    }
    if (!datum.grids.empty())
        text += ",EXTENSION[\"PROJ4_GRIDS\"," + wktQuoted(datum.grids) + "]";
    return text + authority(datum.code) + "]";
}

/// What follows the name of a geographic system, but for its axes and code.
std::string geographicText(Definition const& definition) {
    PrimeMeridian const& meridian = definition.datum.meridian;
    Unit const& unit = definition.angularUnit;
    return "," + datumText(definition.datum) + ",PRIMEM[" + wktQuoted(meridian.name) + "," +
           numberText(meridian.longitude) + authority(meridian.code) + "],UNIT[" + wktQuoted(unit.name) + "," +
           radiansText(unit.factor) + authority(unit.code) + "]";
}

std::string capitals(std::string_view word) {
    std::string made;
    for (char const c : word)
        made += static_cast<char>(c - 'a' + 'A');
    return made;
}

std::string axesText(Definition const& definition) {
    std::string text;
    for (WrittenAxis const& axis : axesOf(definition)) {
        std::string_view const name = definition.isProjected() ? axis.name : axis.name.substr(axis.name.find(' ') + 1);
        text += ",AXIS[" + wktQuoted(name) + "," + capitals(axis.direction) + "]";
    }
    return text;
}

/// The definition by the method whose name stands for its own: the axes tell Krovak's two from each other, an extension
/// the web maps' from Mercator's.
Definition named(Definition definition) {
    if (definition.method == Method::krovakNorth)
        definition.method = Method::krovak;
    if (definition.method == Method::pseudoMercator) {
        definition.method = Method::mercatorA;
        definition.parameters[Parameter::scaleFactor] = 1;
    }
    return definition;
}

std::string projectionText(Definition const& definition, WrittenMethod const& method) {
    std::string const name =
        method.name.find(' ') == std::string_view::npos ? std::string(method.name) : underscored(method.name);
    std::string text = ",PROJECTION[" + wktQuoted(name) + "]";
    for (WrittenParameter const& parameter : method.parameters)
        text += ",PARAMETER[" + wktQuoted(parameter.name) + "," +
                numberText(inUnit(parameter, definition.angularUnit.factor, definition.unit.factor)) + "]";
    return text;
}

/// The PROJ string that tells a web map's projection from Mercator's; "" for all others.
OrProblem<std::string> extensionText(Definition const& definition) {
    if (definition.method != Method::pseudoMercator)
        return std::string();
    auto result = writeProjString(definition);
    if (auto const* text = std::get_if<std::string>(&result))
        return ",EXTENSION[\"PROJ4\"," + wktQuoted(text->substr(0, text->find(" +type"))) + "]";
    return result;
}

} // namespace

OrProblem<std::string> writeWkt1(Definition const& definition) {
    std::string const name = systemName(definition);
    if (!definition.isProjected())
        return "GEOGCS[" + name + geographicText(definition) + axesText(definition) + authority(definition.code) + "]";
    bool const axes = poleAtCentre(definition) == 0;
    if (!axes && (definition.x == Sense::negative || definition.y == Sense::negative))
        return cannotSay("WKT 1", "along which meridians axes run at a pole");
    auto const extension = extensionText(definition);
    if (std::holds_alternative<Problem>(extension))
        return extension;
    auto const method = wkt1Method(named(definition), gdalSpellings);
    if (!method)
        return cannotSay("WKT 1",
                         "the method " + std::string(rowOf(definition.method).name) + " with these parameters");
    return "PROJCS[" + name + ",GEOGCS[" + wktQuoted(definition.baseName) + geographicText(definition) +
           authority(definition.baseCode) + "]" + projectionText(definition, *method) + ",UNIT[" +
           wktQuoted(definition.unit.name) + "," + numberText(definition.unit.factor) +
           authority(definition.unit.code) + "]" + (axes ? axesText(definition) : "") +
           std::get<std::string>(extension) + authority(definition.code) + "]";
}

} // namespace ZrProj::systems
