// zrproj info: what a side file, or the side files and tags of an image, say.
#include "cli/commands/commands.h"
#include "cli/files/map_info.h"
#include "cli/files/side_files.h"
#include "cli/model/datums.h"
#include "cli/model/parameters.h"

#include <array>

namespace ZrProj::Command {
namespace {

constexpr int coefficientDecimals = 15;
constexpr std::size_t mostPoints = 20; // shown one by one

std::string numberText(double value) {
    std::array<char, 32> text{};
    std::snprintf(text.data(), text.size(), "%.*g", coefficientDecimals, value);
    return text.data();
}

std::string datumTitle(int datum) {
    std::string const name = datumName(static_cast<DatumType>(datum));
    return name.empty() ? "unknown (" + std::to_string(datum) + ")" : name;
}

void addDatum(Table& table, zrproj_parameters const& datum) {
    zrproj_shift const& p = datum.shift;
    table.rows.push_back({"Datum", datumTitle(datum.datum)});
    auto const method = static_cast<DatumMethod>(p.method);
    table.rows.push_back({"To WGS 84 by", std::string(methodName(method))});
    if (!hasShifts(method))
        return;
    table.rows.push_back({"Datum ellipsoid", ellipsoidName(static_cast<EllipsoidType>(datum.ellipsoid))});
    table.rows.push_back({"Prime meridian", numberText(p.prime_meridian) + " degrees"});
    table.rows.push_back({"Shifts", numberText(p.dx) + ", " + numberText(p.dy) + ", " + numberText(p.dz) + " metres"});
    if (!hasRotations(method))
        return;
    table.rows.push_back(
        {"Rotations", numberText(p.rx) + ", " + numberText(p.ry) + ", " + numberText(p.rz) + " arcseconds"});
    table.rows.push_back({"Datum scale", numberText(p.scale)});
}

std::string pairText(double const* pair) {
    return numberText(pair[0]) + ", " + numberText(pair[1]);
}

void addGeoreference(Table& table, MapInfo const& info) {
    auto const [size, method, count, source, target, c] = info.georeference();
    table.rows.push_back({"Georeference", RefMethodName(static_cast<TransformMethod>(method))});
    if (method == TransformMethodPrecalculatedAffineCoefficients) {
        table.rows.push_back({"X", numberText(c[0]) + " x + " + numberText(c[1]) + " y + " + numberText(c[2])});
        table.rows.push_back({"Y", numberText(c[3]) + " x + " + numberText(c[4]) + " y + " + numberText(c[5])});
        return;
    }
    table.rows.push_back({"Control points", std::to_string(count)});
    if (auto const miss = controlMiss(info, method))
        table.rows.push_back({"Missed by", missText(*miss)});
    for (std::size_t i = 0; i < count && i < mostPoints; ++i)
        table.rows.push_back({"", pairText(source + 2 * i) + " to " + pairText(target + 2 * i)});
    if (count > mostPoints)
        table.rows.push_back({"", "..."});
}

/// What of the map comes from a file.
std::string partsFrom(MapFile const& file, MapInfo const& info) {
    constexpr std::array names{"projection", "datum", "georeference"}; // by zrproj_part
    std::string parts;
    for (auto const part : {ZRPROJ_PROJECTION, ZRPROJ_DATUM, ZRPROJ_GEOREFERENCE})
        if (info.fileOf(part) == (file.kind == FileKind::GeoTiff ? "" : file.name))
            parts += (parts.empty() ? "" : ", ") + std::string(names[part]);
    return parts.empty() ? "not used" : "used for " + parts;
}

void writeSources(Output& output, std::string const& image, MapInfo const& info) {
    Table table{{}, "lll", {}};
    for (MapFile const& file : filesOf(image))
        table.rows.push_back({file.name, file.title(), partsFrom(file, info)});
    table.write(output);
    output << '\n';
}

class Info : public Subcommand {
public:
    explicit Info(CommandLine line) {
        line.argument("FILE", m_file,
                      "A reference, RSF, world or .prj file, or an image: a TIFF file, or one that has such files")
            .require();
    }

    int run(Output& output) override {
        MapInfo const info = readMap(m_file);
        if (auto const side = sideFile(m_file))
            output << m_file << ": " << side->title() << "\n\n";
        else
            writeSources(output, m_file, info);
        Table table{{}, "ll", {}};
        if (info.tells(ZRPROJ_PROJECTION))
            addSystem(table, info);
        if (info.hasRecord())
            addProjection(table, info.projection());
        if (info.tells(ZRPROJ_DATUM))
            addDatum(table, info.datum());
        if (info.tells(ZRPROJ_GEOREFERENCE))
            addGeoreference(table, info);
        if (isPlacedAlone(info))
            table.rows.push_back({"System", "not told: the tags say where the image lies, and not in which system"});
        for (std::string const& note : info.notes())
            table.rows.push_back({"Not read", note});
        table.write(output);
        return 0;
    }

private:
    /// Whether tags have a georeference, and neither they nor a file beside them tell the system.
    bool isPlacedAlone(MapInfo const& info) const {
        return info.fileOf(ZRPROJ_GEOREFERENCE) == "" && !info.tells(ZRPROJ_PROJECTION) && info.notes().empty();
    }

    /// Of records only what the register has.
    static void addSystem(Table& table, MapInfo const& info) {
        try {
            SystemPointer const system = systemOf(info);
            if (info.system() || !system->code().empty())
                table.rows.push_back({"System", system->title()});
        } catch (std::runtime_error const&) { // a record that makes none is told by its numbers all the same
        }
    }

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
