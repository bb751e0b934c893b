// A line of separated fields.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace ZrProj::Command {

/// Where a field stands in its line: with its quotation marks, without the blanks around it.
struct Field {
    std::uint32_t begin, end;
};

/// Splits a line at a comma, semicolon or tab, or, where `delimiter` is a blank, at runs of blanks and tabs. A field in
/// quotation marks may hold delimiters, and quotation marks written twice.
/// False when a quoted field does not end on the line (with a blank as delimiter such a mark is taken as it is).
bool splitFields(std::string_view line, char delimiter, std::vector<Field>& fields);

/// What the fields of a line say; empty where splitFields fails.
std::vector<std::string> fieldTexts(std::string_view line, char delimiter);

/// What a field says, without its quotation marks. `scratch` keeps the text where it cannot be a part of the line.
std::string_view fieldText(std::string_view line, Field field, std::string& scratch);

/// The delimiters that a line may have been written with, likeliest first; always ends with a blank.
std::string possibleDelimiters(std::string_view line);

} // namespace ZrProj::Command
