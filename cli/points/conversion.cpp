#include "cli/points/conversion.h"

#include "cli/points/row_stream.h"

#include <algorithm>
#include <cfloat>
#include <cmath>
#include <numeric>
#include <utility>

namespace ZrProj::Command {
namespace {

void scale(std::vector<PROJPOINT>& points, double factor) {
    if (factor == 1)
        return;
    for (PROJPOINT& point : points)
        point = {point.x * factor, point.y * factor};
}

} // namespace

void PointBlock::clear() {
    points.clear();
    states.clear();
    zones.clear();
}

void PointBlock::add(BlockPoint const& point) {
    points.push_back(point.point);
    states.push_back(point.state);
    zones.push_back(point.zone);
}

Transform::Transform(ProjectionChoice choice, Direction direction, std::optional<DatumShift> const& shift)
    : m_choice(std::move(choice)), m_direction(direction) {
    if (direction != Direction::Datum && !isDirect())
        converter(0);
    if (shift)
        m_datum.emplace(*shift);
}

/// Whether an image's coordinates lead to longitudes and latitudes already.
bool Transform::isDirect() const {
    bool const isGeographic =
        m_choice.system ? m_choice.system->isGeographic() : m_choice.record.Type == ProjTypeUnprojectedLatLong;
    return m_choice.image && isGeographic;
}

/// Metres a unit of the map's coordinates: those of a record are metres here, but in images.
double Transform::unitOfMap() const {
    return m_choice.system && !m_choice.system->isGeographic() ? m_choice.system->unit().metres : 1;
}

/// Image coordinates become projected ones.
void Transform::fromImage(PointBlock& block) const {
    std::vector<PROJPOINT>& points = block.points;
    if (points.empty())
        return;
    zrproj_fit_points(m_choice.image.get(), &points[0].x, &points[0].y, sizeof(PROJPOINT), points.size(), nullptr, 0);
    for (std::size_t i = 0; i < points.size(); ++i)
        if (std::isnan(points[i].x)) {
            points[i] = {DBL_MAX, DBL_MAX};
            if (block.states[i] == PointState::Good)
                block.states[i] = PointState::NoResult;
        }
}

PointConverter& Transform::converter(UtmZone zone) {
    auto& result = m_converters[static_cast<std::size_t>(zone)];
    if (!result) {
        ProjectionChoice choice = m_choice;
        if (choice.zonePerPoint)
            setUtmZone(choice.record, zone);
        result = std::make_unique<PointConverter>(mapOf(choice));
    }
    return *result;
}

void Transform::convert(UtmZone zone, std::span<PROJPOINT> points, std::span<PointState> states) {
    if (points.empty())
        return;
    if (m_direction == Direction::Forward)
        converter(zone).forward(points, states);
    else
        converter(zone).inverse(points, states);
}

/// Sorts the points by zone, converts each zone's, and puts the results back in the points' order.
void Transform::runByZone(PointBlock& block) {
    if (m_direction == Direction::Forward)
        std::transform(block.points.begin(), block.points.end(), block.zones.begin(), utmZoneOf);
    std::vector<std::size_t> order(block.points.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::sort(order.begin(), order.end(), [&](auto a, auto b) { return block.zones[a] < block.zones[b]; });
    m_sorted.clear();
    for (std::size_t from : order)
        m_sorted.add(block[from]);
    for (std::size_t begin = 0; begin < order.size();) {
        UtmZone const zone = m_sorted.zones[begin];
        std::size_t end = begin;
        while (end < order.size() && m_sorted.zones[end] == zone)
            ++end;
        convert(zone, std::span(m_sorted.points).subspan(begin, end - begin),
                std::span(m_sorted.states).subspan(begin, end - begin));
        begin = end;
    }
    for (std::size_t i = 0; i < order.size(); ++i) {
        block.points[order[i]] = m_sorted.points[i];
        block.states[order[i]] = m_sorted.states[i];
    }
}

void Transform::project(PointBlock& block) {
    if (m_choice.image)
        fromImage(block);
    if (isDirect())
        return;
    if (m_choice.zonePerPoint)
        runByZone(block);
    else
        convert(0, block.points, block.states);
}

void Transform::shiftDatum(PointBlock& block) {
    if (m_datum)
        m_datum->convert(block.points, block.states);
}

/// Points outside what their datum's grid or equations cover are projected like others, and are told of afterwards.
void Transform::shiftAndProject(PointBlock& block) {
    shiftDatum(block);
    std::vector<PointState> const shifted = m_datum ? block.states : std::vector<PointState>();
    auto const isOff = [](PointState state) { return state == PointState::OffGrid || state == PointState::OffArea; };
    std::replace_if(block.states.begin(), block.states.end(), isOff, PointState::Good);
    project(block);
    for (std::size_t i = 0; i < shifted.size(); ++i)
        if (isOff(shifted[i]) && block.states[i] == PointState::Good)
            block.states[i] = shifted[i];
}

void Transform::projectAndShift(PointBlock& block) {
    project(block);
    shiftDatum(block);
    for (std::size_t i = 0; i < block.points.size() && m_datum; ++i)
        if (hasResult(block.states[i]) && std::fabs(block.points[i].x) > 180)
            block.points[i].x = std::remainder(block.points[i].x, 360);
}

void Transform::run(PointBlock& block, LengthUnit const& unit) {
    switch (m_direction) {
    case Direction::Forward:
        shiftAndProject(block);
        scale(block.points, unitOfMap() / unit.metres);
        break;
    case Direction::Inverse:
        scale(block.points, unit.metres / unitOfMap());
        projectAndShift(block);
        break;
    case Direction::Datum:
        shiftDatum(block);
    }
}

namespace {

/// Where each point has its own zone, the result has it beside the coordinates.
bool writesZones(ConversionJob const& job) {
    return job.projection.zonePerPoint && job.columns.direction == Direction::Forward;
}

class Conversion : public PointWork {
public:
    explicit Conversion(ConversionJob const& job)
        : m_job(job), m_transform(job.projection, job.columns.direction, job.shift) {}

    std::string header(std::string_view line, Layout const& layout) const override {
        std::vector<std::string> added{"longitude", "latitude"};
        if (m_job.columns.direction == Direction::Forward) {
            std::string const suffix(m_job.unit(layout.columns.unit).suffix);
            added = {"easting_" + suffix, "northing_" + suffix};
        }
        if (writesZones(m_job))
            added.emplace_back("zone");
        return headerWith(line, layout, added);
    }

    void convert(PointBlock& block, Layout const& layout) override {
        m_transform.run(block, m_job.unit(layout.columns.unit));
    }

private:
    ConversionJob const& m_job;
    Transform m_transform;
};

} // namespace

LengthUnit const& ConversionJob::unit(LengthUnit const* ofFile) const {
    if (columns.unit)
        return *columns.unit;
    if (ofFile)
        return *ofFile;
    return projection.unit ? *projection.unit : lengthUnits.front();
}

int convertPoints(ConversionJob const& job, Output& output) {
    Conversion conversion(job);
    RowWriter const writer(output, job.decimals, writesZones(job));
    return RowStream(conversion, job.files, job.columns, writer, output).run(job.strict);
}

} // namespace ZrProj::Command
