#include "cli/model/parameters.h"

#include "cli/model/zones.h"
#include "cli/text/name_match.h"
#include "cli/text/numbers.h"
#include "cli/text/text.h"
#include "cli/text/usage_error.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <optional>

namespace ZrProj::Command {
namespace {

/// "2nd Standard Parallel" is "--2nd-standard-parallel"; what stands in brackets is left out.
std::string optionOf(std::string_view name) {
    std::string option = "-";
    bool separated = true;
    for (char c : name.substr(0, name.find('('))) {
        bool const word = isLetter(c) || isDigit(c);
        if (word && separated)
            option += '-';
        if (word)
            option += lowerCase(c);
        separated = !word;
    }
    return option;
}

/// The short form of an option, from the parameter's key: "use_alpha" is "--use-alpha".
std::string optionOfKey(std::string key) {
    std::ranges::replace(key, '_', '-');
    return "--" + key;
}

std::vector<Parameter> readCatalogue() {
    std::vector<Parameter> result;
    Parameter parameter;
    char const *key = nullptr, *name = nullptr;
    for (std::size_t n = 0; zrproj_parameter_entry(n, &parameter.id, &key, &name, &parameter.kind) == ZRPROJ_OK; ++n) {
        parameter.name = name;
        parameter.longOption = optionOf(name);
        bool const hasShort = parameter.kind != ZRPROJ_KIND_PROJECTION && parameter.kind != ZRPROJ_KIND_ZONE;
        parameter.option = hasShort ? optionOfKey(key) : parameter.longOption;
        result.push_back(parameter);
    }
    return result;
}

Reading readFactor(std::string_view text) {
    Reading factor = readNumber(text);
    if (!factor.error && !(factor.value > 0))
        factor.error = "is not greater than zero";
    return factor;
}

Reading readValue(zrproj_kind kind, std::string_view text) {
    switch (kind) {
    case ZRPROJ_KIND_LONGITUDE:
        return readAngle(text, Axis::Longitude);
    case ZRPROJ_KIND_LATITUDE:
        return readAngle(text, Axis::Latitude);
    case ZRPROJ_KIND_AZIMUTH:
        return readAngle(text, Axis::Azimuth);
    case ZRPROJ_KIND_FLATTENING:
        return readFlattening(text);
    case ZRPROJ_KIND_FACTOR:
        return readFactor(text);
    default:
        return readNumber(text);
    }
}

template <class T> T parameterValue(PROJDATA const& record, int id) {
    T value{};
    ProjGetParam(&record, id, &value);
    return value;
}

std::string unitText(zrproj_kind kind) {
    switch (kind) {
    case ZRPROJ_KIND_LONGITUDE:
    case ZRPROJ_KIND_LATITUDE:
    case ZRPROJ_KIND_AZIMUTH:
        return " degrees";
    case ZRPROJ_KIND_METRES:
        return " metres";
    default:
        return "";
    }
}

/// A number in a text that is nothing else, if it lies in 0 to `count` - 1.
std::optional<int> readIndex(std::string_view text, int count) {
    int number = 0;
    char const* const end = text.data() + text.size();
    auto const [rest, status] = std::from_chars(text.data(), end, number);
    if (status != std::errc() || rest != end || number < 0 || number >= count)
        return std::nullopt;
    return number;
}

/// One of `count` catalogue entries, by number or name.
template <class Name>
int findEntry(std::string_view kind, std::string_view text, int count, Name nameOf, std::string_view listCommand) {
    if (auto const number = readIndex(text, count))
        return *number;
    std::vector<std::string> names(static_cast<std::size_t>(count));
    std::generate(names.begin(), names.end(), [&, i = 0]() mutable { return nameOf(i++); });
    NameMatch const result = matchName(text, names);
    if (result.match != Match::One)
        throw UsageError(explainMismatch(kind, text, names, result, listCommand));
    return result.found.front();
}

} // namespace

std::vector<Parameter> const& parameters() {
    static std::vector<Parameter> const catalogue = readCatalogue();
    return catalogue;
}

Parameter const& parameter(int id) {
    return parameters().at(static_cast<std::size_t>(id - 1));
}

std::vector<int> usedParameters(ProjType type) {
    std::vector<int> result;
    for (int i = 0; i < ProjNumParams(type); ++i) {
        int const id = ProjEnumParam(type, i);
        result.push_back(id);
        if (parameter(id).kind == ZRPROJ_KIND_ELLIPSOID)
            result.insert(result.end(), {ProjParamMajorRadius, ProjParamFlattening});
    }
    return result;
}

void setParameter(PROJDATA& record, Parameter const& parameter, std::string_view text) {
    if (parameter.kind == ZRPROJ_KIND_FLAG) {
        bool const set = true;
        ProjSetParam(&record, parameter.id, &set);
        return;
    }
    Reading const reading = readValue(parameter.kind, text);
    if (reading.error)
        throw UsageError(parameter.option + ": " + inQuotes(text) + ' ' + reading.error);
    ProjSetParam(&record, parameter.id, &reading.value);
}

void setNumber(PROJDATA& record, int id, double value) {
    bool const flag = value != 0;
    auto const entry = static_cast<std::int32_t>(value);
    switch (parameter(id).kind) {
    case ZRPROJ_KIND_FLAG:
        ProjSetParam(&record, id, &flag);
        break;
    case ZRPROJ_KIND_PROJECTION:
    case ZRPROJ_KIND_ELLIPSOID:
    case ZRPROJ_KIND_ZONE:
        ProjSetParam(&record, id, &entry);
        break;
    default:
        ProjSetParam(&record, id, &value);
    }
}

namespace {

/// A parameter as a number, whatever it is.
double numberOf(PROJDATA const& record, Parameter const& parameter) {
    switch (parameter.kind) {
    case ZRPROJ_KIND_FLAG:
        return parameterValue<bool>(record, parameter.id) ? 1 : 0;
    case ZRPROJ_KIND_PROJECTION:
    case ZRPROJ_KIND_ELLIPSOID:
    case ZRPROJ_KIND_ZONE:
        return parameterValue<std::int32_t>(record, parameter.id);
    default:
        return parameterValue<double>(record, parameter.id);
    }
}

} // namespace

PROJDATA recordOf(zrproj_parameters const& given) {
    PROJDATA record = {};
    for (Parameter const& parameter : parameters()) {
        double value = 0;
        zrproj_parameters_get(&given, parameter.id, &value);
        setNumber(record, parameter.id, value);
    }
    return record;
}

zrproj_parameters parametersOf(PROJDATA const& record) {
    zrproj_parameters result{};
    result.size = sizeof result;
    result.datum = DatumTypeNone;
    for (Parameter const& parameter : parameters())
        zrproj_parameters_set(&result, parameter.id, numberOf(record, parameter));
    return result;
}

std::string parameterText(PROJDATA const& record, Parameter const& parameter) {
    switch (parameter.kind) {
    case ZRPROJ_KIND_PROJECTION:
        return projectionName(record.Type);
    case ZRPROJ_KIND_ELLIPSOID:
        return ellipsoidName(record.Ellipsoid);
    case ZRPROJ_KIND_ZONE:
        return zoneName(record.Zone);
    case ZRPROJ_KIND_FLAG:
        return parameterValue<bool>(record, parameter.id) ? "yes" : "no";
    case ZRPROJ_KIND_FLATTENING:
        return flatteningText(record.Flattening);
    default:
        return numberText(parameterValue<double>(record, parameter.id)) + unitText(parameter.kind);
    }
}

std::string projectionName(ProjType type) {
    std::array<char, 64> name{};
    ProjGetProjectionInfo(type, name.data());
    return name.data();
}

std::string noMapText(PROJDATA const& record) {
    bool const lacksFlag = record.Type == ProjTypeHotineObliqueMercator && record.Alpha != 0 && !record.bUseAlpha;
    return "with these parameters " + projectionName(record.Type) + " has no map" +
           (lacksFlag ? "; --alpha counts only with --use-alpha" : "");
}

std::string ellipsoidName(EllipsoidType type) {
    std::array<char, 64> name{};
    EllipsoidInfo(type, name.data(), nullptr, nullptr);
    return name.data();
}

ProjType findProjection(std::string_view text) {
    auto const nameOf = [](int type) { return projectionName(static_cast<ProjType>(type)); };
    return static_cast<ProjType>(
        findEntry("projection", text, ProjNumProjections(), nameOf, "zrproj list projections"));
}

EllipsoidType findEllipsoid(std::string_view text) {
    auto const nameOf = [](int type) { return ellipsoidName(static_cast<EllipsoidType>(type)); };
    return static_cast<EllipsoidType>(
        findEntry("ellipsoid", text, EllipsoidTypeNone, nameOf, "zrproj list ellipsoids"));
}

namespace {

/// An angle in degrees, minutes and seconds, "" for one of whole degrees.
std::string anglePartsText(PROJDATA const& record, Parameter const& parameter) {
    bool const isAngle = parameter.kind == ZRPROJ_KIND_LONGITUDE || parameter.kind == ZRPROJ_KIND_LATITUDE ||
                         parameter.kind == ZRPROJ_KIND_AZIMUTH;
    double value = 0;
    std::array<char, 64> text{};
    if (!isAngle || !ProjGetParam(&record, parameter.id, &value) || value == std::floor(value) ||
        !DegreesToLatLon(value, text.data(), static_cast<int>(text.size()), AngleTextFormatDegreesMinutesSeconds, 4,
                         'd'))
        return "";
    return std::string(" (") + text.data() + "\")";
}

/// The parameters that a type uses, and the false origin, which UTM has without being asked.
std::vector<int> shownParameters(ProjType type) {
    std::vector<int> result = usedParameters(type);
    if (type == ProjTypeUniversalTransverseMercator)
        result.insert(result.end(), {ProjParamXOrg, ProjParamYOrg});
    return result;
}

} // namespace

void addParameterRows(Table& table, PROJDATA const& record) {
    table.rows.push_back({"Projection", projectionName(record.Type), "--projection " + std::to_string(record.Type)});
    for (int id : shownParameters(record.Type)) {
        Parameter const& shown = parameter(id);
        bool const settable = ProjUsesParam(record.Type, id);
        table.rows.push_back(
            {shown.name, parameterText(record, shown) + anglePartsText(record, shown), settable ? shown.option : ""});
    }
}

} // namespace ZrProj::Command
