// Well-known text of the second generation, ISO 19162:2019.
#include "systems/text/bound.h"
#include "systems/text/number.h"
#include "systems/text/wkt_parts.h"
#include "systems/text/writers.h"
#include "systems/text/written.h"

namespace ZrProj::systems {

namespace {

constexpr std::string_view degree = R"(ANGLEUNIT["degree",0.0174532925199433])";

constexpr std::string_view wgs84 =
    R"(GEOGCRS["WGS 84",DATUM["World Geodetic System 1984",ELLIPSOID["WGS 84",6378137,298.257223563,)"
    R"(LENGTHUNIT["metre",1]]],PRIMEM["Greenwich",0,ANGLEUNIT["degree",0.0174532925199433]],CS[ellipsoidal,2],)"
    R"(AXIS["latitude",north,ORDER[1]],AXIS["longitude",east,ORDER[2]],ANGLEUNIT["degree",0.0174532925199433],)"
    R"(ID["EPSG",4326]])";

std::string id(Code code) {
    return code <= 0 ? "" : ",ID[\"EPSG\"," + std::to_string(code) + "]";
}

std::string angleUnit(Unit const& unit) {
    return "ANGLEUNIT[" + wktQuoted(unit.name) + "," + radiansText(unit.factor) + "]";
}

std::string lengthUnit(Unit const& unit) {
    return "LENGTHUNIT[" + wktQuoted(unit.name) + "," + numberText(unit.factor) + "]";
}

/// The datum and the prime meridian.
std::string datumText(Datum const& datum, Unit const& angle) {
    Ellipsoid const& ellipsoid = datum.ellipsoid;
    return "DATUM[" + wktQuoted(withoutEnsemble(datum.name)) + ",ELLIPSOID[" + wktQuoted(ellipsoid.name) + "," +
           numberText(ellipsoid.semiMajor) + "," + numberText(ellipsoid.inverseFlattening) +
           ",LENGTHUNIT[\"metre\",1]" + id(ellipsoid.code) + "]" + id(datum.code) + "],PRIMEM[" +
           wktQuoted(datum.meridian.name) + "," + numberText(datum.meridian.longitude / angle.factor) + "," +
           angleUnit(angle) + id(datum.meridian.code) + "]";
}

std::string parameterText(WrittenParameter const& parameter, Definition const& definition) {
    double const value = inUnit(parameter, definition.angularUnit.factor, definition.unit.factor);
    std::string const unit = parameter.kind == Kind::angle    ? angleUnit(definition.angularUnit)
                             : parameter.kind == Kind::length ? lengthUnit(definition.unit)
                                                              : "SCALEUNIT[\"unity\",1]";
    return ",PARAMETER[" + wktQuoted(parameter.name) + "," + numberText(value) + "," + unit + id(parameter.code) + "]";
}

std::string conversionText(Definition const& definition) {
    WrittenMethod const method = registerMethod(definition);
    std::string text = "CONVERSION[" + wktQuoted(definition.conversionName) + ",METHOD[" + wktQuoted(method.name) +
                       id(rowOf(definition.method).code) + "]";
    for (WrittenParameter const& parameter : method.parameters)
        text += parameterText(parameter, definition);
    return text + id(definition.conversionCode) + "]";
}

std::string axesText(Definition const& definition) {
    bool const projected = definition.isProjected();
    std::string text = projected ? "CS[Cartesian,2]" : "CS[ellipsoidal,2]";
    int order = 0;
    for (WrittenAxis const& axis : axesOf(definition)) {
        std::string name(axis.name);
        name[0] = static_cast<char>(name[0] - 'A' + 'a');
        name += " (" + std::string(axis.abbreviation) + ")";
        text += ",AXIS[" + wktQuoted(name) + "," + std::string(axis.direction);
        if (axis.meridian)
            text += ",MERIDIAN[" + numberText(*axis.meridian) + "," + std::string(degree) + "]";
        text += ",ORDER[" + std::to_string(++order) + "]]";
    }
    return text + "," + (projected ? lengthUnit(definition.unit) : angleUnit(definition.angularUnit));
}

std::string usageText(Definition const& definition) {
    if (!definition.area)
        return {};
    Area const& area = *definition.area;
    return ",USAGE[SCOPE[\"unknown\"],AREA[" + wktQuoted(area.name) + "],BBOX[" + numberText(area.south) + "," +
           numberText(area.west) + "," + numberText(area.north) + "," + numberText(area.east) + "]]";
}

std::string systemText(Definition const& definition) {
    std::string const name = wktQuoted(definition.name + (definition.deprecated ? " (deprecated)" : ""));
    std::string const datum = datumText(definition.datum, definition.angularUnit);
    std::string const rest = axesText(definition) + usageText(definition) + id(definition.code) + "]";
    if (!definition.isProjected())
        return "GEOGCRS[" + name + "," + datum + "," + rest;
    return "PROJCRS[" + name + ",BASEGEOGCRS[" + wktQuoted(definition.baseName) + "," + datum +
           id(definition.baseCode) + "]," + conversionText(definition) + "," + rest;
}

std::string shiftText(ToWgs84 const& shift) {
    std::string text = R"x(METHOD["Position Vector transformation (geog2D domain)",ID["EPSG",9606]])x";
    for (std::size_t i = 0; i < shift.size(); ++i) {
        BindingRow const& row = bindingRows[i];
        text += ",PARAMETER[" + wktQuoted(row.name) + "," + numberText(shift[i]) + "," + std::string(row.wktUnit) +
                id(row.code) + "]";
    }
    return text;
}

std::string gridsText(std::string_view grids) {
    return R"(METHOD["NTv2",ID["EPSG",9615]],PARAMETERFILE["Latitude and longitude difference file",)" +
           wktQuoted(grids) + R"(,ID["EPSG",8656]])";
}

} // namespace

OrProblem<std::string> writeWkt2(Definition const& definition) {
    Datum const& datum = definition.datum;
    if (!datum.toWgs84 && datum.grids.empty())
        return systemText(definition);
    if (datum.toWgs84 && !datum.grids.empty())
        return cannotSay("WKT 2", "two ways to WGS 84");
    return "BOUNDCRS[SOURCECRS[" + systemText(definition) + "],TARGETCRS[" + std::string(wgs84) +
           "],ABRIDGEDTRANSFORMATION[\"unknown\"," +
           (datum.toWgs84 ? shiftText(*datum.toWgs84) : gridsText(datum.grids)) + "]]";
}

} // namespace ZrProj::systems
