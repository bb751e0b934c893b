// zrproj locate: from image coordinates to longitudes and latitudes.
#include "cli/commands/commands.h"
#include "cli/commands/options.h"
#include "cli/files/map_info.h"
#include "cli/points/conversion.h"
#include "cli/text/text.h"
#include "cli/text/usage_error.h"

#include <cstdio>

namespace ZrProj::Command {
namespace {

constexpr int degreeDecimals = 9;

class Locate : public Subcommand {
public:
    explicit Locate(CommandLine line) {
        line.argument("IMAGE", m_image, "The image; its side files and tags tell where it lies").require();
        line.arguments("FILE", m_files, "Files of image coordinates; standard input where none is given, and for -");
        line.inGroup("Input and output")
            .option("--columns", m_columns, "X,Y",
                    "Columns of the coordinates, x first: numbers from 1, or names of the header");
        m_projection.addTo(line);
        m_projection.addParametersTo(line);
    }

    int run(Output& output) override {
        ProjectionChoice const choice = this->choice();
        // Image coordinates become map coordinates in the map's own unit.
        LengthUnit const& unit = choice.system && choice.unit ? *choice.unit : lengthUnits.front();
        ColumnRequest columns{Operation::Inverse, {}, &unit, false};
        if (!m_columns.empty())
            columns.columns = parseColumns(m_columns, false);
        ConversionJob job;
        job.projection = choice;
        job.columns = columns;
        job.decimals = degreeDecimals;
        job.files = filesOrStandardInput(m_files);
        return convertPoints(job, output);
    }

private:
    /// The image's own projection, unless the options name one.
    ProjectionChoice choice() const {
        MapInfo const info = readMap(m_image);
        if (!info.tells(ZRPROJ_GEOREFERENCE))
            throw UsageError("nothing says how " + inQuotes(m_image) + " lies on the map");
        if (!m_projection.any() && !info.tells(ZRPROJ_PROJECTION))
            throw UsageError("nothing says in which projection " + inQuotes(m_image) + " is" + reasons(info) +
                             "; give --crs, --utm, --state-plane, --projection or --like");
        ProjectionChoice choice;
        if (m_projection.any())
            choice = m_projection.choice();
        else
            setProjection(choice, info);
        if (choice.zonePerPoint)
            throw UsageError("--utm auto is no projection of an image; name its zone");
        if (choice.unit && !choice.system)
            choice.record.Scale = 1 / choice.unit->metres;
        warnOfMiss(info);
        zrproj_fit* fit = nullptr;
        if (zrproj_description_fit(info.handle(), &fit) != ZRPROJ_OK)
            throw UsageError("the georeference of " + inQuotes(m_image) + " cannot be made");
        choice.image = {fit, zrproj_fit_destroy};
        return choice;
    }

    static void setProjection(ProjectionChoice& choice, MapInfo const& info) {
        bool const isMap = info.system() && !info.system()->isGeographic();
        if (isMap) {
            choice.system = info.system();
            choice.unit = &choice.system->unit();
        } else if (info.hasRecord()) {
            choice.record = info.projection();
        } // else longitudes and latitudes, which records leave as they are
    }

    /// Of a similarity, which may have been given no choice: an RSF file says no other method.
    void warnOfMiss(MapInfo const& info) const {
        if (info.georeference().method != TransformMethodHelmert)
            return;
        auto const miss = controlMiss(info, TransformMethodHelmert);
        if (miss && isWide(*miss))
            std::fprintf(stderr, "zrproj: the similarity (Helmert) that places %s misses its control points by %s\n",
                         inQuotes(m_image).c_str(), missText(*miss).c_str());
    }

    static std::string reasons(MapInfo const& info) {
        auto const notes = info.notes();
        return notes.empty() ? "" : " (" + notes.front() + ")";
    }

    std::string m_image, m_columns;
    std::vector<std::string> m_files;
    ProjectionOptions m_projection;
};

} // namespace

std::unique_ptr<Subcommand> makeLocate(CommandLine line) {
    line.footer(
        R"(Image coordinates are columns and rows of pixels from the upper left corner of the image, whose first pixel
has its centre at 0.5, 0.5. Longitudes and latitudes are on the datum of the map.
Example: the middle of a pixel
  echo 100.5 200.5 | zrproj locate scan.tif)");
    return std::make_unique<Locate>(line);
}

} // namespace ZrProj::Command
