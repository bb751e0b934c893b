// The options of input and output that the conversions of points share, and the run that they ask for.
#pragma once

#include "cli/points/conversion.h"
#include "cli/text/command_line.h"
#include "cli/text/output.h"

#include <string>
#include <vector>

namespace ZrProj::Command {

class ConversionOptions {
public:
    /// Adds the options to a subcommand. units, clip: what is said of --units and --clip; null where there is none.
    /// This object must stay where it is until the options were parsed.
    void addTo(CommandLine line, char const* units, char const* clip);

    /// The files to read; "-" is standard input.
    std::vector<std::string> files() const;

    /// Whether the files are GeoJSON: by the option, or by the names of all of them. Throws UsageError where they
    /// differ.
    bool isGeoJson() const;

    /// What the options say of a conversion. zone: whether each point has its own. Throws UsageError.
    ConversionJob job(Operation operation, bool zone) const;

    /// Runs a job of these options. Returns the exit status. Throws UsageError when it cannot be followed.
    int run(ConversionJob job, Output& output) const;

    /// Refuses --units and --clip, which have no place beside an option for the reason.
    void refuseMapOptions(std::string const& reason) const;

private:
    LengthUnit const* unit() const;
    int threads() const;
    void refuseBesideGeoJson(ConversionJob const& job) const;

    std::vector<std::string> m_files;
    std::string m_columns, m_units, m_precision, m_threads;
    bool m_strict = false, m_geoJson = false, m_clip = false;
};

} // namespace ZrProj::Command
