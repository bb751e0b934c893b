// zrproj map: draws maps.
#include "cli/commands/commands.h"
#include "cli/commands/options.h"
#include "cli/files/plain_file.h"
#include "cli/map/content.h"
#include "cli/map/sheet.h"
#include "cli/model/parameters.h"
#include "cli/points/fields.h"
#include "cli/text/numbers.h"
#include "cli/text/text.h"
#include "cli/text/usage_error.h"

namespace ZrProj::Command {
namespace {

constexpr double usualGraticule = 15, usualEllipses = 30;
constexpr double usualSize = 900, usualSheetSize = 1600;

/// A number of an option, within bounds.
double readWithin(char const* option, std::string const& text, double low, double high) {
    Reading const number = readNumber(text);
    if (number.error || !(number.value >= low && number.value <= high))
        throw UsageError(std::string(option) + ": " + inQuotes(text) + " is not a number from " + numberText(low) +
                         " to " + numberText(high));
    return number.value;
}

class Map : public Subcommand {
public:
    explicit Map(CommandLine line);
    int run(Output& output) override;

private:
    MapContent content();
    MapPicture picture();
    double graticule() const;
    std::array<double, 4> bounds() const;

    ProjectionOptions m_projection;
    bool m_all = false;
    std::string m_graticule, m_ellipses, m_points, m_columns, m_title, m_bounds, m_landFile, m_size, m_output;
    Option m_titleOption, m_ellipsesOption;
    std::vector<Places> m_land;
};

Map::Map(CommandLine line) {
    line.inGroup("Projection").flag("--all", m_all, "A sheet of all projections, instead of one");
    m_projection.addTo(line);
    CommandLine const drawing = line.inGroup("Drawing");
    drawing.option("--graticule", m_graticule, "DEGREES", "Meridians and parallels, so far apart (15); 0 for none");
    m_ellipsesOption = drawing.option("--tissot", m_ellipses, "DEGREES", "Distortion ellipses, so far apart (30)");
    m_ellipsesOption.allowNoValue();
    drawing.option("--points", m_points, "FILE",
                   "Points to mark: longitude, latitude, and a name if you like; - is standard input");
    drawing.option("--columns", m_columns, "X,Y",
                   "Columns of the points, longitude first: numbers from 1, or names of the header");
    m_titleOption = drawing.option("--title", m_title, "TEXT", "Title (the projection's name); \"\" for none");
    drawing.option("--bounds", m_bounds, "W,S,E,N", "What to draw, in degrees, instead of all that can be drawn well");
    drawing.option("--land", m_landFile, "FILE",
                   "Rings of land: longitude, latitude; an empty line between rings; none: no land");
    drawing.option("--size", m_size, "PIXELS", "Length of the map's longer side (900), or width of the sheet (1600)");
    drawing.option("-o,--output", m_output, "FILE", "The SVG file to write; standard output where none is given");
    m_projection.addParametersTo(line);
}

double Map::graticule() const {
    if (m_graticule.empty())
        return usualGraticule;
    if (m_graticule == "0")
        return 0;
    return readWithin("--graticule", m_graticule, 0.1, 90);
}

std::array<double, 4> Map::bounds() const {
    auto const texts = fieldTexts(m_bounds, ',');
    if (texts.size() != 4)
        throw UsageError("--bounds: " + inQuotes(m_bounds) + " is not west,south,east,north");
    std::array<double, 4> result{};
    for (std::size_t i = 0; i < result.size(); ++i)
        result[i] = i % 2 ? readWithin("--bounds", texts[i], -90, 90) : readWithin("--bounds", texts[i], -360, 360);
    if (!(result[1] < result[3]))
        throw UsageError("--bounds: the south is not below the north");
    if (result[0] == result[2])
        throw UsageError("--bounds: the west is the east");
    return result;
}

MapContent Map::content() {
    MapContent result;
    if (m_landFile != "none") {
        m_land = m_landFile.empty() ? worldLand() : readLand(m_landFile);
        result.land = &m_land;
    }
    result.graticule = graticule();
    if (m_ellipsesOption.isGiven())
        result.ellipses = m_ellipses.empty() ? usualEllipses : readWithin("--tissot", m_ellipses, 1, 90);
    if (!m_points.empty())
        result.points = readMapPoints(m_points, m_columns);
    if (!m_bounds.empty())
        result.bounds = bounds();
    return result;
}

MapPicture Map::picture() {
    double const size =
        m_size.empty() ? (m_all ? usualSheetSize : usualSize) : readWithin("--size", m_size, 100, 10000);
    if (m_all && m_projection.any())
        throw UsageError("--all has no place beside an option that names one projection");
    if (m_all && (m_titleOption.isGiven() || !m_bounds.empty()))
        throw UsageError("--title and --bounds are for one map, not for --all");
    if (m_all)
        return drawSheet(content(), size);
    ProjectionChoice const choice = m_projection.choice();
    if (choice.zonePerPoint)
        throw UsageError("--utm auto is one projection for each zone; name a zone to draw it");
    MapContent drawn = content();
    drawn.title = m_titleOption.isGiven() ? m_title
                  : choice.system         ? choice.system->text(ZRPROJ_NAME)
                                          : projectionName(choice.record.Type);
    return drawMap(choice, drawn, size, "");
}

int Map::run(Output& output) {
    std::string const text = svgFile(picture());
    if (m_output.empty() || m_output == "-") {
        output << text;
        return 0;
    }
    writeWholeFile(m_output, text);
    return 0;
}

} // namespace

std::unique_ptr<Subcommand> makeMap(CommandLine line) {
    line.footer(R"(Examples:
  zrproj map --projection robinson --output world.svg
  zrproj map --projection stereographic --lat0 90 --tissot --output arctic.svg
  zrproj map --utm 17N --bounds -85,40,-74,47 --graticule 1 --points cities.csv --output ontario.svg)");
    return std::make_unique<Map>(line);
}

} // namespace ZrProj::Command
