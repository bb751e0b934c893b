// GeographicLib converts one point a call, in degrees.
#include "contender.h"

#include <GeographicLib/AlbersEqualArea.hpp>
#include <GeographicLib/AzimuthalEquidistant.hpp>
#include <GeographicLib/CassiniSoldner.hpp>
#include <GeographicLib/Geodesic.hpp>
#include <GeographicLib/Gnomonic.hpp>
#include <GeographicLib/LambertConformalConic.hpp>
#include <GeographicLib/PolarStereographic.hpp>
#include <GeographicLib/TransverseMercator.hpp>

namespace ZrProj::bench {
namespace {

/// forward(lat, lon, x, y) and inverse(x, y, lat, lon) as GeographicLib has them, run over arrays.
template <class Forward, class Inverse> std::vector<Contender> pointByPoint(Forward forward, Inverse inverse) {
    auto const forwardAll = [=](PROJPOINT* points, int count) {
        for (int i = 0; i < count; ++i) {
            PROJPOINT const from = points[i];
            forward(from.y, from.x, points[i].x, points[i].y);
        }
    };
    auto const inverseAll = [=](PROJPOINT* points, int count) {
        for (int i = 0; i < count; ++i) {
            PROJPOINT const from = points[i];
            inverse(from.x, from.y, points[i].y, points[i].x);
        }
    };
    return {{.name = "GeographicLib", .forward = forwardAll, .inverse = inverseAll}};
}

/// A projection that is asked with the central meridian in front.
template <class Projection> std::vector<Contender> aboutMeridian(Projection const& projection, double lon0) {
    return pointByPoint(
        [=](double lat, double lon, double& x, double& y) { projection.Forward(lon0, lat, lon, x, y); },
        [=](double x, double y, double& lat, double& lon) { projection.Reverse(lon0, x, y, lat, lon); });
}

/// A projection that is asked with the centre in front.
template <class Projection> std::vector<Contender> aboutCentre(Projection const& projection, double lat0, double lon0) {
    return pointByPoint(
        [=](double lat, double lon, double& x, double& y) { projection.Forward(lat0, lon0, lat, lon, x, y); },
        [=](double x, double y, double& lat, double& lon) { projection.Reverse(lat0, lon0, x, y, lat, lon); });
}

std::vector<Contender> polarStereographic(double a, double f, double k0) {
    GeographicLib::PolarStereographic const projection(a, f, k0);
    return pointByPoint(
        [=](double lat, double lon, double& x, double& y) { projection.Forward(true, lat, lon, x, y); },
        [=](double x, double y, double& lat, double& lon) { projection.Reverse(true, x, y, lat, lon); });
}

std::vector<Contender> cassini(GeographicLib::Geodesic const& earth, double lat0, double lon0) {
    GeographicLib::CassiniSoldner const projection(lat0, lon0, earth);
    return pointByPoint([=](double lat, double lon, double& x, double& y) { projection.Forward(lat, lon, x, y); },
                        [=](double x, double y, double& lat, double& lon) { projection.Reverse(x, y, lat, lon); });
}

} // namespace

std::vector<Contender> geographicLibContenders(Case const& definition) {
    PROJDATA const& p = definition.record;
    double const a = EllipsoidRadius(p.Ellipsoid), f = EllipsoidFlattening(p.Ellipsoid);
    double const k0 = p.K0 == 0 ? 1 : p.K0;
    switch (p.Type) {
    case ProjTypeUniversalTransverseMercator:
    case ProjTypeTransverseMercator:
    case ProjTypeGaussKruger:
        return aboutMeridian(GeographicLib::TransverseMercator(a, f, k0), p.Lon0);
    case ProjTypeLambertConformalConic:
        return aboutMeridian(GeographicLib::LambertConformalConic(a, f, p.Lat1, p.Lat2, k0), p.Lon0);
    case ProjTypeAlbersEqualAreaConic:
        return aboutMeridian(GeographicLib::AlbersEqualArea(a, f, p.Lat1, p.Lat2, k0), p.Lon0);
    case ProjTypeStereographic:
        return p.Lat0 == 90 ? polarStereographic(a, f, k0) : std::vector<Contender>{};
    case ProjTypeCassini:
        return cassini(GeographicLib::Geodesic(a, f), p.Lat0, p.Lon0);
    case ProjTypeGnomonic:
        return aboutCentre(GeographicLib::Gnomonic(GeographicLib::Geodesic(a, f)), p.Lat1, p.Lon0);
    case ProjTypeAzimuthalEquidistant:
        return aboutCentre(GeographicLib::AzimuthalEquidistant(GeographicLib::Geodesic(a, f)), p.Lat1, p.Lon0);
    default:
        return {};
    }
}

} // namespace ZrProj::bench
