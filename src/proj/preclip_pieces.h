// The pieces of a path that lie in an area, see preclip_areas.h.
#pragma once

#include "proj/preclip_areas.h"
#include "proj/preclip_path.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace ZrProj::preclip {

/// A piece of a path, from boundary to boundary, with the parameters of its ends. An end of the path itself has NaN.
struct Piece {
    std::vector<PROJPOINT> points;
    double from = NAN, to = NAN;
};

/// Whether two points are the same up to the distance between a cut and the edge of the map.
inline bool isSamePoint(PROJPOINT const& a, PROJPOINT const& b) {
    return std::fabs(std::remainder(a.x - b.x, 360.0)) < 2 * formulas::lineInset &&
           std::fabs(a.y - b.y) < 2 * formulas::lineInset;
}

/// Whether all points of a piece are the same, which happens where a path touches the boundary.
inline bool isSinglePoint(Piece const& piece) {
    return std::ranges::all_of(piece.points,
                               [&](PROJPOINT const& point) { return isSamePoint(point, piece.points.front()); });
}

/// A path in pieces, and what cutting it has shown of it.
struct Pieces {
    std::vector<Piece> list;
    bool isWhole = true;    // nothing was cut off
    bool isKept = true;     // no point changed
    bool isBoundary = true; // all of it lies on the boundary
};

/// Cuts a path where it crosses the boundary of an area.
template <class Area> Pieces piecesOf(Area const& area, Path const& path, Unwrapped const& unwrapped) {
    Pieces pieces;
    Crossings crossings;
    auto const& given = path.points;
    auto a = area.vertexAt(given[0], unwrapped[0].x);
    auto const add = [&](typename Area::Vertex const& vertex, PROJPOINT const& point) {
        pieces.isKept = pieces.isKept && area.keepsAsGiven(vertex, point);
        pieces.isBoundary = pieces.isBoundary && area.isOnBoundary(vertex);
        pieces.list.back().points.push_back(area.shown(vertex, point));
    };
    bool inside = area.contains(a);
    if (inside) {
        pieces.list.emplace_back().points.reserve(given.size());
        add(a, given[0]);
    }
    pieces.isWhole = inside;
    for (std::size_t i = 1; i < unwrapped.size(); ++i) {
        auto const b = area.vertexAt(given[i % given.size()], unwrapped[i].x);
        crossings.clear();
        area.crossings(a, b, crossings);
        for (auto const& crossing : crossings) {
            if (crossing.enters == inside)
                continue;
            pieces.isWhole = false;
            if (crossing.enters)
                pieces.list.emplace_back().from = crossing.t;
            else
                pieces.list.back().to = crossing.t;
            auto& points = pieces.list.back().points;
            if (points.empty() || !isSamePoint(points.back(), crossing.point))
                points.push_back(crossing.point);
            inside = crossing.enters;
        }
        if (inside && i < given.size())
            add(b, given[i]);
        a = b;
    }
    return pieces;
}

/// Joins the last piece of a ring to the first one, where the ring begins inside, and drops pieces of a single point.
inline void tidy(std::vector<Piece>& pieces, bool isRing) {
    if (isRing && pieces.size() > 1 && std::isnan(pieces.front().from) && std::isnan(pieces.back().to)) {
        auto& last = pieces.back();
        last.points.insert(last.points.end(), pieces.front().points.begin(), pieces.front().points.end());
        last.to = pieces.front().to;
        pieces.front() = std::move(last);
        pieces.pop_back();
    }
    auto const isOpen = [](Piece const& piece) { return std::isnan(piece.from) || std::isnan(piece.to); };
    if (isRing && std::ranges::any_of(pieces, isOpen))
        pieces.clear(); // a boundary crossed but once: rounding at a touching point
    std::erase_if(pieces, isSinglePoint);
}

} // namespace ZrProj::preclip
