// Tags as the numbers that they hold, and the key directory.
#pragma once

#include "files/GeoTIFFKeys.h"
#include "files/GeoTIFFOutcome.h"

#include <zrproj/zrlibw.h>

#include <initializer_list>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace ZrProj::GeoTIFF {

/// A tag's doubles; empty where the tag is missing. Refused when it holds anything else.
Outcome<std::vector<double>> doublesOf(ZrBitmapTagList const& tags, TagId id);

/// A key's value: a code, numbers or a text.
using KeyValue = std::variant<std::uint16_t, std::vector<double>, std::string>;

/// The keys of a directory, with their values.
class KeyDirectory {
public:
    /// Reads the three tags; an empty directory where they are missing. Refused when anything in them is damaged.
    static Outcome<KeyDirectory> read(ZrBitmapTagList const& tags);

    bool empty() const { return m_keys.empty(); }
    bool has(Key key) const { return m_keys.contains(key); }

    /// The value; nothing where the key is missing or its value is of another kind. A code of 0, which means undefined,
    /// is as good as none.
    std::optional<std::uint16_t> code(Key key) const;
    std::optional<double> number(Key key) const;
    /// The first that is there, of keys that say the same thing.
    std::optional<double> number(std::initializer_list<Key> keys) const;
    std::vector<double> numbers(Key key) const;
    std::string_view text(Key key) const; // "" for none

    void setCode(Key key, std::uint16_t code) { m_keys[key] = code; }
    void setNumber(Key key, double number) { m_keys[key] = std::vector{number}; }
    void setNumbers(Key key, std::vector<double> numbers) { m_keys[key] = std::move(numbers); }
    void setText(Key key, std::string text) { m_keys[key] = std::move(text); }

    /// The directory as the contents of its three tags.
    struct Contents {
        std::vector<std::uint16_t> directory;
        std::vector<double> doubles;
        std::string texts;
    };
    Contents contents() const;

private:
    std::map<std::uint16_t, KeyValue> m_keys;
};

} // namespace ZrProj::GeoTIFF
