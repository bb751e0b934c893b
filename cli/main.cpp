// The command zrproj.
#include "cli/commands.h"
#include "cli/text/text.h"
#include "cli/usage_error.h"

#include <CLI/CLI.hpp>

#include <array>
#include <cerrno>
#include <cstdio>
#include <exception>
#include <memory>
#include <sstream>
#include <vector>

#include <unistd.h>

namespace ZrProj::Command {
namespace {

constexpr int failureStatus = 1;
constexpr int usageStatus = 2;

constexpr char const* overview = R"(Examples:
  echo -79.387139,43.642567 | zrproj forward --utm 17N
  zrproj forward --utm auto cities.csv > utm.csv
  zrproj inverse --utm auto utm.csv
  zrproj datum --from nad27 --to wgs84 survey.csv
  zrproj list projections
  zrproj show --utm 17N
  zrproj georef fit controls.csv --method affine
  zrproj map --projection robinson --output world.svg

Lines are fields between commas, tabs, semicolons or blanks. With a header, the columns are found by their names (lon,
longitude, x, easting; lat, latitude, y, northing), and results go into new columns; without one, results replace the
first two fields, longitude first. Angles are decimal degrees, or like 79d58'56"W. A point that cannot be converted
comes out as * in both fields.

Exit status: 0; 1 when a line could not be read or something failed; 2 for a command line that cannot be followed.)";

int complain(std::string const& message, int status) {
    std::fprintf(stderr, "zrproj: %s\n", message.c_str());
    return status;
}

struct CommandRow {
    char const* name;
    char const* description;
    std::unique_ptr<Subcommand> (*make)(CLI::App& app);
};

constexpr std::array commandRows{
    CommandRow{"forward", "Convert longitudes and latitudes to projected coordinates", makeForward},
    CommandRow{"inverse", "Convert projected coordinates to longitudes and latitudes", makeInverse},
    CommandRow{"datum", "Convert longitudes and latitudes to another datum, and keep datums of your own", makeDatum},
    CommandRow{"georef", "Fit a map to control points, and convert points by it", makeGeoref},
    CommandRow{"locate", "Convert image coordinates to longitudes and latitudes", makeLocate},
    CommandRow{"info", "Show what side files and tags say of a map or an image", makeInfo},
    CommandRow{"convert", "Convert side files and TIFF tags into each other", makeConvertFile},
    CommandRow{"list", "List projections, parameters, ellipsoids, State Plane zones or datums", makeList},
    CommandRow{"map", "Draw a map, or one of every projection", makeMap},
    CommandRow{"show", "Show the completed parameters of a projection", makeShow},
    CommandRow{"grid", "Look at the grids of NADCON datums, and prepare them", makeGrid},
};

/// The whole command line.
class Main {
public:
    Main();
    int run(int argc, char** argv);

private:
    int parsed();
    int unparsed(CLI::ParseError const& error);
    int finish(int status);

    CLI::App m_app{"Converts points between longitude/latitude and map coordinates.", "zrproj"};
    std::vector<std::unique_ptr<Subcommand>> m_commands; // by row
    Output m_output{STDOUT_FILENO};
};

Main::Main() {
    m_app.set_version_flag("--version", "zrproj " ZRPROJ_VERSION);
    m_app.footer(overview);
    m_app.get_formatter()->column_width(44);
    for (CommandRow const& row : commandRows)
        m_commands.push_back(row.make(*m_app.add_subcommand(row.name, row.description)));
}

int Main::run(int argc, char** argv) {
    try {
        m_app.parse(argc, argv);
        return finish(parsed());
    } catch (CLI::ParseError const& error) {
        return finish(unparsed(error));
    } catch (UsageError const& error) {
        m_output.flush();
        return complain(error.what(), usageStatus);
    } catch (std::exception const& error) {
        return complain(error.what(), failureStatus);
    }
}

int Main::parsed() {
    for (std::size_t i = 0; i < commandRows.size(); ++i)
        if (m_app.got_subcommand(commandRows[i].name))
            return m_commands[i]->run(m_output);
    return complain("no command; \"zrproj --help\" lists them", usageStatus);
}

/// Help and version, which the parser reports like errors, and real errors.
int Main::unparsed(CLI::ParseError const& error) {
    std::ostringstream out, errors;
    if (m_app.exit(error, out, errors) != 0)
        return complain(std::string(error.what()) + "; \"zrproj --help\" tells more", usageStatus);
    m_output << out.str();
    return 0;
}

/// Sees to it that a text that could not be written is no success.
int Main::finish(int status) {
    if (m_output.flush() || status != 0 || m_output.error() == EPIPE)
        return status;
    return complain("cannot write standard output: " + systemMessage(m_output.error()), failureStatus);
}

} // namespace
} // namespace ZrProj::Command

int main(int argc, char** argv) {
    return ZrProj::Command::Main().run(argc, argv);
}
