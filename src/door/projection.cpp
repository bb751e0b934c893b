// The Transverse Mercator family evaluates its series however far a point lies from the central meridian, and whatever
// the map coordinates. So here its map ends 45 degrees from that meridian and at the poles, places farther than 10
// degrees out are told, and their map coordinates must lead back to themselves.
#include "door/projection.h"

#include <algorithm>
#include <array>
#include <cfloat>

namespace ZrProj::Door {
namespace {

constexpr PROJPOINT mark{DBL_MAX, DBL_MAX};
constexpr double lastDegrees = 45, farDegrees = 10;
// Parts of the radius: a millimetre on the Earth, and more than the series themselves miss by within 10 degrees of the
// meridian and over all of the map: 3 m and 100 km.
constexpr double poleTolerance = 1.6e-10, nearMiss = 5e-7, farMiss = 1 / 64.0;

bool isMarked(PROJPOINT const& point) {
    return point.x == DBL_MAX || point.y == DBL_MAX;
}

bool isTransverse(ProjType type) {
    return type == ProjTypeUniversalTransverseMercator || type == ProjTypeTransverseMercator ||
           type == ProjTypeGaussKruger;
}

} // namespace

std::shared_ptr<Projection const> Projection::make(zrproj_parameters const& parameters) {
    PROJDATA record = recordOf(parameters);
    if (isTransverse(record.Type))
        record.Lon0 = wrapped(record.Lon0);
    PROJDATA definition = record;
    ProjGetStateZoneParams(&definition);
    Handle handle(ProjCreateProjection(&record));
    if (!handle)
        throw std::bad_alloc();
    std::unique_ptr<Projection> projection(new Projection(std::move(handle), definition));
    return projection->converter().forward ? std::shared_ptr<Projection const>(std::move(projection)) : nullptr;
}

Projection::Projection(Handle handle, PROJDATA const& definition)
    : m_handle(std::move(handle)), m_isSeries(isTransverse(definition.Type)),
      m_isApproximate(m_isSeries && definition.Flattening > 0), m_meridian(definition.Lon0),
      m_radius(definition.MajorRadius * definition.Scale) {
    if (!m_isSeries || !converter().forward)
        return;
    std::array poles{PROJPOINT{m_meridian, -90}, PROJPOINT{m_meridian, 90}};
    run(&formulas::Converter::forward, poles);
    m_south = poles[0].y - poleTolerance * m_radius;
    m_north = poles[1].y + poleTolerance * m_radius;
    m_middle = poles[0].x;
}

/// The one place where the converters are called.
void Projection::run(formulas::Converter::Direction direction, std::span<PROJPOINT> points) const noexcept {
    converter().convert(direction, levels::pointsOf(points.data(), points.size()), {.keepsMarked = true});
}

/// The longitude within 180 degrees of the central one.
double Projection::beside(double longitude) const noexcept {
    double const offset = longitude - m_meridian;
    return std::fabs(offset) <= 180 ? longitude : m_meridian + std::remainder(offset, 360);
}

/// What a series makes of a longitude beside its meridian.
Reason Projection::rangeOf(double longitude) const noexcept {
    double const offset = std::fabs(longitude - m_meridian);
    if (!(offset < lastDegrees))
        return ZRPROJ_NOT_SHOWN;
    return m_isApproximate && offset > farDegrees ? ZRPROJ_FAR : ZRPROJ_CONVERTED;
}

void Projection::forward(std::span<PROJPOINT> points, std::span<Reason> reasons) const noexcept {
    for (std::size_t i = 0; i < points.size(); ++i) {
        if (m_isSeries && hasResult(reasons[i])) {
            points[i].x = beside(points[i].x);
            reasons[i] = std::max(reasons[i], rangeOf(points[i].x));
        }
        if (!hasResult(reasons[i]))
            points[i] = mark;
    }
    run(&formulas::Converter::forward, points);
    for (std::size_t i = 0; i < points.size(); ++i)
        if (hasResult(reasons[i]) && isMarked(points[i]))
            reasons[i] = ZRPROJ_NOT_SHOWN;
}

/// Whether map coordinates are so near to the central meridian, for their distance from the poles, that a series cannot
/// go astray.
bool Projection::isSurelyGood(PROJPOINT const& map) const noexcept {
    double const room = std::min({m_north - map.y, map.y - m_south, m_radius});
    return std::fabs(map.x - m_middle) < std::tan(farDegrees * formulas::degree) * room;
}

/// What to think of the place that a series gives for map coordinates.
Reason Projection::reasonOfResult(PROJPOINT const& map, PROJPOINT const& place) const noexcept {
    if (!(map.y >= m_south && map.y <= m_north))
        return ZRPROJ_OFF_THE_MAP;
    Reason const range = rangeOf(place.x);
    if (!hasResult(range))
        return ZRPROJ_OFF_THE_MAP;
    if (isSurelyGood(map))
        return range;
    PROJPOINT back = place;
    run(&formulas::Converter::forward, {&back, 1});
    double const miss = std::fabs(back.x - map.x) + std::fabs(back.y - map.y);
    double const limit = range == ZRPROJ_FAR ? farMiss : nearMiss;
    return miss < limit * m_radius ? range : Reason{ZRPROJ_OFF_THE_MAP};
}

void Projection::inverse(std::span<PROJPOINT> points, std::span<Reason> reasons) const noexcept {
    constexpr std::size_t most = 512;
    std::array<PROJPOINT, most> map;
    for (; points.size() > most; points = points.subspan(most), reasons = reasons.subspan(most))
        inverse(points.first(most), reasons.first(most));
    for (std::size_t i = 0; i < points.size(); ++i)
        if (!hasResult(reasons[i]))
            points[i] = mark;
    if (m_isSeries)
        std::ranges::copy(points, map.begin());
    run(&formulas::Converter::inverse, points);
    for (std::size_t i = 0; i < points.size(); ++i) {
        if (!hasResult(reasons[i]))
            continue;
        if (isMarked(points[i])) {
            reasons[i] = ZRPROJ_OFF_THE_MAP;
            continue;
        }
        if (m_isSeries) {
            points[i].x = beside(points[i].x);
            reasons[i] = std::max(reasons[i], reasonOfResult(map[i], points[i]));
        }
        points[i].x = wrapped(points[i].x);
    }
}

} // namespace ZrProj::Door
