// Source    Snyder (1987), Map Projections: A Working Manual, pp. 107-109, for cones that are the same; equation numbers
//           are his.
// Accuracy  1e-14 in the scale factors, 1e-12 degrees in the parallels.
#include "systems/to_record.h"

#include "datum/catalogue.h"
#include "proj/figure.h"
#include "proj/projection_table.h"
#include "systems/method_table.h"
#include "systems/names.h"
#include "systems/register.h"

#include <zrproj/zones.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <optional>
#include <utility>

namespace ZrProj::systems {
namespace {

using Given = formulas::ParametersInDegrees;
using Made = std::variant<PROJDATA, Unsupported>;

/// The catalogue's ellipsoid of these figures, the one with that code rather than another; otherwise the user's own.
Figure catalogueFigureOf(double radius, double flattening, Code code) {
    Figure const own{EllipsoidTypeUserDefined, radius, flattening};
    Figure best = own;
    for (std::int32_t i = EllipsoidTypeNone - 1; i > EllipsoidTypeUserDefined; --i) {
        int posc = 0;
        bool const hasCode = code != 0 && EllipsoidToPOSCNumber(best.type, &posc) && posc == code;
        Figure const candidate = figureOf(static_cast<EllipsoidType>(i), 0, 0);
        if (!hasCode && areNear(own, candidate, 1e-3, 1e-5))
            best = candidate;
    }
    return best;
}

Figure figureOf(Ellipsoid const& ellipsoid) {
    double const flattening = ellipsoid.inverseFlattening == 0 ? 0 : 1 / ellipsoid.inverseFlattening;
    return catalogueFigureOf(ellipsoid.semiMajor, flattening, ellipsoid.code);
}

void setFigure(PROJDATA& record, Figure const& figure) {
    record.Ellipsoid = figure.type;
    record.MajorRadius = figure.radius;
    record.Flattening = figure.flattening;
}

/// How many of a unit make a metre. The survey's units are fractions of 3937, which keeps them exact.
double perMetre(Unit const& unit) {
    double const parts = unit.factor * 3937;
    return parts == std::round(parts) ? 3937 / parts : 1 / unit.factor;
}

/// The radius of a parallel over that of the equator's circle, (14-15), and the logarithm of t of (15-9).
struct Meridian {
    double e;

    double m(double phi) const {
        double const s = e * std::sin(phi);
        return std::cos(phi) / std::sqrt((1 - s) * (1 + s));
    }
    double logT(double phi) const { return -std::asinh(std::tan(phi)) + e * std::atanh(e * std::sin(phi)); }
};

/// A conformal cone by the parallel where it touches and the scale there.
struct Cone {
    Meridian meridian;
    double phi0, k0;

    /// The logarithm of how much larger the scale is than along the touching parallel.
    double excess(double phi) const {
        double const n = std::sin(phi0);
        return std::log(meridian.m(phi0) / meridian.m(phi)) + n * (meridian.logT(phi) - meridian.logT(phi0));
    }

    /// Where the excess is as wanted, between the touching parallel and a pole: it grows all the way.
    double parallelOf(double wanted, double pole) const {
        double near = phi0, far = pole;
        for (int i = 0; i < 80; ++i) {
            double const middle = near + (far - near) / 2;
            (excess(middle) < wanted ? near : far) = middle;
        }
        return near;
    }
};

Cone coneOf(Given const& p) {
    Meridian const meridian{std::sqrt(p.f * (2 - p.f))};
    double const phi1 = p.lat1 * formulas::degree, phi2 = p.lat2 * formulas::degree;
    if (p.lat1 == p.lat2)
        return {meridian, phi1, 1};
    double const n =
        std::log(meridian.m(phi1) / meridian.m(phi2)) / (meridian.logT(phi1) - meridian.logT(phi2)); // (15-8)
    Cone cone{meridian, std::asin(n), 1};
    cone.k0 = std::exp(-cone.excess(phi1));
    return cone;
}

/// Records take two parallels that are some tenth of a degree apart; a cone has as many pairs of equal scale as one
/// likes. The pair is of true scale where that lies far enough apart; otherwise the scale goes into `a`.
void setParallelsApart(Given& p) {
    constexpr double least = 0.1 + 1e-9; // degrees
    constexpr double apart = 2e-6;       // of the scale, where two parallels are some 0.2 degrees apart
    constexpr double quarter = std::numbers::pi / 2;
    double const ofMap = p.k0;
    if (std::fabs(p.lat1 - p.lat2) > least)
        return;
    Cone const cone = coneOf(p);
    double const scale = ofMap * cone.k0;
    bool const cuts = -std::log(scale) > apart;
    double const wanted = cuts ? -std::log(scale) : 1.5e-4;
    p.lat1 = cone.parallelOf(wanted, -quarter) / formulas::degree;
    p.lat2 = cone.parallelOf(wanted, quarter) / formulas::degree;
    p.k0 = cuts ? 1 : scale * std::exp(wanted);
}

bool isCone(Given const& p) {
    double const touching = std::fabs(p.lat1 + p.lat2) / 2;
    return std::fabs(p.lat1 - p.lat2) > 0.1 || (touching > 0.01 && touching < 89.9);
}

/// The type that a formula computes, null where there is none. The exact transverse Mercator is the series' map.
ProjectionRow const* rowFor(Conversion const& conversion) {
    using formulas::Method;
    if (conversion.method == Method::transverseMercatorExact)
        return projectionRow(ProjTypeTransverseMercator);
    bool const isSphere = conversion.parameters.f == 0; // on which both gnomonic maps are one
    auto const method =
        conversion.method == Method::gnomonicEllipsoid && isSphere ? Method::gnomonic : conversion.method;
    auto const row = std::ranges::find(projectionTable, method, &ProjectionRow::method);
    return method == Method::none || row == projectionTable.end() ? nullptr : &*row;
}

/// The first parameter that a type does not have and that is not as records take it to be; "" where there is none.
std::string faultOf(ProjectionRow const& row, Given const& p) {
    auto const has = [&row](ProjParam id) { return std::ranges::find(row.parameters, id) != row.parameters.end(); };
    if (!has(ProjParamLat0) && p.lat0 != 0 && p.lat0 != p.lat1)
        return "the projection has no latitude of origin other than 0 in the records";
    if (!has(ProjParamLon0) && p.lon0 != 0)
        return "the projection has no central meridian other than 0 in the records";
    if (!has(ProjParamK0) && p.k0 != 1)
        return "the projection has no scale factor in the records";
    if (p.rectifiedAngle != p.azimuth)
        return "the records turn the grid of an oblique Mercator by its azimuth, not by another angle";
    return {};
}

void setParameters(PROJDATA& record, ProjectionRow const& row, Given const& p) {
    struct {
        ProjParam id;
        double value;
    } const numbers[] = {
        {ProjParamLat0, p.lat0}, {ProjParamLon0, p.lon0}, {ProjParamLat1, p.lat1},     {ProjParamLon1, p.lon1},
        {ProjParamLat2, p.lat2}, {ProjParamLon2, p.lon2}, {ProjParamAlpha, p.azimuth}, {ProjParamK0, p.k0},
    };
    for (auto const& number : numbers)
        if (std::ranges::find(row.parameters, number.id) != row.parameters.end())
            ProjSetParam(&record, number.id, &number.value);
    record.bUseAlpha = p.useAzimuth;
    record.bRotate = p.rotate;
    record.bUOffset = p.offsetByU;
}

Made checked(PROJDATA const& record) {
    std::array<char, 512> message{};
    if (ProjCheckParams(&record, message.data(), false) != 0)
        return Unsupported{message.data()};
    return record;
}

/// The record with the map's own parameters. What scales the whole map stands in the conversion's axis, or is left in
/// its scale by a cone: both go into Scale.
Made projectionOf(Definition const& system, Conversion conversion) {
    Given& p = conversion.parameters;
    if (conversion.meridian != 0)
        p.lon0 = std::remainder(p.lon0 + conversion.meridian, 360);
    Figure figure = figureOf(system.datum.ellipsoid);
    double scale = p.a / system.datum.ellipsoid.semiMajor;
    if (p.f == 0 && figure.flattening != 0) {
        figure = catalogueFigureOf(p.a, 0, 0);
        scale = 1;
    }
    auto const* const row = rowFor(conversion);
    if (!row)
        return Unsupported{"no record says the projection " + std::string(rowOf(system.method).name)};
    if (row->type == ProjTypeLambertConformalConic) {
        if (!isCone(p))
            return Unsupported{"a cone that touches the equator or a pole is no cone"};
        setParallelsApart(p);
        scale *= std::exchange(p.k0, 1);
    }
    if (auto const fault = faultOf(*row, p); !fault.empty())
        return Unsupported{fault};
    PROJDATA record = {};
    record.Type = row->type;
    setParameters(record, *row, p);
    record.Scale = scale * perMetre(system.unit);
    record.xOrg = conversion.falseEasting / scale;
    record.yOrg = conversion.falseNorthing / scale;
    setFigure(record, figure);
    return checked(record);
}

/// A zone of UTM by its numbers, whatever the register calls it.
std::optional<PROJDATA> utmOf(Definition const& system, PROJDATA const& projection) {
    int const zone = static_cast<int>(std::floor((projection.Lon0 + 186) / 6));
    bool const isNorth = projection.yOrg == 0, isSouth = projection.yOrg == 10000000;
    if (projection.Type != ProjTypeTransverseMercator || projection.K0 != 0.9996 || projection.Lat0 != 0 ||
        projection.xOrg != 500000 || !(isNorth || isSouth) || zone < 1 || zone > 60 ||
        projection.Lon0 != ProjUTMZoneNumberToLon(zone) || system.datum.meridian.longitude != 0)
        return {};
    PROJDATA record = projection;
    record.Type = ProjTypeUniversalTransverseMercator;
    record.bSouth = isSouth;
    return record;
}

/// The projection that defines a State Plane zone; nothing where the zone has no definition.
std::optional<PROJDATA> projectionOf(PROJDATA record) {
    ProjGetStateZoneParams(&record);
    if (record.Zone == StateZoneTypeNone)
        return {};
    if (record.Type == ProjTypeUniversalTransverseMercator) // which has a false origin of its own
        record.Type = ProjTypeTransverseMercator;
    return record;
}

/// Whether two projections in metres put some places near their centre to the same points.
bool isSameMap(PROJDATA a, PROJDATA b, double tolerance) {
    CProjector one(&a), other(&b);
    for (double const away : {-0.4, 0.2, 0.5}) {
        PROJPOINT p{b.Lon0 + away, b.Lat0 + away}, q = p;
        if (!one.Forward(&p, 1) || !other.Forward(&q, 1) || !(std::hypot(p.x - q.x, p.y - q.y) <= tolerance))
            return false;
    }
    return true;
}

/// Whether a zone's definition is a projection, but for the rounding of the register: millimetres where the register
/// has feet.
bool isDefinedAs(PROJDATA const& zone, PROJDATA const& projection) {
    bool const isOblique = zone.Type == ProjTypeHotineObliqueMercator;
    bool const isNear = isOblique || std::fabs(zone.Lon0 - projection.Lon0) < 1e-6;
    if (zone.Type != projection.Type || !isNear || !areNear(figureOf(zone), figureOf(projection), 1e-3, 1e-5))
        return false;
    PROJDATA inMetres = projection;
    inMetres.Scale = 1;
    bool const isInFeet = zone.Ellipsoid == EllipsoidTypeClarke1866;
    return isSameMap(zone, inMetres, isInFeet ? 4e-3 : 5e-4);
}

bool isNamed(std::int32_t zone, Definition const& system) {
    std::array<char, 64> name{};
    ProjGetStateZoneInfo(static_cast<StateZoneType>(zone), name.data(), nullptr);
    return system.conversionName.find(name.data()) != std::string::npos;
}

/// The State Plane zone whose definition a projection is; of several, the one that its name names.
std::optional<PROJDATA> statePlaneOf(Definition const& system, PROJDATA const& projection) {
    std::optional<PROJDATA> found;
    for (std::int32_t i = 0; i < StateZoneTypeNone; ++i) {
        PROJDATA record = {};
        record.Type = projection.Ellipsoid == EllipsoidTypeClarke1866 ? ProjTypeStatePlane1927 : ProjTypeStatePlane1983;
        record.Zone = static_cast<StateZoneType>(i);
        auto const zone = projectionOf(record);
        if (!zone || (found && !isNamed(i, system)) || !isDefinedAs(*zone, projection))
            continue;
        record.Scale = projection.Scale;
        setFigure(record, figureOf(*zone));
        found = record;
    }
    return found;
}

/// The zone that a conversion of the register is.
std::optional<PROJDATA> zoneOf(Definition const& system, PROJDATA const& projection) {
    if (system.conversionCode == 0)
        return {};
    auto const utm = utmOf(system, projection);
    return utm ? utm : statePlaneOf(system, projection);
}

Made geographicRecord(Definition const& system) {
    if (system.datum.meridian.longitude != 0)
        return Unsupported{"longitudes are not counted from Greenwich"};
    PROJDATA record = {};
    setFigure(record, figureOf(system.datum.ellipsoid));
    return record;
}

Made projectedRecord(Definition const& system) {
    if (system.x == Sense::negative || system.y == Sense::negative)
        return Unsupported{"the records' coordinates grow to the east and north"};
    auto const conversion = conversionOf(system);
    if (auto const* unsupported = std::get_if<Unsupported>(&conversion))
        return *unsupported;
    auto const made = projectionOf(system, std::get<Conversion>(conversion));
    if (auto const* projection = std::get_if<PROJDATA>(&made))
        if (auto const zone = zoneOf(system, *projection))
            return *zone;
    return made;
}

/// The code of the datum that is the same but for longitudes, which count from Greenwich; 0 where there is none.
Code greenwichCodeOf(Datum const& datum) {
    if (datum.meridian.longitude == 0)
        return datum.code;
    auto const ending = datum.name.find(" (" + datum.meridian.name + ")");
    return ending == datum.name.npos ? 0 : codeNamed(Thing::datum, datum.name.substr(0, ending));
}

DatumType catalogueDatumOf(Datum const& datum) {
    DatumType type = DatumTypeNone;
    if (datum.code != 0)
        return DatGetDatumFromPOSCNumber(&type, greenwichCodeOf(datum)) ? type : DatumTypeNone;
    bool const found = DatGetDatumFromName(&type, datum.name.c_str());
    return found && type != DatumTypeUserDefined ? type : DatumTypeNone;
}

/// By shifts alone where there is nothing else.
DATUM2WGS84 parametersOf(ToWgs84 const& shift, Figure const& figure) {
    DATUM2WGS84 parameters = {};
    parameters.Ellipsoid = figure.type;
    parameters.MajorRadius = figure.radius;
    parameters.Flattening = figure.flattening;
    parameters.dX = shift[0], parameters.dY = shift[1], parameters.dZ = shift[2];
    bool const turned = std::any_of(shift.begin() + 3, shift.end(), [](double value) { return value != 0; });
    parameters.Method = turned ? DatumMethodBursaWolf : DatumMethodMolodensky;
    parameters.rX = shift[3], parameters.rY = shift[4], parameters.rZ = shift[5], parameters.Scale = shift[6];
    return parameters;
}

void setDatum(SystemRecord& record, Datum const& datum) {
    Figure const figure = figureOf(datum.ellipsoid);
    DATUM2WGS84 parameters = {};
    parameters.Ellipsoid = EllipsoidTypeNone;
    DatumType const type = catalogueDatumOf(datum);
    DatGetDatumParams(type, &parameters);
    if (type != DatumTypeNone && standsOn(parameters, figure)) {
        record.datum = type;
        if (parameters.Ellipsoid != EllipsoidTypeNone)
            record.parameters = parameters;
    } else if (datum.toWgs84 && datum.meridian.longitude == 0) {
        record.datum = DatumTypeUserDefined;
        record.parameters = parametersOf(*datum.toWgs84, figure);
    } else {
        record.noDatum = datum.code == 0 ? "the datum is not known by a number"
                                         : "datum " + std::to_string(datum.code) + " is not one of the catalogue's";
    }
}

} // namespace

std::variant<SystemRecord, Unsupported> recordOf(Definition const& system) {
    auto const made = system.isProjected() ? projectedRecord(system) : geographicRecord(system);
    if (auto const* unsupported = std::get_if<Unsupported>(&made))
        return *unsupported;
    SystemRecord record;
    record.projection = std::get<PROJDATA>(made);
    setDatum(record, system.datum);
    return record;
}

} // namespace ZrProj::systems
