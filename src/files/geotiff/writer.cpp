// The keys of a coordinate system, written.
#include "files/geotiff/geographic.h"
#include "files/geotiff/methods.h"
#include "files/geotiff/system.h"
#include "proj/parameter_table.h"
#include "proj/projection_table.h"
#include "proj/record.h"
#include "systems/register.h"
#include "systems/to_record.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>

namespace ZrProj::GeoTIFF {
namespace {

std::string nameOf(ProjType type) {
    std::array<char, 40> name = {};
    ProjGetProjectionInfo(type, name.data());
    return name.data();
}

/// The record with what a handle would complete: the false origin of UTM, factors of 0, the catalogue's figures.
PROJDATA completed(PROJDATA record) {
    if (record.Type == ProjTypeUniversalTransverseMercator) {
        record.xOrg = 500000;
        record.yOrg = flagByte<&PROJDATA::bSouth>(record) ? 10000000 : 0;
        record.K0 = record.K0 == 0 ? 0.9996 : record.K0;
    }
    record.Scale = record.Scale == 0 ? 1 : record.Scale;
    record.K0 = record.K0 == 0 ? 1 : record.K0;
    return record;
}

/// A State Plane record as the projection that its zone is defined by.
PROJDATA definition(PROJDATA record) {
    if (record.Type == ProjTypeStatePlane1927 || record.Type == ProjTypeStatePlane1983) {
        ProjGetStateZoneParams(&record);
        record.K0 = record.K0 == 0 ? 1 : record.K0;
    }
    return record;
}

/// How GeoTIFF says the record: the first method of its type, with the forms that a type has twice told apart.
Method methodOf(PROJDATA const& record) {
    bool const isSeries = record.Type == ProjTypeUniversalTransverseMercator || record.Type == ProjTypeGaussKruger;
    bool const isSecond = record.Type == ProjTypeHotineObliqueMercator ? flagByte<&PROJDATA::bUOffset>(record) != 0
                                                                       : std::fabs(record.Lat0) == 90;
    auto const* const row = projectionRow(isSeries ? ProjTypeTransverseMercator : record.Type);
    if (!row)
        return {};
    bool const hasForms = row->type == ProjTypeHotineObliqueMercator || row->type == ProjTypeStereographic;
    return row->geotiff[hasForms && isSecond ? 1 : 0];
}

struct OriginKeys {
    Key longitude, latitude, east, north;
};

OriginKeys originKeys(Method const& method) {
    if (method.transformation == polarStereographic)
        return {keyPoleLongitude, keyNaturalLatitude, keyFalseEasting, keyFalseNorthing};
    switch (method.origin) {
    case Origin::Centre:
        return {keyCentreLongitude, keyCentreLatitude, keyFalseEasting, keyFalseNorthing};
    case Origin::False:
        return {keyFalseOriginLongitude, keyFalseOriginLatitude, keyFalseOriginEasting, keyFalseOriginNorthing};
    default:
        return {keyNaturalLongitude, keyNaturalLatitude, keyFalseEasting, keyFalseNorthing};
    }
}

double angleAt(PROJDATA const& record, ProjParam id) {
    double value = 0;
    if (id != ProjParamNone)
        ProjGetParam(&record, id, &value);
    return value;
}

/// A type that GeoTIFF has a name for, in a form that the name covers.
Expected<Method> methodFor(PROJDATA const& record) {
    Method const method = methodOf(record);
    if (method.transformation == Transformation{})
        return Refusal{"GeoTIFF has no name for the projection " + nameOf(record.Type)};
    bool const byAzimuth = flagByte<&PROJDATA::bUseAlpha>(record) && flagByte<&PROJDATA::bRotate>(record);
    if (record.Type == ProjTypeHotineObliqueMercator && !byAzimuth)
        return Refusal{"GeoTIFF has an oblique Mercator by azimuth and with a turned grid only"};
    if (char const* const doubt = doubtOnEllipsoid(method.transformation); doubt && record.Flattening != 0)
        return Refusal{doubt};
    double const latitude = angleAt(record, method.latitude);
    double const parallel =
        std::max(method.parallels > 0 ? std::fabs(record.Lat1) : 0, method.parallels > 1 ? std::fabs(record.Lat2) : 0);
    if (std::max(std::fabs(latitude), parallel) > 90)
        return Refusal{"a latitude lies beyond a pole"};
    return method;
}

void writeOblique(KeyDirectory& keys, PROJDATA const& record) {
    if (record.Lon1 != 0)
        keys.setNumber(keyCentreLongitude, record.Lon1);
    double const azimuth = record.Alpha < 0 ? record.Alpha + 360 : record.Alpha;
    keys.setNumber(keyAzimuth, azimuth);
    keys.setNumber(keyGridAngle, azimuth);
}

/// The unit of length that Scale stands for; what is left of Scale is a factor of the projection.
double writeLengthUnit(KeyDirectory& keys, PROJDATA const& record, Method const& method) {
    std::uint16_t const code = codeOfLengthUnit(record.Scale);
    if (code == userDefined && method.scale == ScaleFactor::Folded) {
        keys.setCode(keyLengthUnit, unitMetre);
        return record.Scale;
    }
    keys.setCode(keyLengthUnit, code);
    if (code == userDefined)
        keys.setNumber(keyLengthUnitSize, 1 / record.Scale);
    return 1;
}

void writeOrigin(KeyDirectory& keys, PROJDATA const& record, Method const& method) {
    OriginKeys const origin = originKeys(method);
    // The Mercator of GeoTIFF counts from the equator.
    bool const fromEquator = record.Type == ProjTypeMercator;
    double const shift = fromEquator ? mercatorNorthing(record.Lat0, record.MajorRadius, record.Flattening) : 0;
    keys.setNumber(origin.longitude, angleAt(record, method.longitude));
    keys.setNumber(origin.latitude, angleAt(record, method.latitude));
    keys.setNumber(origin.east, record.xOrg * record.Scale);
    keys.setNumber(origin.north, (record.yOrg - shift) * record.Scale);
}

void writeDescribed(KeyDirectory& keys, PROJDATA const& record, Method const& method) {
    keys.setCode(keyProjectedType, userDefined);
    keys.setCode(keyProjection, userDefined);
    keys.setCode(keyTransformation, method.transformation);
    double const factor = writeLengthUnit(keys, record, method);
    writeOrigin(keys, record, method);
    if (method.scale != ScaleFactor::MustBeOne) {
        bool const centre = record.Type == ProjTypeHotineObliqueMercator;
        keys.setNumber(centre ? keyCentreScale : keyNaturalScale, method.scale == ScaleFactor::K0 ? record.K0 : factor);
    }
    if (method.parallels > 0)
        keys.setNumber(keyParallel1, record.Lat1);
    if (method.parallels > 1)
        keys.setNumber(keyParallel2, record.Lat2);
    if (record.Type == ProjTypeHotineObliqueMercator)
        writeOblique(keys, record);
}

double numberOf(PROJDATA const& record, ParameterRow const& parameter) {
    if (parameter.type == ProjDataTypeDouble)
        return angleAt(record, parameter.id);
    std::int32_t whole = 0;
    std::memcpy(&whole, reinterpret_cast<char const*>(&record) + parameter.offset,
                static_cast<std::size_t>(parameter.size));
    return whole;
}

/// How far two values of a parameter may be apart and mean the same map, to a tenth of a millimetre.
double toleranceOf(ParameterRow const& parameter, double value) {
    switch (parameter.quantity) {
    case Quantity::Factor:
        return 1e-10 * std::fabs(value);
    case Quantity::Metres:
        return 1e-4;
    case Quantity::Longitude:
    case Quantity::Latitude:
    case Quantity::Azimuth:
        return 1e-9;
    default:
        return 0;
    }
}

bool hasSameFigure(PROJDATA const& a, PROJDATA const& b) {
    return !ProjUsesParam(a.Type, ProjParamEllipsoid) ||
           sameFigures(definitionOf(figureOf(a)), definitionOf(figureOf(b)));
}

/// Whether two records are the same by all that their type uses.
bool isSame(PROJDATA const& a, PROJDATA const& b) {
    return a.Type == b.Type && hasSameFigure(a, b) &&
           std::ranges::all_of(parameterTable, [&](ParameterRow const& parameter) {
               double const one = numberOf(a, parameter), other = numberOf(b, parameter);
               return parameter.id == ProjParamEllipsoid || !ProjUsesParam(a.Type, parameter.id) ||
                      std::fabs(one - other) <= toleranceOf(parameter, other);
           });
}

/// Whether a system of the register comes back as the very record.
bool readsBackAs(systems::Definition const& system, PROJDATA const& record) {
    auto const back = systems::recordOf(system);
    auto const* const read = std::get_if<systems::SystemRecord>(&back);
    return read && isSame(completed(read->projection), record);
}

/// Whether a system may be the projection by its unit and its central meridian, before it is looked at closely.
bool mayBe(systems::Definition const& system, PROJDATA const& projection) {
    constexpr double degrees = 0.1, relative = 0.01;
    double const centre = projection.Lon0 != 0 ? projection.Lon0 : projection.Lon1;
    double const longitude = system.parameters.valueOr(systems::Parameter::longitudeOfOrigin, centre);
    return std::fabs(std::remainder(longitude + system.datum.meridian.longitude - centre, 360)) < degrees &&
           std::fabs(system.unit.factor * projection.Scale - 1) < relative;
}

/// The register's projected system on a geographic one that is the record; one in force rather than a deprecated one.
std::optional<systems::Definition> registered(PROJDATA const& record, PROJDATA const& described,
                                              std::uint16_t geographic) {
    auto const base = systems::definitionOf(geographic);
    std::optional<systems::Definition> found;
    if (!base || geographic == userDefined)
        return found;
    for (systems::Code const code : systems::systemsOn(base->datum.code)) {
        auto system = systems::definitionOf(code);
        bool const isCandidate = system->baseCode == base->code && code < userDefined && (!found || found->deprecated);
        if (isCandidate && !(found && system->deprecated) && mayBe(*system, described) && readsBackAs(*system, record))
            found = std::move(system);
    }
    return found;
}

bool writeAsNumber(KeyDirectory& keys, PROJDATA const& record, PROJDATA const& described, std::uint16_t geographic) {
    auto const system = registered(record, described, geographic);
    if (!system)
        return false;
    keys.setCode(keyProjectedType, static_cast<std::uint16_t>(system->code));
    keys.setCode(keyLengthUnit, static_cast<std::uint16_t>(system->unit.code));
    return true;
}

/// The map of the web: a sphere's, of the latitudes of WGS 84's ellipsoid.
bool isOfWeb(PROJDATA const& record, DatumType datum) {
    return record.Type == ProjTypeMercator && datum == DatumTypeWorldGeodeticSystem1984 && record.Flattening == 0 &&
           record.MajorRadius == EllipsoidRadius(EllipsoidTypeWgs84) && record.Ellipsoid == EllipsoidTypeUserDefined;
}

Expected<KeyDirectory> writeProjected(PROJDATA const& given, DatumType datum, DATUM2WGS84 const* params) {
    PROJDATA const record = completed(given), described = definition(record);
    bool const ofWeb = isOfWeb(described, datum);
    Figure const figure = ofWeb ? figureOf(EllipsoidTypeWgs84, 0, 0) : figureOf(described);
    KeyDirectory keys;
    auto const geographic = writeGeographic(keys, figure, datum, params);
    if (!geographic)
        return geographic.refusal();
    keys.setCode(keyModelType, modelProjected);
    keys.setText(keyCitation, nameOf(given.Type));
    if (writeAsNumber(keys, record, described, *geographic))
        return keys;
    if (ofWeb)
        return Refusal{"GeoTIFF has the sphere's Mercator on WGS 84 by its number alone"};
    PROJDATA withFigures = described;
    withFigures.MajorRadius = figure.radius;
    withFigures.Flattening = figure.flattening;
    if (auto const refusal = writeProjection(keys, withFigures))
        return *refusal;
    return keys;
}

Expected<KeyDirectory> writeUnprojected(PROJDATA const& record, DatumType datum, DATUM2WGS84 const* params) {
    Figure figure = figureOf(record);
    DATUM2WGS84 own = {};
    if (datum == DatumTypeUserDefined && params)
        figure = figureOf(*params);
    else if (DatGetDatumParams(datum, &own))
        figure = figureOf(own);
    KeyDirectory keys;
    auto const geographic = writeGeographic(keys, figure, datum, params);
    if (!geographic)
        return geographic.refusal();
    keys.setCode(keyModelType, modelGeographic);
    return keys;
}

} // namespace

std::optional<Refusal> writeProjection(KeyDirectory& keys, PROJDATA const& projection) {
    auto const method = methodFor(projection);
    if (!method)
        return method.refusal();
    writeDescribed(keys, projection, *method);
    return {};
}

Expected<KeyDirectory> writeSystem(PROJDATA const* projection, DatumType datum, DATUM2WGS84 const* params) {
    bool const none = !projection || projection->Type == ProjTypeUndefined;
    if (none && datum == DatumTypeNone)
        return KeyDirectory();
    if (none)
        return Refusal{"a datum needs a projection to go with"};
    std::array<char, 512> message = {};
    if (ProjCheckParams(projection, message.data(), false) != 0)
        return Refusal{message.data()};
    auto keys = projection->Type == ProjTypeUnprojectedLatLong ? writeUnprojected(*projection, datum, params)
                                                               : writeProjected(*projection, datum, params);
    if (!keys)
        return keys;
    KeyDirectory result = *keys;
    result.setCode(keyRasterType, rasterIsArea);
    return result;
}

} // namespace ZrProj::GeoTIFF
