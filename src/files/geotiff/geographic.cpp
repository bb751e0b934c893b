#include "files/geotiff/geographic.h"

#include "datum/method_table.h"
#include "files/geotiff/geographic_table.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>

namespace ZrProj::GeoTIFF {
namespace {

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

/// Whether a datum stands on the ellipsoid, counted from Greenwich. To a metre, which is better than any datum is
/// known: the catalogue has one Clarke 1880 for several. A datum without parameters is not held to any.
bool standsOn(DATUM2WGS84 const& params, Ellipsoid const& ellipsoid) {
    Ellipsoid const own = ellipsoidOf(params.Ellipsoid, params.MajorRadius, params.Flattening);
    return own.type == EllipsoidTypeNone ||
           (params.PrimeMeridian == 0 && std::fabs(own.radius - ellipsoid.radius) < 1 &&
            std::fabs(own.flattening - ellipsoid.flattening) * own.radius < 1);
}

/// The catalogue's datum of that number or, without one, of the very name that the citation has.
DatumType findDatum(KeyDirectory const& keys, std::uint16_t code) {
    DatumType datum = DatumTypeNone;
    if (DatGetDatumFromPOSCNumber(&datum, code) || code != userDefined)
        return datum;
    std::string_view citation = keys.text(keyGeographicCitation);
    std::size_t const start = citation.find(datumLabel);
    if (start == std::string_view::npos)
        return DatumTypeNone;
    citation.remove_prefix(start + datumLabel.size());
    std::string const name(citation.substr(0, citation.find('|')));
    bool const found = DatGetDatumFromName(&datum, name.c_str());
    return found && datum != DatumTypeUserDefined ? datum : DatumTypeNone;
}

/// A transformation to WGS 84 by 3 shifts, or by 3 shifts, 3 rotations and a scale, as a datum of the user's own.
void readToWgs84(KeyDirectory const& keys, Geographic& result) {
    std::vector<double> const values = keys.numbers(keyToWgs84);
    if (values.size() != 3 && values.size() != 7)
        return;
    DATUM2WGS84 params = {};
    params.Ellipsoid = result.ellipsoid.type;
    params.MajorRadius = result.ellipsoid.radius;
    params.Flattening = result.ellipsoid.flattening;
    params.dX = values[0], params.dY = values[1], params.dZ = values[2];
    params.Method = DatumMethodMolodensky;
    if (std::any_of(values.begin() + 3, values.end(), [](double value) { return value != 0; })) {
        params.Method = DatumMethodBursaWolf;
        params.rX = values[3], params.rY = values[4], params.rZ = values[5], params.Scale = values[6];
    }
    result.datum = DatumTypeUserDefined;
    result.params = params;
}

void readDatum(KeyDirectory const& keys, std::uint16_t code, Geographic& result) {
    DatumType const datum = findDatum(keys, code);
    DATUM2WGS84 const params = parametersOf(datum, nullptr);
    if (datum != DatumTypeNone && standsOn(params, result.ellipsoid)) {
        result.datum = datum;
        if (params.Ellipsoid != EllipsoidTypeNone)
            result.params = params;
        return;
    }
    readToWgs84(keys, result);
    if (result.datum == DatumTypeNone)
        result.noDatum = code == userDefined ? "the datum is not known by a number"
                                             : "datum " + std::to_string(code) + " is not one of the catalogue's";
}

bool isGreenwich(KeyDirectory const& keys) {
    std::uint16_t const code = keys.code(keyPrimeMeridian).value_or(meridianGreenwich);
    bool const zero = keys.number(keyPrimeMeridianLongitude) == 0.0;
    return zero ? code == meridianGreenwich || code == userDefined
                : code == meridianGreenwich && !keys.has(keyPrimeMeridianLongitude);
}

GeographicRow const* rowOf(std::uint16_t code) {
    auto const row = std::ranges::find(geographicTable, code, &GeographicRow::code);
    return row == geographicTable.end() ? nullptr : &*row;
}

/// A system without a number: a datum with a number, an ellipsoid, or both.
Expected<Geographic> readOwn(KeyDirectory const& keys) {
    std::uint16_t const datum = keys.code(keyDatum).value_or(userDefined);
    auto ellipsoid = readEllipsoid(keys);
    if (!ellipsoid)
        return ellipsoid.refusal();
    Geographic result;
    result.ellipsoid = *ellipsoid;
    auto const row = std::ranges::find(geographicTable, datum, &GeographicRow::datum);
    if (result.ellipsoid.type == EllipsoidTypeNone && row != geographicTable.end())
        result.ellipsoid = ellipsoidOfCode(row->ellipsoid);
    if (result.ellipsoid.type == EllipsoidTypeNone)
        return Refusal{"the keys tell no ellipsoid"};
    readDatum(keys, datum, result);
    return result;
}

Expected<Geographic> readNumbered(KeyDirectory const& keys, std::uint16_t code) {
    GeographicRow const* const row = rowOf(code);
    if (!row)
        return Refusal{"geographic system " + std::to_string(code) + " is not one of those known by number"};
    auto const ellipsoid = agreedEllipsoid(keys, ellipsoidOfCode(row->ellipsoid));
    if (!ellipsoid)
        return ellipsoid.refusal();
    Geographic result;
    result.ellipsoid = *ellipsoid;
    readDatum(keys, row->datum, result);
    return result;
}

/// The code of the system of a datum on an ellipsoid; 32767 where there is none.
std::uint16_t codeOf(DatumType datum, Ellipsoid const& ellipsoid) {
    int posc = 0;
    if (!DatGetDatumPOSCNumber(datum, &posc))
        return userDefined;
    auto const row = std::ranges::find_if(geographicTable, [&](GeographicRow const& candidate) {
        return candidate.datum == posc && sameFigures(ellipsoidOfCode(candidate.ellipsoid), ellipsoid);
    });
    return row == geographicTable.end() ? std::uint16_t{userDefined} : row->code;
}

void writeToWgs84(KeyDirectory& keys, DATUM2WGS84 const& params) {
    if (!datumMethodIs(params.Method, &DatumMethodRow::hasShifts))
        return;
    std::vector<double> numbers{params.dX, params.dY, params.dZ};
    if (datumMethodIs(params.Method, &DatumMethodRow::hasRotations))
        numbers.insert(numbers.end(), {params.rX, params.rY, params.rZ, params.Scale});
    keys.setNumbers(keyToWgs84, std::move(numbers));
}

void writeOwn(KeyDirectory& keys, Ellipsoid const& ellipsoid, DatumType datum, DATUM2WGS84 const& params) {
    std::array<char, 40> figure = {};
    EllipsoidInfo(ellipsoid.type, figure.data(), nullptr, nullptr);
    std::string const name = datum == DatumTypeNone ? "unknown" : nameOf(datum).data();
    keys.setText(keyGeographicCitation, "GCS Name = " + name + '|' + std::string(datumLabel) + name +
                                            "|Ellipsoid = " + figure.data() + "|Primem = Greenwich|");
    keys.setCode(keyDatum, userDefined);
    keys.setCode(keyPrimeMeridian, meridianGreenwich);
    writeEllipsoid(keys, ellipsoid);
    writeToWgs84(keys, params);
}

} // namespace

Expected<Geographic> readGeographic(KeyDirectory const& keys, std::uint16_t implied) {
    if (!isGreenwich(keys))
        return Refusal{"longitudes are not counted from Greenwich"};
    auto const unit = angleUnit(keys, keyAngleUnit, keyAngleUnitSize);
    if (!unit)
        return unit.refusal();
    std::uint16_t const given = keys.code(keyGeographicType).value_or(implied);
    if (implied != 0 && given != implied && given != userDefined)
        return Refusal{"the projected system and the geographic system contradict each other"};
    std::uint16_t const code = implied != 0 ? implied : given;
    auto result = code == 0 || code == userDefined ? readOwn(keys) : readNumbered(keys, code);
    if (!result)
        return result;
    Geographic geographic = *result;
    geographic.degrees = unit->toBase(1);
    return geographic;
}

Expected<std::uint16_t> writeGeographic(KeyDirectory& keys, Ellipsoid const& ellipsoid, DatumType datum,
                                        DATUM2WGS84 const* own) {
    DATUM2WGS84 const params = parametersOf(datum, own);
    bool const shifted = datumMethodIs(params.Method, &DatumMethodRow::hasShifts);
    if (datum == DatumTypeUserDefined && !shifted)
        return Refusal{"a datum of the user's own needs its shifts to WGS 84"};
    if (datum != DatumTypeNone && nameOf(datum)[0] == '\0')
        return Refusal{"the datum is none of the catalogue's"};
    if (ellipsoid.type == EllipsoidTypeNone)
        return Refusal{"the records tell no ellipsoid"};
    if (params.PrimeMeridian != 0)
        return Refusal{"the datum's longitudes are not counted from Greenwich"};
    if (!standsOn(params, ellipsoid))
        return Refusal{"the datum and the projection have different ellipsoids"};
    std::uint16_t const code = codeOf(datum, ellipsoid);
    keys.setCode(keyGeographicType, code);
    keys.setCode(keyAngleUnit, unitDegree);
    if (code == userDefined)
        writeOwn(keys, ellipsoid, datum, params);
    return code;
}

} // namespace ZrProj::GeoTIFF
