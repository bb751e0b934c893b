#include "georef.h"

#include <cmath>
#include <cstdio>
#include <ctime>
#include <memory>
#include <random>

namespace ZrProj::bench {
namespace {

constexpr std::size_t mappedPoints = 1 << 16;

struct Row {
    TransformMethod method;
    int controls;
    bool hasPeer;
};
constexpr Row rows[] = {
    {TransformMethodHelmert, 50, false},
    {TransformMethodAffinePolynomial, 50, true},
    {TransformMethod1stOrderPolynomial, 50, false},
    {TransformMethod2ndOrderPolynomial, 50, true},
    {TransformMethod3rdOrderPolynomial, 50, true},
    {TransformMethodThinPlateSpline, 50, true},
    {TransformMethodThinPlateSpline, 200, true},
    {TransformMethodNaturalCubicSpline, 200, false},
    {TransformMethodMarcovSpline, 200, false},
    {TransformMethodExponentialSpline, 200, false},
    {TransformMethodRationalQuadraticSpline, 200, false},
    {TransformMethodInverseDistanceSquared, 200, false},
    {TransformMethodThinPlateSpline, 2000, false},
};

GeorefControls controlsOf(int count) {
    std::mt19937_64 random(7);
    std::uniform_real_distribution<double> pixel(0, 40000), noise(-5, 5);
    GeorefControls controls;
    for (int i = 0; i < count; ++i) {
        GEOREFPOINT const p{pixel(random), pixel(random)};
        controls.source.push_back(p);
        controls.target.push_back({5e5 + 2.5 * p.x + 0.1 * p.y + 30 * std::sin(p.y / 9000) + noise(random),
                                   5.4e6 + 0.1 * p.x - 2.5 * p.y + 30 * std::cos(p.x / 7000) + noise(random)});
    }
    return controls;
}

/// zrproj takes pairs of coordinates; each library is given its points as it takes them, so packing is not timed.
GeorefContender zrprojContender() {
    return {.name = "zrproj", .fit = [](TransformMethod method, GeorefControls const& controls) {
                auto own = controls;
                GEOREF record{};
                record.Method = method;
                record.pSource = own.source.data();
                record.pTarget = own.target.data();
                record.nControls = static_cast<std::int32_t>(own.source.size());
                auto const map = std::make_shared<CGeorefTransform>();
                map->Create(&record);
                return GeorefContender::Map([map](std::vector<double>& x, std::vector<double>&) {
                    // the pairs, laid out in one array of twice the length
                    map->Forward(reinterpret_cast<GEOREFPOINT*>(x.data()), static_cast<int>(x.size() / 2));
                });
            }};
}

struct Points {
    std::vector<double> x, y;
};

Points pointsFor(bool pairs) {
    std::mt19937_64 random(9);
    std::uniform_real_distribution<double> pixel(0, 40000);
    Points points;
    for (std::size_t i = 0; i < mappedPoints; ++i) {
        double const x = pixel(random), y = pixel(random);
        points.x.push_back(x);
        (pairs ? points.x : points.y).push_back(y);
    }
    return points;
}

std::string nameOf(Row const& row, char const* work, std::string const& contender) {
    return "georef/" + std::string(RefMethodName(row.method)) + "/" + std::to_string(row.controls) + "/" + work + "/" +
           contender;
}

void setPerPoint(benchmark::State& state, std::size_t points) {
    using benchmark::Counter;
    state.counters[perPoint] =
        Counter(static_cast<double>(points), Counter::kIsIterationInvariantRate | Counter::kInvert);
}

void measureFit(benchmark::State& state, Row const& row, GeorefContender const& contender) {
    auto const controls = controlsOf(row.controls);
    for (auto _ : state) {
        auto const start = std::clock();
        auto map = contender.fit(row.method, controls);
        state.SetIterationTime(static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC);
        benchmark::DoNotOptimize(map);
    }
    setPerPoint(state, 1);
}

void measureMap(benchmark::State& state, Row const& row, GeorefContender const& contender) {
    auto const map = contender.fit(row.method, controlsOf(row.controls));
    auto const source = pointsFor(contender.name == "zrproj");
    for (auto _ : state) {
        auto points = source;
        auto const start = std::clock();
        map(points.x, points.y);
        state.SetIterationTime(static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC);
    }
    setPerPoint(state, mappedPoints);
}

std::vector<GeorefContender> contendersFor(Row const& row) {
    std::vector<GeorefContender> contenders{zrprojContender()};
#if defined(ZRPROJ_BENCH_GDAL)
    if (row.hasPeer)
        contenders.push_back(gdalContender());
#else
    (void)row;
#endif
    return contenders;
}

/// Tells when the two do not mean the same map.
void compareMaps(Row const& row, std::vector<GeorefContender> const& contenders) {
    if (contenders.size() < 2)
        return;
    auto const controls = controlsOf(row.controls);
    auto ours = pointsFor(true), theirs = pointsFor(false);
    contenders[0].fit(row.method, controls)(ours.x, ours.y);
    contenders[1].fit(row.method, controls)(theirs.x, theirs.y);
    double farthest = 0;
    for (std::size_t i = 0; i < mappedPoints; ++i)
        farthest = std::max(farthest, std::hypot(ours.x[2 * i] - theirs.x[i], ours.x[2 * i + 1] - theirs.y[i]));
    if (!(farthest < 1e-3))
        std::printf("%s: not GDAL's map, up to %g apart\n", RefMethodName(row.method), farthest);
}

} // namespace

void registerGeorefRows() {
    for (auto const& row : rows) {
        auto const contenders = contendersFor(row);
        compareMaps(row, contenders);
        for (auto const& contender : contenders) {
            benchmark::RegisterBenchmark(nameOf(row, "fit", contender.name).c_str(), measureFit, row, contender)
                ->UseManualTime();
            benchmark::RegisterBenchmark(nameOf(row, "map", contender.name).c_str(), measureMap, row, contender)
                ->UseManualTime();
        }
    }
}

void printGeorefTable(Collector const& measured) {
    std::printf(
        "\nGeoreferencing: microseconds a fit (GDAL's makes the way back as well), nanoseconds a point mapped\n");
    std::printf("%-30s %8s %12s %12s %8s %10s %10s %8s\n", "method", "controls", "fit zrproj", "GDAL", "ratio",
                "map zrproj", "GDAL", "ratio");
    for (auto const& row : rows) {
        auto const time = [&](char const* work, char const* who) {
            return measured.nanoseconds(nameOf(row, work, who));
        };
        double const fit = time("fit", "zrproj") / 1000, map = time("map", "zrproj");
        if (fit == 0 && map == 0)
            continue;
        std::printf("%-30s %8d %12.1f", RefMethodName(row.method), row.controls, fit);
        double const theirFit = time("fit", "GDAL") / 1000, theirMap = time("map", "GDAL");
        if (theirFit > 0 && theirMap > 0)
            std::printf(" %12.1f %8.1f %10.2f %10.2f %8.1f\n", theirFit, theirFit / fit, map, theirMap, theirMap / map);
        else
            std::printf(" %12s %8s %10.2f\n", "", "", map);
    }
}

} // namespace ZrProj::bench
