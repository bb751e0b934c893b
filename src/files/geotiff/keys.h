// The numbers of OGC GeoTIFF 1.1 (19-008r4), tags as the values that they hold, and the key directory.
#pragma once

#include <zrproj/zrlibw.h>

#include <cstdint>
#include <initializer_list>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace ZrProj::GeoTIFF {

enum TagId : std::uint16_t {
    tagPixelScale = 33550,
    tagTiePoints = 33922,
    tagTransformation = 34264,
    tagKeyDirectory = 34735,
    tagDoubles = 34736,
    tagTexts = 34737,
};

enum TagType : std::uint16_t {
    typeAscii = 2,
    typeShort = 3,
    typeDouble = 12,
};

enum Key : std::uint16_t {
    keyModelType = 1024,
    keyRasterType = 1025,
    keyCitation = 1026,
    keyGeographicType = 2048,
    keyGeographicCitation = 2049,
    keyDatum = 2050,
    keyPrimeMeridian = 2051,
    keyGeographicLengthUnit = 2052,
    keyGeographicLengthUnitSize = 2053,
    keyAngleUnit = 2054,
    keyAngleUnitSize = 2055,
    keyEllipsoid = 2056,
    keySemiMajorAxis = 2057,
    keySemiMinorAxis = 2058,
    keyInverseFlattening = 2059,
    keyAzimuthUnit = 2060,
    keyPrimeMeridianLongitude = 2061,
    keyToWgs84 = 2062, // 3 or 7 numbers: what OGC WKT calls TOWGS84; not in the standard, but widely written
    keyProjectedType = 3072,
    keyProjectedCitation = 3073,
    keyProjection = 3074,
    keyTransformation = 3075,
    keyLengthUnit = 3076,
    keyLengthUnitSize = 3077,
    keyParallel1 = 3078,
    keyParallel2 = 3079,
    keyNaturalLongitude = 3080,
    keyNaturalLatitude = 3081,
    keyFalseEasting = 3082,
    keyFalseNorthing = 3083,
    keyFalseOriginLongitude = 3084,
    keyFalseOriginLatitude = 3085,
    keyFalseOriginEasting = 3086,
    keyFalseOriginNorthing = 3087,
    keyCentreLongitude = 3088,
    keyCentreLatitude = 3089,
    keyCentreEasting = 3090,
    keyCentreNorthing = 3091,
    keyNaturalScale = 3092,
    keyCentreScale = 3093,
    keyAzimuth = 3094,
    keyPoleLongitude = 3095,
    keyGridAngle = 3096,
};

enum Code : std::uint16_t {
    modelProjected = 1,
    modelGeographic = 2,
    modelGeocentric = 3,
    rasterIsArea = 1,
    rasterIsPoint = 2,
    meridianGreenwich = 8901,
    unitMetre = 9001,
    unitUSFoot = 9003,
    unitDegree = 9102,
    userDefined = 32767,
};

/// Why there is no value: a sentence without its full stop.
struct Refusal {
    std::string reason;
};

/// A value, or the sentence that says why there is none.
template <class T> class Expected {
public:
    Expected(T value) : m_value(std::move(value)) {}
    Expected(Refusal refusal) : m_reason(std::move(refusal.reason)) {}

    explicit operator bool() const { return m_value.has_value(); }
    T const& operator*() const { return *m_value; }
    T const* operator->() const { return &*m_value; }
    /// Why there is no value.
    std::string const& reason() const { return m_reason; }
    Refusal refusal() const { return {m_reason}; }

private:
    std::optional<T> m_value;
    std::string m_reason;
};

/// A tag's doubles; empty where the tag is missing. Refused when it holds anything else.
Expected<std::vector<double>> doublesOf(ZrBitmapTagList const& tags, TagId id);

/// A key's value: a code, numbers or a text.
using KeyValue = std::variant<std::uint16_t, std::vector<double>, std::string>;

/// The keys of a directory, with their values.
class KeyDirectory {
public:
    /// Reads the three tags; an empty directory where they are missing. Refused when anything in them is damaged.
    static Expected<KeyDirectory> read(ZrBitmapTagList const& tags);

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
