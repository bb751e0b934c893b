// Files of points, read in pieces of whole lines whose layout is known, so that several threads can convert them.
#pragma once

#include "cli/files/plain_file.h"
#include "cli/points/layout.h"
#include "cli/text/line_reader.h"

#include <cstdint>
#include <exception>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace ZrProj::Command {

/// Lines of a piece that have one layout.
struct RowSection {
    std::string header; // written before them, with its line end; "" for none
    Layout layout;
    std::size_t begin = 0, end = 0; // of the piece's lines
};

/// A part of a file.
struct RowPiece {
    std::string file;                 // what it is called
    std::string failure;              // why the file cannot be read, or not from here on; "" for nothing
    std::exception_ptr unusable;      // a UsageError: the file's layout is none; null for none
    std::string_view mark;            // the byte order mark that it begins with; "" for none
    std::vector<char> memory;         // that the lines lie in
    std::vector<InputLine> lines;     // whole ones
    std::uint64_t firstNumber = 1;    // of the first line in its file
    std::vector<RowSection> sections; // of all lines but headers
    unsigned long long position = 0;  // bytes of all files up to its end

    /// Whether the source gives little at a time.
    bool isSmall() const;
};

/// A header line as it is written, with the names of the new columns.
class RowHeader {
public:
    virtual ~RowHeader() = default;
    virtual std::string header(std::string_view line, Layout const& layout) const = 0;
};

class RowSource {
public:
    /// files: "-" is standard input. All that is given must outlive the source.
    RowSource(std::vector<std::string> const& files, ColumnRequest const& request, RowHeader const& header)
        : m_files(files), m_request(request), m_header(header) {}

    /// The next piece; nothing behind the last one.
    std::optional<RowPiece> next();

private:
    bool open(RowPiece& piece);
    void takeLines(RowPiece& piece);
    void takeFirstLine(RowPiece& piece) const;
    void settle(RowPiece& piece);
    RowSection settleBy(InputLine const& line, RowPiece const& piece, std::size_t at);

    std::vector<std::string> const& m_files;
    ColumnRequest const& m_request;
    RowHeader const& m_header;

    std::size_t m_opened = 0; // files so far
    std::optional<InputFile> m_file;
    std::optional<LineReader> m_lines; // none between files
    std::uint64_t m_lineCount = 0;     // of the present file so far
    unsigned long long m_bytesBefore = 0;
    Layout m_layout;          // of the present file
    bool m_isSettled = false; // whether that is sure
    std::string m_lastHeader;
};

} // namespace ZrProj::Command
