// The options that say which projection: by its parameters, or by a UTM or State Plane zone, or by
// a file that tells.
#pragma once

#include "cli/datum/datums.h"
#include "cli/projection/units.h"
#include "cli/text/command_line.h"

#include <zrproj/zrproj.h>

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace ZrProj::Command {

/// The projection that a command line asks for.
struct ProjectionChoice {
    PROJDATA record = {};
    bool zonePerPoint = false;               // --utm auto: UTM, the zone being each point's own
    LengthUnit const* unit = nullptr;        // of a file's coordinates; null for metres
    std::shared_ptr<CGeorefTransform> image; // whose coordinates are given for projected ones; null for none
};

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

    /// What the options say, checked; `standard` is the ellipsoid where they tell none. Throws UsageError when they are
    /// no usable projection.
    ProjectionChoice choice(Figure const& standard = {}) const;

private:
    struct Value {
        int id;
        Option option;
        std::string text;
    };

    PROJDATA projectionLike() const;
    void startFrom(ProjectionChoice& choice) const;
    void startFromUtm(ProjectionChoice& choice) const;
    ProjType givenProjection() const;
    Value const& value(int id) const { return m_values[static_cast<std::size_t>(id - 1)]; }
    bool given(int id) const;
    std::optional<int> year() const;
    void refuseUnused(ProjType type) const;
    void setEllipsoid(PROJDATA& record, Figure const& standard) const;
    void setValues(PROJDATA& record) const;

    std::vector<Value> m_values; // one a catalogue parameter, in catalogue order
    Option m_utmOption, m_statePlaneOption, m_yearOption, m_likeOption;
    std::string m_utm, m_statePlane, m_year, m_like;
};

} // namespace ZrProj::Command
