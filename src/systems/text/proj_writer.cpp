// PROJ strings: angles in degrees, lengths in metres.
#include "systems/text/number.h"
#include "systems/text/proj_names.h"
#include "systems/text/writers.h"
#include "systems/text/written.h"

#include <algorithm>
#include <cmath>

namespace ZrProj::systems {

namespace {

std::string option(std::string_view key, double value) {
    return " +" + std::string(key) + "=" + numberText(value);
}

bool isEllipsoid(Ellipsoid const& ellipsoid, EllipsoidRow const& row) {
    auto const flattening = [](double inverse) { return inverse == 0 ? 0 : 1 / inverse; };
    return std::abs(ellipsoid.semiMajor - row.semiMajor) < 1e-6 &&
           std::abs(flattening(ellipsoid.inverseFlattening) - flattening(row.inverseFlattening)) < 1e-15;
}

std::string ellipsoidText(Ellipsoid const& ellipsoid) {
    for (EllipsoidRow const& row : ellipsoidRows)
        if (isEllipsoid(ellipsoid, row))
            return " +ellps=" + std::string(row.key);
    if (ellipsoid.inverseFlattening == 0)
        return option("R", ellipsoid.semiMajor);
    return option("a", ellipsoid.semiMajor) + option("rf", ellipsoid.inverseFlattening);
}

/// The datum where PROJ has a name for it, else the ellipsoid.
std::string figureText(Datum const& datum) {
    auto const row = std::ranges::find(datumRows, datum.code, &DatumRow::code);
    if (row == std::end(datumRows))
        return ellipsoidText(datum.ellipsoid);
    auto const its = std::ranges::find(ellipsoidRows, row->ellipsoid, &EllipsoidRow::key);
    return isEllipsoid(datum.ellipsoid, *its) ? " +datum=" + std::string(row->key) : ellipsoidText(datum.ellipsoid);
}

std::string meridianText(double longitude) {
    if (longitude == 0)
        return {};
    for (MeridianRow const& row : meridianRows)
        if (std::abs(row.longitude - longitude) < 1e-12)
            return " +pm=" + std::string(row.key);
    return option("pm", longitude);
}

std::string shiftText(ToWgs84 const& shift) {
    std::size_t const count =
        std::any_of(shift.begin() + 3, shift.end(), [](double each) { return each != 0; }) ? 7 : 3;
    std::string text = " +towgs84=";
    for (std::size_t i = 0; i < count; ++i)
        text += (i == 0 ? "" : ",") + numberText(shift[i]);
    return text;
}

std::string datumText(Datum const& datum) {
    return figureText(datum) + meridianText(datum.meridian.longitude) +
           (datum.toWgs84 ? shiftText(*datum.toWgs84) : "") + (datum.grids.empty() ? "" : " +nadgrids=" + datum.grids);
}

std::string unitText(Unit const& unit) {
    for (UnitKeyRow const& row : unitRows)
        if (std::abs(unit.factor / row.metres - 1) < 1e-14)
            return " +units=" + std::string(row.key);
    return option("to_meter", unit.factor);
}

std::string axisText(Definition const& definition) {
    if (definition.x == Sense::positive && definition.y == Sense::positive)
        return {};
    std::string const x = definition.x == Sense::positive ? "e" : "w";
    std::string const y = definition.y == Sense::positive ? "n" : "s";
    return " +axis=" + (definition.northingFirst ? y + x : x + y) + "u";
}

/// "" where the projection is not one of UTM's.
std::string utmText(Definition const& definition) {
    ParameterValues const& values = definition.parameters;
    if (definition.method != Method::transverseMercator || values[Parameter::scaleFactor] != 0.9996 ||
        values[Parameter::latitudeOfOrigin] != 0 || values[Parameter::falseEasting] != 500000)
        return {};
    double const zone = (values[Parameter::longitudeOfOrigin] + 183) / 6;
    double const northing = values[Parameter::falseNorthing];
    if (zone < 1 || zone > 60 || zone != std::floor(zone) || (northing != 0 && northing != 10000000))
        return {};
    return "+proj=utm" + option("zone", zone) + (northing == 0 ? "" : " +south");
}

/// The sphere without a shift by which Mercator's projection of WGS 84's latitudes is told.
OrProblem<std::string> webMercatorText(Definition const& definition) {
    ParameterValues const& values = definition.parameters;
    double const radius = definition.datum.ellipsoid.semiMajor;
    if (radius != 6378137 || values[Parameter::latitudeOfOrigin] != 0 || definition.datum.meridian.longitude != 0)
        return cannotSay("a PROJ string", "a pseudo-Mercator projection of another datum than WGS 84");
    return "+proj=merc" + option("a", radius) + option("b", radius) + option("lat_ts", 0) +
           option("lon_0", values[Parameter::longitudeOfOrigin]) + option("x_0", values[Parameter::falseEasting]) +
           option("y_0", values[Parameter::falseNorthing]) + option("k", 1) + unitText(definition.unit) +
           " +nadgrids=@null +wktext +no_defs +type=crs";
}

} // namespace

OrProblem<std::string> writeProjString(Definition const& definition) {
    if (definition.datum.grids.find_first_of(" \t\r\n") != std::string::npos)
        return cannotSay("a PROJ string", "the name of a grid that has a blank");
    if (!definition.isProjected())
        return "+proj=longlat" + datumText(definition.datum) + " +no_defs +type=crs";
    if (definition.method == Method::pseudoMercator)
        return webMercatorText(definition);
    std::string projection = utmText(definition);
    if (projection.empty()) {
        auto const method = projMethod(definition);
        if (!method)
            return cannotSay("a PROJ string", "the method " + std::string(rowOf(definition.method).name));
        projection = "+proj=" + std::string(method->name.substr(0, method->name.find(" +axis")));
        for (WrittenParameter const& parameter : method->parameters)
            projection += option(parameter.name, parameter.value);
    }
    return projection + datumText(definition.datum) + unitText(definition.unit) + axisText(definition) +
           " +no_defs +type=crs";
}

} // namespace ZrProj::systems
