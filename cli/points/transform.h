// Blocks of points through the projection that the user chose, or each through its own UTM zone, and before or after it
// from one datum to another.
#pragma once

#include "cli/datum/converter.h"
#include "cli/points/header.h"
#include "cli/points/point_converter.h"
#include "cli/projection/options.h"
#include "cli/projection/utm_zone.h"

#include <array>
#include <memory>
#include <optional>
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

    /// The projection, where all points have the same one.
    CProjector& projector() { return converter(0).projector(); }

private:
    bool isDirect() const;
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

} // namespace ZrProj::Command
