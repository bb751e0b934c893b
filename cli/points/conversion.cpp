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

Transform::Transform(ProjectionChoice choice, Operation operation, std::optional<DatumShift> const& shift)
    : m_choice(std::move(choice)), m_operation(operation) {
    if (operation != Operation::Datum && !isDirect())
        converter(0);
    if (shift)
        m_datum.emplace(*shift);
}

Transform::Transform(WayPointer way) : m_operation(directionOf(*way)), m_way(std::move(way)) {}

/// Whether an image's coordinates lead to longitudes and latitudes already.
bool Transform::isDirect() const {
    bool const isGeographic =
        m_choice.system ? m_choice.system->isGeographic() : m_choice.record.Type == ProjTypeUnprojectedLatLong;
    return m_choice.image && isGeographic;
}

namespace {

/// Metres a unit of the map's coordinates: those of a record are metres here, but in images.
double unitOfMap(ProjectionChoice const& choice) {
    return choice.system && !choice.system->isGeographic() ? choice.system->unit().metres : 1;
}

} // namespace

double Transform::unitRead() const {
    return m_way ? m_way->way().from().unit().metres : unitOfMap(m_choice);
}

double Transform::unitWritten() const {
    return m_way ? m_way->way().to().unit().metres : unitOfMap(m_choice);
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

PointConverter const& Transform::converter(UtmZone zone) const {
    Converter& converter = m_converters[static_cast<std::size_t>(zone)];
    std::call_once(converter.once, [&] {
        ProjectionChoice choice = m_choice;
        if (choice.zonePerPoint)
            setUtmZone(choice.record, zone);
        converter.made = std::make_unique<PointConverter>(mapOf(choice));
    });
    return *converter.made;
}

void Transform::convert(UtmZone zone, std::span<PROJPOINT> points, std::span<PointState> states) const {
    if (points.empty())
        return;
    if (m_operation == Operation::Forward)
        converter(zone).forward(points, states);
    else
        converter(zone).inverse(points, states);
}

/// Sorts the points by zone, converts each zone's, and puts the results back in the points' order.
void Transform::runByZone(PointBlock& block) const {
    if (m_operation == Operation::Forward)
        std::transform(block.points.begin(), block.points.end(), block.zones.begin(), utmZoneOf);
    std::vector<std::size_t> order(block.points.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::sort(order.begin(), order.end(), [&](auto a, auto b) { return block.zones[a] < block.zones[b]; });
    PointBlock sorted;
    for (std::size_t from : order)
        sorted.add(block[from]);
    for (std::size_t begin = 0; begin < order.size();) {
        UtmZone const zone = sorted.zones[begin];
        std::size_t end = begin;
        while (end < order.size() && sorted.zones[end] == zone)
            ++end;
        convert(zone, std::span(sorted.points).subspan(begin, end - begin),
                std::span(sorted.states).subspan(begin, end - begin));
        begin = end;
    }
    for (std::size_t i = 0; i < order.size(); ++i) {
        block.points[order[i]] = sorted.points[i];
        block.states[order[i]] = sorted.states[i];
    }
}

void Transform::project(PointBlock& block) const {
    if (m_choice.image)
        fromImage(block);
    if (isDirect())
        return;
    if (m_choice.zonePerPoint)
        runByZone(block);
    else
        convert(0, block.points, block.states);
}

void Transform::shiftDatum(PointBlock& block) const {
    if (m_datum)
        m_datum->convert(block.points, block.states);
}

/// Points outside what their datum's grid or equations cover are projected like others, and are told of afterwards.
void Transform::shiftAndProject(PointBlock& block) const {
    shiftDatum(block);
    std::vector<PointState> const shifted = m_datum ? block.states : std::vector<PointState>();
    auto const isOff = [](PointState state) { return state == PointState::OffGrid || state == PointState::OffArea; };
    std::replace_if(block.states.begin(), block.states.end(), isOff, PointState::Good);
    project(block);
    for (std::size_t i = 0; i < shifted.size(); ++i)
        if (isOff(shifted[i]) && block.states[i] == PointState::Good)
            block.states[i] = shifted[i];
}

void Transform::projectAndShift(PointBlock& block) const {
    project(block);
    shiftDatum(block);
    for (std::size_t i = 0; i < block.points.size() && m_datum; ++i)
        if (hasResult(block.states[i]) && std::fabs(block.points[i].x) > 180)
            block.points[i].x = std::remainder(block.points[i].x, 360);
}

void Transform::takeWay(PointBlock& block) const {
    if (m_way)
        m_way->forward(block.points, block.states);
    else if (m_operation == Operation::Forward)
        shiftAndProject(block);
    else if (m_operation == Operation::Inverse)
        projectAndShift(block);
    else
        shiftDatum(block);
}

void Transform::run(PointBlock& block, Units const& units) const {
    if (!readsAngles(m_operation))
        scale(block.points, units.read.metres / unitRead());
    takeWay(block);
    if (!writesAngles(m_operation))
        scale(block.points, unitWritten() / units.written.metres);
}

Operation directionOf(Way const& way) {
    if (way.from().isGeographic())
        return way.to().isGeographic() ? Operation::Datum : Operation::Forward;
    return way.to().isGeographic() ? Operation::Inverse : Operation::MapToMap;
}

namespace {

/// Where each point has its own zone, the result has it beside the coordinates.
bool writesZones(ConversionJob const& job) {
    return job.projection.zonePerPoint && job.columns.operation == Operation::Forward;
}

class Conversion : public PointWork {
public:
    explicit Conversion(ConversionJob const& job) : m_job(job), m_transform(job.transform()) {}

    std::string header(std::string_view line, Layout const& layout) const override {
        std::vector<std::string> added{"longitude", "latitude"};
        if (!writesAngles(m_job.columns.operation)) {
            std::string const suffix(m_job.units(layout.columns.unit).written.suffix);
            added = {"easting_" + suffix, "northing_" + suffix};
        }
        if (writesZones(m_job))
            added.emplace_back("zone");
        return headerWith(line, layout, added);
    }

    void convert(PointBlock& block, Layout const& layout) const override {
        m_transform.run(block, m_job.units(layout.columns.unit));
    }

private:
    ConversionJob const& m_job;
    Transform m_transform;
};

} // namespace

Units ConversionJob::units(LengthUnit const* ofFile) const {
    LengthUnit const* const ofMap = projection.unit ? projection.unit : &lengthUnits.front();
    LengthUnit const* const ofSource = ofFile ? ofFile : way ? &way->from().unit() : ofMap;
    LengthUnit const* const ofTarget = way ? &way->to().unit() : ofMap;
    return {columns.unit ? *columns.unit : *ofSource, unit ? *unit : *ofTarget};
}

Transform ConversionJob::transform() const {
    return way ? Transform(way) : Transform(projection, columns.operation, shift);
}

int convertPoints(ConversionJob const& job, Output& output) {
    Conversion const conversion(job);
    RowFiles const files{job.files, job.columns, job.threads};
    return RowStream(conversion, files, RowWriter(job.decimals, writesZones(job)), output).run(job.strict);
}

} // namespace ZrProj::Command
