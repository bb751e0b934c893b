#include "systems/register.h"

#include "systems/method_table.h"
#include "systems/register/tables.h"

#include <algorithm>
#include <cmath>
#include <memory>
#include <string>

namespace ZrProj::systems {
namespace {

using namespace rows;

Unit unitOfRow(UnitRow const& row) {
    return {at(row.name), row.factor, row.code};
}

/// Degrees by whatever way of writing them are degrees.
Unit angularUnitOf(AxesRow const& row) {
    Unit const degree{"degree", 1, 9122};
    auto const* unit = find(units, row.unit);
    return unit && unit->factor != 1 ? unitOfRow(*unit) : degree;
}

void setConversion(Definition& definition, ConversionRow const& row) {
    definition.conversionName = at(row.name);
    definition.conversionCode = row.code;
    definition.method = row.method;
    auto const& parameters = rowOf(row.method).parameters;
    for (std::size_t i = 0; i < std::size(row.values) && parameters[i] != 0; ++i)
        definition.parameters[parameterByCode(parameters[i])->parameter] = values[row.values[i]];
}

void setAxes(Definition& definition, AxesRow const& row) {
    definition.unit = unitOfRow(*find(units, row.unit));
    definition.x = row.x;
    definition.y = row.y;
}

Code replacementOf(Code code) {
    auto const* row = find(replacements, code);
    return row ? row->replacement : 0;
}

/// The geographic system that a system stands on, or is.
SystemRow const& baseOf(SystemRow const& row) {
    return row.conversion == geographic ? row : *find(systems, row.base);
}

Definition definitionOfRow(SystemRow const& row) {
    SystemRow const& base = baseOf(row);
    Definition definition;
    definition.name = at(row.name);
    definition.code = row.code;
    definition.datum = *datumOf(base.base);
    definition.angularUnit = angularUnitOf(axes[base.axes]);
    definition.northingFirst = axes[row.axes].northingFirst;
    definition.area = areaOf(areas[row.area]);
    definition.deprecated = row.deprecated;
    definition.replacement = replacementOf(row.code);
    if (row.conversion != geographic) {
        definition.baseName = at(base.name);
        definition.baseCode = base.code;
        setConversion(definition, conversions[row.conversion]);
        setAxes(definition, axes[row.axes]);
    }
    return definition;
}

/// The names of all systems, unpacked when the first is asked for, and kept: callers have their addresses.
std::vector<std::string> const& namesOfSystems() {
    static auto const* const names = [] {
        auto unpacked = std::make_unique<std::vector<std::string>>();
        for (SystemRow const& row : systems)
            unpacked->push_back(at(row.name));
        return unpacked.release();
    }();
    return *names;
}

Entry entryOf(SystemRow const& row) {
    auto const& name = namesOfSystems()[static_cast<std::size_t>(&row - systems)];
    return {row.code, name.c_str(), row.conversion != geographic, row.deprecated};
}

bool contains(AreaRow const& row, double longitude, double latitude) {
    auto const area = areaOf(row);
    return area && area->contains(longitude, latitude);
}

double extentOf(AreaRow const& row) {
    double const width = row.east - row.west;
    return (width < 0 ? width + 36000 : width) * (row.north - row.south);
}

} // namespace

std::string_view registerVersion() {
    return version;
}

std::string_view registerTerms() {
    return terms;
}

std::optional<Definition> definitionOf(Code code) {
    if (auto const* row = find(systems, code))
        return definitionOfRow(*row);
    if (auto const* part = find(parts, code))
        return definitionOf(part->horizontal);
    return {};
}

std::optional<Datum> datumOf(Code code) {
    auto const* row = find(datums, code);
    if (!row)
        return {};
    Datum datum;
    datum.name = at(row->name);
    datum.ellipsoid = *ellipsoidOf(row->ellipsoid);
    datum.meridian = *meridianOf(row->meridian);
    datum.code = row->code;
    datum.ensembleAccuracy = row->ensembleCentimetres / 100.0;
    return datum;
}

std::optional<Ellipsoid> ellipsoidOf(Code code) {
    auto const* row = find(ellipsoids, code);
    if (!row)
        return {};
    return Ellipsoid{at(row->name), row->semiMajor, row->inverseFlattening, row->code};
}

std::optional<PrimeMeridian> meridianOf(Code code) {
    auto const* row = find(meridians, code);
    if (!row)
        return {};
    return PrimeMeridian{at(row->name), row->longitude, row->code};
}

std::optional<Unit> unitOf(Code code) {
    auto const* row = find(units, code);
    if (!row)
        return {};
    return unitOfRow(*row);
}

std::optional<Definition> systemOfConversion(Code conversion) {
    auto const has = [conversion](SystemRow const& row) {
        return !row.deprecated && row.conversion != geographic && conversions[row.conversion].code == conversion;
    };
    auto const* const row = std::ranges::find_if(systems, has);
    if (row == std::end(systems))
        return {};
    return definitionOfRow(*row);
}

Code lengthUnitOf(double metres) {
    auto const is = [metres](UnitRow const& row) { return !row.ofAngle && std::fabs(row.factor / metres - 1) < 1e-13; };
    auto const* const row = std::ranges::find_if(rows::units, is);
    return row == std::end(rows::units) ? 0 : row->code;
}

Code ellipsoidWith(Ellipsoid const& figure) {
    auto const flattening = [](double inverse) { return inverse == 0 ? 0 : 1 / inverse; };
    auto const is = [&](EllipsoidRow const& row) {
        double const apart = flattening(row.inverseFlattening) - flattening(figure.inverseFlattening);
        return std::fabs(row.semiMajor - figure.semiMajor) < 1e-3 && std::fabs(apart) * row.semiMajor < 1e-5;
    };
    auto const* const row = std::ranges::find_if(ellipsoids, is);
    return row == std::end(ellipsoids) ? 0 : row->code;
}

bool Area::contains(double longitude, double latitude) const {
    double const width = west <= east ? east - west : east - west + 360;
    double fromWest = (std::fabs(longitude) <= 180 ? longitude : std::remainder(longitude, 360)) - west;
    fromWest += fromWest < 0 ? 360 : fromWest >= 360 ? -360 : 0;
    return fromWest <= width && south <= latitude && latitude <= north;
}

std::size_t entryCount() {
    return std::size(systems);
}

Entry entry(std::size_t n) {
    return entryOf(systems[n]);
}

Code ensembleOf(Code datum) {
    auto const* row = find(realizations, datum);
    return row ? row->ensemble : 0;
}

std::vector<Code> systemsOn(Code datum) {
    std::vector<Code> codes;
    for (SystemRow const& row : systems)
        if (baseOf(row).base == datum)
            codes.push_back(row.code);
    return codes;
}

std::vector<Entry> systemsAt(double longitude, double latitude) {
    std::vector<SystemRow const*> found;
    for (SystemRow const& row : systems)
        if (!row.deprecated && contains(areas[row.area], longitude, latitude))
            found.push_back(&row);
    std::stable_sort(found.begin(), found.end(), [](SystemRow const* a, SystemRow const* b) {
        return extentOf(areas[a->area]) < extentOf(areas[b->area]);
    });
    std::vector<Entry> entries;
    for (SystemRow const* row : found)
        entries.push_back(entryOf(*row));
    return entries;
}

} // namespace ZrProj::systems
