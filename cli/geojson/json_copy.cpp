#include "cli/geojson/json_copy.h"

#include "cli/geojson/object.h"

namespace ZrProj::Command {

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
