// Cuts paths to an area, see preclip_areas.h.
#pragma once

#include "proj/preclip_closing.h"

#include <algorithm>
#include <utility>

namespace ZrProj::preclip {

/// What the area shows of a path.
template <class Area> void cut(Area const& area, Path path, std::vector<Path>& out) {
    Unrolled unrolled(path);
    if constexpr (requires { area.settle(path, unrolled); })
        if (area.settle(path, unrolled) && path.isRing)
            return; // without width
    auto pieces = piecesOf(area, path, unrolled);
    if (pieces.isWhole) {
        bool const goesAround =
            path.isRing && !pieces.isBoundary && area.canBeHeld() && unrolled.holds(area.farOutside());
        if (pieces.isKept)
            out.push_back(std::move(path));
        else
            out.push_back({std::move(pieces.list.front().points), path.isRing, false});
        if (goesAround)
            out.push_back(outline(area, unrolled.holdsItsLeft()));
        return;
    }
    tidy(pieces.list, path.isRing);
    if (!path.isRing) {
        for (auto& piece : pieces.list)
            out.push_back({std::move(piece.points), false, false});
    } else if (!pieces.list.empty()) {
        std::ranges::move(Closing<Area>(area, pieces.list, unrolled).rings(), std::back_inserter(out));
    } else if (unrolled.holds(area.onBoundary((area.referenceBegin + area.referenceEnd) / 2))) {
        out.push_back(outline(area, unrolled.holdsItsLeft()));
    }
}

/// Whether a path is too short for a line, or for a ring, whose last point may be its first one again.
inline bool isSliver(Path const& path) {
    auto const& points = path.points;
    bool const repeats =
        path.isRing && points.size() > 1 && points.front().x == points.back().x && points.front().y == points.back().y;
    return points.size() - (repeats ? 1 : 0) < (path.isRing ? 3U : 2U);
}

template <class Area> std::vector<Path> cut(Area const& area, std::vector<Path> paths) {
    std::vector<Path> out;
    for (auto& path : paths)
        cut(area, std::move(path), out);
    std::erase_if(out, isSliver);
    return out;
}

} // namespace ZrProj::preclip
