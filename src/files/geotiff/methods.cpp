// Source    Snyder (1987), Map Projections: A Working Manual, pp. 44, 107 and 161, for equivalents; equation numbers are
//           his.
// Accuracy  1e-14 in the scale factors, 1e-12 degrees in the parallels.
#include "files/geotiff/methods.h"

#include "proj/projection_table.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace ZrProj::GeoTIFF {
namespace {

constexpr double degree = std::numbers::pi / 180;

/// The radius of a parallel over that of the equator's circle, (14-15), and the logarithm of t of (15-9).
struct Meridian {
    double e;

    explicit Meridian(double flattening) : e(std::sqrt(flattening * (2 - flattening))) {}

    double m(double phi) const {
        double const s = e * std::sin(phi);
        return std::cos(phi) / std::sqrt((1 - s) * (1 + s));
    }
    double logT(double phi) const { return -std::asinh(std::tan(phi)) + e * std::atanh(e * std::sin(phi)); }
};

/// The logarithm of how much larger the scale is than along the touching parallel.
struct Cone {
    Meridian meridian;
    double phi0;

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

/// The projection that a transformation is; null where there is none.
ProjectionRow const* rowOf(Transformation transformation) {
    auto const row = std::ranges::find_if(projectionTable, [transformation](ProjectionRow const& each) {
        return transformation != Transformation{} &&
               std::ranges::find(each.geotiff, transformation, &Method::transformation) != each.geotiff.end();
    });
    return row == projectionTable.end() ? nullptr : &*row;
}

constexpr double poleLatitude = 90;

/// Puts equivalents in the place of parameters that no record has; `method` is how the result is to be taken.
struct Normal {
    Method method;
    Parameters parameters;
};

Expected<Normal> lambert(Method const& method, Parameters p, Ellipsoid const& ellipsoid) {
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

Expected<Normal> trueMercator(Method const& method, Parameters p, Ellipsoid const& ellipsoid) {
    if (p.parallel1 != 0 && p.scale != 1)
        return Refusal{"a parallel of true scale and a scale factor contradict each other"};
    if (p.parallel1 != 0)
        p.scale = mercatorScale(p.parallel1, ellipsoid.flattening);
    return Normal{method, p};
}

/// The latitude is the pole, or the parallel of true scale of the pole's map.
Expected<Normal> polar(Method const& method, Parameters p, Ellipsoid const& ellipsoid) {
    if (std::fabs(p.latitude) == poleLatitude)
        return Normal{method, p};
    if (p.scale != 1 || !(std::fabs(p.latitude) > 0 && std::fabs(p.latitude) < poleLatitude))
        return Refusal{"a parallel of true scale and a scale factor contradict each other"};
    p.scale = polarScale(p.latitude, ellipsoid.flattening);
    p.latitude = std::copysign(poleLatitude, p.latitude);
    return Normal{method, p};
}

Expected<Normal> normal(Method const& method, Parameters const& p, Ellipsoid const& ellipsoid) {
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

Expected<PROJDATA> checked(PROJDATA const& record) {
    std::array<char, 512> message = {};
    if (ProjCheckParams(&record, message.data(), false) != 0)
        return Refusal{message.data()};
    return record;
}

} // namespace

double mercatorScale(double parallel, double flattening) {
    return Meridian(flattening).m(parallel * degree);
}

double polarScale(double parallel, double flattening) {
    Meridian const meridian(flattening);
    double const phi = std::fabs(parallel) * degree, e = meridian.e;
    // m / t by (21-34) over 2 / sqrt((1 + e)^(1 + e) (1 - e)^(1 - e)) by (21-33)
    double const pole = std::exp(((1 + e) * std::log1p(e) + (1 - e) * std::log1p(-e)) / 2);
    return meridian.m(phi) / std::exp(meridian.logT(phi)) * pole / 2;
}

ConeParallels coneParallels(double parallel, double scale, double flattening) {
    constexpr double apart = 2e-6; // of the scale, where two parallels are some 0.2 degrees apart
    Cone const cone{Meridian(flattening), parallel * degree};
    bool const cuts = -std::log(scale) > apart;
    double const wanted = cuts ? -std::log(scale) : 1.5e-4;
    double const quarter = std::numbers::pi / 2;
    return {cone.parallelOf(wanted, -quarter) / degree, cone.parallelOf(wanted, quarter) / degree,
            cuts ? 1 : scale * std::exp(wanted)};
}

double mercatorNorthing(double latitude, double radius, double flattening) {
    return -radius * Meridian(flattening).logT(latitude * degree);
}

Expected<PROJDATA> recordOf(Transformation transformation, Parameters const& given, Ellipsoid const& ellipsoid) {
    ProjectionRow const* const row = rowOf(transformation);
    if (!row)
        return Refusal{"coordinate transformation " + std::to_string(transformation) + " has no projection type"};
    auto const normalised =
        normal(*std::ranges::find(row->geotiff, transformation, &Method::transformation), given, ellipsoid);
    if (!normalised)
        return normalised.refusal();
    auto const& [method, p] = *normalised;
    std::string const fault = faultOf(method, p);
    if (!fault.empty())
        return Refusal{fault};
    PROJDATA record = {};
    record.Type = row->type;
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
