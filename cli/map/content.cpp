#include "cli/map/content.h"

#include "cli/files/plain_file.h"
#include "cli/points/rows.h"
#include "cli/text/line_reader.h"
#include "cli/text/numbers.h"
#include "cli/text/text.h"
#include "cli/text/usage_error.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <stdexcept>

namespace ZrProj::Command {
namespace {

class RingReader {
public:
    explicit RingReader(std::string title) : m_title(std::move(title)) {}

    void take(std::string_view line);
    std::vector<Places> finish();

private:
    void endRing();
    [[noreturn]] void fail(std::string const& reason) const;

    std::string m_title;
    std::uint64_t m_line = 0;
    bool m_begun = false; // whether a line with a place, or the header, was there
    Places m_ring;
    std::vector<Places> m_rings;
};

void RingReader::fail(std::string const& reason) const {
    throw std::runtime_error(m_title + ':' + std::to_string(m_line) + ": " + reason);
}

void RingReader::endRing() {
    if (m_ring.size() > 2)
        m_rings.push_back(m_ring);
    else if (!m_ring.empty())
        fail("a ring of fewer than three places ends here");
    m_ring.clear();
}

void RingReader::take(std::string_view line) {
    ++m_line;
    line = trimmed(line);
    if (line.empty())
        return endRing();
    if (line.front() == '#')
        return;
    auto const comma = std::min(line.find_first_of(",;\t "), line.size());
    Reading const x = readNumber(line.substr(0, comma));
    Reading const y = readNumber(line.substr(std::min(comma + 1, line.size())));
    bool const header = !m_begun && x.error && y.error;
    m_begun = true;
    if (header)
        return;
    if (x.error || y.error)
        fail(inQuotes(line) + " is not a longitude and a latitude");
    if (!(x.value >= -360 && x.value <= 360 && y.value >= -90 && y.value <= 90))
        fail(inQuotes(line) + " is no place on the globe");
    m_ring.push_back({x.value, y.value});
}

std::vector<Places> RingReader::finish() {
    endRing();
    return std::move(m_rings);
}

} // namespace

std::vector<Places> worldLand() {
    RingReader rings("land");
    for (std::string_view text = landData; !text.empty();) {
        auto const end = std::min(text.find('\n'), text.size() - 1);
        rings.take(text.substr(0, end));
        text.remove_prefix(end + 1);
    }
    return rings.finish();
}

std::vector<Places> readLand(std::string const& file) {
    InputFile const input(file);
    RingReader rings(input.title());
    readLines(input, [&](InputLine const& line) { rings.take(line.text); });
    return rings.finish();
}

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
    ColumnRequest request;
    if (!columns.empty())
        request.columns = parseColumns(columns, false);
    PointReader reader(input.title(), request);
    readLines(input, [&](InputLine const& line) { reader.take(line); });
    return std::move(reader.points);
}

} // namespace ZrProj::Command
