#include "table.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace ZrProj::bench {
namespace {

/// zrproj at the level that it takes by itself, the highest.
Contender const& ourBest(Group const& group) {
    return *std::ranges::find_if(group.contenders.rbegin(), group.contenders.rend(), &Contender::isOurs);
}

struct Mean {
    double logarithms = 0, least = HUGE_VAL;
    int count = 0;

    void add(double ratio) {
        logarithms += std::log(ratio);
        least = std::min(least, ratio);
        ++count;
    }
};
using Means = std::map<std::string, Mean>; // by peer

void printLine(Group const& group, Contender const& peer, char const* direction, Collector const& measured, int count,
               Means& means) {
    auto const time = [&](Contender const& who, int points) {
        return measured.nanoseconds(rowName(group.definition, direction, who, points));
    };
    auto const& best = ourBest(group);
    double const ours = time(best, count), theirs = time(peer, count);
    if (ours == 0 || theirs == 0)
        return;
    std::printf("%-30s %-8s %-14s %9.1f %9.1f %8.1f %9.1f %9.1f\n", group.definition.name.c_str(), direction,
                peer.name.c_str(), ours, theirs, theirs / ours, time(best, 1), time(peer, 1));
    means[peer.name].add(theirs / ours);
}

} // namespace

std::string rowName(Case const& definition, char const* direction, Contender const& contender, int count) {
    return definition.name + "/" + direction + "/" + contender.name + "/" + std::to_string(count);
}

void Collector::ReportRuns(std::vector<Run> const& runs) {
    for (auto const& run : runs)
        if (auto const counter = run.counters.find(perPoint); counter != run.counters.end())
            nanoseconds_[run.run_name.function_name] = counter->second.value * 1e9;
    ConsoleReporter::ReportRuns(runs);
}

double Collector::nanoseconds(std::string const& row) const {
    auto const found = nanoseconds_.find(row);
    return found == nanoseconds_.end() ? 0 : found->second;
}

void printTable(std::vector<Group> const& groups, Collector const& measured, int arrayCount) {
    Means means;
    std::printf("\nNanoseconds a point at the highest processor level, in arrays of %d points and alone\n", arrayCount);
    std::printf("%-30s %-8s %-14s %9s %9s %8s %9s %9s\n", "projection", "", "beside", "zrproj", "peer", "ratio",
                "alone", "peer");
    for (auto const& group : groups)
        for (char const* const direction : {"forward", "inverse"})
            for (auto const& contender : group.contenders)
                if (!contender.isOurs)
                    printLine(group, contender, direction, measured, arrayCount, means);
    for (auto const& [peer, mean] : means)
        std::printf("beside %s: %.1f times as fast as the geometric mean of %d rows, %.1f at least\n", peer.c_str(),
                    std::exp(mean.logarithms / mean.count), mean.count, mean.least);
}

} // namespace ZrProj::bench
