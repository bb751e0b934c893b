#include "cli/points/fields.h"

#include "cli/text/text.h"

#include <algorithm>

namespace ZrProj::Command {
namespace {

constexpr auto nowhere = std::string_view::npos;

bool isDelimiter(char c, char delimiter) {
    return c == delimiter || (delimiter == ' ' && c == '\t');
}

std::size_t skipBlanks(std::string_view line, std::size_t at, char delimiter) {
    while (at < line.size() && isBlank(line[at]) && (delimiter == ' ' || line[at] != delimiter))
        ++at;
    return at;
}

std::size_t findDelimiter(std::string_view line, std::size_t at, char delimiter) {
    while (at < line.size() && !isDelimiter(line[at], delimiter))
        ++at;
    return at;
}

/// The end of the quoted field that begins at `begin`: after a closing mark that a delimiter or the line's end follows.
/// Other marks inside, as in "40d26'46"N", are the field's own.
std::size_t quotedEnd(std::string_view line, std::size_t begin, char delimiter) {
    for (std::size_t at = line.find('"', begin + 1); at != nowhere; at = line.find('"', at + 1)) {
        if (at + 1 < line.size() && line[at + 1] == '"') {
            ++at;
            continue;
        }
        std::size_t const next = delimiter == ' ' ? at + 1 : skipBlanks(line, at + 1, delimiter);
        if (next == line.size() || isDelimiter(line[next], delimiter))
            return at + 1;
    }
    return nowhere;
}

std::size_t fieldEnd(std::string_view line, std::size_t begin, char delimiter) {
    bool const marked = begin < line.size() && line[begin] == '"';
    std::size_t const end = marked ? quotedEnd(line, begin, delimiter) : nowhere;
    if (end != nowhere || (marked && delimiter != ' '))
        return end;
    return findDelimiter(line, begin, delimiter);
}

Field trimmedField(std::string_view line, std::size_t begin, std::size_t end) {
    while (end > begin && isBlank(line[end - 1]))
        --end;
    return {static_cast<std::uint32_t>(begin), static_cast<std::uint32_t>(end)};
}

} // namespace

bool splitFields(std::string_view line, char delimiter, std::vector<Field>& fields) {
    fields.clear();
    for (std::size_t at = 0;; ++at) {
        std::size_t const begin = skipBlanks(line, at, delimiter);
        if (delimiter == ' ' && begin == line.size())
            return true;
        std::size_t const end = fieldEnd(line, begin, delimiter);
        if (end == nowhere)
            return false;
        fields.push_back(trimmedField(line, begin, end));
        at = delimiter == ' ' ? end : skipBlanks(line, end, delimiter);
        if (at == line.size())
            return true;
    }
}

std::string_view fieldText(std::string_view line, Field field, std::string& scratch) {
    std::string_view const raw = line.substr(field.begin, field.end - field.begin);
    if (raw.size() < 2 || raw.front() != '"' || raw.back() != '"')
        return raw;
    std::string_view const inner = raw.substr(1, raw.size() - 2);
    if (inner.find("\"\"") == nowhere)
        return trimmed(inner);
    scratch.clear();
    for (std::size_t i = 0; i < inner.size(); ++i) {
        scratch += inner[i];
        if (inner.substr(i, 2) == "\"\"")
            ++i;
    }
    return trimmed(scratch);
}

std::vector<std::string> fieldTexts(std::string_view line, char delimiter) {
    std::vector<Field> fields;
    std::string scratch;
    if (!splitFields(line, delimiter, fields))
        return {};
    std::vector<std::string> texts(fields.size());
    std::transform(fields.begin(), fields.end(), texts.begin(),
                   [&](Field field) { return std::string(fieldText(line, field, scratch)); });
    return texts;
}

std::string possibleDelimiters(std::string_view line) {
    std::string result;
    for (char delimiter : {'\t', ';', ','})
        if (line.find(delimiter) != nowhere)
            result += delimiter;
    return result + ' ';
}

} // namespace ZrProj::Command
