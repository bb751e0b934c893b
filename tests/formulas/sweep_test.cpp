// What holds for every projection: round trips, marking, hostile input, array position, processor levels.
#include "support/faults.h"
#include "support/levels.h"
#include "support/registry.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cfloat>
#include <cmath>
#include <limits>
#include <numbers>
#include <random>

using namespace ZrProj;
using test::Faults;
using test::Projection;
using test::sameBits;

namespace {

using Points = std::vector<PROJPOINT>;

bool isTransverseMercator(ProjType type) {
    return type == ProjTypeTransverseMercator || type == ProjTypeGaussKruger ||
           type == ProjTypeUniversalTransverseMercator;
}

double cosine(double degrees) {
    return std::cos(degrees * std::numbers::pi / 180);
}

/// Degrees between two points along the parallel or the meridian, whichever is more.
double groundApart(PROJPOINT const& a, PROJPOINT const& b) {
    return std::max(std::fabs(a.y - b.y), test::longitudesApart(a.x, b.x) * cosine(a.y));
}

double mapApart(PROJPOINT const& a, PROJPOINT const& b) {
    return std::hypot(a.x - b.x, a.y - b.y);
}

/// What a round trip may lose, in degrees, where more than what 4e-8 m on the map mean.
double roundTripDegrees(PROJDATA const& record) {
    return isTransverseMercator(record.Type) ? 2e-8 : 1e-12;
}

/// Whether the type promises anything at a point: the series mean something near their meridian, and do not wrap.
bool isPromised(PROJDATA const& record, PROJPOINT const& point) {
    return !isTransverseMercator(record.Type) || std::fabs(point.x - record.Lon0) <= 3;
}

/// Whether `back` is the point within `degrees` and, on the map, what stands for 4e-8 m.
bool isSamePlace(Projection& projection, PROJPOINT const& point, PROJPOINT const& back, double degrees) {
    double const east = std::fabs(point.y) == 90 ? 0 : test::longitudesApart(point.x, back.x);
    if (std::max(east, std::fabs(point.y - back.y)) <= degrees)
        return true;
    if (degrees > 1e-12)
        return groundApart(point, back) <= degrees;
    double const apart = mapApart(projection.forward(point), projection.forward(back));
    return groundApart(point, back) <= 1e-4 && apart <= projection.mapLength(2e-8) + projection.mapMove(point, degrees);
}

void expectRoundTrips(Projection& projection) {
    auto const points = projection.samplesInRange();
    auto const map = projection.forward(points), back = projection.inverse(map);
    Faults faults(projection.words());
    for (std::size_t i = 0; i < points.size(); ++i) {
        if (!isPromised(projection.record(), points[i]))
            continue;
        if (test::isMarked(map[i]) || test::isMarked(back[i]))
            faults.add(points[i], " -> ", map[i], " -> ", back[i], " is marked");
        else if (!isSamePlace(projection, points[i], back[i], roundTripDegrees(projection.record())))
            faults.add(points[i], " -> ", map[i], " -> ", back[i], ", off by ", back[i].x - points[i].x, ", ",
                       back[i].y - points[i].y, " degrees, ",
                       mapApart(projection.forward(points[i]), projection.forward(back[i])),
                       " on the map, where 1e-11 are ", projection.mapMove(points[i], 1e-11));
    }
}

/// Map points in the image of the globe, but for its outermost parts, and `beyond` times its size around it.
Points mapSamples(Projection& projection, double beyond) {
    auto samples = projection.samplesInRange();
    std::erase_if(samples, [&](PROJPOINT const& p) { return !isPromised(projection.record(), p); });
    auto image = projection.forward(samples);
    std::erase_if(image, test::isMarked);
    if (image.empty())
        image.push_back({0, 0});
    auto const spread = [&](double PROJPOINT::*axis) {
        std::ranges::sort(image, {}, axis);
        double const low = image[image.size() / 20].*axis, high = image[image.size() - image.size() / 20 - 1].*axis;
        return std::uniform_real_distribution<double>(low - beyond * (high - low), high + beyond * (high - low));
    };
    auto x = spread(&PROJPOINT::x), y = spread(&PROJPOINT::y);
    std::mt19937_64 random(21);
    Points points;
    for (int i = 0; i < 2000; ++i)
        points.push_back({x(random), y(random)});
    return points;
}

Points farPoints() {
    Points points;
    for (double const far : {1e8, 1e12, 1e15, 1e100, 1e300})
        for (auto const [east, north] : {PROJPOINT{1, 0}, {-1, 0}, {0, 1}, {0, -1}, {1, 1}, {-1, 0.3}})
            points.push_back({far * east, far * north});
    return points;
}

/// What the inverse gives for map points maps back to them, within `metres` and what the rounding of degrees means.
void expectMapsBack(Projection& projection, Points const& map, double metres) {
    constexpr double rounding = 1e-13;
    auto const geographic = projection.inverse(map);
    auto const back = projection.forward(geographic);
    auto const isRounding = [&](PROJPOINT const& at, double apart, double most) {
        return projection.isBesideUnplottable(at, rounding) ||
               apart <= std::min(projection.mapMove(at, rounding), most);
    };
    Faults faults(projection.words());
    for (std::size_t i = 0; i < map.size(); ++i) {
        if (test::isMarked(geographic[i]) || !isPromised(projection.record(), geographic[i]))
            continue;
        double const apart = mapApart(map[i], back[i]) - projection.mapLength(metres);
        if (test::isMarked(back[i]) ||
            (apart > 0 && !isRounding(geographic[i], apart, std::hypot(map[i].x, map[i].y) / 2)))
            faults.add(map[i], " -> ", geographic[i], " -> ", back[i]);
    }
}

/// On the meridian opposite to lon0 and close to it, from both sides.
Points edgePoints(double lon0) {
    Points points;
    for (double const lat : {-89.999, -89.0, -60.0, -7.0, 0.0, 1e-9, 30.0, 80.0, 89.99})
        for (double const inside : {0.0, 1e-9, 1e-5})
            for (double const side : {-1, 1})
                points.push_back({lon0 + side * (180 - inside), lat});
    return points;
}

Points hostilePoints() {
    constexpr double nan = std::numeric_limits<double>::quiet_NaN(), infinity = HUGE_VAL;
    constexpr double numbers[] = {nan,  infinity, -infinity, DBL_MAX, -DBL_MAX, 1e300,   -1e300, 1e18,
                                  1e17, 1e9,      -1e9,      DBL_MIN, 5e-324,   -5e-324, 0.0,    -0.0};
    Points points;
    for (double const x : numbers)
        for (double const y : numbers)
            points.push_back({x, y});
    return points;
}

/// `points` with `good` before, after and between.
Points between(Points const& points, PROJPOINT good) {
    Points mixed{good};
    for (auto const& point : points) {
        mixed.push_back(point);
        mixed.push_back(good);
    }
    return mixed;
}

using Conversion = bool (Projection::*)(std::span<PROJPOINT>);

void expectUndisturbed(Projection& projection, Conversion conversion, PROJPOINT const& good) {
    PROJPOINT expected = good;
    EXPECT_TRUE((projection.*conversion)({&expected, 1}));
    auto const before = between(hostilePoints(), good);
    auto after = before;
    bool const done = (projection.*conversion)(after) || isTransverseMercator(projection.record().Type);
    Faults faults(projection.words());
    for (std::size_t i = 0; i < before.size(); ++i) {
        if (i % 2 == 0 ? !sameBits(after[i], expected) : !std::isfinite(after[i].x) || !std::isfinite(after[i].y))
            faults.add(before[i], " -> ", after[i], " beside ", before[i == 0 ? 1 : i - 1]);
        PROJPOINT alone = before[i];
        if (!done && !(projection.*conversion)({&alone, 1}))
            faults.add(before[i], " fails the call");
    }
    EXPECT_TRUE(done) << projection.words();
}

/// A point's bits are the same alone, and as the last of an array of any length up to 100, and in several blocks.
void expectSameBitsAnywhere(Projection& projection, Conversion conversion, Points const& points) {
    Points alone = points;
    for (auto& point : alone)
        (projection.*conversion)({&point, 1});
    Faults faults(projection.words());
    for (std::size_t count = 1; count <= points.size(); ++count) {
        Points array(points.begin(), points.begin() + std::ptrdiff_t(count));
        (projection.*conversion)(array);
        for (std::size_t i = 0; i < count; ++i)
            if (!sameBits(array[i], alone[i]))
                faults.add(points[i], " at ", i, " of ", count, " -> ", array[i], ", alone ", alone[i]);
    }
    Points blocks; // more than the driver takes at once
    for (int i = 0; i < 7; ++i)
        blocks.insert(blocks.end(), points.begin(), points.end());
    (projection.*conversion)(blocks);
    for (std::size_t i = 0; i < blocks.size(); ++i)
        if (!sameBits(blocks[i], alone[i % points.size()]))
            faults.add(points[i % points.size()], " at ", i, " of ", blocks.size(), " -> ", blocks[i]);
}

/// 100 points, some of them hostile.
Points mixture(Points points, Points const& hostile) {
    std::mt19937_64 random(22);
    std::ranges::shuffle(points, random);
    points.resize(80);
    std::ranges::sample(hostile, std::back_inserter(points), 20, random);
    std::ranges::shuffle(points, random);
    return points;
}

/// Another level's map points are those of the scalar level, and so are the points that they stand for.
void expectAgreement(Projection& scalar, Projection& level, Points const& points) {
    auto const map = level.forward(points), expectedMap = scalar.forward(points);
    auto const back = level.inverse(expectedMap), expectedBack = scalar.inverse(expectedMap);
    Faults faults(scalar.words());
    for (std::size_t i = 0; i < points.size(); ++i) {
        double const apart = mapApart(map[i], expectedMap[i]), tolerance = scalar.mapLength(1e-8);
        if (!(apart <= tolerance || apart <= tolerance + scalar.mapMove(points[i], 1e-13)))
            faults.add(points[i], " -> ", map[i], ", scalar ", expectedMap[i]);
        if (test::isMarked(back[i]) != test::isMarked(expectedBack[i]) ||
            !isSamePlace(scalar, expectedBack[i], back[i], 1e-12))
            faults.add("inverse ", expectedMap[i], " -> ", back[i], ", scalar ", expectedBack[i]);
    }
}

Projection atScalarLevel(std::string const& words) {
    test::LevelScope const scope(levels::Level::scalar);
    return Projection(words);
}

/// Parameter sets, in words, of one projection.
struct Sets {
    std::string name;
    std::vector<std::string> words;

    friend std::ostream& operator<<(std::ostream& out, Sets const& sets) { return out << sets.name; }
};

class Sweep : public testing::TestWithParam<Sets> {
protected:
    /// Calls check(projection) for each of the parameter sets at each processor level.
    template <class Check> static void forEachProjection(Check const& check) {
        test::forEachLevel([&](levels::Level) {
            for (auto const& words : GetParam().words) {
                Projection projection(words);
                check(projection);
            }
        });
    }
};

std::string lettersOf(std::string text) {
    std::erase_if(text, [](unsigned char c) { return !std::isalnum(c); });
    return text;
}

std::vector<Sets> setsOfTypes() {
    std::vector<Sets> all;
    for (auto const type : test::projectingTypes()) {
        char name[64] = "";
        ProjGetProjectionInfo(type, name);
        all.push_back({lettersOf(name), test::parameterSets(type)});
    }
    return all;
}

std::vector<Sets> setsOfFormulas() {
    std::vector<Sets> all;
    for (auto const& words : test::formulaParameterSets()) {
        auto const name = lettersOf(words.substr(0, words.find(' ')));
        if (all.empty() || all.back().name != name)
            all.push_back({name, {}});
        all.back().words.push_back(words);
    }
    return all;
}

std::string nameOf(testing::TestParamInfo<Sets> const& sets) {
    return sets.param.name;
}

INSTANTIATE_TEST_SUITE_P(Projections, Sweep, testing::ValuesIn(setsOfTypes()), nameOf);
INSTANTIATE_TEST_SUITE_P(Formulas, Sweep, testing::ValuesIn(setsOfFormulas()), nameOf);

} // namespace

TEST_P(Sweep, RoundTrips) {
    forEachProjection([](Projection& projection) {
        EXPECT_GT(projection.samplesInRange().size(), 100U) << projection.words();
        expectRoundTrips(projection);
    });
}

TEST_P(Sweep, InverseMapsBackOrIsMarked) {
    forEachProjection([](Projection& projection) {
        if (isTransverseMercator(projection.record().Type)) { // the series mean nothing far away
            expectMapsBack(projection, mapSamples(projection, 0), 4e-3);
        } else {
            expectMapsBack(projection, mapSamples(projection, 0.4), 1e-6);
            expectMapsBack(projection, farPoints(), 1e-6);
        }
    });
}

TEST_P(Sweep, EdgesKeepTheirSide) {
    forEachProjection([](Projection& projection) {
        if (isTransverseMercator(projection.record().Type)) // they have no edges
            return;
        auto points = edgePoints(projection.record().Lon0);
        std::erase_if(points, [&](PROJPOINT const& p) { return !projection.isInRange(p); });
        if (points.empty())
            return;
        auto const map = projection.forward(points), again = projection.forward(projection.inverse(map));
        Faults faults(projection.words());
        for (std::size_t i = 0; i < points.size(); ++i)
            if (!(mapApart(map[i], again[i]) <= projection.mapLength(1e-6) + projection.mapMove(points[i], 1e-12)))
                faults.add(points[i], " -> ", map[i], " -> ", again[i]);
    });
}

TEST_P(Sweep, HostilePointsHarmNobody) {
    forEachProjection([](Projection& projection) {
        auto const good = projection.samplesInRange().back();
        expectUndisturbed(projection, &Projection::tryForward, good);
        expectUndisturbed(projection, &Projection::tryInverse, projection.forward(good));
    });
}

TEST_P(Sweep, ArrayPositionChangesNoBit) {
    forEachProjection([](Projection& projection) {
        auto const points = projection.samples();
        auto map = points;
        projection.tryForward(map);
        expectSameBitsAnywhere(projection, &Projection::tryForward, mixture(points, hostilePoints()));
        expectSameBitsAnywhere(projection, &Projection::tryInverse, mixture(map, hostilePoints()));
    });
}

TEST_P(Sweep, LevelsAgreeWithScalar) {
    forEachProjection([](Projection& projection) {
        Projection scalar = atScalarLevel(projection.words());
        expectAgreement(scalar, projection, scalar.samplesInRange());
    });
}

// Records that pass validation and define a map of little or nothing: what they cannot show is marked.
TEST(SweepOdd, ParameterSetsOfLittleUseFailNoCall) {
    test::forEachLevel([](levels::Level) {
        for (auto const& words : test::oddParameterSets()) {
            Projection projection(words);
            projection.inverse(projection.forward(projection.samples()));
            expectRoundTrips(projection);
            expectMapsBack(projection, mapSamples(projection, 0.4), 1e-6);
            expectMapsBack(projection, farPoints(), 1e-6);
        }
    });
}
