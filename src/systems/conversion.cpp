#include "systems/conversion.h"

#include "formulas/converter.h"
#include "systems/authalic_radius.h"
#include "systems/method_table.h"
#include "systems/parameter_check.h"

#include <cfloat>
#include <cmath>

namespace ZrProj::systems {
namespace {

using Formula = formulas::Method;
using Given = formulas::ParametersInDegrees;

double squaredEccentricity(Given const& given) {
    return given.f * (2 - given.f);
}

/// The radius of a parallel over the semi-major axis, m of Snyder's (14-15).
double parallelRadius(Given const& given, double latitude) {
    double const phi = latitude * formulas::degree, sine = std::sin(phi);
    return std::cos(phi) / std::sqrt(1 - squaredEccentricity(given) * sine * sine);
}

/// exp(-psi) of the isometric latitude, t of Snyder's (15-9).
double polarTangent(Given const& given, double latitude) {
    double const e = std::sqrt(squaredEccentricity(given)), sine = std::sin(latitude * formulas::degree);
    return std::exp(e * std::atanh(e * sine) - std::asinh(std::tan(latitude * formulas::degree)));
}

// How a method's parameters become a formula's. They begin as the definition has them: the origin in lat0, lon0,
// standard parallels in lat1, lat2. What scales a whole map and is no parameter of its formula goes into the axis.

void asGiven(Conversion&) {}

void onSphere(Conversion& to) {
    to.parameters.f = 0;
}

void scaled(Conversion& to) {
    to.parameters.a *= to.parameters.k0;
    to.parameters.k0 = 1;
}

void sphericalMercator(Conversion& to) {
    onSphere(to);
    scaled(to);
}

void mercatorTrueAtParallel(Conversion& to) {
    to.parameters.k0 = parallelRadius(to.parameters, to.parameters.lat1);
    scaled(to);
}

/// One parallel of contact with a scale along it is a cone like any other.
void oneParallel(Conversion& to) {
    to.parameters.lat1 = to.parameters.lat2 = to.parameters.lat0;
    scaled(to);
}

/// The cone is turned by 29.2985 seconds of arc about its apex: another central meridian.
void turnedCone(Conversion& to) {
    auto& p = to.parameters;
    double const n = std::log(parallelRadius(p, p.lat1) / parallelRadius(p, p.lat2)) /
                     std::log(polarTangent(p, p.lat1) / polarTangent(p, p.lat2));
    p.lon0 += 29.2985 / 3600 / n;
}

void centreInLat1(Conversion& to) {
    to.parameters.lat1 = to.parameters.lat0;
}

void centreOnAuthalicSphere(Conversion& to) {
    to.parameters.a *= authalicRadius(to.parameters.f);
    onSphere(to);
    centreInLat1(to);
}

void parallelOnAuthalicSphere(Conversion& to) {
    to.parameters.a *= authalicRadius(to.parameters.f);
    onSphere(to);
}

double poleOf(double latitude) {
    return std::copysign(90.0, latitude);
}

/// The scale at the pole that makes a parallel true: Snyder's (21-33), (21-34).
void polarTrueAtParallel(Conversion& to) {
    auto& p = to.parameters;
    double const e = std::sqrt(squaredEccentricity(p)), latitude = std::fabs(p.lat1);
    double const atPole = std::sqrt(1 - e * e) * std::exp(e * std::atanh(e)); // sqrt((1+e)^(1+e) (1-e)^(1-e))
    p.k0 = latitude == 90 ? 1 : parallelRadius(p, latitude) * atPole / (2 * polarTangent(p, latitude));
    p.lat0 = poleOf(p.lat1);
}

/// The false origin lies where the central meridian meets the parallel.
void polarFromParallel(Conversion& to) {
    auto const& p = to.parameters;
    to.falseNorthing += std::copysign(p.a * parallelRadius(p, p.lat1), p.lat1);
    polarTrueAtParallel(to);
}

void obliqueFromEquator(Conversion& to) {
    to.parameters.useAzimuth = to.parameters.rotate = true;
}

void obliqueFromCentre(Conversion& to) {
    obliqueFromEquator(to);
    to.parameters.offsetByU = true;
}

void obliqueThroughPoints(Conversion& to) {
    to.parameters.rotate = to.parameters.offsetByU = true;
}

/// The false origin is subtracted before the axes are turned to east and north.
void originOfSouthAndWest(Conversion& to) {
    to.falseEasting = -to.falseEasting;
    to.falseNorthing = -to.falseNorthing;
}

/// A formula without a central meridian.
void longitudesFromCentralMeridian(Conversion& to) {
    to.meridian += to.parameters.lon0;
    to.parameters.lon0 = 0;
}

struct Row {
    Method method;
    Formula formula;
    void (*adapt)(Conversion& to);
};

// clang-format off
/// In the order of Method. Axes that grow to the south or west are no matter of a formula: what runs the other way is
/// computed as what does not.
constexpr Row conversions[] = {
    {Method::none,                         Formula::none,                      asGiven},
    {Method::pseudoMercator,               Formula::mercator,                  sphericalMercator},
    {Method::lambertAzimuthalSphere,       Formula::lambertAzimuthal,          centreOnAuthalicSphere},
    {Method::equidistantCylindrical,       Formula::equidistantCylindrical,    asGiven},
    {Method::equidistantCylindricalSphere, Formula::equidistantCylindrical,    onSphere},
    {Method::krovakNorth,                  Formula::krovak,                    originOfSouthAndWest},
    {Method::krovakModified,               Formula::krovakModified,            asGiven},
    {Method::krovakModifiedNorth,          Formula::krovakModified,            originOfSouthAndWest},
    {Method::lambertConicMichigan,         Formula::lambertConformalConic,     asGiven},
    {Method::colombiaUrban,                Formula::colombiaUrban,             asGiven},
    {Method::equalEarth,                   Formula::equalEarth,                asGiven},
    {Method::transverseMercator3D,         Formula::transverseMercatorExact,   asGiven},
    {Method::lambertConic1,                Formula::lambertConformalConic,     oneParallel},
    {Method::lambertConic2,                Formula::lambertConformalConic,     asGiven},
    {Method::lambertConicBelgium,          Formula::lambertConformalConic,     turnedCone},
    {Method::mercatorA,                    Formula::mercator,                  scaled},
    {Method::mercatorB,                    Formula::mercator,                  mercatorTrueAtParallel},
    {Method::cassini,                      Formula::cassini,                   asGiven},
    {Method::transverseMercator,           Formula::transverseMercatorExact,   asGiven},
    {Method::transverseMercatorSouth,      Formula::transverseMercatorExact,   asGiven},
    {Method::obliqueStereographic,         Formula::obliqueStereographic,      asGiven},
    {Method::polarStereographicA,          Formula::stereographic,             asGiven},
    {Method::newZealandMapGrid,            Formula::newZealandMapGrid,         asGiven},
    {Method::hotineA,                      Formula::hotine,                    obliqueFromEquator},
    {Method::laborde,                      Formula::laborde,                   asGiven},
    {Method::hotineB,                      Formula::hotine,                    obliqueFromCentre},
    {Method::tunisiaMiningGrid,            Formula::tunisiaMiningGrid,         asGiven},
    {Method::lambertConicNearConformal,    Formula::lambertNearConformal,      asGiven},
    {Method::polyconic,                    Formula::polyconic,                 asGiven},
    {Method::krovak,                       Formula::krovak,                    asGiven},
    {Method::lambertAzimuthal,             Formula::lambertAzimuthal,          centreInLat1},
    {Method::albers,                       Formula::albers,                    asGiven},
    {Method::transverseMercatorZoned,      Formula::transverseMercatorZoned,   asGiven},
    {Method::lambertConicWest,             Formula::lambertConformalConic,     oneParallel},
    {Method::bonne,                        Formula::bonne,                     centreInLat1},
    {Method::bonneSouth,                   Formula::bonne,                     centreInLat1},
    {Method::polarStereographicB,          Formula::stereographic,             polarTrueAtParallel},
    {Method::polarStereographicC,          Formula::stereographic,             polarFromParallel},
    {Method::guam,                         Formula::guam,                      asGiven},
    {Method::modifiedAzimuthalEquidistant, Formula::azimuthalEquidistant,      centreInLat1},
    {Method::hyperbolicCassini,            Formula::hyperbolicCassini,         asGiven},
    {Method::cylindricalEqualAreaSphere,   Formula::cylindricalEqualArea,      parallelOnAuthalicSphere},
    {Method::cylindricalEqualArea,         Formula::cylindricalEqualArea,      asGiven},
    {Method::verticalPerspective,          Formula::none,                      asGiven},
    {Method::orthographic,                 Formula::orthographic,              asGiven},
    {Method::mercatorSphere,               Formula::mercator,                  sphericalMercator},
    {Method::stereographic,                Formula::stereographic,             asGiven},
    {Method::gnomonic,                     Formula::gnomonicEllipsoid,         centreInLat1},
    {Method::azimuthalEquidistant,         Formula::azimuthalEquidistant,      centreInLat1},
    {Method::equidistantConic,             Formula::equidistantConic,          asGiven},
    {Method::miller,                       Formula::miller,                    asGiven},
    {Method::mollweide,                    Formula::mollweide,                 asGiven},
    {Method::sinusoidal,                   Formula::sinusoidal,                asGiven},
    {Method::robinson,                     Formula::robinson,                  longitudesFromCentralMeridian},
    {Method::vanDerGrinten,                Formula::vanDerGrinten,             asGiven},
    {Method::eckert4,                      Formula::eckertIV,                  asGiven},
    {Method::eckert6,                      Formula::eckertVI,                  asGiven},
    {Method::gaussSchreiber,               Formula::gaussSchreiber,            asGiven},
    {Method::hotineTwoPoints,              Formula::hotine,                    obliqueThroughPoints},
};
// clang-format on

static_assert([] {
    for (std::size_t i = 0; i < std::size(conversions); ++i)
        if (conversions[i].method != Method(i))
            return false;
    return std::size(conversions) == std::size(methodRows);
}());

Given parametersOf(Ellipsoid const& ellipsoid, ParameterValues const& values) {
    auto const angle = [&values](Parameter p) { return values.valueOr(p, 0); };
    Given given;
    given.a = ellipsoid.semiMajor * values.valueOr(Parameter::ellipsoidScale, 1);
    given.f = ellipsoid.inverseFlattening == 0 ? 0 : 1 / ellipsoid.inverseFlattening;
    given.lat0 = angle(Parameter::latitudeOfOrigin);
    given.lon0 = angle(Parameter::longitudeOfOrigin);
    given.lat1 = values.valueOr(Parameter::latitudeOfPoint1, angle(Parameter::standardParallel1));
    given.lat2 = values.valueOr(Parameter::latitudeOfPoint2, angle(Parameter::standardParallel2));
    given.lon1 = angle(Parameter::longitudeOfPoint1);
    given.lon2 = angle(Parameter::longitudeOfPoint2);
    given.k0 = values.valueOr(Parameter::scaleFactor, 1);
    given.azimuth = angle(Parameter::azimuth);
    given.rectifiedAngle = values.valueOr(Parameter::rectifiedAngle, given.azimuth);
    given.coLatitude = angle(Parameter::coLatitudeOfAxis);
    given.height = angle(Parameter::planeHeight);
    given.zoneWidth = angle(Parameter::zoneWidth);
    return given;
}

std::string nameOf(Method method, Parameter parameter) {
    for (int const code : rowOf(method).parameters)
        if (ParameterRow const* row = parameterByCode(code); row && row->parameter == parameter)
            return std::string(row->name);
    return {};
}

/// Turns what is not marked; nothing is spent where there is nothing to turn.
void turn(PROJPOINT* points, int count, double x, double y, double shift) {
    if (x == 1 && y == 1 && shift == 0)
        return;
    for (int i = 0; i < count; ++i)
        if (!levels::isMarked(points[i]))
            points[i] = {points[i].x * x + shift, points[i].y * y};
}

/// -180 to 180, as a shift by a meridian may leave it outside.
void wrap(PROJPOINT* points, int count) {
    for (int i = 0; i < count; ++i)
        if (!levels::isMarked(points[i]) && std::fabs(points[i].x) > 180)
            points[i].x = std::remainder(points[i].x, 360);
}

} // namespace

std::variant<Conversion, Unsupported> conversionOf(Definition const& system) {
    Row const& row = conversions[static_cast<std::size_t>(system.method)];
    Conversion to;
    to.meridian = system.datum.meridian.longitude;
    if (!system.isProjected())
        return to;
    if (row.formula == Formula::none)
        return Unsupported{"there is no formula for the method " + std::string(rowOf(system.method).name)};
    if (auto const wrong = wrongParameter(system.method, system.parameters))
        return Unsupported{"the parameter " + nameOf(system.method, wrong->parameter) + " " + std::string(wrong->why)};
    to.method = row.formula;
    to.parameters = parametersOf(system.datum.ellipsoid, system.parameters);
    to.falseEasting = system.parameters.valueOr(Parameter::falseEasting, 0);
    to.falseNorthing = system.parameters.valueOr(Parameter::falseNorthing, 0);
    to.scale = 1 / system.unit.factor;
    to.x = system.x;
    to.y = system.y;
    row.adapt(to);
    if (row.formula == Formula::mercator && to.parameters.lat0 != 0)
        return Unsupported{"a scale along the equator and an origin elsewhere contradict each other"};
    return to;
}

std::variant<SystemConverter, Unsupported> SystemConverter::make(Conversion const& conversion) {
    SystemConverter made;
    made.meridian_ = conversion.meridian;
    auto const formula = formulas::formulaOf(conversion.method);
    made.isGeographic_ = !formula;
    if (made.isGeographic_)
        return made;
    double const xSense = static_cast<double>(conversion.x), ySense = static_cast<double>(conversion.y);
    bool const bothTurned = xSense < 0 && ySense < 0;
    made.map_.xOrg = xSense * conversion.falseEasting;
    made.map_.yOrg = ySense * conversion.falseNorthing;
    made.map_.scale = (bothTurned ? -1 : 1) * conversion.scale;
    // Where 360 degrees are an edge, they stay just inside.
    made.map_.fullTurn = std::fabs(conversion.parameters.lon0) == 180 ? std::nextafter(360, 0) : 360;
    made.xSense_ = bothTurned ? 1 : xSense;
    made.ySense_ = bothTurned ? 1 : ySense;
    formula->prepare(made.map_, inRadians(conversion.parameters));
    if (!made.map_.forward)
        return Unsupported{"its parameters define no map"};
    return made;
}

levels::Outcome SystemConverter::run(formulas::Converter::Direction direction, PROJPOINT* points,
                                     int count) const noexcept {
    return map_.convert(direction, levels::pointsOf(points, static_cast<std::size_t>(count)), {.keepsMarked = true});
}

levels::Outcome SystemConverter::forward(PROJPOINT* points, int count) const noexcept {
    turn(points, count, 1, 1, -meridian_);
    if (isGeographic_)
        return wrap(points, count), levels::Outcome{};
    auto const outcome = run(&formulas::Converter::forward, points, count);
    turn(points, count, xSense_, ySense_, 0);
    return outcome;
}

levels::Outcome SystemConverter::inverse(PROJPOINT* points, int count) const noexcept {
    turn(points, count, xSense_, ySense_, 0);
    auto const outcome = isGeographic_ ? levels::Outcome{} : run(&formulas::Converter::inverse, points, count);
    turn(points, count, 1, 1, meridian_);
    if (!isGeographic_) // there 180 degrees either way may be different edges of a map
        wrap(points, count);
    return outcome;
}

} // namespace ZrProj::systems
