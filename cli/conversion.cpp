#include "cli/conversion.h"

#include "cli/text.h"
#include "cli/usage_error.h"

#include <algorithm>
#include <cfloat>
#include <numeric>

namespace ZrProj::Command {
namespace {

constexpr std::size_t rowsPerBlock = 4096;
constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

/// Whether a line holds no point by design.
bool isVerbatim(InputLine const& line) {
    std::string_view const text = trimmed(line.text);
    return !line.tooLong && (text.empty() || text.front() == '#');
}

} // namespace

LengthUnit const& ConversionJob::unit(LengthUnit const* ofFile) const {
    if (columns.unit)
        return *columns.unit;
    if (ofFile)
        return *ofFile;
    return projection.unit ? *projection.unit : lengthUnits.front();
}

Conversion::Conversion(ConversionJob job, Output& output)
    : m_job(std::move(job)), m_output(output), m_transform(m_job.projection, m_job.columns.direction, m_job.shift),
      m_progress(totalSize(m_job.files)), m_report(m_progress),
      m_writer(output, m_job.columns.direction, m_job.decimals,
               m_job.projection.zonePerPoint && m_job.columns.direction == Direction::Forward) {}

int Conversion::run() {
    for (std::string const& file : m_job.files)
        if (!convertFile(file))
            break;
    return m_report.conclude(m_output, m_job.strict);
}

/// False when there is no sense in going on.
bool Conversion::convertFile(std::string const& name) {
    InputFile const file(name);
    m_fileTitle = file.title();
    m_report.startFile(m_fileTitle);
    if (file.descriptor() < 0) {
        m_report.failure("cannot open " + m_fileTitle + ": " + systemMessage(file.error()));
        return true;
    }
    m_settled = false;
    m_lineNumber = 0;
    LineReader reader(file.descriptor());
    bool const written = convertLines(reader);
    m_bytesBefore += reader.position();
    if (reader.error())
        m_report.failure("cannot read " + m_fileTitle + ": " + systemMessage(reader.error()));
    return written;
}

bool Conversion::convertLines(LineReader& reader) {
    while (reader.read()) {
        while (auto const line = reader.next())
            take(*line);
        flushRows();
        if (!m_output.flush())
            return false;
        m_progress.show(m_bytesBefore + reader.position());
    }
    return true;
}

void Conversion::take(InputLine line) {
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
void Conversion::takeFirstLine(InputLine& line) {
    if (line.text.starts_with(byteOrderMark)) {
        m_output << byteOrderMark;
        line.text.remove_prefix(byteOrderMark.size());
    }
    if (line.text.starts_with("\xFF\xFE") || line.text.starts_with("\xFE\xFF"))
        throw UsageError(m_fileTitle + " is UTF-16 text; save it as UTF-8");
}

/// Makes the best of the file's first line of interest; true when that was a header, which is written already. A line
/// that tells nothing leaves the question to the next one.
bool Conversion::settleLayout(InputLine const& line) {
    Recognition const found = recognise(line.text, m_job.columns);
    if (!found.fault.empty())
        throw UsageError(m_fileTitle + ':' + std::to_string(m_lineNumber) + ": " + found.fault);
    flushRows(); // they are the earlier layout's
    m_layout = found.layout;
    m_settled = found.clear;
    m_reader.emplace(m_layout, m_job.columns);
    if (m_layout.header)
        writeHeader(line);
    return m_layout.header;
}

/// A header like the one of the file before is not written again.
void Conversion::writeHeader(InputLine const& line) {
    std::string header = m_writer.header(line.text, m_layout, m_job.unit(m_layout.columns.unit));
    if (header != m_header)
        m_output << header << line.end;
    m_header = std::move(header);
}

/// Converts the rows gathered, and passes them to the output.
void Conversion::flushRows() {
    if (m_rows.empty())
        return;
    m_transform.run(m_block, m_job.unit(m_layout.columns.unit));
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
