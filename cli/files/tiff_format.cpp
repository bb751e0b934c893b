#include "cli/files/tiff_format.h"

#include "cli/files/control_miss.h"
#include "cli/text/text.h"

#include <zrproj/geotiff.h>

#include <array>
#include <sstream>
#include <stdexcept>

namespace ZrProj::Command {
namespace {

/// Tags that the library made.
class MadeTags {
public:
    MadeTags(MapInfo const& system, GEOREF const& georef) {
        if (!ZrProjBuildGeoTIFFTags(&system.projection, system.datum, &system.datumParameters, &georef, &m_tags,
                                    &m_count))
            throw std::runtime_error(whyNot(system, georef));
    }
    ~MadeTags() { ZrProjDiscardGeoTIFFTags(m_tags, m_count); }
    MadeTags(MadeTags const&) = delete;
    MadeTags& operator=(MadeTags const&) = delete;

    std::span<ZrBitmapTag const> tags() const { return {m_tags, static_cast<std::size_t>(m_count)}; }

private:
    static std::string whyNot(MapInfo const& system, GEOREF const& georef) {
        std::array<char, 512> text{};
        ZrProjExplainGeoTIFFTags(&system.projection, system.datum, &system.datumParameters, &georef, text.data(),
                                 static_cast<int>(text.size()));
        return text[0] ? text.data() : "out of memory";
    }

    ZrBitmapTag* m_tags = nullptr;
    int m_count = 0;
};

std::vector<std::string> explanations(ZrBitmapTagList const& tags) {
    std::array<char, 2048> text{};
    ZrProjExplainGeoTIFF(tags, text.data(), static_cast<int>(text.size()));
    std::istringstream lines(text.data());
    std::vector<std::string> result;
    for (std::string line; std::getline(lines, line);)
        result.push_back(line);
    return result;
}

MapInfo read(std::string const& file) {
    ZrBitmapTagList const tags = readTiff(file).tags;
    MapInfo info;
    std::uint32_t flags = 0;
    if (!ZrProjGetGeoTIFF(tags, &info.projection, &info.datum, &info.datumParameters, &*info.georef, &flags))
        throw std::runtime_error("the GeoTIFF tags of " + inQuotes(file) +
                                 " are damaged: " + explanations(tags).front());
    info.projectionFile = flags & RefFileFlagProjection ? file : "";
    info.datumFile = flags & RefFileFlagDatum ? file : "";
    info.georefFile = flags & (RefFileFlagCoefficients | RefFileFlagControls) ? file : "";
    info.notes = explanations(tags);
    return info;
}

/// A map for a file that has tags already: what they alone tell stays, a system's parts together.
MapInfo onTopOf(MapInfo present, MapInfo const& info, std::string const& file) {
    bool const keepsSystem = info.projectionFile.empty() && info.datumFile.empty();
    if (keepsSystem && !present.notes.empty() && present.projectionFile.empty())
        throw std::runtime_error("the present tags of " + inQuotes(file) +
                                 " would be lost, which cannot be read: " + present.notes.front());
    if (!info.projectionFile.empty()) {
        present.projection = info.projection;
        present.datum = DatumTypeNone;
    }
    if (!info.datumFile.empty()) {
        present.datum = info.datum;
        present.datumParameters = info.datumParameters;
    }
    return present;
}

std::vector<std::string> notesOn(std::string const& file, MapInfo const& all, GEOREF const& georef) {
    std::vector<std::string> notes;
    bool const controls = georef.nControls > 0 && georef.Method != TransformMethodAffinePolynomial &&
                          georef.Method != TransformMethodPrecalculatedAffineCoefficients;
    auto const miss = controlMiss(georef, TransformMethodHelmert);
    if (controls && georef.Method == TransformMethodHelmert)
        notes.push_back("the Helmert system is written as the matrix that it is, without its control points" +
                        (miss ? ", which it misses by " + missText(*miss) : ""));
    else if (controls)
        notes.push_back(std::string("the method is left out: ") + RefMethodName(georef.Method) +
                        " is read back as Affine Polynomial");
    if (all.projection.Type == ProjTypeUndefined)
        notes.emplace_back("nothing says in which projection it is; give --utm, --state-plane, --projection or --like");
    if (claimsLayout(file))
        notes.emplace_back("its layout is no longer the one that it claims (cloud-optimized): its directory has moved "
                           "to the end");
    return notes;
}

std::vector<std::string> write(std::string const& file, MapInfo const& info, Misfit) {
    MapInfo const all = onTopOf(read(file), info, file);
    GEOREF const& georef = info.georefFile.empty() ? *all.georef : *info.georef;
    std::vector<std::string> notes = notesOn(file, all, georef);
    try {
        MadeTags const made(all, georef);
        writeTiffTags(file, made.tags());
    } catch (std::runtime_error const& error) {
        throw std::runtime_error("cannot write " + inQuotes(file) + ": " + error.what());
    }
    return notes;
}

} // namespace

FileFormat const& tiffFormat() {
    static constexpr FileFormat format{"GeoTIFF tags", isTiffFile, read, write};
    return format;
}

} // namespace ZrProj::Command
