// zrproj transform: from one coordinate system to another, whatever their datums.
#include "cli/commands/commands.h"
#include "cli/commands/conversion_options.h"
#include "cli/files/side_files.h"
#include "cli/files/tiff_file.h"
#include "cli/text/text.h"
#include "cli/text/usage_error.h"

#include <algorithm>
#include <filesystem>

namespace ZrProj::Command {
namespace {

/// What a map, or the .prj file beside it, tells.
SystemPointer systemOfMap(std::string const& file) {
    MapInfo const info = readMap(file);
    if (!info.tells(ZRPROJ_PROJECTION))
        throw UsageError(inQuotes(file) + " tells no coordinate system");
    return systemOf(info);
}

/// Of a definition, of a file that holds one, or of a map.
SystemPointer systemToldBy(std::string const& text) {
    std::error_code none;
    bool const isFile = std::filesystem::is_regular_file(text, none);
    bool const isMap = isFile && (sideFile(text) || isTiffFile(text) || !prjOf(text).empty());
    return isMap ? systemOfMap(text) : systemNamed(text);
}

class TransformCommand : public Subcommand {
public:
    explicit TransformCommand(CommandLine line) {
        CommandLine const systems = line.inGroup("Systems");
        systems.option("--from", m_from, "SYSTEM",
                       "System of the coordinates: a code as EPSG:28992, a name, well-known text, PROJJSON, a PROJ "
                       "string, a file with one of them, or a map that tells one; where not given, as the .prj file "
                       "beside FILE has it");
        systems.option("--to", m_to, "SYSTEM", "System of the results, likewise").require();
        CommandLine const way = line.inGroup("The way from datum to datum");
        way.option("--grids", m_options.grids, "FOLDERS",
                   "Folders to look for grids in, ':' between them, before those of ZRPROJ_GRIDS and PROJ's");
        way.flag("--refuse-rough", m_options.refusesRough, "Refuse ways that lose more than 1 m, or nobody knows what");
        way.flag("--explain", m_explains, "Print the way, a line a step, and its accuracy, and convert nothing");
        m_conversion.addTo(line, "Unit of results on a map, m, ft or us-ft, for the system's own",
                           "Cut the geometries of GeoJSON to what the map of --to shows");
    }

    int run(Output& output) override {
        auto const way = std::make_shared<Way const>(from(), systemToldBy(m_to), m_options);
        if (m_explains) {
            m_conversion.refuseMapOptions("--explain, which converts nothing");
            output << way->description() << '\n';
            return 0;
        }
        if (way->to().isGeographic())
            m_conversion.refuseMapOptions("--to " + inQuotes(m_to) + ", which is no map");
        ConversionJob job = m_conversion.job(directionOf(*way), false);
        job.way = way;
        return m_conversion.run(std::move(job), output);
    }

private:
    SystemPointer from() const {
        if (!m_from.empty())
            return systemToldBy(m_from);
        std::vector<std::string> const files = m_conversion.files();
        SystemPointer const system = besideOf(files.front());
        for (std::string const& file : files)
            if (besideOf(file)->text(ZRPROJ_WKT2) != system->text(ZRPROJ_WKT2))
                throw UsageError("the .prj files of " + inQuotes(files.front()) + " and " + inQuotes(file) +
                                 " differ; they need a command each, or --from");
        return system;
    }

    static SystemPointer besideOf(std::string const& file) {
        std::string const prj = prjOf(file);
        if (prj.empty())
            throw UsageError("--from is missing, and no .prj file beside " +
                             (file == "-" ? "standard input" : inQuotes(file)) + " tells the system");
        return systemOfFile(prj);
    }

    std::string m_from, m_to;
    WayOptions m_options;
    bool m_explains = false;
    ConversionOptions m_conversion;
};

} // namespace

std::unique_ptr<Subcommand> makeTransform(CommandLine line) {
    line.footer(
        R"(The way between the datums is the register's best one for the area of the systems whose grids are there.
Examples: a survey in US survey feet on NAD 27 to degrees on WGS 84
  zrproj transform --from "NAD27 / California zone I" --to WGS84 survey.csv
By which way, and how accurate is it?
  zrproj transform --from EPSG:4314 --to EPSG:4258 --explain
With a grid of your own, or not at all
  zrproj transform --from DHDN --to ETRS89 --grids ~/grids --refuse-rough parcels.geojson
The position of a photo on the British grid
  echo -0.1276 51.5072 | zrproj transform --from WGS84 --to EPSG:27700)");
    return std::make_unique<TransformCommand>(line);
}

} // namespace ZrProj::Command
