#include "probe.h"
#include "support/levels.h"

#include <array>
#include <cmath>

using namespace ZrProj;
using namespace ZrProj::formulas;

namespace {

using Wide = long double;
constexpr Wide halfPi = 1.57079632679489661923132169163975144L;

// The definitions of Snyder (1987), pp. 15-17, in extended precision.
Wide conformal(Wide e2, Wide phi) {
    Wide const e = std::sqrt(e2);
    return std::atan(std::sinh(std::asinh(std::tan(phi)) - e * std::atanh(e * std::sin(phi))));
}

Wide authalicQ(Wide e2, Wide sine) {
    Wide const e = std::sqrt(e2);
    return (1 - e2) * (sine / (1 - e2 * sine * sine) + std::atanh(e * sine) / e);
}

Wide authalic(Wide e2, Wide phi) {
    return std::asin(authalicQ(e2, std::sin(phi)) / authalicQ(e2, 1));
}

Wide meridianDistance(Wide e2, Wide phi) { // Gauss-Legendre, three points a panel, its error below 1e-18
    constexpr int panels = 200;
    auto const slope = [e2](Wide t) {
        Wide const w = 1 - e2 * std::sin(t) * std::sin(t);
        return (1 - e2) / (w * std::sqrt(w));
    };
    Wide const h = phi / panels, reach = h / 2 * std::sqrt(0.6L);
    Wide sum = 0;
    for (int i = 0; i < panels; ++i) {
        Wide const middle = h * (i + 0.5L);
        sum += 8 * slope(middle) + 5 * (slope(middle - reach) + slope(middle + reach));
    }
    return sum * h / 18;
}

Wide rectifying(Wide e2, Wide phi) {
    return halfPi * meridianDistance(e2, phi) / meridianDistance(e2, halfPi);
}

struct Kind {
    AuxiliaryLatitudeProbe::Function AuxiliaryLatitudeProbe::*function;
    Wide (*exact)(Wide e2, Wide phi);
};
Kind const kinds[] = {{&AuxiliaryLatitudeProbe::conformal, conformal},
                      {&AuxiliaryLatitudeProbe::authalic, authalic},
                      {&AuxiliaryLatitudeProbe::rectifying, rectifying}};

} // namespace

TEST(AuxiliaryLatitude, AgreesWithItsDefinition) {
    std::array<double, 64> phi, exact, xi, back, unused;
    constexpr int count = 64;
    for (double const flattening : {1 / 298.257223563, 1 / 150.0, 0.1, 0.2}) {
        Wide const e2 = static_cast<Wide>(flattening) * (2 - static_cast<Wide>(flattening));
        for (auto const& kind : kinds) {
            for (std::size_t i = 0; i < count; ++i) {
                phi[i] = 1.55 * (static_cast<double>(i) / 31.5 - 1);
                exact[i] = static_cast<double>(kind.exact(e2, static_cast<Wide>(phi[i])));
            }
            test::forEachLevel([&](levels::Level level) {
                auto const function = levels::operationsAt<Probe>(level).auxiliaryLatitude.*kind.function;
                EXPECT_TRUE(function(flattening, phi.data(), xi.data(), unused.data(), count));
                EXPECT_TRUE(function(flattening, exact.data(), unused.data(), back.data(), count));
                for (std::size_t i = 0; i < count; ++i) {
                    EXPECT_NEAR(xi[i], exact[i], 6e-16) << flattening << " kind " << &kind - kinds;
                    EXPECT_NEAR(back[i], phi[i], 6e-16) << flattening << " kind " << &kind - kinds;
                }
            });
        }
    }
}

TEST(AuxiliaryLatitude, KnowsItsLimits) {
    std::array<double, 8> const angle{-1.5, -1, -0.5, 0, 0.3, 0.6, 0.9, 1.2};
    std::array<double, 8> xi, phi;
    test::forEachLevel([&](levels::Level level) {
        auto const& probe = levels::operationsAt<Probe>(level).auxiliaryLatitude;
        EXPECT_FALSE(probe.conformal(0.6, angle.data(), xi.data(), phi.data(), 8));
        EXPECT_TRUE(probe.conformal(0, angle.data(), xi.data(), phi.data(), 8));
        EXPECT_EQ(xi, angle);
        EXPECT_EQ(phi, angle);
        EXPECT_NEAR(probe.rectifyingRadius(1 / 298.257223563) * 6378137 * static_cast<double>(halfPi), 10001965.7293127,
                    1e-7); // the quadrant of WGS 84
    });
}
