// The options that say which datums.
#pragma once

#include "cli/datum/converter.h"
#include "cli/points/header.h"
#include "cli/text/command_line.h"

#include <optional>
#include <string>
#include <vector>

namespace ZrProj::Command {

/// --from and --to of a conversion between datums; beside a projection, the datum of the map is --datum, and that of
/// the points before or after it --from-datum or --to-datum.
class DatumOptions {
public:
    explicit DatumOptions(Direction direction) : m_direction(direction) {}

    /// Adds the options to a subcommand. This object must stay where it is until they were parsed.
    void addTo(CommandLine line);

    /// What they ask for; nothing where no datum is to be changed. Throws UsageError when it cannot be followed.
    std::optional<DatumShift> shift() const;

    /// The figure of the map's datum; WGS 84's where none is given.
    Figure mapFigure() const;

private:
    std::vector<Datum> defined() const;

    Direction m_direction;
    std::string m_from, m_to; // of them, --datum is the one at the map's end
    std::vector<std::string> m_definitions;
};

} // namespace ZrProj::Command
