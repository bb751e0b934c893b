// Points from one system of coordinates to another: blocks of them, and whole files.
#pragma once

#include "cli/model/projection.h"
#include "cli/model/zones.h"
#include "cli/points/layout.h"
#include "cli/points/point_converter.h"
#include "cli/text/output.h"

#include <array>
#include <memory>
#include <mutex>
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

/// Units of projected coordinates, which those that are angles do not have.
struct Units {
    LengthUnit const &read, &written;
};

/// What happens to points. Threads may share a transform.
class Transform {
public:
    /// choice: not looked at for Operation::Datum. Throws UsageError when the projection or the datums cannot convert.
    Transform(ProjectionChoice choice, Operation operation, std::optional<DatumShift> const& shift);
    explicit Transform(WayPointer way);

    /// Converts a block in place.
    void run(PointBlock& block, Units const& units) const;

    /// The system of the map that points come to, where all have the same one.
    System const& map() const { return (m_way ? *m_way : converter(0)).way().to(); }

private:
    struct Converter {
        std::once_flag once;
        std::unique_ptr<PointConverter> made;
    };

    bool isDirect() const;
    double unitRead() const;
    double unitWritten() const;
    void fromImage(PointBlock& block) const;
    void convert(UtmZone zone, std::span<PROJPOINT> points, std::span<PointState> states) const;
    PointConverter const& converter(UtmZone zone) const;
    void runByZone(PointBlock& block) const;
    void project(PointBlock& block) const;
    void shiftDatum(PointBlock& block) const;
    void shiftAndProject(PointBlock& block) const;
    void projectAndShift(PointBlock& block) const;
    void takeWay(PointBlock& block) const;

    ProjectionChoice m_choice;
    Operation m_operation;
    mutable std::array<Converter, utmZones> m_converters; // the first one only, without zones
    std::optional<DatumConverter> m_datum;                // none: points stay on theirs
    std::optional<PointConverter> m_way;                  // in place of all of these; none where they do it
};

/// What becomes of coordinates between the columns that are read and those that are written.
Operation directionOf(Way const& way);

struct ConversionJob {
    ProjectionChoice projection{}; // not for Operation::Datum
    std::optional<DatumShift> shift{};
    WayPointer way{};                 // in place of both; null where they tell it
    ColumnRequest columns{};          // with the operation
    LengthUnit const* unit = nullptr; // of projected results, as --units says it; null where not given
    int decimals = 0;
    bool strict = false;
    int threads = 1;
    std::vector<std::string> files{}; // "-" is standard input

    /// Each is what --units says, else that of the file read, which may be null, else that of the systems or of the
    /// file of --like, else metres.
    Units units(LengthUnit const* ofFile) const;
    Transform transform() const;
};

/// Runs one command line's files of points through. Returns the exit status. Throws UsageError when the projection or
/// the datums cannot convert, and for a header that cannot be used.
int convertPoints(ConversionJob const& job, Output& output);

} // namespace ZrProj::Command
