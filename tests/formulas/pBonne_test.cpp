#include "support/levels.h"
#include "support/registry.h"

using namespace ZrProj;
using test::isMarked;
using test::Projection;

TEST(Bonne, GoesOverIntoSinusoidal) {
    test::forEachLevel([](levels::Level) {
        for (auto const* words :
             {"type=bonne ellipsoid=wgs-84 lat1=-1e-14", "type=bonne ellipsoid=wgs-84 lat1=1e-300"}) {
            Projection cone(words), straight("type=sinusoidal ellipsoid=wgs-84");
            for (auto const& point : {PROJPOINT{179, 20}, {-179, -70}, {-60, 45}}) {
                auto const map = cone.forward(point), expected = straight.forward(point);
                EXPECT_NEAR(map.x, expected.x, 1e-7);
                EXPECT_NEAR(map.y, expected.y, 1e-7);
                EXPECT_NEAR(cone.inverse(map).x, point.x, 1e-11);
            }
        }
    });
}

TEST(Bonne, EndsAtTheOppositeMeridian) {
    test::forEachLevel([](levels::Level) {
        Projection projection("type=bonne ellipsoid=wgs-84 lat1=35 lon0=100");
        auto const edge = projection.forward({280, -40}), inner = projection.forward({279, -40});
        EXPECT_NEAR(projection.inverse(edge).x, 280, 1e-11);
        PROJPOINT const outer{edge.x + 1e-6 * (edge.x - inner.x), edge.y + 1e-6 * (edge.y - inner.y)};
        EXPECT_TRUE(isMarked(projection.inverse(outer)));
    });
}
