// The command zrproj.
#include "cli/commands/commands.h"
#include "cli/text/text.h"
#include "cli/text/usage_error.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <exception>
#include <memory>
#include <vector>

#include <unistd.h>

namespace ZrProj::Command {
namespace {

constexpr int failureStatus = 1;
constexpr int usageStatus = 2;

constexpr char const* overview = R"(Examples:
  echo -79.387139,43.642567 | zrproj forward --utm 17N
  zrproj forward --crs EPSG:28992 places.csv
  zrproj forward --utm auto cities.csv > utm.csv
  zrproj inverse --utm auto utm.csv
  zrproj transform --from EPSG:27700 --to WGS84 survey.csv
  zrproj datum --from nad27 --to wgs84 survey.csv
  zrproj identify unknown.csv --at 7.1,50.7
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
    std::unique_ptr<Subcommand> (*make)(CommandLine line);
};

constexpr std::array commandRows{
    CommandRow{"forward", "Convert longitudes and latitudes to projected coordinates", makeForward},
    CommandRow{"inverse", "Convert projected coordinates to longitudes and latitudes", makeInverse},
    CommandRow{"transform", "Convert coordinates from one system to another, whatever their datums", makeTransform},
    CommandRow{"datum", "Convert longitudes and latitudes to another datum, and keep datums of your own", makeDatum},
    CommandRow{"georef", "Fit a map to control points, and convert points by it", makeGeoref},
    CommandRow{"locate", "Convert image coordinates to longitudes and latitudes", makeLocate},
    CommandRow{"info", "Show what side files and tags say of a map or an image", makeInfo},
    CommandRow{"convert", "Convert side files and TIFF tags into each other", makeConvertFile},
    CommandRow{"identify", "Find the coordinate systems that put points where they are", makeIdentify},
    CommandRow{"list", "List projections, parameters, ellipsoids, State Plane zones, datums or coordinate systems",
               makeList},
    CommandRow{"map", "Draw a map, or one of every projection", makeMap},
    CommandRow{"show", "Show the completed parameters of a projection, or a coordinate system", makeShow},
    CommandRow{"grid", "Look at the grids of NADCON datums, and prepare them", makeGrid},
};

/// The whole command line.
class Main {
public:
    Main();
    int run(int argc, char** argv);

private:
    int runSubcommand();
    int finish(int status);

    ProgramLine m_line{"zrproj", "Converts points between longitude/latitude and map coordinates.",
                       "zrproj " ZRPROJ_VERSION};
    std::vector<CommandLine> m_commandLines;             // by row
    std::vector<std::unique_ptr<Subcommand>> m_commands; // by row
    Output m_output{STDOUT_FILENO};
};

Main::Main() {
    m_line.command().footer(overview);
    for (CommandRow const& row : commandRows) {
        m_commandLines.push_back(m_line.command().subcommand(row.name, row.description));
        m_commands.push_back(row.make(m_commandLines.back()));
    }
}

int Main::run(int argc, char** argv) {
    try {
        std::string const text = m_line.read(argc, argv);
        m_output << text;
        return finish(text.empty() ? runSubcommand() : 0);
    } catch (UsageError const& error) {
        m_output.flush();
        return complain(error.what(), usageStatus);
    } catch (std::exception const& error) {
        return complain(error.what(), failureStatus);
    }
}

int Main::runSubcommand() {
    for (std::size_t i = 0; i < m_commands.size(); ++i)
        if (m_commandLines[i].isGiven())
            return m_commands[i]->run(m_output);
    return complain("no command; \"zrproj --help\" lists them", usageStatus);
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
