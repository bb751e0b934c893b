#include "cli/geojson/builders.h"

#include "cli/geojson/object.h"

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

void JsonCopy::begin(std::string& text, std::string_view name, bool isKept) {
    m_text = &text;
    m_begin = text.size();
    m_level = 0;
    m_kept = isKept;
    text += ',';
    appendJsonString(text, name);
    text += ':';
}

void JsonCopy::separate() {
    if (char const last = m_text->back(); last != '[' && last != '{' && last != ':')
        *m_text += ',';
}

void JsonCopy::key(std::string_view name) {
    separate();
    appendJsonString(*m_text, name);
    *m_text += ':';
}

void JsonCopy::open(char bracket) {
    separate();
    *m_text += bracket;
    ++m_level;
}

bool JsonCopy::close(char bracket) {
    *m_text += bracket;
    --m_level;
    return isWhole();
}

bool JsonCopy::scalar(std::string_view text) {
    separate();
    *m_text += text;
    return isWhole();
}

bool JsonCopy::isWhole() {
    if (m_level > 0)
        return false;
    if (!m_kept)
        m_text->resize(m_begin);
    return true;
}

} // namespace ZrProj::Command
