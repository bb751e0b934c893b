// Text on its way out, and tables for people to read.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace ZrProj::Command {

/// Appends a number with `decimals` places (0 to 15), correctly rounded; never as "-0".
void appendFixed(std::string& text, double value, int decimals);

/// Gathers text and writes it to a file descriptor. The first failure to write stays, and nothing is written after it.
class Output {
public:
    /// file: an open file descriptor, not owned.
    explicit Output(int file) : m_file(file) {}

    Output& operator<<(std::string_view text) {
        m_text += text;
        return *this;
    }
    Output& operator<<(char c) {
        m_text += c;
        return *this;
    }
    void number(double value, int decimals) { appendFixed(m_text, value, decimals); }

    /// Writes what was gathered, if that is a good deal.
    void flushIfLarge();
    /// Writes what was gathered. False when this or an earlier write failed.
    bool flush();
    /// The errno of the write that failed, or 0.
    int error() const { return m_error; }

private:
    int m_file;
    int m_error = 0;
    std::string m_text;
};

/// A table for people to read.
struct Table {
    std::vector<std::string> titles; // none: no line of titles
    std::string_view alignment;      // one letter a column: l or r
    std::vector<std::vector<std::string>> rows;

    void write(Output& output) const;
};

} // namespace ZrProj::Command
