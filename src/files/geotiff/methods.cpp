#include "files/geotiff/methods.h"

#include "formulas/parameters.h"
#include "systems/method_table.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace ZrProj::GeoTIFF {
namespace {

using systems::Definition;
using systems::Method;
using systems::Parameter;

struct TransformationRow {
    Transformation transformation;
    Method method; // where its parameters do not make it another one
};

// clang-format off
constexpr std::array transformationTable{
    TransformationRow{transverseMercator,        Method::transverseMercator},
    TransformationRow{obliqueMercator,           Method::hotineA},
    TransformationRow{obliqueMercatorLaborde,    Method::laborde},
    TransformationRow{obliqueMercatorRosenmund,  Method::hotineB},
    TransformationRow{mercator,                  Method::mercatorA},
    TransformationRow{lambertConformal2,         Method::lambertConic2},
    TransformationRow{lambertConformal1,         Method::lambertConic1},
    TransformationRow{lambertAzimuthal,          Method::lambertAzimuthal},
    TransformationRow{albers,                    Method::albers},
    TransformationRow{azimuthalEquidistant,      Method::azimuthalEquidistant},
    TransformationRow{equidistantConic,          Method::equidistantConic},
    TransformationRow{stereographic,             Method::stereographic},
    TransformationRow{polarStereographic,        Method::polarStereographicA},
    TransformationRow{obliqueStereographic,      Method::obliqueStereographic},
    TransformationRow{equirectangular,           Method::equidistantCylindrical},
    TransformationRow{cassini,                   Method::cassini},
    TransformationRow{gnomonic,                  Method::gnomonic},
    TransformationRow{miller,                    Method::miller},
    TransformationRow{orthographic,              Method::orthographic},
    TransformationRow{polyconic,                 Method::polyconic},
    TransformationRow{robinson,                  Method::robinson},
    TransformationRow{sinusoidal,                Method::sinusoidal},
    TransformationRow{vanDerGrinten,             Method::vanDerGrinten},
    TransformationRow{newZealandMapGrid,         Method::newZealandMapGrid},
    TransformationRow{transverseMercatorSouth,   Method::transverseMercatorSouth},
    TransformationRow{cylindricalEqualArea,      Method::cylindricalEqualArea},
    TransformationRow{obliqueMercatorFromCentre, Method::hotineB},
};
// clang-format on

constexpr double poleLatitude = 90;

Refusal contradictory() {
    return {"a parallel of true scale and a scale factor contradict each other"};
}

/// A cone of two parallels with a scale along them is the one of an ellipsoid of that size.
std::optional<Refusal> scaledCone(Definition& system, Parameters& p) {
    if (p.scale == 1)
        return {};
    system.method = Method::lambertConicMichigan;
    system.parameters[Parameter::ellipsoidScale] = std::exchange(p.scale, 1);
    return {};
}

/// True along a parallel in place of a scale at the equator.
std::optional<Refusal> trueMercator(Definition& system, Parameters& p) {
    if (p.parallel1 == 0)
        return {};
    system.method = Method::mercatorB;
    return p.scale == 1 ? std::nullopt : std::optional(contradictory());
}

/// The latitude is the pole, or the parallel of true scale of the pole's map.
std::optional<Refusal> polar(Definition& system, Parameters& p) {
    bool const atPole = std::fabs(p.latitude) == poleLatitude;
    if (atPole && p.parallel1 == 0)
        return {};
    double const parallel = atPole ? std::exchange(p.parallel1, 0) : p.latitude;
    if (p.scale != 1 || !(std::fabs(parallel) > 0 && std::fabs(parallel) <= poleLatitude))
        return contradictory();
    system.method = Method::polarStereographicB;
    p.parallel1 = parallel;
    p.latitude = 0;
    return {};
}

/// What a transformation's parameters make of its method; they are then those of that method.
std::optional<Refusal> adapt(Definition& system, Transformation transformation, Parameters& p) {
    switch (transformation) {
    case lambertConformal1:
        p.parallel1 = p.parallel1 == p.latitude ? 0 : p.parallel1;
        return {};
    case lambertConformal2:
        return scaledCone(system, p);
    case mercator:
        return trueMercator(system, p);
    case polarStereographic:
        return polar(system, p);
    case transverseMercatorSouth:
        system.x = system.y = systems::Sense::negative;
        return {};
    case obliqueMercatorRosenmund:
        p.azimuth = p.gridAngle = 90;
        return {};
    default:
        return {};
    }
}

/// Sets what the method has; the first thing that it does not have and that says something is refused.
std::optional<Refusal> setParameters(Definition& system, Parameters const& p) {
    struct {
        Parameter parameter;
        double value, neutral;
        char const* what;
    } const numbers[] = {
        {Parameter::latitudeOfOrigin, p.latitude, 0, "latitude of origin"},
        {Parameter::longitudeOfOrigin, p.longitude, 0, "central meridian"},
        {Parameter::standardParallel1, p.parallel1, 0, "standard parallel"},
        {Parameter::standardParallel2, p.parallel2, 0, "second standard parallel"},
        {Parameter::scaleFactor, p.scale, 1, "scale factor"},
        {Parameter::falseEasting, p.east, 0, "false easting"},
        {Parameter::falseNorthing, p.north, 0, "false northing"},
        {Parameter::azimuth, p.azimuth, 0, "azimuth"},
        {Parameter::rectifiedAngle, p.gridAngle, 0, "grid angle"},
    };
    auto const& row = systems::rowOf(system.method);
    for (auto const& number : numbers) {
        bool const taken = std::ranges::any_of(row.parameters, [&](int code) {
            auto const* const each = systems::parameterByCode(code);
            return each && each->parameter == number.parameter;
        });
        if (taken)
            system.parameters[number.parameter] = number.value;
        else if (number.value != number.neutral)
            return Refusal{"the projection " + std::string(row.name) + " has no " + number.what};
    }
    return {};
}

} // namespace

bool isOblique(Transformation transformation) {
    return transformation == obliqueMercator || transformation == obliqueMercatorFromCentre;
}

bool hasParallels(Transformation transformation) {
    return transformation == lambertConformal2 || transformation == albers || transformation == equidistantConic;
}

std::optional<Refusal> setConversion(Definition& system, Transformation transformation, Parameters const& given) {
    auto const row = std::ranges::find(transformationTable, transformation, &TransformationRow::transformation);
    if (row == transformationTable.end())
        return Refusal{"coordinate transformation " + std::to_string(transformation) + " is not one of those known"};
    bool const onSphere = system.datum.ellipsoid.inverseFlattening == 0;
    if (char const* const doubt = doubtOnEllipsoid(transformation); doubt && !onSphere)
        return Refusal{doubt};
    Parameters p = given;
    system.method = row->method;
    if (auto refusal = adapt(system, transformation, p))
        return refusal;
    return setParameters(system, p);
}

double mercatorNorthing(double latitude, double radius, double flattening) {
    double const e = std::sqrt(flattening * (2 - flattening)), phi = latitude * formulas::degree;
    return radius * (std::asinh(std::tan(phi)) - e * std::atanh(e * std::sin(phi)));
}

} // namespace ZrProj::GeoTIFF
