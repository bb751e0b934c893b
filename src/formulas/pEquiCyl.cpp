// Equidistant cylindrical: true along the meridians and one parallel; the plate carree where that is the equator.
//
// Source    EPSG guidance note 7-2, method 1028; Snyder (1987), pp. 90-91, for the sphere.
// Accuracy  1e-8 m forward, 1e-13 degrees back.
// Domain    the globe. A standard parallel at a pole has no length: no map.
//
// phi, lambda   latitude, longitude          phi1   standard parallel
#include "formulas/cylinder.h"
#include "formulas/driver.h"
#include "formulas/edges.h"
#include "formulas/formula_set.h"
#include "formulas/meridian.h"

namespace ZrProj::formulas::ZRPROJ_LEVEL {
namespace {

struct EquidistantCylindrical {
    Meridian meridian;
    double a;
    Cylinder cylinder;

    explicit EquidistantCylindrical(PROJDATA const& work)
        : meridian(work.Flattening),
          a(work.MajorRadius), cylinder{work.Lon0, a * meridian.parallel(work.Lat1), a * meridian.quadrant(), 0} {}

    template <class R> Xy<R> forward(LonLat<R> p) const {
        return cylinder.toMap(p.lon, a * meridian.distance(p.lat, sinCos(p.lat)));
    }

    template <class R> LonLat<R> inverse(Xy<R> p) const {
        auto const at = cylinder.fromMap(p);
        return {at.lon, select(at.outside, R(unplottable), meridian.latitude(at.north * (1 / a)))};
    }
};

bool hasMap(PROJDATA const& record, double quarterTurn) {
    return record.Flattening <= AuxiliaryLatitude::flattest && std::fabs(record.Lat1) < quarterTurn;
}

void prepare(Converter& converter, PROJDATA const& work) noexcept {
    if (hasMap(work, halfPi))
        hold(converter, EquidistantCylindrical(work));
    else
        hold(converter, Nowhere{});
}

bool inProjection(PROJDATA const& record, PROJPOINT const&) noexcept {
    return hasMap(record, 90);
}

} // namespace

constinit Formula const equidistantCylindrical{prepare, inProjection, splitOppositeToLon0, edgesOppositeToLon0};

} // namespace ZrProj::formulas::ZRPROJ_LEVEL
