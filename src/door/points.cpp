#include "door/points.h"

#include <thread>
#include <vector>

namespace ZrProj::Door {
namespace {

constexpr std::size_t leastForThreads = 50000, leastPerThread = 25000; // points
constexpr std::size_t mostThreads = 256;

std::size_t workersFor(std::size_t count, int threads) {
    std::size_t const wanted = threads < 0 ? std::thread::hardware_concurrency() : static_cast<std::size_t>(threads);
    if (count < leastForThreads)
        return 1;
    return std::clamp(std::min(wanted, count / leastPerThread), std::size_t{1}, mostThreads);
}

} // namespace

Answer check(PointArray const& points) {
    constexpr auto most = static_cast<std::size_t>(std::numeric_limits<std::ptrdiff_t>::max());
    auto const step = static_cast<std::size_t>(points.stride < 0 ? -(points.stride + 1) : points.stride);
    if (points.count == 0)
        return {};
    if (!points.x || !points.y)
        return badArgument("null pointer to coordinates");
    if (points.count > 1 && step < sizeof(double) - (points.stride < 0 ? 1 : 0))
        return badArgument("a stride of " + std::to_string(points.stride) + " bytes: the numbers overlap");
    if (points.count > most / std::max(step + 1, sizeof(double)))
        return badArgument("no memory holds " + std::to_string(points.count) + " points");
    return {};
}

Answer checkThreads(int threads) {
    return threads < -1 ? badArgument("threads below -1") : Answer{};
}

void share(std::size_t count, int threads, void (*work)(void const*, std::size_t, std::size_t),
           void const* context) noexcept {
    std::size_t const workers = workersFor(count, threads), part = count / workers;
    std::vector<std::thread> others;
    std::size_t begin = 0;
    try {
        others.reserve(workers - 1);
        for (; others.size() + 1 < workers; begin += part)
            others.emplace_back([=] {
                FloatingPointScope const scope;
                work(context, begin, begin + part);
            });
    } catch (std::exception const&) { // no thread, or no memory for one: what is left is done here
    }
    work(context, begin, count);
    for (std::thread& other : others)
        other.join();
}

} // namespace ZrProj::Door
