#include "cli/map/points.h"

#include "cli/files/input_file.h"
#include "cli/points/rows.h"
#include "cli/text/text.h"
#include "cli/text/usage_error.h"

#include <algorithm>
#include <array>
#include <stdexcept>

namespace ZrProj::Command {
namespace {

constexpr std::array<std::string_view, 5> nameColumns{"name", "label", "title", "place", "city"};

class PointReader {
public:
    PointReader(std::string title, ColumnRequest request) : m_title(std::move(title)), m_request(std::move(request)) {}

    void take(InputLine line);
    std::vector<LabelledPlace> points;

private:
    bool settle(std::string_view line);
    std::string where() const { return m_title + ':' + std::to_string(m_line) + ": "; }

    std::string m_title;
    ColumnRequest m_request;
    std::uint64_t m_line = 0;
    bool m_settled = false;
    Layout m_layout;
    std::size_t m_nameColumn = 2;
};

/// True when the line was a header.
bool PointReader::settle(std::string_view line) {
    Recognition const found = recognise(line, m_request);
    if (!found.fault.empty())
        throw UsageError(where() + found.fault);
    m_layout = found.layout;
    m_settled = found.clear;
    if (!m_layout.header)
        return false;
    auto const names = fieldTexts(line, m_layout.delimiter);
    auto const isName = [](std::string const& name) {
        return std::find(nameColumns.begin(), nameColumns.end(), squeezed(name)) != nameColumns.end();
    };
    m_nameColumn = static_cast<std::size_t>(std::find_if(names.begin(), names.end(), isName) - names.begin());
    return true;
}

void PointReader::take(InputLine line) {
    if (++m_line == 1 && line.text.starts_with(byteOrderMark))
        line.text.remove_prefix(byteOrderMark.size());
    if (isVerbatim(line))
        return;
    if (!m_settled && settle(line.text))
        return;
    Row row{line, m_line, false, 0};
    RowPoint const point = RowReader(m_layout, m_request).read(row);
    if (!point.fault.empty())
        throw std::runtime_error(where() + point.fault);
    auto const texts = fieldTexts(line.text, m_layout.delimiter);
    points.push_back({point.point.point, m_nameColumn < texts.size() ? texts[m_nameColumn] : ""});
}

} // namespace

std::vector<LabelledPlace> readMapPoints(std::string const& file, std::string const& columns) {
    InputFile const input(file);
    if (input.descriptor() < 0)
        throw std::runtime_error("cannot open " + input.title() + ": " + systemMessage(input.error()));
    ColumnRequest request;
    if (!columns.empty())
        request.columns = parseColumns(columns, false);
    PointReader reader(input.title(), request);
    LineReader lines(input.descriptor());
    while (lines.read())
        while (auto const line = lines.next())
            reader.take(*line);
    if (lines.error())
        throw std::runtime_error("cannot read " + input.title() + ": " + systemMessage(lines.error()));
    return std::move(reader.points);
}

} // namespace ZrProj::Command
