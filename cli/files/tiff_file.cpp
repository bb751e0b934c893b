#include "cli/files/tiff_file.h"

#include "cli/files/map_info.h"
#include "cli/files/plain_file.h"
#include "cli/text/text.h"

#include <tiffio.h>
#include <zrproj/geotiff.h>

#include <algorithm>
#include <array>
#include <cstdarg>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <memory>
#include <sstream>
#include <stdexcept>

namespace ZrProj::Command {
namespace {

struct TagRow {
    ttag_t id;
    TIFFDataType type;
    char const* name;
};

constexpr std::array geoTags{
    TagRow{33550, TIFF_DOUBLE, "ModelPixelScale"},     TagRow{33922, TIFF_DOUBLE, "ModelTiepoint"},
    TagRow{34264, TIFF_DOUBLE, "ModelTransformation"}, TagRow{34735, TIFF_SHORT, "GeoKeyDirectory"},
    TagRow{34736, TIFF_DOUBLE, "GeoDoubleParams"},     TagRow{34737, TIFF_ASCII, "GeoAsciiParams"},
};

/// Declares the tags to libtiff, each with a count of its own.
void declareTags(TIFF* file) {
    std::array<TIFFFieldInfo, geoTags.size()> fields = {};
    std::transform(geoTags.begin(), geoTags.end(), fields.begin(), [](TagRow const& tag) {
        return TIFFFieldInfo{
            tag.id, TIFF_VARIABLE2, TIFF_VARIABLE2, tag.type, FIELD_CUSTOM, 1, 1, const_cast<char*>(tag.name)};
    });
    TIFFMergeFieldInfo(file, fields.data(), static_cast<std::uint32_t>(fields.size()));
}

std::string lastError; // libtiff's; the command has one thread

void keepError(char const*, char const* format, std::va_list arguments) {
    std::array<char, 512> text = {};
    std::vsnprintf(text.data(), text.size(), format, arguments);
    lastError = text.data();
}

struct Close {
    void operator()(TIFF* file) const { TIFFClose(file); }
};
using TiffHandle = std::unique_ptr<TIFF, Close>;

[[noreturn]] void fail(std::string const& what) {
    throw std::runtime_error(what + (lastError.empty() ? "" : ": " + lastError));
}

TiffHandle open(std::string const& name, char const* mode) {
    TIFFSetWarningHandler(nullptr);
    TIFFSetErrorHandler(keepError);
    TIFFSetTagExtender(declareTags);
    lastError.clear();
    TiffHandle file(TIFFOpen(name.c_str(), mode));
    if (!file)
        fail("cannot read " + inQuotes(name));
    return file;
}

void setTag(TIFF& file, ZrBitmapTag const& tag) {
    if (TIFFSetField(&file, tag.Id, tag.Count, tag.pData) != 1)
        fail("cannot set tag " + std::to_string(tag.Id));
}

} // namespace

bool isTiffFile(std::string const& name) {
    std::error_code error;
    if (!std::filesystem::is_regular_file(name, error)) // a pipe's writer may never come
        return false;
    std::array<char, 4> start = {};
    std::ifstream(name, std::ios::binary).read(start.data(), start.size());
    std::string_view const bytes(start.data(), start.size());
    using namespace std::string_view_literals;
    return bytes == "II*\0"sv || bytes == "MM\0*"sv || bytes == "II+\0"sv || bytes == "MM\0+"sv;
}

bool claimsLayout(std::string const& name) {
    constexpr std::string_view claim = "GDAL_STRUCTURAL_METADATA_SIZE=";
    std::array<char, 64> start = {};
    std::ifstream(name, std::ios::binary).read(start.data(), start.size());
    std::string_view const bytes(start.data(), start.size());
    return bytes.substr(8).starts_with(claim) || bytes.substr(16).starts_with(claim); // behind the header
}

TiffImage readTiff(std::string const& name) {
    TiffHandle const file = open(name, "r");
    TiffImage image;
    TIFFGetField(file.get(), TIFFTAG_IMAGEWIDTH, &image.width);
    TIFFGetField(file.get(), TIFFTAG_IMAGELENGTH, &image.height);
    for (TagRow const& tag : geoTags) {
        std::uint32_t count = 0;
        void const* data = nullptr;
        bool const there = TIFFGetField(file.get(), tag.id, &count, &data) == 1;
        if (there &&
            !image.tags.Add({static_cast<std::uint16_t>(tag.id), static_cast<std::uint16_t>(tag.type), count, data}))
            fail("cannot read tag " + std::to_string(tag.id) + " of " + inQuotes(name));
    }
    return image;
}

void writeTiffTags(std::string const& name, std::span<ZrBitmapTag const> tags) {
    ReplacementFile replacement(name);
    replacement.copyOriginal();
    TiffHandle file = open(replacement.name(), "r+");
    for (TagRow const& tag : geoTags)
        TIFFUnsetField(file.get(), tag.id);
    for (ZrBitmapTag const& tag : tags)
        setTag(*file, tag);
    if (TIFFRewriteDirectory(file.get()) != 1)
        fail("cannot write the tags of " + inQuotes(name));
    lastError.clear();
    file.reset();
    if (!lastError.empty())
        fail("cannot write " + inQuotes(name));
    replacement.commit();
}

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
