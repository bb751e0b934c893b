// The Transverse Mercator family of the records evaluates its series however far a point lies from the central
// meridian, and whatever the map coordinates. So here its map ends 45 degrees from that meridian and at the poles,
// places farther than 10 degrees out are told, and their map coordinates must lead back to themselves.
#include "door/projection.h"

#include <algorithm>
#include <array>

namespace ZrProj::Door {
namespace {

constexpr double lastDegrees = 45, farDegrees = 10;
// Parts of the radius: a millimetre on the Earth, and more than the series themselves miss by within 10 degrees of the
// meridian and over all of the map: 3 m and 100 km.
constexpr double poleTolerance = 1.6e-10, nearMiss = 5e-7, farMiss = 1 / 64.0;
// Krueger's series are stated to 3900 km from the central meridian (Karney 2011), which on the map is this part of the
// radius times the scale there, asinh(tan(3900 km / 6378.137 km)).
constexpr double kruegerReach = 0.6536;

/// Marked ones are not.
bool areWithinPoles(std::span<PROJPOINT const> places) {
    bool within = true;
    for (PROJPOINT const& place : places)
        within &= std::fabs(place.y) <= 90;
    return within;
}

} // namespace

std::variant<std::shared_ptr<Projection const>, systems::Unsupported>
Projection::make(systems::Conversion const& conversion) {
    systems::Conversion inTurn = conversion;
    inTurn.parameters.lon0 = wrapped(conversion.parameters.lon0);
    auto converter = systems::SystemConverter::make(inTurn);
    if (auto* const why = std::get_if<systems::Unsupported>(&converter))
        return std::move(*why);
    return std::shared_ptr<Projection const>(
        new Projection(inTurn, std::move(std::get<systems::SystemConverter>(converter))));
}

Projection::Kind Projection::kindOf(formulas::Method method) {
    switch (method) {
    case formulas::Method::none:
        return Kind::geographic;
    case formulas::Method::transverseMercator:
        return Kind::series;
    case formulas::Method::transverseMercatorExact:
        return Kind::krueger;
    default:
        return Kind::other;
    }
}

Projection::Projection(systems::Conversion const& conversion, systems::SystemConverter&& converter)
    : m_conversion(conversion), m_converter(std::move(converter)), m_kind(kindOf(conversion.method)),
      m_meridian(conversion.parameters.lon0 + conversion.meridian),
      m_radius(conversion.parameters.a * conversion.scale) {
    if (m_kind != Kind::series && m_kind != Kind::krueger)
        return;
    m_isApproximate = m_kind == Kind::series && conversion.parameters.f > 0;
    std::array poles{PROJPOINT{m_meridian, -90}, PROJPOINT{m_meridian, 90}};
    m_converter.forward(poles.data(), static_cast<int>(poles.size()));
    m_south = poles[0].y - poleTolerance * m_radius;
    m_north = poles[1].y + poleTolerance * m_radius;
    m_middle = poles[0].x;
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

/// What Krueger's series make of map coordinates.
Reason Projection::rangeOnMap(PROJPOINT const& map) const noexcept {
    return areWithinReach({&map, 1}) ? ZRPROJ_CONVERTED : ZRPROJ_FAR;
}

/// Whether they are all where Krueger's series are good; marked ones are not.
bool Projection::areWithinReach(std::span<PROJPOINT const> map) const noexcept {
    double const reach = kruegerReach * m_radius * m_conversion.parameters.k0;
    bool within = true;
    for (PROJPOINT const& point : map)
        within &= std::fabs(point.x - m_middle) <= reach;
    return within;
}

void Projection::forward(std::span<PROJPOINT> points, std::span<Reason> reasons) const noexcept {
    if (m_kind == Kind::series)
        for (std::size_t i = 0; i < points.size(); ++i)
            if (hasResult(reasons[i])) {
                points[i].x = beside(points[i].x);
                reasons[i] = std::max(reasons[i], rangeOf(points[i].x));
            }
    markLost(points, reasons);
    bool const lost = m_converter.forward(points.data(), static_cast<int>(points.size())).lost;
    if (!lost && (m_kind != Kind::krueger || areWithinReach(points)))
        return;
    for (std::size_t i = 0; i < points.size(); ++i) {
        if (!hasResult(reasons[i]))
            continue;
        if (levels::isMarked(points[i]))
            reasons[i] = ZRPROJ_NOT_SHOWN;
        else if (m_kind == Kind::krueger)
            reasons[i] = std::max(reasons[i], rangeOnMap(points[i]));
    }
}

/// Whether map coordinates are so near to the central meridian, for their distance from the poles, that a series cannot
/// go astray.
bool Projection::isSurelyGood(PROJPOINT const& map) const noexcept {
    double const room = std::min({m_north - map.y, map.y - m_south, m_radius});
    return std::fabs(map.x - m_middle) < std::tan(farDegrees * formulas::degree) * room;
}

/// What to think of the place that a series gives for map coordinates.
Reason Projection::reasonOfSeries(PROJPOINT const& map, PROJPOINT const& place) const noexcept {
    if (!(map.y >= m_south && map.y <= m_north))
        return ZRPROJ_OFF_THE_MAP;
    Reason const range = rangeOf(place.x);
    if (!hasResult(range))
        return ZRPROJ_OFF_THE_MAP;
    if (isSurelyGood(map))
        return range;
    PROJPOINT back = place;
    m_converter.forward(&back, 1);
    double const miss = std::fabs(back.x - map.x) + std::fabs(back.y - map.y);
    double const limit = range == ZRPROJ_FAR ? farMiss : nearMiss;
    return miss < limit * m_radius ? range : Reason{ZRPROJ_OFF_THE_MAP};
}

Reason Projection::reasonOfPlace(PROJPOINT const& place) const noexcept {
    if (levels::isMarked(place))
        return ZRPROJ_OFF_THE_MAP;
    return isGeographic() && std::fabs(place.y) > 90 ? ZRPROJ_BEYOND_POLE : ZRPROJ_CONVERTED;
}

/// What to think of the place that map coordinates lead to, which is brought beside the meridian of a series.
Reason Projection::reasonOfInverse(PROJPOINT const& map, PROJPOINT& place) const noexcept {
    Reason reason = reasonOfPlace(place);
    if (!hasResult(reason))
        return reason;
    if (m_kind == Kind::series) {
        place.x = beside(place.x);
        reason = std::max(reason, reasonOfSeries(map, place));
        place.x = wrapped(place.x);
    } else if (m_kind == Kind::krueger) {
        reason = std::max(reason, rangeOnMap(map));
    }
    return reason;
}

void Projection::inverse(std::span<PROJPOINT> points, std::span<Reason> reasons) const noexcept {
    markLost(points, reasons);
    std::array<PROJPOINT, blockPoints> map;
    if (m_kind == Kind::series || m_kind == Kind::krueger)
        std::ranges::copy(points, map.begin());
    bool const lost = m_converter.inverse(points.data(), static_cast<int>(points.size())).lost;
    if (!lost && (m_kind == Kind::other || (m_kind == Kind::krueger && areWithinReach({map.data(), points.size()})) ||
                  (isGeographic() && areWithinPoles(points))))
        return;
    for (std::size_t i = 0; i < points.size(); ++i)
        if (hasResult(reasons[i]))
            reasons[i] = std::max(reasons[i], reasonOfInverse(map[i], points[i]));
}

} // namespace ZrProj::Door
