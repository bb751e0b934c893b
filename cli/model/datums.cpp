#include "cli/model/datums.h"

#include "cli/model/parameters.h"
#include "cli/text/name_match.h"
#include "cli/text/numbers.h"
#include "cli/text/text.h"
#include "cli/text/usage_error.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstring>
#include <iterator>

namespace ZrProj::Command {
namespace {

/// What everybody calls them.
struct ShortName {
    std::string_view name;
    DatumType type;
};

constexpr std::array shortNames{
    ShortName{"nad27", DatumTypeNorthAmericanDatum1927},  ShortName{"nad83", DatumTypeNorthAmericanDatum1983},
    ShortName{"wgs84", DatumTypeWorldGeodeticSystem1984}, ShortName{"wgs72", DatumTypeWorldGeodeticSystem1972},
    ShortName{"ed50", DatumTypeEuropean1950Mean},
};

struct DatumMethodRow {
    DatumMethod method;
    std::string_view name;
    int numbers; // of a record that the method goes by; -1 for what no record can say
};

std::vector<DatumMethodRow> readMethods() {
    std::vector<DatumMethodRow> result;
    char const* name = nullptr;
    for (int number = 0, numbers = 0;
         zrproj_datum_method_entry(result.size(), &number, &name, &numbers, nullptr) == ZRPROJ_OK;)
        result.push_back({static_cast<DatumMethod>(number), name, numbers});
    return result;
}

/// The library's catalogue.
std::vector<DatumMethodRow> const& datumMethods() {
    static std::vector<DatumMethodRow> const methods = readMethods();
    return methods;
}

DatumMethodRow rowOf(DatumMethod method) {
    auto const& methods = datumMethods();
    auto const found = std::ranges::find(methods, method, &DatumMethodRow::method);
    return found == methods.end() ? DatumMethodRow{method, "unknown", -1} : *found;
}

Datum catalogueDatum(DatumType type) {
    return {datumName(type), type, {}};
}

std::optional<int> wholeNumber(std::string_view text) {
    int number = 0;
    auto const [end, status] = std::from_chars(text.data(), text.data() + text.size(), number);
    return status == std::errc() && end == text.data() + text.size() ? std::optional(number) : std::nullopt;
}

Datum numberedDatum(int number) {
    auto type = static_cast<DatumType>(number);
    if ((number > 0 && number < DatNumDatums()) || DatGetDatumFromPOSCNumber(&type, number))
        return catalogueDatum(type);
    throw UsageError("no datum has the number or POSC code " + std::to_string(number) +
                     "; \"zrproj list datums\" lists them all");
}

/// The whole catalogue, by number from 1.
std::vector<std::string> catalogueNames() {
    std::vector<std::string> names;
    for (int i = 1; i < DatNumDatums(); ++i)
        names.push_back(datumName(static_cast<DatumType>(i)));
    return names;
}

/// The user's own datum of that whole name.
std::optional<Datum> ownDatum(std::string const& name) {
    Datum datum{name, DatumTypeUserDefined, {}};
    return NDatGetDatumParams(name.c_str(), &datum.record) ? std::optional(datum) : std::nullopt;
}

Datum namedDatum(std::string_view text) {
    if (auto const own = ownDatum(std::string(text))) { // also one of signs alone
        if (isCatalogueName(text))
            throw UsageError("the name " + inQuotes(text) + " is the catalogue's and one of your own; rename yours");
        return *own;
    }
    std::vector<std::string> names = catalogueNames();
    auto const catalogue = static_cast<int>(names.size());
    for (std::string& name : userDatumNames())
        names.push_back(std::move(name));
    NameMatch const result = matchName(text, names);
    if (result.match != Match::One)
        throw UsageError(explainMismatch("datum", text, names, result, "zrproj list datums"));
    int const index = result.found.front();
    if (index < catalogue)
        return catalogueDatum(static_cast<DatumType>(index + 1));
    if (auto const own = ownDatum(names[static_cast<std::size_t>(index)]))
        return *own;
    throw UsageError("the datum " + inQuotes(names[static_cast<std::size_t>(index)]) +
                     " has just gone from the profile");
}

bool isCalled(std::string_view text, std::string_view name) {
    return text == name || (!squeezed(text).empty() && squeezed(text) == squeezed(name));
}

} // namespace

DatumMethod Datum::method() const {
    DatumMethod result = record.Method;
    if (!isOwn())
        DatGetDatumMethod(type, &result);
    return result;
}

bool Datum::isReversible() const {
    return isOwn() || DatReversible(type);
}

std::string datumName(DatumType type) {
    std::array<char, 64> name{};
    DatGetDatumName(type, name.data());
    return name.data();
}

std::string_view methodName(DatumMethod method) {
    return rowOf(method).name;
}

bool hasShifts(DatumMethod method) {
    return rowOf(method).numbers >= 3;
}

bool hasRotations(DatumMethod method) {
    return rowOf(method).numbers == 7;
}

Datum findDatum(std::string_view text, std::span<Datum const> defined) {
    for (Datum const& datum : defined)
        if (isCalled(text, datum.name))
            return datum;
    if (auto const number = wholeNumber(trimmed(text)))
        return numberedDatum(*number);
    for (ShortName const& known : shortNames)
        if (squeezed(text) == known.name)
            return catalogueDatum(known.type);
    return namedDatum(text);
}

std::vector<std::string> userDatumNames() {
    std::vector<std::string> names;
    std::array<char, 256> name{};
    for (int i = 0; NDatGetDatumName(i, name.data(), static_cast<int>(name.size())); ++i)
        names.emplace_back(name.data());
    return names;
}

bool isCatalogueName(std::string_view name) {
    std::vector<std::string> const names = catalogueNames();
    return wholeNumber(trimmed(name)) || isCalled(name, datumName(DatumTypeUserDefined)) ||
           std::any_of(names.begin(), names.end(), [&](auto& known) { return isCalled(name, known); }) ||
           std::any_of(shortNames.begin(), shortNames.end(), [&](auto& known) { return isCalled(name, known.name); });
}

zrproj_parameters parametersOf(Datum const& datum) {
    DATUM2WGS84 const& r = datum.record;
    zrproj_parameters parameters{};
    parameters.size = sizeof parameters;
    parameters.type = ProjTypeUndefined;
    parameters.datum = datum.type;
    if (!datum.isOwn())
        return parameters;
    parameters.ellipsoid = r.Ellipsoid;
    parameters.radius = r.MajorRadius;
    parameters.flattening = r.Flattening;
    parameters.shift = {r.Method, r.dX, r.dY, r.dZ, r.rX, r.rY, r.rZ, r.Scale, r.PrimeMeridian};
    return parameters;
}

std::optional<Figure> figureOf(Datum const& datum) {
    DATUM2WGS84 record = datum.record;
    if (!datum.isOwn() && !DatGetDatumParams(datum.type, &record)) {
        int ellipsoid = EllipsoidTypeUserDefined; // a record without parameters names none
        zrproj_datum_entry(static_cast<std::size_t>(datum.type) - 1, nullptr, nullptr, &ellipsoid, nullptr);
        return Figure{static_cast<EllipsoidType>(ellipsoid)};
    }
    if (record.Ellipsoid == EllipsoidTypeUserDefined && !(record.MajorRadius > 0))
        return std::nullopt;
    return Figure{record.Ellipsoid, record.MajorRadius, record.Flattening};
}

namespace {

/// A number of the record, which is byte-packed: its numbers are reached by their offsets.
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

/// A method that a datum of the user's own can go by.
DatumMethod findMethod(std::string_view text) {
    std::vector<DatumMethodRow> usable;
    std::ranges::copy_if(datumMethods(), std::back_inserter(usable), [](auto& row) { return row.numbers >= 0; });
    std::vector<std::string> names(usable.size());
    std::ranges::transform(usable, names.begin(), &DatumMethodRow::name);
    NameMatch const result = matchName(text, names);
    if (result.match != Match::One)
        throw UsageError("method: " + inQuotes(text) + " is none of molodensky, bursa-wolf and none");
    return usable[static_cast<std::size_t>(result.found.front())].method;
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
