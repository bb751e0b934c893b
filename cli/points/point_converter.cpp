#include "cli/points/point_converter.h"

#include "cli/text/usage_error.h"

#include <cfloat>
#include <stdexcept>

namespace ZrProj::Command {
namespace {

constexpr PROJPOINT mark{DBL_MAX, DBL_MAX};

PointState stateOf(unsigned char reason) {
    switch (reason) {
    case ZRPROJ_CONVERTED:
        return PointState::Good;
    case ZRPROJ_FAR:
        return PointState::Far;
    case ZRPROJ_OUT_OF_AREA:
        return PointState::OffArea;
    case ZRPROJ_OFF_THE_GRID:
        return PointState::OffGrid;
    case ZRPROJ_NOT_FINITE:
        return PointState::NoResult;
    default:
        return PointState::Outside;
    }
}

} // namespace

PointConverter::PointConverter(SystemPointer map) : m_map(std::move(map)) {
    if (m_map->isGeographic())
        throw UsageError(m_map->text(ZRPROJ_NAME) +
                         " has longitudes and latitudes already; there is nothing to convert");
    zrproj_transform* transform = nullptr;
    if (zrproj_transform_create(m_map->geographic()->handle(), m_map->handle(), nullptr, &transform) != ZRPROJ_OK)
        throw std::runtime_error(zrproj_message());
    m_transform.reset(transform);
}

void PointConverter::convert(bool backwards, std::span<PROJPOINT> points, std::span<PointState> states) {
    for (std::size_t i = 0; i < points.size(); ++i)
        if (states[i] != PointState::Good)
            points[i] = mark;
    if (points.empty())
        return;
    m_reasons.resize(points.size());
    if (zrproj_transform_points(m_transform.get(), backwards, &points.data()->x, &points.data()->y, sizeof(PROJPOINT),
                                points.size(), m_reasons.data()) != ZRPROJ_OK)
        throw std::runtime_error(zrproj_message());
    for (std::size_t i = 0; i < points.size(); ++i) {
        if (states[i] == PointState::Good)
            states[i] = stateOf(m_reasons[i]);
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

void DatumConverter::convert(std::span<PROJPOINT> points, std::span<PointState> states) {
    if (points.empty())
        return;
    m_given.assign(points.begin(), points.end());
    m_reasons.resize(points.size());
    if (zrproj_datum_shift_points(m_shift.get(), &points.data()->x, &points.data()->y, sizeof(PROJPOINT), points.size(),
                                  m_reasons.data()) != ZRPROJ_OK)
        throw std::runtime_error(std::string("the datum conversion fails: ") + zrproj_message());
    for (std::size_t i = 0; i < points.size(); ++i) {
        PointState const state = stateOf(m_reasons[i]);
        if (hasResult(states[i]) && state != PointState::Good)
            states[i] = state == PointState::Outside ? PointState::NoResult : state;
        if (!hasResult(states[i]))
            points[i] = mark;
        else if (state == PointState::OffGrid)
            points[i] = m_given[i];
    }
}

} // namespace ZrProj::Command
