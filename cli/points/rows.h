// Lines with a point: taken apart, and written with the result.
#pragma once

#include "cli/points/conversion.h"
#include "cli/points/layout.h"
#include "cli/text/line_reader.h"
#include "cli/text/output.h"

#include <cstdint>
#include <string>
#include <vector>

namespace ZrProj::Command {

/// Where a field stands that a line does not have.
inline constexpr Field missingField{UINT32_MAX, UINT32_MAX};

/// A line on its way from the input to the output. The texts are the reader's.
struct Row {
    InputLine line;
    std::uint64_t number = 0;
    bool verbatim = false; // a comment or an empty line
    std::size_t fields = 0;
    Field x = missingField, y = missingField; // where the coordinates stand
};

/// What a line's point reads as.
struct RowPoint {
    BlockPoint point;
    std::string fault; // why it is Unread
};

class RowReader {
public:
    RowReader(Layout layout, ColumnRequest const& request)
        : m_layout(layout), m_operation(request.operation), m_zone(request.zone) {}

    /// Finds a line's fields, sets where its coordinates stand, and reads them.
    RowPoint read(Row& row);

private:
    std::string_view text(Row const& row, int column);
    std::string countFault(Row const& row) const;
    bool takeCoordinate(Row const& row, bool isX, RowPoint& result);
    void readZone(Row const& row, RowPoint& result);

    Layout m_layout;
    Operation m_operation;
    bool m_zone; // whether a zone is to be read
    std::vector<Field> m_fields;
    std::string m_scratch;
};

/// A header line with more columns, renamed where it has their names already.
std::string headerWith(std::string_view line, Layout const& layout, std::vector<std::string> const& added);

class RowWriter {
public:
    /// zones: whether the result has a zone beside the coordinates.
    RowWriter(int decimals, bool zones) : m_decimals(decimals), m_zones(zones) {}

    /// Appends the line with its result to a text.
    void write(std::string& text, Row const& row, Layout const& layout, BlockPoint const& result) const;

private:
    void replace(std::string& text, Row const& row, Layout const& layout, BlockPoint const& result) const;
    void append(std::string& text, Row const& row, Layout const& layout, BlockPoint const& result) const;
    void number(std::string& text, double value, PointState state) const;
    void zone(std::string& text, Layout const& layout, BlockPoint const& result) const;

    int m_decimals;
    bool m_zones;
};

} // namespace ZrProj::Command
