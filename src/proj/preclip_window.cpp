// The area between two meridians and two parallels.
#include "proj/preclip_areas.h"

#include <algorithm>
#include <cfloat>
#include <cmath>

namespace ZrProj::preclip {

namespace {

constexpr double margin = 1.001 * formulas::lineInset; // to the map's true edge, and over its rounding

enum Side { southSide, eastSide, northSide, westSide };

} // namespace

WindowArea::WindowArea(formulas::Window const& window) : window_(window), middle_((window.west + window.east) / 2) {
    double const width = window.east - window.west, height = window.north - window.south;
    sides = {0, width, width + height, 2 * width + height, 2 * (width + height)};
    referenceBegin = sides[1];
    referenceEnd = sides[2];
}

double WindowArea::clampLon(double lon) const {
    return std::clamp(lon, window_.west, window_.east);
}

double WindowArea::clampLat(double lat) const {
    return std::clamp(lat, window_.south, window_.north);
}

bool WindowArea::moveOffSeam(Path& path, Unwrapped& unwrapped) const {
    if (!window_.wraps || window_.east - window_.west < 359)
        return false;
    auto const offset = [&](std::size_t i) { return std::remainder(unwrapped[i].x - middle_ - 180, 360); };
    auto const isOnSeam = [&](std::size_t i) { return std::fabs(offset(i)) < formulas::lineInset / 2; };
    std::size_t neighbour = 0;
    while (neighbour < path.points.size() && isOnSeam(neighbour))
        ++neighbour;
    bool const liesOnSeam = neighbour == path.points.size();
    for (std::size_t i = 0; i < path.points.size(); ++i) {
        if (!isOnSeam(i)) {
            neighbour = i;
            continue;
        }
        bool const isEastern = liesOnSeam ? path.points[0].x > middle_ : unwrapped[neighbour].x < unwrapped[i].x;
        unwrapped.move(i, (isEastern ? -formulas::lineInset : formulas::lineInset) - offset(i));
        path.points[i].x = isEastern ? window_.east : window_.west;
        path.isAsGiven = false;
    }
    return liesOnSeam;
}

WindowArea::Vertex WindowArea::vertexAt(PROJPOINT const& given, double lon) const {
    double const x = given.x - 360 * std::floor((given.x - middle_) / 360 + 0.5);
    double const turn = 360 * std::round((lon - x) / 360);
    bool const inside = x >= window_.west - margin && x <= window_.east + margin && given.y >= window_.south &&
                        given.y <= window_.north;
    return {lon, given.y, x, turn, inside};
}

bool WindowArea::isBesideEdge(double lon) const {
    return lon < window_.west - formulas::lineInset / 2 || lon > window_.east + formulas::lineInset / 2;
}

PROJPOINT WindowArea::shown(Vertex const& vertex, PROJPOINT const&) const {
    return {isBesideEdge(vertex.x) ? clampLon(vertex.x) : vertex.x, vertex.lat};
}

bool WindowArea::keepsAsGiven(Vertex const& vertex, PROJPOINT const& given) const {
    return !isBesideEdge(vertex.x) && (window_.wraps || given.x == vertex.x);
}

void WindowArea::crossings(Vertex const& a, Vertex const& b, Crossings& out) const {
    if (a.inside && b.inside && a.turn == b.turn)
        return;
    double const step = b.turn < a.turn ? -360 : 360;
    for (double turn = a.turn;; turn += step) {
        crossCopy(a, b, turn, out);
        if (turn == b.turn)
            return;
    }
}

/// Liang and Barsky (1984): the part of the segment that lies between the window's meridians and parallels.
void WindowArea::crossCopy(Vertex const& a, Vertex const& b, double turn, Crossings& out) const {
    double const dx = b.lon - a.lon, dy = b.lat - a.lat, x = a.lon - turn;
    double const speed[] = {-dy, dx, dy, -dx};
    double const west = window_.west - margin, east = window_.east + margin;
    double const room[] = {a.lat - window_.south, east - x, window_.north - a.lat, x - west};
    bool const startsHere = a.inside && a.turn == turn, endsHere = b.inside && b.turn == turn;
    double s0 = -DBL_MAX, s1 = DBL_MAX;
    int entry = southSide, exit = northSide;
    for (int side : {southSide, eastSide, northSide, westSide}) {
        double const s = room[side] / speed[side];
        if (speed[side] == 0) {
            if (room[side] < 0)
                return;
        } else if (speed[side] < 0 && s > s0) {
            s0 = s;
            entry = side;
        } else if (speed[side] > 0 && s < s1) {
            s1 = s;
            exit = side;
        }
    }
    if ((s0 > s1 || s0 > 1 || s1 < 0) && !startsHere && !endsHere)
        return;
    if (!startsHere)
        out.push_back(crossing(true, a, b, std::clamp(s0, 0.0, 1.0), entry, turn));
    if (!endsHere)
        out.push_back(crossing(false, a, b, std::clamp(s1, 0.0, 1.0), exit, turn));
}

Crossing WindowArea::crossing(bool enters, Vertex const& a, Vertex const& b, double s, int side, double turn) const {
    double const lon = clampLon(a.lon + s * (b.lon - a.lon) - turn), lat = clampLat(a.lat + s * (b.lat - a.lat));
    switch (side) {
    case southSide:
        return {enters, lon - window_.west, {lon, window_.south}};
    case eastSide:
        return {enters, sides[1] + (lat - window_.south), {window_.east, lat}};
    case northSide:
        return {enters, sides[2] + (window_.east - lon), {lon, window_.north}};
    default:
        return {enters, sides[3] + (window_.north - lat), {window_.west, lat}};
    }
}

PROJPOINT WindowArea::boundaryPoint(double t) const {
    if (t < sides[1])
        return {clampLon(window_.west + t), window_.south};
    if (t < sides[2])
        return {window_.east, clampLat(window_.south + (t - sides[1]))};
    if (t < sides[3])
        return {clampLon(window_.east - (t - sides[2])), window_.north};
    return {window_.west, clampLat(window_.north - (t - sides[3]))};
}

PROJPOINT WindowArea::outside(double t) const {
    return {window_.east + formulas::lineInset, window_.south + (t - sides[1])};
}

} // namespace ZrProj::preclip
