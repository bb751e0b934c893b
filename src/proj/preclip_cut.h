// Cuts paths to an area, see preclip_areas.h.
#pragma once

#include "proj/preclip_closing.h"

#include <algorithm>
#include <utility>

namespace ZrProj::preclip {

/// Adds what the area shows of a path to `out`.
template <class Area> void cut(Area const& area, Path path, std::vector<Path>& out) {
    Unwrapped unwrapped(path);
    if constexpr (requires { area.moveOffSeam(path, unwrapped); })
        if (area.moveOffSeam(path, unwrapped) && path.isRing)
            return; // a ring without width
    auto pieces = piecesOf(area, path, unwrapped);
    if (pieces.isWhole) {
        bool const enclosesComplement = path.isRing && !pieces.isBoundary && area.complementCanBeEnclosed() &&
                                        unwrapped.contains(area.pointOfComplement());
        if (pieces.isKept)
            out.push_back(std::move(path));
        else
            out.push_back({std::move(pieces.list.front().points), path.isRing, false});
        if (enclosesComplement)
            out.push_back(outline(area, unwrapped.interiorIsLeft()));
        return;
    }
    tidy(pieces.list, path.isRing);
    if (!path.isRing) {
        for (auto& piece : pieces.list)
            out.push_back({std::move(piece.points), false, false});
    } else if (!pieces.list.empty()) {
        std::ranges::move(Closing<Area>(area, pieces.list, unwrapped).rings(), std::back_inserter(out));
    } else if (unwrapped.contains(area.boundaryPoint((area.referenceBegin + area.referenceEnd) / 2))) {
        out.push_back(outline(area, unwrapped.interiorIsLeft()));
    }
}

/// Whether a path has too few points for a line, or for a ring, whose last point may be its first one again.
inline bool isSliver(Path const& path) {
    auto const& points = path.points;
    bool const repeats =
        path.isRing && points.size() > 1 && points.front().x == points.back().x && points.front().y == points.back().y;
    return points.size() - (repeats ? 1 : 0) < (path.isRing ? 3U : 2U);
}

/// What the area shows of paths.
template <class Area> std::vector<Path> cut(Area const& area, std::vector<Path> paths) {
    std::vector<Path> out;
    for (auto& path : paths)
        cut(area, std::move(path), out);
    std::erase_if(out, isSliver);
    return out;
}

} // namespace ZrProj::preclip
