// zrproj list: the catalogues.
#include "cli/commands/commands.h"
#include "cli/model/datums.h"
#include "cli/model/parameters.h"
#include "cli/model/zones.h"
#include "cli/points/fields.h"
#include "cli/text/name_match.h"
#include "cli/text/numbers.h"
#include "cli/text/output.h"
#include "cli/text/text.h"
#include "cli/text/usage_error.h"

#include <algorithm>
#include <array>

namespace ZrProj::Command {
namespace {

Table projections() {
    Table table{{"No", "Projection", "Parameters"}, "rll", {}};
    for (int i = 0; i < ProjNumProjections(); ++i) {
        auto const type = static_cast<ProjType>(i);
        std::string options;
        for (int index = 0; index < ProjNumParams(type); ++index)
            options += (index ? " " : "") + parameter(ProjEnumParam(type, index)).option;
        table.rows.push_back({std::to_string(i), projectionName(type), options});
    }
    return table;
}

char const* valueText(zrproj_kind kind) {
    constexpr std::array texts{"name or number", "name or number", "name or code", "(none)",  "number above 0",
                               "metres",         "degrees",        "degrees",      "degrees", "number or 1/number"};
    return texts[static_cast<std::size_t>(kind)];
}

Table parameterTable() {
    Table table{{"Id", "Parameter", "Option", "Short form", "Value"}, "rllll", {}};
    for (Parameter const& parameter : parameters())
        table.rows.push_back({std::to_string(parameter.id), parameter.name, parameter.longOption,
                              parameter.option == parameter.longOption ? "" : parameter.option,
                              valueText(parameter.kind)});
    return table;
}

std::string fixed(double value, int decimals) {
    std::string text;
    appendFixed(text, value, decimals);
    return text;
}

Table ellipsoids() {
    Table table{{"No", "Ellipsoid", "Semi-major axis (m)", "1/flattening", "POSC"}, "rlrrr", {}};
    for (int i = 1; i < EllipsoidTypeNone; ++i) {
        auto const type = static_cast<EllipsoidType>(i);
        int code = 0;
        double const flattening = EllipsoidFlattening(type);
        table.rows.push_back({std::to_string(i), ellipsoidName(type), fixed(EllipsoidRadius(type), 3),
                              flattening > 0 ? fixed(1 / flattening, 9) : "sphere",
                              EllipsoidToPOSCNumber(type, &code) ? std::to_string(code) : ""});
    }
    return table;
}

/// The projection that a zone is defined by, in short; "-" where it is not defined.
std::string zoneProjection(StatePlaneZone zone) {
    auto const definition = zoneDefinition(zone);
    if (!definition)
        return "-";
    switch (definition->Type) {
    case ProjTypeUniversalTransverseMercator:
        return "TM";
    case ProjTypeLambertConformalConic:
        return "Lambert";
    case ProjTypePolyconic:
        return "Polyconic";
    default:
        return "Hotine";
    }
}

Table zones() {
    Table table{{"USGS", "1927", "POSC", "1983", "POSC", "Zone"}, "rlrlrl", {}};
    for (int i = 0; i < StateZoneTypeNone; ++i) {
        auto const zone = static_cast<StateZoneType>(i);
        int usgs = 0;
        ProjGetStateZoneInfo(zone, nullptr, &usgs);
        std::vector<std::string> row{usgs ? std::to_string(usgs) : ""};
        for (ProjType type : {ProjTypeStatePlane1927, ProjTypeStatePlane1983}) {
            int posc = 0;
            row.push_back(zoneProjection({type, zone}));
            row.push_back(ProjStateZoneToPOSCNumber(type, zone, &posc) ? std::to_string(posc) : "");
        }
        row.push_back(zoneName(zone));
        table.rows.push_back(row);
    }
    return table;
}

std::vector<std::string> datumRow(Datum const& datum) {
    auto const figure = figureOf(datum);
    int code = 0;
    return {datum.isOwn() ? "own" : std::to_string(datum.type),
            DatGetDatumPOSCNumber(datum.type, &code) ? std::to_string(code) : "",
            datum.name,
            std::string(methodName(datum.method())),
            datum.isReversible() ? "both ways" : "from it only",
            figure ? ellipsoidName(figure->ellipsoid) : ""};
}

/// The catalogue, and the user's own.
Table datums() {
    Table table{{"No", "POSC", "Datum", "Method", "Converts", "Ellipsoid"}, "rrllll", {}};
    for (int i = 1; i < DatNumDatums(); ++i) {
        auto const type = static_cast<DatumType>(i);
        table.rows.push_back(datumRow({datumName(type), type, {}}));
    }
    for (std::string const& name : userDatumNames()) {
        Datum own{name, DatumTypeUserDefined, {}};
        if (NDatGetDatumParams(name.c_str(), &own.record))
            table.rows.push_back(datumRow(own));
    }
    return table;
}

struct Catalogue {
    std::string name;
    Table (*table)();
};

std::array const catalogues{Catalogue{"projections", projections}, Catalogue{"parameters", parameterTable},
                            Catalogue{"ellipsoids", ellipsoids}, Catalogue{"zones", zones},
                            Catalogue{"datums", datums}};

Table findTable(std::string const& text) {
    std::array<std::string, catalogues.size()> names;
    std::transform(catalogues.begin(), catalogues.end(), names.begin(), [](auto& catalogue) { return catalogue.name; });
    NameMatch const result = matchName(text, names);
    if (result.match != Match::One)
        throw UsageError("there is no list " + inQuotes(text) +
                         "; there are projections, parameters, ellipsoids, zones, datums, systems");
    return catalogues[static_cast<std::size_t>(result.found.front())].table();
}

std::array<double, 2> readPlace(std::string const& text) {
    auto const fields = fieldTexts(text, ',');
    std::array<double, 2> place{};
    for (std::size_t i = 0; i < place.size(); ++i) {
        Reading const number = fields.size() == 2 ? readAngle(fields[i], i == 0 ? Axis::Longitude : Axis::Latitude)
                                                  : Reading{0, "one number"};
        if (number.error)
            throw UsageError("--at: " + inQuotes(text) + " is no place: write a longitude and a latitude, as in 6,53");
        place[i] = number.value;
    }
    return place;
}

/// Keeps the rows that hold the text in one of their cells.
void filter(Table& table, std::string const& text) {
    std::string const wanted = squeezed(text);
    auto const lacks = [&](std::vector<std::string> const& row) {
        return std::none_of(row.begin(), row.end(),
                            [&](std::string const& cell) { return squeezed(cell).find(wanted) != std::string::npos; });
    };
    table.rows.erase(std::remove_if(table.rows.begin(), table.rows.end(), lacks), table.rows.end());
}

/// The systems of the register with these words in their names, or that code, and with the place in their area of use.
Table systems(std::string const& words, std::string const& at) {
    std::optional<std::array<double, 2>> place;
    if (!at.empty())
        place = readPlace(at);
    std::size_t count = 0;
    zrproj_register_search(words.c_str(), place ? place->data() : nullptr, nullptr, 0, &count);
    std::vector<std::size_t> entries(count);
    if (zrproj_register_search(words.c_str(), place ? place->data() : nullptr, entries.data(), count, &count) !=
        ZRPROJ_OK)
        throw UsageError("--at: " + inQuotes(at) + " is no place: write a longitude and a latitude, as in 6,53");
    Table table{{"Code", "Kind", "System"}, "rll", {}};
    for (std::size_t const entry : entries) {
        int code = 0;
        char const *name = nullptr, *kind = nullptr;
        zrproj_register_entry(entry, &code, &name, &kind);
        table.rows.push_back({std::to_string(code), kind, name});
    }
    return table;
}

class List : public Subcommand {
public:
    explicit List(CommandLine line) {
        line.argument("CATALOGUE", m_catalogue,
                      "projections, parameters, ellipsoids, zones (State Plane), datums, or systems (of the register)")
            .require();
        line.argument("TEXT", m_text, "Only the entries that have this text in them; of systems, all of these words");
        m_atOption = line.option("--at", m_at, "LON,LAT", "Only systems whose area of use has this place");
    }

    int run(Output& output) override {
        bool const ofRegister = m_catalogue == "systems";
        if (m_atOption.isGiven() && !ofRegister)
            throw UsageError("--at goes with the list of systems");
        Table table = ofRegister ? systems(m_text, m_at) : findTable(m_catalogue);
        if (!ofRegister)
            filter(table, m_text);
        if (table.rows.empty())
            throw UsageError("nothing in the list of " + m_catalogue + " has the text " + inQuotes(m_text) +
                             (m_at.empty() ? "" : " at " + m_at));
        table.write(output);
        return 0;
    }

private:
    std::string m_catalogue, m_text, m_at;
    Option m_atOption;
};

} // namespace

std::unique_ptr<Subcommand> makeList(CommandLine line) {
    line.footer("Example: the zones of California with their codes\n  zrproj list zones california\n"
                "Example: the coordinate systems of a place\n  zrproj list systems utm --at 6.5,53.2");
    return std::make_unique<List>(line);
}

} // namespace ZrProj::Command
