#include "cli/datum/options.h"

#include "cli/datum/definition.h"
#include "cli/text/usage_error.h"

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

void DatumOptions::addTo(CommandLine line) {
    Names const names = namesOf(m_direction);
    CommandLine const datums = line.inGroup("Datums");
    datums.option(names.from, m_from, "NAME", names.fromText);
    datums.option(names.to, m_to, "NAME", names.toText);
    datums.repeatedOption("--define", m_definitions, "DATUM",
                          "A datum for this run: \"NAME: method=molodensky, ellipsoid=..., dx=...\"");
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
