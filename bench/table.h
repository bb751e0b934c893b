// What the rows come to: zrproj beside each of the others.
#pragma once

#include "contender.h"

#include <benchmark/benchmark.h>

#include <map>
#include <string>
#include <vector>

namespace ZrProj::bench {

inline constexpr char const* perPoint = "per_point"; // the counter that holds the seconds a point

/// How a row is called.
std::string rowName(Case const& definition, char const* direction, Contender const& contender, int count);

/// Prints the rows as usual, and keeps what they say.
class Collector : public benchmark::ConsoleReporter {
public:
    using ConsoleReporter::ConsoleReporter;
    void ReportRuns(std::vector<Run> const& runs) override;

    /// Nanoseconds a point; 0 where the row has not run.
    double nanoseconds(std::string const& row) const;

private:
    std::map<std::string, double> nanoseconds_;
};

struct Group {
    Case definition;
    std::vector<Contender> contenders;
};

/// One line for each projection, direction and peer that has run, and the geometric mean of each peer's ratios.
void printTable(std::vector<Group> const& groups, Collector const& measured, int arrayCount);

} // namespace ZrProj::bench
