#include "georef/fit.h"

#include "georef/method_table.h"
#include "support/georef_cases.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace ZrProj;
using namespace ZrProj::test;

namespace {

GEOREFPOINT bent(GEOREFPOINT p) {
    return {5e5 + 2.5 * p.x + 1e-5 * p.x * p.y - 1e-9 * p.x * p.x * p.x, 5.4e6 - 2.5 * p.y + 2e-5 * p.y * p.y};
}

std::string reasonFor(TransformMethod method, std::vector<GEOREFPOINT> const& source,
                      std::vector<GEOREFPOINT> const& target) {
    Controls const controls{source, target};
    EXPECT_FALSE(fitGeoref(method, controls).has_value());
    return whyNoFit(method, controls);
}

} // namespace

TEST(GeorefFit, MapsAsTheSystemDoes) {
    auto controls = scattered(14, 40000, bent);
    for (int i = 0; i < TransformMethodNone; ++i) {
        auto const method = static_cast<TransformMethod>(i);
        GEOREF const record = controls.record(method);
        if (method == TransformMethodPrecalculatedAffineCoefficients)
            continue;
        SCOPED_TRACE(georefMethodRow(method).key);
        auto const map = fitGeoref(method, {{record.pSource, 14}, {record.pTarget, 14}});
        ASSERT_TRUE(map.has_value());
        CGeorefTransform system(&record);
        for (GEOREFPOINT point : {GEOREFPOINT{0, 0}, {40000, -20000}, {HUGE_VAL, 3}}) {
            GEOREFPOINT const mapped = (*map)(point);
            system.Forward(&point, 1);
            EXPECT_EQ(mapped.x, point.x);
            EXPECT_EQ(mapped.y, point.y);
        }
    }
}

TEST(GeorefFit, WritesItsCoefficientsOut) {
    auto controls = scattered(14, 40000, bent);
    for (auto const method :
         {TransformMethodHelmert, TransformMethodAffinePolynomial, TransformMethod1stOrderPolynomial,
          TransformMethod2ndOrderPolynomial, TransformMethod3rdOrderPolynomial}) {
        SCOPED_TRACE(georefMethodRow(method).key);
        GEOREF const record = controls.record(method);
        auto const map = fitGeoref(method, {{record.pSource, 14}, {record.pTarget, 14}});
        auto const coefficients = coefficientsOf(*map);
        EXPECT_EQ(coefficients.size(), std::max<std::size_t>(georefMethodRow(method).unknowns / 2, 3));
        for (GEOREFPOINT const point : {GEOREFPOINT{0, 0}, {40000, 0}, {12345, 34567}}) {
            double const x = point.x, y = point.y;
            double const terms[] = {1, x, y, x * x, x * y, y * y, x * x * x, x * x * y, x * y * y, y * y * y};
            GEOREFPOINT sum{};
            for (std::size_t i = 0; i < coefficients.size(); ++i) {
                double const term = std::string(coefficients[i].term) == "xy" ? x * y : terms[i];
                sum = {sum.x + coefficients[i].x * term, sum.y + coefficients[i].y * term};
            }
            GEOREFPOINT const mapped = (*map)(point);
            EXPECT_LE(std::hypot(sum.x - mapped.x, sum.y - mapped.y), 1e-6);
        }
    }
    GEOREF const record = controls.record(TransformMethodThinPlateSpline);
    EXPECT_TRUE(coefficientsOf(*fitGeoref(TransformMethodThinPlateSpline, {{record.pSource, 14}, {record.pTarget, 14}}))
                    .empty());
}

TEST(GeorefFit, TellsWhyThereIsNone) {
    std::vector<GEOREFPOINT> const target{{0, 0}, {1, 0}, {0, 1}, {5, 5}};
    EXPECT_EQ(reasonFor(TransformMethod2ndOrderPolynomial, target, target),
              "second needs 6 control points, there are 4");
    EXPECT_EQ(reasonFor(TransformMethodThinPlateSpline, {{0, 0}, {3, 1}, {0, 1}, {3, 1}}, target),
              "control points 2 and 4 lie at one source point");
    EXPECT_EQ(reasonFor(TransformMethodHelmert, {{7, 7}, {7, 7}}, {{0, 0}, {1, 1}}),
              "control points 1 and 2 lie at one source point");
    EXPECT_EQ(reasonFor(TransformMethodAffinePolynomial, {{0, 0}, {1, 1}, {2, 2}, {3, 3}}, target),
              "the control points are all on one line");
    EXPECT_EQ(reasonFor(TransformMethod1stOrderPolynomial, {{0, 0}, {1, 0}, {2, 0}, {0, 5}}, target),
              "the control points do not determine a map by bilinear: they lie on one hyperbola with axes along x and "
              "y, or on two lines along these");
    EXPECT_EQ(reasonFor(TransformMethodAffinePolynomial, target, {{-1.7e308, 0}, {1.7e308, 0}, {0, 1}, {5, 5}}),
              "the control points do not determine a map by affine: their target coordinates are too large");
}
