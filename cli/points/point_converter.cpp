#include "cli/points/point_converter.h"

#include "cli/model/parameters.h"
#include "cli/model/zones.h"
#include "cli/text/usage_error.h"

#include <algorithm>
#include <cfloat>
#include <cmath>

namespace ZrProj::Command {
namespace {

constexpr PROJPOINT mark{DBL_MAX, DBL_MAX};
constexpr double farDegrees = 10;
constexpr double meaninglessMiss = 1e5; // metres; the series themselves miss by less over the usable area

bool isMarked(PROJPOINT point) {
    return point.x == DBL_MAX || point.y == DBL_MAX;
}

/// Whether there is a map at all: some of these points are on every one.
bool hasMap(CProjector& projector, PROJDATA const& record) {
    for (double const lat : {-60.0, -0.5, 0.5, 60.0}) {
        PROJPOINT const point{std::remainder(record.Lon0 + 0.5, 360), lat};
        if (projector.LLInProjection(&point))
            return true;
    }
    return false;
}

/// The record that the formulas see: of a State Plane zone its definition's.
PROJDATA underlying(PROJDATA const& record) {
    PROJDATA result = record;
    if (record.Type == ProjTypeStatePlane1927 || record.Type == ProjTypeStatePlane1983)
        ProjGetStateZoneParams(&result);
    return result;
}

bool isSeries(ProjType type) {
    return type == ProjTypeUniversalTransverseMercator || type == ProjTypeTransverseMercator ||
           type == ProjTypeGaussKruger;
}

} // namespace

PointConverter::PointConverter(PROJDATA record) : m_record(underlying(record)), m_series(isSeries(m_record.Type)) {
    if (record.Type == ProjTypeUnprojectedLatLong)
        throw UsageError(projectionName(record.Type) + " leaves points as they are; there is nothing to convert");
    record.Lon0 = m_record.Type == record.Type ? std::remainder(record.Lon0, 360) : record.Lon0;
    m_projector.Create(&record);
    m_projector.GetInfo(&record);
    m_record = underlying(record);
    if (!hasMap(m_projector, m_record))
        throw UsageError(noMapText(m_record));
}

/// The longitude within 180 degrees of the central one.
double PointConverter::beside(double longitude) const {
    double const offset = longitude - m_record.Lon0;
    return std::fabs(offset) <= 180 ? longitude : m_record.Lon0 + std::remainder(offset, 360);
}

void PointConverter::keepInside(std::span<PROJPOINT const> points, std::span<PointState> states) {
    for (std::size_t i = 0; i < points.size(); ++i)
        if (states[i] == PointState::Good && !m_projector.LLInProjection(&points[i]))
            states[i] = PointState::Outside;
}

/// Converts `from` to `to`; where the call as a whole fails, point by point.
void PointConverter::apply(Method method, std::span<PROJPOINT const> from, std::span<PROJPOINT> to) {
    std::copy(from.begin(), from.end(), to.begin());
    if ((m_projector.*method)(to.data(), static_cast<int>(to.size())))
        return;
    for (std::size_t i = 0; i < from.size(); ++i) {
        to[i] = from[i];
        if (!(m_projector.*method)(&to[i], 1))
            to[i] = mark;
    }
}

/// Converts the points that are still Good, and marks the others.
void PointConverter::convert(Method method, std::span<PROJPOINT> points, std::span<PointState> states) {
    for (std::size_t i = 0; i < points.size(); ++i)
        if (states[i] != PointState::Good)
            points[i] = mark;
    m_before.assign(points.begin(), points.end());
    apply(method, m_before, points);
    for (std::size_t i = 0; i < points.size(); ++i)
        if (states[i] == PointState::Good && isMarked(points[i]))
            states[i] = PointState::NoResult;
}

/// Refuses results of the inverse that the forward conversion does not bring back anywhere near the point.
void PointConverter::refuseUnreturning(std::span<PROJPOINT const> points, std::span<PointState> states) {
    m_back.resize(points.size());
    apply(&CProjector::Forward, points, m_back);
    double const limit = meaninglessMiss * m_record.Scale;
    for (std::size_t i = 0; i < points.size(); ++i) {
        double const missed = std::fabs(m_back[i].x - m_before[i].x) + std::fabs(m_back[i].y - m_before[i].y);
        if (states[i] == PointState::Good && !(missed < limit))
            states[i] = PointState::Outside;
    }
}

/// On a sphere the formulas are closed, and good everywhere.
void PointConverter::tellFar(std::span<PROJPOINT const> points, std::span<PointState> states) const {
    if (m_record.Flattening == 0)
        return;
    for (std::size_t i = 0; i < points.size(); ++i)
        if (states[i] == PointState::Good && std::fabs(points[i].x - m_record.Lon0) > farDegrees)
            states[i] = PointState::Far;
}

void PointConverter::forward(std::span<PROJPOINT> points, std::span<PointState> states) {
    for (PROJPOINT& point : points)
        point.x = beside(point.x);
    keepInside(points, states);
    convert(&CProjector::Forward, points, states);
    if (m_series)
        tellFar(m_before, states);
}

void PointConverter::inverse(std::span<PROJPOINT> points, std::span<PointState> states) {
    convert(&CProjector::Inverse, points, states);
    for (PROJPOINT& point : points)
        point.x = beside(point.x);
    if (m_series) {
        keepInside(points, states);
        refuseUnreturning(points, states);
        tellFar(points, states);
    }
    for (PROJPOINT& point : points)
        point.x = std::fabs(point.x) <= 180 ? point.x : std::remainder(point.x, 360);
}

} // namespace ZrProj::Command
