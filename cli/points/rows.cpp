#include "cli/points/rows.h"

#include "cli/points/layout.h"
#include "cli/text/text.h"

#include <algorithm>

namespace ZrProj::Command {
namespace {

bool isMissing(Field field) {
    return field.begin == missingField.begin;
}

std::string_view blanksTrimmed(std::string_view line) {
    while (!line.empty() && isBlank(line.back()))
        line.remove_suffix(1);
    return line;
}

/// A column name that the header does not have yet.
std::string freeName(std::string const& name, std::vector<std::string> const& taken) {
    auto const isTaken = [&](std::string const& wanted) {
        return std::any_of(taken.begin(), taken.end(),
                           [&](std::string const& text) { return squeezed(text) == squeezed(wanted); });
    };
    std::string result = name;
    for (int i = 2; isTaken(result); ++i)
        result = name + '_' + std::to_string(i);
    return result;
}

} // namespace

std::string_view RowReader::text(Row const& row, int column) {
    auto const index = static_cast<std::size_t>(column);
    return index < m_fields.size() ? fieldText(row.line.text, m_fields[index], m_scratch) : std::string_view();
}

/// What is wrong with the number of fields, "" for nothing.
std::string RowReader::countFault(Row const& row) const {
    auto const needed =
        static_cast<std::size_t>(std::max({m_layout.columns.x, m_layout.columns.y, m_layout.columns.zone})) + 1;
    bool const tooMany = m_layout.header && m_layout.delimiter != ' ' && row.fields > m_layout.fieldCount;
    if (row.fields >= needed && !tooMany)
        return "";
    std::string const found = std::to_string(row.fields) + (row.fields == 1 ? " field" : " fields");
    return tooMany ? found + " under a header of " + std::to_string(m_layout.fieldCount)
                   : found + " where " + std::to_string(needed) + " are needed";
}

/// Reads one coordinate into `result`. False when it is none, or the mark for none.
bool RowReader::takeCoordinate(Row const& row, bool isX, RowPoint& result) {
    std::string_view const field = text(row, isX ? m_layout.columns.x : m_layout.columns.y);
    if (field == noCoordinate) {
        result.point.state = PointState::Marked;
        return false;
    }
    Reading const reading = readCoordinate(field, isX, m_operation);
    if (reading.error) {
        result.fault = std::string(coordinateName(isX, m_operation)) + (field.empty() ? "" : ' ' + inQuotes(field)) +
                       ' ' + reading.error;
        return false;
    }
    (isX ? result.point.point.x : result.point.point.y) = reading.value;
    return true;
}

void RowReader::readZone(Row const& row, RowPoint& result) {
    std::string_view const field = text(row, m_layout.columns.zone);
    if (auto const zone = readUtmZone(field)) {
        result.point.zone = *zone;
        return;
    }
    result.point.state = PointState::Unread;
    result.fault = "zone " + inQuotes(field) + " is not 1 to 60 with N or S";
}

RowPoint RowReader::read(Row& row) {
    RowPoint result;
    if (row.line.tooLong) {
        result.fault = "line of more than 1 MiB";
        return result;
    }
    if (!splitFields(row.line.text, m_layout.delimiter, m_fields)) {
        result.fault = "quoted field without an end on the line";
        return result;
    }
    row.fields = m_fields.size();
    auto const place = [&](int column) {
        return static_cast<std::size_t>(column) < m_fields.size() ? m_fields[static_cast<std::size_t>(column)]
                                                                  : missingField;
    };
    row.x = place(m_layout.columns.x);
    row.y = place(m_layout.columns.y);
    result.fault = countFault(row);
    if (!result.fault.empty() || !takeCoordinate(row, true, result) || !takeCoordinate(row, false, result))
        return result;
    result.point.state = PointState::Good;
    if (m_zone)
        readZone(row, result);
    return result;
}

std::string headerWith(std::string_view line, Layout const& layout, std::vector<std::string> const& added) {
    std::vector<std::string> const names = fieldTexts(line, layout.delimiter);
    std::string result(layout.delimiter == ' ' ? blanksTrimmed(line) : line);
    for (std::string const& name : added)
        result += layout.delimiter + freeName(name, names);
    return result;
}

void RowWriter::number(std::string& text, double value, PointState state) const {
    if (hasResult(state))
        appendFixed(text, value, m_decimals);
    else
        text += noCoordinate;
}

void RowWriter::zone(std::string& text, Layout const& layout, BlockPoint const& result) const {
    if (!m_zones)
        return;
    text += layout.delimiter;
    text += hasResult(result.state) ? utmZoneName(result.zone) : noCoordinate;
}

/// The result in place of the coordinates, all else as it was; what the line lacks is added at its end.
void RowWriter::replace(std::string& text, Row const& row, Layout const& layout, BlockPoint const& result) const {
    std::string_view const line = row.line.text;
    bool const xFirst = layout.columns.x < layout.columns.y;
    Field const first = xFirst ? row.x : row.y, second = xFirst ? row.y : row.x;
    bool empty = line.empty();
    std::size_t at = 0;
    auto const put = [&](Field field, double value) {
        std::size_t const begin = isMissing(field) ? line.size() : field.begin;
        text += line.substr(at, begin - at);
        if (isMissing(field) && !empty)
            text += layout.delimiter;
        number(text, value, result.state);
        at = isMissing(field) ? line.size() : field.end;
        empty = false;
    };
    put(first, xFirst ? result.point.x : result.point.y);
    put(second, xFirst ? result.point.y : result.point.x);
    zone(text, layout, result);
    text += line.substr(at);
}

/// The line as it was, filled up to the header's columns, with the result in new ones.
void RowWriter::append(std::string& text, Row const& row, Layout const& layout, BlockPoint const& result) const {
    bool const blanks = layout.delimiter == ' ';
    text += blanks ? blanksTrimmed(row.line.text) : row.line.text;
    for (std::size_t i = std::max<std::size_t>(row.fields, 1); i < layout.fieldCount && !blanks; ++i)
        text += layout.delimiter;
    text += layout.delimiter;
    number(text, result.point.x, result.state);
    text += layout.delimiter;
    number(text, result.point.y, result.state);
    zone(text, layout, result);
}

void RowWriter::write(std::string& text, Row const& row, Layout const& layout, BlockPoint const& result) const {
    if (row.verbatim)
        text += row.line.text;
    else if (layout.header)
        append(text, row, layout, result);
    else
        replace(text, row, layout, result);
    text += row.line.end;
}

} // namespace ZrProj::Command
