// zrproj info: what a side file, or the side files and tags of an image, say.
#include "cli/commands/commands.h"
#include "cli/files/map_info.h"
#include "cli/model/datums.h"
#include "cli/model/parameters.h"

#include <array>

namespace ZrProj::Command {
namespace {

constexpr int coefficientDecimals = 15;
constexpr std::int32_t mostPoints = 20; // shown one by one

std::string numberText(double value) {
    std::array<char, 32> text{};
    std::snprintf(text.data(), text.size(), "%.*g", coefficientDecimals, value);
    return text.data();
}

std::string datumTitle(DatumType datum) {
    std::string const name = datumName(datum);
    return name.empty() ? "unknown (" + std::to_string(datum) + ")" : name;
}

void addDatum(Table& table, MapInfo const& info) {
    DATUM2WGS84 const& p = info.datumParameters;
    table.rows.push_back({"Datum", datumTitle(info.datum)});
    table.rows.push_back({"To WGS 84 by", std::string(methodName(p.Method))});
    if (p.Method != DatumMethodMolodensky && p.Method != DatumMethodBursaWolf)
        return;
    table.rows.push_back({"Datum ellipsoid", ellipsoidName(p.Ellipsoid)});
    table.rows.push_back({"Prime meridian", numberText(p.PrimeMeridian) + " degrees"});
    table.rows.push_back({"Shifts", numberText(p.dX) + ", " + numberText(p.dY) + ", " + numberText(p.dZ) + " metres"});
    if (p.Method != DatumMethodBursaWolf)
        return;
    table.rows.push_back(
        {"Rotations", numberText(p.rX) + ", " + numberText(p.rY) + ", " + numberText(p.rZ) + " arcseconds"});
    table.rows.push_back({"Datum scale", numberText(p.Scale)});
}

std::string pairText(GEOREFPOINT const& point) {
    return numberText(point.x) + ", " + numberText(point.y);
}

void addGeoreference(Table& table, GEOREF const& georef) {
    table.rows.push_back({"Georeference", RefMethodName(georef.Method)});
    if (georef.Method == TransformMethodPrecalculatedAffineCoefficients) {
        std::string const a = numberText(georef.A), b = numberText(georef.B), d = numberText(georef.D);
        table.rows.push_back({"X", a + " x + " + b + " y + " + numberText(georef.C)});
        table.rows.push_back({"Y", d + " x + " + numberText(georef.E) + " y + " + numberText(georef.F)});
        return;
    }
    table.rows.push_back({"Control points", std::to_string(georef.nControls)});
    if (auto const miss = controlMiss(georef, georef.Method))
        table.rows.push_back({"Missed by", missText(*miss)});
    for (std::int32_t i = 0; georef.pSource && i < georef.nControls && i < mostPoints; ++i)
        table.rows.push_back({"", pairText(georef.pSource[i]) + " to " + pairText(georef.pTarget[i])});
    if (georef.nControls > mostPoints)
        table.rows.push_back({"", "..."});
}

/// What of the map comes from a file.
std::string partsFrom(std::string const& file, MapInfo const& info) {
    std::string parts;
    auto const add = [&](std::string const& source, char const* part) {
        if (source == file)
            parts += (parts.empty() ? "" : ", ") + std::string(part);
    };
    add(info.projectionFile, "projection");
    add(info.datumFile, "datum");
    add(info.georefFile, "georeference");
    return parts.empty() ? "not used" : "used for " + parts;
}

void writeSources(Output& output, std::string const& image, MapInfo const& info) {
    Table table{{}, "lll", {}};
    for (MapSource const& source : sourcesOf(image))
        table.rows.push_back({source.name, source.format->title, partsFrom(source.name, info)});
    table.write(output);
    output << '\n';
}

class Info : public Subcommand {
public:
    explicit Info(CommandLine line) {
        line.argument("FILE", m_file,
                      "A reference, RSF or world file, or an image: a TIFF file, or one that has such files")
            .require();
    }

    int run(Output& output) override {
        MapInfo const info = readMap(m_file);
        if (FileFormat const* const format = formatOf(m_file))
            output << m_file << ": " << format->title << "\n\n";
        else
            writeSources(output, m_file, info);
        Table table{{}, "ll", {}};
        if (!info.projectionFile.empty())
            addProjection(table, info.projection);
        if (!info.datumFile.empty())
            addDatum(table, info);
        if (!info.georefFile.empty())
            addGeoreference(table, *info.georef);
        for (std::string const& note : info.notes)
            table.rows.push_back({"Not read", note});
        table.write(output);
        return 0;
    }

private:
    static void addProjection(Table& table, PROJDATA const& projection) {
        Table rows{{}, "lll", {}};
        addParameterRows(rows, projection);
        for (std::vector<std::string> const& row : rows.rows)
            table.rows.push_back({row[0], row[1]});
    }

    std::string m_file;
};

} // namespace

std::unique_ptr<Subcommand> makeInfo(CommandLine line) {
    line.footer("Example: what the files beside a scanned map say\n  zrproj info map.tif");
    return std::make_unique<Info>(line);
}

} // namespace ZrProj::Command
