#include "cli/georef_apply.h"

#include "cli/input_file.h"
#include "cli/report.h"
#include "cli/rows.h"
#include "cli/text.h"
#include "cli/usage_error.h"

#include <cfloat>
#include <optional>

namespace ZrProj::Command {
namespace {

constexpr std::size_t rowsPerBlock = 4096;
constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

class Application {
public:
    Application(CGeorefTransform& map, GeorefJob const& job, Output& output)
        : m_map(map), m_job(job), m_output(output), m_progress(0), m_report(m_progress),
          m_writer(output, Direction::Forward, job.decimals, false) {}

    int run();

private:
    bool convertFile(std::string const& name);
    bool convertLines(LineReader& lines);
    void take(InputLine line);
    bool settleLayout(InputLine const& line);
    void flushRows();

    CGeorefTransform& m_map;
    GeorefJob const& m_job;
    Output& m_output;
    Progress m_progress;
    Report m_report;
    RowWriter m_writer;
    std::string m_title, m_header;
    std::uint64_t m_lineNumber = 0;
    bool m_settled = false;
    Layout m_layout;
    std::optional<RowReader> m_reader;
    std::vector<Row> m_rows;
    std::vector<BlockPoint> m_points;
    std::vector<GEOREFPOINT> m_mapped;
};

int Application::run() {
    for (std::string const& file : m_job.files)
        if (!convertFile(file))
            break;
    return m_report.conclude(m_output, false);
}

bool Application::convertFile(std::string const& name) {
    InputFile const file(name);
    m_title = file.title();
    m_report.startFile(m_title);
    m_settled = false;
    m_lineNumber = 0;
    if (file.descriptor() < 0) {
        m_report.failure("cannot open " + m_title + ": " + systemMessage(file.error()));
        return true;
    }
    LineReader lines(file.descriptor());
    bool const written = convertLines(lines);
    if (lines.error())
        m_report.failure("cannot read " + m_title + ": " + systemMessage(lines.error()));
    return written;
}

bool Application::convertLines(LineReader& lines) {
    while (lines.read()) {
        while (auto const line = lines.next())
            take(*line);
        flushRows();
        if (!m_output.flush())
            return false;
    }
    return true;
}

void Application::take(InputLine line) {
    if (++m_lineNumber == 1 && line.text.starts_with(byteOrderMark)) {
        m_output << byteOrderMark;
        line.text.remove_prefix(byteOrderMark.size());
    }
    std::string_view const text = trimmed(line.text);
    Row row{line, m_lineNumber, !line.tooLong && (text.empty() || text.front() == '#'), 0};
    RowPoint point;
    if (!row.verbatim) {
        if (!m_settled && settleLayout(line))
            return;
        point = m_reader->read(row);
        if (!point.fault.empty())
            m_report.badLine(m_lineNumber, point.fault);
    }
    m_rows.push_back(row);
    m_points.push_back(point.point);
    if (m_rows.size() == rowsPerBlock)
        flushRows();
}

/// True when the line was a header, which is written already.
bool Application::settleLayout(InputLine const& line) {
    Recognition const found = recognise(line.text, m_job.columns);
    if (!found.fault.empty())
        throw UsageError(m_title + ':' + std::to_string(m_lineNumber) + ": " + found.fault);
    flushRows();
    m_layout = found.layout;
    m_settled = found.clear;
    m_reader.emplace(m_layout, m_job.columns);
    if (!m_layout.header)
        return false;
    std::string header = headerWith(line.text, m_layout, {"target_x", "target_y"});
    if (header != m_header)
        m_output << header << line.end;
    m_header = std::move(header);
    return true;
}

void Application::flushRows() {
    if (m_rows.empty())
        return;
    m_mapped.clear();
    for (BlockPoint const& point : m_points)
        m_mapped.push_back({point.point.x, point.point.y});
    m_map.Forward(m_mapped.data(), static_cast<int>(m_mapped.size()));
    for (std::size_t i = 0; i < m_rows.size(); ++i) {
        BlockPoint result{{m_mapped[i].x, m_mapped[i].y}, m_points[i].state};
        if (result.state == PointState::Good && result.point.x == DBL_MAX) {
            result.state = PointState::NoResult;
            m_report.badLine(m_rows[i].number, "the map has no finite result there");
        }
        m_writer.write(m_rows[i], m_layout, result);
    }
    m_rows.clear();
    m_points.clear();
}

} // namespace

int applyGeoref(CGeorefTransform& map, GeorefJob const& job, Output& output) {
    return Application(map, job, output).run();
}

} // namespace ZrProj::Command
