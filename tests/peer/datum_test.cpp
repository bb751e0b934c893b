// Datum conversions beside PROJ, given the same numbers: within a tenth of a millimetre to WGS 84.
#include "support/faults.h"

#include <zrproj/zrproj.h>

#include <cmath>
#include <memory>
#include <numbers>
#include <sstream>

#include <proj.h>

using namespace ZrProj;

namespace {

constexpr double degree = std::numbers::pi / 180;

std::string definitionOf(DATUM2WGS84 const& r) {
    double const a = EllipsoidRadius(EllipsoidTypeWgs84), f = EllipsoidFlattening(EllipsoidTypeWgs84);
    std::ostringstream text;
    text.precision(17);
    if (r.Method == DatumMethodMolodensky)
        text << "+proj=molodensky +a=" << +r.MajorRadius << " +f=" << +r.Flattening << " +dx=" << +r.dX
             << " +dy=" << +r.dY << " +dz=" << +r.dZ << " +da=" << a - r.MajorRadius << " +df=" << f - r.Flattening;
    else
        text << "+proj=pipeline +step +proj=cart +a=" << +r.MajorRadius << " +f=" << +r.Flattening
             << " +step +proj=helmert +x=" << +r.dX << " +y=" << +r.dY << " +z=" << +r.dZ << " +rx=" << +r.rX
             << " +ry=" << +r.rY << " +rz=" << +r.rZ << " +s=" << +r.Scale
             << " +convention=position_vector +step +inv +proj=cart +ellps=WGS84";
    return text.str();
}

} // namespace

TEST(PeerDatum, AgreesWithProjToWgs84) {
    test::Faults faults("beside PROJ");
    int compared = 0;
    for (int type = 1; type < DatNumDatums(); ++type) {
        DATUM2WGS84 params{};
        if (!DatGetDatumParams(static_cast<DatumType>(type), &params))
            continue;
        std::unique_ptr<PJ, decltype(&proj_destroy)> const peer(proj_create(nullptr, definitionOf(params).c_str()),
                                                                proj_destroy);
        ASSERT_TRUE(peer) << type;
        DATUMXFORM request{};
        request.Source = static_cast<DatumType>(type);
        CDatumTransform ours(&request);
        for (double lat = -80; lat <= 80; lat += 16)
            for (double lon = -175; lon < 180; lon += 35) {
                DATUMPOINT point{lon, lat};
                ASSERT_TRUE(ours.Convert(&point, 1));
                auto const theirs = proj_trans(peer.get(), PJ_FWD,
                                               proj_coord((lon + params.PrimeMeridian) * degree, lat * degree, 0, 0));
                double const east = std::remainder(point.x - theirs.lp.lam / degree, 360) * std::cos(lat * degree);
                double const metres = std::hypot(east, point.y - theirs.lp.phi / degree) * degree * params.MajorRadius;
                if (!(metres < 1e-4))
                    faults.add(type, ": ", lon, ' ', lat, " is ", metres, " m off");
                ++compared;
            }
    }
    EXPECT_EQ(compared, 226 * 11 * 11);
}
