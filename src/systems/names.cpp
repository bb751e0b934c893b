#include "systems/names.h"

#include "systems/register/tables.h"

#include <algorithm>
#include <array>
#include <compare>
#include <numeric>
#include <optional>
#include <span>
#include <utility>

namespace ZrProj::systems {
namespace {

using namespace rows;

/// What a kind of things is called: its rows' names in the order of their keys, and further ones in that order.
struct Names {
    std::span<std::uint16_t const> order;
    std::span<AliasRow const> aliases;
    std::string (*name)(std::size_t row);
    Code (*code)(std::size_t row);
};

template <auto const& table> Names namesOf(std::span<std::uint16_t const> order, std::span<AliasRow const> aliases) {
    return {order, aliases, [](std::size_t row) { return at(table[row].name); },
            [](std::size_t row) { return Code{table[row].code}; }};
}

Names namesOf(Thing thing) {
    switch (thing) {
    case Thing::system:
        return namesOf<systems>(systemNames, systemAliases);
    case Thing::datum:
        return namesOf<datums>(datumNames, datumAliases);
    case Thing::ellipsoid:
        return namesOf<ellipsoids>(ellipsoidNames, ellipsoidAliases);
    case Thing::meridian:
        return namesOf<meridians>(meridianNames, meridianAliases);
    case Thing::unit:
        break;
    }
    return namesOf<rows::units>(unitNames, unitAliases);
}

char lowered(char c) {
    return 'A' <= c && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool countsInKey(char c) {
    return ('a' <= c && c <= 'z') || ('0' <= c && c <= '9') || c == '+' || static_cast<unsigned char>(c) >= 0x80;
}

/// What names are compared by: small letters, digits and +, without the words "zone" and "ensemble".
std::string keyOf(std::string_view name) {
    std::string key;
    std::size_t word = 0;
    auto const endWord = [&] {
        auto const last = std::string_view(key).substr(word);
        if (last == "zone" || last == "ensemble")
            key.resize(word);
        word = key.size();
    };
    for (char const c : name) {
        if (countsInKey(lowered(c)))
            key += lowered(c);
        else
            endWord();
    }
    endWord();
    return key;
}

/// A name with the plain letters that the register writes instead of Latin-1's, as "Kruger" for "Krüger".
std::string plain(std::string_view name) {
    constexpr std::string_view letters =
        "AAAAAAACEEEEIIIIDNOOOOO*OUUUUYTsaaaaaaaceeeeiiiidnooooo/ouuuuyty"; // U+00C0 on
    std::string made;
    for (std::size_t i = 0; i < name.size(); ++i) {
        if (name[i] == '\xC3' && i + 1 < name.size())
            made += letters[static_cast<unsigned char>(name[++i]) & 0x3FU];
        else
            made += name[i];
    }
    return made;
}

std::string textOf(AliasRow const& alias) {
    return at(beginnings[alias.beginning]) + at(alias.rest);
}

bool equalButForCase(std::string_view a, std::string_view b) {
    return std::ranges::equal(a, b, {}, lowered, lowered);
}

/// How well something is called by a name: less is better.
struct Match {
    int unlike; // 0 the same, 1 but for case, 2 but for marks
    bool deprecated;
    bool alias;
    Code code;
    auto operator<=>(Match const&) const = default;
};

bool isDeprecated(Thing thing, Code code) {
    auto const* row = thing == Thing::system ? find(systems, code) : nullptr;
    return row && row->deprecated;
}

class Search {
public:
    Search(Thing thing, std::string_view name) : thing_(thing), names_(namesOf(thing)), name_(name) {}

    /// The best match of a key, which is the name's own or a longer one.
    Code best(std::string const& key) {
        auto const keyOfRow = [this](std::uint16_t row) { return keyOf(names_.name(row)); };
        forEach(names_.order, key, keyOfRow, [this](auto row) { consider(names_.name(row), names_.code(row), false); });
        auto const keyOfAlias = [](AliasRow const& alias) { return keyOf(textOf(alias)); };
        forEach(names_.aliases, key, keyOfAlias, [this](auto const& row) { consider(textOf(row), row.code, true); });
        return best_ ? best_->code : 0;
    }

private:
    /// Does something with each row of a key, of rows in the order of their keys.
    template <class Row, class KeyOf, class Do>
    static void forEach(std::span<Row const> rows, std::string const& key, KeyOf keyOfRow, Do something) {
        auto const before = [&](Row const& row, std::string const& k) { return keyOfRow(row) < k; };
        for (auto row = std::lower_bound(rows.begin(), rows.end(), key, before); row != rows.end(); ++row) {
            if (keyOfRow(*row) != key)
                return;
            something(*row);
        }
    }

    void consider(std::string_view text, Code code, bool alias) {
        int const unlike = text == name_ ? 0 : equalButForCase(text, name_) ? 1 : 2;
        Match const match{unlike, isDeprecated(thing_, code), alias, code};
        if (!best_ || match < *best_)
            best_ = match;
    }

    Thing thing_;
    Names names_;
    std::string_view name_;
    std::optional<Match> best_;
};

/// What is often left out in front of a name.
std::string_view beginningOf(Thing thing, std::string_view key) {
    switch (thing) {
    case Thing::system:
        return key.starts_with("utm") ? "wgs84" : "gcs";
    case Thing::datum:
        return "d";
    default:
        return "";
    }
}

/// Without what ESRI puts in front of a name, of its own or of another's.
std::string_view withoutEsriBeginning(Thing thing, std::string_view name) {
    std::string_view const beginning = thing == Thing::system ? "GCS_" : thing == Thing::datum ? "D_" : "";
    return name.starts_with(beginning) ? name.substr(beginning.size()) : name;
}

/// A system by a former name of its geographic system, or before its heights.
Code codeOfParts(std::string_view name) {
    if (auto const heights = name.find(" + "); heights != name.npos)
        return codeNamed(Thing::system, name.substr(0, heights));
    auto const conversion = name.find(" / ");
    Code const base = conversion == name.npos ? 0 : codeNamed(Thing::system, name.substr(0, conversion));
    if (base == 0)
        return codeOfOgc(name);
    std::string const current = nameOf(Thing::system, base) + std::string(name.substr(conversion));
    return current == name ? 0 : codeNamed(Thing::system, current);
}

/// The least number of letters to change, put in or leave out, at most `limit`.
std::size_t editDistance(std::string_view a, std::string_view b, std::size_t limit) {
    if (std::max(a.size(), b.size()) - std::min(a.size(), b.size()) >= limit)
        return limit;
    std::vector<std::size_t> row(b.size() + 1);
    std::iota(row.begin(), row.end(), std::size_t{0});
    for (std::size_t i = 0; i < a.size(); ++i) {
        std::size_t diagonal = std::exchange(row[0], i + 1);
        for (std::size_t j = 0; j < b.size(); ++j) {
            std::size_t const changed = diagonal + (a[i] != b[j]);
            diagonal = row[j + 1];
            row[j + 1] = std::min({changed, diagonal + 1, row[j] + 1});
        }
    }
    return std::min(row.back(), limit);
}

/// How far a name is from what is looked for; one that has all of it is near, the shorter the nearer.
std::size_t distance(std::string_view wanted, std::string_view key, std::size_t limit) {
    if (wanted.size() >= 3 && key.find(wanted) != key.npos)
        return std::min(limit, 1 + (key.size() - wanted.size()) / 8);
    return editDistance(wanted, key, limit);
}

} // namespace

Code codeNamed(Thing thing, std::string_view name) {
    Search search(thing, name);
    auto const key = keyOf(name);
    if (key.empty())
        return 0;
    if (Code const code = search.best(key))
        return code;
    auto const beginning = beginningOf(thing, key);
    if (Code const code = beginning.empty() ? 0 : search.best(std::string(beginning) + key))
        return code;
    if (auto const rest = withoutEsriBeginning(thing, name); rest.size() < name.size())
        return codeNamed(thing, rest);
    if (auto const twin = plain(name); twin != name)
        return codeNamed(thing, twin);
    return thing == Thing::system ? codeOfParts(name) : 0;
}

Code codeOfOgc(std::string_view name) {
    std::string const key = keyOf(name);
    std::string_view const what = key.starts_with("ogc") ? std::string_view(key).substr(3) : key;
    return what == "crs84" ? 4326 : what == "crs83" ? 4269 : what == "crs27" ? 4267 : 0;
}

std::string nameOf(Thing thing, Code code) {
    auto const nameIn = [code](auto const& table) -> std::string {
        auto const* row = find(table, code);
        return row ? at(row->name) : std::string();
    };
    switch (thing) {
    case Thing::system:
        return nameIn(systems);
    case Thing::datum:
        return nameIn(datums);
    case Thing::ellipsoid:
        return nameIn(ellipsoids);
    case Thing::meridian:
        return nameIn(meridians);
    case Thing::unit:
        break;
    }
    return nameIn(rows::units);
}

std::string esriNameOf(Thing thing, Code code) {
    for (AliasRow const& alias : namesOf(thing).aliases)
        if (alias.code == code && alias.maker == Maker::esri)
            return textOf(alias);
    return {};
}

std::vector<Entry> suggestions(std::string_view name, std::size_t count) {
    auto const wanted = keyOf(name);
    std::size_t const limit = 2 + wanted.size() / 3;
    std::vector<std::pair<std::size_t, std::size_t>> near; // distance, row
    for (std::size_t row = 0; row < std::size(systems); ++row) {
        if (systems[row].deprecated)
            continue;
        if (auto const far = distance(wanted, keyOf(at(systems[row].name)), limit); far < limit)
            near.emplace_back(far, row);
    }
    std::ranges::sort(near);
    std::vector<Entry> found;
    for (std::size_t i = 0; i < std::min(count, near.size()); ++i)
        found.push_back(entry(near[i].second));
    return found;
}

} // namespace ZrProj::systems
