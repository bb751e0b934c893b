#include "cli/georef/analysis.h"

#include "tests/cli/support.h"

#include <gtest/gtest.h>

#include <cfloat>
#include <cmath>

namespace ZrProj::Command {
namespace {

/// Eight points on a sheet of 10,000 pixels, put where X = 500000 + 20 x + y, Y = 5000000 + x - 20 y takes them.
std::vector<ControlPoint> sheet() {
    std::vector<ControlPoint> controls;
    for (auto const [x, y] : {GEOREFPOINT{1000, 2000},
                              {5000, 2100},
                              {9000, 1900},
                              {1100, 6000},
                              {6700, 5900},
                              {1050, 10000},
                              {4000, 9900},
                              {8800, 9800}})
        controls.push_back({{x, y}, {500000 + 20 * x + y, 5000000 + x - 20 * y}, {}, controls.size() + 1});
    return controls;
}

std::vector<ControlPoint> sheetWithAWrongPoint() {
    auto controls = sheet();
    controls[4].target.x += 100;
    return controls;
}

TEST(Analysis, TellsThePointThatDoesNotBelong) {
    for (char const* method : {"affine", "bilinear", "thin-plate", "inverse-distance"}) {
        SCOPED_TRACE(method);
        auto const found = analyse(findGeorefMethod(method), sheetWithAWrongPoint());
        EXPECT_EQ(found.outliers, std::vector<std::size_t>{4});
        EXPECT_EQ(found.worst, 4U);
        EXPECT_EQ(found.judge->key, method);
        EXPECT_TRUE(found.hasLooked);
        EXPECT_NEAR(found.worstLeft.value(), 100, 1e-6); // the others determine where it should be
        EXPECT_NEAR(found.residuals[4].left.value(), 100, 1e-6);
        EXPECT_NEAR(found.rmsWithout.value(), 0, 1e-6);
        auto const good = analyse(findGeorefMethod(method), sheet());
        EXPECT_TRUE(good.outliers.empty());
        EXPECT_NEAR(good.rms, 0, 1e-6);
    }
}

// Of eight points a second-order map, which needs six, cannot tell one that is wrong.
TEST(Analysis, LetsASimplerMethodJudge) {
    auto const found = analyse(findGeorefMethod("second"), sheetWithAWrongPoint());
    EXPECT_EQ(found.judge->key, "affine");
    EXPECT_EQ(found.fewestToTell, 9U);
    EXPECT_EQ(found.worst, 4U);
    EXPECT_LT(found.rms, found.worstLength);
}

TEST(Analysis, MeasuresResidualsFromWhereThePointIsGiven) {
    auto const found = analyse(findGeorefMethod("affine"), sheetWithAWrongPoint());
    double squares = 0;
    for (Residual const& residual : found.residuals) {
        EXPECT_NEAR(residual.length, std::hypot(residual.offset.x, residual.offset.y), 1e-9);
        EXPECT_NEAR(residual.offset.y, 0, 1e-6);
        squares += residual.length * residual.length;
    }
    EXPECT_LT(found.residuals[4].offset.x, -50); // the fit lies west of the point that was moved east
    EXPECT_NEAR(found.rms, std::sqrt(squares / 8), 1e-9);
}

TEST(Analysis, CannotLeaveOutAPointThatIsNeeded) {
    std::vector<ControlPoint> controls = sheet();
    controls.resize(3);
    auto const found = analyse(findGeorefMethod("affine"), controls);
    EXPECT_FALSE(found.residuals[0].left || found.leftMean || found.leftRms);
    EXPECT_NEAR(found.rms, 0, 1e-6);
}

TEST(GeorefFit, MapsPointsAndMarksThoseWithoutAResult) {
    GeorefFit const fit(findGeorefMethod("second"), sheet());
    std::vector<GEOREFPOINT> points{{2000, 3000}, {1e200, 1e200}};
    fit.map(points);
    EXPECT_NEAR(points[0].x, 543000, 1e-6);
    EXPECT_NEAR(points[0].y, 4942000, 1e-6);
    EXPECT_EQ(points[1].x, DBL_MAX);
    EXPECT_EQ(points[1].y, DBL_MAX);
    fit.map({});
}

TEST(GeorefFit, TellsTheCoefficientsOfAPolynomial) {
    auto const terms = georefCoefficients(findGeorefMethod("affine"), sheet());
    ASSERT_EQ(terms.size(), 3U);
    double const expected[][2] = {{500000, 5000000}, {20, 1}, {1, -20}};
    for (std::size_t i = 0; i < terms.size(); ++i) {
        EXPECT_EQ(terms[i].term, (std::array{"1", "x", "y"})[i]);
        EXPECT_NEAR(terms[i].x, expected[i][0], 1e-6);
        EXPECT_NEAR(terms[i].y, expected[i][1], 1e-6);
    }
    EXPECT_TRUE(georefCoefficients(findGeorefMethod("thin-plate"), sheet()).empty());
}

TEST(GeorefFit, IsRefusedForWhatDeterminesNone) {
    auto controls = sheet();
    controls[1].target.x = 1.7976931348623157e308;
    auto const refusal = [&](char const* method) {
        return messageOf<ControlsError>([&] { GeorefFit(findGeorefMethod(method), controls); });
    };
    EXPECT_NE(refusal("affine").find("their target coordinates are too large"), std::string::npos) << refusal("affine");
    EXPECT_EQ(refusal("third"), "third needs 10 control points, there are 8");
}

} // namespace
} // namespace ZrProj::Command
