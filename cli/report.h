// What went wrong with lines and points, for standard error and for the exit status.
#pragma once

#include "cli/point_converter.h"
#include "cli/progress.h"

#include <array>
#include <cstdint>
#include <string>

namespace ZrProj::Command {

class Report {
public:
    explicit Report(Progress& progress) : m_progress(progress) {}

    /// The file that lines are counted in from now on.
    void startFile(std::string name) { m_file = std::move(name); }
    /// A failure that is no line's.
    void failure(std::string const& message);
    /// A line that cannot be read.
    void badLine(std::uint64_t line, std::string const& reason);
    /// A point whose state is not Good.
    void point(PointState state, std::uint64_t line);

    /// Writes the closing lines.
    void close();
    /// The exit status: 1 after a failure or a bad line, and, if strict, after any point that is not Good.
    int status(bool strict) const;

private:
    struct Count {
        std::uint64_t points = 0;
        std::string places, file; // the places listed, and the file of the last one
    };

    void say(std::string const& message);
    std::string place(std::uint64_t line) const { return m_file + ':' + std::to_string(line); }
    Count const& count(PointState state) const { return m_counts[static_cast<std::size_t>(state)]; }
    void closeCount(PointState state, std::string const& reason);

    Progress& m_progress;
    std::string m_file;
    bool m_failed = false;
    std::uint64_t m_badLines = 0;
    std::array<Count, 8> m_counts; // by PointState
};

} // namespace ZrProj::Command
