#include "cli/text/line_reader.h"

#include "cli/text/text.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <utility>

#include <unistd.h>

namespace ZrProj::Command {
namespace {

constexpr std::size_t pieceSize = std::size_t{1} << 17;

} // namespace

bool isVerbatim(InputLine const& line) {
    std::string_view const text = trimmed(line.text);
    return !line.tooLong && (text.empty() || text.front() == '#');
}

LineReader::LineReader(int file) : m_file(file), m_buffer(2 * pieceSize) {}

/// Moves the incomplete line to the front, drops it where it is too long, and sees to space for a piece behind it.
void LineReader::makeRoom() {
    if (m_end - m_begin > longestLine) {
        m_skipping = true;
        m_begin = m_end;
    }
    std::copy(m_buffer.begin() + static_cast<std::ptrdiff_t>(m_begin),
              m_buffer.begin() + static_cast<std::ptrdiff_t>(m_end), m_buffer.begin());
    m_end -= m_begin;
    m_begin = 0;
    m_scanned = m_end;
    if (m_buffer.size() < m_end + pieceSize)
        m_buffer.resize(2 * m_buffer.size());
}

bool LineReader::read() {
    if (m_atEnd)
        return false;
    makeRoom();
    ssize_t count = 0;
    do
        count = ::read(m_file, m_buffer.data() + m_end, pieceSize);
    while (count < 0 && errno == EINTR);
    if (count < 0)
        m_error = errno;
    m_atEnd = count <= 0;
    if (count > 0) {
        m_end += static_cast<std::size_t>(count);
        m_position += static_cast<unsigned long long>(count);
    }
    return !m_atEnd || m_end > m_begin || m_skipping;
}

std::optional<InputLine> LineReader::next() {
    char const* const data = m_buffer.data();
    void const* const found = std::memchr(data + m_scanned, '\n', m_end - m_scanned);
    if (!found)
        return m_atEnd ? lastLine() : std::nullopt;
    auto const feed = static_cast<std::size_t>(static_cast<char const*>(found) - data);
    bool const carriage = feed > m_begin && data[feed - 1] == '\r';
    std::string_view const text(data + m_begin, feed - m_begin - (carriage ? 1 : 0));
    m_begin = m_scanned = feed + 1;
    m_lineEnd = carriage ? "\r\n" : "\n";
    bool const tooLong = m_skipping || text.size() > longestLine;
    m_skipping = false;
    return InputLine{tooLong ? std::string_view() : text, m_lineEnd, tooLong};
}

std::vector<char> LineReader::release() {
    std::vector<char> fresh(m_buffer.size());
    std::copy(m_buffer.begin() + static_cast<std::ptrdiff_t>(m_begin),
              m_buffer.begin() + static_cast<std::ptrdiff_t>(m_end), fresh.begin());
    m_end -= m_begin;
    m_begin = 0;
    m_scanned = m_end;
    return std::exchange(m_buffer, std::move(fresh));
}

/// What stands behind the last line end.
std::optional<InputLine> LineReader::lastLine() {
    if (m_error || (m_begin == m_end && !m_skipping))
        return std::nullopt;
    std::string_view const text(m_buffer.data() + m_begin, m_end - m_begin);
    bool const tooLong = m_skipping || text.size() > longestLine;
    m_begin = m_scanned = m_end;
    m_skipping = false;
    return InputLine{tooLong ? std::string_view() : text, m_lineEnd, tooLong};
}

} // namespace ZrProj::Command
