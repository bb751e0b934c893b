#include "cli/datum/datums.h"

#include "cli/projection/name_match.h"
#include "cli/text/text.h"
#include "cli/text/usage_error.h"

#include <algorithm>
#include <array>
#include <charconv>

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

struct MethodRow {
    DatumMethod method;
    std::string_view name;
};

constexpr std::array methods{
    MethodRow{DatumMethodNone, "none"},
    MethodRow{DatumMethodNadcon, "NADCON"},
    MethodRow{DatumMethodBursaWolf, "Bursa-Wolf"},
    MethodRow{DatumMethodMolodensky, "Molodensky"},
    MethodRow{DatumMethodMRE, "regression"},
};

/// The ellipsoids of datums whose records name none.
struct ImpliedEllipsoid {
    DatumType type;
    EllipsoidType ellipsoid;
};

constexpr std::array impliedEllipsoids{
    ImpliedEllipsoid{DatumTypeAustralianGeodetic1966Mre, EllipsoidTypeAustralianNatlSAmer1969},
    ImpliedEllipsoid{DatumTypeAustralianGeodetic1984Mre, EllipsoidTypeAustralianNatlSAmer1969},
    ImpliedEllipsoid{DatumTypeCampoInchausepeArgentinaMre, EllipsoidTypeInternational1924},
    ImpliedEllipsoid{DatumTypeCorregoAlegreBrazilMre, EllipsoidTypeInternational1924},
    ImpliedEllipsoid{DatumTypeEuropean1950Mre, EllipsoidTypeInternational1924},
    ImpliedEllipsoid{DatumTypeNad1927ConusMre, EllipsoidTypeClarke1866},
    ImpliedEllipsoid{DatumTypeNad1927CanadaMre, EllipsoidTypeClarke1866},
    ImpliedEllipsoid{DatumTypeSouthAmerican1969Mre, EllipsoidTypeAustralianNatlSAmer1969},
    ImpliedEllipsoid{DatumTypeNad1927ConusNadcon, EllipsoidTypeClarke1866},
    ImpliedEllipsoid{DatumTypeNad1927PuertoRicoVirginIslandsNadcon, EllipsoidTypeClarke1866},
};

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
    int const place = result.found.front();
    if (place < catalogue)
        return catalogueDatum(static_cast<DatumType>(place + 1));
    if (auto const own = ownDatum(names[static_cast<std::size_t>(place)]))
        return *own;
    throw UsageError("the datum " + inQuotes(names[static_cast<std::size_t>(place)]) +
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
    auto const found = std::find_if(methods.begin(), methods.end(), [&](auto& row) { return row.method == method; });
    return found == methods.end() ? "unknown" : found->name;
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

std::optional<Figure> figureOf(Datum const& datum) {
    DATUM2WGS84 record = datum.record;
    if (!datum.isOwn() && !DatGetDatumParams(datum.type, &record)) {
        auto const implied = std::find_if(impliedEllipsoids.begin(), impliedEllipsoids.end(),
                                          [&](auto& row) { return row.type == datum.type; });
        return implied == impliedEllipsoids.end() ? std::nullopt : std::optional(Figure{implied->ellipsoid});
    }
    if (record.Ellipsoid == EllipsoidTypeUserDefined && !(record.MajorRadius > 0))
        return std::nullopt;
    return Figure{record.Ellipsoid, record.MajorRadius, record.Flattening};
}

} // namespace ZrProj::Command
