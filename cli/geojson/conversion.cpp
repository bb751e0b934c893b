#include "cli/geojson/conversion.h"

#include "cli/files/plain_file.h"
#include "cli/geojson/clip.h"
#include "cli/points/layout.h"
#include "cli/text/numbers.h"
#include "cli/text/text.h"
#include "cli/text/usage_error.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>
#include <limits>

namespace ZrProj::Command {
namespace {

constexpr PROJPOINT noPlace{std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::quiet_NaN()};

bool isEmpty(GeoObject const& geometry) {
    if (geometry.isCollection())
        return std::all_of(geometry.geometries->begin(), geometry.geometries->end(), isEmpty);
    return geometry.coordinates->points.empty();
}

std::string angleFault(PROJPOINT const& point) {
    if (!(std::fabs(point.x) <= 360))
        return "longitude " + numberText(point.x) + " is out of range (-360 to 360)";
    if (!(std::fabs(point.y) <= 90))
        return "latitude " + numberText(point.y) + " is out of range (-90 to 90)";
    return "";
}

/// What is wrong with longitudes and latitudes, "" for nothing.
std::string anglesFault(GeoObject const& object) {
    if (object.coordinates)
        for (PROJPOINT const& point : object.coordinates->points)
            if (std::string fault = angleFault(point); !fault.empty())
                return fault;
    for (auto const* const parts : {&object.geometry, &object.geometries})
        if (*parts)
            for (GeoObject const& part : **parts)
                if (std::string fault = anglesFault(part); !fault.empty())
                    return fault;
    return "";
}

/// Without the points at which `bad`.
template <class Bad> void erasePoints(Path& path, Bad bad) {
    std::size_t kept = 0;
    for (std::size_t i = 0; i < path.points.size(); ++i) {
        if (bad(i))
            continue;
        path.points[kept] = path.points[i];
        if (!path.extras.empty() && kept != i)
            path.extras[kept] = std::move(path.extras[i]);
        ++kept;
    }
    path.points.resize(kept);
    path.extras.resize(path.extras.empty() ? 0 : kept);
}

/// What is left to do on the datum of the map.
ConversionJob ontoMap(ConversionJob job) {
    job.shift.reset();
    if (job.way)
        job.way = job.way->ontoMap();
    return job;
}

} // namespace

bool isGeoJsonName(std::string_view name) {
    std::string lower;
    for (char const c : name.substr(name.find_last_of('.') == std::string_view::npos ? 0 : name.find_last_of('.')))
        lower += lowerCase(c);
    constexpr std::array<std::string_view, 4> extensions{".geojson", ".geojsonl", ".geojsons", ".json"};
    return std::find(extensions.begin(), extensions.end(), lower) != extensions.end();
}

GeoJsonConversion::GeoJsonConversion(ConversionJob job, bool clip, Output& output)
    : m_job(std::move(job)), m_output(output), m_transform(clip ? ontoMap(m_job).transform() : m_job.transform()),
      m_units(m_job.units(nullptr)), m_map(clip ? &m_transform.map() : nullptr), m_progress(totalSize(m_job.files)),
      m_report(m_progress, "feature") {
    if (clip && m_job.way)
        m_shift.emplace(m_job.way->toPlaces());
    else if (clip && m_job.shift)
        m_shift.emplace(ProjectionChoice(), Operation::Datum, m_job.shift);
}

int GeoJsonConversion::run() {
    for (std::string const& file : m_job.files)
        if (!convertFile(file))
            break;
    return m_report.conclude(m_output, m_job.strict);
}

/// False when there is no sense in going on.
bool GeoJsonConversion::convertFile(std::string const& name) {
    InputFile const file(name);
    m_report.startFile(file.title());
    if (file.descriptor() < 0) {
        m_report.failure("cannot open " + file.title() + ": " + systemMessage(file.error()));
        return true;
    }
    m_number = 0;
    m_inCollection = false;
    ByteSource source(file.descriptor(), [&](unsigned long long position) {
        m_output.flush();
        m_progress.show(m_bytesBefore + position);
    });
    std::string const wrong = readGeoJson(source, *this);
    m_bytesBefore += source.position();
    if (source.error())
        m_report.failure("cannot read " + file.title() + ": " + systemMessage(source.error()));
    else if (!wrong.empty() && goesOn())
        m_report.failure(file.title() + ": after " + std::to_string(m_number) + " features: " + wrong);
    return m_output.flush();
}

void GeoJsonConversion::openCollection(std::string const& members) {
    m_output << R"({"type":"FeatureCollection")" << members << R"(,"features":[)";
    m_inCollection = m_isFirst = true;
}

void GeoJsonConversion::closeCollection(std::string const& members) {
    m_output << "\n]" << members << "}\n";
    m_inCollection = false;
}

/// What is no geometry, or has angles beyond their range, leaves its feature without one.
void GeoJsonConversion::feature(GeoObject object, std::string const& fault) {
    ++m_number;
    std::string reason = fault;
    if (reason.empty() && readsAngles(m_job.columns.operation))
        reason = anglesFault(object);
    if (!reason.empty()) {
        m_report.badLine(m_number, reason);
        if (!object.isFeature())
            return;
        object.geometry.emplace();
    }
    convert(object);
    if (m_inCollection)
        m_output << (std::exchange(m_isFirst, false) ? "\n" : ",\n");
    write(m_output, object, m_job.decimals);
    if (!m_inCollection)
        m_output << '\n';
    m_output.flushIfLarge();
}

void GeoJsonConversion::convert(GeoObject& object) {
    if (!object.isFeature()) {
        convertGeometry(object);
        return;
    }
    if (object.geometry->empty() || isEmpty(object.geometry->front()))
        return;
    convertGeometry(object.geometry->front());
    if (isEmpty(object.geometry->front()))
        object.geometry->clear();
}

void GeoJsonConversion::convertGeometry(GeoObject& geometry) {
    if (geometry.isCollection()) {
        for (GeoObject& part : *geometry.geometries)
            convertGeometry(part);
        if (m_map)
            std::erase_if(*geometry.geometries, isEmpty);
    } else if (m_map) {
        clip(geometry);
    } else {
        convertWhole(geometry);
    }
}

void GeoJsonConversion::fillBlock(std::vector<PROJPOINT> const& points) {
    m_block.points = points;
    m_block.states.assign(points.size(), PointState::Good);
    m_block.zones.assign(points.size(), 0);
}

void GeoJsonConversion::report(std::size_t i) {
    if (m_block.states[i] != PointState::Good)
        m_report.point(m_block.states[i], m_number);
}

/// Converts all points of a geometry, or empties it: without some of them it would be another one.
void GeoJsonConversion::convertWhole(GeoObject& geometry) {
    Coordinates& coordinates = *geometry.coordinates;
    if (coordinates.points.empty())
        return;
    fillBlock(coordinates.points);
    m_transform.run(m_block, m_units);
    for (std::size_t i = 0; i < m_block.points.size(); ++i)
        report(i);
    if (std::all_of(m_block.states.begin(), m_block.states.end(), hasResult))
        coordinates.points = m_block.points;
    else
        coordinates = Coordinates();
}

void GeoJsonConversion::clip(GeoObject& geometry) {
    shiftPoints(geometry.coordinates->points);
    if (geometry.type.ends_with("Point"))
        clipPoints(geometry);
    else if (geometry.type.ends_with("LineString"))
        clipLines(geometry);
    else
        clipPolygons(geometry);
}

/// Takes points to the map's datum.
void GeoJsonConversion::shiftPoints(std::vector<PROJPOINT>& points) {
    if (!m_shift)
        return;
    fillBlock(points);
    m_shift->run(m_block, m_units);
    for (std::size_t i = 0; i < points.size(); ++i) {
        report(i);
        points[i] = hasResult(m_block.states[i]) ? m_block.points[i] : noPlace;
    }
}

void GeoJsonConversion::clipPoints(GeoObject& geometry) {
    Coordinates& coordinates = *geometry.coordinates;
    fillBlock(coordinates.points);
    m_transform.run(m_block, m_units);
    Path left{m_block.points, std::move(coordinates.extras)};
    for (std::size_t i = 0; i < m_block.states.size(); ++i)
        if (m_block.states[i] != PointState::Outside)
            report(i);
    erasePoints(left, [&](std::size_t i) { return !hasResult(m_block.states[i]); });
    if (left.points.empty() || geometry.type == "Point") // of which there was one
        coordinates.steps.resize(left.points.empty() ? 0 : coordinates.steps.size());
    else
        coordinates.steps[1].count = left.points.size();
    coordinates.points = std::move(left.points);
    coordinates.extras = std::move(left.extras);
}

/// Projects what was cut. A point that has no result all the same, at the very edge, is left out.
void GeoJsonConversion::project(Paths& paths) {
    for (Path& path : paths) {
        fillBlock(path.points);
        m_transform.run(m_block, m_units);
        path.points = m_block.points;
        for (std::size_t i = 0; i < m_block.states.size(); ++i)
            report(i);
        erasePoints(path, [&](std::size_t i) { return !hasResult(m_block.states[i]); });
    }
}

void GeoJsonConversion::clipLines(GeoObject& geometry) {
    Paths cut;
    for (Path const& line : linesOf(*geometry.coordinates))
        for (Path& part : cutLine(*m_map, line))
            cut.push_back(std::move(part));
    project(cut);
    std::erase_if(cut, [](Path const& line) { return line.points.size() < 2; });
    if (geometry.type == "LineString" && cut.size() > 1)
        geometry.type = "MultiLineString";
    geometry.coordinates = geometry.type == "LineString" ? lineAsCoordinates(cut) : linesAsCoordinates(cut);
}

void GeoJsonConversion::clipPolygons(GeoObject& geometry) {
    std::vector<Paths> cut;
    for (Paths const& polygon : polygonsOf(*geometry.coordinates, findGeometryKind(geometry.type)->depth)) {
        Paths rings = cutPolygon(*m_map, polygon);
        project(rings);
        auto parts = groupRings(std::move(rings));
        std::move(parts.begin(), parts.end(), std::back_inserter(cut));
    }
    if (geometry.type == "Polygon" && cut.size() > 1)
        geometry.type = "MultiPolygon";
    geometry.coordinates = geometry.type == "Polygon" ? polygonAsCoordinates(cut) : polygonsAsCoordinates(cut);
}

} // namespace ZrProj::Command
