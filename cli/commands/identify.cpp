// zrproj identify: which systems put coordinates where they are known to be.
#include "cli/commands/commands.h"
#include "cli/commands/options.h"
#include "cli/points/identification.h"
#include "cli/points/point_list.h"
#include "cli/text/numbers.h"
#include "cli/text/text.h"
#include "cli/text/usage_error.h"

#include <cmath>
#include <cstdio>
#include <stdexcept>

namespace ZrProj::Command {
namespace {

constexpr std::size_t mostPoints = 1000;
constexpr std::size_t rowsShown = 10;
constexpr double usualKilometres = 50;

/// "3.21 m", "321 m", "32.1 km".
std::string lengthText(double metres) {
    std::string text;
    appendFixed(text, metres < 1000 ? metres : metres / 1000, metres < 10 ? 2 : metres < 1000 ? 0 : 1);
    return text + (metres < 1000 ? " m" : " km");
}

std::string notesOn(Identified const& system) {
    std::string notes;
    auto const add = [&](bool applies, std::string const& note) {
        if (applies)
            notes += (notes.empty() ? "" : "; ") + note;
    };
    add(system.isSwapped, "x and y swapped");
    add(!system.isInArea, "outside its area of use");
    add(system.isDeprecated, "deprecated");
    add(std::isinf(system.accuracy), "no way from its datum to WGS 84 is known");
    add(system.others > 0, "and " + std::to_string(system.others) + " like it");
    return notes;
}

class Identify : public Subcommand {
public:
    explicit Identify(CommandLine line) {
        line.argument("FILE", m_file, "Coordinates in an unknown system; - for standard input").require();
        m_atOption = line.option("--at", m_at, "LON,LAT", "Where they are, about");
        m_likeOption = line.option("--like-points", m_like, "FILE",
                                   "Where they are, each: longitudes and latitudes on WGS 84, in the same order");
        line.option("--columns", m_columns, "X,Y",
                    "Columns of the coordinates, x first: numbers from 1, or names of the header");
        line.option("--within", m_within, "KM", "How far off a system may put them, on the average (50)");
        line.flag("--all", m_isAll, "List all systems, not only the first 10");
    }

    int run(Output& output) override {
        if (m_atOption.isGiven() == m_likeOption.isGiven())
            throw UsageError(m_atOption.isGiven() ? "--like-points has no place beside --at, which tells where they are"
                                                  : "where are they? give --at or --like-points");
        double const within = this->within();
        auto const found = identify(points(), within);
        if (found.empty()) {
            std::fprintf(stderr, "zrproj: no system of the register puts them within %s\n", lengthText(within).c_str());
            return 1;
        }
        write(output, found);
        return 0;
    }

private:
    double within() const {
        if (m_within.empty())
            return usualKilometres * 1000;
        Reading const number = readNumber(m_within);
        if (number.error || !(number.value > 0))
            throw UsageError("--within: " + inQuotes(m_within) + " is no number of kilometres above 0");
        return number.value * 1000;
    }

    KnownPoints points() const {
        ColumnRequest request{Operation::Inverse, {}, nullptr, false};
        if (!m_columns.empty())
            request.columns = parseColumns(m_columns, false);
        auto const given = readPoints(m_file, request, mostPoints);
        KnownPoints const points = m_atOption.isGiven() ? pointsAbout(readable(given), place()) : pairs(given);
        if (points.places.empty())
            throw std::runtime_error("there are no points in " + inQuotes(m_file));
        return points;
    }

    std::vector<PROJPOINT> readable(std::vector<std::optional<PROJPOINT>> const& points) const {
        std::vector<PROJPOINT> result;
        for (auto const& point : points)
            if (point)
                result.push_back(*point);
        if (result.empty())
            throw std::runtime_error("there are no points in " + inQuotes(m_file));
        return result;
    }

    PROJPOINT place() const {
        std::size_t const comma = m_at.find(',');
        std::string const second = comma == std::string::npos ? "" : m_at.substr(comma + 1);
        Reading const longitude = readAngle(m_at.substr(0, comma), Axis::Longitude);
        Reading const latitude = readAngle(second, Axis::Latitude);
        if (longitude.error || latitude.error)
            throw UsageError("--at: " + inQuotes(m_at) + " is no longitude and latitude, as in 7.1,50.7");
        return {longitude.value, latitude.value};
    }

    /// Of lines that both files have a point on.
    KnownPoints pairs(std::vector<std::optional<PROJPOINT>> const& given) const {
        auto const known = readPoints(m_like, {Operation::Forward, {}, nullptr, false}, mostPoints);
        if (known.size() != given.size())
            throw std::runtime_error(inQuotes(m_file) + " has " + std::to_string(given.size()) + " points, and " +
                                     inQuotes(m_like) + " has " + std::to_string(known.size()));
        KnownPoints points;
        for (std::size_t i = 0; i < given.size(); ++i)
            if (given[i] && known[i]) {
                points.coordinates.push_back(*given[i]);
                points.places.push_back(*known[i]);
            }
        return points;
    }

    void write(Output& output, std::vector<Identified> const& found) const {
        Table table{{"Code", "System", "Off by", "Remarks"}, "llrl", {}};
        for (Identified const& system : found)
            if (m_isAll || table.rows.size() < rowsShown)
                table.rows.push_back(
                    {"EPSG:" + std::to_string(system.code), system.name, lengthText(system.off), notesOn(system)});
        table.write(output);
        if (table.rows.size() < found.size())
            output << "and " << std::to_string(found.size() - table.rows.size()) << " more (--all)\n";
    }

    Option m_atOption, m_likeOption;
    std::string m_file, m_at, m_like, m_columns, m_within;
    bool m_isAll = false;
};

} // namespace

std::unique_ptr<Subcommand> makeIdentify(CommandLine line) {
    line.footer(
        R"(All systems of the register are tried, also with x and y swapped. Of a family's zones and of a datum's realizations
that put the points about the place the nearest one is listed. The first 1,000 points count.
Example: old coordinates from near Bonn
  zrproj identify survey.csv --at 7.1,50.7
Example: coordinates of places whose positions are known too
  zrproj identify survey.csv --like-points gps.csv)");
    return std::make_unique<Identify>(line);
}

} // namespace ZrProj::Command
