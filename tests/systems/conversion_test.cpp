#include "systems/conversion.h"

#include "systems/register.h"

#include <gtest/gtest.h>

#include <cfloat>
#include <fstream>
#include <sstream>

using namespace ZrProj;
using namespace ZrProj::systems;

namespace {

SystemConverter converterOf(Definition const& system) {
    auto const conversion = conversionOf(system);
    return std::get<SystemConverter>(SystemConverter::make(std::get<Conversion>(conversion)));
}

SystemConverter converterOf(Code code) {
    return converterOf(*definitionOf(code));
}

PROJPOINT forward(SystemConverter const& system, PROJPOINT point) {
    system.forward(&point, 1);
    return point;
}

PROJPOINT inverse(SystemConverter const& system, PROJPOINT point) {
    system.inverse(&point, 1);
    return point;
}

void expectNear(PROJPOINT const& point, double x, double y, double tolerance) {
    EXPECT_NEAR(double{point.x}, x, tolerance);
    EXPECT_NEAR(double{point.y}, y, tolerance);
}

std::string reasonFor(Definition const& system) {
    auto const conversion = conversionOf(system);
    if (auto const* no = std::get_if<Unsupported>(&conversion))
        return no->reason;
    auto const made = SystemConverter::make(std::get<Conversion>(conversion));
    auto const* no = std::get_if<Unsupported>(&made);
    return no ? no->reason : "";
}

} // namespace

TEST(SystemConversion, PublishedExamples) {
    std::ifstream file(ZRPROJ_TEST_DATA "/systems/published.txt");
    int cases = 0;
    for (std::string line; std::getline(file, line);) {
        if (line.starts_with('#'))
            continue;
        SCOPED_TRACE(line);
        std::istringstream words(line);
        Code code = 0;
        double lon = 0, lat = 0, x = 0, y = 0, tolerance = 0;
        std::string bar;
        ASSERT_TRUE(words >> code >> bar >> lon >> lat >> bar >> x >> y >> bar >> tolerance);
        auto const system = converterOf(code);
        expectNear(forward(system, {lon, lat}), x, y, tolerance);
        double const degrees = tolerance * definitionOf(code)->unit.factor / 110000;
        expectNear(inverse(system, {x, y}), lon, lat, degrees / std::cos(lat / 57.3));
        ++cases;
    }
    EXPECT_GE(cases, 25);
}

TEST(SystemConversion, EverySystemIsComputedAndComesBack) {
    int unsupported = 0;
    for (std::size_t i = 0; i < entryCount(); ++i) {
        auto const system = *definitionOf(entry(i).code);
        SCOPED_TRACE(system.name);
        if (!reasonFor(system).empty()) {
            EXPECT_EQ(system.code, 3752) << reasonFor(system); // says both a scale at the equator and a parallel
            ++unsupported;
            continue;
        }
        auto const area = system.area.value_or(Area{0, 0, 6, 60, ""});
        double const width = area.east < area.west ? area.east + 360 - area.west : area.east - area.west;
        PROJPOINT const middle{std::remainder(area.west + width / 2, 360), (area.south + area.north) / 2};
        auto const there = forward(converterOf(system), middle);
        ASSERT_NE(there.x, DBL_MAX);
        auto const back = inverse(converterOf(system), there);
        EXPECT_NEAR(std::remainder(back.x - middle.x, 360) * std::cos(middle.y / 57.3), 0, 1e-10);
        EXPECT_NEAR(double{back.y}, double{middle.y}, 1e-10);
    }
    EXPECT_EQ(unsupported, 1);
}

TEST(SystemConversion, AxesGrowAsTheAuthorityHasThem) {
    auto const northAndEast = forward(converterOf(2154), {3, 46.5});
    expectNear(northAndEast, 700000, 6600000, 1e-6);
    // One axis turned: northings and westings of Greenland; false origin on the side that the axis grows to.
    auto const greenland = converterOf(2218);
    auto const origin = definitionOf(2218)->parameters[Parameter::longitudeOfOrigin];
    EXPECT_GT(forward(greenland, {origin - 1, 68}).x, forward(greenland, {origin + 1, 68}).x);
    EXPECT_LT(forward(greenland, {origin, 67}).y, forward(greenland, {origin, 68}).y);
}

TEST(SystemConversion, LongitudesCountFromGreenwichOutside) {
    // The Paris meridian itself, and across the antimeridian for a system about Ferro.
    expectNear(forward(converterOf(27572), {2.33722917, 46.8}), 600000, 2200000, 1e-6);
    expectNear(forward(converterOf(4807), {2.33722917, 46.8}), 0, 46.8, 1e-12);
    expectNear(forward(converterOf(4807), {179 + 2.33722917 - 360, 10}), 179, 10, 1e-12);
    expectNear(inverse(converterOf(4807), {179, 10}), 179 + 2.33722917, 10, 1e-12); // in whatever turn
}

TEST(SystemConversion, ManyPointsAreAsOne) {
    auto const system = converterOf(2218);
    std::vector<PROJPOINT> points(1000);
    for (std::size_t i = 0; i < points.size(); ++i)
        points[i] = {-30 + 0.01 * static_cast<double>(i), 68};
    points[500] = {DBL_MAX, DBL_MAX};
    auto const alone = forward(system, points[777]);
    auto const outcome = system.forward(points.data(), static_cast<int>(points.size()));
    EXPECT_FALSE(outcome.failed);
    EXPECT_TRUE(points[500].x == DBL_MAX && points[500].y == DBL_MAX);
    EXPECT_TRUE(points[777].x == alone.x && points[777].y == alone.y);
}

TEST(SystemConversion, WhatCannotBeComputedIsTold) {
    Definition system = *definitionOf(27700);
    system.method = Method::verticalPerspective;
    EXPECT_EQ(reasonFor(system), "there is no formula for the method Vertical Perspective");
    system = *definitionOf(2154);
    system.parameters[Parameter::standardParallel2] = -49; // no cone
    EXPECT_EQ(reasonFor(system),
              "the parameter Latitude of 2nd standard parallel must not be opposite to the first one");
}

TEST(SystemConversion, MethodsThatAreOthersWithOtherParameters) {
    // The same pole with its scale said three ways.
    Definition a = *definitionOf(5041), b = a, c = a;
    b.method = Method::polarStereographicB;
    b.parameters[Parameter::standardParallel1] = 81.114534; // 0.994 at the pole
    c.method = Method::polarStereographicC;
    c.parameters[Parameter::standardParallel1] = 81.114534;
    auto const one = forward(converterOf(a), {10, 80}), other = forward(converterOf(b), {10, 80});
    expectNear(other, one.x, one.y, 0.05); // the parallel is rounded
    // C counts northings from its parallel on the central meridian.
    expectNear(forward(converterOf(c), {0, 81.114534}), 2000000, 2000000, 1e-6);
    // A cone of one parallel and a scale.
    Definition cone = *definitionOf(24200);
    expectNear(forward(converterOf(cone), {-77, 18}), 250000, 150000, 1e-6);
}
