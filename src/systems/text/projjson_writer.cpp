// PROJJSON, version 0.5.
#include "systems/text/bound.h"
#include "systems/text/json_tree.h"
#include "systems/text/number.h"
#include "systems/text/writers.h"
#include "systems/text/written.h"

namespace ZrProj::systems {

namespace {

constexpr std::string_view schema = R"("$schema":"https://proj.org/schemas/v0.5/projjson.schema.json",)";

constexpr std::string_view wgs84 =
    R"({"type":"GeographicCRS","name":"WGS 84","datum":{"type":"GeodeticReferenceFrame",)"
    R"("name":"World Geodetic System 1984","ellipsoid":{"name":"WGS 84","semi_major_axis":6378137,)"
    R"("inverse_flattening":298.257223563}},"coordinate_system":{"subtype":"ellipsoidal","axis":[)"
    R"({"name":"Latitude","abbreviation":"lat","direction":"north","unit":"degree"},)"
    R"({"name":"Longitude","abbreviation":"lon","direction":"east","unit":"degree"}]},)"
    R"("id":{"authority":"EPSG","code":4326}})";

std::string id(Code code) {
    return code <= 0 ? "" : R"(,"id":{"authority":"EPSG","code":)" + std::to_string(code) + "}";
}

std::string member(std::string_view name, std::string_view text) {
    return "\"" + std::string(name) + "\":" + jsonText(text);
}

std::string unit(std::string_view type, std::string_view name, std::string const& factor) {
    return "{" + member("type", type) + "," + member("name", name) + ",\"conversion_factor\":" + factor + "}";
}

std::string angleUnit(Unit const& stated) {
    return stated.factor == 1 ? "\"degree\"" : unit("AngularUnit", stated.name, radiansText(stated.factor));
}

std::string lengthUnit(Unit const& stated) {
    return stated.factor == 1 ? "\"metre\"" : unit("LinearUnit", stated.name, numberText(stated.factor));
}

std::string ellipsoidText(Ellipsoid const& ellipsoid) {
    std::string const a = numberText(ellipsoid.semiMajor);
    return "{" + member("name", ellipsoid.name) + "," +
           (ellipsoid.inverseFlattening == 0
                ? "\"radius\":" + a
                : "\"semi_major_axis\":" + a + ",\"inverse_flattening\":" + numberText(ellipsoid.inverseFlattening)) +
           id(ellipsoid.code) + "}";
}

std::string meridianText(PrimeMeridian const& meridian, Unit const& angle) {
    return R"(,"prime_meridian":{)" + member("name", meridian.name) + R"(,"longitude":{"value":)" +
           numberText(meridian.longitude / angle.factor) + ",\"unit\":" + angleUnit(angle) + "}" + id(meridian.code) +
           "}";
}

std::string datumText(Datum const& datum, Unit const& angle) {
    return R"("datum":{"type":"GeodeticReferenceFrame",)" + member("name", withoutEnsemble(datum.name)) +
           ",\"ellipsoid\":" + ellipsoidText(datum.ellipsoid) +
           (datum.meridian.longitude == 0 ? "" : meridianText(datum.meridian, angle)) + id(datum.code) + "}";
}

std::string axesText(std::array<WrittenAxis, 2> const& axes, std::string_view subtype, std::string const& unitText) {
    std::string text = R"("coordinate_system":{)" + member("subtype", subtype) + ",\"axis\":[";
    for (WrittenAxis const& axis : axes) {
        text += "{" + member("name", axis.name) + "," + member("abbreviation", axis.abbreviation) + "," +
                member("direction", axis.direction);
        if (axis.meridian)
            text += R"(,"meridian":{"longitude":)" + numberText(*axis.meridian) + "}";
        text += ",\"unit\":" + unitText + "},";
    }
    text.back() = ']';
    return text + "}";
}

std::string geographicAxesText(Definition const& definition, bool northingFirst) {
    Definition geographic;
    geographic.northingFirst = northingFirst;
    return axesText(axesOf(geographic), "ellipsoidal", angleUnit(definition.angularUnit));
}

std::string parameterText(WrittenParameter const& parameter, Definition const& definition) {
    double const value = inUnit(parameter, definition.angularUnit.factor, definition.unit.factor);
    std::string const unitText = parameter.kind == Kind::angle    ? angleUnit(definition.angularUnit)
                                 : parameter.kind == Kind::length ? lengthUnit(definition.unit)
                                                                  : "\"unity\"";
    return "{" + member("name", parameter.name) + ",\"value\":" + numberText(value) + ",\"unit\":" + unitText +
           id(parameter.code) + "}";
}

std::string conversionText(Definition const& definition) {
    WrittenMethod const method = registerMethod(definition);
    std::string text = R"("conversion":{)" + member("name", definition.conversionName) + ",\"method\":{" +
                       member("name", method.name) + id(rowOf(definition.method).code) + "},\"parameters\":[";
    for (WrittenParameter const& parameter : method.parameters)
        text += (text.back() == '[' ? "" : ",") + parameterText(parameter, definition);
    return text + "]" + id(definition.conversionCode) + "}";
}

std::string usageText(Definition const& definition) {
    if (!definition.area)
        return {};
    Area const& area = *definition.area;
    return "," + member("area", area.name) + R"(,"bbox":{"south_latitude":)" + numberText(area.south) +
           ",\"west_longitude\":" + numberText(area.west) + ",\"north_latitude\":" + numberText(area.north) +
           ",\"east_longitude\":" + numberText(area.east) + "}";
}

/// The members of a system, without the braces.
std::string systemText(Definition const& definition) {
    std::string const name = definition.name + (definition.deprecated ? " (deprecated)" : "");
    std::string const datum = datumText(definition.datum, definition.angularUnit);
    std::string const rest = usageText(definition) + id(definition.code);
    if (!definition.isProjected())
        return R"("type":"GeographicCRS",)" + member("name", name) + "," + datum + "," +
               geographicAxesText(definition, definition.northingFirst) + rest;
    return R"("type":"ProjectedCRS",)" + member("name", name) + R"(,"base_crs":{)" +
           member("name", definition.baseName) + "," + datum + "," + geographicAxesText(definition, true) +
           id(definition.baseCode) + "}," + conversionText(definition) + "," +
           axesText(axesOf(definition), "Cartesian", lengthUnit(definition.unit)) + rest;
}

std::string shiftText(ToWgs84 const& shift) {
    std::string text =
        R"x("method":{"name":"Position Vector transformation (geog2D domain)")x" + id(9606) + "},\"parameters\":[";
    for (std::size_t i = 0; i < shift.size(); ++i) {
        BindingRow const& row = bindingRows[i];
        text += (i == 0 ? "{" : ",{") + member("name", row.name) + ",\"value\":" + numberText(shift[i]) +
                ",\"unit\":" + std::string(row.jsonUnit) + id(row.code) + "}";
    }
    return text + "]";
}

std::string gridsText(std::string_view grids) {
    return R"("method":{"name":"NTv2")" + id(9615) +
           R"(},"parameters":[{"name":"Latitude and longitude difference file",)" + member("value", grids) + id(8656) +
           "}]";
}

} // namespace

OrProblem<std::string> writeProjJson(Definition const& definition) {
    Datum const& datum = definition.datum;
    if (!datum.toWgs84 && datum.grids.empty())
        return "{" + std::string(schema) + systemText(definition) + "}";
    if (datum.toWgs84 && !datum.grids.empty())
        return cannotSay("PROJJSON", "two ways to WGS 84");
    return "{" + std::string(schema) + R"("type":"BoundCRS","source_crs":{)" + systemText(definition) +
           "},\"target_crs\":" + std::string(wgs84) + R"(,"transformation":{"name":"unknown",)" +
           (datum.toWgs84 ? shiftText(*datum.toWgs84) : gridsText(datum.grids)) + "}}";
}

} // namespace ZrProj::systems
