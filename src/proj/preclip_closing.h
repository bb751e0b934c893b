// Closes the pieces of a ring along the boundary of an area, see preclip_areas.h.
//
// The crossings of a ring divide the boundary into arcs that lie inside the ring and outside of it by turns. At each
// crossing one piece of the ring ends and one arc inside of it, so that pieces and arcs make up closed curves whatever
// the ring looks like. Which arcs are inside is asked once, of a point on the longest one.
#pragma once

#include "proj/preclip_pieces.h"

#include <algorithm>
#include <cmath>

namespace ZrProj::preclip {

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
/// segments between them would leave it too far. The ends are left out.
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
                out_.push_back(area_.boundaryPoint(t));
                last = t;
            }
        }
        refine(last, to);
    }

private:
    void refine(double from, double to) {
        constexpr double least = 1e-4;
        if (to - from < least || area_.chordFollows(from, to))
            return;
        double const middle = (from + to) / 2;
        refine(from, middle);
        out_.push_back(area_.boundaryPoint(middle));
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
    Closing(Area const& area, std::vector<Piece> const& pieces, Unwrapped const& ring)
        : area_(area), pieces_(pieces), nodes_(nodesOf(pieces)), ends_(2 * pieces.size()) {
        for (std::size_t i = 0; i < nodes_.size(); ++i)
            ends_[2 * nodes_[i].piece + (nodes_[i].isStart ? 0 : 1)] = i;
        double const t = reference();
        auto const after = std::ranges::find_if(nodes_, [t](Node const& node) { return node.t > t; });
        bool const even = (after - nodes_.begin()) % 2 == 0;
        evenArcsAreInside_ = ring.contains(area.outside(t)) == even;
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
    /// A point on the longest arc that outside() knows. It is not the middle, through which a segment might well go.
    double reference() const {
        double last = area_.referenceBegin, chosen = last, best = 0;
        auto const consider = [&](double t) {
            double const end = std::clamp(t, area_.referenceBegin, area_.referenceEnd);
            if (end - last > best) {
                best = end - last;
                chosen = last + 0.47 * best;
            }
            last = end;
        };
        for (auto const& node : nodes_)
            consider(node.t);
        consider(area_.referenceEnd);
        return chosen;
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
        addBeside(from, out);
        if (arc == 0) {
            follow(area_, from, area_.sides.back(), out);
            out.push_back(area_.boundaryPoint(0));
        }
        follow(area_, arc == 0 ? 0 : from, to, out);
        addBeside(to, out);
    }

    /// Adds the boundary's point beside a cut where the boundary lies beside the cuts, unless it is the last point
    /// already.
    void addBeside(double t, std::vector<PROJPOINT>& out) const {
        if constexpr (Area::boundaryIsBeside)
            if (auto const point = area_.boundaryPoint(t); !isSamePoint(out.back(), point))
                out.push_back(point);
    }

    Area const& area_;
    std::vector<Piece> const& pieces_;
    std::vector<Node> nodes_;
    std::vector<std::size_t> ends_; // the nodes of each piece: its start, its end
    bool evenArcsAreInside_;
};

/// The whole boundary as a ring that has the area to its left or to its right.
template <class Area> Path outline(Area const& area, bool interiorIsLeft) {
    Path ring{{}, true, false};
    ring.points.push_back(area.boundaryPoint(0));
    follow(area, 0, area.sides.back(), ring.points);
    if (area.areaIsLeft() != interiorIsLeft)
        std::ranges::reverse(ring.points);
    return ring;
}

} // namespace ZrProj::preclip
