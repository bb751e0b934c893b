#include "cli/text/svg.h"

#include <cmath>
#include <vector>

namespace ZrProj::Command {
namespace {

constexpr long long nearest = 4; // units: a point that is nearer to the one before is left out

struct Unit {
    long long x, y;

    bool isNear(Unit const& other) const {
        long long const dx = x - other.x, dy = y - other.y;
        return dx * dx + dy * dy < nearest * nearest;
    }
};

/// The points to draw; a line keeps its end.
std::vector<Unit> thinned(std::span<MapPoint const> points, bool closed) {
    std::vector<Unit> result;
    for (MapPoint const& p : points) {
        Unit const unit{wholeUnits(p.x), wholeUnits(p.y)};
        if (result.empty() || !unit.isNear(result.back()))
            result.push_back(unit);
        else if (&p == &points.back() && !closed && result.size() > 1)
            result.back() = unit;
    }
    while (closed && result.size() > 1 && result.back().isNear(result.front()))
        result.pop_back();
    return result;
}

void appendNumber(std::string& text, long long number, bool separate) {
    if (separate && number >= 0)
        text += ' ';
    text += std::to_string(number);
}

} // namespace

long long wholeUnits(double value) {
    constexpr double offHalf = 1e-3; // ties are where symmetric maps have points; this puts them elsewhere
    return std::llround(value + offHalf);
}

void SvgPath::add(std::span<MapPoint const> points, bool closed) {
    std::vector<Unit> const units = thinned(points, closed);
    if (units.size() < (closed ? 3U : 2U))
        return;
    m_data += 'M';
    appendNumber(m_data, units[0].x, false);
    appendNumber(m_data, units[0].y, true);
    for (std::size_t i = 1; i < units.size(); ++i) {
        if (i == 1)
            m_data += 'l';
        appendNumber(m_data, units[i].x - units[i - 1].x, i > 1);
        appendNumber(m_data, units[i].y - units[i - 1].y, true);
    }
    if (closed)
        m_data += 'z';
}

} // namespace ZrProj::Command
