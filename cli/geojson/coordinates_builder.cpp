#include "cli/geojson/coordinates_builder.h"

#include <utility>

namespace ZrProj::Command {

char const* CoordinatesBuilder::open() {
    if (m_inPosition)
        return "a list stands in a position";
    if (m_listOpened)
        m_coordinates.open();
    m_listOpened = true;
    return nullptr;
}

char const* CoordinatesBuilder::number(double value, std::string const& text) {
    if (m_listOpened) {
        m_listOpened = false;
        m_inPosition = true;
        m_numbers = 0;
        m_extra.clear();
    }
    if (!m_inPosition)
        return "a number stands beside a list";
    if (++m_numbers <= 2)
        (m_numbers == 1 ? m_point.x : m_point.y) = value;
    else
        (m_extra += ',') += text;
    return nullptr;
}

char const* CoordinatesBuilder::close() {
    bool const wasPosition = std::exchange(m_inPosition, false), wasEmpty = std::exchange(m_listOpened, false);
    if (wasPosition) {
        m_coordinates.add(m_point, m_extra);
        return m_numbers < 2 ? "a position has one number" : nullptr;
    }
    if (wasEmpty)
        m_coordinates.open();
    m_coordinates.close();
    return nullptr;
}

Coordinates CoordinatesBuilder::take() {
    return std::move(m_coordinates);
}

} // namespace ZrProj::Command
