#include "cli/commands/options.h"

#include "cli/files/map_info.h"
#include "cli/model/datums.h"
#include "cli/model/parameters.h"
#include "cli/model/zones.h"
#include "cli/text/numbers.h"
#include "cli/text/text.h"
#include "cli/text/usage_error.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace ZrProj::Command {
namespace {

char const* placeholder(zrproj_kind kind) {
    switch (kind) {
    case ZRPROJ_KIND_LONGITUDE:
    case ZRPROJ_KIND_LATITUDE:
    case ZRPROJ_KIND_AZIMUTH:
        return "DEGREES";
    case ZRPROJ_KIND_METRES:
        return "METRES";
    case ZRPROJ_KIND_FACTOR:
    case ZRPROJ_KIND_FLATTENING:
        return "NUMBER";
    default:
        return "NAME";
    }
}

std::string description(Parameter const& parameter) {
    switch (parameter.id) {
    case ProjParamZone:
        return "State Plane zone, by name, USGS code or POSC code, for the State Plane projections";
    case ProjParamEllipsoid:
        return "Ellipsoid, by name or number; that of --datum, else WGS 84, where not given";
    default:
        return parameter.name;
    }
}

std::string usedOptions(ProjType type) {
    std::string result;
    for (int id : usedParameters(type))
        result += (result.empty() ? "" : ", ") + parameter(id).option;
    return result.empty() ? "none" : result;
}

bool isStatePlane(ProjType type) {
    return type == ProjTypeStatePlane1927 || type == ProjTypeStatePlane1983;
}

/// A Scale that stands for a unit of length goes from the record to the coordinates.
LengthUnit const* takeUnit(PROJDATA& record) {
    for (LengthUnit const& unit : lengthUnits)
        if (std::fabs(record.Scale * unit.metres - 1) < 1e-12) {
            record.Scale = 1;
            return &unit;
        }
    return nullptr;
}

struct Axes {
    double major, minor;
};

Axes axesOf(Figure const& figure) {
    bool const isOwn = figure.ellipsoid == EllipsoidTypeUserDefined;
    double const radius = isOwn ? figure.radius : EllipsoidRadius(figure.ellipsoid);
    return {radius, radius * (1 - (isOwn ? figure.flattening : EllipsoidFlattening(figure.ellipsoid)))};
}

/// Whether two ellipsoids are within a metre of each other, the most that catalogues differ by.
bool areNear(Axes const& a, Axes const& b) {
    return std::fabs(a.major - b.major) < 1 && std::fabs(a.minor - b.minor) < 1;
}

std::string figureName(Figure const& figure) {
    return figure.ellipsoid == EllipsoidTypeUserDefined ? "an ellipsoid of your own" : ellipsoidName(figure.ellipsoid);
}

/// Refuses what the library refuses, in its words.
void check(PROJDATA const& record) {
    std::array<char, 512> message{};
    int const id = ProjCheckParams(&record, message.data(), false);
    if (id == 0)
        return;
    std::string_view reason = message.data();
    if (reason.empty() || reason.starts_with("Unable to load")) // a check without words of its own
        reason = "not a value that this projection can be made from";
    throw UsageError(parameter(id).option + ": " + std::string(reason));
}

} // namespace

int readDecimals(std::string const& text, int standard) {
    constexpr int most = 15;
    if (text.empty())
        return standard;
    Reading const number = readNumber(text);
    if (number.error || !(number.value >= 0 && number.value <= most) || number.value != std::floor(number.value))
        throw UsageError("--precision: " + inQuotes(text) + " is not a whole number from 0 to 15");
    return static_cast<int>(number.value);
}

std::vector<std::string> filesOrStandardInput(std::vector<std::string> const& files) {
    return files.empty() ? std::vector<std::string>{"-"} : files;
}

ProjectionOptions::ProjectionOptions() {
    for (Parameter const& parameter : parameters())
        m_values.push_back({parameter.id, {}, ""});
}

void ProjectionOptions::addTo(CommandLine line) {
    CommandLine const group = line.inGroup("Projection");
    m_crsOption = group.option("--crs", m_crs, "SYSTEM",
                               "A coordinate system: a code as EPSG:28992, a name, well-known text, PROJJSON, a PROJ "
                               "string, or a file with one of them");
    m_utmOption = group.option("--utm", m_utm, "ZONE", "UTM zone, as in 17N; auto: each point in its own zone");
    m_statePlaneOption =
        group.option("--state-plane", m_statePlane, "ZONE", "US State Plane zone, by name, USGS code or POSC code");
    m_yearOption =
        group.option("--year", m_year, "YEAR", "Definition of the State Plane zone: 1927 or 1983 (the default)");
    m_likeOption =
        group.option("--like", m_like, "FILE", "The projection of a map: its reference or .prj file, or its image");
    Value& projection = m_values.front();
    projection.option = group.option("-p,--projection", projection.text, "NAME",
                                     "Any projection, by name (a unique part will do) or number, with its parameters");
}

void ProjectionOptions::addParametersTo(CommandLine line) {
    CommandLine const group = line.inGroup("Parameters of the projection");
    for (Value& value : m_values) {
        if (value.id == ProjParamType)
            continue;
        Parameter const& parameter = Command::parameter(value.id);
        bool const two = parameter.option != parameter.longOption;
        std::string const names = two ? parameter.option + ',' + parameter.longOption : parameter.option;
        value.option = parameter.kind == ZRPROJ_KIND_FLAG
                           ? group.flag(names, parameter.name)
                           : group.option(names, value.text, placeholder(parameter.kind), description(parameter));
    }
}

bool ProjectionOptions::given(int id) const {
    return value(id).option.isGiven();
}

std::optional<int> ProjectionOptions::year() const {
    if (!m_yearOption.isGiven())
        return std::nullopt;
    if (m_year != "1927" && m_year != "1983")
        throw UsageError("--year: " + inQuotes(m_year) + " is neither 1927 nor 1983");
    return m_year == "1927" ? 1927 : 1983;
}

void ProjectionOptions::startFromUtm(ProjectionChoice& choice) const {
    for (int id : {ProjParamLon0, ProjParamSouth})
        if (given(id))
            throw UsageError(parameter(id).option + " has no place beside --utm, which tells it");
    choice.zonePerPoint = squeezed(m_utm) == "auto";
    auto const zone = choice.zonePerPoint ? UtmZone{0} : readUtmZone(m_utm);
    if (!zone)
        throw UsageError("--utm: " + inQuotes(m_utm) + " is no zone; write 1 to 60 and N or S, as in 17N, or auto");
    setUtmZone(choice.record, *zone);
}

ProjType ProjectionOptions::givenProjection() const {
    if (!given(ProjParamType))
        throw UsageError("no projection; give --crs, --utm, --state-plane, --projection or --like");
    return findProjection(value(ProjParamType).text);
}

/// Refuses a zone of one North American Datum on the other, or on a datum of quite another ellipsoid.
void ProjectionOptions::refuseOtherZone(StatePlaneZone zone, MapDatum const& datum) const {
    bool const is1927 = zone.type == ProjTypeStatePlane1927;
    Axes const ofZone = axesOf({is1927 ? EllipsoidTypeClarke1866 : EllipsoidTypeGrs1980Iugg1980});
    bool const isOther =
        datum.year ? is1927 != (datum.year == 1927) : datum.isGiven && !areNear(ofZone, axesOf(datum.figure));
    if (!isOther)
        return;
    std::string const option = m_yearOption.isGiven()         ? "--year"
                               : m_statePlaneOption.isGiven() ? "--state-plane"
                                                              : "--state-zone";
    throw UsageError(option + ": the zone is defined on the North American Datum " + (is1927 ? "1927" : "1983") +
                     ", and --datum says " + (datum.year ? std::to_string(*datum.year) : figureName(datum.figure)));
}

/// Refuses an ellipsoid that is told beside a datum that has another.
void ProjectionOptions::refuseOtherEllipsoid(PROJDATA const& record, Figure const& ofDatum) const {
    int const id = given(ProjParamMajorRadius) ? ProjParamMajorRadius : ProjParamEllipsoid;
    Figure const told{record.Ellipsoid, record.MajorRadius, record.Flattening};
    if (given(id) && !areNear(axesOf(told), axesOf(ofDatum)))
        throw UsageError(parameter(id).option + ": " + figureName(told) +
                         " is another ellipsoid than that of --datum, " + figureName(ofDatum));
}

/// Sets the projection's type, and what a zone tells of it.
void ProjectionOptions::startFrom(ProjectionChoice& choice, MapDatum const& datum) const {
    bool const utm = m_utmOption.isGiven(), statePlane = m_statePlaneOption.isGiven();
    if (utm + statePlane + given(ProjParamType) > 1)
        throw UsageError("more than one projection; give one of --utm, --state-plane and --projection");
    auto const zoneYear = year();
    if (zoneYear && !statePlane)
        throw UsageError("--year goes with --state-plane");
    if (utm)
        return startFromUtm(choice);
    choice.record.Type = statePlane ? ProjTypeStatePlane1983 : givenProjection();
    if (!isStatePlane(choice.record.Type))
        return;
    if (statePlane == given(ProjParamZone))
        throw UsageError(statePlane ? "--state-zone has no place beside --state-plane, which tells it"
                                    : "the projection needs --state-zone");
    auto const impliedYear = choice.record.Type == ProjTypeStatePlane1927 ? 1927 : 1983;
    StatePlaneZone const zone = statePlane ? findStatePlaneZone(m_statePlane, zoneYear ? zoneYear : datum.year)
                                           : findStatePlaneZone(value(ProjParamZone).text, impliedYear);
    refuseOtherZone(zone, datum);
    choice.record.Type = zone.type;
    choice.record.Zone = zone.zone;
}

void ProjectionOptions::refuseUnused(ProjType type) const {
    std::vector<int> const used = usedParameters(type);
    for (Value const& value : m_values)
        if (value.id != ProjParamType && given(value.id) && std::find(used.begin(), used.end(), value.id) == used.end())
            throw UsageError(parameter(value.id).option + " is not used by " + projectionName(type) +
                             ", which uses: " + usedOptions(type));
}

/// A catalogue ellipsoid (a State Plane record needs one as well, although the zone's own is used), or the user's.
void ProjectionOptions::setEllipsoid(PROJDATA& record, Figure const& standard) const {
    record.Ellipsoid = standard.ellipsoid;
    record.MajorRadius = standard.radius;
    record.Flattening = standard.flattening;
    if (given(ProjParamFlattening) && !given(ProjParamMajorRadius))
        throw UsageError("--flattening goes with --radius");
    if (given(ProjParamMajorRadius) && given(ProjParamEllipsoid))
        throw UsageError("--radius has no place beside --ellipsoid, which tells it");
    if (given(ProjParamMajorRadius)) {
        record.Ellipsoid = EllipsoidTypeUserDefined;
        record.Flattening = 0;
    }
    if (given(ProjParamEllipsoid))
        record.Ellipsoid = findEllipsoid(value(ProjParamEllipsoid).text);
    if (given(ProjParamEllipsoid) && record.Ellipsoid == EllipsoidTypeUserDefined)
        throw UsageError("an ellipsoid of your own is given by --radius and --flattening");
}

void ProjectionOptions::setValues(PROJDATA& record) const {
    for (Value const& value : m_values) {
        bool const elsewhere = value.id == ProjParamType || value.id == ProjParamZone || value.id == ProjParamEllipsoid;
        if (!elsewhere && given(value.id))
            setParameter(record, parameter(value.id), value.text);
    }
}

bool ProjectionOptions::any() const {
    return m_crsOption.isGiven() || m_utmOption.isGiven() || m_statePlaneOption.isGiven() || m_yearOption.isGiven() ||
           m_likeOption.isGiven() ||
           std::ranges::any_of(m_values, [](Value const& value) { return value.option.isGiven(); });
}

/// Refuses what an option tells already.
void ProjectionOptions::refuseOthers(Option const& than) const {
    auto const refuse = [&](std::string const& name) {
        throw UsageError(name + " has no place beside " + than.name() + ", which tells it");
    };
    for (Option const& option : {m_crsOption, m_likeOption, m_utmOption, m_statePlaneOption, m_yearOption})
        if (option.isGiven() && option.name() != than.name())
            refuse(option.name());
    for (Value const& value : m_values)
        if (given(value.id))
            refuse(parameter(value.id).option);
}

/// A system has its own unit.
ProjectionChoice choiceOf(SystemPointer system) {
    ProjectionChoice choice;
    choice.unit = system->isGeographic() ? nullptr : &system->unit();
    choice.system = std::move(system);
    return choice;
}

ProjectionChoice ProjectionOptions::choiceOfSystem(MapDatum const& datum) const {
    refuseOthers(m_crsOption);
    if (datum.isGiven)
        throw UsageError("--datum has no place beside --crs, which tells it");
    return choiceOf(systemNamed(m_crs));
}

/// The projection that a file tells, with all of its parameters.
ProjectionChoice ProjectionOptions::choiceLike() const {
    refuseOthers(m_likeOption);
    MapInfo const info = readMap(m_like);
    if (info.system())
        return choiceOf(info.system());
    if (!info.tells(ZRPROJ_PROJECTION))
        throw UsageError("--like: " + inQuotes(m_like) + " tells no projection");
    ProjectionChoice choice;
    choice.record = info.projection();
    choice.unit = takeUnit(choice.record);
    check(choice.record);
    return choice;
}

ProjectionChoice ProjectionOptions::choice(MapDatum const& datum) const {
    if (m_crsOption.isGiven())
        return choiceOfSystem(datum);
    if (m_likeOption.isGiven())
        return choiceLike();
    ProjectionChoice choice;
    startFrom(choice, datum);
    refuseUnused(choice.record.Type);
    setEllipsoid(choice.record, datum.figure);
    setValues(choice.record);
    if (datum.isGiven)
        refuseOtherEllipsoid(choice.record, datum.figure);
    check(choice.record);
    return choice;
}

/// Of the North American Datums the year, as the zones are defined on them.
MapDatum mapDatumOf(Datum const& datum) {
    MapDatum result;
    result.isGiven = true;
    result.figure = figureOf(datum).value_or(Figure());
    if (datum.isOwn())
        return result;
    std::string const name = datumName(datum.type);
    for (int const year : {1927, 1983})
        if (name.starts_with("North American Datum " + std::to_string(year)) ||
            name.starts_with("NAD " + std::to_string(year)))
            result.year = year;
    return result;
}

namespace {

struct Names {
    char const *from, *fromText, *to, *toText;
};

constexpr Names namesOf(Operation operation) {
    switch (operation) {
    case Operation::Forward:
        return {"--from-datum", "Datum of the points, if it is another than the map's", "--datum",
                "Datum of the map, by name, number or POSC code; its ellipsoid is the projection's"};
    case Operation::Inverse:
        return {"--datum", "Datum of the map, by name, number or POSC code; its ellipsoid is the projection's",
                "--to-datum", "Datum of the results, if it is another than the map's"};
    default:
        return {"--from", "Datum of the points, by name (a unique part will do), number or POSC code", "--to",
                "Datum of the results"};
    }
}

} // namespace

void DatumOptions::addTo(CommandLine line) {
    Names const names = namesOf(m_operation);
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
    Names const names = namesOf(m_operation);
    if (m_operation == Operation::Datum && (m_from.empty() || m_to.empty()))
        throw UsageError("the datums are missing; give --from and --to");
    std::string const& map = m_operation == Operation::Forward ? m_to : m_from;
    std::string const& points = m_operation == Operation::Forward ? m_from : m_to;
    std::vector<Datum> const own = defined();
    if (points.empty())
        return std::nullopt;
    if (map.empty())
        throw UsageError(std::string(m_operation == Operation::Forward ? names.from : names.to) +
                         " goes with --datum, the datum of the map");
    return DatumShift{findDatum(m_from, own), findDatum(m_to, own)};
}

MapDatum DatumOptions::ofMap() const {
    std::string const& map = m_operation == Operation::Forward ? m_to : m_from;
    if (map.empty())
        return {};
    Datum const datum = findDatum(map, defined());
    if (!figureOf(datum))
        throw UsageError("the datum \"" + datum.name + "\" has no ellipsoid");
    return mapDatumOf(datum);
}

} // namespace ZrProj::Command
