// Every projection, the datum methods, and systems, both ways, for single points, short arrays and long ones, at each
// processor level and beside other libraries; and georeferencing. Closing tables set zrproj beside each of the others.
// Rows called preclip/ cut a line first.
#include "creation.h"
#include "georef.h"
#include "grid_shift.h"
#include "nadcon.h"
#include "preclip_rows.h"
#include "table.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <ctime>
#include <iterator>
#include <random>

using namespace ZrProj;
using namespace ZrProj::bench;

namespace {

using Points = std::vector<PROJPOINT>;

constexpr int longest = 1 << 20;
constexpr int counts[] = {1, 100, longest};
constexpr std::size_t atLeast = 1 << 14; // points between two readings of the clock

Points geographicPoints(Box const& box, double degree) {
    std::mt19937_64 random(1);
    std::uniform_real_distribution<double> lon(box.west, box.east), lat(box.south, box.north);
    Points points(longest);
    for (auto& point : points)
        point = {degree * lon(random), degree * lat(random)};
    return points;
}

/// What a contender starts from; kept until another one, or the other direction, asks.
Points const& sourceOf(Case const& definition, Contender const& contender, bool inverse) {
    static Contender const* owner = nullptr;
    static bool isInverse = false;
    static Points points;
    if (owner != &contender || isInverse != inverse) {
        points = geographicPoints(definition.box, contender.degree);
        if (inverse)
            contender.forward(points.data(), longest);
        owner = &contender;
        isInverse = inverse;
    }
    return points;
}

/// Converts the same points in each iteration; putting them back is not timed. Processor time: what other programs do
/// meanwhile does not count.
void measure(benchmark::State& state, Case const& definition, Contender const& contender, bool inverse, int count) {
    auto const& source = sourceOf(definition, contender, inverse);
    auto const& convert = inverse ? contender.inverse : contender.forward;
    auto const length = static_cast<std::size_t>(count), calls = (atLeast + length - 1) / length;
    Points points(calls * length);
    for (auto _ : state) {
        std::copy_n(source.begin(), points.size(), points.begin());
        auto const start = std::clock();
        for (std::size_t i = 0; i < points.size(); i += length)
            convert(&points[i], count);
        state.SetIterationTime(static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC);
    }
    using benchmark::Counter;
    state.counters[perPoint] =
        Counter(static_cast<double>(points.size()), Counter::kIsIterationInvariantRate | Counter::kInvert);
}

void registerRows(Group const& group) {
    for (bool const inverse : {false, true})
        for (auto const& contender : group.contenders)
            for (int const count : counts) {
                auto const name = rowName(group.definition, inverse ? "inverse" : "forward", contender, count);
                benchmark::RegisterBenchmark(name.c_str(), measure, group.definition, std::cref(contender), inverse,
                                             count)
                    ->UseManualTime();
            }
}

void append(std::vector<Contender>& contenders, std::vector<Contender> more) {
    std::ranges::move(more, std::back_inserter(contenders));
}

std::vector<Contender> contendersFor(Case const& definition) {
    auto contenders = zrprojContenders(definition);
#if defined(ZRPROJ_BENCH_PROJ)
    append(contenders, projContenders(definition));
#endif
#if defined(ZRPROJ_BENCH_GEOGRAPHICLIB)
    append(contenders, geographicLibContenders(definition));
#endif
    return contenders;
}

std::vector<Contender> contendersFor(DatumCase const& datum) {
    auto contenders = zrprojDatumContenders(datum.datum);
#if defined(ZRPROJ_BENCH_PROJ)
    contenders.push_back(projDatumContender(datum.definition.proj));
#endif
    return contenders;
}

std::vector<Contender> contendersFor(SystemCase const& systems) {
    auto contenders = zrprojSystemContenders(systems);
#if defined(ZRPROJ_BENCH_PROJ)
    if (contenders.front().metres == 1)
        append(contenders, projContenders(systems.definition));
    else // the results are degrees
        contenders.push_back(projDatumContender(systems.definition.proj));
#endif
    return contenders;
}

/// Tells when PROJ's definition does not mean the same.
void compareResults(Group const& group) {
    auto const few = [&](Contender const& contender) {
        Points points = geographicPoints(group.definition.box, contender.degree);
        points.resize(1000);
        contender.forward(points.data(), 1000);
        return points;
    };
    for (auto const& peer : group.contenders) {
        if (peer.name != "PROJ")
            continue;
        auto const& our = group.contenders.front();
        Points const ours = few(our), theirs = few(peer);
        double farthest = 0;
        for (std::size_t i = 0; i < ours.size(); ++i)
            farthest = std::max(farthest, std::hypot(ours[i].x * our.metres - theirs[i].x * peer.metres,
                                                     ours[i].y * our.metres - theirs[i].y * peer.metres));
        if (!(farthest < 1))
            std::printf("%s: not quite PROJ's map, up to %.0f m apart\n", group.definition.name.c_str(), farthest);
    }
}

} // namespace

int main(int argc, char** argv) {
    char shortTime[] = "--benchmark_min_time=0.02"; // unless the command line says otherwise
    std::vector<char*> arguments(argv, argv + argc);
    arguments.insert(arguments.begin() + 1, shortTime);
    int count = static_cast<int>(arguments.size());
    benchmark::Initialize(&count, arguments.data());
    if (benchmark::ReportUnrecognizedArguments(count, arguments.data()))
        return 2;
    std::vector<Group> groups;
    for (auto const& definition : cases())
        groups.push_back({definition, contendersFor(definition)});
    for (auto const& datum : datumCases())
        groups.push_back({datum.definition, contendersFor(datum)});
    for (auto const& systems : systemCases())
        groups.push_back({systems.definition, contendersFor(systems)});
    groups.push_back(gridShiftGroup());
    for (auto const& group : groups) {
        compareResults(group);
        registerRows(group);
    }
    registerNadcon();
    registerGeorefRows();
    registerPreclipRows();
    registerCreationRows();
    Collector collector(Collector::OO_Tabular);
    benchmark::RunSpecifiedBenchmarks(&collector);
    printTable(groups, collector, longest);
    printNadcon(collector);
    printGeorefTable(collector);
    printCreationTable(collector);
}
