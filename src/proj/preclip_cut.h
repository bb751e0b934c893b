// Cuts paths to an area, see preclip_areas.h, and closes what is left of rings along the area's boundary.
//
// The crossings of a ring divide the boundary into arcs that lie inside the ring and outside of it by turns. At each
// crossing one piece of the ring ends and one arc inside of it, so that pieces and arcs make up closed curves whatever
// the ring looks like. Which arcs are inside is asked once, of the middle of the longest one.
#pragma once

#include "proj/preclip_areas.h"
#include "proj/preclip_path.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace ZrProj::preclip {

/// A piece of a path, from boundary to boundary; where the path itself begins or ends there is no parameter, but NaN.
struct Piece {
    std::vector<PROJPOINT> points;
    double from = NAN, to = NAN;
};

inline bool isSamePlace(PROJPOINT const& a, PROJPOINT const& b) {
    return std::fabs(std::remainder(a.x - b.x, 360.0)) < 2 * formulas::lineInset &&
           std::fabs(a.y - b.y) < 2 * formulas::lineInset;
}

/// Whether a piece is all in one place, which happens where a path touches the boundary.
inline bool isNothing(Piece const& piece) {
    return std::ranges::all_of(piece.points,
                               [&](PROJPOINT const& point) { return isSamePlace(point, piece.points.front()); });
}

/// A path in pieces, and what was seen of it on the way.
struct Pieces {
    std::vector<Piece> list;
    bool isWhole = true;    // nothing was cut off
    bool isKept = true;     // and no point changed
    bool isBoundary = true; // all of it lies on the boundary
};

template <class Area> Pieces piecesOf(Area const& area, Path const& path, Unrolled const& unrolled) {
    Pieces pieces;
    Crossings crossings;
    auto const& given = path.points;
    auto a = area.at(unrolled[0]);
    auto const add = [&](typename Area::Spot const& spot, PROJPOINT const& point) {
        pieces.isKept = pieces.isKept && area.keepsAsGiven(spot, point);
        pieces.isBoundary = pieces.isBoundary && area.isOnBoundary(spot);
        pieces.list.back().points.push_back(area.shown(spot, point));
    };
    bool inside = area.holds(a);
    if (inside) {
        pieces.list.emplace_back().points.reserve(given.size());
        add(a, given[0]);
    }
    pieces.isWhole = inside;
    for (std::size_t i = 1; i < unrolled.size(); ++i) {
        auto const b = area.at(unrolled[i]);
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
            if (points.empty() || !isSamePlace(points.back(), crossing.point))
                points.push_back(crossing.point);
            inside = crossing.enters;
        }
        if (inside && i < given.size())
            add(b, given[i]);
        a = b;
    }
    return pieces;
}

/// Joins the last piece of a ring to the first one, where the ring begins inside, and drops what is nothing.
inline void tidy(std::vector<Piece>& pieces, bool isRing) {
    if (isRing && pieces.size() > 1 && std::isnan(pieces.front().from) && std::isnan(pieces.back().to)) {
        auto& last = pieces.back();
        last.points.insert(last.points.end(), pieces.front().points.begin(), pieces.front().points.end());
        last.to = pieces.front().to;
        pieces.front() = std::move(last);
        pieces.pop_back();
    } else if (isRing && pieces.size() == 1 && std::isnan(pieces.front().from) != std::isnan(pieces.front().to)) {
        pieces.clear(); // a boundary crossed but once: rounding at a touching point
    }
    std::erase_if(pieces, isNothing);
}

/// Where on the boundary a piece begins or ends.
struct Node {
    double t;
    std::size_t piece;
    bool isStart;
};

inline std::vector<Node> nodesOf(std::vector<Piece> const& pieces) {
    std::vector<Node> nodes;
    for (std::size_t i = 0; i < pieces.size(); ++i) {
        nodes.push_back({pieces[i].from, i, true});
        nodes.push_back({pieces[i].to, i, false});
    }
    std::ranges::stable_sort(nodes, {}, &Node::t);
    return nodes;
}

/// Follows the boundary from one parameter to a greater one with points a degree apart at most, and less where the
/// edges between them would leave it too far. The ends are left out.
template <class Area> class Follower {
public:
    Follower(Area const& area, std::vector<PROJPOINT>& out) : area_(area), out_(out) {}

    void follow(double from, double to) {
        double last = from;
        for (std::size_t side = 0; side + 1 < area_.sides.size(); ++side) {
            double const begin = area_.sides[side], end = area_.sides[side + 1];
            int const count = static_cast<int>(std::ceil(end - begin));
            double const step = (end - begin) / count;
            for (int i = static_cast<int>(std::clamp(std::floor((from - begin) / step), 0.0, double(count)));
                 i < count && begin + i * step < to; ++i) {
                double const t = begin + i * step;
                if (t <= from)
                    continue;
                refine(last, t);
                out_.push_back(area_.onBoundary(t));
                last = t;
            }
        }
        refine(last, to);
    }

private:
    void refine(double from, double to) {
        constexpr double least = 1e-4;
        if (to - from < least || area_.isFollowed(from, to))
            return;
        double const middle = (from + to) / 2;
        refine(from, middle);
        out_.push_back(area_.onBoundary(middle));
        refine(middle, to);
    }

    Area const& area_;
    std::vector<PROJPOINT>& out_;
};

template <class Area> void follow(Area const& area, double from, double to, std::vector<PROJPOINT>& out) {
    Follower<Area>(area, out).follow(from, to);
}

/// The rings that pieces of a ring make up with what of the boundary lies inside the ring.
template <class Area> class Closing {
public:
    Closing(Area const& area, std::vector<Piece> const& pieces, Unrolled const& ring)
        : area_(area), pieces_(pieces), nodes_(nodesOf(pieces)), ends_(2 * pieces.size()) {
        for (std::size_t i = 0; i < nodes_.size(); ++i)
            ends_[2 * nodes_[i].piece + (nodes_[i].isStart ? 0 : 1)] = i;
        double const t = reference();
        auto const after = std::ranges::find_if(nodes_, [t](Node const& node) { return node.t > t; });
        bool const even = (after - nodes_.begin()) % 2 == 0;
        evenArcsAreInside_ = ring.holds(area.outside(t)) == even;
    }

    std::vector<Path> rings() const {
        std::vector<Path> rings;
        std::vector<bool> done(pieces_.size());
        for (std::size_t i = 0; i < pieces_.size(); ++i)
            if (!done[i])
                rings.push_back(ringFrom(i, done));
        return rings;
    }

private:
    /// The middle of the longest arc that outside() knows.
    double reference() const {
        double best = 0, middle = area_.referenceBegin, last = area_.referenceBegin;
        auto const consider = [&](double t) {
            double const end = std::clamp(t, area_.referenceBegin, area_.referenceEnd);
            if (end - last > best) {
                best = end - last;
                middle = last + best / 2;
            }
            last = end;
        };
        for (auto const& node : nodes_)
            consider(node.t);
        consider(area_.referenceEnd);
        return middle;
    }

    /// Arc i ends in node i; arc 0 begins in the last one.
    bool isInside(std::size_t arc) const { return (arc % 2 == 0) == evenArcsAreInside_; }

    Path ringFrom(std::size_t first, std::vector<bool>& done) const {
        Path ring{{}, true, false};
        std::size_t const start = ends_[2 * first];
        for (std::size_t node = start;;) {
            std::size_t const piece = nodes_[node].piece;
            auto const& points = pieces_[piece].points;
            done[piece] = true;
            if (nodes_[node].isStart)
                ring.points.insert(ring.points.end(), points.begin(), points.end());
            else
                ring.points.insert(ring.points.end(), points.rbegin(), points.rend());
            node = otherEndOfArc(ends_[2 * piece + (nodes_[node].isStart ? 1 : 0)], ring.points);
            if (node == start)
                return ring;
        }
    }

    std::size_t otherEndOfArc(std::size_t node, std::vector<PROJPOINT>& out) const {
        std::size_t const count = nodes_.size(), next = (node + 1) % count, previous = (node + count - 1) % count;
        if (isInside(next)) {
            followArc(next, out);
            return next;
        }
        auto const before = out.size();
        followArc(node, out);
        std::reverse(out.begin() + std::ptrdiff_t(before), out.end());
        return previous;
    }

    void followArc(std::size_t arc, std::vector<PROJPOINT>& out) const {
        double const from = nodes_[arc == 0 ? nodes_.size() - 1 : arc - 1].t, to = nodes_[arc].t;
        if (Area::boundaryIsBeside)
            out.push_back(area_.onBoundary(from));
        if (arc == 0) {
            follow(area_, from, area_.sides.back(), out);
            out.push_back(area_.onBoundary(0));
        }
        follow(area_, arc == 0 ? 0 : from, to, out);
        if (Area::boundaryIsBeside)
            out.push_back(area_.onBoundary(to));
    }

    Area const& area_;
    std::vector<Piece> const& pieces_;
    std::vector<Node> nodes_;
    std::vector<std::size_t> ends_; // the nodes of each piece: its start, its end
    bool evenArcsAreInside_;
};

template <class Area> Path outline(Area const& area, bool holdsItsLeft) {
    Path ring{{}, true, false};
    ring.points.push_back(area.onBoundary(0));
    follow(area, 0, area.sides.back(), ring.points);
    if (area.areaIsLeft() != holdsItsLeft)
        std::ranges::reverse(ring.points);
    return ring;
}

/// What the area shows of a path.
template <class Area> void cut(Area const& area, Path path, std::vector<Path>& out) {
    Unrolled unrolled(path);
    if constexpr (requires { area.settle(path, unrolled); })
        area.settle(path, unrolled);
    auto pieces = piecesOf(area, path, unrolled);
    if (pieces.isWhole) {
        bool const isBoundary = pieces.isBoundary;
        if (!pieces.isKept)
            path = {std::move(pieces.list.front().points), path.isRing, false};
        bool const isRing = path.isRing;
        out.push_back(std::move(path));
        if (isRing && !isBoundary && area.canBeHeld() && unrolled.holds(area.farOutside()))
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

/// Whether a path is too short for a line or a ring, whose last point may be its first one again.
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
