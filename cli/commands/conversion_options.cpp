#include "cli/commands/conversion_options.h"

#include "cli/commands/options.h"
#include "cli/geojson/conversion.h"
#include "cli/model/units.h"
#include "cli/text/numbers.h"
#include "cli/text/text.h"
#include "cli/text/usage_error.h"

#include <algorithm>
#include <cmath>
#include <thread>

namespace ZrProj::Command {
namespace {

constexpr int metreDecimals = 3;  // millimetres
constexpr int degreeDecimals = 9; // a tenth of a millimetre, so that the way there and back keeps the millimetre

} // namespace

void ConversionOptions::addTo(CommandLine line, char const* units, char const* clip) {
    line.arguments("FILE", m_files, "Files of points; standard input where none is given, and for -");
    CommandLine const group = line.inGroup("Input and output");
    group.option("--columns", m_columns, "X,Y",
                 "Columns of the coordinates, x first: numbers from 1, or names of the header");
    if (units)
        group.option("--units", m_units, "UNIT", units);
    group.option("--precision", m_precision, "N", "Decimals of the result, 0 to 15 (3 for lengths, 9 for degrees)");
    group.flag("--strict", m_strict, "Status 1 also when a point cannot be converted, or not well");
    group.flag("--geojson", m_geoJson, "Input and output are GeoJSON, as in files that are named so (.geojson, .json)");
    if (clip)
        group.flag("--clip", m_clip, clip);
    group.option("--threads", m_threads, "N",
                 "Threads that convert lines of points (as many as there are processors); results are the same");
}

std::vector<std::string> ConversionOptions::files() const {
    return filesOrStandardInput(m_files);
}

bool ConversionOptions::isGeoJson() const {
    bool const named = !m_files.empty() && std::all_of(m_files.begin(), m_files.end(), isGeoJsonName);
    if (!m_geoJson && !named && std::any_of(m_files.begin(), m_files.end(), isGeoJsonName))
        throw UsageError("files of GeoJSON and files of points need a command each, or --geojson for all of them");
    return m_geoJson || named;
}

LengthUnit const* ConversionOptions::unit() const {
    if (m_units.empty())
        return nullptr;
    LengthUnit const* const unit = findLengthUnit(m_units);
    if (!unit)
        throw UsageError("--units: " + inQuotes(m_units) + " is none of m, ft and us-ft");
    return unit;
}

int ConversionOptions::threads() const {
    constexpr int most = 256;
    if (m_threads.empty())
        return static_cast<int>(std::clamp(std::thread::hardware_concurrency(), 1U, 256U));
    Reading const number = readNumber(m_threads);
    if (number.error || !(number.value >= 1 && number.value <= most) || number.value != std::floor(number.value))
        throw UsageError("--threads: " + inQuotes(m_threads) + " is not a whole number from 1 to 256");
    return static_cast<int>(number.value);
}

ConversionJob ConversionOptions::job(Operation operation, bool zone) const {
    bool const readsZone = zone && operation == Operation::Inverse;
    ConversionJob job;
    job.columns = {operation, {}, nullptr, readsZone};
    if (!m_columns.empty())
        job.columns.columns = parseColumns(m_columns, readsZone);
    (operation == Operation::Inverse ? job.columns.unit : job.unit) = unit();
    job.decimals = readDecimals(m_precision, writesAngles(operation) ? degreeDecimals : metreDecimals);
    job.strict = m_strict;
    job.threads = threads();
    job.files = files();
    return job;
}

void ConversionOptions::refuseMapOptions(std::string const& reason) const {
    if (!m_units.empty())
        throw UsageError("--units has no place beside " + reason);
    if (m_clip)
        throw UsageError("--clip has no place beside " + reason);
}

void ConversionOptions::refuseBesideGeoJson(ConversionJob const& job) const {
    if (!m_columns.empty())
        throw UsageError("--columns: GeoJSON has no columns");
    if (job.projection.zonePerPoint)
        throw UsageError("--utm auto: GeoJSON has no place for the zone of each point; name one zone for all");
}

int ConversionOptions::run(ConversionJob job, Output& output) const {
    if (isGeoJson()) {
        refuseBesideGeoJson(job);
        return GeoJsonConversion(std::move(job), m_clip, output).run();
    }
    if (m_clip)
        throw UsageError("--clip: points are not cut; it is for GeoJSON");
    return convertPoints(job, output);
}

} // namespace ZrProj::Command
