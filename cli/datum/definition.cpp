#include "cli/datum/definition.h"

#include "cli/projection/name_match.h"
#include "cli/projection/parameters.h"
#include "cli/text/number_field.h"
#include "cli/text/text.h"
#include "cli/text/usage_error.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace ZrProj::Command {
namespace {

/// The record is byte-packed: its numbers are reached by their place.
struct FieldRow {
    std::string_view key, unit, words;
    std::size_t offset;
};

// clang-format off
constexpr std::array fieldRows{
    FieldRow{"dx",             "metres",            "X shift",        offsetof(DATUM2WGS84, dX)},
    FieldRow{"dy",             "metres",            "Y shift",        offsetof(DATUM2WGS84, dY)},
    FieldRow{"dz",             "metres",            "Z shift",        offsetof(DATUM2WGS84, dZ)},
    FieldRow{"rx",             "arcseconds",        "X rotation",     offsetof(DATUM2WGS84, rX)},
    FieldRow{"ry",             "arcseconds",        "Y rotation",     offsetof(DATUM2WGS84, rY)},
    FieldRow{"rz",             "arcseconds",        "Z rotation",     offsetof(DATUM2WGS84, rZ)},
    FieldRow{"scale",          "parts per million", "Scale",          offsetof(DATUM2WGS84, Scale)},
    FieldRow{"prime-meridian", "degrees",           "Prime meridian", offsetof(DATUM2WGS84, PrimeMeridian)},
    FieldRow{"radius",         "metres",            "Radius",         offsetof(DATUM2WGS84, MajorRadius)},
    FieldRow{"flattening",     "",                  "Flattening",     offsetof(DATUM2WGS84, Flattening)},
};
// clang-format on

constexpr std::string_view keys =
    "method, ellipsoid (or radius and flattening), dx, dy, dz, rx, ry, rz, scale, prime-meridian";

DatumMethod findMethod(std::string_view text) {
    constexpr std::array usable{DatumMethodNone, DatumMethodBursaWolf, DatumMethodMolodensky};
    std::array<std::string, usable.size()> names;
    std::transform(usable.begin(), usable.end(), names.begin(), methodName);
    NameMatch const result = matchName(text, names);
    if (result.match != Match::One)
        throw UsageError("method: " + inQuotes(text) + " is none of molodensky, bursa-wolf and none");
    return usable[static_cast<std::size_t>(result.found.front())];
}

void setNumber(DATUM2WGS84& record, std::string_view key, std::string_view text) {
    auto const row = std::find_if(fieldRows.begin(), fieldRows.end(),
                                  [&](auto& field) { return squeezed(field.key) == squeezed(key); });
    if (row == fieldRows.end())
        throw UsageError("a datum has no field " + inQuotes(key) + "; there are " + std::string(keys));
    Reading const number = row->key == "flattening" ? readFlattening(text) : readNumber(text);
    if (number.error)
        throw UsageError(std::string(row->key) + ": " + inQuotes(text) + ' ' + number.error);
    std::memcpy(reinterpret_cast<std::byte*>(&record) + row->offset, &number.value, sizeof number.value);
}

void setField(DATUM2WGS84& record, std::string_view key, std::string_view text) {
    if (squeezed(key) == "method")
        record.Method = findMethod(text);
    else if (squeezed(key) == "ellipsoid")
        record.Ellipsoid = findEllipsoid(text);
    else
        setNumber(record, key, text);
}

/// A catalogue ellipsoid brings its figures; one's own are two numbers instead.
void completeEllipsoid(DATUM2WGS84& record) {
    if (record.Ellipsoid == EllipsoidTypeUserDefined)
        return;
    if (record.MajorRadius != 0 || record.Flattening != 0)
        throw UsageError("radius and flattening have no place beside ellipsoid, which tells them");
    record.MajorRadius = EllipsoidRadius(record.Ellipsoid);
    record.Flattening = EllipsoidFlattening(record.Ellipsoid);
}

/// Refuses what the library refuses, in its words.
void check(Datum const& datum) {
    DATUMXFORM request = {};
    request.SourceParams = datum.record;
    request.Destination = DatumTypeWorldGeodeticSystem1984;
    std::array<char, 512> message{};
    if (DatCheckParams(&request, message.data(), false) != 0)
        throw UsageError("the datum " + inQuotes(datum.name) + " cannot be used: " + message.data());
}

} // namespace

Datum readDatumDefinition(std::string_view text) {
    std::size_t const colon = text.rfind(':');
    if (colon == std::string_view::npos || trimmed(text.substr(0, colon)).empty())
        throw UsageError(inQuotes(text) + " is no datum; write NAME: method=..., with the fields " + std::string(keys));
    Datum datum{std::string(trimmed(text.substr(0, colon))), DatumTypeUserDefined, {}};
    if (isCatalogueName(datum.name))
        throw UsageError("the name " + inQuotes(datum.name) + " is one of the catalogue's");
    std::vector<std::string> seen;
    for (std::size_t begin = colon + 1; begin <= text.size();) {
        std::size_t const end = std::min(text.find(',', begin), text.size());
        std::string_view const field = trimmed(text.substr(begin, end - begin));
        std::size_t const equals = field.find('=');
        if (equals == std::string_view::npos)
            throw UsageError(inQuotes(field) + " is no field of a datum; write KEY=VALUE, with the keys " +
                             std::string(keys));
        std::string_view const key = trimmed(field.substr(0, equals));
        if (std::find(seen.begin(), seen.end(), squeezed(key)) != seen.end())
            throw UsageError("the datum " + inQuotes(datum.name) + " has " + inQuotes(key) + " twice");
        setField(datum.record, key, trimmed(field.substr(equals + 1)));
        seen.push_back(squeezed(key));
        begin = end + 1;
    }
    if (std::find(seen.begin(), seen.end(), "method") == seen.end())
        throw UsageError("the datum " + inQuotes(datum.name) +
                         " has no method; write method=molodensky, bursa-wolf or none");
    completeEllipsoid(datum.record);
    check(datum);
    return datum;
}

std::vector<DatumField> datumFields(DATUM2WGS84 const& record) {
    std::vector<DatumField> fields;
    for (FieldRow const& row : fieldRows) {
        double value = 0;
        std::memcpy(&value, reinterpret_cast<std::byte const*>(&record) + row.offset, sizeof value);
        fields.push_back({row.key, row.unit, row.words, value});
    }
    return fields;
}

} // namespace ZrProj::Command
