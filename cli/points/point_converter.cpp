#include "cli/points/point_converter.h"

#include "cli/text/usage_error.h"

#include <cfloat>
#include <stdexcept>
#include <vector>

namespace ZrProj::Command {
namespace {

constexpr PROJPOINT mark{DBL_MAX, DBL_MAX};

/// `byParameters`: whether the map is a record's, whose series is good near its meridian only.
PointState stateOnWay(unsigned char reason, bool byParameters) {
    switch (reason) {
    case ZRPROJ_CONVERTED:
        return PointState::Good;
    case ZRPROJ_FAR:
        return byParameters ? PointState::Far : PointState::Remote;
    case ZRPROJ_OUT_OF_AREA:
        return PointState::OutOfArea;
    case ZRPROJ_OFF_THE_GRID:
        return PointState::Ungridded;
    case ZRPROJ_NOT_FINITE:
        return PointState::NoResult;
    default:
        return PointState::Outside;
    }
}

PointState stateOnDatum(unsigned char reason) {
    switch (reason) {
    case ZRPROJ_CONVERTED:
        return PointState::Good;
    case ZRPROJ_OUT_OF_AREA:
        return PointState::OffArea;
    case ZRPROJ_OFF_THE_GRID:
        return PointState::OffGrid;
    default:
        return PointState::NoResult;
    }
}

WayPointer wayOnto(SystemPointer const& map) {
    if (map->isGeographic())
        throw UsageError(map->text(ZRPROJ_NAME) + " has longitudes and latitudes already; there is nothing to convert");
    return std::make_shared<Way const>(map->geographic(), map);
}

} // namespace

PointConverter::PointConverter(SystemPointer const& map) : PointConverter(wayOnto(map)) {}

void PointConverter::convert(bool backwards, std::span<PROJPOINT> points, std::span<PointState> states) const {
    for (std::size_t i = 0; i < points.size(); ++i)
        if (states[i] != PointState::Good)
            points[i] = mark;
    if (points.empty())
        return;
    bool const byParameters = m_way->from().isByParameters() || m_way->to().isByParameters();
    std::vector<unsigned char> reasons(points.size());
    if (zrproj_transform_points(m_way->handle(), backwards, &points.data()->x, &points.data()->y, sizeof(PROJPOINT),
                                points.size(), reasons.data()) != ZRPROJ_OK)
        throw std::runtime_error(zrproj_message());
    for (std::size_t i = 0; i < points.size(); ++i) {
        if (states[i] == PointState::Good)
            states[i] = stateOnWay(reasons[i], byParameters);
        if (!hasResult(states[i]))
            points[i] = mark;
    }
}

DatumConverter::DatumConverter(DatumShift const& shift) {
    auto const from = parametersOf(shift.from), to = parametersOf(shift.to);
    zrproj_datum_shift* made = nullptr;
    if (zrproj_datum_shift_create(&from, &to, &made) != ZRPROJ_OK)
        throw UsageError(zrproj_message());
    m_shift.reset(made);
}

void DatumConverter::convert(std::span<PROJPOINT> points, std::span<PointState> states) const {
    if (points.empty())
        return;
    std::vector<PROJPOINT> const given(points.begin(), points.end());
    std::vector<unsigned char> reasons(points.size());
    if (zrproj_datum_shift_points(m_shift.get(), &points.data()->x, &points.data()->y, sizeof(PROJPOINT), points.size(),
                                  reasons.data()) != ZRPROJ_OK)
        throw std::runtime_error(std::string("the datum conversion fails: ") + zrproj_message());
    for (std::size_t i = 0; i < points.size(); ++i) {
        PointState const state = stateOnDatum(reasons[i]);
        if (hasResult(states[i]) && state != PointState::Good)
            states[i] = state;
        if (!hasResult(states[i]))
            points[i] = mark;
        else if (state == PointState::OffGrid)
            points[i] = given[i];
    }
}

} // namespace ZrProj::Command
