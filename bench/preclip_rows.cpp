#include "preclip_rows.h"

#include "cases.h"
#include "table.h"

#include <zrproj/preclip.h>

#include <algorithm>
#include <cmath>
#include <ctime>
#include <random>
#include <string>
#include <vector>

namespace ZrProj::bench {
namespace {

std::vector<PROJPOINT> const& wanderingLine() {
    static std::vector<PROJPOINT> const line = [] {
        std::mt19937_64 random(1);
        std::uniform_real_distribution<double> step(-1, 1);
        std::vector<PROJPOINT> points(1000000);
        PROJPOINT at{0, 0};
        for (auto& point : points) {
            at = {std::remainder(at.x + step(random), 360.0), std::clamp(at.y + step(random), -90.0, 90.0)};
            point = at;
        }
        return points;
    }();
    return line;
}

/// Processor time, as for the other rows; a second for a million points is what is asked for.
void measure(benchmark::State& state, Case const& definition) {
    auto const& line = wanderingLine();
    PROJDATA record = definition.record;
    CProjector projector(&record);
    std::size_t shown = 0;
    for (auto _ : state) {
        auto const start = std::clock();
        CPROJCHAIN* chains = nullptr;
        projector.LLPreclipPolyline(line.data(), static_cast<unsigned>(line.size()), &chains);
        shown = 0;
        for (auto* chain = chains; chain; chain = chain->pNext) {
            projector.Forward(chain->pPoints, static_cast<int>(chain->nPoints));
            shown += chain->nPoints;
        }
        ProjFreeChains(chains);
        state.SetIterationTime(static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC);
    }
    using benchmark::Counter;
    state.counters[perPoint] =
        Counter(static_cast<double>(line.size()), Counter::kIsIterationInvariantRate | Counter::kInvert);
    state.counters["shown"] = static_cast<double>(shown);
}

} // namespace

void registerPreclipRows() {
    for (auto const& definition : cases())
        benchmark::RegisterBenchmark(("preclip/" + definition.name).c_str(), measure, definition)->UseManualTime();
}

} // namespace ZrProj::bench
