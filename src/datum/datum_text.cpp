#include "datum/datum_text.h"

#include "datum/method_table.h"
#include "host/text.h"

#include <algorithm>
#include <array>
#include <bit>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>
#include <system_error>

namespace ZrProj {
namespace {

/// A number of the record, which is byte-packed: its numbers are reached by their offsets.
struct NumberField {
    std::string_view key;
    std::size_t offset;
};

constexpr std::array numberFields{
    NumberField{"prime-meridian", offsetof(DATUM2WGS84, PrimeMeridian)},
    NumberField{"dx", offsetof(DATUM2WGS84, dX)},
    NumberField{"dy", offsetof(DATUM2WGS84, dY)},
    NumberField{"dz", offsetof(DATUM2WGS84, dZ)},
    NumberField{"rx", offsetof(DATUM2WGS84, rX)},
    NumberField{"ry", offsetof(DATUM2WGS84, rY)},
    NumberField{"rz", offsetof(DATUM2WGS84, rZ)},
    NumberField{"scale", offsetof(DATUM2WGS84, Scale)},
    NumberField{"radius", offsetof(DATUM2WGS84, MajorRadius)},
    NumberField{"flattening", offsetof(DATUM2WGS84, Flattening)},
};

constexpr std::string_view methodKey = "method", ellipsoidKey = "ellipsoid", flagKey = "from-wgs84",
                           reservedKey = "reserved";
constexpr std::string_view hexDigits = "0123456789abcdef";

template <class Number> void append(std::string& text, std::string_view key, Number value) {
    std::array<char, 32> digits;
    char const* const end = std::to_chars(digits.data(), digits.data() + digits.size(), value).ptr;
    text.append(", ").append(key).append("=").append(std::string_view(digits.data(), end));
}

void appendHex(std::string& text, unsigned char byte) {
    text += hexDigits[byte / 16U];
    text += hexDigits[byte % 16U];
}

void appendReserved(std::string& text, std::span<unsigned char const> bytes) {
    while (!bytes.empty() && bytes.back() == 0)
        bytes = bytes.first(bytes.size() - 1);
    if (!bytes.empty())
        text.append(", ").append(reservedKey).append("=");
    for (unsigned char const byte : bytes)
        appendHex(text, byte);
}

/// The value of a text that is a number from its first character to its last.
template <class Number> std::optional<Number> readWhole(std::string_view text, auto... format) {
    Number value{};
    auto const [end, status] = std::from_chars(text.data(), text.data() + text.size(), value, format...);
    return status == std::errc() && end == text.data() + text.size() ? std::optional(value) : std::nullopt;
}

std::optional<unsigned char> readHex(std::string_view digits) {
    return digits.size() == 2 ? readWhole<unsigned char>(digits, 16) : std::nullopt;
}

bool takeMethod(std::string_view value, DATUM2WGS84& record) {
    auto const found = std::ranges::find_if(
        datumMethodTable, [&](DatumMethodRow const& row) { return row.isOwn() && equalIgnoringCase(row.name, value); });
    if (found != datumMethodTable.end())
        record.Method = found->method;
    return found != datumMethodTable.end();
}

bool takeReserved(std::string_view value, std::span<unsigned char> bytes) {
    if (value.size() % 2 != 0 || value.size() > 2 * bytes.size())
        return false;
    for (std::size_t i = 0; i < value.size(); i += 2) {
        auto const byte = readHex(value.substr(i, 2));
        if (!byte)
            return false;
        bytes[i / 2] = *byte;
    }
    return true;
}

bool takeNumber(std::string_view key, std::string_view value, DATUM2WGS84& record) {
    auto const field =
        std::ranges::find_if(numberFields, [&](NumberField const& row) { return equalIgnoringCase(row.key, key); });
    auto const number = readWhole<double>(value);
    if (field == numberFields.end() || !number)
        return false;
    std::memcpy(reinterpret_cast<std::byte*>(&record) + field->offset, &*number, sizeof *number);
    return true;
}

bool takeField(std::string_view key, std::string_view value, DATUM2WGS84& record) {
    if (equalIgnoringCase(key, methodKey))
        return takeMethod(value, record);
    if (equalIgnoringCase(key, reservedKey))
        return takeReserved(value, record.Reserved);
    if (equalIgnoringCase(key, flagKey)) {
        record.bFromWGS84 = value == "1";
        return value == "0" || value == "1";
    }
    if (!equalIgnoringCase(key, ellipsoidKey))
        return takeNumber(key, value, record);
    auto const ellipsoid = readWhole<std::int32_t>(value);
    record.Ellipsoid = static_cast<EllipsoidType>(ellipsoid.value_or(0));
    return ellipsoid.has_value();
}

std::string_view withoutBlanks(std::string_view text) {
    std::size_t const begin = std::min(text.find_first_not_of(" \t"), text.size());
    text.remove_prefix(begin);
    return text.substr(0, text.find_last_not_of(" \t") + 1);
}

bool isEscaped(std::string_view name, std::size_t i) {
    constexpr std::string_view everywhere = "%=[]\"'", first = ";#";
    bool const atEnd = i == 0 || i + 1 == name.size();
    return everywhere.find(name[i]) != std::string_view::npos || (atEnd && name[i] == ' ') ||
           (i == 0 && first.find(name[i]) != std::string_view::npos);
}

} // namespace

std::string datumText(DATUM2WGS84 const& record) {
    auto const* const method = datumMethodRow(record.Method);
    std::string text(methodKey);
    text.append("=").append(method ? method->name : "");
    if (record.Ellipsoid != 0)
        append(text, ellipsoidKey, static_cast<std::int32_t>(record.Ellipsoid));
    for (NumberField const& field : numberFields) {
        double value = 0;
        std::memcpy(&value, reinterpret_cast<std::byte const*>(&record) + field.offset, sizeof value);
        if (std::bit_cast<std::uint64_t>(value) != 0)
            append(text, field.key, value);
    }
    unsigned char flag = 0; // anything may stand there
    std::memcpy(&flag, &record.bFromWGS84, 1);
    if (flag != 0)
        append(text, flagKey, 1);
    appendReserved(text, record.Reserved);
    return text;
}

std::optional<DATUM2WGS84> readDatumText(std::string_view text) {
    DATUM2WGS84 record = {};
    bool methodSeen = false;
    for (std::size_t begin = 0; begin <= text.size();) {
        std::size_t const end = std::min(text.find(',', begin), text.size());
        std::string_view const field = text.substr(begin, end - begin);
        std::size_t const equals = std::min(field.find('='), field.size());
        std::string_view const key = withoutBlanks(field.substr(0, equals));
        std::string_view const value = withoutBlanks(field.substr(std::min(equals + 1, field.size())));
        if (!takeField(key, value, record))
            return std::nullopt;
        methodSeen = methodSeen || equalIgnoringCase(key, methodKey);
        begin = end + 1;
    }
    return methodSeen ? std::optional(record) : std::nullopt;
}

std::string keyOfName(std::string_view name) {
    std::string key;
    for (std::size_t i = 0; i < name.size(); ++i) {
        if (!isEscaped(name, i)) {
            key += name[i];
            continue;
        }
        key += '%';
        appendHex(key, static_cast<unsigned char>(name[i]));
    }
    return key;
}

std::string nameOfKey(std::string_view key) {
    std::string name;
    for (std::size_t i = 0; i < key.size(); ++i) {
        auto const byte = key[i] == '%' ? readHex(key.substr(i + 1, 2)) : std::nullopt;
        name += byte ? static_cast<char>(*byte) : key[i];
        i += byte ? 2U : 0U;
    }
    return name;
}

} // namespace ZrProj
