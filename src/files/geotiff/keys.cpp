#include "files/geotiff/keys.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <span>

namespace ZrProj::GeoTIFF {
namespace {

/// A tag's values; an empty span where the tag is missing. Refused when it holds values of another type.
template <class T> Expected<std::span<T const>> valuesOf(ZrBitmapTagList const& tags, TagId id, TagType type) {
    ZrBitmapTag const* const tag = tags.Find(id);
    if (!tag)
        return std::span<T const>();
    if (tag->Type != type || (tag->Count > 0 && !tag->pData))
        return Refusal{"tag " + std::to_string(id) + " is not of its type"};
    return std::span(static_cast<T const*>(tag->pData), tag->Count);
}

/// A key as the directory has it: where the value is, and how much of it.
struct Entry {
    std::uint16_t key, location, count, value;
};

std::vector<std::uint16_t> padded(std::uint16_t key, std::uint16_t location, std::size_t count, std::size_t value) {
    return {key, location, static_cast<std::uint16_t>(count), static_cast<std::uint16_t>(value)};
}

/// The three tags, and what an entry's value in them is.
struct Sources {
    std::span<std::uint16_t const> directory;
    std::span<double const> doubles;
    std::span<char const> texts;

    template <class T> static bool holds(std::span<T const> values, Entry const& entry) {
        return entry.value <= values.size() && entry.count <= values.size() - entry.value;
    }

    std::optional<KeyValue> valueOf(Entry const& entry) const {
        switch (entry.location) {
        case 0:
            return entry.value;
        case tagDoubles: {
            if (!holds(doubles, entry) || entry.count == 0)
                return std::nullopt;
            auto const part = doubles.subspan(entry.value, entry.count);
            if (!std::ranges::all_of(part, [](double number) { return std::isfinite(number); }))
                return std::nullopt;
            return std::vector(part.begin(), part.end());
        }
        case tagTexts: {
            if (!holds(texts, entry))
                return std::nullopt;
            auto const part = texts.subspan(entry.value, entry.count);
            std::string text(part.begin(), std::ranges::find(part, '\0'));
            while (text.ends_with('|')) // the texts' own end mark
                text.pop_back();
            return text;
        }
        default:
            return std::nullopt;
        }
    }
};

} // namespace

Expected<std::vector<double>> doublesOf(ZrBitmapTagList const& tags, TagId id) {
    auto const values = valuesOf<double>(tags, id, typeDouble);
    if (!values)
        return values.refusal();
    return std::vector(values->begin(), values->end());
}

Expected<KeyDirectory> KeyDirectory::read(ZrBitmapTagList const& tags) {
    auto const directory = valuesOf<std::uint16_t>(tags, tagKeyDirectory, typeShort);
    auto const doubles = valuesOf<double>(tags, tagDoubles, typeDouble);
    auto const texts = valuesOf<char>(tags, tagTexts, typeAscii);
    if (!directory || !doubles || !texts)
        return Refusal{directory.reason() + doubles.reason() + texts.reason()};
    KeyDirectory result;
    if (directory->empty())
        return result;
    // Version, revision, minor revision, number of keys; then four numbers a key.
    if (directory->size() < 4 || directory->front() != 1 || (*directory)[3] > (directory->size() - 4) / 4)
        return Refusal{"the key directory is damaged"};
    Sources const sources{*directory, *doubles, *texts};
    for (std::size_t i = 4; i < 4 + 4 * std::size_t{(*directory)[3]}; i += 4) {
        auto const at = directory->subspan(i, 4);
        auto value = sources.valueOf({at[0], at[1], at[2], at[3]});
        if (!value)
            return Refusal{"key " + std::to_string(at[0]) + " is damaged"};
        if (auto const [entry, isNew] = result.m_keys.try_emplace(at[0], *value); !isNew && entry->second != *value)
            return Refusal{"key " + std::to_string(at[0]) + " contradicts itself"};
    }
    return result;
}

std::optional<std::uint16_t> KeyDirectory::code(Key key) const {
    auto const found = m_keys.find(key);
    auto const* const value = found == m_keys.end() ? nullptr : std::get_if<std::uint16_t>(&found->second);
    return value && *value != 0 ? std::optional(*value) : std::nullopt;
}

std::vector<double> KeyDirectory::numbers(Key key) const {
    auto const found = m_keys.find(key);
    auto const* const value = found == m_keys.end() ? nullptr : std::get_if<std::vector<double>>(&found->second);
    return value ? *value : std::vector<double>();
}

std::optional<double> KeyDirectory::number(Key key) const {
    std::vector<double> const values = numbers(key);
    return values.size() == 1 ? std::optional(values.front()) : std::nullopt;
}

std::optional<double> KeyDirectory::number(std::initializer_list<Key> keys) const {
    for (Key key : keys)
        if (has(key))
            return number(key);
    return std::nullopt;
}

std::string_view KeyDirectory::text(Key key) const {
    auto const found = m_keys.find(key);
    auto const* const value = found == m_keys.end() ? nullptr : std::get_if<std::string>(&found->second);
    return value ? std::string_view(*value) : std::string_view();
}

KeyDirectory::Contents KeyDirectory::contents() const {
    Contents result{{1, 1, 0, static_cast<std::uint16_t>(m_keys.size())}, {}, {}};
    auto const append = [&](std::vector<std::uint16_t> const& entry) {
        result.directory.insert(result.directory.end(), entry.begin(), entry.end());
    };
    for (auto const& [key, value] : m_keys) {
        if (auto const* const code = std::get_if<std::uint16_t>(&value)) {
            append(padded(key, 0, 1, *code));
        } else if (auto const* const numbers = std::get_if<std::vector<double>>(&value)) {
            append(padded(key, tagDoubles, numbers->size(), result.doubles.size()));
            result.doubles.insert(result.doubles.end(), numbers->begin(), numbers->end());
        } else {
            std::string const text = std::get<std::string>(value) + '|';
            append(padded(key, tagTexts, text.size(), result.texts.size()));
            result.texts += text;
        }
    }
    return result;
}

} // namespace ZrProj::GeoTIFF
