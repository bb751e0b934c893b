#include "systems/search.h"

#include "host/text.h"
#include "systems/register.h"

#include <algorithm>
#include <numeric>
#include <string>

namespace ZrProj::systems {
namespace {

std::vector<std::string> wordsOf(std::string_view text) {
    constexpr std::string_view blanks = " \t\r\n";
    std::vector<std::string> words;
    for (auto begin = text.find_first_not_of(blanks); begin != text.npos; begin = text.find_first_not_of(blanks)) {
        text.remove_prefix(begin);
        auto const end = std::min(text.find_first_of(blanks), text.size());
        words.emplace_back(text.substr(0, end));
        std::ranges::transform(words.back(), words.back().begin(), asciiLower);
        text.remove_prefix(end);
    }
    return words;
}

bool matches(Entry const& entry, std::vector<std::string> const& words) {
    std::string name = entry.name;
    std::ranges::transform(name, name.begin(), asciiLower);
    if (words.size() == 1 &&
        (words[0] == std::to_string(entry.code) || words[0] == "epsg:" + std::to_string(entry.code)))
        return true;
    return !entry.deprecated &&
           std::ranges::all_of(words, [&](auto const& word) { return name.find(word) != name.npos; });
}

std::size_t numberOf(Code code) {
    std::size_t begin = 0;
    for (std::size_t end = entryCount(); begin < end;) {
        std::size_t const middle = (begin + end) / 2;
        if (entry(middle).code < code)
            begin = middle + 1;
        else
            end = middle;
    }
    return begin;
}

std::vector<std::size_t> numbersAt(std::optional<Place> place) {
    std::vector<std::size_t> numbers;
    if (!place) {
        numbers.resize(entryCount());
        std::iota(numbers.begin(), numbers.end(), std::size_t{0});
        return numbers;
    }
    for (Entry const& found : systemsAt(place->longitude, place->latitude))
        numbers.push_back(numberOf(found.code));
    return numbers;
}

} // namespace

std::vector<std::size_t> search(std::string_view text, std::optional<Place> place) {
    auto const words = wordsOf(text);
    auto numbers = numbersAt(place);
    std::erase_if(numbers, [&](std::size_t n) { return !matches(entry(n), words); });
    return numbers;
}

} // namespace ZrProj::systems
