#include "host/profile_text.h"

#include "host/text.h"
#include "host/utf8.h"

#include <algorithm>
#include <utility>

namespace ZrProj {
namespace {

constexpr std::string_view withoutBlanks(std::string_view text) {
    constexpr std::string_view blanks = " \t\r\n";
    std::size_t const begin = std::min(text.find_first_not_of(blanks), text.size());
    text.remove_prefix(begin);
    return text.substr(0, text.find_last_not_of(blanks) + 1);
}

/// One line of a profile, with its end.
struct Line {
    std::string_view text;
    bool blank;
    bool inSection;       // below the header of the section that is asked for, or the header itself
    std::string_view key; // empty: no entry
    std::string_view value;

    bool has(std::string_view wanted) const { return inSection && !key.empty() && equalIgnoringCase(key, wanted); }
};

Line readLine(std::string_view text, bool first, std::string_view section, bool inSection) {
    std::string_view content = text;
    if (first && content.starts_with(byteOrderMark))
        content.remove_prefix(byteOrderMark.size());
    content = withoutBlanks(content);
    if (content.starts_with('[')) {
        std::size_t const end = content.find(']');
        std::string_view const name = end == std::string_view::npos ? "" : withoutBlanks(content.substr(1, end - 1));
        return {text, false, equalIgnoringCase(name, section), {}, {}};
    }
    std::size_t const equals = content.find('=');
    if (content.starts_with(';') || content.starts_with('#') || equals == std::string_view::npos)
        return {text, content.empty(), inSection, {}, {}};
    return {text, false, inSection, withoutBlanks(content.substr(0, equals)),
            withoutBlanks(content.substr(equals + 1))};
}

std::vector<Line> linesOf(std::string_view text, std::string_view section) {
    std::vector<Line> lines;
    for (std::size_t begin = 0; begin < text.size();) {
        std::size_t const feed = text.find('\n', begin);
        std::size_t const end = feed == std::string_view::npos ? text.size() : feed + 1;
        bool const inSection = !lines.empty() && lines.back().inSection;
        lines.push_back(readLine(text.substr(begin, end - begin), begin == 0, section, inSection));
        begin = end;
    }
    return lines;
}

std::string_view lineEnd(std::string_view text) {
    std::size_t const feed = text.find('\n');
    return feed != std::string_view::npos && feed > 0 && text[feed - 1] == '\r' ? "\r\n" : "\n";
}

/// The offset in the text at which a line ends.
std::size_t endOf(Line const& line, std::string_view text) {
    return static_cast<std::size_t>(line.text.data() - text.data()) + line.text.size();
}

/// The offset behind the last line of the section's first part that is not blank; nothing where there is no section.
std::optional<std::size_t> sectionEnd(std::vector<Line> const& lines, std::string_view text) {
    auto line = std::ranges::find(lines, true, &Line::inSection);
    if (line == lines.end())
        return std::nullopt;
    std::size_t end = 0;
    for (; line != lines.end() && line->inSection; ++line)
        if (!line->blank)
            end = endOf(*line, text);
    return end;
}

/// The text with lines inserted at an offset, each closed by a line end.
std::string inserted(std::string_view text, std::size_t at, std::initializer_list<std::string_view> lines) {
    std::string_view const end = lineEnd(text);
    std::string result(text.substr(0, at));
    if (!result.empty() && result.back() != '\n' && result != byteOrderMark)
        result += end;
    for (std::string_view const line : lines)
        (result += line) += end;
    return result += text.substr(at);
}

} // namespace

std::vector<ProfileEntry> profileEntries(std::string_view text, std::string_view section) {
    std::vector<ProfileEntry> entries;
    for (Line const& line : linesOf(text, section))
        if (line.inSection && !line.key.empty())
            entries.push_back({std::string(line.key), std::string(line.value)});
    return entries;
}

std::string withEntry(std::string_view text, std::string_view section, std::string_view key, std::string_view value) {
    std::string const entry = std::string(key) + '=' + std::string(value);
    auto const lines = linesOf(text, section);
    auto const same = std::ranges::find_if(lines, [&](Line const& line) { return line.has(key); });
    if (same != lines.end()) {
        std::size_t const end = endOf(*same, text);
        std::string_view const ending = same->text.substr(same->text.find_last_not_of("\r\n") + 1);
        return std::string(text.substr(0, end - same->text.size())) + entry + std::string(ending) +
               std::string(text.substr(end));
    }
    if (auto const end = sectionEnd(lines, text))
        return inserted(text, *end, {entry});
    std::string const header = '[' + std::string(section) + ']';
    bool const apart = !lines.empty() && !lines.back().blank;
    return apart ? inserted(text, text.size(), {"", header, entry}) : inserted(text, text.size(), {header, entry});
}

std::optional<std::string> withoutEntry(std::string_view text, std::string_view section, std::string_view key) {
    std::string result;
    for (Line const& line : linesOf(text, section))
        if (!line.has(key))
            result += line.text;
    return result.size() == text.size() ? std::nullopt : std::optional(std::move(result));
}

} // namespace ZrProj
