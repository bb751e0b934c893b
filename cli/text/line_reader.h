// Lines of a file, in bounded memory.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

namespace ZrProj::Command {

struct InputLine {
    std::string_view text; // without its end; "" for a line that is too long
    std::string_view end;  // "\n" or "\r\n"; for a last line without one, that of the line before
    bool tooLong = false;
};

/// What files of text may begin with.
inline constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

/// Whether a line is empty or a comment.
bool isVerbatim(InputLine const& line);

/// Reads a file piece by piece and hands out the lines that are complete, so that a line from a pipe is there as soon
/// as it was written. Lines of more than 1 MiB are skipped and handed out as too long.
class LineReader {
public:
    static constexpr std::size_t longestLine = std::size_t{1} << 20;

    /// file: an open file descriptor, not owned.
    explicit LineReader(int file);

    /// Reads the next piece; lines handed out before are gone. False at the end of the file, and on a failure.
    bool read();

    /// The next complete line, if there is one; good until the next read().
    std::optional<InputLine> next();

    /// Hands over the memory of the lines handed out, so that they stay good with it. To be asked for when there is no
    /// complete line left.
    std::vector<char> release();

    /// The errno of a failed read, or 0.
    int error() const { return m_error; }
    /// Bytes read so far.
    unsigned long long position() const { return m_position; }

private:
    void makeRoom();
    std::optional<InputLine> lastLine();

    int m_file;
    int m_error = 0;
    unsigned long long m_position = 0;
    bool m_atEnd = false;
    bool m_skipping = false;           // inside a line that is too long
    std::string_view m_lineEnd = "\n"; // of the line before
    std::vector<char> m_buffer;
    std::size_t m_begin = 0;   // of what was not handed out yet
    std::size_t m_scanned = 0; // no line end before this
    std::size_t m_end = 0;
};

} // namespace ZrProj::Command
