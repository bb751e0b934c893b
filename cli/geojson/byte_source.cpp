#include "cli/geojson/byte_source.h"

#include <algorithm>
#include <cerrno>
#include <utility>

#include <unistd.h>

namespace ZrProj::Command {
namespace {

constexpr std::size_t pieceSize = std::size_t{1} << 17;

} // namespace

ByteSource::ByteSource(int file, std::function<void(unsigned long long)> beforeRead)
    : m_file(file), m_beforeRead(std::move(beforeRead)), m_buffer(pieceSize), m_at(m_buffer.data()), m_end(m_at) {}

/// Reads the next piece, all of the one before being skipped.
bool ByteSource::read() {
    m_before = position();
    m_lines = line();
    m_at = m_end = m_buffer.data();
    m_beforeRead(m_before);
    ssize_t count = 0;
    do
        count = ::read(m_file, m_buffer.data(), m_buffer.size());
    while (count < 0 && errno == EINTR);
    if (count < 0)
        m_error = errno;
    m_end += std::max<ssize_t>(count, 0);
    return count > 0;
}

unsigned long long ByteSource::linesTo(char const* end) const {
    return static_cast<unsigned long long>(std::count(m_buffer.data(), end, '\n'));
}

} // namespace ZrProj::Command
