#include "cli/points/row_stream.h"

#include "cli/files/plain_file.h"
#include "cli/text/text.h"
#include "cli/text/usage_error.h"

namespace ZrProj::Command {
namespace {

constexpr std::size_t rowsPerBlock = 4096;

} // namespace

RowStream::RowStream(PointWork& work, std::vector<std::string> const& files, ColumnRequest const& request,
                     RowWriter const& writer, Output& output)
    : m_work(work), m_files(files), m_request(request), m_writer(writer), m_output(output),
      m_progress(totalSize(files)), m_report(m_progress) {}

int RowStream::run(bool strict) {
    for (std::string const& file : m_files)
        if (!convertFile(file))
            break;
    return m_report.conclude(m_output, strict);
}

/// False when there is no sense in going on.
bool RowStream::convertFile(std::string const& name) {
    InputFile const file(name);
    m_fileTitle = file.title();
    m_report.startFile(m_fileTitle);
    if (file.descriptor() < 0) {
        m_report.failure("cannot open " + m_fileTitle + ": " + systemMessage(file.error()));
        return true;
    }
    m_settled = false;
    m_lineNumber = 0;
    LineReader lines(file.descriptor());
    bool const written = convertLines(lines);
    m_bytesBefore += lines.position();
    if (lines.error())
        m_report.failure("cannot read " + m_fileTitle + ": " + systemMessage(lines.error()));
    return written;
}

bool RowStream::convertLines(LineReader& lines) {
    while (lines.read()) {
        while (auto const line = lines.next())
            take(*line);
        flushRows();
        if (!m_output.flush())
            return false;
        m_progress.show(m_bytesBefore + lines.position());
    }
    return true;
}

void RowStream::take(InputLine line) {
    if (++m_lineNumber == 1)
        takeFirstLine(line);
    Row row{line, m_lineNumber, isVerbatim(line), 0};
    RowPoint point;
    if (!row.verbatim) {
        if (!m_settled && settleLayout(line))
            return;
        point = m_reader->read(row);
        if (!point.fault.empty())
            m_report.badLine(m_lineNumber, point.fault);
    }
    m_rows.push_back(row);
    m_block.add(point.point);
    if (m_rows.size() == rowsPerBlock)
        flushRows();
}

/// A byte order mark passes through; the wide kinds of Unicode text are refused.
void RowStream::takeFirstLine(InputLine& line) {
    if (line.text.starts_with(byteOrderMark)) {
        m_output << byteOrderMark;
        line.text.remove_prefix(byteOrderMark.size());
    }
    if (line.text.starts_with("\xFF\xFE") || line.text.starts_with("\xFE\xFF"))
        throw UsageError(m_fileTitle + " is UTF-16 text; save it as UTF-8");
}

/// Makes the best of the file's first line of interest; true when that was a header, which is written already, unless
/// the file before had the same. A line that tells nothing leaves the question to the next one.
bool RowStream::settleLayout(InputLine const& line) {
    Recognition const found = recognise(line.text, m_request);
    if (!found.fault.empty())
        throw UsageError(m_fileTitle + ':' + std::to_string(m_lineNumber) + ": " + found.fault);
    flushRows(); // they are the earlier layout's
    m_layout = found.layout;
    m_settled = found.clear;
    m_reader.emplace(m_layout, m_request);
    if (!m_layout.header)
        return false;
    std::string header = m_work.header(line.text, m_layout);
    if (header != m_header)
        m_output << header << line.end;
    m_header = std::move(header);
    return true;
}

/// Converts the rows gathered, and passes them to the output.
void RowStream::flushRows() {
    if (m_rows.empty())
        return;
    m_work.convert(m_block, m_layout);
    for (std::size_t i = 0; i < m_rows.size(); ++i) {
        BlockPoint const result = m_block[i];
        if (result.state != PointState::Good && result.state != PointState::Unread)
            m_report.point(result.state, m_rows[i].number);
        m_writer.write(m_rows[i], m_layout, result);
    }
    m_rows.clear();
    m_block.clear();
}

} // namespace ZrProj::Command
