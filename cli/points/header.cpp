#include "cli/points/header.h"

#include "cli/text/text.h"

#include <algorithm>
#include <array>

namespace ZrProj::Command {
namespace {

enum class Meaning { Longitude, Latitude, X, Y, Easting, Northing, Zone };

struct Word {
    Meaning meaning;
    std::string_view text;
};

constexpr std::array words{
    Word{Meaning::Longitude, "longitude"},
    Word{Meaning::Longitude, "lon"},
    Word{Meaning::Longitude, "long"},
    Word{Meaning::Longitude, "lng"},
    Word{Meaning::Latitude, "lat"},
    Word{Meaning::Latitude, "latitude"},
    Word{Meaning::X, "x"},
    Word{Meaning::Y, "y"},
    Word{Meaning::Easting, "easting"},
    Word{Meaning::Easting, "east"},
    Word{Meaning::Easting, "e"},
    Word{Meaning::Northing, "northing"},
    Word{Meaning::Northing, "north"},
    Word{Meaning::Northing, "n"},
    Word{Meaning::Zone, "zone"},
};

constexpr std::array<std::string_view, 7> angleWords{"", "deg", "degree", "degrees", "dd", "dms", "decimaldegrees"};

struct Pair {
    Meaning x, y;
};

constexpr Pair longitudeLatitude{Meaning::Longitude, Meaning::Latitude};
constexpr Pair xy{Meaning::X, Meaning::Y};
constexpr Pair eastingNorthing{Meaning::Easting, Meaning::Northing};
constexpr std::array forwardPairs{longitudeLatitude, xy, eastingNorthing};
constexpr std::array inversePairs{eastingNorthing, xy};

/// A column's name as the word that it begins with and what follows: "Easting (us ft)" is "Easting" and "usft".
struct Name {
    std::string_view word;
    std::string rest;
};

Name splitName(std::string_view text) {
    auto const end = std::find_if_not(text.begin(), text.end(), isLetter);
    auto const length = static_cast<std::size_t>(end - text.begin());
    return {text.substr(0, length), squeezed(text.substr(length))};
}

bool means(Name const& name, Meaning meaning) {
    std::string const word = squeezed(name.word);
    return std::any_of(words.begin(), words.end(),
                       [&](Word const& known) { return known.meaning == meaning && known.text == word; });
}

bool isAngle(Name const& name) {
    return std::find(angleWords.begin(), angleWords.end(), name.rest) != angleWords.end();
}

bool isLength(Name const& name, LengthUnit const* wanted) {
    LengthUnit const* const unit = findLengthUnit(name.rest);
    return name.rest.empty() || (unit && (!wanted || unit == wanted));
}

/// The leftmost column of a meaning, or -1.
int find(std::span<std::string const> names, Meaning meaning, Direction direction, LengthUnit const* unit) {
    for (std::size_t i = 0; i < names.size(); ++i) {
        Name const name = splitName(names[i]);
        bool const fits = meaning == Meaning::Zone ? name.rest.empty()
                          : readsAngles(direction) ? isAngle(name)
                                                   : isLength(name, unit);
        if (fits && means(name, meaning))
            return static_cast<int>(i);
    }
    return -1;
}

} // namespace

LengthUnit const* unitOfColumn(std::string_view name) {
    return findLengthUnit(splitName(name).rest);
}

std::optional<Columns> findColumns(std::span<std::string const> names, Direction direction, LengthUnit const* unit) {
    std::span<Pair const> const pairs =
        readsAngles(direction) ? std::span<Pair const>(forwardPairs) : std::span<Pair const>(inversePairs);
    for (Pair const& pair : pairs) {
        int const x = find(names, pair.x, direction, unit);
        int const y = find(names, pair.y, direction, unit);
        if (x < 0 || y < 0)
            continue;
        LengthUnit const* const found = unitOfColumn(names[static_cast<std::size_t>(x)]);
        if (found != unitOfColumn(names[static_cast<std::size_t>(y)]))
            return std::nullopt;
        return Columns{x, y, find(names, Meaning::Zone, direction, unit), found};
    }
    return std::nullopt;
}

} // namespace ZrProj::Command
