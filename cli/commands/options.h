// The options that say which projection and which datums.
#pragma once

#include "cli/model/datums.h"
#include "cli/model/projection.h"
#include "cli/model/zones.h"
#include "cli/points/layout.h"
#include "cli/text/command_line.h"

#include <zrproj/zrproj.h>

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace ZrProj::Command {

/// What --precision says: 0 to 15 decimals; `standard` where it is "". Throws UsageError.
int readDecimals(std::string const& text, int standard);

/// The files to read: standard input where none is given.
std::vector<std::string> filesOrStandardInput(std::vector<std::string> const& files);

/// What the datum of a map tells of its projection.
struct MapDatum {
    bool isGiven = false;
    Figure figure{};           // the ellipsoid where no option tells one
    std::optional<int> year{}; // of the State Plane zones on it
};

/// Of a datum; a figure where it has one.
MapDatum mapDatumOf(Datum const& datum);

/// The options that say which projection: by its parameters, by a UTM or State Plane zone, or by a file that tells.
class ProjectionOptions {
public:
    ProjectionOptions();

    /// Add the options to a subcommand: those that name a projection, and those of its parameters. This object must
    /// stay where it is until they were parsed.
    void addTo(CommandLine line);
    void addParametersTo(CommandLine line);

    /// Whether any of the options was given.
    bool any() const;

    /// The file of --like; empty for none.
    std::string const& likeFile() const { return m_like; }

    /// What the options say, checked. Throws UsageError when they are no usable projection, or contradict the datum.
    ProjectionChoice choice(MapDatum const& datum = {}) const;

private:
    struct Value {
        int id;
        Option option;
        std::string text;
    };

    void refuseOthers(Option const& than) const;
    ProjectionChoice choiceOfSystem(MapDatum const& datum) const;
    ProjectionChoice choiceLike() const;
    void startFrom(ProjectionChoice& choice, MapDatum const& datum) const;
    void startFromUtm(ProjectionChoice& choice) const;
    ProjType givenProjection() const;
    Value const& value(int id) const { return m_values[static_cast<std::size_t>(id - 1)]; }
    bool given(int id) const;
    std::optional<int> year() const;
    void refuseUnused(ProjType type) const;
    void setEllipsoid(PROJDATA& record, Figure const& standard) const;
    void refuseOtherZone(StatePlaneZone zone, MapDatum const& datum) const;
    void refuseOtherEllipsoid(PROJDATA const& record, Figure const& ofDatum) const;
    void setValues(PROJDATA& record) const;

    std::vector<Value> m_values; // one a catalogue parameter, in catalogue order
    Option m_crsOption, m_utmOption, m_statePlaneOption, m_yearOption, m_likeOption;
    std::string m_crs, m_utm, m_statePlane, m_year, m_like;
};

/// --from and --to of a conversion between datums; beside a projection, the datum of the map is --datum, and that of
/// the points before or after it --from-datum or --to-datum.
class DatumOptions {
public:
    explicit DatumOptions(Operation operation) : m_operation(operation) {}

    /// Adds the options to a subcommand. This object must stay where it is until they were parsed.
    void addTo(CommandLine line);

    /// What they ask for; nothing where no datum is to be changed. Throws UsageError when it cannot be followed.
    std::optional<DatumShift> shift() const;

    /// The map's datum; WGS 84's figure where none is given.
    MapDatum ofMap() const;

private:
    std::vector<Datum> defined() const;

    Operation m_operation;
    std::string m_from, m_to; // of them, --datum is the one at the map's end
    std::vector<std::string> m_definitions;
};

} // namespace ZrProj::Command
