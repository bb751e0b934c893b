// The way back from geocentric coordinates without a loop, against the loop.
#include "support/datum.h"
#include "support/levels.h"

#include <algorithm>
#include <cmath>

using namespace ZrProj;

namespace {

using Real = long double;
constexpr Real pi = 3.141592653589793238462643383279502884L;

struct Place {
    Real lon, lat;
    int passes;
};

/// At most 99 passes from the geocentric latitude on, until the latitude stands still.
Place geodetic(Real X, Real Y, Real Z, Real a, Real f) {
    Real const e2 = (2 - f) * f, p = std::sqrt(X * X + Y * Y), r = std::sqrt(Z * Z + p * p);
    Real phi = std::acos(std::clamp(r / a, -1.0L, 1.0L)), change = 1;
    int passes = 0;
    while (passes < 99 && !(change < 1e-12L)) {
        Real const u = std::atan2(Z * ((1 - f) + e2 * a / r), p), s = std::sin(u), c = std::cos(u);
        Real const next = std::atan2(Z * (1 - f) + e2 * a * s * s * s, (1 - f) * (p - e2 * a * c * c * c));
        change = std::abs(next - phi);
        phi = next;
        ++passes;
    }
    return {std::atan2(Y, X) * 180 / pi, phi * 180 / pi, passes};
}

/// Shifts only, so that the geocentric coordinates are known.
Place expected(DATUM2WGS84 const& r, DATUMPOINT const& p) {
    Real const a = EllipsoidRadius(EllipsoidTypeWgs84), f = EllipsoidFlattening(EllipsoidTypeWgs84), e2 = (2 - f) * f;
    Real const lambda = static_cast<Real>(p.x) * pi / 180, phi = static_cast<Real>(p.y) * pi / 180;
    Real const N = a / std::sqrt(1 - e2 * std::sin(phi) * std::sin(phi));
    return geodetic(N * std::cos(phi) * std::cos(lambda) - static_cast<Real>(r.dX),
                    N * std::cos(phi) * std::sin(lambda) - static_cast<Real>(r.dY),
                    N * (1 - e2) * std::sin(phi) - static_cast<Real>(r.dZ), static_cast<Real>(r.MajorRadius),
                    static_cast<Real>(r.Flattening));
}

DATUM2WGS84 record(double flattening, double dX, double dY, double dZ) {
    DATUM2WGS84 result{};
    result.Method = DatumMethodBursaWolf;
    result.bFromWGS84 = true;
    result.MajorRadius = 6378137;
    result.Flattening = flattening;
    result.dX = dX;
    result.dY = dY;
    result.dZ = dZ;
    return result;
}

} // namespace

TEST(BursaWolf, NeedsNoLoop) {
    DATUM2WGS84 const records[] = {record(1 / 298.3, 24, -123, -94), record(0, 0, 0, 0),
                                   record(0.5, 500, 0, 0),           record(1 / 150.0, 3e6, 2e6, -1e6),
                                   record(0.1, -5e7, 1e6, 4e7),      record(0.01, 0, 0, 6.2e6)};
    double const lats[] = {-90, -89.999, -60, -30, -1e-9, 0, 20, 45, 70, 89, 90};
    test::forEachLevel([&](levels::Level) {
        for (auto const& r : records) {
            auto request = test::datumRequest(DatumTypeUserDefined, DatumTypeUserDefined);
            request.SourceParams = r;
            test::DatumHandle const handle(request);
            for (double const lat : lats)
                for (double lon = -170; lon < 180; lon += 50) {
                    auto const want = expected(r, {lon, lat});
                    auto const got = handle(lon, lat);
                    EXPECT_LE(want.passes, 2);
                    EXPECT_NEAR(got.y, static_cast<double>(want.lat), 1e-12) << lon << ' ' << lat;
                    bool const isOnAxis = std::abs(lat) == 90 && r.dX == 0 && r.dY == 0;
                    double const wantLon = isOnAxis ? lon : static_cast<double>(want.lon);
                    EXPECT_NEAR(std::remainder(got.x - wantLon, 360), 0, 1e-12) << lon << ' ' << lat;
                }
        }
    });
}
