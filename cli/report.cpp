#include "cli/report.h"

#include <cstdio>

namespace ZrProj::Command {
namespace {

constexpr std::uint64_t mostBadLines = 100; // shown one by one
constexpr std::uint64_t mostPlaces = 5;

std::string pointsText(std::uint64_t count) {
    return std::to_string(count) + (count == 1 ? " point" : " points");
}

} // namespace

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

void Report::point(PointState state, std::uint64_t line) {
    Count& count = m_counts[static_cast<std::size_t>(state)];
    if (count.points++ >= mostPlaces)
        return;
    count.places += count.places.empty() ? "" : ", ";
    count.places += count.file == m_file ? std::to_string(line) : place(line);
    count.file = m_file;
}

void Report::closeCount(PointState state, std::string const& reason) {
    Count const& counted = count(state);
    if (counted.points == 0)
        return;
    say("zrproj: " + pointsText(counted.points) + ' ' + reason + " (" + counted.places +
        (counted.points > mostPlaces ? ", ...)" : ")"));
}

void Report::close() {
    closeCount(PointState::Outside, "not converted: outside the projection's usable area");
    closeCount(PointState::NoResult, "not converted: the formulas have no result there");
    closeCount(PointState::Marked, "not converted: already marked * in the input");
    closeCount(PointState::Far,
               "converted, but off by metres to kilometres: more than 10 degrees from the central meridian");
    closeCount(PointState::OffGrid, "not shifted to another datum: outside its grid");
    closeCount(PointState::OffArea,
               "shifted to another datum, but off by 50 metres or far more: outside the area of its equations");
    if (m_badLines > 0)
        say("zrproj: " + std::to_string(m_badLines) + (m_badLines == 1 ? " line" : " lines") + " could not be read" +
            (m_badLines > mostBadLines ? "; the first " + std::to_string(mostBadLines) + " are shown above" : ""));
}

int Report::status(bool strict) const {
    bool lost = false;
    for (PointState state : {PointState::Far, PointState::OffGrid, PointState::OffArea, PointState::Marked,
                             PointState::Outside, PointState::NoResult})
        lost = lost || count(state).points > 0;
    return m_failed || m_badLines > 0 || (strict && lost) ? 1 : 0;
}

} // namespace ZrProj::Command
