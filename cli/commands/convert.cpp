// zrproj forward, zrproj inverse and the conversion of zrproj datum: the options that they share.
#include "cli/commands/commands.h"
#include "cli/commands/options.h"
#include "cli/geojson/conversion.h"
#include "cli/model/units.h"
#include "cli/points/conversion.h"
#include "cli/text/numbers.h"
#include "cli/text/text.h"
#include "cli/text/usage_error.h"

#include <algorithm>

namespace ZrProj::Command {
namespace {

constexpr int metreDecimals = 3;  // millimetres
constexpr int degreeDecimals = 9; // a tenth of a millimetre, so that the way there and back keeps the millimetre

class Convert : public Subcommand {
public:
    Convert(CommandLine line, Direction direction);
    int run(Output& output) override;

private:
    LengthUnit const* unit() const;
    ColumnRequest columns(ProjectionChoice const& projection) const;
    bool isGeoJson() const;
    void refuseBesideGeoJson(ProjectionChoice const& projection) const;

    Direction m_direction;
    ProjectionOptions m_projection; // none for Direction::Datum
    DatumOptions m_datums;
    std::vector<std::string> m_files;
    std::string m_columns, m_units, m_precision;
    bool m_strict = false, m_geoJson = false, m_clip = false;
};

Convert::Convert(CommandLine line, Direction direction) : m_direction(direction), m_datums(direction) {
    bool const projects = direction != Direction::Datum;
    line.arguments("FILE", m_files, "Files of points; standard input where none is given, and for -");
    if (projects)
        m_projection.addTo(line);
    m_datums.addTo(line);
    CommandLine const files = line.inGroup("Input and output");
    files.option("--columns", m_columns, "X,Y",
                 "Columns of the coordinates, x first: numbers from 1, or names of the header");
    if (projects)
        files.option("--units", m_units, "UNIT", "Unit of projected coordinates: m (the default), ft or us-ft");
    files.option("--precision", m_precision, "N", "Decimals of the result, 0 to 15 (3 for lengths, 9 for degrees)");
    files.flag("--strict", m_strict, "Status 1 also when a point cannot be converted, or not well");
    files.flag("--geojson", m_geoJson, "Input and output are GeoJSON, as in files that are named so (.geojson, .json)");
    if (direction == Direction::Forward)
        files.flag("--clip", m_clip, "Cut the geometries of GeoJSON to what the map shows");
    if (projects)
        m_projection.addParametersTo(line);
}

LengthUnit const* Convert::unit() const {
    if (m_units.empty())
        return nullptr;
    LengthUnit const* const unit = findLengthUnit(m_units);
    if (!unit)
        throw UsageError("--units: " + inQuotes(m_units) + " is none of m, ft and us-ft");
    return unit;
}

ColumnRequest Convert::columns(ProjectionChoice const& projection) const {
    bool const zone = projection.zonePerPoint && m_direction == Direction::Inverse;
    ColumnRequest request{m_direction, {}, unit(), zone};
    if (!m_columns.empty())
        request.columns = parseColumns(m_columns, zone);
    return request;
}

/// By the option, or by the names of all files.
bool Convert::isGeoJson() const {
    bool const named = !m_files.empty() && std::all_of(m_files.begin(), m_files.end(), isGeoJsonName);
    if (!m_geoJson && !named && std::any_of(m_files.begin(), m_files.end(), isGeoJsonName))
        throw UsageError("files of GeoJSON and files of points need a command each, or --geojson for all of them");
    return m_geoJson || named;
}

void Convert::refuseBesideGeoJson(ProjectionChoice const& projection) const {
    if (!m_columns.empty())
        throw UsageError("--columns: GeoJSON has no columns");
    if (projection.zonePerPoint)
        throw UsageError("--utm auto: GeoJSON has no place for the zone of each point; name one zone for all");
}

int Convert::run(Output& output) {
    ProjectionChoice projection;
    if (m_direction != Direction::Datum)
        projection = m_projection.choice(m_datums.ofMap());
    int const decimals = readDecimals(m_precision, m_direction == Direction::Forward ? metreDecimals : degreeDecimals);
    ConversionJob job{projection, m_datums.shift(), columns(projection),
                      decimals,   m_strict,         filesOrStandardInput(m_files)};
    if (isGeoJson()) {
        refuseBesideGeoJson(projection);
        return GeoJsonConversion(std::move(job), m_clip, output).run();
    }
    if (m_clip)
        throw UsageError("--clip: points are not cut; it is for GeoJSON");
    return convertPoints(job, output);
}

} // namespace

std::unique_ptr<Subcommand> makeDatumConversion(CommandLine line) {
    return std::make_unique<Convert>(line, Direction::Datum);
}

std::unique_ptr<Subcommand> makeForward(CommandLine line) {
    line.footer(R"(Example: the places of a spreadsheet export, in feet, in new columns
  zrproj forward --state-plane "Arizona Central" --units ft places.csv)");
    return std::make_unique<Convert>(line, Direction::Forward);
}

std::unique_ptr<Subcommand> makeInverse(CommandLine line) {
    line.footer(R"(Example: one point
  echo 630084.301 4833438.586 | zrproj inverse --utm 17N)");
    return std::make_unique<Convert>(line, Direction::Inverse);
}

} // namespace ZrProj::Command
