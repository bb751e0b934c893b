// zrproj convert: from one kind of side file to another, and to and from the tags of TIFF files.
#include "cli/commands/commands.h"
#include "cli/commands/options.h"
#include "cli/files/map_info.h"
#include "cli/files/tiff_file.h"
#include "cli/model/datums.h"
#include "cli/model/parameters.h"
#include "cli/text/text.h"
#include "cli/text/usage_error.h"

#include <cstdio>

namespace ZrProj::Command {
namespace {

class ConvertFile : public Subcommand {
public:
    explicit ConvertFile(CommandLine line) {
        line.argument("IN", m_in,
                      "A reference, RSF or world file, or an image: a TIFF file, or one that has such files")
            .require();
        line.argument("OUT", m_out,
                      "The file to write, of the kind that its extension tells: zrr, rsf, wld, tfw, prj ...; or a TIFF "
                      "file that is there, whose tags are set")
            .require();
        m_projection.addTo(line);
        line.inGroup("Datums").option("--datum", m_datum, "NAME",
                                      "Datum of the map, by name or POSC code; its ellipsoid is the projection's");
        line.flag("--accept-misfit", m_acceptMisfit,
                  "Write an RSF file although what it is read back as misses the control points by over a pixel");
        m_projection.addParametersTo(line);
    }

    int run(Output&) override {
        auto const out = isTiffFile(m_out) ? MapFile{FileKind::GeoTiff, m_out} : sideFile(m_out);
        if (!out)
            throw UsageError(inQuotes(m_out) + " is no TIFF file that is there, and no name of a side file; end it in "
                                               ".zrr, .rsf, .wld, .prj or the like");
        Misfit const misfit = m_acceptMisfit ? Misfit::Accepted : Misfit::Refused;
        for (std::string const& note : out->write(map(), misfit))
            std::fprintf(stderr, "zrproj: %s: %s\n", inQuotes(m_out).c_str(), note.c_str());
        return 0;
    }

private:
    bool saysSystem() const { return m_projection.any() || !m_datum.empty(); }

    /// What the options say of IN, and what is known of it besides.
    MapInfo map() const {
        MapInfo info = saysSystem() && isTiffFile(m_in) ? readImage(m_in) : readMap(m_in);
        if (!m_datum.empty()) {
            zrproj_parameters const datum = parametersOf(findDatum(m_datum, {}));
            info = MapInfo(&datum, nullptr).with(info);
        }
        if (m_projection.any())
            setProjection(info);
        return info;
    }

    /// As another map has it, with its datum where nothing else says one, or by its parameters.
    void setProjection(MapInfo& info) const {
        if (!m_projection.likeFile().empty() && !info.tells(ZRPROJ_DATUM)) {
            MapInfo const like = readMap(m_projection.likeFile());
            if (like.tells(ZRPROJ_DATUM)) {
                zrproj_parameters const datum = like.datum();
                info = MapInfo(&datum, nullptr).with(info);
            }
        }
        ProjectionChoice choice = m_projection.choice(datumOf(info));
        if (choice.zonePerPoint)
            throw UsageError("--utm auto is no projection of a map; name its zone");
        if (choice.system && !m_datum.empty())
            throw UsageError("--datum has no place beside --like " + inQuotes(m_projection.likeFile()) +
                             ", whose system tells it");
        if (choice.system) {
            info = MapInfo(choice.system, "").with(info);
            return;
        }
        if (choice.unit)
            choice.record.Scale = 1 / choice.unit->metres;
        zrproj_parameters const projection = parametersOf(choice.record);
        info = MapInfo(&projection, nullptr).with(info);
    }

    MapDatum datumOf(MapInfo const& info) const {
        if (!info.tells(ZRPROJ_DATUM))
            return {};
        zrproj_parameters const told = info.datum();
        Datum datum{"", static_cast<DatumType>(told.datum)};
        datum.record.Ellipsoid = static_cast<EllipsoidType>(told.ellipsoid);
        datum.record.MajorRadius = told.radius;
        datum.record.Flattening = told.flattening;
        MapDatum map = mapDatumOf(datum);
        map.isGiven = !m_datum.empty();
        return map;
    }

    std::string m_in, m_out, m_datum;
    bool m_acceptMisfit = false;
    ProjectionOptions m_projection;
};

} // namespace

std::unique_ptr<Subcommand> makeConvertFile(CommandLine line) {
    line.footer("Example: a scanned map's world file as a reference file\n  zrproj convert map.tfw map.tif.zrr\n"
                "Example: a scanned map with a world file and a projection, in its own tags\n"
                "  zrproj convert map.tif map.tif --utm 17N --datum nad27\n"
                "Example: all that is known of a scanned map, in its own tags\n  zrproj convert map.tif map.tif");
    return std::make_unique<ConvertFile>(line);
}

} // namespace ZrProj::Command
