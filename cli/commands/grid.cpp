// zrproj grid: the grids that NADCON datums need.
#include "cli/commands/commands.h"
#include "cli/files/ctable_file.h"
#include "cli/files/grids.h"
#include "cli/text/text.h"
#include "cli/text/usage_error.h"

#include <filesystem>

namespace ZrProj::Command {
namespace {

class GridCommand : public Subcommand {
public:
    explicit GridCommand(CommandLine line);
    int run(Output& output) override;

private:
    int import(Output& output) const;

    CommandLine m_check, m_import;
    std::string m_checked, m_imported, m_name, m_directory;
    bool m_replace = false;
};

GridCommand::GridCommand(CommandLine line)
    : m_check(line.subcommand("check", "Show header, extent and value ranges of a pair")),
      m_import(line.subcommand("import",
                               "Make a pair of the usual convention, or a CTABLE V2.0, into one for this library")) {
    line.requireSubcommand();
    m_check.argument("NAME", m_checked, "A grid beside this program, as \"conus\", or a path, as \"grids/conus\"")
        .require();
    m_import
        .argument("SOURCE", m_imported,
                  "Path of the pair, as \"download/conus\" for conus.las and conus.los, or of a CTABLE V2.0")
        .require();
    m_import.option("--name", m_name, "NAME", "Name of the new pair; that of the source where not given");
    m_import.option("--to", m_directory, "DIRECTORY", "Directory of the new pair; this program's where not given");
    m_import.flag("--replace", m_replace, "Replace files that are there");
}

/// A path without its ending, where that is one of a grid's.
std::filesystem::path withoutEnding(std::filesystem::path path) {
    std::string const ending = squeezed(path.extension().string());
    return ending == "las" || ending == "los" ? path.replace_extension() : path;
}

int GridCommand::import(Output& output) const {
    bool const isTable = isCtable(m_imported);
    std::filesystem::path const source = isTable ? std::filesystem::path(m_imported) : withoutEnding(m_imported);
    std::string const name = m_name.empty() ? source.filename().string() : m_name;
    if (name.find('/') != std::string::npos)
        throw UsageError("--name: " + inQuotes(name) + " is no name of files; --to tells their directory");
    std::filesystem::path const directory = m_directory.empty() ? gridDirectory() : m_directory;
    std::string const destination = (directory / name).string();
    (isTable ? importCtable : importGrids)({source.string(), destination, m_replace});
    checkGrids(destination, output);
    return 0;
}

int GridCommand::run(Output& output) {
    if (m_import.isGiven())
        return import(output);
    bool const isPath = m_checked.find('/') != std::string::npos;
    checkGrids((isPath ? "" : gridDirectory()) + withoutEnding(m_checked).string(), output);
    return 0;
}

} // namespace

std::unique_ptr<Subcommand> makeGrid(CommandLine line) {
    line.footer(
        R"(The datums of the method NADCON shift points by a pair of files, conus.LAS and conus.LOS or prvi.LAS and prvi.LOS,
which must stand in the directory of the running program: for this command beside zrproj itself, for a program that
links the library beside that one. No other place is looked at.

CAUTION: grids as they are published keep LATITUDE shifts in .las and LONGITUDE shifts in .los, WEST positive. This
library adds the values of .LAS to LONGITUDES, EAST positive, and those of .LOS to latitudes. Published grids must be
imported first. Grids in the format "CTABLE V2.0" are imported, too.

Example: published grids in the directory download
  zrproj grid import download/conus
  zrproj grid check conus)");
    return std::make_unique<GridCommand>(line);
}

} // namespace ZrProj::Command
