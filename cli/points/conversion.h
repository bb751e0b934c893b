// Points from one system of coordinates to another: blocks of them, and whole files.
#pragma once

#include "cli/model/projection.h"
#include "cli/model/zones.h"
#include "cli/points/layout.h"
#include "cli/points/point_converter.h"
#include "cli/text/output.h"

#include <array>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace ZrProj::Command {

/// A point on its way through a transform.
struct BlockPoint {
    PROJPOINT point{};
    PointState state = PointState::Unread;
    UtmZone zone = 0; // where each point has its own; told for Inverse, found for Forward
};

struct PointBlock {
    std::vector<PROJPOINT> points;
    std::vector<PointState> states;
    std::vector<UtmZone> zones;

    void clear();
    void add(BlockPoint const& point);
    BlockPoint operator[](std::size_t i) const { return {points[i], states[i], zones[i]}; }
};

class Transform {
public:
    /// choice: not looked at for Direction::Datum. Throws UsageError when the projection or the datums cannot convert.
    Transform(ProjectionChoice choice, Direction direction, std::optional<DatumShift> const& shift);

    /// Converts a block in place; `unit` is that of projected coordinates.
    void run(PointBlock& block, LengthUnit const& unit);

    /// The system of the map, where all points have the same one.
    System const& map() { return converter(0).map(); }

private:
    bool isDirect() const;
    double unitOfMap() const;
    void fromImage(PointBlock& block) const;
    void convert(UtmZone zone, std::span<PROJPOINT> points, std::span<PointState> states);
    PointConverter& converter(UtmZone zone);
    void runByZone(PointBlock& block);
    void project(PointBlock& block);
    void shiftDatum(PointBlock& block);
    void shiftAndProject(PointBlock& block);
    void projectAndShift(PointBlock& block);

    ProjectionChoice m_choice;
    Direction m_direction;
    std::array<std::unique_ptr<PointConverter>, utmZones> m_converters; // the first one only, without zones
    std::optional<DatumConverter> m_datum;                              // none: points stay on theirs
    PointBlock m_sorted;
};

struct ConversionJob {
    ProjectionChoice projection; // not for Direction::Datum
    std::optional<DatumShift> shift;
    ColumnRequest columns; // with the direction, and --units
    int decimals = 0;
    bool strict = false;
    std::vector<std::string> files; // "-" is standard input

    /// The unit of projected coordinates: what --units says, else the file's own, which may be null, else that of
    /// the file of --like, else metres.
    LengthUnit const& unit(LengthUnit const* ofFile) const;
};

/// Runs one command line's files of points through. Returns the exit status. Throws UsageError when the projection or
/// the datums cannot convert, and for a header that cannot be used.
int convertPoints(ConversionJob const& job, Output& output);

} // namespace ZrProj::Command
