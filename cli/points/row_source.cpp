#include "cli/points/row_source.h"

#include "cli/text/text.h"
#include "cli/text/usage_error.h"

namespace ZrProj::Command {
namespace {

constexpr std::size_t smallPiece = std::size_t{1} << 14; // bytes

} // namespace

bool RowPiece::isSmall() const {
    std::size_t bytes = 0;
    for (InputLine const& line : lines)
        bytes += line.text.size();
    return bytes < smallPiece;
}

std::optional<RowPiece> RowSource::next() {
    while (m_lines || m_opened < m_files.size()) {
        RowPiece piece;
        if (!m_lines && !open(piece))
            return piece;
        piece.file = m_file->title();
        if (m_lines->read()) {
            takeLines(piece);
            return piece;
        }
        int const error = m_lines->error();
        m_bytesBefore += m_lines->position();
        m_lines.reset();
        if (error) {
            piece.failure = "cannot read " + piece.file + ": " + systemMessage(error);
            return piece;
        }
    }
    return std::nullopt;
}

/// Opens the next file. False where it cannot be, which the piece tells then.
bool RowSource::open(RowPiece& piece) {
    m_file.emplace(m_files[m_opened++]);
    m_isSettled = false;
    m_lineCount = 0;
    if (m_file->descriptor() >= 0) {
        m_lines.emplace(m_file->descriptor());
        return true;
    }
    piece.file = m_file->title();
    piece.failure = "cannot open " + piece.file + ": " + systemMessage(m_file->error());
    return false;
}

/// Takes what was read. A file whose layout is none ends the run, so that what comes of its other lines does not
/// matter.
void RowSource::takeLines(RowPiece& piece) {
    piece.firstNumber = m_lineCount + 1;
    while (auto const line = m_lines->next())
        piece.lines.push_back(*line);
    piece.memory = m_lines->release();
    piece.position = m_bytesBefore + m_lines->position();
    try {
        if (m_lineCount == 0 && !piece.lines.empty())
            takeFirstLine(piece);
        settle(piece);
    } catch (UsageError const&) {
        piece.unusable = std::current_exception();
    }
    m_lineCount += piece.lines.size();
}

/// A byte order mark passes through; the wide kinds of Unicode text are refused.
void RowSource::takeFirstLine(RowPiece& piece) const {
    std::string_view& text = piece.lines.front().text;
    if (text.starts_with(byteOrderMark)) {
        piece.mark = byteOrderMark;
        text.remove_prefix(byteOrderMark.size());
    }
    if (text.starts_with("\xFF\xFE") || text.starts_with("\xFE\xFF"))
        throw UsageError(piece.file + " is UTF-16 text; save it as UTF-8");
}

/// Tells the layout of every line: that of the file, once it is sure.
void RowSource::settle(RowPiece& piece) {
    piece.sections.push_back({"", m_layout, 0, 0});
    for (std::size_t i = 0; i < piece.lines.size() && !m_isSettled; ++i) {
        if (isVerbatim(piece.lines[i]))
            continue;
        piece.sections.back().end = i;
        piece.sections.push_back(settleBy(piece.lines[i], piece, i));
    }
    piece.sections.back().end = piece.lines.size();
}

/// Makes the best of the file's first line of interest. A header is not written again where the file before had the
/// same. A line that tells nothing leaves the question to the next one.
RowSection RowSource::settleBy(InputLine const& line, RowPiece const& piece, std::size_t at) {
    Recognition const found = recognise(line.text, m_request);
    if (!found.fault.empty())
        throw UsageError(piece.file + ':' + std::to_string(piece.firstNumber + at) + ": " + found.fault);
    m_layout = found.layout;
    m_isSettled = found.clear;
    if (!m_layout.header)
        return {"", m_layout, at, at};
    std::string header = m_header.header(line.text, m_layout);
    std::string const shown = header == m_lastHeader ? "" : header + std::string(line.end);
    m_lastHeader = std::move(header);
    return {shown, m_layout, at + 1, at + 1};
}

} // namespace ZrProj::Command
