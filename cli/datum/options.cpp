#include "cli/datum/options.h"

#include "cli/datum/definition.h"
#include "cli/usage_error.h"

#include <CLI/CLI.hpp>

namespace ZrProj::Command {
namespace {

struct Names {
    char const *from, *fromText, *to, *toText;
};

constexpr Names namesOf(Direction direction) {
    switch (direction) {
    case Direction::Forward:
        return {"--from-datum", "Datum of the points, if it is another than the map's", "--datum",
                "Datum of the map, by name, number or POSC code; its ellipsoid is the projection's"};
    case Direction::Inverse:
        return {"--datum", "Datum of the map, by name, number or POSC code; its ellipsoid is the projection's",
                "--to-datum", "Datum of the results, if it is another than the map's"};
    default:
        return {"--from", "Datum of the points, by name (a unique part will do), number or POSC code", "--to",
                "Datum of the results"};
    }
}

} // namespace

void DatumOptions::addTo(CLI::App& app) {
    Names const names = namesOf(m_direction);
    app.add_option(names.from, m_from, names.fromText)->type_name("NAME")->group("Datums");
    app.add_option(names.to, m_to, names.toText)->type_name("NAME")->group("Datums");
    app.add_option("--define", m_definitions,
                   "A datum for this run: \"NAME: method=molodensky, ellipsoid=..., dx=...\"")
        ->type_name("DATUM")
        ->allow_extra_args(false)
        ->group("Datums");
}

std::vector<Datum> DatumOptions::defined() const {
    std::vector<Datum> datums;
    for (std::string const& definition : m_definitions)
        datums.push_back(readDatumDefinition(definition));
    return datums;
}

std::optional<DatumShift> DatumOptions::shift() const {
    Names const names = namesOf(m_direction);
    if (m_direction == Direction::Datum && (m_from.empty() || m_to.empty()))
        throw UsageError("the datums are missing; give --from and --to");
    std::string const& map = m_direction == Direction::Forward ? m_to : m_from;
    std::string const& points = m_direction == Direction::Forward ? m_from : m_to;
    std::vector<Datum> const own = defined();
    if (points.empty())
        return std::nullopt;
    if (map.empty())
        throw UsageError(std::string(m_direction == Direction::Forward ? names.from : names.to) +
                         " goes with --datum, the datum of the map");
    return DatumShift{findDatum(m_from, own), findDatum(m_to, own)};
}

Figure DatumOptions::mapFigure() const {
    std::string const& map = m_direction == Direction::Forward ? m_to : m_from;
    if (map.empty())
        return {};
    Datum const datum = findDatum(map, defined());
    auto const figure = figureOf(datum);
    if (!figure)
        throw UsageError("the datum \"" + datum.name + "\" has no ellipsoid");
    return *figure;
}

} // namespace ZrProj::Command
