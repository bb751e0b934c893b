#include "cli/text/name_match.h"

#include "cli/text/text.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace ZrProj::Command {
namespace {

constexpr std::size_t mostListed = 8;

/// The edits that turn `text` into some part of `name` (so that a misspelt part of a long name is near, too).
int distanceToPart(std::string const& text, std::string const& name) {
    std::vector<int> row(name.size() + 1, 0);
    for (std::size_t i = 0; i < text.size(); ++i) {
        int diagonal = row[0];
        row[0] = static_cast<int>(i) + 1;
        for (std::size_t j = 0; j < name.size(); ++j) {
            int const replaced = diagonal + (text[i] == name[j] ? 0 : 1);
            diagonal = row[j + 1];
            row[j + 1] = std::min({replaced, row[j] + 1, row[j + 1] + 1});
        }
    }
    return *std::min_element(row.begin(), row.end());
}

std::vector<int> nearest(std::string const& text, std::span<std::string const> names) {
    std::vector<std::pair<int, int>> ranked;
    for (std::size_t i = 0; i < names.size(); ++i)
        ranked.emplace_back(distanceToPart(text, squeezed(names[i])), static_cast<int>(i));
    std::sort(ranked.begin(), ranked.end());
    int const farthest = static_cast<int>(text.size()) / 2;
    std::vector<int> result;
    for (auto [distance, index] : ranked)
        if (distance <= farthest && distance <= ranked.front().first + 1 && result.size() < mostListed)
            result.push_back(index);
    return result;
}

std::string listed(std::span<std::string const> names, std::vector<int> const& indices) {
    std::string result;
    for (std::size_t i = 0; i < std::min(indices.size(), mostListed); ++i)
        result += (i ? ", \"" : "\"") + names[static_cast<std::size_t>(indices[i])] + '"';
    return result + (indices.size() > mostListed ? ", ..." : "");
}

} // namespace

NameMatch matchName(std::string_view text, std::span<std::string const> names) {
    std::string const wanted = squeezed(text);
    std::vector<int> parts;
    for (std::size_t i = 0; i < names.size() && !wanted.empty(); ++i) {
        std::string const name = squeezed(names[i]);
        if (name == wanted)
            return {Match::One, {static_cast<int>(i)}};
        if (name.find(wanted) != std::string::npos)
            parts.push_back(static_cast<int>(i));
    }
    if (parts.empty())
        return {Match::None, nearest(wanted, names)};
    return {parts.size() == 1 ? Match::One : Match::Several, parts};
}

std::string explainMismatch(std::string_view kind, std::string_view text, std::span<std::string const> names,
                            NameMatch const& result, std::string_view where) {
    std::string message = result.match == Match::Several ? inQuotes(text) + " fits more than one " : "unknown ";
    message += kind;
    if (result.match == Match::None)
        message += ' ' + inQuotes(text);
    if (result.found.empty())
        return message + "; \"" + std::string(where) + "\" lists them";
    return message + (result.match == Match::Several ? ": " : "; the nearest: ") + listed(names, result.found);
}

} // namespace ZrProj::Command
