// How a file of points is laid out, recognised from its first line.
#pragma once

#include "cli/points/fields.h"
#include "cli/points/header.h"

#include <string>
#include <string_view>
#include <vector>

namespace ZrProj::Command {

/// What the user says about the columns.
struct ColumnRequest {
    Direction direction = Direction::Forward;
    std::vector<std::string> columns; // of --columns: numbers from 1, or names; empty where not given
    LengthUnit const* unit = nullptr; // of --units; null where not given
    bool zone = false;                // whether a zone column is needed
};

/// The texts of --columns: two, or three with a zone. Throws UsageError for anything else.
std::vector<std::string> parseColumns(std::string_view option, bool zone);

struct Layout {
    char delimiter = ' ';
    bool header = false;        // the line recognised is a header
    std::size_t fieldCount = 0; // of the header
    Columns columns;
};

struct Recognition {
    bool clear = false; // false: the line tells nothing; `layout` is a guess
    Layout layout;
    std::string fault; // not empty: the line is a header that cannot be used, and why
};

/// Recognises a file's layout from a line that is neither empty nor a comment: by names in a header, or by coordinates
/// where --columns or the default (the first two fields) put them.
Recognition recognise(std::string_view line, ColumnRequest const& request);

} // namespace ZrProj::Command
