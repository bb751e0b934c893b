// The bytes of a file one by one, in bounded memory.
#pragma once

#include <cstddef>
#include <functional>
#include <iterator>
#include <vector>

namespace ZrProj::Command {

class ByteSource {
public:
    /// file: an open file descriptor, not owned. beforeRead is called before each wait for more bytes, with how many
    /// there were.
    ByteSource(int file, std::function<void(unsigned long long)> beforeRead);

    /// Whether there is a byte, which peek() then gives and skip() leaves behind.
    bool hasByte() { return m_at != m_end || read(); }
    char peek() const { return *m_at; }
    void skip() { ++m_at; }

    /// Bytes skipped so far.
    unsigned long long position() const { return m_before + static_cast<unsigned long long>(m_at - m_buffer.data()); }
    /// The number of the line that the next byte is in, from 1.
    unsigned long long line() const { return m_lines + linesTo(m_at); }
    /// The errno of a failed read, or 0.
    int error() const { return m_error; }

private:
    bool read();
    unsigned long long linesTo(char const* end) const;

    int m_file;
    int m_error = 0;
    std::function<void(unsigned long long)> m_beforeRead;
    std::vector<char> m_buffer;
    char const* m_at;
    char const* m_end;
    unsigned long long m_before = 0; // bytes of earlier pieces
    unsigned long long m_lines = 1;  // and their lines
};

/// Goes over a source's bytes; all iterators of a source are at the same byte.
class ByteIterator {
public:
    using iterator_category = std::input_iterator_tag;
    using value_type = char;
    using difference_type = std::ptrdiff_t;
    using pointer = char const*;
    using reference = char;

    ByteIterator() = default; // the end
    explicit ByteIterator(ByteSource& source) : m_source(&source) {}

    char operator*() const { return m_source->peek(); }
    ByteIterator& operator++() {
        m_source->skip();
        return *this;
    }
    void operator++(int) { m_source->skip(); }
    friend bool operator==(ByteIterator a, ByteIterator b) { return a.atEnd() == b.atEnd(); }

private:
    bool atEnd() const { return !m_source || !m_source->hasByte(); }

    ByteSource* m_source = nullptr;
};

} // namespace ZrProj::Command
