#include "cli/points/report.h"

#include "cli/text/text.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <string>

#include <unistd.h>

namespace ZrProj::Command {
namespace {

constexpr unsigned long long largeInput = 16ULL << 20;
constexpr auto pause = std::chrono::milliseconds(100);

} // namespace

Progress::Progress(unsigned long long total)
    : m_total(total >= largeInput && isatty(STDERR_FILENO) && !isatty(STDOUT_FILENO) ? total : 0),
      m_next(std::chrono::steady_clock::now() + 2 * pause) {}

void Progress::show(unsigned long long done) {
    if (m_total == 0 || std::chrono::steady_clock::now() < m_next)
        return;
    m_next = std::chrono::steady_clock::now() + pause;
    m_visible = true;
    constexpr std::size_t width = 40;
    auto const percent = std::min(100 * done / m_total, 100ULL);
    std::string bar(width * percent / 100, '#');
    bar.resize(width, '.');
    std::fprintf(stderr, "\r[%s] %3llu %%", bar.c_str(), percent);
}

void Progress::hide() {
    if (m_visible)
        std::fprintf(stderr, "\r\033[K");
    m_visible = false;
}

namespace {

constexpr std::uint64_t mostBadLines = 100; // shown one by one
constexpr std::uint64_t mostPlaces = 5;
constexpr int pipeClosedStatus = 141; // as a shell reports a program that the closed pipe's signal ended

std::string pointsText(std::uint64_t count) {
    return std::to_string(count) + (count == 1 ? " point" : " points");
}

} // namespace

/// "file:3", "file: feature 3".
std::string Report::place(std::uint64_t number) const {
    return m_file + (m_counted == "line" ? ":" : ": " + m_counted + ' ') + std::to_string(number);
}

void Report::say(std::string const& message) {
    m_progress.hide();
    std::fprintf(stderr, "%s\n", message.c_str());
}

void Report::failure(std::string const& message) {
    m_failed = true;
    say("zrproj: " + message);
}

void Report::badLine(std::uint64_t line, std::string const& reason) {
    if (m_badLines++ < mostBadLines)
        say(place(line) + ": " + reason);
}

/// Lists a place once, however many points are there.
void Report::point(PointState state, std::uint64_t line) {
    Count& count = m_counts[static_cast<std::size_t>(state)];
    ++count.points;
    bool const sameFile = count.file == m_file;
    if (count.places > mostPlaces || (count.places > 0 && sameFile && count.last == line))
        return;
    if (count.places++ == mostPlaces) {
        count.listed += ", ...";
        return;
    }
    count.listed += count.listed.empty() ? "" : ", ";
    count.listed += sameFile ? std::to_string(line) : place(line);
    count.file = m_file;
    count.last = line;
}

void Report::closeCount(PointState state, std::string const& reason) {
    Count const& counted = count(state);
    if (counted.points == 0)
        return;
    say("zrproj: " + pointsText(counted.points) + ' ' + reason + " (" + counted.listed + ')');
}

void Report::close() {
    closeCount(PointState::Outside, "not converted: outside the projection's usable area");
    closeCount(PointState::NoResult, "not converted: the formulas have no result there");
    closeCount(PointState::Marked, "not converted: already marked * in the input");
    closeCount(PointState::Far,
               "converted, but off by metres to kilometres: more than 10 degrees from the central meridian");
    closeCount(PointState::Remote,
               "converted, but more than 3,900 km from the central meridian, as far as the accuracy is stated");
    closeCount(PointState::Ungridded, "not converted: outside the grid that the way between the datums needs");
    closeCount(PointState::OutOfArea, "converted, but outside the area that the way between the datums is stated for");
    closeCount(PointState::OffGrid, "not shifted to another datum: outside its grid");
    closeCount(PointState::OffArea,
               "shifted to another datum, but off by 50 metres or far more: outside the area of its equations");
    if (m_badLines > 0)
        say("zrproj: " + std::to_string(m_badLines) + ' ' + m_counted + (m_badLines == 1 ? "" : "s") +
            " could not be read" +
            (m_badLines > mostBadLines ? "; the first " + std::to_string(mostBadLines) + " are shown above" : ""));
}

int Report::conclude(Output const& output, bool strict) {
    if (output.error() == EPIPE) // whoever read the results has enough of them
        return pipeClosedStatus;
    if (output.error())
        failure("cannot write standard output: " + systemMessage(output.error()));
    else
        close();
    return status(strict);
}

int Report::status(bool strict) const {
    bool lost = false;
    for (PointState state :
         {PointState::Far, PointState::Remote, PointState::OffGrid, PointState::OffArea, PointState::OutOfArea,
          PointState::Marked, PointState::Outside, PointState::Ungridded, PointState::NoResult})
        lost = lost || count(state).points > 0;
    return m_failed || m_badLines > 0 || (strict && lost) ? 1 : 0;
}

} // namespace ZrProj::Command
