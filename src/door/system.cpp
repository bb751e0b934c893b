#include "door/system.h"

#include "door/parameters.h"
#include "host/utf8.h"
#include "proj/projection_table.h"
#include "systems/method_table.h"
#include "systems/names.h"
#include "systems/recognition.h"
#include "systems/records.h"
#include "systems/register.h"
#include "systems/text/form.h"
#include "systems/text/writers.h"
#include "systems/to_record.h"

using namespace ZrProj;
using namespace ZrProj::Door;

using systems::Definition;
using systems::Unsupported;

namespace {

constexpr std::size_t longestName = 256, mostSuggestions = 3;

char const* nameOf(int type) {
    return projectionTable[static_cast<std::size_t>(type)].name;
}

std::string noMapText(zrproj_parameters const& parameters) {
    bool const lacksFlag =
        parameters.type == ProjTypeHotineObliqueMercator && parameters.alpha != 0 && !parameters.use_alpha;
    return std::string("with these parameters ") + nameOf(parameters.type) + " has no map" +
           (lacksFlag ? "; alpha counts only with use_alpha" : "");
}

/// Gives the system what converts; the reason where nothing does.
Answer prepare(zrproj_system& system, systems::Conversion const& conversion) {
    auto projection = Projection::make(conversion);
    if (auto const* const why = std::get_if<Unsupported>(&projection))
        return unsupported(why->reason);
    system.projection = std::move(std::get<std::shared_ptr<Projection const>>(projection));
    return {};
}

// From parameters.

void define(zrproj_system& system, PROJDATA const& record) {
    auto const datum = static_cast<DatumType>(system.parameters->datum);
    DATUM2WGS84 const shift = shiftOf(*system.parameters);
    auto said = systems::definitionOf(record, datum, shift);
    if (auto const* const why = std::get_if<Unsupported>(&said)) {
        system.unsaid = why->reason;
        system.definition.datum = systems::datumOf(record, datum, shift);
        return;
    }
    system.definition = std::move(std::get<Definition>(said));
}

Answer makeFromParameters(zrproj_system& system, zrproj_parameters const& given) {
    zrproj_parameters parameters = given;
    if (Answer completed = complete(parameters); !completed.isGood())
        return completed;
    PROJDATA const record = recordOf(parameters);
    system.parameters = parameters;
    define(system, record);
    Answer const prepared = prepare(system, systems::conversionOf(record, system.definition.datum.meridian.longitude));
    return prepared.isGood() ? prepared : unsupported(noMapText(given));
}

// From definitions.

std::string codeText(systems::Code code) {
    return "EPSG:" + std::to_string(code);
}

std::string replacementOf(Definition const& definition) {
    return definition.replacement == 0 ? "" : "; " + codeText(definition.replacement) + " replaces it";
}

std::string deprecationOf(Definition const& definition) {
    if (!definition.deprecated)
        return {};
    return definition.name + " (" + codeText(definition.code) + ") is deprecated" + replacementOf(definition);
}

/// ESRI's own codes, which are often said to be EPSG's, begin here.
constexpr systems::Code firstOfEsri = 37001;

std::string hintFor(systems::Code code) {
    return code < firstOfEsri ? "" : "; it holds EPSG's codes only, and what ESRI numbers by names and definitions";
}

std::string suggestionsFor(std::string_view name) {
    std::string text;
    for (auto const& entry : systems::suggestions(name, mostSuggestions))
        text += (text.empty() ? "; near it are " : ", ") + inQuotes(entry.name) + " (" + codeText(entry.code) + ")";
    return text;
}

/// What has no name of its own is called "unknown".
bool isNamed(Definition const& definition) {
    return !definition.name.empty() && definition.name != "unknown";
}

Answer makeFromDefinition(zrproj_system& system, Definition definition, std::string noticed) {
    auto const conversion = systems::conversionOf(definition);
    if (auto const* const why = std::get_if<Unsupported>(&conversion))
        return unsupported((isNamed(definition) ? definition.name + ": " : "") + why->reason +
                           replacementOf(definition));
    if (noticed.empty())
        noticed = deprecationOf(definition);
    system.definition = std::move(definition);
    if (Answer prepared = prepare(system, std::get<systems::Conversion>(conversion)); !prepared.isGood())
        return prepared;
    return {ZRPROJ_OK, std::move(noticed)};
}

Answer makeFromCode(zrproj_system& system, systems::Code code) {
    auto definition = systems::definitionOf(code);
    return definition ? makeFromDefinition(system, *std::move(definition), "")
                      : unknown("the register has no system " + codeText(code) + hintFor(code));
}

Answer makeFromName(zrproj_system& system, std::string_view name) {
    if (name.find_first_not_of(" \t\r\n") == std::string_view::npos)
        return badDefinition("line 1, column 1: the definition is empty");
    if (name.size() > longestName)
        return badDefinition("line 1, column 1: no kind of definition, and too long for a name");
    systems::Code const code = codeNamed(systems::Thing::system, name);
    return code != 0 ? makeFromCode(system, code)
                     : unknown("the register has no system " + inQuotes(name) + suggestionsFor(name));
}

zrproj_status statusOf(systems::Fault fault) {
    switch (fault) {
    case systems::Fault::malformed:
        return ZRPROJ_BAD_DEFINITION;
    case systems::Fault::unknown:
        return ZRPROJ_UNKNOWN;
    case systems::Fault::unsupported:
        break;
    }
    return ZRPROJ_UNSUPPORTED;
}

Answer makeFromText(zrproj_system& system, std::string_view given) {
    std::string const said = utf8Of(given);
    std::string_view text = said;
    if (text.starts_with(byteOrderMark))
        text.remove_prefix(byteOrderMark.size());
    switch (systems::formOf(text)) {
    case systems::Form::code:
        return makeFromCode(system, *systems::codeIn(text));
    case systems::Form::name:
        return makeFromName(system, text);
    default:
        break;
    }
    auto read = systems::readDefinition(text);
    if (auto const* const problem = std::get_if<systems::Problem>(&read))
        return {statusOf(problem->fault), problem->message};
    return makeSystem(system, std::get<Definition>(read));
}

// What a system says.

/// The definition; of a system made from parameters the register's, where it is the same.
Definition registered(zrproj_system const& system) {
    return system.parameters ? systems::reconcile(system.definition).definition : system.definition;
}

systems::OrProblem<std::string> textOf(Definition const& definition, zrproj_format format) {
    switch (format) {
    case ZRPROJ_NAME:
        return definition.name;
    case ZRPROJ_CODE:
        if (definition.code == 0)
            return systems::Problem{systems::Fault::unknown, "the register has no such system"};
        return codeText(definition.code);
    case ZRPROJ_WKT2:
        return systems::writeWkt2(definition);
    case ZRPROJ_WKT1:
        return systems::writeWkt1(definition);
    case ZRPROJ_WKT_ESRI:
        return systems::writeEsriWkt(definition);
    case ZRPROJ_PROJ_STRING:
        return systems::writeProjString(definition);
    case ZRPROJ_PROJJSON:
        return systems::writeProjJson(definition);
    }
    return systems::Problem{systems::Fault::malformed, ""};
}

Answer tellText(zrproj_system const& system, zrproj_format format, char* buffer, size_t size, size_t* length) {
    if (!system.unsaid.empty())
        return unsupported(system.unsaid);
    auto const text = textOf(registered(system), format);
    if (auto const* const problem = std::get_if<systems::Problem>(&text))
        return {statusOf(problem->fault), problem->message};
    return giveText(std::get<std::string>(text), buffer, size, length);
}

/// Of a definition, where a record says it.
Answer tellParameters(Definition const& definition, zrproj_parameters& parameters) {
    auto const made = systems::recordOf(definition);
    if (auto const* const why = std::get_if<Unsupported>(&made))
        return unsupported(why->reason);
    auto const& [projection, datum, shift, noDatum] = std::get<systems::SystemRecord>(made);
    zrproj_parameters told = parametersOf(projection, datum, shift);
    if (Answer completed = complete(told); !completed.isGood())
        return completed;
    parameters = told;
    return {ZRPROJ_OK, noDatum};
}

// The geographic system.

zrproj_parameters geographicParameters(zrproj_system const& system) {
    auto const& given = *system.parameters;
    zrproj_parameters parameters{};
    parameters.size = sizeof parameters;
    parameters.datum = given.datum;
    parameters.shift = given.shift;
    if (system.definition.method == systems::Method::pseudoMercator)
        return parameters; // on the datum's own figure, not on the map's sphere
    parameters.ellipsoid = given.ellipsoid;
    parameters.radius = given.radius;
    parameters.flattening = given.flattening;
    return parameters;
}

Definition geographicDefinition(Definition const& system) {
    if (!system.isProjected())
        return system;
    Definition made = systems::definitionOf(system.baseCode).value_or(Definition());
    if (made.code == 0) {
        made.name = system.baseName;
        made.angularUnit = system.angularUnit;
    }
    made.datum = system.datum;
    return made;
}

} // namespace

Answer Door::makeSystem(zrproj_system& system, Definition const& said) {
    auto [definition, noticed] = systems::reconcile(said);
    return makeFromDefinition(system, std::move(definition), std::move(noticed));
}

Answer Door::makeSystem(zrproj_system& system, zrproj_parameters const& given) {
    return makeFromParameters(system, given);
}

std::string Door::calledBy(zrproj_system const& system) {
    if (system.parameters)
        return {};
    auto const& [name, code] = std::pair(system.definition.name, system.definition.code);
    return code == 0 ? name : name + " (" + codeText(code) + ")";
}

std::string Door::methodOf(zrproj_system const& system) {
    return system.parameters ? nameOf(system.parameters->type)
                             : std::string(systems::rowOf(system.definition.method).name);
}

zrproj_status zrproj_system_create(char const* definition, zrproj_system** system) {
    return answerWith(system, [&](zrproj_system& made) {
        return definition ? makeFromText(made, definition) : badArgument("null pointer to a definition");
    });
}

zrproj_status zrproj_system_create_from_parameters(zrproj_parameters const* parameters, zrproj_system** system) {
    return answerWith(system, [&](zrproj_system& made) {
        return hasKnownSize(parameters) ? makeFromParameters(made, *parameters)
                                        : badArgument("no parameters of a known size");
    });
}

void zrproj_system_destroy(zrproj_system* system) {
    std::unique_ptr<zrproj_system>{system}.reset();
}

zrproj_status zrproj_system_text(zrproj_system const* system, zrproj_format format, char* buffer, size_t size,
                                 size_t* length) {
    return answer([&] {
        if (!system)
            return badArgument("null pointer to a system");
        if (format < ZRPROJ_NAME || format > ZRPROJ_PROJJSON)
            return badArgument(std::to_string(format) + " is no format");
        return tellText(*system, format, buffer, size, length);
    });
}

zrproj_status zrproj_system_area(zrproj_system const* system, double* west, double* south, double* east,
                                 double* north) {
    return answer([&]() -> Answer {
        if (!system)
            return badArgument("null pointer to a system");
        auto const area = registered(*system).area;
        if (!area)
            return unknown("the definition tells no area of use");
        give(west, area->west);
        give(south, area->south);
        give(east, area->east);
        give(north, area->north);
        return {};
    });
}

zrproj_status zrproj_system_ellipsoid(zrproj_system const* system, double* radius, double* flattening) {
    return answer([&]() -> Answer {
        if (!system)
            return badArgument("null pointer to a system");
        auto const& ellipsoid = system->definition.datum.ellipsoid;
        give(radius, ellipsoid.semiMajor);
        give(flattening, ellipsoid.inverseFlattening == 0 ? 0 : 1 / ellipsoid.inverseFlattening);
        return {};
    });
}

zrproj_status zrproj_system_unit(zrproj_system const* system, double* metres) {
    return answer([&]() -> Answer {
        if (!system || !metres)
            return badArgument("null pointer");
        if (system->projection->isGeographic())
            return unknown("a geographic system's unit is the degree");
        *metres = 1 / system->projection->conversion().scale;
        return {};
    });
}

zrproj_status zrproj_system_parameters(zrproj_system const* system, zrproj_parameters* parameters) {
    return answer([&]() -> Answer {
        if (!system || !hasKnownSize(parameters))
            return badArgument("no system, or no parameters of a known size");
        if (!system->parameters)
            return tellParameters(system->definition, *parameters);
        *parameters = *system->parameters;
        return {};
    });
}

zrproj_status zrproj_system_geographic(zrproj_system const* system, zrproj_system** geographic) {
    return answerWith(geographic, [&](zrproj_system& made) {
        if (!system)
            return badArgument("null pointer to a system");
        if (system->parameters)
            return makeFromParameters(made, geographicParameters(*system));
        return makeFromDefinition(made, geographicDefinition(system->definition), "");
    });
}
