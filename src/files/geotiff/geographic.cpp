#include "files/geotiff/geographic.h"

#include "datum/catalogue.h"
#include "datum/method_table.h"
#include "files/geotiff/citations.h"
#include "systems/names.h"
#include "systems/recognition.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>

namespace ZrProj::GeoTIFF {
namespace {

using systems::Definition;
using systems::Thing;

constexpr std::string_view datumLabel = "Datum = ";

using DatumName = std::array<char, 49>;

DatumName nameOf(DatumType datum) {
    DatumName name = {};
    DatGetDatumName(datum, name.data());
    return name;
}

/// A datum's parameters; none (method 0, ellipsoid 50) for the datums that have none.
DATUM2WGS84 parametersOf(DatumType datum, DATUM2WGS84 const* own) {
    DATUM2WGS84 params = {};
    params.Ellipsoid = EllipsoidTypeNone;
    if (datum == DatumTypeUserDefined && own)
        std::memcpy(&params, own, sizeof params);
    else if (datum != DatumTypeUserDefined)
        DatGetDatumParams(datum, &params);
    return params;
}

/// The register's geographic system of a code.
std::optional<Definition> systemOf(systems::Code code) {
    auto system = systems::definitionOf(code);
    return system && !system->isProjected() ? system : std::nullopt;
}

Refusal unknownSystem(std::uint16_t code) {
    return {"geographic system " + std::to_string(code) + " is not one of those known by number"};
}

/// The longitude of the prime meridian that the keys tell, in degrees; nothing where they tell none.
Expected<std::optional<systems::PrimeMeridian>> readMeridian(KeyDirectory const& keys, double degrees) {
    using Result = std::optional<systems::PrimeMeridian>;
    std::uint16_t const code = keys.code(keyPrimeMeridian).value_or(userDefined);
    if (code != userDefined) {
        auto known = systems::meridianOf(code);
        if (!known)
            return Refusal{"prime meridian " + std::to_string(code) + " is not one of those known by number"};
        return Result(std::move(known));
    }
    if (!keys.has(keyPrimeMeridianLongitude))
        return Result();
    auto const longitude = keys.number(keyPrimeMeridianLongitude);
    if (!longitude || !(std::fabs(*longitude * degrees) <= 180))
        return Refusal{"the prime meridian is no longitude"};
    if (*longitude == 0)
        return Result(systems::PrimeMeridian{});
    auto name = labelled(keys.text(keyGeographicCitation), "Primem = ");
    return Result(systems::PrimeMeridian{name.empty() ? "unknown" : name, *longitude * degrees, 0});
}

void readToWgs84(KeyDirectory const& keys, systems::Datum& datum) {
    std::vector<double> const values = keys.numbers(keyToWgs84);
    if (values.size() != 3 && values.size() != 7)
        return;
    datum.toWgs84 = systems::ToWgs84{};
    std::ranges::copy(values, datum.toWgs84->begin());
}

/// What the citation calls the datum, or else the system that stands on it.
void readDatumName(KeyDirectory const& keys, Definition& system) {
    auto const citation = keys.text(keyGeographicCitation);
    auto const label = labelled(citation, "GCS Name = ");
    system.name = label.empty() ? std::string(citation.substr(0, citation.find('|'))) : label;
    system.datum.name = labelled(citation, datumLabel);
    auto const cited = systemOf(systems::codeNamed(Thing::system, system.name));
    if (system.datum.name.empty())
        system.datum.name = cited ? cited->datum.name : "unknown";
    if (system.name.empty())
        system.name = "unknown";
}

/// A system without a number: a datum with a number or a name, an ellipsoid, or both.
Expected<Definition> readOwn(KeyDirectory const& keys) {
    std::uint16_t const code = keys.code(keyDatum).value_or(userDefined);
    auto const ellipsoid = readEllipsoid(keys, nullptr);
    if (!ellipsoid)
        return ellipsoid.refusal();
    Definition system;
    readDatumName(keys, system);
    auto const known =
        systems::datumOf(code == userDefined ? systems::codeNamed(Thing::datum, system.datum.name) : code);
    if (known)
        system.datum.ellipsoid = known->ellipsoid;
    if (known && code != userDefined)
        system.datum = *known;
    else if (code != userDefined)
        system.datum.code = code;
    if (*ellipsoid && (!known || !sameFigures(**ellipsoid, known->ellipsoid)))
        system.datum.ellipsoid = **ellipsoid;
    if (system.datum.ellipsoid.semiMajor == 0)
        return Refusal{"the keys tell no ellipsoid"};
    return system;
}

std::string told(Definition const& named, std::string const& difference) {
    return named.name + " (EPSG:" + std::to_string(named.code) + ") is named, but the keys have " + difference;
}

/// The register's system of a code, with the figures that the keys repeat where those are others.
Expected<Geographic> withKeys(KeyDirectory const& keys, Definition const& registered) {
    auto const ellipsoid = readEllipsoid(keys, &registered.datum.ellipsoid);
    if (!ellipsoid)
        return ellipsoid.refusal();
    Geographic result{registered, 1, {}};
    if (!*ellipsoid || sameFigures(**ellipsoid, registered.datum.ellipsoid))
        return result;
    result.system.code = 0;
    result.system.datum.code = 0;
    result.system.datum.ellipsoid = **ellipsoid;
    result.noticed = told(registered, systems::difference(result.system, registered)) + "; its numbers are taken";
    return result;
}

/// The system that the keys name beside the projected system's own.
Expected<Geographic> agreed(KeyDirectory const& keys, Definition const& implied) {
    std::uint16_t const code = keys.code(keyGeographicType).value_or(userDefined);
    auto result = withKeys(keys, implied);
    if (!result || code == userDefined || code == implied.code)
        return result;
    auto const given = systemOf(code);
    if (!given)
        return unknownSystem(code);
    if (!sameFigure(given->datum, implied.datum))
        return Refusal{"the projected system and the geographic system contradict each other"};
    Geographic geographic = *result;
    if (given->datum.code != implied.datum.code && geographic.noticed.empty())
        geographic.noticed = told(implied, "the datum " + given->datum.name) + "; the projected system's is taken";
    return geographic;
}

Expected<Geographic> readSystem(KeyDirectory const& keys, Definition const* implied) {
    if (implied)
        return agreed(keys, *implied);
    std::uint16_t const code = keys.code(keyGeographicType).value_or(userDefined);
    if (code == userDefined) {
        auto own = readOwn(keys);
        return own ? Expected(Geographic{*own, 1, {}}) : own.refusal();
    }
    auto const registered = systemOf(code);
    return registered ? withKeys(keys, *registered) : unknownSystem(code);
}

/// The code of the system of a datum on an ellipsoid; 32767 where there is none.
std::uint16_t codeOf(DatumType datum, Figure const& figure) {
    int posc = 0;
    if (!DatGetDatumPOSCNumber(datum, &posc))
        return userDefined;
    auto const ellipsoid = definitionOf(figure);
    for (systems::Code const code : systems::systemsOn(posc)) {
        auto const system = systemOf(code);
        if (system && system->angularUnit.factor == 1 && system->datum.meridian.longitude == 0 &&
            sameFigures(system->datum.ellipsoid, ellipsoid))
            return static_cast<std::uint16_t>(code);
    }
    return userDefined;
}

void writeToWgs84(KeyDirectory& keys, DATUM2WGS84 const& params) {
    if (!datumMethodIs(params.Method, &DatumMethodRow::hasShifts))
        return;
    std::vector<double> numbers{params.dX, params.dY, params.dZ};
    if (datumMethodIs(params.Method, &DatumMethodRow::hasRotations))
        numbers.insert(numbers.end(), {params.rX, params.rY, params.rZ, params.Scale});
    keys.setNumbers(keyToWgs84, std::move(numbers));
}

void writeOwn(KeyDirectory& keys, Figure const& figure, DatumType datum, DATUM2WGS84 const& params) {
    std::array<char, 40> ellipsoid = {};
    EllipsoidInfo(figure.type, ellipsoid.data(), nullptr, nullptr);
    std::string const name = datum == DatumTypeNone ? "unknown" : nameOf(datum).data();
    keys.setText(keyGeographicCitation, "GCS Name = " + name + '|' + std::string(datumLabel) + name +
                                            "|Ellipsoid = " + ellipsoid.data() + "|Primem = Greenwich|");
    keys.setCode(keyDatum, userDefined);
    keys.setCode(keyPrimeMeridian, meridianGreenwich);
    writeEllipsoid(keys, figure);
    writeToWgs84(keys, params);
}

} // namespace

bool sameFigure(systems::Datum const& a, systems::Datum const& b) {
    return sameFigures(a.ellipsoid, b.ellipsoid) && std::fabs(a.meridian.longitude - b.meridian.longitude) < 1e-8;
}

void settleDatum(systems::Datum& datum) {
    DatumType ofCatalogue = DatumTypeNone;
    if (datum.code != 0 || DatGetDatumFromName(&ofCatalogue, datum.name.c_str()))
        return;
    auto known = systems::datumOf(systems::codeNamed(Thing::datum, datum.name));
    if (!known || !sameFigure(*known, datum))
        return;
    known->toWgs84 = datum.toWgs84;
    known->grids = datum.grids;
    datum = std::move(*known);
}

Expected<Geographic> readGeographic(KeyDirectory const& keys, systems::Definition const* implied) {
    auto const unit = angleUnit(keys);
    auto const result = readSystem(keys, implied);
    if (!unit || !result)
        return Refusal{unit ? result.reason() : unit.reason()};
    Geographic geographic = *result;
    if (*unit)
        geographic.degrees = (*unit)->factor;
    else if (geographic.system.code != 0)
        geographic.degrees = geographic.system.angularUnit.factor;
    auto const meridian = readMeridian(keys, geographic.degrees);
    if (!meridian)
        return meridian.refusal();
    systems::Datum& datum = geographic.system.datum;
    if (*meridian && std::fabs((*meridian)->longitude - datum.meridian.longitude) > 1e-6) {
        if (datum.code != 0)
            return Refusal{"the prime meridian contradicts the datum"};
        datum.meridian = **meridian;
    }
    settleDatum(datum);
    readToWgs84(keys, datum);
    return geographic;
}

Expected<std::uint16_t> writeGeographic(KeyDirectory& keys, Figure const& figure, DatumType datum,
                                        DATUM2WGS84 const* own) {
    DATUM2WGS84 const params = parametersOf(datum, own);
    bool const shifted = datumMethodIs(params.Method, &DatumMethodRow::hasShifts);
    if (datum == DatumTypeUserDefined && !shifted)
        return Refusal{"a datum of the user's own needs its shifts to WGS 84"};
    if (datum != DatumTypeNone && nameOf(datum)[0] == '\0')
        return Refusal{"the datum is none of the catalogue's"};
    if (figure.type == EllipsoidTypeNone)
        return Refusal{"the records tell no ellipsoid"};
    if (params.PrimeMeridian != 0)
        return Refusal{"the datum's longitudes are not counted from Greenwich"};
    if (!standsOn(params, figure))
        return Refusal{"the datum and the projection have different ellipsoids"};
    std::uint16_t const code = codeOf(datum, figure);
    keys.setCode(keyGeographicType, code);
    keys.setCode(keyAngleUnit, unitDegree);
    if (code == userDefined)
        writeOwn(keys, figure, datum, params);
    return code;
}

} // namespace ZrProj::GeoTIFF
