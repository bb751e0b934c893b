#include "creation.h"

#include <zrproj/c.h>

#include <cstdio>
#include <string>

#if defined(ZRPROJ_BENCH_PROJ)
#include <proj.h>
#endif

namespace ZrProj::bench {
namespace {

struct Pair {
    char const *from, *to;
};

// Geographic to projected systems: on one datum of a series, a conic, a method of its own, and a world map; on another.
constexpr Pair pairs[] = {{"EPSG:4326", "EPSG:32633"},
                          {"EPSG:4171", "EPSG:2154"},
                          {"EPSG:4289", "EPSG:28992"},
                          {"EPSG:4326", "EPSG:3857"},
                          {"EPSG:4326", "EPSG:27700"}};

bool zrprojCreates(Pair const& pair) {
    zrproj_system *from = nullptr, *to = nullptr;
    zrproj_transform* transform = nullptr;
    bool const good = zrproj_system_create(pair.from, &from) == ZRPROJ_OK &&
                      zrproj_system_create(pair.to, &to) == ZRPROJ_OK &&
                      zrproj_transform_create(from, to, nullptr, &transform) == ZRPROJ_OK;
    zrproj_transform_destroy(transform);
    zrproj_system_destroy(to);
    zrproj_system_destroy(from);
    return good;
}

#if defined(ZRPROJ_BENCH_PROJ)
/// In the one context of the thread, which keeps all that it read of the two codes the first time.
bool projCreates(Pair const& pair) {
    PJ* const transform = proj_create_crs_to_crs(nullptr, pair.from, pair.to, nullptr);
    proj_destroy(transform);
    return transform != nullptr;
}

/// As a program does that makes one: nothing is kept from an earlier time.
bool freshProjCreates(Pair const& pair) {
    PJ_CONTEXT* const context = proj_context_create();
    PJ* const transform = proj_create_crs_to_crs(context, pair.from, pair.to, nullptr);
    bool const good = transform != nullptr;
    proj_destroy(transform);
    proj_context_destroy(context);
    return good;
}
#endif

std::string rowOf(Pair const& pair, char const* who) {
    return std::string("create/") + pair.to + '/' + who;
}

void measure(benchmark::State& state, bool (*creates)(Pair const&), Pair const& pair) {
    for (auto _ : state)
        if (!creates(pair))
            state.SkipWithError("cannot be made");
    using benchmark::Counter;
    state.counters[perPoint] = Counter(1, Counter::kIsIterationInvariantRate | Counter::kInvert);
}

} // namespace

void registerCreationRows() {
    for (Pair const& pair : pairs) {
        benchmark::RegisterBenchmark(rowOf(pair, "zrproj").c_str(), measure, zrprojCreates, pair);
#if defined(ZRPROJ_BENCH_PROJ)
        benchmark::RegisterBenchmark(rowOf(pair, "PROJ").c_str(), measure, projCreates, pair);
        benchmark::RegisterBenchmark(rowOf(pair, "PROJ, new context").c_str(), measure, freshProjCreates, pair);
#endif
    }
}

void printCreationTable(Collector const& measured) {
    std::printf("\nMicroseconds to make what converts, by two codes; PROJ once more, and for the first time\n");
    std::printf("%-30s %9s %9s %8s %9s %8s\n", "system", "zrproj", "PROJ", "ratio", "new", "ratio");
    for (Pair const& pair : pairs) {
        double const ours = measured.nanoseconds(rowOf(pair, "zrproj"));
        double const again = measured.nanoseconds(rowOf(pair, "PROJ"));
        double const fresh = measured.nanoseconds(rowOf(pair, "PROJ, new context"));
        if (ours > 0 && again > 0 && fresh > 0)
            std::printf("%-30s %9.1f %9.1f %8.1f %9.1f %8.1f\n", pair.to, ours / 1000, again / 1000, again / ours,
                        fresh / 1000, fresh / ours);
    }
}

} // namespace ZrProj::bench
