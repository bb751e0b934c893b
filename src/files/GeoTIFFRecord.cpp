// A transformation and its parameters as a projection record.
#include "files/GeoTIFFEquivalents.h"
#include "files/GeoTIFFSystem.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace ZrProj::GeoTIFF {
namespace {

constexpr double poleLatitude = 90;

/// Puts equivalents in the place of parameters that no record has; `method` is how the result is to be taken.
struct Normal {
    Method method;
    Parameters parameters;
};

Outcome<Normal> lambert(Method const& method, Parameters p, Ellipsoid const& ellipsoid) {
    bool const touches = method.transformation == lambertConformal1;
    double const parallel = touches ? p.latitude : p.parallel1;
    if (!touches && p.parallel1 != p.parallel2)
        return Normal{method, p};
    if (!(std::fabs(parallel) > 0.01 && std::fabs(parallel) < 89.9) || !(p.scale > 0.01 && p.scale < 100))
        return Refusal{"a cone that touches the equator or a pole is no cone"};
    ConeParallels const cone = coneParallels(parallel, p.scale, ellipsoid.flattening);
    p.parallel1 = cone.south, p.parallel2 = cone.north, p.scale = cone.scale;
    Normal result{method, p};
    result.method.scale = ScaleFactor::Folded;
    return result;
}

Outcome<Normal> trueMercator(Method const& method, Parameters p, Ellipsoid const& ellipsoid) {
    if (p.parallel1 != 0 && p.scale != 1)
        return Refusal{"a parallel of true scale and a scale factor contradict each other"};
    if (p.parallel1 != 0)
        p.scale = mercatorScale(p.parallel1, ellipsoid.flattening);
    return Normal{method, p};
}

/// The latitude is the pole, or the parallel of true scale of the pole's map.
Outcome<Normal> polar(Method const& method, Parameters p, Ellipsoid const& ellipsoid) {
    if (std::fabs(p.latitude) == poleLatitude)
        return Normal{method, p};
    if (p.scale != 1 || !(std::fabs(p.latitude) > 0 && std::fabs(p.latitude) < poleLatitude))
        return Refusal{"a parallel of true scale and a scale factor contradict each other"};
    p.scale = polarScale(p.latitude, ellipsoid.flattening);
    p.latitude = std::copysign(poleLatitude, p.latitude);
    return Normal{method, p};
}

Outcome<Normal> normal(Method const& method, Parameters const& p, Ellipsoid const& ellipsoid) {
    if (char const* const doubt = doubtOnEllipsoid(method.transformation); doubt && ellipsoid.flattening != 0)
        return Refusal{doubt};
    switch (method.transformation) {
    case lambertConformal1:
    case lambertConformal2:
        return lambert(method, p, ellipsoid);
    case mercator:
        return trueMercator(method, p, ellipsoid);
    case polarStereographic:
        return polar(method, p, ellipsoid);
    case obliqueMercator:
    case obliqueMercatorFromCentre:
        if (p.azimuth != p.gridAngle)
            return Refusal{"the records turn the grid of an oblique Mercator by its azimuth, not by another angle"};
        return Normal{method, p};
    default:
        return Normal{method, p};
    }
}

/// What a record of the method's type cannot hold of the parameters; "" when it can hold all.
std::string faultOf(Method const& method, Parameters const& p) {
    if (method.latitude == ProjParamNone && p.latitude != 0)
        return "the projection has no latitude of origin other than 0 in the records";
    if (method.longitude == ProjParamNone && p.longitude != 0)
        return "the projection has no central meridian other than 0 in the records";
    if (method.scale == ScaleFactor::MustBeOne && p.scale != 1)
        return "the projection has no scale factor in the records";
    return p.scale > 0 ? "" : "the scale factor is not above 0";
}

void setOblique(PROJDATA& record, Method const& method, Parameters const& p) {
    record.bUseAlpha = true;
    record.bRotate = true;
    record.bUOffset = method.transformation == obliqueMercatorFromCentre;
    record.Alpha = p.azimuth;
}

void setAngles(PROJDATA& record, Method const& method, Parameters const& p) {
    if (method.latitude != ProjParamNone)
        ProjSetParam(&record, method.latitude, &p.latitude);
    if (method.longitude != ProjParamNone)
        ProjSetParam(&record, method.longitude, &p.longitude);
    if (method.parallels > 0)
        record.Lat1 = p.parallel1;
    if (method.parallels > 1)
        record.Lat2 = p.parallel2;
}

Outcome<PROJDATA> checked(PROJDATA const& record) {
    std::array<char, 512> message = {};
    if (ProjCheckParams(&record, message.data(), false) != 0)
        return Refusal{message.data()};
    return record;
}

} // namespace

Outcome<PROJDATA> recordOf(Transformation transformation, Parameters const& given, Ellipsoid const& ellipsoid) {
    auto const row = std::ranges::find(methodTable, transformation, &Method::transformation);
    if (row == methodTable.end())
        return Refusal{"coordinate transformation " + std::to_string(transformation) + " has no projection type"};
    auto const normalised = normal(*row, given, ellipsoid);
    if (!normalised)
        return normalised.refusal();
    auto const& [method, p] = *normalised;
    std::string const fault = faultOf(method, p);
    if (!fault.empty())
        return Refusal{fault};
    PROJDATA record = {};
    record.Type = method.type;
    setAngles(record, method, p);
    bool const folded = method.scale == ScaleFactor::Folded;
    record.Scale = folded ? p.scale : 1;
    record.xOrg = p.east / record.Scale;
    record.yOrg = p.north / record.Scale;
    record.K0 = method.scale == ScaleFactor::K0 ? p.scale : 0;
    if (record.Type == ProjTypeHotineObliqueMercator)
        setOblique(record, method, p);
    record.Ellipsoid = ellipsoid.type;
    record.MajorRadius = ellipsoid.radius;
    record.Flattening = ellipsoid.flattening;
    return checked(record);
}

} // namespace ZrProj::GeoTIFF
