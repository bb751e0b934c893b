#include "support/georef_cases.h"
#include "support/levels.h"

#include <zrproj/registration.h>

#include <gtest/gtest.h>

#include <cfloat>
#include <limits>
#include <optional>

using namespace ZrProj;
using namespace ZrProj::test;

namespace {

GEOREFPOINT affine(GEOREFPOINT p) {
    return {4.65e5 + 2.54 * p.x + 0.044 * p.y, 5.427e6 + 0.044 * p.x - 2.54 * p.y};
}

/// Controls whose targets jump about: nothing smooth fits them.
ControlPoints rough(int count) {
    auto controls = scattered(count, 40000, affine);
    for (std::size_t i = 0; i < controls.target.size(); ++i)
        controls.target[i].x += i % 3 == 0 ? 500 : -200;
    return controls;
}

bool calibrate(CImageRegistration& registration, int method, ControlPoints const& controls) {
    return registration.Calibrate(static_cast<WarpingMethod>(method), controls.source.data(), controls.target.data(),
                                  static_cast<int>(controls.source.size()));
}

template <class Check> void forEachWarp(Check const& check) {
    for (int method = 0; method < WarpingMethodNone; ++method) {
        SCOPED_TRACE(RefMethodName(static_cast<TransformMethod>(method + TransformMethodThinPlateSpline)));
        check(method);
    }
}

} // namespace

TEST(Registration, MeetsItsControls) {
    for (int const count : {3, 4, 70, 300}) {
        auto const controls = rough(count);
        forEachWarp([&](int method) {
            forEachLevel([&](levels::Level) {
                CImageRegistration registration;
                ASSERT_TRUE(calibrate(registration, method, controls));
                EXPECT_EQ(registration.Method(), method);
                auto mapped = controls.source;
                ASSERT_TRUE(registration.Transform(mapped.data(), count));
                for (std::size_t i = 0; i < mapped.size(); ++i)
                    EXPECT_LE(distance(mapped[i], controls.target[i]), 1e-7) << i;
            });
        });
    }
}

TEST(Registration, ReproducesAffineMapsEverywhere) {
    auto const controls = scattered(60, 40000, affine);
    forEachWarp([&](int method) {
        CImageRegistration registration;
        ASSERT_TRUE(calibrate(registration, method, controls));
        for (GEOREFPOINT point : {GEOREFPOINT{0, 0}, {20000.5, 123.4}, {-40000, 90000}, {1e6, -1e6}}) {
            auto const expected = affine(point);
            ASSERT_TRUE(registration.Transform(&point, 1));
            EXPECT_LE(distance(point, expected), 1e-6);
        }
    });
}

TEST(Registration, RefusesWhatItCannotFit) {
    forEachWarp([&](int method) {
        CImageRegistration registration;
        EXPECT_EQ(registration.Method(), WarpingMethodNone);
        GEOREFPOINT point{1, 2};
        EXPECT_FALSE(registration.Transform(&point, 1));
        EXPECT_EQ(point.x, 1);
        EXPECT_FALSE(calibrate(registration, method, rough(2)));
        auto controls = rough(30);
        controls.source[29] = controls.source[3];
        EXPECT_FALSE(calibrate(registration, method, controls));
        controls = rough(30);
        controls.source[12].x = HUGE_VAL;
        EXPECT_FALSE(calibrate(registration, method, controls));
        controls = rough(30);
        for (auto& p : controls.source)
            p.y = 7 - p.x / 3;
        EXPECT_FALSE(calibrate(registration, method, controls));
        EXPECT_FALSE(registration.Calibrate(static_cast<WarpingMethod>(method), nullptr, controls.target.data(), 30));
        ASSERT_TRUE(calibrate(registration, method, rough(30)));
        EXPECT_FALSE(registration.Transform(nullptr, 1));
        EXPECT_FALSE(registration.Transform(&point, 0));
        EXPECT_FALSE(calibrate(registration, method, rough(1))); // and the earlier fit is gone
        EXPECT_FALSE(registration.Transform(&point, 1));
    });
    CImageRegistration registration;
    EXPECT_FALSE(calibrate(registration, -1, rough(30)));
    EXPECT_FALSE(calibrate(registration, WarpingMethodNone, rough(30)));
}

// Two controls half a pixel apart in an image of 40,000 either are met, or the fit says that it cannot.
TEST(Registration, MeetsNeighboursOrFails) {
    for (double const apart : {1.0, 0.5, 1e-3, 1e-7, 1e-11}) {
        auto controls = rough(30);
        auto const& beside = controls.target[4];
        controls.add({controls.source[4].x + apart, controls.source[4].y}, {beside.x + 5, beside.y - 3});
        forEachWarp([&](int method) {
            CImageRegistration registration;
            bool const fits = calibrate(registration, method, controls);
            EXPECT_TRUE(fits || apart < 0.1) << apart;
            if (!fits)
                return;
            auto mapped = controls.source;
            registration.Transform(mapped.data(), static_cast<int>(mapped.size()));
            for (std::size_t i = 0; i < mapped.size(); ++i)
                EXPECT_LE(distance(mapped[i], controls.target[i]), 0.1) << apart; // a millionth of the map
        });
    }
}

// The warp without equations takes many controls at once, and compares them for places without comparing all pairs.
TEST(Registration, WeighsManyControlsByDistance) {
    auto controls = rough(100000);
    CImageRegistration registration;
    ASSERT_TRUE(calibrate(registration, WarpingMethodInverseDistanceSquared, controls));
    GEOREFPOINT point = controls.source[77];
    ASSERT_TRUE(registration.Transform(&point, 1));
    EXPECT_LE(distance(point, controls.target[77]), 1e-7);
    controls.source[99999] = controls.source[5];
    EXPECT_FALSE(calibrate(registration, WarpingMethodInverseDistanceSquared, controls));
}

TEST(Registration, SharesAFitAmongCopies) {
    std::optional<CImageRegistration> first{std::in_place};
    ASSERT_TRUE(calibrate(*first, 0, rough(10)));
    CImageRegistration const copy = *first;
    CImageRegistration assigned;
    assigned = copy;
    GEOREFPOINT point{5, 6}, expected{5, 6};
    first->Transform(&expected, 1);
    EXPECT_FALSE(calibrate(*first, 0, rough(1)));
    first.reset();
    ASSERT_TRUE(assigned.Transform(&point, 1));
    EXPECT_EQ(distance(point, expected), 0);
    EXPECT_EQ(copy.Method(), WarpingMethodThinPlateSpline);
}
