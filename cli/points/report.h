// What went wrong with lines and points, and how far a long conversion is: what standard error is told.
#pragma once

#include "cli/points/point_converter.h"
#include "cli/text/output.h"

#include <array>
#include <chrono>
#include <cstdint>
#include <string>
#include <utility>

namespace ZrProj::Command {

/// A bar on the terminal that shows how far a long conversion is.
class Progress {
public:
    /// total: bytes to read, 0 where that is not known. The bar shows only for large input, on a standard error that is
    /// a terminal, and not on a terminal where the results themselves appear.
    explicit Progress(unsigned long long total);
    ~Progress() { hide(); }
    Progress(Progress const&) = delete;
    Progress& operator=(Progress const&) = delete;

    void show(unsigned long long done);
    /// Clears the bar's line, for a message or for good.
    void hide();

private:
    unsigned long long m_total;
    bool m_visible = false;
    std::chrono::steady_clock::time_point m_next;
};

/// What went wrong with lines and points, for standard error and for the exit status.
class Report {
public:
    /// counted: what places are counted in, "line" or "feature".
    explicit Report(Progress& progress, std::string counted = "line")
        : m_progress(progress), m_counted(std::move(counted)) {}

    /// The file that lines or features are counted in from now on.
    void startFile(std::string name) { m_file = std::move(name); }
    /// A failure that is no line's.
    void failure(std::string const& message);
    /// A line or a feature that cannot be read.
    void badLine(std::uint64_t line, std::string const& reason);
    /// A point whose state is not Good.
    void point(PointState state, std::uint64_t line);

    /// Ends a conversion with the closing lines, or with what kept the results from being written. Returns the exit
    /// status: 1 after a failure or a bad line, and, if strict, after any point that is not Good; that of a closed pipe
    /// where whoever read the results has enough of them.
    int conclude(Output const& output, bool strict);

private:
    struct Count {
        std::uint64_t points = 0, places = 0;
        std::string listed, file; // the first places, and the file of the last one
        std::uint64_t last = 0;   // the number of that
    };

    void close();
    int status(bool strict) const;
    void say(std::string const& message);
    std::string place(std::uint64_t number) const;
    Count const& count(PointState state) const { return m_counts[static_cast<std::size_t>(state)]; }
    void closeCount(PointState state, std::string const& reason);

    Progress& m_progress;
    std::string m_counted, m_file;
    bool m_failed = false;
    std::uint64_t m_badLines = 0;
    std::array<Count, pointStates> m_counts; // by PointState
};

} // namespace ZrProj::Command
