#include "systems/records.h"

#include "datum/catalogue.h"
#include "datum/method_table.h"
#include "proj/projection_table.h"
#include "proj/record.h"
#include "systems/method_table.h"
#include "systems/register.h"

#include <zrproj/ellipsoid.h>
#include <zrproj/zones.h>

#include <cmath>
#include <initializer_list>
#include <utility>

namespace ZrProj::systems {
namespace {

// How a type's fields become a method's parameters, or which of them no method takes.

using Said = std::variant<Definition, Unsupported>;
using Given = formulas::ParametersInDegrees;

void set(Definition& definition, std::initializer_list<std::pair<Parameter, double>> values) {
    for (auto const& [parameter, value] : values)
        definition.parameters[parameter] = value;
}

Said unsaid(PROJDATA const& record, char const* why) {
    return Unsupported{std::string(projectionTable[static_cast<std::size_t>(record.Type)].name) + " " + why};
}

Said asIs(Definition definition, PROJDATA const&, Given const& given) {
    set(definition, {{Parameter::latitudeOfOrigin, given.lat0},
                     {Parameter::longitudeOfOrigin, given.lon0},
                     {Parameter::scaleFactor, given.k0}});
    return definition;
}

/// The sphere of WGS 84's semi-major axis under WGS 84's own latitudes is the map of the web.
Said mercator(Definition definition, PROJDATA const& record, Given const& given) {
    auto const wgs84 = *systems::datumOf(6326);
    bool const isOfWeb = record.Flattening == 0 && record.MajorRadius == wgs84.ellipsoid.semiMajor &&
                         definition.datum.name == datumRow(DatumTypeWorldGeodeticSystem1984).name && given.lat0 == 0;
    if (isOfWeb) {
        definition.datum = wgs84;
        definition.method = Method::pseudoMercator;
    }
    if (given.lat0 != 0)
        return unsaid(record, "with northings from another parallel than the equator");
    set(definition, {{Parameter::latitudeOfOrigin, 0}, {Parameter::longitudeOfOrigin, given.lon0}});
    if (!isOfWeb)
        set(definition, {{Parameter::scaleFactor, 1}});
    return definition;
}

Said conic(Definition definition, PROJDATA const&, Given const& given) {
    set(definition, {{Parameter::latitudeOfOrigin, given.lat0},
                     {Parameter::longitudeOfOrigin, given.lon0},
                     {Parameter::standardParallel1, given.lat1},
                     {Parameter::standardParallel2, given.lat2}});
    return definition;
}

Said alongParallel(Definition definition, PROJDATA const&, Given const& given) {
    set(definition, {{Parameter::longitudeOfOrigin, given.lon0}, {Parameter::standardParallel1, given.lat1}});
    return definition;
}

Said aboutMeridian(Definition definition, PROJDATA const&, Given const& given) {
    set(definition, {{Parameter::longitudeOfOrigin, given.lon0}});
    return definition;
}

Said aboutOrigin(Definition definition, PROJDATA const&, Given const& given) {
    set(definition, {{Parameter::latitudeOfOrigin, given.lat0}, {Parameter::longitudeOfOrigin, given.lon0}});
    return definition;
}

Said aboutCentre(Definition definition, PROJDATA const&, Given const& given) {
    set(definition, {{Parameter::latitudeOfOrigin, given.lat1}, {Parameter::longitudeOfOrigin, given.lon0}});
    return definition;
}

Said stereographic(Definition definition, PROJDATA const& record, Given const& given) {
    if (std::fabs(given.lat0) == 90)
        definition.method = Method::polarStereographicA;
    return asIs(std::move(definition), record, given);
}

/// The definition's method is the ellipsoid's.
Said gnomonic(Definition definition, PROJDATA const& record, Given const& given) {
    if (given.f != 0)
        return unsaid(record, "of a sphere on an ellipsoid");
    return aboutCentre(std::move(definition), record, given);
}

Said hotine(Definition definition, PROJDATA const& record, Given const& given) {
    if (!given.rotate)
        return unsaid(record, "along and across its line");
    set(definition, {{Parameter::latitudeOfOrigin, given.lat0}, {Parameter::scaleFactor, given.k0}});
    if (given.useAzimuth) {
        definition.method = given.offsetByU ? Method::hotineB : Method::hotineA;
        set(definition, {{Parameter::longitudeOfOrigin, given.lon1 != 0 ? given.lon1 : given.lon0},
                         {Parameter::azimuth, given.azimuth},
                         {Parameter::rectifiedAngle, given.rectifiedAngle}});
        return definition;
    }
    if (!given.offsetByU)
        return unsaid(record, "through two points, with distances from the equator");
    set(definition, {{Parameter::latitudeOfPoint1, given.lat1},
                     {Parameter::longitudeOfPoint1, given.lon1},
                     {Parameter::latitudeOfPoint2, given.lat2},
                     {Parameter::longitudeOfPoint2, given.lon2}});
    return definition;
}

struct Row {
    ProjType type;
    Method method;
    Said (*say)(Definition definition, PROJDATA const& record, Given const& given);
};

// clang-format off
constexpr Row rows[] = {
    {ProjTypeMercator,                      Method::mercatorA,              mercator},
    {ProjTypeAlbersEqualAreaConic,          Method::albers,                 conic},
    {ProjTypeMillerCylindrical,             Method::miller,                 aboutMeridian},
    {ProjTypeUniversalTransverseMercator,   Method::transverseMercator,     asIs},
    {ProjTypeLambertConformalConic,         Method::lambertConic2,          conic},
    {ProjTypeStereographic,                 Method::stereographic,          stereographic},
    {ProjTypeOrthographic,                  Method::orthographic,           aboutOrigin},
    {ProjTypeMollweide,                     Method::mollweide,              aboutMeridian},
    {ProjTypePolyconic,                     Method::polyconic,              aboutOrigin},
    {ProjTypeHotineObliqueMercator,         Method::hotineTwoPoints,        hotine},
    {ProjTypeEquidistantCylindrical,        Method::equidistantCylindrical, alongParallel},
    {ProjTypeRobinson,                      Method::robinson,               aboutMeridian},
    {ProjTypeVanDerGrinten,                 Method::vanDerGrinten,          aboutMeridian},
    {ProjTypeCassini,                       Method::cassini,                aboutOrigin},
    {ProjTypeTransverseMercator,            Method::transverseMercator,     asIs},
    {ProjTypeGaussKruger,                   Method::transverseMercator,     asIs},
    {ProjTypeSinusoidal,                    Method::sinusoidal,             aboutMeridian},
    {ProjTypeLambertAzimuthalEqualArea,     Method::lambertAzimuthal,       aboutCentre},
    {ProjTypeBonne,                         Method::bonne,                  aboutCentre},
    {ProjTypeEckertIV,                      Method::eckert4,                aboutMeridian},
    {ProjTypeEckertVI,                      Method::eckert6,                aboutMeridian},
    {ProjTypeEquidistantConic,              Method::equidistantConic,       conic},
    {ProjTypeGnomonic,                      Method::gnomonic,               gnomonic},
    {ProjTypeAzimuthalEquidistant,          Method::azimuthalEquidistant,   aboutCentre},
};
// clang-format on

Unit unitOfScale(double scale) {
    auto const unit = unitOf(lengthUnitOf(1 / scale));
    return unit ? *unit : Unit{"unknown", 1 / scale, 0};
}

Ellipsoid ellipsoidOf(PROJDATA const& record) {
    std::array<char, 34> name{"unknown"};
    if (record.Ellipsoid != EllipsoidTypeUserDefined)
        EllipsoidInfo(record.Ellipsoid, name.data(), nullptr, nullptr);
    return {name.data(), record.MajorRadius, record.Flattening == 0 ? 0 : 1 / record.Flattening, 0};
}

double semiMinorOf(Ellipsoid const& ellipsoid) {
    return ellipsoid.inverseFlattening == 0 ? ellipsoid.semiMajor
                                            : ellipsoid.semiMajor * (1 - 1 / ellipsoid.inverseFlattening);
}

bool areNear(Ellipsoid const& a, Ellipsoid const& b, double metres) {
    return std::fabs(a.semiMajor - b.semiMajor) < metres && std::fabs(semiMinorOf(a) - semiMinorOf(b)) < metres;
}

PrimeMeridian meridianOf(double longitude) {
    return longitude == 0 ? PrimeMeridian{} : PrimeMeridian{"unknown", longitude, 0};
}

Datum ownDatum(DATUM2WGS84 const& own) {
    Datum datum;
    datum.meridian = meridianOf(own.PrimeMeridian);
    if (datumMethodIs(own.Method, &DatumMethodRow::hasShifts))
        datum.toWgs84 = ToWgs84{own.dX, own.dY, own.dZ};
    if (datumMethodIs(own.Method, &DatumMethodRow::hasRotations))
        datum.toWgs84 = ToWgs84{own.dX, own.dY, own.dZ, own.rX, own.rY, own.rZ, own.Scale};
    return datum;
}

Datum datumOfCatalogue(DatumRow const& row, Ellipsoid const& ellipsoid) {
    auto registered = systems::datumOf(row.posc);
    if (registered && registered->meridian.longitude == row.primeMeridian &&
        areNear(registered->ellipsoid, ellipsoid, 1)) {
        if (!areNear(registered->ellipsoid, ellipsoid, 1e-3))
            registered->ellipsoid = ellipsoid;
        return *registered;
    }
    Datum datum;
    datum.name = row.name;
    datum.meridian = meridianOf(row.primeMeridian);
    return datum;
}

/// A State Plane zone's projection in place of the zone.
PROJDATA unfolded(PROJDATA record) {
    ProjGetStateZoneParams(&record);
    return record;
}

/// The datums of the catalogue are so old in the register that their geographic systems have their codes less 2000.
Definition geographicOn(Datum datum) {
    auto definition = systems::definitionOf(datum.code - 2000);
    if (!definition || definition->datum.code != datum.code || definition->isProjected()) {
        definition.emplace();
        definition->name = datum.name;
    }
    definition->datum = std::move(datum);
    return *definition;
}

/// What stands on a geographic system.
Definition projectedOn(Definition const& base, std::string name) {
    Definition definition;
    definition.baseName = base.name;
    definition.baseCode = base.code;
    definition.datum = base.datum;
    definition.conversionName = name;
    definition.name = std::move(name);
    return definition;
}

} // namespace

Datum datumOf(PROJDATA const& record, DatumType datum, DATUM2WGS84 const& own) {
    Ellipsoid const ellipsoid = ellipsoidOf(record);
    bool const isTold = datum != DatumTypeNone && datum != DatumTypeUserDefined;
    Datum made = isTold ? datumOfCatalogue(datumRow(datum), ellipsoid)
                        : (datum == DatumTypeUserDefined ? ownDatum(own) : Datum{});
    if (made.code == 0)
        made.ellipsoid = ellipsoid;
    if (made.name.empty())
        made.name = "unknown";
    return made;
}

std::variant<Definition, Unsupported> definitionOf(PROJDATA const& record, DatumType datum, DATUM2WGS84 const& own) {
    PROJDATA const work = unfolded(record);
    Definition const base = geographicOn(datumOf(work, datum, own));
    if (work.Type == ProjTypeUnprojectedLatLong)
        return base;
    auto const* const row = std::ranges::find(rows, work.Type, &Row::type);
    if (row == std::end(rows))
        return unsaid(work, "is none of the methods that definitions know");
    auto definition = projectedOn(base, projectionTable[static_cast<std::size_t>(record.Type)].name);
    definition.method = row->method;
    definition.unit = unitOfScale(work.Scale);
    definition.parameters[Parameter::falseEasting] = work.xOrg; // by value: a packed record's members are not aligned
    definition.parameters[Parameter::falseNorthing] = work.yOrg;
    return row->say(std::move(definition), work, parametersOf(work));
}

Conversion conversionOf(PROJDATA const& record, double meridian) {
    PROJDATA const work = unfolded(record);
    Conversion to;
    to.method = projectionTable[static_cast<std::size_t>(work.Type)].method;
    to.parameters = parametersOf(work);
    to.falseEasting = work.xOrg;
    to.falseNorthing = work.yOrg;
    to.scale = work.Scale;
    to.meridian = meridian;
    return to;
}

} // namespace ZrProj::systems
